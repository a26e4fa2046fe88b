// The rows of the table of docs/behaviour.md, in its order; no include guard, for whoever includes it has said before
// what becomes of each: RECORD_ROW(variable, id, severity, region, field, goesOut, instead, places...), as in
// RrcRecordRule; the region is a constant of recordRules.cpp.

RECORD_ROW(cellGroupConfigSize, "record-cell-group-config-size", 0, theCellGroup, "`RRC_CELL_GROUP_CONFIG_SIZE`",
           "not looked at: up to 8192 octets are written, a longer message is refused",
           "let `Mbuf_t.buf` point at 8192 octets")
RECORD_ROW(reportUplinkTxDirect, "record-report-uplink-tx-direct", RRC_RECORD_WARNING, theCellGroup,
           "`RRC_CELLGROUPCFG_REPORT_PRESENCE`, `reportUplinkTxDirect`", "not sent, whatever the field holds",
           "there is no way; leave the bit clear", "RRC_CELLGROUPCFG_REPORT_PRESENCE",
           "RrcCellGroupCfg_t.reportUplinkTxDirect")
RECORD_ROW(setupRelease, "record-setup-release", 0, theCellGroup,
           "no field: the release alternative of any SetupRelease", "always setup",
           "a member left out stays as the UE has it; to be rid of it, choose release in the tree of "
           "`rrcComposeCellGroupTree`, or release and add what it belongs to, a bandwidth part or an SCell, or have "
           "the UE configured anew with fullConfig")
RECORD_ROW(emptyElement, "record-empty-element", 0, theCellGroup,
           "a record that is switched on and holds nothing: `RrcSpCellCfg_t`, `RrcRachCfgDedi_t`, `RrcUlCfg_t`, "
           "`RrcPdcchServingCellCfg_t`, `RrcCsiMeasCfg_t` and others",
           "the empty element, as setup where it is a SetupRelease", "to leave the element out, clear its bit",
           "RrcSpCellCfg_t", "RrcRachCfgDedi_t", "RrcUlCfg_t", "RrcPdcchServingCellCfg_t", "RrcCsiMeasCfg_t")
RECORD_ROW(extensionAdditions, "record-extension-additions", 0, theCellGroup,
           "extension additions: `bitRateQueryProhibitTimer`, `RrcReconfWithSync_t.smtc`, "
           "`RrcRlfTimerConstants_t.t311`, `totalNumOfRaPreableV1530`, `maxMIMO_Layer`, `Type2Enabled`",
           "sent; of all additions to a SEQUENCE only these", "the others cannot be sent; their rows say what to do",
           "RrcUlSpecificParaCfg_t.bitRateQueryProhibitTimer", "RrcReconfWithSync_t.smtc",
           "RrcRlfTimerConstants_t.t311", "RrcCfra_t.totalNumOfRaPreableV1530",
           "RrcPdschServingCellCfg_t.maxMIMO_Layer", "RrcPdschServingCellCfg_t.Type2Enabled")

RECORD_ROW(rlcBearerType, "record-rlc-bearer-type", RRC_RECORD_ERROR, rlcBearers,
           "`rbType` other than `RRC_SRB`, `RRC_DRB`", "refused",
           "store one of the two; to leave the radio bearer out, clear `RRC_RLCBEARERCFG_RBTYPE_PRESENCE`",
           "RrcRlcBearerCfg_t.rbType")
RECORD_ROW(rlcConfigChoice, "record-rlc-config-choice", RRC_RECORD_ERROR, rlcBearers,
           "`RrcRlcCfg_t.bitMask` without exactly one bit",
           "of several the highest, with `RrcRlcCfg_t.choice` read as its member; without one refused",
           "set one bit; to leave the RLC configuration out, clear `RRC_RLCBEARERCFG_RLC_PRESENCE`",
           "RrcRlcCfg_t.bitMask")
RECORD_ROW(rlcSnLength, "record-rlc-sn-length", RRC_RECORD_WARNING, rlcBearers, "`snFeildLen` other than 0, 1",
           "sn-FieldLength is left out, no error",
           "store `RRC_AM_SIZE12`, `RRC_AM_SIZE18`, `RRC_UM_SIZE6` or `RRC_UM_SIZE12`; to leave it out, store 2",
           "RrcUlAmRlcCfg_t.snFeildLen", "RrcDlAmRlcCfg_t.snFeildLen", "RrcUlUmRlcCfg_t.snFeildLen",
           "RrcDlUmRlcCfg_t.snFeildLen")
RECORD_ROW(logicalChannelParameters, "record-logical-channel-parameters", RRC_RECORD_NOTICE, rlcBearers,
           "`RRC_LCH_EXPLICIT_PRESENCE` clear", "an empty mac-LogicalChannelConfig, whatever `ulSpecificParaCfg` holds",
           "set the bit; to leave the element out, clear `RRC_RLCBEARERCFG_LCH_PRESENCE`", "RRC_LCH_EXPLICIT_PRESENCE")
RECORD_ROW(logicalChannelListCounts, "record-logical-channel-list-counts", RRC_RECORD_ERROR, rlcBearers,
           "`allowedCellNum`, `allowedSCSNum`", "0 with the bit of its list: refused; not 0 without the bit: not sent",
           "set bit and count together", "RrcUlSpecificParaCfg_t.allowedCellNum",
           "RrcUlSpecificParaCfg_t.allowedSCSNum")
RECORD_ROW(rlcBearerOneValue, "record-rlc-bearer-one-value", RRC_RECORD_ERROR, rlcBearers,
           "`reestablRlc`, `configuredGrantType1Allowed`", "0 is sent as true, any other number is refused",
           "store 0: the bit alone says it", "RrcRlcBearerCfg_t.reestablRlc",
           "RrcUlSpecificParaCfg_t.configuredGrantType1Allowed")
RECORD_ROW(logicalChannelBooleans, "record-logical-channel-booleans", RRC_RECORD_WARNING, rlcBearers,
           "`logicalChannelSrMask`, `logcalChannelSrDealyTimerApplied`", "the low 8 bits: 256 is sent as false",
           "store 0 or 1", "RrcUlSpecificParaCfg_t.logicalChannelSrMask",
           "RrcUlSpecificParaCfg_t.logcalChannelSrDealyTimerApplied")

RECORD_ROW(
    macMembersNotSent, "record-mac-members-not-sent", RRC_RECORD_WARNING, mac,
    "`RRC_MAC_CELL_GRP_CFG_CSI_PRESENCE`, `csiMaskV1530`, `RRC_MAC_CELL_GRP_CFG_TIMER_PRESENCE`, `inactivityTimer`",
    "not sent, whatever the fields hold",
    "there is no way; leave the bits clear, and have the base station release inactive UEs",
    "RRC_MAC_CELL_GRP_CFG_CSI_PRESENCE", "RrcMacCellGrpCfg_t.csiMaskV1530", "RRC_MAC_CELL_GRP_CFG_TIMER_PRESENCE",
    "RrcMacCellGrpCfg_t.inactivityTimer")
RECORD_ROW(drxOnDuration, "record-drx-on-duration", RRC_RECORD_ERROR, mac,
           "`RRC_DRX_CFG_ONDURATION_MILLION_PRESENCE` clear",
           "the on-duration as subMilliSeconds, in 1/32 ms; 0 is refused", "set the bit for a time in milliseconds",
           "RRC_DRX_CFG_ONDURATION_MILLION_PRESENCE")
RECORD_ROW(drxLongCycle, "record-drx-long-cycle", RRC_RECORD_ERROR, mac,
           "`drxLongCycleStartOffset.period` 0 or above 20",
           "the line \"No DRX_Config__drx_LongCycleStartOffset_PR\", then refused",
           "store 1 (ms10) to 20 (ms10240): there is no DRX without a long cycle", "RrcLongCycleStartOffset_t.period")
RECORD_ROW(drxStartOffset, "record-drx-start-offset", RRC_RECORD_WARNING, mac,
           "`drxLongCycleStartOffset.offset`, periods 1 to 11", "the low 8 bits: 261 is sent as 5",
           "keep the offset below the period", "RrcLongCycleStartOffset_t.offset")
RECORD_ROW(macBooleans, "record-mac-booleans", RRC_RECORD_WARNING, mac,
           "`skipUpTxDynamic`, `multiplePHR`, `phrType2OtherCell`", "the low 8 bits: 256 is sent as false",
           "store 0 or 1", "RrcMacCellGrpCfg_t.skipUpTxDynamic", "RrcPhrCfg_t.multiplePHR",
           "RrcPhrCfg_t.phrType2OtherCell")
RECORD_ROW(phrDummy, "record-phr-dummy", RRC_RECORD_WARNING, mac, "`RrcPhrCfg_t.dummy`",
           "always sent, as a BOOLEAN of the low 8 bits", "leave it 0: the UE does not read it", "RrcPhrCfg_t.dummy")

RECORD_ROW(phyMcsCRnti, "record-phy-mcs-c-rnti", RRC_RECORD_WARNING, physicalCellGroup,
           "`RRC_PHY_CGC_MCS_CRNTI_PRESENCE`, `mcsCRnti`", "not sent, whatever the field holds",
           "there is no way to give the RNTI; choose the low-rate table by `RrcPdschCfg_t.mcsTable` and "
           "`RrcPuschCfg_t.mcsTable`",
           "RRC_PHY_CGC_MCS_CRNTI_PRESENCE", "RrcPhyCellGrpCfg_t.mcsCRnti")
RECORD_ROW(phyPUeFr1, "record-phy-p-ue-fr1", RRC_RECORD_WARNING, physicalCellGroup,
           "`RRC_PHY_CGC_UE_PMAX_PRESENCE`, `pUeFR1Pmax`", "not sent, whatever the field holds",
           "there is no way; limit this cell group with `pNrFR1Pmax`", "RRC_PHY_CGC_UE_PMAX_PRESENCE",
           "RrcPhyCellGrpCfg_t.pUeFR1Pmax")
RECORD_ROW(phyNoField, "record-phy-no-field", 0, physicalCellGroup, "no field: xScale, pdcch-BlindDetection",
           "not sent", "there is no way; the UE goes without")
RECORD_ROW(phyOneValue, "record-phy-one-value", RRC_RECORD_ERROR, physicalCellGroup,
           "`harqAckBundlingPucch`, `harqAckBundlingPusch`", "0 is sent as true, any other number is refused",
           "store 0: the bit alone says it", "RrcPhyCellGrpCfg_t.harqAckBundlingPucch",
           "RrcPhyCellGrpCfg_t.harqAckBundlingPusch")
RECORD_ROW(phyPNrFr1, "record-phy-p-nr-fr1", 0, physicalCellGroup, "`pNrFR1Pmax`",
           "the octet as a signed number: 226 is sent as -30 dBm", "add 256 to a negative power",
           "RrcPhyCellGrpCfg_t.pNrFR1Pmax")

RECORD_ROW(rlfT311, "record-rlf-t311", 0, specialCell, "`RrcRlfTimerConstants_t.t311`",
           "always sent with the other timers: 0 is ms1000",
           "store T311 whenever `RRC_SPCELLCFG_RLFTIMER_PRESENCE` is set", "RrcRlfTimerConstants_t.t311")
RECORD_ROW(rlmThresholdOneValue, "record-rlm-threshold-one-value", RRC_RECORD_ERROR, specialCell,
           "`rlmInSyncOutSyncThreshold`", "0 is sent as n1, any other number is refused",
           "store 0: the bit alone says it", "RrcSpCellCfg_t.rlmInSyncOutSyncThreshold")
RECORD_ROW(smtcPeriod, "record-smtc-period", RRC_RECORD_ERROR, specialCell,
           "`RrcReconfWithSync_t.smtc.period` 0 or above 6",
           "the line \"No SSB_MTC__periodicityAndOffset_PR\", then refused",
           "store 1 (sf5) to 6 (sf160); to leave smtc out, clear `RRC_SSBMTC_PRESENCE`", "RrcSSBMTC_t.period")

RECORD_ROW(uplinkFrequencyNotSent, "record-uplink-frequency-not-sent", RRC_RECORD_WARNING, servingCellCommon,
           "`FREQ_INFO_UL_...`, `RrcFreqInfoUl_t.absFreqPointA`, `additionSpectrumEmission`, `pMax`, `freqShift7p5khz`",
           "not sent, whatever the fields hold",
           "leave them clear: TDD takes point A from the downlink, and `pNrFR1Pmax` limits the power; an uplink that "
           "needs a point A of its own, of FDD or supplementary, cannot be described",
           "FREQ_INFO_UL_ABS_FREQ_POINTEA_PRESENCE", "FREQ_INFO_UL_ADDIRIONAL_SPECTRUM_EMISSION_PRESENCE",
           "FREQ_INFO_UL_PMAX_PRESENCE", "FREQ_INFO_UL_FREQ_SHIFT_7P5KHZ", "RrcFreqInfoUl_t.absFreqPointA",
           "RrcFreqInfoUl_t.additionSpectrumEmission", "RrcFreqInfoUl_t.pMax", "RrcFreqInfoUl_t.freqShift7p5khz")
RECORD_ROW(frequencyListCounts, "record-frequency-list-counts", RRC_RECORD_ERROR, servingCellCommon,
           "`RrcFreqInfoDl_t.multiBandNum`, `RrcFreqInfoDl_t.scsNum`, `RrcFreqInfoUl_t.scsNum` 0", "refused",
           "fill both lists, or clear `RRC_DLCFGCOMM_FREQ_DL_PRESENCE`, `RRC_FREQ_INFO_UL_PRESENCE`",
           "RrcFreqInfoDl_t.multiBandNum", "RrcFreqInfoDl_t.scsNum", "RrcFreqInfoUl_t.scsNum")
RECORD_ROW(timeAlignmentTimerCommon, "record-time-alignment-timer-common", RRC_RECORD_NOTICE, servingCellCommon,
           "`RrcUlCfgComm_t.timeAlignmentTimer`", "always sent, as dummy",
           "leave it 0: the UE takes its timer from `RrcTag_t.taTimer`", "RrcUlCfgComm_t.timeAlignmentTimer")
RECORD_ROW(ssbLongBitmap, "record-ssb-long-bitmap", RRC_RECORD_ERROR, servingCellCommon, "`SSB_POSITION_LONG_BITMAP`",
           "refused, alone or with another bit: the bitmap is written without its tag, over the other one's pointer",
           "put 64 positions into the tree of `rrcComposeCellGroupTree`, or clear `RRC_SSB_POSITION_IN_BURST`, and "
           "with it `FREQ_INFO_DL_ABS_FREQ_SSB`, as the one goes with the other",
           "SSB_POSITION_LONG_BITMAP")
RECORD_ROW(
    servingCellCommonChoices, "record-serving-cell-common-choices", RRC_RECORD_ERROR, servingCellCommon,
    "`ssbPosionBitMask`, `RrcRateMatchPattern_t.Presence`, `periodictyAndPatternPresence` without exactly one bit",
    "of several the highest, with the union read as its member; without one refused",
    "set one bit of each; for the long bitmap see above", "RrcServingCellCfgCommon_t.ssbPosionBitMask",
    "RrcRateMatchPattern_t.Presence", "RrcBitMaps_t.periodictyAndPatternPresence")
RECORD_ROW(rateMatchResourceBlocks, "record-rate-match-resource-blocks", 0, servingCellCommon, "`resourceBlocks`",
           "the first 275 bits of its 40 octets as they lie in memory, the first one the most significant of the first "
           "octet: on x86-64 bit 7 of `resourceBlocks[0]`",
           "fill it octet by octet", "RrcBitMaps_t.resourceBlocks")
RECORD_ROW(rateMatchSymbolsChoice, "record-rate-match-symbols-choice", RRC_RECORD_ERROR, servingCellCommon,
           "`symbolsInResourceBlockPresence`",
           "both bits: twoSlots; none: refused, the last four octets of `resourceBlocks` standing for the tag",
           "set `RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE`", "RrcBitMaps_t.symbolsInResourceBlockPresence")
RECORD_ROW(rateMatchTwoSlots, "record-rate-match-two-slots", RRC_RECORD_WARNING, servingCellCommon, "`twoSLots`",
           "the low 16 of its 28 bits: the first 12 symbols are 0",
           "use two patterns with `oneSlot`, one per slot, told apart by `n2`",
           "RrcBitMaps_t.symbolsInResourceBlock.twoSLots")
RECORD_ROW(rateMatchUpperBits, "record-rate-match-upper-bits", RRC_RECORD_WARNING, servingCellCommon,
           "`oneSlot`, `RrcBitMaps_t.periodictyAndPattern`",
           "the low bits, as many as the string has; higher ones are dropped",
           "store the first symbol or slot in the highest bit of the string",
           "RrcBitMaps_t.symbolsInResourceBlock.oneSlot", "RrcBitMaps_t.periodictyAndPattern")
RECORD_ROW(rateMatchDummy, "record-rate-match-dummy", RRC_RECORD_NOTICE, servingCellCommon,
           "`RrcRateMatchPattern_t.dummy`", "always sent", "leave it 0: the UE does not read it",
           "RrcRateMatchPattern_t.dummy")
RECORD_ROW(ssPbchBlockPower, "record-ss-pbch-block-power", 0, servingCellCommon, "`ssPbchBlockPower`",
           "the octet as a signed number: 251 is sent as -5 dBm", "add 256 to a negative power",
           "RrcServingCellCfgCommon_t.ssPbchBlockPower")
RECORD_ROW(distributedUnitMembers, "record-distributed-unit-members", 0, servingCellCommon,
           "`speCarrier`, `bwpDlCommon`, `bwpUplink`, `tddUlDlCfgComm`",
           "what the distributed unit's composers make of them; a failure of one is not noticed",
           "see [distributed-unit.md](distributed-unit.md); to have the message refused, such a composer leaves a "
           "choice without alternative",
           "RrcFreqInfoDl_t.speCarrier", "RrcFreqInfoUl_t.speCarrier", "RrcDlCfgComm_t.bwpDlCommon",
           "RrcUlCfgComm_t.bwpUplink", "RrcServingCellCfgCommon_t.tddUlDlCfgComm")
RECORD_ROW(servingCellCommonNoField, "record-serving-cell-common-no-field", 0, servingCellCommon,
           "no field: lte-CRS-ToMatchAround", "not sent",
           "keep the LTE carrier's symbols free with `rateMatchPatternToAddMod`")

RECORD_ROW(rachDedicatedChoice, "record-rach-dedicated-choice", RRC_RECORD_ERROR, dedicatedRandomAccess,
           "`rachCfgBitMask` without exactly one bit",
           "both: supplementaryUplink, as `RrcReconfWithSync_t.choice` holds one record; none: refused",
           "set one bit; to leave random access out, clear `RRC_RACH_CFG_DEDI_PRESENCE`",
           "RrcReconfWithSync_t.rachCfgBitMask")
RECORD_ROW(cfraBothResources, "record-cfra-both-resources", RRC_RECORD_WARNING, dedicatedRandomAccess,
           "`RRC_SSB` with `RRC_SCIS_RESOURCE`", "ssb: here the lower bit wins", "set one bit", "RRC_SSB",
           "RRC_SCIS_RESOURCE")
RECORD_ROW(cfraResourcesByDefault, "record-cfra-resources-by-default", RRC_RECORD_ERROR, dedicatedRandomAccess,
           "`RRC_SSB` clear",
           "csirs, from `scirs`, with `RRC_SCIS_RESOURCE` or without; refused where `numCsirsRecouces` is 0",
           "always fill one of the two; to leave resources out, clear `RRC_RACH_CFG_DEDI_CFRA_PRESENCE`", "RRC_SSB")
RECORD_ROW(cfraCsiRsOccasions, "record-cfra-csi-rs-occasions", RRC_RECORD_ERROR, dedicatedRandomAccess,
           "`numRaOccasion` above 64", "refused, although there is room for 511",
           "give a resource at most 64 occasions", "RrcCsirsResource_t.numRaOccasion")
RECORD_ROW(cfraListCounts, "record-cfra-list-counts", RRC_RECORD_ERROR, dedicatedRandomAccess,
           "`numSsbResources`, `numRaOccasion` 0", "refused", "fill the list, or choose the other kind of resource",
           "RrcSsb_t.numSsbResources", "RrcCsirsResource_t.numRaOccasion")

RECORD_ROW(scellAddModCount, "record-scell-add-mod-count", RRC_RECORD_WARNING, sCells, "`sCellAddModNum` above 3",
           "three SCells; the field itself becomes 3, the one thing that a call writes into the record",
           "send further SCells in another message, and store the count anew before each call",
           "RrcCellGroupCfg_t.sCellAddModNum")
RECORD_ROW(scellReleaseCount, "record-scell-release-count", RRC_RECORD_ERROR, sCells, "`sCellReleaseNum` above 3",
           "refused: only the three entries of `RrcCellGroupCfg_t.sCellIdx` are read, those behind go out as 0",
           "release further SCells in another message", "RrcCellGroupCfg_t.sCellReleaseNum")
RECORD_ROW(scellSmtc, "record-scell-smtc", RRC_RECORD_WARNING, sCells,
           "`RRC_SCELLADDMOD_SMTC_PRESENCE`, `RrcScellCfg_t.smtc`", "not sent",
           "there is no way; without it the UE takes the timing of the measurement object with the same SSB frequency",
           "RRC_SCELLADDMOD_SMTC_PRESENCE", "RrcScellCfg_t.smtc")

RECORD_ROW(crossCarrierScheduling, "record-cross-carrier-scheduling", RRC_RECORD_WARNING, dedicatedServingCell,
           "`RRC_SERVING_CELL_CROSS_CARRIER_SCHD_CFG_PRESENCE`", "not read: crossCarrierSchedulingConfig is not sent",
           "there is no way; schedule each cell on its own carrier", "RRC_SERVING_CELL_CROSS_CARRIER_SCHD_CFG_PRESENCE")
RECORD_ROW(servingCellDummy, "record-serving-cell-dummy", RRC_RECORD_ERROR, dedicatedServingCell,
           "`RRC_SERVING_CELL_UE_BEAMLOCK_FUNC_PRESENCE`, `RrcServingCellCfg_t.dummy`",
           "dummy: 0 is sent as enabled, any other number is refused", "leave the bit clear: the UE does not read it",
           "RRC_SERVING_CELL_UE_BEAMLOCK_FUNC_PRESENCE", "RrcServingCellCfg_t.dummy")
RECORD_ROW(servingCellNoField, "record-serving-cell-no-field", 0, dedicatedServingCell,
           "no field: rateMatchPatternToAddModList and -ToReleaseList of the cell, lte-CRS-ToMatchAround, "
           "downlinkChannelBW-PerSCS-List",
           "not sent",
           "give rate-match patterns in the cell's common part or in `RrcPdschCfg_t.rateMatchPattern`; for the channel "
           "bandwidth there is no way")

RECORD_ROW(
    tddDedicatedSlots, "record-tdd-dedicated-slots", RRC_RECORD_WARNING, dedicatedTddPattern,
    "`numSlotsAddMod`, `slotCfgDedicated`, `numSlotsRelease`, `RrcTddUlDlCfgDedi_t.slotIdx`, `RRC_SLOTCFG_SYM_...`",
    "only the empty element: no slot is sent, whatever the fields hold, counts above 320 included",
    "there is no way; give the pattern in `tddUlDlCfgComm`, or steer slots with `slotFormatInd`",
    "RrcTddUlDlCfgDedi_t.numSlotsAddMod", "RrcTddUlDlCfgDedi_t.slotCfgDedicated", "RrcTddUlDlCfgDedi_t.numSlotsRelease",
    "RrcTddUlDlCfgDedi_t.slotIdx", "RRC_SLOTCFG_SYM_EXPLICIT_DL_PRESENCE", "RRC_SLOTCFG_SYM_EXPLICIT_UL_PRESENCE",
    "RRC_SLOTCFG_SYM_ALLDL_PRESENCE", "RRC_SLOTCFG_SYM_ALLUL_PRESENCE", "RRC_SLOTCFG_SYM_EXPLICIT_PRESENCE")

RECORD_ROW(coresetNonInterleaved, "record-coreset-non-interleaved", RRC_RECORD_WARNING, pdcch,
           "`RRC_CCE_MAP_TYPE_NON_INTERLEAVED`",
           "not read: `RRC_CCE_MAP_TYPE_INTERLEAVED` alone decides; without it nonInterleaved",
           "set or clear `RRC_CCE_MAP_TYPE_INTERLEAVED`", "RRC_CCE_MAP_TYPE_NON_INTERLEAVED")
RECORD_ROW(coresetOneValue, "record-coreset-one-value", RRC_RECORD_ERROR, pdcch, "`enTciPresentInDci`",
           "0 is sent as enabled, any other number is refused", "store 0: the bit alone says it",
           "RrcControlResourceSet_t.enTciPresentInDci")
RECORD_ROW(coresetFrequencyUpperBits, "record-coreset-frequency-upper-bits", RRC_RECORD_WARNING, pdcch,
           "`freqDomainResource`", "the low 45 bits; higher ones are dropped",
           "store the first group of six resource blocks in bit 44", "RrcControlResourceSet_t.freqDomainResource")
RECORD_ROW(
    searchSpacePeriod, "record-search-space-period", RRC_RECORD_ERROR, pdcch,
    "`monitoringSlotPeriodOffset.period` 0 or above 15",
    "the line \"No SearchSpace__monitoringSlotPeriodicityAndOffset_PR\", then refused",
    "store 1 (sl1) to 15 (sl2560); to leave it out, clear `RRC_SEARCH_SPACE_MON_SLOT_PERIOD_AND_OFFSET_PRESENCE`",
    "slotPeriodOffset_s.period")
RECORD_ROW(searchSpaceOffset, "record-search-space-offset", RRC_RECORD_WARNING, pdcch,
           "`monitoringSlotPeriodOffset.offset`, periods 2 to 11", "the low 8 bits: 300 is sent as 44",
           "keep the offset below the period", "slotPeriodOffset_s.offset")
RECORD_ROW(searchSpaceTypeChoice, "record-search-space-type-choice", RRC_RECORD_ERROR, pdcch,
           "`RrcSearchSpace_t.presence` without exactly one bit",
           "both: ue-Specific, with `searchType` read as `ueSpecific`; none: refused",
           "set one bit; to leave the type out, clear `RRC_SEARCH_SPACE_TYPE_PRESENCE`", "RrcSearchSpace_t.presence")
RECORD_ROW(searchSpaceDciFormat20, "record-search-space-dci-format2-0", 0, pdcch, "`dci0AndDci2_0`",
           "dci-Format2-0 only, despite the name",
           "for formats 0_0 and 1_0 set `RRC_SEARCH_TYPE_COMMON_DCI0_1_PRESENCE`; they need no field",
           "common_s.dci0AndDci2_0")
RECORD_ROW(searchSpaceDciFormat23Dummies, "record-search-space-dci-format2-3-dummies", RRC_RECORD_NOTICE, pdcch,
           "`dummy2`", "always sent with `RRC_SEARCH_TYPE_COMMON_DCI2_3_PRESENCE`; `dummy1` goes by its bit",
           "leave both 0 and the bit clear: the UE does not read them", "dciFormat2_3_s.dummy2")
RECORD_ROW(preEmptionListCount, "record-pre-emption-list-count", RRC_RECORD_ERROR, pdcch, "`numServingCells` 0",
           "refused", "list the cells; to leave pre-emption out, clear `RRC_PDCCH_CFG_Dl_PREEMPTION_PRESENCE`",
           "RrcDlPreemption_t.numServingCells")
RECORD_ROW(tpcSrsBit, "record-tpc-srs-bit", 0, pdcch, "`RRC_PDCCH_CFG_SPS_TPC_CMDCFG_PRESENCE`",
           "tpc-SRS, from `tpcSrs`: nothing of semi-persistent scheduling", "set it for SRS power control",
           "RRC_PDCCH_CFG_SPS_TPC_CMDCFG_PRESENCE")
RECORD_ROW(tpcSrsSulStartingBitField, "record-tpc-srs-sul-starting-bit-field", RRC_RECORD_WARNING, pdcch,
           "`RRC_SRS_TPC_STARTING_BIT_PRESENCE`, `startBitSulFormat2_3`",
           "startingBitOfFormat2-3 alone; the supplementary uplink's is not sent, whatever its field holds",
           "there is no way to give the supplementary uplink's starting bit; leave its field 0",
           "RRC_SRS_TPC_STARTING_BIT_PRESENCE", "RrcSrsTpcCmdCfg_t.startBitSulFormat2_3")
RECORD_ROW(tpcSrsSulStartingBit, "record-tpc-srs-sul-starting-bit", RRC_RECORD_WARNING, pdcch,
           "`RRC_SRS_TPC_STARTING_BIT_SUL_PRESENCE`", "not read", "leave it clear",
           "RRC_SRS_TPC_STARTING_BIT_SUL_PRESENCE")

RECORD_ROW(prbBundlingChoice, "record-prb-bundling-choice", RRC_RECORD_ERROR, pdsch,
           "`prbBitmask` without exactly one bit",
           "both: dynamicBundling; none: refused, as every PDSCH-Config needs one",
           "set one bit; `RRC_PDSCH_CFG_PRB_BUNDLING_STATIC` without `bundleSize` means n2 to the UE",
           "RrcPdschCfg_t.prbBitmask")
RECORD_ROW(qclReferenceSignal, "record-qcl-reference-signal", 0, pdsch, "`RRC_QCI_INFO_SSB_IDX_PRESENCE` clear",
           "csi-rs, the octet of `RrcQclInfo_t.refSignal` being its id", "set the bit for an SSB",
           "RRC_QCI_INFO_SSB_IDX_PRESENCE")
RECORD_ROW(rateMatchGroupChoice, "record-rate-match-group-choice", RRC_RECORD_ERROR, pdsch, "`presense`",
           "one for all patterns of the group; both bits: bwpLevel; none: refused",
           "set one bit; put patterns of the other level into the other group", "RrcRateMatchPatternGroup_t.presense")
RECORD_ROW(pdschRateMatchPattern, "record-pdsch-rate-match-pattern", 0, pdsch, "`RrcRateMatchPattern_t`",
           "as in the common part: what is said there of its masks, `resourceBlocks`, `twoSLots` and "
           "`RrcRateMatchPattern_t.dummy` holds here, too",
           "as there", "RrcRateMatchPattern_t")
RECORD_ROW(csiRsMappingFrequencyChoice, "record-csi-rs-mapping-frequency-choice", RRC_RECORD_ERROR, pdsch,
           "`presenceFreqDomain` without exactly one bit",
           "of several the highest, with as many low bits of `freqDomainAlloc` as it has; without one refused",
           "set one bit", "RrcCsiRsResourceMapping_t.presenceFreqDomain")
RECORD_ROW(csiRsMappingDensityChoice, "record-csi-rs-mapping-density-choice", RRC_RECORD_ERROR, pdsch,
           "`presenceDensity` without exactly one bit", "of several the lowest; without one refused", "set one bit",
           "RrcCsiRsResourceMapping_t.presenceDensity")
RECORD_ROW(csiRsPeriodSlots40, "record-csi-rs-period-slots40", RRC_RECORD_ERROR, pdsch, "`slotsPeriod` 8 (slots40)",
           "slots32; an offset of 32 to 39 is refused",
           "use 6 (slots20) or 10 (slots80), or put slots40 into the tree of `rrcComposeCellGroupTree`",
           "RrcCsiResourcePeriodictyAndOffset_t.slotsPeriod")
RECORD_ROW(csiRsPeriod, "record-csi-rs-period", RRC_RECORD_ERROR, pdsch, "`slotsPeriod` 0 or above 13",
           "the line \"Have no CSI_ResourcePeriodicityAndOffset type\", then refused",
           "store 1 (slots4) to 13 (slots640); to leave it out, clear its bit",
           "RrcCsiResourcePeriodictyAndOffset_t.slotsPeriod")
RECORD_ROW(csiRsOffset, "record-csi-rs-offset", RRC_RECORD_WARNING, pdsch,
           "`RrcCsiResourcePeriodictyAndOffset_t.offset`, `slotsPeriod` 1 to 11", "the low 8 bits: 257 is sent as 1",
           "keep the offset below the period", "RrcCsiResourcePeriodictyAndOffset_t.offset",
           "RrcCsiResourcePeriodictyAndOffset_t.slotsPeriod")
RECORD_ROW(pdschNoField, "record-pdsch-no-field", 0, pdsch,
           "no field: sp-ZP-CSI-RS-ResourceSetsToAddModList and -ToReleaseList", "not sent",
           "use aperiodic sets, `aperiodicZpCsiRsResourceSet`, or the periodic one, `pZpCsiRsResourceSet`")
RECORD_ROW(pdschListCounts, "record-pdsch-list-counts", RRC_RECORD_ERROR, pdsch,
           "`RrcPdschTimeDomainResourceAllocList_t.num`, `numRateMatchPattern`",
           "0 with the bit of the list: refused; not 0 without it: not sent", "set bit and count together",
           "RrcPdschTimeDomainResourceAllocList_t.num", "RrcRateMatchPatternGroup_t.numRateMatchPattern")
RECORD_ROW(zpCsiRsSetCount, "record-zp-csi-rs-set-count", RRC_RECORD_ERROR, pdsch, "`numzpCsiRsResourId` 0", "refused",
           "list the resources, or leave the set out", "RrcZpCsiRsResourceSet_t.numzpCsiRsResourId")
RECORD_ROW(pdschOneValue, "record-pdsch-one-value", RRC_RECORD_ERROR, pdsch,
           "`RrcDmrsDlCfg_t.dmrsType`, `RrcDmrsDlCfg_t.maxLength`, `RrcSpsCfg_t.mcsTable`",
           "0 is sent as the one value, type2, len2, qam64LowSE; any other number is refused",
           "store 0: the bit alone says it", "RrcDmrsDlCfg_t.dmrsType", "RrcDmrsDlCfg_t.maxLength",
           "RrcSpsCfg_t.mcsTable")
RECORD_ROW(rlmResourceChoice, "record-rlm-resource-choice", RRC_RECORD_ERROR, pdsch,
           "`RrcRadioLinkMonitorRs_t.presence` without exactly one bit",
           "both: csi-RS-Index, the octet of `detectionResource` being its id; none: refused", "set one bit",
           "RrcRadioLinkMonitorRs_t.presence")

RECORD_ROW(pdcchCommonFirstOccasion, "record-pdcch-common-first-occasion", RRC_RECORD_WARNING, furtherDownlinkBwps,
           "`RRC_PDCCH_CFG_COMMON_FIRST_PDCCH_MONITIOR_OCCASION_PRESENCE`",
           "nothing is sent: firstPDCCH-MonitoringOccasionOfPO has no field here",
           "send it in the initial bandwidth part's common part, which the distributed unit composes: "
           "`firstPdcchMonitoringOccasion`",
           "RRC_PDCCH_CFG_COMMON_FIRST_PDCCH_MONITIOR_OCCASION_PRESENCE")
RECORD_ROW(
    pdschCommonAllocations, "record-pdsch-common-allocations", RRC_RECORD_ERROR, furtherDownlinkBwps,
    "`RRC_PDSCH_COMMON_PRESENCE`",
    "clear: an empty pdsch-ConfigCommon, whatever `pdschTimeDomainAllocList` holds; set with a count of 0: refused",
    "set bit and count together; to leave the element out, clear `RRC_BWP_DL_COMMON_PDSCH_CFG_COMMON_PRESENCE`",
    "RRC_PDSCH_COMMON_PRESENCE")
RECORD_ROW(bwpCyclicPrefixOneValue, "record-bwp-cyclic-prefix-one-value", RRC_RECORD_ERROR, furtherDownlinkBwps,
           "`RrcBwp_t.cyclicPrefix`, of uplink bandwidth parts, too",
           "0 is sent as extended, any other number is refused", "store 0: the bit alone says it",
           "RrcBwp_t.cyclicPrefix")

RECORD_ROW(uplinkBitsNotSent, "record-uplink-bits-not-sent", RRC_RECORD_WARNING, uplink,
           "`RRC_UL_CFG_POWER_BOOST_PI_2BPSK`, `RRC_UL_CFG_UL_CHANNEL_BW_PERSCS_LIST`",
           "nothing is sent: powerBoostPi2BPSK and uplinkChannelBW-PerSCS-List have no field",
           "there is no way; leave the bits clear", "RRC_UL_CFG_POWER_BOOST_PI_2BPSK",
           "RRC_UL_CFG_UL_CHANNEL_BW_PERSCS_LIST")

RECORD_ROW(pucchSetReleaseCount, "record-pucch-set-release-count", RRC_RECORD_WARNING, pucch,
           "`numResourceSetRel` above `numResourceSetAddMod`",
           "of `RrcPucchCfg_t.resourceSetId` only the first `numResourceSetAddMod`; the other ids go out as 0, and set "
           "0 is released",
           "add or modify at least as many sets in the same message; for that, sets that stay can be sent once more",
           "RrcPucchCfg_t.numResourceSetRel", "RrcPucchCfg_t.numResourceSetAddMod")
RECORD_ROW(pucchFormatBitOrder, "record-pucch-format-bit-order", 0, pucch,
           "`RRC_PUCCH_FORMAT_CFG_SIMULTANEOUS_HARQ_ACK_CSI_PRESENCE`, `RRC_PUCCH_FORMAT_CFG_PI2BPSK_PRESENCE`",
           "each its own member, although bits 4 and 5 stand in the reverse of the standard's order",
           "use the names, not the numbers", "RRC_PUCCH_FORMAT_CFG_SIMULTANEOUS_HARQ_ACK_CSI_PRESENCE",
           "RRC_PUCCH_FORMAT_CFG_PI2BPSK_PRESENCE")
RECORD_ROW(pucchOneValue, "record-pucch-one-value", RRC_RECORD_ERROR, pucch,
           "`interSlotFreqHopping`, `additionalDMRS`, `pi2BPSK`, `sumultaneousHarqAckCsi`, `intraSlotFreqHopping`, "
           "`twoPucchPcAdjStates`",
           "0 is sent as the one value, enabled, true or twoStates; any other number is refused",
           "store 0: the bit alone says it", "RrcPucchFormatCfg_t.interSlotFreqHopping",
           "RrcPucchFormatCfg_t.additionalDMRS", "RrcPucchFormatCfg_t.pi2BPSK",
           "RrcPucchFormatCfg_t.sumultaneousHarqAckCsi", "RrcPucchResource_t.intraSlotFreqHopping",
           "RrcPucchPowerControl_t.twoPucchPcAdjStates")
RECORD_ROW(schedulingRequestPeriod, "record-scheduling-request-period", RRC_RECORD_ERROR, pucch,
           "`RrcSchedReqResourceCfg_t.periodAndOffset.period`",
           "not read: `RrcSchedReqResourceCfg_t.presence` tells the periodicity; 0 there is refused",
           "set one bit `RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_...`",
           "RrcSchedReqResourceCfg_t.periodAndOffset.period")
RECORD_ROW(schedulingRequestOffset, "record-scheduling-request-offset", RRC_RECORD_WARNING, pucch,
           "`RrcSchedReqResourceCfg_t.periodAndOffset.offset`, sl2 to sl160", "the low 8 bits: 257 is sent as 1",
           "keep the offset below the periodicity", "RrcSchedReqResourceCfg_t.periodAndOffset.offset")
RECORD_ROW(pucchChoices, "record-pucch-choices", RRC_RECORD_ERROR, pucch,
           "`RrcPucchResource_t.presence`, `RrcSchedReqResourceCfg_t.presence`, "
           "`RrcPucchSpatialRelationInfo_t.presence`, `RrcPucchPathLossRefRs_t.presence` without exactly one bit",
           "of several the highest, with the union read as its member; without one refused", "set one bit of each",
           "RrcPucchResource_t.presence", "RrcSchedReqResourceCfg_t.presence", "RrcPucchSpatialRelationInfo_t.presence",
           "RrcPucchPathLossRefRs_t.presence")
RECORD_ROW(pucchPowerListCounts, "record-pucch-power-list-counts", RRC_RECORD_ERROR, pucch,
           "`numP0Set`, `numPathLossRefRs`", "0 with the bit of the list: refused; not 0 without it: not sent",
           "set bit and count together", "RrcPucchPowerControl_t.numP0Set", "RrcPucchPowerControl_t.numPathLossRefRs")
RECORD_ROW(pucchResourceListCount, "record-pucch-resource-list-count", RRC_RECORD_ERROR, pucch, "`numResourceList` 0",
           "refused", "list the resources, or leave the set out", "RrcPucchResourceSet_t.numResourceList")
RECORD_ROW(pucchPowerSigned, "record-pucch-power-signed", 0, pucch,
           "`deltaFPucchF0` to `deltaFPucchF4`, `poPucchValue`", "the octet as a signed number: 240 is sent as -16",
           "add 256 to a negative number", "RrcPucchPowerControl_t.deltaFPucchF0",
           "RrcPucchPowerControl_t.deltaFPucchF1", "RrcPucchPowerControl_t.deltaFPucchF2",
           "RrcPucchPowerControl_t.deltaFPucchF3", "RrcPucchPowerControl_t.deltaFPucchF4", "RrcP0Pucch_t.poPucchValue")

RECORD_ROW(puschHoppingOffsets, "record-pusch-hopping-offsets", RRC_RECORD_NOTICE, pusch, "`numFreqHoppingOffset`",
           "when not 0 the offsets are sent, `RRC_PUSCH_CFG_FREQ_HOPPING_PRESENCE` set or not",
           "store 0 when there is no hopping", "RrcPuschCfg_t.numFreqHoppingOffset")
RECORD_ROW(uciDynamicBetaOffsets, "record-uci-dynamic-beta-offsets", RRC_RECORD_NOTICE, pusch,
           "`RRC_UCI_PUSCH_BETA_OFFSETS_DYNAMIC_PRESENCE`", "always four BetaOffsets, also of entries left empty",
           "fill all four entries of `RrcUciOnPusch_t.betaOffset.dynamic`",
           "RRC_UCI_PUSCH_BETA_OFFSETS_DYNAMIC_PRESENCE")
RECORD_ROW(configuredGrantBetaOffsetCount, "record-configured-grant-beta-offset-count", RRC_RECORD_ERROR, pusch,
           "`RrcDynamicBetaOffsets_t.num`", "as many as it says; 0 and above 4 refused", "store 1 to 4",
           "RrcDynamicBetaOffsets_t.num")
RECORD_ROW(puschChoices, "record-pusch-choices", RRC_RECORD_ERROR, pusch,
           "`RrcUciOnPusch_t.presence`, `RrcCgUciOnPusch_t.presence`, `RrcPuschPathLossRefRs_t.presence` without "
           "exactly one bit",
           "both: semiStatic or csi-RS-Index, with the union read as such; none: refused", "set one bit of each",
           "RrcUciOnPusch_t.presence", "RrcCgUciOnPusch_t.presence", "RrcPuschPathLossRefRs_t.presence")
RECORD_ROW(ptrsTimeDensity, "record-ptrs-time-density", RRC_RECORD_WARNING, pusch, "`timeDensityTransformPrecoding`",
           "d2 with its bit, whatever the field holds", "leave it 0",
           "RrcPtrsUlTransformPrecodeEnable_t.timeDensityTransformPrecoding")
RECORD_ROW(
    puschOneValue, "record-pusch-one-value", RRC_RECORD_ERROR, pusch,
    "`tpPi2Bpsk`, `RrcPuschCfg_t.rbgSize`, `RrcCfgGrantCfg_t.rbgSize`, `RrcPuschPowerControl_t.tpcAccumulation`, "
    "`twoPuschPcAdjStates`, `deltaMcs`, `RrcDmrsUlCfg_t.dmrsType`, `RrcDmrsUlCfg_t.maxLength`, `seqGrpHopping`, "
    "`seqHopping`",
    "0 is sent as the one value, for `seqGrpHopping` and `tpcAccumulation` disabled; any other number is refused",
    "store 0: the bit alone says it", "RrcPuschCfg_t.tpPi2Bpsk", "RrcPuschCfg_t.rbgSize", "RrcCfgGrantCfg_t.rbgSize",
    "RrcPuschPowerControl_t.tpcAccumulation", "RrcPuschPowerControl_t.twoPuschPcAdjStates",
    "RrcPuschPowerControl_t.deltaMcs", "RrcDmrsUlCfg_t.dmrsType", "RrcDmrsUlCfg_t.maxLength",
    "RrcTransformPrecodEnable_t.seqGrpHopping", "RrcTransformPrecodEnable_t.seqHopping")
RECORD_ROW(puschP0Signed, "record-pusch-p0-signed", 0, pusch, "`RrcP0PuschAlphaSet_t.p0`",
           "the octet as a signed number: 240 is sent as -16 dB", "add 256 to a negative number",
           "RrcP0PuschAlphaSet_t.p0")
RECORD_ROW(puschAllocationCount, "record-pusch-allocation-count", RRC_RECORD_ERROR, pusch,
           "`numPuschTimeDomainResourceAllocList`", "0 with the bit of the list: refused; not 0 without it: not sent",
           "set bit and count together", "RrcPuschTimeDomainResourceAllocList_t.numPuschTimeDomainResourceAllocList")
RECORD_ROW(configuredGrantDmrs, "record-configured-grant-dmrs", 0, pusch, "`cgDmrsCfg`",
           "always sent, empty where its mask is 0", "fill it like the DMRS of the PUSCH", "RrcCfgGrantCfg_t.cgDmrsCfg")
RECORD_ROW(configuredGrantFrequencyUpperBits, "record-configured-grant-frequency-upper-bits", RRC_RECORD_WARNING, pusch,
           "`freqDomainAllocation`", "the low 18 bits; higher ones are dropped", "store the first bit in bit 17",
           "rrcCfgdUlGrant_s.freqDomainAllocation")

RECORD_ROW(
    srsSetTypeChoice, "record-srs-set-type-choice", RRC_RECORD_ERROR, srs, "`RrcSrsResourceSet_t.presence`",
    "bits 0 to 2 choose the resource type, of several the highest, without one refused; bits 3 to 6 guard members",
    "set one of the first three and any of the others", "RrcSrsResourceSet_t.presence")
RECORD_ROW(srsAperiodicType, "record-srs-aperiodic-type", 0, srs, "`RRC_SRS_RESOURCE_TYPE_APERIODIC_PERSENCE`",
           "aperiodic without content; `RrcSrsResource_t.resourceType` is not read",
           "give trigger and slot offset in the set: `RrcSrsResourceSet_t.resourceType.aperiodic`",
           "RRC_SRS_RESOURCE_TYPE_APERIODIC_PERSENCE")
RECORD_ROW(srsChoices, "record-srs-choices", RRC_RECORD_ERROR, srs,
           "`RrcSrsResource_t.presence`, `presence1`, `RrcSRSPathLossRefRs_t.presence`, "
           "`RrcSrsSpatialRelationInfo_t.presence` without exactly one bit",
           "of several the highest, with the union read as its member; without one refused", "set one bit of each",
           "RrcSrsResource_t.presence", "RrcSrsResource_t.presence1", "RrcSRSPathLossRefRs_t.presence",
           "RrcSrsSpatialRelationInfo_t.presence")
RECORD_ROW(srsPeriod, "record-srs-period", RRC_RECORD_ERROR, srs,
           "`RrcSrsResource_t.resourceType.semiPersistent.period`, `RrcSrsResource_t.resourceType.periodic.period` 0 "
           "or above 17",
           "the line \"No SRS_PeriodicityAndOffset_PR\", then refused", "store 1 (sl1) to 17 (sl2560)",
           "srsSemiPersistent_s.period", "srsPeriodic_s.period")
RECORD_ROW(srsOffset, "record-srs-offset", RRC_RECORD_WARNING, srs,
           "`RrcSrsResource_t.resourceType.semiPersistent.offset`, `RrcSrsResource_t.resourceType.periodic.offset`, "
           "periods 2 to 13",
           "the low 8 bits: 257 is sent as 1", "keep the offset below the period", "srsSemiPersistent_s.offset",
           "srsPeriodic_s.offset")
RECORD_ROW(srsP0UpperBits, "record-srs-p0-upper-bits", RRC_RECORD_WARNING, srs, "`RrcSrsResourceSet_t.p0`",
           "the low 16 of its 32 bits: 65486 is sent as -50 dBm", "store -202 to 24", "RrcSrsResourceSet_t.p0")
RECORD_ROW(srsTpcAccumulationOneValue, "record-srs-tpc-accumulation-one-value", RRC_RECORD_ERROR, srs,
           "`RrcSrsCfg_t.tpcAccumulation`", "0 is sent as disabled, any other number is refused",
           "store 0 to disable; to leave it enabled, clear the bit", "RrcSrsCfg_t.tpcAccumulation")
RECORD_ROW(srsNoField, "record-srs-no-field", 0, srs, "no field: aperiodicSRS-ResourceTriggerList-v1530", "not sent",
           "a set has one trigger; give further ones in sets with the same resources")

RECORD_ROW(bfrMsg1SubcarrierSpacing, "record-bfr-msg1-subcarrier-spacing", RRC_RECORD_WARNING, furtherUplinkBwps,
           "`RRC_BEAM_FAIL_RECOVERY_MSG1_SUB_CARRIER_SPACING_V1530_PRESENCE`, `msg1SubCarrierSpacingV1530`",
           "not sent, whatever the field holds", "there is no way; leave the bit clear",
           "RRC_BEAM_FAIL_RECOVERY_MSG1_SUB_CARRIER_SPACING_V1530_PRESENCE",
           "RrcBeamFailRecoveryCfg_t.msg1SubCarrierSpacingV1530")
RECORD_ROW(bfrNoField, "record-bfr-no-field", 0, furtherUplinkBwps, "no field: candidateBeamRSList", "not sent",
           "there is no way to give the UE preambles of its own for recovery; it uses contention-based random access")
RECORD_ROW(rachOneEighth, "record-rach-one-eighth", RRC_RECORD_WARNING, furtherUplinkBwps,
           "`RRC_RACH_CFG_COMMON_ONEEIGHTH_PRESENCE`",
           "oneHalf; it wins over `RRC_RACH_CFG_COMMON_ONEFOURTH_PRESENCE`, too",
           "set it for oneHalf; oneEighth can be sent only in the initial bandwidth part's common part, which the "
           "distributed unit composes: `NrRachCfgCommon_t.ssbPerRachOccasion`",
           "RRC_RACH_CFG_COMMON_ONEEIGHTH_PRESENCE")
RECORD_ROW(rachOneHalf, "record-rach-one-half", RRC_RECORD_ERROR, furtherUplinkBwps,
           "`RRC_RACH_CFG_COMMON_ONEHALF_PRESENCE`", "not read; alone: refused",
           "set `RRC_RACH_CFG_COMMON_ONEEIGHTH_PRESENCE` in its place", "RRC_RACH_CFG_COMMON_ONEHALF_PRESENCE")
RECORD_ROW(rachCommonChoices, "record-rach-common-choices", RRC_RECORD_ERROR, furtherUplinkBwps,
           "`RrcRachCfgComm_t.presence`, `presence1` without exactly one bit",
           "of several the highest: of both root sequences l139, the low octet of `l839`; without one refused",
           "set one bit of each", "RrcRachCfgComm_t.presence", "RrcRachCfgComm_t.presence1")
RECORD_ROW(puschCommonP0Nominal, "record-pusch-common-p0-nominal", RRC_RECORD_ERROR, furtherUplinkBwps,
           "`RrcPuschCfgComm_t.p0NominalWithGrant`",
           "the octet as an unsigned number, unlike others: 0 to 24 dBm; above 24 refused",
           "a negative power can be sent only in the initial bandwidth part's common part, which the distributed unit "
           "composes: `NrPuschCfgCommon_t.p0NominalWithGrant`",
           "RrcPuschCfgComm_t.p0NominalWithGrant")
RECORD_ROW(pucchCommonP0Nominal, "record-pucch-common-p0-nominal", 0, furtherUplinkBwps,
           "`RrcPucchCfgComm_t.p0Nominal`", "-128 to 24 dBm: an octet cannot hold less",
           "less can be sent only in the initial bandwidth part's common part, which the distributed unit composes: "
           "`NrPucchCfgCommon_t.p0Nominal`",
           "RrcPucchCfgComm_t.p0Nominal")
RECORD_ROW(puschCommonMsg3DeltaPreamble, "record-pusch-common-msg3-delta-preamble", 0, furtherUplinkBwps,
           "`msg3DeltaPreable`", "the octet as a signed number: 255 is sent as -1", "add 256 to a negative number",
           "RrcPuschCfgComm_t.msg3DeltaPreable")
RECORD_ROW(uplinkCommonOneValue, "record-uplink-common-one-value", RRC_RECORD_ERROR, furtherUplinkBwps,
           "`groupHoppingEnabledTransformPrecoding`, `msg3TransformPreCoder`",
           "0 is sent as enabled, any other number is refused", "store 0: the bit alone says it",
           "RrcPuschCfgComm_t.groupHoppingEnabledTransformPrecoding", "RrcRachCfgComm_t.msg3TransformPreCoder")

RECORD_ROW(puschServingCellBitsNotSent, "record-pusch-serving-cell-bits-not-sent", RRC_RECORD_WARNING, servingCellLevel,
           "`RRC_PUSCH_SERVING_CELL_CFG_MAX_MIMO_LAYERS`, `RRC_PUSCH_SERVING_CELL_CFG_PROCESS_TYPE_2ENABLE`",
           "nothing is sent: unlike the PDSCH's, maxMIMO-Layers and processingType2Enabled have no field",
           "there is no way; limit the layers with `RrcPuschCfg_t.maxRank`",
           "RRC_PUSCH_SERVING_CELL_CFG_MAX_MIMO_LAYERS", "RRC_PUSCH_SERVING_CELL_CFG_PROCESS_TYPE_2ENABLE")
RECORD_ROW(puschRateMatchingOneValue, "record-pusch-rate-matching-one-value", RRC_RECORD_ERROR, servingCellLevel,
           "`RrcPuschServingCellCfg_t.rateMatching`", "0 is sent as limitedBufferRM, any other number is refused",
           "store 0: the bit alone says it", "RrcPuschServingCellCfg_t.rateMatching")
RECORD_ROW(srsSwitchFromCarrier, "record-srs-switch-from-carrier", RRC_RECORD_ERROR, servingCellLevel,
           "`SwitchFromCarrier`", "always sent, the BOOL as an enumeration: 0 sUL, 1 nUL, others refused",
           "store it whenever `RRC_UL_CFG_CARRIER_SWITCHING_PRESENCE` is set",
           "RrcSrsCarrierSwitching_t.SwitchFromCarrier")
RECORD_ROW(srsTpcGroupChoice, "record-srs-tpc-group-choice", RRC_RECORD_ERROR, servingCellLevel,
           "`RrcSrsCarrierSwitching_t.presence` without exactly one bit",
           "both: typeB, with `srsTpcPdcchGroup` read as such; none: refused",
           "set one bit; to leave the group out, clear `RRC_SRS_CARRIER_SWITCH_SRS_TPC_PDCCH_GROUP_PRESENCE`",
           "RrcSrsCarrierSwitching_t.presence")
RECORD_ROW(srsSwitchingListCounts, "record-srs-switching-list-counts", RRC_RECORD_ERROR, servingCellLevel,
           "`srsTpcPdcchGroup.typeA.num`, `RrcSrsTpcPdcchCfg_t.num`, `RrcmonitoringCells.num` 0",
           "typeA and monitoringCells are refused; an SRS-TPC-PDCCH-Config, in typeA or typeB, is sent empty",
           "list the entries, or clear the bit", "typeA_s.num", "RrcSrsTpcPdcchCfg_t.num", "RrcmonitoringCells_s.num")
RECORD_ROW(slotFormatCounts, "record-slot-format-counts", RRC_RECORD_ERROR, servingCellLevel,
           "`numSlotFormatComb`, `numSlotFormat` 0",
           "no combinations: the list is left out; a combination without formats: refused",
           "give each combination its formats", "RrcSlotFormatCombPerCell_t.numSlotFormatComb",
           "RrcSlotFormatComb_t.numSlotFormat")
RECORD_ROW(pdschServingCellBooleans, "record-pdsch-serving-cell-booleans", RRC_RECORD_WARNING, servingCellLevel,
           "`codeBlockGroupFlushInd`, `Type2Enabled`", "the low 8 bits: 256 is sent as false", "store 0 or 1",
           "codeBlockGroupTransmission_s.codeBlockGroupFlushInd", "RrcPdschServingCellCfg_t.Type2Enabled")

RECORD_ROW(csiResourceCountNames, "record-csi-resource-count-names", 0, csiResources,
           "`numNzpCsiRsResources`, `numSsbResourceSet`",
           "despite the names, the first is the list of ids, the second the count of `csiSsbIdx`",
           "count the ids in `numNzpCsiRsRes`, the SSBs in `numSsbResourceSet`",
           "RrcNzpCsiRsResourceSet_t.numNzpCsiRsResources", "RrcCsiSsbResourceSet_t.numSsbResourceSet")
RECORD_ROW(nzpCsiRsSetCount, "record-nzp-csi-rs-set-count", RRC_RECORD_ERROR, csiResources, "`numNzpCsiRsRes`",
           "the low 8 of its 16 bits: 257 is sent as one resource; 65 to 256 are refused", "store 1 to 64",
           "RrcNzpCsiRsResourceSet_t.numNzpCsiRsRes")
RECORD_ROW(csiSsbSetCount, "record-csi-ssb-set-count", RRC_RECORD_WARNING, csiResources,
           "`numCsiSsbResourceSet` above 1", "one id is sent, no error", "store 0 or 1",
           "nzpCsiRsResourceSetList_s.numCsiSsbResourceSet")
RECORD_ROW(csiResourceConfigEmpty, "record-csi-resource-config-empty", RRC_RECORD_NOTICE, csiResources,
           "`numNzpCsiRsResourceSet`, `numCsiSsbResourceSet` both 0", "an empty nzp-CSI-RS-SSB, no error",
           "list at least one set", "nzpCsiRsResourceSetList_s.numNzpCsiRsResourceSet",
           "nzpCsiRsResourceSetList_s.numCsiSsbResourceSet")
RECORD_ROW(csiResourceChoices, "record-csi-resource-choices", RRC_RECORD_ERROR, csiResources,
           "`RrcCsiResourceCfg_t.presence`, `RrcCsiImResource_t.presence` without exactly one bit",
           "both: csi-IM-ResourceSetList or pattern1, with the union read as such; none: refused",
           "set one bit of each", "RrcCsiResourceCfg_t.presence", "RrcCsiImResource_t.presence")
RECORD_ROW(csiRsAsInPdsch, "record-csi-rs-as-in-pdsch", 0, csiResources,
           "`RrcCsiRsResourceMapping_t`, `RrcCsiResourcePeriodictyAndOffset_t`",
           "as in the PDSCH: lowest density, slots40 as slots32, unknown periods refused, low 8 bits of the offset",
           "as there", "RrcCsiRsResourceMapping_t", "RrcCsiResourcePeriodictyAndOffset_t")
RECORD_ROW(nzpCsiRsPowerSigned, "record-nzp-csi-rs-power-signed", 0, csiResources,
           "`RrcNzpCsiRsResource_t.powerControlOffset`", "the octet as a signed number: 248 is sent as -8 dB",
           "add 256 to a negative number", "RrcNzpCsiRsResource_t.powerControlOffset")
RECORD_ROW(csiResourceListCounts, "record-csi-resource-list-counts", RRC_RECORD_ERROR, csiResources,
           "`numSsbResourceSet`, `numCsiImResources`, `numCsiImResourceSet` 0", "refused",
           "list the entries, or leave set or configuration out", "RrcCsiSsbResourceSet_t.numSsbResourceSet",
           "RrcCsiImResourceSet_t.numCsiImResources", "csiImResourceSetList_s.numCsiImResourceSet")
RECORD_ROW(trsInfoOneValue, "record-trs-info-one-value", RRC_RECORD_ERROR, csiResources, "`trsInfo`",
           "0 is sent as true, any other number is refused", "store 0: the bit alone says it",
           "RrcNzpCsiRsResourceSet_t.trsInfo")

RECORD_ROW(csiReportGroupBased, "record-csi-report-group-based", RRC_RECORD_ERROR, csiReports,
           "`RRC_CSI_REPORT_CFG_GROUP_BASED_BEAM_REPORT_PRESENCE` clear",
           "refused: groupBasedBeamReporting is mandatory",
           "always set it; for a report without groups choose `RRC_BASED_BEAM_REPORT_DISABLED`",
           "RRC_CSI_REPORT_CFG_GROUP_BASED_BEAM_REPORT_PRESENCE")
RECORD_ROW(csiReportDummy, "record-csi-report-dummy", RRC_RECORD_ERROR, csiReports,
           "`RRC_CSI_REPORT_CFG_NROF_CQIS_PER_REP_PRESENCE`, `nrofCQIsPerRep`",
           "dummy: 0 is sent as n1, 1 as n2, any other number is refused",
           "leave the bit clear: the UE does not read it", "RRC_CSI_REPORT_CFG_NROF_CQIS_PER_REP_PRESENCE",
           "RrcCsiReportCfg_t.nrofCQIsPerRep")
RECORD_ROW(csiReportNotRead, "record-csi-report-not-read", RRC_RECORD_WARNING, csiReports,
           "`CqisPerReportNum`, `BeamReporting_n.enabled`, `PortIndexFor8Ranks_n.portIndex1`", "not read",
           "leave them 0", "RrcCsiReportCfg_t.CqisPerReportNum", "beamReporting_u.enabled",
           "portIndexFor8Ranks_u.portIndex1")
RECORD_ROW(csiReportSubbandSize, "record-csi-report-subband-size", RRC_RECORD_ERROR, csiReports, "`subBandSize`",
           "always sent, the BOOL as an enumeration: 0 value1, 1 value2, others refused",
           "store 0 where the size does not matter", "RrcCsiReportCfg_t.subBandSize")
RECORD_ROW(csiReportSemiPersistentV1530, "record-csi-report-semi-persistent-v1530", RRC_RECORD_WARNING, csiReports,
           "`RRC_CSI_REPORT_CFG_SEMI_PERSISTENT_ON_PUSCH_V1530_PRESENCE`, `ReportSlotConfig_v1530`",
           "not sent, whatever the field holds",
           "there is no way; choose a period of `SemiPersistentOnPuSch_t.reportSlotCfg`",
           "RRC_CSI_REPORT_CFG_SEMI_PERSISTENT_ON_PUSCH_V1530_PRESENCE",
           "semimPersistentOnPuschv1530.ReportSlotConfig_v1530")
RECORD_ROW(csiReportChoices, "record-csi-report-choices", RRC_RECORD_ERROR, csiReports,
           "`cfgTypeBitMask`, `rptQuBitMask`, `csiRptBandBitMask`, `RrcgroupBasedBeamReport_t.Presence`, "
           "`RrcPortIndexFor8Ranks_t.Presence` without exactly one bit",
           "of several the highest, with the union read as its member; without one refused", "set one bit of each",
           "RrcCsiReportCfg_t.cfgTypeBitMask", "RrcCsiReportCfg_t.rptQuBitMask", "ReportFreqCfg_t.csiRptBandBitMask",
           "RrcgroupBasedBeamReport_t.Presence", "RrcPortIndexFor8Ranks_t.Presence")
RECORD_ROW(csiReportPeriod, "record-csi-report-period", RRC_RECORD_ERROR, csiReports,
           "`reportSlotCfg.periodicity` 0 or above 10",
           "the line \"No T_CSI_ReportPeriodicityAndOffset\", then refused", "store 1 (slots4) to 10 (slots320)",
           "csiReportPeriodAndOffset_t.periodicity")
RECORD_ROW(csiReportOffset, "record-csi-report-offset", 0, csiReports, "`reportSlotCfg.offset`, slots320",
           "0 to 255: an octet cannot hold more", "keep the offset of a period of 320 slots below 256",
           "csiReportPeriodAndOffset_t.offset")
RECORD_ROW(csiReportListCounts, "record-csi-report-list-counts", RRC_RECORD_ERROR, csiReports,
           "`pucchCsiResourceNum`, `reportSlotOffsetNum`, `numPortIndexFor8Ranks` 0", "refused",
           "list the entries; to leave port indices out, clear `RRC_CSI_REPORT_CFG_PORT_INDEX_FOR_8RANKS_PRESENCE`",
           "Periodic_t.pucchCsiResourceNum", "SemiPersistentOnPucch_t.pucchCsiResourceNum",
           "SemiPersistentOnPuSch_t.reportSlotOffsetNum", "Aperiodic_t.reportSlotOffsetNum",
           "RRCPortIndexFor8Ranks_t.numPortIndexFor8Ranks")
RECORD_ROW(portIndexListCounts, "record-port-index-list-counts", RRC_RECORD_WARNING, csiReports,
           "`numRank2_8` to `numRank8_8`, `numRank2_4` to `numRank4_4`, `numRank2_2`",
           "lists of fixed size: not 0 sends the list, with missing entries as 0 and surplus ones dropped, no error",
           "store the rank, for ranks 3 and 4 of portIndex4 the 2 that there is room for",
           "portIndexFor8Ranks_portIndex8.numRank2_8", "portIndexFor8Ranks_portIndex8.numRank3_8",
           "portIndexFor8Ranks_portIndex8.numRank4_8", "portIndexFor8Ranks_portIndex8.numRank5_8",
           "portIndexFor8Ranks_portIndex8.numRank6_8", "portIndexFor8Ranks_portIndex8.numRank7_8",
           "portIndexFor8Ranks_portIndex8.numRank8_8", "portIndexFor8Ranks_portIndex4.numRank2_4",
           "portIndexFor8Ranks_portIndex4.numRank3_4", "portIndexFor8Ranks_portIndex4.numRank4_4",
           "portIndexFor8Ranks_portIndex2.numRank2_2")
RECORD_ROW(portIndex4Entries, "record-port-index4-entries", RRC_RECORD_NOTICE, csiReports,
           "`PortIndex3_4`, `PortIndex4_4`",
           "two entries each: the third of rank 3, the third and fourth of rank 4 are 0",
           "there is no way to give other ports there; use such ranks only if port 0 is right",
           "portIndexFor8Ranks_portIndex4.PortIndex3_4", "portIndexFor8Ranks_portIndex4.PortIndex4_4")

RECORD_ROW(codebookChoices, "record-codebook-choices", RRC_RECORD_ERROR, codebooks,
           "`RrcCodebookCfg_t.Presence`, `CodebookType1_Sub_t.Presence`, `SinglePanel_nrOfAntennaPorts_t.Presence`, "
           "`N1_N2_Presence`, `Codebooktype2_Sub_t.Presence`, `Restriction_Presence` without exactly one bit",
           "of several the highest, with the union read as its member; without one refused", "set one bit of each",
           "RrcCodebookCfg_t.Presence", "CodebookType1_Sub_t.Presence", "SinglePanel_nrOfAntennaPorts_t.Presence",
           "nrOfAntennaPorts_moreThanTwo.N1_N2_Presence", "Codebooktype2_Sub_t.Presence",
           "subType_typeII.Restriction_Presence")
RECORD_ROW(codebookMultiPanel, "record-codebook-multi-panel", RRC_RECORD_ERROR, codebooks, "`CodeBookTypeMultiPanel_t`",
           "refused: ri-Restriction has 8 bits, or none without `RRC_RI_RESTRICTION`, where 4 are asked for",
           "there is no way to send the multi-panel codebook; use the single-panel one", "CodeBookTypeMultiPanel_t")
RECORD_ROW(codebookMandatoryBits, "record-codebook-mandatory-bits", RRC_RECORD_ERROR, codebooks,
           "`RRC_MORE_THAN_TWO_N1_N2_PRESENCE`, `RRC_CODEBOOK_TYPE2_SUB`, `RRC_TYPEII_RI_RESTRICTION_PRESENCE` clear",
           "refused: each guards a mandatory member", "always set them", "RRC_MORE_THAN_TWO_N1_N2_PRESENCE",
           "RRC_CODEBOOK_TYPE2_SUB", "RRC_TYPEII_RI_RESTRICTION_PRESENCE")
RECORD_ROW(codebookType2Defaults, "record-codebook-type2-defaults", RRC_RECORD_NOTICE, codebooks,
           "`RRC_PHASE_ALPHA_BET_SIZE`, `RRC_SUB_BAND_AMPLITUDE`, `RRC_NUM_BER_OFBEAMS` clear",
           "the members are mandatory and go out as n4, false, two", "set the bit where another value is meant",
           "RRC_PHASE_ALPHA_BET_SIZE", "RRC_SUB_BAND_AMPLITUDE", "RRC_NUM_BER_OFBEAMS")
RECORD_ROW(codebookType2UpperBits, "record-codebook-type2-upper-bits", RRC_RECORD_WARNING, codebooks,
           "`phaseAlphabetSize`, `numberOfBeams`, `subBandAmplitude`",
           "of their 64 bits the low 32, of `subBandAmplitude` the low 8: 2^32 is sent as n4 or two, 256 as false",
           "store 0 or 1, of `numberOfBeams` 0 to 2", "CodeBookType2_t.phaseAlphabetSize",
           "CodeBookType2_t.numberOfBeams", "CodeBookType2_t.subBandAmplitude")
RECORD_ROW(codebookOctetsInMemory, "record-codebook-octets-in-memory", 0, codebooks,
           "`MoreThanTwo_n1_n2_u.two_two`, `MoreThanTwo_n1_n2_u.sixteen_one`",
           "the octets as they lie in memory, on x86-64 the low one first", "fill the number octet by octet",
           "moreThanTwo_SinglePanel_n1_n2_u.two_two", "moreThanTwo_SinglePanel_n1_n2_u.sixteen_one")
RECORD_ROW(codebookOctetArrays, "record-codebook-octet-arrays", 0, codebooks,
           "the arrays of `MoreThanTwo_n1_n2_u` and `SubsetRestriction_u`, such as `four_two`",
           "the octets in their order, of the last one the most significant bits as far as the string goes",
           "store the first bit in bit 7 of the first octet", "moreThanTwo_SinglePanel_n1_n2_u", "subsetRestriction_u")
RECORD_ROW(codebookUpperBits, "record-codebook-upper-bits", RRC_RECORD_WARNING, codebooks,
           "`MoreThanTwo_n1_n2_u.six_one`, `MoreThanTwo_n1_n2_u.twelve_one`, `SubsetRestriction_u.two_two`, "
           "`SubsetRestriction_u.three_two`, `SubsetRestriction_u.six_one`",
           "the low bits, as many as the string has; higher ones are dropped",
           "store the first bit in the highest bit of the string", "moreThanTwo_SinglePanel_n1_n2_u.six_one",
           "moreThanTwo_SinglePanel_n1_n2_u.twelve_one", "subsetRestriction_u.two_two", "subsetRestriction_u.three_two",
           "subsetRestriction_u.six_one")

RECORD_ROW(triggerListCounts, "record-trigger-list-counts", RRC_RECORD_ERROR, csiMeasurement,
           "`RRC_CSI_MEAS_CFG_APERIODIC_TRIGGER_STATE_LIST_PRESENCE` with `numState` 0, "
           "`RRC_CSI_MEAS_CFG_SEMI_PEISISTENT_ON_PUSCH_PRESENCE` with `numTriggeState` 0",
           "refused: neither setup nor release", "clear the bit; such a list cannot be released",
           "RRC_CSI_MEAS_CFG_APERIODIC_TRIGGER_STATE_LIST_PRESENCE", "RrcCsiAperiodicTriggerStateList_t.numState",
           "RRC_CSI_MEAS_CFG_SEMI_PEISISTENT_ON_PUSCH_PRESENCE",
           "RrcCsiSemiPersistentOnPuschTriggerStateList_t.numTriggeState")
RECORD_ROW(triggerReportCount, "record-trigger-report-count", RRC_RECORD_ERROR, csiMeasurement, "`numCfgInfo` 0",
           "refused", "give each trigger state at least one report", "RrcCsiAperiodicTriggerState_t.numCfgInfo")
RECORD_ROW(triggerCsiSsbSet, "record-trigger-csi-ssb-set", 0, csiMeasurement,
           "`resourceForChannel.csiSsbResourceSet.csiImResourceSet`",
           "csi-SSB-ResourceSet, despite the name: nothing of CSI-IM", "store 1, the number of the one CSI-SSB set",
           "csiSsbResourceSet_s.csiImResourceSet")
RECORD_ROW(triggerResourceChoice, "record-trigger-resource-choice", RRC_RECORD_ERROR, csiMeasurement,
           "`prsence` without exactly one bit",
           "both: csi-SSB-ResourceSet, from the octet of `resourceForChannel.nzpCsiRs.resourceSet`; none: refused",
           "set one bit", "RrcCsiAssociatedReportCfgInfo_t.prsence")
RECORD_ROW(triggerNoField, "record-trigger-no-field", 0, csiMeasurement,
           "no field: csi-IM-ResourcesForInterference and nzp-CSI-RS-ResourcesForInterference of a trigger state",
           "not sent",
           "in reports that are triggered, clear `RRC_CSI_REPORT_CFG_CSI_IM_RESOURCE_CFG_ID_FOR_INTERFERENCE_PRESENCE` "
           "and `RRC_CSI_REPORT_CFG_NZP_CSI_RESOURCE_CFG_ID_FOR_INTERFERENCE_PRESENCE`")
