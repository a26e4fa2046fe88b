/* The generated header is valid C11, and a C program encodes with it. */
#include "NR-RRC-Definitions.h"

#include <stdio.h>

int main(void)
{
    OSCTXT context;
    OSOCTET octets[8];
    CellGroupConfig group;
    OSOCTET memory[256];
    int failed = rtxInitContext(&context);
    rtxMemHeapSetLimit(&context, rtxMemHeapSetMemory(&context, memory, sizeof memory));
    failed |= rtxMemHeapAlloc(&context, 128) == NULL || rtxMemHeapFailed(&context);
    asn1Init_CellGroupConfig(&group);
    group.cellGroupId = maxSecondaryCellGroups;
    failed |= pu_setBuffer(&context, octets, sizeof octets, 0);
    failed |= asn1PE_CellGroupConfig(&context, &group);
    failed |= pu_getMsgLen(&context) != 2 || octets[0] != 0x00 || octets[1] != 0xC0;
    rtxErrPrint(&context);
    rtFreeContext(&context);
    if (failed != 0)
    {
        (void)fprintf(stderr, "not the octets 00c0\n");
    }
    return failed != 0;
}
