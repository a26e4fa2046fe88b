#include "downlinkBwp.h"

#include "compose.h"
#include "pdcch.h"
#include "pdsch.h"
#include "radioLinkMonitoring.h"
#include "sps.h"

// ServingCellConfig.initialDownlinkBWP, BWP-Downlink.bwp-Dedicated
INT32 rrcComposeBWP_DownlinkDedicated(OSCTXT* pAsnCxt, BWP_DownlinkDedicated* pInitialDownlinkBWP,
                                      RrcBwpDlDedicated_t* pRrcInitDlBwp)
{
    NULL_CHECK(pInitialDownlinkBWP);
    NULL_CHECK(pRrcInitDlBwp);

    if (pRrcInitDlBwp->bitMask & RRC_BWP_DL_DEDI_PDCCH_CFG_PRESENCE)
    {
        pInitialDownlinkBWP->m.pdcch_ConfigPresent = 1;
        RETURN_IF_FAILED(rrcComposePdcch_Config(pAsnCxt, &pInitialDownlinkBWP->pdcch_Config, &pRrcInitDlBwp->pdcchCfg),
                         "rrcComposePdcch_Config Error\r\n");
    }
    if (pRrcInitDlBwp->bitMask & RRC_BWP_DL_DEDI_PDSCH_CFG_PRESENCE)
    {
        pInitialDownlinkBWP->m.pdsch_ConfigPresent = 1;
        RETURN_IF_FAILED(rrcComposePdsch_Config(pAsnCxt, &pInitialDownlinkBWP->pdsch_Config, &pRrcInitDlBwp->pdschCfg),
                         "rrcComposePdsch_Config Error\r\n");
    }
    if (pRrcInitDlBwp->bitMask & RRC_BWP_DL_DEDI_SPS_CFG_PRESENCE)
    {
        pInitialDownlinkBWP->m.sps_ConfigPresent = 1;
        RETURN_IF_FAILED(rrcComposeSps_Config(pAsnCxt, &pInitialDownlinkBWP->sps_Config, &pRrcInitDlBwp->spsCfg),
                         "rrcComposeSps_Config Error\r\n");
    }
    if (pRrcInitDlBwp->bitMask & RRC_BWP_DL_DEDI_RLM_CFG_PRESENCE)
    {
        pInitialDownlinkBWP->m.radioLinkMonitoringConfigPresent = 1;
        RETURN_IF_FAILED(rrcComposeradioLinkMonitoring_Config(pAsnCxt, &pInitialDownlinkBWP->radioLinkMonitoringConfig,
                                                              &pRrcInitDlBwp->radioLinkMonitorCfg),
                         "rrcComposeradioLinkMonitoring_Config Error\r\n");
    }
    return VOS_OK;
}

// ServingCellConfig.downlinkBWP-ToReleaseList
INT32 rrcComposedownlinkBWP_ToReleaseList(ServingCellConfig_downlinkBWP_ToReleaseList* pDownlinkBWP_ToReleaseList,
                                          RrcServingCellCfg_t* pRrcSpCellDedicated)
{
    compose::array(pDownlinkBWP_ToReleaseList, pRrcSpCellDedicated->numDlBwpRel, pRrcSpCellDedicated->dlBwpId);
    return VOS_OK;
}

// ServingCellConfig.downlinkBWP-ToAddModList
INT32 rrcComposedownlinkBWP_ToADDMod(OSCTXT* pAsnCxt,
                                     ServingCellConfig_downlinkBWP_ToAddModList* pDownlinkBWP_ToAddModList,
                                     RrcServingCellCfg_t* pRrcSpCellDedicated)
{
    return compose::list<BWP_Downlink>(pAsnCxt, pDownlinkBWP_ToAddModList, pRrcSpCellDedicated->numDlBwpAddMod,
                                       pRrcSpCellDedicated->dlBwp, rrcComposeDlBWP_ToAddItem,
                                       {"pNode Or pItem is NULL\r\n", "rrcComposeDlBWP_ToAddItem is Error\r\n"});
}

// ServingCellConfig.downlinkBWP-ToAddModList[]
INT32 rrcComposeDlBWP_ToAddItem(OSCTXT* pAsnCxt, BWP_Downlink* pItem, RrcBwpDl_t* pRrcBwpDl)
{
    assign(pItem->bwp_Id, pRrcBwpDl->bwpId);
    if (pRrcBwpDl->bitMask & RRC_BWP_DL_COMMON_PRESENCE)
    {
        pItem->m.bwp_CommonPresent = 1;
        RETURN_IF_FAILED(rrcComposeBWP_DownlinkCommon(pAsnCxt, &pItem->bwp_Common, &pRrcBwpDl->bwpCommon),
                         "rrcComposeBWP_DownlinkCommon Error\r\n");
    }
    if (pRrcBwpDl->bitMask & RRC_BWP_DL_DEDICATED_PRESENCE)
    {
        pItem->m.bwp_DedicatedPresent = 1;
        RETURN_IF_FAILED(rrcComposeBWP_DownlinkDedicated(pAsnCxt, &pItem->bwp_Dedicated, &pRrcBwpDl->bwpDedicated),
                         "rrcComposeBWP_DownlinkDedicated Error\r\n");
    }
    return VOS_OK;
}

// BWP-Downlink.bwp-Common
INT32 rrcComposeBWP_DownlinkCommon(OSCTXT* pAsnCxt, BWP_DownlinkCommon* pBwp_Common, RrcBwpDlCommon_t* pRrcBwpCommon)
{
    NULL_CHECK(pBwp_Common);
    NULL_CHECK(pRrcBwpCommon);

    RETURN_IF_FAILED(rrcComposeGenericParameters(&pBwp_Common->genericParameters, &pRrcBwpCommon->genericParam),
                     "rrcComposeGenericParameters Error\r\n");
    if (pRrcBwpCommon->bitMask & RRC_BWP_DL_COMMON_PDCCH_CFG_COMMON_PRESENCE)
    {
        pBwp_Common->m.pdcch_ConfigCommonPresent = 1;
        RETURN_IF_FAILED(
            rrcComposePdcch_ConfigCommon(pAsnCxt, &pBwp_Common->pdcch_ConfigCommon, &pRrcBwpCommon->pdcchCfgCommon),
            "rrcComposePdcch_ConfigCommon Error\r\n");
    }
    if (pRrcBwpCommon->bitMask & RRC_BWP_DL_COMMON_PDSCH_CFG_COMMON_PRESENCE)
    {
        pBwp_Common->m.pdsch_ConfigCommonPresent = 1;
        RETURN_IF_FAILED(
            rrcComposePdsch_ConfigCommon(pAsnCxt, &pBwp_Common->pdsch_ConfigCommon, &pRrcBwpCommon->pdschCfgCommon),
            "rrcComposePdsch_ConfigCommon Error\r\n");
    }
    return VOS_OK;
}

// BWP-DownlinkCommon.genericParameters, BWP-UplinkCommon.genericParameters
INT32 rrcComposeGenericParameters(BWP* pGenericParameters, RrcBwp_t* pRrcGenericParam)
{
    assign(pGenericParameters->locationAndBandwidth, pRrcGenericParam->locationAndBandwidth);
    assign(pGenericParameters->subcarrierSpacing, pRrcGenericParam->subCarrierSpacing);
    COPY_IF(pRrcGenericParam->bitMask & RRC_BWP_CYCLEPREFIX_PRESENCE, pGenericParameters, cyclicPrefix,
            pRrcGenericParam->cyclicPrefix);
    return VOS_OK;
}

// BWP-DownlinkCommon.pdcch-ConfigCommon
INT32 rrcComposePdcch_ConfigCommon(OSCTXT* pAsnCxt, BWP_DownlinkCommon_pdcch_ConfigCommon* pPdcch_ConfigCommon,
                                   RrcPdcchCfgCommon_t* pRrcPdcchCfgCommon)
{
    NULL_CHECK(pPdcch_ConfigCommon);
    NULL_CHECK(pRrcPdcchCfgCommon);

    // What could not be composed is left out; the bandwidth part goes on.
    (void)compose::setup(pAsnCxt, pPdcch_ConfigCommon, pRrcPdcchCfgCommon, rrcComposePDCCH_ConfigCommonSetup);
    return VOS_OK;
}

// BWP-DownlinkCommon.pdcch-ConfigCommon.setup
INT32 rrcComposePDCCH_ConfigCommonSetup(OSCTXT* pAsnCxt, PDCCH_ConfigCommon* pSetup,
                                        RrcPdcchCfgCommon_t* pRrcPdcchCfgCommon)
{
    COPY_IF(pRrcPdcchCfgCommon->bitMask & RRC_PDCCH_CFG_COMMON_CONTROL_RESOURCE_SET_ZERO_PRESENCE, pSetup,
            controlResourceSetZero, pRrcPdcchCfgCommon->controlResourceSetZero);
    if (pRrcPdcchCfgCommon->bitMask & RRC_PDCCH_CFG_COMMON_CONTROL_RESOURCE_SET_PRESENCE)
    {
        pSetup->m.commonControlResourceSetPresent = 1;
        RETURN_IF_FAILED(rrcComposeControlResourceSet(pAsnCxt, &pSetup->commonControlResourceSet,
                                                      &pRrcPdcchCfgCommon->commonControlResourceSet),
                         "rrcComposeControlResourceSet Error\r\n");
    }
    COPY_IF(pRrcPdcchCfgCommon->bitMask & RRC_PDCCH_CFG_COMMON_SEARCH_SAPCE_ZERO_PRESENCE, pSetup, searchSpaceZero,
            pRrcPdcchCfgCommon->searchSpaceZero);
    if (pRrcPdcchCfgCommon->numCommonSearchSpace != 0)
    {
        pSetup->m.commonSearchSpaceListPresent = 1;
        RETURN_IF_FAILED(rrcComposeCommonSearchSpaceList(pAsnCxt, &pSetup->commonSearchSpaceList, pRrcPdcchCfgCommon),
                         "rrcComposeCommonSearchSpaceList Error\r\n");
    }
    COPY_IF(pRrcPdcchCfgCommon->bitMask & RRC_PDCCH_CFG_COMMON_SEARCH_SPACE_SIB1_PRESENCE, pSetup, searchSpaceSIB1,
            pRrcPdcchCfgCommon->searchSpaceSIB1);
    COPY_IF(pRrcPdcchCfgCommon->bitMask & RRC_PDCCH_CFG_COMMON_SEARCH_SAPCE_OTHER_SI_PRESENCE, pSetup,
            searchSpaceOtherSystemInformation, pRrcPdcchCfgCommon->searchSpaceOtherSi);
    COPY_IF(pRrcPdcchCfgCommon->bitMask & RRC_PDCCH_CFG_COMMON_SEARCH_SPACE_PAGING_PRESENCE, pSetup, pagingSearchSpace,
            pRrcPdcchCfgCommon->searchSpacePaing);
    COPY_IF(pRrcPdcchCfgCommon->bitMask & RRC_PDCCH_CFG_COMMON_SEARCH_SPACE_RA_PRESENCE, pSetup, ra_SearchSpace,
            pRrcPdcchCfgCommon->searchSpaceRa);
    if (pRrcPdcchCfgCommon->bitMask & RRC_PDCCH_CFG_COMMON_FIRST_PDCCH_MONITIOR_OCCASION_PRESENCE)
    {
        // A bit without a value: its extension group is not flagged, so nothing is sent.
        pSetup->m.firstPDCCH_MonitoringOccasionOfPOPresent = 1;
    }
    return VOS_OK;
}

// PDCCH-ConfigCommon.commonSearchSpaceList
INT32 rrcComposeCommonSearchSpaceList(OSCTXT* pAsnCxt, PDCCH_ConfigCommon_commonSearchSpaceList* pCommonSearchSpaceList,
                                      RrcPdcchCfgCommon_t* pRrcPdcchCfgCommon)
{
    return compose::list<SearchSpace>(pAsnCxt, pCommonSearchSpaceList, pRrcPdcchCfgCommon->numCommonSearchSpace,
                                      pRrcPdcchCfgCommon->commonSearchSpace, rrcComposeSearchSpace,
                                      {"pNode Or pitem is NULL\r\n", "rrcComposeSearchSpace is Error\r\n"});
}

// BWP-DownlinkCommon.pdsch-ConfigCommon
INT32 rrcComposePdsch_ConfigCommon(OSCTXT* pAsnCxt, BWP_DownlinkCommon_pdsch_ConfigCommon* pPdsch_ConfigCommon,
                                   RrcPdschCfgCommon_t* pRrcPdschCfgCommon)
{
    // What could not be composed is left out; the bandwidth part goes on.
    (void)compose::setup(pAsnCxt, pPdsch_ConfigCommon, pRrcPdschCfgCommon, rrcComposePdsch_ConfigCommonSetup);
    return VOS_OK;
}

// BWP-DownlinkCommon.pdsch-ConfigCommon.setup
INT32 rrcComposePdsch_ConfigCommonSetup(OSCTXT* pAsnCxt, PDSCH_ConfigCommon* pSetup,
                                        RrcPdschCfgCommon_t* pRrcPdschCfgCommon)
{
    if (pRrcPdschCfgCommon->bitMask & RRC_PDSCH_COMMON_PRESENCE)
    {
        pSetup->m.pdsch_TimeDomainAllocationListPresent = 1;
        RETURN_IF_FAILED(rrcComposepdsch_TimeDomainAllocationList(pAsnCxt, &pSetup->pdsch_TimeDomainAllocationList,
                                                                  &pRrcPdschCfgCommon->pdschTimeDomainAllocList),
                         "rrcComposepdsch_TimeDomainAllocationList Error\r\n");
    }
    return VOS_OK;
}

// PDSCH-ConfigCommon.pdsch-TimeDomainAllocationList
INT32 rrcComposepdsch_TimeDomainAllocationList(OSCTXT* pAsnCxt,
                                               PDSCH_TimeDomainResourceAllocationList* pPdsch_TimeDomainAllocationList,
                                               RrcPdschTimeDomainResourceAllocList_t* pRrcPdschTimeDomainAllocList)
{
    return compose::list<PDSCH_TimeDomainResourceAllocation>(
        pAsnCxt, pPdsch_TimeDomainAllocationList, pRrcPdschTimeDomainAllocList->num,
        pRrcPdschTimeDomainAllocList->alloc, rrcComposePDSCH_TimeDomainResAlloc,
        {"pNode Or pItem is NULL\r\n", "rrcComposePDSCH_TimeDomainResAlloc is Error\r\n"});
}

// PDSCH-ConfigCommon.pdsch-TimeDomainAllocationList[]
INT32 rrcComposePDSCH_TimeDomainResAlloc(PDSCH_TimeDomainResourceAllocation* pItem,
                                         RrcPdschTimeDomainResourceAlloc_t* pRrcAlloc)
{
    return rrcComposeResourceAllocation(pItem, pRrcAlloc);
}
