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

/** RrcReconfWithSync_t.rachCfgBitMask: choice.uplink is given */
#define RRC_RACH_CFG_UPLINK_PRESENCE (1 << 0)
/** RrcReconfWithSync_t.rachCfgBitMask: choice.suppUplink is given; wins over the uplink */
#define RRC_RACH_CFG_SUPPUPLINK_PRESENCE (1 << 1)

/** ReconfigurationWithSync */
typedef struct rrcReconfWithSync_s
{
    CmNrRnti newUEId;     /**< newUE-Identity, 0..65535 */
    UINT8 t304;           /**< t304, enumeration ms50.. (0..7) */
    UINT8 bitMask;        /**< RRC_RACH_CFG_DEDI_PRESENCE .. RRC_SSBMTC_PRESENCE */
    UINT8 rachCfgBitMask; /**< RRC_RACH_CFG_UPLINK_PRESENCE or RRC_RACH_CFG_SUPPUPLINK_PRESENCE */
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
    UINT8 t310; /**< t310, enumeration ms0.. (0..8) */
    UINT8 n310; /**< n310, enumeration n1.. (0..7) */
    UINT8 n311; /**< n311, enumeration n1.. (0..7) */
    UINT8 t311; /**< t311-v1530, enumeration ms1000.. (0..6); always sent */
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
    UINT8 bitMask;                            /**< RRC_SPCELLCFG_..._PRESENCE */
    UINT8 servCellIdx;                        /**< servCellIndex, 0..31 */
    RrcReconfWithSync_t recfgWithSync;        /**< reconfigurationWithSync */
    RrcRlfTimerConstants_t rlfTimerConstants; /**< rlf-TimersAndConstants, sent as setup */
    UINT8 rlmInSyncOutSyncThreshold;          /**< rlmInSyncOutOfSyncThreshold, enumeration n1 (0) */
    RrcServingCellCfg_t spCellDedicated;      /**< spCellConfigDedicated */
} RrcSpCellCfg_t;

#ifdef __cplusplus
}
#endif

#endif
