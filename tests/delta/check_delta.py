"""check_delta.py <oracle folder> <file> [<program> <argument>...]: the deltas of a file, decoded by Erlang and applied
by apply_delta.py, lead where they should. The program, given its arguments and the file, writes the file.

A line of the file is a JSON object with the octets, in hex, of messages of one CellGroupConfig:

    {"prev": hex or null, "next": hex, "delta": hex or null, "outcome": "sent"|"nothing"|"refused"|"more"}

prev is what the UE has (null: nothing), next what it shall have. What is compared is

    sent      what the UE holds after the delta, with the state of next
    nothing   the state of prev with that of next; there is no delta
    refused   nothing; there is no delta
    more      what the UE holds after the delta, with the state of prev of the following line, which carries on

One-shots that next does not carry are those of prev."""

import collections
import json
import pathlib
import sys

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "oracle"))

import apply_delta
import need_codes
import oracle_run

SCHEMA = HERE.parents[1] / "Asn" / "Schema" / "NR-RRC-Definitions.asn1"
NOTHING = {}
KEYS = {"prev", "next", "delta", "outcome"}
OUTCOMES = ("sent", "nothing", "refused", "more")


class Pair:
    """What a line says, with values for its octets."""

    def __init__(self, line, values):
        self.outcome = line["outcome"]
        self.prev, self.next, self.delta = (None if line[name] is None else values[line[name]]
                                            for name in ("prev", "next", "delta"))


def fault(schema, pair, following=None):
    """(what is wrong or None, how many notices) of a pair and the one behind it."""
    if (pair.delta is None) != (pair.outcome in ("nothing", "refused")):
        return f"{pair.outcome} {'without' if pair.delta is None else 'with'} a delta", 0
    if pair.outcome == "refused":
        return None, 0
    held = NOTHING if pair.prev is None else apply_delta.state(schema, pair.prev).state
    if pair.outcome == "more":
        if following is None or following.prev is None or following.next != pair.next:
            return "no line behind it carries on", 0
        wanted = apply_delta.state(schema, following.prev).state
    else:
        wanted = apply_delta.keep_one_shots(schema, held, apply_delta.state(schema, pair.next).state)
    if pair.outcome == "nothing":
        return oracle_run.difference(wanted, held), 0
    reached = apply_delta.apply(schema, pair.prev, pair.delta)
    if reached.refused:
        return "; ".join(reached.refused), len(reached.notices)
    return oracle_run.difference(wanted, reached.state), len(reached.notices)


def read(file):
    """The lines of a file, each with its number."""
    with open(file, encoding="ascii") as text:
        lines = [json.loads(line) for line in text]
    for number, line in enumerate(lines, 1):
        if set(line) != KEYS or line["outcome"] not in OUTCOMES:
            sys.exit(f"{file}:{number}: not understood")
    if not any(line["outcome"] == "sent" for line in lines):
        sys.exit(f"{file}: no delta is sent in {len(lines)} lines")
    return lines


def main():
    folder, file, *program = sys.argv[1:]
    if program:
        oracle_run.run([*program, file])
    lines = read(file)
    octets = sorted({line[name] for line in lines for name in ("prev", "next", "delta") if line[name] is not None})
    values = dict(zip(octets, oracle_run.Oracle(folder).show([("CellGroupConfig", each) for each in octets])))
    for each, value in values.items():
        if isinstance(value, str):
            sys.exit(f"{each}: {value}")

    schema = need_codes.Schema.load(SCHEMA)
    pairs = [Pair(line, values) for line in lines]
    failures = []
    notices = 0
    for number, (pair, following) in enumerate(zip(pairs, [*pairs[1:], None])):
        wrong, noticed = fault(schema, pair, following)
        notices += noticed
        if wrong:
            failures.append(f"{file}:{number + 1}: {pair.outcome}: {wrong}\n  {json.dumps(lines[number])}")
    counts = collections.Counter(pair.outcome for pair in pairs)
    counted = ", ".join(f"{counts[name]} {name}" for name in OUTCOMES)
    oracle_run.conclude(failures, f"{len(pairs)} pairs ({counted}; {notices} notices)")


if __name__ == "__main__":
    main()
