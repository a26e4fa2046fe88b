// Decodes and encodes again each line "<Type> <hex>" of standard input with the project's own runtime: "ok <hex>", or
// "error <line>". The counterpart of the oracle's command of the same name. With the argument "types" it prints the
// names of the types it knows.
#include "TestPdus.h"

#include <cstring>
#include <iostream>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "support/Hex.h"

namespace
{

using Octets = std::vector<OSOCTET>;

bool octetsOf(const std::string& hex, Octets& octets)
{
    if (hex.size() % 2 != 0 || hex.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos)
    {
        return false;
    }
    for (std::size_t i = 0; i < hex.size(); i += 2)
    {
        octets.push_back(static_cast<OSOCTET>(std::stoi(hex.substr(i, 2), nullptr, 16)));
    }
    return true;
}

std::string errorOf(const OSCTXT& context)
{
    char line[512];
    rtxErrFormat(&context, line, sizeof line);
    return std::string("error ") + line;
}

template <typename T, int (*decode)(OSCTXT*, T*), int (*encode)(OSCTXT*, const T*)>
std::string reencode(Octets octets)
{
    OSCTXT context;
    rtxInitContext(&context);
    const auto value = std::make_unique<T>();
    std::string result;
    pu_setBuffer(&context, octets.data(), octets.size(), 0);
    if (decode(&context, value.get()) != 0)
    {
        result = errorOf(context);
    }
    else
    {
        Octets again(octets.size() + 16);
        pu_setBuffer(&context, again.data(), again.size(), 0);
        result = encode(&context, value.get()) != 0 ? errorOf(context)
                                                    : "ok " + test::hexDigits(again.data(), pu_getMsgLen(&context));
    }
    rtFreeContext(&context);
    return result;
}

#define TYPE(asnName, cName)                                                                                           \
    {                                                                                                                  \
        asnName, reencode<cName, asn1PD_##cName, asn1PE_##cName>                                                       \
    }

const std::unordered_map<std::string, std::string (*)(Octets)> types = {
    TYPE("CellGroupConfig", CellGroupConfig),
#include "types.inc"
};

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && std::strcmp(argv[1], "types") == 0)
    {
        for (const auto& [name, function] : types)
        {
            std::cout << name << '\n';
        }
        return 0;
    }
    std::string type;
    std::string hex;
    while (std::cin >> type >> hex)
    {
        const auto found = types.find(type);
        Octets octets;
        std::cout << (found != types.end() && octetsOf(hex, octets) ? found->second(std::move(octets))
                                                                    : "error not a message")
                  << '\n';
    }
    return 0;
}
