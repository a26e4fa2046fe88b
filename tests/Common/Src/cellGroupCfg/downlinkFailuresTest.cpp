// What the composers of the dedicated downlink print and return when a composer fails that never does by itself.

#include <string>

#include "cellGroupCfg/downlinkBwp.h"
#include "cellGroupCfg/pdcch.h"
#include "cellGroupCfg/pdsch.h"
#include "cellGroupCfg/radioLinkMonitoring.h"
#include "cellGroupCfg/resourceMapping.h"
#include "cellGroupCfg/servingCellCommon.h"
#include "cellGroupCfg/sps.h"
#include "cellGroupCfg/tddDedicated.h"
#include "support/ComposerTest.h"
#include "support/Interposed.h"

using test::address;
using test::Failing;
using test::passOn;

INT32 rrcComposeTddUlDlCfg(OSCTXT* c, TDD_UL_DL_SlotConfig* e, RrcTddUlDlSlotCfg_t* r)
{
    return passOn(rrcComposeTddUlDlCfg, c, e, r);
}
INT32 rrcComposeSlotSpecificConfigurationsRelease(TDD_UL_DL_ConfigDedicated_slotSpecificConfigurationsToreleaseList* e,
                                                  RrcTddUlDlCfgDedi_t* r)
{
    return passOn(rrcComposeSlotSpecificConfigurationsRelease, e, r);
}
INT32 rrcComposecontrolResourceSetToRelList(PDCCH_Config_controlResourceSetToReleaseList* e, RrcPdcchCfg_t* r)
{
    return passOn(rrcComposecontrolResourceSetToRelList, e, r);
}
INT32 rrcComposeSearchSpacesToReleaesList(PDCCH_Config_searchSpacesToReleaseList* e, RrcPdcchCfg_t* r)
{
    return passOn(rrcComposeSearchSpacesToReleaesList, e, r);
}
INT32 rrcComposeControlResourceSet(OSCTXT* c, ControlResourceSet* e, RrcControlResourceSet_t* r)
{
    return passOn(rrcComposeControlResourceSet, c, e, r);
}
INT32 rrcComposeCce_REG_MappingType(OSCTXT* c, ControlResourceSet_cce_REG_MappingType* e, RrcControlResourceSet_t* r)
{
    return passOn(rrcComposeCce_REG_MappingType, c, e, r);
}
INT32 rrcComposeInterleaved(ControlResourceSet_cce_REG_MappingType_interleaved* e, RrcInterleaved_t* r)
{
    return passOn(rrcComposeInterleaved, e, r);
}
INT32 rrcComposetci_StatesPDCCH_ToAddList(ControlResourceSet_tci_StatesPDCCH_ToAddList* e, RrcControlResourceSet_t* r)
{
    return passOn(rrcComposetci_StatesPDCCH_ToAddList, e, r);
}
INT32 rrcComposetci_StatesPDCCH_ReleaesList(ControlResourceSet_tci_StatesPDCCH_ToReleaseList* e,
                                            RrcControlResourceSet_t* r)
{
    return passOn(rrcComposetci_StatesPDCCH_ReleaesList, e, r);
}
INT32 rrcComposeSearchSpace(OSCTXT* c, SearchSpace* e, RrcSearchSpace_t* r)
{
    return passOn(rrcComposeSearchSpace, c, e, r);
}
INT32 rrcComposeMonitoringSlotPerAndOffset(SearchSpace_monitoringSlotPeriodicityAndOffset* e, slotPeriodOffset_s* r)
{
    return passOn(rrcComposeMonitoringSlotPerAndOffset, e, r);
}
INT32 rrcComposeCrofCandidates(SearchSpace_nrofCandidates* e, nrofCadidate_s* r)
{
    return passOn(rrcComposeCrofCandidates, e, r);
}
INT32 rrcComposeSearchSpaceType(OSCTXT* c, SearchSpace_searchSpaceType* e, RrcSearchSpace_t* r)
{
    return passOn(rrcComposeSearchSpaceType, c, e, r);
}
INT32 rrcComposeSearchSpaceType_common(SearchSpace_searchSpaceType_common* e, common_s* r)
{
    return passOn(rrcComposeSearchSpaceType_common, e, r);
}
INT32 rrcComposeSearchSpaceTypeDci_Format2_0(SearchSpace_searchSpaceType_common_dci_Format2_0* e, dciFormat2_0_s* r)
{
    return passOn(rrcComposeSearchSpaceTypeDci_Format2_0, e, r);
}
INT32 rrcComposeUeSpecific(SearchSpace_searchSpaceType_ue_Specific* e, ueSpecific_s* r)
{
    return passOn(rrcComposeUeSpecific, e, r);
}
INT32 rrcComposeTpc_PUSCH(OSCTXT* c, PDCCH_Config_tpc_PUSCH* e, RrcPuschTpcCmdCfg_t* r)
{
    return passOn(rrcComposeTpc_PUSCH, c, e, r);
}
INT32 rrcComposeTpc_PUSCHSetup(PUSCH_TPC_CommandConfig* e, RrcPuschTpcCmdCfg_t* r)
{
    return passOn(rrcComposeTpc_PUSCHSetup, e, r);
}
INT32 rrcComposeTpc_PUCCH(OSCTXT* c, PDCCH_Config_tpc_PUCCH* e, RrcPucchTpcCmdCfg_t* r)
{
    return passOn(rrcComposeTpc_PUCCH, c, e, r);
}
INT32 rrcComposeTpc_PUCCHSetup(PUCCH_TPC_CommandConfig* e, RrcPucchTpcCmdCfg_t* r)
{
    return passOn(rrcComposeTpc_PUCCHSetup, e, r);
}
INT32 rrcComposeTpc_SRS(OSCTXT* c, PDCCH_Config_tpc_SRS* e, RrcSrsTpcCmdCfg_t* r)
{
    return passOn(rrcComposeTpc_SRS, c, e, r);
}
INT32 rrcComposeTpc_SRSSetup(SRS_TPC_CommandConfig* e, RrcSrsTpcCmdCfg_t* r)
{
    return passOn(rrcComposeTpc_SRSSetup, e, r);
}
INT32 rrcComposeTypeSetup(OSCTXT* c, DMRS_DownlinkConfig* e, RrcDmrsDlCfg_t* r)
{
    return passOn(rrcComposeTypeSetup, c, e, r);
}
INT32 rrcComposePhaseTrackingRS(OSCTXT* c, DMRS_DownlinkConfig_phaseTrackingRS* e, RrcPtrsDlCfg_t* r)
{
    return passOn(rrcComposePhaseTrackingRS, c, e, r);
}
INT32 rrcComposePTRS_DownlinkConfigSetup(PTRS_DownlinkConfig* e, RrcPtrsDlCfg_t* r)
{
    return passOn(rrcComposePTRS_DownlinkConfigSetup, e, r);
}
INT32 rrcComposetci_StatesToAddItem(TCI_State* e, RrcTciState_t* r)
{
    return passOn(rrcComposetci_StatesToAddItem, e, r);
}
INT32 rrcComposetci_StatesRelase(PDSCH_Config_tci_StatesToReleaseList* e, RrcPdschCfg_t* r)
{
    return passOn(rrcComposetci_StatesRelase, e, r);
}
INT32 rrcComposeQcl_Type(QCL_Info* e, RrcQclInfo_t* r)
{
    return passOn(rrcComposeQcl_Type, e, r);
}
INT32 rrcComposePdsch_TimeDomainAllocationList(OSCTXT* c, PDSCH_Config_pdsch_TimeDomainAllocationList* e,
                                               RrcPdschTimeDomainResourceAllocList_t* r)
{
    return passOn(rrcComposePdsch_TimeDomainAllocationList, c, e, r);
}
INT32 rrcComposeAllocationListSetup(OSCTXT* c, PDSCH_TimeDomainResourceAllocationList* e,
                                    RrcPdschTimeDomainResourceAllocList_t* r)
{
    return passOn(rrcComposeAllocationListSetup, c, e, r);
}
INT32 rrcComposeResourceAllocation(PDSCH_TimeDomainResourceAllocation* e, RrcPdschTimeDomainResourceAlloc_t* r)
{
    return passOn(rrcComposeResourceAllocation, e, r);
}
INT32 rrcComposetci_RateMatchPatternRelease(PDSCH_Config_rateMatchPatternToReleaseList* e, RrcPdschCfg_t* r)
{
    return passOn(rrcComposetci_RateMatchPatternRelease, e, r);
}
INT32 rrcComposeRateMatchPattern(OSCTXT* c, RateMatchPattern* e, RrcRateMatchPattern_t* r)
{
    return passOn(rrcComposeRateMatchPattern, c, e, r);
}
INT32 rrcComposePatternType(OSCTXT* c, RateMatchPattern_patternType* e, RrcRateMatchPattern_t* r)
{
    return passOn(rrcComposePatternType, c, e, r);
}
INT32 rrcComposeBitmaps(OSCTXT* c, RateMatchPattern_patternType_bitmaps* e, RrcBitMaps_t* r)
{
    return passOn(rrcComposeBitmaps, c, e, r);
}
INT32 rrcComposeSymbolsInResourceBlock(OSCTXT* c, RateMatchPattern_patternType_bitmaps_symbolsInResourceBlock* e,
                                       RrcBitMaps_t* r)
{
    return passOn(rrcComposeSymbolsInResourceBlock, c, e, r);
}
INT32 rrcComposePeriodicityAndPattern(OSCTXT* c, RateMatchPattern_patternType_bitmaps_periodicityAndPattern* e,
                                      RrcBitMaps_t* r)
{
    return passOn(rrcComposePeriodicityAndPattern, c, e, r);
}
INT32 rrcComposetci_RateMatchPatternGroup(OSCTXT* c, RateMatchPatternGroup* e, RrcRateMatchPatternGroup_t* r)
{
    return passOn(rrcComposetci_RateMatchPatternGroup, c, e, r);
}
INT32 rrcComposePatternGroup_element(RateMatchPatternGroup_element* e, UINT8 presense, rateMatchPatternGroup_u* r)
{
    return passOn(rrcComposePatternGroup_element, e, presense, r);
}
INT32 rrcComposePrb_BundlingType(OSCTXT* c, PDSCH_Config_prb_BundlingType* e, RrcPdschCfg_t* r)
{
    return passOn(rrcComposePrb_BundlingType, c, e, r);
}
INT32 rrcComposeStaticBundling(PDSCH_Config_prb_BundlingType_staticBundling* e, staticBundingType* r)
{
    return passOn(rrcComposeStaticBundling, e, r);
}
INT32 rrcComposeDynamicBundling(PDSCH_Config_prb_BundlingType_dynamicBundling* e, dynamicBundingType* r)
{
    return passOn(rrcComposeDynamicBundling, e, r);
}
INT32 rrcComposezp_CSI_RS_ResourceReleaes(PDSCH_Config_zp_CSI_RS_ResourceToReleaseList* e, RrcPdschCfg_t* r)
{
    return passOn(rrcComposezp_CSI_RS_ResourceReleaes, e, r);
}
INT32 rrcComposeZP_CSI_RS_Resource(OSCTXT* c, ZP_CSI_RS_Resource* e, RrcZpCsiRsResource_t* r)
{
    return passOn(rrcComposeZP_CSI_RS_Resource, c, e, r);
}
INT32 rrcComposeResourceMapping(OSCTXT* c, CSI_RS_ResourceMapping* e, RrcCsiRsResourceMapping_t* r)
{
    return passOn(rrcComposeResourceMapping, c, e, r);
}
INT32 rrcComposefrequencyDomainAllocation(OSCTXT* c, CSI_RS_ResourceMapping_frequencyDomainAllocation* e,
                                          RrcCsiRsResourceMapping_t* r)
{
    return passOn(rrcComposefrequencyDomainAllocation, c, e, r);
}
INT32 rrcComposeperiodicityAndOffset(CSI_ResourcePeriodicityAndOffset* e, RrcCsiResourcePeriodictyAndOffset_t* r)
{
    return passOn(rrcComposeperiodicityAndOffset, e, r);
}
INT32 rrcComposezp_CSI_RS_ResourceSetRelease(PDSCH_Config_aperiodic_ZP_CSI_RS_ResourceSetsToReleaseList* e,
                                             RrcPdschCfg_t* r)
{
    return passOn(rrcComposezp_CSI_RS_ResourceSetRelease, e, r);
}
INT32 rrcComposeZP_CSI_RS_ResourceSet(ZP_CSI_RS_ResourceSet* e, RrcZpCsiRsResourceSet_t* r)
{
    return passOn(rrcComposeZP_CSI_RS_ResourceSet, e, r);
}
INT32 rrcComposeSps_Config(OSCTXT* c, BWP_DownlinkDedicated_sps_Config* e, RrcSpsCfg_t* r)
{
    return passOn(rrcComposeSps_Config, c, e, r);
}
INT32 rrcComposeSps_ConfigSetup(SPS_Config* e, RrcSpsCfg_t* r)
{
    return passOn(rrcComposeSps_ConfigSetup, e, r);
}
INT32 rrcComposeradioLinkMonitoring_Config(OSCTXT* c, BWP_DownlinkDedicated_radioLinkMonitoringConfig* e,
                                           RrcRlmCfg_t* r)
{
    return passOn(rrcComposeradioLinkMonitoring_Config, c, e, r);
}
INT32 rrcComposeradioLinkMonitoring_ConfigSetup(OSCTXT* c, RadioLinkMonitoringConfig* e, RrcRlmCfg_t* r)
{
    return passOn(rrcComposeradioLinkMonitoring_ConfigSetup, c, e, r);
}
INT32 rrcComposeFailureDetectionResourcesReleaes(RadioLinkMonitoringConfig_failureDetectionResourcesToReleaseList* e,
                                                 RrcRlmCfg_t* r)
{
    return passOn(rrcComposeFailureDetectionResourcesReleaes, e, r);
}
INT32 rrcComposeRadioLinkMonitoring(RadioLinkMonitoringRS* e, RrcRadioLinkMonitorRs_t* r)
{
    return passOn(rrcComposeRadioLinkMonitoring, e, r);
}
INT32 rrcComposeGenericParameters(BWP* e, RrcBwp_t* r)
{
    return passOn(rrcComposeGenericParameters, e, r);
}
INT32 rrcComposePdcch_ConfigCommon(OSCTXT* c, BWP_DownlinkCommon_pdcch_ConfigCommon* e, RrcPdcchCfgCommon_t* r)
{
    return passOn(rrcComposePdcch_ConfigCommon, c, e, r);
}
INT32 rrcComposePdsch_ConfigCommon(OSCTXT* c, BWP_DownlinkCommon_pdsch_ConfigCommon* e, RrcPdschCfgCommon_t* r)
{
    return passOn(rrcComposePdsch_ConfigCommon, c, e, r);
}
INT32 rrcComposePDSCH_TimeDomainResAlloc(PDSCH_TimeDomainResourceAllocation* e, RrcPdschTimeDomainResourceAlloc_t* r)
{
    return passOn(rrcComposePDSCH_TimeDomainResAlloc, e, r);
}

namespace
{

class downlinkFailures : public test::ComposerTest
{
protected:
    // Everything that a bandwidth part can hold, one of each.
    void fillDedicated()
    {
        RrcBwpDlDedicated_t& dedicated = cell->dlBwp[0].bwpDedicated;
        dedicated.bitMask = 15;

        RrcPdcchCfg_t& pdcch = dedicated.pdcchCfg;
        pdcch.numControlResourceSetAddMod = 1;
        pdcch.numControlResourceSetRel = 1;
        pdcch.numSearchSpaceAddMod = 2;
        pdcch.numSearchSpaceRel = 1;
        pdcch.bitMask = 15;
        pdcch.dlPreemption.numServingCells = 1;
        pdcch.controlResourceSetAddMod[0].presence = RRC_CCE_MAP_TYPE_INTERLEAVED;
        pdcch.controlResourceSetAddMod[0].numTciStatesPdcchAdd = 1;
        pdcch.controlResourceSetAddMod[0].numTciStatesPdcchRel = 1;
        for (unsigned i = 0; i < 2; ++i)
        {
            pdcch.searchSpaceAddMod[i].bitMask = 63;
            pdcch.searchSpaceAddMod[i].monitoringSlotPeriodOffset.period = 1;
        }
        pdcch.searchSpaceAddMod[0].presence = RRC_SEARCH_TYPE_COMMON_PRESENCE;
        pdcch.searchSpaceAddMod[0].searchType.common.presence = RRC_SEARCH_TYPE_COMMON_DCI2_0_PRESENCE;
        pdcch.searchSpaceAddMod[1].presence = RRC_SEARCH_TYPE_UE_SPECIFIC_PRESENCE;

        RrcPdschCfg_t& pdsch = dedicated.pdschCfg;
        pdsch.prbBitmask = RRC_PDSCH_CFG_PRB_BUNDLING_STATIC | RRC_PDSCH_CFG_PRB_BUNDLING_DYNAMIC;
        pdsch.bitMask = 0x7FF;
        pdsch.dmrsDlPdschMappingTypeA.bitMask = RRC_DMRS_DL_CFG_TRACKRS_PRESENCE;
        pdsch.numTciStatesAddMod = 1;
        pdsch.tciStatesAddMod[0].bitMask = RRC_TCI_STATE_QCL_TYPE2_PRESENCE;
        pdsch.numTciStatesRel = 1;
        pdsch.pdschTimeDomainAllocList.num = 1;
        pdsch.numRateMatchPatternAddMod = 1;
        pdsch.rateMatchPattern[0].Presence = RRC_PATTERN_TYPE_BITMAPS;
        pdsch.rateMatchPattern[0].patternType.bitmaps.bitMask = RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE;
        pdsch.numRateMatchPatternRel = 1;
        pdsch.rateMatchPatternGroup1.numRateMatchPattern = 1;
        pdsch.rateMatchPatternGroup2.numRateMatchPattern = 1;
        pdsch.numZpCsiRsResouceAddMod = 1;
        pdsch.zpCsiRsResource[0].bitMask = RRC_ZP_CSI_RS_RESOURCE_PERIODICITY_OFFSET_PRESENCE;
        pdsch.zpCsiRsResource[0].periodictityAndOffset.slotsPeriod = 1;
        pdsch.numZpCsiRsResouceRel = 1;
        pdsch.numZpCsiRsResourceSetAddMod = 1;
        pdsch.numZpCsiRsResourceSetRel = 1;

        dedicated.radioLinkMonitorCfg.numFailDetectResourceAddMod = 1;
        dedicated.radioLinkMonitorCfg.numFailDetectResourceRel = 1;
    }

    void fill()
    {
        cell->numDlBwpAddMod = 1;
        cell->dlBwp[0].bitMask = RRC_BWP_DL_COMMON_PRESENCE | RRC_BWP_DL_DEDICATED_PRESENCE;
        RrcBwpDlCommon_t& common = cell->dlBwp[0].bwpCommon;
        common.bitMask = 3;
        common.pdschCfgCommon.bitMask = RRC_PDSCH_COMMON_PRESENCE;
        common.pdschCfgCommon.pdschTimeDomainAllocList.num = 1;
        fillDedicated();
    }

    // Composes the list of bandwidth parts with a composer that fails, which prints the lines given.
    void expect(const void* failing, INT32 result, const std::string& lines)
    {
        SCOPED_TRACE(lines);
        const Failing fault(failing);
        ServingCellConfig_downlinkBWP_ToAddModList list{};
        EXPECT_EQ(rrcComposedownlinkBWP_ToADDMod(&context, &list, cell.get()), result);
        EXPECT_EQ(printed(), lines);
        EXPECT_EQ(Failing::struck(), failing != nullptr);
        EXPECT_EQ(list.count, result == VOS_OK ? 1U : 0U);
    }

    std::unique_ptr<RrcServingCellCfg_t> cell = cleared<RrcServingCellCfg_t>();
};

const std::string dedicatedError = "rrcComposeBWP_DownlinkDedicated Error\r\nrrcComposeDlBWP_ToAddItem is Error\r\n";
const std::string pdcchError = "rrcComposePdcch_ConfigSetup Error\r\nrrcComposePdcch_Config Error\r\n" + dedicatedError;
const std::string commonError = "rrcComposeBWP_DownlinkCommon Error\r\nrrcComposeDlBWP_ToAddItem is Error\r\n";

} // namespace

TEST_F(downlinkFailures, NoneByItself)
{
    fill();
    expect(nullptr, VOS_OK, "");
}

TEST_F(downlinkFailures, OfPdcchClimbToTheTop)
{
    fill();
    const struct
    {
        const void* failing;
        const char* lines;
    } cases[] = {
        {address(rrcComposecontrolResourceSetToRelList), "rrcComposecontrolResourceSetToRelList Error\r\n"},
        {address(rrcComposeSearchSpacesToReleaesList), "rrcComposeSearchSpacesToReleaesList Error\r\n"},
        {address(rrcComposeControlResourceSet),
         "rrcComposeControlResourceSet is Error\r\nrrcComposecontrolResourceSetToAddList Error\r\n"},
        {address(rrcComposeCce_REG_MappingType),
         "rrcComposeCce_REG_MappingType Error\r\nrrcComposeControlResourceSet is Error\r\n"
         "rrcComposecontrolResourceSetToAddList Error\r\n"},
        {address(rrcComposetci_StatesPDCCH_ToAddList),
         "rrcComposetci_StatesPDCCH_ToAddList Error\r\nrrcComposeControlResourceSet is Error\r\n"
         "rrcComposecontrolResourceSetToAddList Error\r\n"},
        {address(rrcComposetci_StatesPDCCH_ReleaesList),
         "rrcComposetci_StatesPDCCH_ReleaesList Error\r\nrrcComposeControlResourceSet is Error\r\n"
         "rrcComposecontrolResourceSetToAddList Error\r\n"},
        {address(rrcComposeSearchSpace),
         "rrcComposeSearchSpace is Error\r\nrrcComposeSearchSpacesToAddModList Error\r\n"},
        {address(rrcComposeTpc_PUSCH), "rrcComposeTpc_PUSCH Error\r\n"},
        {address(rrcComposeTpc_PUSCHSetup), "rrcComposeTpc_PUSCHSetup is Error\r\nrrcComposeTpc_PUSCH Error\r\n"},
        {address(rrcComposeTpc_PUCCH), "rrcComposeTpc_PUCCH Error\r\n"},
        {address(rrcComposeTpc_PUCCHSetup), "rrcComposeTpc_PUCCHSetup is Error\r\nrrcComposeTpc_PUCCH Error\r\n"},
        {address(rrcComposeTpc_SRS), "rrcComposeTpc_SRS Error\r\n"},
        {address(rrcComposeTpc_SRSSetup), "rrcComposeTpc_SRSSetup is Error\r\nrrcComposeTpc_SRS Error\r\n"},
    };
    for (const auto& [failing, lines] : cases)
    {
        expect(failing, VOS_ERROR, lines + pdcchError);
    }
}

TEST_F(downlinkFailures, OfPdschDoNotCountButForBundling)
{
    fill();
    expect(address(rrcComposePrb_BundlingType), VOS_ERROR,
           "rrcComposePrb_BundlingType Error\r\nrrcComposePdsch_ConfigSetup Error\r\nrrcComposePdsch_Config Error\r\n" +
               dedicatedError);
    const struct
    {
        const void* failing;
        const char* lines;
    } cases[] = {
        // Once per mapping type.
        {address(rrcComposeTypeSetup), "rrcComposeTypeSetup Error\r\nrrcComposeTypeSetup Error\r\n"},
        {address(rrcComposePTRS_DownlinkConfigSetup), "rrcComposePTRS_DownlinkConfigSetup Error\r\n"},
        {address(rrcComposetci_StatesToAddItem), "rrcComposetci_StatesToAddItem is Error\r\n"},
        // The allocation of the common part is composed by it too.
        {address(rrcComposeResourceAllocation),
         "rrcComposePDSCH_TimeDomainResAlloc is Error\r\nrrcComposepdsch_TimeDomainAllocationList Error\r\n"
         "rrcComposeResourceAllocation is Error\r\n"},
        {address(rrcComposeRateMatchPattern), "rrcComposeRateMatchPattern is Error\r\n"},
        {address(rrcComposePatternType), "rrcComposePatternType is Error\r\nrrcComposeRateMatchPattern is Error\r\n"},
        // Once per group.
        {address(rrcComposePatternGroup_element),
         "rrcComposePatternGroup_element is NULL\r\nrrcComposePatternGroup_element is NULL\r\n"},
        {address(rrcComposeZP_CSI_RS_Resource), "rrcComposeZP_CSI_RS_Resource is Error\r\n"},
        {address(rrcComposefrequencyDomainAllocation), "rrcComposefrequencyDomainAllocation is Error\r\n"},
        // In the list, and by itself.
        {address(rrcComposeZP_CSI_RS_ResourceSet),
         "rrcComposeZP_CSI_RS_ResourceSet is Error\r\nrrcComposeZP_CSI_RS_ResourceSet is Error\r\n"},
    };
    for (const auto& [failing, lines] : cases)
    {
        expect(failing, VOS_OK, lines);
    }
}

TEST_F(downlinkFailures, BundlingLeavesOutWhatFollowsIt)
{
    fillDedicated();
    const Failing fault(address(rrcComposePrb_BundlingType));
    PDSCH_Config element{};
    EXPECT_EQ(rrcComposePdsch_ConfigSetup(&context, &element, &cell->dlBwp[0].bwpDedicated.pdschCfg), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposePrb_BundlingType Error\r\n");
    EXPECT_EQ(element.m.maxNrofCodeWordsScheduledByDCIPresent, 1U);
    EXPECT_EQ(element.m.zp_CSI_RS_ResourceToAddModListPresent, 0U);
    EXPECT_EQ(element.m.zp_CSI_RS_ResourceToReleaseListPresent, 0U);
    EXPECT_EQ(element.m.aperiodic_ZP_CSI_RS_ResourceSetsToAddModListPresent, 0U);
    EXPECT_EQ(element.m.aperiodic_ZP_CSI_RS_ResourceSetsToReleaseListPresent, 0U);
    EXPECT_EQ(element.m.p_ZP_CSI_RS_ResourceSetPresent, 0U);
}

TEST_F(downlinkFailures, FrequencyDomainLeavesTheRestOfTheMappingUnset)
{
    RrcCsiRsResourceMapping_t record{};
    record.nrofPorts = 1;
    record.presenceDensity = RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_ONE_PRESENCE;
    record.freqBand = {1, 24};
    const Failing fault(address(rrcComposefrequencyDomainAllocation));
    CSI_RS_ResourceMapping element{};
    EXPECT_EQ(rrcComposeResourceMapping(&context, &element, &record), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposefrequencyDomainAllocation is Error\r\n");
    EXPECT_EQ(element.nrofPorts, 0U);
    EXPECT_EQ(element.density.t, 0U);
    EXPECT_EQ(element.freqBand.nrofRBs, 0);
}

TEST_F(downlinkFailures, ThatNobodyLooksAt)
{
    fill();
    const void* const cases[] = {
        address(rrcComposeInterleaved),
        address(rrcComposeMonitoringSlotPerAndOffset),
        address(rrcComposeCrofCandidates),
        address(rrcComposeSearchSpaceType),
        address(rrcComposeSearchSpaceType_common),
        address(rrcComposeSearchSpaceTypeDci_Format2_0),
        address(rrcComposeUeSpecific),
        address(rrcComposePhaseTrackingRS),
        address(rrcComposetci_StatesRelase),
        address(rrcComposeQcl_Type),
        address(rrcComposePdsch_TimeDomainAllocationList),
        address(rrcComposeAllocationListSetup),
        address(rrcComposetci_RateMatchPatternRelease),
        address(rrcComposeBitmaps),
        address(rrcComposeSymbolsInResourceBlock),
        address(rrcComposePeriodicityAndPattern),
        address(rrcComposetci_RateMatchPatternGroup),
        address(rrcComposeStaticBundling),
        address(rrcComposeDynamicBundling),
        address(rrcComposezp_CSI_RS_ResourceReleaes),
        address(rrcComposeResourceMapping),
        address(rrcComposeperiodicityAndOffset),
        address(rrcComposezp_CSI_RS_ResourceSetRelease),
        address(rrcComposeFailureDetectionResourcesReleaes),
    };
    for (const void* const failing : cases)
    {
        expect(failing, VOS_OK, "");
    }
}

TEST_F(downlinkFailures, OfSpsAndRadioLinkMonitoringClimbToTheTop)
{
    fill();
    expect(address(rrcComposeSps_Config), VOS_ERROR, "rrcComposeSps_Config Error\r\n" + dedicatedError);
    expect(address(rrcComposeSps_ConfigSetup), VOS_ERROR,
           "rrcComposeSps_ConfigSetup Error\r\nrrcComposeSps_Config Error\r\n" + dedicatedError);
    expect(address(rrcComposeradioLinkMonitoring_Config), VOS_ERROR,
           "rrcComposeradioLinkMonitoring_Config Error\r\n" + dedicatedError);
    expect(address(rrcComposeradioLinkMonitoring_ConfigSetup), VOS_ERROR,
           "rrcComposeradioLinkMonitoring_ConfigSetup Error\r\nrrcComposeradioLinkMonitoring_Config Error\r\n" +
               dedicatedError);
    expect(address(rrcComposeRadioLinkMonitoring), VOS_OK, "rrcComposeRadioLinkMonitoring is Error\r\n");
}

TEST_F(downlinkFailures, OfTheCommonPartClimbToTheTop)
{
    fill();
    expect(address(rrcComposeGenericParameters), VOS_ERROR, "rrcComposeGenericParameters Error\r\n" + commonError);
    expect(address(rrcComposePdcch_ConfigCommon), VOS_ERROR, "rrcComposePdcch_ConfigCommon Error\r\n" + commonError);
    expect(address(rrcComposePdsch_ConfigCommon), VOS_ERROR, "rrcComposePdsch_ConfigCommon Error\r\n" + commonError);
    expect(address(rrcComposePDSCH_TimeDomainResAlloc), VOS_OK,
           "rrcComposePDSCH_TimeDomainResAlloc is Error\r\nrrcComposepdsch_TimeDomainAllocationList Error\r\n");
}

TEST_F(downlinkFailures, OfPdcchCommonStayInIt)
{
    RrcPdcchCfgCommon_t record{};
    record.bitMask = RRC_PDCCH_CFG_COMMON_CONTROL_RESOURCE_SET_PRESENCE | RRC_PDCCH_CFG_COMMON_SEARCH_SPACE_RA_PRESENCE;
    record.numCommonSearchSpace = 1;
    {
        const Failing fault(address(rrcComposeControlResourceSet));
        PDCCH_ConfigCommon element{};
        EXPECT_EQ(rrcComposePDCCH_ConfigCommonSetup(&context, &element, &record), VOS_ERROR);
        EXPECT_EQ(printed(), "rrcComposeControlResourceSet Error\r\n");
        EXPECT_EQ(element.m.commonSearchSpaceListPresent, 0U);
        BWP_DownlinkCommon_pdcch_ConfigCommon choice{};
        EXPECT_EQ(rrcComposePdcch_ConfigCommon(&context, &choice, &record), VOS_OK);
        EXPECT_EQ(printed(), "rrcComposeControlResourceSet Error\r\n");
    }
    const Failing fault(address(rrcComposeSearchSpace));
    PDCCH_ConfigCommon element{};
    EXPECT_EQ(rrcComposePDCCH_ConfigCommonSetup(&context, &element, &record), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposeSearchSpace is Error\r\nrrcComposeCommonSearchSpaceList Error\r\n");
    EXPECT_EQ(element.m.ra_SearchSpacePresent, 0U);
}

TEST_F(downlinkFailures, OfTheDedicatedTddPattern)
{
    auto record = cleared<RrcTddUlDlCfgDedi_t>();
    auto element = cleared<TDD_UL_DL_ConfigDedicated>();
    record->numSlotsAddMod = 1;
    record->numSlotsRelease = 1;
    {
        const Failing fault(address(rrcComposeTddUlDlCfg));
        EXPECT_EQ(rrcComposeTDD_UL_DL_ConfigDedicated(&context, element.get(), record.get()), VOS_ERROR);
        EXPECT_EQ(printed(), "rrcComposeTddUlDlCfg is Error\r\nrrcComposeSlotSpecificConfigurationsToAdd Error\r\n");
        EXPECT_EQ(element->slotSpecificConfigurationsToAddModList.count, 0U);
        EXPECT_EQ(element->slotSpecificConfigurationsToreleaseList.n, 0U);
    }
    const Failing fault(address(rrcComposeSlotSpecificConfigurationsRelease));
    EXPECT_EQ(rrcComposeTDD_UL_DL_ConfigDedicated(&context, element.get(), record.get()), VOS_ERROR);
    EXPECT_EQ(printed(), "rrcComposeSlotSpecificConfigurationsRelease Error\r\n");
}
