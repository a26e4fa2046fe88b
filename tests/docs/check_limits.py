"""check_limits.py <program> <project> [--update]: the tables of docs/limits.md are what the schema and the comments of the records
say together, or are written from them; the rules that it names are the program's."""

import collections
import difflib
import json
import pathlib
import re
import subprocess
import sys

PROJECT = pathlib.Path(sys.argv[2]).resolve()
sys.path.append(str(PROJECT / "scripts"))
import records  # noqa: E402

DOCUMENT = PROJECT / "docs/limits.md"


def sent_by(made, before=()):
    """The ways from the whole element on into what a record, which stands at the way `before`, puts on the wire."""
    for field in made.fields:
        if field.way is None or "NotSent" in field.flags:
            continue
        way = before + tuple(field.way.steps)
        if field.record is not None:
            yield from sent_by(field.record, way)
        if field.kind != "Alternative":
            yield way
    for choice in made.choices:
        yield from (before + tuple(choice.way.steps) + (option.sent_as,) for option in choice.options)
    for bit in made.bits:
        if bit.kind == "Sends":
            yield before + tuple(bit.way.steps)


class Members:
    """Every member and alternative of the element: where it is sent, and where it is not."""

    def __init__(self, element, sent):
        self.begun = {way[:length] for way in sent for length in range(len(way) + 1)}
        self.places = collections.defaultdict(lambda: {True: [], False: []})  # (type, path in it): full paths
        self.walk(element, (), element.name, (element.name, ""))

    def walk(self, of, way, path, within):
        if "_" not in of.name and of.kind in ("Sequence", "Choice") and not of.is_setup:
            within = (of.name, "")  # a type with a name of its own
        if of.kind in ("Array", "List"):
            self.walk(of.members[0][0], way + (records.ENTRY,), path + "[]", (within[0], within[1] + "[]"))
        elif of.is_setup:
            self.walk(of.members[1][0], way + (1,), path, within)
        elif of.kind in ("Sequence", "Choice"):
            for index, (inner, _) in enumerate(of.members):
                name = of.names[index]
                into = (within[0], f"{within[1]}.{name}".lstrip("."))
                is_sent = way + (index,) in self.begun
                self.places[into][is_sent].append(f"{path}.{name}")
                if is_sent:
                    self.walk(inner, way + (index,), f"{path}.{name}", into)

    def lacking(self):
        """(type or path, member), what is sent in some places alone with as much of the path as tells them apart."""
        for (of, member), places in self.places.items():
            if not places[False]:
                continue
            if not places[True]:
                yield of, member
                continue
            parts = [path.split(".") for path in places[False]]
            same = 0
            while len({tuple(path[-same - 1 :]) for path in parts}) == 1:
                same += 1
            tail = ".".join(parts[0][-same:])
            assert not any(path.endswith(tail) for path in places[True]), tail
            yield tuple(tail.rsplit(".", 1))


def lacking_table(order):
    whole = order[-1]
    rows = collections.defaultdict(list)
    for of, member in Members(whole.element, list(sent_by(whole))).lacking():
        rows[of].append(f"`{member}`")
    lines = [f"| `{of}` | {', '.join(members)} |" for of, members in sorted(rows.items(), key=lambda row: row[0].lower())]
    return ["| In | Members that no record says |", "|---|---|", *lines]


def narrower_table(order):
    lines = []
    for made in order:
        for field in made.fields:
            if field.way is None or "NotSent" in field.flags:
                continue
            of, within = field.element, field.way.list
            here = there = None
            if field.field.bound and within is not None and within.upper > field.field.bound:
                here, there = f"{field.field.bound} entries", f"{within.upper}"
            elif field.kind == "Number" and (field.lower, field.upper) != (of.lower, of.upper):
                here, there = f"{field.lower}..{field.upper}", f"{of.lower}..{of.upper}"
            elif field.kind == "Bits" and field.bits < of.upper:
                here, there = f"the last {field.bits} bits", f"{of.upper}"
            if here:
                member = field.path.replace("twoSLots", "twoSlots")
                lines.append(f"| `{made.path}.{member}` | `{made.struct.name}.{field.field.name}` | {here} | {there} |")
    return ["| Member | Field | In a record | TS 38.331 |", "|---|---|---|---|", *sorted(lines, key=str.lower)]


def written(text, name, lines):
    begin, end = f"<!-- {name}: written by tests/docs/check_limits.py -->\n", f"<!-- end of {name} -->"
    before, _, rest = text.partition(begin)
    _, _, after = rest.partition(end)
    assert after, name
    return before + begin + "\n" + "\n".join(lines) + "\n\n" + end + after


def main():
    order = records.read(str(PROJECT)).order
    text = DOCUMENT.read_text(encoding="utf-8")
    found = written(text, "lacking", lacking_table(order))
    found = written(found, "narrower", narrower_table(order))
    if "--update" in sys.argv:
        DOCUMENT.write_text(found, encoding="utf-8")
        return 0
    wrong = list(difflib.unified_diff(text.splitlines(), found.splitlines(), "docs/limits.md", "as it is", lineterm=""))
    rules = json.loads(subprocess.run([sys.argv[1], "rules", "--json"], capture_output=True, check=True, text=True).stdout)
    known = {rule["id"] for rule in rules["recordRules"]}
    named = set(re.findall(r"`(record-[\w-]+)`", text))
    wrong += [f"docs/limits.md: there is no rule {rule}" for rule in sorted(named - known)]
    print("\n".join(wrong))
    print(f"{len(named)} rules named, {len(wrong)} lines wrong")
    return 1 if wrong or not named else 0


sys.exit(main())
