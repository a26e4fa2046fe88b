#include "records.h"

namespace records
{

namespace
{

void drawLongCycle(Chance& chance, RrcLongCycleStartOffset_t& record)
{
    constexpr unsigned milliseconds[] = {10,  20,  32,  40,  60,   64,   70,   80,   128,  160,
                                         256, 320, 512, 640, 1024, 1280, 2048, 2560, 5120, 10240};
    const unsigned chosen = chance.tag(record.period, std::size(milliseconds));
    chance.number(record.offset, 0, milliseconds[chosen] - 1);
    // Up to 256 ms only the low 8 bits count.
    if (milliseconds[chosen] <= 256)
    {
        chance.above(record.offset, 8);
    }
}

void drawDrx(Chance& chance, RrcDrxCfg_t& record)
{
    rrcInit(&record);
    if (chance.flag(record.bitMask, RRC_DRX_CFG_ONDURATION_MILLION_PRESENCE))
    {
        chance.enumeration(record.drxOnDurationTimer.milliSeconds, 31);
    }
    else
    {
        chance.number(record.drxOnDurationTimer.subMilliSeconds, 1, 31);
    }
    chance.enumeration(record.drxInactivityTimer, 31);
    chance.number(record.drxHarqRttTimerDl, 0, 56);
    chance.number(record.drxHarqRttTimerUl, 0, 56);
    chance.enumeration(record.drxRetransTimerDl, 31);
    chance.enumeration(record.drxRetransTimerUl, 31);
    drawLongCycle(chance, record.drxLongCycleStartOffset);
    if (chance.flag(record.bitMask, RRC_DRX_CFG_SHORT_DRX_PRESENCE))
    {
        chance.enumeration(record.shortDrx.period, 31);
        chance.number(record.shortDrx.offset, 1, 16);
    }
    chance.number(record.drxSlotOffset, 0, 31);
}

void drawSchedulingRequest(Chance& chance, RrcSRCfg_t& record)
{
    rrcInit(&record);
    const unsigned added = chance.optionalCount(record.numSrAddMod, RRC_MAX_NROFSR_CONFIG_PER_CELL_GROUP, 7);
    for (unsigned i = 0; i < added; ++i)
    {
        RrcSrAddMod_t& request = record.srASddMod[i];
        rrcInit(&request);
        chance.number(request.srId, 0, 7);
        chance.enumeration(request.srTransMax, 7);
        chance.enumerationIf(request.bitMask, RRC_SR_PROHIBITTIMER_PRESENCE, request.srProhibitTimer, 7);
    }
    chance.numbers(record.srId, chance.optionalCount(record.numSrRel, RRC_MAX_NROFSR_CONFIG_PER_CELL_GROUP, 3), 0, 7);
}

void drawBsr(Chance& chance, RrcBsrCfg_t& record)
{
    rrcInit(&record);
    chance.enumeration(record.periodicBsrTimer, 15);
    chance.enumeration(record.retxBsrTimer, 15);
    chance.enumerationIf(record.bitMask, RRC_BSR_SRDELAY_PRESENCE, record.lcSRDelayTimer, 7);
}

void drawTag(Chance& chance, RrcTagCfg_t& record)
{
    rrcInit(&record);
    const unsigned added = chance.optionalCount(record.numTagAddMod, RRC_MAX_NROF_TAGS, 6);
    for (unsigned i = 0; i < added; ++i)
    {
        chance.number(record.tag[i].tagId, 0, 3);
        chance.enumeration(record.tag[i].taTimer, 7);
    }
    chance.numbers(record.tagId, chance.optionalCount(record.numTagRel, RRC_MAX_NROF_TAGS, 2), 0, 3);
}

void drawPhr(Chance& chance, RrcPhrCfg_t& record)
{
    rrcInit(&record);
    chance.enumeration(record.phrPeriodTimer, 7);
    chance.enumeration(record.phrProhibitTimer, 7);
    chance.enumeration(record.phrTxPowerFactorChange, 3);
    chance.boolean(record.multiplePHR);
    chance.boolean(record.dummy);
    chance.boolean(record.phrType2OtherCell);
    chance.enumeration(record.phrModeOtherCG, 1);
}

} // namespace

void draw(Chance& chance, RrcMacCellGrpCfg_t& record)
{
    rrcInit(&record);
    chance.boolean(record.skipUpTxDynamic);
    if (chance.flag(record.bitMask, RRC_MAC_CELL_GRP_CFG_DRX_PRESENCE))
    {
        drawDrx(chance, record.drxCfg);
    }
    if (chance.flag(record.bitMask, RRC_MAC_CELL_GRP_CFG_SR_PRESENCE))
    {
        drawSchedulingRequest(chance, record.srCfg);
    }
    if (chance.flag(record.bitMask, RRC_MAC_CELL_GRP_CFG_BSR_PRESENCE))
    {
        drawBsr(chance, record.bsrCfg);
    }
    if (chance.flag(record.bitMask, RRC_MAC_CELL_GRP_CFG_TAG_PRESENCE))
    {
        drawTag(chance, record.tagCfg);
    }
    if (chance.flag(record.bitMask, RRC_MAC_CELL_GRP_CFG_PHR_PRESENCE))
    {
        drawPhr(chance, record.phrCfg);
    }
    // These two are never sent, so they may hold anything.
    chance.bitsIf(record.bitMask, RRC_MAC_CELL_GRP_CFG_CSI_PRESENCE, record.csiMaskV1530, 32);
    chance.bitsIf(record.bitMask, RRC_MAC_CELL_GRP_CFG_TIMER_PRESENCE, record.inactivityTimer, 8);
}

void draw(Chance& chance, RrcPhyCellGrpCfg_t& record)
{
    rrcInit(&record);
    chance.enumeration(record.pdschHarqAckCodeBook, 1);
    chance.enumerationIf(record.bitMask, RRC_PHY_CGC_HARQ_PUCCH_PRESENCE, record.harqAckBundlingPucch, 0);
    chance.enumerationIf(record.bitMask, RRC_PHY_CGC_HARQ_PUSCH_PRESENCE, record.harqAckBundlingPusch, 0);
    chance.numberIf(record.bitMask, RRC_PHY_CGC_NR_PMAX_PRESENCE, record.pNrFR1Pmax, -30, 33);
    chance.numberIf(record.bitMask, RRC_PHY_CGC_TPC_SRS_RNTI_PRESENCE, record.tpcSrsRnti, 0, 65535);
    chance.numberIf(record.bitMask, RRC_PHY_CGC_TPC_PUCCH_RNTI_PRESENCE, record.tpcPucchRnti, 0, 65535);
    chance.numberIf(record.bitMask, RRC_PHY_CGC_TPC_PUSCH_RNTI_PRESENCE, record.tpcPuschRnti, 0, 65535);
    chance.numberIf(record.bitMask, RRC_PHY_CGC_SP_CSI_RNTI_PRESENCE, record.spCsiRnti, 0, 65535);
    chance.numberIf(record.bitMask, RRC_PHY_CGC_CS_RNTI_PRESENCE, record.csRnti, 0, 65535);
    // These two are never sent, so they may hold anything.
    chance.bitsIf(record.bitMask, RRC_PHY_CGC_MCS_CRNTI_PRESENCE, record.mcsCRnti, 16);
    chance.bitsIf(record.bitMask, RRC_PHY_CGC_UE_PMAX_PRESENCE, record.pUeFR1Pmax, 8);
}

} // namespace records
