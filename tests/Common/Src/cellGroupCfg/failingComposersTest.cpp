// What the composers of the special cell print and return when a composer fails that never does by itself.

#include <memory>

#include "cellGroupCfg/rachDedicated.h"
#include "cellGroupCfg/servingCellCommon.h"
#include "cellGroupCfg/spCell.h"
#include "support/ComposerTest.h"
#include "support/Interposed.h"

using test::address;
using test::Failing;
using test::passOn;

INT32 rrcComposeServCellConfigCommon(OSCTXT* c, ServingCellConfigCommon* e, RrcServingCellCfgCommon_t* r)
{
    return passOn(rrcComposeServCellConfigCommon, c, e, r);
}
INT32 rrcComposeRateMatchPatternAdd(OSCTXT* c, RateMatchPattern* e, RrcRateMatchPattern_t* r)
{
    return passOn(rrcComposeRateMatchPatternAdd, c, e, r);
}
INT32 rrcComposePeriodicityAndOffset(SSB_MTC_periodicityAndOffset* e, RrcSSBMTC_t* r)
{
    return passOn(rrcComposePeriodicityAndOffset, e, r);
}
INT32 rrcComposeSymbols_explicit(TDD_UL_DL_SlotConfig_symbols_explicit_* e, struct explicit_s* r)
{
    return passOn(rrcComposeSymbols_explicit, e, r);
}
INT32 rrcComposeCFRA_SSB_Resource(CFRA_SSB_Resource* e, RrcCfraSsbResource_t* r)
{
    return passOn(rrcComposeCFRA_SSB_Resource, e, r);
}
INT32 rrcComposeCFRA_CSIRS_Res(CFRA_CSIRS_Resource* e, RrcCsirsResource_t* r)
{
    return passOn(rrcComposeCFRA_CSIRS_Res, e, r);
}
INT32 rrcComposeRlf_TimerSetup(RLF_TimersAndConstants* e, RrcRlfTimerConstants_t* r)
{
    return passOn(rrcComposeRlf_TimerSetup, e, r);
}

namespace
{

class failingComposers : public test::ComposerTest
{
};

} // namespace

TEST_F(failingComposers, CommonConfigurationStopsTheSynchronousReconfiguration)
{
    const auto record = cleared<RrcSpCellCfg_t>();
    record->bitMask = RRC_SPCELLCFG_RECFG_PRESENCE | RRC_SPCELLCFG_RLFTIMER_PRESENCE;
    record->recfgWithSync.bitMask = RRC_SERVING_CELL_CFG_COMMON_PRESENCE | RRC_RACH_CFG_DEDI_PRESENCE;
    record->recfgWithSync.newUEId = 17;
    record->recfgWithSync.t304 = 3;
    const auto element = cleared<SpCellConfig>();
    const Failing failing(address(rrcComposeServCellConfigCommon));
    EXPECT_EQ(rrcComposeSP_CellGroupCfg(&context, element.get(), record.get()), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposeServCellConfigCommon Error\r\nrrcComposeReconfigurationWithSync Error\r\n");
    EXPECT_EQ(element->reconfigurationWithSync.m.spCellConfigCommonPresent, 1U);
    EXPECT_EQ(element->reconfigurationWithSync.newUE_Identity, 0);
    EXPECT_EQ(element->reconfigurationWithSync.t304, 0U);
    EXPECT_EQ(element->reconfigurationWithSync.m.rach_ConfigDedicatedPresent, 0U);
    EXPECT_EQ(element->m.rlf_TimersAndConstantsPresent, 0U);
}

TEST_F(failingComposers, MeasurementTimingStopsTheSynchronousReconfiguration)
{
    const auto record = cleared<RrcSpCellCfg_t>();
    record->bitMask = RRC_SPCELLCFG_RECFG_PRESENCE;
    record->recfgWithSync.bitMask = RRC_SSBMTC_PRESENCE;
    record->recfgWithSync.newUEId = 17;
    record->recfgWithSync.smtc = {1, 2, 3};
    const auto element = cleared<SpCellConfig>();
    const Failing failing(address(rrcComposePeriodicityAndOffset));
    EXPECT_EQ(rrcComposeSP_CellGroupCfg(&context, element.get(), record.get()), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposePeriodicityAndOffset Error\r\nrrcComposeSSB_MTC Error\r\n"
                         "rrcComposeReconfigurationWithSync Error\r\n");
    EXPECT_EQ(element->reconfigurationWithSync.newUE_Identity, 17);
    EXPECT_EQ(element->reconfigurationWithSync.m.smtcPresent, 1U);
    EXPECT_EQ(element->reconfigurationWithSync.smtc.duration, 0U);
}

TEST_F(failingComposers, TimersStopTheSpecialCell)
{
    const auto record = cleared<RrcSpCellCfg_t>();
    record->bitMask = RRC_SPCELLCFG_RLFTIMER_PRESENCE | RRC_SPCELLCFG_THRESHOLD_PRESENCE;
    const auto element = cleared<SpCellConfig>();
    const Failing failing(address(rrcComposeRlf_TimerSetup));
    EXPECT_EQ(rrcComposeSP_CellGroupCfg(&context, element.get(), record.get()), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposeRlf_TimerSetup Error\r\nrrcComposeRlf_TimersAndConstants Error\r\n");
    EXPECT_EQ(element->m.rlf_TimersAndConstantsPresent, 1U);
    EXPECT_EQ(element->m.rlmInSyncOutOfSyncThresholdPresent, 0U);
}

TEST_F(failingComposers, RateMatchPatternEndsItsList)
{
    const auto record = cleared<RrcServingCellCfgCommon_t>();
    record->numRateMatchPatternAddMod = 2;
    ServingCellConfigCommon_rateMatchPatternToAddModList list{};
    const Failing failing(address(rrcComposeRateMatchPatternAdd));
    EXPECT_EQ(rrcComposerateMatchPatternToAddMod(&context, &list, record.get()), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposeRateMatchAdd is Error\r\n");
    EXPECT_EQ(list.count, 0U);
}

TEST_F(failingComposers, ExplicitSymbolsStopTheSlot)
{
    RrcTddUlDlSlotCfg_t record{7, RRC_SLOTCFG_SYM_EXPLICIT_PRESENCE, {}};
    TDD_UL_DL_SlotConfig element{};
    const Failing failing(address(rrcComposeSymbols_explicit));
    EXPECT_EQ(rrcComposeTddUlDlCfg(&context, &element, &record), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposeSymbols_explicit Error\r\nrrcComposeTDD_UL_DL_SlotConfig_symbols is Error\r\n");
    EXPECT_EQ(element.slotIndex, 7);
}

TEST_F(failingComposers, RandomAccessSsbResourceEndsItsList)
{
    const auto record = cleared<RrcCfra_t>();
    record->resources.ssb.numSsbResources = 2;
    record->resources.ssb.raSsbOccasionMaskIdx = 5;
    CFRA_resources_ssb ssb{};
    const Failing failing(address(rrcComposeCFRA_SSB_Resource));
    EXPECT_EQ(rrcComposeCFRA_resources_ssb(&context, &ssb, &record->resources.ssb), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposeCFRA_SSB_Resource is Error\r\nrrcComposessb_ResourceList is Error\r\n");
    EXPECT_EQ(ssb.ssb_ResourceList.count, 0U);
    EXPECT_EQ(ssb.ra_ssb_OccasionMaskIndex, 0);
}

TEST_F(failingComposers, RandomAccessCsiRsResourceEndsItsList)
{
    const auto record = cleared<RrcCfra_t>();
    record->resources.scirs.numCsirsRecouces = 2;
    record->resources.scirs.rsrpThreshCsiRs = 5;
    CFRA_resources_csirs csirs{};
    const Failing failing(address(rrcComposeCFRA_CSIRS_Res));
    EXPECT_EQ(rrcComposeCFRA_resources_csirs(&context, &csirs, &record->resources.scirs), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposeCFRA_CSIRS_Res is Error\r\nrrcComposecsirs_ResourceList is Error\r\n");
    EXPECT_EQ(csirs.csirs_ResourceList.count, 0U);
    EXPECT_EQ(csirs.rsrp_ThresholdCSI_RS, 0);
}
