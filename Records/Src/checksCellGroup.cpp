// Checks of what is not a serving cell's.
#include "rowChecks.h"

namespace recordCheck
{

namespace
{

void reportUplinkTxDirect(const RrcCellGroupCfg_t& r, Report& report)
{
    notSent(report, rowRules::reportUplinkTxDirect, r.bitMask, RRC_CELLGROUPCFG_REPORT_PRESENCE);
}

void rlcBearerType(const RrcRlcBearerCfg_t& r, Report& report)
{
    if ((r.bitMask & RRC_RLCBEARERCFG_RBTYPE_PRESENCE) != 0 && r.rbType != RRC_SRB && r.rbType != RRC_DRB)
    {
        report.say(rowRules::rlcBearerType, &r.rbType);
    }
}

void rlcConfigChoice(const RrcRlcCfg_t& r, Report& report)
{
    oneBit(report, rowRules::rlcConfigChoice, r.bitMask, RRC_RLCCFG_UM_UNI_DL_PRESENCE);
}

// 2 is how a record says that the field is absent, and may be meant.
template <typename Record>
void rlcSnLength(const Record& r, Report& report)
{
    const auto value = static_cast<UINT32>(r.snFeildLen);
    if (value > 1)
    {
        report.say(rowRules::rlcSnLength, value == 2 ? RRC_RECORD_NOTICE : RRC_RECORD_WARNING, &r.snFeildLen);
    }
}

void logicalChannelParameters(const RrcLchCfg_t& r, Report& report)
{
    if ((r.bitMask & RRC_LCH_EXPLICIT_PRESENCE) == 0)
    {
        report.say(rowRules::logicalChannelParameters, &r.bitMask);
    }
}

void logicalChannelListCounts(const RrcUlSpecificParaCfg_t& r, Report& report)
{
    bitAndCount(report, rowRules::logicalChannelListCounts,
                (r.bitMask & RRC_UL_SPECIFICPARA_SERVING_CELL_CFG_PRESENCE) != 0, r.allowedCellNum);
    bitAndCount(report, rowRules::logicalChannelListCounts, (r.bitMask & RRC_UL_SPECIFICPARA_SCS_CFG_PRESENCE) != 0,
                r.allowedSCSNum);
}

void rlcBearerOneValue(const RrcRlcBearerCfg_t& r, Report& report)
{
    oneValue(report, rowRules::rlcBearerOneValue, (r.bitMask & RRC_RLCBEARERCFG_REESTABRLC_PRESENCE) != 0,
             r.reestablRlc);
}

void logicalChannelOneValue(const RrcUlSpecificParaCfg_t& r, Report& report)
{
    oneValue(report, rowRules::rlcBearerOneValue, (r.bitMask & RRC_UL_SPECIFICPARA_GRANT_TYPE1_CFG_PRESENCE) != 0,
             r.configuredGrantType1Allowed);
}

void logicalChannelBooleans(const RrcUlSpecificParaCfg_t& r, Report& report)
{
    boolean(report, rowRules::logicalChannelBooleans, true, r.logicalChannelSrMask);
    boolean(report, rowRules::logicalChannelBooleans, true, r.logcalChannelSrDealyTimerApplied);
}

void macMembersNotSent(const RrcMacCellGrpCfg_t& r, Report& report)
{
    notSent(report, rowRules::macMembersNotSent, r.bitMask,
            RRC_MAC_CELL_GRP_CFG_CSI_PRESENCE | RRC_MAC_CELL_GRP_CFG_TIMER_PRESENCE);
}

void drxOnDuration(const RrcDrxCfg_t& r, Report& report)
{
    if ((r.bitMask & RRC_DRX_CFG_ONDURATION_MILLION_PRESENCE) == 0)
    {
        between(report, rowRules::drxOnDuration, r.drxOnDurationTimer.subMilliSeconds, 1, 31);
    }
}

void drxLongCycle(const RrcLongCycleStartOffset_t& r, Report& report)
{
    between(report, rowRules::drxLongCycle, r.period, 1, 20);
}

void drxStartOffset(const RrcLongCycleStartOffset_t& r, Report& report)
{
    shortOffset(report, rowRules::drxStartOffset, r.period >= 1 && r.period <= 11, r.offset);
}

void macBooleans(const RrcMacCellGrpCfg_t& r, Report& report)
{
    boolean(report, rowRules::macBooleans, true, r.skipUpTxDynamic);
}

void phrBooleans(const RrcPhrCfg_t& r, Report& report)
{
    boolean(report, rowRules::macBooleans, true, r.multiplePHR);
    boolean(report, rowRules::macBooleans, true, r.phrType2OtherCell);
}

void phrDummy(const RrcPhrCfg_t& r, Report& report)
{
    if (r.dummy != 0)
    {
        report.say(rowRules::phrDummy, (r.dummy & 0xFF) != 0 ? RRC_RECORD_NOTICE : RRC_RECORD_WARNING, &r.dummy);
    }
}

void phyMcsCRnti(const RrcPhyCellGrpCfg_t& r, Report& report)
{
    notSent(report, rowRules::phyMcsCRnti, r.bitMask, RRC_PHY_CGC_MCS_CRNTI_PRESENCE);
}

void phyPUeFr1(const RrcPhyCellGrpCfg_t& r, Report& report)
{
    notSent(report, rowRules::phyPUeFr1, r.bitMask, RRC_PHY_CGC_UE_PMAX_PRESENCE);
}

void phyOneValue(const RrcPhyCellGrpCfg_t& r, Report& report)
{
    oneValue(report, rowRules::phyOneValue, (r.bitMask & RRC_PHY_CGC_HARQ_PUCCH_PRESENCE) != 0, r.harqAckBundlingPucch);
    oneValue(report, rowRules::phyOneValue, (r.bitMask & RRC_PHY_CGC_HARQ_PUSCH_PRESENCE) != 0, r.harqAckBundlingPusch);
}

constexpr RowCheck cellGroupChecks[] = {
    row<reportUplinkTxDirect>,
    row<rlcBearerType>,
    row<rlcConfigChoice>,
    row<rlcSnLength<RrcUlAmRlcCfg_t>>,
    row<rlcSnLength<RrcDlAmRlcCfg_t>>,
    row<rlcSnLength<RrcUlUmRlcCfg_t>>,
    row<rlcSnLength<RrcDlUmRlcCfg_t>>,
    row<logicalChannelParameters>,
    row<logicalChannelListCounts>,
    row<rlcBearerOneValue>,
    row<logicalChannelOneValue>,
    row<logicalChannelBooleans>,
    row<macMembersNotSent>,
    row<drxOnDuration>,
    row<drxLongCycle>,
    row<drxStartOffset>,
    row<macBooleans>,
    row<phrBooleans>,
    row<phrDummy>,
    row<phyMcsCRnti>,
    row<phyPUeFr1>,
    row<phyOneValue>,
};

} // namespace

const RowChecks checksOfCellGroup = rowChecks(cellGroupChecks);

} // namespace recordCheck
