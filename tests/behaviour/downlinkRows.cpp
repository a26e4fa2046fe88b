// Rows of the downlink bandwidth parts.
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
    table.region("PDCCH (`RrcPdcchCfg_t`)");
    table
        .row("`RRC_CCE_MAP_TYPE_NON_INTERLEAVED`",
             "not read: `RRC_CCE_MAP_TYPE_INTERLEAVED` alone decides; without it nonInterleaved",
             "set or clear `RRC_CCE_MAP_TYPE_INTERLEAVED`")
        .sent(controlResourceSet,
              controlResourceSetJson(R"({"interleaved":{"reg-BundleSize":"n2","interleaverSize":"n2"}})"),
              [](auto& r) { r.presence = RRC_CCE_MAP_TYPE_INTERLEAVED | RRC_CCE_MAP_TYPE_NON_INTERLEAVED; })
        .sent(controlResourceSet, controlResourceSetJson());
    table
        .row("`enTciPresentInDci`", "0 is sent as enabled, any other number is refused",
             "store 0: the bit alone says it")
        .sent(controlResourceSet,
              controlResourceSetJson(R"({"nonInterleaved":null})", R"("tci-PresentInDCI":"enabled")"),
              [](auto& r) { r.bitMask = RRC_CONTROL_RESOURCE_SET_TCI_IN_DCI_PRESENCE; })
        .oneValue(controlResourceSet, RRC_CONTROL_RESOURCE_SET_TCI_IN_DCI_PRESENCE,
                  &RrcControlResourceSet_t::enTciPresentInDci, "tci-PresentInDCI");
    table
        .row("`freqDomainResource`", "the low 45 bits; higher ones are dropped",
             "store the first group of six resource blocks in bit 44")
        .sent(controlResourceSet, controlResourceSetJson(R"({"nonInterleaved":null})", "", 1),
              [](auto& r) { r.freqDomainResource = (1ULL << 63) | (1ULL << 45) | 1; });
    table
        .row("`monitoringSlotPeriodOffset.period` 0 or above 15",
             "the line \"No SearchSpace__monitoringSlotPeriodicityAndOffset_PR\", then refused",
             "store 1 (sl1) to 15 (sl2560); to leave it out, clear "
             "`RRC_SEARCH_SPACE_MON_SLOT_PERIOD_AND_OFFSET_PRESENCE`")
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
    table
        .row("`monitoringSlotPeriodOffset.offset`, periods 2 to 11", "the low 8 bits: 300 is sent as 44",
             "keep the offset below the period")
        .sent(searchSpace, R"({"searchSpaceId":0,"monitoringSlotPeriodicityAndOffset":{"sl160":44}})",
              [](auto& r)
              {
                  r.bitMask = RRC_SEARCH_SPACE_MON_SLOT_PERIOD_AND_OFFSET_PRESENCE;
                  r.monitoringSlotPeriodOffset.period = 11;
                  r.monitoringSlotPeriodOffset.offset = 300;
              });
    table
        .row("`RrcSearchSpace_t.presence` without exactly one bit",
             "both: ue-Specific, with `searchType` read as `ueSpecific`; none: refused",
             "set one bit; to leave the type out, clear `RRC_SEARCH_SPACE_TYPE_PRESENCE`")
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
    table
        .row("`dci0AndDci2_0`", "dci-Format2-0 only, despite the name",
             "for formats 0_0 and 1_0 set `RRC_SEARCH_TYPE_COMMON_DCI0_1_PRESENCE`; they need no field")
        .sent(commonSearch, R"({"dci-Format2-0":{"nrofCandidates-SFI":{"aggregationLevel4":"n2"}}})",
              [](auto& r)
              {
                  r.presence = RRC_SEARCH_TYPE_COMMON_DCI2_0_PRESENCE;
                  r.dci0AndDci2_0.presence = RRC_DCI2_0_AGGR_LEV4_PRESENCE;
                  r.dci0AndDci2_0.aggrLev4 = 1;
              })
        .sent(commonSearch, R"({"dci-Format0-0-AndFormat1-0":{}})",
              [](auto& r) { r.presence = RRC_SEARCH_TYPE_COMMON_DCI0_1_PRESENCE; });
    table
        .row("`dummy2`", "always sent with `RRC_SEARCH_TYPE_COMMON_DCI2_3_PRESENCE`; `dummy1` goes by its bit",
             "leave both 0 and the bit clear: the UE does not read them")
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
    table
        .row("`numServingCells` 0", "refused",
             "list the cells; to leave pre-emption out, clear `RRC_PDCCH_CFG_Dl_PREEMPTION_PRESENCE`")
        .refused(pdcch, ".downlinkPreemption.setup.int-ConfigurationPerServingCell: 0 elements, not 1..32",
                 [](auto& r)
                 {
                     r.bitMask = RRC_PDCCH_CFG_Dl_PREEMPTION_PRESENCE;
                     rrcInit(&r.dlPreemption);
                 });
    table
        .row("`RRC_PDCCH_CFG_SPS_TPC_CMDCFG_PRESENCE`", "tpc-SRS, from `tpcSrs`: nothing of semi-persistent scheduling",
             "set it for SRS power control")
        .sent(pdcch, R"({"tpc-SRS":{"setup":{"fieldTypeFormat2-3":1}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_PDCCH_CFG_SPS_TPC_CMDCFG_PRESENCE;
                  r.tpcSrs.bitMask = RRC_SRS_TPC_FIELD_TYPE_PRESENCE;
                  r.tpcSrs.feildTypeFormat2_3 = 1;
              });
    table
        .row("`RRC_SRS_TPC_STARTING_BIT_PRESENCE`, `startBitSulFormat2_3`",
             "startingBitOfFormat2-3 alone; the supplementary uplink's is not sent, whatever its field holds",
             "there is no way to give the supplementary uplink's starting bit; leave its field 0")
        .sent(pdcch, R"({"tpc-SRS":{"setup":{"startingBitOfFormat2-3":31}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_PDCCH_CFG_SPS_TPC_CMDCFG_PRESENCE;
                  r.tpcSrs.bitMask = RRC_SRS_TPC_STARTING_BIT_PRESENCE;
                  r.tpcSrs.startBitFormat2_3 = 31;
                  r.tpcSrs.startBitSulFormat2_3 = 255;
              });
    table.row("`RRC_SRS_TPC_STARTING_BIT_SUL_PRESENCE`", "not read", "leave it clear")
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
    table.region("PDSCH, SPS and radio link monitoring (`RrcPdschCfg_t`, `RrcSpsCfg_t`, `RrcRlmCfg_t`)");
    table
        .row("`prbBitmask` without exactly one bit",
             "both: dynamicBundling; none: refused, as every PDSCH-Config needs one",
             "set one bit; `RRC_PDSCH_CFG_PRB_BUNDLING_STATIC` without `bundleSize` means n2 to the UE")
        .sent(pdsch, pdschJson("", "", "", R"({"dynamicBundling":{}})"),
              [](auto& r) { r.prbBitmask = RRC_PDSCH_CFG_PRB_BUNDLING_STATIC | RRC_PDSCH_CFG_PRB_BUNDLING_DYNAMIC; })
        .refused(pdsch, ".prb-BundlingType: tag 0 is not in 1..2", [](auto& r) { r.prbBitmask = 0; })
        .sent(pdsch, pdschJson(""));
    table
        .row("`RRC_QCI_INFO_SSB_IDX_PRESENCE` clear", "csi-rs, the octet of `RrcQclInfo_t.refSignal` being its id",
             "set the bit for an SSB")
        .sent(tciState, R"({"tci-StateId":0,"qcl-Type1":{"referenceSignal":{"csi-rs":63},"qcl-Type":"typeA"}})",
              [](auto& r) { r.qclType1.refSignal.ssbIdx = 63; })
        .sent(tciState, R"({"tci-StateId":0,"qcl-Type1":{"referenceSignal":{"ssb":63},"qcl-Type":"typeA"}})",
              [](auto& r)
              {
                  r.qclType1.Presence = RRC_QCI_INFO_SSB_IDX_PRESENCE;
                  r.qclType1.refSignal.ssbIdx = 63;
              });
    table
        .row("`presense`", "one for all patterns of the group; both bits: bwpLevel; none: refused",
             "set one bit; put patterns of the other level into the other group")
        .sent(group, R"([{"cellLevel":0},{"cellLevel":3}])",
              [](auto& r) { r.presense = RRC_RATE_MATCH_PATTERN_GROUP_CELL_LEVEL_PRESENCE; })
        .sent(group, R"([{"bwpLevel":0},{"bwpLevel":3}])", [](auto& r) { r.presense = 3; })
        .refused(group, "[0]: tag 0 is not in 1..2");
    table
        .row("`RrcRateMatchPattern_t`",
             "as in the common part: what is said there of its masks, `resourceBlocks`, `twoSLots` and "
             "`RrcRateMatchPattern_t.dummy` holds here, too",
             "as there")
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
                  r.resourceBlocks[0] = 0x80;
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
                 [](auto& r) { r.resourceBlocks[4] = 7ULL << 32; });
    table
        .row("`presenceFreqDomain` without exactly one bit",
             "of several the highest, with as many low bits of `freqDomainAlloc` as it has; without one refused",
             "set one bit")
        .sent(mapping, mappingJson(R"({"other":"000001"})"),
              [](auto& r)
              {
                  r.presenceFreqDomain = 0x0F;
                  r.freqDomainAlloc.other = 0xFFFFFFC1;
              })
        .refused(mapping, ".frequencyDomainAllocation: tag 0 is not in 1..4",
                 [](auto& r) { r.presenceFreqDomain = 0; });
    table.row("`presenceDensity` without exactly one bit", "of several the lowest; without one refused", "set one bit")
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
    table
        .row("`slotsPeriod` 8 (slots40)", "slots32; an offset of 32 to 39 is refused",
             "use 6 (slots20) or 10 (slots80), or put slots40 into the tree of `rrcComposeCellGroupTree`")
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
    table
        .row("`slotsPeriod` 0 or above 13", "the line \"Have no CSI_ResourcePeriodicityAndOffset type\", then refused",
             "store 1 (slots4) to 13 (slots640); to leave it out, clear its bit")
        .refused(period, ": tag 0 is not in 1..13")
        .printing("Have no CSI_ResourcePeriodicityAndOffset type\n")
        .refused(period, ": tag 14 is not in 1..13", [](auto& r) { r.slotsPeriod = 14; })
        .printing("Have no CSI_ResourcePeriodicityAndOffset type\n");
    table
        .row("`RrcCsiResourcePeriodictyAndOffset_t.offset`, `slotsPeriod` 1 to 11", "the low 8 bits: 257 is sent as 1",
             "keep the offset below the period")
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
    table
        .row("no field: sp-ZP-CSI-RS-ResourceSetsToAddModList and -ToReleaseList", "not sent",
             "use aperiodic sets, `aperiodicZpCsiRsResourceSet`, or the periodic one, `pZpCsiRsResourceSet`")
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
    table
        .row("`RrcPdschTimeDomainResourceAllocList_t.num`, `numRateMatchPattern`",
             "0 with the bit of the list: refused; not 0 without it: not sent", "set bit and count together")
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
              });
    table.row("`numzpCsiRsResourId` 0", "refused", "list the resources, or leave the set out")
        .refused(pdsch, ".p-ZP-CSI-RS-ResourceSet.setup.zp-CSI-RS-ResourceIdList: 0 elements, not 1..16",
                 [](auto& r) { r.bitMask = RRC_PDSCH_CFG_ZP_CSI_RS_RESOURCE_SET_PRESENCE; });
    table
        .row("`RrcDmrsDlCfg_t.dmrsType`, `RrcDmrsDlCfg_t.maxLength`, `RrcSpsCfg_t.mcsTable`",
             "0 is sent as the one value, type2, len2, qam64LowSE; any other number is refused",
             "store 0: the bit alone says it")
        .sent(dmrs, R"({"dmrs-Type":"type2","maxLength":"len2"})",
              [](auto& r) { r.bitMask = RRC_DMRS_DL_CFG_TYPE_PRESENCE | RRC_DMRS_DL_CFG_MAX_LEN_PRESENCE; })
        .oneValue(dmrs, RRC_DMRS_DL_CFG_TYPE_PRESENCE, &RrcDmrsDlCfg_t::dmrsType, "dmrs-Type")
        .oneValue(dmrs, RRC_DMRS_DL_CFG_MAX_LEN_PRESENCE, &RrcDmrsDlCfg_t::maxLength, "maxLength")
        .sent(sps, R"({"periodicity":"ms10","nrofHARQ-Processes":1,"mcs-Table":"qam64LowSE"})",
              [](auto& r) { r.bitMask = RRC_SPS_CFG_MCS_TABLE_PRESENCE; })
        .oneValue(sps, RRC_SPS_CFG_MCS_TABLE_PRESENCE, &RrcSpsCfg_t::mcsTable, "mcs-Table");
    table
        .row("`RrcRadioLinkMonitorRs_t.presence` without exactly one bit",
             "both: csi-RS-Index, the octet of `detectionResource` being its id; none: refused", "set one bit")
        .sent(monitoring,
              R"({"radioLinkMonitoringRS-Id":0,"purpose":"beamFailure","detectionResource":{"csi-RS-Index":63}})",
              [](auto& r)
              {
                  r.presence = RRC_RADIO_LINK_MONITOR_SSB_PRESENCE | RRC_RADIO_LINK_MONITOR_CSI_RS_PRESENCE;
                  r.detectionResource.ssbIdx = 63;
              })
        .refused(monitoring, ".detectionResource: tag 0 is not in 1..2");
}

void bandwidthPartRows(Table& table)
{
    table.region("Further downlink bandwidth parts (`RrcBwpDl_t`)");
    table
        .row("`RRC_PDCCH_CFG_COMMON_FIRST_PDCCH_MONITIOR_OCCASION_PRESENCE`",
             "nothing is sent: firstPDCCH-MonitoringOccasionOfPO has no field here",
             "send it in the initial bandwidth part's common part, which the distributed unit composes: "
             "`firstPdcchMonitoringOccasion`")
        .sent(bwpCommon,
              R"({"genericParameters":{"locationAndBandwidth":0,"subcarrierSpacing":"kHz15"},)"
              R"("pdcch-ConfigCommon":{"setup":{}}})",
              [](auto& r)
              {
                  r.bitMask = RRC_BWP_DL_COMMON_PDCCH_CFG_COMMON_PRESENCE;
                  r.pdcchCfgCommon.bitMask = RRC_PDCCH_CFG_COMMON_FIRST_PDCCH_MONITIOR_OCCASION_PRESENCE;
              });
    table
        .row(
            "`RRC_PDSCH_COMMON_PRESENCE`",
            "clear: an empty pdsch-ConfigCommon, whatever `pdschTimeDomainAllocList` holds; set with a count of 0: "
            "refused",
            "set bit and count together; to leave the element out, clear `RRC_BWP_DL_COMMON_PDSCH_CFG_COMMON_PRESENCE`")
        .sent(pdschCommon, "{}", [](auto& r) { r.pdschTimeDomainAllocList.num = 3; })
        .refused(pdschCommon, ".pdsch-TimeDomainAllocationList: 0 elements, not 1..16",
                 [](auto& r) { r.bitMask = RRC_PDSCH_COMMON_PRESENCE; });
    table
        .row("`RrcBwp_t.cyclicPrefix`, of uplink bandwidth parts, too",
             "0 is sent as extended, any other number is refused", "store 0: the bit alone says it")
        .sent(
            bwpCommon,
            R"({"genericParameters":{"locationAndBandwidth":0,"subcarrierSpacing":"kHz15","cyclicPrefix":"extended"}})",
            [](auto& r) { r.genericParam.bitMask = RRC_BWP_CYCLEPREFIX_PRESENCE; })
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
