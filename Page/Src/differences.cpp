#include "differences.h"

#include "whileMemory.h"

namespace page
{
namespace
{

struct Comparison
{
    const Tree& a;
    const Tree& b;
    std::vector<Difference> all;
    text::Sinks sinks;
};

// Where it stands in one tree, as far as that tree has it.
Difference::Place placeOf(const Tree& tree, const RtxDifference& difference, OSUINT32 RtxDifferenceStep::*index)
{
    std::vector<Step> steps;
    const bool isWhole = difference.depth <= RTX_MAX_DEPTH; // else the outer steps are left out
    for (OSUINT32 i = isWhole && difference.depth != 0 ? difference.depth - 1 : 0; i-- != 0;) // the first is the whole
    {
        const RtxDifferenceStep& step = difference.path[i];
        if (step.name == nullptr && step.*index == RTX_NO_INDEX)
        {
            std::span<const Step> before = steps;
            return {tree.find(before), false};
        }
        steps.push_back({step.name == nullptr ? std::string_view() : step.name, step.*index});
    }
    std::span<const Step> left = steps;
    const std::uint32_t node = tree.find(left);
    return {node, left.empty()};
}

void add(Comparison& comparison, const RtxDifference* difference)
{
    std::string text(rtxDifferenceFormat(difference, nullptr, 0) + 1, '\0');
    (void)rtxDifferenceFormat(difference, text.data(), text.size());
    text.pop_back(); // the terminator
    const std::size_t colon = text.find(": ");
    comparison.all.push_back({text.substr(0, colon), text.substr(colon + 2),
                              placeOf(comparison.a, *difference, &RtxDifferenceStep::indexA),
                              placeOf(comparison.b, *difference, &RtxDifferenceStep::indexB)});
}

} // namespace

std::vector<Difference> differencesOf(const Tree& a, const Tree& b)
{
    Comparison comparison{a, b, {}, {}};
    const auto sink = [](void* arg, const RtxDifference* difference)
    {
        auto& to = *static_cast<Comparison*>(arg);
        return to.sinks.run(
            [&]
            {
                add(to, difference);
                return 0;
            });
    };
    (void)rtxCompare(&a.context(), &b.context(), asn1Type_CellGroupConfig(), &a.value(), &b.value(), sink, &comparison);
    comparison.sinks.finish();
    return std::move(comparison.all);
}

} // namespace page
