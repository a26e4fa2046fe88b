// The program of a product: it composes an empty cell group.

#include <memory>

#include "rrcCodec/rrcInit.h"

int main()
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    rrcInit(record.get());
    UINT8 octets[8192];
    Mbuf_t message = {0, octets};
    return rrcComposeCellGroupCfg(record.get(), &message) == VOS_OK ? 0 : 1;
}
