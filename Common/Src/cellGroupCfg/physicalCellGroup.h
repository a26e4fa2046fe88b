// Composer of PhysicalCellGroupConfig.
#ifndef PHYSICALCELLGROUP_H
#define PHYSICALCELLGROUP_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcPhy.h"

INT32 rrcComposePhysical_CellGroupCfg(OSCTXT* pAsnCxt, PhysicalCellGroupConfig* pPhysicalCellGroupConfig,
                                      RrcPhyCellGrpCfg_t* pRrcPhyCellGrpCfg);

#endif
