// encode: a message as octets.
#include "commands.h"
#include "text.h"

namespace tool
{

void encode(Session& session, const Operands& operands, OctetsForm form)
{
    if (form == OctetsForm::Binary)
    {
        session.expectBinary();
    }
    const bool several = session.isSeveral(operands);
    unsigned number = 0;
    const auto write = [&](const Given& given)
    {
        const std::string name = numbered("message", several, number);
        session.put(octetsIn(form, octetsOf(*session.common().type, given), name));
    };
    session.forEach(operands, write);
}

} // namespace tool
