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
