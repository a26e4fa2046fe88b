#ifndef RECONFIGURATIONWITHSYNC_H
#define RECONFIGURATIONWITHSYNC_H

#include "oneBearer.h"

// Band n78, 100 MHz, 30 kHz: 273 resource blocks around 3500.01 MHz.
inline void handoverCarrier(SpecificCarrier_t& carrier)
{
    rrcInit(&carrier);
    carrier.offsetToCarrier = 0;
    carrier.subcarrierSpacing = SubcarrierSpacing_kHz30;
    carrier.carrierBandwidth = 273;
}

inline void handoverDownlink(RrcDlCfgComm_t& downlink)
{
    rrcInit(&downlink);
    downlink.bitMask = RRC_DLCFGCOMM_FREQ_DL_PRESENCE | RRC_DLCFGCOMM_INIT_DL_BWP_PRESENCE;
    RrcFreqInfoDl_t& frequency = downlink.freqInfoDl;
    rrcInit(&frequency);
    frequency.bitMask = FREQ_INFO_DL_ABS_FREQ_SSB;
    frequency.absFreqSsb = 633312; // 3499.68 MHz, GSCN 7846
    frequency.multiBandNum = 1;
    frequency.freqBandIndNr[0] = 78;
    frequency.absFreqPointA = 630058; // 3450.87 MHz
    frequency.scsNum = 1;
    handoverCarrier(frequency.speCarrier[0]);

    NrBwpDownLinkCommon_t& bwp = downlink.bwpDlCommon;
    rrcInit(&bwp);
    bwp.bitmask = NR_BWP_DL_PDCCH_CFG_COMMON_PRESENCE | NR_BWP_DL_PDSCH_CFG_COMMON_PRESENCE;
    bwp.bwp.locationAndBandwidth = 1099; // all 273 resource blocks
    bwp.bwp.subcarrierSpacing = SubcarrierSpacing_kHz30;
    PdcchCfgCommon_t& pdcch = bwp.pdcchCfgCommon;
    rrcInit(&pdcch);
    pdcch.bitmask = NR_PDCCH_COMMON_CORESET_ZERO_PRESENCE | NR_PDCCH_COMMON_CORESET_PRESENCE |
                    NR_PDCCH_COMMON_SEARCH_SPACE_ZERO_PRESENCE | NR_PDCCH_COMMON_RA_SEARCH_SPACE_PRESENCE;
    pdcch.controlResourceSetZero = 10;
    pdcch.searchSpaceZero = 0;
    rrcInit(&pdcch.commonControlResourceSet);
    pdcch.commonControlResourceSet.controlResourceSetId = 1;
    pdcch.commonControlResourceSet.freqDomainResources = 0x1FFFFFFFFFFF; // 45 groups of 6 resource blocks
    pdcch.commonControlResourceSet.duration = 1;
    pdcch.commonControlResourceSet.cceRegMappingType = T_ControlResourceSet_cce_REG_MappingType_nonInterleaved;
    pdcch.commonControlResourceSet.precoderGranularity = ControlResourceSet_precoderGranularity_sameAsREG_bundle;
    pdcch.numCommonSearchSpaces = 1;
    NrSearchSpace_t& searchSpace = pdcch.commonSearchSpace[0];
    rrcInit(&searchSpace);
    searchSpace.bitmask = NR_SEARCH_SPACE_CORESET_ID_PRESENCE | NR_SEARCH_SPACE_MONITORING_SLOT_PRESENCE |
                          NR_SEARCH_SPACE_MONITORING_SYMBOLS_PRESENCE | NR_SEARCH_SPACE_NROF_CANDIDATES_PRESENCE |
                          NR_SEARCH_SPACE_TYPE_PRESENCE;
    searchSpace.searchSpaceId = 1;
    searchSpace.controlResourceSetId = 1;
    searchSpace.monitoringSlotPeriodicity = T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl1;
    searchSpace.monitoringSymbolsWithinSlot = 0x2000; // the first one
    rrcInit(&searchSpace.nrofCandidates);
    searchSpace.nrofCandidates.aggregationLevel4 = SearchSpace_nrofCandidates_aggregationLevel4_n2;
    searchSpace.nrofCandidates.aggregationLevel8 = SearchSpace_nrofCandidates_aggregationLevel8_n1;
    searchSpace.searchSpaceType = T_SearchSpace_searchSpaceType_common;
    rrcInit(&searchSpace.common);
    searchSpace.common.bitmask = NR_SEARCH_SPACE_DCI_FORMAT0_0_AND_1_0;
    pdcch.raSearchSpace = 1;
    PdschCfgCommon_t& pdsch = bwp.pdschCfgCommon;
    rrcInit(&pdsch);
    pdsch.numTimeDomainAllocs = 1;
    rrcInit(&pdsch.timeDomainAlloc[0]);
    pdsch.timeDomainAlloc[0].mappingType = PDSCH_TimeDomainResourceAllocation_mappingType_typeA;
    pdsch.timeDomainAlloc[0].startSymbolAndLength = 53; // 12 symbols from the third one
}

inline void handoverUplink(RrcUlCfgComm_t& uplink)
{
    rrcInit(&uplink);
    uplink.bitMask = RRC_FREQ_INFO_UL_PRESENCE | RRC_BWP_UPLINK_PRESENCE;
    RrcFreqInfoUl_t& frequency = uplink.freqInfoUl;
    rrcInit(&frequency);
    frequency.scsNum = 1; // band and point A are those of the downlink
    handoverCarrier(frequency.speCarrier[0]);

    InitialUlBwp_t& bwp = uplink.bwpUplink;
    rrcInit(&bwp);
    bwp.bitmask =
        NR_BWP_UL_RACH_CFG_COMMON_PRESENCE | NR_BWP_UL_PUSCH_CFG_COMMON_PRESENCE | NR_BWP_UL_PUCCH_CFG_COMMON_PRESENCE;
    bwp.bwp.locationAndBandwidth = 1099;
    bwp.bwp.subcarrierSpacing = SubcarrierSpacing_kHz30;
    NrRachCfgCommon_t& rach = bwp.rachCfgCommon;
    rrcInit(&rach);
    rach.bitmask = NR_RACH_COMMON_SSB_PER_RACH_OCCASION_PRESENCE | NR_RACH_COMMON_RSRP_THRESHOLD_SSB_PRESENCE |
                   NR_RACH_COMMON_MSG1_SUBCARRIER_SPACING_PRESENCE;
    rach.rachCfgGeneric.prachConfigurationIndex = 159;
    rach.rachCfgGeneric.msg1Fdm = RACH_ConfigGeneric_msg1_FDM_one;
    rach.rachCfgGeneric.msg1FrequencyStart = 0;
    rach.rachCfgGeneric.zeroCorrelationZoneConfig = 13;
    rach.rachCfgGeneric.preambleReceivedTargetPower = -104;
    rach.rachCfgGeneric.preambleTransMax = RACH_ConfigGeneric_preambleTransMax_n10;
    rach.rachCfgGeneric.powerRampingStep = RACH_ConfigGeneric_powerRampingStep_dB2;
    rach.rachCfgGeneric.raResponseWindow = RACH_ConfigGeneric_ra_ResponseWindow_sl20;
    rach.ssbPerRachOccasion = T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_one;
    rach.cbPreamblesPerSsb = 13; // n56: the preambles above are for contention-free access
    rach.raContentionResolutionTimer = RACH_ConfigCommon_ra_ContentionResolutionTimer_sf64;
    rach.rsrpThresholdSsb = 19;
    rach.prachRootSequence = T_RACH_ConfigCommon_prach_RootSequenceIndex_l139;
    rach.prachRootSequenceIndex = 1;
    rach.msg1SubcarrierSpacing = SubcarrierSpacing_kHz30;
    rach.restrictedSetConfig = RACH_ConfigCommon_restrictedSetConfig_unrestrictedSet;
    NrPuschCfgCommon_t& pusch = bwp.puschCfgCommon;
    rrcInit(&pusch);
    pusch.bitmask = NR_PUSCH_COMMON_MSG3_DELTA_PREAMBLE_PRESENCE | NR_PUSCH_COMMON_P0_NOMINAL_WITH_GRANT_PRESENCE;
    pusch.numTimeDomainAllocs = 1;
    rrcInit(&pusch.timeDomainAlloc[0]);
    pusch.timeDomainAlloc[0].bitmask = NR_TIME_DOMAIN_ALLOC_SLOT_OFFSET_PRESENCE;
    pusch.timeDomainAlloc[0].slotOffset = 4;
    pusch.timeDomainAlloc[0].mappingType = PDSCH_TimeDomainResourceAllocation_mappingType_typeB;
    pusch.timeDomainAlloc[0].startSymbolAndLength = 41; // 13 symbols from the first one
    pusch.msg3DeltaPreamble = 1;
    pusch.p0NominalWithGrant = -90;
    NrPucchCfgCommon_t& pucch = bwp.pucchCfgCommon;
    rrcInit(&pucch);
    pucch.bitmask =
        NR_PUCCH_COMMON_RESOURCE_PRESENCE | NR_PUCCH_COMMON_HOPPING_ID_PRESENCE | NR_PUCCH_COMMON_P0_NOMINAL_PRESENCE;
    pucch.pucchResourceCommon = 0;
    pucch.pucchGroupHopping = PUCCH_ConfigCommon_pucch_GroupHopping_neither;
    pucch.hoppingId = 42;
    pucch.p0Nominal = -90;
    uplink.timeAlignmentTimer = TimeAlignmentTimer_infinity;
}

inline void handoverCell(RrcServingCellCfgCommon_t& cell)
{
    rrcInit(&cell);
    cell.bitMask = RRC_PHY_SCELL_Id | RRC_DOWNLINK_CFG_COMMON | RRC_UPLINK_CFG_COMMON | RRC_TIMING_ADVANCE_OFFSET |
                   RRC_SSB_POSITION_IN_BURST | RRC_SSB_PERIOD_CITY_SERVING_CELL | RRC_SUB_CARRIER_SPACING |
                   RRC_TDD_UL_DL_CFG_COMMON;
    cell.dmrsTypeAPosition = ServingCellConfigCommon_dmrs_TypeA_Position_pos2;
    cell.ssPbchBlockPower = static_cast<UINT8>(-16);
    cell.pci = 42;
    handoverDownlink(cell.dlCfgComm);
    handoverUplink(cell.ulCfgComm);
    cell.nTimingAdvanceOffset = ServingCellConfigCommon_n_TimingAdvanceOffset_n25600;
    cell.ssbPosionBitMask = SSB_POSITION_MEDIUM_BITMAP;
    cell.RrcSsbPositionInBurst.mediumBitmap = 0xC0; // the first two of eight
    cell.ssbPeriodicityServingCell = ServingCellConfigCommon_ssb_periodicityServingCell_ms20;
    cell.subCarrierSpacing = SubcarrierSpacing_kHz30;

    // DDDSU: three downlink slots, one of 10 downlink and 2 uplink symbols, one uplink slot.
    TddUlDlCfgCom_t& tdd = cell.tddUlDlCfgComm;
    rrcInit(&tdd);
    tdd.referenceSubcarrierSpacing = SubcarrierSpacing_kHz30;
    tdd.pattern1.transmissionPeriodicity = TDD_UL_DL_Pattern_dl_UL_TransmissionPeriodicity_ms2p5;
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
    sync.t304 = ReconfigurationWithSync_t304_ms1000;
    sync.bitMask = RRC_RACH_CFG_DEDI_PRESENCE | RRC_SERVING_CELL_CFG_COMMON_PRESENCE | RRC_SSBMTC_PRESENCE;
    handoverCell(sync.spCellConfigCommon);
    rrcInit(&sync.smtc);
    sync.smtc.period = T_SSB_MTC_periodicityAndOffset_sf20;
    sync.smtc.offset = 0;
    sync.smtc.duration = SSB_MTC_duration_sf2;

    sync.rachCfgBitMask = RRC_RACH_CFG_UPLINK_PRESENCE;
    rrcInit(&sync.choice.uplink);
    sync.choice.uplink.bitMask = RRC_RACH_CFG_DEDI_CFRA_PRESENCE;
    RrcCfra_t& cfra = sync.choice.uplink.cfra;
    rrcInit(&cfra);
    cfra.bitMask = RRC_SSB | RRC_CFRA_OCCASIONS_PRESENCE;
    rrcInit(&cfra.occasions);
    RrcRachCfgGeneric_t& occasions = cfra.occasions.rachCfgGen;
    occasions.prachCfgIdx = 159;
    occasions.msg1Fdm = RACH_ConfigGeneric_msg1_FDM_one;
    occasions.msg1FreqStart = 0;
    occasions.zeroCorrelationZoneCfg = 13;
    occasions.preambleRecTargetPower = -104;
    occasions.preambleTransMax = RACH_ConfigGeneric_preambleTransMax_n10;
    occasions.powerRampingStep = RACH_ConfigGeneric_powerRampingStep_dB2;
    occasions.raRspWindow = RACH_ConfigGeneric_ra_ResponseWindow_sl20;
    cfra.occasions.bitMask = RRC_OCCASION_SSB_PER_RACH_PRESENCE;
    cfra.occasions.ssbPerRachOccasion = CFRA_occasions_ssb_perRACH_Occasion_one;
    rrcInit(&cfra.resources.ssb);
    cfra.resources.ssb.numSsbResources = 2;
    cfra.resources.ssb.ssbResource[0] = {0, 60};
    cfra.resources.ssb.ssbResource[1] = {1, 61};
    cfra.resources.ssb.raSsbOccasionMaskIdx = 0;

    rrcInit(&spCell.rlfTimerConstants);
    spCell.rlfTimerConstants.t310 = RLF_TimersAndConstants_t310_ms1000;
    spCell.rlfTimerConstants.n310 = RLF_TimersAndConstants_n310_n10;
    spCell.rlfTimerConstants.n311 = RLF_TimersAndConstants_n311_n1;
    spCell.rlfTimerConstants.t311 = RLF_TimersAndConstants_t311_v1530_ms3000;
}

#endif
