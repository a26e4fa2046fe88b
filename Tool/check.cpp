// check: all that breaks a constraint of the ASN.1 or a rule of its encoding.
#include "commands.h"
#include "message.h"
#include "text.h"
#include "trace.h"

#include <algorithm>

namespace tool
{
namespace
{

struct Kind
{
    const char* id;
    const char* clause;
    const char* advice;
};

// What RtxStatus stands for.
Kind kindOf(OSINT32 status)
{
    switch (status)
    {
    case RTX_E_RANGE:
        return {"asn1-range", "X.680 51.4", ""};
    case RTX_E_SIZE:
        return {"asn1-size", "X.680 51.5", ""};
    case RTX_E_CHOICE:
        return {"asn1-choice", "X.680 29", ""};
    case RTX_E_BITS:
        return {"asn1-bits", "X.680 51.5", ""};
    case RTX_E_END:
        return {"per-end", "", "The message is cut off, or it is of another type or release."};
    case RTX_E_PADDING:
        return {"per-padding", "X.691 11.1",
                "The message is of another type, or its end is not where it is taken for."};
    case RTX_E_SURPLUS:
        return {"per-surplus", "X.691 11.1", "Leave out what follows the message."};
    case RTX_E_LENGTH:
        return {"per-length", "X.691 11.9", ""};
    case RTX_E_EXTENSION:
        return {"per-extension", "X.691 19.7", ""};
    case RTX_E_DEPTH:
        return {"depth", "", ""};
    case RTX_E_HEAP:
        return {"memory", "", ""};
    default:
        return {"tree", "", ""};
    }
}

std::string rangeText(std::int64_t lower, std::int64_t upper)
{
    return lower == upper ? std::to_string(lower) : std::to_string(lower) + ".." + std::to_string(upper);
}

Finding findingOf(const RtxError& error)
{
    const Kind kind = kindOf(error.status);
    const std::string line = errorText(error);
    const std::size_t colon = line.find(": ");
    Finding finding;
    finding.id = kind.id;
    finding.path = line.substr(0, colon);
    finding.message = line.substr(colon + 2);
    finding.advice = kind.advice;
    finding.clause = kind.clause;
    if (error.status == RTX_E_RANGE || error.status == RTX_E_SIZE || error.status == RTX_E_CHOICE ||
        error.status == RTX_E_BITS)
    {
        finding.value = std::to_string(error.value);
        finding.allowed = rangeText(error.lower, error.upper);
    }
    return finding;
}

Finding findingOf(const Message::Mistake& mistake, const Given& given, const RtxPdu& pdu)
{
    Finding finding;
    finding.id = given.input.form == Form::Jer ? "jer" : "flat";
    finding.path = mistake.path.empty() ? pdu.name : mistake.path;
    finding.message = mistake.words;
    finding.line = given.line == 0 ? mistake.line : given.line;
    finding.column = mistake.column;
    return finding;
}

Finding note(const char* id, const RtxPdu& pdu, const std::string& message, const char* clause)
{
    Finding finding;
    finding.id = id;
    finding.severity = Severity::Note;
    finding.path = pdu.name;
    finding.message = message;
    finding.clause = clause;
    return finding;
}

std::vector<Finding> findingsOf(const Message& message, const Given& given)
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
    if (!all.empty())
    {
        return all;
    }
    const auto sink = [](void* to, const RtxError* finding)
    {
        static_cast<std::vector<Finding>*>(to)->push_back(findingOf(*finding));
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
        all.push_back(note("unknown-addition", message.pdu(),
                           counted(decoded.unknown, "addition") + " of a later release, kept as octets", "X.691 19.7"));
    }
    if (decoded.note != RTX_NOTE_NONE)
    {
        const std::string text = noteText(message.pdu(), given.input.octets);
        Finding finding =
            note("per-not-canonical", message.pdu(),
                 text.substr(text.find(": ") + 2) + "; encoding the message again gives other octets", "X.691 6.1");
        finding.path = text.substr(0, text.find(": "));
        all.push_back(std::move(finding));
    }
    return all;
}

bool isFinding(const Finding& finding)
{
    return finding.severity != Severity::Note;
}

} // namespace

void check(Session& session, const Operands& operands, FindingsForm form)
{
    const bool isVerdict = session.common().lines && form == FindingsForm::Text;
    if (isVerdict)
    {
        session.verdicts();
    }
    std::vector<Findings> all;
    const auto look = [&](const Given& given)
    {
        const Message message(*session.common().type, given);
        Findings findings = {{given.source, given.line}, findingsOf(message, given)};
        const auto count =
            static_cast<std::size_t>(std::count_if(findings.findings.begin(), findings.findings.end(), isFinding));
        if (count != 0)
        {
            session.raise(message.error() != nullptr ? Exit::Malformed : Exit::Findings);
        }
        if (form != FindingsForm::Text)
        {
            all.push_back(std::move(findings));
            return;
        }
        if (isVerdict)
        {
            session.put(given.place() + ": " + (count == 0 ? "no finding" : counted(count, "finding")) + "\n");
        }
        session.put(writeFindings({std::move(findings)}, form, session.color()));
    };
    session.forEach(operands, look);
    if (form != FindingsForm::Text)
    {
        session.put(writeFindings(all, form, false));
    }
}

} // namespace tool
