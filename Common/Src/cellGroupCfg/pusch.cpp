#include "pusch.h"

#include "compose.h"

// PUSCH-Config
INT32 rrcComposePusch_Configsetup(OSCTXT* pAsnCxt, PUSCH_Config* pPUSCH_Config, RrcPuschCfg_t* pRrcPuschCfg)
{
    const UINT16 bitMask = pRrcPuschCfg->bitMask;
    COPY_IF(bitMask & RRC_PUSCH_CFG_DATA_SCRAMBLING_ID_PUSCH_PRESENCE, pPUSCH_Config, dataScramblingIdentityPUSCH,
            pRrcPuschCfg->dataScramblingIdPusch);
    COPY_IF(bitMask & RRC_PUSCH_CFG_TX_CFG_PRESENCE, pPUSCH_Config, txConfig, pRrcPuschCfg->txCfg);
    if (bitMask & RRC_PUSCH_CFG_DMRS_MAPPING_TYPEA_PRESENCE)
    {
        pPUSCH_Config->m.dmrs_UplinkForPUSCH_MappingTypeAPresent = 1;
        RETURN_IF_FAILED(rrcComposedmrs_UplinkForPUSCH_MappingTypeA(pAsnCxt,
                                                                    &pPUSCH_Config->dmrs_UplinkForPUSCH_MappingTypeA,
                                                                    &pRrcPuschCfg->dmrsUlPuschTypeA),
                         "rrcComposedmrs_UplinkForPUSCH_MappingTypeA Error\r\n");
    }
    if (bitMask & RRC_PUSCH_CFG_DMRS_MAPPING_TYPEB_PRESENCE)
    {
        pPUSCH_Config->m.dmrs_UplinkForPUSCH_MappingTypeBPresent = 1;
        RETURN_IF_FAILED(rrcComposedmrs_UplinkForPUSCH_MappingTypeB(pAsnCxt,
                                                                    &pPUSCH_Config->dmrs_UplinkForPUSCH_MappingTypeB,
                                                                    &pRrcPuschCfg->dmrsUlPuschTypeB),
                         "rrcComposedmrs_UplinkForPUSCH_MappingTypeB Error\r\n");
    }
    if (bitMask & RRC_PUSCH_CFG_PUSCH_POWER_CONTROLPRESENCE)
    {
        pPUSCH_Config->m.pusch_PowerControlPresent = 1;
        RETURN_IF_FAILED(
            rrcComposepusch_PowerControl(pAsnCxt, &pPUSCH_Config->pusch_PowerControl, &pRrcPuschCfg->puschPowerContol),
            "rrcComposepusch_PowerControl Error\r\n");
    }
    COPY_IF(bitMask & RRC_PUSCH_CFG_FREQ_HOPPING_PRESENCE, pPUSCH_Config, frequencyHopping, pRrcPuschCfg->freqHopping);
    if (pRrcPuschCfg->numFreqHoppingOffset > 0)
    {
        // Reported in the words of the power control.
        pPUSCH_Config->m.frequencyHoppingOffsetListsPresent = 1;
        RETURN_IF_FAILED(
            rrcComposefrequencyHoppingOffsetList(&pPUSCH_Config->frequencyHoppingOffsetLists, pRrcPuschCfg),
            "rrcComposepusch_PowerControl Error\r\n");
    }
    assign(pPUSCH_Config->resourceAllocation, pRrcPuschCfg->resourceAlloc);
    if (bitMask & RRC_PUSCH_CFG_PUSCH_TIMING_DOMAIN_ALLOCATION_LIST_PRESENCE)
    {
        pPUSCH_Config->m.pusch_TimeDomainAllocationListPresent = 1;
        RETURN_IF_FAILED(rrcComposepusch_TimeDomainAllocationList(pAsnCxt,
                                                                  &pPUSCH_Config->pusch_TimeDomainAllocationList,
                                                                  &pRrcPuschCfg->puschTimeDomainAllocList),
                         "rrcComposepusch_TimeDomainAllocationList Error\r\n");
    }
    COPY_IF(bitMask & RRC_PUSCH_CFG_PUSCH_AGGREGATION_FACTOR_PRESENCE, pPUSCH_Config, pusch_AggregationFactor,
            pRrcPuschCfg->puschAggregationFactor);
    COPY_IF(bitMask & RRC_PUSCH_CFG_MCS_TABLE_PRESENCE, pPUSCH_Config, mcs_Table, pRrcPuschCfg->mcsTable);
    COPY_IF(bitMask & RRC_PUSCH_CFG_MCS_TABLE_TRANSFORM_PRECODER_PRESENCE, pPUSCH_Config, mcs_TableTransformPrecoder,
            pRrcPuschCfg->mcsTableTransformPrecoder);
    COPY_IF(bitMask & RRC_PUSCH_CFG_TRANSFORM_PRECODER_PRESENCE, pPUSCH_Config, transformPrecoder,
            pRrcPuschCfg->transformPrecoder);
    COPY_IF(bitMask & RRC_PUSCH_CFG_CODE_BOOK_SUBSET_PRESENCE, pPUSCH_Config, codebookSubset,
            pRrcPuschCfg->codebookSubSet);
    COPY_IF(bitMask & RRC_PUSCH_CFG_MAX_RANK_PRESENCE, pPUSCH_Config, maxRank, pRrcPuschCfg->maxRank);
    COPY_IF(bitMask & RRC_PUSCH_CFG_RBG_SIZE_PRESENCE, pPUSCH_Config, rbg_Size, pRrcPuschCfg->rbgSize);
    if (bitMask & RRC_PUSCH_CFG_UCI_ON_PUSCH_PRESENCE)
    {
        pPUSCH_Config->m.uci_OnPUSCHPresent = 1;
        RETURN_IF_FAILED(rrcComposeuci_OnPUSCH(pAsnCxt, &pPUSCH_Config->uci_OnPUSCH, &pRrcPuschCfg->uciOnPusch),
                         "rrcComposeuci_OnPUSCH Error\r\n");
    }
    COPY_IF(bitMask & RRC_PUSCH_CFG_TP_PI2_BPSK_PRESENCE, pPUSCH_Config, tp_pi2BPSK, pRrcPuschCfg->tpPi2Bpsk);
    return VOS_OK;
}

// PUSCH-Config.dmrs-UplinkForPUSCH-MappingTypeA
INT32 rrcComposedmrs_UplinkForPUSCH_MappingTypeA(OSCTXT* pAsnCxt,
                                                 PUSCH_Config_dmrs_UplinkForPUSCH_MappingTypeA* pMappingTypeA,
                                                 RrcDmrsUlCfg_t* pRrcDmrsUlCfg)
{
    RETURN_IF_FAILED(compose::setup(pAsnCxt, pMappingTypeA, pRrcDmrsUlCfg, rrcComposeDMRS_UplinkConfigSetup),
                     "rrcComposeDMRS_UplinkConfigSetup Error\r\n");
    return VOS_OK;
}

// PUSCH-Config.dmrs-UplinkForPUSCH-MappingTypeB
INT32 rrcComposedmrs_UplinkForPUSCH_MappingTypeB(OSCTXT* pAsnCxt,
                                                 PUSCH_Config_dmrs_UplinkForPUSCH_MappingTypeB* pMappingTypeB,
                                                 RrcDmrsUlCfg_t* pRrcDmrsUlCfg)
{
    RETURN_IF_FAILED(compose::setup(pAsnCxt, pMappingTypeB, pRrcDmrsUlCfg, rrcComposeDMRS_UplinkConfigSetup),
                     "rrcComposeDMRS_UplinkConfigSetup Error\r\n");
    return VOS_OK;
}

// DMRS-UplinkConfig
INT32 rrcComposeDMRS_UplinkConfigSetup(OSCTXT* pAsnCxt, DMRS_UplinkConfig* pDMRS_UplinkConfig,
                                       RrcDmrsUlCfg_t* pRrcDmrsUlCfg)
{
    const UINT8 bitMask = pRrcDmrsUlCfg->bitMask;
    COPY_IF(bitMask & RRC_DMRS_UL_CFG_TYPE_PRESENCE, pDMRS_UplinkConfig, dmrs_Type, pRrcDmrsUlCfg->dmrsType);
    COPY_IF(bitMask & RRC_DMRS_UL_CFG_ADDI_POS_PRESENCE, pDMRS_UplinkConfig, dmrs_AdditionalPosition,
            pRrcDmrsUlCfg->dmrsAddiPos);
    if (bitMask & RRC_DMRS_UL_CFG_PHASE_TRACK_RS_PRESENCE)
    {
        pDMRS_UplinkConfig->m.phaseTrackingRSPresent = 1;
        (void)rrcComposeDMRS_UplinkConfigPhaseTrackingRS(pAsnCxt, &pDMRS_UplinkConfig->phaseTrackingRS,
                                                         &pRrcDmrsUlCfg->phaseTrackRs);
    }
    COPY_IF(bitMask & RRC_DMRS_UL_CFG_MAX_LENGTH_PRESENCE, pDMRS_UplinkConfig, maxLength, pRrcDmrsUlCfg->maxLength);
    if (bitMask & RRC_DMRS_UL_CFG_TRANSFORM_PRECODE_DISABLE_PRESENCE)
    {
        pDMRS_UplinkConfig->m.transformPrecodingDisabledPresent = 1;
        (void)rrcComposetransformPrecodingDisabled(&pDMRS_UplinkConfig->transformPrecodingDisabled,
                                                   &pRrcDmrsUlCfg->transformPrecodDisable);
    }
    if (bitMask & RRC_DMRS_UL_CFG_TRANSFORM_PRECODE_ENABLE_PRESENCE)
    {
        pDMRS_UplinkConfig->m.transformPrecodingEnabledPresent = 1;
        (void)rrcComposetransformPrecodingEnabled(&pDMRS_UplinkConfig->transformPrecodingEnabled,
                                                  &pRrcDmrsUlCfg->transformPrecodEnable);
    }
    return VOS_OK;
}

// DMRS-UplinkConfig.phaseTrackingRS
INT32 rrcComposeDMRS_UplinkConfigPhaseTrackingRS(OSCTXT* pAsnCxt, DMRS_UplinkConfig_phaseTrackingRS* pPhaseTrackingRS,
                                                 RrcPtrsUlCfg_t* pRrcPtrsUlCfg)
{
    (void)compose::setup(pAsnCxt, pPhaseTrackingRS, pRrcPtrsUlCfg, rrcComposePTRS_UplinkConfigsetup);
    return VOS_OK;
}

// PTRS-UplinkConfig
INT32 rrcComposePTRS_UplinkConfigsetup(PTRS_UplinkConfig* pPTRS_UplinkConfig, RrcPtrsUlCfg_t* pRrcPtrsUlCfg)
{
    if (pRrcPtrsUlCfg->bitMask & RRC_PTRS_UL_CFG_DISABLE_PRESENCE)
    {
        pPTRS_UplinkConfig->m.transformPrecoderDisabledPresent = 1;
        (void)rrcComposeTransformPrecoderDisabled(&pPTRS_UplinkConfig->transformPrecoderDisabled,
                                                  &pRrcPtrsUlCfg->transformPrecodeDisable);
    }
    if (pRrcPtrsUlCfg->bitMask & RRC_PTRS_UL_CFG_ENABLE_PRESENCE)
    {
        pPTRS_UplinkConfig->m.transformPrecoderEnabledPresent = 1;
        (void)rrcComposeTransformPrecoderEnabled(&pPTRS_UplinkConfig->transformPrecoderEnabled,
                                                 &pRrcPtrsUlCfg->transformPrecodeEnable);
    }
    return VOS_OK;
}

// PTRS-UplinkConfig.transformPrecoderDisabled
INT32 rrcComposeTransformPrecoderDisabled(PTRS_UplinkConfig_transformPrecoderDisabled* pTransformPrecoderDisabled,
                                          RrcPtrsUlTransformPrecodeDisable_t* pRrcTransformPrecodeDisable)
{
    const UINT8 bitMask = pRrcTransformPrecodeDisable->bitMask;
    if (bitMask & RRC_PTRS_UL_CFG_DISABLE_FREQ_DENSITY_PRESENCE)
    {
        pTransformPrecoderDisabled->m.frequencyDensityPresent = 1;
        compose::entries(pTransformPrecoderDisabled->frequencyDensity.elem, 2,
                         pRrcTransformPrecodeDisable->freqDensity);
    }
    if (bitMask & RRC_PTRS_UL_CFG_DISABLE_TIME_DENSITY_PRESENCE)
    {
        pTransformPrecoderDisabled->m.timeDensityPresent = 1;
        compose::entries(pTransformPrecoderDisabled->timeDensity.elem, 3, pRrcTransformPrecodeDisable->timeDensity);
    }
    assign(pTransformPrecoderDisabled->maxNrofPorts, pRrcTransformPrecodeDisable->maxNrofPorts);
    COPY_IF(bitMask & RRC_PTRS_UL_CFG_DISABLE_RESOURCE_ELE_OFFSET_PRESENCE, pTransformPrecoderDisabled,
            resourceElementOffset, pRrcTransformPrecodeDisable->resourceElementOffset);
    assign(pTransformPrecoderDisabled->ptrs_Power, pRrcTransformPrecodeDisable->ptrsPower);
    return VOS_OK;
}

// PTRS-UplinkConfig.transformPrecoderEnabled
INT32 rrcComposeTransformPrecoderEnabled(PTRS_UplinkConfig_transformPrecoderEnabled* pTransformPrecoderEnabled,
                                         RrcPtrsUlTransformPrecodeEnable_t* pRrcTransformPrecodeEnable)
{
    compose::entries(pTransformPrecoderEnabled->sampleDensity.elem, 5, pRrcTransformPrecodeEnable->sampleDensity);
    if (pRrcTransformPrecodeEnable->bitMask & RRC_PTRS_UL_CFG_ENABLE_TIME_DENSITY_PRESENCE)
    {
        // The record's value is not taken over: the cleared element says d2, the only value there is.
        pTransformPrecoderEnabled->m.timeDensityTransformPrecodingPresent = 1;
    }
    return VOS_OK;
}

// DMRS-UplinkConfig.transformPrecodingDisabled
INT32 rrcComposetransformPrecodingDisabled(DMRS_UplinkConfig_transformPrecodingDisabled* pTransformPrecodingDisabled,
                                           RrcTransformPrecodDisable_t* pRrcTransformPrecodDisable)
{
    const UINT8 bitMask = pRrcTransformPrecodDisable->bitMask;
    COPY_IF(bitMask & RRC_TRANSFORM_PRECODE_DISABLE_ID0_PRESENCE, pTransformPrecodingDisabled, scramblingID0,
            pRrcTransformPrecodDisable->scramblingId0);
    COPY_IF(bitMask & RRC_TRANSFORM_PRECODE_DISABLE_ID1_PRESENCE, pTransformPrecodingDisabled, scramblingID1,
            pRrcTransformPrecodDisable->scramblingId1);
    return VOS_OK;
}

// DMRS-UplinkConfig.transformPrecodingEnabled
INT32 rrcComposetransformPrecodingEnabled(DMRS_UplinkConfig_transformPrecodingEnabled* pTransformPrecodingEnabled,
                                          RrcTransformPrecodEnable_t* pRrcTransformPrecodEnable)
{
    const UINT8 bitMask = pRrcTransformPrecodEnable->bitMask;
    COPY_IF(bitMask & RRC_TRANSFORM_PRECODE_ENABLE_ID_PRESENCE, pTransformPrecodingEnabled, nPUSCH_Identity,
            pRrcTransformPrecodEnable->nPuschId);
    COPY_IF(bitMask & RRC_TRANSFORM_PRECODE_ENABLE_GROUP_HOPPING_PRESENCE, pTransformPrecodingEnabled,
            sequenceGroupHopping, pRrcTransformPrecodEnable->seqGrpHopping);
    COPY_IF(bitMask & RRC_TRANSFORM_PRECODE_ENABLE_HOPPING_PRESENCE, pTransformPrecodingEnabled, sequenceHopping,
            pRrcTransformPrecodEnable->seqHopping);
    return VOS_OK;
}

// PUSCH-Config.pusch-PowerControl
INT32 rrcComposepusch_PowerControl(OSCTXT* pAsnCxt, PUSCH_PowerControl* pPusch_PowerControl,
                                   RrcPuschPowerControl_t* pRrcControl)
{
    NULL_CHECK(pPusch_PowerControl);
    NULL_CHECK(pRrcControl);

    // Lists cut short by the heap are sent as far as they were built.
    const UINT8 bitMask = pRrcControl->bitMask;
    COPY_IF(bitMask & RRC_PUSCH_POWER_CONTROL_TCP_ACCUMULATION_PRESENCE, pPusch_PowerControl, tpc_Accumulation,
            pRrcControl->tpcAccumulation);
    COPY_IF(bitMask & RRC_PUSCH_POWER_CONTROL_MSG3_ALPHA_PRESENCE, pPusch_PowerControl, msg3_Alpha,
            pRrcControl->msg3Alpha);
    COPY_IF(bitMask & RRC_PUSCH_POWER_CONTROL_P0_NOMINAL_WITHOUT_GRANT_PRESENCE, pPusch_PowerControl,
            p0_NominalWithoutGrant, pRrcControl->p0NominalWithOutGrant);
    if (pRrcControl->numP0AlphaSets > 0)
    {
        pPusch_PowerControl->m.p0_AlphaSetsPresent = 1;
        (void)rrcComposep0_AlphaSets(pAsnCxt, &pPusch_PowerControl->p0_AlphaSets, pRrcControl);
    }
    if (pRrcControl->numPathLossRefRsAddMod > 0)
    {
        pPusch_PowerControl->m.pathlossReferenceRSToAddModListPresent = 1;
        (void)rrcComposepathlossReferenceRSToAddMod(pAsnCxt, &pPusch_PowerControl->pathlossReferenceRSToAddModList,
                                                    pRrcControl);
    }
    if (pRrcControl->numPathLossRefRsRel > 0)
    {
        pPusch_PowerControl->m.pathlossReferenceRSToReleaseListPresent = 1;
        (void)rrcComposepathlossReferenceRSToReleaes(&pPusch_PowerControl->pathlossReferenceRSToReleaseList,
                                                     pRrcControl);
    }
    COPY_IF(bitMask & RRC_PUSCH_POWER_CONTROL_TWO_PUSCH_PC_ADJ_STATES_PRESENCE, pPusch_PowerControl,
            twoPUSCH_PC_AdjustmentStates, pRrcControl->twoPuschPcAdjStates);
    COPY_IF(bitMask & RRC_PUSCH_POWER_CONTROL_DELTA_MCS_PRESENCE, pPusch_PowerControl, deltaMCS, pRrcControl->deltaMcs);
    if (pRrcControl->numSriPuschMappingAddMod > 0)
    {
        pPusch_PowerControl->m.sri_PUSCH_MappingToAddModListPresent = 1;
        (void)rrcComposesri_PUSCH_MappingToAddMod(pAsnCxt, &pPusch_PowerControl->sri_PUSCH_MappingToAddModList,
                                                  pRrcControl);
    }
    if (pRrcControl->numSriPuschMappingRel > 0)
    {
        pPusch_PowerControl->m.sri_PUSCH_MappingToReleaseListPresent = 1;
        (void)rrcComposesri_PUSCH_MappingToRelease(&pPusch_PowerControl->sri_PUSCH_MappingToReleaseList, pRrcControl);
    }
    return VOS_OK;
}

// PUSCH-PowerControl.p0-AlphaSets
INT32 rrcComposep0_AlphaSets(OSCTXT* pAsnCxt, PUSCH_PowerControl_p0_AlphaSets* pP0_AlphaSets,
                             RrcPuschPowerControl_t* pRrcControl)
{
    return compose::list<P0_PUSCH_AlphaSet>(pAsnCxt, pP0_AlphaSets, pRrcControl->numP0AlphaSets,
                                            pRrcControl->p0AlphaSets, rrcComposeP0PuschAlphaSet,
                                            {"pNode Or pItem is NULL\r\n", "rrcComposeP0PuschAlphaSet is Error\r\n"});
}

// PUSCH-PowerControl.p0-AlphaSets[]
INT32 rrcComposeP0PuschAlphaSet(P0_PUSCH_AlphaSet* pP0_PUSCH_AlphaSet, RrcP0PuschAlphaSet_t* pRrcP0PuschAlphaSet)
{
    assign(pP0_PUSCH_AlphaSet->p0_PUSCH_AlphaSetId, pRrcP0PuschAlphaSet->p0PuschAlphaId);
    COPY_IF(pRrcP0PuschAlphaSet->bitMask & RRC_P0PUSCH_ALPHA_SET_P0_PRESENCE, pP0_PUSCH_AlphaSet, p0,
            pRrcP0PuschAlphaSet->p0);
    COPY_IF(pRrcP0PuschAlphaSet->bitMask & RRC_P0PUSCH_ALPHA_SET_ALPHA_PRESENCE, pP0_PUSCH_AlphaSet, alpha,
            pRrcP0PuschAlphaSet->alpha);
    return VOS_OK;
}

// PUSCH-PowerControl.pathlossReferenceRSToAddModList
INT32 rrcComposepathlossReferenceRSToAddMod(
    OSCTXT* pAsnCxt, PUSCH_PowerControl_pathlossReferenceRSToAddModList* pPathlossReferenceRSToAddModList,
    RrcPuschPowerControl_t* pRrcControl)
{
    return compose::list<PUSCH_PathlossReferenceRS>(
        pAsnCxt, pPathlossReferenceRSToAddModList, pRrcControl->numPathLossRefRsAddMod, pRrcControl->pathLossRefRs,
        rrcComposePathlossReferenceRS, {"pNode Or pItem is NULL\r\n", "rrcComposePathlossReferenceRS is Error\r\n"});
}

// PUSCH-PowerControl.pathlossReferenceRSToAddModList[]
INT32 rrcComposePathlossReferenceRS(PUSCH_PathlossReferenceRS* pPUSCH_PathlossReferenceRS,
                                    RrcPuschPathLossRefRs_t* pRrcPuschPathLossRefRs)
{
    assign(pPUSCH_PathlossReferenceRS->pusch_PathlossReferenceRS_Id, pRrcPuschPathLossRefRs->puschPathLossRefRsId);
    (void)rrcComposePathlossReferenceRSSignal(&pPUSCH_PathlossReferenceRS->referenceSignal, pRrcPuschPathLossRefRs);
    return VOS_OK;
}

// PUSCH-PathlossReferenceRS.referenceSignal
INT32 rrcComposePathlossReferenceRSSignal(PUSCH_PathlossReferenceRS_referenceSignal* pReferenceSignal,
                                          RrcPuschPathLossRefRs_t* pRrcPuschPathLossRefRs)
{
    const UINT8 presence = pRrcPuschPathLossRefRs->presence;
    CHOOSE_IF(presence & RRC_PUSCH_PATH_LOSS_REF_RS_SSB_PRESENCE, pReferenceSignal,
              PUSCH_PathlossReferenceRS_referenceSignal, ssb_Index, pRrcPuschPathLossRefRs->regSig.ssbIdx);
    CHOOSE_IF(presence & RRC_PUSCH_PATH_LOSS_REF_RS_CSI_RS_PRESENCE, pReferenceSignal,
              PUSCH_PathlossReferenceRS_referenceSignal, csi_RS_Index, pRrcPuschPathLossRefRs->regSig.csiRsIdx);
    return VOS_OK;
}

// PUSCH-PowerControl.pathlossReferenceRSToReleaseList
INT32 rrcComposepathlossReferenceRSToReleaes(
    PUSCH_PowerControl_pathlossReferenceRSToReleaseList* pPathlossReferenceRSToReleaseList,
    RrcPuschPowerControl_t* pRrcControl)
{
    compose::array(pPathlossReferenceRSToReleaseList, pRrcControl->numPathLossRefRsRel,
                   pRrcControl->pathLossRefRsRelId);
    return VOS_OK;
}

// PUSCH-PowerControl.sri-PUSCH-MappingToAddModList
INT32 rrcComposesri_PUSCH_MappingToAddMod(
    OSCTXT* pAsnCxt, PUSCH_PowerControl_sri_PUSCH_MappingToAddModList* pSri_PUSCH_MappingToAddModList,
    RrcPuschPowerControl_t* pRrcControl)
{
    return compose::list<SRI_PUSCH_PowerControl>(
        pAsnCxt, pSri_PUSCH_MappingToAddModList, pRrcControl->numSriPuschMappingAddMod, pRrcControl->sriPuschMapping,
        rrcComposeSRI_PUSCH_PowerControl,
        {"pNode Or pItem is NULL\r\n", "rrcComposeSRI_PUSCH_PowerControl is Error\r\n"});
}

// PUSCH-PowerControl.sri-PUSCH-MappingToAddModList[]
INT32 rrcComposeSRI_PUSCH_PowerControl(SRI_PUSCH_PowerControl* pSRI_PUSCH_PowerControl,
                                       RrcSriPuschPowerControl_t* pRrcSriPuschPowerControl)
{
    assign(pSRI_PUSCH_PowerControl->sri_PUSCH_PowerControlId, pRrcSriPuschPowerControl->sriPuschPowerControlId);
    assign(pSRI_PUSCH_PowerControl->sri_PUSCH_PathlossReferenceRS_Id,
           pRrcSriPuschPowerControl->sriPuschPathLossRefRsId);
    assign(pSRI_PUSCH_PowerControl->sri_P0_PUSCH_AlphaSetId, pRrcSriPuschPowerControl->sriP0PuschAlphaSetId);
    assign(pSRI_PUSCH_PowerControl->sri_PUSCH_ClosedLoopIndex, pRrcSriPuschPowerControl->sriPuschClosedLoopIdx);
    return VOS_OK;
}

// PUSCH-PowerControl.sri-PUSCH-MappingToReleaseList
INT32 rrcComposesri_PUSCH_MappingToRelease(
    PUSCH_PowerControl_sri_PUSCH_MappingToReleaseList* pSri_PUSCH_MappingToReleaseList,
    RrcPuschPowerControl_t* pRrcControl)
{
    compose::array(pSri_PUSCH_MappingToReleaseList, pRrcControl->numSriPuschMappingRel, pRrcControl->sriPuschMappingId);
    return VOS_OK;
}

// PUSCH-Config.frequencyHoppingOffsetLists
INT32 rrcComposefrequencyHoppingOffsetList(PUSCH_Config_frequencyHoppingOffsetLists* pFrequencyHoppingOffsetLists,
                                           RrcPuschCfg_t* pRrcPuschCfg)
{
    compose::array(pFrequencyHoppingOffsetLists, pRrcPuschCfg->numFreqHoppingOffset, pRrcPuschCfg->freqHoppingOffset);
    return VOS_OK;
}

// PUSCH-Config.pusch-TimeDomainAllocationList
INT32 rrcComposepusch_TimeDomainAllocationList(
    OSCTXT* pAsnCxt, PUSCH_Config_pusch_TimeDomainAllocationList* pPusch_TimeDomainAllocationList,
    RrcPuschTimeDomainResourceAllocList_t* pRrcPuschTimeDomainResourceAllocList)
{
    // A list cut short by the heap is sent as far as it was built.
    (void)compose::setup(pAsnCxt, pPusch_TimeDomainAllocationList, pRrcPuschTimeDomainResourceAllocList,
                         rrcComposePUSCH_TimeDomainResourceAllocationSetup);
    return VOS_OK;
}

// PUSCH-TimeDomainResourceAllocationList
INT32 rrcComposePUSCH_TimeDomainResourceAllocationSetup(
    OSCTXT* pAsnCxt, PUSCH_TimeDomainResourceAllocationList* pSetup,
    RrcPuschTimeDomainResourceAllocList_t* pRrcPuschTimeDomainResourceAllocList)
{
    return compose::list<PUSCH_TimeDomainResourceAllocation>(
        pAsnCxt, pSetup, pRrcPuschTimeDomainResourceAllocList->numPuschTimeDomainResourceAllocList,
        pRrcPuschTimeDomainResourceAllocList->item, rrcComposePUSCH_TimeDomainResourceAllocation,
        {"pNode Or pItem is NULL\r\n", "rrcComposePUSCH_TimeDomainResourceAllocation is Error\r\n"});
}

// PUSCH-TimeDomainResourceAllocationList[]
INT32 rrcComposePUSCH_TimeDomainResourceAllocation(
    PUSCH_TimeDomainResourceAllocation* pPUSCH_TimeDomainResourceAllocation,
    RrcPuschTimeDomainResourceAlloc_t* pRrcPuschTimeDomainResourceAlloc)
{
    COPY_IF(pRrcPuschTimeDomainResourceAlloc->bitMask & RRC_PUSCH_TIME_DOMAIN_K2_PRESENCE,
            pPUSCH_TimeDomainResourceAllocation, k2, pRrcPuschTimeDomainResourceAlloc->k2);
    assign(pPUSCH_TimeDomainResourceAllocation->mappingType, pRrcPuschTimeDomainResourceAlloc->mappingType);
    assign(pPUSCH_TimeDomainResourceAllocation->startSymbolAndLength,
           pRrcPuschTimeDomainResourceAlloc->startSymbolAndLen);
    return VOS_OK;
}

// PUSCH-Config.uci-OnPUSCH
INT32 rrcComposeuci_OnPUSCH(OSCTXT* pAsnCxt, PUSCH_Config_uci_OnPUSCH* pUci_OnPUSCH, RrcUciOnPusch_t* pRrcUciOnPusch)
{
    (void)compose::setup(pAsnCxt, pUci_OnPUSCH, pRrcUciOnPusch, rrcComposeUCI_OnPUSCHsetup);
    return VOS_OK;
}

// UCI-OnPUSCH
INT32 rrcComposeUCI_OnPUSCHsetup(OSCTXT* pAsnCxt, UCI_OnPUSCH* pUCI_OnPUSCH, RrcUciOnPusch_t* pRrcUciOnPusch)
{
    assign(pUCI_OnPUSCH->scaling, pRrcUciOnPusch->scaling);
    if (pRrcUciOnPusch->bitMask & RRC_UCI_PUSCH_BETA_OFFSETS_PRESENCE)
    {
        pUCI_OnPUSCH->m.betaOffsetsPresent = 1;
        (void)rrcComposeBetaOffsets(pAsnCxt, &pUCI_OnPUSCH->betaOffsets, pRrcUciOnPusch);
    }
    return VOS_OK;
}

// UCI-OnPUSCH.betaOffsets
INT32 rrcComposeBetaOffsets(OSCTXT* pAsnCxt, UCI_OnPUSCH_betaOffsets* pBetaOffsets, RrcUciOnPusch_t* pRrcUciOnPusch)
{
    // A list cut short by the heap is left to the encoder, which refuses it.
    if (pRrcUciOnPusch->presence & RRC_UCI_PUSCH_BETA_OFFSETS_DYNAMIC_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pBetaOffsets, T_UCI_OnPUSCH_betaOffsets_dynamic, pBetaOffsets->u.dynamic,
                                   pRrcUciOnPusch, rrcComposeBetaOffsets_dynamic);
    }
    if (pRrcUciOnPusch->presence & RRC_UCI_PUSCH_BETA_OFFSETS_SEMI_STATIC_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pBetaOffsets, T_UCI_OnPUSCH_betaOffsets_semiStatic,
                                   pBetaOffsets->u.semiStatic, &pRrcUciOnPusch->betaOffset.semiStatic,
                                   rrcComposeBetaOffsets_semiStatic);
    }
    return VOS_OK;
}

// UCI-OnPUSCH.betaOffsets.dynamic
INT32 rrcComposeBetaOffsets_dynamic(OSCTXT* PAsnCxt, UCI_OnPUSCH_betaOffsets_dynamic* pDynamic,
                                    RrcUciOnPusch_t* pRrcUciOnPusch)
{
    // Always four; a heap that is exhausted is reported under the context's name.
    return compose::list<BetaOffsets>(
        PAsnCxt, pDynamic, 4, pRrcUciOnPusch->betaOffset.dynamic, rrcComposeBetaOffsets_semiStatic,
        {"pNode Or PAsnCxt is NULL\r\n", "rrcComposeBetaOffsets_semiStatic is Error\r\n"});
}

// BetaOffsets
INT32 rrcComposeBetaOffsets_semiStatic(BetaOffsets* pBetaOffsets, RrcBetaOffsets_t* pRrcBetaOffsets)
{
    const UINT8 bitMask = pRrcBetaOffsets->bitMask;
    COPY_IF(bitMask & RRC_BETA_OFFSETS_ACK_IDX1_PRESENCE, pBetaOffsets, betaOffsetACK_Index1,
            pRrcBetaOffsets->betaOffsetAckIdx1);
    COPY_IF(bitMask & RRC_BETA_OFFSETS_ACK_IDX2_PRESENCE, pBetaOffsets, betaOffsetACK_Index2,
            pRrcBetaOffsets->betaOffsetAckIdx2);
    COPY_IF(bitMask & RRC_BETA_OFFSETS_ACK_IDX3_PRESENCE, pBetaOffsets, betaOffsetACK_Index3,
            pRrcBetaOffsets->betaOffsetAckIdx3);
    COPY_IF(bitMask & RRC_BETA_OFFSETS_CSI_PART1_IDX1_PRESENCE, pBetaOffsets, betaOffsetCSI_Part1_Index1,
            pRrcBetaOffsets->betaOffsetCSIPart1Idx1);
    COPY_IF(bitMask & RRC_BETA_OFFSETS_CSI_PART1_IDX2_PRESENCE, pBetaOffsets, betaOffsetCSI_Part1_Index2,
            pRrcBetaOffsets->betaOffsetCSIPart1Idx2);
    COPY_IF(bitMask & RRC_BETA_OFFSETS_CSI_PART2_IDX1_PRESENCE, pBetaOffsets, betaOffsetCSI_Part2_Index1,
            pRrcBetaOffsets->betaOffsetCSIPart2Idx1);
    COPY_IF(bitMask & RRC_BETA_OFFSETS_CSI_PART2_IDX2_PRESENCE, pBetaOffsets, betaOffsetCSI_Part2_Index2,
            pRrcBetaOffsets->betaOffsetCSIPart2Idx2);
    return VOS_OK;
}
