// Random pairs of configurations: near each other, and far from each other.
#ifndef RANDOMPAIRS_H
#define RANDOMPAIRS_H

#include "cases.h"

namespace delta
{

enum class Distance
{
    Near, // one tree, changed in one to five places
    Far   // two trees
};

// Trees that a UE may have and shall have: new entries are complete, no identity comes twice. The same seed makes the
// same pair. `unknown`: with additions and alternatives of later releases.
Pair randomPair(Heap& heap, uint64_t seed, Distance distance, bool unknown = false);

} // namespace delta

#endif
