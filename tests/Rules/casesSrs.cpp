#include "ruleCases.h"

namespace test
{
namespace
{

#define AT_SET AT_SRS "srs-ResourceSetToAddModList[0]."
#define AT_SET1 AT_SRS "srs-ResourceSetToAddModList[1]."
#define AT_SET2 AT_SRS "srs-ResourceSetToAddModList[2]."
#define AT_SOUNDING AT_SRS "srs-ResourceToAddModList[0]."
#define AT_MAPPING AT_SOUNDING "resourceMapping."
#define AT_HOPPING AT_SOUNDING "freqHopping."
#define AT_SWITCHING AT_UPLINK "carrierSwitching.setup."
#define AT_GROUP AT_SWITCHING "srs-TPC-PDCCH-Group."
#define AT_RELATION AT_SOUNDING "spatialRelationInfo."
#define NO_SYNC "spCellConfig.reconfigurationWithSync = absent\n"
#define AT_UL2 AT_UPLINK "uplinkBWP-ToAddModList[1]."
#define AT_SECOND AT_UL2 "bwp-Dedicated.srs-Config.setup."

// A further resource of a symbol, `type` its resourceType with its value.
std::string resource(int id, const std::string& ports, int position,
                     const std::string& type = "periodic.periodicityAndOffset-p.sl40 = 19")
{
    const std::string at = AT_SRS "srs-ResourceToAddModList[" + std::to_string(id) + "].";
    return at + "srs-ResourceId = " + std::to_string(id) + "\n" + at + "nrofSRS-Ports = " + ports + "\n" + at +
           "transmissionComb.n2.combOffset-n2 = 1\n" + at + "transmissionComb.n2.cyclicShift-n2 = 0\n" + at +
           "resourceMapping.startPosition = " + std::to_string(position) + "\n" + at +
           "resourceMapping.nrofSymbols = n1\n" + at + "resourceMapping.repetitionFactor = n1\n" + at +
           "freqDomainPosition = 0\n" + at + "freqDomainShift = 0\n" + at + "freqHopping.c-SRS = 61\n" + at +
           "freqHopping.b-SRS = 0\n" + at + "freqHopping.b-hop = 3\n" + at + "groupOrSequenceHopping = neither\n" + at +
           "sequenceId = 42\n" + at + "resourceType." + type + "\n";
}

// A further set of resources first..first + count - 1.
std::string set(int id, const std::string& usage, const std::string& type, int first, int count)
{
    const std::string at = AT_SRS "srs-ResourceSetToAddModList[" + std::to_string(id) + "].";
    std::string text = at + "srs-ResourceSetId = " + std::to_string(id) + "\n" + at + "usage = " + usage + "\n" + at +
                       "p0 = -90\n" + at + "resourceType." + type + "\n";
    for (int i = 0; i < count; ++i)
    {
        text += at + "srs-ResourceIdList[" + std::to_string(i) + "] = " + std::to_string(first + i) + "\n";
    }
    return text;
}

// Sounding of 272 resource blocks on bandwidth part 2, of so many from the first on.
std::string second(int blocks)
{
    const std::string location =
        "bwp-Common.genericParameters.locationAndBandwidth = " + std::to_string(275 * (276 - blocks) + 274) + "\n";
    const std::string dl = AT_CELL "downlinkBWP-ToAddModList[1].";
    std::string text = dl + "bwp-Id = 2\n" + dl + location + dl +
                       "bwp-Common.genericParameters.subcarrierSpacing = kHz30\n" AT_UL2 "bwp-Id = 2\n" AT_UL2 +
                       location + AT_UL2 "bwp-Common.genericParameters.subcarrierSpacing = kHz30\n";
    std::string sounding = resource(0, "port1", 0);
    for (std::size_t at = 0; (at = sounding.find("uplinkBWP-ToAddModList[0]", at)) != std::string::npos; ++at)
    {
        sounding.replace(at, 25, "uplinkBWP-ToAddModList[1]");
    }
    return text + sounding;
}

const std::string nonCodebook =
    AT_PUSCH "txConfig = nonCodebook\n" AT_PUSCH "codebookSubset = absent\n" AT_PUSCH "maxRank = absent\n" AT_SET
             "usage = nonCodebook\n" AT_SOUNDING "nrofSRS-Ports = port1\n";
const std::string ptrs = AT_PUSCH
    "dmrs-UplinkForPUSCH-MappingTypeA.setup.phaseTrackingRS.setup.transformPrecoderDisabled.maxNrofPorts = "
    "n2\n" AT_PUSCH
    "dmrs-UplinkForPUSCH-MappingTypeA.setup.phaseTrackingRS.setup.transformPrecoderDisabled.ptrs-Power = p00\n";

const std::string onTrigger = "aperiodic = {}";
const std::string byOne = "aperiodic.aperiodicSRS-ResourceTrigger = 1";

// The carrier begins 100 resource blocks behind point A.
const std::string offset100 =
    AT_COMMON_UL "frequencyInfoUL.scs-SpecificCarrierList[0].offsetToCarrier = 100\n" AT_COMMON_DL
                 "frequencyInfoDL.scs-SpecificCarrierList[0].offsetToCarrier = 100\n";

void ofSets(CaseTable& table)
{
    table.rule("srs-set-ref")
        .bad(AT_SET "srs-ResourceIdList[0]")
        .saying("1, but a sounding resource of that id is not configured: there is 0")
        .good()
        .fires(AT_SET "srs-ResourceIdList", AT_SET "srs-ResourceIdList = absent")
        .undecided(AT_SET "srs-ResourceIdList = absent")
        .with(inDelta)
        .fires(AT_SET "srs-ResourceIdList[0]", AT_SET "srs-ResourceIdList[0] = 1")
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        .fires(AT_SET "srs-ResourceIdList[0]",
               AT_SRS "srs-ResourceToAddModList = absent\n" AT_SRS "srs-ResourceToReleaseList[0] = 0")
        .with(inDelta)
        .saying("is released by this message");

    table.rule("srs-set-size")
        .bad(AT_SET1 "usage")
        .good()
        .fires(AT_SET1 "usage", set(1, "nonCodebook", "periodic = {}", 1, 1) + resource(1, "port1", 0))
        .fires(AT_SET "srs-ResourceIdList", resource(1, "ports2", 0) + resource(2, "ports2", 0) +
                                                AT_SET "srs-ResourceIdList[1] = 1\n" AT_SET "srs-ResourceIdList[2] = 2")
        .saying("3 elements, but a set of that usage has at most 2")
        .silent(resource(1, "ports2", 0) + AT_SET "srs-ResourceIdList[1] = 1\n" AT_PUSCH
                                                  "pusch-PowerControl.sri-PUSCH-MappingToAddModList = absent")
        .fires(AT_SRS "srs-ResourceToAddModList[1].nrofSRS-Ports",
               resource(1, "ports4", 0) + AT_SET "srs-ResourceIdList[1] = 1")
        .fires(AT_SOUNDING "nrofSRS-Ports", nonCodebook + AT_SOUNDING "nrofSRS-Ports = ports2")
        .silent(nonCodebook)
        .silent(nonCodebook + resource(1, "port1", 1) + resource(2, "port1", 2) + resource(3, "port1", 3) +
                AT_SET "srs-ResourceIdList[1] = 1\n" AT_SET "srs-ResourceIdList[2] = 2\n" AT_SET
                       "srs-ResourceIdList[3] = 3")
        .fires(AT_SET "srs-ResourceIdList",
               nonCodebook + resource(1, "port1", 1) + resource(2, "port1", 2) + resource(3, "port1", 3) +
                   resource(4, "port1", 4) +
                   AT_SET "srs-ResourceIdList[1] = 1\n" AT_SET "srs-ResourceIdList[2] = 2\n" AT_SET
                          "srs-ResourceIdList[3] = 3\n" AT_SET "srs-ResourceIdList[4] = 4");

    table.rule("srs-set-behaviour")
        .bad(AT_SOUNDING "resourceType")
        .saying("periodic, but set 0, which has the resource, is semi-persistent")
        .good()
        .fires(AT_SOUNDING "resourceType",
               AT_SOUNDING "resourceType = absent\n" AT_SOUNDING "resourceType.aperiodic = {}")
        .fires(AT_SRS "srs-ResourceToAddModList[1].resourceType",
               AT_SET "srs-ResourceIdList[1] = 1\n" +
                   resource(1, "ports2", 0, "periodic.periodicityAndOffset-p.sl80 = 19"))
        .saying("period 80, but another resource of set 0 has 40")
        .silent(AT_SET "srs-ResourceIdList[1] = 1\n" + resource(1, "ports2", 0));

    table.rule("srs-power")
        .bad(AT_SET "p0")
        .saying("absent, but the set is new")
        .good()
        .fires(AT_SET "p0", AT_SET "p0 = -89")
        .saying("-90 or -88")
        .silent(AT_SET "p0 = 24")
        .undecided(AT_SET "p0 = absent")
        .with(inDelta)
        .fires(AT_SET "srs-PowerControlAdjustmentStates",
               AT_SET "srs-PowerControlAdjustmentStates = "
                      "separateClosedLoop\n" AT_UL "bwp-Dedicated.pusch-Config = absent")
        .as(RRC_RULE_WARNING)
        .silent(AT_SET "srs-PowerControlAdjustmentStates = separateClosedLoop\n" AT_UL
                       "bwp-Dedicated.pusch-Config = absent")
        .with(inDelta)
        .silent(AT_SET "srs-PowerControlAdjustmentStates = separateClosedLoop");
}

void ofResources(CaseTable& table)
{
    table.rule("srs-symbols")
        .bad(AT_MAPPING "nrofSymbols")
        .saying("n4, but from startPosition 2 on the slot has 3")
        .good()
        .fires(AT_MAPPING "nrofSymbols",
               AT_MAPPING "startPosition = 0\n" AT_MAPPING "nrofSymbols = n4\n" AT_MAPPING "repetitionFactor = n1")
        .silent(AT_MAPPING "startPosition = 3\n" AT_MAPPING "nrofSymbols = n4\n" AT_MAPPING "repetitionFactor = n1")
        .fires(AT_MAPPING "nrofSymbols", AT_MAPPING "nrofSymbols = n2")
        .silent(AT_MAPPING "nrofSymbols = n2\n" AT_MAPPING "startPosition = 1")
        .fires(AT_MAPPING "repetitionFactor", AT_MAPPING "repetitionFactor = n2")
        .silent(AT_MAPPING "nrofSymbols = n2\n" AT_MAPPING "startPosition = 5\n" AT_MAPPING "repetitionFactor = n2");

    // c-SRS 61: 272 resource blocks. 62: 272, 68, 4, 4; the place at b = 1 is 4 * freqDomainPosition / 68.
    const std::string wide = AT_HOPPING "c-SRS = 61\n";
    const std::string narrow = AT_HOPPING "c-SRS = 62\n" AT_HOPPING "b-SRS = 1\n" AT_HOPPING "b-hop = 1\n";
    table.rule("srs-bandwidth")
        .bad(AT_SOUNDING "freqDomainShift")
        .saying("2: resource blocks 2..273, but the bandwidth part ends with 272")
        .good()
        .silent(narrow + AT_SOUNDING "freqDomainPosition = 17\n" AT_SOUNDING "freqDomainShift = 137")
        .fires(AT_SOUNDING "freqDomainShift",
               narrow + AT_SOUNDING "freqDomainPosition = 17\n" AT_SOUNDING "freqDomainShift = 138")
        // With hopping over all of it the place is nothing.
        .fires(AT_SOUNDING "freqDomainShift", narrow + AT_HOPPING "b-hop = 0\n" AT_SOUNDING "freqDomainShift = 137")
        .fires(AT_SECOND "srs-ResourceToAddModList[0].freqHopping.c-SRS", second(271))
        .with(inDelta)
        .saying("61: 272 resource blocks, but the bandwidth part has 271")
        .silent(second(272))
        .with(inDelta)
        .fires(AT_SECOND "srs-ResourceToAddModList[0].freqHopping.c-SRS",
               second(271) + AT_SECOND "srs-ResourceToAddModList[0].freqHopping.c-SRS = 62\n" AT_SECOND
                                       "srs-ResourceToAddModList[0].freqHopping.b-SRS = 1")
        .with(inDelta)
        .as(RRC_RULE_WARNING)
        .saying("62: 272 resource blocks, of which b-SRS leaves 68")
        // A shift of 100 is the bandwidth part's first block, 99 one of the bandwidth part, behind whose end it leads.
        .silent(offset100 + wide + AT_SOUNDING "freqDomainShift = 101")
        .fires(AT_SOUNDING "freqDomainShift", offset100 + wide + AT_SOUNDING "freqDomainShift = 102")
        .saying("102: resource blocks 102..373, but the bandwidth part ends with 372")
        .fires(AT_SOUNDING "freqDomainShift", offset100 + wide + AT_SOUNDING "freqDomainShift = 99")
        .undecided(std::string(NO_SYNC) + wide + AT_SOUNDING "freqDomainShift = 2")
        .silent(std::string(NO_SYNC) + wide + AT_SOUNDING "freqDomainShift = 1")
        .fires(AT_SOUNDING "freqDomainShift", std::string(NO_SYNC) + wide + AT_SOUNDING "freqDomainShift = 2")
        .with(
            [](RrcRuleContext& known)
            {
                static const SCS_SpecificCarrier carrier = []
                {
                    SCS_SpecificCarrier made{};
                    made.subcarrierSpacing = SubcarrierSpacing_kHz30;
                    made.carrierBandwidth = 273;
                    return made;
                }();
                known.carriersUl = &carrier;
                known.numCarriersUl = 1;
            });

    table.rule("srs-ptrs-port")
        .bad(AT_SOUNDING "ptrs-PortIndex")
        .saying("n1, but maxNrofPorts of the PT-RS is n1")
        .good()
        .silent(nonCodebook + ptrs + AT_SOUNDING "ptrs-PortIndex = n1")
        .fires(AT_SOUNDING "ptrs-PortIndex", nonCodebook + AT_SOUNDING "ptrs-PortIndex = n0")
        .as(RRC_RULE_WARNING)
        .undecided(nonCodebook + AT_SOUNDING "ptrs-PortIndex = n0")
        .with(inDelta)
        .fires(AT_SOUNDING "ptrs-PortIndex", ptrs + AT_SOUNDING "ptrs-PortIndex = n0")
        .as(RRC_RULE_WARNING)
        .saying("the resource is in no set for nonCodebook");

    table.rule("srs-noncodebook")
        .bad(AT_SET "resourceType.periodic.associatedCSI-RS")
        .good()
        .fires(AT_SET "resourceType.periodic.associatedCSI-RS",
               nonCodebook + AT_SET "resourceType = absent\n" AT_SET "resourceType.periodic.associatedCSI-RS = 9")
        .saying("there is 0..5")
        // CSI-RS 3 is sent when triggered.
        .fires(AT_SET "resourceType.periodic.associatedCSI-RS",
               nonCodebook + AT_SET "resourceType = absent\n" AT_SET "resourceType.periodic.associatedCSI-RS = 3")
        .as(RRC_RULE_WARNING)
        .silent(nonCodebook + AT_SET "resourceType = absent\n" AT_SET "resourceType." + byOne + "\n" +
                AT_SET "resourceType.aperiodic.csi-RS = 3\n" AT_SOUNDING "resourceType = absent\n" AT_SOUNDING
                       "resourceType.aperiodic = {}")
        .fires(AT_SET1 "resourceType.aperiodic.csi-RS", set(1, "beamManagement", byOne, 1, 1) +
                                                            resource(1, "ports2", 0, onTrigger) +
                                                            AT_SET1 "resourceType.aperiodic.csi-RS = 3")
        .fires(AT_SOUNDING "spatialRelationInfo",
               nonCodebook + AT_SET "resourceType = absent\n" AT_SET "resourceType.periodic.associatedCSI-RS = "
                                    "0\n" AT_RELATION "referenceSignal.ssb-Index = 0")
        .silent(nonCodebook + AT_RELATION "referenceSignal.ssb-Index = 0");
}

void ofAntennas(CaseTable& table)
{
    const std::string four = resource(1, "port1", 0, "periodic.periodicityAndOffset-p.sl40 = 1") +
                             resource(2, "port1", 2, "periodic.periodicityAndOffset-p.sl40 = 1") +
                             resource(3, "port1", 4, "periodic.periodicityAndOffset-p.sl40 = 1") +
                             resource(4, "port1", 0, "periodic.periodicityAndOffset-p.sl40 = 11");
    const std::string triggered = resource(1, "port1", 0, onTrigger) + resource(2, "port1", 2, onTrigger) +
                                  resource(3, "port1", 4, onTrigger) + resource(4, "port1", 0, onTrigger);
    const std::string apart = AT_SET2 "resourceType.aperiodic.slotOffset = 2\n";
    // Four antennas by turns, in two sets: 3 + 1.
    const std::string of14 =
        set(1, "antennaSwitching", byOne, 1, 3) + set(2, "antennaSwitching", byOne, 4, 1) + apart + triggered;
    table.rule("srs-antenna-switching")
        .bad(AT_SET1 "srs-ResourceIdList")
        .saying("2 resources of 4 ports, but there are 1T=1R")
        .good()
        .silent(set(1, "antennaSwitching", "periodic = {}", 1, 4) + four)
        .fires(AT_SET1 "srs-ResourceIdList", set(1, "antennaSwitching", "periodic = {}", 1, 3) + four)
        .silent(set(1, "antennaSwitching", "periodic = {}", 1, 1) + resource(1, "ports4", 0))
        .fires(AT_SRS "srs-ResourceToAddModList[2].nrofSRS-Ports",
               set(1, "antennaSwitching", "periodic = {}", 1, 2) + resource(1, "port1", 0) + resource(2, "ports2", 2))
        // Triggered, four are in two slots: 3 + 1 or 2 + 2.
        .fires(AT_SET1 "srs-ResourceIdList", set(1, "antennaSwitching", byOne, 1, 4) + triggered)
        .saying("1T4R has two aperiodic sets")
        .fires(AT_SET1 "srs-ResourceIdList", set(1, "antennaSwitching", byOne, 1, 3) + triggered)
        .fires(AT_SET1 "srs-ResourceIdList", set(1, "antennaSwitching", byOne, 1, 3) + triggered)
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        .silent(set(1, "antennaSwitching", byOne, 1, 3) + set(2, "antennaSwitching", byOne, 4, 1) + apart + triggered)
        .silent(set(1, "antennaSwitching", byOne, 1, 2) + set(2, "antennaSwitching", byOne, 3, 2) + apart + triggered)
        .fires(AT_SET2 "resourceType.aperiodic.slotOffset",
               set(1, "antennaSwitching", byOne, 1, 3) + set(2, "antennaSwitching", byOne, 4, 1) + triggered)
        .as(RRC_RULE_WARNING)
        .fires(AT_SET2 "resourceType.aperiodic.aperiodicSRS-ResourceTrigger",
               set(1, "antennaSwitching", byOne, 1, 3) + set(2, "antennaSwitching", byOne, 4, 1) + apart + triggered +
                   AT_SET2 "resourceType.aperiodic.aperiodicSRS-ResourceTrigger = 2")
        .as(RRC_RULE_WARNING)
        .fires(AT_SET2 "srs-ResourceSetId", set(1, "antennaSwitching", byOne, 1, 3) +
                                                set(2, "antennaSwitching", byOne, 4, 1) + apart + triggered +
                                                AT_SET2 "p0 = -92")
        .as(RRC_RULE_WARNING)
        .silent(of14 + AT_SET1 "pathlossReferenceRS.ssb-Index = 0\n" AT_SET2 "pathlossReferenceRS.ssb-Index = 0")
        .fires(AT_SET2 "srs-ResourceSetId",
               of14 + AT_SET1 "pathlossReferenceRS.ssb-Index = 0\n" AT_SET2 "pathlossReferenceRS.ssb-Index = 1")
        .as(RRC_RULE_WARNING)
        .silent(of14 + AT_SET1 "pathlossReferenceRS.csi-RS-Index = 1\n" AT_SET2 "pathlossReferenceRS.csi-RS-Index = 1")
        .fires(AT_SET2 "srs-ResourceSetId",
               of14 + AT_SET1 "pathlossReferenceRS.csi-RS-Index = 1\n" AT_SET2 "pathlossReferenceRS.csi-RS-Index = 2")
        .as(RRC_RULE_WARNING)
        .fires(AT_SET2 "srs-ResourceSetId",
               of14 + AT_SET1 "pathlossReferenceRS.ssb-Index = 1\n" AT_SET2 "pathlossReferenceRS.csi-RS-Index = 1")
        .as(RRC_RULE_WARNING)
        .fires(AT_SET2 "srs-ResourceSetId", of14 + AT_SET2 "pathlossReferenceRS.ssb-Index = 0")
        .as(RRC_RULE_WARNING)
        .saying("set 1 of the same antennas has others")
        // Two sets of 1T2R, periodic and triggered, are no halves of 1T4R.
        .silent(set(1, "antennaSwitching", byOne, 1, 2) + set(2, "antennaSwitching", "periodic = {}", 3, 2) +
                resource(1, "port1", 0, onTrigger) + resource(2, "port1", 2, onTrigger) + resource(3, "port1", 0) +
                resource(4, "port1", 2))
        // A symbol to switch.
        .fires(AT_SRS "srs-ResourceToAddModList[2].resourceMapping",
               set(1, "antennaSwitching", "periodic = {}", 1, 2) + resource(1, "port1", 1) + resource(2, "port1", 0))
        .as(RRC_RULE_WARNING)
        .saying("right behind resource 1 in the same slot, but between antennas there is 1 symbol")
        .fires(AT_SRS "srs-ResourceToAddModList[2].resourceMapping",
               set(1, "antennaSwitching", "periodic = {}", 1, 2) + resource(1, "port1", 0) + resource(2, "port1", 0))
        .as(RRC_RULE_WARNING)
        .silent(set(1, "antennaSwitching", "periodic = {}", 1, 2) + resource(1, "port1", 0) +
                resource(2, "port1", 0, "periodic.periodicityAndOffset-p.sl40 = 29"))
        .fires(AT_SET1 "srs-ResourceIdList",
               set(1, "antennaSwitching", "periodic = {}", 1, 2) + resource(1, "port1", 2) + resource(2, "port1", 0))
        .with(
            [](RrcRuleContext& known)
            {
                static RrcRuleCapabilities capabilities;
                capabilities.features = RRC_RULE_FEATURE_SRS_SWITCH_1T4R | RRC_RULE_FEATURE_SRS_SWITCH_EQUAL;
                known.capabilities = &capabilities;
            })
        .as(RRC_RULE_WARNING)
        .saying("1T2R, but the UE does not support it");

    table.rule("srs-aperiodic-trigger")
        .bad(AT_SET1 "resourceType.aperiodic.aperiodicSRS-ResourceTriggerList-v1530[0]")
        .good()
        .fires(AT_SET2 "resourceType.aperiodic.aperiodicSRS-ResourceTrigger",
               set(1, "beamManagement", byOne, 1, 1) + set(2, "beamManagement", byOne, 2, 1) +
                   resource(1, "ports2", 0, onTrigger) + resource(2, "ports2", 0, onTrigger))
        .saying("set 1 is sent in the same symbols")
        .silent(set(1, "beamManagement", byOne, 1, 1) + set(2, "beamManagement", byOne, 2, 1) +
                resource(1, "ports2", 0, onTrigger) + resource(2, "ports2", 1, onTrigger))
        .silent(set(1, "beamManagement", byOne, 1, 1) + set(2, "beamManagement", byOne, 2, 1) +
                resource(1, "ports2", 0, onTrigger) + resource(2, "ports2", 0, onTrigger) +
                AT_SET2 "resourceType.aperiodic.slotOffset = 1")
        .silent(set(1, "beamManagement", byOne, 1, 1) +
                set(2, "beamManagement", "aperiodic.aperiodicSRS-ResourceTrigger = 2", 2, 1) +
                resource(1, "ports2", 0, onTrigger) + resource(2, "ports2", 0, onTrigger))
        // The same resource is sent once.
        .silent(set(1, "beamManagement", byOne, 1, 1) + set(2, "antennaSwitching", byOne, 1, 1) +
                resource(1, "ports2", 0, onTrigger));
}

void ofOtherCells(CaseTable& table)
{
    const std::string relation =
        AT_RELATION "referenceSignal.srs.uplinkBWP = 1\n" AT_RELATION "referenceSignal.srs.resourceId = 1\n";
    const std::string beams = "semi-persistent.periodicityAndOffset-sp.sl40 = 19";
    const std::string semiPersistent =
        AT_SET "resourceType = absent\n" AT_SET "resourceType.semi-persistent = {}\n" AT_SOUNDING
               "resourceType = absent\n" AT_SOUNDING "resourceType.semi-persistent.periodicityAndOffset-sp.sl40 = 9\n";
    table.rule("srs-spatial-refs")
        .bad(AT_RELATION "referenceSignal.csi-RS-Index")
        .good()
        .silent(semiPersistent + relation +
                resource(1, "ports2", 0, "semi-persistent.periodicityAndOffset-sp.sl40 = 19"))
        .silent(semiPersistent + relation + resource(1, "ports2", 0))
        .fires(AT_RELATION "referenceSignal.srs.resourceId",
               semiPersistent + relation + resource(1, "ports2", 0, onTrigger))
        .saying("1, which is aperiodic, but a semi-persistent resource follows none that is")
        .silent(AT_RELATION "referenceSignal.ssb-Index = 1")
        // CSI-RS 3 is aperiodic.
        .fires(AT_RELATION "referenceSignal.csi-RS-Index", AT_RELATION "referenceSignal.csi-RS-Index = 3")
        .saying("CSI-RS 3, which is aperiodic")
        .fires(AT_RELATION "referenceSignal.srs.resourceId", relation)
        .silent(relation + set(1, "beamManagement", "periodic = {}", 1, 1) + resource(1, "ports2", 0))
        .fires(AT_RELATION "referenceSignal.srs.resourceId",
               relation + set(1, "beamManagement", "semi-persistent = {}", 1, 1) + resource(1, "ports2", 0, beams))
        .saying("1, which is semi-persistent, but a periodic resource follows none that is")
        .fires(AT_RELATION "referenceSignal.srs.uplinkBWP",
               relation + AT_RELATION "referenceSignal.srs.uplinkBWP = 2\n" + resource(1, "ports2", 0))
        .fires(AT_RELATION "referenceSignal.srs.uplinkBWP",
               relation + AT_RELATION "referenceSignal.srs.uplinkBWP = 2\n" + resource(1, "ports2", 0))
        .with(inDelta)
        .as(RRC_RULE_NOTICE)
        .fires(AT_RELATION "servingCellId",
               AT_RELATION "servingCellId = 1\n" AT_RELATION "referenceSignal.ssb-Index = 0")
        .silent(AT_RELATION "servingCellId = 0\n" AT_RELATION "referenceSignal.csi-RS-Index = 2")
        .fires(AT_SET "pathlossReferenceRS.csi-RS-Index",
               AT_SET "pathlossReferenceRS = absent\n" AT_SET "pathlossReferenceRS.csi-RS-Index = 9")
        .silent(AT_SET "pathlossReferenceRS = absent\n" AT_SET "pathlossReferenceRS.csi-RS-Index = 0");

    const std::string nothing = AT_SWITCHING "srs-SwitchFromCarrier = nUL\n";
    const std::string index = AT_GROUP "typeA[0].srs-CC-SetIndexlist[0].cc-IndexInOneCC-Set = 0\n";
    table.rule("srs-carrier-switching")
        .bad(AT_GROUP "typeA[0].srs-CC-SetIndexlist[0].cc-SetIndex")
        .saying("3, but sets are 0..2")
        .good()
        .fires(AT_GROUP "typeA[0].srs-CC-SetIndexlist[0].cc-SetIndex", nothing + index)
        .fires(AT_GROUP "typeA[0].srs-CC-SetIndexlist[0].cc-IndexInOneCC-Set",
               nothing + AT_GROUP "typeA[0].srs-CC-SetIndexlist[0].cc-SetIndex = 0")
        .fires(AT_GROUP "typeA[0].srs-CC-SetIndexlist", nothing + AT_GROUP "typeA[0] = {}")
        .fires(AT_GROUP "typeA", nothing + index +
                                     AT_GROUP "typeA[0].srs-CC-SetIndexlist[0].cc-SetIndex = 0\n" AT_GROUP
                                              "typeA[1].srs-CC-SetIndexlist[0].cc-SetIndex = 0\n" AT_GROUP
                                              "typeA[1].srs-CC-SetIndexlist[0].cc-IndexInOneCC-Set = 1")
        .fires(AT_GROUP "typeB.srs-CC-SetIndexlist", nothing + AT_GROUP "typeB.srs-CC-SetIndexlist[0].cc-SetIndex = 0")
        .silent(nothing + AT_GROUP "typeB = {}")
        .fires(AT_SWITCHING "srs-SwitchFromServCellIndex", nothing + AT_SWITCHING "srs-SwitchFromServCellIndex = 0")
        .saying("0, but that is this cell itself")
        .fires(AT_SWITCHING "srs-SwitchFromServCellIndex", nothing + AT_SWITCHING "srs-SwitchFromServCellIndex = 1")
        .silent(nothing + AT_SWITCHING "srs-SwitchFromServCellIndex = 1\n" ADD_SCELL)
        .fires(AT_SWITCHING "monitoringCells[0]", nothing + AT_SWITCHING "monitoringCells[0] = 1")
        .silent(nothing + AT_SWITCHING "monitoringCells[0] = 1\n" ADD_SCELL)
        .fires(AT_SUL "carrierSwitching", EXAMPLE_SUL AT_SUL "carrierSwitching.setup.srs-SwitchFromCarrier = nUL");
}

} // namespace

void srsCases(CaseTable& table)
{
    ofSets(table);
    ofResources(table);
    ofAntennas(table);
    ofOtherCells(table);
}

} // namespace test
