// CORESETs.
#include "examplePaths.h"
#include "pdcch.h"
#include "rules.h"

namespace rules
{
namespace
{

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

// Of each six subcarriers of the LTE carrier the first and the last that have them in some of the symbols.
struct CrsSubcarriers
{
    OSUINT32 first;
    OSUINT32 last;
};

CrsSubcarriers crsSubcarriers(const RateMatchPatternLTE_CRS& crs, OSUINT32 symbols)
{
    const OSUINT32 ofEven = crs.v_Shift % 6U;
    const OSUINT32 ofOdd = (ofEven + 3) % 6;
    // Those of one port move by three from symbol to symbol, those of two fill both places.
    const bool areBoth = crs.nrofCRS_Ports != RateMatchPatternLTE_CRS_nrofCRS_Ports_n1;
    const bool hasEven = areBoth || (symbols & (1U << 0 | 1U << 7)) != 0;
    const bool hasOdd = areBoth || (symbols & (1U << 4 | 1U << 11)) != 0;
    return {std::min(hasEven ? ofEven : ofOdd, hasOdd ? ofOdd : ofEven),
            std::max(hasEven ? ofEven : ofOdd, hasOdd ? ofOdd : ofEven)};
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
        const CrsSubcarriers of = crsSubcarriers(crs, symbols_);
        // The carrier has one more, which is in its middle and not counted among the six.
        const OSUINT32 first = crs.carrierFreqDL + of.first;
        const OSUINT32 end = crs.carrierFreqDL + half + 1 - (5 - of.last);
        return isAt({uint64_t{first > half ? first - half : 0} * spacing, uint64_t{end} * spacing});
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

constexpr Rule pdcchCoresetsTable[] = {
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
};

} // namespace

constinit const RuleGroup pdcchCoresetRules = groupOf(pdcchCoresetsTable);

} // namespace rules
