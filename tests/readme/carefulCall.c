#include <stdio.h>

#include "rrcCodec/rrcCompose.h"

static RrcCellGroupCfg_t record;
static UINT8 octets[2];

int main(void)
{
    record.cellGroupId = 9;
#include "carefulCall.inc"
    return 0;
}
