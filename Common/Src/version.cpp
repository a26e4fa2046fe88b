#include "cellgroupcfg/version.h"

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCodec.h"

#include <cstring>

const char* cellgroupcfgVersion(void)
{
    return CELLGROUPCFG_VERSION;
}

unsigned cellgroupcfgAbi(void)
{
    return CELLGROUPCFG_ABI;
}

int cellgroupcfgAbiMatches(unsigned abi, size_t recordSize)
{
    return abi == CELLGROUPCFG_ABI && recordSize == sizeof(RrcCellGroupCfg_t) ? 1 : 0;
}

size_t cellgroupcfgSizeOf(const char* name)
{
    static constexpr struct
    {
        const char* name;
        size_t octets;
    } structures[] = {
        {"RrcCellGroupCfg_t", sizeof(RrcCellGroupCfg_t)},
        {"OSCTXT", sizeof(OSCTXT)},
        {"CellGroupConfig", sizeof(CellGroupConfig)},
    };
    for (const auto& one : structures)
    {
        if (name != nullptr && std::strcmp(name, one.name) == 0)
        {
            return one.octets;
        }
    }
    return 0;
}
