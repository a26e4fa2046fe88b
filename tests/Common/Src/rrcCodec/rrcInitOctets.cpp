// Prints what the examples compose to, and what a record does that is switched on and not initialised. Built twice,
// with RRC_INIT_PATTERN and without: the examples initialise what they switch on, so that the lines differ for the last
// alone.
#include <cstdio>
#include <cstring>
#include <memory>

#include "oneBearer.h"
#include "releases.h"
#include "rrcCodec/rrcCompose.h"
#include "secondaryCells.h"
#include "support/Hex.h"
#include "typicalCall.h"

namespace
{

void forgetful(RrcCellGroupCfg_t& record)
{
    rrcInit(&record);
    record.bitMask = RRC_CELLGROUPCFG_MAC_PRESENCE;
    rrcInit(&record.macCellGrpCfg);
    record.macCellGrpCfg.bitMask = RRC_MAC_CELL_GRP_CFG_BSR_PRESENCE;
    record.macCellGrpCfg.bsrCfg.bitMask = 0;
    record.macCellGrpCfg.bsrCfg.periodicBsrTimer = BSR_Config_periodicBSR_Timer_sf10;
}

} // namespace

int main()
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    std::memset(record.get(), 0, sizeof *record);
    for (void (*const fill)(RrcCellGroupCfg_t&) :
         {oneBearer, reconfigurationWithSync, typicalCall, secondaryCells, releases, forgetful})
    {
        UINT8 octets[8192];
        size_t length = 0;
        char error[512];
        fill(*record);
        if (rrcEncodeCellGroupCfg(record.get(), octets, sizeof octets, &length, error, sizeof error) == RRC_COMPOSE_OK)
        {
            std::puts(test::hexDigits(octets, length).c_str());
        }
        else
        {
            std::puts(error);
        }
    }
    return 0;
}
