#ifndef RRCMAC_H
#define RRCMAC_H

#include "vos_types.h"

/*
 * MAC cell group (TS 38.331 MAC-CellGroupConfig). Enumerated fields hold the integer of the ASN.1 enumeration.
 */

#ifdef __cplusplus
extern "C"
{
#endif

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

#ifdef __cplusplus
}
#endif

#endif
