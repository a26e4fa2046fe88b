"""check_delta.py <project> [--update]: the tables of docs/delta.md are what the annotations of the schema say, or are
written from them."""

import difflib
import pathlib
import re
import sys
from collections import namedtuple

TOKEN = re.compile(r"--[^\n]*|::=|\[\[|\]\]|\.\.\.|[A-Za-z0-9][\w.-]*|\S")
NEED = re.compile(r"-- (?:Need (?P<need>[MRSN])|Cond (?P<condition>\S+) \((?P<code>\w+)(?:, (?P<inner>[\w-]+))?\))"
                  r"(?:, (?P<word>[\w-]+))?$")
WORD = re.compile(r"-- Change (?P<word>\w+)$")

# A member as the schema has it: its place, its type's words, and what stands behind it.
Member = namedtuple("Member", "type path words notes")

# Of each word what no delta does to a member as long as its entry stays, and what does.
BOUND = {
    "creation": ("anything", "release and add of its entry; reconfigurationWithSync, where it stands in that"),
    "creation-optional": ("anything", "release and add of its entry; reconfigurationWithSync, where it stands in that"),
    "switch": ("in an SCell anything", "release and add of the SCell; in the SpCell it is a command: sent when it is "
                                       "another one"),
    "mode": ("the alternative", "release and add of the bearer"),
    "reestablish": ("the value", "the same message with reestablishRLC, for a DRB with reconfigurationWithSync as "
                                 "well; release and add of the bearer"),
    "kind": ("whether it is there", "release and add of its entry"),
    "fixed-kind": ("whether it is there", "nothing: another entry"),
    "usage": ("from codebook to nonCodebook and back", "nothing: another entry"),
    "pucch": ("whether it is set up", "creation of its bandwidth part or SCell; reconfigurationWithSync"),
    "scell": ("whether a pucch-Config is set up in it", "release and add of the SCell"),
    "mcg-release": ("in an SCG: that it is set up", "nothing"),
    "identity": ("anything", "nothing: another cell group has a state of its own"),
}
# Words that bind no change of what is there, or only the time of it.
FREE = {"setup", "drb-setup", "sync", "sul", "inactive", "inactive-type2"}


class Frame:
    def __init__(self, type_name, prefix):
        self.type_name, self.prefix = type_name, prefix  # of what is no structure: None
        self.depth, self.awaits_name, self.member = 0, True, None


def members_of(schema):
    """Every member of every SEQUENCE and CHOICE, in order."""
    found, stack, before = [], [], []
    for token in TOKEN.findall(schema):
        top = stack[-1] if stack else None
        if token.startswith("--"):
            if top and top.member:
                top.member.notes.append(token)
        elif token == "{":
            structure = before[-1] in ("SEQUENCE", "CHOICE")
            if not structure or (top and not top.prefix):
                stack.append(Frame(None, None))
            elif top:
                stack.append(Frame(top.type_name, f"{top.prefix}{top.member.path}{'[]' if before[-2] == 'OF' else ''}."))
            else:
                stack.append(Frame(before[-3], f"{before[-3]}."))
        elif token == "}":
            stack.pop()
        elif top and top.prefix:
            top.depth += {"(": 1, ")": -1}.get(token, 0)
            if token == "," and top.depth == 0:
                top.awaits_name = True
            elif top.awaits_name and token[0].isalpha():
                top.member, top.awaits_name = Member(top.prefix, token, [], []), False
                found.append(top.member)
            elif top.member:
                top.member.words.append(token)
        if not token.startswith("--"):
            before = (before + [token])[-3:]
    return found


def annotation_of(member):
    """(the comment, its code, its word) of a member that has one."""
    for note in member.notes:
        match = NEED.match(note)
        if match:
            return note[3:], match["need"] or match["code"], match["word"] or match["inner"]
        match = WORD.match(note)
        if match:
            return note[3:], None, match["word"]
    return None


def is_kept(member, code, word):
    """Whether a UE keeps it as long as it keeps what is around it."""
    is_list = any(note.startswith("-- Identity") for note in member.notes)
    return code == "M" and word != "sync" and "SetupRelease" not in member.words and not is_list


def tables(schema):
    bound = ["| Member | Annotation | Does not change | Brings it |", "|---|---|---|---|"]
    kept = {}
    for member in members_of(schema):
        annotation = annotation_of(member)
        if not annotation:
            continue
        note, code, word = annotation
        if word in BOUND:
            bound.append(f"| `{member.type}{member.path}` | {note} | {BOUND[word][0]} | {BOUND[word][1]} |")
        elif word and word not in FREE:
            sys.exit(f"{member.type}{member.path}: what '{word}' keeps from changing is not known")
        if is_kept(member, code, word):
            kept.setdefault(member.type.rstrip("."), []).append(member.path)
    rows = [f"| `{name}` | {', '.join(f'`{path}`' for path in paths)} |" for name, paths in kept.items()]
    return {"bound": "\n".join(bound), "kept": "\n".join(["| In | Members |", "|---|---|", *rows])}


def main():
    project = pathlib.Path(sys.argv[1])
    document = project / "docs/delta.md"
    text = document.read_text(encoding="utf-8")
    found = text
    for name, table in tables((project / "Asn/Schema/NR-RRC-Definitions.asn1").read_text(encoding="utf-8")).items():
        place = re.compile(rf"(<!-- {name}: [^\n]*-->\n\n)(?:\|[^\n]*\n)*")
        if len(place.findall(found)) != 1:
            sys.exit(f"docs/delta.md has no place for the table '{name}'")
        found = place.sub(lambda match, table=table: match[1] + table + "\n", found)
    if "--update" in sys.argv:
        document.write_text(found, encoding="utf-8")
    elif found != text:
        print("\n".join(difflib.unified_diff(text.splitlines(), found.splitlines(), "docs/delta.md", "the schema",
                                             lineterm="")))
        sys.exit(1)
    print(f"{sum(line.startswith('|') for line in found.splitlines())} rows")


main()
