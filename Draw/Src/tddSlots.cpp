// The directions of a cell's symbols.
#include "gather.h"

namespace rules::draw
{
namespace
{

// The direction that a dedicated slot configuration gives to a symbol.
NrSymbolKind kindIn(const Tree& tree, const TDD_UL_DL_SlotConfig& config, OSUINT32 symbol)
{
    if (config.symbols.t == T_TDD_UL_DL_SlotConfig_symbols_allDownlink)
    {
        return NR_SYMBOL_DOWNLINK;
    }
    if (config.symbols.t == T_TDD_UL_DL_SlotConfig_symbols_allUplink)
    {
        return NR_SYMBOL_UPLINK;
    }
    const auto* const given = CHOSEN(tree, &config.symbols, TDD_UL_DL_SlotConfig_symbols, explicit_);
    if (given == nullptr)
    {
        return NR_SYMBOL_FLEXIBLE;
    }
    const OSUINT32 downlink = given->m.nrofDownlinkSymbolsPresent != 0 ? given->nrofDownlinkSymbols : 0U;
    const OSUINT32 uplink = given->m.nrofUplinkSymbolsPresent != 0 ? given->nrofUplinkSymbols : 0U;
    return symbol < downlink               ? NR_SYMBOL_DOWNLINK
           : symbol + uplink >= NR_SYMBOLS ? NR_SYMBOL_UPLINK
                                           : NR_SYMBOL_FLEXIBLE;
}

} // namespace

bool hasPattern(Gather& gather, Cell& cell, const Grid& grid)
{
    const Known<const TDD_UL_DL_ConfigCommon*> pattern = tddPattern(gather.model, cell);
    const std::string title = words("the directions of symbols at %u kHz", khzOf(grid.mu));
    if (!pattern)
    {
        const bool isPaired = cell.duplex && *cell.duplex == RRC_RULE_DUPLEX_FDD;
        if (!isPaired)
        {
            gather.cannot(gather.cellPath(), title, needWords(pattern.inputs()));
        }
        return false;
    }
    if (*pattern == nullptr)
    {
        return false;
    }
    const Known<TddGrid> tdd = tddGrid(gather.model, cell);
    if (!tdd || tdd->muRef > grid.mu || grid.isExtended)
    {
        gather.cannot(gather.cellPath(), title,
                      !tdd              ? "tdd-UL-DL-ConfigurationCommon does not fit its period"
                      : grid.isExtended ? "the patterns count slots of 14 symbols, these have 12"
                                        : "the patterns' reference spacing is above it");
        return false;
    }
    return true;
}

NrTddSlot tddSlotAt(Gather& gather, Cell& cell, const Grid& grid, OSUINT32 slot)
{
    const Known<TddGrid> tdd = tddGrid(gather.model, cell);
    NrTddSlot result = gather.model.tddSlots(cell, *tdd, grid.mu).at(slot);
    const auto* const dedicated =
        cell.dedicated == nullptr ? nullptr : MEMBER(*cell.dedicated, tdd_UL_DL_ConfigurationDedicated);
    const OSUINT32 finer = grid.mu - tdd->muRef;
    const OSUINT32 count = gridSlots(*tdd, tdd->muRef);
    if (dedicated == nullptr || count == 0)
    {
        return result;
    }
    const OSUINT32 own = (slot >> finer) % count; // in slots of the patterns' spacing
    for (const TDD_UL_DL_SlotConfig& config :
         gather.tree.list<TDD_UL_DL_SlotConfig>(MEMBER(*dedicated, slotSpecificConfigurationsToAddModList)))
    {
        if (config.slotIndex != own)
        {
            continue;
        }
        for (OSUINT32 symbol = 0; symbol < NR_SYMBOLS; ++symbol)
        {
            // What the common pattern has given a direction keeps it.
            const OSUINT32 bit = 1U << symbol;
            const OSUINT32 at = ((slot % (1U << finer)) * NR_SYMBOLS + symbol) >> finer;
            const NrSymbolKind kind = kindIn(gather.tree, config, at);
            if (((result.downlink | result.uplink) & bit) == 0 && kind != NR_SYMBOL_FLEXIBLE)
            {
                uint16_t& mask = kind == NR_SYMBOL_DOWNLINK ? result.downlink : result.uplink;
                mask = static_cast<uint16_t>(mask | bit);
            }
        }
    }
    return result;
}

} // namespace rules::draw
