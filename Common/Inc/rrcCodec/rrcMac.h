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

/**
 * drx-LongCycleStartOffset. Periods: 1 ms10, 2 ms20, 3 ms32, 4 ms40, 5 ms60, 6 ms64, 7 ms70, 8 ms80, 9 ms128, 10 ms160,
 * 11 ms256, 12 ms320, 13 ms512, 14 ms640, 15 ms1024, 16 ms1280, 17 ms2048, 18 ms2560, 19 ms5120, 20 ms10240.
 */
typedef struct rrcLongCycleStartOffset_s
{
    UINT8 period;  /**< which alternative, 1..20 as above */
    UINT16 offset; /**< in ms, below the period; up to period 11 only its low 8 bits count */
} RrcLongCycleStartOffset_t;

/** shortDRX */
typedef struct rrcShortDrx_s
{
    UINT8 period; /**< drx-ShortCycle, enumeration ms2.. (0..31) */
    UINT8 offset; /**< drx-ShortCycleTimer, 1..16, in short cycles */
} RrcShortDrx_t;

/** RrcDrxCfg_t.bitMask: drxOnDurationTimer is in milliseconds */
#define RRC_DRX_CFG_ONDURATION_MILLION_PRESENCE (1 << 0)
/** RrcDrxCfg_t.bitMask: shortDrx is given */
#define RRC_DRX_CFG_SHORT_DRX_PRESENCE (1 << 1)

/** DRX-Config */
typedef struct rrcDrxCfg_s
{
    UINT8 bitMask; /**< RRC_DRX_CFG_..._PRESENCE */
    union drxOnDurationTimer_u
    {
        UINT8 subMilliSeconds;                         /**< in 1/32 ms, 1..31 */
        UINT8 milliSeconds;                            /**< enumeration ms1.. (0..31) */
    } drxOnDurationTimer;                              /**< drx-onDurationTimer; bitMask says which */
    UINT8 drxInactivityTimer;                          /**< drx-InactivityTimer, enumeration ms0.. (0..31) */
    UINT8 drxHarqRttTimerDl;                           /**< drx-HARQ-RTT-TimerDL, 0..56, in symbols */
    UINT8 drxHarqRttTimerUl;                           /**< drx-HARQ-RTT-TimerUL, 0..56, in symbols */
    UINT8 drxRetransTimerDl;                           /**< drx-RetransmissionTimerDL, enumeration sl0.. (0..31) */
    UINT8 drxRetransTimerUl;                           /**< drx-RetransmissionTimerUL, enumeration sl0.. (0..31) */
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
    UINT8 srId;            /**< schedulingRequestId, 0..7 */
    UINT8 srTransMax;      /**< sr-TransMax, enumeration n4.. (0..7) */
    UINT8 bitMask;         /**< RRC_SR_PROHIBITTIMER_PRESENCE */
    UINT8 srProhibitTimer; /**< sr-ProhibitTimer, enumeration ms1.. (0..7) */
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
    UINT8 periodicBsrTimer; /**< periodicBSR-Timer, enumeration sf1.. (0..15) */
    UINT8 retxBsrTimer;     /**< retxBSR-Timer, enumeration sf10.. (0..15) */
    UINT8 bitMask;          /**< RRC_BSR_SRDELAY_PRESENCE */
    UINT8 lcSRDelayTimer;   /**< logicalChannelSR-DelayTimer, enumeration sf20.. (0..7) */
} RrcBsrCfg_t;

/** maxNrofTAGs */
#define RRC_MAX_NROF_TAGS 4

/** TAG */
typedef struct rrcTag_s
{
    UINT8 tagId;   /**< tag-Id, 0..3 */
    UINT8 taTimer; /**< timeAlignmentTimer, enumeration ms500.. (0..7) */
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
    UINT8 phrPeriodTimer;         /**< phr-PeriodicTimer, enumeration sf10.. (0..7) */
    UINT8 phrProhibitTimer;       /**< phr-ProhibitTimer, enumeration sf0.. (0..7) */
    UINT8 phrTxPowerFactorChange; /**< phr-Tx-PowerFactorChange, enumeration dB1.. (0..3) */
    BOOL multiplePHR;             /**< multiplePHR */
    BOOL dummy;                   /**< dummy */
    BOOL phrType2OtherCell;       /**< phr-Type2OtherCell */
    UINT8 phrModeOtherCG;         /**< phr-ModeOtherCG, 0 real, 1 virtual */
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
    BOOL skipUpTxDynamic;  /**< skipUplinkTxDynamic */
    UINT8 bitMask;         /**< RRC_MAC_CELL_GRP_CFG_..._PRESENCE */
    RrcDrxCfg_t drxCfg;    /**< drx-Config */
    RrcSRCfg_t srCfg;      /**< schedulingRequestConfig */
    RrcBsrCfg_t bsrCfg;    /**< bsr-Config */
    RrcTagCfg_t tagCfg;    /**< tag-Config */
    RrcPhrCfg_t phrCfg;    /**< phr-Config */
    BOOL csiMaskV1530;     /**< csi-Mask; its extension group is not sent */
    UINT8 inactivityTimer; /**< dataInactivityTimer, enumeration s1.. (0..15); its extension group is not sent */
} RrcMacCellGrpCfg_t;

#ifdef __cplusplus
}
#endif

#endif
