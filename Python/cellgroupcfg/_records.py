"""Records: what a base station composes a cell group of."""

from __future__ import annotations

import ctypes
import json
from typing import Any, Final

from . import _library as c
from ._core import (
    LONGEST_LINE,
    SEVERITIES,
    Octets,
    Tree,
    Walk,
    collector,
    formatted,
    mistake_of,
    path_of,
    refuse,
    silent,
    text_for,
    text_of,
    written,
)
from ._errors import ComposeError, EncodeError, Mistake, RecordError, UnsaidError
from ._values import Finding, Severity

ROOT: Final = "RrcCellGroupCfg_t"

_UNDECIDED: Final = 0
_COMPOSE_E_MEMORY: Final = -5
_MOST_OCTETS: Final = 8192

Record = dict[str, Any] | str


def _mistake_of(_walk: Walk[tuple[bool, Mistake]], item: Any) -> tuple[bool, Mistake]:
    return bool(item.contents.isUnread), mistake_of(item.contents.mistake)


_mistake_sink = c.RecordMistakeSink(silent(_mistake_of))


def _sentence(text: str) -> str:
    return text[:1].upper() + text[1:] + "." if text else ""


def _finding_of(_walk: Walk[Finding], item: Any) -> Finding:
    told = item.contents
    found, path = text_of(told.found), text_of(told.path)
    return Finding(
        id=text_of(told.rule.contents.id),
        severity=SEVERITIES[told.severity],
        path=_path(path),
        value=found,
        allowed=text_of(told.allowed),
        message=found + (" " if found else "") + text_of(told.words),
        advice=_sentence(text_of(told.advice)),
        clause="",
    )


_record_sink = c.RecordSink(collector(_finding_of))


def _path(path: str) -> str:
    return f"{ROOT}.{path}" if path else ROOT


def _unsaid_of(_walk: Walk[str], item: Any) -> str:
    return formatted(c.lib.rrcUnsaidFormat, item)


_unsaid_sink = c.UnsaidSink(collector(_unsaid_of))


def words(id_: str, path: str, message: str, severity: Severity = "error") -> Finding:
    """A finding of a reader, with the words that the library has for its id."""
    advice = text_of(c.lib.rrcFindingAdvice(id_.encode()))
    clause = text_of(c.lib.rrcFindingClause(id_.encode()))
    return Finding(id_, severity, path, "", "", message, advice, clause)


def _read(record: Record) -> tuple[Any, list[Mistake], list[Mistake], bool]:
    """The record; its mistakes, what is not read of it, and whether it was a text."""
    text, is_text = text_for(record, RecordError)
    room = ctypes.create_string_buffer(c.RECORD_SIZE)
    walk: Walk[tuple[bool, Mistake]] = Walk()
    c.lib.rrcRecordFromJson(room, text, len(text), None, _mistake_sink, walk)
    told = walk.take()
    return room, [one for unread, one in told if not unread], [one for unread, one in told if unread], is_text


def _refusal(room: Any) -> str:
    """Why a record makes no message; empty where it does."""
    line = ctypes.create_string_buffer(LONGEST_LINE)
    octets = ctypes.create_string_buffer(_MOST_OCTETS)
    length = ctypes.c_size_t()
    if c.lib.rrcEncodeCellGroupCfg(room, octets, len(octets), ctypes.byref(length), line, len(line)) == 0:
        return ""
    return text_of(line.value)


def compose(record: Record) -> bytes:
    """The message that a record makes; a record is a dictionary, or its JSON, as docs/record-json.md has it.

    Raises RecordError where the record cannot be read and ComposeError where it makes no message.
    """
    room, mistakes, _, is_text = _read(record)
    if mistakes:
        refuse(mistakes, is_text, RecordError)
    with Tree() as tree:
        place = ctypes.c_void_p()
        status = c.lib.rrcComposeCellGroupTree(tree.context, room, ctypes.byref(place))
        if status == _COMPOSE_E_MEMORY:
            raise MemoryError
        if status != 0 or place.value is None:
            line = _refusal(room)
            raise ComposeError(line, path=path_of(line))
        octets = tree.encoded(place.value, ComposeError)
        if len(octets) > _MOST_OCTETS:
            raise ComposeError(f"the message has {len(octets)} octets, more than {_MOST_OCTETS}")
        return octets


def record(octets: Octets, *, partial: bool = False) -> dict[str, Any]:
    """The record that composes to a message, as a dictionary.

    Raises UnsaidError where no record says all of it; `partial` gives what a record can say.
    """
    with Tree() as tree:
        room = ctypes.create_string_buffer(c.RECORD_SIZE)
        unsaid: Walk[str] = Walk()
        place = tree.decoded(octets)
        status = c.lib.rrcDecomposeCellGroupCfg(tree.context, place, room, _unsaid_sink, unsaid)
        lines = unsaid.take()
        if status < 0:
            raise MemoryError
        if lines and not partial:
            raise UnsaidError(lines[0], tuple(lines))
        made = json.loads(written(lambda sink, walk: c.lib.rrcRecordToJson(room, sink, walk) or 0))
        assert isinstance(made, dict)
        return made


def check_record(record: Record) -> list[Finding]:
    """All that is wrong with a record before it is composed, in its own terms."""
    try:
        room, mistakes, unread, is_text = _read(record)
    except EncodeError as error:
        return [words("record", ROOT, str(error))]
    if mistakes:
        return [words("record", _path(one.path), one.message) for one in mistakes]
    walk: Walk[Finding] = Walk()
    c.lib.rrcCheckCellGroupCfg(room, _record_sink, walk)
    found = walk.take()
    found += [words("record-unread", _path(one.path), one.message, "warning") for one in unread]
    if all(one.severity != "error" for one in found):
        refusal = _refusal(room)
        if refusal:
            found.append(words("record-refused", ROOT, refusal))
    return found
