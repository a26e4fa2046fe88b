// Random pairs, as many of either kind as CELLGROUPCFG_DELTA_PAIRS says.
#include "deltaTest.h"
#include "randomPairs.h"

#include <cstdlib>

namespace
{

using namespace delta;

class Random : public DeltaTest
{
protected:
    static uint64_t number()
    {
        const char* const text = std::getenv("CELLGROUPCFG_DELTA_PAIRS");
        return text != nullptr ? std::strtoull(text, nullptr, 10) : 10000;
    }

    void run(Distance distance)
    {
        for (uint64_t seed = 1; seed <= number() && !isEnough(); ++seed)
        {
            Heap heap;
            const Pair pair = randomPair(heap, seed, distance, seed % 4 == 0);
            const unsigned flags = allFlags[seed % std::size(allFlags)] | (seed % 11 == 0 ? RTX_DELTA_SYNC : 0);
            const CellGroupConfig* const prev = seed % 50 == 0 ? nullptr : pair.prev;
            (void)check(heap, "seed " + std::to_string(seed), prev, pair.next, flags);
        }
        print(outcomes);
    }
};

TEST_F(Random, Near)
{
    run(Distance::Near);
    for (const char* const outcome : {"sent", "nothing", "recreated", "two messages"})
    {
        EXPECT_NE(outcomes[outcome], 0U) << outcome;
    }
}

TEST_F(Random, Far)
{
    run(Distance::Far);
    EXPECT_NE(outcomes["sent"], 0U);
    EXPECT_NE(outcomes["recreated"], 0U);
}

} // namespace
