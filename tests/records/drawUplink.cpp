#include "records.h"

namespace records
{

namespace
{

void drawSsbPerOccasion(Chance& chance, RrcRachCfgComm_t& record)
{
    auto& preambles = record.ssbPerRachOccasionAndCbPreamblesPerSsb;
    // ONEEIGHTH counts above ONEFOURTH, as oneHalf: there is no way to send oneEighth.
    switch (chance.alternative(record.presence1,
                               {RRC_RACH_CFG_COMMON_ONEFOURTH_PRESENCE, RRC_RACH_CFG_COMMON_ONEEIGHTH_PRESENCE,
                                RRC_RACH_CFG_COMMON_ONE_PRESENCE, RRC_RACH_CFG_COMMON_TWO_PRESENCE,
                                RRC_RACH_CFG_COMMON_FOUR_PRESENCE, RRC_RACH_CFG_COMMON_EIGHT_PRESENCE,
                                RRC_RACH_CFG_COMMON_SIXTEEM_PRESENCE}))
    {
    case 0:
        chance.enumeration(preambles.oneFourth, 15);
        break;
    case 1:
        chance.enumeration(preambles.oneHalf, 15);
        break;
    case 2:
        chance.enumeration(preambles.one, 15);
        break;
    case 3:
        chance.enumeration(preambles.two, 7);
        break;
    case 4:
        chance.number(preambles.four, 1, 16);
        break;
    case 5:
        chance.number(preambles.eight, 1, 8);
        break;
    default:
        chance.number(preambles.sixteen, 1, 4);
        break;
    }
    // Not read.
    chance.flag(record.presence1, RRC_RACH_CFG_COMMON_ONEHALF_PRESENCE);
}

void drawRach(Chance& chance, RrcRachCfgComm_t& record)
{
    rrcInit(&record);
    draw(chance, record.rachCfgGeneric);
    chance.enumeration(record.raContentionResolutionTimer, 7);
    if (chance.alternative(record.presence, {RRC_RACH_CFG_COMMON_PRACH_ROOT_SEQ_IDX_L839_PRESENCE,
                                             RRC_RACH_CFG_COMMON_PRACH_ROOT_SEQ_IDX_L139_PRESENCE}) == 0)
    {
        chance.number(record.prachRootSeqIdx.l839, 0, 837);
    }
    else
    {
        chance.number(record.prachRootSeqIdx.l139, 0, 137);
    }
    chance.enumeration(record.restritedSetCfg, 2);
    chance.numberIf(record.bitMask, RRC_RACH_CFG_COMMON_TOTAL_NUM_RAPREAMBLES, record.totalNumOfRaPreambles, 1, 63);
    if (chance.flag(record.bitMask, RRC_RACH_CFG_COMMON_SSB_PER_RACH_OCCASION_PREAMBLE_PER_SSB_PRESENCE))
    {
        drawSsbPerOccasion(chance, record);
    }
    else
    {
        // Not read without the bit.
        chance.bits(record.presence1, 8);
    }
    if (chance.flag(record.bitMask, RRC_RACH_CFG_COMMON_GROUPB_CFGD_PRESENCE))
    {
        chance.enumeration(record.groupBCfgd.raMsg3SizeGroupA, 15);
        chance.enumeration(record.groupBCfgd.msgPowerOffsetGroupB, 7);
        chance.number(record.groupBCfgd.numOfRaPreambleGroupA, 1, 64);
    }
    chance.numberIf(record.bitMask, RRC_RACH_CFG_COMMON_RSRP_THRESH_SSB_PRESENCE, record.rsrpThreshSsb, 0, 127);
    chance.numberIf(record.bitMask, RRC_RACH_CFG_COMMON_RSRP_THRESH_SSB_SUL_PRESENCE, record.rsrpThreshSsbSul, 0, 127);
    chance.enumerationIf(record.bitMask, RRC_RACH_CFG_COMMON_MSG1_SUB_CARRIER_SPACINT_PRESENCE,
                         record.msg1SubCarrierSpacing, 7);
    chance.enumerationIf(record.bitMask, RRC_RACH_CFG_COMMON_MSG3_TRANSFORM_PRECODER_PRESENCE,
                         record.msg3TransformPreCoder, 0);
}

void drawPusch(Chance& chance, RrcPuschCfgComm_t& record)
{
    rrcInit(&record);
    chance.enumerationIf(record.bitMask, RRC_PUSCH_CFG_COMMON_GROUP_HOPPING_ENABLED_TRANSFORM_PRECODEING_PRESENCE,
                         record.groupHoppingEnabledTransformPrecoding, 0);
    if (chance.flag(record.bitMask, RRC_PUSCH_CFG_COMMON_PUSCH_TIMING_DOMAIN_ALLOCATION_LIST_PRESENCE))
    {
        draw(chance, record.puschTimieDomainAllocList);
    }
    else
    {
        // A count without its bit is not read.
        chance.bits(record.puschTimieDomainAllocList.numPuschTimeDomainResourceAllocList, 8);
    }
    chance.numberIf(record.bitMask, RRC_PUSCH_CFG_COMMON_MSG3_DELTA_PREABLE_PRESENCE, record.msg3DeltaPreable, -1, 6);
    if (chance.flag(record.bitMask, RRC_PUSCH_CFG_COMMON_P0_NOMINAL_WITH_GRANT_PRESENCE))
    {
        // Unsigned: the octet cannot hold what is below 0.
        chance.number(record.p0NominalWithGrant, 0, 24);
    }
}

void drawPucch(Chance& chance, RrcPucchCfgComm_t& record)
{
    rrcInit(&record);
    chance.enumeration(record.pucchGroupHopping, 2);
    chance.numberIf(record.bitMask, RRC_PUCCH_CFG_COMMON_PUCCH_RESOURCE_COMMON_PRESENCE, record.pucchResourceComm, 0,
                    15);
    chance.numberIf(record.bitMask, RRC_PUCCH_CFG_COMMON_HOPPING_ID_PRESENCE, record.hoppingId, 0, 1023);
    if (chance.flag(record.bitMask, RRC_PUCCH_CFG_COMMON_P0_NOMINAL_PRESENCE))
    {
        // The octet cannot hold what is below -128.
        chance.number(record.p0Nominal, -128, 24);
    }
}

void drawCommon(Chance& chance, RrcBwpUlComm_t& record)
{
    rrcInit(&record);
    draw(chance, record.genericParam);
    const auto rach = [&]
    {
        if (chance.flag(record.bitMask, RRC_BWP_UL_COMM_RACH_PRESENCE))
        {
            drawRach(chance, record.rachCfgComm);
        }
    };
    const auto pusch = [&]
    {
        if (chance.flag(record.bitMask, RRC_BWP_UL_COMM_PUSCH_PRESENCE))
        {
            drawPusch(chance, record.puschCfgComm);
        }
    };
    const auto pucch = [&]
    {
        if (chance.flag(record.bitMask, RRC_BWP_UL_COMM_PUCCH_PRESENCE))
        {
            drawPucch(chance, record.pucchCfgComm);
        }
    };
    chance.inAnyOrder(rach, pusch, pucch);
}

} // namespace

void draw(Chance& chance, RrcUlCfg_t& record)
{
    rrcInit(&record);
    const auto initial = [&]
    {
        if (chance.flag(record.bitMask, RRC_UL_CFG_INIT_UL_BWP_PRESENCE))
        {
            draw(chance, record.initialUplinkBWP);
        }
    };
    const auto bwps = [&]
    {
        const unsigned released = chance.optionalCount(record.numUlBwpRel, 4, 3);
        chance.numbers(record.ulBwpId, released, 0, 4);
        const unsigned added = chance.optionalCount(record.numUlBwpAddMod, 4, 6);
        for (unsigned i = 0; i < added; ++i)
        {
            draw(chance, record.ulBwpAddMod[i]);
        }
        chance.numberIf(record.bitMask, RRC_UL_CFG_FIRST_ACTICVE_UL_BWP_PRESENCE, record.firstActiveUlBwpId, 0, 4);
    };
    const auto cellLevel = [&]
    {
        if (chance.flag(record.bitMask, RRC_UL_CFG_PUSCH_SERVING_CELL_CFG_PRESENCE))
        {
            draw(chance, record.PuschServingCellCfg);
        }
        if (chance.flag(record.bitMask, RRC_UL_CFG_CARRIER_SWITCHING_PRESENCE))
        {
            draw(chance, record.carrierSwitching);
        }
    };
    chance.inAnyOrder(initial, bwps, cellLevel);
    // Never sent.
    chance.flag(record.bitMask, RRC_UL_CFG_POWER_BOOST_PI_2BPSK);
    chance.flag(record.bitMask, RRC_UL_CFG_UL_CHANNEL_BW_PERSCS_LIST);
}

void draw(Chance& chance, RrcBwpUl_t& record)
{
    rrcInit(&record);
    chance.number(record.bwpId, 0, 4);
    const auto common = [&]
    {
        if (chance.flag(record.bitMask, RRC_BWP_UL_COMMON_PRESENCE))
        {
            drawCommon(chance, record.bwpCommon);
        }
    };
    const auto dedicated = [&]
    {
        if (chance.flag(record.bitMask, RRC_BWP_UL_DEDICATED_PRESENCE))
        {
            draw(chance, record.bwpDedicated);
        }
    };
    chance.inAnyOrder(common, dedicated);
}

void draw(Chance& chance, RrcBwpUlDedi_t& record)
{
    rrcInit(&record);
    const auto pucch = [&]
    {
        if (chance.flag(record.bitMask, RRC_BWP_UL_DEDI_PUCCH_CFG_PRESENCE))
        {
            draw(chance, record.pucchCfg);
        }
    };
    const auto pusch = [&]
    {
        if (chance.flag(record.bitMask, RRC_BWP_UL_DEDI_PUSCH_CFG_PRESENCE))
        {
            draw(chance, record.puschCfg);
        }
    };
    const auto configuredGrant = [&]
    {
        if (chance.flag(record.bitMask, RRC_BWP_UL_DEDI_CFG_GRANT_CFG_PRESENCE))
        {
            draw(chance, record.cfgGrantCfg);
        }
    };
    const auto srs = [&]
    {
        if (chance.flag(record.bitMask, RRC_BWP_UL_DEDI_SRS_CFG_PRESENCE))
        {
            draw(chance, record.srsCfg);
        }
    };
    const auto beamFailure = [&]
    {
        if (chance.flag(record.bitMask, RRC_BWP_UL_DEDI_BEAM_FAILURE_RECOVERY_CFG_PRESENCE))
        {
            draw(chance, record.beamFailRecoveryCfg);
        }
    };
    chance.inAnyOrder(pucch, pusch, configuredGrant, srs, beamFailure);
}

void draw(Chance& chance, RrcBeamFailRecoveryCfg_t& record)
{
    rrcInit(&record);
    chance.numberIf(record.bitMask, RRC_BEAM_FAIL_RECOVERY_ROOT_SEQ_IDX_BFR_PRESENCE, record.rootSeqIdxBFR, 0, 137);
    if (chance.flag(record.bitMask, RRC_BEAM_FAIL_RECOVERY_RACH_CFG_GENERIC_PRESENCE))
    {
        draw(chance, record.rachCfgBFR);
    }
    chance.numberIf(record.bitMask, RRC_BEAM_FAIL_RECOVERY_RSRP_RANGE_PRESENCE, record.rsrpThreshSSB, 0, 127);
    chance.enumerationIf(record.bitMask, RRC_BEAM_FAIL_RECOVERY_SSB_PER_RACH_OCCASION_PRESENCE,
                         record.ssbPerRachOccasion, 7);
    chance.numberIf(record.bitMask, RRC_BEAM_FAIL_RECOVERY_RA_SSB_OCCASION_MASK_IDX_PRESENCE,
                    record.raSsbOccasionMaskIdx, 0, 15);
    chance.numberIf(record.bitMask, RRC_BEAM_FAIL_RECOVERY_RECOVERY_SEARCH_SPACE_ID_PRESENCE,
                    record.recoverySearchSpaceId, 0, 39);
    if (chance.flag(record.bitMask, RRC_BEAM_FAIL_RECOVERY_RA_PRIORITYZATION_PRESENCE))
    {
        draw(chance, record.raPrio);
    }
    chance.enumerationIf(record.bitMask, RRC_BEAM_FAIL_RECOVERY_TIMER_PRESENCE, record.beamFailRecoveryTimer, 7);
    if (chance.flag(record.bitMask, RRC_BEAM_FAIL_RECOVERY_MSG1_SUB_CARRIER_SPACING_V1530_PRESENCE))
    {
        // Never sent.
        chance.bits(record.msg1SubCarrierSpacingV1530, 8);
    }
}

} // namespace records
