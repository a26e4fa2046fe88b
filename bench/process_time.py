#!/usr/bin/env python3
"""process_time.py <program> <file> [ROUNDS]: how long `decode` of the file takes as a process, in turn with --version
and with a program that does nothing. The least and the median time of each, in ms."""

import os
import statistics
import sys
import time


def run(arguments):
    begin = time.perf_counter()
    process = os.posix_spawn(arguments[0], arguments, {},
                             file_actions=[(os.POSIX_SPAWN_OPEN, 1, os.devnull, os.O_WRONLY, 0)])
    status = os.waitstatus_to_exitcode(os.waitpid(process, 0)[1])
    if status != 0:
        sys.exit(f"{' '.join(arguments)}: exit status {status}")
    return 1000 * (time.perf_counter() - begin)


def main():
    program, file = sys.argv[1:3]
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 300
    commands = {"decode": [program, "decode", file], "--version": [program, "--version"], "true": ["/bin/true"]}
    times = {name: [] for name in commands}
    for _ in range(rounds):
        for name, arguments in commands.items():
            times[name].append(run(arguments))
    for name, measured in times.items():
        print(f"{name}: least {min(measured):.2f} ms, median {statistics.median(measured):.2f} ms")


main()
