"""A context for each call, and what walks over a tree give."""

from __future__ import annotations

import ctypes
import json
from collections.abc import Callable
from types import TracebackType
from typing import Any, Final, Generic, NoReturn, TypeVar

from . import _library as c
from ._errors import CellGroupError, DecodeError, DeltaError, EncodeError, Mistake
from ._values import Severity

T = TypeVar("T")

Octets = bytes | bytearray | memoryview
Message = Octets | dict[str, Any] | str
#: What a UE got before: one message, or several in order.
Previous = Octets | list[Octets] | tuple[Octets, ...] | None

#: Of RrcRuleSeverity; a rule that could not be decided has none.
SEVERITIES: Final[dict[int, Severity]] = {1: "notice", 2: "warning", 3: "error"}

#: The library's lines are no longer, with their terminator.
LONGEST_LINE: Final = 8192

E_RANGE, E_SIZE, E_CHOICE, E_BITS = -1, -2, -3, -4
E_OVERFLOW, E_HEAP, E_DELTA = -8, -11, -18

#: A longer encoding is none that anybody sends.
_MOST_OCTETS = 1 << 26
_USUAL_OCTETS = 8192


class Walk(Generic[T]):
    """What the sinks of one call have collected. What is raised in a sink ends the walk, and is raised again by take()."""

    __slots__ = ("items", "error", "tree")

    def __init__(self, tree: Tree | None = None) -> None:
        self.items: list[T] = []
        self.error: BaseException | None = None
        self.tree = tree

    def take(self) -> list[T]:
        """What was collected."""
        if self.error is not None:
            error, self.error = self.error, None
            raise error
        return self.items


def collector(convert: Callable[[Walk[Any], Any], Any]) -> Callable[[Walk[Any], Any], int]:
    """A sink that appends what `convert` makes of an item; None is left out."""

    def sink(walk: Walk[Any], item: Any) -> int:
        if walk.error is None:
            try:
                made = convert(walk, item)
                if made is not None:
                    walk.items.append(made)
            except BaseException as error:  # whatever it is, C code must not see it
                walk.error = error
        return 0 if walk.error is None else 1

    return sink


def silent(convert: Callable[[Walk[Any], Any], Any]) -> Callable[[Walk[Any], Any], None]:
    """The same for a sink that cannot end its walk."""
    collect = collector(convert)

    def sink(walk: Walk[Any], item: Any) -> None:
        collect(walk, item)

    return sink


def text_of(octets: bytes | None) -> str:
    """Text of the library, which may quote octets of strangers."""
    return "" if octets is None else octets.decode("utf-8", "replace")


_text_sink = c.TextSink(silent(lambda _walk, piece: piece))


def mistake_of(told: Any) -> Mistake:
    """What a reader of texts tells."""
    return Mistake(text_of(told.path), text_of(told.words), told.line, told.column)


_mistake_sink = c.MistakeSink(silent(lambda _walk, item: mistake_of(item.contents)))


def out_of_memory() -> NoReturn:
    """What is raised of a call that has no other reason to fail."""
    raise MemoryError


def written(write: Callable[[Any, Walk[bytes]], int], fail: Callable[[], NoReturn] = out_of_memory) -> str:
    """The text that a writer gives piece by piece; `fail` raises why its status is negative."""
    walk: Walk[bytes] = Walk()
    status = write(_text_sink, walk)
    text = text_of(b"".join(walk.take()))
    if status < 0:
        fail()
    return text


def formatted(format_: Callable[[Any, Any, int], int], item: Any) -> str:
    """The line that a function of the library writes."""
    size = format_(item, None, 0) + 1
    line = ctypes.create_string_buffer(size)
    format_(item, line, size)
    return text_of(line.value)


def path_of(line: str) -> str:
    """The path before what is wrong there."""
    return line.split(": ", 1)[0]


def octets_of(octets: Octets) -> bytes:
    """Octets as ctypes takes them."""
    if not isinstance(octets, (bytes, bytearray, memoryview)):
        hint = "; bytes.fromhex reads hex" if isinstance(octets, str) else ""
        raise TypeError(f"octets are expected as bytes, not as {type(octets).__name__}{hint}")
    return bytes(octets)


def text_for(data: object, mistaken: type[EncodeError]) -> tuple[bytes, bool]:
    """JSON of a dictionary, or the text that was given; and whether it was one."""
    try:
        if isinstance(data, str):
            return data.encode("utf-8"), True
        if isinstance(data, dict):
            return json.dumps(data, allow_nan=False).encode("ascii"), False
    except (TypeError, ValueError, RecursionError) as error:
        raise mistaken(f"this is nothing that JSON can say: {error}") from error
    raise TypeError(f"a dictionary or its JSON is expected, not {type(data).__name__}")


def refuse(mistakes: list[Mistake], is_text: bool, mistaken: type[EncodeError]) -> NoReturn:
    """Raises the mistakes; only of a text that the caller knows their lines mean something."""
    if not is_text:
        mistakes = [Mistake(one.path, one.message) for one in mistakes]
    raise mistaken(str(mistakes[0]), tuple(mistakes))


class Tree:
    """A context and the trees in its heap, for the length of a `with` block."""

    __slots__ = ("context", "_bound")

    def __init__(self) -> None:
        self.context = c.Context()
        self._bound = b""
        c.lib.rtxInitContext(self.context)

    def __enter__(self) -> Tree:
        return self

    def __exit__(
        self, kind: type[BaseException] | None, error: BaseException | None, trace: TracebackType | None
    ) -> None:
        c.lib.rtFreeContext(self.context)

    def room(self) -> int:
        """Room for the root of a tree."""
        place = c.lib.rtxMemHeapAlloc(self.context, c.TREE_SIZE)
        if place is None:
            raise MemoryError
        return int(place)

    def bind(self, octets: bytes) -> None:
        """Lets the decoder read these octets."""
        self._bound = octets  # it lives as long as the decoder may look at it
        c.lib.pu_setBuffer(self.context, octets, len(octets), 0)

    def bits(self, offset: int, width: int) -> int:
        """So many bits of what is bound, as a number."""
        first, end = offset // 8, (offset + width + 7) // 8
        piece = int.from_bytes(self._bound[first:end], "big")
        return piece >> (8 * end - offset - width) & ((1 << width) - 1)

    def fail(self, kind: type[CellGroupError]) -> NoReturn:
        """Raises what the context's error says."""
        error = self.context.error
        if error.status == E_HEAP:
            raise MemoryError
        line = formatted(c.lib.rtxErrorFormat, error)
        raised = kind(line)
        raised.path = path_of(line)
        if error.status in (E_RANGE, E_SIZE, E_CHOICE, E_BITS):
            raised.value, raised.lower, raised.upper = error.value, error.lower, error.upper
        if error.hasOffset:
            raised.offset = error.bitOffset
        raise raised

    def decoded(self, octets: Octets, kind: type[CellGroupError] = DecodeError) -> int:
        """The tree of a message."""
        place = self.room()
        self.bind(octets_of(octets))
        if c.lib.rtxDecode(self.context, c.TYPE, place, 0) != 0:
            self.fail(kind)
        return place

    def read(self, message: Message) -> int:
        """The tree of octets, of a dictionary or of JER."""
        if not isinstance(message, (dict, str)):
            return self.decoded(message)
        text, is_text = text_for(message, EncodeError)
        place = self.room()
        walk: Walk[Mistake] = Walk()
        count = c.lib.asn1FromJson(self.context, c.TYPE, place, text, len(text), _mistake_sink, walk)
        mistakes = walk.take()
        if count != 0:
            refuse(mistakes, is_text, EncodeError)
        return place

    def encoded(self, place: int, kind: type[CellGroupError] = EncodeError) -> bytes:
        """The octets of a tree."""
        size = _USUAL_OCTETS
        while True:
            buffer = ctypes.create_string_buffer(size)
            c.lib.rtxErrReset(self.context)
            c.lib.pu_setBuffer(self.context, buffer, size, 0)
            status = c.lib.asn1PE_CellGroupConfig(self.context, place)
            if status == 0:
                return ctypes.string_at(buffer, c.lib.pu_getMsgLen(self.context))
            if status != E_OVERFLOW or size >= _MOST_OCTETS:
                self.fail(kind)
            size *= 2

    def state(self, message: int) -> int:
        """What a complete message leaves behind."""
        place = self.room()
        if c.lib.rtxState(self.context, c.TYPE, message, place) != 0:
            self.fail(DeltaError)
        return place

    def notation(self, kind: int, value: int | None) -> str:
        """A value in X.680's notation, without its type."""
        text = written(lambda sink, walk: int(c.lib.rtxToValueNotation(self.context, kind, value, 0, sink, walk)))
        return text.split("::= ", 1)[1].rstrip("\n")
