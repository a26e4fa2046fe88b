// Periods and offsets.
#include "teller.h"

namespace rules::explain
{
namespace
{

// A choice whose alternatives are named by their period and hold the offset, or nothing: sl10, slots4, sf20, ms320.
struct Recurring
{
    OSUINT32 period;
    OSUINT32 offset;
    bool hasOffset;
};

Recurring recurring(const Teller& t)
{
    const bool hasOffset = t.type.kind == rtx::Kind::Integer;
    return {namedNumber(t.name).number, hasOffset ? t.natural() : 0, hasOffset};
}

void slots(Teller& t)
{
    const Recurring r = recurring(t);
    rtx::append(t.text(), r.period == 1 ? "every slot" : "every %u slots", r.period);
    appendSlotsInMs(t, r.period);
    if (r.hasOffset)
    {
        rtx::append(t.text(), ", from slot %u on", r.offset);
        if (const Known<OSUINT32> mu = t.scope.mu())
        {
            rtx::append(t.text(), " (");
            appendDecimal(t.text(), (int64_t{r.offset} * 10000) >> *mu, 4);
            rtx::append(t.text(), " ms)");
        }
    }
}

void schedulingRequest(Teller& t)
{
    if (std::strcmp(t.name, "sym2") == 0)
    {
        rtx::append(t.text(), "every 2 symbols");
        return;
    }
    if (std::strcmp(t.name, "sym6or7") == 0)
    {
        rtx::append(t.text(), "every %u symbols", t.scope.symbols() / 2);
        rtx::append(t.formula(), "half a slot: 7 symbols with normal cyclic prefix, 6 with extended");
        return;
    }
    slots(t);
}

void subframes(Teller& t)
{
    const Recurring r = recurring(t);
    rtx::append(t.text(), "every %u ms, from subframe %u on", r.period, r.offset);
    rtx::append(t.formula(), "a subframe takes 1 ms");
}

void longCycle(Teller& t)
{
    const Recurring r = recurring(t);
    rtx::append(t.text(), "a cycle of %u ms, from subframe %u on", r.period, r.offset);
    rtx::append(t.formula(), "(10 * SFN + subframe) modulo %u = %u", r.period, r.offset);
}

void semiPersistentReport(Teller& t)
{
    const OSUINT32 period = namedNumber(t.type.names[t.natural()]).number;
    rtx::append(t.text(), "every %u slots", period);
    appendSlotsInMs(t, period);
}

void timeDomainOffset(Teller& t)
{
    rtx::append(t.text(), "slot %u from SFN 0 on", t.natural());
    appendSlotsInMs(t, t.natural());
}

// sym2, sym7, sym5x14: symbols, or slots of so many.
struct GrantPeriod
{
    OSUINT32 count;
    OSUINT32 slot; // symbols of one; 0: `count` is of symbols
};

GrantPeriod grantPeriodOf(const char* name)
{
    OSUINT32 numbers[2] = {0, 0};
    OSUINT32 i = 0;
    for (name += sizeof "sym" - 1; *name != '\0' && i < std::size(numbers); ++name)
    {
        if (*name == 'x')
        {
            ++i;
            continue;
        }
        numbers[i] = numbers[i] * 10 + static_cast<OSUINT32>(*name - '0');
    }
    return {numbers[0], numbers[1]};
}

void grantPeriod(Teller& t)
{
    const GrantPeriod period = grantPeriodOf(t.type.names[t.natural()]);
    if (period.slot == 0)
    {
        rtx::append(t.text(), "every %u symbols", period.count);
        return;
    }
    rtx::append(t.text(), "every %u slot%s of %u symbols", period.count, rtx::plural(period.count), period.slot);
    appendSlotsInMs(t, period.count);
}

void grantTimer(Teller& t, const ConfiguredGrantConfig& grant)
{
    rtx::append(t.text(), "%u period%s", t.natural(), rtx::plural(t.number()));
    const RtxType& type = nr_rrc::type_ConfiguredGrantConfig_periodicity;
    if (rtx::outside(type, grant.periodicity).status != RTX_OK)
    {
        return;
    }
    const GrantPeriod period = grantPeriodOf(type.names[grant.periodicity]);
    const OSUINT32 all = period.count * t.natural();
    rtx::append(t.text(), ", %u %ss", all, period.slot == 0 ? "symbol" : "slot");
    if (period.slot != 0)
    {
        appendSlotsInMs(t, all);
    }
}

void mbsfnFrames(Teller& t, const EUTRA_MBSFN_SubframeConfig& config)
{
    const RtxType& type = nr_rrc::type_EUTRA_MBSFN_SubframeConfig_radioframeAllocationPeriod;
    if (rtx::outside(type, config.radioframeAllocationPeriod).status == RTX_OK)
    {
        const OSUINT32 period = namedNumber(type.names[config.radioframeAllocationPeriod]).number;
        rtx::append(t.text(), "every %u radio frame%s, from frame %u on", period, rtx::plural(period),
                    OSUINT32{config.radioframeAllocationOffset});
        rtx::append(t.formula(), "SFN modulo %u = %u", period, OSUINT32{config.radioframeAllocationOffset});
    }
}

// Six bits a frame.
void mbsfnSubframes(Teller& t)
{
    static constexpr struct
    {
        const char* duplex;
        OSUINT32 subframes[6];
    } kinds[] = {{"FDD", {1, 2, 3, 6, 7, 8}}, {"TDD", {3, 4, 7, 8, 9, 9}}};
    constexpr OSUINT32 perFrame = 6;
    for (const auto& kind : kinds)
    {
        // TDD leaves the last bit unused.
        const OSUINT32 used = &kind == kinds ? perFrame : perFrame - 1;
        rtx::append(t.text(), "%s%s: ", &kind == kinds ? "" : "; ", kind.duplex);
        for (OSUINT32 frame = 0; frame < t.bits() / perFrame; ++frame)
        {
            OSUINT32 numbers[perFrame];
            OSUINT32 count = 0;
            for (OSUINT32 i = 0; i < used; ++i)
            {
                if (t.isSet(frame * perFrame + i))
                {
                    numbers[count++] = kind.subframes[i];
                }
            }
            rtx::append(t.text(), frame == 0 ? "subframes " : " | ");
            count == 0 ? rtx::append(t.text(), "none") : appendRuns(t.text(), {numbers, count});
        }
    }
}

constexpr const char* mbsfn = "TS 36.331 MBSFN-SubframeConfig";

constexpr Meaning periodRows[] = {
    MEANING_OF(EUTRA_MBSFN_SubframeConfig, radioframeAllocationPeriod, mbsfn, mbsfnFrames),
    MEANING_EACH(EUTRA_MBSFN_SubframeConfig_subframeAllocation1, mbsfn, mbsfnSubframes),
    MEANING_EACH(SearchSpace_monitoringSlotPeriodicityAndOffset, "TS 38.213 10.1", slots),
    MEANING_EACH(SchedulingRequestResourceConfig_periodicityAndOffset, "TS 38.213 9.2.4", schedulingRequest),
    MEANING_EACH(SRS_PeriodicityAndOffset, "TS 38.211 6.4.1.4.4", slots),
    MEANING_EACH(CSI_ResourcePeriodicityAndOffset, "TS 38.211 7.4.1.5.3", slots),
    MEANING_EACH(CSI_ReportPeriodicityAndOffset, "TS 38.214 5.2.1.4", slots),
    MEANING_AT(CSI_ReportConfig_reportConfigType_semiPersistentOnPUSCH, reportSlotConfig, "TS 38.214 5.2.1.4",
               semiPersistentReport),
    MEANING_EACH(SSB_MTC_periodicityAndOffset, "TS 38.331 5.5.2.10", subframes),
    MEANING_EACH(DRX_Config_drx_LongCycleStartOffset, "TS 38.321 5.7", longCycle),
    MEANING_AT(ConfiguredGrantConfig, periodicity, "TS 38.321 5.8.2", grantPeriod),
    MEANING_OF(ConfiguredGrantConfig, configuredGrantTimer, "TS 38.331 ConfiguredGrantConfig", grantTimer),
    MEANING_AT(ConfiguredGrantConfig_rrc_ConfiguredUplinkGrant, timeDomainOffset, "TS 38.321 5.8.2", timeDomainOffset),
};

} // namespace

const Meanings periodMeanings = meaningsOf(periodRows);

} // namespace rules::explain
