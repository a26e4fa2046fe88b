// Rows of what is not a serving cell's.
#include "places.h"
#include "support/Json.h"

namespace behaviour
{

namespace
{

const auto bearer = within(cellGroup, R"({"cellGroupId":0,"rlc-BearerToAddModList":[@]})",
                           [](auto& group)
                           {
                               group.rlcBearerAddModNum = 1;
                               fresh(group.rlcBearerCfg[0]).lchId = 1;
                               return &group.rlcBearerCfg[0];
                           });

const auto rlc = within(bearer, R"({"logicalChannelIdentity":1,"rlc-Config":@})",
                        [](auto& config)
                        {
                            config.bitMask = RRC_RLCBEARERCFG_RLC_PRESENCE;
                            return &config.rlcCfg;
                        });

// ul-SpecificParameters
const auto logicalChannel =
    within(bearer, R"({"logicalChannelIdentity":1,"mac-LogicalChannelConfig":{"ul-SpecificParameters":@}})",
           [](auto& config)
           {
               config.bitMask = RRC_RLCBEARERCFG_LCH_PRESENCE;
               config.macLchCfg.bitMask = RRC_LCH_EXPLICIT_PRESENCE;
               config.macLchCfg.ulSpecificParaCfg.priority = 1;
               return &config.macLchCfg.ulSpecificParaCfg;
           });

std::string logicalChannelJson(const std::string& optional, bool mask = false, bool applied = false,
                               const std::string& addition = "")
{
    const auto truth = [](bool value)
    {
        return value ? "true" : "false";
    };
    return test::object({R"("priority":1,"prioritisedBitRate":"kBps0","bucketSizeDuration":"ms5")", optional,
                         std::string(R"("logicalChannelSR-Mask":)") + truth(mask) +
                             R"(,"logicalChannelSR-DelayTimerApplied":)" + truth(applied),
                         addition});
}

const auto mac = within(cellGroup, R"({"cellGroupId":0,"mac-CellGroupConfig":@})",
                        [](auto& group)
                        {
                            group.bitMask = RRC_CELLGROUPCFG_MAC_PRESENCE;
                            return &fresh(group.macCellGrpCfg);
                        });

const auto drx = within(mac, R"({"drx-Config":{"setup":@},"skipUplinkTxDynamic":false})",
                        [](auto& config)
                        {
                            config.bitMask = RRC_MAC_CELL_GRP_CFG_DRX_PRESENCE;
                            config.drxCfg.bitMask = RRC_DRX_CFG_ONDURATION_MILLION_PRESENCE;
                            config.drxCfg.drxLongCycleStartOffset.period = 1;
                            return &config.drxCfg;
                        });

std::string drxJson(const std::string& onDuration, const std::string& longCycle)
{
    return R"({"drx-onDurationTimer":)" + onDuration +
           R"(,"drx-InactivityTimer":"ms0","drx-HARQ-RTT-TimerDL":0,"drx-HARQ-RTT-TimerUL":0,)"
           R"("drx-RetransmissionTimerDL":"sl0","drx-RetransmissionTimerUL":"sl0","drx-LongCycleStartOffset":)" +
           longCycle + R"(,"drx-SlotOffset":0})";
}

const auto phr = within(mac, R"({"phr-Config":{"setup":@},"skipUplinkTxDynamic":false})",
                        [](auto& config)
                        {
                            config.bitMask = RRC_MAC_CELL_GRP_CFG_PHR_PRESENCE;
                            return &config.phrCfg;
                        });

std::string phrJson(const std::string& multiple, const std::string& dummy, const std::string& type2)
{
    return R"({"phr-PeriodicTimer":"sf10","phr-ProhibitTimer":"sf0","phr-Tx-PowerFactorChange":"dB1","multiplePHR":)" +
           multiple + R"(,"dummy":)" + dummy + R"(,"phr-Type2OtherCell":)" + type2 + R"(,"phr-ModeOtherCG":"real"})";
}

const auto physical = within(cellGroup, R"({"cellGroupId":0,"physicalCellGroupConfig":@})",
                             [](auto& group)
                             {
                                 group.bitMask = RRC_CELLGROUPCFG_PHY_PRESENCE;
                                 return &fresh(group.phyCellGrpCfg);
                             });

// So many combinations of 256 slots, 258 octets each.
template <unsigned combinations>
void fillSlotFormats(RrcSlotFormatCombPerCell_t& cell)
{
    cell.numSlotFormatComb = combinations;
    for (unsigned i = 0; i < combinations; ++i)
    {
        auto& combination = fresh(cell.SlotFormatComb[i]);
        combination.slotFormatCombId = static_cast<UINT16>(i);
        combination.numSlotFormat = 256;
    }
}

void groupRows(Table& table)
{
    const std::string slots = test::array(256, [](unsigned) { return "0"; });
    table.row("record-cell-group-config-size")
        .sent(slotFormats,
              R"({"servingCellId":0,"subcarrierSpacing":"kHz15","slotFormatCombinations":)" +
                  test::array(17,
                              [&slots](unsigned i) {
                                  return R"({"slotFormatCombinationId":)" + std::to_string(i) + R"(,"slotFormats":)" +
                                         slots + "}";
                              }) +
                  "}",
              fillSlotFormats<17>)
        .refused(slotFormats, ".slotFormatCombinations[31].slotFormats: the encoding does not fit into 8192 octets",
                 fillSlotFormats<33>);
    table.row("record-report-uplink-tx-direct")
        .sent(cellGroup, R"({"cellGroupId":0})", [](auto& r) { r.bitMask = RRC_CELLGROUPCFG_REPORT_PRESENCE; })
        .sent(cellGroup, R"({"cellGroupId":0})",
              [](auto& r)
              {
                  r.bitMask = RRC_CELLGROUPCFG_REPORT_PRESENCE;
                  r.reportUplinkTxDirect = 1;
              });
    table.row("record-setup-release")
        .sent(mac,
              R"({"phr-Config":{"setup":)" + phrJson("false", "false", "false") + R"(},"skipUplinkTxDynamic":false})",
              [](auto& r) { r.bitMask = RRC_MAC_CELL_GRP_CFG_PHR_PRESENCE; })
        .sent(physical, R"({"pdsch-HARQ-ACK-Codebook":"semiStatic","cs-RNTI":{"setup":0}})",
              [](auto& r) { r.bitMask = RRC_PHY_CGC_CS_RNTI_PRESENCE; });
    table.row("record-empty-element")
        .sent(spCell, "{}")
        .sent(sync, R"({"newUE-Identity":0,"t304":"ms50","rach-ConfigDedicated":{"uplink":{}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_RACH_CFG_DEDI_PRESENCE;
                  r.rachCfgBitMask = RRC_RACH_CFG_UPLINK_PRESENCE;
                  rrcInit(&r.choice.uplink);
              })
        .sent(uplink, "{}")
        .sent(dedicated, R"({"pdcch-ServingCellConfig":{"setup":{}},"tag-Id":0})",
              [](auto& r)
              {
                  r.bitMask = RRC_SERVING_CELL_PDCCH_SERVING_CELL_CFG_PRESENCE;
                  rrcInit(&r.pdcchServingCellCfg);
              })
        .sent(csiMeas, "{}");
    table.row("record-extension-additions")
        .sent(logicalChannel, logicalChannelJson("", false, false, R"("bitRateQueryProhibitTimer":"s0")"),
              [](auto& r) { r.bitMask = RRC_UL_SPECIFICPARA_BITRATE_QUERY_PROHIBIT_TIMER; })
        .sent(sync, R"({"newUE-Identity":0,"t304":"ms50","smtc":{"periodicityAndOffset":{"sf20":0},"duration":"sf1"}})",
              [](auto& r)
              {
                  r.bitMask = RRC_SSBMTC_PRESENCE;
                  r.smtc.period = 3;
              })
        .sent(spCell,
              R"({"rlf-TimersAndConstants":{"setup":{"t310":"ms0","n310":"n1","n311":"n1","t311-v1530":"ms5000"}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_SPCELLCFG_RLFTIMER_PRESENCE;
                  r.rlfTimerConstants.t311 = 2;
              })
        .sent(sync,
              R"({"newUE-Identity":0,"t304":"ms50","rach-ConfigDedicated":{"uplink":{"cfra":{"resources":{"ssb":)"
              R"({"ssb-ResourceList":[{"ssb":0,"ra-PreambleIndex":0}],"ra-ssb-OccasionMaskIndex":0}},)"
              R"("totalNumberOfRA-Preambles-v1530":63}}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_RACH_CFG_DEDI_PRESENCE;
                  r.rachCfgBitMask = RRC_RACH_CFG_UPLINK_PRESENCE;
                  auto& rach = fresh(r.choice.uplink);
                  rach.bitMask = RRC_RACH_CFG_DEDI_CFRA_PRESENCE;
                  auto& cfra = fresh(rach.cfra);
                  cfra.bitMask = RRC_SSB | RRC_CFRA_PREAMBLE_PRESENCE;
                  cfra.totalNumOfRaPreableV1530 = 63;
                  fresh(cfra.resources.ssb).numSsbResources = 1;
              })
        .sent(dedicated,
              R"({"pdsch-ServingCellConfig":{"setup":{"maxMIMO-Layers":8,"processingType2Enabled":true}},"tag-Id":0})",
              [](auto& r)
              {
                  r.bitMask = RRC_SERVING_CELL_PDSCH_SERVING_CELL_CFG_PRESENCE;
                  r.pdschServingCellCfg.bitMask =
                      RRC_PDSCH_SERVING_CELL_CFG_MAX_MIMO_LAYERS | RRC_PDSCH_SERVING_CELL_CFG_PROCESSING_TYPE2_ENABLED;
                  r.pdschServingCellCfg.maxMIMO_Layer = 8;
                  r.pdschServingCellCfg.Type2Enabled = 1;
              });
}

void bearerRows(Table& table)
{
    table.row("record-rlc-bearer-type")
        .refused(bearer, ".servedRadioBearer: tag 0 is not in 1..2",
                 [](auto& r)
                 {
                     r.bitMask = RRC_RLCBEARERCFG_RBTYPE_PRESENCE;
                     r.rbType = static_cast<RrcRbType_e>(2);
                     r.rbId = 1;
                 });
    table.row("record-rlc-config-choice")
        .sent(rlc, R"({"um-Uni-Directional-DL":{"dl-UM-RLC":{"sn-FieldLength":"size12","t-Reassembly":"ms45"}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_RLCCFG_AM_PRESENCE | RRC_RLCCFG_UM_UNI_DL_PRESENCE;
                  r.choice.amCfg.ulAmCfg.snFeildLen = RRC_AM_SIZE18;
                  r.choice.amCfg.ulAmCfg.tPollRetransmit = 9;
              })
        .refused(rlc, ": tag 0 is not in 1..4")
        .sent(rlc, R"({"um-Uni-Directional-UL":{"ul-UM-RLC":{"sn-FieldLength":"size6"}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_RLCCFG_UM_UNI_UL_PRESENCE;
                  r.choice.umUniUlCfg.snFeildLen = RRC_UM_SIZE6;
              })
        .asMeant();
    table.row("record-rlc-sn-length")
        .sent(
            rlc,
            R"({"am":{"ul-AM-RLC":{"t-PollRetransmit":"ms5","pollPDU":"p4","pollByte":"kB1","maxRetxThreshold":"t1"},)"
            R"("dl-AM-RLC":{"t-Reassembly":"ms0","t-StatusProhibit":"ms0"}}})",
            [](auto& r)
            {
                r.bitMask = RRC_RLCCFG_AM_PRESENCE;
                r.choice.amCfg.ulAmCfg.snFeildLen = static_cast<RrcRlcSnFeildLenAm_e>(2);
                r.choice.amCfg.dlAmCfg.snFeildLen = static_cast<RrcRlcSnFeildLenAm_e>(256);
            })
        .sent(rlc, R"({"um-Bi-Directional":{"ul-UM-RLC":{},"dl-UM-RLC":{"t-Reassembly":"ms0"}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_RLCCFG_UM_BI_PRESENCE;
                  r.choice.umBiCfg.dlUmCfg.snFeildLen = static_cast<RrcRlcSnFeildLenUm_e>(2);
                  r.choice.umBiCfg.ulUmCfg.snFeildLen = static_cast<RrcRlcSnFeildLenUm_e>(2);
              })
        .asMeant();
    table.row("record-logical-channel-parameters")
        .sent(bearer, R"({"logicalChannelIdentity":1,"mac-LogicalChannelConfig":{}})",
              [](auto& r)
              {
                  r.bitMask = RRC_RLCBEARERCFG_LCH_PRESENCE;
                  r.macLchCfg.ulSpecificParaCfg.priority = 8;
              });
    table.row("record-logical-channel-list-counts")
        .refused(logicalChannel, ".allowedServingCells: 0 elements, not 1..31",
                 [](auto& r) { r.bitMask = RRC_UL_SPECIFICPARA_SERVING_CELL_CFG_PRESENCE; })
        .refused(logicalChannel, ".allowedSCS-List: 0 elements, not 1..5",
                 [](auto& r) { r.bitMask = RRC_UL_SPECIFICPARA_SCS_CFG_PRESENCE; })
        .sent(logicalChannel, logicalChannelJson(""), [](auto& r) { r.allowedCellNum = r.allowedSCSNum = 1; });
    table.row("record-rlc-bearer-one-value")
        .sent(bearer, R"({"logicalChannelIdentity":1,"reestablishRLC":"true"})",
              [](auto& r) { r.bitMask = RRC_RLCBEARERCFG_REESTABRLC_PRESENCE; })
        .asMeant()
        .oneValue(bearer, RRC_RLCBEARERCFG_REESTABRLC_PRESENCE, &RrcRlcBearerCfg_t::reestablRlc, "reestablishRLC")
        .sent(logicalChannel, logicalChannelJson(R"("configuredGrantType1Allowed":"true")"),
              [](auto& r) { r.bitMask = RRC_UL_SPECIFICPARA_GRANT_TYPE1_CFG_PRESENCE; })
        .asMeant()
        .refused(logicalChannel, ".configuredGrantType1Allowed: 256 is not in 0..0",
                 [](auto& r)
                 {
                     r.bitMask = RRC_UL_SPECIFICPARA_GRANT_TYPE1_CFG_PRESENCE;
                     r.configuredGrantType1Allowed = 256;
                 });
    table.row("record-logical-channel-booleans")
        .sent(logicalChannel, logicalChannelJson("", false, true),
              [](auto& r)
              {
                  r.logicalChannelSrMask = 256;
                  r.logcalChannelSrDealyTimerApplied = 2;
              })
        .sent(logicalChannel, logicalChannelJson("", true, false),
              [](auto& r)
              {
                  r.logicalChannelSrMask = 257;
                  r.logcalChannelSrDealyTimerApplied = 256;
              });
}

void macRows(Table& table)
{
    table.row("record-mac-members-not-sent")
        .sent(mac, R"({"skipUplinkTxDynamic":false})",
              [](auto& r)
              {
                  r.bitMask = RRC_MAC_CELL_GRP_CFG_CSI_PRESENCE | RRC_MAC_CELL_GRP_CFG_TIMER_PRESENCE;
                  r.csiMaskV1530 = 1;
                  r.inactivityTimer = 255;
              });
    table.row("record-drx-on-duration")
        .sent(drx, drxJson(R"({"subMilliSeconds":31})", R"({"ms10":0})"),
              [](auto& r)
              {
                  r.bitMask = 0;
                  r.drxOnDurationTimer.subMilliSeconds = 31;
              })
        .asMeant()
        .refused(drx, ".drx-onDurationTimer.subMilliSeconds: 0 is not in 1..31", [](auto& r) { r.bitMask = 0; });
    table.row("record-drx-long-cycle")
        .refused(drx, ".drx-LongCycleStartOffset: tag 0 is not in 1..20",
                 [](auto& r) { r.drxLongCycleStartOffset.period = 0; })
        .printing("No DRX_Config__drx_LongCycleStartOffset_PR\n")
        .refused(drx, ".drx-LongCycleStartOffset: tag 21 is not in 1..20",
                 [](auto& r) { r.drxLongCycleStartOffset.period = 21; })
        .printing("No DRX_Config__drx_LongCycleStartOffset_PR\n");
    table.row("record-drx-start-offset")
        .sent(drx, drxJson(R"({"milliSeconds":"ms1"})", R"({"ms10":5})"),
              [](auto& r) { r.drxLongCycleStartOffset.offset = 261; })
        .sent(drx, drxJson(R"({"milliSeconds":"ms1"})", R"({"ms256":44})"),
              [](auto& r)
              {
                  r.drxLongCycleStartOffset.period = 11;
                  r.drxLongCycleStartOffset.offset = 300;
              });
    table.row("record-mac-booleans")
        .sent(mac, R"({"skipUplinkTxDynamic":false})", [](auto& r) { r.skipUpTxDynamic = 256; })
        .sent(phr, phrJson("false", "false", "false"), [](auto& r) { r.multiplePHR = 256; })
        .sent(phr, phrJson("true", "false", "false"), [](auto& r) { r.multiplePHR = 1; })
        .asMeant()
        .sent(phr, phrJson("false", "false", "false"), [](auto& r) { r.phrType2OtherCell = 0x100; })
        .sent(phr, phrJson("false", "false", "true"), [](auto& r) { r.phrType2OtherCell = 0x102; })
        .asMeant();
    table.row("record-phr-dummy")
        .sent(phr, phrJson("false", "true", "false"), [](auto& r) { r.dummy = 1; })
        .sent(phr, phrJson("false", "false", "false"), [](auto& r) { r.dummy = 256; });
}

void physicalRows(Table& table)
{
    table.row("record-phy-mcs-c-rnti")
        .sent(physical, R"({"pdsch-HARQ-ACK-Codebook":"semiStatic"})",
              [](auto& r)
              {
                  r.bitMask = RRC_PHY_CGC_MCS_CRNTI_PRESENCE;
                  r.mcsCRnti = 1;
              });
    table.row("record-phy-p-ue-fr1")
        .sent(physical, R"({"pdsch-HARQ-ACK-Codebook":"semiStatic"})",
              [](auto& r)
              {
                  r.bitMask = RRC_PHY_CGC_UE_PMAX_PRESENCE;
                  r.pUeFR1Pmax = 99;
              });
    table.row("record-phy-no-field")
        .sent(physical,
              R"({"harq-ACK-SpatialBundlingPUCCH":"true","harq-ACK-SpatialBundlingPUSCH":"true","p-NR-FR1":0,)"
              R"("pdsch-HARQ-ACK-Codebook":"semiStatic","tpc-SRS-RNTI":0,"tpc-PUCCH-RNTI":0,"tpc-PUSCH-RNTI":0,)"
              R"("sp-CSI-RNTI":0,"cs-RNTI":{"setup":0}})",
              [](auto& r) { r.bitMask = 0xFFFF; });
    table.row("record-phy-one-value")
        .sent(physical,
              R"({"harq-ACK-SpatialBundlingPUCCH":"true","harq-ACK-SpatialBundlingPUSCH":"true",)"
              R"("pdsch-HARQ-ACK-Codebook":"semiStatic"})",
              [](auto& r) { r.bitMask = RRC_PHY_CGC_HARQ_PUCCH_PRESENCE | RRC_PHY_CGC_HARQ_PUSCH_PRESENCE; })
        .asMeant()
        .oneValue(physical, RRC_PHY_CGC_HARQ_PUCCH_PRESENCE, &RrcPhyCellGrpCfg_t::harqAckBundlingPucch,
                  "harq-ACK-SpatialBundlingPUCCH")
        .oneValue(physical, RRC_PHY_CGC_HARQ_PUSCH_PRESENCE, &RrcPhyCellGrpCfg_t::harqAckBundlingPusch,
                  "harq-ACK-SpatialBundlingPUSCH");
    table.row("record-phy-p-nr-fr1")
        .sent(physical, R"({"p-NR-FR1":-30,"pdsch-HARQ-ACK-Codebook":"semiStatic"})",
              [](auto& r)
              {
                  r.bitMask = RRC_PHY_CGC_NR_PMAX_PRESENCE;
                  r.pNrFR1Pmax = 226;
              });
}

} // namespace

void cellGroupRows(Table& table)
{
    groupRows(table);
    bearerRows(table);
    macRows(table);
    physicalRows(table);
}

} // namespace behaviour
