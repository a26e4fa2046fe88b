#include "cellGroupCfg/pusch.h"

#include <algorithm>
#include <cstddef>
#include <functional>
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
const std::string noOffsetNode = "pNode Or PAsnCxt is NULL\r\n";

class pusch : public test::ComposerTest
{
protected:
    PUSCH_Config config(RrcPuschCfg_t record)
    {
        PUSCH_Config element{};
        EXPECT_EQ(rrcComposePusch_Configsetup(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    DMRS_UplinkConfig dmrs(RrcDmrsUlCfg_t record)
    {
        DMRS_UplinkConfig element{};
        EXPECT_EQ(rrcComposeDMRS_UplinkConfigSetup(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    PTRS_UplinkConfig ptrs(RrcPtrsUlCfg_t record)
    {
        PTRS_UplinkConfig element{};
        EXPECT_EQ(rrcComposePTRS_UplinkConfigsetup(&element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    PUSCH_PowerControl powerControl(RrcPuschPowerControl_t record)
    {
        PUSCH_PowerControl element{};
        EXPECT_EQ(rrcComposepusch_PowerControl(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    UCI_OnPUSCH uci(RrcUciOnPusch_t record)
    {
        UCI_OnPUSCH element{};
        EXPECT_EQ(rrcComposeUCI_OnPUSCHsetup(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }
};

std::string alphaSetJson(unsigned id)
{
    return R"({"p0-PUSCH-AlphaSetId":)" + std::to_string(id) + "}";
}

std::string pathlossJson(unsigned id)
{
    return R"({"pusch-PathlossReferenceRS-Id":)" + std::to_string(id) + R"(,"referenceSignal":{"csi-RS-Index":191}})";
}

std::string sriJson(unsigned id)
{
    return R"({"sri-PUSCH-PowerControlId":)" + std::to_string(id) +
           R"(,"sri-PUSCH-PathlossReferenceRS-Id":3,"sri-P0-PUSCH-AlphaSetId":29,"sri-PUSCH-ClosedLoopIndex":"i1"})";
}

std::string allocationJson(unsigned start)
{
    return R"({"mappingType":"typeB","startSymbolAndLength":)" + std::to_string(start) + "}";
}

RrcPuschPowerControl_t filledPowerControl()
{
    RrcPuschPowerControl_t record{};
    for (UINT8 i = 0; i < 30; ++i)
    {
        record.p0AlphaSets[i].p0PuschAlphaId = i;
    }
    for (UINT8 i = 0; i < 4; ++i)
    {
        record.pathLossRefRs[i] = {i, RRC_PUSCH_PATH_LOSS_REF_RS_CSI_RS_PRESENCE, {191}};
        record.pathLossRefRsRelId[i] = i;
    }
    for (UINT8 i = 0; i < 16; ++i)
    {
        record.sriPuschMapping[i] = {i, 3, 29, 1};
        record.sriPuschMappingId[i] = i;
    }
    record.msg3Alpha = 7;
    record.p0NominalWithOutGrant = -202;
    return record;
}

RrcPuschTimeDomainResourceAllocList_t allocations(UINT8 count)
{
    RrcPuschTimeDomainResourceAllocList_t record{};
    record.numPuschTimeDomainResourceAllocList = count;
    for (UINT8 i = 0; i < 16; ++i)
    {
        record.item[i] = {1, static_cast<UINT8>(127 - i), 0, 0};
    }
    return record;
}

// The lists of the power control in its order.
struct ListCase
{
    const char* name;
    UINT8 RrcPuschPowerControl_t::*count;
    unsigned bound;
    std::function<std::string(unsigned)> json; // of so many entries
    bool nodes;
};

const std::vector<ListCase>& lists()
{
    static const std::vector<ListCase> all{
        {"p0-AlphaSets", &RrcPuschPowerControl_t::numP0AlphaSets, 30, [](unsigned n) { return array(n, alphaSetJson); },
         true},
        {"pathlossReferenceRSToAddModList", &RrcPuschPowerControl_t::numPathLossRefRsAddMod, 4,
         [](unsigned n) { return array(n, pathlossJson); }, true},
        {"pathlossReferenceRSToReleaseList", &RrcPuschPowerControl_t::numPathLossRefRsRel, 4,
         [](unsigned n) { return numbers(n, 0); }, false},
        {"sri-PUSCH-MappingToAddModList", &RrcPuschPowerControl_t::numSriPuschMappingAddMod, 16,
         [](unsigned n) { return array(n, sriJson); }, true},
        {"sri-PUSCH-MappingToReleaseList", &RrcPuschPowerControl_t::numSriPuschMappingRel, 16,
         [](unsigned n) { return numbers(n, 0); }, false},
    };
    return all;
}

std::string listJson(const ListCase& list, unsigned n)
{
    return std::string("\"") + list.name + "\":" + list.json(n);
}

RrcBetaOffsets_t offsets(UINT8 first)
{
    const auto plus = [first](unsigned i)
    {
        return static_cast<UINT8>(first + i);
    };
    return {0x7F, first, plus(1), plus(2), plus(3), plus(4), plus(5), plus(6)};
}

std::string offsetsJson(unsigned first, unsigned mask = 0x7F)
{
    const char* const names[] = {"betaOffsetACK-Index1",       "betaOffsetACK-Index2",
                                 "betaOffsetACK-Index3",       "betaOffsetCSI-Part1-Index1",
                                 "betaOffsetCSI-Part1-Index2", "betaOffsetCSI-Part2-Index1",
                                 "betaOffsetCSI-Part2-Index2"};
    std::string json;
    for (unsigned i = 0; i < 7; ++i)
    {
        if (mask >> i & 1)
        {
            json += (json.empty() ? "\"" : ",\"") + std::string(names[i]) + "\":" + std::to_string(first + i);
        }
    }
    return "{" + json + "}";
}

// All that bitMask can ask for, with values that the encoder takes.
RrcPuschCfg_t filledRecord(UINT16 bitMask)
{
    RrcPuschCfg_t record{};
    record.resourceAlloc = 2;
    record.freqHoppingOffset[0] = 1;
    record.freqHoppingOffset[1] = 274;
    record.freqHoppingOffset[2] = 255;
    record.freqHoppingOffset[3] = 256;
    record.bitMask = bitMask;
    record.dataScramblingIdPusch = 1023;
    record.txCfg = 1;
    record.dmrsUlPuschTypeA.bitMask = RRC_DMRS_UL_CFG_TYPE_PRESENCE;
    record.dmrsUlPuschTypeB.bitMask = RRC_DMRS_UL_CFG_MAX_LENGTH_PRESENCE;
    record.puschPowerContol = filledPowerControl();
    record.puschPowerContol.bitMask = RRC_PUSCH_POWER_CONTROL_DELTA_MCS_PRESENCE;
    record.freqHopping = 1;
    record.puschTimeDomainAllocList = allocations(1);
    record.puschAggregationFactor = 2;
    record.mcsTable = 1;
    record.mcsTableTransformPrecoder = 0;
    record.transformPrecoder = 1;
    record.codebookSubSet = 2;
    record.maxRank = 4;
    record.uciOnPusch.scaling = 3;
    return record;
}

} // namespace

// PUSCH-Config

TEST_F(pusch, MembersNoneEachAloneAndAllInOrder)
{
    const std::string allocation = R"("resourceAllocation":"dynamicSwitch")";
    const std::string hopping = R"("frequencyHoppingOffsetLists":[1,274,255,256])";
    const std::string before[] = {
        R"("dataScramblingIdentityPUSCH":1023)",
        R"("txConfig":"nonCodebook")",
        R"("dmrs-UplinkForPUSCH-MappingTypeA":{"setup":{"dmrs-Type":"type2"}})",
        R"("dmrs-UplinkForPUSCH-MappingTypeB":{"setup":{"maxLength":"len2"}})",
        R"("pusch-PowerControl":{"deltaMCS":"enabled"})",
        R"("frequencyHopping":"interSlot")",
    };
    const std::string behind[] = {
        R"("pusch-TimeDomainAllocationList":{"setup":[{"mappingType":"typeB","startSymbolAndLength":127}]})",
        R"("pusch-AggregationFactor":"n8")",
        R"("mcs-Table":"qam64LowSE")",
        R"("mcs-TableTransformPrecoder":"qam256")",
        R"("transformPrecoder":"disabled")",
        R"("codebookSubset":"nonCoherent")",
        R"("maxRank":4)",
        R"("rbg-Size":"config2")",
        R"("uci-OnPUSCH":{"setup":{"scaling":"f1"}})",
        R"("tp-pi2BPSK":"enabled")",
    };
    for (const unsigned mask : masks(16))
    {
        for (const unsigned count : {0U, 4U})
        {
            RrcPuschCfg_t record = filledRecord(static_cast<UINT16>(mask));
            record.numFreqHoppingOffset = static_cast<UINT8>(count);
            std::vector<std::string> members;
            for (unsigned i = 0; i < 6; ++i)
            {
                members.push_back(mask >> i & 1 ? before[i] : "");
            }
            members.push_back(count == 0 ? "" : hopping);
            members.push_back(allocation);
            for (unsigned i = 0; i < 10; ++i)
            {
                members.push_back(mask >> (6 + i) & 1 ? behind[i] : "");
            }
            std::string json;
            for (const std::string& member : members)
            {
                json += (json.empty() || member.empty() ? "" : ",") + member;
            }
            SCOPED_TRACE(json);
            expectDecoded("PUSCH-Config", asn1PE_PUSCH_Config, config(record), "{" + json + "}");
        }
    }
}

TEST_F(pusch, FrequencyHoppingOffsetCounts)
{
    for (const unsigned count : {5U, 255U})
    {
        RrcPuschCfg_t record = filledRecord(0);
        record.numFreqHoppingOffset = static_cast<UINT8>(count);
        EXPECT_EQ(encode(asn1PE_PUSCH_Config, config(record)),
                  "PUSCH-Config.frequencyHoppingOffsetLists: " + std::to_string(count) + " elements, not 1..4");
    }
    RrcPuschCfg_t record = filledRecord(0);
    record.numFreqHoppingOffset = 1;
    expectDecoded("PUSCH-Config", asn1PE_PUSCH_Config, config(record),
                  R"({"frequencyHoppingOffsetLists":[1],"resourceAllocation":"dynamicSwitch"})");
}

TEST_F(pusch, Pi2BpskIsAnEnumerationUnchanged)
{
    RrcPuschCfg_t record = filledRecord(RRC_PUSCH_CFG_TP_PI2_BPSK_PRESENCE);
    record.tpPi2Bpsk = 256;
    EXPECT_EQ(encode(asn1PE_PUSCH_Config, config(record)), "PUSCH-Config.tp-pi2BPSK: 256 is not in 0..0");
}

TEST_F(pusch, SetupsWithoutHeapAreLeftToTheEncoder)
{
    const struct
    {
        UINT16 bit;
        const char* member;
    } cases[] = {
        {RRC_PUSCH_CFG_DMRS_MAPPING_TYPEA_PRESENCE, "dmrs-UplinkForPUSCH-MappingTypeA"},
        {RRC_PUSCH_CFG_DMRS_MAPPING_TYPEB_PRESENCE, "dmrs-UplinkForPUSCH-MappingTypeB"},
        {RRC_PUSCH_CFG_PUSCH_TIMING_DOMAIN_ALLOCATION_LIST_PRESENCE, "pusch-TimeDomainAllocationList"},
        {RRC_PUSCH_CFG_UCI_ON_PUSCH_PRESENCE, "uci-OnPUSCH"},
    };
    for (const auto& [bit, member] : cases)
    {
        RrcPuschCfg_t record = filledRecord(bit);
        PUSCH_Config element{};
        {
            const HeapFault fault(0);
            EXPECT_EQ(rrcComposePusch_Configsetup(&context, &element, &record), VOS_OK);
        }
        EXPECT_EQ(printed(), "");
        EXPECT_EQ(encode(asn1PE_PUSCH_Config, element),
                  std::string("PUSCH-Config.") + member + ": tag 0 is not in 1..2");
    }
}

TEST_F(pusch, HeapExhaustedAnywhere)
{
    RrcPuschCfg_t record = filledRecord(0xFFFF);
    record.dmrsUlPuschTypeA.bitMask = record.dmrsUlPuschTypeB.bitMask = 0x3F;
    record.puschTimeDomainAllocList = allocations(3);
    for (const ListCase& list : lists())
    {
        record.puschPowerContol.*list.count = 2;
    }
    record.uciOnPusch.bitMask = RRC_UCI_PUSCH_BETA_OFFSETS_PRESENCE;
    record.uciOnPusch.presence = 3;
    for (unsigned successes = 0;; ++successes)
    {
        PUSCH_Config element{};
        bool struck = false;
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposePusch_Configsetup(&context, &element, &record), VOS_OK);
            struck = HeapFault::struck();
        }
        const std::string lines = printed();
        (void)encode(asn1PE_PUSCH_Config, element);
        if (!struck)
        {
            EXPECT_EQ(lines, "");
            EXPECT_EQ(successes, 2U + 2 + 6 + 4 + 7);
            break;
        }
    }
}

// DMRS

TEST_F(pusch, DmrsOptions)
{
    RrcDmrsUlCfg_t record{};
    record.dmrsAddiPos = 2;
    record.transformPrecodDisable = {3, 65535, 32768};
    record.transformPrecodEnable = {7, 1007, 0, 0};
    for (const unsigned mask : masks(6))
    {
        record.bitMask = static_cast<UINT8>(mask);
        expectDecoded(
            "DMRS-UplinkConfig", asn1PE_DMRS_UplinkConfig, dmrs(record),
            object({mask & 0x01 ? R"("dmrs-Type":"type2")" : "",
                    mask & 0x02 ? R"("dmrs-AdditionalPosition":"pos3")" : "",
                    mask & 0x04 ? R"("phaseTrackingRS":{"setup":{}})" : "", mask & 0x08 ? R"("maxLength":"len2")" : "",
                    mask & 0x10 ? R"("transformPrecodingDisabled":{"scramblingID0":65535,"scramblingID1":32768})" : "",
                    mask & 0x20 ? R"("transformPrecodingEnabled":{"nPUSCH-Identity":1007,)"
                                  R"("sequenceGroupHopping":"disabled","sequenceHopping":"enabled"})"
                                : ""}));
    }
}

TEST_F(pusch, TransformPrecodingDisabledOptions)
{
    for (const unsigned mask : masks(2))
    {
        RrcTransformPrecodDisable_t record{static_cast<UINT8>(mask), 0, 1};
        DMRS_UplinkConfig element{};
        element.m.transformPrecodingDisabledPresent = 1;
        EXPECT_EQ(rrcComposetransformPrecodingDisabled(&element.transformPrecodingDisabled, &record), VOS_OK);
        expectDecoded("DMRS-UplinkConfig", asn1PE_DMRS_UplinkConfig, element,
                      "{\"transformPrecodingDisabled\":" +
                          object({mask & 1 ? R"("scramblingID0":0)" : "", mask & 2 ? R"("scramblingID1":1)" : ""}) +
                          "}");
    }
}

TEST_F(pusch, TransformPrecodingEnabledOptions)
{
    for (const unsigned mask : masks(3))
    {
        RrcTransformPrecodEnable_t record{static_cast<UINT8>(mask), 0, 0, 0};
        DMRS_UplinkConfig element{};
        element.m.transformPrecodingEnabledPresent = 1;
        EXPECT_EQ(rrcComposetransformPrecodingEnabled(&element.transformPrecodingEnabled, &record), VOS_OK);
        expectDecoded("DMRS-UplinkConfig", asn1PE_DMRS_UplinkConfig, element,
                      "{\"transformPrecodingEnabled\":" +
                          object({mask & 1 ? R"("nPUSCH-Identity":0)" : "",
                                  mask & 2 ? R"("sequenceGroupHopping":"disabled")" : "",
                                  mask & 4 ? R"("sequenceHopping":"enabled")" : ""}) +
                          "}");
    }
}

TEST_F(pusch, PhaseTrackingWithoutHeapIsNotNoticedBeforeTheEncoder)
{
    RrcPuschCfg_t record = filledRecord(RRC_PUSCH_CFG_DMRS_MAPPING_TYPEA_PRESENCE);
    record.dmrsUlPuschTypeA.bitMask = RRC_DMRS_UL_CFG_PHASE_TRACK_RS_PRESENCE;
    PUSCH_Config element{};
    {
        const HeapFault fault(1);
        EXPECT_EQ(rrcComposePusch_Configsetup(&context, &element, &record), VOS_OK);
    }
    EXPECT_EQ(printed(), "");
    EXPECT_EQ(encode(asn1PE_PUSCH_Config, element),
              "PUSCH-Config.dmrs-UplinkForPUSCH-MappingTypeA.setup.phaseTrackingRS: tag 0 is not in 1..2");
}

TEST_F(pusch, PhaseTrackingOptions)
{
    RrcPtrsUlCfg_t record{};
    record.transformPrecodeDisable = {1, 3, 0, {1, 276}, {0, 29, 15}, 2};
    record.transformPrecodeEnable = {{1, 276, 100, 200, 50}, 0, 0};
    for (const unsigned mask : masks(2))
    {
        record.bitMask = static_cast<UINT8>(mask);
        expectDecoded("PTRS-UplinkConfig", asn1PE_PTRS_UplinkConfig, ptrs(record),
                      object({mask & 1 ? R"("transformPrecoderDisabled":{"maxNrofPorts":"n2","ptrs-Power":"p11"})" : "",
                              mask & 2 ? R"("transformPrecoderEnabled":{"sampleDensity":[1,276,100,200,50]})" : ""}));
    }
    record.bitMask = RRC_PTRS_UL_CFG_DISABLE_PRESENCE;
    for (const unsigned mask : masks(3))
    {
        record.transformPrecodeDisable.bitMask = static_cast<UINT8>(mask);
        expectDecoded("PTRS-UplinkConfig", asn1PE_PTRS_UplinkConfig, ptrs(record),
                      "{\"transformPrecoderDisabled\":" +
                          object({mask & 1 ? R"("frequencyDensity":[1,276])" : "",
                                  mask & 2 ? R"("timeDensity":[0,29,15])" : "", R"("maxNrofPorts":"n2")",
                                  mask & 4 ? R"("resourceElementOffset":"offset11")" : "", R"("ptrs-Power":"p11")"}) +
                          "}");
    }
}

TEST_F(pusch, TimeDensityOfTransformPrecodingIsItsFirstValueWhateverTheRecordHolds)
{
    for (const unsigned value : {0U, 1U, 255U})
    {
        RrcPtrsUlCfg_t record{};
        record.bitMask = RRC_PTRS_UL_CFG_ENABLE_PRESENCE;
        record.transformPrecodeEnable = {
            {1, 2, 3, 4, 5}, RRC_PTRS_UL_CFG_ENABLE_TIME_DENSITY_PRESENCE, static_cast<UINT8>(value)};
        expectDecoded(
            "PTRS-UplinkConfig", asn1PE_PTRS_UplinkConfig, ptrs(record),
            R"({"transformPrecoderEnabled":{"sampleDensity":[1,2,3,4,5],"timeDensityTransformPrecoding":"d2"}})");
        EXPECT_EQ(record.transformPrecodeEnable.timeDensityTransformPrecoding, value);
    }
    RrcPtrsUlCfg_t record{};
    record.bitMask = RRC_PTRS_UL_CFG_ENABLE_PRESENCE;
    record.transformPrecodeEnable = {{1, 2, 3, 4, 5}, 0xFE, 0};
    EXPECT_EQ(ptrs(record).transformPrecoderEnabled.m.timeDensityTransformPrecodingPresent, 0U);
}

// Power control

TEST_F(pusch, PowerControlMembersNoneEachAloneAndAllInOrder)
{
    const std::string bits[] = {R"("tpc-Accumulation":"disabled")", R"("msg3-Alpha":"alpha1")",
                                R"("p0-NominalWithoutGrant":-202)", R"("twoPUSCH-PC-AdjustmentStates":"twoStates")",
                                R"("deltaMCS":"enabled")"};
    for (const unsigned mask : masks(5))
    {
        for (const unsigned asked : masks(5))
        {
            RrcPuschPowerControl_t record = filledPowerControl();
            record.bitMask = static_cast<UINT8>(mask);
            const auto bit = [&](unsigned i)
            {
                return mask >> i & 1 ? bits[i] : "";
            };
            const auto list = [&](unsigned i)
            {
                record.*lists()[i].count = static_cast<UINT8>(asked >> i & 1);
                return asked >> i & 1 ? listJson(lists()[i], 1) : "";
            };
            const std::string json =
                object({bit(0), bit(1), bit(2), list(0), list(1), list(2), bit(3), bit(4), list(3), list(4)});
            SCOPED_TRACE(json);
            expectDecoded("PUSCH-PowerControl", asn1PE_PUSCH_PowerControl, powerControl(record), json);
        }
    }
}

TEST_F(pusch, PowerControlListCounts)
{
    for (const ListCase& list : lists())
    {
        RrcPuschPowerControl_t record = filledPowerControl();
        record.*list.count = static_cast<UINT8>(list.bound);
        expectDecoded("PUSCH-PowerControl", asn1PE_PUSCH_PowerControl, powerControl(record),
                      object({listJson(list, list.bound)}));
        for (const unsigned count : {list.bound + 1, 255U})
        {
            record.*list.count = static_cast<UINT8>(count);
            EXPECT_EQ(encode(asn1PE_PUSCH_PowerControl, powerControl(record)),
                      std::string("PUSCH-PowerControl.") + list.name + ": " + std::to_string(count) +
                          " elements, not 1.." + std::to_string(list.bound));
        }
    }
}

TEST_F(pusch, PowerControlListsCutShortByTheHeap)
{
    for (const ListCase& list : lists())
    {
        for (unsigned successes = 0; list.nodes && successes < 3; ++successes)
        {
            RrcPuschCfg_t record = filledRecord(RRC_PUSCH_CFG_PUSCH_POWER_CONTROLPRESENCE);
            record.puschPowerContol.bitMask = 0;
            record.puschPowerContol.*list.count = 3;
            PUSCH_Config element{};
            {
                const HeapFault fault(successes);
                EXPECT_EQ(rrcComposePusch_Configsetup(&context, &element, &record), VOS_OK);
            }
            EXPECT_EQ(printed(), noNode);
            if (successes == 0)
            {
                EXPECT_EQ(encode(asn1PE_PUSCH_Config, element), std::string("PUSCH-Config.pusch-PowerControl.") +
                                                                    list.name + ": 0 elements, not 1.." +
                                                                    std::to_string(list.bound));
                continue;
            }
            expectDecoded("PUSCH-PowerControl", asn1PE_PUSCH_PowerControl, element.pusch_PowerControl,
                          object({listJson(list, successes)}));
        }
    }
}

TEST_F(pusch, PowerControlNullGuards)
{
    RrcPuschPowerControl_t record{};
    PUSCH_PowerControl element{};
    EXPECT_EQ(rrcComposepusch_PowerControl(&context, nullptr, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposepusch_PowerControl", "pPusch_PowerControl"));
    EXPECT_EQ(rrcComposepusch_PowerControl(&context, nullptr, &record), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposepusch_PowerControl", "pPusch_PowerControl"));
    EXPECT_EQ(rrcComposepusch_PowerControl(&context, &element, nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposepusch_PowerControl", "pRrcControl"));
}

TEST_F(pusch, NominalPowerWithoutGrantIsSigned)
{
    for (const int power : {-202, -1, 0, 24})
    {
        RrcPuschPowerControl_t record{};
        record.bitMask = RRC_PUSCH_POWER_CONTROL_P0_NOMINAL_WITHOUT_GRANT_PRESENCE;
        record.p0NominalWithOutGrant = static_cast<INT16>(power);
        expectDecoded("PUSCH-PowerControl", asn1PE_PUSCH_PowerControl, powerControl(record),
                      "{\"p0-NominalWithoutGrant\":" + std::to_string(power) + "}");
    }
    for (const int power : {-32768, -203, 25, 32767})
    {
        RrcPuschPowerControl_t record{};
        record.bitMask = RRC_PUSCH_POWER_CONTROL_P0_NOMINAL_WITHOUT_GRANT_PRESENCE;
        record.p0NominalWithOutGrant = static_cast<INT16>(power);
        EXPECT_EQ(encode(asn1PE_PUSCH_PowerControl, powerControl(record)),
                  "PUSCH-PowerControl.p0-NominalWithoutGrant: " + std::to_string(power) + " is not in -202..24");
    }
}

TEST_F(pusch, AlphaSetOptions)
{
    for (const unsigned mask : masks(2))
    {
        RrcP0PuschAlphaSet_t record{29, static_cast<UINT8>(mask), 0xF0, 6};
        P0_PUSCH_AlphaSet element{};
        EXPECT_EQ(rrcComposeP0PuschAlphaSet(&element, &record), VOS_OK);
        expectDecoded("P0-PUSCH-AlphaSet", asn1PE_P0_PUSCH_AlphaSet, element,
                      object({R"("p0-PUSCH-AlphaSetId":29)", mask & 1 ? R"("p0":-16)" : "",
                              mask & 2 ? R"("alpha":"alpha09")" : ""}));
    }
    RrcP0PuschAlphaSet_t record{0, RRC_P0PUSCH_ALPHA_SET_P0_PRESENCE, 0x80, 0};
    P0_PUSCH_AlphaSet element{};
    EXPECT_EQ(rrcComposeP0PuschAlphaSet(&element, &record), VOS_OK);
    EXPECT_EQ(encode(asn1PE_P0_PUSCH_AlphaSet, element), "P0-PUSCH-AlphaSet.p0: -128 is not in -16..15");
}

TEST_F(pusch, PathlossReferenceSignals)
{
    for (unsigned presence = 1; presence < 4; ++presence)
    {
        RrcPuschPathLossRefRs_t record{3, static_cast<UINT8>(presence), {63}};
        PUSCH_PathlossReferenceRS element{};
        EXPECT_EQ(rrcComposePathlossReferenceRS(&element, &record), VOS_OK);
        expectDecoded("PUSCH-PathlossReferenceRS", asn1PE_PUSCH_PathlossReferenceRS, element,
                      std::string(R"({"pusch-PathlossReferenceRS-Id":3,"referenceSignal":{")") +
                          (presence == 1 ? "ssb-Index" : "csi-RS-Index") + "\":63}}");
    }
    RrcPuschPathLossRefRs_t record{3, 0xFC, {63}};
    PUSCH_PathlossReferenceRS element{};
    EXPECT_EQ(rrcComposePathlossReferenceRS(&element, &record), VOS_OK);
    EXPECT_EQ(encode(asn1PE_PUSCH_PathlossReferenceRS, element),
              "PUSCH-PathlossReferenceRS.referenceSignal: tag 0 is not in 1..2");
}

// Time-domain allocations

TEST_F(pusch, TimeDomainAllocationOptions)
{
    for (const unsigned mask : {0U, 1U, 0xFEU})
    {
        RrcPuschTimeDomainResourceAlloc_t record{0, 127, static_cast<UINT8>(mask), 32};
        PUSCH_TimeDomainResourceAllocation element{};
        EXPECT_EQ(rrcComposePUSCH_TimeDomainResourceAllocation(&element, &record), VOS_OK);
        expectDecoded("PUSCH-TimeDomainResourceAllocation", asn1PE_PUSCH_TimeDomainResourceAllocation, element,
                      object({mask & 1 ? R"("k2":32)" : "", R"("mappingType":"typeA","startSymbolAndLength":127)"}));
    }
}

TEST_F(pusch, TimeDomainAllocationCounts)
{
    for (const unsigned count : {0U, 1U, 16U, 17U, 255U})
    {
        RrcPuschCfg_t record = filledRecord(RRC_PUSCH_CFG_PUSCH_TIMING_DOMAIN_ALLOCATION_LIST_PRESENCE);
        record.puschTimeDomainAllocList = allocations(static_cast<UINT8>(count));
        const PUSCH_Config element = config(record);
        if (count == 1 || count == 16)
        {
            expectDecoded("PUSCH-Config", asn1PE_PUSCH_Config, element,
                          R"({"resourceAllocation":"dynamicSwitch","pusch-TimeDomainAllocationList":{"setup":)" +
                              array(count, [](unsigned i) { return allocationJson(127 - i); }) + "}}");
            continue;
        }
        EXPECT_EQ(encode(asn1PE_PUSCH_Config, element), "PUSCH-Config.pusch-TimeDomainAllocationList.setup: " +
                                                            std::to_string(count) + " elements, not 1..16");
    }
}

TEST_F(pusch, TimeDomainAllocationsCutShortByTheHeap)
{
    for (unsigned successes = 0; successes < 3; ++successes)
    {
        RrcPuschTimeDomainResourceAllocList_t record = allocations(3);
        PUSCH_TimeDomainResourceAllocationList list{};
        PUSCH_Config_pusch_TimeDomainAllocationList choice{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposePUSCH_TimeDomainResourceAllocationSetup(&context, &list, &record), VOS_ERROR);
        }
        EXPECT_EQ(list.count, successes);
        EXPECT_EQ(printed(), noNode);
        {
            const HeapFault fault(1 + successes);
            EXPECT_EQ(rrcComposepusch_TimeDomainAllocationList(&context, &choice, &record), VOS_OK);
        }
        ASSERT_EQ(choice.t, static_cast<OSUINT32>(T_PUSCH_Config_pusch_TimeDomainAllocationList_setup));
        EXPECT_EQ(choice.u.setup->count, successes);
        EXPECT_EQ(printed(), noNode);
    }
}

// Beta offsets

TEST_F(pusch, BetaOffsetOptions)
{
    for (const unsigned mask : masks(7))
    {
        RrcBetaOffsets_t record = offsets(25);
        record.bitMask = static_cast<UINT8>(mask);
        BetaOffsets element{};
        EXPECT_EQ(rrcComposeBetaOffsets_semiStatic(&element, &record), VOS_OK);
        expectDecoded("BetaOffsets", asn1PE_BetaOffsets, element, offsetsJson(25, mask));
    }
}

TEST_F(pusch, DynamicBetaOffsetsAreAlwaysFour)
{
    RrcUciOnPusch_t record{};
    record.bitMask = RRC_UCI_PUSCH_BETA_OFFSETS_PRESENCE;
    record.presence = RRC_UCI_PUSCH_BETA_OFFSETS_DYNAMIC_PRESENCE;
    expectDecoded("UCI-OnPUSCH", asn1PE_UCI_OnPUSCH, uci(record),
                  R"({"betaOffsets":{"dynamic":[{},{},{},{}]},"scaling":"f0p5"})");
    for (UINT8 i = 0; i < 4; ++i)
    {
        record.betaOffset.dynamic[i] = offsets(static_cast<UINT8>(i * 6));
    }
    record.scaling = 2;
    expectDecoded("UCI-OnPUSCH", asn1PE_UCI_OnPUSCH, uci(record),
                  "{\"betaOffsets\":{\"dynamic\":" + array(4, [](unsigned i) { return offsetsJson(i * 6); }) +
                      "},\"scaling\":\"f0p8\"}");
}

TEST_F(pusch, SemiStaticBetaOffsetsWinOverDynamic)
{
    for (const unsigned presence : {2U, 3U, 0xFEU})
    {
        RrcUciOnPusch_t record{};
        record.scaling = 1;
        record.bitMask = RRC_UCI_PUSCH_BETA_OFFSETS_PRESENCE;
        record.presence = static_cast<UINT8>(presence);
        record.betaOffset.semiStatic = offsets(20);
        expectDecoded("UCI-OnPUSCH", asn1PE_UCI_OnPUSCH, uci(record),
                      "{\"betaOffsets\":{\"semiStatic\":" + offsetsJson(20) + "},\"scaling\":\"f0p65\"}");
    }
}

TEST_F(pusch, BetaOffsetsNotAskedForOrWithoutAlternative)
{
    RrcUciOnPusch_t record{};
    record.bitMask = 0xFE;
    record.presence = 3;
    expectDecoded("UCI-OnPUSCH", asn1PE_UCI_OnPUSCH, uci(record), R"({"scaling":"f0p5"})");
    record.bitMask = RRC_UCI_PUSCH_BETA_OFFSETS_PRESENCE;
    record.presence = 0xFC;
    EXPECT_EQ(encode(asn1PE_UCI_OnPUSCH, uci(record)), "UCI-OnPUSCH.betaOffsets: tag 0 is not in 1..2");
}

TEST_F(pusch, BetaOffsetsWithoutHeap)
{
    RrcUciOnPusch_t record{};
    record.bitMask = RRC_UCI_PUSCH_BETA_OFFSETS_PRESENCE;
    for (unsigned successes = 0; successes < 5; ++successes)
    {
        record.presence = RRC_UCI_PUSCH_BETA_OFFSETS_DYNAMIC_PRESENCE;
        UCI_OnPUSCH element{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeUCI_OnPUSCHsetup(&context, &element, &record), VOS_OK);
        }
        EXPECT_EQ(printed(), successes == 0 ? "" : noOffsetNode);
        EXPECT_EQ(encode(asn1PE_UCI_OnPUSCH, element),
                  successes == 0 ? "UCI-OnPUSCH.betaOffsets: tag 0 is not in 1..2"
                                 : "UCI-OnPUSCH.betaOffsets.dynamic: " + std::to_string(successes - 1) + " element" +
                                       (successes == 2 ? "" : "s") + ", not 4");
    }
    for (const unsigned presence : {2U, 3U})
    {
        record.presence = static_cast<UINT8>(presence);
        UCI_OnPUSCH element{};
        {
            const HeapFault fault(presence == 2 ? 0 : 5);
            EXPECT_EQ(rrcComposeUCI_OnPUSCHsetup(&context, &element, &record), VOS_OK);
        }
        EXPECT_EQ(printed(), "");
        EXPECT_EQ(encode(asn1PE_UCI_OnPUSCH, element), "UCI-OnPUSCH.betaOffsets: tag 0 is not in 1..2");
    }
}

TEST_F(pusch, RecordOrder)
{
    using Cfg = RrcPuschCfg_t;
    static_assert(rising({offsetof(Cfg, resourceAlloc),
                          offsetof(Cfg, numFreqHoppingOffset),
                          offsetof(Cfg, freqHoppingOffset),
                          offsetof(Cfg, bitMask),
                          offsetof(Cfg, dataScramblingIdPusch),
                          offsetof(Cfg, txCfg),
                          offsetof(Cfg, dmrsUlPuschTypeA),
                          offsetof(Cfg, dmrsUlPuschTypeB),
                          offsetof(Cfg, puschPowerContol),
                          offsetof(Cfg, freqHopping),
                          offsetof(Cfg, puschTimeDomainAllocList),
                          offsetof(Cfg, puschAggregationFactor),
                          offsetof(Cfg, mcsTable),
                          offsetof(Cfg, mcsTableTransformPrecoder),
                          offsetof(Cfg, transformPrecoder),
                          offsetof(Cfg, codebookSubSet),
                          offsetof(Cfg, maxRank),
                          offsetof(Cfg, rbgSize),
                          offsetof(Cfg, uciOnPusch),
                          offsetof(Cfg, tpPi2Bpsk)}));
    using Dmrs = RrcDmrsUlCfg_t;
    static_assert(rising({offsetof(Dmrs, bitMask), offsetof(Dmrs, dmrsType), offsetof(Dmrs, dmrsAddiPos),
                          offsetof(Dmrs, phaseTrackRs), offsetof(Dmrs, maxLength),
                          offsetof(Dmrs, transformPrecodDisable), offsetof(Dmrs, transformPrecodEnable)}));
    using Disable = RrcTransformPrecodDisable_t;
    static_assert(
        rising({offsetof(Disable, bitMask), offsetof(Disable, scramblingId0), offsetof(Disable, scramblingId1)}));
    using Enable = RrcTransformPrecodEnable_t;
    static_assert(rising({offsetof(Enable, bitMask), offsetof(Enable, nPuschId), offsetof(Enable, seqGrpHopping),
                          offsetof(Enable, seqHopping)}));
    using Ptrs = RrcPtrsUlCfg_t;
    static_assert(rising(
        {offsetof(Ptrs, bitMask), offsetof(Ptrs, transformPrecodeDisable), offsetof(Ptrs, transformPrecodeEnable)}));
    using PtrsDisable = RrcPtrsUlTransformPrecodeDisable_t;
    static_assert(rising({offsetof(PtrsDisable, maxNrofPorts), offsetof(PtrsDisable, ptrsPower),
                          offsetof(PtrsDisable, bitMask), offsetof(PtrsDisable, freqDensity),
                          offsetof(PtrsDisable, timeDensity), offsetof(PtrsDisable, resourceElementOffset)}));
    using PtrsEnable = RrcPtrsUlTransformPrecodeEnable_t;
    static_assert(rising({offsetof(PtrsEnable, sampleDensity), offsetof(PtrsEnable, bitMask),
                          offsetof(PtrsEnable, timeDensityTransformPrecoding)}));
    using Power = RrcPuschPowerControl_t;
    static_assert(rising(
        {offsetof(Power, numP0AlphaSets), offsetof(Power, p0AlphaSets), offsetof(Power, numPathLossRefRsAddMod),
         offsetof(Power, pathLossRefRs), offsetof(Power, numPathLossRefRsRel), offsetof(Power, pathLossRefRsRelId),
         offsetof(Power, numSriPuschMappingAddMod), offsetof(Power, sriPuschMapping),
         offsetof(Power, numSriPuschMappingRel), offsetof(Power, sriPuschMappingId), offsetof(Power, bitMask),
         offsetof(Power, tpcAccumulation), offsetof(Power, msg3Alpha), offsetof(Power, p0NominalWithOutGrant),
         offsetof(Power, twoPuschPcAdjStates), offsetof(Power, deltaMcs)}));
    using AlphaSet = RrcP0PuschAlphaSet_t;
    static_assert(rising({offsetof(AlphaSet, p0PuschAlphaId), offsetof(AlphaSet, bitMask), offsetof(AlphaSet, p0),
                          offsetof(AlphaSet, alpha)}));
    using Loss = RrcPuschPathLossRefRs_t;
    static_assert(rising({offsetof(Loss, puschPathLossRefRsId), offsetof(Loss, presence), offsetof(Loss, regSig)}));
    static_assert(sizeof Loss::regSig == 1);
    using Sri = RrcSriPuschPowerControl_t;
    static_assert(rising({offsetof(Sri, sriPuschPowerControlId), offsetof(Sri, sriPuschPathLossRefRsId),
                          offsetof(Sri, sriP0PuschAlphaSetId), offsetof(Sri, sriPuschClosedLoopIdx)}));
    using Alloc = RrcPuschTimeDomainResourceAlloc_t;
    static_assert(rising({offsetof(Alloc, mappingType), offsetof(Alloc, startSymbolAndLen), offsetof(Alloc, bitMask),
                          offsetof(Alloc, k2)}));
    using Beta = RrcBetaOffsets_t;
    static_assert(rising({offsetof(Beta, bitMask), offsetof(Beta, betaOffsetAckIdx1), offsetof(Beta, betaOffsetAckIdx2),
                          offsetof(Beta, betaOffsetAckIdx3), offsetof(Beta, betaOffsetCSIPart1Idx1),
                          offsetof(Beta, betaOffsetCSIPart1Idx2), offsetof(Beta, betaOffsetCSIPart2Idx1),
                          offsetof(Beta, betaOffsetCSIPart2Idx2)}));
    using Uci = RrcUciOnPusch_t;
    static_assert(
        rising({offsetof(Uci, scaling), offsetof(Uci, bitMask), offsetof(Uci, presence), offsetof(Uci, betaOffset)}));
}
