#include "findings.h"

#include "style.h"
#include "version.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <map>

namespace tool
{
namespace
{

using Json = nlohmann::ordered_json;

constexpr int indent = 2;

// Text of strangers may have octets that are not UTF-8.
std::string dump(const Json& json)
{
    return json.dump(indent, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::string_view severityName(Severity severity)
{
    switch (severity)
    {
    case Severity::Error:
        return "error";
    case Severity::Warning:
        return "warning";
    case Severity::Note:
        break;
    }
    return "note";
}

// The readers of a finding look for a line; a message in octets begins at its file's first.
std::size_t lineOf(const Origin& origin, const Finding& finding)
{
    return std::max<std::size_t>(finding.line != 0 ? finding.line : origin.line, 1);
}

std::string columnText(const Finding& finding)
{
    return finding.column == 0 ? "" : ":" + std::to_string(finding.column);
}

std::string placeOf(const Origin& origin, const Finding& finding)
{
    const bool hasLine = finding.line != 0 || origin.line != 0;
    return origin.file + (hasLine ? ":" + std::to_string(lineOf(origin, finding)) : "") + columnText(finding);
}

std::string textOf(const Findings& findings, bool color)
{
    std::string text;
    for (const Finding& finding : findings.findings)
    {
        const std::string_view severity = severityName(finding.severity);
        text += placeOf(findings.origin, finding) + ": " +
                styled(severity, finding.severity == Severity::Error ? Style::Red : Style::Yellow, color) + ": " +
                styled(finding.path, Style::Bold, color) + ": " + finding.message + " [" + finding.id + "]\n";
        if (!finding.advice.empty())
        {
            text += "  " + finding.advice + "\n";
        }
        if (!finding.clause.empty())
        {
            text += "  " + finding.clause + "\n";
        }
    }
    return text;
}

std::string gccOf(const Findings& findings)
{
    std::string text;
    for (const Finding& finding : findings.findings)
    {
        text += findings.origin.file + ":" + std::to_string(lineOf(findings.origin, finding)) + columnText(finding) +
                ": " + std::string(severityName(finding.severity)) + ": " + finding.path + ": " + finding.message +
                " [" + finding.id + "]\n";
    }
    return text;
}

void setUnlessEmpty(Json& json, const char* name, const std::string& text)
{
    if (!text.empty())
    {
        json[name] = text;
    }
}

Json jsonOf(const std::vector<Findings>& all)
{
    Json messages = Json::array();
    for (const Findings& of : all)
    {
        Json findings = Json::array();
        for (const Finding& finding : of.findings)
        {
            Json json = {{"id", finding.id}, {"severity", severityName(finding.severity)}, {"path", finding.path}};
            json["message"] = finding.message;
            if (finding.line != 0)
            {
                json["line"] = finding.line;
                json["column"] = finding.column;
            }
            setUnlessEmpty(json, "value", finding.value);
            setUnlessEmpty(json, "allowed", finding.allowed);
            setUnlessEmpty(json, "advice", finding.advice);
            setUnlessEmpty(json, "clause", finding.clause);
            findings.push_back(std::move(json));
        }
        Json message = {{"file", of.origin.file}};
        if (of.origin.line != 0)
        {
            message["line"] = of.origin.line;
        }
        message["findings"] = std::move(findings);
        messages.push_back(std::move(message));
    }
    return {{"version", 1}, {"messages", std::move(messages)}};
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

Json sarifResult(const Origin& origin, const Finding& finding, std::size_t rule)
{
    std::string text = finding.message;
    if (!finding.advice.empty())
    {
        text += " " + finding.advice;
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
    Json result = {{"ruleId", finding.id}, {"ruleIndex", rule}, {"level", severityName(finding.severity)}};
    result["message"]["text"] = finding.path + ": " + text;
    result["locations"] = Json::array({std::move(location)});
    return result;
}

Json sarifOf(const std::vector<Findings>& all)
{
    Json rules = Json::array();
    Json results = Json::array();
    std::map<std::string, std::size_t> known;
    for (const Findings& of : all)
    {
        for (const Finding& finding : of.findings)
        {
            const auto [rule, isNew] = known.emplace(finding.id, known.size());
            if (isNew)
            {
                Json description = {{"id", finding.id}};
                if (!finding.clause.empty())
                {
                    description["fullDescription"]["text"] = finding.clause;
                }
                rules.push_back(std::move(description));
            }
            results.push_back(sarifResult(of.origin, finding, rule->second));
        }
    }
    Json driver = {{"name", "cellgroupcfg"}, {"semanticVersion", version}, {"rules", std::move(rules)}};
    Json run;
    run["tool"]["driver"] = std::move(driver);
    run["columnKind"] = "unicodeCodePoints";
    run["results"] = std::move(results);
    return {{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
            {"version", "2.1.0"},
            {"runs", Json::array({std::move(run)})}};
}

constexpr std::array<std::pair<std::string_view, FindingsForm>, 4> forms = {{
    {"text", FindingsForm::Text},
    {"gcc", FindingsForm::Gcc},
    {"json", FindingsForm::Json},
    {"sarif", FindingsForm::Sarif},
}};

} // namespace

std::optional<FindingsForm> findingsFormNamed(std::string_view name)
{
    const auto* const found =
        std::find_if(forms.begin(), forms.end(), [&](const auto& form) { return form.first == name; });
    return found == forms.end() ? std::nullopt : std::optional(found->second);
}

std::string writeFindings(const std::vector<Findings>& all, FindingsForm form, bool color)
{
    std::string text;
    switch (form)
    {
    case FindingsForm::Json:
        return dump(jsonOf(all));
    case FindingsForm::Sarif:
        return dump(sarifOf(all));
    case FindingsForm::Text:
    case FindingsForm::Gcc:
        for (const Findings& findings : all)
        {
            text += form == FindingsForm::Gcc ? gccOf(findings) : textOf(findings, color);
        }
        break;
    }
    return text;
}

} // namespace tool
