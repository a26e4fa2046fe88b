#include "ruleCases.h"

namespace test
{
namespace
{

void inSetup(RrcRuleContext& known)
{
    known = {};
    known.message = RRC_RULE_MESSAGE_SETUP;
}

} // namespace

void genCases(CaseTable& table)
{
    table.rule("gen-dup-id")
        .bad(AT_PUCCH "resourceSetToAddModList[0].resourceList[1]")
        .saying("0, but an earlier element of the list has it, too")
        .good()
        .fires("rlc-BearerToReleaseList[1]", "rlc-BearerToReleaseList[0] = 7\nrlc-BearerToReleaseList[1] = 7")
        .with(inDelta)
        .as(RRC_RULE_WARNING)
        .fires(AT_MAC "schedulingRequestConfig.schedulingRequestToAddModList[1].schedulingRequestId",
               AT_MAC "schedulingRequestConfig.schedulingRequestToAddModList[1].schedulingRequestId = 0\n" AT_MAC
                      "schedulingRequestConfig.schedulingRequestToAddModList[1].sr-TransMax = n4")
        .fires(AT_COMMON_UL "frequencyInfoUL.scs-SpecificCarrierList[1].subcarrierSpacing",
               AT_COMMON_UL "frequencyInfoUL.scs-SpecificCarrierList[1].offsetToCarrier = 0\n" AT_COMMON_UL
                            "frequencyInfoUL.scs-SpecificCarrierList[1].subcarrierSpacing = kHz30\n" AT_COMMON_UL
                            "frequencyInfoUL.scs-SpecificCarrierList[1].carrierBandwidth = 273")
        .fires(AT_UPLINK "carrierSwitching.setup.monitoringCells[1]",
               ADD_SCELL AT_UPLINK "carrierSwitching.setup.srs-SwitchFromCarrier = nUL\n" AT_UPLINK
                                   "carrierSwitching.setup.monitoringCells[0] = 1\n" AT_UPLINK
                                   "carrierSwitching.setup.monitoringCells[1] = 1")
        .fires(AT_DRB_UL "allowedServingCells[1]",
               AT_DRB_UL "allowedServingCells[0] = 0\n" AT_DRB_UL "allowedServingCells[1] = 0")
        .fires(AT_PDCCH "controlResourceSetToAddModList[0].tci-StatesPDCCH-ToAddList[1]",
               AT_PDCCH "controlResourceSetToAddModList[0].tci-StatesPDCCH-ToAddList[1] = 2")
        .fires(AT_PREEMPTION "int-ConfigurationPerServingCell[1].servingCellId",
               A_PREEMPTION AT_PREEMPTION "dci-PayloadSize = 28\n" AT_PREEMPTION
                                          "int-ConfigurationPerServingCell[1].servingCellId = 0\n" AT_PREEMPTION
                                          "int-ConfigurationPerServingCell[1].positionInDCI = 14")
        .fires(AT_SFI_CELL "slotFormatCombinations[1].slotFormatCombinationId",
               AN_SFI AT_SFI_CELL "slotFormatCombinations[1].slotFormatCombinationId = 0\n" AT_SFI_CELL
                                  "slotFormatCombinations[1].slotFormats[0] = 28")
        .fires(AT_PUCCH "pucch-PowerControl.p0-Set[1].p0-PUCCH-Id",
               AT_PUCCH "pucch-PowerControl.p0-Set[1].p0-PUCCH-Id = 1\n" AT_PUCCH
                        "pucch-PowerControl.p0-Set[1].p0-PUCCH-Value = 0")
        .fires(AT_PUCCH "pucch-PowerControl.pathlossReferenceRSs[1].pucch-PathlossReferenceRS-Id",
               AT_PUCCH "pucch-PowerControl.pathlossReferenceRSs[1].pucch-PathlossReferenceRS-Id = 0\n" AT_PUCCH
                        "pucch-PowerControl.pathlossReferenceRSs[1].referenceSignal.ssb-Index = 1")
        .fires(AT_PUCCH "multi-CSI-PUCCH-ResourceList[1]",
               AT_PUCCH "multi-CSI-PUCCH-ResourceList[0] = 7\n" AT_PUCCH "multi-CSI-PUCCH-ResourceList[1] = 7")
        .fires(AT_PUSCH "pusch-PowerControl.p0-AlphaSets[1].p0-PUSCH-AlphaSetId",
               AT_PUSCH "pusch-PowerControl.p0-AlphaSets[1].p0-PUSCH-AlphaSetId = 0")
        .fires(AT_SRS "srs-ResourceSetToAddModList[0].srs-ResourceIdList[1]",
               AT_SRS "srs-ResourceSetToAddModList[0].srs-ResourceIdList[1] = 0")
        .fires(AT_NZP_SET "[0].nzp-CSI-RS-Resources[1]", AT_NZP_SET "[0].nzp-CSI-RS-Resources[1] = 0")
        .fires(AT_NZP_SET "[1].nzp-CSI-RS-Resources[3]", AT_NZP_SET "[1].nzp-CSI-RS-Resources[3] = 4")
        .fires(AT_IM_SET "[0].csi-IM-Resources[1]", AT_IM_SET "[0].csi-IM-Resources[1] = 0")
        .fires(AT_CSI_RESOURCES "[3].csi-RS-ResourceSetList.nzp-CSI-RS-SSB.nzp-CSI-RS-ResourceSetList[1]",
               AT_CSI_RESOURCES "[3].csi-RS-ResourceSetList.nzp-CSI-RS-SSB.nzp-CSI-RS-ResourceSetList[1] = 2")
        .fires(AT_CSI "csi-SSB-ResourceSetToAddModList[0].csi-SSB-ResourceList[1]",
               AT_CSI "csi-SSB-ResourceSetToAddModList[0].csi-SSB-ResourceSetId = 0\n" AT_CSI
                      "csi-SSB-ResourceSetToAddModList[0].csi-SSB-ResourceList[0] = 0\n" AT_CSI
                      "csi-SSB-ResourceSetToAddModList[0].csi-SSB-ResourceList[1] = 0")
        .fires(AT_SYNC "rach-ConfigDedicated.uplink.cfra.resources.ssb.ssb-ResourceList[1].ssb",
               AT_SYNC "rach-ConfigDedicated.uplink.cfra.resources.ssb.ssb-ResourceList[1].ssb = 0")
        // Several resources may have the same transmission configuration.
        .silent(AT_CSI "aperiodicTriggerStateList.setup[0].associatedReportConfigInfoList[0].resourcesForChannel."
                       "nzp-CSI-RS.qcl-info[0] = 0")
        // What names the id that is not there any more is told by this alone.
        .fires(AT_PUCCH_RESOURCE "[7].pucch-ResourceId", AT_PUCCH_RESOURCE "[7].pucch-ResourceId = 6")
        .fires(AT_NZP "[1].nzp-CSI-RS-ResourceId", AT_NZP "[0].nzp-CSI-RS-ResourceId = 1")
        .fires(AT_NZP_SET "[1].nzp-CSI-ResourceSetId", AT_NZP_SET "[0].nzp-CSI-ResourceSetId = 1")
        .fires(AT_CSI_RESOURCES "[1].csi-ResourceConfigId", AT_CSI_RESOURCES "[0].csi-ResourceConfigId = 1");

    table.rule("gen-add-and-release")
        .bad("rlc-BearerToAddModList[1].logicalChannelIdentity")
        .with(inDelta)
        .saying("4, but rlc-BearerToReleaseList has it, too")
        .good()
        .with(inDelta);

    table.rule("gen-release-unknown")
        .bad(AT_MAC "drx-Config")
        .saying("release, but it was not configured before")
        .good()
        .fires("rlc-BearerToReleaseList[0]", "rlc-BearerToReleaseList[0] = 5")
        .undecided("rlc-BearerToReleaseList[0] = 5")
        .with(inDelta)
        .fires("rlc-BearerToReleaseList[0]", "rlc-BearerToReleaseList[0] = 5")
        .after("")
        .as(RRC_RULE_NOTICE)
        .silent("rlc-BearerToReleaseList[0] = 4")
        .after("")
        .silent(AT_MAC "drx-Config.release = null\n" AT_MAC "skipUplinkTxDynamic = false")
        .after("")
        .fires(AT_MAC "drx-Config", AT_MAC "drx-Config.release = null\n" AT_MAC "skipUplinkTxDynamic = false")
        .after(AT_MAC "drx-Config = absent")
        .as(RRC_RULE_NOTICE);

    table.rule("gen-setup-content")
        .bad("rlc-BearerToAddModList[1].logicalChannelIdentity")
        .with(inSetup)
        .good()
        .with(inSetup)
        .fires(AT_SYNC_PLACE, "rlc-BearerToAddModList[1] = absent")
        .with(inSetup)
        .fires("spCellConfig", "rlc-BearerToAddModList[1] = absent\nspCellConfig = absent")
        .with(inSetup)
        .as(RRC_RULE_WARNING)
        .undecided(AT_SYNC_ABSENT)
        .with(inDelta);

    table.rule("gen-spare-value")
        .bad(AT_MAC "schedulingRequestConfig.schedulingRequestToAddModList[0].sr-TransMax")
        .saying("spare3, but a spare value means nothing to a UE")
        .good()
        .fires(AT_CELL "sCellDeactivationTimer", AT_CELL "sCellDeactivationTimer = spare1")
        .as(RRC_RULE_WARNING)
        .fires(AT_CELL "dummy", AT_CELL "dummy = enabled")
        .as(RRC_RULE_NOTICE)
        .fires(AT_CSI "nzp-CSI-RS-ResourceToAddModList[0].resourceMapping.density",
               AT_CSI "nzp-CSI-RS-ResourceToAddModList[0].resourceMapping.density = absent\n" AT_CSI
                      "nzp-CSI-RS-ResourceToAddModList[0].resourceMapping.density.spare = null");

    table.rule("gen-empty-container")
        .bad(AT_CELL "tdd-UL-DL-ConfigurationDedicated")
        .good()
        .fires(AT_CELL "pdcch-ServingCellConfig.setup", AT_CELL "pdcch-ServingCellConfig.setup = {}")
        .fires(AT_CELL "initialDownlinkBWP", AT_CELL "initialDownlinkBWP = absent\n" AT_CELL "initialDownlinkBWP = {}");
}

} // namespace test
