// apply: what a UE holds after messages.
#include "commands.h"
#include "states.h"

namespace tool
{
namespace
{

// What a complete message leaves behind.
Encoding stateAfter(const RtxPdu& pdu, const Encoding& message)
{
    Trees trees(pdu);
    void* const state = trees.room();
    if (rtxState(trees.context(), trees.type(), trees.decoded(message), state) != RTX_OK)
    {
        trees.fail();
    }
    return trees.encoded(state);
}

// What is told of a message that is applied.
struct Told
{
    Session& session;
    const std::string place;
    std::string refusal;
};

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

} // namespace

void apply(Session& session, const std::string& prev, const Operands& deltas, StateForm form)
{
    if (form == StateForm(OctetsForm::Binary))
    {
        session.expectBinary();
    }
    std::optional<Encoding> held = heldBy(session, prev);
    if (held)
    {
        held = stateAfter(*session.common().type, *held);
    }
    // Behind a message that could not be applied there is no state to go on with.
    unsigned number = 0;
    const auto take = [&](const Given& given)
    {
        ++number;
        if (session.status() == Exit::Done)
        {
            held = stateAfter(session, held, Message(*session.common().type, given).encode(),
                              given.place() + ": message " + std::to_string(number));
        }
    };
    session.forEach(deltas, take);
    if (session.status() != Exit::Done)
    {
        session.say("no state is shown, as not all messages could be applied");
    }
    else if (held)
    {
        session.put(stateIn(form, *session.common().type, std::move(*held), "state"));
    }
}

} // namespace tool
