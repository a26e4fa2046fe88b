#include "messageFindings.h"

#include "encodingIds.h"
#include "html.h"

#include <algorithm>

namespace page
{
namespace
{

// Of the longest path and its reason.
constexpr std::size_t longestLine = 8192;

void nameAs(MessageFinding& finding, const char* id)
{
    const EncodingId& words = *encodingIdNamed(id);
    finding.id = id;
    finding.advice = words.advice;
    finding.clause = words.clause;
}

// Of a line "path: message".
MessageFinding findingOn(const char* id, OSUINT8 severity, const std::string& line)
{
    const std::size_t colon = line.find(": ");
    MessageFinding finding;
    nameAs(finding, id);
    finding.severity = severity;
    finding.path = line.substr(0, colon);
    finding.message = line.substr(colon + 2);
    return finding;
}

std::string rangeText(std::int64_t lower, std::int64_t upper)
{
    return lower == upper ? std::to_string(lower) : std::to_string(lower) + ".." + std::to_string(upper);
}

} // namespace

std::string errorText(const RtxError& error)
{
    std::string text(longestLine, '\0');
    text.resize(std::min(rtxErrorFormat(&error, text.data(), text.size()), text.size() - 1));
    return text;
}

MessageFinding findingOf(const RtxError& error)
{
    MessageFinding finding = findingOn(idOf(error.status), RRC_RULE_ERROR, errorText(error));
    if (error.status == RTX_E_RANGE || error.status == RTX_E_SIZE || error.status == RTX_E_CHOICE ||
        error.status == RTX_E_BITS)
    {
        finding.value = std::to_string(error.value);
        finding.allowed = rangeText(error.lower, error.upper);
    }
    return finding;
}

MessageFinding findingOf(const RrcRuleFinding& told)
{
    MessageFinding finding;
    finding.id = told.rule;
    finding.severity = told.severity;
    finding.path.resize(rrcRulePathFormat(&told, nullptr, 0) + 1);
    (void)rrcRulePathFormat(&told, finding.path.data(), finding.path.size());
    finding.path.pop_back(); // the terminator
    finding.value = told.found;
    finding.allowed = told.allowed;
    finding.message = finding.value + (finding.allowed.empty() ? "" : ", but " + finding.allowed) +
                      (told.configuredBefore != 0 ? " (configured before)" : "");
    finding.advice = told.advice;
    finding.clause = told.clause;
    finding.decidedBy = told.decidedBy;
    finding.configuredBefore = told.configuredBefore != 0;
    return finding;
}

MessageFinding unknownFinding(const std::string& root, OSUINT32 count)
{
    return findingOn("unknown-addition", RRC_RULE_NOTICE,
                     root + ": " + counted(count, "addition") + " of a later release, kept as octets");
}

MessageFinding noteFinding(const std::string& note)
{
    return findingOn("per-not-canonical", RRC_RULE_NOTICE, note + "; encoding the message again gives other octets");
}

MessageFinding refusalFinding(const RtxError& error)
{
    MessageFinding finding = findingOf(error);
    nameAs(finding, "delta-apply");
    return finding;
}

} // namespace page
