// What a UE holds: messages that are applied to each other, as trees of one context.
#pragma once

#include "message.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tool
{

// A message or a state in unaligned PER; states may be longer than a message.
using Encoding = std::vector<std::uint8_t>;

// What the operand says that a UE holds; nothing for the word `none`. Throws Failure.
std::optional<Encoding> heldBy(Session& session, const std::string& operand);

// A context for as long as it lives.
class Trees
{
public:
    explicit Trees(const RtxPdu& pdu) : pdu_(pdu)
    {
        rtxInitContext(&context_);
    }
    ~Trees()
    {
        rtFreeContext(&context_);
    }
    Trees(const Trees&) = delete;
    Trees& operator=(const Trees&) = delete;

    OSCTXT* context()
    {
        return &context_;
    }
    const RtxType* type() const
    {
        return pdu_.type;
    }

    // Room for the root of a tree.
    void* room();
    const void* decoded(const Encoding& octets);
    // Null of nothing.
    const void* decoded(const std::optional<Encoding>& octets);
    Encoding encoded(const void* tree);
    // What a complete message leaves behind.
    const void* state(const void* message);

    // Throws Failure with what the context's error says: what cannot be, or that there is no memory.
    [[noreturn]] void fail(const std::string& place = "") const;

private:
    const RtxPdu& pdu_;
    OSCTXT context_;
};

// Room for the root of a tree in the context's heap.
void* newTree(OSCTXT& context, const RtxPdu& pdu);

// What a complete message leaves behind, a tree in the message's context.
const void* stateOf(Message& message);

// What a complete message leaves behind. Throws Failure.
Encoding stateAfter(const RtxPdu& pdu, const Encoding& message);

// What is held after a message that is applied to what was held, nothing or a state. Says what has no effect, and
// throws Failure with what is refused; `place` is the beginning of both.
Encoding stateAfter(Session& session, const std::optional<Encoding>& held, const Encoding& delta,
                    const std::string& place);

// A message's tree in the context's heap. Throws Failure.
const void* decodedIn(OSCTXT& context, const RtxPdu& pdu, const Encoding& octets);

std::string itemText(const RtxDeltaItem& item);

} // namespace tool
