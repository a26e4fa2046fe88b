#include "pdsch.h"

#include <iterator>

#include "bitString.h"
#include "compose.h"
#include "resourceMapping.h"
#include "servingCellCommon.h"

// BWP-DownlinkDedicated.pdsch-Config
INT32 rrcComposePdsch_Config(OSCTXT* pAsnCxt, BWP_DownlinkDedicated_pdsch_Config* pPdsch_Config,
                             RrcPdschCfg_t* pRrcdschCfg)
{
    NULL_CHECK(pPdsch_Config);
    NULL_CHECK(pRrcdschCfg);

    RETURN_IF_FAILED(compose::setup(pAsnCxt, pPdsch_Config, pRrcdschCfg, rrcComposePdsch_ConfigSetup),
                     "rrcComposePdsch_ConfigSetup Error\r\n");
    return VOS_OK;
}

// BWP-DownlinkDedicated.pdsch-Config.setup
INT32 rrcComposePdsch_ConfigSetup(OSCTXT* pAsnCxt, PDSCH_Config* pSetup, RrcPdschCfg_t* pRrcdschCfg)
{
    // Only PRB bundling can fail the whole: lists cut short by the heap are sent as far as they were built.
    COPY_IF(pRrcdschCfg->bitMask & RRC_PDSCH_CFG_DATA_SCRAMBLING_ID_PRESENCE, pSetup, dataScramblingIdentityPDSCH,
            pRrcdschCfg->dataScramblingIDPdsch);
    if (pRrcdschCfg->bitMask & RRC_PDSCH_CFG_MAPPING_TYPEA_PRESENCE)
    {
        pSetup->m.dmrs_DownlinkForPDSCH_MappingTypeAPresent = 1;
        (void)rrcComposeDmrs_DownlinkForPDSCH_MappingTypeA(pAsnCxt, &pSetup->dmrs_DownlinkForPDSCH_MappingTypeA,
                                                           &pRrcdschCfg->dmrsDlPdschMappingTypeA);
    }
    if (pRrcdschCfg->bitMask & RRC_PDSCH_CFG_MAPPING_TYPEB_PRESENCE)
    {
        pSetup->m.dmrs_DownlinkForPDSCH_MappingTypeBPresent = 1;
        (void)rrcComposeDmrs_DownlinkForPDSCH_MappingTypeB(pAsnCxt, &pSetup->dmrs_DownlinkForPDSCH_MappingTypeB,
                                                           &pRrcdschCfg->dmrsDlPdschMappingTypeB);
    }
    if (pRrcdschCfg->numTciStatesAddMod != 0)
    {
        pSetup->m.tci_StatesToAddModListPresent = 1;
        (void)rrcComposetci_StatesToAddMod(pAsnCxt, &pSetup->tci_StatesToAddModList, pRrcdschCfg);
    }
    if (pRrcdschCfg->numTciStatesRel != 0)
    {
        pSetup->m.tci_StatesToReleaseListPresent = 1;
        (void)rrcComposetci_StatesRelase(&pSetup->tci_StatesToReleaseList, pRrcdschCfg);
    }
    COPY_IF(pRrcdschCfg->bitMask & RRC_PDSCH_CFG_INTERLEAVE_PRESENCE, pSetup, vrb_ToPRB_Interleaver,
            pRrcdschCfg->vrbToPrbInterleaver);
    assign(pSetup->resourceAllocation, pRrcdschCfg->resourceAllocation);
    if (pRrcdschCfg->bitMask & RRC_PDSCH_CFG_TIMING_ALLOC_PRESENCE)
    {
        pSetup->m.pdsch_TimeDomainAllocationListPresent = 1;
        (void)rrcComposePdsch_TimeDomainAllocationList(pAsnCxt, &pSetup->pdsch_TimeDomainAllocationList,
                                                       &pRrcdschCfg->pdschTimeDomainAllocList);
    }
    COPY_IF(pRrcdschCfg->bitMask & RRC_PDSCH_CFG_AGGR_FACTOR_PRESENCE, pSetup, pdsch_AggregationFactor,
            pRrcdschCfg->pdschAggregationFactor);
    if (pRrcdschCfg->numRateMatchPatternAddMod != 0)
    {
        pSetup->m.rateMatchPatternToAddModListPresent = 1;
        (void)rrcComposetci_RateMatchPatternToAdd(pAsnCxt, &pSetup->rateMatchPatternToAddModList, pRrcdschCfg);
    }
    if (pRrcdschCfg->numRateMatchPatternRel != 0)
    {
        pSetup->m.rateMatchPatternToReleaseListPresent = 1;
        (void)rrcComposetci_RateMatchPatternRelease(&pSetup->rateMatchPatternToReleaseList, pRrcdschCfg);
    }
    if (pRrcdschCfg->bitMask & RRC_PDSCH_CFG_RATE_PATTERN_GROUP1_PRESENCE)
    {
        pSetup->m.rateMatchPatternGroup1Present = 1;
        (void)rrcComposetci_RateMatchPatternGroup(pAsnCxt, &pSetup->rateMatchPatternGroup1,
                                                  &pRrcdschCfg->rateMatchPatternGroup1);
    }
    if (pRrcdschCfg->bitMask & RRC_PDSCH_CFG_RATE_PATTERN_GROUP2_PRESENCE)
    {
        pSetup->m.rateMatchPatternGroup2Present = 1;
        (void)rrcComposetci_RateMatchPatternGroup(pAsnCxt, &pSetup->rateMatchPatternGroup2,
                                                  &pRrcdschCfg->rateMatchPatternGroup2);
    }
    assign(pSetup->rbg_Size, pRrcdschCfg->rbgSize);
    COPY_IF(pRrcdschCfg->bitMask & RRC_PDSCH_CFG_MCS_TABLE_PRESENCE, pSetup, mcs_Table, pRrcdschCfg->mcsTable);
    COPY_IF(pRrcdschCfg->bitMask & RRC_PDSCH_CFG_CODEWORDS_BY_DCI_PRESENCE, pSetup, maxNrofCodeWordsScheduledByDCI,
            pRrcdschCfg->maxNrofCodeWordsScheduleByDCI);
    RETURN_IF_FAILED(rrcComposePrb_BundlingType(pAsnCxt, &pSetup->prb_BundlingType, pRrcdschCfg),
                     "rrcComposePrb_BundlingType Error\r\n");
    if (pRrcdschCfg->numZpCsiRsResouceAddMod != 0)
    {
        pSetup->m.zp_CSI_RS_ResourceToAddModListPresent = 1;
        (void)rrcComposezp_CSI_RS_ResourceToAddMod(pAsnCxt, &pSetup->zp_CSI_RS_ResourceToAddModList, pRrcdschCfg);
    }
    if (pRrcdschCfg->numZpCsiRsResouceRel != 0)
    {
        pSetup->m.zp_CSI_RS_ResourceToReleaseListPresent = 1;
        (void)rrcComposezp_CSI_RS_ResourceReleaes(&pSetup->zp_CSI_RS_ResourceToReleaseList, pRrcdschCfg);
    }
    if (pRrcdschCfg->numZpCsiRsResourceSetAddMod != 0)
    {
        pSetup->m.aperiodic_ZP_CSI_RS_ResourceSetsToAddModListPresent = 1;
        (void)rrcComposezp_CSI_RS_ResourceSetToAddMod(pAsnCxt, &pSetup->aperiodic_ZP_CSI_RS_ResourceSetsToAddModList,
                                                      pRrcdschCfg);
    }
    if (pRrcdschCfg->numZpCsiRsResourceSetRel != 0)
    {
        pSetup->m.aperiodic_ZP_CSI_RS_ResourceSetsToReleaseListPresent = 1;
        (void)rrcComposezp_CSI_RS_ResourceSetRelease(&pSetup->aperiodic_ZP_CSI_RS_ResourceSetsToReleaseList,
                                                     pRrcdschCfg);
    }
    if (pRrcdschCfg->bitMask & RRC_PDSCH_CFG_ZP_CSI_RS_RESOURCE_SET_PRESENCE)
    {
        pSetup->m.p_ZP_CSI_RS_ResourceSetPresent = 1;
        (void)rrcComposePZP_CSI_RS_ResourceSetPresent(pAsnCxt, &pSetup->p_ZP_CSI_RS_ResourceSet,
                                                      &pRrcdschCfg->pZpCsiRsResourceSet);
    }
    return VOS_OK;
}

// PDSCH-Config.dmrs-DownlinkForPDSCH-MappingTypeA
INT32 rrcComposeDmrs_DownlinkForPDSCH_MappingTypeA(
    OSCTXT* pAsnCxt, PDSCH_Config_dmrs_DownlinkForPDSCH_MappingTypeA* pDmrs_DownlinkForPDSCH_MappingTypeA,
    RrcDmrsDlCfg_t* pRrcTypeA)
{
    RETURN_IF_FAILED(compose::setup(pAsnCxt, pDmrs_DownlinkForPDSCH_MappingTypeA, pRrcTypeA, rrcComposeTypeSetup),
                     "rrcComposeTypeSetup Error\r\n");
    return VOS_OK;
}

// PDSCH-Config.dmrs-DownlinkForPDSCH-MappingTypeB
INT32 rrcComposeDmrs_DownlinkForPDSCH_MappingTypeB(
    OSCTXT* pAsnCxt, PDSCH_Config_dmrs_DownlinkForPDSCH_MappingTypeB* pDmrs_DownlinkForPDSCH_MappingTypeB,
    RrcDmrsDlCfg_t* pRrcTypeB)
{
    RETURN_IF_FAILED(compose::setup(pAsnCxt, pDmrs_DownlinkForPDSCH_MappingTypeB, pRrcTypeB, rrcComposeTypeSetup),
                     "rrcComposeTypeSetup Error\r\n");
    return VOS_OK;
}

// DMRS-DownlinkConfig, of either mapping type
INT32 rrcComposeTypeSetup(OSCTXT* pAsnCxt, DMRS_DownlinkConfig* pSetup, RrcDmrsDlCfg_t* pRrcTypeA)
{
    NULL_CHECK(pSetup);
    NULL_CHECK(pRrcTypeA);

    COPY_IF(pRrcTypeA->bitMask & RRC_DMRS_DL_CFG_TYPE_PRESENCE, pSetup, dmrs_Type, pRrcTypeA->dmrsType);
    COPY_IF(pRrcTypeA->bitMask & RRC_DMRS_DL_CFG_ADDI_POSITION_PRESENCE, pSetup, dmrs_AdditionalPosition,
            pRrcTypeA->dmrsAdditionalPos);
    COPY_IF(pRrcTypeA->bitMask & RRC_DMRS_DL_CFG_MAX_LEN_PRESENCE, pSetup, maxLength, pRrcTypeA->maxLength);
    COPY_IF(pRrcTypeA->bitMask & RRC_DMRS_DL_CFG_SCRAM_ID0_PRESENCE, pSetup, scramblingID0, pRrcTypeA->scramblingID0);
    COPY_IF(pRrcTypeA->bitMask & RRC_DMRS_DL_CFG_SCRAM_ID1_PRESENCE, pSetup, scramblingID1, pRrcTypeA->scramblingID1);
    if (pRrcTypeA->bitMask & RRC_DMRS_DL_CFG_TRACKRS_PRESENCE)
    {
        pSetup->m.phaseTrackingRSPresent = 1;
        (void)rrcComposePhaseTrackingRS(pAsnCxt, &pSetup->phaseTrackingRS, &pRrcTypeA->phaseTrackingRS);
    }
    return VOS_OK;
}

// DMRS-DownlinkConfig.phaseTrackingRS
INT32 rrcComposePhaseTrackingRS(OSCTXT* pAsnCxt, DMRS_DownlinkConfig_phaseTrackingRS* pPhaseTrackingRS,
                                RrcPtrsDlCfg_t* pRrcPhaseTrackingRS)
{
    NULL_CHECK(pPhaseTrackingRS);
    NULL_CHECK(pRrcPhaseTrackingRS);

    RETURN_IF_FAILED(compose::setup(pAsnCxt, pPhaseTrackingRS, pRrcPhaseTrackingRS, rrcComposePTRS_DownlinkConfigSetup),
                     "rrcComposePTRS_DownlinkConfigSetup Error\r\n");
    return VOS_OK;
}

// DMRS-DownlinkConfig.phaseTrackingRS.setup
INT32 rrcComposePTRS_DownlinkConfigSetup(PTRS_DownlinkConfig* pSetup, RrcPtrsDlCfg_t* pRrcPhaseTrackingRS)
{
    if (pRrcPhaseTrackingRS->bitMask & RRC_PTRS_DL_CFG_FREQ_DENSITY_PRESENCE)
    {
        pSetup->m.frequencyDensityPresent = 1;
        compose::entries(pSetup->frequencyDensity.elem, std::size(pRrcPhaseTrackingRS->freqDensity),
                         pRrcPhaseTrackingRS->freqDensity);
    }
    if (pRrcPhaseTrackingRS->bitMask & RRC_PTRS_DL_CFG_TIME_DENSITY_PRESENCE)
    {
        pSetup->m.timeDensityPresent = 1;
        compose::entries(pSetup->timeDensity.elem, std::size(pRrcPhaseTrackingRS->timeDensity),
                         pRrcPhaseTrackingRS->timeDensity);
    }
    COPY_IF(pRrcPhaseTrackingRS->bitMask & RRC_PTRS_DL_CFG_EPRE_RATIO_PRESENCE, pSetup, epre_Ratio,
            pRrcPhaseTrackingRS->epreRatio);
    COPY_IF(pRrcPhaseTrackingRS->bitMask & RRC_PTRS_DL_CFG_RESOURCE_ELE_OFFSET_PRESENCE, pSetup, resourceElementOffset,
            pRrcPhaseTrackingRS->resourceElementOffset);
    return VOS_OK;
}

// PDSCH-Config.tci-StatesToAddModList
INT32 rrcComposetci_StatesToAddMod(OSCTXT* pAsnCxt, PDSCH_Config_tci_StatesToAddModList* pTci_StatesToAddModList,
                                   RrcPdschCfg_t* pRrcdschCfg)
{
    return compose::list<TCI_State>(pAsnCxt, pTci_StatesToAddModList, pRrcdschCfg->numTciStatesAddMod,
                                    pRrcdschCfg->tciStatesAddMod, rrcComposetci_StatesToAddItem,
                                    {"pNode Or pTCI_State is NULL\r\n", "rrcComposetci_StatesToAddItem is Error\r\n"});
}

// PDSCH-Config.tci-StatesToAddModList[]
INT32 rrcComposetci_StatesToAddItem(TCI_State* pTCI_State, RrcTciState_t* pRrcTciState)
{
    assign(pTCI_State->tci_StateId, pRrcTciState->tciStateId);
    (void)rrcComposeQcl_Type(&pTCI_State->qcl_Type1, &pRrcTciState->qclType1);
    if (pRrcTciState->bitMask & RRC_TCI_STATE_QCL_TYPE2_PRESENCE)
    {
        pTCI_State->m.qcl_Type2Present = 1;
        (void)rrcComposeQcl_Type(&pTCI_State->qcl_Type2, &pRrcTciState->qclType2);
    }
    return VOS_OK;
}

// TCI-State.qcl-Type1, TCI-State.qcl-Type2
INT32 rrcComposeQcl_Type(QCL_Info* pQcl_Type, RrcQclInfo_t* pRrcQclType)
{
    COPY_IF(pRrcQclType->bitMask & RRC_QCI_INFO_CELL_PRESENCE, pQcl_Type, cell, pRrcQclType->cellIdx);
    COPY_IF(pRrcQclType->bitMask & RRC_QCI_INFO_BWP_ID_PRESENCE, pQcl_Type, bwp_Id, pRrcQclType->bwpId);
    assign(pQcl_Type->qcl_Type, pRrcQclType->qclType);
    if (pRrcQclType->Presence & RRC_QCI_INFO_SSB_IDX_PRESENCE)
    {
        pQcl_Type->referenceSignal.t = T_QCL_Info_referenceSignal_ssb;
        assign(pQcl_Type->referenceSignal.u.ssb, pRrcQclType->refSignal.ssbIdx);
    }
    else
    {
        pQcl_Type->referenceSignal.t = T_QCL_Info_referenceSignal_csi_rs;
        assign(pQcl_Type->referenceSignal.u.csi_rs, pRrcQclType->refSignal.csiRsIdx);
    }
    return VOS_OK;
}

// PDSCH-Config.tci-StatesToReleaseList
INT32 rrcComposetci_StatesRelase(PDSCH_Config_tci_StatesToReleaseList* pTci_StatesToReleaseList,
                                 RrcPdschCfg_t* pRrcdschCfg)
{
    compose::array(pTci_StatesToReleaseList, pRrcdschCfg->numTciStatesRel, pRrcdschCfg->tciStateId);
    return VOS_OK;
}

// PDSCH-Config.pdsch-TimeDomainAllocationList
INT32 rrcComposePdsch_TimeDomainAllocationList(
    OSCTXT* pAsnCxt, PDSCH_Config_pdsch_TimeDomainAllocationList* pPdsch_TimeDomainAllocationList,
    RrcPdschTimeDomainResourceAllocList_t* pRrcPdschTimeDomainAllocList)
{
    (void)compose::setup(pAsnCxt, pPdsch_TimeDomainAllocationList, pRrcPdschTimeDomainAllocList,
                         rrcComposeAllocationListSetup);
    return VOS_OK;
}

// PDSCH-Config.pdsch-TimeDomainAllocationList.setup
INT32 rrcComposeAllocationListSetup(OSCTXT* pAsnCxt, PDSCH_TimeDomainResourceAllocationList* pSetup,
                                    RrcPdschTimeDomainResourceAllocList_t* pRrcPdschTimeDomainAllocList)
{
    NULL_CHECK(pSetup);
    NULL_CHECK(pRrcPdschTimeDomainAllocList);

    return compose::list<PDSCH_TimeDomainResourceAllocation>(
        pAsnCxt, pSetup, pRrcPdschTimeDomainAllocList->num, pRrcPdschTimeDomainAllocList->alloc,
        rrcComposeResourceAllocation,
        {"pNode Or pAllocationItem is NULL\r\n", "rrcComposeResourceAllocation is Error\r\n"});
}

// PDSCH-TimeDomainResourceAllocation
INT32 rrcComposeResourceAllocation(PDSCH_TimeDomainResourceAllocation* pAllocationItem,
                                   RrcPdschTimeDomainResourceAlloc_t* pRrcAlloc)
{
    COPY_IF(pRrcAlloc->bitMask & RRC_PDSCH_TIMING_KO_PRESENCE, pAllocationItem, k0, pRrcAlloc->k0);
    assign(pAllocationItem->mappingType, pRrcAlloc->mappingType);
    assign(pAllocationItem->startSymbolAndLength, pRrcAlloc->startSymAdnLen);
    return VOS_OK;
}

// PDSCH-Config.rateMatchPatternToAddModList
INT32 rrcComposetci_RateMatchPatternToAdd(OSCTXT* pAsnCxt,
                                          PDSCH_Config_rateMatchPatternToAddModList* pRateMatchPatternToAddModList,
                                          RrcPdschCfg_t* pRrcdschCfg)
{
    return compose::list<RateMatchPattern>(
        pAsnCxt, pRateMatchPatternToAddModList, pRrcdschCfg->numRateMatchPatternAddMod, pRrcdschCfg->rateMatchPattern,
        rrcComposeRateMatchPattern,
        {"pNode Or pRateMatchPattern is NULL\r\n", "rrcComposeRateMatchPattern is Error\r\n"});
}

// PDSCH-Config.rateMatchPatternToReleaseList
INT32 rrcComposetci_RateMatchPatternRelease(PDSCH_Config_rateMatchPatternToReleaseList* pRateMatchPatternToReleaseList,
                                            RrcPdschCfg_t* pRrcdschCfg)
{
    compose::array(pRateMatchPatternToReleaseList, pRrcdschCfg->numRateMatchPatternRel,
                   pRrcdschCfg->rateMatchPatternId);
    return VOS_OK;
}

// PDSCH-Config.rateMatchPatternToAddModList[]
INT32 rrcComposeRateMatchPattern(OSCTXT* pAsnCxt, RateMatchPattern* pRateMatchPattern,
                                 RrcRateMatchPattern_t* pRrcRateMatchPattern)
{
    assign(pRateMatchPattern->rateMatchPatternId, pRrcRateMatchPattern->rateMatchPatternId);
    assign(pRateMatchPattern->dummy, pRrcRateMatchPattern->dummy);
    COPY_IF(pRrcRateMatchPattern->bitMask & RRC_RATE_MATCH_PATTERN_SUB_CARRIER_SPACING_PRESENCE, pRateMatchPattern,
            subcarrierSpacing, pRrcRateMatchPattern->subCarrierSapcing);
    RETURN_IF_FAILED(rrcComposePatternType(pAsnCxt, &pRateMatchPattern->patternType, pRrcRateMatchPattern),
                     "rrcComposePatternType is Error\r\n");
    return VOS_OK;
}

// RateMatchPattern.patternType
INT32 rrcComposePatternType(OSCTXT* pAsnCxt, RateMatchPattern_patternType* pPatternType,
                            RrcRateMatchPattern_t* pRrcRateMatchPattern)
{
    if (pRrcRateMatchPattern->Presence & RRC_PATTERN_TYPE_BITMAPS)
    {
        (void)compose::alternative(pAsnCxt, pPatternType, T_RateMatchPattern_patternType_bitmaps,
                                   pPatternType->u.bitmaps, &pRrcRateMatchPattern->patternType.bitmaps,
                                   rrcComposeBitmaps);
    }
    CHOOSE_IF(pRrcRateMatchPattern->Presence & RRC_PATTERN_TYPE_SETID, pPatternType, RateMatchPattern_patternType,
              controlResourceSet, pRrcRateMatchPattern->patternType.controlResourceSetId);
    return VOS_OK;
}

// RateMatchPattern.patternType.bitmaps
INT32 rrcComposeBitmaps(OSCTXT* pAsnCxt, RateMatchPattern_patternType_bitmaps* pBitmaps, RrcBitMaps_t* pRrcBitmaps)
{
    compose::copyResourceBlocks(pBitmaps, pRrcBitmaps->resourceBlocks);
    (void)rrcComposeSymbolsInResourceBlock(pAsnCxt, &pBitmaps->symbolsInResourceBlock, pRrcBitmaps);
    if (pRrcBitmaps->bitMask & RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE)
    {
        pBitmaps->m.periodicityAndPatternPresent = 1;
        (void)rrcComposePeriodicityAndPattern(pAsnCxt, &pBitmaps->periodicityAndPattern, pRrcBitmaps);
    }
    return VOS_OK;
}

// RateMatchPattern.patternType.bitmaps.symbolsInResourceBlock
INT32 rrcComposeSymbolsInResourceBlock(
    OSCTXT* pAsnCxt, RateMatchPattern_patternType_bitmaps_symbolsInResourceBlock* pSymbolsInResourceBlock,
    RrcBitMaps_t* pRrcBitmaps)
{
    ASN1BitStr32* pOneSlot = nullptr;
    if (pRrcBitmaps->symbolsInResourceBlockPresence & RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE)
    {
        compose::chooseBits(
            pAsnCxt, pSymbolsInResourceBlock, T_RateMatchPattern_patternType_bitmaps_symbolsInResourceBlock_oneSlot,
            pSymbolsInResourceBlock->u.oneSlot, uint16To14ASN1BitStr32, pRrcBitmaps->symbolsInResourceBlock.oneSlot);
        pOneSlot = pSymbolsInResourceBlock->u.oneSlot;
    }
    if (pRrcBitmaps->symbolsInResourceBlockPresence & RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE)
    {
        // Clears the one slot, if any, and not the two: the packer writes all of those. It takes the low 16 bits only.
        VOS_MemZero(pOneSlot, sizeof *pOneSlot);
        compose::chooseBits(pAsnCxt, pSymbolsInResourceBlock,
                            T_RateMatchPattern_patternType_bitmaps_symbolsInResourceBlock_twoSlots,
                            pSymbolsInResourceBlock->u.twoSlots, uint32To28ASN1BitStr32,
                            static_cast<UINT16>(pRrcBitmaps->symbolsInResourceBlock.twoSLots));
    }
    return VOS_OK;
}

// PDSCH-Config.rateMatchPatternGroup1, PDSCH-Config.rateMatchPatternGroup2
INT32 rrcComposetci_RateMatchPatternGroup(OSCTXT* pAsnCxt, RateMatchPatternGroup* pRateMatchPatternGroup1,
                                          RrcRateMatchPatternGroup_t* pRrcGroup1)
{
    NULL_CHECK(pRateMatchPatternGroup1);
    NULL_CHECK(pRrcGroup1);

    const auto composeElement =
        [pRrcGroup1](RateMatchPatternGroup_element* pItem, union rateMatchPatternGroup_u* pRrcItem)
    {
        return rrcComposePatternGroup_element(pItem, pRrcGroup1->presense, pRrcItem);
    };
    return compose::list<RateMatchPatternGroup_element>(
        pAsnCxt, pRateMatchPatternGroup1, pRrcGroup1->numRateMatchPattern, pRrcGroup1->rateMatchPatternGroup,
        composeElement, {"pNode Or pItem is NULL\r\n", "rrcComposePatternGroup_element is NULL\r\n"});
}

// RateMatchPatternGroup[]
INT32 rrcComposePatternGroup_element(RateMatchPatternGroup_element* pItem, UINT8 presense,
                                     union rateMatchPatternGroup_u* pRrcRateMatchPatternGroup)
{
    CHOOSE_IF(presense & RRC_RATE_MATCH_PATTERN_GROUP_CELL_LEVEL_PRESENCE, pItem, RateMatchPatternGroup_element,
              cellLevel, pRrcRateMatchPatternGroup->cellLevel);
    CHOOSE_IF(presense & RRC_RATE_MATCH_PATTERN_GROUP_BWP_LEVEL_PRESENCE, pItem, RateMatchPatternGroup_element,
              bwpLevel, pRrcRateMatchPatternGroup->bwpLevel);
    return VOS_OK;
}

// PDSCH-Config.prb-BundlingType
INT32 rrcComposePrb_BundlingType(OSCTXT* pAsnCxt, PDSCH_Config_prb_BundlingType* pPrb_BundlingType,
                                 RrcPdschCfg_t* pRrcdschCfg)
{
    if (pRrcdschCfg->prbBitmask & RRC_PDSCH_CFG_PRB_BUNDLING_STATIC)
    {
        (void)compose::alternative(pAsnCxt, pPrb_BundlingType, T_PDSCH_Config_prb_BundlingType_staticBundling,
                                   pPrb_BundlingType->u.staticBundling, &pRrcdschCfg->staticbundingtype,
                                   rrcComposeStaticBundling);
    }
    if (pRrcdschCfg->prbBitmask & RRC_PDSCH_CFG_PRB_BUNDLING_DYNAMIC)
    {
        (void)compose::alternative(pAsnCxt, pPrb_BundlingType, T_PDSCH_Config_prb_BundlingType_dynamicBundling,
                                   pPrb_BundlingType->u.dynamicBundling, &pRrcdschCfg->dynamicbundingtype,
                                   rrcComposeDynamicBundling);
    }
    return VOS_OK;
}

// PDSCH-Config.prb-BundlingType.staticBundling
INT32 rrcComposeStaticBundling(PDSCH_Config_prb_BundlingType_staticBundling* pStaticBundling,
                               staticBundingType* pRrcStaticBunding)
{
    COPY_IF(pRrcStaticBunding->bitMask & RRC_PRB_BUNDLINGTYPE_STATIC_BUNDLE_SIZE_PRESENCE, pStaticBundling, bundleSize,
            pRrcStaticBunding->bundleSize);
    return VOS_OK;
}

// PDSCH-Config.prb-BundlingType.dynamicBundling
INT32 rrcComposeDynamicBundling(PDSCH_Config_prb_BundlingType_dynamicBundling* pDynamicBundling,
                                dynamicBundingType* pRrcDynamicBunding)
{
    COPY_IF(pRrcDynamicBunding->bitMask & RRC_PRB_BUNDLINGTYPE_DYNMIC_BUNDLE_SET1_PRESENCE, pDynamicBundling,
            bundleSizeSet1, pRrcDynamicBunding->bundleSizeSet1);
    COPY_IF(pRrcDynamicBunding->bitMask & RRC_PRB_BUNDLINGTYPE_DYNMIC_BUNDLE_SET2_PRESENCE, pDynamicBundling,
            bundleSizeSet2, pRrcDynamicBunding->bundleSIzeSet2);
    return VOS_OK;
}

// PDSCH-Config.zp-CSI-RS-ResourceToAddModList
INT32 rrcComposezp_CSI_RS_ResourceToAddMod(OSCTXT* pAsnCxt,
                                           PDSCH_Config_zp_CSI_RS_ResourceToAddModList* pZp_CSI_RS_ResourceToAddModList,
                                           RrcPdschCfg_t* pRrcdschCfg)
{
    return compose::list<ZP_CSI_RS_Resource>(
        pAsnCxt, pZp_CSI_RS_ResourceToAddModList, pRrcdschCfg->numZpCsiRsResouceAddMod, pRrcdschCfg->zpCsiRsResource,
        rrcComposeZP_CSI_RS_Resource,
        {"pNode Or pZp_CSI_RS_ResItem is NULL\r\n", "rrcComposeZP_CSI_RS_Resource is Error\r\n"});
}

// PDSCH-Config.zp-CSI-RS-ResourceToReleaseList
INT32 rrcComposezp_CSI_RS_ResourceReleaes(
    PDSCH_Config_zp_CSI_RS_ResourceToReleaseList* pZp_CSI_RS_ResourceToReleaseList, RrcPdschCfg_t* pRrcdschCfg)
{
    compose::array(pZp_CSI_RS_ResourceToReleaseList, pRrcdschCfg->numZpCsiRsResouceRel, pRrcdschCfg->zpCsiRsResourceId);
    return VOS_OK;
}

// PDSCH-Config.zp-CSI-RS-ResourceToAddModList[]
INT32 rrcComposeZP_CSI_RS_Resource(OSCTXT* pAsnCxt, ZP_CSI_RS_Resource* pZp_CSI_RS_ResItem,
                                   RrcZpCsiRsResource_t* pRrcZpCsiRsResource)
{
    assign(pZp_CSI_RS_ResItem->zp_CSI_RS_ResourceId, pRrcZpCsiRsResource->zpCsiRsResourId);
    (void)rrcComposeResourceMapping(pAsnCxt, &pZp_CSI_RS_ResItem->resourceMapping,
                                    &pRrcZpCsiRsResource->resourceMapping);
    if (pRrcZpCsiRsResource->bitMask & RRC_ZP_CSI_RS_RESOURCE_PERIODICITY_OFFSET_PRESENCE)
    {
        pZp_CSI_RS_ResItem->m.periodicityAndOffsetPresent = 1;
        (void)rrcComposeperiodicityAndOffset(&pZp_CSI_RS_ResItem->periodicityAndOffset,
                                             &pRrcZpCsiRsResource->periodictityAndOffset);
    }
    return VOS_OK;
}

// PDSCH-Config.aperiodic-ZP-CSI-RS-ResourceSetsToAddModList
INT32 rrcComposezp_CSI_RS_ResourceSetToAddMod(
    OSCTXT* pAsnCxt,
    PDSCH_Config_aperiodic_ZP_CSI_RS_ResourceSetsToAddModList* pAperiodic_ZP_CSI_RS_ResourceSetsToAddModList,
    RrcPdschCfg_t* pRrcdschCfg)
{
    return compose::list<ZP_CSI_RS_ResourceSet>(
        pAsnCxt, pAperiodic_ZP_CSI_RS_ResourceSetsToAddModList, pRrcdschCfg->numZpCsiRsResourceSetAddMod,
        pRrcdschCfg->aperiodicZpCsiRsResourceSet, rrcComposeZP_CSI_RS_ResourceSet,
        {"pNode Or pZp_CSI_RS_ResSetItem is NULL\r\n", "rrcComposeZP_CSI_RS_ResourceSet is Error\r\n"});
}

// PDSCH-Config.aperiodic-ZP-CSI-RS-ResourceSetsToReleaseList
INT32 rrcComposezp_CSI_RS_ResourceSetRelease(
    PDSCH_Config_aperiodic_ZP_CSI_RS_ResourceSetsToReleaseList* pAperiodic_ZP_CSI_RS_ResourceSetsToReleaseList,
    RrcPdschCfg_t* pRrcdschCfg)
{
    compose::array(pAperiodic_ZP_CSI_RS_ResourceSetsToReleaseList, pRrcdschCfg->numZpCsiRsResourceSetRel,
                   pRrcdschCfg->zpCsiRsResourceSetId);
    return VOS_OK;
}

// PDSCH-Config.p-ZP-CSI-RS-ResourceSet
INT32 rrcComposePZP_CSI_RS_ResourceSetPresent(OSCTXT* pAsnCxt,
                                              PDSCH_Config_p_ZP_CSI_RS_ResourceSet* pP_ZP_CSI_RS_ResourceSet,
                                              RrcZpCsiRsResourceSet_t* pRrcPZpCsiRsResourceSet)
{
    NULL_CHECK(pP_ZP_CSI_RS_ResourceSet);
    NULL_CHECK(pRrcPZpCsiRsResourceSet);

    RETURN_IF_FAILED(
        compose::setup(pAsnCxt, pP_ZP_CSI_RS_ResourceSet, pRrcPZpCsiRsResourceSet, rrcComposeZP_CSI_RS_ResourceSet),
        "rrcComposeZP_CSI_RS_ResourceSet is Error\r\n");
    return VOS_OK;
}

// ZP-CSI-RS-ResourceSet
INT32 rrcComposeZP_CSI_RS_ResourceSet(ZP_CSI_RS_ResourceSet* pZp_CSI_RS_ResSetItem,
                                      RrcZpCsiRsResourceSet_t* pRrcZpCsiRsResourceSet)
{
    assign(pZp_CSI_RS_ResSetItem->zp_CSI_RS_ResourceSetId, pRrcZpCsiRsResourceSet->zpCsiRsResourceSetId);
    compose::array(&pZp_CSI_RS_ResSetItem->zp_CSI_RS_ResourceIdList, pRrcZpCsiRsResourceSet->numzpCsiRsResourId,
                   pRrcZpCsiRsResourceSet->zpCsiRsResourId);
    return VOS_OK;
}
