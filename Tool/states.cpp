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

const void* Trees::decoded(const Encoding& octets)
{
    void* const tree = room();
    (void)pu_setBuffer(&context_, const_cast<std::uint8_t*>(octets.data()), octets.size(), 0);
    if (rtxDecode(&context_, pdu_.type, tree, 0) != RTX_OK)
    {
        fail();
    }
    return tree;
}

const void* Trees::decoded(const std::optional<Encoding>& octets)
{
    return octets ? decoded(*octets) : nullptr;
}

Encoding Trees::encoded(const void* tree)
{
    Encoding octets = encoding(pdu_, context_, tree, maxInputOctets);
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

std::string itemText(const RtxDeltaItem& item)
{
    std::string line(rtxDeltaFormat(&item, nullptr, 0) + 1, '\0');
    (void)rtxDeltaFormat(&item, line.data(), line.size());
    line.pop_back(); // the terminator
    return line;
}

} // namespace tool
