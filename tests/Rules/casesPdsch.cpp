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
                        "prb-BundlingType.dynamicBundling.bundleSizeSet2 = n4\n" AT_PDSCH "vrb-ToPRB-Interleaver = n2");

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
                       "rateMatchPatternToAddModList[0].dummy = dynamic");

    table.rule("pdsch-lte-crs").bad(AT_CELL "lte-CRS-ToMatchAround.setup").good();

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
               ADD_SCELL AT_SCELL_CELL "pdsch-ServingCellConfig.setup.pucch-Cell = 2");
}

} // namespace test
