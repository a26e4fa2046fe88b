// Rules on trees that may be anything: no crash, no endless walk, the same findings each time, a path that leads
// somewhere, and nothing but the context's heap.
#include "../support/hostileTrees.h"

#include "rrcRules.h"

#include <gmock/gmock.h>

#include <set>

extern "C" int64_t findingsInC(void);

namespace
{

class Hostile : public test::HostileTrees
{
protected:
    // What rrcCheckRules returns, and a line for each call of its sink.
    int64_t tryCheck(const CellGroupConfig& tree, const RrcRuleContext& known, std::vector<std::string>& lines)
    {
        const auto sink = [](void* to, const RrcRuleFinding* finding)
        {
            char line[1500];
            EXPECT_LT(rrcRuleFindingFormat(finding, line, sizeof line), sizeof line);
            static_cast<std::vector<std::string>*>(to)->push_back(line);
            EXPECT_EQ(finding->severity == RRC_RULE_UNDECIDED, finding->value == nullptr);
            EXPECT_NE(nullptr, rrcRuleById(finding->rule));
            return 0;
        };
        return rrcCheckRules(&context_, &tree, &known, sink, &lines);
    }

    std::vector<std::string> check(const CellGroupConfig& tree, const RrcRuleContext& known)
    {
        std::vector<std::string> lines;
        EXPECT_GE(tryCheck(tree, known, lines), 0);
        return lines;
    }

    std::string error() const
    {
        char line[500];
        rtxErrFormat(&context_, line, sizeof line);
        return line;
    }
};

RrcRuleContext some(uint64_t seed)
{
    RrcRuleContext known{};
    known.extent = static_cast<OSUINT8>(seed % 3);
    known.message = static_cast<OSUINT8>(seed / 3 % 6);
    known.connectivity = static_cast<OSUINT8>(seed / 18 % 4);
    known.band = seed % 5 == 0 ? 78 : 0;
    return known;
}

TEST_F(Hostile, RandomTrees)
{
    for (uint64_t seed = 0; seed < 300; ++seed)
    {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const RrcRuleContext known = some(seed);
        const CellGroupConfig& tree = any(seed);
        const std::vector<std::string> first = check(tree, known);
        ASSERT_THAT(check(tree, known), testing::ElementsAreArray(first));
        rtFreeContext(&context_);
    }
}

// A message is applied to what was there before, or it is said why not and nothing is told.
TEST_F(Hostile, RandomTreesWithAnEarlierConfiguration)
{
    unsigned applied = 0;
    for (uint64_t seed = 0; seed < 200; ++seed)
    {
        SCOPED_TRACE("seed " + std::to_string(seed));
        RrcRuleContext known = some(seed);
        const CellGroupConfig& tree = withPrevious(seed, known);
        std::vector<std::string> first;
        const int64_t result = tryCheck(tree, known, first);
        std::vector<std::string> second;
        EXPECT_EQ(result, tryCheck(tree, known, second));
        ASSERT_THAT(second, testing::ElementsAreArray(first));
        applied += result >= 0 ? 1 : 0;
        if (result < 0)
        {
            EXPECT_EQ(context_.error.status, result);
            EXPECT_TRUE(first.empty());
        }
        rtFreeContext(&context_);
    }
    EXPECT_GT(applied, 50U);
    EXPECT_LT(applied, 200U);
}

TEST_F(Hostile, TellsWhyAMessageCannotBeApplied)
{
    CellGroupConfig& tree = random(11, 500, 0);
    auto& other = *static_cast<CellGroupConfig*>(rtxMemHeapAlloc(&context_, sizeof tree));
    other = tree;
    other.cellGroupId = static_cast<OSUINT8>((tree.cellGroupId + 1) % 4);
    RrcRuleContext known{};
    known.previous = &other;
    std::vector<std::string> lines;
    EXPECT_EQ(RTX_E_DELTA, tryCheck(tree, known, lines));
    EXPECT_TRUE(lines.empty());
    EXPECT_EQ("CellGroupConfig.cellGroupId: no delta brings this: another cell group", error());

    other.cellGroupId = 255;
    EXPECT_EQ(RTX_E_RANGE, tryCheck(tree, known, lines));
    EXPECT_TRUE(lines.empty());
    EXPECT_EQ("CellGroupConfig.cellGroupId: 255 is not in 0..3", error());

    known.fullConfig = 1; // what was there before is of no meaning
    EXPECT_GE(tryCheck(tree, known, lines), 0);
}

// Either all findings, or the heap is said to be exhausted and nothing is told.
TEST_F(Hostile, ExhaustedHeap)
{
    const CellGroupConfig& tree = random(12, 5000, 0);
    const RrcRuleContext known{};
    const auto count = [](void* arg, const RrcRuleFinding*)
    {
        ++*static_cast<int64_t*>(arg);
        return 0;
    };
    int64_t all = 0;
    const int64_t findings = rrcCheckRules(&context_, &tree, &known, count, &all);
    ASSERT_GT(findings, 0);
    bool isEnough = false;
    unsigned refused = 0;
    for (size_t limit = 0; !isEnough; limit += limit < 4096 ? 16 : 1024)
    {
        rtxMemHeapSetLimit(&context_, limit);
        int64_t told = 0;
        const int64_t result = rrcCheckRules(&context_, &tree, &known, count, &told);
        isEnough = result >= 0;
        EXPECT_EQ(isEnough ? findings : int64_t{RTX_E_HEAP}, result) << limit;
        EXPECT_EQ(isEnough ? all : 0, told);
        refused += isEnough ? 0 : 1;
    }
    EXPECT_GT(refused, 100U);
}

TEST_F(Hostile, GivesItsHeapBack)
{
    rtFreeContext(&context_);
    std::vector<OSOCTET> memory(4000000);
    ASSERT_NE(0U, rtxMemHeapSetMemory(&context_, memory.data(), memory.size()));
    const CellGroupConfig& tree = random(11, 3000, 0);
    const RrcRuleContext known{};
    const OSOCTET* const next = context_.heap.next;
    EXPECT_GE(rrcCheckRules(&context_, &tree, &known, nullptr, nullptr), 0);
    EXPECT_EQ(next, context_.heap.next);
}

// Also what it had to grow by.
TEST_F(Hostile, GivesBackWhatItsHeapGrewBy)
{
    const CellGroupConfig& tree = random(11, 3000, 0);
    const RrcRuleContext known{};
    const auto heap = context_.heap;
    rtxMemHeapSetLimit(&context_, size_t{1} << 26);
    const size_t left = context_.heap.left;
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_GE(rrcCheckRules(&context_, &tree, &known, nullptr, nullptr), 0);
        EXPECT_EQ(heap.blocks, context_.heap.blocks);
        EXPECT_EQ(heap.next, context_.heap.next);
        EXPECT_EQ(left, context_.heap.left);
    }
}

TEST_F(Hostile, Arguments)
{
    const CellGroupConfig tree{};
    RrcRuleContext known{};
    EXPECT_EQ(RTX_E_NULL, rrcCheckRules(nullptr, &tree, &known, nullptr, nullptr));
    EXPECT_EQ(RTX_E_NULL, rrcCheckRules(&context_, nullptr, &known, nullptr, nullptr));
    EXPECT_GE(rrcCheckRules(&context_, &tree, nullptr, nullptr, nullptr), 0);
}

// The sink ends the check, and a choice of rules is asked for each of them.
TEST_F(Hostile, EndsWhenAskedTo)
{
    const CellGroupConfig& tree = random(7, 3000, 3);
    const auto end = [](void* arg, const RrcRuleFinding*)
    {
        ++*static_cast<int*>(arg);
        return 1;
    };
    int told = 0;
    EXPECT_EQ(1, rrcCheckRules(&context_, &tree, nullptr, end, &told));
    EXPECT_EQ(1, told);
    const auto none = [](void*, const RrcRule*)
    {
        return 0;
    };
    told = 0;
    EXPECT_EQ(0, rrcCheckSomeRules(&context_, &tree, nullptr, none, end, &told));
    EXPECT_EQ(0, told);
}

// The types that hold a number of the type: all that the walk of ssbReferences.h knows.
void collect(const RtxType& type, const std::string& wanted, std::set<const RtxType*>& seen,
             std::set<std::string>& holders)
{
    if (!seen.insert(&type).second || type.members == nullptr)
    {
        return;
    }
    const bool isList = type.kind == rtx::Kind::Array || type.kind == rtx::Kind::List;
    for (unsigned i = 0; i < (isList ? 1 : type.memberCount); ++i)
    {
        const RtxType& inner = *type.members[i].type;
        if (inner.name == wanted)
        {
            holders.insert(type.name);
        }
        collect(inner, wanted, seen, holders);
    }
}

TEST(SsbReferences, AreAllOfTheSchema)
{
    std::set<const RtxType*> seen;
    std::set<std::string> holders;
    collect(*asn1Type_CellGroupConfig(), "SSB-Index", seen, holders);
    EXPECT_THAT(holders, testing::ElementsAre(
                             "BFR-SSB-Resource", "CFRA-SSB-Resource", "CSI_SSB_ResourceSet_csi_SSB_ResourceList",
                             "PUCCH_PathlossReferenceRS_referenceSignal", "PUCCH_SpatialRelationInfo_referenceSignal",
                             "PUSCH_PathlossReferenceRS_referenceSignal", "QCL_Info_referenceSignal",
                             "RadioLinkMonitoringRS_detectionResource", "SRS_ResourceSet_pathlossReferenceRS",
                             "SRS_SpatialRelationInfo_referenceSignal"));
}

TEST(RulesInC, Find)
{
    EXPECT_EQ(1, findingsInC());
}

TEST(RuleNames, AreThere)
{
    EXPECT_STREQ("error", rrcRuleSeverityName(RRC_RULE_ERROR));
    EXPECT_STREQ("undecided", rrcRuleSeverityName(RRC_RULE_UNDECIDED));
    EXPECT_STREQ("unknown", rrcRuleSeverityName(4));
    for (OSUINT32 i = 0; i < RRC_RULE_INPUTS; ++i)
    {
        EXPECT_NE(nullptr, rrcRuleInputName(OSUINT32{1} << i));
    }
    EXPECT_EQ(nullptr, rrcRuleInputName(OSUINT32{1} << RRC_RULE_INPUTS));
    EXPECT_EQ(nullptr, rrcRuleInputName(3));
}

} // namespace
