"""For tests of programs that make cell groups, with pytest or without."""

from __future__ import annotations

from ._core import Message
from ._errors import CellGroupError
from ._messages import decode, diff

__all__ = ["assert_cell_group"]


def _read(message: Message, which: str) -> Message:
    """Octets as they are, text as hex or JER."""
    made: Message = message
    if isinstance(message, str) and not message.lstrip().startswith("{"):
        try:
            made = bytes.fromhex(message)
        except ValueError as error:
            raise AssertionError(f"{which} is neither hex nor JER: {error}") from error
    return made


def _expect_good(message: Message, which: str) -> None:
    if not isinstance(message, (dict, str)):
        try:
            decode(message)
        except CellGroupError as error:
            raise AssertionError(f"{which} is no cell group: {error}") from error


def assert_cell_group(actual: Message, expected: Message) -> None:
    """Fails with the difference, a line for each path, unless both are the same cell group.

    Each is octets, their hex, a dictionary in the shapes of JER, or JER.
    """
    __tracebackhide__ = True
    read = {which: _read(message, which) for which, message in (("actual", actual), ("expected", expected))}
    for which, message in read.items():
        _expect_good(message, which)
    try:
        differences = diff(read["expected"], read["actual"])
    except CellGroupError as error:
        raise AssertionError(f"this is no cell group: {error}") from error
    if differences:
        lines = "\n".join(f"  {difference}" for difference in differences)
        raise AssertionError(f"the cell group is another one (expected -> actual):\n{lines}")
