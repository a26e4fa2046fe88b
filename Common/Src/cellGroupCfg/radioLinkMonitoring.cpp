#include "radioLinkMonitoring.h"

#include "compose.h"

// BWP-DownlinkDedicated.radioLinkMonitoringConfig
INT32 rrcComposeradioLinkMonitoring_Config(OSCTXT* pAsnCxt,
                                           BWP_DownlinkDedicated_radioLinkMonitoringConfig* pRadioLinkMonitoringConfig,
                                           RrcRlmCfg_t* pRrcRadioLinkMonitorCfg)
{
    NULL_CHECK(pRadioLinkMonitoringConfig);
    NULL_CHECK(pRrcRadioLinkMonitorCfg);

    RETURN_IF_FAILED(compose::setup(pAsnCxt, pRadioLinkMonitoringConfig, pRrcRadioLinkMonitorCfg,
                                    rrcComposeradioLinkMonitoring_ConfigSetup),
                     "rrcComposeradioLinkMonitoring_ConfigSetup Error\r\n");
    return VOS_OK;
}

// BWP-DownlinkDedicated.radioLinkMonitoringConfig.setup
INT32 rrcComposeradioLinkMonitoring_ConfigSetup(OSCTXT* pAsnCxt, RadioLinkMonitoringConfig* pSetup,
                                                RrcRlmCfg_t* pRrcRadioLinkMonitorCfg)
{
    if (pRrcRadioLinkMonitorCfg->numFailDetectResourceAddMod != 0)
    {
        pSetup->m.failureDetectionResourcesToAddModListPresent = 1;
        // A list cut short by the heap is sent as far as it was built.
        (void)rrcComposeFailureDetectionResourcesToAddMod(pAsnCxt, &pSetup->failureDetectionResourcesToAddModList,
                                                          pRrcRadioLinkMonitorCfg);
    }
    if (pRrcRadioLinkMonitorCfg->numFailDetectResourceRel != 0)
    {
        pSetup->m.failureDetectionResourcesToReleaseListPresent = 1;
        (void)rrcComposeFailureDetectionResourcesReleaes(&pSetup->failureDetectionResourcesToReleaseList,
                                                         pRrcRadioLinkMonitorCfg);
    }
    COPY_IF(pRrcRadioLinkMonitorCfg->bitMask & RRC_RADIO_LINK_MONITOR_BEAM_FAIL_MAX_COUNT_PRESENCE, pSetup,
            beamFailureInstanceMaxCount, pRrcRadioLinkMonitorCfg->beamFailureInstanceMaxCount);
    COPY_IF(pRrcRadioLinkMonitorCfg->bitMask & RRC_RADIO_LINK_MONITOR_BEAM_FAIL_DETECT_TIMER_PRESENCE, pSetup,
            beamFailureDetectionTimer, pRrcRadioLinkMonitorCfg->beamFailureDetectionTimer);
    return VOS_OK;
}

// RadioLinkMonitoringConfig.failureDetectionResourcesToAddModList
INT32 rrcComposeFailureDetectionResourcesToAddMod(
    OSCTXT* pAsnCxt, RadioLinkMonitoringConfig_failureDetectionResourcesToAddModList* pToAddModList,
    RrcRlmCfg_t* pRrcRadioLinkMonitorCfg)
{
    return compose::list<RadioLinkMonitoringRS>(
        pAsnCxt, pToAddModList, pRrcRadioLinkMonitorCfg->numFailDetectResourceAddMod,
        pRrcRadioLinkMonitorCfg->failDetectResource, rrcComposeRadioLinkMonitoring,
        {"pNode Or pItem is NULL\r\n", "rrcComposeRadioLinkMonitoring is Error\r\n"});
}

// RadioLinkMonitoringConfig.failureDetectionResourcesToReleaseList
INT32 rrcComposeFailureDetectionResourcesReleaes(
    RadioLinkMonitoringConfig_failureDetectionResourcesToReleaseList* pToReleaseList,
    RrcRlmCfg_t* pRrcRadioLinkMonitorCfg)
{
    compose::array(pToReleaseList, pRrcRadioLinkMonitorCfg->numFailDetectResourceRel,
                   pRrcRadioLinkMonitorCfg->failDetectResourceId);
    return VOS_OK;
}

// RadioLinkMonitoringConfig.failureDetectionResourcesToAddModList[]
INT32 rrcComposeRadioLinkMonitoring(RadioLinkMonitoringRS* pItem, RrcRadioLinkMonitorRs_t* pRrcRadioLinkMonitorRs)
{
    assign(pItem->radioLinkMonitoringRS_Id, pRrcRadioLinkMonitorRs->radioLinkMonitorRsId);
    assign(pItem->purpose, pRrcRadioLinkMonitorRs->purpose);
    CHOOSE_IF(pRrcRadioLinkMonitorRs->presence & RRC_RADIO_LINK_MONITOR_SSB_PRESENCE, &pItem->detectionResource,
              RadioLinkMonitoringRS_detectionResource, ssb_Index, pRrcRadioLinkMonitorRs->detectionResource.ssbIdx);
    CHOOSE_IF(pRrcRadioLinkMonitorRs->presence & RRC_RADIO_LINK_MONITOR_CSI_RS_PRESENCE, &pItem->detectionResource,
              RadioLinkMonitoringRS_detectionResource, csi_RS_Index,
              pRrcRadioLinkMonitorRs->detectionResource.csiRsIdx);
    return VOS_OK;
}
