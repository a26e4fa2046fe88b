#include "cellGroupCfg/csiResource.h"

#include <cstring>
#include <initializer_list>
#include <string>

#include "NR-RRC-Pdus.h"
#include "csiRecords.h"
#include "support/ComposerTest.h"

using test::HeapFault;
using test::jsonArray;
using test::nzpResource;
using test::nzpResourceJson;

namespace
{

class csiResource : public test::ComposerTest
{
protected:
    CSI_IM_Resource imResource(RrcCsiImResource_t record)
    {
        CSI_IM_Resource element{};
        EXPECT_EQ(rrcComposecsi_IM_ResourceToAdd(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    CSI_ResourceConfig resourceConfig(RrcCsiResourceCfg_t record)
    {
        CSI_ResourceConfig element{};
        EXPECT_EQ(rrcComposeCsi_ResourceConfigToAdd(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }
};

using Counts = std::initializer_list<UINT8>;

std::string number(unsigned i)
{
    return std::to_string(i);
}

// Which of a choice's two bits are set, and how many heap requests succeed before the one that fails.
const struct
{
    UINT8 presence;
    unsigned successes;
} withoutHeap[] = {{1, 0}, {2, 0}, {3, 0}, {3, 1}};

// NZP-CSI-RS

TEST_F(csiResource, NzpResourceOptions)
{
    const std::string plain = R"("powerControlOffset":15)";
    const std::string withSs = plain + R"(,"powerControlOffsetSS":"db6")";
    const std::string periodicity = R"(,"periodicityAndOffset":{"slots320":319})";
    const std::string qcl = R"(,"qcl-InfoPeriodicCSI-RS":127)";
    const struct
    {
        UINT8 bitMask;
        std::string offset;
        std::string behind;
    } cases[] = {
        {0, plain, ""},
        {RRC_NZP_CSI_RS_RESOURCE_POWER_CONTROL_OFFSET_SS_PRESENT, withSs, ""},
        {RRC_NZP_CSI_RS_RESOURCE_PERIODIC_OFFSET_PRESENT, plain, periodicity},
        {RRC_NZP_CSI_RS_RESOURCE_QCI_INFO_PERIOD_CSI_RS_PRESENT, plain, qcl},
        {0xFF, withSs, periodicity + qcl},
        {0xF8, plain, ""},
    };
    for (const auto& [bitMask, offset, behind] : cases)
    {
        RrcNzpCsiRsResource_t record = nzpResource(191);
        record.powerControlOffset = 15;
        record.bitMask = bitMask;
        record.powerControlOffsetSS = 3;
        record.periodicityAndOffset = {12, 319};
        record.qclInfoPeriodicCsiRs = 127;
        NZP_CSI_RS_Resource element{};
        EXPECT_EQ(rrcComposeNzpCsiRsResourceAdd(&context, &element, &record), VOS_OK);
        expectDecoded("NZP-CSI-RS-Resource", asn1PE_NZP_CSI_RS_Resource, element, nzpResourceJson(191, offset, behind));
        EXPECT_EQ(printed(), "");
    }
}

TEST_F(csiResource, PowerControlOffsetIsTheTwosComplement)
{
    RrcNzpCsiRsResource_t record = nzpResource(0);
    record.powerControlOffset = 0xF8;
    NZP_CSI_RS_Resource element{};
    EXPECT_EQ(rrcComposeNzpCsiRsResourceAdd(&context, &element, &record), VOS_OK);
    expectDecoded("NZP-CSI-RS-Resource", asn1PE_NZP_CSI_RS_Resource, element,
                  nzpResourceJson(0, R"("powerControlOffset":-8)"));

    record.powerControlOffset = 0xF7;
    EXPECT_EQ(rrcComposeNzpCsiRsResourceAdd(&context, &element, &record), VOS_OK);
    EXPECT_EQ(encode(asn1PE_NZP_CSI_RS_Resource, element),
              "NZP-CSI-RS-Resource.powerControlOffset: -9 is not in -8..15");
}

TEST_F(csiResource, UnknownPeriodicityOfAnNzpResourceIsLoggedAndKept)
{
    RrcNzpCsiRsResource_t record = nzpResource(0);
    record.bitMask = RRC_NZP_CSI_RS_RESOURCE_PERIODIC_OFFSET_PRESENT;
    record.periodicityAndOffset = {14, 0};
    NZP_CSI_RS_Resource element{};
    EXPECT_EQ(rrcComposeNzpCsiRsResourceAdd(&context, &element, &record), VOS_OK);
    EXPECT_EQ(printed(), "Have no CSI_ResourcePeriodicityAndOffset type\n");
    EXPECT_EQ(encode(asn1PE_NZP_CSI_RS_Resource, element),
              "NZP-CSI-RS-Resource.periodicityAndOffset: tag 14 is not in 1..13");
}

TEST_F(csiResource, NzpResourceWithoutHeapHasNoMapping)
{
    RrcNzpCsiRsResource_t record = nzpResource(0);
    NZP_CSI_RS_Resource element{};
    {
        const HeapFault fault(0);
        EXPECT_EQ(rrcComposeNzpCsiRsResourceAdd(&context, &element, &record), VOS_OK);
        EXPECT_TRUE(HeapFault::struck());
    }
    EXPECT_EQ(encode(asn1PE_NZP_CSI_RS_Resource, element),
              "NZP-CSI-RS-Resource.resourceMapping.frequencyDomainAllocation: tag 0 is not in 1..4");
}

RrcNzpCsiRsResourceSet_t nzpSet(UINT16 count)
{
    RrcNzpCsiRsResourceSet_t record{};
    record.nzpCsiResourceSetId = 63;
    record.numNzpCsiRsRes = count;
    for (unsigned i = 0; i < RRC_MAX_NROF_NZP_CSI_RS_RESOURCES_PER_SET; ++i)
    {
        record.numNzpCsiRsResources[i] = static_cast<UINT8>(191 - i);
    }
    record.repetition = 1;
    record.aperidicTriggeringOffset = 6;
    return record;
}

std::string nzpSetJson(unsigned count, const std::string& behind = "")
{
    return R"({"nzp-CSI-ResourceSetId":63,"nzp-CSI-RS-Resources":)" +
           jsonArray(count, [](unsigned i) { return number(191 - i); }) + behind + "}";
}

TEST_F(csiResource, NzpSetOptions)
{
    const std::string repetition = R"(,"repetition":"off")";
    const std::string offset = R"(,"aperiodicTriggeringOffset":6)";
    const std::string trs = R"(,"trs-Info":"true")";
    const struct
    {
        UINT8 bitMask;
        std::string behind;
    } cases[] = {
        {0, ""},
        {RRC_NZP_CSI_RS_RESOUECE_SET_REPETITION_PRESENCE, repetition},
        {RRC_NZP_CSI_RS_RESOUECE_SET_APERIODIC_OFFSET_PRESENCE, offset},
        {RRC_NZP_CSI_RS_RESOUECE_SET_TRS_INFO_PRESENCE, trs},
        {0xFF, repetition + offset + trs},
        {0xF8, ""},
    };
    for (const auto& [bitMask, behind] : cases)
    {
        RrcNzpCsiRsResourceSet_t record = nzpSet(1);
        record.bitMask = bitMask;
        NZP_CSI_RS_ResourceSet element{};
        EXPECT_EQ(rrcComposeNzpCsiRsResourceSetAdd(&element, &record), VOS_OK);
        expectDecoded("NZP-CSI-RS-ResourceSet", asn1PE_NZP_CSI_RS_ResourceSet, element, nzpSetJson(1, behind));
    }
}

TEST_F(csiResource, NzpSetCounts)
{
    const struct
    {
        UINT16 count;
        std::string error;
    } refused[] = {
        {0, "NZP-CSI-RS-ResourceSet.nzp-CSI-RS-Resources: 0 elements, not 1..64"},
        {65, "NZP-CSI-RS-ResourceSet.nzp-CSI-RS-Resources: 65 elements, not 1..64"},
        {0xFFFF, "NZP-CSI-RS-ResourceSet.nzp-CSI-RS-Resources: 255 elements, not 1..64"},
    };
    for (const auto& [count, error] : refused)
    {
        RrcNzpCsiRsResourceSet_t record = nzpSet(count);
        NZP_CSI_RS_ResourceSet element{};
        EXPECT_EQ(rrcComposeNzpCsiRsResourceSetAdd(&element, &record), VOS_OK);
        EXPECT_EQ(encode(asn1PE_NZP_CSI_RS_ResourceSet, element), error);
    }
    RrcNzpCsiRsResourceSet_t record = nzpSet(64);
    NZP_CSI_RS_ResourceSet element{};
    EXPECT_EQ(rrcComposeNzpCsiRsResourceSetAdd(&element, &record), VOS_OK);
    expectDecoded("NZP-CSI-RS-ResourceSet", asn1PE_NZP_CSI_RS_ResourceSet, element, nzpSetJson(64));
}

TEST_F(csiResource, NzpSetKeepsTheLowOctetOfItsCount)
{
    RrcNzpCsiRsResourceSet_t record = nzpSet(0x103);
    NZP_CSI_RS_ResourceSet element{};
    EXPECT_EQ(rrcComposeNzpCsiRsResourceSetAdd(&element, &record), VOS_OK);
    EXPECT_EQ(element.nzp_CSI_RS_Resources.n, 3);
    // The copy runs on over the whole count, as far as there is an array.
    EXPECT_EQ(element.nzp_CSI_RS_Resources.elem[63], 191 - 63);
    expectDecoded("NZP-CSI-RS-ResourceSet", asn1PE_NZP_CSI_RS_ResourceSet, element, nzpSetJson(3));
}

// CSI-IM

RrcCsiImResource_t imRecord(UINT8 bitMask, UINT8 presence)
{
    RrcCsiImResource_t record{};
    record.csiImResourceId = 31;
    record.bitMask = bitMask;
    record.presence = presence;
    record.csiImResourceElementPattern.pattern0 = {2, 12};
    record.freqBand = {274, 276};
    record.periodicityAndOffset = {13, 639};
    return record;
}

TEST_F(csiResource, ImResourceOptions)
{
    const std::string pattern =
        R"(,"csi-IM-ResourceElementPattern":{"pattern0":{"subcarrierLocation-p0":"s4","symbolLocation-p0":12}})";
    const std::string band = R"(,"freqBand":{"startingRB":274,"nrofRBs":276})";
    const std::string periodicity = R"(,"periodicityAndOffset":{"slots640":639})";
    const struct
    {
        UINT8 bitMask;
        std::string behind;
    } cases[] = {
        {0, ""},
        {RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN_PRESENCE, pattern},
        {RRC_CSI_IM_RESOURCE_FREQ_BAND_PRESENCE, band},
        {RRC_CSI_IM_RESOURCE_PERIODIC_OFFSET_PRESENCE, periodicity},
        {0xFF, pattern + band + periodicity},
        {0xF8, ""},
    };
    for (const auto& [bitMask, behind] : cases)
    {
        expectDecoded("CSI-IM-Resource", asn1PE_CSI_IM_Resource,
                      imResource(imRecord(bitMask, RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN0_PRESENCE)),
                      R"({"csi-IM-ResourceId":31)" + behind + "}");
    }
}

TEST_F(csiResource, ImPatterns)
{
    RrcCsiImResource_t record = imRecord(RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN_PRESENCE, 0);
    EXPECT_EQ(encode(asn1PE_CSI_IM_Resource, imResource(record)),
              "CSI-IM-Resource.csi-IM-ResourceElementPattern: tag 0 is not in 1..2");

    record.presence = RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN1_PRESENCE;
    record.csiImResourceElementPattern.pattern1 = {1, 13};
    expectDecoded(
        "CSI-IM-Resource", asn1PE_CSI_IM_Resource, imResource(record),
        R"({"csi-IM-ResourceId":31,"csi-IM-ResourceElementPattern":{"pattern1":{"subcarrierLocation-p1":"s4","symbolLocation-p1":13}}})");

    // Both bits: pattern1, from the octets of pattern0.
    expectDecoded(
        "CSI-IM-Resource", asn1PE_CSI_IM_Resource,
        imResource(imRecord(RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN_PRESENCE, 0xFF)),
        R"({"csi-IM-ResourceId":31,"csi-IM-ResourceElementPattern":{"pattern1":{"subcarrierLocation-p1":"s8","symbolLocation-p1":12}}})");
}

TEST_F(csiResource, ImPatternWithoutHeapStaysOpen)
{
    // The second alternative's failure leaves nothing of the first one.
    for (const auto& [presence, successes] : withoutHeap)
    {
        CSI_IM_Resource element{};
        {
            const HeapFault fault(successes);
            element = imResource(imRecord(RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN_PRESENCE, presence));
            EXPECT_TRUE(HeapFault::struck());
        }
        EXPECT_EQ(encode(asn1PE_CSI_IM_Resource, element),
                  "CSI-IM-Resource.csi-IM-ResourceElementPattern: tag 0 is not in 1..2");
    }
}

TEST_F(csiResource, UnknownPeriodicityOfAnImResourceIsLoggedAndKept)
{
    RrcCsiImResource_t record = imRecord(RRC_CSI_IM_RESOURCE_PERIODIC_OFFSET_PRESENCE, 0);
    record.periodicityAndOffset.slotsPeriod = 0;
    CSI_IM_Resource element{};
    EXPECT_EQ(rrcComposecsi_IM_ResourceToAdd(&context, &element, &record), VOS_OK);
    EXPECT_EQ(printed(), "Have no CSI_ResourcePeriodicityAndOffset type\n");
    EXPECT_EQ(encode(asn1PE_CSI_IM_Resource, element), "CSI-IM-Resource.periodicityAndOffset: tag 0 is not in 1..13");
}

TEST_F(csiResource, ImSetCounts)
{
    RrcCsiImResourceSet_t record = {63, 0, {31, 30, 29, 28, 27, 26, 25, 24}};
    for (const UINT8 count : Counts{1, 8})
    {
        record.numCsiImResources = count;
        CSI_IM_ResourceSet element{};
        EXPECT_EQ(rrcComposecsi_IM_ResourceSetToAdd(&element, &record), VOS_OK);
        expectDecoded("CSI-IM-ResourceSet", asn1PE_CSI_IM_ResourceSet, element,
                      R"({"csi-IM-ResourceSetId":63,"csi-IM-Resources":)" +
                          jsonArray(count, [](unsigned i) { return number(31 - i); }) + "}");
    }
    for (const UINT8 count : Counts{0, 9, 255})
    {
        record.numCsiImResources = count;
        CSI_IM_ResourceSet element{};
        EXPECT_EQ(rrcComposecsi_IM_ResourceSetToAdd(&element, &record), VOS_OK);
        EXPECT_EQ(encode(asn1PE_CSI_IM_ResourceSet, element),
                  "CSI-IM-ResourceSet.csi-IM-Resources: " + number(count) + " elements, not 1..8");
    }
}

// CSI-SSB

TEST_F(csiResource, SsbSetCounts)
{
    RrcCsiSsbResourceSet_t record{};
    record.csiSsbResourceSetId = 62;
    for (unsigned i = 0; i < RRC_MAX_NROF_CSI_SSB_RESOURCE_PER_SET; ++i)
    {
        record.csiSsbIdx[i] = static_cast<UINT8>(63 - i);
    }
    for (const UINT8 count : Counts{1, 64})
    {
        record.numSsbResourceSet = count;
        CSI_SSB_ResourceSet element{};
        EXPECT_EQ(rrcComposeCsiSsbResourceSetAddMod(&element, &record), VOS_OK);
        expectDecoded("CSI-SSB-ResourceSet", asn1PE_CSI_SSB_ResourceSet, element,
                      R"({"csi-SSB-ResourceSetId":62,"csi-SSB-ResourceList":)" +
                          jsonArray(count, [](unsigned i) { return number(63 - i); }) + "}");
    }
    for (const UINT8 count : Counts{0, 65, 255})
    {
        record.numSsbResourceSet = count;
        CSI_SSB_ResourceSet element{};
        EXPECT_EQ(rrcComposeCsiSsbResourceSetAddMod(&element, &record), VOS_OK);
        EXPECT_EQ(encode(asn1PE_CSI_SSB_ResourceSet, element),
                  "CSI-SSB-ResourceSet.csi-SSB-ResourceList: " + number(count) + " elements, not 1..64");
    }
}

// Resource configurations

RrcCsiResourceCfg_t configRecord(UINT8 presence)
{
    RrcCsiResourceCfg_t record{};
    record.csiResourceCfgId = 111;
    record.bwpId = 4;
    record.resourceType = 2;
    record.presence = presence;
    return record;
}

std::string configJson(const std::string& list)
{
    return R"({"csi-ResourceConfigId":111,"csi-RS-ResourceSetList":)" + list +
           R"(,"bwp-Id":4,"resourceType":"periodic"})";
}

TEST_F(csiResource, ConfigOfNzpAndSsbSets)
{
    const std::string one = R"("nzp-CSI-RS-ResourceSetList":[63])";
    const std::string full =
        R"("nzp-CSI-RS-ResourceSetList":)" + jsonArray(16, [](unsigned i) { return number(63 - i); });
    const std::string ssb = R"("csi-SSB-ResourceSetList":[61])";
    const struct
    {
        UINT8 nzp;
        UINT8 ssb;
        std::string members;
    } cases[] = {
        {0, 0, ""}, {1, 0, one}, {0, 1, ssb}, {16, 1, full + "," + ssb}, {0, 2, ssb}, {0, 255, ssb},
    };
    for (const auto& [nzpCount, ssbCount, members] : cases)
    {
        RrcCsiResourceCfg_t record = configRecord(RRC_CSI_RESOURCE_CFG_NZP_CSI_RS_SSB_PRESENCE);
        nzpCsiRsResourceSetList_s& list = record.csiRsResourceSetList.nzpCsiRsResourceSetList;
        list.numNzpCsiRsResourceSet = nzpCount;
        for (unsigned i = 0; i < 16; ++i)
        {
            list.nzpCsiRsResourceSetId[i] = static_cast<UINT8>(63 - i);
        }
        list.numCsiSsbResourceSet = ssbCount;
        list.csiSsbResourceSetId[0] = 61;
        expectDecoded("CSI-ResourceConfig", asn1PE_CSI_ResourceConfig, resourceConfig(record),
                      configJson(R"({"nzp-CSI-RS-SSB":{)" + members + "}}"));
    }
}

TEST_F(csiResource, ConfigOfTooManyNzpSets)
{
    RrcCsiResourceCfg_t record = configRecord(RRC_CSI_RESOURCE_CFG_NZP_CSI_RS_SSB_PRESENCE);
    record.csiRsResourceSetList.nzpCsiRsResourceSetList.numNzpCsiRsResourceSet = 17;
    EXPECT_EQ(encode(asn1PE_CSI_ResourceConfig, resourceConfig(record)),
              "CSI-ResourceConfig.csi-RS-ResourceSetList.nzp-CSI-RS-SSB.nzp-CSI-RS-ResourceSetList: 17 elements, "
              "not 1..16");
}

TEST_F(csiResource, ConfigOfImSets)
{
    RrcCsiResourceCfg_t record = configRecord(RRC_CSI_RESOURCE_CFG_CSI_IM_RESOUECE_SET_LIST_PRESENCE);
    csiImResourceSetList_s& list = record.csiRsResourceSetList.csiImResourceSetList;
    for (unsigned i = 0; i < 16; ++i)
    {
        list.csiImResourceSetId[i] = static_cast<UINT8>(48 + i);
    }
    for (const UINT8 count : Counts{1, 16})
    {
        list.numCsiImResourceSet = count;
        expectDecoded("CSI-ResourceConfig", asn1PE_CSI_ResourceConfig, resourceConfig(record),
                      configJson(R"({"csi-IM-ResourceSetList":)" +
                                 jsonArray(count, [](unsigned i) { return number(48 + i); }) + "}"));
    }
    for (const UINT8 count : Counts{0, 17, 255})
    {
        list.numCsiImResourceSet = count;
        EXPECT_EQ(encode(asn1PE_CSI_ResourceConfig, resourceConfig(record)),
                  "CSI-ResourceConfig.csi-RS-ResourceSetList.csi-IM-ResourceSetList: " + number(count) +
                      " elements, not 1..16");
    }
}

TEST_F(csiResource, ConfigOfBothListsTakesTheImSets)
{
    RrcCsiResourceCfg_t record = configRecord(0xFF);
    record.csiRsResourceSetList.nzpCsiRsResourceSetList = {2, {5, 6}, 1, {7}};
    expectDecoded("CSI-ResourceConfig", asn1PE_CSI_ResourceConfig, resourceConfig(record),
                  configJson(R"({"csi-IM-ResourceSetList":[5,6]})"));
    // The counts of the losing list are bounded, too.
    std::memset(&record.csiRsResourceSetList, 0xFF, sizeof record.csiRsResourceSetList);
    EXPECT_EQ(encode(asn1PE_CSI_ResourceConfig, resourceConfig(record)),
              "CSI-ResourceConfig.csi-RS-ResourceSetList.csi-IM-ResourceSetList: 255 elements, not 1..16");
}

TEST_F(csiResource, ConfigWithoutListOrHeapStaysOpen)
{
    const std::string refused = "CSI-ResourceConfig.csi-RS-ResourceSetList: tag 0 is not in 1..2";
    EXPECT_EQ(encode(asn1PE_CSI_ResourceConfig, resourceConfig(configRecord(0xFC))), refused);
    for (const auto& [presence, successes] : withoutHeap)
    {
        CSI_ResourceConfig element{};
        {
            const HeapFault fault(successes);
            element = resourceConfig(configRecord(presence));
            EXPECT_TRUE(HeapFault::struck());
        }
        EXPECT_EQ(encode(asn1PE_CSI_ResourceConfig, element), refused) << unsigned{presence};
    }
}

} // namespace
