"""The module says what the tool says, of all examples and of random messages."""

import json

import pytest

import cellgroupcfg
from cellgroupcfg import Difference, Finding


def lines_of(messages):
    return "".join(message.hex() + "\n" for message in messages)


def test_decode_is_the_tools_jer(tool, messages):
    jer = tool.run("decode", "--lines", "--compact", "--as", "hex", stdin=lines_of(messages)).splitlines()
    assert len(jer) == len(messages)
    for message, line in zip(messages, jer):
        assert cellgroupcfg.decode(message) == json.loads(line)


def test_encode_is_the_way_back(tool, messages):
    jer = tool.run("decode", "--lines", "--compact", "--as", "hex", stdin=lines_of(messages)).splitlines()
    for message, line in zip(messages, jer):
        assert cellgroupcfg.encode(json.loads(line)) == message
        assert cellgroupcfg.encode(line) == message


def findings_of(told):
    return sorted(
        (
            one["id"],
            one["severity"],
            one["path"],
            one.get("value", ""),
            one.get("allowed", ""),
            one["message"],
            one.get("advice", ""),
            one.get("clause", ""),
        )
        for one in told["findings"]
    )


def as_rows(findings):
    return sorted(
        (one.id, one.severity, one.path, one.value, one.allowed, one.message, one.advice, one.clause)
        for one in findings
    )


def check_with(tool, messages, *options):
    told = tool.run(
        "check", "--no-config", "--lines", "--as", "hex", "--severity", "notice", "--format", "json", *options,
        stdin=lines_of(messages),
    )
    return json.loads(told)["messages"]


@pytest.mark.parametrize(
    ("options", "keywords"),
    [
        ((), {}),
        (("--full", "--band", "n78", "--scg"), {"full": True, "band": "n78", "scg": True}),
        (
            ("--carrier", "30:0:273", "--carrier", "15:0:270", "--message", "sync", "--typeA-position", "2"),
            {"carrier": ["30:0:273", "15:0:270"], "message": "sync", "type_a_position": 2},
        ),
    ],
)
def test_check_finds_what_the_tool_finds(tool, messages, options, keywords):
    some = messages[:60]
    told = check_with(tool, some, *options)
    assert sum(len(one["findings"]) for one in told) > 60
    for message, one in zip(some, told):
        assert as_rows(cellgroupcfg.check(message, **keywords)) == findings_of(one)


def test_check_after_what_the_ue_has(tool, examples, tmp_path):
    before, after = examples["one-bearer"], examples["typical-call"]
    file = tmp_path / "before.hex"
    file.write_text(before.hex())
    (told,) = check_with(tool, [after], "--previous", str(file))
    assert as_rows(cellgroupcfg.check(after, previous=before)) == findings_of(told)
    (told,) = check_with(tool, [after], "--previous", str(file), "--previous", str(file))
    assert as_rows(cellgroupcfg.check(after, previous=[before, before])) == findings_of(told)


def test_check_of_a_message_that_cannot_be_applied(examples):
    other = cellgroupcfg.encode(cellgroupcfg.decode(examples["one-bearer"]) | {"cellGroupId": 1})
    assert "delta-apply" in {one.id for one in cellgroupcfg.check(other, previous=examples["typical-call"])}


def test_check_of_broken_octets(tool, call):
    for cut in (b"", call[:3], call[:-1], call + b"\x01", b"\xff" * 8):
        if cut:
            (told,) = check_with(tool, [cut])
            assert as_rows(cellgroupcfg.check(cut)) == findings_of(told)
        assert [one.severity for one in cellgroupcfg.check(cut)] == ["error"]


def test_check_of_what_is_encoded_otherwise(tool):
    # An extension bit without additions: X.691 19.1 sets it only where an addition is present.
    octets = bytes.fromhex("800000")
    assert "per-not-canonical" in {one.id for one in cellgroupcfg.check(octets)}
    (told,) = check_with(tool, [octets])
    assert as_rows(cellgroupcfg.check(octets)) == findings_of(told)


def test_check_of_a_dictionary():
    assert cellgroupcfg.check({"cellGroupId": 0}) == cellgroupcfg.check(cellgroupcfg.encode({"cellGroupId": 0}))
    (found,) = cellgroupcfg.check({"cellGroupId": 9})
    assert (found.id, found.severity, found.path, found.clause) == ("jer", "error", "CellGroupConfig.cellGroupId", "X.697")
    assert "0..3" in found.message


def test_diff_is_the_tools(tool, messages):
    pairs = [*zip(messages[:5], messages[1:6]), *zip(messages[10:30], messages[11:31])]
    for a, b in pairs:
        told = json.loads(tool.run("diff", "--json", a.hex(), b.hex()))["differences"]
        assert told
        assert cellgroupcfg.diff(a, b) == [
            Difference(one["kind"], one["path"], one.get("a"), one.get("b")) for one in told
        ]
    assert cellgroupcfg.diff(messages[0], cellgroupcfg.decode(messages[0])) == []


def test_delta_and_apply_are_the_tools(tool, examples):
    known = list(examples.values())[:4]
    made = 0
    for prev in (None, *known):
        for shall in known:
            options = ("--recreate", "bearers,scells,bwps", "--two-steps")
            told = tool.run("delta", *options, "none" if prev is None else prev.hex(), shall.hex()).split()
            try:
                deltas = cellgroupcfg.deltas(prev, shall, recreate=("bearers", "scells", "bwps"))
            except cellgroupcfg.DeltaError:
                assert told == []
                continue
            assert [one.hex() for one in deltas] == told
            made += len(told)
            state = prev
            for one in deltas:
                state = cellgroupcfg.apply(state, one)
            if deltas:
                applied = tool.run("apply", "none" if prev is None else prev.hex(), *told)
                assert state.hex() == applied.strip()
    assert made >= 8


def test_nothing_to_send(call):
    assert cellgroupcfg.delta(call, call) is None
    assert cellgroupcfg.deltas(call, call) == []
    assert cellgroupcfg.delta(None, call) is not None


def test_a_delta_that_cannot_be(call):
    other = cellgroupcfg.encode(cellgroupcfg.decode(call) | {"cellGroupId": 1})
    with pytest.raises(cellgroupcfg.DeltaError) as raised:
        cellgroupcfg.delta(call, other)
    assert raised.value.path.startswith("CellGroupConfig")
    with pytest.raises(cellgroupcfg.DeltaError, match="bearer"):
        cellgroupcfg.delta(call, call, recreate=["bearer"])
    with pytest.raises(cellgroupcfg.DeltaError, match="alone"):
        cellgroupcfg.delta(call, call, recreate=["none", "bwps"])


def test_trace_is_the_message_bit_for_bit(messages):
    for message in messages[:30]:
        bits = "".join(f"{octet:08b}" for octet in message)
        end = 0
        for field in cellgroupcfg.trace(message):
            assert field.offset == end
            end += field.width
            assert field.bits == int(bits[field.offset : end] or "0", 2)
        assert end == len(bits)


def test_trace_of_one_bearer():
    # X.691: no extension; bearers alone are present; cellGroupId 0 in two bits; one bearer of 1..32 in five; ...
    octets = cellgroupcfg.encode(
        {
            "cellGroupId": 0,
            "rlc-BearerToAddModList": [{"logicalChannelIdentity": 4, "servedRadioBearer": {"drb-Identity": 1}}],
        }
    )
    fields = cellgroupcfg.trace(octets)
    assert (fields[0].kind, fields[0].width) == ("extension", 1)
    assert (fields[1].kind, fields[1].present) == ("presence", ("rlc-BearerToAddModList",))
    assert (fields[2].kind, fields[2].width, fields[2].value) == ("value", 2, "0")
    assert (fields[3].kind, fields[3].width, fields[3].bits, fields[3].value) == ("count", 5, 0, "1")
    value = next(one for one in fields if one.path.endswith(".drb-Identity"))
    assert (value.value, value.width) == ("1", 5)
    # What an error has left is told as well.
    assert cellgroupcfg.trace(octets[:2])[-1].kind == "unread"


def test_explain_says_what_the_tool_says(tool, call):
    meanings = cellgroupcfg.explain(call, band="n78", carrier=["30:0:273"])
    told = tool.run("decode", "--explain", "--flat", "--band", "n78", "--carrier", "30:0:273", call.hex())
    remarks = [line.split("  # ", 1)[1] for line in told.splitlines() if "  # " in line]
    assert len(meanings) == len(remarks) > 50
    assert all(meaning.text in remark for meaning, remark in zip(meanings, remarks))
    assert all(meaning.path.startswith("CellGroupConfig.") for meaning in meanings)


def test_explain_after_what_the_ue_has(examples):
    assert cellgroupcfg.explain(examples["typical-call"], previous=examples["one-bearer"])


def test_draw_and_page_are_the_tools(tool, call, tmp_path):
    assert cellgroupcfg.draw(call, slots=20) == tool.run("draw", "--slots", "20", call.hex())
    file = tmp_path / "call.hex"
    file.write_text(call.hex())
    page = cellgroupcfg.page(call, names=["call.hex"])
    assert page.startswith("<!DOCTYPE html>") and "call.hex" in page
    assert "differences" in cellgroupcfg.page(call, {"cellGroupId": 0})
    with pytest.raises(TypeError):
        cellgroupcfg.page()
    for wrong in ({"slots": 161}, {"slots": -1}, {"first_slot": 10240}):
        with pytest.raises(cellgroupcfg.SettingError):
            cellgroupcfg.draw(call, **wrong)


def test_find(call):
    # X.691 11.9: a length of 128 to 16383 has two octets, the first bits 10.
    held = (0x8000 | len(call)).to_bytes(2, "big") + call
    (found,) = [one for one in cellgroupcfg.find(b"\xff\x00" + held + b"\x55", least=300)]
    assert (found.offset, found.octets) == (16, call)
    shifted = (int.from_bytes(held, "big") << 3).to_bytes(len(held) + 1, "big")
    (found,) = [one for one in cellgroupcfg.find(shifted, least=300)]
    assert (found.offset, found.octets) == (5, call)
    assert cellgroupcfg.find(b"") == []


def test_compose_and_record(tool, records, examples, random_messages):
    for name, record in records.items():
        assert cellgroupcfg.compose(record) == examples[name]
        assert cellgroupcfg.compose(json.loads(record)) == examples[name]
    lines = lines_of(random_messages)
    told = tool.run("record", "--lines", "--as", "hex", stdin=lines).splitlines()
    for message, line in zip(random_messages, told):
        made = cellgroupcfg.record(message)
        assert made == json.loads(line)
        assert cellgroupcfg.compose(made) == message


def test_a_message_that_no_record_says():
    octets = cellgroupcfg.encode({"cellGroupId": 0, "mac-CellGroupConfig": {"drx-Config": {"release": None}, "skipUplinkTxDynamic": False}})
    with pytest.raises(cellgroupcfg.UnsaidError) as raised:
        cellgroupcfg.record(octets)
    assert raised.value.path == "CellGroupConfig.mac-CellGroupConfig.drx-Config"
    assert len(raised.value.unsaid) == 1
    assert cellgroupcfg.record(octets, partial=True)["cellGroupId"] == 0


def test_check_record_finds_what_the_tool_finds(tool, records):
    record = json.loads(records["typical-call"])
    record["cellGroupId"] = 9
    record["macCellGrpCfg"]["phrCfg"]["phrPeriodTimer"] = 200
    text = json.dumps(record)
    told = json.loads(tool.run("check", "--no-config", "--as", "record", "--severity", "notice", "--format", "json", stdin=text))
    own = [one for one in findings_of(told["messages"][0]) if one[0].startswith("record")]
    assert own and as_rows(cellgroupcfg.check_record(record)) == own
    with pytest.raises(cellgroupcfg.ComposeError) as raised:
        cellgroupcfg.compose(record)
    error = raised.value
    assert (error.path, error.value, error.lower, error.upper) == ("CellGroupConfig.cellGroupId", 9, 0, 3)


def test_check_record_of_what_is_no_record():
    (found,) = cellgroupcfg.check_record({"cellGroupID": 0})
    assert (found.id, found.severity, found.path) == ("record", "error", "RrcCellGroupCfg_t")
    assert "did you mean" in found.message and "cellGroupId" in found.message


def test_settings_are_the_tools_options(tool):
    help_ = tool.run("check", "--help")
    for setting in cellgroupcfg.settings():
        assert setting.description in " ".join(help_.split())
        assert setting.keyword.isidentifier() and setting.keyword == setting.keyword.lower()


def test_version(tool):
    assert tool.run("--version").startswith(f"cellgroupcfg {cellgroupcfg.version()},")


def test_values_are_frozen():
    finding = cellgroupcfg.check({"cellGroupId": 9})[0]
    assert isinstance(finding, Finding) and not hasattr(finding, "__dict__")
    with pytest.raises(AttributeError):
        finding.id = "other"
