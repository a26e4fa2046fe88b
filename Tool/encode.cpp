// encode: a message as octets.
#include "commands.h"
#include "message.h"
#include "octets.h"

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
        const std::vector<std::uint8_t> octets = octetsOf(*session.common().type, given);
        switch (form)
        {
        case OctetsForm::Hex:
            session.put(toHex(octets) + "\n");
            break;
        case OctetsForm::Binary:
            session.put({reinterpret_cast<const char*>(octets.data()), octets.size()});
            break;
        case OctetsForm::CArray:
            session.put(toCArray(octets, several ? "message" + std::to_string(++number) : "message"));
            break;
        case OctetsForm::Base64:
            session.put(toBase64(octets) + "\n");
            break;
        }
    };
    session.forEach(operands, write);
}

} // namespace tool
