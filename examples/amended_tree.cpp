// What a record cannot say: its element tree is composed, amended and encoded.

#include <array>
#include <memory>

#include "amendedTree.h"
#include "rrcCodec/rrcCompose.h"
#include "showCellGroup.h"
#include "typicalCall.h"

int main()
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    typicalCall(*record);

    std::array<UINT8, 8192> octets;
    OSCTXT context;
    rtxInitContext(&context);
    CellGroupConfig* tree;
    INT32 status = rrcComposeCellGroupTree(&context, record.get(), &tree);
    if (status == RRC_COMPOSE_OK)
    {
        amend(*tree);
        (void)pu_setBuffer(&context, octets.data(), octets.size(), 0);
        status = asn1PE_CellGroupConfig(&context, tree);
        rtxErrPrint(&context);
    }
    const size_t length = pu_getMsgLen(&context);
    rtFreeContext(&context);
    return status == 0 ? showMessage(octets.data(), length) : 1;
}
