#ifndef RECONFIGURATIONWITHSYNC_H
#define RECONFIGURATIONWITHSYNC_H

#include "oneBearer.h"

// Band n78, 100 MHz, 30 kHz: 273 resource blocks around 3500.01 MHz.
inline void handoverCarrier(SpecificCarrier_t& carrier)
{
    carrier.offsetToCarrier = 0;
    carrier.subcarrierSpacing = 1; // kHz30
    carrier.carrierBandwidth = 273;
}

inline void handoverDownlink(RrcDlCfgComm_t& downlink)
{
    rrcInit(&downlink);
    downlink.bitMask = RRC_DLCFGCOMM_FREQ_DL_PRESENCE | RRC_DLCFGCOMM_INIT_DL_BWP_PRESENCE;
    RrcFreqInfoDl_t& frequency = downlink.freqInfoDl;
    frequency.bitMask = FREQ_INFO_DL_ABS_FREQ_SSB;
    frequency.absFreqSsb = 633312; // 3499.68 MHz, GSCN 7846
    frequency.multiBandNum = 1;
    frequency.freqBandIndNr[0] = 78;
    frequency.absFreqPointA = 630058; // 3450.87 MHz
    frequency.scsNum = 1;
    handoverCarrier(frequency.speCarrier[0]);

    NrBwpDownLinkCommon_t& bwp = downlink.bwpDlCommon;
    bwp.bitmask = NR_BWP_DL_PDCCH_CFG_COMMON_PRESENCE | NR_BWP_DL_PDSCH_CFG_COMMON_PRESENCE;
    bwp.bwp.locationAndBandwidth = 1099; // all 273 resource blocks
    bwp.bwp.subcarrierSpacing = 1;       // kHz30
    PdcchCfgCommon_t& pdcch = bwp.pdcchCfgCommon;
    pdcch.bitmask = NR_PDCCH_COMMON_CORESET_ZERO_PRESENCE | NR_PDCCH_COMMON_CORESET_PRESENCE |
                    NR_PDCCH_COMMON_SEARCH_SPACE_ZERO_PRESENCE | NR_PDCCH_COMMON_RA_SEARCH_SPACE_PRESENCE;
    pdcch.controlResourceSetZero = 10;
    pdcch.searchSpaceZero = 0;
    pdcch.commonControlResourceSet.controlResourceSetId = 1;
    pdcch.commonControlResourceSet.freqDomainResources = 0x1FFFFFFFFFFF; // 45 groups of 6 resource blocks
    pdcch.commonControlResourceSet.duration = 1;
    pdcch.commonControlResourceSet.cceRegMappingType = 2;   // nonInterleaved
    pdcch.commonControlResourceSet.precoderGranularity = 0; // sameAsREG-bundle
    pdcch.numCommonSearchSpaces = 1;
    NrSearchSpace_t& searchSpace = pdcch.commonSearchSpace[0];
    searchSpace.bitmask = NR_SEARCH_SPACE_CORESET_ID_PRESENCE | NR_SEARCH_SPACE_MONITORING_SLOT_PRESENCE |
                          NR_SEARCH_SPACE_MONITORING_SYMBOLS_PRESENCE | NR_SEARCH_SPACE_NROF_CANDIDATES_PRESENCE |
                          NR_SEARCH_SPACE_TYPE_PRESENCE;
    searchSpace.searchSpaceId = 1;
    searchSpace.controlResourceSetId = 1;
    searchSpace.monitoringSlotPeriodicity = 1;        // sl1
    searchSpace.monitoringSymbolsWithinSlot = 0x2000; // the first one
    searchSpace.nrofCandidates.aggregationLevel4 = 2; // n2
    searchSpace.nrofCandidates.aggregationLevel8 = 1; // n1
    searchSpace.searchSpaceType = 1;                  // common
    searchSpace.common.bitmask = NR_SEARCH_SPACE_DCI_FORMAT0_0_AND_1_0;
    pdcch.raSearchSpace = 1;
    PdschCfgCommon_t& pdsch = bwp.pdschCfgCommon;
    pdsch.numTimeDomainAllocs = 1;
    pdsch.timeDomainAlloc[0].mappingType = 0;           // typeA
    pdsch.timeDomainAlloc[0].startSymbolAndLength = 53; // 12 symbols from the third one
}

inline void handoverUplink(RrcUlCfgComm_t& uplink)
{
    rrcInit(&uplink);
    uplink.bitMask = RRC_FREQ_INFO_UL_PRESENCE | RRC_BWP_UPLINK_PRESENCE;
    RrcFreqInfoUl_t& frequency = uplink.freqInfoUl;
    frequency.scsNum = 1; // band and point A are those of the downlink
    handoverCarrier(frequency.speCarrier[0]);

    InitialUlBwp_t& bwp = uplink.bwpUplink;
    bwp.bitmask =
        NR_BWP_UL_RACH_CFG_COMMON_PRESENCE | NR_BWP_UL_PUSCH_CFG_COMMON_PRESENCE | NR_BWP_UL_PUCCH_CFG_COMMON_PRESENCE;
    bwp.bwp.locationAndBandwidth = 1099;
    bwp.bwp.subcarrierSpacing = 1; // kHz30
    NrRachCfgCommon_t& rach = bwp.rachCfgCommon;
    rach.bitmask = NR_RACH_COMMON_SSB_PER_RACH_OCCASION_PRESENCE | NR_RACH_COMMON_RSRP_THRESHOLD_SSB_PRESENCE |
                   NR_RACH_COMMON_MSG1_SUBCARRIER_SPACING_PRESENCE;
    rach.rachCfgGeneric.prachConfigurationIndex = 159;
    rach.rachCfgGeneric.msg1Fdm = 0; // one
    rach.rachCfgGeneric.msg1FrequencyStart = 0;
    rach.rachCfgGeneric.zeroCorrelationZoneConfig = 13;
    rach.rachCfgGeneric.preambleReceivedTargetPower = -104;
    rach.rachCfgGeneric.preambleTransMax = 6; // n10
    rach.rachCfgGeneric.powerRampingStep = 1; // dB2
    rach.rachCfgGeneric.raResponseWindow = 5; // sl20
    rach.ssbPerRachOccasion = 4;              // one
    rach.cbPreamblesPerSsb = 13;              // n56: the preambles above are for contention-free access
    rach.raContentionResolutionTimer = 7;     // sf64
    rach.rsrpThresholdSsb = 19;
    rach.prachRootSequence = 2; // l139
    rach.prachRootSequenceIndex = 1;
    rach.msg1SubcarrierSpacing = 1; // kHz30
    rach.restrictedSetConfig = 0;   // unrestrictedSet
    NrPuschCfgCommon_t& pusch = bwp.puschCfgCommon;
    pusch.bitmask = NR_PUSCH_COMMON_MSG3_DELTA_PREAMBLE_PRESENCE | NR_PUSCH_COMMON_P0_NOMINAL_WITH_GRANT_PRESENCE;
    pusch.numTimeDomainAllocs = 1;
    pusch.timeDomainAlloc[0].bitmask = NR_TIME_DOMAIN_ALLOC_SLOT_OFFSET_PRESENCE;
    pusch.timeDomainAlloc[0].slotOffset = 4;
    pusch.timeDomainAlloc[0].mappingType = 1;           // typeB
    pusch.timeDomainAlloc[0].startSymbolAndLength = 41; // 13 symbols from the first one
    pusch.msg3DeltaPreamble = 1;
    pusch.p0NominalWithGrant = -90;
    NrPucchCfgCommon_t& pucch = bwp.pucchCfgCommon;
    pucch.bitmask =
        NR_PUCCH_COMMON_RESOURCE_PRESENCE | NR_PUCCH_COMMON_HOPPING_ID_PRESENCE | NR_PUCCH_COMMON_P0_NOMINAL_PRESENCE;
    pucch.pucchResourceCommon = 0;
    pucch.pucchGroupHopping = 0; // neither
    pucch.hoppingId = 42;
    pucch.p0Nominal = -90;
    uplink.timeAlignmentTimer = 7; // infinity
}

inline void handoverCell(RrcServingCellCfgCommon_t& cell)
{
    rrcInit(&cell);
    cell.bitMask = RRC_PHY_SCELL_Id | RRC_DOWNLINK_CFG_COMMON | RRC_UPLINK_CFG_COMMON | RRC_TIMING_ADVANCE_OFFSET |
                   RRC_SSB_POSITION_IN_BURST | RRC_SSB_PERIOD_CITY_SERVING_CELL | RRC_SUB_CARRIER_SPACING |
                   RRC_TDD_UL_DL_CFG_COMMON;
    cell.dmrsTypeAPosition = 0; // pos2
    cell.ssPbchBlockPower = static_cast<UINT8>(-16);
    cell.pci = 42;
    handoverDownlink(cell.dlCfgComm);
    handoverUplink(cell.ulCfgComm);
    cell.nTimingAdvanceOffset = 1; // n25600
    cell.ssbPosionBitMask = SSB_POSITION_MEDIUM_BITMAP;
    cell.RrcSsbPositionInBurst.mediumBitmap = 0xC0; // the first two of eight
    cell.ssbPeriodicityServingCell = 2;             // ms20
    cell.subCarrierSpacing = 1;                     // kHz30

    // DDDSU: three downlink slots, one of 10 downlink and 2 uplink symbols, one uplink slot.
    TddUlDlCfgCom_t& tdd = cell.tddUlDlCfgComm;
    tdd.referenceSubcarrierSpacing = 1;       // kHz30
    tdd.pattern1.transmissionPeriodicity = 5; // ms2p5
    tdd.pattern1.nrofDownlinkSlots = 3;
    tdd.pattern1.nrofDownlinkSymbols = 10;
    tdd.pattern1.nrofUplinkSlots = 1;
    tdd.pattern1.nrofUplinkSymbols = 2;
}

// A handover: the bearer, MAC and physical cell group of oneBearer, and a special cell with the target's common
// configuration, T304, contention-free random access by SSB, SSB measurement timing and radio link failure timers.
inline void reconfigurationWithSync(RrcCellGroupCfg_t& record)
{
    oneBearer(record);
    record.bitMask |= RRC_CELLGROUPCFG_SPCELL_PRESENCE;

    RrcSpCellCfg_t& spCell = record.spCellCfg;
    rrcInit(&spCell);
    spCell.bitMask = RRC_SPCELLCFG_RECFG_PRESENCE | RRC_SPCELLCFG_RLFTIMER_PRESENCE;
    RrcReconfWithSync_t& sync = spCell.recfgWithSync;
    rrcInit(&sync);
    sync.newUEId = 0x4601;
    sync.t304 = 5; // ms1000
    sync.bitMask = RRC_RACH_CFG_DEDI_PRESENCE | RRC_SERVING_CELL_CFG_COMMON_PRESENCE | RRC_SSBMTC_PRESENCE;
    handoverCell(sync.spCellConfigCommon);
    sync.smtc.period = 3; // sf20
    sync.smtc.offset = 0;
    sync.smtc.duration = 1; // sf2

    sync.rachCfgBitMask = RRC_RACH_CFG_UPLINK_PRESENCE;
    rrcInit(&sync.choice.uplink);
    sync.choice.uplink.bitMask = RRC_RACH_CFG_DEDI_CFRA_PRESENCE;
    RrcCfra_t& cfra = sync.choice.uplink.cfra;
    rrcInit(&cfra);
    cfra.bitMask = RRC_SSB | RRC_CFRA_OCCASIONS_PRESENCE;
    RrcRachCfgGeneric_t& occasions = cfra.occasions.rachCfgGen;
    occasions.prachCfgIdx = 159;
    occasions.msg1Fdm = 0; // one
    occasions.msg1FreqStart = 0;
    occasions.zeroCorrelationZoneCfg = 13;
    occasions.preambleRecTargetPower = -104;
    occasions.preambleTransMax = 6; // n10
    occasions.powerRampingStep = 1; // dB2
    occasions.raRspWindow = 5;      // sl20
    cfra.occasions.bitMask = RRC_OCCASION_SSB_PER_RACH_PRESENCE;
    cfra.occasions.ssbPerRachOccasion = 3; // one
    rrcInit(&cfra.resources.ssb);
    cfra.resources.ssb.numSsbResources = 2;
    cfra.resources.ssb.ssbResource[0] = {0, 60};
    cfra.resources.ssb.ssbResource[1] = {1, 61};
    cfra.resources.ssb.raSsbOccasionMaskIdx = 0;

    spCell.rlfTimerConstants.t310 = 5; // ms1000
    spCell.rlfTimerConstants.n310 = 6; // n10
    spCell.rlfTimerConstants.n311 = 0; // n1
    spCell.rlfTimerConstants.t311 = 1; // ms3000
}

#endif
