// For tests of what reads a CellGroupConfig: trees that may be anything, in the heap of a context.
#ifndef HOSTILETREES_H
#define HOSTILETREES_H

#include "../Asn/randomTree.h"

#include "rrcContext.h"

#include <gtest/gtest.h>

namespace test
{

class HostileTrees : public testing::Test
{
protected:
    HostileTrees()
    {
        rtxInitContext(&context_);
    }
    ~HostileTrees() override
    {
        rtFreeContext(&context_);
    }

    CellGroupConfig& random(uint64_t seed, unsigned budget, unsigned faults)
    {
        RandomTree::Options options;
        options.budget = budget;
        options.sameIdentity = seed % 2 == 0;
        RandomTree random(context_, seed, options);
        const RtxType& type = *asn1Type_CellGroupConfig();
        auto& tree = *static_cast<CellGroupConfig*>(random.make(type));
        if (faults != 0)
        {
            (void)random.spoil(type, &tree, faults);
        }
        return tree;
    }

    // Of each seed another one: small and large, whole and spoilt.
    CellGroupConfig& any(uint64_t seed)
    {
        return random(seed, 2000, seed % 4 == 0 ? 0 : static_cast<unsigned>(seed % 7));
    }

    // A message and what was there before it, mostly of one cell group; every other message is its predecessor again.
    CellGroupConfig& withPrevious(uint64_t seed, RrcRuleContext& known)
    {
        CellGroupConfig& earlier = random(seed, 1000, seed % 3 == 0 ? 2 : 0);
        CellGroupConfig& tree = random(seed % 2 == 0 ? seed : seed + 2000, 500, seed % 5 == 0 ? 2 : 0);
        tree.cellGroupId = seed % 11 == 0 ? tree.cellGroupId : earlier.cellGroupId;
        known.previous = &earlier;
        return tree;
    }

    OSCTXT context_;
};

} // namespace test

#endif
