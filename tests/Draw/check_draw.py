"""check_draw.py <program> <project> <cellGroups> COUNT <xmllint>: what pictures show against an independent computation of
the occupied resource elements, their slots, clashes and what is not placed, and random messages."""

import json
import math
import pathlib
import random
import re
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "Tool"))

# pylint: disable=wrong-import-position
from harness import DONE, MALFORMED, PROJECT, USAGE, WHOLE, expect, flat, main, run, true
from occupied import ROWS, Occupied
from picture import Picture

CELL_GROUPS, COUNT, XMLLINT = sys.argv[3:6]
EXAMPLES = ("one-bearer", "reconfiguration-with-sync", "typical-call", "secondary-cells", "releases")

COMMON = "spCellConfig.reconfigurationWithSync.spCellConfigCommon"
DOWN = COMMON + ".downlinkConfigCommon"
UP = COMMON + ".uplinkConfigCommon"
OWN = "spCellConfig.spCellConfigDedicated"
DOWN1 = OWN + ".downlinkBWP-ToAddModList[0]"
UP1 = OWN + ".uplinkConfig.uplinkBWP-ToAddModList[0]"
PUCCH = UP1 + ".bwp-Dedicated.pucch-Config.setup"
SR = PUCCH + ".schedulingRequestResourceToAddModList[0]"
SRS = UP1 + ".bwp-Dedicated.srs-Config.setup.srs-ResourceToAddModList[0]"
CSI = OWN + ".csi-MeasConfig.setup"
RS = CSI + ".nzp-CSI-RS-ResourceToAddModList[0]"
CORESET = DOWN1 + ".bwp-Dedicated.pdcch-Config.setup.controlResourceSetToAddModList[1]"
SPACE = DOWN1 + ".bwp-Dedicated.pdcch-Config.setup.searchSpacesToAddModList[2]"
TDD = COMMON + ".tdd-UL-DL-ConfigurationCommon"
GRANT = UP1 + ".bwp-Dedicated.configuredGrantConfig.setup"


def riv(start, count):
    """locationAndBandwidth (TS 38.214 5.1.2.2.2)."""
    return 275 * (count - 1) + start if count - 1 <= 137 else 275 * (276 - count) + 274 - start


def chosen(path, value):
    """Another alternative of a choice, and what it holds."""
    is_there = any(line.startswith(path + ".") for line in WHOLE)
    return [f"{path} = absent"] * is_there + [f"{path}.{value}"]


def parts(start, count, offset):
    """Carriers and bandwidth parts that do not begin at common resource block 0."""
    carriers = [f"{at}.scs-SpecificCarrierList[0].offsetToCarrier = {offset}"
                for at in (DOWN + ".frequencyInfoDL", UP + ".frequencyInfoUL")]
    return carriers + [f"{at}.bwp-Common.genericParameters.locationAndBandwidth = {riv(start, count)}"
                       for at in (DOWN1, UP1)]


def sounding(c, b, hop, position, shift, comb, offset, cyclic, ports, start, symbols, repeat, when):
    return [f"{SRS}.freqHopping.c-SRS = {c}", f"{SRS}.freqHopping.b-SRS = {b}", f"{SRS}.freqHopping.b-hop = {hop}",
            f"{SRS}.freqDomainPosition = {position}", f"{SRS}.freqDomainShift = {shift}",
            f"{SRS}.transmissionComb = absent", f"{SRS}.transmissionComb.n{comb}.combOffset-n{comb} = {offset}",
            f"{SRS}.transmissionComb.n{comb}.cyclicShift-n{comb} = {cyclic}", f"{SRS}.nrofSRS-Ports = {ports}",
            f"{SRS}.resourceMapping.startPosition = {start}", f"{SRS}.resourceMapping.nrofSymbols = n{symbols}",
            f"{SRS}.resourceMapping.repetitionFactor = n{repeat}",
            *chosen(SRS + ".resourceType", when)]


def reference_signal(path, allocation, ports, cdm, density, first, second, band=(0, 276)):
    mapping = path + ".resourceMapping"
    return [*chosen(mapping + ".frequencyDomainAllocation", allocation), f"{mapping}.nrofPorts = p{ports}",
            f"{mapping}.cdm-Type = {cdm}", *chosen(mapping + ".density", density),
            f"{mapping}.firstOFDMSymbolInTimeDomain = {first}",
            *([] if second is None else [f"{mapping}.firstOFDMSymbolInTimeDomain2 = {second}"]),
            f"{mapping}.freqBand.startingRB = {band[0]}", f"{mapping}.freqBand.nrofRBs = {band[1]}"]


def rows():
    """A CSI-RS of each row of the table, in each density."""
    other = {3: ("other = 10", 2), 8: ("other = 90", 8), 9: ("other = FC", 12), 10: ("other = A8", 12),
             11: ("other = B8", 16), 12: ("other = E4", 16), 13: ("other = A4", 24), 14: ("other = 68", 24),
             15: ("other = C4", 24), 16: ("other = F0", 32), 17: ("other = 3C", 32), 18: ("other = CC", 32)}
    yield reference_signal(RS, "row1 = 20", 1, "noCDM", "three = null", 5, None)
    for density in ("one = null", "dot5 = evenPRBs", "dot5 = oddPRBs"):
        yield reference_signal(RS, "row2 = 0100", 1, "noCDM", density, 0, None, (25, 100))
    yield reference_signal(RS, "row4 = 80", 4, "fd-CDM2", "one = null", 13, None, (3, 48))
    yield reference_signal(RS, "other = 20", 4, "fd-CDM2", "one = null", 11, None)
    yield reference_signal(RS, "other = F0", 8, "fd-CDM2", "one = null", 3, None)
    yield reference_signal(RS, "other = 44", 8, "fd-CDM2", "one = null", 3, None)
    for (ports, cdm, density), row in ROWS.items():
        if row not in other:
            continue
        allocation, of = other[row]
        true(of == ports, f"row {row} has {ports} ports")
        for value in ["one = null"] if density == "one" else ["dot5 = evenPRBs", "dot5 = oddPRBs"]:
            yield reference_signal(RS, allocation, ports, cdm, value, 2, 8 if row in (13, 14, 16, 17) else None,
                                   (7, 120))


def variants():
    """Changes of the whole cell, by what they are for."""
    yield "as it is", []
    yield "not at 0", parts(30, 100, 17)
    for i, changes in enumerate(rows()):
        yield f"CSI-RS {i}", changes + parts(20, 150, 4)
    zp = DOWN1 + ".bwp-Dedicated.pdsch-Config.setup.zp-CSI-RS-ResourceToAddModList[0]"
    yield "zero power", [f"{zp}.zp-CSI-RS-ResourceId = 3",
                         *reference_signal(zp, "other = 90", 8, "cdm4-FD2-TD2", "one = null", 6, None, (0, 276)),
                         f"{zp}.periodicityAndOffset.slots20 = 7"]
    im = CSI + ".csi-IM-ResourceToAddModList[0]"
    yield "CSI-IM", [f"{im}.csi-IM-ResourceElementPattern = absent",
                     f"{im}.csi-IM-ResourceElementPattern.pattern0.subcarrierLocation-p0 = s6",
                     f"{im}.csi-IM-ResourceElementPattern.pattern0.symbolLocation-p0 = 9",
                     f"{im}.freqBand.startingRB = 40", f"{im}.freqBand.nrofRBs = 80"]
    periodic = "periodic.periodicityAndOffset-p."
    yield "SRS hops", sounding(61, 3, 0, 5, 0, 4, 3, 7, "ports4", 3, 4, 1, periodic + "sl10 = 3")
    yield "SRS hops over odd parts", sounding(7, 3, 0, 2, 9, 2, 1, 0, "port1", 5, 4, 2, periodic + "sl5 = 4")
    yield "SRS hops in part", sounding(54, 3, 1, 17, 0, 2, 0, 4, "ports4", 1, 2, 1, periodic + "sl20 = 9")
    yield "SRS from the bandwidth part on", \
        sounding(20, 1, 3, 40, 11, 4, 1, 2, "ports2", 0, 1, 1, periodic + "sl40 = 9") + parts(30, 100, 17)
    yield "SRS from 0 on", \
        sounding(20, 1, 3, 40, 60, 4, 1, 2, "ports2", 0, 1, 1, periodic + "sl40 = 9") + parts(30, 100, 17)
    yield "aperiodic SRS", sounding(13, 0, 0, 0, 0, 2, 1, 3, "port1", 2, 2, 2, "aperiodic = {}")
    for period in ("sym2 = null", "sym6or7 = null", "sl1 = null", "sl10 = 9", "sl640 = 24"):
        yield f"SR {period}", chosen(SR + ".periodicityAndOffset", period) + [f"{SR}.resource = 8", *formats(0, 3, 1)]
    yield "PUCCH formats", formats(0, 12, 2) + formats(3, 2, 8, at=9, blocks=5) + formats(4, 0, 5, at=10)
    yield "repeated PUCCH", [f"{TDD} = absent", f"{PUCCH}.resourceToAddModList[3].intraSlotFrequencyHopping = absent",
                             f"{PUCCH}.format1.setup.interslotFrequencyHopping = enabled",
                             f"{PUCCH}.format1.setup.nrofSlots = n4"]
    for period in ("sym2", "sym7", "sym1x14", "sym10x14"):
        yield f"configured grant {period}", grant(period, 1 if period != "sym10x14" else 2)
    yield "two patterns", [f"{TDD}.pattern2.dl-UL-TransmissionPeriodicity = ms2p5", f"{TDD}.pattern2.nrofDownlinkSlots = 1",
                           f"{TDD}.pattern2.nrofDownlinkSymbols = 3", f"{TDD}.pattern2.nrofUplinkSlots = 2",
                           f"{TDD}.pattern2.nrofUplinkSymbols = 5"]
    slots = OWN + ".tdd-UL-DL-ConfigurationDedicated.slotSpecificConfigurationsToAddModList"
    yield "dedicated pattern", [f"{TDD}.referenceSubcarrierSpacing = kHz15", f"{TDD}.pattern1.nrofDownlinkSlots = 1",
                                f"{TDD}.pattern1.dl-UL-TransmissionPeriodicity = ms5",
                                f"{slots}[0].slotIndex = 2", f"{slots}[0].symbols.allUplink = null",
                                f"{slots}[1].slotIndex = 1", f"{slots}[1].symbols.explicit.nrofDownlinkSymbols = 11",
                                f"{slots}[1].symbols.explicit.nrofUplinkSymbols = 1"]
    at_60 = [f"{at}.scs-SpecificCarrierList[1].{one}" for at in (DOWN + ".frequencyInfoDL", UP + ".frequencyInfoUL")
             for one in ("offsetToCarrier = 3", "subcarrierSpacing = kHz60", "carrierBandwidth = 135")]
    extended = [f"{at}.bwp-Common.genericParameters.{one}" for at in (DOWN1, UP1)
                for one in (f"locationAndBandwidth = {riv(5, 120)}", "subcarrierSpacing = kHz60", "cyclicPrefix = extended")]
    yield "two spacings", at_60 + extended + chosen(SR + ".periodicityAndOffset", "sym6or7 = null") + \
        [f"{SR}.resource = 8", *formats(0, 3, 1), f"{TDD} = absent"]
    yield "search space", [*chosen(SPACE + ".monitoringSlotPeriodicityAndOffset", "sl10 = 7"), f"{SPACE}.duration = 4",
                           f"{SPACE}.monitoringSymbolsWithinSlot = 8020",
                           f"{CORESET}.frequencyDomainResources = 0F0180000000"] + parts(31, 120, 0)


def formats(number, start, symbols, at=8, blocks=1):
    resource = f"{PUCCH}.resourceToAddModList[{at}]"
    how = f"{resource}.format.format{number}"
    more = {0: ["initialCyclicShift = 0"], 3: [f"nrofPRBs = {blocks}"], 4: ["occ-Length = n2", "occ-Index = n0"]}
    return [f"{resource}.pucch-ResourceId = {at}", f"{resource}.startingPRB = {10 + at}",
            f"{how}.nrofSymbols = {symbols}", f"{how}.startingSymbolIndex = {start}",
            *(f"{how}.{one}" for one in more[number])]


def grant(period, repeats):
    one = GRANT + ".rrc-ConfiguredUplinkGrant"
    rows_at = UP1 + ".bwp-Dedicated.pusch-Config.setup.pusch-TimeDomainAllocationList.setup"
    code = 273 * (12 - 1) + 40  # 12 blocks from 40 on in 273
    return [f"{rows_at}[1].startSymbolAndLength = {14 * (2 - 1) + 4}", f"{rows_at}[1].mappingType = typeB",
            f"{GRANT}.cg-DMRS-Configuration = {{}}", f"{GRANT}.resourceAllocation = resourceAllocationType1",
            f"{GRANT}.powerControlLoopToUse = n0", f"{GRANT}.p0-PUSCH-Alpha = 0", f"{GRANT}.nrofHARQ-Processes = 1",
            f"{GRANT}.repK = n{repeats}", f"{GRANT}.periodicity = {period}", f"{one}.timeDomainOffset = 24",
            f"{one}.timeDomainAllocation = 1", f"{one}.frequencyDomainAllocation = {code << 6:06X}",
            f"{one}.antennaPort = 0", f"{one}.precodingAndNumberOfLayers = 0", f"{one}.mcsAndTBS = 5",
            f"{one}.pathlossReferenceIndex = 0"]


def drawn(*arguments, stdin):
    status, svg, words = run("draw", *arguments, stdin=stdin)
    true(status == DONE, f"draw {arguments}: {words.decode()}")
    return svg


def compare(name, text, *arguments):
    """A message's picture with what its JER says; returns the picture and what was computed."""
    status, jer, words = run("decode", "--json", stdin=text)
    true(status == DONE, f"{name}: {words.decode()}")
    message = json.loads(jer)
    picture = Picture(drawn(*arguments, stdin=text))
    occupied = Occupied(message, picture.spans)
    for key in sorted(set(picture.all) | set(occupied.all)):
        found, own = picture.all.get(key), occupied.all.get(key)
        slot = next((at for at in {**(found or {}), **(own or {})}
                     if (found or {}).get(at) != (own or {}).get(at)), None)
        true(found == own, f"{name}: {key} differs in slot and symbol {slot}: "
             f"{str((found or {}).get(slot))[:200]} instead of {str((own or {}).get(slot))[:200]}")
    true(picture.tdd == occupied.tdd, f"{name}: the directions of symbols")
    for grid, span in picture.spans.items() if not arguments else ():
        count = min(math.lcm(*occupied.periods.get(grid, {1})), 80)
        true(span == (0, count), f"{name}: slots {span} of the periods {occupied.periods}")
    return picture


def test_variants(folder):
    kinds = set()
    for name, changes in variants():
        picture = compare(name, flat(*changes))
        kinds |= {kind for kind, _ in picture.all}
        if name in ("as it is", "zero power", "CSI-IM", "PUCCH formats", "repeated PUCCH", "aperiodic SRS"):
            true(not picture.clashes, f"{name}: {picture.clashes}")
    true(kinds == {"search-space", "csi-rs", "zp-csi-rs", "csi-im", "srs", "grant", "pucch", "csi-report", "sr"},
         f"each kind occurs: {kinds}")


def test_joined(folder):
    """Random bandwidth parts, sounding and PUCCH, together with a variant."""
    chance = random.Random(16)
    every = [changes for _, changes in variants()]
    for i in range(int(COUNT) // 20):
        changes = list(chance.choice(every))
        start = chance.randrange(60)
        changes += parts(start, chance.randrange(24, 214), chance.randrange(50))
        b_srs = chance.randrange(4)
        comb = chance.choice((2, 4))
        symbols = chance.choice((1, 2, 4))
        period = chance.choice((2, 4, 5, 10, 20, 32, 40))
        changes += sounding(chance.randrange(64), b_srs, chance.randrange(4), chance.randrange(68),
                            chance.randrange(269), comb, chance.randrange(comb), chance.randrange(8),
                            chance.choice(("port1", "ports2", "ports4")), chance.randrange(symbols - 1, 6), symbols,
                            chance.choice([one for one in (1, 2, 4) if one <= symbols]),
                            f"periodic.periodicityAndOffset-p.sl{period} = {chance.randrange(period)}")
        resource = f"{PUCCH}.resourceToAddModList[{chance.randrange(4)}]"
        length = chance.randrange(4, 15)
        changes += [f"{resource}.startingPRB = {chance.randrange(275)}", f"{resource}.secondHopPRB = {chance.randrange(275)}",
                    f"{resource}.format.format1.nrofSymbols = {length}",
                    f"{resource}.format.format1.startingSymbolIndex = {chance.randrange(min(11, 15 - length))}"]
        compare(f"joined {i}", flat(*changes))


def test_slots(folder):
    for first, count in ((0, 1), (9, 1), (3, 2), (10239, 1), (37, 160)):
        picture = compare(f"--from {first}", flat(), "--from", str(first), "--slots", str(count))
        true(set(picture.spans.values()) == {(first, count)}, f"--from {first} --slots {count}: {picture.spans}")
    picture = Picture(drawn("--from", "9", "--slots", "1", stdin=flat()))
    true(any("the next time in slot 24" in words for words in texts(picture)), "says when the others occur")
    for wrong in (["--slots", "0"], ["--slots", "161"], ["--from", "10240"], ["--slots", "x"]):
        expect(["draw", *wrong, "-"], USAGE, err=re.compile("cellgroupcfg: .*--"), stdin=flat())


def texts(picture):
    return ["".join(one.itertext()) for one in picture.root.iter("{http://www.w3.org/2000/svg}text")]


def test_blocks(folder):
    """SS/PBCH blocks each half frame: case C at 30 kHz, symbols 2 and 8 of their slots (TS 38.213 4.1)."""
    picture = Picture(drawn("--slots", "20", stdin=flat(f"{COMMON}.ssb-periodicityServingCell = ms5")))
    (found,) = [value for (kind, _), value in picture.all.items() if kind == "ssb"]
    # 633312 is 3499.68 MHz, point A 630058 is 3450.87 MHz: 1627 subcarriers of 30 kHz, the first one 120 below.
    blocks = range((1627 - 120) // 12, -(-(1627 + 120) // 12))
    true(found == {(slot, symbol): {rb: 0xFFF for rb in blocks}
                   for slot in (0, 10) for symbol in (2, 3, 4, 5, 8, 9, 10, 11)}, f"SS/PBCH blocks: {sorted(found)}")
    picture = Picture(drawn(stdin=flat()))
    true(any("SS/PBCH blocks" in (title or "") for _, title in picture.unplaced), "20 ms: the half frame is not known")


def clash(name, changes, path, words, other=None):
    picture = Picture(drawn(stdin=flat(*changes)))
    found = [one for one in picture.clashes if words in one[2] and one[0] == f"CellGroupConfig.{path}"]
    true(len(found) == 1 and (other is None or found[0][1] == f"CellGroupConfig.{other}"),
         f"{name}: {picture.clashes}")
    true(picture.hatched > 0, f"{name}: nothing is hatched")


def test_clashes(folder):
    # Slots 4, 9, 14, ... are uplink, in slot 3 symbols 12 and 13.
    clash("SR on downlink", chosen(SR + ".periodicityAndOffset", "sl20 = 5"), SR, "4 of 4 occasions in slots 0..79")
    clash("SR partly on downlink", chosen(SR + ".periodicityAndOffset", "sl20 = 3"), SR, "the first in slot 3")
    clash("SR with a report", chosen(SR + ".periodicityAndOffset", "sl20 = 9"),
          CSI + ".csi-ReportConfigToAddModList[0]", "overlap in symbols of 1 slot, the first slot 9", SR)
    clash("CORESET", [f"{CORESET}.frequencyDomainResources = 000078000000"] + parts(0, 120, 0), CORESET,
          "beyond its bandwidth part of 120")
    clash("PUCCH", [f"{PUCCH}.resourceToAddModList[3].secondHopPRB = 274"], PUCCH + ".resourceToAddModList[3]",
          "but its bandwidth part is")
    clash("SRS", sounding(63, 0, 3, 0, 20, 2, 0, 0, "port1", 0, 1, 1, "periodic.periodicityAndOffset-p.sl40 = 9"), SRS,
          "but its bandwidth part is")
    clash("bandwidth part", [f"{UP}.frequencyInfoUL.scs-SpecificCarrierList[0].carrierBandwidth = 217"], UP1,
          "beyond its carrier of 217")


def test_context(folder):
    """What a message does not say of its cell comes from options, and is listed without them."""
    lines = [line for line in flat().splitlines() if f".{COMMON}" not in line and ".reconfigurationWithSync" not in line]
    bare = "\n".join(lines) + "\n"
    picture = Picture(drawn(stdin=bare))
    reasons = " ".join(texts(picture))
    for words in ("needs the carriers", "needs tdd-UL-DL-ConfigurationCommon", "from the carrier's first one"):
        true(words in reasons, f"{words!r} in {reasons}")
    true(("sr", f"CellGroupConfig.{SR}") in picture.all, "PUCCH stands in its bandwidth part without a carrier")
    true(not any(kind in ("search-space", "srs", "csi-rs") for kind, _ in picture.all), "nothing is guessed")
    known = ["--band", "n78", "--carrier", "30:0:273", "--tdd-pattern", "30:ms2p5:3:10:1:2"]
    status, _, words = run("draw", *known, stdin=bare)
    if status == DONE:
        told, whole = Picture(drawn(*known, stdin=bare)), Picture(drawn(stdin=flat()))
        true({key: value for key, value in whole.all.items() if f".{COMMON}" not in key[1]} == told.all,
             "with the options the picture is that of the whole cell")
    true(status == DONE, f"{known}: {words.decode()}")


def test_previous(folder):
    """A message on top of what the UE has: the whole, with the paths of the message where it has the element."""
    before, after = folder / "before.hex", flat(*chosen(SR + ".periodicityAndOffset", "sl40 = 14"))
    before.write_bytes(run("encode", stdin=flat())[1])
    message = run("delta", str(before), "-", stdin=after)[1]
    picture, whole = Picture(drawn("--previous", str(before), stdin=message)), Picture(drawn(stdin=after))
    shown, wanted = ([(kind, sorted(map(str, value.items()))) for (kind, _), value in one.all.items()]
                     for one in (picture, whole))
    true(sorted(shown) == sorted(wanted), f"--previous draws the whole: {set(picture.all) ^ set(whole.all)}")
    lines = run("decode", "--flat", stdin=message)[1].decode()
    (path,) = [path for kind, path in picture.all if kind == "sr"]
    true(path + ".periodicityAndOffset.sl40 = 14" in lines, f"{path} leads into the message")
    expect(["draw", "--previous", str(before), "-"], USAGE, err=re.compile("cellgroupcfg: "),
           stdin="CellGroupConfig.cellGroupId = 3\n")


def test_messages(folder):
    for name in EXAMPLES:
        record = run("example", name)[1]
        text = run("compose", stdin=record)[1]
        picture = compare(name, text)
        true(not picture.clashes, f"{name}: {picture.clashes}")
    svg = folder / "call.svg"
    expect(["draw", "-o", str(svg), "-"], DONE, stdin=flat())
    done = subprocess.run([XMLLINT, "--noout", "--nonet", str(svg)], capture_output=True, check=False)
    true(done.returncode == 0, f"xmllint: {done.stderr.decode()}")
    true(svg.read_bytes() == drawn(stdin=flat()), "-o writes what standard output gets")
    for outside in ("http:", "https:", "url(h", "@import", "<script", "<image"):
        true(outside not in svg.read_text(encoding="utf-8").replace("http://www.w3.org/2000/svg", ""),
             f"{outside} in a picture")
    expect(["draw", "00ff"], MALFORMED, err=re.compile("cellgroupcfg: "))
    flats = {re.match(r"[^ ]*", line).group() for line in run("decode", "--flat", stdin=flat())[1].decode().splitlines()}
    for (_, path) in Picture(svg.read_bytes()).all:
        true(any(line.startswith((path + ".", path + "[")) for line in flats), f"{path} is no path of the flat lines")


def test_sample(folder):
    """The picture in docs/ is that of the example."""
    text = run("compose", stdin=run("example", "typical-call")[1])[1]
    sample = PROJECT / "docs/pictures/typical_call.svg"
    true(sample.read_bytes() == drawn(stdin=text),
         f"{sample} is old: cellgroupcfg example typical-call | cellgroupcfg compose | cellgroupcfg draw -o {sample}")


def test_random(folder):
    done = subprocess.run([CELL_GROUPS, "kept", COUNT, "1"], capture_output=True, check=True, text=True)
    messages = [line.split()[1] for line in done.stdout.splitlines()]
    true(len(messages) == int(COUNT), f"{len(messages)} messages")
    largest = max(messages, key=len)
    sizes, files = {}, []
    for i, message in enumerate(messages):
        svg = drawn("--as", "hex", stdin=message)
        sizes[message] = len(svg)
        Picture(svg)  # well-formed, and each rectangle is of whole symbols and resource blocks
        if i % 50 == 0 or message == largest:
            files.append(folder / f"{i}.svg")
            files[-1].write_bytes(svg)
    done = subprocess.run([XMLLINT, "--noout", "--nonet", *map(str, files)], capture_output=True, check=False)
    true(done.returncode == 0, f"xmllint: {done.stderr.decode()[:500]}")
    print(f"{COUNT} random messages; the largest one, {len(largest) // 2} octets, makes {sizes[largest]} octets, "
          f"the largest picture has {max(sizes.values())}")
    true(max(sizes.values()) < 600_000, f"{max(sizes.values())} octets")


true(bool(WHOLE), "there is a whole cell")
main(test_variants, test_joined, test_slots, test_blocks, test_clashes, test_context, test_previous, test_messages, test_sample, test_random)
