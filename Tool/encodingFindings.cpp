#include "encodingFindings.h"

#include "findingIds.h"
#include "text.h"
#include "trace.h"

namespace tool
{
namespace
{

std::string rangeText(std::int64_t lower, std::int64_t upper)
{
    return lower == upper ? std::to_string(lower) : std::to_string(lower) + ".." + std::to_string(upper);
}

// Of a line "path: message".
Finding finding(const char* id, Severity severity, const std::string& line)
{
    const IdWords words = wordsOf(id);
    const std::size_t colon = line.find(": ");
    Finding finding;
    finding.id = id;
    finding.severity = severity;
    finding.path = line.substr(0, colon);
    finding.message = line.substr(colon + 2);
    finding.advice = words.advice;
    finding.clause = words.clause;
    return finding;
}

Finding findingOf(const Message::Mistake& mistake, const Given& given, const RtxPdu& pdu)
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

Finding findingOf(const RtxError& error)
{
    Finding result = finding(idOf(error.status), Severity::Error, errorText(error));
    if (error.status == RTX_E_RANGE || error.status == RTX_E_SIZE || error.status == RTX_E_CHOICE ||
        error.status == RTX_E_BITS)
    {
        result.value = std::to_string(error.value);
        result.allowed = rangeText(error.lower, error.upper);
    }
    return result;
}

std::vector<Finding> encodingFindings(const Message& message, const Given& given)
{
    std::vector<Finding> all;
    for (const Message::Mistake& mistake : message.mistakes())
    {
        all.push_back(findingOf(mistake, given, message.pdu()));
    }
    if (const RtxError* const error = message.error())
    {
        all.push_back(findingOf(*error));
    }
    if (!all.empty() || !message.refusal().empty())
    {
        return all;
    }
    const auto sink = [](void* to, const RtxError* error)
    {
        static_cast<std::vector<Finding>*>(to)->push_back(findingOf(*error));
        return 0;
    };
    (void)rtxCheck(&message.context(), message.pdu().type, message.value(), sink, &all);
    if (message.isText())
    {
        return all;
    }
    const RtxDecoded& decoded = message.context().decoded;
    if (decoded.unknown != 0)
    {
        all.push_back(finding("unknown-addition", Severity::Notice,
                              std::string(message.pdu().name) + ": " + counted(decoded.unknown, "addition") +
                                  " of a later release, kept as octets"));
    }
    if (decoded.note != RTX_NOTE_NONE)
    {
        all.push_back(
            finding("per-not-canonical", Severity::Notice,
                    noteText(message.pdu(), given.input.octets) + "; encoding the message again gives other octets"));
    }
    return all;
}

} // namespace tool
