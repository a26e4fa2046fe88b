// Composers of SpCellConfig.
#ifndef SPCELL_H
#define SPCELL_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcSpCell.h"

INT32 rrcComposeSP_CellGroupCfg(OSCTXT* PAsnCxt, SpCellConfig* pSpCellConfig, RrcSpCellCfg_t* pRrcSpCellCfg);
INT32 rrcComposeReconfigurationWithSync(OSCTXT* PAsnCxt, ReconfigurationWithSync* pReconfigurationWithSync,
                                        RrcReconfWithSync_t* pRrcRecfgWithSync);
INT32 rrcComposeRlf_TimersAndConstants(OSCTXT* PAsnCxt, SpCellConfig_rlf_TimersAndConstants* pRlf_TimersAndConstants,
                                       RrcRlfTimerConstants_t* pRrcRlfTimerConstants);
INT32 rrcComposeRlf_TimerSetup(RLF_TimersAndConstants* pSetup, RrcRlfTimerConstants_t* pRrcRlfTimerConstants);

#endif
