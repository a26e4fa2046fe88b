/* Composes the smallest cell group and a refused one, and calls a packer. */
#include <stdio.h>
#include <string.h>

#include "rrcCodec/rrcCodec.h"

#ifdef OWN_PLATFORM
#include "own_platform.h"
#endif

static RrcCellGroupCfg_t record;
static UINT8 octets[8192];

static int check(int holds, const char* what)
{
    if (!holds)
    {
        fprintf(stderr, "wrong: %s\n", what);
    }
    return holds ? 0 : 1;
}

int main(void)
{
    int wrong = 0;
    UINT8 packed[6];
    Mbuf_t mbuf;
    memset(&mbuf, 0, sizeof(mbuf));
    mbuf.buf = octets;

    record.cellGroupId = 1;
    wrong += check(rrcComposeCellGroupCfg(&record, &mbuf) == VOS_OK, "result");
    wrong += check(mbuf.bufLen == 2 && octets[0] == 0x00 && octets[1] == 0x40, "octets");

    mbuf.bufLen = 77;
    record.cellGroupId = 9;
    wrong += check(rrcComposeCellGroupCfg(&record, &mbuf) == VOS_ERROR, "result of a refused record");
    wrong += check(mbuf.bufLen == 77, "length of a refused record");
#ifdef OWN_PLATFORM
    wrong += check(ownConsoleLines > 0, "the product's own console");
#endif

    uint64ToBitString43bit(1, packed);
    wrong += check(memcmp(packed, "\x00\x00\x00\x00\x00\x20", sizeof(packed)) == 0, "packed bits");
    return wrong;
}
