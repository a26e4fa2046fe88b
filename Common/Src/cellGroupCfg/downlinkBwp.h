// Composers of the downlink bandwidth parts of ServingCellConfig.
#ifndef DOWNLINKBWP_H
#define DOWNLINKBWP_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcServingCell.h"

INT32 rrcComposeBWP_DownlinkDedicated(OSCTXT* pAsnCxt, BWP_DownlinkDedicated* pInitialDownlinkBWP,
                                      RrcBwpDlDedicated_t* pRrcInitDlBwp);

INT32 rrcComposedownlinkBWP_ToReleaseList(ServingCellConfig_downlinkBWP_ToReleaseList* pDownlinkBWP_ToReleaseList,
                                          RrcServingCellCfg_t* pRrcSpCellDedicated);
INT32 rrcComposedownlinkBWP_ToADDMod(OSCTXT* pAsnCxt,
                                     ServingCellConfig_downlinkBWP_ToAddModList* pDownlinkBWP_ToAddModList,
                                     RrcServingCellCfg_t* pRrcSpCellDedicated);
INT32 rrcComposeDlBWP_ToAddItem(OSCTXT* pAsnCxt, BWP_Downlink* pItem, RrcBwpDl_t* pRrcBwpDl);

INT32 rrcComposeBWP_DownlinkCommon(OSCTXT* pAsnCxt, BWP_DownlinkCommon* pBwp_Common, RrcBwpDlCommon_t* pRrcBwpCommon);
INT32 rrcComposeGenericParameters(BWP* pGenericParameters, RrcBwp_t* pRrcGenericParam);

INT32 rrcComposePdcch_ConfigCommon(OSCTXT* pAsnCxt, BWP_DownlinkCommon_pdcch_ConfigCommon* pPdcch_ConfigCommon,
                                   RrcPdcchCfgCommon_t* pRrcPdcchCfgCommon);
INT32 rrcComposePDCCH_ConfigCommonSetup(OSCTXT* pAsnCxt, PDCCH_ConfigCommon* pSetup,
                                        RrcPdcchCfgCommon_t* pRrcPdcchCfgCommon);
INT32 rrcComposeCommonSearchSpaceList(OSCTXT* pAsnCxt, PDCCH_ConfigCommon_commonSearchSpaceList* pCommonSearchSpaceList,
                                      RrcPdcchCfgCommon_t* pRrcPdcchCfgCommon);

INT32 rrcComposePdsch_ConfigCommon(OSCTXT* pAsnCxt, BWP_DownlinkCommon_pdsch_ConfigCommon* pPdsch_ConfigCommon,
                                   RrcPdschCfgCommon_t* pRrcPdschCfgCommon);
INT32 rrcComposePdsch_ConfigCommonSetup(OSCTXT* pAsnCxt, PDSCH_ConfigCommon* pSetup,
                                        RrcPdschCfgCommon_t* pRrcPdschCfgCommon);
INT32 rrcComposepdsch_TimeDomainAllocationList(OSCTXT* pAsnCxt,
                                               PDSCH_TimeDomainResourceAllocationList* pPdsch_TimeDomainAllocationList,
                                               RrcPdschTimeDomainResourceAllocList_t* pRrcPdschTimeDomainAllocList);
INT32 rrcComposePDSCH_TimeDomainResAlloc(PDSCH_TimeDomainResourceAllocation* pItem,
                                         RrcPdschTimeDomainResourceAlloc_t* pRrcAlloc);

#endif
