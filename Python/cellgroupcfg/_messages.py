"""Messages: octets, dictionaries, and what is to be said of them."""

from __future__ import annotations

import ctypes
import json
from functools import partial
from typing import Any, Final, get_args

from . import _library as c
from ._core import (
    E_HEAP,
    SEVERITIES,
    Message,
    Octets,
    Previous,
    Tree,
    Walk,
    collector,
    formatted,
    octets_of,
    path_of,
    silent,
    text_of,
    written,
)
from ._errors import CellGroupError, DecodeError, EncodeError, SettingError
from ._records import words
from ._settings import context_in, known_from
from ._values import Difference, Field, FieldKind, Finding, Found, Meaning

ROOT: Final = "CellGroupConfig"

_FIELD_KINDS: Final[tuple[FieldKind, ...]] = get_args(FieldKind)
_VALUE: Final = _FIELD_KINDS.index("value")
_COUNT: Final = _FIELD_KINDS.index("count")
_ANNOUNCING: Final = (_FIELD_KINDS.index("presence"), _FIELD_KINDS.index("additions"))
#: So many bits of a field are told as a number.
_TOLD_BITS: Final = 57

_ONLY_A, _ONLY_B, _ORDER, _UNKNOWN, _UNREADABLE = 2, 3, 5, 6, 7
_DIFFERENCE_KINDS: Final = {
    _ONLY_A: "removed",
    _ONLY_B: "added",
    _ORDER: "order",
    _UNREADABLE: "unreadable",
}


def _finding_of(_walk: Walk[Finding], item: Any) -> Finding | None:
    told = item.contents
    severity = SEVERITIES.get(told.severity)
    if severity is None:  # a rule that could not be decided
        return None
    return Finding(
        text_of(told.id),
        severity,
        text_of(told.path),
        text_of(told.value),
        text_of(told.allowed),
        text_of(told.message),
        text_of(told.advice),
        text_of(told.clause),
    )


_finding_sink = c.FindingSink(collector(_finding_of))


def _value_text(tree: Tree, kind: int | None, value: int | None) -> str | None:
    if value is None:
        return None
    if kind is not None:
        return tree.notation(kind, value)
    unknown = ctypes.cast(value, ctypes.POINTER(c.OpenType)).contents
    octets = ctypes.string_at(unknown.data, unknown.numocts) if unknown.numocts else b""
    return f"'{octets.hex().upper()}'H"


def _difference_of(walk: Walk[Difference], item: Any) -> Difference:
    told = item.contents
    tree = walk.tree
    assert tree is not None
    is_order = told.kind == _ORDER
    line = formatted(c.lib.rtxDifferenceFormat, item)
    return Difference(
        _DIFFERENCE_KINDS.get(told.kind, "changed"),  # type: ignore[arg-type]
        path_of(line),
        None if is_order else _value_text(tree, told.type, told.a),
        None if is_order else _value_text(tree, told.type, told.b),
    )


_difference_sink = c.DifferenceSink(collector(_difference_of))


def _field_of(walk: Walk[Field], item: Any) -> Field:
    told = item.contents
    tree = walk.tree
    assert tree is not None
    path = ROOT
    for step in told.path[: told.depth]:
        if step.group:
            path += f".[[{step.index}]]"
        elif step.name is None:
            path += f"[{step.index}]"
        else:
            path += "." + text_of(step.name)
    present: tuple[str, ...] = ()
    if told.kind in _ANNOUNCING:
        width = min(told.width, _TOLD_BITS)
        names = (
            c.lib.rtxFieldBitName(item, bit) for bit in range(width) if told.bits >> (width - 1 - bit) & 1
        )
        present = tuple(text_of(name) for name in names if name is not None)
    value = ""
    if told.kind == _VALUE and told.type is not None and told.value is not None:
        value = tree.notation(told.type, told.value)
    elif told.kind == _COUNT:
        value = str(told.bits)
    # The bits of what is announced and of values may lie in two fragments, and the library has joined them.
    is_joined = told.kind == _VALUE or told.kind in _ANNOUNCING
    bits = told.bits if is_joined and told.width <= _TOLD_BITS else tree.bits(told.offset, told.width)
    return Field(_FIELD_KINDS[told.kind], told.offset, told.width, bits, path, value, present)


_field_sink = c.FieldSink(silent(_field_of))


def _meaning_of(_walk: Walk[Meaning], item: Any) -> Meaning:
    told = item.contents
    return Meaning(
        formatted(c.lib.rrcMeaningPathFormat, item),
        text_of(told.text),
        text_of(told.formula),
        text_of(told.clause),
        text_of(told.needs),
    )


_meaning_sink = c.MeaningSink(collector(_meaning_of))


def _found_of(_walk: Walk[tuple[int, int, int]], item: Any) -> tuple[int, int, int]:
    told = item.contents
    return told.bit, told.contentBit, told.octets


_found_sink = c.FoundSink(silent(_found_of))
_no_progress = c.Progress(0)


def decode(octets: Octets) -> dict[str, Any]:
    """What a message says, as a dictionary in the shapes of JER (X.697).

    Raises DecodeError with path, value, bound and the bit at which reading stopped.
    """
    with Tree() as tree:
        place = tree.decoded(octets)
        text = written(lambda sink, walk: int(c.lib.rtxToJson(tree.context, c.TYPE, place, 0, sink, walk)))
    made = json.loads(text)
    assert isinstance(made, dict)
    return made


def encode(message: dict[str, Any] | str) -> bytes:
    """The octets of a message, given as a dictionary in the shapes of JER or as JER itself.

    Raises EncodeError, whose `mistakes` are all that is wrong.
    """
    if not isinstance(message, (dict, str)):
        raise TypeError(f"a dictionary or JER is expected, not {type(message).__name__}")
    with Tree() as tree:
        return tree.encoded(tree.read(message))


def _encoded(message: Message) -> bytes:
    return encode(message) if isinstance(message, (dict, str)) else octets_of(message)


def check(message: Message, /, *, previous: Previous = None, **known: object) -> list[Finding]:
    """All that is wrong with a message: in its encoding, by the ASN.1, and by the rules between its members.

    `previous` is what the UE has before, one message or several in order. The keywords are those of `settings()`:
    what is known besides, such as full=True, band="n78", carrier=["30:0:273"], rach={...}.
    """
    with known_from(previous, known) as besides:
        try:
            octets = _encoded(message)
        except EncodeError as error:
            told = [(one.path or ROOT, one.message) for one in error.mistakes] or [(ROOT, str(error))]
            return [words("jer", path, line) for path, line in told]
        walk: Walk[Finding] = Walk()
        status = c.lib.rrcMessageFindings(
            octets, len(octets), besides.context, besides.held, len(besides.held), _finding_sink, walk
        )
        found = walk.take()
        if status == E_HEAP:
            raise MemoryError
        return found


def diff(a: Message, b: Message) -> list[Difference]:
    """In what two messages differ; elements of lists are matched by their identity."""
    with Tree() as tree:
        walk: Walk[Difference] = Walk(tree)
        place_a, place_b = tree.read(a), tree.read(b)
        status = c.lib.rtxCompare(tree.context, None, c.TYPE, place_a, place_b, _difference_sink, walk)
        found = walk.take()
        if status < 0:
            raise MemoryError
        return found


def trace(octets: Octets) -> list[Field]:
    """Each field on the wire, in order: together they are the message, bit for bit, also of what is no good one."""
    with Tree() as tree:
        walk: Walk[Field] = Walk(tree)
        tree.bind(octets_of(octets))
        if c.lib.rtxTrace(tree.context, c.TYPE, tree.room(), 0, _field_sink, walk) == E_HEAP:
            raise MemoryError
        return walk.take()


def explain(message: Message, /, *, previous: Previous = None, **known: object) -> list[Meaning]:
    """What the values of a message mean, in words and units. Keywords as in check."""
    with known_from(previous, known) as besides, Tree() as tree:
        walk: Walk[Meaning] = Walk()
        place = tree.read(message)
        status = c.lib.rrcExplain(tree.context, place, context_in(tree, besides), _meaning_sink, walk)
        found = walk.take()
        if status < 0:
            tree.fail(CellGroupError)
        return found


def draw(
    message: Message, /, *, first_slot: int = 0, slots: int = 0, previous: Previous = None, **known: object
) -> str:
    """The radio resources of a message as SVG. Keywords as in check; without `slots` the periods tell their number."""
    if not 0 <= first_slot <= 10239:
        raise SettingError(f"first_slot: {first_slot} is not in 0..10239", value=first_slot, lower=0, upper=10239)
    if not 0 <= slots <= 160:
        raise SettingError(f"slots: {slots} is not in 0..160", value=slots, lower=0, upper=160)
    with known_from(previous, known) as besides, Tree() as tree:
        place = tree.read(message)
        context = context_in(tree, besides)
        options = ctypes.byref(c.DrawOptions(first_slot, slots))
        return written(
            lambda sink, walk: int(c.lib.rrcDraw(tree.context, place, context, options, sink, walk)),
            partial(tree.fail, CellGroupError),
        )


def page(
    *messages: Message, names: list[str] | tuple[str, ...] = (), previous: Previous = None, **known: object
) -> str:
    """An HTML page of one message, or of two and their differences. Keywords as in check."""
    if len(messages) not in (1, 2):
        raise TypeError(f"one or two messages are expected, not {len(messages)}")
    with known_from(previous, known) as besides:
        shown = (c.PageMessage * len(messages))()
        for index, message in enumerate(messages):
            octets = _encoded(message)
            name = names[index] if index < len(names) else f"message {index + 1}"
            shown[index] = c.PageMessage(name.encode("utf-8", "replace"), None, octets, len(octets))

        def write(sink: Any, walk: Walk[bytes]) -> int:
            return int(
                c.lib.rrcPage(
                    shown, len(messages), besides.context, besides.held, len(besides.held), sink, walk
                )
            )

        return written(write)


def find(data: Octets, *, least: int = 16) -> list[Found]:
    """The messages of at least `least` octets within anything, at any bit, in their order."""
    if not 1 <= least <= 16383:
        raise SettingError(f"least: {least} is not in 1..16383", value=least, lower=1, upper=16383)
    octets = octets_of(data)
    with Tree() as tree:
        walk: Walk[tuple[int, int, int]] = Walk()
        status = c.lib.rtxFind(
            tree.context, c.TYPE, octets, len(octets), least, _found_sink, _no_progress, walk
        )
        places = walk.take()
        if status == E_HEAP:
            raise MemoryError
        if status < 0:
            raise DecodeError(f"{len(octets)} octets are more than are searched")
    found = []
    for bit, content, count in places:
        buffer = ctypes.create_string_buffer(count)
        c.lib.rtxCopyBits(buffer, octets, content, count)
        found.append(Found(bit, buffer.raw))
    return found


def version() -> str:
    """The version of the shared library."""
    return text_of(c.lib.cellgroupcfgVersion())
