// Composers of BWP-DownlinkDedicated.sps-Config.
#ifndef SPS_H
#define SPS_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcDownlinkBwp.h"

INT32 rrcComposeSps_Config(OSCTXT* pAsnCxt, BWP_DownlinkDedicated_sps_Config* pSps_Config, RrcSpsCfg_t* pRrcSpsCfg);
INT32 rrcComposeSps_ConfigSetup(SPS_Config* pSetup, RrcSpsCfg_t* pRrcSpsCfg);

#endif
