#include "cellGroupCfg/srs.h"

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

class srs : public test::ComposerTest
{
protected:
    SRS_Config config(const RrcSrsCfg_t& record)
    {
        RrcSrsCfg_t copy = record;
        SRS_Config element{};
        EXPECT_EQ(rrcComposeSRS_ConfigSetup(&context, &element, &copy), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    SRS_ResourceSet set(RrcSrsResourceSet_t record)
    {
        SRS_ResourceSet element{};
        EXPECT_EQ(rrcComposeSRS_ResourceSet(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    SRS_Resource resource(RrcSrsResource_t record)
    {
        SRS_Resource element{};
        EXPECT_EQ(rrcComposeSRS_Resource(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }
};

// Semi-persistent, without options.
RrcSrsResourceSet_t setRecord(UINT8 id)
{
    RrcSrsResourceSet_t record{};
    record.srsResourceSetId = id;
    record.presence = RRC_SRS_RESOURCE_SET_TYPE_SEMI_PERSISTENT_PERSENCE;
    record.usage = 3;
    return record;
}

std::string setJson(unsigned id)
{
    return "{\"srs-ResourceSetId\":" + std::to_string(id) +
           R"(,"resourceType":{"semi-persistent":{}},"usage":"antennaSwitching"})";
}

// Aperiodic, without options.
RrcSrsResource_t resourceRecord(UINT8 id)
{
    RrcSrsResource_t record{};
    record.srsResourceId = id;
    record.nrofSrsPotrs = 2;
    record.presence = RRC_SRS_RESOURCE_TRANSMISSION_COMB_N2_PRESENCE;
    record.transmissionComb.n2 = {1, 7};
    record.resourceMapping = {5, 2, 1};
    record.freqDomainPostion = 67;
    record.freqDomainShift = 268;
    record.freqHopping = {63, 3, 2};
    record.groupOrSeqHopping = 2;
    record.presence1 = RRC_SRS_RESOURCE_TYPE_APERIODIC_PERSENCE;
    record.seqId = 1023;
    record.ptrsPortIdx = 1;
    return record;
}

const std::string combN2 = R"({"n2":{"combOffset-n2":1,"cyclicShift-n2":7}})";
const std::string aperiodic = R"({"aperiodic":{}})";

std::string resourceJson(unsigned id, const std::string& port = "", const std::string& comb = combN2,
                         const std::string& type = aperiodic, const std::string& spatial = "")
{
    return object({"\"srs-ResourceId\":" + std::to_string(id), R"("nrofSRS-Ports":"ports4")", port,
                   "\"transmissionComb\":" + comb,
                   R"("resourceMapping":{"startPosition":5,"nrofSymbols":"n4","repetitionFactor":"n2"})",
                   R"("freqDomainPosition":67,"freqDomainShift":268,"freqHopping":{"c-SRS":63,"b-SRS":3,"b-hop":2})",
                   R"("groupOrSequenceHopping":"sequenceHopping")", "\"resourceType\":" + type, R"("sequenceId":1023)",
                   spatial});
}

std::unique_ptr<RrcSrsCfg_t> filledRecord()
{
    auto record = std::make_unique<RrcSrsCfg_t>();
    for (UINT8 i = 0; i < 16; ++i)
    {
        record->srsResourceSet[i] = setRecord(i);
        record->srsResourceSetId[i] = i;
    }
    for (UINT8 i = 0; i < 64; ++i)
    {
        record->srsResource[i] = resourceRecord(i);
        record->srsResourceId[i] = i;
    }
    return record;
}

// The lists of SRS-Config in its order.
struct ListCase
{
    const char* name;
    UINT8 RrcSrsCfg_t::*count;
    unsigned bound;
    std::function<std::string(unsigned)> json; // of so many entries
    const char* composer;                      // null: allocates nothing
};

const std::vector<ListCase>& lists()
{
    static const std::vector<ListCase> all{
        {"srs-ResourceSetToReleaseList", &RrcSrsCfg_t::numSrsResourceSetRel, 16,
         [](unsigned n) { return numbers(n, 0); }, nullptr},
        {"srs-ResourceSetToAddModList", &RrcSrsCfg_t::numSrsResourceSetAddMod, 16,
         [](unsigned n) { return array(n, setJson); }, "rrcComposesrs_ResourceSetToAddModList"},
        {"srs-ResourceToReleaseList", &RrcSrsCfg_t::numSrsResourceRel, 64, [](unsigned n) { return numbers(n, 0); },
         nullptr},
        {"srs-ResourceToAddModList", &RrcSrsCfg_t::numSrsResourceAddMod, 64,
         [](unsigned n) { return array(n, [](unsigned i) { return resourceJson(i); }); },
         "rrcComposesrs_ResourceSetAddModList"},
    };
    return all;
}

std::string listJson(const ListCase& list, unsigned n)
{
    return std::string("\"") + list.name + "\":" + list.json(n);
}

const unsigned slots[] = {1, 2, 4, 5, 8, 10, 16, 20, 32, 40, 64, 80, 160, 320, 640, 1280, 2560};

} // namespace

// SRS-Config

TEST_F(srs, MembersNoneEachAloneAndAllInOrder)
{
    for (const unsigned mask : masks(5))
    {
        const auto record = filledRecord();
        const auto list = [&](unsigned i)
        {
            (*record).*lists()[i].count = static_cast<UINT8>(mask >> i & 1);
            return mask >> i & 1 ? listJson(lists()[i], 1) : "";
        };
        record->bitMask = static_cast<UINT8>(mask >> 4);
        const std::string json =
            object({list(0), list(1), list(2), list(3), record->bitMask & 1 ? R"("tpc-Accumulation":"disabled")" : ""});
        SCOPED_TRACE(json);
        expectDecoded("SRS-Config", asn1PE_SRS_Config, config(*record), json);
    }
}

TEST_F(srs, ListCounts)
{
    for (const ListCase& list : lists())
    {
        const auto record = filledRecord();
        (*record).*list.count = static_cast<UINT8>(list.bound);
        expectDecoded("SRS-Config", asn1PE_SRS_Config, config(*record), object({listJson(list, list.bound)}));
        for (const unsigned count : {list.bound + 1, 255U})
        {
            (*record).*list.count = static_cast<UINT8>(count);
            EXPECT_EQ(encode(asn1PE_SRS_Config, config(*record)), std::string("SRS-Config.") + list.name + ": " +
                                                                      std::to_string(count) + " elements, not 1.." +
                                                                      std::to_string(list.bound));
        }
    }
}

TEST_F(srs, ListsWithoutHeapForANode)
{
    for (const ListCase& list : lists())
    {
        for (unsigned successes = 0; list.composer != nullptr && successes < 3; ++successes)
        {
            const auto record = filledRecord();
            (*record).*list.count = 3;
            record->bitMask = RRC_SRS_CFG_TPC_ACCUMULATION_PRESENCE;
            for (UINT8 i = 0; i < 3; ++i)
            {
                record->srsResourceSet[i].presence = 0;
                record->srsResource[i].presence = 0;
            }
            SRS_Config element{};
            {
                const HeapFault fault(successes);
                EXPECT_EQ(rrcComposeSRS_ConfigSetup(&context, &element, record.get()), VOS_ERROR);
            }
            EXPECT_EQ(printed(), noNode + list.composer + " Error\r\n");
            EXPECT_EQ(element.srs_ResourceSetToAddModList.count + element.srs_ResourceToAddModList.count, successes);
            EXPECT_EQ(element.m.tpc_AccumulationPresent, 0U) << "later members are left out";
        }
    }
}

TEST_F(srs, WrapperSendsWhatTheHeapAllowed)
{
    const auto record = filledRecord();
    record->numSrsResourceSetRel = 1;
    record->numSrsResourceSetAddMod = 2;
    BWP_UplinkDedicated_srs_Config element{};
    {
        const HeapFault fault(3);
        EXPECT_EQ(rrcComposeBWPsrs_Config(&context, &element, record.get()), VOS_OK);
    }
    EXPECT_EQ(printed(), noNode + "rrcComposesrs_ResourceSetToAddModList Error\r\n");
    ASSERT_EQ(element.t, static_cast<OSUINT32>(T_BWP_UplinkDedicated_srs_Config_setup));
    expectDecoded(
        "SRS-Config", asn1PE_SRS_Config, *element.u.setup,
        object({R"("srs-ResourceSetToReleaseList":[0])", "\"srs-ResourceSetToAddModList\":[" + setJson(0) + "]"}));

    const HeapFault fault(0);
    EXPECT_EQ(rrcComposeBWPsrs_Config(&context, &element, record.get()), VOS_OK);
    EXPECT_EQ(element.t, 0U);
    EXPECT_EQ(printed(), "");
}

TEST_F(srs, HeapExhaustedAnywhere)
{
    const auto record = filledRecord();
    for (const ListCase& list : lists())
    {
        (*record).*list.count = 2;
    }
    record->srsResourceSet[1].presence = 0x7F;
    record->srsResource[1].presence = 3;
    record->srsResource[1].presence1 = 7;
    record->srsResource[1].resourceType.periodic = {14, 300};
    record->srsResource[1].bitMask = RRC_SRS_RESOURCE_PTRS_SPATIAL_RELATION_INFO_PRESENCE;
    record->srsResource[1].spatialRelationInfo.presence = 7;
    for (unsigned successes = 0;; ++successes)
    {
        BWP_UplinkDedicated element{};
        element.m.srs_ConfigPresent = 1;
        bool struck = false;
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeBWPsrs_Config(&context, &element.srs_Config, record.get()), VOS_OK);
            struck = HeapFault::struck();
        }
        const std::string lines = printed();
        (void)encode(asn1PE_BWP_UplinkDedicated, element);
        if (!struck)
        {
            EXPECT_EQ(lines, "");
            EXPECT_EQ(successes, 1U + 2 + 4 + 2 + 1 + 5);
            break;
        }
    }
}

// Resource sets

TEST_F(srs, ResourceSetOptions)
{
    for (const unsigned mask : masks(4))
    {
        RrcSrsResourceSet_t record = setRecord(15);
        record.presence = static_cast<UINT8>(RRC_SRS_RESOURCE_SET_TYPE_PERIODIC_PERSENCE | (mask & 0x0F) << 3);
        record.Alpha = 7;
        record.p0 = -202;
        record.pathLossRefRs = {RRC_SRS_PATH_LOSS_REF_RS_CSI_IDX_PRESENCE, {191}};
        record.srsPowerControlAdjustmentStates = 1;
        expectDecoded("SRS-ResourceSet", asn1PE_SRS_ResourceSet, set(record),
                      object({R"("srs-ResourceSetId":15,"resourceType":{"periodic":{}},"usage":"antennaSwitching")",
                              mask & 1 ? R"("alpha":"alpha1")" : "", mask & 2 ? R"("p0":-202)" : "",
                              mask & 4 ? R"("pathlossReferenceRS":{"csi-RS-Index":191})" : "",
                              mask & 8 ? R"("srs-PowerControlAdjustmentStates":"separateClosedLoop")" : ""}));
    }
}

TEST_F(srs, ResourceIdCounts)
{
    for (const unsigned count : {1U, 16U, 17U, 255U})
    {
        RrcSrsResourceSet_t record = setRecord(0);
        record.numSrsResourceId = static_cast<UINT8>(count);
        std::iota(std::begin(record.srsResourceId), std::end(record.srsResourceId), UINT8{48});
        const SRS_ResourceSet element = set(record);
        if (count <= 16)
        {
            expectDecoded("SRS-ResourceSet", asn1PE_SRS_ResourceSet, element,
                          "{\"srs-ResourceSetId\":0,\"srs-ResourceIdList\":" + numbers(count, 48) +
                              R"(,"resourceType":{"semi-persistent":{}},"usage":"antennaSwitching"})");
            continue;
        }
        EXPECT_EQ(encode(asn1PE_SRS_ResourceSet, element),
                  "SRS-ResourceSet.srs-ResourceIdList: " + std::to_string(count) + " elements, not 1..16");
    }
}

TEST_F(srs, ResourceSetWithoutIdsHasTheirCountSetToZero)
{
    RrcSrsResourceSet_t record = setRecord(0);
    SRS_ResourceSet element{};
    element.srs_ResourceIdList.n = 9;
    element.srs_ResourceIdList.elem[0] = 8;
    EXPECT_EQ(rrcComposeSRS_ResourceSet(&context, &element, &record), VOS_OK);
    EXPECT_EQ(element.m.srs_ResourceIdListPresent, 0U);
    EXPECT_EQ(element.srs_ResourceIdList.n, 0);
    EXPECT_EQ(element.srs_ResourceIdList.elem[0], 8);
}

TEST_F(srs, AperiodicSetOptions)
{
    for (const unsigned mask : masks(2))
    {
        RrcSrsResourceSet_t record = setRecord(0);
        record.presence = RRC_SRS_RESOURCE_SET_TYPE_APERIODIC_PERSENCE;
        record.resourceType.aperiodic = {3, static_cast<UINT8>(mask), 191, 32};
        expectDecoded("SRS-ResourceSet", asn1PE_SRS_ResourceSet, set(record),
                      "{\"srs-ResourceSetId\":0,\"resourceType\":{\"aperiodic\":" +
                          object({R"("aperiodicSRS-ResourceTrigger":3)", mask & 1 ? R"("csi-RS":191)" : "",
                                  mask & 2 ? R"("slotOffset":32)" : ""}) +
                          R"(},"usage":"antennaSwitching"})");
    }
}

TEST_F(srs, SemiPersistentAndPeriodicSetOptions)
{
    for (const unsigned presence : {2U, 3U, 4U, 5U, 6U, 7U})
    {
        for (const unsigned mask : {0U, 1U, 0xFEU})
        {
            RrcSrsResourceSet_t record = setRecord(0);
            record.presence = static_cast<UINT8>(presence);
            record.resourceType.periodic = {static_cast<UINT8>(mask), 191};
            expectDecoded("SRS-ResourceSet", asn1PE_SRS_ResourceSet, set(record),
                          std::string(R"({"srs-ResourceSetId":0,"resourceType":{")") +
                              (presence < 4 ? "semi-persistent" : "periodic") +
                              "\":" + object({mask & 1 ? R"("associatedCSI-RS":191)" : ""}) +
                              R"(},"usage":"antennaSwitching"})");
        }
    }
}

TEST_F(srs, PeriodicSetWinsOverAperiodic)
{
    RrcSrsResourceSet_t record = setRecord(0);
    record.presence = RRC_SRS_RESOURCE_SET_TYPE_APERIODIC_PERSENCE | RRC_SRS_RESOURCE_SET_TYPE_PERIODIC_PERSENCE;
    EXPECT_EQ(set(record).resourceType.t, static_cast<OSUINT32>(T_SRS_ResourceSet_resourceType_periodic));

    // Both elements come from the heap.
    SRS_ResourceSet element{};
    const HeapFault fault(1);
    EXPECT_EQ(rrcComposeSRS_ResourceSet(&context, &element, &record), VOS_OK);
    EXPECT_TRUE(HeapFault::struck());
    EXPECT_EQ(element.resourceType.t, 0U);
}

TEST_F(srs, SetWithoutTypeIsLeftToTheEncoder)
{
    const std::string refused = "SRS-ResourceSet.resourceType: tag 0 is not in 1..3";
    RrcSrsResourceSet_t record = setRecord(0);
    record.presence = 0x80;
    EXPECT_EQ(encode(asn1PE_SRS_ResourceSet, set(record)), refused);
    for (const UINT8 presence : {UINT8{1}, UINT8{2}, UINT8{4}})
    {
        record.presence = presence;
        SRS_ResourceSet element{};
        {
            const HeapFault fault(0);
            EXPECT_EQ(rrcComposeSRS_ResourceSet(&context, &element, &record), VOS_OK);
        }
        EXPECT_EQ(printed(), "");
        EXPECT_EQ(element.usage, 3U) << "the members behind are filled";
        EXPECT_EQ(encode(asn1PE_SRS_ResourceSet, element), refused);
    }
}

TEST_F(srs, NominalPowerIsNarrowedTo16Bits)
{
    RrcSrsResourceSet_t record = setRecord(0);
    record.presence = RRC_SRS_RESOURCE_SET_TYPE_SEMI_PERSISTENT_PERSENCE | RRC_SRS_RESOURCE_SET_P0_PERSENCE;
    for (const int p0 : {24, -202, 65536 - 202})
    {
        record.p0 = p0;
        expectDecoded(
            "SRS-ResourceSet", asn1PE_SRS_ResourceSet, set(record),
            R"({"srs-ResourceSetId":0,"resourceType":{"semi-persistent":{}},"usage":"antennaSwitching","p0":)" +
                std::to_string(p0 > 24 ? p0 - 65536 : p0) + "}");
    }
    record.p0 = -203;
    EXPECT_EQ(encode(asn1PE_SRS_ResourceSet, set(record)), "SRS-ResourceSet.p0: -203 is not in -202..24");
}

TEST_F(srs, PathlossReferences)
{
    for (unsigned presence = 0; presence < 4; ++presence)
    {
        RrcSrsResourceSet_t record = setRecord(0);
        record.presence = RRC_SRS_RESOURCE_SET_TYPE_SEMI_PERSISTENT_PERSENCE | RRC_SRS_PATH_LOSS_REFERENCE_RS_PRESENT;
        record.pathLossRefRs = {static_cast<UINT8>(0xFCU | presence), {62}};
        const SRS_ResourceSet element = set(record);
        if (presence == 0)
        {
            EXPECT_EQ(encode(asn1PE_SRS_ResourceSet, element),
                      "SRS-ResourceSet.pathlossReferenceRS: tag 0 is not in 1..2");
            continue;
        }
        expectDecoded("SRS-ResourceSet", asn1PE_SRS_ResourceSet, element,
                      std::string(R"({"srs-ResourceSetId":0,"resourceType":{"semi-persistent":{}},)") +
                          R"("usage":"antennaSwitching","pathlossReferenceRS":{")" +
                          (presence == 1 ? "ssb-Index" : "csi-RS-Index") + "\":62}}");
    }
}

// Resources

TEST_F(srs, ResourceOptions)
{
    for (const unsigned mask : masks(2))
    {
        RrcSrsResource_t record = resourceRecord(63);
        record.bitMask = static_cast<UINT8>(mask);
        record.spatialRelationInfo = {0, 0, RRC_SRS_SPATIAL_RELATION_INFO_SSB_PRESENCE, {63}};
        expectDecoded("SRS-Resource", asn1PE_SRS_Resource, resource(record),
                      resourceJson(63, mask & 1 ? R"("ptrs-PortIndex":"n1")" : "", combN2, aperiodic,
                                   mask & 2 ? R"("spatialRelationInfo":{"referenceSignal":{"ssb-Index":63}})" : ""));
    }
}

TEST_F(srs, TransmissionCombs)
{
    for (unsigned presence = 1; presence < 4; ++presence)
    {
        RrcSrsResource_t record = resourceRecord(0);
        record.presence = static_cast<UINT8>(0xFC | presence);
        if (presence >= 2)
        {
            record.transmissionComb.n4 = {3, 11};
        }
        expectDecoded(
            "SRS-Resource", asn1PE_SRS_Resource, resource(record),
            resourceJson(0, "", presence == 1 ? combN2 : R"({"n4":{"combOffset-n4":3,"cyclicShift-n4":11}})"));
    }
}

TEST_F(srs, ResourceWithoutCombIsLeftToTheEncoder)
{
    const std::string refused = "SRS-Resource.transmissionComb: tag 0 is not in 1..2";
    RrcSrsResource_t record = resourceRecord(0);
    record.presence = 0;
    EXPECT_EQ(encode(asn1PE_SRS_Resource, resource(record)), refused);
    const struct
    {
        UINT8 presence;
        unsigned successes;
    } cases[] = {{1, 0}, {2, 0}, {3, 1}};
    for (const auto& [presence, successes] : cases)
    {
        record.presence = presence;
        SRS_Resource element{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeSRS_Resource(&context, &element, &record), VOS_OK);
        }
        EXPECT_EQ(printed(), "");
        EXPECT_EQ(encode(asn1PE_SRS_Resource, element), refused);
    }
}

TEST_F(srs, AperiodicResourceHasANullElement)
{
    const SRS_Resource element = resource(resourceRecord(0));
    EXPECT_EQ(element.resourceType.t, static_cast<OSUINT32>(T_SRS_Resource_resourceType_aperiodic));
    EXPECT_EQ(element.resourceType.u.aperiodic, nullptr);
    expectDecoded("SRS-Resource", asn1PE_SRS_Resource, element, resourceJson(0));
}

TEST_F(srs, Periodicities)
{
    for (unsigned tag = 1; tag <= 17; ++tag)
    {
        const unsigned offset = slots[tag - 1] - 1;
        const std::string periodicity =
            "\":{\"sl" + std::to_string(slots[tag - 1]) + "\":" + (tag == 1 ? "null" : std::to_string(offset)) + "}}}";
        for (unsigned presence = 2; presence < 8; ++presence)
        {
            RrcSrsResource_t record = resourceRecord(0);
            record.presence1 = static_cast<UINT8>(0xF8 | presence);
            if (presence < 4)
            {
                record.resourceType.semiPersistent = {static_cast<UINT8>(tag), static_cast<UINT16>(offset)};
            }
            else
            {
                record.resourceType.periodic = {static_cast<UINT8>(tag), static_cast<UINT16>(offset)};
            }
            expectDecoded("SRS-Resource", asn1PE_SRS_Resource, resource(record),
                          resourceJson(0, "", combN2,
                                       (presence < 4 ? R"({"semi-persistent":{"periodicityAndOffset-sp)"
                                                     : R"({"periodic":{"periodicityAndOffset-p)") +
                                           periodicity));
        }
    }
}

TEST_F(srs, Sl1HasNoOffset)
{
    struct srsPeriodic_s record = {1, 5};
    SRS_Resource_resourceType_periodic element{};
    EXPECT_EQ(rrcComposeType_periodic(&element, &record), VOS_OK);
    EXPECT_EQ(element.periodicityAndOffset_p.t, static_cast<OSUINT32>(T_SRS_PeriodicityAndOffset_sl1));
    EXPECT_EQ(element.periodicityAndOffset_p.u.sl2560, 0);
}

TEST_F(srs, Sl320TakesTheOffsetWholeAndSl160ItsLowOctet)
{
    struct srsSemiPersistent_s record = {14, 300};
    SRS_Resource_resourceType_semi_persistent element{};
    EXPECT_EQ(rrcComposeType_semi_persistent(&element, &record), VOS_OK);
    EXPECT_EQ(element.periodicityAndOffset_sp.t, static_cast<OSUINT32>(T_SRS_PeriodicityAndOffset_sl320));
    EXPECT_EQ(element.periodicityAndOffset_sp.u.sl320, 300);
    record.period = 13;
    EXPECT_EQ(rrcComposeType_semi_persistent(&element, &record), VOS_OK);
    EXPECT_EQ(element.periodicityAndOffset_sp.t, static_cast<OSUINT32>(T_SRS_PeriodicityAndOffset_sl160));
    EXPECT_EQ(element.periodicityAndOffset_sp.u.sl160, 44);
}

TEST_F(srs, UnknownPeriodicityIsNoticedAndLeftToTheEncoder)
{
    for (const unsigned tag : {0U, 18U, 255U})
    {
        for (const bool periodic : {false, true})
        {
            RrcSrsResource_t record = resourceRecord(0);
            record.presence1 =
                periodic ? RRC_SRS_RESOURCE_TYPE_PERIODIC_PERSENCE : RRC_SRS_RESOURCE_TYPE_SEMI_PERSISTENT_PERSENCE;
            record.resourceType.periodic = {static_cast<UINT8>(tag), 0};
            SRS_Resource element{};
            EXPECT_EQ(rrcComposeSRS_Resource(&context, &element, &record), VOS_OK);
            EXPECT_EQ(printed(), "No SRS_PeriodicityAndOffset_PR\n");
            EXPECT_EQ(periodic ? element.resourceType.u.periodic->periodicityAndOffset_p.t
                               : element.resourceType.u.semi_persistent->periodicityAndOffset_sp.t,
                      tag);
            EXPECT_EQ(encode(asn1PE_SRS_Resource, element),
                      std::string("SRS-Resource.resourceType.") +
                          (periodic ? "periodic.periodicityAndOffset-p" : "semi-persistent.periodicityAndOffset-sp") +
                          ": tag " + std::to_string(tag) + " is not in 1..17");
        }
    }
}

TEST_F(srs, ResourceWithoutTypeIsLeftToTheEncoder)
{
    const std::string refused = "SRS-Resource.resourceType: tag 0 is not in 1..3";
    RrcSrsResource_t record = resourceRecord(0);
    record.presence1 = 0xF8;
    EXPECT_EQ(encode(asn1PE_SRS_Resource, resource(record)), refused);
    const struct
    {
        UINT8 presence1;
        unsigned successes;
    } cases[] = {{2, 1}, {3, 1}, {4, 1}, {7, 2}};
    for (const auto& [presence1, successes] : cases)
    {
        record.presence1 = presence1;
        record.resourceType.periodic = {1, 0};
        SRS_Resource element{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeSRS_Resource(&context, &element, &record), VOS_OK);
        }
        EXPECT_EQ(printed(), "");
        EXPECT_EQ(element.sequenceId, 1023) << "the members behind are filled";
        EXPECT_EQ(encode(asn1PE_SRS_Resource, element), refused);
    }
}

TEST_F(srs, SpatialRelationServingCell)
{
    for (const unsigned mask : {0U, 1U, 0xFEU})
    {
        RrcSrsSpatialRelationInfo_t record{static_cast<UINT8>(mask), 31, 1, {63}};
        SRS_SpatialRelationInfo element{};
        EXPECT_EQ(rrcComposeSRS_SpatialRelationInfo(&context, &element, &record), VOS_OK);
        expectDecoded("SRS-SpatialRelationInfo", asn1PE_SRS_SpatialRelationInfo, element,
                      object({mask & 1 ? R"("servingCellId":31)" : "", R"("referenceSignal":{"ssb-Index":63})"}));
    }
}

TEST_F(srs, SpatialRelationReferenceSignals)
{
    const std::string signals[] = {R"({"ssb-Index":62})", R"({"csi-RS-Index":62})",
                                   R"({"srs":{"resourceId":62,"uplinkBWP":4}})"};
    for (unsigned presence = 1; presence < 8; ++presence)
    {
        RrcSrsSpatialRelationInfo_t record{0, 0, static_cast<UINT8>(0xF8 | presence), {}};
        record.refSig.srs = {62, 4};
        SRS_SpatialRelationInfo element{};
        EXPECT_EQ(rrcComposeSRS_SpatialRelationInfo(&context, &element, &record), VOS_OK);
        expectDecoded("SRS-SpatialRelationInfo", asn1PE_SRS_SpatialRelationInfo, element,
                      "{\"referenceSignal\":" + signals[presence >= 4 ? 2 : presence / 2] + "}");
    }
}

TEST_F(srs, SpatialRelationWithoutSignalIsLeftToTheEncoder)
{
    const std::string refused = "SRS-SpatialRelationInfo.referenceSignal: tag 0 is not in 1..3";
    RrcSrsSpatialRelationInfo_t record{0, 0, 0xF8, {1}};
    SRS_SpatialRelationInfo element{};
    EXPECT_EQ(rrcComposeSRS_SpatialRelationInfo(&context, &element, &record), VOS_OK);
    EXPECT_EQ(encode(asn1PE_SRS_SpatialRelationInfo, element), refused);
    record.presence = 7;
    {
        const HeapFault fault(0);
        EXPECT_EQ(rrcComposeSRS_SpatialRelationInfo(&context, &element, &record), VOS_OK);
    }
    EXPECT_EQ(encode(asn1PE_SRS_SpatialRelationInfo, element), refused);
    EXPECT_EQ(printed(), "");
}

TEST_F(srs, RecordOrder)
{
    using Cfg = RrcSrsCfg_t;
    static_assert(
        rising({offsetof(Cfg, numSrsResourceSetAddMod), offsetof(Cfg, srsResourceSet),
                offsetof(Cfg, numSrsResourceSetRel), offsetof(Cfg, srsResourceSetId),
                offsetof(Cfg, numSrsResourceAddMod), offsetof(Cfg, srsResource), offsetof(Cfg, numSrsResourceRel),
                offsetof(Cfg, srsResourceId), offsetof(Cfg, bitMask), offsetof(Cfg, tpcAccumulation)}));
    using Set = RrcSrsResourceSet_t;
    static_assert(
        rising({offsetof(Set, srsResourceSetId), offsetof(Set, numSrsResourceId), offsetof(Set, srsResourceId),
                offsetof(Set, presence), offsetof(Set, resourceType), offsetof(Set, usage), offsetof(Set, Alpha),
                offsetof(Set, p0), offsetof(Set, pathLossRefRs), offsetof(Set, srsPowerControlAdjustmentStates)}));
    using Aperiodic = struct aperiodic_s;
    static_assert(rising({offsetof(Aperiodic, aperiodicSrsResourceTrigger), offsetof(Aperiodic, bitMask),
                          offsetof(Aperiodic, csiRsResourceId), offsetof(Aperiodic, slotOffset)}));
    static_assert(
        rising({offsetof(struct semiPersistent_s, bitMask), offsetof(struct semiPersistent_s, associatedCsiRsId)}));
    static_assert(rising({offsetof(struct periodic_s, bitMask), offsetof(struct periodic_s, associatedCsiRsId)}));
    static_assert(rising({offsetof(RrcSRSPathLossRefRs_t, presence), offsetof(RrcSRSPathLossRefRs_t, u)}));
    using Resource = RrcSrsResource_t;
    static_assert(
        rising({offsetof(Resource, srsResourceId), offsetof(Resource, nrofSrsPotrs), offsetof(Resource, presence),
                offsetof(Resource, transmissionComb), offsetof(Resource, resourceMapping),
                offsetof(Resource, freqDomainPostion), offsetof(Resource, freqDomainShift),
                offsetof(Resource, freqHopping), offsetof(Resource, groupOrSeqHopping), offsetof(Resource, presence1),
                offsetof(Resource, resourceType), offsetof(Resource, seqId), offsetof(Resource, bitMask),
                offsetof(Resource, ptrsPortIdx), offsetof(Resource, spatialRelationInfo)}));
    static_assert(sizeof(struct srsAperiodic_s) == 1);
    static_assert(rising({offsetof(struct srsSemiPersistent_s, period), offsetof(struct srsSemiPersistent_s, offset)}));
    static_assert(rising({offsetof(struct srsPeriodic_s, period), offsetof(struct srsPeriodic_s, offset)}));
    using Mapping = struct resourceMapping_s;
    static_assert(
        rising({offsetof(Mapping, startPos), offsetof(Mapping, nfofSymbols), offsetof(Mapping, repetitionFactor)}));
    using Hopping = struct freqHopping_s;
    static_assert(rising({offsetof(Hopping, cSrs), offsetof(Hopping, bSrs), offsetof(Hopping, bHop)}));
    using Spatial = RrcSrsSpatialRelationInfo_t;
    static_assert(rising({offsetof(Spatial, bitMask), offsetof(Spatial, servingCellId), offsetof(Spatial, presence),
                          offsetof(Spatial, refSig)}));
    static_assert(rising({offsetof(struct srsSpatial_s, resourceId), offsetof(struct srsSpatial_s, ulBwpId)}));
}
