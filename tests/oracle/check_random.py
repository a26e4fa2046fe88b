"""check_random.py <oracle folder> <reencode> cell-groups COUNT | types COUNT: random values, encoded by the oracle, come
back unchanged from our own decoder and encoder. From 1000 cell groups on everything in the schema has to occur in them."""

import sys

import oracle_run

ENOUGH = 1000


def main():
    folder, reencode, what, count = sys.argv[1:]
    oracle = oracle_run.Oracle(folder)
    seed = oracle_run.seed()
    if what == "types":
        names = sorted(oracle_run.run([reencode, "types"]))
        lines = oracle.samples(names, count, seed)
        if len(lines) != len(names) * int(count):
            sys.exit(f"{len(lines)} values of {len(names)} types")
    else:
        draw = oracle.generate if int(count) >= ENOUGH else oracle.sample
        lines = draw("CellGroupConfig", count, seed)
        if len(lines) != int(count):
            sys.exit(f"{len(lines)} values instead of {count}")
    failures = []
    for line, again in zip(lines, oracle_run.answers([reencode], lines)):
        if again != "ok " + line.split()[1]:
            failures.append(f"{line}\n  encoded again: {again}")
    oracle_run.conclude(failures, f"{len(lines)} random values")


main()
