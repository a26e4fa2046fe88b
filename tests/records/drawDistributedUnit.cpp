#include "records.h"

namespace records
{

namespace
{

void drawBwp(Chance& chance, NrBWP_t& record)
{
    rrcInit(&record);
    chance.number(record.locationAndBandwidth, 0, 37949);
    chance.enumeration(record.subcarrierSpacing, 7);
}

void drawTimeDomain(Chance& chance, UINT8& count, NrTimeDomainAlloc_t (&allocations)[NR_MAX_NUM_TIME_DOMAIN_ALLOC])
{
    const unsigned entries = chance.optionalCount(count, NR_MAX_NUM_TIME_DOMAIN_ALLOC, 9);
    for (unsigned i = 0; i < entries; ++i)
    {
        NrTimeDomainAlloc_t& allocation = allocations[i];
        rrcInit(&allocation);
        chance.numberIf(allocation.bitmask, NR_TIME_DOMAIN_ALLOC_SLOT_OFFSET_PRESENCE, allocation.slotOffset, 0, 32);
        chance.enumeration(allocation.mappingType, 1);
        chance.number(allocation.startSymbolAndLength, 0, 127);
    }
}

void drawControlResourceSet(Chance& chance, NrControlResourceSet_t& record)
{
    rrcInit(&record);
    chance.number(record.controlResourceSetId, 0, 11);
    // The low 45 bits count.
    chance.bits(record.freqDomainResources, 64);
    chance.number(record.duration, 1, 3);
    const bool shift = chance.flag(record.bitmask, NR_CORESET_SHIFT_INDEX_PRESENCE);
    chance.number(record.cceRegMappingType, 1, 2);
    if (record.cceRegMappingType == 1)
    {
        chance.enumeration(record.regBundleSize, 2);
        chance.enumeration(record.interleaverSize, 2);
        if (shift)
        {
            chance.number(record.shiftIndex, 0, 274);
        }
    }
    else if (shift)
    {
        // Not looked at.
        chance.bits(record.shiftIndex, 16);
    }
    chance.enumeration(record.precoderGranularity, 1);
    chance.numbers(record.tciStatesToAdd,
                   chance.optionalCount(record.numTciStatesToAdd, NR_MAX_NUM_TCI_STATES_PDCCH, 7), 0, 127);
    chance.numbers(record.tciStatesToRelease,
                   chance.optionalCount(record.numTciStatesToRelease, NR_MAX_NUM_TCI_STATES_PDCCH, 7), 0, 127);
    chance.flag(record.bitmask, NR_CORESET_TCI_PRESENT_IN_DCI);
    chance.numberIf(record.bitmask, NR_CORESET_DMRS_SCRAMBLING_ID_PRESENCE, record.pdcchDmrsScramblingId, 0, 65535);
}

void drawCommon(Chance& chance, NrSearchSpaceCommon_t& record)
{
    rrcInit(&record);
    chance.flag(record.bitmask, NR_SEARCH_SPACE_DCI_FORMAT0_0_AND_1_0);
    if (chance.flag(record.bitmask, NR_SEARCH_SPACE_DCI_FORMAT2_0))
    {
        NrNrofCandidatesSfi_t& candidates = record.nrofCandidatesSfi;
        chance.enumerationIf(candidates.bitmask, NR_SFI_AGGREGATION_LEVEL1_PRESENCE, candidates.aggregationLevel1, 1);
        chance.enumerationIf(candidates.bitmask, NR_SFI_AGGREGATION_LEVEL2_PRESENCE, candidates.aggregationLevel2, 1);
        chance.enumerationIf(candidates.bitmask, NR_SFI_AGGREGATION_LEVEL4_PRESENCE, candidates.aggregationLevel4, 1);
        chance.enumerationIf(candidates.bitmask, NR_SFI_AGGREGATION_LEVEL8_PRESENCE, candidates.aggregationLevel8, 1);
        chance.enumerationIf(candidates.bitmask, NR_SFI_AGGREGATION_LEVEL16_PRESENCE, candidates.aggregationLevel16, 1);
    }
    chance.flag(record.bitmask, NR_SEARCH_SPACE_DCI_FORMAT2_1);
    chance.flag(record.bitmask, NR_SEARCH_SPACE_DCI_FORMAT2_2);
    // Without dci-Format2-3 not looked at.
    const bool dummy1 = chance.flag(record.bitmask, NR_SEARCH_SPACE_DCI_FORMAT2_3_DUMMY1_PRESENCE);
    if (chance.flag(record.bitmask, NR_SEARCH_SPACE_DCI_FORMAT2_3))
    {
        if (dummy1)
        {
            chance.enumeration(record.dciFormat23Dummy1, 7);
        }
        chance.enumeration(record.dciFormat23Dummy2, 1);
    }
    else if (dummy1)
    {
        chance.bits(record.dciFormat23Dummy1, 8);
    }
}

void drawMonitoringSlot(Chance& chance, NrSearchSpace_t& record)
{
    constexpr unsigned slots[] = {1, 2, 4, 5, 8, 10, 16, 20, 40, 80, 160, 320, 640, 1280, 2560};
    const unsigned chosen = chance.tag(record.monitoringSlotPeriodicity, std::size(slots));
    if (chosen == 0)
    {
        // Not looked at.
        chance.bits(record.monitoringSlotOffset, 16);
    }
    else
    {
        chance.number(record.monitoringSlotOffset, 0, slots[chosen] - 1);
    }
}

void drawSearchSpace(Chance& chance, NrSearchSpace_t& record)
{
    rrcInit(&record);
    chance.number(record.searchSpaceId, 0, 39);
    chance.numberIf(record.bitmask, NR_SEARCH_SPACE_CORESET_ID_PRESENCE, record.controlResourceSetId, 0, 11);
    if (chance.flag(record.bitmask, NR_SEARCH_SPACE_MONITORING_SLOT_PRESENCE))
    {
        drawMonitoringSlot(chance, record);
    }
    chance.numberIf(record.bitmask, NR_SEARCH_SPACE_DURATION_PRESENCE, record.duration, 2, 2559);
    if (chance.flag(record.bitmask, NR_SEARCH_SPACE_MONITORING_SYMBOLS_PRESENCE))
    {
        // The low 14 bits count.
        chance.bits(record.monitoringSymbolsWithinSlot, 16);
    }
    if (chance.flag(record.bitmask, NR_SEARCH_SPACE_NROF_CANDIDATES_PRESENCE))
    {
        chance.enumeration(record.nrofCandidates.aggregationLevel1, 7);
        chance.enumeration(record.nrofCandidates.aggregationLevel2, 7);
        chance.enumeration(record.nrofCandidates.aggregationLevel4, 7);
        chance.enumeration(record.nrofCandidates.aggregationLevel8, 7);
        chance.enumeration(record.nrofCandidates.aggregationLevel16, 7);
    }
    if (chance.flag(record.bitmask, NR_SEARCH_SPACE_TYPE_PRESENCE))
    {
        chance.number(record.searchSpaceType, 1, 2);
        if (record.searchSpaceType == 1)
        {
            drawCommon(chance, record.common);
        }
        else
        {
            chance.enumeration(record.dciFormats, 1);
        }
    }
}

void drawFirstOccasion(Chance& chance, NrFirstPdcchMonitoringOccasion_t& record)
{
    rrcInit(&record);
    const unsigned chosen = chance.tag(record.zone, 8);
    const unsigned occasions = chance.count(record.numOccasions, 1, NR_MAX_NUM_PO_PER_PF, 8);
    chance.numbers(record.occasion, occasions, 0, (140 << chosen) - 1);
}

void drawPdcch(Chance& chance, PdcchCfgCommon_t& record)
{
    rrcInit(&record);
    chance.numberIf(record.bitmask, NR_PDCCH_COMMON_CORESET_ZERO_PRESENCE, record.controlResourceSetZero, 0, 15);
    chance.numberIf(record.bitmask, NR_PDCCH_COMMON_SEARCH_SPACE_ZERO_PRESENCE, record.searchSpaceZero, 0, 15);
    chance.numberIf(record.bitmask, NR_PDCCH_COMMON_SEARCH_SPACE_SIB1_PRESENCE, record.searchSpaceSib1, 0, 39);
    chance.numberIf(record.bitmask, NR_PDCCH_COMMON_SEARCH_SPACE_OTHER_SI_PRESENCE, record.searchSpaceOtherSi, 0, 39);
    chance.numberIf(record.bitmask, NR_PDCCH_COMMON_PAGING_SEARCH_SPACE_PRESENCE, record.pagingSearchSpace, 0, 39);
    chance.numberIf(record.bitmask, NR_PDCCH_COMMON_RA_SEARCH_SPACE_PRESENCE, record.raSearchSpace, 0, 39);
    if (chance.flag(record.bitmask, NR_PDCCH_COMMON_FIRST_MONITORING_OCCASION_PRESENCE))
    {
        drawFirstOccasion(chance, record.firstPdcchMonitoringOccasion);
    }
    const auto controlResourceSet = [&]
    {
        if (chance.flag(record.bitmask, NR_PDCCH_COMMON_CORESET_PRESENCE))
        {
            drawControlResourceSet(chance, record.commonControlResourceSet);
        }
    };
    const auto searchSpaces = [&]
    {
        const unsigned added = chance.optionalCount(record.numCommonSearchSpaces, NR_MAX_NUM_COMMON_SEARCH_SPACE, 12);
        for (unsigned i = 0; i < added; ++i)
        {
            drawSearchSpace(chance, record.commonSearchSpace[i]);
        }
    };
    chance.inAnyOrder(controlResourceSet, searchSpaces);
}

void drawRachGeneric(Chance& chance, NrRachCfgGeneric_t& record)
{
    rrcInit(&record);
    chance.number(record.prachConfigurationIndex, 0, 255);
    chance.enumeration(record.msg1Fdm, 3);
    chance.number(record.msg1FrequencyStart, 0, 274);
    chance.number(record.zeroCorrelationZoneConfig, 0, 15);
    chance.number(record.preambleReceivedTargetPower, -202, -60);
    chance.enumeration(record.preambleTransMax, 10);
    chance.enumeration(record.powerRampingStep, 3);
    chance.enumeration(record.raResponseWindow, 7);
}

void drawPreamblesPerSsb(Chance& chance, NrRachCfgCommon_t& record)
{
    constexpr struct
    {
        unsigned lower;
        unsigned upper;
    } preambles[] = {{0, 15}, {0, 15}, {0, 15}, {0, 15}, {0, 7}, {1, 16}, {1, 8}, {1, 4}};
    const unsigned chosen = chance.tag(record.ssbPerRachOccasion, std::size(preambles));
    chance.number(record.cbPreamblesPerSsb, preambles[chosen].lower, preambles[chosen].upper);
}

void drawRach(Chance& chance, NrRachCfgCommon_t& record)
{
    rrcInit(&record);
    drawRachGeneric(chance, record.rachCfgGeneric);
    chance.numberIf(record.bitmask, NR_RACH_COMMON_TOTAL_PREAMBLES_PRESENCE, record.totalNumberOfRaPreambles, 1, 63);
    if (chance.flag(record.bitmask, NR_RACH_COMMON_SSB_PER_RACH_OCCASION_PRESENCE))
    {
        drawPreamblesPerSsb(chance, record);
    }
    if (chance.flag(record.bitmask, NR_RACH_COMMON_GROUP_B_PRESENCE))
    {
        chance.enumeration(record.raMsg3SizeGroupA, 15);
        chance.enumeration(record.messagePowerOffsetGroupB, 7);
        chance.number(record.numberOfRaPreamblesGroupA, 1, 64);
    }
    chance.enumeration(record.raContentionResolutionTimer, 7);
    chance.numberIf(record.bitmask, NR_RACH_COMMON_RSRP_THRESHOLD_SSB_PRESENCE, record.rsrpThresholdSsb, 0, 127);
    chance.numberIf(record.bitmask, NR_RACH_COMMON_RSRP_THRESHOLD_SSB_SUL_PRESENCE, record.rsrpThresholdSsbSul, 0, 127);
    chance.number(record.prachRootSequence, 1, 2);
    chance.number(record.prachRootSequenceIndex, 0, record.prachRootSequence == 1 ? 837 : 137);
    chance.enumerationIf(record.bitmask, NR_RACH_COMMON_MSG1_SUBCARRIER_SPACING_PRESENCE, record.msg1SubcarrierSpacing,
                         7);
    chance.enumeration(record.restrictedSetConfig, 2);
    chance.flag(record.bitmask, NR_RACH_COMMON_MSG3_TRANSFORM_PRECODER);
}

void drawPusch(Chance& chance, NrPuschCfgCommon_t& record)
{
    rrcInit(&record);
    chance.flag(record.bitmask, NR_PUSCH_COMMON_GROUP_HOPPING);
    drawTimeDomain(chance, record.numTimeDomainAllocs, record.timeDomainAlloc);
    chance.numberIf(record.bitmask, NR_PUSCH_COMMON_MSG3_DELTA_PREAMBLE_PRESENCE, record.msg3DeltaPreamble, -1, 6);
    chance.numberIf(record.bitmask, NR_PUSCH_COMMON_P0_NOMINAL_WITH_GRANT_PRESENCE, record.p0NominalWithGrant, -202,
                    24);
}

void drawPucch(Chance& chance, NrPucchCfgCommon_t& record)
{
    rrcInit(&record);
    chance.numberIf(record.bitmask, NR_PUCCH_COMMON_RESOURCE_PRESENCE, record.pucchResourceCommon, 0, 15);
    chance.enumeration(record.pucchGroupHopping, 2);
    chance.numberIf(record.bitmask, NR_PUCCH_COMMON_HOPPING_ID_PRESENCE, record.hoppingId, 0, 1023);
    chance.numberIf(record.bitmask, NR_PUCCH_COMMON_P0_NOMINAL_PRESENCE, record.p0Nominal, -202, 24);
}

void drawPattern(Chance& chance, TddUlDlPattern_t& record)
{
    rrcInit(&record);
    chance.enumeration(record.transmissionPeriodicity, 7);
    chance.number(record.nrofDownlinkSlots, 0, 320);
    chance.number(record.nrofDownlinkSymbols, 0, 13);
    chance.number(record.nrofUplinkSlots, 0, 320);
    chance.number(record.nrofUplinkSymbols, 0, 13);
    chance.enumerationIf(record.bitmask, NR_TDD_PATTERN_PERIODICITY_V1530_PRESENCE, record.transmissionPeriodicityV1530,
                         1);
}

} // namespace

void draw(Chance& chance, SpecificCarrier_t& record)
{
    rrcInit(&record);
    chance.number(record.offsetToCarrier, 0, 2199);
    chance.enumeration(record.subcarrierSpacing, 7);
    chance.number(record.carrierBandwidth, 1, 275);
}

void draw(Chance& chance, NrBwpDownLinkCommon_t& record)
{
    rrcInit(&record);
    drawBwp(chance, record.bwp);
    chance.flag(record.bitmask, NR_BWP_DL_EXTENDED_CYCLIC_PREFIX);
    const auto pdcch = [&]
    {
        if (chance.flag(record.bitmask, NR_BWP_DL_PDCCH_CFG_COMMON_PRESENCE))
        {
            drawPdcch(chance, record.pdcchCfgCommon);
        }
    };
    const auto pdsch = [&]
    {
        if (chance.flag(record.bitmask, NR_BWP_DL_PDSCH_CFG_COMMON_PRESENCE))
        {
            rrcInit(&record.pdschCfgCommon);
            drawTimeDomain(chance, record.pdschCfgCommon.numTimeDomainAllocs, record.pdschCfgCommon.timeDomainAlloc);
        }
    };
    chance.inAnyOrder(pdcch, pdsch);
}

void draw(Chance& chance, InitialUlBwp_t& record)
{
    rrcInit(&record);
    drawBwp(chance, record.bwp);
    chance.flag(record.bitmask, NR_BWP_UL_EXTENDED_CYCLIC_PREFIX);
    const auto rach = [&]
    {
        if (chance.flag(record.bitmask, NR_BWP_UL_RACH_CFG_COMMON_PRESENCE))
        {
            drawRach(chance, record.rachCfgCommon);
        }
    };
    const auto pusch = [&]
    {
        if (chance.flag(record.bitmask, NR_BWP_UL_PUSCH_CFG_COMMON_PRESENCE))
        {
            drawPusch(chance, record.puschCfgCommon);
        }
    };
    const auto pucch = [&]
    {
        if (chance.flag(record.bitmask, NR_BWP_UL_PUCCH_CFG_COMMON_PRESENCE))
        {
            drawPucch(chance, record.pucchCfgCommon);
        }
    };
    chance.inAnyOrder(rach, pusch, pucch);
}

void draw(Chance& chance, TddUlDlCfgCom_t& record)
{
    rrcInit(&record);
    chance.enumeration(record.referenceSubcarrierSpacing, 7);
    drawPattern(chance, record.pattern1);
    if (chance.flag(record.bitmask, NR_TDD_PATTERN2_PRESENCE))
    {
        drawPattern(chance, record.pattern2);
    }
}

} // namespace records
