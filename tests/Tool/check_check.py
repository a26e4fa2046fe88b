"""check_check.py <program> <project>: the command `check` through the program: what is known besides the message, what is
shown and what fails, what is silenced, and the four forms. The messages are changes of a cell group that all rules are
silent of, and the slips in them are those of the tables of the standard."""

import json
import os
import random
import re
import subprocess

from harness import DONE, FINDINGS, MALFORMED, PROGRAM, PROJECT, USAGE, WHOLE, expect, flat, main, octets, run, true

SRB_SN = "rlc-BearerToAddModList[0].rlc-Config.am.ul-AM-RLC.sn-FieldLength"
SRB_PATH = "CellGroupConfig.rlc-BearerToAddModList[0: logicalChannelIdentity 1].rlc-Config.am.ul-AM-RLC.sn-FieldLength"
BAD_SRB = f"{SRB_SN} = size18"
COMMON = "spCellConfig.reconfigurationWithSync.spCellConfigCommon"
RELEASE = "20023f00"  # cellGroupId 0, RLC bearers 4 and 31 released


def jer(*changes, only=""):
    status, text, words = run("decode", "--as", "flat", "--json", stdin=flat(*changes, only=only))
    true(status == DONE, f"{changes}: {words}")
    return text.decode()


def encoded(text):
    status, hexed, words = run("encode", stdin=text)
    true(status == DONE, f"encoding: {words}")
    return hexed.decode().strip()


def message_of(*arguments, stdin):
    """What JSON says of the only message."""
    found = run("check", "--format", "json", *arguments, stdin=stdin)
    try:
        return json.loads(found[1])["messages"][0]
    except ValueError:
        true(False, f"check {arguments}: {found}")
        return {"findings": [], "silenced": [], "undecided": []}


def ids(*arguments, stdin):
    return [finding["id"] for finding in message_of(*arguments, stdin=stdin)["findings"]]


def undecided(*arguments, stdin):
    return {one["id"]: one["decidedBy"] for one in message_of("-v", *arguments, stdin=stdin)["undecided"]}


def line_of(text, word):
    """Line and column of a word, from 1."""
    before = text[:text.index(word)]
    return before.count("\n") + 1, len(before) - before.rfind("\n")


def test_whole(folder):
    for text in (flat(), jer(), encoded(flat())):
        expect(["check", "--full"], DONE, stdin=text)
        expect(["check", "--full", "--severity", "notice", "--fail-on", "notice"], DONE, stdin=text)
    expect(["check", "--lines", "--full"], DONE, "standard input:1: no finding\nstandard input:2: no finding\n",
           stdin=encoded(flat()) + "\n" + encoded(flat()) + "\n")


def test_finding(folder):
    """A signalling bearer has 12 bits: TS 38.331 9.2.1."""
    number = next(i for i, line in enumerate(WHOLE, 1) if line.startswith(SRB_SN))
    expect(["check", "--full"], FINDINGS, re.compile(
        rf"^standard input:{number}:1: error: {re.escape(SRB_PATH)}: size18, but .*size12.* \[rlc-srb-am-sn12\]\n"
        rf"  \| CellGroupConfig\.{re.escape(SRB_SN)} = size18\n"
        r"  Give the bearer am and size12\.\n"
        r"  TS 38\.331 RLC-Config, 9\.2\.1\n$"), stdin=flat(BAD_SRB))
    # In JER the place is the value's; with comments and a line of its own, too.
    text = jer(BAD_SRB)
    line, column = line_of(text, '"size18"')
    expect(["check", "--full", "--format", "gcc"], FINDINGS,
           re.compile(rf"^standard input:{line}:{column}: error: {re.escape(SRB_PATH)}: size18.*\[rlc-srb-am-sn12\]\n$"),
           stdin=text)
    expect(["check", "--full", "--format", "gcc"], FINDINGS,
           re.compile(rf"^standard input:{line + 2}:{column}: error: "), stdin="/* \"size18\"\n */ // [ } \n" + text)
    one = text.replace("\n", "")
    expect(["check", "--full", "--lines"], FINDINGS,
           re.compile(rf"^standard input:2: 1 error\nstandard input:2:{line_of(one, chr(34) + 'size18')[1]}: error: "),
           stdin="\n" + one)
    # Of octets there is only the file.
    hexed = encoded(text)
    expect(["check", "--full", "--format", "gcc"], FINDINGS, re.compile(r"^standard input:1: error: "), stdin=hexed)
    expect(["check", "--full"], FINDINGS, re.compile(r"^standard input: error: "), stdin=hexed)
    found = message_of("--full", stdin=text)
    finding = found["findings"][0]
    true(finding == {"id": "rlc-srb-am-sn12", "severity": "error", "path": SRB_PATH,
                     "message": "size18, but " + finding["allowed"], "line": line, "column": column,
                     "context": f"CellGroupConfig.{SRB_SN} = size18", "value": "size18", "allowed": finding["allowed"],
                     "advice": "Give the bearer am and size12.", "clause": "TS 38.331 RLC-Config, 9.2.1"},
         f"the finding in JSON: {finding}")
    true(len(found["findings"]) == 1 and found["silenced"] == [] and "undecided" not in found, "what JSON always has")
    # What is absent is shown by what is around it, at its place in the text.
    text = jer(f"{COMMON}.uplinkConfigCommon.initialUplinkBWP.rach-ConfigCommon = absent")
    finding = message_of("--full", "--only", "rach-common-needed", stdin=text)["findings"][0]
    true(finding["value"] == "absent" and finding["context"].startswith(
        f"CellGroupConfig.{COMMON}.uplinkConfigCommon.initialUplinkBWP = {{ genericParameters {{"), f"{finding}")
    true(finding["line"] == line_of(text, '"initialUplinkBWP"')[0], f"{finding}")


def test_order(folder):
    """Findings of all rules in the order of their places; those of the encoding among them."""
    text = flat(BAD_SRB, f"{COMMON}.downlinkConfigCommon.initialDownlinkBWP.genericParameters.locationAndBandwidth = 824",
                "mac-CellGroupConfig.drx-Config.setup.drx-LongCycleStartOffset.ms320 = 9",
                "rlc-BearerToAddModList[1].rlc-Config.am.dl-AM-RLC.sn-FieldLength = absent")
    found = message_of("--full", stdin=text)["findings"]
    lines = [finding["line"] for finding in found]
    true(len(found) >= 3 and lines == sorted(lines), f"findings in the order of the message: {lines}")
    true(ids("--full", "--only", "rlc-", stdin=text) == ["rlc-srb-am-sn12", "rlc-sn-missing"], "the rules of one group")


def test_meaning(folder):
    """A finding says what the value means that it complains of, in the words of `decode --explain`."""
    place = f"{COMMON}.downlinkConfigCommon.initialDownlinkBWP.genericParameters.locationAndBandwidth"
    text = flat(f"{place} = 824")
    explained = next(line for line in run("decode", "--as", "flat", "--flat", "--explain", stdin=text)[1].decode()
                     .splitlines() if place in line)
    meaning = explained.split("# ")[1]
    true("PRB" in meaning, f"meaning of a RIV: {explained}")
    told = [finding for finding in message_of("--full", stdin=text)["findings"] if place in finding["path"]]
    true(told != [] and all(finding["meaning"] == meaning for finding in told), f"{told}: {meaning}")
    expect(["check", "--full"], FINDINGS,
           re.compile(rf"(.*\n)*  \| CellGroupConfig\.{re.escape(place)} = 824  # {re.escape(meaning)}\n"), stdin=text)


def test_previous(folder):
    has, delta = folder / "has.flat", folder / "delta.flat"
    has.write_text(flat())
    release = "CellGroupConfig.cellGroupId = 0\nCellGroupConfig.rlc-BearerToReleaseList[0] = 4\n"
    channel = {"priority": 8, "prioritisedBitRate": "infinity", "bucketSizeDuration": "ms100", "logicalChannelGroup": 1,
               "logicalChannelSR-Mask": False, "logicalChannelSR-DelayTimerApplied": False, "schedulingRequestID": 3}
    bearer = run("decode", "--flat", stdin=json.dumps({"cellGroupId": 0, "rlc-BearerToAddModList": [
        {"logicalChannelIdentity": 4, "mac-LogicalChannelConfig": {"ul-SpecificParameters": channel}}]}))[1].decode()
    delta.write_text(bearer)
    # No scheduling request 3 in the message: nobody knows.
    true(ids(stdin=bearer) == [], "a reference is no warning where nothing is known")
    notices = message_of("--severity", "notice", stdin=bearer)["findings"]
    reference = next(finding for finding in notices if finding["id"] == "mac-sr-ref")
    true(reference["severity"] == "notice" and reference["decidedBy"] == ["--previous or --full"], f"{reference}")
    expect(["check", "-v"], DONE, re.compile(
        r"This could change with --previous or --full\.\n(.*\n)*"
        r".*undecided: rlc-new-incomplete: needs --previous or --full\n"), re.compile("flat lines"), stdin=bearer)
    # The UE has scheduling request 0 and no other.
    true("mac-sr-ref" in ids("--previous", str(has), stdin=bearer), "an error where all is known")
    true(ids("--previous", str(has), stdin=bearer.replace("RequestID = 3", "RequestID = 0")) == [], "and none")
    true(ids("--previous", str(has), "--delta", stdin=bearer.replace("RequestID = 3", "RequestID = 0")) == [],
         "--delta says the same")
    true("mac-sr-ref" in ids("--full", stdin=bearer), "--full: there is nothing else")
    true("mac-sr-ref" in ids("--message", "setup", stdin=bearer), "RRCSetup brings all")
    true("mac-sr-ref" in ids("--full-config", stdin=bearer), "fullConfig brings all")
    true("mac-sr-ref" not in ids("--message", "setup", "--delta", stdin=bearer), "--delta is heard first")
    # Two before the message: the second one releases bearer 4.
    gone = folder / "gone.flat"
    gone.write_text(release)
    state = ids("--previous", str(has), "--previous", str(gone), stdin=bearer)
    true("rlc-new-incomplete" in state, f"the messages before are applied in order: {state}")
    # What an earlier message has brought is told so, and is not in the text.
    bad = folder / "bad.flat"
    bad.write_text(flat(BAD_SRB))
    finding = next(one for one in message_of("--previous", str(bad), stdin=release)["findings"]
                   if one["id"] == "rlc-srb-am-sn12")
    true(finding.get("configuredBefore") and "line" not in finding and
         finding["message"].endswith("(configured before)"), f"{finding}")
    # Another cell group: the message cannot be applied, and is judged as a delta all the same.
    other = bearer.replace("cellGroupId = 0", "cellGroupId = 1")
    true(ids("--previous", str(has), "--scg", stdin=other)[0] == "delta-apply", "a message of another cell group")
    expect(["check", "--previous", str(has), "--scg"], FINDINGS, re.compile(
        r"^standard input:1:1: error: CellGroupConfig\.cellGroupId: .*another cell group \[delta-apply\]\n"), stdin=other)
    true(ids("--previous", str(has), "--scg", "--disable", "delta-apply", stdin=other) == [], "delta-apply is disabled")
    expect(["check", "--previous", str(has), "--previous", str(delta), "-"], DONE, stdin=RELEASE)
    second = folder / "scg.flat"
    second.write_text(other)
    expect(["check", "--previous", str(has), "--previous", str(second), RELEASE], MALFORMED,
           err=re.compile(r"^cellgroupcfg: --previous: .*scg\.flat: .*refused: another cell group; .*\n$"))
    expect(["check", "--previous", "2002", RELEASE], MALFORMED,
           err=re.compile("^cellgroupcfg: --previous: operand: .*ends before"))
    expect(["check", "--previous", str(folder / "none"), RELEASE], USAGE,
           err=re.compile("^cellgroupcfg: --previous: .*No such file"))


def test_chain(folder):
    has, setup = encoded(flat()), encoded(flat(only="rlc-Bearer"))
    log = f"{has}\n{RELEASE}\n{RELEASE}\n"
    # Bearer 4 is released by the second line; the third one releases what is not there.
    found = [run("check", "--lines", *chain, "--format", "json", "--severity", "notice", stdin=log)[1]
             for chain in ([], ["--chain"])]
    alone, chained = ([[finding["id"] for finding in message["findings"]] for message in json.loads(one)["messages"]]
                      for one in found)
    true(alone[1] == alone[2], f"each line by itself: {alone}")
    true(chained[1] != chained[2], f"each line on top of those before: {chained}")
    same = run("check", "--lines", "--previous", has, "--severity", "notice", "--format", "json",
               stdin=f"{RELEASE}\n{RELEASE}\n")
    first, second = json.loads(same[1])["messages"]
    true(first["findings"] == second["findings"] and first["line"] == 1 and second["line"] == 2,
         "each line on top of what is given")
    expect(["check", "--chain", "--delta", RELEASE], USAGE, err=re.compile("--chain: begins with --previous"))
    expect(["check", "--chain", "--full-config", RELEASE], USAGE, err=re.compile("--chain: not every message"))
    # A line that cannot be read or applied leaves the state as it is.
    other = encoded("CellGroupConfig.cellGroupId = 1\nCellGroupConfig.rlc-BearerToReleaseList[0] = 4\n")
    status, out, words = run("check", "--lines", "--chain", stdin=f"{has}\n2002\n{other}\n{setup}\n")
    true(status == MALFORMED and b"delta-apply" in out and b"the next message is checked without it" in words,
         f"{status} {out} {words}")


def test_known(folder):
    """Each option decides what is undecided without it, and the other value gives a finding."""
    small = flat(only="spCellConfig.spCellConfigDedicated")
    needs = undecided(stdin=small)
    duplex = "--fdd, --tdd or --band"
    true(all(duplex not in decided for decided in undecided("--band", "n78", stdin=small).values()), "a band has a mode")
    known = {
        "--message": ["--message", "reconfig"], duplex: ["--tdd"], "--carrier": ["--carrier", "30:0:273"],
        "--bwp0-dl": ["--bwp0-dl", "1099:30"], "--bwp0-ul": ["--bwp0-ul", "1099:30"],
        "--ssb-bitmap": ["--ssb-bitmap", "11000000"], "--coreset0": ["--coreset0", "10"],
        "--tdd-pattern": ["--tdd-pattern", "30:ms2p5:3:10:1:2"], "--meas-object": ["--meas-object", "none"],
    }
    for words, options in known.items():
        true(any(words in decided for decided in needs.values()), f"{words} is named: {needs}")
        left = undecided(*options, stdin=small)
        true(all(words not in decided for decided in left.values()), f"{options} leaves undecided: {left}")
    everything = [word for options in known.values() for word in options] + ["--band", "n78"]
    expect(["check", *everything, "--mcg", "--fr", "1", "--typeA-position", "2", "--bearers", "srb1,drb1", "--none",
            "--other-cells", "none"], DONE, stdin=small)
    # Carriers of 106 resource blocks cannot hold bandwidth parts of 273, which these are: TS 38.213 12.
    part = "bwp-in-carrier"
    true(part not in ids("--carrier", "30:0:273", stdin=small), "the bandwidth parts fit 273")
    true(part in ids("--carrier", "30:0:106", stdin=small), "they do not fit 106")
    narrow = ids("--carrier", "30:0:273", "--carrier-ul", "30:0:106", stdin=small)
    true(narrow.count(part) < ids("--carrier", "30:0:106", stdin=small).count(part) and part in narrow,
         "the uplink alone does not fit")
    # Only an SCG has xScale: Cond SCG-Only.
    scaled = flat("physicalCellGroupConfig.xScale = dB6", only="physicalCellGroupConfig")
    true("phy-dc-only" in ids("--mcg", stdin=scaled), "an MCG has no xScale")
    true("phy-dc-only" not in ids("--scg", "--endc", stdin=scaled), "an SCG beside E-UTRA has")
    true("phy-dc-only" in ids("--scg", "--nrdc", stdin=scaled), "an SCG beside NR has none")
    decoding = flat("physicalCellGroupConfig.pdcch-BlindDetection.setup = 3", only="physicalCellGroupConfig")
    true("phy-dc-only" in undecided(stdin=decoding), "whether there are two NR cell groups is not known")
    true("phy-dc-only" not in ids("--nrdc", stdin=decoding), "two NR cell groups share it")
    true("phy-dc-only" in ids("--none", stdin=decoding), "one has nobody to share it with")
    # A CORESET of three symbols leaves room for the DM-RS at symbol 3 alone: TS 38.211 7.3.2.2.
    coreset = "spCellConfig.spCellConfigDedicated.downlinkBWP-ToAddModList[0].bwp-Dedicated.pdcch-Config.setup." \
              "controlResourceSetToAddModList[0].duration"
    long = flat(f"{coreset} = 3", only="spCellConfig.spCellConfigDedicated")
    true(undecided(stdin=long).get("pdcch-coreset-dur3") == ["--typeA-position"], "the position is not known")
    true("pdcch-coreset-dur3" in ids("--typeA-position", "2", stdin=long), "symbol 2 is taken")
    true("pdcch-coreset-dur3" not in ids("--typeA-position", "3", stdin=long), "symbol 3 is free")
    # The serving cell's measurement object: of the SSB's frequency.
    measured = flat("spCellConfig.spCellConfigDedicated.servingCellMO = 2")
    for options, verdict in ((["none"], True), (["2:633312:30"], False), (["2:633313:30"], True), (["1:633312:30"], True),
                             (["1", "2:csirs=0,95"], False)):
        words = [word for option in options for word in ("--meas-object", option)]
        true(("sync-serving-mo" in ids("--full", *words, stdin=measured)) == verdict, f"{words}")
    # An SCell whose index a cell of the other cell group has.
    scell = flat() + "".join(f"CellGroupConfig.{line}\n" for line in
                             (PROJECT / "tests/Rules/sCell.flat").read_text(encoding="utf-8").splitlines()
                             if line.strip() and not line.startswith("#"))
    true("scell-index" in ids("--full", "--other-cells", "1,3", stdin=scell), "index 1 is the other group's")
    true("scell-index" not in ids("--full", "--other-cells", "3", stdin=scell), "index 1 is free")
    # SR each 5 slots at 30 kHz needs a capability.
    period = "spCellConfig.spCellConfigDedicated.uplinkConfig.uplinkBWP-ToAddModList[0].bwp-Dedicated.pucch-Config.setup." \
             "schedulingRequestResourceToAddModList[0].periodicityAndOffset"
    short = flat(f"{period} = absent", f"{period}.sl5 = 4")
    file = folder / "capability.json"
    for text, severity in (("", ["warning"]), ("{}", ["error"]), ('{"sr-PeriodsSl5Sl10": "supported"}', [])):
        file.write_text(text)
        words = ["--capability", str(file)] if text else []
        found = message_of("--full", "--only", "pucch-sr-period", *words, stdin=short)["findings"]
        true([one["severity"] for one in found] == severity, f"{text}: {found}")
    # A DRB that stays needs a channel; without radio bearers nothing is amiss.
    release = "CellGroupConfig.cellGroupId = 0\nCellGroupConfig.rlc-BearerToReleaseList[0] = 4\n"
    has = folder / "has-bearers.flat"
    has.write_text(flat())
    true("rlc-release-srb" in ids("--previous", str(has), "--bearers", "srb1,drb1", stdin=release), "DRB 1 stays")
    true("rlc-release-srb" not in ids("--previous", str(has), "--bearers", "srb1", stdin=release), "DRB 1 goes")
    true("rlc-release-srb" in undecided("--previous", str(has), stdin=release), "nobody knows of DRB 1")
    twice = flat("rlc-BearerToAddModList[0].servedRadioBearer.srb-Identity = absent",
                 "rlc-BearerToAddModList[0].servedRadioBearer.drb-Identity = 1")
    true("rlc-bearer-twice" in ids("--full", "--bearers", "drb1", stdin=twice), "DRB 1 is served twice")
    severities = [one["severity"] for one in message_of("--full", "--bearers", "drb1:dup", "--only", "rlc-bearer-twice",
                                                        stdin=twice)["findings"]]
    true(severities == ["warning"], f"with duplication both channels need cells of their own: {severities}")


def test_wrong_values(folder):
    for options, words in {
        "--band xx": "--band: 'xx' is no band, such as n78",
        "--band n15": "--band: Release 15 has no band n15; of a later one --fr and --fdd or --tdd say what rules ask for",
        "--band n78 --fr 2": "--fr: band n78 is of FR1 and of TDD",
        "--band n78 --fdd": "--fdd: band n78 is of FR1 and of TDD",
        "--band n78 --band n41": "--band: it is said twice",
        "--fr 3": "--fr: the range '3' is none of 1, 2",
        "--fdd --tdd": "--tdd: it excludes --fdd",
        "--mcg --scg": "--scg: it excludes --mcg",
        "--endc --none": "--none: it excludes --endc",
        "--full --delta": "--delta: it excludes --full",
        f"--full --previous {RELEASE}": "--full: it excludes --previous",
        "--message setupp": "--message: the kind 'setupp' is none of setup, reconfig, sync, resume, reestab; did you mean "
                            "setup?",
        "--carrier 30:0": "--carrier: '30:0' is not SCS:offset:width, such as 30:0:273",
        "--carrier 45:0:273": "--carrier: the subcarrier spacing '45' is none of 15, 30, 60, 120",
        "--carrier 30:2200:1": "--carrier: the offset '2200' is not in 0..2199",
        "--carrier 30:0:276": "--carrier: the width '276' is not in 1..275",
        "--carrier 30:0:-1": "--carrier: the width '-1' is not in 1..275",
        "--carrier 30:0:100 --carrier 30:9:100": "--carrier: a second carrier with the subcarrier spacing of '30:9:100'",
        "--bwp0-dl 1099": "--bwp0-dl: '1099' is not RIV:SCS, such as 1099:30",
        "--bwp0-ul 37950:30": "--bwp0-ul: locationAndBandwidth '37950' is not in 0..37949",
        "--ssb-bitmap 10101": "--ssb-bitmap: '10101' is no bitmap of 4, 8 or 64 bits, such as 10000000 or 0x80",
        "--ssb-bitmap 0x123": "--ssb-bitmap: '0x123' is no bitmap of 4, 8 or 64 bits, such as 10000000 or 0x80",
        "--typeA-position 4": "--typeA-position: the position '4' is none of 2, 3",
        "--coreset0 16": "--coreset0: the index '16' is not in 0..15",
        "--tdd-pattern 30:ms5": "--tdd-pattern: '30:ms5' is not SCS:period:DL slots:DL symbols:UL slots:UL symbols, such as "
                                "30:ms5:7:6:2:4",
        "--tdd-pattern 30:ms6:1:0:0:0": "--tdd-pattern: the period 'ms6' is none of ms0p5, ms0p625, ms1, ms1p25, ms2, ms2p5, "
                                        "ms5, ms10, ms3, ms4; did you mean ms1?",
        "--tdd-pattern 30:ms0p625:1:0:0:0": "--tdd-pattern: the period 'ms0p625' is none of a reference of 30 kHz, but of 120",
        "--tdd-pattern 30:ms5:8:6:2:9": "--tdd-pattern: the slots and symbols are more than the 10 slots of ms5",
        "--tdd-pattern 30:ms5:8:0:2:0+ms2:4:0:0:0": "--tdd-pattern: 20 ms are no whole number of its periods",
        "--bearers srb4": "--bearers: 'srb4' is none of srb1 to srb3 and drb1 to drb32, with or without :dup",
        "--bearers drb33": "--bearers: 'drb33' is none of srb1 to srb3 and drb1 to drb32, with or without :dup",
        "--meas-object 65": "--meas-object: measObjectId '65' is not in 1..64",
        "--meas-object 1:2": "--meas-object: '1:2' is not ID[:ARFCN:SCS][:csirs=0,1], such as 1:633312:30",
        "--meas-object 1:csirs=96": "--meas-object: the CSI-RS-Index '96' is not in 0..95",
        "--meas-object 1 --meas-object 1": "--meas-object: a second object 1",
        "--other-cells 32": "--other-cells: the ServCellIndex '32' is not in 0..31",
        "--only bwp": "--only: there is no rule 'bwp'; did you mean bwp-?",
        "--only rlc-srb-am-sn": "--only: there is no rule 'rlc-srb-am-sn'; did you mean rlc-srb-am-sn12?",
        "--disable bwp-in-carier": "--disable: there is no rule 'bwp-in-carier'; did you mean bwp-in-carrier?",
        "--disable per-end": "--disable: 'per-end' is about messages that cannot be read, which are never passed over",
        "--config a --no-config": "--config and --no-config exclude each other",
        "--fail-on warning --severity error": "--fail-on warning: what fails is shown, say --severity warning",
        "--type RLC-Config --chain": "--chain: rules are of CellGroupConfig, not of RLC-Config",
        "--type RLC-Config --band n78": "--band: rules are of CellGroupConfig, not of RLC-Config",
    }.items():
        expect(["check", *options.split(), RELEASE], USAGE, err=f"cellgroupcfg: {words}\n")
    for options in ("--severity fatal", "--fail-on always", "--format xml", "--carrier", "--nonesuch"):
        expect(["check", *options.split()], USAGE, err=re.compile("^cellgroupcfg: "))


def test_files(folder):
    rach = folder / "rach.json"
    rach.write_text(run("decode", "--as", "flat", "--json", "--type", "RACH-ConfigCommon", stdin="".join(
        line.split("rach-ConfigCommon.setup.")[1].join(["RACH-ConfigCommon.", "\n"]) for line in WHOLE
        if line.startswith(f"{COMMON}.uplinkConfigCommon.initialUplinkBWP.rach-ConfigCommon.setup.")))[1].decode())
    small = flat(only="spCellConfig.spCellConfigDedicated")
    beam = "CellGroupConfig.spCellConfig.spCellConfigDedicated.uplinkConfig.initialUplinkBWP." \
           "beamFailureRecoveryConfig.setup.candidateBeamRSList[0].ssb."
    recovery = f"{small}{beam}ssb = 0\n{beam}ra-PreambleIndex = 60\n"
    true(["--rach"] in undecided(stdin=recovery).values(), "random access of the initial bandwidth part is not known")
    true(["--rach"] not in undecided("--rach", str(rach), stdin=recovery).values(), "now it is")
    expect(["check", "--rach", str(rach)], DONE, stdin=small)
    expect(["check", "--as", "flat", "--rach", str(rach)], DONE, stdin=small)
    expect(["check", "--rach", "00"], MALFORMED, err=re.compile("^cellgroupcfg: --rach: operand: RACH-ConfigCommon"), stdin=small)
    expect(["check", "--rach", "/dev/null"], MALFORMED, err=re.compile("^cellgroupcfg: --rach: /dev/null: .*empty"), stdin=small)
    capability = folder / "ue.json"
    for text in ('{"dl-64QAM-MCS-TableAlt": "notSupported"}', "{} // a UE that has nothing",
                 '{"supportedSRS-TxPortSwitch": ["t1r2", "t1r4-t2r4"]}'):
        capability.write_text(text)
        expect(["check", "--full", "--capability", str(capability)], DONE, stdin=flat())
    for text, words in (("[]", "an object with the names of capabilities is expected"), ("{", "parse error"),
                        ('{"dl-64QAM-MCS-TableAtl": true}', "there is no capability 'dl-64QAM-MCS-TableAtl' that rules "
                                                            "ask for; did you mean dl-64QAM-MCS-TableAlt"),
                        ('{"dl-64QAM-MCS-TableAlt": 1}', "dl-64QAM-MCS-TableAlt is none of supported, notSupported")):
        capability.write_text(text)
        expect(["check", "--capability", str(capability), RELEASE], USAGE,
               err=re.compile(f"^cellgroupcfg: --capability: {re.escape(str(capability))}: .*{re.escape(words)}"))
    expect(["check", "--capability", str(folder / "no"), RELEASE], USAGE, err=re.compile("No such file"))
    expect(["check", "--capability", str(folder), RELEASE], USAGE, err=re.compile("Is a directory"))


def test_severity(folder):
    warning = flat(f"{COMMON}.uplinkConfigCommon.frequencyInfoUL.frequencyBandList[0] = 78")  # ignored in TDD
    expect(["check", "--full"], DONE, re.compile(r"^standard input:\d+:1: warning: .* \[sync-ul-band\]\n"), stdin=warning)
    expect(["check", "--full", "--severity", "error"], DONE, stdin=warning)
    expect(["check", "--full", "--fail-on", "warning"], FINDINGS, re.compile("sync-ul-band"), stdin=warning)
    expect(["check", "--full", "--fail-on", "notice"], FINDINGS, re.compile("sync-ul-band"), stdin=warning)
    expect(["check", "--full", "--disable", "sync-ul-band", "--fail-on", "notice"], DONE, stdin=warning)
    expect(["check", "--full", "--disable", "sync-,bwp-", "--fail-on", "notice"], DONE, stdin=warning)
    expect(["check", "--full", "--only", "bwp-", "--only", "rlc-", "--fail-on", "notice"], DONE, stdin=warning)
    error = flat(BAD_SRB)
    expect(["check", "--full", "--fail-on", "never"], DONE, re.compile("rlc-srb-am-sn12"), stdin=error)
    expect(["check", "--full", "--only", "bwp-"], DONE, stdin=error)
    expect(["check", "--full", "--lines"], FINDINGS, re.compile("^standard input:1: 1 error, 1 warning\n"),
           stdin=encoded(flat(BAD_SRB, f"{COMMON}.uplinkConfigCommon.frequencyInfoUL.frequencyBandList[0] = 78")))
    # What cannot be read is told whatever is asked for.
    expect(["check", "--only", "bwp-", "--fail-on", "never", "2002"], MALFORMED, re.compile("per-end"))
    expect(["check", "--only", "bwp-"], FINDINGS, re.compile(r"\[jer\]"), stdin='{"cellGroupId": 4}')
    # Other types have no rules.
    expect(["check", "--type", "RLC-Config"], DONE, stdin=octets("0 11  1 1 00111"))


def test_silences(folder):
    home = folder / "project"
    (home / "configs").mkdir(parents=True)
    (home / ".git").mkdir()
    message = home / "configs/message.json"
    message.write_text(jer(BAD_SRB))
    project = home / ".cellgroupcfg.toml"
    silence = '[[silence]]\nrule = "rlc-srb-am-sn12"\nreason = "an experiment"\n'
    place = os.getcwd()
    os.chdir(home / "configs")
    project.write_text("[context]\nfull = true\n")
    expect(["check", "message.json"], FINDINGS, re.compile("rlc-srb-am-sn12"))
    project.write_text("[context]\nfull = true\n" + silence)
    expect(["check", "message.json"], DONE, err="cellgroupcfg: message.json: 1 finding silenced\n")
    expect(["check", "-v", "message.json"], DONE,
           re.compile(rf"^message\.json:\d+:\d+: silenced: {re.escape(SRB_PATH)}: size18.*\[rlc-srb-am-sn12\]\n"
                      rf"  an experiment \({re.escape(str(project))}:3\)\n"), re.compile("project file " + str(project)))
    expect(["check", "--lines", "--no-config", "--full"], FINDINGS, re.compile("^standard input:1: 1 error\n"),
           stdin=encoded(message.read_text()))
    expect(["check", "--lines"], DONE, "standard input:1: 1 silenced\n", stdin=encoded(message.read_text()))
    found = message_of(stdin=message.read_text())
    true(found["findings"] == [] and found["silenced"][0]["reason"] == "an experiment" and
         found["silenced"][0]["silencedBy"] == f"{project}:3", f"silenced in JSON: {found}")
    expect(["check", "--no-config", "--full", "message.json"], FINDINGS, re.compile("rlc-srb-am-sn12"))
    for path, status in (("CellGroupConfig.rlc-BearerToAddModList", DONE), ("CellGroupConfig.rlc-BearerToAddModList[0]", DONE),
                         ("CellGroupConfig.rlc-BearerToAddModList[logicalChannelIdentity 1]", DONE),
                         ("CellGroupConfig.*.rlc-Config", DONE), ("**.sn-FieldLength", DONE), ("CellGroupConfig.**.am", DONE),
                         ("CellGroupConfig.rlc-BearerToAddModList[*].rlc-C?nfig.am", DONE),
                         ("CellGroupConfig.rlc-BearerToAddModList[1]", FINDINGS), ("CellGroupConfig.rlc-Config", FINDINGS),
                         ("CellGroupConfig.rlc-BearerToAddModList[logicalChannelIdentity 4]", FINDINGS),
                         ("**.dl-AM-RLC", FINDINGS), ("CellGroupConfig.rlc-Bearer", FINDINGS)):
        project.write_text(f"[context]\nfull = true\n{silence}path = \"{path}\"\n")
        expect(["check", "message.json"], status, re.compile(""), re.compile(""))
        unused = status == FINDINGS
        expect(["check", "-v", "message.json"], status, re.compile(""),
               re.compile(f"^(?s:.*)nothing is silenced, rlc-srb-am-sn12 at {re.escape(path)} has no finding\n$"
                          if unused else r"^(?!(?s:.*)nothing is silenced)"))
    # The command line is heard before the project file.
    project.write_text("[context]\nfull = true\nband = \"n78\"\nprevious = [\"has.json\"]\n")
    expect(["check", "message.json"], USAGE,
           err=re.compile(rf"{re.escape(str(project))}:\d+:\d+: previous: it excludes .*full\n$"))
    project.write_text("[context]\nprevious = [\"configs/has.json\"]\nfr = 1\ncarrier = [\"30:0:273\"]\n")
    (home / "configs/has.json").write_text(jer())
    expect(["check", "message.json"], FINDINGS, re.compile("rlc-srb-am-sn12"), re.compile(""))
    expect(["check", "--full", "message.json"], FINDINGS, re.compile("rlc-srb-am-sn12"))
    # Not above the repository, and where no repository is only here.
    (home / "configs/.git").write_text("gitdir: elsewhere\n")
    project.write_text("nonsense")
    expect(["check", "message.json"], FINDINGS, re.compile("rlc-srb-am-sn12"))
    os.chdir(folder)
    (folder / "a/b").mkdir(parents=True)
    (folder / "a/.cellgroupcfg.toml").write_text("nonsense")
    os.chdir(folder / "a/b")
    expect(["check", RELEASE], DONE)
    expect(["check", RELEASE], USAGE, err=re.compile("a/.cellgroupcfg.toml:1:"), environment={"HOME": str(folder / "a")})
    os.chdir(folder / "a")
    expect(["check", RELEASE], USAGE, err=re.compile(r"^cellgroupcfg: \.cellgroupcfg\.toml:1:\d+: .*\n$"))
    expect(["check", "--no-config", RELEASE], DONE)
    os.chdir(place)
    test_project_mistakes(folder / "own.toml")


def test_project_mistakes(file):
    for text, words in {
        "[contxt]": "1:2: there is no 'contxt'; did you mean context?",
        "context = 1": "1:1: it is written [context]",
        "[silence]\nrule = 'x'": "1:2: it is written [[silence]]",
        "[context]\nbnad = 'n78'": "2:1: there is no 'bnad'; did you mean band?",
        "[context]\nband = 'x'": "2:8: band: 'x' is no band, such as n78",
        "[context]\nband = [1]": "2:8: band is a string or a number",
        "[context]\nfull = 1": "2:8: full is true or false",
        "[context]\ncarrier = [true]": "2:12: carrier is a string or an array of them",
        "[[silence]]\nrule = 'bwp-in-carier'\nreason = 'x'": "2:8: there is no rule 'bwp-in-carier'; did you mean "
                                                             "bwp-in-carrier?",
        "[[silence]]\nrule = 'bwp-in-carrier'": "1:1: a silence has a reason",
        "[[silence]]\nrule = 'bwp-in-carrier'\nreason = ' '": "1:1: a silence has a reason",
        "[[silence]]\nreason = 'x'": "1:1: a silence names its rule",
        "[[silence]]\nrule = 1": "2:8: rule is a string",
        "[[silence]]\nrul = 'x'": "2:1: there is no 'rul'; did you mean rule?",
        "[[silence]]\nrule = 'bwp-'\nreason = 'x'\npath = 'spCellConfig'": "4:8: a path begins with CellGroupConfig or **",
        "[=]": "1:2: Error while parsing key: expected bare key starting character or string delimiter, saw '='",
        "# ü\n[context]\nband =  ü": "3:9: Error while parsing value: could not determine value type",
        "[[silence]]\nrule = \"bwp\\r\\u001b\"": "2:8: there is no rule 'bwp  '",
        "kö = 1": "1:2: Error while parsing key-value pair: expected '=', saw 'ö'",
    }.items():
        file.write_text(text)
        expect(["check", "--config", str(file), RELEASE], USAGE, err=f"cellgroupcfg: {file}:{words}\n")
    file.write_text("[context]\nfr = n\n")
    expect(["check", "--config", str(file), RELEASE], USAGE, err=re.compile(r"^cellgroupcfg: [^\n]*:2:\d+: [^\n]*\n$"))
    file.write_text("# ü\n[[silence]]\nrule = 'bwp-'\nreason = \"\"\"ü\"\"\"\"\" # ü\n")
    expect(["check", "--config", str(file), RELEASE], DONE)
    file.write_text("[context]\nfull = false\nfr = 1\nbearers = ['srb1', 'drb1,drb2:dup']\ncoreset0 = 10\n")
    expect(["check", "--config", str(file), RELEASE], DONE)
    expect(["check", "--config", str(file.parent / "none.toml"), RELEASE], USAGE, err=re.compile("No such file"))
    expect(["check", "--config", str(file.parent), RELEASE], USAGE, err=re.compile("Is a directory"))


def test_comments(folder):
    text = jer(BAD_SRB)
    comment = "// cellgroupcfg: silence rlc-srb-am-sn12 an experiment\n"
    block = "/* cellgroupcfg: silence rlc-srb-am-sn12 an\n experiment */"
    member, value = '"sn-FieldLength": "size18"', '"size18"'
    begin = text.index(member)
    list_at = text.index('"rlc-BearerToAddModList": [') + len('"rlc-BearerToAddModList": [')
    places = {
        "behind the member": text[:begin] + member + ", " + comment + text[begin + len(member) + 1:],
        "before it": text[:begin] + comment + text[begin:],
        "before it on its line": text[:begin] + block + text[begin:],
        "behind its name": text.replace(value, "/* cellgroupcfg: silence rlc-srb-am-sn12 an experiment */ " + value),
        "at the list": text[:list_at] + comment + text[list_at:],
        "at the whole message": comment + text,
    }
    for where, commented in places.items():
        found = message_of("--full", stdin=commented)
        true(found["findings"] == [] and [one["id"] for one in found["silenced"]] == ["rlc-srb-am-sn12"],
             f"a comment {where}: {found}")
        line = line_of(commented, "cellgroupcfg")[0]
        true(found["silenced"] and found["silenced"][0]["silencedBy"] == f"standard input:{line}" and
             re.fullmatch(r"an\s+experiment", found["silenced"][0]["reason"]), f"a comment {where}: {found}")
    expect(["check", "--full"], DONE, err="cellgroupcfg: standard input: 1 finding silenced\n", stdin=places["before it"])
    # At another member, of another rule, of no rule.
    mac = text.index('"mac-CellGroupConfig"')
    elsewhere = text[:mac] + comment + text[mac:]
    expect(["check", "--full"], FINDINGS, re.compile(r"\[rlc-srb-am-sn12\]"), stdin=elsewhere)
    expect(["check", "--full", "-v"], FINDINGS, re.compile(""), re.compile(
        rf"standard input:{line_of(elsewhere, 'cellgroupcfg')[0]}: nothing is silenced, rlc-srb-am-sn12 at "
        r"CellGroupConfig\.mac-CellGroupConfig has no finding\n"), stdin=elsewhere)
    for words, told in (("silence rlc-srb-am-sn13 why", "there is no rule 'rlc-srb-am-sn13'; did you mean rlc-srb-am-sn12?"),
                        ("silence rlc-srb-am-sn12", "the reason is missing for which rlc-srb-am-sn12 is silenced"),
                        ("ignore it", "a comment for this program says: silence RULE reason")):
        expect(["check", "--only", "bwp-"], FINDINGS,
               re.compile(rf"^standard input:1:1: error: CellGroupConfig: {re.escape(told)} \[silence\]\n"),
               stdin=f"// cellgroupcfg: {words}\n" + '{"cellGroupId": 0}')
    expect(["check", "--only", "bwp-"], DONE, stdin='{"cellGroupId": 0} // cellgroupcfg is a program\n')
    # Other commands pass comments over.
    true(encoded(places["before it"]) == encoded(text), "a text with comments is encoded")


def test_random_comments(folder):
    """Wherever comments and line ends stand, a finding is told at its value."""
    draw = random.Random(14)
    tokens = re.findall(r'"[^"]*"|[{}\[\]:,]|[^\s{}\[\]:,"]+', jer(BAD_SRB))
    gaps = ("", " ", "\n", "\t", "/**/", "/* \"[{}]\" */", "// {\n", "/* \u00e4\u20ac */", "//\n\n")
    for _ in range(25):
        text = "".join(draw.choice(gaps) + token + draw.choice(gaps) for token in tokens)
        finding = (message_of("--full", stdin=text)["findings"] or [{}])[0]
        true((finding.get("line"), finding.get("column")) == line_of(text, '"size18"'), f"{finding} in {text[:300]}")


# What SARIF 2.1.0 allows of the objects that are written: members, with * those that have to be there. Its schema allows
# no others.
SARIF = {
    "log": {"$schema": str, "version*": {"2.1.0"}, "runs*": ["run"]},
    "run": {"tool*": "tool", "results": ["result"], "columnKind": {"utf16CodeUnits", "unicodeCodePoints"}},
    "tool": {"driver*": "driver"},
    "driver": {"name*": str, "semanticVersion": str, "rules": ["rule"]},
    "rule": {"id*": str, "shortDescription": "text", "help": "text"},
    "text": {"text*": str},
    "result": {"ruleId": str, "ruleIndex": int, "level": {"none", "note", "warning", "error"}, "message*": "text",
               "locations": ["location"], "suppressions": ["suppression"]},
    "location": {"physicalLocation": "physical", "logicalLocations": ["logical"]},
    "physical": {"artifactLocation": "artifact", "region": "region"},
    "artifact": {"uri": re.compile(r"(file:///?)?[\w.~/%-]+")},
    "region": {"startLine": int, "startColumn": int},
    "logical": {"fullyQualifiedName": str, "kind": str},
    "suppression": {"kind*": {"inSource", "external"}, "justification": str},
}


def sarif_problems(value, kind, at="log"):
    if isinstance(kind, list):
        return [one for i, item in enumerate(value) for one in sarif_problems(item, kind[0], f"{at}[{i}]")]
    if isinstance(kind, set):
        return [] if value in kind else [f"{at}: {value!r}"]
    if isinstance(kind, re.Pattern):
        return [] if kind.fullmatch(value) else [f"{at}: {value!r}"]
    if isinstance(kind, type):
        right = isinstance(value, kind) and (kind is not int or value >= (0 if at.endswith("Index") else 1))
        return [] if right else [f"{at}: {value!r}"]
    members = {name.rstrip("*"): of for name, of in SARIF[kind].items()}
    missing = [f"{at}: no {name}" for name in SARIF[kind] if name.endswith("*") and name[:-1] not in value]
    unknown = [f"{at}: {name} is no member" for name in value if name not in members]
    return missing + unknown + [one for name, item in value.items() if name in members
                                for one in sarif_problems(item, members[name], f"{at}.{name}")]


def test_sarif(folder):
    file = folder / "a message.json"
    file.write_text(jer(BAD_SRB, f"{COMMON}.uplinkConfigCommon.frequencyInfoUL.frequencyBandList[0] = 78")
                    .replace('"mac-CellGroupConfig"', "// cellgroupcfg: silence mac- no finding\n \"mac-CellGroupConfig\""))
    project = folder / "sarif.toml"
    project.write_text('[[silence]]\nrule = "sync-ul-band"\nreason = "the UE ignores it"\n')
    status, text, _ = run("check", "--full", "--config", str(project), "--format", "sarif", str(file), "2002")
    sarif = json.loads(text)
    problems = sarif_problems(sarif, "log")
    true(status == MALFORMED and not problems, f"SARIF: {problems}")
    driver, results = sarif["runs"][0]["tool"]["driver"], sarif["runs"][0]["results"]
    true(driver["name"] == "cellgroupcfg", "SARIF names the tool")
    true([result["ruleId"] for result in results] == ["rlc-srb-am-sn12", "sync-ul-band", "per-end"], f"SARIF: {results}")
    for result in results:
        true(driver["rules"][result["ruleIndex"]]["id"] == result["ruleId"], "SARIF's rule")
        true(driver["rules"][result["ruleIndex"]]["shortDescription"]["text"].endswith("."), "SARIF tells what holds")
    place = results[0]["locations"][0]["physicalLocation"]
    true(place["artifactLocation"]["uri"] == "file://" + str(file).replace(" ", "%20"), "SARIF's file")
    true(place["region"]["startLine"] == line_of(file.read_text(), '"size18"')[0], "SARIF's line")
    true(results[0]["locations"][0]["logicalLocations"][0]["fullyQualifiedName"] == SRB_PATH, "SARIF's path")
    true("suppressions" not in results[0] and results[1]["suppressions"] == [
        {"kind": "external", "justification": "the UE ignores it"}], f"SARIF's suppressions: {results}")
    file.write_text("// cellgroupcfg: silence rlc-srb-am-sn12 an experiment\n" + jer(BAD_SRB))
    sarif = json.loads(run("check", "--full", "--format", "sarif", str(file))[1])
    true(not sarif_problems(sarif, "log") and sarif["runs"][0]["results"][0]["suppressions"] == [
        {"kind": "inSource", "justification": "an experiment"}], f"SARIF: {sarif}")
    true(not sarif_problems(json.loads(run("check", "--format", "sarif", RELEASE)[1]), "log"), "SARIF of no finding")
    same = run("check", "--full", "--format", "sarif", str(file))[1]
    true(same == run("check", "--full", "--format", "sarif", str(file))[1], "the same input, the same octets")


def test_encoding(folder):
    """What `check` tells of the ASN.1 and its encoding, of any type."""
    wrong = '{\n  "cellGroupId": 4,\n  "rlc-BearerToReleaseList": []\n}\n'
    expect(["check", RELEASE], DONE)
    expect(["check"], FINDINGS,
           re.compile(r"^standard input:2:18: error: CellGroupConfig\.cellGroupId: 4 is not in 0\.\.3 \[jer\]\n"
                      r"standard input:\d+:\d+: error: CellGroupConfig\.rlc-BearerToReleaseList: 0 elements, not 1\.\.32 "
                      r"\[jer\]\n$"), stdin=wrong)
    file = folder / "wrong message.json"
    file.write_text(wrong)
    expect(["check", "--format", "gcc", str(file)], FINDINGS,
           re.compile(rf"^{re.escape(str(file))}:2:18: error: CellGroupConfig\.cellGroupId: .* \[jer\]\n"))
    found = json.loads(run("check", "--format", "json", str(file), RELEASE)[1])
    true(found["version"] == 2 and [len(one["findings"]) for one in found["messages"]] == [2, 0], f"check: {found}")
    true(found["messages"][0]["findings"][0] == {
        "id": "jer", "severity": "error", "path": "CellGroupConfig.cellGroupId", "message": "4 is not in 0..3",
        "line": 2, "column": 18}, f"check: {found}")
    expect(["check", RELEASE + "00"], MALFORMED, re.compile(r"^operand: error: CellGroupConfig: 1 octet follows.* "
                                                            r"\[per-surplus\]\n"))
    # An addition of a later release, and an extension that is announced and has none: notices.
    later = octets("1 0000000 00  0 000001 01  00000001 10101011").hex()
    empty = octets("1 0000000 00  0 000000 0").hex()
    expect(["check", later], DONE)
    expect(["check", "--severity", "notice", later], DONE,
           re.compile(r"^operand: notice: CellGroupConfig: 1 addition of a later release.*\[unknown-addition\]\n"))
    expect(["check", "--format", "gcc", "--severity", "notice", later], DONE, re.compile("^operand:1: note: "))
    expect(["check", "-v", empty], DONE, re.compile(r"\[per-not-canonical\]"), re.compile(""))
    expect(["check", "--fail-on", "notice", empty], FINDINGS, re.compile(r"\[per-not-canonical\]"))
    expect(["check", "--fail-on", "notice", "--disable", "per-not-canonical", empty], DONE)
    expect(["check", "--lines"], MALFORMED, re.compile(
        r"^standard input:1: no finding\nstandard input:2: 1 error\nstandard input:2: error: .*\[per-end\]\n"),
           stdin=f"{RELEASE}\n2002\n")


def test_hostile(folder):
    expect(["check"], MALFORMED, err="cellgroupcfg: standard input: the input is empty\n")
    expect(["check", "/dev/null"], MALFORMED, err="cellgroupcfg: /dev/null: the input is empty\n")
    expect(["check", str(folder)], USAGE, err=f"cellgroupcfg: {folder}: Is a directory\n")
    expect(["check", "--full", "nothing", RELEASE], USAGE, re.compile(""), re.compile("nothing: No such file"))
    # A megabyte: of comments, of blanks, of findings, of noise.
    text = jer(BAD_SRB)
    million = 1 << 20
    expect(["check", "--full"], FINDINGS, re.compile("rlc-srb-am-sn12"), stdin=text + "/*" + "{[" * (million // 2) + "*/")
    expect(["check", "--full"], FINDINGS, re.compile("rlc-srb-am-sn12"), stdin="\n" * million + text)
    many = "// cellgroupcfg: silence rlc-srb-am-sn12 x\n" * 20000
    expect(["check", "--full"], DONE, re.compile(""), re.compile("1 finding silenced"), stdin=many + text)
    status, out, _ = run("check", "--full", stdin="// cellgroupcfg: what\n" * 20000 + text)
    true(status == FINDINGS and out.count(b"[silence]") == 20000, "a finding for each comment that is none")
    log = (encoded(flat(BAD_SRB)) + "\n") * 500
    status, out, _ = run("check", "--full", "--lines", stdin=log)
    true(status == FINDINGS and out.count(b": 1 error\n") == 500, "a log of a megabyte")
    expect(["check"], MALFORMED, err=re.compile(""), out=re.compile(""), stdin=bytes(range(256)) * 4096)
    expect(["check"], MALFORMED, re.compile(""), re.compile(""), stdin=b"\xff" * 8192)
    # Damage: a verdict each time, whatever is left of the text.
    draw = random.Random(41)
    for _ in range(150):
        damaged = bytearray(("// cellgroupcfg: silence bwp- x\n" + text).encode())
        for _ in range(draw.randrange(1, 4)):
            at = draw.randrange(len(damaged))
            damaged[at:at + draw.choice((0, 1, 1, 40))] = draw.choice((b"", b"}", b"]", b"/*", b'"', b"//", b"\\", b"\xff"))
        status, out, words = run("check", "--as", "jer", "--format", "json", "-v", stdin=bytes(damaged))
        true(status in (DONE, FINDINGS, MALFORMED) and (status == MALFORMED or json.loads(out)["version"] == 2),
             f"{status}, {words} of {bytes(damaged)[:200]}")
    # A pipe, and a reader that goes away.
    piped = subprocess.run(["bash", "-c", f'"{PROGRAM}" encode | "{PROGRAM}" check --full --format gcc | grep -c error'],
                           input=text.encode(), capture_output=True, check=False)
    true(piped.stdout == b"1\n", f"in a pipe: {piped}")
    with subprocess.Popen([PROGRAM, "check", "--full", "--lines"], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                          stderr=subprocess.PIPE) as process:
        process.stdout.close()
        process.stdin.write(log.encode())
        process.stdin.close()
        true(process.stderr.read() == b"" and process.wait(timeout=60) in (-13, 0), "a closed pipe is no failure")


main(test_whole, test_finding, test_meaning, test_order, test_previous, test_chain, test_known, test_wrong_values, test_files,
     test_severity, test_silences, test_comments, test_random_comments, test_sarif, test_encoding, test_hostile)
