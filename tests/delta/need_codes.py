"""Reads the types of a schema with what its comments say of them: need codes, conditions, words, identities.

    foo INTEGER (0..3) OPTIONAL, -- Need M[, word]
    foo INTEGER (0..3) OPTIONAL, -- Cond SCellAdd (M[, word])
    foo CellGroupId,             -- Change word
    foos-ToAddModList SEQUENCE (SIZE (1..4)) OF Foo OPTIONAL, -- Need N
        -- Identity foo-Id, released by foos-ToReleaseList

The code says what absence does: M keep, R clear, S clear (a specified value takes over), N nothing, as what was sent
was acted upon at once; `fixed` clears, as the presence follows from another field."""

import dataclasses
import re

WORDS = ("setup", "drb-setup", "mode", "creation", "creation-optional", "switch", "sync", "reestablish", "kind",
         "fixed-kind", "usage", "pucch", "scell", "inactive", "inactive-type2", "sul", "mcg-release", "identity")


class SchemaError(Exception):
    """What is wrong, as file:line:column: text."""


@dataclasses.dataclass
class Member:
    """A member of a SEQUENCE; of a list of entries that are added, modified and released one by one also their
    identity (a member of theirs, or their own type) and the list beside it that releases them."""
    name: str
    type: object
    optional: bool
    code: str = None
    condition: str = None
    word: str = None
    identity: str = None
    released_by: str = None
    releases: str = None  # of that list: the one whose entries it releases


@dataclasses.dataclass
class Sequence:
    members: list


@dataclasses.dataclass
class Choice:
    alternatives: dict


@dataclasses.dataclass
class SetupRelease:
    element: object


@dataclasses.dataclass
class List:
    lower: int
    upper: int
    element: object


@dataclasses.dataclass
class Plain:
    """A value that is replaced whole: INTEGER, ENUMERATED, BIT STRING, BOOLEAN, NULL."""
    kind: str


@dataclasses.dataclass
class Named:
    name: str


@dataclasses.dataclass
class Token:
    kind: str
    text: str
    at: int


class Schema:
    """The types of a text by name."""

    def __init__(self, text, file="schema"):
        self.types = {}
        Reader(text, file, self.types).read()

    @classmethod
    def load(cls, path):
        with open(path, encoding="ascii") as file:
            return cls(file.read(), str(path))

    def type(self, kind):
        """What a type is that may be a name."""
        while isinstance(kind, Named):
            kind = self.types[kind.name]
        return kind

    def members(self):
        """(name of the type, path of the member within it, member) of all sequences, nested ones included."""
        for name, kind in self.types.items():
            yield from ((name, path, member) for path, member in nested(kind, ""))


def nested(kind, path):
    if isinstance(kind, Sequence):
        for member in kind.members:
            yield path + member.name, member
            yield from nested(member.type, f"{path}{member.name}.")
    elif isinstance(kind, Choice):
        for name, alternative in kind.alternatives.items():
            yield from nested(alternative, f"{path}{name}.")
    elif isinstance(kind, (List, SetupRelease)):
        yield from nested(kind.element, path)


class Reader:
    TOKEN = re.compile(r"(?P<blank>\s+)|(?P<comment>--[^\n]*)|(?P<name>[A-Za-z][A-Za-z0-9]*(?:-[A-Za-z0-9]+)*)"
                       r"|(?P<number>-?\d+)|(?P<sign>::=|\.\.\.|\.\.|\[\[|\]\]|[{}(),])|(?P<bad>.)")
    ANNOTATION = re.compile(r"-- (Need|Cond|Change|Identity) ")
    CONDITION = re.compile(r"-- Cond (\S+) \((\w+)(?:, (\S+))?\)\s*")
    NEED = re.compile(r"-- Need (\w+)(?:, (\S+))?\s*")
    CHANGE = re.compile(r"-- Change (\S+)\s*")
    IDENTITY = re.compile(r"-- Identity (\S+), released by (\S+)\s*")
    PLAIN = ("INTEGER", "BOOLEAN", "NULL")

    def __init__(self, text, file, types):
        self.text, self.file, self.types = text, file, types
        self.constants = {}
        self.bounds = []  # lists whose bounds may be constants that come later
        self.names = []  # uses of names of types
        self.tokens = [Token(match.lastgroup, match.group(), match.start()) for match in self.TOKEN.finditer(text)
                       if match.lastgroup != "blank"]
        self.tokens = [token for token in self.tokens
                       if token.kind != "comment" or self.ANNOTATION.match(token.text)] + [Token("end", "", len(text))]
        self.next = 0

    def fail(self, token, what):
        line = self.text.count("\n", 0, token.at) + 1
        column = token.at - self.text.rfind("\n", 0, token.at)
        raise SchemaError(f"{self.file}:{line}:{column}: {what}")

    def peek(self, text):
        return self.tokens[self.next].text == text

    def take(self, kind=None):
        token = self.tokens[self.next]
        if token.kind == "bad" or kind is not None and token.kind != kind or token.kind == "end":
            self.fail(token, f"{token.text!r} is not expected here")
        self.next += 1
        return token

    def taken(self, text):
        found = self.peek(text)
        self.next += found
        return found

    def want(self, *texts):
        for text in texts:
            if not self.taken(text):
                self.fail(self.tokens[self.next], f"{self.tokens[self.next].text!r} instead of {text!r}")

    def read(self):
        self.take("name")
        self.want("DEFINITIONS", "AUTOMATIC", "TAGS", "::=", "BEGIN")
        while not self.taken("END"):
            name = self.take("name")
            if name.text == "SetupRelease":
                self.setup_release()
            elif self.taken("INTEGER"):
                self.want("::=")
                self.constants[name.text] = int(self.take("number").text)
            else:
                self.want("::=")
                self.types[name.text] = self.type()
        for name in self.names:
            if name.text not in self.types:
                self.fail(name, f"there is no type {name.text}")
        for each, upper in self.bounds:
            if upper.text not in self.constants:
                self.fail(upper, f"there is no constant {upper.text}")
            each.upper = self.constants[upper.text]

    def setup_release(self):
        """The parameterised type, of which only the uses count."""
        self.want("{", "ElementType", "}", "::=", "CHOICE", "{", "release", "NULL", ",", "setup", "ElementType", "}")

    def type(self):
        name = self.take("name")
        if name.text == "SEQUENCE":
            return self.list() if self.peek("(") else Sequence(self.members())
        if name.text == "CHOICE":
            return Choice({member.name: member.type for member in self.members()})
        if name.text == "SetupRelease":
            self.want("{")
            element = self.type()
            self.want("}")
            return SetupRelease(element)
        if name.text == "ENUMERATED":
            self.skip("{", "}")
            return Plain(name.text)
        if name.text == "BIT":
            self.want("STRING")
            self.skip("(", ")")
            return Plain("BIT STRING")
        if name.text in self.PLAIN:
            if self.peek("("):
                self.skip("(", ")")
            return Plain(name.text)
        self.names.append(name)
        return Named(name.text)

    def skip(self, begin, end):
        self.want(begin)
        depth = 1
        while depth > 0:
            text = self.take().text
            depth += (text == begin) - (text == end)

    def list(self):
        self.want("(", "SIZE", "(")
        lower = upper = self.take()
        if self.taken(".."):
            upper = self.take()
        self.want(")", ")", "OF")
        each = List(int(lower.text), None, self.type())
        if upper.kind == "number":
            each.upper = int(upper.text)
        else:
            self.bounds.append((each, upper))
        return each

    def members(self):
        self.want("{")
        found = []
        while not self.taken("}"):
            # A presence is the same whether or not the member is an extension addition.
            if self.taken("...") or self.taken("]]"):
                self.taken(",")
            elif not self.taken("[["):
                found.append(self.member())
        self.partners(found)
        return [member for member, _ in found]

    def member(self):
        name = self.take("name")
        member = Member(name.text, self.type(), self.taken("OPTIONAL"))
        self.taken(",")
        while self.tokens[self.next].kind == "comment":
            self.annotate(member, self.take())
        if member.optional and member.code is None:
            self.fail(name, f"{name.text} is OPTIONAL and has no need code")
        return member, name

    def annotate(self, member, comment):
        if identity := self.IDENTITY.fullmatch(comment.text):
            member.identity, member.released_by = identity.groups()
            return
        before = member.code or member.word
        if condition := self.CONDITION.fullmatch(comment.text):
            member.condition, member.code, member.word = condition.groups()
        elif need := self.NEED.fullmatch(comment.text):
            member.code, member.word = need.groups()
        elif change := self.CHANGE.fullmatch(comment.text):
            member.word, = change.groups()
        else:
            self.fail(comment, f"not understood: {comment.text}")
        codes = ("M", "R", "S", "N", "fixed") if member.condition else ("M", "R", "S", "N")
        if before is not None:
            self.fail(comment, f"{member.name} has a second code")
        if member.optional == (member.code is None):
            self.fail(comment, f"{member.name} is {'OPTIONAL' if member.optional else 'mandatory'}: {comment.text}")
        if member.code is not None and member.code not in codes:
            self.fail(comment, f"{member.code} is none of {', '.join(codes)}")
        if member.word is not None and member.word not in WORDS:
            self.fail(comment, f"{member.word} is none of {', '.join(WORDS)}")

    def partners(self, found):
        by_name = {member.name: member for member, _ in found}
        for member, name in found:
            if member.identity is not None:
                partner = by_name.get(member.released_by)
                if not isinstance(member.type, List) or partner is None or not isinstance(partner.type, List):
                    self.fail(name, f"{member.name} or {member.released_by} is no list")
                partner.releases = member.name
