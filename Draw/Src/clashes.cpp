// What excludes each other: uplink on downlink symbols, PUCCH in the same symbols, what reaches beyond its bandwidth
// part.
#include "gather.h"

#include "rtxLine.h"

namespace rules::draw
{
namespace
{

bool meets(NrSpan a, NrSpan b)
{
    return a.start < b.start + b.size && b.start < a.start + a.size;
}

bool isWithin(NrSpan inner, NrSpan outer)
{
    return inner.start >= outer.start && inner.start + inner.size <= outer.start + outer.size;
}

void againstDirection(Gather& gather, const Grid& grid, Resource& resource)
{
    OSUINT32 lost = 0;
    OSUINT32 first = 0;
    for (Occasion& occasion : resource.occasions)
    {
        const NrTddSlot& directions = grid.tdd[occasion.slot - grid.slots.start];
        if ((directions.downlink & symbolBits(resource.shapes[occasion.shape])) != 0)
        {
            occasion.clashes = true;
            first = lost++ == 0 ? occasion.slot : first;
        }
    }
    if (lost != 0)
    {
        gather.clash(words("%s: %u of %zu occasions in %s %s downlink symbols, the first in slot %u",
                           resource.title.c_str(), lost, resource.occasions.size(),
                           spanWords("slot", grid.slots).c_str(), lost == 1 ? "meets" : "meet", first),
                     resource.path);
    }
}

// A UE receives nothing in symbols of the uplink: shown, but no clash, as search spaces recur whatever the pattern is.
void withinUplink(const Grid& grid, Resource& resource)
{
    for (Occasion& occasion : resource.occasions)
    {
        const NrTddSlot& directions = grid.tdd[occasion.slot - grid.slots.start];
        occasion.isIdle = (directions.uplink & symbolBits(resource.shapes[occasion.shape])) != 0;
    }
}

void beyondBwp(Gather& gather, Resource& resource)
{
    // Of search spaces the CORESET is told of; SS/PBCH blocks belong to no bandwidth part.
    if (resource.kind == Kind::SearchSpace || resource.kind == Kind::Ssb || resource.own.size == 0)
    {
        return;
    }
    const auto isBeyond = [&](const Rect& rect)
    {
        return rect.rbs.size != 0 && !isWithin(rect.rbs, resource.own);
    };
    for (Occasion& occasion : resource.occasions)
    {
        const Shape& shape = resource.shapes[occasion.shape];
        occasion.clashes = occasion.clashes || std::any_of(shape.begin(), shape.end(), isBeyond);
    }
    for (const Shape& shape : resource.shapes)
    {
        for (const Rect& rect : shape)
        {
            if (isBeyond(rect))
            {
                gather.clash(words("%s: %s, but its bandwidth part is %s", resource.title.c_str(),
                                   spanWords("resource block", rect.rbs).c_str(), spanWords("", resource.own).c_str()),
                             resource.path);
                return;
            }
        }
    }
}

bool isUci(const Resource& resource)
{
    return resource.kind == Kind::SchedulingRequest || resource.kind == Kind::CsiReport;
}

// What becomes of two PUCCHs that have symbols in common (TS 38.213 9.2.5); null where both are sent.
const char* outcomeOf(const Resource& a, const Resource& b)
{
    if (a.kind == Kind::CsiReport && b.kind == Kind::CsiReport)
    {
        // Reports of one slot are joined on the resources that are listed for it.
        const bool areJoined = a.bwp->pucch != nullptr && a.bwp->pucch->m.multi_CSI_PUCCH_ResourceListPresent != 0;
        return areJoined ? nullptr : "without multi-CSI-PUCCH-ResourceList one of them is sent";
    }
    return a.kind == b.kind ? "one of them is sent" : "the request goes along in the report's PUCCH";
}

void samePucch(Gather& gather, Resource& a, Resource& b)
{
    const char* const outcome = outcomeOf(a, b);
    if (outcome == nullptr)
    {
        return;
    }
    OSUINT32 met = 0;
    OSUINT32 first = 0;
    bool isSameBlock = false;
    size_t j = 0;
    for (Occasion& one : a.occasions)
    {
        while (j < b.occasions.size() && b.occasions[j].slot < one.slot)
        {
            ++j;
        }
        if (j == b.occasions.size() || b.occasions[j].slot != one.slot)
        {
            continue;
        }
        Occasion& other = b.occasions[j];
        const Shape& shapeA = a.shapes[one.shape];
        const Shape& shapeB = b.shapes[other.shape];
        if ((symbolBits(shapeA) & symbolBits(shapeB)) == 0)
        {
            continue;
        }
        one.clashes = true;
        other.clashes = true;
        first = met++ == 0 ? one.slot : first;
        for (const Rect& x : shapeA)
        {
            for (const Rect& y : shapeB)
            {
                isSameBlock = isSameBlock || (meets(x.symbols, y.symbols) && meets(x.rbs, y.rbs));
            }
        }
    }
    if (met != 0)
    {
        gather.clash(words("%s and %s overlap in symbols%s of %u slot%s, the first slot %u: %s", a.title.c_str(),
                           b.title.c_str(), isSameBlock ? " and resource blocks" : "", met, rtx::plural(met), first,
                           outcome),
                     a.path, b.path);
    }
}

} // namespace

void findClashes(Gather& gather, Grid& grid)
{
    for (Panel& panel : grid.panels)
    {
        for (size_t i = 0; i < panel.resources.size(); ++i)
        {
            Resource& resource = panel.resources[i];
            beyondBwp(gather, resource);
            if (panel.direction != Direction::Downlink && grid.hasTdd)
            {
                againstDirection(gather, grid, resource);
            }
            if (panel.direction == Direction::Downlink && grid.hasTdd)
            {
                withinUplink(grid, resource);
            }
            for (size_t j = 0; j < i && isUci(resource); ++j)
            {
                if (isUci(panel.resources[j]) && panel.resources[j].bwp == resource.bwp)
                {
                    samePucch(gather, panel.resources[j], resource);
                }
            }
        }
    }
}

} // namespace rules::draw
