"""Wireshark's reading of CellGroupConfig messages, and how it differs from the values that were meant."""

import os
import re
import subprocess
import tempfile
import xml.etree.ElementTree

DISSECTOR = "nr-rrc.cellgroupconfig_msg"
PROTOCOL = "NR Radio Resource Control (RRC) protocol"

# Our names, as the release that Wireshark knows has them.
RENAMED = {
    "dummy": "dummy1",
    "maxPayloadMinus1": "maxPayloadSize",
    "slotSpecificConfigurationsToreleaseList": "slotSpecificConfigurationsToReleaseList",
}


class Containing:
    """What was meant by an OCTET STRING: the octets, in hex, of a value of this type."""

    def __init__(self, octets, type_name, value):
        self.octets = octets
        self.type_name = type_name
        self.value = value


class Node:
    """One line of tshark's tree, 'name: value' or 'name', with the lines below it."""

    # Values of a few bits stand behind a picture of their octets.
    PICTURE = re.compile(r"^(?:[01.]{4} [01.]{4},? )+(?:= )?")

    def __init__(self, text):
        self.text = text
        self.name, _, self.value = self.PICTURE.sub("", text).partition(": ")
        self.below = []


def run(command, capture=b""):
    """What a program of Wireshark prints, as of a user who has set nothing."""
    with tempfile.TemporaryDirectory() as folder:
        return subprocess.run(command, input=capture, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True,
                              env={**os.environ, "HOME": folder, "XDG_CONFIG_HOME": folder}).stdout


def trees(capture):
    """What tshark shows of a capture's exported PDUs: per frame the nodes below the protocol's name."""
    shown = []
    path = []
    for line in run(["tshark", "-V", "-r", "-"], capture).decode("utf-8").splitlines():
        text = line.lstrip(" ")
        if not text:
            continue
        depth = (len(line) - len(text)) // 4
        node = Node(text)
        del path[depth:]
        if path:
            path[-1].below.append(node)
        elif text.startswith("Frame "):
            shown.append([])
        elif text not in ("EXPORTED_PDU", "Packet comments"):
            shown[-1].append(node)
        path.append(node)
    return shown


class Places:
    """Where tshark sees a bare CellGroupConfig's parts, counted from its first octet."""

    def __init__(self, message):
        """The protocol's element in tshark's PDML."""
        self.start = int(message.get("pos"))
        self.octets = {}  # of each member and element by its path: the octet that its first bit lies in
        self.bits = []    # of each extension and presence bit, in their order
        for whole in message.findall("field"):
            self.add_below(whole, "")

    PICTURED = re.compile(r"^([01.]{4}) ([01.]{4}) (?:Extension|Optional Field) Bit: ")

    def add_below(self, element, path):
        for field in element.findall("field"):
            octet = int(field.get("pos")) - self.start
            if field.get("name").startswith("per."):
                picture = self.PICTURED.match(field.get("showname"))
                if picture:
                    rest = (picture[1] + picture[2]).lstrip(".")
                    self.bits.append(octet * 8 + 8 - len(rest))
            elif field.get("name") == "":  # "Item 0", and in it the element by the name of its type
                here = f"{path}[{field.get('show').split()[1]}]"
                self.octets[here] = octet
                for whole in field.findall("field"):
                    self.add_below(whole, here)
            else:
                node = Node(field.get("showname"))
                here = f"{path}.{plain(node.name)}"
                if not BITS.fullmatch(node.value):  # those of a bit string are not the message's, but a copy's
                    self.octets.setdefault(here, octet)  # a later release's member of the same name comes behind
                self.add_below(field, here)


def places(capture):
    """The Places of each packet of a capture of bare cell groups."""
    text = run(["tshark", "-r", "-", "-T", "pdml"], capture)
    return [Places(packet.find("proto[@name='nr-rrc']"))
            for packet in xml.etree.ElementTree.fromstring(text).iter("packet")]


def fields(capture, names):
    """Per frame the list of these fields' values."""
    options = [word for name in names for word in ("-e", name)]
    text = run(["tshark", "-r", "-", "-T", "fields"] + options, capture).decode("utf-8")
    return [line.split("\t") for line in text.splitlines()]


def dissect(messages):
    """The trees of CellGroupConfig messages given as hex."""
    with tempfile.TemporaryDirectory() as folder:
        dump = os.path.join(folder, "dump")
        capture = os.path.join(folder, "capture")
        with open(dump, "w", encoding="ascii") as file:
            for message in messages:
                file.write("000000 " + bytes.fromhex(message).hex(" ") + "\n")
        run(["text2pcap", "-q", "-P", DISSECTOR, dump, capture])
        with open(capture, "rb") as file:
            return trees(file.read())


def plain(name):
    """A name without the release that brought it: Wireshark leaves it off where the standard does not."""
    return re.sub(r"-(?:v\d{4}|r\d{1,2})$", "", name)


def name_agrees(meant, shown):
    return plain(shown) in (plain(meant), RENAMED.get(meant))


def is_spare(meant, shown):
    """Whether a spare value of ours is a later release's value of the same number."""
    spare = re.fullmatch(r"spare(\d*)", meant)
    number = re.fullmatch(r"\S+ \((\d+)\)", shown)
    if not spare or not number:
        return False
    count = int(number[1]) + int(spare[1] or 1)  # spares count down to the last value of a power of two
    return count & (count - 1) == 0


# '5', '5 dB', or a description with the value behind it: '0.15625 ms (5)'
INTEGER = re.compile(r"(-?\d+)(?: [A-Za-z]+)?|.*\((-?\d+)\)")
BITS = re.compile(r"([0-9a-f]+) \[bit length (\d+)[],].*")
NAMED = re.compile(r"(\S+) \(\d+\)")


def leaf_agrees(meant, shown):
    if meant is None:
        return shown == "NULL"
    if isinstance(meant, bool):
        return shown == str(meant)
    if isinstance(meant, int):
        found = INTEGER.fullmatch(shown)
        return found is not None and str(meant) in found.groups()
    if not meant.strip("01"):
        found = BITS.fullmatch(shown)
        octets = (len(meant) + 7) // 8
        return found is not None and int(found[2]) == len(meant) and \
            found[1] == int(meant.ljust(octets * 8, "0"), 2).to_bytes(octets, "big").hex()
    found = NAMED.fullmatch(shown)
    return found is not None and (found[1] == meant or is_spare(meant, shown))


def differences(meant, node, path):
    """Lines that say where tshark's tree is not the value that was meant, members in the same order."""
    here = f"{path}.{node.name}" if path else node.name
    if isinstance(meant, Containing):
        # Of many octets only the first are shown.
        if not node.value or not meant.octets.startswith(node.value.rstrip("…")) or \
                [item.text for item in node.below] != [meant.type_name]:
            return [f"{here}: {meant.type_name} in {meant.octets} meant, shown '{node.text}' with "
                    f"{[item.text for item in node.below]}"]
        return differences(meant.value, node.below[0], here)
    if isinstance(meant, list):
        items = f"{len(meant)} item" + ("" if len(meant) == 1 else "s")
        names = [f"Item {index}" for index in range(len(meant))]
        if node.value != items or [item.name for item in node.below] != names or \
                any(len(item.below) != 1 for item in node.below):
            return [f"{here}: {items} meant, shown '{node.text}' with {[item.text for item in node.below]}"]
        return [line for index, item in enumerate(node.below)
                for line in differences(meant[index], item.below[0], f"{here}[{index}]")]
    if isinstance(meant, dict):
        if len(meant) != len(node.below) or \
                not all(name_agrees(name, member.name) for name, member in zip(meant, node.below)):
            return [f"{here}: {list(meant)} meant, shown {[member.text for member in node.below]}"]
        # A SEQUENCE shows its name alone, a CHOICE the alternative beside it.
        alternative = NAMED.fullmatch(node.value)
        if node.value and not (len(meant) == 1 and alternative and name_agrees(next(iter(meant)), alternative[1])):
            return [f"{here}: {list(meant)} meant, shown '{node.text}'"]
        return [line for name, member in zip(meant, node.below) for line in differences(meant[name], member, here)]
    if node.below or not leaf_agrees(meant, node.value):
        return [f"{here}: {meant} meant, shown '{node.text}'" + (" with more below it" if node.below else "")]
    return []


def message_differences(meant, shown, type_name="CellGroupConfig"):
    """The same for all that tshark shows of one message."""
    if [node.text for node in shown] != [PROTOCOL] or [node.text for node in shown[0].below] != [type_name]:
        return [f"shown {[node.text for node in shown]}, not one {type_name}"]
    return differences(meant, shown[0].below[0], "")
