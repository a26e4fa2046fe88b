#!/usr/bin/env python3
"""records.py [--check] [--top FOLDER]: describes the records from the comments of their headers.

Reads Common/Inc and what asncomp has made of the schema, and writes Records/Src/recordTypes.cpp and
Common/Inc/rrcCodec/rrcRecords.h. With --check it writes nothing and fails where they differ. CONTRIBUTING.md has the
grammar of the comments; what is outside it, or says something else than the schema, is an error with file and line.
"""

import argparse
import difflib
import os
import re
import sys

try:
    import clang.cindex as cindex
except ImportError:  # a Python beside Debian's
    sys.path.append("/usr/lib/python3/dist-packages")
    import clang.cindex as cindex

TOP = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
TABLES = "Asn/Src/NR-RRC-Tables.cpp"
CONSTANTS = "Asn/Inc/NR-RRC-Definitions.h"
INCLUDES = "Common/Inc"
ROOT = "RrcCellGroupCfg_t"
ENTRY = 0xFFFF  # the step to a list's entries
TYPES = "Records/Src/recordTypes.cpp"
LIST = "Common/Inc/rrcCodec/rrcRecords.h"


class Problem(Exception):
    """What is wrong with one comment."""


def near(name, known):
    """The nearest of the known names, to go behind a complaint."""
    found = difflib.get_close_matches(name, known, 1)
    return f"; near: {found[0]}" if found else ""


# --- the schema -------------------------------------------------------------------------------------------------------


class AsnType:
    """A type of the schema, as asncomp describes it."""

    def __init__(self, symbol, text):
        self.symbol = symbol
        self.name = self._word(text, "name").strip('"')
        self.kind = self._word(text, "kind").removeprefix("Kind::")
        self.width = int(self._word(text, "width") or 0)
        self.lower = int(self._word(text, "lower") or 0)
        self.upper = int(self._word(text, "upper") or 0)
        self.is_setup = self._word(text, "setupRelease") == "true"
        self.names = []
        self.members = []  # (type, optional)

    @staticmethod
    def _word(text, key):
        found = re.search(rf"\.{key} = ([^,}}]+)", text)
        return found.group(1) if found else ""

    def values(self):
        """The values of an enumeration without its spare ones."""
        return [name for name in self.names if not re.fullmatch(r"spare\d*", name)]

    def alternatives(self):
        return self.names


class Schema:
    def __init__(self, tables, constants):
        self.constants = set(re.findall(r"^    (\w+) = \d+,$", constants, re.M))
        names = dict(re.findall(r"^const char\* const names_(\w+)\[\] = \{(.*)\};$", tables, re.M))
        members = dict(re.findall(r"^constexpr Member members_(\w+)\[\] = \{\n(.*?)\n\};$", tables, re.M | re.S))
        self.types = {}
        for symbol, text in re.findall(r"^constexpr Type type_(\w+) = \{(.*)\};$", tables, re.M):
            self.types[symbol] = AsnType(symbol, text)
        for symbol, found in self.types.items():
            found.names = re.findall(r'"([^"]*)"', names.get(symbol, ""))
            for line in members.get(symbol, "").splitlines():
                inner, rest = re.match(r"\s*member\(type_(\w+), (.*)\),$", line).groups()
                flag = re.search(r"\), (-?\d+)", rest)
                found.members.append((self.types[inner], flag is not None and flag.group(1) != "-1"))
        self.named = {found.name: found for found in self.types.values()}

    def absolute(self, path):
        """The type that a path from a type's name on leads to."""
        name, _, rest = path.partition(".")
        name, entries, _ = name.partition("[]")
        if name not in self.named:
            raise Problem(f"the schema has no type {name}")
        return self.relative(self.named[name], ("[]" if entries else "") + rest).type

    def relative(self, start, path):
        """Goes from a type along member.member, alternative or [], through any setup."""
        way = Way(start)
        for step in re.findall(r"\[\]|[^.\[\]]+", path):
            way.through_setup()
            kind = way.type.kind
            if step == "[]" and kind in ("Array", "List"):
                way.enter()
            elif step != "[]" and kind in ("Sequence", "Choice") and step in way.type.names:
                index = way.type.names.index(step)
                way.go(index, way.type.members[index])
            else:
                raise Problem(f"{way.type.name} has no {step}{near(step, way.type.names)}")
        way.through_setup()
        return way


class Way:
    """A way into an element: the indices of its steps, where they lead, and whether one of them is optional."""

    def __init__(self, start):
        self.type = start
        self.steps = []
        self.optional = False
        self.list = None  # the last one entered

    def go(self, index, member):
        self.steps.append(index)
        self.type = member[0]
        self.optional |= member[1]

    def enter(self):
        """Goes to the entries of a list."""
        self.list = self.type
        self.steps.append(ENTRY)
        self.type = self.type.members[0][0]

    def through_setup(self):
        if self.type.is_setup:
            self.go(1, self.type.members[1])


# --- the headers ------------------------------------------------------------------------------------------------------


def words(comment):
    """A comment's text in one line."""
    text = re.sub(r"^/\*\*<?|\*/$", "", comment.strip())
    return " ".join(re.sub(r"^\s*\*(?=\s|$)", "", text, flags=re.M).split())


def parted(text):
    """What the grammar reads, and the free text behind the first "; " or ". "."""
    found = re.search(r"; |(?<!\.\.)\. ", text)
    if found:
        return text[: found.start()], text[found.end() :]
    return (text if text.endswith("...") else text.removesuffix(".")), ""


class Struct:
    """A structure or union of the headers."""

    def __init__(self, name, expression, decl, text):
        self.name = name  # as C and the comments call it
        self.expression = expression  # its type in C++
        self.file = decl.location.file.name.partition(f"/{INCLUDES}/")[2]
        self.line = decl.location.line
        self.is_union = decl.kind == cindex.CursorKind.UNION_DECL
        self.text = text  # None: it stands inside another one, whose field says what it is
        self.size = decl.type.get_size()
        self.align = decl.type.get_align()
        self.fields = []
        self.bits = []

    def field(self, name):
        for index, found in enumerate(self.fields):
            if found.name == name:
                return index
        raise Problem(f"{self.name} has no field {name}{near(name, [found.name for found in self.fields])}")


class Field:
    def __init__(self, cursor, text):
        self.name = cursor.spelling
        self.line = cursor.location.line
        self.text = text
        self.struct = None
        kind = cursor.type
        self.type_name = kind.spelling
        self.bound = 0
        if kind.get_canonical().kind == cindex.TypeKind.CONSTANTARRAY:
            self.bound = kind.get_canonical().element_count
            kind = kind.get_canonical().element_type
            self.type_name = re.sub(r"\[\d+\]$", "", self.type_name).strip()
        canonical = kind.get_canonical()
        self.declaration = canonical.get_declaration()
        self.is_record = canonical.kind == cindex.TypeKind.RECORD
        if canonical.kind == cindex.TypeKind.ENUM:
            canonical = canonical.get_declaration().enum_type.get_canonical()
        self.size = canonical.get_size()
        self.is_signed = canonical.kind in (
            cindex.TypeKind.SCHAR,
            cindex.TypeKind.CHAR_S,
            cindex.TypeKind.SHORT,
            cindex.TypeKind.INT,
            cindex.TypeKind.LONG,
            cindex.TypeKind.LONGLONG,
        )
        self.bit_width = cursor.get_bitfield_width() if cursor.is_bitfield() else 0
        self.bit_offset = cursor.get_field_offsetof()

    @property
    def bits_held(self):
        return self.bit_width or 8 * self.size


class Bit:
    def __init__(self, name, number, file, line, text):
        self.name = name
        self.number = number
        self.file = file
        self.line = line
        self.text = text


class Headers:
    """The structures that the cell group's record is made of, and the bits of their masks."""

    def __init__(self, top):
        self.structs = {}  # by libclang's identity of the declaration
        self.order = []
        self.problems = []
        source = f'#include "rrcCodec/rrcCodec.h"\n{ROOT}* root;\n'
        arguments = ["-xc++", "-std=c++20"] + [f"-I{top}/{name}" for name in (INCLUDES, "Platform/include", "Asn/Inc")]
        unit = cindex.Index.create().parse("records.cpp", args=arguments, unsaved_files=[("records.cpp", source)])
        for diagnostic in unit.diagnostics:
            raise Problem(str(diagnostic))
        self.typedefs = {}
        root = None
        for cursor in unit.cursor.walk_preorder():
            if cursor.kind == cindex.CursorKind.TYPEDEF_DECL:
                target = cursor.underlying_typedef_type.get_canonical().get_declaration()
                self.typedefs.setdefault(target.get_usr(), cursor.spelling)
                if cursor.spelling == ROOT:
                    root = target
        self._add(root)
        self._read_bits(top)

    def _add(self, decl, within=None, field=None):
        key = decl.get_usr()
        if key in self.structs:
            return self.structs[key]
        if within is not None and decl.semantic_parent.get_usr() == within[0]:
            name = f"{within[1].name}.{field.name}"
            expression = f"decltype({within[1].expression}::{field.name})"
        else:
            name = self.typedefs.get(key, decl.spelling)
            expression = name
        comment = decl.raw_comment
        struct = Struct(name, expression, decl, words(comment) if comment else None)
        self.structs[key] = struct
        for cursor in decl.type.get_fields():
            made = Field(cursor, words(cursor.raw_comment) if cursor.raw_comment else None)
            if made.is_record:
                made.struct = self._add(made.declaration, (key, struct), made)
            struct.fields.append(made)
        self.order.append(struct)
        return struct

    def _read_bits(self, top):
        by_name = {struct.name: struct for struct in self.order}
        for file in sorted({struct.file for struct in self.order}):
            with open(os.path.join(top, INCLUDES, file), encoding="utf-8") as opened:
                text = opened.read()
            pattern = r"(/\*\*(?:(?!\*/).)*\*/\n)?#define (\w+) \(1 << (\d+)\)"
            for found in re.finditer(pattern, text, re.S):
                line = text.count("\n", 0, found.start(2)) + 1
                bit = Bit(found.group(2), int(found.group(3)), file, line, words(found.group(1) or ""))
                owner, colon, statement = bit.text.partition(": ")
                struct_name, _, bit.field = owner.rpartition(".")
                if not colon or struct_name not in by_name:
                    self.problems.append((file, line, f'{bit.name}: no comment like "RrcXyz_t.bitMask: xyz is given"'))
                    continue
                bit.statement, bit.note = parted(statement)
                by_name[struct_name].bits.append(bit)
        for struct in self.order:
            names = [field.name for field in struct.fields]
            struct.bits.sort(key=lambda bit: (names.index(bit.field) if bit.field in names else -1, bit.number))


# --- what the comments say --------------------------------------------------------------------------------------------

PATH = r"(?:\[\]|[A-Za-z][\w-]*)(?:\.[\w-]+|\[\])*"
CONSTANT = r"[A-Za-z]\w*_\.\.\."


class Described:
    """A field, or a member of a union, with what its comment says of it."""

    def __init__(self, field):
        self.field = field
        self.kind = None
        self.path = None
        self.way = None
        self.element = None  # type of one entry
        self.record = None
        self.lower = 0
        self.upper = 0
        self.bits = 0  # of a bit string
        self.count = -1
        self.guard = -1
        self.choice = -1
        self.alternative = -1
        self.unit = None
        self.flags = []
        self.note = ""


class Statement:
    """What the comment of a mask's bit says."""

    def __init__(self):
        self.kind = None
        self.mask = -1
        self.needs = -1
        self.path = None
        self.way = None
        self.otherwise = None


class Choice:
    def __init__(self, path, way, selector, by_number):
        self.path = path
        self.way = way
        self.selector = selector
        self.by_number = by_number
        self.options = []  # Option, the one that wins last


class Option:
    def __init__(self, number, alternative, place=(-1, -1), bit=-1, note="", sent_as=None):
        self.number = number  # -1: taken when no bit is set
        self.alternative = alternative
        self.place = place  # field, member of the field
        self.bit = bit
        self.sent_as = sent_as
        self.note = note


class Description:
    """One structure as one type of the schema."""

    def __init__(self, struct, element, symbol, note):
        self.struct = struct
        self.element = element
        self.symbol = symbol
        self.path = None
        self.note = note
        self.fields = []
        self.bits = []
        self.choices = []


class Reader:
    def __init__(self, headers, schema):
        self.headers = headers
        self.schema = schema
        self.descriptions = {}  # (structure, type): Description
        self.order = []
        self.problems = list(headers.problems)
        self.instance = 0

    def report(self, file, line, text):
        if (file, line, text) not in self.problems:
            self.problems.append((file, line, text))

    # A structure's comment: the paths of what it holds.
    def elements(self, struct):
        subject, note = parted(struct.text)
        return [(path, self.schema.absolute(path)) for path in subject.split(" or ")], note

    def describe(self, struct, element, path):
        """The structure as this type; element is None for what the standard does not know."""
        key = (struct.name, element.symbol if element else None)
        if key in self.descriptions:
            return self.descriptions[key]
        note, index = "", 0
        symbol = re.sub(r"\W+", "_", struct.name)
        if struct.text is not None:
            elements, note = self.elements(struct)
            kinds = [found.symbol for _, found in elements]
            if element is None or element.symbol not in kinds:
                given = "nothing" if element is None else element.name
                raise Problem(f"{struct.name} holds {struct.text.split('. ')[0]}, and this is {given}")
            index = kinds.index(element.symbol)
            path = elements[index][0]
            if len(kinds) > 1:
                symbol += "_" + element.symbol
        made = Description(struct, element, symbol, note)
        made.path = path
        self.descriptions[key] = made
        for field in struct.fields:
            described = Described(field)
            made.fields.append(described)
            try:
                if not field.text:
                    raise Problem("it has no comment")
                self.read_field(made, described, index)
            except Problem as problem:
                self.report(struct.file, field.line, f"{struct.name}.{field.name}: {problem}")
        if not struct.is_union:
            self.read_bits(made, index)
            self.relate(made)
        self.order.append(made)
        return made

    def read_field(self, made, described, index):
        field = described.field
        subject, described.note = parted(field.text)
        listing = None
        if ": " in subject:
            subject, listing = subject.split(": ", 1)
        parts = subject.split(", ")
        subject, clauses = parts[0], parts[1:]
        if subject == "not read":
            described.kind = "Unread"
            if field.is_record:
                raise Problem("a record is read")
        elif subject.startswith("entries used of "):
            described.kind = "Count"
            described.path = subject.removeprefix("entries used of ")
            found = re.fullmatch(r"of which the low (\d+) bits are sent", clauses[-1])
            if found:
                described.bits = int(found.group(1))
                clauses = clauses[:-1]
            self.read_range(described, clauses)
        elif subject.startswith("bits "):
            described.kind = "Mask"
            described.path = subject.removeprefix("bits ")
        elif subject.startswith("alternative of "):
            described.kind = "Alternative"
            self.follow(made, described, subject.removeprefix("alternative of "), index)
            self.read_alternatives(made, described, listing)
            listing = None
        elif subject.startswith("value by "):
            described.kind = "Value"
            described.path = subject.removeprefix("value by ")
            clauses = self.read_units(described, clauses)
        else:
            self.follow(made, described, subject, index)
            self.read_element(made, described, clauses, listing, index)
            return
        if clauses and described.kind != "Count":
            raise Problem(f'"{clauses[0]}" is outside the grammar')
        if listing is not None:
            raise Problem(f'"{listing}" is outside the grammar')

    def follow(self, made, described, subject, index):
        paths = subject.split(" or ")
        path = paths[index] if len(paths) > 1 else paths[0]
        if made.element is None:
            raise Problem("its record holds nothing that the standard knows")
        if path == "itself":
            path = ""
        elif not re.fullmatch(PATH, path):
            raise Problem(f'"{path}" is outside the grammar')
        described.path = path
        described.way = self.schema.relative(made.element, path)
        described.element = described.way.type

    @staticmethod
    def read_range(described, clauses):
        found = re.fullmatch(r"(-?\d+)(?:\.\.(-?\d+))?", clauses.pop(0) if clauses else "")
        if not found or clauses:
            raise Problem('a range like "0..31" is missing')
        described.lower = int(found.group(1))
        described.upper = int(found.group(2) or found.group(1))

    @staticmethod
    def read_units(described, clauses):
        rest = []
        for clause in clauses:
            if clause.startswith("in "):
                described.unit = clause.removeprefix("in ")
            elif clause in FLAGS:
                described.flags.append(FLAGS[clause])
            else:
                rest.append(clause)
        return rest

    def read_alternatives(self, made, described, listing):
        choice = described.element
        if choice.kind != "Choice":
            raise Problem(f"{choice.name} is no choice")
        found = Choice(described.path, described.way, made.struct.field(described.field.name), True)
        for item in (listing or "").split(", "):
            match = re.fullmatch(r"(\d+) (\S+)(?: as (\S+))?", item)
            if not match:
                raise Problem(f'"{item}" is no number and alternative')
            name = match.group(2)
            as_name = match.group(3) or name
            if name not in choice.names or as_name not in choice.names:
                raise Problem(f"{choice.name} has no alternative {name}{near(name, choice.names)}")
            alternative = choice.names.index(as_name)
            found.options.append(Option(int(match.group(1)), choice.names.index(name), sent_as=alternative))
        first = found.options[0].number
        expected = [(first + index, index) for index in range(len(choice.names))]
        if [(option.number, option.alternative) for option in found.options] != expected:
            text = ", ".join(f"{first + index} {name}" for index, name in enumerate(choice.names))
            raise Problem(f"the alternatives are: {text}")
        described.lower = first
        described.upper = first + len(found.options) - 1
        made.choices.append(found)

    def read_element(self, made, described, clauses, listing, index):
        field = described.field
        element = described.element
        if "each" in clauses or any(clause.startswith("each ") for clause in clauses):
            clauses = [clause.removeprefix("each ") for clause in clauses]
            if not field.bound:
                raise Problem('"each" is said of an array')
        clauses = self.read_units(described, clauses)
        octets = field.bound and element.kind == "BitOctets"
        if field.bound and not octets:
            if element.kind in ("Array", "List"):
                described.way.enter()
            if described.way.list is None:
                raise Problem(f"an array, but {element.name} is no list")
            described.element = element = described.way.type
        if field.is_record:
            described.kind = "Union" if field.struct.is_union else "Record"
            if clauses or listing:
                raise Problem(f'"{(clauses or [listing])[0]}" is outside the grammar')
            described.record = self.describe(field.struct, element, described.path)
        elif element.kind in ("BitStr32", "BitOctets"):
            self.read_bit_string(described, clauses)
        elif element.kind == "Enumerated":
            described.kind = "Enumerated"
            self.read_values(described, clauses, listing, index)
        elif element.kind == "Boolean":
            described.kind = "Boolean"
            described.upper = 1
            if clauses or listing:
                raise Problem(f'"{(clauses or [listing])[0]}" is outside the grammar')
        elif element.kind == "Integer":
            described.kind = "Number"
            self.read_range(described, clauses)
            self.check_range(described)
        else:
            raise Problem(f"{element.name} is a {element.kind}, which a number cannot hold")
        if listing is not None and described.kind != "Enumerated":
            raise Problem(f'"{listing}" is outside the grammar')

    @staticmethod
    def read_bit_string(described, clauses):
        field = described.field
        width = described.element.upper
        text = ", ".join(clauses)
        if found := re.fullmatch(r"(\d+) bits(?:, of which the low (\d+) are sent)?", text):
            described.kind = "Bits"
            if int(found.group(1)) != width:
                raise Problem(f"the string has {width} bits")
            described.bits = int(found.group(2) or width)
            if field.bound or field.bits_held < described.bits:
                raise Problem(f"the field cannot hold {width} bits")
        elif found := re.fullmatch(r"(\d+) octets(?:, of which (\d+) bits)?", text):
            described.kind = "Octets"
            octets, sent = int(found.group(1)), int(found.group(2) or 8 * int(found.group(1)))
            if octets != field.size * (field.bound or 1) or sent != width:
                raise Problem(f"the field has {field.size * (field.bound or 1)} octets, the string {width} bits")
            described.bits = sent
        else:
            raise Problem(f'a length like "{width} bits" is missing')

    def read_values(self, described, clauses, listing, index):
        element = described.element
        values = element.values()
        described.upper = len(values) - 1
        given = clauses.pop(0).split(" or ") if clauses else [""]
        prefix = given[index] if len(given) > 1 else given[0]
        expected = ", ".join(f"{number} {name}" for number, name in enumerate(values))
        if prefix != f"{element.symbol}_..." or clauses or listing != expected:
            raise Problem(f'of an enumeration is said "{element.symbol}_...: {expected}"')
        for name in values:
            constant = f"{element.symbol}_{name.replace('-', '_')}"
            if constant not in self.schema.constants:
                raise Problem(f"{CONSTANTS} has no {constant}")

    @staticmethod
    def check_range(described):
        field = described.field
        element = described.element
        twos = "TwosComplement" in described.flags
        bits = field.bits_held
        signed = field.is_signed or twos
        least, most = (-(1 << (bits - 1)), (1 << (bits - 1)) - 1) if signed else (0, (1 << bits) - 1)
        lower, upper = max(element.lower, least), min(element.upper, most)
        if (described.lower, described.upper) != (lower, upper):
            raise Problem(f"the range is {lower}..{upper}")
        if twos and (field.is_signed or element.lower >= 0):
            raise Problem("there is no two's complement in it")

    # The bits of the structure's masks: what each guards or chooses.
    def read_bits(self, made, index):
        struct = made.struct
        rules = []
        for number, bit in enumerate(struct.bits):
            said = Statement()
            made.bits.append(said)
            try:
                bit.mask = struct.field(bit.field)
                if made.fields[bit.mask].kind != "Mask":
                    raise Problem(f"{bit.field} holds no bits")
                if bit.number >= struct.fields[bit.mask].bits_held:
                    raise Problem(f"{bit.field} has no such bit")
                said.mask = bit.mask
                self.read_bit(made, bit, said, number, rules)
            except Problem as problem:
                self.report(bit.file, bit.line, f"{bit.name}: {problem}")
        for choice in made.choices:
            self.rank(choice, rules)

    @staticmethod
    def rank(choice, rules):
        """Brings the options into the order in which the later one wins."""
        for _ in rules:
            for winner, loser in rules:
                numbers = [option.bit for option in choice.options]
                if winner in numbers and loser in numbers and numbers.index(winner) < numbers.index(loser):
                    option = choice.options.pop(numbers.index(winner))
                    choice.options.insert(numbers.index(loser), option)

    def bit_number(self, struct, name):
        for number, bit in enumerate(struct.bits):
            if bit.name == name:
                return number
        raise Problem(f"there is no {name} in {struct.name}")

    def read_bit(self, made, bit, said, number, rules):
        struct = made.struct
        statement = bit.statement
        if statement == "not read":
            said.kind = "Unread"
            return
        if found := re.fullmatch(rf"({PATH}) is (not )?sent(?: as (\S+))?", statement):
            said.way = self.schema.relative(made.element, found.group(1))
            said.path = found.group(1)
            said.kind = "NotSent" if found.group(2) else "Sends"
            sent = said.way.type
            if sent.kind == "Enumerated" and not found.group(2) and found.group(3) not in sent.names[:1]:
                raise Problem(f'it is sent "as {sent.names[0]}"')
            return
        if statement.startswith("chooses "):
            said.kind = "Chooses"
            self.read_choice(made, bit, number, statement.removeprefix("chooses ").split(", "), rules)
            return
        found = re.fullmatch(r"(.*?) (?:is|are) given(?:, else (\S+))?(?:, with (\w+))?", statement)
        if not found:
            raise Problem(f'"{statement}" is outside the grammar')
        said.kind = "Guards"
        if found.group(3):
            said.needs = self.bit_number(struct, found.group(3))
        for name in re.split(r", | and ", found.group(1)):
            described = made.fields[struct.field(name)]
            if described.guard != -1:
                raise Problem(f"{name} has another bit already")
            described.guard = number
            if found.group(2):
                said.otherwise = found.group(2)
                described.flags.append("ElseDefault")

    def place(self, made, text):
        """A field, or a member of one: "choice.amCfg"."""
        name, _, inner = text.partition(".")
        index = made.struct.field(name)
        return (index, made.struct.fields[index].struct.field(inner) if inner else -1)

    def read_choice(self, made, bit, number, clauses, rules):
        path = clauses.pop(0)
        place, other, other_place = (-1, -1), None, (-1, -1)
        for clause in clauses:
            word, _, rest = clause.partition(" ")
            if clause.startswith("wins over "):
                rules.append((number, self.bit_number(made.struct, clause.removeprefix("wins over "))))
            elif word == "else":
                other = rest
            elif word == "in" and other is None:
                place = self.place(made, rest)
            elif word == "in":
                other_place = self.place(made, rest)
            else:
                raise Problem(f'"{clause}" is outside the grammar')
        options = [(path, place, bit.number, number)]
        if other is not None:
            options.insert(0, (other, other_place, -1, -1))
        for name, where, value, of_bit in options:
            outer, _, alternative = name.rpartition(".")
            way = self.schema.relative(made.element, outer)
            if way.type.kind != "Choice" or alternative not in way.type.names:
                raise Problem(f"{name} is no alternative")
            for choice in made.choices:
                if choice.path == outer and choice.selector == bit.mask:
                    break
            else:
                choice = Choice(outer, way, bit.mask, False)
                made.choices.append(choice)
            index = way.type.names.index(alternative)
            choice.options.append(Option(value, index, where, of_bit, sent_as=index))

    # What one field says of another.
    def relate(self, made):
        struct = made.struct
        for index, described in enumerate(made.fields):
            try:
                self.relate_field(made, index, described)
            except Problem as problem:
                self.report(struct.file, described.field.line, f"{struct.name}.{described.field.name}: {problem}")

    def relate_field(self, made, index, described):
        struct = made.struct
        field = described.field
        if described.kind == "Count":
            counted = made.fields[struct.field(described.path)]
            if not counted.field.bound:
                raise Problem(f"{described.path} is no array")
            counted.count = index
            listed = counted.way.list if counted.way else None
            if listed is not None:
                most = min(listed.upper, counted.field.bound)
                optional = counted.way.optional and counted.guard == -1
                least = 0 if optional or listed.lower == listed.upper else listed.lower
                if described.upper != most or described.lower not in (0, least):
                    raise Problem(f"the range is {least}..{most}")
        elif described.kind == "Mask":
            globs = [re.escape(name).replace(r"\.\.\.", r"\w*") for name in described.path.split(" and ")]
            for bit in struct.bits:
                if bit.field == field.name and not any(re.fullmatch(glob, bit.name) for glob in globs):
                    raise Problem(f"{bit.name} is not among {described.path}")
            for glob in globs:
                if not any(bit.field == field.name and re.fullmatch(glob, bit.name) for bit in struct.bits):
                    raise Problem(f"no bit is called {described.path}")
        elif described.kind == "Value":
            if described.path in [other.name for other in struct.fields]:
                selector = struct.field(described.path)
                chosen = [number for number, choice in enumerate(made.choices) if choice.selector == selector]
                if len(chosen) != 1:
                    raise Problem(f"{described.path} chooses nothing")
                described.choice = chosen[0]
                for option in made.choices[chosen[0]].options:
                    if made.choices[chosen[0]].way.type.members[option.sent_as][0].kind != "Null":
                        option.place = (index, -1)
        elif described.way is not None and described.kind != "Alternative":
            self.relate_content(made, index, described)

    def relate_content(self, made, index, described):
        field = described.field
        steps = described.way.steps
        for number, choice in enumerate(made.choices):
            depth = len(choice.way.steps)
            if steps == choice.way.steps:
                described.choice = number
                if described.kind == "Union":
                    self.check_union(made, index, described, choice)
            elif len(steps) > depth and steps[:depth] == choice.way.steps:
                options = [option for option in choice.options if option.sent_as == steps[depth]]
                if not options:
                    raise Problem(f"nothing chooses {described.path}")
                described.choice = number
                described.alternative = steps[depth]
                for option in options:
                    if option.place == (-1, -1):
                        option.place = (index, -1)
        if described.kind == "Union" and described.choice == -1:
            raise Problem("nothing says which member counts")
        if (
            described.way.optional
            and described.guard == -1
            and described.choice == -1
            and not {"AlwaysSent", "NotSent", "ElseAbsent"} & set(described.flags)
            and not field.bound
        ):
            raise Problem("the member is optional, and nothing says when it is given")
        if described.way.list is not None and field.bound:
            counts = [other for other in made.fields if other.kind == "Count" and other.path == field.name]
            fixed = described.way.list.lower == described.way.list.upper == field.bound
            if not counts and not fixed:
                raise Problem("nothing counts its entries")

    def check_union(self, made, index, described, choice):
        for member, inner in enumerate(described.record.fields):
            options = [option for option in choice.options if option.place == (index, member)]
            if not options and inner.kind != "Unread":
                raise Problem(f"nothing chooses {inner.field.name}")
            for option in options:
                if inner.way is None or inner.way.steps[0] != option.sent_as:
                    raise Problem(f"{inner.field.name} is no {choice.way.type.names[option.sent_as]}")


FLAGS = {
    "as two's complement": "TwosComplement",
    "always sent": "AlwaysSent",
    "not sent": "NotSent",
    "else absent": "ElseAbsent",
}

# --- what is written --------------------------------------------------------------------------------------------------


def upper_case(name):
    """TwosComplement as TWOS_COMPLEMENT."""
    return re.sub(r"(?<!^)(?=[A-Z])", "_", name).upper()


def quoted(text):
    return "nullptr" if text is None else '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


class Writer:
    """The descriptions as C++."""

    def __init__(self, reader):
        self.reader = reader
        self.ways = {}

    def way(self, path, way):
        if way is None:
            return "{}"
        steps = "nullptr"
        if way.steps:
            name = self.ways.setdefault(tuple(way.steps), f"way_{len(self.ways)}")
            steps = name
        return f"{{{quoted(path)}, {steps}, {len(way.steps)}, &nr_rrc::type_{way.type.symbol}}}"

    def text(self):
        bodies = [self.record(made) for made in self.reader.order]
        ways = [
            f"constexpr UINT16 {name}[] = {{{', '.join(map(str, steps))}}};" for steps, name in self.ways.items()
        ]
        listed = "\n".join(f"    &type_{made.symbol}," for made in reversed(self.reader.order))
        headers = sorted({made.struct.file for made in self.reader.order})
        includes = "\n".join(f'#include "{name}"' for name in headers)
        return (
            "// Generated by scripts/records.py from the comments of the headers. Do not edit.\n"
            "// clang-format off\n"
            '#include "rrcRecordType.h"\n\n'
            f'#include "NR-RRC-Tables.h"\n{includes}\n\n#include <cstddef>\n\n'
            "namespace\n{\n\n" + "\n".join(ways) + "\n\n" + "\n".join(bodies) + "\n} // namespace\n\n"
            f"const RrcRecordType* const rrcRecordTypes[] = {{\n{listed}\n}};\n\n"
            "const UINT32 rrcRecordTypeCount = sizeof rrcRecordTypes / sizeof rrcRecordTypes[0];\n"
        )

    def record(self, made):
        struct = made.struct
        lines = []
        fields = "".join(f"    {self.field(struct, described)},\n" for described in made.fields)
        lines.append(f"constexpr RrcRecordField fields_{made.symbol}[] = {{\n{fields}}};\n")
        bits = [] if struct.is_union else struct.bits
        if bits:
            text = "".join(f"    {self.bit(bit, said)},\n" for bit, said in zip(bits, made.bits))
            lines.append(f"constexpr RrcRecordBit bits_{made.symbol}[] = {{\n{text}}};\n")
        for index, choice in enumerate(made.choices):
            text = "".join(
                f"    {{{option.number}, {option.bit}, {option.alternative}, {option.sent_as}, "
                f"{option.place[0]}, {option.place[1]}}},\n"
                for option in choice.options
            )
            lines.append(f"constexpr RrcRecordOption options_{made.symbol}_{index}[] = {{\n{text}}};\n")
        if made.choices:
            text = "".join(
                f"    {{{self.way(choice.path, choice.way)}, {choice.selector}, {int(choice.by_number)}, "
                f"{len(choice.options)}, options_{made.symbol}_{index}}},\n"
                for index, choice in enumerate(made.choices)
            )
            lines.append(f"constexpr RrcRecordChoice choices_{made.symbol}[] = {{\n{text}}};\n")
        lines.append(
            f"constexpr RrcRecordType type_{made.symbol} = {{{quoted(struct.name)}, {quoted(struct.file)}, "
            f"{quoted(made.path)}, {quoted(made.note)}, &nr_rrc::type_{made.element.symbol}, "
            f"sizeof({struct.expression}), {int(struct.is_union)}, {len(made.fields)}, {len(bits)}, "
            f"{len(made.choices)}, fields_{made.symbol}, {f'bits_{made.symbol}' if bits else 'nullptr'}, "
            f"{f'choices_{made.symbol}' if made.choices else 'nullptr'}}};\n"
        )
        return "".join(lines)

    def field(self, struct, described):
        field = described.field
        lower, upper = described.lower, described.upper
        if described.kind == "Mask":
            upper = sum(1 << bit.number for bit in struct.bits if bit.field == field.name)
        name = f"{struct.expression}::{field.name}"
        if field.bit_width:
            offset, size = str(field.bit_offset // 8), str(field.size)
        else:
            offset = f"offsetof({struct.expression}, {field.name})"
            size = f"sizeof({name}[0])" if field.bound else f"sizeof({name})"
        bound = f"sizeof({name}) / sizeof({name}[0])" if field.bound else "0"
        flags = " | ".join(f"RRC_FIELD_{upper_case(flag)}" for flag in described.flags) or "0"
        record = f"&type_{described.record.symbol}" if described.record else "nullptr"
        path = described.path if described.way is not None else None
        return (
            f"{{{quoted(field.name)}, {self.way(path, described.way)}, {record}, {quoted(described.unit)}, "
            f"{quoted(described.note)}, {lower}, {upper}, {offset}, {size}, {bound}, {described.bits}, "
            f"RRC_FIELD_{upper_case(described.kind)}, {flags}, {int(field.is_signed)}, {field.bit_width}, "
            f"{described.count}, {described.guard}, {described.choice}, {described.alternative}}}"
        )

    def bit(self, bit, said):
        return (
            f"{{{quoted(bit.name)}, {quoted(bit.note)}, {quoted(said.otherwise)}, {self.way(said.path, said.way)}, "
            f"{said.mask}, {bit.number}, RRC_BIT_{upper_case(said.kind)}, {said.needs}}}"
        )


def contents(top, name):
    with open(os.path.join(top, name), encoding="utf-8") as file:
        return file.read()


def written(top, name, text, check):
    """Writes a file, or compares it. Returns what the program returns."""
    path = os.path.join(top, name)
    if not check:
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        return 0
    if contents(top, name) == text:
        return 0
    print(f"{name} is not what the headers say: run scripts/records.py", file=sys.stderr)
    return 1


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--check", action="store_true", help="fail where what is checked in differs")
    parser.add_argument("--top", default=TOP, help="the project's top folder")
    arguments = parser.parse_args()
    top = os.path.abspath(arguments.top)
    schema = Schema(contents(top, TABLES), contents(top, CONSTANTS))
    headers = Headers(top)
    reader = Reader(headers, schema)
    reader.describe(headers.order[-1], schema.absolute("CellGroupConfig"), "CellGroupConfig")
    for file, line, text in sorted(reader.problems):
        print(f"{INCLUDES}/{file}:{line}: {text}", file=sys.stderr)
    if reader.problems:
        return 1
    return written(top, TYPES, Writer(reader).text(), arguments.check)


if __name__ == "__main__":
    sys.exit(main())
