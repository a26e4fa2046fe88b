// Uplink and downlink in time.
#include "examplePaths.h"
#include "rules.h"
#include "searchSpaces.h"
#include "uplink.h"

#include <numeric>

namespace rules
{
namespace
{

// The patterns that the element has of a cell; null where it has none.
const TDD_UL_DL_ConfigCommon* commonPatterns(const Cell& cell)
{
    return cell.common == nullptr ? nullptr : MEMBER(*cell.common, tdd_UL_DL_ConfigurationCommon);
}

// Each of them, with the reference spacing.
template <typename Each>
void forPatterns(Check& check, const Each& each)
{
    for (const Cell& cell : check.model.cells())
    {
        const TDD_UL_DL_ConfigCommon* const config = commonPatterns(cell);
        if (config == nullptr)
        {
            continue;
        }
        const OSUINT32 mu = muOf(config->referenceSubcarrierSpacing);
        each(config->pattern1, mu);
        if (const TDD_UL_DL_Pattern* const second = MEMBER(*config, pattern2))
        {
            each(*second, mu);
        }
    }
}

// Says something of the period, which one of two members gives.
Report atPeriod(Check& check, const TDD_UL_DL_Pattern& pattern)
{
    const auto* const later = ADDITION(pattern, 2, dl_UL_TransmissionPeriodicity_v1530);
    return later != nullptr ? check.error(later) : check.error(&pattern.dl_UL_TransmissionPeriodicity);
}

// A period is a whole number of slots, and one of those that the standard allows with the spacing.
void tddPeriodScs(Check& check)
{
    forPatterns(check,
                [&](const TDD_UL_DL_Pattern& pattern, OSUINT32 mu)
                {
                    const OSUINT32 period = patternOf(pattern).period;
                    if (mu < highestMu && period != 0 && nrTddPeriodAllowed(period, mu) == 0)
                    {
                        atPeriod(check, pattern).allowed("%u kHz as reference does not go with that period", khzOf(mu));
                    }
                });
}

// Downlink and uplink fit into the period.
void tddSlotsSum(Check& check)
{
    forPatterns(check,
                [&](const TDD_UL_DL_Pattern& element, OSUINT32 mu)
                {
                    const NrTddPattern pattern = patternOf(element);
                    const OSUINT32 slots = nrTddSlots(pattern.period, mu);
                    if (nrTddPeriodAllowed(pattern.period, mu) == 0 || nrTddFits(&pattern, mu) != 0)
                    {
                        return;
                    }
                    const OSUINT32 used = pattern.dlSlots + pattern.ulSlots;
                    if (used > slots)
                    {
                        check.error(&element.nrofUplinkSlots)
                            .found("%u downlink and %u uplink slots", pattern.dlSlots, pattern.ulSlots)
                            .allowed("the period has %u slots at %u kHz", slots, khzOf(mu));
                        return;
                    }
                    check.error(&element.nrofUplinkSymbols)
                        .found("%u downlink and %u uplink symbols", pattern.dlSymbols, pattern.ulSymbols)
                        .allowed("%u of %u slots are left for them, %u symbols", slots - used, slots,
                                 (slots - used) * NR_SYMBOLS);
                });
    for (const Cell& cell : check.model.cells())
    {
        const Known<TddGrid> grid = tddGrid(check.model, cell);
        if (!grid || cell.common == nullptr)
        {
            continue;
        }
        bool canSend = false;
        bool canReceive = false;
        for (const NrTddPattern* const pattern : {&grid->first, grid->secondOrNull()})
        {
            if (pattern != nullptr)
            {
                const OSUINT32 all = nrTddSlots(pattern->period, grid->muRef) * NR_SYMBOLS;
                canSend = canSend || pattern->dlSlots * NR_SYMBOLS + pattern->dlSymbols < all;
                canReceive = canReceive || pattern->ulSlots * NR_SYMBOLS + pattern->ulSymbols < all;
            }
        }
        if (!canSend || !canReceive)
        {
            check.warning(&cell.common->tdd_UL_DL_ConfigurationCommon.pattern1)
                .found("every symbol is %s", canSend ? "uplink" : "downlink")
                .allowed("a cell has both directions");
        }
    }
}

// Patterns repeat with every 20 ms.
void tddPeriod20ms(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        const TDD_UL_DL_ConfigCommon* const config = commonPatterns(cell);
        if (config == nullptr)
        {
            continue;
        }
        const NrTddPattern first = patternOf(config->pattern1);
        const TDD_UL_DL_Pattern* const added = MEMBER(*config, pattern2);
        const NrTddPattern second = added == nullptr ? NrTddPattern{} : patternOf(*added);
        const bool areKnown = first.period != 0 && (added == nullptr || second.period != 0);
        if (areKnown && nrTddFillsFrames(&first, added == nullptr ? nullptr : &second) == 0)
        {
            atPeriod(check, added == nullptr ? config->pattern1 : *added)
                .allowed("a period of %u.%03u ms in all does not divide 20 ms", (first.period + second.period) / 8,
                         (first.period + second.period) % 8 * 125);
        }
    }
}

// The reference spacing is one of the frequency range and not above that of any bandwidth part.
void tddRefScs(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        const TDD_UL_DL_ConfigCommon* const config = commonPatterns(cell);
        if (config == nullptr)
        {
            continue;
        }
        const OSUINT32 mu = muOf(config->referenceSubcarrierSpacing);
        const auto* const at = &config->referenceSubcarrierSpacing;
        const bool isFr2 = cell.range && *cell.range == RRC_RULE_RANGE_FR2;
        if (mu > highestMu)
        {
            continue; // gen-spare-value
        }
        if (check.decided(cell.range) && (isFr2 ? mu != 2 && mu != 3 : mu > 2))
        {
            check.error(at).allowed("in FR%u it is %s kHz", isFr2 ? 2U : 1U, isFr2 ? "60 or 120" : "15, 30 or 60");
            continue;
        }
        const Bwp* coarsest = nullptr;
        // A supplementary uplink, commonly of 15 kHz, follows no pattern.
        for (const Direction direction : {Direction::Downlink, Direction::Uplink})
        {
            for (const Bwp& bwp : cell.bwps(direction))
            {
                const Known<OSUINT32> of = bwp.mu();
                coarsest = of && *of < mu && (coarsest == nullptr || *of < *coarsest->mu()) ? &bwp : coarsest;
            }
        }
        if (coarsest != nullptr)
        {
            check.error(at).allowed("%s bandwidth part %u has %u kHz", nameOf(coarsest->direction), coarsest->id,
                                    khzOf(*coarsest->mu()));
        }
    }
}

// What tells uplink from downlink is for unpaired spectrum; the dedicated one adds to the common one.
void tddCellKind(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        const TDD_UL_DL_ConfigCommon* const common = commonPatterns(cell);
        const auto* const dedicated =
            cell.dedicated == nullptr ? nullptr : MEMBER(*cell.dedicated, tdd_UL_DL_ConfigurationDedicated);
        if (common == nullptr && dedicated == nullptr)
        {
            continue;
        }
        if (!check.decided(cell.duplex))
        {
            continue;
        }
        if (*cell.duplex == RRC_RULE_DUPLEX_FDD)
        {
            const auto isPaired = [&](const auto* at)
            {
                if (at != nullptr)
                {
                    check.error(at).allowed("the cell is not in unpaired spectrum");
                }
            };
            isPaired(common);
            isPaired(dedicated);
            continue;
        }
        const Known<const TDD_UL_DL_ConfigCommon*> pattern = tddPattern(check.model, cell);
        if (dedicated != nullptr && check.decided(pattern) && *pattern == nullptr)
        {
            check.error(dedicated).allowed("the cell has no tdd-UL-DL-ConfigurationCommon that it could add to");
        }
    }
}

// Symbols `from` to before `to` of a slot at the reference spacing: whether any is of a kind.
bool hasSymbol(const TddGrid& grid, OSUINT32 slot, OSUINT32 from, OSUINT32 to, NrSymbolKind kind)
{
    for (OSUINT32 symbol = from; symbol < to; ++symbol)
    {
        if (grid.kindOf(grid.muRef, slot, symbol) == kind)
        {
            return true;
        }
    }
    return false;
}

bool hasOnlyExtended(const Cell& cell)
{
    bool isExtended = true;
    for (const Bwp& bwp : cell.downlink)
    {
        isExtended = isExtended && bwp.isExtended();
    }
    return isExtended;
}

void tddDedicatedSlot(Check& check, const TddGrid& grid, OSUINT32 length, const TDD_UL_DL_SlotConfig& config)
{
    const OSUINT32 slot = config.slotIndex;
    const OSUINT32 slots = gridSlots(grid, grid.muRef);
    if (slot >= slots)
    {
        check.error(&config.slotIndex).allowed("the patterns have %u slots at %u kHz", slots, khzOf(grid.muRef));
        return;
    }
    OSUINT32 dl = 0;
    OSUINT32 ul = 0;
    if (config.symbols.t == T_TDD_UL_DL_SlotConfig_symbols_allDownlink)
    {
        dl = NR_SYMBOLS;
    }
    else if (config.symbols.t == T_TDD_UL_DL_SlotConfig_symbols_allUplink)
    {
        ul = NR_SYMBOLS;
    }
    else if (const auto* const given = CHOSEN(check.tree, &config.symbols, TDD_UL_DL_SlotConfig_symbols, explicit_))
    {
        dl = given->m.nrofDownlinkSymbolsPresent != 0 ? given->nrofDownlinkSymbols : 0U;
        ul = given->m.nrofUplinkSymbolsPresent != 0 ? given->nrofUplinkSymbols : 0U;
        if (dl + ul > length || dl + ul == 0)
        {
            check.error(&config.symbols)
                .found("%u downlink and %u uplink symbols", dl, ul)
                .allowed("a slot gives 1 to %u of its symbols a direction", length);
            return;
        }
    }
    if (hasSymbol(grid, slot, 0, dl, NR_SYMBOL_UPLINK))
    {
        check.error(&config.symbols).allowed("the common pattern has uplink in slot %u where this has downlink", slot);
    }
    else if (hasSymbol(grid, slot, NR_SYMBOLS - ul, NR_SYMBOLS, NR_SYMBOL_DOWNLINK))
    {
        check.error(&config.symbols).allowed("the common pattern has downlink in slot %u where this has uplink", slot);
    }
}

// A dedicated pattern gives directions to what the common one leaves flexible.
void tddDedicated(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        const auto* const dedicated =
            cell.dedicated == nullptr ? nullptr : MEMBER(*cell.dedicated, tdd_UL_DL_ConfigurationDedicated);
        if (dedicated == nullptr)
        {
            continue;
        }
        const Known<TddGrid> grid = tddGrid(check.model, cell);
        if (!check.decided(grid))
        {
            continue;
        }
        const OSUINT32 length = hasOnlyExtended(cell) ? NR_SYMBOLS_EXTENDED : NR_SYMBOLS;
        for (const auto& slot :
             check.tree.list<TDD_UL_DL_SlotConfig>(MEMBER(*dedicated, slotSpecificConfigurationsToAddModList)))
        {
            tddDedicatedSlot(check, *grid, length, slot);
        }
    }
}

// A cell's slots, with a spacing that its patterns can tell.
struct Timing
{
    TddSlots grid;
    OSUINT32 mu;

    // Whether none of the symbols, consecutive ones of a slot, is of the other direction.
    bool goes(OSUINT32 slot, NrSpan symbols, NrSymbolKind against) const
    {
        return !grid.has(slot, symbols, against);
    }

    OSUINT32 slots() const
    {
        return grid.count();
    }
};

Known<Timing> timingOf(Model& model, const Bwp& bwp)
{
    const Known<TddGrid> grid = tddGrid(model, *bwp.cell);
    const Known<OSUINT32> mu = bwp.mu();
    if (!grid || !mu)
    {
        return Known<Timing>::unless(grid.inputs() | mu.inputs());
    }
    return *mu >= grid->muRef ? Known<Timing>(Timing{model.tddSlots(*bwp.cell, *grid, *mu), *mu})
                              : Known<Timing>::unless(0);
}

// How a periodic resource fares.
template <typename T>
void periodic(Check& check, const T* at, const Timing& timing, const Recurrence& slots, NrSpan symbols,
              NrSymbolKind against)
{
    if (slots.period == 0)
    {
        return;
    }
    OSUINT32 lost = 0;
    const OSUINT32 all = std::lcm(slots.period, timing.slots()) / slots.period;
    for (OSUINT32 i = 0; i < all; ++i)
    {
        lost += timing.goes(slots.offset + i * slots.period, symbols, against) ? 0 : 1;
    }
    if (lost == 0)
    {
        return;
    }
    (lost == all ? check.warning(at) : check.notice(at))
        .found("slot %u of every %u, symbols %u..%u", slots.offset, slots.period, symbols.start,
               symbols.start + symbols.size - 1)
        .allowed("%u of %u occasions meet %s symbols", lost, all,
                 against == NR_SYMBOL_DOWNLINK ? "downlink" : "uplink");
}

void directionOfPucch(Check& check, Bwp& bwp, const Timing& timing)
{
    const Pucch& pucch = check.model.pucch(bwp);
    for (const IdEntry<SchedulingRequestResourceConfig>& entry : pucch.srResources)
    {
        const auto* const id = MEMBER(*entry.element, resource);
        const auto* const choice = MEMBER(*entry.element, periodicityAndOffset);
        const NrSpan symbols = pucchSymbolsOf(check.tree, id == nullptr ? nullptr : pucch.resources.element(*id));
        if (choice != nullptr && symbols.size != 0)
        {
            periodic(check, choice, timing, recurrenceOf(*choice), symbols, NR_SYMBOL_DOWNLINK);
        }
    }
}

void directionOfSrs(Check& check, Bwp& bwp, const Timing& timing)
{
    static constexpr OSUINT32 counts[] = {1, 2, 4};
    for (const IdEntry<SRS_Resource>& entry : check.model.srs(bwp).resources)
    {
        const SRS_Resource_resourceMapping& mapping = entry.element->resourceMapping;
        const auto* const type = CHOSEN(check.tree, &entry.element->resourceType, SRS_Resource_resourceType, periodic);
        if (type != nullptr && mapping.nrofSymbols < std::size(counts) && mapping.startPosition < NR_SYMBOLS)
        {
            const NrSpan symbols = {NR_SYMBOLS - 1U - mapping.startPosition, counts[mapping.nrofSymbols]};
            periodic(check, &type->periodicityAndOffset_p, timing, recurrenceOf(check.tree, *entry.element), symbols,
                     NR_SYMBOL_DOWNLINK);
        }
    }
}

// A row of resources in time: the slots that it leads to from any downlink slot.
bool isAlive(const Timing& timing, OSUINT32 offset, NrSpan symbols, NrSymbolKind against)
{
    constexpr NrSpan first = {0, 1};
    for (OSUINT32 slot = 0; slot < timing.slots(); ++slot)
    {
        if (timing.goes(slot, first, NR_SYMBOL_UPLINK) && timing.goes(slot + offset, symbols, against))
        {
            return true;
        }
    }
    return false;
}

void directionOfPusch(Check& check, const Timing& timing, const Bwp& bwp)
{
    static constexpr OSUINT32 defaults[] = {1, 1, 2, 3};
    const auto* const own = check.tree.setup(MEMBER(*bwp.pusch, pusch_TimeDomainAllocationList));
    for (const auto& row : check.tree.list<PUSCH_TimeDomainResourceAllocation>(own))
    {
        NrSpan symbols{};
        const OSUINT32 k2 = row.m.k2Present != 0 ? row.k2 : timing.mu < 4 ? defaults[timing.mu] : 0;
        if (nrSlivDecode(row.startSymbolAndLength, &symbols) != 0 && !isAlive(timing, k2, symbols, NR_SYMBOL_DOWNLINK))
        {
            check.warning(&row)
                .found("k2 %u, symbols %u..%u", k2, symbols.start, symbols.start + symbols.size - 1)
                .allowed("from no downlink slot that leads to uplink symbols");
        }
    }
    const Known<PuschRows> rows = puschRows(check.model, bwp);
    if (!check.model.isWhole(bwp) || !rows || !rows->isDefault)
    {
        return;
    }
    // Nobody chose the default rows: some of them lead nowhere in most patterns.
    bool isAnyAlive = false;
    OSUINT32 k2 = 0;
    NrSpan symbols{};
    for (OSUINT32 i = 0; nrPuschDefaultRow(timing.mu, bwp.isExtended() ? 1 : 0, i, &k2, &symbols) != 0; ++i)
    {
        isAnyAlive = isAnyAlive || isAlive(timing, k2, symbols, NR_SYMBOL_DOWNLINK);
    }
    if (!isAnyAlive)
    {
        check.warning(&bwp.pusch->pusch_TimeDomainAllocationList)
            .allowed("no row of the default table leads from a downlink slot to uplink symbols");
    }
}

// A configured grant of type 1 with a period of whole slots.
void directionOfGrant(Check& check, const Timing& timing, const Bwp& bwp)
{
    const auto* const grant = bwp.grant == nullptr ? nullptr : MEMBER(*bwp.grant, rrc_ConfiguredUplinkGrant);
    const OSUINT32 period = grant == nullptr ? 0 : grantPeriod(*bwp.grant);
    const bool hasTable = bwp.pusch != nullptr && bwp.pusch->m.pusch_TimeDomainAllocationListPresent != 0;
    if ((!hasTable && !check.model.isWhole(bwp)) || period == 0 || period % bwp.symbolsPerSlot() != 0)
    {
        return;
    }
    const Known<NrSpan> symbols = grantSymbols(check.model, bwp, grant->timeDomainAllocation);
    if (symbols)
    {
        periodic(check, &grant->timeDomainOffset, timing, {period / bwp.symbolsPerSlot(), grant->timeDomainOffset},
                 *symbols, NR_SYMBOL_DOWNLINK);
    }
}

void directionOfPdsch(Check& check, const Timing& timing, const PDSCH_TimeDomainResourceAllocationList* rows)
{
    for (const auto& row : check.tree.list<PDSCH_TimeDomainResourceAllocation>(rows))
    {
        NrSpan symbols{};
        const OSUINT32 k0 = row.m.k0Present != 0 ? row.k0 : 0U;
        if (nrSlivDecode(row.startSymbolAndLength, &symbols) != 0 && !isAlive(timing, k0, symbols, NR_SYMBOL_UPLINK))
        {
            check.warning(&row)
                .found("k0 %u, symbols %u..%u", k0, symbols.start, symbols.start + symbols.size - 1)
                .allowed("from no downlink slot that leads to downlink symbols");
        }
    }
}

// Of a search space the first occasion that is downlink is enough.
void directionOfSearchSpaces(Check& check, Bwp& bwp, const Timing& timing)
{
    for (const SearchSpaceEntry& entry : check.model.pdcch(bwp).allSearchSpaces)
    {
        const Known<Monitoring> when = monitoringOf(*entry.element);
        const auto* const id = MEMBER(*entry.element, controlResourceSetId);
        const OSUINT32 starts = firstSymbolsOf(*entry.element);
        const Known<Region> region = id == nullptr ? Known<Region>::unless(0) : regionOf(check.model, bwp, *id);
        if (!when || !region || starts == 0)
        {
            continue;
        }
        bool isAliveOnce = false;
        // As the patterns come back, so often does an occasion come back to a slot of theirs.
        const OSUINT32 common = std::gcd(when->period, timing.slots());
        const Monitoring among = {common, when->offset % common, when->duration};
        for (OSUINT32 slot = 0; slot < timing.slots() && !isAliveOnce; ++slot)
        {
            for (OSUINT32 symbol = 0; symbol < NR_SYMBOLS && among.isIn(slot); ++symbol)
            {
                isAliveOnce = isAliveOnce || ((starts >> symbol & 1) != 0 &&
                                              timing.goes(slot, {symbol, region->symbols}, NR_SYMBOL_UPLINK));
            }
        }
        if (!isAliveOnce)
        {
            check.warning(&entry.element->monitoringSlotPeriodicityAndOffset)
                .found("slot %u of every %u", when->offset, when->period)
                .allowed("each occasion meets uplink symbols");
        }
    }
}

// Reference signals of a cell whose bandwidth parts all count slots alike.
void directionOfCsi(Check& check, Cell& cell)
{
    if (cell.downlink.empty())
    {
        return; // the heap is exhausted
    }
    const Known<Timing> timing = timingOf(check.model, cell.downlink.back());
    for (const Bwp& bwp : cell.downlink)
    {
        const Known<OSUINT32> mu = bwp.mu();
        if (!timing || (mu && *mu != timing->mu))
        {
            return;
        }
    }
    for (const IdEntry<NZP_CSI_RS_Resource>& entry : check.model.csi(cell).nzpResources)
    {
        if (const auto* const choice = MEMBER(*entry.element, periodicityAndOffset))
        {
            periodic(check, choice, *timing, recurrenceOf(*choice),
                     {entry.element->resourceMapping.firstOFDMSymbolInTimeDomain, 1}, NR_SYMBOL_UPLINK);
        }
    }
    for (const IdEntry<CSI_IM_Resource>& entry : check.model.csi(cell).imResources)
    {
        const auto* const choice = MEMBER(*entry.element, periodicityAndOffset);
        const auto* const pattern = MEMBER(*entry.element, csi_IM_ResourceElementPattern);
        const auto* const one = CHOSEN(check.tree, pattern, CSI_IM_Resource_csi_IM_ResourceElementPattern, pattern1);
        const auto* const zero = CHOSEN(check.tree, pattern, CSI_IM_Resource_csi_IM_ResourceElementPattern, pattern0);
        if (choice != nullptr && (one != nullptr || zero != nullptr))
        {
            const NrSpan symbols =
                one != nullptr ? NrSpan{one->symbolLocation_p1, 1} : NrSpan{zero->symbolLocation_p0, 2};
            periodic(check, choice, *timing, recurrenceOf(*choice), symbols, NR_SYMBOL_UPLINK);
        }
    }
}

// Periodic reports on PUCCH of the SpCell.
void directionOfReports(Check& check, Cell& cell)
{
    const Cell* const spCell = check.model.spCell();
    if (spCell == nullptr || spCell->duplex.inputs() != 0)
    {
        return;
    }
    for (const IdEntry<CSI_ReportConfig>& entry : check.model.csi(cell).reports)
    {
        const auto* const type =
            CHOSEN(check.tree, &entry.element->reportConfigType, CSI_ReportConfig_reportConfigType, periodic);
        if (type == nullptr)
        {
            continue;
        }
        for (const auto& named : check.tree.list<PUCCH_CSI_Resource>(&type->pucch_CSI_ResourceList))
        {
            Bwp* const bwp = spCell->bwp(Direction::Uplink, named.uplinkBandwidthPartId);
            const Known<Timing> timing = bwp == nullptr ? Known<Timing>::unless(0) : timingOf(check.model, *bwp);
            const PUCCH_Resource* const resource =
                bwp == nullptr ? nullptr : check.model.pucch(*bwp).resources.element(named.pucch_Resource);
            const NrSpan symbols = pucchSymbolsOf(check.tree, resource);
            if (timing && symbols.size != 0)
            {
                periodic(check, &type->reportSlotConfig, *timing, recurrenceOf(type->reportSlotConfig), symbols,
                         NR_SYMBOL_DOWNLINK);
            }
        }
    }
}

// SS/PBCH blocks, where each half frame begins with the patterns.
void directionOfSsb(Check& check, const Cell& cell)
{
    constexpr OSUINT32 halfFrame = 40; // in the units of a period
    const Known<TddGrid> grid = tddGrid(check.model, cell);
    const Known<SsbPositions> positions = ssbPositions(check.model, cell);
    const auto* const ssb = cell.common == nullptr ? nullptr : MEMBER(*cell.common, ssbSubcarrierSpacing);
    const NrBand* const band = cell.band ? nrBand(*cell.band) : nullptr;
    if (!grid || !positions || ssb == nullptr || band == nullptr || muOf(*ssb) < grid->muRef ||
        halfFrame % (grid->first.period + (grid->hasSecond ? grid->second.period : 0)) != 0)
    {
        return;
    }
    const Timing timing = {check.model.tddSlots(cell, *grid, muOf(*ssb)), muOf(*ssb)};
    for (OSUINT32 index = 0; index < positions->count; ++index)
    {
        OSUINT32 symbol = 0;
        if (positions->isSent(index) && nrSsbFirstSymbol(timing.mu, band->hasCaseB, index, &symbol) != 0 &&
            !timing.goes(symbol / NR_SYMBOLS, {symbol % NR_SYMBOLS, NR_SSB_SYMBOLS}, NR_SYMBOL_UPLINK))
        {
            check.warning(&cell.common->ssb_PositionsInBurst)
                .found("block %u at symbol %u", index, symbol)
                .allowed("the patterns have uplink there");
            return;
        }
    }
}

// What is sent falls on symbols of its direction.
void tddDirection(Check& check)
{
    for (Cell& cell : check.model.cells())
    {
        const bool mayBeTdd = !cell.duplex || *cell.duplex == RRC_RULE_DUPLEX_TDD;
        const Known<const TDD_UL_DL_ConfigCommon*> pattern = tddPattern(check.model, cell);
        if (!mayBeTdd || !check.decided(cell.duplex) || !check.decided(pattern) || *pattern == nullptr ||
            !check.decided(tddGrid(check.model, cell)))
        {
            continue;
        }
        directionOfSsb(check, cell);
        directionOfCsi(check, cell);
        directionOfReports(check, cell);
        for (Bwp& bwp : cell.downlink)
        {
            if (const Known<Timing> timing = timingOf(check.model, bwp); check.decided(timing))
            {
                directionOfSearchSpaces(check, bwp, *timing);
                if (bwp.pdsch != nullptr)
                {
                    directionOfPdsch(check, *timing,
                                     check.tree.setup(MEMBER(*bwp.pdsch, pdsch_TimeDomainAllocationList)));
                }
            }
        }
        for (Bwp& bwp : cell.uplink)
        {
            if (const Known<Timing> timing = timingOf(check.model, bwp); check.decided(timing))
            {
                directionOfPucch(check, bwp, *timing);
                directionOfSrs(check, bwp, *timing);
                directionOfGrant(check, *timing, bwp);
                if (bwp.pusch != nullptr)
                {
                    directionOfPusch(check, *timing, bwp);
                }
            }
        }
    }
}

constexpr Rule tddTable[] = {
    {.told = {.id = "tdd-period-scs",
              .severity = RRC_RULE_ERROR,
              .statement = "The period of a pattern goes with the reference spacing: 0.5 and 2.5 ms from 30 kHz, 1.25 "
                           "ms from 60 kHz, 0.625 ms from 120 kHz on.",
              .advice = "Take a period that is a whole number of slots of the reference spacing.",
              .clause = "TS 38.213 11.1",
              .given = "",
              .bad = AT_TDD "pattern1.dl-UL-TransmissionPeriodicity = ms1p25\n" AT_TDD "pattern1.nrofDownlinkSlots = 1",
              .good = AT_TDD "pattern1.dl-UL-TransmissionPeriodicity = ms2p5",
              .since = "0.1.0"},
     .run = tddPeriodScs},
    {.told = {.id = "tdd-slots-sum",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "nrofDownlinkSlots and nrofUplinkSlots of a pattern fit into its period, nrofDownlinkSymbols and "
                  "nrofUplinkSymbols into the slots that are left, 14 together where that is one; a cell has "
                  "symbols of both directions.",
              .advice = "Take away slots or symbols, or lengthen the period.",
              .clause = "TS 38.213 11.1; TS 38.331 TDD-UL-DL-Pattern",
              .given = "",
              .bad = AT_TDD "pattern1.nrofUplinkSymbols = 5",
              .good = AT_TDD "pattern1.nrofUplinkSymbols = 4",
              .since = "0.1.0"},
     .run = tddSlotsSum},
    {.told = {.id = "tdd-period-20ms",
              .severity = RRC_RULE_ERROR,
              .statement = "The period of the pattern, or of both together, divides 20 ms.",
              .advice = "Take periods that fill 20 ms a whole number of times.",
              .clause = "TS 38.213 11.1",
              .given = "",
              .bad = AT_TDD "pattern1.dl-UL-TransmissionPeriodicity-v1530 = ms3",
              .good = AT_TDD "pattern1.dl-UL-TransmissionPeriodicity-v1530 = ms4",
              .since = "0.1.0"},
     .run = tddPeriod20ms},
    {.told = {.id = "tdd-ref-scs",
              .severity = RRC_RULE_ERROR,
              .statement = "The reference spacing is 15, 30 or 60 kHz in FR1, 60 or 120 kHz in FR2, and not above that "
                           "of any bandwidth part of the cell.",
              .advice = "Take the lowest spacing of the cell's bandwidth parts.",
              .clause = "TS 38.331 TDD-UL-DL-ConfigCommon; TS 38.213 11.1",
              .given = "",
              .bad = AT_TDD "referenceSubcarrierSpacing = kHz60",
              .good = AT_TDD "referenceSubcarrierSpacing = kHz30",
              .since = "0.1.0"},
     .run = tddRefScs},
    {.told = {.id = "tdd-cell-kind",
              .severity = RRC_RULE_ERROR,
              .statement = "tdd-UL-DL-ConfigurationCommon and tdd-UL-DL-ConfigurationDedicated are for cells in "
                           "unpaired spectrum, the latter only beside the former.",
              .advice = "Leave the configuration out.",
              .clause = "TS 38.331 ServingCellConfigCommon, ServingCellConfig, Cond TDD",
              .given = "",
              .bad = AT_TDD_DEDICATED "slotIndex = 3\n" AT_TDD_DEDICATED "symbols.allDownlink = null\n" AT_COMMON
                                      "tdd-UL-DL-ConfigurationCommon = absent",
              .good = AT_TDD_DEDICATED "slotIndex = 3\n" AT_TDD_DEDICATED "symbols.explicit.nrofDownlinkSymbols = 12",
              .since = "0.1.0"},
     .run = tddCellKind},
    {.told = {.id = "tdd-dedicated",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "A dedicated slot lies within the common period, gives a direction to at least one symbol, to no "
                  "more than the slot has, and to none against the common pattern.",
              .advice = "Give directions to flexible symbols alone.",
              .clause = "TS 38.331 TDD-UL-DL-SlotConfig; TS 38.213 11.1",
              .given = "",
              .bad = AT_TDD_DEDICATED "slotIndex = 3\n" AT_TDD_DEDICATED "symbols.explicit.nrofDownlinkSymbols = 13",
              .good = AT_TDD_DEDICATED "slotIndex = 3\n" AT_TDD_DEDICATED "symbols.explicit.nrofDownlinkSymbols = 12",
              .since = "0.1.0"},
     .run = tddDedicated},
    {.told = {.id = "tdd-direction",
              .severity = RRC_RULE_WARNING,
              .statement = "What is periodic, configured grants, search spaces, SS/PBCH blocks and rows of time domain "
                           "allocations fall on symbols of their direction.",
              .advice = "Move the resource to slots of its direction.",
              .clause = "TS 38.213 11.1, 9.2.3",
              .given = "",
              .bad = AT_PUCCH "schedulingRequestResourceToAddModList[0].periodicityAndOffset.sl20 = 5",
              .good = AT_PUCCH "schedulingRequestResourceToAddModList[0].periodicityAndOffset.sl20 = 9",
              .since = "0.1.0"},
     .run = tddDirection},
};

} // namespace

constinit const RuleGroup tddRules = groupOf(tddTable);

} // namespace rules
