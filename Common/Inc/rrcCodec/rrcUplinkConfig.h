#ifndef RRCUPLINKCONFIG_H
#define RRCUPLINKCONFIG_H

#include "rrcCodec/rrcServingCellLevel.h"
#include "rrcCodec/rrcUplinkBwp.h"
#include "vos_types.h"

/*
 * Uplink of a serving cell, normal or supplementary (TS 38.331 UplinkConfig).
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** RrcUlCfg_t.bitMask: initialUplinkBWP is given */
#define RRC_UL_CFG_INIT_UL_BWP_PRESENCE (1 << 0)
/** RrcUlCfg_t.bitMask: firstActiveUlBwpId is given */
#define RRC_UL_CFG_FIRST_ACTICVE_UL_BWP_PRESENCE (1 << 1)
/** RrcUlCfg_t.bitMask: PuschServingCellCfg is given */
#define RRC_UL_CFG_PUSCH_SERVING_CELL_CFG_PRESENCE (1 << 2)
/** RrcUlCfg_t.bitMask: carrierSwitching is given */
#define RRC_UL_CFG_CARRIER_SWITCHING_PRESENCE (1 << 3)
/** RrcUlCfg_t.bitMask: powerBoostPi2BPSK is not sent; it has no value here */
#define RRC_UL_CFG_POWER_BOOST_PI_2BPSK (1 << 4)
/** RrcUlCfg_t.bitMask: uplinkChannelBW-PerSCS-List is not sent; it has no value here */
#define RRC_UL_CFG_UL_CHANNEL_BW_PERSCS_LIST (1 << 5)

/** UplinkConfig. A list is sent when its count is not 0. */
typedef struct rrcUlCfg_s
{
    UINT8 numUlBwpAddMod;                         /**< entries used of ulBwpAddMod, 0..4 */
    RrcBwpUl_t ulBwpAddMod[4];                    /**< uplinkBWP-ToAddModList */
    UINT8 numUlBwpRel;                            /**< entries used of ulBwpId, 0..4 */
    UINT8 ulBwpId[4];                             /**< uplinkBWP-ToReleaseList, each 0..4 */
    UINT8 bitMask;                                /**< bits RRC_UL_CFG_... */
    RrcBwpUlDedi_t initialUplinkBWP;              /**< initialUplinkBWP */
    UINT8 firstActiveUlBwpId;                     /**< firstActiveUplinkBWP-Id, 0..4 */
    RrcPuschServingCellCfg_t PuschServingCellCfg; /**< pusch-ServingCellConfig */
    RrcSrsCarrierSwitching_t carrierSwitching;    /**< carrierSwitching */
} RrcUlCfg_t;

#ifdef __cplusplus
}
#endif

#endif
