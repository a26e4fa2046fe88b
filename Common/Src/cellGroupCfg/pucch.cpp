#include "pucch.h"

#include "compose.h"

// BWP-UplinkDedicated.pucch-Config
INT32 rrcComposeBWPucch_Config(OSCTXT* pAsnCxt, BWP_UplinkDedicated_pucch_Config* pPucch_Config,
                               RrcPucchCfg_t* pRrcPucchCfg)
{
    // What could be built is sent.
    (void)compose::setup(pAsnCxt, pPucch_Config, pRrcPucchCfg, rrcComposePucch_Configsetup);
    return VOS_OK;
}

// PUCCH-Config
INT32 rrcComposePucch_Configsetup(OSCTXT* pAsnCxt, PUCCH_Config* pPUCCH_Config, RrcPucchCfg_t* pRrcPucchCfg)
{
    if (pRrcPucchCfg->numResourceSetAddMod > 0)
    {
        pPUCCH_Config->m.resourceSetToAddModListPresent = 1;
        RETURN_IF_FAILED(rrcComposeresourceSetToAdd(pAsnCxt, &pPUCCH_Config->resourceSetToAddModList, pRrcPucchCfg),
                         "rrcComposeresourceSetToAdd Error\r\n");
    }
    if (pRrcPucchCfg->numResourceSetRel > 0)
    {
        pPUCCH_Config->m.resourceSetToReleaseListPresent = 1;
        RETURN_IF_FAILED(rrcComposeresourceSetToRel(&pPUCCH_Config->resourceSetToReleaseList, pRrcPucchCfg),
                         "rrcComposeresourceSetToRel Error\r\n");
    }
    if (pRrcPucchCfg->numResourceAddMod > 0)
    {
        pPUCCH_Config->m.resourceToAddModListPresent = 1;
        RETURN_IF_FAILED(rrcComposeresourceAdd(pAsnCxt, &pPUCCH_Config->resourceToAddModList, pRrcPucchCfg),
                         "rrcComposeresourceAdd Error\r\n");
    }
    if (pRrcPucchCfg->numResourceRel > 0)
    {
        pPUCCH_Config->m.resourceToReleaseListPresent = 1;
        RETURN_IF_FAILED(rrcComposeresourceRel(&pPUCCH_Config->resourceToReleaseList, pRrcPucchCfg),
                         "rrcComposeresourceRel Error\r\n");
    }
    if (pRrcPucchCfg->bitMask & RRC_PUCCH_CFG_FORMAT1_PRESENCE)
    {
        pPUCCH_Config->m.format1Present = 1;
        RETURN_IF_FAILED(rrcComposePUCCH_Config_format1(pAsnCxt, &pPUCCH_Config->format1, &pRrcPucchCfg->format1),
                         "rrcComposePUCCH_Config_format1 Error\r\n");
    }
    if (pRrcPucchCfg->bitMask & RRC_PUCCH_CFG_FORMAT2_PRESENCE)
    {
        pPUCCH_Config->m.format2Present = 1;
        RETURN_IF_FAILED(rrcComposePUCCH_Config_format2(pAsnCxt, &pPUCCH_Config->format2, &pRrcPucchCfg->format2),
                         "rrcComposePUCCH_Config_format2 Error\r\n");
    }
    if (pRrcPucchCfg->bitMask & RRC_PUCCH_CFG_FORMAT3_PRESENCE)
    {
        pPUCCH_Config->m.format3Present = 1;
        RETURN_IF_FAILED(rrcComposePUCCH_Config_format3(pAsnCxt, &pPUCCH_Config->format3, &pRrcPucchCfg->format3),
                         "rrcComposePUCCH_Config_format3 Error\r\n");
    }
    if (pRrcPucchCfg->bitMask & RRC_PUCCH_CFG_FORMAT4_PRESENCE)
    {
        pPUCCH_Config->m.format4Present = 1;
        RETURN_IF_FAILED(rrcComposePUCCH_Config_format4(pAsnCxt, &pPUCCH_Config->format4, &pRrcPucchCfg->format4),
                         "rrcComposePUCCH_Config_format4 Error\r\n");
    }
    if (pRrcPucchCfg->numSchedReqResourceCfgAddMod > 0)
    {
        pPUCCH_Config->m.schedulingRequestResourceToAddModListPresent = 1;
        RETURN_IF_FAILED(rrcComposeSchedulingRequestResourceToAdd(
                             pAsnCxt, &pPUCCH_Config->schedulingRequestResourceToAddModList, pRrcPucchCfg),
                         "rrcComposeSchedulingRequestResourceToAdd Error\r\n");
    }
    if (pRrcPucchCfg->numSchedReqResourceCfgRel > 0)
    {
        pPUCCH_Config->m.schedulingRequestResourceToReleaseListPresent = 1;
        RETURN_IF_FAILED(rrcComposeSchedulingRequestResourceToRel(
                             &pPUCCH_Config->schedulingRequestResourceToReleaseList, pRrcPucchCfg),
                         "rrcComposeSchedulingRequestResourceToRel Error\r\n");
    }
    if (pRrcPucchCfg->numMultiCsiPucchResourceId > 0)
    {
        pPUCCH_Config->m.multi_CSI_PUCCH_ResourceListPresent = 1;
        RETURN_IF_FAILED(
            rrcComposemulti_CSI_PUCCH_ResourceLis(&pPUCCH_Config->multi_CSI_PUCCH_ResourceList, pRrcPucchCfg),
            "rrcComposemulti_CSI_PUCCH_ResourceLis Error\r\n");
    }
    if (pRrcPucchCfg->numDlData2UlACK > 0)
    {
        pPUCCH_Config->m.dl_DataToUL_ACKPresent = 1;
        RETURN_IF_FAILED(rrcComposeDl_DataToUL_ACK(&pPUCCH_Config->dl_DataToUL_ACK, pRrcPucchCfg),
                         "rrcComposeDl_DataToUL_ACK Error\r\n");
    }
    if (pRrcPucchCfg->numSpatialRelationInfoAddMod > 0)
    {
        pPUCCH_Config->m.spatialRelationInfoToAddModListPresent = 1;
        RETURN_IF_FAILED(
            rrcComposeSpatialRelationInfoToAdd(pAsnCxt, &pPUCCH_Config->spatialRelationInfoToAddModList, pRrcPucchCfg),
            "rrcComposeSpatialRelationInfoToAdd Error\r\n");
    }
    if (pRrcPucchCfg->numSpatialRelationInfoRel > 0)
    {
        pPUCCH_Config->m.spatialRelationInfoToReleaseListPresent = 1;
        RETURN_IF_FAILED(
            rrcComposeSpatialRelationInfoToRel(&pPUCCH_Config->spatialRelationInfoToReleaseList, pRrcPucchCfg),
            "rrcComposeSpatialRelationInfoToRel Error\r\n");
    }
    if (pRrcPucchCfg->bitMask & RRC_PUCCH_CFG_POWER_CONTROL_PRESENCE)
    {
        pPUCCH_Config->m.pucch_PowerControlPresent = 1;
        RETURN_IF_FAILED(
            rrcComposePucch_PowerControl(pAsnCxt, &pPUCCH_Config->pucch_PowerControl, &pRrcPucchCfg->pucchPowerControl),
            "rrcComposePucch_PowerControl Error\r\n");
    }
    return VOS_OK;
}

// PUCCH-Config.resourceSetToAddModList
INT32 rrcComposeresourceSetToAdd(OSCTXT* pAsnCxt, PUCCH_Config_resourceSetToAddModList* pResourceSetToAddModList,
                                 RrcPucchCfg_t* pRrcPucchCfg)
{
    return compose::list<PUCCH_ResourceSet>(pAsnCxt, pResourceSetToAddModList, pRrcPucchCfg->numResourceSetAddMod,
                                            pRrcPucchCfg->resourceSet, rrcComposePucchResourceSet,
                                            {"pNode Or pItem is NULL\r\n", "rrcComposePucchResourceSet is Error\r\n"});
}

// PUCCH-Config.resourceSetToAddModList[]
INT32 rrcComposePucchResourceSet(PUCCH_ResourceSet* pPUCCH_ResourceSet, RrcPucchResourceSet_t* pRrcPucchResourceSet)
{
    assign(pPUCCH_ResourceSet->pucch_ResourceSetId, pRrcPucchResourceSet->pucchResourceSetId);
    compose::array(&pPUCCH_ResourceSet->resourceList, pRrcPucchResourceSet->numResourceList,
                   pRrcPucchResourceSet->pucchResourceId);
    COPY_IF(pRrcPucchResourceSet->bitMask & RRC_PUCCH_RESOURCE_SET_MAX_PAYLOAD_MINUS1_PRESENCE, pPUCCH_ResourceSet,
            maxPayloadMinus1, pRrcPucchResourceSet->maxPayloadMinus1);
    return VOS_OK;
}

// PUCCH-Config.resourceSetToReleaseList
INT32 rrcComposeresourceSetToRel(PUCCH_Config_resourceSetToReleaseList* pResourceSetToReleaseList,
                                 RrcPucchCfg_t* pRrcPucchCfg)
{
    // As many ids as there are resource sets to add; where more are released, the others go out as 0.
    pResourceSetToReleaseList->n = pRrcPucchCfg->numResourceSetRel;
    compose::entries(pResourceSetToReleaseList->elem, pRrcPucchCfg->numResourceSetAddMod, pRrcPucchCfg->resourceSetId);
    return VOS_OK;
}

// PUCCH-Config.resourceToAddModList
INT32 rrcComposeresourceAdd(OSCTXT* pAsnCxt, PUCCH_Config_resourceToAddModList* pResourceToAddModList,
                            RrcPucchCfg_t* pRrcPucchCfg)
{
    return compose::list<PUCCH_Resource>(pAsnCxt, pResourceToAddModList, pRrcPucchCfg->numResourceAddMod,
                                         pRrcPucchCfg->resource, rrcComposePucchResource,
                                         {"pNode Or pItem is NULL\r\n", "rrcComposePucchResource is Error\r\n"});
}

// PUCCH-Config.resourceToAddModList[]
INT32 rrcComposePucchResource(OSCTXT* pAsnCxt, PUCCH_Resource* pPUCCH_Resource, RrcPucchResource_t* pRrcPucchResource)
{
    assign(pPUCCH_Resource->pucch_ResourceId, pRrcPucchResource->pucchResourceId);
    assign(pPUCCH_Resource->startingPRB, pRrcPucchResource->startingPRB);
    COPY_IF(pRrcPucchResource->bitMask & RRC_PUCCH_RESOURCE_INTRA_SLOT_FREQ_HOPPING_PRESENCE, pPUCCH_Resource,
            intraSlotFrequencyHopping, pRrcPucchResource->intraSlotFreqHopping);
    COPY_IF(pRrcPucchResource->bitMask & RRC_PUCCH_RESOURCE_SECOND_HOPPING_PRB_PRESENCE, pPUCCH_Resource, secondHopPRB,
            pRrcPucchResource->secondHopPRB);
    RETURN_IF_FAILED(rrcComposePUCCH_Resource_format(pAsnCxt, &pPUCCH_Resource->format, pRrcPucchResource),
                     "rrcComposePUCCH_Resource_format is Error\r\n");
    return VOS_OK;
}

// PUCCH-Resource.format
INT32 rrcComposePUCCH_Resource_format(OSCTXT* pAsnCxt, PUCCH_Resource_format* pFormat,
                                      RrcPucchResource_t* pRrcPucchResource)
{
    const UINT8 presence = pRrcPucchResource->presence;
    if (presence & RRC_PUCCH_RESOURCE_FORMAT0_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pFormat, T_PUCCH_Resource_format_format0, pFormat->u.format0,
                                   &pRrcPucchResource->format.format0, rrcComposeformat0);
    }
    if (presence & RRC_PUCCH_RESOURCE_FORMAT1_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pFormat, T_PUCCH_Resource_format_format1, pFormat->u.format1,
                                   &pRrcPucchResource->format.format1, rrcComposeformat1);
    }
    if (presence & RRC_PUCCH_RESOURCE_FORMAT2_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pFormat, T_PUCCH_Resource_format_format2, pFormat->u.format2,
                                   &pRrcPucchResource->format.format2, rrcComposeformat2);
    }
    if (presence & RRC_PUCCH_RESOURCE_FORMAT3_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pFormat, T_PUCCH_Resource_format_format3, pFormat->u.format3,
                                   &pRrcPucchResource->format.format3, rrcComposeformat3);
    }
    if (presence & RRC_PUCCH_RESOURCE_FORMAT4_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pFormat, T_PUCCH_Resource_format_format4, pFormat->u.format4,
                                   &pRrcPucchResource->format.format4, rrcComposeformat4);
    }
    return VOS_OK;
}

// PUCCH-Resource.format.format0
INT32 rrcComposeformat0(PUCCH_format0* pFormat0, RrcPucchFormat0_t* pRrcPucchFormat0)
{
    assign(pFormat0->initialCyclicShift, pRrcPucchFormat0->initialCyclicShift);
    assign(pFormat0->nrofSymbols, pRrcPucchFormat0->nrofSymbols);
    assign(pFormat0->startingSymbolIndex, pRrcPucchFormat0->startingSymbolIdx);
    return VOS_OK;
}

// PUCCH-Resource.format.format1
INT32 rrcComposeformat1(PUCCH_format1* pFormat1, RrcPucchFormat1_t* pRrcPucchFormat1)
{
    assign(pFormat1->initialCyclicShift, pRrcPucchFormat1->initialCyclicShift);
    assign(pFormat1->nrofSymbols, pRrcPucchFormat1->nrofSymbols);
    assign(pFormat1->startingSymbolIndex, pRrcPucchFormat1->startingSymbolIdx);
    assign(pFormat1->timeDomainOCC, pRrcPucchFormat1->timeDomainOCC);
    return VOS_OK;
}

// PUCCH-Resource.format.format2
INT32 rrcComposeformat2(PUCCH_format2* pFormat2, RrcPucchFormat2_t* pRrcPucchFormat2)
{
    assign(pFormat2->nrofSymbols, pRrcPucchFormat2->nrofSymbols);
    assign(pFormat2->startingSymbolIndex, pRrcPucchFormat2->startingSymbolIdx);
    assign(pFormat2->nrofPRBs, pRrcPucchFormat2->nrofPRBs);
    return VOS_OK;
}

// PUCCH-Resource.format.format3
INT32 rrcComposeformat3(PUCCH_format3* pFormat3, RrcPucchFormat3_t* pRrcPucchFormat3)
{
    assign(pFormat3->nrofSymbols, pRrcPucchFormat3->nrofSymbols);
    assign(pFormat3->startingSymbolIndex, pRrcPucchFormat3->startingSymbolIdx);
    assign(pFormat3->nrofPRBs, pRrcPucchFormat3->nrofPRBs);
    return VOS_OK;
}

// PUCCH-Resource.format.format4
INT32 rrcComposeformat4(PUCCH_format4* pFormat4, RrcPucchFormat4_t* pRrcPucchFormat4)
{
    assign(pFormat4->nrofSymbols, pRrcPucchFormat4->nrofSymbols);
    assign(pFormat4->startingSymbolIndex, pRrcPucchFormat4->startingSymbolIdx);
    assign(pFormat4->occ_Length, pRrcPucchFormat4->occLength);
    assign(pFormat4->occ_Index, pRrcPucchFormat4->occIdx);
    return VOS_OK;
}

// PUCCH-Config.resourceToReleaseList
INT32 rrcComposeresourceRel(PUCCH_Config_resourceToReleaseList* pResourceToReleaseList, RrcPucchCfg_t* pRrcPucchCfg)
{
    compose::array(pResourceToReleaseList, pRrcPucchCfg->numResourceRel, pRrcPucchCfg->pucchResouceId);
    return VOS_OK;
}

// PUCCH-Config.format1
INT32 rrcComposePUCCH_Config_format1(OSCTXT* pAsnCxt, PUCCH_Config_format1* pformat1, RrcPucchFormatCfg_t* pRrcformat1)
{
    NULL_CHECK(pformat1);
    NULL_CHECK(pRrcformat1);

    (void)compose::setup(pAsnCxt, pformat1, pRrcformat1, rrcComposePUCCH_FormatConfigsetup);
    return VOS_OK;
}

// PUCCH-Config.format2
INT32 rrcComposePUCCH_Config_format2(OSCTXT* pAsnCxt, PUCCH_Config_format2* pformat2, RrcPucchFormatCfg_t* pRrcformat2)
{
    NULL_CHECK(pformat2);
    NULL_CHECK(pRrcformat2);

    (void)compose::setup(pAsnCxt, pformat2, pRrcformat2, rrcComposePUCCH_FormatConfigsetup);
    return VOS_OK;
}

// PUCCH-Config.format3
INT32 rrcComposePUCCH_Config_format3(OSCTXT* pAsnCxt, PUCCH_Config_format3* pformat3, RrcPucchFormatCfg_t* pRrcformat3)
{
    NULL_CHECK(pformat3);
    NULL_CHECK(pRrcformat3);

    (void)compose::setup(pAsnCxt, pformat3, pRrcformat3, rrcComposePUCCH_FormatConfigsetup);
    return VOS_OK;
}

// PUCCH-Config.format4
INT32 rrcComposePUCCH_Config_format4(OSCTXT* pAsnCxt, PUCCH_Config_format4* pformat4, RrcPucchFormatCfg_t* pRrcformat4)
{
    NULL_CHECK(pformat4);
    NULL_CHECK(pRrcformat4);

    (void)compose::setup(pAsnCxt, pformat4, pRrcformat4, rrcComposePUCCH_FormatConfigsetup);
    return VOS_OK;
}

// PUCCH-FormatConfig
INT32 rrcComposePUCCH_FormatConfigsetup(PUCCH_FormatConfig* pPUCCH_FormatConfig,
                                        RrcPucchFormatCfg_t* pRrcPucchFormatCfg)
{
    const UINT8 bitMask = pRrcPucchFormatCfg->bitMask;
    COPY_IF(bitMask & RRC_PUCCH_FORMAT_CFG_INTER_SLOT_FREQ_HOPPING_PRESENCE, pPUCCH_FormatConfig,
            interslotFrequencyHopping, pRrcPucchFormatCfg->interSlotFreqHopping);
    COPY_IF(bitMask & RRC_PUCCH_FORMAT_CFG_ADDITIONAL_DMRS_PRESENCE, pPUCCH_FormatConfig, additionalDMRS,
            pRrcPucchFormatCfg->additionalDMRS);
    COPY_IF(bitMask & RRC_PUCCH_FORMAT_CFG_MAX_CODE_RATE_PRESENCE, pPUCCH_FormatConfig, maxCodeRate,
            pRrcPucchFormatCfg->maxCodeRate);
    COPY_IF(bitMask & RRC_PUCCH_FORMAT_CFG_NR_OF_SLOTS_PRESENCE, pPUCCH_FormatConfig, nrofSlots,
            pRrcPucchFormatCfg->nrofSlots);
    // The bits of these two stand in the reverse of the members' order.
    COPY_IF(bitMask & RRC_PUCCH_FORMAT_CFG_PI2BPSK_PRESENCE, pPUCCH_FormatConfig, pi2BPSK, pRrcPucchFormatCfg->pi2BPSK);
    COPY_IF(bitMask & RRC_PUCCH_FORMAT_CFG_SIMULTANEOUS_HARQ_ACK_CSI_PRESENCE, pPUCCH_FormatConfig,
            simultaneousHARQ_ACK_CSI, pRrcPucchFormatCfg->sumultaneousHarqAckCsi);
    return VOS_OK;
}

// PUCCH-Config.schedulingRequestResourceToAddModList
INT32 rrcComposeSchedulingRequestResourceToAdd(
    OSCTXT* pAsnCxt, PUCCH_Config_schedulingRequestResourceToAddModList* pSchedulingRequestResourceToAddModList,
    RrcPucchCfg_t* pRrcPucchCfg)
{
    return compose::list<SchedulingRequestResourceConfig>(
        pAsnCxt, pSchedulingRequestResourceToAddModList, pRrcPucchCfg->numSchedReqResourceCfgAddMod,
        pRrcPucchCfg->schedReqResource, rrcComposeSchedReqResourceCfg,
        {"pNode Or pItem is NULL\r\n", "rrcComposeSchedReqResourceCfg is Error\r\n"});
}

// PUCCH-Config.schedulingRequestResourceToAddModList[]
INT32 rrcComposeSchedReqResourceCfg(SchedulingRequestResourceConfig* pSchedulingRequestResourceConfig,
                                    RrcSchedReqResourceCfg_t* pRrcSchedReqResourceCfg)
{
    assign(pSchedulingRequestResourceConfig->schedulingRequestResourceId, pRrcSchedReqResourceCfg->schedReqResourceId);
    assign(pSchedulingRequestResourceConfig->schedulingRequestID, pRrcSchedReqResourceCfg->schedReqId);
    if (pRrcSchedReqResourceCfg->bitMask & RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_PRESENCE)
    {
        pSchedulingRequestResourceConfig->m.periodicityAndOffsetPresent = 1;
        (void)rrcComposeSchedulingperiodicityAndOffset(&pSchedulingRequestResourceConfig->periodicityAndOffset,
                                                       pRrcSchedReqResourceCfg);
    }
    COPY_IF(pRrcSchedReqResourceCfg->bitMask & RRC_SCHED_REQ_RESOURCE_CFG_PUCCH_RESOURCE_ID_PRESENCE,
            pSchedulingRequestResourceConfig, resource, pRrcSchedReqResourceCfg->pucchResourceId);
    return VOS_OK;
}

// SchedulingRequestResourceConfig.periodicityAndOffset
INT32 rrcComposeSchedulingperiodicityAndOffset(
    SchedulingRequestResourceConfig_periodicityAndOffset* pPeriodicityAndOffset,
    RrcSchedReqResourceCfg_t* pRrcSchedReqResourceCfg)
{
    const UINT32 presence = pRrcSchedReqResourceCfg->presence;
    const UINT16 offset = pRrcSchedReqResourceCfg->periodAndOffset.offset;
    if (presence & RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SYM2)
    {
        pPeriodicityAndOffset->t = T_SchedulingRequestResourceConfig_periodicityAndOffset_sym2;
    }
    if (presence & RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SYM6OR7)
    {
        pPeriodicityAndOffset->t = T_SchedulingRequestResourceConfig_periodicityAndOffset_sym6or7;
    }
    if (presence & RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL1)
    {
        pPeriodicityAndOffset->t = T_SchedulingRequestResourceConfig_periodicityAndOffset_sl1;
    }
    // Up to sl160 the low 8 bits of the offset.
    CHOOSE_IF(presence & RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL2, pPeriodicityAndOffset,
              SchedulingRequestResourceConfig_periodicityAndOffset, sl2, offset);
    CHOOSE_IF(presence & RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL4, pPeriodicityAndOffset,
              SchedulingRequestResourceConfig_periodicityAndOffset, sl4, offset);
    CHOOSE_IF(presence & RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL5, pPeriodicityAndOffset,
              SchedulingRequestResourceConfig_periodicityAndOffset, sl5, offset);
    CHOOSE_IF(presence & RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL8, pPeriodicityAndOffset,
              SchedulingRequestResourceConfig_periodicityAndOffset, sl8, offset);
    CHOOSE_IF(presence & RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL10, pPeriodicityAndOffset,
              SchedulingRequestResourceConfig_periodicityAndOffset, sl10, offset);
    CHOOSE_IF(presence & RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL16, pPeriodicityAndOffset,
              SchedulingRequestResourceConfig_periodicityAndOffset, sl16, offset);
    CHOOSE_IF(presence & RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL20, pPeriodicityAndOffset,
              SchedulingRequestResourceConfig_periodicityAndOffset, sl20, offset);
    CHOOSE_IF(presence & RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL40, pPeriodicityAndOffset,
              SchedulingRequestResourceConfig_periodicityAndOffset, sl40, offset);
    CHOOSE_IF(presence & RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL80, pPeriodicityAndOffset,
              SchedulingRequestResourceConfig_periodicityAndOffset, sl80, offset);
    CHOOSE_IF(presence & RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL160, pPeriodicityAndOffset,
              SchedulingRequestResourceConfig_periodicityAndOffset, sl160, offset);
    CHOOSE_IF(presence & RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL320, pPeriodicityAndOffset,
              SchedulingRequestResourceConfig_periodicityAndOffset, sl320, offset);
    CHOOSE_IF(presence & RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL640, pPeriodicityAndOffset,
              SchedulingRequestResourceConfig_periodicityAndOffset, sl640, offset);
    return VOS_OK;
}

// PUCCH-Config.schedulingRequestResourceToReleaseList
INT32 rrcComposeSchedulingRequestResourceToRel(
    PUCCH_Config_schedulingRequestResourceToReleaseList* pSchedulingRequestResourceToReleaseList,
    RrcPucchCfg_t* pRrcPucchCfg)
{
    compose::array(pSchedulingRequestResourceToReleaseList, pRrcPucchCfg->numSchedReqResourceCfgRel,
                   pRrcPucchCfg->schedReqResourceId);
    return VOS_OK;
}

// PUCCH-Config.multi-CSI-PUCCH-ResourceList
INT32 rrcComposemulti_CSI_PUCCH_ResourceLis(PUCCH_Config_multi_CSI_PUCCH_ResourceList* pMulti_CSI_PUCCH_ResourceList,
                                            RrcPucchCfg_t* pRrcPucchCfg)
{
    compose::array(pMulti_CSI_PUCCH_ResourceList, pRrcPucchCfg->numMultiCsiPucchResourceId,
                   pRrcPucchCfg->multiCsiPucchResourceId);
    return VOS_OK;
}

// PUCCH-Config.dl-DataToUL-ACK
INT32 rrcComposeDl_DataToUL_ACK(PUCCH_Config_dl_DataToUL_ACK* pDl_DataToUL_ACK, RrcPucchCfg_t* pRrcPucchCfg)
{
    compose::array(pDl_DataToUL_ACK, pRrcPucchCfg->numDlData2UlACK, pRrcPucchCfg->dlData2UlACK);
    return VOS_OK;
}

// PUCCH-Config.spatialRelationInfoToAddModList
INT32 rrcComposeSpatialRelationInfoToAdd(OSCTXT* pAsnCxt,
                                         PUCCH_Config_spatialRelationInfoToAddModList* pSpatialRelationInfoToAddModList,
                                         RrcPucchCfg_t* pRrcPucchCfg)
{
    return compose::list<PUCCH_SpatialRelationInfo>(
        pAsnCxt, pSpatialRelationInfoToAddModList, pRrcPucchCfg->numSpatialRelationInfoAddMod,
        pRrcPucchCfg->spatialRelationInfo, rrcComposeSpatialRelationInfo,
        {"pNode Or pItem is NULL\r\n", "rrcComposeSpatialRelationInfo is Error\r\n"});
}

// PUCCH-Config.spatialRelationInfoToAddModList[]
INT32 rrcComposeSpatialRelationInfo(OSCTXT* pAsnCxt, PUCCH_SpatialRelationInfo* pPUCCH_SpatialRelationInfo,
                                    RrcPucchSpatialRelationInfo_t* pRrcPucchSpatialRelationInfo)
{
    assign(pPUCCH_SpatialRelationInfo->pucch_SpatialRelationInfoId,
           pRrcPucchSpatialRelationInfo->pucchSpatialRelationInfoId);
    COPY_IF(pRrcPucchSpatialRelationInfo->bitMask & RRC_PUCCH_SPATIAL_RELEATION_INFO_SERVING_CELLID_PRESENCE,
            pPUCCH_SpatialRelationInfo, servingCellId, pRrcPucchSpatialRelationInfo->servingCellId);
    RETURN_IF_FAILED(
        rrcComposereferenceSignal(pAsnCxt, &pPUCCH_SpatialRelationInfo->referenceSignal, pRrcPucchSpatialRelationInfo),
        "rrcComposereferenceSignal is Error\r\n");
    assign(pPUCCH_SpatialRelationInfo->pucch_PathlossReferenceRS_Id,
           pRrcPucchSpatialRelationInfo->pucchPathLossRefRsId);
    assign(pPUCCH_SpatialRelationInfo->p0_PUCCH_Id, pRrcPucchSpatialRelationInfo->p0PucchId);
    assign(pPUCCH_SpatialRelationInfo->closedLoopIndex, pRrcPucchSpatialRelationInfo->closedLoodIdx);
    return VOS_OK;
}

// PUCCH-SpatialRelationInfo.referenceSignal
INT32 rrcComposereferenceSignal(OSCTXT* pAsnCxt, PUCCH_SpatialRelationInfo_referenceSignal* pReferenceSignal,
                                RrcPucchSpatialRelationInfo_t* pRrcPucchSpatialRelationInfo)
{
    const UINT8 presence = pRrcPucchSpatialRelationInfo->presence;
    CHOOSE_IF(presence & RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_SSBIDX_PRESENCE, pReferenceSignal,
              PUCCH_SpatialRelationInfo_referenceSignal, ssb_Index, pRrcPucchSpatialRelationInfo->referSignal.ssbIdx);
    CHOOSE_IF(presence & RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_CSIRSIDX_PRESENCE, pReferenceSignal,
              PUCCH_SpatialRelationInfo_referenceSignal, csi_RS_Index,
              pRrcPucchSpatialRelationInfo->referSignal.csiRsIdx);
    if (presence & RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_SRSIDX_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pReferenceSignal, T_PUCCH_SpatialRelationInfo_referenceSignal_srs,
                                   pReferenceSignal->u.srs, pRrcPucchSpatialRelationInfo,
                                   rrcComposereferenceSignal_srs);
    }
    return VOS_OK;
}

// PUCCH-SpatialRelationInfo.referenceSignal.srs
INT32 rrcComposereferenceSignal_srs(PUCCH_SpatialRelationInfo_referenceSignal_srs* pSrs,
                                    RrcPucchSpatialRelationInfo_t* pRrcPucchSpatialRelationInfo)
{
    assign(pSrs->resource, pRrcPucchSpatialRelationInfo->referSignal.srs.srsResourceId);
    assign(pSrs->uplinkBWP, pRrcPucchSpatialRelationInfo->referSignal.srs.ulBwpId);
    return VOS_OK;
}

// PUCCH-Config.spatialRelationInfoToReleaseList
INT32 rrcComposeSpatialRelationInfoToRel(
    PUCCH_Config_spatialRelationInfoToReleaseList* pSpatialRelationInfoToReleaseList, RrcPucchCfg_t* pRrcPucchCfg)
{
    compose::array(pSpatialRelationInfoToReleaseList, pRrcPucchCfg->numSpatialRelationInfoRel,
                   pRrcPucchCfg->spatialRelationInfoId);
    return VOS_OK;
}

// PUCCH-Config.pucch-PowerControl
INT32 rrcComposePucch_PowerControl(OSCTXT* pAsnCxt, PUCCH_PowerControl* pPucch_PowerControl,
                                   RrcPucchPowerControl_t* pRrcPucchPowerControl)
{
    const UINT8 bitMask = pRrcPucchPowerControl->bitMask;
    COPY_IF(bitMask & RRC_PUCCH_POWER_CONTROL_F0_PRESENCE, pPucch_PowerControl, deltaF_PUCCH_f0,
            pRrcPucchPowerControl->deltaFPucchF0);
    COPY_IF(bitMask & RRC_PUCCH_POWER_CONTROL_F1_PRESENCE, pPucch_PowerControl, deltaF_PUCCH_f1,
            pRrcPucchPowerControl->deltaFPucchF1);
    COPY_IF(bitMask & RRC_PUCCH_POWER_CONTROL_F2_PRESENCE, pPucch_PowerControl, deltaF_PUCCH_f2,
            pRrcPucchPowerControl->deltaFPucchF2);
    COPY_IF(bitMask & RRC_PUCCH_POWER_CONTROL_F3_PRESENCE, pPucch_PowerControl, deltaF_PUCCH_f3,
            pRrcPucchPowerControl->deltaFPucchF3);
    COPY_IF(bitMask & RRC_PUCCH_POWER_CONTROL_F4_PRESENCE, pPucch_PowerControl, deltaF_PUCCH_f4,
            pRrcPucchPowerControl->deltaFPucchF4);
    // Lists cut short by the heap are sent as far as they were built.
    if (bitMask & RRC_PUCCH_POWER_CONTROL_P0_SET_PRESENCE)
    {
        pPucch_PowerControl->m.p0_SetPresent = 1;
        (void)rrcComposePUCCH_PowerControl_p0_Set(pAsnCxt, &pPucch_PowerControl->p0_Set, pRrcPucchPowerControl);
    }
    if (bitMask & RRC_PUCCH_POWER_CONTROL_PATH_REFERENCE_RSS)
    {
        pPucch_PowerControl->m.pathlossReferenceRSsPresent = 1;
        (void)rrcComposepathlossReferenceRSs(pAsnCxt, &pPucch_PowerControl->pathlossReferenceRSs,
                                             pRrcPucchPowerControl);
    }
    COPY_IF(bitMask & RRC_PUCCH_POWER_CONTROL_TWO_PUCCH_PC_ADJ_STATES_PRESENCE, pPucch_PowerControl,
            twoPUCCH_PC_AdjustmentStates, pRrcPucchPowerControl->twoPucchPcAdjStates);
    return VOS_OK;
}

// PUCCH-PowerControl.p0-Set
INT32 rrcComposePUCCH_PowerControl_p0_Set(OSCTXT* pAsnCxt, PUCCH_PowerControl_p0_Set* pP0_Set,
                                          RrcPucchPowerControl_t* pRrcPucchPowerControl)
{
    return compose::list<P0_PUCCH>(pAsnCxt, pP0_Set, pRrcPucchPowerControl->numP0Set, pRrcPucchPowerControl->p0Set,
                                   rrcComposeP0_Set, {"pNode Or pItem is NULL\r\n", "rrcComposeP0_Set is Error\r\n"});
}

// PUCCH-PowerControl.p0-Set[]
INT32 rrcComposeP0_Set(P0_PUCCH* pP0_PUCCH, RrcP0Pucch_t* pRrcP0Pucch)
{
    assign(pP0_PUCCH->p0_PUCCH_Id, pRrcP0Pucch->p0PucchId);
    assign(pP0_PUCCH->p0_PUCCH_Value, pRrcP0Pucch->poPucchValue);
    return VOS_OK;
}

// PUCCH-PowerControl.pathlossReferenceRSs
INT32 rrcComposepathlossReferenceRSs(OSCTXT* pAsnCxt, PUCCH_PowerControl_pathlossReferenceRSs* pPathlossReferenceRSs,
                                     RrcPucchPowerControl_t* pRrcPucchPowerControl)
{
    return compose::list<PUCCH_PathlossReferenceRS>(
        pAsnCxt, pPathlossReferenceRSs, pRrcPucchPowerControl->numPathLossRefRs, pRrcPucchPowerControl->pathLossRefRs,
        rrcComposePUCCH_PathlossReferenceRS,
        {"pNode Or pItem is NULL\r\n", "rrcComposePUCCH_PathlossReferenceRS is Error\r\n"});
}

// PUCCH-PowerControl.pathlossReferenceRSs[]
INT32 rrcComposePUCCH_PathlossReferenceRS(PUCCH_PathlossReferenceRS* pPUCCH_PathlossReferenceRS,
                                          RrcPucchPathLossRefRs_t* pRrcPucchPathLossRefRs)
{
    const UINT8 presence = pRrcPucchPathLossRefRs->presence;
    assign(pPUCCH_PathlossReferenceRS->pucch_PathlossReferenceRS_Id, pRrcPucchPathLossRefRs->pucchPathLossRefRsId);
    CHOOSE_IF(presence & RRC_PUCCH_PATH_LOSS_REF_RS_SSB_IDX_PRESENCE, &pPUCCH_PathlossReferenceRS->referenceSignal,
              PUCCH_PathlossReferenceRS_referenceSignal, ssb_Index, pRrcPucchPathLossRefRs->refSignal.ssbIdx);
    CHOOSE_IF(presence & RRC_PUCCH_PATH_LOSS_REF_RS_CSI_IDX_PRESENCE, &pPUCCH_PathlossReferenceRS->referenceSignal,
              PUCCH_PathlossReferenceRS_referenceSignal, csi_RS_Index, pRrcPucchPathLossRefRs->refSignal.csiRsIdx);
    return VOS_OK;
}
