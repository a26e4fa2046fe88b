#ifndef RRCSERVINGCELL_H
#define RRCSERVINGCELL_H

#include "rrcCodec/rrcCsiMeas.h"
#include "rrcCodec/rrcDownlinkBwp.h"
#include "rrcCodec/rrcServingCellLevel.h"
#include "rrcCodec/rrcTddDedicated.h"
#include "rrcCodec/rrcUplinkConfig.h"
#include "vos_types.h"

/*
 * UE-specific configuration of a serving cell (TS 38.331 ServingCellConfig). Enumerated fields hold the integer of the
 * ASN.1 enumeration.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** maxNrofBWPs */
#define RRC_MAX_NROF_BWPS 4

/** RrcServingCellCfg_t.bitMask: tddUlDlCfgDed is given */
#define RRC_SERVING_CELL_TDD_ULDL_CFG_DEDI_PRESENCE (1 << 0)
/** RrcServingCellCfg_t.bitMask: initDlBwp is given */
#define RRC_SERVING_CELL_INIT_DL_BWP_PRESENCE (1 << 1)
/** RrcServingCellCfg_t.bitMask: firstActiveDlBwpId is given */
#define RRC_SERVING_CELL_FIRST_ACTIVE_DL_BWP_PRESENCE (1 << 2)
/** RrcServingCellCfg_t.bitMask: bwpInactiveTimer is given */
#define RRC_SERVING_CELL_BWP_INACTIVE_TIMER_PRESENCE (1 << 3)
/** RrcServingCellCfg_t.bitMask: defaultDlBwpId is given */
#define RRC_SERVING_CELL_DEFAULT_DL_BWP_ID_PRESENCE (1 << 4)
/** RrcServingCellCfg_t.bitMask: ulCfg is given */
#define RRC_SERVING_CELL_UL_CFG_PRESENCE (1 << 5)
/** RrcServingCellCfg_t.bitMask: suppUlCfg is given */
#define RRC_SERVING_CELL_SUP_UL_CFG_PRESENCE (1 << 6)
/** RrcServingCellCfg_t.bitMask: pdcchServingCellCfg is given */
#define RRC_SERVING_CELL_PDCCH_SERVING_CELL_CFG_PRESENCE (1 << 7)
/** RrcServingCellCfg_t.bitMask: pdschServingCellCfg is given */
#define RRC_SERVING_CELL_PDSCH_SERVING_CELL_CFG_PRESENCE (1 << 8)
/** RrcServingCellCfg_t.bitMask: csiMeasCfg is given */
#define RRC_SERVING_CELL_CSI_MEAS_CFG_PRESENCE (1 << 9)
/** RrcServingCellCfg_t.bitMask: sCellDeativationTimer is given */
#define RRC_SERVING_CELL_SCELL_DEACTIVE_TIMER_PRESENCE (1 << 10)
/** RrcServingCellCfg_t.bitMask: not read; cross-carrier scheduling has no field */
#define RRC_SERVING_CELL_CROSS_CARRIER_SCHD_CFG_PRESENCE (1 << 11)
/** RrcServingCellCfg_t.bitMask: dummy is given */
#define RRC_SERVING_CELL_UE_BEAMLOCK_FUNC_PRESENCE (1 << 12)
/** RrcServingCellCfg_t.bitMask: pathLossRefLinking is given */
#define RRC_SERVING_CELL_PATH_LOSS_REF_LINK_PRESENCE (1 << 13)
/** RrcServingCellCfg_t.bitMask: servingCellMo is given */
#define RRC_SERVING_CELL_SERVING_CELL_MO_PRESENCE (1 << 14)

/** ServingCellConfig. The lists of downlink bandwidth parts are sent when their counts are not 0. */
typedef struct rrcServingCellCfg_s
{
    UINT8 tagId;                         /**< tag-Id, 0..3, always sent */
    UINT16 bitMask;                      /**< bits RRC_SERVING_CELL_..._PRESENCE */
    RrcTddUlDlCfgDedi_t tddUlDlCfgDed;   /**< tdd-UL-DL-ConfigurationDedicated */
    RrcBwpDlDedicated_t initDlBwp;       /**< initialDownlinkBWP */
    UINT8 numDlBwpRel;                   /**< entries used of dlBwpId, 0..4 */
    UINT8 dlBwpId[RRC_MAX_NROF_BWPS];    /**< downlinkBWP-ToReleaseList, each 0..4 */
    UINT8 numDlBwpAddMod;                /**< entries used of dlBwp, 0..4 */
    RrcBwpDl_t dlBwp[RRC_MAX_NROF_BWPS]; /**< downlinkBWP-ToAddModList */
    UINT8 firstActiveDlBwpId;            /**< firstActiveDownlinkBWP-Id, 0..4 */
    /**
     * bwp-InactivityTimer, ServingCellConfig_bwp_InactivityTimer_...: 0 ms2, 1 ms3, 2 ms4, 3 ms5, 4 ms6, 5 ms8, 6 ms10,
     * 7 ms20, 8 ms30, 9 ms40, 10 ms50, 11 ms60, 12 ms80, 13 ms100, 14 ms200, 15 ms300, 16 ms500, 17 ms750, 18 ms1280,
     * 19 ms1920, 20 ms2560
     */
    UINT8 bwpInactiveTimer;
    UINT8 defaultDlBwpId;                         /**< defaultDownlinkBWP-Id, 0..4 */
    RrcUlCfg_t ulCfg;                             /**< uplinkConfig */
    RrcUlCfg_t suppUlCfg;                         /**< supplementaryUplink */
    RrcPdcchServingCellCfg_t pdcchServingCellCfg; /**< pdcch-ServingCellConfig */
    RrcPdschServingCellCfg_t pdschServingCellCfg; /**< pdsch-ServingCellConfig */
    RrcCsiMeasCfg_t csiMeasCfg;                   /**< csi-MeasConfig */
    /**
     * sCellDeactivationTimer, ServingCellConfig_sCellDeactivationTimer_...: 0 ms20, 1 ms40, 2 ms80, 3 ms160, 4 ms200,
     * 5 ms240, 6 ms320, 7 ms400, 8 ms480, 9 ms520, 10 ms640, 11 ms720, 12 ms840, 13 ms1280
     */
    UINT8 sCellDeativationTimer;
    BOOL dummy; /**< dummy, ServingCellConfig_dummy_...: 0 enabled */
    /** pathlossReferenceLinking, ServingCellConfig_pathlossReferenceLinking_...: 0 spCell, 1 sCell */
    UINT8 pathLossRefLinking;
    UINT8 servingCellMo; /**< servingCellMO, 1..64 */
} RrcServingCellCfg_t;

#ifdef __cplusplus
}
#endif

#endif
