// Checks of the uplink and of what holds for all bandwidth parts of a serving cell.
#include "rowChecks.h"

namespace recordCheck
{

namespace
{

void uplinkBitsNotSent(const RrcUlCfg_t& r, Report& report)
{
    notSent(report, rowRules::uplinkBitsNotSent, r.bitMask,
            RRC_UL_CFG_POWER_BOOST_PI_2BPSK | RRC_UL_CFG_UL_CHANNEL_BW_PERSCS_LIST);
}

void pucchSetReleaseCount(const RrcPucchCfg_t& r, Report& report)
{
    if (r.numResourceSetRel > r.numResourceSetAddMod)
    {
        report.say(rowRules::pucchSetReleaseCount, &r.numResourceSetRel);
    }
}

void pucchOneValue(const RrcPucchFormatCfg_t& r, Report& report)
{
    oneValue(report, rowRules::pucchOneValue, (r.bitMask & RRC_PUCCH_FORMAT_CFG_INTER_SLOT_FREQ_HOPPING_PRESENCE) != 0,
             r.interSlotFreqHopping);
    oneValue(report, rowRules::pucchOneValue, (r.bitMask & RRC_PUCCH_FORMAT_CFG_ADDITIONAL_DMRS_PRESENCE) != 0,
             r.additionalDMRS);
    oneValue(report, rowRules::pucchOneValue, (r.bitMask & RRC_PUCCH_FORMAT_CFG_PI2BPSK_PRESENCE) != 0, r.pi2BPSK);
    oneValue(report, rowRules::pucchOneValue,
             (r.bitMask & RRC_PUCCH_FORMAT_CFG_SIMULTANEOUS_HARQ_ACK_CSI_PRESENCE) != 0, r.sumultaneousHarqAckCsi);
}

void pucchResourceOneValue(const RrcPucchResource_t& r, Report& report)
{
    oneValue(report, rowRules::pucchOneValue, (r.bitMask & RRC_PUCCH_RESOURCE_INTRA_SLOT_FREQ_HOPPING_PRESENCE) != 0,
             r.intraSlotFreqHopping);
}

void pucchPowerOneValue(const RrcPucchPowerControl_t& r, Report& report)
{
    oneValue(report, rowRules::pucchOneValue,
             (r.bitMask & RRC_PUCCH_POWER_CONTROL_TWO_PUCCH_PC_ADJ_STATES_PRESENCE) != 0, r.twoPucchPcAdjStates);
}

bool hasRequestPeriodicity(const RrcSchedReqResourceCfg_t& r)
{
    return (r.bitMask & RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_PRESENCE) != 0;
}

// The bits of `presence` that tell the periodicity.
UINT64 requestPeriodicities(const RrcSchedReqResourceCfg_t& r)
{
    return bitsUpTo(r.presence, RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL640);
}

void schedulingRequestPeriod(const RrcSchedReqResourceCfg_t& r, Report& report)
{
    if (hasRequestPeriodicity(r) && requestPeriodicities(r) == 0)
    {
        report.say(rowRules::schedulingRequestPeriod, &r.presence);
    }
}

void schedulingRequestOffset(const RrcSchedReqResourceCfg_t& r, Report& report)
{
    const UINT64 periodicities = requestPeriodicities(r);
    shortOffset(report, rowRules::schedulingRequestOffset,
                hasRequestPeriodicity(r) && periodicities >= RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL2 &&
                    periodicities < RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL320,
                r.periodAndOffset.offset);
}

void pucchChoices(const RrcPucchResource_t& r, Report& report)
{
    oneBit(report, rowRules::pucchChoices, r.presence, RRC_PUCCH_RESOURCE_FORMAT4_PRESENCE);
}

// None at all has a rule of its own.
void schedulingRequestChoice(const RrcSchedReqResourceCfg_t& r, Report& report)
{
    if (hasRequestPeriodicity(r) && requestPeriodicities(r) != 0)
    {
        choice(report, rowRules::pucchChoices, &r.presence, requestPeriodicities(r));
    }
}

void pucchSpatialRelationChoice(const RrcPucchSpatialRelationInfo_t& r, Report& report)
{
    oneBit(report, rowRules::pucchChoices, r.presence, RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_SRSIDX_PRESENCE);
}

void pucchPathLossChoice(const RrcPucchPathLossRefRs_t& r, Report& report)
{
    oneBit(report, rowRules::pucchChoices, r.presence, RRC_PUCCH_PATH_LOSS_REF_RS_CSI_IDX_PRESENCE);
}

void pucchPowerListCounts(const RrcPucchPowerControl_t& r, Report& report)
{
    bitAndCount(report, rowRules::pucchPowerListCounts, (r.bitMask & RRC_PUCCH_POWER_CONTROL_P0_SET_PRESENCE) != 0,
                r.numP0Set);
    bitAndCount(report, rowRules::pucchPowerListCounts, (r.bitMask & RRC_PUCCH_POWER_CONTROL_PATH_REFERENCE_RSS) != 0,
                r.numPathLossRefRs);
}

void pucchResourceListCount(const RrcPucchResourceSet_t& r, Report& report)
{
    notEmpty(report, rowRules::pucchResourceListCount, r.numResourceList);
}

void puschHoppingOffsets(const RrcPuschCfg_t& r, Report& report)
{
    if ((r.bitMask & RRC_PUSCH_CFG_FREQ_HOPPING_PRESENCE) == 0)
    {
        notZero(report, rowRules::puschHoppingOffsets, r.numFreqHoppingOffset);
    }
}

void uciDynamicBetaOffsets(const RrcUciOnPusch_t& r, Report& report)
{
    if ((r.bitMask & RRC_UCI_PUSCH_BETA_OFFSETS_PRESENCE) == 0 ||
        !chooses(r.presence, RRC_UCI_PUSCH_BETA_OFFSETS_DYNAMIC_PRESENCE,
                 RRC_UCI_PUSCH_BETA_OFFSETS_SEMI_STATIC_PRESENCE))
    {
        return;
    }
    for (const RrcBetaOffsets_t& offsets : r.betaOffset.dynamic)
    {
        if (bitsUpTo(offsets.bitMask, RRC_BETA_OFFSETS_CSI_PART2_IDX2_PRESENCE) == 0)
        {
            report.say(rowRules::uciDynamicBetaOffsets, &offsets);
        }
    }
}

void configuredGrantBetaOffsetCount(const RrcDynamicBetaOffsets_t& r, Report& report)
{
    between(report, rowRules::configuredGrantBetaOffsetCount, r.num, 1, 4);
}

void puschChoices(const RrcUciOnPusch_t& r, Report& report)
{
    if ((r.bitMask & RRC_UCI_PUSCH_BETA_OFFSETS_PRESENCE) != 0)
    {
        oneBit(report, rowRules::puschChoices, r.presence, RRC_UCI_PUSCH_BETA_OFFSETS_SEMI_STATIC_PRESENCE);
    }
}

void configuredGrantUciChoice(const RrcCgUciOnPusch_t& r, Report& report)
{
    oneBit(report, rowRules::puschChoices, r.presence, RRC_CG_UCI_ON_PUSCH_SEMI_STATIC_PRESENCE);
}

void puschPathLossChoice(const RrcPuschPathLossRefRs_t& r, Report& report)
{
    oneBit(report, rowRules::puschChoices, r.presence, RRC_PUSCH_PATH_LOSS_REF_RS_CSI_RS_PRESENCE);
}

void ptrsTimeDensity(const RrcPtrsUlTransformPrecodeEnable_t& r, Report& report)
{
    if ((r.bitMask & RRC_PTRS_UL_CFG_ENABLE_TIME_DENSITY_PRESENCE) != 0)
    {
        notZero(report, rowRules::ptrsTimeDensity, r.timeDensityTransformPrecoding);
    }
}

void puschOneValue(const RrcPuschCfg_t& r, Report& report)
{
    oneValue(report, rowRules::puschOneValue, (r.bitMask & RRC_PUSCH_CFG_TP_PI2_BPSK_PRESENCE) != 0, r.tpPi2Bpsk);
    oneValue(report, rowRules::puschOneValue, (r.bitMask & RRC_PUSCH_CFG_RBG_SIZE_PRESENCE) != 0, r.rbgSize);
}

void configuredGrantOneValue(const RrcCfgGrantCfg_t& r, Report& report)
{
    oneValue(report, rowRules::puschOneValue, (r.bitMask & RRC_CFGD_GRANT_CFG_RBG_SIZE_PRESENCE) != 0, r.rbgSize);
}

void puschPowerOneValue(const RrcPuschPowerControl_t& r, Report& report)
{
    oneValue(report, rowRules::puschOneValue, (r.bitMask & RRC_PUSCH_POWER_CONTROL_TCP_ACCUMULATION_PRESENCE) != 0,
             r.tpcAccumulation);
    oneValue(report, rowRules::puschOneValue,
             (r.bitMask & RRC_PUSCH_POWER_CONTROL_TWO_PUSCH_PC_ADJ_STATES_PRESENCE) != 0, r.twoPuschPcAdjStates);
    oneValue(report, rowRules::puschOneValue, (r.bitMask & RRC_PUSCH_POWER_CONTROL_DELTA_MCS_PRESENCE) != 0,
             r.deltaMcs);
}

void uplinkDmrsOneValue(const RrcDmrsUlCfg_t& r, Report& report)
{
    oneValue(report, rowRules::puschOneValue, (r.bitMask & RRC_DMRS_UL_CFG_TYPE_PRESENCE) != 0, r.dmrsType);
    oneValue(report, rowRules::puschOneValue, (r.bitMask & RRC_DMRS_UL_CFG_MAX_LENGTH_PRESENCE) != 0, r.maxLength);
}

void transformPrecodingOneValue(const RrcTransformPrecodEnable_t& r, Report& report)
{
    oneValue(report, rowRules::puschOneValue, (r.bitMask & RRC_TRANSFORM_PRECODE_ENABLE_GROUP_HOPPING_PRESENCE) != 0,
             r.seqGrpHopping);
    oneValue(report, rowRules::puschOneValue, (r.bitMask & RRC_TRANSFORM_PRECODE_ENABLE_HOPPING_PRESENCE) != 0,
             r.seqHopping);
}

void puschAllocationCount(const RrcPuschTimeDomainResourceAllocList_t& r, Report& report)
{
    notEmpty(report, rowRules::puschAllocationCount, r.numPuschTimeDomainResourceAllocList);
}

void configuredGrantFrequencyUpperBits(const rrcCfgdUlGrant_s& r, Report& report)
{
    kept(report, rowRules::configuredGrantFrequencyUpperBits, r.freqDomainAllocation, 18);
}

void srsSetTypeChoice(const RrcSrsResourceSet_t& r, Report& report)
{
    oneBit(report, rowRules::srsSetTypeChoice, r.presence, RRC_SRS_RESOURCE_SET_TYPE_PERIODIC_PERSENCE);
}

void srsChoices(const RrcSrsResource_t& r, Report& report)
{
    oneBit(report, rowRules::srsChoices, r.presence, RRC_SRS_RESOURCE_TRANSMISSION_COMB_N4_PRESENCE);
    oneBit(report, rowRules::srsChoices, r.presence1, RRC_SRS_RESOURCE_TYPE_PERIODIC_PERSENCE);
}

void srsPathLossChoice(const RrcSRSPathLossRefRs_t& r, Report& report)
{
    oneBit(report, rowRules::srsChoices, r.presence, RRC_SRS_PATH_LOSS_REF_RS_CSI_IDX_PRESENCE);
}

void srsSpatialRelationChoice(const RrcSrsSpatialRelationInfo_t& r, Report& report)
{
    oneBit(report, rowRules::srsChoices, r.presence, RRC_SRS_SPATIAL_RELATION_INFO_SRS_PRESENCE);
}

template <typename Record>
void srsPeriod(const Record& r, Report& report)
{
    between(report, rowRules::srsPeriod, r.period, 1, 17);
}

template <typename Record>
void srsOffset(const Record& r, Report& report)
{
    shortOffset(report, rowRules::srsOffset, r.period >= 2 && r.period <= 13, r.offset);
}

void srsP0UpperBits(const RrcSrsResourceSet_t& r, Report& report)
{
    if ((r.presence & RRC_SRS_RESOURCE_SET_P0_PERSENCE) != 0 && static_cast<INT16>(r.p0) != r.p0)
    {
        report.say(rowRules::srsP0UpperBits, &r.p0);
    }
}

void srsTpcAccumulationOneValue(const RrcSrsCfg_t& r, Report& report)
{
    oneValue(report, rowRules::srsTpcAccumulationOneValue, (r.bitMask & RRC_SRS_CFG_TPC_ACCUMULATION_PRESENCE) != 0,
             r.tpcAccumulation);
}

void bfrMsg1SubcarrierSpacing(const RrcBeamFailRecoveryCfg_t& r, Report& report)
{
    notSent(report, rowRules::bfrMsg1SubcarrierSpacing, r.bitMask,
            RRC_BEAM_FAIL_RECOVERY_MSG1_SUB_CARRIER_SPACING_V1530_PRESENCE);
}

// The bits of presence1 that choose; 0 where the choice is not sent.
UINT64 ssbPerOccasion(const RrcRachCfgComm_t& r)
{
    const bool isSent = (r.bitMask & RRC_RACH_CFG_COMMON_SSB_PER_RACH_OCCASION_PREAMBLE_PER_SSB_PRESENCE) != 0;
    return isSent ? bitsUpTo(r.presence1, RRC_RACH_CFG_COMMON_SIXTEEM_PRESENCE) : 0;
}

void rachOneEighth(const RrcRachCfgComm_t& r, Report& report)
{
    const UINT64 set = ssbPerOccasion(r);
    if ((set & RRC_RACH_CFG_COMMON_ONEEIGHTH_PRESENCE) != 0 && set < RRC_RACH_CFG_COMMON_ONE_PRESENCE)
    {
        report.say(rowRules::rachOneEighth, &r.presence1);
    }
}

void rachOneHalf(const RrcRachCfgComm_t& r, Report& report)
{
    const UINT64 set = ssbPerOccasion(r);
    if ((set & RRC_RACH_CFG_COMMON_ONEHALF_PRESENCE) != 0)
    {
        const bool isAlone = set == RRC_RACH_CFG_COMMON_ONEHALF_PRESENCE;
        report.say(rowRules::rachOneHalf, isAlone ? RRC_RECORD_ERROR : RRC_RECORD_WARNING, &r.presence1);
    }
}

void rachCommonChoices(const RrcRachCfgComm_t& r, Report& report)
{
    oneBit(report, rowRules::rachCommonChoices, r.presence, RRC_RACH_CFG_COMMON_PRACH_ROOT_SEQ_IDX_L139_PRESENCE);
    // The bit that is not read has a rule of its own.
    const UINT64 set = ssbPerOccasion(r);
    if ((r.bitMask & RRC_RACH_CFG_COMMON_SSB_PER_RACH_OCCASION_PREAMBLE_PER_SSB_PRESENCE) != 0 &&
        set != RRC_RACH_CFG_COMMON_ONEHALF_PRESENCE)
    {
        choice(report, rowRules::rachCommonChoices, &r.presence1, set & ~UINT64{RRC_RACH_CFG_COMMON_ONEHALF_PRESENCE});
    }
}

void puschCommonP0Nominal(const RrcPuschCfgComm_t& r, Report& report)
{
    atMost(report, rowRules::puschCommonP0Nominal,
           (r.bitMask & RRC_PUSCH_CFG_COMMON_P0_NOMINAL_WITH_GRANT_PRESENCE) != 0, r.p0NominalWithGrant, 24);
}

void uplinkCommonOneValue(const RrcPuschCfgComm_t& r, Report& report)
{
    oneValue(report, rowRules::uplinkCommonOneValue,
             (r.bitMask & RRC_PUSCH_CFG_COMMON_GROUP_HOPPING_ENABLED_TRANSFORM_PRECODEING_PRESENCE) != 0,
             r.groupHoppingEnabledTransformPrecoding);
}

void rachCommonOneValue(const RrcRachCfgComm_t& r, Report& report)
{
    oneValue(report, rowRules::uplinkCommonOneValue,
             (r.bitMask & RRC_RACH_CFG_COMMON_MSG3_TRANSFORM_PRECODER_PRESENCE) != 0, r.msg3TransformPreCoder);
}

void puschServingCellBitsNotSent(const RrcPuschServingCellCfg_t& r, Report& report)
{
    notSent(report, rowRules::puschServingCellBitsNotSent, r.bitMask,
            RRC_PUSCH_SERVING_CELL_CFG_MAX_MIMO_LAYERS | RRC_PUSCH_SERVING_CELL_CFG_PROCESS_TYPE_2ENABLE);
}

void puschRateMatchingOneValue(const RrcPuschServingCellCfg_t& r, Report& report)
{
    oneValue(report, rowRules::puschRateMatchingOneValue,
             (r.bitMask & RRC_PUSCH_SERVING_CELL_CFG_RATE_MATCHING_PRESECE) != 0, r.rateMatching);
}

void srsSwitchFromCarrier(const RrcSrsCarrierSwitching_t& r, Report& report)
{
    atMost(report, rowRules::srsSwitchFromCarrier, true, r.SwitchFromCarrier, 1);
}

void srsTpcGroupChoice(const RrcSrsCarrierSwitching_t& r, Report& report)
{
    if ((r.bitMask & RRC_SRS_CARRIER_SWITCH_SRS_TPC_PDCCH_GROUP_PRESENCE) != 0)
    {
        oneBit(report, rowRules::srsTpcGroupChoice, r.presence, RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEB_PRESENCE);
    }
}

template <typename Record>
void srsSwitchingListCounts(const Record& r, Report& report)
{
    notEmpty(report, rowRules::srsSwitchingListCounts, r.num);
}

void srsTpcConfigCount(const RrcSrsTpcPdcchCfg_t& r, Report& report)
{
    if (r.num == 0)
    {
        report.say(rowRules::srsSwitchingListCounts, RRC_RECORD_NOTICE, &r.num);
    }
}

void slotFormatCounts(const RrcSlotFormatComb_t& r, Report& report)
{
    notEmpty(report, rowRules::slotFormatCounts, r.numSlotFormat);
}

void pdschServingCellBooleans(const RrcPdschServingCellCfg_t& r, Report& report)
{
    boolean(report, rowRules::pdschServingCellBooleans,
            (r.bitMask & RRC_PDSCH_SERVING_CELL_CFG_PROCESSING_TYPE2_ENABLED) != 0, r.Type2Enabled);
}

void codeBlockGroupBoolean(const codeBlockGroupTransmission_s& r, Report& report)
{
    boolean(report, rowRules::pdschServingCellBooleans, true, r.codeBlockGroupFlushInd);
}

constexpr RowCheck uplinkChecks[] = {
    row<uplinkBitsNotSent>,
    row<pucchSetReleaseCount>,
    row<pucchOneValue>,
    row<pucchResourceOneValue>,
    row<pucchPowerOneValue>,
    row<schedulingRequestPeriod>,
    row<schedulingRequestOffset>,
    row<pucchChoices>,
    row<schedulingRequestChoice>,
    row<pucchSpatialRelationChoice>,
    row<pucchPathLossChoice>,
    row<pucchPowerListCounts>,
    row<pucchResourceListCount>,
    row<puschHoppingOffsets>,
    row<uciDynamicBetaOffsets>,
    row<configuredGrantBetaOffsetCount>,
    row<puschChoices>,
    row<configuredGrantUciChoice>,
    row<puschPathLossChoice>,
    row<ptrsTimeDensity>,
    row<puschOneValue>,
    row<configuredGrantOneValue>,
    row<puschPowerOneValue>,
    row<uplinkDmrsOneValue>,
    row<transformPrecodingOneValue>,
    row<puschAllocationCount>,
    row<configuredGrantFrequencyUpperBits>,
    row<srsSetTypeChoice>,
    row<srsChoices>,
    row<srsPathLossChoice>,
    row<srsSpatialRelationChoice>,
    row<srsPeriod<srsSemiPersistent_s>>,
    row<srsPeriod<srsPeriodic_s>>,
    row<srsOffset<srsSemiPersistent_s>>,
    row<srsOffset<srsPeriodic_s>>,
    row<srsP0UpperBits>,
    row<srsTpcAccumulationOneValue>,
    row<bfrMsg1SubcarrierSpacing>,
    row<rachOneEighth>,
    row<rachOneHalf>,
    row<rachCommonChoices>,
    row<puschCommonP0Nominal>,
    row<uplinkCommonOneValue>,
    row<rachCommonOneValue>,
    row<puschServingCellBitsNotSent>,
    row<puschRateMatchingOneValue>,
    row<srsSwitchFromCarrier>,
    row<srsTpcGroupChoice>,
    row<srsSwitchingListCounts<typeA_s>>,
    row<srsSwitchingListCounts<RrcmonitoringCells_s>>,
    row<srsTpcConfigCount>,
    row<slotFormatCounts>,
    row<pdschServingCellBooleans>,
    row<codeBlockGroupBoolean>,
};

} // namespace

const RowChecks checksOfUplink = rowChecks(uplinkChecks);

} // namespace recordCheck
