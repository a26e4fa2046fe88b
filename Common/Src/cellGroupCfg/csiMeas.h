// Composers of CSI-MeasConfig: its lists, its trigger states and the whole. They trust their pointers.
#ifndef CSIMEAS_H
#define CSIMEAS_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCsiMeas.h"

INT32 rrcComposecsi_MeasConfig(OSCTXT* pAsnCxt, ServingCellConfig_csi_MeasConfig* pCsi_MeasConfig,
                               RrcCsiMeasCfg_t* pRrcMeasCfg);
INT32 rrcComposecsi_MeasConfigSetup(OSCTXT* pAsnCxt, CSI_MeasConfig* pCsi_MeasConfig, RrcCsiMeasCfg_t* pRrcMeasCfg);
INT32 rrcComposeNzp_CSI_RS_ResourceToAddMod(OSCTXT* PAsnCxt, OSRTDList* pAddModList, RrcCsiMeasCfg_t* pRrcMeasCfg);
INT32 rrcComposeNzp_CSI_RS_ResourceToRel(CSI_MeasConfig_nzp_CSI_RS_ResourceToReleaseList* pReleaseList,
                                         RrcCsiMeasCfg_t* pRrcMeasCfg);
INT32 rrcComposeNzp_CSI_RS_ResourceSetToAddMod(OSCTXT* PAsnCxt, OSRTDList* pAddModList, RrcCsiMeasCfg_t* pRrcMeasCfg);
INT32 rrcComposeNzp_CSI_RS_ResourceSetToRel(CSI_MeasConfig_nzp_CSI_RS_ResourceSetToReleaseList* pReleaseList,
                                            RrcCsiMeasCfg_t* pRrcMeasCfg);
INT32 rrcComposeCsi_IM_ResourceToAddMod(OSCTXT* PAsnCxt, OSRTDList* pAddModList, RrcCsiMeasCfg_t* pRrcMeasCfg);
INT32 rrcComposeCsi_IM_ResourceToRel(CSI_MeasConfig_csi_IM_ResourceToReleaseList* pReleaseList,
                                     RrcCsiMeasCfg_t* pRrcMeasCfg);
INT32 rrcComposeCsi_IM_ResourceSetToAddMod(OSCTXT* PAsnCxt, OSRTDList* pAddModList, RrcCsiMeasCfg_t* pRrcMeasCfg);
INT32 rrcComposeCsi_IM_ResourceSetToRel(CSI_MeasConfig_csi_IM_ResourceSetToReleaseList* pReleaseList,
                                        RrcCsiMeasCfg_t* pRrcMeasCfg);
INT32 rrcComposeCsi_SSB_ResourceSetToAddMod(OSCTXT* PAsnCxt, OSRTDList* pAddModList, RrcCsiMeasCfg_t* pRrcMeasCfg);
INT32 rrcComposeCsi_SSB_ResourceSetToRel(CSI_MeasConfig_csi_SSB_ResourceSetToReleaseList* pReleaseList,
                                         RrcCsiMeasCfg_t* pRrcMeasCfg);
INT32 rrcComposeCsi_ResourceConfigToAddMod(OSCTXT* PAsnCxt, OSRTDList* pAddModList, RrcCsiMeasCfg_t* pRrcMeasCfg);
INT32 rrcComposeCsi_ResourceConfigToRel(CSI_MeasConfig_csi_ResourceConfigToReleaseList* pReleaseList,
                                        RrcCsiMeasCfg_t* pRrcMeasCfg);
INT32 rrcComposeCsi_ReportConfigToAddMod(OSCTXT* PAsnCxt, OSRTDList* pAddModList, RrcCsiMeasCfg_t* pRrcMeasCfg);
INT32 rrcComposeCsi_ReportConfigToRel(CSI_MeasConfig_csi_ReportConfigToReleaseList* pReleaseList,
                                      RrcCsiMeasCfg_t* pRrcMeasCfg);
INT32 rrcComposeAperiodicTriggerStateList(OSCTXT* pAsnCxt, CSI_MeasConfig_aperiodicTriggerStateList* pTriggerStateList,
                                          RrcCsiAperiodicTriggerStateList_t* pRrcTriggerStateList);
INT32 rrcComposeAperiodicTriggerStateSetup(OSCTXT* pAsnCxt, OSRTDList* pSetup,
                                           RrcCsiAperiodicTriggerStateList_t* pRrcTriggerStateList);
INT32 rrcComposeCsi_AperiodicTriggerState(OSCTXT* pAsnCxt, CSI_AperiodicTriggerState* pItem,
                                          RrcCsiAperiodicTriggerState_t* pRrcItem);
INT32 rrcComposeCsi_AssociatedReportConfigInfo(OSCTXT* pAsnCxt, CSI_AssociatedReportConfigInfo* pItem,
                                               RrcCsiAssociatedReportCfgInfo_t* pRrcItem);
INT32 rrcComposeResourcesForChannel(OSCTXT* pAsnCxt,
                                    CSI_AssociatedReportConfigInfo_resourcesForChannel* pResourcesForChannel,
                                    RrcCsiAssociatedReportCfgInfo_t* pRrcItem);
INT32 rrcComposeChannel_nzp_CSI_RS(CSI_AssociatedReportConfigInfo_resourcesForChannel_nzp_CSI_RS* pNzp_CSI_RS,
                                   struct nzpCsiRs_s* pRrcNzpCsiRs);
INT32 rrcComposeTriggerStateList(OSCTXT* pAsnCxt,
                                 CSI_MeasConfig_semiPersistentOnPUSCH_TriggerStateList* pTriggerStateList,
                                 RrcCsiSemiPersistentOnPuschTriggerStateList_t* pRrcTriggerStateList);
INT32 rrcComposeTriggerStateListsetup(OSCTXT* pAsnCxt, OSRTDList* pSetup,
                                      RrcCsiSemiPersistentOnPuschTriggerStateList_t* pRrcTriggerStateList);
INT32 rrcComposeTriggerState(CSI_SemiPersistentOnPUSCH_TriggerState* pItem, UINT8* pRrcCsiReportCfgId);

#endif
