// Composers of ServingCellConfigCommon, SSB-MTC and TDD-UL-DL-SlotConfig.
#ifndef SERVINGCELLCOMMON_H
#define SERVINGCELLCOMMON_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcServingCellCommon.h"

INT32 rrcComposeServCellConfigCommon(OSCTXT* pAsnCxt, ServingCellConfigCommon* pServCellConfigCommon,
                                     RrcServingCellCfgCommon_t* pRrcServCellCfgComm);
INT32 rrcComposeDownlinkCfgCommon(OSCTXT* pAsnCxt, DownlinkConfigCommon* pDownlinkConfigCommon,
                                  RrcDlCfgComm_t* pRrcDlCfgComm);
INT32 rrcComposeFreqInfoDl(OSCTXT* pAsnCxt, FrequencyInfoDL* pFrequencyInfoDL, RrcFreqInfoDl_t* pRrcFreqInfoDl);
INT32 rrcComposeRrcFreqInfoDL_ScsSpecificCarrierList(OSCTXT* pAsnCxt,
                                                     FrequencyInfoDL_scs_SpecificCarrierList* pScsSpecificCarrierList,
                                                     RrcFreqInfoDl_t* pRrcFreqInfoDl);
INT32 rrcComposeUplinkCfgCommon(OSCTXT* pAsnCxt, UplinkConfigCommon* pUplinkConfigCommon,
                                RrcUlCfgComm_t* pRrcUlCfgComm);
INT32 rrcComposeFreqInfoUL(OSCTXT* pAsnCxt, FrequencyInfoUL* pFrequencyInfoUL, RrcFreqInfoUl_t* pRrcFreqInfoUl);
INT32 rrcComposeRrcFreqInfoUL_ScsSpecificCarrierList(OSCTXT* pAsnCxt,
                                                     FrequencyInfoUL_scs_SpecificCarrierList* pScsSpecificCarrierList,
                                                     RrcFreqInfoUl_t* pRrcFreqInfoUl);
INT32 rrcComposeSsbPositionInBurst(OSCTXT* pAsnCxt, ServingCellConfigCommon_ssb_PositionsInBurst* pSsb_PositionsInBurst,
                                   RrcServingCellCfgCommon_t* pRrcServCellCfgComm);
INT32 rrcComposerateMatchPatternToAddMod(
    OSCTXT* pAsnCxt, ServingCellConfigCommon_rateMatchPatternToAddModList* pRateMatchPatternToAddModList,
    RrcServingCellCfgCommon_t* pRrcServCellCfgComm);
INT32 rrcComposerateMatchPatternRelease(
    ServingCellConfigCommon_rateMatchPatternToReleaseList* pRateMatchPatternToReleaseList,
    RrcServingCellCfgCommon_t* pRrcServCellCfgComm);
INT32 rrcComposeRateMatchPatternAdd(OSCTXT* pAsnCxt, RateMatchPattern* pRateMatchPatItem,
                                    RrcRateMatchPattern_t* pRrcRateMatchPat);
INT32 rrcComposeRateMatchPatternType(OSCTXT* pAsnCxt, RateMatchPattern_patternType* pPatternType,
                                     RrcRateMatchPattern_t* pRrcRateMatchPat);
INT32 rrcComposePatternType_bitmaps(OSCTXT* pAsnCxt, RateMatchPattern_patternType_bitmaps* pBitmaps,
                                    RrcBitMaps_t* pRrcBitmaps);
INT32 rrcComposePatternTypeResourceBlock(
    OSCTXT* pAsnCxt, RateMatchPattern_patternType_bitmaps_symbolsInResourceBlock* pSymbolsInResourceBlock,
    RrcBitMaps_t* pRrcBitmaps);
INT32 rrcComposePeriodicityAndPattern(
    OSCTXT* pAsnCxt, RateMatchPattern_patternType_bitmaps_periodicityAndPattern* pPeriodicityAndPattern,
    RrcBitMaps_t* pRrcBitmaps);
INT32 rrcComposeSSB_MTC(SSB_MTC* pSmtc, RrcSSBMTC_t* pRrcSmtc);
INT32 rrcComposePeriodicityAndOffset(SSB_MTC_periodicityAndOffset* pPeriodicityAndOffset, RrcSSBMTC_t* pRrcSmtc);
INT32 rrcComposeTddUlDlCfg(OSCTXT* pAsnCxt, TDD_UL_DL_SlotConfig* pTDD_UL_DL_SlotCfg,
                           RrcTddUlDlSlotCfg_t* pRrcTddUlDlCfg);
INT32 rrcComposeTDD_UL_DL_SlotConfig_symbols(OSCTXT* pAsnCxt, TDD_UL_DL_SlotConfig_symbols* pSymbols,
                                             RrcTddUlDlSlotCfg_t* pRrcTddUlDlCfg);
INT32 rrcComposeSymbols_explicit(TDD_UL_DL_SlotConfig_symbols_explicit_* pExplicit, struct explicit_s* pRrcExplicit);

#endif
