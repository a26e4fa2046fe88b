/* A program that makes sure of the library that it runs with. */
#include <stdio.h>
#include <string.h>

#include "cellgroupcfg/version.h"
#include "rrcCodec/rrcCodec.h"

int main(void)
{
    const char* const version = cellgroupcfgVersion();
    printf("%s, ABI %u\n", version, cellgroupcfgAbi());
    return CELLGROUPCFG_ABI_MATCHES() && strcmp(version, CELLGROUPCFG_VERSION) == 0 &&
                   cellgroupcfgAbi() == CELLGROUPCFG_ABI &&
                   !cellgroupcfgAbiMatches(CELLGROUPCFG_ABI + 1, sizeof(RrcCellGroupCfg_t)) &&
                   !cellgroupcfgAbiMatches(CELLGROUPCFG_ABI, sizeof(RrcCellGroupCfg_t) - 1) &&
                   cellgroupcfgSizeOf("RrcCellGroupCfg_t") == sizeof(RrcCellGroupCfg_t) &&
                   cellgroupcfgSizeOf("none") == 0
               ? 0
               : 1;
}
