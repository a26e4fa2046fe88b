// Composers of PUSCH-Config, and of what it shares with the configured grant and PUSCH-ConfigCommon.
#ifndef PUSCH_H
#define PUSCH_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcPusch.h"

INT32 rrcComposePusch_Configsetup(OSCTXT* pAsnCxt, PUSCH_Config* pPUSCH_Config, RrcPuschCfg_t* pRrcPuschCfg);
INT32 rrcComposedmrs_UplinkForPUSCH_MappingTypeA(OSCTXT* pAsnCxt,
                                                 PUSCH_Config_dmrs_UplinkForPUSCH_MappingTypeA* pMappingTypeA,
                                                 RrcDmrsUlCfg_t* pRrcDmrsUlCfg);
INT32 rrcComposedmrs_UplinkForPUSCH_MappingTypeB(OSCTXT* pAsnCxt,
                                                 PUSCH_Config_dmrs_UplinkForPUSCH_MappingTypeB* pMappingTypeB,
                                                 RrcDmrsUlCfg_t* pRrcDmrsUlCfg);
INT32 rrcComposeDMRS_UplinkConfigSetup(OSCTXT* pAsnCxt, DMRS_UplinkConfig* pDMRS_UplinkConfig,
                                       RrcDmrsUlCfg_t* pRrcDmrsUlCfg);
INT32 rrcComposeDMRS_UplinkConfigPhaseTrackingRS(OSCTXT* pAsnCxt, DMRS_UplinkConfig_phaseTrackingRS* pPhaseTrackingRS,
                                                 RrcPtrsUlCfg_t* pRrcPtrsUlCfg);
INT32 rrcComposePTRS_UplinkConfigsetup(PTRS_UplinkConfig* pPTRS_UplinkConfig, RrcPtrsUlCfg_t* pRrcPtrsUlCfg);
INT32 rrcComposeTransformPrecoderDisabled(PTRS_UplinkConfig_transformPrecoderDisabled* pTransformPrecoderDisabled,
                                          RrcPtrsUlTransformPrecodeDisable_t* pRrcTransformPrecodeDisable);
INT32 rrcComposeTransformPrecoderEnabled(PTRS_UplinkConfig_transformPrecoderEnabled* pTransformPrecoderEnabled,
                                         RrcPtrsUlTransformPrecodeEnable_t* pRrcTransformPrecodeEnable);
INT32 rrcComposetransformPrecodingDisabled(DMRS_UplinkConfig_transformPrecodingDisabled* pTransformPrecodingDisabled,
                                           RrcTransformPrecodDisable_t* pRrcTransformPrecodDisable);
INT32 rrcComposetransformPrecodingEnabled(DMRS_UplinkConfig_transformPrecodingEnabled* pTransformPrecodingEnabled,
                                          RrcTransformPrecodEnable_t* pRrcTransformPrecodEnable);
INT32 rrcComposepusch_PowerControl(OSCTXT* pAsnCxt, PUSCH_PowerControl* pPusch_PowerControl,
                                   RrcPuschPowerControl_t* pRrcControl);
INT32 rrcComposep0_AlphaSets(OSCTXT* pAsnCxt, PUSCH_PowerControl_p0_AlphaSets* pP0_AlphaSets,
                             RrcPuschPowerControl_t* pRrcControl);
INT32 rrcComposeP0PuschAlphaSet(P0_PUSCH_AlphaSet* pP0_PUSCH_AlphaSet, RrcP0PuschAlphaSet_t* pRrcP0PuschAlphaSet);
INT32 rrcComposepathlossReferenceRSToAddMod(
    OSCTXT* pAsnCxt, PUSCH_PowerControl_pathlossReferenceRSToAddModList* pPathlossReferenceRSToAddModList,
    RrcPuschPowerControl_t* pRrcControl);
INT32 rrcComposePathlossReferenceRS(PUSCH_PathlossReferenceRS* pPUSCH_PathlossReferenceRS,
                                    RrcPuschPathLossRefRs_t* pRrcPuschPathLossRefRs);
INT32 rrcComposePathlossReferenceRSSignal(PUSCH_PathlossReferenceRS_referenceSignal* pReferenceSignal,
                                          RrcPuschPathLossRefRs_t* pRrcPuschPathLossRefRs);
INT32 rrcComposepathlossReferenceRSToReleaes(
    PUSCH_PowerControl_pathlossReferenceRSToReleaseList* pPathlossReferenceRSToReleaseList,
    RrcPuschPowerControl_t* pRrcControl);
INT32 rrcComposesri_PUSCH_MappingToAddMod(
    OSCTXT* pAsnCxt, PUSCH_PowerControl_sri_PUSCH_MappingToAddModList* pSri_PUSCH_MappingToAddModList,
    RrcPuschPowerControl_t* pRrcControl);
INT32 rrcComposeSRI_PUSCH_PowerControl(SRI_PUSCH_PowerControl* pSRI_PUSCH_PowerControl,
                                       RrcSriPuschPowerControl_t* pRrcSriPuschPowerControl);
INT32 rrcComposesri_PUSCH_MappingToRelease(
    PUSCH_PowerControl_sri_PUSCH_MappingToReleaseList* pSri_PUSCH_MappingToReleaseList,
    RrcPuschPowerControl_t* pRrcControl);
INT32 rrcComposefrequencyHoppingOffsetList(PUSCH_Config_frequencyHoppingOffsetLists* pFrequencyHoppingOffsetLists,
                                           RrcPuschCfg_t* pRrcPuschCfg);
INT32 rrcComposepusch_TimeDomainAllocationList(
    OSCTXT* pAsnCxt, PUSCH_Config_pusch_TimeDomainAllocationList* pPusch_TimeDomainAllocationList,
    RrcPuschTimeDomainResourceAllocList_t* pRrcPuschTimeDomainResourceAllocList);
INT32 rrcComposePUSCH_TimeDomainResourceAllocationSetup(
    OSCTXT* pAsnCxt, PUSCH_TimeDomainResourceAllocationList* pSetup,
    RrcPuschTimeDomainResourceAllocList_t* pRrcPuschTimeDomainResourceAllocList);
INT32 rrcComposePUSCH_TimeDomainResourceAllocation(
    PUSCH_TimeDomainResourceAllocation* pPUSCH_TimeDomainResourceAllocation,
    RrcPuschTimeDomainResourceAlloc_t* pRrcPuschTimeDomainResourceAlloc);
INT32 rrcComposeuci_OnPUSCH(OSCTXT* pAsnCxt, PUSCH_Config_uci_OnPUSCH* pUci_OnPUSCH, RrcUciOnPusch_t* pRrcUciOnPusch);
INT32 rrcComposeUCI_OnPUSCHsetup(OSCTXT* pAsnCxt, UCI_OnPUSCH* pUCI_OnPUSCH, RrcUciOnPusch_t* pRrcUciOnPusch);
INT32 rrcComposeBetaOffsets(OSCTXT* pAsnCxt, UCI_OnPUSCH_betaOffsets* pBetaOffsets, RrcUciOnPusch_t* pRrcUciOnPusch);
INT32 rrcComposeBetaOffsets_dynamic(OSCTXT* PAsnCxt, UCI_OnPUSCH_betaOffsets_dynamic* pDynamic,
                                    RrcUciOnPusch_t* pRrcUciOnPusch);
INT32 rrcComposeBetaOffsets_semiStatic(BetaOffsets* pBetaOffsets, RrcBetaOffsets_t* pRrcBetaOffsets);

#endif
