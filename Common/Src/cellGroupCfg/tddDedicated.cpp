#include "tddDedicated.h"

#include "compose.h"
#include "servingCellCommon.h"

// ServingCellConfig.tdd-UL-DL-ConfigurationDedicated
INT32 rrcComposeTDD_UL_DL_ConfigDedicated(OSCTXT* pAsnCxt, TDD_UL_DL_ConfigDedicated* pTdd_UL_DL_ConfigurationDedicated,
                                          RrcTddUlDlCfgDedi_t* pRrcTddUlDlCfgDed)
{
    NULL_CHECK(pTdd_UL_DL_ConfigurationDedicated);
    NULL_CHECK(pRrcTddUlDlCfgDed);

    // The lists are filled without their presence bits, so neither is sent.
    if (pRrcTddUlDlCfgDed->numSlotsAddMod != 0)
    {
        RETURN_IF_FAILED(
            rrcComposeSlotSpecificConfigurationsToAdd(
                pAsnCxt, &pTdd_UL_DL_ConfigurationDedicated->slotSpecificConfigurationsToAddModList, pRrcTddUlDlCfgDed),
            "rrcComposeSlotSpecificConfigurationsToAdd Error\r\n");
    }
    if (pRrcTddUlDlCfgDed->numSlotsRelease != 0)
    {
        RETURN_IF_FAILED(
            rrcComposeSlotSpecificConfigurationsRelease(
                &pTdd_UL_DL_ConfigurationDedicated->slotSpecificConfigurationsToreleaseList, pRrcTddUlDlCfgDed),
            "rrcComposeSlotSpecificConfigurationsRelease Error\r\n");
    }
    return VOS_OK;
}

// ServingCellConfig.tdd-UL-DL-ConfigurationDedicated.slotSpecificConfigurationsToAddModList
INT32 rrcComposeSlotSpecificConfigurationsToAdd(
    OSCTXT* pAsnCxt, TDD_UL_DL_ConfigDedicated_slotSpecificConfigurationsToAddModList* pToAddModList,
    RrcTddUlDlCfgDedi_t* pRrcTddUlDlCfgDed)
{
    return compose::list<TDD_UL_DL_SlotConfig>(
        pAsnCxt, pToAddModList, pRrcTddUlDlCfgDed->numSlotsAddMod, pRrcTddUlDlCfgDed->slotCfgDedicated,
        rrcComposeTddUlDlCfg, {"pNode Or pTDD_UL_DL_SlotCfg is NULL\r\n", "rrcComposeTddUlDlCfg is Error\r\n"});
}

// ServingCellConfig.tdd-UL-DL-ConfigurationDedicated.slotSpecificConfigurationsToreleaseList
INT32 rrcComposeSlotSpecificConfigurationsRelease(
    TDD_UL_DL_ConfigDedicated_slotSpecificConfigurationsToreleaseList* pToreleaseList,
    RrcTddUlDlCfgDedi_t* pRrcTddUlDlCfgDed)
{
    compose::array(pToreleaseList, pRrcTddUlDlCfgDed->numSlotsRelease, pRrcTddUlDlCfgDed->slotIdx);
    return VOS_OK;
}
