// Trees that may be anything: no crash, no endless walk, the same picture each time, well-formed as far as brackets
// tell, and nothing but the context's heap.
#include "../support/hostileTrees.h"

#include "rrcDraw.h"

#include <gmock/gmock.h>

namespace
{

class Hostile : public test::HostileTrees
{
protected:
    static void expectSvg(const std::string& svg)
    {
        EXPECT_TRUE(svg.starts_with("<svg xmlns=\"http://www.w3.org/2000/svg\""));
        EXPECT_TRUE(svg.ends_with("</svg>\n"));
        EXPECT_EQ(std::string::npos, svg.find("nan"));
        EXPECT_EQ(std::string::npos, svg.find("inf\""));
        EXPECT_EQ(std::count(svg.begin(), svg.end(), '<'), std::count(svg.begin(), svg.end(), '>'));
    }
};

TEST_F(Hostile, RandomTrees)
{
    for (uint64_t seed = 0; seed < TREES; ++seed)
    {
        SCOPED_TRACE("seed " + std::to_string(seed));
        RrcRuleContext known{};
        known.band = seed % 3 == 0 ? 78 : 0;
        const CellGroupConfig& tree = any(seed);
        const RrcDrawOptions options = {seed % 5 == 0 ? static_cast<unsigned>(seed) : 0U,
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
        RrcRuleContext known{};
        const CellGroupConfig& tree = withPrevious(seed, known);
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
