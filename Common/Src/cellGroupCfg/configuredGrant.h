// Composers of ConfiguredGrantConfig.
#ifndef CONFIGUREDGRANT_H
#define CONFIGUREDGRANT_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcConfiguredGrant.h"

INT32 rrcComposeBWPConfiguredGrant_Config(OSCTXT* pAsnCxt,
                                          BWP_UplinkDedicated_configuredGrantConfig* pConfiguredGrantConfig,
                                          RrcCfgGrantCfg_t* pRrcCfgGrantCfg);
INT32 rrcComposeConfiguredGrant_Configsetup(OSCTXT* pAsnCxt, ConfiguredGrantConfig* pConfiguredGrantConfig,
                                            RrcCfgGrantCfg_t* pRrcCfgGrantCfg);
INT32 rrcComposeConfiguredGrantConfig_uci_OnPUSCH(OSCTXT* pAsnCxt, ConfiguredGrantConfig_uci_OnPUSCH* pUci_OnPUSCH,
                                                  RrcCgUciOnPusch_t* pRrcCgUciOnPusch);
INT32 rrcComposeCG_UCI_OnPUSCHSetup(OSCTXT* pAsnCxt, CG_UCI_OnPUSCH* pCG_UCI_OnPUSCH,
                                    RrcCgUciOnPusch_t* pRrcCgUciOnPusch);
INT32 rrcComposeCG_UCI_OnPUSCH_dynamic(OSCTXT* PAsnCxt, CG_UCI_OnPUSCH_dynamic* pDynamic,
                                       RrcDynamicBetaOffsets_t* pRrcDynamicBetaOffsets);
INT32 rrcComposeConfiguredUplinkGrant(ConfiguredGrantConfig_rrc_ConfiguredUplinkGrant* pRrc_ConfiguredUplinkGrant,
                                      struct rrcCfgdUlGrant_s* pRrcCfgdUlGrant);

#endif
