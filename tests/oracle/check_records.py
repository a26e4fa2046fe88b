"""check_records.py <oracle folder> <cellGroups> kept|dropped COUNT: random records, composed through the entry. The oracle
reads from each message what the record means, and encodes it to the same octets."""

import json
import sys

import oracle_run


def main():
    folder, cell_groups, ranges, count = sys.argv[1:]
    oracle = oracle_run.Oracle(folder)
    lines = [line.split(" ", 2) for line in oracle_run.run([cell_groups, ranges, count, oracle_run.seed()])]
    failures = []
    for (seed, octets, meant), read in zip(lines, oracle.read(octets for _, octets, _ in lines)):
        if read != f"{octets} {meant}":
            again, _, value = read.partition(" ")
            where = read if again == "error" else \
                oracle_run.difference(json.loads(meant), json.loads(value)) or f"encoded again as {again}"
            failures.append(f"cell group {seed}: {where}\n  {octets}")
    oracle_run.conclude(failures, f"{len(lines)} cell groups")


main()
