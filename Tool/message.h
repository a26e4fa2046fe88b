// A message that has been read: its element tree, and what is wrong with it.
#pragma once

#include "messageFindings.h"
#include "messageTypes.h"
#include "readMessage.h"
#include "session.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace tool
{

// A reading of the type that was asked for, with the place where it was given.
class Message : public ReadMessage
{
public:
    // `given` has to live as long. Throws Failure of a record of another type.
    Message(const RtxPdu& pdu, const Given& given);

    const RtxPdu& pdu() const
    {
        return pdu_;
    }

    // Throws Failure with all that makes the message malformed, a line each; nothing when it is well-formed.
    void expectGood() const;
    // The encoding of a good message's tree. Throws Failure.
    std::vector<std::uint8_t> encode();

private:
    const RtxPdu& pdu_;
    const Given& given_;
};

// What a writer of the runtime gives piece by piece: `write(sink, arg)`.
template <typename Write>
std::string written(const Write& write)
{
    std::string text;
    write([](void* to, const char* piece) { *static_cast<std::string*>(to) += piece; }, &text);
    return text;
}

// With what is remarked on its values.
std::string treeText(const Message& message, RtxRemark remark = nullptr, void* arg = nullptr);

// A value in X.680's notation, on one line and without its type. Its pointers lead into the context's heap.
std::string valueText(const OSCTXT* context, const RtxType& type, const void* value);

using page::errorText;

// The message's octets: as given, or the encoding of a text. Throws Failure.
std::vector<std::uint8_t> octetsOf(const RtxPdu& pdu, const Given& given);

} // namespace tool
