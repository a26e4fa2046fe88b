// rules: the table of rules, what holds between the members of a cell group.
#include "commands.h"
#include "nearest.h"
#include "ruleTable.h"
#include "style.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace tool
{
namespace
{

using Json = nlohmann::ordered_json;

bool isOf(const RrcRule& rule, const std::string& prefix)
{
    return std::string_view(rule.id).starts_with(prefix);
}

// A prefix that no id has is a mistake.
void expectRules(const std::vector<const RrcRule*>& rules, const std::string& prefix)
{
    if (std::any_of(rules.begin(), rules.end(), [&](const RrcRule* rule) { return isOf(*rule, prefix); }))
    {
        return;
    }
    std::vector<std::string_view> known = ruleIds();
    for (const std::string_view id : ruleIds())
    {
        known.push_back(id.substr(0, id.find('-')));
    }
    const auto close = text::nearest(prefix, known);
    throw Failure(Exit::Usage, "no rule's id begins with '" + prefix + "'" +
                                   (close ? "; did you mean " + std::string(*close) + "?" : ""));
}

Json jsonOf(const RrcRule& rule)
{
    return {{"id", rule.id},
            {"group", rrcRuleGroupTitle(rule.id)},
            {"severity", rrcRuleSeverityName(rule.severity)},
            {"statement", rule.statement},
            {"advice", rule.advice},
            {"clause", rule.clause},
            {"given", rule.given},
            {"bad", exampleLines(rule.bad)},
            {"good", exampleLines(rule.good)},
            {"since", rule.since}};
}

std::string listed(const std::vector<const RrcRule*>& rules, bool color)
{
    std::size_t widest = 0;
    for (const RrcRule* const rule : rules)
    {
        widest = std::max(widest, std::string_view(rule->id).size());
    }
    constexpr std::size_t severities = std::string_view("warning").size();
    std::string text;
    for (const RrcRule* const rule : rules)
    {
        const std::string id = rule->id;
        const std::string severity = rrcRuleSeverityName(rule->severity);
        text += styled(id, Style::Bold, color) + std::string(widest - id.size() + 2, ' ') + severity +
                std::string(severities - severity.size() + 2, ' ') + rule->statement + "\n";
    }
    return text;
}

} // namespace

void rules(Session& session, const Operands& prefixes, bool json)
{
    std::vector<const RrcRule*> shown = allRules();
    for (const std::string& prefix : prefixes)
    {
        expectRules(shown, prefix);
    }
    if (!prefixes.empty())
    {
        std::erase_if(shown,
                      [&](const RrcRule* rule)
                      {
                          return std::none_of(prefixes.begin(), prefixes.end(),
                                              [&](const std::string& prefix) { return isOf(*rule, prefix); });
                      });
    }
    if (!json)
    {
        session.put(listed(shown, session.color()));
        return;
    }
    Json all = Json::array();
    for (const RrcRule* const rule : shown)
    {
        all.push_back(jsonOf(*rule));
    }
    constexpr int indent = 2;
    session.put(Json({{"version", 1}, {"rules", std::move(all)}}).dump(indent) + "\n");
}

} // namespace tool
