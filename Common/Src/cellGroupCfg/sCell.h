// Composers of the secondary cells of CellGroupConfig.
#ifndef SCELL_H
#define SCELL_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCodec.h"

INT32 rrcComposeCellGroupCfg_sCellToAddMod(OSCTXT* pAsnCxt, CellGroupConfig_sCellToAddModList* pSCellToAddModList,
                                           RrcCellGroupCfg_t* pRrcCellGroupCfg);
INT32 rrcCompose_sCellToAddModItem(OSCTXT* pAsnCxt, SCellConfig* pItem, RrcScellCfg_t* pRrcScellCfg);
INT32 rrcComposeCellGroupCfg_sCellToRel(CellGroupConfig_sCellToReleaseList* pSCellToReleaseList,
                                        RrcCellGroupCfg_t* pRrcCellGroupCfg);

#endif
