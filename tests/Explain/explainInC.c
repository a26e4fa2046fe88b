/* The public header in a program of C alone. */
#include "rrcExplain.h"

#include <string.h>

static int keep(void* arg, const RrcMeaning* meaning)
{
    (void)rrcMeaningFormat(meaning, (char*)arg, 100);
    return 0;
}

/* 1 where the meaning of an RNTI is told. */
int meaningInC(void);

int meaningInC(void)
{
    OSCTXT context;
    CellGroupConfig element;
    char line[100] = "";
    int64_t told = 0;

    if (rtxInitContext(&context) != 0)
    {
        return 0;
    }
    asn1Init_CellGroupConfig(&element);
    element.m.physicalCellGroupConfigPresent = 1;
    element.physicalCellGroupConfig.m.tpc_PUCCH_RNTIPresent = 1;
    element.physicalCellGroupConfig.tpc_PUCCH_RNTI = 4660;
    told = rrcExplain(&context, &element, NULL, keep, line);
    rtFreeContext(&context);
    return told == 1 && strcmp(line, "0x1234") == 0;
}
