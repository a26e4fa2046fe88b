#ifndef ONEBEARER_H
#define ONEBEARER_H

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

    bearer.rlcCfg.bitMask = RRC_RLCCFG_AM_PRESENCE;
    RrcUlAmRlcCfg_t& ulAm = bearer.rlcCfg.choice.amCfg.ulAmCfg;
    ulAm.snFeildLen = RRC_AM_SIZE18;
    ulAm.tPollRetransmit = 8; // ms45
    ulAm.pollPdu = 3;         // p32
    ulAm.pollByte = 43;       // infinity
    ulAm.maxRetxThreash = 7;  // t32
    RrcDlAmRlcCfg_t& dlAm = bearer.rlcCfg.choice.amCfg.dlAmCfg;
    dlAm.snFeildLen = RRC_AM_SIZE18;
    dlAm.tReassembly = 8;     // ms40
    dlAm.tStatusProhibit = 3; // ms15

    bearer.macLchCfg.bitMask = RRC_LCH_EXPLICIT_PRESENCE;
    RrcUlSpecificParaCfg_t& ul = bearer.macLchCfg.ulSpecificParaCfg;
    ul.priority = 8;
    ul.priorityBitRate = 15;   // infinity
    ul.bucketSizeDuration = 4; // ms100
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
    drx.bitMask = RRC_DRX_CFG_ONDURATION_MILLION_PRESENCE | RRC_DRX_CFG_SHORT_DRX_PRESENCE;
    drx.drxOnDurationTimer.milliSeconds = 7; // ms10
    drx.drxInactivityTimer = 15;             // ms100
    drx.drxHarqRttTimerDl = 56;
    drx.drxHarqRttTimerUl = 56;
    drx.drxRetransTimerDl = 5;               // sl8
    drx.drxRetransTimerUl = 5;               // sl8
    drx.drxLongCycleStartOffset.period = 12; // ms320
    drx.drxLongCycleStartOffset.offset = 9;
    drx.shortDrx.period = 16; // ms80
    drx.shortDrx.offset = 2;
    drx.drxSlotOffset = 0;
    mac.srCfg.numSrAddMod = 1;
    mac.srCfg.srASddMod[0].srId = 0;
    mac.srCfg.srASddMod[0].srTransMax = 4; // n64
    mac.srCfg.srASddMod[0].bitMask = RRC_SR_PROHIBITTIMER_PRESENCE;
    mac.srCfg.srASddMod[0].srProhibitTimer = 2; // ms4
    mac.bsrCfg.periodicBsrTimer = 2;            // sf10
    mac.bsrCfg.retxBsrTimer = 3;                // sf80
    mac.tagCfg.numTagAddMod = 1;
    mac.tagCfg.tag[0].tagId = 0;
    mac.tagCfg.tag[0].taTimer = 7;         // infinity
    mac.phrCfg.phrPeriodTimer = 3;         // sf100
    mac.phrCfg.phrProhibitTimer = 4;       // sf100
    mac.phrCfg.phrTxPowerFactorChange = 1; // dB3
    mac.phrCfg.phrModeOtherCG = 0;         // real

    RrcPhyCellGrpCfg_t& phy = record.phyCellGrpCfg;
    rrcInit(&phy);
    phy.pdschHarqAckCodeBook = 1; // dynamic
    phy.bitMask = RRC_PHY_CGC_NR_PMAX_PRESENCE;
    phy.pNrFR1Pmax = 23; // dBm
}

#endif
