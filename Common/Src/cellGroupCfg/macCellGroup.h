// Composers of MAC-CellGroupConfig.
#ifndef MACCELLGROUP_H
#define MACCELLGROUP_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcMac.h"

INT32 rrcComposeMac_CellGroupCfg(OSCTXT* pAsnCxt, MAC_CellGroupConfig* pMac_CellGroupConfig,
                                 RrcMacCellGrpCfg_t* pRrcMacCellGrpCfg);

INT32 rrcComposeDrx_Config(OSCTXT* pAsnCxt, MAC_CellGroupConfig_drx_Config* drx_Config, RrcDrxCfg_t* pdrxCfg);
INT32 rrcComposeDrx_ConfigSetup(OSCTXT* pAsnCxt, DRX_Config* pDrx_Config, RrcDrxCfg_t* pdrxCfg);
INT32 rrcComposeDrx_onDurationTimer(DRX_Config_drx_onDurationTimer* pDrx_onDurationTimer, RrcDrxCfg_t* pdrxCfg);
INT32 rrcComposeDrx_LongCycleStartOff(DRX_Config_drx_LongCycleStartOffset* pDrx_LongCycleStartOffset,
                                      RrcLongCycleStartOffset_t* pRrcLongCycleStartOffset);
INT32 rrcComposeDrx_Config_shortDRX(DRX_Config_shortDRX* pShortDRX, RrcShortDrx_t* pRrcShortDrx);

INT32 rrcComposeScheduleReq_Config(OSCTXT* pAsnCxt, SchedulingRequestConfig* pSchedulingRequestConfig,
                                   RrcSRCfg_t* pRrcSrCfg);
INT32 rrcComposeScheduleReqCfgToAddModList(OSCTXT* pAsnCxt,
                                           SchedulingRequestConfig_schedulingRequestToAddModList* pAddModList,
                                           RrcSRCfg_t* pRrcSrCfg);
INT32 rrcComposeScheduleReqAddModItem(SchedulingRequestToAddMod* pAddModItem, RrcSrAddMod_t* pRrcAddMod);
INT32 rrcComposeScheduleReqCfgToReleaesList(SchedulingRequestConfig_schedulingRequestToReleaseList* pReleaseList,
                                            RrcSRCfg_t* pRrcReleaseList);

INT32 rrcComposeBsr_Config(BSR_Config* pBsr_Config, RrcBsrCfg_t* pRrcBsrCfg);

INT32 rrcComposeTag_Config(OSCTXT* pAsnCxt, TAG_Config* pTag_Config, RrcTagCfg_t* pRrcTagCfg);
INT32 rrcComposeTagToReleaseList(TAG_Config_tag_ToReleaseList* pReleaseList, RrcTagCfg_t* pRrcTagCfg);
INT32 rrcComposeTagToAddModList(OSCTXT* pAsnCxt, TAG_Config_tag_ToAddModList* pAddModList, RrcTagCfg_t* pRrcTagCfg);
INT32 rrcComposeTagCfg_ToAdd(TAG* pTagItem, RrcTag_t* pRrcTag);

INT32 rrcComposePhr_Config(OSCTXT* pAsnCxt, MAC_CellGroupConfig_phr_Config* pPhr_Config, RrcPhrCfg_t* pRrcPhrCfg);
INT32 rrcComposePhr_ConfigSetup(PHR_Config* pPhrCfgsetup, RrcPhrCfg_t* pRrcPhrCfg);

#endif
