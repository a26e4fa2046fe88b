// Composers of the uplink bandwidth parts.
#ifndef UPLINKBWP_H
#define UPLINKBWP_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcUplinkConfig.h"

INT32 rrcComposeInitialUplinkBWP(OSCTXT* pAsnCxt, BWP_UplinkDedicated* pBWP_UplinkDedicated,
                                 RrcBwpUlDedi_t* pRrcBwpUlDedi);
INT32 rrcComposeBWPPusch_Config(OSCTXT* pAsnCxt, BWP_UplinkDedicated_pusch_Config* pPusch_Config,
                                RrcPuschCfg_t* pRrcPuschCfg);
INT32 rrcComposeBWPbeamFailureRecovery_Config(OSCTXT* pAsnCxt,
                                              BWP_UplinkDedicated_beamFailureRecoveryConfig* pBeamFailureRecoveryConfig,
                                              RrcBeamFailRecoveryCfg_t* pRrcBeamFailRecoveryCfg);
INT32 rrcComposeBeamFailureRecovery_ConfigSetup(OSCTXT* pAsnCxt, BeamFailureRecoveryConfig* pSetup,
                                                RrcBeamFailRecoveryCfg_t* pRrcCfg);
INT32 rrcComposeuplinkBWP_ToReleaseList(UplinkConfig_uplinkBWP_ToReleaseList* pUplinkBWP_ToReleaseList,
                                        RrcUlCfg_t* pRrcUlCfg);
INT32 rrcComposeuplinkBWP_ToAddModList(OSCTXT* pAsnCxt, OSRTDList* pUplinkBWP_ToAddModList, RrcUlCfg_t* pRrcUlCfg);
INT32 rrcComposeBWP_Uplink(OSCTXT* pAsnCxt, BWP_Uplink* pBWP_Uplink, RrcBwpUl_t* pRrcBwpUl);
INT32 rrcComposeBWP_UplinkCommon(OSCTXT* pAsnCxt, BWP_UplinkCommon* pBWP_UplinkCommon, RrcBwpUlComm_t* pRrcBwpUlComm);
INT32 rrcComposeBWPrach_ConfigCommon(OSCTXT* pAsnCxt, BWP_UplinkCommon_rach_ConfigCommon* pRach_ConfigCommon,
                                     RrcRachCfgComm_t* pRrcRachCfgComm);
INT32 rrcComposeRACH_Configsetup(RACH_ConfigCommon* pRACH_ConfigCommon, RrcRachCfgComm_t* pRrcRachCfgComm);
INT32 rrcComposeRach_OccasionAndCB_PreamblesPerSSB(
    RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB* pSsb_perRACH_OccasionAndCB_PreamblesPerSSB,
    RrcRachCfgComm_t* pRrcRachCfgComm);
INT32 rrcComposeRach_groupBconfigured(RACH_ConfigCommon_groupBconfigured* pGroupBconfigured,
                                      struct groupBCfgd_s* pRrcGroupBCfgd);
INT32 rrcComposeRach_RootSequenceIndex(RACH_ConfigCommon_prach_RootSequenceIndex* pPrach_RootSequenceIndex,
                                       RrcRachCfgComm_t* pRrcRachCfgComm);
INT32 rrcComposeBWPpusch_ConfigCommon(OSCTXT* pAsnCxt, BWP_UplinkCommon_pusch_ConfigCommon* pPusch_ConfigCommon,
                                      RrcPuschCfgComm_t* pRrcPuschCfgComm);
INT32 rrcComposePusch_ConfigCommonsetup(OSCTXT* pAsnCxt, PUSCH_ConfigCommon* pPUSCH_ConfigCommon,
                                        RrcPuschCfgComm_t* pRrcPuschCfgComm);
INT32 rrcComposeBWPpucch_ConfigCommon(OSCTXT* pAsnCxt, BWP_UplinkCommon_pucch_ConfigCommon* pPucch_ConfigCommon,
                                      RrcPucchCfgComm_t* pRrcPucchCfgComm);
INT32 rrcComposePucch_ConfigCommonsetup(PUCCH_ConfigCommon* pPUCCH_ConfigCommon, RrcPucchCfgComm_t* pRrcPucchCfgComm);

#endif
