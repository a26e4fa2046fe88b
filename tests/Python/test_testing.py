"""The helper for pytest."""

import pytest

import cellgroupcfg
from cellgroupcfg.testing import assert_cell_group


def test_the_same_in_every_form(call):
    message = cellgroupcfg.decode(call)
    for actual in (call, call.hex(), message, cellgroupcfg.encode(message)):
        assert_cell_group(actual, call)
    assert_cell_group('{"cellGroupId": 0}', {"cellGroupId": 0})


def test_a_failure_shows_the_difference_by_path():
    bearer = {"logicalChannelIdentity": 4, "servedRadioBearer": {"drb-Identity": 1}}
    expected = {"cellGroupId": 0, "rlc-BearerToAddModList": [bearer]}
    actual = {
        "cellGroupId": 1,
        "rlc-BearerToAddModList": [bearer | {"reestablishRLC": "true"}],
    }
    with pytest.raises(AssertionError) as raised:
        assert_cell_group(actual, expected)
    assert str(raised.value).splitlines() == [
        "the cell group is another one (expected -> actual):",
        "  ~ CellGroupConfig.cellGroupId: 0 -> 1",
        "  + CellGroupConfig.rlc-BearerToAddModList[logicalChannelIdentity 4].reestablishRLC = true",
    ]


@pytest.mark.parametrize("wrong", ["5c00b1", b"\xff", "xyz", {"cellGroupId": 9}])
def test_what_is_no_cell_group_fails_too(wrong):
    for arguments in ((wrong, {"cellGroupId": 0}), ({"cellGroupId": 0}, wrong)):
        with pytest.raises(AssertionError):
            assert_cell_group(*arguments)
