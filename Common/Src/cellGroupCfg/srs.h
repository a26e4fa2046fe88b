// Composers of SRS-Config.
#ifndef SRS_H
#define SRS_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcSrs.h"

INT32 rrcComposeBWPsrs_Config(OSCTXT* pAsnCxt, BWP_UplinkDedicated_srs_Config* pSrs_Config, RrcSrsCfg_t* pRrcSrsCfg);
INT32 rrcComposeSRS_ConfigSetup(OSCTXT* pAsnCxt, SRS_Config* pSRS_Config, RrcSrsCfg_t* pRrcSrsCfg);
INT32 rrcComposesrs_ResourceSetToReleaseList(SRS_Config_srs_ResourceSetToReleaseList* pSrs_ResourceSetToReleaseList,
                                             RrcSrsCfg_t* pRrcSrsCfg);
INT32 rrcComposesrs_ResourceSetToAddModList(OSCTXT* pAsnCxt,
                                            SRS_Config_srs_ResourceSetToAddModList* pSrs_ResourceSetToAddModList,
                                            RrcSrsCfg_t* pRrcSrsCfg);
INT32 rrcComposeSRS_ResourceSet(OSCTXT* pAsnCxt, SRS_ResourceSet* pSRS_ResourceSet,
                                RrcSrsResourceSet_t* pRrcSrsResourceSet);
INT32 rrcComposesrs_ResourceIdList(SRS_ResourceSet_srs_ResourceIdList* pSrs_ResourceIdList,
                                   RrcSrsResourceSet_t* pRrcSrsResourceSet);
INT32 rrcComposesrsResourceSet_resourceType(OSCTXT* pAsnCxt, SRS_ResourceSet_resourceType* pResourceType,
                                            RrcSrsResourceSet_t* pRrcSrsResourceSet);
INT32 rrcComposeSRS_ResourceSet_resourceType_aperiodic(SRS_ResourceSet_resourceType_aperiodic* pAperiodic,
                                                       struct aperiodic_s* pRrcAperiodic);
INT32 rrcComposeSRS_ResourceSet_resourceType_semi(SRS_ResourceSet_resourceType_semi_persistent* pSemi_persistent,
                                                  struct semiPersistent_s* pRrcSemiPersistent);
INT32 rrcComposeSRS_ResourceSet_resourceType_periodic(SRS_ResourceSet_resourceType_periodic* pPeriodic,
                                                      struct periodic_s* pRrcPeriodic);
INT32 rrcComposepathlossReferenceRS(SRS_ResourceSet_pathlossReferenceRS* pPathlossReferenceRS,
                                    RrcSRSPathLossRefRs_t* pRrcSRSPathLossRefRs);
INT32 rrcComposesrs_ResourceSetReleaesList(SRS_Config_srs_ResourceToReleaseList* pSrs_ResourceToReleaseList,
                                           RrcSrsCfg_t* pRrcSrsCfg);
INT32 rrcComposesrs_ResourceSetAddModList(OSCTXT* pAsnCxt,
                                          SRS_Config_srs_ResourceToAddModList* pSrs_ResourceToAddModList,
                                          RrcSrsCfg_t* pRrcSrsCfg);
INT32 rrcComposeSRS_Resource(OSCTXT* pAsnCxt, SRS_Resource* pSRS_Resource, RrcSrsResource_t* pRrcSrsResource);
INT32 rrcComposeSRS_Resource_transmissionComb(OSCTXT* pAsnCxt, SRS_Resource_transmissionComb* pTransmissionComb,
                                              RrcSrsResource_t* pRrcSrsResource);
INT32 rrcComposeSRS_Resource_transmissionComb_n2(SRS_Resource_transmissionComb_n2* pN2,
                                                 RrcSrsResource_t* pRrcSrsResource);
INT32 rrcComposeSRS_Resource_transmissionComb_n4(SRS_Resource_transmissionComb_n4* pN4,
                                                 RrcSrsResource_t* pRrcSrsResource);
INT32 rrcComposeresourceMapping(SRS_Resource_resourceMapping* pResourceMapping,
                                struct resourceMapping_s* pRrcResourceMapping);
INT32 rrcComposeSRS_Resource_freqHopping(SRS_Resource_freqHopping* pFreqHopping, struct freqHopping_s* pRrcFreqHopping);
INT32 rrcComposeSRS_Resource_resourceType(OSCTXT* pAsnCxt, SRS_Resource_resourceType* pResourceType,
                                          RrcSrsResource_t* pRrcSrsResource);
INT32 rrcComposeType_semi_persistent(SRS_Resource_resourceType_semi_persistent* pSemi_persistent,
                                     struct srsSemiPersistent_s* pRrcSemiPersistent);
INT32 rrcComposeType_periodic(SRS_Resource_resourceType_periodic* pPeriodic, struct srsPeriodic_s* pRrcPeriodic);
INT32 rrcComposeSRS_SpatialRelationInfo(OSCTXT* pAsnCxt, SRS_SpatialRelationInfo* pSpatialRelationInfo,
                                        RrcSrsSpatialRelationInfo_t* pRrcSrsSpatialRelationInfo);
INT32 rrcComposeSRSreferenceSignal(OSCTXT* pAsnCxt, SRS_SpatialRelationInfo_referenceSignal* pReferenceSignal,
                                   RrcSrsSpatialRelationInfo_t* pRrcSrsSpatialRelationInfo);

#endif
