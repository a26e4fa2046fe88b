#include "servingCellCommon.h"

#include "bitString.h"
#include "compose.h"
#include "gnbCommon/duCompose.h"

// ServingCellConfigCommon
INT32 rrcComposeServCellConfigCommon(OSCTXT* pAsnCxt, ServingCellConfigCommon* pServCellConfigCommon,
                                     RrcServingCellCfgCommon_t* pRrcServCellCfgComm)
{
    NULL_CHECK(pServCellConfigCommon);
    NULL_CHECK(pRrcServCellCfgComm);

    // A member whose composer fails is sent as far as it was built, or refused by the encoder.
    COPY_IF(pRrcServCellCfgComm->bitMask & RRC_PHY_SCELL_Id, pServCellConfigCommon, physCellId,
            pRrcServCellCfgComm->pci);
    if (pRrcServCellCfgComm->bitMask & RRC_DOWNLINK_CFG_COMMON)
    {
        pServCellConfigCommon->m.downlinkConfigCommonPresent = 1;
        (void)rrcComposeDownlinkCfgCommon(pAsnCxt, &pServCellConfigCommon->downlinkConfigCommon,
                                          &pRrcServCellCfgComm->dlCfgComm);
    }
    if (pRrcServCellCfgComm->bitMask & RRC_UPLINK_CFG_COMMON)
    {
        pServCellConfigCommon->m.uplinkConfigCommonPresent = 1;
        (void)rrcComposeUplinkCfgCommon(pAsnCxt, &pServCellConfigCommon->uplinkConfigCommon,
                                        &pRrcServCellCfgComm->ulCfgComm);
    }
    if (pRrcServCellCfgComm->bitMask & RRC_SUPP_UPLINK_CFG_COMMON)
    {
        pServCellConfigCommon->m.supplementaryUplinkConfigPresent = 1;
        (void)rrcComposeUplinkCfgCommon(pAsnCxt, &pServCellConfigCommon->supplementaryUplinkConfig,
                                        &pRrcServCellCfgComm->suppUlCfg);
    }
    COPY_IF(pRrcServCellCfgComm->bitMask & RRC_TIMING_ADVANCE_OFFSET, pServCellConfigCommon, n_TimingAdvanceOffset,
            pRrcServCellCfgComm->nTimingAdvanceOffset);
    if (pRrcServCellCfgComm->bitMask & RRC_SSB_POSITION_IN_BURST)
    {
        pServCellConfigCommon->m.ssb_PositionsInBurstPresent = 1;
        (void)rrcComposeSsbPositionInBurst(pAsnCxt, &pServCellConfigCommon->ssb_PositionsInBurst, pRrcServCellCfgComm);
    }
    COPY_IF(pRrcServCellCfgComm->bitMask & RRC_SSB_PERIOD_CITY_SERVING_CELL, pServCellConfigCommon,
            ssb_periodicityServingCell, pRrcServCellCfgComm->ssbPeriodicityServingCell);
    assign(pServCellConfigCommon->dmrs_TypeA_Position, pRrcServCellCfgComm->dmrsTypeAPosition);
    if (pRrcServCellCfgComm->numRateMatchPatternAddMod != 0)
    {
        pServCellConfigCommon->m.rateMatchPatternToAddModListPresent = 1;
        (void)rrcComposerateMatchPatternToAddMod(pAsnCxt, &pServCellConfigCommon->rateMatchPatternToAddModList,
                                                 pRrcServCellCfgComm);
    }
    if (pRrcServCellCfgComm->numRateMatchPatternRelease != 0)
    {
        pServCellConfigCommon->m.rateMatchPatternToReleaseListPresent = 1;
        (void)rrcComposerateMatchPatternRelease(&pServCellConfigCommon->rateMatchPatternToReleaseList,
                                                pRrcServCellCfgComm);
    }
    COPY_IF(pRrcServCellCfgComm->bitMask & RRC_SUB_CARRIER_SPACING, pServCellConfigCommon, ssbSubcarrierSpacing,
            pRrcServCellCfgComm->subCarrierSpacing);
    if (pRrcServCellCfgComm->bitMask & RRC_TDD_UL_DL_CFG_COMMON)
    {
        pServCellConfigCommon->m.tdd_UL_DL_ConfigurationCommonPresent = 1;
        (void)duComposeTDD_UL_DL_ConfigCommon(pAsnCxt, &pServCellConfigCommon->tdd_UL_DL_ConfigurationCommon,
                                              &pRrcServCellCfgComm->tddUlDlCfgComm);
    }
    assign(pServCellConfigCommon->ss_PBCH_BlockPower, pRrcServCellCfgComm->ssPbchBlockPower);
    return VOS_OK;
}

// ServingCellConfigCommon.downlinkConfigCommon
INT32 rrcComposeDownlinkCfgCommon(OSCTXT* pAsnCxt, DownlinkConfigCommon* pDownlinkConfigCommon,
                                  RrcDlCfgComm_t* pRrcDlCfgComm)
{
    if (pRrcDlCfgComm->bitMask & RRC_DLCFGCOMM_FREQ_DL_PRESENCE)
    {
        pDownlinkConfigCommon->m.frequencyInfoDLPresent = 1;
        (void)rrcComposeFreqInfoDl(pAsnCxt, &pDownlinkConfigCommon->frequencyInfoDL, &pRrcDlCfgComm->freqInfoDl);
    }
    if (pRrcDlCfgComm->bitMask & RRC_DLCFGCOMM_INIT_DL_BWP_PRESENCE)
    {
        pDownlinkConfigCommon->m.initialDownlinkBWPPresent = 1;
        (void)duComposeBWP_DownlinkCommon(pAsnCxt, &pDownlinkConfigCommon->initialDownlinkBWP,
                                          &pRrcDlCfgComm->bwpDlCommon);
    }
    return VOS_OK;
}

// DownlinkConfigCommon.frequencyInfoDL
INT32 rrcComposeFreqInfoDl(OSCTXT* pAsnCxt, FrequencyInfoDL* pFrequencyInfoDL, RrcFreqInfoDl_t* pRrcFreqInfoDl)
{
    COPY_IF(pRrcFreqInfoDl->bitMask & FREQ_INFO_DL_ABS_FREQ_SSB, pFrequencyInfoDL, absoluteFrequencySSB,
            pRrcFreqInfoDl->absFreqSsb);
    assign(pFrequencyInfoDL->absoluteFrequencyPointA, pRrcFreqInfoDl->absFreqPointA);
    compose::array(&pFrequencyInfoDL->frequencyBandList, pRrcFreqInfoDl->multiBandNum, pRrcFreqInfoDl->freqBandIndNr);
    // A list cut short by the heap is sent as far as it was built.
    (void)rrcComposeRrcFreqInfoDL_ScsSpecificCarrierList(pAsnCxt, &pFrequencyInfoDL->scs_SpecificCarrierList,
                                                         pRrcFreqInfoDl);
    return VOS_OK;
}

// FrequencyInfoDL.scs-SpecificCarrierList
INT32 rrcComposeRrcFreqInfoDL_ScsSpecificCarrierList(OSCTXT* pAsnCxt,
                                                     FrequencyInfoDL_scs_SpecificCarrierList* pScsSpecificCarrierList,
                                                     RrcFreqInfoDl_t* pRrcFreqInfoDl)
{
    return compose::list<SCS_SpecificCarrier>(pAsnCxt, pScsSpecificCarrierList, pRrcFreqInfoDl->scsNum,
                                              pRrcFreqInfoDl->speCarrier, duComposeSCS_SpecificCarrier,
                                              {"pNode Or pScsSpecificCarrierItem is NULL\r\n", nullptr});
}

// ServingCellConfigCommon.uplinkConfigCommon, ServingCellConfigCommon.supplementaryUplinkConfig
INT32 rrcComposeUplinkCfgCommon(OSCTXT* pAsnCxt, UplinkConfigCommon* pUplinkConfigCommon, RrcUlCfgComm_t* pRrcUlCfgComm)
{
    if (pRrcUlCfgComm->bitMask & RRC_FREQ_INFO_UL_PRESENCE)
    {
        pUplinkConfigCommon->m.frequencyInfoULPresent = 1;
        (void)rrcComposeFreqInfoUL(pAsnCxt, &pUplinkConfigCommon->frequencyInfoUL, &pRrcUlCfgComm->freqInfoUl);
    }
    if (pRrcUlCfgComm->bitMask & RRC_BWP_UPLINK_PRESENCE)
    {
        pUplinkConfigCommon->m.initialUplinkBWPPresent = 1;
        (void)duComposeBWP_UplinkCommon(pAsnCxt, &pUplinkConfigCommon->initialUplinkBWP, &pRrcUlCfgComm->bwpUplink);
    }
    assign(pUplinkConfigCommon->dummy, pRrcUlCfgComm->timeAlignmentTimer);
    return VOS_OK;
}

// UplinkConfigCommon.frequencyInfoUL
INT32 rrcComposeFreqInfoUL(OSCTXT* pAsnCxt, FrequencyInfoUL* pFrequencyInfoUL, RrcFreqInfoUl_t* pRrcFreqInfoUl)
{
    if (pRrcFreqInfoUl->multiBandNum != 0)
    {
        pFrequencyInfoUL->m.frequencyBandListPresent = 1;
        compose::array(&pFrequencyInfoUL->frequencyBandList, pRrcFreqInfoUl->multiBandNum,
                       pRrcFreqInfoUl->freqBandIndNr);
    }
    // A list cut short by the heap is sent as far as it was built.
    (void)rrcComposeRrcFreqInfoUL_ScsSpecificCarrierList(pAsnCxt, &pFrequencyInfoUL->scs_SpecificCarrierList,
                                                         pRrcFreqInfoUl);
    // In the tree only: the presence bits of these four are never set, so they are not sent.
    if (pRrcFreqInfoUl->bitMask & FREQ_INFO_UL_ABS_FREQ_POINTEA_PRESENCE)
    {
        assign(pFrequencyInfoUL->absoluteFrequencyPointA, pRrcFreqInfoUl->absFreqPointA);
    }
    if (pRrcFreqInfoUl->bitMask & FREQ_INFO_UL_ADDIRIONAL_SPECTRUM_EMISSION_PRESENCE)
    {
        assign(pFrequencyInfoUL->additionalSpectrumEmission, pRrcFreqInfoUl->additionSpectrumEmission);
    }
    if (pRrcFreqInfoUl->bitMask & FREQ_INFO_UL_PMAX_PRESENCE)
    {
        assign(pFrequencyInfoUL->p_Max, pRrcFreqInfoUl->pMax);
    }
    if (pRrcFreqInfoUl->bitMask & FREQ_INFO_UL_FREQ_SHIFT_7P5KHZ)
    {
        assign(pFrequencyInfoUL->frequencyShift7p5khz, pRrcFreqInfoUl->freqShift7p5khz);
    }
    return VOS_OK;
}

// FrequencyInfoUL.scs-SpecificCarrierList
INT32 rrcComposeRrcFreqInfoUL_ScsSpecificCarrierList(OSCTXT* pAsnCxt,
                                                     FrequencyInfoUL_scs_SpecificCarrierList* pScsSpecificCarrierList,
                                                     RrcFreqInfoUl_t* pRrcFreqInfoUl)
{
    return compose::list<SCS_SpecificCarrier>(pAsnCxt, pScsSpecificCarrierList, pRrcFreqInfoUl->scsNum,
                                              pRrcFreqInfoUl->speCarrier, duComposeSCS_SpecificCarrier,
                                              {"pNode Or pScsSpecificCarrierItem is NULL\r\n", nullptr});
}

// ServingCellConfigCommon.ssb-PositionsInBurst
INT32 rrcComposeSsbPositionInBurst(OSCTXT* pAsnCxt, ServingCellConfigCommon_ssb_PositionsInBurst* pSsb_PositionsInBurst,
                                   RrcServingCellCfgCommon_t* pRrcServCellCfgComm)
{
    if (pRrcServCellCfgComm->ssbPosionBitMask & SSB_POSITION_SHORT_BITMAP)
    {
        pSsb_PositionsInBurst->t = T_ServingCellConfigCommon_ssb_PositionsInBurst_shortBitmap;
        pSsb_PositionsInBurst->u.shortBitmap = compose::allocate<ASN1BitStr32>(pAsnCxt);
        NULL_CHECK(pSsb_PositionsInBurst->u.shortBitmap);
        (void)uint8To4ASN1BitStr32(pSsb_PositionsInBurst->u.shortBitmap,
                                   pRrcServCellCfgComm->RrcSsbPositionInBurst.shortBitmap);
    }
    if (pRrcServCellCfgComm->ssbPosionBitMask & SSB_POSITION_MEDIUM_BITMAP)
    {
        pSsb_PositionsInBurst->t = T_ServingCellConfigCommon_ssb_PositionsInBurst_mediumBitmap;
        pSsb_PositionsInBurst->u.mediumBitmap = compose::allocate<ASN1BitStr32>(pAsnCxt);
        NULL_CHECK(pSsb_PositionsInBurst->u.mediumBitmap);
        (void)uint8To8ASN1BitStr32(pSsb_PositionsInBurst->u.mediumBitmap,
                                   pRrcServCellCfgComm->RrcSsbPositionInBurst.mediumBitmap);
    }
    if (pRrcServCellCfgComm->ssbPosionBitMask & SSB_POSITION_LONG_BITMAP)
    {
        // The tag stays as it is: alone this is no alternative, and behind another it overwrites that one's pointer.
        // The encoder refuses both.
        uint64ToBitString64bit(pRrcServCellCfgComm->RrcSsbPositionInBurst.longBitmap,
                               pSsb_PositionsInBurst->u.longBitmap);
    }
    return VOS_OK;
}

// ServingCellConfigCommon.rateMatchPatternToAddModList
INT32 rrcComposerateMatchPatternToAddMod(
    OSCTXT* pAsnCxt, ServingCellConfigCommon_rateMatchPatternToAddModList* pRateMatchPatternToAddModList,
    RrcServingCellCfgCommon_t* pRrcServCellCfgComm)
{
    return compose::list<RateMatchPattern>(
        pAsnCxt, pRateMatchPatternToAddModList, pRrcServCellCfgComm->numRateMatchPatternAddMod,
        pRrcServCellCfgComm->rateMatchPatternToAddMod, rrcComposeRateMatchPatternAdd,
        {"pNode Or pRateMatchPatItem is NULL\r\n", "rrcComposeRateMatchAdd is Error\r\n"});
}

// ServingCellConfigCommon.rateMatchPatternToReleaseList
INT32 rrcComposerateMatchPatternRelease(
    ServingCellConfigCommon_rateMatchPatternToReleaseList* pRateMatchPatternToReleaseList,
    RrcServingCellCfgCommon_t* pRrcServCellCfgComm)
{
    compose::array(pRateMatchPatternToReleaseList, pRrcServCellCfgComm->numRateMatchPatternRelease,
                   pRrcServCellCfgComm->rateMatchPatternId);
    return VOS_OK;
}

// ServingCellConfigCommon.rateMatchPatternToAddModList[]
INT32 rrcComposeRateMatchPatternAdd(OSCTXT* pAsnCxt, RateMatchPattern* pRateMatchPatItem,
                                    RrcRateMatchPattern_t* pRrcRateMatchPat)
{
    NULL_CHECK(pRateMatchPatItem);
    NULL_CHECK(pRrcRateMatchPat);

    assign(pRateMatchPatItem->rateMatchPatternId, pRrcRateMatchPat->rateMatchPatternId);
    // A pattern type that was not composed is refused by the encoder.
    (void)rrcComposeRateMatchPatternType(pAsnCxt, &pRateMatchPatItem->patternType, pRrcRateMatchPat);
    COPY_IF(pRrcRateMatchPat->bitMask & RRC_RATE_MATCH_PATTERN_SUB_CARRIER_SPACING_PRESENCE, pRateMatchPatItem,
            subcarrierSpacing, pRrcRateMatchPat->subCarrierSapcing);
    assign(pRateMatchPatItem->dummy, pRrcRateMatchPat->dummy);
    return VOS_OK;
}

// RateMatchPattern.patternType
INT32 rrcComposeRateMatchPatternType(OSCTXT* pAsnCxt, RateMatchPattern_patternType* pPatternType,
                                     RrcRateMatchPattern_t* pRrcRateMatchPat)
{
    // Allocated whether it is used or not.
    auto* const pBitmaps = compose::allocate<RateMatchPattern_patternType_bitmaps>(pAsnCxt);
    if (pRrcRateMatchPat->Presence & RRC_PATTERN_TYPE_BITMAPS)
    {
        compose::attach(pPatternType, T_RateMatchPattern_patternType_bitmaps, pPatternType->u.bitmaps, pBitmaps);
        (void)rrcComposePatternType_bitmaps(pAsnCxt, pBitmaps, &pRrcRateMatchPat->patternType.bitmaps);
    }
    CHOOSE_IF(pRrcRateMatchPat->Presence & RRC_PATTERN_TYPE_SETID, pPatternType, RateMatchPattern_patternType,
              controlResourceSet, pRrcRateMatchPat->patternType.controlResourceSetId);
    return VOS_OK;
}

// RateMatchPattern.patternType.bitmaps
INT32 rrcComposePatternType_bitmaps(OSCTXT* pAsnCxt, RateMatchPattern_patternType_bitmaps* pBitmaps,
                                    RrcBitMaps_t* pRrcBitmaps)
{
    NULL_CHECK(pBitmaps);
    NULL_CHECK(pRrcBitmaps);

    compose::copyResourceBlocks(pBitmaps, pRrcBitmaps->resourceBlocks);
    (void)rrcComposePatternTypeResourceBlock(pAsnCxt, &pBitmaps->symbolsInResourceBlock, pRrcBitmaps);
    if (pRrcBitmaps->bitMask & RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE)
    {
        pBitmaps->m.periodicityAndPatternPresent = 1;
        (void)rrcComposePeriodicityAndPattern(pAsnCxt, &pBitmaps->periodicityAndPattern, pRrcBitmaps);
    }
    return VOS_OK;
}

// RateMatchPattern.patternType.bitmaps.symbolsInResourceBlock
INT32 rrcComposePatternTypeResourceBlock(
    OSCTXT* pAsnCxt, RateMatchPattern_patternType_bitmaps_symbolsInResourceBlock* pSymbolsInResourceBlock,
    RrcBitMaps_t* pRrcBitmaps)
{
    if (pRrcBitmaps->symbolsInResourceBlockPresence & RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE)
    {
        compose::chooseBits(
            pAsnCxt, pSymbolsInResourceBlock, T_RateMatchPattern_patternType_bitmaps_symbolsInResourceBlock_oneSlot,
            pSymbolsInResourceBlock->u.oneSlot, uint16To14ASN1BitStr32, pRrcBitmaps->symbolsInResourceBlock.oneSlot);
    }
    if (pRrcBitmaps->symbolsInResourceBlockPresence & RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE)
    {
        // Only the low 16 bits: the packer takes no more, and the first 12 symbols are never matched around.
        compose::chooseBits(pAsnCxt, pSymbolsInResourceBlock,
                            T_RateMatchPattern_patternType_bitmaps_symbolsInResourceBlock_twoSlots,
                            pSymbolsInResourceBlock->u.twoSlots, uint32To28ASN1BitStr32,
                            static_cast<UINT16>(pRrcBitmaps->symbolsInResourceBlock.twoSLots));
    }
    return VOS_OK;
}

// RateMatchPattern.patternType.bitmaps.periodicityAndPattern
INT32 rrcComposePeriodicityAndPattern(
    OSCTXT* pAsnCxt, RateMatchPattern_patternType_bitmaps_periodicityAndPattern* pPeriodicityAndPattern,
    RrcBitMaps_t* pRrcBitmaps)
{
    if (pRrcBitmaps->periodictyAndPatternPresence & RRC_BITMAPS_PERIODICTY_PATTERN_N2_PRESENCE)
    {
        compose::chooseBits(pAsnCxt, pPeriodicityAndPattern,
                            T_RateMatchPattern_patternType_bitmaps_periodicityAndPattern_n2,
                            pPeriodicityAndPattern->u.n2, uint8To2ASN1BitStr32, pRrcBitmaps->periodictyAndPattern.n2);
    }
    if (pRrcBitmaps->periodictyAndPatternPresence & RRC_BITMAPS_PERIODICTY_PATTERN_N4_PRESENCE)
    {
        compose::chooseBits(pAsnCxt, pPeriodicityAndPattern,
                            T_RateMatchPattern_patternType_bitmaps_periodicityAndPattern_n4,
                            pPeriodicityAndPattern->u.n4, uint8To4ASN1BitStr32, pRrcBitmaps->periodictyAndPattern.n4);
    }
    if (pRrcBitmaps->periodictyAndPatternPresence & RRC_BITMAPS_PERIODICTY_PATTERN_N5_PRESENCE)
    {
        compose::chooseBits(pAsnCxt, pPeriodicityAndPattern,
                            T_RateMatchPattern_patternType_bitmaps_periodicityAndPattern_n5,
                            pPeriodicityAndPattern->u.n5, uint8To5ASN1BitStr32, pRrcBitmaps->periodictyAndPattern.n5);
    }
    if (pRrcBitmaps->periodictyAndPatternPresence & RRC_BITMAPS_PERIODICTY_PATTERN_N8_PRESENCE)
    {
        compose::chooseBits(pAsnCxt, pPeriodicityAndPattern,
                            T_RateMatchPattern_patternType_bitmaps_periodicityAndPattern_n8,
                            pPeriodicityAndPattern->u.n8, uint8To8ASN1BitStr32, pRrcBitmaps->periodictyAndPattern.n8);
    }
    if (pRrcBitmaps->periodictyAndPatternPresence & RRC_BITMAPS_PERIODICTY_PATTERN_N10_PRESENCE)
    {
        compose::chooseBits(
            pAsnCxt, pPeriodicityAndPattern, T_RateMatchPattern_patternType_bitmaps_periodicityAndPattern_n10,
            pPeriodicityAndPattern->u.n10, uint16To10ASN1BitStr32, pRrcBitmaps->periodictyAndPattern.n10);
    }
    if (pRrcBitmaps->periodictyAndPatternPresence & RRC_BITMAPS_PERIODICTY_PATTERN_N20_PRESENCE)
    {
        compose::chooseBits(
            pAsnCxt, pPeriodicityAndPattern, T_RateMatchPattern_patternType_bitmaps_periodicityAndPattern_n20,
            pPeriodicityAndPattern->u.n20, uint32To20ASN1BitStr32, pRrcBitmaps->periodictyAndPattern.n20);
    }
    if (pRrcBitmaps->periodictyAndPatternPresence & RRC_BITMAPS_PERIODICTY_PATTERN_N40_PRESENCE)
    {
        pPeriodicityAndPattern->t = T_RateMatchPattern_patternType_bitmaps_periodicityAndPattern_n40;
        (void)uint64To40ASN1BitStr32(pPeriodicityAndPattern->u.n40, pRrcBitmaps->periodictyAndPattern.n40);
    }
    return VOS_OK;
}

// SSB-MTC
INT32 rrcComposeSSB_MTC(SSB_MTC* pSmtc, RrcSSBMTC_t* pRrcSmtc)
{
    NULL_CHECK(pSmtc);
    NULL_CHECK(pRrcSmtc);

    RETURN_IF_FAILED(rrcComposePeriodicityAndOffset(&pSmtc->periodicityAndOffset, pRrcSmtc),
                     "rrcComposePeriodicityAndOffset Error\r\n");
    assign(pSmtc->duration, pRrcSmtc->duration);
    return VOS_OK;
}

// SSB-MTC.periodicityAndOffset
INT32 rrcComposePeriodicityAndOffset(SSB_MTC_periodicityAndOffset* pPeriodicityAndOffset, RrcSSBMTC_t* pRrcSmtc)
{
    // Written before it is looked at: an unknown tag stays in the element for the encoder to refuse.
    pPeriodicityAndOffset->t = pRrcSmtc->period;
    switch (pRrcSmtc->period)
    {
    case T_SSB_MTC_periodicityAndOffset_sf5:
        assign(pPeriodicityAndOffset->u.sf5, pRrcSmtc->offset);
        break;
    case T_SSB_MTC_periodicityAndOffset_sf10:
        assign(pPeriodicityAndOffset->u.sf10, pRrcSmtc->offset);
        break;
    case T_SSB_MTC_periodicityAndOffset_sf20:
        assign(pPeriodicityAndOffset->u.sf20, pRrcSmtc->offset);
        break;
    case T_SSB_MTC_periodicityAndOffset_sf40:
        assign(pPeriodicityAndOffset->u.sf40, pRrcSmtc->offset);
        break;
    case T_SSB_MTC_periodicityAndOffset_sf80:
        assign(pPeriodicityAndOffset->u.sf80, pRrcSmtc->offset);
        break;
    case T_SSB_MTC_periodicityAndOffset_sf160:
        assign(pPeriodicityAndOffset->u.sf160, pRrcSmtc->offset);
        break;
    default:
        VOS_Printf("No SSB_MTC__periodicityAndOffset_PR\n");
        break;
    }
    return VOS_OK;
}

// TDD-UL-DL-SlotConfig
INT32 rrcComposeTddUlDlCfg(OSCTXT* pAsnCxt, TDD_UL_DL_SlotConfig* pTDD_UL_DL_SlotCfg,
                           RrcTddUlDlSlotCfg_t* pRrcTddUlDlCfg)
{
    NULL_CHECK(pTDD_UL_DL_SlotCfg);
    NULL_CHECK(pRrcTddUlDlCfg);

    assign(pTDD_UL_DL_SlotCfg->slotIndex, pRrcTddUlDlCfg->slotIdx);
    RETURN_IF_FAILED(rrcComposeTDD_UL_DL_SlotConfig_symbols(pAsnCxt, &pTDD_UL_DL_SlotCfg->symbols, pRrcTddUlDlCfg),
                     "rrcComposeTDD_UL_DL_SlotConfig_symbols is Error\r\n");
    return VOS_OK;
}

// TDD-UL-DL-SlotConfig.symbols
INT32 rrcComposeTDD_UL_DL_SlotConfig_symbols(OSCTXT* pAsnCxt, TDD_UL_DL_SlotConfig_symbols* pSymbols,
                                             RrcTddUlDlSlotCfg_t* pRrcTddUlDlCfg)
{
    // All downlink and all uplink are never composed: such a slot is left without an alternative.
    if (pRrcTddUlDlCfg->presence & RRC_SLOTCFG_SYM_EXPLICIT_PRESENCE)
    {
        RETURN_IF_FAILED(compose::alternative(pAsnCxt, pSymbols, T_TDD_UL_DL_SlotConfig_symbols_explicit_,
                                              pSymbols->u.explicit_, &pRrcTddUlDlCfg->explicit_t,
                                              rrcComposeSymbols_explicit),
                         "rrcComposeSymbols_explicit Error\r\n");
    }
    return VOS_OK;
}

// TDD-UL-DL-SlotConfig.symbols.explicit
INT32 rrcComposeSymbols_explicit(TDD_UL_DL_SlotConfig_symbols_explicit_* pExplicit, struct explicit_s* pRrcExplicit)
{
    COPY_IF(pRrcExplicit->bitMask & RRC_SLOTCFG_SYM_EXPLICIT_DL_PRESENCE, pExplicit, nrofDownlinkSymbols,
            pRrcExplicit->nrofDownlinkSymbols);
    COPY_IF(pRrcExplicit->bitMask & RRC_SLOTCFG_SYM_EXPLICIT_UL_PRESENCE, pExplicit, nrofUplinkSymbols,
            pRrcExplicit->nrofUplinkSymbols);
    return VOS_OK;
}
