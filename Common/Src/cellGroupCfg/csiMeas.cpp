#include "csiMeas.h"

#include "compose.h"
#include "csiReport.h"
#include "csiResource.h"

// ServingCellConfig.csi-MeasConfig
INT32 rrcComposecsi_MeasConfig(OSCTXT* pAsnCxt, ServingCellConfig_csi_MeasConfig* pCsi_MeasConfig,
                               RrcCsiMeasCfg_t* pRrcMeasCfg)
{
    (void)compose::setup(pAsnCxt, pCsi_MeasConfig, pRrcMeasCfg, rrcComposecsi_MeasConfigSetup);
    return VOS_OK;
}

// CSI-MeasConfig
INT32 rrcComposecsi_MeasConfigSetup(OSCTXT* pAsnCxt, CSI_MeasConfig* pCsi_MeasConfig, RrcCsiMeasCfg_t* pRrcMeasCfg)
{
    // A list cut short by the heap is sent as far as it was built.
    if (pRrcMeasCfg->numNzpCsiRsResourceAddMod != 0)
    {
        pCsi_MeasConfig->m.nzp_CSI_RS_ResourceToAddModListPresent = 1;
        (void)rrcComposeNzp_CSI_RS_ResourceToAddMod(pAsnCxt, &pCsi_MeasConfig->nzp_CSI_RS_ResourceToAddModList,
                                                    pRrcMeasCfg);
    }
    if (pRrcMeasCfg->numNzpCsiRsResourceDel != 0)
    {
        pCsi_MeasConfig->m.nzp_CSI_RS_ResourceToReleaseListPresent = 1;
        (void)rrcComposeNzp_CSI_RS_ResourceToRel(&pCsi_MeasConfig->nzp_CSI_RS_ResourceToReleaseList, pRrcMeasCfg);
    }
    if (pRrcMeasCfg->numNzpCsiRsResourceSetAddMod != 0)
    {
        pCsi_MeasConfig->m.nzp_CSI_RS_ResourceSetToAddModListPresent = 1;
        (void)rrcComposeNzp_CSI_RS_ResourceSetToAddMod(pAsnCxt, &pCsi_MeasConfig->nzp_CSI_RS_ResourceSetToAddModList,
                                                       pRrcMeasCfg);
    }
    if (pRrcMeasCfg->numNzpCsiRsResourceSetRel != 0)
    {
        pCsi_MeasConfig->m.nzp_CSI_RS_ResourceSetToReleaseListPresent = 1;
        (void)rrcComposeNzp_CSI_RS_ResourceSetToRel(&pCsi_MeasConfig->nzp_CSI_RS_ResourceSetToReleaseList, pRrcMeasCfg);
    }
    if (pRrcMeasCfg->numCsiImResourceAddMod != 0)
    {
        pCsi_MeasConfig->m.csi_IM_ResourceToAddModListPresent = 1;
        (void)rrcComposeCsi_IM_ResourceToAddMod(pAsnCxt, &pCsi_MeasConfig->csi_IM_ResourceToAddModList, pRrcMeasCfg);
    }
    if (pRrcMeasCfg->numCsiImResourceRel != 0)
    {
        pCsi_MeasConfig->m.csi_IM_ResourceToReleaseListPresent = 1;
        (void)rrcComposeCsi_IM_ResourceToRel(&pCsi_MeasConfig->csi_IM_ResourceToReleaseList, pRrcMeasCfg);
    }
    if (pRrcMeasCfg->numCsiImResourceSetAddMod != 0)
    {
        pCsi_MeasConfig->m.csi_IM_ResourceSetToAddModListPresent = 1;
        (void)rrcComposeCsi_IM_ResourceSetToAddMod(pAsnCxt, &pCsi_MeasConfig->csi_IM_ResourceSetToAddModList,
                                                   pRrcMeasCfg);
    }
    if (pRrcMeasCfg->numCsiImResourceSetRel != 0)
    {
        pCsi_MeasConfig->m.csi_IM_ResourceSetToReleaseListPresent = 1;
        (void)rrcComposeCsi_IM_ResourceSetToRel(&pCsi_MeasConfig->csi_IM_ResourceSetToReleaseList, pRrcMeasCfg);
    }
    if (pRrcMeasCfg->numCsiSsbResourceSetAddMod != 0)
    {
        pCsi_MeasConfig->m.csi_SSB_ResourceSetToAddModListPresent = 1;
        (void)rrcComposeCsi_SSB_ResourceSetToAddMod(pAsnCxt, &pCsi_MeasConfig->csi_SSB_ResourceSetToAddModList,
                                                    pRrcMeasCfg);
    }
    if (pRrcMeasCfg->numCsiSsbResourceSetRel != 0)
    {
        pCsi_MeasConfig->m.csi_SSB_ResourceSetToReleaseListPresent = 1;
        (void)rrcComposeCsi_SSB_ResourceSetToRel(&pCsi_MeasConfig->csi_SSB_ResourceSetToReleaseList, pRrcMeasCfg);
    }
    if (pRrcMeasCfg->numCsiResourceCfgAddMod != 0)
    {
        pCsi_MeasConfig->m.csi_ResourceConfigToAddModListPresent = 1;
        (void)rrcComposeCsi_ResourceConfigToAddMod(pAsnCxt, &pCsi_MeasConfig->csi_ResourceConfigToAddModList,
                                                   pRrcMeasCfg);
    }
    if (pRrcMeasCfg->numCsiResourceCfgRel != 0)
    {
        pCsi_MeasConfig->m.csi_ResourceConfigToReleaseListPresent = 1;
        (void)rrcComposeCsi_ResourceConfigToRel(&pCsi_MeasConfig->csi_ResourceConfigToReleaseList, pRrcMeasCfg);
    }
    if (pRrcMeasCfg->numCsiReportCfgAddMod != 0)
    {
        pCsi_MeasConfig->m.csi_ReportConfigToAddModListPresent = 1;
        (void)rrcComposeCsi_ReportConfigToAddMod(pAsnCxt, &pCsi_MeasConfig->csi_ReportConfigToAddModList, pRrcMeasCfg);
    }
    if (pRrcMeasCfg->numCsiReportCfgRel != 0)
    {
        pCsi_MeasConfig->m.csi_ReportConfigToReleaseListPresent = 1;
        (void)rrcComposeCsi_ReportConfigToRel(&pCsi_MeasConfig->csi_ReportConfigToReleaseList, pRrcMeasCfg);
    }
    COPY_IF(pRrcMeasCfg->bitMask & RRC_CSI_MEAS_CFG_REPORT_TRIGGER_SIZE_PRESENCE, pCsi_MeasConfig, reportTriggerSize,
            pRrcMeasCfg->reportTriggerSize);
    if (pRrcMeasCfg->bitMask & RRC_CSI_MEAS_CFG_APERIODIC_TRIGGER_STATE_LIST_PRESENCE)
    {
        pCsi_MeasConfig->m.aperiodicTriggerStateListPresent = 1;
        (void)rrcComposeAperiodicTriggerStateList(pAsnCxt, &pCsi_MeasConfig->aperiodicTriggerStateList,
                                                  &pRrcMeasCfg->aperiodicTriggerStateList);
    }
    if (pRrcMeasCfg->bitMask & RRC_CSI_MEAS_CFG_SEMI_PEISISTENT_ON_PUSCH_PRESENCE)
    {
        pCsi_MeasConfig->m.semiPersistentOnPUSCH_TriggerStateListPresent = 1;
        (void)rrcComposeTriggerStateList(pAsnCxt, &pCsi_MeasConfig->semiPersistentOnPUSCH_TriggerStateList,
                                         &pRrcMeasCfg->semiPersistentOnPuschTriggerStateList);
    }
    return VOS_OK;
}

// CSI-MeasConfig.nzp-CSI-RS-ResourceToAddModList
INT32 rrcComposeNzp_CSI_RS_ResourceToAddMod(OSCTXT* PAsnCxt, OSRTDList* pAddModList, RrcCsiMeasCfg_t* pRrcMeasCfg)
{
    return compose::list<NZP_CSI_RS_Resource>(
        PAsnCxt, pAddModList, pRrcMeasCfg->numNzpCsiRsResourceAddMod, pRrcMeasCfg->NzpCsiRsResourceAddMod,
        rrcComposeNzpCsiRsResourceAdd, {"pNode Or pItem is NULL\r\n", "rrcComposeNzpCsiRsResourceAdd is Error\r\n"});
}

// CSI-MeasConfig.nzp-CSI-RS-ResourceToReleaseList
INT32 rrcComposeNzp_CSI_RS_ResourceToRel(CSI_MeasConfig_nzp_CSI_RS_ResourceToReleaseList* pReleaseList,
                                         RrcCsiMeasCfg_t* pRrcMeasCfg)
{
    compose::array(pReleaseList, pRrcMeasCfg->numNzpCsiRsResourceDel, pRrcMeasCfg->nzpCsiRsResourceId);
    return VOS_OK;
}

// CSI-MeasConfig.nzp-CSI-RS-ResourceSetToAddModList
INT32 rrcComposeNzp_CSI_RS_ResourceSetToAddMod(OSCTXT* PAsnCxt, OSRTDList* pAddModList, RrcCsiMeasCfg_t* pRrcMeasCfg)
{
    return compose::list<NZP_CSI_RS_ResourceSet>(
        PAsnCxt, pAddModList, pRrcMeasCfg->numNzpCsiRsResourceSetAddMod, pRrcMeasCfg->NzpCsiRsResourceSetAddMod,
        rrcComposeNzpCsiRsResourceSetAdd,
        {"pNode Or pItem is NULL\r\n", "rrcComposeNzpCsiRsResourceSetAdd is Error\r\n"});
}

// CSI-MeasConfig.nzp-CSI-RS-ResourceSetToReleaseList
INT32 rrcComposeNzp_CSI_RS_ResourceSetToRel(CSI_MeasConfig_nzp_CSI_RS_ResourceSetToReleaseList* pReleaseList,
                                            RrcCsiMeasCfg_t* pRrcMeasCfg)
{
    compose::array(pReleaseList, pRrcMeasCfg->numNzpCsiRsResourceSetRel, pRrcMeasCfg->nzpCsiRsResourceSetId);
    return VOS_OK;
}

// CSI-MeasConfig.csi-IM-ResourceToAddModList
INT32 rrcComposeCsi_IM_ResourceToAddMod(OSCTXT* PAsnCxt, OSRTDList* pAddModList, RrcCsiMeasCfg_t* pRrcMeasCfg)
{
    return compose::list<CSI_IM_Resource>(
        PAsnCxt, pAddModList, pRrcMeasCfg->numCsiImResourceAddMod, pRrcMeasCfg->csiImResourceAddMod,
        rrcComposecsi_IM_ResourceToAdd, {"pNode Or pItem is NULL\r\n", "rrcComposecsi_IM_ResourceToAdd is Error\r\n"});
}

// CSI-MeasConfig.csi-IM-ResourceToReleaseList
INT32 rrcComposeCsi_IM_ResourceToRel(CSI_MeasConfig_csi_IM_ResourceToReleaseList* pReleaseList,
                                     RrcCsiMeasCfg_t* pRrcMeasCfg)
{
    compose::array(pReleaseList, pRrcMeasCfg->numCsiImResourceRel, pRrcMeasCfg->csiImResourceId);
    return VOS_OK;
}

// CSI-MeasConfig.csi-IM-ResourceSetToAddModList
INT32 rrcComposeCsi_IM_ResourceSetToAddMod(OSCTXT* PAsnCxt, OSRTDList* pAddModList, RrcCsiMeasCfg_t* pRrcMeasCfg)
{
    return compose::list<CSI_IM_ResourceSet>(
        PAsnCxt, pAddModList, pRrcMeasCfg->numCsiImResourceSetAddMod, pRrcMeasCfg->csiImResourceSetAddMod,
        rrcComposecsi_IM_ResourceSetToAdd,
        {"pNode Or pItem is NULL\r\n", "rrcComposecsi_IM_ResourceSetToAdd is Error\r\n"});
}

// CSI-MeasConfig.csi-IM-ResourceSetToReleaseList
INT32 rrcComposeCsi_IM_ResourceSetToRel(CSI_MeasConfig_csi_IM_ResourceSetToReleaseList* pReleaseList,
                                        RrcCsiMeasCfg_t* pRrcMeasCfg)
{
    compose::array(pReleaseList, pRrcMeasCfg->numCsiImResourceSetRel, pRrcMeasCfg->csiImResourceSetId);
    return VOS_OK;
}

// CSI-MeasConfig.csi-SSB-ResourceSetToAddModList
INT32 rrcComposeCsi_SSB_ResourceSetToAddMod(OSCTXT* PAsnCxt, OSRTDList* pAddModList, RrcCsiMeasCfg_t* pRrcMeasCfg)
{
    return compose::list<CSI_SSB_ResourceSet>(
        PAsnCxt, pAddModList, pRrcMeasCfg->numCsiSsbResourceSetAddMod, pRrcMeasCfg->csiSsbResourceSet,
        rrcComposeCsiSsbResourceSetAddMod,
        {"pNode Or pItem is NULL\r\n", "rrcComposeCsiSsbResourceSetAddMod is Error\r\n"});
}

// CSI-MeasConfig.csi-SSB-ResourceSetToReleaseList
INT32 rrcComposeCsi_SSB_ResourceSetToRel(CSI_MeasConfig_csi_SSB_ResourceSetToReleaseList* pReleaseList,
                                         RrcCsiMeasCfg_t* pRrcMeasCfg)
{
    compose::array(pReleaseList, pRrcMeasCfg->numCsiSsbResourceSetRel, pRrcMeasCfg->csiSsbResourceSetId);
    return VOS_OK;
}

// CSI-MeasConfig.csi-ResourceConfigToAddModList
INT32 rrcComposeCsi_ResourceConfigToAddMod(OSCTXT* PAsnCxt, OSRTDList* pAddModList, RrcCsiMeasCfg_t* pRrcMeasCfg)
{
    return compose::list<CSI_ResourceConfig>(
        PAsnCxt, pAddModList, pRrcMeasCfg->numCsiResourceCfgAddMod, pRrcMeasCfg->csiResourceCfg,
        rrcComposeCsi_ResourceConfigToAdd,
        {"pNode Or pItem is NULL\r\n", "rrcComposeCsi_ResourceConfigToAdd is Error\r\n"});
}

// CSI-MeasConfig.csi-ResourceConfigToReleaseList
INT32 rrcComposeCsi_ResourceConfigToRel(CSI_MeasConfig_csi_ResourceConfigToReleaseList* pReleaseList,
                                        RrcCsiMeasCfg_t* pRrcMeasCfg)
{
    compose::array(pReleaseList, pRrcMeasCfg->numCsiResourceCfgRel, pRrcMeasCfg->csiResourceCfgId);
    return VOS_OK;
}

// CSI-MeasConfig.csi-ReportConfigToAddModList
INT32 rrcComposeCsi_ReportConfigToAddMod(OSCTXT* PAsnCxt, OSRTDList* pAddModList, RrcCsiMeasCfg_t* pRrcMeasCfg)
{
    return compose::list<CSI_ReportConfig>(
        PAsnCxt, pAddModList, pRrcMeasCfg->numCsiReportCfgAddMod, pRrcMeasCfg->csiReportCfg,
        rrcComposeCsi_ReportConfigToAdd,
        {"pNode Or pItem is NULL\r\n", "rrcComposeCsi_ReportConfigToAdd is Error\r\n"});
}

// CSI-MeasConfig.csi-ReportConfigToReleaseList
INT32 rrcComposeCsi_ReportConfigToRel(CSI_MeasConfig_csi_ReportConfigToReleaseList* pReleaseList,
                                      RrcCsiMeasCfg_t* pRrcMeasCfg)
{
    compose::array(pReleaseList, pRrcMeasCfg->numCsiReportCfgRel, pRrcMeasCfg->csiReportCfgId);
    return VOS_OK;
}

// CSI-MeasConfig.aperiodicTriggerStateList
INT32 rrcComposeAperiodicTriggerStateList(OSCTXT* pAsnCxt, CSI_MeasConfig_aperiodicTriggerStateList* pTriggerStateList,
                                          RrcCsiAperiodicTriggerStateList_t* pRrcTriggerStateList)
{
    // An empty list leaves the choice open, which the encoder refuses.
    if (pRrcTriggerStateList->numState != 0)
    {
        (void)compose::setup(pAsnCxt, pTriggerStateList, pRrcTriggerStateList, rrcComposeAperiodicTriggerStateSetup);
    }
    return VOS_OK;
}

// CSI-MeasConfig.aperiodicTriggerStateList.setup
INT32 rrcComposeAperiodicTriggerStateSetup(OSCTXT* pAsnCxt, OSRTDList* pSetup,
                                           RrcCsiAperiodicTriggerStateList_t* pRrcTriggerStateList)
{
    return compose::list<CSI_AperiodicTriggerState>(
        pAsnCxt, pSetup, pRrcTriggerStateList->numState, pRrcTriggerStateList->state,
        rrcComposeCsi_AperiodicTriggerState,
        {"pNode Or pItem is NULL\r\n", "rrcComposeCsi_AperiodicTriggerState is Error\r\n"});
}

// CSI-MeasConfig.aperiodicTriggerStateList.setup[]
INT32 rrcComposeCsi_AperiodicTriggerState(OSCTXT* pAsnCxt, CSI_AperiodicTriggerState* pItem,
                                          RrcCsiAperiodicTriggerState_t* pRrcItem)
{
    return compose::list<CSI_AssociatedReportConfigInfo>(
        pAsnCxt, &pItem->associatedReportConfigInfoList, pRrcItem->numCfgInfo, pRrcItem->info,
        rrcComposeCsi_AssociatedReportConfigInfo,
        {"pNode Or pItem is NULL\r\n", "rrcComposeCsi_AssociatedReportConfigInfo is Error\r\n"});
}

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

// CSI-MeasConfig.semiPersistentOnPUSCH-TriggerStateList
INT32 rrcComposeTriggerStateList(OSCTXT* pAsnCxt,
                                 CSI_MeasConfig_semiPersistentOnPUSCH_TriggerStateList* pTriggerStateList,
                                 RrcCsiSemiPersistentOnPuschTriggerStateList_t* pRrcTriggerStateList)
{
    // An empty list leaves the choice open, which the encoder refuses.
    if (pRrcTriggerStateList->numTriggeState != 0)
    {
        (void)compose::setup(pAsnCxt, pTriggerStateList, pRrcTriggerStateList, rrcComposeTriggerStateListsetup);
    }
    return VOS_OK;
}

// CSI-MeasConfig.semiPersistentOnPUSCH-TriggerStateList.setup
INT32 rrcComposeTriggerStateListsetup(OSCTXT* pAsnCxt, OSRTDList* pSetup,
                                      RrcCsiSemiPersistentOnPuschTriggerStateList_t* pRrcTriggerStateList)
{
    return compose::list<CSI_SemiPersistentOnPUSCH_TriggerState>(
        pAsnCxt, pSetup, pRrcTriggerStateList->numTriggeState, pRrcTriggerStateList->csiReportCfgId,
        rrcComposeTriggerState, {"pNode Or pItem is NULL\r\n", "rrcComposeTriggerState is Error\r\n"});
}

// CSI-MeasConfig.semiPersistentOnPUSCH-TriggerStateList.setup[]
INT32 rrcComposeTriggerState(CSI_SemiPersistentOnPUSCH_TriggerState* pItem, UINT8* pRrcCsiReportCfgId)
{
    assign(pItem->associatedReportConfigInfo, *pRrcCsiReportCfgId);
    return VOS_OK;
}
