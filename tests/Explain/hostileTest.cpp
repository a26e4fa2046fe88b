// Trees that may be anything: no crash, no endless walk, the same meanings each time, and nothing but the context's
// heap.
#include "../support/hostileTrees.h"

#include "rrcExplain.h"

#include <gmock/gmock.h>

extern "C" int meaningInC(void);

namespace
{

class Hostile : public test::HostileTrees
{
protected:
    struct Told
    {
        const void* value;
        const RtxType* type;
        std::string line;
    };

    int64_t tell(const CellGroupConfig& tree, const RrcRuleContext* known, std::vector<Told>& told)
    {
        const auto sink = [](void* to, const RrcMeaning* meaning)
        {
            char line[2000];
            EXPECT_LT(rrcMeaningFormat(meaning, line, sizeof line), sizeof line);
            char path[1000];
            EXPECT_LT(rrcMeaningPathFormat(meaning, path, sizeof path), sizeof path);
            EXPECT_STRNE("", line) << path;
            EXPECT_STRNE("", meaning->clause) << path;
            EXPECT_NE(nullptr, meaning->value);
            static_cast<std::vector<Told>*>(to)->push_back(
                {meaning->value, meaning->type, std::string(path) + ": " + line});
            return 0;
        };
        return rrcExplain(&context_, &tree, known, sink, &told);
    }

    std::vector<std::string> lines(const CellGroupConfig& tree, const RrcRuleContext* known)
    {
        std::vector<Told> told;
        const int64_t count = tell(tree, known, told);
        EXPECT_EQ(count, static_cast<int64_t>(told.size()));
        std::vector<std::string> all;
        for (const Told& one : told)
        {
            all.push_back(one.line);
        }
        return all;
    }
};

TEST_F(Hostile, RandomTrees)
{
    std::size_t all = 0;
    for (uint64_t seed = 0; seed < 300; ++seed)
    {
        SCOPED_TRACE("seed " + std::to_string(seed));
        RrcRuleContext known{};
        known.band = seed % 3 == 0 ? 78 : 0;
        const CellGroupConfig& tree = any(seed);
        const std::vector<std::string> first = lines(tree, &known);
        ASSERT_THAT(lines(tree, &known), testing::ElementsAreArray(first));
        all += first.size();
        rtFreeContext(&context_);
    }
    EXPECT_GT(all, 10000U);
}

TEST_F(Hostile, RandomTreesWithAnEarlierConfiguration)
{
    unsigned applied = 0;
    for (uint64_t seed = 0; seed < 200; ++seed)
    {
        SCOPED_TRACE("seed " + std::to_string(seed));
        RrcRuleContext known{};
        const CellGroupConfig& tree = withPrevious(seed, known);
        std::vector<Told> told;
        const int64_t result = tell(tree, &known, told);
        applied += result >= 0 ? 1 : 0;
        if (result < 0)
        {
            EXPECT_EQ(context_.error.status, result);
            EXPECT_TRUE(told.empty());
        }
        rtFreeContext(&context_);
    }
    EXPECT_GT(applied, 50U);
}

// Each place alone means what the walk says of it.
TEST_F(Hostile, OnePlaceIsToldAsInTheWalk)
{
    for (uint64_t seed = 0; seed < 5; ++seed)
    {
        const CellGroupConfig& tree = random(seed, 1500, 2);
        std::vector<Told> told;
        ASSERT_GE(tell(tree, nullptr, told), 0);
        ASSERT_FALSE(told.empty());
        for (const Told& one : told)
        {
            std::string line;
            const auto sink = [](void* to, const RrcMeaning* meaning)
            {
                char text[2000];
                char path[1000];
                (void)rrcMeaningPathFormat(meaning, path, sizeof path);
                (void)rrcMeaningFormat(meaning, text, sizeof text);
                *static_cast<std::string*>(to) = std::string(path) + ": " + text;
                return 0;
            };
            ASSERT_EQ(1, rrcExplainValue(&context_, &tree, nullptr, one.value, one.type, sink, &line)) << one.line;
            ASSERT_EQ(one.line, line);
        }
    }
}

// Either all meanings, or the heap is said to be exhausted and nothing is told.
TEST_F(Hostile, ExhaustedHeap)
{
    const CellGroupConfig& tree = random(12, 5000, 0);
    const auto count = [](void* arg, const RrcMeaning*)
    {
        ++*static_cast<int64_t*>(arg);
        return 0;
    };
    const int64_t all = rrcExplain(&context_, &tree, nullptr, nullptr, nullptr);
    ASSERT_GT(all, 0);
    bool isEnough = false;
    unsigned refused = 0;
    for (size_t limit = 0; !isEnough; limit += limit < 4096 ? 64 : 4096)
    {
        rtxMemHeapSetLimit(&context_, limit);
        int64_t told = 0;
        const int64_t result = rrcExplain(&context_, &tree, nullptr, count, &told);
        isEnough = result >= 0;
        EXPECT_EQ(isEnough ? all : int64_t{RTX_E_HEAP}, result) << limit;
        EXPECT_EQ(isEnough ? all : 0, told);
        refused += isEnough ? 0 : 1;
    }
    EXPECT_GT(refused, 0U);
}

TEST_F(Hostile, GivesItsHeapBack)
{
    const CellGroupConfig& tree = random(11, 3000, 0);
    const auto heap = context_.heap;
    EXPECT_GE(rrcExplain(&context_, &tree, nullptr, nullptr, nullptr), 0);
    EXPECT_EQ(heap.blocks, context_.heap.blocks);
    EXPECT_EQ(heap.next, context_.heap.next);
}

TEST_F(Hostile, Arguments)
{
    const CellGroupConfig tree{};
    EXPECT_EQ(RTX_E_NULL, rrcExplain(nullptr, &tree, nullptr, nullptr, nullptr));
    EXPECT_EQ(RTX_E_NULL, rrcExplain(&context_, nullptr, nullptr, nullptr, nullptr));
    EXPECT_EQ(RTX_E_NULL, rrcExplainValue(&context_, &tree, nullptr, nullptr, nullptr, nullptr, nullptr));
    EXPECT_EQ(0, rrcExplainValue(&context_, &tree, nullptr, &tree, asn1Type_CellGroupConfig(), nullptr, nullptr));
    EXPECT_EQ(0, rrcExplain(&context_, &tree, nullptr, nullptr, nullptr));
}

TEST_F(Hostile, EndsWhenAskedTo)
{
    const CellGroupConfig& tree = random(12, 3000, 3);
    const auto end = [](void* arg, const RrcMeaning*)
    {
        ++*static_cast<int*>(arg);
        return 1;
    };
    int told = 0;
    EXPECT_EQ(1, rrcExplain(&context_, &tree, nullptr, end, &told));
    EXPECT_EQ(1, told);
}

TEST(MeaningInC, IsTold)
{
    EXPECT_EQ(1, meaningInC());
}

} // namespace
