// Resource blocks and symbols: bandwidth parts, CORESETs, search spaces, PDSCH and PUSCH allocations, rate matching.
#include "searchSpaces.h"
#include "teller.h"

namespace rules::explain
{
namespace
{

void appendIndicator(rtx::Line& line, const char* what, OSUINT32 value, NrSpan span, OSUINT32 n)
{
    const bool isShort = span.size - 1 <= n / 2;
    rtx::append(line, "%s %u = ", what, value);
    isShort ? rtx::append(line, "%u * (L - 1) + S", n) : rtx::append(line, "%u * (%u - L + 1) + (%u - 1 - S)", n, n, n);
    rtx::append(line, " with S = %u, L = %u, as L - 1 %s %u", span.start, span.size, isShort ? "<=" : ">", n / 2);
}

void locationAndBandwidth(Teller& t, const BWP& bwp)
{
    NrSpan span{};
    if (nrRivDecode(t.natural(), NR_LARGEST_CARRIER, &span) == 0)
    {
        rtx::append(t.text(), "no resource blocks: the value of no S and L");
        return;
    }
    appendSpan(t.text(), "PRB", span);
    rtx::append(t.text(), " from the carrier's first");
    if (const OSUINT32 khz = khzOf(muOf(bwp.subcarrierSpacing)); khz != 0)
    {
        rtx::append(t.text(), ", ");
        appendDecimal(t.text(), int64_t{span.size} * 12 * khz, 3);
        rtx::append(t.text(), " MHz");
    }
    appendIndicator(t.formula(), "RIV", t.natural(), span, NR_LARGEST_CARRIER);
    if (t.scope.bwp == nullptr)
    {
        return;
    }
    if (const auto carrier = t.model.carrier(*t.scope.bwp); t.has(carrier, "the carrier") && *carrier != nullptr)
    {
        rtx::append(t.text(), ", ");
        appendSpan(t.text(), "common resource block", {(*carrier)->offsetToCarrier + span.start, span.size});
        rtx::append(t.formula(), "; offsetToCarrier %u", OSUINT32{(*carrier)->offsetToCarrier});
    }
}

void startSymbolAndLength(Teller& t)
{
    NrSpan span{};
    if (nrSlivDecode(t.natural(), &span) == 0)
    {
        rtx::append(t.text(), "no symbols: the value of no S and L of a slot");
        return;
    }
    appendSpan(t.text(), "symbol", span);
    appendIndicator(t.formula(), "SLIV", t.natural(), span, NR_SYMBOLS);
}

void k0(Teller& t)
{
    rtx::append(t.text(), "PDSCH %u slot%s behind its PDCCH's", t.natural(), rtx::plural(t.number()));
}

void k2(Teller& t)
{
    rtx::append(t.text(), "PUSCH %u slot%s behind its PDCCH's", t.natural(), rtx::plural(t.number()));
}

// A DCI's frequency domain resource assignment, in the least significant bits.
void grantBlocks(Teller& t, const ConfiguredGrantConfig_rrc_ConfiguredUplinkGrant& typeOne)
{
    const ConfiguredGrantConfig* const grant = t.scope.bwp == nullptr ? nullptr : t.scope.bwp->grant;
    const Known<NrSpan> rbs =
        t.scope.bwp == nullptr ? Known<NrSpan>::unless(RRC_RULE_INPUT_PREVIOUS) : commonRbs(t.model, *t.scope.bwp);
    if (!t.has(rbs, "the bandwidth part's resource blocks") || grant == nullptr)
    {
        return;
    }
    const OSUINT32 value = bitsAsNumber(typeOne.frequencyDomainAllocation);
    const bool isTypeOne =
        grant->resourceAllocation == ConfiguredGrantConfig_resourceAllocation_resourceAllocationType1;
    NrSpan span{};
    if (isTypeOne && grant->m.frequencyHoppingPresent == 0 && nrRivDecode(value, rbs->size, &span) != 0)
    {
        appendSpan(t.text(), "PRB", span);
        rtx::append(t.text(), " of the bandwidth part");
        appendIndicator(t.formula(), "RIV", value, span, rbs->size);
    }
    if (grant->resourceAllocation == ConfiguredGrantConfig_resourceAllocation_resourceAllocationType0)
    {
        const OSUINT32 size = nrRbgSize(rbs->size, grant->m.rbg_SizePresent != 0 ? 1 : 0);
        const OSUINT32 groups = std::min(nrRbgs(rbs->start, rbs->size, size), t.bits());
        OSUINT32 numbers[32];
        OSUINT32 count = 0;
        for (OSUINT32 i = 0; i < groups && count < std::size(numbers); ++i)
        {
            if ((value >> (groups - 1 - i) & 1) != 0)
            {
                numbers[count++] = i;
            }
        }
        rtx::append(t.text(), "resource block groups ");
        count == 0 ? rtx::append(t.text(), "none") : appendRuns(t.text(), {numbers, count});
        rtx::append(t.text(), " of %u, %u PRBs each", groups, size);
        rtx::append(t.formula(), "the last %u bits, the first of them is group 0", groups);
    }
}

void grantRow(Teller& t)
{
    rtx::append(t.text(), "row %u of the PUSCH time-domain allocations", t.natural() + 1);
    rtx::append(t.formula(), "row m + 1");
}

constexpr OSUINT32 groupRbs = 6; // of a bit of frequencyDomainResources
constexpr OSUINT32 groupBits = 45;

void frequencyDomainResources(Teller& t)
{
    const Known<NrSpan> bwp =
        t.scope.bwp == nullptr ? Known<NrSpan>::unless(RRC_RULE_INPUT_PREVIOUS) : commonRbs(t.model, *t.scope.bwp);
    OSUINT32 rbs[groupBits * groupRbs];
    OSUINT32 count = 0;
    for (OSUINT32 group = 0; group < groupBits; ++group)
    {
        const OSUINT32 first = bwp ? nrCoresetGroupStart(bwp->start, group) : 0;
        for (OSUINT32 i = 0; t.isSet(group) && i < groupRbs; ++i)
        {
            rbs[count++] = first + i;
        }
    }
    if (count == 0)
    {
        rtx::append(t.text(), "no PRBs");
        return;
    }
    if (t.has(bwp, "the bandwidth part's first common resource block"))
    {
        rtx::append(t.text(), "PRBs ");
        appendRuns(t.text(), {rbs, count});
        rtx::append(t.text(), " (%u) of the bandwidth part", count);
        rtx::append(t.formula(),
                    "6 PRBs a bit; the first bit's begin at the first multiple of 6 of the common resource blocks from "
                    "%u on, where the bandwidth part begins",
                    bwp->start);
        return;
    }
    rtx::append(t.text(), "groups ");
    appendBits(t, groupBits);
    rtx::append(t.text(), " of 6 PRBs (%u)", count);
    rtx::append(t.formula(), "6 PRBs a bit, from a multiple of 6 of the common resource blocks on");
}

void controlResourceSetZero(Teller& t)
{
    if (t.scope.cell == nullptr)
    {
        return;
    }
    const Known<NrCoreset0> coreset = coreset0Of(t.model, *t.scope.cell);
    if (coreset)
    {
        rtx::append(t.text(), "%u PRBs, %u symbol%s, multiplexing pattern %u, %d PRBs below the SS/PBCH block's first",
                    coreset->rbs, coreset->symbols, rtx::plural(coreset->symbols), coreset->pattern, coreset->offset);
        rtx::append(t.formula(), "row %u of the table of the two spacings and the least channel bandwidth",
                    t.natural());
    }
    else if (coreset.inputs() != 0)
    {
        t.needs("the SS/PBCH block's spacing, the bandwidth part's and the band", coreset.inputs());
    }
}

void coresetDuration(Teller& t)
{
    rtx::append(t.text(), "%u symbol%s", t.natural(), rtx::plural(t.number()));
}

void shiftIndex(Teller& t)
{
    rtx::append(t.text(), "n_shift %u", t.natural());
}

void symbolBits(Teller& t, const char* one, const char* several)
{
    OSUINT32 set = 0;
    for (OSUINT32 i = 0; i < t.bits(); ++i)
    {
        set += t.isSet(i) ? 1 : 0;
    }
    rtx::append(t.text(), "%s ", set == 1 ? one : several);
    set == 0 ? rtx::append(t.text(), "none") : appendBits(t, t.bits());
    rtx::append(t.formula(), "the first bit is number 0");
}

void monitoringSymbols(Teller& t)
{
    symbolBits(t, "the CORESET begins at symbol", "the CORESET begins at symbols");
}

void monitoringDuration(Teller& t)
{
    rtx::append(t.text(), "monitored in %u slots of each period", t.natural());
    appendSlotsInMs(t, t.natural());
}

void patternBlocks(Teller& t)
{
    symbolBits(t, "PRB", "PRBs");
}

void patternSymbols(Teller& t)
{
    symbolBits(t, "symbol", "symbols");
}

void patternPeriod(Teller& t)
{
    rtx::append(t.text(), "of %u units: ", t.bits());
    symbolBits(t, "number", "numbers");
    rtx::append(t.formula(), "; a unit is one slot, or two with twoSlots");
}

void rbgSize(Teller& t, bool isConfig2)
{
    const Known<NrSpan> rbs =
        t.scope.bwp == nullptr ? Known<NrSpan>::unless(RRC_RULE_INPUT_PREVIOUS) : t.scope.bwp->rbs();
    if (t.has(rbs, "the bandwidth part's size"))
    {
        rtx::append(t.text(), "resource block groups of %u PRBs", nrRbgSize(rbs->size, isConfig2 ? 1 : 0));
        rtx::append(t.formula(), "of a bandwidth part of %u PRBs", rbs->size);
    }
}

void rbgSizeOf(Teller& t)
{
    rbgSize(t, std::strcmp(t.type.names[t.natural()], "config2") == 0);
}

constexpr const char* startLengthDl = "TS 38.214 5.1.2.1";
constexpr const char* startLengthUl = "TS 38.214 6.1.2.1";

constexpr Meaning allocationRows[] = {
    MEANING_OF(BWP, locationAndBandwidth, "TS 38.213 12, TS 38.214 5.1.2.2.2", locationAndBandwidth),
    MEANING_AT(PDSCH_TimeDomainResourceAllocation, startSymbolAndLength, startLengthDl, startSymbolAndLength),
    MEANING_AT(PUSCH_TimeDomainResourceAllocation, startSymbolAndLength, startLengthUl, startSymbolAndLength),
    MEANING_AT(PDSCH_TimeDomainResourceAllocation, k0, startLengthDl, k0),
    MEANING_AT(PUSCH_TimeDomainResourceAllocation, k2, startLengthUl, k2),
    MEANING_AT(ControlResourceSet, frequencyDomainResources, "TS 38.213 10.1", frequencyDomainResources),
    MEANING_AT(ControlResourceSet, duration, "TS 38.211 7.3.2.2", coresetDuration),
    MEANING_AT(ControlResourceSet_cce_REG_MappingType_interleaved, shiftIndex, "TS 38.211 7.3.2.2", shiftIndex),
    MEANING_AT(PDCCH_ConfigCommon, controlResourceSetZero, "TS 38.213 13", controlResourceSetZero),
    MEANING_AT(SearchSpace, monitoringSymbolsWithinSlot, "TS 38.213 10.1", monitoringSymbols),
    MEANING_AT(SearchSpace, duration, "TS 38.213 10.1", monitoringDuration),
    MEANING_AT(RateMatchPattern_patternType_bitmaps, resourceBlocks, "TS 38.214 5.1.4.1", patternBlocks),
    MEANING_EACH(RateMatchPattern_patternType_bitmaps_symbolsInResourceBlock, "TS 38.214 5.1.4.1", patternSymbols),
    MEANING_EACH(RateMatchPattern_patternType_bitmaps_periodicityAndPattern, "TS 38.214 5.1.4.1", patternPeriod),
    MEANING_OF(ConfiguredGrantConfig_rrc_ConfiguredUplinkGrant, frequencyDomainAllocation, "TS 38.214 6.1.2.3, 6.1.2.2",
               grantBlocks),
    MEANING_AT(ConfiguredGrantConfig_rrc_ConfiguredUplinkGrant, timeDomainAllocation, "TS 38.214 6.1.2.3", grantRow),
    MEANING_AT(PDSCH_Config, rbg_Size, "TS 38.214 5.1.2.2.1", rbgSizeOf),
    MEANING_AT(PUSCH_Config, rbg_Size, "TS 38.214 6.1.2.2.1", rbgSizeOf),
    MEANING_AT(ConfiguredGrantConfig, rbg_Size, "TS 38.214 6.1.2.2.1", rbgSizeOf),
};

} // namespace

const Meanings allocationMeanings = meaningsOf(allocationRows);

} // namespace rules::explain
