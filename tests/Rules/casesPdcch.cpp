#include "ruleCases.h"

#include <sstream>

namespace test
{

namespace
{

#define AT_CORESETS AT_PDCCH "controlResourceSetToAddModList"
#define AT_SPACES AT_PDCCH "searchSpacesToAddModList"
#define SYMBOLS(path, bits) path "monitoringSymbolsWithinSlot = " bits "\n"
#define PERIOD(path, value)                                                                                            \
    path "monitoringSlotPeriodicityAndOffset = absent\n" path "monitoringSlotPeriodicityAndOffset." value "\n"

void knowingCoreset0(RrcRuleContext& known)
{
    static constexpr ControlResourceSetZero index = 10;
    known.coreset0 = &index;
}

void ableAnywhere(RrcRuleContext& known)
{
    static constexpr RrcRuleCapabilities able{RRC_RULE_FEATURE_MONITORING_ANY};
    known.capabilities = &able;
}

#define SECOND_DL AT_CELL "downlinkBWP-ToAddModList[1]."

// A second downlink bandwidth part, in which random access is answered in CORESET#0.
std::string secondBwp(int location)
{
    return SECOND_DL "bwp-Id = 2\n" SECOND_DL "bwp-Common.genericParameters.locationAndBandwidth = " +
           std::to_string(location) + "\n" +
           SECOND_DL "bwp-Common.genericParameters.subcarrierSpacing = kHz30\n" SECOND_DL
                     "bwp-Common.pdcch-ConfigCommon.setup.ra-SearchSpace = 0\n" SECOND_DL "bwp-Dedicated = {}\n";
}

// Bandwidth part 2 of 15 kHz, its CORESET 5 in the resource blocks 0..47 and the first symbol of slots; with an LTE
// carrier of 6 resource blocks around this subcarrier.
#define AT_LTE AT_CELL "lte-CRS-ToMatchAround.setup."
#define SECOND_CORESET SECOND_DL "bwp-Dedicated.pdcch-Config.setup.controlResourceSetToAddModList[0]."
#define SECOND_SPACE SECOND_DL "bwp-Dedicated.pdcch-Config.setup.searchSpacesToAddModList[0]."
std::string besideLte(int middle)
{
    return AT_SYNC_ABSENT "\n" SECOND_DL "bwp-Id = 2\n" SECOND_DL
                          "bwp-Common.genericParameters.locationAndBandwidth = 27225\n" SECOND_DL
                          "bwp-Common.genericParameters.subcarrierSpacing = kHz15\n" A_CORESET(SECOND_CORESET, "5")
                              SECOND_CORESET
           "precoderGranularity = allContiguousRBs\n" A_COMMON_SPACE(SECOND_SPACE, "5", "5") AT_LTE
           "carrierBandwidthDL = n6\n" AT_LTE "nrofCRS-Ports = n2\n" AT_LTE "v-Shift = n0\n" AT_LTE "carrierFreqDL = " +
           std::to_string(middle) + "\n";
}

void knowingTwoCarriers(RrcRuleContext& known)
{
    static const SCS_SpecificCarrier carriers[] = {{{0, 0}, 0, SubcarrierSpacing_kHz30, 273, 0, {0, nullptr, nullptr}},
                                                   {{0, 0}, 0, SubcarrierSpacing_kHz15, 270, 0, {0, nullptr, nullptr}}};
    inDelta(known);
    known.carriersDl = carriers;
    known.numCarriersDl = 2;
}

void coresetCases(CaseTable& table)
{
#define AT_INITIAL_CORESETS AT_CELL "initialDownlinkBWP.pdcch-Config.setup.controlResourceSetToAddModList"
    const std::string threeInInitial = AT_SYNC_ABSENT "\n" A_CORESET(AT_INITIAL_CORESETS "[0].", "4")
        A_CORESET(AT_INITIAL_CORESETS "[1].", "5") A_CORESET(AT_INITIAL_CORESETS "[2].", "6");
    table.rule("pdcch-counts")
        .bad(AT_CORESETS)
        .saying("4 CORESETs, but a bandwidth part has at most 3")
        .good()
        // PDCCH-Config takes the place of the common one.
        .silent(A_CORESET(AT_CORESETS "[2].", "4") A_CORESET(AT_PDCCH_COMMON "commonControlResourceSet.", "4"))
        .silent(threeInInitial)
        .fires(AT_INITIAL_CORESETS, threeInInitial)
        .with(knowingCoreset0)
        .saying("with CORESET#0");
    {
        std::string spaces;
        for (int i = 5; i < 12; ++i)
        {
            const std::string at = AT_SPACES "[" + std::to_string(i - 2) + "].";
            std::istringstream lines(A_COMMON_SPACE("", "", "3"));
            for (std::string line; std::getline(lines, line);)
            {
                spaces += at + line + (line.starts_with("searchSpaceId") ? std::to_string(i) : "") + "\n";
            }
        }
        const std::string eleventh = A_COMMON_SPACE(AT_PDCCH_COMMON "commonSearchSpaceList[0].", "12", "3");
        table.rule("pdcch-counts").silent(spaces).fires(AT_SPACES, spaces + eleventh).saying("11 search spaces");
    }

    table.rule("pdcch-ids")
        .bad(AT_CORESET "controlResourceSetId")
        .saying("1, but the common part of bandwidth part 0 has a CORESET of that id")
        .good()
        .fires(AT_SPACE "searchSpaceId", AT_SPACE "searchSpaceId = 1")
        .fires(AT_SPACE "searchSpaceId", AT_SPACE "searchSpaceId = 0")
        .silent(A_CORESET(AT_PDCCH_COMMON "commonControlResourceSet.", "3"));

    table.rule("pdcch-coreset-bits")
        .bad(AT_INITIAL_PDCCH "commonControlResourceSet.frequencyDomainResources")
        .times(2)
        .saying("bit 44, but a bandwidth part of 273 PRB that begins within a group has 44 groups of 6")
        .good()
        // Of 106 resource blocks from a multiple of 6 on there are 17 groups, the last of RB 96..101.
        .fires(AT_CORESETS "[0].frequencyDomainResources",
               AS_106_RB AT_CORESETS "[0].frequencyDomainResources = FFFFC0000000")
        .saying("bit 17")
        .silent(AS_106_RB AT_CORESETS "[0].frequencyDomainResources = FFFF80000000")
        .fires(AT_CORESET "frequencyDomainResources",
               AT_CORESET "frequencyDomainResources = 000000000000\n" AT_CORESET
                          "cce-REG-MappingType = absent\n" AT_CORESET "cce-REG-MappingType.nonInterleaved = null")
        .saying("at least one group")
        // Without the carrier the bandwidth part may begin at a multiple of 6.
        .fires(AT_CORESETS "[0].frequencyDomainResources",
               AT_SYNC_ABSENT "\n" AT_DL "bwp-Common.genericParameters.locationAndBandwidth = 2199\n" // 269 PRB
               AT_UL "bwp-Common.genericParameters.locationAndBandwidth = 2199")
        .with(inDelta)
        .undecided(AT_SYNC_ABSENT)
        .with(inDelta);

    table.rule("pdcch-coreset-interleaver")
        .bad(AT_CORESET "cce-REG-MappingType.interleaved.interleaverSize")
        .saying("n6, but 48 PRB x 2 symbols are 96 REGs, which bundles of 6 x 6 rows do not divide")
        .good()
        .fires(AT_CORESET "cce-REG-MappingType.interleaved.reg-BundleSize",
               AT_CORESET "cce-REG-MappingType.interleaved.reg-BundleSize = n3")
        .fires(AT_CORESET "cce-REG-MappingType.interleaved.interleaverSize",
               AT_COMMON "dmrs-TypeA-Position = pos3\n" AT_CORESET "duration = 3\n" AT_CORESET
                         "frequencyDomainResources = FE0000000000")
        .saying("42 PRB x 3 symbols are 126 REGs")
        .silent(AT_COMMON "dmrs-TypeA-Position = pos3\n" AT_CORESET "duration = 3");

    table.rule("pdcch-coreset-dur3")
        .bad(AT_CORESET "duration")
        .saying("3, but dmrs-TypeA-Position is pos2")
        .good()
        .undecided(AT_SYNC_ABSENT "\n" AT_CORESET "duration = 3")
        .with(inDelta)
        .fires(AT_CORESET "duration", AT_SYNC_ABSENT "\n" AT_CORESET "duration = 3")
        .with(
            [](RrcRuleContext& known)
            {
                static constexpr OSUINT32 position = ServingCellConfigCommon_dmrs_TypeA_Position_pos2;
                inDelta(known);
                known.typeAPosition = &position;
            });

    // The CORESET from subcarrier 576 on.
    const std::string above = SECOND_CORESET "frequencyDomainResources = 00FF00000000\n";
    table.rule("pdcch-coreset-contiguous")
        .bad(AT_CORESET "frequencyDomainResources")
        .saying("5 separate runs")
        .good()
        .silent(AT_CORESET "frequencyDomainResources = AA8000000000")
        // The block of case C at symbols 2 to 5, in the middle of the carrier.
        .fires(AT_SPACE "controlResourceSetId",
               AT_CORESETS "[0].precoderGranularity = allContiguousRBs\n" SYMBOLS(AT_SPACE, "2000"))
        .saying("the occasions of search space 2 overlap an SS/PBCH block")
        .fires(AT_SPACE "controlResourceSetId",
               AT_CORESETS "[0].precoderGranularity = allContiguousRBs\n" SYMBOLS(AT_SPACE, "4000"))
        .silent(AT_CORESETS "[0].precoderGranularity = allContiguousRBs\n" SYMBOLS(AT_SPACE, "8000"))
        .silent(AT_CORESETS "[0].precoderGranularity = allContiguousRBs\n" SYMBOLS(AT_SPACE, "0200")) // 6, 7
        .silent(AT_CORESETS "[0].precoderGranularity = allContiguousRBs\n" SYMBOLS(AT_SPACE, "2000")
                    PERIOD(AT_SPACE, "sl20 = 1"))
        .silent(AT_CORESET "precoderGranularity = allContiguousRBs\n" SYMBOLS(AT_FALLBACK_SPACE, "2000"))
        // Six resource blocks of LTE, 36 subcarriers on either side, over the CORESET's end at subcarrier 575.
        .fires(SECOND_SPACE "controlResourceSetId", besideLte(606))
        .with(knowingTwoCarriers)
        .saying("CORESET 5 with allContiguousRBs, but the occasions of search space 5 overlap lte-CRS-ToMatchAround")
        .silent(besideLte(612))
        .with(knowingTwoCarriers)
        // To the subcarrier: of each six those of two ports are 0 and 3 behind v-Shift, one lies in the carrier's
        // middle.
        .fires(SECOND_SPACE "controlResourceSetId", besideLte(611))
        .with(knowingTwoCarriers)
        .fires(SECOND_SPACE "controlResourceSetId", besideLte(610) + AT_LTE "v-Shift = n1")
        .with(knowingTwoCarriers)
        .silent(besideLte(611) + AT_LTE "v-Shift = n1")
        .with(knowingTwoCarriers)
        .fires(SECOND_SPACE "controlResourceSetId",
               besideLte(608) + AT_LTE "nrofCRS-Ports = n1\n" SYMBOLS(SECOND_SPACE, "0800"))
        .with(knowingTwoCarriers)
        .silent(besideLte(609) + AT_LTE "nrofCRS-Ports = n1\n" SYMBOLS(SECOND_SPACE, "0800"))
        .with(knowingTwoCarriers)
        .fires(SECOND_SPACE "controlResourceSetId", besideLte(611) + AT_LTE "nrofCRS-Ports = n1")
        .with(knowingTwoCarriers)
        .fires(SECOND_SPACE "controlResourceSetId", besideLte(542) + above)
        .with(knowingTwoCarriers)
        .silent(besideLte(541) + above)
        .with(knowingTwoCarriers)
        .fires(SECOND_SPACE "controlResourceSetId", besideLte(540) + above + AT_LTE "v-Shift = n2")
        .with(knowingTwoCarriers)
        .silent(besideLte(539) + above + AT_LTE "v-Shift = n2")
        .with(knowingTwoCarriers)
        // A carrier that begins below point A.
        .fires(SECOND_SPACE "controlResourceSetId", besideLte(10))
        .with(knowingTwoCarriers)
        // Its reference signals are in the symbols 0, 4, 7 and 11, those of four ports in 1 and 8, too.
        .silent(besideLte(606) + SYMBOLS(SECOND_SPACE, "4000"))
        .with(knowingTwoCarriers)
        .fires(SECOND_SPACE "controlResourceSetId",
               besideLte(606) + SYMBOLS(SECOND_SPACE, "4000") + AT_LTE "nrofCRS-Ports = n4")
        .with(knowingTwoCarriers)
        .fires(SECOND_SPACE "controlResourceSetId", besideLte(606) + SYMBOLS(SECOND_SPACE, "4000") +
                                                        SECOND_CORESET "duration = 2\n" SYMBOLS(SECOND_SPACE, "1000"))
        .with(knowingTwoCarriers)
        .silent(besideLte(606) + SYMBOLS(SECOND_SPACE, "1000"))
        .with(knowingTwoCarriers)
        .silent(besideLte(606) + SECOND_CORESET "precoderGranularity = sameAsREG-bundle")
        .with(knowingTwoCarriers)
        // What is in the subframes for broadcast, nobody knows.
        .silent(besideLte(606) + AT_LTE "mbsfn-SubframeConfigList[0].radioframeAllocationPeriod = n1\n" AT_LTE
                                        "mbsfn-SubframeConfigList[0].radioframeAllocationOffset = 0\n" AT_LTE
                                        "mbsfn-SubframeConfigList[0].subframeAllocation1.oneFrame = FC")
        .with(knowingTwoCarriers);

    table.rule("pdcch-coreset-tci")
        .bad(AT_CORESET "tci-StatesPDCCH-ToAddList[0]")
        .saying("4, but a TCI state of that id is not configured: there is 0..3")
        .good()
        .fires(AT_INITIAL_PDCCH "commonControlResourceSet.tci-StatesPDCCH-ToAddList",
               AT_INITIAL_PDCCH "commonControlResourceSet.tci-StatesPDCCH-ToAddList[0] = 0")
        .fires(AT_CORESET "tci-StatesPDCCH-ToAddList[0]", AT_CORESET "tci-StatesPDCCH-ToAddList[0] = 4")
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        .fires(AT_CORESET "tci-StatesPDCCH-ToAddList[0]",
               AT_CORESET "tci-StatesPDCCH-ToAddList[0] = 4\n" AT_PDSCH "tci-StatesToReleaseList[0] = 4")
        .with(inDelta)
        .saying("TCI state 4 is released by this message");

    table.rule("pdcch-tci-present")
        .bad(AT_INITIAL_PDCCH "commonControlResourceSet.tci-PresentInDCI")
        .saying("PDSCH-Config has no TCI states")
        .good();
    const std::string linked = CROSS_CARRIER AT_SCELL_DL
        "bwp-Dedicated.pdsch-Config.setup.tci-StatesToAddModList[0].tci-StateId = 0\n" AT_SCELL_DL
        "bwp-Dedicated.pdsch-Config.setup.tci-StatesToAddModList[0].qcl-Type1.referenceSignal.ssb = 0\n" AT_SCELL_DL
        "bwp-Dedicated.pdsch-Config.setup.tci-StatesToAddModList[0].qcl-Type1.qcl-Type = typeC\n";
    table.rule("pdcch-tci-present")
        .fires(AT_CORESETS "[0].tci-PresentInDCI", std::string(ADD_SCELL) + linked)
        .silent(std::string(ADD_SCELL) + linked + AT_CORESETS "[0].tci-PresentInDCI = enabled");
}

void searchSpaceCases(CaseTable& table)
{
    table.rule("pdcch-ss-new-incomplete")
        .bad(AT_SPACE "monitoringSymbolsWithinSlot")
        .saying("absent, but search space 2 is new")
        .good()
        .fires(AT_SPACE "controlResourceSetId", AT_SPACE "controlResourceSetId = absent")
        .fires(AT_SPACE "monitoringSlotPeriodicityAndOffset", AT_SPACE "monitoringSlotPeriodicityAndOffset = absent")
        .fires(AT_SPACE "nrofCandidates", AT_SPACE "nrofCandidates = absent")
        .fires(AT_SPACE "searchSpaceType", AT_SPACE "searchSpaceType = absent")
        // Only a new one names its CORESET.
        .fires(AT_SPACE "nrofCandidates", AT_SPACE "nrofCandidates = absent")
        .with(inDelta)
        .undecided(AT_SPACE "nrofCandidates = absent\n" AT_SPACE "controlResourceSetId = absent")
        .with(inDelta)
        .fires(AT_INITIAL_PDCCH "commonSearchSpaceList[0].searchSpaceType",
               AT_INITIAL_PDCCH "commonSearchSpaceList[0].searchSpaceType = absent")
        .with(inDelta)
        .fires(AT_SPACE "controlResourceSetId", AT_CELL "tag-Id = 0\n" AT_DL "bwp-Id = 1\n" AT_SPACE
                                                        "searchSpaceId = 2\n" AT_SPACE "controlResourceSetId = 2")
        .after("")
        .saying("search space 2 is there: its CORESET stays")
        .silent(AT_CELL "tag-Id = 0\n" AT_DL "bwp-Id = 1\n" AT_SPACE "searchSpaceId = 2\n" SYMBOLS(AT_SPACE, "8000"))
        .after("");

    table.rule("pdcch-ss-coreset-ref")
        .bad(AT_SPACE "controlResourceSetId")
        .saying("4, but a CORESET of that id is not configured: there is 2, 3")
        .good()
        .silent(AT_INITIAL_PDCCH "commonSearchSpaceList[0].controlResourceSetId = 0")
        .fires(AT_INITIAL_PDCCH "commonSearchSpaceList[0].controlResourceSetId",
               AT_INITIAL_PDCCH "commonSearchSpaceList[0].controlResourceSetId = 2")
        .silent(A_CORESET(AT_PDCCH_COMMON "commonControlResourceSet.", "4") AT_SPACE "controlResourceSetId = 4")
        .fires(AT_SPACE "controlResourceSetId", AT_SPACE "controlResourceSetId = 4")
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        .fires(AT_SPACE "controlResourceSetId",
               AT_SPACE "controlResourceSetId = 4\n" AT_PDCCH "controlResourceSetToReleaseList[0] = 4")
        .with(inDelta)
        .saying("CORESET 4 is released by this message")
        .undecided(AT_SYNC_ABSENT
                   "\n" A_SPACE(AT_CELL "initialDownlinkBWP.pdcch-Config.setup.searchSpacesToAddModList[0].", "5", "1",
                                "ue-Specific.dci-Formats = formats0-0-And-1-0"));

    table.rule("pdcch-ss-symbols")
        .bad(AT_SPACE "monitoringSymbolsWithinSlot")
        .saying("the CORESET has 2 symbols: occasions overlap at symbol 1")
        .good()
        .fires(AT_SPACE "monitoringSymbolsWithinSlot", SYMBOLS(AT_SPACE, "0000"))
        .fires(AT_SPACE "monitoringSymbolsWithinSlot", SYMBOLS(AT_SPACE, "0004")) // 13
        .saying("leaves the slot")
        .silent(SYMBOLS(AT_SPACE, "0008")) // 12, 13
        // Search spaces 3 and 4 have the same CORESET.
        .fires(AT_COMMON_SPACE "monitoringSymbolsWithinSlot", SYMBOLS(AT_COMMON_SPACE, "4000"))
        .saying("search space 3 has occasions of the same CORESET that overlap them")
        .silent(SYMBOLS(AT_COMMON_SPACE, "2000"))
        .silent(SYMBOLS(AT_COMMON_SPACE, "4000") PERIOD(AT_FALLBACK_SPACE, "sl2 = 0"))
        .fires(AT_COMMON_SPACE "monitoringSymbolsWithinSlot",
               SYMBOLS(AT_COMMON_SPACE, "4000") PERIOD(AT_FALLBACK_SPACE, "sl4 = 0") AT_FALLBACK_SPACE "duration = 2");

    table.rule("pdcch-ss-late-symbols")
        .bad(AT_SPACES)
        .saying("all occasions within three symbols, the last of them symbol 5, but at 30 kHz")
        .good()
        .fires(AT_SPACES, SYMBOLS(AT_SPACE, "0800"))
        .as(RRC_RULE_WARNING)
        .silent(SYMBOLS(AT_SPACE, "0800"))
        .with(ableAnywhere)
        .fires(AT_SPACES, SYMBOLS(AT_SPACE, "2000"))
        .as(RRC_RULE_WARNING)
        .silent(SYMBOLS(AT_SPACE, "4000"))
        // Search space 0, which is in the first symbols, is monitored, too.
        .silent(table.rule("pdcch-ss-late-symbols").example(&RrcRule::bad) + "\n" AT_PDCCH_COMMON "ra-SearchSpace = 0")
        .with(ableAnywhere);

    table.rule("pdcch-ss-duration")
        .bad(AT_COMMON_SPACE "duration")
        .saying("20, but with a period of 20 slots the most is 19")
        .good()
        .fires(AT_SPACE "duration", AT_SPACE "duration = 2")
        .fires(AT_COMMON_SPACE "duration", AN_SFI AT_COMMON_SPACE "duration = 2")
        .as(RRC_RULE_NOTICE)
        .undecided(AT_SPACE "monitoringSlotPeriodicityAndOffset = absent\n" AT_SPACE
                            "controlResourceSetId = absent\n" AT_SPACE "duration = 2")
        .with(inDelta);

    table.rule("pdcch-ss-candidates")
        .bad(AT_FALLBACK_SPACE "nrofCandidates.aggregationLevel16")
        .saying("n1, but the CORESET has 12 CCEs")
        .good()
        .fires(AT_FALLBACK_SPACE "nrofCandidates.aggregationLevel8",
               AT_FALLBACK_SPACE "nrofCandidates.aggregationLevel8 = n3")
        .as(RRC_RULE_WARNING)
        .saying("no more than 2 candidates differ")
        .silent(AT_FALLBACK_SPACE "nrofCandidates.aggregationLevel8 = n2")
        .fires(AT_COMMON_SPACE "nrofCandidates", AT_COMMON_SPACE
               "nrofCandidates.aggregationLevel2 = n0\n" AT_COMMON_SPACE
               "nrofCandidates.aggregationLevel4 = n0\n" AT_COMMON_SPACE "nrofCandidates.aggregationLevel8 = n0")
        .silent(AN_SFI AT_COMMON_SPACE "searchSpaceType.common.dci-Format0-0-AndFormat1-0 = absent\n" AT_COMMON_SPACE
                                       "nrofCandidates.aggregationLevel2 = n0\n" AT_COMMON_SPACE
                                       "nrofCandidates.aggregationLevel4 = n0\n" AT_COMMON_SPACE
                                       "nrofCandidates.aggregationLevel8 = n0")
        // CORESET#0 of index 10: 48 resource blocks, one symbol.
        .fires(AT_INITIAL_PDCCH "commonSearchSpaceList[0].nrofCandidates.aggregationLevel16",
               AT_INITIAL_PDCCH "controlResourceSetZero = 0\n" AT_INITIAL_PDCCH
                                "commonSearchSpaceList[0].controlResourceSetId = 0\n" AT_INITIAL_PDCCH
                                "commonSearchSpaceList[0].nrofCandidates.aggregationLevel16 = n1")
        .saying("the CORESET has 8 CCEs");

    table.rule("pdcch-blind-limit")
        .bad(AT_SPACES)
        .saying("of common search spaces alone, but at 30 kHz a UE monitors 36 and 56")
        .good()
        .fires(AT_SPACES, AT_SPACE "nrofCandidates.aggregationLevel16 = n4")
        .as(RRC_RULE_WARNING)
        .saying("72 CCEs")
        .silent(AT_SPACE "nrofCandidates.aggregationLevel16 = n2")
        .fires(AT_SCHEDULED "searchSpacesToAddModList",
               std::string(ADD_SCELL) + AT_SCHEDULED
                   "searchSpacesToAddModList[0].nrofCandidates.aggregationLevel16 = n4")
        .fires(AT_SPACES, AT_SPACE "nrofCandidates.aggregationLevel1 = n8\n" AT_SPACE
                                   "nrofCandidates.aggregationLevel2 = n8\n" SYMBOLS(AT_SPACE, "A000"))
        .as(RRC_RULE_WARNING)
        .saying("at least 45 candidates");
}

void groupCases(CaseTable& table)
{
    table.rule("pdcch-dci-sizes").bad(AT_PREEMPTION "dci-PayloadSize").good().silent(A_PREEMPTION).silent(AN_SFI);
    table.rule("pdcch-dci-sizes").silent(A_PREEMPTION AN_SFI AT_SFI "dci-PayloadSize = 40");

    table.rule("pdcch-common-list")
        .bad(AT_INITIAL_PDCCH "commonSearchSpaceList[0].searchSpaceType")
        .good()
        .fires(AT_INITIAL_PDCCH "commonSearchSpaceList[0].searchSpaceId",
               AT_INITIAL_PDCCH "commonSearchSpaceList[0].searchSpaceId = 0\n" AT_INITIAL_PDCCH "ra-SearchSpace = 0")
        .fires(AT_INITIAL_PDCCH "commonControlResourceSet.controlResourceSetId",
               AT_INITIAL_PDCCH "commonControlResourceSet.controlResourceSetId = 0\n" AT_INITIAL_PDCCH
                                "commonSearchSpaceList[0].controlResourceSetId = 0");

    const std::string sixtyBwp = secondBwp(275 * 47 + 113) + AT_SYNC_ABSENT
                                 "\n" SECOND_DL "bwp-Common.genericParameters.subcarrierSpacing = kHz60\n";
    const auto sixtyInitial = [](RrcRuleContext& known)
    {
        static const BWP initial = {{0}, 1099, SubcarrierSpacing_kHz60, 0};
        inDelta(known);
        known.initialDownlinkBwp = &initial;
    };
    table.rule("pdcch-css-refs")
        .bad(AT_INITIAL_PDCCH "ra-SearchSpace")
        .saying("2, but commonSearchSpaceList has none of that id")
        .good()
        .fires(AT_INITIAL_PDCCH "pagingSearchSpace", AT_INITIAL_PDCCH "pagingSearchSpace = 3")
        .fires(AT_INITIAL_PDCCH "searchSpaceOtherSystemInformation",
               AT_INITIAL_PDCCH "searchSpaceOtherSystemInformation = 3")
        .fires(AT_INITIAL_PDCCH "searchSpaceSIB1", AT_INITIAL_PDCCH "searchSpaceSIB1 = 1")
        .silent(AS_SCG AT_INITIAL_PDCCH "searchSpaceSIB1 = 1")
        .silent(AT_INITIAL_PDCCH "searchSpaceSIB1 = 0")
        .silent(AT_PDCCH_COMMON "ra-SearchSpace = 0")
        .fires(AT_PDCCH_COMMON "ra-SearchSpace", AT_PDCCH_COMMON "ra-SearchSpace = 4")
        .as(RRC_RULE_WARNING)
        // CORESET#0 is at the common RB 113..160: 275 * (L - 1) + S.
        .silent(secondBwp(275 * 47 + 113))
        .fires(SECOND_DL "bwp-Common.pdcch-ConfigCommon.setup.ra-SearchSpace", secondBwp(275 * 47 + 114))
        .saying("0, but CORESET#0 is not within the bandwidth part")
        .fires(SECOND_DL "bwp-Common.pdcch-ConfigCommon.setup.ra-SearchSpace", secondBwp(275 * 46 + 113))
        .saying("CORESET#0 is wider than the bandwidth part")
        .silent(secondBwp(275 * 46 + 113) + AT_SYNC_ABSENT)
        .with(inDelta)
        // Of 60 kHz there are two prefixes.
        .silent(sixtyBwp)
        .with(sixtyInitial)
        .fires(SECOND_DL "bwp-Common.pdcch-ConfigCommon.setup.ra-SearchSpace",
               sixtyBwp + SECOND_DL "bwp-Common.genericParameters.cyclicPrefix = extended")
        .with(sixtyInitial)
        .saying("0, but CORESET#0 has another cyclic prefix")
        .fires(SECOND_DL "bwp-Common.pdcch-ConfigCommon.setup.ra-SearchSpace",
               sixtyBwp + SECOND_DL "bwp-Common.genericParameters.subcarrierSpacing = kHz30")
        .with(sixtyInitial)
        .saying("0, but CORESET#0 has another subcarrier spacing");

    table.rule("pdcch-initial-only")
        .bad(AT_PDCCH_COMMON "searchSpaceZero")
        .good()
        .fires(AT_PDCCH_COMMON "controlResourceSetZero", AT_PDCCH_COMMON "controlResourceSetZero = 0")
        .fires(AT_PDCCH_COMMON "firstPDCCH-MonitoringOccasionOfPO",
               AT_PDCCH_COMMON "firstPDCCH-MonitoringOccasionOfPO.sCS15KHZoneT[0] = 0")
        .silent(AT_PDCCH_COMMON "pagingSearchSpace = 0\n" AT_PDCCH_COMMON
                                "firstPDCCH-MonitoringOccasionOfPO.sCS15KHZoneT[0] = 0")
        .fires(AT_INITIAL_PDCCH "firstPDCCH-MonitoringOccasionOfPO", AT_INITIAL_PDCCH
               "pagingSearchSpace = 0\n" AT_INITIAL_PDCCH "firstPDCCH-MonitoringOccasionOfPO.sCS15KHZoneT[0] = 0");

#define AT_BFR AT_UL "bwp-Dedicated.beamFailureRecoveryConfig.setup."
    table.rule("pdcch-recovery-ss")
        .bad(AT_BFR "recoverySearchSpaceId")
        .saying("search space 3 has the same CORESET 3")
        .good()
        .fires(AT_BFR "recoverySearchSpaceId", AT_BFR "recoverySearchSpaceId = 5")
        .fires(AT_BFR "recoverySearchSpaceId", AT_BFR "recoverySearchSpaceId = 5")
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        .fires(AT_BFR "recoverySearchSpaceId", WITH_RANDOM_ACCESS AT_BFR
               "candidateBeamRSList[0].ssb.ssb = 0\n" AT_BFR "candidateBeamRSList[0].ssb.ra-PreambleIndex = 60")
        .saying("absent, but candidateBeamRSList is present")
        .fires(AT_BFR "recoverySearchSpaceId", WITH_RANDOM_ACCESS AT_BFR
               "candidateBeamRSList[0].ssb.ssb = 0\n" AT_BFR "candidateBeamRSList[0].ssb.ra-PreambleIndex = 60")
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        .silent(AT_BFR "rootSequenceIndex-BFR = 4")
        .fires(AT_SUL_BWP "beamFailureRecoveryConfig.setup.recoverySearchSpaceId",
               EXAMPLE_SUL AT_SUL_BWP "beamFailureRecoveryConfig.setup.recoverySearchSpaceId = 9");

    table.rule("pdcch-dci2-0")
        .bad(AT_COMMON_SPACE "monitoringSlotPeriodicityAndOffset")
        .good()
        .fires(AT_COMMON_SPACE "searchSpaceType.common.dci-Format2-0.nrofCandidates-SFI",
               AN_SFI AT_COMMON_SPACE "searchSpaceType.common.dci-Format2-0.nrofCandidates-SFI.aggregationLevel8 = n1")
        .saying("2 aggregation levels, but exactly one is configured")
        .fires(AT_COMMON_SPACE "searchSpaceType.common.dci-Format2-0",
               AN_SFI AT_CELL "pdcch-ServingCellConfig = absent")
        .fires(AT_COMMON_SPACE "searchSpaceType.common.dci-Format2-0",
               AN_SFI AT_CELL "pdcch-ServingCellConfig = absent")
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        .fires(AT_SFI "sfi-RNTI", AN_SFI AT_COMMON_SPACE "searchSpaceType.common.dci-Format2-0 = absent")
        .undecided(AN_SFI AT_COMMON_SPACE "searchSpaceType.common.dci-Format2-0 = absent")
        .with(inDelta)
        .fires(AT_COMMON_SPACE "monitoringSymbolsWithinSlot", AN_SFI SYMBOLS(AT_COMMON_SPACE, "2000"))
        .as(RRC_RULE_WARNING)
        .silent(AN_SFI SYMBOLS(AT_COMMON_SPACE, "8000"));

    table.rule("pdcch-dci2-1")
        .bad(AT_COMMON_SPACE "monitoringSlotPeriodicityAndOffset")
        .good()
        .fires(AT_COMMON_SPACE "monitoringSymbolsWithinSlot", A_PREEMPTION SYMBOLS(AT_COMMON_SPACE, "A000"))
        .saying("2 occasions in a slot")
        .fires(AT_COMMON_SPACE "searchSpaceType.common.dci-Format2-1",
               A_PREEMPTION AT_PDCCH "downlinkPreemption = absent")
        .fires(AT_PREEMPTION "int-RNTI", A_PREEMPTION AT_COMMON_SPACE "searchSpaceType.common.dci-Format2-1 = absent")
        .undecided(A_PREEMPTION AT_COMMON_SPACE "searchSpaceType.common.dci-Format2-1 = absent")
        .with(inDelta);

#define AT_INT(n) AT_PREEMPTION "int-ConfigurationPerServingCell[" n "]."
    const std::string two = A_PREEMPTION AT_PREEMPTION "dci-PayloadSize = 28\n" AT_INT("1") "servingCellId = 1\n";
    table.rule("pdcch-int-position")
        .bad(AT_INT("0") "positionInDCI")
        .saying("14, but 14 bits from there on leave the dci-PayloadSize of 14")
        .good()
        .fires(AT_INT("0") "positionInDCI", A_PREEMPTION AT_INT("0") "positionInDCI = 7")
        .fires(AT_INT("1") "positionInDCI", std::string(ADD_SCELL) + two + AT_INT("1") "positionInDCI = 0")
        .saying("another cell has the same field")
        .silent(std::string(ADD_SCELL) + two + AT_INT("1") "positionInDCI = 14")
        .fires(AT_INT("1") "servingCellId", two + AT_INT("1") "positionInDCI = 14")
        .saying("no cell of that ServCellIndex is configured")
        .fires(AT_INT("1") "servingCellId", two + AT_INT("1") "positionInDCI = 14")
        .with(inDelta)
        .as(RRC_RULE_NOTICE);

    table.rule("pdcch-sfi")
        .bad(AT_SFI_CELL "slotFormatCombinations[0].slotFormats[0]")
        .good()
        .silent(AN_SFI AT_SFI_CELL "slotFormatCombinations[0].slotFormats[0] = 255")
        .fires(AT_SFI_CELL "positionInDCI", AN_SFI AT_SFI_CELL "positionInDCI = 20")
        .saying("1 bits from there on leave the dci-PayloadSize of 20")
        .silent(AN_SFI AT_SFI_CELL "positionInDCI = 19")
        .fires(AT_SFI_CELL "positionInDCI", AN_SFI AT_SFI_CELL "positionInDCI = 18\n" AT_SFI_CELL
                                                               "slotFormatCombinations[0].slotFormatCombinationId = 4")
        .silent(AN_SFI AT_SFI_CELL "positionInDCI = 18\n" AT_SFI_CELL
                                   "slotFormatCombinations[0].slotFormatCombinationId = 3")
        .fires(AT_SFI_CELL "subcarrierSpacing", AN_SFI AT_SFI_CELL "subcarrierSpacing = kHz60")
        .saying("kHz60, but bandwidth part 0 has 30 kHz")
        .fires(AT_SFI_CELL "subcarrierSpacing2", AN_SFI AT_SFI_CELL "subcarrierSpacing2 = kHz30")
        .fires(AT_SFI_CELL "servingCellId", AN_SFI AT_SFI_CELL "servingCellId = 3")
        .silent(EXAMPLE_SUL AN_SFI AT_SFI_CELL "subcarrierSpacing2 = kHz30");
    {
        std::string many = AN_SFI;
        for (int combination = 0; combination < 3; ++combination)
        {
            const std::string at = AT_SFI_CELL "slotFormatCombinations[" + std::to_string(combination) + "].";
            many += at + "slotFormatCombinationId = " + std::to_string(combination) + "\n";
            for (int i = 0; i < (combination == 2 ? 1 : 256); ++i)
            {
                many += at + "slotFormats[" + std::to_string(i) + "] = 0\n";
            }
        }
        table.rule("pdcch-sfi")
            .fires(AT_SFI_CELL "slotFormatCombinations", many)
            .saying("513 slot formats")
            .silent(many + AT_SFI_CELL "slotFormatCombinations[2] = absent");
    }
}

void otherCases(CaseTable& table)
{
    table.rule("pdcch-fmt01-needs-config")
        .bad(AT_CELL "initialDownlinkBWP.pdcch-Config.setup.searchSpacesToAddModList[0].searchSpaceType.ue-Specific."
                     "dci-Formats")
        .times(2)
        .good()
        .undecided(std::string(AT_DL "bwp-Dedicated.pdsch-Config = absent\n" AT_CORESETS
                                     "[0].tci-StatesPDCCH-ToAddList = absent\n" AT_CORESETS
                                     "[1].tci-StatesPDCCH-ToAddList = absent"))
        .with(inDelta);

#define AT_TPC AT_PDCCH "tpc-PUSCH.setup."
#define FORMAT_2_2                                                                                                     \
    AT_PHY "tpc-PUSCH-RNTI = 1002\n" AT_PHY "tpc-PUCCH-RNTI = 1003\n" AT_COMMON_SPACE                                  \
           "searchSpaceType.common.dci-Format2-2 = {}\n"
    table.rule("pdcch-tpc-index")
        .bad(AT_TPC "tpc-Index")
        .saying("without a supplementary uplink it is present")
        .good()
        .fires(AT_TPC "tpc-IndexSUL", FORMAT_2_2 AT_TPC "tpc-Index = 1\n" AT_TPC "tpc-IndexSUL = 2")
        .fires(AT_TPC "targetCell", FORMAT_2_2 AT_TPC "tpc-Index = 1\n" AT_TPC "targetCell = 3")
        .silent(EXAMPLE_SUL FORMAT_2_2 AT_TPC "tpc-IndexSUL = 2")
        .undecided(FORMAT_2_2 AT_TPC "tpc-IndexSUL = 2")
        .with(inDelta)
        .silent(FORMAT_2_2 AT_PDCCH "tpc-PUCCH.setup.tpc-IndexPCell = 1")
        .fires(AT_PDCCH "tpc-PUCCH.setup.tpc-IndexPUCCH-SCell", FORMAT_2_2 AT_PDCCH
               "tpc-PUCCH.setup.tpc-IndexPCell = 1\n" AT_PDCCH "tpc-PUCCH.setup.tpc-IndexPUCCH-SCell = 1")
        .fires(AT_PDCCH "tpc-PUCCH.setup.tpc-IndexPCell", FORMAT_2_2 AT_PDCCH "tpc-PUCCH.setup = {}");

#define AT_OTHER AT_SCELL_CELL "crossCarrierSchedulingConfig.schedulingCellInfo.other."
#define AT_OTHER2 "sCellToAddModList[1].sCellConfigDedicated.crossCarrierSchedulingConfig.schedulingCellInfo.other."
#define AT_SECOND_SCELL "sCellToAddModList[1].sCellIndex = 2\nsCellToAddModList[1].sCellConfigDedicated.tag-Id = 0\n"
    Cases cross = table.rule("pdcch-cross-carrier");
    const std::string scheduled = std::string(ADD_SCELL) + CROSS_CARRIER;
    const auto not_ = [&](const char* changes)
    {
        return scheduled + changes;
    };
    cross.fires(AT_OTHER "schedulingCellId", std::string(ADD_SCELL) + cross.example(&RrcRule::bad))
        .silent(std::string(ADD_SCELL) + cross.example(&RrcRule::good))
        .fires(AT_OTHER "schedulingCellId", not_(AT_CELL "crossCarrierSchedulingConfig = absent"))
        .saying("cell 0 has no crossCarrierSchedulingConfig with own")
        .fires(AT_OTHER "schedulingCellId", not_(AT_OTHER "schedulingCellId = 1"))
        .saying("that is this cell")
        .fires(AT_OTHER "schedulingCellId", not_(AT_OTHER "schedulingCellId = 5"))
        .fires(AT_SCHEDULED "searchSpacesToAddModList[0].monitoringSymbolsWithinSlot",
               not_(SYMBOLS(AT_SCHEDULED "searchSpacesToAddModList[0].", "8000")))
        .fires(AT_SCHEDULED "searchSpacesToAddModList[0].searchSpaceId",
               not_(AT_SCHEDULED "searchSpacesToAddModList[0].searchSpaceId = 7"))
        .saying("the scheduling cell has no such search space")
        .fires(AT_SCHEDULED "controlResourceSetToAddModList",
               not_(A_CORESET(AT_SCHEDULED "controlResourceSetToAddModList[0].", "2")))
        .fires(AT_CELL "crossCarrierSchedulingConfig.schedulingCellInfo.other.schedulingCellId",
               std::string(ADD_SCELL) + AT_CELL
                   "crossCarrierSchedulingConfig.schedulingCellInfo.other.schedulingCellId = 1\n" AT_CELL
                   "crossCarrierSchedulingConfig.schedulingCellInfo.other.cif-InSchedulingCell = 1")
        .saying("the SpCell schedules itself")
        // Another one that cell 0 schedules has a value of its own.
        .fires(AT_OTHER2 "cif-InSchedulingCell",
               scheduled + AT_OTHER2 "schedulingCellId = 0\n" AT_OTHER2 "cif-InSchedulingCell = 1\n" AT_SECOND_SCELL)
        .with(inDelta)
        .saying("1, but SCell 1 has the same value in cell 0")
        .silent(scheduled + AT_OTHER2 "schedulingCellId = 0\n" AT_OTHER2 "cif-InSchedulingCell = 2\n" AT_SECOND_SCELL)
        .with(inDelta);
}

} // namespace

void pdcchCases(CaseTable& table)
{
    coresetCases(table);
    searchSpaceCases(table);
    groupCases(table);
    otherCases(table);
}

} // namespace test
