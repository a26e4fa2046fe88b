#include "records.h"

namespace records
{

namespace
{

// Any value but the two stands for "absent".
template <typename Length>
void drawFieldLength(Chance& chance, Length& length)
{
    chance.number(length, 0, 2);
}

void drawUplink(Chance& chance, RrcUlAmRlcCfg_t& record)
{
    drawFieldLength(chance, record.snFeildLen);
    chance.enumeration(record.tPollRetransmit, 63);
    chance.enumeration(record.pollPdu, 31);
    chance.enumeration(record.pollByte, 63);
    chance.enumeration(record.maxRetxThreash, 7);
}

void drawDownlink(Chance& chance, RrcDlAmRlcCfg_t& record)
{
    drawFieldLength(chance, record.snFeildLen);
    chance.enumeration(record.tReassembly, 31);
    chance.enumeration(record.tStatusProhibit, 63);
}

void drawDownlink(Chance& chance, RrcDlUmRlcCfg_t& record)
{
    drawFieldLength(chance, record.snFeildLen);
    chance.enumeration(record.tDlReassembly, 31);
}

void drawRlc(Chance& chance, RrcRlcCfg_t& record)
{
    rrcInit(&record);
    switch (chance.alternative(record.bitMask, {RRC_RLCCFG_AM_PRESENCE, RRC_RLCCFG_UM_BI_PRESENCE,
                                                RRC_RLCCFG_UM_UNI_UL_PRESENCE, RRC_RLCCFG_UM_UNI_DL_PRESENCE}))
    {
    case 0:
        drawUplink(chance, record.choice.amCfg.ulAmCfg);
        drawDownlink(chance, record.choice.amCfg.dlAmCfg);
        break;
    case 1:
        drawDownlink(chance, record.choice.umBiCfg.dlUmCfg);
        drawFieldLength(chance, record.choice.umBiCfg.ulUmCfg.snFeildLen);
        break;
    case 2:
        drawFieldLength(chance, record.choice.umUniUlCfg.snFeildLen);
        break;
    default:
        drawDownlink(chance, record.choice.umUniDlCfg);
        break;
    }
}

void drawUplinkSpecific(Chance& chance, RrcUlSpecificParaCfg_t& record)
{
    rrcInit(&record);
    chance.number(record.priority, 1, 16);
    chance.enumeration(record.priorityBitRate, 15);
    chance.enumeration(record.bucketSizeDuration, 15);
    if (chance.flag(record.bitMask, RRC_UL_SPECIFICPARA_SERVING_CELL_CFG_PRESENCE))
    {
        chance.numbers(record.cellIdx, chance.count(record.allowedCellNum, 1, 31, 5), 0, 31);
    }
    if (chance.flag(record.bitMask, RRC_UL_SPECIFICPARA_SCS_CFG_PRESENCE))
    {
        chance.numbers(record.subCarrierSpacing, chance.count(record.allowedSCSNum, 1, 5, 3), 0, 7);
    }
    chance.enumerationIf(record.bitMask, RRC_UL_SPECIFICPARA_PUSCH_CFG_PRESENCE, record.maxPuschDuration, 7);
    chance.enumerationIf(record.bitMask, RRC_UL_SPECIFICPARA_GRANT_TYPE1_CFG_PRESENCE,
                         record.configuredGrantType1Allowed, 0);
    chance.numberIf(record.bitMask, RRC_UL_SPECIFICPARA_LCG_CFG_PRESENCE, record.logicalChannelGroupId, 0, 7);
    chance.numberIf(record.bitMask, RRC_UL_SPECIFICPARA_SR_CFG_PRESENCE, record.schedReqId, 0, 7);
    chance.boolean(record.logicalChannelSrMask);
    chance.boolean(record.logcalChannelSrDealyTimerApplied);
    chance.enumerationIf(record.bitMask, RRC_UL_SPECIFICPARA_BITRATE_QUERY_PROHIBIT_TIMER,
                         record.bitRateQueryProhibitTimer, 7);
}

} // namespace

void draw(Chance& chance, RrcRlcBearerCfg_t& record)
{
    rrcInit(&record);
    chance.number(record.lchId, 1, 32);
    if (chance.flag(record.bitMask, RRC_RLCBEARERCFG_RBTYPE_PRESENCE))
    {
        chance.enumeration(record.rbType, 1);
        chance.number(record.rbId, 1, record.rbType == RRC_SRB ? 3 : 32);
    }
    chance.enumerationIf(record.bitMask, RRC_RLCBEARERCFG_REESTABRLC_PRESENCE, record.reestablRlc, 0);
    if (chance.flag(record.bitMask, RRC_RLCBEARERCFG_RLC_PRESENCE))
    {
        drawRlc(chance, record.rlcCfg);
    }
    if (chance.flag(record.bitMask, RRC_RLCBEARERCFG_LCH_PRESENCE))
    {
        rrcInit(&record.macLchCfg);
        if (chance.flag(record.macLchCfg.bitMask, RRC_LCH_EXPLICIT_PRESENCE))
        {
            drawUplinkSpecific(chance, record.macLchCfg.ulSpecificParaCfg);
        }
    }
}

} // namespace records
