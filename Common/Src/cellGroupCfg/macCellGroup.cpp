#include "macCellGroup.h"

#include "compose.h"

// MAC-CellGroupConfig.schedulingRequestConfig
INT32 rrcComposeScheduleReq_Config(OSCTXT* pAsnCxt, SchedulingRequestConfig* pSchedulingRequestConfig, RrcSRCfg_t* pRrcSrCfg)
{
    NULL_CHECK(pSchedulingRequestConfig);
    NULL_CHECK(pRrcSrCfg);

    // A list cut short by the heap is sent as far as it was built.
    if (pRrcSrCfg->numSrAddMod != 0)
    {
        pSchedulingRequestConfig->m.schedulingRequestToAddModListPresent = 1;
        (void)rrcComposeScheduleReqCfgToAddModList(pAsnCxt, &pSchedulingRequestConfig->schedulingRequestToAddModList, pRrcSrCfg);
    }
    if (pRrcSrCfg->numSrRel != 0)
    {
        pSchedulingRequestConfig->m.schedulingRequestToReleaseListPresent = 1;
        (void)rrcComposeScheduleReqCfgToReleaesList(&pSchedulingRequestConfig->schedulingRequestToReleaseList, pRrcSrCfg);
    }
    return VOS_OK;
}

// MAC-CellGroupConfig.schedulingRequestConfig.schedulingRequestToAddModList
INT32 rrcComposeScheduleReqCfgToAddModList(OSCTXT* pAsnCxt, SchedulingRequestConfig_schedulingRequestToAddModList* pAddModList,
                                           RrcSRCfg_t* pRrcSrCfg)
{
    NULL_CHECK(pAddModList);

    return compose::list<SchedulingRequestToAddMod>(pAsnCxt, pAddModList, pRrcSrCfg->numSrAddMod, pRrcSrCfg->srASddMod,
                                                    rrcComposeScheduleReqAddModItem,
                                                    {"pNode Or pAddModItem is NULL\r\n", nullptr});
}

// MAC-CellGroupConfig.schedulingRequestConfig.schedulingRequestToAddModList[]
INT32 rrcComposeScheduleReqAddModItem(SchedulingRequestToAddMod* pAddModItem, RrcSrAddMod_t* pRrcAddMod)
{
    NULL_CHECK(pAddModItem);
    NULL_CHECK(pRrcAddMod);

    assign(pAddModItem->schedulingRequestId, pRrcAddMod->srId);
    COPY_IF(pRrcAddMod->bitMask & RRC_SR_PROHIBITTIMER_PRESENCE, pAddModItem, sr_ProhibitTimer, pRrcAddMod->srProhibitTimer);
    assign(pAddModItem->sr_TransMax, pRrcAddMod->srTransMax);
    return VOS_OK;
}

// MAC-CellGroupConfig.schedulingRequestConfig.schedulingRequestToReleaseList
INT32 rrcComposeScheduleReqCfgToReleaesList(SchedulingRequestConfig_schedulingRequestToReleaseList* pReleaseList,
                                            RrcSRCfg_t* pRrcReleaseList)
{
    NULL_CHECK(pReleaseList);

    compose::array(pReleaseList, pRrcReleaseList->numSrRel, pRrcReleaseList->srId);
    return VOS_OK;
}
