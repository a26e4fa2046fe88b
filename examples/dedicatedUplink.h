#ifndef DEDICATEDUPLINK_H
#define DEDICATEDUPLINK_H

#include "dedicatedDownlink.h"

// The PUCCH resource of the periodic CSI report, the last of eight.
constexpr UINT8 csiPucchResource = 7;

// Eight resources: the first four, of format 1, carry up to two bits, the others, of format 2, up to 32.
inline void pucchResources(RrcPucchCfg_t& pucch)
{
    pucch.numResourceSetAddMod = 2;
    for (UINT8 i = 0; i < 2; ++i)
    {
        RrcPucchResourceSet_t& set = pucch.resourceSet[i];
        rrcInit(&set);
        set.pucchResourceSetId = i;
        set.numResourceList = 4;
        for (UINT8 j = 0; j < 4; ++j)
        {
            set.pucchResourceId[j] = static_cast<UINT8>(4 * i + j);
        }
    }
    pucch.numResourceAddMod = 8;
    for (UINT8 i = 0; i < 8; ++i)
    {
        RrcPucchResource_t& resource = pucch.resource[i];
        rrcInit(&resource);
        resource.pucchResourceId = i;
        resource.startingPRB = i;
        resource.bitMask =
            RRC_PUCCH_RESOURCE_INTRA_SLOT_FREQ_HOPPING_PRESENCE | RRC_PUCCH_RESOURCE_SECOND_HOPPING_PRB_PRESENCE;
        resource.intraSlotFreqHopping = PUCCH_Resource_intraSlotFrequencyHopping_enabled;
        resource.secondHopPRB = static_cast<UINT16>(272 - i);
        if (i < 4)
        {
            resource.presence = RRC_PUCCH_RESOURCE_FORMAT1_PRESENCE;
            rrcInit(&resource.format.format1);
            resource.format.format1.nrofSymbols = 14;
        }
        else
        {
            resource.presence = RRC_PUCCH_RESOURCE_FORMAT2_PRESENCE;
            rrcInit(&resource.format.format2);
            resource.format.format2.nrofPRBs = 1;
            resource.format.format2.nrofSymbols = 2;
            resource.format.format2.startingSymbolIdx = 12;
        }
    }
}

inline void dedicatedPucch(RrcPucchCfg_t& pucch)
{
    rrcInit(&pucch);
    pucchResources(pucch);
    pucch.bitMask = RRC_PUCCH_CFG_FORMAT2_PRESENCE | RRC_PUCCH_CFG_POWER_CONTROL_PRESENCE;
    rrcInit(&pucch.format2);
    pucch.format2.bitMask =
        RRC_PUCCH_FORMAT_CFG_MAX_CODE_RATE_PRESENCE | RRC_PUCCH_FORMAT_CFG_SIMULTANEOUS_HARQ_ACK_CSI_PRESENCE;
    pucch.format2.maxCodeRate = PUCCH_MaxCodeRate_zeroDot35;
    pucch.format2.sumultaneousHarqAckCsi = PUCCH_FormatConfig_simultaneousHARQ_ACK_CSI_true;
    pucch.numSchedReqResourceCfgAddMod = 1;
    RrcSchedReqResourceCfg_t& request = pucch.schedReqResource[0];
    rrcInit(&request);
    request.schedReqResourceId = 1;
    request.schedReqId = 0;
    request.bitMask =
        RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_PRESENCE | RRC_SCHED_REQ_RESOURCE_CFG_PUCCH_RESOURCE_ID_PRESENCE;
    request.presence = RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL20;
    request.periodAndOffset.offset = 4; // an uplink slot of the pattern DDDSU
    request.pucchResourceId = 3;
    pucch.numMultiCsiPucchResourceId = 1;
    pucch.multiCsiPucchResourceId[0] = csiPucchResource;
    pucch.numDlData2UlACK = 4;
    for (UINT8 i = 0; i < 4; ++i)
    {
        pucch.dlData2UlACK[i] = static_cast<UINT8>(4 + i);
    }
    RrcPucchPowerControl_t& power = pucch.pucchPowerControl;
    rrcInit(&power);
    power.bitMask = RRC_PUCCH_POWER_CONTROL_F1_PRESENCE | RRC_PUCCH_POWER_CONTROL_F2_PRESENCE |
                    RRC_PUCCH_POWER_CONTROL_P0_SET_PRESENCE | RRC_PUCCH_POWER_CONTROL_PATH_REFERENCE_RSS;
    power.deltaFPucchF1 = 0;
    power.deltaFPucchF2 = 2;
    power.numP0Set = 1;
    rrcInit(&power.p0Set[0]);
    power.p0Set[0].p0PucchId = 1;
    power.p0Set[0].poPucchValue = static_cast<UINT8>(-2);
    power.numPathLossRefRs = 1;
    rrcInit(&power.pathLossRefRs[0]);
    power.pathLossRefRs[0].presence = RRC_PUCCH_PATH_LOSS_REF_RS_SSB_IDX_PRESENCE;
    power.pathLossRefRs[0].refSignal.ssbIdx = 0;
}

inline void dedicatedPusch(RrcPuschCfg_t& pusch)
{
    rrcInit(&pusch);
    pusch.resourceAlloc = PUSCH_Config_resourceAllocation_resourceAllocationType1;
    pusch.bitMask = RRC_PUSCH_CFG_DATA_SCRAMBLING_ID_PUSCH_PRESENCE | RRC_PUSCH_CFG_TX_CFG_PRESENCE |
                    RRC_PUSCH_CFG_DMRS_MAPPING_TYPEA_PRESENCE | RRC_PUSCH_CFG_PUSCH_POWER_CONTROLPRESENCE |
                    RRC_PUSCH_CFG_PUSCH_TIMING_DOMAIN_ALLOCATION_LIST_PRESENCE | RRC_PUSCH_CFG_MCS_TABLE_PRESENCE |
                    RRC_PUSCH_CFG_TRANSFORM_PRECODER_PRESENCE | RRC_PUSCH_CFG_CODE_BOOK_SUBSET_PRESENCE |
                    RRC_PUSCH_CFG_MAX_RANK_PRESENCE | RRC_PUSCH_CFG_UCI_ON_PUSCH_PRESENCE;
    pusch.dataScramblingIdPusch = 42;
    pusch.txCfg = PUSCH_Config_txConfig_codebook;
    rrcInit(&pusch.dmrsUlPuschTypeA);
    pusch.dmrsUlPuschTypeA.bitMask =
        RRC_DMRS_UL_CFG_ADDI_POS_PRESENCE | RRC_DMRS_UL_CFG_TRANSFORM_PRECODE_DISABLE_PRESENCE;
    pusch.dmrsUlPuschTypeA.dmrsAddiPos = DMRS_UplinkConfig_dmrs_AdditionalPosition_pos1;
    rrcInit(&pusch.dmrsUlPuschTypeA.transformPrecodDisable);
    pusch.dmrsUlPuschTypeA.transformPrecodDisable.bitMask = RRC_TRANSFORM_PRECODE_DISABLE_ID0_PRESENCE;
    pusch.dmrsUlPuschTypeA.transformPrecodDisable.scramblingId0 = 42;
    RrcPuschPowerControl_t& power = pusch.puschPowerContol;
    rrcInit(&power);
    power.bitMask = RRC_PUSCH_POWER_CONTROL_MSG3_ALPHA_PRESENCE;
    power.msg3Alpha = Alpha_alpha1;
    power.numP0AlphaSets = 1;
    rrcInit(&power.p0AlphaSets[0]);
    power.p0AlphaSets[0].bitMask = RRC_P0PUSCH_ALPHA_SET_P0_PRESENCE | RRC_P0PUSCH_ALPHA_SET_ALPHA_PRESENCE;
    power.p0AlphaSets[0].p0 = 0;
    power.p0AlphaSets[0].alpha = Alpha_alpha09;
    power.numPathLossRefRsAddMod = 1;
    rrcInit(&power.pathLossRefRs[0]);
    power.pathLossRefRs[0].presence = RRC_PUSCH_PATH_LOSS_REF_RS_SSB_PRESENCE;
    power.pathLossRefRs[0].regSig.ssbIdx = 0;
    power.numSriPuschMappingAddMod = 1;
    rrcInit(&power.sriPuschMapping[0]); // with the numbers 0 of all three
    RrcPuschTimeDomainResourceAllocList_t& allocations = pusch.puschTimeDomainAllocList;
    rrcInit(&allocations);
    allocations.numPuschTimeDomainResourceAllocList = 2;
    for (UINT8 i = 0; i < 2; ++i)
    {
        rrcInit(&allocations.item[i]);
        allocations.item[i].startSymbolAndLen = 27; // 14 symbols from the first one
        allocations.item[i].bitMask = RRC_PUSCH_TIME_DOMAIN_K2_PRESENCE;
        allocations.item[i].k2 = static_cast<UINT8>(3 + i);
    }
    pusch.mcsTable = PUSCH_Config_mcs_Table_qam256;
    pusch.transformPrecoder = PUSCH_Config_transformPrecoder_disabled;
    pusch.codebookSubSet = PUSCH_Config_codebookSubset_nonCoherent;
    pusch.maxRank = 1;
    RrcUciOnPusch_t& uci = pusch.uciOnPusch;
    rrcInit(&uci);
    uci.scaling = UCI_OnPUSCH_scaling_f1;
    uci.bitMask = RRC_UCI_PUSCH_BETA_OFFSETS_PRESENCE;
    uci.presence = RRC_UCI_PUSCH_BETA_OFFSETS_SEMI_STATIC_PRESENCE;
    RrcBetaOffsets_t& beta = uci.betaOffset.semiStatic;
    rrcInit(&beta);
    beta.bitMask = RRC_BETA_OFFSETS_ACK_IDX1_PRESENCE | RRC_BETA_OFFSETS_CSI_PART1_IDX1_PRESENCE |
                   RRC_BETA_OFFSETS_CSI_PART2_IDX1_PRESENCE;
    beta.betaOffsetAckIdx1 = 9;
    beta.betaOffsetCSIPart1Idx1 = 6;
    beta.betaOffsetCSIPart2Idx1 = 6;
}

// One resource of two ports over the whole carrier, for the codebook of the PUSCH.
inline void dedicatedSrs(RrcSrsCfg_t& srs)
{
    rrcInit(&srs);
    srs.numSrsResourceSetAddMod = 1;
    RrcSrsResourceSet_t& set = srs.srsResourceSet[0];
    rrcInit(&set);
    set.numSrsResourceId = 1;
    set.srsResourceId[0] = 0;
    set.presence = RRC_SRS_RESOURCE_SET_TYPE_PERIODIC_PERSENCE | RRC_SRS_RESOURCE_SET_ALPHA_PERSENCE |
                   RRC_SRS_RESOURCE_SET_P0_PERSENCE | RRC_SRS_PATH_LOSS_REFERENCE_RS_PRESENT;
    rrcInit(&set.resourceType.periodic);
    set.usage = SRS_ResourceSet_usage_codebook;
    set.Alpha = Alpha_alpha1;
    set.p0 = -90;
    rrcInit(&set.pathLossRefRs);
    set.pathLossRefRs.presence = RRC_SRS_PATH_LOSS_REF_RS_SSB_IDX_PRESENCE;
    set.pathLossRefRs.u.ssbIdx = 0;
    srs.numSrsResourceAddMod = 1;
    RrcSrsResource_t& resource = srs.srsResource[0];
    rrcInit(&resource);
    resource.nrofSrsPotrs = SRS_Resource_nrofSRS_Ports_ports2;
    resource.presence = RRC_SRS_RESOURCE_TRANSMISSION_COMB_N2_PRESENCE;
    resource.transmissionComb.n2.combOffsetN2 = 0;
    resource.transmissionComb.n2.cyclicShiftN2 = 0;
    resource.resourceMapping.startPos = 0; // the last symbol
    resource.freqHopping.cSrs = 61;
    resource.freqHopping.bHop = 3;
    resource.presence1 = RRC_SRS_RESOURCE_TYPE_PERIODIC_PERSENCE;
    rrcInit(&resource.resourceType.periodic);
    resource.resourceType.periodic.period = T_SRS_PeriodicityAndOffset_sl40;
    resource.resourceType.periodic.offset = 9;
    resource.seqId = 42;
}

inline void dedicatedUplink(RrcServingCellCfg_t& cell)
{
    cell.bitMask |= RRC_SERVING_CELL_UL_CFG_PRESENCE;
    RrcUlCfg_t& uplink = cell.ulCfg;
    rrcInit(&uplink);
    uplink.bitMask = RRC_UL_CFG_FIRST_ACTICVE_UL_BWP_PRESENCE;
    uplink.firstActiveUlBwpId = workingBwp;
    uplink.numUlBwpAddMod = 1;
    RrcBwpUl_t& bwp = uplink.ulBwpAddMod[0];
    rrcInit(&bwp);
    bwp.bwpId = workingBwp;
    bwp.bitMask = RRC_BWP_UL_COMMON_PRESENCE | RRC_BWP_UL_DEDICATED_PRESENCE;
    rrcInit(&bwp.bwpCommon);
    wholeCarrier(bwp.bwpCommon.genericParam);
    bwp.bwpCommon.bitMask = RRC_BWP_UL_COMM_PUCCH_PRESENCE;
    rrcInit(&bwp.bwpCommon.pucchCfgComm);
    bwp.bwpCommon.pucchCfgComm.bitMask =
        RRC_PUCCH_CFG_COMMON_HOPPING_ID_PRESENCE | RRC_PUCCH_CFG_COMMON_P0_NOMINAL_PRESENCE;
    bwp.bwpCommon.pucchCfgComm.hoppingId = 42;
    bwp.bwpCommon.pucchCfgComm.p0Nominal = -90;
    rrcInit(&bwp.bwpDedicated);
    bwp.bwpDedicated.bitMask =
        RRC_BWP_UL_DEDI_PUCCH_CFG_PRESENCE | RRC_BWP_UL_DEDI_PUSCH_CFG_PRESENCE | RRC_BWP_UL_DEDI_SRS_CFG_PRESENCE;
    dedicatedPucch(bwp.bwpDedicated.pucchCfg);
    dedicatedPusch(bwp.bwpDedicated.puschCfg);
    dedicatedSrs(bwp.bwpDedicated.srsCfg);
}

#endif
