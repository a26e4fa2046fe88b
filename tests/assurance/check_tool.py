"""Every request for memory of the program fails in turn: it says so or does what it does otherwise, and never crashes.

  check_tool.py PROGRAM PRELOADED FOLDER POINTS     at most POINTS requests of each command, spread evenly; 0: all
"""
import os
import pathlib
import subprocess
import sys
import tempfile

PROGRAM, PRELOADED, FOLDER, POINTS = sys.argv[1], sys.argv[2], pathlib.Path(sys.argv[3]), int(sys.argv[4])

wrong = []


def run(arguments, **variables):
    done = subprocess.run([PROGRAM, *arguments], stdin=subprocess.DEVNULL, capture_output=True, timeout=60, check=False,
                          env={**os.environ, "LD_PRELOAD": PRELOADED, "NO_COLOR": "", **variables})
    return done.returncode, done.stdout, done.stderr


def spread(first, count, points):
    if points == 0 or count <= points:
        return range(first, first + count)
    return sorted({first + i * (count - 1) // (points - 1) for i in range(points)})


def points_of(count, options):
    """Of the requests behind the first `options`; half of them the last, where what was read is worked on."""
    last = min(POINTS // 2, count - options)
    return [*spread(options + 1, count - options - last, POINTS and POINTS - last), *range(count - last + 1, count + 1)]


def requests(folder, arguments):
    counted = folder / "count"
    done = run(arguments, FAILING_MALLOC_COUNT=str(counted))
    return int(counted.read_text(encoding="ascii")), done


def trial(folder, arguments, options):
    count, alone = requests(folder, arguments)
    if alone[0] not in (0, 1):
        wrong.append(f"{' '.join(arguments)}: {alone[0]}, {alone[2]}")
    points = points_of(count, options)
    said = 0
    for number in points:
        for mode in ({}, {"FAILING_MALLOC_ON": "1"}):
            status, output, errors = run(arguments, FAILING_MALLOC=str(number), **mode)
            words = (output[-2000:] + errors).decode(errors="replace").lower()  # `check` says it as a finding
            told = status > 0 and ("memory" in words or "heap" in words)
            said += told
            if not told and (status, output) != alone[:2]:
                wrong.append(f"{' '.join(arguments)}, request {number}{', on' if mode else ''}: {status}, {words[-300:]!r}")
    print(f"| `{arguments[0]}` | {count} | {2 * len(points)} | {said} |", flush=True)
    return 2 * len(points), said


def main():
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        before, after, record, jer, flat = (
            folder / file for file in ("before.hex", "after.hex", "record.json", "message.json", "message.flat"))
        record.write_bytes(run(["example", "typical-call"])[1])
        after.write_bytes(run(["compose", str(record)])[1])
        before.write_bytes(run(["encode", str(FOLDER / "tests/Rules/wholeCell.flat"), "--as", "flat"])[1])
        jer.write_bytes(run(["decode", "--json", str(after)])[1])
        flat.write_bytes(run(["decode", "--flat", str(after)])[1])
        log = folder / "ue.log"
        log.write_bytes(b"12:00:00 CellGroupConfig " + after.read_bytes())
        commands = [["decode", str(after)], ["decode", "--flat", str(log)], ["encode", str(jer)], ["encode", str(flat)],
                    ["diff", str(before), str(after)], ["delta", "none", str(after)], ["apply", "none", str(after)],
                    ["compose", str(record)], ["record", str(after)], ["check", str(record)], ["check", "--full", str(after)],
                    ["view", str(after)], ["draw", str(after)], ["find", str(log)], ["explain", "t304"], ["rules"]]
        # What makes the options of all commands is the same for each, so `--version` tries it.
        options = requests(folder, ["--version"])[0]
        print("| Command | requests | points | said so |\n|---|--:|--:|--:|")
        points, said = map(sum, zip(trial(folder, ["--version"], 0), *(trial(folder, command, options) for command in commands)))
    for line in wrong[:20]:
        print(line)
    print(f"\n{points} points, {said} times it said that there is no memory, {len(wrong)} wrong")
    return 1 if wrong or said < 50 else 0


sys.exit(main())
