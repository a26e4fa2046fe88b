// Composers of the CSI resources, resource sets and resource configurations. They trust their pointers and return
// VOS_OK.
#ifndef CSIRESOURCE_H
#define CSIRESOURCE_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCsiResource.h"

INT32 rrcComposeNzpCsiRsResourceAdd(OSCTXT* PAsnCxt, NZP_CSI_RS_Resource* pItem, RrcNzpCsiRsResource_t* pRrcItem);
INT32 rrcComposenzp_CSI_RS_Resources(NZP_CSI_RS_ResourceSet_nzp_CSI_RS_Resources* pNzp_CSI_RS_Resources,
                                     RrcNzpCsiRsResourceSet_t* pRrcItem);
INT32 rrcComposeNzpCsiRsResourceSetAdd(NZP_CSI_RS_ResourceSet* pItem, RrcNzpCsiRsResourceSet_t* pRrcItem);
INT32 rrcComposeCsi_IM_ResourceElementPatternpattern0(CSI_IM_Resource_csi_IM_ResourceElementPattern_pattern0* pPattern0,
                                                      struct pattern0_s* pRrcPattern0);
INT32 rrcComposeCsi_IM_ResourceElementPatternpattern1(CSI_IM_Resource_csi_IM_ResourceElementPattern_pattern1* pPattern1,
                                                      struct pattern1_s* pRrcPattern1);
INT32 rrcComposeCsi_IM_ResourceElementPattern(OSCTXT* PAsnCxt, CSI_IM_Resource_csi_IM_ResourceElementPattern* pPattern,
                                              RrcCsiImResource_t* pRrcItem);
INT32 rrcComposeCSI_FrequencyOccupation(CSI_FrequencyOccupation* pFreqBand, RrcCsiFreqOccupation_t* pRrcFreqBand);
INT32 rrcComposecsi_IM_ResourceToAdd(OSCTXT* PAsnCxt, CSI_IM_Resource* pItem, RrcCsiImResource_t* pRrcItem);
INT32 rrcComposecsi_IM_ResourceSetToAdd(CSI_IM_ResourceSet* pItem, RrcCsiImResourceSet_t* pRrcItem);
INT32 rrcComposeCsiSsbResourceSetAddMod(CSI_SSB_ResourceSet* pItem, RrcCsiSsbResourceSet_t* pRrcItem);
INT32 rrcComposNzp_CSI_RS_ResourceSetList(
    CSI_ResourceConfig_csi_RS_ResourceSetList_nzp_CSI_RS_SSB_nzp_CSI_RS_ResourceSetList* pNzp_CSI_RS_ResourceSetList,
    struct nzpCsiRsResourceSetList_s* pRrcResourceSetList);
INT32 rrcComposcsi_SSB_ResourceSetList(
    CSI_ResourceConfig_csi_RS_ResourceSetList_nzp_CSI_RS_SSB_csi_SSB_ResourceSetList* pCsi_SSB_ResourceSetList,
    struct nzpCsiRsResourceSetList_s* pRrcResourceSetList);
INT32 rrcComposenzp_CSI_RS_SSB(CSI_ResourceConfig_csi_RS_ResourceSetList_nzp_CSI_RS_SSB* pNzp_CSI_RS_SSB,
                               struct nzpCsiRsResourceSetList_s* pRrcResourceSetList);
INT32 rrcComposecsi_IM_ResourceSetList(
    CSI_ResourceConfig_csi_RS_ResourceSetList_csi_IM_ResourceSetList* pCsi_IM_ResourceSetList,
    struct csiImResourceSetList_s* pRrcResourceSetList);
INT32 rrcComposeCsi_RS_ResourceSetList(OSCTXT* PAsnCxt, CSI_ResourceConfig_csi_RS_ResourceSetList* pResourceSetList,
                                       RrcCsiResourceCfg_t* pRrcItem);
INT32 rrcComposeCsi_ResourceConfigToAdd(OSCTXT* PAsnCxt, CSI_ResourceConfig* pItem, RrcCsiResourceCfg_t* pRrcItem);

#endif
