#include "records.h"

namespace records
{

namespace
{

// Number of the one value of an enumeration that is switched on by a bit.
constexpr unsigned on = 0;

std::string bwp(const NrBWP_t& record, bool extendedCyclicPrefix)
{
    Members members;
    members.add("locationAndBandwidth", record.locationAndBandwidth);
    members.add("subcarrierSpacing", record.subcarrierSpacing);
    if (extendedCyclicPrefix)
    {
        members.add("cyclicPrefix", on);
    }
    return members.json();
}

std::string timeDomain(unsigned count, const NrTimeDomainAlloc_t (&allocations)[NR_MAX_NUM_TIME_DOMAIN_ALLOC],
                       std::string_view slotOffset)
{
    const auto one = [&](const NrTimeDomainAlloc_t& allocation)
    {
        Members members;
        if (allocation.bitmask & NR_TIME_DOMAIN_ALLOC_SLOT_OFFSET_PRESENCE)
        {
            members.add(slotOffset, allocation.slotOffset);
        }
        members.add("mappingType", allocation.mappingType);
        members.add("startSymbolAndLength", allocation.startSymbolAndLength);
        return members.json();
    };
    return list(count, allocations, one);
}

// The choice that a tag names; one without an alternative is refused.
template <std::size_t N, typename Value>
std::string tagged(unsigned tag, const std::string_view (&alternatives)[N], const Value& value)
{
    return tag != 0 && tag <= N ? choice(alternatives[tag - 1], value) : null();
}

std::string mapping(const NrControlResourceSet_t& record)
{
    if (record.cceRegMappingType == 2)
    {
        return choice("nonInterleaved", null());
    }
    Members members;
    members.add("reg-BundleSize", record.regBundleSize);
    members.add("interleaverSize", record.interleaverSize);
    members.addIf(record.bitmask & NR_CORESET_SHIFT_INDEX_PRESENCE, "shiftIndex", record.shiftIndex);
    return choice("interleaved", members.json());
}

std::string controlResourceSet(const NrControlResourceSet_t& record)
{
    Members members;
    members.add("controlResourceSetId", record.controlResourceSetId);
    members.add("frequencyDomainResources", bits(record.freqDomainResources, 45));
    members.add("duration", record.duration);
    members.add("cce-REG-MappingType", mapping(record));
    members.add("precoderGranularity", record.precoderGranularity);
    if (record.numTciStatesToAdd != 0)
    {
        members.add("tci-StatesPDCCH-ToAddList", numbers(record.numTciStatesToAdd, record.tciStatesToAdd));
    }
    if (record.numTciStatesToRelease != 0)
    {
        members.add("tci-StatesPDCCH-ToReleaseList", numbers(record.numTciStatesToRelease, record.tciStatesToRelease));
    }
    members.addIf(record.bitmask & NR_CORESET_TCI_PRESENT_IN_DCI, "tci-PresentInDCI", on);
    members.addIf(record.bitmask & NR_CORESET_DMRS_SCRAMBLING_ID_PRESENCE, "pdcch-DMRS-ScramblingID",
                  record.pdcchDmrsScramblingId);
    return members.json();
}

std::string candidates(const NrNrofCandidates_t& record)
{
    Members members;
    members.add("aggregationLevel1", record.aggregationLevel1);
    members.add("aggregationLevel2", record.aggregationLevel2);
    members.add("aggregationLevel4", record.aggregationLevel4);
    members.add("aggregationLevel8", record.aggregationLevel8);
    members.add("aggregationLevel16", record.aggregationLevel16);
    return members.json();
}

std::string candidates(const NrNrofCandidatesSfi_t& record)
{
    Members members;
    members.addIf(record.bitmask & NR_SFI_AGGREGATION_LEVEL1_PRESENCE, "aggregationLevel1", record.aggregationLevel1);
    members.addIf(record.bitmask & NR_SFI_AGGREGATION_LEVEL2_PRESENCE, "aggregationLevel2", record.aggregationLevel2);
    members.addIf(record.bitmask & NR_SFI_AGGREGATION_LEVEL4_PRESENCE, "aggregationLevel4", record.aggregationLevel4);
    members.addIf(record.bitmask & NR_SFI_AGGREGATION_LEVEL8_PRESENCE, "aggregationLevel8", record.aggregationLevel8);
    members.addIf(record.bitmask & NR_SFI_AGGREGATION_LEVEL16_PRESENCE, "aggregationLevel16",
                  record.aggregationLevel16);
    return members.json();
}

std::string common(const NrSearchSpaceCommon_t& record)
{
    const std::string nothing = Members().json();
    Members members;
    members.addIf(record.bitmask & NR_SEARCH_SPACE_DCI_FORMAT0_0_AND_1_0, "dci-Format0-0-AndFormat1-0", nothing);
    if (record.bitmask & NR_SEARCH_SPACE_DCI_FORMAT2_0)
    {
        Members format;
        format.add("nrofCandidates-SFI", candidates(record.nrofCandidatesSfi));
        members.add("dci-Format2-0", format.json());
    }
    members.addIf(record.bitmask & NR_SEARCH_SPACE_DCI_FORMAT2_1, "dci-Format2-1", nothing);
    members.addIf(record.bitmask & NR_SEARCH_SPACE_DCI_FORMAT2_2, "dci-Format2-2", nothing);
    if (record.bitmask & NR_SEARCH_SPACE_DCI_FORMAT2_3)
    {
        Members format;
        format.addIf(record.bitmask & NR_SEARCH_SPACE_DCI_FORMAT2_3_DUMMY1_PRESENCE, "dummy1",
                     record.dciFormat23Dummy1);
        format.add("dummy2", record.dciFormat23Dummy2);
        members.add("dci-Format2-3", format.json());
    }
    return members.json();
}

std::string monitoringSlot(const NrSearchSpace_t& record)
{
    constexpr std::string_view alternatives[] = {"sl1",  "sl2",  "sl4",   "sl5",   "sl8",   "sl10",   "sl16",  "sl20",
                                                 "sl40", "sl80", "sl160", "sl320", "sl640", "sl1280", "sl2560"};
    return record.monitoringSlotPeriodicity == 1
               ? choice("sl1", null())
               : tagged(record.monitoringSlotPeriodicity, alternatives, record.monitoringSlotOffset);
}

std::string searchSpaceType(const NrSearchSpace_t& record)
{
    if (record.searchSpaceType == 1)
    {
        return choice("common", common(record.common));
    }
    Members members;
    members.add("dci-Formats", record.dciFormats);
    return choice("ue-Specific", members.json());
}

std::string searchSpace(const NrSearchSpace_t& record)
{
    Members members;
    members.add("searchSpaceId", record.searchSpaceId);
    members.addIf(record.bitmask & NR_SEARCH_SPACE_CORESET_ID_PRESENCE, "controlResourceSetId",
                  record.controlResourceSetId);
    if (record.bitmask & NR_SEARCH_SPACE_MONITORING_SLOT_PRESENCE)
    {
        members.add("monitoringSlotPeriodicityAndOffset", monitoringSlot(record));
    }
    members.addIf(record.bitmask & NR_SEARCH_SPACE_DURATION_PRESENCE, "duration", record.duration);
    members.addIf(record.bitmask & NR_SEARCH_SPACE_MONITORING_SYMBOLS_PRESENCE, "monitoringSymbolsWithinSlot",
                  bits(record.monitoringSymbolsWithinSlot, 14));
    if (record.bitmask & NR_SEARCH_SPACE_NROF_CANDIDATES_PRESENCE)
    {
        members.add("nrofCandidates", candidates(record.nrofCandidates));
    }
    if (record.bitmask & NR_SEARCH_SPACE_TYPE_PRESENCE)
    {
        members.add("searchSpaceType", searchSpaceType(record));
    }
    return members.json();
}

std::string firstOccasion(const NrFirstPdcchMonitoringOccasion_t& record)
{
    constexpr std::string_view alternatives[] = {
        "sCS15KHZoneT",
        "sCS30KHZoneT-SCS15KHZhalfT",
        "sCS60KHZoneT-SCS30KHZhalfT-SCS15KHZquarterT",
        "sCS120KHZoneT-SCS60KHZhalfT-SCS30KHZquarterT-SCS15KHZoneEighthT",
        "sCS120KHZhalfT-SCS60KHZquarterT-SCS30KHZoneEighthT-SCS15KHZoneSixteenthT",
        "sCS120KHZquarterT-SCS60KHZoneEighthT-SCS30KHZoneSixteenthT",
        "sCS120KHZoneEighthT-SCS60KHZoneSixteenthT",
        "sCS120KHZoneSixteenthT"};
    return tagged(record.zone, alternatives, numbers(record.numOccasions, record.occasion));
}

std::string pdcch(const PdcchCfgCommon_t& record)
{
    Members members;
    members.addIf(record.bitmask & NR_PDCCH_COMMON_CORESET_ZERO_PRESENCE, "controlResourceSetZero",
                  record.controlResourceSetZero);
    if (record.bitmask & NR_PDCCH_COMMON_CORESET_PRESENCE)
    {
        members.add("commonControlResourceSet", controlResourceSet(record.commonControlResourceSet));
    }
    members.addIf(record.bitmask & NR_PDCCH_COMMON_SEARCH_SPACE_ZERO_PRESENCE, "searchSpaceZero",
                  record.searchSpaceZero);
    if (record.numCommonSearchSpaces != 0)
    {
        members.add("commonSearchSpaceList", list(record.numCommonSearchSpaces, record.commonSearchSpace,
                                                  [&](const auto& entry) { return searchSpace(entry); }));
    }
    members.addIf(record.bitmask & NR_PDCCH_COMMON_SEARCH_SPACE_SIB1_PRESENCE, "searchSpaceSIB1",
                  record.searchSpaceSib1);
    members.addIf(record.bitmask & NR_PDCCH_COMMON_SEARCH_SPACE_OTHER_SI_PRESENCE, "searchSpaceOtherSystemInformation",
                  record.searchSpaceOtherSi);
    members.addIf(record.bitmask & NR_PDCCH_COMMON_PAGING_SEARCH_SPACE_PRESENCE, "pagingSearchSpace",
                  record.pagingSearchSpace);
    members.addIf(record.bitmask & NR_PDCCH_COMMON_RA_SEARCH_SPACE_PRESENCE, "ra-SearchSpace", record.raSearchSpace);
    if (record.bitmask & NR_PDCCH_COMMON_FIRST_MONITORING_OCCASION_PRESENCE)
    {
        members.add("firstPDCCH-MonitoringOccasionOfPO", firstOccasion(record.firstPdcchMonitoringOccasion));
    }
    return members.json();
}

std::string pdsch(const PdschCfgCommon_t& record)
{
    Members members;
    if (record.numTimeDomainAllocs != 0)
    {
        members.add("pdsch-TimeDomainAllocationList",
                    timeDomain(record.numTimeDomainAllocs, record.timeDomainAlloc, "k0"));
    }
    return members.json();
}

std::string rachGeneric(const NrRachCfgGeneric_t& record)
{
    Members members;
    members.add("prach-ConfigurationIndex", record.prachConfigurationIndex);
    members.add("msg1-FDM", record.msg1Fdm);
    members.add("msg1-FrequencyStart", record.msg1FrequencyStart);
    members.add("zeroCorrelationZoneConfig", record.zeroCorrelationZoneConfig);
    members.add("preambleReceivedTargetPower", record.preambleReceivedTargetPower);
    members.add("preambleTransMax", record.preambleTransMax);
    members.add("powerRampingStep", record.powerRampingStep);
    members.add("ra-ResponseWindow", record.raResponseWindow);
    return members.json();
}

std::string rach(const NrRachCfgCommon_t& record)
{
    Members members;
    members.add("rach-ConfigGeneric", rachGeneric(record.rachCfgGeneric));
    members.addIf(record.bitmask & NR_RACH_COMMON_TOTAL_PREAMBLES_PRESENCE, "totalNumberOfRA-Preambles",
                  record.totalNumberOfRaPreambles);
    if (record.bitmask & NR_RACH_COMMON_SSB_PER_RACH_OCCASION_PRESENCE)
    {
        constexpr std::string_view alternatives[] = {"oneEighth", "oneFourth", "oneHalf", "one",
                                                     "two",       "four",      "eight",   "sixteen"};
        members.add("ssb-perRACH-OccasionAndCB-PreamblesPerSSB",
                    tagged(record.ssbPerRachOccasion, alternatives, record.cbPreamblesPerSsb));
    }
    if (record.bitmask & NR_RACH_COMMON_GROUP_B_PRESENCE)
    {
        Members groupB;
        groupB.add("ra-Msg3SizeGroupA", record.raMsg3SizeGroupA);
        groupB.add("messagePowerOffsetGroupB", record.messagePowerOffsetGroupB);
        groupB.add("numberOfRA-PreamblesGroupA", record.numberOfRaPreamblesGroupA);
        members.add("groupBconfigured", groupB.json());
    }
    members.add("ra-ContentionResolutionTimer", record.raContentionResolutionTimer);
    members.addIf(record.bitmask & NR_RACH_COMMON_RSRP_THRESHOLD_SSB_PRESENCE, "rsrp-ThresholdSSB",
                  record.rsrpThresholdSsb);
    members.addIf(record.bitmask & NR_RACH_COMMON_RSRP_THRESHOLD_SSB_SUL_PRESENCE, "rsrp-ThresholdSSB-SUL",
                  record.rsrpThresholdSsbSul);
    members.add("prach-RootSequenceIndex",
                choice(record.prachRootSequence == 1 ? "l839" : "l139", record.prachRootSequenceIndex));
    members.addIf(record.bitmask & NR_RACH_COMMON_MSG1_SUBCARRIER_SPACING_PRESENCE, "msg1-SubcarrierSpacing",
                  record.msg1SubcarrierSpacing);
    members.add("restrictedSetConfig", record.restrictedSetConfig);
    members.addIf(record.bitmask & NR_RACH_COMMON_MSG3_TRANSFORM_PRECODER, "msg3-transformPrecoder", on);
    return members.json();
}

std::string pusch(const NrPuschCfgCommon_t& record)
{
    Members members;
    members.addIf(record.bitmask & NR_PUSCH_COMMON_GROUP_HOPPING, "groupHoppingEnabledTransformPrecoding", on);
    if (record.numTimeDomainAllocs != 0)
    {
        members.add("pusch-TimeDomainAllocationList",
                    timeDomain(record.numTimeDomainAllocs, record.timeDomainAlloc, "k2"));
    }
    members.addIf(record.bitmask & NR_PUSCH_COMMON_MSG3_DELTA_PREAMBLE_PRESENCE, "msg3-DeltaPreamble",
                  record.msg3DeltaPreamble);
    members.addIf(record.bitmask & NR_PUSCH_COMMON_P0_NOMINAL_WITH_GRANT_PRESENCE, "p0-NominalWithGrant",
                  record.p0NominalWithGrant);
    return members.json();
}

std::string pucch(const NrPucchCfgCommon_t& record)
{
    Members members;
    members.addIf(record.bitmask & NR_PUCCH_COMMON_RESOURCE_PRESENCE, "pucch-ResourceCommon",
                  record.pucchResourceCommon);
    members.add("pucch-GroupHopping", record.pucchGroupHopping);
    members.addIf(record.bitmask & NR_PUCCH_COMMON_HOPPING_ID_PRESENCE, "hoppingId", record.hoppingId);
    members.addIf(record.bitmask & NR_PUCCH_COMMON_P0_NOMINAL_PRESENCE, "p0-nominal", record.p0Nominal);
    return members.json();
}

std::string pattern(const TddUlDlPattern_t& record)
{
    Members members;
    members.add("dl-UL-TransmissionPeriodicity", record.transmissionPeriodicity);
    members.add("nrofDownlinkSlots", record.nrofDownlinkSlots);
    members.add("nrofDownlinkSymbols", record.nrofDownlinkSymbols);
    members.add("nrofUplinkSlots", record.nrofUplinkSlots);
    members.add("nrofUplinkSymbols", record.nrofUplinkSymbols);
    members.addIf(record.bitmask & NR_TDD_PATTERN_PERIODICITY_V1530_PRESENCE, "dl-UL-TransmissionPeriodicity-v1530",
                  record.transmissionPeriodicityV1530);
    return members.json();
}

} // namespace

std::string meant(const SpecificCarrier_t& record)
{
    Members members;
    members.add("offsetToCarrier", record.offsetToCarrier);
    members.add("subcarrierSpacing", record.subcarrierSpacing);
    members.add("carrierBandwidth", record.carrierBandwidth);
    return members.json();
}

std::string meant(const NrBwpDownLinkCommon_t& record)
{
    Members members;
    members.add("genericParameters", bwp(record.bwp, record.bitmask & NR_BWP_DL_EXTENDED_CYCLIC_PREFIX));
    if (record.bitmask & NR_BWP_DL_PDCCH_CFG_COMMON_PRESENCE)
    {
        members.add("pdcch-ConfigCommon", setup(pdcch(record.pdcchCfgCommon)));
    }
    if (record.bitmask & NR_BWP_DL_PDSCH_CFG_COMMON_PRESENCE)
    {
        members.add("pdsch-ConfigCommon", setup(pdsch(record.pdschCfgCommon)));
    }
    return members.json();
}

std::string meant(const InitialUlBwp_t& record)
{
    Members members;
    members.add("genericParameters", bwp(record.bwp, record.bitmask & NR_BWP_UL_EXTENDED_CYCLIC_PREFIX));
    if (record.bitmask & NR_BWP_UL_RACH_CFG_COMMON_PRESENCE)
    {
        members.add("rach-ConfigCommon", setup(rach(record.rachCfgCommon)));
    }
    if (record.bitmask & NR_BWP_UL_PUSCH_CFG_COMMON_PRESENCE)
    {
        members.add("pusch-ConfigCommon", setup(pusch(record.puschCfgCommon)));
    }
    if (record.bitmask & NR_BWP_UL_PUCCH_CFG_COMMON_PRESENCE)
    {
        members.add("pucch-ConfigCommon", setup(pucch(record.pucchCfgCommon)));
    }
    return members.json();
}

std::string meant(const TddUlDlCfgCom_t& record)
{
    Members members;
    members.add("referenceSubcarrierSpacing", record.referenceSubcarrierSpacing);
    members.add("pattern1", pattern(record.pattern1));
    if (record.bitmask & NR_TDD_PATTERN2_PRESENCE)
    {
        members.add("pattern2", pattern(record.pattern2));
    }
    return members.json();
}

} // namespace records
