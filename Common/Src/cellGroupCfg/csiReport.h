// Composers of CSI-ReportConfig. They trust their pointers; only those of the element lists can fail.
#ifndef CSIREPORT_H
#define CSIREPORT_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCsiReport.h"

INT32 rrcComposeCsi_ReportConfigToAdd(OSCTXT* pAsnCxt, CSI_ReportConfig* pItem, RrcCsiReportCfg_t* pRrcItem);
INT32 rrcComposeCSI_ReportConfigType(OSCTXT* pAsnCxt, CSI_ReportConfig_reportConfigType* pReportConfigType,
                                     RrcCsiReportCfg_t* pRrcCsiReportCfg);
INT32 rrcComposeReportConfigType_periodic(OSCTXT* pAsnCxt, CSI_ReportConfig_reportConfigType_periodic* pPeriodic,
                                          Periodic_t* pRrcPeriodic);
INT32 rrcComposeReportPeriodicityAndOffset(CSI_ReportPeriodicityAndOffset* pReportSlotConfig,
                                           csiReportPeriodAndOffset_t* pRrcReportSlotCfg);
INT32 rrcComposepucch_CSI_ResourceList(OSCTXT* pAsnCxt, OSRTDList* pPucch_CSI_ResourceList, Periodic_t* pRrcPeriodic);
INT32 rrcComposePUCCH_CSI_Resource(PUCCH_CSI_Resource* pItem, PucchCsiResource_t* pRrcItem);
INT32 rrcComposeSemiPersistentOnPUCCH(OSCTXT* pAsnCxt,
                                      CSI_ReportConfig_reportConfigType_semiPersistentOnPUCCH* pSemiPersistentOnPUCCH,
                                      SemiPersistentOnPucch_t* pRrcSemiPersistentOnPucch);
INT32 rrcComposeSemiPerpucch_CSI_ResourceList(OSCTXT* pAsnCxt, OSRTDList* pPucch_CSI_ResourceList,
                                              SemiPersistentOnPucch_t* pRrcSemiPersistentOnPucch);
INT32 rrcComposeSemiPersistentOnPUSCH(CSI_ReportConfig_reportConfigType_semiPersistentOnPUSCH* pSemiPersistentOnPUSCH,
                                      SemiPersistentOnPuSch_t* pRrcSemiPersistentOnPusch);
INT32 rrcComposeReportConfigType_aperiodic(CSI_ReportConfig_reportConfigType_aperiodic* pAperiodic,
                                           Aperiodic_t* pRrcAperiodic);
INT32 rrcComposeReportSlotOffsetList(
    CSI_ReportConfig_reportConfigType_aperiodic_reportSlotOffsetList* pReportSlotOffsetList,
    Aperiodic_t* pRrcAperiodic);
INT32 rrcComposeCSIreportQuantity(OSCTXT* pAsnCxt, CSI_ReportConfig_reportQuantity* pReportQuantity,
                                  RrcCsiReportCfg_t* pRrcCsiReportCfg);
INT32 rrcComposeCri_RI_i1_CQI(CSI_ReportConfig_reportQuantity_cri_RI_i1_CQI* pCri_RI_i1_CQI,
                              CriRiI1Cqi_t* pRrcCriRiI1Cqi);
INT32 rrcComposeReportFreqConfiguration(OSCTXT* pAsnCxt,
                                        CSI_ReportConfig_reportFreqConfiguration* pReportFreqConfiguration,
                                        ReportFreqCfg_t* pRrcReportFreqCfg);
INT32 rrcComposeCsi_ReportingBand(OSCTXT* pAsnCxt,
                                  CSI_ReportConfig_reportFreqConfiguration_csi_ReportingBand* pCsi_ReportingBand,
                                  ReportFreqCfg_t* pRrcReportFreqCfg);
INT32 rrcComposeGroupBasedBeamReport(OSCTXT* pAsnCxt,
                                     CSI_ReportConfig_groupBasedBeamReporting* pGroupBasedBeamReporting,
                                     RrcgroupBasedBeamReport_t* pRrcGroupBasedBeamReport);
INT32 rrcComposeNon_PMI_PortIndicat(OSCTXT* pAsnCxt, OSRTDList* pNon_PMI_PortIndication,
                                    RRCPortIndexFor8Ranks_t* pRrcPortIndexFor8Ranks);
INT32 rrcComposePortIndexFor8Ranks(OSCTXT* pAsnCxt, PortIndexFor8Ranks* pItem, RrcPortIndexFor8Ranks_t* pRrcItem);
INT32 rrcComposePortIndex8(PortIndexFor8Ranks_portIndex8* pPortIndex8,
                           struct portIndexFor8Ranks_portIndex8* pRrcPortIndex8);
INT32 rrcComposePortIndex4(PortIndexFor8Ranks_portIndex4* pPortIndex4,
                           struct portIndexFor8Ranks_portIndex4* pRrcPortIndex4);
INT32 rrcComposePortIndex2(PortIndexFor8Ranks_portIndex2* pPortIndex2,
                           struct portIndexFor8Ranks_portIndex2* pRrcPortIndex2);
INT32 rrcComposeSemiPersistentOnPUSCH_v1530(CSI_ReportConfig_semiPersistentOnPUSCH_v1530* pSemiPersistentOnPUSCH_v1530,
                                            struct semimPersistentOnPuschv1530* pRrcSemiPersistentOnPuschv1530);

#endif
