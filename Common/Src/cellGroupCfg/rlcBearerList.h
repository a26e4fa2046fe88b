// Composers of CellGroupConfig's RLC bearer lists.
#ifndef RLCBEARERLIST_H
#define RLCBEARERLIST_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCodec.h"

INT32 rrcComposeRlc_BearerToAddModList(OSCTXT* pAsnCxt,
                                       CellGroupConfig_rlc_BearerToAddModList* pRrcRlc_BearerToAddModList,
                                       RrcCellGroupCfg_t* rrcRrcCellGroupCfgInfo);
INT32 rrcComposeRlc_BearerToReleaseList(CellGroupConfig_rlc_BearerToReleaseList* pRlc_BearerToReleaseList,
                                        RrcCellGroupCfg_t* pRrcRrcCellGroupCfgInfo);

#endif
