// captures write: lines "bare|rrc-reconfiguration|rrc-setup HEX [COMMENT]" to a pcapng file.
// captures list: a capture to lines "number seconds.nanoseconds link-type length HEX".
#include "captureReader.h"
#include "pcapngWriter.h"
#include "support/Hex.h"

#include <iostream>
#include <map>
#include <sstream>
#include <string>

namespace
{

int write()
{
    const std::map<std::string, tool::Nesting> nestings{{"bare", tool::Nesting::Bare},
                                                        {"rrc-reconfiguration", tool::Nesting::RrcReconfiguration},
                                                        {"rrc-setup", tool::Nesting::RrcSetup}};
    tool::PcapngWriter writer;
    for (std::string line; std::getline(std::cin, line);)
    {
        std::istringstream words(line);
        std::string nesting;
        std::string hex;
        std::string comment;
        words >> nesting >> hex >> std::ws;
        std::getline(words, comment);
        if (const auto error = writer.add(test::octetsOf(hex), nestings.at(nesting), comment))
        {
            std::cerr << *error << '\n';
            return 1;
        }
    }
    const auto file = writer.take();
    std::cout.write(reinterpret_cast<const char*>(file.data()), static_cast<std::streamsize>(file.size()));
    return std::cout.flush() ? 0 : 1;
}

int list()
{
    const auto error = tool::readCapture(
        {}, stdin,
        [](const tool::Packet& packet)
        {
            (void)std::printf("%ju %jd.%09u %d %zu %s\n", std::uintmax_t{packet.number}, std::intmax_t{packet.seconds},
                              packet.nanoseconds, packet.linkType, packet.length,
                              test::hexDigits(packet.octets.data(), packet.octets.size()).c_str());
        });
    if (error)
    {
        std::cerr << *error << '\n';
    }
    return error ? 1 : 0;
}

} // namespace

int main(int argc, char** argv)
{
    const std::string command = argc == 2 ? argv[1] : "";
    if (command == "write")
    {
        return write();
    }
    if (command == "list")
    {
        return list();
    }
    std::cerr << "usage: captures write|list\n";
    return 2;
}
