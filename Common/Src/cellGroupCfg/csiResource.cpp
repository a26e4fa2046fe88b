#include "csiResource.h"

#include "compose.h"
#include "resourceMapping.h"

// CSI-MeasConfig.nzp-CSI-RS-ResourceToAddModList[]
INT32 rrcComposeNzpCsiRsResourceAdd(OSCTXT* PAsnCxt, NZP_CSI_RS_Resource* pItem, RrcNzpCsiRsResource_t* pRrcItem)
{
    assign(pItem->nzp_CSI_RS_ResourceId, pRrcItem->nzpCsiRsResourceId);
    (void)rrcComposeResourceMapping(PAsnCxt, &pItem->resourceMapping, &pRrcItem->resourceMapping);
    assign(pItem->powerControlOffset, pRrcItem->powerControlOffset);
    COPY_IF(pRrcItem->bitMask & RRC_NZP_CSI_RS_RESOURCE_POWER_CONTROL_OFFSET_SS_PRESENT, pItem, powerControlOffsetSS,
            pRrcItem->powerControlOffsetSS);
    assign(pItem->scramblingID, pRrcItem->scramblingId);
    if (pRrcItem->bitMask & RRC_NZP_CSI_RS_RESOURCE_PERIODIC_OFFSET_PRESENT)
    {
        pItem->m.periodicityAndOffsetPresent = 1;
        (void)rrcComposeperiodicityAndOffset(&pItem->periodicityAndOffset, &pRrcItem->periodicityAndOffset);
    }
    COPY_IF(pRrcItem->bitMask & RRC_NZP_CSI_RS_RESOURCE_QCI_INFO_PERIOD_CSI_RS_PRESENT, pItem, qcl_InfoPeriodicCSI_RS,
            pRrcItem->qclInfoPeriodicCsiRs);
    return VOS_OK;
}

// CSI-MeasConfig.nzp-CSI-RS-ResourceSetToAddModList[].nzp-CSI-RS-Resources
INT32 rrcComposenzp_CSI_RS_Resources(NZP_CSI_RS_ResourceSet_nzp_CSI_RS_Resources* pNzp_CSI_RS_Resources,
                                     RrcNzpCsiRsResourceSet_t* pRrcItem)
{
    // The record counts in 16 bits, the element in 8.
    assign(pNzp_CSI_RS_Resources->n, pRrcItem->numNzpCsiRsRes);
    compose::entries(pNzp_CSI_RS_Resources->elem, pRrcItem->numNzpCsiRsRes, pRrcItem->numNzpCsiRsResources);
    return VOS_OK;
}

// CSI-MeasConfig.nzp-CSI-RS-ResourceSetToAddModList[]
INT32 rrcComposeNzpCsiRsResourceSetAdd(NZP_CSI_RS_ResourceSet* pItem, RrcNzpCsiRsResourceSet_t* pRrcItem)
{
    assign(pItem->nzp_CSI_ResourceSetId, pRrcItem->nzpCsiResourceSetId);
    (void)rrcComposenzp_CSI_RS_Resources(&pItem->nzp_CSI_RS_Resources, pRrcItem);
    COPY_IF(pRrcItem->bitMask & RRC_NZP_CSI_RS_RESOUECE_SET_REPETITION_PRESENCE, pItem, repetition,
            pRrcItem->repetition);
    COPY_IF(pRrcItem->bitMask & RRC_NZP_CSI_RS_RESOUECE_SET_APERIODIC_OFFSET_PRESENCE, pItem, aperiodicTriggeringOffset,
            pRrcItem->aperidicTriggeringOffset);
    COPY_IF(pRrcItem->bitMask & RRC_NZP_CSI_RS_RESOUECE_SET_TRS_INFO_PRESENCE, pItem, trs_Info, pRrcItem->trsInfo);
    return VOS_OK;
}

// CSI-MeasConfig.csi-IM-ResourceToAddModList[].csi-IM-ResourceElementPattern.pattern0
INT32 rrcComposeCsi_IM_ResourceElementPatternpattern0(CSI_IM_Resource_csi_IM_ResourceElementPattern_pattern0* pPattern0,
                                                      struct pattern0_s* pRrcPattern0)
{
    assign(pPattern0->subcarrierLocation_p0, pRrcPattern0->subCarrierLocationP0);
    assign(pPattern0->symbolLocation_p0, pRrcPattern0->symbolLocationP0);
    return VOS_OK;
}

// CSI-MeasConfig.csi-IM-ResourceToAddModList[].csi-IM-ResourceElementPattern.pattern1
INT32 rrcComposeCsi_IM_ResourceElementPatternpattern1(CSI_IM_Resource_csi_IM_ResourceElementPattern_pattern1* pPattern1,
                                                      struct pattern1_s* pRrcPattern1)
{
    assign(pPattern1->subcarrierLocation_p1, pRrcPattern1->subCarrierLocationP1);
    assign(pPattern1->symbolLocation_p1, pRrcPattern1->symbolLocationP1);
    return VOS_OK;
}

// CSI-MeasConfig.csi-IM-ResourceToAddModList[].csi-IM-ResourceElementPattern
INT32 rrcComposeCsi_IM_ResourceElementPattern(OSCTXT* PAsnCxt, CSI_IM_Resource_csi_IM_ResourceElementPattern* pPattern,
                                              RrcCsiImResource_t* pRrcItem)
{
    if (pRrcItem->presence & RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN0_PRESENCE)
    {
        (void)compose::alternative(PAsnCxt, pPattern, T_CSI_IM_Resource_csi_IM_ResourceElementPattern_pattern0,
                                   pPattern->u.pattern0, &pRrcItem->csiImResourceElementPattern.pattern0,
                                   rrcComposeCsi_IM_ResourceElementPatternpattern0);
    }
    // Both bits: pattern1 wins and reads the octets of pattern0.
    if (pRrcItem->presence & RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN1_PRESENCE)
    {
        (void)compose::alternative(PAsnCxt, pPattern, T_CSI_IM_Resource_csi_IM_ResourceElementPattern_pattern1,
                                   pPattern->u.pattern1, &pRrcItem->csiImResourceElementPattern.pattern1,
                                   rrcComposeCsi_IM_ResourceElementPatternpattern1);
    }
    return VOS_OK;
}

// CSI-MeasConfig.csi-IM-ResourceToAddModList[].freqBand
INT32 rrcComposeCSI_FrequencyOccupation(CSI_FrequencyOccupation* pFreqBand, RrcCsiFreqOccupation_t* pRrcFreqBand)
{
    assign(pFreqBand->startingRB, pRrcFreqBand->startingRb);
    assign(pFreqBand->nrofRBs, pRrcFreqBand->nrofRBs);
    return VOS_OK;
}

// CSI-MeasConfig.csi-IM-ResourceToAddModList[]
INT32 rrcComposecsi_IM_ResourceToAdd(OSCTXT* PAsnCxt, CSI_IM_Resource* pItem, RrcCsiImResource_t* pRrcItem)
{
    assign(pItem->csi_IM_ResourceId, pRrcItem->csiImResourceId);
    if (pRrcItem->bitMask & RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN_PRESENCE)
    {
        pItem->m.csi_IM_ResourceElementPatternPresent = 1;
        (void)rrcComposeCsi_IM_ResourceElementPattern(PAsnCxt, &pItem->csi_IM_ResourceElementPattern, pRrcItem);
    }
    if (pRrcItem->bitMask & RRC_CSI_IM_RESOURCE_FREQ_BAND_PRESENCE)
    {
        pItem->m.freqBandPresent = 1;
        (void)rrcComposeCSI_FrequencyOccupation(&pItem->freqBand, &pRrcItem->freqBand);
    }
    if (pRrcItem->bitMask & RRC_CSI_IM_RESOURCE_PERIODIC_OFFSET_PRESENCE)
    {
        pItem->m.periodicityAndOffsetPresent = 1;
        (void)rrcComposeperiodicityAndOffset(&pItem->periodicityAndOffset, &pRrcItem->periodicityAndOffset);
    }
    return VOS_OK;
}

// CSI-MeasConfig.csi-IM-ResourceSetToAddModList[]
INT32 rrcComposecsi_IM_ResourceSetToAdd(CSI_IM_ResourceSet* pItem, RrcCsiImResourceSet_t* pRrcItem)
{
    assign(pItem->csi_IM_ResourceSetId, pRrcItem->csiImResourceSetId);
    compose::array(&pItem->csi_IM_Resources, pRrcItem->numCsiImResources, pRrcItem->CsiImResourceId);
    return VOS_OK;
}

// CSI-MeasConfig.csi-SSB-ResourceSetToAddModList[]
INT32 rrcComposeCsiSsbResourceSetAddMod(CSI_SSB_ResourceSet* pItem, RrcCsiSsbResourceSet_t* pRrcItem)
{
    assign(pItem->csi_SSB_ResourceSetId, pRrcItem->csiSsbResourceSetId);
    compose::array(&pItem->csi_SSB_ResourceList, pRrcItem->numSsbResourceSet, pRrcItem->csiSsbIdx);
    return VOS_OK;
}

// CSI-MeasConfig.csi-ResourceConfigToAddModList[].csi-RS-ResourceSetList.nzp-CSI-RS-SSB.nzp-CSI-RS-ResourceSetList
INT32 rrcComposNzp_CSI_RS_ResourceSetList(
    CSI_ResourceConfig_csi_RS_ResourceSetList_nzp_CSI_RS_SSB_nzp_CSI_RS_ResourceSetList* pNzp_CSI_RS_ResourceSetList,
    struct nzpCsiRsResourceSetList_s* pRrcResourceSetList)
{
    compose::array(pNzp_CSI_RS_ResourceSetList, pRrcResourceSetList->numNzpCsiRsResourceSet,
                   pRrcResourceSetList->nzpCsiRsResourceSetId);
    return VOS_OK;
}

// CSI-MeasConfig.csi-ResourceConfigToAddModList[].csi-RS-ResourceSetList.nzp-CSI-RS-SSB.csi-SSB-ResourceSetList
INT32 rrcComposcsi_SSB_ResourceSetList(
    CSI_ResourceConfig_csi_RS_ResourceSetList_nzp_CSI_RS_SSB_csi_SSB_ResourceSetList* pCsi_SSB_ResourceSetList,
    struct nzpCsiRsResourceSetList_s* pRrcResourceSetList)
{
    // A list of size 1: the element has no count.
    compose::entries(pCsi_SSB_ResourceSetList->elem, pRrcResourceSetList->numCsiSsbResourceSet,
                     pRrcResourceSetList->csiSsbResourceSetId);
    return VOS_OK;
}

// CSI-MeasConfig.csi-ResourceConfigToAddModList[].csi-RS-ResourceSetList.nzp-CSI-RS-SSB
INT32 rrcComposenzp_CSI_RS_SSB(CSI_ResourceConfig_csi_RS_ResourceSetList_nzp_CSI_RS_SSB* pNzp_CSI_RS_SSB,
                               struct nzpCsiRsResourceSetList_s* pRrcResourceSetList)
{
    if (pRrcResourceSetList->numNzpCsiRsResourceSet != 0)
    {
        pNzp_CSI_RS_SSB->m.nzp_CSI_RS_ResourceSetListPresent = 1;
        (void)rrcComposNzp_CSI_RS_ResourceSetList(&pNzp_CSI_RS_SSB->nzp_CSI_RS_ResourceSetList, pRrcResourceSetList);
    }
    if (pRrcResourceSetList->numCsiSsbResourceSet != 0)
    {
        pNzp_CSI_RS_SSB->m.csi_SSB_ResourceSetListPresent = 1;
        (void)rrcComposcsi_SSB_ResourceSetList(&pNzp_CSI_RS_SSB->csi_SSB_ResourceSetList, pRrcResourceSetList);
    }
    return VOS_OK;
}

// CSI-MeasConfig.csi-ResourceConfigToAddModList[].csi-RS-ResourceSetList.csi-IM-ResourceSetList
INT32 rrcComposecsi_IM_ResourceSetList(
    CSI_ResourceConfig_csi_RS_ResourceSetList_csi_IM_ResourceSetList* pCsi_IM_ResourceSetList,
    struct csiImResourceSetList_s* pRrcResourceSetList)
{
    compose::array(pCsi_IM_ResourceSetList, pRrcResourceSetList->numCsiImResourceSet,
                   pRrcResourceSetList->csiImResourceSetId);
    return VOS_OK;
}

// CSI-MeasConfig.csi-ResourceConfigToAddModList[].csi-RS-ResourceSetList
INT32 rrcComposeCsi_RS_ResourceSetList(OSCTXT* PAsnCxt, CSI_ResourceConfig_csi_RS_ResourceSetList* pResourceSetList,
                                       RrcCsiResourceCfg_t* pRrcItem)
{
    if (pRrcItem->presence & RRC_CSI_RESOURCE_CFG_NZP_CSI_RS_SSB_PRESENCE)
    {
        (void)compose::alternative(PAsnCxt, pResourceSetList,
                                   T_CSI_ResourceConfig_csi_RS_ResourceSetList_nzp_CSI_RS_SSB,
                                   pResourceSetList->u.nzp_CSI_RS_SSB,
                                   &pRrcItem->csiRsResourceSetList.nzpCsiRsResourceSetList, rrcComposenzp_CSI_RS_SSB);
    }
    // Both bits: the CSI-IM list wins and reads the octets of the other.
    if (pRrcItem->presence & RRC_CSI_RESOURCE_CFG_CSI_IM_RESOUECE_SET_LIST_PRESENCE)
    {
        (void)compose::alternative(
            PAsnCxt, pResourceSetList, T_CSI_ResourceConfig_csi_RS_ResourceSetList_csi_IM_ResourceSetList,
            pResourceSetList->u.csi_IM_ResourceSetList, &pRrcItem->csiRsResourceSetList.csiImResourceSetList,
            rrcComposecsi_IM_ResourceSetList);
    }
    return VOS_OK;
}

// CSI-MeasConfig.csi-ResourceConfigToAddModList[]
INT32 rrcComposeCsi_ResourceConfigToAdd(OSCTXT* PAsnCxt, CSI_ResourceConfig* pItem, RrcCsiResourceCfg_t* pRrcItem)
{
    assign(pItem->csi_ResourceConfigId, pRrcItem->csiResourceCfgId);
    (void)rrcComposeCsi_RS_ResourceSetList(PAsnCxt, &pItem->csi_RS_ResourceSetList, pRrcItem);
    assign(pItem->bwp_Id, pRrcItem->bwpId);
    assign(pItem->resourceType, pRrcItem->resourceType);
    return VOS_OK;
}
