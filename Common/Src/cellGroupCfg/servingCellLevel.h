// Composers of PUSCH-, PDCCH- and PDSCH-ServingCellConfig and of SRS-CarrierSwitching.
#ifndef SERVINGCELLLEVEL_H
#define SERVINGCELLLEVEL_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcServingCellLevel.h"

INT32 rrcComposepusch_ServingCellConfig(OSCTXT* pAsnCxt, UplinkConfig_pusch_ServingCellConfig* pPusch_ServingCellConfig,
                                        RrcPuschServingCellCfg_t* pRrcPuschServingCellCfg);
INT32 rrcComposepusch_ServingCellCfgSetup(OSCTXT* pAsnCxt, PUSCH_ServingCellConfig* pPUSCH_ServingCellConfig,
                                          RrcPuschServingCellCfg_t* pRrcPuschServingCellCfg);
INT32 rrcComposeodeBlockGroupTransmission(
    OSCTXT* pAsnCxt, PUSCH_ServingCellConfig_codeBlockGroupTransmission* pCodeBlockGroupTransmission,
    struct rrcPuschCodeBlockGroupTransmission_s* pRrcPuschCodeBlockGroupTransmission);
INT32 rrcComposeCarrierSwitching(OSCTXT* pAsnCxt, UplinkConfig_carrierSwitching* pCarrierSwitching,
                                 RrcSrsCarrierSwitching_t* pRrcSrsCarrierSwitching);
INT32 rrcComposeCarrierSwitchingSetup(OSCTXT* pAsnCxt, SRS_CarrierSwitching* pSRS_CarrierSwitching,
                                      RrcSrsCarrierSwitching_t* pRrcSrsCarrierSwitching);
INT32 rrcComposesrs_TPC_PDCCH_Group(OSCTXT* pAsnCxt, SRS_CarrierSwitching_srs_TPC_PDCCH_Group* pSrs_TPC_PDCCH_Group,
                                    RrcSrsCarrierSwitching_t* pRrcSrsCarrierSwitching);
INT32 rrcComposesrs_TPC_PDCCH_GroupTypeA(OSCTXT* pAsnCxt, SRS_CarrierSwitching_srs_TPC_PDCCH_Group_typeA* pTypeA,
                                         struct typeA_s* pRrcTypeA);
INT32 rrcComposesrs_TPC_PDCCH_GroupTypeB(OSCTXT* pAsnCxt, SRS_TPC_PDCCH_Config* pTypeB, RrcSrsTpcPdcchCfg_t* pRrcTypeB);
INT32 rrcComposeSRS_TPC_PDCCH_Cfg(OSCTXT* pAsnCxt, SRS_TPC_PDCCH_Config* pSRS_TPC_PDCCH_Config,
                                  RrcSrsTpcPdcchCfg_t* pRrcSrsTpcPdcchCfg);
INT32 rrcComposeSRS_CC_SetIndex(SRS_CC_SetIndex* pSRS_CC_SetIndex, struct srsCcSetIdx_s* pRrcSrsCcSetIdx);
INT32 rrcComposeMonitoringCells(SRS_CarrierSwitching_monitoringCells* pMonitoringCells,
                                struct RrcmonitoringCells_s* pRrcmonitoringCells);
INT32 rrcComposePdcch_ServingCellConfig(OSCTXT* pAsnCxt,
                                        ServingCellConfig_pdcch_ServingCellConfig* pPdcch_ServingCellConfig,
                                        RrcPdcchServingCellCfg_t* pRrcPdcchServingCellCfg);
INT32 rrcComposePdcch_ServingCellCfgSetup(OSCTXT* pAsnCxt, PDCCH_ServingCellConfig* pPDCCH_ServingCellConfig,
                                          RrcPdcchServingCellCfg_t* pRrcPdcchServingCellCfg);
INT32 rrcComposeSlotFormatIndicator(OSCTXT* pAsnCxt, PDCCH_ServingCellConfig_slotFormatIndicator* pSlotFormatIndicator,
                                    RrcSlotFormatInd_t* pRrcSlotFormatInd);
INT32 rrcComposeSlotFormatIndSetup(OSCTXT* pAsnCxt, SlotFormatIndicator* pSlotFormatIndicator,
                                   RrcSlotFormatInd_t* pRrcSlotFormatInd);
INT32 rrcComposeSlotFormatCombToAddMod(OSCTXT* pAsnCxt,
                                       SlotFormatIndicator_slotFormatCombToAddModList* pSlotFormatCombToAddModList,
                                       RrcSlotFormatInd_t* pRrcSlotFormatInd);
INT32 rrcComposeslotFormatComb(OSCTXT* pAsnCxt, SlotFormatCombinationsPerCell* pSlotFormatCombinationsPerCell,
                               RrcSlotFormatCombPerCell_t* pRrcSlotFormatCombPerCell);
INT32 rrcComposeSlotFormatCombinations(OSCTXT* pAsnCxt,
                                       SlotFormatCombinationsPerCell_slotFormatCombinations* pSlotFormatCombinations,
                                       RrcSlotFormatCombPerCell_t* pRrcSlotFormatCombPerCell);
INT32 rrcComposeSlotFormatCombination(SlotFormatCombination* pSlotFormatCombination,
                                      RrcSlotFormatComb_t* pRrcSlotFormatComb);
INT32 rrcComposeSlotFormatCombToRel(SlotFormatIndicator_slotFormatCombToReleaseList* pSlotFormatCombToReleaseList,
                                    RrcSlotFormatInd_t* pRrcSlotFormatInd);
INT32 rrcComposePdsch_ServingCellConfig(OSCTXT* pAsnCxt,
                                        ServingCellConfig_pdsch_ServingCellConfig* pPdsch_ServingCellConfig,
                                        RrcPdschServingCellCfg_t* pRrcPdschServingCellCfg);
INT32 rrcComposePdsch_ServingCellCfgSetup(OSCTXT* pAsnCxt, PDSCH_ServingCellConfig* pPDSCH_ServingCellConfig,
                                          RrcPdschServingCellCfg_t* pRrcPdschServingCellCfg);
INT32 rrcComposeCodeBlockGroupTransmission(
    OSCTXT* pAsnCxt, PDSCH_ServingCellConfig_codeBlockGroupTransmission* pCodeBlockGroupTransmission,
    struct codeBlockGroupTransmission_s* pRrcCodeBlockGroupTransmission);
INT32 rrcComposePDSCH_CodeBlockGroupTransmissionSetup(
    PDSCH_CodeBlockGroupTransmission* pPDSCH_CodeBlockGroupTransmission,
    struct codeBlockGroupTransmission_s* pRrcCodeBlockGroupTransmission);

#endif
