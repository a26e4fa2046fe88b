#include "servingCellLevel.h"

#include "compose.h"

// UplinkConfig.pusch-ServingCellConfig
INT32 rrcComposepusch_ServingCellConfig(OSCTXT* pAsnCxt, UplinkConfig_pusch_ServingCellConfig* pPusch_ServingCellConfig,
                                        RrcPuschServingCellCfg_t* pRrcPuschServingCellCfg)
{
    (void)compose::setup(pAsnCxt, pPusch_ServingCellConfig, pRrcPuschServingCellCfg,
                         rrcComposepusch_ServingCellCfgSetup);
    return VOS_OK;
}

// PUSCH-ServingCellConfig
INT32 rrcComposepusch_ServingCellCfgSetup(OSCTXT* pAsnCxt, PUSCH_ServingCellConfig* pPUSCH_ServingCellConfig,
                                          RrcPuschServingCellCfg_t* pRrcPuschServingCellCfg)
{
    const UINT8 bitMask = pRrcPuschServingCellCfg->bitMask;
    if (bitMask & RRC_PUSCH_SERVING_CELL_CFG_CODE_BLOCK_GROUP_TRANMISSION_PRESECE)
    {
        pPUSCH_ServingCellConfig->m.codeBlockGroupTransmissionPresent = 1;
        RETURN_IF_FAILED(rrcComposeodeBlockGroupTransmission(pAsnCxt,
                                                             &pPUSCH_ServingCellConfig->codeBlockGroupTransmission,
                                                             &pRrcPuschServingCellCfg->codeBlockGroupTransmission),
                         "rrcComposeodeBlockGroupTransmission Error\r\n");
    }
    COPY_IF(bitMask & RRC_PUSCH_SERVING_CELL_CFG_RATE_MATCHING_PRESECE, pPUSCH_ServingCellConfig, rateMatching,
            pRrcPuschServingCellCfg->rateMatching);
    COPY_IF(bitMask & RRC_PUSCH_SERVING_CELL_CFG_X_OVER_HEAD_PRESECE, pPUSCH_ServingCellConfig, xOverhead,
            pRrcPuschServingCellCfg->xOverhead);
    // The record has no values for these two; without the mark of their extension group they are not sent.
    if (bitMask & RRC_PUSCH_SERVING_CELL_CFG_MAX_MIMO_LAYERS)
    {
        pPUSCH_ServingCellConfig->m.maxMIMO_LayersPresent = 1;
    }
    if (bitMask & RRC_PUSCH_SERVING_CELL_CFG_PROCESS_TYPE_2ENABLE)
    {
        pPUSCH_ServingCellConfig->m.processingType2EnabledPresent = 1;
    }
    return VOS_OK;
}

// PUSCH-ServingCellConfig.codeBlockGroupTransmission
INT32 rrcComposeodeBlockGroupTransmission(
    OSCTXT* pAsnCxt, PUSCH_ServingCellConfig_codeBlockGroupTransmission* pCodeBlockGroupTransmission,
    struct rrcPuschCodeBlockGroupTransmission_s* pRrcPuschCodeBlockGroupTransmission)
{
    auto* const pSetup =
        compose::choose(pAsnCxt, pCodeBlockGroupTransmission, compose::setupTag, pCodeBlockGroupTransmission->u.setup);
    if (pSetup != nullptr)
    {
        assign(pSetup->maxCodeBlockGroupsPerTransportBlock,
               pRrcPuschCodeBlockGroupTransmission->maxCodeBlockGroupPerTansportBlock);
    }
    return VOS_OK;
}

// UplinkConfig.carrierSwitching
INT32 rrcComposeCarrierSwitching(OSCTXT* pAsnCxt, UplinkConfig_carrierSwitching* pCarrierSwitching,
                                 RrcSrsCarrierSwitching_t* pRrcSrsCarrierSwitching)
{
    (void)compose::setup(pAsnCxt, pCarrierSwitching, pRrcSrsCarrierSwitching, rrcComposeCarrierSwitchingSetup);
    return VOS_OK;
}

// SRS-CarrierSwitching
INT32 rrcComposeCarrierSwitchingSetup(OSCTXT* pAsnCxt, SRS_CarrierSwitching* pSRS_CarrierSwitching,
                                      RrcSrsCarrierSwitching_t* pRrcSrsCarrierSwitching)
{
    const UINT8 bitMask = pRrcSrsCarrierSwitching->bitMask;
    COPY_IF(bitMask & RRC_SRS_CARRIER_SWITCH_SERV_CELL_IDX_PRESENCE, pSRS_CarrierSwitching, srs_SwitchFromServCellIndex,
            pRrcSrsCarrierSwitching->srsSwitchFromServCellIdx);
    assign(pSRS_CarrierSwitching->srs_SwitchFromCarrier, pRrcSrsCarrierSwitching->SwitchFromCarrier);
    if (bitMask & RRC_SRS_CARRIER_SWITCH_SRS_TPC_PDCCH_GROUP_PRESENCE)
    {
        pSRS_CarrierSwitching->m.srs_TPC_PDCCH_GroupPresent = 1;
        RETURN_IF_FAILED(rrcComposesrs_TPC_PDCCH_Group(pAsnCxt, &pSRS_CarrierSwitching->srs_TPC_PDCCH_Group,
                                                       pRrcSrsCarrierSwitching),
                         "rrcComposesrs_TPC_PDCCH_Group Error\r\n");
    }
    if (bitMask & RRC_SRS_CARRIER_SWITCH_MONITORING_CELLS)
    {
        pSRS_CarrierSwitching->m.monitoringCellsPresent = 1;
        (void)rrcComposeMonitoringCells(&pSRS_CarrierSwitching->monitoringCells,
                                        &pRrcSrsCarrierSwitching->RrcmonitoringCells);
    }
    return VOS_OK;
}

// SRS-CarrierSwitching.srs-TPC-PDCCH-Group
INT32 rrcComposesrs_TPC_PDCCH_Group(OSCTXT* pAsnCxt, SRS_CarrierSwitching_srs_TPC_PDCCH_Group* pSrs_TPC_PDCCH_Group,
                                    RrcSrsCarrierSwitching_t* pRrcSrsCarrierSwitching)
{
    // Lists cut short by the heap are sent as far as they were built.
    if (pRrcSrsCarrierSwitching->presence & RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEA_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pSrs_TPC_PDCCH_Group, T_SRS_CarrierSwitching_srs_TPC_PDCCH_Group_typeA,
                                   pSrs_TPC_PDCCH_Group->u.typeA, &pRrcSrsCarrierSwitching->srsTpcPdcchGroup.typeA,
                                   rrcComposesrs_TPC_PDCCH_GroupTypeA);
    }
    if (pRrcSrsCarrierSwitching->presence & RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEB_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pSrs_TPC_PDCCH_Group, T_SRS_CarrierSwitching_srs_TPC_PDCCH_Group_typeB,
                                   pSrs_TPC_PDCCH_Group->u.typeB, &pRrcSrsCarrierSwitching->srsTpcPdcchGroup.typeB,
                                   rrcComposesrs_TPC_PDCCH_GroupTypeB);
    }
    return VOS_OK;
}

// SRS-CarrierSwitching.srs-TPC-PDCCH-Group.typeA
INT32 rrcComposesrs_TPC_PDCCH_GroupTypeA(OSCTXT* pAsnCxt, SRS_CarrierSwitching_srs_TPC_PDCCH_Group_typeA* pTypeA,
                                         struct typeA_s* pRrcTypeA)
{
    return compose::list<SRS_TPC_PDCCH_Config>(
        pAsnCxt, pTypeA, pRrcTypeA->num, pRrcTypeA->cfg, rrcComposeSRS_TPC_PDCCH_Cfg,
        {"pNode Or pItem is NULL\r\n", "rrcComposeSRS_TPC_PDCCH_Cfg is Error\r\n"});
}

// SRS-CarrierSwitching.srs-TPC-PDCCH-Group.typeB
INT32 rrcComposesrs_TPC_PDCCH_GroupTypeB(OSCTXT* pAsnCxt, SRS_TPC_PDCCH_Config* pTypeB, RrcSrsTpcPdcchCfg_t* pRrcTypeB)
{
    if (pRrcTypeB->num != 0)
    {
        RETURN_IF_FAILED(rrcComposeSRS_TPC_PDCCH_Cfg(pAsnCxt, pTypeB, pRrcTypeB),
                         "rrcComposeSRS_TPC_PDCCH_Cfg is Error\r\n");
    }
    return VOS_OK;
}

// SRS-TPC-PDCCH-Config
INT32 rrcComposeSRS_TPC_PDCCH_Cfg(OSCTXT* pAsnCxt, SRS_TPC_PDCCH_Config* pSRS_TPC_PDCCH_Config,
                                  RrcSrsTpcPdcchCfg_t* pRrcSrsTpcPdcchCfg)
{
    if (pRrcSrsTpcPdcchCfg->num == 0)
    {
        return VOS_OK;
    }
    pSRS_TPC_PDCCH_Config->m.srs_CC_SetIndexlistPresent = 1;
    return compose::list<SRS_CC_SetIndex>(pAsnCxt, &pSRS_TPC_PDCCH_Config->srs_CC_SetIndexlist, pRrcSrsTpcPdcchCfg->num,
                                          pRrcSrsTpcPdcchCfg->srsCcSetIdx, rrcComposeSRS_CC_SetIndex,
                                          {"pNode Or pItem is NULL\r\n", "rrcComposeSRS_CC_SetIndex is Error\r\n"});
}

// SRS-TPC-PDCCH-Config.srs-CC-SetIndexlist[]
INT32 rrcComposeSRS_CC_SetIndex(SRS_CC_SetIndex* pSRS_CC_SetIndex, struct srsCcSetIdx_s* pRrcSrsCcSetIdx)
{
    COPY_IF(pRrcSrsCcSetIdx->bitMask & RRC_SRS_CC_SET_IDX, pSRS_CC_SetIndex, cc_SetIndex, pRrcSrsCcSetIdx->ccSetIdx);
    COPY_IF(pRrcSrsCcSetIdx->bitMask & RRC_SRS_CC_SET_IDX_ONE_CC_SET, pSRS_CC_SetIndex, cc_IndexInOneCC_Set,
            pRrcSrsCcSetIdx->ccIdxInOneCcSet);
    return VOS_OK;
}

// SRS-CarrierSwitching.monitoringCells
INT32 rrcComposeMonitoringCells(SRS_CarrierSwitching_monitoringCells* pMonitoringCells,
                                struct RrcmonitoringCells_s* pRrcmonitoringCells)
{
    compose::array(pMonitoringCells, pRrcmonitoringCells->num, pRrcmonitoringCells->monitoringCells);
    return VOS_OK;
}

// ServingCellConfig.pdcch-ServingCellConfig
INT32 rrcComposePdcch_ServingCellConfig(OSCTXT* pAsnCxt,
                                        ServingCellConfig_pdcch_ServingCellConfig* pPdcch_ServingCellConfig,
                                        RrcPdcchServingCellCfg_t* pRrcPdcchServingCellCfg)
{
    (void)compose::setup(pAsnCxt, pPdcch_ServingCellConfig, pRrcPdcchServingCellCfg,
                         rrcComposePdcch_ServingCellCfgSetup);
    return VOS_OK;
}

// PDCCH-ServingCellConfig
INT32 rrcComposePdcch_ServingCellCfgSetup(OSCTXT* pAsnCxt, PDCCH_ServingCellConfig* pPDCCH_ServingCellConfig,
                                          RrcPdcchServingCellCfg_t* pRrcPdcchServingCellCfg)
{
    if (pRrcPdcchServingCellCfg->bitMask & RRC_PDCCH_SERVING_CELL_CFG_SLOT_FORMATE_IND)
    {
        pPDCCH_ServingCellConfig->m.slotFormatIndicatorPresent = 1;
        asn1Init_PDCCH_ServingCellConfig_slotFormatIndicator(&pPDCCH_ServingCellConfig->slotFormatIndicator);
        (void)rrcComposeSlotFormatIndicator(pAsnCxt, &pPDCCH_ServingCellConfig->slotFormatIndicator,
                                            &pRrcPdcchServingCellCfg->slotFormatInd);
    }
    return VOS_OK;
}

// PDCCH-ServingCellConfig.slotFormatIndicator
INT32 rrcComposeSlotFormatIndicator(OSCTXT* pAsnCxt, PDCCH_ServingCellConfig_slotFormatIndicator* pSlotFormatIndicator,
                                    RrcSlotFormatInd_t* pRrcSlotFormatInd)
{
    (void)compose::setup(pAsnCxt, pSlotFormatIndicator, pRrcSlotFormatInd, rrcComposeSlotFormatIndSetup);
    return VOS_OK;
}

// SlotFormatIndicator
INT32 rrcComposeSlotFormatIndSetup(OSCTXT* pAsnCxt, SlotFormatIndicator* pSlotFormatIndicator,
                                   RrcSlotFormatInd_t* pRrcSlotFormatInd)
{
    assign(pSlotFormatIndicator->sfi_RNTI, pRrcSlotFormatInd->sfiRnti);
    assign(pSlotFormatIndicator->dci_PayloadSize, pRrcSlotFormatInd->dciPayloadSize);
    if (pRrcSlotFormatInd->numSlotFormatCombAddMod != 0)
    {
        // A list cut short by the heap is sent as far as it was built.
        pSlotFormatIndicator->m.slotFormatCombToAddModListPresent = 1;
        (void)rrcComposeSlotFormatCombToAddMod(pAsnCxt, &pSlotFormatIndicator->slotFormatCombToAddModList,
                                               pRrcSlotFormatInd);
    }
    if (pRrcSlotFormatInd->numSlotFormatCombRel != 0)
    {
        pSlotFormatIndicator->m.slotFormatCombToReleaseListPresent = 1;
        (void)rrcComposeSlotFormatCombToRel(&pSlotFormatIndicator->slotFormatCombToReleaseList, pRrcSlotFormatInd);
    }
    return VOS_OK;
}

// SlotFormatIndicator.slotFormatCombToAddModList
INT32 rrcComposeSlotFormatCombToAddMod(OSCTXT* pAsnCxt,
                                       SlotFormatIndicator_slotFormatCombToAddModList* pSlotFormatCombToAddModList,
                                       RrcSlotFormatInd_t* pRrcSlotFormatInd)
{
    return compose::list<SlotFormatCombinationsPerCell>(
        pAsnCxt, pSlotFormatCombToAddModList, pRrcSlotFormatInd->numSlotFormatCombAddMod,
        pRrcSlotFormatInd->slotFormatCombAddMod, rrcComposeslotFormatComb,
        {"pNode Or pItem is NULL\r\n", "rrcComposeslotFormatComb is Error\r\n"});
}

// SlotFormatIndicator.slotFormatCombToAddModList[]
INT32 rrcComposeslotFormatComb(OSCTXT* pAsnCxt, SlotFormatCombinationsPerCell* pSlotFormatCombinationsPerCell,
                               RrcSlotFormatCombPerCell_t* pRrcSlotFormatCombPerCell)
{
    const UINT8 bitMask = pRrcSlotFormatCombPerCell->bitMask;
    assign(pSlotFormatCombinationsPerCell->servingCellId, pRrcSlotFormatCombPerCell->servingCellIdx);
    assign(pSlotFormatCombinationsPerCell->subcarrierSpacing, pRrcSlotFormatCombPerCell->subCarrierSpacing);
    COPY_IF(bitMask & RRC_SLOT_FORMAT_COMB_PER_CELL_SUB_CARRIER_SPACING2_PRESENCE, pSlotFormatCombinationsPerCell,
            subcarrierSpacing2, pRrcSlotFormatCombPerCell->subCarrierSpacing2);
    COPY_IF(bitMask & RRC_SLOT_FORMAT_COMB_PER_CELL_POSITION_IN_DCI_PRESENCE, pSlotFormatCombinationsPerCell,
            positionInDCI, pRrcSlotFormatCombPerCell->positionInDci);
    if (pRrcSlotFormatCombPerCell->numSlotFormatComb != 0)
    {
        // A list cut short by the heap is sent as far as it was built.
        pSlotFormatCombinationsPerCell->m.slotFormatCombinationsPresent = 1;
        asn1Init_SlotFormatCombinationsPerCell_slotFormatCombinations(
            &pSlotFormatCombinationsPerCell->slotFormatCombinations);
        (void)rrcComposeSlotFormatCombinations(pAsnCxt, &pSlotFormatCombinationsPerCell->slotFormatCombinations,
                                               pRrcSlotFormatCombPerCell);
    }
    return VOS_OK;
}

// SlotFormatCombinationsPerCell.slotFormatCombinations
INT32 rrcComposeSlotFormatCombinations(OSCTXT* pAsnCxt,
                                       SlotFormatCombinationsPerCell_slotFormatCombinations* pSlotFormatCombinations,
                                       RrcSlotFormatCombPerCell_t* pRrcSlotFormatCombPerCell)
{
    return compose::list<SlotFormatCombination>(
        pAsnCxt, pSlotFormatCombinations, pRrcSlotFormatCombPerCell->numSlotFormatComb,
        pRrcSlotFormatCombPerCell->SlotFormatComb, rrcComposeSlotFormatCombination,
        {"pNode Or pItem is NULL\r\n", "rrcComposeSlotFormatCombination is Error\r\n"});
}

// SlotFormatCombinationsPerCell.slotFormatCombinations[]
INT32 rrcComposeSlotFormatCombination(SlotFormatCombination* pSlotFormatCombination,
                                      RrcSlotFormatComb_t* pRrcSlotFormatComb)
{
    assign(pSlotFormatCombination->slotFormatCombinationId, pRrcSlotFormatComb->slotFormatCombId);
    compose::array(&pSlotFormatCombination->slotFormats, pRrcSlotFormatComb->numSlotFormat,
                   pRrcSlotFormatComb->slotsFormats);
    return VOS_OK;
}

// SlotFormatIndicator.slotFormatCombToReleaseList
INT32 rrcComposeSlotFormatCombToRel(SlotFormatIndicator_slotFormatCombToReleaseList* pSlotFormatCombToReleaseList,
                                    RrcSlotFormatInd_t* pRrcSlotFormatInd)
{
    compose::array(pSlotFormatCombToReleaseList, pRrcSlotFormatInd->numSlotFormatCombRel,
                   pRrcSlotFormatInd->servCellIdx);
    return VOS_OK;
}

// ServingCellConfig.pdsch-ServingCellConfig
INT32 rrcComposePdsch_ServingCellConfig(OSCTXT* pAsnCxt,
                                        ServingCellConfig_pdsch_ServingCellConfig* pPdsch_ServingCellConfig,
                                        RrcPdschServingCellCfg_t* pRrcPdschServingCellCfg)
{
    (void)compose::setup(pAsnCxt, pPdsch_ServingCellConfig, pRrcPdschServingCellCfg,
                         rrcComposePdsch_ServingCellCfgSetup);
    return VOS_OK;
}

// PDSCH-ServingCellConfig
INT32 rrcComposePdsch_ServingCellCfgSetup(OSCTXT* pAsnCxt, PDSCH_ServingCellConfig* pPDSCH_ServingCellConfig,
                                          RrcPdschServingCellCfg_t* pRrcPdschServingCellCfg)
{
    const UINT8 bitMask = pRrcPdschServingCellCfg->bitMask;
    if (bitMask & RRC_PDSCH_SERVING_CELL_CFG_CODE_BLOCK_GROUP_TRANMISSION_PRESENCE)
    {
        pPDSCH_ServingCellConfig->m.codeBlockGroupTransmissionPresent = 1;
        RETURN_IF_FAILED(rrcComposeCodeBlockGroupTransmission(pAsnCxt,
                                                              &pPDSCH_ServingCellConfig->codeBlockGroupTransmission,
                                                              &pRrcPdschServingCellCfg->codeBlockGroupTransmission),
                         "rrcComposeCodeBlockGroupTransmission Error\r\n");
    }
    COPY_IF(bitMask & RRC_PDSCH_SERVING_CELL_CFG_X_OVERHEAD_PRESENCE, pPDSCH_ServingCellConfig, xOverhead,
            pRrcPdschServingCellCfg->xOverHead);
    COPY_IF(bitMask & RRC_PDSCH_SERVING_CELL_CFG_NROF_HARQ_PROCESS_FOR_PDSCH_PRESENCE, pPDSCH_ServingCellConfig,
            nrofHARQ_ProcessesForPDSCH, pRrcPdschServingCellCfg->nrofHarqProcessForPDSCH);
    COPY_IF(bitMask & RRC_PDSCH_SERVING_CELL_CFG_PUCCH_CELL_PRESENCE, pPDSCH_ServingCellConfig, pucch_Cell,
            pRrcPdschServingCellCfg->cellIdx);
    if (bitMask & (RRC_PDSCH_SERVING_CELL_CFG_MAX_MIMO_LAYERS | RRC_PDSCH_SERVING_CELL_CFG_PROCESSING_TYPE2_ENABLED))
    {
        pPDSCH_ServingCellConfig->m._v2ExtPresent = 1;
    }
    COPY_IF(bitMask & RRC_PDSCH_SERVING_CELL_CFG_MAX_MIMO_LAYERS, pPDSCH_ServingCellConfig, maxMIMO_Layers,
            pRrcPdschServingCellCfg->maxMIMO_Layer);
    COPY_IF(bitMask & RRC_PDSCH_SERVING_CELL_CFG_PROCESSING_TYPE2_ENABLED, pPDSCH_ServingCellConfig,
            processingType2Enabled, pRrcPdschServingCellCfg->Type2Enabled);
    return VOS_OK;
}

// PDSCH-ServingCellConfig.codeBlockGroupTransmission
INT32 rrcComposeCodeBlockGroupTransmission(
    OSCTXT* pAsnCxt, PDSCH_ServingCellConfig_codeBlockGroupTransmission* pCodeBlockGroupTransmission,
    struct codeBlockGroupTransmission_s* pRrcCodeBlockGroupTransmission)
{
    (void)compose::setup(pAsnCxt, pCodeBlockGroupTransmission, pRrcCodeBlockGroupTransmission,
                         rrcComposePDSCH_CodeBlockGroupTransmissionSetup);
    return VOS_OK;
}

// PDSCH-CodeBlockGroupTransmission
INT32 rrcComposePDSCH_CodeBlockGroupTransmissionSetup(
    PDSCH_CodeBlockGroupTransmission* pPDSCH_CodeBlockGroupTransmission,
    struct codeBlockGroupTransmission_s* pRrcCodeBlockGroupTransmission)
{
    assign(pPDSCH_CodeBlockGroupTransmission->maxCodeBlockGroupsPerTransportBlock,
           pRrcCodeBlockGroupTransmission->maxCodeBlockGroupsPerTransportBlock);
    assign(pPDSCH_CodeBlockGroupTransmission->codeBlockGroupFlushIndicator,
           pRrcCodeBlockGroupTransmission->codeBlockGroupFlushInd);
    return VOS_OK;
}
