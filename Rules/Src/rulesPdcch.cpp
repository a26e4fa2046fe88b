// CORESETs, search spaces, group DCI, cross-carrier scheduling.
#include "examplePaths.h"
#include "rules.h"
#include "searchSpaces.h"

#include <bit>
#include <numeric>

namespace rules
{
namespace
{

// Each downlink bandwidth part with what its PDCCH members list.
template <typename Each>
void forPdcch(Check& check, const Each& each)
{
    for (Cell& cell : check.model.cells())
    {
        for (Bwp& bwp : cell.downlink)
        {
            each(bwp, check.model.pdcch(bwp));
        }
    }
}

template <typename Each>
void forCoresets(Check& check, const Each& each)
{
    forPdcch(check,
             [&](Bwp& bwp, const Pdcch& pdcch)
             {
                 for (const Coreset& coreset : pdcch.allCoresets)
                 {
                     each(bwp, *coreset.element);
                 }
             });
}

template <typename Each>
void forSearchSpaces(Check& check, const Each& each)
{
    forPdcch(check,
             [&](Bwp& bwp, const Pdcch& pdcch)
             {
                 for (const SearchSpaceEntry& entry : pdcch.allSearchSpaces)
                 {
                     each(bwp, entry);
                 }
             });
}

const ControlResourceSetId* coresetIdOf(const SearchSpace& space)
{
    return MEMBER(space, controlResourceSetId);
}

const CrossCarrierSchedulingConfig* crossCarrierOf(const Cell& cell)
{
    return cell.dedicated == nullptr ? nullptr : MEMBER(*cell.dedicated, crossCarrierSchedulingConfig);
}

// What says that another cell schedules this one; null where it schedules itself.
const CrossCarrierSchedulingConfig_schedulingCellInfo_other* schedulerOf(const Check& check, const Cell& cell)
{
    const CrossCarrierSchedulingConfig* const config = crossCarrierOf(cell);
    return config == nullptr ? nullptr
                             : CHOSEN(check.tree, &config->schedulingCellInfo,
                                      CrossCarrierSchedulingConfig_schedulingCellInfo, other);
}

// Whether an SCell may be scheduled by another one as an earlier message has said.
bool mayBeScheduledByOther(const Check& check, const Cell& cell)
{
    return schedulerOf(check, cell) != nullptr ||
           (!cell.isSpCell() && !cell.complete && crossCarrierOf(cell) == nullptr);
}

bool isComplete(const Bwp& bwp)
{
    return bwp.cell->complete || bwp.novelty == Novelty::New;
}

// At most 3 CORESETs and 10 search spaces in a bandwidth part, CORESET#0 and search space 0 among them.
void pdcchCounts(Check& check)
{
    constexpr size_t mostCoresets = 3;
    constexpr size_t mostSearchSpaces = 10;
    forPdcch(check,
             [&](const Bwp& bwp, const Pdcch& pdcch)
             {
                 if (bwp.pdcch == nullptr)
                 {
                     return;
                 }
                 const bool isTold = bwp.isInitial() && bwp.cell->isSpCell() && check.model.known.coreset0 != nullptr;
                 const bool hasCoreset0 =
                     isTold || (pdcch.common != nullptr && pdcch.common->m.controlResourceSetZeroPresent != 0);
                 const bool hasSpace0 = pdcch.common != nullptr && pdcch.common->m.searchSpaceZeroPresent != 0;
                 const size_t coresets = pdcch.allCoresets.size() + (hasCoreset0 ? 1 : 0);
                 const size_t spaces = pdcch.allSearchSpaces.size() + (hasSpace0 ? 1 : 0);
                 if (coresets > mostCoresets)
                 {
                     check.error(&bwp.pdcch->controlResourceSetToAddModList)
                         .found("%zu CORESETs%s", coresets, hasCoreset0 ? " with CORESET#0" : "")
                         .allowed("a bandwidth part has at most %zu, the common ones among them", mostCoresets);
                 }
                 if (spaces > mostSearchSpaces)
                 {
                     check.error(&bwp.pdcch->searchSpacesToAddModList)
                         .found("%zu search spaces%s", spaces, hasSpace0 ? " with search space 0" : "")
                         .allowed("a bandwidth part has at most %zu, the common ones among them", mostSearchSpaces);
                 }
             });
}

// Where an id of CORESETs or search spaces stands.
struct NamedAt
{
    OSUINT32 id;
    const OSUINT8* at;
    OSUINT8 bwp;
    bool isCommon;
};

// Each id is used once in a cell; of the same list gen-dup-id tells.
void uniqueIds(Check& check, const Vector<NamedAt>& all, const char* what)
{
    for (size_t i = 0; i < all.size(); ++i)
    {
        if (all[i].id == 0 && !all[i].isCommon) // of the common ones pdcch-common-list tells
        {
            check.error(all[i].at).allowed("0 is the %s that the initial bandwidth part has without a list", what);
            continue;
        }
        for (size_t k = 0; k < i; ++k)
        {
            const bool isSameList = all[k].bwp == all[i].bwp && all[k].isCommon == all[i].isCommon;
            if (all[k].id == all[i].id && all[i].id != 0 && !isSameList)
            {
                check.error(all[i].at).allowed("%s bandwidth part %u has a %s of that id",
                                               all[k].isCommon ? "the common part of" : "", all[k].bwp, what);
                break;
            }
        }
    }
}

// Ids of CORESETs and search spaces are not 0 and unique among the bandwidth parts of a cell.
void pdcchIds(Check& check)
{
    for (Cell& cell : check.model.cells())
    {
        Vector<NamedAt> coresets;
        Vector<NamedAt> spaces;
        for (Bwp& bwp : cell.downlink)
        {
            const Pdcch& pdcch = check.model.pdcch(bwp);
            for (const Coreset& coreset : pdcch.allCoresets)
            {
                coresets.add(check.model.memory,
                             {coreset.id, &coreset.element->controlResourceSetId, bwp.id, coreset.isCommon});
            }
            for (const SearchSpaceEntry& space : pdcch.allSearchSpaces)
            {
                spaces.add(check.model.memory, {space.id, &space.element->searchSpaceId, bwp.id, space.isCommon});
            }
        }
        uniqueIds(check, coresets, "CORESET");
        uniqueIds(check, spaces, "search space");
    }
}

// The last group of six resource blocks that frequencyDomainResources sets, counted from 0; -1 where none is.
int lastGroup(const ControlResourceSet& coreset)
{
    int last = -1;
    for (OSUINT32 i = 0; i < coresetBits; ++i)
    {
        last = hasBit(coreset.frequencyDomainResources, i) ? static_cast<int>(i) : last;
    }
    return last;
}

// frequencyDomainResources sets a bit, and none beyond the bandwidth part.
void pdcchCoresetBits(Check& check)
{
    forCoresets(check,
                [&](const Bwp& bwp, const ControlResourceSet& coreset)
                {
                    const auto* const bits = &coreset.frequencyDomainResources;
                    const int last = lastGroup(coreset);
                    if (last < 0)
                    {
                        check.error(bits).allowed("a CORESET has at least one group of resource blocks");
                        return;
                    }
                    const Known<NrSpan> rbs = bwp.rbs();
                    if (!check.decided(rbs))
                    {
                        return;
                    }
                    // Without its carrier a bandwidth part may begin at a multiple of 6.
                    const Known<const SCS_SpecificCarrier*> carrier = check.model.carrier(bwp);
                    const bool isPlaced = check.decided(carrier) && *carrier != nullptr;
                    const OSUINT32 start = isPlaced ? (*carrier)->offsetToCarrier + rbs->start : 0;
                    const OSUINT32 groups = nrCoresetGroups(start, rbs->size);
                    if (static_cast<OSUINT32>(last) >= groups)
                    {
                        check.error(bits)
                            .found("bit %d", last)
                            .allowed("a bandwidth part of %u PRB%s has %u groups of 6", rbs->size,
                                     start % 6 == 0 ? "" : " that begins within a group", groups);
                    }
                });
}

constexpr OSUINT32 bundleSizes[] = {2, 3, 6}; // of reg-BundleSize and interleaverSize

// The interleaver of a CORESET is a whole rectangle of REG bundles.
void pdcchCoresetInterleaver(Check& check)
{
    forCoresets(check,
                [&](const Bwp&, const ControlResourceSet& coreset)
                {
                    const auto* const mapping = CHOSEN(check.tree, &coreset.cce_REG_MappingType,
                                                       ControlResourceSet_cce_REG_MappingType, interleaved);
                    if (mapping == nullptr || mapping->reg_BundleSize >= std::size(bundleSizes) ||
                        mapping->interleaverSize >= std::size(bundleSizes))
                    {
                        return;
                    }
                    const OSUINT32 bundle = bundleSizes[mapping->reg_BundleSize];
                    const OSUINT32 rows = bundleSizes[mapping->interleaverSize];
                    const OSUINT32 rbs = 6 * bitsSet(coreset.frequencyDomainResources, coresetBits);
                    if (nrCoresetBundleFits(coreset.duration, bundle) == 0)
                    {
                        check.error(&mapping->reg_BundleSize)
                            .allowed("a CORESET of %u symbol%s has n%u or n6", coreset.duration,
                                     coreset.duration == 1 ? "" : "s", coreset.duration == 1 ? 2U : coreset.duration);
                    }
                    else if (nrCoresetInterleaverFits(rbs, coreset.duration, bundle, rows) == 0)
                    {
                        check.error(&mapping->interleaverSize)
                            .allowed("%u PRB x %u symbols are %u REGs, which bundles of %u x %u rows do not divide",
                                     rbs, coreset.duration, rbs * coreset.duration, bundle, rows);
                    }
                });
}

// Three symbols leave no room for DM-RS at symbol 2.
void pdcchCoresetDur3(Check& check)
{
    forCoresets(check,
                [&](const Bwp& bwp, const ControlResourceSet& coreset)
                {
                    if (coreset.duration != 3)
                    {
                        return;
                    }
                    const Known<OSUINT32> position = typeAPosition(check.model, *bwp.cell);
                    if (check.decided(position) && *position != 3)
                    {
                        check.error(&coreset.duration).allowed("dmrs-TypeA-Position is pos%u", *position);
                    }
                });
}

OSUINT32 runsOf(const ControlResourceSet& coreset)
{
    OSUINT32 runs = 0;
    bool wasSet = false;
    for (OSUINT32 i = 0; i < coresetBits; ++i)
    {
        const bool isSet = hasBit(coreset.frequencyDomainResources, i);
        runs += isSet && !wasSet ? 1 : 0;
        wasSet = isSet;
    }
    return runs;
}

// From `first` to before `last`, in any unit.
struct Range
{
    uint64_t first;
    uint64_t last;

    bool overlaps(const Range& other) const
    {
        return first < other.last && other.first < last;
    }
};

// Of the LTE carrier's symbols those with cell-specific reference signals, bit i for symbol i.
OSUINT32 crsSymbols(const RateMatchPatternLTE_CRS& crs)
{
    constexpr OSUINT32 ofTwoPorts = 1U << 0 | 1U << 4 | 1U << 7 | 1U << 11;
    constexpr OSUINT32 ofFour = ofTwoPorts | 1U << 1 | 1U << 8;
    return crs.nrofCRS_Ports == RateMatchPatternLTE_CRS_nrofCRS_Ports_n4 ? ofFour : ofTwoPorts;
}

// A CORESET in a search space, for what it may run into. Frequencies are counted in kHz from point A.
class Footprint
{
public:
    Footprint(Check& check, Bwp& bwp, const ControlResourceSet& coreset, const SearchSpace& space)
        : check_(check), bwp_(bwp), coreset_(coreset), symbols_(occupied(coreset, space)), when_(monitoringOf(space))
    {
        const Known<NrSpan> rbs = bwp.rbs();
        const Known<const SCS_SpecificCarrier*> carrier = check.model.carrier(bwp);
        isKnown_ = check.decided(rbs) && check.decided(carrier) && *carrier != nullptr && check.decided(when_);
        if (isKnown_)
        {
            mu_ = *bwp.mu();
            bwpStart_ = (*carrier)->offsetToCarrier + rbs->start;
        }
    }

    // An SS/PBCH block that is sent. In which half frames is not known: only a search space that is monitored in all
    // half frames alike runs into it for certain.
    bool meetsSsb() const
    {
        const Cell& cell = *bwp_.cell;
        const FrequencyInfoDL* const frequency = cell.frequencyDl();
        if (!isKnown_ || frequency == nullptr || frequency->m.absoluteFrequencySSBPresent == 0 ||
            cell.common->m.ssbSubcarrierSpacingPresent == 0)
        {
            return false;
        }
        const OSUINT32 mu = muOf(cell.common->ssbSubcarrierSpacing);
        const NrBand* const band = cell.band ? nrBand(*cell.band) : nullptr;
        const Known<SsbPositions> positions = ssbPositions(check_.model, cell);
        const uint64_t middle = nrArfcnKhz(frequency->absoluteFrequencySSB);
        const uint64_t pointA = nrArfcnKhz(frequency->absoluteFrequencyPointA);
        const uint64_t half = uint64_t{NR_SSB_RBS} / 2 * 12 * khzOf(mu);
        constexpr OSUINT32 msOfHalfFrame = 5;
        const bool isSame = (msOfHalfFrame << mu_) % when_->period == 0;
        if (band == nullptr || !positions || middle < pointA + half || !isSame ||
            !isAt({middle - half - pointA, middle + half - pointA}))
        {
            return false;
        }
        for (OSUINT32 index = 0; index < positions->count; ++index)
        {
            OSUINT32 symbol = 0;
            if (positions->isSent(index) && nrSsbFirstSymbol(mu, band->hasCaseB, index, &symbol) != 0 &&
                isDuring(mu, symbol, NR_SSB_SYMBOLS))
            {
                return true;
            }
        }
        return false;
    }

    bool meetsCrs(const RateMatchPatternLTE_CRS& crs) const
    {
        static constexpr OSUINT32 widths[] = {6, 15, 25, 50, 75, 100};
        if (!isKnown_ || mu_ != 0 || crs.m.mbsfn_SubframeConfigListPresent != 0 ||
            crs.carrierBandwidthDL >= std::size(widths) || (crsSymbols(crs) & symbols_) == 0)
        {
            return false;
        }
        constexpr OSUINT32 spacing = 15;
        const OSUINT32 half = widths[crs.carrierBandwidthDL] * 6;
        return crs.carrierFreqDL >= half &&
               isAt({uint64_t{crs.carrierFreqDL - half} * spacing, uint64_t{crs.carrierFreqDL + half} * spacing});
    }

private:
    static OSUINT32 occupied(const ControlResourceSet& coreset, const SearchSpace& space)
    {
        OSUINT32 symbols = 0;
        for (OSUINT32 i = 0; i < coreset.duration && i < NR_SYMBOLS; ++i)
        {
            symbols |= firstSymbolsOf(space) << i;
        }
        return symbols;
    }

    bool isAt(const Range& kilohertz) const
    {
        for (OSUINT32 i = 0; i < coresetBits; ++i)
        {
            const uint64_t width = uint64_t{12} * khzOf(mu_);
            const uint64_t first = bwpStart_ + nrCoresetGroupStart(bwpStart_, i);
            if (hasBit(coreset_.frequencyDomainResources, i) &&
                kilohertz.overlaps({first * width, (first + 6) * width}))
            {
                return true;
            }
        }
        return false;
    }

    // Symbols of a half frame at another spacing.
    bool isDuring(OSUINT32 mu, OSUINT32 first, OSUINT32 count) const
    {
        const Range other{uint64_t{first} << (highestMu - mu), uint64_t{first + count} << (highestMu - mu)};
        const OSUINT32 finer = highestMu - mu_;
        const uint64_t from = (other.first >> finer) / NR_SYMBOLS;
        const uint64_t to = (other.last >> finer) / NR_SYMBOLS;
        for (uint64_t slot = from; slot <= to; ++slot)
        {
            for (OSUINT32 i = 0; i < NR_SYMBOLS && when_->isIn(static_cast<OSUINT32>(slot)); ++i)
            {
                const uint64_t symbol = slot * NR_SYMBOLS + i;
                if ((symbols_ >> i & 1) != 0 && other.overlaps({symbol << finer, (symbol + 1) << finer}))
                {
                    return true;
                }
            }
        }
        return false;
    }

    Check& check_;
    const Bwp& bwp_;
    const ControlResourceSet& coreset_;
    OSUINT32 symbols_;
    Known<Monitoring> when_;
    bool isKnown_ = false;
    OSUINT32 mu_ = 0;
    OSUINT32 bwpStart_ = 0;
};

const RateMatchPatternLTE_CRS* crsOf(const Check& check, const Cell& cell)
{
    const RateMatchPatternLTE_CRS* const dedicated =
        cell.dedicated == nullptr ? nullptr : check.tree.setup(ADDITION(*cell.dedicated, 2, lte_CRS_ToMatchAround));
    return dedicated != nullptr     ? dedicated
           : cell.common == nullptr ? nullptr
                                    : check.tree.setup(MEMBER(*cell.common, lte_CRS_ToMatchAround));
}

// With DM-RS in all of its resource blocks a CORESET has few gaps, and nothing else within it.
void pdcchCoresetContiguous(Check& check)
{
    constexpr OSUINT32 mostRuns = 4;
    const auto isWide = [](const ControlResourceSet& coreset)
    {
        return coreset.precoderGranularity == ControlResourceSet_precoderGranularity_allContiguousRBs;
    };
    forCoresets(check,
                [&](const Bwp&, const ControlResourceSet& coreset)
                {
                    if (isWide(coreset) && runsOf(coreset) > mostRuns)
                    {
                        check.error(&coreset.frequencyDomainResources)
                            .found("%u separate runs of resource blocks", runsOf(coreset))
                            .allowed("with allContiguousRBs there are at most %u", mostRuns);
                    }
                });
    forSearchSpaces(check,
                    [&](Bwp& bwp, const SearchSpaceEntry& entry)
                    {
                        const auto* const id = coresetIdOf(*entry.element);
                        const Coreset* const coreset = id == nullptr ? nullptr : check.model.pdcch(bwp).coreset(*id);
                        if (coreset == nullptr || !isWide(*coreset->element))
                        {
                            return;
                        }
                        const Footprint print(check, bwp, *coreset->element, *entry.element);
                        const RateMatchPatternLTE_CRS* const crs = crsOf(check, *bwp.cell);
                        const bool meetsSsb = print.meetsSsb();
                        if (meetsSsb || (crs != nullptr && print.meetsCrs(*crs)))
                        {
                            check.error(id)
                                .found("CORESET %u with allContiguousRBs", *id)
                                .allowed("the occasions of search space %u overlap %s", entry.id,
                                         meetsSsb ? "an SS/PBCH block" : "lte-CRS-ToMatchAround");
                        }
                    });
}

// TCI states of a CORESET are among those of PDSCH in its bandwidth part.
void pdcchCoresetTci(Check& check)
{
    forCoresets(check,
                [&](Bwp& bwp, const ControlResourceSet& coreset)
                {
                    const Pdcch& pdcch = check.model.pdcch(bwp);
                    const auto* const added = MEMBER(coreset, tci_StatesPDCCH_ToAddList);
                    const auto* const removed = MEMBER(coreset, tci_StatesPDCCH_ToReleaseList);
                    const bool isOfInitial = bwp.isInitial() && pdcch.common != nullptr &&
                                             &coreset == &pdcch.common->commonControlResourceSet;
                    if (isOfInitial)
                    {
                        if (added != nullptr)
                        {
                            check.error(added).allowed("the common CORESET of the initial bandwidth part has none");
                        }
                        if (removed != nullptr)
                        {
                            check.error(removed).allowed("the common CORESET of the initial bandwidth part has none");
                        }
                        return;
                    }
                    for (const auto& id : entries(added))
                    {
                        check.resolve(check.model.pdsch(bwp).tciStates, id, &id, "a TCI state");
                    }
                });
}

// tci-PresentInDCI goes with TCI states.
void pdcchTciPresent(Check& check)
{
    forCoresets(check,
                [&](Bwp& bwp, const ControlResourceSet& coreset)
                {
                    const auto* const given = MEMBER(coreset, tci_PresentInDCI);
                    const Ids<TCI_State>& states = check.model.pdsch(bwp).tciStates;
                    if (given != nullptr && states.empty())
                    {
                        states.complete ? (void)check.warning(given).allowed("PDSCH-Config has no TCI states")
                                        : check.undecided(RRC_RULE_INPUT_PREVIOUS);
                    }
                });
    // A cell that another one schedules learns its TCI state by the other's DCI.
    for (Cell& cell : check.model.cells())
    {
        const auto* const scheduler = schedulerOf(check, cell);
        Cell* const other = scheduler == nullptr ? nullptr : check.model.cell(scheduler->schedulingCellId);
        if (other == nullptr)
        {
            continue;
        }
        for (Bwp& bwp : cell.downlink)
        {
            const bool hasStates = !check.model.pdsch(bwp).tciStates.empty();
            for (const SearchSpaceEntry& linked : check.model.pdcch(bwp).allSearchSpaces)
            {
                for (Bwp& schedulingBwp : other->downlink)
                {
                    const Pdcch& pdcch = check.model.pdcch(schedulingBwp);
                    const SearchSpaceEntry* const space = pdcch.searchSpace(linked.id);
                    const auto* const id = space == nullptr ? nullptr : coresetIdOf(*space->element);
                    const Coreset* const coreset = id == nullptr ? nullptr : pdcch.coreset(*id);
                    if (hasStates && coreset != nullptr && coreset->element->m.tci_PresentInDCIPresent == 0)
                    {
                        check.warning(&coreset->element->tci_PresentInDCI)
                            .allowed("search space %u schedules the TCI states of another cell", linked.id);
                    }
                }
            }
        }
    }
}

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
                        if (id == nullptr || *id == 0 || pdcch.coreset(*id) != nullptr)
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
                 // Of common search spaces with id 0 the symbols are the table's.
                 const bool isWhole = pdcch.searchSpaces.complete && pdcch.isCommonKnown &&
                                      (pdcch.common == nullptr || pdcch.common->m.searchSpaceZeroPresent == 0);
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

// The first slot whose load is above the limits; false where there is none.
bool isOverloaded(LoadSets sets, OSUINT32 among, OSUINT32 mu, OSUINT32& slot, Load& load)
{
    OSUINT32 period = 1;
    for (size_t i = 0; i < sets.size(); ++i)
    {
        // Each period is a multiple of the smaller ones, but for 5 beside powers of two.
        period = (among >> i & 1) != 0 ? std::lcm(period, sets[i].when.period) : period;
    }
    OSUINT32 lastActive = 0;
    for (slot = 0; slot < period; ++slot)
    {
        OSUINT32 active = 0;
        OSUINT32 nominal = 0;
        OSUINT32 nominalCces = 0;
        for (size_t i = 0; i < sets.size(); ++i)
        {
            if ((among >> i & 1) != 0 && sets[i].when.isIn(slot))
            {
                active |= 1U << i;
                nominal += sets[i].nominal;
                nominalCces += sets[i].nominalCces;
            }
        }
        if (active == lastActive || (nominal <= nrMostCandidates(mu) && nominalCces <= nrMostCces(mu)))
        {
            continue;
        }
        lastActive = active;
        load = loadOf(sets, active);
        if (load.candidates > nrMostCandidates(mu) || load.cces > nrMostCces(mu))
        {
            return true;
        }
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

const SlotFormatIndicator* slotFormatIndicatorOf(const Check& check, const Cell& cell)
{
    const PDCCH_ServingCellConfig* const config =
        cell.dedicated == nullptr ? nullptr : check.tree.setup(MEMBER(*cell.dedicated, pdcch_ServingCellConfig));
    return config == nullptr ? nullptr : check.tree.setup(MEMBER(*config, slotFormatIndicator));
}

const DownlinkPreemption* preemptionOf(const Check& check, const Bwp& bwp)
{
    return bwp.pdcch == nullptr ? nullptr : check.tree.setup(MEMBER(*bwp.pdcch, downlinkPreemption));
}

// What the search spaces of a bandwidth part monitor.
struct Formats
{
    bool fallback;   // 0_0 and 1_0
    bool other;      // 0_1 and 1_1
    bool slots;      // 2_0
    bool preemption; // 2_1
};

Formats formatsOf(const Check& check, const Pdcch& pdcch)
{
    Formats formats{};
    for (const SearchSpaceEntry& entry : pdcch.allSearchSpaces)
    {
        if (const auto* const common = commonType(check.tree, *entry.element))
        {
            formats.fallback = formats.fallback || common->m.dci_Format0_0_AndFormat1_0Present != 0;
            formats.slots = formats.slots || common->m.dci_Format2_0Present != 0;
            formats.preemption = formats.preemption || common->m.dci_Format2_1Present != 0;
        }
        if (const auto* const specific = ueSpecificType(check.tree, *entry.element))
        {
            const bool isOther =
                specific->dci_Formats == SearchSpace_searchSpaceType_ue_Specific_dci_Formats_formats0_1_And_1_1;
            (isOther ? formats.other : formats.fallback) = true;
        }
    }
    return formats;
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
                 const Formats formats = formatsOf(check, pdcch);
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

// What is common has an id other than 0 and is of that type.
void pdcchCommonList(Check& check)
{
    forPdcch(check,
             [&](const Bwp&, const Pdcch& pdcch)
             {
                 if (pdcch.common == nullptr)
                 {
                     return;
                 }
                 const auto* const coreset = MEMBER(*pdcch.common, commonControlResourceSet);
                 if (coreset != nullptr && coreset->controlResourceSetId == 0)
                 {
                     check.error(&coreset->controlResourceSetId).allowed("0 is CORESET#0: controlResourceSetZero");
                 }
                 for (const SearchSpace& space :
                      check.tree.list<SearchSpace>(MEMBER(*pdcch.common, commonSearchSpaceList)))
                 {
                     const auto* const type = MEMBER(space, searchSpaceType);
                     if (space.searchSpaceId == 0)
                     {
                         check.error(&space.searchSpaceId).allowed("0 is searchSpaceZero");
                     }
                     if (type != nullptr && type->t != T_SearchSpace_searchSpaceType_common)
                     {
                         check.error(type).allowed("the list is of common search spaces");
                     }
                 }
             });
}

// Whether a bandwidth part certainly does not contain CORESET#0 with its spacing and prefix, and why.
const char* lacksCoreset0(Check& check, const Bwp& bwp)
{
    const Bwp* const initial = bwp.cell->bwp(Direction::Downlink, 0);
    if (initial == nullptr || initial->generic == nullptr || bwp.generic == nullptr)
    {
        return nullptr;
    }
    if (initial->generic->subcarrierSpacing != bwp.generic->subcarrierSpacing)
    {
        return "CORESET#0 has another subcarrier spacing";
    }
    if (initial->isExtended() != bwp.isExtended())
    {
        return "CORESET#0 has another cyclic prefix";
    }
    const Known<NrCoreset0> coreset = coreset0Of(check.model, *bwp.cell);
    const Known<NrSpan> rbs = bwp.rbs();
    return coreset && rbs && rbs->size < coreset->rbs ? "CORESET#0 is wider than the bandwidth part" : nullptr;
}

// Search spaces for common purposes are there.
void pdcchCssRefs(Check& check)
{
    forPdcch(check,
             [&](const Bwp& bwp, const Pdcch& pdcch)
             {
                 if (pdcch.common == nullptr)
                 {
                     return;
                 }
                 const PDCCH_ConfigCommon& common = *pdcch.common;
                 const SearchSpaceId* const ids[] = {MEMBER(common, searchSpaceSIB1),
                                                     MEMBER(common, searchSpaceOtherSystemInformation),
                                                     MEMBER(common, pagingSearchSpace), MEMBER(common, ra_SearchSpace)};
                 for (const SearchSpaceId* const id : ids)
                 {
                     if (id == nullptr)
                     {
                         continue;
                     }
                     const SearchSpaceEntry* const entry = pdcch.searchSpace(*id);
                     const char* const lacks = *id == 0 && !bwp.isInitial() ? lacksCoreset0(check, bwp) : nullptr;
                     const bool isOfPCellSib1 =
                         id == ids[0] && bwp.isInitial() && bwp.cell->isSpCell() && !check.model.isScg();
                     if (isOfPCellSib1 && *id != 0)
                     {
                         check.error(id).allowed("in the initial bandwidth part of the PCell it is 0");
                     }
                     else if (lacks != nullptr)
                     {
                         check.error(id).allowed("%s", lacks);
                     }
                     else if (*id != 0 && entry == nullptr)
                     {
                         check.error(id).allowed("commonSearchSpaceList has none of that id");
                     }
                     else if (*id != 0 && !entry->isCommon)
                     {
                         check.warning(id).allowed(
                             "that search space is in PDCCH-Config, not in commonSearchSpaceList");
                     }
                 }
             });
}

// What only the initial bandwidth part has, and what only others have.
void pdcchInitialOnly(Check& check)
{
    forPdcch(check,
             [&](const Bwp& bwp, const Pdcch& pdcch)
             {
                 if (pdcch.common == nullptr)
                 {
                     return;
                 }
                 const auto* const coreset = MEMBER(*pdcch.common, controlResourceSetZero);
                 const auto* const space = MEMBER(*pdcch.common, searchSpaceZero);
                 const auto* const occasion = ADDITION(*pdcch.common, 2, firstPDCCH_MonitoringOccasionOfPO);
                 if (coreset != nullptr && !bwp.isInitial())
                 {
                     check.error(coreset).allowed("only the initial bandwidth part has it");
                 }
                 if (space != nullptr && !bwp.isInitial())
                 {
                     check.error(space).allowed("only the initial bandwidth part has it");
                 }
                 if (occasion != nullptr && bwp.isInitial())
                 {
                     check.error(occasion).allowed("the initial bandwidth part has it in SIB1 alone");
                 }
                 else if (occasion != nullptr && pdcch.common->m.pagingSearchSpacePresent == 0)
                 {
                     check.error(occasion).allowed("there is no pagingSearchSpace");
                 }
             });
}

// The search space for beam failure recovery has a CORESET of its own.
void pdcchRecoverySs(Check& check)
{
    for (Cell& cell : check.model.cells())
    {
        for (const Bwp& uplink : cell.uplink)
        {
            Bwp* const bwp = cell.bwp(Direction::Downlink, uplink.id);
            if (uplink.bfr == nullptr || bwp == nullptr)
            {
                continue;
            }
            const BeamFailureRecoveryConfig& bfr = *uplink.bfr;
            const SearchSpaceId* const id = MEMBER(bfr, recoverySearchSpaceId);
            const Pdcch& pdcch = check.model.pdcch(*bwp);
            if (id == nullptr)
            {
                if (bfr.m.candidateBeamRSListPresent != 0)
                {
                    check.missing(isComplete(uplink), &bfr.recoverySearchSpaceId)
                        .allowed("candidateBeamRSList is present");
                }
                continue;
            }
            const SearchSpaceEntry* const entry = pdcch.searchSpace(*id);
            if (entry == nullptr)
            {
                check
                    .missing(pdcch.searchSpaces.complete && (pdcch.isCommonKnown || pdcch.searchSpaces.isReleased(*id)),
                             id)
                    .allowed("downlink bandwidth part %u has no such search space", bwp->id);
                continue;
            }
            const auto* const coreset = coresetIdOf(*entry->element);
            for (const SearchSpaceEntry& other : pdcch.allSearchSpaces)
            {
                const auto* const otherCoreset = coresetIdOf(*other.element);
                if (other.id != entry->id && coreset != nullptr && otherCoreset != nullptr && *otherCoreset == *coreset)
                {
                    check.error(id).allowed("search space %u has the same CORESET %u", other.id, *coreset);
                    break;
                }
            }
        }
    }
}

// The period of a search space with a group format, in slots, is no more than this and one of the list.
template <size_t N>
void periodAmong(Check& check, const SearchSpace& space, const OSUINT32 (&periods)[N], const char* words)
{
    const Known<Monitoring> when = monitoringOf(space);
    if (check.decided(when) && std::find(std::begin(periods), std::end(periods), when->period) == std::end(periods))
    {
        check.error(&space.monitoringSlotPeriodicityAndOffset).allowed("%s", words);
    }
}

OSUINT32 sfiLevels(const SearchSpace_searchSpaceType_common_dci_Format2_0& format)
{
    const auto& given = format.nrofCandidates_SFI.m;
    return 0U + given.aggregationLevel1Present + given.aggregationLevel2Present + given.aggregationLevel4Present +
           given.aggregationLevel8Present + given.aggregationLevel16Present;
}

// Format 2_0: when it is monitored, how many levels, and what it means.
void pdcchDci20(Check& check)
{
    static constexpr OSUINT32 periods[] = {1, 2, 4, 5, 8, 10, 16, 20};
    for (Cell& cell : check.model.cells())
    {
        const SlotFormatIndicator* const indicator = slotFormatIndicatorOf(check, cell);
        bool isMonitored = false;
        bool areKnown = cell.complete;
        for (Bwp& bwp : cell.downlink)
        {
            const Pdcch& pdcch = check.model.pdcch(bwp);
            areKnown = areKnown && pdcch.isCommonKnown;
            for (const SearchSpaceEntry& entry : pdcch.allSearchSpaces)
            {
                const auto* const common = commonType(check.tree, *entry.element);
                const auto* const format = common == nullptr ? nullptr : MEMBER(*common, dci_Format2_0);
                if (format == nullptr)
                {
                    continue;
                }
                isMonitored = true;
                periodAmong(check, *entry.element, periods,
                            "DCI format 2_0 is monitored every 1, 2, 4, 5, 8, 10, 16 or 20 slots");
                if (sfiLevels(*format) != 1)
                {
                    check.error(&format->nrofCandidates_SFI)
                        .found("%u aggregation levels", sfiLevels(*format))
                        .allowed("exactly one is configured");
                }
                const auto* const id = coresetIdOf(*entry.element);
                const Known<Region> region =
                    id == nullptr ? Known<Region>::unless(RRC_RULE_INPUT_PREVIOUS) : regionOf(check.model, bwp, *id);
                if (check.decided(region) && region->symbols <= 3 &&
                    firstSymbolsOf(*entry.element) >> (4 - region->symbols) != 0)
                {
                    check.warning(&entry.element->monitoringSymbolsWithinSlot)
                        .allowed("with a CORESET of %u symbols format 2_0 begins in the first %u", region->symbols,
                                 4 - region->symbols);
                }
                if (indicator == nullptr)
                {
                    check.missing(cell.complete, format)
                        .allowed("slotFormatIndicator of PDCCH-ServingCellConfig is not set up");
                }
            }
        }
        if (indicator != nullptr && !isMonitored)
        {
            areKnown ? (void)check.error(&indicator->sfi_RNTI)
                           .found("slotFormatIndicator")
                           .allowed("no search space of the cell monitors DCI format 2_0")
                     : check.undecided(cell.complete ? RRC_RULE_INPUT_COMMON : RRC_RULE_INPUT_PREVIOUS);
        }
    }
}

// Format 2_1: when it is monitored, and what it means.
void pdcchDci21(Check& check)
{
    static constexpr OSUINT32 periods[] = {1, 2, 4};
    forPdcch(check,
             [&](const Bwp& bwp, const Pdcch& pdcch)
             {
                 const DownlinkPreemption* const preemption = preemptionOf(check, bwp);
                 for (const SearchSpaceEntry& entry : pdcch.allSearchSpaces)
                 {
                     const auto* const common = commonType(check.tree, *entry.element);
                     const auto* const format = common == nullptr ? nullptr : MEMBER(*common, dci_Format2_1);
                     if (format == nullptr)
                     {
                         continue;
                     }
                     periodAmong(check, *entry.element, periods, "DCI format 2_1 is monitored every 1, 2 or 4 slots");
                     const int occasions = std::popcount(firstSymbolsOf(*entry.element));
                     if (occasions > 1)
                     {
                         check.error(&entry.element->monitoringSymbolsWithinSlot)
                             .found("%d occasions in a slot", occasions)
                             .allowed("DCI format 2_1 has one");
                     }
                     if (preemption == nullptr)
                     {
                         check.missing(isComplete(bwp), format).allowed("downlinkPreemption is not set up");
                     }
                 }
                 if (preemption != nullptr && !formatsOf(check, pdcch).preemption)
                 {
                     const bool areKnown = pdcch.searchSpaces.complete && pdcch.isCommonKnown;
                     areKnown ? (void)check.error(&preemption->int_RNTI)
                                    .found("downlinkPreemption")
                                    .allowed("no search space of the bandwidth part monitors DCI format 2_1")
                              : check.undecided(pdcch.searchSpaces.complete ? RRC_RULE_INPUT_COMMON
                                                                            : RRC_RULE_INPUT_PREVIOUS);
                 }
             });
}

// The fields of format 2_1, 14 bits for each cell.
void pdcchIntPosition(Check& check)
{
    constexpr OSUINT32 field = 14;
    forPdcch(check,
             [&](const Bwp& bwp, const Pdcch&)
             {
                 const DownlinkPreemption* const preemption = preemptionOf(check, bwp);
                 if (preemption == nullptr)
                 {
                     return;
                 }
                 const auto cells =
                     check.tree.list<INT_ConfigurationPerServingCell>(&preemption->int_ConfigurationPerServingCell);
                 OSUINT32 used = 0; // bit i: the field at 14 i
                 for (const INT_ConfigurationPerServingCell& cell : cells)
                 {
                     const OSUINT32 position = cell.positionInDCI;
                     check.resolveCell(cell.servingCellId, &cell.servingCellId);
                     if (position % field != 0)
                     {
                         check.error(&cell.positionInDCI).allowed("fields begin at multiples of 14");
                         continue;
                     }
                     const OSUINT32 bit = 1U << (position / field);
                     if (position + field > preemption->dci_PayloadSize)
                     {
                         check.error(&cell.positionInDCI)
                             .allowed("14 bits from there on leave the dci-PayloadSize of %u",
                                      preemption->dci_PayloadSize);
                     }
                     else if ((used & bit) != 0)
                     {
                         check.error(&cell.positionInDCI).allowed("another cell has the same field");
                     }
                     used |= bit;
                 }
             });
}

bool hasUplinkOfItsOwnBand(const Known<RrcRuleDuplex>& duplex, const Cell& cell)
{
    return (duplex && *duplex == RRC_RULE_DUPLEX_FDD) || !cell.sul.empty();
}

// Each bandwidth part of a cell that a reference spacing has to suit; the first that it does not.
const Bwp* coarserBwp(const Cell& cell, OSUINT32 mu, bool downlinkAlone)
{
    for (const Direction direction : {Direction::Downlink, Direction::Uplink})
    {
        for (const Bwp& bwp : cell.bwps(direction))
        {
            const Known<OSUINT32> of = bwp.mu();
            if (of && *of < mu && !(downlinkAlone && direction != Direction::Downlink))
            {
                return &bwp;
            }
        }
    }
    return nullptr;
}

void sfiOfCell(Check& check, const Cell& monitoring, const SlotFormatIndicator& indicator,
               const SlotFormatCombinationsPerCell& given)
{
    Cell* const cell = check.resolveCell(given.servingCellId, &given.servingCellId);
    OSUINT32 total = 0;
    OSUINT32 highest = 0;
    for (const SlotFormatCombination& one :
         check.tree.list<SlotFormatCombination>(MEMBER(given, slotFormatCombinations)))
    {
        highest = std::max(highest, OSUINT32{one.slotFormatCombinationId});
        for (const auto& format : entries(&one.slotFormats))
        {
            ++total;
            if (format > 55 && format != 255)
            {
                check.error(&format).allowed("slot formats are 0..55 and 255");
            }
        }
    }
    if (total > maxNrofSlotFormatCombinationsPerSet)
    {
        check.error(&given.slotFormatCombinations)
            .found("%u slot formats", total)
            .allowed("all combinations of a cell have at most %u", unsigned{maxNrofSlotFormatCombinationsPerSet});
    }
    const OSUINT32 bits = std::max(static_cast<OSUINT32>(std::bit_width(highest)), 1U);
    const auto* const position = MEMBER(given, positionInDCI);
    if (position != nullptr && given.m.slotFormatCombinationsPresent != 0 &&
        *position + bits > indicator.dci_PayloadSize)
    {
        check.error(position).allowed("%u bits from there on leave the dci-PayloadSize of %u", bits,
                                      indicator.dci_PayloadSize);
    }
    const OSUINT32 mu = muOf(given.subcarrierSpacing);
    const Bwp* coarser = cell == nullptr ? nullptr : coarserBwp(*cell, mu, false);
    coarser = coarser == nullptr ? coarserBwp(monitoring, mu, true) : coarser;
    if (coarser != nullptr)
    {
        check.error(&given.subcarrierSpacing)
            .allowed("bandwidth part %u has %u kHz", coarser->id, khzOf(*coarser->mu()));
    }
    if (given.m.subcarrierSpacing2Present != 0 && cell != nullptr && cell->complete && check.decided(cell->duplex) &&
        !hasUplinkOfItsOwnBand(cell->duplex, *cell))
    {
        check.error(&given.subcarrierSpacing2).allowed("the cell has neither paired spectrum nor SUL");
    }
}

// Slot formats that format 2_0 names.
void pdcchSfi(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        if (const SlotFormatIndicator* const indicator = slotFormatIndicatorOf(check, cell))
        {
            for (const auto& given :
                 check.tree.list<SlotFormatCombinationsPerCell>(MEMBER(*indicator, slotFormatCombToAddModList)))
            {
                sfiOfCell(check, cell, *indicator, given);
            }
        }
    }
}

// Formats 0_1 and 1_1 have the sizes that PDSCH-Config and PUSCH-Config make.
void pdcchFmt01NeedsConfig(Check& check)
{
    forSearchSpaces(
        check,
        [&](const Bwp& bwp, const SearchSpaceEntry& entry)
        {
            const auto* const specific = ueSpecificType(check.tree, *entry.element);
            if (specific == nullptr ||
                specific->dci_Formats != SearchSpace_searchSpaceType_ue_Specific_dci_Formats_formats0_1_And_1_1)
            {
                return;
            }
            const Cell& cell = *bwp.cell;
            if (!isComplete(bwp))
            {
                check.undecided(bwp.pdsch == nullptr ? RRC_RULE_INPUT_PREVIOUS : 0);
                return;
            }
            if (bwp.pdsch == nullptr)
            {
                check.warning(&specific->dci_Formats).allowed("the bandwidth part has no pdsch-Config");
            }
            // In paired spectrum any uplink bandwidth part may be active with it.
            const bool isPaired = !cell.duplex || *cell.duplex != RRC_RULE_DUPLEX_TDD;
            bool hasPusch = cell.uplink.empty() || !cell.complete;
            for (const Bwp& uplink : cell.uplink)
            {
                hasPusch = hasPusch || (uplink.pusch != nullptr && (isPaired || uplink.id == bwp.id));
            }
            if (!hasPusch)
            {
                check.warning(&specific->dci_Formats).allowed("its uplink bandwidth part has no pusch-Config");
            }
        });
}

bool isPucchSCell(const Cell& cell)
{
    bool hasPucch = false;
    for (const Bwp& bwp : cell.uplink)
    {
        hasPucch = hasPucch || (bwp.pucch != nullptr && !cell.isSpCell());
    }
    return hasPucch;
}

bool hasPucchSCell(Check& check)
{
    bool has = false;
    for (const Cell& cell : check.model.cells())
    {
        has = has || isPucchSCell(cell);
    }
    return has;
}

// Where a member has to be, or must not be.
template <typename T>
void presence(Check& check, const T* at, bool isPresent, bool mayBe, bool mustBe, const char* why)
{
    if ((isPresent && !mayBe) || (!isPresent && mustBe))
    {
        check.error(at).allowed("%s", why);
    }
}

void tpcOfPusch(Check& check, Cell& cell, const PUSCH_TPC_CommandConfig& tpc)
{
    const ServCellIndex* const target = MEMBER(tpc, targetCell);
    const Cell* const of = target == nullptr ? &cell : check.resolveCell(*target, target);
    if (of == nullptr)
    {
        return;
    }
    const bool hasSul = !of->sul.empty();
    if (!hasSul && !of->complete)
    {
        check.undecided(RRC_RULE_INPUT_PREVIOUS);
        return;
    }
    presence(check, &tpc.tpc_Index, tpc.m.tpc_IndexPresent != 0, true, !hasSul,
             "without a supplementary uplink it is present");
    presence(check, &tpc.tpc_IndexSUL, tpc.m.tpc_IndexSULPresent != 0, hasSul, false,
             "the cell has no supplementary uplink");
}

void tpcOfPucch(Check& check, const Cell& cell, const PUCCH_TPC_CommandConfig& tpc)
{
    const bool isSpCell = cell.isSpCell();
    presence(check, &tpc.tpc_IndexPCell, tpc.m.tpc_IndexPCellPresent != 0, isSpCell, isSpCell,
             isSpCell ? "the SpCell's PDCCH-Config has it" : "only the SpCell's PDCCH-Config has it");
    const bool isOnSCell = isPucchSCell(cell);
    const bool hasOne = hasPucchSCell(check);
    if (!hasOne && !check.model.complete)
    {
        check.undecided(RRC_RULE_INPUT_PREVIOUS);
        return;
    }
    presence(check, &tpc.tpc_IndexPUCCH_SCell, tpc.m.tpc_IndexPUCCH_SCellPresent != 0,
             isOnSCell || (isSpCell && hasOne), isOnSCell,
             isOnSCell ? "the PUCCH SCell's PDCCH-Config has it" : "there is no PUCCH SCell that it is for");
}

// Which commands of group power control a UE takes.
void pdcchTpcIndex(Check& check)
{
    for (Cell& cell : check.model.cells())
    {
        for (const Bwp& bwp : cell.downlink)
        {
            if (bwp.pdcch == nullptr)
            {
                continue;
            }
            if (const auto* const pusch = check.tree.setup(MEMBER(*bwp.pdcch, tpc_PUSCH)))
            {
                tpcOfPusch(check, cell, *pusch);
            }
            if (const auto* const pucch = check.tree.setup(MEMBER(*bwp.pdcch, tpc_PUCCH)))
            {
                tpcOfPucch(check, cell, *pucch);
            }
        }
    }
}

// The scheduling cell says that its DCI has the carrier indicator.
void schedulesOthers(Check& check, const Cell& scheduling, const ServCellIndex* at)
{
    const CrossCarrierSchedulingConfig* const config = crossCarrierOf(scheduling);
    const auto* const own = config == nullptr ? nullptr
                                              : CHOSEN(check.tree, &config->schedulingCellInfo,
                                                       CrossCarrierSchedulingConfig_schedulingCellInfo, own);
    if (config == nullptr)
    {
        check.missing(scheduling.complete, at).allowed("cell %u has no crossCarrierSchedulingConfig with own", *at);
    }
    else if (own == nullptr || own->cif_Presence == 0)
    {
        check.error(at).allowed("cell %u is not configured with own and cif-Presence TRUE", *at);
    }
}

// A scheduled cell has nothing of PDCCH but how many candidates it is given.
void scheduledPdcch(Check& check, Cell& cell, Cell& scheduling)
{
    for (Bwp& bwp : cell.downlink)
    {
        if (bwp.pdcch == nullptr)
        {
            continue;
        }
        const auto only = [&](const auto* member)
        {
            if (member != nullptr)
            {
                check.error(member).allowed("another cell schedules this one: PDCCH-Config has search spaces alone");
            }
        };
        only(MEMBER(*bwp.pdcch, controlResourceSetToAddModList));
        only(MEMBER(*bwp.pdcch, downlinkPreemption));
        only(MEMBER(*bwp.pdcch, tpc_PUSCH));
        only(MEMBER(*bwp.pdcch, tpc_PUCCH));
        only(MEMBER(*bwp.pdcch, tpc_SRS));
        for (const IdEntry<SearchSpace>& entry : check.model.pdcch(bwp).searchSpaces)
        {
            const SearchSpace& space = *entry.element;
            const auto none = [&](const auto* member)
            {
                if (member != nullptr)
                {
                    check.error(member).allowed("another cell schedules this one: there are nrofCandidates alone");
                }
            };
            none(coresetIdOf(space));
            none(MEMBER(space, monitoringSlotPeriodicityAndOffset));
            none(MEMBER(space, duration));
            none(MEMBER(space, monitoringSymbolsWithinSlot));
            none(MEMBER(space, searchSpaceType));
            bool isThere = false;
            bool areKnown = scheduling.complete;
            for (Bwp& other : scheduling.downlink)
            {
                const Pdcch& pdcch = check.model.pdcch(other);
                isThere = isThere || pdcch.searchSpace(entry.id) != nullptr;
                areKnown = areKnown && pdcch.searchSpaces.complete;
            }
            if (!isThere)
            {
                check.missing(areKnown, &space.searchSpaceId).allowed("the scheduling cell has no such search space");
            }
        }
    }
}

// A cell that another one schedules.
void pdcchCrossCarrier(Check& check)
{
    const std::span<Cell> cells = check.model.cells();
    for (Cell& cell : cells)
    {
        const auto* const other = schedulerOf(check, cell);
        if (other == nullptr)
        {
            continue;
        }
        const ServCellIndex* const id = &other->schedulingCellId;
        if (cell.isSpCell())
        {
            check.error(id).allowed("the SpCell schedules itself");
            continue;
        }
        Cell* const scheduling = check.resolveCell(*id, id);
        if (scheduling == nullptr)
        {
            continue;
        }
        if (scheduling == &cell)
        {
            check.error(id).allowed("that is this cell: own says so");
            continue;
        }
        schedulesOthers(check, *scheduling, id);
        scheduledPdcch(check, cell, *scheduling);
        for (const Cell& earlier : cells.first(static_cast<size_t>(&cell - cells.data())))
        {
            const auto* const twin = schedulerOf(check, earlier);
            if (twin != nullptr && twin->schedulingCellId == *id &&
                twin->cif_InSchedulingCell == other->cif_InSchedulingCell)
            {
                check.error(&other->cif_InSchedulingCell)
                    .allowed("SCell %u has the same value in cell %u", *earlier.index, *id);
            }
        }
    }
}

constexpr Rule table[] = {
    {.told = {.id = "pdcch-counts",
              .severity = RRC_RULE_ERROR,
              .statement = "A downlink bandwidth part has at most 3 CORESETs and 10 search spaces, the common ones, "
                           "CORESET#0 and search space 0 among them.",
              .advice = "Release one, or let two search spaces share a CORESET.",
              .clause = "TS 38.331 PDCCH-Config; TS 38.213 10.1",
              .given = "",
              .bad = A_CORESET(AT_PDCCH "controlResourceSetToAddModList[2].", "4")
                  A_CORESET(AT_PDCCH_COMMON "commonControlResourceSet.", "5"),
              .good = A_CORESET(AT_PDCCH "controlResourceSetToAddModList[2].", "4"),
              .since = "0.1.0"},
     .run = pdcchCounts},
    {.told = {.id = "pdcch-ids",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "Ids of CORESETs and of search spaces are not 0 in their lists and unique among the bandwidth parts "
                  "of a cell; PDCCH-Config may replace the commonControlResourceSet of its bandwidth part.",
              .advice = "Number CORESETs and search spaces through all bandwidth parts of the cell.",
              .clause = "TS 38.331 ControlResourceSet, SearchSpace, PDCCH-Config",
              .given = "",
              .bad = AT_CORESET "controlResourceSetId = 1\n" // the initial bandwidth part has it
              AT_FALLBACK_SPACE "controlResourceSetId = 1\n" AT_COMMON_SPACE "controlResourceSetId = 1",
              .good = AT_CORESET "controlResourceSetId = 4\n" AT_FALLBACK_SPACE
                                 "controlResourceSetId = 4\n" AT_COMMON_SPACE "controlResourceSetId = 4",
              .since = "0.1.0"},
     .run = pdcchIds},
    {.told =
         {.id = "pdcch-coreset-bits",
          .severity = RRC_RULE_ERROR,
          .statement = "frequencyDomainResources sets at least one bit, and none of a group of 6 resource blocks that "
                       "is not wholly within the bandwidth part.",
          .advice =
              "Count the groups from the first common resource block of the bandwidth part that is a multiple of 6.",
          .clause = "TS 38.331 ControlResourceSet; TS 38.213 10.1; TS 38.211 7.3.2.2",
          .given = "",
          .bad = AT_COMMON_DL "frequencyInfoDL.scs-SpecificCarrierList[0].offsetToCarrier = 1\n" // 44 groups
          AT_COMMON_UL "frequencyInfoUL.scs-SpecificCarrierList[0].offsetToCarrier = 1",
          .good = AT_COMMON_DL "frequencyInfoDL.scs-SpecificCarrierList[0].offsetToCarrier = 6\n" // 45 of them
          AT_COMMON_UL "frequencyInfoUL.scs-SpecificCarrierList[0].offsetToCarrier = 6",
          .since = "0.1.0"},
     .run = pdcchCoresetBits},
    {.told = {.id = "pdcch-coreset-interleaver",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "An interleaved CORESET has REG bundles of 2 or 6 with one symbol, of as many REGs as it has symbols "
                  "or 6 with more, and its REGs are a multiple of reg-BundleSize x interleaverSize.",
              .advice = "Take another interleaverSize, or a number of resource blocks that it divides.",
              .clause = "TS 38.211 7.3.2.2",
              .given = "",
              .bad = AT_CORESET "cce-REG-MappingType.interleaved.interleaverSize = n6\n" // 96 REGs, 36 at a time
              ,
              .good = AT_CORESET "cce-REG-MappingType.interleaved.interleaverSize = n6\n" AT_CORESET
                                 "frequencyDomainResources = FF8000000000",
              .since = "0.1.0"},
     .run = pdcchCoresetInterleaver},
    {.told = {.id = "pdcch-coreset-dur3",
              .severity = RRC_RULE_ERROR,
              .statement = "A CORESET has three symbols only where dmrs-TypeA-Position is pos3.",
              .advice = "Give the CORESET two symbols.",
              .clause = "TS 38.211 7.3.2.2",
              .given = "",
              .bad = AT_CORESET "duration = 3",
              .good = AT_CORESET "duration = 3\n" AT_COMMON "dmrs-TypeA-Position = pos3",
              .since = "0.1.0"},
     .run = pdcchCoresetDur3},
    {.told = {.id = "pdcch-coreset-contiguous",
              .severity = RRC_RULE_ERROR,
              .statement = "A CORESET with allContiguousRBs has at most 4 separate runs of resource blocks and "
                           "overlaps neither an SS/PBCH block nor lte-CRS-ToMatchAround.",
              .advice = "Close the gaps, or use sameAsREG-bundle.",
              .clause = "TS 38.213 10.1",
              .given = "",
              .bad = AT_CORESET "precoderGranularity = allContiguousRBs\n" AT_CORESET
                                "frequencyDomainResources = AA8000000000",
              .good = AT_CORESET "precoderGranularity = allContiguousRBs\n" AT_CORESET
                                 "frequencyDomainResources = AA0000000000",
              .since = "0.1.0"},
     .run = pdcchCoresetContiguous},
    {.told = {.id = "pdcch-coreset-tci",
              .severity = RRC_RULE_ERROR,
              .statement = "Each id of tci-StatesPDCCH-ToAddList is a TCI state of PDSCH-Config in the same bandwidth "
                           "part; the common CORESET of the initial bandwidth part has no such list.",
              .advice = "Add the TCI state to PDSCH-Config of that bandwidth part.",
              .clause = "TS 38.331 ControlResourceSet",
              .given = "",
              .bad = AT_CORESET "tci-StatesPDCCH-ToAddList[0] = 4",
              .good = AT_CORESET "tci-StatesPDCCH-ToAddList[0] = 3",
              .since = "0.1.0"},
     .run = pdcchCoresetTci},
    {.told = {.id = "pdcch-tci-present",
              .severity = RRC_RULE_WARNING,
              .statement = "tci-PresentInDCI is enabled only where PDSCH-Config of the bandwidth part has TCI states, "
                           "and enabled on a CORESET that schedules the TCI states of another cell.",
              .advice = "Leave tci-PresentInDCI out, or configure TCI states.",
              .clause = "TS 38.331 ControlResourceSet; TS 38.214 5.1.5",
              .given = "",
              .bad = AT_INITIAL_PDCCH "commonControlResourceSet.tci-PresentInDCI = enabled",
              .good = AT_CORESET "tci-PresentInDCI = enabled",
              .since = "0.1.0"},
     .run = pdcchTciPresent},
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
    {.told =
         {.id = "pdcch-common-list",
          .severity = RRC_RULE_ERROR,
          .statement = "What commonSearchSpaceList and commonControlResourceSet hold has an id other than 0, and the "
                       "search spaces are of type common.",
          .advice =
              "Use searchSpaceZero and controlResourceSetZero for 0, and PDCCH-Config for UE-specific search spaces.",
          .clause = "TS 38.331 PDCCH-ConfigCommon",
          .given = "",
          .bad =
              AT_INITIAL_PDCCH "commonSearchSpaceList[0].searchSpaceType = absent\n" AT_INITIAL_PDCCH
                               "commonSearchSpaceList[0].searchSpaceType.ue-Specific.dci-Formats = formats0-0-And-1-0",
          .good = AT_INITIAL_PDCCH "commonSearchSpaceList[0].searchSpaceType.common.dci-Format0-0-AndFormat1-0 = {}",
          .since = "0.1.0"},
     .run = pdcchCommonList},
    {.told = {.id = "pdcch-css-refs",
              .severity = RRC_RULE_ERROR,
              .statement = "searchSpaceSIB1, searchSpaceOtherSystemInformation, pagingSearchSpace and ra-SearchSpace "
                           "are 0 or an id of commonSearchSpaceList; 0 outside the initial bandwidth part only where "
                           "that contains CORESET#0; searchSpaceSIB1 of the PCell is 0.",
              .advice = "Add the search space to commonSearchSpaceList.",
              .clause = "TS 38.331 PDCCH-ConfigCommon; TS 38.213 10.1",
              .given = "",
              .bad = AT_INITIAL_PDCCH "ra-SearchSpace = 2",
              .good = AT_INITIAL_PDCCH "ra-SearchSpace = 0",
              .since = "0.1.0"},
     .run = pdcchCssRefs},
    {.told = {.id = "pdcch-initial-only",
              .severity = RRC_RULE_ERROR,
              .statement = "controlResourceSetZero and searchSpaceZero are in the initial bandwidth part alone; "
                           "firstPDCCH-MonitoringOccasionOfPO only in others, beside pagingSearchSpace.",
              .advice = "Leave the member out: CORESET#0 and search space 0 have their ids in every bandwidth part.",
              .clause = "TS 38.331 PDCCH-ConfigCommon, Cond InitialBWP-Only, OtherBWP",
              .given = "",
              .bad = AT_PDCCH_COMMON "searchSpaceZero = 0",
              .good = AT_PDCCH_COMMON "ra-SearchSpace = 0",
              .since = "0.1.0"},
     .run = pdcchInitialOnly},
    {.told = {.id = "pdcch-recovery-ss",
              .severity = RRC_RULE_ERROR,
              .statement = "recoverySearchSpaceId is there with candidateBeamRSList, a search space of the downlink "
                           "bandwidth part with the same id, and alone in its CORESET.",
              .advice = "Give beam failure recovery a search space with a CORESET of its own.",
              .clause = "TS 38.331 BeamFailureRecoveryConfig; TS 38.213 6",
              .given = "",
              .bad = AT_UL "bwp-Dedicated.beamFailureRecoveryConfig.setup.recoverySearchSpaceId = 4",
              .good = AT_UL "bwp-Dedicated.beamFailureRecoveryConfig.setup.recoverySearchSpaceId = 2",
              .since = "0.1.0"},
     .run = pdcchRecoverySs},
    {.told =
         {.id = "pdcch-dci2-0",
          .severity = RRC_RULE_ERROR,
          .statement =
              "DCI format 2_0 is monitored every 1, 2, 4, 5, 8, 10, 16 or 20 slots with one aggregation level, from "
              "the first symbols of the slot, and in a cell with slotFormatIndicator, which is set up only there.",
          .advice = "Configure both slotFormatIndicator and a search space for format 2_0.",
          .clause = "TS 38.331 SearchSpace; TS 38.213 11.1.1",
          .given = "",
          .bad = AN_SFI AT_COMMON_SPACE "monitoringSlotPeriodicityAndOffset = absent\n" AT_COMMON_SPACE
                                        "monitoringSlotPeriodicityAndOffset.sl40 = 5",
          .good = AN_SFI,
          .since = "0.1.0"},
     .run = pdcchDci20},
    {.told = {.id = "pdcch-dci2-1",
              .severity = RRC_RULE_ERROR,
              .statement = "DCI format 2_1 is monitored every 1, 2 or 4 slots, once in a slot, and in a bandwidth part "
                           "with downlinkPreemption, which is set up only there.",
              .advice = "Configure both downlinkPreemption and a search space for format 2_1.",
              .clause = "TS 38.331 SearchSpace; TS 38.213 11.2",
              .given = "",
              .bad = A_PREEMPTION AT_COMMON_SPACE "monitoringSlotPeriodicityAndOffset = absent\n" AT_COMMON_SPACE
                                                  "monitoringSlotPeriodicityAndOffset.sl5 = 0",
              .good = A_PREEMPTION,
              .since = "0.1.0"},
     .run = pdcchDci21},
    {.told = {.id = "pdcch-int-position",
              .severity = RRC_RULE_ERROR,
              .statement = "positionInDCI of a cell is a multiple of 14, its 14 bits lie within dci-PayloadSize, no "
                           "two cells have the same, and each cell is configured.",
              .advice = "Number the cells and give each 14 times its number.",
              .clause = "TS 38.331 DownlinkPreemption; TS 38.213 11.2",
              .given = "",
              .bad = A_PREEMPTION AT_PREEMPTION "int-ConfigurationPerServingCell[0].positionInDCI = 14",
              .good = A_PREEMPTION AT_PREEMPTION "int-ConfigurationPerServingCell[0].positionInDCI = 14\n" AT_PREEMPTION
                                                 "dci-PayloadSize = 28",
              .since = "0.1.0"},
     .run = pdcchIntPosition},
    {.told = {.id = "pdcch-sfi",
              .severity = RRC_RULE_ERROR,
              .statement = "Slot formats are 0..55 or 255, at most 512 for a cell; the combination index fits into "
                           "dci-PayloadSize; the spacing is not above that of a bandwidth part of the cell or of the "
                           "monitoring one; subcarrierSpacing2 is for paired spectrum and SUL; the cell is configured.",
              .advice = "Mend the combinations of the cell.",
              .clause = "TS 38.331 SlotFormatCombinationsPerCell; TS 38.213 11.1.1",
              .given = "",
              .bad = AN_SFI AT_SFI_CELL "slotFormatCombinations[0].slotFormats[0] = 56",
              .good = AN_SFI AT_SFI_CELL "slotFormatCombinations[0].slotFormats[0] = 55",
              .since = "0.1.0"},
     .run = pdcchSfi},
    {.told = {.id = "pdcch-fmt01-needs-config",
              .severity = RRC_RULE_WARNING,
              .statement = "Where formats 0_1 and 1_1 are monitored, the bandwidth part has pdsch-Config and its "
                           "uplink pusch-Config, which tell their fields.",
              .advice = "Configure pdsch-Config and pusch-Config, or monitor formats 0_0 and 1_0.",
              .clause = "TS 38.212 7.3.1.1.2, 7.3.1.2.2",
              .given = "",
              .bad = A_CORESET(AT_CELL "initialDownlinkBWP.pdcch-Config.setup.controlResourceSetToAddModList[0].", "4")
                  A_SPACE(AT_CELL "initialDownlinkBWP.pdcch-Config.setup.searchSpacesToAddModList[0].", "5", "4",
                          "ue-Specific.dci-Formats = formats0-1-And-1-1"),
              .good = A_CORESET(AT_CELL "initialDownlinkBWP.pdcch-Config.setup.controlResourceSetToAddModList[0].", "4")
                  A_SPACE(AT_CELL "initialDownlinkBWP.pdcch-Config.setup.searchSpacesToAddModList[0].", "5", "4",
                          "ue-Specific.dci-Formats = formats0-0-And-1-0"),
              .since = "0.1.0"},
     .run = pdcchFmt01NeedsConfig},
    {.told =
         {.id = "pdcch-tpc-index",
          .severity = RRC_RULE_ERROR,
          .statement =
              "tpc-Index is present unless there is a supplementary uplink, tpc-IndexSUL only with one; tpc-IndexPCell "
              "is in the SpCell alone, tpc-IndexPUCCH-SCell where there is a PUCCH SCell; targetCell is configured.",
          .advice = "Send the indices that the cell has.",
          .clause = "TS 38.331 PUSCH-TPC-CommandConfig, PUCCH-TPC-CommandConfig, Cond SUL, SUL-Only, PDCCH-OfSpcell, "
                    "PDCCH-ofSpCellOrPUCCH-Scell",
          .given = "",
          .bad = AT_PHY "tpc-PUSCH-RNTI = 1002\n" AT_COMMON_SPACE "searchSpaceType.common.dci-Format2-2 = {}\n" AT_PDCCH
                        "tpc-PUSCH.setup.targetCell = 0",
          .good =
              AT_PHY "tpc-PUSCH-RNTI = 1002\n" AT_COMMON_SPACE "searchSpaceType.common.dci-Format2-2 = {}\n" AT_PDCCH
                     "tpc-PUSCH.setup.targetCell = 0\n" AT_PDCCH "tpc-PUSCH.setup.tpc-Index = 1",
          .since = "0.1.0"},
     .run = pdcchTpcIndex},
    {.told =
         {.id = "pdcch-cross-carrier",
          .severity = RRC_RULE_ERROR,
          .statement = "An SCell is scheduled by another configured cell that has own with cif-Presence, with a "
                       "cif-InSchedulingCell of its own; its PDCCH-Config has search spaces alone, with ids of the "
                       "scheduling cell and nrofCandidates.",
          .advice =
              "Configure the scheduling cell with own and cif-Presence TRUE, and search spaces of the same ids there.",
          .clause = "TS 38.331 CrossCarrierSchedulingConfig, SearchSpace, PDCCH-Config; TS 38.213 10.1",
          .given = "SCell 1 is configured.",
          .bad = CROSS_CARRIER AT_CELL "crossCarrierSchedulingConfig.schedulingCellInfo.own.cif-Presence = false",
          .good = CROSS_CARRIER,
          .since = "0.1.0"},
     .run = pdcchCrossCarrier},
};

} // namespace

constinit const RuleGroup pdcchRules = groupOf(table);

} // namespace rules
