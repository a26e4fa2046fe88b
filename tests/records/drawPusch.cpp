#include "records.h"

namespace records
{

namespace
{

void draw(Chance& chance, RrcPtrsUlTransformPrecodeDisable_t& record)
{
    rrcInit(&record);
    chance.enumeration(record.maxNrofPorts, 1);
    chance.enumeration(record.ptrsPower, 3);
    if (chance.flag(record.bitMask, RRC_PTRS_UL_CFG_DISABLE_FREQ_DENSITY_PRESENCE))
    {
        chance.numbers(record.freqDensity, 2, 1, 276);
    }
    if (chance.flag(record.bitMask, RRC_PTRS_UL_CFG_DISABLE_TIME_DENSITY_PRESENCE))
    {
        chance.numbers(record.timeDensity, 3, 0, 29);
    }
    chance.enumerationIf(record.bitMask, RRC_PTRS_UL_CFG_DISABLE_RESOURCE_ELE_OFFSET_PRESENCE,
                         record.resourceElementOffset, 2);
}

void draw(Chance& chance, RrcPtrsUlTransformPrecodeEnable_t& record)
{
    rrcInit(&record);
    chance.numbers(record.sampleDensity, 5, 1, 276);
    chance.flag(record.bitMask, RRC_PTRS_UL_CFG_ENABLE_TIME_DENSITY_PRESENCE);
    // Not read, also with its bit.
    chance.bits(record.timeDensityTransformPrecoding, 8);
}

void draw(Chance& chance, RrcPtrsUlCfg_t& record)
{
    rrcInit(&record);
    if (chance.flag(record.bitMask, RRC_PTRS_UL_CFG_DISABLE_PRESENCE))
    {
        draw(chance, record.transformPrecodeDisable);
    }
    if (chance.flag(record.bitMask, RRC_PTRS_UL_CFG_ENABLE_PRESENCE))
    {
        draw(chance, record.transformPrecodeEnable);
    }
}

void draw(Chance& chance, RrcTransformPrecodDisable_t& record)
{
    rrcInit(&record);
    chance.numberIf(record.bitMask, RRC_TRANSFORM_PRECODE_DISABLE_ID0_PRESENCE, record.scramblingId0, 0, 65535);
    chance.numberIf(record.bitMask, RRC_TRANSFORM_PRECODE_DISABLE_ID1_PRESENCE, record.scramblingId1, 0, 65535);
}

void draw(Chance& chance, RrcTransformPrecodEnable_t& record)
{
    rrcInit(&record);
    chance.numberIf(record.bitMask, RRC_TRANSFORM_PRECODE_ENABLE_ID_PRESENCE, record.nPuschId, 0, 1007);
    chance.enumerationIf(record.bitMask, RRC_TRANSFORM_PRECODE_ENABLE_GROUP_HOPPING_PRESENCE, record.seqGrpHopping, 0);
    chance.enumerationIf(record.bitMask, RRC_TRANSFORM_PRECODE_ENABLE_HOPPING_PRESENCE, record.seqHopping, 0);
}

void draw(Chance& chance, RrcP0PuschAlphaSet_t& record)
{
    rrcInit(&record);
    chance.number(record.p0PuschAlphaId, 0, 29);
    chance.numberIf(record.bitMask, RRC_P0PUSCH_ALPHA_SET_P0_PRESENCE, record.p0, -16, 15);
    chance.enumerationIf(record.bitMask, RRC_P0PUSCH_ALPHA_SET_ALPHA_PRESENCE, record.alpha, 7);
}

void draw(Chance& chance, RrcPuschPathLossRefRs_t& record)
{
    rrcInit(&record);
    chance.number(record.puschPathLossRefRsId, 0, 3);
    if (chance.alternative(record.presence,
                           {RRC_PUSCH_PATH_LOSS_REF_RS_SSB_PRESENCE, RRC_PUSCH_PATH_LOSS_REF_RS_CSI_RS_PRESENCE}) == 0)
    {
        chance.number(record.regSig.ssbIdx, 0, 63);
    }
    else
    {
        chance.number(record.regSig.csiRsIdx, 0, 191);
    }
}

void draw(Chance& chance, RrcSriPuschPowerControl_t& record)
{
    rrcInit(&record);
    chance.number(record.sriPuschPowerControlId, 0, 15);
    chance.number(record.sriPuschPathLossRefRsId, 0, 3);
    chance.number(record.sriP0PuschAlphaSetId, 0, 29);
    chance.enumeration(record.sriPuschClosedLoopIdx, 1);
}

void draw(Chance& chance, RrcPuschPowerControl_t& record)
{
    rrcInit(&record);
    chance.enumerationIf(record.bitMask, RRC_PUSCH_POWER_CONTROL_TCP_ACCUMULATION_PRESENCE, record.tpcAccumulation, 0);
    chance.enumerationIf(record.bitMask, RRC_PUSCH_POWER_CONTROL_MSG3_ALPHA_PRESENCE, record.msg3Alpha, 7);
    chance.numberIf(record.bitMask, RRC_PUSCH_POWER_CONTROL_P0_NOMINAL_WITHOUT_GRANT_PRESENCE,
                    record.p0NominalWithOutGrant, -202, 24);
    chance.enumerationIf(record.bitMask, RRC_PUSCH_POWER_CONTROL_TWO_PUSCH_PC_ADJ_STATES_PRESENCE,
                         record.twoPuschPcAdjStates, 0);
    chance.enumerationIf(record.bitMask, RRC_PUSCH_POWER_CONTROL_DELTA_MCS_PRESENCE, record.deltaMcs, 0);
    const auto alphaSets = [&]
    {
        const unsigned sets = chance.optionalCount(record.numP0AlphaSets, RRC_MAX_NROF_P0_PUSCH_ALPHA_SETS, 7);
        for (unsigned i = 0; i < sets; ++i)
        {
            draw(chance, record.p0AlphaSets[i]);
        }
    };
    const auto pathLoss = [&]
    {
        const unsigned added =
            chance.optionalCount(record.numPathLossRefRsAddMod, RRC_MAX_NROF_PUSCH_PATH_LOSS_REF_RS, 9);
        for (unsigned i = 0; i < added; ++i)
        {
            draw(chance, record.pathLossRefRs[i]);
        }
        const unsigned released =
            chance.optionalCount(record.numPathLossRefRsRel, RRC_MAX_NROF_PUSCH_PATH_LOSS_REF_RS, 2);
        chance.numbers(record.pathLossRefRsRelId, released, 0, 3);
    };
    const auto mappings = [&]
    {
        const unsigned added =
            chance.optionalCount(record.numSriPuschMappingAddMod, RRC_MAX_NROF_SRI_PUSCH_MAPPING, 12);
        for (unsigned i = 0; i < added; ++i)
        {
            draw(chance, record.sriPuschMapping[i]);
        }
        const unsigned released = chance.optionalCount(record.numSriPuschMappingRel, RRC_MAX_NROF_SRI_PUSCH_MAPPING, 4);
        chance.numbers(record.sriPuschMappingId, released, 0, 15);
    };
    chance.inAnyOrder(alphaSets, pathLoss, mappings);
}

void draw(Chance& chance, RrcPuschTimeDomainResourceAlloc_t& record)
{
    rrcInit(&record);
    chance.enumeration(record.mappingType, 1);
    chance.number(record.startSymbolAndLen, 0, 127);
    chance.numberIf(record.bitMask, RRC_PUSCH_TIME_DOMAIN_K2_PRESENCE, record.k2, 0, 32);
}

void draw(Chance& chance, RrcBetaOffsets_t& record)
{
    rrcInit(&record);
    chance.numberIf(record.bitMask, RRC_BETA_OFFSETS_ACK_IDX1_PRESENCE, record.betaOffsetAckIdx1, 0, 31);
    chance.numberIf(record.bitMask, RRC_BETA_OFFSETS_ACK_IDX2_PRESENCE, record.betaOffsetAckIdx2, 0, 31);
    chance.numberIf(record.bitMask, RRC_BETA_OFFSETS_ACK_IDX3_PRESENCE, record.betaOffsetAckIdx3, 0, 31);
    chance.numberIf(record.bitMask, RRC_BETA_OFFSETS_CSI_PART1_IDX1_PRESENCE, record.betaOffsetCSIPart1Idx1, 0, 31);
    chance.numberIf(record.bitMask, RRC_BETA_OFFSETS_CSI_PART1_IDX2_PRESENCE, record.betaOffsetCSIPart1Idx2, 0, 31);
    chance.numberIf(record.bitMask, RRC_BETA_OFFSETS_CSI_PART2_IDX1_PRESENCE, record.betaOffsetCSIPart2Idx1, 0, 31);
    chance.numberIf(record.bitMask, RRC_BETA_OFFSETS_CSI_PART2_IDX2_PRESENCE, record.betaOffsetCSIPart2Idx2, 0, 31);
}

void draw(Chance& chance, RrcUciOnPusch_t& record)
{
    rrcInit(&record);
    chance.enumeration(record.scaling, 3);
    if (!chance.flag(record.bitMask, RRC_UCI_PUSCH_BETA_OFFSETS_PRESENCE))
    {
        // Not read without the bit.
        chance.bits(record.presence, 2);
        return;
    }
    if (chance.alternative(record.presence, {RRC_UCI_PUSCH_BETA_OFFSETS_DYNAMIC_PRESENCE,
                                             RRC_UCI_PUSCH_BETA_OFFSETS_SEMI_STATIC_PRESENCE}) == 0)
    {
        for (RrcBetaOffsets_t& offsets : record.betaOffset.dynamic)
        {
            draw(chance, offsets);
        }
    }
    else
    {
        draw(chance, record.betaOffset.semiStatic);
    }
}

void draw(Chance& chance, RrcCgUciOnPusch_t& record)
{
    rrcInit(&record);
    if (chance.alternative(record.presence,
                           {RRC_CG_UCI_ON_PUSCH_DYNAMIC_PRESENCE, RRC_CG_UCI_ON_PUSCH_SEMI_STATIC_PRESENCE}) == 0)
    {
        const unsigned offsets = chance.count(record.betaOffset.dynamic.num, 1, 4, 7);
        for (unsigned i = 0; i < offsets; ++i)
        {
            draw(chance, record.betaOffset.dynamic.betaOffsets[i]);
        }
    }
    else
    {
        draw(chance, record.betaOffset.semiStatic);
    }
}

void draw(Chance& chance, rrcCfgdUlGrant_s& record)
{
    rrcInit(&record);
    chance.number(record.timeDomainOffset, 0, 5119);
    chance.number(record.timeDomainAllocation, 0, 15);
    // Only the low 18 bits are sent.
    chance.bits(record.freqDomainAllocation, 32);
    chance.number(record.antennaPort, 0, 31);
    chance.number(record.precodingAndNumberOfLayers, 0, 63);
    chance.number(record.mcsAndTBS, 0, 31);
    chance.number(record.pathLossRefIdx, 0, 3);
    chance.numberIf(record.bitMask, RRC_CFGD_GRANT_CFG_UL_GRANT_DMRS_SEQ_INIT_PRESENCE, record.dmrsSeqInit, 0, 1);
    chance.numberIf(record.bitMask, RRC_CFGD_GRANT_CFG_UL_GRANT_SRS_RESOURCE_IND_PRESENCE, record.srsResourceInd, 0,
                    15);
    chance.numberIf(record.bitMask, RRC_CFGD_GRANT_CFG_UL_GRANT_FREQ_HOPPING_OFFSET_PRESENCE, record.freqHoppingOffset,
                    1, 274);
}

} // namespace

void draw(Chance& chance, RrcPuschCfg_t& record)
{
    rrcInit(&record);
    chance.enumeration(record.resourceAlloc, 2);
    const auto scrambling = [&]
    {
        chance.numberIf(record.bitMask, RRC_PUSCH_CFG_DATA_SCRAMBLING_ID_PUSCH_PRESENCE, record.dataScramblingIdPusch,
                        0, 1023);
        chance.enumerationIf(record.bitMask, RRC_PUSCH_CFG_TX_CFG_PRESENCE, record.txCfg, 1);
    };
    const auto dmrs = [&]
    {
        if (chance.flag(record.bitMask, RRC_PUSCH_CFG_DMRS_MAPPING_TYPEA_PRESENCE))
        {
            draw(chance, record.dmrsUlPuschTypeA);
        }
        if (chance.flag(record.bitMask, RRC_PUSCH_CFG_DMRS_MAPPING_TYPEB_PRESENCE))
        {
            draw(chance, record.dmrsUlPuschTypeB);
        }
    };
    const auto powerControl = [&]
    {
        if (chance.flag(record.bitMask, RRC_PUSCH_CFG_PUSCH_POWER_CONTROLPRESENCE))
        {
            draw(chance, record.puschPowerContol);
        }
    };
    const auto frequencyHopping = [&]
    {
        chance.enumerationIf(record.bitMask, RRC_PUSCH_CFG_FREQ_HOPPING_PRESENCE, record.freqHopping, 1);
        const unsigned offsets = chance.optionalCount(record.numFreqHoppingOffset, 4, 9);
        chance.numbers(record.freqHoppingOffset, offsets, 1, 274);
    };
    const auto timeDomain = [&]
    {
        if (chance.flag(record.bitMask, RRC_PUSCH_CFG_PUSCH_TIMING_DOMAIN_ALLOCATION_LIST_PRESENCE))
        {
            draw(chance, record.puschTimeDomainAllocList);
        }
        else
        {
            // A count without its bit is not read.
            chance.bits(record.puschTimeDomainAllocList.numPuschTimeDomainResourceAllocList, 8);
        }
    };
    const auto tables = [&]
    {
        chance.enumerationIf(record.bitMask, RRC_PUSCH_CFG_PUSCH_AGGREGATION_FACTOR_PRESENCE,
                             record.puschAggregationFactor, 2);
        chance.enumerationIf(record.bitMask, RRC_PUSCH_CFG_MCS_TABLE_PRESENCE, record.mcsTable, 1);
        chance.enumerationIf(record.bitMask, RRC_PUSCH_CFG_MCS_TABLE_TRANSFORM_PRECODER_PRESENCE,
                             record.mcsTableTransformPrecoder, 1);
        chance.enumerationIf(record.bitMask, RRC_PUSCH_CFG_TRANSFORM_PRECODER_PRESENCE, record.transformPrecoder, 1);
        chance.enumerationIf(record.bitMask, RRC_PUSCH_CFG_CODE_BOOK_SUBSET_PRESENCE, record.codebookSubSet, 2);
        chance.numberIf(record.bitMask, RRC_PUSCH_CFG_MAX_RANK_PRESENCE, record.maxRank, 1, 4);
        chance.enumerationIf(record.bitMask, RRC_PUSCH_CFG_RBG_SIZE_PRESENCE, record.rbgSize, 0);
        chance.enumerationIf(record.bitMask, RRC_PUSCH_CFG_TP_PI2_BPSK_PRESENCE, record.tpPi2Bpsk, 0);
    };
    const auto uci = [&]
    {
        if (chance.flag(record.bitMask, RRC_PUSCH_CFG_UCI_ON_PUSCH_PRESENCE))
        {
            draw(chance, record.uciOnPusch);
        }
    };
    chance.inAnyOrder(scrambling, dmrs, powerControl, frequencyHopping, timeDomain, tables, uci);
}

void draw(Chance& chance, RrcPuschTimeDomainResourceAllocList_t& record)
{
    rrcInit(&record);
    const unsigned allocations =
        chance.count(record.numPuschTimeDomainResourceAllocList, 1, RRC_MAX_NROF_UL_ALLOCATION, 9);
    for (unsigned i = 0; i < allocations; ++i)
    {
        draw(chance, record.item[i]);
    }
}

void draw(Chance& chance, RrcDmrsUlCfg_t& record)
{
    rrcInit(&record);
    chance.enumerationIf(record.bitMask, RRC_DMRS_UL_CFG_TYPE_PRESENCE, record.dmrsType, 0);
    chance.enumerationIf(record.bitMask, RRC_DMRS_UL_CFG_ADDI_POS_PRESENCE, record.dmrsAddiPos, 2);
    if (chance.flag(record.bitMask, RRC_DMRS_UL_CFG_PHASE_TRACK_RS_PRESENCE))
    {
        draw(chance, record.phaseTrackRs);
    }
    chance.enumerationIf(record.bitMask, RRC_DMRS_UL_CFG_MAX_LENGTH_PRESENCE, record.maxLength, 0);
    if (chance.flag(record.bitMask, RRC_DMRS_UL_CFG_TRANSFORM_PRECODE_DISABLE_PRESENCE))
    {
        draw(chance, record.transformPrecodDisable);
    }
    if (chance.flag(record.bitMask, RRC_DMRS_UL_CFG_TRANSFORM_PRECODE_ENABLE_PRESENCE))
    {
        draw(chance, record.transformPrecodEnable);
    }
}

void draw(Chance& chance, RrcCfgGrantCfg_t& record)
{
    rrcInit(&record);
    chance.enumeration(record.resourceAlloction, 2);
    chance.enumeration(record.powerControlLoopToUse, 1);
    chance.number(record.p0PuschAlpha, 0, 29);
    chance.number(record.nrofHarqProcess, 1, 16);
    chance.enumeration(record.repK, 3);
    chance.enumeration(record.periodcity, 44);
    const auto dmrs = [&]
    {
        draw(chance, record.cgDmrsCfg);
    };
    const auto tables = [&]
    {
        chance.enumerationIf(record.bitMask, RRC_CFGD_GRANT_CFG_FREQ_HOPPING_PRESENCE, record.freqHopping, 1);
        chance.enumerationIf(record.bitMask, RRC_CFGD_GRANT_CFG_MCS_TABLE_PRESENCE, record.mcsTable, 1);
        chance.enumerationIf(record.bitMask, RRC_CFGD_GRANT_CFG_MCS_TABLE_PRECODER_PRESENCE,
                             record.mcaTableTransformPrecoder, 1);
        chance.enumerationIf(record.bitMask, RRC_CFGD_GRANT_CFG_RBG_SIZE_PRESENCE, record.rbgSize, 0);
        chance.enumerationIf(record.bitMask, RRC_CFGD_GRANT_CFG_TRANSFORM_PRECODER_PRESENCE, record.transformPrecoder,
                             1);
        chance.enumerationIf(record.bitMask, RRC_CFGD_GRANT_CFG_REPK_RV_PRESENCE, record.repKRv, 2);
        chance.numberIf(record.bitMask, RRC_CFGD_GRANT_CFG_CFGD_GRANT_TIMER_PRESENCE, record.cfgdGrantTimer, 1, 64);
    };
    const auto uci = [&]
    {
        if (chance.flag(record.bitMask, RRC_CFGD_GRANT_CFG_UCI_ON_PUSCH_PRESENCE))
        {
            draw(chance, record.uciOnPusch);
        }
        else
        {
            // Not read without the bit.
            chance.bits(record.uciOnPusch.presence, 2);
            chance.bits(record.uciOnPusch.betaOffset.dynamic.num, 8);
        }
    };
    const auto grant = [&]
    {
        if (chance.flag(record.bitMask, RRC_CFGD_GRANT_CFG_RRC_CFGD_UL_GRANT_PRESENCE))
        {
            draw(chance, record.rrcCfgdUlGrant);
        }
    };
    chance.inAnyOrder(dmrs, tables, uci, grant);
}

} // namespace records
