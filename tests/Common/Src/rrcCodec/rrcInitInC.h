#ifndef RRCINITINC_H
#define RRCINITINC_H

#include "rrcCodec/rrcInit.h"

#ifdef __cplusplus
extern "C"
{
#endif

// rrcInit as a C program has it: of a large record, and of two small ones in it that are switched on.
void initInC(RrcCellGroupCfg_t* record);

#ifdef __cplusplus
}
#endif

#endif
