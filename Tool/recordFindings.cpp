#include "recordFindings.h"

#include "findingIds.h"
#include "rrcRecordCheck.h"

#include <algorithm>
#include <cctype>

namespace tool
{
namespace
{

static_assert(static_cast<int>(Severity::Error) - static_cast<int>(Severity::Notice) ==
              RRC_RECORD_ERROR - RRC_RECORD_NOTICE);

std::string pathOf(const std::string& field)
{
    return recordRoot + (field.empty() ? "" : "." + field);
}

// As the other rules have it.
std::string sentence(std::string text)
{
    if (!text.empty())
    {
        text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
        text += '.';
    }
    return text;
}

Finding findingOf(const RrcRecordFinding& found)
{
    Finding finding;
    finding.id = found.rule->id;
    finding.severity = static_cast<Severity>(found.severity - RRC_RECORD_NOTICE);
    finding.path = pathOf(found.path);
    finding.element = found.element;
    finding.message = std::string(found.found) + (*found.found == '\0' ? "" : " ") + found.words;
    finding.value = found.found;
    finding.allowed = found.allowed;
    finding.advice = sentence(found.advice);
    return finding;
}

Finding findingOf(const std::string& id, const std::string& path, const std::string& words)
{
    Finding finding;
    finding.id = id;
    finding.path = path;
    finding.message = words;
    finding.advice = wordsOf(id).advice;
    return finding;
}

} // namespace

std::vector<Finding> recordFindings(const Message& message)
{
    std::vector<Finding> all;
    const auto sink = [](void* to, const RrcRecordFinding* found)
    {
        static_cast<std::vector<Finding>*>(to)->push_back(findingOf(*found));
        return 0;
    };
    (void)rrcCheckCellGroupCfg(message.record(), sink, &all);
    for (const Mistake& unread : message.unread())
    {
        all.push_back(findingOf("record-unread", pathOf(unread.path), unread.words));
        all.back().severity = Severity::Warning;
    }
    const bool isExplained =
        std::any_of(all.begin(), all.end(), [](const Finding& finding) { return finding.severity == Severity::Error; });
    if (!message.refusal().empty() && !isExplained)
    {
        all.push_back(findingOf("record-refused", recordRoot, message.refusal()));
    }
    return all;
}

} // namespace tool
