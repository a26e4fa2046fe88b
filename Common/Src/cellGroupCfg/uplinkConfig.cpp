#include "uplinkConfig.h"

#include "compose.h"
#include "servingCellLevel.h"
#include "uplinkBwp.h"

// ServingCellConfig.uplinkConfig and ServingCellConfig.supplementaryUplink
INT32 rrcComposeUplinkConfig(OSCTXT* PAsnCxt, UplinkConfig* pUplinkConfig, RrcUlCfg_t* pRrcUlCfg)
{
    if (pRrcUlCfg->bitMask & RRC_UL_CFG_INIT_UL_BWP_PRESENCE)
    {
        pUplinkConfig->m.initialUplinkBWPPresent = 1;
        RETURN_IF_FAILED(
            rrcComposeInitialUplinkBWP(PAsnCxt, &pUplinkConfig->initialUplinkBWP, &pRrcUlCfg->initialUplinkBWP),
            "rrcComposeInitialUplinkBWP Error\r\n");
    }
    if (pRrcUlCfg->numUlBwpRel > 0)
    {
        pUplinkConfig->m.uplinkBWP_ToReleaseListPresent = 1;
        RETURN_IF_FAILED(rrcComposeuplinkBWP_ToReleaseList(&pUplinkConfig->uplinkBWP_ToReleaseList, pRrcUlCfg),
                         "rrcComposeuplinkBWP_ToReleaseList Error\r\n");
    }
    if (pRrcUlCfg->numUlBwpAddMod > 0)
    {
        pUplinkConfig->m.uplinkBWP_ToAddModListPresent = 1;
        RETURN_IF_FAILED(rrcComposeuplinkBWP_ToAddModList(PAsnCxt, &pUplinkConfig->uplinkBWP_ToAddModList, pRrcUlCfg),
                         "rrcComposeuplinkBWP_ToAddModList Error\r\n");
    }
    COPY_IF(pRrcUlCfg->bitMask & RRC_UL_CFG_FIRST_ACTICVE_UL_BWP_PRESENCE, pUplinkConfig, firstActiveUplinkBWP_Id,
            pRrcUlCfg->firstActiveUlBwpId);
    if (pRrcUlCfg->bitMask & RRC_UL_CFG_PUSCH_SERVING_CELL_CFG_PRESENCE)
    {
        pUplinkConfig->m.pusch_ServingCellConfigPresent = 1;
        RETURN_IF_FAILED(rrcComposepusch_ServingCellConfig(PAsnCxt, &pUplinkConfig->pusch_ServingCellConfig,
                                                           &pRrcUlCfg->PuschServingCellCfg),
                         "rrcComposepusch_ServingCellConfig Error\r\n");
    }
    if (pRrcUlCfg->bitMask & RRC_UL_CFG_CARRIER_SWITCHING_PRESENCE)
    {
        pUplinkConfig->m.carrierSwitchingPresent = 1;
        RETURN_IF_FAILED(
            rrcComposeCarrierSwitching(PAsnCxt, &pUplinkConfig->carrierSwitching, &pRrcUlCfg->carrierSwitching),
            "rrcComposeCarrierSwitching Error\r\n");
    }
    // The record has no values for these two; without the mark of their extension group they are not sent.
    if (pRrcUlCfg->bitMask & RRC_UL_CFG_POWER_BOOST_PI_2BPSK)
    {
        pUplinkConfig->m.powerBoostPi2BPSKPresent = 1;
    }
    if (pRrcUlCfg->bitMask & RRC_UL_CFG_UL_CHANNEL_BW_PERSCS_LIST)
    {
        pUplinkConfig->m.uplinkChannelBW_PerSCS_ListPresent = 1;
    }
    return VOS_OK;
}
