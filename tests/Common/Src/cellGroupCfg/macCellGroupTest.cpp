#include "cellGroupCfg/macCellGroup.h"

#include <cstddef>
#include <string>
#include <vector>

#include "NR-RRC-Pdus.h"
#include "support/ComposerTest.h"
#include "support/RecordOrder.h"

using test::HeapFault;
using test::rising;

namespace
{

constexpr const char* noPeriod = "No DRX_Config__drx_LongCycleStartOffset_PR\n";

class macCellGroup : public test::ComposerTest
{
protected:
    void expectMac(RrcMacCellGrpCfg_t cfg, const std::string& json)
    {
        SCOPED_TRACE(json);
        MAC_CellGroupConfig element{};
        EXPECT_EQ(rrcComposeMac_CellGroupCfg(&context, &element, &cfg), VOS_OK);
        expectDecoded("MAC-CellGroupConfig", asn1PE_MAC_CellGroupConfig, element, json);
        EXPECT_EQ(printed(), "");
    }

    void expectDrx(RrcDrxCfg_t cfg, const std::string& json)
    {
        SCOPED_TRACE(json);
        DRX_Config element{};
        EXPECT_EQ(rrcComposeDrx_ConfigSetup(&context, &element, &cfg), VOS_OK);
        expectDecoded("DRX-Config", asn1PE_DRX_Config, element, json);
        EXPECT_EQ(printed(), "");
    }

    void expectSr(RrcSRCfg_t cfg, const std::string& json)
    {
        SCOPED_TRACE(json);
        SchedulingRequestConfig element{};
        EXPECT_EQ(rrcComposeScheduleReq_Config(&context, &element, &cfg), VOS_OK);
        expectDecoded("SchedulingRequestConfig", asn1PE_SchedulingRequestConfig, element, json);
        EXPECT_EQ(printed(), "");
    }

    void expectTag(RrcTagCfg_t cfg, const std::string& json)
    {
        SCOPED_TRACE(json);
        TAG_Config element{};
        EXPECT_EQ(rrcComposeTag_Config(&context, &element, &cfg), VOS_OK);
        expectDecoded("TAG-Config", asn1PE_TAG_Config, element, json);
        EXPECT_EQ(printed(), "");
    }
};

RrcDrxCfg_t drxCfg(UINT8 bitMask)
{
    RrcDrxCfg_t cfg{};
    cfg.bitMask = bitMask;
    cfg.drxOnDurationTimer.milliSeconds = 7;
    cfg.drxInactivityTimer = 22;
    cfg.drxHarqRttTimerDl = 56;
    cfg.drxHarqRttTimerUl = 1;
    cfg.drxRetransTimerDl = 16;
    cfg.drxRetransTimerUl = 2;
    cfg.drxLongCycleStartOffset = {10, 159};
    cfg.shortDrx = {22, 16};
    cfg.drxSlotOffset = 31;
    return cfg;
}

const std::string drxMilliSeconds = R"({"drx-onDurationTimer":{"milliSeconds":"ms10"})";
const std::string drxSubMilliSeconds = R"({"drx-onDurationTimer":{"subMilliSeconds":7})";
const std::string drxTimers = R"(,"drx-InactivityTimer":"ms2560","drx-HARQ-RTT-TimerDL":56,"drx-HARQ-RTT-TimerUL":1,)"
                              R"("drx-RetransmissionTimerDL":"sl320","drx-RetransmissionTimerUL":"sl2",)"
                              R"("drx-LongCycleStartOffset":{"ms160":159})";
const std::string drxShort = R"(,"shortDRX":{"drx-ShortCycle":"ms640","drx-ShortCycleTimer":16})";
const std::string drxSlot = R"(,"drx-SlotOffset":31})";

RrcSRCfg_t srCfg(UINT8 addMod, UINT8 release)
{
    RrcSRCfg_t cfg{};
    cfg.numSrAddMod = addMod;
    cfg.numSrRel = release;
    for (UINT8 i = 0; i < RRC_MAX_NROFSR_CONFIG_PER_CELL_GROUP; ++i)
    {
        cfg.srASddMod[i] = {static_cast<UINT8>(7 - i), 4,
                            static_cast<UINT8>(i % 2 == 0 ? RRC_SR_PROHIBITTIMER_PRESENCE : 0xFE), i};
        cfg.srId[i] = i;
    }
    return cfg;
}

// The items that srCfg makes.
std::string srAddMod(unsigned count)
{
    const char* const timers[] = {"ms1", "", "ms4", "", "ms16", "", "ms64", ""};
    std::string json = R"("schedulingRequestToAddModList":[)";
    for (unsigned i = 0; i < count; ++i)
    {
        json += (i != 0 ? "," : "") + (R"({"schedulingRequestId":)" + std::to_string(7 - i));
        json += *timers[i] != 0 ? std::string(R"(,"sr-ProhibitTimer":")") + timers[i] + "\"" : "";
        json += R"(,"sr-TransMax":"n64"})";
    }
    return json + "]";
}

RrcTagCfg_t tagCfg(UINT8 addMod, UINT8 release)
{
    return {addMod, {{3, 7}, {1, 0}, {2, 4}, {0, 1}}, release, {2, 0, 3, 1}};
}

RrcPhrCfg_t phrCfg()
{
    return {7, 1, 2, 1, 0, 256, 1};
}

RrcMacCellGrpCfg_t macCfg(UINT8 bitMask)
{
    RrcMacCellGrpCfg_t cfg{};
    cfg.skipUpTxDynamic = 1;
    cfg.bitMask = bitMask;
    cfg.drxCfg = drxCfg(RRC_DRX_CFG_ONDURATION_MILLION_PRESENCE);
    cfg.srCfg = srCfg(1, 0);
    cfg.bsrCfg = {15, 10, 0, 0};
    cfg.tagCfg = tagCfg(1, 0);
    cfg.phrCfg = phrCfg();
    cfg.csiMaskV1530 = 1;
    cfg.inactivityTimer = 15;
    return cfg;
}

} // namespace

// DRX

TEST_F(macCellGroup, DrxOptions)
{
    expectDrx(drxCfg(0), drxSubMilliSeconds + drxTimers + drxSlot);
    expectDrx(drxCfg(RRC_DRX_CFG_ONDURATION_MILLION_PRESENCE), drxMilliSeconds + drxTimers + drxSlot);
    expectDrx(drxCfg(RRC_DRX_CFG_SHORT_DRX_PRESENCE), drxSubMilliSeconds + drxTimers + drxShort + drxSlot);
    expectDrx(drxCfg(3), drxMilliSeconds + drxTimers + drxShort + drxSlot);
    expectDrx(drxCfg(0xFC), drxSubMilliSeconds + drxTimers + drxSlot);
}

TEST_F(macCellGroup, WithoutItsBitShortDrxIsAbsent)
{
    RrcDrxCfg_t cfg = drxCfg(RRC_DRX_CFG_ONDURATION_MILLION_PRESENCE);
    DRX_Config element{};
    EXPECT_EQ(rrcComposeDrx_ConfigSetup(&context, &element, &cfg), VOS_OK);
    EXPECT_EQ(element.m.shortDRXPresent, 0U);
    EXPECT_EQ(element.shortDRX.drx_ShortCycleTimer, 0U);
}

TEST_F(macCellGroup, EveryLongCyclePeriodWithItsFirstAndLastOffset)
{
    const unsigned periods[] = {10,  20,  32,  40,  60,   64,   70,   80,   128,  160,
                                256, 320, 512, 640, 1024, 1280, 2048, 2560, 5120, 10240};
    for (UINT8 tag = 1; tag <= 20; ++tag)
    {
        const unsigned period = periods[tag - 1];
        for (const unsigned offset : {0U, 9U, period - 1})
        {
            RrcDrxCfg_t cfg = drxCfg(0);
            cfg.drxLongCycleStartOffset = {tag, static_cast<UINT16>(offset)};
            std::string json = drxSubMilliSeconds + drxTimers + drxSlot;
            json.replace(json.find(R"("ms160":159)"), 11,
                         "\"ms" + std::to_string(period) + "\":" + std::to_string(offset));
            expectDrx(cfg, json);
        }
    }
}

TEST_F(macCellGroup, OffsetsOfThePeriodsUpTo256MsAreCutToEightBits)
{
    for (UINT8 tag = 1; tag <= 20; ++tag)
    {
        RrcLongCycleStartOffset_t cfg{tag, 300};
        DRX_Config_drx_LongCycleStartOffset element{};
        EXPECT_EQ(rrcComposeDrx_LongCycleStartOff(&element, &cfg), VOS_OK);
        EXPECT_EQ(element.t, tag);
        EXPECT_EQ(tag <= 11 ? element.u.ms256 : element.u.ms10240, tag <= 11 ? 44 : 300) << unsigned{tag};
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(macCellGroup, OffsetEqualToThePeriodIsLeftToTheEncoder)
{
    RrcDrxCfg_t cfg = drxCfg(0);
    cfg.drxLongCycleStartOffset = {20, 10240};
    DRX_Config element{};
    EXPECT_EQ(rrcComposeDrx_ConfigSetup(&context, &element, &cfg), VOS_OK);
    EXPECT_EQ(encode(asn1PE_DRX_Config, element),
              "DRX-Config.drx-LongCycleStartOffset.ms10240: 10240 is not in 0..10239");
}

TEST_F(macCellGroup, UnknownLongCyclePeriodPrintsAndLeavesItsTagToTheEncoder)
{
    for (const unsigned period : {0U, 21U, 255U})
    {
        RrcDrxCfg_t cfg = drxCfg(RRC_DRX_CFG_SHORT_DRX_PRESENCE);
        cfg.drxLongCycleStartOffset.period = static_cast<UINT8>(period);
        DRX_Config element{};
        EXPECT_EQ(rrcComposeDrx_ConfigSetup(&context, &element, &cfg), VOS_OK);
        EXPECT_EQ(printed(), noPeriod);
        EXPECT_EQ(element.drx_LongCycleStartOffset.t, period);
        EXPECT_EQ(element.m.shortDRXPresent, 1U) << "composition continues";
        EXPECT_EQ(element.drx_SlotOffset, 31);
        EXPECT_EQ(encode(asn1PE_DRX_Config, element),
                  "DRX-Config.drx-LongCycleStartOffset: tag " + std::to_string(period) + " is not in 1..20");
    }
}

TEST_F(macCellGroup, DrxIsAlwaysSetUp)
{
    RrcDrxCfg_t cfg{};
    MAC_CellGroupConfig_drx_Config element{};
    EXPECT_EQ(rrcComposeDrx_Config(&context, &element, &cfg), VOS_OK);
    EXPECT_EQ(element.t, static_cast<OSUINT32>(T_MAC_CellGroupConfig_drx_Config_setup));
    EXPECT_NE(element.u.setup, nullptr);
    EXPECT_EQ(printed(), noPeriod);
}

TEST_F(macCellGroup, DrxWithoutHeapIsNotNoticedBeforeTheEncoder)
{
    RrcMacCellGrpCfg_t cfg = macCfg(RRC_MAC_CELL_GRP_CFG_DRX_PRESENCE | RRC_MAC_CELL_GRP_CFG_PHR_PRESENCE);
    for (unsigned successes = 0; successes < 2; ++successes)
    {
        MAC_CellGroupConfig element{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeMac_CellGroupCfg(&context, &element, &cfg), VOS_OK);
            EXPECT_TRUE(HeapFault::struck());
        }
        EXPECT_EQ(element.m.drx_ConfigPresent, 1U);
        EXPECT_EQ(element.m.phr_ConfigPresent, 1U);
        EXPECT_EQ(encode(asn1PE_MAC_CellGroupConfig, element), std::string("MAC-CellGroupConfig.") +
                                                                   (successes == 0 ? "drx-Config" : "phr-Config") +
                                                                   ": tag 0 is not in 1..2");
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(macCellGroup, DrxNullGuards)
{
    RrcDrxCfg_t cfg{};
    MAC_CellGroupConfig_drx_Config choice{};
    EXPECT_EQ(rrcComposeDrx_Config(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeDrx_Config", "drx_Config"));
    EXPECT_EQ(rrcComposeDrx_Config(&context, nullptr, &cfg), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeDrx_Config", "drx_Config"));
    EXPECT_EQ(rrcComposeDrx_Config(&context, &choice, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeDrx_Config", "pdrxCfg"));
    EXPECT_EQ(choice.t, 0U);

    DRX_Config element{};
    EXPECT_EQ(rrcComposeDrx_LongCycleStartOff(nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeDrx_LongCycleStartOff", "pDrx_LongCycleStartOffset"));
    EXPECT_EQ(rrcComposeDrx_LongCycleStartOff(&element.drx_LongCycleStartOffset, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeDrx_LongCycleStartOff", "pRrcLongCycleStartOffset"));
    EXPECT_EQ(rrcComposeDrx_Config_shortDRX(nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeDrx_Config_shortDRX", "pShortDRX"));
    EXPECT_EQ(rrcComposeDrx_Config_shortDRX(&element.shortDRX, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeDrx_Config_shortDRX", "pRrcShortDrx"));
}

// Scheduling request

TEST_F(macCellGroup, SchedulingRequestLists)
{
    expectSr(srCfg(0, 0), "{}");
    expectSr(srCfg(1, 0), "{" + srAddMod(1) + "}");
    expectSr(srCfg(0, 1), R"({"schedulingRequestToReleaseList":[0]})");
    expectSr(srCfg(2, 1), "{" + srAddMod(2) + R"(,"schedulingRequestToReleaseList":[0]})");
    expectSr(srCfg(8, 8), "{" + srAddMod(8) + R"(,"schedulingRequestToReleaseList":[0,1,2,3,4,5,6,7]})");
}

TEST_F(macCellGroup, SchedulingRequestWithoutItsBitHasNoProhibitTimer)
{
    RrcSrAddMod_t cfg{5, 3, 0, 7};
    SchedulingRequestToAddMod element{};
    EXPECT_EQ(rrcComposeScheduleReqAddModItem(&element, &cfg), VOS_OK);
    expectDecoded("SchedulingRequestToAddMod", asn1PE_SchedulingRequestToAddMod, element,
                  R"({"schedulingRequestId":5,"sr-TransMax":"n32"})");
    cfg.bitMask = RRC_SR_PROHIBITTIMER_PRESENCE;
    EXPECT_EQ(rrcComposeScheduleReqAddModItem(&element, &cfg), VOS_OK);
    expectDecoded("SchedulingRequestToAddMod", asn1PE_SchedulingRequestToAddMod, element,
                  R"({"schedulingRequestId":5,"sr-ProhibitTimer":"ms128","sr-TransMax":"n32"})");
}

TEST_F(macCellGroup, SchedulingRequestsPastTheirBoundAreLeftToTheEncoder)
{
    for (const unsigned count : {9U, 255U})
    {
        const std::string size = ": " + std::to_string(count) + " elements, not 1..8";
        RrcSRCfg_t cfg = srCfg(static_cast<UINT8>(count), 0);
        SchedulingRequestConfig element{};
        EXPECT_EQ(rrcComposeScheduleReq_Config(&context, &element, &cfg), VOS_OK);
        EXPECT_EQ(element.schedulingRequestToAddModList.count, count);
        EXPECT_EQ(encode(asn1PE_SchedulingRequestConfig, element),
                  "SchedulingRequestConfig.schedulingRequestToAddModList" + size);

        cfg = srCfg(0, static_cast<UINT8>(count));
        element = {};
        EXPECT_EQ(rrcComposeScheduleReq_Config(&context, &element, &cfg), VOS_OK);
        EXPECT_EQ(element.schedulingRequestToReleaseList.n, count);
        EXPECT_EQ(encode(asn1PE_SchedulingRequestConfig, element),
                  "SchedulingRequestConfig.schedulingRequestToReleaseList" + size);
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(macCellGroup, SchedulingRequestListWithoutHeapForEachNode)
{
    for (unsigned successes = 0;; ++successes)
    {
        RrcSRCfg_t cfg = srCfg(3, 1);
        SchedulingRequestConfig element{};
        SchedulingRequestConfig_schedulingRequestToAddModList list{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeScheduleReq_Config(&context, &element, &cfg), VOS_OK)
                << "the short list is not noticed";
        }
        EXPECT_EQ(printed(), successes < 3 ? "pNode Or pAddModItem is NULL\r\n" : "");
        EXPECT_EQ(element.m.schedulingRequestToAddModListPresent, 1U);
        EXPECT_EQ(element.schedulingRequestToAddModList.count, successes);
        EXPECT_EQ(element.m.schedulingRequestToReleaseListPresent, 1U) << "the next member is composed";
        if (successes != 0)
        {
            expectDecoded("SchedulingRequestConfig", asn1PE_SchedulingRequestConfig, element,
                          "{" + srAddMod(successes) + R"(,"schedulingRequestToReleaseList":[0]})");
        }
        const HeapFault fault(successes);
        const INT32 result = rrcComposeScheduleReqCfgToAddModList(&context, &list, &cfg);
        EXPECT_EQ(result, HeapFault::struck() ? VOS_ERROR : VOS_OK);
        EXPECT_EQ(printed(), HeapFault::struck() ? "pNode Or pAddModItem is NULL\r\n" : "");
        if (!HeapFault::struck())
        {
            EXPECT_EQ(successes, 3U);
            break;
        }
    }
}

TEST_F(macCellGroup, SchedulingRequestNullGuards)
{
    RrcSRCfg_t cfg{};
    SchedulingRequestConfig element{};
    EXPECT_EQ(rrcComposeScheduleReq_Config(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeScheduleReq_Config", "pSchedulingRequestConfig"));
    EXPECT_EQ(rrcComposeScheduleReq_Config(&context, &element, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeScheduleReq_Config", "pRrcSrCfg"));
    EXPECT_EQ(rrcComposeScheduleReqCfgToAddModList(&context, nullptr, &cfg), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeScheduleReqCfgToAddModList", "pAddModList"));
    EXPECT_EQ(rrcComposeScheduleReqCfgToReleaesList(nullptr, &cfg), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeScheduleReqCfgToReleaesList", "pReleaseList"));
    SchedulingRequestToAddMod item{};
    EXPECT_EQ(rrcComposeScheduleReqAddModItem(nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeScheduleReqAddModItem", "pAddModItem"));
    EXPECT_EQ(rrcComposeScheduleReqAddModItem(&item, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeScheduleReqAddModItem", "pRrcAddMod"));
}

// BSR

TEST_F(macCellGroup, Bsr)
{
    for (const bool delay : {false, true})
    {
        RrcBsrCfg_t cfg{15, 10, static_cast<UINT8>(delay ? RRC_BSR_SRDELAY_PRESENCE : 0xFE), 6};
        BSR_Config element{};
        EXPECT_EQ(rrcComposeBsr_Config(&element, &cfg), VOS_OK);
        expectDecoded("BSR-Config", asn1PE_BSR_Config, element,
                      std::string(R"({"periodicBSR-Timer":"infinity","retxBSR-Timer":"sf10240")") +
                          (delay ? R"(,"logicalChannelSR-DelayTimer":"sf2560"})" : "}"));
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(macCellGroup, BsrNullGuards)
{
    BSR_Config element{};
    EXPECT_EQ(rrcComposeBsr_Config(nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeBsr_Config", "pBsr_Config"));
    EXPECT_EQ(rrcComposeBsr_Config(&element, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeBsr_Config", "pRrcBsrCfg"));
}

// TAG

TEST_F(macCellGroup, TagLists)
{
    const std::string one = R"("tag-ToAddModList":[{"tag-Id":3,"timeAlignmentTimer":"infinity"})";
    const std::string four = one +
                             R"(,{"tag-Id":1,"timeAlignmentTimer":"ms500"},{"tag-Id":2,"timeAlignmentTimer":"ms2560"},)"
                             R"({"tag-Id":0,"timeAlignmentTimer":"ms750"})";
    expectTag(tagCfg(0, 0), "{}");
    expectTag(tagCfg(1, 0), "{" + one + "]}");
    expectTag(tagCfg(0, 1), R"({"tag-ToReleaseList":[2]})");
    expectTag(tagCfg(4, 4), R"({"tag-ToReleaseList":[2,0,3,1],)" + four + "]}");
}

TEST_F(macCellGroup, TagReleasesOnly)
{
    RrcTagCfg_t cfg = tagCfg(0, 2);
    TAG_Config element{};
    EXPECT_EQ(rrcComposeTag_Config(&context, &element, &cfg), VOS_OK);
    EXPECT_EQ(element.m.tag_ToAddModListPresent, 0U);
    EXPECT_EQ(element.m.tag_ToReleaseListPresent, 1U);
    expectDecoded("TAG-Config", asn1PE_TAG_Config, element, R"({"tag-ToReleaseList":[2,0]})");
}

TEST_F(macCellGroup, TagsPastTheirBoundAreLeftToTheEncoder)
{
    for (const unsigned count : {5U, 255U})
    {
        const std::string size = ": " + std::to_string(count) + " elements, not 1..4";
        RrcTagCfg_t cfg = tagCfg(static_cast<UINT8>(count), 0);
        TAG_Config element{};
        EXPECT_EQ(rrcComposeTag_Config(&context, &element, &cfg), VOS_OK);
        EXPECT_EQ(element.tag_ToAddModList.count, count);
        EXPECT_EQ(encode(asn1PE_TAG_Config, element), "TAG-Config.tag-ToAddModList" + size);

        cfg = tagCfg(0, static_cast<UINT8>(count));
        element = {};
        EXPECT_EQ(rrcComposeTag_Config(&context, &element, &cfg), VOS_OK);
        EXPECT_EQ(element.tag_ToReleaseList.n, count);
        EXPECT_EQ(encode(asn1PE_TAG_Config, element), "TAG-Config.tag-ToReleaseList" + size);
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(macCellGroup, TagListWithoutHeapForEachNode)
{
    for (unsigned successes = 0;; ++successes)
    {
        RrcTagCfg_t cfg = tagCfg(4, 1);
        TAG_Config element{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeTag_Config(&context, &element, &cfg), VOS_OK) << "the short list is not noticed";
        }
        EXPECT_EQ(printed(), successes < 4 ? "pNode Or pTagItem is NULL\r\n" : "");
        EXPECT_EQ(element.m.tag_ToReleaseListPresent, 1U);
        EXPECT_EQ(element.m.tag_ToAddModListPresent, 1U);
        EXPECT_EQ(element.tag_ToAddModList.count, successes);

        TAG_Config_tag_ToAddModList list{};
        const HeapFault fault(successes);
        const INT32 result = rrcComposeTagToAddModList(&context, &list, &cfg);
        EXPECT_EQ(result, HeapFault::struck() ? VOS_ERROR : VOS_OK);
        EXPECT_EQ(printed(), HeapFault::struck() ? "pNode Or pTagItem is NULL\r\n" : "");
        EXPECT_EQ(list.count, successes);
        if (!HeapFault::struck())
        {
            EXPECT_EQ(successes, 4U);
            break;
        }
    }
}

TEST_F(macCellGroup, TagNullGuards)
{
    TAG_Config element{};
    EXPECT_EQ(rrcComposeTag_Config(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeTag_Config", "pTag_Config"));
    EXPECT_EQ(rrcComposeTag_Config(&context, &element, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeTag_Config", "pRrcTagCfg"));
}

// PHR

TEST_F(macCellGroup, Phr)
{
    RrcPhrCfg_t cfg = phrCfg();
    MAC_CellGroupConfig_phr_Config choice{};
    EXPECT_EQ(rrcComposePhr_Config(&context, &choice, &cfg), VOS_OK);
    ASSERT_EQ(choice.t, static_cast<OSUINT32>(T_MAC_CellGroupConfig_phr_Config_setup));
    expectDecoded("PHR-Config", asn1PE_PHR_Config, *choice.u.setup,
                  R"({"phr-PeriodicTimer":"infinity","phr-ProhibitTimer":"sf10","phr-Tx-PowerFactorChange":"dB6",)"
                  R"("multiplePHR":true,"dummy":false,"phr-Type2OtherCell":false,"phr-ModeOtherCG":"virtual"})");
    cfg = {0, 7, 3, 0, -1, 128, 0};
    PHR_Config element{};
    EXPECT_EQ(rrcComposePhr_ConfigSetup(&element, &cfg), 0);
    expectDecoded("PHR-Config", asn1PE_PHR_Config, element,
                  R"({"phr-PeriodicTimer":"sf10","phr-ProhibitTimer":"sf1000","phr-Tx-PowerFactorChange":"infinity",)"
                  R"("multiplePHR":false,"dummy":true,"phr-Type2OtherCell":true,"phr-ModeOtherCG":"real"})");
    EXPECT_EQ(printed(), "");
}

TEST_F(macCellGroup, PhrNullGuards)
{
    MAC_CellGroupConfig_phr_Config choice{};
    EXPECT_EQ(rrcComposePhr_Config(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePhr_Config", "pPhr_Config"));
    EXPECT_EQ(rrcComposePhr_Config(&context, &choice, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePhr_Config", "pRrcPhrCfg"));
    EXPECT_EQ(choice.t, 0U);
}

// MAC cell group

TEST_F(macCellGroup, MacOptions)
{
    const std::string drx = R"("drx-Config":{"setup":)" + drxMilliSeconds + drxTimers + drxSlot + "},";
    const std::string sr = R"("schedulingRequestConfig":{)" + srAddMod(1) + "},";
    const std::string bsr = R"("bsr-Config":{"periodicBSR-Timer":"infinity","retxBSR-Timer":"sf10240"},)";
    const std::string tag = R"("tag-Config":{"tag-ToAddModList":[{"tag-Id":3,"timeAlignmentTimer":"infinity"}]},)";
    const std::string phr =
        R"("phr-Config":{"setup":{"phr-PeriodicTimer":"infinity","phr-ProhibitTimer":"sf10",)"
        R"("phr-Tx-PowerFactorChange":"dB6","multiplePHR":true,"dummy":false,"phr-Type2OtherCell":false,)"
        R"("phr-ModeOtherCG":"virtual"}},)";
    const std::string skip = R"("skipUplinkTxDynamic":true)";
    expectMac(macCfg(0), "{" + skip + "}");
    expectMac(macCfg(RRC_MAC_CELL_GRP_CFG_DRX_PRESENCE), "{" + drx + skip + "}");
    expectMac(macCfg(RRC_MAC_CELL_GRP_CFG_SR_PRESENCE), "{" + sr + skip + "}");
    expectMac(macCfg(RRC_MAC_CELL_GRP_CFG_BSR_PRESENCE), "{" + bsr + skip + "}");
    expectMac(macCfg(RRC_MAC_CELL_GRP_CFG_TAG_PRESENCE), "{" + tag + skip + "}");
    expectMac(macCfg(RRC_MAC_CELL_GRP_CFG_PHR_PRESENCE), "{" + phr + skip + "}");
    expectMac(macCfg(0x1F), "{" + drx + sr + bsr + tag + phr + skip + "}");
    expectMac(macCfg(0x80), "{" + skip + "}");
    RrcMacCellGrpCfg_t cfg = macCfg(0);
    cfg.skipUpTxDynamic = 0x100;
    expectMac(cfg, R"({"skipUplinkTxDynamic":false})");
}

TEST_F(macCellGroup, CsiMaskAndInactivityTimerAreInTheTreeAndNotSent)
{
    RrcMacCellGrpCfg_t cfg = macCfg(RRC_MAC_CELL_GRP_CFG_CSI_PRESENCE | RRC_MAC_CELL_GRP_CFG_TIMER_PRESENCE);
    MAC_CellGroupConfig element{};
    EXPECT_EQ(rrcComposeMac_CellGroupCfg(&context, &element, &cfg), VOS_OK);
    EXPECT_EQ(element.m.csi_MaskPresent, 1U);
    EXPECT_EQ(element.csi_Mask, 1);
    EXPECT_EQ(element.m.dataInactivityTimerPresent, 1U);
    EXPECT_EQ(element.dataInactivityTimer.t, static_cast<OSUINT32>(T_MAC_CellGroupConfig_dataInactivityTimer_setup));
    EXPECT_EQ(element.dataInactivityTimer.u.setup, 15U);
    EXPECT_EQ(element.m._v2ExtPresent, 0U);
    expectDecoded("MAC-CellGroupConfig", asn1PE_MAC_CellGroupConfig, element, R"({"skipUplinkTxDynamic":true})");

    cfg.csiMaskV1530 = 256;
    cfg.inactivityTimer = 255;
    element = {};
    EXPECT_EQ(rrcComposeMac_CellGroupCfg(&context, &element, &cfg), VOS_OK);
    EXPECT_EQ(element.csi_Mask, 0);
    EXPECT_EQ(element.dataInactivityTimer.u.setup, 255U);
    expectDecoded("MAC-CellGroupConfig", asn1PE_MAC_CellGroupConfig, element, R"({"skipUplinkTxDynamic":true})");
    EXPECT_EQ(printed(), "");
}

TEST_F(macCellGroup, DrxStaysAnnouncedAndSetUpWithAnUnknownPeriod)
{
    RrcMacCellGrpCfg_t cfg = macCfg(RRC_MAC_CELL_GRP_CFG_DRX_PRESENCE);
    cfg.drxCfg.drxLongCycleStartOffset.period = 21;
    MAC_CellGroupConfig element{};
    EXPECT_EQ(rrcComposeMac_CellGroupCfg(&context, &element, &cfg), VOS_OK);
    EXPECT_EQ(printed(), noPeriod);
    EXPECT_EQ(element.m.drx_ConfigPresent, 1U);
    EXPECT_EQ(element.drx_Config.t, 2U);
    EXPECT_EQ(encode(asn1PE_MAC_CellGroupConfig, element),
              "MAC-CellGroupConfig.drx-Config.setup.drx-LongCycleStartOffset: tag 21 is not in 1..20");
}

TEST_F(macCellGroup, MacNullGuards)
{
    MAC_CellGroupConfig element{};
    EXPECT_EQ(rrcComposeMac_CellGroupCfg(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeMac_CellGroupCfg", "pMac_CellGroupConfig"));
    EXPECT_EQ(rrcComposeMac_CellGroupCfg(&context, &element, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeMac_CellGroupCfg", "pRrcMacCellGrpCfg"));
}

// The order of the records' fields

static_assert(rising({offsetof(RrcDrxCfg_t, bitMask), offsetof(RrcDrxCfg_t, drxOnDurationTimer),
                      offsetof(RrcDrxCfg_t, drxInactivityTimer), offsetof(RrcDrxCfg_t, drxHarqRttTimerDl),
                      offsetof(RrcDrxCfg_t, drxHarqRttTimerUl), offsetof(RrcDrxCfg_t, drxRetransTimerDl),
                      offsetof(RrcDrxCfg_t, drxRetransTimerUl), offsetof(RrcDrxCfg_t, drxLongCycleStartOffset),
                      offsetof(RrcDrxCfg_t, shortDrx), offsetof(RrcDrxCfg_t, drxSlotOffset)}));
static_assert(rising({offsetof(RrcLongCycleStartOffset_t, period), offsetof(RrcLongCycleStartOffset_t, offset)}));
static_assert(rising({offsetof(RrcShortDrx_t, period), offsetof(RrcShortDrx_t, offset)}));
static_assert(rising({offsetof(RrcSRCfg_t, numSrAddMod), offsetof(RrcSRCfg_t, srASddMod),
                      offsetof(RrcSRCfg_t, numSrRel), offsetof(RrcSRCfg_t, srId)}));
static_assert(rising({offsetof(RrcSrAddMod_t, srId), offsetof(RrcSrAddMod_t, srTransMax),
                      offsetof(RrcSrAddMod_t, bitMask), offsetof(RrcSrAddMod_t, srProhibitTimer)}));
static_assert(rising({offsetof(RrcBsrCfg_t, periodicBsrTimer), offsetof(RrcBsrCfg_t, retxBsrTimer),
                      offsetof(RrcBsrCfg_t, bitMask), offsetof(RrcBsrCfg_t, lcSRDelayTimer)}));
static_assert(rising({offsetof(RrcTagCfg_t, numTagAddMod), offsetof(RrcTagCfg_t, tag), offsetof(RrcTagCfg_t, numTagRel),
                      offsetof(RrcTagCfg_t, tagId)}));
static_assert(rising({offsetof(RrcTag_t, tagId), offsetof(RrcTag_t, taTimer)}));
static_assert(rising({offsetof(RrcPhrCfg_t, phrPeriodTimer), offsetof(RrcPhrCfg_t, phrProhibitTimer),
                      offsetof(RrcPhrCfg_t, phrTxPowerFactorChange), offsetof(RrcPhrCfg_t, multiplePHR),
                      offsetof(RrcPhrCfg_t, dummy), offsetof(RrcPhrCfg_t, phrType2OtherCell),
                      offsetof(RrcPhrCfg_t, phrModeOtherCG)}));
static_assert(rising({offsetof(RrcMacCellGrpCfg_t, skipUpTxDynamic), offsetof(RrcMacCellGrpCfg_t, bitMask),
                      offsetof(RrcMacCellGrpCfg_t, drxCfg), offsetof(RrcMacCellGrpCfg_t, srCfg),
                      offsetof(RrcMacCellGrpCfg_t, bsrCfg), offsetof(RrcMacCellGrpCfg_t, tagCfg),
                      offsetof(RrcMacCellGrpCfg_t, phrCfg), offsetof(RrcMacCellGrpCfg_t, csiMaskV1530),
                      offsetof(RrcMacCellGrpCfg_t, inactivityTimer)}));
