// Composers of BWP-DownlinkDedicated.radioLinkMonitoringConfig.
#ifndef RADIOLINKMONITORING_H
#define RADIOLINKMONITORING_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcDownlinkBwp.h"

INT32 rrcComposeradioLinkMonitoring_Config(OSCTXT* pAsnCxt,
                                           BWP_DownlinkDedicated_radioLinkMonitoringConfig* pRadioLinkMonitoringConfig,
                                           RrcRlmCfg_t* pRrcRadioLinkMonitorCfg);
INT32 rrcComposeradioLinkMonitoring_ConfigSetup(OSCTXT* pAsnCxt, RadioLinkMonitoringConfig* pSetup,
                                                RrcRlmCfg_t* pRrcRadioLinkMonitorCfg);
INT32 rrcComposeFailureDetectionResourcesToAddMod(
    OSCTXT* pAsnCxt, RadioLinkMonitoringConfig_failureDetectionResourcesToAddModList* pToAddModList,
    RrcRlmCfg_t* pRrcRadioLinkMonitorCfg);
INT32 rrcComposeFailureDetectionResourcesReleaes(
    RadioLinkMonitoringConfig_failureDetectionResourcesToReleaseList* pToReleaseList,
    RrcRlmCfg_t* pRrcRadioLinkMonitorCfg);
INT32 rrcComposeRadioLinkMonitoring(RadioLinkMonitoringRS* pItem, RrcRadioLinkMonitorRs_t* pRrcRadioLinkMonitorRs);

#endif
