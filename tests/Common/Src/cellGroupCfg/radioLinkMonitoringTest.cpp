#include "cellGroupCfg/radioLinkMonitoring.h"

#include <cstddef>
#include <string>

#include "NR-RRC-Pdus.h"
#include "support/ComposerTest.h"
#include "support/Json.h"
#include "support/RecordOrder.h"

using test::array;
using test::HeapFault;
using test::masks;
using test::numbers;
using test::object;
using test::rising;

namespace
{

class radioLinkMonitoring : public test::ComposerTest
{
};

RrcRlmCfg_t rlmCfg(UINT8 toAdd, UINT8 toRelease, UINT8 bitMask)
{
    RrcRlmCfg_t cfg{};
    cfg.numFailDetectResourceAddMod = toAdd;
    cfg.numFailDetectResourceRel = toRelease;
    for (unsigned i = 0; i < RRC_MAX_NROF_FAIL_DETECT_RESOURCE; ++i)
    {
        cfg.failDetectResource[i] = {static_cast<UINT8>(9 - i),
                                     static_cast<UINT8>(i % 3),
                                     i % 2 == 0 ? UINT8{RRC_RADIO_LINK_MONITOR_SSB_PRESENCE}
                                                : UINT8{RRC_RADIO_LINK_MONITOR_CSI_RS_PRESENCE},
                                     {static_cast<UINT8>(54 + i)}};
        cfg.failDetectResourceId[i] = static_cast<UINT8>(i);
    }
    cfg.bitMask = bitMask;
    cfg.beamFailureInstanceMaxCount = 7;
    cfg.beamFailureDetectionTimer = 6;
    return cfg;
}

// The resources that rlmCfg makes.
std::string resource(unsigned i)
{
    const char* const purposes[] = {"beamFailure", "rlf", "both"};
    return "{\"radioLinkMonitoringRS-Id\":" + std::to_string(9 - i) + ",\"purpose\":\"" + purposes[i % 3] +
           "\",\"detectionResource\":{\"" + (i % 2 == 0 ? "ssb-Index" : "csi-RS-Index") +
           "\":" + std::to_string(54 + i) + "}}";
}

std::string toAddJson(unsigned count)
{
    return "\"failureDetectionResourcesToAddModList\":" + array(count, resource);
}

std::string toReleaseJson(unsigned count)
{
    return "\"failureDetectionResourcesToReleaseList\":" + numbers(count, 0);
}

} // namespace

TEST_F(radioLinkMonitoring, EachMemberAloneAllAndNone)
{
    for (const unsigned mask : masks(4))
    {
        RrcRlmCfg_t cfg = rlmCfg(mask & 1 ? 2 : 0, mask & 2 ? 1 : 0, static_cast<UINT8>(mask >> 2));
        BWP_DownlinkDedicated_radioLinkMonitoringConfig choice{};
        EXPECT_EQ(rrcComposeradioLinkMonitoring_Config(&context, &choice, &cfg), VOS_OK);
        EXPECT_EQ(choice.t, static_cast<OSUINT32>(T_BWP_DownlinkDedicated_radioLinkMonitoringConfig_setup));
        expectDecoded("RadioLinkMonitoringConfig", asn1PE_RadioLinkMonitoringConfig, *choice.u.setup,
                      object({mask & 1 ? toAddJson(2) : "", mask & 2 ? toReleaseJson(1) : "",
                              mask & 4 ? R"("beamFailureInstanceMaxCount":"n10")" : "",
                              mask & 8 ? R"("beamFailureDetectionTimer":"pbfd8")" : ""}));
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(radioLinkMonitoring, FullListsAndPastThem)
{
    RrcRlmCfg_t cfg = rlmCfg(10, 10, 0);
    RadioLinkMonitoringConfig element{};
    EXPECT_EQ(rrcComposeradioLinkMonitoring_ConfigSetup(&context, &element, &cfg), VOS_OK);
    expectDecoded("RadioLinkMonitoringConfig", asn1PE_RadioLinkMonitoringConfig, element,
                  object({toAddJson(10), toReleaseJson(10)}));
    for (const unsigned count : {11U, 255U})
    {
        const std::string size = ": " + std::to_string(count) + " elements, not 1..10";
        cfg = rlmCfg(static_cast<UINT8>(count), 0, 0);
        element = {};
        EXPECT_EQ(rrcComposeradioLinkMonitoring_ConfigSetup(&context, &element, &cfg), VOS_OK);
        EXPECT_EQ(encode(asn1PE_RadioLinkMonitoringConfig, element),
                  "RadioLinkMonitoringConfig.failureDetectionResourcesToAddModList" + size);
        cfg = rlmCfg(0, static_cast<UINT8>(count), 0);
        element = {};
        EXPECT_EQ(rrcComposeradioLinkMonitoring_ConfigSetup(&context, &element, &cfg), VOS_OK);
        EXPECT_EQ(encode(asn1PE_RadioLinkMonitoringConfig, element),
                  "RadioLinkMonitoringConfig.failureDetectionResourcesToReleaseList" + size);
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(radioLinkMonitoring, DetectionResources)
{
    RrcRadioLinkMonitorRs_t record{3, 1, RRC_RADIO_LINK_MONITOR_CSI_RS_PRESENCE, {191}};
    RadioLinkMonitoringRS element{};
    EXPECT_EQ(rrcComposeRadioLinkMonitoring(&element, &record), VOS_OK);
    expectDecoded("RadioLinkMonitoringRS", asn1PE_RadioLinkMonitoringRS, element,
                  R"({"radioLinkMonitoringRS-Id":3,"purpose":"rlf","detectionResource":{"csi-RS-Index":191}})");

    record = {3, 1, RRC_RADIO_LINK_MONITOR_SSB_PRESENCE, {63}};
    EXPECT_EQ(rrcComposeRadioLinkMonitoring(&element, &record), VOS_OK);
    expectDecoded("RadioLinkMonitoringRS", asn1PE_RadioLinkMonitoringRS, element,
                  R"({"radioLinkMonitoringRS-Id":3,"purpose":"rlf","detectionResource":{"ssb-Index":63}})");

    record.presence = RRC_RADIO_LINK_MONITOR_SSB_PRESENCE | RRC_RADIO_LINK_MONITOR_CSI_RS_PRESENCE;
    EXPECT_EQ(rrcComposeRadioLinkMonitoring(&element, &record), VOS_OK);
    expectDecoded("RadioLinkMonitoringRS", asn1PE_RadioLinkMonitoringRS, element,
                  R"({"radioLinkMonitoringRS-Id":3,"purpose":"rlf","detectionResource":{"csi-RS-Index":63}})");

    record.presence = 0xFC;
    element = {};
    EXPECT_EQ(rrcComposeRadioLinkMonitoring(&element, &record), VOS_OK);
    EXPECT_EQ(encode(asn1PE_RadioLinkMonitoringRS, element),
              "RadioLinkMonitoringRS.detectionResource: tag 0 is not in 1..2");
    EXPECT_EQ(printed(), "");
}

TEST_F(radioLinkMonitoring, ListCutShortByTheHeapIsSentAsFarAsItWasBuilt)
{
    RrcRlmCfg_t cfg = rlmCfg(3, 1, 3);
    for (unsigned successes = 0; successes <= 4; ++successes)
    {
        BWP_DownlinkDedicated element{};
        element.m.radioLinkMonitoringConfigPresent = 1;
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeradioLinkMonitoring_Config(&context, &element.radioLinkMonitoringConfig, &cfg), VOS_OK);
            EXPECT_EQ(HeapFault::struck(), successes < 4);
        }
        EXPECT_EQ(printed(), successes == 0 || successes == 4 ? "" : "pNode Or pItem is NULL\r\n");
        switch (successes)
        {
        case 0:
            EXPECT_EQ(encode(asn1PE_BWP_DownlinkDedicated, element),
                      "BWP-DownlinkDedicated.radioLinkMonitoringConfig: tag 0 is not in 1..2");
            break;
        case 1:
            EXPECT_EQ(encode(asn1PE_BWP_DownlinkDedicated, element),
                      "BWP-DownlinkDedicated.radioLinkMonitoringConfig.setup.failureDetectionResourcesToAddModList: "
                      "0 elements, not 1..10");
            break;
        default:
            expectDecoded("BWP-DownlinkDedicated", asn1PE_BWP_DownlinkDedicated, element,
                          "{\"radioLinkMonitoringConfig\":{\"setup\":" +
                              object({toAddJson(successes - 1), toReleaseJson(1),
                                      R"("beamFailureInstanceMaxCount":"n10","beamFailureDetectionTimer":"pbfd8")"}) +
                              "}}");
            break;
        }
        // The list builder itself does not hide it.
        RadioLinkMonitoringConfig_failureDetectionResourcesToAddModList list{};
        const HeapFault fault(successes);
        EXPECT_EQ(rrcComposeFailureDetectionResourcesToAddMod(&context, &list, &cfg),
                  successes < 3 ? VOS_ERROR : VOS_OK);
        EXPECT_EQ(printed(), successes < 3 ? "pNode Or pItem is NULL\r\n" : "");
        EXPECT_EQ(list.count, successes < 3 ? successes : 3U);
    }
}

TEST_F(radioLinkMonitoring, NullGuards)
{
    RrcRlmCfg_t cfg = rlmCfg(0, 0, 0);
    BWP_DownlinkDedicated_radioLinkMonitoringConfig choice{};
    EXPECT_EQ(rrcComposeradioLinkMonitoring_Config(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeradioLinkMonitoring_Config", "pRadioLinkMonitoringConfig"));
    EXPECT_EQ(rrcComposeradioLinkMonitoring_Config(&context, nullptr, &cfg), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeradioLinkMonitoring_Config", "pRadioLinkMonitoringConfig"));
    EXPECT_EQ(rrcComposeradioLinkMonitoring_Config(&context, &choice, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeradioLinkMonitoring_Config", "pRrcRadioLinkMonitorCfg"));
    EXPECT_EQ(choice.t, 0U);
}

TEST_F(radioLinkMonitoring, RecordOrder)
{
    using R = RrcRlmCfg_t;
    EXPECT_TRUE(rising({offsetof(R, numFailDetectResourceAddMod), offsetof(R, failDetectResource),
                        offsetof(R, numFailDetectResourceRel), offsetof(R, failDetectResourceId), offsetof(R, bitMask),
                        offsetof(R, beamFailureInstanceMaxCount), offsetof(R, beamFailureDetectionTimer)}));
    using Rs = RrcRadioLinkMonitorRs_t;
    EXPECT_TRUE(rising({offsetof(Rs, radioLinkMonitorRsId), offsetof(Rs, purpose), offsetof(Rs, presence),
                        offsetof(Rs, detectionResource)}));
    EXPECT_EQ(sizeof(Rs), 4U);
}
