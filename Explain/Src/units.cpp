// Timers, powers, rates, identities: a number and its unit.
#include "teller.h"

#include <string_view>

namespace rules::explain
{
namespace
{

void rnti(Teller& t)
{
    rtx::append(t.text(), "0x%04X", t.natural());
}

void dBm(Teller& t)
{
    rtx::append(t.text(), "%" PRId64 " dBm", t.number());
}

void dB(Teller& t)
{
    rtx::append(t.text(), "%" PRId64 " dB", t.number());
}

void twodB(Teller& t)
{
    rtx::append(t.text(), "%" PRId64 " dB", 2 * t.number());
    rtx::append(t.formula(), "2 dB a step");
}

void rsrp(Teller& t)
{
    constexpr int64_t infinity = 127;
    if (t.number() == infinity)
    {
        rtx::append(t.text(), "infinity");
        return;
    }
    rtx::append(t.text(), "%" PRId64 " dBm", t.number() - 156);
    rtx::append(t.formula(), "%" PRId64 " - 156", t.number());
}

void alpha(Teller& t)
{
    // 0, 0.4 ... 0.9, 1
    const int64_t tenths = t.number() == 0 ? 0 : t.number() + 3;
    appendDecimal(t.text(), tenths, 1);
}

void codeRate(Teller& t)
{
    appendDecimal(t.text(), pucchRate(t.natural()), 2);
}

void thirtySeconds(Teller& t)
{
    appendDecimal(t.text(), t.number() * 100000 / 32, 5);
    rtx::append(t.text(), " ms");
    rtx::append(t.formula(), "%" PRId64 " / 32", t.number());
}

void inItsUnit(Teller& t)
{
    if (const Meaning* const unit = unitMeaningOf(t.type, t.natural()))
    {
        unit->tell(t, nullptr);
    }
}

void onDuration(Teller& t)
{
    t.type.kind == rtx::Kind::Integer ? thirtySeconds(t) : inItsUnit(t);
}

void symbolsOfTransport(Teller& t)
{
    rtx::append(t.text(), "%u symbol%s of the bandwidth part where the transport block was sent", t.natural(),
                rtx::plural(t.number()));
}

void shortCycles(Teller& t, const DRX_Config_shortDRX& drx)
{
    rtx::append(t.text(), "%u short cycle%s", t.natural(), rtx::plural(t.number()));
    const RtxType& type = nr_rrc::type_DRX_Config_shortDRX_drx_ShortCycle;
    if (rtx::outside(type, drx.drx_ShortCycle).status == RTX_OK)
    {
        if (const NamedNumber cycle = namedNumber(type.names[drx.drx_ShortCycle]); std::string_view(cycle.unit) == "ms")
        {
            rtx::append(t.text(), ", %u ms", t.natural() * cycle.number);
            rtx::append(t.formula(), "%u * %u ms", t.natural(), cycle.number);
        }
    }
}

// What an enumeration's name counts, where its unit is not of the table below.
void counted(Teller& t, const char* what, bool hasPlural)
{
    if (const NamedNumber found = namedNumber(t.type.names[t.natural()]); found.is)
    {
        appendDecimal(t.text(), found.number, found.digits);
        rtx::append(t.text(), " %s%s", what, hasPlural ? rtx::plural(found.number) : "");
    }
}

void seconds(Teller& t)
{
    counted(t, "s", false);
}

void pdus(Teller& t)
{
    counted(t, "PDU", true);
}

void bitsOf(Teller& t)
{
    counted(t, "bit", true);
}

void indications(Teller& t)
{
    counted(t, "reporting period", true);
    rtx::append(t.text(), " of beam failure detection");
}

struct Unit
{
    std::string_view prefix;
    const char* words;
};

constexpr Unit units[] = {
    {"ms", "ms"},     {"sf", "ms"}, {"sl", "slot"}, {"dB", "dB"},   {"db", "dB"},
    {"kBps", "kB/s"}, {"kB", "kB"}, {"mB", "MB"},   {"kHz", "kHz"},
};

const char* unitOf(const RtxType& type, OSUINT32 value)
{
    const NamedNumber found = namedNumber(type.names[value]);
    for (const Unit& unit : units)
    {
        if (found.is && unit.prefix == found.unit)
        {
            return unit.words;
        }
    }
    return nullptr;
}

void numberAndUnit(Teller& t)
{
    const NamedNumber found = namedNumber(t.type.names[t.natural()]);
    const int64_t number = found.number;
    appendDecimal(t.text(), found.isNegative ? -number : number, found.digits);
    const char* const unit = unitOf(t.type, t.natural());
    rtx::append(t.text(), " %s%s", unit, std::string_view(unit) == "slot" ? rtx::plural(number) : "");
}

constexpr Meaning unitMeaning = {nullptr, -1, "TS 38.331 6.3.2", tellValue<numberAndUnit>};

constexpr const char* drx = "TS 38.321 5.7, TS 38.331 DRX-Config";
constexpr const char* pucchPower = "TS 38.213 7.2.1";
constexpr const char* puschPower = "TS 38.213 7.1.1";

constexpr Meaning unitRows[] = {
    MEANING_EACH(RNTI_Value, "TS 38.331 RNTI-Value", rnti),
    MEANING_EACH(P_Max, "TS 38.331 P-Max", dBm),
    MEANING_EACH(RSRP_Range, "TS 38.133 10.1.6", rsrp),
    MEANING_EACH(Alpha, "TS 38.331 Alpha", alpha),
    MEANING_EACH(PUCCH_MaxCodeRate, "TS 38.213 table 9.2.5.2-1", codeRate),
    MEANING_EACH(DataInactivityTimer, "TS 38.331 DataInactivityTimer", seconds),
    MEANING_EACH(LogicalChannelConfig_ul_SpecificParameters_bitRateQueryProhibitTimer, "TS 38.331 LogicalChannelConfig",
                 seconds),
    MEANING_EACH(PollPDU, "TS 38.331 RLC-Config", pdus),
    MEANING_EACH(RACH_ConfigCommon_groupBconfigured_ra_Msg3SizeGroupA, "TS 38.321 5.1.2", bitsOf),
    MEANING_EACH(RadioLinkMonitoringConfig_beamFailureDetectionTimer, "TS 38.321 5.17", indications),
    MEANING_AT(ServingCellConfigCommon, ss_PBCH_BlockPower, "TS 38.213 7.4", dBm),
    MEANING_AT(RACH_ConfigGeneric, preambleReceivedTargetPower, "TS 38.213 7.4", dBm),
    MEANING_AT(PUSCH_ConfigCommon, p0_NominalWithGrant, puschPower, dBm),
    MEANING_AT(PUSCH_ConfigCommon, msg3_DeltaPreamble, puschPower, twodB),
    MEANING_AT(PUCCH_ConfigCommon, p0_nominal, pucchPower, dBm),
    MEANING_AT(PUSCH_PowerControl, p0_NominalWithoutGrant, puschPower, dBm),
    MEANING_AT(P0_PUSCH_AlphaSet, p0, puschPower, dB),
    MEANING_AT(PUCCH_PowerControl, deltaF_PUCCH_f0, pucchPower, dB),
    MEANING_AT(PUCCH_PowerControl, deltaF_PUCCH_f1, pucchPower, dB),
    MEANING_AT(PUCCH_PowerControl, deltaF_PUCCH_f2, pucchPower, dB),
    MEANING_AT(PUCCH_PowerControl, deltaF_PUCCH_f3, pucchPower, dB),
    MEANING_AT(PUCCH_PowerControl, deltaF_PUCCH_f4, pucchPower, dB),
    MEANING_AT(P0_PUCCH, p0_PUCCH_Value, pucchPower, dB),
    MEANING_AT(SRS_ResourceSet, p0, "TS 38.213 7.3.1", dBm),
    MEANING_AT(NZP_CSI_RS_Resource, powerControlOffset, "TS 38.214 5.2.2.3.1", dB),
    MEANING_EACH(DRX_Config_drx_onDurationTimer, drx, onDuration),
    MEANING_AT(DRX_Config, drx_HARQ_RTT_TimerDL, drx, symbolsOfTransport),
    MEANING_AT(DRX_Config, drx_HARQ_RTT_TimerUL, drx, symbolsOfTransport),
    MEANING_AT(DRX_Config, drx_SlotOffset, drx, thirtySeconds),
    MEANING_OF(DRX_Config_shortDRX, drx_ShortCycleTimer, drx, shortCycles),
};

} // namespace

OSUINT32 pucchRate(OSUINT32 value)
{
    static constexpr OSUINT32 hundredths[] = {8, 15, 25, 35, 45, 60, 80};
    return meaning(hundredths, value);
}

const Meaning* unitMeaningOf(const RtxType& type, OSUINT32 value)
{
    return unitOf(type, value) == nullptr ? nullptr : &unitMeaning;
}

const Meanings unitMeanings = meaningsOf(unitRows);

} // namespace rules::explain
