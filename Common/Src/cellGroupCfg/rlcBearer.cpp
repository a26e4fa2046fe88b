#include "rlcBearer.h"

#include "compose.h"

namespace
{

// sn-FieldLength of one direction; any other number than the two lengths leaves it absent.
template <typename Element, typename Length>
void composeSnFieldLength(Element* pElement, Length snFeildLen)
{
    COPY_IF(snFeildLen == 0 || snFeildLen == 1, pElement, sn_FieldLength, snFeildLen);
}

void composeUlUmRlc(UL_UM_RLC* pUl_UM_RLC, const RrcUlUmRlcCfg_t* pRrcUlUmRlcCfg)
{
    composeSnFieldLength(pUl_UM_RLC, pRrcUlUmRlcCfg->snFeildLen);
}

void composeDlUmRlc(DL_UM_RLC* pDl_UM_RLC, const RrcDlUmRlcCfg_t* pRrcDlUmRlcCfg)
{
    composeSnFieldLength(pDl_UM_RLC, pRrcDlUmRlcCfg->snFeildLen);
    assign(pDl_UM_RLC->t_Reassembly, pRrcDlUmRlcCfg->tDlReassembly);
}

} // namespace

// CellGroupConfig.rlc-BearerToAddModList
INT32 rrcComposeRlc_BearerToAddModList(OSCTXT* pAsnCxt,
                                       CellGroupConfig_rlc_BearerToAddModList* pRrcRlc_BearerToAddModList,
                                       RrcCellGroupCfg_t* rrcRrcCellGroupCfgInfo)
{
    return compose::list<RLC_BearerConfig>(
        pAsnCxt, pRrcRlc_BearerToAddModList, rrcRrcCellGroupCfgInfo->rlcBearerAddModNum,
        rrcRrcCellGroupCfgInfo->rlcBearerCfg, rrcComposeRlc_BearerCfg,
        {"pNode Or pRlc_BearCfg is NULL\r\n", "rrcComposeRlc_BearerCfg is Error\r\n"});
}

// CellGroupConfig.rlc-BearerToAddModList[]. A member that cannot be composed stays announced, and the bearer in the
// list.
INT32 rrcComposeRlc_BearerCfg(OSCTXT* pAsnCxt, RLC_BearerConfig* pRlc_BearCfg, RrcRlcBearerCfg_t* pRrcRlcBearCfg)
{
    NULL_CHECK(pRlc_BearCfg);
    NULL_CHECK(pRrcRlcBearCfg);

    assign(pRlc_BearCfg->logicalChannelIdentity, pRrcRlcBearCfg->lchId);
    if (pRrcRlcBearCfg->bitMask & RRC_RLCBEARERCFG_RBTYPE_PRESENCE)
    {
        pRlc_BearCfg->m.servedRadioBearerPresent = 1;
        (void)rrcComposeRlc_BearerCfgServedRadioBearer(&pRlc_BearCfg->servedRadioBearer, pRrcRlcBearCfg);
    }
    COPY_IF(pRrcRlcBearCfg->bitMask & RRC_RLCBEARERCFG_REESTABRLC_PRESENCE, pRlc_BearCfg, reestablishRLC,
            pRrcRlcBearCfg->reestablRlc);
    if (pRrcRlcBearCfg->bitMask & RRC_RLCBEARERCFG_RLC_PRESENCE)
    {
        pRlc_BearCfg->m.rlc_ConfigPresent = 1;
        (void)rrcComposeRlc_Config(pAsnCxt, &pRlc_BearCfg->rlc_Config, &pRrcRlcBearCfg->rlcCfg);
    }
    if (pRrcRlcBearCfg->bitMask & RRC_RLCBEARERCFG_LCH_PRESENCE)
    {
        pRlc_BearCfg->m.mac_LogicalChannelConfigPresent = 1;
        (void)rrcComposeLogChannel_Config(pAsnCxt, &pRlc_BearCfg->mac_LogicalChannelConfig, &pRrcRlcBearCfg->macLchCfg);
    }
    return VOS_OK;
}

// RLC-BearerConfig.servedRadioBearer
INT32 rrcComposeRlc_BearerCfgServedRadioBearer(RLC_BearerConfig_servedRadioBearer* pRlc_BearCfg_ServeRadBear,
                                               RrcRlcBearerCfg_t* pRrcRlcBearerCfg)
{
    NULL_CHECK(pRlc_BearCfg_ServeRadBear);

    // Any other type leaves tag 0, which the encoder refuses.
    if (pRrcRlcBearerCfg->rbType == RRC_SRB)
    {
        pRlc_BearCfg_ServeRadBear->t = T_RLC_BearerConfig_servedRadioBearer_srb_Identity;
        assign(pRlc_BearCfg_ServeRadBear->u.srb_Identity, pRrcRlcBearerCfg->rbId);
    }
    else if (pRrcRlcBearerCfg->rbType == RRC_DRB)
    {
        pRlc_BearCfg_ServeRadBear->t = T_RLC_BearerConfig_servedRadioBearer_drb_Identity;
        assign(pRlc_BearCfg_ServeRadBear->u.drb_Identity, pRrcRlcBearerCfg->rbId);
    }
    return VOS_OK;
}

// RLC-BearerConfig.rlc-Config. Of several bits the highest wins; only acknowledged mode can fail.
INT32 rrcComposeRlc_Config(OSCTXT* pAsnCxt, RLC_Config* pRlcCfg, RrcRlcCfg_t* PRrcRlcCfg)
{
    NULL_CHECK(pRlcCfg);
    NULL_CHECK(PRrcRlcCfg);

    if (PRrcRlcCfg->bitMask & RRC_RLCCFG_AM_PRESENCE)
    {
        RLC_Config_am* const pAm = compose::choose(pAsnCxt, pRlcCfg, T_RLC_Config_am, pRlcCfg->u.am);
        RETURN_IF_FAILED(rrcConstructRLC_Config_am(pAm, &PRrcRlcCfg->choice.amCfg),
                         "rrcConstructRLC_Config_am ERROR\r\n");
    }
    if (PRrcRlcCfg->bitMask & RRC_RLCCFG_UM_BI_PRESENCE)
    {
        RLC_Config_um_Bi_Directional* const pUm =
            compose::choose(pAsnCxt, pRlcCfg, T_RLC_Config_um_Bi_Directional, pRlcCfg->u.um_Bi_Directional);
        (void)rrcConstructRLC_Config_um(pUm, &PRrcRlcCfg->choice.umBiCfg);
    }
    if (PRrcRlcCfg->bitMask & RRC_RLCCFG_UM_UNI_UL_PRESENCE)
    {
        RLC_Config_um_Uni_Directional_UL* const pUl =
            compose::choose(pAsnCxt, pRlcCfg, T_RLC_Config_um_Uni_Directional_UL, pRlcCfg->u.um_Uni_Directional_UL);
        (void)rrcConstructRLC_Config_um_Uni_Direc_Ul(pUl, &PRrcRlcCfg->choice.umUniUlCfg);
    }
    if (PRrcRlcCfg->bitMask & RRC_RLCCFG_UM_UNI_DL_PRESENCE)
    {
        RLC_Config_um_Uni_Directional_DL* const pDl =
            compose::choose(pAsnCxt, pRlcCfg, T_RLC_Config_um_Uni_Directional_DL, pRlcCfg->u.um_Uni_Directional_DL);
        (void)rrcConstructRLC_Config_um_Uni_Direc_Dl(pDl, &PRrcRlcCfg->choice.umUniDlCfg);
    }
    return VOS_OK;
}

// RLC-Config.am
INT32 rrcConstructRLC_Config_am(RLC_Config_am* pRlc_Cfg_am, RrcAmRlcCfg_t* pRrcAmRlcCfg)
{
    NULL_CHECK(pRlc_Cfg_am);
    NULL_CHECK(pRrcAmRlcCfg);

    UL_AM_RLC* const pUl_AM_RLC = &pRlc_Cfg_am->ul_AM_RLC;
    composeSnFieldLength(pUl_AM_RLC, pRrcAmRlcCfg->ulAmCfg.snFeildLen);
    assign(pUl_AM_RLC->t_PollRetransmit, pRrcAmRlcCfg->ulAmCfg.tPollRetransmit);
    assign(pUl_AM_RLC->pollPDU, pRrcAmRlcCfg->ulAmCfg.pollPdu);
    assign(pUl_AM_RLC->pollByte, pRrcAmRlcCfg->ulAmCfg.pollByte);
    assign(pUl_AM_RLC->maxRetxThreshold, pRrcAmRlcCfg->ulAmCfg.maxRetxThreash);

    DL_AM_RLC* const pDl_AM_RLC = &pRlc_Cfg_am->dl_AM_RLC;
    composeSnFieldLength(pDl_AM_RLC, pRrcAmRlcCfg->dlAmCfg.snFeildLen);
    assign(pDl_AM_RLC->t_Reassembly, pRrcAmRlcCfg->dlAmCfg.tReassembly);
    assign(pDl_AM_RLC->t_StatusProhibit, pRrcAmRlcCfg->dlAmCfg.tStatusProhibit);
    return VOS_OK;
}

// RLC-Config.um-Bi-Directional
INT32 rrcConstructRLC_Config_um(RLC_Config_um_Bi_Directional* pRlc_Cfg_um_Bi_Dirrectional, RrcUmBiRlcCfg_t* pRrcumBiCfg)
{
    NULL_CHECK(pRlc_Cfg_um_Bi_Dirrectional);
    NULL_CHECK(pRrcumBiCfg);

    composeDlUmRlc(&pRlc_Cfg_um_Bi_Dirrectional->dl_UM_RLC, &pRrcumBiCfg->dlUmCfg);
    composeUlUmRlc(&pRlc_Cfg_um_Bi_Dirrectional->ul_UM_RLC, &pRrcumBiCfg->ulUmCfg);
    return VOS_OK;
}

// RLC-Config.um-Uni-Directional-UL
INT32 rrcConstructRLC_Config_um_Uni_Direc_Ul(RLC_Config_um_Uni_Directional_UL* pRlc_Cfg_um_Uni_Dirrectional_Ul,
                                             RrcUlUmRlcCfg_t* pRrcUmUniUlCfg)
{
    NULL_CHECK(pRlc_Cfg_um_Uni_Dirrectional_Ul);
    NULL_CHECK(pRrcUmUniUlCfg);

    composeUlUmRlc(&pRlc_Cfg_um_Uni_Dirrectional_Ul->ul_UM_RLC, pRrcUmUniUlCfg);
    return VOS_OK;
}

// RLC-Config.um-Uni-Directional-DL
INT32 rrcConstructRLC_Config_um_Uni_Direc_Dl(RLC_Config_um_Uni_Directional_DL* pRlc_Cfg_um_Uni_Dirrectional_Dl,
                                             RrcDlUmRlcCfg_t* pRrcumUniDlCfg)
{
    NULL_CHECK(pRlc_Cfg_um_Uni_Dirrectional_Dl);
    NULL_CHECK(pRrcumUniDlCfg);

    composeDlUmRlc(&pRlc_Cfg_um_Uni_Dirrectional_Dl->dl_UM_RLC, pRrcumUniDlCfg);
    return VOS_OK;
}

// RLC-BearerConfig.mac-LogicalChannelConfig
INT32 rrcComposeLogChannel_Config(OSCTXT*, LogicalChannelConfig* pMac_LogicalChannelCfg, RrcLchCfg_t* pRrcMacLchCfg)
{
    NULL_CHECK(pMac_LogicalChannelCfg);
    NULL_CHECK(pRrcMacLchCfg);

    if (pRrcMacLchCfg->bitMask & RRC_LCH_EXPLICIT_PRESENCE)
    {
        pMac_LogicalChannelCfg->m.ul_SpecificParametersPresent = 1;
        (void)rrcComposeUl_SpecificParam(&pMac_LogicalChannelCfg->ul_SpecificParameters,
                                         &pRrcMacLchCfg->ulSpecificParaCfg);
    }
    return VOS_OK;
}

// LogicalChannelConfig.ul-SpecificParameters
INT32 rrcComposeUl_SpecificParam(LogicalChannelConfig_ul_SpecificParameters* pUl_SpecificParameters,
                                 RrcUlSpecificParaCfg_t* pRrcUlSpecificParaCfg)
{
    NULL_CHECK(pUl_SpecificParameters);
    NULL_CHECK(pRrcUlSpecificParaCfg);

    const UINT8 bitMask = pRrcUlSpecificParaCfg->bitMask;
    assign(pUl_SpecificParameters->priority, pRrcUlSpecificParaCfg->priority);
    assign(pUl_SpecificParameters->prioritisedBitRate, pRrcUlSpecificParaCfg->priorityBitRate);
    assign(pUl_SpecificParameters->bucketSizeDuration, pRrcUlSpecificParaCfg->bucketSizeDuration);
    if (bitMask & RRC_UL_SPECIFICPARA_SERVING_CELL_CFG_PRESENCE)
    {
        pUl_SpecificParameters->m.allowedServingCellsPresent = 1;
        (void)rrcComposeAllowedServingCells(&pUl_SpecificParameters->allowedServingCells, pRrcUlSpecificParaCfg);
    }
    if (bitMask & RRC_UL_SPECIFICPARA_SCS_CFG_PRESENCE)
    {
        pUl_SpecificParameters->m.allowedSCS_ListPresent = 1;
        (void)rrcComposeAllowedScsList(&pUl_SpecificParameters->allowedSCS_List, pRrcUlSpecificParaCfg);
    }
    COPY_IF(bitMask & RRC_UL_SPECIFICPARA_PUSCH_CFG_PRESENCE, pUl_SpecificParameters, maxPUSCH_Duration,
            pRrcUlSpecificParaCfg->maxPuschDuration);
    COPY_IF(bitMask & RRC_UL_SPECIFICPARA_GRANT_TYPE1_CFG_PRESENCE, pUl_SpecificParameters, configuredGrantType1Allowed,
            pRrcUlSpecificParaCfg->configuredGrantType1Allowed);
    COPY_IF(bitMask & RRC_UL_SPECIFICPARA_LCG_CFG_PRESENCE, pUl_SpecificParameters, logicalChannelGroup,
            pRrcUlSpecificParaCfg->logicalChannelGroupId);
    COPY_IF(bitMask & RRC_UL_SPECIFICPARA_SR_CFG_PRESENCE, pUl_SpecificParameters, schedulingRequestID,
            pRrcUlSpecificParaCfg->schedReqId);
    assign(pUl_SpecificParameters->logicalChannelSR_Mask, pRrcUlSpecificParaCfg->logicalChannelSrMask);
    assign(pUl_SpecificParameters->logicalChannelSR_DelayTimerApplied,
           pRrcUlSpecificParaCfg->logcalChannelSrDealyTimerApplied);
    COPY_IF(bitMask & RRC_UL_SPECIFICPARA_BITRATE_QUERY_PROHIBIT_TIMER, pUl_SpecificParameters,
            bitRateQueryProhibitTimer, pRrcUlSpecificParaCfg->bitRateQueryProhibitTimer);
    return VOS_OK;
}

// LogicalChannelConfig.ul-SpecificParameters.allowedServingCells
INT32 rrcComposeAllowedServingCells(
    LogicalChannelConfig_ul_SpecificParameters_allowedServingCells* pAllowedServingCells,
    RrcUlSpecificParaCfg_t* pRrcUlSpecificParaCfg)
{
    compose::array(pAllowedServingCells, pRrcUlSpecificParaCfg->allowedCellNum, pRrcUlSpecificParaCfg->cellIdx);
    return VOS_OK;
}

// LogicalChannelConfig.ul-SpecificParameters.allowedSCS-List
INT32 rrcComposeAllowedScsList(LogicalChannelConfig_ul_SpecificParameters_allowedSCS_List* pAllowedSCS_List,
                               RrcUlSpecificParaCfg_t* pRrcUlSpecificParaCfg)
{
    compose::array(pAllowedSCS_List, pRrcUlSpecificParaCfg->allowedSCSNum, pRrcUlSpecificParaCfg->subCarrierSpacing);
    return VOS_OK;
}

// CellGroupConfig.rlc-BearerToReleaseList
INT32 rrcComposeRlc_BearerToReleaseList(CellGroupConfig_rlc_BearerToReleaseList* pRlc_BearerToReleaseList,
                                        RrcCellGroupCfg_t* pRrcRrcCellGroupCfgInfo)
{
    NULL_CHECK(pRlc_BearerToReleaseList);

    compose::array(pRlc_BearerToReleaseList, pRrcRrcCellGroupCfgInfo->rlcBearerReleaseNum,
                   pRrcRrcCellGroupCfgInfo->lchIdRelease);
    return VOS_OK;
}
