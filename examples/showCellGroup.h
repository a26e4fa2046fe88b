#ifndef SHOWCELLGROUP_H
#define SHOWCELLGROUP_H

#include <array>
#include <cstdio>

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCodec.h"

enum class Shown
{
    OCTETS,
    TREE, // between the octets, which stand at either end of a long tree
    JER   // behind the octets
};

// With their number, or behind what shows it already.
inline void showOctets(const UINT8* octets, size_t length, bool isAgain = false)
{
    isAgain ? std::printf("the octets again:") : std::printf("%zu octets:", length);
    for (size_t i = 0; i < length; ++i)
    {
        std::printf("%s%02x", i % 16 == 0 ? "\n    " : " ", octets[i]);
    }
    std::printf("\n");
}

// Prints the octets of a CellGroupConfig in hex, and the elements that they decode to. Returns the exit status.
inline int showMessage(UINT8* octets, size_t length, Shown shown = Shown::TREE)
{
    showOctets(octets, length);
    if (shown == Shown::OCTETS)
    {
        return 0;
    }

    std::printf("\n");
    OSCTXT context;
    rtxInitContext(&context);
    CellGroupConfig cellGroup;
    int status = pu_setBuffer(&context, octets, length, 0);
    if (status == 0)
    {
        status = asn1PD_CellGroupConfig(&context, &cellGroup);
    }
    if (status != 0)
    {
        rtxErrPrint(&context);
    }
    else if (shown == Shown::TREE)
    {
        rtxPrintSetContext(&context);
        asn1Print_CellGroupConfig("CellGroupConfig", &cellGroup);
        std::printf("\n");
        showOctets(octets, length, true);
    }
    else
    {
        const auto print = [](void*, const char* text)
        {
            std::printf("%s", text);
        };
        status = asn1ToJson_CellGroupConfig(&context, &cellGroup, RTX_INDENTED, print, nullptr);
    }
    rtFreeContext(&context);
    return status == 0 ? 0 : 1;
}

// Composes the record and shows the message. Returns the exit status.
inline int showCellGroup(RrcCellGroupCfg_t& record, Shown shown = Shown::TREE)
{
    std::array<UINT8, 8192> octets;
    Mbuf_t message = {0, octets.data()};
    return rrcComposeCellGroupCfg(&record, &message) == VOS_OK ? showMessage(octets.data(), message.bufLen, shown) : 1;
}

#endif
