#include "ruleTable.h"

#include "rows.h"
#include "style.h"

#include <algorithm>

namespace tool
{

std::vector<const RrcRule*> allRules()
{
    std::vector<const RrcRule*> all;
    for (OSUINT32 i = 0; i < rrcRuleCount(); ++i)
    {
        all.push_back(rrcRuleAt(i));
    }
    return all;
}

std::vector<std::string_view> ruleIds()
{
    std::vector<std::string_view> ids;
    for (const RrcRule* const rule : allRules())
    {
        ids.emplace_back(rule->id);
    }
    return ids;
}

std::vector<const RrcRecordRule*> allRecordRules()
{
    return {rrcRecordRules, rrcRecordRules + rrcRecordRuleCount};
}

std::vector<std::string_view> recordRuleIds()
{
    std::vector<std::string_view> ids;
    for (const RrcRecordRule* const rule : allRecordRules())
    {
        ids.emplace_back(rule->id);
    }
    return ids;
}

std::string recordStatement(const RrcRecordRule& rule)
{
    return std::string(rule.field) + (rule.goesOut == nullptr ? "" : std::string(": ") + rule.goesOut);
}

const char* recordSeverityName(const RrcRecordRule& rule)
{
    return rule.severity == 0 ? "fact" : rrcRuleSeverityName(rule.severity);
}

std::vector<std::string> exampleLines(std::string_view example)
{
    std::vector<std::string> lines;
    while (!example.empty())
    {
        const std::string_view line = example.substr(0, example.find('\n'));
        example.remove_prefix(std::min(line.size() + 1, example.size()));
        if (!line.empty())
        {
            lines.push_back("CellGroupConfig." + std::string(line));
        }
    }
    return lines;
}

namespace
{

// "CellGroupConfig.mac-CellGroupConfig" of a line below it.
std::string region(const std::string& line)
{
    return line.substr(0, line.find_first_of(".[ ", line.find('.') + 1));
}

std::string lines(const std::string& title, const std::vector<std::string>& all)
{
    std::string text = "  " + title + "\n";
    for (const std::string& line : all)
    {
        text += "    " + line + "\n";
    }
    return text;
}

} // namespace

std::string idText(const std::string& id, const IdWords& words, bool color)
{
    std::string text = styled(id, Style::Bold, color) + "\n" + rows("statement", words.statement);
    text += words.advice.empty() ? "" : rows("what to do", words.advice);
    text += words.clause.empty() ? "" : rows("clause", words.clause);
    return text;
}

std::string recordRuleText(const RrcRecordRule& rule, bool color)
{
    std::string places;
    for (const char* const* place = rule.places; place != nullptr && *place != nullptr; ++place)
    {
        places += (places.empty() ? "" : " ") + std::string(*place);
    }
    std::string text = styled(rule.id, Style::Bold, color) + "\n" + row("severity", recordSeverityName(rule));
    text += rows("statement", recordStatement(rule)) + rows("what to do", rule.instead);
    text += places.empty() ? "" : rows("of", places);
    text += rule.region == nullptr ? "" : row("group", rule.region);
    return text + lines("to silence it", {"cellgroupcfg check --disable " + std::string(rule.id)});
}

std::string ruleText(const RrcRule& rule, bool color)
{
    const std::string id = rule.id;
    std::string text = styled(id, Style::Bold, color) + "\n";
    text += row("severity", rrcRuleSeverityName(rule.severity));
    text += rows("statement", rule.statement);
    text += rows("what to do", rule.advice);
    text += rows("clause", rule.clause);
    text += row("group", rrcRuleGroupTitle(rule.id));
    text += row("since", rule.since);
    const std::string given = rule.given;
    text += rows("examples", "change a cell group that a UE takes; 'absent' takes away" +
                                 (given.empty() ? "." : ". Given besides: " + given));
    const std::vector<std::string> bad = exampleLines(rule.bad);
    text += lines("bad", bad);
    text += lines("good", exampleLines(rule.good));
    text += lines("to silence it", {"cellgroupcfg check --disable " + id});
    text += lines("or, with the reason, in .cellgroupcfg.toml",
                  {"[[silence]]", "rule = \"" + id + "\"",
                   "path = \"" + region(bad.front()) + "\" # left out: everywhere", "reason = \"why it is meant so\""});
    return text;
}

} // namespace tool
