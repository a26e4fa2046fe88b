// Rows of the downlink bandwidth parts.
#include "byteOrder.h"
#include "places.h"
#include "support/Json.h"

namespace behaviour
{

namespace
{

const auto pdcch = within(downlink, R"({"pdcch-Config":{"setup":@}})",
                          [](auto& bwp)
                          {
                              bwp.bitMask = RRC_BWP_DL_DEDI_PDCCH_CFG_PRESENCE;
                              return &fresh(bwp.pdcchCfg);
                          });

const auto controlResourceSet = within(pdcch, R"({"controlResourceSetToAddModList":[@]})",
                                       [](auto& config)
                                       {
                                           config.numControlResourceSetAddMod = 1;
                                           fresh(config.controlResourceSetAddMod[0]).duration = 1;
                                           return &config.controlResourceSetAddMod[0];
                                       });

std::string controlResourceSetJson(const std::string& mapping = R"({"nonInterleaved":null})",
                                   const std::string& optional = "", UINT64 frequency = 0)
{
    return test::object({R"("controlResourceSetId":0,"frequencyDomainResources":)" + test::bits(frequency, 45) +
                             R"(,"duration":1,"cce-REG-MappingType":)" + mapping +
                             R"(,"precoderGranularity":"sameAsREG-bundle")",
                         optional});
}

const auto searchSpace = within(pdcch, R"({"searchSpacesToAddModList":[@]})",
                                [](auto& config)
                                {
                                    config.numSearchSpaceAddMod = 1;
                                    return &fresh(config.searchSpaceAddMod[0]);
                                });

// searchSpaceType.common
const auto commonSearch = within(searchSpace, R"({"searchSpaceId":0,"searchSpaceType":{"common":@}})",
                                 [](auto& space)
                                 {
                                     space.bitMask = RRC_SEARCH_SPACE_TYPE_PRESENCE;
                                     space.presence = RRC_SEARCH_TYPE_COMMON_PRESENCE;
                                     return &space.searchType.common;
                                 });

const auto pdsch = within(downlink, R"({"pdsch-Config":{"setup":@}})",
                          [](auto& bwp)
                          {
                              bwp.bitMask = RRC_BWP_DL_DEDI_PDSCH_CFG_PRESENCE;
                              fresh(bwp.pdschCfg).prbBitmask = RRC_PDSCH_CFG_PRB_BUNDLING_STATIC;
                              return &bwp.pdschCfg;
                          });

// Optional members before resourceAllocation, before rbg-Size and behind prb-BundlingType.
std::string pdschJson(const std::string& first, const std::string& second = "", const std::string& third = "",
                      const std::string& bundling = R"({"staticBundling":{}})")
{
    return test::object({first, R"("resourceAllocation":"resourceAllocationType0")", second, R"("rbg-Size":"config1")",
                         R"("prb-BundlingType":)" + bundling, third});
}

const auto tciState = within(pdsch, pdschJson(R"("tci-StatesToAddModList":[@])"),
                             [](auto& config)
                             {
                                 config.numTciStatesAddMod = 1;
                                 return &fresh(config.tciStatesAddMod[0]);
                             });

const auto pattern = within(pdsch, pdschJson("", R"("rateMatchPatternToAddModList":[@])"),
                            [](auto& config)
                            {
                                config.numRateMatchPatternAddMod = 1;
                                return &fresh(config.rateMatchPattern[0]);
                            });

const auto bitmaps = within(pattern, R"({"rateMatchPatternId":0,"patternType":{"bitmaps":@},"dummy":"dynamic"})",
                            [](auto& match)
                            {
                                match.Presence = RRC_PATTERN_TYPE_BITMAPS;
                                return &match.patternType.bitmaps;
                            });

const auto group = within(pdsch, pdschJson("", R"("rateMatchPatternGroup1":@)"),
                          [](auto& config)
                          {
                              config.bitMask = RRC_PDSCH_CFG_RATE_PATTERN_GROUP1_PRESENCE;
                              config.rateMatchPatternGroup1.numRateMatchPattern = 2;
                              config.rateMatchPatternGroup1.rateMatchPatternGroup[1].bwpLevel = 3;
                              return &config.rateMatchPatternGroup1;
                          });

const auto zpResource = within(pdsch, pdschJson("", "", R"("zp-CSI-RS-ResourceToAddModList":[@])"),
                               [](auto& config)
                               {
                                   config.numZpCsiRsResouceAddMod = 1;
                                   map(fresh(config.zpCsiRsResource[0]).resourceMapping);
                                   return &config.zpCsiRsResource[0];
                               });

const auto mapping = within(zpResource, R"({"zp-CSI-RS-ResourceId":0,"resourceMapping":@})",
                            [](auto& resource) { return &resource.resourceMapping; });

const auto period = within(
    zpResource, R"({"zp-CSI-RS-ResourceId":0,"resourceMapping":)" + mappingJson() + R"(,"periodicityAndOffset":@})",
    [](auto& resource)
    {
        resource.bitMask = RRC_ZP_CSI_RS_RESOURCE_PERIODICITY_OFFSET_PRESENCE;
        return &resource.periodictityAndOffset;
    });

const auto dmrs = within(pdsch, pdschJson(R"("dmrs-DownlinkForPDSCH-MappingTypeA":{"setup":@})"),
                         [](auto& config)
                         {
                             config.bitMask = RRC_PDSCH_CFG_MAPPING_TYPEA_PRESENCE;
                             return &config.dmrsDlPdschMappingTypeA;
                         });

const auto sps = within(downlink, R"({"sps-Config":{"setup":@}})",
                        [](auto& bwp)
                        {
                            bwp.bitMask = RRC_BWP_DL_DEDI_SPS_CFG_PRESENCE;
                            fresh(bwp.spsCfg).nrofHardProcess = 1;
                            return &bwp.spsCfg;
                        });

const auto monitoring =
    within(downlink, R"({"radioLinkMonitoringConfig":{"setup":{"failureDetectionResourcesToAddModList":[@]}}})",
           [](auto& bwp)
           {
               bwp.bitMask = RRC_BWP_DL_DEDI_RLM_CFG_PRESENCE;
               fresh(bwp.radioLinkMonitorCfg).numFailDetectResourceAddMod = 1;
               return &bwp.radioLinkMonitorCfg.failDetectResource[0];
           });

const auto bwpCommon = within(furtherDownlink, R"({"bwp-Id":0,"bwp-Common":@})",
                              [](auto& bwp)
                              {
                                  bwp.bitMask = RRC_BWP_DL_COMMON_PRESENCE;
                                  return &fresh(bwp.bwpCommon);
                              });

const auto pdschCommon = within(bwpCommon,
                                R"({"genericParameters":{"locationAndBandwidth":0,"subcarrierSpacing":"kHz15"},)"
                                R"("pdsch-ConfigCommon":{"setup":@}})",
                                [](auto& part)
                                {
                                    part.bitMask = RRC_BWP_DL_COMMON_PDSCH_CFG_COMMON_PRESENCE;
                                    return &part.pdschCfgCommon;
                                });

void pdcchRows(Table& table)
{
    table.row("record-coreset-non-interleaved")
        .sent(controlResourceSet,
              controlResourceSetJson(R"({"interleaved":{"reg-BundleSize":"n2","interleaverSize":"n2"}})"),
              [](auto& r) { r.presence = RRC_CCE_MAP_TYPE_INTERLEAVED | RRC_CCE_MAP_TYPE_NON_INTERLEAVED; })
        .sent(controlResourceSet, controlResourceSetJson())
        .asMeant();
    table.row("record-coreset-one-value")
        .sent(controlResourceSet,
              controlResourceSetJson(R"({"nonInterleaved":null})", R"("tci-PresentInDCI":"enabled")"),
              [](auto& r) { r.bitMask = RRC_CONTROL_RESOURCE_SET_TCI_IN_DCI_PRESENCE; })
        .asMeant()
        .oneValue(controlResourceSet, RRC_CONTROL_RESOURCE_SET_TCI_IN_DCI_PRESENCE,
                  &RrcControlResourceSet_t::enTciPresentInDci, "tci-PresentInDCI");
    table.row("record-coreset-frequency-upper-bits")
        .sent(controlResourceSet, controlResourceSetJson(R"({"nonInterleaved":null})", "", 1),
              [](auto& r) { r.freqDomainResource = (1ULL << 63) | (1ULL << 45) | 1; });
    table.row("record-search-space-period")
        .refused(searchSpace, ".monitoringSlotPeriodicityAndOffset: tag 0 is not in 1..15",
                 [](auto& r) { r.bitMask = RRC_SEARCH_SPACE_MON_SLOT_PERIOD_AND_OFFSET_PRESENCE; })
        .printing("No SearchSpace__monitoringSlotPeriodicityAndOffset_PR\n")
        .refused(searchSpace, ".monitoringSlotPeriodicityAndOffset: tag 16 is not in 1..15",
                 [](auto& r)
                 {
                     r.bitMask = RRC_SEARCH_SPACE_MON_SLOT_PERIOD_AND_OFFSET_PRESENCE;
                     r.monitoringSlotPeriodOffset.period = 16;
                 })
        .printing("No SearchSpace__monitoringSlotPeriodicityAndOffset_PR\n");
    table.row("record-search-space-offset")
        .sent(searchSpace, R"({"searchSpaceId":0,"monitoringSlotPeriodicityAndOffset":{"sl160":44}})",
              [](auto& r)
              {
                  r.bitMask = RRC_SEARCH_SPACE_MON_SLOT_PERIOD_AND_OFFSET_PRESENCE;
                  r.monitoringSlotPeriodOffset.period = 11;
                  r.monitoringSlotPeriodOffset.offset = 300;
              });
    table.row("record-search-space-type-choice")
        .sent(searchSpace,
              R"({"searchSpaceId":0,"searchSpaceType":{"ue-Specific":{"dci-Formats":"formats0-1-And-1-1"}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_SEARCH_SPACE_TYPE_PRESENCE;
                  r.presence = RRC_SEARCH_TYPE_COMMON_PRESENCE | RRC_SEARCH_TYPE_UE_SPECIFIC_PRESENCE;
                  r.searchType.common.presence = 1;
              })
        .refused(searchSpace, ".searchSpaceType: tag 0 is not in 1..2",
                 [](auto& r) { r.bitMask = RRC_SEARCH_SPACE_TYPE_PRESENCE; });
    table.row("record-search-space-dci-format2-0")
        .sent(commonSearch, R"({"dci-Format2-0":{"nrofCandidates-SFI":{"aggregationLevel4":"n2"}}})",
              [](auto& r)
              {
                  r.presence = RRC_SEARCH_TYPE_COMMON_DCI2_0_PRESENCE;
                  r.dci0AndDci2_0.presence = RRC_DCI2_0_AGGR_LEV4_PRESENCE;
                  r.dci0AndDci2_0.aggrLev4 = 1;
              })
        .sent(commonSearch, R"({"dci-Format0-0-AndFormat1-0":{}})",
              [](auto& r) { r.presence = RRC_SEARCH_TYPE_COMMON_DCI0_1_PRESENCE; });
    table.row("record-search-space-dci-format2-3-dummies")
        .sent(commonSearch, R"({"dci-Format2-3":{"dummy2":"n2"}})",
              [](auto& r)
              {
                  r.presence = RRC_SEARCH_TYPE_COMMON_DCI2_3_PRESENCE;
                  r.dci2_3.dummy1 = 7;
                  r.dci2_3.dummy2 = 1;
              })
        .sent(commonSearch, R"({"dci-Format2-3":{"dummy1":"sl1","dummy2":"n1"}})",
              [](auto& r)
              {
                  r.presence = RRC_SEARCH_TYPE_COMMON_DCI2_3_PRESENCE;
                  r.dci2_3.presence = RRC_DCI2_3_DUMMY1_PRESENCE;
              });
    table.row("record-pre-emption-list-count")
        .refused(pdcch, ".downlinkPreemption.setup.int-ConfigurationPerServingCell: 0 elements, not 1..32",
                 [](auto& r)
                 {
                     r.bitMask = RRC_PDCCH_CFG_Dl_PREEMPTION_PRESENCE;
                     rrcInit(&r.dlPreemption);
                 });
    table.row("record-tpc-srs-bit")
        .sent(pdcch, R"({"tpc-SRS":{"setup":{"fieldTypeFormat2-3":1}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_PDCCH_CFG_SPS_TPC_CMDCFG_PRESENCE;
                  r.tpcSrs.bitMask = RRC_SRS_TPC_FIELD_TYPE_PRESENCE;
                  r.tpcSrs.feildTypeFormat2_3 = 1;
              });
    table.row("record-tpc-srs-sul-starting-bit-field")
        .sent(pdcch, R"({"tpc-SRS":{"setup":{"startingBitOfFormat2-3":31}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_PDCCH_CFG_SPS_TPC_CMDCFG_PRESENCE;
                  r.tpcSrs.bitMask = RRC_SRS_TPC_STARTING_BIT_PRESENCE;
                  r.tpcSrs.startBitFormat2_3 = 31;
                  r.tpcSrs.startBitSulFormat2_3 = 255;
              });
    table.row("record-tpc-srs-sul-starting-bit")
        .sent(pdcch, R"({"tpc-SRS":{"setup":{}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_PDCCH_CFG_SPS_TPC_CMDCFG_PRESENCE;
                  r.tpcSrs.bitMask = RRC_SRS_TPC_STARTING_BIT_SUL_PRESENCE;
                  r.tpcSrs.startBitSulFormat2_3 = 1;
              });
}

void pdschRows(Table& table)
{
    table.row("record-prb-bundling-choice")
        .sent(pdsch, pdschJson("", "", "", R"({"dynamicBundling":{}})"),
              [](auto& r) { r.prbBitmask = RRC_PDSCH_CFG_PRB_BUNDLING_STATIC | RRC_PDSCH_CFG_PRB_BUNDLING_DYNAMIC; })
        .refused(pdsch, ".prb-BundlingType: tag 0 is not in 1..2", [](auto& r) { r.prbBitmask = 0; })
        .sent(pdsch, pdschJson(""))
        .asMeant();
    table.row("record-qcl-reference-signal")
        .sent(tciState, R"({"tci-StateId":0,"qcl-Type1":{"referenceSignal":{"csi-rs":63},"qcl-Type":"typeA"}})",
              [](auto& r) { r.qclType1.refSignal.ssbIdx = 63; })
        .sent(tciState, R"({"tci-StateId":0,"qcl-Type1":{"referenceSignal":{"ssb":63},"qcl-Type":"typeA"}})",
              [](auto& r)
              {
                  r.qclType1.Presence = RRC_QCI_INFO_SSB_IDX_PRESENCE;
                  r.qclType1.refSignal.ssbIdx = 63;
              });
    table.row("record-rate-match-group-choice")
        .sent(group, R"([{"cellLevel":0},{"cellLevel":3}])",
              [](auto& r) { r.presense = RRC_RATE_MATCH_PATTERN_GROUP_CELL_LEVEL_PRESENCE; })
        .asMeant()
        .sent(group, R"([{"bwpLevel":0},{"bwpLevel":3}])", [](auto& r) { r.presense = 3; })
        .refused(group, "[0]: tag 0 is not in 1..2");
    table.row("record-pdsch-rate-match-pattern")
        .sent(pattern, R"({"rateMatchPatternId":0,"patternType":{"controlResourceSet":11},"dummy":"semiStatic"})",
              [](auto& r)
              {
                  r.Presence = RRC_PATTERN_TYPE_BITMAPS | RRC_PATTERN_TYPE_SETID;
                  r.patternType.controlResourceSetId = 11;
                  r.dummy = 1;
              })
        .refused(pattern, ".patternType: tag 0 is not in 1..2")
        .sent(bitmaps,
              R"({"resourceBlocks":"1)" + std::string(274, '0') + R"(","symbolsInResourceBlock":{"twoSlots":)" +
                  test::bits(0xCDEF, 28) + "}}",
              [](auto& r)
              {
                  r.symbolsInResourceBlockPresence =
                      RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE | RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE;
                  r.symbolsInResourceBlock.twoSLots = 0xABCDEF;
                  r.resourceBlocks[0] = rtx::lowFirst(UINT64{0x80});
              })
        .sent(bitmaps,
              R"({"resourceBlocks":)" + zeros(275) + R"(,"symbolsInResourceBlock":{"twoSlots":)" + test::bits(1, 28) +
                  R"(},"periodicityAndPattern":{"n10":"0000000001"}})",
              [](auto& r)
              {
                  r.symbolsInResourceBlockPresence = RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE;
                  r.symbolsInResourceBlock.twoSLots = 0xABC0001;
                  r.bitMask = RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE;
                  r.periodictyAndPatternPresence =
                      RRC_BITMAPS_PERIODICTY_PATTERN_N4_PRESENCE | RRC_BITMAPS_PERIODICTY_PATTERN_N10_PRESENCE;
                  r.periodictyAndPattern.n10 = 0xFC01;
              })
        .refused(bitmaps, ".symbolsInResourceBlock: tag 7 is not in 1..2",
                 [](auto& r) { r.resourceBlocks[4] = rtx::lowFirst(UINT64{7} << 32); });
    table.row("record-csi-rs-mapping-frequency-choice")
        .sent(mapping, mappingJson(R"({"other":"000001"})"),
              [](auto& r)
              {
                  r.presenceFreqDomain = 0x0F;
                  r.freqDomainAlloc.other = 0xFFFFFFC1;
              })
        .refused(mapping, ".frequencyDomainAllocation: tag 0 is not in 1..4",
                 [](auto& r) { r.presenceFreqDomain = 0; });
    table.row("record-csi-rs-mapping-density-choice")
        .sent(mapping, mappingJson(R"({"row1":"0000"})", R"({"dot5":"oddPRBs"})"),
              [](auto& r)
              {
                  r.presenceDensity = 0x0F;
                  r.density.dots = 1;
              })
        .sent(mapping, mappingJson(R"({"row1":"0000"})", R"({"three":null})"),
              [](auto& r)
              {
                  r.presenceDensity = RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_THREE_PRESENCE |
                                      RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_SPARE_PRESENCE;
              })
        .refused(mapping, ".density: tag 0 is not in 1..4", [](auto& r) { r.presenceDensity = 0; });
    table.row("record-csi-rs-period-slots40")
        .sent(period, R"({"slots32":31})",
              [](auto& r)
              {
                  r.slotsPeriod = 8;
                  r.offset = 256 + 31;
              })
        .refused(period, ".slots32: 32 is not in 0..31",
                 [](auto& r)
                 {
                     r.slotsPeriod = 8;
                     r.offset = 32;
                 });
    table.row("record-csi-rs-period")
        .refused(period, ": tag 0 is not in 1..13")
        .printing("Have no CSI_ResourcePeriodicityAndOffset type\n")
        .refused(period, ": tag 14 is not in 1..13", [](auto& r) { r.slotsPeriod = 14; })
        .printing("Have no CSI_ResourcePeriodicityAndOffset type\n")
        .sent(period, R"({"slots640":639})",
              [](auto& r)
              {
                  r.slotsPeriod = 13;
                  r.offset = 639;
              })
        .asMeant();
    table.row("record-csi-rs-offset")
        .sent(period, R"({"slots4":1})",
              [](auto& r)
              {
                  r.slotsPeriod = 1;
                  r.offset = 257;
              })
        .sent(period, R"({"slots160":44})",
              [](auto& r)
              {
                  r.slotsPeriod = 11;
                  r.offset = 300;
              });
    table.row("record-pdsch-no-field")
        .sent(
            pdsch,
            pdschJson(
                "", "",
                R"("aperiodic-ZP-CSI-RS-ResourceSetsToAddModList":[{"zp-CSI-RS-ResourceSetId":0,)"
                R"("zp-CSI-RS-ResourceIdList":[0]}],"aperiodic-ZP-CSI-RS-ResourceSetsToReleaseList":[0],)"
                R"("p-ZP-CSI-RS-ResourceSet":{"setup":{"zp-CSI-RS-ResourceSetId":0,"zp-CSI-RS-ResourceIdList":[0]}})"),
            [](auto& r)
            {
                r.numZpCsiRsResourceSetAddMod = 1;
                fresh(r.aperiodicZpCsiRsResourceSet[0]).numzpCsiRsResourId = 1;
                r.numZpCsiRsResourceSetRel = 1;
                r.bitMask = RRC_PDSCH_CFG_ZP_CSI_RS_RESOURCE_SET_PRESENCE;
                r.pZpCsiRsResourceSet.numzpCsiRsResourId = 1;
            });
    table.row("record-pdsch-list-counts")
        .refused(pdsch, ".pdsch-TimeDomainAllocationList.setup: 0 elements, not 1..16",
                 [](auto& r)
                 {
                     r.bitMask = RRC_PDSCH_CFG_TIMING_ALLOC_PRESENCE;
                     rrcInit(&r.pdschTimeDomainAllocList);
                 })
        .refused(group, ": 0 elements, not 1..8", [](auto& r) { r.numRateMatchPattern = 0; })
        .sent(pdsch, pdschJson(""),
              [](auto& r)
              {
                  fresh(r.pdschTimeDomainAllocList).num = 1;
                  r.rateMatchPatternGroup1.numRateMatchPattern = 1;
                  r.rateMatchPatternGroup2.numRateMatchPattern = 1;
              })
        .asMeant();
    table.row("record-zp-csi-rs-set-count")
        .refused(pdsch, ".p-ZP-CSI-RS-ResourceSet.setup.zp-CSI-RS-ResourceIdList: 0 elements, not 1..16",
                 [](auto& r) { r.bitMask = RRC_PDSCH_CFG_ZP_CSI_RS_RESOURCE_SET_PRESENCE; });
    table.row("record-pdsch-one-value")
        .sent(dmrs, R"({"dmrs-Type":"type2","maxLength":"len2"})",
              [](auto& r) { r.bitMask = RRC_DMRS_DL_CFG_TYPE_PRESENCE | RRC_DMRS_DL_CFG_MAX_LEN_PRESENCE; })
        .asMeant()
        .oneValue(dmrs, RRC_DMRS_DL_CFG_TYPE_PRESENCE, &RrcDmrsDlCfg_t::dmrsType, "dmrs-Type")
        .oneValue(dmrs, RRC_DMRS_DL_CFG_MAX_LEN_PRESENCE, &RrcDmrsDlCfg_t::maxLength, "maxLength")
        .sent(sps, R"({"periodicity":"ms10","nrofHARQ-Processes":1,"mcs-Table":"qam64LowSE"})",
              [](auto& r) { r.bitMask = RRC_SPS_CFG_MCS_TABLE_PRESENCE; })
        .asMeant()
        .oneValue(sps, RRC_SPS_CFG_MCS_TABLE_PRESENCE, &RrcSpsCfg_t::mcsTable, "mcs-Table");
    table.row("record-rlm-resource-choice")
        .sent(monitoring,
              R"({"radioLinkMonitoringRS-Id":0,"purpose":"beamFailure","detectionResource":{"csi-RS-Index":63}})",
              [](auto& r)
              {
                  r.presence = RRC_RADIO_LINK_MONITOR_SSB_PRESENCE | RRC_RADIO_LINK_MONITOR_CSI_RS_PRESENCE;
                  r.detectionResource.ssbIdx = 63;
              })
        .refused(monitoring, ".detectionResource: tag 0 is not in 1..2")
        .sent(monitoring,
              R"({"radioLinkMonitoringRS-Id":0,"purpose":"beamFailure","detectionResource":{"csi-RS-Index":191}})",
              [](auto& r)
              {
                  r.presence = RRC_RADIO_LINK_MONITOR_CSI_RS_PRESENCE;
                  r.detectionResource.csiRsIdx = 191;
              })
        .asMeant();
}

void bandwidthPartRows(Table& table)
{
    table.row("record-pdcch-common-first-occasion")
        .sent(bwpCommon,
              R"({"genericParameters":{"locationAndBandwidth":0,"subcarrierSpacing":"kHz15"},)"
              R"("pdcch-ConfigCommon":{"setup":{}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_BWP_DL_COMMON_PDCCH_CFG_COMMON_PRESENCE;
                  r.pdcchCfgCommon.bitMask = RRC_PDCCH_CFG_COMMON_FIRST_PDCCH_MONITIOR_OCCASION_PRESENCE;
              });
    table.row("record-pdsch-common-allocations")
        .sent(pdschCommon, "{}", [](auto& r) { r.pdschTimeDomainAllocList.num = 3; })
        .refused(pdschCommon, ".pdsch-TimeDomainAllocationList: 0 elements, not 1..16",
                 [](auto& r) { r.bitMask = RRC_PDSCH_COMMON_PRESENCE; })
        .sent(pdschCommon, R"({"pdsch-TimeDomainAllocationList":[{"mappingType":"typeA","startSymbolAndLength":0}]})",
              [](auto& r)
              {
                  r.bitMask = RRC_PDSCH_COMMON_PRESENCE;
                  r.pdschTimeDomainAllocList.num = 1;
                  rrcInit(&r.pdschTimeDomainAllocList.alloc[0]);
              })
        .asMeant();
    table.row("record-bwp-cyclic-prefix-one-value")
        .sent(
            bwpCommon,
            R"({"genericParameters":{"locationAndBandwidth":0,"subcarrierSpacing":"kHz15","cyclicPrefix":"extended"}})",
            [](auto& r) { r.genericParam.bitMask = RRC_BWP_CYCLEPREFIX_PRESENCE; })
        .asMeant()
        .refused(bwpCommon, ".genericParameters.cyclicPrefix: 1 is not in 0..0",
                 [](auto& r)
                 {
                     r.genericParam.bitMask = RRC_BWP_CYCLEPREFIX_PRESENCE;
                     r.genericParam.cyclicPrefix = 1;
                 });
}

} // namespace

void downlinkRows(Table& table)
{
    pdcchRows(table);
    pdschRows(table);
    bandwidthPartRows(table);
}

} // namespace behaviour
