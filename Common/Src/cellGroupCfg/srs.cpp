#include "srs.h"

#include "compose.h"

// BWP-UplinkDedicated.srs-Config
INT32 rrcComposeBWPsrs_Config(OSCTXT* pAsnCxt, BWP_UplinkDedicated_srs_Config* pSrs_Config, RrcSrsCfg_t* pRrcSrsCfg)
{
    // What could be built is sent.
    (void)compose::setup(pAsnCxt, pSrs_Config, pRrcSrsCfg, rrcComposeSRS_ConfigSetup);
    return VOS_OK;
}

// SRS-Config
INT32 rrcComposeSRS_ConfigSetup(OSCTXT* pAsnCxt, SRS_Config* pSRS_Config, RrcSrsCfg_t* pRrcSrsCfg)
{
    if (pRrcSrsCfg->numSrsResourceSetRel != 0)
    {
        pSRS_Config->m.srs_ResourceSetToReleaseListPresent = 1;
        RETURN_IF_FAILED(rrcComposesrs_ResourceSetToReleaseList(&pSRS_Config->srs_ResourceSetToReleaseList, pRrcSrsCfg),
                         "rrcComposesrs_ResourceSetToReleaseList Error\r\n");
    }
    if (pRrcSrsCfg->numSrsResourceSetAddMod != 0)
    {
        pSRS_Config->m.srs_ResourceSetToAddModListPresent = 1;
        RETURN_IF_FAILED(
            rrcComposesrs_ResourceSetToAddModList(pAsnCxt, &pSRS_Config->srs_ResourceSetToAddModList, pRrcSrsCfg),
            "rrcComposesrs_ResourceSetToAddModList Error\r\n");
    }
    if (pRrcSrsCfg->numSrsResourceRel != 0)
    {
        pSRS_Config->m.srs_ResourceToReleaseListPresent = 1;
        RETURN_IF_FAILED(rrcComposesrs_ResourceSetReleaesList(&pSRS_Config->srs_ResourceToReleaseList, pRrcSrsCfg),
                         "rrcComposesrs_ResourceSetReleaesList Error\r\n");
    }
    if (pRrcSrsCfg->numSrsResourceAddMod != 0)
    {
        pSRS_Config->m.srs_ResourceToAddModListPresent = 1;
        RETURN_IF_FAILED(
            rrcComposesrs_ResourceSetAddModList(pAsnCxt, &pSRS_Config->srs_ResourceToAddModList, pRrcSrsCfg),
            "rrcComposesrs_ResourceSetAddModList Error\r\n");
    }
    COPY_IF(pRrcSrsCfg->bitMask & RRC_SRS_CFG_TPC_ACCUMULATION_PRESENCE, pSRS_Config, tpc_Accumulation,
            pRrcSrsCfg->tpcAccumulation);
    return VOS_OK;
}

// SRS-Config.srs-ResourceSetToReleaseList
INT32 rrcComposesrs_ResourceSetToReleaseList(SRS_Config_srs_ResourceSetToReleaseList* pSrs_ResourceSetToReleaseList,
                                             RrcSrsCfg_t* pRrcSrsCfg)
{
    compose::array(pSrs_ResourceSetToReleaseList, pRrcSrsCfg->numSrsResourceSetRel, pRrcSrsCfg->srsResourceSetId);
    return VOS_OK;
}

// SRS-Config.srs-ResourceSetToAddModList
INT32 rrcComposesrs_ResourceSetToAddModList(OSCTXT* pAsnCxt,
                                            SRS_Config_srs_ResourceSetToAddModList* pSrs_ResourceSetToAddModList,
                                            RrcSrsCfg_t* pRrcSrsCfg)
{
    return compose::list<SRS_ResourceSet>(pAsnCxt, pSrs_ResourceSetToAddModList, pRrcSrsCfg->numSrsResourceSetAddMod,
                                          pRrcSrsCfg->srsResourceSet, rrcComposeSRS_ResourceSet,
                                          {"pNode Or pItem is NULL\r\n", "rrcComposeSRS_ResourceSet is Error\r\n"});
}

// SRS-Config.srs-ResourceSetToAddModList[]
INT32 rrcComposeSRS_ResourceSet(OSCTXT* pAsnCxt, SRS_ResourceSet* pSRS_ResourceSet,
                                RrcSrsResourceSet_t* pRrcSrsResourceSet)
{
    const UINT8 presence = pRrcSrsResourceSet->presence;
    assign(pSRS_ResourceSet->srs_ResourceSetId, pRrcSrsResourceSet->srsResourceSetId);
    if (pRrcSrsResourceSet->numSrsResourceId != 0)
    {
        pSRS_ResourceSet->m.srs_ResourceIdListPresent = 1;
        (void)rrcComposesrs_ResourceIdList(&pSRS_ResourceSet->srs_ResourceIdList, pRrcSrsResourceSet);
    }
    // Once more in any case: a list that is not sent has its count set to 0.
    (void)rrcComposesrs_ResourceIdList(&pSRS_ResourceSet->srs_ResourceIdList, pRrcSrsResourceSet);
    (void)rrcComposesrsResourceSet_resourceType(pAsnCxt, &pSRS_ResourceSet->resourceType, pRrcSrsResourceSet);
    assign(pSRS_ResourceSet->usage, pRrcSrsResourceSet->usage);
    COPY_IF(presence & RRC_SRS_RESOURCE_SET_ALPHA_PERSENCE, pSRS_ResourceSet, alpha, pRrcSrsResourceSet->Alpha);
    COPY_IF(presence & RRC_SRS_RESOURCE_SET_P0_PERSENCE, pSRS_ResourceSet, p0, pRrcSrsResourceSet->p0);
    if (presence & RRC_SRS_PATH_LOSS_REFERENCE_RS_PRESENT)
    {
        pSRS_ResourceSet->m.pathlossReferenceRSPresent = 1;
        (void)rrcComposepathlossReferenceRS(&pSRS_ResourceSet->pathlossReferenceRS, &pRrcSrsResourceSet->pathLossRefRs);
    }
    COPY_IF(presence & RRC_SRS_RESOURCE_SET_POWER_CTL_ADJ_PERSENCE, pSRS_ResourceSet, srs_PowerControlAdjustmentStates,
            pRrcSrsResourceSet->srsPowerControlAdjustmentStates);
    return VOS_OK;
}

// SRS-ResourceSet.srs-ResourceIdList
INT32 rrcComposesrs_ResourceIdList(SRS_ResourceSet_srs_ResourceIdList* pSrs_ResourceIdList,
                                   RrcSrsResourceSet_t* pRrcSrsResourceSet)
{
    compose::array(pSrs_ResourceIdList, pRrcSrsResourceSet->numSrsResourceId, pRrcSrsResourceSet->srsResourceId);
    return VOS_OK;
}

// SRS-ResourceSet.resourceType
INT32 rrcComposesrsResourceSet_resourceType(OSCTXT* pAsnCxt, SRS_ResourceSet_resourceType* pResourceType,
                                            RrcSrsResourceSet_t* pRrcSrsResourceSet)
{
    const UINT8 presence = pRrcSrsResourceSet->presence;
    if (presence & RRC_SRS_RESOURCE_SET_TYPE_APERIODIC_PERSENCE)
    {
        RETURN_IF_FAILED(compose::alternative(pAsnCxt, pResourceType, T_SRS_ResourceSet_resourceType_aperiodic,
                                              pResourceType->u.aperiodic, &pRrcSrsResourceSet->resourceType.aperiodic,
                                              rrcComposeSRS_ResourceSet_resourceType_aperiodic),
                         "rrcComposeSRS_ResourceSet_resourceType_aperiodic Error\r\n");
    }
    if (presence & RRC_SRS_RESOURCE_SET_TYPE_SEMI_PERSISTENT_PERSENCE)
    {
        RETURN_IF_FAILED(compose::alternative(pAsnCxt, pResourceType, T_SRS_ResourceSet_resourceType_semi_persistent,
                                              pResourceType->u.semi_persistent,
                                              &pRrcSrsResourceSet->resourceType.semiPersistent,
                                              rrcComposeSRS_ResourceSet_resourceType_semi),
                         "rrcComposeSRS_ResourceSet_resourceType_semi Error\r\n");
    }
    if (presence & RRC_SRS_RESOURCE_SET_TYPE_PERIODIC_PERSENCE)
    {
        RETURN_IF_FAILED(compose::alternative(pAsnCxt, pResourceType, T_SRS_ResourceSet_resourceType_periodic,
                                              pResourceType->u.periodic, &pRrcSrsResourceSet->resourceType.periodic,
                                              rrcComposeSRS_ResourceSet_resourceType_periodic),
                         "rrcComposeSRS_ResourceSet_resourceType_periodic Error\r\n");
    }
    return VOS_OK;
}

// SRS-ResourceSet.resourceType.aperiodic
INT32 rrcComposeSRS_ResourceSet_resourceType_aperiodic(SRS_ResourceSet_resourceType_aperiodic* pAperiodic,
                                                       struct aperiodic_s* pRrcAperiodic)
{
    assign(pAperiodic->aperiodicSRS_ResourceTrigger, pRrcAperiodic->aperiodicSrsResourceTrigger);
    COPY_IF(pRrcAperiodic->bitMask & RRC_SRS_RESOURCE_SET_APERIODIC_CSI_RS_PRESENCE, pAperiodic, csi_RS,
            pRrcAperiodic->csiRsResourceId);
    COPY_IF(pRrcAperiodic->bitMask & RRC_SRS_RESOURCE_SET_APERIODIC_SLOT_OFFSET_PRESENCE, pAperiodic, slotOffset,
            pRrcAperiodic->slotOffset);
    return VOS_OK;
}

// SRS-ResourceSet.resourceType.semi-persistent
INT32 rrcComposeSRS_ResourceSet_resourceType_semi(SRS_ResourceSet_resourceType_semi_persistent* pSemi_persistent,
                                                  struct semiPersistent_s* pRrcSemiPersistent)
{
    COPY_IF(pRrcSemiPersistent->bitMask & RRC_SRS_RESOURCE_SET_SEMI_PERSISTENT_CSI_RS_PRESENCE, pSemi_persistent,
            associatedCSI_RS, pRrcSemiPersistent->associatedCsiRsId);
    return VOS_OK;
}

// SRS-ResourceSet.resourceType.periodic
INT32 rrcComposeSRS_ResourceSet_resourceType_periodic(SRS_ResourceSet_resourceType_periodic* pPeriodic,
                                                      struct periodic_s* pRrcPeriodic)
{
    COPY_IF(pRrcPeriodic->bitMask & RRC_SRS_RESOURCE_SET_PERIODIC_CSI_RS_PRESENCE, pPeriodic, associatedCSI_RS,
            pRrcPeriodic->associatedCsiRsId);
    return VOS_OK;
}

// SRS-ResourceSet.pathlossReferenceRS
INT32 rrcComposepathlossReferenceRS(SRS_ResourceSet_pathlossReferenceRS* pPathlossReferenceRS,
                                    RrcSRSPathLossRefRs_t* pRrcSRSPathLossRefRs)
{
    CHOOSE_IF(pRrcSRSPathLossRefRs->presence & RRC_SRS_PATH_LOSS_REF_RS_SSB_IDX_PRESENCE, pPathlossReferenceRS,
              SRS_ResourceSet_pathlossReferenceRS, ssb_Index, pRrcSRSPathLossRefRs->u.ssbIdx);
    CHOOSE_IF(pRrcSRSPathLossRefRs->presence & RRC_SRS_PATH_LOSS_REF_RS_CSI_IDX_PRESENCE, pPathlossReferenceRS,
              SRS_ResourceSet_pathlossReferenceRS, csi_RS_Index, pRrcSRSPathLossRefRs->u.csiRsIdx);
    return VOS_OK;
}

// SRS-Config.srs-ResourceToReleaseList: resources, not sets
INT32 rrcComposesrs_ResourceSetReleaesList(SRS_Config_srs_ResourceToReleaseList* pSrs_ResourceToReleaseList,
                                           RrcSrsCfg_t* pRrcSrsCfg)
{
    compose::array(pSrs_ResourceToReleaseList, pRrcSrsCfg->numSrsResourceRel, pRrcSrsCfg->srsResourceId);
    return VOS_OK;
}

// SRS-Config.srs-ResourceToAddModList: resources, not sets
INT32 rrcComposesrs_ResourceSetAddModList(OSCTXT* pAsnCxt,
                                          SRS_Config_srs_ResourceToAddModList* pSrs_ResourceToAddModList,
                                          RrcSrsCfg_t* pRrcSrsCfg)
{
    return compose::list<SRS_Resource>(pAsnCxt, pSrs_ResourceToAddModList, pRrcSrsCfg->numSrsResourceAddMod,
                                       pRrcSrsCfg->srsResource, rrcComposeSRS_Resource,
                                       {"pNode Or pItem is NULL\r\n", "rrcComposeSRS_Resource is Error\r\n"});
}

// SRS-Config.srs-ResourceToAddModList[]
INT32 rrcComposeSRS_Resource(OSCTXT* pAsnCxt, SRS_Resource* pSRS_Resource, RrcSrsResource_t* pRrcSrsResource)
{
    assign(pSRS_Resource->srs_ResourceId, pRrcSrsResource->srsResourceId);
    assign(pSRS_Resource->nrofSRS_Ports, pRrcSrsResource->nrofSrsPotrs);
    COPY_IF(pRrcSrsResource->bitMask & RRC_SRS_RESOURCE_PTRS_PORT_IDX_PRESENCE, pSRS_Resource, ptrs_PortIndex,
            pRrcSrsResource->ptrsPortIdx);
    (void)rrcComposeSRS_Resource_transmissionComb(pAsnCxt, &pSRS_Resource->transmissionComb, pRrcSrsResource);
    (void)rrcComposeresourceMapping(&pSRS_Resource->resourceMapping, &pRrcSrsResource->resourceMapping);
    assign(pSRS_Resource->freqDomainPosition, pRrcSrsResource->freqDomainPostion);
    assign(pSRS_Resource->freqDomainShift, pRrcSrsResource->freqDomainShift);
    (void)rrcComposeSRS_Resource_freqHopping(&pSRS_Resource->freqHopping, &pRrcSrsResource->freqHopping);
    assign(pSRS_Resource->groupOrSequenceHopping, pRrcSrsResource->groupOrSeqHopping);
    (void)rrcComposeSRS_Resource_resourceType(pAsnCxt, &pSRS_Resource->resourceType, pRrcSrsResource);
    assign(pSRS_Resource->sequenceId, pRrcSrsResource->seqId);
    if (pRrcSrsResource->bitMask & RRC_SRS_RESOURCE_PTRS_SPATIAL_RELATION_INFO_PRESENCE)
    {
        pSRS_Resource->m.spatialRelationInfoPresent = 1;
        RETURN_IF_FAILED(rrcComposeSRS_SpatialRelationInfo(pAsnCxt, &pSRS_Resource->spatialRelationInfo,
                                                           &pRrcSrsResource->spatialRelationInfo),
                         "rrcComposeSRS_SpatialRelationInfo is Error\r\n");
    }
    return VOS_OK;
}

// SRS-Resource.transmissionComb
INT32 rrcComposeSRS_Resource_transmissionComb(OSCTXT* pAsnCxt, SRS_Resource_transmissionComb* pTransmissionComb,
                                              RrcSrsResource_t* pRrcSrsResource)
{
    if (pRrcSrsResource->presence & RRC_SRS_RESOURCE_TRANSMISSION_COMB_N2_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pTransmissionComb, T_SRS_Resource_transmissionComb_n2,
                                   pTransmissionComb->u.n2, pRrcSrsResource,
                                   rrcComposeSRS_Resource_transmissionComb_n2);
    }
    if (pRrcSrsResource->presence & RRC_SRS_RESOURCE_TRANSMISSION_COMB_N4_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pTransmissionComb, T_SRS_Resource_transmissionComb_n4,
                                   pTransmissionComb->u.n4, pRrcSrsResource,
                                   rrcComposeSRS_Resource_transmissionComb_n4);
    }
    return VOS_OK;
}

// SRS-Resource.transmissionComb.n2
INT32 rrcComposeSRS_Resource_transmissionComb_n2(SRS_Resource_transmissionComb_n2* pN2,
                                                 RrcSrsResource_t* pRrcSrsResource)
{
    assign(pN2->combOffset_n2, pRrcSrsResource->transmissionComb.n2.combOffsetN2);
    assign(pN2->cyclicShift_n2, pRrcSrsResource->transmissionComb.n2.cyclicShiftN2);
    return VOS_OK;
}

// SRS-Resource.transmissionComb.n4
INT32 rrcComposeSRS_Resource_transmissionComb_n4(SRS_Resource_transmissionComb_n4* pN4,
                                                 RrcSrsResource_t* pRrcSrsResource)
{
    assign(pN4->combOffset_n4, pRrcSrsResource->transmissionComb.n4.combOffsetN4);
    assign(pN4->cyclicShift_n4, pRrcSrsResource->transmissionComb.n4.cyclicShiftN4);
    return VOS_OK;
}

// SRS-Resource.resourceMapping
INT32 rrcComposeresourceMapping(SRS_Resource_resourceMapping* pResourceMapping,
                                struct resourceMapping_s* pRrcResourceMapping)
{
    assign(pResourceMapping->startPosition, pRrcResourceMapping->startPos);
    assign(pResourceMapping->nrofSymbols, pRrcResourceMapping->nfofSymbols);
    assign(pResourceMapping->repetitionFactor, pRrcResourceMapping->repetitionFactor);
    return VOS_OK;
}

// SRS-Resource.freqHopping
INT32 rrcComposeSRS_Resource_freqHopping(SRS_Resource_freqHopping* pFreqHopping, struct freqHopping_s* pRrcFreqHopping)
{
    assign(pFreqHopping->c_SRS, pRrcFreqHopping->cSrs);
    assign(pFreqHopping->b_SRS, pRrcFreqHopping->bSrs);
    assign(pFreqHopping->b_hop, pRrcFreqHopping->bHop);
    return VOS_OK;
}

// SRS-Resource.resourceType
INT32 rrcComposeSRS_Resource_resourceType(OSCTXT* pAsnCxt, SRS_Resource_resourceType* pResourceType,
                                          RrcSrsResource_t* pRrcSrsResource)
{
    if (pRrcSrsResource->presence1 & RRC_SRS_RESOURCE_TYPE_APERIODIC_PERSENCE)
    {
        // Has no members: the encoder sends the empty element for the null pointer.
        pResourceType->t = T_SRS_Resource_resourceType_aperiodic;
        pResourceType->u.aperiodic = nullptr;
    }
    if (pRrcSrsResource->presence1 & RRC_SRS_RESOURCE_TYPE_SEMI_PERSISTENT_PERSENCE)
    {
        (void)compose::alternative(pAsnCxt, pResourceType, T_SRS_Resource_resourceType_semi_persistent,
                                   pResourceType->u.semi_persistent, &pRrcSrsResource->resourceType.semiPersistent,
                                   rrcComposeType_semi_persistent);
    }
    if (pRrcSrsResource->presence1 & RRC_SRS_RESOURCE_TYPE_PERIODIC_PERSENCE)
    {
        (void)compose::alternative(pAsnCxt, pResourceType, T_SRS_Resource_resourceType_periodic,
                                   pResourceType->u.periodic, &pRrcSrsResource->resourceType.periodic,
                                   rrcComposeType_periodic);
    }
    return VOS_OK;
}

namespace
{

// SRS-PeriodicityAndOffset: up to sl160 the low 8 bits of the offset
void periodicityAndOffset(SRS_PeriodicityAndOffset* pPeriodicityAndOffset, UINT8 period, UINT16 offset)
{
    pPeriodicityAndOffset->t = period;
    switch (period)
    {
    case T_SRS_PeriodicityAndOffset_sl1:
        break;
    case T_SRS_PeriodicityAndOffset_sl2:
        assign(pPeriodicityAndOffset->u.sl2, offset);
        break;
    case T_SRS_PeriodicityAndOffset_sl4:
        assign(pPeriodicityAndOffset->u.sl4, offset);
        break;
    case T_SRS_PeriodicityAndOffset_sl5:
        assign(pPeriodicityAndOffset->u.sl5, offset);
        break;
    case T_SRS_PeriodicityAndOffset_sl8:
        assign(pPeriodicityAndOffset->u.sl8, offset);
        break;
    case T_SRS_PeriodicityAndOffset_sl10:
        assign(pPeriodicityAndOffset->u.sl10, offset);
        break;
    case T_SRS_PeriodicityAndOffset_sl16:
        assign(pPeriodicityAndOffset->u.sl16, offset);
        break;
    case T_SRS_PeriodicityAndOffset_sl20:
        assign(pPeriodicityAndOffset->u.sl20, offset);
        break;
    case T_SRS_PeriodicityAndOffset_sl32:
        assign(pPeriodicityAndOffset->u.sl32, offset);
        break;
    case T_SRS_PeriodicityAndOffset_sl40:
        assign(pPeriodicityAndOffset->u.sl40, offset);
        break;
    case T_SRS_PeriodicityAndOffset_sl64:
        assign(pPeriodicityAndOffset->u.sl64, offset);
        break;
    case T_SRS_PeriodicityAndOffset_sl80:
        assign(pPeriodicityAndOffset->u.sl80, offset);
        break;
    case T_SRS_PeriodicityAndOffset_sl160:
        assign(pPeriodicityAndOffset->u.sl160, offset);
        break;
    case T_SRS_PeriodicityAndOffset_sl320:
        assign(pPeriodicityAndOffset->u.sl320, offset);
        break;
    case T_SRS_PeriodicityAndOffset_sl640:
        assign(pPeriodicityAndOffset->u.sl640, offset);
        break;
    case T_SRS_PeriodicityAndOffset_sl1280:
        assign(pPeriodicityAndOffset->u.sl1280, offset);
        break;
    case T_SRS_PeriodicityAndOffset_sl2560:
        assign(pPeriodicityAndOffset->u.sl2560, offset);
        break;
    default:
        VOS_Printf("No SRS_PeriodicityAndOffset_PR\n");
        break;
    }
}

} // namespace

// SRS-Resource.resourceType.semi-persistent
INT32 rrcComposeType_semi_persistent(SRS_Resource_resourceType_semi_persistent* pSemi_persistent,
                                     struct srsSemiPersistent_s* pRrcSemiPersistent)
{
    periodicityAndOffset(&pSemi_persistent->periodicityAndOffset_sp, pRrcSemiPersistent->period,
                         pRrcSemiPersistent->offset);
    return VOS_OK;
}

// SRS-Resource.resourceType.periodic
INT32 rrcComposeType_periodic(SRS_Resource_resourceType_periodic* pPeriodic, struct srsPeriodic_s* pRrcPeriodic)
{
    periodicityAndOffset(&pPeriodic->periodicityAndOffset_p, pRrcPeriodic->period, pRrcPeriodic->offset);
    return VOS_OK;
}

// SRS-Resource.spatialRelationInfo
INT32 rrcComposeSRS_SpatialRelationInfo(OSCTXT* pAsnCxt, SRS_SpatialRelationInfo* pSpatialRelationInfo,
                                        RrcSrsSpatialRelationInfo_t* pRrcSrsSpatialRelationInfo)
{
    COPY_IF(pRrcSrsSpatialRelationInfo->bitMask & RRC_SRS_SERVING_CELL_ID, pSpatialRelationInfo, servingCellId,
            pRrcSrsSpatialRelationInfo->servingCellId);
    (void)rrcComposeSRSreferenceSignal(pAsnCxt, &pSpatialRelationInfo->referenceSignal, pRrcSrsSpatialRelationInfo);
    return VOS_OK;
}

// SRS-SpatialRelationInfo.referenceSignal
INT32 rrcComposeSRSreferenceSignal(OSCTXT* pAsnCxt, SRS_SpatialRelationInfo_referenceSignal* pReferenceSignal,
                                   RrcSrsSpatialRelationInfo_t* pRrcSrsSpatialRelationInfo)
{
    const UINT8 presence = pRrcSrsSpatialRelationInfo->presence;
    CHOOSE_IF(presence & RRC_SRS_SPATIAL_RELATION_INFO_SSB_PRESENCE, pReferenceSignal,
              SRS_SpatialRelationInfo_referenceSignal, ssb_Index, pRrcSrsSpatialRelationInfo->refSig.ssbIdx);
    CHOOSE_IF(presence & RRC_SRS_SPATIAL_RELATION_INFO_CSI_RS_PRESENCE, pReferenceSignal,
              SRS_SpatialRelationInfo_referenceSignal, csi_RS_Index, pRrcSrsSpatialRelationInfo->refSig.csiRsIdx);
    if (presence & RRC_SRS_SPATIAL_RELATION_INFO_SRS_PRESENCE)
    {
        auto* const pSrs = compose::choose(pAsnCxt, pReferenceSignal, T_SRS_SpatialRelationInfo_referenceSignal_srs,
                                           pReferenceSignal->u.srs);
        if (pSrs != nullptr)
        {
            assign(pSrs->resourceId, pRrcSrsSpatialRelationInfo->refSig.srs.resourceId);
            assign(pSrs->uplinkBWP, pRrcSrsSpatialRelationInfo->refSig.srs.ulBwpId);
        }
    }
    return VOS_OK;
}
