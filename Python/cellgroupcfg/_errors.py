"""What is raised: one base class, with the place, the value and the bound wherever there are such."""

from __future__ import annotations

import re
from dataclasses import dataclass
from typing import Final

#: How the library says that a bound is broken: "9 is not in 0..3", "0 elements, not 1..8", "a bit string of 3 bits, not 45".
_BROKEN: Final = re.compile(r"(?:^|: |tag |of )(-?\d+)(?: is not in | [a-z]+, not )(-?\d+)(?:\.\.(-?\d+))?")


@dataclass(frozen=True, slots=True)
class Mistake:
    """Something wrong in a text or a dictionary: its place, and what would be right."""

    path: str
    message: str
    #: In the text, both from 1; None of a dictionary.
    line: int | None = None
    column: int | None = None

    def __str__(self) -> str:
        place = "" if self.line is None else f"{self.line}:{self.column}: "
        return place + (f"{self.path}: " if self.path else "") + self.message


class CellGroupError(ValueError):
    """What cannot be done, in one line."""

    def __init__(
        self,
        message: str,
        *,
        path: str = "",
        value: int | None = None,
        lower: int | None = None,
        upper: int | None = None,
        offset: int | None = None,
        line: int | None = None,
        column: int | None = None,
    ) -> None:
        super().__init__(message)
        broken = _BROKEN.search(message) if value is None else None
        if broken is not None:
            value, lower, upper = int(broken[1]), int(broken[2]), int(broken[3] or broken[2])
        #: From CellGroupConfig on, of a record from the record on.
        self.path = path
        #: What is there, with the bound that it breaks.
        self.value = value
        self.lower = lower
        self.upper = upper
        #: The bit of the input where the decoder stood.
        self.offset = offset
        #: Of the text that was given, both from 1.
        self.line = line
        self.column = column


class DecodeError(CellGroupError):
    """Octets that are no CellGroupConfig."""


class EncodeError(CellGroupError):
    """A dictionary or a text that is no CellGroupConfig."""

    def __init__(self, message: str, mistakes: tuple[Mistake, ...] = ()) -> None:
        first = mistakes[0] if mistakes else Mistake("", message)
        super().__init__(message, path=first.path, line=first.line, column=first.column)
        #: All that is wrong, at most 50; the first one is the exception's own.
        self.mistakes = mistakes


class RecordError(EncodeError):
    """A record that cannot be read."""


class ComposeError(CellGroupError):
    """A record that makes no message."""


class UnsaidError(CellGroupError):
    """A message that no record composes to."""

    def __init__(self, message: str, unsaid: tuple[str, ...]) -> None:
        super().__init__(message, path=message.split(": ", 1)[0])
        #: A line for each thing that a record cannot say.
        self.unsaid = unsaid


class DeltaError(CellGroupError):
    """A change that no delta brings, or a message that cannot be applied."""


class SettingError(CellGroupError):
    """A setting that there is not, or that cannot be."""
