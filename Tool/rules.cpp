// rules: the tables of rules, of what holds between the members of a cell group and of records.
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

// A prefix that no id has is a mistake.
void expectRules(const std::string& prefix)
{
    std::vector<std::string_view> known = ruleIds();
    const std::vector<std::string_view> ofRecords = recordRuleIds();
    known.insert(known.end(), ofRecords.begin(), ofRecords.end());
    if (std::any_of(known.begin(), known.end(), [&](std::string_view id) { return id.starts_with(prefix); }))
    {
        return;
    }
    std::vector<std::string_view> near = known;
    for (const std::string_view id : known)
    {
        near.push_back(id.substr(0, id.find('-')));
    }
    const auto close = text::nearest(prefix, near);
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

Json jsonOf(const RrcRecordRule& rule)
{
    Json places = Json::array();
    for (const char* const* place = rule.places; place != nullptr && *place != nullptr; ++place)
    {
        places.push_back(*place);
    }
    return {{"id", rule.id},
            {"region", rule.region == nullptr ? "" : rule.region},
            {"severity", recordSeverityName(rule)},
            {"field", rule.field},
            {"goesOut", rule.goesOut},
            {"instead", rule.instead},
            {"places", places}};
}

struct Row
{
    std::string id;
    std::string severity;
    std::string statement;
};

std::string listed(const std::vector<Row>& rows, bool color)
{
    std::size_t widest = 0;
    for (const Row& row : rows)
    {
        widest = std::max(widest, row.id.size());
    }
    constexpr std::size_t severities = std::string_view("warning").size();
    std::string text;
    for (const auto& [id, severity, statement] : rows)
    {
        text += styled(id, Style::Bold, color) + std::string(widest - id.size() + 2, ' ') + severity +
                std::string(severities - severity.size() + 2, ' ') + statement + "\n";
    }
    return text;
}

} // namespace

void rules(Session& session, const Operands& prefixes, bool json)
{
    for (const std::string& prefix : prefixes)
    {
        expectRules(prefix);
    }
    const auto isShown = [&](std::string_view id)
    {
        return prefixes.empty() || std::any_of(prefixes.begin(), prefixes.end(),
                                               [&](const std::string& prefix) { return id.starts_with(prefix); });
    };
    std::vector<Row> rows;
    Json between = Json::array();
    Json ofRecords = Json::array();
    for (const RrcRule* const rule : allRules())
    {
        if (isShown(rule->id))
        {
            rows.push_back({rule->id, rrcRuleSeverityName(rule->severity), rule->statement});
            between.push_back(jsonOf(*rule));
        }
    }
    for (const RrcRecordRule* const rule : allRecordRules())
    {
        if (isShown(rule->id))
        {
            rows.push_back({rule->id, recordSeverityName(*rule), recordStatement(*rule)});
            ofRecords.push_back(jsonOf(*rule));
        }
    }
    if (!json)
    {
        session.put(listed(rows, session.color()));
        return;
    }
    constexpr int spaces = 2;
    const Json all = {{"version", 1}, {"rules", std::move(between)}, {"recordRules", std::move(ofRecords)}};
    session.put(all.dump(spaces) + "\n");
}

} // namespace tool
