#include "records.h"

namespace records
{

namespace
{

// The bits above the width of a bit string do not matter.
void drawBitmaps(Chance& chance, RrcBitMaps_t& record)
{
    chance.octets(record.resourceBlocks);
    // Of two slots only the low 16 bits are sent.
    if (chance.alternative(record.symbolsInResourceBlockPresence,
                           {RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE, RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE}) == 0)
    {
        chance.bits(record.symbolsInResourceBlock.oneSlot, 16);
    }
    else
    {
        chance.bits(record.symbolsInResourceBlock.twoSLots, 32);
    }
    if (!chance.flag(record.bitMask, RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE))
    {
        return;
    }
    switch (
        chance.alternative(record.periodictyAndPatternPresence,
                           {RRC_BITMAPS_PERIODICTY_PATTERN_N2_PRESENCE, RRC_BITMAPS_PERIODICTY_PATTERN_N4_PRESENCE,
                            RRC_BITMAPS_PERIODICTY_PATTERN_N5_PRESENCE, RRC_BITMAPS_PERIODICTY_PATTERN_N8_PRESENCE,
                            RRC_BITMAPS_PERIODICTY_PATTERN_N10_PRESENCE, RRC_BITMAPS_PERIODICTY_PATTERN_N20_PRESENCE,
                            RRC_BITMAPS_PERIODICTY_PATTERN_N40_PRESENCE}))
    {
    case 0:
    case 1:
    case 2:
    case 3:
        // These four lie on the same octet.
        chance.bits(record.periodictyAndPattern.n8, 8);
        break;
    case 4:
        chance.bits(record.periodictyAndPattern.n10, 16);
        break;
    case 5:
        chance.bits(record.periodictyAndPattern.n20, 32);
        break;
    default:
        chance.bits(record.periodictyAndPattern.n40, 64);
        break;
    }
}

void drawGroup(Chance& chance, RrcRateMatchPatternGroup_t& record)
{
    rrcInit(&record);
    chance.alternative(record.presense, {RRC_RATE_MATCH_PATTERN_GROUP_CELL_LEVEL_PRESENCE,
                                         RRC_RATE_MATCH_PATTERN_GROUP_BWP_LEVEL_PRESENCE});
    const unsigned patterns = chance.count(record.numRateMatchPattern, 1, RRC_RATE_MATCH_PATTERN_GROUP_MAX, 3);
    for (unsigned i = 0; i < patterns; ++i)
    {
        chance.number(record.rateMatchPatternGroup[i].cellLevel, 0, 3);
    }
}

void drawPtrs(Chance& chance, RrcPtrsDlCfg_t& record)
{
    if (chance.flag(record.bitMask, RRC_PTRS_DL_CFG_FREQ_DENSITY_PRESENCE))
    {
        chance.numbers(record.freqDensity, 2, 1, 276);
    }
    if (chance.flag(record.bitMask, RRC_PTRS_DL_CFG_TIME_DENSITY_PRESENCE))
    {
        chance.numbers(record.timeDensity, 3, 0, 29);
    }
    chance.numberIf(record.bitMask, RRC_PTRS_DL_CFG_EPRE_RATIO_PRESENCE, record.epreRatio, 0, 3);
    chance.enumerationIf(record.bitMask, RRC_PTRS_DL_CFG_RESOURCE_ELE_OFFSET_PRESENCE, record.resourceElementOffset, 2);
}

void drawDmrs(Chance& chance, RrcDmrsDlCfg_t& record)
{
    rrcInit(&record);
    chance.enumerationIf(record.bitMask, RRC_DMRS_DL_CFG_TYPE_PRESENCE, record.dmrsType, 0);
    chance.enumerationIf(record.bitMask, RRC_DMRS_DL_CFG_ADDI_POSITION_PRESENCE, record.dmrsAdditionalPos, 2);
    chance.enumerationIf(record.bitMask, RRC_DMRS_DL_CFG_MAX_LEN_PRESENCE, record.maxLength, 0);
    chance.numberIf(record.bitMask, RRC_DMRS_DL_CFG_SCRAM_ID0_PRESENCE, record.scramblingID0, 0, 65535);
    chance.numberIf(record.bitMask, RRC_DMRS_DL_CFG_SCRAM_ID1_PRESENCE, record.scramblingID1, 0, 65535);
    if (chance.flag(record.bitMask, RRC_DMRS_DL_CFG_TRACKRS_PRESENCE))
    {
        drawPtrs(chance, record.phaseTrackingRS);
    }
}

void drawQcl(Chance& chance, RrcQclInfo_t& record)
{
    chance.enumeration(record.qclType, 3);
    if (chance.flag(record.Presence, RRC_QCI_INFO_SSB_IDX_PRESENCE))
    {
        chance.number(record.refSignal.ssbIdx, 0, 63);
    }
    else
    {
        chance.number(record.refSignal.csiRsIdx, 0, 191);
    }
    chance.numberIf(record.bitMask, RRC_QCI_INFO_CELL_PRESENCE, record.cellIdx, 0, 31);
    chance.numberIf(record.bitMask, RRC_QCI_INFO_BWP_ID_PRESENCE, record.bwpId, 0, 4);
}

void drawTciState(Chance& chance, RrcTciState_t& record)
{
    rrcInit(&record);
    chance.number(record.tciStateId, 0, 127);
    drawQcl(chance, record.qclType1);
    if (chance.flag(record.bitMask, RRC_TCI_STATE_QCL_TYPE2_PRESENCE))
    {
        drawQcl(chance, record.qclType2);
    }
}

void drawZpResource(Chance& chance, RrcZpCsiRsResource_t& record)
{
    rrcInit(&record);
    chance.number(record.zpCsiRsResourId, 0, 31);
    draw(chance, record.resourceMapping);
    if (chance.flag(record.bitMask, RRC_ZP_CSI_RS_RESOURCE_PERIODICITY_OFFSET_PRESENCE))
    {
        draw(chance, record.periodictityAndOffset);
    }
}

void drawZpResourceSet(Chance& chance, RrcZpCsiRsResourceSet_t& record)
{
    rrcInit(&record);
    chance.number(record.zpCsiRsResourceSetId, 0, 15);
    chance.numbers(record.zpCsiRsResourId,
                   chance.count(record.numzpCsiRsResourId, 1, RRC_MAX_NROF_ZP_CSI_RS_RESOURCE_PER_SET, 5), 0, 31);
}

// Both kinds are filled, whichever is chosen.
void drawBundling(Chance& chance, RrcPdschCfg_t& record)
{
    chance.alternative(record.prbBitmask, {RRC_PDSCH_CFG_PRB_BUNDLING_STATIC, RRC_PDSCH_CFG_PRB_BUNDLING_DYNAMIC});
    chance.enumerationIf(record.staticbundingtype.bitMask, RRC_PRB_BUNDLINGTYPE_STATIC_BUNDLE_SIZE_PRESENCE,
                         record.staticbundingtype.bundleSize, 1);
    chance.enumerationIf(record.dynamicbundingtype.bitMask, RRC_PRB_BUNDLINGTYPE_DYNMIC_BUNDLE_SET1_PRESENCE,
                         record.dynamicbundingtype.bundleSizeSet1, 3);
    chance.enumerationIf(record.dynamicbundingtype.bitMask, RRC_PRB_BUNDLINGTYPE_DYNMIC_BUNDLE_SET2_PRESENCE,
                         record.dynamicbundingtype.bundleSIzeSet2, 1);
}

void drawDetectionResource(Chance& chance, RrcRadioLinkMonitorRs_t& record)
{
    chance.number(record.radioLinkMonitorRsId, 0, 9);
    chance.enumeration(record.purpose, 2);
    if (chance.alternative(record.presence,
                           {RRC_RADIO_LINK_MONITOR_SSB_PRESENCE, RRC_RADIO_LINK_MONITOR_CSI_RS_PRESENCE}) == 0)
    {
        chance.number(record.detectionResource.ssbIdx, 0, 63);
    }
    else
    {
        chance.number(record.detectionResource.csiRsIdx, 0, 191);
    }
}

} // namespace

void draw(Chance& chance, RrcPdschCfg_t& record)
{
    rrcInit(&record);
    chance.enumeration(record.resourceAllocation, 2);
    chance.enumeration(record.rbgSize, 1);
    drawBundling(chance, record);
    const auto numbers = [&]
    {
        chance.numberIf(record.bitMask, RRC_PDSCH_CFG_DATA_SCRAMBLING_ID_PRESENCE, record.dataScramblingIDPdsch, 0,
                        1023);
        chance.enumerationIf(record.bitMask, RRC_PDSCH_CFG_INTERLEAVE_PRESENCE, record.vrbToPrbInterleaver, 1);
        chance.enumerationIf(record.bitMask, RRC_PDSCH_CFG_AGGR_FACTOR_PRESENCE, record.pdschAggregationFactor, 2);
        chance.enumerationIf(record.bitMask, RRC_PDSCH_CFG_MCS_TABLE_PRESENCE, record.mcsTable, 1);
        chance.enumerationIf(record.bitMask, RRC_PDSCH_CFG_CODEWORDS_BY_DCI_PRESENCE,
                             record.maxNrofCodeWordsScheduleByDCI, 1);
    };
    const auto dmrs = [&]
    {
        if (chance.flag(record.bitMask, RRC_PDSCH_CFG_MAPPING_TYPEA_PRESENCE))
        {
            drawDmrs(chance, record.dmrsDlPdschMappingTypeA);
        }
        if (chance.flag(record.bitMask, RRC_PDSCH_CFG_MAPPING_TYPEB_PRESENCE))
        {
            drawDmrs(chance, record.dmrsDlPdschMappingTypeB);
        }
    };
    const auto tciStates = [&]
    {
        const unsigned added = chance.optionalCount(record.numTciStatesAddMod, RRC_MAX_NROF_TCI_STATES, 21);
        for (unsigned i = 0; i < added; ++i)
        {
            drawTciState(chance, record.tciStatesAddMod[i]);
        }
        chance.numbers(record.tciStateId, chance.optionalCount(record.numTciStatesRel, RRC_MAX_NROF_TCI_STATES, 7), 0,
                       127);
    };
    const auto allocations = [&]
    {
        if (chance.flag(record.bitMask, RRC_PDSCH_CFG_TIMING_ALLOC_PRESENCE))
        {
            draw(chance, record.pdschTimeDomainAllocList);
        }
    };
    const auto patterns = [&]
    {
        const unsigned added =
            chance.optionalCount(record.numRateMatchPatternAddMod, RRC_MAX_NROF_RATE_MATCH_PATTERNS, 10);
        for (unsigned i = 0; i < added; ++i)
        {
            draw(chance, record.rateMatchPattern[i]);
        }
        chance.numbers(record.rateMatchPatternId,
                       chance.optionalCount(record.numRateMatchPatternRel, RRC_MAX_NROF_RATE_MATCH_PATTERNS, 2), 0, 3);
        if (chance.flag(record.bitMask, RRC_PDSCH_CFG_RATE_PATTERN_GROUP1_PRESENCE))
        {
            drawGroup(chance, record.rateMatchPatternGroup1);
        }
        if (chance.flag(record.bitMask, RRC_PDSCH_CFG_RATE_PATTERN_GROUP2_PRESENCE))
        {
            drawGroup(chance, record.rateMatchPatternGroup2);
        }
    };
    const auto zpResources = [&]
    {
        const unsigned added =
            chance.optionalCount(record.numZpCsiRsResouceAddMod, RRC_MAX_NROF_ZP_CSI_RS_RESOURCE, 45);
        for (unsigned i = 0; i < added; ++i)
        {
            drawZpResource(chance, record.zpCsiRsResource[i]);
        }
        chance.numbers(record.zpCsiRsResourceId,
                       chance.optionalCount(record.numZpCsiRsResouceRel, RRC_MAX_NROF_ZP_CSI_RS_RESOURCE, 5), 0, 31);
    };
    const auto zpSets = [&]
    {
        const unsigned added =
            chance.optionalCount(record.numZpCsiRsResourceSetAddMod, RRC_MAX_NROF_ZP_CSI_RS_RESOURCE_SETS, 14);
        for (unsigned i = 0; i < added; ++i)
        {
            drawZpResourceSet(chance, record.aperiodicZpCsiRsResourceSet[i]);
        }
        chance.numbers(record.zpCsiRsResourceSetId,
                       chance.optionalCount(record.numZpCsiRsResourceSetRel, RRC_MAX_NROF_ZP_CSI_RS_RESOURCE_SETS, 4),
                       0, 15);
        if (chance.flag(record.bitMask, RRC_PDSCH_CFG_ZP_CSI_RS_RESOURCE_SET_PRESENCE))
        {
            drawZpResourceSet(chance, record.pZpCsiRsResourceSet);
        }
    };
    chance.inAnyOrder(numbers, dmrs, tciStates, allocations, patterns, zpResources, zpSets);
}

void draw(Chance& chance, RrcSpsCfg_t& record)
{
    rrcInit(&record);
    chance.enumeration(record.periodicity, 15);
    chance.number(record.nrofHardProcess, 1, 8);
    chance.numberIf(record.bitMask, RRC_SPS_CFG_N1_PUCCH_AN_PRESENCE, record.n1PucchAn, 0, 127);
    chance.enumerationIf(record.bitMask, RRC_SPS_CFG_MCS_TABLE_PRESENCE, record.mcsTable, 0);
}

void draw(Chance& chance, RrcRlmCfg_t& record)
{
    rrcInit(&record);
    const unsigned added =
        chance.optionalCount(record.numFailDetectResourceAddMod, RRC_MAX_NROF_FAIL_DETECT_RESOURCE, 14);
    for (unsigned i = 0; i < added; ++i)
    {
        drawDetectionResource(chance, record.failDetectResource[i]);
    }
    chance.numbers(record.failDetectResourceId,
                   chance.optionalCount(record.numFailDetectResourceRel, RRC_MAX_NROF_FAIL_DETECT_RESOURCE, 4), 0, 9);
    chance.enumerationIf(record.bitMask, RRC_RADIO_LINK_MONITOR_BEAM_FAIL_MAX_COUNT_PRESENCE,
                         record.beamFailureInstanceMaxCount, 7);
    chance.enumerationIf(record.bitMask, RRC_RADIO_LINK_MONITOR_BEAM_FAIL_DETECT_TIMER_PRESENCE,
                         record.beamFailureDetectionTimer, 7);
}

void draw(Chance& chance, RrcPdschTimeDomainResourceAllocList_t& record)
{
    rrcInit(&record);
    const unsigned allocations = chance.count(record.num, 1, RRC_MAX_NROF_DL_ALLOC, 9);
    for (unsigned i = 0; i < allocations; ++i)
    {
        RrcPdschTimeDomainResourceAlloc_t& allocation = record.alloc[i];
        chance.enumeration(allocation.mappingType, 1);
        chance.number(allocation.startSymAdnLen, 0, 127);
        chance.numberIf(allocation.bitMask, RRC_PDSCH_TIMING_KO_PRESENCE, allocation.k0, 0, 32);
    }
}

void draw(Chance& chance, RrcRateMatchPattern_t& record)
{
    rrcInit(&record);
    chance.number(record.rateMatchPatternId, 0, 3);
    chance.enumeration(record.dummy, 1);
    if (chance.alternative(record.Presence, {RRC_PATTERN_TYPE_BITMAPS, RRC_PATTERN_TYPE_SETID}) == 0)
    {
        drawBitmaps(chance, record.patternType.bitmaps);
    }
    else
    {
        chance.number(record.patternType.controlResourceSetId, 0, 11);
    }
    chance.enumerationIf(record.bitMask, RRC_RATE_MATCH_PATTERN_SUB_CARRIER_SPACING_PRESENCE, record.subCarrierSapcing,
                         7);
}

} // namespace records
