// Sounding.
#include "examplePaths.h"
#include "rules.h"
#include "uplink.h"

namespace rules
{
namespace
{

using Aperiodic = SRS_ResourceSet_resourceType_aperiodic;

// Each resource set, with what it names.
template <typename Each>
void forSets(Check& check, const Each& each)
{
    forUplinks(check,
               [&](Cell& cell, Bwp& bwp)
               {
                   const Srs& srs = check.model.srs(bwp);
                   for (const IdEntry<SRS_ResourceSet>& entry : srs.sets)
                   {
                       each(cell, bwp, entry, srsSet(check.model, srs, *entry.element));
                   }
               });
}

template <typename Each>
void forResources(Check& check, const Each& each)
{
    forUplinks(check,
               [&](Cell& cell, Bwp& bwp)
               {
                   for (const IdEntry<SRS_Resource>& entry : check.model.srs(bwp).resources)
                   {
                       each(cell, bwp, *entry.element);
                   }
               });
}

const Aperiodic* aperiodicOf(const Tree& tree, const SRS_ResourceSet& set)
{
    const auto* const type = &set.resourceType;
    return CHOSEN(tree, type, SRS_ResourceSet_resourceType, aperiodic);
}

// aperiodic, semi-persistent, periodic; the tags of sets and of resources are the same.
constexpr const char* const behaviours[] = {"aperiodic", "semi-persistent", "periodic"};
static_assert(static_cast<int>(T_SRS_ResourceSet_resourceType_periodic) == T_SRS_Resource_resourceType_periodic &&
              static_cast<int>(T_SRS_ResourceSet_resourceType_aperiodic) == T_SRS_Resource_resourceType_aperiodic);

bool isBehaviour(OSUINT32 tag)
{
    return tag >= T_SRS_Resource_resourceType_aperiodic && tag <= T_SRS_Resource_resourceType_periodic;
}

// n1, n2, n4; 0 where the tree is broken.
OSUINT32 numberOf(OSUINT32 value)
{
    return value <= SRS_Resource_resourceMapping_nrofSymbols_n4 ? 1U << value : 0;
}

// A set names resources, and they are there.
void srsSetRef(Check& check)
{
    forSets(check,
            [&](const Cell&, Bwp& bwp, const IdEntry<SRS_ResourceSet>& entry, const SrsSet&)
            {
                const auto* const ids = MEMBER(*entry.element, srs_ResourceIdList);
                if (ids == nullptr && check.isNew(entry.novelty))
                {
                    check.error(&entry.element->srs_ResourceIdList).allowed("the set is new");
                }
                for (const SRS_ResourceId& id : entries(ids))
                {
                    check.resolve(check.model.srs(bwp).resources, id, &id, "a sounding resource");
                }
            });
}

// Sets that PUSCH follows: one, of few resources, with ports that fit.
bool isForPusch(const SRS_ResourceSet& set)
{
    return set.usage == SRS_ResourceSet_usage_codebook || set.usage == SRS_ResourceSet_usage_nonCodebook;
}

void portsOfSet(Check& check, const SrsSet& set)
{
    for (const SRS_Resource* const resource : set.resources)
    {
        const OSUINT32 ports = portsOf(*resource);
        if (set.set->usage == SRS_ResourceSet_usage_nonCodebook && ports > 1)
        {
            check.error(&resource->nrofSRS_Ports)
                .allowed("set %u is for nonCodebook, whose resources have one port", set.set->srs_ResourceSetId);
        }
        if (set.set->usage == SRS_ResourceSet_usage_codebook && ports != portsOf(*set.resources[0]))
        {
            check.error(&resource->nrofSRS_Ports)
                .allowed("resource %u of the same set for codebook has %u", set.resources[0]->srs_ResourceId,
                         portsOf(*set.resources[0]));
        }
    }
}

// Whether PUSCH has the other of the two usages, which pusch-txconfig-srs tells.
bool isOtherUsage(const Bwp& bwp, const SRS_ResourceSet& set)
{
    const bool isCodebook = set.usage == SRS_ResourceSet_usage_codebook;
    return bwp.pusch != nullptr && bwp.pusch->m.txConfigPresent != 0 &&
           (bwp.pusch->txConfig == PUSCH_Config_txConfig_codebook) != isCodebook;
}

void srsSetSize(Check& check)
{
    const Bwp* last = nullptr;
    const SRS_ResourceSet* first = nullptr;
    forSets(check,
            [&](const Cell&, const Bwp& bwp, const IdEntry<SRS_ResourceSet>& entry, const SrsSet& set)
            {
                first = last == &bwp ? first : nullptr;
                last = &bwp;
                if (!isForPusch(*set.set))
                {
                    return;
                }
                if (first != nullptr)
                {
                    check.error(&set.set->usage)
                        .allowed("set %u is the one for transmissions of PUSCH", first->srs_ResourceSetId)
                        .advice("Keep one set with usage codebook or nonCodebook in the bandwidth part.");
                    return;
                }
                first = entry.element;
                const OSUINT32 most = set.set->usage == SRS_ResourceSet_usage_codebook ? 2 : 4;
                const auto* const ids = MEMBER(*set.set, srs_ResourceIdList);
                if (entries(ids).size() > most)
                {
                    check.error(ids).allowed("a set of that usage has at most %u", most);
                }
                if (!isOtherUsage(bwp, *set.set))
                {
                    portsOfSet(check, set);
                }
            });
}

// A set and its resources are sent in the same way, and all of them equally often.
void srsSetBehaviour(Check& check)
{
    forSets(check,
            [&](const Cell&, const Bwp&, const IdEntry<SRS_ResourceSet>&, const SrsSet& set)
            {
                const OSUINT32 tag = set.set->resourceType.t;
                Recurrence first{};
                for (const SRS_Resource* const resource : set.resources)
                {
                    const Recurrence recurrence = recurrenceOf(check.tree, *resource);
                    if (isBehaviour(tag) && resource->resourceType.t != tag)
                    {
                        check.error(&resource->resourceType)
                            .allowed("set %u, which has the resource, is %s", set.set->srs_ResourceSetId,
                                     behaviours[tag - 1]);
                    }
                    else if (first.period != 0 && recurrence.period != 0 && recurrence.period != first.period)
                    {
                        check.error(&resource->resourceType)
                            .found("period %u", recurrence.period)
                            .allowed("another resource of set %u has %u", set.set->srs_ResourceSetId, first.period);
                    }
                    first = first.period == 0 ? recurrence : first;
                }
            });
}

// The symbols end with the slot, and repetitions fill them.
void srsSymbols(Check& check)
{
    forResources(check,
                 [&](const Cell&, const Bwp&, const SRS_Resource& resource)
                 {
                     const auto& mapping = resource.resourceMapping;
                     const OSUINT32 symbols = numberOf(mapping.nrofSymbols);
                     if (numberOf(mapping.repetitionFactor) > symbols)
                     {
                         check.error(&mapping.repetitionFactor).allowed("nrofSymbols is n%u", symbols);
                     }
                     if (symbols > mapping.startPosition + 1U)
                     {
                         check.error(&mapping.nrofSymbols)
                             .allowed("from startPosition %u on the slot has %u", mapping.startPosition,
                                      mapping.startPosition + 1U)
                             .advice("Raise startPosition, which counts from the slot's last symbol.");
                     }
                 });
}

// What is sounded lies in the bandwidth part.
void srsBandwidth(Check& check)
{
    forResources(
        check,
        [&](const Cell&, const Bwp& bwp, const SRS_Resource& resource)
        {
            const auto& hopping = resource.freqHopping;
            const NrSpan used = nrSrsSpan(hopping.c_SRS, hopping.b_SRS, hopping.b_hop, resource.freqDomainPosition);
            const Known<NrSpan> rbs = bwp.rbs();
            if (used.size == 0 || !check.decided(rbs))
            {
                return;
            }
            const OSUINT32 widest = nrSrsBandwidth(hopping.c_SRS, 0);
            if (used.size > rbs->size)
            {
                check.error(&hopping.c_SRS)
                    .found("%u: %u resource blocks", hopping.c_SRS, used.size)
                    .allowed("the bandwidth part has %u", rbs->size);
                return;
            }
            const OSUINT32 end = resource.freqDomainShift + used.start + used.size;
            if (end > rbs->size)
            {
                const Known<const SCS_SpecificCarrier*> carrier = check.model.carrier(bwp);
                if (!check.decided(carrier) || *carrier == nullptr)
                {
                    return;
                }
                // A shift up to the bandwidth part is counted from point A, a smaller one from the bandwidth part on.
                const OSUINT32 start = (*carrier)->offsetToCarrier + rbs->start;
                const OSUINT32 behind = start <= resource.freqDomainShift ? start + rbs->size : rbs->size;
                if (end > behind)
                {
                    check.error(&resource.freqDomainShift)
                        .found("%u: resource blocks %u..%u", resource.freqDomainShift, end - used.size, end - 1)
                        .allowed("the bandwidth part ends with %u", behind - 1);
                    return;
                }
            }
            if (widest > rbs->size)
            {
                check.warning(&hopping.c_SRS)
                    .found("%u: %u resource blocks, of which b-SRS leaves %u", hopping.c_SRS, widest, used.size)
                    .allowed("the bandwidth part has %u", rbs->size);
            }
        });
}

// The most ports of PT-RS in the uplink without transform precoding; 0: none.
Known<OSUINT32> ptrsPorts(const Check& check, const Bwp& bwp)
{
    OSUINT32 most = 0;
    const auto look = [&](const DMRS_UplinkConfig* dmrs)
    {
        const PTRS_UplinkConfig* const ptrs =
            dmrs == nullptr ? nullptr : check.tree.setup(MEMBER(*dmrs, phaseTrackingRS));
        const auto* const disabled = ptrs == nullptr ? nullptr : MEMBER(*ptrs, transformPrecoderDisabled);
        if (disabled != nullptr)
        {
            most = std::max(most, disabled->maxNrofPorts + 1);
        }
    };
    if (bwp.pusch != nullptr)
    {
        look(check.tree.setup(MEMBER(*bwp.pusch, dmrs_UplinkForPUSCH_MappingTypeA)));
        look(check.tree.setup(MEMBER(*bwp.pusch, dmrs_UplinkForPUSCH_MappingTypeB)));
    }
    return most != 0 || check.model.isWhole(bwp) ? Known<OSUINT32>(most)
                                                 : Known<OSUINT32>::unless(RRC_RULE_INPUT_PREVIOUS);
}

bool isUsedFor(const Srs& srs, const SRS_Resource& resource, SRS_ResourceSet_usage usage)
{
    return std::any_of(srs.sets.begin(), srs.sets.end(),
                       [&](const IdEntry<SRS_ResourceSet>& entry)
                       {
                           const auto ids = entries(MEMBER(*entry.element, srs_ResourceIdList));
                           return entry.element->usage == usage &&
                                  std::find(ids.begin(), ids.end(), resource.srs_ResourceId) != ids.end();
                       });
}

// A port of PT-RS that PUSCH has, of a transmission without codebook.
void srsPtrsPort(Check& check)
{
    forResources(
        check,
        [&](const Cell&, Bwp& bwp, const SRS_Resource& resource)
        {
            const auto* const port = MEMBER(resource, ptrs_PortIndex);
            if (port == nullptr)
            {
                return;
            }
            const Srs& srs = check.model.srs(bwp);
            const Known<OSUINT32> ports = ptrsPorts(check, bwp);
            if (check.decided(ports) && *ports == 0)
            {
                check.warning(port)
                    .allowed("PUSCH has no PT-RS without transform precoding")
                    .advice("Configure phaseTrackingRS, or take the field away.");
            }
            else if (ports && *port >= *ports)
            {
                check.error(port).allowed("maxNrofPorts of the PT-RS is n%u", *ports);
            }
            else if (srs.sets.complete && !isUsedFor(srs, resource, SRS_ResourceSet_usage_nonCodebook))
            {
                check.warning(port).allowed("the resource is in no set for nonCodebook").advice("Take the field away.");
            }
        });
}

// What a set is associated with; null where it is not.
const NZP_CSI_RS_ResourceId* associated(const Tree& tree, const SRS_ResourceSet& set)
{
    const auto* const type = &set.resourceType;
    if (const auto* const some = CHOSEN(tree, type, SRS_ResourceSet_resourceType, aperiodic))
    {
        return MEMBER(*some, csi_RS);
    }
    if (const auto* const some = CHOSEN(tree, type, SRS_ResourceSet_resourceType, semi_persistent))
    {
        return MEMBER(*some, associatedCSI_RS);
    }
    const auto* const some = CHOSEN(tree, type, SRS_ResourceSet_resourceType, periodic);
    return some == nullptr ? nullptr : MEMBER(*some, associatedCSI_RS);
}

// A CSI-RS is what transmissions without codebook are precoded by, and nothing else.
void srsNoncodebook(Check& check)
{
    forSets(check,
            [&](Cell& cell, const Bwp&, const IdEntry<SRS_ResourceSet>&, const SrsSet& set)
            {
                const NZP_CSI_RS_ResourceId* const id = associated(check.tree, *set.set);
                if (id == nullptr)
                {
                    return;
                }
                if (set.set->usage != SRS_ResourceSet_usage_nonCodebook)
                {
                    check.error(id).allowed("the usage of set %u is not nonCodebook", set.set->srs_ResourceSetId);
                    return;
                }
                const auto* const resource = check.resolve(check.model.csi(cell).nzpResources, *id, id, "a CSI-RS");
                if (set.set->resourceType.t == T_SRS_ResourceSet_resourceType_aperiodic)
                {
                    return;
                }
                const Known<bool> onTrigger =
                    resource == nullptr ? Known<bool>(false) : isAperiodic(check.model, cell, *resource);
                if (onTrigger && *onTrigger)
                {
                    check.warning(id)
                        .found("CSI-RS %u, which is sent when triggered", *id)
                        .allowed("set %u is not aperiodic", set.set->srs_ResourceSetId)
                        .advice("Name a CSI-RS that is periodic or semi-persistent, as the set.");
                }
                for (const SRS_Resource* const sounding : set.resources)
                {
                    if (sounding->m.spatialRelationInfoPresent != 0)
                    {
                        check.error(&sounding->spatialRelationInfo)
                            .allowed("set %u, which has the resource, has associatedCSI-RS", set.set->srs_ResourceSetId)
                            .advice("Keep one of the two.");
                    }
                }
            });
}

// Antenna switching: the sets of a bandwidth part.
struct Switching
{
    Vector<SrsSet> all;
    bool isWhole; // each of them, and there are no others
};

Switching switchingOf(Check& check, Bwp& bwp)
{
    const Srs& srs = check.model.srs(bwp);
    Switching result{{}, srs.sets.complete};
    for (const IdEntry<SRS_ResourceSet>& entry : srs.sets)
    {
        if (entry.element->usage == SRS_ResourceSet_usage_antennaSwitching)
        {
            const SrsSet set = srsSet(check.model, srs, *entry.element);
            result.isWhole = result.isWhole && set.isWhole;
            result.all.add(check.model.memory, set);
        }
    }
    return result;
}

// What a set is one of: so many resources of so many ports.
struct Pattern
{
    OSUINT32 resources;
    OSUINT32 ports;
    const char* name;
    OSUINT32 feature; // RrcRuleFeature
};
constexpr Pattern patterns[] = {
    {1, 1, "1T=1R", RRC_RULE_FEATURE_SRS_SWITCH_EQUAL}, {1, 2, "2T=2R", RRC_RULE_FEATURE_SRS_SWITCH_EQUAL},
    {1, 4, "4T=4R", RRC_RULE_FEATURE_SRS_SWITCH_EQUAL}, {2, 1, "1T2R", RRC_RULE_FEATURE_SRS_SWITCH_1T2R},
    {2, 2, "2T4R", RRC_RULE_FEATURE_SRS_SWITCH_2T4R},   {4, 1, "1T4R", RRC_RULE_FEATURE_SRS_SWITCH_1T4R},
};

const Pattern* resourcePattern(const SrsSet& set)
{
    for (const Pattern& pattern : patterns)
    {
        if (!set.resources.empty() && pattern.resources == set.resources.size() &&
            pattern.ports == portsOf(*set.resources[0]))
        {
            return &pattern;
        }
    }
    return nullptr;
}

// The other aperiodic set of those that share four antennas; null where there is none.
const SrsSet* partnerOf(Check& check, const Switching& switching, const SrsSet& set)
{
    for (const SrsSet& other : switching.all)
    {
        const bool isOther = other.set != set.set && aperiodicOf(check.tree, *other.set) != nullptr;
        if (isOther && other.resources.size() + set.resources.size() == 4)
        {
            return &other;
        }
    }
    return nullptr;
}

// Whether it is one of the patterns, or a part of 1T4R that two triggered sets share; said where it is not.
bool patternOfSet(Check& check, const Switching& switching, const SrsSet& set)
{
    const bool isTriggered = aperiodicOf(check.tree, *set.set) != nullptr;
    const auto* const ids = MEMBER(*set.set, srs_ResourceIdList);
    const auto count = static_cast<OSUINT32>(set.resources.size());
    for (const SRS_Resource* const resource : set.resources)
    {
        if (portsOf(*resource) != portsOf(*set.resources[0]))
        {
            check.error(&resource->nrofSRS_Ports)
                .allowed("resource %u of the same set has %u", set.resources[0]->srs_ResourceId,
                         portsOf(*set.resources[0]));
            return false;
        }
    }
    const SrsSet* const partner = isTriggered ? partnerOf(check, switching, set) : nullptr;
    const OSUINT32 ports = set.resources.empty() ? 0 : portsOf(*set.resources[0]);
    const Pattern* const pattern = resourcePattern(set);
    if (isTriggered && count == 3 && ports == 1)
    {
        if (partner == nullptr)
        {
            check.missing(switching.isWhole, ids).allowed("1T4R needs a second aperiodic set, of one resource");
        }
        return partner != nullptr;
    }
    if (pattern == nullptr || (isTriggered && count == 4))
    {
        check.error(ids)
            .found("%u resources of %u ports", count, ports)
            .allowed(isTriggered && count == 4
                         ? "the symbols of one slot are too few: 1T4R has two aperiodic sets"
                         : "there are 1T=1R, 2T=2R, 4T=4R (1 resource), 1T2R, 2T4R (2) and 1T4R (4)");
        return false;
    }
    const auto* const capabilities = check.model.known.capabilities;
    const bool isPart = partner != nullptr && ports == 1;
    const OSUINT32 feature = isPart ? OSUINT32{RRC_RULE_FEATURE_SRS_SWITCH_1T4R} : pattern->feature;
    if (capabilities != nullptr && (capabilities->features & feature) == 0)
    {
        check.warning(ids)
            .found("%s", isPart ? "1T4R" : pattern->name)
            .allowed("the UE does not support it")
            .advice("Configure what supportedSRS-TxPortSwitch says.");
    }
    return true;
}

// Between the resources of a slot the UE switches.
void guardsOfSet(Check& check, const Bwp& bwp, const SrsSet& set)
{
    const Known<OSUINT32> mu = bwp.mu();
    const auto guard = static_cast<int>(mu ? nrSrsGuardSymbols(*mu) : 1);
    for (const SRS_Resource* const later : set.resources)
    {
        for (const SRS_Resource* const earlier : set.resources)
        {
            const Recurrence a = recurrenceOf(check.tree, *earlier);
            const Recurrence b = recurrenceOf(check.tree, *later);
            const bool areOfSlot = a.period == b.period && a.offset == b.offset;
            // Symbols are counted from the slot's last one back.
            const int gap = earlier->resourceMapping.startPosition - later->resourceMapping.startPosition -
                            static_cast<int>(numberOf(earlier->resourceMapping.nrofSymbols));
            const bool isBefore =
                earlier->resourceMapping.startPosition > later->resourceMapping.startPosition ||
                (earlier->resourceMapping.startPosition == later->resourceMapping.startPosition && earlier < later);
            if (earlier != later && areOfSlot && isBefore && gap < guard)
            {
                check.warning(&later->resourceMapping)
                    .found("%s resource %u in the same slot",
                           gap < 0    ? "in the symbols of"
                           : gap == 0 ? "right behind"
                                      : "close behind",
                           earlier->srs_ResourceId)
                    .allowed("between antennas there %s %d symbol%s", guard == 1 ? "is" : "are", guard,
                             guard == 1 ? "" : "s")
                    .advice("Put the resources apart.");
            }
        }
    }
}

bool isSamePower(const SRS_ResourceSet& a, const SRS_ResourceSet& b)
{
    const auto* const x = MEMBER(a, pathlossReferenceRS);
    const auto* const y = MEMBER(b, pathlossReferenceRS);
    const bool isSameSignal = x == nullptr || y == nullptr
                                  ? x == y
                                  : x->t == y->t && (x->t == T_SRS_ResourceSet_pathlossReferenceRS_ssb_Index
                                                         ? x->u.ssb_Index == y->u.ssb_Index
                                                         : x->u.csi_RS_Index == y->u.csi_RS_Index);
    return isSameSignal && isSame(MEMBER(a, alpha), MEMBER(b, alpha)) && isSame(MEMBER(a, p0), MEMBER(b, p0)) &&
           isSame(MEMBER(a, srs_PowerControlAdjustmentStates), MEMBER(b, srs_PowerControlAdjustmentStates));
}

OSUINT32 slotOffsetOf(const Aperiodic& aperiodic)
{
    return aperiodic.m.slotOffsetPresent != 0 ? aperiodic.slotOffset : 0;
}

// The two sets of 1T4R: of the same power, in two slots, by one trigger.
void partnersOf(Check& check, const Bwp& bwp, const SrsSet& set, const SrsSet& partner)
{
    const Aperiodic* const own = aperiodicOf(check.tree, *set.set);
    const Aperiodic* const other = aperiodicOf(check.tree, *partner.set);
    if (own == nullptr || other == nullptr || set.resources.empty() || portsOf(*set.resources[0]) != 1)
    {
        return;
    }
    const OSUINT32 id = partner.set->srs_ResourceSetId;
    if (slotOffsetOf(*own) == slotOffsetOf(*other))
    {
        check.warning(&own->slotOffset)
            .allowed("set %u of the same antennas is in that slot, too", id)
            .advice("Give the two sets different slots.");
    }
    if (own->aperiodicSRS_ResourceTrigger != other->aperiodicSRS_ResourceTrigger)
    {
        check.warning(&own->aperiodicSRS_ResourceTrigger)
            .allowed("set %u of the same antennas has %u", id, other->aperiodicSRS_ResourceTrigger)
            .advice("Give the two sets one trigger.");
    }
    if (check.model.isWhole(bwp) && !isSamePower(*set.set, *partner.set))
    {
        check.warning(&set.set->srs_ResourceSetId)
            .found("alpha, p0, pathlossReferenceRS or srs-PowerControlAdjustmentStates of its own")
            .allowed("set %u of the same antennas has others", id)
            .advice("Give the two sets the same power control.");
    }
}

// Sets for antenna switching are one of the patterns of 38.214, in symbols that leave time to switch.
void srsAntennaSwitching(Check& check)
{
    forUplinks(check,
               [&](const Cell&, Bwp& bwp)
               {
                   const Switching switching = switchingOf(check, bwp);
                   for (const SrsSet& set : switching.all)
                   {
                       if (!set.isWhole)
                       {
                           continue;
                       }
                       if (patternOfSet(check, switching, set))
                       {
                           guardsOfSet(check, bwp, set);
                       }
                       const SrsSet* const partner = partnerOf(check, switching, set);
                       if (partner != nullptr && partner->isWhole && partner->set < set.set)
                       {
                           partnersOf(check, bwp, set, *partner);
                       }
                   }
               });
}

// The codepoints that trigger a set, as bits.
OSUINT32 triggersOf(const Aperiodic& aperiodic)
{
    OSUINT32 bits = aperiodic.aperiodicSRS_ResourceTrigger < 4 ? 1U << aperiodic.aperiodicSRS_ResourceTrigger : 0;
    for (const auto trigger : entries(ADDITION(aperiodic, 2, aperiodicSRS_ResourceTriggerList_v1530)))
    {
        bits |= trigger < 4 ? 1U << trigger : 0;
    }
    return bits;
}

// The resources that would be sent at once; the same one in both sets is sent once.
bool collide(const SrsSet& a, const SrsSet& b)
{
    for (const SRS_Resource* const x : a.resources)
    {
        for (const SRS_Resource* const y : b.resources)
        {
            const auto first = [](const SRS_Resource& resource)
            {
                return NR_SYMBOLS - 1 - static_cast<int>(resource.resourceMapping.startPosition);
            };
            const auto end = [&](const SRS_Resource& resource)
            {
                return first(resource) + static_cast<int>(numberOf(resource.resourceMapping.nrofSymbols));
            };
            if (x != y && first(*x) < end(*y) && first(*y) < end(*x))
            {
                return true;
            }
        }
    }
    return false;
}

// A codepoint is said once, and what it triggers does not collide.
void srsAperiodicTrigger(Check& check)
{
    forSets(check,
            [&](const Cell&, Bwp& bwp, const IdEntry<SRS_ResourceSet>& entry, const SrsSet& set)
            {
                const Aperiodic* const own = aperiodicOf(check.tree, *entry.element);
                if (own == nullptr)
                {
                    return;
                }
                const auto more = entries(ADDITION(*own, 2, aperiodicSRS_ResourceTriggerList_v1530));
                for (const auto& trigger : more)
                {
                    if (trigger == own->aperiodicSRS_ResourceTrigger || (&trigger != more.data() && trigger == more[0]))
                    {
                        check.warning(&trigger).allowed("the set has that codepoint already");
                    }
                }
                const Srs& srs = check.model.srs(bwp);
                for (const IdEntry<SRS_ResourceSet>& before : srs.sets)
                {
                    if (&before == &entry)
                    {
                        break;
                    }
                    const Aperiodic* const other = aperiodicOf(check.tree, *before.element);
                    if (other != nullptr && (triggersOf(*own) & triggersOf(*other)) != 0 &&
                        slotOffsetOf(*own) == slotOffsetOf(*other) &&
                        collide(set, srsSet(check.model, srs, *before.element)))
                    {
                        check.warning(&own->aperiodicSRS_ResourceTrigger)
                            .allowed("set %u is sent in the same symbols by the same codepoint", before.id)
                            .advice("Give one of the sets another slotOffset, codepoint or startPosition.");
                    }
                }
            });
}

// The source of a spatial relation is there, and as often as what follows it.
void sourceBehaviour(Check& check, const SRS_Resource& resource, OSUINT32 tag, const SRS_ResourceId* at)
{
    const OSUINT32 own = resource.resourceType.t;
    const bool isWrong =
        (own == T_SRS_Resource_resourceType_periodic && tag != T_SRS_Resource_resourceType_periodic) ||
        (own == T_SRS_Resource_resourceType_semi_persistent && tag == T_SRS_Resource_resourceType_aperiodic);
    if (isBehaviour(own) && isBehaviour(tag) && isWrong)
    {
        check.error(at)
            .found("%u, which is %s", *at, behaviours[tag - 1])
            .allowed("a %s resource follows none that is", behaviours[own - 1])
            .advice("Name a source that is sent as regularly.");
    }
}

void spatialSource(Check& check, Cell& cell, Direction direction, const SRS_Resource& resource)
{
    const auto* const signal = &resource.spatialRelationInfo.referenceSignal;
    const bool isTriggered = resource.resourceType.t == T_SRS_Resource_resourceType_aperiodic;
    if (signal->t == T_SRS_SpatialRelationInfo_referenceSignal_csi_RS_Index)
    {
        const auto* const at = &signal->u.csi_RS_Index;
        const auto* const source = check.resolve(check.model.csi(cell).nzpResources, *at, at, "a CSI-RS");
        const Known<bool> onTrigger = source == nullptr ? Known<bool>(false) : isAperiodic(check.model, cell, *source);
        if (!isTriggered && isBehaviour(resource.resourceType.t) && onTrigger && *onTrigger)
        {
            check.error(at)
                .found("CSI-RS %u, which is aperiodic", *at)
                .allowed("a %s resource follows none that is", behaviours[resource.resourceType.t - 1])
                .advice("Name a source that is sent as regularly.");
        }
        return;
    }
    const auto* const srs = CHOSEN(check.tree, signal, SRS_SpatialRelationInfo_referenceSignal, srs);
    if (srs == nullptr)
    {
        return;
    }
    Bwp* const bwp = cell.bwp(direction, srs->uplinkBWP);
    if (bwp == nullptr)
    {
        check.missing(cell.complete, &srs->uplinkBWP)
            .allowed("there is no uplink bandwidth part %u", srs->uplinkBWP)
            .advice("Name a bandwidth part that there is.");
        return;
    }
    const auto* const source =
        check.resolve(check.model.srs(*bwp).resources, srs->resourceId, &srs->resourceId, "a sounding resource");
    if (source != nullptr)
    {
        sourceBehaviour(check, resource, source->resourceType.t, &srs->resourceId);
    }
}

void srsSpatialRefs(Check& check)
{
    forResources(check,
                 [&](Cell& cell, Bwp& bwp, const SRS_Resource& resource)
                 {
                     const auto* const relation = MEMBER(resource, spatialRelationInfo);
                     if (relation == nullptr)
                     {
                         return;
                     }
                     const ServCellIndex* const index = MEMBER(*relation, servingCellId);
                     Cell* const other = index == nullptr ? &cell : check.resolveCell(*index, index);
                     if (other != nullptr)
                     {
                         spatialSource(check, *other, other == &cell ? bwp.direction : Direction::Uplink, resource);
                     }
                 });
    forSets(check,
            [&](Cell& cell, const Bwp&, const IdEntry<SRS_ResourceSet>& entry, const SrsSet&)
            {
                const auto* const signal = MEMBER(*entry.element, pathlossReferenceRS);
                Cell* const measured = pathlossCell(check.model, cell);
                if (signal != nullptr && measured != nullptr &&
                    signal->t == T_SRS_ResourceSet_pathlossReferenceRS_csi_RS_Index)
                {
                    check.resolve(check.model.csi(*measured).nzpResources, signal->u.csi_RS_Index,
                                  &signal->u.csi_RS_Index, "a CSI-RS");
                }
            });
}

// A new set has its power, which is even; a loop of PUSCH needs PUSCH.
bool hasPusch(const Model& model, const Cell& cell, Direction direction)
{
    const std::span<Bwp> bwps = cell.bwps(direction);
    return std::any_of(bwps.begin(), bwps.end(),
                       [&](const Bwp& bwp) { return bwp.pusch != nullptr || !model.isWhole(bwp); });
}

void srsPower(Check& check)
{
    forSets(check,
            [&](const Cell& cell, const Bwp& bwp, const IdEntry<SRS_ResourceSet>& entry, const SrsSet&)
            {
                const auto* const p0 = MEMBER(*entry.element, p0);
                if (p0 == nullptr && check.isNew(entry.novelty))
                {
                    check.error(&entry.element->p0).allowed("the set is new");
                }
                if (p0 != nullptr && *p0 % 2 != 0)
                {
                    check.error(p0).allowed("only even values are used: %d or %d", *p0 - 1, *p0 + 1);
                }
                const auto* const states = MEMBER(*entry.element, srs_PowerControlAdjustmentStates);
                if (states != nullptr && !hasPusch(check.model, cell, bwp.direction))
                {
                    check.warning(states)
                        .allowed("the carrier has no PUSCH, whose loop it could share")
                        .advice("Take the field away.");
                }
            });
}

// Sounding of a carrier without PUSCH: the cells are there, the groups as this release has them.
void indicesOf(Check& check, const SRS_TPC_PDCCH_Config& config)
{
    constexpr OSUINT8 notUsed = 3;
    if (config.m.srs_CC_SetIndexlistPresent == 0)
    {
        check.error(&config.srs_CC_SetIndexlist).allowed("typeA names a set of carriers");
    }
    const OSRTDList* const list = MEMBER(config, srs_CC_SetIndexlist);
    for (const SRS_CC_SetIndex& index : check.tree.list<SRS_CC_SetIndex>(list))
    {
        if (index.m.cc_SetIndexPresent == 0)
        {
            check.error(&index.cc_SetIndex).allowed("typeA names the set");
        }
        else if (index.cc_SetIndex == notUsed)
        {
            check.error(&index.cc_SetIndex).allowed("sets are 0..2");
        }
        if (index.m.cc_IndexInOneCC_SetPresent == 0)
        {
            check.error(&index.cc_IndexInOneCC_Set).allowed("typeA names the place in the set");
        }
    }
}

void switchingOfCell(Check& check, const Cell& cell, const SRS_CarrierSwitching& switching)
{
    const auto* const group = MEMBER(switching, srs_TPC_PDCCH_Group);
    const OSRTDList* const typeA = CHOSEN(check.tree, group, SRS_CarrierSwitching_srs_TPC_PDCCH_Group, typeA);
    const auto configs = check.tree.list<SRS_TPC_PDCCH_Config>(typeA);
    if (configs.size() > 1)
    {
        check.error(typeA).allowed("it has one, of this cell").advice("Keep the first.");
    }
    for (const SRS_TPC_PDCCH_Config& config : configs)
    {
        indicesOf(check, config);
    }
    const auto* const typeB = CHOSEN(check.tree, group, SRS_CarrierSwitching_srs_TPC_PDCCH_Group, typeB);
    if (typeB != nullptr && typeB->m.srs_CC_SetIndexlistPresent != 0)
    {
        check.error(&typeB->srs_CC_SetIndexlist).allowed("typeB names no set").advice("Take it away.");
    }
    if (const OSUINT8* const from = MEMBER(switching, srs_SwitchFromServCellIndex))
    {
        if (check.resolveCell(*from, from) == &cell)
        {
            check.error(from).allowed("that is this cell itself").advice("Name the cell whose uplink is interrupted.");
        }
    }
    for (const ServCellIndex& index : entries(MEMBER(switching, monitoringCells)))
    {
        check.resolveCell(index, &index);
    }
}

void srsCarrierSwitching(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        const auto of = [&](const UplinkConfig* uplink)
        {
            return uplink == nullptr ? nullptr : check.tree.setup(MEMBER(*uplink, carrierSwitching));
        };
        if (const SRS_CarrierSwitching* const switching = of(cell.uplinkConfig))
        {
            switchingOfCell(check, cell, *switching);
        }
        if (of(cell.supplementary) != nullptr)
        {
            check.error(&cell.supplementary->carrierSwitching)
                .allowed("there is no switching to a supplementary uplink")
                .advice("Take it away.");
        }
    }
}

#define AT_SET AT_SRS "srs-ResourceSetToAddModList[0]."
#define AT_SET1 AT_SRS "srs-ResourceSetToAddModList[1]."
#define AT_SOUNDING AT_SRS "srs-ResourceToAddModList[0]."

// A second set, of a usage.
#define EXAMPLE_SET1(usage)                                                                                            \
    AT_SET1 "srs-ResourceSetId = 1\n" AT_SET1 "srs-ResourceIdList[0] = 0\n" AT_SET1                                    \
            "resourceType.periodic = {}\n" AT_SET1 "p0 = -90\n" AT_SET1 "usage = " usage "\n"

// A further resource of a symbol.
#define AT_RESOURCE(i) AT_SRS "srs-ResourceToAddModList[" i "]."
#define EXAMPLE_RESOURCE(i, ports, position)                                                                                                                       \
    AT_RESOURCE(i)                                                                                                                                                 \
    "srs-ResourceId = " i "\n" AT_RESOURCE(                                                                                                                        \
        i) "nrofSRS-Ports = " ports                                                                                                                                \
           "\n" AT_RESOURCE(i) "transmissionComb.n2.combOffset-n2 = 1\n" AT_RESOURCE(                                                                              \
               i) "transmissionComb.n2.cyclicShift-n2 = 0\n" AT_RESOURCE(i) "resourceMapping.startPosition "                                                       \
                                                                            "= " position "\n" AT_RESOURCE(                                                        \
                                                                                i) "resourceMapping."                                                              \
                                                                                   "nrofSymbols = "                                                                \
                                                                                   "n1\n" AT_RESOURCE(                                                             \
                                                                                       i) "resourceMap"                                                            \
                                                                                          "ping."                                                                  \
                                                                                          "repetitionF"                                                            \
                                                                                          "actor = "                                                               \
                                                                                          "n1"                                                                     \
                                                                                          "\n" AT_RESOURCE(                                                        \
                                                                                              i) "freqDo"                                                          \
                                                                                                 "mainPo"                                                          \
                                                                                                 "sition"                                                          \
                                                                                                 " = "                                                             \
                                                                                                 "0"                                                               \
                                                                                                 "\n" AT_RESOURCE(i) "freqDomainShift = 0\n" AT_RESOURCE(          \
                                                                                                     i) "freq"                                                     \
                                                                                                        "Hopp"                                                     \
                                                                                                        "ing."                                                     \
                                                                                                        "c-"                                                       \
                                                                                                        "SRS "                                                     \
                                                                                                        "= "                                                       \
                                                                                                        "61"                                                       \
                                                                                                        "\n" AT_RESOURCE(i) "freqHopping.b-SRS = 0\n" AT_RESOURCE( \
                                                                                                            i) "freqH"                                             \
                                                                                                               "oppin"                                             \
                                                                                                               "g.b-"                                              \
                                                                                                               "hop "                                              \
                                                                                                               "= "                                                \
                                                                                                               "3"                                                 \
                                                                                                               "\n" AT_RESOURCE(                                   \
                                                                                                                   i) "group"                                      \
                                                                                                                      "OrSeq"                                      \
                                                                                                                      "uence"                                      \
                                                                                                                      "Hoppi"                                      \
                                                                                                                      "ng = "                                      \
                                                                                                                      "neith"                                      \
                                                                                                                      "er"                                         \
                                                                                                                      "\n" AT_RESOURCE(                            \
                                                                                                                          i) "sequenceId = 42\n"
#define EXAMPLE_PERIODIC(i) AT_RESOURCE(i) "resourceType.periodic.periodicityAndOffset-p.sl40 = 19\n"

// Transmissions without codebook.
#define EXAMPLE_NONCODEBOOK                                                                                            \
    AT_PUSCH "txConfig = nonCodebook\n" AT_PUSCH "codebookSubset = absent\n" AT_PUSCH "maxRank = absent\n" AT_SET      \
             "usage = nonCodebook\n" AT_SOUNDING "nrofSRS-Ports = port1\n"
#define EXAMPLE_PTRS                                                                                                   \
    AT_PUSCH                                                                                                           \
    "dmrs-UplinkForPUSCH-MappingTypeA.setup.phaseTrackingRS.setup.transformPrecoderDisabled.maxNrofPorts = "           \
    "n1\n" AT_PUSCH                                                                                                    \
    "dmrs-UplinkForPUSCH-MappingTypeA.setup.phaseTrackingRS.setup.transformPrecoderDisabled.ptrs-Power = p00\n"

constexpr Rule srsTable[] = {
    {.told = {.id = "srs-set-ref",
              .severity = RRC_RULE_ERROR,
              .statement = "A new SRS resource set names resources, and each resource that a set names is configured.",
              .advice = "Add the resource, or name one that there is.",
              .clause = "TS 38.331 SRS-Config, Cond Setup",
              .given = "",
              .bad = AT_SET "srs-ResourceIdList[0] = 1",
              .good = AT_SET "srs-ResourceIdList[0] = 0",
              .since = "0.1.0"},
     .run = srsSetRef},
    {.told = {.id = "srs-set-size",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "A bandwidth part has one SRS resource set for PUSCH at most: for codebook of up to 2 resources "
                  "of equal ports, or for nonCodebook of up to 4 resources of one port.",
              .advice = "Give the set the resources that its usage takes.",
              .clause = "TS 38.331 SRS-Config; TS 38.214 6.1.1, 6.2.1",
              .given = "",
              .bad = EXAMPLE_SET1("codebook"),
              .good = EXAMPLE_SET1("beamManagement"),
              .since = "0.1.0"},
     .run = srsSetSize},
    {.told = {.id = "srs-set-behaviour",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "An SRS resource set and its resources are all aperiodic, all semi-persistent or all periodic, "
                  "and of one period.",
              .advice = "Give the set and its resources the same resourceType and period.",
              .clause = "TS 38.214 6.2.1",
              .given = "",
              .bad = AT_SET "resourceType = absent\n" AT_SET "resourceType.semi-persistent = {}",
              .good = AT_SET "resourceType.periodic = {}",
              .since = "0.1.0"},
     .run = srsSetBehaviour},
    {.told = {.id = "srs-symbols",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "An SRS resource ends with its slot at the latest, startPosition counted from the last symbol, "
                  "and repeats no more than it has symbols.",
              .advice = "Lower repetitionFactor, or take more symbols.",
              .clause = "TS 38.211 6.4.1.4; TS 38.214 6.2.1",
              .given = "",
              .bad = AT_SOUNDING "resourceMapping.nrofSymbols = n4\n" AT_SOUNDING "resourceMapping.startPosition = 2",
              .good = AT_SOUNDING "resourceMapping.nrofSymbols = n4\n" AT_SOUNDING "resourceMapping.startPosition = 3",
              .since = "0.1.0"},
     .run = srsSymbols},
    {.told = {.id = "srs-bandwidth",
              .severity = RRC_RULE_ERROR,
              .statement = "The resource blocks that an SRS resource takes, by c-SRS, b-SRS, freqDomainPosition and "
                           "freqDomainShift, lie in the bandwidth part.",
              .advice = "Take a smaller c-SRS or freqDomainShift.",
              .clause = "TS 38.211 6.4.1.4.3, table 6.4.1.4.3-1",
              .given = "",
              .bad = AT_SOUNDING "freqHopping.c-SRS = 61\n" AT_SOUNDING "freqDomainShift = 2",
              .good = AT_SOUNDING "freqHopping.c-SRS = 61\n" AT_SOUNDING "freqDomainShift = 1",
              .since = "0.1.0"},
     .run = srsBandwidth},
    {.told = {.id = "srs-ptrs-port",
              .severity = RRC_RULE_ERROR,
              .statement = "ptrs-PortIndex is a port of the PT-RS of PUSCH, and is configured for nonCodebook only.",
              .advice = "Take a port below maxNrofPorts.",
              .clause = "TS 38.331 SRS-Config",
              .given = "",
              .bad = EXAMPLE_NONCODEBOOK EXAMPLE_PTRS AT_SOUNDING "ptrs-PortIndex = n1",
              .good = EXAMPLE_NONCODEBOOK EXAMPLE_PTRS AT_SOUNDING "ptrs-PortIndex = n0",
              .since = "0.1.0"},
     .run = srsPtrsPort},
    {.told = {.id = "srs-noncodebook",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "An SRS resource set is associated with a CSI-RS only for nonCodebook, with one that is "
                  "configured and has the set's time behaviour, and without spatial relations of its resources.",
              .advice = "Associate sets for nonCodebook alone.",
              .clause = "TS 38.331 SRS-Config, Cond NonCodebook; TS 38.214 6.1.1.2",
              .given = "",
              .bad = AT_SET "resourceType = absent\n" AT_SET "resourceType.periodic.associatedCSI-RS = 0",
              .good = EXAMPLE_NONCODEBOOK AT_SET "resourceType = absent\n" AT_SET
                                                 "resourceType.periodic.associatedCSI-RS = 0",
              .since = "0.1.0"},
     .run = srsNoncodebook},
    {.told = {.id = "srs-antenna-switching",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "An SRS resource set for antenna switching has the resources and ports of 1T=1R, 2T=2R, 4T=4R, "
                  "1T2R, 2T4R or 1T4R, with symbols to switch in between.",
              .advice = "Give the set the resources of one of the patterns.",
              .clause = "TS 38.214 6.2.1.2",
              .given = "",
              .bad = EXAMPLE_SET1("antennaSwitching") AT_SET1
              "srs-ResourceIdList[0] = 1\n" AT_SET1 "srs-ResourceIdList[1] = 2\n" EXAMPLE_RESOURCE("1", "ports4", "2")
                  EXAMPLE_PERIODIC("1") EXAMPLE_RESOURCE("2", "ports4", "0") EXAMPLE_PERIODIC("2"),
              .good = EXAMPLE_SET1("antennaSwitching") AT_SET1
              "srs-ResourceIdList[0] = 1\n" AT_SET1 "srs-ResourceIdList[1] = 2\n" EXAMPLE_RESOURCE("1", "ports2", "2")
                  EXAMPLE_PERIODIC("1") EXAMPLE_RESOURCE("2", "ports2", "0") EXAMPLE_PERIODIC("2"),
              .since = "0.1.0"},
     .run = srsAntennaSwitching},
    {.told = {.id = "srs-aperiodic-trigger",
              .severity = RRC_RULE_WARNING,
              .statement =
                  "An aperiodic SRS resource set names each of its codepoints once, and sets of one codepoint are "
                  "sent in different symbols.",
              .advice = "Name each codepoint once.",
              .clause = "TS 38.331 SRS-Config; TS 38.214 6.2.1",
              .given = "",
              .bad = EXAMPLE_SET1("beamManagement") AT_SET1
              "srs-ResourceIdList[0] = 1\n" AT_SET1 "resourceType = absent\n" AT_SET1
              "resourceType.aperiodic.aperiodicSRS-ResourceTrigger = 1\n" AT_SET1
              "resourceType.aperiodic.aperiodicSRS-ResourceTriggerList-v1530[0] = 1\n" EXAMPLE_RESOURCE(
                  "1", "ports2", "0") AT_RESOURCE("1") "resourceType.aperiodic = {}",
              .good = EXAMPLE_SET1("beamManagement") AT_SET1
              "srs-ResourceIdList[0] = 1\n" AT_SET1 "resourceType = absent\n" AT_SET1
              "resourceType.aperiodic.aperiodicSRS-ResourceTrigger = 1\n" AT_SET1
              "resourceType.aperiodic.aperiodicSRS-ResourceTriggerList-v1530[0] = 2\n" EXAMPLE_RESOURCE(
                  "1", "ports2", "0") AT_RESOURCE("1") "resourceType.aperiodic = {}",
              .since = "0.1.0"},
     .run = srsAperiodicTrigger},
    {.told = {.id = "srs-spatial-refs",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "What spatialRelationInfo and pathlossReferenceRS name is configured; a periodic SRS follows an "
                  "SS/PBCH block, a CSI-RS that is not aperiodic or a periodic SRS, a semi-persistent one nothing "
                  "aperiodic.",
              .advice = "Name a signal that there is.",
              .clause = "TS 38.331 SRS-Config; TS 38.214 6.2.1",
              .given = "",
              .bad = AT_SOUNDING "spatialRelationInfo.referenceSignal.csi-RS-Index = 6",
              .good = AT_SOUNDING "spatialRelationInfo.referenceSignal.csi-RS-Index = 0",
              .since = "0.1.0"},
     .run = srsSpatialRefs},
    {.told = {.id = "srs-power",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "A new SRS resource set has p0, which is even; srs-PowerControlAdjustmentStates is for carriers "
                  "with PUSCH.",
              .advice = "Give an even p0.",
              .clause = "TS 38.331 SRS-Config, Cond Setup; TS 38.213 7.3",
              .given = "",
              .bad = AT_SET "p0 = absent",
              .good = AT_SET "p0 = -202",
              .since = "0.1.0"},
     .run = srsPower},
    {.told = {.id = "srs-carrier-switching",
              .severity = RRC_RULE_ERROR,
              .statement = "SRS-CarrierSwitching names cells that are configured, not its own to switch from; typeA "
                           "has one entry with cc-SetIndex 0..2 and cc-IndexInOneCC-Set, typeB none; a supplementary "
                           "uplink has none of it.",
              .advice = "Name a set of carriers 0..2 and the place in it.",
              .clause = "TS 38.331 SRS-CarrierSwitching",
              .given = "",
              .bad = AT_UPLINK
              "carrierSwitching.setup.srs-SwitchFromCarrier = nUL\n" AT_UPLINK
              "carrierSwitching.setup.srs-TPC-PDCCH-Group.typeA[0].srs-CC-SetIndexlist[0].cc-SetIndex = 3\n" AT_UPLINK
              "carrierSwitching.setup.srs-TPC-PDCCH-Group.typeA[0].srs-CC-SetIndexlist[0].cc-IndexInOneCC-Set = 0",
              .good = AT_UPLINK
              "carrierSwitching.setup.srs-SwitchFromCarrier = nUL\n" AT_UPLINK
              "carrierSwitching.setup.srs-TPC-PDCCH-Group.typeA[0].srs-CC-SetIndexlist[0].cc-SetIndex = 2\n" AT_UPLINK
              "carrierSwitching.setup.srs-TPC-PDCCH-Group.typeA[0].srs-CC-SetIndexlist[0].cc-IndexInOneCC-Set = 0",
              .since = "0.1.0"},
     .run = srsCarrierSwitching},
};

} // namespace

constinit const RuleGroup srsRules = groupOf(srsTable);

} // namespace rules
