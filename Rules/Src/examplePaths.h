// Beginnings of the paths in the examples of rules, so that an example stays short in its source.
#ifndef RULES_EXAMPLEPATHS_H
#define RULES_EXAMPLEPATHS_H

#define AT_SRB "rlc-BearerToAddModList[0]." // SRB1
#define AT_DRB "rlc-BearerToAddModList[1]." // DRB 1
#define AT_SRB_UL AT_SRB "mac-LogicalChannelConfig.ul-SpecificParameters."
#define AT_DRB_UL AT_DRB "mac-LogicalChannelConfig.ul-SpecificParameters."
#define AT_MAC "mac-CellGroupConfig."
#define AT_PHR AT_MAC "phr-Config.setup."
#define AT_PHY "physicalCellGroupConfig."
#define AT_SYNC "spCellConfig.reconfigurationWithSync."
#define AT_SYNC_PLACE "spCellConfig.reconfigurationWithSync"
#define AT_SYNC_ABSENT AT_SYNC_PLACE " = absent"
#define AT_COMMON AT_SYNC "spCellConfigCommon."
#define AT_COMMON_DL AT_COMMON "downlinkConfigCommon."
#define AT_COMMON_UL AT_COMMON "uplinkConfigCommon."
#define AT_CELL "spCellConfig.spCellConfigDedicated."
#define AT_DL AT_CELL "downlinkBWP-ToAddModList[0]."
#define AT_PDCCH_COMMON AT_DL "bwp-Common.pdcch-ConfigCommon.setup."
#define AT_PDCCH AT_DL "bwp-Dedicated.pdcch-Config.setup."
#define AT_PDSCH AT_DL "bwp-Dedicated.pdsch-Config.setup."
#define AT_UPLINK AT_CELL "uplinkConfig."
#define AT_UL AT_UPLINK "uplinkBWP-ToAddModList[0]."
#define AT_PUCCH AT_UL "bwp-Dedicated.pucch-Config.setup."
#define AT_PUCCH_RESOURCE AT_PUCCH "resourceToAddModList" // [0] to [3] of format 1, [4] to [7] of format 2
#define AT_PUSCH AT_UL "bwp-Dedicated.pusch-Config.setup."
#define AT_SRS AT_UL "bwp-Dedicated.srs-Config.setup."
#define AT_GRANT AT_UL "bwp-Dedicated.configuredGrantConfig.setup."
#define AT_CSI AT_CELL "csi-MeasConfig.setup."
#define AT_RACH AT_COMMON_UL "initialUplinkBWP.rach-ConfigCommon.setup."
#define AT_COMMON_SUL AT_COMMON "supplementaryUplinkConfig."
#define AT_SUL AT_CELL "supplementaryUplink."
#define AT_SUL_BWP AT_SUL "initialUplinkBWP."
#define AT_REPORT AT_CSI "csi-ReportConfigToAddModList[0]."      // periodic, on PUCCH
#define AT_TRIGGERED AT_CSI "csi-ReportConfigToAddModList[1]."   // aperiodic
#define AT_CSI_RESOURCES AT_CSI "csi-ResourceConfigToAddModList" // [0] NZP, [1] IM; [2] tracking; [3] and [4] aperiodic
#define AT_NZP AT_CSI "nzp-CSI-RS-ResourceToAddModList"          // [0] of 4 ports; [1], [2], [4], [5] for tracking
#define AT_NZP_SET AT_CSI "nzp-CSI-RS-ResourceSetToAddModList"   // [1] for tracking
#define AT_IM AT_CSI "csi-IM-ResourceToAddModList"
#define AT_IM_SET AT_CSI "csi-IM-ResourceSetToAddModList"
#define AT_TRIGGER AT_CSI "aperiodicTriggerStateList.setup[0].associatedReportConfigInfoList[0]."
#define AT_SCELL "sCellToAddModList[0]."
#define AT_SCELL_COMMON AT_SCELL "sCellConfigCommon."
#define AT_SCELL_CELL AT_SCELL "sCellConfigDedicated."

// PDCCH.
#define AT_INITIAL_PDCCH AT_COMMON_DL "initialDownlinkBWP.pdcch-ConfigCommon.setup."
#define AT_CORESET AT_PDCCH "controlResourceSetToAddModList[1]."  // 3: interleaved, 8 groups, 2 symbols
#define AT_SPACE AT_PDCCH "searchSpacesToAddModList[0]."          // 2, in CORESET 2: formats 0_1 and 1_1
#define AT_FALLBACK_SPACE AT_PDCCH "searchSpacesToAddModList[1]." // 3, in CORESET 3: formats 0_0 and 1_0
#define AT_COMMON_SPACE AT_PDCCH "searchSpacesToAddModList[2]."   // 4, in CORESET 3: common, every 20 slots
#define A_CORESET(path, id)                                                                                            \
    path "controlResourceSetId = " id "\n" path "frequencyDomainResources = FF0000000000\n" path "duration = 1\n" path \
         "cce-REG-MappingType.nonInterleaved = null\n" path "precoderGranularity = sameAsREG-bundle\n"
#define SOME_CANDIDATES(path)                                                                                          \
    path "nrofCandidates.aggregationLevel1 = n0\n" path "nrofCandidates.aggregationLevel2 = n0\n" path                 \
         "nrofCandidates.aggregationLevel4 = n1\n" path "nrofCandidates.aggregationLevel8 = n0\n" path                 \
         "nrofCandidates.aggregationLevel16 = n0\n"
#define A_SPACE(path, id, coreset, type)                                                                               \
    path "searchSpaceId = " id "\n" path "controlResourceSetId = " coreset "\n" path                                   \
         "monitoringSlotPeriodicityAndOffset.sl20 = 0\n" path                                                          \
         "monitoringSymbolsWithinSlot = 8000\n" SOME_CANDIDATES(path) path "searchSpaceType." type "\n"
#define A_COMMON_SPACE(path, id, coreset) A_SPACE(path, id, coreset, "common.dci-Format0-0-AndFormat1-0 = {}")
#define AT_PREEMPTION AT_PDCCH "downlinkPreemption.setup."
#define A_PREEMPTION                                                                                                   \
    AT_COMMON_SPACE "monitoringSlotPeriodicityAndOffset = absent\n" AT_COMMON_SPACE                                    \
                    "monitoringSlotPeriodicityAndOffset.sl4 = 0\n" AT_COMMON_SPACE                                     \
                    "searchSpaceType.common.dci-Format2-1 = {}\n" AT_PREEMPTION "int-RNTI = 1000\n" AT_PREEMPTION      \
                    "timeFrequencySet = set0\n" AT_PREEMPTION "dci-PayloadSize = 14\n" AT_PREEMPTION                   \
                    "int-ConfigurationPerServingCell[0].servingCellId = 0\n" AT_PREEMPTION                             \
                    "int-ConfigurationPerServingCell[0].positionInDCI = 0\n"
#define AT_SFI AT_CELL "pdcch-ServingCellConfig.setup.slotFormatIndicator.setup."
#define AT_SFI_CELL AT_SFI "slotFormatCombToAddModList[0]."
#define AN_SFI                                                                                                         \
    AT_COMMON_SPACE "searchSpaceType.common.dci-Format2-0.nrofCandidates-SFI.aggregationLevel4 = n1\n" AT_SFI          \
                    "sfi-RNTI = 1001\n" AT_SFI "dci-PayloadSize = 20\n" AT_SFI_CELL "servingCellId = 0\n" AT_SFI_CELL  \
                    "subcarrierSpacing = kHz30\n" AT_SFI_CELL                                                          \
                    "slotFormatCombinations[0].slotFormatCombinationId = 0\n" AT_SFI_CELL                              \
                    "slotFormatCombinations[0].slotFormats[0] = 28\n" AT_SFI_CELL "positionInDCI = 0\n"
// The SpCell schedules the SCell.
#define AT_SCELL_DL AT_SCELL_CELL "downlinkBWP-ToAddModList[0]."
#define AT_SCHEDULED AT_SCELL_DL "bwp-Dedicated.pdcch-Config.setup."
#define CROSS_CARRIER                                                                                                  \
    AT_CELL                                                                                                            \
    "crossCarrierSchedulingConfig.schedulingCellInfo.own.cif-Presence = true\n" AT_SCELL_CELL                          \
    "crossCarrierSchedulingConfig.schedulingCellInfo.other.schedulingCellId = 0\n" AT_SCELL_CELL                       \
    "crossCarrierSchedulingConfig.schedulingCellInfo.other.cif-InSchedulingCell = 1\n" AT_SCELL_DL                     \
    "bwp-Dedicated.pdcch-Config = absent\n" AT_SCHEDULED                                                               \
    "searchSpacesToAddModList[0].searchSpaceId = 2\n" SOME_CANDIDATES(AT_SCHEDULED "searchSpacesToAddModList[0].")

#define AT_TDD AT_COMMON "tdd-UL-DL-ConfigurationCommon."
#define AT_TDD_DEDICATED AT_CELL "tdd-UL-DL-ConfigurationDedicated.slotSpecificConfigurationsToAddModList[0]."
// A supplementary uplink of the cell.
#define EXAMPLE_SUL                                                                                                    \
    AT_COMMON_SUL "frequencyInfoUL.frequencyBandList[0] = 80\n" AT_COMMON_SUL                                          \
                  "frequencyInfoUL.absoluteFrequencyPointA = 342000\n" AT_COMMON_SUL                                   \
                  "frequencyInfoUL.scs-SpecificCarrierList[0].offsetToCarrier = 0\n" AT_COMMON_SUL                     \
                  "frequencyInfoUL.scs-SpecificCarrierList[0].subcarrierSpacing = kHz30\n" AT_COMMON_SUL               \
                  "frequencyInfoUL.scs-SpecificCarrierList[0].carrierBandwidth = 51\n" AT_COMMON_SUL                   \
                  "initialUplinkBWP.genericParameters.locationAndBandwidth = 13750\n" AT_COMMON_SUL                    \
                  "initialUplinkBWP.genericParameters.subcarrierSpacing = kHz30\n" AT_COMMON_SUL                       \
                  "dummy = infinity\n" AT_RACH "rsrp-ThresholdSSB-SUL = 30\n" AT_SUL_BWP                               \
                  "pusch-Config.setup.resourceAllocation = resourceAllocationType1\n" AT_SUL_BWP                       \
                  "pusch-Config.setup.pusch-PowerControl.p0-AlphaSets[0].p0-PUSCH-AlphaSetId = 0\n" AT_SUL             \
                  "firstActiveUplinkBWP-Id = 0\n"
// A periodic CSI-RS of 4 ports more, alike the first one but for what is changed behind it.
#define ONE_MORE_NZP(index, id)                                                                                        \
    AT_NZP "[" index "].nzp-CSI-RS-ResourceId = " id "\n" AT_NZP "[" index                                             \
           "].resourceMapping.frequencyDomainAllocation.row4 = 80\n" AT_NZP "[" index                                  \
           "].resourceMapping.nrofPorts = p4\n" AT_NZP "[" index                                                       \
           "].resourceMapping.firstOFDMSymbolInTimeDomain = 13\n" AT_NZP "[" index                                     \
           "].resourceMapping.cdm-Type = fd-CDM2\n" AT_NZP "[" index "].resourceMapping.density.one = null\n" AT_NZP   \
           "[" index "].resourceMapping.freqBand.startingRB = 0\n" AT_NZP "[" index                                    \
           "].resourceMapping.freqBand.nrofRBs = 276\n" AT_NZP "[" index "].powerControlOffset = 0\n" AT_NZP "[" index \
           "].scramblingID = 42\n" AT_NZP "[" index "].periodicityAndOffset.slots80 = 1\n"

// PUCCH and sounding that fit into an uplink bandwidth part of 135 resource blocks.
#define WITHIN_135_RB                                                                                                  \
    AT_PUCCH_RESOURCE "[0].secondHopPRB = 134\n" AT_PUCCH_RESOURCE "[1].secondHopPRB = 133\n" AT_PUCCH_RESOURCE        \
                      "[2].secondHopPRB = 132\n" AT_PUCCH_RESOURCE "[3].secondHopPRB = 131\n" AT_PUCCH_RESOURCE        \
                      "[4].secondHopPRB = 130\n" AT_PUCCH_RESOURCE "[5].secondHopPRB = 129\n" AT_PUCCH_RESOURCE        \
                      "[6].secondHopPRB = 128\n" AT_PUCCH_RESOURCE "[7].secondHopPRB = 127\n" AT_SRS                   \
                      "srs-ResourceToAddModList[0].freqHopping.c-SRS = 33\n"

// What makes it a secondary cell group.
#define AS_SCG "cellGroupId = 1\nspCellConfig.servCellIndex = 1\n" AT_PHR "multiplePHR = true\n"

#define AT_STATE(n) AT_PDSCH "tci-StatesToAddModList[" n "]." // 0, 1: of an ssb; 2, 3: of CSI-RS for tracking 1, 2

#define AT_SCELL_BFR                                                                                                   \
    AT_SCELL_CELL "uplinkConfig.uplinkBWP-ToAddModList[0].bwp-Dedicated.beamFailureRecoveryConfig.setup."              \
                  "recoverySearchSpaceId = 2"
#define AT_SCELL_RLM                                                                                                   \
    AT_SCELL_DL "bwp-Dedicated.radioLinkMonitoringConfig.setup.failureDetectionResourcesToAddModList[0]."
#define SSBLESS_SCELL                                                                                                  \
    AT_SCELL_COMMON "downlinkConfigCommon.frequencyInfoDL.absoluteFrequencySSB = absent\n" AT_SCELL_COMMON             \
                    "ssb-PositionsInBurst = absent\n" AT_SCELL_COMMON                                                  \
                    "ssb-periodicityServingCell = absent\n" AT_SCELL_COMMON "ssbSubcarrierSpacing = absent\n"

// A report more, its id 2, which is semiPersistentOnPUSCH.
#define ADDED_SP_REPORT                                                                                                \
    AT_PHY                                                                                                             \
    "sp-CSI-RNTI = 100\n" AT_CSI "csi-ReportConfigToAddModList[2].reportConfigId = 2\n" AT_CSI                         \
    "csi-ReportConfigToAddModList[2].resourcesForChannelMeasurement = 0\n" AT_CSI                                      \
    "csi-ReportConfigToAddModList[2].csi-IM-ResourcesForInterference = 1\n" AT_CSI                                     \
    "csi-ReportConfigToAddModList[2].reportConfigType.semiPersistentOnPUSCH.reportSlotConfig = sl80\n" AT_CSI          \
    "csi-ReportConfigToAddModList[2].reportConfigType.semiPersistentOnPUSCH.reportSlotOffsetList[0] = 3\n" AT_CSI      \
    "csi-ReportConfigToAddModList[2].reportConfigType.semiPersistentOnPUSCH.reportSlotOffsetList[1] = 4\n" AT_CSI      \
    "csi-ReportConfigToAddModList[2].reportConfigType.semiPersistentOnPUSCH.p0alpha = 0\n" AT_CSI                      \
    "csi-ReportConfigToAddModList[2].reportQuantity.cri-RI-CQI = null\n" AT_CSI                                        \
    "csi-ReportConfigToAddModList[2].reportFreqConfiguration.cqi-FormatIndicator = widebandCQI\n" AT_CSI               \
    "csi-ReportConfigToAddModList[2].timeRestrictionForChannelMeasurements = notConfigured\n" AT_CSI                   \
    "csi-ReportConfigToAddModList[2].timeRestrictionForInterferenceMeasurements = notConfigured\n" AT_CSI              \
    "csi-ReportConfigToAddModList[2].groupBasedBeamReporting.disabled = {}\n" AT_CSI                                   \
    "csi-ReportConfigToAddModList[2].cqi-Table = table2\n" AT_CSI                                                      \
    "csi-ReportConfigToAddModList[2].subbandSize = value2\n"

#endif
