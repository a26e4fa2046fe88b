#include "spCell.h"

#include "compose.h"
#include "rachDedicated.h"
#include "servingCell.h"
#include "servingCellCommon.h"

// CellGroupConfig.spCellConfig
INT32 rrcComposeSP_CellGroupCfg(OSCTXT* PAsnCxt, SpCellConfig* pSpCellConfig, RrcSpCellCfg_t* pRrcSpCellCfg)
{
    NULL_CHECK(pSpCellConfig);
    NULL_CHECK(pRrcSpCellCfg);

    COPY_IF(pRrcSpCellCfg->bitMask & RRC_SPCELLCFG_CELLIDX_PRESENCE, pSpCellConfig, servCellIndex,
            pRrcSpCellCfg->servCellIdx);
    if (pRrcSpCellCfg->bitMask & RRC_SPCELLCFG_RECFG_PRESENCE)
    {
        pSpCellConfig->m.reconfigurationWithSyncPresent = 1;
        RETURN_IF_FAILED(rrcComposeReconfigurationWithSync(PAsnCxt, &pSpCellConfig->reconfigurationWithSync,
                                                           &pRrcSpCellCfg->recfgWithSync),
                         "rrcComposeReconfigurationWithSync Error\r\n");
    }
    if (pRrcSpCellCfg->bitMask & RRC_SPCELLCFG_RLFTIMER_PRESENCE)
    {
        pSpCellConfig->m.rlf_TimersAndConstantsPresent = 1;
        RETURN_IF_FAILED(rrcComposeRlf_TimersAndConstants(PAsnCxt, &pSpCellConfig->rlf_TimersAndConstants,
                                                          &pRrcSpCellCfg->rlfTimerConstants),
                         "rrcComposeRlf_TimersAndConstants Error\r\n");
    }
    COPY_IF(pRrcSpCellCfg->bitMask & RRC_SPCELLCFG_THRESHOLD_PRESENCE, pSpCellConfig, rlmInSyncOutOfSyncThreshold,
            pRrcSpCellCfg->rlmInSyncOutSyncThreshold);
    if (pRrcSpCellCfg->bitMask & RRC_SPCELLCFG_DEDICFG_PRESENCE)
    {
        pSpCellConfig->m.spCellConfigDedicatedPresent = 1;
        RETURN_IF_FAILED(rrcComposespCellConfigDedicated(PAsnCxt, &pSpCellConfig->spCellConfigDedicated,
                                                         &pRrcSpCellCfg->spCellDedicated),
                         "rrcComposespCellConfigDedicated Error\r\n");
    }
    return VOS_OK;
}

// SpCellConfig.reconfigurationWithSync
INT32 rrcComposeReconfigurationWithSync(OSCTXT* PAsnCxt, ReconfigurationWithSync* pReconfigurationWithSync,
                                        RrcReconfWithSync_t* pRrcRecfgWithSync)
{
    NULL_CHECK(pReconfigurationWithSync);
    NULL_CHECK(pRrcRecfgWithSync);

    if (pRrcRecfgWithSync->bitMask & RRC_SERVING_CELL_CFG_COMMON_PRESENCE)
    {
        pReconfigurationWithSync->m.spCellConfigCommonPresent = 1;
        RETURN_IF_FAILED(rrcComposeServCellConfigCommon(PAsnCxt, &pReconfigurationWithSync->spCellConfigCommon,
                                                        &pRrcRecfgWithSync->spCellConfigCommon),
                         "rrcComposeServCellConfigCommon Error\r\n");
    }
    assign(pReconfigurationWithSync->newUE_Identity, pRrcRecfgWithSync->newUEId);
    assign(pReconfigurationWithSync->t304, pRrcRecfgWithSync->t304);
    if (pRrcRecfgWithSync->bitMask & RRC_RACH_CFG_DEDI_PRESENCE)
    {
        pReconfigurationWithSync->m.rach_ConfigDedicatedPresent = 1;
        // What was not composed is refused by the encoder.
        (void)rrcComposeRach_ConfigDedicated(PAsnCxt, &pReconfigurationWithSync->rach_ConfigDedicated,
                                             pRrcRecfgWithSync);
    }
    if (pRrcRecfgWithSync->bitMask & RRC_SSBMTC_PRESENCE)
    {
        pReconfigurationWithSync->m.smtcPresent = 1;
        pReconfigurationWithSync->m._v2ExtPresent = 1;
        RETURN_IF_FAILED(rrcComposeSSB_MTC(&pReconfigurationWithSync->smtc, &pRrcRecfgWithSync->smtc),
                         "rrcComposeSSB_MTC Error\r\n");
    }
    return VOS_OK;
}

// SpCellConfig.rlf-TimersAndConstants
INT32 rrcComposeRlf_TimersAndConstants(OSCTXT* PAsnCxt, SpCellConfig_rlf_TimersAndConstants* pRlf_TimersAndConstants,
                                       RrcRlfTimerConstants_t* pRrcRlfTimerConstants)
{
    // The record first, unlike everywhere else.
    NULL_CHECK(pRrcRlfTimerConstants);
    NULL_CHECK(pRlf_TimersAndConstants);

    RETURN_IF_FAILED(compose::setup(PAsnCxt, pRlf_TimersAndConstants, pRrcRlfTimerConstants, rrcComposeRlf_TimerSetup),
                     "rrcComposeRlf_TimerSetup Error\r\n");
    return VOS_OK;
}

// SpCellConfig.rlf-TimersAndConstants.setup
INT32 rrcComposeRlf_TimerSetup(RLF_TimersAndConstants* pSetup, RrcRlfTimerConstants_t* pRrcRlfTimerConstants)
{
    assign(pSetup->t310, pRrcRlfTimerConstants->t310);
    assign(pSetup->n310, pRrcRlfTimerConstants->n310);
    assign(pSetup->n311, pRrcRlfTimerConstants->n311);
    // The group has nothing but t311-v1530, which is therefore always sent.
    pSetup->m._v2ExtPresent = 1;
    assign(pSetup->t311_v1530, pRrcRlfTimerConstants->t311);
    return VOS_OK;
}
