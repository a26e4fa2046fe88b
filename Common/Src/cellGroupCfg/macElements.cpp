#include "macElements.h"

#include "compose.h"

// MAC-CellGroupConfig.drx-Config.setup.drx-onDurationTimer
INT32 rrcComposeDrx_onDurationTimer(DRX_Config_drx_onDurationTimer* pDrx_onDurationTimer, RrcDrxCfg_t* pdrxCfg)
{
    if (pdrxCfg->bitMask & RRC_DRX_CFG_ONDURATION_MILLION_PRESENCE)
    {
        pDrx_onDurationTimer->t = T_DRX_Config_drx_onDurationTimer_milliSeconds;
        assign(pDrx_onDurationTimer->u.milliSeconds, pdrxCfg->drxOnDurationTimer.milliSeconds);
    }
    else
    {
        pDrx_onDurationTimer->t = T_DRX_Config_drx_onDurationTimer_subMilliSeconds;
        assign(pDrx_onDurationTimer->u.subMilliSeconds, pdrxCfg->drxOnDurationTimer.subMilliSeconds);
    }
    return VOS_OK;
}

// MAC-CellGroupConfig.drx-Config.setup.drx-LongCycleStartOffset
INT32 rrcComposeDrx_LongCycleStartOff(DRX_Config_drx_LongCycleStartOffset* pDrx_LongCycleStartOffset,
                                      RrcLongCycleStartOffset_t* pRrcLongCycleStartOffset)
{
    NULL_CHECK(pDrx_LongCycleStartOffset);
    NULL_CHECK(pRrcLongCycleStartOffset);

    // An unknown period is only noticed here; the encoder refuses its tag.
    pDrx_LongCycleStartOffset->t = pRrcLongCycleStartOffset->period;
    switch (pDrx_LongCycleStartOffset->t)
    {
    case T_DRX_Config_drx_LongCycleStartOffset_ms10:
        assign(pDrx_LongCycleStartOffset->u.ms10, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms20:
        assign(pDrx_LongCycleStartOffset->u.ms20, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms32:
        assign(pDrx_LongCycleStartOffset->u.ms32, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms40:
        assign(pDrx_LongCycleStartOffset->u.ms40, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms60:
        assign(pDrx_LongCycleStartOffset->u.ms60, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms64:
        assign(pDrx_LongCycleStartOffset->u.ms64, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms70:
        assign(pDrx_LongCycleStartOffset->u.ms70, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms80:
        assign(pDrx_LongCycleStartOffset->u.ms80, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms128:
        assign(pDrx_LongCycleStartOffset->u.ms128, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms160:
        assign(pDrx_LongCycleStartOffset->u.ms160, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms256:
        assign(pDrx_LongCycleStartOffset->u.ms256, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms320:
        assign(pDrx_LongCycleStartOffset->u.ms320, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms512:
        assign(pDrx_LongCycleStartOffset->u.ms512, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms640:
        assign(pDrx_LongCycleStartOffset->u.ms640, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms1024:
        assign(pDrx_LongCycleStartOffset->u.ms1024, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms1280:
        assign(pDrx_LongCycleStartOffset->u.ms1280, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms2048:
        assign(pDrx_LongCycleStartOffset->u.ms2048, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms2560:
        assign(pDrx_LongCycleStartOffset->u.ms2560, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms5120:
        assign(pDrx_LongCycleStartOffset->u.ms5120, pRrcLongCycleStartOffset->offset);
        break;
    case T_DRX_Config_drx_LongCycleStartOffset_ms10240:
        assign(pDrx_LongCycleStartOffset->u.ms10240, pRrcLongCycleStartOffset->offset);
        break;
    default:
        VOS_Printf("No DRX_Config__drx_LongCycleStartOffset_PR\n");
        break;
    }
    return VOS_OK;
}

// MAC-CellGroupConfig.drx-Config.setup.shortDRX
INT32 rrcComposeDrx_Config_shortDRX(DRX_Config_shortDRX* pShortDRX, RrcShortDrx_t* pRrcShortDrx)
{
    NULL_CHECK(pShortDRX);
    NULL_CHECK(pRrcShortDrx);

    assign(pShortDRX->drx_ShortCycle, pRrcShortDrx->period);
    assign(pShortDRX->drx_ShortCycleTimer, pRrcShortDrx->offset);
    return VOS_OK;
}

// MAC-CellGroupConfig.schedulingRequestConfig.schedulingRequestToAddModList[]
INT32 rrcComposeScheduleReqAddModItem(SchedulingRequestToAddMod* pAddModItem, RrcSrAddMod_t* pRrcAddMod)
{
    NULL_CHECK(pAddModItem);
    NULL_CHECK(pRrcAddMod);

    assign(pAddModItem->schedulingRequestId, pRrcAddMod->srId);
    COPY_IF(pRrcAddMod->bitMask & RRC_SR_PROHIBITTIMER_PRESENCE, pAddModItem, sr_ProhibitTimer,
            pRrcAddMod->srProhibitTimer);
    assign(pAddModItem->sr_TransMax, pRrcAddMod->srTransMax);
    return VOS_OK;
}

// MAC-CellGroupConfig.bsr-Config
INT32 rrcComposeBsr_Config(BSR_Config* pBsr_Config, RrcBsrCfg_t* pRrcBsrCfg)
{
    NULL_CHECK(pBsr_Config);
    NULL_CHECK(pRrcBsrCfg);

    assign(pBsr_Config->periodicBSR_Timer, pRrcBsrCfg->periodicBsrTimer);
    assign(pBsr_Config->retxBSR_Timer, pRrcBsrCfg->retxBsrTimer);
    COPY_IF(pRrcBsrCfg->bitMask & RRC_BSR_SRDELAY_PRESENCE, pBsr_Config, logicalChannelSR_DelayTimer,
            pRrcBsrCfg->lcSRDelayTimer);
    return VOS_OK;
}

// MAC-CellGroupConfig.tag-Config.tag-ToAddModList[]
INT32 rrcComposeTagCfg_ToAdd(TAG* pTagItem, RrcTag_t* pRrcTag)
{
    assign(pTagItem->tag_Id, pRrcTag->tagId);
    assign(pTagItem->timeAlignmentTimer, pRrcTag->taTimer);
    return VOS_OK;
}

// MAC-CellGroupConfig.phr-Config.setup
INT32 rrcComposePhr_ConfigSetup(PHR_Config* pPhrCfgsetup, RrcPhrCfg_t* pRrcPhrCfg)
{
    assign(pPhrCfgsetup->phr_PeriodicTimer, pRrcPhrCfg->phrPeriodTimer);
    assign(pPhrCfgsetup->phr_ProhibitTimer, pRrcPhrCfg->phrProhibitTimer);
    assign(pPhrCfgsetup->phr_Tx_PowerFactorChange, pRrcPhrCfg->phrTxPowerFactorChange);
    assign(pPhrCfgsetup->multiplePHR, pRrcPhrCfg->multiplePHR);
    assign(pPhrCfgsetup->dummy, pRrcPhrCfg->dummy);
    assign(pPhrCfgsetup->phr_Type2OtherCell, pRrcPhrCfg->phrType2OtherCell);
    assign(pPhrCfgsetup->phr_ModeOtherCG, pRrcPhrCfg->phrModeOtherCG);
    return VOS_OK;
}
