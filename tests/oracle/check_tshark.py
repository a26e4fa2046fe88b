"""check_tshark.py <oracle folder> messages FOLDER [EXAMPLE ...] | random COUNT | captures WRITER COUNT [EXAMPLE ...] |
positions WRITER TRACER COUNT [EXAMPLE ...]:
Wireshark shows of each CellGroupConfig the values that its test meant; of an example's message those of <example>.json here
or else, as of random ones, those that the oracle reads. WRITER makes captures of the messages, bare and in RRC messages.
What TRACER prints lies where Wireshark sees it."""

import json
import pathlib
import re
import subprocess
import sys

import oracle_run
import tshark_tree


def example_messages(program):
    """The messages that an example prints: the number of octets, and the octets."""
    printed = "".join(f"{line}\n" for line in oracle_run.run([program]))
    found = re.findall(r"^(\d+) octets:\n((?: +[0-9a-f]{2}(?: [0-9a-f]{2})*\n)+)", printed, re.M)
    messages = ["".join(octets.split()) for _, octets in found]
    if not found or any(len(octets) != 2 * int(count) for octets, (count, _) in zip(messages, found)):
        sys.exit(f"{program} does not print its octets: {found}")
    return messages


def with_values(oracle, messages):
    """(name, hex, value) of (name, hex)."""
    values = oracle.show([("CellGroupConfig", octets) for _, octets in messages])
    for (name, octets), value in zip(messages, values):
        if not isinstance(value, dict):
            sys.exit(f"{name}: {octets}: {value}")
    return [(name, octets, value) for (name, octets), value in zip(messages, values)]


def examples(oracle, programs):
    found = []
    messages = [(program, octets) for program in programs for octets in example_messages(program)]
    for name, octets, value in with_values(oracle, messages):
        meant = oracle_run.HERE / (pathlib.Path(name).name + ".json")
        if meant.exists():
            value = json.loads(meant.read_text(encoding="ascii"))
        found.append((name, octets, value))
    return found


def random(oracle, count):
    lines = oracle.sample("CellGroupConfig", count, oracle_run.seed())
    return with_values(oracle, [(f"value {number}", line.split()[1]) for number, line in enumerate(lines, 1)])


def in_reconfiguration(octets, value):
    cell_group = tshark_tree.Containing(octets, "CellGroupConfig", value)
    members = {"secondaryCellGroup": cell_group} if value["cellGroupId"] else \
        {"nonCriticalExtension": {"masterCellGroup": cell_group}}
    return {"message": {"c1": {"rrcReconfiguration": {
        "rrc-TransactionIdentifier": 0, "criticalExtensions": {"rrcReconfiguration": members}}}}}


def in_setup(octets, value):
    return {"message": {"c1": {"rrcSetup": {"rrc-TransactionIdentifier": 0, "criticalExtensions": {"rrcSetup": {
        "radioBearerConfig": {"srb-ToAddModList": [{"srb-Identity": 1}]},
        "masterCellGroup": tshark_tree.Containing(octets, "CellGroupConfig", value)}}}}}}


# What the writer calls it, the type at its top, and what is meant by a cell group's octets and value in it.
NESTINGS = (("bare", "CellGroupConfig", lambda octets, value: value),
            ("rrc-reconfiguration", "DL-DCCH-Message", in_reconfiguration),
            ("rrc-setup", "DL-CCCH-Message", in_setup))


def check_captures(writer, messages):
    """The failures of a writer: all that it makes of each message is shown as meant, with all of its octets."""
    packets = [(nesting, message) for message in messages for nesting in NESTINGS]
    lines = [f"{name} {octets} {name} {number}\n"
             for number, ((name, _, _), (_, octets, _)) in enumerate(packets, 1)]
    capture = subprocess.run([writer, "write"], input="".join(lines).encode("ascii"), stdout=subprocess.PIPE,
                             check=True).stdout
    shown = tshark_tree.trees(capture)
    fields = tshark_tree.fields(capture, ("frame.comment", "nr-rrc.masterCellGroup", "nr-rrc.secondaryCellGroup"))
    if len(shown) != len(packets) or len(fields) != len(packets):
        sys.exit(f"tshark shows {len(shown)} frames and fields of {len(fields)}, of {len(packets)} packets")

    failures = []
    for number, (((name, top, meaning), (message, octets, value)), nodes, (comment, master, secondary)) \
            in enumerate(zip(packets, shown, fields), 1):
        found = tshark_tree.message_differences(meaning(octets, value), nodes, top)
        if comment != f"{name} {number}":
            found.append(f"comment '{comment}'")
        if master + secondary != ("" if name == "bare" else octets):
            found.append(f"octets shown: {master} {secondary}")
        if found:
            failures.append("\n  ".join([f"{message} {name}: {octets}"] + found))
    return failures


ENOUGH_PLACES = 20


def traced(tracer, messages):
    """Per message its fields as (bit offset, width, kind, path)."""
    found = [[]]
    for line in oracle_run.run([tracer], [octets for _, octets, _ in messages]):
        if line == "end":
            found.append([])
        elif line.startswith("error "):
            sys.exit(f"{messages[len(found) - 1][0]}: {line}")
        else:
            offset, width, kind, *path = line.split(" ")
            steps = [tshark_tree.plain(step) for step in "".join(path).replace("[", ".[").split(".")]
            found[-1].append((int(offset), int(width), kind, ".".join(steps).replace(".[", "[")))
    return found[:-1]


def check_positions(writer, tracer, messages):
    """The failures of a tracer: what it reports at an octet's first bit, and each extension and presence bit, lies where
    Wireshark sees it."""
    lines = [f"bare {octets}\n" for _, octets, _ in messages]
    capture = subprocess.run([writer, "write"], input="".join(lines).encode("ascii"), stdout=subprocess.PIPE,
                             check=True).stdout
    shown = tshark_tree.places(capture)
    trace = traced(tracer, messages)
    if not len(shown) == len(trace) == len(messages):
        sys.exit(f"tshark shows {len(shown)} and {tracer} {len(trace)} of {len(messages)} messages")
    failures = []
    all_places = all_bits = 0
    for (name, octets, _), places, fields in zip(messages, shown, trace):
        first = {}
        for offset, _, kind, path in fields:
            # A list is shown behind its count, an addition behind its length.
            if kind in ("extension", "presence", "choice", "value"):
                first.setdefault(path, offset)
        compared = {path: octet for path, octet in places.octets.items() if first.get(path, 1) % 8 == 0}
        found = [f"{path}: octet {first[path] // 8} traced, {octet} shown" for path, octet in compared.items()
                 if octet != first[path] // 8]
        bits = [offset + bit for offset, width, kind, _ in fields if kind in ("extension", "presence")
                for bit in range(width)]
        if bits != places.bits:
            found.append(f"extension and presence bits {bits} traced, {places.bits} shown")
        all_places += len(compared)
        all_bits += len(bits)
        if found:
            failures.append("\n  ".join([f"{name}: {octets}"] + found))
    print(f"{all_places} places that begin with an octet, {all_bits} extension and presence bits")
    if all_places < ENOUGH_PLACES:
        failures.append("too few places")
    return failures


def main():
    oracle = oracle_run.Oracle(sys.argv[1])
    if sys.argv[2] == "captures":
        messages = examples(oracle, sys.argv[5:]) + random(oracle, sys.argv[4])
        oracle_run.conclude(check_captures(sys.argv[3], messages), f"{len(messages)} cell groups in captures")
    if sys.argv[2] == "positions":
        messages = examples(oracle, sys.argv[6:]) + random(oracle, sys.argv[5])
        oracle_run.conclude(check_positions(sys.argv[3], sys.argv[4], messages), f"positions in {len(messages)} messages")
    if sys.argv[2] == "messages":
        messages = [(message.test, message.hex, message.meant) for message in oracle_run.messages(sys.argv[3])
                    if message.type == "CellGroupConfig"]
        if not messages:
            sys.exit("no test has left a CellGroupConfig")
        messages += examples(oracle, sys.argv[4:])
    else:
        messages = random(oracle, sys.argv[3])

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
