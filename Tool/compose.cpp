// compose: a record as the message that it makes.
#include "commands.h"
#include "messageTypes.h"

namespace tool
{

void compose(Session& session, const std::string& operand, StateForm form)
{
    if (form == StateForm(OctetsForm::Binary))
    {
        session.expectBinary();
    }
    const Session::Source from = session.file(operand, maxInputOctets);
    const Given given = session.given(from, 0, from.raw, Form::Record);
    const RtxPdu& pdu = typeNamed("CellGroupConfig");
    session.put(stateIn(form, pdu, Message(pdu, given).encode(), "message"));
}

} // namespace tool
