// A message that has been read: its octets, its element tree, and what was wrong with it.
#pragma once

#include "messageTypes.h"
#include "session.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tool
{

class Message
{
public:
    // Reads the input as a message of the type. A malformed one in octets leaves its error in error(), and what was
    // read before it in the tree; a text that is no message of the type is a Failure.
    Message(const RtxPdu& pdu, const Given& given);
    ~Message();
    Message(const Message&) = delete;
    Message& operator=(const Message&) = delete;

    const RtxPdu& pdu() const
    {
        return pdu_;
    }
    // The context whose heap holds the tree; its error is the decoder's.
    const OSCTXT& context() const
    {
        return context_;
    }
    const void* value() const
    {
        return value_.data();
    }
    // Path, reason and place of what makes the message malformed.
    const std::optional<std::string>& error() const
    {
        return error_;
    }
    // As given, empty for a text.
    const std::vector<std::uint8_t>& octets() const
    {
        return octets_;
    }
    // The encoding of the tree. Throws Failure when the tree breaks a rule.
    std::vector<std::uint8_t> encode();

private:
    void decode();

    const RtxPdu& pdu_;
    std::string place_;
    OSCTXT context_;
    std::vector<std::max_align_t> value_;
    std::vector<std::uint8_t> octets_;
    std::optional<std::string> error_;
};

// What a writer of the runtime gives piece by piece: `write(sink, arg)`.
template <typename Write>
std::string written(const Write& write)
{
    std::string text;
    write([](void* to, const char* piece) { *static_cast<std::string*>(to) += piece; }, &text);
    return text;
}

std::string treeText(const Message& message);

// The message's octets: as given, or the encoding of a text. Throws Failure.
std::vector<std::uint8_t> octetsOf(const RtxPdu& pdu, const Given& given);

} // namespace tool
