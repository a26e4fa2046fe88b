#include "cellGroupCfg/spCell.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string>

#include "NR-RRC-Pdus.h"
#include "byteOrder.h"
#include "reconfigurationWithSync.h"
#include "servingCellRecords.h"
#include "support/ComposerTest.h"
#include "support/RecordOrder.h"

using test::fillServingCell;
using test::HeapFault;
using test::rising;
using test::servingCellJson;
using testing::HasSubstr;
using testing::StartsWith;

namespace
{

class spCell : public test::ComposerTest
{
protected:
    void expectSpCell(RrcSpCellCfg_t& cfg, const std::string& json)
    {
        SCOPED_TRACE(json);
        const auto element = cleared<SpCellConfig>();
        EXPECT_EQ(rrcComposeSP_CellGroupCfg(&context, element.get(), &cfg), VOS_OK);
        expectDecoded("SpCellConfig", asn1PE_SpCellConfig, *element, json);
        EXPECT_EQ(printed(), "");
    }

    void expectSync(RrcReconfWithSync_t& cfg, const std::string& json)
    {
        SCOPED_TRACE(json);
        const auto element = cleared<ReconfigurationWithSync>();
        EXPECT_EQ(rrcComposeReconfigurationWithSync(&context, element.get(), &cfg), VOS_OK);
        expectDecoded("ReconfigurationWithSync", asn1PE_ReconfigurationWithSync, *element, json);
        EXPECT_EQ(printed(), "");
    }

    // The whole way through the entry: the octets are those of the tree that they decode to, which is left to the
    // independent decoder.
    void expectMessage(RrcCellGroupCfg_t& record, const std::string& json)
    {
        ASSERT_EQ(compose(record), VOS_OK) << printed();
        EXPECT_EQ(printed(), "");
        const auto tree = cleared<CellGroupConfig>();
        ASSERT_EQ(pu_setBuffer(&context, octets_.data(), message_.bufLen, 0), 0);
        ASSERT_EQ(asn1PD_CellGroupConfig(&context, tree.get()), 0);
        expectDecoded("CellGroupConfig", asn1PE_CellGroupConfig, *tree, json);
        ASSERT_EQ(pu_getMsgLen(&context), message_.bufLen);
        EXPECT_EQ(encode(asn1PE_CellGroupConfig, *tree), test::hexDigits(octets_.data(), message_.bufLen));
    }

    INT32 compose(RrcCellGroupCfg_t& record)
    {
        message_ = {noLength, octets_.data()};
        return rrcComposeCellGroupCfg(&record, &message_);
    }

    static constexpr UINT32 noLength = 77;
    std::array<UINT8, 8192> octets_{};
    Mbuf_t message_{};
};

} // namespace

TEST_F(spCell, RecordsLieInTheirOrder)
{
    using Sync = RrcReconfWithSync_t;
    EXPECT_TRUE(
        rising({offsetof(Sync, newUEId), offsetof(Sync, t304), offsetof(Sync, bitMask), offsetof(Sync, rachCfgBitMask),
                offsetof(Sync, choice), offsetof(Sync, spCellConfigCommon), offsetof(Sync, smtc)}));
    EXPECT_EQ(offsetof(Sync, choice.uplink), offsetof(Sync, choice.suppUplink));
    EXPECT_EQ(sizeof(Sync{}.newUEId), 2U);
    using Timers = RrcRlfTimerConstants_t;
    EXPECT_TRUE(
        rising({offsetof(Timers, t310), offsetof(Timers, n310), offsetof(Timers, n311), offsetof(Timers, t311)}));
    using SpCell = RrcSpCellCfg_t;
    EXPECT_TRUE(rising({offsetof(SpCell, bitMask), offsetof(SpCell, servCellIdx), offsetof(SpCell, recfgWithSync),
                        offsetof(SpCell, rlfTimerConstants), offsetof(SpCell, rlmInSyncOutSyncThreshold),
                        offsetof(SpCell, spCellDedicated)}));
}

// SpCellConfig

TEST_F(spCell, NoBitGivesAnEmptySpecialCell)
{
    const auto cfg = cleared<RrcSpCellCfg_t>();
    std::memset(cfg.get(), 0xFF, sizeof *cfg);
    cfg->bitMask = 0xE0;
    expectSpCell(*cfg, "{}");
}

TEST_F(spCell, EachMemberAloneAndAll)
{
    const auto cfg = cleared<RrcSpCellCfg_t>();
    cfg->servCellIdx = 31;
    cfg->recfgWithSync.newUEId = 65535;
    cfg->recfgWithSync.t304 = 7;
    cfg->rlfTimerConstants = {8, 7, 6, 5};
    cfg->rlmInSyncOutSyncThreshold = 0;
    const std::string index = R"("servCellIndex":31)";
    const std::string sync = R"("reconfigurationWithSync":{"newUE-Identity":65535,"t304":"ms10000"})";
    const std::string timers =
        R"("rlf-TimersAndConstants":{"setup":{"t310":"ms6000","n310":"n20","n311":"n8","t311-v1530":"ms20000"}})";
    const std::string threshold = R"("rlmInSyncOutOfSyncThreshold":"n1")";
    fillServingCell(cfg->spCellDedicated, 0xFFFF, 2, 1);
    const std::string dedicated = "\"spCellConfigDedicated\":" + servingCellJson(0xFFFF, 2, 1);
    cfg->bitMask = RRC_SPCELLCFG_CELLIDX_PRESENCE;
    expectSpCell(*cfg, "{" + index + "}");
    cfg->bitMask = RRC_SPCELLCFG_RECFG_PRESENCE;
    expectSpCell(*cfg, "{" + sync + "}");
    cfg->bitMask = RRC_SPCELLCFG_RLFTIMER_PRESENCE;
    expectSpCell(*cfg, "{" + timers + "}");
    cfg->bitMask = RRC_SPCELLCFG_THRESHOLD_PRESENCE;
    expectSpCell(*cfg, "{" + threshold + "}");
    cfg->bitMask = RRC_SPCELLCFG_DEDICFG_PRESENCE;
    expectSpCell(*cfg, "{" + dedicated + "}");
    cfg->bitMask = 0x1F;
    expectSpCell(*cfg, "{" + index + "," + sync + "," + timers + "," + threshold + "," + dedicated + "}");
}

TEST_F(spCell, NullGuards)
{
    const auto element = cleared<SpCellConfig>();
    EXPECT_EQ(rrcComposeSP_CellGroupCfg(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeSP_CellGroupCfg", "pSpCellConfig"));
    EXPECT_EQ(rrcComposeSP_CellGroupCfg(&context, element.get(), nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeSP_CellGroupCfg", "pRrcSpCellCfg"));

    EXPECT_EQ(rrcComposeReconfigurationWithSync(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeReconfigurationWithSync", "pReconfigurationWithSync"));
    EXPECT_EQ(rrcComposeReconfigurationWithSync(&context, &element->reconfigurationWithSync, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeReconfigurationWithSync", "pRrcRecfgWithSync"));

    // The record first.
    RrcRlfTimerConstants_t timers{};
    EXPECT_EQ(rrcComposeRlf_TimersAndConstants(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRlf_TimersAndConstants", "pRrcRlfTimerConstants"));
    EXPECT_EQ(rrcComposeRlf_TimersAndConstants(&context, &element->rlf_TimersAndConstants, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRlf_TimersAndConstants", "pRrcRlfTimerConstants"));
    EXPECT_EQ(rrcComposeRlf_TimersAndConstants(&context, nullptr, &timers), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRlf_TimersAndConstants", "pRlf_TimersAndConstants"));
}

// ReconfigurationWithSync

TEST_F(spCell, SyncMembers)
{
    const auto cfg = cleared<RrcReconfWithSync_t>();
    cfg->newUEId = 17;
    cfg->rachCfgBitMask = RRC_RACH_CFG_UPLINK_PRESENCE;
    cfg->spCellConfigCommon.dmrsTypeAPosition = 1;
    cfg->smtc = {3, 19, 4};
    const std::string common = R"("spCellConfigCommon":{"dmrs-TypeA-Position":"pos3","ss-PBCH-BlockPower":0},)";
    const std::string always = R"("newUE-Identity":17,"t304":"ms50")";
    const std::string rach = R"(,"rach-ConfigDedicated":{"uplink":{}})";
    const std::string smtc = R"(,"smtc":{"periodicityAndOffset":{"sf20":19},"duration":"sf5"})";
    cfg->bitMask = 0xF8;
    expectSync(*cfg, "{" + always + "}");
    cfg->bitMask = RRC_SERVING_CELL_CFG_COMMON_PRESENCE;
    expectSync(*cfg, "{" + common + always + "}");
    cfg->bitMask = RRC_RACH_CFG_DEDI_PRESENCE;
    expectSync(*cfg, "{" + always + rach + "}");
    cfg->bitMask = RRC_SSBMTC_PRESENCE;
    expectSync(*cfg, "{" + always + smtc + "}");
    cfg->bitMask = 7;
    expectSync(*cfg, "{" + common + always + rach + smtc + "}");
}

TEST_F(spCell, TimingAnnouncesItsExtensionGroup)
{
    const auto cfg = cleared<RrcReconfWithSync_t>();
    const auto element = cleared<ReconfigurationWithSync>();
    cfg->bitMask = RRC_SSBMTC_PRESENCE;
    cfg->smtc.period = 1;
    EXPECT_EQ(rrcComposeReconfigurationWithSync(&context, element.get(), cfg.get()), VOS_OK);
    EXPECT_EQ(element->m.smtcPresent, 1U);
    EXPECT_EQ(element->m._v2ExtPresent, 1U);
    EXPECT_EQ(element->m.spCellConfigCommonPresent, 0U);
    EXPECT_EQ(element->m.rach_ConfigDedicatedPresent, 0U);
}

TEST_F(spCell, FailedRandomAccessStaysAnnounced)
{
    const auto cfg = cleared<RrcReconfWithSync_t>();
    cfg->bitMask = RRC_RACH_CFG_DEDI_PRESENCE | RRC_SSBMTC_PRESENCE;
    cfg->rachCfgBitMask = RRC_RACH_CFG_UPLINK_PRESENCE;
    cfg->smtc = {1, 4, 0};
    const auto element = cleared<ReconfigurationWithSync>();
    {
        const HeapFault fault(0);
        EXPECT_EQ(rrcComposeReconfigurationWithSync(&context, element.get(), cfg.get()), VOS_OK);
    }
    EXPECT_EQ(printed(), nullLine("rrcComposeRach_ConfigDedicated_uplink", "pRachCfgDedicated") +
                             "rrcComposeRach_ConfigDedicated_uplink Error\r\n");
    EXPECT_EQ(element->m.rach_ConfigDedicatedPresent, 1U);
    EXPECT_EQ(element->m.smtcPresent, 1U) << "the composition continues";
    EXPECT_EQ(element->smtc.periodicityAndOffset.u.sf5, 4);
    EXPECT_EQ(encode(asn1PE_ReconfigurationWithSync, *element),
              "ReconfigurationWithSync.rach-ConfigDedicated: tag 0 is not in 1..2");
}

// RLF-TimersAndConstants

TEST_F(spCell, TimersAreSetUpWithT311)
{
    RrcRlfTimerConstants_t cfg{1, 2, 3, 4};
    SpCellConfig_rlf_TimersAndConstants element{};
    EXPECT_EQ(rrcComposeRlf_TimersAndConstants(&context, &element, &cfg), VOS_OK);
    ASSERT_EQ(element.t, 2U);
    EXPECT_EQ(element.u.setup->t310, 1U);
    EXPECT_EQ(element.u.setup->n310, 2U);
    EXPECT_EQ(element.u.setup->n311, 3U);
    EXPECT_EQ(element.u.setup->t311_v1530, 4U);
    EXPECT_EQ(element.u.setup->m._v2ExtPresent, 1U);
}

TEST_F(spCell, TimersWithoutHeapAreRefusedByTheEncoder)
{
    const auto cfg = cleared<RrcSpCellCfg_t>();
    cfg->bitMask = RRC_SPCELLCFG_RLFTIMER_PRESENCE;
    const auto element = cleared<SpCellConfig>();
    {
        const HeapFault fault(0);
        EXPECT_EQ(rrcComposeSP_CellGroupCfg(&context, element.get(), cfg.get()), VOS_OK);
    }
    EXPECT_EQ(printed(), "");
    EXPECT_EQ(encode(asn1PE_SpCellConfig, *element), "SpCellConfig.rlf-TimersAndConstants: tag 0 is not in 1..2");
}

// Messages

TEST_F(spCell, Handover)
{
    const std::string carrier =
        R"("scs-SpecificCarrierList":[{"offsetToCarrier":0,"subcarrierSpacing":"kHz30","carrierBandwidth":273}])";
    const std::string generic =
        R"("rach-ConfigGeneric":{"prach-ConfigurationIndex":159,"msg1-FDM":"one","msg1-FrequencyStart":0,"zeroCorrelationZoneConfig":13,)"
        R"("preambleReceivedTargetPower":-104,"preambleTransMax":"n10","powerRampingStep":"dB2","ra-ResponseWindow":"sl20"})";
    const std::string parameters = R"("genericParameters":{"locationAndBandwidth":1099,"subcarrierSpacing":"kHz30"})";
    const std::string downlink =
        R"("downlinkConfigCommon":{"frequencyInfoDL":{"absoluteFrequencySSB":633312,"frequencyBandList":[78],"absoluteFrequencyPointA":630058,)" +
        carrier + R"(},"initialDownlinkBWP":{)" + parameters +
        R"(,"pdcch-ConfigCommon":{"setup":{"controlResourceSetZero":10,"commonControlResourceSet":{"controlResourceSetId":1,)"
        R"("frequencyDomainResources":"111111111111111111111111111111111111111111111","duration":1,"cce-REG-MappingType":{"nonInterleaved":null},)"
        R"("precoderGranularity":"sameAsREG-bundle"},"searchSpaceZero":0,"commonSearchSpaceList":[{"searchSpaceId":1,"controlResourceSetId":1,)"
        R"("monitoringSlotPeriodicityAndOffset":{"sl1":null},"monitoringSymbolsWithinSlot":"10000000000000","nrofCandidates":{"aggregationLevel1":"n0",)"
        R"("aggregationLevel2":"n0","aggregationLevel4":"n2","aggregationLevel8":"n1","aggregationLevel16":"n0"},)"
        R"("searchSpaceType":{"common":{"dci-Format0-0-AndFormat1-0":{}}}}],"ra-SearchSpace":1}},)"
        R"("pdsch-ConfigCommon":{"setup":{"pdsch-TimeDomainAllocationList":[{"mappingType":"typeA","startSymbolAndLength":53}]}}}},)";
    const std::string uplink =
        R"("uplinkConfigCommon":{"frequencyInfoUL":{)" + carrier + R"(},"initialUplinkBWP":{)" + parameters +
        R"(,"rach-ConfigCommon":{"setup":{)" + generic +
        R"(,"ssb-perRACH-OccasionAndCB-PreamblesPerSSB":{"one":"n56"},"ra-ContentionResolutionTimer":"sf64","rsrp-ThresholdSSB":19,)"
        R"("prach-RootSequenceIndex":{"l139":1},"msg1-SubcarrierSpacing":"kHz30","restrictedSetConfig":"unrestrictedSet"}},)"
        R"("pusch-ConfigCommon":{"setup":{"pusch-TimeDomainAllocationList":[{"k2":4,"mappingType":"typeB","startSymbolAndLength":41}],)"
        R"("msg3-DeltaPreamble":1,"p0-NominalWithGrant":-90}},)"
        R"("pucch-ConfigCommon":{"setup":{"pucch-ResourceCommon":0,"pucch-GroupHopping":"neither","hoppingId":42,"p0-nominal":-90}}},"dummy":"infinity"},)";
    const std::string common =
        R"("spCellConfigCommon":{"physCellId":42,)" + downlink + uplink +
        R"("n-TimingAdvanceOffset":"n25600","ssb-PositionsInBurst":{"mediumBitmap":"11000000"},"ssb-periodicityServingCell":"ms20",)"
        R"("dmrs-TypeA-Position":"pos2","ssbSubcarrierSpacing":"kHz30","tdd-UL-DL-ConfigurationCommon":{"referenceSubcarrierSpacing":"kHz30",)"
        R"("pattern1":{"dl-UL-TransmissionPeriodicity":"ms2p5","nrofDownlinkSlots":3,"nrofDownlinkSymbols":10,"nrofUplinkSlots":1,"nrofUplinkSymbols":2}},)"
        R"("ss-PBCH-BlockPower":-16},)";
    const std::string sync =
        R"("reconfigurationWithSync":{)" + common +
        R"("newUE-Identity":17921,"t304":"ms1000",)"
        R"("rach-ConfigDedicated":{"uplink":{"cfra":{"occasions":{)" +
        generic +
        R"(,"ssb-perRACH-Occasion":"one"},"resources":{"ssb":{"ssb-ResourceList":[{"ssb":0,"ra-PreambleIndex":60},{"ssb":1,"ra-PreambleIndex":61}],)"
        R"("ra-ssb-OccasionMaskIndex":0}}}}},"smtc":{"periodicityAndOffset":{"sf20":0},"duration":"sf2"}},)";
    const std::string bearer =
        R"("rlc-BearerToAddModList":[{"logicalChannelIdentity":4,"servedRadioBearer":{"drb-Identity":1},"rlc-Config":{"am":{)"
        R"("ul-AM-RLC":{"sn-FieldLength":"size18","t-PollRetransmit":"ms45","pollPDU":"p32","pollByte":"infinity","maxRetxThreshold":"t32"},)"
        R"("dl-AM-RLC":{"sn-FieldLength":"size18","t-Reassembly":"ms40","t-StatusProhibit":"ms15"}}},)"
        R"("mac-LogicalChannelConfig":{"ul-SpecificParameters":{"priority":8,"prioritisedBitRate":"infinity","bucketSizeDuration":"ms100",)"
        R"("logicalChannelGroup":1,"schedulingRequestID":0,"logicalChannelSR-Mask":false,"logicalChannelSR-DelayTimerApplied":false}}}],)";
    const std::string mac =
        R"("mac-CellGroupConfig":{"drx-Config":{"setup":{"drx-onDurationTimer":{"milliSeconds":"ms10"},"drx-InactivityTimer":"ms100",)"
        R"("drx-HARQ-RTT-TimerDL":56,"drx-HARQ-RTT-TimerUL":56,"drx-RetransmissionTimerDL":"sl8","drx-RetransmissionTimerUL":"sl8",)"
        R"("drx-LongCycleStartOffset":{"ms320":9},"shortDRX":{"drx-ShortCycle":"ms80","drx-ShortCycleTimer":2},"drx-SlotOffset":0}},)"
        R"("schedulingRequestConfig":{"schedulingRequestToAddModList":[{"schedulingRequestId":0,"sr-ProhibitTimer":"ms4","sr-TransMax":"n64"}]},)"
        R"("bsr-Config":{"periodicBSR-Timer":"sf10","retxBSR-Timer":"sf80"},)"
        R"("tag-Config":{"tag-ToAddModList":[{"tag-Id":0,"timeAlignmentTimer":"infinity"}]},)"
        R"("phr-Config":{"setup":{"phr-PeriodicTimer":"sf100","phr-ProhibitTimer":"sf100","phr-Tx-PowerFactorChange":"dB3","multiplePHR":false,)"
        R"("dummy":false,"phr-Type2OtherCell":false,"phr-ModeOtherCG":"real"}},"skipUplinkTxDynamic":false},)";
    const std::string phy = R"("physicalCellGroupConfig":{"p-NR-FR1":23,"pdsch-HARQ-ACK-Codebook":"dynamic"},)";
    const auto record = cleared<RrcCellGroupCfg_t>();
    reconfigurationWithSync(*record);
    expectMessage(
        *record,
        R"({"cellGroupId":0,)" + bearer + mac + phy + R"("spCellConfig":{)" + sync +
            R"("rlf-TimersAndConstants":{"setup":{"t310":"ms1000","n310":"n10","n311":"n1","t311-v1530":"ms3000"}}}})");
}

TEST_F(spCell, SupplementaryUplinkRachAndRateMatchPatterns)
{
    const auto record = cleared<RrcCellGroupCfg_t>();
    record->bitMask = RRC_CELLGROUPCFG_SPCELL_PRESENCE;
    record->spCellCfg.bitMask = RRC_SPCELLCFG_CELLIDX_PRESENCE | RRC_SPCELLCFG_RECFG_PRESENCE;
    record->spCellCfg.servCellIdx = 1;
    RrcReconfWithSync_t& sync = record->spCellCfg.recfgWithSync;
    sync.bitMask = RRC_RACH_CFG_DEDI_PRESENCE | RRC_SERVING_CELL_CFG_COMMON_PRESENCE;
    sync.rachCfgBitMask = RRC_RACH_CFG_SUPPUPLINK_PRESENCE;
    sync.choice.suppUplink.bitMask = RRC_RACH_CFG_DEDI_CFRA_PRESENCE | RRC_RACH_CFG_DEDI_RA_PRIO_PRESENCE;
    sync.choice.suppUplink.raPrio = {2, RRC_RA_PRIO_SCALINGFACTOR_PRESENCE, 1};
    RrcCfra_t& cfra = sync.choice.suppUplink.cfra;
    cfra.bitMask = RRC_SCIS_RESOURCE | RRC_CFRA_PREAMBLE_PRESENCE;
    cfra.totalNumOfRaPreableV1530 = 4;
    cfra.resources.scirs.numCsirsRecouces = 1;
    cfra.resources.scirs.csirsResource[0].numRaOccasion = 1;
    cfra.resources.scirs.csirsResource[0].raOccasionIdx[0] = 300;
    RrcServingCellCfgCommon_t& cell = sync.spCellConfigCommon;
    cell.numRateMatchPatternAddMod = 1;
    RrcRateMatchPattern_t& pattern = cell.rateMatchPatternToAddMod[0];
    pattern.Presence = RRC_PATTERN_TYPE_BITMAPS;
    pattern.patternType.bitmaps.resourceBlocks[0] = rtx::lowFirst(UINT64{0x80}); // the first octet's first bit
    pattern.patternType.bitmaps.symbolsInResourceBlockPresence = RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE;
    pattern.patternType.bitmaps.symbolsInResourceBlock.twoSLots = 0xF0001;
    pattern.patternType.bitmaps.bitMask = RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE;
    pattern.patternType.bitmaps.periodictyAndPatternPresence = RRC_BITMAPS_PERIODICTY_PATTERN_N40_PRESENCE;
    pattern.patternType.bitmaps.periodictyAndPattern.n40 = 1;
    cell.numRateMatchPatternRelease = 1;
    cell.rateMatchPatternId[0] = 3;
    expectMessage(
        *record,
        R"({"cellGroupId":0,"spCellConfig":{"servCellIndex":1,"reconfigurationWithSync":{"spCellConfigCommon":{"dmrs-TypeA-Position":"pos2",)"
        R"("rateMatchPatternToAddModList":[{"rateMatchPatternId":0,"patternType":{"bitmaps":{"resourceBlocks":"1)" +
            std::string(274, '0') +
            R"(","symbolsInResourceBlock":{"twoSlots":"0000000000000000000000000001"},)"
            R"("periodicityAndPattern":{"n40":"0000000000000000000000000000000000000001"}}},"dummy":"dynamic"}],)"
            R"("rateMatchPatternToReleaseList":[3],"ss-PBCH-BlockPower":0},"newUE-Identity":0,"t304":"ms50",)"
            R"("rach-ConfigDedicated":{"supplementaryUplink":{"cfra":{"resources":{"csirs":{"csirs-ResourceList":[)"
            R"({"csi-RS":0,"ra-OccasionList":[300],"ra-PreambleIndex":0}],"rsrp-ThresholdCSI-RS":0}},"totalNumberOfRA-Preambles-v1530":4},)"
            R"("ra-Prioritization":{"powerRampingStepHighPriority":"dB4","scalingFactorBI":"dot25"}}}}}})");
}

TEST_F(spCell, RefusedByTheEncoder)
{
    const std::string sync = "CellGroupConfig.spCellConfig.reconfigurationWithSync.";
    const struct
    {
        std::string line;
        void (*spoil)(RrcSpCellCfg_t& cfg);
    } cases[] = {
        {"CellGroupConfig.spCellConfig.servCellIndex: 32 is not in 0..31",
         [](RrcSpCellCfg_t& cfg)
         {
             cfg.bitMask |= RRC_SPCELLCFG_CELLIDX_PRESENCE;
             cfg.servCellIdx = 32;
         }},
        {"CellGroupConfig.spCellConfig.rlmInSyncOutOfSyncThreshold: 1 is not in 0..0",
         [](RrcSpCellCfg_t& cfg)
         {
             cfg.bitMask |= RRC_SPCELLCFG_THRESHOLD_PRESENCE;
             cfg.rlmInSyncOutSyncThreshold = 1;
         }},
        {sync + "t304: 9 is not in 0..7",
         [](RrcSpCellCfg_t& cfg)
         {
             cfg.recfgWithSync.t304 = 9;
         }},
        {sync + "smtc.periodicityAndOffset: tag 7 is not in 1..6",
         [](RrcSpCellCfg_t& cfg)
         {
             cfg.recfgWithSync.smtc.period = 7;
         }},
        {sync + "rach-ConfigDedicated: tag 0 is not in 1..2",
         [](RrcSpCellCfg_t& cfg)
         {
             cfg.recfgWithSync.rachCfgBitMask = 0;
         }},
        {sync + "rach-ConfigDedicated.uplink.cfra.resources.csirs.csirs-ResourceList: 0 elements, not 1..96",
         [](RrcSpCellCfg_t& cfg)
         {
             cfg.recfgWithSync.choice.uplink.cfra.bitMask = 0;
             cfg.recfgWithSync.choice.uplink.cfra.resources.scirs.numCsirsRecouces = 0;
         }},
        {sync + "rach-ConfigDedicated.uplink.cfra.resources.csirs.csirs-ResourceList[0].ra-OccasionList: 65 elements, "
                "not 1..64",
         [](RrcSpCellCfg_t& cfg)
         {
             RrcCfra_t& cfra = cfg.recfgWithSync.choice.uplink.cfra;
             cfra.bitMask = RRC_SCIS_RESOURCE;
             cfra.resources.scirs.numCsirsRecouces = 1;
             cfra.resources.scirs.csirsResource[0].numRaOccasion = 65;
         }},
        {sync + "spCellConfigCommon.ssb-PositionsInBurst: tag 0 is not in 1..3",
         [](RrcSpCellCfg_t& cfg)
         {
             cfg.recfgWithSync.spCellConfigCommon.ssbPosionBitMask = SSB_POSITION_LONG_BITMAP;
         }},
        {sync + "spCellConfigCommon.ssb-PositionsInBurst.shortBitmap: a pointer out of the context's heap",
         [](RrcSpCellCfg_t& cfg)
         {
             RrcServingCellCfgCommon_t& cell = cfg.recfgWithSync.spCellConfigCommon;
             cell.ssbPosionBitMask = SSB_POSITION_SHORT_BITMAP | SSB_POSITION_LONG_BITMAP;
             cell.RrcSsbPositionInBurst.longBitmap = 0x0123456789ABCDEF;
         }},
        {sync + "spCellConfigCommon.tdd-UL-DL-ConfigurationCommon.pattern1.nrofUplinkSlots: 321 is not in 0..320",
         [](RrcSpCellCfg_t& cfg)
         {
             cfg.recfgWithSync.spCellConfigCommon.tddUlDlCfgComm.pattern1.nrofUplinkSlots = 321;
         }},
        {"CellGroupConfig.spCellConfig.spCellConfigDedicated.servingCellMO: 0 is not in 1..64",
         [](RrcSpCellCfg_t& cfg)
         {
             cfg.bitMask |= RRC_SPCELLCFG_DEDICFG_PRESENCE;
             cfg.spCellDedicated.bitMask = RRC_SERVING_CELL_SERVING_CELL_MO_PRESENCE;
         }},
        {"CellGroupConfig.spCellConfig.rlf-TimersAndConstants.setup.t311-v1530: 7 is not in 0..6",
         [](RrcSpCellCfg_t& cfg)
         {
             cfg.rlfTimerConstants.t311 = 7;
         }},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.line);
        const auto record = cleared<RrcCellGroupCfg_t>();
        reconfigurationWithSync(*record);
        c.spoil(record->spCellCfg);
        EXPECT_EQ(compose(*record), VOS_ERROR);
        EXPECT_EQ(message_.bufLen, noLength);
        // The whole tree follows; a pointer that is none is not followed there either.
        std::string lines = printed();
        const std::string notice = "No SSB_MTC__periodicityAndOffset_PR\n";
        if (lines.compare(0, notice.size(), notice) == 0)
        {
            EXPECT_THAT(c.line, HasSubstr("smtc"));
            lines.erase(0, notice.size());
        }
        EXPECT_THAT(lines, StartsWith("rrcComposeCellGroupCfg Error\r\n" + c.line + "\n"));
        EXPECT_THAT(lines, HasSubstr("\nCELL GROUP\n"));
        EXPECT_THAT(lines, HasSubstr("newUE-Identity 17921"));
        EXPECT_EQ(lines.find(" shortBitmap: a pointer out of the context's heap") != std::string::npos,
                  c.line.find("shortBitmap") != std::string::npos);
    }
}

TEST_F(spCell, DedicatedCell)
{
    const auto record = cleared<RrcCellGroupCfg_t>();
    record->bitMask = RRC_CELLGROUPCFG_SPCELL_PRESENCE;
    record->spCellCfg.bitMask = RRC_SPCELLCFG_DEDICFG_PRESENCE;
    fillServingCell(record->spCellCfg.spCellDedicated, 0);
    expectMessage(*record, R"({"cellGroupId":0,"spCellConfig":{"spCellConfigDedicated":{"tag-Id":3}}})");
    fillServingCell(record->spCellCfg.spCellDedicated, 0xFFFF, 4, 4);
    expectMessage(*record, R"({"cellGroupId":0,"spCellConfig":{"spCellConfigDedicated":)" +
                               servingCellJson(0xFFFF, 4, 4) + "}}");
}

TEST_F(spCell, FailingDedicatedCellEndsTheCall)
{
    const std::string line = "pNode Or pItem is NULL\r\nrrcComposedownlinkBWP_ToADDMod Error\r\n"
                             "rrcComposespCellConfigDedicated Error\r\n";
    const auto record = cleared<RrcCellGroupCfg_t>();
    record->bitMask = RRC_CELLGROUPCFG_SPCELL_PRESENCE;
    record->spCellCfg.bitMask = RRC_SPCELLCFG_THRESHOLD_PRESENCE | RRC_SPCELLCFG_DEDICFG_PRESENCE;
    record->spCellCfg.spCellDedicated.numDlBwpAddMod = 1;
    {
        const HeapFault fault(1); // the cell group
        EXPECT_EQ(compose(*record), VOS_ERROR);
    }
    EXPECT_EQ(printed(), line + "rrcComposeSP_CellGroupCfg Error\r\n");
    EXPECT_EQ(message_.bufLen, noLength);

    const auto element = cleared<SpCellConfig>();
    const HeapFault fault(0);
    EXPECT_EQ(rrcComposeSP_CellGroupCfg(&context, element.get(), &record->spCellCfg), VOS_ERROR);
    EXPECT_EQ(printed(), line);
    EXPECT_EQ(element->m.rlmInSyncOutOfSyncThresholdPresent, 1U);
    EXPECT_EQ(element->m.spCellConfigDedicatedPresent, 1U);
}

TEST_F(spCell, HandoverWithoutHeap)
{
    const auto record = cleared<RrcCellGroupCfg_t>();
    reconfigurationWithSync(*record);
    unsigned refusals = 0;
    for (unsigned n = 0;; ++n)
    {
        ASSERT_LT(n, 100U);
        const HeapFault fault(n);
        const INT32 result = compose(*record);
        const std::string lines = printed();
        if (!HeapFault::struck())
        {
            EXPECT_EQ(result, VOS_OK);
            break;
        }
        // No crash; a failure is told, or the message is one that lacks the list's end.
        EXPECT_NE(lines, "") << n;
        if (result == VOS_OK)
        {
            EXPECT_THAT(lines, StartsWith("pNode Or ")) << n;
        }
        else
        {
            ++refusals;
        }
    }
    EXPECT_GT(refusals, 15U);
}
