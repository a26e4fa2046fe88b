// Decodes and encodes again each line "CellGroupConfig <hex>" of standard input with the project's own runtime:
// "ok <hex>", or "error <line>". The counterpart of the oracle's command of the same name.
#include "NR-RRC-Definitions.h"

#include <cctype>
#include <iostream>
#include <string>
#include <vector>

namespace
{

bool octetsOf(const std::string& hex, std::vector<OSOCTET>& octets)
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

std::string hexOf(const std::vector<OSOCTET>& octets, std::size_t count)
{
    constexpr const char* digits = "0123456789abcdef";
    std::string hex;
    for (std::size_t i = 0; i < count; ++i)
    {
        hex += digits[octets[i] >> 4];
        hex += digits[octets[i] & 15];
    }
    return hex;
}

std::string errorOf(const OSCTXT& context)
{
    char line[512];
    rtxErrFormat(&context, line, sizeof line);
    return std::string("error ") + line;
}

std::string reencode(std::vector<OSOCTET> octets)
{
    OSCTXT context;
    rtxInitContext(&context);
    CellGroupConfig value;
    std::string result;
    pu_setBuffer(&context, octets.data(), octets.size(), 0);
    if (asn1PD_CellGroupConfig(&context, &value) != 0)
    {
        result = errorOf(context);
    }
    else
    {
        std::vector<OSOCTET> again(octets.size() + 16);
        pu_setBuffer(&context, again.data(), again.size(), 0);
        result = asn1PE_CellGroupConfig(&context, &value) != 0 ? errorOf(context) : "ok " + hexOf(again, pu_getMsgLen(&context));
    }
    rtFreeContext(&context);
    return result;
}

} // namespace

int main()
{
    std::string type;
    std::string hex;
    while (std::cin >> type >> hex)
    {
        std::vector<OSOCTET> octets;
        std::cout << (type == "CellGroupConfig" && octetsOf(hex, octets) ? reencode(std::move(octets)) : "error not a message") << '\n';
    }
    return 0;
}
