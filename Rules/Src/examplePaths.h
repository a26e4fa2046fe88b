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
#define AT_PUSCH AT_UL "bwp-Dedicated.pusch-Config.setup."
#define AT_SRS AT_UL "bwp-Dedicated.srs-Config.setup."
#define AT_GRANT AT_UL "bwp-Dedicated.configuredGrantConfig.setup."
#define AT_CSI AT_CELL "csi-MeasConfig.setup."
#define AT_RACH AT_COMMON_UL "initialUplinkBWP.rach-ConfigCommon.setup."
#define AT_COMMON_SUL AT_COMMON "supplementaryUplinkConfig."
#define AT_SUL AT_CELL "supplementaryUplink."
#define AT_SUL_BWP AT_SUL "initialUplinkBWP."
#define AT_SCELL "sCellToAddModList[0]."
#define AT_SCELL_COMMON AT_SCELL "sCellConfigCommon."
#define AT_SCELL_CELL AT_SCELL "sCellConfigDedicated."

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

// What makes it a secondary cell group.
#define AS_SCG "cellGroupId = 1\nspCellConfig.servCellIndex = 1\n" AT_PHR "multiplePHR = true\n"

#endif
