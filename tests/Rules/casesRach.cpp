#include "ruleCases.h"

namespace test
{
namespace
{

#define AT_GENERIC AT_RACH "rach-ConfigGeneric."
#define AT_CFRA AT_SYNC "rach-ConfigDedicated.uplink.cfra."
#define AT_OCCASIONS AT_CFRA "occasions."
#define AT_BLOCKS AT_CFRA "resources.ssb."
#define AT_SHARE AT_RACH "ssb-perRACH-OccasionAndCB-PreamblesPerSSB."
#define NO_SHARE AT_RACH "ssb-perRACH-OccasionAndCB-PreamblesPerSSB = absent\n"
#define AT_MONITORING AT_CELL "initialDownlinkBWP.radioLinkMonitoringConfig.setup."
#define AT_SIGNAL(i) AT_MONITORING "failureDetectionResourcesToAddModList[" i "]."
#define AT_BFR AT_UL "bwp-Dedicated.beamFailureRecoveryConfig.setup."
#define AT_BFR_GENERIC AT_BFR "rach-ConfigBFR."
#define AT_RACH1 AT_UL "bwp-Common.rach-ConfigCommon.setup."
#define AT_DL2 AT_CELL "downlinkBWP-ToAddModList[1]."
#define AT_UL2 AT_UPLINK "uplinkBWP-ToAddModList[1]."
#define AT_RACH2 AT_UL2 "bwp-Common.rach-ConfigCommon.setup."
#define NO_BAND AT_COMMON "downlinkConfigCommon = absent\n" AT_COMMON "tdd-UL-DL-ConfigurationCommon = absent\n"

std::string generic(const std::string& at, int index)
{
    return at + "prach-ConfigurationIndex = " + std::to_string(index) + "\n" + at + "msg1-FDM = one\n" + at +
           "msg1-FrequencyStart = 0\n" + at + "zeroCorrelationZoneConfig = 13\n" + at +
           "preambleReceivedTargetPower = -104\n" + at + "preambleTransMax = n10\n" + at + "powerRampingStep = dB2\n" +
           at + "ra-ResponseWindow = sl20\n";
}

// Random access on bandwidth part 1, and what its downlink needs for it.
const std::string rach1 = generic(AT_RACH1 "rach-ConfigGeneric.", 159) + AT_RACH1
                          "ra-ContentionResolutionTimer = sf64\n" AT_RACH1 "prach-RootSequenceIndex.l139 = 1\n" AT_RACH1
                          "msg1-SubcarrierSpacing = kHz30\n" AT_RACH1 "restrictedSetConfig = unrestrictedSet\n";
const std::string search1 =
    AT_PDCCH_COMMON "commonSearchSpaceList[0].searchSpaceId = 9\n" AT_PDCCH_COMMON
                    "commonSearchSpaceList[0].controlResourceSetId = 3\n" AT_PDCCH_COMMON
                    "commonSearchSpaceList[0].monitoringSlotPeriodicityAndOffset.sl10 = 0\n" AT_PDCCH_COMMON
                    "commonSearchSpaceList[0].monitoringSymbolsWithinSlot = 8000\n" AT_PDCCH_COMMON
                    "commonSearchSpaceList[0].nrofCandidates.aggregationLevel1 = n0\n" AT_PDCCH_COMMON
                    "commonSearchSpaceList[0].nrofCandidates.aggregationLevel2 = n0\n" AT_PDCCH_COMMON
                    "commonSearchSpaceList[0].nrofCandidates.aggregationLevel4 = n1\n" AT_PDCCH_COMMON
                    "commonSearchSpaceList[0].nrofCandidates.aggregationLevel8 = n0\n" AT_PDCCH_COMMON
                    "commonSearchSpaceList[0].nrofCandidates.aggregationLevel16 = n0\n" AT_PDCCH_COMMON
                    "commonSearchSpaceList[0].searchSpaceType.common.dci-Format0-0-AndFormat1-0 = {}\n";
const std::string response1 = search1 + AT_PDCCH_COMMON "ra-SearchSpace = 9\n";

// Recovery on bandwidth part 1, with random access.
const std::string recovery = rach1 + response1 + AT_BFR "rootSequenceIndex-BFR = 4\n" + generic(AT_BFR_GENERIC, 159) +
                             AT_BFR "beamFailureRecoveryTimer = ms60\n";

// With a CSI-RS that it may lead to.
std::string candidate(int csiRs)
{
    return recovery + AT_BFR "recoverySearchSpaceId = 2\n" AT_BFR "candidateBeamRSList[0].csi-RS.csi-RS = " +
           std::to_string(csiRs) + "\n";
}

// Bandwidth part 2, and a CSI-RS of one port in it.
const std::string anotherBwp = AT_CELL
    "downlinkBWP-ToAddModList[1].bwp-Id = 2\n" AT_CELL
    "downlinkBWP-ToAddModList[1].bwp-Common.genericParameters.locationAndBandwidth = 1099\n" AT_CELL
    "downlinkBWP-ToAddModList[1].bwp-Common.genericParameters.subcarrierSpacing = kHz30\n" AT_CELL
    "downlinkBWP-ToAddModList[1].bwp-Common.pdcch-ConfigCommon.setup.searchSpaceSIB1 = 0\n" AT_CELL
    "downlinkBWP-ToAddModList[1].bwp-Dedicated = {}\n" AT_CSI_RESOURCES
    "[5].csi-ResourceConfigId = 5\n" AT_CSI_RESOURCES
    "[5].csi-RS-ResourceSetList.nzp-CSI-RS-SSB.nzp-CSI-RS-ResourceSetList[0] = 3\n" AT_CSI_RESOURCES
    "[5].bwp-Id = 2\n" AT_CSI_RESOURCES "[5].resourceType = periodic\n" AT_NZP_SET
    "[3].nzp-CSI-ResourceSetId = 3\n" AT_NZP_SET "[3].nzp-CSI-RS-Resources[0] = 6\n" ONE_MORE_NZP("6", "6") AT_NZP
    "[6].resourceMapping.frequencyDomainAllocation = absent\n" AT_NZP
    "[6].resourceMapping.frequencyDomainAllocation.row2 = 8000\n" AT_NZP "[6].resourceMapping.nrofPorts = p1\n" AT_NZP
    "[6].resourceMapping.cdm-Type = noCDM\n" AT_NZP "[6].resourceMapping.firstOFDMSymbolInTimeDomain = 12\n";

void inFr1(RrcRuleContext& known)
{
    inDelta(known);
    known.range = RRC_RULE_RANGE_FR1;
}

void withMeasObject(RrcRuleContext& known)
{
    static const RrcRuleMeasObject object = []
    {
        RrcRuleMeasObject made{};
        made.id = 1;
        made.csiRsResources[1] = 1 << 2; // CSI-RS-Index 10
        return made;
    }();
    known.measObjects = &object;
    known.numMeasObjects = 1;
    known.hasMeas = 1;
}

void ofPreambles(CaseTable& table)
{
    const std::string longOne =
        AT_RACH "prach-RootSequenceIndex = absent\n" AT_RACH "prach-RootSequenceIndex.l839 = 1\n" AT_RACH
                "msg1-SubcarrierSpacing = absent\n";
    const auto indices = [](int index)
    {
        return AT_GENERIC "prach-ConfigurationIndex = " + std::to_string(index) +
               "\n" AT_OCCASIONS "rach-ConfigGeneric.prach-ConfigurationIndex = " + std::to_string(index) + "\n";
    };
    table.rule("rach-format-len")
        .bad(AT_RACH "prach-RootSequenceIndex")
        .saying("l839, but the preambles of prach-ConfigurationIndex 159 are short, l139")
        .good()
        .fires(AT_RACH "prach-RootSequenceIndex", longOne + indices(67))
        .silent(indices(67))
        .fires(AT_RACH "prach-RootSequenceIndex", indices(66))
        // In a paired band the long ones go on up to 86.
        .silent(longOne + indices(86) +
                AT_COMMON_DL "frequencyInfoDL.frequencyBandList[0] = 1\n" AT_COMMON_UL
                             "frequencyInfoUL.frequencyBandList[0] = 1\n" AT_COMMON_UL
                             "frequencyInfoUL.absoluteFrequencyPointA = 630058\n" AT_COMMON
                             "tdd-UL-DL-ConfigurationCommon = absent\n")
        .with([](RrcRuleContext& known) { known.duplex = RRC_RULE_DUPLEX_FDD; })
        .fires(AT_OCCASIONS "rach-ConfigGeneric.prach-ConfigurationIndex",
               AT_OCCASIONS "rach-ConfigGeneric.prach-ConfigurationIndex = 66")
        .saying("66, whose preambles are long, l839, but those of rach-ConfigCommon")
        .fires(AT_BFR_GENERIC "prach-ConfigurationIndex", recovery + AT_BFR_GENERIC "prach-ConfigurationIndex = 66")
        .silent(recovery + AT_BFR_GENERIC "prach-ConfigurationIndex = 67")
        .undecided(NO_BAND + longOne + indices(80))
        .with(inFr1)
        .silent(NO_BAND + longOne + indices(66))
        .with(inFr1)
        .silent(NO_BAND + indices(87))
        .with(inFr1);

    table.rule("rach-scs")
        .bad(AT_RACH "msg1-SubcarrierSpacing")
        .saying("kHz60, but FR1 has 15 or 30 kHz")
        .good()
        .fires(AT_RACH "msg1-SubcarrierSpacing", AT_RACH "msg1-SubcarrierSpacing = absent")
        .fires(AT_RACH "msg1-SubcarrierSpacing", longOne + indices(66) + AT_RACH "msg1-SubcarrierSpacing = kHz30")
        .fires(AT_RACH "msg1-SubcarrierSpacing", AT_RACH "msg1-SubcarrierSpacing = kHz240")
        .fires(AT_RACH "msg1-SubcarrierSpacing", AS_FR2 AT_RACH "msg1-SubcarrierSpacing = kHz30")
        .saying("FR2 has 60 or 120 kHz")
        .silent(AS_FR2)
        .fires(AT_BFR "msg1-SubcarrierSpacing-v1530", recovery + AT_BFR "msg1-SubcarrierSpacing-v1530 = kHz60")
        .silent(recovery + AT_BFR "msg1-SubcarrierSpacing-v1530 = kHz15");

    // 273 resource blocks: eight of 12 are 96, eight of 3 (1.25 kHz) 24, eight of 12 (5 kHz) 96.
    const std::string eight = AT_GENERIC "msg1-FDM = eight\n";
    const std::string start = AT_GENERIC "msg1-FrequencyStart = ";
    table.rule("rach-freq")
        .bad(AT_GENERIC "msg1-FrequencyStart")
        .saying("178, with 8 of 12 resource blocks up to 273, but the bandwidth part ends with 272")
        .good()
        .fires(AT_GENERIC "msg1-FrequencyStart", start + "262")
        .silent(start + "261")
        .silent(AT_RACH "msg1-SubcarrierSpacing = kHz15\n" + start + "267")
        .fires(AT_GENERIC "msg1-FrequencyStart", longOne + indices(0) + eight + start + "250")
        .silent(longOne + indices(0) + eight + start + "249")
        .fires(AT_GENERIC "msg1-FrequencyStart", longOne + indices(40) + eight + start + "178")
        .silent(longOne + indices(39) + eight + start + "178")
        .fires(AT_OCCASIONS "rach-ConfigGeneric.msg1-FrequencyStart",
               AT_OCCASIONS "rach-ConfigGeneric.msg1-FrequencyStart = 262")
        .silent(AT_OCCASIONS "rach-ConfigGeneric.msg1-FrequencyStart = 261")
        .fires(AT_BFR_GENERIC "msg1-FrequencyStart",
               recovery + AT_BFR "msg1-SubcarrierSpacing-v1530 = kHz30\n" AT_BFR_GENERIC "msg1-FrequencyStart = 262")
        .silent(recovery + AT_BFR "msg1-SubcarrierSpacing-v1530 = kHz30\n" AT_BFR_GENERIC "msg1-FrequencyStart = 261");

    table.rule("rach-preambles")
        .bad(AT_RACH "ssb-perRACH-OccasionAndCB-PreamblesPerSSB")
        .saying("2 blocks of 32 preambles in an occasion, but that has 60: 30 for each")
        .good()
        .fires(AT_RACH "totalNumberOfRA-Preambles",
               NO_SHARE AT_SHARE "two = n4\n" AT_RACH "totalNumberOfRA-Preambles = 61")
        .saying("60 or 62")
        .silent(NO_SHARE AT_SHARE "two = n32")
        .fires(AT_RACH "ssb-perRACH-OccasionAndCB-PreamblesPerSSB", AT_RACH "totalNumberOfRA-Preambles = 55")
        .silent(AT_RACH "totalNumberOfRA-Preambles = 63")
        .silent(NO_SHARE AT_SHARE "sixteen = 4")
        .fires(AT_RACH "ssb-perRACH-OccasionAndCB-PreamblesPerSSB",
               NO_SHARE AT_SHARE "eight = 8\n" AT_RACH "totalNumberOfRA-Preambles = 56")
        .silent(NO_SHARE AT_SHARE "four = 16")
        .silent(NO_SHARE AT_SHARE "oneEighth = n60\n" AT_RACH "totalNumberOfRA-Preambles = 63")
        .fires(AT_RACH "groupBconfigured.numberOfRA-PreamblesGroupA",
               AT_RACH "groupBconfigured.ra-Msg3SizeGroupA = b56\n" AT_RACH
                       "groupBconfigured.messagePowerOffsetGroupB = dB0\n" AT_RACH
                       "groupBconfigured.numberOfRA-PreamblesGroupA = 56")
        .silent(AT_RACH "groupBconfigured.ra-Msg3SizeGroupA = b56\n" AT_RACH
                        "groupBconfigured.messagePowerOffsetGroupB = dB0\n" AT_RACH
                        "groupBconfigured.numberOfRA-PreamblesGroupA = 55");

    table.rule("rach-response-window")
        .bad(AT_GENERIC "ra-ResponseWindow")
        .saying("sl40, but 10 ms at 30 kHz are 20 slots")
        .good()
        .fires(AT_BFR_GENERIC "ra-ResponseWindow", recovery + AT_BFR_GENERIC "ra-ResponseWindow = sl80")
        .silent(recovery);

    table.rule("rach-power")
        .bad(AT_GENERIC "preambleReceivedTargetPower")
        .saying("-103, but only even values are used: -104 or -102")
        .good()
        .fires(AT_RACH "restrictedSetConfig", AT_RACH "restrictedSetConfig = restrictedSetTypeA")
        .as(RRC_RULE_WARNING)
        .silent(longOne + indices(66) + AT_RACH "restrictedSetConfig = restrictedSetTypeB")
        .fires(AT_BFR_GENERIC "preambleReceivedTargetPower",
               recovery + AT_BFR_GENERIC "preambleReceivedTargetPower = -61")
        // Of contention free random access it is ignored.
        .silent(AT_OCCASIONS "rach-ConfigGeneric.preambleReceivedTargetPower = -61");
}

void ofDedicated(CaseTable& table)
{
    const std::string preamble = AT_BLOCKS "ssb-ResourceList[0].ra-PreambleIndex = ";
    const std::string csiRs =
        AT_CFRA "resources = absent\n" AT_CFRA "resources.csirs.csirs-ResourceList[0].csi-RS = 10\n" AT_CFRA
                "resources.csirs.csirs-ResourceList[0].ra-OccasionList[0] = 0\n" AT_CFRA
                "resources.csirs.csirs-ResourceList[0].ra-PreambleIndex = 60\n" AT_CFRA
                "resources.csirs.rsrp-ThresholdCSI-RS = 20\n" AT_CELL "servingCellMO = 1\n";
    const std::string index = AT_CFRA "resources.csirs.csirs-ResourceList[0].csi-RS";
    table.rule("rach-cfra")
        .bad(AT_OCCASIONS "ssb-perRACH-Occasion")
        .good()
        .fires(AT_CFRA "totalNumberOfRA-Preambles-v1530",
               AT_OCCASIONS "rach-ConfigGeneric = absent\n" AT_OCCASIONS "ssb-perRACH-Occasion = absent\n" AT_CFRA
                            "totalNumberOfRA-Preambles-v1530 = 62")
        .silent(AT_CFRA "totalNumberOfRA-Preambles-v1530 = 62")
        .fires(AT_CFRA "totalNumberOfRA-Preambles-v1530",
               AT_CFRA "totalNumberOfRA-Preambles-v1530 = 63\n" AT_OCCASIONS "ssb-perRACH-Occasion = two")
        .as(RRC_RULE_WARNING)
        // 56 of 64 are for contention.
        .fires(AT_BLOCKS "ssb-ResourceList[0].ra-PreambleIndex", preamble + "55")
        .as(RRC_RULE_WARNING)
        .silent(preamble + "56")
        .silent(preamble + "63")
        .fires(AT_BLOCKS "ssb-ResourceList[0].ra-PreambleIndex",
               preamble + "62\n" AT_CFRA "totalNumberOfRA-Preambles-v1530 = 62")
        .as(RRC_RULE_WARNING)
        .saying("62, but random access has the preambles 0..61")
        // Occasions of its own have no preambles for contention.
        .silent(preamble + "0\n" AT_OCCASIONS "rach-ConfigGeneric.msg1-FrequencyStart = 100")
        .fires(AT_BLOCKS "ssb-ResourceList[0].ra-PreambleIndex", AT_CFRA "occasions = absent\n" + preamble + "0")
        .as(RRC_RULE_WARNING)
        // Two blocks share an occasion: 32 each, 24 of them for contention.
        .fires(AT_BLOCKS "ssb-ResourceList[0].ra-PreambleIndex", NO_SHARE AT_SHARE "two = n24\n" + preamble + "55")
        .as(RRC_RULE_WARNING)
        .silent(NO_SHARE AT_SHARE "two = n24\n" + preamble + "31")
        .fires(AT_OCCASIONS "ssb-perRACH-Occasion", csiRs)
        .with(withMeasObject)
        .as(RRC_RULE_NOTICE)
        .silent(csiRs + AT_CFRA "occasions = absent")
        .with(withMeasObject)
        .fires(index, csiRs + AT_CFRA "occasions = absent\n" + index + " = 11")
        .with(withMeasObject)
        .saying("11, but measurement object 1 has no such CSI-RS")
        .undecided(csiRs + AT_CFRA "occasions = absent");

    table.rule("rach-mask")
        .bad(AT_BLOCKS "ra-ssb-OccasionMaskIndex")
        .good()
        .fires(AT_BFR "ra-ssb-OccasionMaskIndex", recovery + AT_BFR "ra-ssb-OccasionMaskIndex = 15")
        .silent(recovery + AT_BFR "ra-ssb-OccasionMaskIndex = 10");

    // The block around ARFCN 633312 begins 1507 subcarriers above point A, 630058, and ends with the 1746th: resource
    // blocks 125..145. With these alone random access of bandwidth part 2 is added.
    const auto second = [](int riv)
    {
        const std::string location =
            "bwp-Common.genericParameters.locationAndBandwidth = " + std::to_string(riv) + "\n";
        return AT_DL2 "bwp-Id = 2\n" AT_DL2 + location +
               AT_DL2 "bwp-Common.genericParameters.subcarrierSpacing = kHz30\n" AT_UL2 "bwp-Id = 2\n" AT_UL2 +
               location + AT_UL2 "bwp-Common.genericParameters.subcarrierSpacing = kHz30\n" +
               generic(AT_RACH2 "rach-ConfigGeneric.", 159) +
               AT_RACH2 "ra-ContentionResolutionTimer = sf64\n" AT_RACH2 "prach-RootSequenceIndex.l139 = 1\n" AT_RACH2
                        "msg1-SubcarrierSpacing = kHz30\n" AT_RACH2 "restrictedSetConfig = unrestrictedSet\n";
    };
    table.rule("rach-common-needed")
        .bad(AT_COMMON_DL "initialDownlinkBWP.pdcch-ConfigCommon.setup.ra-SearchSpace")
        .good()
        .fires(AT_COMMON_UL "initialUplinkBWP.rach-ConfigCommon",
               AT_COMMON_UL "initialUplinkBWP.rach-ConfigCommon = absent")
        .saying("absent, but reconfigurationWithSync begins random access")
        .silent(AT_COMMON_UL "initialUplinkBWP.rach-ConfigCommon = absent\n" + rach1 + response1)
        .silent(rach1 + response1)
        .fires(AT_DL "bwp-Common.pdcch-ConfigCommon", rach1)
        .fires(AT_PDCCH_COMMON "ra-SearchSpace", rach1 + search1)
        .fires(AT_UL "bwp-Common.rach-ConfigCommon",
               AT_BFR "recoverySearchSpaceId = 2\n" AT_BFR "candidateBeamRSList[0].ssb.ssb = 0\n" AT_BFR
                      "candidateBeamRSList[0].ssb.ra-PreambleIndex = 60")
        .silent(AT_BFR "recoverySearchSpaceId = 2\n" AT_BFR "rootSequenceIndex-BFR = 4")
        .silent(recovery)
        .undecided("spCellConfig.reconfigurationWithSync.spCellConfigCommon = absent")
        .silent(second(275 * 20 + 125)) // 125..145
        .with(inDelta)
        .fires(AT_UL2 "bwp-Common.rach-ConfigCommon", second(275 * 20 + 126)) // 126..146
        .with(inDelta)
        .saying("its downlink does not hold the SS/PBCH block")
        .fires(AT_UL2 "bwp-Common.rach-ConfigCommon", second(275 * 19 + 125)) // 125..144
        .with(inDelta);

    table.rule("rach-sul")
        .bad(AT_RACH "rsrp-ThresholdSSB-SUL")
        .good()
        .fires(AT_RACH "rsrp-ThresholdSSB-SUL", AT_RACH "rsrp-ThresholdSSB-SUL = 30")
        .saying("30, but the cell has no supplementary uplink")
        .fires(AT_SYNC "rach-ConfigDedicated",
               AT_SYNC "rach-ConfigDedicated = absent\n" AT_SYNC
                       "rach-ConfigDedicated.supplementaryUplink.ra-Prioritization.powerRampingStepHighPriority = dB4")
        .silent(EXAMPLE_SUL AT_SYNC
                "rach-ConfigDedicated = absent\n" AT_SYNC
                "rach-ConfigDedicated.supplementaryUplink.ra-Prioritization.powerRampingStepHighPriority = dB4");
}

void ofRecovery(CaseTable& table)
{
    const std::string detects =
        AT_MONITORING "beamFailureInstanceMaxCount = n4\n" AT_MONITORING "beamFailureDetectionTimer = pbfd4\n";
    const auto signal = [](const std::string& i, const std::string& purpose, const std::string& source)
    {
        const std::string at = AT_MONITORING "failureDetectionResourcesToAddModList[" + i + "].";
        return at + "radioLinkMonitoringRS-Id = " + i + "\n" + at + "purpose = " + purpose + "\n" + at +
               "detectionResource." + source + "\n";
    };
    table.rule("rach-bfr")
        .bad(AT_MONITORING "beamFailureDetectionTimer")
        .saying("absent, but beamFailureInstanceMaxCount is there")
        .good()
        .fires(AT_MONITORING "beamFailureInstanceMaxCount", AT_MONITORING "beamFailureDetectionTimer = pbfd4")
        .as(RRC_RULE_WARNING)
        .fires(AT_SIGNAL("3") "purpose", detects + signal("1", "beamFailure", "ssb-Index = 0") +
                                             signal("2", "both", "csi-RS-Index = 1") +
                                             signal("3", "beamFailure", "ssb-Index = 1"))
        .saying("2 other signals detect beam failure already")
        .silent(detects + signal("1", "beamFailure", "ssb-Index = 0") + signal("2", "both", "csi-RS-Index = 1") +
                signal("3", "rlf", "ssb-Index = 1"))
        // CSI-RS 0 has four ports.
        .fires(AT_SIGNAL("1") "detectionResource.csi-RS-Index",
               detects + signal("1", "beamFailure", "csi-RS-Index = 0"))
        .saying("CSI-RS 0 of 4 ports")
        .fires(AT_SIGNAL("1") "detectionResource.csi-RS-Index",
               detects + signal("1", "beamFailure", "csi-RS-Index = 9"))
        .fires(AT_SIGNAL("1") "detectionResource.csi-RS-Index",
               detects + signal("1", "beamFailure", "csi-RS-Index = 9"))
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        .silent(candidate(1))
        .fires(AT_BFR "candidateBeamRSList[0].csi-RS.csi-RS", candidate(0))
        .saying("CSI-RS 0 of 4 ports, but a candidate has one or two")
        .fires(AT_BFR "candidateBeamRSList[0].csi-RS.csi-RS", candidate(9))
        .fires(AT_BFR "candidateBeamRSList[0].csi-RS.csi-RS",
               candidate(3) + AT_CSI
                   "csi-ReportConfigToAddModList[1] = absent\n" AT_CSI "aperiodicTriggerStateList = absent\n" AT_CSI
                   "nzp-CSI-RS-ResourceToAddModList[3].resourceMapping.frequencyDomainAllocation = absent\n" AT_CSI
                   "nzp-CSI-RS-ResourceToAddModList[3].resourceMapping.frequencyDomainAllocation.row2 = 8000\n" AT_CSI
                   "nzp-CSI-RS-ResourceToAddModList[3].resourceMapping.nrofPorts = p1\n" AT_CSI
                   "nzp-CSI-RS-ResourceToAddModList[3].resourceMapping.cdm-Type = noCDM\n" AT_CSI
                   "nzp-CSI-RS-ResourceToAddModList[3].resourceMapping.density = absent\n" AT_CSI
                   "nzp-CSI-RS-ResourceToAddModList[3].resourceMapping.density.dot5 = evenPRBs\n")
        .saying("CSI-RS 3 of density dot5")
        // CSI-RS 6 is alike, in another bandwidth part.
        .silent(candidate(6) + anotherBwp + AT_CSI_RESOURCES "[5].bwp-Id = 1")
        .fires(AT_BFR "candidateBeamRSList[0].csi-RS.csi-RS", candidate(6) + anotherBwp)
        .saying("CSI-RS 6 of another bandwidth part, but candidates are in downlink bandwidth part 1")
        .fires(AT_SUL_BWP "beamFailureRecoveryConfig",
               recovery + EXAMPLE_SUL AT_SUL_BWP "beamFailureRecoveryConfig.setup.rootSequenceIndex-BFR = 4\n" +
                   generic(AT_COMMON_SUL "initialUplinkBWP.rach-ConfigCommon.setup.rach-ConfigGeneric.", 159) +
                   AT_COMMON_SUL
                   "initialUplinkBWP.rach-ConfigCommon.setup.ra-ContentionResolutionTimer = sf64\n" AT_COMMON_SUL
                   "initialUplinkBWP.rach-ConfigCommon.setup.prach-RootSequenceIndex.l139 = 1\n" AT_COMMON_SUL
                   "initialUplinkBWP.rach-ConfigCommon.setup.msg1-SubcarrierSpacing = kHz30\n" AT_COMMON_SUL
                   "initialUplinkBWP.rach-ConfigCommon.setup.restrictedSetConfig = unrestrictedSet\n");
}

} // namespace

void rachCases(CaseTable& table)
{
    ofPreambles(table);
    ofDedicated(table);
    ofRecovery(table);
}

} // namespace test
