// Composers of BWP-DownlinkDedicated.pdsch-Config.
#ifndef PDSCH_H
#define PDSCH_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcPdsch.h"

INT32 rrcComposePdsch_Config(OSCTXT* pAsnCxt, BWP_DownlinkDedicated_pdsch_Config* pPdsch_Config,
                             RrcPdschCfg_t* pRrcdschCfg);
INT32 rrcComposePdsch_ConfigSetup(OSCTXT* pAsnCxt, PDSCH_Config* pSetup, RrcPdschCfg_t* pRrcdschCfg);

INT32 rrcComposeDmrs_DownlinkForPDSCH_MappingTypeA(
    OSCTXT* pAsnCxt, PDSCH_Config_dmrs_DownlinkForPDSCH_MappingTypeA* pDmrs_DownlinkForPDSCH_MappingTypeA,
    RrcDmrsDlCfg_t* pRrcTypeA);
INT32 rrcComposeDmrs_DownlinkForPDSCH_MappingTypeB(
    OSCTXT* pAsnCxt, PDSCH_Config_dmrs_DownlinkForPDSCH_MappingTypeB* pDmrs_DownlinkForPDSCH_MappingTypeB,
    RrcDmrsDlCfg_t* pRrcTypeB);
INT32 rrcComposeTypeSetup(OSCTXT* pAsnCxt, DMRS_DownlinkConfig* pSetup, RrcDmrsDlCfg_t* pRrcTypeA);
INT32 rrcComposePhaseTrackingRS(OSCTXT* pAsnCxt, DMRS_DownlinkConfig_phaseTrackingRS* pPhaseTrackingRS,
                                RrcPtrsDlCfg_t* pRrcPhaseTrackingRS);
INT32 rrcComposePTRS_DownlinkConfigSetup(PTRS_DownlinkConfig* pSetup, RrcPtrsDlCfg_t* pRrcPhaseTrackingRS);

INT32 rrcComposetci_StatesToAddMod(OSCTXT* pAsnCxt, PDSCH_Config_tci_StatesToAddModList* pTci_StatesToAddModList,
                                   RrcPdschCfg_t* pRrcdschCfg);
INT32 rrcComposetci_StatesToAddItem(TCI_State* pTCI_State, RrcTciState_t* pRrcTciState);
INT32 rrcComposeQcl_Type(QCL_Info* pQcl_Type, RrcQclInfo_t* pRrcQclType);
INT32 rrcComposetci_StatesRelase(PDSCH_Config_tci_StatesToReleaseList* pTci_StatesToReleaseList,
                                 RrcPdschCfg_t* pRrcdschCfg);

INT32 rrcComposePdsch_TimeDomainAllocationList(
    OSCTXT* pAsnCxt, PDSCH_Config_pdsch_TimeDomainAllocationList* pPdsch_TimeDomainAllocationList,
    RrcPdschTimeDomainResourceAllocList_t* pRrcPdschTimeDomainAllocList);
INT32 rrcComposeAllocationListSetup(OSCTXT* pAsnCxt, PDSCH_TimeDomainResourceAllocationList* pSetup,
                                    RrcPdschTimeDomainResourceAllocList_t* pRrcPdschTimeDomainAllocList);
INT32 rrcComposeResourceAllocation(PDSCH_TimeDomainResourceAllocation* pAllocationItem,
                                   RrcPdschTimeDomainResourceAlloc_t* pRrcAlloc);

INT32 rrcComposetci_RateMatchPatternToAdd(OSCTXT* pAsnCxt,
                                          PDSCH_Config_rateMatchPatternToAddModList* pRateMatchPatternToAddModList,
                                          RrcPdschCfg_t* pRrcdschCfg);
INT32 rrcComposetci_RateMatchPatternRelease(PDSCH_Config_rateMatchPatternToReleaseList* pRateMatchPatternToReleaseList,
                                            RrcPdschCfg_t* pRrcdschCfg);
INT32 rrcComposeRateMatchPattern(OSCTXT* pAsnCxt, RateMatchPattern* pRateMatchPattern,
                                 RrcRateMatchPattern_t* pRrcRateMatchPattern);
INT32 rrcComposePatternType(OSCTXT* pAsnCxt, RateMatchPattern_patternType* pPatternType,
                            RrcRateMatchPattern_t* pRrcRateMatchPattern);
INT32 rrcComposeBitmaps(OSCTXT* pAsnCxt, RateMatchPattern_patternType_bitmaps* pBitmaps, RrcBitMaps_t* pRrcBitmaps);
INT32 rrcComposeSymbolsInResourceBlock(
    OSCTXT* pAsnCxt, RateMatchPattern_patternType_bitmaps_symbolsInResourceBlock* pSymbolsInResourceBlock,
    RrcBitMaps_t* pRrcBitmaps);
INT32 rrcComposetci_RateMatchPatternGroup(OSCTXT* pAsnCxt, RateMatchPatternGroup* pRateMatchPatternGroup1,
                                          RrcRateMatchPatternGroup_t* pRrcGroup1);
INT32 rrcComposePatternGroup_element(RateMatchPatternGroup_element* pItem, UINT8 presense,
                                     union rateMatchPatternGroup_u* pRrcRateMatchPatternGroup);

INT32 rrcComposePrb_BundlingType(OSCTXT* pAsnCxt, PDSCH_Config_prb_BundlingType* pPrb_BundlingType,
                                 RrcPdschCfg_t* pRrcdschCfg);
INT32 rrcComposeStaticBundling(PDSCH_Config_prb_BundlingType_staticBundling* pStaticBundling,
                               staticBundingType* pRrcStaticBunding);
INT32 rrcComposeDynamicBundling(PDSCH_Config_prb_BundlingType_dynamicBundling* pDynamicBundling,
                                dynamicBundingType* pRrcDynamicBunding);

INT32 rrcComposezp_CSI_RS_ResourceToAddMod(OSCTXT* pAsnCxt,
                                           PDSCH_Config_zp_CSI_RS_ResourceToAddModList* pZp_CSI_RS_ResourceToAddModList,
                                           RrcPdschCfg_t* pRrcdschCfg);
INT32 rrcComposezp_CSI_RS_ResourceReleaes(
    PDSCH_Config_zp_CSI_RS_ResourceToReleaseList* pZp_CSI_RS_ResourceToReleaseList, RrcPdschCfg_t* pRrcdschCfg);
INT32 rrcComposeZP_CSI_RS_Resource(OSCTXT* pAsnCxt, ZP_CSI_RS_Resource* pZp_CSI_RS_ResItem,
                                   RrcZpCsiRsResource_t* pRrcZpCsiRsResource);
INT32 rrcComposezp_CSI_RS_ResourceSetToAddMod(
    OSCTXT* pAsnCxt,
    PDSCH_Config_aperiodic_ZP_CSI_RS_ResourceSetsToAddModList* pAperiodic_ZP_CSI_RS_ResourceSetsToAddModList,
    RrcPdschCfg_t* pRrcdschCfg);
INT32 rrcComposezp_CSI_RS_ResourceSetRelease(
    PDSCH_Config_aperiodic_ZP_CSI_RS_ResourceSetsToReleaseList* pAperiodic_ZP_CSI_RS_ResourceSetsToReleaseList,
    RrcPdschCfg_t* pRrcdschCfg);
INT32 rrcComposePZP_CSI_RS_ResourceSetPresent(OSCTXT* pAsnCxt,
                                              PDSCH_Config_p_ZP_CSI_RS_ResourceSet* pP_ZP_CSI_RS_ResourceSet,
                                              RrcZpCsiRsResourceSet_t* pRrcPZpCsiRsResourceSet);
INT32 rrcComposeZP_CSI_RS_ResourceSet(ZP_CSI_RS_ResourceSet* pZp_CSI_RS_ResSetItem,
                                      RrcZpCsiRsResourceSet_t* pRrcZpCsiRsResourceSet);

#endif
