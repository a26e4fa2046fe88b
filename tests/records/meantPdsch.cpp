#include "records.h"

namespace records
{

namespace
{

// The second bit counts. Of two slots the low 16 bits are sent.
std::string symbols(const RrcBitMaps_t& record)
{
    if (record.symbolsInResourceBlockPresence & RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE)
    {
        return choice("twoSlots", bits(record.symbolsInResourceBlock.twoSLots & 0xFFFF, 28));
    }
    return choice("oneSlot", bits(record.symbolsInResourceBlock.oneSlot, 14));
}

// The highest bit counts.
std::string periodicity(const RrcBitMaps_t& record)
{
    const unsigned mask = record.periodictyAndPatternPresence;
    if (mask & RRC_BITMAPS_PERIODICTY_PATTERN_N40_PRESENCE)
    {
        return choice("n40", bits(record.periodictyAndPattern.n40, 40));
    }
    if (mask & RRC_BITMAPS_PERIODICTY_PATTERN_N20_PRESENCE)
    {
        return choice("n20", bits(record.periodictyAndPattern.n20, 20));
    }
    if (mask & RRC_BITMAPS_PERIODICTY_PATTERN_N10_PRESENCE)
    {
        return choice("n10", bits(record.periodictyAndPattern.n10, 10));
    }
    if (mask & RRC_BITMAPS_PERIODICTY_PATTERN_N8_PRESENCE)
    {
        return choice("n8", bits(record.periodictyAndPattern.n8, 8));
    }
    if (mask & RRC_BITMAPS_PERIODICTY_PATTERN_N5_PRESENCE)
    {
        return choice("n5", bits(record.periodictyAndPattern.n5, 5));
    }
    if (mask & RRC_BITMAPS_PERIODICTY_PATTERN_N4_PRESENCE)
    {
        return choice("n4", bits(record.periodictyAndPattern.n4, 4));
    }
    return choice("n2", bits(record.periodictyAndPattern.n2, 2));
}

std::string bitmaps(const RrcBitMaps_t& record)
{
    Members members;
    members.add("resourceBlocks", octetBits(record.resourceBlocks, 275));
    members.add("symbolsInResourceBlock", symbols(record));
    if (record.bitMask & RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE)
    {
        members.add("periodicityAndPattern", periodicity(record));
    }
    return members.json();
}

// One level for all patterns; the second bit counts.
std::string group(const RrcRateMatchPatternGroup_t& record)
{
    const bool bwp = (record.presense & RRC_RATE_MATCH_PATTERN_GROUP_BWP_LEVEL_PRESENCE) != 0;
    return list(record.numRateMatchPattern, record.rateMatchPatternGroup,
                [bwp](const rateMatchPatternGroup_u& pattern)
                { return bwp ? choice("bwpLevel", pattern.bwpLevel) : choice("cellLevel", pattern.cellLevel); });
}

std::string ptrs(const RrcPtrsDlCfg_t& record)
{
    Members members;
    if (record.bitMask & RRC_PTRS_DL_CFG_FREQ_DENSITY_PRESENCE)
    {
        members.add("frequencyDensity", numbers(2, record.freqDensity));
    }
    if (record.bitMask & RRC_PTRS_DL_CFG_TIME_DENSITY_PRESENCE)
    {
        members.add("timeDensity", numbers(3, record.timeDensity));
    }
    members.addIf(record.bitMask & RRC_PTRS_DL_CFG_EPRE_RATIO_PRESENCE, "epre-Ratio", record.epreRatio);
    members.addIf(record.bitMask & RRC_PTRS_DL_CFG_RESOURCE_ELE_OFFSET_PRESENCE, "resourceElementOffset",
                  record.resourceElementOffset);
    return members.json();
}

std::string dmrs(const RrcDmrsDlCfg_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_DMRS_DL_CFG_TYPE_PRESENCE, "dmrs-Type", record.dmrsType);
    members.addIf(record.bitMask & RRC_DMRS_DL_CFG_ADDI_POSITION_PRESENCE, "dmrs-AdditionalPosition",
                  record.dmrsAdditionalPos);
    members.addIf(record.bitMask & RRC_DMRS_DL_CFG_MAX_LEN_PRESENCE, "maxLength", record.maxLength);
    members.addIf(record.bitMask & RRC_DMRS_DL_CFG_SCRAM_ID0_PRESENCE, "scramblingID0", record.scramblingID0);
    members.addIf(record.bitMask & RRC_DMRS_DL_CFG_SCRAM_ID1_PRESENCE, "scramblingID1", record.scramblingID1);
    if (record.bitMask & RRC_DMRS_DL_CFG_TRACKRS_PRESENCE)
    {
        members.add("phaseTrackingRS", setup(ptrs(record.phaseTrackingRS)));
    }
    return members.json();
}

std::string qcl(const RrcQclInfo_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_QCI_INFO_CELL_PRESENCE, "cell", record.cellIdx);
    members.addIf(record.bitMask & RRC_QCI_INFO_BWP_ID_PRESENCE, "bwp-Id", record.bwpId);
    members.add("referenceSignal", record.Presence & RRC_QCI_INFO_SSB_IDX_PRESENCE
                                       ? choice("ssb", record.refSignal.ssbIdx)
                                       : choice("csi-rs", record.refSignal.csiRsIdx));
    members.add("qcl-Type", record.qclType);
    return members.json();
}

std::string tciState(const RrcTciState_t& record)
{
    Members members;
    members.add("tci-StateId", record.tciStateId);
    members.add("qcl-Type1", qcl(record.qclType1));
    if (record.bitMask & RRC_TCI_STATE_QCL_TYPE2_PRESENCE)
    {
        members.add("qcl-Type2", qcl(record.qclType2));
    }
    return members.json();
}

// The second bit counts.
std::string bundling(const RrcPdschCfg_t& record)
{
    Members members;
    if (record.prbBitmask & RRC_PDSCH_CFG_PRB_BUNDLING_DYNAMIC)
    {
        const dynamicBundingType& sizes = record.dynamicbundingtype;
        members.addIf(sizes.bitMask & RRC_PRB_BUNDLINGTYPE_DYNMIC_BUNDLE_SET1_PRESENCE, "bundleSizeSet1",
                      sizes.bundleSizeSet1);
        members.addIf(sizes.bitMask & RRC_PRB_BUNDLINGTYPE_DYNMIC_BUNDLE_SET2_PRESENCE, "bundleSizeSet2",
                      sizes.bundleSIzeSet2);
        return choice("dynamicBundling", members.json());
    }
    members.addIf(record.staticbundingtype.bitMask & RRC_PRB_BUNDLINGTYPE_STATIC_BUNDLE_SIZE_PRESENCE, "bundleSize",
                  record.staticbundingtype.bundleSize);
    return choice("staticBundling", members.json());
}

std::string zpResource(const RrcZpCsiRsResource_t& record)
{
    Members members;
    members.add("zp-CSI-RS-ResourceId", record.zpCsiRsResourId);
    members.add("resourceMapping", meant(record.resourceMapping));
    if (record.bitMask & RRC_ZP_CSI_RS_RESOURCE_PERIODICITY_OFFSET_PRESENCE)
    {
        members.add("periodicityAndOffset", meant(record.periodictityAndOffset));
    }
    return members.json();
}

std::string zpResourceSet(const RrcZpCsiRsResourceSet_t& record)
{
    Members members;
    members.add("zp-CSI-RS-ResourceSetId", record.zpCsiRsResourceSetId);
    members.add("zp-CSI-RS-ResourceIdList", numbers(record.numzpCsiRsResourId, record.zpCsiRsResourId));
    return members.json();
}

// The second bit counts.
std::string detectionResource(const RrcRadioLinkMonitorRs_t& record)
{
    Members members;
    members.add("radioLinkMonitoringRS-Id", record.radioLinkMonitorRsId);
    members.add("purpose", record.purpose);
    members.add("detectionResource", record.presence & RRC_RADIO_LINK_MONITOR_CSI_RS_PRESENCE
                                         ? choice("csi-RS-Index", record.detectionResource.csiRsIdx)
                                         : choice("ssb-Index", record.detectionResource.ssbIdx));
    return members.json();
}

std::string allocation(const RrcPdschTimeDomainResourceAlloc_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_PDSCH_TIMING_KO_PRESENCE, "k0", record.k0);
    members.add("mappingType", record.mappingType);
    members.add("startSymbolAndLength", record.startSymAdnLen);
    return members.json();
}

} // namespace

// The lists of semi-persistent sets are never sent.
std::string meant(const RrcPdschCfg_t& record)
{
    const unsigned mask = record.bitMask;
    Members members;
    members.addIf(mask & RRC_PDSCH_CFG_DATA_SCRAMBLING_ID_PRESENCE, "dataScramblingIdentityPDSCH",
                  record.dataScramblingIDPdsch);
    if (mask & RRC_PDSCH_CFG_MAPPING_TYPEA_PRESENCE)
    {
        members.add("dmrs-DownlinkForPDSCH-MappingTypeA", setup(dmrs(record.dmrsDlPdschMappingTypeA)));
    }
    if (mask & RRC_PDSCH_CFG_MAPPING_TYPEB_PRESENCE)
    {
        members.add("dmrs-DownlinkForPDSCH-MappingTypeB", setup(dmrs(record.dmrsDlPdschMappingTypeB)));
    }
    if (record.numTciStatesAddMod != 0)
    {
        members.add("tci-StatesToAddModList", list(record.numTciStatesAddMod, record.tciStatesAddMod, tciState));
    }
    if (record.numTciStatesRel != 0)
    {
        members.add("tci-StatesToReleaseList", numbers(record.numTciStatesRel, record.tciStateId));
    }
    members.addIf(mask & RRC_PDSCH_CFG_INTERLEAVE_PRESENCE, "vrb-ToPRB-Interleaver", record.vrbToPrbInterleaver);
    members.add("resourceAllocation", record.resourceAllocation);
    if (mask & RRC_PDSCH_CFG_TIMING_ALLOC_PRESENCE)
    {
        members.add("pdsch-TimeDomainAllocationList", setup(meant(record.pdschTimeDomainAllocList)));
    }
    members.addIf(mask & RRC_PDSCH_CFG_AGGR_FACTOR_PRESENCE, "pdsch-AggregationFactor", record.pdschAggregationFactor);
    if (record.numRateMatchPatternAddMod != 0)
    {
        members.add("rateMatchPatternToAddModList",
                    list(record.numRateMatchPatternAddMod, record.rateMatchPattern,
                         [](const RrcRateMatchPattern_t& pattern) { return meant(pattern); }));
    }
    if (record.numRateMatchPatternRel != 0)
    {
        members.add("rateMatchPatternToReleaseList", numbers(record.numRateMatchPatternRel, record.rateMatchPatternId));
    }
    if (mask & RRC_PDSCH_CFG_RATE_PATTERN_GROUP1_PRESENCE)
    {
        members.add("rateMatchPatternGroup1", group(record.rateMatchPatternGroup1));
    }
    if (mask & RRC_PDSCH_CFG_RATE_PATTERN_GROUP2_PRESENCE)
    {
        members.add("rateMatchPatternGroup2", group(record.rateMatchPatternGroup2));
    }
    members.add("rbg-Size", record.rbgSize);
    members.addIf(mask & RRC_PDSCH_CFG_MCS_TABLE_PRESENCE, "mcs-Table", record.mcsTable);
    members.addIf(mask & RRC_PDSCH_CFG_CODEWORDS_BY_DCI_PRESENCE, "maxNrofCodeWordsScheduledByDCI",
                  record.maxNrofCodeWordsScheduleByDCI);
    members.add("prb-BundlingType", bundling(record));
    if (record.numZpCsiRsResouceAddMod != 0)
    {
        members.add("zp-CSI-RS-ResourceToAddModList",
                    list(record.numZpCsiRsResouceAddMod, record.zpCsiRsResource, zpResource));
    }
    if (record.numZpCsiRsResouceRel != 0)
    {
        members.add("zp-CSI-RS-ResourceToReleaseList", numbers(record.numZpCsiRsResouceRel, record.zpCsiRsResourceId));
    }
    if (record.numZpCsiRsResourceSetAddMod != 0)
    {
        members.add("aperiodic-ZP-CSI-RS-ResourceSetsToAddModList",
                    list(record.numZpCsiRsResourceSetAddMod, record.aperiodicZpCsiRsResourceSet, zpResourceSet));
    }
    if (record.numZpCsiRsResourceSetRel != 0)
    {
        members.add("aperiodic-ZP-CSI-RS-ResourceSetsToReleaseList",
                    numbers(record.numZpCsiRsResourceSetRel, record.zpCsiRsResourceSetId));
    }
    if (mask & RRC_PDSCH_CFG_ZP_CSI_RS_RESOURCE_SET_PRESENCE)
    {
        members.add("p-ZP-CSI-RS-ResourceSet", setup(zpResourceSet(record.pZpCsiRsResourceSet)));
    }
    return members.json();
}

std::string meant(const RrcSpsCfg_t& record)
{
    Members members;
    members.add("periodicity", record.periodicity);
    members.add("nrofHARQ-Processes", record.nrofHardProcess);
    members.addIf(record.bitMask & RRC_SPS_CFG_N1_PUCCH_AN_PRESENCE, "n1PUCCH-AN", record.n1PucchAn);
    members.addIf(record.bitMask & RRC_SPS_CFG_MCS_TABLE_PRESENCE, "mcs-Table", record.mcsTable);
    return members.json();
}

std::string meant(const RrcRlmCfg_t& record)
{
    Members members;
    if (record.numFailDetectResourceAddMod != 0)
    {
        members.add("failureDetectionResourcesToAddModList",
                    list(record.numFailDetectResourceAddMod, record.failDetectResource, detectionResource));
    }
    if (record.numFailDetectResourceRel != 0)
    {
        members.add("failureDetectionResourcesToReleaseList",
                    numbers(record.numFailDetectResourceRel, record.failDetectResourceId));
    }
    members.addIf(record.bitMask & RRC_RADIO_LINK_MONITOR_BEAM_FAIL_MAX_COUNT_PRESENCE, "beamFailureInstanceMaxCount",
                  record.beamFailureInstanceMaxCount);
    members.addIf(record.bitMask & RRC_RADIO_LINK_MONITOR_BEAM_FAIL_DETECT_TIMER_PRESENCE, "beamFailureDetectionTimer",
                  record.beamFailureDetectionTimer);
    return members.json();
}

std::string meant(const RrcPdschTimeDomainResourceAllocList_t& record)
{
    return list(record.num, record.alloc, allocation);
}

// The second bit counts.
std::string meant(const RrcRateMatchPattern_t& record)
{
    Members members;
    members.add("rateMatchPatternId", record.rateMatchPatternId);
    members.add("patternType", record.Presence & RRC_PATTERN_TYPE_SETID
                                   ? choice("controlResourceSet", record.patternType.controlResourceSetId)
                                   : choice("bitmaps", bitmaps(record.patternType.bitmaps)));
    members.addIf(record.bitMask & RRC_RATE_MATCH_PATTERN_SUB_CARRIER_SPACING_PRESENCE, "subcarrierSpacing",
                  record.subCarrierSapcing);
    members.add("dummy", record.dummy);
    return members.json();
}

} // namespace records
