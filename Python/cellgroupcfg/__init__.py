"""Cell groups in Python: the CellGroupConfig of TS 38.331, decoded, encoded, composed, checked and compared.

Messages are octets (unaligned PER) or dictionaries in the shapes of JER (X.697). Every function may be called from any
thread; calls share nothing.
"""

from __future__ import annotations

from ._deltas import apply, delta, deltas
from ._errors import (
    CellGroupError,
    ComposeError,
    DecodeError,
    DeltaError,
    EncodeError,
    Mistake,
    RecordError,
    SettingError,
    UnsaidError,
)
from ._messages import check, decode, diff, draw, encode, explain, find, page, trace, version
from ._records import check_record, compose, record
from ._settings import settings
from ._values import Difference, Field, Finding, Found, Meaning, Setting, Severity

__all__ = [
    "CellGroupError",
    "ComposeError",
    "DecodeError",
    "DeltaError",
    "Difference",
    "EncodeError",
    "Field",
    "Finding",
    "Found",
    "Meaning",
    "Mistake",
    "RecordError",
    "Setting",
    "SettingError",
    "Severity",
    "UnsaidError",
    "apply",
    "check",
    "check_record",
    "compose",
    "decode",
    "delta",
    "deltas",
    "diff",
    "draw",
    "encode",
    "explain",
    "find",
    "page",
    "record",
    "settings",
    "trace",
    "version",
]

for _public in (globals()[name] for name in __all__):
    if hasattr(_public, "__qualname__"):
        _public.__module__ = __name__  # what is raised and shown bears the name that is imported
