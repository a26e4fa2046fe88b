// oneCall encode|entry|decode: calls it for the typical call, twice. code_lines.py counts the code that the second call
// touches, which measuredCall makes.
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "NR-RRC-Definitions.h"
#include "typicalCall.h"

namespace
{

std::unique_ptr<RrcCellGroupCfg_t> record;
std::vector<OSOCTET> octets(8192);
Mbuf_t message;
OSCTXT context;
CellGroupConfig tree;

bool entry()
{
    message = {0, octets.data()};
    return rrcComposeCellGroupCfg(record.get(), &message) == 0;
}

bool decode()
{
    rtFreeContext(&context);
    rtxInitContext(&context);
    pu_setBuffer(&context, message.buf, message.bufLen, 0);
    return asn1PD_CellGroupConfig(&context, &tree) == 0;
}

bool encode()
{
    pu_setBuffer(&context, message.buf, octets.size(), 0);
    return asn1PE_CellGroupConfig(&context, &tree) == 0;
}

} // namespace

extern "C" [[gnu::noinline]] int measuredCall(bool (*call)())
{
    return call() ? 0 : 1;
}

int main(int argc, char** argv)
{
    const std::string name = argc == 2 ? argv[1] : "";
    bool (*const call)() = name == "encode" ? encode : name == "entry" ? entry : name == "decode" ? decode : nullptr;
    if (call == nullptr)
    {
        std::fprintf(stderr, "usage: %s encode|entry|decode\n", argv[0]);
        return 2;
    }
    record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    typicalCall(*record);
    rtxInitContext(&context);
    const bool called = entry() && decode() && call() && measuredCall(call) == 0;
    rtFreeContext(&context);
    return called ? 0 : 1;
}
