#include "ruleCases.h"

namespace test
{
namespace
{

#define AT_TYPE1 AT_GRANT "rrc-ConfiguredUplinkGrant."
#define AT_TIMES AT_PUSCH "pusch-TimeDomainAllocationList.setup[0]."
#define AT_MAPPING AT_PUSCH "pusch-PowerControl.sri-PUSCH-MappingToAddModList[0]."
#define AT_PATHLOSS AT_PUSCH "pusch-PowerControl.pathlossReferenceRSToAddModList[0]."
#define AT_DMRS_A AT_PUSCH "dmrs-UplinkForPUSCH-MappingTypeA.setup."
#define AT_DMRS_B AT_PUSCH "dmrs-UplinkForPUSCH-MappingTypeB.setup."
#define SAME_DMRS AT_DMRS_B "transformPrecodingDisabled.scramblingID0 = 42\n"
#define AT_MSG3 AT_RACH "msg3-transformPrecoder"
#define AT_SRS_SET AT_SRS "srs-ResourceSetToAddModList[0]."
#define AT_BETAS AT_PUSCH "uci-OnPUSCH.setup.betaOffsets.semiStatic."
#define NO_COMMON AT_SYNC "spCellConfigCommon = absent\n"

// A second sounding resource for codebook.
constexpr const char* twoResources =
    AT_SRS_SET "srs-ResourceIdList[1] = 1\n" AT_SRS "srs-ResourceToAddModList[1].srs-ResourceId = 1\n" AT_SRS
               "srs-ResourceToAddModList[1].nrofSRS-Ports = ports2\n" AT_SRS
               "srs-ResourceToAddModList[1].transmissionComb.n2.combOffset-n2 = 1\n" AT_SRS
               "srs-ResourceToAddModList[1].transmissionComb.n2.cyclicShift-n2 = 0\n" AT_SRS
               "srs-ResourceToAddModList[1].resourceMapping.startPosition = 0\n" AT_SRS
               "srs-ResourceToAddModList[1].resourceMapping.nrofSymbols = n1\n" AT_SRS
               "srs-ResourceToAddModList[1].resourceMapping.repetitionFactor = n1\n" AT_SRS
               "srs-ResourceToAddModList[1].freqDomainPosition = 0\n" AT_SRS
               "srs-ResourceToAddModList[1].freqDomainShift = 0\n" AT_SRS
               "srs-ResourceToAddModList[1].freqHopping.c-SRS = 17\n" AT_SRS
               "srs-ResourceToAddModList[1].freqHopping.b-SRS = 0\n" AT_SRS
               "srs-ResourceToAddModList[1].freqHopping.b-hop = 3\n" AT_SRS
               "srs-ResourceToAddModList[1].groupOrSequenceHopping = neither\n" AT_SRS
               "srs-ResourceToAddModList[1].resourceType.periodic.periodicityAndOffset-p.sl40 = 19\n" AT_SRS
               "srs-ResourceToAddModList[1].sequenceId = 42\n";

std::string example(const char* rule, const char* RrcRule::*which)
{
    return rrcRuleById(rule)->*which;
}

const std::string typeOne = example("pusch-cg-type1", &RrcRule::good) + "\n";
const std::string typeTwo = example("pusch-cg-repk-rv", &RrcRule::good) + "\n";

void ofTransmission(CaseTable& table)
{
    const std::string extended =
        "spCellConfig.reconfigurationWithSync = absent\n" AT_CELL "downlinkBWP-ToAddModList = absent\n" AT_UL
        "bwp-Common.genericParameters.subcarrierSpacing = kHz60\n" AT_UL
        "bwp-Common.genericParameters.cyclicPrefix = extended\n" AT_UL "bwp-Dedicated.pucch-Config = absent\n" AT_UL
        "bwp-Dedicated.srs-Config = absent\n";
    table.rule("pusch-tdra")
        .bad(AT_TIMES "startSymbolAndLength")
        .saying("53: 12 symbols from symbol 2 on, but mapping type A begins at symbol 0")
        .good()
        .fires(AT_TIMES "startSymbolAndLength", AT_TIMES "k2 = 4\n" AT_TIMES "startSymbolAndLength = 53")
        .silent(AT_TIMES "k2 = 4\n" AT_TIMES "startSymbolAndLength = 27")
        .fires(AT_SUL_BWP "pusch-Config.setup.pusch-TimeDomainAllocationList.setup[0].startSymbolAndLength",
               EXAMPLE_SUL AT_SUL_BWP "pusch-Config.setup.pusch-TimeDomainAllocationList.setup[0].k2 = 4\n" AT_SUL_BWP
                                      "pusch-Config.setup.pusch-TimeDomainAllocationList.setup[0].mappingType = "
                                      "typeA\n" AT_SUL_BWP "pusch-Config.setup.pusch-TimeDomainAllocationList.setup[0]."
                                      "startSymbolAndLength = 53")
        // SLIV 105 is none, 104 is symbol 13 alone.
        .fires(AT_TIMES "startSymbolAndLength", AT_TIMES "startSymbolAndLength = 105")
        .fires(AT_TIMES "startSymbolAndLength", AT_TIMES "mappingType = typeB\n" AT_TIMES "startSymbolAndLength = 127")
        .silent(AT_TIMES "mappingType = typeB\n" AT_TIMES "startSymbolAndLength = 13") // symbol 13
        .silent(AT_TIMES "startSymbolAndLength = 42")                                  // 4 symbols
        .fires(AT_TIMES "startSymbolAndLength", AT_TIMES "startSymbolAndLength = 28")  // 3 symbols
        .silent(AT_TIMES "mappingType = typeB\n" AT_TIMES "startSymbolAndLength = 28")
        .fires(AT_COMMON_UL
               "initialUplinkBWP.pusch-ConfigCommon.setup.pusch-TimeDomainAllocationList[0].startSymbolAndLength",
               AT_COMMON_UL
               "initialUplinkBWP.pusch-ConfigCommon.setup.pusch-TimeDomainAllocationList[0].startSymbolAndLength = 112")
        .fires(AT_TIMES "startSymbolAndLength", extended)
        .with(inDelta)
        .times(2)
        .saying("ends in a slot of 12 symbols")
        .silent(extended + AT_TIMES "startSymbolAndLength = 55\n" AT_PUSCH
                                    "pusch-TimeDomainAllocationList.setup[1].startSymbolAndLength = 55")
        .with(inDelta);

    table.rule("pusch-codebook-cond")
        .bad(AT_PUSCH "codebookSubset")
        .saying("absent, but txConfig is codebook")
        .good()
        .fires(AT_PUSCH "maxRank", AT_PUSCH "maxRank = absent")
        .fires(AT_PUSCH "codebookSubset", AT_PUSCH "txConfig = absent\n" AT_PUSCH "maxRank = absent")
        // One slip is told once.
        .fires(AT_PUSCH "txConfig", AT_PUSCH "txConfig = absent")
        .saying("absent, but codebookSubset and maxRank go with codebook")
        .fires(AT_PUSCH "txConfig", AT_PUSCH "codebookSubset = absent\n" AT_PUSCH "maxRank = absent")
        .saying("there is neither codebookSubset nor maxRank")
        .silent(AT_PUSCH "codebookSubset = absent\n" AT_PUSCH "maxRank = absent\n" AT_PUSCH "txConfig = absent")
        .fires(AT_PUSCH "maxRank", AT_PUSCH "txConfig = absent\n" AT_PUSCH "codebookSubset = absent")
        .fires(AT_PUSCH "codebookSubset", AT_PUSCH "codebookSubset = absent")
        .with(inDelta);

    table.rule("pusch-maxrank")
        .bad(AT_PUSCH "maxRank")
        .saying("1, but maxMIMO-Layers is 2")
        .good()
        .silent(AT_PUSCH "maxRank = 2")
        .fires(AT_PUSCH "maxRank", AT_PUSCH "maxRank = 3")
        .as(RRC_RULE_WARNING)
        .saying("have 2 ports")
        .silent(AT_PUSCH "maxRank = 3\n" AT_SRS "srs-ResourceToAddModList = absent\n" AT_SRS_SET
                         "srs-ResourceIdList = absent")
        .with(inDelta);

    table.rule("pusch-subset-ports")
        .bad(AT_PUSCH "codebookSubset")
        .good()
        .silent(AT_PUSCH "codebookSubset = partialAndNonCoherent\n" AT_SRS
                         "srs-ResourceToAddModList[0].nrofSRS-Ports = ports4")
        .undecided(AT_PUSCH "codebookSubset = partialAndNonCoherent\n" AT_SRS_SET "srs-ResourceIdList = absent")
        .with(inDelta);

    table.rule("pusch-txconfig-srs")
        .bad(AT_PUSCH "txConfig")
        .saying("codebook, but no sounding resource set")
        .good()
        .fires(AT_PUSCH "txConfig",
               AT_PUSCH "txConfig = nonCodebook\n" AT_PUSCH "codebookSubset = absent\n" AT_PUSCH "maxRank = absent")
        .silent(AT_PUSCH "txConfig = nonCodebook\n" AT_PUSCH "codebookSubset = absent\n" AT_PUSCH
                         "maxRank = absent\n" AT_SRS_SET "usage = nonCodebook\n" AT_SRS
                         "srs-ResourceToAddModList[0].nrofSRS-Ports = port1")
        .fires(AT_PUSCH "txConfig", AT_UL "bwp-Dedicated.srs-Config = absent")
        .silent(AT_UL "bwp-Dedicated.srs-Config = absent\n" AT_PUSCH "txConfig = absent\n" AT_PUSCH
                      "codebookSubset = absent\n" AT_PUSCH "maxRank = absent")
        .fires(AT_PUSCH "txConfig", AT_UL "bwp-Dedicated.srs-Config = absent")
        .with(inDelta)
        .as(RRC_RULE_NOTICE);

    table.rule("pusch-dfts")
        .bad(AT_PUSCH "resourceAllocation")
        .saying("transform precoding is enabled")
        .good()
        .fires(AT_PUSCH "resourceAllocation",
               AT_PUSCH "transformPrecoder = enabled\n" AT_PUSCH "resourceAllocation = dynamicSwitch")
        .as(RRC_RULE_WARNING)
        .silent(AT_PUSCH "resourceAllocation = dynamicSwitch")
        .fires(AT_DMRS_A "dmrs-Type", AT_PUSCH "transformPrecoder = enabled\n" AT_DMRS_A "dmrs-Type = type2")
        .silent(AT_DMRS_A "dmrs-Type = type2")
        .fires(AT_PUSCH "maxRank", AT_PUSCH "transformPrecoder = enabled\n" AT_PUSCH "maxRank = 2")
        .as(RRC_RULE_WARNING)
        // Absent, it is as Msg3 has it.
        .fires(AT_PUSCH "resourceAllocation", AT_PUSCH "transformPrecoder = absent\n" AT_MSG3 " = enabled\n" AT_PUSCH
                                                       "resourceAllocation = resourceAllocationType0")
        .silent(AT_PUSCH "transformPrecoder = absent\n" AT_PUSCH "resourceAllocation = resourceAllocationType0")
        .undecided(NO_COMMON AT_PUSCH "transformPrecoder = absent\n" AT_PUSCH
                                      "resourceAllocation = resourceAllocationType0")
        .fires(AT_PUSCH "resourceAllocation", NO_COMMON AT_PUSCH "transformPrecoder = absent\n" AT_PUSCH
                                                                 "resourceAllocation = resourceAllocationType0")
        .with(
            [](RrcRuleContext& known)
            {
                static RACH_ConfigCommon rach;
                rach.m.msg3_transformPrecoderPresent = 1;
                rach.rach_ConfigGeneric.prach_ConfigurationIndex = 159;
                known.rachCommon = &rach;
            })
        .fires(AT_PUSCH "tp-pi2BPSK", AT_PUSCH "tp-pi2BPSK = enabled")
        .as(RRC_RULE_WARNING)
        .silent(AT_PUSCH "tp-pi2BPSK = enabled\n" AT_PUSCH "transformPrecoder = enabled")
        .silent(AT_PUSCH "tp-pi2BPSK = enabled\n" AT_MSG3 " = enabled")
        .fires(AT_GRANT "resourceAllocation", typeTwo + AT_GRANT "transformPrecoder = enabled\n" AT_GRANT
                                                                 "resourceAllocation = resourceAllocationType0")
        .fires(AT_GRANT "cg-DMRS-Configuration.dmrs-Type",
               typeTwo + AT_GRANT "transformPrecoder = enabled\n" AT_GRANT "cg-DMRS-Configuration = absent\n" AT_GRANT
                                  "cg-DMRS-Configuration.dmrs-Type = type2")
        .silent(typeTwo + AT_GRANT "transformPrecoder = disabled\n" AT_GRANT
                                   "resourceAllocation = resourceAllocationType0");
}

void ofPower(CaseTable& table)
{
    table.rule("pusch-power-refs")
        .bad(AT_MAPPING "sri-P0-PUSCH-AlphaSetId")
        .good()
        .fires(AT_MAPPING "sri-PUSCH-PathlossReferenceRS-Id", AT_MAPPING "sri-PUSCH-PathlossReferenceRS-Id = 1")
        .silent(AT_PUSCH "pusch-PowerControl.pathlossReferenceRSToAddModList = absent")
        .fires(AT_PATHLOSS "referenceSignal.csi-RS-Index",
               AT_PATHLOSS "referenceSignal = absent\n" AT_PATHLOSS "referenceSignal.csi-RS-Index = 6")
        .saying("0..5")
        .silent(AT_PATHLOSS "referenceSignal = absent\n" AT_PATHLOSS "referenceSignal.csi-RS-Index = 3")
        .fires(AT_MAPPING "sri-P0-PUSCH-AlphaSetId", AT_PUSCH "pusch-PowerControl.p0-AlphaSets = absent")
        .fires(AT_MAPPING "sri-P0-PUSCH-AlphaSetId", AT_PUSCH "pusch-PowerControl.p0-AlphaSets = absent")
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        // The sets are replaced as a whole.
        .fires(AT_MAPPING "sri-P0-PUSCH-AlphaSetId", AT_MAPPING "sri-P0-PUSCH-AlphaSetId = 1")
        .with(inDelta)
        .fires(AT_GRANT "p0-PUSCH-Alpha", typeTwo + AT_GRANT "p0-PUSCH-Alpha = 1")
        .fires(AT_TYPE1 "pathlossReferenceIndex", typeOne + AT_TYPE1 "pathlossReferenceIndex = 1")
        .silent(typeOne)
        .fires(AT_PUSCH "pusch-PowerControl.sri-PUSCH-MappingToAddModList", twoResources)
        .as(RRC_RULE_WARNING)
        .saying("no mapping 1, but the SRI field of a grant has the values 0..1")
        .silent(std::string(twoResources) + AT_PUSCH
                "pusch-PowerControl.sri-PUSCH-MappingToAddModList[1].sri-PUSCH-PowerControlId = 1\n" AT_PUSCH
                "pusch-PowerControl.sri-PUSCH-MappingToAddModList[1].sri-PUSCH-PathlossReferenceRS-Id = "
                "0\n" AT_PUSCH
                "pusch-PowerControl.sri-PUSCH-MappingToAddModList[1].sri-P0-PUSCH-AlphaSetId = 0\n" AT_PUSCH
                "pusch-PowerControl.sri-PUSCH-MappingToAddModList[1].sri-PUSCH-ClosedLoopIndex = i0")
        .silent(std::string(twoResources) + AT_PUSCH "pusch-PowerControl.sri-PUSCH-MappingToAddModList = absent");

    table.rule("pusch-two-loops")
        .bad(AT_MAPPING "sri-PUSCH-ClosedLoopIndex")
        .saying("i1, but twoPUSCH-PC-AdjustmentStates is absent")
        .good()
        .fires(AT_GRANT "powerControlLoopToUse", typeTwo + AT_GRANT "powerControlLoopToUse = n1")
        .silent(typeTwo + AT_GRANT "powerControlLoopToUse = n1\n" AT_PUSCH
                                   "pusch-PowerControl.twoPUSCH-PC-AdjustmentStates = twoStates")
        .fires(AT_SRS_SET "srs-PowerControlAdjustmentStates",
               AT_SRS_SET "srs-PowerControlAdjustmentStates = sameAsFci2")
        .silent(AT_SRS_SET "srs-PowerControlAdjustmentStates = separateClosedLoop")
        .undecided(AT_SRS_SET "srs-PowerControlAdjustmentStates = sameAsFci2\n" AT_PUSCH "pusch-PowerControl = absent")
        .with(inDelta)
        .fires(AT_SRS_SET "srs-PowerControlAdjustmentStates",
               AT_SRS_SET "srs-PowerControlAdjustmentStates = sameAsFci2\n" AT_PUSCH "pusch-PowerControl = absent");

    table.rule("pusch-p0-even")
        .bad(AT_PUSCH "pusch-PowerControl.p0-NominalWithoutGrant")
        .saying("-91, but only even values are used: -92 or -90")
        .good()
        .fires(AT_COMMON_UL "initialUplinkBWP.pusch-ConfigCommon.setup.p0-NominalWithGrant",
               AT_COMMON_UL "initialUplinkBWP.pusch-ConfigCommon.setup.p0-NominalWithGrant = 23")
        .silent(AT_COMMON_UL "initialUplinkBWP.pusch-ConfigCommon.setup.p0-NominalWithGrant = 24");
}

void ofDetails(CaseTable& table)
{
    // 49 and 50 resource blocks from the first on: 275 * 48, 275 * 49.
    const std::string two =
        AT_PUSCH "frequencyHopping = interSlot\n" AT_PUSCH "frequencyHoppingOffsetLists[0] = 10\n" AT_PUSCH
                 "frequencyHoppingOffsetLists[1] = 20\n";
    const std::string four =
        two + AT_PUSCH "frequencyHoppingOffsetLists[2] = 30\n" AT_PUSCH "frequencyHoppingOffsetLists[3] = 40\n";
    table.rule("pusch-hop-offsets")
        .bad(AT_PUSCH "frequencyHoppingOffsetLists")
        .saying("2 elements, but a bandwidth part of 273 resource blocks has 4")
        .good()
        .fires(AT_PUSCH "frequencyHoppingOffsetLists", two + AT_PUSCH "frequencyHoppingOffsetLists[2] = 30")
        .saying("3 elements, but a grant chooses among 2 or 4")
        .fires(AT_PUSCH "frequencyHoppingOffsetLists", AT_PUSCH "frequencyHoppingOffsetLists[0] = 30")
        .fires(AT_PUSCH "frequencyHoppingOffsetLists[3]", four + AT_PUSCH "frequencyHoppingOffsetLists[3] = 273")
        .as(RRC_RULE_WARNING)
        .silent(four + AT_PUSCH "frequencyHoppingOffsetLists[3] = 272")
        .fires(AT_PUSCH "frequencyHoppingOffsetLists", AT_PUSCH "frequencyHopping = intraSlot")
        .as(RRC_RULE_WARNING)
        .silent(AT_PUSCH "frequencyHopping = intraSlot")
        .with(inDelta)
        .undecided(two + AT_UL "bwp-Common = absent")
        .with(inDelta);

    table.rule("pusch-dmrs-ab")
        .bad(AT_DMRS_B "transformPrecodingDisabled")
        .good()
        .fires(AT_DMRS_B "transformPrecodingDisabled", AT_DMRS_B "maxLength = len2")
        .fires(AT_DMRS_B "transformPrecodingEnabled",
               SAME_DMRS AT_DMRS_B "transformPrecodingEnabled.nPUSCH-Identity = 1")
        .fires(AT_DMRS_B "transformPrecodingEnabled",
               SAME_DMRS AT_DMRS_B "transformPrecodingEnabled.nPUSCH-Identity = 1\n" AT_DMRS_A
                                   "transformPrecodingEnabled.nPUSCH-Identity = 2")
        .silent(SAME_DMRS AT_DMRS_B "transformPrecodingEnabled.nPUSCH-Identity = 1\n" AT_DMRS_A
                                    "transformPrecodingEnabled.nPUSCH-Identity = 1")
        .fires(AT_DMRS_B "phaseTrackingRS",
               SAME_DMRS AT_DMRS_B "phaseTrackingRS.setup.transformPrecoderDisabled.maxNrofPorts = n1\n" AT_DMRS_B
                                   "phaseTrackingRS.setup.transformPrecoderDisabled.ptrs-Power = p00")
        .silent(SAME_DMRS AT_DMRS_B "phaseTrackingRS.setup.transformPrecoderDisabled.maxNrofPorts = n1\n" AT_DMRS_B
                                    "phaseTrackingRS.setup.transformPrecoderDisabled.ptrs-Power = p00")
        .with(inDelta)
        .silent(SAME_DMRS AT_DMRS_B "phaseTrackingRS.setup.transformPrecoderDisabled.maxNrofPorts = n1\n" AT_DMRS_B
                                    "phaseTrackingRS.setup.transformPrecoderDisabled.ptrs-Power = p00\n" AT_DMRS_A
                                    "phaseTrackingRS.setup.transformPrecoderDisabled.maxNrofPorts = n1\n" AT_DMRS_A
                                    "phaseTrackingRS.setup.transformPrecoderDisabled.ptrs-Power = p00")
        .fires(AT_DMRS_B "phaseTrackingRS",
               SAME_DMRS AT_DMRS_B "phaseTrackingRS.setup.transformPrecoderDisabled.maxNrofPorts = n1\n" AT_DMRS_B
                                   "phaseTrackingRS.setup.transformPrecoderDisabled.ptrs-Power = p00\n" AT_DMRS_A
                                   "phaseTrackingRS.setup.transformPrecoderDisabled.maxNrofPorts = n1\n" AT_DMRS_A
                                   "phaseTrackingRS.setup.transformPrecoderDisabled.ptrs-Power = p00\n" AT_DMRS_A
                                   "phaseTrackingRS.setup.transformPrecoderDisabled.timeDensity[0] = 1\n" AT_DMRS_A
                                   "phaseTrackingRS.setup.transformPrecoderDisabled.timeDensity[1] = 2\n" AT_DMRS_A
                                   "phaseTrackingRS.setup.transformPrecoderDisabled.timeDensity[2] = 3");

    table.rule("pusch-group-seq-hop")
        .bad(AT_DMRS_A "transformPrecodingEnabled.sequenceHopping")
        .good()
        .silent(AT_DMRS_A "transformPrecodingEnabled.sequenceHopping = enabled")
        .fires(AT_GRANT "cg-DMRS-Configuration.transformPrecodingEnabled.sequenceHopping",
               typeTwo + AT_GRANT "cg-DMRS-Configuration = absent\n" AT_GRANT
                                  "cg-DMRS-Configuration.transformPrecodingEnabled.sequenceHopping = enabled\n" AT_UL
                                  "bwp-Common.pusch-ConfigCommon.setup.groupHoppingEnabledTransformPrecoding = enabled")
        .undecided(AT_DMRS_A "transformPrecodingEnabled.sequenceHopping = enabled")
        .with(inDelta);

    table.rule("pusch-uci")
        .bad(AT_BETAS "betaOffsetACK-Index1")
        .saying("16, but the table ends at 15")
        .good()
        .fires(AT_BETAS "betaOffsetCSI-Part1-Index1", AT_BETAS "betaOffsetCSI-Part1-Index1 = 19")
        .fires(AT_BETAS "betaOffsetCSI-Part2-Index2", AT_BETAS "betaOffsetCSI-Part2-Index2 = 31")
        .fires(AT_BETAS "betaOffsetACK-Index3", AT_BETAS "betaOffsetACK-Index3 = 20")
        .silent(AT_BETAS "betaOffsetCSI-Part1-Index1 = 18\n" AT_BETAS "betaOffsetCSI-Part2-Index1 = 18")
        .fires(AT_GRANT "uci-OnPUSCH.setup",
               typeOne + AT_GRANT "uci-OnPUSCH.setup.dynamic[0].betaOffsetACK-Index1 = 15")
        .silent(typeTwo + AT_GRANT "uci-OnPUSCH.setup.dynamic[0].betaOffsetACK-Index1 = 15")
        .fires(AT_GRANT "uci-OnPUSCH.setup.dynamic[0].betaOffsetACK-Index1",
               typeTwo + AT_GRANT "uci-OnPUSCH.setup.dynamic[0].betaOffsetACK-Index1 = 16")
        .fires(AT_GRANT "uci-OnPUSCH.setup.semiStatic.betaOffsetACK-Index2",
               typeOne + AT_GRANT "uci-OnPUSCH.setup.semiStatic.betaOffsetACK-Index2 = 16");
}

void ofGrants(CaseTable& table)
{
    table.rule("pusch-cg-period")
        .bad(AT_GRANT "periodicity")
        .saying("sym512x14, but 30 kHz with normal cyclic prefix does not have it")
        .good()
        .fires(AT_GRANT "periodicity", typeTwo + AT_GRANT "periodicity = sym1x12")
        .fires(AT_GRANT "periodicity", typeTwo + AT_GRANT "periodicity = sym6")
        .silent(typeTwo + AT_GRANT "periodicity = sym2\n" AT_GRANT "repK = n1\n" AT_GRANT "repK-RV = absent")
        .fires(AT_GRANT "repK", typeTwo + AT_GRANT "periodicity = sym1x14")
        .saying("2 repetitions, one in each slot, but the period is 14 symbols")
        .silent(typeTwo + AT_GRANT "periodicity = sym2x14")
        .fires(AT_GRANT "repK", typeTwo + AT_GRANT "repK = n8\n" AT_GRANT "periodicity = sym5x14")
        .silent(typeTwo + AT_GRANT "repK = n8\n" AT_GRANT "periodicity = sym8x14")
        .undecided(typeTwo + AT_UL "bwp-Common = absent")
        .with(inDelta);

    table.rule("pusch-cg-repk-rv")
        .bad(AT_GRANT "repK-RV")
        .good()
        .fires(AT_GRANT "repK-RV", typeTwo + AT_GRANT "repK = n1")
        .silent(typeTwo + AT_GRANT "repK = n1\n" AT_GRANT "repK-RV = absent");

    // 1374: RB 0..271.
    const std::string blocks272 =
        AT_DL "bwp-Common.genericParameters.locationAndBandwidth = 1374\n" AT_UL
              "bwp-Common.genericParameters.locationAndBandwidth = 1374\n" AT_PUCCH
              "resourceToAddModList[0].secondHopPRB = 271\n" AT_GRANT "resourceAllocation = resourceAllocationType0\n";
    table.rule("pusch-cg-type1")
        .bad(AT_TYPE1 "mcsAndTBS")
        .good()
        .fires(AT_GRANT "resourceAllocation", typeOne + AT_GRANT "resourceAllocation = dynamicSwitch")
        .silent(typeTwo + AT_GRANT "resourceAllocation = dynamicSwitch")
        .fires(AT_TYPE1 "timeDomainAllocation", typeOne + AT_TYPE1 "timeDomainAllocation = 2")
        .saying("2, but the table in force has the rows 0..1")
        .silent(typeOne + AT_TYPE1 "timeDomainAllocation = 1")
        // Without a list the bandwidth part has the default table.
        .silent(typeOne + AT_TYPE1 "timeDomainAllocation = 15\n" AT_PUSCH "pusch-TimeDomainAllocationList = absent")
        .fires(AT_TYPE1 "timeDomainAllocation",
               typeOne + AT_TYPE1
                   "timeDomainAllocation = 1\n" AT_PUSCH "pusch-TimeDomainAllocationList = absent\n" AT_UL
                   "bwp-Common.pusch-ConfigCommon.setup.pusch-TimeDomainAllocationList[0].mappingType = "
                   "typeB\n" AT_UL "bwp-Common.pusch-ConfigCommon.setup.pusch-TimeDomainAllocationList[0]"
                   ".startSymbolAndLength = 0")
        .undecided(typeOne + AT_TYPE1 "timeDomainAllocation = 1\n" AT_PUSCH "pusch-TimeDomainAllocationList = absent")
        .with(inDelta)
        .fires(AT_TYPE1 "dmrs-SeqInitialization", typeOne + AT_TYPE1 "dmrs-SeqInitialization = absent")
        .saying("absent, but transform precoding is disabled")
        .fires(AT_TYPE1 "dmrs-SeqInitialization", typeOne + AT_GRANT "transformPrecoder = enabled")
        .silent(typeOne + AT_GRANT "transformPrecoder = enabled\n" AT_TYPE1 "dmrs-SeqInitialization = absent")
        .fires(AT_TYPE1 "frequencyHoppingOffset", typeOne + AT_GRANT "frequencyHopping = intraSlot")
        .silent(typeOne + AT_GRANT "frequencyHopping = intraSlot\n" AT_TYPE1 "frequencyHoppingOffset = 100")
        .fires(AT_TYPE1 "frequencyHoppingOffset", typeOne + AT_TYPE1 "frequencyHoppingOffset = 100")
        .as(RRC_RULE_WARNING)
        .fires(AT_TYPE1 "timeDomainOffset", typeOne + AT_TYPE1 "timeDomainOffset = 10")
        .as(RRC_RULE_NOTICE)
        .saying("10, but the period is 10 slots")
        // Of 273 blocks the last value is 273 * 274 / 2 - 1 = 37400; the octets hold 18 bits.
        .silent(typeOne + AT_TYPE1 "frequencyDomainAllocation = 248600")
        .fires(AT_TYPE1 "frequencyDomainAllocation", typeOne + AT_TYPE1 "frequencyDomainAllocation = 248640")
        .saying("37401, but that names no resource blocks of a bandwidth part of 273")
        // Of 273 blocks there are 18 groups of 16.
        .silent(typeOne + AT_GRANT "resourceAllocation = resourceAllocationType0\n" AT_TYPE1
                                   "frequencyDomainAllocation = 800000")
        .fires(AT_TYPE1 "frequencyDomainAllocation", typeOne + AT_GRANT "resourceAllocation = resourceAllocationType0")
        .saying("no resource block group is chosen")
        // Of 272 blocks there are 17; the first bit is before them.
        .fires(AT_TYPE1 "frequencyDomainAllocation",
               typeOne + blocks272 + AT_TYPE1 "frequencyDomainAllocation = 800040")
        .as(RRC_RULE_WARNING)
        .silent(typeOne + blocks272 + AT_TYPE1 "frequencyDomainAllocation = 400000");

    table.rule("pusch-cg-single")
        .bad(AT_SUL_BWP "configuredGrantConfig.setup.rrc-ConfiguredUplinkGrant")
        .good()
        .fires(AT_TYPE1 "srs-ResourceIndicator", typeOne + twoResources)
        .as(RRC_RULE_WARNING)
        .silent(typeOne + twoResources + AT_TYPE1 "srs-ResourceIndicator = 1")
        .fires(AT_TYPE1 "srs-ResourceIndicator",
               typeOne + AT_TYPE1 "srs-ResourceIndicator = 0\n" AT_PUSCH "txConfig = absent\n" AT_PUSCH
                                  "codebookSubset = absent\n" AT_PUSCH "maxRank = absent")
        .as(RRC_RULE_NOTICE);
}

} // namespace

void puschCases(CaseTable& table)
{
    ofTransmission(table);
    ofPower(table);
    ofDetails(table);
    ofGrants(table);
}

} // namespace test
