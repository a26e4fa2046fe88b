#include "states.h"

#include "rtxType.h"

namespace tool
{
namespace
{

[[noreturn]] void failWith(const RtxError& error, const std::string& place)
{
    throw Failure(error.status == RTX_E_HEAP ? Exit::Usage : Exit::Findings,
                  (place.empty() ? "" : place + ": ") + errorText(error));
}

} // namespace

std::optional<Encoding> heldBy(Session& session, const std::string& operand)
{
    if (operand == "none")
    {
        return std::nullopt;
    }
    const Given given = session.only(operand);
    return Message(*session.common().type, given).encode();
}

void* newTree(OSCTXT& context, const RtxPdu& pdu)
{
    void* const tree = rtxMemHeapAlloc(&context, pdu.type->size);
    if (tree == nullptr)
    {
        throw Failure(Exit::Usage, "out of memory");
    }
    return tree;
}

namespace
{

// What is told of a message that is applied.
struct Told
{
    Session& session;
    const std::string place;
    std::string refusal;
};

const void* stateOf(OSCTXT& context, const RtxPdu& pdu, const void* message)
{
    void* const state = newTree(context, pdu);
    if (rtxState(&context, pdu.type, message, state) != RTX_OK)
    {
        failWith(context.error, "");
    }
    return state;
}

} // namespace

const void* stateOf(Message& message)
{
    return stateOf(message.context(), message.pdu(), message.value());
}

void* Trees::room()
{
    return newTree(context_, pdu_);
}

const void* decodedIn(OSCTXT& context, const RtxPdu& pdu, const Encoding& octets)
{
    void* const tree = newTree(context, pdu);
    (void)pu_setBuffer(&context, const_cast<std::uint8_t*>(octets.data()), octets.size(), 0);
    if (rtxDecode(&context, pdu.type, tree, 0) != RTX_OK)
    {
        failWith(context.error, "");
    }
    return tree;
}

const void* Trees::decoded(const Encoding& octets)
{
    return decodedIn(context_, pdu_, octets);
}

const void* Trees::decoded(const std::optional<Encoding>& octets)
{
    return octets ? decoded(*octets) : nullptr;
}

Encoding Trees::encoded(const void* tree)
{
    Encoding octets = encoding(pdu_.encode, context_, tree, maxInputOctets);
    if (octets.empty())
    {
        fail();
    }
    return octets;
}

const void* Trees::state(const void* message)
{
    return stateOf(context_, pdu_, message);
}

void Trees::fail(const std::string& place) const
{
    failWith(context_.error, place);
}

Encoding stateAfter(const RtxPdu& pdu, const Encoding& message)
{
    Trees trees(pdu);
    return trees.encoded(trees.state(trees.decoded(message)));
}

// Each message has a context of its own, so that a log of any length takes the memory of one message.
Encoding stateAfter(Session& session, const std::optional<Encoding>& held, const Encoding& delta,
                    const std::string& place)
{
    Trees trees(*session.common().type);
    Told told{session, place + ": ", {}};
    const auto sink = [](void* to, const RtxDeltaItem* item)
    {
        auto& [output, where, refusal] = *static_cast<Told*>(to);
        if (item->kind == RTX_DELTA_REFUSED)
        {
            refusal = itemText(*item);
        }
        else
        {
            output.say(where + itemText(*item));
        }
    };
    void* const state = trees.room();
    const int status =
        rtxApply(trees.context(), trees.type(), trees.decoded(held), trees.decoded(delta), state, sink, &told);
    if (status == RTX_E_DELTA)
    {
        throw Failure(Exit::Findings, told.place + told.refusal);
    }
    if (status != RTX_OK)
    {
        trees.fail(place);
    }
    return trees.encoded(state);
}

std::string itemText(const RtxDeltaItem& item)
{
    std::string line(rtxDeltaFormat(&item, nullptr, 0) + 1, '\0');
    (void)rtxDeltaFormat(&item, line.data(), line.size());
    line.pop_back(); // the terminator
    return line;
}

} // namespace tool
