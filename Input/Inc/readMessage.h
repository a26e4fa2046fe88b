// An input read as a message: its element tree, or what is wrong with it.
#pragma once

#include "asn1Runtime.h"
#include "input.h"
#include "rrcCodec/rrcCodec.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace tool
{

// A mistake in a text.
struct Mistake
{
    std::string file; // that the text includes; empty: in the text itself
    std::size_t line; // both from 1
    std::size_t column;
    std::string path;
    std::string words;
};

class ReadMessage
{
public:
    // As a message of the type; a record, which is a CellGroupConfig, as what it composes to. What a record includes
    // lies beside the file `source`; null: it may include nothing. Of malformed octets the tree has what was read
    // before the error, of a text with mistakes or a record that is refused nothing.
    ReadMessage(const RtxType& type, const Input& input, const char* source);
    ~ReadMessage();
    ReadMessage(const ReadMessage&) = delete;
    ReadMessage& operator=(const ReadMessage&) = delete;

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
    const std::vector<Mistake>& mistakes() const
    {
        return mistakes_;
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
    // Fields of the record that are given and not read.
    const std::vector<Mistake>& unread() const
    {
        return unread_;
    }

private:
    void decode(std::size_t length);
    void readText(const Input& input);
    void readRecord(const Input& input, const char* source);

    const RtxType& type_;
    bool isText_;
    OSCTXT context_;
    std::vector<std::max_align_t> value_;
    std::vector<std::uint8_t> octets_; // what the decoder reads
    std::unique_ptr<RrcCellGroupCfg_t> record_;
    std::string refusal_;
    std::vector<Mistake> mistakes_;
    std::vector<Mistake> unread_;
};

// The longest message that is read, in octets: several times what a cell group in an RRC message can have, and a bound
// of the memory that a hostile one can take.
inline constexpr std::size_t maxMessageOctets = 65536;

// The encoding of a tree, which is valid; empty, with the reason as the context's error, when it is longer than `most`.
std::vector<std::uint8_t> encoding(int (*encode)(OSCTXT*, const void*), OSCTXT& context, const void* value,
                                   std::size_t most);

} // namespace tool
