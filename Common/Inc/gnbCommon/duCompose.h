#ifndef DUCOMPOSE_H
#define DUCOMPOSE_H

#include "NR-RRC-Definitions.h"
#include "gnbCommon/gnbServingCell.h"

/*
 * Composers of the distributed unit. The library calls them and does not look at their results; cellgroupcfg::du has
 * the default ones, and a program that defines some of them itself gets only the others from there.
 *
 * Each fills a cleared element from the unit's record, takes what it allocates from the context's heap, and returns
 * VOS_OK or VOS_ERROR. No pointer is null.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** SCS-SpecificCarrier, once per carrier of FrequencyInfoDL and FrequencyInfoUL */
INT32 duComposeSCS_SpecificCarrier(OSCTXT* pAsnCxt, SCS_SpecificCarrier* pScsSpecificCarrier,
                                   SpecificCarrier_t* pSpecificCarrier);

/** DownlinkConfigCommon.initialDownlinkBWP */
INT32 duComposeBWP_DownlinkCommon(OSCTXT* pAsnCxt, BWP_DownlinkCommon* pBwpDownlinkCommon,
                                  NrBwpDownLinkCommon_t* pNrBwpDownLinkCommon);

/** UplinkConfigCommon.initialUplinkBWP */
INT32 duComposeBWP_UplinkCommon(OSCTXT* pAsnCxt, BWP_UplinkCommon* pBwpUplinkCommon, InitialUlBwp_t* pInitialUlBwp);

/** ServingCellConfigCommon.tdd-UL-DL-ConfigurationCommon */
INT32 duComposeTDD_UL_DL_ConfigCommon(OSCTXT* pAsnCxt, TDD_UL_DL_ConfigCommon* pTddUlDlConfigCommon,
                                      TddUlDlCfgCom_t* pTddUlDlCfgCom);

#ifdef __cplusplus
}
#endif

#endif
