// A call goes on: of each change only the delta is sent, and what the UE has confirmed is kept for the next one.

#include <array>
#include <cstdio>
#include <memory>

#include "cellGroupDeltas.h"
#include "rrcCodec/rrcCompose.h"
#include "showCellGroup.h"

namespace
{

struct Change
{
    const char* what;
    void (*make)(RrcCellGroupCfg_t& record);
};

constexpr Change changes[] = {
    {"A bearer is added", addBearer},
    {"A CSI report changes", changeReport},
    {"An SCell is released", releaseSCell},
};

// Sends what takes the UE from what it has to what it shall have. Returns the exit status.
int reconfigure(const Change& change, RrcCellGroupCfg_t& prev, RrcCellGroupCfg_t& next)
{
    std::array<UINT8, 8192> octets;
    Mbuf_t message = {0, octets.data()};
    if (rrcComposeCellGroupCfg(&next, &message) != VOS_OK)
    {
        return 1;
    }
    std::printf("%s. The whole configuration has %u octets, the delta has\n", change.what, message.bufLen);
    if (rrcComposeCellGroupDelta(&prev, &next, &message) != VOS_OK)
    {
        return 1;
    }
    return showMessage(octets.data(), message.bufLen);
}

} // namespace

int main()
{
    const auto prev = std::make_unique<RrcCellGroupCfg_t>();
    const auto next = std::make_unique<RrcCellGroupCfg_t>();
    secondaryCells(*prev);
    *next = *prev;
    for (const Change& change : changes)
    {
        change.make(*next);
        if (reconfigure(change, *prev, *next) != 0)
        {
            return 1;
        }
        *prev = *next; // as soon as the UE has confirmed it
        std::printf("\n");
    }

    Mbuf_t none = {};
    if (rrcComposeCellGroupDelta(prev.get(), next.get(), &none) != RRC_COMPOSE_NOTHING_TO_SEND)
    {
        return 1;
    }
    std::printf("Nothing is left to send.\n");
    return 0;
}
