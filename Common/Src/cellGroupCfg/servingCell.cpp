#include "servingCell.h"

#include "compose.h"
#include "csiMeas.h"
#include "downlinkBwp.h"
#include "servingCellLevel.h"
#include "tddDedicated.h"
#include "uplinkConfig.h"

// SpCellConfig.spCellConfigDedicated and SCellConfig.sCellConfigDedicated. Cross-carrier scheduling has a bit in the
// record, but no field: the bit is not looked at.
INT32 rrcComposespCellConfigDedicated(OSCTXT* pAsnCxt, ServingCellConfig* pSpCellConfigDedicated,
                                      RrcServingCellCfg_t* pRrcSpCellDedicated)
{
    NULL_CHECK(pSpCellConfigDedicated);
    NULL_CHECK(pRrcSpCellDedicated);

    const UINT16 bitMask = pRrcSpCellDedicated->bitMask;
    if (bitMask & RRC_SERVING_CELL_TDD_ULDL_CFG_DEDI_PRESENCE)
    {
        pSpCellConfigDedicated->m.tdd_UL_DL_ConfigurationDedicatedPresent = 1;
        RETURN_IF_FAILED(rrcComposeTDD_UL_DL_ConfigDedicated(pAsnCxt,
                                                             &pSpCellConfigDedicated->tdd_UL_DL_ConfigurationDedicated,
                                                             &pRrcSpCellDedicated->tddUlDlCfgDed),
                         "rrcComposeTDD_UL_DL_ConfigDedicated Error\r\n");
    }
    if (bitMask & RRC_SERVING_CELL_INIT_DL_BWP_PRESENCE)
    {
        pSpCellConfigDedicated->m.initialDownlinkBWPPresent = 1;
        RETURN_IF_FAILED(rrcComposeBWP_DownlinkDedicated(pAsnCxt, &pSpCellConfigDedicated->initialDownlinkBWP,
                                                         &pRrcSpCellDedicated->initDlBwp),
                         "rrcComposeBWP_DownlinkDedicated Error\r\n");
    }
    if (pRrcSpCellDedicated->numDlBwpRel != 0)
    {
        pSpCellConfigDedicated->m.downlinkBWP_ToReleaseListPresent = 1;
        RETURN_IF_FAILED(rrcComposedownlinkBWP_ToReleaseList(&pSpCellConfigDedicated->downlinkBWP_ToReleaseList,
                                                             pRrcSpCellDedicated),
                         "rrcComposedownlinkBWP_ToReleaseList Error\r\n");
    }
    if (pRrcSpCellDedicated->numDlBwpAddMod != 0)
    {
        pSpCellConfigDedicated->m.downlinkBWP_ToAddModListPresent = 1;
        RETURN_IF_FAILED(rrcComposedownlinkBWP_ToADDMod(pAsnCxt, &pSpCellConfigDedicated->downlinkBWP_ToAddModList,
                                                        pRrcSpCellDedicated),
                         "rrcComposedownlinkBWP_ToADDMod Error\r\n");
    }
    COPY_IF(bitMask & RRC_SERVING_CELL_FIRST_ACTIVE_DL_BWP_PRESENCE, pSpCellConfigDedicated, firstActiveDownlinkBWP_Id,
            pRrcSpCellDedicated->firstActiveDlBwpId);
    COPY_IF(bitMask & RRC_SERVING_CELL_BWP_INACTIVE_TIMER_PRESENCE, pSpCellConfigDedicated, bwp_InactivityTimer,
            pRrcSpCellDedicated->bwpInactiveTimer);
    COPY_IF(bitMask & RRC_SERVING_CELL_DEFAULT_DL_BWP_ID_PRESENCE, pSpCellConfigDedicated, defaultDownlinkBWP_Id,
            pRrcSpCellDedicated->defaultDlBwpId);
    if (bitMask & RRC_SERVING_CELL_UL_CFG_PRESENCE)
    {
        pSpCellConfigDedicated->m.uplinkConfigPresent = 1;
        RETURN_IF_FAILED(
            rrcComposeUplinkConfig(pAsnCxt, &pSpCellConfigDedicated->uplinkConfig, &pRrcSpCellDedicated->ulCfg),
            "rrcComposeUplinkConfig Error\r\n");
    }
    if (bitMask & RRC_SERVING_CELL_SUP_UL_CFG_PRESENCE)
    {
        pSpCellConfigDedicated->m.supplementaryUplinkPresent = 1;
        RETURN_IF_FAILED(rrcComposeUplinkConfig(pAsnCxt, &pSpCellConfigDedicated->supplementaryUplink,
                                                &pRrcSpCellDedicated->suppUlCfg),
                         "rrcComposeUplinkConfig Error\r\n");
    }
    if (bitMask & RRC_SERVING_CELL_PDCCH_SERVING_CELL_CFG_PRESENCE)
    {
        pSpCellConfigDedicated->m.pdcch_ServingCellConfigPresent = 1;
        RETURN_IF_FAILED(rrcComposePdcch_ServingCellConfig(pAsnCxt, &pSpCellConfigDedicated->pdcch_ServingCellConfig,
                                                           &pRrcSpCellDedicated->pdcchServingCellCfg),
                         "rrcComposePdcch_ServingCellConfig Error\r\n");
    }
    if (bitMask & RRC_SERVING_CELL_PDSCH_SERVING_CELL_CFG_PRESENCE)
    {
        pSpCellConfigDedicated->m.pdsch_ServingCellConfigPresent = 1;
        RETURN_IF_FAILED(rrcComposePdsch_ServingCellConfig(pAsnCxt, &pSpCellConfigDedicated->pdsch_ServingCellConfig,
                                                           &pRrcSpCellDedicated->pdschServingCellCfg),
                         "rrcComposePdsch_ServingCellConfig Error\r\n");
    }
    if (bitMask & RRC_SERVING_CELL_CSI_MEAS_CFG_PRESENCE)
    {
        pSpCellConfigDedicated->m.csi_MeasConfigPresent = 1;
        RETURN_IF_FAILED(rrcComposecsi_MeasConfig(pAsnCxt, &pSpCellConfigDedicated->csi_MeasConfig,
                                                  &pRrcSpCellDedicated->csiMeasCfg),
                         "rrcComposecsi_MeasConfig Error\r\n");
    }
    COPY_IF(bitMask & RRC_SERVING_CELL_SCELL_DEACTIVE_TIMER_PRESENCE, pSpCellConfigDedicated, sCellDeactivationTimer,
            pRrcSpCellDedicated->sCellDeativationTimer);
    assign(pSpCellConfigDedicated->tag_Id, pRrcSpCellDedicated->tagId);
    COPY_IF(bitMask & RRC_SERVING_CELL_UE_BEAMLOCK_FUNC_PRESENCE, pSpCellConfigDedicated, dummy,
            pRrcSpCellDedicated->dummy);
    COPY_IF(bitMask & RRC_SERVING_CELL_PATH_LOSS_REF_LINK_PRESENCE, pSpCellConfigDedicated, pathlossReferenceLinking,
            pRrcSpCellDedicated->pathLossRefLinking);
    COPY_IF(bitMask & RRC_SERVING_CELL_SERVING_CELL_MO_PRESENCE, pSpCellConfigDedicated, servingCellMO,
            pRrcSpCellDedicated->servingCellMo);
    return VOS_OK;
}
