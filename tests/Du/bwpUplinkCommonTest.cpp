#include <memory>
#include <string>

#include "NR-RRC-Pdus.h"
#include "gnbCommon/duCompose.h"
#include "support/ComposerTest.h"

using test::HeapFault;

namespace
{

class bwpUplinkCommon : public test::ComposerTest
{
protected:
    // A bandwidth part with these bits; the records behind them hold mandatory members only.
    static std::unique_ptr<InitialUlBwp_t> bwp(UINT16 bitmask)
    {
        auto record = cleared<InitialUlBwp_t>();
        record->bitmask = bitmask;
        record->bwp = {37949, 1};
        record->rachCfgCommon.rachCfgGeneric = {255, 3, 274, 15, -202, 10, 3, 7};
        record->rachCfgCommon.raContentionResolutionTimer = 7;
        record->rachCfgCommon.prachRootSequence = 1;
        record->rachCfgCommon.prachRootSequenceIndex = 837;
        record->rachCfgCommon.restrictedSetConfig = 2;
        record->pucchCfgCommon.pucchGroupHopping = 2;
        return record;
    }

    void expectBwp(InitialUlBwp_t& record, const std::string& json)
    {
        SCOPED_TRACE(json);
        const auto element = cleared<BWP_UplinkCommon>();
        EXPECT_EQ(duComposeBWP_UplinkCommon(&context, element.get(), &record), VOS_OK);
        expectDecoded("BWP-UplinkCommon", asn1PE_BWP_UplinkCommon, *element, json);
        EXPECT_EQ(printed(), "");
    }

    std::string refused(InitialUlBwp_t& record)
    {
        const auto element = cleared<BWP_UplinkCommon>();
        EXPECT_EQ(duComposeBWP_UplinkCommon(&context, element.get(), &record), VOS_OK);
        return encode(asn1PE_BWP_UplinkCommon, *element);
    }
};

const std::string parameters = R"({"genericParameters":{"locationAndBandwidth":37949,"subcarrierSpacing":"kHz30"})";
const std::string rachGeneric =
    R"("rach-ConfigGeneric":{"prach-ConfigurationIndex":255,"msg1-FDM":"eight","msg1-FrequencyStart":274,"zeroCorrelationZoneConfig":15,)"
    R"("preambleReceivedTargetPower":-202,"preambleTransMax":"n200","powerRampingStep":"dB6","ra-ResponseWindow":"sl80"})";
const std::string timer = R"(,"ra-ContentionResolutionTimer":"sf64")";
const std::string root = R"(,"prach-RootSequenceIndex":{"l839":837})";
const std::string restricted = R"(,"restrictedSetConfig":"restrictedSetTypeB")";

std::string rachJson(const std::string& members)
{
    return parameters + R"(,"rach-ConfigCommon":{"setup":{)" + rachGeneric + members + "}}}";
}

} // namespace

TEST_F(bwpUplinkCommon, MembersAloneAndAll)
{
    const std::string rach = R"(,"rach-ConfigCommon":{"setup":{)" + rachGeneric + timer + root + restricted + "}}";
    const std::string pusch = R"(,"pusch-ConfigCommon":{"setup":{}})";
    const std::string pucch = R"(,"pucch-ConfigCommon":{"setup":{"pucch-GroupHopping":"disable"}})";
    expectBwp(*bwp(0xFFF0), parameters + "}");
    expectBwp(
        *bwp(NR_BWP_UL_EXTENDED_CYCLIC_PREFIX),
        R"({"genericParameters":{"locationAndBandwidth":37949,"subcarrierSpacing":"kHz30","cyclicPrefix":"extended"}})");
    expectBwp(*bwp(NR_BWP_UL_RACH_CFG_COMMON_PRESENCE), parameters + rach + "}");
    expectBwp(*bwp(NR_BWP_UL_PUSCH_CFG_COMMON_PRESENCE), parameters + pusch + "}");
    expectBwp(*bwp(NR_BWP_UL_PUCCH_CFG_COMMON_PRESENCE), parameters + pucch + "}");
    expectBwp(*bwp(7), parameters + rach + pusch + pucch + "}");
}

TEST_F(bwpUplinkCommon, RachMembersAloneAndAll)
{
    const auto record = bwp(NR_BWP_UL_RACH_CFG_COMMON_PRESENCE);
    NrRachCfgCommon_t& rach = record->rachCfgCommon;
    rach.totalNumberOfRaPreambles = 63;
    rach.ssbPerRachOccasion = 1;
    rach.cbPreamblesPerSsb = 15;
    rach.raMsg3SizeGroupA = 9;
    rach.messagePowerOffsetGroupB = 7;
    rach.numberOfRaPreamblesGroupA = 64;
    rach.rsrpThresholdSsb = 127;
    rach.rsrpThresholdSsbSul = 126;
    rach.msg1SubcarrierSpacing = 3;
    const std::string total = R"(,"totalNumberOfRA-Preambles":63)";
    const std::string perSsb = R"(,"ssb-perRACH-OccasionAndCB-PreamblesPerSSB":{"oneEighth":"n64"})";
    const std::string groupB =
        R"(,"groupBconfigured":{"ra-Msg3SizeGroupA":"b72","messagePowerOffsetGroupB":"dB18","numberOfRA-PreamblesGroupA":64})";
    const std::string ssb = R"(,"rsrp-ThresholdSSB":127)";
    const std::string sul = R"(,"rsrp-ThresholdSSB-SUL":126)";
    const std::string msg1 = R"(,"msg1-SubcarrierSpacing":"kHz120")";
    const std::string msg3 = R"(,"msg3-transformPrecoder":"enabled")";
    const struct
    {
        UINT8 bitmask;
        std::string json;
    } cases[] = {
        {0x80, timer + root + restricted},
        {NR_RACH_COMMON_TOTAL_PREAMBLES_PRESENCE, total + timer + root + restricted},
        {NR_RACH_COMMON_SSB_PER_RACH_OCCASION_PRESENCE, perSsb + timer + root + restricted},
        {NR_RACH_COMMON_GROUP_B_PRESENCE, groupB + timer + root + restricted},
        {NR_RACH_COMMON_RSRP_THRESHOLD_SSB_PRESENCE, timer + ssb + root + restricted},
        {NR_RACH_COMMON_RSRP_THRESHOLD_SSB_SUL_PRESENCE, timer + sul + root + restricted},
        {NR_RACH_COMMON_MSG1_SUBCARRIER_SPACING_PRESENCE, timer + root + msg1 + restricted},
        {NR_RACH_COMMON_MSG3_TRANSFORM_PRECODER, timer + root + restricted + msg3},
        {0x7F, total + perSsb + groupB + timer + ssb + sul + root + msg1 + restricted + msg3},
    };
    for (const auto& c : cases)
    {
        rach.bitmask = c.bitmask;
        expectBwp(*record, rachJson(c.json));
    }
}

TEST_F(bwpUplinkCommon, PreamblesPerSsb)
{
    const auto record = bwp(NR_BWP_UL_RACH_CFG_COMMON_PRESENCE);
    record->rachCfgCommon.bitmask = NR_RACH_COMMON_SSB_PER_RACH_OCCASION_PRESENCE;
    const struct
    {
        UINT8 value;
        std::string json;
        std::string range; // what the encoder says about the next value
    } cases[] = {
        {15, R"({"oneEighth":"n64"})", "oneEighth: 16 is not in 0..15"},
        {15, R"({"oneFourth":"n64"})", "oneFourth: 16 is not in 0..15"},
        {15, R"({"oneHalf":"n64"})", "oneHalf: 16 is not in 0..15"},
        {15, R"({"one":"n64"})", "one: 16 is not in 0..15"},
        {7, R"({"two":"n32"})", "two: 8 is not in 0..7"},
        {16, R"({"four":16})", "four: 17 is not in 1..16"},
        {8, R"({"eight":8})", "eight: 9 is not in 1..8"},
        {4, R"({"sixteen":4})", "sixteen: 5 is not in 1..4"},
    };
    UINT8 tag = 1;
    const std::string path = "BWP-UplinkCommon.rach-ConfigCommon.setup.ssb-perRACH-OccasionAndCB-PreamblesPerSSB";
    for (const auto& c : cases)
    {
        record->rachCfgCommon.ssbPerRachOccasion = tag++;
        record->rachCfgCommon.cbPreamblesPerSsb = c.value;
        expectBwp(*record,
                  rachJson(R"(,"ssb-perRACH-OccasionAndCB-PreamblesPerSSB":)" + c.json + timer + root + restricted));
        ++record->rachCfgCommon.cbPreamblesPerSsb;
        EXPECT_EQ(refused(*record), path + "." + c.range);
    }
    for (const unsigned unknown : {0U, 9U})
    {
        record->rachCfgCommon.ssbPerRachOccasion = static_cast<UINT8>(unknown);
        EXPECT_EQ(refused(*record), path + ": tag " + std::to_string(unknown) + " is not in 1..8");
    }
}

TEST_F(bwpUplinkCommon, RootSequences)
{
    const auto record = bwp(NR_BWP_UL_RACH_CFG_COMMON_PRESENCE);
    record->rachCfgCommon.prachRootSequence = 2;
    record->rachCfgCommon.prachRootSequenceIndex = 137;
    expectBwp(*record, rachJson(timer + R"(,"prach-RootSequenceIndex":{"l139":137})" + restricted));
    const std::string path = "BWP-UplinkCommon.rach-ConfigCommon.setup.prach-RootSequenceIndex";
    // The member has eight bits: 256 + 5 must not become 5.
    record->rachCfgCommon.prachRootSequenceIndex = 256 + 5;
    EXPECT_EQ(refused(*record), path + ".l139: 255 is not in 0..137");
    record->rachCfgCommon.prachRootSequence = 1;
    record->rachCfgCommon.prachRootSequenceIndex = 838;
    EXPECT_EQ(refused(*record), path + ".l839: 838 is not in 0..837");
    for (const unsigned unknown : {0U, 3U})
    {
        record->rachCfgCommon.prachRootSequence = static_cast<UINT8>(unknown);
        EXPECT_EQ(refused(*record), path + ": tag " + std::to_string(unknown) + " is not in 1..2");
    }
}

TEST_F(bwpUplinkCommon, PuschMembersAloneAndAll)
{
    const auto record = bwp(NR_BWP_UL_PUSCH_CFG_COMMON_PRESENCE);
    NrPuschCfgCommon_t& pusch = record->puschCfgCommon;
    pusch.msg3DeltaPreamble = -1;
    pusch.p0NominalWithGrant = -202;
    const auto json = [](const std::string& members)
    {
        return parameters + R"(,"pusch-ConfigCommon":{"setup":{)" + members + "}}}";
    };
    pusch.bitmask = 0xF8;
    expectBwp(*record, json(""));
    pusch.bitmask = NR_PUSCH_COMMON_GROUP_HOPPING;
    expectBwp(*record, json(R"("groupHoppingEnabledTransformPrecoding":"enabled")"));
    pusch.bitmask = NR_PUSCH_COMMON_MSG3_DELTA_PREAMBLE_PRESENCE;
    expectBwp(*record, json(R"("msg3-DeltaPreamble":-1)"));
    pusch.bitmask = NR_PUSCH_COMMON_P0_NOMINAL_WITH_GRANT_PRESENCE;
    expectBwp(*record, json(R"("p0-NominalWithGrant":-202)"));
    pusch.bitmask = 7;
    pusch.numTimeDomainAllocs = 2;
    pusch.timeDomainAlloc[0] = {NR_TIME_DOMAIN_ALLOC_SLOT_OFFSET_PRESENCE, 32, 1, 127};
    pusch.timeDomainAlloc[1] = {0xFE, 32, 0, 0};
    expectBwp(
        *record,
        json(
            R"("groupHoppingEnabledTransformPrecoding":"enabled","pusch-TimeDomainAllocationList":[)"
            R"({"k2":32,"mappingType":"typeB","startSymbolAndLength":127},{"mappingType":"typeA","startSymbolAndLength":0}],)"
            R"("msg3-DeltaPreamble":-1,"p0-NominalWithGrant":-202)"));
}

TEST_F(bwpUplinkCommon, PuschAllocationCounts)
{
    const auto record = bwp(NR_BWP_UL_PUSCH_CFG_COMMON_PRESENCE);
    for (const unsigned count : {1U, 16U, 17U, 255U})
    {
        record->puschCfgCommon.numTimeDomainAllocs = static_cast<UINT8>(count);
        std::string allocations;
        for (unsigned i = 0; i < count; ++i)
        {
            if (i < 16)
            {
                record->puschCfgCommon.timeDomainAlloc[i].startSymbolAndLength = static_cast<UINT8>(i);
            }
            allocations += std::string(i == 0 ? "" : ",") + R"({"mappingType":"typeA","startSymbolAndLength":)" +
                           std::to_string(i) + "}";
        }
        if (count > 16)
        {
            EXPECT_EQ(refused(*record), "BWP-UplinkCommon.pusch-ConfigCommon.setup.pusch-TimeDomainAllocationList: " +
                                            std::to_string(count) + " elements, not 1..16");
        }
        else
        {
            expectBwp(*record, parameters + R"(,"pusch-ConfigCommon":{"setup":{"pusch-TimeDomainAllocationList":[)" +
                                   allocations + "]}}}");
        }
    }
}

TEST_F(bwpUplinkCommon, PucchMembersAloneAndAll)
{
    const auto record = bwp(NR_BWP_UL_PUCCH_CFG_COMMON_PRESENCE);
    NrPucchCfgCommon_t& pucch = record->pucchCfgCommon;
    pucch.pucchResourceCommon = 15;
    pucch.hoppingId = 1023;
    pucch.p0Nominal = 24;
    const auto json = [](const std::string& before, const std::string& behind)
    {
        return parameters + R"(,"pucch-ConfigCommon":{"setup":{)" + before + R"("pucch-GroupHopping":"disable")" +
               behind + "}}}";
    };
    pucch.bitmask = 0xF8;
    expectBwp(*record, json("", ""));
    pucch.bitmask = NR_PUCCH_COMMON_RESOURCE_PRESENCE;
    expectBwp(*record, json(R"("pucch-ResourceCommon":15,)", ""));
    pucch.bitmask = NR_PUCCH_COMMON_HOPPING_ID_PRESENCE;
    expectBwp(*record, json("", R"(,"hoppingId":1023)"));
    pucch.bitmask = NR_PUCCH_COMMON_P0_NOMINAL_PRESENCE;
    expectBwp(*record, json("", R"(,"p0-nominal":24)"));
    pucch.bitmask = 7;
    expectBwp(*record, json(R"("pucch-ResourceCommon":15,)", R"(,"hoppingId":1023,"p0-nominal":24)"));
}

TEST_F(bwpUplinkCommon, NothingGoesOutCutShortWithoutHeap)
{
    const auto record = bwp(7);
    record->puschCfgCommon.numTimeDomainAllocs = 2;
    // RACH, PUSCH and its two allocations, PUCCH.
    const struct
    {
        std::string printed;
        std::string refused;
    } cases[] = {
        {"", "rach-ConfigCommon"},
        {"", "pusch-ConfigCommon"},
        {"pNode Or pPuschTimeDomainAlloc is NULL\r\n", "pusch-ConfigCommon"},
        {"pNode Or pPuschTimeDomainAlloc is NULL\r\n", "pusch-ConfigCommon"},
        {"", "pucch-ConfigCommon"},
    };
    unsigned successes = 0;
    for (const auto& c : cases)
    {
        SCOPED_TRACE(successes);
        const auto element = cleared<BWP_UplinkCommon>();
        {
            const HeapFault fault(successes++);
            EXPECT_EQ(duComposeBWP_UplinkCommon(&context, element.get(), record.get()), VOS_ERROR);
        }
        EXPECT_EQ(printed(), c.printed);
        EXPECT_EQ(encode(asn1PE_BWP_UplinkCommon, *element),
                  "BWP-UplinkCommon." + c.refused + ": tag 0 is not in 1..2");
    }
    const auto element = cleared<BWP_UplinkCommon>();
    const HeapFault fault(successes);
    EXPECT_EQ(duComposeBWP_UplinkCommon(&context, element.get(), record.get()), VOS_OK);
    EXPECT_FALSE(HeapFault::struck());
}
