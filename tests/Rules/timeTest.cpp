// How long a check takes at most: whatever a message of 8192 octets holds.
#include "rrcRules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

namespace
{

constexpr size_t longest = 8192; // octets of a message
constexpr double mostMs = 50;    // of an optimised build

double now()
{
    timespec time;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

int drop(void*, const RrcRuleFinding*)
{
    return 0;
}

class Message
{
public:
    explicit Message(const std::filesystem::path& path)
    {
        std::ifstream file(path, std::ios::binary);
        const std::vector<char> text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        octets_.assign(text.begin(), text.end());
        rtxInitContext(&context_);
        pu_setBuffer(&context_, octets_.data(), octets_.size(), 0);
        EXPECT_LE(octets_.size(), longest) << path;
        EXPECT_EQ(0, asn1PD_CellGroupConfig(&context_, &tree_)) << path;
    }
    ~Message()
    {
        rtFreeContext(&context_);
    }
    Message(const Message&) = delete;
    Message& operator=(const Message&) = delete;

    // In ms: of three calls the least, which other load on the machine disturbs the least.
    double timeOf(const RrcRuleContext& known)
    {
        double least = 0;
        for (int i = 0; i < 3; ++i)
        {
            const double start = now();
            EXPECT_GE(rrcCheckRules(&context_, &tree_, &known, drop, nullptr), 0);
            const double time = now() - start;
            least = i == 0 ? time : std::min(least, time);
        }
        return least;
    }

    const CellGroupConfig& tree() const
    {
        return tree_;
    }

private:
    std::vector<OSOCTET> octets_;
    OSCTXT context_;
    CellGroupConfig tree_;
};

// Those that bench/slowestRules.cpp has found, from the configurations of the tests of rules on.
TEST(Time, OfTheSlowestMessages)
{
    unsigned messages = 0;
    double slowest = 0;
    for (const auto& entry : std::filesystem::directory_iterator("tests/Rules/slow"))
    {
        SCOPED_TRACE(entry.path());
        Message message(entry.path());
        RrcRuleContext alone{};
        alone.extent = RRC_RULE_EXTENT_FULL;
        RrcRuleContext delta{};
        delta.extent = RRC_RULE_EXTENT_DELTA;
        RrcRuleContext again{};
        again.previous = &message.tree();
        for (const RrcRuleContext* const known : {&alone, &delta, &again})
        {
            const double ms = message.timeOf(*known);
            slowest = std::max(slowest, ms);
            EXPECT_LT(ms, mostMs * CHECK_TIME_FACTOR);
        }
        ++messages;
    }
    EXPECT_GE(messages, 5U);
    std::cout << "the slowest check: " << slowest << " ms\n";
}

} // namespace
