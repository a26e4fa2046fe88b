// What rules of the uplink share.
#ifndef RULES_UPLINK_H
#define RULES_UPLINK_H

#include "check.h"
#include "uplinkParts.h"

namespace rules
{

// Each bandwidth part of the uplink and of the supplementary uplink of each cell.
template <typename Each>
void forUplinks(Check& check, const Each& each)
{
    for (Cell& cell : check.model.cells())
    {
        for (const Direction direction : {Direction::Uplink, Direction::Supplementary})
        {
            for (Bwp& bwp : cell.bwps(direction))
            {
                each(cell, bwp);
            }
        }
    }
}

// Whether any of the bandwidth parts has a pucch-Config.
inline bool hasPucch(std::span<const Bwp> bwps)
{
    return std::any_of(bwps.begin(), bwps.end(), [](const Bwp& bwp) { return bwp.pucch != nullptr; });
}
inline bool hasPucch(const Cell& cell)
{
    return hasPucch(cell.uplink) || hasPucch(cell.sul);
}

// A sounding resource set with its resources, those that do not resolve left out.
struct SrsSet
{
    const SRS_ResourceSet* set;
    Vector<const SRS_Resource*> resources;
    bool isWhole; // its list is there, and each of them resolved
};
SrsSet srsSet(Model& model, const Srs& srs, const SRS_ResourceSet& set);

// The first set of a usage; null where the element has none.
const SRS_ResourceSet* srsSetFor(const Srs& srs, SRS_ResourceSet_usage usage);

// The most ports of the resources for codebook based transmission.
Known<OSUINT32> codebookPorts(Model& model, Bwp& bwp);

// Whether twoPUSCH-PC-AdjustmentStates is there.
Known<bool> hasTwoLoops(Model& model, Bwp& bwp);

// The cell that a pathloss reference of this one lies in (pathlossReferenceLinking); null where it is not in the
// element.
Cell* pathlossCell(Model& model, Cell& cell);

// Whether the CSI-RS is sent only when triggered.
Known<bool> isAperiodic(const Model& model, const Cell& cell, const NZP_CSI_RS_Resource& resource);

} // namespace rules

#endif
