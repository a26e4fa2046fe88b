#include "cellGroupCfg/pucch.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <numeric>
#include <string>
#include <vector>

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

const std::string noNode = "pNode Or pItem is NULL\r\n";

class pucch : public test::ComposerTest
{
protected:
    PUCCH_Config config(RrcPucchCfg_t record)
    {
        PUCCH_Config element{};
        EXPECT_EQ(rrcComposePucch_Configsetup(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    void expectConfig(const RrcPucchCfg_t& record, const std::string& json)
    {
        SCOPED_TRACE(json);
        expectDecoded("PUCCH-Config", asn1PE_PUCCH_Config, config(record), json);
    }

    PUCCH_Resource resource(RrcPucchResource_t record)
    {
        PUCCH_Resource element{};
        EXPECT_EQ(rrcComposePucchResource(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    SchedulingRequestResourceConfig srResource(RrcSchedReqResourceCfg_t record)
    {
        SchedulingRequestResourceConfig element{};
        EXPECT_EQ(rrcComposeSchedReqResourceCfg(&element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    PUCCH_SpatialRelationInfo spatialRelation(RrcPucchSpatialRelationInfo_t record)
    {
        PUCCH_SpatialRelationInfo element{};
        EXPECT_EQ(rrcComposeSpatialRelationInfo(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    PUCCH_PowerControl powerControl(RrcPucchPowerControl_t record)
    {
        PUCCH_PowerControl element{};
        EXPECT_EQ(rrcComposePucch_PowerControl(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }
};

RrcPucchResource_t resourceRecord(UINT8 presence)
{
    RrcPucchResource_t record{};
    record.pucchResourceId = 127;
    record.startingPRB = 274;
    record.presence = presence;
    record.secondHopPRB = 273;
    return record;
}

RrcPucchResource_t format0Record(UINT8 id)
{
    RrcPucchResource_t record = resourceRecord(RRC_PUCCH_RESOURCE_FORMAT0_PRESENCE);
    record.pucchResourceId = id;
    record.format.format0 = {11, 2, 13};
    return record;
}

std::string format0Json(unsigned id)
{
    return R"({"pucch-ResourceId":)" + std::to_string(id) +
           R"(,"startingPRB":274,"format":{"format0":)"
           R"({"initialCyclicShift":11,"nrofSymbols":2,"startingSymbolIndex":13}}})";
}

std::string resourceSetJson(unsigned id)
{
    return R"({"pucch-ResourceSetId":)" + std::to_string(id) + R"(,"resourceList":[)" + std::to_string(id) + "]}";
}

std::string srResourceJson(unsigned id)
{
    return R"({"schedulingRequestResourceId":)" + std::to_string(id) + R"(,"schedulingRequestID":7})";
}

std::string spatialRelationJson(unsigned id)
{
    return R"({"pucch-SpatialRelationInfoId":)" + std::to_string(id) +
           R"(,"referenceSignal":{"ssb-Index":63},"pucch-PathlossReferenceRS-Id":3,"p0-PUCCH-Id":8,)"
           R"("closedLoopIndex":"i1"})";
}

std::string pathlossJson(unsigned id)
{
    return R"({"pucch-PathlossReferenceRS-Id":)" + std::to_string(id) + R"(,"referenceSignal":{"ssb-Index":63}})";
}

std::string p0Json(unsigned id)
{
    return R"({"p0-PUCCH-Id":)" + std::to_string(id) + R"(,"p0-PUCCH-Value":-16})";
}

// Every array holds entries that the encoder takes; nothing is asked for.
RrcPucchCfg_t filledRecord()
{
    RrcPucchCfg_t record{};
    for (UINT8 i = 0; i < 4; ++i)
    {
        record.resourceSet[i].pucchResourceSetId = i;
        record.resourceSet[i].numResourceList = 1;
        record.resourceSet[i].pucchResourceId[0] = i;
        record.resourceSetId[i] = i;
        record.pucchPowerControl.pathLossRefRs[i] = {i, RRC_PUCCH_PATH_LOSS_REF_RS_SSB_IDX_PRESENCE, {63}};
    }
    for (UINT8 i = 0; i < 128; ++i)
    {
        record.resource[i] = format0Record(i);
        record.pucchResouceId[i] = i;
    }
    for (UINT8 i = 0; i < 8; ++i)
    {
        const auto id = static_cast<UINT8>(i + 1);
        record.schedReqResource[i].schedReqResourceId = id;
        record.schedReqResource[i].schedReqId = 7;
        record.schedReqResourceId[i] = id;
        record.dlData2UlACK[i] = i;
        record.spatialRelationInfo[i].pucchSpatialRelationInfoId = id;
        record.spatialRelationInfo[i].presence = RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_SSBIDX_PRESENCE;
        record.spatialRelationInfo[i].referSignal.ssbIdx = 63;
        record.spatialRelationInfo[i].pucchPathLossRefRsId = 3;
        record.spatialRelationInfo[i].p0PucchId = 8;
        record.spatialRelationInfo[i].closedLoodIdx = 1;
        record.spatialRelationInfoId[i] = id;
        record.pucchPowerControl.p0Set[i] = {id, 0xF0};
    }
    record.multiCsiPucchResourceId[0] = 0;
    record.multiCsiPucchResourceId[1] = 1;
    record.pucchPowerControl.bitMask = RRC_PUCCH_POWER_CONTROL_F0_PRESENCE;
    record.pucchPowerControl.deltaFPucchF0 = 15;
    return record;
}

// The lists of PUCCH-Config in its order.
struct ListCase
{
    const char* name;
    UINT8 RrcPucchCfg_t::*count;
    unsigned bound;
    std::function<std::string(unsigned)> json; // of so many entries
    const char* composer;                      // null: allocates nothing
};

const std::vector<ListCase>& lists()
{
    static const std::vector<ListCase> all{
        {"resourceSetToAddModList", &RrcPucchCfg_t::numResourceSetAddMod, 4,
         [](unsigned n) { return array(n, resourceSetJson); }, "rrcComposeresourceSetToAdd"},
        {"resourceSetToReleaseList", &RrcPucchCfg_t::numResourceSetRel, 4,
         [](unsigned n) { return array(n, [](unsigned) { return "0"; }); }, nullptr},
        {"resourceToAddModList", &RrcPucchCfg_t::numResourceAddMod, 128,
         [](unsigned n) { return array(n, format0Json); }, "rrcComposeresourceAdd"},
        {"resourceToReleaseList", &RrcPucchCfg_t::numResourceRel, 128, [](unsigned n) { return numbers(n, 0); },
         nullptr},
        {"schedulingRequestResourceToAddModList", &RrcPucchCfg_t::numSchedReqResourceCfgAddMod, 8,
         [](unsigned n) { return array(n, [](unsigned i) { return srResourceJson(i + 1); }); },
         "rrcComposeSchedulingRequestResourceToAdd"},
        {"schedulingRequestResourceToReleaseList", &RrcPucchCfg_t::numSchedReqResourceCfgRel, 8,
         [](unsigned n) { return numbers(n, 1); }, nullptr},
        {"multi-CSI-PUCCH-ResourceList", &RrcPucchCfg_t::numMultiCsiPucchResourceId, 2,
         [](unsigned n) { return numbers(n, 0); }, nullptr},
        {"dl-DataToUL-ACK", &RrcPucchCfg_t::numDlData2UlACK, 8, [](unsigned n) { return numbers(n, 0); }, nullptr},
        {"spatialRelationInfoToAddModList", &RrcPucchCfg_t::numSpatialRelationInfoAddMod, 8,
         [](unsigned n) { return array(n, [](unsigned i) { return spatialRelationJson(i + 1); }); },
         "rrcComposeSpatialRelationInfoToAdd"},
        {"spatialRelationInfoToReleaseList", &RrcPucchCfg_t::numSpatialRelationInfoRel, 8,
         [](unsigned n) { return numbers(n, 1); }, nullptr},
    };
    return all;
}

std::string listJson(const ListCase& list, unsigned n)
{
    return std::string("\"") + list.name + "\":" + list.json(n);
}

} // namespace

TEST_F(pucch, WrapperChoosesSetup)
{
    RrcPucchCfg_t record = filledRecord();
    record.numResourceRel = 1;
    BWP_UplinkDedicated_pucch_Config element{};
    EXPECT_EQ(rrcComposeBWPucch_Config(&context, &element, &record), VOS_OK);
    ASSERT_EQ(element.t, static_cast<OSUINT32>(T_BWP_UplinkDedicated_pucch_Config_setup));
    expectDecoded("PUCCH-Config", asn1PE_PUCCH_Config, *element.u.setup, R"({"resourceToReleaseList":[0]})");
    EXPECT_EQ(printed(), "");
}

TEST_F(pucch, MembersNoneEachAloneAndAllInOrder)
{
    struct Member
    {
        std::function<void(RrcPucchCfg_t&)> ask;
        std::string json;
    };
    std::vector<Member> members;
    for (const ListCase& list : lists())
    {
        members.push_back({[count = list.count](RrcPucchCfg_t& record) { record.*count = 1; }, listJson(list, 1)});
    }
    std::vector<Member> formats;
    for (unsigned i = 0; i < 4; ++i)
    {
        formats.push_back({[i](RrcPucchCfg_t& record)
                           { record.bitMask = static_cast<UINT8>(record.bitMask | 1U << i); },
                           "\"format" + std::to_string(i + 1) + "\":{\"setup\":{}}"});
    }
    members.insert(members.begin() + 4, formats.begin(), formats.end());
    members.push_back({[](RrcPucchCfg_t& record)
                       { record.bitMask = static_cast<UINT8>(record.bitMask | RRC_PUCCH_CFG_POWER_CONTROL_PRESENCE); },
                       R"("pucch-PowerControl":{"deltaF-PUCCH-f0":15})"});

    expectConfig(filledRecord(), "{}");
    RrcPucchCfg_t unknownBits = filledRecord();
    unknownBits.bitMask = 0xE0;
    expectConfig(unknownBits, "{}");
    RrcPucchCfg_t all = filledRecord();
    std::string allJson;
    for (const Member& member : members)
    {
        RrcPucchCfg_t record = filledRecord();
        member.ask(record);
        expectConfig(record, object({member.json}));
        member.ask(all);
        allJson += (allJson.empty() ? "" : ",") + member.json;
    }
    expectConfig(all, "{" + allJson + "}");
}

TEST_F(pucch, ListsFull)
{
    for (const ListCase& list : lists())
    {
        RrcPucchCfg_t record = filledRecord();
        record.*list.count = static_cast<UINT8>(list.bound);
        expectConfig(record, object({listJson(list, list.bound)}));
    }
}

TEST_F(pucch, ListsPastTheirBoundAreLeftToTheEncoder)
{
    for (const ListCase& list : lists())
    {
        for (const unsigned count : {list.bound + 1, 255U})
        {
            RrcPucchCfg_t record = filledRecord();
            record.*list.count = static_cast<UINT8>(count);
            EXPECT_EQ(encode(asn1PE_PUCCH_Config, config(record)), std::string("PUCCH-Config.") + list.name + ": " +
                                                                       std::to_string(count) + " elements, not 1.." +
                                                                       std::to_string(list.bound));
        }
    }
}

TEST_F(pucch, ListsWithoutHeapForANode)
{
    for (const ListCase& list : lists())
    {
        for (unsigned successes = 0; list.composer != nullptr && successes < 2; ++successes)
        {
            RrcPucchCfg_t record = filledRecord();
            record.*list.count = 2;
            record.resource[0].presence = 0;
            record.bitMask = RRC_PUCCH_CFG_POWER_CONTROL_PRESENCE;
            PUCCH_Config element{};
            {
                const HeapFault fault(successes);
                EXPECT_EQ(rrcComposePucch_Configsetup(&context, &element, &record), VOS_ERROR) << list.name;
            }
            EXPECT_EQ(printed(), noNode + list.composer + " Error\r\n");
            EXPECT_EQ(element.m.pucch_PowerControlPresent, 0U) << "later members are left out";
            EXPECT_EQ(element.resourceSetToAddModList.count + element.resourceToAddModList.count +
                          element.schedulingRequestResourceToAddModList.count +
                          element.spatialRelationInfoToAddModList.count,
                      successes);
        }
    }
}

TEST_F(pucch, WrapperSendsWhatTheHeapAllowed)
{
    RrcPucchCfg_t record = filledRecord();
    record.numResourceSetAddMod = 2;
    record.numResourceRel = 1;
    BWP_UplinkDedicated_pucch_Config element{};
    {
        const HeapFault fault(2);
        EXPECT_EQ(rrcComposeBWPucch_Config(&context, &element, &record), VOS_OK);
    }
    EXPECT_EQ(printed(), noNode + "rrcComposeresourceSetToAdd Error\r\n");
    ASSERT_EQ(element.t, static_cast<OSUINT32>(T_BWP_UplinkDedicated_pucch_Config_setup));
    expectDecoded("PUCCH-Config", asn1PE_PUCCH_Config, *element.u.setup,
                  object({"\"resourceSetToAddModList\":" + array(1, resourceSetJson)}));

    element = {};
    const HeapFault fault(0);
    EXPECT_EQ(rrcComposeBWPucch_Config(&context, &element, &record), VOS_OK);
    EXPECT_EQ(element.t, 0U);
    EXPECT_EQ(printed(), "");
}

TEST_F(pucch, HeapExhaustedAnywhere)
{
    RrcPucchCfg_t record = filledRecord();
    for (const ListCase& list : lists())
    {
        record.*list.count = 2;
    }
    record.bitMask = 0x1F;
    record.resource[1].presence = 0x1F;
    record.spatialRelationInfo[0].presence = 7;
    record.pucchPowerControl.bitMask = 0xFF;
    record.pucchPowerControl.numP0Set = 2;
    record.pucchPowerControl.numPathLossRefRs = 2;
    for (unsigned successes = 0;; ++successes)
    {
        BWP_UplinkDedicated element{};
        element.m.pucch_ConfigPresent = 1;
        bool struck = false;
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeBWPucch_Config(&context, &element.pucch_Config, &record), VOS_OK);
            struck = HeapFault::struck();
        }
        std::string lines = printed();
        (void)encode(asn1PE_BWP_UplinkDedicated, element);
        if (!struck)
        {
            EXPECT_EQ(lines, "");
            EXPECT_EQ(successes, 1U + 2 + 8 + 4 + 2 + 3 + 2 + 2);
            break;
        }
    }
}

// Resource sets

TEST_F(pucch, ResourceSetOptionsAndCounts)
{
    for (const unsigned mask : {0U, 1U, 0xFEU, 0xFFU})
    {
        RrcPucchResourceSet_t record{3, 32, {}, static_cast<UINT8>(mask), 256};
        std::iota(std::begin(record.pucchResourceId), std::end(record.pucchResourceId), UINT8{96});
        PUCCH_ResourceSet element{};
        EXPECT_EQ(rrcComposePucchResourceSet(&element, &record), VOS_OK);
        expectDecoded("PUCCH-ResourceSet", asn1PE_PUCCH_ResourceSet, element,
                      object({R"("pucch-ResourceSetId":3)", "\"resourceList\":" + numbers(32, 96),
                              mask & 1 ? R"("maxPayloadMinus1":256)" : ""}));
    }
    for (const unsigned count : {0U, 33U, 255U})
    {
        RrcPucchResourceSet_t record{3, static_cast<UINT8>(count), {}, 0, 0};
        PUCCH_ResourceSet element{};
        EXPECT_EQ(rrcComposePucchResourceSet(&element, &record), VOS_OK);
        EXPECT_EQ(encode(asn1PE_PUCCH_ResourceSet, element),
                  "PUCCH-ResourceSet.resourceList: " + std::to_string(count) + " elements, not 1..32");
    }
}

TEST_F(pucch, ReleasedSetsOfWhichNoneIsCopied)
{
    RrcPucchCfg_t record{};
    record.numResourceSetRel = 2;
    record.resourceSetId[0] = 3;
    record.resourceSetId[1] = 2;
    const PUCCH_Config element = config(record);
    EXPECT_EQ(element.resourceSetToReleaseList.n, 2);
    expectDecoded("PUCCH-Config", asn1PE_PUCCH_Config, element, R"({"resourceSetToReleaseList":[0,0]})");
}

TEST_F(pucch, ReleasedSetsAreCopiedByTheCountOfThoseAdded)
{
    const struct
    {
        UINT8 added;
        UINT8 released;
        std::vector<UINT8> ids;
    } cases[] = {
        {1, 3, {3, 0, 0, 0}},   {3, 1, {3, 2, 1, 0}},   {4, 4, {3, 2, 1, 1}},
        {255, 2, {3, 2, 1, 1}}, {0, 255, {0, 0, 0, 0}},
    };
    for (const auto& [added, released, ids] : cases)
    {
        RrcPucchCfg_t record{};
        record.numResourceSetAddMod = added;
        record.numResourceSetRel = released;
        record.resourceSetId[0] = 3;
        record.resourceSetId[1] = 2;
        record.resourceSetId[2] = 1;
        record.resourceSetId[3] = 1;
        PUCCH_Config_resourceSetToReleaseList list{};
        EXPECT_EQ(rrcComposeresourceSetToRel(&list, &record), VOS_OK);
        EXPECT_EQ(list.n, released);
        EXPECT_THAT(list.elem, testing::ElementsAreArray(ids));
    }
}

// Resources

TEST_F(pucch, ResourceOptions)
{
    for (const unsigned mask : masks(2))
    {
        RrcPucchResource_t record = format0Record(127);
        record.bitMask = static_cast<UINT8>(mask);
        expectDecoded(
            "PUCCH-Resource", asn1PE_PUCCH_Resource, resource(record),
            object({R"("pucch-ResourceId":127,"startingPRB":274)",
                    mask & 1 ? R"("intraSlotFrequencyHopping":"enabled")" : "", mask & 2 ? R"("secondHopPRB":273)" : "",
                    R"("format":{"format0":{"initialCyclicShift":11,"nrofSymbols":2,"startingSymbolIndex":13}})"}));
    }
}

TEST_F(pucch, FormatsOfAResource)
{
    RrcPucchResource_t records[5];
    for (unsigned i = 0; i < 5; ++i)
    {
        records[i] = resourceRecord(static_cast<UINT8>(1U << i));
    }
    records[0].format.format0 = {10, 1, 12};
    records[1].format.format1 = {9, 14, 8, 6};
    records[2].format.format2 = {16, 2, 11};
    records[3].format.format3 = {15, 13, 10};
    records[4].format.format4 = {12, 1, 3, 7};
    const char* const formats[] = {
        R"({"format0":{"initialCyclicShift":10,"nrofSymbols":1,"startingSymbolIndex":12}})",
        R"({"format1":{"initialCyclicShift":9,"nrofSymbols":14,"startingSymbolIndex":8,"timeDomainOCC":6}})",
        R"({"format2":{"nrofPRBs":16,"nrofSymbols":2,"startingSymbolIndex":11}})",
        R"({"format3":{"nrofPRBs":15,"nrofSymbols":13,"startingSymbolIndex":10}})",
        R"({"format4":{"nrofSymbols":12,"occ-Length":"n4","occ-Index":"n3","startingSymbolIndex":7}})",
    };
    for (unsigned i = 0; i < 5; ++i)
    {
        // Alone, with the bits below it, and with bits that mean nothing.
        for (const unsigned presence : {1U << i, (2U << i) - 1, 1U << i | 0xE0U})
        {
            records[i].presence = static_cast<UINT8>(presence);
            expectDecoded("PUCCH-Resource", asn1PE_PUCCH_Resource, resource(records[i]),
                          std::string(R"({"pucch-ResourceId":127,"startingPRB":274,"format":)") + formats[i] + "}");
        }
    }
}

TEST_F(pucch, ResourceWithoutFormatIsLeftToTheEncoder)
{
    const PUCCH_Resource element = resource(resourceRecord(0));
    EXPECT_EQ(element.format.t, 0U);
    EXPECT_EQ(encode(asn1PE_PUCCH_Resource, element), "PUCCH-Resource.format: tag 0 is not in 1..5");
}

TEST_F(pucch, Format4WinsOverFormat0)
{
    RrcPucchResource_t record =
        resourceRecord(RRC_PUCCH_RESOURCE_FORMAT0_PRESENCE | RRC_PUCCH_RESOURCE_FORMAT4_PRESENCE);
    record.format.format4 = {4, 0, 0, 0};
    EXPECT_EQ(resource(record).format.t, static_cast<OSUINT32>(T_PUCCH_Resource_format_format4));
}

TEST_F(pucch, FormatWithoutHeapIsLeftToTheEncoder)
{
    for (unsigned i = 0; i < 5; ++i)
    {
        RrcPucchResource_t record = resourceRecord(static_cast<UINT8>((2U << i) - 1));
        PUCCH_Resource element{};
        {
            const HeapFault fault(i);
            EXPECT_EQ(rrcComposePucchResource(&context, &element, &record), VOS_OK);
        }
        EXPECT_EQ(printed(), "");
        EXPECT_EQ(encode(asn1PE_PUCCH_Resource, element), "PUCCH-Resource.format: tag 0 is not in 1..5");
    }
}

// Formats of the configuration

TEST_F(pucch, FormatConfigOptionsOfEachFormat)
{
    for (unsigned format = 0; format < 4; ++format)
    {
        for (const unsigned mask : masks(6))
        {
            RrcPucchCfg_t record{};
            record.bitMask = static_cast<UINT8>(1U << format);
            RrcPucchFormatCfg_t* const formats[] = {&record.format1, &record.format2, &record.format3, &record.format4};
            *formats[format] = {static_cast<UINT8>(mask), 0, 0, 6, 2, 0, 0};
            const std::string members = object(
                {mask & 0x01 ? R"("interslotFrequencyHopping":"enabled")" : "",
                 mask & 0x02 ? R"("additionalDMRS":"true")" : "", mask & 0x04 ? R"("maxCodeRate":"zeroDot80")" : "",
                 mask & 0x08 ? R"("nrofSlots":"n8")" : "", mask & 0x20 ? R"("pi2BPSK":"enabled")" : "",
                 mask & 0x10 ? R"("simultaneousHARQ-ACK-CSI":"true")" : ""});
            expectConfig(record, "{\"format" + std::to_string(format + 1) + "\":{\"setup\":" + members + "}}");
        }
    }
}

TEST_F(pucch, FormatConfigBoolsAreEnumerationsUnchanged)
{
    RrcPucchFormatCfg_t record{0x3F, 0x12345678, -1, 7, 3, 256, 1};
    PUCCH_FormatConfig element{};
    EXPECT_EQ(rrcComposePUCCH_FormatConfigsetup(&element, &record), VOS_OK);
    EXPECT_EQ(element.interslotFrequencyHopping, 0x12345678U);
    EXPECT_EQ(element.additionalDMRS, 0xFFFFFFFFU);
    EXPECT_EQ(element.maxCodeRate, 7U);
    EXPECT_EQ(element.nrofSlots, 3U);
    EXPECT_EQ(element.pi2BPSK, 256U);
    EXPECT_EQ(element.simultaneousHARQ_ACK_CSI, 1U);

    record = {RRC_PUCCH_FORMAT_CFG_PI2BPSK_PRESENCE, 0, 0, 0, 0, 1, 0};
    element = {};
    EXPECT_EQ(rrcComposePUCCH_FormatConfigsetup(&element, &record), VOS_OK);
    EXPECT_EQ(encode(asn1PE_PUCCH_FormatConfig, element), "PUCCH-FormatConfig.pi2BPSK: 1 is not in 0..0");
}

TEST_F(pucch, FormatNullGuards)
{
    RrcPucchFormatCfg_t record{};
    PUCCH_Config element{};
    EXPECT_EQ(rrcComposePUCCH_Config_format1(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePUCCH_Config_format1", "pformat1"));
    EXPECT_EQ(rrcComposePUCCH_Config_format1(&context, &element.format1, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePUCCH_Config_format1", "pRrcformat1"));
    EXPECT_EQ(rrcComposePUCCH_Config_format2(&context, nullptr, &record), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePUCCH_Config_format2", "pformat2"));
    EXPECT_EQ(rrcComposePUCCH_Config_format2(&context, &element.format2, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePUCCH_Config_format2", "pRrcformat2"));
    EXPECT_EQ(rrcComposePUCCH_Config_format3(&context, nullptr, &record), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePUCCH_Config_format3", "pformat3"));
    EXPECT_EQ(rrcComposePUCCH_Config_format3(&context, &element.format3, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePUCCH_Config_format3", "pRrcformat3"));
    EXPECT_EQ(rrcComposePUCCH_Config_format4(&context, nullptr, &record), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePUCCH_Config_format4", "pformat4"));
    EXPECT_EQ(rrcComposePUCCH_Config_format4(&context, &element.format4, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposePUCCH_Config_format4", "pRrcformat4"));
}

TEST_F(pucch, FormatConfigWithoutHeapIsLeftToTheEncoder)
{
    for (unsigned format = 0; format < 4; ++format)
    {
        RrcPucchCfg_t record{};
        record.bitMask = static_cast<UINT8>(1U << format);
        PUCCH_Config element{};
        {
            const HeapFault fault(0);
            EXPECT_EQ(rrcComposePucch_Configsetup(&context, &element, &record), VOS_OK);
        }
        EXPECT_EQ(printed(), "");
        EXPECT_EQ(encode(asn1PE_PUCCH_Config, element),
                  "PUCCH-Config.format" + std::to_string(format + 1) + ": tag 0 is not in 1..2");
    }
}

// Scheduling request resources

TEST_F(pucch, SchedulingRequestResourceOptions)
{
    for (const unsigned mask : masks(2))
    {
        RrcSchedReqResourceCfg_t record{
            8, 7, static_cast<UINT8>(mask), 127, RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL640, {1, 639}};
        expectDecoded(
            "SchedulingRequestResourceConfig", asn1PE_SchedulingRequestResourceConfig, srResource(record),
            object({R"("schedulingRequestResourceId":8,"schedulingRequestID":7)",
                    mask & 1 ? R"("periodicityAndOffset":{"sl640":639})" : "", mask & 2 ? R"("resource":127)" : ""}));
    }
}

TEST_F(pucch, SchedulingRequestPeriodicities)
{
    const unsigned slots[] = {2, 4, 5, 8, 10, 16, 20, 40, 80, 160, 320, 640};
    for (unsigned bit = 0; bit < 15; ++bit)
    {
        std::string periodicity =
            std::vector<std::string>{R"({"sym2":null})", R"({"sym6or7":null})", R"({"sl1":null})"}[std::min(bit, 2U)];
        unsigned offset = 65535;
        if (bit >= 3)
        {
            offset = slots[bit - 3] - 1;
            periodicity = "{\"sl" + std::to_string(slots[bit - 3]) + "\":" + std::to_string(offset) + "}";
        }
        // Alone, with the bits below it, and with bits that mean nothing.
        for (const UINT32 presence : {1U << bit, (2U << bit) - 1, 1U << bit | 0xFFFF8000U})
        {
            RrcSchedReqResourceCfg_t record{1, 0,        RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_PRESENCE,
                                            0, presence, {0, static_cast<UINT16>(offset)}};
            expectDecoded("SchedulingRequestResourceConfig", asn1PE_SchedulingRequestResourceConfig, srResource(record),
                          R"({"schedulingRequestResourceId":1,"schedulingRequestID":0,"periodicityAndOffset":)" +
                              periodicity + "}");
        }
    }
}

TEST_F(pucch, Sl320WinsOverSl2AndTakesTheOffsetWhole)
{
    RrcSchedReqResourceCfg_t record{};
    record.presence = RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL2 | RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL320;
    record.periodAndOffset.offset = 300;
    SchedulingRequestResourceConfig_periodicityAndOffset element{};
    EXPECT_EQ(rrcComposeSchedulingperiodicityAndOffset(&element, &record), VOS_OK);
    EXPECT_EQ(element.t, static_cast<OSUINT32>(T_SchedulingRequestResourceConfig_periodicityAndOffset_sl320));
    EXPECT_EQ(element.u.sl320, 300);
}

TEST_F(pucch, Sl2TakesTheLowOctetOfTheOffset)
{
    RrcSchedReqResourceCfg_t record{
        1, 0, RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_PRESENCE, 0, RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL2, {0, 300}};
    const SchedulingRequestResourceConfig element = srResource(record);
    EXPECT_EQ(element.periodicityAndOffset.u.sl2, 44);
    EXPECT_EQ(encode(asn1PE_SchedulingRequestResourceConfig, element),
              "SchedulingRequestResourceConfig.periodicityAndOffset.sl2: 44 is not in 0..1");
}

TEST_F(pucch, SchedulingRequestWithoutPeriodicityIsLeftToTheEncoder)
{
    RrcSchedReqResourceCfg_t record{1, 0, RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_PRESENCE, 0, 0, {15, 1}};
    EXPECT_EQ(encode(asn1PE_SchedulingRequestResourceConfig, srResource(record)),
              "SchedulingRequestResourceConfig.periodicityAndOffset: tag 0 is not in 1..15");
}

// Spatial relations

TEST_F(pucch, SpatialRelationServingCell)
{
    for (const unsigned mask : {0U, 1U, 0xFEU})
    {
        RrcPucchSpatialRelationInfo_t record{8, 1, {63}, 3, 7, 0, static_cast<UINT8>(mask), 31};
        expectDecoded("PUCCH-SpatialRelationInfo", asn1PE_PUCCH_SpatialRelationInfo, spatialRelation(record),
                      object({R"("pucch-SpatialRelationInfoId":8)", mask & 1 ? R"("servingCellId":31)" : "",
                              R"("referenceSignal":{"ssb-Index":63},"pucch-PathlossReferenceRS-Id":3,"p0-PUCCH-Id":7)",
                              R"("closedLoopIndex":"i0")"}));
    }
}

TEST_F(pucch, SpatialRelationReferenceSignals)
{
    const std::string signals[] = {R"({"ssb-Index":62})", R"({"csi-RS-Index":62})",
                                   R"({"srs":{"resource":62,"uplinkBWP":4}})"};
    for (unsigned presence = 1; presence < 8; ++presence)
    {
        RrcPucchSpatialRelationInfo_t record{1, static_cast<UINT8>(presence), {}, 0, 1, 1, 0, 0};
        record.referSignal.srs = {62, 4};
        expectDecoded("PUCCH-SpatialRelationInfo", asn1PE_PUCCH_SpatialRelationInfo, spatialRelation(record),
                      R"({"pucch-SpatialRelationInfoId":1,"referenceSignal":)" +
                          signals[presence >= 4   ? 2
                                  : presence >= 2 ? 1
                                                  : 0] +
                          R"(,"pucch-PathlossReferenceRS-Id":0,"p0-PUCCH-Id":1,"closedLoopIndex":"i1"})");
    }
}

TEST_F(pucch, SpatialRelationWithoutSignalIsLeftToTheEncoder)
{
    const std::string refused = "PUCCH-SpatialRelationInfo.referenceSignal: tag 0 is not in 1..3";
    RrcPucchSpatialRelationInfo_t record{1, 0xF8, {1}, 0, 1, 0, 0, 0};
    EXPECT_EQ(encode(asn1PE_PUCCH_SpatialRelationInfo, spatialRelation(record)), refused);

    record.presence = 7;
    PUCCH_SpatialRelationInfo element{};
    {
        const HeapFault fault(0);
        EXPECT_EQ(rrcComposeSpatialRelationInfo(&context, &element, &record), VOS_OK);
    }
    EXPECT_EQ(printed(), "");
    EXPECT_EQ(element.p0_PUCCH_Id, 1) << "the members behind are filled";
    EXPECT_EQ(encode(asn1PE_PUCCH_SpatialRelationInfo, element), refused);
}

// Power control

TEST_F(pucch, PowerControlOptions)
{
    for (const unsigned mask : masks(8))
    {
        RrcPucchPowerControl_t record = filledRecord().pucchPowerControl;
        record.bitMask = static_cast<UINT8>(mask);
        record.numP0Set = 1;
        record.numPathLossRefRs = 1;
        record.deltaFPucchF0 = 15;
        record.deltaFPucchF1 = 0xFF;
        record.deltaFPucchF2 = 0;
        record.deltaFPucchF3 = 0xF0;
        record.deltaFPucchF4 = 1;
        expectDecoded(
            "PUCCH-PowerControl", asn1PE_PUCCH_PowerControl, powerControl(record),
            object({mask & 0x01 ? R"("deltaF-PUCCH-f0":15)" : "", mask & 0x02 ? R"("deltaF-PUCCH-f1":-1)" : "",
                    mask & 0x04 ? R"("deltaF-PUCCH-f2":0)" : "", mask & 0x08 ? R"("deltaF-PUCCH-f3":-16)" : "",
                    mask & 0x10 ? R"("deltaF-PUCCH-f4":1)" : "", mask & 0x20 ? "\"p0-Set\":[" + p0Json(1) + "]" : "",
                    mask & 0x40 ? "\"pathlossReferenceRSs\":[" + pathlossJson(0) + "]" : "",
                    mask & 0x80 ? R"("twoPUCCH-PC-AdjustmentStates":"twoStates")" : ""}));
    }
}

TEST_F(pucch, PowerControlOffsetsOutOfRange)
{
    const struct
    {
        UINT8 octet;
        const char* value;
    } cases[] = {{16, "16"}, {0x7F, "127"}, {0x80, "-128"}, {0xEF, "-17"}};
    for (const auto& [octet, value] : cases)
    {
        for (unsigned i = 0; i < 5; ++i)
        {
            RrcPucchPowerControl_t record{};
            record.bitMask = static_cast<UINT8>(1U << i);
            record.deltaFPucchF0 = record.deltaFPucchF1 = record.deltaFPucchF2 = record.deltaFPucchF3 =
                record.deltaFPucchF4 = octet;
            EXPECT_EQ(encode(asn1PE_PUCCH_PowerControl, powerControl(record)),
                      "PUCCH-PowerControl.deltaF-PUCCH-f" + std::to_string(i) + ": " + value + " is not in -16..15");
        }
        RrcP0Pucch_t record{1, octet};
        P0_PUCCH element{};
        EXPECT_EQ(rrcComposeP0_Set(&element, &record), VOS_OK);
        EXPECT_EQ(encode(asn1PE_P0_PUCCH, element),
                  std::string("P0-PUCCH.p0-PUCCH-Value: ") + value + " is not in -16..15");
    }
}

TEST_F(pucch, PowerControlListCounts)
{
    for (const unsigned count : {0U, 1U, 8U, 9U, 255U})
    {
        RrcPucchPowerControl_t record = filledRecord().pucchPowerControl;
        record.bitMask = RRC_PUCCH_POWER_CONTROL_P0_SET_PRESENCE;
        record.numP0Set = static_cast<UINT8>(count);
        const PUCCH_PowerControl element = powerControl(record);
        if (count == 1 || count == 8)
        {
            expectDecoded("PUCCH-PowerControl", asn1PE_PUCCH_PowerControl, element,
                          "{\"p0-Set\":" + array(count, [](unsigned i) { return p0Json(i + 1); }) + "}");
            continue;
        }
        EXPECT_EQ(encode(asn1PE_PUCCH_PowerControl, element),
                  "PUCCH-PowerControl.p0-Set: " + std::to_string(count) + " elements, not 1..8");
    }
    for (const unsigned count : {0U, 1U, 4U, 5U, 255U})
    {
        RrcPucchPowerControl_t record = filledRecord().pucchPowerControl;
        record.bitMask = RRC_PUCCH_POWER_CONTROL_PATH_REFERENCE_RSS;
        record.numPathLossRefRs = static_cast<UINT8>(count);
        const PUCCH_PowerControl element = powerControl(record);
        if (count == 1 || count == 4)
        {
            expectDecoded("PUCCH-PowerControl", asn1PE_PUCCH_PowerControl, element,
                          "{\"pathlossReferenceRSs\":" + array(count, pathlossJson) + "}");
            continue;
        }
        EXPECT_EQ(encode(asn1PE_PUCCH_PowerControl, element),
                  "PUCCH-PowerControl.pathlossReferenceRSs: " + std::to_string(count) + " elements, not 1..4");
    }
}

TEST_F(pucch, PowerControlListsCutShortByTheHeap)
{
    // 3 + 3 nodes; a short list does not keep the next one or the configuration from being built.
    for (unsigned successes = 0; successes < 6; ++successes)
    {
        RrcPucchCfg_t record = filledRecord();
        record.bitMask = RRC_PUCCH_CFG_POWER_CONTROL_PRESENCE;
        record.pucchPowerControl.bitMask = RRC_PUCCH_POWER_CONTROL_P0_SET_PRESENCE |
                                           RRC_PUCCH_POWER_CONTROL_PATH_REFERENCE_RSS |
                                           RRC_PUCCH_POWER_CONTROL_TWO_PUCCH_PC_ADJ_STATES_PRESENCE;
        record.pucchPowerControl.numP0Set = 3;
        record.pucchPowerControl.numPathLossRefRs = 3;
        PUCCH_Config element{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposePucch_Configsetup(&context, &element, &record), VOS_OK);
        }
        EXPECT_EQ(printed(), successes < 3 ? noNode + noNode : noNode);
        EXPECT_EQ(element.pucch_PowerControl.p0_Set.count, std::min(successes, 3U));
        EXPECT_EQ(element.pucch_PowerControl.pathlossReferenceRSs.count, successes < 3 ? 0 : successes - 3);
        EXPECT_EQ(element.pucch_PowerControl.m.twoPUCCH_PC_AdjustmentStatesPresent, 1U);
    }
}

TEST_F(pucch, PathlossReferenceSignals)
{
    for (unsigned presence = 1; presence < 4; ++presence)
    {
        RrcPucchPathLossRefRs_t record{3, static_cast<UINT8>(presence), {60}};
        PUCCH_PathlossReferenceRS element{};
        EXPECT_EQ(rrcComposePUCCH_PathlossReferenceRS(&element, &record), VOS_OK);
        expectDecoded("PUCCH-PathlossReferenceRS", asn1PE_PUCCH_PathlossReferenceRS, element,
                      std::string(R"({"pucch-PathlossReferenceRS-Id":3,"referenceSignal":{")") +
                          (presence == 1 ? "ssb-Index" : "csi-RS-Index") + "\":60}}");
    }
    RrcPucchPathLossRefRs_t record{3, 0xFC, {60}};
    PUCCH_PathlossReferenceRS element{};
    EXPECT_EQ(rrcComposePUCCH_PathlossReferenceRS(&element, &record), VOS_OK);
    EXPECT_EQ(encode(asn1PE_PUCCH_PathlossReferenceRS, element),
              "PUCCH-PathlossReferenceRS.referenceSignal: tag 0 is not in 1..2");
}

TEST_F(pucch, RecordOrder)
{
    using Cfg = RrcPucchCfg_t;
    static_assert(rising({offsetof(Cfg, numResourceSetAddMod),
                          offsetof(Cfg, resourceSet),
                          offsetof(Cfg, numResourceSetRel),
                          offsetof(Cfg, resourceSetId),
                          offsetof(Cfg, numResourceAddMod),
                          offsetof(Cfg, resource),
                          offsetof(Cfg, numResourceRel),
                          offsetof(Cfg, pucchResouceId),
                          offsetof(Cfg, numSchedReqResourceCfgAddMod),
                          offsetof(Cfg, schedReqResource),
                          offsetof(Cfg, numSchedReqResourceCfgRel),
                          offsetof(Cfg, schedReqResourceId),
                          offsetof(Cfg, numMultiCsiPucchResourceId),
                          offsetof(Cfg, multiCsiPucchResourceId),
                          offsetof(Cfg, numDlData2UlACK),
                          offsetof(Cfg, dlData2UlACK),
                          offsetof(Cfg, numSpatialRelationInfoAddMod),
                          offsetof(Cfg, spatialRelationInfo),
                          offsetof(Cfg, numSpatialRelationInfoRel),
                          offsetof(Cfg, spatialRelationInfoId),
                          offsetof(Cfg, bitMask),
                          offsetof(Cfg, format1),
                          offsetof(Cfg, format2),
                          offsetof(Cfg, format3),
                          offsetof(Cfg, format4),
                          offsetof(Cfg, pucchPowerControl)}));
    using Set = RrcPucchResourceSet_t;
    static_assert(rising({offsetof(Set, pucchResourceSetId), offsetof(Set, numResourceList),
                          offsetof(Set, pucchResourceId), offsetof(Set, bitMask), offsetof(Set, maxPayloadMinus1)}));
    using Resource = RrcPucchResource_t;
    static_assert(rising({offsetof(Resource, pucchResourceId), offsetof(Resource, startingPRB),
                          offsetof(Resource, presence), offsetof(Resource, format), offsetof(Resource, bitMask),
                          offsetof(Resource, intraSlotFreqHopping), offsetof(Resource, secondHopPRB)}));
    using Format = RrcPucchFormatCfg_t;
    static_assert(rising({offsetof(Format, bitMask), offsetof(Format, interSlotFreqHopping),
                          offsetof(Format, additionalDMRS), offsetof(Format, maxCodeRate), offsetof(Format, nrofSlots),
                          offsetof(Format, pi2BPSK), offsetof(Format, sumultaneousHarqAckCsi)}));
    using Sr = RrcSchedReqResourceCfg_t;
    static_assert(rising({offsetof(Sr, schedReqResourceId), offsetof(Sr, schedReqId), offsetof(Sr, bitMask),
                          offsetof(Sr, pucchResourceId), offsetof(Sr, presence), offsetof(Sr, periodAndOffset)}));
    using Spatial = RrcPucchSpatialRelationInfo_t;
    static_assert(
        rising({offsetof(Spatial, pucchSpatialRelationInfoId), offsetof(Spatial, presence),
                offsetof(Spatial, referSignal), offsetof(Spatial, pucchPathLossRefRsId), offsetof(Spatial, p0PucchId),
                offsetof(Spatial, closedLoodIdx), offsetof(Spatial, bitMask), offsetof(Spatial, servingCellId)}));
    using Power = RrcPucchPowerControl_t;
    static_assert(
        rising({offsetof(Power, numP0Set), offsetof(Power, p0Set), offsetof(Power, numPathLossRefRs),
                offsetof(Power, pathLossRefRs), offsetof(Power, bitMask), offsetof(Power, deltaFPucchF0),
                offsetof(Power, deltaFPucchF1), offsetof(Power, deltaFPucchF2), offsetof(Power, deltaFPucchF3),
                offsetof(Power, deltaFPucchF4), offsetof(Power, twoPucchPcAdjStates)}));
    using Loss = RrcPucchPathLossRefRs_t;
    static_assert(rising({offsetof(Loss, pucchPathLossRefRsId), offsetof(Loss, presence), offsetof(Loss, refSignal)}));
    static_assert(sizeof Loss::refSignal == 1);
    using Format0 = RrcPucchFormat0_t;
    static_assert(rising(
        {offsetof(Format0, initialCyclicShift), offsetof(Format0, nrofSymbols), offsetof(Format0, startingSymbolIdx)}));
    using Format1 = RrcPucchFormat1_t;
    static_assert(rising({offsetof(Format1, initialCyclicShift), offsetof(Format1, nrofSymbols),
                          offsetof(Format1, startingSymbolIdx), offsetof(Format1, timeDomainOCC)}));
    using Format2 = RrcPucchFormat2_t;
    static_assert(
        rising({offsetof(Format2, nrofPRBs), offsetof(Format2, nrofSymbols), offsetof(Format2, startingSymbolIdx)}));
    using Format3 = RrcPucchFormat3_t;
    static_assert(
        rising({offsetof(Format3, nrofPRBs), offsetof(Format3, nrofSymbols), offsetof(Format3, startingSymbolIdx)}));
    using Format4 = RrcPucchFormat4_t;
    static_assert(rising({offsetof(Format4, nrofSymbols), offsetof(Format4, occLength), offsetof(Format4, occIdx),
                          offsetof(Format4, startingSymbolIdx)}));
}
