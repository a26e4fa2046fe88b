#ifndef SHOWCELLGROUP_H
#define SHOWCELLGROUP_H

#include <array>
#include <cstdio>

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCodec.h"

// Composes the record, prints the octets in hex, then the element tree that they decode to. Returns the exit status.
inline int showCellGroup(RrcCellGroupCfg_t& record)
{
    std::array<UINT8, 8192> octets;
    Mbuf_t message = {0, octets.data()};
    if (rrcComposeCellGroupCfg(&record, &message) != VOS_OK)
    {
        return 1;
    }
    std::printf("%u octets:", message.bufLen);
    for (UINT32 i = 0; i < message.bufLen; ++i)
    {
        std::printf("%s%02x", i % 16 == 0 ? "\n    " : " ", octets[i]);
    }
    std::printf("\n\n");

    OSCTXT context;
    rtxInitContext(&context);
    CellGroupConfig cellGroup;
    int status = pu_setBuffer(&context, octets.data(), message.bufLen, 0);
    if (status == 0)
    {
        status = asn1PD_CellGroupConfig(&context, &cellGroup);
    }
    if (status == 0)
    {
        rtxPrintSetContext(&context);
        asn1Print_CellGroupConfig("CellGroupConfig", &cellGroup);
    }
    else
    {
        rtxErrPrint(&context);
    }
    rtFreeContext(&context);
    return status == 0 ? 0 : 1;
}

#endif
