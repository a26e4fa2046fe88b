#include "records.h"

namespace records
{

namespace
{

template <std::size_t N>
void drawCarriers(Chance& chance, UINT8& scsNum, SpecificCarrier_t (&carriers)[N])
{
    const unsigned count = chance.count(scsNum, 1, N, 26);
    for (unsigned i = 0; i < count; ++i)
    {
        draw(chance, carriers[i]);
    }
}

void drawFrequency(Chance& chance, RrcFreqInfoDl_t& record)
{
    rrcInit(&record);
    chance.numberIf(record.bitMask, FREQ_INFO_DL_ABS_FREQ_SSB, record.absFreqSsb, 0, 3279165);
    chance.numbers(record.freqBandIndNr, chance.count(record.multiBandNum, 1, RRC_MAX_NROF_MULTI_BANDS, 10), 1, 1024);
    chance.number(record.absFreqPointA, 0, 3279165);
    drawCarriers(chance, record.scsNum, record.speCarrier);
}

void drawFrequency(Chance& chance, RrcFreqInfoUl_t& record)
{
    rrcInit(&record);
    chance.numbers(record.freqBandIndNr, chance.optionalCount(record.multiBandNum, RRC_MAX_NROF_MULTI_BANDS, 10), 1,
                   1024);
    drawCarriers(chance, record.scsNum, record.speCarrier);
    // What the bits guard is never sent, so it may hold anything.
    chance.bitsIf(record.bitMask, FREQ_INFO_UL_ABS_FREQ_POINTEA_PRESENCE, record.absFreqPointA, 32);
    chance.bitsIf(record.bitMask, FREQ_INFO_UL_ADDIRIONAL_SPECTRUM_EMISSION_PRESENCE, record.additionSpectrumEmission,
                  8);
    chance.bitsIf(record.bitMask, FREQ_INFO_UL_PMAX_PRESENCE, record.pMax, 8);
    chance.bitsIf(record.bitMask, FREQ_INFO_UL_FREQ_SHIFT_7P5KHZ, record.freqShift7p5khz, 8);
}

void drawDownlink(Chance& chance, RrcDlCfgComm_t& record)
{
    rrcInit(&record);
    const auto frequency = [&]
    {
        if (chance.flag(record.bitMask, RRC_DLCFGCOMM_FREQ_DL_PRESENCE))
        {
            drawFrequency(chance, record.freqInfoDl);
        }
    };
    const auto bandwidthPart = [&]
    {
        if (chance.flag(record.bitMask, RRC_DLCFGCOMM_INIT_DL_BWP_PRESENCE))
        {
            draw(chance, record.bwpDlCommon);
        }
    };
    chance.inAnyOrder(frequency, bandwidthPart);
}

void drawUplink(Chance& chance, RrcUlCfgComm_t& record)
{
    rrcInit(&record);
    const auto frequency = [&]
    {
        if (chance.flag(record.bitMask, RRC_FREQ_INFO_UL_PRESENCE))
        {
            drawFrequency(chance, record.freqInfoUl);
        }
    };
    const auto bandwidthPart = [&]
    {
        if (chance.flag(record.bitMask, RRC_BWP_UPLINK_PRESENCE))
        {
            draw(chance, record.bwpUplink);
        }
    };
    chance.inAnyOrder(frequency, bandwidthPart);
    chance.enumeration(record.timeAlignmentTimer, 7);
}

// Short, medium, or both, of which medium counts. The long bitmap cannot be sent.
void drawSsbPositions(Chance& chance, RrcServingCellCfgCommon_t& record)
{
    chance.number(record.ssbPosionBitMask, SSB_POSITION_SHORT_BITMAP,
                  SSB_POSITION_SHORT_BITMAP | SSB_POSITION_MEDIUM_BITMAP);
    if (record.ssbPosionBitMask & SSB_POSITION_MEDIUM_BITMAP)
    {
        chance.bits(record.RrcSsbPositionInBurst.mediumBitmap, 8);
    }
    else
    {
        record.RrcSsbPositionInBurst.shortBitmap = chance.bitField(4) & 0xF;
    }
}

} // namespace

void draw(Chance& chance, RrcServingCellCfgCommon_t& record)
{
    rrcInit(&record);
    chance.enumeration(record.dmrsTypeAPosition, 1);
    chance.number(record.ssPbchBlockPower, -60, 50);
    const auto small = [&]
    {
        chance.numberIf(record.bitMask, RRC_PHY_SCELL_Id, record.pci, 0, 1007);
        chance.enumerationIf(record.bitMask, RRC_TIMING_ADVANCE_OFFSET, record.nTimingAdvanceOffset, 2);
        if (chance.flag(record.bitMask, RRC_SSB_POSITION_IN_BURST))
        {
            drawSsbPositions(chance, record);
        }
        chance.enumerationIf(record.bitMask, RRC_SSB_PERIOD_CITY_SERVING_CELL, record.ssbPeriodicityServingCell, 7);
        chance.enumerationIf(record.bitMask, RRC_SUB_CARRIER_SPACING, record.subCarrierSpacing, 7);
        if (chance.flag(record.bitMask, RRC_TDD_UL_DL_CFG_COMMON))
        {
            draw(chance, record.tddUlDlCfgComm);
        }
    };
    const auto downlink = [&]
    {
        if (chance.flag(record.bitMask, RRC_DOWNLINK_CFG_COMMON))
        {
            drawDownlink(chance, record.dlCfgComm);
        }
    };
    const auto uplink = [&]
    {
        if (chance.flag(record.bitMask, RRC_UPLINK_CFG_COMMON))
        {
            drawUplink(chance, record.ulCfgComm);
        }
    };
    const auto supplementaryUplink = [&]
    {
        if (chance.flag(record.bitMask, RRC_SUPP_UPLINK_CFG_COMMON))
        {
            drawUplink(chance, record.suppUlCfg);
        }
    };
    const auto rateMatch = [&]
    {
        const unsigned added =
            chance.optionalCount(record.numRateMatchPatternAddMod, RRC_MAX_NROF_RATE_MATCH_PATTERNS, 10);
        for (unsigned i = 0; i < added; ++i)
        {
            draw(chance, record.rateMatchPatternToAddMod[i]);
        }
        const unsigned released =
            chance.optionalCount(record.numRateMatchPatternRelease, RRC_MAX_NROF_RATE_MATCH_PATTERNS, 2);
        chance.numbers(record.rateMatchPatternId, released, 0, 3);
    };
    chance.inAnyOrder(small, downlink, uplink, supplementaryUplink, rateMatch);
}

void draw(Chance& chance, RrcSSBMTC_t& record)
{
    rrcInit(&record);
    constexpr unsigned subframes[] = {5, 10, 20, 40, 80, 160};
    const unsigned chosen = chance.tag(record.period, std::size(subframes));
    chance.number(record.offset, 0, subframes[chosen] - 1);
    chance.enumeration(record.duration, 4);
}

// Never sent, so it may hold anything.
void draw(Chance& chance, RrcTddUlDlSlotCfg_t& record)
{
    rrcInit(&record);
    chance.bits(record.slotIdx, 16);
    chance.bits(record.presence, 8);
    chance.bits(record.explicit_t.bitMask, 8);
    chance.bits(record.explicit_t.nrofDownlinkSymbols, 8);
    chance.bits(record.explicit_t.nrofUplinkSymbols, 8);
}

} // namespace records
