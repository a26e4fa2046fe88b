// Composers of MAC-CellGroupConfig.
#ifndef MACCELLGROUP_H
#define MACCELLGROUP_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcMac.h"

INT32 rrcComposeScheduleReq_Config(OSCTXT* pAsnCxt, SchedulingRequestConfig* pSchedulingRequestConfig, RrcSRCfg_t* pRrcSrCfg);
INT32 rrcComposeScheduleReqCfgToAddModList(OSCTXT* pAsnCxt, SchedulingRequestConfig_schedulingRequestToAddModList* pAddModList,
                                           RrcSRCfg_t* pRrcSrCfg);
INT32 rrcComposeScheduleReqAddModItem(SchedulingRequestToAddMod* pAddModItem, RrcSrAddMod_t* pRrcAddMod);
INT32 rrcComposeScheduleReqCfgToReleaesList(SchedulingRequestConfig_schedulingRequestToReleaseList* pReleaseList,
                                            RrcSRCfg_t* pRrcReleaseList);

#endif
