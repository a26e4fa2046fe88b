// Composers of BWP-DownlinkDedicated.pdcch-Config.
#ifndef PDCCH_H
#define PDCCH_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcPdcch.h"

INT32 rrcComposePdcch_Config(OSCTXT* pAsnCxt, BWP_DownlinkDedicated_pdcch_Config* pPdcch_Config,
                             RrcPdcchCfg_t* pRrcPdcchCfg);
INT32 rrcComposePdcch_ConfigSetup(OSCTXT* pAsnCxt, PDCCH_Config* pSetup, RrcPdcchCfg_t* pRrcPdcchCfg);

INT32 rrcComposecontrolResourceSetToAddList(OSCTXT* pAsnCxt, PDCCH_Config_controlResourceSetToAddModList* pToAddModList,
                                            RrcPdcchCfg_t* pRrcPdcchCfg);
INT32 rrcComposecontrolResourceSetToRelList(PDCCH_Config_controlResourceSetToReleaseList* pToReleaseList,
                                            RrcPdcchCfg_t* pRrcPdcchCfg);
INT32 rrcComposeControlResourceSet(OSCTXT* pAsnCxt, ControlResourceSet* pControlResourceSet,
                                   RrcControlResourceSet_t* pRrcControlResourceSet);
INT32 rrcComposeCce_REG_MappingType(OSCTXT* pAsnCxt, ControlResourceSet_cce_REG_MappingType* pCce_REG_MappingType,
                                    RrcControlResourceSet_t* pRrcControlResourceSet);
INT32 rrcComposeInterleaved(ControlResourceSet_cce_REG_MappingType_interleaved* pInterleaved,
                            RrcInterleaved_t* pRrcInterleaved);
INT32 rrcComposetci_StatesPDCCH_ToAddList(ControlResourceSet_tci_StatesPDCCH_ToAddList* pTci_StatesPDCCH_ToAddList,
                                          RrcControlResourceSet_t* pRrcControlResourceSet);
INT32 rrcComposetci_StatesPDCCH_ReleaesList(
    ControlResourceSet_tci_StatesPDCCH_ToReleaseList* pTci_StatesPDCCH_ToReleaseList,
    RrcControlResourceSet_t* pRrcControlResourceSet);

INT32 rrcComposeSearchSpacesToAddModList(OSCTXT* pAsnCxt, PDCCH_Config_searchSpacesToAddModList* pToAddModList,
                                         RrcPdcchCfg_t* pRrcPdcchCfg);
INT32 rrcComposeSearchSpacesToReleaesList(PDCCH_Config_searchSpacesToReleaseList* pToReleaseList,
                                          RrcPdcchCfg_t* pRrcPdcchCfg);
INT32 rrcComposeSearchSpace(OSCTXT* pAsnCxt, SearchSpace* pSearchSpace, RrcSearchSpace_t* pRrcSearchSpace);
INT32 rrcComposeMonitoringSlotPerAndOffset(
    SearchSpace_monitoringSlotPeriodicityAndOffset* pMonitoringSlotPeriodicityAndOffset,
    struct slotPeriodOffset_s* pRrcSlotPeriodOffset);
INT32 rrcComposeCrofCandidates(SearchSpace_nrofCandidates* pNrofCandidates, struct nrofCadidate_s* pRrcNrofCadidates);
INT32 rrcComposeSearchSpaceType(OSCTXT* pAsnCxt, SearchSpace_searchSpaceType* pSearchSpaceType,
                                RrcSearchSpace_t* pRrcSearchSpace);
INT32 rrcComposeSearchSpaceType_common(SearchSpace_searchSpaceType_common* pCommon, struct common_s* pRrcCommon);
INT32 rrcComposeSearchSpaceTypeDci_Format2_0(SearchSpace_searchSpaceType_common_dci_Format2_0* pDci_Format2_0,
                                             struct dciFormat2_0_s* pRrcDciFormat2_0);
INT32 rrcComposeUeSpecific(SearchSpace_searchSpaceType_ue_Specific* pUe_Specific, struct ueSpecific_s* pRrcUeSpecific);

INT32 rrcComposeDownlinkPreemption(OSCTXT* pAsnCxt, PDCCH_Config_downlinkPreemption* pDownlinkPreemption,
                                   RrcDlPreemption_t* pRrcDlPreemption);
INT32 rrcComposeDownlinkPreemptionSetup(OSCTXT* pAsnCxt, DownlinkPreemption* pSetup,
                                        RrcDlPreemption_t* pRrcDlPreemption);
INT32 rrcComposeInt_ConfigurationPerServingCell(
    OSCTXT* pAsnCxt, DownlinkPreemption_int_ConfigurationPerServingCell* pInt_ConfigurationPerServingCell,
    RrcDlPreemption_t* pRrcDlPreemption);

INT32 rrcComposeTpc_PUSCH(OSCTXT* pAsnCxt, PDCCH_Config_tpc_PUSCH* pTpc_PUSCH, RrcPuschTpcCmdCfg_t* pRrcTpcPusch);
INT32 rrcComposeTpc_PUSCHSetup(PUSCH_TPC_CommandConfig* pSetup, RrcPuschTpcCmdCfg_t* pRrcTpcPusch);
INT32 rrcComposeTpc_PUCCH(OSCTXT* pAsnCxt, PDCCH_Config_tpc_PUCCH* pTpc_PUCCH, RrcPucchTpcCmdCfg_t* pRrcTpcPucch);
INT32 rrcComposeTpc_PUCCHSetup(PUCCH_TPC_CommandConfig* pSetup, RrcPucchTpcCmdCfg_t* pRrcTpcPucch);
INT32 rrcComposeTpc_SRS(OSCTXT* pAsnCxt, PDCCH_Config_tpc_SRS* pTpc_SRS, RrcSrsTpcCmdCfg_t* pRrctpcSrs);
INT32 rrcComposeTpc_SRSSetup(SRS_TPC_CommandConfig* pSetup, RrcSrsTpcCmdCfg_t* pRrctpcSrs);

#endif
