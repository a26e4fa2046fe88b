// pcap: messages as a file that Wireshark opens.
#include "commands.h"
#include "message.h"
#include "pcapngWriter.h"

namespace tool
{

void pcap(Session& session, const Operands& operands, Nesting nesting)
{
    session.expectBinary();
    const bool several = session.isSeveral(operands);
    PcapngWriter writer;
    const auto add = [&](const Given& given)
    {
        const auto problem = writer.add(octetsOf(*session.common().type, given), nesting, several ? given.place() : "");
        if (problem)
        {
            throw Failure(Exit::Malformed, given.place() + ": " + *problem);
        }
    };
    session.forEach(operands, add);
    const std::vector<std::uint8_t> file = writer.take();
    session.put({reinterpret_cast<const char*>(file.data()), file.size()});
}

} // namespace tool
