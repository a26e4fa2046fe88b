"""check_reference.py <program> <project> [--update]: docs/reference, a page for each header of the records, is what the headers
and the rules of the record say, or is written from them. The rules come from the program."""

import collections
import difflib
import json
import pathlib
import re
import subprocess
import sys

FOLDER = "docs/reference"
MADE = "<!-- Written by tests/docs/check_reference.py from the headers and the rules of the record. Do not edit. -->\n"


def anchor(heading):
    """As it is made of a heading: no punctuation, blanks become dashes."""
    return re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-")


def page(file):
    return pathlib.PurePath(file).stem + ".md"


def cell(text):
    return text.replace("|", "\\|")


class Reference:
    def __init__(self, descriptions, rules):
        self.descriptions = descriptions
        times = collections.Counter(made.struct.name for made in descriptions)
        self.twice = {name for name, number in times.items() if number > 1}
        self.rules = {}
        for rule in rules:
            for place in rule["places"]:
                self.rules.setdefault(place, []).append(rule)
        self.used = set()

    def title(self, made):
        return f"{made.struct.name} as {made.path}" if made.struct.name in self.twice else made.struct.name

    def link(self, made, file):
        where = "" if made.struct.file == file else page(made.struct.file)
        return f"[`{made.struct.name}`]({where}#{anchor(self.title(made))})"

    def behaviour(self, place):
        """What docs/behaviour.md says of a place."""
        for rule in self.rules.get(place, []):
            self.used.add(place)
            words = f"**{rule['field']}**: {rule['goesOut']}; {rule['instead']}"
            words = re.sub(r"\]\((?=[\w-]+\.md)", "](../", words)  # links of docs/behaviour.md, seen from here
            yield f"{words} ([{rule['id']}](../behaviour.md#what-one-would-not-expect))"

    @staticmethod
    def sentences(*texts):
        def begun(text):
            return text[:1].upper() + text[1:] if re.match(r"[a-z]+( |$)", text) else text

        return cell(". ".join(begun(text).rstrip(".") for text in texts if text))

    def values(self, made, described):
        field = described.field
        unit = f", in {described.unit}" if described.unit else ""
        if described.kind == "Enumerated":
            names = described.element.names[:described.upper + 1]
            return ", ".join(f"{number} {name}" for number, name in enumerate(names)) + unit
        if described.kind == "Alternative":
            choice = next(choice for choice in made.choices if made.fields[choice.selector] is described)
            names = choice.way.type.names
            return ", ".join(f"{option.number} {names[option.alternative]}" for option in choice.options)
        if described.kind == "Count":
            return f"{described.lower}..{described.upper} entries of `{described.path}`"
        if described.kind == "Number":
            return f"{described.lower}..{described.upper}{unit}"
        return {"Boolean": "0 false, 1 true", "Bits": f"{described.bits} bits", "Octets": f"{described.bits} bits in octets",
                "Mask": "bits, below", "Value": f"of the alternative{unit}", "Unread": "not read"}.get(
                    described.kind, self.link(described.record, made.struct.file) if described.record else "")

    @staticmethod
    def guard(made, described):
        """What has to be so that the field is read."""
        if described.guard >= 0:
            return f"`{made.struct.bits[described.guard].name}`"
        if described.choice >= 0 and not made.struct.is_union:
            choice = made.choices[described.choice]
            selector = made.fields[choice.selector].field.name
            if described.alternative >= 0:
                return f"`{selector}` chooses {choice.way.type.names[described.alternative]}"
            return f"`{selector}` chooses it"
        return ""

    def field(self, made, described):
        field = described.field
        name = field.name + (f"[{field.bound}]" if field.bound else f":{field.bit_width}" if field.bit_width else "")
        kind = "" if field.is_record else f" `{field.type_name}`"
        feeds = described.path if described.way is not None and described.kind != "Count" else ""
        behaves = self.behaviour(f"{made.struct.name}.{field.name}")
        flags = {"AlwaysSent": "always sent", "NotSent": "not sent", "ElseAbsent": "absent with any other value",
                 "TwosComplement": "as two's complement"}
        said = [flags[flag] for flag in described.flags if flag in flags]
        return (f"| `{name}`{kind} | {cell(self.values(made, described))} | {self.guard(made, described)} | "
                f"{'the element' if feeds == 'itself' else feeds} | {self.sentences(*said, described.note, *behaves)} |\n")

    def bit(self, made, index):
        bit, said = made.struct.bits[index], made.bits[index]
        given = [f"`{described.field.name}`" for described in made.fields if described.guard == index]
        chosen = [(choice, option) for choice in made.choices for option in choice.options if option.bit == index]
        if chosen:
            does = "; ".join(f"chooses {choice.way.type.names[option.alternative]} of {choice.path}"
                             for choice, option in chosen)
        else:
            does = {"Guards": f"{', '.join(given)} given", "Sends": f"{said.path} is sent",
                    "NotSent": f"{said.path} is not sent", "Unread": "not read"}[said.kind]
        needs = f", with `{made.struct.bits[said.needs].name}`" if said.needs >= 0 else ""
        otherwise = f", else {said.otherwise}" if said.otherwise else ""
        return (f"| `{bit.name}` | {bit.number} | {cell(does)}{otherwise}{needs} | "
                f"{self.sentences(bit.note, *self.behaviour(bit.name))} |\n")

    def record(self, made):
        union = "; of its members the alternative that is chosen counts" if made.struct.is_union else ""
        text = (f"## {self.title(made)}\n\nHolds {made.path}, in {made.struct.size} octets{union}."
                f"{' ' + self.sentences(made.note) + '.' if made.note else ''}\n\n")
        whole = [f"- {words}.\n" for words in self.behaviour(made.struct.name)]
        text += "".join(whole) + ("\n" if whole else "")
        text += "| Field | Values | Read with | Feeds | Notes |\n|---|---|---|---|---|\n"
        text += "".join(self.field(made, described) for described in made.fields)
        bits = {} if made.struct.is_union else {bit.field: [] for bit in made.struct.bits}
        for index, bit in enumerate(made.struct.bits if bits else []):
            bits[bit.field].append(self.bit(made, index))
        for mask, rows in bits.items():
            text += f"\n| Bit of `{mask}` | | What it does | Notes |\n|---|---|---|---|\n" + "".join(rows)
        return text

    def pages(self):
        headers = {}
        for made in reversed(self.descriptions):
            headers.setdefault(made.struct.file, []).append(made)
        index = ("# Reference of the record\n\n" + MADE + "\nEvery field of the record, by header: its values, the bit or the "
                 "choice without which it is not read, the\nmember of TS 38.331 that it feeds, and where it does not do what one "
                 "would expect, what becomes of it and what to do\n(the row of [behaviour.md](../behaviour.md)). "
                 "[record.md](../record.md) says how a record is filled.\n\n| Header | Structures |\n|---|---|\n")
        made_pages = {}
        for file, records in headers.items():
            made_pages[page(file)] = f"# {file}\n\n{MADE}\n" + "\n".join(self.record(made) for made in records)
            index += f"| [{file}]({page(file)}) | {', '.join(self.link(made, '') for made in records)} |\n"
        made_pages["README.md"] = index
        return made_pages


def described(project):
    sys.path.insert(0, str(project / "scripts"))
    import records

    return records.read(str(project)).order


def main():
    program, project = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()
    table = subprocess.run([program, "rules", "--json"], check=True, capture_output=True, timeout=60).stdout
    rules = json.loads(table)["recordRules"]
    reference = Reference(described(project), rules)
    pages = reference.pages()
    folder = project / FOLDER
    if "--update" in sys.argv:
        folder.mkdir(exist_ok=True)
        for name, text in pages.items():
            (folder / name).write_text(text, encoding="utf-8")
    there = {path.name: path.read_text(encoding="utf-8") for path in sorted(folder.glob("*"))}
    wrong = [name for name in sorted(there.keys() | pages.keys()) if there.get(name) != pages.get(name)]
    for name in wrong:
        print("\n".join(difflib.unified_diff(there.get(name, "").splitlines(), pages.get(name, "").splitlines(),
                                             f"{FOLDER}/{name}", "the headers", lineterm="", n=1)))
    anchors = {f"{name}#{anchor(heading)}" for name, text in pages.items() for heading in re.findall(r"^## (.*)$", text, re.M)}
    links = {f"{file or name}#{to}" for name, text in pages.items() for file, to in re.findall(r"\]\(([\w.]*)#([^)]*)\)", text)}
    lost = sorted(set(reference.rules) - reference.used) + sorted(links - anchors)
    print(f"{len(pages)} pages, {len(reference.used)} places with rules" + "".join(f"; {name} is nowhere" for name in lost))
    sys.exit(1 if wrong or lost or not reference.used else 0)


main()
