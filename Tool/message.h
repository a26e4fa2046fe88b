// A message that has been read: its element tree, and what is wrong with it.
#pragma once

#include "messageFindings.h"
#include "messageTypes.h"
#include "rrcCodec/rrcCodec.h"
#include "session.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace tool
{

class Message
{
public:
    // Reads the input as a message of the type, a record as what it composes to; `given` has to live as long. Of
    // malformed octets the tree has what was read before the error, of a text with mistakes or a record that is refused
    // nothing.
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
    OSCTXT& context()
    {
        return context_;
    }
    const void* value() const
    {
        return value_.data();
    }

    bool isText() const
    {
        return isText_;
    }
    // Why the octets cannot be decoded; null when they can, and for a text.
    const RtxError* error() const
    {
        return isText_ || context_.error.status == RTX_OK ? nullptr : &context_.error;
    }

    // The record, where one was given; with mistakes it is of no use.
    const RrcCellGroupCfg_t* record() const
    {
        return record_.get();
    }
    // Why it cannot be composed; empty when it can.
    const std::string& refusal() const
    {
        return refusal_;
    }

    // A mistake in a text.
    struct Mistake
    {
        std::string file; // that the text includes; empty: in the text itself
        std::size_t line; // both from 1
        std::size_t column;
        std::string path;
        std::string words;
    };
    const std::vector<Mistake>& mistakes() const
    {
        return mistakes_;
    }
    // Fields of the record that are given and not read.
    const std::vector<Mistake>& unread() const
    {
        return unread_;
    }

    // Throws Failure with all that makes the message malformed, a line each; nothing when it is well-formed.
    void expectGood() const;
    // The encoding of a good message's tree. Throws Failure.
    std::vector<std::uint8_t> encode();

private:
    void decode();
    void readText(const Input& input);
    void readRecord(const Input& input);

    const RtxPdu& pdu_;
    const Given& given_;
    bool isText_;
    OSCTXT context_;
    std::vector<std::max_align_t> value_;
    std::vector<std::uint8_t> octets_; // what the decoder reads
    std::unique_ptr<RrcCellGroupCfg_t> record_;
    std::string refusal_;
    std::vector<Mistake> mistakes_;
    std::vector<Mistake> unread_;
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

// The encoding of a tree, which is valid; empty, with the reason as the context's error, when it is longer than `most`.
std::vector<std::uint8_t> encoding(const RtxPdu& pdu, OSCTXT& context, const void* value, std::size_t most);

// The message's octets: as given, or the encoding of a text. Throws Failure.
std::vector<std::uint8_t> octetsOf(const RtxPdu& pdu, const Given& given);

} // namespace tool
