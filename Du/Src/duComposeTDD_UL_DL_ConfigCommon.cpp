#include "compose.h"
#include "gnbCommon/duCompose.h"

namespace
{

// TDD-UL-DL-Pattern
void composePattern(TDD_UL_DL_Pattern* pPattern, const TddUlDlPattern_t* pTddUlDlPattern)
{
    assign(pPattern->dl_UL_TransmissionPeriodicity, pTddUlDlPattern->transmissionPeriodicity);
    assign(pPattern->nrofDownlinkSlots, pTddUlDlPattern->nrofDownlinkSlots);
    assign(pPattern->nrofDownlinkSymbols, pTddUlDlPattern->nrofDownlinkSymbols);
    assign(pPattern->nrofUplinkSlots, pTddUlDlPattern->nrofUplinkSlots);
    assign(pPattern->nrofUplinkSymbols, pTddUlDlPattern->nrofUplinkSymbols);
    if (pTddUlDlPattern->bitmask & NR_TDD_PATTERN_PERIODICITY_V1530_PRESENCE)
    {
        pPattern->m._v2ExtPresent = 1;
        pPattern->m.dl_UL_TransmissionPeriodicity_v1530Present = 1;
        assign(pPattern->dl_UL_TransmissionPeriodicity_v1530, pTddUlDlPattern->transmissionPeriodicityV1530);
    }
}

} // namespace

// TDD-UL-DL-ConfigCommon
INT32 duComposeTDD_UL_DL_ConfigCommon(OSCTXT* /*pAsnCxt*/, TDD_UL_DL_ConfigCommon* pTddUlDlConfigCommon,
                                      TddUlDlCfgCom_t* pTddUlDlCfgCom)
{
    assign(pTddUlDlConfigCommon->referenceSubcarrierSpacing, pTddUlDlCfgCom->referenceSubcarrierSpacing);
    composePattern(&pTddUlDlConfigCommon->pattern1, &pTddUlDlCfgCom->pattern1);
    if (pTddUlDlCfgCom->bitmask & NR_TDD_PATTERN2_PRESENCE)
    {
        pTddUlDlConfigCommon->m.pattern2Present = 1;
        composePattern(&pTddUlDlConfigCommon->pattern2, &pTddUlDlCfgCom->pattern2);
    }
    return VOS_OK;
}
