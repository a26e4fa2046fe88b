#ifndef CELLGROUPCFG_H
#define CELLGROUPCFG_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCodec.h"

// On the stack of a call: the tree of a typical call, so that malloc is asked by larger ones only. All that the call
// needs of the stack stays within 32 KiB.
constexpr size_t stackMemory = 16 * 1024;

// What the entry and the calls of rrcCompose.h do first: a CellGroupConfig from the context's heap, composed from the
// record. Returns VOS_OK, or VOS_ERROR after the lines that say what failed; *ppCellGroupConfig is null when not even
// the CellGroupConfig could be allocated.
INT32 composeTree(OSCTXT* pAsnCxt, RrcCellGroupCfg_t* pRrcCellGroupCfg, CellGroupConfig** ppCellGroupConfig);

#endif
