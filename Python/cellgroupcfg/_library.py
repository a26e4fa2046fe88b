"""The shared library: where it is found, its structures as its C headers have them, and its functions.

tests/Python/test_layout.py compares each structure with what the C compiler says.
"""

from __future__ import annotations

import ctypes
import os
from ctypes import (
    CFUNCTYPE,
    POINTER,
    Structure,
    Union,
    c_char_p,
    c_int,
    c_int32,
    c_int64,
    c_size_t,
    c_uint,
    c_uint8,
    c_uint16,
    c_uint32,
    c_uint64,
    c_void_p,
    py_object,
)
from pathlib import Path
from typing import Any, Final

#: CELLGROUPCFG_ABI of the headers that this module mirrors.
ABI: Final = 0

NAME: Final = f"libcellgroupcfg_full.so.{ABI}"
VARIABLE: Final = "CELLGROUPCFG_LIBRARY"

MAX_DEPTH: Final = 48


class PathStep(Structure):
    """RtxPathStep."""

    _fields_ = [("name", c_char_p), ("index", c_uint32), ("group", c_uint8)]


class Error(Structure):
    """RtxError."""

    _fields_ = [
        ("status", c_int32),
        ("depth", c_uint32),
        ("value", c_int64),
        ("lower", c_int64),
        ("upper", c_int64),
        ("bitOffset", c_uint64),
        ("hasOffset", c_uint8),
        ("path", PathStep * MAX_DEPTH),
    ]


class Decoded(Structure):
    """RtxDecoded."""

    _fields_ = [("octets", c_size_t), ("unknown", c_uint32), ("note", c_uint8), ("noteOffset", c_uint64)]


class ContextHeap(Structure):
    """OSCTXT.heap."""

    _fields_ = [
        ("blocks", c_void_p),
        ("next", c_void_p),
        ("end", c_void_p),
        ("left", c_size_t),
        ("memory", c_void_p),
        ("failed", c_uint8),
    ]


class ContextBuffer(Structure):
    """OSCTXT.buffer."""

    _fields_ = [("data", c_void_p), ("capacity", c_size_t), ("msgLen", c_size_t)]


class Context(Structure):
    """OSCTXT."""

    _fields_ = [("heap", ContextHeap), ("buffer", ContextBuffer), ("decoded", Decoded), ("error", Error)]


class OpenType(Structure):
    """ASN1OpenType."""

    _fields_ = [("numocts", c_uint32), ("index", c_uint32), ("data", c_void_p)]


class WireField(Structure):
    """RtxField."""

    _fields_ = [
        ("kind", c_uint8),
        ("note", c_uint8),
        ("offset", c_uint64),
        ("width", c_uint64),
        ("bits", c_uint64),
        ("type", c_void_p),
        ("value", c_void_p),
        ("group", c_uint32),
        ("depth", c_uint32),
        ("path", POINTER(PathStep)),
    ]


class FoundMessage(Structure):
    """RtxFound."""

    _fields_ = [("bit", c_uint64), ("contentBit", c_uint64), ("octets", c_uint32)]


class DifferenceStep(Structure):
    """RtxDifferenceStep."""

    _fields_ = [
        ("name", c_char_p),
        ("indexA", c_uint32),
        ("indexB", c_uint32),
        ("identity", c_char_p),
        ("id", c_int64),
    ]


class TreeDifference(Structure):
    """RtxDifference."""

    _fields_ = [
        ("kind", c_int32),
        ("depth", c_uint32),
        ("type", c_void_p),
        ("a", c_void_p),
        ("b", c_void_p),
        ("path", DifferenceStep * MAX_DEPTH),
    ]


class DeltaItem(Structure):
    """RtxDeltaItem."""

    _fields_ = [
        ("kind", c_int32),
        ("reason", c_int32),
        ("cause", c_int32),
        ("need", ctypes.c_char),
        ("condition", c_char_p),
        ("ancestor", c_uint32),
        ("depth", c_uint32),
        ("path", DifferenceStep * MAX_DEPTH),
    ]


class DeltaOptions(Structure):
    """RtxDeltaOptions."""

    _fields_ = [("flags", c_uint), ("arg", py_object)]


class TextMistake(Structure):
    """Asn1Mistake."""

    _fields_ = [
        ("offset", c_size_t),
        ("line", c_uint32),
        ("column", c_uint32),
        ("path", c_char_p),
        ("words", c_char_p),
    ]


class RecordMistake(Structure):
    """RrcRecordMistake."""

    _fields_ = [("file", c_char_p), ("mistake", TextMistake), ("isUnread", c_uint8)]


class RecordRule(Structure):
    """RrcRecordRule."""

    _fields_ = [
        ("id", c_char_p),
        ("region", c_char_p),
        ("field", c_char_p),
        ("goesOut", c_char_p),
        ("instead", c_char_p),
        ("places", c_void_p),
        ("severity", c_uint8),
    ]


class RecordFinding(Structure):
    """RrcRecordFinding."""

    _fields_ = [
        ("rule", POINTER(RecordRule)),
        ("severity", c_uint8),
        ("path", c_char_p),
        ("element", c_char_p),
        ("found", c_char_p),
        ("allowed", c_char_p),
        ("words", c_char_p),
        ("advice", c_char_p),
    ]


class Unsaid(Structure):
    """RrcUnsaid."""

    _fields_ = [("reason", c_int32), ("difference", POINTER(TreeDifference))]


class MessageFinding(Structure):
    """RrcMessageFinding."""

    _fields_ = [
        ("id", c_char_p),
        ("severity", c_uint8),
        ("path", c_char_p),
        ("message", c_char_p),
        ("value", c_char_p),
        ("allowed", c_char_p),
        ("advice", c_char_p),
        ("clause", c_char_p),
        ("decidedBy", c_uint32),
    ]


class RuleContext(Structure):
    """RrcRuleContext."""

    _fields_ = [
        ("previous", c_void_p),
        ("extent", c_uint8),
        ("message", c_uint8),
        ("fullConfig", c_uint8),
        ("group", c_uint8),
        ("connectivity", c_uint8),
        ("band", c_uint16),
        ("range", c_uint8),
        ("duplex", c_uint8),
        ("carriersDl", c_void_p),
        ("carriersUl", c_void_p),
        ("numCarriersDl", c_uint8),
        ("numCarriersUl", c_uint8),
        ("initialDownlinkBwp", c_void_p),
        ("initialUplinkBwp", c_void_p),
        ("ssbPositionsInBurst", c_void_p),
        ("ssbPositionsBits", c_uint8),
        ("typeAPosition", c_void_p),
        ("coreset0", c_void_p),
        ("tdd", c_void_p),
        ("rachCommon", c_void_p),
        ("bearers", c_void_p),
        ("measObjects", c_void_p),
        ("numMeasObjects", c_uint8),
        ("hasMeas", c_uint8),
        ("otherGroupCells", c_void_p),
        ("capabilities", c_void_p),
    ]


class Setting(Structure):
    """RrcSetting."""

    _fields_ = [
        ("name", c_char_p),
        ("argument", c_char_p),
        ("group", c_char_p),
        ("description", c_char_p),
        ("isRepeatable", c_uint8),
    ]


class MeaningOf(Structure):
    """RrcMeaning."""

    _fields_ = [
        ("value", c_void_p),
        ("type", c_void_p),
        ("depth", c_uint32),
        ("path", c_void_p),
        ("text", c_char_p),
        ("formula", c_char_p),
        ("clause", c_char_p),
        ("needs", c_char_p),
        ("inputs", c_uint32),
    ]


class DrawOptions(Structure):
    """RrcDrawOptions."""

    _fields_ = [("firstSlot", c_uint32), ("slots", c_uint32)]


class PageMessage(Structure):
    """RrcPageMessage."""

    _fields_ = [("name", c_char_p), ("note", c_char_p), ("octets", c_char_p), ("numocts", c_size_t)]


#: Each structure with its C name and its header.
MIRRORS: Final[dict[str, tuple[type[Structure] | type[Union], str]]] = {
    "RtxPathStep": (PathStep, "asn1Runtime.h"),
    "RtxError": (Error, "asn1Runtime.h"),
    "RtxDecoded": (Decoded, "asn1Runtime.h"),
    "OSCTXT": (Context, "asn1Runtime.h"),
    "ASN1OpenType": (OpenType, "asn1Runtime.h"),
    "RtxField": (WireField, "asn1Runtime.h"),
    "RtxFound": (FoundMessage, "asn1Runtime.h"),
    "RtxDifferenceStep": (DifferenceStep, "asn1Runtime.h"),
    "RtxDifference": (TreeDifference, "asn1Runtime.h"),
    "RtxDeltaItem": (DeltaItem, "asn1Runtime.h"),
    "RtxDeltaOptions": (DeltaOptions, "asn1Runtime.h"),
    "Asn1Mistake": (TextMistake, "asn1FromText.h"),
    "RrcRecordMistake": (RecordMistake, "rrcRecordFromJson.h"),
    "RrcRecordRule": (RecordRule, "rrcRecordCheck.h"),
    "RrcRecordFinding": (RecordFinding, "rrcRecordCheck.h"),
    "RrcUnsaid": (Unsaid, "rrcDecompose.h"),
    "RrcMessageFinding": (MessageFinding, "rrcMessageFindings.h"),
    "RrcRuleContext": (RuleContext, "rrcContext.h"),
    "RrcSetting": (Setting, "rrcSettings.h"),
    "RrcMeaning": (MeaningOf, "rrcExplain.h"),
    "RrcDrawOptions": (DrawOptions, "rrcDraw.h"),
    "RrcPageMessage": (PageMessage, "rrcPage.h"),
}


# What the library calls: the first argument is the Walk that the call was given.
TextSink = CFUNCTYPE(None, py_object, c_char_p)
MistakeSink = CFUNCTYPE(None, py_object, POINTER(TextMistake))
RecordMistakeSink = CFUNCTYPE(None, py_object, POINTER(RecordMistake))
RecordSink = CFUNCTYPE(c_int, py_object, POINTER(RecordFinding))
UnsaidSink = CFUNCTYPE(c_int, py_object, POINTER(Unsaid))
FindingSink = CFUNCTYPE(c_int, py_object, POINTER(MessageFinding))
DifferenceSink = CFUNCTYPE(c_int, py_object, POINTER(TreeDifference))
DeltaSink = CFUNCTYPE(None, py_object, POINTER(DeltaItem))
FieldSink = CFUNCTYPE(None, py_object, POINTER(WireField))
FoundSink = CFUNCTYPE(None, py_object, POINTER(FoundMessage))
Progress = CFUNCTYPE(None, py_object, c_size_t)
MeaningSink = CFUNCTYPE(c_int, py_object, POINTER(MeaningOf))

_ContextP = POINTER(Context)

_PROTOTYPES: Final[dict[str, tuple[Any, list[Any]]]] = {
    "cellgroupcfgVersion": (c_char_p, []),
    "cellgroupcfgAbi": (c_uint, []),
    "cellgroupcfgSizeOf": (c_size_t, [c_char_p]),
    "asn1Type_CellGroupConfig": (c_void_p, []),
    "asn1PE_CellGroupConfig": (c_int, [_ContextP, c_void_p]),
    "asn1FromJson": (c_int, [_ContextP, c_void_p, c_void_p, c_char_p, c_size_t, MistakeSink, py_object]),
    "pu_setBuffer": (c_int, [_ContextP, c_void_p, c_size_t, c_uint8]),
    "pu_getMsgLen": (c_size_t, [_ContextP]),
    "rtxInitContext": (c_int, [_ContextP]),
    "rtFreeContext": (None, [_ContextP]),
    "rtxMemHeapAlloc": (c_void_p, [_ContextP, c_size_t]),
    "rtxErrReset": (None, [_ContextP]),
    "rtxErrorFormat": (c_size_t, [POINTER(Error), c_void_p, c_size_t]),
    "rtxDecode": (c_int, [_ContextP, c_void_p, c_void_p, c_uint]),
    "rtxTrace": (c_int, [_ContextP, c_void_p, c_void_p, c_uint, FieldSink, py_object]),
    "rtxFieldBitName": (c_char_p, [POINTER(WireField), c_uint32]),
    "rtxFind": (
        c_int64,
        [_ContextP, c_void_p, c_char_p, c_size_t, c_uint32, FoundSink, Progress, py_object],
    ),
    "rtxCopyBits": (None, [c_void_p, c_char_p, c_uint64, c_size_t]),
    "rtxCompare": (
        c_int64,
        [_ContextP, _ContextP, c_void_p, c_void_p, c_void_p, DifferenceSink, py_object],
    ),
    "rtxDifferenceFormat": (c_size_t, [POINTER(TreeDifference), c_void_p, c_size_t]),
    "rtxDeltaFormat": (c_size_t, [POINTER(DeltaItem), c_void_p, c_size_t]),
    "rtxState": (c_int, [_ContextP, c_void_p, c_void_p, c_void_p]),
    "rtxApply": (
        c_int,
        [_ContextP, c_void_p, c_void_p, c_void_p, c_void_p, DeltaSink, py_object],
    ),
    "rtxDiff": (
        c_int,
        [_ContextP, c_void_p, c_void_p, c_void_p, POINTER(DeltaOptions), c_void_p, DeltaSink],
    ),
    "rtxDeltaHolds": (c_int, [_ContextP, c_void_p, c_void_p, c_void_p, c_void_p]),
    "rtxToJson": (c_int, [_ContextP, c_void_p, c_void_p, c_int, TextSink, py_object]),
    "rtxToValueNotation": (c_int, [_ContextP, c_void_p, c_void_p, c_int, TextSink, py_object]),
    "rrcRecordFromJson": (
        c_int,
        [c_void_p, c_char_p, c_size_t, c_char_p, RecordMistakeSink, py_object],
    ),
    "rrcRecordToJson": (None, [c_void_p, TextSink, py_object]),
    "rrcCheckCellGroupCfg": (c_uint32, [c_void_p, RecordSink, py_object]),
    "rrcComposeCellGroupTree": (c_int32, [_ContextP, c_void_p, POINTER(c_void_p)]),
    "rrcEncodeCellGroupCfg": (
        c_int32,
        [c_void_p, c_void_p, c_size_t, POINTER(c_size_t), c_void_p, c_size_t],
    ),
    "rrcDecomposeCellGroupCfg": (c_int32, [_ContextP, c_void_p, c_void_p, UnsaidSink, py_object]),
    "rrcUnsaidFormat": (c_size_t, [POINTER(Unsaid), c_void_p, c_size_t]),
    "rrcMessageFindings": (
        c_int,
        [c_char_p, c_size_t, POINTER(RuleContext), c_char_p, c_size_t, FindingSink, py_object],
    ),
    "rrcFindingAdvice": (c_char_p, [c_char_p]),
    "rrcFindingClause": (c_char_p, [c_char_p]),
    "rrcSettingCount": (c_uint32, []),
    "rrcSettingAt": (POINTER(Setting), [c_uint32]),
    "rrcSettingsNew": (c_void_p, []),
    "rrcSettingsFree": (None, [c_void_p]),
    "rrcSettingsSet": (
        c_int,
        [c_void_p, c_char_p, c_char_p, c_size_t, c_char_p, c_void_p, c_size_t],
    ),
    "rrcSettingsContext": (POINTER(RuleContext), [c_void_p, c_void_p, c_size_t]),
    "rrcExplain": (c_int64, [_ContextP, c_void_p, POINTER(RuleContext), MeaningSink, py_object]),
    "rrcMeaningPathFormat": (c_size_t, [POINTER(MeaningOf), c_void_p, c_size_t]),
    "rrcDraw": (
        c_int,
        [_ContextP, c_void_p, POINTER(RuleContext), POINTER(DrawOptions), TextSink, py_object],
    ),
    "rrcPage": (
        c_int,
        [POINTER(PageMessage), c_size_t, POINTER(RuleContext), c_char_p, c_size_t, TextSink, py_object],
    ),
    "vos_info_print_filter_set": (c_int32, [c_int32, c_char_p, c_int32]),
}


def _candidates() -> list[str]:
    named = os.environ.get(VARIABLE)
    if named:
        return [named]
    bundled = Path(__file__).parent / NAME
    return [str(bundled)] if bundled.exists() else [NAME]


def _load() -> ctypes.CDLL:
    (name,) = _candidates()
    try:
        library = ctypes.CDLL(name)
    except OSError as error:
        raise ImportError(
            f"cellgroupcfg needs its shared library, and {error}; install it, or name it in {VARIABLE}"
        ) from error
    for function, (result, arguments) in _PROTOTYPES.items():
        try:
            pointer = getattr(library, function)
        except AttributeError as error:
            raise ImportError(f"{name} has no {function}: it is no {NAME} of this version") from error
        pointer.restype = result
        pointer.argtypes = arguments
        if function == "cellgroupcfgAbi" and pointer() != ABI:
            raise ImportError(f"{name} has the ABI {pointer()}, this module is for the ABI {ABI}")
    # What a composer says of a failure comes as an exception; nothing is printed besides.
    library.vos_info_print_filter_set(2, None, 1)
    return library


lib: Final = _load()

TYPE: Final[int] = lib.asn1Type_CellGroupConfig()
RECORD_SIZE: Final[int] = lib.cellgroupcfgSizeOf(b"RrcCellGroupCfg_t")
TREE_SIZE: Final[int] = lib.cellgroupcfgSizeOf(b"CellGroupConfig")

if lib.cellgroupcfgSizeOf(b"OSCTXT") != ctypes.sizeof(Context):
    raise ImportError(
        f"the context of {NAME} has {lib.cellgroupcfgSizeOf(b'OSCTXT')} octets, "
        f"that of this module {ctypes.sizeof(Context)}: they are of different versions"
    )
