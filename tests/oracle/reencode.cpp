// Decodes and encodes again each line "<Type> <hex>" of standard input with the project's own runtime: "ok <hex>", or
// "error <line>". The counterpart of the oracle's command of the same name. With the argument "types" it prints the
// names of the types it knows.
#include "NR-RRC-Pdus.h"
#include "rtxType.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iostream>
#include <iterator>
#include <string>
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

std::string reencode(const RtxPdu& pdu, Octets octets)
{
    OSCTXT context;
    rtxInitContext(&context);
    std::vector<std::max_align_t> value(pdu.type->size / sizeof(std::max_align_t) + 1);
    std::string result;
    pu_setBuffer(&context, octets.data(), octets.size(), 0);
    if (rtxDecode(&context, pdu.type, value.data(), 0) != 0)
    {
        result = errorOf(context);
    }
    else
    {
        Octets again(octets.size() + 16);
        pu_setBuffer(&context, again.data(), again.size(), 0);
        result = pdu.encode(&context, value.data()) != 0
                     ? errorOf(context)
                     : "ok " + test::hexDigits(again.data(), pu_getMsgLen(&context));
    }
    rtFreeContext(&context);
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && std::strcmp(argv[1], "types") == 0)
    {
        for (const RtxPdu& pdu : rtxPdus)
        {
            std::cout << pdu.name << '\n';
        }
        return 0;
    }
    std::string type;
    std::string hex;
    while (std::cin >> type >> hex)
    {
        const auto* const pdu = std::find_if(std::begin(rtxPdus), std::end(rtxPdus),
                                             [&](const RtxPdu& candidate) { return candidate.name == type; });
        Octets octets;
        std::cout << (pdu != std::end(rtxPdus) && octetsOf(hex, octets) ? reencode(*pdu, std::move(octets))
                                                                        : "error not a message")
                  << '\n';
    }
    return 0;
}
