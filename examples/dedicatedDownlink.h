#ifndef DEDICATEDDOWNLINK_H
#define DEDICATEDDOWNLINK_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcInit.h"

// The bandwidth part that the UE works in, in both directions: all 273 resource blocks of the carrier.
constexpr UINT8 workingBwp = 1;
// Its control resource sets and search spaces: 0 and 1 are those of the cell.
constexpr UINT8 firstControlResourceSet = 2;
constexpr UINT8 firstSearchSpace = 2;
// The resources of the tracking reference signal, by which PDSCH and PDCCH are received.
constexpr UINT8 firstTrackingResource = 1;

inline void wholeCarrier(RrcBwp_t& bwp)
{
    bwp.locationAndBandwidth = 1099; // 273 resource blocks from the first one
    bwp.subCarrierSpacing = SubcarrierSpacing_kHz30;
}

// Two control resource sets of two symbols, the second for few resource blocks; two search spaces of the UE and a
// common one.
inline void dedicatedPdcch(RrcPdcchCfg_t& pdcch)
{
    rrcInit(&pdcch);
    pdcch.numControlResourceSetAddMod = 2;
    for (UINT8 i = 0; i < 2; ++i)
    {
        RrcControlResourceSet_t& set = pdcch.controlResourceSetAddMod[i];
        rrcInit(&set);
        set.setIdx = static_cast<UINT8>(firstControlResourceSet + i);
        set.duration = 2;
        set.precoderGranularity = ControlResourceSet_precoderGranularity_sameAsREG_bundle;
        set.numTciStatesPdcchAdd = 1;
        set.tciStateAddId[0] = 2;
        set.bitMask = RRC_CONTROL_RESOURCE_SET_PDCCH_SCRAMBID_PRESENCE;
        set.pdcchDmrsScramblindId = 42;
    }
    RrcControlResourceSet_t& wide = pdcch.controlResourceSetAddMod[0];
    wide.freqDomainResource = 0x1FFFFFFFFFFF; // 45 groups of 6 resource blocks
    wide.presence = RRC_CCE_MAP_TYPE_NON_INTERLEAVED;
    RrcControlResourceSet_t& narrow = pdcch.controlResourceSetAddMod[1];
    narrow.freqDomainResource = 0x1FE000000000; // the first 8
    narrow.presence = RRC_CCE_MAP_TYPE_INTERLEAVED;
    rrcInit(&narrow.interLeaved);
    narrow.interLeaved.regBundleSize = ControlResourceSet_cce_REG_MappingType_interleaved_reg_BundleSize_n6;
    narrow.interLeaved.interleaveSize = ControlResourceSet_cce_REG_MappingType_interleaved_interleaverSize_n2;

    pdcch.numSearchSpaceAddMod = 3;
    for (UINT8 i = 0; i < 3; ++i)
    {
        RrcSearchSpace_t& space = pdcch.searchSpaceAddMod[i];
        rrcInit(&space);
        space.searchSpaceId = static_cast<UINT8>(firstSearchSpace + i);
        space.bitMask = RRC_SEARCH_SPACE_CONTROL_RESOURCE_SETID_PRESENCE |
                        RRC_SEARCH_SPACE_MON_SLOT_PERIOD_AND_OFFSET_PRESENCE |
                        RRC_SEARCH_SPACE_MON_SYMBOL_WITH_SLOT_PRESENCE | RRC_SEARCH_SPACE_NROF_CADIDATE_PRESENCE |
                        RRC_SEARCH_SPACE_TYPE_PRESENCE;
        space.controlResourceSetId = static_cast<UINT8>(firstControlResourceSet + (i == 0 ? 0 : 1));
        rrcInit(&space.monitoringSlotPeriodOffset);
        space.monitoringSlotPeriodOffset.period = T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl1;
        space.monitoringSysmblosWithSlot = 0x2000; // the first symbol
        rrcInit(&space.nrofCadidates);
        space.nrofCadidates.aggrLev2 = SearchSpace_nrofCandidates_aggregationLevel2_n4;
        space.nrofCadidates.aggrLev4 = SearchSpace_nrofCandidates_aggregationLevel4_n2;
        space.nrofCadidates.aggrLev8 = SearchSpace_nrofCandidates_aggregationLevel8_n1;
        space.presence = RRC_SEARCH_TYPE_UE_SPECIFIC_PRESENCE;
        space.searchType.ueSpecific.dciFormats =
            i == 0 ? SearchSpace_searchSpaceType_ue_Specific_dci_Formats_formats0_1_And_1_1
                   : SearchSpace_searchSpaceType_ue_Specific_dci_Formats_formats0_0_And_1_0;
    }
    RrcSearchSpace_t& common = pdcch.searchSpaceAddMod[2];
    common.monitoringSlotPeriodOffset.period = T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl20;
    common.monitoringSlotPeriodOffset.offset = 5;
    common.presence = RRC_SEARCH_TYPE_COMMON_PRESENCE;
    rrcInit(&common.searchType.common);
    common.searchType.common.presence = RRC_SEARCH_TYPE_COMMON_DCI0_1_PRESENCE;
}

// Four TCI states: two SSBs of the cell, and the two resources of the tracking reference signal.
inline void tciStates(RrcPdschCfg_t& pdsch)
{
    pdsch.numTciStatesAddMod = 4;
    for (UINT8 i = 0; i < 4; ++i)
    {
        RrcTciState_t& state = pdsch.tciStatesAddMod[i];
        rrcInit(&state);
        state.tciStateId = i;
        if (i < 2)
        {
            state.qclType1.qclType = QCL_Info_qcl_Type_typeC;
            state.qclType1.Presence = RRC_QCI_INFO_SSB_IDX_PRESENCE;
            state.qclType1.refSignal.ssbIdx = i;
        }
        else
        {
            state.qclType1.qclType = QCL_Info_qcl_Type_typeA;
            state.qclType1.refSignal.csiRsIdx = static_cast<UINT8>(firstTrackingResource + i - 2);
            state.qclType1.bitMask = RRC_QCI_INFO_BWP_ID_PRESENCE;
            state.qclType1.bwpId = workingBwp;
        }
    }
}

inline void dedicatedPdsch(RrcPdschCfg_t& pdsch)
{
    rrcInit(&pdsch);
    pdsch.resourceAllocation = PDSCH_Config_resourceAllocation_resourceAllocationType1;
    pdsch.rbgSize = PDSCH_Config_rbg_Size_config1;
    pdsch.prbBitmask = RRC_PDSCH_CFG_PRB_BUNDLING_STATIC;
    rrcInit(&pdsch.staticbundingtype);
    pdsch.staticbundingtype.bitMask = RRC_PRB_BUNDLINGTYPE_STATIC_BUNDLE_SIZE_PRESENCE;
    pdsch.staticbundingtype.bundleSize = PDSCH_Config_prb_BundlingType_staticBundling_bundleSize_wideband;
    pdsch.bitMask = RRC_PDSCH_CFG_DATA_SCRAMBLING_ID_PRESENCE | RRC_PDSCH_CFG_MAPPING_TYPEA_PRESENCE |
                    RRC_PDSCH_CFG_TIMING_ALLOC_PRESENCE | RRC_PDSCH_CFG_MCS_TABLE_PRESENCE |
                    RRC_PDSCH_CFG_CODEWORDS_BY_DCI_PRESENCE;
    pdsch.dataScramblingIDPdsch = 42;
    rrcInit(&pdsch.dmrsDlPdschMappingTypeA);
    pdsch.dmrsDlPdschMappingTypeA.bitMask = RRC_DMRS_DL_CFG_ADDI_POSITION_PRESENCE;
    pdsch.dmrsDlPdschMappingTypeA.dmrsAdditionalPos = DMRS_DownlinkConfig_dmrs_AdditionalPosition_pos1;
    tciStates(pdsch);
    RrcPdschTimeDomainResourceAllocList_t& allocations = pdsch.pdschTimeDomainAllocList;
    rrcInit(&allocations);
    allocations.num = 2;
    rrcInit(&allocations.alloc[0]);
    allocations.alloc[0].startSymAdnLen = 53; // 12 symbols from the third one
    rrcInit(&allocations.alloc[1]);
    allocations.alloc[1].startSymAdnLen = 72; // 6 symbols from the third one
    pdsch.mcsTable = PDSCH_Config_mcs_Table_qam256;
    pdsch.maxNrofCodeWordsScheduleByDCI = PDSCH_Config_maxNrofCodeWordsScheduledByDCI_n1;
}

inline void dedicatedDownlink(RrcServingCellCfg_t& cell)
{
    cell.bitMask |= RRC_SERVING_CELL_FIRST_ACTIVE_DL_BWP_PRESENCE | RRC_SERVING_CELL_PDSCH_SERVING_CELL_CFG_PRESENCE;
    cell.firstActiveDlBwpId = workingBwp;

    cell.numDlBwpAddMod = 1;
    RrcBwpDl_t& bwp = cell.dlBwp[0];
    rrcInit(&bwp);
    bwp.bwpId = workingBwp;
    bwp.bitMask = RRC_BWP_DL_COMMON_PRESENCE | RRC_BWP_DL_DEDICATED_PRESENCE;
    rrcInit(&bwp.bwpCommon);
    wholeCarrier(bwp.bwpCommon.genericParam);
    rrcInit(&bwp.bwpDedicated);
    bwp.bwpDedicated.bitMask = RRC_BWP_DL_DEDI_PDCCH_CFG_PRESENCE | RRC_BWP_DL_DEDI_PDSCH_CFG_PRESENCE;
    dedicatedPdcch(bwp.bwpDedicated.pdcchCfg);
    dedicatedPdsch(bwp.bwpDedicated.pdschCfg);

    RrcPdschServingCellCfg_t& pdsch = cell.pdschServingCellCfg;
    rrcInit(&pdsch);
    pdsch.bitMask =
        RRC_PDSCH_SERVING_CELL_CFG_NROF_HARQ_PROCESS_FOR_PDSCH_PRESENCE | RRC_PDSCH_SERVING_CELL_CFG_MAX_MIMO_LAYERS;
    pdsch.nrofHarqProcessForPDSCH = PDSCH_ServingCellConfig_nrofHARQ_ProcessesForPDSCH_n16;
    pdsch.maxMIMO_Layer = 2;
}

#endif
