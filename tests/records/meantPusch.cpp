#include "records.h"

namespace records
{

namespace
{

std::string meant(const RrcPtrsUlTransformPrecodeDisable_t& record)
{
    Members members;
    if (record.bitMask & RRC_PTRS_UL_CFG_DISABLE_FREQ_DENSITY_PRESENCE)
    {
        members.add("frequencyDensity", numbers(2, record.freqDensity));
    }
    if (record.bitMask & RRC_PTRS_UL_CFG_DISABLE_TIME_DENSITY_PRESENCE)
    {
        members.add("timeDensity", numbers(3, record.timeDensity));
    }
    members.add("maxNrofPorts", record.maxNrofPorts);
    members.addIf(record.bitMask & RRC_PTRS_UL_CFG_DISABLE_RESOURCE_ELE_OFFSET_PRESENCE, "resourceElementOffset",
                  record.resourceElementOffset);
    members.add("ptrs-Power", record.ptrsPower);
    return members.json();
}

std::string meant(const RrcPtrsUlTransformPrecodeEnable_t& record)
{
    Members members;
    members.add("sampleDensity", numbers(5, record.sampleDensity));
    if (record.bitMask & RRC_PTRS_UL_CFG_ENABLE_TIME_DENSITY_PRESENCE)
    {
        // The first value, whatever the record holds.
        members.add("timeDensityTransformPrecoding", 0);
    }
    return members.json();
}

std::string meant(const RrcPtrsUlCfg_t& record)
{
    Members members;
    if (record.bitMask & RRC_PTRS_UL_CFG_DISABLE_PRESENCE)
    {
        members.add("transformPrecoderDisabled", meant(record.transformPrecodeDisable));
    }
    if (record.bitMask & RRC_PTRS_UL_CFG_ENABLE_PRESENCE)
    {
        members.add("transformPrecoderEnabled", meant(record.transformPrecodeEnable));
    }
    return members.json();
}

std::string meant(const RrcTransformPrecodDisable_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_TRANSFORM_PRECODE_DISABLE_ID0_PRESENCE, "scramblingID0", record.scramblingId0);
    members.addIf(record.bitMask & RRC_TRANSFORM_PRECODE_DISABLE_ID1_PRESENCE, "scramblingID1", record.scramblingId1);
    return members.json();
}

std::string meant(const RrcTransformPrecodEnable_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_TRANSFORM_PRECODE_ENABLE_ID_PRESENCE, "nPUSCH-Identity", record.nPuschId);
    members.addIf(record.bitMask & RRC_TRANSFORM_PRECODE_ENABLE_GROUP_HOPPING_PRESENCE, "sequenceGroupHopping",
                  record.seqGrpHopping);
    members.addIf(record.bitMask & RRC_TRANSFORM_PRECODE_ENABLE_HOPPING_PRESENCE, "sequenceHopping", record.seqHopping);
    return members.json();
}

std::string meant(const RrcP0PuschAlphaSet_t& record)
{
    Members members;
    members.add("p0-PUSCH-AlphaSetId", record.p0PuschAlphaId);
    members.addIf(record.bitMask & RRC_P0PUSCH_ALPHA_SET_P0_PRESENCE, "p0", static_cast<INT8>(record.p0));
    members.addIf(record.bitMask & RRC_P0PUSCH_ALPHA_SET_ALPHA_PRESENCE, "alpha", record.alpha);
    return members.json();
}

std::string meant(const RrcPuschPathLossRefRs_t& record)
{
    const bool csiRs = (record.presence & RRC_PUSCH_PATH_LOSS_REF_RS_CSI_RS_PRESENCE) != 0;
    Members members;
    members.add("pusch-PathlossReferenceRS-Id", record.puschPathLossRefRsId);
    members.add("referenceSignal",
                csiRs ? choice("csi-RS-Index", record.regSig.csiRsIdx) : choice("ssb-Index", record.regSig.ssbIdx));
    return members.json();
}

std::string meant(const RrcSriPuschPowerControl_t& record)
{
    Members members;
    members.add("sri-PUSCH-PowerControlId", record.sriPuschPowerControlId);
    members.add("sri-PUSCH-PathlossReferenceRS-Id", record.sriPuschPathLossRefRsId);
    members.add("sri-P0-PUSCH-AlphaSetId", record.sriP0PuschAlphaSetId);
    members.add("sri-PUSCH-ClosedLoopIndex", record.sriPuschClosedLoopIdx);
    return members.json();
}

std::string meant(const RrcPuschPowerControl_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_PUSCH_POWER_CONTROL_TCP_ACCUMULATION_PRESENCE, "tpc-Accumulation",
                  record.tpcAccumulation);
    members.addIf(record.bitMask & RRC_PUSCH_POWER_CONTROL_MSG3_ALPHA_PRESENCE, "msg3-Alpha", record.msg3Alpha);
    members.addIf(record.bitMask & RRC_PUSCH_POWER_CONTROL_P0_NOMINAL_WITHOUT_GRANT_PRESENCE, "p0-NominalWithoutGrant",
                  record.p0NominalWithOutGrant);
    if (record.numP0AlphaSets != 0)
    {
        members.add("p0-AlphaSets",
                    list(record.numP0AlphaSets, record.p0AlphaSets, [&](const auto& entry) { return meant(entry); }));
    }
    if (record.numPathLossRefRsAddMod != 0)
    {
        members.add("pathlossReferenceRSToAddModList", list(record.numPathLossRefRsAddMod, record.pathLossRefRs,
                                                            [&](const auto& entry) { return meant(entry); }));
    }
    if (record.numPathLossRefRsRel != 0)
    {
        members.add("pathlossReferenceRSToReleaseList", numbers(record.numPathLossRefRsRel, record.pathLossRefRsRelId));
    }
    members.addIf(record.bitMask & RRC_PUSCH_POWER_CONTROL_TWO_PUSCH_PC_ADJ_STATES_PRESENCE,
                  "twoPUSCH-PC-AdjustmentStates", record.twoPuschPcAdjStates);
    members.addIf(record.bitMask & RRC_PUSCH_POWER_CONTROL_DELTA_MCS_PRESENCE, "deltaMCS", record.deltaMcs);
    if (record.numSriPuschMappingAddMod != 0)
    {
        members.add("sri-PUSCH-MappingToAddModList", list(record.numSriPuschMappingAddMod, record.sriPuschMapping,
                                                          [&](const auto& entry) { return meant(entry); }));
    }
    if (record.numSriPuschMappingRel != 0)
    {
        members.add("sri-PUSCH-MappingToReleaseList", numbers(record.numSriPuschMappingRel, record.sriPuschMappingId));
    }
    return members.json();
}

std::string meant(const RrcPuschTimeDomainResourceAlloc_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_PUSCH_TIME_DOMAIN_K2_PRESENCE, "k2", record.k2);
    members.add("mappingType", record.mappingType);
    members.add("startSymbolAndLength", record.startSymbolAndLen);
    return members.json();
}

std::string meant(const RrcBetaOffsets_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_BETA_OFFSETS_ACK_IDX1_PRESENCE, "betaOffsetACK-Index1",
                  record.betaOffsetAckIdx1);
    members.addIf(record.bitMask & RRC_BETA_OFFSETS_ACK_IDX2_PRESENCE, "betaOffsetACK-Index2",
                  record.betaOffsetAckIdx2);
    members.addIf(record.bitMask & RRC_BETA_OFFSETS_ACK_IDX3_PRESENCE, "betaOffsetACK-Index3",
                  record.betaOffsetAckIdx3);
    members.addIf(record.bitMask & RRC_BETA_OFFSETS_CSI_PART1_IDX1_PRESENCE, "betaOffsetCSI-Part1-Index1",
                  record.betaOffsetCSIPart1Idx1);
    members.addIf(record.bitMask & RRC_BETA_OFFSETS_CSI_PART1_IDX2_PRESENCE, "betaOffsetCSI-Part1-Index2",
                  record.betaOffsetCSIPart1Idx2);
    members.addIf(record.bitMask & RRC_BETA_OFFSETS_CSI_PART2_IDX1_PRESENCE, "betaOffsetCSI-Part2-Index1",
                  record.betaOffsetCSIPart2Idx1);
    members.addIf(record.bitMask & RRC_BETA_OFFSETS_CSI_PART2_IDX2_PRESENCE, "betaOffsetCSI-Part2-Index2",
                  record.betaOffsetCSIPart2Idx2);
    return members.json();
}

std::string meant(const RrcUciOnPusch_t& record)
{
    Members members;
    if (record.bitMask & RRC_UCI_PUSCH_BETA_OFFSETS_PRESENCE)
    {
        const bool semiStatic = (record.presence & RRC_UCI_PUSCH_BETA_OFFSETS_SEMI_STATIC_PRESENCE) != 0;
        members.add("betaOffsets", semiStatic
                                       ? choice("semiStatic", meant(record.betaOffset.semiStatic))
                                       : choice("dynamic", list(4, record.betaOffset.dynamic,
                                                                [&](const auto& entry) { return meant(entry); })));
    }
    members.add("scaling", record.scaling);
    return members.json();
}

std::string meant(const RrcCgUciOnPusch_t& record)
{
    if (record.presence & RRC_CG_UCI_ON_PUSCH_SEMI_STATIC_PRESENCE)
    {
        return choice("semiStatic", meant(record.betaOffset.semiStatic));
    }
    const RrcDynamicBetaOffsets_t& dynamic = record.betaOffset.dynamic;
    return choice("dynamic", list(dynamic.num, dynamic.betaOffsets, [&](const auto& entry) { return meant(entry); }));
}

std::string meant(const rrcCfgdUlGrant_s& record)
{
    Members members;
    members.add("timeDomainOffset", record.timeDomainOffset);
    members.add("timeDomainAllocation", record.timeDomainAllocation);
    members.add("frequencyDomainAllocation", bits(record.freqDomainAllocation, 18));
    members.add("antennaPort", record.antennaPort);
    members.addIf(record.bitMask & RRC_CFGD_GRANT_CFG_UL_GRANT_DMRS_SEQ_INIT_PRESENCE, "dmrs-SeqInitialization",
                  record.dmrsSeqInit);
    members.add("precodingAndNumberOfLayers", record.precodingAndNumberOfLayers);
    members.addIf(record.bitMask & RRC_CFGD_GRANT_CFG_UL_GRANT_SRS_RESOURCE_IND_PRESENCE, "srs-ResourceIndicator",
                  record.srsResourceInd);
    members.add("mcsAndTBS", record.mcsAndTBS);
    members.addIf(record.bitMask & RRC_CFGD_GRANT_CFG_UL_GRANT_FREQ_HOPPING_OFFSET_PRESENCE, "frequencyHoppingOffset",
                  record.freqHoppingOffset);
    members.add("pathlossReferenceIndex", record.pathLossRefIdx);
    return members.json();
}

} // namespace

std::string meant(const RrcPuschCfg_t& record)
{
    const unsigned mask = record.bitMask;
    Members members;
    members.addIf(mask & RRC_PUSCH_CFG_DATA_SCRAMBLING_ID_PUSCH_PRESENCE, "dataScramblingIdentityPUSCH",
                  record.dataScramblingIdPusch);
    members.addIf(mask & RRC_PUSCH_CFG_TX_CFG_PRESENCE, "txConfig", record.txCfg);
    if (mask & RRC_PUSCH_CFG_DMRS_MAPPING_TYPEA_PRESENCE)
    {
        members.add("dmrs-UplinkForPUSCH-MappingTypeA", setup(meant(record.dmrsUlPuschTypeA)));
    }
    if (mask & RRC_PUSCH_CFG_DMRS_MAPPING_TYPEB_PRESENCE)
    {
        members.add("dmrs-UplinkForPUSCH-MappingTypeB", setup(meant(record.dmrsUlPuschTypeB)));
    }
    if (mask & RRC_PUSCH_CFG_PUSCH_POWER_CONTROLPRESENCE)
    {
        members.add("pusch-PowerControl", meant(record.puschPowerContol));
    }
    members.addIf(mask & RRC_PUSCH_CFG_FREQ_HOPPING_PRESENCE, "frequencyHopping", record.freqHopping);
    if (record.numFreqHoppingOffset != 0)
    {
        members.add("frequencyHoppingOffsetLists", numbers(record.numFreqHoppingOffset, record.freqHoppingOffset));
    }
    members.add("resourceAllocation", record.resourceAlloc);
    if (mask & RRC_PUSCH_CFG_PUSCH_TIMING_DOMAIN_ALLOCATION_LIST_PRESENCE)
    {
        members.add("pusch-TimeDomainAllocationList", setup(meant(record.puschTimeDomainAllocList)));
    }
    members.addIf(mask & RRC_PUSCH_CFG_PUSCH_AGGREGATION_FACTOR_PRESENCE, "pusch-AggregationFactor",
                  record.puschAggregationFactor);
    members.addIf(mask & RRC_PUSCH_CFG_MCS_TABLE_PRESENCE, "mcs-Table", record.mcsTable);
    members.addIf(mask & RRC_PUSCH_CFG_MCS_TABLE_TRANSFORM_PRECODER_PRESENCE, "mcs-TableTransformPrecoder",
                  record.mcsTableTransformPrecoder);
    members.addIf(mask & RRC_PUSCH_CFG_TRANSFORM_PRECODER_PRESENCE, "transformPrecoder", record.transformPrecoder);
    members.addIf(mask & RRC_PUSCH_CFG_CODE_BOOK_SUBSET_PRESENCE, "codebookSubset", record.codebookSubSet);
    members.addIf(mask & RRC_PUSCH_CFG_MAX_RANK_PRESENCE, "maxRank", record.maxRank);
    members.addIf(mask & RRC_PUSCH_CFG_RBG_SIZE_PRESENCE, "rbg-Size", record.rbgSize);
    if (mask & RRC_PUSCH_CFG_UCI_ON_PUSCH_PRESENCE)
    {
        members.add("uci-OnPUSCH", setup(meant(record.uciOnPusch)));
    }
    members.addIf(mask & RRC_PUSCH_CFG_TP_PI2_BPSK_PRESENCE, "tp-pi2BPSK", record.tpPi2Bpsk);
    return members.json();
}

std::string meant(const RrcPuschTimeDomainResourceAllocList_t& record)
{
    return list(record.numPuschTimeDomainResourceAllocList, record.item,
                [&](const auto& entry) { return meant(entry); });
}

std::string meant(const RrcDmrsUlCfg_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_DMRS_UL_CFG_TYPE_PRESENCE, "dmrs-Type", record.dmrsType);
    members.addIf(record.bitMask & RRC_DMRS_UL_CFG_ADDI_POS_PRESENCE, "dmrs-AdditionalPosition", record.dmrsAddiPos);
    if (record.bitMask & RRC_DMRS_UL_CFG_PHASE_TRACK_RS_PRESENCE)
    {
        members.add("phaseTrackingRS", setup(meant(record.phaseTrackRs)));
    }
    members.addIf(record.bitMask & RRC_DMRS_UL_CFG_MAX_LENGTH_PRESENCE, "maxLength", record.maxLength);
    if (record.bitMask & RRC_DMRS_UL_CFG_TRANSFORM_PRECODE_DISABLE_PRESENCE)
    {
        members.add("transformPrecodingDisabled", meant(record.transformPrecodDisable));
    }
    if (record.bitMask & RRC_DMRS_UL_CFG_TRANSFORM_PRECODE_ENABLE_PRESENCE)
    {
        members.add("transformPrecodingEnabled", meant(record.transformPrecodEnable));
    }
    return members.json();
}

std::string meant(const RrcCfgGrantCfg_t& record)
{
    const unsigned mask = record.bitMask;
    Members members;
    members.addIf(mask & RRC_CFGD_GRANT_CFG_FREQ_HOPPING_PRESENCE, "frequencyHopping", record.freqHopping);
    members.add("cg-DMRS-Configuration", meant(record.cgDmrsCfg));
    members.addIf(mask & RRC_CFGD_GRANT_CFG_MCS_TABLE_PRESENCE, "mcs-Table", record.mcsTable);
    members.addIf(mask & RRC_CFGD_GRANT_CFG_MCS_TABLE_PRECODER_PRESENCE, "mcs-TableTransformPrecoder",
                  record.mcaTableTransformPrecoder);
    if (mask & RRC_CFGD_GRANT_CFG_UCI_ON_PUSCH_PRESENCE)
    {
        members.add("uci-OnPUSCH", setup(meant(record.uciOnPusch)));
    }
    members.add("resourceAllocation", record.resourceAlloction);
    members.addIf(mask & RRC_CFGD_GRANT_CFG_RBG_SIZE_PRESENCE, "rbg-Size", record.rbgSize);
    members.add("powerControlLoopToUse", record.powerControlLoopToUse);
    members.add("p0-PUSCH-Alpha", record.p0PuschAlpha);
    members.addIf(mask & RRC_CFGD_GRANT_CFG_TRANSFORM_PRECODER_PRESENCE, "transformPrecoder", record.transformPrecoder);
    members.add("nrofHARQ-Processes", record.nrofHarqProcess);
    members.add("repK", record.repK);
    members.addIf(mask & RRC_CFGD_GRANT_CFG_REPK_RV_PRESENCE, "repK-RV", record.repKRv);
    members.add("periodicity", record.periodcity);
    members.addIf(mask & RRC_CFGD_GRANT_CFG_CFGD_GRANT_TIMER_PRESENCE, "configuredGrantTimer", record.cfgdGrantTimer);
    if (mask & RRC_CFGD_GRANT_CFG_RRC_CFGD_UL_GRANT_PRESENCE)
    {
        members.add("rrc-ConfiguredUplinkGrant", meant(record.rrcCfgdUlGrant));
    }
    return members.json();
}

} // namespace records
