#include "encodeCellGroupInC.h"

#include "NR-RRC-Definitions.h"

INT32 encodeInC(const RrcCellGroupCfg_t* record, UINT8* buf, size_t capacity, size_t* length)
{
    char error[512];
    const INT32 status = rrcEncodeCellGroupCfg(record, buf, capacity, length, error, sizeof error);
    return (status == RRC_COMPOSE_OK) == (error[0] == '\0') ? status : 1;
}

INT32 amendInC(const RrcCellGroupCfg_t* record, UINT8* buf, size_t capacity, size_t* length)
{
    OSCTXT context;
    CellGroupConfig* tree = NULL;
    INT32 status = rtxInitContext(&context);
    if (status == 0)
    {
        status = rrcComposeCellGroupTree(&context, record, &tree);
    }
    if (status == RRC_COMPOSE_OK)
    {
        if (tree->mac_CellGroupConfig.m.drx_ConfigPresent)
        {
            tree->mac_CellGroupConfig.drx_Config.t = T_MAC_CellGroupConfig_drx_Config_release;
        }
        (void)pu_setBuffer(&context, buf, capacity, 0);
        status = asn1PE_CellGroupConfig(&context, tree);
        *length = pu_getMsgLen(&context);
    }
    rtFreeContext(&context);
    return status;
}

INT32 deltaInC(RrcCellGroupCfg_t* prev, RrcCellGroupCfg_t* next, UINT8* buf, size_t* length)
{
    Mbuf_t message = {0, buf};
    const INT32 status = rrcComposeCellGroupDelta(prev, next, &message);
    *length = message.bufLen;
    return status;
}
