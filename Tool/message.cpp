#include "message.h"

#include "rtxType.h"

namespace tool
{
namespace
{

// The longest path has RTX_MAX_DEPTH names.
constexpr std::size_t longestError = 8192;

std::string errorOf(const OSCTXT& context)
{
    std::string text(longestError, '\0');
    text.resize(std::min(rtxErrFormat(&context, text.data(), text.size()), text.size() - 1));
    return text;
}

} // namespace

Message::Message(const RtxPdu& pdu, const Given& given)
    : pdu_(pdu),
      place_(given.place()),
      value_(pdu.type->size / sizeof(std::max_align_t) + 1),
      octets_(given.input.octets)
{
    rtxInitContext(&context_);
    if (given.input.form == Form::Jer || given.input.form == Form::Flat)
    {
        throw Failure(Exit::Malformed, place_ + ": a text that cannot be read");
    }
    decode();
}

Message::~Message()
{
    rtFreeContext(&context_);
}

void Message::decode()
{
    // An empty message has no octets to point at; the decoder wants a buffer all the same.
    octets_.reserve(1);
    (void)pu_setBuffer(&context_, octets_.data(), octets_.size(), 0);
    if (rtxDecode(&context_, pdu_.type, value_.data(), 0) != 0)
    {
        error_ = errorOf(context_);
    }
}

std::vector<std::uint8_t> Message::encode()
{
    std::vector<std::uint8_t> buffer(maxMessageOctets);
    (void)pu_setBuffer(&context_, buffer.data(), buffer.size(), 0);
    if (pdu_.encode(&context_, value_.data()) != 0)
    {
        throw Failure(Exit::Malformed, place_ + ": " + errorOf(context_));
    }
    buffer.resize(pu_getMsgLen(&context_));
    return buffer;
}

std::string treeText(const Message& message)
{
    return written([&](RtxPrintSink sink, void* arg)
                   { rtx::print(&message.context(), *message.pdu().type, nullptr, message.value(), sink, arg); });
}

std::vector<std::uint8_t> octetsOf(const RtxPdu& pdu, const Given& given)
{
    const bool isText = given.input.form == Form::Jer || given.input.form == Form::Flat;
    return isText ? Message(pdu, given).encode() : given.input.octets;
}

} // namespace tool
