#include "modelLists.h"

namespace rules
{
namespace
{

// The object that a lazy pointer leads to, made by `make` where it is null.
template <typename T, typename Make>
const T& made(Memory& memory, const T*& kept, const Make& make)
{
    static constexpr T none{};
    if (kept == nullptr)
    {
        if (T* const object = memory.take<T>())
        {
            make(*object);
            kept = object;
        }
    }
    return kept == nullptr ? none : *kept; // the check ends when the heap is exhausted
}

// What the common part of a bandwidth part sets up. `input` tells it of the SpCell's initial one.
template <typename T, typename Member>
Known<const T*> common(const Model& model, const Bwp& bwp, OSUINT32 input, const Member& member)
{
    if (bwp.uplinkCommon == nullptr)
    {
        const bool isOfSib1 = bwp.isInitial() && bwp.cell->isSpCell() && bwp.direction == Direction::Uplink;
        return Known<const T*>::unless(isOfSib1 ? input : bwp.missing);
    }
    const auto* const choice = member(*bwp.uplinkCommon);
    if (choice == nullptr && !model.isWhole(bwp))
    {
        return Known<const T*>::unless(RRC_RULE_INPUT_PREVIOUS);
    }
    return static_cast<const T*>(model.tree.setup(choice));
}

template <typename Element, typename Entry>
const Entry* byId(const Vector<Entry>& all, OSUINT32 id)
{
    for (const Entry& entry : all)
    {
        if (entry.id == id)
        {
            return &entry;
        }
    }
    return nullptr;
}

template <size_t N>
void addUse(CsiUse (&uses)[N], OSUINT32 id, CsiUse use)
{
    if (id < N)
    {
        uses[id].types |= use.types;
        uses[id].bwps |= use.bwps;
    }
}

// A config with a value that is none is of no use.
void addUses(const Tree& tree, Csi& csi, const CSI_ResourceConfig& config)
{
    if (config.resourceType > CSI_ResourceConfig_resourceType_periodic || config.bwp_Id > maxNrofBWPs)
    {
        return;
    }
    const CsiUse use = {static_cast<OSUINT8>(1U << config.resourceType), static_cast<OSUINT8>(1U << config.bwp_Id)};
    const auto* const list = &config.csi_RS_ResourceSetList;
    if (const auto* const rs = CHOSEN(tree, list, CSI_ResourceConfig_csi_RS_ResourceSetList, nzp_CSI_RS_SSB))
    {
        for (const auto id : entries(MEMBER(*rs, nzp_CSI_RS_ResourceSetList)))
        {
            addUse(csi.nzpSetUse, id, use);
        }
    }
    if (const auto* const im = CHOSEN(tree, list, CSI_ResourceConfig_csi_RS_ResourceSetList, csi_IM_ResourceSetList))
    {
        for (const auto id : entries(im))
        {
            addUse(csi.imSetUse, id, use);
        }
    }
}

// A resource is used as its sets are.
void addUses(const Tree& tree, Csi& csi)
{
    for (const IdEntry<CSI_ResourceConfig>& config : csi.resourceConfigs)
    {
        addUses(tree, csi, *config.element);
    }
    for (const IdEntry<NZP_CSI_RS_ResourceSet>& set : csi.nzpSets)
    {
        for (const auto id : entries(&set.element->nzp_CSI_RS_Resources))
        {
            addUse(csi.nzpUse, id, set.id < std::size(csi.nzpSetUse) ? csi.nzpSetUse[set.id] : CsiUse{});
        }
    }
    for (const IdEntry<CSI_IM_ResourceSet>& set : csi.imSets)
    {
        for (const auto id : entries(&set.element->csi_IM_Resources))
        {
            addUse(csi.imUse, id, set.id < std::size(csi.imSetUse) ? csi.imSetUse[set.id] : CsiUse{});
        }
    }
}

} // namespace

const Coreset* Pdcch::coreset(OSUINT32 id) const
{
    return byId<Coreset>(allCoresets, id);
}

const SearchSpaceEntry* Pdcch::searchSpace(OSUINT32 id) const
{
    return byId<SearchSpaceEntry>(allSearchSpaces, id);
}

const Pdcch& Model::pdcch(Bwp& bwp)
{
    const auto make = [&](Pdcch& made)
    {
        const BWP_DownlinkCommon* const common = bwp.downlinkCommon;
        made.isCommonKnown = common != nullptr;
        made.common = common == nullptr ? nullptr : tree.setup(MEMBER(*common, pdcch_ConfigCommon));
        made.coresets = ids<ControlResourceSet>(
            bwp.pdcch, bwp.novelty, &ControlResourceSet::controlResourceSetId,
            [](const PDCCH_Config& of) { return MEMBER(of, controlResourceSetToAddModList); },
            [](const PDCCH_Config& of) { return MEMBER(of, controlResourceSetToReleaseList); });
        made.searchSpaces = ids<SearchSpace>(
            bwp.pdcch, bwp.novelty, &SearchSpace::searchSpaceId,
            [](const PDCCH_Config& of) { return MEMBER(of, searchSpacesToAddModList); },
            [](const PDCCH_Config& of) { return MEMBER(of, searchSpacesToReleaseList); });
        if (made.common != nullptr)
        {
            const ControlResourceSet* const coreset = MEMBER(*made.common, commonControlResourceSet);
            if (coreset != nullptr && made.coresets.find(coreset->controlResourceSetId) == nullptr)
            {
                made.allCoresets.add(memory, {coreset->controlResourceSetId, coreset, true, Novelty::New});
            }
            for (const SearchSpace& space : tree.list<SearchSpace>(MEMBER(*made.common, commonSearchSpaceList)))
            {
                made.allSearchSpaces.add(memory, {space.searchSpaceId, &space, true, Novelty::New});
            }
        }
        for (const IdEntry<ControlResourceSet>& entry : made.coresets)
        {
            made.allCoresets.add(memory, {entry.id, entry.element, false, entry.novelty});
        }
        for (const IdEntry<SearchSpace>& entry : made.searchSpaces)
        {
            made.allSearchSpaces.add(memory, {entry.id, entry.element, false, entry.novelty});
        }
    };
    return made(memory, bwp.lists.pdcch, make);
}

const Pdsch& Model::pdsch(Bwp& bwp)
{
    const auto make = [&](Pdsch& made)
    {
        made.tciStates = ids<TCI_State>(
            bwp.pdsch, bwp.novelty, &TCI_State::tci_StateId,
            [](const PDSCH_Config& of) { return MEMBER(of, tci_StatesToAddModList); },
            [](const PDSCH_Config& of) { return MEMBER(of, tci_StatesToReleaseList); });
        made.rateMatchPatterns = ids<RateMatchPattern>(
            bwp.pdsch, bwp.novelty, &RateMatchPattern::rateMatchPatternId,
            [](const PDSCH_Config& of) { return MEMBER(of, rateMatchPatternToAddModList); },
            [](const PDSCH_Config& of) { return MEMBER(of, rateMatchPatternToReleaseList); });
        made.zpResources = ids<ZP_CSI_RS_Resource>(
            bwp.pdsch, bwp.novelty, &ZP_CSI_RS_Resource::zp_CSI_RS_ResourceId,
            [](const PDSCH_Config& of) { return MEMBER(of, zp_CSI_RS_ResourceToAddModList); },
            [](const PDSCH_Config& of) { return MEMBER(of, zp_CSI_RS_ResourceToReleaseList); });
        made.aperiodicZpSets = ids<ZP_CSI_RS_ResourceSet>(
            bwp.pdsch, bwp.novelty, &ZP_CSI_RS_ResourceSet::zp_CSI_RS_ResourceSetId,
            [](const PDSCH_Config& of) { return MEMBER(of, aperiodic_ZP_CSI_RS_ResourceSetsToAddModList); },
            [](const PDSCH_Config& of) { return MEMBER(of, aperiodic_ZP_CSI_RS_ResourceSetsToReleaseList); });
        made.semiPersistentZpSets = ids<ZP_CSI_RS_ResourceSet>(
            bwp.pdsch, bwp.novelty, &ZP_CSI_RS_ResourceSet::zp_CSI_RS_ResourceSetId,
            [](const PDSCH_Config& of) { return MEMBER(of, sp_ZP_CSI_RS_ResourceSetsToAddModList); },
            [](const PDSCH_Config& of) { return MEMBER(of, sp_ZP_CSI_RS_ResourceSetsToReleaseList); });
        made.periodicZpSet = bwp.pdsch == nullptr ? nullptr : tree.setup(MEMBER(*bwp.pdsch, p_ZP_CSI_RS_ResourceSet));
    };
    return made(memory, bwp.lists.pdsch, make);
}

const Pucch& Model::pucch(Bwp& bwp)
{
    const auto make = [&](Pucch& made)
    {
        made.resources = ids<PUCCH_Resource>(
            bwp.pucch, bwp.novelty, &PUCCH_Resource::pucch_ResourceId,
            [](const PUCCH_Config& of) { return MEMBER(of, resourceToAddModList); },
            [](const PUCCH_Config& of) { return MEMBER(of, resourceToReleaseList); });
        made.sets = ids<PUCCH_ResourceSet>(
            bwp.pucch, bwp.novelty, &PUCCH_ResourceSet::pucch_ResourceSetId,
            [](const PUCCH_Config& of) { return MEMBER(of, resourceSetToAddModList); },
            [](const PUCCH_Config& of) { return MEMBER(of, resourceSetToReleaseList); });
        made.srResources = ids<SchedulingRequestResourceConfig>(
            bwp.pucch, bwp.novelty, &SchedulingRequestResourceConfig::schedulingRequestResourceId,
            [](const PUCCH_Config& of) { return MEMBER(of, schedulingRequestResourceToAddModList); },
            [](const PUCCH_Config& of) { return MEMBER(of, schedulingRequestResourceToReleaseList); });
        made.spatialRelations = ids<PUCCH_SpatialRelationInfo>(
            bwp.pucch, bwp.novelty, &PUCCH_SpatialRelationInfo::pucch_SpatialRelationInfoId,
            [](const PUCCH_Config& of) { return MEMBER(of, spatialRelationInfoToAddModList); },
            [](const PUCCH_Config& of) { return MEMBER(of, spatialRelationInfoToReleaseList); });
    };
    return made(memory, bwp.lists.pucch, make);
}

const Pusch& Model::pusch(Bwp& bwp)
{
    const auto make = [&](Pusch& made)
    {
        made.power = bwp.pusch == nullptr ? nullptr : MEMBER(*bwp.pusch, pusch_PowerControl);
        made.pathlossRs = ids<PUSCH_PathlossReferenceRS>(
            made.power, bwp.novelty, &PUSCH_PathlossReferenceRS::pusch_PathlossReferenceRS_Id,
            [](const PUSCH_PowerControl& of) { return MEMBER(of, pathlossReferenceRSToAddModList); },
            [](const PUSCH_PowerControl& of) { return MEMBER(of, pathlossReferenceRSToReleaseList); });
        made.sriMappings = ids<SRI_PUSCH_PowerControl>(
            made.power, bwp.novelty, &SRI_PUSCH_PowerControl::sri_PUSCH_PowerControlId,
            [](const PUSCH_PowerControl& of) { return MEMBER(of, sri_PUSCH_MappingToAddModList); },
            [](const PUSCH_PowerControl& of) { return MEMBER(of, sri_PUSCH_MappingToReleaseList); });
        made.alphaSets =
            tree.list<P0_PUSCH_AlphaSet>(made.power == nullptr ? nullptr : MEMBER(*made.power, p0_AlphaSets));
    };
    return made(memory, bwp.lists.pusch, make);
}

Known<PuschRows> puschRows(const Model& model, const Bwp& bwp)
{
    const OSRTDList* list =
        bwp.pusch == nullptr ? nullptr : model.tree.setup(MEMBER(*bwp.pusch, pusch_TimeDomainAllocationList));
    if (list == nullptr && bwp.uplinkCommon == nullptr)
    {
        return Known<PuschRows>::unless(bwp.cell->isSpCell() ? RRC_RULE_INPUT_COMMON : RRC_RULE_INPUT_PREVIOUS);
    }
    if (list == nullptr)
    {
        const PUSCH_ConfigCommon* const common = model.tree.setup(MEMBER(*bwp.uplinkCommon, pusch_ConfigCommon));
        list = common == nullptr ? nullptr : MEMBER(*common, pusch_TimeDomainAllocationList);
    }
    return PuschRows{list == nullptr, model.tree.list<PUSCH_TimeDomainResourceAllocation>(list)};
}

const Srs& Model::srs(Bwp& bwp)
{
    const auto make = [&](Srs& made)
    {
        made.sets = ids<SRS_ResourceSet>(
            bwp.srs, bwp.novelty, &SRS_ResourceSet::srs_ResourceSetId,
            [](const SRS_Config& of) { return MEMBER(of, srs_ResourceSetToAddModList); },
            [](const SRS_Config& of) { return MEMBER(of, srs_ResourceSetToReleaseList); });
        made.resources = ids<SRS_Resource>(
            bwp.srs, bwp.novelty, &SRS_Resource::srs_ResourceId,
            [](const SRS_Config& of) { return MEMBER(of, srs_ResourceToAddModList); },
            [](const SRS_Config& of) { return MEMBER(of, srs_ResourceToReleaseList); });
    };
    return made(memory, bwp.lists.srs, make);
}

const Csi& Model::csi(Cell& cell)
{
    const auto make = [&](Csi& made)
    {
        made.config = cell.dedicated == nullptr ? nullptr : tree.setup(MEMBER(*cell.dedicated, csi_MeasConfig));
        const auto listed = [&]<typename T>(auto T::*id, const auto& added, const auto& removed)
        {
            return ids<T>(made.config, cell.novelty, id, added, removed);
        };
        made.nzpResources = listed(
            &NZP_CSI_RS_Resource::nzp_CSI_RS_ResourceId,
            [](const CSI_MeasConfig& of) { return MEMBER(of, nzp_CSI_RS_ResourceToAddModList); },
            [](const CSI_MeasConfig& of) { return MEMBER(of, nzp_CSI_RS_ResourceToReleaseList); });
        made.nzpSets = listed(
            &NZP_CSI_RS_ResourceSet::nzp_CSI_ResourceSetId,
            [](const CSI_MeasConfig& of) { return MEMBER(of, nzp_CSI_RS_ResourceSetToAddModList); },
            [](const CSI_MeasConfig& of) { return MEMBER(of, nzp_CSI_RS_ResourceSetToReleaseList); });
        made.imResources = listed(
            &CSI_IM_Resource::csi_IM_ResourceId,
            [](const CSI_MeasConfig& of) { return MEMBER(of, csi_IM_ResourceToAddModList); },
            [](const CSI_MeasConfig& of) { return MEMBER(of, csi_IM_ResourceToReleaseList); });
        made.imSets = listed(
            &CSI_IM_ResourceSet::csi_IM_ResourceSetId,
            [](const CSI_MeasConfig& of) { return MEMBER(of, csi_IM_ResourceSetToAddModList); },
            [](const CSI_MeasConfig& of) { return MEMBER(of, csi_IM_ResourceSetToReleaseList); });
        made.ssbSets = listed(
            &CSI_SSB_ResourceSet::csi_SSB_ResourceSetId,
            [](const CSI_MeasConfig& of) { return MEMBER(of, csi_SSB_ResourceSetToAddModList); },
            [](const CSI_MeasConfig& of) { return MEMBER(of, csi_SSB_ResourceSetToReleaseList); });
        made.resourceConfigs = listed(
            &CSI_ResourceConfig::csi_ResourceConfigId,
            [](const CSI_MeasConfig& of) { return MEMBER(of, csi_ResourceConfigToAddModList); },
            [](const CSI_MeasConfig& of) { return MEMBER(of, csi_ResourceConfigToReleaseList); });
        made.reports = listed(
            &CSI_ReportConfig::reportConfigId,
            [](const CSI_MeasConfig& of) { return MEMBER(of, csi_ReportConfigToAddModList); },
            [](const CSI_MeasConfig& of) { return MEMBER(of, csi_ReportConfigToReleaseList); });
        addUses(tree, made);
    };
    return made(memory, cell.csi, make);
}

CsiSets csiSets(Model& model, const Csi& csi, const CSI_ResourceConfig& config)
{
    CsiSets sets{};
    sets.config = &config;
    sets.isWhole = true;
    const auto add = [&](const auto& named, const auto& pool, auto& to)
    {
        for (const auto id : entries(named))
        {
            const auto* const set = pool.element(id);
            sets.isWhole = sets.isWhole && set != nullptr;
            if (set != nullptr)
            {
                to.add(model.memory, set);
            }
        }
    };
    const auto* const list = &config.csi_RS_ResourceSetList;
    if (const auto* const rs = CHOSEN(model.tree, list, CSI_ResourceConfig_csi_RS_ResourceSetList, nzp_CSI_RS_SSB))
    {
        add(MEMBER(*rs, nzp_CSI_RS_ResourceSetList), csi.nzpSets, sets.nzp);
        add(MEMBER(*rs, csi_SSB_ResourceSetList), csi.ssbSets, sets.ssb);
    }
    if (const auto* const im =
            CHOSEN(model.tree, list, CSI_ResourceConfig_csi_RS_ResourceSetList, csi_IM_ResourceSetList))
    {
        add(im, csi.imSets, sets.im);
    }
    return sets;
}

Vector<const NZP_CSI_RS_Resource*> nzpResources(Model& model, const Csi& csi, const NZP_CSI_RS_ResourceSet& set)
{
    Vector<const NZP_CSI_RS_Resource*> resources;
    for (const auto id : entries(&set.nzp_CSI_RS_Resources))
    {
        if (const NZP_CSI_RS_Resource* const resource = csi.nzpResources.element(id))
        {
            resources.add(model.memory, resource);
        }
    }
    return resources;
}

Vector<const CSI_IM_Resource*> imResources(Model& model, const Csi& csi, const CSI_IM_ResourceSet& set)
{
    Vector<const CSI_IM_Resource*> resources;
    for (const auto id : entries(&set.csi_IM_Resources))
    {
        if (const CSI_IM_Resource* const resource = csi.imResources.element(id))
        {
            resources.add(model.memory, resource);
        }
    }
    return resources;
}

const ASN1BitStr32* csiRsAllocation(const Tree& tree, const CSI_RS_ResourceMapping& mapping)
{
    const auto* const allocation = &mapping.frequencyDomainAllocation;
    const ASN1BitStr32* const alternatives[] = {
        CHOSEN(tree, allocation, CSI_RS_ResourceMapping_frequencyDomainAllocation, row1),
        CHOSEN(tree, allocation, CSI_RS_ResourceMapping_frequencyDomainAllocation, row2),
        CHOSEN(tree, allocation, CSI_RS_ResourceMapping_frequencyDomainAllocation, row4),
        CHOSEN(tree, allocation, CSI_RS_ResourceMapping_frequencyDomainAllocation, other),
    };
    for (const ASN1BitStr32* const bits : alternatives)
    {
        if (bits != nullptr)
        {
            return bits;
        }
    }
    return nullptr;
}

const NrCsiRsRow* csiRsRow(const Tree& tree, const CSI_RS_ResourceMapping& mapping)
{
    const ASN1BitStr32* const bits = csiRsAllocation(tree, mapping);
    return bits == nullptr ? nullptr
                           : nrCsiRsRowOf(mapping.frequencyDomainAllocation.t, bitsSet(*bits, rtx::bitCount(*bits)),
                                          portsOf(mapping), mapping.cdm_Type, mapping.density.t);
}

OSUINT32 portsOf(const CSI_RS_ResourceMapping& mapping)
{
    static constexpr OSUINT32 ports[] = {1, 2, 4, 8, 12, 16, 24, 32};
    return mapping.nrofPorts < std::size(ports) ? ports[mapping.nrofPorts] : 0;
}

Recurrence recurrenceOf(const CSI_ResourcePeriodicityAndOffset& choice)
{
    static constexpr OSUINT32 periods[] = {4, 5, 8, 10, 16, 20, 32, 40, 64, 80, 160, 320, 640};
    if (choice.t == 0 || choice.t > std::size(periods))
    {
        return {};
    }
    const OSUINT32 offset = choice.t == T_CSI_ResourcePeriodicityAndOffset_slots640   ? choice.u.slots640
                            : choice.t == T_CSI_ResourcePeriodicityAndOffset_slots320 ? choice.u.slots320
                                                                                      : choice.u.slots4;
    return {periods[choice.t - 1], offset};
}

Known<NrSpan> commonRbs(const Model& model, const Bwp& bwp)
{
    const Known<NrSpan> rbs = bwp.rbs();
    const Known<const SCS_SpecificCarrier*> carrier = model.carrier(bwp);
    if (!rbs || !carrier || *carrier == nullptr)
    {
        return Known<NrSpan>::unless(rbs.inputs() | carrier.inputs());
    }
    return NrSpan{(*carrier)->offsetToCarrier + rbs->start, rbs->size};
}

Known<NrSpan> csiBand(const Model& model, const Bwp& bwp, const CSI_FrequencyOccupation& band)
{
    const Known<NrSpan> rbs = commonRbs(model, bwp);
    return rbs ? Known<NrSpan>(nrCsiRsBand({band.startingRB, band.nrofRBs}, *rbs)) : rbs;
}

Known<SsbPositions> ssbPositions(const Model& model, const Cell& cell)
{
    const auto* const positions = cell.common == nullptr ? nullptr : MEMBER(*cell.common, ssb_PositionsInBurst);
    using Positions = ServingCellConfigCommon_ssb_PositionsInBurst;
    if (const ASN1BitStr32* const bits =
            CHOSEN(model.tree, positions, ServingCellConfigCommon_ssb_PositionsInBurst, shortBitmap))
    {
        return SsbPositions{bits->data, 4};
    }
    if (const ASN1BitStr32* const bits =
            CHOSEN(model.tree, positions, ServingCellConfigCommon_ssb_PositionsInBurst, mediumBitmap))
    {
        return SsbPositions{bits->data, 8};
    }
    if (positions != nullptr && positions->t == T_ServingCellConfigCommon_ssb_PositionsInBurst_longBitmap)
    {
        static_assert(sizeof Positions{}.u.longBitmap == 8);
        return SsbPositions{positions->u.longBitmap, 64};
    }
    const RrcRuleContext& known = model.known;
    if (cell.isSpCell() && known.ssbPositionsInBurst != nullptr && known.ssbPositionsBits <= 64)
    {
        return SsbPositions{known.ssbPositionsInBurst, known.ssbPositionsBits};
    }
    return Known<SsbPositions>::unless(cell.isSpCell() ? RRC_RULE_INPUT_SSB : RRC_RULE_INPUT_PREVIOUS);
}

Known<OSUINT32> typeAPosition(const Model& model, const Cell& cell)
{
    const OSUINT32* position = nullptr;
    if (cell.common != nullptr)
    {
        position = &cell.common->dmrs_TypeA_Position;
    }
    else if (cell.isSpCell())
    {
        position = model.known.typeAPosition;
    }
    if (position == nullptr)
    {
        return Known<OSUINT32>::unless(cell.isSpCell() ? RRC_RULE_INPUT_TYPEA : RRC_RULE_INPUT_PREVIOUS);
    }
    return *position == ServingCellConfigCommon_dmrs_TypeA_Position_pos3 ? 3U : 2U;
}

Known<const RACH_ConfigCommon*> rachCommon(const Model& model, const Bwp& bwp)
{
    if (bwp.uplinkCommon == nullptr && bwp.isInitial() && bwp.cell->isSpCell() && bwp.direction == Direction::Uplink &&
        model.known.rachCommon != nullptr)
    {
        return model.known.rachCommon;
    }
    return common<RACH_ConfigCommon>(model, bwp, RRC_RULE_INPUT_RACH,
                                     [](const BWP_UplinkCommon& of) { return MEMBER(of, rach_ConfigCommon); });
}

Known<const PUSCH_ConfigCommon*> puschCommon(const Model& model, const Bwp& bwp)
{
    return common<PUSCH_ConfigCommon>(model, bwp, RRC_RULE_INPUT_COMMON,
                                      [](const BWP_UplinkCommon& of) { return MEMBER(of, pusch_ConfigCommon); });
}

Known<bool> msg3Precoding(const Model& model, const Bwp& bwp)
{
    Known<const RACH_ConfigCommon*> rach = rachCommon(model, bwp);
    const Bwp* const initial = bwp.cell->bwp(bwp.direction, 0);
    if (rach && *rach == nullptr && initial != nullptr)
    {
        rach = rachCommon(model, *initial);
    }
    return rach ? Known<bool>(*rach != nullptr && (*rach)->m.msg3_transformPrecoderPresent != 0)
                : Known<bool>::unless(rach.inputs());
}

Known<const TDD_UL_DL_ConfigCommon*> tddPattern(const Model& model, const Cell& cell)
{
    if (cell.common != nullptr)
    {
        return static_cast<const TDD_UL_DL_ConfigCommon*>(MEMBER(*cell.common, tdd_UL_DL_ConfigurationCommon));
    }
    if (cell.isSpCell() && model.known.tdd != nullptr)
    {
        return model.known.tdd;
    }
    using Pattern = Known<const TDD_UL_DL_ConfigCommon*>;
    return Pattern::unless(cell.isSpCell() ? RRC_RULE_INPUT_TDD : RRC_RULE_INPUT_PREVIOUS);
}

NrTddPattern patternOf(const TDD_UL_DL_Pattern& pattern)
{
    static constexpr OSUINT32 periods[] = {4, 5, 8, 10, 16, 20, 40, 80}; // ms0p5 ... ms10
    static constexpr OSUINT32 added[] = {24, 32};                        // ms3, ms4: take its place
    OSUINT32 period =
        pattern.dl_UL_TransmissionPeriodicity < std::size(periods) ? periods[pattern.dl_UL_TransmissionPeriodicity] : 0;
    if (const auto* const later = ADDITION(pattern, 2, dl_UL_TransmissionPeriodicity_v1530))
    {
        period = *later < std::size(added) ? added[*later] : 0;
    }
    return {period, pattern.nrofDownlinkSlots, pattern.nrofDownlinkSymbols, pattern.nrofUplinkSlots,
            pattern.nrofUplinkSymbols};
}

Known<TddGrid> tddGrid(const Model& model, const Cell& cell)
{
    const Known<const TDD_UL_DL_ConfigCommon*> config = tddPattern(model, cell);
    if (!config || *config == nullptr)
    {
        return Known<TddGrid>::unless(config.inputs());
    }
    TddGrid grid{};
    grid.first = patternOf((*config)->pattern1);
    grid.hasSecond = (*config)->m.pattern2Present != 0;
    grid.second = grid.hasSecond ? patternOf((*config)->pattern2) : NrTddPattern{};
    grid.muRef = muOf((*config)->referenceSubcarrierSpacing);
    const bool fits = grid.muRef <= highestMu && nrTddFits(&grid.first, grid.muRef) != 0 &&
                      (!grid.hasSecond || nrTddFits(&grid.second, grid.muRef) != 0);
    return fits ? Known<TddGrid>(grid) : Known<TddGrid>::unless(0);
}

OSUINT32 gridSlots(const TddGrid& grid, OSUINT32 mu)
{
    return nrTddSlots(grid.first.period, mu) + (grid.hasSecond ? nrTddSlots(grid.second.period, mu) : 0);
}

TddSlots Model::tddSlots(const Cell& cell, const TddGrid& grid, OSUINT32 mu)
{
    static constexpr NrTddSlot flexible{};
    const OSUINT32 count = gridSlots(grid, mu);
    for (const TddEntry& entry : tdd_)
    {
        if (entry.cell == &cell && entry.mu == mu)
        {
            return {entry.slots, count};
        }
    }
    auto* const slots = memory.take<NrTddSlot>(count);
    if (slots == nullptr)
    {
        return {&flexible, 1}; // a spacing that is none, or the heap is exhausted
    }
    for (OSUINT32 slot = 0; slot < count; ++slot)
    {
        slots[slot] = nrTddSlot(&grid.first, grid.secondOrNull(), grid.muRef, mu, slot);
    }
    tdd_.add(memory, {&cell, mu, slots});
    return {slots, count};
}

} // namespace rules
