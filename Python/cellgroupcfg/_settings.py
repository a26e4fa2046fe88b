"""What is known besides a message, from keywords."""

from __future__ import annotations

import ctypes
import difflib
import json
import re
from collections.abc import Iterable, Iterator, Mapping
from contextlib import contextmanager
from dataclasses import dataclass
from typing import Any

from . import _library as c
from ._core import LONGEST_LINE, Previous, Tree, octets_of, text_of
from ._deltas import apply_to
from ._errors import SettingError
from ._values import Setting


def keyword_of(name: str) -> str:
    """The keyword of a setting: "type_a_position" of "typeA-position"."""
    return re.sub(r"(?<=[a-z])(?=[A-Z])", "_", name).replace("-", "_").lower()


def _read_all() -> dict[str, tuple[str, Setting]]:
    """Name and description of each setting, by its keyword."""
    known = {}
    for index in range(c.lib.rrcSettingCount()):
        told = c.lib.rrcSettingAt(index).contents
        name = text_of(told.name)
        setting = Setting(
            keyword_of(name), text_of(told.argument), text_of(told.description), bool(told.isRepeatable)
        )
        known[setting.keyword] = (name, setting)
    return known


_ALL = _read_all()


def settings() -> list[Setting]:
    """All settings, in the order in which the command-line tool's help has them."""
    return [setting for _, setting in _ALL.values()]


@dataclass(frozen=True, slots=True)
class Known:
    """What is known: the library's context, and what the UE has before the message."""

    context: Any
    held: bytes


def _values(setting: Setting, value: object) -> Iterable[object]:
    is_several = setting.is_repeatable and isinstance(value, (list, tuple))
    return value if is_several else [value]  # type: ignore[return-value]


def _text(setting: Setting, value: object) -> str:
    if isinstance(value, bool) or not isinstance(value, (str, int, Mapping)):
        raise SettingError(f"{setting.keyword}: {setting.argument} is expected, not {value!r}")
    try:
        return json.dumps(value, allow_nan=False) if isinstance(value, Mapping) else str(value)
    except (TypeError, ValueError, RecursionError) as error:
        raise SettingError(f"{setting.keyword}: {error}") from error


def _set(made: int, keyword: str, value: object) -> None:
    if keyword not in _ALL:
        close = difflib.get_close_matches(keyword, _ALL, 1)
        raise SettingError(f"there is no setting {keyword}" + (f"; did you mean {close[0]}?" if close else ""))
    name, setting = _ALL[keyword]
    if not setting.argument:
        if not isinstance(value, bool):
            raise SettingError(f"{keyword} is True or False, not {value!r}")
        _say(made, name, keyword, "", value)
        return
    for one in _values(setting, value):
        _say(made, name, keyword, _text(setting, one), True)


def _say(made: int, name: str, keyword: str, value: str, is_said: bool) -> None:
    if not is_said:
        return
    try:
        octets = value.encode("utf-8")
    except UnicodeEncodeError as error:
        raise SettingError(f"{keyword}: {error}") from error
    line = ctypes.create_string_buffer(LONGEST_LINE)
    if c.lib.rrcSettingsSet(made, name.encode(), octets, len(octets), keyword.encode(), line, len(line)) != 0:
        raise SettingError(text_of(line.value))


def _held(previous: Previous) -> bytes:
    """What the UE has after these messages, in order."""
    if previous is None:
        return b""
    messages = previous if isinstance(previous, (list, tuple)) else [previous]
    state: bytes | None = None
    for message in messages:
        state = apply_to(state, octets_of(message))
    return state or b""


@contextmanager
def known_from(
    previous: Previous, keywords: Mapping[str, object]
) -> Iterator[Known]:
    """What the keywords say, for the length of a `with` block."""
    made = c.lib.rrcSettingsNew()
    if made is None:
        raise MemoryError
    try:
        if previous is not None:
            _say(made, "previous", "previous", "", True)
        for keyword, value in keywords.items():
            if value is not None:
                _set(made, keyword, value)
        line = ctypes.create_string_buffer(LONGEST_LINE)
        context = c.lib.rrcSettingsContext(made, line, len(line))
        if not context:
            raise SettingError(text_of(line.value))
        yield Known(context, _held(previous))
    finally:
        c.lib.rrcSettingsFree(made)


def context_in(tree: Tree, known: Known) -> Any:
    """The context with what the UE has, in a tree's heap."""
    own = c.RuleContext.from_buffer_copy(known.context.contents)
    own.previous = tree.decoded(known.held) if known.held else None
    return ctypes.byref(own)
