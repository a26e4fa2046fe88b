"""The check of deltas fails when it should."""

import json
import pathlib
import tempfile
import unittest

import check_delta
import need_codes

SCHEMA = need_codes.Schema.load(check_delta.SCHEMA)


def tags(*numbers, **more):
    """A message with these tags, in place of its octets."""
    added = {"tag-ToAddModList": [{"tag-Id": number} for number in numbers]} if numbers else {}
    return {"cellGroupId": 0, "mac-CellGroupConfig": {"tag-Config": added | more}}


class Fault(unittest.TestCase):
    PLACE = "CellGroupConfig.mac-CellGroupConfig.tag-Config"

    def expect(self, wrong, outcome, prev, wanted, delta, following=None, notices=0):
        def pair(values, outcome):
            values = dict(zip(("prev", "next", "delta"), values))
            line = {name: None if value is None else name for name, value in values.items()}
            return check_delta.Pair(line | {"outcome": outcome}, values)
        self.assertEqual(check_delta.fault(SCHEMA, pair((prev, wanted, delta), outcome),
                                           following and pair(following, "sent")), (wrong, notices))

    def test_sent(self):
        self.expect(None, "sent", tags(1), tags(1, 2), tags(2))
        self.expect(None, "sent", None, tags(2, 1), tags(1, 2))

    def test_sent_and_lost(self):
        self.expect(f"{self.PLACE}.tag-ToAddModList: 2 elements meant, 1 read", "sent", None, tags(1, 2), tags(1))

    def test_sent_and_left(self):
        self.expect(f"{self.PLACE}.tag-ToAddModList[0].tag-Id: 2 meant, 1 read", "sent", tags(1), tags(2), tags(2))

    def test_sent_and_refused(self):
        self.expect("CellGroupConfig.cellGroupId: 1, 0 is held", "sent", {"cellGroupId": 0}, {"cellGroupId": 1},
                    {"cellGroupId": 1})

    def test_sent_without_a_delta(self):
        self.expect("sent without a delta", "sent", tags(1), tags(1), None)

    def test_one_shots_of_prev(self):
        def cell(**members):
            return {"cellGroupId": 0, "spCellConfig": members}
        self.expect(None, "sent", cell(reconfigurationWithSync={"newUE-Identity": 1}),
                    cell(rlmInSyncOutOfSyncThreshold="n1"), cell(rlmInSyncOutOfSyncThreshold="n1"))

    def test_notices(self):
        self.expect(None, "sent", tags(1), tags(1), tags(**{"tag-ToReleaseList": [3]}), notices=1)

    def test_nothing(self):
        self.expect(None, "nothing", tags(1, 2), tags(2, 1), None)
        self.expect(f"{self.PLACE}.tag-ToAddModList: 2 elements meant, 1 read", "nothing", tags(1), tags(1, 2), None)
        self.expect("nothing with a delta", "nothing", tags(1), tags(1), tags(1))

    def test_refused(self):
        self.expect(None, "refused", tags(1), tags(2), None)
        self.expect("refused with a delta", "refused", tags(1), tags(2), tags(2))

    def test_more(self):
        release = tags(**{"tag-ToReleaseList": [1]})
        self.expect(None, "more", tags(1), tags(2), release, (tags(), tags(2), tags(2)))
        self.expect(f"{self.PLACE}: ['tag-ToAddModList'] meant, [] read", "more", tags(1), tags(2), release,
                    (tags(1), tags(2), tags(2)))
        for following in (None, (tags(), tags(3), tags(3)), (None, tags(2), tags(2))):
            self.expect("no line behind it carries on", "more", tags(1), tags(2), release, following)
        self.expect("more without a delta", "more", tags(1), tags(2), None)


class File(unittest.TestCase):
    LINE = {"prev": None, "next": "00", "delta": "00", "outcome": "sent"}

    def read(self, *lines):
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "pairs"
            path.write_text("".join(json.dumps(line) + "\n" for line in lines), encoding="ascii")
            return check_delta.read(path)

    def test_lines(self):
        self.assertEqual(self.read(self.LINE, self.LINE), [self.LINE] * 2)

    def test_not_understood(self):
        for line in (self.LINE | {"outcome": "done"}, self.LINE | {"why": ""}, {"prev": None}):
            with self.assertRaisesRegex(SystemExit, ":2: not understood$"):
                self.read(self.LINE, line)

    def test_nothing_to_check(self):
        for lines in ([], [self.LINE | {"outcome": "refused", "delta": None}]):
            with self.assertRaisesRegex(SystemExit, f"no delta is sent in {len(lines)} lines$"):
                self.read(*lines)


if __name__ == "__main__":
    unittest.main()
