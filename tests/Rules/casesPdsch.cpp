#include "ruleCases.h"

namespace test
{

namespace
{

// Whether TS 38.214 table 5.1.2.1-1 has the pair for normal cyclic prefix, dmrs-TypeA-Position pos2.
bool isInTable(bool typeB, OSUINT32 start, OSUINT32 length)
{
    return typeB ? start <= 12 && (length == 2 || length == 4 || length == 7) && start + length <= 14
                 : start <= 2 && length >= 3 && start + length <= 14;
}

// PT-RS for a mapping type, with these first values of its densities.
std::string densities(const std::string& type, int frequency, int time)
{
    const std::string at = AT_PDSCH "dmrs-DownlinkForPDSCH-" + type + ".setup.phaseTrackingRS.setup.";
    return at + "frequencyDensity[0] = " + std::to_string(frequency) + "\n" + at + "frequencyDensity[1] = 100\n" + at +
           "timeDensity[0] = " + std::to_string(time) + "\n" + at + "timeDensity[1] = 25\n" + at +
           "timeDensity[2] = 28\n";
}

// Each value of startSymbolAndLength: by 5.1.2.1 for each pair, none for the others.
void tdraCases(Cases tdra)
{
    bool allowed[2][128] = {};
    for (OSUINT32 start = 0; start < 14; ++start)
    {
        for (OSUINT32 length = 1; start + length <= 14; ++length)
        {
            const OSUINT32 value = length - 1 <= 7 ? 14 * (length - 1) + start : 14 * (15 - length) + 13 - start;
            allowed[0][value] = isInTable(false, start, length);
            allowed[1][value] = isInTable(true, start, length);
        }
    }
    const std::string at = AT_PDSCH "pdsch-TimeDomainAllocationList.setup[0].";
    for (const bool typeB : {false, true})
    {
        for (OSUINT32 value = 0; value < 128; ++value)
        {
            const std::string changes = at + "mappingType = " + (typeB ? "typeB\n" : "typeA\n") + at +
                                        "startSymbolAndLength = " + std::to_string(value);
            allowed[typeB ? 1 : 0][value] ? tdra.silent(changes) : tdra.fires(at + "startSymbolAndLength", changes);
        }
    }
}

std::string good(const char* rule, const char* changes)
{
    return std::string(rrcRuleById(rule)->good) + "\n" + changes;
}

#define AT_NARROW AT_SCELL_CELL "downlinkBWP-ToAddModList[1]."
#define AT_NARROW_PDSCH AT_NARROW "bwp-Dedicated.pdsch-Config.setup."

// A second bandwidth part of the SCell, of so many resource blocks, with bundles of four.
std::string narrow(int blocks)
{
    return ADD_SCELL AT_NARROW "bwp-Id = 2\n" AT_NARROW "bwp-Common.genericParameters.locationAndBandwidth = " +
           std::to_string(275 * (blocks - 1)) + "\n" +
           AT_NARROW "bwp-Common.genericParameters.subcarrierSpacing = kHz30\n" AT_NARROW_PDSCH
                     "resourceAllocation = resourceAllocationType0\n" AT_NARROW_PDSCH
                     "rbg-Size = config1\n" AT_NARROW_PDSCH "prb-BundlingType.staticBundling.bundleSize = n4\n";
}

#define AT_PATTERN(n) AT_CELL "rateMatchPatternToAddModList[" n "]."

// The bits of 275 resource blocks, with one of them set.
std::string resourceBlock(std::size_t number)
{
    std::string octets(70, '0');
    octets[number / 4] = "8421"[number % 4];
    return octets;
}

// A rate matching pattern of the cell: every second slot of 40, or the slots of 40 pairs.
std::string cellPattern(const std::string& symbols, const std::string& spacing)
{
    return AT_PATTERN("0") "rateMatchPatternId = 0\n" AT_PATTERN("0") "patternType.bitmaps.resourceBlocks = " +
           resourceBlock(0) + "\n" + AT_PATTERN("0") "patternType.bitmaps.symbolsInResourceBlock." + symbols + "\n" +
           AT_PATTERN("0") "patternType.bitmaps.periodicityAndPattern.n40 = AAAAAAAAAA\n" AT_PATTERN(
               "0") "subcarrierSpacing = " +
           spacing + "\n" + AT_PATTERN("0") "dummy = dynamic\n";
}

// Patterns of the common configuration, as many as a list has.
std::string commonPatterns()
{
    std::string text;
    for (int i = 0; i < 4; ++i)
    {
        const std::string at = AT_COMMON "rateMatchPatternToAddModList[" + std::to_string(i) + "].";
        text += at + "rateMatchPatternId = " + std::to_string(i) + "\n" + at + "patternType.controlResourceSet = 0\n" +
                at + "subcarrierSpacing = kHz30\n" + at + "dummy = dynamic\n";
    }
    return text;
}

void ableOfNothing(RrcRuleContext& known)
{
    static constexpr RrcRuleCapabilities nothing{};
    known.capabilities = &nothing;
}

} // namespace

void pdschCases(CaseTable& table)
{
    tdraCases(table.rule("pdsch-tdra")
                  .bad(AT_PDSCH "pdsch-TimeDomainAllocationList.setup[0].startSymbolAndLength")
                  .saying("53, which is S = 2, L = 12, but mapping type B has L = 2, 4 or 7 within the slot")
                  .good()
                  .fires(AT_COMMON_DL "initialDownlinkBWP.pdsch-ConfigCommon.setup.pdsch-TimeDomainAllocationList[0]."
                                      "startSymbolAndLength",
                         AT_COMMON_DL "initialDownlinkBWP.pdsch-ConfigCommon.setup.pdsch-TimeDomainAllocationList[0]."
                                      "startSymbolAndLength = 105")
                  .undecided("spCellConfig.reconfigurationWithSync = absent\n" AT_PDSCH
                             "pdsch-TimeDomainAllocationList.setup[0].startSymbolAndLength = 31")
                  .with(inDelta));

    table.rule("pdsch-dmrs-ab")
        .bad(AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeB.setup.scramblingID0")
        .good()
        .fires(AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeB.setup.phaseTrackingRS",
               AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeB.setup.phaseTrackingRS.setup.epre-Ratio = 1")
        .silent(AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeB.setup.phaseTrackingRS.setup.epre-Ratio = 1")
        .with(inDelta)
        // The same PT-RS: each of its densities.
        .silent(densities("MappingTypeA", 50, 20) + densities("MappingTypeB", 50, 20))
        .fires(AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeB.setup.phaseTrackingRS",
               densities("MappingTypeA", 50, 20) + densities("MappingTypeB", 51, 20))
        .fires(AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeB.setup.phaseTrackingRS",
               densities("MappingTypeA", 50, 20) + densities("MappingTypeB", 50, 21))
        .fires(AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeB.setup.phaseTrackingRS",
               densities("MappingTypeA", 50, 20) + densities("MappingTypeB", 50, 20) +
                   AT_PDSCH
                   "dmrs-DownlinkForPDSCH-MappingTypeB.setup.phaseTrackingRS.setup.resourceElementOffset = offset01")
        .fires(AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeB.setup.phaseTrackingRS",
               densities("MappingTypeA", 50, 20) + densities("MappingTypeB", 50, 20) +
                   AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeA.setup.phaseTrackingRS.setup.timeDensity = absent")
        .silent(AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeB.setup.dmrs-Type = type2");

    table.rule("pdsch-dmrs-pos3")
        .bad(AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeA.setup.dmrs-AdditionalPosition")
        .good()
        .fires(AT_PUSCH "dmrs-UplinkForPUSCH-MappingTypeA.setup.dmrs-AdditionalPosition",
               AT_PUSCH "dmrs-UplinkForPUSCH-MappingTypeA.setup.dmrs-AdditionalPosition = pos3\n" AT_COMMON
                        "dmrs-TypeA-Position = pos3")
        .fires(AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeA.setup.dmrs-AdditionalPosition",
               AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeA.setup.dmrs-AdditionalPosition = pos3\n" AT_PDSCH
                        "dmrs-DownlinkForPDSCH-MappingTypeA.setup.maxLength = len2")
        .as(RRC_RULE_WARNING)
        .silent(AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeA.setup.maxLength = len2");

    table.rule("pdsch-bundle-n4")
        .bad(AT_PDSCH "prb-BundlingType.staticBundling.bundleSize")
        .good()
        .fires(AT_PDSCH "prb-BundlingType.dynamicBundling.bundleSizeSet1", AT_PDSCH
               "prb-BundlingType = absent\n" AT_PDSCH
               "prb-BundlingType.dynamicBundling.bundleSizeSet1 = n4-wideband\n" AT_PDSCH "vrb-ToPRB-Interleaver = n2")
        .fires(AT_PDSCH "prb-BundlingType.dynamicBundling.bundleSizeSet2",
               AT_PDSCH "prb-BundlingType = absent\n" AT_PDSCH
                        "prb-BundlingType.dynamicBundling.bundleSizeSet2 = n4\n" AT_PDSCH "vrb-ToPRB-Interleaver = n2")
        .fires(AT_NARROW_PDSCH "prb-BundlingType.staticBundling.bundleSize", narrow(36))
        .saying("n4, but a bandwidth part of 36 PRB has resource block groups of 2")
        .silent(narrow(37))
        .silent(narrow(36) + AT_NARROW_PDSCH "rbg-Size = config2")
        .silent(narrow(36) + AT_NARROW_PDSCH "resourceAllocation = resourceAllocationType1")
        .fires(AT_NARROW_PDSCH "prb-BundlingType.staticBundling.bundleSize",
               narrow(36) + AT_NARROW_PDSCH "resourceAllocation = dynamicSwitch");

    table.rule("pdsch-codewords")
        .bad(AT_CELL "pdsch-ServingCellConfig.setup.codeBlockGroupTransmission.setup."
                     "maxCodeBlockGroupsPerTransportBlock")
        .good()
        .fires(AT_PDSCH "maxNrofCodeWordsScheduledByDCI", AT_PDSCH "maxNrofCodeWordsScheduledByDCI = n2")
        .as(RRC_RULE_WARNING)
        .fires(AT_PDSCH "maxNrofCodeWordsScheduledByDCI", AT_CELL "pdsch-ServingCellConfig.setup.maxMIMO-Layers = 5")
        .as(RRC_RULE_WARNING)
        .silent(AT_CELL "pdsch-ServingCellConfig.setup.maxMIMO-Layers = 4");

    table.rule("pdsch-rm-group-ref")
        .bad(AT_PDSCH "rateMatchPatternGroup1[0].bwpLevel")
        .good()
        .fires(AT_PDSCH "rateMatchPatternGroup2[0].cellLevel", AT_PDSCH "rateMatchPatternGroup2[0].cellLevel = 0")
        .fires(AT_PDSCH "rateMatchPatternGroup2[0].cellLevel", AT_PDSCH "rateMatchPatternGroup2[0].cellLevel = 0")
        .with(inDelta)
        .as(RRC_RULE_NOTICE);

    table.rule("pdsch-rm-pattern")
        .bad(AT_PDSCH "rateMatchPatternToAddModList[0].subcarrierSpacing")
        .good()
        .fires(AT_PDSCH "rateMatchPatternToAddModList[0].patternType.controlResourceSet",
               good("pdsch-rm-pattern", AT_PDSCH "rateMatchPatternToAddModList[0].patternType.controlResourceSet = 9"))
        .fires(AT_CELL "rateMatchPatternToAddModList[0].subcarrierSpacing",
               AT_CELL "rateMatchPatternToAddModList[0].rateMatchPatternId = 0\n" AT_CELL
                       "rateMatchPatternToAddModList[0].patternType.controlResourceSet = 2\n" AT_CELL
                       "rateMatchPatternToAddModList[0].dummy = dynamic")
        .fires(AT_PATTERN("0") "patternType.bitmaps.periodicityAndPattern", cellPattern("twoSlots = FFFFFFF0", "kHz15"))
        .saying("40 times 2 slots, but a pattern has a period of at most 40 ms")
        .silent(cellPattern("oneSlot = FFFC", "kHz15"))
        .silent(cellPattern("twoSlots = FFFFFFF0", "kHz30"))
        .fires(AT_PATTERN("0") "patternType.bitmaps.resourceBlocks",
               cellPattern("oneSlot = FFFC", "kHz30") +
                   AT_PATTERN("0") "patternType.bitmaps.resourceBlocks = " + resourceBlock(273))
        .as(RRC_RULE_WARNING)
        .saying("bit 273 set, but there are RB 0..272")
        .silent(cellPattern("oneSlot = FFFC", "kHz30") +
                AT_PATTERN("0") "patternType.bitmaps.resourceBlocks = " + resourceBlock(272))
        .fires(AT_PATTERN("0") "rateMatchPatternId", commonPatterns() + cellPattern("oneSlot = FFFC", "kHz30"))
        .saying("5 patterns, but a cell has at most 4")
        .silent(commonPatterns());

#define CRS(at)                                                                                                        \
    at "carrierFreqDL = 1000\n" at "carrierBandwidthDL = n50\n" at "nrofCRS-Ports = n2\n" at "v-Shift = n0\n"
    table.rule("pdsch-lte-crs")
        .bad(AT_CELL "lte-CRS-ToMatchAround.setup")
        .good()
        .silent(table.rule("pdsch-lte-crs").example(&RrcRule::bad))
        .with(inDelta)
        .fires(AT_CELL "lte-CRS-ToMatchAround.setup",
               CRS(AT_COMMON "lte-CRS-ToMatchAround.setup.") CRS(AT_CELL "lte-CRS-ToMatchAround.setup.") AT_CELL
               "lte-CRS-ToMatchAround.setup.v-Shift = n1")
        .with(inDelta)
        .saying("the common configuration has one")
        .silent(CRS(AT_COMMON "lte-CRS-ToMatchAround.setup.") CRS(AT_CELL "lte-CRS-ToMatchAround.setup."))
        .with(inDelta);

    table.rule("pdsch-zp-sets")
        .bad(AT_PDSCH "p-ZP-CSI-RS-ResourceSet.setup.zp-CSI-RS-ResourceSetId")
        .good()
        .fires(AT_PDSCH "p-ZP-CSI-RS-ResourceSet.setup.zp-CSI-RS-ResourceIdList[0]",
               good("pdsch-zp-sets", AT_PDSCH "p-ZP-CSI-RS-ResourceSet.setup.zp-CSI-RS-ResourceIdList[0] = 1"))
        .fires(AT_PDSCH "zp-CSI-RS-ResourceToAddModList[0].periodicityAndOffset",
               good("pdsch-zp-sets", AT_PDSCH "zp-CSI-RS-ResourceToAddModList[0].periodicityAndOffset = absent"))
        .fires(AT_PDSCH "aperiodic-ZP-CSI-RS-ResourceSetsToAddModList[0].zp-CSI-RS-ResourceSetId",
               good("pdsch-zp-sets",
                    AT_PDSCH "p-ZP-CSI-RS-ResourceSet = absent\n" AT_PDSCH
                             "zp-CSI-RS-ResourceToAddModList[0].periodicityAndOffset = absent\n" AT_PDSCH
                             "aperiodic-ZP-CSI-RS-ResourceSetsToAddModList[0].zp-CSI-RS-ResourceSetId = 4\n" AT_PDSCH
                             "aperiodic-ZP-CSI-RS-ResourceSetsToAddModList[0].zp-CSI-RS-ResourceIdList[0] = 0"))
        .fires(AT_PDSCH "zp-CSI-RS-ResourceToAddModList[0].periodicityAndOffset",
               good("pdsch-zp-sets",
                    AT_PDSCH "p-ZP-CSI-RS-ResourceSet = absent\n" AT_PDSCH
                             "aperiodic-ZP-CSI-RS-ResourceSetsToAddModList[0].zp-CSI-RS-ResourceSetId = 3\n" AT_PDSCH
                             "aperiodic-ZP-CSI-RS-ResourceSetsToAddModList[0].zp-CSI-RS-ResourceIdList[0] = 0"));

    table.rule("pdsch-ptrs")
        .bad(AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeA.setup.phaseTrackingRS.setup.timeDensity")
        .good()
        .silent(std::string(rrcRuleById("pdsch-ptrs")->bad) + "\n" AT_PDSCH "mcs-Table = absent")
        .fires(AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeA.setup.phaseTrackingRS.setup.timeDensity",
               good("pdsch-ptrs",
                    AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeA.setup.phaseTrackingRS.setup.timeDensity[0] = 21"))
        .fires(AT_PUSCH "dmrs-UplinkForPUSCH-MappingTypeA.setup.phaseTrackingRS.setup.transformPrecoderDisabled."
                        "frequencyDensity",
               AT_PUSCH "dmrs-UplinkForPUSCH-MappingTypeA.setup.phaseTrackingRS.setup.transformPrecoderDisabled."
                        "frequencyDensity[0] = 9\n" AT_PUSCH
                        "dmrs-UplinkForPUSCH-MappingTypeA.setup.phaseTrackingRS.setup.transformPrecoderDisabled."
                        "frequencyDensity[1] = 8\n" AT_PUSCH
                        "dmrs-UplinkForPUSCH-MappingTypeA.setup.phaseTrackingRS.setup.transformPrecoderDisabled."
                        "maxNrofPorts = n1\n" AT_PUSCH
                        "dmrs-UplinkForPUSCH-MappingTypeA.setup.phaseTrackingRS.setup.transformPrecoderDisabled."
                        "ptrs-Power = p00");

    table.rule("pdsch-sps")
        .bad(AT_DL "bwp-Dedicated.sps-Config.setup.n1PUCCH-AN")
        .saying("4, but the resource is not of format 0 or 1")
        .good()
        .fires(AT_DL "bwp-Dedicated.sps-Config.setup.n1PUCCH-AN",
               good("pdsch-sps", AT_DL "bwp-Dedicated.sps-Config.setup.n1PUCCH-AN = 9"))
        .fires(AT_DL "bwp-Dedicated.sps-Config.setup.nrofHARQ-Processes",
               good("pdsch-sps", AT_CELL "pdsch-ServingCellConfig.setup.nrofHARQ-ProcessesForPDSCH = n6"))
        .silent(good("pdsch-sps", AT_CELL "pdsch-ServingCellConfig.setup.nrofHARQ-ProcessesForPDSCH = absent"))
        .undecided(good("pdsch-sps", AT_DL "bwp-Dedicated.sps-Config.setup.mcs-Table = qam64LowSE"))
        .fires(AT_DL "bwp-Dedicated.sps-Config.setup.mcs-Table",
               good("pdsch-sps", AT_DL "bwp-Dedicated.sps-Config.setup.mcs-Table = qam64LowSE"))
        .with(ableOfNothing)
        .fires(AT_SCELL_CELL "initialDownlinkBWP.sps-Config.setup.periodicity",
               std::string(ADD_SCELL) + good("pdsch-sps", AT_SCELL_CELL
                                             "initialDownlinkBWP.sps-Config.setup.periodicity = ms10\n" AT_SCELL_CELL
                                             "initialDownlinkBWP.sps-Config.setup.nrofHARQ-Processes = 1"))
        .as(RRC_RULE_WARNING);

    table.rule("pdsch-pucch-cell")
        .bad(AT_CELL "pdsch-ServingCellConfig.setup.pucch-Cell")
        .good()
        .silent(ADD_SCELL AT_SCELL_CELL "pdsch-ServingCellConfig.setup.pucch-Cell = 0")
        .fires(AT_SCELL_CELL "pdsch-ServingCellConfig.setup.pucch-Cell",
               ADD_SCELL AT_SCELL_CELL "pdsch-ServingCellConfig.setup.pucch-Cell = 1")
        .saying("1, but cell 1 has no PUCCH")
        .fires(AT_SCELL_CELL "pdsch-ServingCellConfig.setup.pucch-Cell",
               ADD_SCELL AT_SCELL_CELL "pdsch-ServingCellConfig.setup.pucch-Cell = 2")
        .fires(AT_SCELL_CELL "pdsch-ServingCellConfig.setup.pucch-Cell", ADD_SCELL_WITH_UPLINK AT_SCELL_CELL
               "uplinkConfig.uplinkBWP-ToAddModList[0].bwp-Dedicated.pucch-Config.setup.dl-DataToUL-ACK[0] = "
               "8\n" AT_SCELL_CELL "pdsch-ServingCellConfig.setup.pucch-Cell = 0")
        .saying("0, but the cell has a PUCCH of its own")
        .fires(AT_SCELL_CELL "pdsch-ServingCellConfig.setup.pucch-Cell",
               "sCellToAddModList[0].sCellIndex = 1\n" AT_SCELL_CELL "tag-Id = 0\n" AT_SCELL_CELL
               "pdsch-ServingCellConfig.setup.pucch-Cell = 0")
        .after(ADD_SCELL)
        .saying("this one was before")
        .fires(AT_SCELL_CELL "pdsch-ServingCellConfig.setup.pucch-Cell",
               ADD_SCELL AT_SCELL_CELL "pdsch-ServingCellConfig.setup.pucch-Cell = 3")
        .with(inDelta)
        .as(RRC_RULE_NOTICE);
}

} // namespace test
