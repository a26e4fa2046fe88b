// What the composers of the uplink print and return when a composer fails that never does by itself.

#include <string>

#include "cellGroupCfg/configuredGrant.h"
#include "cellGroupCfg/downlinkBwp.h"
#include "cellGroupCfg/pucch.h"
#include "cellGroupCfg/pusch.h"
#include "cellGroupCfg/rachDedicated.h"
#include "cellGroupCfg/servingCellLevel.h"
#include "cellGroupCfg/srs.h"
#include "cellGroupCfg/uplinkBwp.h"
#include "cellGroupCfg/uplinkConfig.h"
#include "support/ComposerTest.h"
#include "support/Interposed.h"

using test::address;
using test::Failing;
using test::passOn;

INT32 rrcComposePucchResourceSet(PUCCH_ResourceSet* e, RrcPucchResourceSet_t* r)
{
    return passOn(rrcComposePucchResourceSet, e, r);
}
INT32 rrcComposeresourceSetToRel(PUCCH_Config_resourceSetToReleaseList* e, RrcPucchCfg_t* r)
{
    return passOn(rrcComposeresourceSetToRel, e, r);
}
INT32 rrcComposePucchResource(OSCTXT* c, PUCCH_Resource* e, RrcPucchResource_t* r)
{
    return passOn(rrcComposePucchResource, c, e, r);
}
INT32 rrcComposePUCCH_Resource_format(OSCTXT* c, PUCCH_Resource_format* e, RrcPucchResource_t* r)
{
    return passOn(rrcComposePUCCH_Resource_format, c, e, r);
}
INT32 rrcComposeresourceRel(PUCCH_Config_resourceToReleaseList* e, RrcPucchCfg_t* r)
{
    return passOn(rrcComposeresourceRel, e, r);
}
INT32 rrcComposePUCCH_Config_format1(OSCTXT* c, PUCCH_Config_format1* e, RrcPucchFormatCfg_t* r)
{
    return passOn(rrcComposePUCCH_Config_format1, c, e, r);
}
INT32 rrcComposePUCCH_Config_format2(OSCTXT* c, PUCCH_Config_format2* e, RrcPucchFormatCfg_t* r)
{
    return passOn(rrcComposePUCCH_Config_format2, c, e, r);
}
INT32 rrcComposePUCCH_Config_format3(OSCTXT* c, PUCCH_Config_format3* e, RrcPucchFormatCfg_t* r)
{
    return passOn(rrcComposePUCCH_Config_format3, c, e, r);
}
INT32 rrcComposePUCCH_Config_format4(OSCTXT* c, PUCCH_Config_format4* e, RrcPucchFormatCfg_t* r)
{
    return passOn(rrcComposePUCCH_Config_format4, c, e, r);
}
INT32 rrcComposeSchedReqResourceCfg(SchedulingRequestResourceConfig* e, RrcSchedReqResourceCfg_t* r)
{
    return passOn(rrcComposeSchedReqResourceCfg, e, r);
}
INT32 rrcComposeSchedulingRequestResourceToRel(PUCCH_Config_schedulingRequestResourceToReleaseList* e, RrcPucchCfg_t* r)
{
    return passOn(rrcComposeSchedulingRequestResourceToRel, e, r);
}
INT32 rrcComposemulti_CSI_PUCCH_ResourceLis(PUCCH_Config_multi_CSI_PUCCH_ResourceList* e, RrcPucchCfg_t* r)
{
    return passOn(rrcComposemulti_CSI_PUCCH_ResourceLis, e, r);
}
INT32 rrcComposeDl_DataToUL_ACK(PUCCH_Config_dl_DataToUL_ACK* e, RrcPucchCfg_t* r)
{
    return passOn(rrcComposeDl_DataToUL_ACK, e, r);
}
INT32 rrcComposeSpatialRelationInfo(OSCTXT* c, PUCCH_SpatialRelationInfo* e, RrcPucchSpatialRelationInfo_t* r)
{
    return passOn(rrcComposeSpatialRelationInfo, c, e, r);
}
INT32 rrcComposereferenceSignal(OSCTXT* c, PUCCH_SpatialRelationInfo_referenceSignal* e,
                                RrcPucchSpatialRelationInfo_t* r)
{
    return passOn(rrcComposereferenceSignal, c, e, r);
}
INT32 rrcComposeSpatialRelationInfoToRel(PUCCH_Config_spatialRelationInfoToReleaseList* e, RrcPucchCfg_t* r)
{
    return passOn(rrcComposeSpatialRelationInfoToRel, e, r);
}
INT32 rrcComposePucch_PowerControl(OSCTXT* c, PUCCH_PowerControl* e, RrcPucchPowerControl_t* r)
{
    return passOn(rrcComposePucch_PowerControl, c, e, r);
}
INT32 rrcComposePucch_Configsetup(OSCTXT* c, PUCCH_Config* e, RrcPucchCfg_t* r)
{
    return passOn(rrcComposePucch_Configsetup, c, e, r);
}
INT32 rrcComposeformat0(PUCCH_format0* e, RrcPucchFormat0_t* r)
{
    return passOn(rrcComposeformat0, e, r);
}
INT32 rrcComposeformat1(PUCCH_format1* e, RrcPucchFormat1_t* r)
{
    return passOn(rrcComposeformat1, e, r);
}
INT32 rrcComposeformat2(PUCCH_format2* e, RrcPucchFormat2_t* r)
{
    return passOn(rrcComposeformat2, e, r);
}
INT32 rrcComposeformat3(PUCCH_format3* e, RrcPucchFormat3_t* r)
{
    return passOn(rrcComposeformat3, e, r);
}
INT32 rrcComposeformat4(PUCCH_format4* e, RrcPucchFormat4_t* r)
{
    return passOn(rrcComposeformat4, e, r);
}
INT32 rrcComposePUCCH_FormatConfigsetup(PUCCH_FormatConfig* e, RrcPucchFormatCfg_t* r)
{
    return passOn(rrcComposePUCCH_FormatConfigsetup, e, r);
}
INT32 rrcComposeSchedulingperiodicityAndOffset(SchedulingRequestResourceConfig_periodicityAndOffset* e,
                                               RrcSchedReqResourceCfg_t* r)
{
    return passOn(rrcComposeSchedulingperiodicityAndOffset, e, r);
}
INT32 rrcComposereferenceSignal_srs(PUCCH_SpatialRelationInfo_referenceSignal_srs* e, RrcPucchSpatialRelationInfo_t* r)
{
    return passOn(rrcComposereferenceSignal_srs, e, r);
}
INT32 rrcComposePUCCH_PowerControl_p0_Set(OSCTXT* c, PUCCH_PowerControl_p0_Set* e, RrcPucchPowerControl_t* r)
{
    return passOn(rrcComposePUCCH_PowerControl_p0_Set, c, e, r);
}
INT32 rrcComposeP0_Set(P0_PUCCH* e, RrcP0Pucch_t* r)
{
    return passOn(rrcComposeP0_Set, e, r);
}
INT32 rrcComposepathlossReferenceRSs(OSCTXT* c, PUCCH_PowerControl_pathlossReferenceRSs* e, RrcPucchPowerControl_t* r)
{
    return passOn(rrcComposepathlossReferenceRSs, c, e, r);
}
INT32 rrcComposePUCCH_PathlossReferenceRS(PUCCH_PathlossReferenceRS* e, RrcPucchPathLossRefRs_t* r)
{
    return passOn(rrcComposePUCCH_PathlossReferenceRS, e, r);
}
INT32 rrcComposedmrs_UplinkForPUSCH_MappingTypeA(OSCTXT* c, PUSCH_Config_dmrs_UplinkForPUSCH_MappingTypeA* e,
                                                 RrcDmrsUlCfg_t* r)
{
    return passOn(rrcComposedmrs_UplinkForPUSCH_MappingTypeA, c, e, r);
}
INT32 rrcComposedmrs_UplinkForPUSCH_MappingTypeB(OSCTXT* c, PUSCH_Config_dmrs_UplinkForPUSCH_MappingTypeB* e,
                                                 RrcDmrsUlCfg_t* r)
{
    return passOn(rrcComposedmrs_UplinkForPUSCH_MappingTypeB, c, e, r);
}
INT32 rrcComposepusch_PowerControl(OSCTXT* c, PUSCH_PowerControl* e, RrcPuschPowerControl_t* r)
{
    return passOn(rrcComposepusch_PowerControl, c, e, r);
}
INT32 rrcComposepusch_TimeDomainAllocationList(OSCTXT* c, PUSCH_Config_pusch_TimeDomainAllocationList* e,
                                               RrcPuschTimeDomainResourceAllocList_t* r)
{
    return passOn(rrcComposepusch_TimeDomainAllocationList, c, e, r);
}
INT32 rrcComposeuci_OnPUSCH(OSCTXT* c, PUSCH_Config_uci_OnPUSCH* e, RrcUciOnPusch_t* r)
{
    return passOn(rrcComposeuci_OnPUSCH, c, e, r);
}
INT32 rrcComposefrequencyHoppingOffsetList(PUSCH_Config_frequencyHoppingOffsetLists* e, RrcPuschCfg_t* r)
{
    return passOn(rrcComposefrequencyHoppingOffsetList, e, r);
}
INT32 rrcComposeDMRS_UplinkConfigSetup(OSCTXT* c, DMRS_UplinkConfig* e, RrcDmrsUlCfg_t* r)
{
    return passOn(rrcComposeDMRS_UplinkConfigSetup, c, e, r);
}
INT32 rrcComposePusch_Configsetup(OSCTXT* c, PUSCH_Config* e, RrcPuschCfg_t* r)
{
    return passOn(rrcComposePusch_Configsetup, c, e, r);
}
INT32 rrcComposeDMRS_UplinkConfigPhaseTrackingRS(OSCTXT* c, DMRS_UplinkConfig_phaseTrackingRS* e, RrcPtrsUlCfg_t* r)
{
    return passOn(rrcComposeDMRS_UplinkConfigPhaseTrackingRS, c, e, r);
}
INT32 rrcComposePTRS_UplinkConfigsetup(PTRS_UplinkConfig* e, RrcPtrsUlCfg_t* r)
{
    return passOn(rrcComposePTRS_UplinkConfigsetup, e, r);
}
INT32 rrcComposeTransformPrecoderDisabled(PTRS_UplinkConfig_transformPrecoderDisabled* e,
                                          RrcPtrsUlTransformPrecodeDisable_t* r)
{
    return passOn(rrcComposeTransformPrecoderDisabled, e, r);
}
INT32 rrcComposeTransformPrecoderEnabled(PTRS_UplinkConfig_transformPrecoderEnabled* e,
                                         RrcPtrsUlTransformPrecodeEnable_t* r)
{
    return passOn(rrcComposeTransformPrecoderEnabled, e, r);
}
INT32 rrcComposetransformPrecodingDisabled(DMRS_UplinkConfig_transformPrecodingDisabled* e,
                                           RrcTransformPrecodDisable_t* r)
{
    return passOn(rrcComposetransformPrecodingDisabled, e, r);
}
INT32 rrcComposetransformPrecodingEnabled(DMRS_UplinkConfig_transformPrecodingEnabled* e, RrcTransformPrecodEnable_t* r)
{
    return passOn(rrcComposetransformPrecodingEnabled, e, r);
}
INT32 rrcComposep0_AlphaSets(OSCTXT* c, PUSCH_PowerControl_p0_AlphaSets* e, RrcPuschPowerControl_t* r)
{
    return passOn(rrcComposep0_AlphaSets, c, e, r);
}
INT32 rrcComposeP0PuschAlphaSet(P0_PUSCH_AlphaSet* e, RrcP0PuschAlphaSet_t* r)
{
    return passOn(rrcComposeP0PuschAlphaSet, e, r);
}
INT32 rrcComposepathlossReferenceRSToAddMod(OSCTXT* c, PUSCH_PowerControl_pathlossReferenceRSToAddModList* e,
                                            RrcPuschPowerControl_t* r)
{
    return passOn(rrcComposepathlossReferenceRSToAddMod, c, e, r);
}
INT32 rrcComposePathlossReferenceRS(PUSCH_PathlossReferenceRS* e, RrcPuschPathLossRefRs_t* r)
{
    return passOn(rrcComposePathlossReferenceRS, e, r);
}
INT32 rrcComposePathlossReferenceRSSignal(PUSCH_PathlossReferenceRS_referenceSignal* e, RrcPuschPathLossRefRs_t* r)
{
    return passOn(rrcComposePathlossReferenceRSSignal, e, r);
}
INT32 rrcComposepathlossReferenceRSToReleaes(PUSCH_PowerControl_pathlossReferenceRSToReleaseList* e,
                                             RrcPuschPowerControl_t* r)
{
    return passOn(rrcComposepathlossReferenceRSToReleaes, e, r);
}
INT32 rrcComposesri_PUSCH_MappingToAddMod(OSCTXT* c, PUSCH_PowerControl_sri_PUSCH_MappingToAddModList* e,
                                          RrcPuschPowerControl_t* r)
{
    return passOn(rrcComposesri_PUSCH_MappingToAddMod, c, e, r);
}
INT32 rrcComposeSRI_PUSCH_PowerControl(SRI_PUSCH_PowerControl* e, RrcSriPuschPowerControl_t* r)
{
    return passOn(rrcComposeSRI_PUSCH_PowerControl, e, r);
}
INT32 rrcComposesri_PUSCH_MappingToRelease(PUSCH_PowerControl_sri_PUSCH_MappingToReleaseList* e,
                                           RrcPuschPowerControl_t* r)
{
    return passOn(rrcComposesri_PUSCH_MappingToRelease, e, r);
}
INT32 rrcComposeUCI_OnPUSCHsetup(OSCTXT* c, UCI_OnPUSCH* e, RrcUciOnPusch_t* r)
{
    return passOn(rrcComposeUCI_OnPUSCHsetup, c, e, r);
}
INT32 rrcComposeBetaOffsets(OSCTXT* c, UCI_OnPUSCH_betaOffsets* e, RrcUciOnPusch_t* r)
{
    return passOn(rrcComposeBetaOffsets, c, e, r);
}
INT32 rrcComposeBetaOffsets_dynamic(OSCTXT* c, UCI_OnPUSCH_betaOffsets_dynamic* e, RrcUciOnPusch_t* r)
{
    return passOn(rrcComposeBetaOffsets_dynamic, c, e, r);
}
INT32 rrcComposeBetaOffsets_semiStatic(BetaOffsets* e, RrcBetaOffsets_t* r)
{
    return passOn(rrcComposeBetaOffsets_semiStatic, e, r);
}
INT32 rrcComposePUSCH_TimeDomainResourceAllocationSetup(OSCTXT* c, PUSCH_TimeDomainResourceAllocationList* e,
                                                        RrcPuschTimeDomainResourceAllocList_t* r)
{
    return passOn(rrcComposePUSCH_TimeDomainResourceAllocationSetup, c, e, r);
}
INT32 rrcComposePUSCH_TimeDomainResourceAllocation(PUSCH_TimeDomainResourceAllocation* e,
                                                   RrcPuschTimeDomainResourceAlloc_t* r)
{
    return passOn(rrcComposePUSCH_TimeDomainResourceAllocation, e, r);
}
INT32 rrcComposeConfiguredGrant_Configsetup(OSCTXT* c, ConfiguredGrantConfig* e, RrcCfgGrantCfg_t* r)
{
    return passOn(rrcComposeConfiguredGrant_Configsetup, c, e, r);
}
INT32 rrcComposeConfiguredGrantConfig_uci_OnPUSCH(OSCTXT* c, ConfiguredGrantConfig_uci_OnPUSCH* e, RrcCgUciOnPusch_t* r)
{
    return passOn(rrcComposeConfiguredGrantConfig_uci_OnPUSCH, c, e, r);
}
INT32 rrcComposeCG_UCI_OnPUSCHSetup(OSCTXT* c, CG_UCI_OnPUSCH* e, RrcCgUciOnPusch_t* r)
{
    return passOn(rrcComposeCG_UCI_OnPUSCHSetup, c, e, r);
}
INT32 rrcComposeCG_UCI_OnPUSCH_dynamic(OSCTXT* c, CG_UCI_OnPUSCH_dynamic* e, RrcDynamicBetaOffsets_t* r)
{
    return passOn(rrcComposeCG_UCI_OnPUSCH_dynamic, c, e, r);
}
INT32 rrcComposeConfiguredUplinkGrant(ConfiguredGrantConfig_rrc_ConfiguredUplinkGrant* e, struct rrcCfgdUlGrant_s* r)
{
    return passOn(rrcComposeConfiguredUplinkGrant, e, r);
}
INT32 rrcComposesrs_ResourceSetToReleaseList(SRS_Config_srs_ResourceSetToReleaseList* e, RrcSrsCfg_t* r)
{
    return passOn(rrcComposesrs_ResourceSetToReleaseList, e, r);
}
INT32 rrcComposeSRS_ResourceSet(OSCTXT* c, SRS_ResourceSet* e, RrcSrsResourceSet_t* r)
{
    return passOn(rrcComposeSRS_ResourceSet, c, e, r);
}
INT32 rrcComposesrs_ResourceSetReleaesList(SRS_Config_srs_ResourceToReleaseList* e, RrcSrsCfg_t* r)
{
    return passOn(rrcComposesrs_ResourceSetReleaesList, e, r);
}
INT32 rrcComposeSRS_Resource(OSCTXT* c, SRS_Resource* e, RrcSrsResource_t* r)
{
    return passOn(rrcComposeSRS_Resource, c, e, r);
}
INT32 rrcComposeSRS_SpatialRelationInfo(OSCTXT* c, SRS_SpatialRelationInfo* e, RrcSrsSpatialRelationInfo_t* r)
{
    return passOn(rrcComposeSRS_SpatialRelationInfo, c, e, r);
}
INT32 rrcComposeSRS_ConfigSetup(OSCTXT* c, SRS_Config* e, RrcSrsCfg_t* r)
{
    return passOn(rrcComposeSRS_ConfigSetup, c, e, r);
}
INT32 rrcComposesrs_ResourceIdList(SRS_ResourceSet_srs_ResourceIdList* e, RrcSrsResourceSet_t* r)
{
    return passOn(rrcComposesrs_ResourceIdList, e, r);
}
INT32 rrcComposesrsResourceSet_resourceType(OSCTXT* c, SRS_ResourceSet_resourceType* e, RrcSrsResourceSet_t* r)
{
    return passOn(rrcComposesrsResourceSet_resourceType, c, e, r);
}
INT32 rrcComposeSRS_ResourceSet_resourceType_aperiodic(SRS_ResourceSet_resourceType_aperiodic* e, struct aperiodic_s* r)
{
    return passOn(rrcComposeSRS_ResourceSet_resourceType_aperiodic, e, r);
}
INT32 rrcComposeSRS_ResourceSet_resourceType_semi(SRS_ResourceSet_resourceType_semi_persistent* e,
                                                  struct semiPersistent_s* r)
{
    return passOn(rrcComposeSRS_ResourceSet_resourceType_semi, e, r);
}
INT32 rrcComposeSRS_ResourceSet_resourceType_periodic(SRS_ResourceSet_resourceType_periodic* e, struct periodic_s* r)
{
    return passOn(rrcComposeSRS_ResourceSet_resourceType_periodic, e, r);
}
INT32 rrcComposepathlossReferenceRS(SRS_ResourceSet_pathlossReferenceRS* e, RrcSRSPathLossRefRs_t* r)
{
    return passOn(rrcComposepathlossReferenceRS, e, r);
}
INT32 rrcComposeSRS_Resource_transmissionComb(OSCTXT* c, SRS_Resource_transmissionComb* e, RrcSrsResource_t* r)
{
    return passOn(rrcComposeSRS_Resource_transmissionComb, c, e, r);
}
INT32 rrcComposeSRS_Resource_transmissionComb_n2(SRS_Resource_transmissionComb_n2* e, RrcSrsResource_t* r)
{
    return passOn(rrcComposeSRS_Resource_transmissionComb_n2, e, r);
}
INT32 rrcComposeSRS_Resource_transmissionComb_n4(SRS_Resource_transmissionComb_n4* e, RrcSrsResource_t* r)
{
    return passOn(rrcComposeSRS_Resource_transmissionComb_n4, e, r);
}
INT32 rrcComposeresourceMapping(SRS_Resource_resourceMapping* e, struct resourceMapping_s* r)
{
    return passOn(rrcComposeresourceMapping, e, r);
}
INT32 rrcComposeSRS_Resource_freqHopping(SRS_Resource_freqHopping* e, struct freqHopping_s* r)
{
    return passOn(rrcComposeSRS_Resource_freqHopping, e, r);
}
INT32 rrcComposeSRS_Resource_resourceType(OSCTXT* c, SRS_Resource_resourceType* e, RrcSrsResource_t* r)
{
    return passOn(rrcComposeSRS_Resource_resourceType, c, e, r);
}
INT32 rrcComposeType_semi_persistent(SRS_Resource_resourceType_semi_persistent* e, struct srsSemiPersistent_s* r)
{
    return passOn(rrcComposeType_semi_persistent, e, r);
}
INT32 rrcComposeType_periodic(SRS_Resource_resourceType_periodic* e, struct srsPeriodic_s* r)
{
    return passOn(rrcComposeType_periodic, e, r);
}
INT32 rrcComposeSRSreferenceSignal(OSCTXT* c, SRS_SpatialRelationInfo_referenceSignal* e,
                                   RrcSrsSpatialRelationInfo_t* r)
{
    return passOn(rrcComposeSRSreferenceSignal, c, e, r);
}
INT32 rrcComposeBWPucch_Config(OSCTXT* c, BWP_UplinkDedicated_pucch_Config* e, RrcPucchCfg_t* r)
{
    return passOn(rrcComposeBWPucch_Config, c, e, r);
}
INT32 rrcComposeBWPPusch_Config(OSCTXT* c, BWP_UplinkDedicated_pusch_Config* e, RrcPuschCfg_t* r)
{
    return passOn(rrcComposeBWPPusch_Config, c, e, r);
}
INT32 rrcComposeBWPConfiguredGrant_Config(OSCTXT* c, BWP_UplinkDedicated_configuredGrantConfig* e, RrcCfgGrantCfg_t* r)
{
    return passOn(rrcComposeBWPConfiguredGrant_Config, c, e, r);
}
INT32 rrcComposeBWPsrs_Config(OSCTXT* c, BWP_UplinkDedicated_srs_Config* e, RrcSrsCfg_t* r)
{
    return passOn(rrcComposeBWPsrs_Config, c, e, r);
}
INT32 rrcComposeBWPbeamFailureRecovery_Config(OSCTXT* c, BWP_UplinkDedicated_beamFailureRecoveryConfig* e,
                                              RrcBeamFailRecoveryCfg_t* r)
{
    return passOn(rrcComposeBWPbeamFailureRecovery_Config, c, e, r);
}
INT32 rrcComposeBeamFailureRecovery_ConfigSetup(OSCTXT* c, BeamFailureRecoveryConfig* e, RrcBeamFailRecoveryCfg_t* r)
{
    return passOn(rrcComposeBeamFailureRecovery_ConfigSetup, c, e, r);
}
INT32 rrcComposeInitialUplinkBWP(OSCTXT* c, BWP_UplinkDedicated* e, RrcBwpUlDedi_t* r)
{
    return passOn(rrcComposeInitialUplinkBWP, c, e, r);
}
INT32 rrcComposeGenericParameters(BWP* e, RrcBwp_t* r)
{
    return passOn(rrcComposeGenericParameters, e, r);
}
INT32 rrcComposeBWPrach_ConfigCommon(OSCTXT* c, BWP_UplinkCommon_rach_ConfigCommon* e, RrcRachCfgComm_t* r)
{
    return passOn(rrcComposeBWPrach_ConfigCommon, c, e, r);
}
INT32 rrcComposeBWPpusch_ConfigCommon(OSCTXT* c, BWP_UplinkCommon_pusch_ConfigCommon* e, RrcPuschCfgComm_t* r)
{
    return passOn(rrcComposeBWPpusch_ConfigCommon, c, e, r);
}
INT32 rrcComposeBWPpucch_ConfigCommon(OSCTXT* c, BWP_UplinkCommon_pucch_ConfigCommon* e, RrcPucchCfgComm_t* r)
{
    return passOn(rrcComposeBWPpucch_ConfigCommon, c, e, r);
}
INT32 rrcComposeBWP_UplinkCommon(OSCTXT* c, BWP_UplinkCommon* e, RrcBwpUlComm_t* r)
{
    return passOn(rrcComposeBWP_UplinkCommon, c, e, r);
}
INT32 rrcComposeBWP_Uplink(OSCTXT* c, BWP_Uplink* e, RrcBwpUl_t* r)
{
    return passOn(rrcComposeBWP_Uplink, c, e, r);
}
INT32 rrcComposeRACH_Configsetup(RACH_ConfigCommon* e, RrcRachCfgComm_t* r)
{
    return passOn(rrcComposeRACH_Configsetup, e, r);
}
INT32 rrcComposeRach_ConfigGeneric(RACH_ConfigGeneric* e, RrcRachCfgGeneric_t* r)
{
    return passOn(rrcComposeRach_ConfigGeneric, e, r);
}
INT32 rrcComposeRach_OccasionAndCB_PreamblesPerSSB(RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB* e,
                                                   RrcRachCfgComm_t* r)
{
    return passOn(rrcComposeRach_OccasionAndCB_PreamblesPerSSB, e, r);
}
INT32 rrcComposeRach_groupBconfigured(RACH_ConfigCommon_groupBconfigured* e, struct groupBCfgd_s* r)
{
    return passOn(rrcComposeRach_groupBconfigured, e, r);
}
INT32 rrcComposeRach_RootSequenceIndex(RACH_ConfigCommon_prach_RootSequenceIndex* e, RrcRachCfgComm_t* r)
{
    return passOn(rrcComposeRach_RootSequenceIndex, e, r);
}
INT32 rrcComposePusch_ConfigCommonsetup(OSCTXT* c, PUSCH_ConfigCommon* e, RrcPuschCfgComm_t* r)
{
    return passOn(rrcComposePusch_ConfigCommonsetup, c, e, r);
}
INT32 rrcComposePucch_ConfigCommonsetup(PUCCH_ConfigCommon* e, RrcPucchCfgComm_t* r)
{
    return passOn(rrcComposePucch_ConfigCommonsetup, e, r);
}
INT32 rrcComposeRa_Prioritization(OSCTXT* c, RA_Prioritization* e, RrcRaPrio_t* r)
{
    return passOn(rrcComposeRa_Prioritization, c, e, r);
}
INT32 rrcComposeuplinkBWP_ToReleaseList(UplinkConfig_uplinkBWP_ToReleaseList* e, RrcUlCfg_t* r)
{
    return passOn(rrcComposeuplinkBWP_ToReleaseList, e, r);
}
INT32 rrcComposepusch_ServingCellConfig(OSCTXT* c, UplinkConfig_pusch_ServingCellConfig* e, RrcPuschServingCellCfg_t* r)
{
    return passOn(rrcComposepusch_ServingCellConfig, c, e, r);
}
INT32 rrcComposepusch_ServingCellCfgSetup(OSCTXT* c, PUSCH_ServingCellConfig* e, RrcPuschServingCellCfg_t* r)
{
    return passOn(rrcComposepusch_ServingCellCfgSetup, c, e, r);
}
INT32 rrcComposeodeBlockGroupTransmission(OSCTXT* c, PUSCH_ServingCellConfig_codeBlockGroupTransmission* e,
                                          struct rrcPuschCodeBlockGroupTransmission_s* r)
{
    return passOn(rrcComposeodeBlockGroupTransmission, c, e, r);
}
INT32 rrcComposeCarrierSwitching(OSCTXT* c, UplinkConfig_carrierSwitching* e, RrcSrsCarrierSwitching_t* r)
{
    return passOn(rrcComposeCarrierSwitching, c, e, r);
}
INT32 rrcComposeCarrierSwitchingSetup(OSCTXT* c, SRS_CarrierSwitching* e, RrcSrsCarrierSwitching_t* r)
{
    return passOn(rrcComposeCarrierSwitchingSetup, c, e, r);
}
INT32 rrcComposesrs_TPC_PDCCH_Group(OSCTXT* c, SRS_CarrierSwitching_srs_TPC_PDCCH_Group* e, RrcSrsCarrierSwitching_t* r)
{
    return passOn(rrcComposesrs_TPC_PDCCH_Group, c, e, r);
}
INT32 rrcComposesrs_TPC_PDCCH_GroupTypeA(OSCTXT* c, SRS_CarrierSwitching_srs_TPC_PDCCH_Group_typeA* e,
                                         struct typeA_s* r)
{
    return passOn(rrcComposesrs_TPC_PDCCH_GroupTypeA, c, e, r);
}
INT32 rrcComposeSRS_TPC_PDCCH_Cfg(OSCTXT* c, SRS_TPC_PDCCH_Config* e, RrcSrsTpcPdcchCfg_t* r)
{
    return passOn(rrcComposeSRS_TPC_PDCCH_Cfg, c, e, r);
}
INT32 rrcComposeSRS_CC_SetIndex(SRS_CC_SetIndex* e, struct srsCcSetIdx_s* r)
{
    return passOn(rrcComposeSRS_CC_SetIndex, e, r);
}
INT32 rrcComposeMonitoringCells(SRS_CarrierSwitching_monitoringCells* e, struct RrcmonitoringCells_s* r)
{
    return passOn(rrcComposeMonitoringCells, e, r);
}
INT32 rrcComposesrs_TPC_PDCCH_GroupTypeB(OSCTXT* c, SRS_TPC_PDCCH_Config* e, RrcSrsTpcPdcchCfg_t* r)
{
    return passOn(rrcComposesrs_TPC_PDCCH_GroupTypeB, c, e, r);
}
INT32 rrcComposePdcch_ServingCellCfgSetup(OSCTXT* c, PDCCH_ServingCellConfig* e, RrcPdcchServingCellCfg_t* r)
{
    return passOn(rrcComposePdcch_ServingCellCfgSetup, c, e, r);
}
INT32 rrcComposeSlotFormatIndicator(OSCTXT* c, PDCCH_ServingCellConfig_slotFormatIndicator* e, RrcSlotFormatInd_t* r)
{
    return passOn(rrcComposeSlotFormatIndicator, c, e, r);
}
INT32 rrcComposeSlotFormatIndSetup(OSCTXT* c, SlotFormatIndicator* e, RrcSlotFormatInd_t* r)
{
    return passOn(rrcComposeSlotFormatIndSetup, c, e, r);
}
INT32 rrcComposeSlotFormatCombToAddMod(OSCTXT* c, SlotFormatIndicator_slotFormatCombToAddModList* e,
                                       RrcSlotFormatInd_t* r)
{
    return passOn(rrcComposeSlotFormatCombToAddMod, c, e, r);
}
INT32 rrcComposeslotFormatComb(OSCTXT* c, SlotFormatCombinationsPerCell* e, RrcSlotFormatCombPerCell_t* r)
{
    return passOn(rrcComposeslotFormatComb, c, e, r);
}
INT32 rrcComposeSlotFormatCombinations(OSCTXT* c, SlotFormatCombinationsPerCell_slotFormatCombinations* e,
                                       RrcSlotFormatCombPerCell_t* r)
{
    return passOn(rrcComposeSlotFormatCombinations, c, e, r);
}
INT32 rrcComposeSlotFormatCombination(SlotFormatCombination* e, RrcSlotFormatComb_t* r)
{
    return passOn(rrcComposeSlotFormatCombination, e, r);
}
INT32 rrcComposeSlotFormatCombToRel(SlotFormatIndicator_slotFormatCombToReleaseList* e, RrcSlotFormatInd_t* r)
{
    return passOn(rrcComposeSlotFormatCombToRel, e, r);
}
INT32 rrcComposePdsch_ServingCellCfgSetup(OSCTXT* c, PDSCH_ServingCellConfig* e, RrcPdschServingCellCfg_t* r)
{
    return passOn(rrcComposePdsch_ServingCellCfgSetup, c, e, r);
}
INT32 rrcComposeCodeBlockGroupTransmission(OSCTXT* c, PDSCH_ServingCellConfig_codeBlockGroupTransmission* e,
                                           struct codeBlockGroupTransmission_s* r)
{
    return passOn(rrcComposeCodeBlockGroupTransmission, c, e, r);
}
INT32 rrcComposePDSCH_CodeBlockGroupTransmissionSetup(PDSCH_CodeBlockGroupTransmission* e,
                                                      struct codeBlockGroupTransmission_s* r)
{
    return passOn(rrcComposePDSCH_CodeBlockGroupTransmissionSetup, e, r);
}

namespace
{

struct Case
{
    const void* failing;
    std::string lines;
};

class uplinkFailures : public test::ComposerTest
{
protected:
    uplinkFailures()
    {
        // Everything that an uplink can hold, one of each.
        uplink->bitMask = 15;
        uplink->numUlBwpRel = 1;
        uplink->numUlBwpAddMod = 1;
        fillPucch(uplink->initialUplinkBWP.pucchCfg);
        fillPusch(uplink->initialUplinkBWP.puschCfg);
        fillConfiguredGrant(uplink->initialUplinkBWP.cfgGrantCfg);
        fillSrs(uplink->initialUplinkBWP.srsCfg);
        uplink->initialUplinkBWP.beamFailRecoveryCfg.bitMask = 0x1FF;
        uplink->initialUplinkBWP.bitMask = 31;
        uplink->ulBwpAddMod[0].bitMask = RRC_BWP_UL_COMMON_PRESENCE;
        RrcBwpUlComm_t& common = uplink->ulBwpAddMod[0].bwpCommon;
        common.bitMask = 7;
        common.rachCfgComm.bitMask = 0x7F;
        common.puschCfgComm.bitMask = RRC_PUSCH_CFG_COMMON_PUSCH_TIMING_DOMAIN_ALLOCATION_LIST_PRESENCE;
        common.puschCfgComm.puschTimieDomainAllocList.numPuschTimeDomainResourceAllocList = 1;
        uplink->PuschServingCellCfg.bitMask = 31;
        RrcSrsCarrierSwitching_t& switching = uplink->carrierSwitching;
        switching.bitMask = 7;
        switching.presence = RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEA_PRESENCE;
        switching.srsTpcPdcchGroup.typeA.num = 1;
        switching.srsTpcPdcchGroup.typeA.cfg[0].num = 1;
    }

    // Composes the uplink while a composer fails; returns the lines printed.
    std::string lines(const void* failing, INT32 result)
    {
        const Failing fault(failing);
        element = {};
        EXPECT_EQ(rrcComposeUplinkConfig(&context, &element, uplink.get()), result);
        EXPECT_EQ(Failing::struck(), failing != nullptr);
        return printed();
    }

    std::unique_ptr<RrcUlCfg_t> uplink = cleared<RrcUlCfg_t>();
    UplinkConfig element{};

private:
    static void fillPucch(RrcPucchCfg_t& pucch)
    {
        pucch.bitMask = 31;
        pucch.numResourceSetAddMod = pucch.numResourceSetRel = 1;
        pucch.numResourceAddMod = pucch.numResourceRel = 1;
        pucch.resource[0].presence = 31;
        pucch.numSchedReqResourceCfgAddMod = pucch.numSchedReqResourceCfgRel = 1;
        pucch.schedReqResource[0].bitMask = RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_PRESENCE;
        pucch.numMultiCsiPucchResourceId = 1;
        pucch.numDlData2UlACK = 1;
        pucch.numSpatialRelationInfoAddMod = pucch.numSpatialRelationInfoRel = 1;
        pucch.spatialRelationInfo[0].presence = RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_SRSIDX_PRESENCE;
        pucch.pucchPowerControl.bitMask = 0xFF;
        pucch.pucchPowerControl.numP0Set = pucch.pucchPowerControl.numPathLossRefRs = 1;
    }

    static void fillPusch(RrcPuschCfg_t& pusch)
    {
        pusch.bitMask = 0xFFFF;
        pusch.numFreqHoppingOffset = 1;
        pusch.dmrsUlPuschTypeA.bitMask = 63;
        pusch.dmrsUlPuschTypeA.phaseTrackRs.bitMask = 3;
        RrcPuschPowerControl_t& power = pusch.puschPowerContol;
        power.numP0AlphaSets = 1;
        power.numPathLossRefRsAddMod = power.numPathLossRefRsRel = 1;
        power.numSriPuschMappingAddMod = power.numSriPuschMappingRel = 1;
        pusch.puschTimeDomainAllocList.numPuschTimeDomainResourceAllocList = 1;
        pusch.uciOnPusch.bitMask = RRC_UCI_PUSCH_BETA_OFFSETS_PRESENCE;
        pusch.uciOnPusch.presence = RRC_UCI_PUSCH_BETA_OFFSETS_DYNAMIC_PRESENCE;
    }

    static void fillConfiguredGrant(RrcCfgGrantCfg_t& grant)
    {
        grant.bitMask = 0x1FF;
        grant.uciOnPusch.presence = RRC_CG_UCI_ON_PUSCH_DYNAMIC_PRESENCE;
        grant.uciOnPusch.betaOffset.dynamic.num = 1;
    }

    static void fillSrs(RrcSrsCfg_t& srs)
    {
        srs.numSrsResourceSetAddMod = 3;
        for (unsigned i = 0; i < 3; ++i)
        {
            srs.srsResourceSet[i].presence = static_cast<UINT8>(1U << i | RRC_SRS_PATH_LOSS_REFERENCE_RS_PRESENT);
        }
        srs.numSrsResourceSetRel = srs.numSrsResourceRel = 1;
        srs.numSrsResourceAddMod = 1;
        RrcSrsResource_t& resource = srs.srsResource[0];
        resource.presence = 3;
        resource.presence1 = RRC_SRS_RESOURCE_TYPE_SEMI_PERSISTENT_PERSENCE | RRC_SRS_RESOURCE_TYPE_PERIODIC_PERSENCE;
        resource.resourceType.periodic.period = 1;
        resource.bitMask = 3;
        resource.spatialRelationInfo.presence = RRC_SRS_SPATIAL_RELATION_INFO_SRS_PRESENCE;
    }
};

const std::string initialError = "rrcComposeInitialUplinkBWP Error\r\n";
const std::string resourceError = "rrcComposePucchResource is Error\r\nrrcComposeresourceAdd Error\r\n";
const std::string relationError =
    "rrcComposeSpatialRelationInfo is Error\r\nrrcComposeSpatialRelationInfoToAdd Error\r\n";
const std::string srsResourceError = "rrcComposeSRS_Resource is Error\r\nrrcComposesrs_ResourceSetAddModList Error\r\n";
const std::string dmrsError = "rrcComposeDMRS_UplinkConfigSetup Error\r\n";
const std::string listError = "rrcComposeBWP_Uplink is Error\r\nrrcComposeuplinkBWP_ToAddModList Error\r\n";
const std::string commonError = "rrcComposeBWP_UplinkCommon Error\r\n" + listError;

} // namespace

TEST_F(uplinkFailures, NoneByItself)
{
    EXPECT_EQ(lines(nullptr, VOS_OK), "");
}

TEST_F(uplinkFailures, OfPucchEndAtItsWrapper)
{
    const Case cases[] = {
        {address(rrcComposePucchResourceSet),
         "rrcComposePucchResourceSet is Error\r\nrrcComposeresourceSetToAdd Error\r\n"},
        {address(rrcComposeresourceSetToRel), "rrcComposeresourceSetToRel Error\r\n"},
        {address(rrcComposePucchResource), resourceError},
        {address(rrcComposePUCCH_Resource_format), "rrcComposePUCCH_Resource_format is Error\r\n" + resourceError},
        {address(rrcComposeresourceRel), "rrcComposeresourceRel Error\r\n"},
        {address(rrcComposePUCCH_Config_format1), "rrcComposePUCCH_Config_format1 Error\r\n"},
        {address(rrcComposePUCCH_Config_format2), "rrcComposePUCCH_Config_format2 Error\r\n"},
        {address(rrcComposePUCCH_Config_format3), "rrcComposePUCCH_Config_format3 Error\r\n"},
        {address(rrcComposePUCCH_Config_format4), "rrcComposePUCCH_Config_format4 Error\r\n"},
        {address(rrcComposeSchedReqResourceCfg),
         "rrcComposeSchedReqResourceCfg is Error\r\nrrcComposeSchedulingRequestResourceToAdd Error\r\n"},
        {address(rrcComposeSchedulingRequestResourceToRel), "rrcComposeSchedulingRequestResourceToRel Error\r\n"},
        {address(rrcComposemulti_CSI_PUCCH_ResourceLis), "rrcComposemulti_CSI_PUCCH_ResourceLis Error\r\n"},
        {address(rrcComposeDl_DataToUL_ACK), "rrcComposeDl_DataToUL_ACK Error\r\n"},
        {address(rrcComposeSpatialRelationInfo), relationError},
        {address(rrcComposereferenceSignal), "rrcComposereferenceSignal is Error\r\n" + relationError},
        {address(rrcComposeSpatialRelationInfoToRel), "rrcComposeSpatialRelationInfoToRel Error\r\n"},
        {address(rrcComposePucch_PowerControl), "rrcComposePucch_PowerControl Error\r\n"},
    };
    for (const Case& c : cases)
    {
        EXPECT_EQ(lines(c.failing, VOS_OK), c.lines);
        EXPECT_EQ(element.initialUplinkBWP.m.pusch_ConfigPresent, 1U) << "the members behind are filled";
    }
}

TEST_F(uplinkFailures, OfPucchNotLookedAt)
{
    const Case cases[] = {
        {address(rrcComposePucch_Configsetup), ""},
        {address(rrcComposeformat0), ""},
        {address(rrcComposeformat1), ""},
        {address(rrcComposeformat2), ""},
        {address(rrcComposeformat3), ""},
        {address(rrcComposeformat4), ""},
        {address(rrcComposePUCCH_FormatConfigsetup), ""},
        {address(rrcComposeSchedulingperiodicityAndOffset), ""},
        {address(rrcComposereferenceSignal_srs), ""},
        {address(rrcComposePUCCH_PowerControl_p0_Set), ""},
        {address(rrcComposeP0_Set), "rrcComposeP0_Set is Error\r\n"},
        {address(rrcComposepathlossReferenceRSs), ""},
        {address(rrcComposePUCCH_PathlossReferenceRS), "rrcComposePUCCH_PathlossReferenceRS is Error\r\n"},
    };
    for (const Case& c : cases)
    {
        EXPECT_EQ(lines(c.failing, VOS_OK), c.lines);
    }
}

TEST_F(uplinkFailures, SpatialRelationStopsAtItsReferenceSignal)
{
    RrcPucchSpatialRelationInfo_t record{8, 1, {63}, 3, 7, 1, 1, 31};
    PUCCH_SpatialRelationInfo relation{};
    const Failing fault(address(rrcComposereferenceSignal));
    EXPECT_EQ(rrcComposeSpatialRelationInfo(&context, &relation, &record), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposereferenceSignal is Error\r\n");
    EXPECT_EQ(relation.servingCellId, 31);
    EXPECT_EQ(relation.pucch_PathlossReferenceRS_Id, 0);
    EXPECT_EQ(relation.p0_PUCCH_Id, 0);
    EXPECT_EQ(relation.closedLoopIndex, 0U);
}

TEST_F(uplinkFailures, OfPuschEndAtItsWrapper)
{
    const Case cases[] = {
        {address(rrcComposedmrs_UplinkForPUSCH_MappingTypeA), "rrcComposedmrs_UplinkForPUSCH_MappingTypeA Error\r\n"},
        {address(rrcComposedmrs_UplinkForPUSCH_MappingTypeB), "rrcComposedmrs_UplinkForPUSCH_MappingTypeB Error\r\n"},
        {address(rrcComposepusch_PowerControl), "rrcComposepusch_PowerControl Error\r\n"},
        {address(rrcComposepusch_TimeDomainAllocationList), "rrcComposepusch_TimeDomainAllocationList Error\r\n"},
        {address(rrcComposeuci_OnPUSCH), "rrcComposeuci_OnPUSCH Error\r\n"},
    };
    for (const Case& c : cases)
    {
        EXPECT_EQ(lines(c.failing, VOS_OK), c.lines);
        EXPECT_EQ(element.initialUplinkBWP.pusch_Config.u.setup->m.tp_pi2BPSKPresent, 0U)
            << "later members are left out";
        EXPECT_EQ(element.initialUplinkBWP.m.configuredGrantConfigPresent, 1U) << "the members behind are filled";
    }
}

TEST_F(uplinkFailures, OfHoppingOffsetsAreReportedAsPowerControl)
{
    uplink->initialUplinkBWP.puschCfg.resourceAlloc = 2;
    EXPECT_EQ(lines(address(rrcComposefrequencyHoppingOffsetList), VOS_OK), "rrcComposepusch_PowerControl Error\r\n");
    const PUSCH_Config& pusch = *element.initialUplinkBWP.pusch_Config.u.setup;
    EXPECT_EQ(pusch.m.frequencyHoppingOffsetListsPresent, 1U);
    EXPECT_EQ(pusch.resourceAllocation, 0U);
}

TEST_F(uplinkFailures, OfDmrs)
{
    // PUSCH ends at its first, the configured grant at its only one.
    EXPECT_EQ(lines(address(rrcComposeDMRS_UplinkConfigSetup), VOS_OK),
              dmrsError + "rrcComposedmrs_UplinkForPUSCH_MappingTypeA Error\r\n" + dmrsError);
    EXPECT_EQ(element.initialUplinkBWP.configuredGrantConfig.u.setup->m.frequencyHoppingPresent, 1U);
    EXPECT_EQ(element.initialUplinkBWP.configuredGrantConfig.u.setup->m.mcs_TablePresent, 0U);
    uplink->initialUplinkBWP.puschCfg.bitMask = RRC_PUSCH_CFG_DMRS_MAPPING_TYPEB_PRESENCE;
    EXPECT_EQ(lines(address(rrcComposeDMRS_UplinkConfigSetup), VOS_OK),
              dmrsError + "rrcComposedmrs_UplinkForPUSCH_MappingTypeB Error\r\n" + dmrsError);
}

TEST_F(uplinkFailures, OfPuschNotLookedAt)
{
    const Case cases[] = {
        {address(rrcComposePusch_Configsetup), ""},
        {address(rrcComposeDMRS_UplinkConfigPhaseTrackingRS), ""},
        {address(rrcComposePTRS_UplinkConfigsetup), ""},
        {address(rrcComposeTransformPrecoderDisabled), ""},
        {address(rrcComposeTransformPrecoderEnabled), ""},
        {address(rrcComposetransformPrecodingDisabled), ""},
        {address(rrcComposetransformPrecodingEnabled), ""},
        {address(rrcComposep0_AlphaSets), ""},
        {address(rrcComposeP0PuschAlphaSet), "rrcComposeP0PuschAlphaSet is Error\r\n"},
        {address(rrcComposepathlossReferenceRSToAddMod), ""},
        {address(rrcComposePathlossReferenceRS), "rrcComposePathlossReferenceRS is Error\r\n"},
        {address(rrcComposePathlossReferenceRSSignal), ""},
        {address(rrcComposepathlossReferenceRSToReleaes), ""},
        {address(rrcComposesri_PUSCH_MappingToAddMod), ""},
        {address(rrcComposeSRI_PUSCH_PowerControl), "rrcComposeSRI_PUSCH_PowerControl is Error\r\n"},
        {address(rrcComposesri_PUSCH_MappingToRelease), ""},
        {address(rrcComposeUCI_OnPUSCHsetup), ""},
        {address(rrcComposeBetaOffsets), ""},
        {address(rrcComposeBetaOffsets_dynamic), ""},
        // Dynamic offsets of PUSCH and of the configured grant.
        {address(rrcComposeBetaOffsets_semiStatic),
         "rrcComposeBetaOffsets_semiStatic is Error\r\nrrcComposeBetaOffsets_semiStatic is Error\r\n"},
        // PUSCH-ConfigCommon looks at its list, PUSCH-Config does not.
        {address(rrcComposePUSCH_TimeDomainResourceAllocationSetup),
         "rrcComposePUSCH_TimeDomainResourceAllocationSetup Error\r\n"},
        {address(rrcComposePUSCH_TimeDomainResourceAllocation),
         "rrcComposePUSCH_TimeDomainResourceAllocation is Error\r\n"
         "rrcComposePUSCH_TimeDomainResourceAllocation is Error\r\n"
         "rrcComposePUSCH_TimeDomainResourceAllocationSetup Error\r\n"},
    };
    for (const Case& c : cases)
    {
        EXPECT_EQ(lines(c.failing, VOS_OK), c.lines);
    }
}

TEST_F(uplinkFailures, OfConfiguredGrant)
{
    const Case cases[] = {
        {address(rrcComposeConfiguredGrant_Configsetup), ""},
        {address(rrcComposeConfiguredGrantConfig_uci_OnPUSCH), "rrcComposeConfiguredGrantConfig_uci_OnPUSCH Error\r\n"},
        {address(rrcComposeCG_UCI_OnPUSCHSetup), ""},
        {address(rrcComposeCG_UCI_OnPUSCH_dynamic), ""},
        {address(rrcComposeConfiguredUplinkGrant), ""},
    };
    for (const Case& c : cases)
    {
        EXPECT_EQ(lines(c.failing, VOS_OK), c.lines);
    }
}

TEST_F(uplinkFailures, OfSrsEndAtItsWrapper)
{
    const Case cases[] = {
        {address(rrcComposesrs_ResourceSetToReleaseList), "rrcComposesrs_ResourceSetToReleaseList Error\r\n"},
        {address(rrcComposeSRS_ResourceSet),
         "rrcComposeSRS_ResourceSet is Error\r\nrrcComposesrs_ResourceSetToAddModList Error\r\n"},
        {address(rrcComposesrs_ResourceSetReleaesList), "rrcComposesrs_ResourceSetReleaesList Error\r\n"},
        {address(rrcComposeSRS_Resource), srsResourceError},
        {address(rrcComposeSRS_SpatialRelationInfo),
         "rrcComposeSRS_SpatialRelationInfo is Error\r\n" + srsResourceError},
    };
    for (const Case& c : cases)
    {
        EXPECT_EQ(lines(c.failing, VOS_OK), c.lines);
        EXPECT_EQ(element.initialUplinkBWP.m.beamFailureRecoveryConfigPresent, 1U) << "the members behind are filled";
    }
}

TEST_F(uplinkFailures, OfSrsNotLookedAt)
{
    const Case cases[] = {
        {address(rrcComposeSRS_ConfigSetup), ""},
        {address(rrcComposesrs_ResourceIdList), ""},
        {address(rrcComposesrsResourceSet_resourceType), ""},
        {address(rrcComposeSRS_ResourceSet_resourceType_aperiodic),
         "rrcComposeSRS_ResourceSet_resourceType_aperiodic Error\r\n"},
        {address(rrcComposeSRS_ResourceSet_resourceType_semi), "rrcComposeSRS_ResourceSet_resourceType_semi Error\r\n"},
        {address(rrcComposeSRS_ResourceSet_resourceType_periodic),
         "rrcComposeSRS_ResourceSet_resourceType_periodic Error\r\n"},
        {address(rrcComposepathlossReferenceRS), ""},
        {address(rrcComposeSRS_Resource_transmissionComb), ""},
        {address(rrcComposeSRS_Resource_transmissionComb_n2), ""},
        {address(rrcComposeSRS_Resource_transmissionComb_n4), ""},
        {address(rrcComposeresourceMapping), ""},
        {address(rrcComposeSRS_Resource_freqHopping), ""},
        {address(rrcComposeSRS_Resource_resourceType), ""},
        {address(rrcComposeType_semi_persistent), ""},
        {address(rrcComposeType_periodic), ""},
        {address(rrcComposeSRSreferenceSignal), ""},
    };
    for (const Case& c : cases)
    {
        EXPECT_EQ(lines(c.failing, VOS_OK), c.lines);
    }
}

TEST_F(uplinkFailures, OfTheDedicatedPartStopTheUplink)
{
    const Case cases[] = {
        {address(rrcComposeBWPucch_Config), "rrcComposeBWPPucch_Config Error\r\n"},
        {address(rrcComposeBWPPusch_Config), "rrcComposeBWPPusch_Config Error\r\n"},
        {address(rrcComposeBWPConfiguredGrant_Config), "rrcComposeBWPConfiguredGrant_Config Error\r\n"},
        {address(rrcComposeBWPsrs_Config), "rrcComposeBWPsrs_Config Error\r\n"},
        {address(rrcComposeBWPbeamFailureRecovery_Config), "rrcComposeBWPbeamFailureRecovery_Config Error\r\n"},
        {address(rrcComposeBeamFailureRecovery_ConfigSetup),
         "rrcComposeBeamFailureRecovery_ConfigSetup Error\r\nrrcComposeBWPbeamFailureRecovery_Config Error\r\n"},
        {address(rrcComposeInitialUplinkBWP), ""},
    };
    for (const Case& c : cases)
    {
        EXPECT_EQ(lines(c.failing, VOS_ERROR), c.lines + initialError);
        EXPECT_EQ(element.m.uplinkBWP_ToReleaseListPresent, 0U) << "later members are left out";
    }
}

TEST_F(uplinkFailures, OfTheDedicatedPartStopAnAddedBandwidthPart)
{
    uplink->bitMask = 0;
    uplink->ulBwpAddMod[0].bitMask = RRC_BWP_UL_DEDICATED_PRESENCE;
    EXPECT_EQ(lines(address(rrcComposeInitialUplinkBWP), VOS_ERROR), initialError + listError);
}

TEST_F(uplinkFailures, OfTheCommonPart)
{
    const struct
    {
        const void* failing;
        INT32 result;
        std::string lines;
    } cases[] = {
        {address(rrcComposeGenericParameters), VOS_ERROR, "rrcComposeGenericParameters Error\r\n" + commonError},
        {address(rrcComposeBWPrach_ConfigCommon), VOS_ERROR, "rrcComposeBWPrach_ConfigCommon Error\r\n" + commonError},
        {address(rrcComposeBWPpusch_ConfigCommon), VOS_ERROR,
         "rrcComposeBWPpusch_ConfigCommon Error\r\n" + commonError},
        {address(rrcComposeBWPpucch_ConfigCommon), VOS_ERROR,
         "rrcComposeBWPpucch_ConfigCommon Error\r\n" + commonError},
        {address(rrcComposeBWP_UplinkCommon), VOS_ERROR, commonError},
        {address(rrcComposeBWP_Uplink), VOS_ERROR, listError},
        {address(rrcComposeRACH_Configsetup), VOS_OK, ""},
        // Beam failure recovery does not look at its own.
        {address(rrcComposeRach_ConfigGeneric), VOS_OK, "rrcComposeRach_ConfigGeneric Error\r\n"},
        {address(rrcComposeRach_OccasionAndCB_PreamblesPerSSB), VOS_OK,
         "rrcComposeRach_OccasionAndCB_PreamblesPerSSB Error\r\n"},
        {address(rrcComposeRach_groupBconfigured), VOS_OK, "rrcComposeRach_groupBconfigured Error\r\n"},
        {address(rrcComposeRach_RootSequenceIndex), VOS_OK, "rrcComposeRach_RootSequenceIndex Error\r\n"},
        {address(rrcComposePusch_ConfigCommonsetup), VOS_OK, ""},
        {address(rrcComposePucch_ConfigCommonsetup), VOS_OK, ""},
        {address(rrcComposeRa_Prioritization), VOS_OK, ""},
    };
    for (const auto& [failing, result, expected] : cases)
    {
        EXPECT_EQ(lines(failing, result), expected);
        EXPECT_EQ(element.m.pusch_ServingCellConfigPresent, result == VOS_OK ? 1U : 0U);
    }
}

TEST_F(uplinkFailures, OfGenericParametersStopBeforeTheThreeOptions)
{
    BWP_UplinkCommon common{};
    const Failing fault(address(rrcComposeGenericParameters));
    EXPECT_EQ(rrcComposeBWP_UplinkCommon(&context, &common, &uplink->ulBwpAddMod[0].bwpCommon), VOS_ERROR);
    EXPECT_EQ(common.m.rach_ConfigCommonPresent, 0U);
    EXPECT_EQ(common.m.pusch_ConfigCommonPresent, 0U);
    EXPECT_EQ(common.m.pucch_ConfigCommonPresent, 0U);
}

TEST_F(uplinkFailures, OfTheReleaseListStopTheAddModListAndAllBehind)
{
    EXPECT_EQ(lines(address(rrcComposeuplinkBWP_ToReleaseList), VOS_ERROR),
              "rrcComposeuplinkBWP_ToReleaseList Error\r\n");
    EXPECT_EQ(element.m.uplinkBWP_ToReleaseListPresent, 1U);
    EXPECT_EQ(element.m.uplinkBWP_ToAddModListPresent, 0U);
    EXPECT_EQ(element.m.firstActiveUplinkBWP_IdPresent, 0U);
    EXPECT_EQ(element.m.pusch_ServingCellConfigPresent, 0U);
    EXPECT_EQ(element.m.carrierSwitchingPresent, 0U);
}

TEST_F(uplinkFailures, OfTheServingCellLevel)
{
    const struct
    {
        const void* failing;
        INT32 result;
        std::string lines;
    } cases[] = {
        {address(rrcComposepusch_ServingCellConfig), VOS_ERROR, "rrcComposepusch_ServingCellConfig Error\r\n"},
        {address(rrcComposepusch_ServingCellCfgSetup), VOS_OK, ""},
        {address(rrcComposeodeBlockGroupTransmission), VOS_OK, "rrcComposeodeBlockGroupTransmission Error\r\n"},
        {address(rrcComposeCarrierSwitching), VOS_ERROR, "rrcComposeCarrierSwitching Error\r\n"},
        {address(rrcComposeCarrierSwitchingSetup), VOS_OK, ""},
        {address(rrcComposesrs_TPC_PDCCH_Group), VOS_OK, "rrcComposesrs_TPC_PDCCH_Group Error\r\n"},
        {address(rrcComposesrs_TPC_PDCCH_GroupTypeA), VOS_OK, ""},
        {address(rrcComposeSRS_TPC_PDCCH_Cfg), VOS_OK, "rrcComposeSRS_TPC_PDCCH_Cfg is Error\r\n"},
        {address(rrcComposeSRS_CC_SetIndex), VOS_OK,
         "rrcComposeSRS_CC_SetIndex is Error\r\nrrcComposeSRS_TPC_PDCCH_Cfg is Error\r\n"},
        {address(rrcComposeMonitoringCells), VOS_OK, ""},
    };
    for (const auto& [failing, result, expected] : cases)
    {
        EXPECT_EQ(lines(failing, result), expected);
    }
    uplink->carrierSwitching.presence = RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEB_PRESENCE;
    uplink->carrierSwitching.srsTpcPdcchGroup.typeB.num = 1;
    EXPECT_EQ(lines(address(rrcComposesrs_TPC_PDCCH_GroupTypeB), VOS_OK), "");
    EXPECT_EQ(lines(address(rrcComposeSRS_TPC_PDCCH_Cfg), VOS_OK), "rrcComposeSRS_TPC_PDCCH_Cfg is Error\r\n");
}

TEST_F(uplinkFailures, OfServingCellPdcchAreNotLookedAt)
{
    const auto record = cleared<RrcPdcchServingCellCfg_t>();
    record->bitMask = RRC_PDCCH_SERVING_CELL_CFG_SLOT_FORMATE_IND;
    record->slotFormatInd.numSlotFormatCombAddMod = 1;
    record->slotFormatInd.numSlotFormatCombRel = 1;
    record->slotFormatInd.slotFormatCombAddMod[0].numSlotFormatComb = 1;
    const Case cases[] = {
        {address(rrcComposePdcch_ServingCellCfgSetup), ""},
        {address(rrcComposeSlotFormatIndicator), ""},
        {address(rrcComposeSlotFormatIndSetup), ""},
        {address(rrcComposeSlotFormatCombToAddMod), ""},
        {address(rrcComposeslotFormatComb), "rrcComposeslotFormatComb is Error\r\n"},
        {address(rrcComposeSlotFormatCombinations), ""},
        {address(rrcComposeSlotFormatCombination), "rrcComposeSlotFormatCombination is Error\r\n"},
        {address(rrcComposeSlotFormatCombToRel), ""},
    };
    for (const Case& c : cases)
    {
        const Failing fault(c.failing);
        ServingCellConfig_pdcch_ServingCellConfig choice{};
        EXPECT_EQ(rrcComposePdcch_ServingCellConfig(&context, &choice, record.get()), VOS_OK);
        EXPECT_TRUE(Failing::struck());
        EXPECT_EQ(printed(), c.lines);
    }
}

TEST_F(uplinkFailures, OfServingCellPdsch)
{
    RrcPdschServingCellCfg_t record{};
    record.bitMask = RRC_PDSCH_SERVING_CELL_CFG_CODE_BLOCK_GROUP_TRANMISSION_PRESENCE |
                     RRC_PDSCH_SERVING_CELL_CFG_X_OVERHEAD_PRESENCE;
    const Case cases[] = {
        {address(rrcComposePdsch_ServingCellCfgSetup), ""},
        {address(rrcComposeCodeBlockGroupTransmission), "rrcComposeCodeBlockGroupTransmission Error\r\n"},
        {address(rrcComposePDSCH_CodeBlockGroupTransmissionSetup), ""},
    };
    for (const Case& c : cases)
    {
        const Failing fault(c.failing);
        ServingCellConfig_pdsch_ServingCellConfig choice{};
        EXPECT_EQ(rrcComposePdsch_ServingCellConfig(&context, &choice, &record), VOS_OK);
        EXPECT_TRUE(Failing::struck());
        EXPECT_EQ(printed(), c.lines);
    }
}
