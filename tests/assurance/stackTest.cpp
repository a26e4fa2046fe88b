// The stack that each public call takes at most, and that no element of the schema can lie in one of its own type, so
// that no walk over a tree is deeper than the schema.
#include "PaintedStack.h"
#include "calls.h"

#include "NR-RRC-Tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <utility>

namespace
{

// In octets, of an optimised build on a system of 64 bits. What a base station calls has a bound of its own.
constexpr struct
{
    const char* call;
    std::size_t octets;
} bounds[] = {{"rrcComposeCellGroupCfg", 32 * 1024}, // with the first 16 KiB of its heap
              {"rrcComposeCellGroupTree", 4 * 1024},
              {"rrcEncodeCellGroupCfg", 32 * 1024}, // the same
              {"rrcEncodeCellGroupCfgInMemory", 8 * 1024},
              {"rrcComposeCellGroupDelta", 64 * 1024}, // the same
              {"asn1PE", 2 * 1024},
              {"asn1PD", 8 * 1024},
              {"rtxDecode", 8 * 1024},
              {"rtxTrace", 8 * 1024},
              {"rtxFind", 12 * 1024},
              {"rtxCheck", 8 * 1024},
              {"rtxCompare", 12 * 1024},
              {"rtxEqual", 12 * 1024},
              {"rtxState", 20 * 1024},
              {"rtxApply", 20 * 1024},
              {"rtxDiff", 32 * 1024},
              {"rtxDeltaHolds", 20 * 1024},
              {"rtxToJson", 24 * 1024},
              {"rtxToValueNotation", 24 * 1024},
              {"rtxToFlat", 24 * 1024},
              {"rtxToFlatWithRemarks", 24 * 1024},
              {"asn1Print", 24 * 1024},
              {"asn1PrintTo", 24 * 1024},
              {"rrcRecordToJson", 12 * 1024},
              {"rrcRecordToCpp", 12 * 1024},
              {"rrcCheckCellGroupCfg", 24 * 1024},
              {"rrcDecomposeCellGroupCfg", 32 * 1024},
              {"rrcCheckRules", 24 * 1024},
              {"rrcCheckSomeRules", 24 * 1024},
              {"rrcExplain", 24 * 1024},
              {"rrcExplainValue", 24 * 1024}};
constexpr std::size_t ofAnyOther = 64 * 1024;

std::size_t boundOf(const assurance::Call& call)
{
    const auto* const found = std::find_if(std::begin(bounds), std::end(bounds),
                                           [&](const auto& bound) { return std::string(bound.call) == call.name; });
    return found == std::end(bounds) ? ofAnyOther : found->octets;
}

class StackStage : public assurance::Stage
{
public:
    void run(OSCTXT* /*context*/, const std::function<void()>& call) override
    {
        most_ = std::max(most_, stack_.use(call));
    }
    std::size_t takeMost()
    {
        return std::exchange(most_, 0);
    }

private:
    assurance::PaintedStack stack_;
    std::size_t most_ = 0;
};

TEST(Stack, is_measured)
{
    assurance::PaintedStack stack;
    const auto take = []
    {
        volatile char room[50000];
        room[0] = 1;
        EXPECT_EQ(room[0], 1);
    };
    EXPECT_GE(stack.use(take), 50000U);
    EXPECT_LT(stack.use([] {}), 100U);
}

TEST(Stack, of_each_call_is_bounded)
{
    const std::vector<assurance::Input> inputs = assurance::inputs(RECORDS);
    StackStage stage;
    std::printf("| Call | stack, octets | bound |\n|---|--:|--:|\n");
    std::map<std::string, std::size_t> seen;
    for (const assurance::Call& call : assurance::calls())
    {
        for (const assurance::Input& input : inputs)
        {
            (void)resultOf(call, input); // what is bound at the first call
            (void)resultOf(call, input, stage);
        }
        const std::size_t most = stage.takeMost();
        seen[call.name] = most;
        std::printf("| `%s` | %zu | %zu |\n", call.name, most, boundOf(call));
        EXPECT_LE(most, boundOf(call)) << call.name;
    }
    for (const auto& bound : bounds)
    {
        EXPECT_GT(seen[bound.call], bound.octets / 16) << bound.call;
    }
}

// The types around one another, each with the depth below it.
class Depth
{
public:
    unsigned below(const rtx::Type& type)
    {
        const auto known = depths_.find(&type);
        if (known != depths_.end())
        {
            return known->second;
        }
        EXPECT_TRUE(open_.insert(&type).second) << type.name << " holds itself";
        unsigned depth = 0;
        const bool hasMembers = type.kind == rtx::Kind::Sequence || type.kind == rtx::Kind::Choice;
        const bool hasElements = type.kind == rtx::Kind::Array || type.kind == rtx::Kind::List;
        for (unsigned i = 0; i < (hasMembers ? type.memberCount : hasElements ? 1U : 0U); ++i)
        {
            if (open_.count(type.members[i].type) != 0)
            {
                ADD_FAILURE() << type.members[i].type->name << " holds itself";
                continue;
            }
            depth = std::max(depth, 1 + below(*type.members[i].type));
        }
        open_.erase(&type);
        return depths_[&type] = depth;
    }

    std::size_t count() const
    {
        return depths_.size();
    }

private:
    std::map<const rtx::Type*, unsigned> depths_;
    std::set<const rtx::Type*> open_;
};

TEST(Schema, holds_no_type_in_itself)
{
    Depth depth;
    const unsigned most = depth.below(nr_rrc::type_CellGroupConfig);
    std::printf("%zu types, %u deep\n", depth.count(), most);
    EXPECT_GT(depth.count(), 500U);
    EXPECT_GT(most, 10U);
    EXPECT_LT(most, static_cast<unsigned>(RTX_MAX_DEPTH));
}

} // namespace
