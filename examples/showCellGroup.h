#ifndef SHOWCELLGROUP_H
#define SHOWCELLGROUP_H

#include <array>
#include <cstdio>

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCodec.h"

// Prints the octets of a CellGroupConfig in hex, then the element tree that they decode to, with `json` its
// JER, too. Returns the exit status.
inline int showMessage(UINT8* octets, size_t length, bool json = false)
{
    std::printf("%zu octets:", length);
    for (size_t i = 0; i < length; ++i)
    {
        std::printf("%s%02x", i % 16 == 0 ? "\n    " : " ", octets[i]);
    }
    std::printf("\n\n");

    OSCTXT context;
    rtxInitContext(&context);
    CellGroupConfig cellGroup;
    int status = pu_setBuffer(&context, octets, length, 0);
    if (status == 0)
    {
        status = asn1PD_CellGroupConfig(&context, &cellGroup);
    }
    if (status == 0)
    {
        rtxPrintSetContext(&context);
        asn1Print_CellGroupConfig("CellGroupConfig", &cellGroup);
        if (json)
        {
            std::printf("\n");
            const auto print = [](void*, const char* text)
            {
                std::printf("%s", text);
            };
            status = asn1ToJson_CellGroupConfig(&context, &cellGroup, RTX_INDENTED, print, nullptr);
        }
    }
    else
    {
        rtxErrPrint(&context);
    }
    rtFreeContext(&context);
    return status == 0 ? 0 : 1;
}

// Composes the record and shows the message. Returns the exit status.
inline int showCellGroup(RrcCellGroupCfg_t& record, bool json = false)
{
    std::array<UINT8, 8192> octets;
    Mbuf_t message = {0, octets.data()};
    return rrcComposeCellGroupCfg(&record, &message) == VOS_OK ? showMessage(octets.data(), message.bufLen, json) : 1;
}

#endif
