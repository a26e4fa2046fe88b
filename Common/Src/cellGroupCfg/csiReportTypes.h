// Composers of the types that CSI-ReportConfig is made of: CSI-ReportPeriodicityAndOffset, PUCCH-CSI-Resource and
// PortIndexFor8Ranks. They trust their pointers and return VOS_OK.
#ifndef CSIREPORTTYPES_H
#define CSIREPORTTYPES_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCsiReport.h"

INT32 rrcComposeReportPeriodicityAndOffset(CSI_ReportPeriodicityAndOffset* pReportSlotConfig,
                                           csiReportPeriodAndOffset_t* pRrcReportSlotCfg);
INT32 rrcComposePUCCH_CSI_Resource(PUCCH_CSI_Resource* pItem, PucchCsiResource_t* pRrcItem);
INT32 rrcComposePortIndex8(PortIndexFor8Ranks_portIndex8* pPortIndex8,
                           struct portIndexFor8Ranks_portIndex8* pRrcPortIndex8);
INT32 rrcComposePortIndex4(PortIndexFor8Ranks_portIndex4* pPortIndex4,
                           struct portIndexFor8Ranks_portIndex4* pRrcPortIndex4);
INT32 rrcComposePortIndex2(PortIndexFor8Ranks_portIndex2* pPortIndex2,
                           struct portIndexFor8Ranks_portIndex2* pRrcPortIndex2);
INT32 rrcComposePortIndexFor8Ranks(OSCTXT* pAsnCxt, PortIndexFor8Ranks* pItem, RrcPortIndexFor8Ranks_t* pRrcItem);

#endif
