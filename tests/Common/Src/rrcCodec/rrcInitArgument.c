/* Compiles with the address of a record and with nothing else, in C as in C++. */
#include "rrcCodec/rrcInit.h"

void init(RrcCellGroupCfg_t* record)
{
    rrcInit(ARGUMENT);
    (void)record;
}
