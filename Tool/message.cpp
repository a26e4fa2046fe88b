#include "message.h"

#include "rtxType.h"

#include <algorithm>

namespace tool
{
namespace
{

const RtxType& typeFor(const RtxPdu& pdu, const Given& given)
{
    if (given.input.form == Form::Record && pdu.type != asn1Type_CellGroupConfig())
    {
        throw Failure(Exit::Usage, given.place() + ": a record is a CellGroupConfig, not a " + pdu.name);
    }
    return *pdu.type;
}

} // namespace

Message::Message(const RtxPdu& pdu, const Given& given)
    : ReadMessage(typeFor(pdu, given), given.input, given.source.c_str()), pdu_(pdu), given_(given)
{
}

void Message::expectGood() const
{
    if (const RtxError* const wrong = error())
    {
        throw Failure(Exit::Malformed, given_.place() + ": " + errorText(*wrong));
    }
    std::string text;
    for (const Mistake& mistake : mistakes())
    {
        // A message on a line of its own has only columns.
        const bool hasLines = given_.line == 0 || !mistake.file.empty();
        const std::string line = hasLines ? ":" + std::to_string(mistake.line) : "";
        text += (text.empty() ? "" : "\ncellgroupcfg: ") + (mistake.file.empty() ? given_.place() : mistake.file) +
                line + ":" + std::to_string(mistake.column) + ": " + (mistake.path.empty() ? "" : mistake.path + ": ") +
                mistake.words;
    }
    if (!text.empty())
    {
        throw Failure(Exit::Malformed, text);
    }
    if (!refusal().empty())
    {
        throw Failure(Exit::Findings, given_.place() + ": " + refusal());
    }
}

std::vector<std::uint8_t> Message::encode()
{
    expectGood();
    std::vector<std::uint8_t> octets = encoding(pdu_.encode, context(), value(), maxMessageOctets);
    if (octets.empty())
    {
        throw Failure(Exit::Malformed, given_.place() + ": " + errorText(context().error));
    }
    return octets;
}

std::string treeText(const Message& message, RtxRemark remark, void* remarkArg)
{
    return written(
        [&](RtxPrintSink sink, void* arg) {
            rtx::print(&message.context(), *message.pdu().type, nullptr, message.value(), sink, arg, remark, remarkArg);
        });
}

std::string valueText(const OSCTXT* context, const RtxType& type, const void* value)
{
    std::string text = written([&](RtxPrintSink sink, void* arg)
                               { (void)rtxToValueNotation(context, &type, value, RTX_COMPACT, sink, arg); });
    constexpr std::string_view sign = "::= ";
    text.erase(0, text.find(sign) + sign.size());
    text.pop_back(); // the line end
    return text;
}

std::vector<std::uint8_t> octetsOf(const RtxPdu& pdu, const Given& given)
{
    return isText(given.input.form) ? Message(pdu, given).encode() : given.input.octets;
}

} // namespace tool
