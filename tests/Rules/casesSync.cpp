#include "ruleCases.h"

namespace test
{

namespace
{

void inSync(RrcRuleContext& known)
{
    known.message = RRC_RULE_MESSAGE_SYNC;
}

void inResume(RrcRuleContext& known)
{
    known.message = RRC_RULE_MESSAGE_RESUME;
}

void withMeas(RrcRuleContext& known)
{
    static constexpr RrcRuleMeasObject objects[] = {{1, 1, 633312, SubcarrierSpacing_kHz30, {}},
                                                    {3, 1, 640032, SubcarrierSpacing_kHz30, {}}};
    known.hasMeas = 1;
    known.measObjects = objects;
    known.numMeasObjects = 2;
}

} // namespace

void syncCases(CaseTable& table)
{
    table.rule("sync-present")
        .bad(AT_SYNC_PLACE)
        .with(inSync)
        .good()
        .with(inSync)
        .fires("spCellConfig", "spCellConfig = absent")
        .with(
            [](RrcRuleContext& known)
            {
                inSync(known);
                inDelta(known);
            })
        .silent(AT_SYNC_ABSENT)
        .with(inResume)
        .fires(AT_SYNC_PLACE, AT_SYNC "t304 = ms1000")
        .with(inResume)
        .undecided(AT_SYNC_ABSENT);

    table.rule("sync-common-content")
        .bad(AT_COMMON "physCellId")
        .good()
        .undecided(AT_COMMON "physCellId = absent")
        .with(inDelta)
        .fires(AT_COMMON_DL "frequencyInfoDL.absoluteFrequencySSB",
               AT_COMMON_DL "frequencyInfoDL.absoluteFrequencySSB = absent")
        .saying("an SpCell has SS/PBCH blocks")
        // A PSCell that is added; that of a handover within the cell may keep what it has.
        .fires(AT_SYNC "spCellConfigCommon", AS_SCG AT_SYNC "spCellConfigCommon = absent")
        .saying("absent, but the PSCell is added")
        .silent(AS_SCG AT_SYNC "spCellConfigCommon = absent")
        .with(inDelta)
        .fires(AT_SCELL_COMMON "physCellId", ADD_SCELL AT_SCELL_COMMON "physCellId = absent")
        .with(inDelta)
        .fires(AT_SCELL_COMMON "uplinkConfigCommon.frequencyInfoUL",
               ADD_SCELL_WITH_UPLINK AT_SCELL_COMMON "uplinkConfigCommon.frequencyInfoUL = absent");

#define AT_UL_FREQUENCY AT_COMMON_UL "frequencyInfoUL."
#define OWN_UPLINK                                                                                                     \
    AT_UL_FREQUENCY "frequencyBandList[0] = 78\n" AT_UL_FREQUENCY "absoluteFrequencyPointA = 630058\n" AT_COMMON       \
                    "tdd-UL-DL-ConfigurationCommon = absent\n"
    const auto inPaired = [](RrcRuleContext& known)
    {
        known.duplex = RRC_RULE_DUPLEX_FDD;
    };
    table.rule("sync-ul-band")
        .bad(AT_UL_FREQUENCY "frequencyShift7p5khz")
        .saying("band n78 shares no grid with E-UTRA")
        .good()
        .fires(AT_UL_FREQUENCY "frequencyBandList", AT_UL_FREQUENCY "frequencyBandList[0] = 78")
        .as(RRC_RULE_WARNING)
        .fires(AT_UL_FREQUENCY "absoluteFrequencyPointA", AT_UL_FREQUENCY "absoluteFrequencyPointA = 630058")
        .as(RRC_RULE_WARNING)
        .silent(OWN_UPLINK)
        .with(inPaired)
        .fires(AT_UL_FREQUENCY "absoluteFrequencyPointA", OWN_UPLINK AT_UL_FREQUENCY "absoluteFrequencyPointA = absent")
        .with(inPaired)
        .fires(AT_UL_FREQUENCY "frequencyBandList", OWN_UPLINK AT_UL_FREQUENCY "frequencyBandList = absent")
        .with(inPaired);

    table.rule("sync-band-list")
        .bad(AT_COMMON_DL "frequencyInfoDL.frequencyBandList")
        .saying("2 elements, but a cell is in one band")
        .good()
        .fires(AT_UL_FREQUENCY "frequencyBandList",
               AT_UL_FREQUENCY "frequencyBandList[0] = 78\n" AT_UL_FREQUENCY "frequencyBandList[1] = 77")
        .fires(AT_UL_FREQUENCY "frequencyBandList[0]", AT_UL_FREQUENCY "frequencyBandList[0] = 77")
        .as(RRC_RULE_WARNING)
        .fires(AT_COMMON_DL "frequencyInfoDL.absoluteFrequencySSB",
               AT_COMMON_DL "frequencyInfoDL.frequencyBandList[0] = 79")
        .as(RRC_RULE_WARNING)
        .saying("downlink of band n79 is 4400..5000 MHz")
        .fires(AT_SCELL_COMMON "uplinkConfigCommon.frequencyInfoUL.additionalSpectrumEmission",
               ADD_SCELL_WITH_UPLINK AT_UL_FREQUENCY
               "additionalSpectrumEmission = 1\n" AT_SCELL_COMMON
               "uplinkConfigCommon.frequencyInfoUL.additionalSpectrumEmission = 2")
        .as(RRC_RULE_WARNING)
        .silent(ADD_SCELL_WITH_UPLINK AT_UL_FREQUENCY
                "additionalSpectrumEmission = 1\n" AT_SCELL_COMMON
                "uplinkConfigCommon.frequencyInfoUL.additionalSpectrumEmission = 1");

    table.rule("sync-smtc")
        .bad(AT_SYNC "smtc.periodicityAndOffset")
        .saying("sf10, but ssb-periodicityServingCell is 20 ms")
        .good()
        .fires(AT_SYNC "smtc.periodicityAndOffset", AT_COMMON "ssb-periodicityServingCell = absent")
        .saying("5 ms where it is absent")
        .fires(AT_SCELL "smtc.periodicityAndOffset",
               ADD_SCELL AT_SCELL "smtc.periodicityAndOffset.sf40 = 0\n" AT_SCELL "smtc.duration = sf2")
        .silent(ADD_SCELL AT_SCELL "smtc.periodicityAndOffset.sf20 = 0\n" AT_SCELL "smtc.duration = sf2");

    table.rule("sync-scg-index")
        .bad("spCellConfig.servCellIndex")
        .saying("1, but the PCell has 0, without saying so")
        .good()
        .silent(AS_SCG)
        .fires("spCellConfig.servCellIndex", AS_SCG "spCellConfig.servCellIndex = absent")
        .fires("spCellConfig.servCellIndex", AS_SCG "spCellConfig.servCellIndex = 0")
        .saying("0 is the PCell")
        .fires("spCellConfig.servCellIndex", AS_SCG)
        .with(
            [](RrcRuleContext& known)
            {
                static constexpr OSUINT32 cells = 1 << 0 | 1 << 1;
                known.otherGroupCells = &cells;
            });

    table.rule("sync-rlf")
        .bad("spCellConfig.rlf-TimersAndConstants")
        .saying("absent, but the secondary cell group is added")
        .good()
        .silent(AS_SCG "spCellConfig.rlf-TimersAndConstants = absent")
        .with(inDelta)
        .fires("spCellConfig.rlf-TimersAndConstants", AS_SCG
               "spCellConfig.rlf-TimersAndConstants = absent\nspCellConfig.rlf-TimersAndConstants.release = null")
        .with(inDelta)
        .saying("release, but a secondary cell group has setup alone")
        .fires("spCellConfig.rlmInSyncOutOfSyncThreshold", "spCellConfig.rlmInSyncOutOfSyncThreshold = n1")
        .as(RRC_RULE_WARNING);

    table.rule("sync-serving-mo")
        .bad(AT_CELL "servingCellMO")
        .with(withMeas)
        .saying("2, but measConfig has no measObjectNR of that id")
        .good()
        .with(withMeas)
        .fires(AT_CELL "servingCellMO", AT_CELL "servingCellMO = 3")
        .with(withMeas)
        .saying("ssbFrequency is 640032, absoluteFrequencySSB of the cell 633312")
        .fires(AT_CELL "servingCellMO", "cellGroupId = 0")
        .with(withMeas)
        .saying("absent, but the UE has a measConfig")
        .undecided(AT_CELL "servingCellMO = 2");
}

} // namespace test
