#ifndef ONEBEARER_H
#define ONEBEARER_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcInit.h"

// One data radio bearer in acknowledged mode with its logical channel, the MAC cell group and the physical cell group.
// The record may come as it is, with anything in its memory; at ten megabytes it belongs on the heap.
inline void oneBearer(RrcCellGroupCfg_t& record)
{
    rrcInit(&record);
    record.cellGroupId = 0;

    record.rlcBearerAddModNum = 1;
    RrcRlcBearerCfg_t& bearer = record.rlcBearerCfg[0];
    rrcInit(&bearer);
    bearer.lchId = 4;
    bearer.bitMask = RRC_RLCBEARERCFG_RBTYPE_PRESENCE | RRC_RLCBEARERCFG_RLC_PRESENCE | RRC_RLCBEARERCFG_LCH_PRESENCE;
    bearer.rbType = RRC_DRB;
    bearer.rbId = 1;

    rrcInit(&bearer.rlcCfg);
    bearer.rlcCfg.bitMask = RRC_RLCCFG_AM_PRESENCE;
    RrcUlAmRlcCfg_t& ulAm = bearer.rlcCfg.choice.amCfg.ulAmCfg;
    rrcInit(&ulAm);
    ulAm.snFeildLen = RRC_AM_SIZE18;
    ulAm.tPollRetransmit = T_PollRetransmit_ms45;
    ulAm.pollPdu = PollPDU_p32;
    ulAm.pollByte = PollByte_infinity;
    ulAm.maxRetxThreash = UL_AM_RLC_maxRetxThreshold_t32;
    RrcDlAmRlcCfg_t& dlAm = bearer.rlcCfg.choice.amCfg.dlAmCfg;
    rrcInit(&dlAm);
    dlAm.snFeildLen = RRC_AM_SIZE18;
    dlAm.tReassembly = T_Reassembly_ms40;
    dlAm.tStatusProhibit = T_StatusProhibit_ms15;

    rrcInit(&bearer.macLchCfg);
    bearer.macLchCfg.bitMask = RRC_LCH_EXPLICIT_PRESENCE;
    RrcUlSpecificParaCfg_t& ul = bearer.macLchCfg.ulSpecificParaCfg;
    rrcInit(&ul);
    ul.priority = 8;
    ul.priorityBitRate = LogicalChannelConfig_ul_SpecificParameters_prioritisedBitRate_infinity;
    ul.bucketSizeDuration = LogicalChannelConfig_ul_SpecificParameters_bucketSizeDuration_ms100;
    ul.bitMask = RRC_UL_SPECIFICPARA_LCG_CFG_PRESENCE | RRC_UL_SPECIFICPARA_SR_CFG_PRESENCE;
    ul.logicalChannelGroupId = 1;
    ul.schedReqId = 0;

    record.bitMask = RRC_CELLGROUPCFG_MAC_PRESENCE | RRC_CELLGROUPCFG_PHY_PRESENCE;

    RrcMacCellGrpCfg_t& mac = record.macCellGrpCfg;
    rrcInit(&mac);
    mac.skipUpTxDynamic = 0;
    mac.bitMask = RRC_MAC_CELL_GRP_CFG_DRX_PRESENCE | RRC_MAC_CELL_GRP_CFG_SR_PRESENCE |
                  RRC_MAC_CELL_GRP_CFG_BSR_PRESENCE | RRC_MAC_CELL_GRP_CFG_TAG_PRESENCE |
                  RRC_MAC_CELL_GRP_CFG_PHR_PRESENCE;
    RrcDrxCfg_t& drx = mac.drxCfg;
    rrcInit(&drx);
    drx.bitMask = RRC_DRX_CFG_ONDURATION_MILLION_PRESENCE | RRC_DRX_CFG_SHORT_DRX_PRESENCE;
    drx.drxOnDurationTimer.milliSeconds = DRX_Config_drx_onDurationTimer_milliSeconds_ms10;
    drx.drxInactivityTimer = DRX_Config_drx_InactivityTimer_ms100;
    drx.drxHarqRttTimerDl = 56;
    drx.drxHarqRttTimerUl = 56;
    drx.drxRetransTimerDl = DRX_Config_drx_RetransmissionTimerDL_sl8;
    drx.drxRetransTimerUl = DRX_Config_drx_RetransmissionTimerUL_sl8;
    drx.drxLongCycleStartOffset.period = T_DRX_Config_drx_LongCycleStartOffset_ms320;
    drx.drxLongCycleStartOffset.offset = 9;
    rrcInit(&drx.shortDrx);
    drx.shortDrx.period = DRX_Config_shortDRX_drx_ShortCycle_ms80;
    drx.shortDrx.offset = 2;
    drx.drxSlotOffset = 0;
    rrcInit(&mac.srCfg);
    mac.srCfg.numSrAddMod = 1;
    rrcInit(&mac.srCfg.srASddMod[0]);
    mac.srCfg.srASddMod[0].srId = 0;
    mac.srCfg.srASddMod[0].srTransMax = SchedulingRequestToAddMod_sr_TransMax_n64;
    mac.srCfg.srASddMod[0].bitMask = RRC_SR_PROHIBITTIMER_PRESENCE;
    mac.srCfg.srASddMod[0].srProhibitTimer = SchedulingRequestToAddMod_sr_ProhibitTimer_ms4;
    rrcInit(&mac.bsrCfg);
    mac.bsrCfg.periodicBsrTimer = BSR_Config_periodicBSR_Timer_sf10;
    mac.bsrCfg.retxBsrTimer = BSR_Config_retxBSR_Timer_sf80;
    rrcInit(&mac.tagCfg);
    mac.tagCfg.numTagAddMod = 1;
    rrcInit(&mac.tagCfg.tag[0]);
    mac.tagCfg.tag[0].tagId = 0;
    mac.tagCfg.tag[0].taTimer = TimeAlignmentTimer_infinity;
    rrcInit(&mac.phrCfg);
    mac.phrCfg.phrPeriodTimer = PHR_Config_phr_PeriodicTimer_sf100;
    mac.phrCfg.phrProhibitTimer = PHR_Config_phr_ProhibitTimer_sf100;
    mac.phrCfg.phrTxPowerFactorChange = PHR_Config_phr_Tx_PowerFactorChange_dB3;
    mac.phrCfg.phrModeOtherCG = PHR_Config_phr_ModeOtherCG_real;

    RrcPhyCellGrpCfg_t& phy = record.phyCellGrpCfg;
    rrcInit(&phy);
    phy.pdschHarqAckCodeBook = PhysicalCellGroupConfig_pdsch_HARQ_ACK_Codebook_dynamic;
    phy.bitMask = RRC_PHY_CGC_NR_PMAX_PRESENCE;
    phy.pNrFR1Pmax = 23; // dBm
}

#endif
