#ifndef RRCSPCELL_H
#define RRCSPCELL_H

#include "gnbCommon/gnbCommon.h"
#include "rrcCodec/rrcRach.h"
#include "rrcCodec/rrcServingCell.h"
#include "rrcCodec/rrcServingCellCommon.h"
#include "vos_types.h"

/*
 * Special cell (TS 38.331 SpCellConfig). Enumerated fields hold the integer of the ASN.1 enumeration.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** RrcReconfWithSync_t.bitMask: rachCfgBitMask and choice are given */
#define RRC_RACH_CFG_DEDI_PRESENCE (1 << 0)
/** RrcReconfWithSync_t.bitMask: spCellConfigCommon is given */
#define RRC_SERVING_CELL_CFG_COMMON_PRESENCE (1 << 1)
/** RrcReconfWithSync_t.bitMask: smtc is given */
#define RRC_SSBMTC_PRESENCE (1 << 2)

/** RrcReconfWithSync_t.rachCfgBitMask: chooses rach-ConfigDedicated.uplink, in choice.uplink */
#define RRC_RACH_CFG_UPLINK_PRESENCE (1 << 0)
/** RrcReconfWithSync_t.rachCfgBitMask: chooses rach-ConfigDedicated.supplementaryUplink, in choice.suppUplink */
#define RRC_RACH_CFG_SUPPUPLINK_PRESENCE (1 << 1)

/** ReconfigurationWithSync */
typedef struct rrcReconfWithSync_s
{
    CmNrRnti newUEId; /**< newUE-Identity, 0..65535 */
    /**
     * t304, ReconfigurationWithSync_t304_...: 0 ms50, 1 ms100, 2 ms150, 3 ms200, 4 ms500, 5 ms1000, 6 ms2000, 7 ms10000
     */
    UINT8 t304;
    /** bits RRC_RACH_CFG_DEDI_PRESENCE and RRC_SERVING_CELL_CFG_COMMON_PRESENCE and RRC_SSBMTC_PRESENCE */
    UINT8 bitMask;
    UINT8 rachCfgBitMask; /**< bits RRC_RACH_CFG_..._PRESENCE */
    union rachCfgDed_u
    {
        RrcRachCfgDedi_t uplink;                  /**< uplink */
        RrcRachCfgDedi_t suppUplink;              /**< supplementaryUplink */
    } choice;                                     /**< rach-ConfigDedicated */
    RrcServingCellCfgCommon_t spCellConfigCommon; /**< spCellConfigCommon */
    RrcSSBMTC_t smtc;                             /**< smtc */
} RrcReconfWithSync_t;

/** RLF-TimersAndConstants */
typedef struct rrcRlfTimerConstants_s
{
    /**
     * t310, RLF_TimersAndConstants_t310_...: 0 ms0, 1 ms50, 2 ms100, 3 ms200, 4 ms500, 5 ms1000, 6 ms2000, 7 ms4000,
     * 8 ms6000
     */
    UINT8 t310;
    /** n310, RLF_TimersAndConstants_n310_...: 0 n1, 1 n2, 2 n3, 3 n4, 4 n6, 5 n8, 6 n10, 7 n20 */
    UINT8 n310;
    /** n311, RLF_TimersAndConstants_n311_...: 0 n1, 1 n2, 2 n3, 3 n4, 4 n5, 5 n6, 6 n8, 7 n10 */
    UINT8 n311;
    /**
     * t311-v1530, always sent, RLF_TimersAndConstants_t311_v1530_...: 0 ms1000, 1 ms3000, 2 ms5000, 3 ms10000,
     * 4 ms15000, 5 ms20000, 6 ms30000
     */
    UINT8 t311;
} RrcRlfTimerConstants_t;

/** RrcSpCellCfg_t.bitMask: servCellIdx is given */
#define RRC_SPCELLCFG_CELLIDX_PRESENCE (1 << 0)
/** RrcSpCellCfg_t.bitMask: recfgWithSync is given */
#define RRC_SPCELLCFG_RECFG_PRESENCE (1 << 1)
/** RrcSpCellCfg_t.bitMask: rlfTimerConstants is given */
#define RRC_SPCELLCFG_RLFTIMER_PRESENCE (1 << 2)
/** RrcSpCellCfg_t.bitMask: rlmInSyncOutSyncThreshold is given */
#define RRC_SPCELLCFG_THRESHOLD_PRESENCE (1 << 3)
/** RrcSpCellCfg_t.bitMask: spCellDedicated is given */
#define RRC_SPCELLCFG_DEDICFG_PRESENCE (1 << 4)

/** SpCellConfig */
typedef struct rrcSpCellCfg_s
{
    UINT8 bitMask;                            /**< bits RRC_SPCELLCFG_..._PRESENCE */
    UINT8 servCellIdx;                        /**< servCellIndex, 0..31 */
    RrcReconfWithSync_t recfgWithSync;        /**< reconfigurationWithSync */
    RrcRlfTimerConstants_t rlfTimerConstants; /**< rlf-TimersAndConstants; sent as setup */
    /** rlmInSyncOutOfSyncThreshold, SpCellConfig_rlmInSyncOutOfSyncThreshold_...: 0 n1 */
    UINT8 rlmInSyncOutSyncThreshold;
    RrcServingCellCfg_t spCellDedicated; /**< spCellConfigDedicated */
} RrcSpCellCfg_t;

#ifdef __cplusplus
}
#endif

#endif
