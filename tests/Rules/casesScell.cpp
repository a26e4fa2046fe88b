#include "ruleCases.h"

namespace test
{

void scellCases(CaseTable& table)
{
    const auto inOther = [](RrcRuleContext& known)
    {
        static constexpr OSUINT32 cells = 1 << 1;
        known.otherGroupCells = &cells;
    };

    const auto withMeas = [](RrcRuleContext& known)
    {
        // The second one has CSI-RS alone.
        static constexpr RrcRuleMeasObject objects[] = {{1, 1, 633312, SubcarrierSpacing_kHz30, {}},
                                                        {2, 0, 0, SubcarrierSpacing_kHz30, {}}};
        known.hasMeas = 1;
        known.measObjects = objects;
        known.numMeasObjects = 2;
    };

    const auto withSCell = [](const Cases& cases, const char* RrcRule::*which)
    {
        return ADD_SCELL_WITH_UPLINK + cases.example(which);
    };

    Cases content = table.rule("scell-add-content");
    content.fires(AT_SCELL "sCellConfigDedicated", withSCell(content, &RrcRule::bad))
        .saying("absent, but SCell 1 is added")
        .silent(withSCell(content, &RrcRule::good))
        .fires(AT_SCELL "sCellConfigCommon", ADD_SCELL AT_SCELL "sCellConfigCommon = absent")
        .undecided(ADD_SCELL AT_SCELL "sCellConfigCommon = absent")
        .with(inDelta)
        .fires(AT_SCELL "sCellConfigCommon", ADD_SCELL AT_SCELL "sCellConfigDedicated = absent")
        .after(ADD_SCELL)
        .saying("SCell 1 is there")
        .silent(ADD_SCELL)
        .after("")
        .silent(ADD_SCELL "sCellToReleaseList[0] = 1")
        .after(ADD_SCELL);

    Cases index = table.rule("scell-index");
    index.fires(AT_SCELL "sCellIndex", withSCell(index, &RrcRule::bad))
        .with(inOther)
        .silent(withSCell(index, &RrcRule::good))
        .with(inOther)
        .fires(AT_SCELL "sCellIndex", ADD_SCELL AS_SCG)
        .saying("that is the servCellIndex of the PSCell");

    table.rule("scell-release-used")
        .bad(AT_STATE("0") "qcl-Type1.cell")
        .with(inDelta)
        .good()
        .with(inDelta)
        .silent(ADD_SCELL "sCellToReleaseList[0] = 1\n" AT_STATE("0") "qcl-Type1.cell = 1")
        .with(inDelta)
        .fires("rlc-BearerToAddModList[1].mac-LogicalChannelConfig.ul-SpecificParameters.allowedServingCells[1]",
               "sCellToReleaseList[0] = 1\n" AT_DRB
               "mac-LogicalChannelConfig.ul-SpecificParameters.allowedServingCells[0] = 0\n" AT_DRB
               "mac-LogicalChannelConfig.ul-SpecificParameters.allowedServingCells[1] = 1")
        .with(inDelta);

    Cases kind = table.rule("scell-kind-fields");
    kind.fires(AT_SCELL_CELL "uplinkConfig.uplinkBWP-ToAddModList[0].bwp-Dedicated.beamFailureRecoveryConfig",
               withSCell(kind, &RrcRule::bad))
        .silent(withSCell(kind, &RrcRule::good))
        .fires(AT_CELL "sCellDeactivationTimer", AT_CELL "sCellDeactivationTimer = ms20")
        .as(RRC_RULE_WARNING)
        .silent(ADD_SCELL AT_SCELL_CELL "sCellDeactivationTimer = ms20")
        .fires(AT_CELL "pathlossReferenceLinking", AT_CELL "pathlossReferenceLinking = spCell")
        .as(RRC_RULE_WARNING)
        .silent(ADD_SCELL_WITH_UPLINK AT_SCELL_CELL "pathlossReferenceLinking = spCell");

#define AT_SCELL_RS AT_SCELL_CELL "csi-MeasConfig.setup.nzp-CSI-RS-ResourceToAddModList[0]."
#define SCELL_RS                                                                                                       \
    AT_SCELL_RS                                                                                                        \
    "nzp-CSI-RS-ResourceId = 0\n" AT_SCELL_RS "resourceMapping.frequencyDomainAllocation.row1 = 10\n" AT_SCELL_RS      \
    "resourceMapping.nrofPorts = p1\n" AT_SCELL_RS "resourceMapping.firstOFDMSymbolInTimeDomain = 4\n" AT_SCELL_RS     \
    "resourceMapping.cdm-Type = noCDM\n" AT_SCELL_RS "resourceMapping.density.three = null\n" AT_SCELL_RS              \
    "resourceMapping.freqBand.startingRB = 0\n" AT_SCELL_RS "resourceMapping.freqBand.nrofRBs = 276\n" AT_SCELL_RS     \
    "powerControlOffset = 0\n" AT_SCELL_RS "scramblingID = 43\n"
#define SCELL_RS_PERIOD AT_SCELL_RS "periodicityAndOffset.slots80 = 2\n"
    Cases rlm = table.rule("scell-rlm");
    const std::string bad = rlm.example(&RrcRule::bad);
    const std::string good = rlm.example(&RrcRule::good);
    rlm.fires(AT_SCELL_RLM "purpose", ADD_SCELL SCELL_RS SCELL_RS_PERIOD + bad)
        .saying("rlf, but on an SCell there is beamFailure alone")
        .silent(ADD_SCELL SCELL_RS SCELL_RS_PERIOD + good)
        .fires(AT_SCELL_RLM "detectionResource.csi-RS-Index", ADD_SCELL SCELL_RS + good)
        .saying("not a periodic one of one port")
        .fires(AT_SCELL_RLM "detectionResource", ADD_SCELL + good +
                                                     "\n" AT_SCELL_RLM "detectionResource = absent\n" AT_SCELL_RLM
                                                     "detectionResource.ssb-Index = 0");

    Cases without = table.rule("scell-ssbless");
    without.fires(AT_SCELL "smtc", ADD_SCELL + without.example(&RrcRule::bad))
        .silent(ADD_SCELL + without.example(&RrcRule::good))
        .fires(AT_SCELL_COMMON "ssb-periodicityServingCell",
               ADD_SCELL SSBLESS_SCELL AT_SCELL_COMMON "ssb-periodicityServingCell = ms20")
        .as(RRC_RULE_WARNING)
        .fires(AT_SCELL_COMMON "ssbSubcarrierSpacing",
               ADD_SCELL SSBLESS_SCELL AT_SCELL_COMMON "ssbSubcarrierSpacing = kHz30")
        .as(RRC_RULE_WARNING)
        .fires(AT_SCELL_COMMON "downlinkConfigCommon.frequencyInfoDL.absoluteFrequencySSB",
               ADD_SCELL SSBLESS_SCELL AT_SCELL_COMMON "downlinkConfigCommon.frequencyInfoDL.frequencyBandList[0] = 77")
        .saying("no cell of the group that would give the timing is in band n77")
        .undecided(ADD_SCELL SSBLESS_SCELL AT_SCELL_COMMON
                   "downlinkConfigCommon.frequencyInfoDL.frequencyBandList[0] = 77")
        .with(inDelta)
        .fires(AT_SCELL_CELL "servingCellMO",
               ADD_SCELL SSBLESS_SCELL AT_CELL "servingCellMO = 1\n" AT_SCELL_CELL "servingCellMO = 1")
        .with(withMeas)
        .as(RRC_RULE_WARNING)
        .saying("that object has ssbFrequency 633312, and the cell no block there")
        .silent(ADD_SCELL SSBLESS_SCELL AT_CELL "servingCellMO = 1\n" AT_SCELL_CELL "servingCellMO = 2")
        .with(withMeas)
        .undecided(ADD_SCELL SSBLESS_SCELL AT_SCELL_CELL "servingCellMO = 1")
        .fires(AT_STATE("0") "qcl-Type1.referenceSignal.ssb",
               ADD_SCELL SSBLESS_SCELL AT_STATE("0") "qcl-Type1.cell = 1")
        .silent(ADD_SCELL SSBLESS_SCELL AT_STATE("0") "qcl-Type1.cell = 0");
}

} // namespace test
