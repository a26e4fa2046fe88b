// PDSCH.
#include "examplePaths.h"
#include "rules.h"

#include "modelLists.h"
#include "uplink.h"

#include <algorithm>

namespace rules
{
namespace
{

// Each PDSCH-Config.
template <typename Each>
void forPdschs(Check& check, const Each& each)
{
    for (Cell& cell : check.model.cells())
    {
        for (Bwp& bwp : cell.downlink)
        {
            if (bwp.pdsch != nullptr)
            {
                each(cell, bwp, *bwp.pdsch);
            }
        }
    }
}

// Null where the cell has none, or an earlier message has brought it.
void judgeTdra(Check& check, const Bwp& bwp, const PDSCH_TimeDomainResourceAllocation& row)
{
    const bool isTypeB = row.mappingType == PDSCH_TimeDomainResourceAllocation_mappingType_typeB;
    NrSpan symbols{};
    if (nrSlivDecode(row.startSymbolAndLength, &symbols) == 0)
    {
        check.error(&row.startSymbolAndLength).allowed("no pair of start and length is so: it is at most 104");
        return;
    }
    if (nrPdschSymbolsAllowed(isTypeB ? 1 : 0, bwp.isExtended() ? 1 : 0, symbols) == 0)
    {
        check.error(&row.startSymbolAndLength)
            .found("%u, which is S = %u, L = %u", row.startSymbolAndLength, symbols.start, symbols.size)
            .allowed(isTypeB ? "mapping type B has L = 2, 4 or %u within the slot"
                             : "mapping type A has S = 0..3 and L = 3..%u within the slot",
                     isTypeB ? bwp.symbolsPerSlot() / 2 : bwp.symbolsPerSlot());
        return;
    }
    if (!isTypeB && symbols.start == 3)
    {
        const Known<OSUINT32> position = typeAPosition(check.model, *bwp.cell);
        if (check.decided(position) && *position != 3)
        {
            check.error(&row.startSymbolAndLength)
                .found("%u, which is S = 3, L = %u", row.startSymbolAndLength, symbols.size)
                .allowed("mapping type A starts at 3 only with dmrs-TypeA-Position pos3");
        }
    }
}

// A PDSCH takes symbols that its mapping type has.
void pdschTdra(Check& check)
{
    for (Cell& cell : check.model.cells())
    {
        for (Bwp& bwp : cell.downlink)
        {
            const PDSCH_ConfigCommon* const common =
                bwp.downlinkCommon == nullptr ? nullptr
                                              : check.tree.setup(MEMBER(*bwp.downlinkCommon, pdsch_ConfigCommon));
            const PDSCH_TimeDomainResourceAllocationList* const lists[] = {
                common == nullptr ? nullptr : MEMBER(*common, pdsch_TimeDomainAllocationList),
                bwp.pdsch == nullptr ? nullptr : check.tree.setup(MEMBER(*bwp.pdsch, pdsch_TimeDomainAllocationList))};
            for (const PDSCH_TimeDomainResourceAllocationList* const list : lists)
            {
                for (const PDSCH_TimeDomainResourceAllocation& row :
                     check.tree.list<PDSCH_TimeDomainResourceAllocation>(list))
                {
                    judgeTdra(check, bwp, row);
                }
            }
        }
    }
}

using rules::isSame;

bool isSame(const PTRS_DownlinkConfig* a, const PTRS_DownlinkConfig* b)
{
    if (a == nullptr || b == nullptr)
    {
        return a == b;
    }
    return isSameArray(MEMBER(*a, frequencyDensity), MEMBER(*b, frequencyDensity)) &&
           isSameArray(MEMBER(*a, timeDensity), MEMBER(*b, timeDensity)) &&
           isSame(MEMBER(*a, epre_Ratio), MEMBER(*b, epre_Ratio)) &&
           isSame(MEMBER(*a, resourceElementOffset), MEMBER(*b, resourceElementOffset));
}

// DM-RS of both mapping types differ in what may differ.
void pdschDmrsAb(Check& check)
{
    forPdschs(check,
              [&](const Cell&, const Bwp& bwp, const PDSCH_Config& pdsch)
              {
                  const DMRS_DownlinkConfig* const a =
                      check.tree.setup(MEMBER(pdsch, dmrs_DownlinkForPDSCH_MappingTypeA));
                  const DMRS_DownlinkConfig* const b =
                      check.tree.setup(MEMBER(pdsch, dmrs_DownlinkForPDSCH_MappingTypeB));
                  if (a == nullptr || b == nullptr)
                  {
                      return;
                  }
                  const auto tell = [&](const auto* at)
                  {
                      check.error(at).allowed("for mapping type A it is otherwise");
                  };
                  if (!isSame(MEMBER(*a, scramblingID0), MEMBER(*b, scramblingID0)))
                  {
                      tell(&b->scramblingID0);
                  }
                  if (!isSame(MEMBER(*a, scramblingID1), MEMBER(*b, scramblingID1)))
                  {
                      tell(&b->scramblingID1);
                  }
                  const PTRS_DownlinkConfig* const ptrsA = check.tree.setup(MEMBER(*a, phaseTrackingRS));
                  const PTRS_DownlinkConfig* const ptrsB = check.tree.setup(MEMBER(*b, phaseTrackingRS));
                  const bool isComplete = check.model.complete || bwp.novelty == Novelty::New;
                  const bool areKnown = isComplete || (ptrsA != nullptr && ptrsB != nullptr);
                  if (areKnown && !isSame(ptrsA, ptrsB))
                  {
                      tell(&b->phaseTrackingRS);
                  }
              });
}

// dmrs-AdditionalPosition and maxLength of a configuration, of the downlink or the uplink.
template <typename Dmrs>
void judgePositions(Check& check, const Cell& cell, const Dmrs* dmrs, bool isTypeA)
{
    if (dmrs == nullptr)
    {
        return;
    }
    constexpr OSUINT32 pos3 = 2;
    const auto* const position = MEMBER(*dmrs, dmrs_AdditionalPosition);
    const bool isPos3 = position != nullptr && OSUINT32{*position} == pos3;
    if (isPos3 && isTypeA)
    {
        const Known<OSUINT32> first = typeAPosition(check.model, cell);
        if (check.decided(first) && *first != 2)
        {
            check.error(position).allowed("that is only with dmrs-TypeA-Position pos2");
            return;
        }
    }
    if (dmrs->m.maxLengthPresent != 0 && (position == nullptr || isPos3))
    {
        check.warning(&dmrs->dmrs_AdditionalPosition)
            .found("%s with maxLength len2", position == nullptr ? "absent, which is pos2," : "pos3")
            .allowed("DM-RS of two symbols have pos0 and pos1 alone");
    }
}

void pdschDmrsPos3(Check& check)
{
    forPdschs(
        check,
        [&](const Cell& cell, const Bwp&, const PDSCH_Config& pdsch)
        {
            judgePositions(check, cell, check.tree.setup(MEMBER(pdsch, dmrs_DownlinkForPDSCH_MappingTypeA)), true);
            judgePositions(check, cell, check.tree.setup(MEMBER(pdsch, dmrs_DownlinkForPDSCH_MappingTypeB)), false);
        });
    for (Cell& cell : check.model.cells())
    {
        for (const Direction direction : {Direction::Uplink, Direction::Supplementary})
        {
            for (const Bwp& bwp : cell.bwps(direction))
            {
                if (bwp.pusch != nullptr)
                {
                    judgePositions(check, cell, check.tree.setup(MEMBER(*bwp.pusch, dmrs_UplinkForPUSCH_MappingTypeA)),
                                   true);
                    judgePositions(check, cell, check.tree.setup(MEMBER(*bwp.pusch, dmrs_UplinkForPUSCH_MappingTypeB)),
                                   false);
                }
            }
        }
    }
}

// Bundles of four are not interleaved by two, nor of groups of two.
void judgeBundle(Check& check, const Bwp& bwp, const PDSCH_Config& pdsch, const OSUINT32* size, bool isFour)
{
    if (size == nullptr || !isFour)
    {
        return;
    }
    const auto* const interleaver = MEMBER(pdsch, vrb_ToPRB_Interleaver);
    if (interleaver != nullptr && *interleaver == PDSCH_Config_vrb_ToPRB_Interleaver_n2)
    {
        check.error(size).allowed("vrb-ToPRB-Interleaver is n2");
        return;
    }
    const Known<NrSpan> rbs = bwp.rbs();
    if (pdsch.resourceAllocation == PDSCH_Config_resourceAllocation_resourceAllocationType1 || !check.decided(rbs))
    {
        return;
    }
    const OSUINT32 group = nrRbgSize(rbs->size, pdsch.rbg_Size == PDSCH_Config_rbg_Size_config2 ? 1 : 0);
    if (group == 2)
    {
        check.error(size).allowed("a bandwidth part of %u PRB has resource block groups of 2", rbs->size);
    }
}

void pdschBundleN4(Check& check)
{
    forPdschs(
        check,
        [&](const Cell&, const Bwp& bwp, const PDSCH_Config& pdsch)
        {
            const auto* const type = &pdsch.prb_BundlingType;
            if (const auto* const fixed = CHOSEN(check.tree, type, PDSCH_Config_prb_BundlingType, staticBundling))
            {
                const auto* const size = MEMBER(*fixed, bundleSize);
                judgeBundle(check, bwp, pdsch, size,
                            size != nullptr && *size == PDSCH_Config_prb_BundlingType_staticBundling_bundleSize_n4);
            }
            if (const auto* const dynamic = CHOSEN(check.tree, type, PDSCH_Config_prb_BundlingType, dynamicBundling))
            {
                const auto* const one = MEMBER(*dynamic, bundleSizeSet1);
                const auto* const two = MEMBER(*dynamic, bundleSizeSet2);
                judgeBundle(check, bwp, pdsch, one,
                            one != nullptr &&
                                (*one == PDSCH_Config_prb_BundlingType_dynamicBundling_bundleSizeSet1_n4 ||
                                 *one == PDSCH_Config_prb_BundlingType_dynamicBundling_bundleSizeSet1_n4_wideband));
                judgeBundle(check, bwp, pdsch, two,
                            two != nullptr && *two == PDSCH_Config_prb_BundlingType_dynamicBundling_bundleSizeSet2_n4);
            }
        });
}

// Two codewords are for more than four layers, and halve the code block groups.
void pdschCodewords(Check& check)
{
    forPdschs(check,
              [&](const Cell& cell, const Bwp&, const PDSCH_Config& pdsch)
              {
                  const auto* const codewords = MEMBER(pdsch, maxNrofCodeWordsScheduledByDCI);
                  const bool areTwo =
                      codewords != nullptr && *codewords == PDSCH_Config_maxNrofCodeWordsScheduledByDCI_n2;
                  const PDSCH_ServingCellConfig* const serving = servingConfig(check.tree, cell);
                  if (serving == nullptr)
                  {
                      return;
                  }
                  const OSUINT8* const layers = ADDITION(*serving, 2, maxMIMO_Layers);
                  if (layers != nullptr && (*layers > 4) != areTwo)
                  {
                      check.warning(&pdsch.maxNrofCodeWordsScheduledByDCI)
                          .allowed("maxMIMO-Layers is %u, and n2 is for more than 4", *layers);
                  }
                  const PDSCH_CodeBlockGroupTransmission* const groups =
                      check.tree.setup(MEMBER(*serving, codeBlockGroupTransmission));
                  if (groups != nullptr && areTwo &&
                      groups->maxCodeBlockGroupsPerTransportBlock >
                          PDSCH_CodeBlockGroupTransmission_maxCodeBlockGroupsPerTransportBlock_n4)
                  {
                      check.error(&groups->maxCodeBlockGroupsPerTransportBlock)
                          .allowed("with two codewords it is at most n4");
                  }
              });
}

// The rate matching patterns of a cell, dedicated and common.
struct CellPatterns
{
    Ids<RateMatchPattern> dedicated;
    Ids<RateMatchPattern> common;

    bool has(OSUINT32 id) const
    {
        return dedicated.find(id) != nullptr || common.find(id) != nullptr;
    }
};

CellPatterns cellPatterns(Model& model, const Cell& cell)
{
    return {model.ids<RateMatchPattern>(
                cell.dedicated, cell.novelty, &RateMatchPattern::rateMatchPatternId,
                [](const ServingCellConfig& of) { return ADDITION(of, 2, rateMatchPatternToAddModList); },
                [](const ServingCellConfig& of) { return ADDITION(of, 2, rateMatchPatternToReleaseList); }),
            model.ids<RateMatchPattern>(
                cell.common, cell.novelty, &RateMatchPattern::rateMatchPatternId,
                [](const ServingCellConfigCommon& of) { return MEMBER(of, rateMatchPatternToAddModList); },
                [](const ServingCellConfigCommon& of) { return MEMBER(of, rateMatchPatternToReleaseList); })};
}

// The patterns of a group are there.
void pdschRmGroupRef(Check& check)
{
    forPdschs(check,
              [&](const Cell& cell, Bwp& bwp, const PDSCH_Config& pdsch)
              {
                  const CellPatterns ofCell = cellPatterns(check.model, cell);
                  for (const RateMatchPatternGroup* const group :
                       {MEMBER(pdsch, rateMatchPatternGroup1), MEMBER(pdsch, rateMatchPatternGroup2)})
                  {
                      for (const RateMatchPatternGroup_element& one :
                           check.tree.list<RateMatchPatternGroup_element>(group))
                      {
                          if (one.t == T_RateMatchPatternGroup_element_bwpLevel)
                          {
                              check.resolve(check.model.pdsch(bwp).rateMatchPatterns, one.u.bwpLevel, &one.u.bwpLevel,
                                            "a RateMatchPattern of the bandwidth part");
                          }
                          else if (one.t == T_RateMatchPatternGroup_element_cellLevel && !ofCell.has(one.u.cellLevel))
                          {
                              check.missing(cell.complete, &one.u.cellLevel)
                                  .allowed("the cell has no RateMatchPattern of that id");
                          }
                      }
                  }
              });
}

// Symbol-level and periodic bitmaps of a pattern: bits of the period, slots of each.
struct PatternPeriod
{
    OSUINT32 bits;
    OSUINT32 slots;
};

PatternPeriod periodOf(const RateMatchPattern_patternType_bitmaps& bitmaps)
{
    static constexpr OSUINT32 bits[] = {2, 4, 5, 8, 10, 20, 40};
    const auto* const choice = MEMBER(bitmaps, periodicityAndPattern);
    const bool isTwo =
        bitmaps.symbolsInResourceBlock.t == T_RateMatchPattern_patternType_bitmaps_symbolsInResourceBlock_twoSlots;
    return {choice == nullptr || choice->t - 1 >= std::size(bits) ? 0 : bits[choice->t - 1], isTwo ? 2U : 1U};
}

// `mu` and the resource blocks that bits may be of, where they are known.
void judgeBitmaps(Check& check, const RateMatchPattern_patternType_bitmaps& bitmaps, const Known<OSUINT32>& mu,
                  const Known<NrSpan>& rbs)
{
    constexpr OSUINT32 longestMs = 40;
    const PatternPeriod period = periodOf(bitmaps);
    if (period.bits != 0 && check.decided(mu) && period.bits * period.slots > longestMs << *mu)
    {
        check.error(&bitmaps.periodicityAndPattern)
            .found("%u times %u slot%s", period.bits, period.slots, period.slots == 1 ? "" : "s")
            .allowed("a pattern has a period of at most 40 ms");
    }
    if (!check.decided(rbs))
    {
        return;
    }
    for (OSUINT32 i = 0; i < NR_LARGEST_CARRIER; ++i)
    {
        if (hasBit(bitmaps.resourceBlocks, i) && i - rbs->start >= rbs->size)
        {
            check.warning(&bitmaps.resourceBlocks)
                .found("bit %u set", i)
                .allowed("there are RB %u..%u", rbs->start, rbs->start + rbs->size - 1);
            return;
        }
    }
}

const RateMatchPattern_patternType_bitmaps* bitmapsOf(const Tree& tree, const RateMatchPattern& pattern)
{
    return CHOSEN(tree, &pattern.patternType, RateMatchPattern_patternType, bitmaps);
}

void judgeCellPatterns(Check& check, const Cell& cell)
{
    const CellPatterns patterns = cellPatterns(check.model, cell);
    for (const Ids<RateMatchPattern>* const list : {&patterns.common, &patterns.dedicated})
    {
        for (const IdEntry<RateMatchPattern>& entry : *list)
        {
            const RateMatchPattern& pattern = *entry.element;
            const SubcarrierSpacing* const spacing = MEMBER(pattern, subcarrierSpacing);
            if (spacing == nullptr)
            {
                check.error(&pattern.subcarrierSpacing).allowed("the pattern is of the cell");
                continue;
            }
            const auto* const bitmaps = bitmapsOf(check.tree, pattern);
            const Known<Carriers> carriers = check.model.carriers(cell, Direction::Downlink);
            if (bitmaps == nullptr || muOf(*spacing) > highestMu)
            {
                continue;
            }
            Known<NrSpan> rbs = Known<NrSpan>::unless(carriers.inputs());
            for (OSUINT32 i = 0; carriers && i < carriers->count; ++i)
            {
                const SCS_SpecificCarrier& carrier = *carriers->of[i];
                rbs = carrier.subcarrierSpacing == *spacing ? NrSpan{carrier.offsetToCarrier, carrier.carrierBandwidth}
                                                            : rbs;
            }
            judgeBitmaps(check, *bitmaps, muOf(*spacing), rbs);
        }
    }
    if (patterns.common.size() + patterns.dedicated.size() > maxNrofRateMatchPatterns)
    {
        check
            .error(&(patterns.dedicated.empty() ? patterns.common : patterns.dedicated)
                        .begin()
                        ->element->rateMatchPatternId)
            .found("%zu patterns", patterns.common.size() + patterns.dedicated.size())
            .allowed("a cell has at most %d", maxNrofRateMatchPatterns);
    }
}

// A pattern has the spacing where it needs one, and its bits lie where it is used.
void pdschRmPattern(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        judgeCellPatterns(check, cell);
    }
    forPdschs(
        check,
        [&](const Cell&, Bwp& bwp, const PDSCH_Config&)
        {
            for (const IdEntry<RateMatchPattern>& entry : check.model.pdsch(bwp).rateMatchPatterns)
            {
                const RateMatchPattern& pattern = *entry.element;
                if (pattern.m.subcarrierSpacingPresent != 0)
                {
                    check.error(&pattern.subcarrierSpacing).allowed("a pattern of a bandwidth part has its spacing");
                }
                if (const auto* const bitmaps = bitmapsOf(check.tree, pattern))
                {
                    const Known<NrSpan> rbs = bwp.rbs();
                    judgeBitmaps(check, *bitmaps, bwp.mu(), rbs ? Known<NrSpan>(NrSpan{0, rbs->size}) : rbs);
                }
                else if (pattern.patternType.t == T_RateMatchPattern_patternType_controlResourceSet)
                {
                    const Pdcch& pdcch = check.model.pdcch(bwp);
                    const ControlResourceSetId& id = pattern.patternType.u.controlResourceSet;
                    if (id != 0 && pdcch.coreset(id) == nullptr)
                    {
                        check.missing(pdcch.coresets.complete && pdcch.isCommonKnown, &id)
                            .allowed("the bandwidth part has no CORESET %u", id);
                    }
                }
            }
        });
}

bool isSameCrs(const RateMatchPatternLTE_CRS& a, const RateMatchPatternLTE_CRS& b)
{
    return a.carrierFreqDL == b.carrierFreqDL && a.carrierBandwidthDL == b.carrierBandwidthDL &&
           a.nrofCRS_Ports == b.nrofCRS_Ports && a.v_Shift == b.v_Shift;
}

// lte-CRS-ToMatchAround is for a PDSCH at 15 kHz.
void pdschLteCrs(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        const RateMatchPatternLTE_CRS* const common =
            cell.common == nullptr ? nullptr : check.tree.setup(MEMBER(*cell.common, lte_CRS_ToMatchAround));
        const RateMatchPatternLTE_CRS* const dedicated =
            cell.dedicated == nullptr ? nullptr : check.tree.setup(ADDITION(*cell.dedicated, 2, lte_CRS_ToMatchAround));
        if (common != nullptr && dedicated != nullptr && !isSameCrs(*common, *dedicated))
        {
            check.warning(dedicated)
                .found("another carrier or other ports")
                .allowed("the common configuration has one");
        }
        const RateMatchPatternLTE_CRS* const crs = dedicated != nullptr ? dedicated : common;
        if (crs == nullptr)
        {
            continue;
        }
        bool isAt15 = !cell.complete;
        for (const Bwp& bwp : cell.downlink)
        {
            const Known<OSUINT32> mu = bwp.mu();
            isAt15 = isAt15 || !mu || *mu == 0;
        }
        if (!isAt15 || (cell.range && *cell.range == RRC_RULE_RANGE_FR2))
        {
            check.warning(crs).found("CRS to match around").allowed("no bandwidth part has 15 kHz");
        }
    }
}

// What kind of set a ZP resource is used in, bit by bit.
struct ZpUse
{
    OSUINT8 of[maxNrofZP_CSI_RS_Resources];
};
constexpr OSUINT8 zpAperiodic = 1;
constexpr OSUINT8 zpSemiPersistent = 2;
constexpr OSUINT8 zpPeriodic = 4;

void judgeZpSet(Check& check, const Pdsch& lists, const ZP_CSI_RS_ResourceSet& set, OSUINT8 kind, ZpUse& uses)
{
    for (const ZP_CSI_RS_ResourceId& id : entries(&set.zp_CSI_RS_ResourceIdList))
    {
        const bool isThere = check.resolve(lists.zpResources, id, &id, "a ZP-CSI-RS-Resource") != nullptr;
        if (!isThere || id >= std::size(uses.of))
        {
            continue;
        }
        if ((uses.of[id] & ~kind) != 0)
        {
            check.error(&id).allowed("a set of another time behaviour has it, too");
        }
        uses.of[id] |= kind;
    }
}

// ZP resources are there, and have what their sets' time behaviour needs.
void pdschZpSets(Check& check)
{
    forPdschs(check,
              [&](const Cell&, Bwp& bwp, const PDSCH_Config&)
              {
                  constexpr OSUINT32 mostAperiodic = 3;
                  const Pdsch& lists = check.model.pdsch(bwp);
                  ZpUse uses{};
                  for (const IdEntry<ZP_CSI_RS_ResourceSet>& entry : lists.aperiodicZpSets)
                  {
                      judgeZpSet(check, lists, *entry.element, zpAperiodic, uses);
                      if (entry.id == 0 || entry.id > mostAperiodic)
                      {
                          check.error(&entry.element->zp_CSI_RS_ResourceSetId).allowed("a DCI triggers sets 1 to 3");
                      }
                  }
                  for (const IdEntry<ZP_CSI_RS_ResourceSet>& entry : lists.semiPersistentZpSets)
                  {
                      judgeZpSet(check, lists, *entry.element, zpSemiPersistent, uses);
                  }
                  if (const ZP_CSI_RS_ResourceSet* const set = lists.periodicZpSet)
                  {
                      judgeZpSet(check, lists, *set, zpPeriodic, uses);
                      if (set->zp_CSI_RS_ResourceSetId != 0)
                      {
                          check.error(&set->zp_CSI_RS_ResourceSetId).allowed("the periodic set has id 0");
                      }
                  }
                  for (const IdEntry<ZP_CSI_RS_Resource>& entry : lists.zpResources)
                  {
                      const OSUINT32 kind = entry.id < std::size(uses.of) ? uses.of[entry.id] : 0U;
                      const bool hasPeriod = entry.element->m.periodicityAndOffsetPresent != 0;
                      const auto* const at = &entry.element->periodicityAndOffset;
                      if (kind == zpAperiodic && hasPeriod)
                      {
                          check.error(at).allowed("the resource is in an aperiodic set");
                      }
                      if ((kind == zpPeriodic || kind == zpSemiPersistent) && !hasPeriod && check.isNew(entry.novelty))
                      {
                          check.error(at).allowed("the resource is in a set that is not aperiodic");
                      }
                  }
              });
}

// Thresholds that do not fall.
template <typename Array>
void judgeRising(Check& check, const Array* thresholds)
{
    const auto values = entries(thresholds);
    if (!std::is_sorted(values.begin(), values.end()))
    {
        check.error(thresholds).found("thresholds that fall").allowed("each is at least the one before");
    }
}

template <typename Ptrs>
void judgePtrs(Check& check, const Ptrs* ptrs, const OSUINT32* table)
{
    if (ptrs == nullptr)
    {
        return;
    }
    static_assert(OSUINT32{PDSCH_Config_mcs_Table_qam256} == OSUINT32{PUSCH_Config_mcs_Table_qam256} &&
                  OSUINT32{PDSCH_Config_mcs_Table_qam64LowSE} == OSUINT32{PUSCH_Config_mcs_Table_qam64LowSE});
    constexpr OSUINT32 most = 28;
    judgeRising(check, MEMBER(*ptrs, frequencyDensity));
    judgeRising(check, MEMBER(*ptrs, timeDensity));
    const auto* const density = MEMBER(*ptrs, timeDensity);
    const auto values = entries(density);
    const bool isHigh = std::any_of(values.begin(), values.end(), [](OSUINT32 value) { return value > most; });
    if (isHigh && table != nullptr && *table == PDSCH_Config_mcs_Table_qam256)
    {
        check.error(density).found("29").allowed("with qam256 it is at most 28");
    }
    else if (isHigh && table != nullptr && *table == PDSCH_Config_mcs_Table_qam64LowSE)
    {
        check.warning(density).found("29").allowed("with qam64LowSE it is at most 28");
    }
}

void judgeUplinkPtrs(Check& check, const DMRS_UplinkConfig* dmrs, const PUSCH_Config_mcs_Table* table)
{
    const PTRS_UplinkConfig* const ptrs = dmrs == nullptr ? nullptr : check.tree.setup(MEMBER(*dmrs, phaseTrackingRS));
    if (ptrs == nullptr)
    {
        return;
    }
    judgePtrs(check, MEMBER(*ptrs, transformPrecoderDisabled), table);
    if (const auto* const enabled = MEMBER(*ptrs, transformPrecoderEnabled))
    {
        judgeRising(check, &enabled->sampleDensity);
    }
}

// Thresholds of PT-RS rise, and are MCS of the table in use.
void pdschPtrs(Check& check)
{
    forPdschs(check,
              [&](const Cell&, const Bwp&, const PDSCH_Config& pdsch)
              {
                  for (const DMRS_DownlinkConfig* const dmrs :
                       {check.tree.setup(MEMBER(pdsch, dmrs_DownlinkForPDSCH_MappingTypeA)),
                        check.tree.setup(MEMBER(pdsch, dmrs_DownlinkForPDSCH_MappingTypeB))})
                  {
                      if (dmrs != nullptr)
                      {
                          judgePtrs(check, check.tree.setup(MEMBER(*dmrs, phaseTrackingRS)), MEMBER(pdsch, mcs_Table));
                      }
                  }
              });
    for (const Cell& cell : check.model.cells())
    {
        for (const Direction direction : {Direction::Uplink, Direction::Supplementary})
        {
            for (const Bwp& bwp : cell.bwps(direction))
            {
                if (bwp.pusch != nullptr)
                {
                    const auto* const table = MEMBER(*bwp.pusch, mcs_Table);
                    judgeUplinkPtrs(check, check.tree.setup(MEMBER(*bwp.pusch, dmrs_UplinkForPUSCH_MappingTypeA)),
                                    table);
                    judgeUplinkPtrs(check, check.tree.setup(MEMBER(*bwp.pusch, dmrs_UplinkForPUSCH_MappingTypeB)),
                                    table);
                }
            }
        }
    }
}

// n1PUCCH-AN: in some bandwidth part of the PUCCH, where the id is a resource, it is of format 0 or 1.
void judgeSpsResource(Check& check, const Cell& cell, const PUCCH_ResourceId& id)
{
    Cell* const pucchCell = pucchCellOf(check.model, cell);
    if (pucchCell == nullptr)
    {
        return;
    }
    OSUINT32 configs = 0;
    bool isComplete = true;
    bool isThere = false;
    bool isSmall = false;
    for (const Direction direction : {Direction::Uplink, Direction::Supplementary})
    {
        for (Bwp& bwp : pucchCell->bwps(direction))
        {
            if (bwp.pucch == nullptr)
            {
                continue;
            }
            ++configs;
            const Ids<PUCCH_Resource>& resources = check.model.pucch(bwp).resources;
            isComplete = isComplete && resources.complete;
            if (const PUCCH_Resource* const resource = resources.element(id))
            {
                isThere = true;
                isSmall = isSmall || resource->format.t == T_PUCCH_Resource_format_format0 ||
                          resource->format.t == T_PUCCH_Resource_format_format1;
            }
        }
    }
    if (!isThere && configs != 0)
    {
        check.missing(isComplete, &id).allowed("no PUCCH-Config has a resource of that id");
    }
    else if (isThere && !isSmall)
    {
        check.error(&id).allowed("the resource is not of format 0 or 1");
    }
}

// What a semi-persistent PDSCH needs of the rest.
void pdschSps(Check& check)
{
    static constexpr OSUINT32 counts[] = {2, 4, 6, 10, 12, 16}; // nrofHARQ-ProcessesForPDSCH
    constexpr OSUINT32 usual = 8;
    const Cell* first = nullptr;
    for (Cell& cell : check.model.cells())
    {
        bool isSecond = false;
        for (const Bwp& bwp : cell.downlink)
        {
            const SPS_Config* const sps = bwp.sps;
            if (sps == nullptr)
            {
                continue;
            }
            first = first == nullptr ? &cell : first;
            if (first != &cell && !isSecond)
            {
                isSecond = true;
                check.warning(&sps->periodicity)
                    .found("a second cell with sps-Config")
                    .allowed("one cell of a group has it at a time");
            }
            if (const PUCCH_ResourceId* const id = MEMBER(*sps, n1PUCCH_AN))
            {
                judgeSpsResource(check, cell, *id);
            }
            const PDSCH_ServingCellConfig* const serving = servingConfig(check.tree, cell);
            if (serving == nullptr && !cell.complete)
            {
                check.undecided(RRC_RULE_INPUT_PREVIOUS);
            }
            else
            {
                const auto* const given = serving == nullptr ? nullptr : MEMBER(*serving, nrofHARQ_ProcessesForPDSCH);
                const OSUINT32 most = given == nullptr ? usual : *given < std::size(counts) ? counts[*given] : usual;
                if (sps->nrofHARQ_Processes > most)
                {
                    check.error(&sps->nrofHARQ_Processes).allowed("the PDSCH has %u processes", most);
                }
            }
            const RrcRuleCapabilities* const able = check.model.known.capabilities;
            const auto* const table = MEMBER(*sps, mcs_Table);
            if (table != nullptr && able == nullptr)
            {
                check.undecided(RRC_RULE_INPUT_CAPABILITIES);
            }
            else if (table != nullptr && (able->features & RRC_RULE_FEATURE_LOW_SE) == 0)
            {
                check.error(table).allowed("the UE does not have that table");
            }
        }
    }
}

// pucch-Cell is of an SCell without a PUCCH, when it is added, and names a cell that has one.
void pdschPucchCell(Check& check)
{
    for (Cell& cell : check.model.cells())
    {
        const PDSCH_ServingCellConfig* const serving = servingConfig(check.tree, cell);
        const ServCellIndex* const named = serving == nullptr ? nullptr : MEMBER(*serving, pucch_Cell);
        if (named == nullptr)
        {
            continue;
        }
        if (cell.isSpCell())
        {
            check.error(named).allowed("the SpCell has its own PUCCH");
            continue;
        }
        if (hasPucch(cell))
        {
            check.error(named).allowed("the cell has a PUCCH of its own");
            continue;
        }
        const PDSCH_ServingCellConfig* const sent = check.model.sent(*serving);
        if (cell.novelty == Novelty::Old && sent != nullptr && sent->m.pucch_CellPresent != 0)
        {
            check.error(named).allowed("it is given when an SCell is added, and this one was before");
            continue;
        }
        const Cell* const target = check.resolveCell(*named, named);
        if (target != nullptr && !hasPucch(*target))
        {
            check.missing(target->complete, named).allowed("cell %u has no PUCCH", *named);
        }
    }
}

// A periodic set of one ZP CSI-RS.
#define ZP_SET_OF_ID                                                                                                   \
    AT_PDSCH "zp-CSI-RS-ResourceToAddModList[0].zp-CSI-RS-ResourceId = 0\n" AT_PDSCH                                   \
             "zp-CSI-RS-ResourceToAddModList[0].resourceMapping.frequencyDomainAllocation.row4 = 20\n" AT_PDSCH        \
             "zp-CSI-RS-ResourceToAddModList[0].resourceMapping.nrofPorts = p4\n" AT_PDSCH                             \
             "zp-CSI-RS-ResourceToAddModList[0].resourceMapping.firstOFDMSymbolInTimeDomain = 12\n" AT_PDSCH           \
             "zp-CSI-RS-ResourceToAddModList[0].resourceMapping.cdm-Type = fd-CDM2\n" AT_PDSCH                         \
             "zp-CSI-RS-ResourceToAddModList[0].resourceMapping.density.one = null\n" AT_PDSCH                         \
             "zp-CSI-RS-ResourceToAddModList[0].resourceMapping.freqBand.startingRB = 0\n" AT_PDSCH                    \
             "zp-CSI-RS-ResourceToAddModList[0].resourceMapping.freqBand.nrofRBs = 276\n" AT_PDSCH                     \
             "zp-CSI-RS-ResourceToAddModList[0].periodicityAndOffset.slots80 = 1\n" AT_PDSCH                           \
             "p-ZP-CSI-RS-ResourceSet.setup.zp-CSI-RS-ResourceIdList[0] = 0\n" AT_PDSCH                                \
             "p-ZP-CSI-RS-ResourceSet.setup.zp-CSI-RS-ResourceSetId = "

constexpr Rule pdschTable[] = {
    {.told = {.id = "pdsch-tdra",
              .severity = RRC_RULE_ERROR,
              .statement = "startSymbolAndLength of PDSCH is a pair that its mapping type has: type A S = 0..3, 3 only "
                           "with dmrs-TypeA-Position pos3, and L = 3..14; type B L = 2, 4 or 7; S + L within the slot.",
              .advice = "Compute it as 14 (L - 1) + S for L up to 8, else as 14 (15 - L) + 13 - S.",
              .clause = "TS 38.214 5.1.2.1, table 5.1.2.1-1",
              .given = "",
              .bad = AT_PDSCH "pdsch-TimeDomainAllocationList.setup[0].mappingType = typeB",
              .good = AT_PDSCH "pdsch-TimeDomainAllocationList.setup[0].mappingType = typeB\n" AT_PDSCH
                               "pdsch-TimeDomainAllocationList.setup[0].startSymbolAndLength = 86",
              .since = "0.1.0"},
     .run = pdschTdra},
    {.told =
         {.id = "pdsch-dmrs-ab",
          .severity = RRC_RULE_ERROR,
          .statement =
              "DM-RS of PDSCH mapping types A and B differ in dmrs-Type, dmrs-AdditionalPosition and maxLength alone.",
          .advice = "Give both the same scrambling identities and PT-RS.",
          .clause = "TS 38.331 PDSCH-Config",
          .given = "",
          .bad = AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeB.setup.scramblingID0 = 42",
          .good = AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeB.setup.scramblingID0 = 42\n" AT_PDSCH
                           "dmrs-DownlinkForPDSCH-MappingTypeA.setup.scramblingID0 = 42",
          .since = "0.1.0"},
     .run = pdschDmrsAb},
    {.told = {.id = "pdsch-dmrs-pos3",
              .severity = RRC_RULE_ERROR,
              .statement = "dmrs-AdditionalPosition pos3 of mapping type A is for dmrs-TypeA-Position pos2; with "
                           "maxLength len2 there are pos0 and pos1 alone.",
              .advice = "Choose pos0 or pos1.",
              .clause = "TS 38.211 7.4.1.1.2, 6.4.1.1.3",
              .given = "",
              .bad = AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeA.setup.dmrs-AdditionalPosition = pos3\n" AT_COMMON
                              "dmrs-TypeA-Position = pos3",
              .good = AT_PDSCH "dmrs-DownlinkForPDSCH-MappingTypeA.setup.dmrs-AdditionalPosition = pos3",
              .since = "0.1.0"},
     .run = pdschDmrsPos3},
    {.told = {.id = "pdsch-bundle-n4",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "PRB bundles of n4 are not used with vrb-ToPRB-Interleaver n2, nor with resource block groups of 2.",
              .advice = "Use n4 for the interleaver as well, or bundles of n2.",
              .clause = "TS 38.214 5.1.2.3",
              .given = "",
              .bad = AT_PDSCH "prb-BundlingType.staticBundling.bundleSize = n4\n" AT_PDSCH "vrb-ToPRB-Interleaver = n2",
              .good =
                  AT_PDSCH "prb-BundlingType.staticBundling.bundleSize = n4\n" AT_PDSCH "vrb-ToPRB-Interleaver = n4",
              .since = "0.1.0"},
     .run = pdschBundleN4},
    {.told = {.id = "pdsch-codewords",
              .severity = RRC_RULE_ERROR,
              .statement = "Two codewords are for more than four layers, which need them; with two there are at most 4 "
                           "code block groups in a transport block.",
              .advice = "Set maxNrofCodeWordsScheduledByDCI by maxMIMO-Layers.",
              .clause = "TS 38.331 PDSCH-ServingCellConfig; TS 38.214 5.1.3",
              .given = "",
              .bad = AT_PDSCH
              "maxNrofCodeWordsScheduledByDCI = n2\n" AT_CELL
              "pdsch-ServingCellConfig.setup.maxMIMO-Layers = 8\n" AT_CELL
              "pdsch-ServingCellConfig.setup.codeBlockGroupTransmission.setup.codeBlockGroupFlushIndicator = "
              "false\n" AT_CELL
              "pdsch-ServingCellConfig.setup.codeBlockGroupTransmission.setup.maxCodeBlockGroupsPerTransportBlock = n6",
              .good = AT_PDSCH
              "maxNrofCodeWordsScheduledByDCI = n2\n" AT_CELL
              "pdsch-ServingCellConfig.setup.maxMIMO-Layers = 8\n" AT_CELL
              "pdsch-ServingCellConfig.setup.codeBlockGroupTransmission.setup.codeBlockGroupFlushIndicator = "
              "false\n" AT_CELL
              "pdsch-ServingCellConfig.setup.codeBlockGroupTransmission.setup.maxCodeBlockGroupsPerTransportBlock = n4",
              .since = "0.1.0"},
     .run = pdschCodewords},
    {.told = {.id = "pdsch-rm-group-ref",
              .severity = RRC_RULE_ERROR,
              .statement = "The patterns of rateMatchPatternGroup1 and rateMatchPatternGroup2 are configured: bwpLevel "
                           "in the same PDSCH-Config, cellLevel in the cell.",
              .advice = "Add the pattern.",
              .clause = "TS 38.331 PDSCH-Config",
              .given = "",
              .bad = AT_PDSCH "rateMatchPatternGroup1[0].bwpLevel = 0",
              .good = AT_PDSCH "rateMatchPatternToAddModList[0].rateMatchPatternId = 0\n" AT_PDSCH
                               "rateMatchPatternToAddModList[0].patternType.controlResourceSet = 2\n" AT_PDSCH
                               "rateMatchPatternToAddModList[0].dummy = dynamic\n" AT_PDSCH
                               "rateMatchPatternGroup1[0].bwpLevel = 0",
              .since = "0.1.0"},
     .run = pdschRmGroupRef},
    {.told =
         {.id = "pdsch-rm-pattern",
          .severity = RRC_RULE_ERROR,
          .statement =
              "A RateMatchPattern of a cell has subcarrierSpacing, one of a bandwidth part has not; its period is at "
              "most 40 ms, its bits are of resource blocks that there are, its CORESET is one of the bandwidth part.",
          .advice = "Give subcarrierSpacing to patterns of the cell alone.",
          .clause = "TS 38.331 RateMatchPattern; TS 38.214 5.1.4.1",
          .given = "",
          .bad = AT_PDSCH "rateMatchPatternToAddModList[0].rateMatchPatternId = 0\n" AT_PDSCH
                          "rateMatchPatternToAddModList[0].patternType.controlResourceSet = 2\n" AT_PDSCH
                          "rateMatchPatternToAddModList[0].dummy = dynamic\n" AT_PDSCH
                          "rateMatchPatternToAddModList[0].subcarrierSpacing = kHz30",
          .good = AT_PDSCH "rateMatchPatternToAddModList[0].rateMatchPatternId = 0\n" AT_PDSCH
                           "rateMatchPatternToAddModList[0].patternType.controlResourceSet = 2\n" AT_PDSCH
                           "rateMatchPatternToAddModList[0].dummy = dynamic",
          .since = "0.1.0"},
     .run = pdschRmPattern},
    {.told = {.id = "pdsch-lte-crs",
              .severity = RRC_RULE_WARNING,
              .statement =
                  "lte-CRS-ToMatchAround is for a cell with a bandwidth part of 15 kHz; where the common and the "
                  "dedicated configuration have it, both say the same.",
              .advice = "Leave it out, or give both the same values.",
              .clause = "TS 38.214 5.1.4.2",
              .given = "",
              .bad = AT_CELL "lte-CRS-ToMatchAround.setup.carrierFreqDL = 100\n" AT_CELL
                             "lte-CRS-ToMatchAround.setup.carrierBandwidthDL = n50\n" AT_CELL
                             "lte-CRS-ToMatchAround.setup.nrofCRS-Ports = n1\n" AT_CELL
                             "lte-CRS-ToMatchAround.setup.v-Shift = n0",
              .good = AT_CELL "lte-CRS-ToMatchAround.setup.carrierFreqDL = 100\n" AT_CELL
                              "lte-CRS-ToMatchAround.setup.carrierBandwidthDL = n50\n" AT_CELL
                              "lte-CRS-ToMatchAround.setup.nrofCRS-Ports = n1\n" AT_CELL
                              "lte-CRS-ToMatchAround.setup.v-Shift = n0\n" AT_COMMON_DL
                              "frequencyInfoDL.scs-SpecificCarrierList[1].offsetToCarrier = 0\n" AT_COMMON_DL
                              "frequencyInfoDL.scs-SpecificCarrierList[1].subcarrierSpacing = kHz15\n" AT_COMMON_DL
                              "frequencyInfoDL.scs-SpecificCarrierList[1].carrierBandwidth = 270\n" AT_COMMON_DL
                              "initialDownlinkBWP.genericParameters.locationAndBandwidth = 1924\n" AT_COMMON_DL
                              "initialDownlinkBWP.genericParameters.subcarrierSpacing = kHz15\n" AT_COMMON_UL
                              "frequencyInfoUL.scs-SpecificCarrierList[1].offsetToCarrier = 0\n" AT_COMMON_UL
                              "frequencyInfoUL.scs-SpecificCarrierList[1].subcarrierSpacing = kHz15\n" AT_COMMON_UL
                              "frequencyInfoUL.scs-SpecificCarrierList[1].carrierBandwidth = 270\n" AT_COMMON_UL
                              "initialUplinkBWP.genericParameters.locationAndBandwidth = 1924\n" AT_COMMON_UL
                              "initialUplinkBWP.genericParameters.subcarrierSpacing = kHz15\n" AT_COMMON
                              "tdd-UL-DL-ConfigurationCommon.referenceSubcarrierSpacing = kHz15\n" AT_COMMON
                              "tdd-UL-DL-ConfigurationCommon.pattern1.dl-UL-TransmissionPeriodicity = ms5\n" AT_PUCCH
                              "schedulingRequestResourceToAddModList[0].periodicityAndOffset.sl20 = 8\n" AT_RACH
                              "rach-ConfigGeneric.ra-ResponseWindow = sl10",
              .since = "0.1.0"},
     .run = pdschLteCrs},
    {.told = {.id = "pdsch-zp-sets",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "The periodic ZP CSI-RS set has id 0, aperiodic ones 1 to 3; the resources of a set are configured, "
                  "are of one time behaviour, and have periodicityAndOffset where that is not aperiodic.",
              .advice = "Number the sets so, and give each kind resources of its own.",
              .clause = "TS 38.331 PDSCH-Config, ZP-CSI-RS-Resource",
              .given = "",
              .bad = ZP_SET_OF_ID "1",
              .good = ZP_SET_OF_ID "0",
              .since = "0.1.0"},
     .run = pdschZpSets},
    {.told = {.id = "pdsch-ptrs",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "The thresholds of PT-RS in timeDensity, frequencyDensity and sampleDensity do not fall; those "
                  "of timeDensity are at most 28 with qam256.",
              .advice = "Sort the thresholds.",
              .clause = "TS 38.214 5.1.6.3, 6.2.3; TS 38.331 PTRS-DownlinkConfig, PTRS-UplinkConfig",
              .given = "",
              .bad = AT_PDSCH
              "dmrs-DownlinkForPDSCH-MappingTypeA.setup.phaseTrackingRS.setup.timeDensity[0] = 10\n" AT_PDSCH
              "dmrs-DownlinkForPDSCH-MappingTypeA.setup.phaseTrackingRS.setup.timeDensity[1] = 20\n" AT_PDSCH
              "dmrs-DownlinkForPDSCH-MappingTypeA.setup.phaseTrackingRS.setup.timeDensity[2] = 29",
              .good = AT_PDSCH
              "dmrs-DownlinkForPDSCH-MappingTypeA.setup.phaseTrackingRS.setup.timeDensity[0] = 10\n" AT_PDSCH
              "dmrs-DownlinkForPDSCH-MappingTypeA.setup.phaseTrackingRS.setup.timeDensity[1] = 20\n" AT_PDSCH
              "dmrs-DownlinkForPDSCH-MappingTypeA.setup.phaseTrackingRS.setup.timeDensity[2] = 28",
              .since = "0.1.0"},
     .run = pdschPtrs},
    {.told = {.id = "pdsch-sps",
              .severity = RRC_RULE_ERROR,
              .statement = "n1PUCCH-AN of SPS-Config is a resource of format 0 or 1 of the cell with the PUCCH, its "
                           "processes are among those of the PDSCH, and one cell of a group has SPS at a time.",
              .advice = "Name a resource of format 0 or 1.",
              .clause = "TS 38.331 SPS-Config, BWP-DownlinkDedicated; TS 38.321 5.8.1",
              .given = "",
              .bad = AT_PHY "cs-RNTI.setup = 100\n" AT_DL "bwp-Dedicated.sps-Config.setup.periodicity = ms10\n" AT_DL
                            "bwp-Dedicated.sps-Config.setup.nrofHARQ-Processes = 8\n" AT_DL
                            "bwp-Dedicated.sps-Config.setup.n1PUCCH-AN = 4",
              .good = AT_PHY "cs-RNTI.setup = 100\n" AT_DL "bwp-Dedicated.sps-Config.setup.periodicity = ms10\n" AT_DL
                             "bwp-Dedicated.sps-Config.setup.nrofHARQ-Processes = 8\n" AT_DL
                             "bwp-Dedicated.sps-Config.setup.n1PUCCH-AN = 3",
              .since = "0.1.0"},
     .run = pdschSps},
    {.told = {.id = "pdsch-pucch-cell",
              .severity = RRC_RULE_ERROR,
              .statement = "pucch-Cell is given when an SCell without a PUCCH is added, and names a cell that has one.",
              .advice = "Leave it out where the PUCCH is the SpCell's.",
              .clause = "TS 38.331 PDSCH-ServingCellConfig",
              .given = "",
              .bad = AT_CELL "pdsch-ServingCellConfig.setup.pucch-Cell = 0",
              .good = AT_CELL "pdsch-ServingCellConfig.setup.xOverhead = xOh6",
              .since = "0.1.0"},
     .run = pdschPucchCell},
};

} // namespace

constinit const RuleGroup pdschRules = groupOf(pdschTable);

} // namespace rules
