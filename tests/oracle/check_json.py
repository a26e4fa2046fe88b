"""check_json.py <oracle folder> <reencode> <readJson> CELL-GROUPS PER-TYPE: random values of every type, encoded by
the oracle, come back octet for octet from JER that others have written: asn1ct's JER back end, and a routine of ours
over the decoded values that shuffles the members, scatters blanks and escapes letters."""

import json
import random
import re
import sys

import oracle_run

BITS = re.compile("[01]+")  # no value of an enumeration begins with a digit
BLANKS = ("", "", " ", "\t", "\r", "  ")


def text(word, draw):
    letters = [f"\\u{ord(letter):04{draw.choice('xX')}}" if draw.random() < 0.1 else letter for letter in word]
    return '"' + "".join(letters) + '"'


def jer(value, draw):
    """A value as `show` gives it, as JER."""
    def blank():
        return draw.choice(BLANKS)

    if isinstance(value, dict):
        members = list(value.items())
        draw.shuffle(members)
        inner = ",".join(f"{blank()}{text(name, draw)}{blank()}:{blank()}{jer(member, draw)}{blank()}"
                         for name, member in members)
        return "{" + (inner or blank()) + "}"
    if isinstance(value, list):
        return "[" + ",".join(blank() + jer(element, draw) + blank() for element in value) + "]"
    if isinstance(value, str) and BITS.fullmatch(value):
        digits = (len(value) + 7) // 8 * 2
        return text(f"{int(value.ljust(digits * 4, '0'), 2):0{digits}{draw.choice('xX')}}", draw)
    return text(value, draw) if isinstance(value, str) else json.dumps(value)


def main():
    folder, reencode, read_json, cell_groups, per_type = sys.argv[1:]
    oracle = oracle_run.Oracle(folder)
    seed = oracle_run.seed()
    draw = random.Random(seed)
    names = sorted(oracle_run.run([reencode, "types"]))
    lines = oracle.samples(names, per_type, seed) + oracle.sample("CellGroupConfig", cell_groups, seed)
    if len(lines) != len(names) * int(per_type) + int(cell_groups):
        sys.exit(f"{len(lines)} values of {len(names)} types")
    pairs = [line.split() for line in lines]

    failures = []
    written = 0
    for name, texts in (("asn1ct", oracle.jer(pairs)),
                        ("shuffled", [jer(value, draw) for value in oracle.show(pairs)])):
        asked = [(pair, line) for pair, line in zip(pairs, texts) if not oracle_run.no_jer(line)]
        written += len(asked)
        for (pair, line), again in zip(asked, oracle_run.answers([read_json], [f"{pair[0]} {line}"
                                                                               for pair, line in asked])):
            if again != "ok " + pair[1]:
                failures.append(f"{name}: {' '.join(pair)}\n  {line}\n  {again}")
    if written < 1.9 * len(pairs):
        sys.exit(f"asn1ct writes JER of {written - len(pairs)} values of {len(pairs)} only")
    oracle_run.conclude(failures, f"{written} texts of {len(pairs)} random values of {len(names)} types")


main()
