// Trees that may be anything: no crash, no endless walk, the same picture each time, well-formed as far as brackets
// tell, and nothing but the context's heap.
#include "../Asn/randomTree.h"

#include "rrcDraw.h"

#include <gmock/gmock.h>

namespace
{

class Hostile : public testing::Test
{
protected:
    Hostile()
    {
        rtxInitContext(&context_);
    }
    ~Hostile() override
    {
        rtFreeContext(&context_);
    }

    CellGroupConfig& random(uint64_t seed, unsigned budget, unsigned faults)
    {
        test::RandomTree::Options options;
        options.budget = budget;
        options.sameIdentity = seed % 2 == 0;
        test::RandomTree random(context_, seed, options);
        const RtxType& type = *asn1Type_CellGroupConfig();
        auto& tree = *static_cast<CellGroupConfig*>(random.make(type));
        if (faults != 0)
        {
            (void)random.spoil(type, &tree, faults);
        }
        return tree;
    }

    static void expectSvg(const std::string& svg)
    {
        EXPECT_TRUE(svg.starts_with("<svg xmlns=\"http://www.w3.org/2000/svg\""));
        EXPECT_TRUE(svg.ends_with("</svg>\n"));
        EXPECT_EQ(std::string::npos, svg.find("nan"));
        EXPECT_EQ(std::string::npos, svg.find("inf\""));
        EXPECT_EQ(std::count(svg.begin(), svg.end(), '<'), std::count(svg.begin(), svg.end(), '>'));
    }

    OSCTXT context_;
};

TEST_F(Hostile, RandomTrees)
{
    for (uint64_t seed = 0; seed < TREES; ++seed)
    {
        SCOPED_TRACE("seed " + std::to_string(seed));
        RrcRuleContext known{};
        known.band = seed % 3 == 0 ? 78 : 0;
        const CellGroupConfig& tree = random(seed, 2000, seed % 4 == 0 ? 0 : static_cast<unsigned>(seed % 7));
        const draw::Options options = {seed % 5 == 0 ? static_cast<unsigned>(seed) : 0U,
                                       seed % 3 == 0 ? static_cast<unsigned>(seed % 200) : 0U};
        const auto heap = context_.heap;
        const std::string first = draw::svg(context_, tree, &known, options);
        EXPECT_EQ(heap.blocks, context_.heap.blocks);
        EXPECT_EQ(heap.next, context_.heap.next);
        expectSvg(first);
        ASSERT_EQ(first, draw::svg(context_, tree, &known, options));
        rtFreeContext(&context_);
    }
}

TEST_F(Hostile, RandomTreesWithAnEarlierConfiguration)
{
    unsigned applied = 0;
    for (uint64_t seed = 0; seed < TREES / 5; ++seed)
    {
        SCOPED_TRACE("seed " + std::to_string(seed));
        CellGroupConfig& earlier = random(seed, 1000, seed % 3 == 0 ? 2 : 0);
        CellGroupConfig& tree = random(seed % 2 == 0 ? seed : seed + 2000, 500, seed % 5 == 0 ? 2 : 0);
        tree.cellGroupId = earlier.cellGroupId;
        RrcRuleContext known{};
        known.previous = &earlier;
        const std::string svg = draw::svg(context_, tree, &known, {});
        if (svg.empty())
        {
            EXPECT_NE(RTX_OK, context_.error.status);
        }
        else
        {
            ++applied;
            expectSvg(svg);
        }
        rtFreeContext(&context_);
    }
    EXPECT_GT(applied, TREES / 30U);
}

TEST_F(Hostile, NothingIsAPicture)
{
    const CellGroupConfig tree{};
    expectSvg(draw::svg(context_, tree, nullptr, {}));
}

} // namespace
