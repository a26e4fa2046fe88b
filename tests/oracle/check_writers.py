"""check_writers.py <oracle folder> <reencode> <writeTexts> CELL-GROUPS PER-TYPE: random values of every type, encoded by
the oracle. Our JER says what the oracle decodes, member by member in the standard's order, and what asn1ct's own JER
back end writes; our value notation says it, too; JER and flat lines are read back to the same octets."""

import json
import re
import sys

import oracle_run

BITS = re.compile("[01]+")  # no value of an enumeration begins with a digit
TOKENS = re.compile(r"\s*('[01]*'B|'[0-9A-F]*'H|::=|[{}:,]|-?\d+|[A-Za-z][A-Za-z0-9-]*)")


def jer(value):
    """A value as `show` gives it, as JER has it."""
    if isinstance(value, dict):
        return {name: jer(member) for name, member in value.items()}
    if isinstance(value, list):
        return [jer(element) for element in value]
    if isinstance(value, str) and BITS.fullmatch(value):
        digits = (len(value) + 7) // 8 * 2
        return f"{int(value.ljust(digits * 4, '0'), 2):0{digits}X}"
    return value


def tokens(text):
    """The tokens of a value notation without comments, or none where there is another character."""
    found = []
    at = 0
    while at < len(text):
        token = TOKENS.match(text, at)
        if token is None:
            return []
        found.append(token.group(1))
        at = token.end()
    return found


def taken(words, at, wanted):
    """The place behind these tokens, or None where others stand."""
    return at + len(wanted) if words[at:at + len(wanted)] == wanted else None


def listed(words, at, items):
    """The place behind `{ item, item }`, each item a function of a place, or None."""
    at = taken(words, at, ["{"])
    for number, item in enumerate(items):
        if at is not None and number != 0:
            at = taken(words, at, [","])
        if at is not None:
            at = item(at)
    return None if at is None else taken(words, at, ["}"])


def noted(words, at, value):
    """The place behind the notation of a value as `show` gives it, or None where something else stands. What of an
    object is a choice is told by the notation alone."""
    if isinstance(value, dict):
        name, member = next(iter(value.items()), ("", None))
        if len(value) == 1 and taken(words, at, [name, ":"]) is not None:
            return noted(words, at + 2, member)
        return listed(words, at, [lambda place, name=name, member=member:
                                  noted(words, place + 1, member) if words[place] == name else None
                                  for name, member in value.items()])
    if isinstance(value, list):
        return listed(words, at, [lambda place, element=element: noted(words, place, element) for element in value])
    if isinstance(value, str) and BITS.fullmatch(value):
        hexadecimal = len(value) % 4 == 0
        return taken(words, at, [f"'{int(value, 2):0{len(value) // 4}X}'H" if hexadecimal else f"'{value}'B"])
    return taken(words, at, [{True: "TRUE", False: "FALSE", None: "NULL"}[value]
                             if value is None or isinstance(value, bool) else str(value)])


def same(ours, other):
    """Whether asn1ct's JER says the same; it leaves the name true of an enumeration without quotes."""
    if isinstance(ours, dict) and isinstance(other, dict):
        return ours.keys() == other.keys() and all(same(ours[name], other[name]) for name in ours)
    if isinstance(ours, list) and isinstance(other, list):
        return len(ours) == len(other) and all(map(same, ours, other))
    return type(ours) is type(other) and ours == other or ours == "true" and other is True


def strict(text):
    """Objects as lists of pairs, so that the order of members and doubled ones count."""
    return json.loads(text, object_pairs_hook=list)


def main():
    folder, reencode, write_texts, cell_groups, per_type = sys.argv[1:]
    oracle = oracle_run.Oracle(folder)
    seed = oracle_run.seed()
    names = sorted(oracle_run.run([reencode, "types"]))
    lines = oracle.samples(names, per_type, seed) + oracle.sample("CellGroupConfig", cell_groups, seed)
    if len(lines) != len(names) * int(per_type) + int(cell_groups):
        sys.exit(f"{len(lines)} values of {len(names)} types")
    pairs = [line.split() for line in lines]

    failures = []
    compared = 0
    for pair, meant, other, ours in zip(pairs, oracle.show(pairs), oracle.jer(pairs),
                                        oracle_run.answers([write_texts], lines)):
        if ours.startswith("error "):
            failures.append(f"{' '.join(pair)}\n  {ours}")
            continue
        text, notation = ours.split("\t")
        if strict(text) != strict(json.dumps(jer(meant))):
            failures.append(f"{' '.join(pair)}\n  meant: {json.dumps(jer(meant))}\n  JER:   {text}")
        if not oracle_run.no_jer(other):
            compared += 1
            if not same(json.loads(text), json.loads(other)):
                failures.append(f"{' '.join(pair)}\n  asn1ct: {other}\n  JER:    {text}")
        words = tokens(notation)
        start = taken(words, 0, ["value", pair[0], "::="])
        if start is None or noted(words, start, meant) != len(words):
            failures.append(f"{' '.join(pair)}\n  meant:    {json.dumps(meant)}\n  notation: {notation}")
    if compared < 0.9 * len(pairs):
        sys.exit(f"asn1ct writes JER of {compared} values of {len(pairs)} only")
    oracle_run.conclude(failures, f"{len(pairs)} random values of {len(names)} types, {compared} compared with asn1ct's")


main()
