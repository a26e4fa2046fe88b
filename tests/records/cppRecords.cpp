// cppRecords COUNT: writes a C++ program to standard output that fills COUNT random records by rrcRecordToCpp's
// statements and prints what they compose to, in hex; to standard error what they were to compose to. Half of the
// records hold anything that counts allow.
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

#include "records.h"
#include "rrcCodec/rrcCompose.h"
#include "rrcRecordToCpp.h"
#include "support/Hex.h"
#include "vos_lib.h"

// Stands in place of the platform's: notices are of no use here.
INT32 VOS_Printf(const char* /*format*/, ...)
{
    return 0;
}

namespace
{

void put(void* /*arg*/, const char* text)
{
    std::fputs(text, stdout);
}

void report(const RrcCellGroupCfg_t& record)
{
    std::vector<UINT8> octets(8192);
    size_t length = 0;
    char error[512];
    (void)rrcEncodeCellGroupCfg(&record, octets.data(), octets.size(), &length, error, sizeof error);
    std::fprintf(stderr, "%s%s\n", error, test::hexDigits(octets.data(), length).c_str());
}

} // namespace

int main(int argc, char** argv)
{
    const unsigned count = argc == 2 ? static_cast<unsigned>(std::strtoul(argv[1], nullptr, 10)) : 0;
    const auto record = std::make_unique<RrcCellGroupCfg_t>();
    std::printf("#include \"NR-RRC-Definitions.h\"\n#include \"rrcCodec/rrcInit.h\"\n#include \"filledRecords.h\"\n\n");
    for (unsigned i = 0; i < count; ++i)
    {
        records::Chance chance(i % 2 == 0 ? records::Chance::Ranges::kept : records::Chance::Ranges::dropped);
        chance.start(i + 1);
        records::draw(chance, *record);
        report(*record);
        std::printf("void fill%u(RrcCellGroupCfg_t& record);\nvoid fill%u(RrcCellGroupCfg_t& record)\n{\n", i, i);
        rrcRecordToCpp(record.get(), "record", put, nullptr);
        std::printf("}\n\n");
    }
    std::printf("const Fill fills[] = {");
    for (unsigned i = 0; i < count; ++i)
    {
        std::printf("fill%u, ", i);
    }
    std::printf("nullptr};\n");
    return 0;
}
