#include "ruleCases.h"

namespace test
{
namespace
{

#define DL_BWP(member) AT_DL "bwp-Common.genericParameters." member
#define UL_BWP(member) AT_UL "bwp-Common.genericParameters." member
#define UPLINK_FREQUENCY                                                                                               \
    AT_COMMON_UL "frequencyInfoUL.frequencyBandList[0] = 78\n" AT_COMMON_UL                                            \
                 "frequencyInfoUL.absoluteFrequencyPointA = 630058"
#define SECOND_DL AT_CELL "downlinkBWP-ToAddModList[1]."

Known in(RrcRuleMessage message)
{
    return [message](RrcRuleContext& known)
    {
        known.message = static_cast<OSUINT8>(message);
    };
}

// What SIB1 has told of the PCell.
void withCarriers(RrcRuleContext& known)
{
    static const SCS_SpecificCarrier carrier = {{0, 0}, 0, SubcarrierSpacing_kHz30, 273, 0, {0, nullptr, nullptr}};
    static const BWP initial = {{0}, 1099, SubcarrierSpacing_kHz30, 0};
    known.carriersDl = &carrier;
    known.numCarriersDl = 1;
    known.carriersUl = &carrier;
    known.numCarriersUl = 1;
    known.initialDownlinkBwp = &initial;
    known.initialUplinkBwp = &initial;
    known.band = 78;
}

// Bandwidth parts of 60 kHz, with what fits into slots of 12 symbols, too.
const std::string sixty =
    AT_SYNC_ABSENT "\n" DL_BWP("subcarrierSpacing = kHz60\n") UL_BWP("subcarrierSpacing = kHz60\n") AT_UL
    "bwp-Dedicated.pucch-Config = absent\n" AT_UL "bwp-Dedicated.srs-Config = absent\n" AT_PUSCH
    "pusch-TimeDomainAllocationList.setup[0].startSymbolAndLength = 55\n" AT_PUSCH
    "pusch-TimeDomainAllocationList.setup[1].startSymbolAndLength = 55\n" AT_PDSCH
    "pdsch-TimeDomainAllocationList.setup[0].startSymbolAndLength = 81\n" AT_PDSCH
    "pdsch-TimeDomainAllocationList.setup[1].startSymbolAndLength = 81\n" AT_CSI "csi-ReportConfigToAddModList[0] = "
    "absent\n";

// A further downlink bandwidth part, with a common search space.
std::string furtherBwp(int index, int id)
{
    const std::string at = AT_CELL "downlinkBWP-ToAddModList[" + std::to_string(index) + "].";
    return at + "bwp-Id = " + std::to_string(id) + "\n" + at +
           "bwp-Common.genericParameters.locationAndBandwidth = 1099\n" + at +
           "bwp-Common.genericParameters.subcarrierSpacing = kHz30\n" + at +
           "bwp-Common.pdcch-ConfigCommon.setup.searchSpaceSIB1 = 0\n" + at + "bwp-Dedicated = {}\n";
}

// An uplink for an SCell that is there.
const std::string laterUplink = "sCellToAddModList[0].sCellIndex = 1\n" AT_SCELL_CELL "tag-Id = 0\n" AT_SCELL_CELL
                                "uplinkConfig.initialUplinkBWP.srs-Config.release = null";

// The headroom of several cells.
const std::string wholePhr =
    AT_MAC "skipUplinkTxDynamic = false\n" AT_PHR "phr-PeriodicTimer = sf100\n" AT_PHR
           "phr-ProhibitTimer = sf100\n" AT_PHR "phr-Tx-PowerFactorChange = dB3\n" AT_PHR "dummy = false\n" AT_PHR
           "phr-Type2OtherCell = false\n" AT_PHR "phr-ModeOtherCG = real\n";

} // namespace

void bwpCases(CaseTable& table)
{
    table.rule("bwp-in-carrier")
        .bad(DL_BWP("locationAndBandwidth"))
        .times(2)
        .saying("RB 0..273, but the carrier at 30 kHz has RB 0..272")
        .good()
        // Of 106 resource blocks: computed with N = 106 where it has to be 275.
        .fires(DL_BWP("locationAndBandwidth"),
               AS_106_RB DL_BWP("locationAndBandwidth = 211\n") UL_BWP("locationAndBandwidth = 211"))
        .times(2)
        .saying("211, which with N = 275 is RB 211..211, but the carrier at 30 kHz has RB 0..105")
        .silent(AS_106_RB DL_BWP("locationAndBandwidth = 28875\n") UL_BWP("locationAndBandwidth = 28875"))
        // Nothing else speaks of resource blocks that the carrier does not have.
        .fires(DL_BWP("locationAndBandwidth"), DL_BWP("locationAndBandwidth = 824"))
        .fires(AT_COMMON_SUL "initialUplinkBWP.genericParameters.locationAndBandwidth",
               EXAMPLE_SUL AT_COMMON_SUL "initialUplinkBWP.genericParameters.locationAndBandwidth = 13751")
        .silent(EXAMPLE_SUL)
        .undecided(AT_SYNC_ABSENT)
        .fires(DL_BWP("locationAndBandwidth"),
               table.rule("bwp-in-carrier").example(&RrcRule::bad) + "\n" AT_SYNC_ABSENT)
        .with(withCarriers)
        .times(2)
        .silent(AT_SYNC_ABSENT)
        .with(withCarriers);

    table.rule("bwp-scs-carrier")
        .bad(AT_COMMON_UL "initialUplinkBWP.genericParameters.subcarrierSpacing")
        .times(2)
        .saying("kHz30, but scs-SpecificCarrierList of the uplink has no carrier of that spacing")
        .good()
        .fires(AT_COMMON_SUL "initialUplinkBWP.genericParameters.subcarrierSpacing",
               EXAMPLE_SUL AT_COMMON_SUL "initialUplinkBWP.genericParameters.subcarrierSpacing = kHz15")
        .saying("scs-SpecificCarrierList of the supplementary uplink has no carrier")
        .undecided(AT_SYNC_ABSENT)
        // Of one bandwidth part, whose resource blocks nobody knows then.
        .fires(AT_DL "bwp-Common.genericParameters.subcarrierSpacing",
               AT_DL "bwp-Common.genericParameters.subcarrierSpacing = kHz15")
        .fires(AT_UL "bwp-Common.genericParameters.subcarrierSpacing",
               AT_UL "bwp-Common.genericParameters.subcarrierSpacing = kHz15")
        .fires(AT_COMMON_DL "initialDownlinkBWP.genericParameters.subcarrierSpacing",
               AT_COMMON_DL "initialDownlinkBWP.genericParameters.subcarrierSpacing = kHz15");

    table.rule("bwp-carrier-width")
        .bad(AT_COMMON_DL "frequencyInfoDL.scs-SpecificCarrierList[0].carrierBandwidth")
        .saying("274, but no channel of FR1 has so many resource blocks at 30 kHz")
        .good()
        .fires(AT_COMMON_DL "frequencyInfoDL.scs-SpecificCarrierList[0].carrierBandwidth",
               AS_FR2 AT_COMMON_DL "frequencyInfoDL.scs-SpecificCarrierList[0].carrierBandwidth = 67")
        .saying("67, but no channel of FR2 has so many resource blocks at 120 kHz")
        .fires(AT_COMMON_DL "frequencyInfoDL.scs-SpecificCarrierList[1].carrierBandwidth",
               AT_COMMON_DL "frequencyInfoDL.scs-SpecificCarrierList[1].offsetToCarrier = 0\n" AT_COMMON_DL
                            "frequencyInfoDL.scs-SpecificCarrierList[1].subcarrierSpacing = kHz60\n" AT_COMMON_DL
                            "frequencyInfoDL.scs-SpecificCarrierList[1].carrierBandwidth = 107")
        .as(RRC_RULE_WARNING)
        .saying("107, a channel of 80 MHz, but the other spacing has a channel of 100 MHz")
        // 35 MHz came with a later release.
        .fires(AT_CELL "downlinkChannelBW-PerSCS-List[0].carrierBandwidth",
               AT_CELL "downlinkChannelBW-PerSCS-List[0].offsetToCarrier = 0\n" AT_CELL
                       "downlinkChannelBW-PerSCS-List[0].subcarrierSpacing = kHz30\n" AT_CELL
                       "downlinkChannelBW-PerSCS-List[0].carrierBandwidth = 92")
        .as(RRC_RULE_WARNING)
        .saying("only later releases have a channel of that width")
        // A bandwidth of the UE: 10 MHz, in a band from 40 MHz on.
        .fires(AT_CELL "downlinkChannelBW-PerSCS-List[0].carrierBandwidth",
               AT_CELL "downlinkChannelBW-PerSCS-List[0].offsetToCarrier = 0\n" AT_CELL
                       "downlinkChannelBW-PerSCS-List[0].subcarrierSpacing = kHz30\n" AT_CELL
                       "downlinkChannelBW-PerSCS-List[0].carrierBandwidth = 24")
        .with([](RrcRuleContext& known) { known.band = 79; })
        .as(RRC_RULE_WARNING)
        // The bandwidth parts of 273 resource blocks are not told, too.
        .fires(AT_COMMON_UL "frequencyInfoUL.scs-SpecificCarrierList[0].carrierBandwidth",
               AT_COMMON_UL "frequencyInfoUL.scs-SpecificCarrierList[0].carrierBandwidth = 100");

    table.rule("bwp-scs-range")
        .bad(AT_COMMON_DL "frequencyInfoDL.scs-SpecificCarrierList[1].subcarrierSpacing")
        .saying("kHz120, but cells of FR1 have 15, 30 and 60 kHz")
        .good()
        .fires(AT_COMMON_DL "frequencyInfoDL.scs-SpecificCarrierList[1].subcarrierSpacing",
               AT_COMMON_DL "frequencyInfoDL.scs-SpecificCarrierList[1].offsetToCarrier = 0\n" AT_COMMON_DL
                            "frequencyInfoDL.scs-SpecificCarrierList[1].subcarrierSpacing = kHz240\n" AT_COMMON_DL
                            "frequencyInfoDL.scs-SpecificCarrierList[1].carrierBandwidth = 66")
        .saying("only SS/PBCH blocks")
        .fires(AT_COMMON_DL "frequencyInfoDL.scs-SpecificCarrierList[1].subcarrierSpacing",
               AS_FR2 AT_COMMON_DL "frequencyInfoDL.scs-SpecificCarrierList[1].offsetToCarrier = 0\n" AT_COMMON_DL
                                   "frequencyInfoDL.scs-SpecificCarrierList[1].subcarrierSpacing = kHz30\n" AT_COMMON_DL
                                   "frequencyInfoDL.scs-SpecificCarrierList[1].carrierBandwidth = 273")
        .saying("kHz30, but cells of FR2 have 60 and 120 kHz");

    table.rule("bwp-ecp")
        .bad(DL_BWP("cyclicPrefix"))
        .saying("extended, but a bandwidth part of 30 kHz has the normal prefix")
        .good()
        .fires(UL_BWP("cyclicPrefix"), sixty + UL_BWP("cyclicPrefix = extended"))
        .with(inDelta)
        .saying("extended, but downlink bandwidth part 1 has the normal prefix")
        .silent(sixty + UL_BWP("cyclicPrefix = extended\n") DL_BWP("cyclicPrefix = extended"))
        .with(inDelta);

    table.rule("bwp-pair-scs")
        .bad(UL_BWP("subcarrierSpacing"))
        .saying("kHz60, but downlink bandwidth part 1 has 30 kHz")
        .good()
        .undecided(AT_SYNC_ABSENT);

    table.rule("bwp-tdd-centre")
        .bad(UL_BWP("locationAndBandwidth"))
        .saying("RB 0..271, but downlink bandwidth part 1, RB 0..272, has another centre, by 0.5 RB")
        .good()
        .silent(table.rule("bwp-tdd-centre").example(&RrcRule::bad) +
                "\n" AT_COMMON "tdd-UL-DL-ConfigurationCommon = absent\n" UPLINK_FREQUENCY)
        .with([](RrcRuleContext& known) { known.duplex = RRC_RULE_DUPLEX_FDD; })
        .undecided(AT_SYNC_ABSENT);

    table.rule("bwp-id")
        .bad(AT_CELL "downlinkBWP-ToReleaseList[0]")
        .good()
        .fires(AT_UL "bwp-Id", AT_UL "bwp-Id = 0\n" AT_UPLINK "firstActiveUplinkBWP-Id = 0\n" AT_CELL
                                     "firstActiveDownlinkBWP-Id = 0\n" AT_CELL "csi-MeasConfig = absent\n" AT_PDSCH
                                     "tci-StatesToAddModList = absent\n" AT_PDCCH
                                     "controlResourceSetToAddModList[0].tci-StatesPDCCH-ToAddList = absent\n" AT_PDCCH
                                     "controlResourceSetToAddModList[1].tci-StatesPDCCH-ToAddList = absent")
        .fires(SECOND_DL "bwp-Id",
               SECOND_DL "bwp-Id = 3\n" SECOND_DL "bwp-Common.genericParameters.locationAndBandwidth = 1099\n" SECOND_DL
                         "bwp-Common.genericParameters.subcarrierSpacing = kHz30\n" SECOND_DL
                         "bwp-Common.pdcch-ConfigCommon.setup.searchSpaceSIB1 = 0\n" SECOND_DL "bwp-Dedicated = {}")
        .as(RRC_RULE_WARNING)
        // The initial one counts where it is configured.
        .fires(AT_CELL "downlinkBWP-ToAddModList[3].bwp-Id", furtherBwp(1, 2) + furtherBwp(2, 3) + furtherBwp(3, 4))
        .saying("5 downlink bandwidth parts with it, and a UE has four")
        .silent(furtherBwp(1, 2) + furtherBwp(2, 3))
        .silent(furtherBwp(1, 2) + furtherBwp(2, 3) + furtherBwp(3, 4) + AT_CELL "initialDownlinkBWP = absent")
        .undecided("")
        .with(inDelta);

    table.rule("bwp-new-incomplete")
        .bad(SECOND_DL "bwp-Common")
        .times(2)
        .good()
        .fires(AT_UL "bwp-Common", AT_UL "bwp-Common = absent")
        .undecided(AT_UL "bwp-Common = absent")
        .with(inDelta);

    table.rule("bwp-initial-dedicated")
        .bad(AT_CELL "initialDownlinkBWP")
        .saying("absent, but the cell has no other downlink bandwidth part")
        .good()
        .undecided(table.rule("bwp-initial-dedicated").example(&RrcRule::bad))
        .with(inDelta);

    table.rule("bwp-active-ref")
        .bad(AT_CELL "firstActiveDownlinkBWP-Id")
        .good()
        .fires(AT_UPLINK "firstActiveUplinkBWP-Id", AT_UPLINK "firstActiveUplinkBWP-Id = 3")
        .silent(AT_CELL "firstActiveDownlinkBWP-Id = 0\n" AT_UPLINK "firstActiveUplinkBWP-Id = 0")
        .fires(AT_CELL "firstActiveDownlinkBWP-Id", AT_CELL "firstActiveDownlinkBWP-Id = 2")
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        .fires(AT_CELL "firstActiveDownlinkBWP-Id",
               AT_CELL "firstActiveDownlinkBWP-Id = 2\n" AT_CELL "downlinkBWP-ToReleaseList[0] = 2")
        .with(inDelta)
        .saying("2, but downlink bandwidth part 2 is released by this message")
        .fires(AT_UPLINK "firstActiveUplinkBWP-Id",
               AT_UPLINK "firstActiveUplinkBWP-Id = 2\n" AT_UPLINK "uplinkBWP-ToReleaseList[0] = 2")
        .with(inDelta)
        .fires(AT_SUL "firstActiveUplinkBWP-Id", EXAMPLE_SUL AT_SUL "firstActiveUplinkBWP-Id = 1")
        .saying("there is no supplementary uplink bandwidth part 1");

    table.rule("bwp-active-present")
        .bad(AT_UPLINK "firstActiveUplinkBWP-Id")
        .saying("1, but with reconfigurationWithSync it is that of the downlink, 0")
        .good()
        .fires(AT_CELL "firstActiveDownlinkBWP-Id", AT_CELL "firstActiveDownlinkBWP-Id = absent")
        .fires(AT_UPLINK "firstActiveUplinkBWP-Id", AT_UPLINK "firstActiveUplinkBWP-Id = absent")
        .fires(AT_CELL "firstActiveDownlinkBWP-Id",
               AT_SYNC_ABSENT "\nrlc-BearerToAddModList[1] = absent\n" AT_CELL "firstActiveDownlinkBWP-Id = absent")
        .with(in(RRC_RULE_MESSAGE_SETUP))
        .as(RRC_RULE_WARNING)
        .fires(AT_SCELL_CELL "firstActiveDownlinkBWP-Id", ADD_SCELL AT_SCELL_CELL "firstActiveDownlinkBWP-Id = absent")
        .fires(AT_SCELL_CELL "firstActiveDownlinkBWP-Id", "sCellToAddModList[0].sCellIndex = 1\n" AT_SCELL_CELL
                                                          "tag-Id = 0\n" AT_SCELL_CELL "firstActiveDownlinkBWP-Id = 1")
        .after(ADD_SCELL)
        .saying("1, but a modification of an SCell activates nothing")
        .silent("sCellToAddModList[0].sCellIndex = 1\n" AT_SCELL_CELL "tag-Id = 0")
        .after(ADD_SCELL)
        .undecided("sCellToAddModList[0].sCellIndex = 1\n" AT_SCELL_CELL "tag-Id = 0")
        .with(inDelta);

    table.rule("bwp-default-ref")
        .bad(AT_CELL "defaultDownlinkBWP-Id")
        .good()
        .fires(AT_CELL "defaultDownlinkBWP-Id", AT_CELL "defaultDownlinkBWP-Id = 1")
        .as(RRC_RULE_NOTICE)
        .saying("without bwp-InactivityTimer")
        .fires(AT_CELL "defaultDownlinkBWP-Id",
               AT_CELL "downlinkBWP-ToReleaseList[0] = 2\n" AT_CELL "defaultDownlinkBWP-Id = 2\n" AT_CELL
                       "bwp-InactivityTimer = ms100")
        .with(inDelta)
        .saying("is released by this message")
        .silent(AT_CELL "defaultDownlinkBWP-Id = 0\n" AT_CELL "bwp-InactivityTimer = ms100");

    table.rule("bwp-release-in-use")
        .bad(AT_CELL "downlinkBWP-ToReleaseList[0]")
        .with(inDelta)
        .saying("2, but QCL-Info still names it")
        .good()
        .with(inDelta)
        .fires(AT_CELL "downlinkBWP-ToReleaseList[0]",
               AT_CELL "downlinkBWP-ToReleaseList[0] = 2\n" AT_CSI "csi-ResourceConfigToAddModList[0].bwp-Id = 2")
        .with(inDelta)
        .fires(AT_UPLINK "uplinkBWP-ToReleaseList[0]",
               AT_UPLINK "uplinkBWP-ToReleaseList[0] = 2\n" AT_CSI
                         "csi-ReportConfigToAddModList[0].reportConfigType.periodic.pucch-CSI-ResourceList[0]."
                         "uplinkBandwidthPartId = 2")
        .with(inDelta)
        // Added again.
        .silent(AT_CELL "downlinkBWP-ToReleaseList[0] = 1")
        .with(inDelta);

    table.rule("bwp-ul-needs-common")
        .bad(AT_CELL "supplementaryUplink")
        .good()
        .fires(AT_SCELL_CELL "uplinkConfig", ADD_SCELL_WITH_UPLINK AT_SCELL_COMMON "uplinkConfigCommon = absent")
        // In a handover within the cell the earlier one stays.
        .fires(AT_CELL "uplinkConfig", AT_COMMON "uplinkConfigCommon = absent")
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        .fires(AT_COMMON "supplementaryUplinkConfig", EXAMPLE_SUL AT_COMMON "uplinkConfigCommon = absent")
        .with(inDelta)
        .times(2)
        .fires(AT_SCELL_CELL "uplinkConfig",
               "sCellToAddModList[0].sCellIndex = 1\n" AT_SCELL_CELL "tag-Id = 0\n" AT_SCELL_CELL
               "uplinkConfig.initialUplinkBWP.srs-Config.release = null")
        .after(ADD_SCELL AT_PHR "multiplePHR = true")
        // With what is common for one, too, it only comes when the SCell is added.
        .fires(AT_SCELL_CELL "uplinkConfig", laterUplink)
        .after(ADD_SCELL_WITH_UPLINK AT_SCELL_CELL "uplinkConfig = absent")
        .saying("the SCell was added without an uplink: release it and add it again")
        .fires(AT_SCELL_CELL "uplinkConfig", laterUplink)
        .after(ADD_SCELL AT_PHR "multiplePHR = true\n" AT_SCELL "sCellConfigCommon = absent")
        .saying("the SCell was added without an uplink: release it and add it again")
        .silent(laterUplink)
        .after(ADD_SCELL_WITH_UPLINK)
        .silent(laterUplink)
        .after(ADD_SCELL_WITH_UPLINK AT_SCELL "sCellConfigCommon = absent")
        // Released and added again.
        .silent("sCellToReleaseList[0] = 1\n" ADD_SCELL_WITH_UPLINK + wholePhr)
        .after(ADD_SCELL AT_PHR "multiplePHR = true")
        .undecided(AT_SYNC_ABSENT);

    table.rule("bwp-initial-coreset0")
        .bad(AT_COMMON_DL "initialDownlinkBWP.genericParameters.locationAndBandwidth")
        .saying("12925, common RB 0..47, but CORESET#0 is at 113..160")
        .good()
        // RB 112..159: the last one of CORESET#0 is outside.
        .fires(AT_COMMON_DL "initialDownlinkBWP.genericParameters.locationAndBandwidth",
               AT_COMMON_DL "initialDownlinkBWP.genericParameters.locationAndBandwidth = 13037\n" AT_COMMON_DL
                            "initialDownlinkBWP.pdcch-ConfigCommon.setup.commonControlResourceSet."
                            "frequencyDomainResources = FE0000000000\n" AT_COMMON_DL
                            "initialDownlinkBWP.pdcch-ConfigCommon.setup.commonSearchSpaceList[0].nrofCandidates."
                            "aggregationLevel8 = n0\n" AT_COMMON_UL
                            "initialUplinkBWP.genericParameters.locationAndBandwidth = 13037")
        // RB 113..136: narrower than CORESET#0.
        .fires(AT_COMMON_DL "initialDownlinkBWP.genericParameters.locationAndBandwidth", AT_COMMON_DL
               "initialDownlinkBWP.genericParameters.locationAndBandwidth = 6438\n" AT_COMMON_DL
               "initialDownlinkBWP.pdcch-ConfigCommon.setup.commonControlResourceSet."
               "frequencyDomainResources = E00000000000\n" AT_COMMON_DL
               "initialDownlinkBWP.pdcch-ConfigCommon.setup.commonSearchSpaceList[0].nrofCandidates."
               "aggregationLevel8 = n0\n" AT_COMMON_DL
               "initialDownlinkBWP.pdcch-ConfigCommon.setup.commonSearchSpaceList[0].nrofCandidates."
               "aggregationLevel4 = n0\n" AT_COMMON_DL
               "initialDownlinkBWP.pdcch-ConfigCommon.setup.commonSearchSpaceList[0].nrofCandidates."
               "aggregationLevel2 = n1\n" AT_COMMON_UL "initialUplinkBWP.genericParameters.locationAndBandwidth = 6438")
        .saying("6438, 24 RB, but CORESET#0 has 48")
        .undecided(AT_SYNC_ABSENT);

    table.rule("bwp-spcell-css")
        .bad(AT_DL "bwp-Common.pdcch-ConfigCommon")
        .saying("absent, but downlink bandwidth part 1 has no common search space")
        .good()
        .fires(AT_DL "bwp-Common.pdcch-ConfigCommon", AS_SCG + table.rule("bwp-spcell-css").example(&RrcRule::bad))
        .as(RRC_RULE_WARNING)
        .undecided(table.rule("bwp-spcell-css").example(&RrcRule::bad))
        .with(inDelta);
}

} // namespace test
