// Reads any input as a message of a type and in a form that its first two octets say, as the tool and the page do. It
// is malformed with reasons, each with its place; or it is encoded, and written as text and read again it is the same.
#include "NR-RRC-Pdus.h"
#include "readMessage.h"
#include "vos_lib.h"

#include <algorithm>

#include "require.h"

// Stands in place of the platform's: a record may bring notices by the thousand.
INT32 VOS_Printf(const char* /*format*/, ...)
{
    return 0;
}

using fuzz::require;

namespace
{

constexpr size_t most = size_t{1} << 20; // octets of a message; no text of a fuzzer gives as many

void checkMistakes(const std::vector<tool::Mistake>& mistakes)
{
    for (const tool::Mistake& mistake : mistakes)
    {
        require(mistake.file.empty(), "a mistake in a file");
        require(mistake.line != 0 && mistake.column != 0 && !mistake.words.empty(), "a mistake without place or words");
        require(mistake.words.find('\n') == std::string::npos, "a mistake of several lines");
    }
}

// 0 stands for a cell group, which records are.
const RtxPdu& pduOf(size_t number)
{
    static const RtxPdu* const cellGroup =
        std::find_if(std::begin(rtxPdus), std::end(rtxPdus),
                     [](const RtxPdu& pdu) { return pdu.type == asn1Type_CellGroupConfig(); });
    require(cellGroup != std::end(rtxPdus), "no type of cell groups");
    return number == 0 ? *cellGroup : rtxPdus[number % std::size(rtxPdus)];
}

bool isGood(const tool::ReadMessage& message)
{
    return message.error() == nullptr && message.mistakes().empty() && message.refusal().empty();
}

std::vector<uint8_t> encoded(tool::ReadMessage& message, const RtxPdu& pdu)
{
    std::vector<uint8_t> octets = tool::encoding(pdu.encode, message.context(), message.value(), most);
    require(!octets.empty(), "what was read is not encoded");
    return octets;
}

using Write = int (*)(const OSCTXT* ctxt, const RtxType* type, const void* value, RtxPrintSink sink, void* arg);

void checkAgain(tool::ReadMessage& message, const RtxPdu& pdu, tool::Form form, Write write,
                const std::vector<uint8_t>& octets)
{
    std::string text;
    const auto append = [](void* to, const char* piece)
    {
        *static_cast<std::string*>(to) += piece;
    };
    require(write(&message.context(), pdu.type, message.value(), append, &text) == RTX_OK, "it is not written");
    const auto recognition = tool::recognise(text, form);
    require(std::holds_alternative<tool::Input>(recognition), "what was written is not recognised");
    tool::ReadMessage again(*pdu.type, std::get<tool::Input>(recognition), nullptr);
    require(isGood(again), "what was written has mistakes");
    require(encoded(again, pdu) == octets, "what was written is another message");
}

int writeJer(const OSCTXT* ctxt, const RtxType* type, const void* value, RtxPrintSink sink, void* arg)
{
    return rtxToJson(ctxt, type, value, RTX_INDENTED, sink, arg);
}

void checkGood(tool::ReadMessage& message, const RtxPdu& pdu)
{
    const std::vector<uint8_t> octets = encoded(message, pdu);
    checkAgain(message, pdu, tool::Form::Jer, writeJer, octets);
    checkAgain(message, pdu, tool::Form::Flat, rtxToFlat, octets);
    const tool::Input same{tool::Form::Binary, octets, {}, {}};
    tool::ReadMessage again(*pdu.type, same, nullptr);
    require(isGood(again) && encoded(again, pdu) == octets, "what was encoded is another message");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
    {
        return 0;
    }
    constexpr auto forms = static_cast<unsigned>(tool::Form::LogLine) + 1;
    const unsigned chosen = data[1] % (forms + 1);
    const auto form = chosen == forms ? std::nullopt : std::optional(static_cast<tool::Form>(chosen));
    const auto recognition = tool::recognise({reinterpret_cast<const char*>(data) + 2, size - 2}, form);
    const auto* const input = std::get_if<tool::Input>(&recognition);
    if (input == nullptr || input->octets.size() > tool::maxMessageOctets)
    {
        return 0;
    }
    const RtxPdu& pdu = pduOf(input->form == tool::Form::Record ? 0 : data[0]);
    tool::ReadMessage message(*pdu.type, *input, nullptr);
    checkMistakes(message.mistakes());
    checkMistakes(message.unread());
    require(message.isText() || message.mistakes().empty(), "octets with a mistake in their text");
    if (isGood(message))
    {
        checkGood(message, pdu);
    }
    return 0;
}
