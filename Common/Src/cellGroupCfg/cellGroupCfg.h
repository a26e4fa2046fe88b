#ifndef CELLGROUPCFG_H
#define CELLGROUPCFG_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCodec.h"

// What the entry and the calls of rrcCompose.h do first: a CellGroupConfig from the context's heap, composed from the
// record. Returns VOS_OK, or VOS_ERROR after the lines that say what failed; *ppCellGroupConfig is null when not even
// the CellGroupConfig could be allocated.
INT32 composeTree(OSCTXT* pAsnCxt, RrcCellGroupCfg_t* pRrcCellGroupCfg, CellGroupConfig** ppCellGroupConfig);

#endif
