// When and where search spaces are monitored.
#ifndef MODEL_SEARCHSPACES_H
#define MODEL_SEARCHSPACES_H

#include "modelLists.h"

namespace rules
{

// The slots of a search space: `duration` of every `period`, from `offset` on.
struct Monitoring
{
    OSUINT32 period;
    OSUINT32 offset;
    OSUINT32 duration;

    bool isIn(OSUINT32 slot) const
    {
        return (slot + period - offset % period) % period < duration;
    }
};
Known<Monitoring> monitoringOf(const SearchSpace& space);

// Whether two search spaces are ever monitored in one slot.
bool meet(const Monitoring& a, const Monitoring& b);

// The first symbols of its occasions in a slot, bit i for symbol i; 0 where they are not given.
OSUINT32 firstSymbolsOf(const SearchSpace& space);

constexpr OSUINT32 levelCount = 5; // aggregation levels: 1, 2, 4, 8, 16
// Candidates of aggregation level 2^level; 0 where they are not given.
OSUINT32 candidatesOf(const SearchSpace& space, OSUINT32 level);

const SearchSpace_searchSpaceType_common* commonType(const Tree& tree, const SearchSpace& space);
const SearchSpace_searchSpaceType_ue_Specific* ueSpecificType(const Tree& tree, const SearchSpace& space);

// A CORESET's size.
struct Region
{
    OSUINT32 cces;
    OSUINT32 symbols;
};
Region regionOf(const ControlResourceSet& coreset);
// Of the CORESET that an id names in a bandwidth part, 0 for CORESET#0.
Known<Region> regionOf(Model& model, Bwp& bwp, OSUINT32 id);

Known<NrCoreset0> coreset0Of(const Model& model, const Cell& cell);
// Its first common resource block, by the place of the SS/PBCH block.
Known<int64_t> coreset0Start(const Model& model, const Cell& cell);

inline bool contains(const NrSpan& rbs, int64_t first, OSUINT32 count)
{
    return first >= rbs.start && first + count <= int64_t{rbs.start} + rbs.size;
}

constexpr OSUINT32 coresetBits = 45; // of frequencyDomainResources

} // namespace rules

#endif
