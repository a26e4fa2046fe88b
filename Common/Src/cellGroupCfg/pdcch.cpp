#include "pdcch.h"

#include "bitString.h"
#include "compose.h"

// BWP-DownlinkDedicated.pdcch-Config
INT32 rrcComposePdcch_Config(OSCTXT* pAsnCxt, BWP_DownlinkDedicated_pdcch_Config* pPdcch_Config,
                             RrcPdcchCfg_t* pRrcPdcchCfg)
{
    NULL_CHECK(pPdcch_Config);
    NULL_CHECK(pRrcPdcchCfg);

    RETURN_IF_FAILED(compose::setup(pAsnCxt, pPdcch_Config, pRrcPdcchCfg, rrcComposePdcch_ConfigSetup),
                     "rrcComposePdcch_ConfigSetup Error\r\n");
    return VOS_OK;
}

// BWP-DownlinkDedicated.pdcch-Config.setup
INT32 rrcComposePdcch_ConfigSetup(OSCTXT* pAsnCxt, PDCCH_Config* pSetup, RrcPdcchCfg_t* pRrcPdcchCfg)
{
    if (pRrcPdcchCfg->numControlResourceSetAddMod != 0)
    {
        pSetup->m.controlResourceSetToAddModListPresent = 1;
        RETURN_IF_FAILED(
            rrcComposecontrolResourceSetToAddList(pAsnCxt, &pSetup->controlResourceSetToAddModList, pRrcPdcchCfg),
            "rrcComposecontrolResourceSetToAddList Error\r\n");
    }
    if (pRrcPdcchCfg->numControlResourceSetRel != 0)
    {
        pSetup->m.controlResourceSetToReleaseListPresent = 1;
        RETURN_IF_FAILED(rrcComposecontrolResourceSetToRelList(&pSetup->controlResourceSetToReleaseList, pRrcPdcchCfg),
                         "rrcComposecontrolResourceSetToRelList Error\r\n");
    }
    if (pRrcPdcchCfg->numSearchSpaceAddMod != 0)
    {
        pSetup->m.searchSpacesToAddModListPresent = 1;
        RETURN_IF_FAILED(rrcComposeSearchSpacesToAddModList(pAsnCxt, &pSetup->searchSpacesToAddModList, pRrcPdcchCfg),
                         "rrcComposeSearchSpacesToAddModList Error\r\n");
    }
    if (pRrcPdcchCfg->numSearchSpaceRel != 0)
    {
        pSetup->m.searchSpacesToReleaseListPresent = 1;
        RETURN_IF_FAILED(rrcComposeSearchSpacesToReleaesList(&pSetup->searchSpacesToReleaseList, pRrcPdcchCfg),
                         "rrcComposeSearchSpacesToReleaesList Error\r\n");
    }
    if (pRrcPdcchCfg->bitMask & RRC_PDCCH_CFG_Dl_PREEMPTION_PRESENCE)
    {
        pSetup->m.downlinkPreemptionPresent = 1;
        RETURN_IF_FAILED(
            rrcComposeDownlinkPreemption(pAsnCxt, &pSetup->downlinkPreemption, &pRrcPdcchCfg->dlPreemption),
            "rrcComposeDownlinkPreemption Error\r\n");
    }
    if (pRrcPdcchCfg->bitMask & RRC_PDCCH_CFG_PUSCH_TPC_CMDCFG_PRESENCE)
    {
        pSetup->m.tpc_PUSCHPresent = 1;
        RETURN_IF_FAILED(rrcComposeTpc_PUSCH(pAsnCxt, &pSetup->tpc_PUSCH, &pRrcPdcchCfg->tpcPusch),
                         "rrcComposeTpc_PUSCH Error\r\n");
    }
    if (pRrcPdcchCfg->bitMask & RRC_PDCCH_CFG_PUCCH_TPC_CMDCFG_PRESENCE)
    {
        pSetup->m.tpc_PUCCHPresent = 1;
        RETURN_IF_FAILED(rrcComposeTpc_PUCCH(pAsnCxt, &pSetup->tpc_PUCCH, &pRrcPdcchCfg->tpcPucch),
                         "rrcComposeTpc_PUCCH Error\r\n");
    }
    if (pRrcPdcchCfg->bitMask & RRC_PDCCH_CFG_SPS_TPC_CMDCFG_PRESENCE)
    {
        pSetup->m.tpc_SRSPresent = 1;
        RETURN_IF_FAILED(rrcComposeTpc_SRS(pAsnCxt, &pSetup->tpc_SRS, &pRrcPdcchCfg->tpcSrs),
                         "rrcComposeTpc_SRS Error\r\n");
    }
    return VOS_OK;
}

// PDCCH-Config.controlResourceSetToAddModList
INT32 rrcComposecontrolResourceSetToAddList(OSCTXT* pAsnCxt, PDCCH_Config_controlResourceSetToAddModList* pToAddModList,
                                            RrcPdcchCfg_t* pRrcPdcchCfg)
{
    return compose::list<ControlResourceSet>(
        pAsnCxt, pToAddModList, pRrcPdcchCfg->numControlResourceSetAddMod, pRrcPdcchCfg->controlResourceSetAddMod,
        rrcComposeControlResourceSet,
        {"pNode Or pControlResourceSet is NULL\r\n", "rrcComposeControlResourceSet is Error\r\n"});
}

// PDCCH-Config.controlResourceSetToReleaseList
INT32 rrcComposecontrolResourceSetToRelList(PDCCH_Config_controlResourceSetToReleaseList* pToReleaseList,
                                            RrcPdcchCfg_t* pRrcPdcchCfg)
{
    compose::array(pToReleaseList, pRrcPdcchCfg->numControlResourceSetRel, pRrcPdcchCfg->controlResourceSetIdx);
    return VOS_OK;
}

// ControlResourceSet
INT32 rrcComposeControlResourceSet(OSCTXT* pAsnCxt, ControlResourceSet* pControlResourceSet,
                                   RrcControlResourceSet_t* pRrcControlResourceSet)
{
    assign(pControlResourceSet->controlResourceSetId, pRrcControlResourceSet->setIdx);
    (void)uint64To45ASN1BitStr(pControlResourceSet->frequencyDomainResources,
                               pRrcControlResourceSet->freqDomainResource);
    assign(pControlResourceSet->duration, pRrcControlResourceSet->duration);
    RETURN_IF_FAILED(
        rrcComposeCce_REG_MappingType(pAsnCxt, &pControlResourceSet->cce_REG_MappingType, pRrcControlResourceSet),
        "rrcComposeCce_REG_MappingType Error\r\n");
    assign(pControlResourceSet->precoderGranularity, pRrcControlResourceSet->precoderGranularity);
    if (pRrcControlResourceSet->numTciStatesPdcchAdd != 0)
    {
        pControlResourceSet->m.tci_StatesPDCCH_ToAddListPresent = 1;
        RETURN_IF_FAILED(rrcComposetci_StatesPDCCH_ToAddList(&pControlResourceSet->tci_StatesPDCCH_ToAddList,
                                                             pRrcControlResourceSet),
                         "rrcComposetci_StatesPDCCH_ToAddList Error\r\n");
    }
    if (pRrcControlResourceSet->numTciStatesPdcchRel != 0)
    {
        pControlResourceSet->m.tci_StatesPDCCH_ToReleaseListPresent = 1;
        RETURN_IF_FAILED(rrcComposetci_StatesPDCCH_ReleaesList(&pControlResourceSet->tci_StatesPDCCH_ToReleaseList,
                                                               pRrcControlResourceSet),
                         "rrcComposetci_StatesPDCCH_ReleaesList Error\r\n");
    }
    COPY_IF(pRrcControlResourceSet->bitMask & RRC_CONTROL_RESOURCE_SET_TCI_IN_DCI_PRESENCE, pControlResourceSet,
            tci_PresentInDCI, pRrcControlResourceSet->enTciPresentInDci);
    COPY_IF(pRrcControlResourceSet->bitMask & RRC_CONTROL_RESOURCE_SET_PDCCH_SCRAMBID_PRESENCE, pControlResourceSet,
            pdcch_DMRS_ScramblingID, pRrcControlResourceSet->pdcchDmrsScramblindId);
    return VOS_OK;
}

// ControlResourceSet.cce-REG-MappingType
INT32 rrcComposeCce_REG_MappingType(OSCTXT* pAsnCxt, ControlResourceSet_cce_REG_MappingType* pCce_REG_MappingType,
                                    RrcControlResourceSet_t* pRrcControlResourceSet)
{
    if (pRrcControlResourceSet->presence & RRC_CCE_MAP_TYPE_INTERLEAVED)
    {
        (void)compose::alternative(pAsnCxt, pCce_REG_MappingType, T_ControlResourceSet_cce_REG_MappingType_interleaved,
                                   pCce_REG_MappingType->u.interleaved, &pRrcControlResourceSet->interLeaved,
                                   rrcComposeInterleaved);
    }
    else
    {
        // Also without RRC_CCE_MAP_TYPE_NON_INTERLEAVED: the choice always has an alternative.
        pCce_REG_MappingType->t = T_ControlResourceSet_cce_REG_MappingType_nonInterleaved;
    }
    return VOS_OK;
}

// ControlResourceSet.cce-REG-MappingType.interleaved
INT32 rrcComposeInterleaved(ControlResourceSet_cce_REG_MappingType_interleaved* pInterleaved,
                            RrcInterleaved_t* pRrcInterleaved)
{
    assign(pInterleaved->reg_BundleSize, pRrcInterleaved->regBundleSize);
    assign(pInterleaved->interleaverSize, pRrcInterleaved->interleaveSize);
    COPY_IF(pRrcInterleaved->bitMask & RRC_INTERLEACED_SHIFT_INDEX_PRESENCE, pInterleaved, shiftIndex,
            pRrcInterleaved->shiftIdx);
    return VOS_OK;
}

// ControlResourceSet.tci-StatesPDCCH-ToAddList
INT32 rrcComposetci_StatesPDCCH_ToAddList(ControlResourceSet_tci_StatesPDCCH_ToAddList* pTci_StatesPDCCH_ToAddList,
                                          RrcControlResourceSet_t* pRrcControlResourceSet)
{
    compose::array(pTci_StatesPDCCH_ToAddList, pRrcControlResourceSet->numTciStatesPdcchAdd,
                   pRrcControlResourceSet->tciStateAddId);
    return VOS_OK;
}

// ControlResourceSet.tci-StatesPDCCH-ToReleaseList
INT32 rrcComposetci_StatesPDCCH_ReleaesList(
    ControlResourceSet_tci_StatesPDCCH_ToReleaseList* pTci_StatesPDCCH_ToReleaseList,
    RrcControlResourceSet_t* pRrcControlResourceSet)
{
    compose::array(pTci_StatesPDCCH_ToReleaseList, pRrcControlResourceSet->numTciStatesPdcchRel,
                   pRrcControlResourceSet->tciStateRelId);
    return VOS_OK;
}

// PDCCH-Config.searchSpacesToAddModList
INT32 rrcComposeSearchSpacesToAddModList(OSCTXT* pAsnCxt, PDCCH_Config_searchSpacesToAddModList* pToAddModList,
                                         RrcPdcchCfg_t* pRrcPdcchCfg)
{
    return compose::list<SearchSpace>(pAsnCxt, pToAddModList, pRrcPdcchCfg->numSearchSpaceAddMod,
                                      pRrcPdcchCfg->searchSpaceAddMod, rrcComposeSearchSpace,
                                      {"pNode Or pSearchSpace is NULL\r\n", "rrcComposeSearchSpace is Error\r\n"});
}

// PDCCH-Config.searchSpacesToReleaseList
INT32 rrcComposeSearchSpacesToReleaesList(PDCCH_Config_searchSpacesToReleaseList* pToReleaseList,
                                          RrcPdcchCfg_t* pRrcPdcchCfg)
{
    compose::array(pToReleaseList, pRrcPdcchCfg->numSearchSpaceRel, pRrcPdcchCfg->searchSpaceId);
    return VOS_OK;
}

// SearchSpace
INT32 rrcComposeSearchSpace(OSCTXT* pAsnCxt, SearchSpace* pSearchSpace, RrcSearchSpace_t* pRrcSearchSpace)
{
    assign(pSearchSpace->searchSpaceId, pRrcSearchSpace->searchSpaceId);
    COPY_IF(pRrcSearchSpace->bitMask & RRC_SEARCH_SPACE_CONTROL_RESOURCE_SETID_PRESENCE, pSearchSpace,
            controlResourceSetId, pRrcSearchSpace->controlResourceSetId);
    if (pRrcSearchSpace->bitMask & RRC_SEARCH_SPACE_MON_SLOT_PERIOD_AND_OFFSET_PRESENCE)
    {
        pSearchSpace->m.monitoringSlotPeriodicityAndOffsetPresent = 1;
        (void)rrcComposeMonitoringSlotPerAndOffset(&pSearchSpace->monitoringSlotPeriodicityAndOffset,
                                                   &pRrcSearchSpace->monitoringSlotPeriodOffset);
    }
    COPY_IF(pRrcSearchSpace->bitMask & RRC_SEARCH_SPACE_DURATION_PRESENCE, pSearchSpace, duration,
            pRrcSearchSpace->duration);
    if (pRrcSearchSpace->bitMask & RRC_SEARCH_SPACE_MON_SYMBOL_WITH_SLOT_PRESENCE)
    {
        pSearchSpace->m.monitoringSymbolsWithinSlotPresent = 1;
        (void)uint16To14ASN1BitStr32(&pSearchSpace->monitoringSymbolsWithinSlot,
                                     pRrcSearchSpace->monitoringSysmblosWithSlot);
    }
    if (pRrcSearchSpace->bitMask & RRC_SEARCH_SPACE_NROF_CADIDATE_PRESENCE)
    {
        pSearchSpace->m.nrofCandidatesPresent = 1;
        (void)rrcComposeCrofCandidates(&pSearchSpace->nrofCandidates, &pRrcSearchSpace->nrofCadidates);
    }
    if (pRrcSearchSpace->bitMask & RRC_SEARCH_SPACE_TYPE_PRESENCE)
    {
        pSearchSpace->m.searchSpaceTypePresent = 1;
        (void)rrcComposeSearchSpaceType(pAsnCxt, &pSearchSpace->searchSpaceType, pRrcSearchSpace);
    }
    return VOS_OK;
}

// SearchSpace.monitoringSlotPeriodicityAndOffset
INT32 rrcComposeMonitoringSlotPerAndOffset(
    SearchSpace_monitoringSlotPeriodicityAndOffset* pMonitoringSlotPeriodicityAndOffset,
    struct slotPeriodOffset_s* pRrcSlotPeriodOffset)
{
    auto& u = pMonitoringSlotPeriodicityAndOffset->u;
    const UINT16 offset = pRrcSlotPeriodOffset->offset;

    // The tag is set whatever it is: the encoder refuses an unknown one.
    pMonitoringSlotPeriodicityAndOffset->t = pRrcSlotPeriodOffset->period;
    switch (pRrcSlotPeriodOffset->period)
    {
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl1:
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl2:
        assign(u.sl2, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl4:
        assign(u.sl4, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl5:
        assign(u.sl5, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl8:
        assign(u.sl8, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl10:
        assign(u.sl10, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl16:
        assign(u.sl16, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl20:
        assign(u.sl20, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl40:
        assign(u.sl40, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl80:
        assign(u.sl80, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl160:
        assign(u.sl160, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl320:
        assign(u.sl320, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl640:
        assign(u.sl640, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl1280:
        assign(u.sl1280, offset);
        break;
    case T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl2560:
        assign(u.sl2560, offset);
        break;
    default:
        VOS_Printf("%s", "No SearchSpace__monitoringSlotPeriodicityAndOffset_PR\n");
        break;
    }
    return VOS_OK;
}

// SearchSpace.nrofCandidates
INT32 rrcComposeCrofCandidates(SearchSpace_nrofCandidates* pNrofCandidates, struct nrofCadidate_s* pRrcNrofCadidates)
{
    assign(pNrofCandidates->aggregationLevel1, pRrcNrofCadidates->aggrLev1);
    assign(pNrofCandidates->aggregationLevel2, pRrcNrofCadidates->aggrLev2);
    assign(pNrofCandidates->aggregationLevel4, pRrcNrofCadidates->aggrLev4);
    assign(pNrofCandidates->aggregationLevel8, pRrcNrofCadidates->aggrLev8);
    assign(pNrofCandidates->aggregationLevel16, pRrcNrofCadidates->aggrLev16);
    return VOS_OK;
}

// SearchSpace.searchSpaceType
INT32 rrcComposeSearchSpaceType(OSCTXT* pAsnCxt, SearchSpace_searchSpaceType* pSearchSpaceType,
                                RrcSearchSpace_t* pRrcSearchSpace)
{
    if (pRrcSearchSpace->presence & RRC_SEARCH_TYPE_COMMON_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pSearchSpaceType, T_SearchSpace_searchSpaceType_common,
                                   pSearchSpaceType->u.common, &pRrcSearchSpace->searchType.common,
                                   rrcComposeSearchSpaceType_common);
    }
    if (pRrcSearchSpace->presence & RRC_SEARCH_TYPE_UE_SPECIFIC_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pSearchSpaceType, T_SearchSpace_searchSpaceType_ue_Specific,
                                   pSearchSpaceType->u.ue_Specific, &pRrcSearchSpace->searchType.ueSpecific,
                                   rrcComposeUeSpecific);
    }
    return VOS_OK;
}

// SearchSpace.searchSpaceType.common
INT32 rrcComposeSearchSpaceType_common(SearchSpace_searchSpaceType_common* pCommon, struct common_s* pRrcCommon)
{
    if (pRrcCommon->presence & RRC_SEARCH_TYPE_COMMON_DCI0_1_PRESENCE)
    {
        pCommon->m.dci_Format0_0_AndFormat1_0Present = 1;
    }
    if (pRrcCommon->presence & RRC_SEARCH_TYPE_COMMON_DCI2_0_PRESENCE)
    {
        pCommon->m.dci_Format2_0Present = 1;
        (void)rrcComposeSearchSpaceTypeDci_Format2_0(&pCommon->dci_Format2_0, &pRrcCommon->dci0AndDci2_0);
    }
    if (pRrcCommon->presence & RRC_SEARCH_TYPE_COMMON_DCI2_1_PRESENCE)
    {
        pCommon->m.dci_Format2_1Present = 1;
    }
    if (pRrcCommon->presence & RRC_SEARCH_TYPE_COMMON_DCI2_2_PRESENCE)
    {
        pCommon->m.dci_Format2_2Present = 1;
    }
    if (pRrcCommon->presence & RRC_SEARCH_TYPE_COMMON_DCI2_3_PRESENCE)
    {
        pCommon->m.dci_Format2_3Present = 1;
        COPY_IF(pRrcCommon->dci2_3.presence & RRC_DCI2_3_DUMMY1_PRESENCE, &pCommon->dci_Format2_3, dummy1,
                pRrcCommon->dci2_3.dummy1);
        assign(pCommon->dci_Format2_3.dummy2, pRrcCommon->dci2_3.dummy2);
    }
    return VOS_OK;
}

// SearchSpace.searchSpaceType.common.dci-Format2-0
INT32 rrcComposeSearchSpaceTypeDci_Format2_0(SearchSpace_searchSpaceType_common_dci_Format2_0* pDci_Format2_0,
                                             struct dciFormat2_0_s* pRrcDciFormat2_0)
{
    auto* const pNrofCandidates_SFI = &pDci_Format2_0->nrofCandidates_SFI;
    COPY_IF(pRrcDciFormat2_0->presence & RRC_DCI2_0_AGGR_LEV1_PRESENCE, pNrofCandidates_SFI, aggregationLevel1,
            pRrcDciFormat2_0->aggrLev1);
    COPY_IF(pRrcDciFormat2_0->presence & RRC_DCI2_0_AGGR_LEV2_PRESENCE, pNrofCandidates_SFI, aggregationLevel2,
            pRrcDciFormat2_0->aggrLev2);
    COPY_IF(pRrcDciFormat2_0->presence & RRC_DCI2_0_AGGR_LEV4_PRESENCE, pNrofCandidates_SFI, aggregationLevel4,
            pRrcDciFormat2_0->aggrLev4);
    COPY_IF(pRrcDciFormat2_0->presence & RRC_DCI2_0_AGGR_LEV8_PRESENCE, pNrofCandidates_SFI, aggregationLevel8,
            pRrcDciFormat2_0->aggrLev8);
    COPY_IF(pRrcDciFormat2_0->presence & RRC_DCI2_0_AGGR_LEV16_PRESENCE, pNrofCandidates_SFI, aggregationLevel16,
            pRrcDciFormat2_0->aggrLev16);
    return VOS_OK;
}

// SearchSpace.searchSpaceType.ue-Specific
INT32 rrcComposeUeSpecific(SearchSpace_searchSpaceType_ue_Specific* pUe_Specific, struct ueSpecific_s* pRrcUeSpecific)
{
    assign(pUe_Specific->dci_Formats, pRrcUeSpecific->dciFormats);
    return VOS_OK;
}

// PDCCH-Config.downlinkPreemption
INT32 rrcComposeDownlinkPreemption(OSCTXT* pAsnCxt, PDCCH_Config_downlinkPreemption* pDownlinkPreemption,
                                   RrcDlPreemption_t* pRrcDlPreemption)
{
    NULL_CHECK(pDownlinkPreemption);
    NULL_CHECK(pRrcDlPreemption);

    RETURN_IF_FAILED(compose::setup(pAsnCxt, pDownlinkPreemption, pRrcDlPreemption, rrcComposeDownlinkPreemptionSetup),
                     "rrcComposeDownlinkPreemptionSetup is Error\r\n");
    return VOS_OK;
}

// PDCCH-Config.downlinkPreemption.setup
INT32 rrcComposeDownlinkPreemptionSetup(OSCTXT* pAsnCxt, DownlinkPreemption* pSetup,
                                        RrcDlPreemption_t* pRrcDlPreemption)
{
    assign(pSetup->int_RNTI, pRrcDlPreemption->intRnti);
    assign(pSetup->timeFrequencySet, pRrcDlPreemption->timeFreqSet);
    assign(pSetup->dci_PayloadSize, pRrcDlPreemption->dciPayloadSize);
    // The line says NULL, not Error: the list fails only for want of a node.
    RETURN_IF_FAILED(
        rrcComposeInt_ConfigurationPerServingCell(pAsnCxt, &pSetup->int_ConfigurationPerServingCell, pRrcDlPreemption),
        "rrcComposeInt_ConfigurationPerServingCell is NULL\r\n");
    return VOS_OK;
}

// PDCCH-Config.downlinkPreemption.setup.int-ConfigurationPerServingCell
INT32 rrcComposeInt_ConfigurationPerServingCell(
    OSCTXT* pAsnCxt, DownlinkPreemption_int_ConfigurationPerServingCell* pInt_ConfigurationPerServingCell,
    RrcDlPreemption_t* pRrcDlPreemption)
{
    const auto copy = [](INT_ConfigurationPerServingCell* pCell, struct IntCfgPerServingCell_s* pRrcCell)
    {
        assign(pCell->servingCellId, pRrcCell->serverCellIdx);
        assign(pCell->positionInDCI, pRrcCell->positionInDci);
        return VOS_OK;
    };
    return compose::list<INT_ConfigurationPerServingCell>(
        pAsnCxt, pInt_ConfigurationPerServingCell, pRrcDlPreemption->numServingCells,
        pRrcDlPreemption->intCfgPerServingCells, copy,
        {"pNode Or pINT_ConfigurationPerServingCell is NULL\r\n", nullptr});
}

// PDCCH-Config.tpc-PUSCH
INT32 rrcComposeTpc_PUSCH(OSCTXT* pAsnCxt, PDCCH_Config_tpc_PUSCH* pTpc_PUSCH, RrcPuschTpcCmdCfg_t* pRrcTpcPusch)
{
    NULL_CHECK(pTpc_PUSCH);
    NULL_CHECK(pRrcTpcPusch);

    RETURN_IF_FAILED(compose::setup(pAsnCxt, pTpc_PUSCH, pRrcTpcPusch, rrcComposeTpc_PUSCHSetup),
                     "rrcComposeTpc_PUSCHSetup is Error\r\n");
    return VOS_OK;
}

// PDCCH-Config.tpc-PUSCH.setup
INT32 rrcComposeTpc_PUSCHSetup(PUSCH_TPC_CommandConfig* pSetup, RrcPuschTpcCmdCfg_t* pRrcTpcPusch)
{
    COPY_IF(pRrcTpcPusch->bitMask & RRC_PUSCH_TPC_INDEX_PRESENCE, pSetup, tpc_Index, pRrcTpcPusch->tpcIdx);
    COPY_IF(pRrcTpcPusch->bitMask & RRC_PUSCH_TPC_INDEX_SUL_PRESENCE, pSetup, tpc_IndexSUL, pRrcTpcPusch->tpcIdxSul);
    COPY_IF(pRrcTpcPusch->bitMask & RRC_PUSCH_TPC_TARGET_CELL_PRESENCE, pSetup, targetCell,
            pRrcTpcPusch->targetCellIdx);
    return VOS_OK;
}

// PDCCH-Config.tpc-PUCCH
INT32 rrcComposeTpc_PUCCH(OSCTXT* pAsnCxt, PDCCH_Config_tpc_PUCCH* pTpc_PUCCH, RrcPucchTpcCmdCfg_t* pRrcTpcPucch)
{
    NULL_CHECK(pTpc_PUCCH);
    NULL_CHECK(pRrcTpcPucch);

    RETURN_IF_FAILED(compose::setup(pAsnCxt, pTpc_PUCCH, pRrcTpcPucch, rrcComposeTpc_PUCCHSetup),
                     "rrcComposeTpc_PUCCHSetup is Error\r\n");
    return VOS_OK;
}

// PDCCH-Config.tpc-PUCCH.setup
INT32 rrcComposeTpc_PUCCHSetup(PUCCH_TPC_CommandConfig* pSetup, RrcPucchTpcCmdCfg_t* pRrcTpcPucch)
{
    COPY_IF(pRrcTpcPucch->bitMask & RRC_PUCCH_TPC_PCELL_PRESENCE, pSetup, tpc_IndexPCell, pRrcTpcPucch->tpcPcellIdx);
    COPY_IF(pRrcTpcPucch->bitMask & RRC_PUCCH_TPC_SCELL_PRESENCE, pSetup, tpc_IndexPUCCH_SCell,
            pRrcTpcPucch->tpcScellIdx);
    return VOS_OK;
}

// PDCCH-Config.tpc-SRS
INT32 rrcComposeTpc_SRS(OSCTXT* pAsnCxt, PDCCH_Config_tpc_SRS* pTpc_SRS, RrcSrsTpcCmdCfg_t* pRrctpcSrs)
{
    NULL_CHECK(pTpc_SRS);
    NULL_CHECK(pRrctpcSrs);

    RETURN_IF_FAILED(compose::setup(pAsnCxt, pTpc_SRS, pRrctpcSrs, rrcComposeTpc_SRSSetup),
                     "rrcComposeTpc_SRSSetup is Error\r\n");
    return VOS_OK;
}

// PDCCH-Config.tpc-SRS.setup
INT32 rrcComposeTpc_SRSSetup(SRS_TPC_CommandConfig* pSetup, RrcSrsTpcCmdCfg_t* pRrctpcSrs)
{
    COPY_IF(pRrctpcSrs->bitMask & RRC_SRS_TPC_STARTING_BIT_PRESENCE, pSetup, startingBitOfFormat2_3,
            pRrctpcSrs->startBitFormat2_3);
    COPY_IF(pRrctpcSrs->bitMask & RRC_SRS_TPC_FIELD_TYPE_PRESENCE, pSetup, fieldTypeFormat2_3,
            pRrctpcSrs->feildTypeFormat2_3);
    // Bit 0 also carries the SUL field; its extension group is not flagged, so it is not sent.
    COPY_IF(pRrctpcSrs->bitMask & RRC_SRS_TPC_STARTING_BIT_PRESENCE, pSetup, startingBitOfFormat2_3SUL_v1530,
            pRrctpcSrs->startBitSulFormat2_3);
    return VOS_OK;
}
