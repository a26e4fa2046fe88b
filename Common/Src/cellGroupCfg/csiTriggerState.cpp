#include "csiTriggerState.h"

#include "compose.h"

// CSI-MeasConfig.aperiodicTriggerStateList.setup[].associatedReportConfigInfoList[]
INT32 rrcComposeCsi_AssociatedReportConfigInfo(OSCTXT* pAsnCxt, CSI_AssociatedReportConfigInfo* pItem,
                                               RrcCsiAssociatedReportCfgInfo_t* pRrcItem)
{
    assign(pItem->reportConfigId, pRrcItem->reportCfgId);
    (void)rrcComposeResourcesForChannel(pAsnCxt, &pItem->resourcesForChannel, pRrcItem);
    return VOS_OK;
}

// CSI-MeasConfig.aperiodicTriggerStateList.setup[].associatedReportConfigInfoList[].resourcesForChannel
INT32 rrcComposeResourcesForChannel(OSCTXT* pAsnCxt,
                                    CSI_AssociatedReportConfigInfo_resourcesForChannel* pResourcesForChannel,
                                    RrcCsiAssociatedReportCfgInfo_t* pRrcItem)
{
    if (pRrcItem->prsence & RRC_CSI_ASSOCIATED_REPORT_CFG_INFO_NZP_CSI_RS_PRESENCE)
    {
        (void)compose::alternative(
            pAsnCxt, pResourcesForChannel, T_CSI_AssociatedReportConfigInfo_resourcesForChannel_nzp_CSI_RS,
            pResourcesForChannel->u.nzp_CSI_RS, &pRrcItem->resourceForChannel.nzpCsiRs, rrcComposeChannel_nzp_CSI_RS);
    }
    if (pRrcItem->prsence & RRC_CSI_ASSOCIATED_REPORT_CFG_INFO_CSI_SSB_SET_PRESENCE)
    {
        pResourcesForChannel->t = T_CSI_AssociatedReportConfigInfo_resourcesForChannel_csi_SSB_ResourceSet;
        // The field is named after CSI-IM and holds the SSB resource set.
        assign(pResourcesForChannel->u.csi_SSB_ResourceSet,
               pRrcItem->resourceForChannel.csiSsbResourceSet.csiImResourceSet);
    }
    return VOS_OK;
}

// CSI-MeasConfig.aperiodicTriggerStateList.setup[].associatedReportConfigInfoList[].resourcesForChannel.nzp-CSI-RS
INT32 rrcComposeChannel_nzp_CSI_RS(CSI_AssociatedReportConfigInfo_resourcesForChannel_nzp_CSI_RS* pNzp_CSI_RS,
                                   struct nzpCsiRs_s* pRrcNzpCsiRs)
{
    assign(pNzp_CSI_RS->resourceSet, pRrcNzpCsiRs->resourceSet);
    if (pRrcNzpCsiRs->numQciInfo != 0)
    {
        pNzp_CSI_RS->m.qcl_infoPresent = 1;
        compose::array(&pNzp_CSI_RS->qcl_info, pRrcNzpCsiRs->numQciInfo, pRrcNzpCsiRs->qciInfo);
    }
    return VOS_OK;
}

// CSI-MeasConfig.semiPersistentOnPUSCH-TriggerStateList.setup[]
INT32 rrcComposeTriggerState(CSI_SemiPersistentOnPUSCH_TriggerState* pItem, UINT8* pRrcCsiReportCfgId)
{
    assign(pItem->associatedReportConfigInfo, *pRrcCsiReportCfgId);
    return VOS_OK;
}
