"""What the functions give back."""

from __future__ import annotations

from dataclasses import dataclass
from typing import Literal

Severity = Literal["notice", "warning", "error"]
#: In the order of RtxFieldKind.
FieldKind = Literal[
    "extension",
    "presence",
    "additions",
    "choice",
    "count",
    "length",
    "value",
    "padding",
    "unknown",
    "surplus",
    "unread",
]


@dataclass(frozen=True, slots=True)
class Finding:
    """Something wrong with a message or a record."""

    #: Names the rule, the same for all that break it: "asn1-range", "bwp-in-carrier".
    id: str
    severity: Severity
    #: From CellGroupConfig on, or from RrcCellGroupCfg_t on where it is of a record.
    path: str
    #: What is there; empty where there is nothing to show.
    value: str
    #: What could be there.
    allowed: str
    #: What is wrong, one sentence without the path.
    message: str
    #: What to do.
    advice: str
    #: Of the standard: "X.680 51.4".
    clause: str

    def __str__(self) -> str:
        return f"{self.severity}: {self.path}: {self.message} [{self.id}]"


@dataclass(frozen=True, slots=True)
class Difference:
    """One of what two messages differ in."""

    kind: Literal["changed", "removed", "added", "order", "unreadable"]
    #: Elements of lists by their identity: "rlc-BearerToAddModList[logicalChannelIdentity 4]".
    path: str
    #: In value notation (X.680); None where there is none.
    a: str | None
    b: str | None

    def __str__(self) -> str:
        if self.kind == "removed":
            return f"- {self.path} = {self.a}"
        if self.kind == "added":
            return f"+ {self.path} = {self.b}"
        if self.kind == "order":
            return f"~ {self.path}: the elements stand in another order"
        if self.kind == "unreadable":
            return f"~ {self.path}: cannot be compared"
        return f"~ {self.path}: {self.a or 'none'} -> {self.b or 'none'}"


@dataclass(frozen=True, slots=True)
class Field:
    """A field on the wire."""

    kind: FieldKind
    #: Its first bit in the message, and how many it has.
    offset: int
    width: int
    #: Those bits as a number.
    bits: int
    path: str
    #: Of a value in value notation, of a count the number of elements; else empty.
    value: str
    #: Of presence and additions: the members that are announced as present.
    present: tuple[str, ...]


@dataclass(frozen=True, slots=True)
class Meaning:
    """What a value means."""

    path: str
    #: "PRBs 0..272 (273)"; empty where nothing can be said without `needs`.
    text: str
    #: How that comes about, in words.
    formula: str
    clause: str
    #: What would have to be known to say more.
    needs: str


@dataclass(frozen=True, slots=True)
class Found:
    """A message within other octets."""

    #: The bit at which its length determinant begins.
    offset: int
    octets: bytes


@dataclass(frozen=True, slots=True)
class Setting:
    """What can be known besides a message: a keyword of check, explain, draw and page."""

    keyword: str
    #: What its value is; empty: True.
    argument: str
    description: str
    #: It may have a list of values.
    is_repeatable: bool
