#include "records.h"

namespace records
{

namespace
{

template <std::size_t N>
std::string carriers(unsigned count, const SpecificCarrier_t (&carriers)[N])
{
    return list(count, carriers, [&](const auto& entry) { return meant(entry); });
}

std::string frequency(const RrcFreqInfoDl_t& record)
{
    Members members;
    members.addIf(record.bitMask & FREQ_INFO_DL_ABS_FREQ_SSB, "absoluteFrequencySSB", record.absFreqSsb);
    members.add("frequencyBandList", numbers(record.multiBandNum, record.freqBandIndNr));
    members.add("absoluteFrequencyPointA", record.absFreqPointA);
    members.add("scs-SpecificCarrierList", carriers(record.scsNum, record.speCarrier));
    return members.json();
}

// The four members that bitMask guards are never sent.
std::string frequency(const RrcFreqInfoUl_t& record)
{
    Members members;
    if (record.multiBandNum != 0)
    {
        members.add("frequencyBandList", numbers(record.multiBandNum, record.freqBandIndNr));
    }
    members.add("scs-SpecificCarrierList", carriers(record.scsNum, record.speCarrier));
    return members.json();
}

std::string downlink(const RrcDlCfgComm_t& record)
{
    Members members;
    if (record.bitMask & RRC_DLCFGCOMM_FREQ_DL_PRESENCE)
    {
        members.add("frequencyInfoDL", frequency(record.freqInfoDl));
    }
    if (record.bitMask & RRC_DLCFGCOMM_INIT_DL_BWP_PRESENCE)
    {
        members.add("initialDownlinkBWP", meant(record.bwpDlCommon));
    }
    return members.json();
}

std::string uplink(const RrcUlCfgComm_t& record)
{
    Members members;
    if (record.bitMask & RRC_FREQ_INFO_UL_PRESENCE)
    {
        members.add("frequencyInfoUL", frequency(record.freqInfoUl));
    }
    if (record.bitMask & RRC_BWP_UPLINK_PRESENCE)
    {
        members.add("initialUplinkBWP", meant(record.bwpUplink));
    }
    members.add("dummy", record.timeAlignmentTimer);
    return members.json();
}

// Medium wins over short; what has the long bitmap is refused.
std::string ssbPositions(const RrcServingCellCfgCommon_t& record)
{
    if (record.ssbPosionBitMask & SSB_POSITION_MEDIUM_BITMAP)
    {
        return choice("mediumBitmap", bits(record.RrcSsbPositionInBurst.mediumBitmap, 8));
    }
    return choice("shortBitmap", bits(record.RrcSsbPositionInBurst.shortBitmap, 4));
}

} // namespace

// lte-CRS-ToMatchAround is never sent.
std::string meant(const RrcServingCellCfgCommon_t& record)
{
    const unsigned mask = record.bitMask;
    Members members;
    members.addIf(mask & RRC_PHY_SCELL_Id, "physCellId", record.pci);
    if (mask & RRC_DOWNLINK_CFG_COMMON)
    {
        members.add("downlinkConfigCommon", downlink(record.dlCfgComm));
    }
    if (mask & RRC_UPLINK_CFG_COMMON)
    {
        members.add("uplinkConfigCommon", uplink(record.ulCfgComm));
    }
    if (mask & RRC_SUPP_UPLINK_CFG_COMMON)
    {
        members.add("supplementaryUplinkConfig", uplink(record.suppUlCfg));
    }
    members.addIf(mask & RRC_TIMING_ADVANCE_OFFSET, "n-TimingAdvanceOffset", record.nTimingAdvanceOffset);
    if (mask & RRC_SSB_POSITION_IN_BURST)
    {
        members.add("ssb-PositionsInBurst", ssbPositions(record));
    }
    members.addIf(mask & RRC_SSB_PERIOD_CITY_SERVING_CELL, "ssb-periodicityServingCell",
                  record.ssbPeriodicityServingCell);
    members.add("dmrs-TypeA-Position", record.dmrsTypeAPosition);
    if (record.numRateMatchPatternAddMod != 0)
    {
        members.add("rateMatchPatternToAddModList",
                    list(record.numRateMatchPatternAddMod, record.rateMatchPatternToAddMod,
                         [&](const auto& entry) { return meant(entry); }));
    }
    if (record.numRateMatchPatternRelease != 0)
    {
        members.add("rateMatchPatternToReleaseList",
                    numbers(record.numRateMatchPatternRelease, record.rateMatchPatternId));
    }
    members.addIf(mask & RRC_SUB_CARRIER_SPACING, "ssbSubcarrierSpacing", record.subCarrierSpacing);
    if (mask & RRC_TDD_UL_DL_CFG_COMMON)
    {
        members.add("tdd-UL-DL-ConfigurationCommon", meant(record.tddUlDlCfgComm));
    }
    // The octet of a signed number.
    members.add("ss-PBCH-BlockPower", static_cast<INT8>(record.ssPbchBlockPower));
    return members.json();
}

// Another period makes a choice that the encoder refuses.
std::string meant(const RrcSSBMTC_t& record)
{
    constexpr std::string_view alternatives[] = {"sf5", "sf10", "sf20", "sf40", "sf80", "sf160"};
    Members members;
    if (record.period != 0 && record.period <= std::size(alternatives))
    {
        members.add("periodicityAndOffset", choice(alternatives[record.period - 1], record.offset));
    }
    members.add("duration", record.duration);
    return members.json();
}

} // namespace records
