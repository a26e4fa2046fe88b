"""check_tool.py <program> <project>: every command on good and bad input, through the program: exit status and both
streams. The messages are encoded by hand, the expectations come from the schema."""

import base64
import json
import os
import pathlib
import pty
import re
import subprocess

from harness import (DONE, FINDINGS, MALFORMED, NOTHING, PROGRAM, PROJECT, USAGE, bits_of, expect, main, octets, run,
                     true)

# CellGroupConfig: not extended, seven optional members, cellGroupId of 2 bits. rlc-BearerToReleaseList: 1..32 elements,
# counted in 5 bits, of 1..32.
EMPTY = octets("0 0000000 11")
RELEASE = octets("0 0100000 00  00001 00011 11110")
RELEASE_HEX = "20023f00"
RELEASE_TREE = """CellGroupConfig
  cellGroupId 0
  rlc-BearerToReleaseList: 2 elements
    [0] 4
    [1] 31
"""
RELEASE_JSON = """{
  "cellGroupId": 0,
  "rlc-BearerToReleaseList": [
    4,
    31
  ]
}
"""
RELEASE_COMPACT = '{"cellGroupId":0,"rlc-BearerToReleaseList":[4,31]}\n'
RELEASE_FLAT = """CellGroupConfig.cellGroupId = 0
CellGroupConfig.rlc-BearerToReleaseList[0] = 4
CellGroupConfig.rlc-BearerToReleaseList[1] = 31
"""
OTHER = octets("0 0100000 01  00001 00011 01000")  # cellGroupId 1, the second element 9
# An extension group that this release knows, with one of two additions announced: the second one is unknown, "AB".
UNKNOWN = octets("1 0000000 00  0 000001 01  00000001 10101011")
# Announced and empty.
EMPTY_EXTENSION = octets("1 0000000 00  0 000000 0")


def test_forms(folder):
    true(RELEASE.hex() == RELEASE_HEX, "the message is what its bits say")
    expect(["decode", RELEASE_HEX], DONE, RELEASE_TREE)
    expect(["decode", "--tree", RELEASE_HEX], DONE, RELEASE_TREE)
    expect(["decode", "--json", RELEASE_HEX], DONE, RELEASE_JSON)
    expect(["decode", "--compact", RELEASE_HEX], DONE, RELEASE_COMPACT)
    expect(["decode", "--flat", RELEASE_HEX], DONE, RELEASE_FLAT)
    expect(["decode", "--value-notation", RELEASE_HEX], DONE, """value CellGroupConfig ::= {
  cellGroupId 0,
  rlc-BearerToReleaseList {
    4,
    31
  }
}
""")
    expect(["decode", "--trace", RELEASE_HEX], DONE, re.compile(
        r"^bits +octet +width +content +path and meaning\n"
        r"0 +0\.0 +1 +0 +CellGroupConfig: not extended\n"
        r"1\.\.7 +0\.1 +7 +0100000 +CellGroupConfig: -rlc-BearerToAddModList \+rlc-BearerToReleaseList "
        r"-mac-CellGroupConfig -physicalCellGroupConfig -spCellConfig -sCellToAddModList -sCellToReleaseList\n"
        r"8\.\.9 +1\.0 +2 +00 +CellGroupConfig\.cellGroupId = 0\n"
        r"10\.\.14 +1\.2 +5 +00001 +CellGroupConfig\.rlc-BearerToReleaseList: 2 elements\n"
        r"15\.\.19 +1\.7 +5 +00011 +CellGroupConfig\.rlc-BearerToReleaseList\[0\] = 4\n"
        r"20\.\.24 +2\.4 +5 +11110 +CellGroupConfig\.rlc-BearerToReleaseList\[1\] = 31\n"
        r"25\.\.31 +3\.1 +7 +0000000 +CellGroupConfig: padding\n$"))
    expect(["decode", "--json", "--flat", RELEASE_HEX], USAGE,
           err="cellgroupcfg: --json and --flat exclude each other\n")
    # RLC-Config: not extended, the second of four, no SN length and t-Reassembly 35 ms twice; a list; a number.
    expect(["decode", "--type", "SCellIndex", "--flat", "f0"], DONE, "SCellIndex = 31\n")
    expect(["decode", "--type", "RLC-Config", "--compact", "-"], DONE,
           '{"um-Uni-Directional-DL":{"dl-UM-RLC":{"sn-FieldLength":"size12","t-Reassembly":"ms35"}}}\n',
           stdin=octets("0 11  1 1 00111"))
    expect(["decode", "--type", "RLC-Confg", "00"], USAGE,
           err="cellgroupcfg: there is no type 'RLC-Confg'; did you mean RLC-Config?\n")


def trace_bits(text):
    """The bits of a trace's third and fourth column, joined."""
    bits = ""
    for line in text.splitlines()[1:]:
        width, content = int(line.split()[2]), line.split()[3]
        if content.startswith("0x"):
            content = "".join(f"{int(digit, 16):04b}" for digit in content[2:])[:width]
        true(len(content) == width or (width == 0 and content == "-"), f"{line}: its width")
        bits += content if width else ""
    return bits


def test_trace(folder):
    for data in (RELEASE, EMPTY, UNKNOWN, EMPTY_EXTENSION, RELEASE[:2], RELEASE + b"\x01\x02",
                 octets("1 0000000 00  0 000001 01") + bytes([0x80 | 200 >> 8, 200]) + bytes(range(200))):
        (folder / "message").write_bytes(data)
        found = run("decode", "--as", "binary", "--trace", str(folder / "message"))
        true(trace_bits(found[1].decode()) == bits_of(data), f"the trace of {data.hex()} is the message")
    expect(["decode", "--trace", UNKNOWN.hex()], DONE, re.compile(
        r"CellGroupConfig: extended\n(.*\n)*.* 0000001 +CellGroupConfig: length of 2 additions\n"
        r".* 01 +CellGroupConfig: -\[\[1\]\] \+unknown\n"
        r".* 00000001 +CellGroupConfig\S+: length of 1 octet\n"
        r".* 10101011 +CellGroupConfig\S+: 1 octet of what this release does not know\n"))


def test_inputs(folder):
    spaced = "20 02 3f 00"
    texts = {
        "hex": RELEASE_HEX, "hex in capitals": "20023f00\n", "spaced": spaced, "colons": "20:02:3f:00",
        "list": "0x20, 0x02, 0x3f, 0x00", "array": "uint8_t m[] = {0x20, 0x02,\n 0x3f, 0x00};",
        "escaped": r"\x20\x02\x3f\x00",
        "hexdump -C": "00000000  20 02 3f 00                                       | .?.|\n00000004\n",
        "xxd": "00000000: 2002 3f00                                 .?.\n",
        "wireshark": "0000   20 02 3f 00                                        .?.\n",
        "JER": RELEASE_JSON, "flat": RELEASE_FLAT, "comments": "# of cell 7\n" + RELEASE_FLAT,
        "log": "03:14:15.926 [RRC] UE 7: cellGroupConfig=20023f00 sent\n",
    }
    for name, text in texts.items():
        expect(["decode", "--flat"], DONE, RELEASE_FLAT, stdin=text)
        file = folder / "message.txt"
        file.write_text(text)
        expect(["decode", "--flat", str(file)], DONE, RELEASE_FLAT)
    expect(["decode", "--flat", "-"], DONE, RELEASE_FLAT, stdin=RELEASE)
    expect(["decode", "--flat", "--as", "base64"], DONE, RELEASE_FLAT, stdin=base64.b64encode(RELEASE))
    expect(["decode", "-v", "--compact", spaced], DONE, RELEASE_COMPACT, re.compile(
        r"^cellgroupcfg: operand: hex, 4 octets\n"
        r"cellgroupcfg: operand: encoding it again gives the same octets\n$"))
    expect(["decode", "--as", "hexx", "00"], USAGE, err=re.compile("hexx.*hex"))
    expect(["decode", str(folder / "missing")], USAGE,
           err=f"cellgroupcfg: {folder / 'missing'}: No such file or directory, and no message\n")
    for name in ("deadbeef00.hex", "log-of-20023f00.txt"):
        expect(["decode", name], USAGE, err=f"cellgroupcfg: {name}: No such file or directory, and no message\n")
    expect(["decode", "--as", "binary", "00"], USAGE, err=re.compile("^cellgroupcfg: 00: No such file"))
    expect(["decode", "--compact", '{"cellGroupId":0,"rlc-BearerToReleaseList":[4,31]}'], DONE, RELEASE_COMPACT)
    expect(["decode", "--compact", f"10/11 12:00 cfg {RELEASE_HEX}"], DONE, RELEASE_COMPACT)
    expect(["decode", "missing"], USAGE,
           err="cellgroupcfg: missing: No such file or directory, and no message\n")
    expect(["decode"], MALFORMED, err="cellgroupcfg: standard input: the input is empty\n")
    expect(["decode"], MALFORMED, err=re.compile("^cellgroupcfg: standard input: 1:1: neither"), stdin="hello, world")
    expect(["decode", str(folder)], USAGE, err=f"cellgroupcfg: {folder}: Is a directory\n")
    # Longer than any message; of input longer than 64 MiB nothing is read.
    expect(["decode", "--as", "binary"], MALFORMED, err=re.compile("65537 octets are no message"), stdin=bytes(65537))
    # What is a file's name and hex is asked about.
    here = os.getcwd()
    os.chdir(folder)
    (folder / "00c0").write_text(RELEASE_HEX)
    expect(["decode", "--flat", "00c0"], USAGE, err=re.compile("'00c0' is a file and can be read as a message"))
    expect(["decode", "--flat", "./00c0"], DONE, RELEASE_FLAT)
    os.chdir(here)


def test_malformed(folder):
    expect(["decode", "2002"], MALFORMED, """CellGroupConfig
  cellGroupId 0
  rlc-BearerToReleaseList: 2 elements
    [0..1]: not read
  ...: not read
""", "cellgroupcfg: operand: CellGroupConfig.rlc-BearerToReleaseList[0]: the input ends before 5 more bits "
           "(at bit 15: octet 1, bit 7)\n")
    found = run("decode", "--json", "2002")
    true(found[0] == MALFORMED and "$error" in json.loads(found[1]), "JER of what was read, with the error")
    expect(["decode", RELEASE_HEX + "00"], MALFORMED, RELEASE_TREE, re.compile("1 octet follows the encoding"))
    expect(["decode", "-v", EMPTY_EXTENSION.hex()], DONE, re.compile("cellGroupId 0"),
           re.compile("encoding it again gives other octets: CellGroupConfig: an extension is announced and has no "
                      "addition .at bit"))
    expect(["decode", "--compact", UNKNOWN.hex()], DONE,
           '{"cellGroupId":0,"$unknownAdditions":[{"index":1,"octets":"AB"}]}\n')


def test_several(folder):
    log = f"# two messages and a line of noise\n{RELEASE_HEX}\n\nUE 7: cfg {EMPTY.hex()} 2002323232\nnoise\n2002\n"
    expect(["decode", "--lines"], MALFORMED, re.compile(
        r"^standard input:2: CellGroupConfig, 4 octets\n"
        r"standard input:4: .*\n"
        r"standard input:5: .*neither.*\n"
        r"standard input:6: CellGroupConfig\.rlc-BearerToReleaseList\[0\]: the input ends.*\n$"), stdin=log)
    expect(["decode", "--lines", "--compact"], DONE, RELEASE_COMPACT * 3, stdin=(RELEASE_HEX + "\n") * 3)
    expect(["decode", "--lines", "--flat"], DONE, f"# standard input:1\n{RELEASE_FLAT}# standard input:2\n{RELEASE_FLAT}",
           stdin=(RELEASE_HEX + "\n") * 2)
    expect(["decode", RELEASE_HEX, "nothing", RELEASE_HEX], USAGE, ("# operand\n" + RELEASE_TREE) * 2,
           "cellgroupcfg: nothing: No such file or directory, and no message\n")
    expect(["encode", "--lines"], DONE, f"{RELEASE_HEX}\n{EMPTY.hex()}\n",
           stdin=RELEASE_COMPACT + '{"cellGroupId": 3}\n')
    expect(["encode", "--lines"], MALFORMED, f"{RELEASE_HEX}\n",
           re.compile(r"^cellgroupcfg: standard input:2:17: CellGroupConfig.cellGroupId: 4 is not in 0..3\n$"),
           stdin=RELEASE_COMPACT + '{"cellGroupId": 4}\n')


def test_encode(folder):
    for text in (RELEASE_JSON, RELEASE_COMPACT, RELEASE_FLAT, RELEASE_HEX):
        expect(["encode"], DONE, RELEASE_HEX + "\n", stdin=text)
    expect(["encode", "--hex"], DONE, RELEASE_HEX + "\n", stdin=RELEASE_JSON)
    expect(["encode", "--binary"], DONE, RELEASE, stdin=RELEASE_JSON)
    expect(["encode", "--base64"], DONE, base64.b64encode(RELEASE) + b"\n", stdin=RELEASE_JSON)
    expect(["encode", "--c-array"], DONE, "const uint8_t message[] = {\n    0x20, 0x02, 0x3f, 0x00,\n};\n",
           stdin=RELEASE_JSON)
    out = folder / "out.bin"
    expect(["encode", "--binary", "-o", str(out)], DONE, stdin=RELEASE_JSON)
    true(out.read_bytes() == RELEASE, "encode -o writes the octets")
    out.unlink()
    expect(["encode", "--binary", "-o", str(out)], MALFORMED, err=re.compile("1:1: CellGroupConfig.*cellGroupId"),
           stdin="{}")
    true(not out.exists(), "nothing is written for a text with mistakes")
    expect(["encode", "-o", str(folder / "no" / "folder")], USAGE, err=re.compile("No such file"), stdin=RELEASE_JSON)
    expect(["encode"], MALFORMED, err="cellgroupcfg: standard input:1:18: CellGroupConfig: unknown member "
                                      "\"rlc-BearerToReleaseLst\"; did you mean \"rlc-BearerToReleaseList\"?\n",
           stdin='{"cellGroupId":0,"rlc-BearerToReleaseLst":[4]}')
    expect(["encode", "--as", "flat", "--type", "SCellIndex"], DONE, "f0\n", stdin="SCellIndex = 31")


def test_diff(folder):
    a, b = RELEASE_HEX, OTHER.hex()
    expect(["diff", a, a], DONE)
    expect(["diff", a, b], FINDINGS, "~ CellGroupConfig.cellGroupId: 0 -> 1\n"
                                     "~ CellGroupConfig.rlc-BearerToReleaseList[1]: 31 -> 9\n")
    expect(["diff", a, "-"], FINDINGS, "- CellGroupConfig.rlc-BearerToReleaseList = { 4, 31 }\n",
           stdin='{"cellGroupId": 0}')
    expect(["diff", "-", a], FINDINGS, "+ CellGroupConfig.rlc-BearerToReleaseList = { 4, 31 }\n",
           stdin="CellGroupConfig.cellGroupId = 0\n")
    expect(["diff", "--color", "always", a, b], FINDINGS, re.compile("^\x1b\\[33m~ .*\x1b\\[31m0\x1b\\[m -> "))
    found = run("diff", "--json", a, b)
    true(json.loads(found[1]) == {"version": 1, "differences": [
        {"kind": "changed", "path": "CellGroupConfig.cellGroupId", "a": "0", "b": "1"},
        {"kind": "changed", "path": "CellGroupConfig.rlc-BearerToReleaseList[1]", "a": "31", "b": "9"}]},
         f"diff --json: {found[1]}")
    expect(["diff", a, "2002"], MALFORMED, err=re.compile("the input ends before 5 more bits"))
    expect(["diff", a], USAGE, err=re.compile("cellgroupcfg diff --help"))


CALL = str(PROJECT / "docs/guide/call.hex")


def test_explained(folder):
    expect(["decode", "--explain", CALL], DONE,
           re.compile("\n +t-PollRetransmit ms45 \\(8\\)  # 45 ms\n(.*\n)*.* newUE-Identity 17921  # 0x4601\n"))
    flat = run("decode", "--explain", "--flat", CALL)[1]
    true(b".startSymbolAndLength = 53  # symbols 2..13 (12)\n" in flat, "decode --explain --flat tells of symbols")
    true(run("encode", "-", stdin=flat)[1] == run("encode", CALL)[1], "encode passes over meanings")
    lines = "CellGroupConfig.cellGroupId = 0\n" + "".join(
        f"CellGroupConfig.spCellConfig.spCellConfigDedicated.{line}\n" for line in [
            "initialDownlinkBWP.pdcch-Config.setup.searchSpacesToAddModList[0].searchSpaceId = 2",
            "initialDownlinkBWP.pdcch-Config.setup.searchSpacesToAddModList[0].monitoringSlotPeriodicityAndOffset.sl10"
            " = 3", "tag-Id = 0"])
    expect(["decode", "--explain", "--flat", "-"], DONE, stdin=lines,
           out=re.compile("sl10 = 3  # every 10 slots, from slot 3 on; needs the bandwidth part's spacing "
                          "\\(--bwp0-dl\\)\n"))
    expect(["decode", "--explain", "--flat", "--bwp0-dl", "1099:30", "-"], DONE, stdin=lines,
           out=re.compile("sl10 = 3  # every 10 slots \\(5 ms\\), from slot 3 on \\(1.5 ms\\)\n"))
    expect(["decode", "--explain", "--json", "00"], USAGE, err=re.compile("--explain goes with --tree and --flat"))
    expect(["decode", "--explain", "--type", "RLC-Config", "00"], USAGE, err=re.compile("is for CellGroupConfig"))
    expect(["decode", "--band", "n78", "00"], USAGE, err=re.compile("--band is for --explain"))
    expect(["diff", "--band", "n78", "00", "00"], USAGE, err=re.compile("--band is for --explain"))
    before, after = with_phy({"p-NR-FR1": 23, "tpc-SRS-RNTI": 7}), with_phy({"p-NR-FR1": 10, "tpc-SRS-RNTI": 10})
    expect(["diff", "--explain", before, after], FINDINGS,
           "~ CellGroupConfig.physicalCellGroupConfig.p-NR-FR1: 23 -> 10  # 23 dBm -> 10 dBm\n"
           "~ CellGroupConfig.physicalCellGroupConfig.tpc-SRS-RNTI: 7 -> 10  # 0x0007 -> 0x000A\n")
    found = json.loads(run("diff", "--explain", "--json", before, after)[1])["differences"][0]
    true((found["meaningOfA"], found["meaningOfB"]) == ("23 dBm", "10 dBm"), f"diff --explain --json: {found}")
    # Of what is only in one of both, each value that means something.
    bearer = ["CellGroupConfig.cellGroupId = 0", "CellGroupConfig.spCellConfig.spCellConfigDedicated.tag-Id = 0"]
    part = "CellGroupConfig.spCellConfig.spCellConfigDedicated.downlinkBWP-ToAddModList[0]."
    added = [f"{part}bwp-Id = 1", f"{part}bwp-Common.genericParameters.locationAndBandwidth = 550",
             f"{part}bwp-Common.genericParameters.subcarrierSpacing = kHz30"]
    paths = []
    for name, lines in [("without.flat", bearer), ("with.flat", bearer[:1] + added + bearer[1:])]:
        paths.append(folder / name)
        paths[-1].write_text("\n".join(lines) + "\n")
    expect(["diff", "--explain", *map(str, paths)], FINDINGS, re.compile(
        r"^\+ \S+downlinkBWP-ToAddModList = .*\n"
        r"    \[0\]\.bwp-Common\.genericParameters\.locationAndBandwidth = 550  # PRBs 0\.\.2 \(3\) from .*\n"
        r"    \[0\]\.bwp-Common\.genericParameters\.subcarrierSpacing = kHz30  # 30 kHz\n$"))
    found = json.loads(run("diff", "--explain", "--json", *map(str, reversed(paths)))[1])["differences"][0]
    true(found["kind"] == "removed" and found["meaningsInA"][1] == {
        "path": "[0].bwp-Common.genericParameters.subcarrierSpacing", "value": "kHz30", "meaning": "30 kHz"},
         f"diff --explain --json of what is removed: {found}")
    # What an earlier message has told is known.
    later = folder / "later.flat"
    at = f"{part}bwp-Dedicated.pdcch-Config.setup.searchSpacesToAddModList[0]."
    later.write_text("\n".join([bearer[0], added[0], f"{at}searchSpaceId = 2",
                                f"{at}monitoringSlotPeriodicityAndOffset.sl10 = 3", bearer[1]]) + "\n")
    expect(["decode", "--explain", "--flat", str(later)], DONE,
           re.compile("sl10 = 3  # every 10 slots, from slot 3 on; needs the bandwidth part's spacing \\(--previous"))
    expect(["decode", "--explain", "--flat", "--previous", str(paths[1]), str(later)], DONE,
           re.compile("sl10 = 3  # every 10 slots \\(5 ms\\), from slot 3 on \\(1.5 ms\\)\n"))


# MAC-CellGroupConfig: not extended, five optional members, tag-Config the fourth, skipUplinkTxDynamic; TAG-Config: two
# lists of 1..4, counted in 2 bits; TAG: not extended, tag-Id of 2 bits, timeAlignmentTimer of 3 bits.
TAGS = {number: octets(f"0 0010000 00  0 00010 01 {number - 1:02b}" +
                       "".join(f"0 {tag:02b} 111" for tag in range(number)) + "0") for number in (1, 2)}
TAG_RELEASED = octets("0 0010000 00  0 00010 10 00 01 0")
# Of a UE with one TAG this is also all that it holds afterwards.
TAG_CHANGED = octets("0 0010000 00  0 00010 01 00 0 00 000 0")


def with_mac(members):
    return json.dumps({"cellGroupId": 0, "mac-CellGroupConfig": {**members, "skipUplinkTxDynamic": False}})


def with_cell(members):
    return json.dumps({"cellGroupId": 0, "spCellConfig": {"spCellConfigDedicated": {**members, "tag-Id": 0}}})


def with_phy(members):
    return json.dumps({"cellGroupId": 0,
                       "physicalCellGroupConfig": {"pdsch-HARQ-ACK-Codebook": "dynamic", **members}})


def timer(value):
    return with_mac({"tag-Config": {"tag-ToAddModList": [{"tag-Id": 0, "timeAlignmentTimer": value}]}})


def bearer(identity, **members):
    """An RLC bearer of a DRB with all that its creation needs."""
    rlc = {"am": {"ul-AM-RLC": {"sn-FieldLength": "size12", "t-PollRetransmit": "ms45", "pollPDU": "p32",
                                "pollByte": "infinity", "maxRetxThreshold": "t32"},
                  "dl-AM-RLC": {"sn-FieldLength": "size12", "t-Reassembly": "ms40", "t-StatusProhibit": "ms15"}}}
    return {"logicalChannelIdentity": identity, "servedRadioBearer": {"drb-Identity": 1}, "rlc-Config": rlc,
            "mac-LogicalChannelConfig": {}, **members}


def with_bearers(*bearers):
    return json.dumps({"cellGroupId": 0, "rlc-BearerToAddModList": bearers})


def same_value(found, *values):
    """The lines of a run are JER of these values, in any order of members."""
    lines = found[1].decode().splitlines()
    true([json.loads(line) for line in lines] == list(values), f"{found} is not {values}")


def test_delta(folder):
    one, two = TAGS[1].hex(), TAGS[2].hex()
    expect(["delta", two, one], DONE, TAG_RELEASED.hex() + "\n")
    expect(["delta", "--binary", two, one], DONE, TAG_RELEASED)
    expect(["delta", "--base64", two, one], DONE, base64.b64encode(TAG_RELEASED) + b"\n")
    expect(["delta", "--c-array", two, one], DONE, re.compile(r"^const uint8_t message\[\] = \{\n    0x10, "))
    expect(["delta", timer("infinity"), "-"], DONE, TAG_CHANGED.hex() + "\n", stdin=timer("ms500"))
    expect(["delta", "none", one], DONE, one + "\n")
    expect(["delta", "-v", one, two], DONE, re.compile(".*"), re.compile(r"^cellgroupcfg: operand: hex, 4 octets\n"))
    out = folder / "delta.bin"
    expect(["delta", "--binary", "-o", str(out), two, one], DONE)
    true(out.read_bytes() == TAG_RELEASED, "delta -o writes the octets")
    out.unlink()
    expect(["delta", "-o", str(out), one, EMPTY.hex()], FINDINGS, err=re.compile("another cell group"))
    true(not out.exists(), "nothing is written for a refusal")

    # Nothing to send: equal, or other only in what a state does not keep.
    expect(["delta", one, one], NOTHING, err="cellgroupcfg: nothing to send\n")
    expect(["delta", TAGS[1].hex(), "-"], NOTHING, err="cellgroupcfg: nothing to send\n", stdin=timer("infinity"))
    expect(["delta", RELEASE_HEX, '{"cellGroupId":0}'], NOTHING, err="cellgroupcfg: nothing to send\n")
    test_explain_delta()
    test_refused_delta()
    test_two_steps()
    expect(["delta", one], USAGE, err=re.compile("cellgroupcfg delta --help"))
    expect(["delta", one, two, one], USAGE, err=re.compile("cellgroupcfg delta --help"))
    expect(["delta", "none", "none"], USAGE, err="cellgroupcfg: none: No such file or directory, and no message\n")
    expect(["delta", "-", "-"], MALFORMED, err="cellgroupcfg: standard input: the input is empty\n")
    expect(["delta", one, "2002"], MALFORMED, err=re.compile("the input ends before 5 more bits"))
    expect(["delta", one, "-"], MALFORMED, err=re.compile("standard input:1:17: .*4 is not in 0..3"),
           stdin='{"cellGroupId": 4}')
    expect(["delta", "--as", "binary", one, "-"], USAGE, err=re.compile("No such file"), stdin=bytes(1 << 20))
    expect(["delta", one, "-"], MALFORMED, err=re.compile("65537 octets are no message"), stdin=bytes(65537).hex())


def test_explain_delta():
    """Need R beside a changed sibling is sent again, Need M is not; SetupRelease is released."""
    phr = {"phr-PeriodicTimer": "sf10", "phr-ProhibitTimer": "sf0", "phr-Tx-PowerFactorChange": "dB1",
           "multiplePHR": False, "dummy": False, "phr-Type2OtherCell": False, "phr-ModeOtherCG": "real"}
    found = run("delta", "--explain", with_phy({"p-NR-FR1": 23, "tpc-SRS-RNTI": 7, "cs-RNTI": {"setup": 8}}),
                with_phy({"p-NR-FR1": 20, "tpc-SRS-RNTI": 7, "cs-RNTI": {"setup": 8}}))
    true(found[0] == DONE and found[1].decode().splitlines()[:-1] == [
        "# CellGroupConfig.cellGroupId: sent unchanged: mandatory beside a changed sibling",
        "# CellGroupConfig.physicalCellGroupConfig.p-NR-FR1: sent: changed",
        "# CellGroupConfig.physicalCellGroupConfig.pdsch-HARQ-ACK-Codebook: sent unchanged: mandatory beside a changed "
        "sibling",
        "# CellGroupConfig.physicalCellGroupConfig.tpc-SRS-RNTI: sent unchanged: Need R beside a changed sibling"],
         f"delta --explain: {found}")
    # Comments are passed over: what is explained is a message all the same.
    same_value(run("decode", "--compact", stdin=found[1]), json.loads(with_phy({"p-NR-FR1": 20, "tpc-SRS-RNTI": 7})))
    expect(["delta", "--explain", with_mac({"phr-Config": {"setup": phr}}), with_mac({})], DONE,
           re.compile(r"^# CellGroupConfig\.mac-CellGroupConfig\.phr-Config: released: Need M: gone\n"
                      "(# .*\n)" + octets("0 0010000 00  0 00001 0 0").hex() + "\n$", re.M))
    for form in ("--binary", "--c-array"):
        expect(["delta", "--explain", form, "00", "00"], USAGE,
               err=f"cellgroupcfg: --explain and {form} exclude each other\n")
    # A notice is no explanation, but a word to be heard.
    sps = [with_cell({"initialDownlinkBWP": {"sps-Config": {"setup": {
        "periodicity": "ms10", "nrofHARQ-Processes": number}}}}) for number in (1, 2)]
    expect(["delta", *sps], DONE, re.compile("^[0-9a-f]+\n$"),
           "cellgroupcfg: CellGroupConfig.spCellConfig.spCellConfigDedicated.initialDownlinkBWP.sps-Config: notice: "
           "Need M: only while no assignment or grant of it is active, or with reconfigurationWithSync\n")


def test_refused_delta():
    """A refusal names path, reason, what could be released, and the option that does it."""
    expect(["delta", timer("infinity"), '{"cellGroupId":0}'], FINDINGS,
           err="cellgroupcfg: CellGroupConfig.mac-CellGroupConfig: refused: Need M: its absence would keep it; "
               "nothing around it can be released\n")
    served = with_bearers(bearer(4)), with_bearers(bearer(4, servedRadioBearer={"drb-Identity": 2}))
    expect(["delta", *served], FINDINGS,
           err="cellgroupcfg: CellGroupConfig.rlc-BearerToAddModList[logicalChannelIdentity 4].servedRadioBearer: "
               "refused: Cond LCH-SetupOnly: it is sent only when its entry is created; "
               "CellGroupConfig.rlc-BearerToAddModList[logicalChannelIdentity 4] can be released and set up again; "
               "--recreate bearers brings it\n")
    again = {**json.loads(served[1]), "rlc-BearerToReleaseList": [4]}
    for recreate in ("bearers", "scells,bearers,bwps"):
        same_value(run("decode", "--compact", stdin=run("delta", "--recreate", recreate, *served)[1]), again)
    expect(["delta", "--recreate", "none", *served], FINDINGS, err=re.compile(r"can be released and set up again\n$"))
    expect(["delta", "--recreate", "bearer", *served], USAGE, err=re.compile("bearers,scells,bwps,none"))
    expect(["delta", "--recreate", "bearers,none", *served], USAGE, err="cellgroupcfg: --recreate: none stands alone\n")
    expect(["delta", '{"cellGroupId":0}', with_bearers({"logicalChannelIdentity": 4})], FINDINGS,
           err=re.compile("servedRadioBearer: refused: .*the creation of its entry asks for it, and it is absent"))


def test_two_steps():
    """Need M that goes within a SetupRelease: that is released first. --switch sends what is the same."""
    csi = [with_cell({"csi-MeasConfig": {"setup": setup}}) for setup in ({"reportTriggerSize": 1}, {})]
    expect(["delta", *csi], FINDINGS, err=re.compile(r"csi-MeasConfig\.setup\.reportTriggerSize: refused: Need M: .*"
                                                     r"csi-MeasConfig can be released .*; --two-steps brings it\n$"))
    found = run("delta", "--two-steps", *csi)
    same_value(run("decode", "--lines", "--compact", stdin=found[1]),
               json.loads(with_cell({"csi-MeasConfig": {"release": None}})), json.loads(csi[1]))
    same_value(run("apply", "--lines", "--compact", csi[0], stdin=found[1]), json.loads(csi[1]))
    expect(["delta", "--two-steps", "--binary", *csi], USAGE,
           err="cellgroupcfg: two messages have no end in binary; say --hex or --base64\n")
    expect(["delta", "--two-steps", "--c-array", *csi], DONE, re.compile(r"message1\[\](.*\n)+.*message2\[\]"))
    active = with_cell({"firstActiveDownlinkBWP-Id": 1})
    expect(["delta", active, active], NOTHING, err=re.compile("nothing to send"))
    same_value(run("decode", "--compact", stdin=run("delta", "--switch", active, active)[1]), json.loads(active))
    test_sync(active)


def test_sync(active):
    """--sync repeats a handover that is the same; with it the first active bandwidth part goes, too."""
    sync = json.loads(active)
    sync["spCellConfig"]["reconfigurationWithSync"] = {"newUE-Identity": 1, "t304": "ms50"}
    text = json.dumps(sync)
    expect(["delta", text, text], NOTHING, err=re.compile("nothing to send"))
    same_value(run("decode", "--compact", stdin=run("delta", "--sync", text, text)[1]), sync)


def test_apply(folder):
    one, two = TAGS[1].hex(), TAGS[2].hex()
    expect(["apply", two, TAG_RELEASED.hex()], DONE, one + "\n")
    expect(["apply", "--binary", two], DONE, TAGS[1], stdin=TAG_RELEASED)
    expect(["apply", "none", two, TAG_RELEASED.hex(), TAG_CHANGED.hex(), "--compact"], DONE,
           json.dumps(json.loads(timer("ms500")), separators=(",", ":")) + "\n")
    expect(["apply", "--state", RELEASE_HEX, '{"cellGroupId":0}'], DONE, "CellGroupConfig\n  cellGroupId 0\n")
    expect(["apply", "--state", "--flat", RELEASE_HEX, '{"cellGroupId":0}'], DONE, "CellGroupConfig.cellGroupId = 0\n")
    # What is released and not held is told, with the message that does it.
    expect(["apply", one, TAG_CHANGED.hex(), TAG_RELEASED.hex()], DONE, TAG_CHANGED.hex() + "\n",
           "cellgroupcfg: operand: message 2: CellGroupConfig.mac-CellGroupConfig.tag-Config.tag-ToReleaseList"
           "[tag-Id 1]: notice: released and not held, no effect\n")
    log = folder / "ue.log"
    log.write_text(f"# since the call came up\n12:00 cfg {two} sent\n{TAG_RELEASED.hex()}\n{TAG_CHANGED.hex()}\n")
    expect(["apply", "--lines", "none", str(log)], DONE, TAG_CHANGED.hex() + "\n")
    out = folder / "state.hex"
    expect(["apply", "-o", str(out), two, TAG_RELEASED.hex()], DONE)
    true(out.read_text() == one + "\n", "apply -o writes the state")

    # A message that cannot be applied is named; behind it nothing is applied and nothing shown.
    missing = {"cellGroupId": 0, "rlc-BearerToAddModList": [{"logicalChannelIdentity": 4}]}
    log.write_text(f"{two}\n{json.dumps(missing)}\n{TAG_CHANGED.hex()}\n")
    expect(["apply", "--lines", "none", str(log)], FINDINGS,
           err=f"cellgroupcfg: {log}:2: message 2: CellGroupConfig.rlc-BearerToAddModList[logicalChannelIdentity 4]."
               "servedRadioBearer: refused: Cond LCH-SetupOnly: the creation of its entry asks for it, and it is absent; "
               "nothing around it can be released\n"
               "cellgroupcfg: no state is shown, as not all messages could be applied\n")
    expect(["apply", two, OTHER.hex()], FINDINGS,
           err="cellgroupcfg: operand: message 1: CellGroupConfig.cellGroupId: refused: another cell group; "
               "nothing around it can be released\n")
    full = json.dumps({"cellGroupId": 0, "sCellToAddModList": [{"sCellIndex": i} for i in range(1, 32)]})
    bearers = [with_bearers(*(bearer(i) for i in numbers)) for numbers in (range(1, 32), (32,), (1,))]
    expect(["apply", "--compact", *bearers], DONE, re.compile('"logicalChannelIdentity":32'))
    true(run("apply", full, '{"cellGroupId":0}')[0] == DONE, "a state is taken as it is")
    expect(["apply", two, "2002"], MALFORMED, err=re.compile("the input ends before 5 more bits"))
    expect(["apply", two, "2002", TAG_RELEASED.hex()], MALFORMED,
           err=re.compile("the input ends .*\ncellgroupcfg: no state is shown"))
    expect(["apply", two, "nothing"], USAGE, err=re.compile("No such file"))
    expect(["apply", two], MALFORMED, err="cellgroupcfg: standard input: the input is empty\n")
    expect(["apply"], USAGE, err=re.compile("cellgroupcfg apply --help"))
    expect(["apply", "--state", "--hex", one, one], USAGE, err="cellgroupcfg: --state and --hex exclude each other\n")
    expect(["apply", "--json", "--flat", one, one], USAGE, err="cellgroupcfg: --json and --flat exclude each other\n")
    # Memory is that of one message, whatever the log's length.
    expect(["apply", "--lines", two], DONE, TAG_CHANGED.hex() + "\n",
           stdin=f"{TAG_RELEASED.hex()}\n" + f"{TAG_CHANGED.hex()}\n" * (1 << 16))


def test_diff_state(folder):
    expect(["diff", "--state", RELEASE_HEX, '{"cellGroupId":0}'], DONE)
    shuffled = with_mac({"tag-Config": {"tag-ToReleaseList": [3], "tag-ToAddModList": [
        {"tag-Id": tag, "timeAlignmentTimer": "infinity"} for tag in (1, 0)]}})
    expect(["diff", "--state", shuffled, TAGS[2].hex()], DONE)
    expect(["diff", shuffled, TAGS[2].hex()], FINDINGS, re.compile("tag-ToReleaseList"))
    expect(["diff", "--state", TAGS[2].hex(), TAGS[1].hex()], FINDINGS,
           "- CellGroupConfig.mac-CellGroupConfig.tag-Config.tag-ToAddModList[tag-Id 1] = "
           "{ tag-Id 1, timeAlignmentTimer infinity }\n")


def hidden(before, message, behind):
    """The message as an octet string behind some bits and before others."""
    return octets(before + f"{len(message):08b}" + bits_of(message) + behind)


# physicalCellGroupConfig with all eight RNTIs and the like would do; 31 elements to release are 20 octets.
LONG = octets("0 0100000 00  11110" + "".join(f"{i:05b}" for i in range(31)))


def test_find(folder):
    # In noise at bit 11: the content begins at bit 19.
    noise = "10110111011"
    data = hidden(noise, LONG, "1110")
    line = f"operand: 2.3: {len(LONG)} octets: {LONG.hex()}\n"
    expect(["find", data.hex()], DONE, line)
    expect(["find", "--decode", data.hex()], DONE, re.compile("^" + re.escape(line) + r"CellGroupConfig\n  cellGroupId 0\n"
                                                                                  r"  rlc-BearerToReleaseList: 31 elements\n"))
    found = json.loads(run("find", "--json", data.hex())[1])
    true(found == {"version": 1, "found": [{"place": "operand", "bit": 19, "octets": len(LONG), "hex": LONG.hex()}]},
         f"find --json: {found}")
    expect(["find", "--min-octets", str(len(LONG) + 1), data.hex()], DONE)
    expect(["find", "--min-octets", "0", data.hex()], USAGE, err=re.compile("min-octets"))
    expect(["find", "--min-octets", "16384", data.hex()], USAGE, err=re.compile("min-octets"))
    log = f"boot\n12:00 F1AP: {data.hex()} end\n12:01 nothing here\n"
    expect(["find"], DONE, line.replace("operand", "standard input:2"), stdin=log)
    expect(["find"], MALFORMED, err=re.compile("^cellgroupcfg: standard input: 1:1: "), stdin="nothing\nat all\n")
    expect(["find"], MALFORMED, err=re.compile("in which no octets are"), stdin=RELEASE_JSON)
    # With nothing around it.
    expect(["find"], DONE, f"standard input:1: 0.0: {len(LONG)} octets: {LONG.hex()}\n",
           stdin=f"12:00 cfg {LONG.hex()}\n")
    for nesting in ("bare", "rrc-reconfiguration", "rrc-setup"):
        capture = folder / f"{nesting}.pcapng"
        expect(["pcap", "--in", nesting, "-o", str(capture), LONG.hex()], DONE)
        expect(["find", str(capture)], DONE,
               re.compile(rf"^{re.escape(str(capture))}: packet 1: \d+\.\d: {len(LONG)} octets: {LONG.hex()}\n$"))


def test_pcap(folder):
    capture = folder / "bare.pcapng"
    expect(["pcap", "-o", str(capture), RELEASE_HEX], DONE)
    first = capture.read_bytes()
    true(first[:4] == b"\x0a\x0d\x0d\x0a" and RELEASE in first, "pcap writes a section with the octets")
    expect(["pcap"], DONE, first, stdin=RELEASE_JSON)
    expect(["pcap", "--lines", "-o", str(capture)], DONE, stdin=f"{RELEASE_HEX}\n{EMPTY.hex()}\n")
    true(b"standard input:2" in capture.read_bytes(), "the packets of several messages say which")
    expect(["pcap", "--in", "rrc-release", RELEASE_HEX], USAGE, err=re.compile("rrc-release"))
    expect(["pcap"], MALFORMED, err=re.compile("16384 octets; at most 16383"), stdin=b"\x00" * 16384)


def test_wireshark(folder):
    """Wireshark reads the capture without any setting, and sees the message that was put in."""
    capture = folder / "shown.pcapng"
    for nesting, name in (("bare", "CellGroupConfig"), ("rrc-reconfiguration", "rrcReconfiguration"),
                          ("rrc-setup", "rrcSetup")):
        expect(["pcap", "--in", nesting, "-o", str(capture), LONG.hex()], DONE)
        shown = subprocess.run(["tshark", "-V", "-r", str(capture)], capture_output=True, check=True, text=True).stdout
        true(name in shown and "sCellToReleaseList" not in shown and "Malformed" not in shown, f"{nesting}: {shown}")
        true("rlc-BearerToReleaseList: 31 items" in shown, f"{nesting}: {shown}")


def test_explain(folder):
    expect(["explain", "CellGroupConfig.spCellConfig.reconfigurationWithSync.t304"], DONE,
           """CellGroupConfig.spCellConfig.reconfigurationWithSync.t304
  type         ENUMERATED
  on the wire  3 bits
  values       0 ms50, 1 ms100, 2 ms150, 3 ms200, 4 ms500, 5 ms1000, 6 ms2000, 7 ms10000
  presence     mandatory
  since        Release 15, from the start
""")
    expect(["explain", "t304"], DONE, re.compile("^CellGroupConfig.spCellConfig.reconfigurationWithSync.t304\n  type"))
    expect(["explain", "CellGroupConfig.rlc-BearerToAddModList[3].logicalChannelIdentity"], DONE,
           re.compile(r"^CellGroupConfig\.rlc-BearerToAddModList\[\]\.logicalChannelIdentity\n"
                      r"  type         LogicalChannelIdentity, INTEGER \(1\.\.32\)\n  on the wire  5 bits\n"))
    expect(["explain", "CellGroupConfig"], DONE, re.compile(
        r"\n    sCellToReleaseList +SEQUENCE \(SIZE \(1\.\.31\)\) OF SCellIndex  OPTIONAL\n"
        r"    reportUplinkTxDirectCurrent-v1530 +ENUMERATED  OPTIONAL  \[\[1\]\]\n"))
    expect(["explain", "reportUplinkTxDirectCurrent-v1530"], DONE,
           re.compile(r"since        V15\.3\.0, in extension \[\[1\]\] of CellGroupConfig\n"))
    expect(["explain", "RLC-Config"], DONE, re.compile(r"CHOICE, extensible\n(.*\n)*  alternatives\n    am +SEQUENCE\n"))
    expect(["explain", "--tree", "RLC-BearerConfig"], DONE,
           re.compile(r"\n  servedRadioBearer +CHOICE  OPTIONAL\n    srb-Identity  SRB-Identity\n"))
    expect(["explain", "setup"], DONE, re.compile(r"^CellGroupConfig\..*\.setup\n(CellGroupConfig\..*\.setup\n)+$"))
    expect(["explain", "CellGroupConfig.spCellConfg"], USAGE,
           err="cellgroupcfg: CellGroupConfig has no member 'spCellConfg'; did you mean spCellConfig?\n")
    expect(["explain", "CelGroupConfig"], USAGE,
           err="cellgroupcfg: there is no rule, type, member or field 'CelGroupConfig'; did you mean CellGroupConfig?\n")
    expect(["explain", "CellGroupConfig.cellGroupId.x"], USAGE, err=re.compile("no SEQUENCE and no CHOICE"))
    expect(["explain", "CellGroupConfig.cellGroupId[0]"], USAGE, err=re.compile("has no elements"))
    for path in ("CellGroupConfig..x", "CellGroupConfig[", "CellGroupConfig[x]", "CellGroupConfig]"):
        expect(["explain", path], USAGE, err=re.compile("^cellgroupcfg: .+\n$"))
    names = run("explain")[1].decode().split()
    true(names == sorted(names) and "CellGroupConfig" in names and "SCellIndex" in names, "explain lists the types")
    # The whole schema, each line a member with its type.
    status, tree, _ = run("explain", "--tree", "CellGroupConfig")
    true(status == DONE and all(len(line.split()) >= 2 for line in tree.decode().splitlines()[1:]), "explain --tree")


def test_rules(folder):
    """The table of rules, as text and as JSON, and what is told of one."""
    status, text, _ = run("rules")
    lines = text.decode().splitlines()
    columns = re.compile(r"([a-z0-9-]+) +(error|warning|notice|fact) +(\S.*)$")
    rows = [columns.match(line) for line in lines]
    true(status == DONE and all(rows), "rules: id, severity and statement in each line")
    true(len({row.start(2) for row in rows}) == 1 and len({row.start(3) for row in rows}) == 1, "rules: columns")
    status, text, _ = run("rules", "--json")
    table = json.loads(text)
    true(status == DONE and list(table) == ["version", "rules", "recordRules"] and table["version"] == 1, "rules --json has a version")
    told = [(rule["id"], rule["severity"], rule["statement"]) for rule in table["rules"]]
    told += [(rule["id"], rule["severity"], f"{rule['field']}: {rule['goesOut']}") for rule in table["recordRules"]]
    true(told == [row.groups() for row in rows], "rules --json tells the same")
    true(len(table["rules"]) == 214, f"{len(table['rules'])} rules")
    for rule in table["recordRules"]:
        true(list(rule) == ["id", "region", "severity", "field", "goesOut", "instead", "places"], f"{rule['id']}: its members")
        true(rule["id"].startswith("record-"), f"{rule['id']} is of a record")
    for rule in table["rules"]:
        true(list(rule) == ["id", "group", "severity", "statement", "advice", "clause", "given", "bad", "good", "since"],
             f"{rule['id']}: its members")
        true(rule["bad"] and rule["good"] and all(re.match(r"CellGroupConfig\.\S+ = .", line)
                                                  for line in rule["bad"] + rule["good"]), f"{rule['id']}: flat lines")
        # Whole, whatever lines it is written in.
        status, text, _ = run("explain", rule["id"])
        told = " ".join(text.decode().split())
        for part in (rule["statement"], rule["advice"], rule["clause"], rule["given"], *rule["bad"], *rule["good"],
                     f"check --disable {rule['id']}", f'[[silence]] rule = "{rule["id"]}"'):
            true(status == DONE and " ".join(part.split()) in told, f"explain {rule['id']} tells {part!r}")
    expect(["rules", "phy-cell"], DONE,
           "phy-cell-group-id  error    The master cell group has cellGroupId 0, the secondary one 1.\n")
    bwp = run("rules", "bwp")[1].decode()
    true(bwp and all(line.startswith("bwp-") for line in bwp.splitlines()), "rules of a group")
    # In the order of the table, each once, however often it is named.
    true([line.split()[0] for line in run("rules", "tdd", "bwp", "bwp-in")[1].decode().splitlines()] ==
         [rule["id"] for rule in table["rules"] if rule["id"].startswith(("bwp", "tdd"))], "rules of two groups")
    expect(["rules", "bpw"], USAGE, err="cellgroupcfg: no rule's id begins with 'bpw'; did you mean bwp?\n")
    expect(["rules", "bwp", "bwp-in-carier"], USAGE,
           err="cellgroupcfg: no rule's id begins with 'bwp-in-carier'; did you mean bwp-in-carrier?\n")
    expect(["rules", "--jsn"], USAGE, err=re.compile("no option '--jsn'; did you mean --json\\?"))
    expect(["explain", "bwp-in-carier"], USAGE,
           err="cellgroupcfg: there is no rule, type, member or field 'bwp-in-carier'; did you mean bwp-in-carrier?\n")
    expect(["explain", "t30"], USAGE,
           err="cellgroupcfg: there is no rule, type, member or field 't30'; did you mean t304?\n")
    # The other findings of check have ids as well.
    expect(["explain", "per-padding"], DONE, """per-padding
  statement    The bits that fill up the last octet are 0.
  what to do   The message is of another type, or its end is not where it is taken for.
  clause       X.691 11.1
""")
    expect(["explain", "phy-cell-group-id"], DONE, """phy-cell-group-id
  severity     error
  statement    The master cell group has cellGroupId 0, the secondary one 1.
  what to do   Use 0 or 1.
  clause       TS 38.331 CellGroupId
  group        Physical layer of the cell group
  since        0.1.0
  examples     change a cell group that a UE takes; 'absent' takes away.
  bad
    CellGroupConfig.cellGroupId = 2
  good
    CellGroupConfig.cellGroupId = 0
  to silence it
    cellgroupcfg check --disable phy-cell-group-id
  or, with the reason, in .cellgroupcfg.toml
    [[silence]]
    rule = "phy-cell-group-id"
    path = "CellGroupConfig.cellGroupId" # left out: everywhere
    reason = "why it is meant so"
""")


def on_terminal(arguments, **environment):
    """What the program writes when standard output is a terminal, and its exit status."""
    master, slave = pty.openpty()
    variables = {name: value for name, value in os.environ.items() if name != "NO_COLOR"}
    with subprocess.Popen([PROGRAM, *arguments], stdin=subprocess.DEVNULL, stdout=slave, stderr=subprocess.PIPE,
                          env={**variables, **environment}) as process:
        os.close(slave)
        text = b""
        while True:
            try:
                piece = os.read(master, 4096)
            except OSError:
                break
            if not piece:
                break
            text += piece
        words = process.stderr.read()
        status = process.wait(timeout=60)
    os.close(master)
    return status, text.decode(), words.decode()


def test_streams(folder):
    colored = on_terminal(["diff", RELEASE_HEX, OTHER.hex()])
    true(colored[0] == FINDINGS and "\x1b[33m~ " in colored[1], f"diff is coloured on a terminal: {colored}")
    plain = on_terminal(["diff", RELEASE_HEX, OTHER.hex()], NO_COLOR="1")
    true("\x1b" not in plain[1] and "~ CellGroupConfig" in plain[1], "NO_COLOR")
    plain = on_terminal(["diff", "--color=never", RELEASE_HEX, OTHER.hex()])
    true("\x1b" not in plain[1], "--color=never")
    for command in (["encode", "--binary", RELEASE_HEX], ["pcap", RELEASE_HEX]):
        refused = on_terminal(command)
        true(refused[0] == USAGE and not refused[1] and "terminal" in refused[2], f"{command} on a terminal: {refused}")
    # A reader that goes away: no word, whether the signal is heeded or not.
    for reset in (True, False):
        with subprocess.Popen([PROGRAM, "explain", "--tree", "CellGroupConfig"], stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, restore_signals=reset) as process:
            process.stdout.close()
            true(process.stderr.read() == b"", "a closed pipe is passed over in silence")
            true(process.wait(timeout=60) in (-13, 0), "a closed pipe is no failure")
    with open("/dev/full", "wb") as full:
        done = subprocess.run([PROGRAM, "decode", RELEASE_HEX], stdout=full, stderr=subprocess.PIPE, check=False)
        true(done.returncode == USAGE and b"No space left" in done.stderr, f"a full disk is told: {done}")


def options_of(text):
    return set(re.findall(r"(?<![\w-])--[a-z][A-Za-z0-9-]*", text))


RECORD = """{ // two releases
  "lchIdRelease": [4, 31]
}
"""


def test_compose(folder):
    record = folder / "record.json"
    record.write_text(RECORD, encoding="utf-8")
    expect(["compose", str(record)], DONE, RELEASE_HEX + "\n")
    expect(["compose", "-"], DONE, RELEASE_HEX + "\n", stdin=RECORD)
    expect(["compose"], DONE, RELEASE_HEX + "\n", stdin=RECORD)
    expect(["compose", "--tree"], DONE, RELEASE_TREE, stdin=RECORD)
    expect(["compose", "--json"], DONE, RELEASE_JSON, stdin=RECORD)
    expect(["compose", "--binary"], DONE, RELEASE, stdin=RECORD)
    expect(["compose", "--binary", "--tree"], USAGE, err="cellgroupcfg: --binary and --tree exclude each other\n")
    output = folder / "record.hex"
    expect(["compose", "-o", str(output), str(record)], DONE)
    true(output.read_text(encoding="utf-8") == RELEASE_HEX + "\n", "compose writes a file")
    test = folder / "test.json"
    test.write_text('{"$include": "record.json", "cellGroupId": 1, "lchIdRelease": [4, 9]}', encoding="utf-8")
    expect(["compose", str(test)], DONE, OTHER.hex() + "\n")
    record.write_text('{"lchIdRelease": [4, 999]}', encoding="utf-8")
    expect(["compose", str(test)], DONE, OTHER.hex() + "\n")
    expect(["compose", str(record)], MALFORMED,
           err=f"cellgroupcfg: {record}:1:22: lchIdRelease[1]: 999 is not in 0..255, which the field holds; "
               "the standard has 1..32\n")
    test.write_text('{"$include": "record.json", "cellGroupID": 1}', encoding="utf-8")
    expect(["compose", str(test)], MALFORMED,
           err=f'cellgroupcfg: {test}:1:29: RrcCellGroupCfg_t has no "cellGroupID"; did you mean "cellGroupId"?\n'
               f"cellgroupcfg: {record}:1:22: lchIdRelease[1]: 999 is not in 0..255, which the field holds; "
               "the standard has 1..32\n")
    expect(["compose"], FINDINGS, err="cellgroupcfg: standard input: CellGroupConfig.rlc-BearerToReleaseList[0]: 33 is not "
                                      "in 1..32\n", stdin='{"lchIdRelease": [33]}')
    expect(["compose", "none.json"], USAGE, err="cellgroupcfg: none.json: No such file or directory\n")


RECORD_JSON = """{
  "cellGroupId": 0,
  "lchIdRelease": [4, 31]
}
"""
RECORD_CPP = """#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcInit.h"
"""
RECORD_FILL = """
    rrcInit(&record);
    record.cellGroupId = 0;
    record.rlcBearerAddModNum = 0;
    record.rlcBearerReleaseNum = 2;
    record.lchIdRelease[0] = 4;
    record.lchIdRelease[1] = 31;
    record.bitMask = 0;
    record.sCellAddModNum = 0;
    record.sCellReleaseNum = 0;
}
"""


def test_record(folder):
    expect(["record", RELEASE_HEX], DONE, RECORD_JSON)
    expect(["record"], DONE, RECORD_JSON, stdin=RELEASE)
    expect(["record", "--as", "base64", "-"], DONE, RECORD_JSON, stdin=base64.b64encode(RELEASE))
    expect(["record", "-"], DONE, RECORD_JSON, stdin=RELEASE_FLAT)
    message = folder / "message.hex"
    message.write_text(RELEASE_HEX, encoding="utf-8")
    expect(["record", str(message), RELEASE_HEX], DONE,
           f"// {message}\n{RECORD_JSON}// operand\n{RECORD_JSON}")
    lines = f"{RELEASE_HEX}\n{OTHER.hex()}\n"
    expect(["record", "--lines", "-"], DONE, '{"cellGroupId": 0,"lchIdRelease": [4, 31]}\n'
                                             '{"cellGroupId": 1,"lchIdRelease": [4, 9]}\n', stdin=lines)
    expect(["record", "--cpp", RELEASE_HEX], DONE, f"{RECORD_CPP}\nvoid fill(RrcCellGroupCfg_t& record)\n{{{RECORD_FILL}")
    other = RECORD_FILL.replace("cellGroupId = 0", "cellGroupId = 1").replace("31", "9")
    expect(["record", "--cpp", "--lines", "-"], DONE,
           f"{RECORD_CPP}\n// standard input:1\nvoid fill1(RrcCellGroupCfg_t& record)\n{{{RECORD_FILL}"
           f"\n// standard input:2\nvoid fill2(RrcCellGroupCfg_t& record)\n{{{other}", stdin=lines)
    output = folder / "record.json"
    expect(["record", "-o", str(output), RELEASE_HEX], DONE)
    expect(["compose", str(output)], DONE, RELEASE_HEX + "\n")

    # What a record cannot say.
    expect(["record", "-"], FINDINGS, '{\n  "cellGroupId": 0,\n  "macCellGrpCfg": {\n    "skipUpTxDynamic": true\n  }\n}\n',
           "cellgroupcfg: standard input: CellGroupConfig.mac-CellGroupConfig.drx-Config: release, which no record says\n"
           "cellgroupcfg: standard input: CellGroupConfig.mac-CellGroupConfig.phr-Config: release, which no record says\n",
           stdin='{"cellGroupId": 0, "mac-CellGroupConfig": {"drx-Config": {"release": null}, '
                 '"phr-Config": {"release": null}, "skipUplinkTxDynamic": true}}')
    expect(["record", UNKNOWN.hex()], FINDINGS, '{\n  "cellGroupId": 0\n}\n', re.compile("of a later release\n"))

    # What is no message.
    expect(["record"], MALFORMED, err="cellgroupcfg: standard input: the input is empty\n", stdin="")
    expect(["record", RELEASE_HEX[:6]], MALFORMED,
           err=re.compile("^cellgroupcfg: operand: CellGroupConfig.rlc-BearerToReleaseList.* the input ends before"))
    message.write_bytes(bytes(1000000))
    expect(["record", "--as", "binary", str(message)], MALFORMED,
           err=f"cellgroupcfg: {message}: 1000000 octets are no message; the longest that is read has 65536\n")
    expect(["record", "none.hex"], USAGE, err="cellgroupcfg: none.hex: No such file or directory, and no message\n")
    expect(["record", "--lines", "-"], MALFORMED, '{"cellGroupId": 0,"lchIdRelease": [4, 31]}\n',
           re.compile("^cellgroupcfg: standard input:1: "), stdin=f"{RELEASE_HEX[:6]}\n{RELEASE_HEX}\n")


def once(members):
    names = [name for name, _ in members]
    true(len(set(names)) == len(names), f"every member stands once: {names}")
    return dict(members)


def paths_of(members, path=""):
    """The paths of all that is in a JSON object, without indices."""
    paths = []
    for name, value in members.items():
        inner = value[0] if isinstance(value, list) and value else value
        paths.append(path + name)
        paths += paths_of(inner, f"{path}{name}.") if isinstance(inner, dict) else []
    return paths


def test_example(folder):
    expect(["example"], DONE, re.compile("^one-bearer +a bearer.*\n(.*\n)+releases "))
    call = run("example", "typical-call")[1]
    true(json.loads(call)["phyCellGrpCfg"]["pdschHarqAckCodeBook"] == "dynamic", "an example is JSON")
    octets = "".join((PROJECT / "docs/guide/call.hex").read_text(encoding="utf-8").split())
    expect(["compose"], DONE, octets + "\n", stdin=call)
    expect(["example", "typical-cal"], USAGE,
           err="cellgroupcfg: there is no example 'typical-cal'; did you mean typical-call?\n")
    expect(["example", "--all", "macCellGrpCfg.tagCfg"], DONE, """{
  "macCellGrpCfg": {
    "tagCfg": {
      "tag": [
        {
          "tagId": 0, // 0..3
          "taTimer": "ms500" // ms500, ms750, ms1280, ms1920, ms2560, ms5120, ms10240, infinity
        }
      ], // at most 4 entries
      "tagId": [0] // at most 4 entries: 0..3
    }
  }
}
""")
    scaffold = run("example", "--all")[1].decode()
    expect(["compose", "--flat"], DONE, re.compile("^CellGroupConfig"), stdin=scaffold)
    for line in scaffold.splitlines():
        # What is no bracket alone is a member that says what may stand there, or opens a structure or a list of them.
        true(re.search(r"^ *[{}\[\]]+,?( //.*)?$|^ *\"\w+\": ([{\[]$|.* // )", line), f"a member tells its values: {line}")
    fields = json.loads(re.sub(" // .*", "", scaffold), object_pairs_hook=once)
    true(list(fields) == ["cellGroupId", "rlcBearerCfg", "lchIdRelease", "macCellGrpCfg", "phyCellGrpCfg", "spCellCfg",
                          "sCellAddMod", "sCellIdx", "reportUplinkTxDirect"], "all fields of the header, in its order")
    for field in [*fields, *(f"spCellCfg.{field}" for field in fields["spCellCfg"])]:
        part = run("example", "--all", field)[1].decode()
        expect(["compose", "--flat"], DONE, re.compile("^CellGroupConfig"), stdin=part)
        within = json.loads(re.sub(" // .*", "", part))
        for name in field.split("."):
            true(list(within) == [name], f"{field} alone is shown")
            within = within[name]
    # What is deeper stands in all that a composition cannot do without.
    expect(["example", "--all", "rlcBearerCfg.rlcCfg.choice.amCfg.ulAmCfg.maxRetxThreash"], DONE, """{
  "rlcBearerCfg": [
    {
      "lchId": 1, // 1..32
      "rlcCfg": {
        "choice": {
          "amCfg": {
            "ulAmCfg": {
              "maxRetxThreash": "t1" // t1, t2, t3, t4, t6, t8, t16, t32
            }
          }
        }
      }
    }
  ] // at most 32 entries
}
""")
    for field in paths_of(fields)[::20]:
        expect(["compose", "--flat"], DONE, re.compile("^CellGroupConfig"), stdin=run("example", "--all", field)[1])
    expect(["example", "--all", "macCellGrpCfg.tagCf"], USAGE,
           err="cellgroupcfg: RrcMacCellGrpCfg_t has no field 'tagCf'; did you mean tagCfg?\n")
    expect(["explain", "macCellGrpCfg.tagCfg.tag[2].taTimer"], DONE, """macCellGrpCfg.tagCfg.tag[].taTimer
  field        enumeration of RrcTag_t, rrcCodec/rrcMac.h
  feeds        TAG.timeAlignmentTimer
  values       0 ms500, 1 ms750, 2 ms1280, 3 ms1920, 4 ms2560, 5 ms5120, 6 ms10240, 7 infinity
""")
    expect(["explain", "drxInactivityTimer"], DONE, re.compile("^macCellGrpCfg.drxCfg.drxInactivityTimer\n"))
    expect(["explain", "RrcSrAddMod_t.srProhibitTimer"], DONE,
           re.compile("\n  read with    RRC_SR_PROHIBITTIMER_PRESENCE in bitMask\n"))


def completed(*words):
    """What the completion of bash offers for the last word."""
    script = f'source "{PROJECT}/Tool/cellgroupcfg.bash"; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _cellgroupcfg; ' \
             'printf "%s\\n" "${COMPREPLY[@]}"'
    done = subprocess.run(["bash", "-c", script, "bash", *words], capture_output=True, check=True, text=True,
                          env={**os.environ, "PATH": f"{pathlib.Path(PROGRAM).parent}:{os.environ['PATH']}"})
    return done.stdout.split()


def test_help(folder):
    status, text, _ = run("--help")
    text = text.decode()
    true(status == DONE and text.startswith("Examples:\n"), "--help begins with examples")
    commands = re.findall(r"^  ([a-z]+) {5,}", text[text.index("\nCommands:\n"):], re.M)
    true(len(commands) == 15, f"--help lists the commands: {commands}")
    manual = (PROJECT / "docs/cellgroupcfg.1.scd").read_text(encoding="utf-8").replace("\\", "")
    completion = (PROJECT / "Tool/cellgroupcfg.bash").read_text(encoding="utf-8")
    for command in commands:
        status, text, _ = run(command, "--help")
        text = text.decode()
        true(status == DONE and text.startswith("Examples:\n  cellgroupcfg " + command), f"{command} --help")
        true(command in completion and f"*{command}*" in manual, f"{command} is documented")
        for option in options_of(text[text.index("\nUsage:"):]):
            true(option in options_of(manual), f"the manual tells of {option}")
            true(option in options_of(completion), f"the completion knows {option}")
        for option in completed("cellgroupcfg", command, "--"):
            true(option in options_of(text), f"{command} has {option}, which is completed")
    true(completed("cellgroupcfg", "enc") == ["encode"], "a command is completed")
    true(completed("cellgroupcfg", "decode", "--va") == ["--value-notation"], "an option is completed")
    true(completed("cellgroupcfg", "check", "--format", "s") == ["sarif"], "a value is completed")
    true(completed("cellgroupcfg", "explain", "RLC-Conf") == ["RLC-Config"], "a type is completed")
    true(completed("cellgroupcfg", "explain", "bwp-in-c") == ["bwp-in-carrier"], "a rule is completed")
    true(completed("cellgroupcfg", "rules", "tdd-dir") == ["tdd-direction"], "a rule's prefix is completed")
    expect([], USAGE, err=re.compile("command is required(.*\n)+.*--help"))
    expect(["decod", "00"], USAGE, err=re.compile("^cellgroupcfg: there is no command 'decod'; did you mean decode\\?\n"))
    expect(["decode", "--flatt", "00"], USAGE,
           err=re.compile("^cellgroupcfg: there is no option '--flatt'; did you mean --flat\\?\n"))
    expect(["--version"], DONE, re.compile(r"^cellgroupcfg \d+\.\d+\.\d+, TS 38\.331 V15\.6\.0 \(Release 15\)"
                                           r"(, commit [0-9a-f]{10}\+?)?\n$"))


main(test_forms, test_trace, test_inputs, test_malformed, test_several, test_encode, test_diff, test_explained, test_delta, test_apply,
     test_diff_state, test_compose, test_record, test_example, test_find, test_pcap, test_wireshark, test_explain, test_rules,
     test_streams, test_help)
