"""check_records.py <oracle folder> <cellGroups> kept|dropped COUNT: random records, composed through the entry. The oracle
reads from each message what the record means, and encodes it to the same octets."""

import json
import sys

import oracle_run


def difference(meant, read, path="CellGroupConfig"):
    """Where two JSON values differ first."""
    if isinstance(meant, dict) and isinstance(read, dict):
        if list(meant) != list(read):
            return f"{path}: {list(meant)} meant, {list(read)} read"
        return next((d for name in meant if (d := difference(meant[name], read[name], f"{path}.{name}"))), None)
    if isinstance(meant, list) and isinstance(read, list) and len(meant) == len(read):
        return next((d for i, pair in enumerate(zip(meant, read)) if (d := difference(*pair, f"{path}[{i}]"))), None)
    # Python's 1 == True.
    return None if json.dumps(meant) == json.dumps(read) else f"{path}: {json.dumps(meant)} meant, {json.dumps(read)} read"


def main():
    folder, cell_groups, ranges, count = sys.argv[1:]
    oracle = oracle_run.Oracle(folder)
    lines = [line.split(" ", 2) for line in oracle_run.run([cell_groups, ranges, count, oracle_run.seed()])]
    failures = []
    for (seed, octets, meant), read in zip(lines, oracle.read(octets for _, octets, _ in lines)):
        if read != f"{octets} {meant}":
            again, _, value = read.partition(" ")
            where = read if again == "error" else \
                difference(json.loads(meant), json.loads(value)) or f"encoded again as {again}"
            failures.append(f"cell group {seed}: {where}\n  {octets}")
    oracle_run.conclude(failures, f"{len(lines)} cell groups")


main()
