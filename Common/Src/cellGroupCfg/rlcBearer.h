// Composers of CellGroupConfig's RLC bearer lists and of RLC-BearerConfig.
#ifndef RLCBEARER_H
#define RLCBEARER_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCodec.h"

INT32 rrcComposeRlc_BearerToAddModList(OSCTXT* pAsnCxt,
                                       CellGroupConfig_rlc_BearerToAddModList* pRrcRlc_BearerToAddModList,
                                       RrcCellGroupCfg_t* rrcRrcCellGroupCfgInfo);
INT32 rrcComposeRlc_BearerCfg(OSCTXT* pAsnCxt, RLC_BearerConfig* pRlc_BearCfg, RrcRlcBearerCfg_t* pRrcRlcBearCfg);
INT32 rrcComposeRlc_BearerCfgServedRadioBearer(RLC_BearerConfig_servedRadioBearer* pRlc_BearCfg_ServeRadBear,
                                               RrcRlcBearerCfg_t* pRrcRlcBearerCfg);

INT32 rrcComposeRlc_Config(OSCTXT* pAsnCxt, RLC_Config* pRlcCfg, RrcRlcCfg_t* PRrcRlcCfg);
INT32 rrcConstructRLC_Config_am(RLC_Config_am* pRlc_Cfg_am, RrcAmRlcCfg_t* pRrcAmRlcCfg);
INT32 rrcConstructRLC_Config_um(RLC_Config_um_Bi_Directional* pRlc_Cfg_um_Bi_Dirrectional,
                                RrcUmBiRlcCfg_t* pRrcumBiCfg);
INT32 rrcConstructRLC_Config_um_Uni_Direc_Ul(RLC_Config_um_Uni_Directional_UL* pRlc_Cfg_um_Uni_Dirrectional_Ul,
                                             RrcUlUmRlcCfg_t* pRrcUmUniUlCfg);
INT32 rrcConstructRLC_Config_um_Uni_Direc_Dl(RLC_Config_um_Uni_Directional_DL* pRlc_Cfg_um_Uni_Dirrectional_Dl,
                                             RrcDlUmRlcCfg_t* pRrcumUniDlCfg);

INT32 rrcComposeLogChannel_Config(OSCTXT* pAsnCxt, LogicalChannelConfig* pMac_LogicalChannelCfg,
                                  RrcLchCfg_t* pRrcMacLchCfg);
INT32 rrcComposeUl_SpecificParam(LogicalChannelConfig_ul_SpecificParameters* pUl_SpecificParameters,
                                 RrcUlSpecificParaCfg_t* pRrcUlSpecificParaCfg);
INT32 rrcComposeAllowedServingCells(
    LogicalChannelConfig_ul_SpecificParameters_allowedServingCells* pAllowedServingCells,
    RrcUlSpecificParaCfg_t* pRrcUlSpecificParaCfg);
INT32 rrcComposeAllowedScsList(LogicalChannelConfig_ul_SpecificParameters_allowedSCS_List* pAllowedSCS_List,
                               RrcUlSpecificParaCfg_t* pRrcUlSpecificParaCfg);

INT32 rrcComposeRlc_BearerToReleaseList(CellGroupConfig_rlc_BearerToReleaseList* pRlc_BearerToReleaseList,
                                        RrcCellGroupCfg_t* pRrcRrcCellGroupCfgInfo);

#endif
