#include "physicalCellGroup.h"

#include "compose.h"

// PhysicalCellGroupConfig
INT32 rrcComposePhysical_CellGroupCfg(OSCTXT*, PhysicalCellGroupConfig* pPhysicalCellGroupConfig,
                                      RrcPhyCellGrpCfg_t* pRrcPhyCellGrpCfg)
{
    NULL_CHECK(pPhysicalCellGroupConfig);
    NULL_CHECK(pRrcPhyCellGrpCfg);

    const UINT16 bitMask = pRrcPhyCellGrpCfg->bitMask;
    COPY_IF(bitMask & RRC_PHY_CGC_HARQ_PUCCH_PRESENCE, pPhysicalCellGroupConfig, harq_ACK_SpatialBundlingPUCCH,
            pRrcPhyCellGrpCfg->harqAckBundlingPucch);
    COPY_IF(bitMask & RRC_PHY_CGC_HARQ_PUSCH_PRESENCE, pPhysicalCellGroupConfig, harq_ACK_SpatialBundlingPUSCH,
            pRrcPhyCellGrpCfg->harqAckBundlingPusch);
    COPY_IF(bitMask & RRC_PHY_CGC_NR_PMAX_PRESENCE, pPhysicalCellGroupConfig, p_NR_FR1, pRrcPhyCellGrpCfg->pNrFR1Pmax);
    assign(pPhysicalCellGroupConfig->pdsch_HARQ_ACK_Codebook, pRrcPhyCellGrpCfg->pdschHarqAckCodeBook);
    COPY_IF(bitMask & RRC_PHY_CGC_TPC_SRS_RNTI_PRESENCE, pPhysicalCellGroupConfig, tpc_SRS_RNTI,
            pRrcPhyCellGrpCfg->tpcSrsRnti);
    COPY_IF(bitMask & RRC_PHY_CGC_TPC_PUCCH_RNTI_PRESENCE, pPhysicalCellGroupConfig, tpc_PUCCH_RNTI,
            pRrcPhyCellGrpCfg->tpcPucchRnti);
    COPY_IF(bitMask & RRC_PHY_CGC_TPC_PUSCH_RNTI_PRESENCE, pPhysicalCellGroupConfig, tpc_PUSCH_RNTI,
            pRrcPhyCellGrpCfg->tpcPuschRnti);
    COPY_IF(bitMask & RRC_PHY_CGC_SP_CSI_RNTI_PRESENCE, pPhysicalCellGroupConfig, sp_CSI_RNTI,
            pRrcPhyCellGrpCfg->spCsiRnti);
    if (bitMask & RRC_PHY_CGC_CS_RNTI_PRESENCE)
    {
        pPhysicalCellGroupConfig->m.cs_RNTIPresent = 1;
        compose::setupValue(&pPhysicalCellGroupConfig->cs_RNTI, pRrcPhyCellGrpCfg->csRnti);
    }
    // mcs-C-RNTI and p-UE-FR1 are in the tree only: their extension group is never announced.
    COPY_IF(bitMask & RRC_PHY_CGC_MCS_CRNTI_PRESENCE, pPhysicalCellGroupConfig, mcs_C_RNTI,
            pRrcPhyCellGrpCfg->mcsCRnti);
    COPY_IF(bitMask & RRC_PHY_CGC_UE_PMAX_PRESENCE, pPhysicalCellGroupConfig, p_UE_FR1, pRrcPhyCellGrpCfg->pUeFR1Pmax);
    return VOS_OK;
}
