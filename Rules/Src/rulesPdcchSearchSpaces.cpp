// Search spaces, and what a UE can monitor.
#include "examplePaths.h"
#include "pdcch.h"
#include "rules.h"

#include <bit>
#include <numeric>

namespace rules
{
namespace
{

// A new search space is whole; one that is modified keeps its CORESET.
void pdcchSsNewIncomplete(Check& check)
{
    forSearchSpaces(
        check,
        [&](const Bwp& bwp, const SearchSpaceEntry& entry)
        {
            const SearchSpace& space = *entry.element;
            if (!entry.isCommon && mayBeScheduledByOther(check, *bwp.cell))
            {
                return;
            }
            const auto* const sent = check.model.sent(space);
            const auto* const sentCoreset = sent == nullptr ? nullptr : MEMBER(*sent, controlResourceSetId);
            if (entry.novelty == Novelty::Old)
            {
                if (sentCoreset != nullptr)
                {
                    check.error(sentCoreset).allowed("search space %u is there: its CORESET stays", entry.id);
                }
                return;
            }
            // Only a new one has controlResourceSetId.
            if (sentCoreset == nullptr && !check.isNew(entry.novelty))
            {
                return;
            }
            const auto need = [&](const auto& member, bool isPresent)
            {
                if (!isPresent)
                {
                    check.error(&member).allowed("search space %u is new", entry.id);
                }
            };
            need(space.controlResourceSetId, space.m.controlResourceSetIdPresent != 0);
            need(space.monitoringSlotPeriodicityAndOffset, space.m.monitoringSlotPeriodicityAndOffsetPresent != 0);
            need(space.monitoringSymbolsWithinSlot, space.m.monitoringSymbolsWithinSlotPresent != 0);
            need(space.nrofCandidates, space.m.nrofCandidatesPresent != 0);
            need(space.searchSpaceType, space.m.searchSpaceTypePresent != 0);
        });
}

// The CORESET of a search space is one of its bandwidth part.
void pdcchSsCoresetRef(Check& check)
{
    forSearchSpaces(check,
                    [&](Bwp& bwp, const SearchSpaceEntry& entry)
                    {
                        const Pdcch& pdcch = check.model.pdcch(bwp);
                        const auto* const id = coresetIdOf(*entry.element);
                        const bool isUnnamed = pdcch.coreset(0) != nullptr; // pdcch-common-list
                        if (id == nullptr || *id == 0 || isUnnamed || pdcch.coreset(*id) != nullptr)
                        {
                            return;
                        }
                        if (!pdcch.isCommonKnown && pdcch.coresets.complete && !pdcch.coresets.isReleased(*id))
                        {
                            check.undecided(RRC_RULE_INPUT_COMMON);
                            return;
                        }
                        check.resolve(pdcch.coresets, *id, id, "a CORESET");
                    });
}

// Two sets of first symbols in one CORESET, the same or another slot's: the symbol of `b` that begins too close behind
// one of `a` or before it; NR_SYMBOLS where none does.
OSUINT32 tooClose(OSUINT32 a, OSUINT32 b, OSUINT32 duration)
{
    OSUINT32 around = 0;
    for (OSUINT32 apart = 1; apart < duration && apart < NR_SYMBOLS; ++apart)
    {
        around |= a << apart | a >> apart;
    }
    if ((around & b) == 0)
    {
        return NR_SYMBOLS;
    }
    for (OSUINT32 i = 0; i < NR_SYMBOLS; ++i)
    {
        for (OSUINT32 k = 0; k < NR_SYMBOLS; ++k)
        {
            const OSUINT32 apart = i > k ? i - k : k - i;
            if ((a >> i & 1) != 0 && (b >> k & 1) != 0 && apart != 0 && apart < duration)
            {
                return k;
            }
        }
    }
    return NR_SYMBOLS;
}

// Occasions lie within a slot and do not cut into each other.
void pdcchSsSymbols(Check& check)
{
    forSearchSpaces(
        check,
        [&](Bwp& bwp, const SearchSpaceEntry& entry)
        {
            const SearchSpace& space = *entry.element;
            const auto* const bits = MEMBER(space, monitoringSymbolsWithinSlot);
            if (bits == nullptr)
            {
                return;
            }
            const OSUINT32 length = bwp.symbolsPerSlot();
            const OSUINT32 all = firstSymbolsOf(space);
            const OSUINT32 symbols = all & ((1U << length) - 1);
            if (symbols != all)
            {
                check.warning(bits).allowed("a slot with extended prefix has %u symbols", length);
            }
            if (symbols == 0)
            {
                check.error(bits).allowed("a search space is monitored from at least one symbol on");
                return;
            }
            const auto* const id = coresetIdOf(space);
            const Known<Region> region =
                id == nullptr ? Known<Region>::unless(RRC_RULE_INPUT_PREVIOUS) : regionOf(check.model, bwp, *id);
            if (mayBeScheduledByOther(check, *bwp.cell) || !check.decided(region))
            {
                return;
            }
            const OSUINT32 last = static_cast<OSUINT32>(std::bit_width(symbols)) - 1;
            if (last + region->symbols > length)
            {
                check.error(bits).allowed("an occasion from symbol %u on, of a CORESET of %u symbols, leaves the slot",
                                          last, region->symbols);
                return;
            }
            if (const OSUINT32 close = tooClose(symbols, symbols, region->symbols); close != NR_SYMBOLS)
            {
                check.error(bits).allowed("the CORESET has %u symbols: occasions overlap at symbol %u", region->symbols,
                                          close);
                return;
            }
            for (const SearchSpaceEntry& other : check.model.pdcch(bwp).allSearchSpaces)
            {
                const auto* const otherId = coresetIdOf(*other.element);
                if (other.element == entry.element)
                {
                    break;
                }
                const Known<Monitoring> when = monitoringOf(space);
                const Known<Monitoring> otherWhen = monitoringOf(*other.element);
                const bool meets =
                    otherId != nullptr && *otherId == *id && when && otherWhen && meet(*when, *otherWhen);
                if (meets && tooClose(firstSymbolsOf(*other.element), symbols, region->symbols) != NR_SYMBOLS)
                {
                    check.error(bits).allowed("search space %u has occasions of the same CORESET that overlap them",
                                              other.id);
                }
            }
        });
}

bool hasFeature(const Check& check, OSUINT32 features)
{
    return check.model.known.capabilities != nullptr && (check.model.known.capabilities->features & features) != 0;
}

// Symbols in which a search space's occasions lie, bit i for symbol i; 0 where that is unknown.
OSUINT32 monitoredSymbols(Check& check, Bwp& bwp, const SearchSpace& space)
{
    const auto* const id = coresetIdOf(space);
    const Known<Region> region =
        id == nullptr ? Known<Region>::unless(RRC_RULE_INPUT_PREVIOUS) : regionOf(check.model, bwp, *id);
    OSUINT32 symbols = 0;
    for (OSUINT32 i = 0; check.decided(region) && i < region->symbols; ++i)
    {
        symbols |= firstSymbolsOf(space) << i;
    }
    return symbols;
}

// A span of at most three symbols, wherever it begins.
bool isOneSpan(OSUINT32 symbols)
{
    return symbols != 0 && symbols >> std::countr_zero(symbols) <= 7;
}

// Whether search space 0, whose symbols are the table's, is monitored or may be.
bool monitorsZero(const PDCCH_ConfigCommon& common)
{
    const SearchSpaceId* const ids[] = {MEMBER(common, searchSpaceSIB1),
                                        MEMBER(common, searchSpaceOtherSystemInformation),
                                        MEMBER(common, pagingSearchSpace), MEMBER(common, ra_SearchSpace)};
    return common.m.searchSpaceZeroPresent != 0 ||
           std::any_of(std::begin(ids), std::end(ids),
                       [](const SearchSpaceId* id) { return id != nullptr && *id == 0; });
}

// Late occasions are for UEs that can.
void pdcchSsLateSymbols(Check& check)
{
    constexpr OSUINT32 firstThree = 7;
    forPdcch(check,
             [&](Bwp& bwp, const Pdcch& pdcch)
             {
                 const Known<OSUINT32> mu = bwp.mu();
                 if (bwp.pdcch == nullptr || mayBeScheduledByOther(check, *bwp.cell) || !check.decided(mu))
                 {
                     return;
                 }
                 OSUINT32 dedicated = 0;
                 OSUINT32 common = 0;
                 bool areAllKnown = true;
                 for (const SearchSpaceEntry& entry : pdcch.allSearchSpaces)
                 {
                     const OSUINT32 symbols = monitoredSymbols(check, bwp, *entry.element);
                     areAllKnown = areAllKnown && symbols != 0;
                     (entry.isCommon ? common : dedicated) |= symbols;
                 }
                 if (!areAllKnown)
                 {
                     return;
                 }
                 const bool isWhole = pdcch.searchSpaces.complete && pdcch.isCommonKnown &&
                                      (pdcch.common == nullptr || !monitorsZero(*pdcch.common));
                 const OSUINT32 all = dedicated | common;
                 const auto* const at = &bwp.pdcch->searchSpacesToAddModList;
                 if (*mu != 0 && isWhole && isOneSpan(all) && (all & ~firstThree) != 0)
                 {
                     check.error(at)
                         .found("all occasions within three symbols, the last of them symbol %u",
                                static_cast<OSUINT32>(std::bit_width(all)) - 1)
                         .allowed("at %u kHz such a span lies within the first three", khzOf(*mu));
                     return;
                 }
                 const OSUINT32 needed =
                     RRC_RULE_FEATURE_MONITORING_ANY | RRC_RULE_FEATURE_MONITORING_ANY_GAP |
                     (*mu == 0 && isOneSpan(dedicated) ? OSUINT32{RRC_RULE_FEATURE_MONITORING_SINGLE} : 0);
                 if ((dedicated & ~firstThree) != 0 && !hasFeature(check, needed))
                 {
                     check.warning(at)
                         .found("occasions up to symbol %u", static_cast<OSUINT32>(std::bit_width(dedicated)) - 1)
                         .allowed("beyond the first three symbols of a slot a UE monitors only with "
                                  "pdcch-MonitoringAnyOccasions");
                 }
             });
}

// A search space lasts less than its period.
void pdcchSsDuration(Check& check)
{
    forSearchSpaces(check,
                    [&](const Bwp&, const SearchSpaceEntry& entry)
                    {
                        const auto* const duration = MEMBER(*entry.element, duration);
                        if (duration == nullptr)
                        {
                            return;
                        }
                        const auto* const common = commonType(check.tree, *entry.element);
                        if (common != nullptr && common->m.dci_Format2_0Present != 0)
                        {
                            check.notice(duration).allowed("with DCI format 2_0 it is ignored");
                            return;
                        }
                        const Known<Monitoring> when = monitoringOf(*entry.element);
                        if (check.decided(when) && *duration >= when->period)
                        {
                            check.error(duration).allowed("with a period of %u slot%s the most is %u", when->period,
                                                          when->period == 1 ? "" : "s", when->period - 1);
                        }
                    });
}

bool isOnlyFormat20(const Check& check, const SearchSpace& space)
{
    const auto* const common = commonType(check.tree, space);
    return common != nullptr && common->m.dci_Format2_0Present != 0 &&
           common->m.dci_Format0_0_AndFormat1_0Present == 0 && common->m.dci_Format2_1Present == 0 &&
           common->m.dci_Format2_2Present == 0 && common->m.dci_Format2_3Present == 0;
}

// Candidates fit into the CORESET.
void pdcchSsCandidates(Check& check)
{
    forSearchSpaces(
        check,
        [&](Bwp& bwp, const SearchSpaceEntry& entry)
        {
            const SearchSpace& space = *entry.element;
            const auto* const given = MEMBER(space, nrofCandidates);
            if (given == nullptr || isOnlyFormat20(check, space))
            {
                return;
            }
            OSUINT32 total = 0;
            for (OSUINT32 level = 0; level < levelCount; ++level)
            {
                total += candidatesOf(space, level);
            }
            if (total == 0)
            {
                check.error(given).found("no candidates").allowed("some aggregation level has at least one");
                return;
            }
            const auto* const id = coresetIdOf(space);
            if (id == nullptr)
            {
                return;
            }
            const Known<Region> region = regionOf(check.model, bwp, *id);
            if (!check.decided(region) || region->cces == 0)
            {
                return;
            }
            const OSUINT32* const values[levelCount] = {&given->aggregationLevel1, &given->aggregationLevel2,
                                                        &given->aggregationLevel4, &given->aggregationLevel8,
                                                        &given->aggregationLevel16};
            for (OSUINT32 level = 0; level < levelCount; ++level)
            {
                const OSUINT32 cces = 1U << level;
                const OSUINT32 count = candidatesOf(space, level);
                if (count != 0 && cces > region->cces)
                {
                    check.error(values[level]).allowed("the CORESET has %u CCEs", region->cces);
                }
                else if (count * cces > region->cces)
                {
                    check.warning(values[level])
                        .allowed("the CORESET has %u CCEs: no more than %u candidates differ", region->cces,
                                 region->cces / cces);
                }
            }
        });
}

// A search space as the load of a slot counts it.
struct LoadSet
{
    OSUINT32 coreset;
    Region region;
    Monitoring when;
    OSUINT32 symbols;
    bool isCommon;
    bool isFallback; // UE-specific, with the sizes that common ones have
    OSUINT32 candidates[levelCount];
    OSUINT32 nominal; // candidates and
    OSUINT32 nominalCces;
};

// What a slot has at least: candidates that may be the same, and CCEs that may, are counted once.
struct Load
{
    OSUINT32 candidates;
    OSUINT32 cces;
};

constexpr OSUINT32 mostCces = coresetBits * 3;
struct CceSet
{
    OSOCTET bits[(mostCces + 7) / 8];

    // Whether it was not there.
    bool add(OSUINT32 cce)
    {
        if (cce >= mostCces)
        {
            return false;
        }
        OSOCTET& octet = bits[cce / 8];
        const auto bit = static_cast<OSOCTET>(1U << cce % 8);
        const bool isNew = (octet & bit) == 0;
        octet = static_cast<OSOCTET>(octet | bit);
        return isNew;
    }
};

using LoadSets = std::span<const LoadSet>;

// Of the occasions of one CORESET that begin at one symbol; bit i of `active` for set i.
Load loadOf(LoadSets sets, OSUINT32 active, OSUINT32 coreset, OSUINT32 symbol)
{
    Load load{};
    CceSet used{};
    OSUINT32 ueCces = 0;
    for (OSUINT32 level = 0; level < levelCount; ++level)
    {
        const OSUINT32 size = 1U << level;
        CceSet starts{};
        OSUINT32 common = 0;
        OSUINT32 fallback = 0;
        OSUINT32 other = 0;
        for (size_t i = 0; i < sets.size(); ++i)
        {
            const LoadSet& set = sets[i];
            const bool isHere = (active >> i & 1) != 0 && set.coreset == coreset && (set.symbols >> symbol & 1) != 0;
            if (!isHere || size > set.region.cces)
            {
                continue;
            }
            const OSUINT32 count = set.candidates[level];
            if (set.isCommon)
            {
                for (OSUINT32 m = 0; m < count; ++m)
                {
                    const OSUINT32 start = nrCandidateStart(0, m, count, size, set.region.cces);
                    common += starts.add(start) ? 1 : 0;
                    for (OSUINT32 cce = start; cce < start + size; ++cce)
                    {
                        load.cces += used.add(cce) ? 1 : 0;
                    }
                }
                continue;
            }
            const OSUINT32 different = std::min(count, set.region.cces / size);
            OSUINT32& kind = set.isFallback ? fallback : other;
            kind = std::max(kind, different);
            ueCces = std::max(ueCces, different * size);
        }
        load.candidates += std::max(common, fallback) + other;
    }
    load.cces = std::max(load.cces, ueCces);
    return load;
}

Load loadOf(LoadSets sets, OSUINT32 active)
{
    Load load{};
    for (size_t i = 0; i < sets.size(); ++i)
    {
        OSUINT32 left = (active >> i & 1) != 0 ? sets[i].symbols : 0;
        for (size_t k = 0; k < i; ++k)
        {
            left &= (active >> k & 1) != 0 && sets[k].coreset == sets[i].coreset ? ~sets[k].symbols : ~0U;
        }
        for (OSUINT32 symbol = 0; symbol < NR_SYMBOLS; ++symbol)
        {
            if ((left >> symbol & 1) != 0)
            {
                const Load here = loadOf(sets, active, sets[i].coreset, symbol);
                load.candidates += here.candidates;
                load.cces += here.cces;
            }
        }
    }
    return load;
}

constexpr size_t mostLoadSets = 32;

Vector<LoadSet> loadSetsOf(Check& check, Bwp& bwp, const Pdcch& pdcch)
{
    Vector<LoadSet> sets;
    for (const SearchSpaceEntry& entry : pdcch.allSearchSpaces)
    {
        const SearchSpace& space = *entry.element;
        const auto* const id = coresetIdOf(space);
        const Known<Monitoring> when = monitoringOf(space);
        const auto* const common = commonType(check.tree, space);
        const auto* const specific = ueSpecificType(check.tree, space);
        if (id == nullptr || !when || (common == nullptr && specific == nullptr) || isOnlyFormat20(check, space))
        {
            continue;
        }
        const Known<Region> region = regionOf(check.model, bwp, *id);
        if (!check.decided(region) || sets.size() == mostLoadSets)
        {
            continue;
        }
        LoadSet set{};
        set.coreset = *id;
        set.region = *region;
        set.when = *when;
        set.symbols = firstSymbolsOf(space);
        set.isCommon = common != nullptr;
        set.isFallback =
            specific != nullptr &&
            specific->dci_Formats == SearchSpace_searchSpaceType_ue_Specific_dci_Formats_formats0_0_And_1_0;
        for (OSUINT32 level = 0; level < levelCount; ++level)
        {
            set.candidates[level] = candidatesOf(space, level);
            set.nominal += set.candidates[level];
            set.nominalCces += set.candidates[level] << level;
        }
        const auto occasions = static_cast<OSUINT32>(std::popcount(set.symbols));
        set.nominal *= occasions;
        set.nominalCces *= occasions;
        sets.add(check.model.memory, set);
    }
    return sets;
}

// Search spaces whose load in one slot is known to be below the limits, and so is that of a part of them.
class BelowLimits
{
public:
    bool has(OSUINT32 active) const
    {
        return std::any_of(std::begin(known_), std::end(known_), [=](OSUINT32 all) { return (active & ~all) == 0; });
    }
    void add(OSUINT32 active)
    {
        known_[next_++ % std::size(known_)] = active;
    }

private:
    OSUINT32 known_[64] = {};
    size_t next_ = 0;
};

// The first slot whose load is above the limits; false where there is none.
bool isOverloaded(LoadSets sets, OSUINT32 among, OSUINT32 mu, OSUINT32& slot, Load& load)
{
    const auto isAbove = [&](const Load& of)
    {
        return of.candidates > nrMostCandidates(mu) || of.cces > nrMostCces(mu);
    };
    if (!isAbove(loadOf(sets, among))) // were all of them in one slot
    {
        return false;
    }
    OSUINT32 period = 1;
    for (size_t i = 0; i < sets.size(); ++i)
    {
        // Each period is a multiple of the smaller ones, but for 5 beside powers of two.
        period = (among >> i & 1) != 0 ? std::lcm(period, sets[i].when.period) : period;
    }
    OSUINT32 phases[mostLoadSets]; // slots since the last beginning of an occasion
    for (size_t i = 0; i < sets.size(); ++i)
    {
        phases[i] = (sets[i].when.period - sets[i].when.offset % sets[i].when.period) % sets[i].when.period;
    }
    BelowLimits below;
    for (slot = 0; slot < period; ++slot)
    {
        OSUINT32 active = 0;
        OSUINT32 nominal = 0;
        OSUINT32 nominalCces = 0;
        for (size_t i = 0; i < sets.size(); ++i)
        {
            if ((among >> i & 1) != 0 && phases[i] < sets[i].when.duration)
            {
                active |= 1U << i;
                nominal += sets[i].nominal;
                nominalCces += sets[i].nominalCces;
            }
            phases[i] = phases[i] + 1 == sets[i].when.period ? 0 : phases[i] + 1;
        }
        if ((nominal <= nrMostCandidates(mu) && nominalCces <= nrMostCces(mu)) || below.has(active))
        {
            continue;
        }
        load = loadOf(sets, active);
        if (isAbove(load))
        {
            return true;
        }
        below.add(active);
    }
    return false;
}

// No slot has more candidates or CCEs than a UE monitors.
void pdcchBlindLimit(Check& check)
{
    forPdcch(check,
             [&](Bwp& bwp, const Pdcch& pdcch)
             {
                 const Known<OSUINT32> mu = bwp.mu();
                 if (pdcch.allSearchSpaces.empty() || !check.decided(mu) || nrMostCandidates(*mu) == 0)
                 {
                     return;
                 }
                 const Vector<LoadSet> all = loadSetsOf(check, bwp, pdcch);
                 const LoadSets sets(all.begin(), all.size());
                 OSUINT32 common = 0;
                 for (size_t i = 0; i < sets.size(); ++i)
                 {
                     common |= sets[i].isCommon ? 1U << i : 0;
                 }
                 OSUINT32 slot = 0;
                 Load load{};
                 const bool isOfCommon = isOverloaded(sets, common, *mu, slot, load);
                 if (!isOfCommon && !isOverloaded(sets, ~0U, *mu, slot, load))
                 {
                     return;
                 }
                 const bool isError = isOfCommon || !bwp.cell->isSpCell();
                 const auto* const at =
                     bwp.pdcch != nullptr ? &bwp.pdcch->searchSpacesToAddModList : &pdcch.common->commonSearchSpaceList;
                 (isError ? check.error(at) : check.warning(at))
                     .found("at least %u candidates and %u CCEs in slot %u%s", load.candidates, load.cces, slot,
                            isOfCommon ? " of common search spaces alone" : "")
                     .allowed("at %u kHz a UE monitors %u and %u", khzOf(*mu), nrMostCandidates(*mu), nrMostCces(*mu));
             });
}

// Formats 0_0/1_0, 0_1 and 1_1 leave one of four sizes for groups.
void pdcchDciSizes(Check& check)
{
    // What 1_0 can have: 28 bits and those of a resource allocation among 11 to 275 resource blocks.
    const auto maybeFallback = [](OSUINT32 bits)
    {
        return bits >= 28 + 7 && bits <= 28 + 16;
    };
    forPdcch(check,
             [&](const Bwp& bwp, const Pdcch& pdcch)
             {
                 const MonitoredFormats formats = monitoredFormats(check, pdcch);
                 const SlotFormatIndicator* const slots = slotFormatIndicatorOf(check, *bwp.cell);
                 const DownlinkPreemption* const preemption = preemptionOf(check, bwp);
                 if (!formats.fallback || !formats.other || !formats.slots || !formats.preemption || slots == nullptr ||
                     preemption == nullptr)
                 {
                     return;
                 }
                 const OSUINT32 first = slots->dci_PayloadSize;
                 const OSUINT32 second = preemption->dci_PayloadSize;
                 if (first != second && !maybeFallback(first) && !maybeFallback(second))
                 {
                     check.warning(&preemption->dci_PayloadSize)
                         .allowed("format 2_0 has %u bits: with 0_0/1_0, 0_1 and 1_1 these are five sizes, and a UE "
                                  "monitors four",
                                  first);
                 }
             });
}

constexpr Rule pdcchSearchSpacesTable[] = {
    {.told = {.id = "pdcch-ss-new-incomplete",
              .severity = RRC_RULE_ERROR,
              .statement = "A new search space has its CORESET, period, symbols, candidates and type; one that is "
                           "modified does not name its CORESET again.",
              .advice = "Send the whole search space, or release and add it in the same message.",
              .clause = "TS 38.331 SearchSpace, Cond Setup, SetupOnly",
              .given = "",
              .bad = AT_SPACE "monitoringSymbolsWithinSlot = absent",
              .good = AT_SPACE "monitoringSymbolsWithinSlot = 8000",
              .since = "0.1.0"},
     .run = pdcchSsNewIncomplete},
    {.told = {.id = "pdcch-ss-coreset-ref",
              .severity = RRC_RULE_ERROR,
              .statement = "The CORESET of a search space is 0 or one of the same bandwidth part.",
              .advice = "Add the CORESET to that bandwidth part, or name one that it has.",
              .clause = "TS 38.331 SearchSpace",
              .given = "",
              .bad = AT_SPACE "controlResourceSetId = 4",
              .good = AT_SPACE "controlResourceSetId = 3",
              .since = "0.1.0"},
     .run = pdcchSsCoresetRef},
    {.told = {.id = "pdcch-ss-symbols",
              .severity = RRC_RULE_ERROR,
              .statement = "A search space is monitored from at least one symbol on, each occasion lies within the "
                           "slot, and occasions of one CORESET do not overlap.",
              .advice = "Leave as many symbols between first symbols as the CORESET has.",
              .clause = "TS 38.213 10.1",
              .given = "",
              .bad = AT_SPACE "monitoringSymbolsWithinSlot = C000\n" // symbols 0-1 and 1-2
              ,
              .good = AT_SPACE "monitoringSymbolsWithinSlot = A000",
              .since = "0.1.0"},
     .run = pdcchSsSymbols},
    {.told = {.id = "pdcch-ss-late-symbols",
              .severity = RRC_RULE_ERROR,
              .statement = "Above 15 kHz, where all search spaces share one span of three symbols, it lies within the "
                           "first three of the slot; any other occasion beyond them needs a capability.",
              .advice = "Monitor within the first three symbols.",
              .clause = "TS 38.213 10.1; TS 38.306",
              .given = "",
              .bad = AT_SPACE "monitoringSymbolsWithinSlot = 0800\n" // symbols 4-5
              AT_FALLBACK_SPACE "monitoringSymbolsWithinSlot = 0800\n" AT_COMMON_SPACE
                              "monitoringSymbolsWithinSlot = 0800",
              .good =
                  AT_SPACE "monitoringSymbolsWithinSlot = 4000\n" AT_FALLBACK_SPACE
                           "monitoringSymbolsWithinSlot = 4000\n" AT_COMMON_SPACE "monitoringSymbolsWithinSlot = 4000",
              .since = "0.1.0"},
     .run = pdcchSsLateSymbols},
    {.told = {.id = "pdcch-ss-duration",
              .severity = RRC_RULE_ERROR,
              .statement = "The duration of a search space is less than its period; with DCI format 2_0 it is ignored.",
              .advice = "Shorten the duration, or leave it out.",
              .clause = "TS 38.331 SearchSpace",
              .given = "",
              .bad = AT_COMMON_SPACE "duration = 20",
              .good = AT_COMMON_SPACE "duration = 19",
              .since = "0.1.0"},
     .run = pdcchSsDuration},
    {.told = {.id = "pdcch-ss-candidates",
              .severity = RRC_RULE_ERROR,
              .statement = "A search space has a candidate of some aggregation level, each level fits into the CCEs of "
                           "its CORESET, and so do all candidates of a level side by side.",
              .advice = "Take away candidates of high levels, or widen the CORESET.",
              .clause = "TS 38.213 10.1",
              .given = "",
              .bad = AT_FALLBACK_SPACE "nrofCandidates.aggregationLevel16 = n1\n" AT_CORESET
                                       "frequencyDomainResources = FC0000000000\n" // 12 CCEs
              ,
              .good = AT_FALLBACK_SPACE "nrofCandidates.aggregationLevel16 = n1\n" AT_CORESET
                                        "frequencyDomainResources = FF0000000000\n" // 16 of them
              ,
              .since = "0.1.0"},
     .run = pdcchSsCandidates},
    {.told = {.id = "pdcch-blind-limit",
              .severity = RRC_RULE_ERROR,
              .statement = "No slot has more PDCCH candidates (44, 36, 22, 20 at 15 to 120 kHz) or CCEs (56, 56, 48, "
                           "32) than a UE monitors: not of common search spaces, nor of an SCell; of UE-specific ones "
                           "on the SpCell the UE drops what is too much.",
              .advice = "Take away candidates, or move search spaces to other slots.",
              .clause = "TS 38.213 10.1, tables 10.1-2, 10.1-3",
              .given = "",
              .bad = AT_COMMON_SPACE "monitoringSymbolsWithinSlot = A000\n" AT_COMMON_SPACE
                                     "nrofCandidates.aggregationLevel1 = n8\n" AT_COMMON_SPACE
                                     "nrofCandidates.aggregationLevel2 = n8\n" AT_COMMON_SPACE
                                     "nrofCandidates.aggregationLevel4 = n4\n" AT_COMMON_SPACE
                                     "nrofCandidates.aggregationLevel8 = n2",
              .good = AT_COMMON_SPACE "monitoringSymbolsWithinSlot = A000\n" AT_COMMON_SPACE
                                      "nrofCandidates.aggregationLevel1 = n8\n" AT_COMMON_SPACE
                                      "nrofCandidates.aggregationLevel2 = n4\n" AT_COMMON_SPACE
                                      "nrofCandidates.aggregationLevel4 = n2\n" AT_COMMON_SPACE
                                      "nrofCandidates.aggregationLevel8 = n0",
              .since = "0.1.0"},
     .run = pdcchBlindLimit},
    {.told = {.id = "pdcch-dci-sizes",
              .severity = RRC_RULE_WARNING,
              .statement = "A UE monitors four sizes of DCI: where formats 0_0/1_0, 0_1 and 1_1 take three, formats "
                           "2_0 and 2_1 of a bandwidth part share the fourth.",
              .advice = "Give both formats the same dci-PayloadSize.",
              .clause = "TS 38.213 10.1; TS 38.212 7.3.1.0",
              .given = "",
              .bad = A_PREEMPTION AN_SFI,
              .good = A_PREEMPTION AN_SFI AT_SFI "dci-PayloadSize = 14",
              .since = "0.1.0"},
     .run = pdcchDciSizes},
};

} // namespace

constinit const RuleGroup pdcchSearchSpaceRules = groupOf(pdcchSearchSpacesTable);

} // namespace rules
