#include "cellGroupCfg/rachDedicated.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "NR-RRC-Pdus.h"
#include "support/ComposerTest.h"
#include "support/RecordOrder.h"

using test::HeapFault;
using test::rising;
using testing::Each;

namespace
{

class rachDedicated : public test::ComposerTest
{
protected:
    void expectDedicated(RrcRachCfgDedi_t& cfg, const std::string& json)
    {
        SCOPED_TRACE(json);
        RACH_ConfigDedicated element{};
        EXPECT_EQ(rrcComposeRach_ConfigDedicated_uplink(&context, &element, &cfg), VOS_OK);
        expectDecoded("RACH-ConfigDedicated", asn1PE_RACH_ConfigDedicated, element, json);
        EXPECT_EQ(printed(), "");
    }

    void expectCfra(RrcCfra_t& cfg, const std::string& json)
    {
        SCOPED_TRACE(json);
        CFRA element{};
        EXPECT_EQ(rrcComposeCfra(&context, &element, &cfg), VOS_OK);
        expectDecoded("CFRA", asn1PE_CFRA, element, json);
        EXPECT_EQ(printed(), "");
    }

    // The encoder's line about the element that `cfg` composes.
    std::string refused(RrcCfra_t& cfg)
    {
        CFRA element{};
        EXPECT_EQ(rrcComposeCfra(&context, &element, &cfg), VOS_OK);
        EXPECT_EQ(printed(), "");
        return encode(asn1PE_CFRA, element);
    }

    static void giveOneSsb(RrcCfra_t& cfg)
    {
        cfg.bitMask = RRC_SSB;
        cfg.resources.ssb.numSsbResources = 1;
        cfg.resources.ssb.ssbResource[0] = {63, 62};
        cfg.resources.ssb.raSsbOccasionMaskIdx = 15;
    }

    static void giveOneCsiRs(RrcCfra_t& cfg)
    {
        cfg.bitMask = RRC_SCIS_RESOURCE;
        cfg.resources.scirs.numCsirsRecouces = 1;
        cfg.resources.scirs.csirsResource[0].csiRSIdx = 95;
        cfg.resources.scirs.csirsResource[0].numRaOccasion = 2;
        cfg.resources.scirs.csirsResource[0].raOccasionIdx[0] = 511;
        cfg.resources.scirs.csirsResource[0].raOccasionIdx[1] = 0;
        cfg.resources.scirs.csirsResource[0].raPreambleIdx = 63;
        cfg.resources.scirs.rsrpThreshCsiRs = 127;
    }
};

const std::string ssbJson =
    R"("resources":{"ssb":{"ssb-ResourceList":[{"ssb":63,"ra-PreambleIndex":62}],"ra-ssb-OccasionMaskIndex":15}})";
const std::string csiRsJson =
    R"("resources":{"csirs":{"csirs-ResourceList":[{"csi-RS":95,"ra-OccasionList":[511,0],"ra-PreambleIndex":63}],"rsrp-ThresholdCSI-RS":127}})";
const std::string genericJson =
    R"("rach-ConfigGeneric":{"prach-ConfigurationIndex":255,"msg1-FDM":"eight","msg1-FrequencyStart":274,"zeroCorrelationZoneConfig":15,)"
    R"("preambleReceivedTargetPower":-202,"preambleTransMax":"n200","powerRampingStep":"dB6","ra-ResponseWindow":"sl80"})";

constexpr RrcRachCfgGeneric_t generic = {255, 3, 274, 15, -202, 10, 3, 7};

} // namespace

TEST_F(rachDedicated, RecordsLieInTheirOrder)
{
    using Generic = RrcRachCfgGeneric_t;
    EXPECT_TRUE(rising({offsetof(Generic, prachCfgIdx), offsetof(Generic, msg1Fdm), offsetof(Generic, msg1FreqStart),
                        offsetof(Generic, zeroCorrelationZoneCfg), offsetof(Generic, preambleRecTargetPower),
                        offsetof(Generic, preambleTransMax), offsetof(Generic, powerRampingStep),
                        offsetof(Generic, raRspWindow)}));
    using Occasions = RrcOccasions_t;
    EXPECT_TRUE(rising(
        {offsetof(Occasions, rachCfgGen), offsetof(Occasions, bitMask), offsetof(Occasions, ssbPerRachOccasion)}));
    using SsbResource = RrcCfraSsbResource_t;
    EXPECT_TRUE(rising({offsetof(SsbResource, ssbIdx), offsetof(SsbResource, raPreableIdx)}));
    using Ssb = RrcSsb_t;
    EXPECT_TRUE(
        rising({offsetof(Ssb, numSsbResources), offsetof(Ssb, ssbResource), offsetof(Ssb, raSsbOccasionMaskIdx)}));
    EXPECT_EQ(sizeof(Ssb{}.ssbResource) / sizeof(SsbResource), 64U);
    using CsiRsResource = RrcCsirsResource_t;
    EXPECT_TRUE(rising({offsetof(CsiRsResource, csiRSIdx), offsetof(CsiRsResource, numRaOccasion),
                        offsetof(CsiRsResource, raOccasionIdx), offsetof(CsiRsResource, raPreambleIdx)}));
    EXPECT_EQ(sizeof(CsiRsResource{}.raOccasionIdx), 511 * sizeof(UINT16));
    using CsiRs = RrcSsirs_t;
    EXPECT_TRUE(
        rising({offsetof(CsiRs, numCsirsRecouces), offsetof(CsiRs, csirsResource), offsetof(CsiRs, rsrpThreshCsiRs)}));
    EXPECT_EQ((offsetof(CsiRs, rsrpThreshCsiRs) - offsetof(CsiRs, csirsResource)) / sizeof(CsiRsResource), 96U);
    using Cfra = RrcCfra_t;
    EXPECT_TRUE(rising({offsetof(Cfra, bitMask), offsetof(Cfra, resources), offsetof(Cfra, occasions),
                        offsetof(Cfra, totalNumOfRaPreableV1530)}));
    using Prio = RrcRaPrio_t;
    EXPECT_TRUE(rising(
        {offsetof(Prio, powerRampingStepHighPriority), offsetof(Prio, bitMask), offsetof(Prio, scalingFactorBI)}));
    using Dedicated = RrcRachCfgDedi_t;
    EXPECT_TRUE(rising({offsetof(Dedicated, bitMask), offsetof(Dedicated, cfra), offsetof(Dedicated, raPrio)}));
}

// The choice of the carrier

TEST_F(rachDedicated, NoCarrierBitLeavesTheChoice)
{
    const auto cfg = cleared<RrcReconfWithSync_t>();
    cfg->rachCfgBitMask = 0xFC;
    ReconfigurationWithSync_rach_ConfigDedicated element{};
    EXPECT_EQ(rrcComposeRach_ConfigDedicated(&context, &element, cfg.get()), VOS_OK);
    EXPECT_EQ(element.t, 0U);
    EXPECT_EQ(element.u.uplink, nullptr);

    // The element is allocated all the same.
    const HeapFault fault(0);
    EXPECT_EQ(rrcComposeRach_ConfigDedicated(&context, &element, cfg.get()), VOS_OK);
    EXPECT_TRUE(HeapFault::struck());
    EXPECT_EQ(element.t, 0U);
    EXPECT_EQ(printed(), "");
}

TEST_F(rachDedicated, CarrierBits)
{
    const auto cfg = cleared<RrcReconfWithSync_t>();
    cfg->choice.uplink.bitMask = RRC_RACH_CFG_DEDI_CFRA_PRESENCE | RRC_RACH_CFG_DEDI_RA_PRIO_PRESENCE;
    giveOneSsb(cfg->choice.uplink.cfra);
    cfg->choice.uplink.cfra.bitMask |= RRC_CFRA_OCCASIONS_PRESENCE;
    cfg->choice.uplink.cfra.occasions.rachCfgGen = generic;
    const std::string json = R"({"cfra":{"occasions":{)" + genericJson + "}," + ssbJson +
                             R"(},"ra-Prioritization":{"powerRampingStepHighPriority":"dB0"}})";
    const struct
    {
        UINT8 bits;
        OSUINT32 tag;
        std::string name;
    } cases[] = {
        {RRC_RACH_CFG_UPLINK_PRESENCE, 1, "uplink"},
        {RRC_RACH_CFG_SUPPUPLINK_PRESENCE, 2, "supplementaryUplink"},
        // Composed twice, which must not show: one resource, not two.
        {RRC_RACH_CFG_UPLINK_PRESENCE | RRC_RACH_CFG_SUPPUPLINK_PRESENCE, 2, "supplementaryUplink"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(unsigned{c.bits});
        cfg->rachCfgBitMask = c.bits;
        const auto element = cleared<ReconfigurationWithSync>();
        EXPECT_EQ(rrcComposeRach_ConfigDedicated(&context, &element->rach_ConfigDedicated, cfg.get()), VOS_OK);
        EXPECT_EQ(element->rach_ConfigDedicated.t, c.tag);
        element->m.rach_ConfigDedicatedPresent = 1;
        expectDecoded("ReconfigurationWithSync", asn1PE_ReconfigurationWithSync, *element,
                      R"({"newUE-Identity":0,"t304":"ms50","rach-ConfigDedicated":{")" + c.name + R"(":)" + json +
                          "}}");
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(rachDedicated, CarrierWithoutHeap)
{
    const auto cfg = cleared<RrcReconfWithSync_t>();
    for (const UINT8 bits : {UINT8{RRC_RACH_CFG_UPLINK_PRESENCE}, UINT8{RRC_RACH_CFG_SUPPUPLINK_PRESENCE}, UINT8{3}})
    {
        cfg->rachCfgBitMask = bits;
        const auto element = cleared<ReconfigurationWithSync>();
        {
            const HeapFault fault(0);
            EXPECT_EQ(rrcComposeRach_ConfigDedicated(&context, &element->rach_ConfigDedicated, cfg.get()), VOS_ERROR);
        }
        EXPECT_EQ(printed(), nullLine("rrcComposeRach_ConfigDedicated_uplink", "pRachCfgDedicated") +
                                 "rrcComposeRach_ConfigDedicated_uplink Error\r\n");
        element->m.rach_ConfigDedicatedPresent = 1;
        EXPECT_EQ(encode(asn1PE_ReconfigurationWithSync, *element),
                  "ReconfigurationWithSync.rach-ConfigDedicated: tag 0 is not in 1..2");
    }
}

TEST_F(rachDedicated, DedicatedMembers)
{
    const auto cfg = cleared<RrcRachCfgDedi_t>();
    giveOneSsb(cfg->cfra);
    cfg->raPrio = {3, 0xFE, 3};
    cfg->bitMask = 0xFC;
    expectDedicated(*cfg, "{}");
    cfg->bitMask = RRC_RACH_CFG_DEDI_CFRA_PRESENCE;
    expectDedicated(*cfg, R"({"cfra":{)" + ssbJson + "}}");
    cfg->bitMask = RRC_RACH_CFG_DEDI_RA_PRIO_PRESENCE;
    expectDedicated(*cfg, R"({"ra-Prioritization":{"powerRampingStepHighPriority":"dB6"}})");
    cfg->raPrio.bitMask = RRC_RA_PRIO_SCALINGFACTOR_PRESENCE;
    cfg->bitMask = 3;
    expectDedicated(*cfg,
                    R"({"cfra":{)" + ssbJson +
                        R"(},"ra-Prioritization":{"powerRampingStepHighPriority":"dB6","scalingFactorBI":"dot75"}})");
}

// Contention-free random access

TEST_F(rachDedicated, CfraMembers)
{
    const auto cfg = cleared<RrcCfra_t>();
    giveOneSsb(*cfg);
    cfg->occasions.rachCfgGen = generic;
    cfg->occasions.bitMask = RRC_OCCASION_SSB_PER_RACH_PRESENCE;
    cfg->occasions.ssbPerRachOccasion = 7;
    cfg->totalNumOfRaPreableV1530 = 63;
    const std::string occasions = R"("occasions":{)" + genericJson + R"(,"ssb-perRACH-Occasion":"sixteen"},)";
    const std::string preambles = R"(,"totalNumberOfRA-Preambles-v1530":63)";
    cfg->bitMask = RRC_SSB | 0xF0;
    expectCfra(*cfg, "{" + ssbJson + "}");
    cfg->bitMask = RRC_SSB | RRC_CFRA_OCCASIONS_PRESENCE;
    expectCfra(*cfg, "{" + occasions + ssbJson + "}");
    cfg->bitMask = RRC_SSB | RRC_CFRA_PREAMBLE_PRESENCE;
    expectCfra(*cfg, "{" + ssbJson + preambles + "}");
    cfg->bitMask = RRC_SSB | RRC_SCIS_RESOURCE | RRC_CFRA_OCCASIONS_PRESENCE | RRC_CFRA_PREAMBLE_PRESENCE;
    expectCfra(*cfg, "{" + occasions + ssbJson + preambles + "}");
    cfg->occasions.bitMask = 0xFE;
    expectCfra(*cfg, R"({"occasions":{)" + genericJson + "}," + ssbJson + preambles + "}");
}

TEST_F(rachDedicated, OccasionsAreClearedBeforeTheyAreFilled)
{
    const auto cfg = cleared<RrcCfra_t>();
    giveOneSsb(*cfg);
    cfg->bitMask |= RRC_CFRA_OCCASIONS_PRESENCE;
    cfg->occasions.rachCfgGen = generic;
    CFRA element{};
    element.occasions.m.ssb_perRACH_OccasionPresent = 1;
    EXPECT_EQ(rrcComposeCfra(&context, &element, cfg.get()), VOS_OK);
    EXPECT_EQ(element.occasions.m.ssb_perRACH_OccasionPresent, 0U);
}

TEST_F(rachDedicated, CsiRsWithoutTheBitForSsb)
{
    const auto cfg = cleared<RrcCfra_t>();
    giveOneCsiRs(*cfg);
    expectCfra(*cfg, "{" + csiRsJson + "}");
    cfg->bitMask = 0;
    expectCfra(*cfg, "{" + csiRsJson + "}");
}

TEST_F(rachDedicated, PreamblesAloneGiveTheCsiRsBranchWithAnEmptyList)
{
    const auto cfg = cleared<RrcCfra_t>();
    cfg->bitMask = RRC_CFRA_PREAMBLE_PRESENCE;
    cfg->totalNumOfRaPreableV1530 = 12;
    cfg->resources.scirs.rsrpThreshCsiRs = 99;
    CFRA element{};
    EXPECT_EQ(rrcComposeCfra(&context, &element, cfg.get()), VOS_OK);
    EXPECT_EQ(element.resources.t, 2U);
    EXPECT_EQ(element.resources.u.csirs->csirs_ResourceList.count, 0U);
    EXPECT_EQ(element.resources.u.csirs->rsrp_ThresholdCSI_RS, 99);
    EXPECT_EQ(element.m._v2ExtPresent, 1U);
    EXPECT_EQ(element.m.totalNumberOfRA_Preambles_v1530Present, 1U);
    EXPECT_EQ(element.totalNumberOfRA_Preambles_v1530, 12);
    EXPECT_EQ(element.m.occasionsPresent, 0U);
    EXPECT_EQ(encode(asn1PE_CFRA, element), "CFRA.resources.csirs.csirs-ResourceList: 0 elements, not 1..96");
}

TEST_F(rachDedicated, GenericMembersAtTheirLowerEnds)
{
    RrcRachCfgGeneric_t cfg{0, 0, 0, 0, -60, 0, 0, 0};
    RACH_ConfigGeneric element{};
    EXPECT_EQ(rrcComposeRach_ConfigGeneric(&element, &cfg), VOS_OK);
    expectDecoded(
        "RACH-ConfigGeneric", asn1PE_RACH_ConfigGeneric, element,
        R"({"prach-ConfigurationIndex":0,"msg1-FDM":"one","msg1-FrequencyStart":0,"zeroCorrelationZoneConfig":0,"preambleReceivedTargetPower":-60,)"
        R"("preambleTransMax":"n3","powerRampingStep":"dB0","ra-ResponseWindow":"sl1"})");

    cfg = generic;
    EXPECT_EQ(rrcComposeRach_ConfigGeneric(&element, &cfg), VOS_OK);
    EXPECT_EQ(element.preambleReceivedTargetPower, -202);
}

TEST_F(rachDedicated, SsbResourceCounts)
{
    const auto cfg = cleared<RrcCfra_t>();
    cfg->bitMask = RRC_SSB;
    std::string all;
    for (UINT8 i = 0; i < 64; ++i)
    {
        cfg->resources.ssb.ssbResource[i] = {i, static_cast<UINT8>(63 - i)};
        all += (i == 0 ? "" : ",") + (R"({"ssb":)" + std::to_string(i)) + R"(,"ra-PreambleIndex":)" +
               std::to_string(63 - i) + "}";
    }
    cfg->resources.ssb.numSsbResources = 64;
    expectCfra(*cfg, R"({"resources":{"ssb":{"ssb-ResourceList":[)" + all + R"(],"ra-ssb-OccasionMaskIndex":0}}})");
    for (const unsigned count : {0U, 65U, 255U})
    {
        cfg->resources.ssb.numSsbResources = static_cast<UINT8>(count);
        EXPECT_EQ(refused(*cfg),
                  "CFRA.resources.ssb.ssb-ResourceList: " + std::to_string(count) + " elements, not 1..64");
    }
}

TEST_F(rachDedicated, CsiRsResourceCounts)
{
    const auto cfg = cleared<RrcCfra_t>();
    cfg->bitMask = RRC_SCIS_RESOURCE;
    std::string all;
    for (UINT8 i = 0; i < 96; ++i)
    {
        RrcCsirsResource_t& resource = cfg->resources.scirs.csirsResource[i];
        resource.csiRSIdx = i;
        resource.numRaOccasion = 1;
        resource.raOccasionIdx[0] = static_cast<UINT16>(5 * i);
        resource.raPreambleIdx = i % 64;
        all += (i == 0 ? "" : ",") + (R"({"csi-RS":)" + std::to_string(i)) + R"(,"ra-OccasionList":[)" +
               std::to_string(5 * i) + R"(],"ra-PreambleIndex":)" + std::to_string(i % 64) + "}";
    }
    cfg->resources.scirs.numCsirsRecouces = 96;
    expectCfra(*cfg, R"({"resources":{"csirs":{"csirs-ResourceList":[)" + all + R"(],"rsrp-ThresholdCSI-RS":0}}})");
    for (const unsigned count : {0U, 97U, 255U})
    {
        cfg->resources.scirs.numCsirsRecouces = static_cast<UINT8>(count);
        EXPECT_EQ(refused(*cfg),
                  "CFRA.resources.csirs.csirs-ResourceList: " + std::to_string(count) + " elements, not 1..96");
    }
}

TEST_F(rachDedicated, OccasionCounts)
{
    const auto cfg = cleared<RrcCsirsResource_t>();
    for (UINT16 i = 0; i < 511; ++i)
    {
        cfg->raOccasionIdx[i] = static_cast<UINT16>(511 - i);
    }
    for (const unsigned count : {0U, 1U, 64U, 65U, 255U})
    {
        SCOPED_TRACE(count);
        cfg->numRaOccasion = static_cast<UINT8>(count);
        cfg->raPreambleIdx = 9;
        CFRA_CSIRS_Resource element{};
        EXPECT_EQ(rrcComposeCFRA_CSIRS_Res(&element, cfg.get()), VOS_OK);
        EXPECT_EQ(element.ra_OccasionList.n, count);
        EXPECT_EQ(element.ra_PreambleIndex, 9) << "behind the list";
        const unsigned copied = std::min(count, 64U);
        std::string occasions;
        for (unsigned i = 0; i < copied; ++i)
        {
            EXPECT_EQ(element.ra_OccasionList.elem[i], 511 - i);
            occasions += (i == 0 ? "" : ",") + std::to_string(511 - i);
        }
        EXPECT_THAT(
            std::vector<OSUINT16>(element.ra_OccasionList.elem + copied, std::end(element.ra_OccasionList.elem)),
            Each(0));
        if (count == 0 || count > 64)
        {
            EXPECT_EQ(encode(asn1PE_CFRA_CSIRS_Resource, element),
                      "CFRA-CSIRS-Resource.ra-OccasionList: " + std::to_string(count) + " elements, not 1..64");
        }
        else
        {
            expectDecoded("CFRA-CSIRS-Resource", asn1PE_CFRA_CSIRS_Resource, element,
                          R"({"csi-RS":0,"ra-OccasionList":[)" + occasions + R"(],"ra-PreambleIndex":9})");
        }
    }
}

// Failures

TEST_F(rachDedicated, NullGuards)
{
    const auto cfg = cleared<RrcReconfWithSync_t>();
    EXPECT_EQ(rrcComposeRach_ConfigDedicated(&context, nullptr, cfg.get()), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRach_ConfigDedicated", "pRach_ConfigDedicated"));
    EXPECT_EQ(rrcComposeCfra_resources(&context, nullptr, &cfg->choice.uplink.cfra), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeCfra_resources", "pResources"));

    RACH_ConfigDedicated dedicated{};
    EXPECT_EQ(rrcComposeRach_ConfigDedicated_uplink(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRach_ConfigDedicated_uplink", "pRachCfgDedicated"));
    EXPECT_EQ(rrcComposeRach_ConfigDedicated_uplink(&context, &dedicated, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRach_ConfigDedicated_uplink", "pRrcLink"));

    EXPECT_EQ(rrcComposeCfra(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeCfra", "pCfra"));
    EXPECT_EQ(rrcComposeCfra(&context, &dedicated.cfra, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeCfra", "pRrcCfra"));

    CFRA_occasions occasions{};
    EXPECT_EQ(rrcComposeCfra_occasions(nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeCfra_occasions", "pOccasions"));
    EXPECT_EQ(rrcComposeCfra_occasions(&occasions, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeCfra_occasions", "pRrcOccasions"));

    EXPECT_EQ(rrcComposeRach_ConfigGeneric(nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRach_ConfigGeneric", "pRach_ConfigGeneric"));
    EXPECT_EQ(rrcComposeRach_ConfigGeneric(&occasions.rach_ConfigGeneric, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRach_ConfigGeneric", "pRrcRachCfgGen"));

    CFRA_resources_csirs csirs{};
    EXPECT_EQ(rrcComposeCFRA_resources_csirs(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeCFRA_resources_csirs", "pCsirs"));
    EXPECT_EQ(rrcComposeCFRA_resources_csirs(&context, &csirs, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeCFRA_resources_csirs", "pRrcScirs"));

    CFRA_SSB_Resource ssbResource{};
    EXPECT_EQ(rrcComposeCFRA_SSB_Resource(nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeCFRA_SSB_Resource", "pCFRA_SSB_Res"));
    EXPECT_EQ(rrcComposeCFRA_SSB_Resource(&ssbResource, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeCFRA_SSB_Resource", "pRrcCFRA_SSB_Res"));

    CFRA_CSIRS_Resource csiRsResource{};
    EXPECT_EQ(rrcComposeCFRA_CSIRS_Res(nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeCFRA_CSIRS_Res", "pCFRA_CSIRS_Res"));
    EXPECT_EQ(rrcComposeCFRA_CSIRS_Res(&csiRsResource, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeCFRA_CSIRS_Res", "pRrcCsirsRes"));

    RA_Prioritization prioritization{};
    EXPECT_EQ(rrcComposeRa_Prioritization(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRa_Prioritization", "pRa_Prioritization"));
    EXPECT_EQ(rrcComposeRa_Prioritization(&context, &prioritization, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeRa_Prioritization", "pRaPrio"));
}

TEST_F(rachDedicated, SsbResourcesWithoutHeap)
{
    const auto cfg = cleared<RrcCfra_t>();
    giveOneSsb(*cfg);
    cfg->resources.ssb.numSsbResources = 3;
    const struct
    {
        unsigned successes;
        INT32 result;
        std::string lines;
        std::string refusal;
    } cases[] = {
        {0, VOS_ERROR, "pSsb Malloc Error\r\n", "CFRA.resources: tag 0 is not in 1..2"},
        {1, VOS_OK, "pNode Or pCFRA_SSB_Res is NULL\r\nrrcComposessb_ResourceList is Error\r\n",
         "CFRA.resources.ssb.ssb-ResourceList: 0 elements, not 1..64"},
        {2, VOS_OK, "pNode Or pCFRA_SSB_Res is NULL\r\nrrcComposessb_ResourceList is Error\r\n", ""},
        {3, VOS_OK, "pNode Or pCFRA_SSB_Res is NULL\r\nrrcComposessb_ResourceList is Error\r\n", ""},
        {4, VOS_OK, "", ""},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.successes);
        CFRA_resources resources{};
        CFRA element{};
        {
            const HeapFault fault(c.successes);
            EXPECT_EQ(rrcComposeCfra_resources(&context, &resources, cfg.get()), c.result);
            EXPECT_EQ(HeapFault::struck(), c.successes < 4);
        }
        EXPECT_EQ(printed(), c.lines);
        {
            const HeapFault fault(c.successes);
            EXPECT_EQ(rrcComposeCfra(&context, &element, cfg.get()), VOS_OK) << "ignored";
        }
        EXPECT_EQ(printed(), c.lines);
        const std::string octets = encode(asn1PE_CFRA, element);
        if (c.successes < 2)
        {
            EXPECT_EQ(octets, c.refusal);
        }
        else
        {
            // What was built is sent; the index behind a list cut short is not reached.
            EXPECT_EQ(octets.find(' '), std::string::npos) << octets;
            EXPECT_EQ(element.resources.u.ssb->ssb_ResourceList.count, c.successes - 1);
            EXPECT_EQ(element.resources.u.ssb->ra_ssb_OccasionMaskIndex, c.successes == 4 ? 15 : 0);
        }
    }
}

TEST_F(rachDedicated, SsbListAloneWithoutHeap)
{
    RrcSsb_t cfg{};
    cfg.numSsbResources = 2;
    CFRA_resources_ssb element{};
    const HeapFault fault(1);
    EXPECT_EQ(rrcComposeCFRA_resources_ssb(&context, &element, &cfg), VOS_ERROR);
    EXPECT_EQ(printed(), "pNode Or pCFRA_SSB_Res is NULL\r\nrrcComposessb_ResourceList is Error\r\n");
    EXPECT_EQ(element.ssb_ResourceList.count, 1U);
}

TEST_F(rachDedicated, CsiRsResourcesWithoutHeap)
{
    const auto cfg = cleared<RrcCfra_t>();
    giveOneCsiRs(*cfg);
    cfg->resources.scirs.numCsirsRecouces = 2;
    cfg->resources.scirs.csirsResource[1] = cfg->resources.scirs.csirsResource[0];
    const std::string listLines = "pNode Or pCFRA_CSIRS_Res is NULL\r\nrrcComposecsirs_ResourceList is Error\r\n";
    for (unsigned n = 0; n <= 3; ++n)
    {
        SCOPED_TRACE(n);
        CFRA element{};
        {
            const HeapFault fault(n);
            EXPECT_EQ(rrcComposeCfra(&context, &element, cfg.get()), VOS_OK);
            EXPECT_EQ(HeapFault::struck(), n < 3);
        }
        const std::string octets = encode(asn1PE_CFRA, element);
        if (n == 0)
        {
            EXPECT_EQ(printed(), nullLine("rrcComposeCFRA_resources_csirs", "pCsirs"));
            EXPECT_EQ(octets, "CFRA.resources: tag 0 is not in 1..2");
            continue;
        }
        EXPECT_EQ(printed(), n < 3 ? listLines : "");
        EXPECT_EQ(element.resources.u.csirs->csirs_ResourceList.count, n - 1);
        EXPECT_EQ(element.resources.u.csirs->rsrp_ThresholdCSI_RS, n < 3 ? 0 : 127);
        EXPECT_EQ(octets == "CFRA.resources.csirs.csirs-ResourceList: 0 elements, not 1..96", n == 1) << octets;
    }
}
