// Composers of the elements of MAC-CellGroupConfig that hold no further ones.
#ifndef MACELEMENTS_H
#define MACELEMENTS_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcMac.h"

INT32 rrcComposeDrx_onDurationTimer(DRX_Config_drx_onDurationTimer* pDrx_onDurationTimer, RrcDrxCfg_t* pdrxCfg);
INT32 rrcComposeDrx_LongCycleStartOff(DRX_Config_drx_LongCycleStartOffset* pDrx_LongCycleStartOffset,
                                      RrcLongCycleStartOffset_t* pRrcLongCycleStartOffset);
INT32 rrcComposeDrx_Config_shortDRX(DRX_Config_shortDRX* pShortDRX, RrcShortDrx_t* pRrcShortDrx);
INT32 rrcComposeScheduleReqAddModItem(SchedulingRequestToAddMod* pAddModItem, RrcSrAddMod_t* pRrcAddMod);
INT32 rrcComposeBsr_Config(BSR_Config* pBsr_Config, RrcBsrCfg_t* pRrcBsrCfg);
INT32 rrcComposeTagCfg_ToAdd(TAG* pTagItem, RrcTag_t* pRrcTag);
INT32 rrcComposePhr_ConfigSetup(PHR_Config* pPhrCfgsetup, RrcPhrCfg_t* pRrcPhrCfg);

#endif
