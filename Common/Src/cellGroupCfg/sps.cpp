#include "sps.h"

#include "compose.h"

// BWP-DownlinkDedicated.sps-Config
INT32 rrcComposeSps_Config(OSCTXT* pAsnCxt, BWP_DownlinkDedicated_sps_Config* pSps_Config, RrcSpsCfg_t* pRrcSpsCfg)
{
    NULL_CHECK(pSps_Config);
    NULL_CHECK(pRrcSpsCfg);

    RETURN_IF_FAILED(compose::setup(pAsnCxt, pSps_Config, pRrcSpsCfg, rrcComposeSps_ConfigSetup),
                     "rrcComposeSps_ConfigSetup Error\r\n");
    return VOS_OK;
}

// BWP-DownlinkDedicated.sps-Config.setup
INT32 rrcComposeSps_ConfigSetup(SPS_Config* pSetup, RrcSpsCfg_t* pRrcSpsCfg)
{
    assign(pSetup->periodicity, pRrcSpsCfg->periodicity);
    assign(pSetup->nrofHARQ_Processes, pRrcSpsCfg->nrofHardProcess);
    COPY_IF(pRrcSpsCfg->bitMask & RRC_SPS_CFG_N1_PUCCH_AN_PRESENCE, pSetup, n1PUCCH_AN, pRrcSpsCfg->n1PucchAn);
    COPY_IF(pRrcSpsCfg->bitMask & RRC_SPS_CFG_MCS_TABLE_PRESENCE, pSetup, mcs_Table, pRrcSpsCfg->mcsTable);
    return VOS_OK;
}
