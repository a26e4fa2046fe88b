#ifndef RRCMAC_H
#define RRCMAC_H

#include "vos_types.h"

/*
 * MAC cell group (TS 38.331 MAC-CellGroupConfig). Enumerated fields hold the integer of the ASN.1 enumeration. Of a
 * BOOL that mirrors a BOOLEAN the low 8 bits count.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** DRX-Config.drx-LongCycleStartOffset */
typedef struct rrcLongCycleStartOffset_s
{
    /**
     * alternative of itself, T_DRX_Config_drx_LongCycleStartOffset_...: 1 ms10, 2 ms20, 3 ms32, 4 ms40, 5 ms60, 6 ms64,
     * 7 ms70, 8 ms80, 9 ms128, 10 ms160, 11 ms256, 12 ms320, 13 ms512, 14 ms640, 15 ms1024, 16 ms1280, 17 ms2048,
     * 18 ms2560, 19 ms5120, 20 ms10240
     */
    UINT8 period;
    /** value by period, in ms; below the period, of which up to period 11 only the low 8 bits count */
    UINT16 offset;
} RrcLongCycleStartOffset_t;

/** DRX-Config.shortDRX */
typedef struct rrcShortDrx_s
{
    /**
     * drx-ShortCycle, DRX_Config_shortDRX_drx_ShortCycle_...: 0 ms2, 1 ms3, 2 ms4, 3 ms5, 4 ms6, 5 ms7, 6 ms8, 7 ms10,
     * 8 ms14, 9 ms16, 10 ms20, 11 ms30, 12 ms32, 13 ms35, 14 ms40, 15 ms64, 16 ms80, 17 ms128, 18 ms160, 19 ms256,
     * 20 ms320, 21 ms512, 22 ms640
     */
    UINT8 period;
    UINT8 offset; /**< drx-ShortCycleTimer, 1..16, in short cycles */
} RrcShortDrx_t;

/**
 * RrcDrxCfg_t.bitMask: chooses drx-onDurationTimer.milliSeconds, in drxOnDurationTimer.milliSeconds, else
 * drx-onDurationTimer.subMilliSeconds, in drxOnDurationTimer.subMilliSeconds
 */
#define RRC_DRX_CFG_ONDURATION_MILLION_PRESENCE (1 << 0)
/** RrcDrxCfg_t.bitMask: shortDrx is given */
#define RRC_DRX_CFG_SHORT_DRX_PRESENCE (1 << 1)

/** DRX-Config */
typedef struct rrcDrxCfg_s
{
    UINT8 bitMask; /**< bits RRC_DRX_CFG_..._PRESENCE */
    union drxOnDurationTimer_u
    {
        UINT8 subMilliSeconds; /**< subMilliSeconds, 1..31, in 1/32 ms */
        /**
         * milliSeconds, DRX_Config_drx_onDurationTimer_milliSeconds_...: 0 ms1, 1 ms2, 2 ms3, 3 ms4, 4 ms5, 5 ms6,
         * 6 ms8, 7 ms10, 8 ms20, 9 ms30, 10 ms40, 11 ms50, 12 ms60, 13 ms80, 14 ms100, 15 ms200, 16 ms300, 17 ms400,
         * 18 ms500, 19 ms600, 20 ms800, 21 ms1000, 22 ms1200, 23 ms1600
         */
        UINT8 milliSeconds;
    } drxOnDurationTimer; /**< drx-onDurationTimer; bitMask says which */
    /**
     * drx-InactivityTimer, DRX_Config_drx_InactivityTimer_...: 0 ms0, 1 ms1, 2 ms2, 3 ms3, 4 ms4, 5 ms5, 6 ms6, 7 ms8,
     * 8 ms10, 9 ms20, 10 ms30, 11 ms40, 12 ms50, 13 ms60, 14 ms80, 15 ms100, 16 ms200, 17 ms300, 18 ms500, 19 ms750,
     * 20 ms1280, 21 ms1920, 22 ms2560
     */
    UINT8 drxInactivityTimer;
    UINT8 drxHarqRttTimerDl; /**< drx-HARQ-RTT-TimerDL, 0..56, in symbols */
    UINT8 drxHarqRttTimerUl; /**< drx-HARQ-RTT-TimerUL, 0..56, in symbols */
    /**
     * drx-RetransmissionTimerDL, DRX_Config_drx_RetransmissionTimerDL_...: 0 sl0, 1 sl1, 2 sl2, 3 sl4, 4 sl6, 5 sl8,
     * 6 sl16, 7 sl24, 8 sl33, 9 sl40, 10 sl64, 11 sl80, 12 sl96, 13 sl112, 14 sl128, 15 sl160, 16 sl320
     */
    UINT8 drxRetransTimerDl;
    /**
     * drx-RetransmissionTimerUL, DRX_Config_drx_RetransmissionTimerUL_...: 0 sl0, 1 sl1, 2 sl2, 3 sl4, 4 sl6, 5 sl8,
     * 6 sl16, 7 sl24, 8 sl33, 9 sl40, 10 sl64, 11 sl80, 12 sl96, 13 sl112, 14 sl128, 15 sl160, 16 sl320
     */
    UINT8 drxRetransTimerUl;
    RrcLongCycleStartOffset_t drxLongCycleStartOffset; /**< drx-LongCycleStartOffset */
    RrcShortDrx_t shortDrx;                            /**< shortDRX */
    UINT8 drxSlotOffset;                               /**< drx-SlotOffset, 0..31, in 1/32 ms */
} RrcDrxCfg_t;

/** maxNrofSR-ConfigPerCellGroup */
#define RRC_MAX_NROFSR_CONFIG_PER_CELL_GROUP 8

/** RrcSrAddMod_t.bitMask: srProhibitTimer is given */
#define RRC_SR_PROHIBITTIMER_PRESENCE (1 << 0)

/** SchedulingRequestToAddMod */
typedef struct rrcSrAddMod_s
{
    UINT8 srId; /**< schedulingRequestId, 0..7 */
    /** sr-TransMax, SchedulingRequestToAddMod_sr_TransMax_...: 0 n4, 1 n8, 2 n16, 3 n32, 4 n64 */
    UINT8 srTransMax;
    UINT8 bitMask; /**< bits RRC_SR_PROHIBITTIMER_PRESENCE */
    /**
     * sr-ProhibitTimer, SchedulingRequestToAddMod_sr_ProhibitTimer_...: 0 ms1, 1 ms2, 2 ms4, 3 ms8, 4 ms16, 5 ms32,
     * 6 ms64, 7 ms128
     */
    UINT8 srProhibitTimer;
} RrcSrAddMod_t;

/** SchedulingRequestConfig. A list is sent when its count is not 0. */
typedef struct rrcSRCfg_s
{
    UINT8 numSrAddMod;                                             /**< entries used of srASddMod, 0..8 */
    RrcSrAddMod_t srASddMod[RRC_MAX_NROFSR_CONFIG_PER_CELL_GROUP]; /**< schedulingRequestToAddModList */
    UINT8 numSrRel;                                                /**< entries used of srId, 0..8 */
    UINT8 srId[RRC_MAX_NROFSR_CONFIG_PER_CELL_GROUP];              /**< schedulingRequestToReleaseList, each 0..7 */
} RrcSRCfg_t;

/** RrcBsrCfg_t.bitMask: lcSRDelayTimer is given */
#define RRC_BSR_SRDELAY_PRESENCE (1 << 0)

/** BSR-Config */
typedef struct rrcBsrCfg_s
{
    /**
     * periodicBSR-Timer, BSR_Config_periodicBSR_Timer_...: 0 sf1, 1 sf5, 2 sf10, 3 sf16, 4 sf20, 5 sf32, 6 sf40,
     * 7 sf64, 8 sf80, 9 sf128, 10 sf160, 11 sf320, 12 sf640, 13 sf1280, 14 sf2560, 15 infinity
     */
    UINT8 periodicBsrTimer;
    /**
     * retxBSR-Timer, BSR_Config_retxBSR_Timer_...: 0 sf10, 1 sf20, 2 sf40, 3 sf80, 4 sf160, 5 sf320, 6 sf640, 7 sf1280,
     * 8 sf2560, 9 sf5120, 10 sf10240
     */
    UINT8 retxBsrTimer;
    UINT8 bitMask; /**< bits RRC_BSR_SRDELAY_PRESENCE */
    /**
     * logicalChannelSR-DelayTimer, BSR_Config_logicalChannelSR_DelayTimer_...: 0 sf20, 1 sf40, 2 sf64, 3 sf128,
     * 4 sf512, 5 sf1024, 6 sf2560
     */
    UINT8 lcSRDelayTimer;
} RrcBsrCfg_t;

/** maxNrofTAGs */
#define RRC_MAX_NROF_TAGS 4

/** TAG */
typedef struct rrcTag_s
{
    UINT8 tagId; /**< tag-Id, 0..3 */
    /**
     * timeAlignmentTimer, TimeAlignmentTimer_...: 0 ms500, 1 ms750, 2 ms1280, 3 ms1920, 4 ms2560, 5 ms5120, 6 ms10240,
     * 7 infinity
     */
    UINT8 taTimer;
} RrcTag_t;

/** TAG-Config. A list is sent when its count is not 0. */
typedef struct rrcTagCfg_s
{
    UINT8 numTagAddMod;              /**< entries used of tag, 0..4 */
    RrcTag_t tag[RRC_MAX_NROF_TAGS]; /**< tag-ToAddModList */
    UINT8 numTagRel;                 /**< entries used of tagId, 0..4 */
    UINT8 tagId[RRC_MAX_NROF_TAGS];  /**< tag-ToReleaseList, each 0..3 */
} RrcTagCfg_t;

/** PHR-Config */
typedef struct rrcPhrCfg_s
{
    /**
     * phr-PeriodicTimer, PHR_Config_phr_PeriodicTimer_...: 0 sf10, 1 sf20, 2 sf50, 3 sf100, 4 sf200, 5 sf500, 6 sf1000,
     * 7 infinity
     */
    UINT8 phrPeriodTimer;
    /**
     * phr-ProhibitTimer, PHR_Config_phr_ProhibitTimer_...: 0 sf0, 1 sf10, 2 sf20, 3 sf50, 4 sf100, 5 sf200, 6 sf500,
     * 7 sf1000
     */
    UINT8 phrProhibitTimer;
    /** phr-Tx-PowerFactorChange, PHR_Config_phr_Tx_PowerFactorChange_...: 0 dB1, 1 dB3, 2 dB6, 3 infinity */
    UINT8 phrTxPowerFactorChange;
    BOOL multiplePHR;       /**< multiplePHR */
    BOOL dummy;             /**< dummy */
    BOOL phrType2OtherCell; /**< phr-Type2OtherCell */
    UINT8 phrModeOtherCG;   /**< phr-ModeOtherCG, PHR_Config_phr_ModeOtherCG_...: 0 real, 1 virtual */
} RrcPhrCfg_t;

/** RrcMacCellGrpCfg_t.bitMask: drxCfg is given */
#define RRC_MAC_CELL_GRP_CFG_DRX_PRESENCE (1 << 0)
/** RrcMacCellGrpCfg_t.bitMask: srCfg is given */
#define RRC_MAC_CELL_GRP_CFG_SR_PRESENCE (1 << 1)
/** RrcMacCellGrpCfg_t.bitMask: bsrCfg is given */
#define RRC_MAC_CELL_GRP_CFG_BSR_PRESENCE (1 << 2)
/** RrcMacCellGrpCfg_t.bitMask: tagCfg is given */
#define RRC_MAC_CELL_GRP_CFG_TAG_PRESENCE (1 << 3)
/** RrcMacCellGrpCfg_t.bitMask: phrCfg is given */
#define RRC_MAC_CELL_GRP_CFG_PHR_PRESENCE (1 << 4)
/** RrcMacCellGrpCfg_t.bitMask: csiMaskV1530 is given */
#define RRC_MAC_CELL_GRP_CFG_CSI_PRESENCE (1 << 5)
/** RrcMacCellGrpCfg_t.bitMask: inactivityTimer is given */
#define RRC_MAC_CELL_GRP_CFG_TIMER_PRESENCE (1 << 6)

/** MAC-CellGroupConfig. DRX and PHR are always set up, never released. */
typedef struct rrcMacCellGrpCfg_s
{
    BOOL skipUpTxDynamic; /**< skipUplinkTxDynamic */
    UINT8 bitMask;        /**< bits RRC_MAC_CELL_GRP_CFG_..._PRESENCE */
    RrcDrxCfg_t drxCfg;   /**< drx-Config */
    RrcSRCfg_t srCfg;     /**< schedulingRequestConfig */
    RrcBsrCfg_t bsrCfg;   /**< bsr-Config */
    RrcTagCfg_t tagCfg;   /**< tag-Config */
    RrcPhrCfg_t phrCfg;   /**< phr-Config */
    BOOL csiMaskV1530;    /**< csi-Mask, not sent; no composer announces its extension group */
    /**
     * dataInactivityTimer, not sent, DataInactivityTimer_...: 0 s1, 1 s2, 2 s3, 3 s5, 4 s7, 5 s10, 6 s15, 7 s20, 8 s40,
     * 9 s50, 10 s60, 11 s80, 12 s100, 13 s120, 14 s150, 15 s180; no composer announces its extension group
     */
    UINT8 inactivityTimer;
} RrcMacCellGrpCfg_t;

#ifdef __cplusplus
}
#endif

#endif
