// Every rule by its cases: ruleCases.h.
#include "flatTrees.h"
#include "ruleCases.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <memory>
#include <set>
#include <sstream>

namespace test
{

static void PrintTo(const RuleCase& one, std::ostream* out)
{
    *out << one.rule;
}

void inDelta(RrcRuleContext& known)
{
    known.extent = RRC_RULE_EXTENT_DELTA;
}

void knowingNothing(RrcRuleContext& known)
{
    known = {};
}

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

const std::vector<RuleCase>& cases()
{
    static const CaseTable table = []
    {
        CaseTable made;
        for (const auto group :
             {genCases, rlcCases, macCases, phyCases, bwpCases, pdcchCases, pdschCases, pucchCases, puschCases,
              srsCases, csiCases, tciCases, tddCases, syncCases, rachCases, scellCases, ssbCases})
        {
            group(made);
        }
        return made;
    }();
    return table.all();
}

std::vector<std::string> linesOf(std::istream&& text)
{
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);)
    {
        line.erase(0, line.find_first_not_of(' '));
        if (!line.empty() && line[0] != '#')
        {
            lines.push_back(line);
        }
    }
    return lines;
}

const std::vector<std::string>& wholeCell()
{
    static const std::vector<std::string> lines = linesOf(std::ifstream("tests/Rules/wholeCell.flat"));
    return lines;
}

bool beginsWith(std::string_view path, std::string_view beginning)
{
    return path.starts_with(beginning) &&
           (path.size() == beginning.size() || path[beginning.size()] == '.' || path[beginning.size()] == '[');
}

// The elements behind one that was taken away move up.
void renumber(std::vector<std::string>& lines, const std::string& path)
{
    const std::size_t open = path.rfind('[');
    if (path.back() != ']')
    {
        return;
    }
    const std::size_t gone = std::stoul(path.substr(open + 1));
    for (std::string& line : lines)
    {
        if (line.starts_with(path.substr(0, open + 1)))
        {
            const std::size_t close = line.find(']', open);
            const std::size_t number = std::stoul(line.substr(open + 1));
            line.replace(open + 1, close - open - 1, std::to_string(number - (number > gone ? 1 : 0)));
        }
    }
}

// A mistyped change must not go unnoticed: what is taken away has to be there.
void change(std::vector<std::string>& lines, const std::string& changes)
{
    for (const std::string& changed : linesOf(std::istringstream(changes)))
    {
        if (changed.starts_with("+ "))
        {
            const std::vector<std::string> more = linesOf(std::ifstream("tests/Rules/" + changed.substr(2)));
            ASSERT_FALSE(more.empty()) << changed;
            for (const std::string& line : more)
            {
                change(lines, line);
            }
            continue;
        }
        const std::size_t equals = changed.find(" = ");
        ASSERT_NE(equals, std::string::npos) << changed;
        const std::string path = changed.substr(0, equals);
        const bool isAbsent = changed.substr(equals) == " = absent";
        const auto isIt = [&](const std::string& line)
        {
            const std::string_view there = std::string_view(line).substr(0, line.find(" = "));
            return isAbsent ? beginsWith(there, path) : there == path;
        };
        const auto at = std::find_if(lines.begin(), lines.end(), isIt);
        if (isAbsent)
        {
            ASSERT_NE(at, lines.end()) << "nothing begins with " << path;
            std::erase_if(lines, isIt);
            renumber(lines, path);
        }
        else if (at != lines.end())
        {
            *at = changed;
        }
        else
        {
            lines.push_back(changed);
        }
    }
}

class RuleTest : public FlatTrees
{
protected:
    struct Told
    {
        std::string rule;
        OSUINT8 severity;
        std::string place;
        std::string line;
        std::string advice;
        OSUINT32 decidedBy;
    };

    std::vector<Told> check(const CellGroupConfig& tree, const RrcRuleContext& known)
    {
        std::vector<Told> all;
        const auto sink = [](void* to, const RrcRuleFinding* finding)
        {
            std::string place;
            for (OSUINT32 i = 0; i < finding->depth; ++i)
            {
                const RrcRuleStep& step = finding->path[i];
                place += step.name == nullptr ? "[" + std::to_string(step.index) + "]"
                                              : (place.empty() ? "" : ".") + std::string(step.name);
            }
            char line[1000];
            rrcRuleFindingFormat(finding, line, sizeof line);
            static_cast<std::vector<Told>*>(to)->push_back(
                {finding->rule, finding->severity, place, line, finding->advice, finding->decidedBy});
            return 0;
        };
        const int64_t count = rrcCheckRules(&context_, &tree, &known, sink, &all);
        EXPECT_EQ(count, std::count_if(all.begin(), all.end(),
                                       [](const Told& told) { return told.severity != RRC_RULE_UNDECIDED; }));
        return all;
    }
};

class RuleCases : public RuleTest, public testing::WithParamInterface<RuleCase>
{
};

TEST_P(RuleCases, Told)
{
    const RuleCase& given = GetParam();
    const std::string group = std::string(given.rule).substr(0, std::string(given.rule).find('-'));
    SCOPED_TRACE("cases of " + group + ":" + std::to_string(given.line) + ": " + given.rule + "\n" + given.changes);
    RrcRuleContext known{};
    known.extent = RRC_RULE_EXTENT_FULL;
    std::vector<std::string> lines = wholeCell();
    if (given.hasEarlier)
    {
        change(lines, given.before);
        known.previous = read(lines);
        lines = {"cellGroupId = 0"};
    }
    change(lines, given.changes);
    if (given.known)
    {
        given.known(known);
    }
    const CellGroupConfig* const tree = read(lines);
    if (HasFailure())
    {
        return;
    }

    bool isUndecided = false;
    std::vector<Told> mine;
    for (const Told& told : check(*tree, known))
    {
        if (told.rule == given.rule && told.severity == RRC_RULE_UNDECIDED)
        {
            isUndecided = true;
            EXPECT_NE(0U, told.decidedBy);
        }
        else if (told.rule == given.rule)
        {
            mine.push_back(told);
        }
        else
        {
            EXPECT_NE(RRC_RULE_ERROR, told.severity) << told.line;
        }
    }
    for (const Told& told : mine)
    {
        if (given.outcome == Outcome::Fires)
        {
            continue;
        }
        ADD_FAILURE() << told.line;
    }
    if (given.outcome == Outcome::Undecided)
    {
        EXPECT_TRUE(isUndecided);
    }
    if (given.outcome != Outcome::Fires)
    {
        return;
    }
    ASSERT_EQ(given.times, mine.size());
    const RrcRule* const rule = rrcRuleById(given.rule);
    ASSERT_NE(nullptr, rule);
    EXPECT_EQ(given.place, mine[0].place) << mine[0].line;
    const OSUINT8 severity =
        given.severity == RRC_RULE_UNDECIDED ? rule->severity : static_cast<OSUINT8>(given.severity);
    EXPECT_EQ(severity, mine[0].severity) << mine[0].line;
    EXPECT_LE(mine[0].severity, rule->severity);
    EXPECT_THAT(mine[0].line, testing::HasSubstr(given.words));
    EXPECT_FALSE(mine[0].advice.empty());
}

std::string nameOf(const testing::TestParamInfo<RuleCase>& info)
{
    std::string name = info.param.rule;
    std::replace(name.begin(), name.end(), '-', '_');
    return name + "_" + std::to_string(info.param.line) + "_" + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(All, RuleCases, testing::ValuesIn(cases()), nameOf);

TEST_F(RuleTest, WholeCellIsClean)
{
    RrcRuleContext known{};
    known.extent = RRC_RULE_EXTENT_FULL;
    for (const Told& told : check(*read(wholeCell()), known))
    {
        EXPECT_EQ(RRC_RULE_UNDECIDED, told.severity) << told.line;
    }
}

TEST_F(RuleTest, ItsVariantsAreClean)
{
    RrcRuleContext known{};
    known.extent = RRC_RULE_EXTENT_FULL;
    for (const char* const changes : {ADD_SCELL, ADD_SCELL_WITH_UPLINK, AS_FR2, AS_106_RB, AS_SCG})
    {
        std::vector<std::string> lines = wholeCell();
        change(lines, changes);
        for (const Told& told : check(*read(lines), known))
        {
            EXPECT_EQ(RRC_RULE_UNDECIDED, told.severity) << told.line;
        }
    }
}

// What a choice holds that says no alternative, nobody knows: no rule makes a mistake of it.
TEST_F(RuleTest, OfABrokenChoiceNothingIsWrong)
{
    RrcRuleContext known{};
    known.extent = RRC_RULE_EXTENT_FULL;
    std::vector<std::string> lines = wholeCell();
    change(lines, rrcRuleById("csi-port-indication")->good);
    CellGroupConfig* const tree = read(lines);
    const auto first = [](const OSRTDList& list)
    {
        return list.head->data;
    };
    const CSI_MeasConfig& csi = *tree->spCellConfig.spCellConfigDedicated.csi_MeasConfig.u.setup;
    const auto* const report = static_cast<CSI_ReportConfig*>(first(csi.csi_ReportConfigToAddModList));
    const auto* const state = static_cast<CSI_AperiodicTriggerState*>(first(*csi.aperiodicTriggerStateList.u.setup));
    OSUINT32* const tags[] = {
        &static_cast<PortIndexFor8Ranks*>(first(report->non_PMI_PortIndication))->t,
        &static_cast<CSI_AssociatedReportConfigInfo*>(first(state->associatedReportConfigInfoList))
             ->resourcesForChannel.t,
        &tree->spCellConfig.reconfigurationWithSync.spCellConfigCommon.uplinkConfigCommon.initialUplinkBWP
             .rach_ConfigCommon.u.setup->ssb_perRACH_OccasionAndCB_PreamblesPerSSB.t};
    for (OSUINT32* const tag : tags)
    {
        const OSUINT32 was = *tag;
        for (const OSUINT32 none : {0U, 99U})
        {
            *tag = none;
            for (const Told& told : check(*tree, known))
            {
                EXPECT_NE(RRC_RULE_ERROR, told.severity) << told.line;
            }
        }
        *tag = was;
    }
}

// A rule that nothing makes fire, or nothing keeps silent, is not tested.
TEST(RuleTable, EachRuleHasItsCases)
{
    std::set<std::string> firing;
    std::set<std::string> silent;
    for (const RuleCase& one : cases())
    {
        EXPECT_NE(nullptr, rrcRuleById(one.rule)) << one.rule << " is no rule";
        (one.outcome == Outcome::Fires ? firing : silent).insert(one.rule);
    }
    for (OSUINT32 i = 0; i < rrcRuleCount(); ++i)
    {
        const std::string id = rrcRuleAt(i)->id;
        EXPECT_TRUE(firing.contains(id)) << id << " has no case in which it fires";
        EXPECT_TRUE(silent.contains(id)) << id << " has no case in which it is silent";
    }
}

TEST(RuleTable, IsWhole)
{
    std::set<std::string> ids;
    for (OSUINT32 i = 0; i < rrcRuleCount(); ++i)
    {
        const RrcRule& rule = *rrcRuleAt(i);
        SCOPED_TRACE(rule.id);
        EXPECT_TRUE(ids.insert(rule.id).second);
        EXPECT_EQ(&rule, rrcRuleById(rule.id));
        EXPECT_EQ(std::string::npos, std::string(rule.id).find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-"));
        EXPECT_GE(rule.severity, RRC_RULE_NOTICE);
        EXPECT_LE(rule.severity, RRC_RULE_ERROR);
        for (const char* const text : {rule.statement, rule.advice, rule.clause, rule.bad, rule.good, rule.since})
        {
            EXPECT_STRNE("", text);
        }
        EXPECT_EQ('.', std::string(rule.statement).back());
        EXPECT_EQ('.', std::string(rule.advice).back());
        EXPECT_STRNE(rule.bad, rule.good);
    }
    EXPECT_EQ(nullptr, rrcRuleAt(rrcRuleCount()));
    EXPECT_EQ(nullptr, rrcRuleById("no-such-rule"));
}

} // namespace
} // namespace test
