/* Composes the smallest cell group and a refused one, in each way, and calls a packer. */
#include <stdio.h>
#include <string.h>

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCompose.h"

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

/* The careful calls: a buffer of two octets, and a tree in which the cell group gets another identity. */
static int checkCareful(void)
{
    static UINT8 memory[RRC_COMPOSE_MEMORY_SIZE];
    int wrong = 0;
    size_t length = 0;
    char error[100];
    OSCTXT context;
    CellGroupConfig* tree;

    record.cellGroupId = 1;
    wrong += check(rrcEncodeCellGroupCfg(&record, octets, 2, &length, error, sizeof(error)) == RRC_COMPOSE_OK &&
                       length == 2 && octets[1] == 0x40,
                   "encoded");
    wrong += check(rrcEncodeCellGroupCfgInMemory(&record, memory, sizeof(memory), octets, 1, &length, error,
                                                 sizeof(error)) == RRC_COMPOSE_E_CAPACITY &&
                       length == 0 && strstr(error, "does not fit into 1 octet") != NULL,
                   "encoded into one octet");

    wrong += check(rtxInitContext(&context) == 0, "context");
    wrong += check(rrcComposeCellGroupTree(&context, &record, &tree) == RRC_COMPOSE_OK, "tree");
    tree->cellGroupId = 3;
    (void)pu_setBuffer(&context, octets, 2, 0);
    wrong += check(asn1PE_CellGroupConfig(&context, tree) == 0 && octets[1] == 0xC0, "amended tree");
    rtFreeContext(&context);
    return wrong;
}

int main(void)
{
    int wrong = checkCareful();
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
