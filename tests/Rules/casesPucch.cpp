#include "ruleCases.h"

#include <fstream>
#include <sstream>

namespace test
{

namespace
{

constexpr const char* srAt = AT_PUCCH "schedulingRequestResourceToAddModList[0].";

// The first resource of format 1 with so many symbols, from the first on, hopping or not.
std::string format1(OSUINT32 symbols, bool hopping, OSUINT32 sequence)
{
    const std::string at = AT_PUCCH_RESOURCE "[0].";
    return at + "format.format1.nrofSymbols = " + std::to_string(symbols) + "\n" + at +
           "format.format1.timeDomainOCC = " + std::to_string(sequence) + "\n" +
           (hopping ? "" : at + "intraSlotFrequencyHopping = absent\n" + at + "secondHopPRB = absent\n");
}

// TS 38.211 table 6.3.2.4.1-1 for 4 to 14 symbols: without hopping, and of both hops.
constexpr OSUINT32 sequences[3][11] = {
    {2, 2, 3, 3, 4, 4, 5, 5, 6, 6, 7}, {1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3}, {1, 1, 2, 2, 2, 2, 3, 3, 3, 3, 4}};

// Every number of symbols with the last sequence that it has and the one behind.
void f1Cases(Cases occ)
{
    for (OSUINT32 symbols = 4; symbols <= 14; ++symbols)
    {
        for (const bool hopping : {false, true})
        {
            const OSUINT32 count =
                hopping ? std::min(sequences[1][symbols - 4], sequences[2][symbols - 4]) : sequences[0][symbols - 4];
            occ.silent(format1(symbols, hopping, count - 1));
            if (count <= 6)
            {
                occ.fires(AT_PUCCH_RESOURCE "[0].format.format1.timeDomainOCC", format1(symbols, hopping, count));
            }
        }
    }
}

// Every size of format 3, sent without hopping.
void f3Cases(Cases prbs)
{
    for (OSUINT32 size = 1; size <= 16; ++size)
    {
        const std::string changes = std::string(AT_PUCCH_RESOURCE "[4].intraSlotFrequencyHopping = absent\n")
                                        .append(AT_PUCCH_RESOURCE "[4].secondHopPRB = absent\n")
                                        .append(rrcRuleById("pucch-f3-prbs")->good)
                                        .append("\n" AT_PUCCH_RESOURCE "[4].secondHopPRB = absent\n")
                                        .append(AT_PUCCH_RESOURCE "[4].format.format3.nrofPRBs = ")
                                        .append(std::to_string(size));
        const bool isNone = size == 7 || size == 11 || size == 13 || size == 14;
        isNone ? prbs.fires(AT_PUCCH_RESOURCE "[4].format.format3.nrofPRBs", changes) : prbs.silent(changes);
    }
}

// Every alternative of periodicityAndOffset in slots, at 30 kHz.
void srPeriodCases(Cases period)
{
    for (const OSUINT32 slots : {1U, 2U, 4U, 5U, 8U, 10U, 16U, 20U, 40U, 80U, 160U, 320U, 640U})
    {
        const std::string changes = std::string(srAt) + "periodicityAndOffset = absent\n" + srAt +
                                    "periodicityAndOffset.sl" + std::to_string(slots) +
                                    (slots == 1 ? " = null" : " = 0");
        const std::string place = std::string(srAt) + "periodicityAndOffset";
        if (slots == 5)
        {
            period.fires(place, changes).as(RRC_RULE_WARNING);
        }
        else if (slots > 160)
        {
            period.fires(place, changes);
        }
        else
        {
            period.silent(changes);
        }
    }
}

// PUCCH resource set 1 with so many resources of format 2.
std::string largeSet(int count)
{
    std::string text;
    for (int i = 4; i < count; ++i)
    {
        const std::string at = AT_PUCCH_RESOURCE "[" + std::to_string(4 + i) + "].";
        text += at + "pucch-ResourceId = " + std::to_string(4 + i) + "\n" + at +
                "startingPRB = " + std::to_string(4 + i) + "\n" + at + "format.format2.nrofPRBs = 1\n" + at +
                "format.format2.nrofSymbols = 2\n" + at + "format.format2.startingSymbolIndex = 12\n" +
                AT_PUCCH "resourceSetToAddModList[1].resourceList[" + std::to_string(i) +
                "] = " + std::to_string(4 + i) + "\n";
    }
    return text;
}

// The uplink bandwidth part at 60 kHz, with one PUCCH resource and without what depends on the others.
const std::string sixty =
    "spCellConfig.reconfigurationWithSync = absent\n" AT_CELL "downlinkBWP-ToAddModList = absent\n" AT_UL
    "bwp-Common.genericParameters.subcarrierSpacing = kHz60\n" AT_UL "bwp-Dedicated.pusch-Config = absent\n" AT_UL
    "bwp-Dedicated.srs-Config = absent\n" AT_PUCCH "resourceSetToAddModList = absent\n" AT_PUCCH_RESOURCE
    "[1] = absent\n" AT_PUCCH_RESOURCE "[1] = absent\n" AT_PUCCH_RESOURCE "[1] = absent\n" AT_PUCCH_RESOURCE
    "[1] = absent\n" AT_PUCCH_RESOURCE "[1] = absent\n" AT_PUCCH_RESOURCE "[1] = absent\n" AT_PUCCH_RESOURCE
    "[1] = absent\n";

void ableOfNothing(RrcRuleContext& known)
{
    static constexpr RrcRuleCapabilities nothing{};
    known.capabilities = &nothing;
}

void ableOfSrPeriods(RrcRuleContext& known)
{
    static constexpr RrcRuleCapabilities periods{RRC_RULE_FEATURE_SR_PERIODS};
    known.capabilities = &periods;
}

// The same changes of a second SCell, of another carrier.
std::string asSecond(const std::string& changes)
{
    std::string text;
    std::istringstream given(changes);
    for (std::string line; std::getline(given, line);)
    {
        if (line.starts_with("+ "))
        {
            std::ifstream file("tests/Rules/" + line.substr(2));
            text += asSecond(std::string(std::istreambuf_iterator<char>(file), {}));
            continue;
        }
        if (line.starts_with("sCellToAddModList[0]"))
        {
            line.replace(0, 20, "sCellToAddModList[1]");
        }
        text += line.ends_with("sCellIndex = 1") ? line.substr(0, line.size() - 1) + "2\n" : line + "\n";
    }
    return text;
}

} // namespace

// A report of an SCell, which goes out on the SpCell's PUCCH.
#define AT_SCELL_CSI AT_SCELL_CELL "csi-MeasConfig.setup."
#define AT_SCELL_REPORT AT_SCELL_CSI "csi-ReportConfigToAddModList[0]."
#define SCELL_PUCCH AT_SCELL_REPORT "reportConfigType.periodic.pucch-CSI-ResourceList[0]."
#define SCELL_REPORT                                                                                                   \
    ADD_SCELL AT_SCELL_CSI                                                                                             \
        "csi-SSB-ResourceSetToAddModList[0].csi-SSB-ResourceSetId = 0\n" AT_SCELL_CSI                                  \
        "csi-SSB-ResourceSetToAddModList[0].csi-SSB-ResourceList[0] = 0\n" AT_SCELL_CSI                                \
        "csi-ResourceConfigToAddModList[0].csi-ResourceConfigId = 0\n" AT_SCELL_CSI                                    \
        "csi-ResourceConfigToAddModList[0].csi-RS-ResourceSetList.nzp-CSI-RS-SSB."                                     \
        "csi-SSB-ResourceSetList[0] = 0\n" AT_SCELL_CSI "csi-ResourceConfigToAddModList[0].bwp-Id = 1\n" AT_SCELL_CSI  \
        "csi-ResourceConfigToAddModList[0].resourceType = periodic\n" AT_SCELL_REPORT                                  \
        "reportConfigId = 0\n" AT_SCELL_REPORT "resourcesForChannelMeasurement = 0\n" AT_SCELL_REPORT                  \
        "reportConfigType.periodic.reportSlotConfig.slots80 = 19\n" AT_SCELL_REPORT                                    \
        "reportQuantity.ssb-Index-RSRP = null\n" AT_SCELL_REPORT                                                       \
        "timeRestrictionForChannelMeasurements = notConfigured\n" AT_SCELL_REPORT                                      \
        "timeRestrictionForInterferenceMeasurements = notConfigured\n" AT_SCELL_REPORT                                 \
        "groupBasedBeamReporting.disabled = {}\n" AT_SCELL_REPORT "subbandSize = value2\n"

void pucchCases(CaseTable& table)
{
    table.rule("pucch-resource-ref")
        .bad(AT_PUCCH "multi-CSI-PUCCH-ResourceList[0]")
        .saying("8, but a PUCCH-Resource of that id is not configured: there is 0..7")
        .good()
        .fires(AT_PUCCH "resourceSetToAddModList[0].resourceList[0]",
               AT_PUCCH "resourceSetToAddModList[0].resourceList[0] = 9")
        .fires(AT_PUCCH "multi-CSI-PUCCH-ResourceList[0]", AT_PUCCH "multi-CSI-PUCCH-ResourceList[0] = 8")
        .with(inDelta)
        .as(RRC_RULE_NOTICE);

    table.rule("pucch-set-content")
        .bad(AT_PUCCH "resourceSetToAddModList[1].resourceList[3]")
        .saying("3, of format 1, but set 1 is of formats 2 to 4")
        .good()
        .fires(AT_PUCCH "resourceSetToAddModList[0].resourceList[3]",
               AT_PUCCH "resourceSetToAddModList[0].resourceList[3] = 4")
        .fires(AT_PUCCH "resourceSetToAddModList[1].resourceList", largeSet(9))
        .saying("9 resources, but set 1 has at most 8")
        .silent(largeSet(8));

    table.rule("pucch-set-payload")
        .bad(AT_PUCCH "resourceSetToAddModList[1].maxPayloadMinus1")
        .good()
        .fires(AT_PUCCH "resourceSetToAddModList[0].maxPayloadMinus1",
               AT_PUCCH "resourceSetToAddModList[0].maxPayloadMinus1 = 4")
        .fires(AT_PUCCH "resourceSetToAddModList[1].maxPayloadMinus1",
               AT_PUCCH "resourceSetToAddModList[2].pucch-ResourceSetId = 2\n" AT_PUCCH
                        "resourceSetToAddModList[2].resourceList[0] = 7")
        .saying("absent, but set 1 is neither the first nor the last")
        .fires(AT_PUCCH "resourceSetToAddModList[1].maxPayloadMinus1",
               AT_PUCCH "resourceSetToAddModList[2].pucch-ResourceSetId = 2\n" AT_PUCCH
                        "resourceSetToAddModList[2].resourceList[0] = 7\n" AT_PUCCH
                        "resourceSetToAddModList[1].maxPayloadMinus1 = 18")
        .saying("multiple of 4")
        .fires(AT_PUCCH "resourceSetToAddModList[2].maxPayloadMinus1",
               AT_PUCCH "resourceSetToAddModList[1].maxPayloadMinus1 = 20\n" AT_PUCCH
                        "resourceSetToAddModList[2].pucch-ResourceSetId = 2\n" AT_PUCCH
                        "resourceSetToAddModList[2].resourceList[0] = 7\n" AT_PUCCH
                        "resourceSetToAddModList[2].maxPayloadMinus1 = 20\n" AT_PUCCH
                        "resourceSetToAddModList[3].pucch-ResourceSetId = 3\n" AT_PUCCH
                        "resourceSetToAddModList[3].resourceList[0] = 7")
        .saying("20, but set 1 before it has 20")
        .fires(AT_PUCCH "resourceSetToAddModList[1].maxPayloadMinus1",
               AT_PUCCH "resourceSetToAddModList[1].maxPayloadMinus1 = 256")
        .with(inDelta)
        .as(RRC_RULE_NOTICE);

    table.rule("pucch-set-zero")
        .bad(AT_PUCCH "resourceSetToAddModList[1].pucch-ResourceSetId")
        .good()
        .fires(AT_PUCCH "resourceSetToAddModList", AT_PUCCH "resourceSetToAddModList[0] = absent")
        // Without sets the initial bandwidth part has that of pucch-ResourceCommon.
        .silent(AT_UPLINK "initialUplinkBWP.pucch-Config.setup.dl-DataToUL-ACK[0] = 4")
        .undecided(AT_PUCCH "resourceSetToAddModList[0] = absent")
        .with(inDelta);

    table.rule("pucch-format-setup")
        .bad(AT_PUCCH "format2")
        .good()
        .fires(AT_PUCCH "format2", AT_PUCCH "format2 = absent")
        .with(inDelta)
        .as(RRC_RULE_NOTICE);

    table.rule("pucch-maxcoderate")
        .bad(AT_PUCCH "format2.setup.maxCodeRate")
        .good()
        .fires(AT_PUCCH "format2.setup.pi2BPSK", AT_PUCCH "format2.setup.pi2BPSK = enabled")
        .as(RRC_RULE_WARNING)
        .fires(AT_PUCCH "format1.setup.additionalDMRS", AT_PUCCH "format1.setup.additionalDMRS = true")
        .as(RRC_RULE_WARNING)
        .fires(AT_PUCCH "format1.setup.maxCodeRate", AT_PUCCH "format1.setup.maxCodeRate = zeroDot08")
        .as(RRC_RULE_WARNING);

    table.rule("pucch-symbols")
        .bad(AT_PUCCH_RESOURCE "[0].format.format1.nrofSymbols")
        .saying("14 symbols from symbol 1 on, but the slot has 14")
        .good()
        .fires(AT_PUCCH_RESOURCE "[4].format.format2.nrofSymbols",
               AT_PUCCH_RESOURCE "[4].format.format2.startingSymbolIndex = 13")
        .fires(AT_PUCCH_RESOURCE "[0].format.format1.nrofSymbols",
               sixty + AT_UL "bwp-Common.genericParameters.cyclicPrefix = extended")
        .with(inDelta)
        .saying("14 symbols from symbol 0 on, but the slot has 12")
        .silent(sixty + AT_UL "bwp-Common.genericParameters.cyclicPrefix = extended\n" AT_PUCCH_RESOURCE
                              "[0].format.format1.nrofSymbols = 12")
        .with(inDelta)
        .silent(sixty)
        .with(inDelta);

    f1Cases(table.rule("pucch-f1-occ")
                .bad(AT_PUCCH_RESOURCE "[0].format.format1.timeDomainOCC")
                .good()
                .fires(AT_PUCCH_RESOURCE "[0].format.format1.timeDomainOCC",
                       format1(4, false, 2) + AT_PUCCH_RESOURCE "[0].format.format1.startingSymbolIndex = 10")
                .saying("2, but 4 symbols without hopping have sequences 0..1"));
    f3Cases(table.rule("pucch-f3-prbs").bad(AT_PUCCH_RESOURCE "[4].format.format3.nrofPRBs").good());

    table.rule("pucch-f4-occ")
        .bad(AT_PUCCH_RESOURCE "[4].format.format4.occ-Index")
        .good()
        .silent(std::string(rrcRuleById("pucch-f4-occ")->bad) + "\n" AT_PUCCH_RESOURCE
                                                                "[4].format.format4.occ-Length = n4\n" AT_PUCCH_RESOURCE
                                                                "[4].format.format4.occ-Index = n3");

    table.rule("pucch-prb-in-bwp")
        .bad(AT_PUCCH_RESOURCE "[0].secondHopPRB")
        .saying("273..273, but bandwidth part 1 has PRB 0..272")
        .good()
        .fires(AT_PUCCH_RESOURCE "[4].startingPRB",
               AT_PUCCH_RESOURCE "[4].format.format2.nrofPRBs = 4\n" AT_PUCCH_RESOURCE "[4].startingPRB = 270")
        .undecided("spCellConfig.reconfigurationWithSync = absent\n" AT_UL "bwp-Common = absent")
        .with(inDelta);

    table.rule("pucch-hop-prb")
        .bad(AT_PUCCH_RESOURCE "[0].secondHopPRB")
        .good()
        .fires(AT_PUCCH_RESOURCE "[0].secondHopPRB", AT_PUCCH_RESOURCE "[0].secondHopPRB = 0")
        .as(RRC_RULE_WARNING)
        .fires(AT_PUCCH_RESOURCE "[0].secondHopPRB", AT_PUCCH_RESOURCE "[0].intraSlotFrequencyHopping = absent")
        .as(RRC_RULE_WARNING)
        .silent(AT_PUCCH_RESOURCE "[0].intraSlotFrequencyHopping = absent\n" AT_PUCCH_RESOURCE
                                  "[1].intraSlotFrequencyHopping = absent\n" AT_PUCCH_RESOURCE
                                  "[2].intraSlotFrequencyHopping = absent\n" AT_PUCCH_RESOURCE
                                  "[3].intraSlotFrequencyHopping = absent\n" AT_PUCCH
                                  "format1.setup.interslotFrequencyHopping = enabled\n" AT_PUCCH
                                  "format1.setup.nrofSlots = n2")
        .undecided(AT_PUCCH_RESOURCE "[0].intraSlotFrequencyHopping = absent")
        .with(inDelta)
        .fires(AT_PUCCH_RESOURCE "[4].intraSlotFrequencyHopping",
               AT_PUCCH_RESOURCE "[4].format.format2.nrofSymbols = 1")
        .as(RRC_RULE_WARNING);

    table.rule("pucch-hop-both")
        .bad(AT_PUCCH "format1.setup.interslotFrequencyHopping")
        .good()
        .fires(AT_PUCCH "format1.setup.interslotFrequencyHopping",
               AT_PUCCH "format1.setup.interslotFrequencyHopping = enabled")
        .as(RRC_RULE_NOTICE)
        .fires(AT_PUCCH "format2.setup.interslotFrequencyHopping",
               AT_PUCCH "format2.setup.interslotFrequencyHopping = enabled")
        .as(RRC_RULE_NOTICE);

    table.rule("pucch-simultaneous").bad(AT_PUCCH "format3.setup.simultaneousHARQ-ACK-CSI").good();

    table.rule("pucch-sr-resource")
        .bad(std::string(srAt) + "resource")
        .saying("4, of format 2, but a scheduling request is sent in format 0 or 1")
        .good()
        .fires(std::string(srAt) + "resource", std::string(srAt) + "resource = 9")
        .fires(std::string(srAt) + "resource", std::string(srAt) + "resource = absent")
        .fires(std::string(srAt) + "periodicityAndOffset", std::string(srAt) + "periodicityAndOffset = absent")
        .undecided(std::string(srAt) + "resource = absent")
        .with(inDelta);

    const std::string sl5 =
        std::string(srAt) + "periodicityAndOffset = absent\n" + srAt + "periodicityAndOffset.sl5 = 0";
    srPeriodCases(
        table.rule("pucch-sr-period")
            .bad(std::string(srAt) + "periodicityAndOffset")
            .good()
            .fires(std::string(srAt) + "periodicityAndOffset", sl5)
            .with(ableOfNothing)
            .silent(sl5)
            .with(ableOfSrPeriods)
            .fires(std::string(srAt) + "periodicityAndOffset",
                   std::string(srAt) + "periodicityAndOffset = absent\n" + srAt + "periodicityAndOffset.sym2 = null")
            .as(RRC_RULE_WARNING)
            .fires(std::string(srAt) + "periodicityAndOffset",
                   sixty + srAt + "periodicityAndOffset = absent\n" + srAt + "periodicityAndOffset.sl10 = 0")
            .with(inDelta)
            .saying("at 60 kHz there is no such period")
            .silent(sixty + srAt + "periodicityAndOffset = absent\n" + srAt + "periodicityAndOffset.sl8 = 0")
            .with(inDelta)
            .silent(sixty + srAt + "periodicityAndOffset = absent\n" + srAt + "periodicityAndOffset.sl16 = 0")
            .with(inDelta));

    table.rule("pucch-k1")
        .bad(AT_PUCCH "dl-DataToUL-ACK[1]")
        .good()
        .fires(AT_PUCCH "dl-DataToUL-ACK", AT_PUCCH "dl-DataToUL-ACK = absent")
        .undecided(AT_PUCCH "dl-DataToUL-ACK = absent")
        .with(inDelta)
        .fires(AT_PUCCH "dl-DataToUL-ACK", AT_PUCCH "dl-DataToUL-ACK = absent\n" AT_PUCCH "dl-DataToUL-ACK[0] = 4")
        .saying("none of them leads from slot 1 to an uplink slot")
        .fires(AT_PUCCH "dl-DataToUL-ACK", AT_PUCCH "dl-DataToUL-ACK = absent\n" AT_PUCCH "dl-DataToUL-ACK[0] = 1")
        .saying("none of them leads from slot 0 to an uplink slot")
        .silent(AT_PUCCH "dl-DataToUL-ACK[1] = 0");

    table.rule("pucch-csi-resource")
        .bad(AT_REPORT "reportConfigType.periodic.pucch-CSI-ResourceList[0].pucch-Resource")
        .saying("3, of format 1, but CSI is sent in formats 2 to 4")
        .good()
        .fires(AT_REPORT "reportConfigType.periodic.pucch-CSI-ResourceList[0].pucch-Resource",
               AT_REPORT "reportConfigType.periodic.pucch-CSI-ResourceList[0].pucch-Resource = 9")
        .fires(AT_REPORT "reportConfigType.periodic.pucch-CSI-ResourceList[0].uplinkBandwidthPartId",
               AT_REPORT "reportConfigType.periodic.pucch-CSI-ResourceList[0].uplinkBandwidthPartId = 2")
        .fires(AT_REPORT "reportConfigType.periodic.pucch-CSI-ResourceList[1].uplinkBandwidthPartId",
               AT_REPORT "reportConfigType.periodic.pucch-CSI-ResourceList[1].uplinkBandwidthPartId = 0\n" AT_REPORT
                         "reportConfigType.periodic.pucch-CSI-ResourceList[1].pucch-Resource = 4")
        .saying("has no pucch-Config")
        .silent(SCELL_REPORT SCELL_PUCCH "uplinkBandwidthPartId = 1\n" SCELL_PUCCH "pucch-Resource = 7")
        .fires(SCELL_PUCCH "pucch-Resource",
               SCELL_REPORT SCELL_PUCCH "uplinkBandwidthPartId = 1\n" SCELL_PUCCH "pucch-Resource = 3")
        .saying("of format 1");

    table.rule("pucch-spatial-refs")
        .bad(AT_PUCCH "spatialRelationInfoToAddModList[0].p0-PUCCH-Id")
        .good()
        .fires(AT_PUCCH "spatialRelationInfoToAddModList[0].pucch-PathlossReferenceRS-Id",
               std::string(rrcRuleById("pucch-spatial-refs")->good) +
                   "\n" AT_PUCCH "spatialRelationInfoToAddModList[0].pucch-PathlossReferenceRS-Id = 1")
        .fires(AT_PUCCH "spatialRelationInfoToAddModList[0].closedLoopIndex",
               std::string(rrcRuleById("pucch-spatial-refs")->good) +
                   "\n" AT_PUCCH "spatialRelationInfoToAddModList[0].closedLoopIndex = i1")
        .silent(std::string(rrcRuleById("pucch-spatial-refs")->good) +
                "\n" AT_PUCCH "spatialRelationInfoToAddModList[0].closedLoopIndex = i1\n" AT_PUCCH
                "pucch-PowerControl.twoPUCCH-PC-AdjustmentStates = twoStates")
        .fires(AT_PUCCH "spatialRelationInfoToAddModList[0].servingCellId",
               std::string(rrcRuleById("pucch-spatial-refs")->good) +
                   "\n" AT_PUCCH "spatialRelationInfoToAddModList[0].servingCellId = 3");

    table.rule("pucch-power-default")
        .bad(AT_PUCCH "pucch-PowerControl.pathlossReferenceRSs")
        .good()
        .undecided(AT_PUCCH "pucch-PowerControl.pathlossReferenceRSs[0].pucch-PathlossReferenceRS-Id = 1")
        .with(inDelta);

    table.rule("pucch-common")
        .bad(AT_UL "bwp-Common.pucch-ConfigCommon.setup.p0-nominal")
        .good()
        .fires(AT_UL "bwp-Common.pucch-ConfigCommon.setup.pucch-ResourceCommon",
               AT_UL "bwp-Common.pucch-ConfigCommon.setup.pucch-ResourceCommon = 0")
        .fires(AT_UL "bwp-Common.pucch-ConfigCommon.setup.hoppingId",
               AT_UL "bwp-Common.pucch-ConfigCommon.setup.pucch-GroupHopping = enable\n" AT_UL
                     "bwp-Common.pucch-ConfigCommon.setup.hoppingId = absent")
        .as(RRC_RULE_NOTICE);

    const std::string sCellPucch = ADD_SCELL_WITH_UPLINK AT_SCELL_CELL
        "uplinkConfig.uplinkBWP-ToAddModList[0].bwp-Dedicated.pucch-Config.setup.resourceSetToAddModList[0].pucch-"
        "ResourceSetId = "
        "0\n" AT_SCELL_CELL "uplinkConfig.uplinkBWP-ToAddModList[0].bwp-Dedicated.pucch-Config.setup."
        "resourceSetToAddModList[0].resourceList["
        "0] = 0\n" AT_SCELL_CELL "uplinkConfig.uplinkBWP-ToAddModList[0].bwp-Dedicated.pucch-Config.setup."
        "resourceToAddModList[0].pucch-ResourceId = 0\n" AT_SCELL_CELL
        "uplinkConfig.uplinkBWP-ToAddModList[0].bwp-Dedicated.pucch-Config.setup.resourceToAddModList[0].startingPRB = "
        "0\n" AT_SCELL_CELL "uplinkConfig.uplinkBWP-ToAddModList[0].bwp-Dedicated.pucch-Config.setup."
        "resourceToAddModList[0].format.format0.initialCyclicShift = "
        "0\n" AT_SCELL_CELL "uplinkConfig.uplinkBWP-ToAddModList[0].bwp-Dedicated.pucch-Config.setup."
        "resourceToAddModList[0].format.format0."
        "nrofSymbols = 1\n" AT_SCELL_CELL "uplinkConfig.uplinkBWP-ToAddModList[0].bwp-Dedicated.pucch-Config.setup."
        "resourceToAddModList[0].format.format0.startingSymbolIndex = "
        "13\n" AT_SCELL_CELL
        "uplinkConfig.uplinkBWP-ToAddModList[0].bwp-Dedicated.pucch-Config.setup.dl-DataToUL-ACK[0] = 8";
    table.rule("pucch-one-uplink")
        .bad(AT_UL "bwp-Dedicated.pucch-Config")
        .good()
        .undecided(AT_UL "bwp-Dedicated.pucch-Config = absent\n" AT_CSI "csi-ReportConfigToAddModList[0] = absent")
        .with(inDelta)
        .silent(ADD_SCELL_WITH_UPLINK)
        .silent(sCellPucch)
        .fires(AT_CELL "supplementaryUplink.initialUplinkBWP.pucch-Config",
               AT_CELL "supplementaryUplink.initialUplinkBWP.pucch-Config.setup.dl-DataToUL-ACK[0] = 4\n" AT_COMMON
                       "supplementaryUplinkConfig.dummy = infinity\n" AT_RACH "rsrp-ThresholdSSB-SUL = 30")
        .with(inDelta)
        .saying("the other uplink of the cell has one, too")
        .fires(AT_SUL_BWP "pucch-Config", EXAMPLE_SUL AT_SUL_BWP "pucch-Config.setup.dl-DataToUL-ACK[0] = 4")
        .fires("sCellToAddModList[1].sCellIndex", sCellPucch + asSecond(sCellPucch))
        .saying("SCell 2 with a PUCCH, but SCell 1 has one, and at most one SCell does")
        .silent(sCellPucch + asSecond(ADD_SCELL_WITH_UPLINK));
}

} // namespace test
