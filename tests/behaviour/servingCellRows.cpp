// Rows of the special cell, the secondary cells and what is common to all UEs of a cell.
#include "byteOrder.h"
#include "places.h"
#include "support/Json.h"

namespace behaviour
{

namespace
{

const auto downlinkCommon =
    within(common, R"({"downlinkConfigCommon":@,"dmrs-TypeA-Position":"pos2","ss-PBCH-BlockPower":0})",
           [](auto& cell)
           {
               cell.bitMask = RRC_DOWNLINK_CFG_COMMON;
               return &fresh(cell.dlCfgComm);
           });

const auto uplinkCommon =
    within(common, R"({"uplinkConfigCommon":@,"dmrs-TypeA-Position":"pos2","ss-PBCH-BlockPower":0})",
           [](auto& cell)
           {
               cell.bitMask = RRC_UPLINK_CFG_COMMON;
               return &fresh(cell.ulCfgComm);
           });

const auto uplinkFrequency = within(uplinkCommon, R"({"frequencyInfoUL":@,"dummy":"ms500"})",
                                    [](auto& config)
                                    {
                                        config.bitMask = RRC_FREQ_INFO_UL_PRESENCE;
                                        config.freqInfoUl.scsNum = 1;
                                        config.freqInfoUl.speCarrier[0].carrierBandwidth = 1;
                                        return &config.freqInfoUl;
                                    });

const char* const oneCarrier =
    R"("scs-SpecificCarrierList":[{"offsetToCarrier":0,"subcarrierSpacing":"kHz15","carrierBandwidth":1}])";

const auto pattern =
    within(common, R"({"dmrs-TypeA-Position":"pos2","rateMatchPatternToAddModList":[@],"ss-PBCH-BlockPower":0})",
           [](auto& cell)
           {
               cell.numRateMatchPatternAddMod = 1;
               return &fresh(cell.rateMatchPatternToAddMod[0]);
           });

const auto bitmaps = within(pattern, R"({"rateMatchPatternId":0,"patternType":{"bitmaps":@},"dummy":"dynamic"})",
                            [](auto& match)
                            {
                                match.Presence = RRC_PATTERN_TYPE_BITMAPS;
                                match.patternType.bitmaps.symbolsInResourceBlockPresence =
                                    RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE;
                                return &match.patternType.bitmaps;
                            });

std::string bitmapsJson(const std::string& symbols, const std::string& periodicity = "",
                        const std::string& blocks = zeros(275))
{
    return test::object({R"("resourceBlocks":)" + blocks, R"("symbolsInResourceBlock":)" + symbols,
                         periodicity.empty() ? "" : R"("periodicityAndPattern":)" + periodicity});
}

const std::string noSymbols = R"({"oneSlot":"00000000000000"})";

const auto rach = within(sync, R"({"newUE-Identity":0,"t304":"ms50","rach-ConfigDedicated":{"uplink":@}})",
                         [](auto& with)
                         {
                             with.bitMask = RRC_RACH_CFG_DEDI_PRESENCE;
                             with.rachCfgBitMask = RRC_RACH_CFG_UPLINK_PRESENCE;
                             return &fresh(with.choice.uplink);
                         });

const auto cfra = within(rach, R"({"cfra":@})",
                         [](auto& random)
                         {
                             random.bitMask = RRC_RACH_CFG_DEDI_CFRA_PRESENCE;
                             return &fresh(random.cfra);
                         });

const auto sCell = within(cellGroup, R"({"cellGroupId":0,"sCellToAddModList":[@]})",
                          [](auto& group)
                          {
                              group.sCellAddModNum = 1;
                              fresh(group.sCellAddMod[0]).scellIdx = 1;
                              return &group.sCellAddMod[0];
                          });

void specialCellRows(Table& table)
{
    table.row("record-rlf-t311")
        .sent(spCell,
              R"({"rlf-TimersAndConstants":{"setup":{"t310":"ms0","n310":"n1","n311":"n1","t311-v1530":"ms1000"}}})",
              [](auto& r) { r.bitMask = RRC_SPCELLCFG_RLFTIMER_PRESENCE; });
    table.row("record-rlm-threshold-one-value")
        .sent(spCell, R"({"rlmInSyncOutOfSyncThreshold":"n1"})",
              [](auto& r) { r.bitMask = RRC_SPCELLCFG_THRESHOLD_PRESENCE; })
        .asMeant()
        .oneValue(spCell, RRC_SPCELLCFG_THRESHOLD_PRESENCE, &RrcSpCellCfg_t::rlmInSyncOutSyncThreshold,
                  "rlmInSyncOutOfSyncThreshold");
    table.row("record-smtc-period")
        .refused(sync, ".smtc.periodicityAndOffset: tag 0 is not in 1..6",
                 [](auto& r) { r.bitMask = RRC_SSBMTC_PRESENCE; })
        .printing("No SSB_MTC__periodicityAndOffset_PR\n")
        .refused(sync, ".smtc.periodicityAndOffset: tag 7 is not in 1..6",
                 [](auto& r)
                 {
                     r.bitMask = RRC_SSBMTC_PRESENCE;
                     r.smtc.period = 7;
                 })
        .printing("No SSB_MTC__periodicityAndOffset_PR\n");
}

void commonRows(Table& table)
{
    table.row("record-uplink-frequency-not-sent")
        .sent(uplinkFrequency, "{" + std::string(oneCarrier) + "}",
              [](auto& r)
              {
                  r.bitMask = 0x0F;
                  r.absFreqPointA = 630000;
                  r.additionSpectrumEmission = 1;
                  r.pMax = 23;
                  r.freqShift7p5khz = 1;
              });
    table.row("record-frequency-list-counts")
        .refused(downlinkCommon, ".frequencyInfoDL.frequencyBandList: 0 elements, not 1..8",
                 [](auto& r)
                 {
                     r.bitMask = RRC_DLCFGCOMM_FREQ_DL_PRESENCE;
                     r.freqInfoDl.scsNum = 1;
                     r.freqInfoDl.speCarrier[0].carrierBandwidth = 1;
                 })
        .refused(downlinkCommon, ".frequencyInfoDL.scs-SpecificCarrierList: 0 elements, not 1..5",
                 [](auto& r)
                 {
                     r.bitMask = RRC_DLCFGCOMM_FREQ_DL_PRESENCE;
                     r.freqInfoDl.multiBandNum = 1;
                     r.freqInfoDl.freqBandIndNr[0] = 78;
                 })
        .refused(uplinkFrequency, ".scs-SpecificCarrierList: 0 elements, not 1..5", [](auto& r) { r.scsNum = 0; });
    table.row("record-time-alignment-timer-common")
        .sent(uplinkCommon, R"({"dummy":"infinity"})", [](auto& r) { r.timeAlignmentTimer = 7; });
    table.row("record-ssb-long-bitmap")
        .refused(common, ".ssb-PositionsInBurst: tag 0 is not in 1..3",
                 [](auto& r)
                 {
                     r.bitMask = RRC_SSB_POSITION_IN_BURST;
                     r.ssbPosionBitMask = SSB_POSITION_LONG_BITMAP;
                     r.RrcSsbPositionInBurst.longBitmap = 1ULL << 63;
                 })
        .refused(common, ".ssb-PositionsInBurst.shortBitmap: a pointer out of the context's heap",
                 [](auto& r)
                 {
                     r.bitMask = RRC_SSB_POSITION_IN_BURST;
                     r.ssbPosionBitMask = SSB_POSITION_LONG_BITMAP | SSB_POSITION_SHORT_BITMAP;
                     r.RrcSsbPositionInBurst.longBitmap = 1ULL << 63;
                 })
        .refused(common, ".ssb-PositionsInBurst.mediumBitmap: a null pointer",
                 [](auto& r)
                 {
                     r.bitMask = RRC_SSB_POSITION_IN_BURST;
                     r.ssbPosionBitMask = SSB_POSITION_LONG_BITMAP | SSB_POSITION_MEDIUM_BITMAP;
                     r.RrcSsbPositionInBurst.longBitmap = 0;
                 });
    table.row("record-serving-cell-common-choices")
        .sent(
            common,
            R"({"ssb-PositionsInBurst":{"mediumBitmap":"10000001"},"dmrs-TypeA-Position":"pos2","ss-PBCH-BlockPower":0})",
            [](auto& r)
            {
                r.bitMask = RRC_SSB_POSITION_IN_BURST;
                r.ssbPosionBitMask = SSB_POSITION_SHORT_BITMAP | SSB_POSITION_MEDIUM_BITMAP;
                r.RrcSsbPositionInBurst.mediumBitmap = 0x81;
            })
        .refused(common, ".ssb-PositionsInBurst: tag 0 is not in 1..3",
                 [](auto& r) { r.bitMask = RRC_SSB_POSITION_IN_BURST; })
        .sent(pattern, R"({"rateMatchPatternId":0,"patternType":{"controlResourceSet":11},"dummy":"dynamic"})",
              [](auto& r)
              {
                  r.Presence = RRC_PATTERN_TYPE_BITMAPS | RRC_PATTERN_TYPE_SETID;
                  r.patternType.controlResourceSetId = 11;
              })
        .refused(pattern, ".patternType: tag 0 is not in 1..2")
        .sent(bitmaps, bitmapsJson(noSymbols, R"({"n40":)" + test::bits(0x123456789A, 40) + "}"),
              [](auto& r)
              {
                  r.bitMask = RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE;
                  r.periodictyAndPatternPresence =
                      RRC_BITMAPS_PERIODICTY_PATTERN_N2_PRESENCE | RRC_BITMAPS_PERIODICTY_PATTERN_N40_PRESENCE;
                  r.periodictyAndPattern.n40 = 0x123456789A;
              })
        .refused(bitmaps, ".periodicityAndPattern: tag 0 is not in 1..7",
                 [](auto& r) { r.bitMask = RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE; });
    table.row("record-rate-match-resource-blocks")
        .sent(bitmaps, bitmapsJson(noSymbols, "", "\"1" + std::string(273, '0') + "1\""),
              [](auto& r)
              {
                  r.resourceBlocks[0] = rtx::lowFirst(UINT64{0x80});
                  r.resourceBlocks[4] = rtx::lowFirst(UINT64{0x200000});
              });
    table.row("record-rate-match-symbols-choice")
        .sent(bitmaps, bitmapsJson(R"({"twoSlots":)" + test::bits(1, 28) + "}"),
              [](auto& r)
              {
                  r.symbolsInResourceBlockPresence |= RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE;
                  r.symbolsInResourceBlock.twoSLots = 1;
              })
        .refused(bitmaps, ".symbolsInResourceBlock: tag 0 is not in 1..2",
                 [](auto& r) { r.symbolsInResourceBlockPresence = 0; })
        .refused(bitmaps, ".symbolsInResourceBlock: tag 7 is not in 1..2",
                 [](auto& r)
                 {
                     r.symbolsInResourceBlockPresence = 0;
                     r.resourceBlocks[4] = rtx::lowFirst(UINT64{7} << 32);
                 });
    table.row("record-rate-match-two-slots")
        .sent(bitmaps, bitmapsJson(R"({"twoSlots":)" + test::bits(0xCDEF, 28) + "}"),
              [](auto& r)
              {
                  r.symbolsInResourceBlockPresence = RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE;
                  r.symbolsInResourceBlock.twoSLots = 0xABCDEF;
              });
    table.row("record-rate-match-upper-bits")
        .sent(bitmaps, bitmapsJson(R"({"oneSlot":"00000000000001"})"),
              [](auto& r) { r.symbolsInResourceBlock.oneSlot = 0xC001; })
        .sent(bitmaps, bitmapsJson(noSymbols, R"({"n2":"10"})"),
              [](auto& r)
              {
                  r.bitMask = RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE;
                  r.periodictyAndPatternPresence = RRC_BITMAPS_PERIODICTY_PATTERN_N2_PRESENCE;
                  r.periodictyAndPattern.n2 = 6;
              });
    table.row("record-rate-match-dummy")
        .sent(pattern, R"({"rateMatchPatternId":0,"patternType":{"controlResourceSet":0},"dummy":"semiStatic"})",
              [](auto& r)
              {
                  r.Presence = RRC_PATTERN_TYPE_SETID;
                  r.dummy = 1;
              });
    table.row("record-ss-pbch-block-power")
        .sent(common, R"({"dmrs-TypeA-Position":"pos2","ss-PBCH-BlockPower":-5})",
              [](auto& r) { r.ssPbchBlockPower = 251; });
    table.row("record-distributed-unit-members")
        .sent(uplinkFrequency, "{" + std::string(oneCarrier) + "}")
        .sent(downlinkCommon,
              R"({"initialDownlinkBWP":{"genericParameters":{"locationAndBandwidth":0,"subcarrierSpacing":"kHz15"}}})",
              [](auto& r) { r.bitMask = RRC_DLCFGCOMM_INIT_DL_BWP_PRESENCE; })
        .sent(uplinkCommon,
              R"({"initialUplinkBWP":{"genericParameters":{"locationAndBandwidth":0,"subcarrierSpacing":"kHz15"}},)"
              R"("dummy":"ms500"})",
              [](auto& r) { r.bitMask = RRC_BWP_UPLINK_PRESENCE; })
        .sent(common,
              R"({"dmrs-TypeA-Position":"pos2","tdd-UL-DL-ConfigurationCommon":{"referenceSubcarrierSpacing":"kHz15",)"
              R"("pattern1":{"dl-UL-TransmissionPeriodicity":"ms0p5","nrofDownlinkSlots":0,"nrofDownlinkSymbols":0,)"
              R"("nrofUplinkSlots":0,"nrofUplinkSymbols":0}},"ss-PBCH-BlockPower":0})",
              [](auto& r) { r.bitMask = RRC_TDD_UL_DL_CFG_COMMON; });
    table.row("record-serving-cell-common-no-field")
        .sent(common,
              R"({"physCellId":0,"downlinkConfigCommon":{},"uplinkConfigCommon":{"dummy":"ms500"},)"
              R"("supplementaryUplinkConfig":{"dummy":"ms500"},"n-TimingAdvanceOffset":"n0",)"
              R"("ssb-PositionsInBurst":{"shortBitmap":"0000"},"ssb-periodicityServingCell":"ms5",)"
              R"("dmrs-TypeA-Position":"pos2","ssbSubcarrierSpacing":"kHz15","ss-PBCH-BlockPower":0})",
              [](auto& r)
              {
                  r.bitMask = 0xFFFF & ~RRC_TDD_UL_DL_CFG_COMMON;
                  rrcInit(&r.dlCfgComm);
                  rrcInit(&r.ulCfgComm);
                  rrcInit(&r.suppUlCfg);
                  r.ssbPosionBitMask = SSB_POSITION_SHORT_BITMAP;
              });
}

void randomAccessRows(Table& table)
{
    table.row("record-rach-dedicated-choice")
        .sent(sync,
              R"({"newUE-Identity":0,"t304":"ms50","rach-ConfigDedicated":{"supplementaryUplink":)"
              R"({"ra-Prioritization":{"powerRampingStepHighPriority":"dB0"}}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_RACH_CFG_DEDI_PRESENCE;
                  r.rachCfgBitMask = RRC_RACH_CFG_UPLINK_PRESENCE | RRC_RACH_CFG_SUPPUPLINK_PRESENCE;
                  rrcInit(&r.choice.uplink);
                  r.choice.uplink.bitMask = RRC_RACH_CFG_DEDI_RA_PRIO_PRESENCE;
              })
        .refused(sync, ".rach-ConfigDedicated: tag 0 is not in 1..2",
                 [](auto& r)
                 {
                     r.bitMask = RRC_RACH_CFG_DEDI_PRESENCE;
                     rrcInit(&r.choice.uplink);
                 });
    table.row("record-cfra-both-resources")
        .sent(
            cfra,
            R"({"resources":{"ssb":{"ssb-ResourceList":[{"ssb":1,"ra-PreambleIndex":60}],"ra-ssb-OccasionMaskIndex":0}}})",
            [](auto& r)
            {
                r.bitMask = RRC_SSB | RRC_SCIS_RESOURCE;
                auto& ssb = fresh(r.resources.ssb);
                ssb.numSsbResources = 1;
                ssb.ssbResource[0] = {1, 60};
            });
    table.row("record-cfra-resources-by-default")
        .sent(
            cfra,
            R"({"resources":{"csirs":{"csirs-ResourceList":[{"csi-RS":0,"ra-OccasionList":[511],"ra-PreambleIndex":0}],)"
            R"("rsrp-ThresholdCSI-RS":0}}})",
            [](auto& r)
            {
                auto& csiRs = fresh(r.resources.scirs);
                csiRs.numCsirsRecouces = 1;
                auto& resource = fresh(csiRs.csirsResource[0]);
                resource.numRaOccasion = 1;
                resource.raOccasionIdx[0] = 511;
            })
        .refused(cfra, ".resources.csirs.csirs-ResourceList: 0 elements, not 1..96",
                 [](auto& r) { r.bitMask = RRC_CFRA_PREAMBLE_PRESENCE; })
        .sent(
            cfra,
            R"({"resources":{"csirs":{"csirs-ResourceList":[{"csi-RS":95,"ra-OccasionList":[0],"ra-PreambleIndex":0}],)"
            R"("rsrp-ThresholdCSI-RS":0}}})",
            [](auto& r)
            {
                r.bitMask = RRC_SCIS_RESOURCE;
                auto& csiRs = fresh(r.resources.scirs);
                csiRs.numCsirsRecouces = 1;
                auto& resource = fresh(csiRs.csirsResource[0]);
                resource.csiRSIdx = 95;
                resource.numRaOccasion = 1;
                resource.raOccasionIdx[0] = 0;
            })
        .asMeant();
    table.row("record-cfra-csi-rs-occasions")
        .refused(cfra, ".resources.csirs.csirs-ResourceList[0].ra-OccasionList: 65 elements, not 1..64",
                 [](auto& r)
                 {
                     auto& csiRs = fresh(r.resources.scirs);
                     csiRs.numCsirsRecouces = 1;
                     auto& resource = fresh(csiRs.csirsResource[0]);
                     resource.numRaOccasion = 65;
                     std::fill_n(resource.raOccasionIdx, 65, UINT16{0});
                 });
    table.row("record-cfra-list-counts")
        .refused(cfra, ".resources.ssb.ssb-ResourceList: 0 elements, not 1..64",
                 [](auto& r)
                 {
                     r.bitMask = RRC_SSB;
                     rrcInit(&r.resources.ssb);
                 })
        .refused(cfra, ".resources.csirs.csirs-ResourceList[0].ra-OccasionList: 0 elements, not 1..64",
                 [](auto& r)
                 {
                     auto& csiRs = fresh(r.resources.scirs);
                     csiRs.numCsirsRecouces = 1;
                     rrcInit(&csiRs.csirsResource[0]);
                 });
}

void secondaryCellRows(Table& table)
{
    table.row("record-scell-add-mod-count")
        .sent(cellGroup,
              R"({"cellGroupId":0,"sCellToAddModList":[{"sCellIndex":1},{"sCellIndex":2},{"sCellIndex":3}]})",
              [](auto& r)
              {
                  r.sCellAddModNum = 5;
                  for (unsigned i = 0; i < MAX_NROF_SCellS; ++i)
                  {
                      fresh(r.sCellAddMod[i]).scellIdx = static_cast<UINT8>(i + 1);
                  }
              })
        .leaving([](const auto& r) { return r.sCellAddModNum == 3; });
    table.row("record-scell-release-count")
        .refused(cellGroup, ".sCellToReleaseList[3]: 0 is not in 1..31",
                 [](auto& r)
                 {
                     r.sCellReleaseNum = 4;
                     r.sCellIdx[0] = 1;
                     r.sCellIdx[1] = 2;
                     r.sCellIdx[2] = 3;
                 })
        .leaving([](const auto& r) { return r.sCellReleaseNum == 4; });
    table.row("record-scell-smtc")
        .sent(sCell, R"({"sCellIndex":1})",
              [](auto& r)
              {
                  r.bitMask = RRC_SCELLADDMOD_SMTC_PRESENCE;
                  r.smtc.padding = 1;
              });
}

void dedicatedRows(Table& table)
{
    table.row("record-cross-carrier-scheduling")
        .sent(dedicated, R"({"tag-Id":0})",
              [](auto& r) { r.bitMask = RRC_SERVING_CELL_CROSS_CARRIER_SCHD_CFG_PRESENCE; })
        .sent(sCell, R"({"sCellIndex":1,"sCellConfigDedicated":{"tag-Id":0}})",
              [](auto& r)
              {
                  r.bitMask = RRC_SCELLADDMOD_CELLDEDI_PRESENCE;
                  fresh(r.sCellCfgDedi).bitMask = RRC_SERVING_CELL_CROSS_CARRIER_SCHD_CFG_PRESENCE;
              });
    table.row("record-serving-cell-dummy")
        .sent(dedicated, R"({"tag-Id":0,"dummy":"enabled"})",
              [](auto& r) { r.bitMask = RRC_SERVING_CELL_UE_BEAMLOCK_FUNC_PRESENCE; })
        .oneValue(dedicated, RRC_SERVING_CELL_UE_BEAMLOCK_FUNC_PRESENCE, &RrcServingCellCfg_t::dummy, "dummy");
    table.row("record-serving-cell-no-field")
        .sent(dedicated,
              R"({"tdd-UL-DL-ConfigurationDedicated":{},"initialDownlinkBWP":{},"firstActiveDownlinkBWP-Id":0,)"
              R"("bwp-InactivityTimer":"ms2","defaultDownlinkBWP-Id":0,"uplinkConfig":{},"supplementaryUplink":{},)"
              R"("pdcch-ServingCellConfig":{"setup":{}},"pdsch-ServingCellConfig":{"setup":{}},)"
              R"("csi-MeasConfig":{"setup":{}},"sCellDeactivationTimer":"ms20","tag-Id":0,"dummy":"enabled",)"
              R"("pathlossReferenceLinking":"spCell","servingCellMO":1})",
              [](auto& r)
              {
                  r.bitMask = 0xFFFF;
                  rrcInit(&r.tddUlDlCfgDed);
                  rrcInit(&r.initDlBwp);
                  rrcInit(&r.ulCfg);
                  rrcInit(&r.suppUlCfg);
                  rrcInit(&r.pdcchServingCellCfg);
                  rrcInit(&r.csiMeasCfg);
                  r.servingCellMo = 1;
              });

    table.row("record-tdd-dedicated-slots")
        .sent(dedicated, R"({"tdd-UL-DL-ConfigurationDedicated":{},"tag-Id":0})",
              [](auto& r)
              {
                  r.bitMask = RRC_SERVING_CELL_TDD_ULDL_CFG_DEDI_PRESENCE;
                  auto& tdd = fresh(r.tddUlDlCfgDed);
                  tdd.numSlotsAddMod = 2;
                  fresh(tdd.slotCfgDedicated[0]).presence = RRC_SLOTCFG_SYM_ALLDL_PRESENCE;
                  auto& slot = fresh(tdd.slotCfgDedicated[1]);
                  slot.slotIdx = 1;
                  slot.presence = RRC_SLOTCFG_SYM_EXPLICIT_PRESENCE;
                  slot.explicit_t.bitMask = RRC_SLOTCFG_SYM_EXPLICIT_DL_PRESENCE;
                  slot.explicit_t.nrofDownlinkSymbols = 13;
                  tdd.numSlotsRelease = 1;
                  tdd.slotIdx[0] = 2;
              })
        .sent(dedicated, R"({"tdd-UL-DL-ConfigurationDedicated":{},"tag-Id":0})",
              [](auto& r)
              {
                  r.bitMask = RRC_SERVING_CELL_TDD_ULDL_CFG_DEDI_PRESENCE;
                  auto& tdd = fresh(r.tddUlDlCfgDed);
                  tdd.numSlotsAddMod = 321;
                  tdd.numSlotsRelease = 65535;
              });
}

} // namespace

void servingCellRows(Table& table)
{
    specialCellRows(table);
    commonRows(table);
    randomAccessRows(table);
    secondaryCellRows(table);
    dedicatedRows(table);
}

} // namespace behaviour
