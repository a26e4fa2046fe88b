"""check_records.py <program> <project>: records in JSON through the program: recognised wherever a message is taken, with the
files that they include, and checked in their own terms. The values are the standard's, the rules those of docs/behaviour.md."""

import json
import re

from harness import DONE, FINDINGS, MALFORMED, USAGE, expect, main, run, true

BASE = '{"rlcBearerCfg": [{"lchId": 4, "rbType": "drb-Identity", "rbId": 1}]}'
BASE_FLAT = """CellGroupConfig.cellGroupId = 0
CellGroupConfig.rlc-BearerToAddModList[0].logicalChannelIdentity = 4
CellGroupConfig.rlc-BearerToAddModList[0].servedRadioBearer.drb-Identity = 1
"""


def findings(*arguments, stdin):
    status, text, words = run("check", "--no-config", "--format", "json", *arguments, stdin=stdin)
    try:
        return status, json.loads(text)["messages"][0]["findings"]
    except ValueError:
        true(False, f"{arguments}: {status} {text} {words}")
        return status, []


def ids(*arguments, stdin):
    return {(finding["id"], finding["path"].removeprefix("RrcCellGroupCfg_t"))
            for finding in findings(*arguments, stdin=stdin)[1]}


def test_recognised(folder):
    expect(["decode", "--flat"], DONE, BASE_FLAT, stdin=BASE)
    expect(["decode", "--flat", "--as", "record"], DONE, "CellGroupConfig.cellGroupId = 1\n", stdin='{"cellGroupId": 1}')
    # Comments and other members before the first that tells.
    expect(["decode", "--flat"], DONE, BASE_FLAT, stdin="// mine\n" + BASE.replace("{", '{ /* "x": */ "cellGroupId": 0,', 1))
    # JER stays what it is, also where a member of another type is called like a record's.
    expect(["decode", "--flat"], DONE, "CellGroupConfig.cellGroupId = 2\n", stdin='{"cellGroupId": 2}')
    expect(["decode", "-v"], DONE, re.compile("."), err=re.compile("standard input: record, 1 line"), stdin=BASE)
    expect(["decode", "--type", "BWP"], USAGE, err="cellgroupcfg: standard input: a record is a CellGroupConfig, not a BWP\n",
           stdin=BASE)
    for text in ("{}", '{"rlcBearerCfg": 5}', '{"rlcBearerCfg": [', '{"$include": 5}', '{"$include": "none.json"}',
                 "[" * 100000, '{"rlcBearerCfg": ' + "[" * 100000, '{"bitMask": "' + "x" * 1000000 + '"}'):
        status, _, words = run("decode", "--as", "record", stdin=text)
        true(status == (DONE if text == "{}" else MALFORMED) and len(words) < 2000, f"{text[:40]}: {status} {words[:200]}")
    expect(["check", "--as", "record"], MALFORMED, err="cellgroupcfg: standard input: the input is empty\n", stdin="")


def test_everywhere(folder):
    base, more = folder / "base.json", folder / "more.json"
    base.write_text(BASE, encoding="utf-8")
    more.write_text('{"$include": "base.json", "phyCellGrpCfg": {"pdschHarqAckCodeBook": "dynamic"}}', encoding="utf-8")
    octets = run("compose", str(more))[1].decode().strip()
    expect(["decode", "--flat", str(more)], DONE,
           BASE_FLAT + "CellGroupConfig.physicalCellGroupConfig.pdsch-HARQ-ACK-Codebook = dynamic\n")
    expect(["encode", str(more)], DONE, octets + "\n")
    same = run("delta", str(base), str(more))
    other = run("delta", run("compose", str(base))[1].decode().strip(), octets)
    true(same == other and same[0] == DONE and same[1], f"delta of records: {same}, of octets: {other}")
    expect(["diff", str(more), octets], DONE)
    status, text, _ = run("diff", str(base), str(more))
    true(status == FINDINGS and b"pdsch-HARQ-ACK-Codebook" in text, "diff of records")
    expect(["decode", "--lines", "--flat"], DONE, re.compile("drb-Identity = 1\n(.*\n)*.*drb-Identity = 2\n"),
           stdin=BASE + "\n" + BASE.replace('"rbId": 1', '"rbId": 2') + "\n")


def test_check(folder):
    text = """{
  "cellGroupId": 9,
  "rlcBearerCfg": [
    {"lchId": 44},
    {"lchId": 5, "rbType": 7}
  ]
}
"""
    expect(["check", "--no-config"], FINDINGS, """standard input:2:18: error: RrcCellGroupCfg_t.cellGroupId: 9 is refused: not in 0..3 \
[record-range]
  sent as CellGroupConfig.cellGroupId
  Store 3, the nearest that is allowed.
standard input:4:15: error: RrcCellGroupCfg_t.rlcBearerCfg[0].lchId: 44 is refused: not in 1..32 [record-range]
  sent as CellGroupConfig.rlc-BearerToAddModList[0].logicalChannelIdentity
  Store 32, the nearest that is allowed.
""", stdin=text.replace('"rbType": 7', '"bitMask": 0'))
    status, found = findings(stdin=text)
    true(status == FINDINGS and len(found) == 3, f"{found}")
    first = found[0]
    true(first["value"] == "9" and first["allowed"] == "0..3" and first["element"] == "CellGroupConfig.cellGroupId"
         and (first["line"], first["column"]) == (2, 18), f"{first}")
    # What can be composed is held against the rules between members, too.
    known = ids("--mcg", stdin='{"cellGroupId": 1, "lchIdRelease": [4]}')
    true(("phy-cell-group-id", "CellGroupConfig.cellGroupId") in known, f"{known}")
    # No error, no failure; a warning fails where that is asked for.
    unread = '{"bitMask": 0, "macCellGrpCfg": {"skipUpTxDynamic": true}}'
    expect(["check", "--no-config"], DONE, """standard input:1:33: warning: RrcCellGroupCfg_t.macCellGrpCfg: given, and not read: \
RRC_CELLGROUPCFG_MAC_PRESENCE is clear in bitMask [record-unread]
  Leave the field out, or the mask or alternative that switches it off.
""", stdin=unread)
    true(findings("--fail-on", "warning", stdin=unread)[0] == FINDINGS, "--fail-on warning")
    true(not ids("--disable", "record-unread", stdin=unread) and not ids("--only", "bwp-", stdin=unread), "passed over")
    expect(["check", "--no-config"], FINDINGS, re.compile(r"\[record\]\n$"), stdin='{"rlcBearerCfg": [{"lchID": 4}]}')


def test_files(folder):
    base, more = folder / "wrong.json", folder / "more.json"
    base.write_text('{"lchIdRelease": [4, 999]}', encoding="utf-8")
    more.write_text('{"$include": "wrong.json", "cellGroupId": 1}', encoding="utf-8")
    status, text, _ = run("check", "--no-config", str(more))
    true(status == FINDINGS and f"({base}:1:22) [record]" in text.decode(), f"{text.decode()}")
    # A slip of an included file is told at the place of the one that includes it.
    base.write_text('{"lchIdRelease": [4, 99]}', encoding="utf-8")
    status, text, _ = run("check", "--no-config", "--format", "gcc", str(more))
    true(status == FINDINGS and text.decode().startswith(f"{more}:1:1: error: RrcCellGroupCfg_t.lchIdRelease[1]: 99 is refused"),
         f"{text.decode()}")


def test_silence(folder):
    text = """{
  "bitMask": 0,
  "macCellGrpCfg": {} // cellgroupcfg: silence record-unread kept for later
}
"""
    status, found = findings(stdin=text)
    true(status == DONE and not found, f"{found}")
    expect(["check", "--no-config"], DONE, "", err="cellgroupcfg: standard input: 1 finding silenced\n", stdin=text)
    status, sarif, _ = run("check", "--no-config", "--format", "sarif", stdin=text)
    results = json.loads(sarif)["runs"][0]["results"]
    true(results and results[0]["suppressions"], "silenced in SARIF")


def test_too_long(folder):
    formats = [{"slotFormatCombId": i, "slotsFormats": [1] * 256} for i in range(512)]
    text = json.dumps({"spCellCfg": {"spCellDedicated": {"pdcchServingCellCfg": {"slotFormatInd": {
        "sfiRnti": 1, "dciPayloadSize": 8, "slotFormatCombAddMod": [{"SlotFormatComb": formats}]}}}}})
    status, _, words = run("compose", stdin=text)
    if status == MALFORMED:
        true(False, f"the record is read: {words.decode()[:500]}")
        return
    known = ids(stdin=text)
    true(("record-refused", "") in known, f"{sorted(known)[:5]}")


main(test_recognised, test_everywhere, test_check, test_files, test_silence, test_too_long)
