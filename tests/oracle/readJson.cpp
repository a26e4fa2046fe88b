// Reads each line "<Type> <JER>" of standard input into a tree and encodes it: "ok <hex>", or "error <mistakes>".
#include "NR-RRC-Pdus.h"
#include "asn1FromText.h"
#include "rtxType.h"

#include <algorithm>
#include <cstddef>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "support/Hex.h"

namespace
{

void append(void* arg, const Asn1Mistake* mistake)
{
    *static_cast<std::string*>(arg) += ' ' + std::to_string(mistake->line) + ':' + std::to_string(mistake->column) +
                                       ": " + mistake->path + ": " + mistake->words;
}

std::string read(const RtxPdu& pdu, const std::string& json)
{
    OSCTXT context;
    rtxInitContext(&context);
    std::vector<std::max_align_t> value(pdu.type->size / sizeof(std::max_align_t) + 1);
    std::string result = "error";
    if (asn1FromJson(&context, pdu.type, value.data(), json.data(), json.size(), append, &result) == 0)
    {
        std::vector<OSOCTET> octets(json.size() + 16); // a value takes more letters than octets
        pu_setBuffer(&context, octets.data(), octets.size(), 0);
        if (pdu.encode(&context, value.data()) == 0)
        {
            result = "ok " + test::hexDigits(octets.data(), pu_getMsgLen(&context));
        }
        else
        {
            char line[512];
            rtxErrFormat(&context, line, sizeof line);
            result += std::string(" not encoded: ") + line;
        }
    }
    rtFreeContext(&context);
    return result;
}

} // namespace

int main()
{
    std::string type;
    std::string json;
    while (std::cin >> type && std::getline(std::cin, json))
    {
        const auto* const found =
            std::find_if(std::begin(rtxPdus), std::end(rtxPdus), [&](const RtxPdu& pdu) { return type == pdu.name; });
        std::cout << (found != std::end(rtxPdus) ? read(*found, json) : "error not a type") << '\n';
    }
    return 0;
}
