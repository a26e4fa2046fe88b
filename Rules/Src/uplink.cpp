#include "uplink.h"

namespace rules
{

SrsSet srsSet(Model& model, const Srs& srs, const SRS_ResourceSet& set)
{
    const auto* const ids = MEMBER(set, srs_ResourceIdList);
    SrsSet result{&set, {}, ids != nullptr};
    for (const SRS_ResourceId id : entries(ids))
    {
        const SRS_Resource* const resource = srs.resources.element(id);
        result.isWhole = result.isWhole && resource != nullptr;
        if (resource != nullptr)
        {
            result.resources.add(model.memory, resource);
        }
    }
    return result;
}

const SRS_ResourceSet* srsSetFor(const Srs& srs, SRS_ResourceSet_usage usage)
{
    for (const IdEntry<SRS_ResourceSet>& entry : srs.sets)
    {
        if (entry.element->usage == usage)
        {
            return entry.element;
        }
    }
    return nullptr;
}

OSUINT32 portsOf(const SRS_Resource& resource)
{
    return resource.nrofSRS_Ports <= SRS_Resource_nrofSRS_Ports_ports4 ? 1U << resource.nrofSRS_Ports : 0;
}

Recurrence recurrenceOf(const Tree& tree, const SRS_Resource& resource)
{
    static constexpr OSUINT16 periods[] = {1, 2, 4, 5, 8, 10, 16, 20, 32, 40, 64, 80, 160, 320, 640, 1280, 2560};
    const auto* const type = &resource.resourceType;
    const SRS_PeriodicityAndOffset* choice = nullptr;
    if (const auto* const some = CHOSEN(tree, type, SRS_Resource_resourceType, semi_persistent))
    {
        choice = &some->periodicityAndOffset_sp;
    }
    if (const auto* const some = CHOSEN(tree, type, SRS_Resource_resourceType, periodic))
    {
        choice = &some->periodicityAndOffset_p;
    }
    if (choice == nullptr || choice->t < T_SRS_PeriodicityAndOffset_sl1 ||
        choice->t > T_SRS_PeriodicityAndOffset_sl2560)
    {
        return {};
    }
    const OSUINT32 offset = choice->t == T_SRS_PeriodicityAndOffset_sl1    ? 0
                            : choice->t < T_SRS_PeriodicityAndOffset_sl320 ? choice->u.sl160
                                                                           : choice->u.sl2560;
    return {periods[choice->t - 1], offset};
}

OSUINT32 grantPeriod(const ConfiguredGrantConfig& grant)
{
    static constexpr OSUINT32 slots[] = {1,  2,   4,   5,   8,   10,  16,  20,   32,   40,   64,
                                         80, 128, 160, 256, 320, 512, 640, 1024, 1280, 2560, 5120};
    static constexpr OSUINT32 extendedSlots[] = {1,  2,  4,   5,   8,   10,  16,  20,  32,   40,
                                                 64, 80, 128, 160, 256, 320, 512, 640, 1280, 2560};
    const OSUINT32 value = grant.periodicity;
    if (value < ConfiguredGrantConfig_periodicity_sym1x14)
    {
        return value == ConfiguredGrantConfig_periodicity_sym2 ? 2 : 7;
    }
    if (value < ConfiguredGrantConfig_periodicity_sym6)
    {
        return slots[value - ConfiguredGrantConfig_periodicity_sym1x14] * NR_SYMBOLS;
    }
    if (value == ConfiguredGrantConfig_periodicity_sym6)
    {
        return 6;
    }
    return value <= ConfiguredGrantConfig_periodicity_sym2560x12
               ? extendedSlots[value - ConfiguredGrantConfig_periodicity_sym1x12] * NR_SYMBOLS_EXTENDED
               : 0;
}

Known<OSUINT32> codebookPorts(Model& model, Bwp& bwp)
{
    const Srs& srs = model.srs(bwp);
    const SRS_ResourceSet* const set = srsSetFor(srs, SRS_ResourceSet_usage_codebook);
    const SrsSet used = set == nullptr ? SrsSet{} : srsSet(model, srs, *set);
    if (!used.isWhole)
    {
        return Known<OSUINT32>::unless(srs.sets.complete ? 0 : RRC_RULE_INPUT_PREVIOUS);
    }
    OSUINT32 most = 0;
    for (const SRS_Resource* const resource : used.resources)
    {
        most = std::max(most, portsOf(*resource));
    }
    return most;
}

Known<bool> hasTwoLoops(Model& model, Bwp& bwp)
{
    if (const PUSCH_PowerControl* const power = model.pusch(bwp).power)
    {
        return power->m.twoPUSCH_PC_AdjustmentStatesPresent != 0;
    }
    return model.isWhole(bwp) ? Known<bool>(false) : Known<bool>::unless(RRC_RULE_INPUT_PREVIOUS);
}

Cell* pathlossCell(Model& model, Cell& cell)
{
    const auto* const linking = cell.dedicated == nullptr ? nullptr : MEMBER(*cell.dedicated, pathlossReferenceLinking);
    const bool isSpCell = linking != nullptr && *linking == ServingCellConfig_pathlossReferenceLinking_spCell;
    return isSpCell ? model.spCell() : &cell;
}

const PDSCH_ServingCellConfig* servingConfig(const Tree& tree, const Cell& cell)
{
    return cell.dedicated == nullptr ? nullptr : tree.setup(MEMBER(*cell.dedicated, pdsch_ServingCellConfig));
}

Cell* pucchCellOf(Model& model, const Cell& cell)
{
    const PDSCH_ServingCellConfig* const serving = servingConfig(model.tree, cell);
    const ServCellIndex* const named = serving == nullptr ? nullptr : MEMBER(*serving, pucch_Cell);
    return named == nullptr ? model.spCell() : model.cell(*named);
}

Known<bool> isAperiodic(const Model& model, const Cell& cell, const NZP_CSI_RS_Resource& resource)
{
    if (resource.m.periodicityAndOffsetPresent != 0)
    {
        return false;
    }
    return model.complete || cell.novelty == Novelty::New ? Known<bool>(true)
                                                          : Known<bool>::unless(RRC_RULE_INPUT_PREVIOUS);
}

} // namespace rules
