// Composers of what the CSI trigger states name. They trust their pointers and return VOS_OK.
#ifndef CSITRIGGERSTATE_H
#define CSITRIGGERSTATE_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCsiMeas.h"

INT32 rrcComposeCsi_AssociatedReportConfigInfo(OSCTXT* pAsnCxt, CSI_AssociatedReportConfigInfo* pItem,
                                               RrcCsiAssociatedReportCfgInfo_t* pRrcItem);
INT32 rrcComposeResourcesForChannel(OSCTXT* pAsnCxt,
                                    CSI_AssociatedReportConfigInfo_resourcesForChannel* pResourcesForChannel,
                                    RrcCsiAssociatedReportCfgInfo_t* pRrcItem);
INT32 rrcComposeChannel_nzp_CSI_RS(CSI_AssociatedReportConfigInfo_resourcesForChannel_nzp_CSI_RS* pNzp_CSI_RS,
                                   struct nzpCsiRs_s* pRrcNzpCsiRs);
INT32 rrcComposeTriggerState(CSI_SemiPersistentOnPUSCH_TriggerState* pItem, UINT8* pRrcCsiReportCfgId);

#endif
