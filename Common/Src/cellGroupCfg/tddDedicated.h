// Composers of ServingCellConfig.tdd-UL-DL-ConfigurationDedicated.
#ifndef TDDDEDICATED_H
#define TDDDEDICATED_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcTddDedicated.h"

INT32 rrcComposeTDD_UL_DL_ConfigDedicated(OSCTXT* pAsnCxt, TDD_UL_DL_ConfigDedicated* pTdd_UL_DL_ConfigurationDedicated,
                                          RrcTddUlDlCfgDedi_t* pRrcTddUlDlCfgDed);
INT32 rrcComposeSlotSpecificConfigurationsToAdd(
    OSCTXT* pAsnCxt, TDD_UL_DL_ConfigDedicated_slotSpecificConfigurationsToAddModList* pToAddModList,
    RrcTddUlDlCfgDedi_t* pRrcTddUlDlCfgDed);
INT32 rrcComposeSlotSpecificConfigurationsRelease(
    TDD_UL_DL_ConfigDedicated_slotSpecificConfigurationsToreleaseList* pToreleaseList,
    RrcTddUlDlCfgDedi_t* pRrcTddUlDlCfgDed);

#endif
