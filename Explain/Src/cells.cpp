// Cells: frequencies and bands, carriers, SS/PBCH blocks, the directions of slots.
#include "teller.h"

namespace rules::explain
{
namespace
{

void physCellId(Teller& t)
{
    rtx::append(t.text(), "group %u, sequence %u", t.natural() / 3, t.natural() % 3);
    rtx::append(t.formula(), "3 * N_ID(1) + N_ID(2), N_ID(1) of the SSS, N_ID(2) of the PSS");
}

const char* duplexName(NrDuplex duplex)
{
    static constexpr const char* names[] = {"FDD", "TDD", "SDL", "SUL"};
    return names[duplex - NR_FDD];
}

void appendEdges(rtx::Line& line, uint32_t low, uint32_t high)
{
    appendDecimal(line, low, 3);
    rtx::append(line, "..");
    appendDecimal(line, high, 3);
    rtx::append(line, " MHz");
}

void band(Teller& t)
{
    const NrBand* const found = nrBand(t.natural());
    if (found == nullptr)
    {
        rtx::append(t.text(), "n%u, which Release 15 does not have", t.natural());
        return;
    }
    rtx::append(t.text(), "n%u, %s, ", found->number, duplexName(found->duplex));
    if (found->dlLowKhz != 0)
    {
        appendEdges(t.text(), found->dlLowKhz, found->dlHighKhz);
    }
    if (found->ulLowKhz != 0 && found->duplex != NR_TDD)
    {
        rtx::append(t.text(), "%suplink ", found->dlLowKhz != 0 ? ", " : "");
        appendEdges(t.text(), found->ulLowKhz, found->ulHighKhz);
    }
}

void frequency(Teller& t)
{
    const uint32_t khz = nrArfcnKhz(t.natural());
    appendDecimal(t.text(), khz, 3);
    rtx::append(t.text(), " MHz");
    const bool isUplink = t.scope.direction != Direction::Downlink;
    const char* before = isUplink ? ", in the uplink of " : ", in the downlink of ";
    for (uint32_t i = 0; const NrBand* const one = nrBandAt(i); ++i)
    {
        const uint32_t low = isUplink ? one->ulLowKhz : one->dlLowKhz;
        const uint32_t high = isUplink ? one->ulHighKhz : one->dlHighKhz;
        if (low != 0 && khz >= low && khz <= high)
        {
            rtx::append(t.text(), "%sn%u", before, one->number);
            before = ", ";
        }
    }
    if (t.natural() < 600000)
    {
        rtx::append(t.formula(), "0.005 MHz * %u", t.natural());
    }
    else if (t.natural() < 2016667)
    {
        rtx::append(t.formula(), "3000 MHz + 0.015 MHz * (%u - 600000)", t.natural());
    }
    else
    {
        rtx::append(t.formula(), "24250.08 MHz + 0.06 MHz * (%u - 2016667)", t.natural());
    }
}

// Resource blocks as MHz.
void appendWidth(Teller& t, OSUINT32 rbs, OSUINT32 khz)
{
    appendDecimal(t.text(), int64_t{rbs} * 12 * khz, 3);
    rtx::append(t.text(), " MHz");
    rtx::append(t.formula(), "%u * 12 subcarriers * %u kHz", rbs, khz);
}

void carrierBandwidth(Teller& t, const SCS_SpecificCarrier& carrier)
{
    const OSUINT32 mu = muOf(carrier.subcarrierSpacing);
    if (mu > highestMu)
    {
        return;
    }
    rtx::append(t.text(), "%u PRBs, ", t.natural());
    appendWidth(t, t.natural(), khzOf(mu));
    const Known<RrcRuleRange> range =
        t.scope.cell == nullptr ? Known<RrcRuleRange>::unless(RRC_RULE_INPUT_PREVIOUS) : t.scope.cell->range;
    if (t.has(range, "the frequency range"))
    {
        const uint32_t mhz = nrChannelMhz(*range == RRC_RULE_RANGE_FR2 ? 1 : 0, mu, t.natural());
        mhz != 0 ? rtx::append(t.text(), ": a channel of %u MHz", mhz)
                 : rtx::append(t.text(), ": not all of a channel");
    }
}

void offsetToCarrier(Teller& t, const SCS_SpecificCarrier& carrier)
{
    if (const OSUINT32 khz = khzOf(muOf(carrier.subcarrierSpacing)); khz != 0)
    {
        rtx::append(t.text(), "the carrier begins at common resource block %u, ", t.natural());
        appendWidth(t, t.natural(), khz);
        rtx::append(t.text(), " above point A");
    }
}

void ssbPositionBits(Teller& t)
{
    OSUINT32 sent = 0;
    for (OSUINT32 i = 0; i < t.bits(); ++i)
    {
        sent += t.isSet(i) ? 1 : 0;
    }
    rtx::append(t.text(), "SS/PBCH blocks ");
    sent == 0 ? rtx::append(t.text(), "none") : appendBits(t, t.bits());
    rtx::append(t.text(), " (%u of %u)", sent, t.bits());
    rtx::append(t.formula(), "the first bit is the block of index 0");
}

void timingAdvanceOffset(Teller& t)
{
    const OSUINT32 offset = namedNumber(t.type.names[t.natural()]).number;
    rtx::append(t.text(), "%u Tc, ", offset);
    appendDecimal(t.text(), int64_t{offset} * 1000000 / 196608, 4);
    rtx::append(t.text(), " us");
    rtx::append(t.formula(), "Tc = 1 / (480 kHz * 4096)");
}

char letterOf(NrSymbolKind kind)
{
    return kind == NR_SYMBOL_DOWNLINK ? 'D' : kind == NR_SYMBOL_UPLINK ? 'U' : 'F';
}

// A letter for each of a slot's symbols.
struct Symbols
{
    char letters[NR_SYMBOLS + 1];

    bool isMixed() const
    {
        return letters[0] != letters[NR_SYMBOLS - 1]; // a slot's uplink follows its downlink
    }
};

// Slots of a pattern as "DDDDDDDSUU", S where a slot has several directions, and then the symbols of these.
void pattern(Teller& t, const TDD_UL_DL_Pattern& of)
{
    if (t.scope.cell == nullptr)
    {
        return;
    }
    const auto config = tddPattern(t.model, *t.scope.cell);
    if (!t.has(config, "referenceSubcarrierSpacing") || *config == nullptr)
    {
        return;
    }
    const OSUINT32 mu = muOf((*config)->referenceSubcarrierSpacing);
    const NrTddPattern slots = patternOf(of);
    const OSUINT32 count = nrTddSlots(slots.period, mu);
    appendDecimal(t.text(), int64_t{slots.period} * 125, 3);
    rtx::append(t.text(), " ms");
    if (mu > 3 || nrTddFits(&slots, mu) == 0)
    {
        rtx::append(t.text(), ", which the slots and symbols do not fit into");
        return;
    }
    rtx::append(t.text(), ", %u slot%s of %u kHz: ", count, rtx::plural(count), khzOf(mu));
    const auto symbolsOf = [&](OSUINT32 slot)
    {
        Symbols symbols{};
        for (OSUINT32 i = 0; i < NR_SYMBOLS; ++i)
        {
            symbols.letters[i] = letterOf(nrTddSymbol(&slots, nullptr, mu, mu, slot, i));
        }
        return symbols;
    };
    for (OSUINT32 slot = 0; slot < count; ++slot)
    {
        const Symbols symbols = symbolsOf(slot);
        rtx::append(t.text(), "%c", symbols.isMixed() ? 'S' : symbols.letters[0]);
    }
    for (OSUINT32 slot = 0; slot < count; ++slot)
    {
        if (const Symbols symbols = symbolsOf(slot); symbols.isMixed())
        {
            rtx::append(t.text(), ", slot %u %s", slot, symbols.letters);
        }
    }
    rtx::append(t.formula(),
                "%u slots and %u symbols of downlink from its start, %u slots and %u symbols of uplink up "
                "to its end",
                slots.dlSlots, slots.dlSymbols, slots.ulSlots, slots.ulSymbols);
}

void periodicity(Teller& t, const TDD_UL_DL_Pattern& of)
{
    if (ADDITION(of, 2, dl_UL_TransmissionPeriodicity_v1530) != nullptr)
    {
        rtx::append(t.text(), "not used: dl-UL-TransmissionPeriodicity-v1530 takes its place");
        return;
    }
    pattern(t, of);
}

// A slot of its own.
void slotIndex(Teller& t, const TDD_UL_DL_SlotConfig& slot)
{
    Symbols symbols{};
    OSUINT32 downlink = 0;
    OSUINT32 uplink = 0;
    const auto* const choice = &slot.symbols;
    if (choice->t == T_TDD_UL_DL_SlotConfig_symbols_allDownlink)
    {
        downlink = NR_SYMBOLS;
    }
    else if (choice->t == T_TDD_UL_DL_SlotConfig_symbols_allUplink)
    {
        uplink = NR_SYMBOLS;
    }
    else if (const auto* const own = CHOSEN(t.tree, choice, TDD_UL_DL_SlotConfig_symbols, explicit_))
    {
        downlink = own->m.nrofDownlinkSymbolsPresent != 0 ? own->nrofDownlinkSymbols : 0;
        uplink = own->m.nrofUplinkSymbolsPresent != 0 ? own->nrofUplinkSymbols : 0;
    }
    else
    {
        return;
    }
    if (downlink + uplink > NR_SYMBOLS)
    {
        return;
    }
    for (OSUINT32 i = 0; i < NR_SYMBOLS; ++i)
    {
        symbols.letters[i] = i < downlink ? 'D' : i >= NR_SYMBOLS - uplink ? 'U' : 'F';
    }
    rtx::append(t.text(), "slot %u: %s", t.natural(), symbols.letters);
    rtx::append(t.formula(), "counted from the start of the common patterns");
}

constexpr const char* carrierClause = "TS 38.211 4.4, TS 38.101-1 and 38.101-2 5.3.2";

constexpr Meaning cellRows[] = {
    MEANING_AT(ServingCellConfigCommon, physCellId, "TS 38.211 7.4.2.1", physCellId),
    MEANING_EACH(ARFCN_ValueNR, "TS 38.104 5.4.2.1, 5.2", frequency),
    MEANING_EACH(FreqBandIndicatorNR, "TS 38.104 5.2", band),
    MEANING_OF(SCS_SpecificCarrier, carrierBandwidth, carrierClause, carrierBandwidth),
    MEANING_OF(SCS_SpecificCarrier, offsetToCarrier, carrierClause, offsetToCarrier),
    MEANING_EACH(ServingCellConfigCommon_ssb_PositionsInBurst, "TS 38.213 4.1", ssbPositionBits),
    MEANING_AT(ServingCellConfigCommon, n_TimingAdvanceOffset, "TS 38.133 7.1.2, TS 38.211 4.1", timingAdvanceOffset),
    MEANING_OF(TDD_UL_DL_Pattern, dl_UL_TransmissionPeriodicity, "TS 38.213 11.1", periodicity),
    MEANING_OF(TDD_UL_DL_Pattern, dl_UL_TransmissionPeriodicity_v1530, "TS 38.213 11.1", pattern),
    MEANING_OF(TDD_UL_DL_SlotConfig, slotIndex, "TS 38.213 11.1", slotIndex),
};

} // namespace

const Meanings cellMeanings = meaningsOf(cellRows);

} // namespace rules::explain
