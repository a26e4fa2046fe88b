"""What is wrong is an exception that says where and why, whatever is given; nothing crashes, nothing gets lost."""

import random

import pytest

import cellgroupcfg
from cellgroupcfg import _core, _messages


def test_a_decode_error_has_its_place():
    with pytest.raises(cellgroupcfg.DecodeError) as raised:
        cellgroupcfg.decode(bytes.fromhex("5c00b1"))
    error = raised.value
    assert error.path == "CellGroupConfig.rlc-BearerToAddModList[0].logicalChannelIdentity"
    assert error.offset == 20
    assert error.line is None
    assert isinstance(error, cellgroupcfg.CellGroupError) and isinstance(error, ValueError)


def test_a_value_out_of_its_range_has_its_bound():
    # drx-HARQ-RTT-TimerDL is of 0..56 in six bits: 63 fits the bits alone.
    drx = {
        "drx-onDurationTimer": {"milliSeconds": "ms1"},
        "drx-InactivityTimer": "ms0",
        "drx-HARQ-RTT-TimerDL": 56,
        "drx-HARQ-RTT-TimerUL": 0,
        "drx-RetransmissionTimerDL": "sl0",
        "drx-RetransmissionTimerUL": "sl0",
        "drx-LongCycleStartOffset": {"ms10": 0},
        "drx-SlotOffset": 0,
    }
    octets = cellgroupcfg.encode({"cellGroupId": 0, "mac-CellGroupConfig": {"drx-Config": {"setup": drx}, "skipUplinkTxDynamic": False}})
    field = next(one for one in cellgroupcfg.trace(octets) if one.path.endswith("drx-HARQ-RTT-TimerDL"))
    assert (field.width, field.bits) == (6, 56)
    broken = int.from_bytes(octets, "big") | 63 << (8 * len(octets) - field.offset - 6)
    with pytest.raises(cellgroupcfg.DecodeError) as raised:
        cellgroupcfg.decode(broken.to_bytes(len(octets), "big"))
    error = raised.value
    assert error.path == "CellGroupConfig.mac-CellGroupConfig.drx-Config.setup.drx-HARQ-RTT-TimerDL"
    assert (error.value, error.lower, error.upper) == (63, 0, 56)
    assert error.offset is not None


def test_mistakes_of_a_text_have_lines_those_of_a_dictionary_none():
    with pytest.raises(cellgroupcfg.EncodeError) as raised:
        cellgroupcfg.encode('{\n"cellGroupId": 9,\n"mac": 1}')
    error = raised.value
    assert (error.line, error.path) == (2, "CellGroupConfig.cellGroupId")
    assert [one.line for one in error.mistakes] == [2, 3]
    with pytest.raises(cellgroupcfg.EncodeError) as raised:
        cellgroupcfg.encode({"cellGroupId": 9})
    assert (raised.value.line, raised.value.column) == (None, None)
    assert raised.value.path == "CellGroupConfig.cellGroupId"
    assert (raised.value.value, raised.value.lower, raised.value.upper) == (9, 0, 3)


def test_a_list_and_a_bit_string_have_their_bounds():
    mac = {"tag-Config": {"tag-ToReleaseList": []}, "skipUplinkTxDynamic": False}
    with pytest.raises(cellgroupcfg.EncodeError) as raised:
        cellgroupcfg.encode({"cellGroupId": 0, "mac-CellGroupConfig": mac})
    # SIZE (1..maxNrofTAGs)
    assert (raised.value.value, raised.value.lower, raised.value.upper) == (0, 1, 4), raised.value
    assert raised.value.path == "CellGroupConfig.mac-CellGroupConfig.tag-Config.tag-ToReleaseList"


def test_a_record_that_is_refused_has_its_bound():
    record = cellgroupcfg.record(cellgroupcfg.encode({"cellGroupId": 1}))
    record["cellGroupId"] = 9
    with pytest.raises(cellgroupcfg.ComposeError) as raised:
        cellgroupcfg.compose(record)
    assert (raised.value.path, raised.value.value) == ("CellGroupConfig.cellGroupId", 9)
    assert (raised.value.lower, raised.value.upper) == (0, 3)


def test_a_mistake_of_a_record():
    with pytest.raises(cellgroupcfg.RecordError) as raised:
        cellgroupcfg.compose('{"cellGroupId": "x"}')
    assert raised.value.path == "cellGroupId"
    assert (raised.value.line, raised.value.column) == (1, 17)


def test_a_record_opens_no_file(tmp_path):
    file = tmp_path / "base.json"
    file.write_text('{"cellGroupId": 1}')
    with pytest.raises(cellgroupcfg.RecordError):
        cellgroupcfg.compose({"$include": str(file)})


def test_a_setting_that_there_is_not():
    with pytest.raises(cellgroupcfg.SettingError, match="did you mean carrier?"):
        cellgroupcfg.check({"cellGroupId": 0}, carier="30:0:273")
    with pytest.raises(cellgroupcfg.SettingError, match="there is no setting qqq$"):
        cellgroupcfg.check({"cellGroupId": 0}, qqq=1)


@pytest.mark.parametrize(
    ("keywords", "words"),
    [
        ({"band": "n999"}, "band: Release 15 has no band n999"),
        ({"band": 78, "fr": 2}, "fr: band n78 is of FR1 and of TDD"),
        ({"full": True, "delta": True}, "delta: it excludes full"),
        ({"full": "yes"}, "full is True or False"),
        ({"band": True}, "band: BAND is expected"),
        ({"band": ["n78", "n77"]}, "band: BAND is expected"),
        ({"carrier": [["30:0:273"]]}, "carrier: CARRIER is expected"),
        ({"rach": {"x": 1}}, 'rach: 1:1: RACH-ConfigCommon: mandatory member "rach-ConfigGeneric" is missing'),
        ({"capability": {"sr-PeriodsSl5Sl1": "supported"}}, "did you mean sr-PeriodsSl5Sl10"),
        ({"rach": {"x": float("nan")}}, "rach: "),
        ({"message": "\ud800"}, "message: "),
        ({"message": "sync\0"}, "message: the kind"),
    ],
)
def test_a_setting_that_cannot_be(keywords, words):
    with pytest.raises(cellgroupcfg.SettingError) as raised:
        cellgroupcfg.check({"cellGroupId": 0}, **keywords)
    assert words in str(raised.value)


def test_previous_excludes_full():
    octets = cellgroupcfg.encode({"cellGroupId": 0})
    with pytest.raises(cellgroupcfg.SettingError, match="full: it excludes previous"):
        cellgroupcfg.check(octets, previous=octets, full=True)
    with pytest.raises(cellgroupcfg.DecodeError):
        cellgroupcfg.check(octets, previous=b"\xff")


cycle = {}
cycle["cellGroupId"] = cycle
deep = {}
for _ in range(100000):
    deep = {"cellGroupId": deep}

WRONG = [
    {},
    {"cellGroupId": None},
    {"cellGroupId": "0"},
    {"cellGroupId": 0.5},
    {"cellGroupId": -1},
    {"cellGroupId": 10**30},
    {"cellGroupId": 10**5000},
    {"cellGroupId": float("nan")},
    {"cellGroupId": float("inf")},
    {"cellGroupId": b"0"},
    {"cellGroupId": object()},
    {"cellGroupId": [0]},
    {"cellGroupId": {"a": 1}},
    {"cellGroupId": "\ud800"},
    {"\ud800": 0},
    {"cell\0GroupId": 0},
    {0: 0},
    {(1, 2): 0},
    {"cellGroupId": 0, "rlc-BearerToAddModList": []},
    {"cellGroupId": 0, "rlc-BearerToAddModList": [{}] * 1000},
    {"cellGroupId": 0, "rlc-BearerToAddModList": {"0": {}}},
    {"cellGroupId": 0, "spCellConfig": True},
    cycle,
    deep,
    "",
    "{",
    "null",
    "[]",
    "\0",
    "{" * 100000,
    "[" * 100000,
    '{"cellGroupId": 0} x',
    "\ud800",
    '{"cellGroupId": 1e400}',
]


@pytest.mark.parametrize("wrong", WRONG, ids=lambda _: "")
def test_wrong_dictionaries_and_texts_are_refused(wrong):
    with pytest.raises(cellgroupcfg.EncodeError):
        cellgroupcfg.encode(wrong)
    with pytest.raises(cellgroupcfg.EncodeError):
        cellgroupcfg.diff(wrong, {"cellGroupId": 0})
    assert {one.id for one in cellgroupcfg.check(wrong)} == {"jer"}
    try:
        cellgroupcfg.compose(wrong)
    except cellgroupcfg.CellGroupError:
        pass
    cellgroupcfg.check_record(wrong)


@pytest.mark.parametrize("wrong", [None, 0, 5, 1.5, [], [1, 2], (), object()])
def test_other_types_are_type_errors(wrong):
    for function in (
        cellgroupcfg.decode,
        cellgroupcfg.encode,
        cellgroupcfg.compose,
        cellgroupcfg.record,
        cellgroupcfg.check,
        cellgroupcfg.check_record,
        cellgroupcfg.trace,
        cellgroupcfg.explain,
        cellgroupcfg.draw,
        cellgroupcfg.page,
        cellgroupcfg.find,
    ):
        with pytest.raises(TypeError):
            function(wrong)


def test_octets_may_be_any_bytes(call):
    assert cellgroupcfg.decode(bytearray(call)) == cellgroupcfg.decode(memoryview(call)) == cellgroupcfg.decode(call)


ROUNDS = 600


def test_random_octets(call):
    generator = random.Random(38331)
    refused = 0
    for _ in range(ROUNDS):
        if generator.random() < 0.5:
            octets = generator.randbytes(generator.randrange(40))
        else:
            changed = bytearray(call)
            for _ in range(generator.randrange(1, 4)):
                changed[generator.randrange(len(changed))] ^= 1 << generator.randrange(8)
            octets = bytes(changed)
        fields = cellgroupcfg.trace(octets)
        assert sum(field.width for field in fields) == 8 * len(octets)
        try:
            message = cellgroupcfg.decode(octets)
        except cellgroupcfg.DecodeError as error:
            refused += 1
            assert error.path.startswith("CellGroupConfig")
            assert [one.severity for one in cellgroupcfg.check(octets)] == ["error"]
            continue
        assert cellgroupcfg.decode(cellgroupcfg.encode(message)) == message
        cellgroupcfg.check(octets)
        cellgroupcfg.explain(octets)
        cellgroupcfg.record(octets, partial=True)
        try:
            cellgroupcfg.delta(call, octets)
        except cellgroupcfg.DeltaError:
            pass
    assert 0 < refused < ROUNDS


class Stop(BaseException):
    """What no handler of ours expects."""


def test_what_is_raised_in_a_sink_ends_the_walk_and_is_raised(monkeypatch, call):
    calls = []

    def explode(*_):
        calls.append(1)
        raise Stop

    monkeypatch.setattr(_messages, "Meaning", explode)
    with pytest.raises(Stop):
        cellgroupcfg.explain(call)
    assert len(calls) == 1
    monkeypatch.setattr(_messages, "Field", explode)
    with pytest.raises(Stop):
        cellgroupcfg.trace(call)
    assert len(calls) == 2
    monkeypatch.setattr(_messages, "Difference", explode)
    with pytest.raises(Stop):
        cellgroupcfg.diff(call, {"cellGroupId": 0})
    assert len(calls) == 3
    monkeypatch.setattr(_messages, "Finding", explode)
    with pytest.raises(Stop):
        cellgroupcfg.check(call[:3])
    assert len(calls) == 4


def test_contexts_are_freed_whatever_is_raised(monkeypatch, call):
    freed = []
    free = _core.Tree.__exit__
    monkeypatch.setattr(_core.Tree, "__exit__", lambda *arguments: freed.append(1) or free(*arguments))

    def explode(*_):
        raise Stop

    monkeypatch.setattr(_messages, "Meaning", explode)
    with pytest.raises(Stop):
        cellgroupcfg.explain(call)
    with pytest.raises(cellgroupcfg.DecodeError):
        cellgroupcfg.decode(b"\xff")
    assert len(freed) == 2
