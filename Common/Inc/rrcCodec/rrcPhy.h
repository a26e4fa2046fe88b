#ifndef RRCPHY_H
#define RRCPHY_H

#include "gnbCommon/gnbCommon.h"
#include "vos_types.h"

/*
 * Physical cell group (TS 38.331 PhysicalCellGroupConfig).
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** RrcPhyCellGrpCfg_t.bitMask: harqAckBundlingPucch is given */
#define RRC_PHY_CGC_HARQ_PUCCH_PRESENCE (1 << 0)
/** RrcPhyCellGrpCfg_t.bitMask: harqAckBundlingPusch is given */
#define RRC_PHY_CGC_HARQ_PUSCH_PRESENCE (1 << 1)
/** RrcPhyCellGrpCfg_t.bitMask: pNrFR1Pmax is given */
#define RRC_PHY_CGC_NR_PMAX_PRESENCE (1 << 2)
/** RrcPhyCellGrpCfg_t.bitMask: tpcSrsRnti is given */
#define RRC_PHY_CGC_TPC_SRS_RNTI_PRESENCE (1 << 3)
/** RrcPhyCellGrpCfg_t.bitMask: tpcPucchRnti is given */
#define RRC_PHY_CGC_TPC_PUCCH_RNTI_PRESENCE (1 << 4)
/** RrcPhyCellGrpCfg_t.bitMask: tpcPuschRnti is given */
#define RRC_PHY_CGC_TPC_PUSCH_RNTI_PRESENCE (1 << 5)
/** RrcPhyCellGrpCfg_t.bitMask: spCsiRnti is given */
#define RRC_PHY_CGC_SP_CSI_RNTI_PRESENCE (1 << 6)
/** RrcPhyCellGrpCfg_t.bitMask: csRnti is given */
#define RRC_PHY_CGC_CS_RNTI_PRESENCE (1 << 7)
/** RrcPhyCellGrpCfg_t.bitMask: mcsCRnti is given */
#define RRC_PHY_CGC_MCS_CRNTI_PRESENCE (1 << 8)
/** RrcPhyCellGrpCfg_t.bitMask: pUeFR1Pmax is given */
#define RRC_PHY_CGC_UE_PMAX_PRESENCE (1 << 9)

/** PhysicalCellGroupConfig */
typedef struct rrcPhyCellGrpCfg_s
{
    /** pdsch-HARQ-ACK-Codebook, PhysicalCellGroupConfig_pdsch_HARQ_ACK_Codebook_...: 0 semiStatic, 1 dynamic */
    UINT8 pdschHarqAckCodeBook;
    UINT16 bitMask; /**< bits RRC_PHY_CGC_..._PRESENCE */
    /** harq-ACK-SpatialBundlingPUCCH, PhysicalCellGroupConfig_harq_ACK_SpatialBundlingPUCCH_...: 0 true */
    BOOL harqAckBundlingPucch;
    /** harq-ACK-SpatialBundlingPUSCH, PhysicalCellGroupConfig_harq_ACK_SpatialBundlingPUSCH_...: 0 true */
    BOOL harqAckBundlingPusch;
    UINT8 pNrFR1Pmax;      /**< p-NR-FR1, -30..33, in dBm, as two's complement; -30 is 226 */
    CmNrRnti tpcSrsRnti;   /**< tpc-SRS-RNTI, 0..65535 */
    CmNrRnti tpcPucchRnti; /**< tpc-PUCCH-RNTI, 0..65535 */
    CmNrRnti tpcPuschRnti; /**< tpc-PUSCH-RNTI, 0..65535 */
    CmNrRnti spCsiRnti;    /**< sp-CSI-RNTI, 0..65535 */
    CmNrRnti csRnti;       /**< cs-RNTI, 0..65535; always set up, never released */
    CmNrRnti mcsCRnti;     /**< mcs-C-RNTI, 0..65535, not sent; no composer announces its extension group */
    /** p-UE-FR1, -30..33, in dBm, as two's complement, not sent; no composer announces its extension group */
    UINT8 pUeFR1Pmax;
} RrcPhyCellGrpCfg_t;

#ifdef __cplusplus
}
#endif

#endif
