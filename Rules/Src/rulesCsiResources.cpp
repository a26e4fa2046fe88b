// CSI: the resources that are measured.
#include "csi.h"
#include "examplePaths.h"
#include "rules.h"
#include "searchSpaces.h"

#include <numeric>

namespace rules
{
namespace
{

// Each CSI-RS-ResourceMapping: of NZP resources, and of the ZP ones of each downlink bandwidth part.
template <typename Each>
void forMappings(Check& check, const Each& each)
{
    for (Cell& cell : check.model.cells())
    {
        const Csi& csi = check.model.csi(cell);
        for (const IdEntry<NZP_CSI_RS_Resource>& entry : csi.nzpResources)
        {
            each(entry.element->resourceMapping);
        }
        for (Bwp& bwp : cell.downlink)
        {
            for (const IdEntry<ZP_CSI_RS_Resource>& entry : check.model.pdsch(bwp).zpResources)
            {
                each(entry.element->resourceMapping);
            }
        }
    }
}

// What a mapping says is a row of the table, and its symbols lie in the slot.
void judgeMapping(Check& check, const CSI_RS_ResourceMapping& mapping)
{
    if (mapping.density.t == T_CSI_RS_ResourceMapping_density_spare)
    {
        return;
    }
    const NrCsiRsRow* const row = csiRsRow(check.tree, mapping);
    if (row == nullptr)
    {
        check.error(&mapping)
            .found("%u port%s with these cdm-Type, density and frequencyDomainAllocation", portsOf(mapping),
                   portsOf(mapping) == 1 ? "" : "s")
            .allowed("no row of the table is so");
        return;
    }
    const OSUINT8* const second = MEMBER(mapping, firstOFDMSymbolInTimeDomain2);
    if ((second != nullptr) != (row->secondSymbols != 0))
    {
        check.error(&mapping.firstOFDMSymbolInTimeDomain2)
            .allowed("row %u %s it", row->row, row->secondSymbols != 0 ? "needs" : "does not have");
        return;
    }
    const auto judgeSymbols = [&](const OSUINT8* first, OSUINT32 symbols)
    {
        if (*first + symbols > NR_SYMBOLS)
        {
            check.error(first).allowed("row %u takes %u symbols from there on, and the last one is 13", row->row,
                                       symbols);
        }
    };
    judgeSymbols(&mapping.firstOFDMSymbolInTimeDomain, row->symbols);
    if (second != nullptr)
    {
        judgeSymbols(second, row->secondSymbols);
        if (*second < mapping.firstOFDMSymbolInTimeDomain + row->symbols)
        {
            check.warning(second).allowed("row %u takes symbols %u and %u before", row->row,
                                          mapping.firstOFDMSymbolInTimeDomain,
                                          mapping.firstOFDMSymbolInTimeDomain + 1U);
        }
    }
}

void csiRsRowOfTable(Check& check)
{
    forMappings(check, [&](const CSI_RS_ResourceMapping& mapping) { judgeMapping(check, mapping); });
}

// A band is on the grid of four resource blocks, and enough of it lies in the bandwidth part.
void judgeBand(Check& check, const CSI_FrequencyOccupation& band, const Bwp* bwp)
{
    for (const OSUINT16* const value : {&band.startingRB, &band.nrofRBs})
    {
        if (*value % 4 != 0)
        {
            check.error(value).allowed("it is a multiple of 4");
            return;
        }
    }
    if (bwp == nullptr)
    {
        return;
    }
    const Known<NrSpan> rbs = commonRbs(check.model, *bwp);
    const Known<NrSpan> left = csiBand(check.model, *bwp, band);
    if (check.decided(rbs) && left->size < std::min(rbs->size, 24U))
    {
        check.error(&band)
            .found("RB %u..%u", band.startingRB, band.startingRB + band.nrofRBs - 1U)
            .allowed("%u of them lie in bandwidth part %u, common RB %u..%u, and at least %u have to", left->size,
                     bwp->id, rbs->start, rbs->start + rbs->size - 1, std::min(rbs->size, 24U));
    }
}

// The first bandwidth part that something is used in.
const Bwp* usedIn(const Cell& cell, const CsiUse& use)
{
    for (const Bwp& bwp : cell.downlink)
    {
        if ((use.bwps >> bwp.id & 1) != 0)
        {
            return &bwp;
        }
    }
    return nullptr;
}

void csiRsBand(Check& check)
{
    for (Cell& cell : check.model.cells())
    {
        const Csi& csi = check.model.csi(cell);
        for (const IdEntry<NZP_CSI_RS_Resource>& entry : csi.nzpResources)
        {
            judgeBand(check, entry.element->resourceMapping.freqBand, usedIn(cell, useOf(csi.nzpUse, entry.id)));
        }
        for (const IdEntry<CSI_IM_Resource>& entry : csi.imResources)
        {
            if (const CSI_FrequencyOccupation* const band = MEMBER(*entry.element, freqBand))
            {
                judgeBand(check, *band, usedIn(cell, useOf(csi.imUse, entry.id)));
            }
        }
        for (Bwp& bwp : cell.downlink)
        {
            for (const IdEntry<ZP_CSI_RS_Resource>& entry : check.model.pdsch(bwp).zpResources)
            {
                judgeBand(check, entry.element->resourceMapping.freqBand, &bwp);
            }
        }
    }
}

// What the reports of a cell group measure on the sets of one CSI-MeasConfig.
struct SetReports
{
    bool hasCqi;
    bool isChannel;
    bool hasOther; // than RSRP and none
};

struct AllSetReports
{
    SetReports of[maxNrofNZP_CSI_RS_ResourceSets];
};

AllSetReports setReports(Check& check, const Csi& csi)
{
    AllSetReports all{};
    forReports(check,
               [&](const ReportView& view)
               {
                   if (view.csi != &csi || view.channel == nullptr)
                   {
                       return;
                   }
                   const Quantity& quantity = view.report.reportQuantity;
                   for (const auto id : nzpSetIds(check, *view.channel))
                   {
                       if (id < std::size(all.of))
                       {
                           SetReports& set = all.of[id];
                           set.isChannel = true;
                           set.hasCqi = set.hasCqi || hasCqi(quantity) || hasPmi(quantity);
                           set.hasOther = set.hasOther || !(isRsrp(quantity) || isNothing(quantity));
                       }
                   }
               });
    return all;
}

// The resources of a set are alike.
void judgeUniform(Check& check, const Csi& csi, const NZP_CSI_RS_ResourceSet& set, const SetReports& reports)
{
    const NZP_CSI_RS_Resource* first = nullptr;
    forResources(csi, set,
                 [&](const NZP_CSI_RS_Resource& resource, const NZP_CSI_RS_ResourceId& at)
                 {
                     if (first == nullptr)
                     {
                         first = &resource;
                         return;
                     }
                     const CSI_RS_ResourceMapping& a = first->resourceMapping;
                     const CSI_RS_ResourceMapping& b = resource.resourceMapping;
                     const auto* const hadPeriod = MEMBER(*first, periodicityAndOffset);
                     const auto* const hasPeriod = MEMBER(resource, periodicityAndOffset);
                     const bool isPeriodSame =
                         hadPeriod == nullptr || hasPeriod == nullptr || hadPeriod->t == hasPeriod->t;
                     const char* const differs = reports.isChannel && a.density.t != b.density.t  ? "density"
                                                 : reports.hasCqi && a.nrofPorts != b.nrofPorts   ? "nrofPorts"
                                                 : reports.isChannel && a.cdm_Type != b.cdm_Type  ? "cdm-Type"
                                                 : a.freqBand.startingRB != b.freqBand.startingRB ? "startingRB"
                                                 : a.freqBand.nrofRBs != b.freqBand.nrofRBs       ? "nrofRBs"
                                                 : !isPeriodSame ? "periodicityAndOffset"
                                                                 : nullptr;
                     if (differs != nullptr)
                     {
                         check.error(&at)
                             .found("resource %u with another %s", at, differs)
                             .allowed("it is the same as of resource %u in the set", first->nzp_CSI_RS_ResourceId);
                     }
                 });
}

void csiRsSetUniform(Check& check)
{
    forCsi(check,
           [&](const Cell&, const Csi& csi)
           {
               const AllSetReports reports = setReports(check, csi);
               for (const IdEntry<NZP_CSI_RS_ResourceSet>& entry : csi.nzpSets)
               {
                   const NZP_CSI_RS_ResourceSet& set = *entry.element;
                   if (entry.id >= std::size(reports.of) || set.m.trs_InfoPresent != 0)
                   {
                       continue;
                   }
                   judgeUniform(check, csi, set, reports.of[entry.id]);
                   if (set.m.repetitionPresent != 0 && reports.of[entry.id].hasOther)
                   {
                       check.error(&set.repetition).allowed("a report on the set has neither RSRP nor none");
                   }
               }
           });
}

// A set for tracking: trs-Info.
struct Tracking
{
    const Cell& cell;
    const Csi& csi;
    const NZP_CSI_RS_ResourceSet& set;
    CsiUse use;
    const Bwp* bwp; // null where it is in none
};

// Whether two slots in a row are for the downlink.
Known<bool> hasTwoSlots(Check& check, const Tracking& tracking)
{
    const Known<OSUINT32> mu =
        tracking.bwp == nullptr ? Known<OSUINT32>::unless(RRC_RULE_INPUT_PREVIOUS) : tracking.bwp->mu();
    if (tracking.cell.duplex && *tracking.cell.duplex == RRC_RULE_DUPLEX_FDD)
    {
        return true;
    }
    const Known<TddGrid> grid = tddGrid(check.model, tracking.cell);
    if (!mu || !grid || *mu < grid->muRef)
    {
        return Known<bool>::unless(mu.inputs() | grid.inputs());
    }
    const TddSlots slots = check.model.tddSlots(tracking.cell, *grid, *mu);
    for (OSUINT32 slot = 0; slot < slots.count(); ++slot)
    {
        if (slots.isAll(slot, NR_SYMBOL_DOWNLINK) && slots.isAll(slot + 1, NR_SYMBOL_DOWNLINK))
        {
            return true;
        }
    }
    return false;
}

// Of each pair in one slot the symbols are four apart; which ones also depends on the frequency range.
bool isTrackingPair(OSUINT32 first, OSUINT32 second, bool isFr1)
{
    static constexpr OSUINT32 inBoth = 1U << 4 | 1U << 5 | 1U << 6;
    static constexpr OSUINT32 inFr2 = inBoth | 1U << 0 | 1U << 1 | 1U << 2 | 1U << 3 | 1U << 7 | 1U << 8 | 1U << 9;
    return second == first + 4 && (((isFr1 ? inBoth : inFr2) >> first) & 1) != 0;
}

// What each resource has for itself.
void judgeTrackingResource(Check& check, const Tracking& tracking, const NZP_CSI_RS_Resource& resource)
{
    const NrCsiRsRow* const row = csiRsRow(check.tree, resource.resourceMapping);
    if (row != nullptr && row->row != 1)
    {
        check.error(&resource.resourceMapping)
            .found("row %u, in a set for tracking", row->row)
            .allowed("there a resource has one port and density three");
    }
    const auto* const choice = MEMBER(resource, periodicityAndOffset);
    if (tracking.bwp == nullptr || !check.decided(tracking.bwp->mu()))
    {
        return;
    }
    const OSUINT32 mu = *tracking.bwp->mu();
    const OSUINT32 period = choice == nullptr ? 0 : recurrenceOf(*choice).period;
    const OSUINT32 ms = period >> mu;
    const bool isPeriod = ms << mu == period && (ms == 10 || ms == 20 || ms == 40 || ms == 80);
    if (period != 0 && !isPeriod)
    {
        check.error(choice)
            .found("%u slots, in a set for tracking", period)
            .allowed("at %u kHz that is %u, %u, %u or %u", khzOf(mu), 10U << mu, 20U << mu, 40U << mu, 80U << mu);
    }
    const CSI_FrequencyOccupation& band = resource.resourceMapping.freqBand;
    if (isPeriod && ms == 10 && band.nrofRBs > 52)
    {
        check.error(choice)
            .found("%u slots, in a set for tracking", period)
            .allowed("10 ms are for at most 52 RB, and the resource has %u", band.nrofRBs);
    }
    const Known<NrSpan> rbs = commonRbs(check.model, *tracking.bwp);
    const Known<NrSpan> left = csiBand(check.model, *tracking.bwp, band);
    // The grid of four leaves up to three blocks on either side, and takes as many from 52.
    const bool isNarrow = left && (left->size == 52 || band.nrofRBs == 52);
    const bool isOnGrid = band.startingRB % 4 == 0 && band.nrofRBs % 4 == 0; // csi-rs-band
    if (check.decided(rbs) && isOnGrid && left->size >= std::min(rbs->size, 24U) && !isNarrow &&
        left->size + 7 <= rbs->size)
    {
        check.error(&band.nrofRBs)
            .found("%u RB in the bandwidth part, in a set for tracking", left->size)
            .allowed("there it is %u or all of %u", std::min(rbs->size, 52U), rbs->size);
    }
}

// Where the resources of a set lie to each other.
void judgeTrackingPlaces(Check& check, const Tracking& tracking)
{
    const NZP_CSI_RS_ResourceSet& set = tracking.set;
    const size_t count = sizeOf(set);
    if (count != entries(&set.nzp_CSI_RS_Resources).size())
    {
        return; // gen-dup-id
    }
    if (count != 2 && count != 4)
    {
        check.error(&set.nzp_CSI_RS_Resources)
            .found("%zu resource%s", count, count == 1 ? "" : "s")
            .allowed("a set for tracking has 2 in one slot or 4 in two");
        return;
    }
    const Known<RrcRuleRange>& range = tracking.cell.range;
    const bool isFr1 = range && *range == RRC_RULE_RANGE_FR1;
    if (count == 2 && isFr1)
    {
        const Known<bool> hasTwo = hasTwoSlots(check, tracking);
        if (check.decided(hasTwo) && *hasTwo)
        {
            check.warning(&set.nzp_CSI_RS_Resources)
                .found("2 resources")
                .allowed("in FR1 a set for tracking has 4, where two downlink slots follow each other");
        }
    }
    const NZP_CSI_RS_Resource* all[4] = {};
    size_t found = 0;
    forResources(tracking.csi, set,
                 [&](const NZP_CSI_RS_Resource& resource, const auto&)
                 { all[found < std::size(all) ? found++ : 0] = &resource; });
    if (found != count)
    {
        return;
    }
    const auto slotOf = [](const NZP_CSI_RS_Resource* of)
    {
        return of->m.periodicityAndOffsetPresent != 0 ? recurrenceOf(of->periodicityAndOffset) : Recurrence{};
    };
    const auto symbolOf = [](const NZP_CSI_RS_Resource* of)
    {
        return OSUINT32{of->resourceMapping.firstOFDMSymbolInTimeDomain};
    };
    const bool arePeriodic = std::all_of(all, all + count, [&](const auto* of) { return slotOf(of).period != 0; });
    if (arePeriodic)
    {
        std::sort(all, all + count,
                  [&](const auto* a, const auto* b) {
                      return slotOf(a).offset != slotOf(b).offset ? slotOf(a).offset < slotOf(b).offset
                                                                  : symbolOf(a) < symbolOf(b);
                  });
        const OSUINT32 period = slotOf(all[0]).period;
        const OSUINT32 first = slotOf(all[0]).offset;
        const OSUINT32 last = slotOf(all[count - 1]).offset;
        const bool arePaired = slotOf(all[1]).offset == first && slotOf(all[count - 2]).offset == last;
        const bool areClose = count == 2 || last == first + 1 || (first == 0 && last == period - 1);
        if (!arePaired || !areClose)
        {
            check.error(&set.nzp_CSI_RS_Resources)
                .found("resources in slots %u to %u of %u", first, last, period)
                .allowed("a set for tracking has 2 in one slot or 4 in two that follow each other");
            return;
        }
    }
    else if (std::none_of(all, all + count, [&](const auto* of) { return slotOf(of).period != 0; }))
    {
        // Which of them are in one slot is left to the order; alike in both slots they are paired by their symbols.
        std::sort(all, all + count, [&](const auto* a, const auto* b) { return symbolOf(a) < symbolOf(b); });
        if (count == 4)
        {
            std::swap(all[1], all[2]);
        }
    }
    else
    {
        return; // csi-periodicity-cond
    }
    bool arePairs = true;
    for (size_t i = 0; i < count; i += 2)
    {
        const OSUINT32 first = symbolOf(all[i]);
        const OSUINT32 second = symbolOf(all[i + 1]);
        if (!isTrackingPair(first, second, isFr1))
        {
            arePairs = false;
            check.error(&set.nzp_CSI_RS_Resources)
                .found("symbols %u and %u of a slot", first, second)
                .allowed("in a set for tracking that is 4 and 8, 5 and 9, 6 and 10%s",
                         isFr1 ? "" : ", in FR2 also others four apart");
        }
    }
    if (arePairs && count == 4 && symbolOf(all[2]) != symbolOf(all[0]))
    {
        check.error(&set.nzp_CSI_RS_Resources)
            .found("symbols %u and %u of a slot, %u and %u of the next", symbolOf(all[0]), symbolOf(all[1]),
                   symbolOf(all[2]), symbolOf(all[3]))
            .allowed("in a set for tracking both slots have the same");
    }
    for (size_t i = 1; i < count; ++i)
    {
        if (all[i]->powerControlOffset != all[0]->powerControlOffset ||
            all[i]->m.powerControlOffsetSSPresent != all[0]->m.powerControlOffsetSSPresent ||
            (all[i]->m.powerControlOffsetSSPresent != 0 &&
             all[i]->powerControlOffsetSS != all[0]->powerControlOffsetSS))
        {
            check.error(&set.nzp_CSI_RS_Resources)
                .found("resources %u and %u of different power", all[0]->nzp_CSI_RS_ResourceId,
                       all[i]->nzp_CSI_RS_ResourceId)
                .allowed("in a set for tracking powerControlOffset and powerControlOffsetSS are the same");
            return;
        }
    }
}

// A set for tracking is what a UE tracks.
void csiTrs(Check& check)
{
    forCsi(check,
           [&](const Cell& cell, const Csi& csi)
           {
               for (const IdEntry<NZP_CSI_RS_ResourceSet>& entry : csi.nzpSets)
               {
                   const NZP_CSI_RS_ResourceSet& set = *entry.element;
                   if (set.m.trs_InfoPresent == 0)
                   {
                       continue;
                   }
                   const CsiUse use = useOf(csi.nzpSetUse, entry.id);
                   const Tracking tracking = {cell, csi, set, use, usedIn(cell, use)};
                   forResources(csi, set,
                                [&](const NZP_CSI_RS_Resource& resource, const auto&)
                                { judgeTrackingResource(check, tracking, resource); });
                   judgeTrackingPlaces(check, tracking);
                   if (set.m.repetitionPresent != 0)
                   {
                       check.error(&set.repetition).allowed("the set is for tracking");
                   }
               }
           });
    forReports(check,
               [&](const ReportView& view)
               {
                   const CSI_ReportConfig& report = view.report;
                   if (misusesTracking(check, view))
                   {
                       check.error(&report.resourcesForChannelMeasurement)
                           .allowed(
                               "CSI-ResourceConfig %u is for tracking; only reports of nothing name that, where it "
                               "is aperiodic",
                               report.resourcesForChannelMeasurement);
                   }
                   else if (namesTracking(check, view) &&
                            report.timeRestrictionForChannelMeasurements ==
                                CSI_ReportConfig_timeRestrictionForChannelMeasurements_configured)
                   {
                       check.error(&report.timeRestrictionForChannelMeasurements)
                           .allowed("the report is on a set for tracking");
                   }
               });
}

// A new CSI-IM resource has all that there is of it.
void csiImIncomplete(Check& check)
{
    forCsi(check,
           [&](const Cell&, const Csi& csi)
           {
               for (const IdEntry<CSI_IM_Resource>& entry : csi.imResources)
               {
                   const CSI_IM_Resource& resource = *entry.element;
                   const bool isWhole =
                       resource.m.csi_IM_ResourceElementPatternPresent != 0 && resource.m.freqBandPresent != 0;
                   if (isWhole || !check.isNew(entry.novelty))
                   {
                       continue;
                   }
                   if (resource.m.csi_IM_ResourceElementPatternPresent == 0)
                   {
                       check.warning(&resource.csi_IM_ResourceElementPattern).allowed("the resource is new");
                   }
                   if (resource.m.freqBandPresent == 0)
                   {
                       check.warning(&resource.freqBand).allowed("the resource is new");
                   }
               }
           });
}

// What a periodic resource takes of its bandwidth part.
struct Grid
{
    const NZP_CSI_RS_Resource* resource;
    Recurrence slots;
    OSUINT32 symbols;     // bit i: symbol i
    OSUINT32 subcarriers; // bit i: subcarrier i of a resource block
    NrSpan rbs;           // common ones
};

// The subcarriers of a resource block (TS 38.211 7.4.1.5.3): the last bit of a bitmap is that of the lowest.
OSUINT32 subcarriersOf(const Tree& tree, const CSI_RS_ResourceMapping& mapping, const NrCsiRsRow& row)
{
    static constexpr OSUINT32 bitCounts[] = {4, 12, 3, 6}; // by the branch
    static constexpr OSUINT32 patterns[] = {0x111, 0x1, 0xF, 0x3};
    static constexpr OSUINT32 steps[] = {1, 1, 4, 2};
    const ASN1BitStr32* const bits = tree.follow(mapping.frequencyDomainAllocation.u.row1);
    const OSUINT32 branch = row.branch - 1U;
    OSUINT32 subcarriers = 0;
    for (OSUINT32 i = 0; bits != nullptr && i < bitCounts[branch]; ++i)
    {
        const OSUINT32 number = bitCounts[branch] - 1 - i;
        subcarriers |= hasBit(*bits, i) ? patterns[branch] << steps[branch] * number : 0;
    }
    return subcarriers;
}

// Null resource where it is not known.
Grid gridOf(Check& check, const Bwp& bwp, const NZP_CSI_RS_Resource& resource)
{
    const CSI_RS_ResourceMapping& mapping = resource.resourceMapping;
    const NrCsiRsRow* const row = csiRsRow(check.tree, mapping);
    const auto* const slots = MEMBER(resource, periodicityAndOffset);
    const Known<NrSpan> rbs = csiBand(check.model, bwp, mapping.freqBand);
    if (row == nullptr || slots == nullptr || recurrenceOf(*slots).period == 0 || !check.decided(rbs))
    {
        return {};
    }
    const OSUINT32 second =
        row->secondSymbols == 0 ? 0 : ((1U << row->secondSymbols) - 1) << (mapping.firstOFDMSymbolInTimeDomain2 & 15);
    return {&resource, recurrenceOf(*slots),
            ((1U << row->symbols) - 1) << (mapping.firstOFDMSymbolInTimeDomain & 15) | second,
            subcarriersOf(check.tree, mapping, *row), *rbs};
}

bool overlap(const NrSpan& a, const NrSpan& b)
{
    return a.start < b.start + b.size && b.start < a.start + a.size;
}

// Whether two recurrences ever have a slot in common.
bool meet(const Recurrence& a, const Recurrence& b)
{
    const OSUINT32 common = std::gcd(a.period, b.period);
    return a.offset % common == b.offset % common;
}

void judgeCoresets(Check& check, Bwp& bwp, const NrSpan& rbs, const Grid& grid)
{
    const Pdcch& pdcch = check.model.pdcch(bwp);
    for (const SearchSpaceEntry& space : pdcch.allSearchSpaces)
    {
        const ControlResourceSetId* const id = MEMBER(*space.element, controlResourceSetId);
        const Coreset* const coreset = id == nullptr ? nullptr : pdcch.coreset(*id);
        const Known<Monitoring> monitoring = monitoringOf(*space.element);
        if (coreset == nullptr || coreset->element->duration > maxCoReSetDuration || !monitoring ||
            !meet(*monitoring, Monitoring{grid.slots.period, grid.slots.offset, 1}))
        {
            continue;
        }
        OSUINT32 symbols = 0;
        for (OSUINT32 i = 0; i < coreset->element->duration; ++i)
        {
            symbols |= firstSymbolsOf(*space.element) << i;
        }
        if ((symbols & grid.symbols) == 0)
        {
            continue;
        }
        bool isThere = false;
        for (OSUINT32 group = 0; group < coresetBits; ++group)
        {
            const NrSpan six = {rbs.start + nrCoresetGroupStart(rbs.start, group), 6};
            isThere = isThere || (hasBit(coreset->element->frequencyDomainResources, group) && overlap(six, grid.rbs));
        }
        if (isThere)
        {
            check.warning(&grid.resource->resourceMapping)
                .found("NZP-CSI-RS-Resource %u", grid.resource->nzp_CSI_RS_ResourceId)
                .allowed("search space %u is monitored in the same symbols and resource blocks", space.id);
            return;
        }
    }
}

// The half frame of the SS/PBCH blocks is told by the cell itself: a collision is one wherever it is.
void judgeSsb(Check& check, const Bwp& bwp, const Grid& grid)
{
    static constexpr OSUINT32 periods[] = {5, 10, 20, 40, 80, 160};
    const Cell& cell = *bwp.cell;
    const FrequencyInfoDL* const frequency = cell.frequencyDl();
    const auto* const spacing = cell.common == nullptr ? nullptr : MEMBER(*cell.common, ssbSubcarrierSpacing);
    const auto* const arfcn = frequency == nullptr ? nullptr : MEMBER(*frequency, absoluteFrequencySSB);
    const Known<SsbPositions> positions = ssbPositions(check.model, cell);
    const Known<OSUINT32> mu = bwp.mu();
    const NrBand* const band = cell.band ? nrBand(*cell.band) : nullptr;
    if (spacing == nullptr || arfcn == nullptr || !positions || !mu || muOf(*spacing) != *mu || band == nullptr)
    {
        return;
    }
    const auto* const told = MEMBER(*cell.common, ssb_periodicityServingCell);
    const OSUINT32 ms = told == nullptr ? 5 : *told < std::size(periods) ? periods[*told] : 0;
    const int64_t rbKhz = 12 * int64_t{khzOf(*mu)};
    const int64_t low =
        int64_t{nrArfcnKhz(*arfcn)} - NR_SSB_RBS / 2 * rbKhz - int64_t{nrArfcnKhz(frequency->absoluteFrequencyPointA)};
    const bool isThere = low < (int64_t{grid.rbs.start} + grid.rbs.size) * rbKhz &&
                         int64_t{grid.rbs.start} * rbKhz < low + NR_SSB_RBS * rbKhz;
    if (ms == 0 || !isThere)
    {
        return;
    }
    const OSUINT32 halfFrame = 5U << *mu;
    const auto collides = [&](OSUINT32 half)
    {
        for (OSUINT32 i = 0; i < positions->count; ++i)
        {
            OSUINT32 first = 0;
            const bool caseB = band->hasCaseB != 0 && band->hasCaseC == 0;
            if (!positions->isSent(i) || nrSsbFirstSymbol(*mu, caseB ? 1 : 0, i, &first) == 0)
            {
                continue;
            }
            const OSUINT32 symbols = ((1U << NR_SSB_SYMBOLS) - 1) << first % NR_SYMBOLS;
            const Recurrence slots = {ms << *mu, half * halfFrame + first / NR_SYMBOLS};
            if ((symbols & grid.symbols) != 0 && meet(slots, grid.slots))
            {
                return true;
            }
        }
        return false;
    };
    for (OSUINT32 half = 0; half < ms / 5; ++half)
    {
        if (!collides(half))
        {
            return;
        }
    }
    check.warning(&grid.resource->resourceMapping)
        .found("NZP-CSI-RS-Resource %u", grid.resource->nzp_CSI_RS_ResourceId)
        .allowed("SS/PBCH blocks are sent in the same symbols and resource blocks");
}

bool isTracked(const Csi& csi, OSUINT32 resource)
{
    for (const IdEntry<NZP_CSI_RS_ResourceSet>& set : csi.nzpSets)
    {
        const auto ids = entries(&set.element->nzp_CSI_RS_Resources);
        if (set.element->m.trs_InfoPresent != 0 && std::find(ids.begin(), ids.end(), resource) != ids.end())
        {
            return true;
        }
    }
    return false;
}

// Periodic CSI-RS keep clear of CORESETs and SS/PBCH blocks, what is for tracking also of what is not.
void judgeCollisions(Check& check, const Csi& csi, Bwp& bwp)
{
    const Known<NrSpan> rbs = commonRbs(check.model, bwp);
    if (!rbs)
    {
        check.undecided(rbs.inputs());
        return;
    }
    Vector<Grid> tracking;
    Vector<Grid> others;
    for (const IdEntry<NZP_CSI_RS_Resource>& entry : csi.nzpResources)
    {
        const CsiUse use = useOf(csi.nzpUse, entry.id);
        if (!use.is(periodic) || (use.bwps >> bwp.id & 1) == 0)
        {
            continue;
        }
        const Grid grid = gridOf(check, bwp, *entry.element);
        if (grid.resource != nullptr)
        {
            (isTracked(csi, entry.id) ? tracking : others).add(check.model.memory, grid);
            judgeCoresets(check, bwp, *rbs, grid);
            judgeSsb(check, bwp, grid);
        }
    }
    for (const Grid& one : tracking)
    {
        for (const Grid& other : others)
        {
            if (meet(one.slots, other.slots) && (one.symbols & other.symbols) != 0 &&
                (one.subcarriers & other.subcarriers) != 0 && overlap(one.rbs, other.rbs))
            {
                check.warning(&other.resource->resourceMapping)
                    .found("NZP-CSI-RS-Resource %u", other.resource->nzp_CSI_RS_ResourceId)
                    .allowed("resource %u, which is for tracking, has the same resource elements",
                             one.resource->nzp_CSI_RS_ResourceId);
                break;
            }
        }
    }
}

void csiCollision(Check& check)
{
    forCsi(check,
           [&](Cell& cell, const Csi& csi)
           {
               for (Bwp& bwp : cell.downlink)
               {
                   const bool isUsed = std::any_of(std::begin(csi.nzpUse), std::end(csi.nzpUse),
                                                   [&](const CsiUse& use) { return (use.bwps >> bwp.id & 1) != 0; });
                   if (isUsed)
                   {
                       judgeCollisions(check, csi, bwp);
                   }
               }
           });
}

constexpr Rule csiResourcesTable[] = {
    {.told = {.id = "csi-rs-row",
              .severity = RRC_RULE_ERROR,
              .statement = "The mapping of a CSI-RS is a row of the standard: number of ports, CDM, density and bits "
                           "of frequencyDomainAllocation fit; its symbols lie in the slot.",
              .advice = "Take the values of one row.",
              .clause = "TS 38.211 table 7.4.1.5.3-1; TS 38.331 CSI-RS-ResourceMapping",
              .given = "",
              .bad = AT_NZP "[0].resourceMapping.cdm-Type = noCDM",
              .good = AT_NZP "[0].resourceMapping.frequencyDomainAllocation.row4 = 80",
              .since = "0.1.0"},
     .run = csiRsRowOfTable},
    {.told = {.id = "csi-rs-band",
              .severity = RRC_RULE_ERROR,
              .statement = "startingRB and nrofRBs are multiples of 4, and of the band 24 resource blocks, or all of a "
                           "smaller bandwidth part, lie in the bandwidth part.",
              .advice = "Count startingRB from point A.",
              .clause = "TS 38.331 CSI-FrequencyOccupation; TS 38.214 5.2.2.3.1",
              .given = "",
              .bad = AT_NZP "[0].resourceMapping.freqBand.startingRB = 252",
              .good = AT_NZP "[0].resourceMapping.freqBand.startingRB = 248",
              .since = "0.1.0"},
     .run = csiRsBand},
    {.told = {.id = "csi-rs-set-uniform",
              .severity = RRC_RULE_ERROR,
              .statement = "The resources of a set have the same band, density, CDM, number of ports and period; "
                           "repetition is for reports of RSRP or none.",
              .advice = "Split the set.",
              .clause = "TS 38.214 5.2.2.3.1; TS 38.331 NZP-CSI-RS-ResourceSet",
              .given = "",
              .bad = ONE_MORE_NZP("6", "6") AT_NZP_SET "[0].nzp-CSI-RS-Resources[1] = 6\n" AT_REPORT
                                                       "csi-IM-ResourcesForInterference = absent\n" AT_NZP
                                                       "[6].resourceMapping.freqBand.nrofRBs = 272",
              .good = ONE_MORE_NZP("6", "6") AT_NZP_SET "[0].nzp-CSI-RS-Resources[1] = 6\n" AT_REPORT
                                                        "csi-IM-ResourcesForInterference = absent",
              .since = "0.1.0"},
     .run = csiRsSetUniform},
    {.told = {.id = "csi-trs",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "A set with trs-Info has two resources in one slot or four in two that follow each other, "
                  "of one port and density three, four symbols apart and in both slots alike, of 10, 20, 40 or "
                  "80 ms, over 52 resource blocks or the bandwidth part; it is not reported on, nor repeated.",
              .advice = "Take the symbols, periods and bands that are allowed for tracking.",
              .clause = "TS 38.214 5.1.6.1.1",
              .given = "",
              .bad = AT_NZP "[1].resourceMapping.firstOFDMSymbolInTimeDomain = 5",
              .good = AT_NZP "[1].resourceMapping.firstOFDMSymbolInTimeDomain = 5\n" AT_NZP
                             "[2].resourceMapping.firstOFDMSymbolInTimeDomain = 9\n" AT_NZP
                             "[4].resourceMapping.firstOFDMSymbolInTimeDomain = 5\n" AT_NZP
                             "[5].resourceMapping.firstOFDMSymbolInTimeDomain = 9",
              .since = "0.1.0"},
     .run = csiTrs},
    {.told = {.id = "csi-im-incomplete",
              .severity = RRC_RULE_WARNING,
              .statement = "A new CSI-IM resource has csi-IM-ResourceElementPattern and freqBand.",
              .advice = "Add the field: there is no value to fall back on.",
              .clause = "TS 38.331 CSI-IM-Resource",
              .given = "",
              .bad = AT_IM "[0].freqBand = absent",
              .good = AT_IM "[0].freqBand.nrofRBs = 24",
              .since = "0.1.0"},
     .run = csiImIncomplete},
    {.told = {.id = "csi-collision",
              .severity = RRC_RULE_WARNING,
              .statement = "A periodic CSI-RS does not share symbols and resource blocks with a search space or "
                           "SS/PBCH blocks, nor resource elements with one for tracking.",
              .advice = "Move it to other symbols or slots.",
              .clause = "TS 38.214 5.2.2.3.1, 5.1.6.1",
              .given = "",
              .bad = AT_NZP "[0].resourceMapping.firstOFDMSymbolInTimeDomain = 1",
              .good = AT_NZP "[0].resourceMapping.firstOFDMSymbolInTimeDomain = 2",
              .since = "0.1.0"},
     .run = csiCollision},
};

} // namespace

constinit const RuleGroup csiResourceRules = groupOf(csiResourcesTable);

} // namespace rules
