// decode: what a message says.
#include "commands.h"
#include "text.h"
#include "trace.h"

namespace tool
{
namespace
{

std::string canonicity(const Message& message, const Given& given)
{
    const RtxDecoded& decoded = message.context().decoded;
    return decoded.note == RTX_NOTE_NONE
               ? "encoding it again gives the same octets"
               : "encoding it again gives other octets: " + noteText(message.pdu(), given.input.octets);
}

std::string verdict(const Message& message)
{
    const RtxDecoded& decoded = message.context().decoded;
    std::string text = message.pdu().name;
    if (!message.isText())
    {
        text += ", " + counted(decoded.octets, "octet");
    }
    if (decoded.unknown != 0)
    {
        text += ", " + counted(decoded.unknown, "unknown addition");
    }
    return text;
}

} // namespace

void decode(Session& session, const Operands& operands, DecodeForm form, const ExplainOptions& explain)
{
    const auto inputs = explainInputs(session, explain);
    if (inputs != nullptr && form != DecodeForm::Tree && form != DecodeForm::Flat)
    {
        throw Failure(Exit::Usage, "--explain goes with --tree and --flat");
    }
    const bool isVerdict = form == DecodeForm::Verdict;
    if (isVerdict)
    {
        session.verdicts();
    }
    const bool isHeaded = session.isSeveral(operands) && form != DecodeForm::CompactJson && !isVerdict;
    const auto show = [&](const Given& given)
    {
        Message message(*session.common().type, given);
        if (isHeaded)
        {
            session.put("# " + given.place() + "\n");
        }
        if (message.mistakes().empty() && !isVerdict)
        {
            const bool isWhole = message.error() == nullptr && message.refusal().empty();
            Meanings meanings = inputs != nullptr && isWhole ? Meanings(message, message.value(), *inputs) : Meanings();
            session.put(textIn(form, message, given, Meanings::remark, &meanings));
        }
        message.expectGood();
        if (!message.isText())
        {
            session.note(given.place() + ": " + canonicity(message, given));
        }
        if (isVerdict)
        {
            session.put(given.place() + ": " + verdict(message) + "\n");
        }
    };
    session.forEach(operands, show);
}

} // namespace tool
