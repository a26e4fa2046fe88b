#include "nrFormulas.h"

namespace
{

constexpr uint32_t perMs = 8; // units of a period

// The pattern that a slot of the reference spacing lies in, with the slot counted from its start.
const NrTddPattern& patternAt(const NrTddPattern& first, const NrTddPattern* second, uint32_t mu, uint32_t& slot)
{
    const uint32_t firstSlots = nrTddSlots(first.period, mu);
    const uint32_t all = firstSlots + (second == nullptr ? 0 : nrTddSlots(second->period, mu));
    slot = all == 0 ? 0 : slot % all;
    if (slot < firstSlots || second == nullptr)
    {
        return first;
    }
    slot -= firstSlots;
    return *second;
}

} // namespace

int nrTddPeriodAllowed(uint32_t period, uint32_t mu)
{
    switch (period)
    {
    case 4: // 0.5 ms is no whole slot at 15 kHz
        return mu >= 1 && mu <= 3 ? 1 : 0;
    case 5: // 0.625 ms
        return mu == 3 ? 1 : 0;
    case 10: // 1.25 ms
        return mu == 2 || mu == 3 ? 1 : 0;
    case 20: // 2.5 ms
        return mu >= 1 && mu <= 3 ? 1 : 0;
    case 1 * perMs:
    case 2 * perMs:
    case 3 * perMs:
    case 4 * perMs:
    case 5 * perMs:
    case 10 * perMs:
        return mu <= 3 ? 1 : 0;
    default:
        return 0;
    }
}

uint32_t nrTddSlots(uint32_t period, uint32_t mu)
{
    return mu <= 4 && (period << mu) % perMs == 0 ? (period << mu) / perMs : 0;
}

int nrTddFits(const NrTddPattern* pattern, uint32_t mu)
{
    const uint32_t slots = nrTddSlots(pattern->period, mu);
    if (slots == 0 || pattern->dlSlots > slots || pattern->ulSlots > slots - pattern->dlSlots)
    {
        return 0;
    }
    const uint32_t rest = slots - pattern->dlSlots - pattern->ulSlots;
    const bool fits = pattern->dlSymbols < NR_SYMBOLS && pattern->ulSymbols < NR_SYMBOLS &&
                      pattern->dlSymbols + pattern->ulSymbols <= rest * NR_SYMBOLS;
    return fits ? 1 : 0;
}

int nrTddFillsFrames(const NrTddPattern* first, const NrTddPattern* second)
{
    const uint32_t period = first->period + (second == nullptr ? 0 : second->period);
    return period != 0 && 20 * perMs % period == 0 ? 1 : 0;
}

NrSymbolKind nrTddSymbol(const NrTddPattern* first, const NrTddPattern* second, uint32_t muRef, uint32_t mu,
                         uint32_t slot, uint32_t symbol)
{
    const uint32_t finer = mu > muRef && mu <= 4 ? mu - muRef : 0;
    // A symbol of the finer spacing lies within one of the reference.
    const uint64_t symbols = (uint64_t{slot} * NR_SYMBOLS + symbol) >> finer;
    auto refSlot = static_cast<uint32_t>(symbols / NR_SYMBOLS);
    const auto refSymbol = static_cast<uint32_t>(symbols % NR_SYMBOLS);
    const NrTddPattern& pattern = patternAt(*first, second, muRef, refSlot);
    const uint32_t slots = nrTddSlots(pattern.period, muRef);
    if (refSlot < pattern.dlSlots || (refSlot == pattern.dlSlots && refSymbol < pattern.dlSymbols))
    {
        return NR_SYMBOL_DOWNLINK;
    }
    const uint32_t fromEnd = slots - refSlot; // 1 in the last slot
    if (fromEnd <= pattern.ulSlots || (fromEnd == pattern.ulSlots + 1 && refSymbol >= NR_SYMBOLS - pattern.ulSymbols))
    {
        return NR_SYMBOL_UPLINK;
    }
    return NR_SYMBOL_FLEXIBLE;
}

NrTddSlot nrTddSlot(const NrTddPattern* first, const NrTddPattern* second, uint32_t muRef, uint32_t mu, uint32_t slot)
{
    constexpr auto all = static_cast<uint16_t>((1U << NR_SYMBOLS) - 1);
    const auto kindOf = [&](uint32_t symbol)
    {
        return nrTddSymbol(first, second, muRef, mu, slot, symbol);
    };
    const NrSymbolKind begin = kindOf(0);
    if (begin == kindOf(NR_SYMBOLS - 1)) // a slot lies within one pattern, whose uplink follows its downlink
    {
        return {begin == NR_SYMBOL_DOWNLINK ? all : uint16_t{0}, begin == NR_SYMBOL_UPLINK ? all : uint16_t{0}};
    }
    NrTddSlot symbols{};
    for (uint32_t i = 0; i < NR_SYMBOLS; ++i)
    {
        const NrSymbolKind kind = kindOf(i);
        uint16_t none = 0;
        uint16_t& mask = kind == NR_SYMBOL_DOWNLINK ? symbols.downlink
                         : kind == NR_SYMBOL_UPLINK ? symbols.uplink
                                                    : none;
        mask = static_cast<uint16_t>(mask | 1U << i);
    }
    return symbols;
}
