#include "silences.h"

#include "findingIds.h"
#include "findingPath.h"

#include <algorithm>
#include <cctype>

namespace tool
{
namespace
{

bool covers(const Silence& silence, const Finding& finding)
{
    if (!isIdOf(silence.rule, finding.id))
    {
        return false;
    }
    if (silence.isInText)
    {
        // An index in what was configured before is none of the text's.
        return !finding.configuredBefore && isNamedBy(plainPath(finding.path), silence.path);
    }
    return silence.path.empty() || isNamedBy(finding.path, silence.path);
}

} // namespace

std::vector<Silenced> silenced(std::vector<Finding>& findings, const std::vector<Silence*>& silences)
{
    std::vector<Silenced> taken;
    std::vector<Finding> left;
    for (Finding& finding : findings)
    {
        const auto found =
            std::find_if(silences.begin(), silences.end(), [&](const Silence* one) { return covers(*one, finding); });
        if (found == silences.end())
        {
            left.push_back(std::move(finding));
            continue;
        }
        Silence& silence = **found;
        silence.isUsed = true;
        taken.push_back({std::move(finding), silence.reason, silence.by, silence.isInText});
    }
    findings = std::move(left);
    return taken;
}

std::string onOneLine(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return std::iscntrl(c) != 0; }, ' ');
    return text;
}

std::optional<Silence> silenceOf(const TextComment& comment, const std::string& file, std::string& mistake)
{
    constexpr std::string_view blanks = " \t\r\n";
    std::string_view rest = comment.words;
    const auto word = [&]
    {
        const std::string_view taken = rest.substr(0, rest.find_first_of(blanks));
        rest.remove_prefix(taken.size());
        rest.remove_prefix(std::min(rest.find_first_not_of(blanks), rest.size()));
        return std::string(taken);
    };
    const std::string verb = word();
    const std::string rule = word();
    if (verb != "silence" || rule.empty())
    {
        mistake = "a comment for this program says: silence RULE reason";
        return std::nullopt;
    }
    mistake = wrongId(rule);
    if (mistake.empty() && rest.empty())
    {
        mistake = "the reason is missing for which " + rule + " is silenced";
    }
    if (!mistake.empty())
    {
        return std::nullopt;
    }
    return Silence{rule, comment.path, onOneLine(std::string(rest)), file + ":" + std::to_string(comment.place.line),
                   true};
}

} // namespace tool
