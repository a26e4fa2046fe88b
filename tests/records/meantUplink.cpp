#include "records.h"

namespace records
{

namespace
{

// The first bit is looked at again where the third should be, so it counts above the second and gives oneHalf, and the
// third is not looked at. All alternatives are the same octet.
std::string ssbPerOccasion(const RrcRachCfgComm_t& record)
{
    const unsigned preambles = record.ssbPerRachOccasionAndCbPreamblesPerSsb.oneEighth;
    if (record.presence1 & RRC_RACH_CFG_COMMON_SIXTEEM_PRESENCE)
    {
        return choice("sixteen", preambles);
    }
    if (record.presence1 & RRC_RACH_CFG_COMMON_EIGHT_PRESENCE)
    {
        return choice("eight", preambles);
    }
    if (record.presence1 & RRC_RACH_CFG_COMMON_FOUR_PRESENCE)
    {
        return choice("four", preambles);
    }
    if (record.presence1 & RRC_RACH_CFG_COMMON_TWO_PRESENCE)
    {
        return choice("two", preambles);
    }
    if (record.presence1 & RRC_RACH_CFG_COMMON_ONE_PRESENCE)
    {
        return choice("one", preambles);
    }
    if (record.presence1 & RRC_RACH_CFG_COMMON_ONEEIGHTH_PRESENCE)
    {
        return choice("oneHalf", preambles);
    }
    return choice("oneFourth", preambles);
}

std::string rootSequence(const RrcRachCfgComm_t& record)
{
    const bool l139 = (record.presence & RRC_RACH_CFG_COMMON_PRACH_ROOT_SEQ_IDX_L139_PRESENCE) != 0;
    return l139 ? choice("l139", record.prachRootSeqIdx.l139) : choice("l839", record.prachRootSeqIdx.l839);
}

std::string rach(const RrcRachCfgComm_t& record)
{
    Members members;
    members.add("rach-ConfigGeneric", meant(record.rachCfgGeneric));
    members.addIf(record.bitMask & RRC_RACH_CFG_COMMON_TOTAL_NUM_RAPREAMBLES, "totalNumberOfRA-Preambles",
                  record.totalNumOfRaPreambles);
    if (record.bitMask & RRC_RACH_CFG_COMMON_SSB_PER_RACH_OCCASION_PREAMBLE_PER_SSB_PRESENCE)
    {
        members.add("ssb-perRACH-OccasionAndCB-PreamblesPerSSB", ssbPerOccasion(record));
    }
    if (record.bitMask & RRC_RACH_CFG_COMMON_GROUPB_CFGD_PRESENCE)
    {
        Members groupB;
        groupB.add("ra-Msg3SizeGroupA", record.groupBCfgd.raMsg3SizeGroupA);
        groupB.add("messagePowerOffsetGroupB", record.groupBCfgd.msgPowerOffsetGroupB);
        groupB.add("numberOfRA-PreamblesGroupA", record.groupBCfgd.numOfRaPreambleGroupA);
        members.add("groupBconfigured", groupB.json());
    }
    members.add("ra-ContentionResolutionTimer", record.raContentionResolutionTimer);
    members.addIf(record.bitMask & RRC_RACH_CFG_COMMON_RSRP_THRESH_SSB_PRESENCE, "rsrp-ThresholdSSB",
                  record.rsrpThreshSsb);
    members.addIf(record.bitMask & RRC_RACH_CFG_COMMON_RSRP_THRESH_SSB_SUL_PRESENCE, "rsrp-ThresholdSSB-SUL",
                  record.rsrpThreshSsbSul);
    members.add("prach-RootSequenceIndex", rootSequence(record));
    members.addIf(record.bitMask & RRC_RACH_CFG_COMMON_MSG1_SUB_CARRIER_SPACINT_PRESENCE, "msg1-SubcarrierSpacing",
                  record.msg1SubCarrierSpacing);
    members.add("restrictedSetConfig", record.restritedSetCfg);
    members.addIf(record.bitMask & RRC_RACH_CFG_COMMON_MSG3_TRANSFORM_PRECODER_PRESENCE, "msg3-transformPrecoder",
                  record.msg3TransformPreCoder);
    return members.json();
}

std::string pusch(const RrcPuschCfgComm_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_PUSCH_CFG_COMMON_GROUP_HOPPING_ENABLED_TRANSFORM_PRECODEING_PRESENCE,
                  "groupHoppingEnabledTransformPrecoding", record.groupHoppingEnabledTransformPrecoding);
    if (record.bitMask & RRC_PUSCH_CFG_COMMON_PUSCH_TIMING_DOMAIN_ALLOCATION_LIST_PRESENCE)
    {
        members.add("pusch-TimeDomainAllocationList", meant(record.puschTimieDomainAllocList));
    }
    if (record.bitMask & RRC_PUSCH_CFG_COMMON_MSG3_DELTA_PREABLE_PRESENCE)
    {
        // The octet is a two's complement, unlike the next.
        members.add("msg3-DeltaPreamble", static_cast<INT8>(record.msg3DeltaPreable));
    }
    members.addIf(record.bitMask & RRC_PUSCH_CFG_COMMON_P0_NOMINAL_WITH_GRANT_PRESENCE, "p0-NominalWithGrant",
                  record.p0NominalWithGrant);
    return members.json();
}

std::string pucch(const RrcPucchCfgComm_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_PUCCH_CFG_COMMON_PUCCH_RESOURCE_COMMON_PRESENCE, "pucch-ResourceCommon",
                  record.pucchResourceComm);
    members.add("pucch-GroupHopping", record.pucchGroupHopping);
    members.addIf(record.bitMask & RRC_PUCCH_CFG_COMMON_HOPPING_ID_PRESENCE, "hoppingId", record.hoppingId);
    members.addIf(record.bitMask & RRC_PUCCH_CFG_COMMON_P0_NOMINAL_PRESENCE, "p0-nominal", record.p0Nominal);
    return members.json();
}

std::string common(const RrcBwpUlComm_t& record)
{
    Members members;
    members.add("genericParameters", meant(record.genericParam));
    if (record.bitMask & RRC_BWP_UL_COMM_RACH_PRESENCE)
    {
        members.add("rach-ConfigCommon", setup(rach(record.rachCfgComm)));
    }
    if (record.bitMask & RRC_BWP_UL_COMM_PUSCH_PRESENCE)
    {
        members.add("pusch-ConfigCommon", setup(pusch(record.puschCfgComm)));
    }
    if (record.bitMask & RRC_BWP_UL_COMM_PUCCH_PRESENCE)
    {
        members.add("pucch-ConfigCommon", setup(pucch(record.pucchCfgComm)));
    }
    return members.json();
}

} // namespace

// powerBoostPi2BPSK and uplinkChannelBW-PerSCS-List are marked without their extension group and so never sent.
std::string meant(const RrcUlCfg_t& record)
{
    Members members;
    if (record.bitMask & RRC_UL_CFG_INIT_UL_BWP_PRESENCE)
    {
        members.add("initialUplinkBWP", meant(record.initialUplinkBWP));
    }
    if (record.numUlBwpRel != 0)
    {
        members.add("uplinkBWP-ToReleaseList", numbers(record.numUlBwpRel, record.ulBwpId));
    }
    if (record.numUlBwpAddMod != 0)
    {
        members.add("uplinkBWP-ToAddModList",
                    list(record.numUlBwpAddMod, record.ulBwpAddMod, [&](const auto& entry) { return meant(entry); }));
    }
    members.addIf(record.bitMask & RRC_UL_CFG_FIRST_ACTICVE_UL_BWP_PRESENCE, "firstActiveUplinkBWP-Id",
                  record.firstActiveUlBwpId);
    if (record.bitMask & RRC_UL_CFG_PUSCH_SERVING_CELL_CFG_PRESENCE)
    {
        members.add("pusch-ServingCellConfig", meant(record.PuschServingCellCfg));
    }
    if (record.bitMask & RRC_UL_CFG_CARRIER_SWITCHING_PRESENCE)
    {
        members.add("carrierSwitching", meant(record.carrierSwitching));
    }
    return members.json();
}

std::string meant(const RrcBwpUl_t& record)
{
    Members members;
    members.add("bwp-Id", record.bwpId);
    if (record.bitMask & RRC_BWP_UL_COMMON_PRESENCE)
    {
        members.add("bwp-Common", common(record.bwpCommon));
    }
    if (record.bitMask & RRC_BWP_UL_DEDICATED_PRESENCE)
    {
        members.add("bwp-Dedicated", meant(record.bwpDedicated));
    }
    return members.json();
}

std::string meant(const RrcBwpUlDedi_t& record)
{
    Members members;
    if (record.bitMask & RRC_BWP_UL_DEDI_PUCCH_CFG_PRESENCE)
    {
        members.add("pucch-Config", setup(meant(record.pucchCfg)));
    }
    if (record.bitMask & RRC_BWP_UL_DEDI_PUSCH_CFG_PRESENCE)
    {
        members.add("pusch-Config", setup(meant(record.puschCfg)));
    }
    if (record.bitMask & RRC_BWP_UL_DEDI_CFG_GRANT_CFG_PRESENCE)
    {
        members.add("configuredGrantConfig", setup(meant(record.cfgGrantCfg)));
    }
    if (record.bitMask & RRC_BWP_UL_DEDI_SRS_CFG_PRESENCE)
    {
        members.add("srs-Config", setup(meant(record.srsCfg)));
    }
    if (record.bitMask & RRC_BWP_UL_DEDI_BEAM_FAILURE_RECOVERY_CFG_PRESENCE)
    {
        members.add("beamFailureRecoveryConfig", setup(meant(record.beamFailRecoveryCfg)));
    }
    return members.json();
}

// candidateBeamRSList is never sent, nor is msg1-SubcarrierSpacing-v1530, which is marked without its extension group.
std::string meant(const RrcBeamFailRecoveryCfg_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_BEAM_FAIL_RECOVERY_ROOT_SEQ_IDX_BFR_PRESENCE, "rootSequenceIndex-BFR",
                  record.rootSeqIdxBFR);
    if (record.bitMask & RRC_BEAM_FAIL_RECOVERY_RACH_CFG_GENERIC_PRESENCE)
    {
        members.add("rach-ConfigBFR", meant(record.rachCfgBFR));
    }
    members.addIf(record.bitMask & RRC_BEAM_FAIL_RECOVERY_RSRP_RANGE_PRESENCE, "rsrp-ThresholdSSB",
                  record.rsrpThreshSSB);
    members.addIf(record.bitMask & RRC_BEAM_FAIL_RECOVERY_SSB_PER_RACH_OCCASION_PRESENCE, "ssb-perRACH-Occasion",
                  record.ssbPerRachOccasion);
    members.addIf(record.bitMask & RRC_BEAM_FAIL_RECOVERY_RA_SSB_OCCASION_MASK_IDX_PRESENCE, "ra-ssb-OccasionMaskIndex",
                  record.raSsbOccasionMaskIdx);
    members.addIf(record.bitMask & RRC_BEAM_FAIL_RECOVERY_RECOVERY_SEARCH_SPACE_ID_PRESENCE, "recoverySearchSpaceId",
                  record.recoverySearchSpaceId);
    if (record.bitMask & RRC_BEAM_FAIL_RECOVERY_RA_PRIORITYZATION_PRESENCE)
    {
        members.add("ra-Prioritization", meant(record.raPrio));
    }
    members.addIf(record.bitMask & RRC_BEAM_FAIL_RECOVERY_TIMER_PRESENCE, "beamFailureRecoveryTimer",
                  record.beamFailRecoveryTimer);
    return members.json();
}

} // namespace records
