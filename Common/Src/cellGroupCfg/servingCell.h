// Composer of ServingCellConfig.
#ifndef SERVINGCELL_H
#define SERVINGCELL_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcServingCell.h"

INT32 rrcComposespCellConfigDedicated(OSCTXT* pAsnCxt, ServingCellConfig* pSpCellConfigDedicated,
                                      RrcServingCellCfg_t* pRrcSpCellDedicated);

#endif
