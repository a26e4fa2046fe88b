// What the tests of deltas share: a check that counts, and places by their paths.
#ifndef DELTATEST_H
#define DELTATEST_H

#include "engine.h"
#include "places.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <map>

namespace delta
{

constexpr unsigned allEntries = RTX_DELTA_RECREATE_BEARERS | RTX_DELTA_RECREATE_SCELLS | RTX_DELTA_RECREATE_BWPS;
constexpr unsigned allFlags[] = {0,
                                 RTX_DELTA_RECREATE_NONE,
                                 RTX_DELTA_RECREATE_BWPS,
                                 allEntries,
                                 RTX_DELTA_TWO_STEPS,
                                 RTX_DELTA_TWO_STEPS | RTX_DELTA_RECREATE_NONE,
                                 RTX_DELTA_TWO_STEPS | allEntries};

class DeltaTest : public testing::Test
{
protected:
    // After so many the rest tells nothing new.
    static constexpr unsigned enough = 20;

    bool isEnough() const
    {
        return failures_ >= enough;
    }

    void fail(const std::string& name, const std::string& text)
    {
        ++failures_;
        ADD_FAILURE() << name << ": " << text;
    }

    // What the engine makes of the pair, after a look at all that holds of it.
    Result check(Heap& heap, const std::string& name, const CellGroupConfig* prev, const CellGroupConfig* next,
                 unsigned flags, const Expected& expected)
    {
        Result result{};
        const std::string text = faults(heap, prev, next, flags, expected, result);
        if (!text.empty())
        {
            fail(name, text);
        }
        ++outcomes[result.status == RTX_E_DELTA && !result.items.empty()
                       ? "refused " + std::to_string(result.items.front().reason)
                   : result.status == RTX_DELTA_NOTHING ? "nothing"
                   : result.status == RTX_DELTA_MORE    ? "two messages"
                   : expected.recreated.empty()         ? "sent"
                                                        : "recreated"];
        return result;
    }

    Result check(Heap& heap, const std::string& name, const CellGroupConfig* prev, const CellGroupConfig* next,
                 unsigned flags = 0)
    {
        return check(heap, name, prev, next, flags, expect(heap, prev, next, flags));
    }

    // Prints how often each thing has occurred.
    static void print(const std::map<std::string, unsigned>& counts)
    {
        for (const auto& [name, count] : counts)
        {
            (void)std::printf("%-28s %6u\n", name.c_str(), count);
        }
    }

    std::map<std::string, unsigned> outcomes;

private:
    unsigned failures_ = 0;
};

} // namespace delta

#endif
