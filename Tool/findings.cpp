#include "findings.h"

#include "findingsJson.h"
#include "style.h"
#include "text.h"

#include <algorithm>
#include <array>

namespace tool
{
namespace
{

constexpr std::array<std::string_view, 3> severityNames = {"notice", "warning", "error"}; // in the order of Severity

std::string columnText(const Finding& finding)
{
    return finding.column == 0 ? "" : ":" + std::to_string(finding.column);
}

std::string placeOf(const Origin& origin, const Finding& finding)
{
    const bool hasLine = finding.line != 0 || origin.line != 0;
    return origin.file + (hasLine ? ":" + std::to_string(lineOf(origin, finding)) : "") + columnText(finding);
}

// "file:3: <word>: ", the word in colour.
std::string beginning(const std::string& place, std::string_view word, Style style, bool color)
{
    return place + ": " + styled(word, style, color) + ": ";
}

std::string sentence(const Finding& finding, bool color)
{
    return styled(finding.path, Style::Bold, color) + ": " + finding.message + " [" + finding.id + "]\n";
}

std::string joined(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
    {
        text += (text.empty() ? "" : ", ") + word;
    }
    return text;
}

std::string textOf(const Findings& findings, const FindingsLook& look)
{
    std::string text;
    for (const Finding& finding : findings.findings)
    {
        const Style style = finding.severity == Severity::Error ? Style::Red : Style::Yellow;
        text += beginning(placeOf(findings.origin, finding), severityName(finding.severity), style, look.color) +
                sentence(finding, look.color);
        const auto line = [&](const char* before, const std::string& words, const char* behind)
        {
            text += words.empty() ? "" : std::string("  ") + before + words + behind + "\n";
        };
        line("| ", finding.context, finding.meaning.empty() ? "" : ("  # " + finding.meaning).c_str());
        line("sent as ", finding.element, "");
        line("", finding.advice, "");
        line("This could change with ", joined(finding.decidedBy), ".");
        line("", finding.clause, "");
    }
    if (!look.verbose)
    {
        return text;
    }
    for (const Silenced& silenced : findings.silenced)
    {
        text += beginning(placeOf(findings.origin, silenced.finding), "silenced", Style::Green, look.color) +
                sentence(silenced.finding, look.color) + "  " + silenced.reason + " (" + silenced.by + ")\n";
    }
    for (const Undecided& undecided : findings.undecided)
    {
        text += beginning(placeOf(findings.origin, {}), "undecided", Style::Green, look.color) + undecided.id +
                ": needs " + joined(undecided.decidedBy) + "\n";
    }
    return text;
}

// Its readers know no notices.
std::string gccOf(const Findings& findings)
{
    std::string text;
    for (const Finding& finding : findings.findings)
    {
        text += findings.origin.file + ":" + std::to_string(lineOf(findings.origin, finding)) + columnText(finding) +
                ": " + std::string(foreignSeverityName(finding.severity)) + ": " + sentence(finding, false);
    }
    return text;
}

constexpr std::array<std::pair<std::string_view, FindingsForm>, 4> forms = {{
    {"text", FindingsForm::Text},
    {"gcc", FindingsForm::Gcc},
    {"json", FindingsForm::Json},
    {"sarif", FindingsForm::Sarif},
}};

} // namespace

std::optional<Severity> severityNamed(std::string_view name)
{
    const auto* const found = std::find(severityNames.begin(), severityNames.end(), name);
    return found == severityNames.end() ? std::nullopt
                                        : std::optional(static_cast<Severity>(found - severityNames.begin()));
}

std::string_view severityName(Severity severity)
{
    return severityNames[static_cast<std::size_t>(severity)];
}

std::string_view foreignSeverityName(Severity severity)
{
    return severity == Severity::Notice ? "note" : severityName(severity);
}

std::size_t lineOf(const Origin& origin, const Finding& finding)
{
    return std::max<std::size_t>(finding.line != 0 ? finding.line : origin.line, 1);
}

std::optional<FindingsForm> findingsFormNamed(std::string_view name)
{
    const auto* const found =
        std::find_if(forms.begin(), forms.end(), [&](const auto& form) { return form.first == name; });
    return found == forms.end() ? std::nullopt : std::optional(found->second);
}

std::string writeFindings(const std::vector<Findings>& all, FindingsForm form, const FindingsLook& look)
{
    std::string text;
    switch (form)
    {
    case FindingsForm::Json:
        return jsonText(all, look.verbose);
    case FindingsForm::Sarif:
        return sarifText(all);
    case FindingsForm::Text:
    case FindingsForm::Gcc:
        for (const Findings& findings : all)
        {
            text += form == FindingsForm::Gcc ? gccOf(findings) : textOf(findings, look);
        }
        break;
    }
    return text;
}

std::string countText(const Findings& findings)
{
    std::vector<std::string> counts;
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Notice})
    {
        const auto count = static_cast<std::size_t>(std::count_if(findings.findings.begin(), findings.findings.end(),
                                                                  [&](const Finding& finding)
                                                                  { return finding.severity == severity; }));
        if (count != 0)
        {
            counts.push_back(counted(count, severityName(severity)));
        }
    }
    if (!findings.silenced.empty())
    {
        counts.push_back(std::to_string(findings.silenced.size()) + " silenced");
    }
    return joined(counts);
}

} // namespace tool
