// draw: the radio resources of a message.
#include "commands.h"

#include "rrcDraw.h"

namespace tool
{

void draw(Session& session, const std::string& operand, const DrawOptions& options)
{
    const RuleInputs inputs(session, options.context);
    const Given given = session.only(operand);
    Message message(*session.common().type, given);
    message.expectGood();
    RrcRuleContext known = inputs.context();
    if (inputs.held())
    {
        known.previous =
            static_cast<const CellGroupConfig*>(decodedIn(message.context(), message.pdu(), *inputs.held()));
    }
    const std::string picture = ::draw::svg(message.context(), *static_cast<const CellGroupConfig*>(message.value()),
                                            &known, {options.firstSlot, options.slots});
    if (picture.empty())
    {
        throw Failure(Exit::Usage, "draw: " + errorText(message.context().error));
    }
    session.put(picture);
}

} // namespace tool
