"""check_layout.py PROGRAM OBJECT DWARFDUMP: compares what PROGRAM (recordTypes) prints with its debug information.

Each structure that the cell group's record is made of, each of its fields with offset, size, entries and width in bits,
as the compiler laid them out.
"""

import re
import subprocess
import sys

ROOT = "RrcCellGroupCfg_t"


class Entry:
    def __init__(self, tag):
        self.tag = tag
        self.attributes = {}
        self.children = []

    def number(self, name):
        return int(self.attributes.get(name, "0"), 0)


def entries(text):
    """The debugging entries of an object by their offset."""
    found, stack = {}, []
    entry = None
    for line in text.splitlines():
        if match := re.match(r"(0x[0-9a-f]+): ( *)DW_TAG_(\w+)", line):
            depth = len(match.group(2)) // 2
            entry = Entry(match.group(3))
            found[match.group(1)] = entry
            del stack[depth:]
            if stack:
                stack[-1].children.append(entry)
            stack.append(entry)
        elif entry is not None and (match := re.match(r" *DW_AT_(\w+)\t\(\"?([^\s\")]*)", line)):
            entry.attributes[match.group(1)] = match.group(2)
    return found


class Layout:
    def __init__(self, found):
        self.found = found
        self.names = {}  # typedefs by their target
        self.lines = set()
        for entry in found.values():
            if entry.tag == "typedef" and "type" in entry.attributes:
                self.names.setdefault(entry.attributes["type"], entry.attributes["name"])

    def at(self, reference):
        return self.found[reference]

    def resolved(self, reference):
        """The type behind its typedefs, and the entries of an array."""
        entry, bound = self.at(reference), 0
        while entry.tag in ("typedef", "array_type"):
            if entry.tag == "array_type":
                bound = entry.children[0].number("count") or entry.children[0].number("upper_bound") + 1
            reference = entry.attributes["type"]
            entry = self.at(reference)
        return reference, entry, bound

    def add(self, reference, name):
        """A structure's fields, then those of what is in it."""
        entry = self.at(reference)
        if name in self.lines:
            return
        self.lines.add(name)
        for child in entry.children:
            if child.tag != "member":
                continue
            field = child.attributes["name"]
            inner, kind, bound = self.resolved(child.attributes["type"])
            bits = child.number("bit_size")
            offset = child.number("data_member_location")
            if "data_bit_offset" in child.attributes:
                offset = child.number("data_bit_offset") // 8
            octets = kind.number("byte_size")
            bits = 0 if bits == 8 * octets else bits  # a bit field of all bits: clang tells of none
            self.lines.add(f"{name} {field} {offset} {octets} {bound} {bits}")
            if kind.tag in ("structure_type", "union_type"):
                nested = any(kind is other for other in entry.children)
                own = self.names.get(inner, kind.attributes.get("name"))
                self.add(inner, f"{name}.{field}" if nested or own is None else own)


def main():
    program, compiled, dwarfdump = sys.argv[1:]
    described = set(subprocess.run([program], capture_output=True, text=True, check=True).stdout.splitlines())
    dump = subprocess.run([dwarfdump, "--debug-info", compiled], capture_output=True, text=True, check=True)
    layout = Layout(entries(dump.stdout))
    (root,) = {key for key, name in layout.names.items() if name == ROOT}
    layout.add(root, ROOT)
    for line in sorted(layout.lines - described):
        print(f"not described: {line}")
    for line in sorted(described - layout.lines):
        print(f"not in the program: {line}")
    fields = sum(" " in line for line in layout.lines)
    print(f"{len(layout.lines) - fields} structures and unions, {fields} fields")
    return 0 if described == layout.lines and fields > 1000 else 1


if __name__ == "__main__":
    sys.exit(main())
