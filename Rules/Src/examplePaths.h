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
#define AT_CSI AT_CELL "csi-MeasConfig.setup."
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

#endif
