#include "findingsJson.h"

#include "findingIds.h"
#include "version.h"

#include <nlohmann/json.hpp>

#include <map>

namespace tool
{
namespace
{

using Json = nlohmann::ordered_json;

constexpr int indent = 2;
constexpr int layoutVersion = 2; // of jsonText

// Text of strangers may have octets that are not UTF-8.
std::string dump(const Json& json)
{
    return json.dump(indent, ' ', false, Json::error_handler_t::replace) + "\n";
}

Json jsonOf(const Finding& finding)
{
    Json json = {{"id", finding.id}, {"severity", severityName(finding.severity)}, {"path", finding.path}};
    json["message"] = finding.message;
    if (finding.line != 0)
    {
        json["line"] = finding.line;
        json["column"] = finding.column;
    }
    const auto set = [&](const char* name, const std::string& text)
    {
        if (!text.empty())
        {
            json[name] = text;
        }
    };
    set("element", finding.element);
    set("context", finding.context);
    set("meaning", finding.meaning);
    set("value", finding.value);
    set("allowed", finding.allowed);
    set("advice", finding.advice);
    set("clause", finding.clause);
    if (finding.configuredBefore)
    {
        json["configuredBefore"] = true;
    }
    if (!finding.decidedBy.empty())
    {
        json["decidedBy"] = finding.decidedBy;
    }
    return json;
}

// A relative reference of RFC 3986: what is neither unreserved nor a slash is escaped.
std::string uriOf(const std::string& file)
{
    constexpr const char* digits = "0123456789ABCDEF";
    std::string uri = file.starts_with('/') ? "file://" : "";
    for (const char c : file)
    {
        const auto octet = static_cast<unsigned char>(c);
        const bool plain = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
                           std::string_view("-._~/").find(c) != std::string_view::npos;
        if (plain)
        {
            uri += c;
            continue;
        }
        uri += '%';
        uri += digits[octet >> 4];
        uri += digits[octet & 15];
    }
    return uri;
}

// The rules of a run, in the order in which they are first broken.
class SarifRules
{
public:
    std::size_t indexOf(const std::string& id)
    {
        const auto [rule, isNew] = known_.emplace(id, known_.size());
        if (isNew)
        {
            const IdWords words = wordsOf(id);
            Json description = {{"id", id}};
            description["shortDescription"]["text"] = words.statement;
            const std::string help = words.advice + (words.advice.empty() || words.clause.empty() ? "" : " ") +
                                     (words.clause.empty() ? "" : "(" + words.clause + ")");
            if (!help.empty())
            {
                description["help"]["text"] = help;
            }
            rules_.push_back(std::move(description));
        }
        return rule->second;
    }

    Json take()
    {
        return std::move(rules_);
    }

private:
    std::map<std::string, std::size_t> known_;
    Json rules_ = Json::array();
};

Json sarifResult(const Origin& origin, const Finding& finding, std::size_t rule)
{
    std::string text = finding.path + ": " + finding.message;
    if (!finding.advice.empty())
    {
        text += ". " + finding.advice;
    }
    Json location;
    location["physicalLocation"]["artifactLocation"]["uri"] = uriOf(origin.file);
    Json& region = location["physicalLocation"]["region"];
    region["startLine"] = lineOf(origin, finding);
    if (finding.column != 0)
    {
        region["startColumn"] = finding.column;
    }
    location["logicalLocations"] = Json::array({{{"fullyQualifiedName", finding.path}, {"kind", "member"}}});
    Json result = {{"ruleId", finding.id}, {"ruleIndex", rule}, {"level", foreignSeverityName(finding.severity)}};
    result["message"]["text"] = text;
    result["locations"] = Json::array({std::move(location)});
    return result;
}

} // namespace

std::string jsonText(const std::vector<Findings>& all, bool withUndecided)
{
    Json messages = Json::array();
    for (const Findings& of : all)
    {
        Json message = {{"file", of.origin.file}};
        if (of.origin.line != 0)
        {
            message["line"] = of.origin.line;
        }
        message["findings"] = Json::array();
        for (const Finding& finding : of.findings)
        {
            message["findings"].push_back(jsonOf(finding));
        }
        message["silenced"] = Json::array();
        for (const Silenced& silenced : of.silenced)
        {
            Json json = jsonOf(silenced.finding);
            json["reason"] = silenced.reason;
            json["silencedBy"] = silenced.by;
            message["silenced"].push_back(std::move(json));
        }
        if (withUndecided)
        {
            message["undecided"] = Json::array();
            for (const Undecided& undecided : of.undecided)
            {
                message["undecided"].push_back({{"id", undecided.id}, {"decidedBy", undecided.decidedBy}});
            }
        }
        messages.push_back(std::move(message));
    }
    return dump({{"version", layoutVersion}, {"messages", std::move(messages)}});
}

std::string sarifText(const std::vector<Findings>& all)
{
    SarifRules rules;
    Json results = Json::array();
    for (const Findings& of : all)
    {
        for (const Finding& finding : of.findings)
        {
            results.push_back(sarifResult(of.origin, finding, rules.indexOf(finding.id)));
        }
        for (const Silenced& silenced : of.silenced)
        {
            Json result = sarifResult(of.origin, silenced.finding, rules.indexOf(silenced.finding.id));
            result["suppressions"] = Json::array(
                {{{"kind", silenced.isInText ? "inSource" : "external"}, {"justification", silenced.reason}}});
            results.push_back(std::move(result));
        }
    }
    Json run;
    run["tool"]["driver"] = {{"name", "cellgroupcfg"}, {"semanticVersion", version}, {"rules", rules.take()}};
    run["columnKind"] = "unicodeCodePoints";
    run["results"] = std::move(results);
    return dump({{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                 {"version", "2.1.0"},
                 {"runs", Json::array({std::move(run)})}});
}

} // namespace tool
