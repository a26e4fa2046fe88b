// Rows of the uplink and of what holds for all bandwidth parts of a serving cell.
#include <iterator>

#include "places.h"
#include "support/Json.h"

namespace behaviour
{

namespace
{

const auto pucch = within(initialUplink, R"({"pucch-Config":{"setup":@}})",
                          [](auto& bwp)
                          {
                              bwp.bitMask = RRC_BWP_UL_DEDI_PUCCH_CFG_PRESENCE;
                              return &fresh(bwp.pucchCfg);
                          });

const auto pucchResource = within(pucch, R"({"resourceToAddModList":[@]})",
                                  [](auto& config)
                                  {
                                      config.numResourceAddMod = 1;
                                      return &fresh(config.resource[0]);
                                  });

const auto pucchFormat = within(pucch, R"({"format1":{"setup":@}})",
                                [](auto& config)
                                {
                                    config.bitMask = RRC_PUCCH_CFG_FORMAT1_PRESENCE;
                                    return &config.format1;
                                });

const auto schedulingRequest = within(pucch, R"({"schedulingRequestResourceToAddModList":[@]})",
                                      [](auto& config)
                                      {
                                          config.numSchedReqResourceCfgAddMod = 1;
                                          auto& request = fresh(config.schedReqResource[0]);
                                          request.schedReqResourceId = 1;
                                          request.bitMask = RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_PRESENCE;
                                          return &request;
                                      });

std::string requestJson(const std::string& periodicity)
{
    return R"({"schedulingRequestResourceId":1,"schedulingRequestID":0,"periodicityAndOffset":)" + periodicity + "}";
}

const auto spatialRelation = within(pucch, R"({"spatialRelationInfoToAddModList":[@]})",
                                    [](auto& config)
                                    {
                                        config.numSpatialRelationInfoAddMod = 1;
                                        auto& info = fresh(config.spatialRelationInfo[0]);
                                        info.pucchSpatialRelationInfoId = 1;
                                        info.p0PucchId = 1;
                                        return &info;
                                    });

const auto pucchPower = within(pucch, R"({"pucch-PowerControl":@})",
                               [](auto& config)
                               {
                                   config.bitMask = RRC_PUCCH_CFG_POWER_CONTROL_PRESENCE;
                                   return &config.pucchPowerControl;
                               });

const std::string allocation = R"("resourceAllocation":"resourceAllocationType0")";

const auto puschPower = within(pusch, R"({"pusch-PowerControl":@,)" + allocation + "}",
                               [](auto& config)
                               {
                                   config.bitMask = RRC_PUSCH_CFG_PUSCH_POWER_CONTROLPRESENCE;
                                   return &config.puschPowerContol;
                               });

const auto puschDmrs = within(pusch, R"({"dmrs-UplinkForPUSCH-MappingTypeA":{"setup":@},)" + allocation + "}",
                              [](auto& config)
                              {
                                  config.bitMask = RRC_PUSCH_CFG_DMRS_MAPPING_TYPEA_PRESENCE;
                                  return &config.dmrsUlPuschTypeA;
                              });

const auto puschUci = within(pusch, "{" + allocation + R"(,"uci-OnPUSCH":{"setup":@}})",
                             [](auto& config)
                             {
                                 config.bitMask = RRC_PUSCH_CFG_UCI_ON_PUSCH_PRESENCE;
                                 config.uciOnPusch.bitMask = RRC_UCI_PUSCH_BETA_OFFSETS_PRESENCE;
                                 return &config.uciOnPusch;
                             });

const auto grant = within(initialUplink, R"({"configuredGrantConfig":{"setup":@}})",
                          [](auto& bwp)
                          {
                              bwp.bitMask = RRC_BWP_UL_DEDI_CFG_GRANT_CFG_PRESENCE;
                              fresh(bwp.cfgGrantCfg).nrofHarqProcess = 1;
                              return &bwp.cfgGrantCfg;
                          });

// Optional members behind cg-DMRS-Configuration, behind resourceAllocation and at the end.
std::string grantJson(const std::string& first = "", const std::string& second = "", const std::string& last = "")
{
    return test::object({R"("cg-DMRS-Configuration":{})", first, allocation, second,
                         R"("powerControlLoopToUse":"n0","p0-PUSCH-Alpha":0,"nrofHARQ-Processes":1,"repK":"n1")"
                         R"(,"periodicity":"sym2")",
                         last});
}

const auto grantUci = within(grant, grantJson(R"("uci-OnPUSCH":{"setup":@})"),
                             [](auto& config)
                             {
                                 config.bitMask = RRC_CFGD_GRANT_CFG_UCI_ON_PUSCH_PRESENCE;
                                 return &config.uciOnPusch;
                             });

const auto srs = within(initialUplink, R"({"srs-Config":{"setup":@}})",
                        [](auto& bwp)
                        {
                            bwp.bitMask = RRC_BWP_UL_DEDI_SRS_CFG_PRESENCE;
                            return &fresh(bwp.srsCfg);
                        });

const auto srsSet = within(srs, R"({"srs-ResourceSetToAddModList":[@]})",
                           [](auto& config)
                           {
                               config.numSrsResourceSetAddMod = 1;
                               auto& set = fresh(config.srsResourceSet[0]);
                               set.presence = RRC_SRS_RESOURCE_SET_TYPE_SEMI_PERSISTENT_PERSENCE;
                               return &set;
                           });

const auto srsResource = within(srs, R"({"srs-ResourceToAddModList":[@]})",
                                [](auto& config)
                                {
                                    config.numSrsResourceAddMod = 1;
                                    auto& resource = fresh(config.srsResource[0]);
                                    resource.presence = RRC_SRS_RESOURCE_TRANSMISSION_COMB_N2_PRESENCE;
                                    resource.presence1 = RRC_SRS_RESOURCE_TYPE_APERIODIC_PERSENCE;
                                    return &resource;
                                });

std::string srsResourceJson(const std::string& type = R"({"aperiodic":{}})",
                            const std::string& comb = R"({"n2":{"combOffset-n2":0,"cyclicShift-n2":0}})",
                            const std::string& spatial = "")
{
    return test::object(
        {R"("srs-ResourceId":0,"nrofSRS-Ports":"port1","transmissionComb":)" + comb +
             R"(,"resourceMapping":{"startPosition":0,"nrofSymbols":"n1","repetitionFactor":"n1"},"freqDomainPosition":0,)"
             R"("freqDomainShift":0,"freqHopping":{"c-SRS":0,"b-SRS":0,"b-hop":0},"groupOrSequenceHopping":"neither",)"
             R"("resourceType":)" +
             type + R"(,"sequenceId":0)",
         spatial.empty() ? "" : R"("spatialRelationInfo":)" + spatial});
}

const auto recovery = within(initialUplink, R"({"beamFailureRecoveryConfig":{"setup":@}})",
                             [](auto& bwp)
                             {
                                 bwp.bitMask = RRC_BWP_UL_DEDI_BEAM_FAILURE_RECOVERY_CFG_PRESENCE;
                                 return &fresh(bwp.beamFailRecoveryCfg);
                             });

const auto bwpCommon = within(uplink, R"({"uplinkBWP-ToAddModList":[{"bwp-Id":0,"bwp-Common":@}]})",
                              [](auto& config)
                              {
                                  config.numUlBwpAddMod = 1;
                                  auto& bwp = fresh(config.ulBwpAddMod[0]);
                                  bwp.bitMask = RRC_BWP_UL_COMMON_PRESENCE;
                                  return &fresh(bwp.bwpCommon);
                              });

const std::string generic = R"({"genericParameters":{"locationAndBandwidth":0,"subcarrierSpacing":"kHz15"},)";

const auto rachCommon = within(bwpCommon, generic + R"("rach-ConfigCommon":{"setup":@}})",
                               [](auto& part)
                               {
                                   part.bitMask = RRC_BWP_UL_COMM_RACH_PRESENCE;
                                   part.rachCfgComm.rachCfgGeneric.preambleRecTargetPower = -100;
                                   part.rachCfgComm.presence = RRC_RACH_CFG_COMMON_PRACH_ROOT_SEQ_IDX_L839_PRESENCE;
                                   return &part.rachCfgComm;
                               });

const char* const rachGeneric =
    R"({"prach-ConfigurationIndex":0,"msg1-FDM":"one","msg1-FrequencyStart":0,"zeroCorrelationZoneConfig":0,)"
    R"("preambleReceivedTargetPower":-100,"preambleTransMax":"n3","powerRampingStep":"dB0","ra-ResponseWindow":"sl1"})";

std::string rachCommonJson(const std::string& perOccasion, const std::string& root = R"({"l839":0})",
                           const std::string& last = "")
{
    return test::object({R"("rach-ConfigGeneric":)" + std::string(rachGeneric),
                         perOccasion.empty() ? "" : R"("ssb-perRACH-OccasionAndCB-PreamblesPerSSB":)" + perOccasion,
                         R"("ra-ContentionResolutionTimer":"sf8","prach-RootSequenceIndex":)" + root +
                             R"(,"restrictedSetConfig":"unrestrictedSet")",
                         last});
}

// ssb-perRACH-OccasionAndCB-PreamblesPerSSB
const auto perOccasion = within(rachCommon, rachCommonJson("@"),
                                [](auto& config)
                                {
                                    config.bitMask =
                                        RRC_RACH_CFG_COMMON_SSB_PER_RACH_OCCASION_PREAMBLE_PER_SSB_PRESENCE;
                                    config.ssbPerRachOccasionAndCbPreamblesPerSsb.one = 4;
                                    return &config;
                                });

const auto puschCommon = within(bwpCommon, generic + R"("pusch-ConfigCommon":{"setup":@}})",
                                [](auto& part)
                                {
                                    part.bitMask = RRC_BWP_UL_COMM_PUSCH_PRESENCE;
                                    return &part.puschCfgComm;
                                });

const auto pucchCommon = within(bwpCommon, generic + R"("pucch-ConfigCommon":{"setup":@}})",
                                [](auto& part)
                                {
                                    part.bitMask = RRC_BWP_UL_COMM_PUCCH_PRESENCE;
                                    return &part.pucchCfgComm;
                                });

const auto carrierSwitching = within(uplink, R"({"carrierSwitching":{"setup":@}})",
                                     [](auto& config)
                                     {
                                         config.bitMask = RRC_UL_CFG_CARRIER_SWITCHING_PRESENCE;
                                         return &fresh(config.carrierSwitching);
                                     });

const auto puschCell = within(uplink, R"({"pusch-ServingCellConfig":{"setup":@}})",
                              [](auto& config)
                              {
                                  config.bitMask = RRC_UL_CFG_PUSCH_SERVING_CELL_CFG_PRESENCE;
                                  return &config.PuschServingCellCfg;
                              });

const auto pdschCell = within(dedicated, R"({"pdsch-ServingCellConfig":{"setup":@},"tag-Id":0})",
                              [](auto& cell)
                              {
                                  cell.bitMask = RRC_SERVING_CELL_PDSCH_SERVING_CELL_CFG_PRESENCE;
                                  return &cell.pdschServingCellCfg;
                              });

void uplinkConfigRows(Table& table)
{
    table.row("record-uplink-bits-not-sent")
        .sent(uplink, "{}",
              [](auto& r) { r.bitMask = RRC_UL_CFG_POWER_BOOST_PI_2BPSK | RRC_UL_CFG_UL_CHANNEL_BW_PERSCS_LIST; })
        .sent(dedicated, R"({"supplementaryUplink":{},"tag-Id":0})",
              [](auto& r)
              {
                  r.bitMask = RRC_SERVING_CELL_SUP_UL_CFG_PRESENCE;
                  fresh(r.suppUlCfg).bitMask = RRC_UL_CFG_POWER_BOOST_PI_2BPSK;
              });
}

void pucchRows(Table& table)
{
    table.row("record-pucch-set-release-count")
        .sent(pucch, R"({"resourceSetToReleaseList":[0,0]})",
              [](auto& r)
              {
                  r.numResourceSetRel = 2;
                  r.resourceSetId[0] = 3;
                  r.resourceSetId[1] = 2;
              })
        .sent(
            pucch,
            R"({"resourceSetToAddModList":[{"pucch-ResourceSetId":0,"resourceList":[0]}],"resourceSetToReleaseList":[3,0]})",
            [](auto& r)
            {
                r.numResourceSetAddMod = 1;
                fresh(r.resourceSet[0]).numResourceList = 1;
                r.numResourceSetRel = 2;
                r.resourceSetId[0] = 3;
                r.resourceSetId[1] = 2;
            });
    table.row("record-pucch-format-bit-order")
        .sent(pucchFormat, R"({"simultaneousHARQ-ACK-CSI":"true"})", [](auto& r) { r.bitMask = 1 << 4; })
        .sent(pucchFormat, R"({"pi2BPSK":"enabled"})", [](auto& r) { r.bitMask = 1 << 5; });
    table.row("record-pucch-one-value")
        .sent(pucchFormat, R"({"interslotFrequencyHopping":"enabled","additionalDMRS":"true"})",
              [](auto& r) {
                  r.bitMask = RRC_PUCCH_FORMAT_CFG_INTER_SLOT_FREQ_HOPPING_PRESENCE |
                              RRC_PUCCH_FORMAT_CFG_ADDITIONAL_DMRS_PRESENCE;
              })
        .asMeant()
        .oneValue(pucchFormat, RRC_PUCCH_FORMAT_CFG_INTER_SLOT_FREQ_HOPPING_PRESENCE,
                  &RrcPucchFormatCfg_t::interSlotFreqHopping, "interslotFrequencyHopping")
        .oneValue(pucchFormat, RRC_PUCCH_FORMAT_CFG_ADDITIONAL_DMRS_PRESENCE, &RrcPucchFormatCfg_t::additionalDMRS,
                  "additionalDMRS")
        .oneValue(pucchFormat, RRC_PUCCH_FORMAT_CFG_PI2BPSK_PRESENCE, &RrcPucchFormatCfg_t::pi2BPSK, "pi2BPSK")
        .oneValue(pucchFormat, RRC_PUCCH_FORMAT_CFG_SIMULTANEOUS_HARQ_ACK_CSI_PRESENCE,
                  &RrcPucchFormatCfg_t::sumultaneousHarqAckCsi, "simultaneousHARQ-ACK-CSI")
        .oneValue(pucchResource, RRC_PUCCH_RESOURCE_INTRA_SLOT_FREQ_HOPPING_PRESENCE,
                  &RrcPucchResource_t::intraSlotFreqHopping, "intraSlotFrequencyHopping")
        .sent(pucchPower, R"({"twoPUCCH-PC-AdjustmentStates":"twoStates"})",
              [](auto& r) { r.bitMask = RRC_PUCCH_POWER_CONTROL_TWO_PUCCH_PC_ADJ_STATES_PRESENCE; })
        .asMeant()
        .oneValue(pucchPower, RRC_PUCCH_POWER_CONTROL_TWO_PUCCH_PC_ADJ_STATES_PRESENCE,
                  &RrcPucchPowerControl_t::twoPucchPcAdjStates, "twoPUCCH-PC-AdjustmentStates");
    table.row("record-scheduling-request-period")
        .sent(schedulingRequest, requestJson(R"({"sl20":19})"),
              [](auto& r)
              {
                  r.presence = RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL20;
                  r.periodAndOffset.period = 1;
                  r.periodAndOffset.offset = 19;
              })
        .asMeant()
        .refused(schedulingRequest, ".periodicityAndOffset: tag 0 is not in 1..15",
                 [](auto& r) { r.periodAndOffset.period = 10; });
    table.row("record-scheduling-request-offset")
        .sent(schedulingRequest, requestJson(R"({"sl2":1})"),
              [](auto& r)
              {
                  r.presence = RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL2;
                  r.periodAndOffset.offset = 257;
              })
        .sent(schedulingRequest, requestJson(R"({"sl160":44})"),
              [](auto& r)
              {
                  r.presence = RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL160;
                  r.periodAndOffset.offset = 300;
              });
    table.row("record-pucch-choices")
        .sent(pucchResource,
              R"({"pucch-ResourceId":0,"startingPRB":0,"format":{"format4":{"nrofSymbols":4,"occ-Length":"n4",)"
              R"("occ-Index":"n2","startingSymbolIndex":0}}})",
              [](auto& r)
              {
                  r.presence = RRC_PUCCH_RESOURCE_FORMAT0_PRESENCE | RRC_PUCCH_RESOURCE_FORMAT4_PRESENCE;
                  r.format.format0 = {4, 1, 2};
              })
        .refused(pucchResource, ".format: tag 0 is not in 1..5")
        .sent(schedulingRequest, requestJson(R"({"sl320":300})"),
              [](auto& r)
              {
                  r.presence =
                      RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL2 | RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL320;
                  r.periodAndOffset.offset = 300;
              })
        .sent(spatialRelation,
              R"({"pucch-SpatialRelationInfoId":1,"referenceSignal":{"srs":{"resource":5,"uplinkBWP":0}},)"
              R"("pucch-PathlossReferenceRS-Id":0,"p0-PUCCH-Id":1,"closedLoopIndex":"i0"})",
              [](auto& r)
              {
                  r.presence = RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_SSBIDX_PRESENCE |
                               RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_SRSIDX_PRESENCE;
                  r.referSignal.ssbIdx = 5;
              })
        .refused(spatialRelation, ".referenceSignal: tag 0 is not in 1..3")
        .sent(pucchPower,
              R"({"pathlossReferenceRSs":[{"pucch-PathlossReferenceRS-Id":0,"referenceSignal":{"csi-RS-Index":9}}]})",
              [](auto& r)
              {
                  r.bitMask = RRC_PUCCH_POWER_CONTROL_PATH_REFERENCE_RSS;
                  r.numPathLossRefRs = 1;
                  r.pathLossRefRs[0].presence =
                      RRC_PUCCH_PATH_LOSS_REF_RS_SSB_IDX_PRESENCE | RRC_PUCCH_PATH_LOSS_REF_RS_CSI_IDX_PRESENCE;
                  r.pathLossRefRs[0].refSignal.ssbIdx = 9;
              })
        .refused(pucchPower, ".pathlossReferenceRSs[0].referenceSignal: tag 0 is not in 1..2",
                 [](auto& r)
                 {
                     r.bitMask = RRC_PUCCH_POWER_CONTROL_PATH_REFERENCE_RSS;
                     r.numPathLossRefRs = 1;
                 });
    table.row("record-pucch-power-list-counts")
        .refused(pucchPower, ".p0-Set: 0 elements, not 1..8",
                 [](auto& r) { r.bitMask = RRC_PUCCH_POWER_CONTROL_P0_SET_PRESENCE; })
        .refused(pucchPower, ".pathlossReferenceRSs: 0 elements, not 1..4",
                 [](auto& r) { r.bitMask = RRC_PUCCH_POWER_CONTROL_PATH_REFERENCE_RSS; })
        .sent(pucchPower, "{}", [](auto& r) { r.numP0Set = r.numPathLossRefRs = 1; });
    table.row("record-pucch-resource-list-count")
        .refused(pucch, ".resourceSetToAddModList[0].resourceList: 0 elements, not 1..32",
                 [](auto& r)
                 {
                     r.numResourceSetAddMod = 1;
                     rrcInit(&r.resourceSet[0]);
                 });
    table.row("record-pucch-power-signed")
        .sent(pucchPower,
              R"({"deltaF-PUCCH-f0":-16,"deltaF-PUCCH-f1":-1,"deltaF-PUCCH-f2":-1,"deltaF-PUCCH-f3":-1,)"
              R"("deltaF-PUCCH-f4":15,"p0-Set":[{"p0-PUCCH-Id":1,"p0-PUCCH-Value":-16}]})",
              [](auto& r)
              {
                  r.bitMask = 0x1F | RRC_PUCCH_POWER_CONTROL_P0_SET_PRESENCE;
                  r.deltaFPucchF0 = 240;
                  r.deltaFPucchF1 = r.deltaFPucchF2 = r.deltaFPucchF3 = 255;
                  r.deltaFPucchF4 = 15;
                  r.numP0Set = 1;
                  r.p0Set[0] = {1, 240};
              });
}

void puschRows(Table& table)
{
    table.row("record-pusch-hopping-offsets")
        .sent(pusch, R"({"frequencyHoppingOffsetLists":[1,274],)" + allocation + "}",
              [](auto& r)
              {
                  r.numFreqHoppingOffset = 2;
                  r.freqHoppingOffset[0] = 1;
                  r.freqHoppingOffset[1] = 274;
              })
        .sent(pusch, R"({"frequencyHopping":"intraSlot",)" + allocation + "}",
              [](auto& r) { r.bitMask = RRC_PUSCH_CFG_FREQ_HOPPING_PRESENCE; })
        .asMeant();
    table.row("record-uci-dynamic-beta-offsets")
        .sent(puschUci, R"({"betaOffsets":{"dynamic":[{"betaOffsetACK-Index1":31},{},{},{}]},"scaling":"f0p5"})",
              [](auto& r)
              {
                  r.presence = RRC_UCI_PUSCH_BETA_OFFSETS_DYNAMIC_PRESENCE;
                  r.betaOffset.dynamic[0].bitMask = RRC_BETA_OFFSETS_ACK_IDX1_PRESENCE;
                  r.betaOffset.dynamic[0].betaOffsetAckIdx1 = 31;
              });
    table.row("record-configured-grant-beta-offset-count")
        .sent(grantUci, R"({"dynamic":[{},{}]})",
              [](auto& r)
              {
                  r.presence = RRC_CG_UCI_ON_PUSCH_DYNAMIC_PRESENCE;
                  r.betaOffset.dynamic.num = 2;
              })
        .asMeant()
        .refused(grantUci, ".dynamic: 0 elements, not 1..4",
                 [](auto& r) { r.presence = RRC_CG_UCI_ON_PUSCH_DYNAMIC_PRESENCE; })
        .refused(grantUci, ".dynamic: 5 elements, not 1..4",
                 [](auto& r)
                 {
                     r.presence = RRC_CG_UCI_ON_PUSCH_DYNAMIC_PRESENCE;
                     r.betaOffset.dynamic.num = 5;
                 });
    table.row("record-pusch-choices")
        .sent(puschUci, R"({"betaOffsets":{"semiStatic":{"betaOffsetACK-Index1":31}},"scaling":"f0p5"})",
              [](auto& r)
              {
                  r.presence =
                      RRC_UCI_PUSCH_BETA_OFFSETS_DYNAMIC_PRESENCE | RRC_UCI_PUSCH_BETA_OFFSETS_SEMI_STATIC_PRESENCE;
                  r.betaOffset.dynamic[0].bitMask = RRC_BETA_OFFSETS_ACK_IDX1_PRESENCE;
                  r.betaOffset.dynamic[0].betaOffsetAckIdx1 = 31;
              })
        .refused(puschUci, ".betaOffsets: tag 0 is not in 1..2")
        .sent(grantUci, R"({"semiStatic":{"betaOffsetACK-Index1":7}})",
              [](auto& r)
              {
                  r.presence = RRC_CG_UCI_ON_PUSCH_DYNAMIC_PRESENCE | RRC_CG_UCI_ON_PUSCH_SEMI_STATIC_PRESENCE;
                  r.betaOffset.dynamic.num = RRC_BETA_OFFSETS_ACK_IDX1_PRESENCE;
                  r.betaOffset.semiStatic.betaOffsetAckIdx1 = 7;
              })
        .refused(grantUci, ": tag 0 is not in 1..2")
        .sent(puschPower,
              R"({"pathlossReferenceRSToAddModList":[{"pusch-PathlossReferenceRS-Id":0,)"
              R"("referenceSignal":{"csi-RS-Index":9}}]})",
              [](auto& r)
              {
                  r.numPathLossRefRsAddMod = 1;
                  r.pathLossRefRs[0].presence =
                      RRC_PUSCH_PATH_LOSS_REF_RS_SSB_PRESENCE | RRC_PUSCH_PATH_LOSS_REF_RS_CSI_RS_PRESENCE;
                  r.pathLossRefRs[0].regSig.ssbIdx = 9;
              })
        .refused(puschPower, ".pathlossReferenceRSToAddModList[0].referenceSignal: tag 0 is not in 1..2",
                 [](auto& r) { r.numPathLossRefRsAddMod = 1; });
    table.row("record-ptrs-time-density")
        .sent(puschDmrs,
              R"({"phaseTrackingRS":{"setup":{"transformPrecoderEnabled":{"sampleDensity":[276,276,276,276,276],)"
              R"("timeDensityTransformPrecoding":"d2"}}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_DMRS_UL_CFG_PHASE_TRACK_RS_PRESENCE;
                  r.phaseTrackRs.bitMask = RRC_PTRS_UL_CFG_ENABLE_PRESENCE;
                  auto& enable = r.phaseTrackRs.transformPrecodeEnable;
                  for (UINT16& density : enable.sampleDensity)
                  {
                      density = 276;
                  }
                  enable.bitMask = RRC_PTRS_UL_CFG_ENABLE_TIME_DENSITY_PRESENCE;
                  enable.timeDensityTransformPrecoding = 7;
              });
    table.row("record-pusch-one-value")
        .sent(pusch, "{" + allocation + R"(,"rbg-Size":"config2","tp-pi2BPSK":"enabled"})",
              [](auto& r) { r.bitMask = RRC_PUSCH_CFG_TP_PI2_BPSK_PRESENCE | RRC_PUSCH_CFG_RBG_SIZE_PRESENCE; })
        .asMeant()
        .oneValue(pusch, RRC_PUSCH_CFG_TP_PI2_BPSK_PRESENCE, &RrcPuschCfg_t::tpPi2Bpsk, "tp-pi2BPSK")
        .oneValue(pusch, RRC_PUSCH_CFG_RBG_SIZE_PRESENCE, &RrcPuschCfg_t::rbgSize, "rbg-Size")
        .sent(grant, grantJson("", R"("rbg-Size":"config2")"),
              [](auto& r) { r.bitMask = RRC_CFGD_GRANT_CFG_RBG_SIZE_PRESENCE; })
        .asMeant()
        .oneValue(grant, RRC_CFGD_GRANT_CFG_RBG_SIZE_PRESENCE, &RrcCfgGrantCfg_t::rbgSize, "rbg-Size")
        .sent(puschPower,
              R"({"tpc-Accumulation":"disabled","twoPUSCH-PC-AdjustmentStates":"twoStates","deltaMCS":"enabled"})",
              [](auto& r)
              {
                  r.bitMask = RRC_PUSCH_POWER_CONTROL_TCP_ACCUMULATION_PRESENCE |
                              RRC_PUSCH_POWER_CONTROL_TWO_PUSCH_PC_ADJ_STATES_PRESENCE |
                              RRC_PUSCH_POWER_CONTROL_DELTA_MCS_PRESENCE;
              })
        .asMeant()
        .oneValue(puschPower, RRC_PUSCH_POWER_CONTROL_TCP_ACCUMULATION_PRESENCE,
                  &RrcPuschPowerControl_t::tpcAccumulation, "tpc-Accumulation")
        .oneValue(puschPower, RRC_PUSCH_POWER_CONTROL_TWO_PUSCH_PC_ADJ_STATES_PRESENCE,
                  &RrcPuschPowerControl_t::twoPuschPcAdjStates, "twoPUSCH-PC-AdjustmentStates")
        .oneValue(puschPower, RRC_PUSCH_POWER_CONTROL_DELTA_MCS_PRESENCE, &RrcPuschPowerControl_t::deltaMcs, "deltaMCS")
        .sent(
            puschDmrs,
            R"({"dmrs-Type":"type2","maxLength":"len2","transformPrecodingEnabled":{"sequenceGroupHopping":"disabled",)"
            R"("sequenceHopping":"enabled"}})",
            [](auto& r)
            {
                r.bitMask = RRC_DMRS_UL_CFG_TYPE_PRESENCE | RRC_DMRS_UL_CFG_MAX_LENGTH_PRESENCE |
                            RRC_DMRS_UL_CFG_TRANSFORM_PRECODE_ENABLE_PRESENCE;
                r.transformPrecodEnable.bitMask =
                    RRC_TRANSFORM_PRECODE_ENABLE_GROUP_HOPPING_PRESENCE | RRC_TRANSFORM_PRECODE_ENABLE_HOPPING_PRESENCE;
            })
        .asMeant()
        .oneValue(puschDmrs, RRC_DMRS_UL_CFG_TYPE_PRESENCE, &RrcDmrsUlCfg_t::dmrsType, "dmrs-Type")
        .oneValue(puschDmrs, RRC_DMRS_UL_CFG_MAX_LENGTH_PRESENCE, &RrcDmrsUlCfg_t::maxLength, "maxLength")
        .refused(puschDmrs, ".transformPrecodingEnabled.sequenceGroupHopping: 1 is not in 0..0",
                 [](auto& r)
                 {
                     r.bitMask = RRC_DMRS_UL_CFG_TRANSFORM_PRECODE_ENABLE_PRESENCE;
                     r.transformPrecodEnable.bitMask = RRC_TRANSFORM_PRECODE_ENABLE_GROUP_HOPPING_PRESENCE;
                     r.transformPrecodEnable.seqGrpHopping = 1;
                 })
        .refused(puschDmrs, ".transformPrecodingEnabled.sequenceHopping: 1 is not in 0..0",
                 [](auto& r)
                 {
                     r.bitMask = RRC_DMRS_UL_CFG_TRANSFORM_PRECODE_ENABLE_PRESENCE;
                     r.transformPrecodEnable.bitMask = RRC_TRANSFORM_PRECODE_ENABLE_HOPPING_PRESENCE;
                     r.transformPrecodEnable.seqHopping = 1;
                 });
    table.row("record-pusch-p0-signed")
        .sent(puschPower, R"({"p0-AlphaSets":[{"p0-PUSCH-AlphaSetId":0,"p0":-16}]})",
              [](auto& r)
              {
                  r.numP0AlphaSets = 1;
                  r.p0AlphaSets[0].bitMask = RRC_P0PUSCH_ALPHA_SET_P0_PRESENCE;
                  r.p0AlphaSets[0].p0 = 240;
              });
    table.row("record-pusch-allocation-count")
        .refused(pusch, ".pusch-TimeDomainAllocationList.setup: 0 elements, not 1..16",
                 [](auto& r) { r.bitMask = RRC_PUSCH_CFG_PUSCH_TIMING_DOMAIN_ALLOCATION_LIST_PRESENCE; })
        .refused(puschCommon, ".pusch-TimeDomainAllocationList: 0 elements, not 1..16",
                 [](auto& r) { r.bitMask = RRC_PUSCH_CFG_COMMON_PUSCH_TIMING_DOMAIN_ALLOCATION_LIST_PRESENCE; })
        .sent(pusch, "{" + allocation + "}",
              [](auto& r) { r.puschTimeDomainAllocList.numPuschTimeDomainResourceAllocList = 1; })
        .asMeant()
        .sent(puschCommon, "{}", [](auto& r) { r.puschTimieDomainAllocList.numPuschTimeDomainResourceAllocList = 1; })
        .asMeant();
    table.row("record-configured-grant-dmrs").sent(grant, grantJson());
    table.row("record-configured-grant-frequency-upper-bits")
        .sent(grant,
              grantJson(
                  "", "",
                  R"("rrc-ConfiguredUplinkGrant":{"timeDomainOffset":0,"timeDomainAllocation":0,)"
                  R"("frequencyDomainAllocation":)" +
                      test::bits(1, 18) +
                      R"(,"antennaPort":0,"precodingAndNumberOfLayers":0,"mcsAndTBS":0,"pathlossReferenceIndex":0})"),
              [](auto& r)
              {
                  r.bitMask = RRC_CFGD_GRANT_CFG_RRC_CFGD_UL_GRANT_PRESENCE;
                  r.rrcCfgdUlGrant.freqDomainAllocation = 0xFFFC0001;
              });
}

void srsRows(Table& table)
{
    table.row("record-srs-set-type-choice")
        .sent(srsSet,
              R"({"srs-ResourceSetId":0,"resourceType":{"periodic":{}},"usage":"beamManagement","alpha":"alpha1"})",
              [](auto& r)
              {
                  r.presence = RRC_SRS_RESOURCE_SET_TYPE_APERIODIC_PERSENCE |
                               RRC_SRS_RESOURCE_SET_TYPE_PERIODIC_PERSENCE | RRC_SRS_RESOURCE_SET_ALPHA_PERSENCE;
                  r.Alpha = 7;
              })
        .refused(srsSet, ".resourceType: tag 0 is not in 1..3", [](auto& r) { r.presence = 0x78; });
    table.row("record-srs-aperiodic-type")
        .sent(srsResource, srsResourceJson(), [](auto& r) { r.resourceType.periodic.period = 99; });
    table.row("record-srs-choices")
        .sent(srsResource, srsResourceJson(R"({"aperiodic":{}})", R"({"n4":{"combOffset-n4":1,"cyclicShift-n4":7}})"),
              [](auto& r)
              {
                  r.presence =
                      RRC_SRS_RESOURCE_TRANSMISSION_COMB_N2_PRESENCE | RRC_SRS_RESOURCE_TRANSMISSION_COMB_N4_PRESENCE;
                  r.transmissionComb.n2 = {1, 7};
              })
        .refused(srsResource, ".transmissionComb: tag 0 is not in 1..2", [](auto& r) { r.presence = 0; })
        .sent(srsResource, srsResourceJson(R"({"periodic":{"periodicityAndOffset-p":{"sl1":null}}})"),
              [](auto& r)
              {
                  r.presence1 |= RRC_SRS_RESOURCE_TYPE_PERIODIC_PERSENCE;
                  r.resourceType.periodic.period = 1;
              })
        .refused(srsResource, ".resourceType: tag 0 is not in 1..3", [](auto& r) { r.presence1 = 0; })
        .sent(srsSet,
              R"({"srs-ResourceSetId":0,"resourceType":{"semi-persistent":{}},"usage":"beamManagement",)"
              R"("pathlossReferenceRS":{"csi-RS-Index":9}})",
              [](auto& r)
              {
                  r.presence |= RRC_SRS_PATH_LOSS_REFERENCE_RS_PRESENT;
                  r.pathLossRefRs.presence =
                      RRC_SRS_PATH_LOSS_REF_RS_SSB_IDX_PRESENCE | RRC_SRS_PATH_LOSS_REF_RS_CSI_IDX_PRESENCE;
                  r.pathLossRefRs.u.ssbIdx = 9;
              })
        .refused(srsSet, ".pathlossReferenceRS: tag 0 is not in 1..2",
                 [](auto& r) { r.presence |= RRC_SRS_PATH_LOSS_REFERENCE_RS_PRESENT; })
        .sent(srsResource,
              srsResourceJson(R"({"aperiodic":{}})", R"({"n2":{"combOffset-n2":0,"cyclicShift-n2":0}})",
                              R"({"referenceSignal":{"srs":{"resourceId":9,"uplinkBWP":0}}})"),
              [](auto& r)
              {
                  r.bitMask = RRC_SRS_RESOURCE_PTRS_SPATIAL_RELATION_INFO_PRESENCE;
                  r.spatialRelationInfo.presence =
                      RRC_SRS_SPATIAL_RELATION_INFO_SSB_PRESENCE | RRC_SRS_SPATIAL_RELATION_INFO_SRS_PRESENCE;
                  r.spatialRelationInfo.refSig.ssbIdx = 9;
              })
        .refused(srsResource, ".spatialRelationInfo.referenceSignal: tag 0 is not in 1..3",
                 [](auto& r) { r.bitMask = RRC_SRS_RESOURCE_PTRS_SPATIAL_RELATION_INFO_PRESENCE; });
    table.row("record-srs-period")
        .refused(srsResource, ".resourceType.semi-persistent.periodicityAndOffset-sp: tag 0 is not in 1..17",
                 [](auto& r) { r.presence1 = RRC_SRS_RESOURCE_TYPE_SEMI_PERSISTENT_PERSENCE; })
        .printing("No SRS_PeriodicityAndOffset_PR\n")
        .refused(srsResource, ".resourceType.periodic.periodicityAndOffset-p: tag 18 is not in 1..17",
                 [](auto& r)
                 {
                     r.presence1 = RRC_SRS_RESOURCE_TYPE_PERIODIC_PERSENCE;
                     r.resourceType.periodic.period = 18;
                 })
        .printing("No SRS_PeriodicityAndOffset_PR\n");
    table.row("record-srs-offset")
        .sent(srsResource, srsResourceJson(R"({"semi-persistent":{"periodicityAndOffset-sp":{"sl2":1}}})"),
              [](auto& r)
              {
                  r.presence1 = RRC_SRS_RESOURCE_TYPE_SEMI_PERSISTENT_PERSENCE;
                  r.resourceType.semiPersistent.period = 2;
                  r.resourceType.semiPersistent.offset = 257;
              })
        .sent(srsResource, srsResourceJson(R"({"periodic":{"periodicityAndOffset-p":{"sl160":44}}})"),
              [](auto& r)
              {
                  r.presence1 = RRC_SRS_RESOURCE_TYPE_PERIODIC_PERSENCE;
                  r.resourceType.periodic.period = 13;
                  r.resourceType.periodic.offset = 300;
              });
    table.row("record-srs-p0-upper-bits")
        .sent(srsSet,
              R"({"srs-ResourceSetId":0,"resourceType":{"semi-persistent":{}},"usage":"beamManagement","p0":-50})",
              [](auto& r)
              {
                  r.presence |= RRC_SRS_RESOURCE_SET_P0_PERSENCE;
                  r.p0 = 65486;
              });
    table.row("record-srs-tpc-accumulation-one-value")
        .sent(srs, R"({"tpc-Accumulation":"disabled"})",
              [](auto& r) { r.bitMask = RRC_SRS_CFG_TPC_ACCUMULATION_PRESENCE; })
        .asMeant()
        .oneValue(srs, RRC_SRS_CFG_TPC_ACCUMULATION_PRESENCE, &RrcSrsCfg_t::tpcAccumulation, "tpc-Accumulation");
    table.row("record-srs-no-field")
        .sent(srsSet,
              R"({"srs-ResourceSetId":0,"resourceType":{"aperiodic":{"aperiodicSRS-ResourceTrigger":3,"csi-RS":191,)"
              R"("slotOffset":32}},"usage":"beamManagement"})",
              [](auto& r)
              {
                  r.presence = RRC_SRS_RESOURCE_SET_TYPE_APERIODIC_PERSENCE;
                  r.resourceType.aperiodic = {3, 0xFF, 191, 32};
              });
}

void bandwidthPartRows(Table& table)
{
    table.row("record-bfr-msg1-subcarrier-spacing")
        .sent(recovery, "{}",
              [](auto& r)
              {
                  r.bitMask = RRC_BEAM_FAIL_RECOVERY_MSG1_SUB_CARRIER_SPACING_V1530_PRESENCE;
                  r.msg1SubCarrierSpacingV1530 = 255;
              });
    table.row("record-bfr-no-field")
        .sent(recovery,
              R"({"rootSequenceIndex-BFR":0,"rach-ConfigBFR":)" + std::string(rachGeneric) +
                  R"(,"rsrp-ThresholdSSB":0,"ssb-perRACH-Occasion":"oneEighth","ra-ssb-OccasionMaskIndex":0,)"
                  R"("recoverySearchSpaceId":0,"ra-Prioritization":{"powerRampingStepHighPriority":"dB0"},)"
                  R"("beamFailureRecoveryTimer":"ms10"})",
              [](auto& r)
              {
                  r.bitMask = 0xFFFF;
                  r.rachCfgBFR.preambleRecTargetPower = -100;
              });
    table.row("record-rach-one-eighth")
        .sent(perOccasion, R"({"oneHalf":"n20"})",
              [](auto& r) { r.presence1 = RRC_RACH_CFG_COMMON_ONEEIGHTH_PRESENCE; })
        .sent(perOccasion, R"({"oneHalf":"n20"})",
              [](auto& r)
              { r.presence1 = RRC_RACH_CFG_COMMON_ONEEIGHTH_PRESENCE | RRC_RACH_CFG_COMMON_ONEFOURTH_PRESENCE; });
    table.row("record-rach-one-half")
        .refused(perOccasion, ": tag 0 is not in 1..8",
                 [](auto& r) { r.presence1 = RRC_RACH_CFG_COMMON_ONEHALF_PRESENCE; })
        .sent(perOccasion, R"({"oneFourth":"n20"})",
              [](auto& r)
              { r.presence1 = RRC_RACH_CFG_COMMON_ONEHALF_PRESENCE | RRC_RACH_CFG_COMMON_ONEFOURTH_PRESENCE; });
    table.row("record-rach-common-choices")
        .sent(perOccasion, R"({"sixteen":4})",
              [](auto& r) { r.presence1 = RRC_RACH_CFG_COMMON_ONE_PRESENCE | RRC_RACH_CFG_COMMON_SIXTEEM_PRESENCE; })
        .refused(perOccasion, ": tag 0 is not in 1..8")
        .sent(rachCommon, rachCommonJson("", R"({"l139":5})"),
              [](auto& r)
              {
                  r.presence |= RRC_RACH_CFG_COMMON_PRACH_ROOT_SEQ_IDX_L139_PRESENCE;
                  r.prachRootSeqIdx.l839 = 256 + 5;
              })
        .refused(rachCommon, ".prach-RootSequenceIndex: tag 0 is not in 1..2", [](auto& r) { r.presence = 0; });
    table.row("record-pusch-common-p0-nominal")
        .sent(puschCommon, R"({"p0-NominalWithGrant":24})",
              [](auto& r)
              {
                  r.bitMask = RRC_PUSCH_CFG_COMMON_P0_NOMINAL_WITH_GRANT_PRESENCE;
                  r.p0NominalWithGrant = 24;
              })
        .asMeant()
        .refused(puschCommon, ".p0-NominalWithGrant: 166 is not in -202..24",
                 [](auto& r)
                 {
                     r.bitMask = RRC_PUSCH_CFG_COMMON_P0_NOMINAL_WITH_GRANT_PRESENCE;
                     r.p0NominalWithGrant = 0xA6;
                 });
    table.row("record-pucch-common-p0-nominal")
        .sent(pucchCommon, R"({"pucch-GroupHopping":"neither","p0-nominal":-128})",
              [](auto& r)
              {
                  r.bitMask = RRC_PUCCH_CFG_COMMON_P0_NOMINAL_PRESENCE;
                  r.p0Nominal = -128;
              });
    table.row("record-pusch-common-msg3-delta-preamble")
        .sent(puschCommon, R"({"msg3-DeltaPreamble":-1})",
              [](auto& r)
              {
                  r.bitMask = RRC_PUSCH_CFG_COMMON_MSG3_DELTA_PREABLE_PRESENCE;
                  r.msg3DeltaPreable = 255;
              });
    table.row("record-uplink-common-one-value")
        .sent(puschCommon, R"({"groupHoppingEnabledTransformPrecoding":"enabled"})",
              [](auto& r) { r.bitMask = RRC_PUSCH_CFG_COMMON_GROUP_HOPPING_ENABLED_TRANSFORM_PRECODEING_PRESENCE; })
        .asMeant()
        .oneValue(puschCommon, RRC_PUSCH_CFG_COMMON_GROUP_HOPPING_ENABLED_TRANSFORM_PRECODEING_PRESENCE,
                  &RrcPuschCfgComm_t::groupHoppingEnabledTransformPrecoding, "groupHoppingEnabledTransformPrecoding")
        .sent(rachCommon, rachCommonJson("", R"({"l839":0})", R"("msg3-transformPrecoder":"enabled")"),
              [](auto& r) { r.bitMask = RRC_RACH_CFG_COMMON_MSG3_TRANSFORM_PRECODER_PRESENCE; })
        .asMeant()
        .oneValue(rachCommon, RRC_RACH_CFG_COMMON_MSG3_TRANSFORM_PRECODER_PRESENCE,
                  &RrcRachCfgComm_t::msg3TransformPreCoder, "msg3-transformPrecoder");
}

void cellLevelRows(Table& table)
{
    table.row("record-pusch-serving-cell-bits-not-sent")
        .sent(puschCell, "{}",
              [](auto& r) {
                  r.bitMask =
                      RRC_PUSCH_SERVING_CELL_CFG_MAX_MIMO_LAYERS | RRC_PUSCH_SERVING_CELL_CFG_PROCESS_TYPE_2ENABLE;
              });
    table.row("record-pusch-rate-matching-one-value")
        .sent(puschCell, R"({"rateMatching":"limitedBufferRM"})",
              [](auto& r) { r.bitMask = RRC_PUSCH_SERVING_CELL_CFG_RATE_MATCHING_PRESECE; })
        .asMeant()
        .oneValue(puschCell, RRC_PUSCH_SERVING_CELL_CFG_RATE_MATCHING_PRESECE, &RrcPuschServingCellCfg_t::rateMatching,
                  "rateMatching");
    table.row("record-srs-switch-from-carrier")
        .sent(carrierSwitching, R"({"srs-SwitchFromCarrier":"sUL"})")
        .asMeant()
        .sent(carrierSwitching, R"({"srs-SwitchFromCarrier":"nUL"})", [](auto& r) { r.SwitchFromCarrier = 1; })
        .asMeant()
        .refused(carrierSwitching, ".srs-SwitchFromCarrier: 256 is not in 0..1",
                 [](auto& r) { r.SwitchFromCarrier = 256; });
    table.row("record-srs-tpc-group-choice")
        .sent(carrierSwitching,
              R"({"srs-SwitchFromCarrier":"sUL","srs-TPC-PDCCH-Group":{"typeB":{"srs-CC-SetIndexlist":[{}]}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_SRS_CARRIER_SWITCH_SRS_TPC_PDCCH_GROUP_PRESENCE;
                  r.presence = RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEA_PRESENCE |
                               RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEB_PRESENCE;
                  r.srsTpcPdcchGroup.typeA.num = 1;
              })
        .refused(carrierSwitching, ".srs-TPC-PDCCH-Group: tag 0 is not in 1..2",
                 [](auto& r) { r.bitMask = RRC_SRS_CARRIER_SWITCH_SRS_TPC_PDCCH_GROUP_PRESENCE; });
    table.row("record-srs-switching-list-counts")
        .refused(carrierSwitching, ".srs-TPC-PDCCH-Group.typeA: 0 elements, not 1..32",
                 [](auto& r)
                 {
                     r.bitMask = RRC_SRS_CARRIER_SWITCH_SRS_TPC_PDCCH_GROUP_PRESENCE;
                     r.presence = RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEA_PRESENCE;
                 })
        .refused(carrierSwitching, ".monitoringCells: 0 elements, not 1..32",
                 [](auto& r) { r.bitMask = RRC_SRS_CARRIER_SWITCH_MONITORING_CELLS; })
        .sent(carrierSwitching, R"({"srs-SwitchFromCarrier":"sUL","srs-TPC-PDCCH-Group":{"typeB":{}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_SRS_CARRIER_SWITCH_SRS_TPC_PDCCH_GROUP_PRESENCE;
                  r.presence = RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEB_PRESENCE;
              })
        .sent(carrierSwitching, R"({"srs-SwitchFromCarrier":"sUL","srs-TPC-PDCCH-Group":{"typeA":[{}]}})",
              [](auto& r)
              {
                  r.bitMask = RRC_SRS_CARRIER_SWITCH_SRS_TPC_PDCCH_GROUP_PRESENCE;
                  r.presence = RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEA_PRESENCE;
                  r.srsTpcPdcchGroup.typeA.num = 1;
              });
    table.row("record-slot-format-counts")
        .sent(slotFormats, R"({"servingCellId":0,"subcarrierSpacing":"kHz15"})")
        .asMeant()
        .refused(slotFormats, ".slotFormatCombinations[0].slotFormats: 0 elements, not 1..256",
                 [](auto& r)
                 {
                     r.numSlotFormatComb = 1;
                     rrcInit(&r.SlotFormatComb[0]);
                 });
    table.row("record-pdsch-serving-cell-booleans")
        .sent(pdschCell,
              R"({"codeBlockGroupTransmission":{"setup":{"maxCodeBlockGroupsPerTransportBlock":"n2",)"
              R"("codeBlockGroupFlushIndicator":false}},"processingType2Enabled":false})",
              [](auto& r)
              {
                  r.bitMask = RRC_PDSCH_SERVING_CELL_CFG_CODE_BLOCK_GROUP_TRANMISSION_PRESENCE |
                              RRC_PDSCH_SERVING_CELL_CFG_PROCESSING_TYPE2_ENABLED;
                  r.codeBlockGroupTransmission.codeBlockGroupFlushInd = 256;
                  r.Type2Enabled = 256;
              })
        .sent(pdschCell,
              R"({"codeBlockGroupTransmission":{"setup":{"maxCodeBlockGroupsPerTransportBlock":"n2",)"
              R"("codeBlockGroupFlushIndicator":true}},"processingType2Enabled":true})",
              [](auto& r)
              {
                  r.bitMask = RRC_PDSCH_SERVING_CELL_CFG_CODE_BLOCK_GROUP_TRANMISSION_PRESENCE |
                              RRC_PDSCH_SERVING_CELL_CFG_PROCESSING_TYPE2_ENABLED;
                  r.codeBlockGroupTransmission.codeBlockGroupFlushInd = 1;
                  r.Type2Enabled = 1;
              })
        .asMeant();
}

} // namespace

void uplinkRows(Table& table)
{
    uplinkConfigRows(table);
    pucchRows(table);
    puschRows(table);
    srsRows(table);
    bandwidthPartRows(table);
    cellLevelRows(table);
}

} // namespace behaviour
