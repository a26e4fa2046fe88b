// Rows of CSI measurement.
#include <algorithm>
#include <iterator>

#include "byteOrder.h"
#include "places.h"
#include "support/Json.h"

namespace behaviour
{

namespace
{

const auto resource = within(csiMeas, R"({"nzp-CSI-RS-ResourceToAddModList":[@]})",
                             [](auto& config)
                             {
                                 config.numNzpCsiRsResourceAddMod = 1;
                                 map(fresh(config.NzpCsiRsResourceAddMod[0]).resourceMapping);
                                 return &config.NzpCsiRsResourceAddMod[0];
                             });

std::string resourceJson(const std::string& mapping = mappingJson(), const std::string& periodicity = "", int power = 0)
{
    return test::object({R"("nzp-CSI-RS-ResourceId":0,"resourceMapping":)" + mapping + R"(,"powerControlOffset":)" +
                             std::to_string(power) + R"(,"scramblingID":0)",
                         periodicity.empty() ? "" : R"("periodicityAndOffset":)" + periodicity});
}

const auto resourceSet = within(csiMeas, R"({"nzp-CSI-RS-ResourceSetToAddModList":[@]})",
                                [](auto& config)
                                {
                                    config.numNzpCsiRsResourceSetAddMod = 1;
                                    auto& set = fresh(config.NzpCsiRsResourceSetAddMod[0]);
                                    set.numNzpCsiRsRes = 1;
                                    return &set;
                                });

const auto interference = within(csiMeas, R"({"csi-IM-ResourceToAddModList":[@]})",
                                 [](auto& config)
                                 {
                                     config.numCsiImResourceAddMod = 1;
                                     return &fresh(config.csiImResourceAddMod[0]);
                                 });

const auto ssbSet = within(csiMeas, R"({"csi-SSB-ResourceSetToAddModList":[@]})",
                           [](auto& config)
                           {
                               config.numCsiSsbResourceSetAddMod = 1;
                               return &fresh(config.csiSsbResourceSet[0]);
                           });

const auto resourceConfig = within(csiMeas, R"({"csi-ResourceConfigToAddModList":[@]})",
                                   [](auto& config)
                                   {
                                       config.numCsiResourceCfgAddMod = 1;
                                       auto& made = fresh(config.csiResourceCfg[0]);
                                       made.presence = RRC_CSI_RESOURCE_CFG_NZP_CSI_RS_SSB_PRESENCE;
                                       return &made;
                                   });

std::string resourceConfigJson(const std::string& sets)
{
    return R"({"csi-ResourceConfigId":0,"csi-RS-ResourceSetList":)" + sets +
           R"(,"bwp-Id":0,"resourceType":"aperiodic"})";
}

const auto report = within(csiMeas, R"({"csi-ReportConfigToAddModList":[@]})",
                           [](auto& config)
                           {
                               config.numCsiReportCfgAddMod = 1;
                               auto& made = fresh(config.csiReportCfg[0]);
                               made.bitMask = RRC_CSI_REPORT_CFG_GROUP_BASED_BEAM_REPORT_PRESENCE;
                               made.groupBasedBeamReport.Presence = RRC_BASED_BEAM_REPORT_ENABLED;
                               made.cfgTypeBitMask = RRC_CSI_REPORT_CFG_TYPE_APERIODIC_PRESENCE;
                               made.ReportCfgType_n.aperiodic.reportSlotOffsetNum = 1;
                               made.rptQuBitMask = RRC_CSI_REPORT_QUANTITY_NONE_PRESENCE;
                               return &made;
                           });

// A report configuration; optional members are given with their names.
struct Report
{
    std::string type = R"({"aperiodic":{"reportSlotOffsetList":[0]}})";
    std::string quantity = R"({"none":null})";
    std::string frequency = "";
    std::string codebook = "";
    std::string dummy = "";
    std::string group = R"({"enabled":null})";
    std::string subband = "value1";
    std::string ports = "";
};

std::string reportJson(const Report& parts)
{
    return test::object(
        {R"("reportConfigId":0,"resourcesForChannelMeasurement":0,"reportConfigType":)" + parts.type +
             R"(,"reportQuantity":)" + parts.quantity,
         parts.frequency,
         R"("timeRestrictionForChannelMeasurements":"configured","timeRestrictionForInterferenceMeasurements":"configured")",
         parts.codebook, parts.dummy,
         R"("groupBasedBeamReporting":)" + parts.group + R"(,"subbandSize":")" + parts.subband + '"', parts.ports});
}

const auto periodic = within(report, reportJson({.type = R"({"periodic":@})"}),
                             [](auto& config)
                             {
                                 config.cfgTypeBitMask = RRC_CSI_REPORT_CFG_TYPE_PERIODIC_PRESENCE;
                                 auto& type = config.ReportCfgType_n.periodic;
                                 type = {};
                                 type.reportSlotCfg.periodicity = 1;
                                 type.pucchCsiResourceNum = 1;
                                 return &type;
                             });

std::string periodicJson(const std::string& slots)
{
    return R"({"reportSlotConfig":)" + slots +
           R"(,"pucch-CSI-ResourceList":[{"uplinkBandwidthPartId":0,"pucch-Resource":0}]})";
}

const auto band = within(report, reportJson({.frequency = R"("reportFreqConfiguration":{"csi-ReportingBand":@})"}),
                         [](auto& config)
                         {
                             config.bitMask |= RRC_CSI_REPORT_CFG_REPORT_FREQ_CFG_PRESENCE;
                             config.reportFreqCfg.bitMask = RRC_REPORT_FREQ_CFG_CSI_REPORTINT_BAND_PRESENCE;
                             return &config.reportFreqCfg;
                         });

const auto codebook = within(report, reportJson({.codebook = R"("codebookConfig":{"codebookType":@})"}),
                             [](auto& config)
                             {
                                 config.bitMask |= RRC_CSI_REPORT_CFG_CODE_BOOK_CFG_PRESENCE;
                                 return &fresh(config.codeBookCfg);
                             });

const auto type1 = within(codebook, R"({"type1":@})",
                          [](auto& config)
                          {
                              config.Presence = RRC_CODE_BOOK_TYPE1_PRESENCE;
                              config.CodeBookCfgType_u.codeBookType1.CodebookMode = 1;
                              return &config.CodeBookCfgType_u.codeBookType1;
                          });

const auto singlePanel = within(type1, R"({"subType":{"typeI-SinglePanel":@},"codebookMode":1})",
                                [](auto& type)
                                {
                                    type.codebookType1_Sub.Presence = RRC_CODE_BOOK_TYPE_SINGLE_PANEL;
                                    auto& panel = type.codebookType1_Sub.CodeBookTypePanel_u.singlePanel;
                                    panel.SinglePanel_nrOfAntennaPorts.Presence = RRC_NROF_ANTENNA_PORTS_TWO_PRESENCE;
                                    return &panel;
                                });

const char* const twoPorts = R"({"nrOfAntennaPorts":{"two":{"twoTX-CodebookSubsetRestriction":"000000"}},)"
                             R"("typeI-SinglePanel-ri-Restriction":"00000000"})";

const auto moreThanTwo =
    within(singlePanel, R"({"nrOfAntennaPorts":{"moreThanTwo":@},"typeI-SinglePanel-ri-Restriction":"00000000"})",
           [](auto& panel)
           {
               panel.SinglePanel_nrOfAntennaPorts.Presence = RRC_NROF_ANTENNA_PORTS_MORE_THANTWO_PRESENCE;
               auto& ports = panel.SinglePanel_nrOfAntennaPorts.NrOfAntennaPorts_n.moreThanTwo;
               ports.bitMask = RRC_MORE_THAN_TWO_N1_N2_PRESENCE;
               return &ports;
           });

const auto multiPanel = within(type1, R"({"subType":{"typeI-MultiPanel":@},"codebookMode":1})",
                               [](auto& type)
                               {
                                   type.codebookType1_Sub.Presence = RRC_CODE_BOOK_TYPE_MULTI_PANEL;
                                   auto& panel = type.codebookType1_Sub.CodeBookTypePanel_u.multiPanel;
                                   panel.bitMask = RRC_MULTI_PANEL_RESTRICT | RRC_RI_RESTRICTION;
                                   panel.MultiPanel_Presence = RRC_TWO_TWO_ONE_TYPEI_MULTIPANEL_RESTRICT_PRESENCE;
                                   panel.ri_Restriction = 1;
                                   return &panel;
                               });

const auto type2 = within(codebook, R"({"type2":@})",
                          [](auto& config)
                          {
                              config.Presence = RRC_CODE_BOOK_TYPE2_PRESENCE;
                              auto& type = config.CodeBookCfgType_u.codeBookType2;
                              type.bitMask = RRC_CODEBOOK_TYPE2_SUB;
                              type.codebookType2_Sub.Presence = RRC_TYPEII_PORTSELECTION;
                              return &type;
                          });

std::string
type2Json(const std::string& phase = "n4", const std::string& amplitude = "false", const std::string& beams = "two",
          const std::string& sub = R"({"typeII-PortSelection":{"typeII-PortSelectionRI-Restriction":"00"}})")
{
    return R"({"subType":)" + sub + R"(,"phaseAlphabetSize":")" + phase + R"(","subbandAmplitude":)" + amplitude +
           R"(,"numberOfBeams":")" + beams + R"("})";
}

const auto typeII = within(type2, type2Json("n4", "false", "two", R"({"typeII":@})"),
                           [](auto& type)
                           {
                               type.codebookType2_Sub.Presence = RRC_SUB_TYPE_TYPEII;
                               auto& sub = type.codebookType2_Sub.Type2_subType_u.subType_typeII;
                               sub.Restriction_Presence = RRC_TYPEII_RI_RESTRICTION_PRESENCE;
                               return &sub;
                           });

std::string typeIIJson(const std::string& restriction)
{
    return R"({"n1-n2-codebookSubsetRestriction":)" + restriction + R"(,"typeII-RI-Restriction":"00"})";
}

const auto ports = within(report, reportJson({.ports = R"("non-PMI-PortIndication":[@])"}),
                          [](auto& config)
                          {
                              config.bitMask |= RRC_CSI_REPORT_CFG_PORT_INDEX_FOR_8RANKS_PRESENCE;
                              fresh(config.RRCPortIndexFor8Ranks).numPortIndexFor8Ranks = 1;
                              return &fresh(config.RRCPortIndexFor8Ranks.portIndexFor8Ranks[0]);
                          });

const auto triggerStates =
    within(csiMeas, R"({"aperiodicTriggerStateList":{"setup":[{"associatedReportConfigInfoList":[@]}]}})",
           [](auto& config)
           {
               config.bitMask = RRC_CSI_MEAS_CFG_APERIODIC_TRIGGER_STATE_LIST_PRESENCE;
               fresh(config.aperiodicTriggerStateList).numState = 1;
               auto& state = fresh(config.aperiodicTriggerStateList.state[0]);
               state.numCfgInfo = 1;
               state.info[0].prsence = RRC_CSI_ASSOCIATED_REPORT_CFG_INFO_NZP_CSI_RS_PRESENCE;
               state.info[0].resourceForChannel.nzpCsiRs.resourceSet = 1;
               return &state.info[0];
           });

void resourceRows(Table& table)
{
    table.row("record-csi-resource-count-names")
        .sent(resourceSet, R"({"nzp-CSI-ResourceSetId":0,"nzp-CSI-RS-Resources":[191,7]})",
              [](auto& r)
              {
                  r.numNzpCsiRsRes = 2;
                  r.numNzpCsiRsResources[0] = 191;
                  r.numNzpCsiRsResources[1] = 7;
              })
        .sent(ssbSet, R"({"csi-SSB-ResourceSetId":0,"csi-SSB-ResourceList":[63,0]})",
              [](auto& r)
              {
                  r.numSsbResourceSet = 2;
                  r.csiSsbIdx[0] = 63;
              });
    table.row("record-nzp-csi-rs-set-count")
        .sent(resourceSet, R"({"nzp-CSI-ResourceSetId":0,"nzp-CSI-RS-Resources":[5]})",
              [](auto& r)
              {
                  r.numNzpCsiRsRes = 257;
                  r.numNzpCsiRsResources[0] = 5;
              })
        .refused(resourceSet, ".nzp-CSI-RS-Resources: 0 elements, not 1..64", [](auto& r) { r.numNzpCsiRsRes = 256; })
        .refused(resourceSet, ".nzp-CSI-RS-Resources: 65 elements, not 1..64", [](auto& r) { r.numNzpCsiRsRes = 65; });
    table.row("record-csi-ssb-set-count")
        .sent(resourceConfig, resourceConfigJson(R"({"nzp-CSI-RS-SSB":{"csi-SSB-ResourceSetList":[63]}})"),
              [](auto& r)
              {
                  auto& sets = r.csiRsResourceSetList.nzpCsiRsResourceSetList;
                  sets.numCsiSsbResourceSet = 2;
                  sets.csiSsbResourceSetId[0] = 63;
              });
    table.row("record-csi-resource-config-empty")
        .sent(resourceConfig, resourceConfigJson(R"({"nzp-CSI-RS-SSB":{}})"))
        .sent(resourceConfig, resourceConfigJson(R"({"nzp-CSI-RS-SSB":{"nzp-CSI-RS-ResourceSetList":[63]}})"),
              [](auto& r)
              {
                  auto& sets = r.csiRsResourceSetList.nzpCsiRsResourceSetList;
                  sets.numNzpCsiRsResourceSet = 1;
                  sets.nzpCsiRsResourceSetId[0] = 63;
              })
        .asMeant();
    table.row("record-csi-resource-choices")
        .sent(resourceConfig, resourceConfigJson(R"({"csi-IM-ResourceSetList":[63]})"),
              [](auto& r)
              {
                  r.presence |= RRC_CSI_RESOURCE_CFG_CSI_IM_RESOUECE_SET_LIST_PRESENCE;
                  auto& sets = r.csiRsResourceSetList.nzpCsiRsResourceSetList;
                  sets.numNzpCsiRsResourceSet = 1;
                  sets.nzpCsiRsResourceSetId[0] = 63;
              })
        .refused(resourceConfig, ".csi-RS-ResourceSetList: tag 0 is not in 1..2", [](auto& r) { r.presence = 0; })
        .sent(interference,
              R"({"csi-IM-ResourceId":0,"csi-IM-ResourceElementPattern":{"pattern1":{"subcarrierLocation-p1":"s8",)"
              R"("symbolLocation-p1":12}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN_PRESENCE;
                  r.presence =
                      RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN0_PRESENCE | RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN1_PRESENCE;
                  r.csiImResourceElementPattern.pattern0 = {2, 12};
              })
        .refused(interference, ".csi-IM-ResourceElementPattern: tag 0 is not in 1..2",
                 [](auto& r) { r.bitMask = RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN_PRESENCE; });
    table.row("record-csi-rs-as-in-pdsch")
        .sent(resource, resourceJson(mappingJson(R"({"row2":"000000000000"})"), R"({"slots32":31})"),
              [](auto& r)
              {
                  r.resourceMapping.presenceFreqDomain = 3;
                  r.resourceMapping.presenceDensity = 0x0E;
                  r.bitMask = RRC_NZP_CSI_RS_RESOURCE_PERIODIC_OFFSET_PRESENT;
                  r.periodicityAndOffset = {8, 31};
              })
        .sent(interference, R"({"csi-IM-ResourceId":0,"periodicityAndOffset":{"slots4":1}})",
              [](auto& r)
              {
                  r.bitMask = RRC_CSI_IM_RESOURCE_PERIODIC_OFFSET_PRESENCE;
                  r.periodicityAndOffset = {1, 257};
              })
        .refused(resource, ".periodicityAndOffset: tag 0 is not in 1..13",
                 [](auto& r) { r.bitMask = RRC_NZP_CSI_RS_RESOURCE_PERIODIC_OFFSET_PRESENT; })
        .printing("Have no CSI_ResourcePeriodicityAndOffset type\n");
    table.row("record-nzp-csi-rs-power-signed")
        .sent(resource, resourceJson(mappingJson(), "", -8), [](auto& r) { r.powerControlOffset = 0xF8; });
    table.row("record-csi-resource-list-counts")
        .refused(ssbSet, ".csi-SSB-ResourceList: 0 elements, not 1..64")
        .refused(csiMeas, ".csi-IM-ResourceSetToAddModList[0].csi-IM-Resources: 0 elements, not 1..8",
                 [](auto& r)
                 {
                     r.numCsiImResourceSetAddMod = 1;
                     rrcInit(&r.csiImResourceSetAddMod[0]);
                 })
        .refused(resourceConfig, ".csi-RS-ResourceSetList.csi-IM-ResourceSetList: 0 elements, not 1..16",
                 [](auto& r) { r.presence = RRC_CSI_RESOURCE_CFG_CSI_IM_RESOUECE_SET_LIST_PRESENCE; });
    table.row("record-trs-info-one-value")
        .sent(resourceSet, R"({"nzp-CSI-ResourceSetId":0,"nzp-CSI-RS-Resources":[0],"trs-Info":"true"})",
              [](auto& r) { r.bitMask = RRC_NZP_CSI_RS_RESOUECE_SET_TRS_INFO_PRESENCE; })
        .asMeant()
        .oneValue(resourceSet, RRC_NZP_CSI_RS_RESOUECE_SET_TRS_INFO_PRESENCE, &RrcNzpCsiRsResourceSet_t::trsInfo,
                  "trs-Info");
}

void reportRows(Table& table)
{
    table.row("record-csi-report-group-based")
        .refused(report, ".groupBasedBeamReporting: tag 0 is not in 1..2", [](auto& r) { r.bitMask = 0; });
    table.row("record-csi-report-dummy")
        .sent(report, reportJson({.dummy = R"("dummy":"n2")"}),
              [](auto& r)
              {
                  r.bitMask |= RRC_CSI_REPORT_CFG_NROF_CQIS_PER_REP_PRESENCE;
                  r.nrofCQIsPerRep = 1;
              })
        .refused(report, ".dummy: 2 is not in 0..1",
                 [](auto& r)
                 {
                     r.bitMask |= RRC_CSI_REPORT_CFG_NROF_CQIS_PER_REP_PRESENCE;
                     r.nrofCQIsPerRep = 2;
                 });
    table.row("record-csi-report-not-read")
        .sent(report, reportJson({}),
              [](auto& r)
              {
                  r.CqisPerReportNum = 255;
                  r.groupBasedBeamReport.BeamReporting_n.enabled = 0xFFFF;
              })
        .sent(ports, R"({"portIndex1":null})",
              [](auto& r)
              {
                  r.Presence = RRC_PORT_INDEX1_PRESENCE;
                  r.PortIndexFor8Ranks_n.portIndex1 = 0xFFFF;
              })
        .asMeant();
    table.row("record-csi-report-subband-size")
        .sent(report, reportJson({.subband = "value2"}), [](auto& r) { r.subBandSize = 1; })
        .asMeant()
        .refused(report, ".subbandSize: 256 is not in 0..1", [](auto& r) { r.subBandSize = 256; });
    table.row("record-csi-report-semi-persistent-v1530")
        .sent(report, reportJson({}),
              [](auto& r)
              {
                  r.bitMask |= RRC_CSI_REPORT_CFG_SEMI_PERSISTENT_ON_PUSCH_V1530_PRESENCE;
                  r.semimPersistentOnPuschv1530_t.ReportSlotConfig_v1530 = 255;
              });
    table.row("record-csi-report-choices")
        .sent(report, reportJson({.type = R"({"aperiodic":{"reportSlotOffsetList":[32]}})"}),
              [](auto& r)
              {
                  r.cfgTypeBitMask |= RRC_CSI_REPORT_CFG_TYPE_PERIODIC_PRESENCE;
                  r.ReportCfgType_n.aperiodic.reportSlotOffset[0] = 32;
              })
        .refused(report, ".reportConfigType: tag 0 is not in 1..4", [](auto& r) { r.cfgTypeBitMask = 0; })
        .sent(report, reportJson({.quantity = R"({"cri-RI-CQI":null})"}), [](auto& r) { r.rptQuBitMask = 0x18; })
        .sent(report, reportJson({.quantity = R"({"cri-RI-i1-CQI":{}})"}), [](auto& r) { r.rptQuBitMask = 0x09; })
        .refused(report, ".reportQuantity: tag 0 is not in 1..8", [](auto& r) { r.rptQuBitMask = 0; })
        .sent(band, R"({"subbands19-v1530":)" + test::bits(0x40005, 19) + "}",
              [](auto& r)
              {
                  r.csiRptBandBitMask = RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS3 |
                                        RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS19_V1530;
                  r.CsiReportingBand_n.subbands19_v1530 = 0x40005;
              })
        .refused(band, ": tag 0 is not in 1..17")
        .sent(report, reportJson({.group = R"({"disabled":{}})"}),
              [](auto& r)
              { r.groupBasedBeamReport.Presence = RRC_BASED_BEAM_REPORT_ENABLED | RRC_BASED_BEAM_REPORT_DISABLED; })
        .refused(report, ".groupBasedBeamReporting: tag 0 is not in 1..2",
                 [](auto& r) { r.groupBasedBeamReport.Presence = 0; })
        .sent(ports, R"({"portIndex2":{"rank1-2":1}})",
              [](auto& r)
              {
                  r.Presence = RRC_PORT_INDEX8_PRESENCE | RRC_PORT_INDEX2_PRESENCE;
                  r.PortIndexFor8Ranks_n.portIndex8.bitMask = 1;
                  r.PortIndexFor8Ranks_n.portIndex8.rank1_8 = 1;
              })
        .refused(ports, ": tag 0 is not in 1..4");
    table.row("record-csi-report-period")
        .refused(periodic, ".reportSlotConfig: tag 0 is not in 1..10", [](auto& r) { r.reportSlotCfg.periodicity = 0; })
        .printing("No T_CSI_ReportPeriodicityAndOffset\n")
        .refused(periodic, ".reportSlotConfig: tag 11 is not in 1..10",
                 [](auto& r) { r.reportSlotCfg.periodicity = 11; })
        .printing("No T_CSI_ReportPeriodicityAndOffset\n");
    table.row("record-csi-report-offset")
        .sent(periodic, periodicJson(R"({"slots320":255})"),
              [](auto& r) {
                  r.reportSlotCfg = {10, 255};
              });
    table.row("record-csi-report-list-counts")
        .refused(periodic, ".pucch-CSI-ResourceList: 0 elements, not 1..4", [](auto& r) { r.pucchCsiResourceNum = 0; })
        .refused(report, ".reportConfigType.aperiodic.reportSlotOffsetList: 0 elements, not 1..16",
                 [](auto& r) { r.ReportCfgType_n.aperiodic.reportSlotOffsetNum = 0; })
        .refused(report, ".non-PMI-PortIndication: 0 elements, not 1..128",
                 [](auto& r)
                 {
                     r.bitMask |= RRC_CSI_REPORT_CFG_PORT_INDEX_FOR_8RANKS_PRESENCE;
                     rrcInit(&r.RRCPortIndexFor8Ranks);
                 });
    table.row("record-port-index-list-counts")
        .sent(ports, R"({"portIndex8":{"rank2-8":[7,7],"rank8-8":[7,0,0,0,0,0,0,0]}})",
              [](auto& r)
              {
                  r.Presence = RRC_PORT_INDEX8_PRESENCE;
                  auto& index = r.PortIndexFor8Ranks_n.portIndex8;
                  index.numRank2_8 = 255;
                  std::fill(std::begin(index.PortIndex2_8), std::end(index.PortIndex2_8), UINT8{7});
                  index.numRank8_8 = 1;
                  std::fill(std::begin(index.PortIndex8_8), std::end(index.PortIndex8_8), UINT8{7});
              })
        .sent(ports, R"({"portIndex2":{"rank2-2":[1,0]}})",
              [](auto& r)
              {
                  r.Presence = RRC_PORT_INDEX2_PRESENCE;
                  r.PortIndexFor8Ranks_n.portIndex2.numRank2_2 = 1;
                  r.PortIndexFor8Ranks_n.portIndex2.PortIndex2_2[0] = 1;
                  r.PortIndexFor8Ranks_n.portIndex2.PortIndex2_2[1] = 1;
              });
    table.row("record-port-index4-entries")
        .sent(ports, R"({"portIndex4":{"rank3-4":[3,3,0],"rank4-4":[2,2,0,0]}})",
              [](auto& r)
              {
                  r.Presence = RRC_PORT_INDEX4_PRESENCE;
                  auto& index = r.PortIndexFor8Ranks_n.portIndex4;
                  index.numRank3_4 = 2;
                  index.numRank4_4 = 4;
                  std::fill(std::begin(index.PortIndex3_4), std::end(index.PortIndex3_4), UINT8{3});
                  std::fill(std::begin(index.PortIndex4_4), std::end(index.PortIndex4_4), UINT8{2});
              });
}

void codebookRows(Table& table)
{
    table.row("record-codebook-choices")
        .sent(type2, type2Json())
        .asMeant()
        .refused(codebook, ": tag 0 is not in 1..2")
        .refused(type1, ".subType: tag 0 is not in 1..2")
        .sent(singlePanel, twoPorts)
        .asMeant()
        .refused(singlePanel, ".nrOfAntennaPorts: tag 0 is not in 1..2",
                 [](auto& r) { r.SinglePanel_nrOfAntennaPorts.Presence = 0; })
        .sent(moreThanTwo, R"({"n1-n2":{"four-one-TypeI-SinglePanel-Restriction":"1000000000000001"}})",
              [](auto& r)
              {
                  r.N1_N2_Presence = RRC_TWO_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE |
                                     RRC_FOUR_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE;
                  r.MoreThanTwo_n1_n2_u.four_one = 0x8001;
              })
        .refused(moreThanTwo, ".n1-n2: tag 0 is not in 1..13")
        .sent(
            type2,
            type2Json("n4", "false", "two", R"({"typeII-PortSelection":{"typeII-PortSelectionRI-Restriction":"10"}})"),
            [](auto& r)
            {
                r.codebookType2_Sub.Presence = RRC_SUB_TYPE_TYPEII | RRC_TYPEII_PORTSELECTION;
                r.codebookType2_Sub.Type2_subType_u.typeII_PortSelection.typeII_PortSelectionRI_Restriction = 2;
            })
        .refused(type2, ".subType: tag 0 is not in 1..2", [](auto& r) { r.codebookType2_Sub.Presence = 0; })
        .sent(typeII, typeIIJson(R"({"four-one":)" + test::bits(0x80000001, 32) + "}"),
              [](auto& r)
              {
                  r.Restriction_Presence |=
                      RRC_SUB_SET_RESTRICT_TWO_ONE_PRESENCE | RRC_SUB_SET_RESTRICT_FOUR_ONE_PRESENCE;
                  r.SubsetRestriction_u.four_one = 0x80000001;
              })
        .refused(typeII, ".n1-n2-codebookSubsetRestriction: tag 0 is not in 1..13");
    table.row("record-codebook-multi-panel")
        .refused(multiPanel, ".ri-Restriction: a bit string of 8 bits, not 4")
        .refused(multiPanel, ".ri-Restriction: a bit string of 0 bits, not 4",
                 [](auto& r) { r.bitMask = RRC_MULTI_PANEL_RESTRICT; })
        .refused(multiPanel, ".ng-n1-n2: tag 0 is not in 1..8", [](auto& r) { r.bitMask = RRC_RI_RESTRICTION; })
        .sent(singlePanel, twoPorts)
        .asMeant();
    table.row("record-codebook-mandatory-bits")
        .refused(moreThanTwo, ".n1-n2: tag 0 is not in 1..13",
                 [](auto& r)
                 {
                     r.bitMask = 0;
                     r.N1_N2_Presence = RRC_TWO_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE;
                 })
        .refused(type2, ".subType: tag 0 is not in 1..2", [](auto& r) { r.bitMask = 0; })
        .refused(typeII, ".typeII-RI-Restriction: a bit string of 0 bits, not 2",
                 [](auto& r) { r.Restriction_Presence = RRC_SUB_SET_RESTRICT_TWO_ONE_PRESENCE; });
    table.row("record-codebook-type2-defaults")
        .sent(type2, type2Json(),
              [](auto& r)
              {
                  r.phaseAlphabetSize = 1;
                  r.subBandAmplitude = 1;
                  r.numberOfBeams = 2;
              })
        .sent(type2, type2Json("n8", "true", "four"),
              [](auto& r)
              {
                  r.bitMask |= RRC_PHASE_ALPHA_BET_SIZE | RRC_SUB_BAND_AMPLITUDE | RRC_NUM_BER_OFBEAMS;
                  r.phaseAlphabetSize = 1;
                  r.subBandAmplitude = 1;
                  r.numberOfBeams = 2;
              })
        .asMeant();
    table.row("record-codebook-type2-upper-bits")
        .sent(type2, type2Json(),
              [](auto& r)
              {
                  r.bitMask |= RRC_PHASE_ALPHA_BET_SIZE | RRC_SUB_BAND_AMPLITUDE | RRC_NUM_BER_OFBEAMS;
                  r.phaseAlphabetSize = 1ULL << 32;
                  r.subBandAmplitude = 256;
                  r.numberOfBeams = 1ULL << 32;
              })
        .sent(type2, type2Json("n8", "true", "four"),
              [](auto& r)
              {
                  r.bitMask |= RRC_PHASE_ALPHA_BET_SIZE | RRC_SUB_BAND_AMPLITUDE | RRC_NUM_BER_OFBEAMS;
                  r.phaseAlphabetSize = (1ULL << 32) + 1;
                  r.subBandAmplitude = 257;
                  r.numberOfBeams = (1ULL << 32) + 2;
              });
    table.row("record-codebook-octets-in-memory")
        .sent(moreThanTwo,
              R"({"n1-n2":{"two-two-TypeI-SinglePanel-Restriction":)" + test::bits(0xEFCDAB8967452301, 64) + "}}",
              [](auto& r)
              {
                  r.N1_N2_Presence = RRC_TWO_TWO_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE;
                  r.MoreThanTwo_n1_n2_u.two_two = rtx::lowFirst(UINT64{0x0123456789ABCDEF});
              })
        .sent(moreThanTwo,
              R"({"n1-n2":{"sixteen-one-TypeI-SinglePanel-Restriction":"1)" + std::string(63, '0') + "\"}}",
              [](auto& r)
              {
                  r.N1_N2_Presence = RRC_SIXTEEN_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE;
                  r.MoreThanTwo_n1_n2_u.sixteen_one = rtx::lowFirst(UINT64{0x80});
              });
    table.row("record-codebook-octet-arrays")
        .sent(moreThanTwo, R"({"n1-n2":{"three-two-TypeI-SinglePanel-Restriction":"1)" + std::string(94, '0') + "1\"}}",
              [](auto& r)
              {
                  r.N1_N2_Presence = RRC_THREE_TWO_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE;
                  r.MoreThanTwo_n1_n2_u.three_two[0] = 0x80;
                  r.MoreThanTwo_n1_n2_u.three_two[11] = 0x01;
              })
        .sent(typeII, typeIIJson(R"({"four-two":"1)" + std::string(73, '0') + R"(1"})"),
              [](auto& r)
              {
                  r.Restriction_Presence |= RRC_SUB_SET_RESTRICT_FOUR_TWO_PRESENCE;
                  r.SubsetRestriction_u.four_two[0] = 0x80;
                  r.SubsetRestriction_u.four_two[9] = 0x3F;
              })
        .sent(typeII, typeIIJson(R"({"sixteen-one":")" + std::string(127, '0') + R"(1"})"),
              [](auto& r)
              {
                  r.Restriction_Presence |= RRC_SUB_SET_RESTRICT_SIXTEEN_ONE_PRESENCE;
                  r.SubsetRestriction_u.sixteen_one[15] = 0x01;
              });
    table.row("record-codebook-upper-bits")
        .sent(moreThanTwo, R"({"n1-n2":{"six-one-TypeI-SinglePanel-Restriction":)" + test::bits(1, 24) + "}}",
              [](auto& r)
              {
                  r.N1_N2_Presence = RRC_SIX_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE;
                  r.MoreThanTwo_n1_n2_u.six_one = 0xFF000001;
              })
        .sent(moreThanTwo, R"({"n1-n2":{"twelve-one-TypeI-SinglePanel-Restriction":)" + test::bits(1, 48) + "}}",
              [](auto& r)
              {
                  r.N1_N2_Presence = RRC_TWELVE_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE;
                  r.MoreThanTwo_n1_n2_u.twelve_one = 0xFFFF000000000001;
              })
        .sent(typeII, typeIIJson(R"({"two-two":)" + test::bits(1, 43) + "}"),
              [](auto& r)
              {
                  r.Restriction_Presence |= RRC_SUB_SET_RESTRICT_TWO_TWO_PRESENCE;
                  r.SubsetRestriction_u.two_two = (1ULL << 43) + 1;
              })
        .sent(typeII, typeIIJson(R"({"three-two":)" + test::bits(1, 59) + "}"),
              [](auto& r)
              {
                  r.Restriction_Presence |= RRC_SUB_SET_RESTRICT_THREE_TWO_PRESENCE;
                  r.SubsetRestriction_u.three_two = (1ULL << 59) + 1;
              })
        .sent(typeII, typeIIJson(R"({"six-one":)" + test::bits(1, 48) + "}"),
              [](auto& r)
              {
                  r.Restriction_Presence |= RRC_SUB_SET_RESTRICT_SIX_ONE_PRESENCE;
                  r.SubsetRestriction_u.six_one = (1ULL << 48) + 1;
              });
}

void measurementRows(Table& table)
{
    table.row("record-trigger-list-counts")
        .refused(csiMeas, ".aperiodicTriggerStateList: tag 0 is not in 1..2",
                 [](auto& r)
                 {
                     r.bitMask = RRC_CSI_MEAS_CFG_APERIODIC_TRIGGER_STATE_LIST_PRESENCE;
                     rrcInit(&r.aperiodicTriggerStateList);
                 })
        .refused(csiMeas, ".semiPersistentOnPUSCH-TriggerStateList: tag 0 is not in 1..2",
                 [](auto& r)
                 {
                     r.bitMask = RRC_CSI_MEAS_CFG_SEMI_PEISISTENT_ON_PUSCH_PRESENCE;
                     rrcInit(&r.semiPersistentOnPuschTriggerStateList);
                 });
    table.row("record-trigger-report-count")
        .refused(csiMeas, ".aperiodicTriggerStateList.setup[0].associatedReportConfigInfoList: 0 elements, not 1..16",
                 [](auto& r)
                 {
                     r.bitMask = RRC_CSI_MEAS_CFG_APERIODIC_TRIGGER_STATE_LIST_PRESENCE;
                     fresh(r.aperiodicTriggerStateList).numState = 1;
                     rrcInit(&r.aperiodicTriggerStateList.state[0]);
                 });
    table.row("record-trigger-csi-ssb-set")
        .sent(triggerStates, R"({"reportConfigId":0,"resourcesForChannel":{"csi-SSB-ResourceSet":1}})",
              [](auto& r)
              {
                  r.prsence = RRC_CSI_ASSOCIATED_REPORT_CFG_INFO_CSI_SSB_SET_PRESENCE;
                  r.resourceForChannel.csiSsbResourceSet.csiImResourceSet = 1;
              });
    table.row("record-trigger-resource-choice")
        .sent(triggerStates, R"({"reportConfigId":0,"resourcesForChannel":{"csi-SSB-ResourceSet":1}})",
              [](auto& r) { r.prsence |= RRC_CSI_ASSOCIATED_REPORT_CFG_INFO_CSI_SSB_SET_PRESENCE; })
        .refused(triggerStates, ".resourcesForChannel: tag 0 is not in 1..2", [](auto& r) { r.prsence = 0; });
    table.row("record-trigger-no-field")
        .sent(triggerStates,
              R"({"reportConfigId":0,"resourcesForChannel":{"nzp-CSI-RS":{"resourceSet":1,"qcl-info":[0]}}})",
              [](auto& r)
              {
                  r.prsence = 0xFF & ~RRC_CSI_ASSOCIATED_REPORT_CFG_INFO_CSI_SSB_SET_PRESENCE;
                  r.resourceForChannel.nzpCsiRs.numQciInfo = 1;
              });
}

} // namespace

void csiRows(Table& table)
{
    resourceRows(table);
    reportRows(table);
    codebookRows(table);
    measurementRows(table);
}

} // namespace behaviour
