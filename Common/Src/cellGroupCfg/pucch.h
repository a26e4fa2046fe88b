// Composers of PUCCH-Config.
#ifndef PUCCH_H
#define PUCCH_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcPucch.h"

INT32 rrcComposeBWPucch_Config(OSCTXT* pAsnCxt, BWP_UplinkDedicated_pucch_Config* pPucch_Config,
                               RrcPucchCfg_t* pRrcPucchCfg);
INT32 rrcComposePucch_Configsetup(OSCTXT* pAsnCxt, PUCCH_Config* pPUCCH_Config, RrcPucchCfg_t* pRrcPucchCfg);
INT32 rrcComposeresourceSetToAdd(OSCTXT* pAsnCxt, PUCCH_Config_resourceSetToAddModList* pResourceSetToAddModList,
                                 RrcPucchCfg_t* pRrcPucchCfg);
INT32 rrcComposePucchResourceSet(PUCCH_ResourceSet* pPUCCH_ResourceSet, RrcPucchResourceSet_t* pRrcPucchResourceSet);
INT32 rrcComposeresourceSetToRel(PUCCH_Config_resourceSetToReleaseList* pResourceSetToReleaseList,
                                 RrcPucchCfg_t* pRrcPucchCfg);
INT32 rrcComposeresourceAdd(OSCTXT* pAsnCxt, PUCCH_Config_resourceToAddModList* pResourceToAddModList,
                            RrcPucchCfg_t* pRrcPucchCfg);
INT32 rrcComposePucchResource(OSCTXT* pAsnCxt, PUCCH_Resource* pPUCCH_Resource, RrcPucchResource_t* pRrcPucchResource);
INT32 rrcComposePUCCH_Resource_format(OSCTXT* pAsnCxt, PUCCH_Resource_format* pFormat,
                                      RrcPucchResource_t* pRrcPucchResource);
INT32 rrcComposeformat0(PUCCH_format0* pFormat0, RrcPucchFormat0_t* pRrcPucchFormat0);
INT32 rrcComposeformat1(PUCCH_format1* pFormat1, RrcPucchFormat1_t* pRrcPucchFormat1);
INT32 rrcComposeformat2(PUCCH_format2* pFormat2, RrcPucchFormat2_t* pRrcPucchFormat2);
INT32 rrcComposeformat3(PUCCH_format3* pFormat3, RrcPucchFormat3_t* pRrcPucchFormat3);
INT32 rrcComposeformat4(PUCCH_format4* pFormat4, RrcPucchFormat4_t* pRrcPucchFormat4);
INT32 rrcComposeresourceRel(PUCCH_Config_resourceToReleaseList* pResourceToReleaseList, RrcPucchCfg_t* pRrcPucchCfg);
INT32 rrcComposePUCCH_Config_format1(OSCTXT* pAsnCxt, PUCCH_Config_format1* pformat1, RrcPucchFormatCfg_t* pRrcformat1);
INT32 rrcComposePUCCH_Config_format2(OSCTXT* pAsnCxt, PUCCH_Config_format2* pformat2, RrcPucchFormatCfg_t* pRrcformat2);
INT32 rrcComposePUCCH_Config_format3(OSCTXT* pAsnCxt, PUCCH_Config_format3* pformat3, RrcPucchFormatCfg_t* pRrcformat3);
INT32 rrcComposePUCCH_Config_format4(OSCTXT* pAsnCxt, PUCCH_Config_format4* pformat4, RrcPucchFormatCfg_t* pRrcformat4);
INT32 rrcComposePUCCH_FormatConfigsetup(PUCCH_FormatConfig* pPUCCH_FormatConfig,
                                        RrcPucchFormatCfg_t* pRrcPucchFormatCfg);
INT32 rrcComposeSchedulingRequestResourceToAdd(
    OSCTXT* pAsnCxt, PUCCH_Config_schedulingRequestResourceToAddModList* pSchedulingRequestResourceToAddModList,
    RrcPucchCfg_t* pRrcPucchCfg);
INT32 rrcComposeSchedReqResourceCfg(SchedulingRequestResourceConfig* pSchedulingRequestResourceConfig,
                                    RrcSchedReqResourceCfg_t* pRrcSchedReqResourceCfg);
INT32 rrcComposeSchedulingperiodicityAndOffset(
    SchedulingRequestResourceConfig_periodicityAndOffset* pPeriodicityAndOffset,
    RrcSchedReqResourceCfg_t* pRrcSchedReqResourceCfg);
INT32 rrcComposeSchedulingRequestResourceToRel(
    PUCCH_Config_schedulingRequestResourceToReleaseList* pSchedulingRequestResourceToReleaseList,
    RrcPucchCfg_t* pRrcPucchCfg);
INT32 rrcComposemulti_CSI_PUCCH_ResourceLis(PUCCH_Config_multi_CSI_PUCCH_ResourceList* pMulti_CSI_PUCCH_ResourceList,
                                            RrcPucchCfg_t* pRrcPucchCfg);
INT32 rrcComposeDl_DataToUL_ACK(PUCCH_Config_dl_DataToUL_ACK* pDl_DataToUL_ACK, RrcPucchCfg_t* pRrcPucchCfg);
INT32 rrcComposeSpatialRelationInfoToAdd(OSCTXT* pAsnCxt,
                                         PUCCH_Config_spatialRelationInfoToAddModList* pSpatialRelationInfoToAddModList,
                                         RrcPucchCfg_t* pRrcPucchCfg);
INT32 rrcComposeSpatialRelationInfo(OSCTXT* pAsnCxt, PUCCH_SpatialRelationInfo* pPUCCH_SpatialRelationInfo,
                                    RrcPucchSpatialRelationInfo_t* pRrcPucchSpatialRelationInfo);
INT32 rrcComposereferenceSignal(OSCTXT* pAsnCxt, PUCCH_SpatialRelationInfo_referenceSignal* pReferenceSignal,
                                RrcPucchSpatialRelationInfo_t* pRrcPucchSpatialRelationInfo);
INT32 rrcComposereferenceSignal_srs(PUCCH_SpatialRelationInfo_referenceSignal_srs* pSrs,
                                    RrcPucchSpatialRelationInfo_t* pRrcPucchSpatialRelationInfo);
INT32 rrcComposeSpatialRelationInfoToRel(
    PUCCH_Config_spatialRelationInfoToReleaseList* pSpatialRelationInfoToReleaseList, RrcPucchCfg_t* pRrcPucchCfg);
INT32 rrcComposePucch_PowerControl(OSCTXT* pAsnCxt, PUCCH_PowerControl* pPucch_PowerControl,
                                   RrcPucchPowerControl_t* pRrcPucchPowerControl);
INT32 rrcComposePUCCH_PowerControl_p0_Set(OSCTXT* pAsnCxt, PUCCH_PowerControl_p0_Set* pP0_Set,
                                          RrcPucchPowerControl_t* pRrcPucchPowerControl);
INT32 rrcComposeP0_Set(P0_PUCCH* pP0_PUCCH, RrcP0Pucch_t* pRrcP0Pucch);
INT32 rrcComposepathlossReferenceRSs(OSCTXT* pAsnCxt, PUCCH_PowerControl_pathlossReferenceRSs* pPathlossReferenceRSs,
                                     RrcPucchPowerControl_t* pRrcPucchPowerControl);
INT32 rrcComposePUCCH_PathlossReferenceRS(PUCCH_PathlossReferenceRS* pPUCCH_PathlossReferenceRS,
                                          RrcPucchPathLossRefRs_t* pRrcPucchPathLossRefRs);

#endif
