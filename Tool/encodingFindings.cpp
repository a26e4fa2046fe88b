#include "encodingFindings.h"

#include "ruleInputs.h"
#include "trace.h"

namespace tool
{
namespace
{

Finding findingOf(const Mistake& mistake, const Given& given, const RtxPdu& pdu)
{
    Finding finding;
    finding.id = formName(given.input.form);
    finding.path = mistake.path.empty() ? pdu.name : mistake.path;
    finding.message = mistake.words;
    if (!mistake.file.empty())
    {
        finding.message +=
            " (" + mistake.file + ":" + std::to_string(mistake.line) + ":" + std::to_string(mistake.column) + ")";
        return finding;
    }
    finding.line = given.line == 0 ? mistake.line : given.line;
    finding.column = mistake.column;
    return finding;
}

} // namespace

Finding asFinding(page::MessageFinding&& found)
{
    Finding finding;
    finding.id = std::move(found.id);
    finding.severity = found.severity == RRC_RULE_ERROR     ? Severity::Error
                       : found.severity == RRC_RULE_WARNING ? Severity::Warning
                                                            : Severity::Notice;
    finding.path = std::move(found.path);
    finding.message = std::move(found.message);
    finding.value = std::move(found.value);
    finding.allowed = std::move(found.allowed);
    finding.advice = std::move(found.advice);
    finding.clause = std::move(found.clause);
    finding.decidedBy = optionsOf(found.decidedBy);
    finding.configuredBefore = found.configuredBefore;
    return finding;
}

std::vector<Finding> encodingFindings(const Message& message, const Given& given)
{
    std::vector<Finding> all;
    for (const Mistake& mistake : message.mistakes())
    {
        all.push_back(findingOf(mistake, given, message.pdu()));
    }
    if (const RtxError* const error = message.error())
    {
        all.push_back(asFinding(page::findingOf(*error)));
    }
    if (!all.empty() || !message.refusal().empty())
    {
        return all;
    }
    const auto sink = [](void* to, const RtxError* error)
    {
        static_cast<std::vector<Finding>*>(to)->push_back(asFinding(page::findingOf(*error)));
        return 0;
    };
    (void)rtxCheck(&message.context(), message.pdu().type, message.value(), sink, &all);
    if (message.isText())
    {
        return all;
    }
    page::tellNotes(
        message.context().decoded, message.pdu().name, [&] { return noteText(message.pdu(), given.input.octets); },
        [&](page::MessageFinding&& found) { all.push_back(asFinding(std::move(found))); });
    return all;
}

} // namespace tool
