"""check_tshark.py <oracle folder> messages FOLDER [EXAMPLE ...] | random COUNT: Wireshark shows of each CellGroupConfig the
values that its test meant; of an example's message those of <example>.json here or else, as of random ones, those that the
oracle reads."""

import json
import pathlib
import re
import sys

import oracle_run
import tshark_tree


def example_message(program):
    """What an example prints first: the number of octets, and the octets."""
    lines = oracle_run.run([program])
    count = re.fullmatch(r"(\d+) octets:", lines[0])
    octets = ""
    for line in lines[1:]:
        if not re.fullmatch(r" +[0-9a-f]{2}(?: [0-9a-f]{2})*", line):
            break
        octets += line.replace(" ", "")
    if not count or len(octets) != 2 * int(count[1]):
        sys.exit(f"{program} does not begin with its octets: {lines[0]}")
    return octets


def with_values(oracle, messages):
    """(name, hex, value) of (name, hex)."""
    values = oracle.show([("CellGroupConfig", octets) for _, octets in messages])
    for (name, octets), value in zip(messages, values):
        if not isinstance(value, dict):
            sys.exit(f"{name}: {octets}: {value}")
    return [(name, octets, value) for (name, octets), value in zip(messages, values)]


def examples(oracle, programs):
    found = []
    for name, octets, value in with_values(oracle, [(program, example_message(program)) for program in programs]):
        meant = oracle_run.HERE / (pathlib.Path(name).name + ".json")
        if meant.exists():
            value = json.loads(meant.read_text(encoding="ascii"))
        found.append((name, octets, value))
    return found


def main():
    oracle = oracle_run.Oracle(sys.argv[1])
    if sys.argv[2] == "messages":
        messages = [(message.test, message.hex, message.meant) for message in oracle_run.messages(sys.argv[3])
                    if message.type == "CellGroupConfig"]
        if not messages:
            sys.exit("no test has left a CellGroupConfig")
        messages += examples(oracle, sys.argv[4:])
    else:
        lines = oracle.sample("CellGroupConfig", sys.argv[3], oracle_run.seed())
        messages = with_values(oracle, [(f"value {number}", line.split()[1]) for number, line in enumerate(lines, 1)])

    shown = tshark_tree.dissect([octets for _, octets, _ in messages])
    if len(shown) != len(messages):
        sys.exit(f"tshark shows {len(shown)} frames of {len(messages)} messages")
    failures = []
    for (name, octets, meant), nodes in zip(messages, shown):
        found = tshark_tree.message_differences(meant, nodes)
        if found:
            failures.append("\n  ".join([f"{name}: {octets}"] + found))
    oracle_run.conclude(failures, f"{len(messages)} messages in tshark")


main()
