// Runs statements that fill records and prints what each record composes to, in hex, or the line that
// refuses it.
#include "filledRecords.h"

#include <cstdio>
#include <cstring>
#include <memory>
#include <vector>

#include "rrcCodec/rrcCompose.h"
#include "support/Hex.h"
#include "vos_lib.h"

// Stands in place of the platform's.
INT32 VOS_Printf(const char* /*format*/, ...)
{
    return 0;
}

int main()
{
    const auto record = std::make_unique<RrcCellGroupCfg_t>();
    std::memset(static_cast<void*>(record.get()), 0xA5, sizeof *record); // what the statements leave must not matter
    for (const Fill* fill = fills; *fill != nullptr; ++fill)
    {
        (*fill)(*record);
        std::vector<UINT8> octets(8192);
        size_t length = 0;
        char error[512];
        (void)rrcEncodeCellGroupCfg(record.get(), octets.data(), octets.size(), &length, error, sizeof error);
        std::printf("%s%s\n", error, test::hexDigits(octets.data(), length).c_str());
    }
    return 0;
}
