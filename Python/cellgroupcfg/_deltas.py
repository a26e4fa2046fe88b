"""What takes a UE from one configuration to another."""

from __future__ import annotations

import ctypes
from collections.abc import Iterable
from typing import Any, Final

from . import _library as c
from ._core import E_DELTA, Message, Tree, Walk, formatted, path_of, silent
from ._errors import DeltaError

_REFUSED: Final = 5
_NOTHING: Final = 1
_MORE: Final = 2

_RECREATE: Final = {"bearers": 1, "scells": 2, "bwps": 4, "none": 8}
_TWO_STEPS: Final = 16
_SYNC: Final = 32
_SWITCH: Final = 64


def _refusal(_walk: Walk[str], item: Any) -> str | None:
    return formatted(c.lib.rtxDeltaFormat, item) if item.contents.kind == _REFUSED else None


_sink = c.DeltaSink(silent(_refusal))


def _expect(status: int, refusals: list[str], tree: Tree) -> None:
    if status == E_DELTA and refusals:
        refused = DeltaError(refusals[0])
        refused.path = path_of(refusals[0])
        raise refused
    if status < 0:
        tree.fail(DeltaError)


def _apply(tree: Tree, prev: int | None, delta: int) -> int:
    place = tree.room()
    walk: Walk[str] = Walk()
    status = c.lib.rtxApply(tree.context, c.TYPE, prev, delta, place, _sink, walk)
    _expect(status, walk.take(), tree)
    return place


def apply_to(state: bytes | None, message: Message) -> bytes:
    """What a UE that holds a state holds after a message; without a state, after a complete message."""
    with Tree() as tree:
        told = tree.read(message)
        held = tree.state(told) if state is None else _apply(tree, tree.decoded(state), told)
        return tree.encoded(held)


def apply(prev: Message | None, delta: Message) -> bytes:
    """What a UE that held `prev` (None: nothing) holds after the delta, as octets.

    Raises DeltaError where a UE could not do it.
    """
    with Tree() as tree:
        held = None if prev is None else tree.state(tree.read(prev))
        return tree.encoded(_apply(tree, held, tree.read(delta)))


def _flags(recreate: Iterable[str], *, two_steps: bool, sync: bool, switch: bool) -> int:
    lists = [recreate] if isinstance(recreate, str) else list(recreate)
    flags = (_TWO_STEPS if two_steps else 0) | (_SYNC if sync else 0) | (_SWITCH if switch else 0)
    for name in lists:
        if name not in _RECREATE:
            raise DeltaError(f"recreate: {name!r} is none of {', '.join(_RECREATE)}")
        flags |= _RECREATE[name]
    if "none" in lists and len(lists) > 1:
        raise DeltaError("recreate: none stands alone")
    return flags


def _made(tree: Tree, prev: int | None, next_: int, flags: int) -> tuple[int, bytes | None]:
    """The status of rtxDiff, and the delta's octets."""
    place = tree.room()
    walk: Walk[str] = Walk()
    options = c.DeltaOptions(flags, walk)
    status = c.lib.rtxDiff(tree.context, c.TYPE, prev, next_, ctypes.byref(options), place, _sink)
    _expect(status, walk.take(), tree)
    return status, None if status == _NOTHING else tree.encoded(place, DeltaError)


def deltas(
    prev: Message | None,
    next: Message,  # noqa: A002
    *,
    recreate: Iterable[str] = (),
    two_steps: bool = True,
    sync: bool = False,
    switch: bool = False,
) -> list[bytes]:
    """The messages that take a UE from `prev` (None: nothing) to `next`: none, one, or two where one cannot do it.

    `recreate` names what else may be released and added again: "bearers", "scells", "bwps"; or "none" of all lists.
    `sync` sends reconfigurationWithSync also when it is the same, `switch` the SpCell's first active bandwidth parts.
    """
    flags = _flags(recreate, two_steps=two_steps, sync=sync, switch=switch)
    with Tree() as tree:
        held = None if prev is None else tree.read(prev)
        wanted = tree.read(next)
        status, first = _made(tree, held, wanted, flags)
        if first is None:
            return []
        if status != _MORE:
            return [first]
        held = _apply(tree, held, tree.decoded(first))
        _, second = _made(tree, held, tree.state(wanted), flags & ~(_SYNC | _SWITCH))
        return [first] if second is None else [first, second]


def delta(
    prev: Message | None,
    next: Message,  # noqa: A002
    *,
    recreate: Iterable[str] = (),
    sync: bool = False,
    switch: bool = False,
) -> bytes | None:
    """The smallest message that takes a UE from `prev` (None: nothing) to `next`; None: there is nothing to send.

    Both are complete configurations. Raises DeltaError where no single message does it; `deltas` may then do it in two.
    """
    made = deltas(prev, next, recreate=recreate, two_steps=False, sync=sync, switch=switch)
    return made[0] if made else None
