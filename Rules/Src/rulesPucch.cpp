// PUCCH.
#include "examplePaths.h"
#include "rules.h"

#include "modelLists.h"
#include "searchSpaces.h"
#include "uplink.h"

namespace rules
{
namespace
{

// Each PUCCH-Config with what it lists.
template <typename Each>
void forPucchs(Check& check, const Each& each)
{
    for (Cell& cell : check.model.cells())
    {
        for (const Direction direction : {Direction::Uplink, Direction::Supplementary})
        {
            for (Bwp& bwp : cell.bwps(direction))
            {
                if (bwp.pucch != nullptr)
                {
                    each(cell, bwp, *bwp.pucch, check.model.pucch(bwp));
                }
            }
        }
    }
}

// Each resource of each PUCCH-Config whose format can be read.
template <typename Each>
void forShapes(Check& check, const Each& each)
{
    forPucchs(check,
              [&](Cell&, Bwp& bwp, const PUCCH_Config&, const Pucch& lists)
              {
                  for (const IdEntry<PUCCH_Resource>& entry : lists.resources)
                  {
                      PucchShape shape{};
                      if (pucchShapeOf(check.tree, *entry.element, shape))
                      {
                          each(bwp, *entry.element, shape);
                      }
                  }
              });
}

// Short ones, of up to two bits: format 0 and 1.
bool isSmall(const PUCCH_Resource& resource)
{
    return resource.format.t == T_PUCCH_Resource_format_format0 || resource.format.t == T_PUCCH_Resource_format_format1;
}

// Bit f: there is a resource of format f.
OSUINT32 usedFormats(const Pucch& lists)
{
    OSUINT32 used = 0;
    for (const IdEntry<PUCCH_Resource>& entry : lists.resources)
    {
        const OSUINT32 tag = entry.element->format.t;
        used |= tag >= 1 && tag <= pucchFormats ? 1U << (tag - 1) : 0;
    }
    return used;
}

constexpr const char* aResource = "a PUCCH-Resource";

// The resources that sets and multi-CSI-PUCCH-ResourceList name are there.
void pucchResourceRef(Check& check)
{
    forPucchs(check,
              [&](Cell&, Bwp&, const PUCCH_Config& pucch, const Pucch& lists)
              {
                  for (const IdEntry<PUCCH_ResourceSet>& entry : lists.sets)
                  {
                      for (const PUCCH_ResourceId& id : entries(&entry.element->resourceList))
                      {
                          check.resolve(lists.resources, id, &id, aResource);
                      }
                  }
                  for (const PUCCH_ResourceId& id : entries(MEMBER(pucch, multi_CSI_PUCCH_ResourceList)))
                  {
                      check.resolve(lists.resources, id, &id, aResource);
                  }
              });
}

constexpr OSUINT32 mostOfLargerSets = 8;

// Set 0 is of formats 0 and 1, the others have up to 8 resources of formats 2 to 4.
void pucchSetContent(Check& check)
{
    forPucchs(check,
              [&](Cell&, Bwp&, const PUCCH_Config&, const Pucch& lists)
              {
                  for (const IdEntry<PUCCH_ResourceSet>& entry : lists.sets)
                  {
                      const auto ids = entries(&entry.element->resourceList);
                      if (lists.sets.repeats || lists.resources.repeats) // gen-dup-id
                      {
                          return;
                      }
                      if (entry.id != 0 && ids.size() > mostOfLargerSets)
                      {
                          check.error(&entry.element->resourceList)
                              .found("%zu resources", ids.size())
                              .allowed("set %u has at most %u; only set 0 may have 32", entry.id, mostOfLargerSets);
                      }
                      for (const PUCCH_ResourceId& id : ids)
                      {
                          const PUCCH_Resource* const resource = lists.resources.element(id);
                          if (resource != nullptr && isSmall(*resource) != (entry.id == 0))
                          {
                              check.error(&id)
                                  .found("%u, of format %u", id, resource->format.t - 1)
                                  .allowed("set %u is of formats %s", entry.id, entry.id == 0 ? "0 and 1" : "2 to 4");
                          }
                      }
                  }
              });
}

// maxPayloadMinus1 divides what lies between the first set and the last.
void pucchSetPayload(Check& check)
{
    forPucchs(
        check,
        [&](Cell&, Bwp&, const PUCCH_Config&, const Pucch& lists)
        {
            OSUINT32 highest = 0;
            for (const IdEntry<PUCCH_ResourceSet>& entry : lists.sets)
            {
                highest = std::max(highest, entry.id);
            }
            for (const IdEntry<PUCCH_ResourceSet>& entry : lists.sets)
            {
                const PUCCH_ResourceSet& set = *entry.element;
                const OSUINT16* const most = MEMBER(set, maxPayloadMinus1);
                if (most == nullptr && entry.id != 0 && entry.id != highest)
                {
                    check.error(&set.maxPayloadMinus1).allowed("set %u is neither the first nor the last", entry.id);
                }
                if (most == nullptr)
                {
                    continue;
                }
                if (entry.id == 0)
                {
                    check.error(most).allowed("set 0 is for 2 bits");
                    continue;
                }
                if (entry.id == highest)
                {
                    check.missing(lists.sets.complete, most)
                        .allowed("set %u is the last one, whose size follows from its resources", entry.id);
                    continue;
                }
                if (*most % 4 != 0)
                {
                    check.error(most).allowed("it is a multiple of 4");
                }
                for (const IdEntry<PUCCH_ResourceSet>& other : lists.sets)
                {
                    const OSUINT16* const less = MEMBER(*other.element, maxPayloadMinus1);
                    if (other.id != 0 && other.id < entry.id && less != nullptr && *less >= *most)
                    {
                        check.error(most).allowed("set %u before it has %u", other.id, *less);
                        break;
                    }
                }
            }
        });
}

// There is a set for HARQ-ACK of one or two bits, and the sets are numbered without a gap.
void pucchSetZero(Check& check)
{
    forPucchs(
        check,
        [&](Cell&, const Bwp& bwp, const PUCCH_Config& pucch, const Pucch& lists)
        {
            if (!lists.sets.complete)
            {
                check.undecided(RRC_RULE_INPUT_PREVIOUS);
                return;
            }
            if (bwp.isInitial() && lists.sets.empty())
            {
                return; // it has those of pucch-ResourceCommon
            }
            if (lists.sets.find(0) == nullptr)
            {
                check.warning(&pucch.resourceSetToAddModList)
                    .found("no set 0")
                    .allowed("HARQ-ACK of up to two bits is sent in it");
                return;
            }
            for (const IdEntry<PUCCH_ResourceSet>& entry : lists.sets)
            {
                if (entry.id != 0 && lists.sets.find(entry.id - 1) == nullptr)
                {
                    check.warning(&entry.element->pucch_ResourceSetId).allowed("there is no set %u", entry.id - 1);
                }
            }
        });
}

// A format that resources have is set up.
void pucchFormatSetup(Check& check)
{
    forPucchs(
        check,
        [&](Cell&, Bwp&, const PUCCH_Config& pucch, const Pucch& lists)
        {
            const OSUINT32 used = usedFormats(lists);
            const PucchFormats formats = pucchFormatsOf(check.tree, pucch);
            const auto judge = [&](OSUINT32 format, const auto* at)
            {
                if ((used >> format & 1) != 0 && formats.of[format] == nullptr)
                {
                    check.missing(lists.resources.complete, at).allowed("there are resources of format %u", format);
                }
            };
            judge(2, &pucch.format2);
            judge(3, &pucch.format3);
            judge(4, &pucch.format4);
        });
}

// Formats 2 to 4 have a code rate, and formats 1 and 2 nothing that does not apply to them.
void pucchMaxcoderate(Check& check)
{
    forPucchs(check,
              [&](Cell&, Bwp&, const PUCCH_Config& pucch, const Pucch& lists)
              {
                  const OSUINT32 used = usedFormats(lists);
                  const PucchFormats formats = pucchFormatsOf(check.tree, pucch);
                  for (OSUINT32 format = 2; format < pucchFormats; ++format)
                  {
                      const PUCCH_FormatConfig* const config = formats.of[format];
                      if (config != nullptr && (used >> format & 1) != 0 && config->m.maxCodeRatePresent == 0)
                      {
                          check.error(&config->maxCodeRate).allowed("there are resources of format %u", format);
                      }
                  }
                  const auto idle = [&](OSUINT32 format, const auto* member)
                  {
                      if (member != nullptr)
                      {
                          check.warning(member).allowed("it does not apply to format %u", format);
                      }
                  };
                  for (const OSUINT32 format : {1U, 2U})
                  {
                      if (const PUCCH_FormatConfig* const config = formats.of[format])
                      {
                          idle(format, MEMBER(*config, additionalDMRS));
                          idle(format, MEMBER(*config, pi2BPSK));
                      }
                  }
                  if (const PUCCH_FormatConfig* const config = formats.of[1])
                  {
                      idle(1, MEMBER(*config, maxCodeRate));
                      idle(1, MEMBER(*config, simultaneousHARQ_ACK_CSI));
                  }
              });
}

// A resource ends with its slot.
void pucchSymbols(Check& check)
{
    forShapes(check,
              [&](const Bwp& bwp, const PUCCH_Resource&, const PucchShape& shape)
              {
                  if (OSUINT32{*shape.start} + *shape.symbols > bwp.symbolsPerSlot())
                  {
                      check.error(shape.symbols)
                          .found("%u symbols from symbol %u on", *shape.symbols, *shape.start)
                          .allowed("the slot has %u", bwp.symbolsPerSlot());
                  }
              });
}

bool hops(const PUCCH_Resource& resource)
{
    return resource.m.intraSlotFrequencyHoppingPresent != 0;
}

// There are as many orthogonal sequences as the shorter hop has symbols besides DM-RS.
void pucchF1Occ(Check& check)
{
    forShapes(check,
              [&](const Bwp&, const PUCCH_Resource& resource, const PucchShape&)
              {
                  const PUCCH_format1* const f1 = CHOSEN(check.tree, &resource.format, PUCCH_Resource_format, format1);
                  const OSUINT32 sequences =
                      f1 == nullptr ? 0 : nrPucchF1Sequences(f1->nrofSymbols, hops(resource) ? 1 : 0);
                  if (sequences != 0 && f1->timeDomainOCC >= sequences)
                  {
                      check.error(&f1->timeDomainOCC)
                          .allowed("%u symbols %s hopping have sequences 0..%u", f1->nrofSymbols,
                                   hops(resource) ? "with" : "without", sequences - 1);
                  }
              });
}

// The resource blocks of format 3 are a size of the transform.
void pucchF3Prbs(Check& check)
{
    forShapes(check,
              [&](const Bwp&, const PUCCH_Resource& resource, const PucchShape&)
              {
                  const PUCCH_format3* const f3 = CHOSEN(check.tree, &resource.format, PUCCH_Resource_format, format3);
                  if (f3 != nullptr && nrIsDftSize(f3->nrofPRBs) == 0)
                  {
                      check.error(&f3->nrofPRBs).allowed("it is a product of 2, 3 and 5");
                  }
              });
}

// occ-Index counts within occ-Length.
void pucchF4Occ(Check& check)
{
    forShapes(check,
              [&](const Bwp&, const PUCCH_Resource& resource, const PucchShape&)
              {
                  const PUCCH_format4* const f4 = CHOSEN(check.tree, &resource.format, PUCCH_Resource_format, format4);
                  if (f4 != nullptr && f4->occ_Length == PUCCH_format4_occ_Length_n2 &&
                      f4->occ_Index > PUCCH_format4_occ_Index_n1)
                  {
                      check.error(&f4->occ_Index).allowed("of length n2 there are n0 and n1");
                  }
              });
}

// What formatN says of hopping from slot to slot; null where the format has none of it.
// Each hop lies in the bandwidth part.
void pucchPrbInBwp(Check& check)
{
    forShapes(check,
              [&](const Bwp& bwp, const PUCCH_Resource& resource, const PucchShape& shape)
              {
                  const Known<NrSpan> rbs = bwp.rbs();
                  if (!check.decided(rbs))
                  {
                      return;
                  }
                  const auto judge = [&](const PRB_Id* prb)
                  {
                      if (*prb + shape.rbs > rbs->size)
                      {
                          check.error(prb)
                              .found("%u..%u", *prb, *prb + shape.rbs - 1)
                              .allowed("bandwidth part %u has PRB 0..%u", bwp.id, rbs->size - 1);
                      }
                  };
                  judge(&resource.startingPRB);
                  const PRB_Id* const second = MEMBER(resource, secondHopPRB);
                  if (second != nullptr && (hops(resource) || hopsBetweenSlots(check.tree, bwp, shape.format)))
                  {
                      judge(second);
                  }
              });
}

// What hops says where to.
void pucchHopPrb(Check& check)
{
    forShapes(check,
              [&](Bwp& bwp, const PUCCH_Resource& resource, const PucchShape& shape)
              {
                  const bool isHopping = hops(resource) || hopsBetweenSlots(check.tree, bwp, shape.format);
                  const PRB_Id* const second = MEMBER(resource, secondHopPRB);
                  if (isHopping && second == nullptr)
                  {
                      check.error(&resource.secondHopPRB).allowed("the resource hops");
                  }
                  else if (isHopping && *second == resource.startingPRB)
                  {
                      check.warning(second).allowed("the first hop is there, too");
                  }
                  else if (second != nullptr && !isHopping)
                  {
                      check.model.pucch(bwp).resources.complete
                          ? (void)check.warning(second).allowed("the resource does not hop")
                          : check.undecided(RRC_RULE_INPUT_PREVIOUS);
                  }
                  if (hops(resource) && *shape.symbols == 1)
                  {
                      check.warning(&resource.intraSlotFrequencyHopping).allowed("a single symbol does not hop");
                  }
              });
}

// A repeated format hops within the slots or between them.
void pucchHopBoth(Check& check)
{
    forPucchs(check,
              [&](Cell&, Bwp&, const PUCCH_Config& pucch, const Pucch& lists)
              {
                  OSUINT32 hopping = 0;
                  for (const IdEntry<PUCCH_Resource>& entry : lists.resources)
                  {
                      const OSUINT32 tag = entry.element->format.t;
                      hopping |= hops(*entry.element) && tag >= 1 && tag <= pucchFormats ? 1U << (tag - 1) : 0;
                  }
                  const PucchFormats formats = pucchFormatsOf(check.tree, pucch);
                  for (OSUINT32 format = 1; format < pucchFormats; ++format)
                  {
                      const PUCCH_FormatConfig* const config = formats.of[format];
                      const auto* const between =
                          config == nullptr ? nullptr : MEMBER(*config, interslotFrequencyHopping);
                      if (between == nullptr)
                      {
                          continue;
                      }
                      if (format == 2 || config->m.nrofSlotsPresent == 0)
                      {
                          check.notice(between).allowed(format == 2 ? "format 2 is not repeated"
                                                                    : "without nrofSlots there is one slot");
                      }
                      else if ((hopping >> format & 1) != 0)
                      {
                          check.error(between).allowed("resources of format %u hop within the slot", format);
                      }
                  }
              });
}

// Formats 2 to 4 agree whether HARQ-ACK and CSI go together.
void pucchSimultaneous(Check& check)
{
    forPucchs(check,
              [&](Cell&, Bwp&, const PUCCH_Config& pucch, const Pucch&)
              {
                  const PucchFormats formats = pucchFormatsOf(check.tree, pucch);
                  OSUINT32 first = 0;
                  for (OSUINT32 format = 2; format < pucchFormats; ++format)
                  {
                      const PUCCH_FormatConfig* const config = formats.of[format];
                      if (config == nullptr)
                      {
                          continue;
                      }
                      first = first == 0 ? format : first;
                      if (config->m.simultaneousHARQ_ACK_CSIPresent !=
                          formats.of[first]->m.simultaneousHARQ_ACK_CSIPresent)
                      {
                          check.error(&config->simultaneousHARQ_ACK_CSI).allowed("of format %u it is otherwise", first);
                      }
                  }
              });
}

// A scheduling request has a period and a resource of format 0 or 1.
void pucchSrResource(Check& check)
{
    forPucchs(check,
              [&](Cell&, Bwp&, const PUCCH_Config&, const Pucch& lists)
              {
                  for (const IdEntry<SchedulingRequestResourceConfig>& entry : lists.srResources)
                  {
                      const SchedulingRequestResourceConfig& request = *entry.element;
                      const PUCCH_ResourceId* const id = MEMBER(request, resource);
                      const bool isWhole = id != nullptr && request.m.periodicityAndOffsetPresent != 0;
                      if (!isWhole && check.isNew(entry.novelty))
                      {
                          id == nullptr
                              ? check.error(&request.resource).allowed("the configuration is new")
                              : check.error(&request.periodicityAndOffset).allowed("the configuration is new");
                      }
                      const PUCCH_Resource* const resource =
                          id == nullptr ? nullptr : check.resolve(lists.resources, *id, id, aResource);
                      if (resource != nullptr && !lists.resources.repeats && !isSmall(*resource))
                      {
                          check.error(id)
                              .found("%u, of format %u", *id, resource->format.t - 1)
                              .allowed("a scheduling request is sent in format 0 or 1");
                      }
                  }
              });
}

// The period of a scheduling request is one of the spacing.
void pucchSrPeriod(Check& check)
{
    forPucchs(check,
              [&](Cell&, Bwp& bwp, const PUCCH_Config&, const Pucch& lists)
              {
                  for (const IdEntry<SchedulingRequestResourceConfig>& entry : lists.srResources)
                  {
                      const SchedulingRequestResourceConfig& request = *entry.element;
                      const auto* const choice = MEMBER(request, periodicityAndOffset);
                      if (choice == nullptr)
                      {
                          continue;
                      }
                      const SrPeriod period = srPeriodOf(*choice, bwp);
                      const PUCCH_Resource* const resource =
                          request.m.resourcePresent != 0 ? lists.resources.element(request.resource) : nullptr;
                      PucchShape shape{};
                      if (period.symbols != 0 && resource != nullptr && pucchShapeOf(check.tree, *resource, shape) &&
                          *shape.symbols > period.symbols)
                      {
                          check.warning(choice).allowed("the resource has %u symbols", *shape.symbols);
                      }
                      if (period.slots == 0 || !check.decided(bwp.mu()))
                      {
                          continue;
                      }
                      const OSUINT32 mu = *bwp.mu();
                      if (nrSrPeriodAllowed(mu, period.slots) == 0)
                      {
                          check.error(choice).allowed("at %u kHz there is no such period", khzOf(mu));
                      }
                      else if (nrSrPeriodNeedsCapability(mu, period.slots) != 0)
                      {
                          const RrcRuleCapabilities* const able = check.model.known.capabilities;
                          if (able == nullptr)
                          {
                              check.undecided(RRC_RULE_INPUT_CAPABILITIES);
                              check.warning(choice).allowed("at %u kHz only some UEs have that period", khzOf(mu));
                          }
                          else if ((able->features & RRC_RULE_FEATURE_SR_PERIODS) == 0)
                          {
                              check.error(choice).allowed("at %u kHz the UE does not have that period", khzOf(mu));
                          }
                      }
                  }
              });
}

// Whether some search space of the cell has DCI format 1_1.
bool hasFormat11(Check& check, Cell& cell)
{
    for (Bwp& bwp : cell.downlink)
    {
        for (const SearchSpaceEntry& space : check.model.pdcch(bwp).allSearchSpaces)
        {
            const auto* const type = ueSpecificType(check.tree, *space.element);
            if (type != nullptr &&
                type->dci_Formats == SearchSpace_searchSpaceType_ue_Specific_dci_Formats_formats0_1_And_1_1)
            {
                return true;
            }
        }
    }
    return false;
}

// Symbols from the end of the shortest and earliest PDSCH to the latest PUCCH that a UE needs at least (TS 38.214 table
// 5.3-1), and that a slot has.
constexpr OSUINT32 processing[] = {8, 10, 17, 20};
constexpr OSUINT32 earliestEnd = 1;

using Delays = PUCCH_Config_dl_DataToUL_ACK;

// Whether every downlink slot has an uplink slot that some delay leads to.
void judgeReach(Check& check, const Cell& cell, const Bwp& bwp, const Delays& delays)
{
    const Bwp* const downlink = cell.bwp(Direction::Downlink, bwp.id);
    const Known<TddGrid> grid = tddGrid(check.model, cell);
    const bool isFdd = cell.duplex && *cell.duplex == RRC_RULE_DUPLEX_FDD;
    if (isFdd || downlink == nullptr || !check.decided(grid) || !check.decided(bwp.mu()) ||
        !check.decided(downlink->mu()) || *bwp.mu() != *downlink->mu() || *bwp.mu() < grid->muRef)
    {
        return;
    }
    const OSUINT32 mu = *bwp.mu();
    const TddSlots slots = check.model.tddSlots(cell, *grid, mu);
    for (OSUINT32 slot = 0; slot < slots.count(); ++slot)
    {
        bool isReached = !slots.isAll(slot, NR_SYMBOL_DOWNLINK);
        for (const OSUINT32 delay : entries(&delays))
        {
            isReached = isReached || !slots.isAll(slot + delay, NR_SYMBOL_DOWNLINK);
        }
        if (!isReached)
        {
            check.warning(&delays).allowed("none of them leads from slot %u to an uplink slot", slot);
            return;
        }
    }
}

// dl-DataToUL-ACK has delays that can be used.
void pucchK1(Check& check)
{
    forPucchs(check,
              [&](Cell& cell, Bwp& bwp, const PUCCH_Config& pucch, const Pucch& lists)
              {
                  const Delays* const delays = MEMBER(pucch, dl_DataToUL_ACK);
                  if (delays == nullptr)
                  {
                      if (!lists.resources.complete)
                      {
                          check.undecided(RRC_RULE_INPUT_PREVIOUS);
                      }
                      else if (hasFormat11(check, cell))
                      {
                          check.warning(&pucch.dl_DataToUL_ACK).allowed("DCI format 1_1 is monitored, which names one");
                      }
                      return;
                  }
                  const Known<OSUINT32> mu = bwp.mu();
                  const PDSCH_ServingCellConfig* const serving =
                      cell.dedicated == nullptr ? nullptr
                                                : check.tree.setup(MEMBER(*cell.dedicated, pdsch_ServingCellConfig));
                  const OSBOOL* const type2 =
                      serving == nullptr ? nullptr : ADDITION(*serving, 2, processingType2Enabled);
                  const bool isFast = type2 != nullptr && *type2 != 0;
                  OSUINT32 seen = 0;
                  for (const OSUINT8& delay : entries(delays))
                  {
                      const OSUINT32 bit = 1U << (delay & 31);
                      if ((seen & bit) != 0)
                      {
                          check.warning(&delay).allowed("it is there before");
                      }
                      seen |= bit;
                      const OSUINT32 room = NR_SYMBOLS * (delay + 1U) - 1 - earliestEnd - 1;
                      if (mu && *mu < std::size(processing) && !isFast && room < processing[*mu])
                      {
                          check.warning(&delay).allowed("at %u kHz the UE needs %u symbols after the PDSCH", khzOf(*mu),
                                                        processing[*mu]);
                      }
                  }
                  judgeReach(check, cell, bwp, *delays);
              });
}

// False where there is no PUCCH.
bool judgeCsiResource(Check& check, const Cell& cell, const PUCCH_CSI_Resource& named)
{
    const BWP_Id& id = named.uplinkBandwidthPartId;
    const Bwp* const any = cell.bwp(Direction::Uplink, id) != nullptr ? cell.bwp(Direction::Uplink, id)
                                                                      : cell.bwp(Direction::Supplementary, id);
    Bwp* const bwp = pucchBwp(cell, id);
    if (any == nullptr)
    {
        check.missing(cell.complete, &id).allowed("there is no uplink bandwidth part %u", id);
        return false;
    }
    if (bwp == nullptr)
    {
        const bool isWhole = cell.complete || any->novelty == Novelty::New;
        if (!isWhole || !cell.isSpCell() || any->isInitial()) // of the others pucch-one-uplink speaks
        {
            check.missing(isWhole, &id).allowed("uplink bandwidth part %u has no pucch-Config", id);
        }
        return false;
    }
    const PUCCH_Resource* const resource =
        check.resolve(check.model.pucch(*bwp).resources, named.pucch_Resource, &named.pucch_Resource, aResource);
    if (resource != nullptr && isSmall(*resource))
    {
        check.error(&named.pucch_Resource)
            .found("%u, of format %u", named.pucch_Resource, resource->format.t - 1)
            .allowed("CSI is sent in formats 2 to 4");
    }
    return true;
}

// A CSI report on PUCCH has a resource in each bandwidth part that has a PUCCH, in the cell that carries it.
void pucchCsiResource(Check& check)
{
    for (Cell& cell : check.model.cells())
    {
        const Cell* const pucchCell = pucchCellOf(check.model, cell);
        if (pucchCell == nullptr)
        {
            continue;
        }
        for (const IdEntry<CSI_ReportConfig>& entry : check.model.csi(cell).reports)
        {
            OSUINT32 seen = 0;
            bool areThere = true;
            const List<PUCCH_CSI_Resource> list = csiResourcesOf(check.tree, *entry.element);
            for (const PUCCH_CSI_Resource& named : list)
            {
                const OSUINT32 bit = 1U << (named.uplinkBandwidthPartId & 31);
                if ((seen & bit) != 0)
                {
                    check.error(&named.uplinkBandwidthPartId).allowed("it has a resource before");
                }
                seen |= bit;
                areThere = judgeCsiResource(check, *pucchCell, named) && areThere;
            }
            for (OSUINT32 id = 0; id <= maxNrofBWPs; ++id)
            {
                if (!list.empty() && areThere && pucchBwp(*pucchCell, id) != nullptr && (seen >> id & 1) == 0)
                {
                    check.warning(&entry.element->reportConfigType)
                        .found("no resource in uplink bandwidth part %u", id)
                        .allowed("there is a PUCCH");
                }
            }
        }
    }
}

template <typename Ids, typename Id>
bool hasId(const Ids& list, Id id)
{
    for (const auto& entry : list)
    {
        if (id(entry))
        {
            return true;
        }
    }
    return false;
}

// What a spatial relation names as the signal to follow; of SS/PBCH blocks ssb-index-transmitted speaks.
void judgeSource(Check& check, Cell& own, const PUCCH_SpatialRelationInfo& relation)
{
    const ServCellIndex* const index = MEMBER(relation, servingCellId);
    Cell* const cell = index == nullptr ? &own : check.resolveCell(*index, index);
    const auto* const signal = &relation.referenceSignal;
    if (cell == nullptr)
    {
        return;
    }
    if (signal->t == T_PUCCH_SpatialRelationInfo_referenceSignal_csi_RS_Index)
    {
        check.resolve(check.model.csi(*cell).nzpResources, signal->u.csi_RS_Index, &signal->u.csi_RS_Index,
                      "an NZP-CSI-RS-Resource");
    }
    if (const auto* const srs = CHOSEN(check.tree, signal, PUCCH_SpatialRelationInfo_referenceSignal, srs))
    {
        Bwp* const uplink = check.resolveBwp(*cell, Direction::Uplink, &srs->uplinkBWP);
        if (uplink != nullptr)
        {
            check.resolve(check.model.srs(*uplink).resources, srs->resource, &srs->resource, "an SRS-Resource");
        }
    }
}

// What a spatial relation names is there.
void pucchSpatialRefs(Check& check)
{
    forPucchs(check,
              [&](Cell& cell, Bwp&, const PUCCH_Config& pucch, const Pucch& lists)
              {
                  const PUCCH_PowerControl* const power = MEMBER(pucch, pucch_PowerControl);
                  const auto* const p0Set = power == nullptr ? nullptr : MEMBER(*power, p0_Set);
                  const auto* const pathloss = power == nullptr ? nullptr : MEMBER(*power, pathlossReferenceRSs);
                  const bool complete = lists.spatialRelations.complete;
                  for (const IdEntry<PUCCH_SpatialRelationInfo>& entry : lists.spatialRelations)
                  {
                      const PUCCH_SpatialRelationInfo& relation = *entry.element;
                      const bool hasP0 =
                          p0Set == nullptr || hasId(check.tree.list<P0_PUCCH>(p0Set), [&](const P0_PUCCH& one)
                                                    { return one.p0_PUCCH_Id == relation.p0_PUCCH_Id; });
                      if (!hasP0)
                      {
                          check.error(&relation.p0_PUCCH_Id).allowed("p0-Set has none of that id");
                      }
                      const bool hasPathloss =
                          pathloss == nullptr ||
                          hasId(check.tree.list<PUCCH_PathlossReferenceRS>(pathloss),
                                [&](const PUCCH_PathlossReferenceRS& one)
                                { return one.pucch_PathlossReferenceRS_Id == relation.pucch_PathlossReferenceRS_Id; });
                      if (!hasPathloss)
                      {
                          check.error(&relation.pucch_PathlossReferenceRS_Id)
                              .allowed("pathlossReferenceRSs has none of that id");
                      }
                      const bool hasTwo = power != nullptr && power->m.twoPUCCH_PC_AdjustmentStatesPresent != 0;
                      if (relation.closedLoopIndex == PUCCH_SpatialRelationInfo_closedLoopIndex_i1 && !hasTwo)
                      {
                          check.missing(complete || power != nullptr, &relation.closedLoopIndex)
                              .allowed("without twoPUCCH-PC-AdjustmentStates there is one loop");
                      }
                      judgeSource(check, cell, relation);
                  }
              });
}

// Without spatial relations the power follows pathloss reference 0.
void pucchPowerDefault(Check& check)
{
    forPucchs(check,
              [&](Cell&, Bwp&, const PUCCH_Config& pucch, const Pucch& lists)
              {
                  const PUCCH_PowerControl* const power = MEMBER(pucch, pucch_PowerControl);
                  const auto* const pathloss = power == nullptr ? nullptr : MEMBER(*power, pathlossReferenceRSs);
                  if (pathloss == nullptr || !lists.spatialRelations.empty())
                  {
                      return;
                  }
                  if (!lists.spatialRelations.complete)
                  {
                      check.undecided(RRC_RULE_INPUT_PREVIOUS);
                      return;
                  }
                  if (!hasId(check.tree.list<PUCCH_PathlossReferenceRS>(pathloss),
                             [](const PUCCH_PathlossReferenceRS& one)
                             { return one.pucch_PathlossReferenceRS_Id == 0; }))
                  {
                      check.warning(pathloss)
                          .found("no pathloss reference 0")
                          .allowed("without spatial relations the power follows that");
                  }
              });
}

// PUCCH-ConfigCommon has even powers, and the common resources of the initial bandwidth part alone.
void pucchCommon(Check& check)
{
    for (Cell& cell : check.model.cells())
    {
        for (const Direction direction : {Direction::Uplink, Direction::Supplementary})
        {
            for (const Bwp& bwp : cell.bwps(direction))
            {
                const PUCCH_ConfigCommon* const common =
                    bwp.uplinkCommon == nullptr ? nullptr
                                                : check.tree.setup(MEMBER(*bwp.uplinkCommon, pucch_ConfigCommon));
                if (common == nullptr)
                {
                    continue;
                }
                const OSINT16* const nominal = MEMBER(*common, p0_nominal);
                if (nominal != nullptr && *nominal % 2 != 0)
                {
                    check.error(nominal).allowed("it is even");
                }
                if (!bwp.isInitial() && common->m.pucch_ResourceCommonPresent != 0)
                {
                    check.error(&common->pucch_ResourceCommon).allowed("only bandwidth part 0 has it");
                }
                if (common->pucch_GroupHopping != PUCCH_ConfigCommon_pucch_GroupHopping_neither &&
                    common->m.hoppingIdPresent == 0)
                {
                    check.notice(&common->hoppingId).allowed("sequences then hop by the physical cell id");
                }
            }
        }
    }
}

// Where a bandwidth part lacks its pucch-Config.
void missPucch(Check& check, const Bwp& bwp)
{
    const bool complete = check.model.complete || bwp.novelty == Novelty::New;
    if (!complete)
    {
        check.undecided(RRC_RULE_INPUT_PREVIOUS);
        return;
    }
    if (bwp.uplinkDedicated == nullptr)
    {
        check.error(&bwp.uplink->bwp_Dedicated).found("no pucch-Config").allowed("the cell has a PUCCH");
    }
    else
    {
        check.error(&bwp.uplinkDedicated->pucch_Config).allowed("the cell has a PUCCH");
    }
}

// A cell's PUCCH is on one uplink, in each of its bandwidth parts; the SpCell has one, and one SCell may.
void pucchOneUplink(Check& check)
{
    const Cell* pucchSCell = nullptr;
    for (Cell& cell : check.model.cells())
    {
        const bool onUplink = hasPucch(cell.uplink);
        const bool onSul = hasPucch(cell.sul);
        for (const Bwp& bwp : cell.sul)
        {
            if (onUplink && bwp.pucch != nullptr)
            {
                check.error(&bwp.uplinkDedicated->pucch_Config).allowed("the other uplink of the cell has one, too");
            }
        }
        for (const Bwp& bwp : onSul && !onUplink ? cell.sul : cell.uplink)
        {
            const bool isNeeded = !bwp.isInitial() && (cell.isSpCell() || onUplink || onSul);
            if (isNeeded && bwp.pucch == nullptr)
            {
                missPucch(check, bwp);
            }
        }
        if (cell.isSpCell() || !(onUplink || onSul))
        {
            continue;
        }
        if (pucchSCell != nullptr && pucchSCell->sCell != nullptr)
        {
            check.error(&cell.sCell->sCellIndex)
                .found("SCell %u with a PUCCH", cell.sCell->sCellIndex)
                .allowed("SCell %u has one, and at most one SCell does", pucchSCell->sCell->sCellIndex);
        }
        pucchSCell = pucchSCell == nullptr ? &cell : pucchSCell;
    }
}

constexpr Rule pucchTable[] = {
    {.told = {.id = "pucch-resource-ref",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "The resources that resourceList and multi-CSI-PUCCH-ResourceList name are in the same PUCCH-Config.",
              .advice = "Add the resource, or name one that there is.",
              .clause = "TS 38.331 PUCCH-Config",
              .given = "",
              .bad = AT_PUCCH "multi-CSI-PUCCH-ResourceList[0] = 8",
              .good = AT_PUCCH "multi-CSI-PUCCH-ResourceList[0] = 7",
              .since = "0.1.0"},
     .run = pucchResourceRef},
    {.told = {.id = "pucch-set-content",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "PUCCH resource set 0 is of formats 0 and 1, the others of up to 8 resources of formats 2 to 4.",
              .advice = "Move the resource to a set of its format.",
              .clause = "TS 38.213 9.2.1; TS 38.331 PUCCH-ResourceSet",
              .given = "",
              .bad = AT_PUCCH "resourceSetToAddModList[1].resourceList[3] = 3",
              .good = AT_PUCCH "resourceSetToAddModList[1].resourceList[3] = 7",
              .since = "0.1.0"},
     .run = pucchSetContent},
    {.told = {.id = "pucch-set-payload",
              .severity = RRC_RULE_ERROR,
              .statement = "maxPayloadMinus1 is in the PUCCH resource sets between the first and the last, a multiple "
                           "of 4 that rises with the set.",
              .advice = "Leave it out of set 0 and of the last set.",
              .clause = "TS 38.331 PUCCH-ResourceSet; TS 38.213 9.2.1",
              .given = "",
              .bad = AT_PUCCH "resourceSetToAddModList[1].maxPayloadMinus1 = 256",
              .good = AT_PUCCH "resourceSetToAddModList[1].maxPayloadMinus1 = 256\n" AT_PUCCH
                               "resourceSetToAddModList[2].pucch-ResourceSetId = 2\n" AT_PUCCH
                               "resourceSetToAddModList[2].resourceList[0] = 7",
              .since = "0.1.0"},
     .run = pucchSetPayload},
    {.told = {.id = "pucch-set-zero",
              .severity = RRC_RULE_WARNING,
              .statement =
                  "The PUCCH resource sets are numbered from 0 without a gap: set 0 is for HARQ-ACK of up to two bits.",
              .advice = "Add the set.",
              .clause = "TS 38.213 9.2.1",
              .given = "",
              .bad = AT_PUCCH "resourceSetToAddModList[1].pucch-ResourceSetId = 2",
              .good = AT_PUCCH "resourceSetToAddModList[1].pucch-ResourceSetId = 1",
              .since = "0.1.0"},
     .run = pucchSetZero},
    {.told = {.id = "pucch-format-setup",
              .severity = RRC_RULE_ERROR,
              .statement = "format2, format3 and format4 are set up where resources of the format exist.",
              .advice = "Set the format up.",
              .clause = "TS 38.331 PUCCH-Config; TS 38.213 9.2.5",
              .given = "",
              .bad = AT_PUCCH "format2 = absent",
              .good = AT_PUCCH "format2.setup.maxCodeRate = zeroDot80",
              .since = "0.1.0"},
     .run = pucchFormatSetup},
    {.told = {.id = "pucch-maxcoderate",
              .severity = RRC_RULE_ERROR,
              .statement = "Formats 2 to 4 that are used have maxCodeRate; format1 has only what applies to it, "
                           "format2 neither additionalDMRS nor pi2BPSK.",
              .advice = "Add maxCodeRate.",
              .clause = "TS 38.331 PUCCH-FormatConfig; TS 38.213 9.2.5",
              .given = "",
              .bad = AT_PUCCH "format2.setup.maxCodeRate = absent",
              .good = AT_PUCCH "format2.setup.maxCodeRate = zeroDot08",
              .since = "0.1.0"},
     .run = pucchMaxcoderate},
    {.told = {.id = "pucch-symbols",
              .severity = RRC_RULE_ERROR,
              .statement = "startingSymbolIndex and nrofSymbols of a PUCCH resource stay within the slot.",
              .advice = "Start earlier, or take fewer symbols.",
              .clause = "TS 38.211 6.3.2; TS 38.213 9.2.1",
              .given = "",
              .bad = AT_PUCCH_RESOURCE "[0].format.format1.startingSymbolIndex = 1",
              .good = AT_PUCCH_RESOURCE "[0].format.format1.startingSymbolIndex = 1\n" AT_PUCCH_RESOURCE
                                        "[0].format.format1.nrofSymbols = 13",
              .since = "0.1.0"},
     .run = pucchSymbols},
    {.told = {.id = "pucch-f1-occ",
              .severity = RRC_RULE_ERROR,
              .statement = "timeDomainOCC of format 1 is below the number of orthogonal sequences that nrofSymbols, or "
                           "its shorter hop, have.",
              .advice = "Choose a lower sequence.",
              .clause = "TS 38.211 table 6.3.2.4.1-1",
              .given = "",
              .bad = AT_PUCCH_RESOURCE "[0].format.format1.timeDomainOCC = 3",
              .good = AT_PUCCH_RESOURCE "[0].format.format1.timeDomainOCC = 2",
              .since = "0.1.0"},
     .run = pucchF1Occ},
    {.told = {.id = "pucch-f3-prbs",
              .severity = RRC_RULE_ERROR,
              .statement = "nrofPRBs of format 3 is a product of 2, 3 and 5: not 7, 11, 13 or 14.",
              .advice = "Take a number beside it: 6 or 8, 10 or 12, 15.",
              .clause = "TS 38.331 PUCCH-format3; TS 38.213 9.2.3",
              .given = "",
              .bad = AT_PUCCH_RESOURCE
              "[4].format = absent\n" AT_PUCCH_RESOURCE "[4].format.format3.nrofPRBs = 7\n" AT_PUCCH_RESOURCE
              "[4].format.format3.nrofSymbols = 4\n" AT_PUCCH_RESOURCE
              "[4].format.format3.startingSymbolIndex = 10\n" AT_PUCCH_RESOURCE "[4].secondHopPRB = 257\n" AT_PUCCH
              "format3.setup.maxCodeRate = zeroDot35\n" AT_PUCCH "format3.setup.simultaneousHARQ-ACK-CSI = true",
              .good = AT_PUCCH_RESOURCE
              "[4].format = absent\n" AT_PUCCH_RESOURCE "[4].format.format3.nrofPRBs = 8\n" AT_PUCCH_RESOURCE
              "[4].format.format3.nrofSymbols = 4\n" AT_PUCCH_RESOURCE
              "[4].format.format3.startingSymbolIndex = 10\n" AT_PUCCH_RESOURCE "[4].secondHopPRB = 257\n" AT_PUCCH
              "format3.setup.maxCodeRate = zeroDot35\n" AT_PUCCH "format3.setup.simultaneousHARQ-ACK-CSI = true",
              .since = "0.1.0"},
     .run = pucchF3Prbs},
    {.told = {.id = "pucch-f4-occ",
              .severity = RRC_RULE_ERROR,
              .statement = "occ-Index of format 4 is below occ-Length.",
              .advice = "Choose a lower index.",
              .clause = "TS 38.211 6.3.2.6.3; TS 38.213 9.2.1",
              .given = "",
              .bad = AT_PUCCH_RESOURCE
              "[4].format = absent\n" AT_PUCCH_RESOURCE "[4].format.format4.nrofSymbols = 4\n" AT_PUCCH_RESOURCE
              "[4].format.format4.occ-Length = n2\n" AT_PUCCH_RESOURCE
              "[4].format.format4.occ-Index = n2\n" AT_PUCCH_RESOURCE
              "[4].format.format4.startingSymbolIndex = 10\n" AT_PUCCH
              "format4.setup.maxCodeRate = zeroDot35\n" AT_PUCCH "format4.setup.simultaneousHARQ-ACK-CSI = true",
              .good = AT_PUCCH_RESOURCE
              "[4].format = absent\n" AT_PUCCH_RESOURCE "[4].format.format4.nrofSymbols = 4\n" AT_PUCCH_RESOURCE
              "[4].format.format4.occ-Length = n2\n" AT_PUCCH_RESOURCE
              "[4].format.format4.occ-Index = n1\n" AT_PUCCH_RESOURCE
              "[4].format.format4.startingSymbolIndex = 10\n" AT_PUCCH
              "format4.setup.maxCodeRate = zeroDot35\n" AT_PUCCH "format4.setup.simultaneousHARQ-ACK-CSI = true",
              .since = "0.1.0"},
     .run = pucchF4Occ},
    {.told = {.id = "pucch-prb-in-bwp",
              .severity = RRC_RULE_ERROR,
              .statement = "The resource blocks of both hops of a PUCCH resource lie in the bandwidth part.",
              .advice = "Count startingPRB and secondHopPRB within the bandwidth part.",
              .clause = "TS 38.213 9.2.1",
              .given = "",
              .bad = AT_PUCCH_RESOURCE "[0].secondHopPRB = 273",
              .good = AT_PUCCH_RESOURCE "[0].secondHopPRB = 272",
              .since = "0.1.0"},
     .run = pucchPrbInBwp},
    {.told = {.id = "pucch-hop-prb",
              .severity = RRC_RULE_ERROR,
              .statement = "A PUCCH resource that hops has secondHopPRB, another one than startingPRB; one that does "
                           "not hop needs none, and a single symbol does not hop.",
              .advice = "Add secondHopPRB.",
              .clause = "TS 38.331 PUCCH-Resource; TS 38.213 9.2.1, 9.2.6",
              .given = "",
              .bad = AT_PUCCH_RESOURCE "[0].secondHopPRB = absent",
              .good = AT_PUCCH_RESOURCE "[0].secondHopPRB = 1",
              .since = "0.1.0"},
     .run = pucchHopPrb},
    {.told = {.id = "pucch-hop-both",
              .severity = RRC_RULE_ERROR,
              .statement = "Where a format is repeated over slots, its resources hop within the slot or between slots, "
                           "not both; without nrofSlots it is not repeated.",
              .advice = "Remove one of the two.",
              .clause = "TS 38.331 PUCCH-FormatConfig; TS 38.213 9.2.6",
              .given = "",
              .bad = AT_PUCCH "format1.setup.interslotFrequencyHopping = enabled\n" AT_PUCCH
                              "format1.setup.nrofSlots = n2",
              .good = AT_PUCCH "format1.setup.nrofSlots = n2",
              .since = "0.1.0"},
     .run = pucchHopBoth},
    {.told = {.id = "pucch-simultaneous",
              .severity = RRC_RULE_ERROR,
              .statement = "simultaneousHARQ-ACK-CSI is the same for all of the formats 2 to 4 that are set up.",
              .advice = "Set it in all of them or none.",
              .clause = "TS 38.213 9.2.5",
              .given = "",
              .bad = AT_PUCCH "format3.setup.maxCodeRate = zeroDot35",
              .good = AT_PUCCH "format3.setup.maxCodeRate = zeroDot35\n" AT_PUCCH
                               "format3.setup.simultaneousHARQ-ACK-CSI = true",
              .since = "0.1.0"},
     .run = pucchSimultaneous},
    {.told = {.id = "pucch-sr-resource",
              .severity = RRC_RULE_ERROR,
              .statement = "A scheduling request has a resource of format 0 or 1 in the same PUCCH-Config, and a "
                           "period, when it is created.",
              .advice = "Name a resource of format 0 or 1.",
              .clause = "TS 38.331 SchedulingRequestResourceConfig",
              .given = "",
              .bad = AT_PUCCH "schedulingRequestResourceToAddModList[0].resource = 4",
              .good = AT_PUCCH "schedulingRequestResourceToAddModList[0].resource = 2",
              .since = "0.1.0"},
     .run = pucchSrResource},
    {.told = {.id = "pucch-sr-period",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "The period of a scheduling request is one of those of the bandwidth part's subcarrier spacing; "
                  "a period below a slot is for a resource that is no longer.",
              .advice = "Choose a period that the standard lists for the spacing.",
              .clause = "TS 38.331 SchedulingRequestResourceConfig",
              .given = "",
              .bad = AT_PUCCH "schedulingRequestResourceToAddModList[0].periodicityAndOffset = absent\n" AT_PUCCH
                              "schedulingRequestResourceToAddModList[0].periodicityAndOffset.sl320 = 4",
              .good = AT_PUCCH "schedulingRequestResourceToAddModList[0].periodicityAndOffset = absent\n" AT_PUCCH
                               "schedulingRequestResourceToAddModList[0].periodicityAndOffset.sl160 = 4",
              .since = "0.1.0"},
     .run = pucchSrPeriod},
    {.told = {.id = "pucch-k1",
              .severity = RRC_RULE_WARNING,
              .statement = "dl-DataToUL-ACK is there for DCI format 1_1, without the same value twice, with time for "
                           "the UE to decode, and leads from every downlink slot to an uplink slot.",
              .advice = "Choose delays that reach the uplink slots.",
              .clause = "TS 38.213 9.2.3; TS 38.214 5.3",
              .given = "",
              .bad = AT_PUCCH "dl-DataToUL-ACK[1] = 4",
              .good = AT_PUCCH "dl-DataToUL-ACK[1] = 8",
              .since = "0.1.0"},
     .run = pucchK1},
    {.told = {.id = "pucch-csi-resource",
              .severity = RRC_RULE_ERROR,
              .statement = "A CSI report on PUCCH has one resource, of formats 2 to 4, in each uplink bandwidth part "
                           "that has a PUCCH.",
              .advice = "Name a resource of formats 2 to 4.",
              .clause = "TS 38.331 PUCCH-CSI-Resource",
              .given = "",
              .bad = AT_REPORT "reportConfigType.periodic.pucch-CSI-ResourceList[0].pucch-Resource = 3",
              .good = AT_REPORT "reportConfigType.periodic.pucch-CSI-ResourceList[0].pucch-Resource = 4",
              .since = "0.1.0"},
     .run = pucchCsiResource},
    {.told = {.id = "pucch-spatial-refs",
              .severity = RRC_RULE_ERROR,
              .statement = "What a PUCCH-SpatialRelationInfo names is there: its power, pathloss reference, closed "
                           "loop, cell and reference signal.",
              .advice = "Add what is named, or name what there is.",
              .clause = "TS 38.331 PUCCH-SpatialRelationInfo, PUCCH-PowerControl; TS 38.213 7.2.1",
              .given = "",
              .bad = AT_PUCCH "spatialRelationInfoToAddModList[0].pucch-SpatialRelationInfoId = 1\n" AT_PUCCH
                              "spatialRelationInfoToAddModList[0].referenceSignal.ssb-Index = 1\n" AT_PUCCH
                              "spatialRelationInfoToAddModList[0].pucch-PathlossReferenceRS-Id = 0\n" AT_PUCCH
                              "spatialRelationInfoToAddModList[0].p0-PUCCH-Id = 2\n" AT_PUCCH
                              "spatialRelationInfoToAddModList[0].closedLoopIndex = i0",
              .good = AT_PUCCH "spatialRelationInfoToAddModList[0].pucch-SpatialRelationInfoId = 1\n" AT_PUCCH
                               "spatialRelationInfoToAddModList[0].referenceSignal.ssb-Index = 1\n" AT_PUCCH
                               "spatialRelationInfoToAddModList[0].pucch-PathlossReferenceRS-Id = 0\n" AT_PUCCH
                               "spatialRelationInfoToAddModList[0].p0-PUCCH-Id = 1\n" AT_PUCCH
                               "spatialRelationInfoToAddModList[0].closedLoopIndex = i0",
              .since = "0.1.0"},
     .run = pucchSpatialRefs},
    {.told = {.id = "pucch-power-default",
              .severity = RRC_RULE_WARNING,
              .statement = "Without spatial relations pathlossReferenceRSs has an entry with id 0.",
              .advice = "Give one entry id 0.",
              .clause = "TS 38.213 7.2.1",
              .given = "",
              .bad = AT_PUCCH "pucch-PowerControl.pathlossReferenceRSs[0].pucch-PathlossReferenceRS-Id = 1",
              .good = AT_PUCCH "pucch-PowerControl.pathlossReferenceRSs[0].pucch-PathlossReferenceRS-Id = 0",
              .since = "0.1.0"},
     .run = pucchPowerDefault},
    {.told = {.id = "pucch-common",
              .severity = RRC_RULE_ERROR,
              .statement = "p0-nominal is even, and pucch-ResourceCommon is in bandwidth part 0 alone.",
              .advice = "Change p0-nominal by 1; leave pucch-ResourceCommon to bandwidth part 0.",
              .clause = "TS 38.331 PUCCH-ConfigCommon",
              .given = "",
              .bad = AT_UL "bwp-Common.pucch-ConfigCommon.setup.p0-nominal = -91",
              .good = AT_UL "bwp-Common.pucch-ConfigCommon.setup.p0-nominal = -92",
              .since = "0.1.0"},
     .run = pucchCommon},
    {.told = {.id = "pucch-one-uplink",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "The PUCCH of a cell is on one of its uplinks, in each bandwidth part but perhaps the initial "
                  "one; the SpCell has one, and at most one SCell.",
              .advice = "Add pucch-Config to the bandwidth part.",
              .clause = "TS 38.331 BWP-UplinkDedicated",
              .given = "",
              .bad = AT_UL "bwp-Dedicated.pucch-Config = absent\n" AT_CSI "csi-ReportConfigToAddModList[0] = absent",
              .good = AT_CSI "csi-ReportConfigToAddModList[0] = absent",
              .since = "0.1.0"},
     .run = pucchOneUplink},
};

} // namespace

constinit const RuleGroup pucchRules = groupOf(pucchTable);

} // namespace rules
