// Reads each line "<Type> <JER>" of standard input into a tree and encodes it: "ok <hex>", or "error <mistakes>".
#include "NR-RRC-Tables.h"
#include "TestPdus.h"
#include "asn1FromText.h"

#include <iostream>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "support/Hex.h"

namespace
{

void append(void* arg, const Asn1Mistake* mistake)
{
    *static_cast<std::string*>(arg) += ' ' + std::to_string(mistake->line) + ':' + std::to_string(mistake->column) +
                                       ": " + mistake->path + ": " + mistake->words;
}

template <typename T, int (*encode)(OSCTXT*, const T*)>
std::string read(const RtxType& type, const std::string& json)
{
    OSCTXT context;
    rtxInitContext(&context);
    const auto value = std::make_unique<T>();
    std::string result = "error";
    if (asn1FromJson(&context, &type, value.get(), json.data(), json.size(), append, &result) == 0)
    {
        std::vector<OSOCTET> octets(json.size() + 16); // a value takes more letters than octets
        pu_setBuffer(&context, octets.data(), octets.size(), 0);
        if (encode(&context, value.get()) == 0)
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

struct Type
{
    const RtxType& descriptor;
    std::string (*read)(const RtxType& type, const std::string& json);
};

#define TYPE(asnName, cName)                                                                                           \
    {                                                                                                                  \
        asnName,                                                                                                       \
        {                                                                                                              \
            nr_rrc::type_##cName, read<cName, asn1PE_##cName>                                                          \
        }                                                                                                              \
    }

const std::unordered_map<std::string, Type> types = {
    TYPE("CellGroupConfig", CellGroupConfig),
#include "types.inc"
};

} // namespace

int main()
{
    std::string type;
    std::string json;
    while (std::cin >> type && std::getline(std::cin, json))
    {
        const auto found = types.find(type);
        std::cout << (found != types.end() ? found->second.read(found->second.descriptor, json) : "error not a type")
                  << '\n';
    }
    return 0;
}
