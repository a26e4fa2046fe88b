#ifndef RRCTDDDEDICATED_H
#define RRCTDDDEDICATED_H

#include "rrcCodec/rrcServingCellCommon.h"
#include "vos_types.h"

/*
 * UE-specific TDD pattern of a serving cell (TS 38.331 TDD-UL-DL-ConfigDedicated).
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** maxNrofSlots */
#define RRC_MAX_NROF_SLOTS 320

/** TDD-UL-DL-ConfigDedicated. Its lists are composed, but never sent. */
typedef struct rrcTddUlDlCfgDedi_s
{
    UINT16 numSlotsAddMod;                                    /**< entries used of slotCfgDedicated, 0..320 */
    RrcTddUlDlSlotCfg_t slotCfgDedicated[RRC_MAX_NROF_SLOTS]; /**< slotSpecificConfigurationsToAddModList, not sent */
    UINT16 numSlotsRelease;                                   /**< entries used of slotIdx, 0..320 */
    UINT16 slotIdx[RRC_MAX_NROF_SLOTS]; /**< slotSpecificConfigurationsToreleaseList, each 0..319, not sent */
} RrcTddUlDlCfgDedi_t;

#ifdef __cplusplus
}
#endif

#endif
