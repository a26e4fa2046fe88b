// Composers of RACH-ConfigDedicated.
#ifndef RACHDEDICATED_H
#define RACHDEDICATED_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcRach.h"
#include "rrcCodec/rrcSpCell.h"

INT32 rrcComposeRach_ConfigDedicated(OSCTXT* pAsnCxt,
                                     ReconfigurationWithSync_rach_ConfigDedicated* pRach_ConfigDedicated,
                                     RrcReconfWithSync_t* pRrcRecfgWithSync);
INT32 rrcComposeRach_ConfigDedicated_uplink(OSCTXT* pAsnCxt, RACH_ConfigDedicated* pRachCfgDedicated,
                                            RrcRachCfgDedi_t* pRrcLink);
INT32 rrcComposeCfra(OSCTXT* pAsnCxt, CFRA* pCfra, RrcCfra_t* pRrcCfra);
INT32 rrcComposeCfra_occasions(CFRA_occasions* pOccasions, RrcOccasions_t* pRrcOccasions);
INT32 rrcComposeRach_ConfigGeneric(RACH_ConfigGeneric* pRach_ConfigGeneric, RrcRachCfgGeneric_t* pRrcRachCfgGen);
INT32 rrcComposeCfra_resources(OSCTXT* pAsnCxt, CFRA_resources* pResources, RrcCfra_t* pRrcCfra);
INT32 rrcComposeCFRA_resources_ssb(OSCTXT* pAsnCxt, CFRA_resources_ssb* pSsb, RrcSsb_t* pRrcSsb);
INT32 rrcComposessb_ResourceList(OSCTXT* pAsnCxt, CFRA_resources_ssb_ssb_ResourceList* pSsb_ResourceList,
                                 RrcSsb_t* pRrcSsb);
INT32 rrcComposeCFRA_SSB_Resource(CFRA_SSB_Resource* pCFRA_SSB_Res, RrcCfraSsbResource_t* pRrcCFRA_SSB_Res);
INT32 rrcComposeCFRA_resources_csirs(OSCTXT* pAsnCxt, CFRA_resources_csirs* pCsirs, RrcSsirs_t* pRrcScirs);
INT32 rrcComposecsirs_ResourceList(OSCTXT* pAsnCxt, CFRA_resources_csirs_csirs_ResourceList* pCsirs_ResourceList,
                                   RrcSsirs_t* pRrcScirs);
INT32 rrcComposeCFRA_CSIRS_Res(CFRA_CSIRS_Resource* pCFRA_CSIRS_Res, RrcCsirsResource_t* pRrcCsirsRes);
INT32 rrcComposera_OccasionList(CFRA_CSIRS_Resource_ra_OccasionList* pRa_OccasionList,
                                RrcCsirsResource_t* pRrcCsirsRes);
INT32 rrcComposeRa_Prioritization(OSCTXT* pAsnCxt, RA_Prioritization* pRa_Prioritization, RrcRaPrio_t* pRaPrio);

#endif
