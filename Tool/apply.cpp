// apply: what a UE holds after messages.
#include "commands.h"
#include "states.h"

namespace tool
{
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
