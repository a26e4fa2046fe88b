#include "macCellGroup.h"

#include "compose.h"

// MAC-CellGroupConfig. A member that cannot be composed is left as far as it was built and stays announced.
INT32 rrcComposeMac_CellGroupCfg(OSCTXT* pAsnCxt, MAC_CellGroupConfig* pMac_CellGroupConfig,
                                 RrcMacCellGrpCfg_t* pRrcMacCellGrpCfg)
{
    NULL_CHECK(pMac_CellGroupConfig);
    NULL_CHECK(pRrcMacCellGrpCfg);

    assign(pMac_CellGroupConfig->skipUplinkTxDynamic, pRrcMacCellGrpCfg->skipUpTxDynamic);
    // csi-Mask and dataInactivityTimer are in the tree only: their extension group is never announced.
    COPY_IF(pRrcMacCellGrpCfg->bitMask & RRC_MAC_CELL_GRP_CFG_CSI_PRESENCE, pMac_CellGroupConfig, csi_Mask,
            pRrcMacCellGrpCfg->csiMaskV1530);
    if (pRrcMacCellGrpCfg->bitMask & RRC_MAC_CELL_GRP_CFG_DRX_PRESENCE)
    {
        pMac_CellGroupConfig->m.drx_ConfigPresent = 1;
        (void)rrcComposeDrx_Config(pAsnCxt, &pMac_CellGroupConfig->drx_Config, &pRrcMacCellGrpCfg->drxCfg);
    }
    if (pRrcMacCellGrpCfg->bitMask & RRC_MAC_CELL_GRP_CFG_SR_PRESENCE)
    {
        pMac_CellGroupConfig->m.schedulingRequestConfigPresent = 1;
        (void)rrcComposeScheduleReq_Config(pAsnCxt, &pMac_CellGroupConfig->schedulingRequestConfig,
                                           &pRrcMacCellGrpCfg->srCfg);
    }
    if (pRrcMacCellGrpCfg->bitMask & RRC_MAC_CELL_GRP_CFG_BSR_PRESENCE)
    {
        pMac_CellGroupConfig->m.bsr_ConfigPresent = 1;
        (void)rrcComposeBsr_Config(&pMac_CellGroupConfig->bsr_Config, &pRrcMacCellGrpCfg->bsrCfg);
    }
    if (pRrcMacCellGrpCfg->bitMask & RRC_MAC_CELL_GRP_CFG_TAG_PRESENCE)
    {
        pMac_CellGroupConfig->m.tag_ConfigPresent = 1;
        (void)rrcComposeTag_Config(pAsnCxt, &pMac_CellGroupConfig->tag_Config, &pRrcMacCellGrpCfg->tagCfg);
    }
    if (pRrcMacCellGrpCfg->bitMask & RRC_MAC_CELL_GRP_CFG_PHR_PRESENCE)
    {
        pMac_CellGroupConfig->m.phr_ConfigPresent = 1;
        (void)rrcComposePhr_Config(pAsnCxt, &pMac_CellGroupConfig->phr_Config, &pRrcMacCellGrpCfg->phrCfg);
    }
    if (pRrcMacCellGrpCfg->bitMask & RRC_MAC_CELL_GRP_CFG_TIMER_PRESENCE)
    {
        pMac_CellGroupConfig->m.dataInactivityTimerPresent = 1;
        compose::setupValue(&pMac_CellGroupConfig->dataInactivityTimer, pRrcMacCellGrpCfg->inactivityTimer);
    }
    return VOS_OK;
}

// MAC-CellGroupConfig.drx-Config
INT32 rrcComposeDrx_Config(OSCTXT* pAsnCxt, MAC_CellGroupConfig_drx_Config* drx_Config, RrcDrxCfg_t* pdrxCfg)
{
    NULL_CHECK(drx_Config);
    NULL_CHECK(pdrxCfg);

    (void)compose::setup(pAsnCxt, drx_Config, pdrxCfg, rrcComposeDrx_ConfigSetup);
    return VOS_OK;
}

// MAC-CellGroupConfig.drx-Config.setup
INT32 rrcComposeDrx_ConfigSetup(OSCTXT*, DRX_Config* pDrx_Config, RrcDrxCfg_t* pdrxCfg)
{
    (void)rrcComposeDrx_onDurationTimer(&pDrx_Config->drx_onDurationTimer, pdrxCfg);
    assign(pDrx_Config->drx_InactivityTimer, pdrxCfg->drxInactivityTimer);
    assign(pDrx_Config->drx_HARQ_RTT_TimerDL, pdrxCfg->drxHarqRttTimerDl);
    assign(pDrx_Config->drx_HARQ_RTT_TimerUL, pdrxCfg->drxHarqRttTimerUl);
    assign(pDrx_Config->drx_RetransmissionTimerDL, pdrxCfg->drxRetransTimerDl);
    assign(pDrx_Config->drx_RetransmissionTimerUL, pdrxCfg->drxRetransTimerUl);
    RETURN_IF_FAILED(
        rrcComposeDrx_LongCycleStartOff(&pDrx_Config->drx_LongCycleStartOffset, &pdrxCfg->drxLongCycleStartOffset),
        "rrcComposeDrx_LongCycleStartOff Error\r\n");
    if (pdrxCfg->bitMask & RRC_DRX_CFG_SHORT_DRX_PRESENCE)
    {
        pDrx_Config->m.shortDRXPresent = 1;
        (void)rrcComposeDrx_Config_shortDRX(&pDrx_Config->shortDRX, &pdrxCfg->shortDrx);
    }
    assign(pDrx_Config->drx_SlotOffset, pdrxCfg->drxSlotOffset);
    return VOS_OK;
}

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

// MAC-CellGroupConfig.schedulingRequestConfig
INT32 rrcComposeScheduleReq_Config(OSCTXT* pAsnCxt, SchedulingRequestConfig* pSchedulingRequestConfig,
                                   RrcSRCfg_t* pRrcSrCfg)
{
    NULL_CHECK(pSchedulingRequestConfig);
    NULL_CHECK(pRrcSrCfg);

    // A list cut short by the heap is sent as far as it was built.
    if (pRrcSrCfg->numSrAddMod != 0)
    {
        pSchedulingRequestConfig->m.schedulingRequestToAddModListPresent = 1;
        (void)rrcComposeScheduleReqCfgToAddModList(pAsnCxt, &pSchedulingRequestConfig->schedulingRequestToAddModList,
                                                   pRrcSrCfg);
    }
    if (pRrcSrCfg->numSrRel != 0)
    {
        pSchedulingRequestConfig->m.schedulingRequestToReleaseListPresent = 1;
        (void)rrcComposeScheduleReqCfgToReleaesList(&pSchedulingRequestConfig->schedulingRequestToReleaseList,
                                                    pRrcSrCfg);
    }
    return VOS_OK;
}

// MAC-CellGroupConfig.schedulingRequestConfig.schedulingRequestToAddModList
INT32 rrcComposeScheduleReqCfgToAddModList(OSCTXT* pAsnCxt,
                                           SchedulingRequestConfig_schedulingRequestToAddModList* pAddModList,
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
    COPY_IF(pRrcAddMod->bitMask & RRC_SR_PROHIBITTIMER_PRESENCE, pAddModItem, sr_ProhibitTimer,
            pRrcAddMod->srProhibitTimer);
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

// MAC-CellGroupConfig.tag-Config
INT32 rrcComposeTag_Config(OSCTXT* pAsnCxt, TAG_Config* pTag_Config, RrcTagCfg_t* pRrcTagCfg)
{
    NULL_CHECK(pTag_Config);
    NULL_CHECK(pRrcTagCfg);

    if (pRrcTagCfg->numTagRel != 0)
    {
        pTag_Config->m.tag_ToReleaseListPresent = 1;
        (void)rrcComposeTagToReleaseList(&pTag_Config->tag_ToReleaseList, pRrcTagCfg);
    }
    // A list cut short by the heap is sent as far as it was built.
    if (pRrcTagCfg->numTagAddMod != 0)
    {
        pTag_Config->m.tag_ToAddModListPresent = 1;
        (void)rrcComposeTagToAddModList(pAsnCxt, &pTag_Config->tag_ToAddModList, pRrcTagCfg);
    }
    return VOS_OK;
}

// MAC-CellGroupConfig.tag-Config.tag-ToReleaseList
INT32 rrcComposeTagToReleaseList(TAG_Config_tag_ToReleaseList* pReleaseList, RrcTagCfg_t* pRrcTagCfg)
{
    compose::array(pReleaseList, pRrcTagCfg->numTagRel, pRrcTagCfg->tagId);
    return VOS_OK;
}

// MAC-CellGroupConfig.tag-Config.tag-ToAddModList
INT32 rrcComposeTagToAddModList(OSCTXT* pAsnCxt, TAG_Config_tag_ToAddModList* pAddModList, RrcTagCfg_t* pRrcTagCfg)
{
    return compose::list<TAG>(pAsnCxt, pAddModList, pRrcTagCfg->numTagAddMod, pRrcTagCfg->tag, rrcComposeTagCfg_ToAdd,
                              {"pNode Or pTagItem is NULL\r\n", "rrcComposeTagCfg_ToAdd is Error\r\n"});
}

// MAC-CellGroupConfig.tag-Config.tag-ToAddModList[]
INT32 rrcComposeTagCfg_ToAdd(TAG* pTagItem, RrcTag_t* pRrcTag)
{
    assign(pTagItem->tag_Id, pRrcTag->tagId);
    assign(pTagItem->timeAlignmentTimer, pRrcTag->taTimer);
    return VOS_OK;
}

// MAC-CellGroupConfig.phr-Config
INT32 rrcComposePhr_Config(OSCTXT* pAsnCxt, MAC_CellGroupConfig_phr_Config* pPhr_Config, RrcPhrCfg_t* pRrcPhrCfg)
{
    NULL_CHECK(pPhr_Config);
    NULL_CHECK(pRrcPhrCfg);

    (void)compose::setup(pAsnCxt, pPhr_Config, pRrcPhrCfg, rrcComposePhr_ConfigSetup);
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
