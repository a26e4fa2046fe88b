"""What a cell group occupies, computed from its JER by the standards' formulas and with tables of its own: slots,
symbols, resource blocks and subcarriers of each kind of resource, by the path of its element."""

import math
import re

ALL = 0xFFF
MU = {"kHz15": 0, "kHz30": 1, "kHz60": 2, "kHz120": 3, "kHz240": 4}

# TS 38.211 table 6.4.1.4.3-1: m_SRS,0 and N_1, N_2, N_3 of each C_SRS.
SOUNDING = [tuple(map(int, row.split())) for row in """
4 1 1 1, 8 2 1 1, 12 3 1 1, 16 4 1 1, 16 2 2 1, 20 5 1 1, 24 6 1 1, 24 2 3 1, 28 7 1 1, 32 2 2 2, 36 3 3 1, 40 2 5 1,
48 3 2 2, 48 2 2 3, 52 13 1 1, 56 2 7 1, 60 3 5 1, 64 2 2 4, 72 3 2 3, 72 2 3 3, 76 19 1 1, 80 2 2 5, 88 2 11 1,
96 3 2 4, 96 2 2 6, 104 2 13 1, 112 2 2 7, 120 2 3 5, 120 3 5 2, 120 5 2 3, 128 2 2 8, 128 2 4 4, 128 8 2 2,
132 3 11 1, 136 2 17 1, 144 2 2 9, 144 3 2 2, 144 3 3 4, 144 9 2 2, 152 2 19 1, 160 2 2 10, 160 2 4 5, 160 5 2 4,
168 2 3 7, 176 2 2 11, 184 2 23 1, 192 2 2 12, 192 2 4 6, 192 3 4 4, 192 8 3 2, 208 2 2 13, 216 2 3 9, 224 2 2 14,
240 2 2 15, 240 3 4 5, 240 5 3 2, 240 10 2 3, 256 2 2 16, 256 2 4 8, 256 16 2 2, 264 2 3 11, 272 2 2 17, 272 4 17 1,
272 17 2 2""".split(",")]

# TS 38.211 table 7.4.1.5.3-1: ports, CDM, density -> row.
ROWS = {(1, "noCDM", "three"): 1, (1, "noCDM", "one"): 2, (1, "noCDM", "dot5"): 2, (2, "fd-CDM2", "one"): 3,
        (2, "fd-CDM2", "dot5"): 3, (8, "cdm4-FD2-TD2", "one"): 8, (12, "fd-CDM2", "one"): 9,
        (12, "cdm4-FD2-TD2", "one"): 10, (16, "fd-CDM2", "one"): 11, (16, "fd-CDM2", "dot5"): 11,
        (16, "cdm4-FD2-TD2", "one"): 12, (16, "cdm4-FD2-TD2", "dot5"): 12, (24, "fd-CDM2", "one"): 13,
        (24, "fd-CDM2", "dot5"): 13, (24, "cdm4-FD2-TD2", "one"): 14, (24, "cdm4-FD2-TD2", "dot5"): 14,
        (24, "cdm8-FD2-TD4", "one"): 15, (24, "cdm8-FD2-TD4", "dot5"): 15, (32, "fd-CDM2", "one"): 16,
        (32, "fd-CDM2", "dot5"): 16, (32, "cdm4-FD2-TD2", "one"): 17, (32, "cdm4-FD2-TD2", "dot5"): 17,
        (32, "cdm8-FD2-TD4", "one"): 18, (32, "cdm8-FD2-TD4", "dot5"): 18}
# Of each row the CDM groups as (i of k_i, added to it, 0 or 1 of l_0 or l_1, added to that).
GROUPS = {1: [(0, 0, 0, 0), (0, 4, 0, 0), (0, 8, 0, 0)], 2: [(0, 0, 0, 0)], 3: [(0, 0, 0, 0)],
          4: [(0, 0, 0, 0), (0, 2, 0, 0)], 5: [(0, 0, 0, 0), (0, 0, 0, 1)], 6: [(i, 0, 0, 0) for i in range(4)],
          7: [(i, 0, 0, j) for j in (0, 1) for i in (0, 1)], 8: [(i, 0, 0, 0) for i in (0, 1)],
          9: [(i, 0, 0, 0) for i in range(6)], 10: [(i, 0, 0, 0) for i in range(3)],
          11: [(i, 0, 0, j) for j in (0, 1) for i in range(4)], 12: [(i, 0, 0, 0) for i in range(4)],
          13: [(i, 0, s, j) for s in (0, 1) for j in (0, 1) for i in range(3)],
          14: [(i, 0, s, 0) for s in (0, 1) for i in range(3)], 15: [(i, 0, 0, 0) for i in range(3)],
          16: [(i, 0, s, j) for s in (0, 1) for j in (0, 1) for i in range(4)],
          17: [(i, 0, s, 0) for s in (0, 1) for i in range(4)], 18: [(i, 0, 0, 0) for i in range(4)]}
CDM = {"noCDM": (1, 1), "fd-CDM2": (2, 1), "cdm4-FD2-TD2": (2, 2), "cdm8-FD2-TD4": (2, 4)}  # k' and l'


def bits(text, count):
    """The bits of a bit string in hex, the first one first."""
    return [int(bit) for bit in f"{int(text, 16):0{4 * len(text)}b}"[:count]]


def riv(value, n):
    for length in range(1, n + 1):
        for start in range(n - length + 1):
            code = n * (length - 1) + start if length - 1 <= n // 2 else n * (n - length + 1) + n - 1 - start
            if code == value:
                return start, length
    return None


def sliv(value):
    for length in range(1, 15):
        for start in range(15 - length):
            code = 14 * (length - 1) + start if length - 1 <= 7 else 14 * (14 - length + 1) + 13 - start
            if code == value:
                return start, length
    return None


def recurring(choice):
    """Period and offset of a choice such as {"sl10": 3}."""
    (name, offset), = choice.items()
    return int(re.sub(r"\D", "", name)), offset or 0


def enumerated(name):
    return int(re.sub(r"\D", "", name))


class Bwp:
    def __init__(self, ident, path, generic, carriers, common, dedicated):
        self.ident, self.path, self.common, self.dedicated = ident, path, common or {}, dedicated or {}
        self.mu = MU[generic["subcarrierSpacing"]]
        self.extended = "cyclicPrefix" in generic
        self.symbols = 12 if self.extended else 14
        located = riv(generic["locationAndBandwidth"], 275)
        carrier = [one for one in carriers if one["subcarrierSpacing"] == generic["subcarrierSpacing"]]
        self.is_common = bool(carrier)
        self.grid = None  # number of the cell, spacing
        self.start = (carrier[0]["offsetToCarrier"] if carrier else 0) + located[0]
        self.size = located[1]


class Cell:
    """A cell of a complete cell group."""

    def __init__(self, path, common_path, common, dedicated_path, dedicated):
        self.path, self.common, self.dedicated = path, common or {}, dedicated or {}
        self.dedicated_path = dedicated_path
        down, up = self.common.get("downlinkConfigCommon", {}), self.common.get("uplinkConfigCommon", {})
        carriers = down.get("frequencyInfoDL", {}).get("scs-SpecificCarrierList", [])
        up_carriers = up.get("frequencyInfoUL", {}).get("scs-SpecificCarrierList", [])
        uplink = self.dedicated.get("uplinkConfig", {})
        self.down = self.parts(down.get("initialDownlinkBWP"), common_path + ".downlinkConfigCommon.initialDownlinkBWP",
                               self.dedicated.get("initialDownlinkBWP"), dedicated_path + ".initialDownlinkBWP",
                               self.dedicated.get("downlinkBWP-ToAddModList", []),
                               dedicated_path + ".downlinkBWP-ToAddModList", carriers)
        self.up = self.parts(up.get("initialUplinkBWP"), common_path + ".uplinkConfigCommon.initialUplinkBWP",
                             uplink.get("initialUplinkBWP"), dedicated_path + ".uplinkConfig.initialUplinkBWP",
                             uplink.get("uplinkBWP-ToAddModList", []),
                             dedicated_path + ".uplinkConfig.uplinkBWP-ToAddModList", up_carriers)

    @staticmethod
    def parts(initial, initial_path, own, own_path, added, added_path, carriers):
        found = []
        if initial:
            one = Bwp(0, own_path, initial["genericParameters"], carriers, initial, own)
            one.common_path = initial_path
            found.append(one)
        for i, bwp in enumerate(added):
            if "bwp-Common" in bwp:
                one = Bwp(bwp["bwp-Id"], f"{added_path}[{i}].bwp-Dedicated", bwp["bwp-Common"]["genericParameters"],
                          carriers, bwp["bwp-Common"], bwp.get("bwp-Dedicated"))
                one.common_path = f"{added_path}[{i}].bwp-Common"
                found.append(one)
        return found


def cells(message):
    found = []
    special = message.get("spCellConfig")
    if special:
        at = "CellGroupConfig.spCellConfig"
        common = special.get("reconfigurationWithSync", {}).get("spCellConfigCommon")
        found.append(Cell(at, at + ".reconfigurationWithSync.spCellConfigCommon", common,
                          at + ".spCellConfigDedicated", special.get("spCellConfigDedicated")))
    for i, scell in enumerate(message.get("sCellToAddModList", [])):
        at = f"CellGroupConfig.sCellToAddModList[{i}]"
        found.append(Cell(at, at + ".sCellConfigCommon", scell.get("sCellConfigCommon"), at + ".sCellConfigDedicated",
                          scell.get("sCellConfigDedicated")))
    return found


def setup(of, name):
    return (of.get(name) or {}).get("setup")


class Occupied:
    """kind, path -> slot (None: any) -> symbol -> resource block -> mask of subcarriers; the periods by the spacing."""

    def __init__(self, message, spans):
        """With the first slot and the number of slots that are drawn of a cell's number and a spacing."""
        self.all, self.periods, self.spans, self.tdd = {}, {}, spans, {}
        found = cells(message)
        for i, cell in enumerate(found):
            for bwp in cell.down + cell.up:
                bwp.grid = i, 15 << bwp.mu
        for cell in found:
            for bwp in cell.down:
                self.pdcch(bwp)
                self.zero_power(bwp)
            for bwp in cell.up:
                self.sounding(bwp)
                self.pucch(bwp)
                self.grant(bwp)
            self.csi(cell, found[0])
            self.pattern(cell)

    def put(self, kind, path, slot, symbol, block, mask):
        at = self.all.setdefault((kind, path), {}).setdefault((slot, symbol), {})
        at[block] = at.get(block, 0) | mask

    def slots(self, grid):
        first, count = self.spans[grid]
        return range(first, first + count)

    def occasions(self, bwp, period, offset, duration=1):
        self.periods.setdefault(bwp.grid, set()).add(period)
        return [slot for slot in self.slots(bwp.grid) if (slot - offset) % period < duration]

    def pattern(self, cell):
        common = cell.common.get("tdd-UL-DL-ConfigurationCommon")
        if not common:
            return
        reference = MU[common["referenceSubcarrierSpacing"]]
        kinds = []
        for name in ("pattern1", "pattern2"):
            pattern = common.get(name)
            if not pattern:
                continue
            text = pattern.get("dl-UL-TransmissionPeriodicity-v1530", pattern["dl-UL-TransmissionPeriodicity"])
            slots = int(float(text[2:].replace("p", ".")) * 2 ** reference)
            symbols = ["F"] * (14 * slots)
            down = 14 * pattern["nrofDownlinkSlots"] + pattern["nrofDownlinkSymbols"]
            up = 14 * pattern["nrofUplinkSlots"] + pattern["nrofUplinkSymbols"]
            symbols[:down] = "D" * down
            symbols[len(symbols) - up:] = "U" * up
            kinds += symbols
        own = cell.dedicated.get("tdd-UL-DL-ConfigurationDedicated", {})
        for config in own.get("slotSpecificConfigurationsToAddModList", []):
            (name, value), = config["symbols"].items()
            text = {"allDownlink": "D" * 14, "allUplink": "U" * 14}.get(name)
            if text is None:
                down, up = value.get("nrofDownlinkSymbols", 0), value.get("nrofUplinkSymbols", 0)
                text = "D" * down + "F" * (14 - down - up) + "U" * up
            for i, kind in enumerate(text):
                at = 14 * config["slotIndex"] + i
                kinds[at] = kind if kinds[at] == "F" else kinds[at]
        for grid in {bwp.grid for bwp in cell.down + cell.up}:
            finer = grid[1] // (15 << reference)
            self.tdd[grid] = "".join(kinds[symbol // finer % len(kinds)] for slot in self.slots(grid)
                                     for symbol in range(14 * slot, 14 * slot + 14))
            self.periods.setdefault(grid, set()).add(len(kinds) // 14 * finer)

    def pdcch(self, bwp):
        common, own = setup(bwp.common, "pdcch-ConfigCommon") or {}, setup(bwp.dedicated, "pdcch-Config") or {}
        at, own_at = bwp.common_path + ".pdcch-ConfigCommon.setup", bwp.path + ".pdcch-Config.setup"
        coresets = {one["controlResourceSetId"]: one for one in own.get("controlResourceSetToAddModList", [])}
        if "commonControlResourceSet" in common:
            coresets.setdefault(common["commonControlResourceSet"]["controlResourceSetId"],
                                common["commonControlResourceSet"])
        spaces = [(f"{at}.commonSearchSpaceList[{i}]", one)
                  for i, one in enumerate(common.get("commonSearchSpaceList", []))]
        spaces += [(f"{own_at}.searchSpacesToAddModList[{i}]", one)
                   for i, one in enumerate(own.get("searchSpacesToAddModList", []))]
        for path, space in spaces:
            coreset = coresets.get(space.get("controlResourceSetId"))
            if coreset is None or not bwp.is_common:
                continue
            first = math.ceil(bwp.start / 6) * 6
            groups = [i for i, bit in enumerate(bits(coreset["frequencyDomainResources"], 45)) if bit]
            period, offset = recurring(space["monitoringSlotPeriodicityAndOffset"])
            for slot in self.occasions(bwp, period, offset, space.get("duration", 1)):
                for symbol, bit in enumerate(bits(space["monitoringSymbolsWithinSlot"], 14)):
                    stays = bit and symbol + coreset["duration"] <= bwp.symbols
                    for i in range(coreset["duration"] if stays else 0):
                        for group in groups:
                            for block in range(6):
                                self.put("search-space", path, slot, symbol + i, first + 6 * group + block, ALL)

    def csi_rs(self, kind, path, bwp, mapping, recurrence):
        (name, text), = mapping["frequencyDomainAllocation"].items()
        count = {"row1": 4, "row2": 12, "row4": 3, "other": 6}[name]
        apart = {"row1": 1, "row2": 1, "row4": 4, "other": 2}[name]
        value = bits(text, count)[::-1]
        places = [apart * i for i, bit in enumerate(value) if bit]
        (density, which), = mapping["density"].items()
        ports = enumerated(mapping["nrofPorts"])
        row = ROWS.get((ports, mapping["cdm-Type"], density))
        if name == "row4":
            row = 4
        elif row is None or ports in (4, 8) and mapping["cdm-Type"] == "fd-CDM2":
            row = {(4, 1): 5, (8, 4): 6, (8, 2): 7}[ports, len(places)]
        starts = mapping["firstOFDMSymbolInTimeDomain"], mapping.get("firstOFDMSymbolInTimeDomain2")
        band = mapping["freqBand"]
        blocks = [rb for rb in range(band["startingRB"], band["startingRB"] + band["nrofRBs"])
                  if bwp.start <= rb < bwp.start + bwp.size]
        if band["startingRB"] < bwp.start:  # 38.214 5.2.2.3.1: the number counts from the first one that is within
            blocks = list(range(bwp.start, min(bwp.start + band["nrofRBs"], bwp.start + bwp.size)))
        if density == "dot5":
            blocks = [rb for rb in blocks if rb % 2 == (0 if which == "evenPRBs" else 1)]
        slots = [None]
        if recurrence:
            slots = self.occasions(bwp, *recurring(recurrence))
        wide, long = CDM[mapping["cdm-Type"]]
        ends = [starts[which] + max(later for *_, one, later in GROUPS[row] if one == which) + long
                for which in {one for *_, one, _ in GROUPS[row]}]
        for slot in slots:
            for i, more, which_start, later in GROUPS[row]:
                if ends[which_start] > bwp.symbols:
                    continue
                for k in range(wide):
                    for symbol in range(long):
                        for rb in blocks:
                            self.put(kind, path, slot, starts[which_start] + later + symbol, rb,
                                     1 << (places[i] + more + k))

    def zero_power(self, bwp):
        own = setup(bwp.dedicated, "pdsch-Config") or {}
        for i, one in enumerate(own.get("zp-CSI-RS-ResourceToAddModList", [])):
            if bwp.is_common:
                self.csi_rs("zp-csi-rs", f"{bwp.path}.pdsch-Config.setup.zp-CSI-RS-ResourceToAddModList[{i}]", bwp,
                            one["resourceMapping"], one.get("periodicityAndOffset"))

    def csi(self, cell, pucch_cell):
        config = setup(cell.dedicated, "csi-MeasConfig") or {}
        at = cell.dedicated_path + ".csi-MeasConfig.setup"
        sets = {one["nzp-CSI-ResourceSetId"]: one["nzp-CSI-RS-Resources"]
                for one in config.get("nzp-CSI-RS-ResourceSetToAddModList", [])}
        im_sets = {one["csi-IM-ResourceSetId"]: one["csi-IM-Resources"]
                   for one in config.get("csi-IM-ResourceSetToAddModList", [])}
        used, im_used = {}, {}
        for one in config.get("csi-ResourceConfigToAddModList", []):
            (name, lists), = one["csi-RS-ResourceSetList"].items()
            if name == "nzp-CSI-RS-SSB":
                for ident in lists.get("nzp-CSI-RS-ResourceSetList", []):
                    for resource in sets.get(ident, []):
                        used.setdefault(resource, set()).add(one["bwp-Id"])
            else:
                for ident in lists:
                    for resource in im_sets.get(ident, []):
                        im_used.setdefault(resource, set()).add(one["bwp-Id"])
        for i, one in enumerate(config.get("nzp-CSI-RS-ResourceToAddModList", [])):
            for bwp in cell.down:
                if bwp.ident in used.get(one["nzp-CSI-RS-ResourceId"], ()) and bwp.is_common:
                    self.csi_rs("csi-rs", f"{at}.nzp-CSI-RS-ResourceToAddModList[{i}]", bwp, one["resourceMapping"],
                                one.get("periodicityAndOffset"))
        for i, one in enumerate(config.get("csi-IM-ResourceToAddModList", [])):
            for bwp in cell.down:
                if bwp.ident in im_used.get(one["csi-IM-ResourceId"], ()) and bwp.is_common:
                    self.interference(f"{at}.csi-IM-ResourceToAddModList[{i}]", bwp, one)
        for i, one in enumerate(config.get("csi-ReportConfigToAddModList", [])):
            (name, how), = one["reportConfigType"].items()
            if name in ("periodic", "semiPersistentOnPUCCH"):
                for place in how["pucch-CSI-ResourceList"]:
                    for bwp in pucch_cell.up:
                        if bwp.ident == place["uplinkBandwidthPartId"]:
                            self.uci("csi-report", f"{at}.csi-ReportConfigToAddModList[{i}]", bwp,
                                     place["pucch-Resource"], *recurring(how["reportSlotConfig"]))

    def interference(self, path, bwp, one):
        (name, pattern), = one["csi-IM-ResourceElementPattern"].items()
        first = int(pattern["subcarrierLocation-p" + name[-1]][1:])
        start = pattern["symbolLocation-p" + name[-1]]
        width, symbols = (2, 2) if name == "pattern0" else (4, 1)
        band = one["freqBand"]
        slots = self.occasions(bwp, *recurring(one["periodicityAndOffset"])) \
            if "periodicityAndOffset" in one else [None]
        for slot in slots if start + symbols <= bwp.symbols else ():
            for symbol in range(start, start + symbols):
                for rb in range(max(bwp.start, band["startingRB"]),
                                min(bwp.start + bwp.size, max(bwp.start, band["startingRB"]) + band["nrofRBs"])):
                    self.put("csi-im", path, slot, symbol, rb, ((1 << width) - 1) << first)

    def sounding(self, bwp):
        config = setup(bwp.dedicated, "srs-Config") or {}
        for i, one in enumerate(config.get("srs-ResourceToAddModList", [])):
            if not bwp.is_common:
                continue
            (kind, when), = one["resourceType"].items()
            hopping = one["freqHopping"]
            m, *parts = SOUNDING[hopping["c-SRS"]]
            widths = [m]
            for part in parts:
                widths.append(widths[-1] // part)
            parts = [1] + parts
            b_srs, b_hop = hopping["b-SRS"], hopping["b-hop"]
            symbols = enumerated(one["resourceMapping"]["nrofSymbols"])
            repeat = enumerated(one["resourceMapping"]["repetitionFactor"])
            first = bwp.symbols - 1 - one["resourceMapping"]["startPosition"]
            (comb, values), = one["transmissionComb"].items()
            size = int(comb[1:])
            offsets = {values["combOffset-" + comb]}
            if one["nrofSRS-Ports"] == "ports4" and values["cyclicShift-" + comb] >= {2: 4, 4: 6}[size]:
                offsets.add((values["combOffset-" + comb] + size // 2) % size)
            mask = sum(1 << k for k in range(12) if k % size in offsets)
            shift = one["freqDomainShift"]
            reference = 0 if bwp.start <= shift else bwp.start
            slots, period, offset = [None], 1, 0
            if kind != "aperiodic":
                (_, choice), = when.items()
                period, offset = recurring(choice)
                slots = self.occasions(bwp, period, offset)
            path = f"{bwp.path}.srs-Config.setup.srs-ResourceToAddModList[{i}]"
            for slot in slots:
                for symbol in range(symbols):
                    count = (0 if slot is None else (slot - offset) // period) * (symbols // repeat) + symbol // repeat
                    start = reference + shift
                    for b in range(b_srs + 1):
                        n = 4 * one["freqDomainPosition"] // widths[b]
                        if b > b_hop:
                            below = math.prod(parts[b_hop + 1:b])
                            cycle = below * parts[b]
                            if parts[b] % 2 == 0:
                                n += parts[b] // 2 * (count % cycle // below) + count % cycle // (2 * below)
                            else:
                                n += parts[b] // 2 * (count // below)
                        start += widths[b] * (n % parts[b])
                    for rb in range(start, start + widths[b_srs]):
                        self.put("srs", path, slot, first + symbol, rb, mask)

    def format_of(self, bwp, resource):
        """Format, first symbol, symbols, and of each symbol the first block; blocks."""
        (name, how), = resource["format"].items()
        start, count = how["startingSymbolIndex"], how["nrofSymbols"]
        blocks = how.get("nrofPRBs", 1)
        hops = "intraSlotFrequencyHopping" in resource
        firsts = [bwp.start + (resource["secondHopPRB"] if hops and i >= count // 2 else resource["startingPRB"])
                  for i in range(count)]
        return int(name[-1]), start, firsts, blocks

    def pucch(self, bwp):
        config = setup(bwp.dedicated, "pucch-Config") or {}
        at = bwp.path + ".pucch-Config.setup"
        for i, resource in enumerate(config.get("resourceToAddModList", [])):
            _, start, firsts, blocks = self.format_of(bwp, resource)
            if start + len(firsts) > bwp.symbols:
                continue
            for j, first in enumerate(firsts):
                for rb in range(first, first + blocks):
                    self.put("pucch", f"{at}.resourceToAddModList[{i}]", None, start + j, rb, ALL)
        for i, one in enumerate(config.get("schedulingRequestResourceToAddModList", [])):
            path = f"{at}.schedulingRequestResourceToAddModList[{i}]"
            (name, offset), = one["periodicityAndOffset"].items()
            if name.startswith("sym"):
                self.often(path, bwp, one["resource"], 2 if name == "sym2" else bwp.symbols // 2)
            else:
                self.uci("sr", path, bwp, one["resource"], enumerated(name), offset or 0)

    def resource(self, bwp, ident):
        config = setup(bwp.dedicated, "pucch-Config") or {}
        for one in config.get("resourceToAddModList", []):
            if one["pucch-ResourceId"] == ident:
                return one
        return None

    def often(self, path, bwp, ident, period):
        _, start, firsts, blocks = self.format_of(bwp, self.resource(bwp, ident))
        for slot in self.occasions(bwp, 1, 0):
            for symbol in range(bwp.symbols):
                if (symbol - start % period) % period == 0 and symbol + len(firsts) <= bwp.symbols:
                    for j, first in enumerate(firsts):
                        for rb in range(first, first + blocks):
                            self.put("sr", path, slot, symbol + j, rb, ALL)

    def uci(self, kind, path, bwp, ident, period, offset):
        resource = self.resource(bwp, ident)
        if resource is None:
            return
        number, start, firsts, blocks = self.format_of(bwp, resource)
        if start + len(firsts) > bwp.symbols:
            return
        config = setup(bwp.dedicated, "pucch-Config")
        of_format = (setup(config, f"format{number}") or {}) if number in (1, 3, 4) else {}
        repeats = enumerated(of_format.get("nrofSlots", "n1"))
        between = "interslotFrequencyHopping" in of_format and repeats > 1
        for slot in self.occasions(bwp, period, offset):
            for i in range(repeats):  # without a TDD pattern each slot has the symbols
                for j, first in enumerate(firsts):
                    if between and i % 2 == 1:
                        first = bwp.start + resource["secondHopPRB"]
                    for rb in range(first, first + blocks):
                        if slot + i in self.slots(bwp.grid):
                            self.put(kind, path, slot + i, start + j, rb, ALL)

    def grant(self, bwp):
        grant = setup(bwp.dedicated, "configuredGrantConfig") or {}
        one = grant.get("rrc-ConfiguredUplinkGrant")
        rows = setup(setup(bwp.dedicated, "pusch-Config") or {}, "pusch-TimeDomainAllocationList") or \
            (setup(bwp.common, "pusch-ConfigCommon") or {}).get("pusch-TimeDomainAllocationList")
        if not one or not rows or grant["resourceAllocation"] != "resourceAllocationType1" or \
                "frequencyHopping" in grant:
            return
        start, length = sliv(rows[one["timeDomainAllocation"]]["startSymbolAndLength"])
        blocks = riv(int("".join(map(str, bits(one["frequencyDomainAllocation"], 18))), 2), bwp.size)
        if blocks is None:
            return
        first, count = blocks
        parts = grant["periodicity"][3:].split("x")
        symbols = int(parts[0]) * (int(parts[1]) if len(parts) > 1 else 1)
        path = bwp.path + ".configuredGrantConfig.setup"
        period = max(symbols // bwp.symbols, 1)
        repeats = enumerated(grant["repK"])
        for slot in self.occasions(bwp, period, one["timeDomainOffset"], repeats):
            for begin in range(bwp.symbols):
                here = begin == start if symbols >= bwp.symbols else (begin - start) % symbols == 0
                if here and begin + length <= bwp.symbols:
                    for symbol in range(begin, begin + length):
                        for rb in range(bwp.start + first, bwp.start + first + count):
                            self.put("grant", path, slot, symbol, rb, ALL)
