#ifndef ENCODECELLGROUPINC_H
#define ENCODECELLGROUPINC_H

#include "rrcCodec/rrcCompose.h"

#ifdef __cplusplus
extern "C"
{
#endif

// rrcEncodeCellGroupCfg, rrcComposeCellGroupTree and rrcComposeCellGroupDelta as a C program has them. They give the
// status and the length; the second one releases DRX in the tree, where the record has it.
INT32 encodeInC(const RrcCellGroupCfg_t* record, UINT8* buf, size_t capacity, size_t* length);
INT32 amendInC(const RrcCellGroupCfg_t* record, UINT8* buf, size_t capacity, size_t* length);
INT32 deltaInC(RrcCellGroupCfg_t* prev, RrcCellGroupCfg_t* next, UINT8* buf, size_t* length);

#ifdef __cplusplus
}
#endif

#endif
