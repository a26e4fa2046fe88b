#include "cellGroupCfg/servingCellLevel.h"

#include <algorithm>
#include <cstddef>
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

class servingCellLevel : public test::ComposerTest
{
protected:
    PUSCH_ServingCellConfig pusch(RrcPuschServingCellCfg_t record)
    {
        PUSCH_ServingCellConfig element{};
        EXPECT_EQ(rrcComposepusch_ServingCellCfgSetup(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    SRS_CarrierSwitching carrierSwitching(RrcSrsCarrierSwitching_t record)
    {
        SRS_CarrierSwitching element{};
        EXPECT_EQ(rrcComposeCarrierSwitchingSetup(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    SRS_TPC_PDCCH_Config tpcPdcch(RrcSrsTpcPdcchCfg_t record)
    {
        SRS_TPC_PDCCH_Config element{};
        EXPECT_EQ(rrcComposeSRS_TPC_PDCCH_Cfg(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    SlotFormatIndicator slotFormatIndicator(RrcSlotFormatInd_t& record)
    {
        SlotFormatIndicator element{};
        EXPECT_EQ(rrcComposeSlotFormatIndSetup(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    SlotFormatCombinationsPerCell perCell(RrcSlotFormatCombPerCell_t& record)
    {
        SlotFormatCombinationsPerCell element{};
        EXPECT_EQ(rrcComposeslotFormatComb(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }

    PDSCH_ServingCellConfig pdsch(RrcPdschServingCellCfg_t record)
    {
        PDSCH_ServingCellConfig element{};
        EXPECT_EQ(rrcComposePdsch_ServingCellCfgSetup(&context, &element, &record), VOS_OK);
        EXPECT_EQ(printed(), "");
        return element;
    }
};

RrcPuschServingCellCfg_t puschRecord(unsigned bitMask)
{
    return {static_cast<UINT8>(bitMask), {3}, 0, 2};
}

RrcPdschServingCellCfg_t pdschRecord(unsigned bitMask)
{
    return {static_cast<UINT8>(bitMask), {2, 1}, 1, 5, 31, 8, 1};
}

RrcSrsTpcPdcchCfg_t tpcRecord(UINT8 count)
{
    return {count, {{3, 0, 4}, {3, 1, 5}, {3, 2, 6}, {3, 3, 7}}};
}

std::string tpcJson(unsigned count)
{
    const auto item = [](unsigned i)
    {
        return "{\"cc-SetIndex\":" + std::to_string(i) + ",\"cc-IndexInOneCC-Set\":" + std::to_string(4 + i) + "}";
    };
    return object({count == 0 ? "" : "\"srs-CC-SetIndexlist\":" + array(count, item)});
}

RrcSrsCarrierSwitching_t switchingRecord(unsigned bitMask)
{
    RrcSrsCarrierSwitching_t record{};
    record.bitMask = static_cast<UINT8>(bitMask);
    record.srsSwitchFromServCellIdx = 31;
    record.SwitchFromCarrier = 1;
    record.presence = RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEB_PRESENCE;
    record.RrcmonitoringCells.num = 1;
    std::iota(std::begin(record.RrcmonitoringCells.monitoringCells),
              std::end(record.RrcmonitoringCells.monitoringCells), UINT8{0});
    return record;
}

// Combination i has `formats` formats, from i on.
std::unique_ptr<RrcSlotFormatCombPerCell_t> cellRecord(UINT16 combinations, UINT16 formats)
{
    auto record = std::make_unique<RrcSlotFormatCombPerCell_t>();
    record->servingCellIdx = 31;
    record->subCarrierSpacing = 3;
    record->numSlotFormatComb = combinations;
    for (UINT16 i = 0; i < 512; ++i)
    {
        record->SlotFormatComb[i].slotFormatCombId = i;
        record->SlotFormatComb[i].numSlotFormat = formats;
        auto& slots = record->SlotFormatComb[i].slotsFormats;
        std::iota(std::begin(slots), std::end(slots), static_cast<UINT8>(i));
    }
    record->subCarrierSpacing2 = 4;
    record->positionInDci = 127;
    return record;
}

std::string combinationJson(unsigned id, unsigned formats)
{
    return "{\"slotFormatCombinationId\":" + std::to_string(id) +
           ",\"slotFormats\":" + array(formats, [id](unsigned i) { return std::to_string((id + i) % 256); }) + "}";
}

std::string cellJson(unsigned combinations, unsigned formats)
{
    const auto item = [formats](unsigned i)
    {
        return combinationJson(i, formats);
    };
    return object({R"("servingCellId":31,"subcarrierSpacing":"kHz120")",
                   combinations == 0 ? "" : "\"slotFormatCombinations\":" + array(combinations, item)});
}

} // namespace

// PUSCH

TEST_F(servingCellLevel, PuschOptions)
{
    for (const unsigned mask : masks(5))
    {
        expectDecoded(
            "PUSCH-ServingCellConfig", asn1PE_PUSCH_ServingCellConfig, pusch(puschRecord(mask)),
            object({mask & 1 ? R"("codeBlockGroupTransmission":{"setup":)"
                               R"({"maxCodeBlockGroupsPerTransportBlock":"n8"}})"
                             : "",
                    mask & 2 ? R"("rateMatching":"limitedBufferRM")" : "", mask & 4 ? R"("xOverhead":"xoh18")" : ""}));
    }
}

TEST_F(servingCellLevel, PuschLayersAndProcessingAreMarkedAndNotSent)
{
    PUSCH_ServingCellConfig element = pusch(puschRecord(RRC_PUSCH_SERVING_CELL_CFG_MAX_MIMO_LAYERS));
    EXPECT_EQ(element.m.maxMIMO_LayersPresent, 1U);
    EXPECT_EQ(element.maxMIMO_Layers, 0);
    EXPECT_EQ(element.m.processingType2EnabledPresent, 0U);
    EXPECT_EQ(element.m._v2ExtPresent, 0U);

    element = pusch(puschRecord(RRC_PUSCH_SERVING_CELL_CFG_PROCESS_TYPE_2ENABLE));
    EXPECT_EQ(element.m.processingType2EnabledPresent, 1U);
    EXPECT_EQ(element.processingType2Enabled, 0);
    EXPECT_EQ(element.m.maxMIMO_LayersPresent, 0U);
    EXPECT_EQ(element.m._v2ExtPresent, 0U);
}

// Setups

TEST_F(servingCellLevel, WrappersChooseSetup)
{
    UplinkConfig_pusch_ServingCellConfig puschChoice{};
    RrcPuschServingCellCfg_t puschCfg = puschRecord(4);
    EXPECT_EQ(rrcComposepusch_ServingCellConfig(&context, &puschChoice, &puschCfg), VOS_OK);
    ASSERT_EQ(puschChoice.t, static_cast<OSUINT32>(T_UplinkConfig_pusch_ServingCellConfig_setup));
    EXPECT_EQ(puschChoice.u.setup->xOverhead, 2U);

    UplinkConfig_carrierSwitching switchingChoice{};
    RrcSrsCarrierSwitching_t switchingCfg = switchingRecord(0);
    EXPECT_EQ(rrcComposeCarrierSwitching(&context, &switchingChoice, &switchingCfg), VOS_OK);
    ASSERT_EQ(switchingChoice.t, static_cast<OSUINT32>(T_UplinkConfig_carrierSwitching_setup));
    EXPECT_EQ(switchingChoice.u.setup->srs_SwitchFromCarrier, 1U);

    ServingCellConfig_pdsch_ServingCellConfig pdschChoice{};
    RrcPdschServingCellCfg_t pdschCfg = pdschRecord(8);
    EXPECT_EQ(rrcComposePdsch_ServingCellConfig(&context, &pdschChoice, &pdschCfg), VOS_OK);
    ASSERT_EQ(pdschChoice.t, static_cast<OSUINT32>(T_ServingCellConfig_pdsch_ServingCellConfig_setup));
    EXPECT_EQ(pdschChoice.u.setup->pucch_Cell, 31);
    EXPECT_EQ(printed(), "");
}

TEST_F(servingCellLevel, PdcchWithoutSlotFormatIsAnEmptySetup)
{
    const auto record = cleared<RrcPdcchServingCellCfg_t>();
    for (const unsigned mask : {0U, 0xFEU})
    {
        record->bitMask = static_cast<UINT8>(mask);
        ServingCellConfig_pdcch_ServingCellConfig element{};
        EXPECT_EQ(rrcComposePdcch_ServingCellConfig(&context, &element, record.get()), VOS_OK);
        ASSERT_EQ(element.t, static_cast<OSUINT32>(T_ServingCellConfig_pdcch_ServingCellConfig_setup));
        expectDecoded("PDCCH-ServingCellConfig", asn1PE_PDCCH_ServingCellConfig, *element.u.setup, "{}");
    }
}

TEST_F(servingCellLevel, WrappersWithoutHeapAreLeftToTheEncoder)
{
    RrcPuschServingCellCfg_t puschCfg = puschRecord(1);
    RrcSrsCarrierSwitching_t switchingCfg = switchingRecord(0);
    RrcPdschServingCellCfg_t pdschCfg = pdschRecord(1);
    const auto pdcchCfg = cleared<RrcPdcchServingCellCfg_t>();
    pdcchCfg->bitMask = RRC_PDCCH_SERVING_CELL_CFG_SLOT_FORMATE_IND;
    {
        const HeapFault fault(0);
        UplinkConfig_pusch_ServingCellConfig puschChoice{};
        EXPECT_EQ(rrcComposepusch_ServingCellConfig(&context, &puschChoice, &puschCfg), VOS_OK);
        EXPECT_EQ(puschChoice.t, 0U);
        UplinkConfig_carrierSwitching switchingChoice{};
        EXPECT_EQ(rrcComposeCarrierSwitching(&context, &switchingChoice, &switchingCfg), VOS_OK);
        EXPECT_EQ(switchingChoice.t, 0U);
        ServingCellConfig_pdcch_ServingCellConfig pdcchChoice{};
        EXPECT_EQ(rrcComposePdcch_ServingCellConfig(&context, &pdcchChoice, pdcchCfg.get()), VOS_OK);
        EXPECT_EQ(pdcchChoice.t, 0U);
        ServingCellConfig_pdsch_ServingCellConfig pdschChoice{};
        EXPECT_EQ(rrcComposePdsch_ServingCellConfig(&context, &pdschChoice, &pdschCfg), VOS_OK);
        EXPECT_EQ(pdschChoice.t, 0U);
    }
    PUSCH_ServingCellConfig puschElement{};
    PDCCH_ServingCellConfig pdcchElement{};
    PDSCH_ServingCellConfig pdschElement{};
    {
        const HeapFault fault(0);
        EXPECT_EQ(rrcComposepusch_ServingCellCfgSetup(&context, &puschElement, &puschCfg), VOS_OK);
        EXPECT_EQ(rrcComposePdcch_ServingCellCfgSetup(&context, &pdcchElement, pdcchCfg.get()), VOS_OK);
        EXPECT_EQ(rrcComposePdsch_ServingCellCfgSetup(&context, &pdschElement, &pdschCfg), VOS_OK);
    }
    const std::string refused = ": tag 0 is not in 1..2";
    EXPECT_EQ(encode(asn1PE_PUSCH_ServingCellConfig, puschElement),
              "PUSCH-ServingCellConfig.codeBlockGroupTransmission" + refused);
    EXPECT_EQ(encode(asn1PE_PDCCH_ServingCellConfig, pdcchElement),
              "PDCCH-ServingCellConfig.slotFormatIndicator" + refused);
    EXPECT_EQ(encode(asn1PE_PDSCH_ServingCellConfig, pdschElement),
              "PDSCH-ServingCellConfig.codeBlockGroupTransmission" + refused);
    EXPECT_EQ(printed(), "");
}

// Carrier switching

TEST_F(servingCellLevel, CarrierSwitchingOptions)
{
    for (const unsigned mask : masks(3))
    {
        expectDecoded("SRS-CarrierSwitching", asn1PE_SRS_CarrierSwitching, carrierSwitching(switchingRecord(mask)),
                      object({mask & 1 ? R"("srs-SwitchFromServCellIndex":31)" : "", R"("srs-SwitchFromCarrier":"nUL")",
                              mask & 2 ? R"("srs-TPC-PDCCH-Group":{"typeB":{}})" : "",
                              mask & 4 ? R"("monitoringCells":[0])" : ""}));
    }
}

TEST_F(servingCellLevel, CarrierIsAnEnumerationUnchanged)
{
    RrcSrsCarrierSwitching_t record = switchingRecord(0);
    record.SwitchFromCarrier = 0;
    expectDecoded("SRS-CarrierSwitching", asn1PE_SRS_CarrierSwitching, carrierSwitching(record),
                  R"({"srs-SwitchFromCarrier":"sUL"})");
    record.SwitchFromCarrier = 256;
    EXPECT_EQ(encode(asn1PE_SRS_CarrierSwitching, carrierSwitching(record)),
              "SRS-CarrierSwitching.srs-SwitchFromCarrier: 256 is not in 0..1");
}

TEST_F(servingCellLevel, MonitoringCellCounts)
{
    for (const unsigned count : {0U, 32U, 33U, 255U})
    {
        RrcSrsCarrierSwitching_t record = switchingRecord(RRC_SRS_CARRIER_SWITCH_MONITORING_CELLS);
        record.RrcmonitoringCells.num = static_cast<UINT8>(count);
        const SRS_CarrierSwitching element = carrierSwitching(record);
        if (count == 32)
        {
            expectDecoded("SRS-CarrierSwitching", asn1PE_SRS_CarrierSwitching, element,
                          "{\"srs-SwitchFromCarrier\":\"nUL\",\"monitoringCells\":" + numbers(32, 0) + "}");
            continue;
        }
        EXPECT_EQ(encode(asn1PE_SRS_CarrierSwitching, element),
                  "SRS-CarrierSwitching.monitoringCells: " + std::to_string(count) + " elements, not 1..32");
    }
}

TEST_F(servingCellLevel, TpcPdcchTypeACounts)
{
    for (const unsigned count : {0U, 1U, 32U, 33U, 255U})
    {
        RrcSrsCarrierSwitching_t record = switchingRecord(RRC_SRS_CARRIER_SWITCH_SRS_TPC_PDCCH_GROUP_PRESENCE);
        record.presence = RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEA_PRESENCE;
        record.srsTpcPdcchGroup.typeA.num = static_cast<UINT8>(count);
        for (UINT8 i = 0; i < 32; ++i)
        {
            record.srsTpcPdcchGroup.typeA.cfg[i] = tpcRecord(i % 5);
        }
        const SRS_CarrierSwitching element = carrierSwitching(record);
        if (count == 1 || count == 32)
        {
            expectDecoded("SRS-CarrierSwitching", asn1PE_SRS_CarrierSwitching, element,
                          "{\"srs-SwitchFromCarrier\":\"nUL\",\"srs-TPC-PDCCH-Group\":{\"typeA\":" +
                              array(count, [](unsigned i) { return tpcJson(i % 5); }) + "}}");
            continue;
        }
        EXPECT_EQ(encode(asn1PE_SRS_CarrierSwitching, element),
                  "SRS-CarrierSwitching.srs-TPC-PDCCH-Group.typeA: " + std::to_string(count) + " elements, not 1..32");
    }
}

TEST_F(servingCellLevel, TpcPdcchTypeBWinsOverTypeA)
{
    for (const unsigned presence : {2U, 3U, 0xFEU})
    {
        for (const UINT8 count : {UINT8{0}, UINT8{1}, UINT8{4}})
        {
            RrcSrsCarrierSwitching_t record = switchingRecord(RRC_SRS_CARRIER_SWITCH_SRS_TPC_PDCCH_GROUP_PRESENCE);
            record.presence = static_cast<UINT8>(presence);
            record.srsTpcPdcchGroup.typeB = tpcRecord(count);
            expectDecoded("SRS-CarrierSwitching", asn1PE_SRS_CarrierSwitching, carrierSwitching(record),
                          R"({"srs-SwitchFromCarrier":"nUL","srs-TPC-PDCCH-Group":{"typeB":)" + tpcJson(count) + "}}");
        }
    }
}

TEST_F(servingCellLevel, LosingTypeAIsReadWithinItsArrays)
{
    RrcSrsCarrierSwitching_t record = switchingRecord(RRC_SRS_CARRIER_SWITCH_SRS_TPC_PDCCH_GROUP_PRESENCE);
    record.presence = 3;
    record.srsTpcPdcchGroup.typeA.num = 255;
    for (RrcSrsTpcPdcchCfg_t& cfg : record.srsTpcPdcchGroup.typeA.cfg)
    {
        cfg.num = 255;
    }
    record.srsTpcPdcchGroup.typeB.num = 255;
    EXPECT_EQ(encode(asn1PE_SRS_CarrierSwitching, carrierSwitching(record)),
              "SRS-CarrierSwitching.srs-TPC-PDCCH-Group.typeB.srs-CC-SetIndexlist: 255 elements, not 1..4");
}

TEST_F(servingCellLevel, TpcPdcchGroupWithoutTypeIsLeftToTheEncoder)
{
    const std::string refused = "SRS-CarrierSwitching.srs-TPC-PDCCH-Group: tag 0 is not in 1..2";
    RrcSrsCarrierSwitching_t record = switchingRecord(RRC_SRS_CARRIER_SWITCH_SRS_TPC_PDCCH_GROUP_PRESENCE);
    record.presence = 0xFC;
    EXPECT_EQ(encode(asn1PE_SRS_CarrierSwitching, carrierSwitching(record)), refused);
    for (UINT8 presence = 1; presence < 4; ++presence)
    {
        record.presence = presence;
        SRS_CarrierSwitching element{};
        {
            const HeapFault fault(presence == 3 ? 1 : 0);
            EXPECT_EQ(rrcComposeCarrierSwitchingSetup(&context, &element, &record), VOS_OK);
        }
        EXPECT_EQ(printed(), "");
        EXPECT_EQ(encode(asn1PE_SRS_CarrierSwitching, element), refused);
    }
}

TEST_F(servingCellLevel, TpcPdcchGroupCutShortByTheHeap)
{
    // Type A: the list, then per entry its node and the one of its set index.
    for (unsigned successes = 1; successes < 5; ++successes)
    {
        RrcSrsCarrierSwitching_t record = switchingRecord(RRC_SRS_CARRIER_SWITCH_SRS_TPC_PDCCH_GROUP_PRESENCE |
                                                          RRC_SRS_CARRIER_SWITCH_MONITORING_CELLS);
        record.presence = RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEA_PRESENCE;
        record.srsTpcPdcchGroup.typeA = {2, {tpcRecord(1), tpcRecord(1)}};
        SRS_CarrierSwitching element{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeCarrierSwitchingSetup(&context, &element, &record), VOS_OK);
        }
        EXPECT_EQ(printed(), successes % 2 == 1 ? noNode : noNode + "rrcComposeSRS_TPC_PDCCH_Cfg is Error\r\n");
        EXPECT_EQ(element.m.monitoringCellsPresent, 1U) << "the members behind are filled";
        ASSERT_EQ(element.srs_TPC_PDCCH_Group.t, 1U);
        EXPECT_EQ(element.srs_TPC_PDCCH_Group.u.typeA->count, (successes - 1) / 2);
    }
    for (unsigned successes = 1; successes < 3; ++successes)
    {
        RrcSrsCarrierSwitching_t record = switchingRecord(RRC_SRS_CARRIER_SWITCH_SRS_TPC_PDCCH_GROUP_PRESENCE);
        record.srsTpcPdcchGroup.typeB = tpcRecord(2);
        SRS_CarrierSwitching element{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeCarrierSwitchingSetup(&context, &element, &record), VOS_OK);
        }
        EXPECT_EQ(printed(), noNode + "rrcComposeSRS_TPC_PDCCH_Cfg is Error\r\n");
        ASSERT_EQ(element.srs_TPC_PDCCH_Group.t, 2U);
        EXPECT_EQ(element.srs_TPC_PDCCH_Group.u.typeB->srs_CC_SetIndexlist.count, successes - 1);
    }
}

TEST_F(servingCellLevel, TpcPdcchConfigCounts)
{
    for (const unsigned count : {0U, 1U, 4U})
    {
        expectDecoded("SRS-TPC-PDCCH-Config", asn1PE_SRS_TPC_PDCCH_Config,
                      tpcPdcch(tpcRecord(static_cast<UINT8>(count))), tpcJson(count));
    }
    for (const unsigned count : {5U, 255U})
    {
        EXPECT_EQ(encode(asn1PE_SRS_TPC_PDCCH_Config, tpcPdcch(tpcRecord(static_cast<UINT8>(count)))),
                  "SRS-TPC-PDCCH-Config.srs-CC-SetIndexlist: " + std::to_string(count) + " elements, not 1..4");
    }
}

TEST_F(servingCellLevel, CcSetIndexOptions)
{
    for (const unsigned mask : masks(2))
    {
        struct srsCcSetIdx_s record = {static_cast<UINT8>(mask), 3, 7};
        SRS_CC_SetIndex element{};
        EXPECT_EQ(rrcComposeSRS_CC_SetIndex(&element, &record), VOS_OK);
        expectDecoded("SRS-CC-SetIndex", asn1PE_SRS_CC_SetIndex, element,
                      object({mask & 1 ? R"("cc-SetIndex":3)" : "", mask & 2 ? R"("cc-IndexInOneCC-Set":7)" : ""}));
    }
}

// Slot formats

TEST_F(servingCellLevel, SlotFormatIndicatorOptions)
{
    const auto record = cleared<RrcPdcchServingCellCfg_t>();
    record->bitMask = RRC_PDCCH_SERVING_CELL_CFG_SLOT_FORMATE_IND;
    record->slotFormatInd.sfiRnti = 65535;
    record->slotFormatInd.dciPayloadSize = 128;
    record->slotFormatInd.slotFormatCombAddMod[0] = *cellRecord(0, 0);
    record->slotFormatInd.servCellIdx[0] = 31;
    for (const unsigned mask : masks(2))
    {
        record->slotFormatInd.numSlotFormatCombAddMod = mask & 1;
        record->slotFormatInd.numSlotFormatCombRel = mask >> 1 & 1;
        PDCCH_ServingCellConfig element{};
        EXPECT_EQ(rrcComposePdcch_ServingCellCfgSetup(&context, &element, record.get()), VOS_OK);
        EXPECT_EQ(printed(), "");
        expectDecoded("PDCCH-ServingCellConfig", asn1PE_PDCCH_ServingCellConfig, element,
                      "{\"slotFormatIndicator\":{\"setup\":" +
                          object({R"("sfi-RNTI":65535,"dci-PayloadSize":128)",
                                  mask & 1 ? "\"slotFormatCombToAddModList\":[" + cellJson(0, 0) + "]" : "",
                                  mask & 2 ? R"("slotFormatCombToReleaseList":[31])" : ""}) +
                          "}}");
    }
}

TEST_F(servingCellLevel, SlotFormatCellCounts)
{
    const auto record = cleared<RrcSlotFormatInd_t>();
    record->dciPayloadSize = 1;
    for (RrcSlotFormatCombPerCell_t& cell : record->slotFormatCombAddMod)
    {
        cell = *cellRecord(1, 2);
    }
    std::iota(std::begin(record->servCellIdx), std::end(record->servCellIdx), UINT8{16});
    record->numSlotFormatCombAddMod = 16;
    record->numSlotFormatCombRel = 16;
    expectDecoded("SlotFormatIndicator", asn1PE_SlotFormatIndicator, slotFormatIndicator(*record),
                  object({R"("sfi-RNTI":0,"dci-PayloadSize":1)",
                          "\"slotFormatCombToAddModList\":" + array(16, [](unsigned) { return cellJson(1, 2); }),
                          "\"slotFormatCombToReleaseList\":" + numbers(16, 16)}));
    for (const unsigned count : {17U, 255U})
    {
        record->numSlotFormatCombAddMod = static_cast<UINT8>(count);
        record->numSlotFormatCombRel = 0;
        EXPECT_EQ(encode(asn1PE_SlotFormatIndicator, slotFormatIndicator(*record)),
                  "SlotFormatIndicator.slotFormatCombToAddModList: " + std::to_string(count) + " elements, not 1..16");
        record->numSlotFormatCombAddMod = 0;
        record->numSlotFormatCombRel = static_cast<UINT8>(count);
        EXPECT_EQ(encode(asn1PE_SlotFormatIndicator, slotFormatIndicator(*record)),
                  "SlotFormatIndicator.slotFormatCombToReleaseList: " + std::to_string(count) + " elements, not 1..16");
    }
}

TEST_F(servingCellLevel, SlotFormatPerCellOptions)
{
    for (const unsigned mask : masks(2))
    {
        const auto record = cellRecord(1, 1);
        record->bitMask = static_cast<UINT8>(mask);
        expectDecoded("SlotFormatCombinationsPerCell", asn1PE_SlotFormatCombinationsPerCell, perCell(*record),
                      object({R"("servingCellId":31,"subcarrierSpacing":"kHz120")",
                              mask & 1 ? R"("subcarrierSpacing2":"kHz240")" : "",
                              R"("slotFormatCombinations":[{"slotFormatCombinationId":0,"slotFormats":[0]}])",
                              mask & 2 ? R"("positionInDCI":127)" : ""}));
    }
}

TEST_F(servingCellLevel, CellWithoutCombinationsHasNoList)
{
    const auto record = cellRecord(0, 0);
    const SlotFormatCombinationsPerCell element = perCell(*record);
    EXPECT_EQ(element.m.slotFormatCombinationsPresent, 0U);
    expectDecoded("SlotFormatCombinationsPerCell", asn1PE_SlotFormatCombinationsPerCell, element, cellJson(0, 0));
}

TEST_F(servingCellLevel, SlotFormatCombinationCounts)
{
    expectDecoded("SlotFormatCombinationsPerCell", asn1PE_SlotFormatCombinationsPerCell, perCell(*cellRecord(512, 4)),
                  cellJson(512, 4));
    for (const unsigned count : {513U, 65535U})
    {
        EXPECT_EQ(encode(asn1PE_SlotFormatCombinationsPerCell, perCell(*cellRecord(static_cast<UINT16>(count), 1))),
                  "SlotFormatCombinationsPerCell.slotFormatCombinations: " + std::to_string(count) +
                      " elements, not 1..512");
    }
}

TEST_F(servingCellLevel, SlotFormatCounts)
{
    for (const unsigned count : {1U, 256U})
    {
        RrcSlotFormatComb_t record = cellRecord(1, static_cast<UINT16>(count))->SlotFormatComb[511];
        SlotFormatCombination element{};
        EXPECT_EQ(rrcComposeSlotFormatCombination(&element, &record), VOS_OK);
        expectDecoded("SlotFormatCombination", asn1PE_SlotFormatCombination, element, combinationJson(511, count));
    }
    for (const unsigned count : {0U, 257U, 65535U})
    {
        RrcSlotFormatComb_t record = cellRecord(1, static_cast<UINT16>(count))->SlotFormatComb[0];
        SlotFormatCombination element{};
        EXPECT_EQ(rrcComposeSlotFormatCombination(&element, &record), VOS_OK);
        EXPECT_EQ(encode(asn1PE_SlotFormatCombination, element),
                  "SlotFormatCombination.slotFormats: " + std::to_string(count) + " elements, not 1..256");
    }
}

TEST_F(servingCellLevel, As512CombinationsOf256Formats)
{
    const auto record = cellRecord(512, 256);
    const SlotFormatCombinationsPerCell element = perCell(*record);
    ASSERT_EQ(element.slotFormatCombinations.count, 512U);
    unsigned id = 0;
    for (const OSRTDListNode* node = element.slotFormatCombinations.head; node != nullptr; node = node->next, ++id)
    {
        const auto& combination = *static_cast<const SlotFormatCombination*>(node->data);
        ASSERT_EQ(combination.slotFormatCombinationId, id);
        ASSERT_EQ(combination.slotFormats.n, 256);
        ASSERT_TRUE(std::equal(std::begin(combination.slotFormats.elem), std::end(combination.slotFormats.elem),
                               std::begin(record->SlotFormatComb[id].slotsFormats)));
    }
    // 21 bits before the combinations, and for each 9 of its id, 8 of its count, 256 octets.
    constexpr std::size_t bits = 21 + 512 * (9 + 8 + 256 * 8);
    std::vector<OSOCTET> buffer(bits / 8 + 1);
    pu_setBuffer(&context, buffer.data(), buffer.size(), 0);
    EXPECT_EQ(asn1PE_SlotFormatCombinationsPerCell(&context, &element), 0);
    EXPECT_EQ(pu_getMsgLen(&context), buffer.size());
}

TEST_F(servingCellLevel, SlotFormatsCutShortByTheHeap)
{
    const auto record = cleared<RrcSlotFormatInd_t>();
    record->dciPayloadSize = 1;
    record->numSlotFormatCombAddMod = 2;
    record->numSlotFormatCombRel = 1;
    record->slotFormatCombAddMod[0] = *cellRecord(2, 1);
    record->slotFormatCombAddMod[1] = *cellRecord(2, 1);
    // Per cell its node and one for each of two combinations.
    const struct
    {
        unsigned cells;
        unsigned combinations; // of the last cell
    } built[] = {{0, 0}, {1, 0}, {1, 1}, {1, 2}, {2, 0}, {2, 1}};
    for (unsigned successes = 0; successes < 6; ++successes)
    {
        SlotFormatIndicator element{};
        {
            const HeapFault fault(successes);
            EXPECT_EQ(rrcComposeSlotFormatIndSetup(&context, &element, record.get()), VOS_OK);
        }
        // The combinations that cannot be built, then the cell behind them.
        EXPECT_EQ(printed(), successes == 1 || successes == 2 ? noNode + noNode : noNode);
        EXPECT_EQ(element.m.slotFormatCombToReleaseListPresent, 1U) << "the members behind are filled";
        ASSERT_EQ(element.slotFormatCombToAddModList.count, built[successes].cells);
        if (built[successes].cells != 0)
        {
            const auto& last = this->element<SlotFormatCombinationsPerCell>(element.slotFormatCombToAddModList,
                                                                            built[successes].cells - 1);
            EXPECT_EQ(last.slotFormatCombinations.count, built[successes].combinations);
        }
    }
}

TEST_F(servingCellLevel, SlotFormatMembersAreClearedFirst)
{
    const auto record = cleared<RrcPdcchServingCellCfg_t>();
    record->bitMask = RRC_PDCCH_SERVING_CELL_CFG_SLOT_FORMATE_IND;
    PDCCH_ServingCellConfig pdcch{};
    pdcch.slotFormatIndicator.t = T_PDCCH_ServingCellConfig_slotFormatIndicator_release;
    EXPECT_EQ(rrcComposePdcch_ServingCellCfgSetup(&context, &pdcch, record.get()), VOS_OK);
    EXPECT_EQ(pdcch.slotFormatIndicator.t, static_cast<OSUINT32>(T_PDCCH_ServingCellConfig_slotFormatIndicator_setup));

    const auto cell = cellRecord(1, 1);
    SlotFormatCombinationsPerCell twice{};
    EXPECT_EQ(rrcComposeslotFormatComb(&context, &twice, cell.get()), VOS_OK);
    EXPECT_EQ(rrcComposeslotFormatComb(&context, &twice, cell.get()), VOS_OK);
    EXPECT_EQ(twice.slotFormatCombinations.count, 1U);
}

// PDSCH

TEST_F(servingCellLevel, PdschOptions)
{
    for (const unsigned mask : masks(6))
    {
        expectDecoded("PDSCH-ServingCellConfig", asn1PE_PDSCH_ServingCellConfig, pdsch(pdschRecord(mask)),
                      object({mask & 0x01 ? R"("codeBlockGroupTransmission":{"setup":{)"
                                            R"("maxCodeBlockGroupsPerTransportBlock":"n6",)"
                                            R"("codeBlockGroupFlushIndicator":true}})"
                                          : "",
                              mask & 0x02 ? R"("xOverhead":"xOh12")" : "",
                              mask & 0x04 ? R"("nrofHARQ-ProcessesForPDSCH":"n16")" : "",
                              mask & 0x08 ? R"("pucch-Cell":31)" : "", mask & 0x10 ? R"("maxMIMO-Layers":8)" : "",
                              mask & 0x20 ? R"("processingType2Enabled":true)" : ""}));
    }
}

TEST_F(servingCellLevel, PdschLayersMarkTheirExtensionGroup)
{
    PDSCH_ServingCellConfig element = pdsch(pdschRecord(RRC_PDSCH_SERVING_CELL_CFG_MAX_MIMO_LAYERS));
    EXPECT_EQ(element.m._v2ExtPresent, 1U);
    EXPECT_EQ(element.m.maxMIMO_LayersPresent, 1U);
    EXPECT_EQ(element.m.processingType2EnabledPresent, 0U);
    EXPECT_EQ(element.maxMIMO_Layers, 8);
    element = pdsch(pdschRecord(RRC_PDSCH_SERVING_CELL_CFG_PROCESSING_TYPE2_ENABLED));
    EXPECT_EQ(element.m._v2ExtPresent, 1U);
    EXPECT_EQ(element.m.maxMIMO_LayersPresent, 0U);
    EXPECT_EQ(element.m.processingType2EnabledPresent, 1U);
    EXPECT_EQ(pdsch(pdschRecord(0xCF)).m._v2ExtPresent, 0U);
}

TEST_F(servingCellLevel, PdschBoolsAreTheirLowOctet)
{
    const struct
    {
        BOOL value;
        const char* json;
    } cases[] = {{0, "false"}, {1, "true"}, {256, "false"}, {257, "true"}};
    for (const auto& [value, json] : cases)
    {
        RrcPdschServingCellCfg_t record = pdschRecord(0x21);
        record.codeBlockGroupTransmission.codeBlockGroupFlushInd = value;
        record.Type2Enabled = value;
        expectDecoded("PDSCH-ServingCellConfig", asn1PE_PDSCH_ServingCellConfig, pdsch(record),
                      std::string(R"({"codeBlockGroupTransmission":{"setup":{)") +
                          R"("maxCodeBlockGroupsPerTransportBlock":"n6","codeBlockGroupFlushIndicator":)" + json +
                          R"(}},"processingType2Enabled":)" + json + "}");
    }
}

TEST_F(servingCellLevel, RecordOrder)
{
    using Pusch = RrcPuschServingCellCfg_t;
    static_assert(rising({offsetof(Pusch, bitMask), offsetof(Pusch, codeBlockGroupTransmission),
                          offsetof(Pusch, rateMatching), offsetof(Pusch, xOverhead)}));
    using Switching = RrcSrsCarrierSwitching_t;
    static_assert(rising({offsetof(Switching, bitMask), offsetof(Switching, srsSwitchFromServCellIdx),
                          offsetof(Switching, SwitchFromCarrier), offsetof(Switching, presence),
                          offsetof(Switching, srsTpcPdcchGroup), offsetof(Switching, RrcmonitoringCells)}));
    static_assert(rising({offsetof(struct typeA_s, num), offsetof(struct typeA_s, cfg)}));
    static_assert(
        rising({offsetof(struct RrcmonitoringCells_s, num), offsetof(struct RrcmonitoringCells_s, monitoringCells)}));
    static_assert(rising({offsetof(RrcSrsTpcPdcchCfg_t, num), offsetof(RrcSrsTpcPdcchCfg_t, srsCcSetIdx)}));
    using Index = struct srsCcSetIdx_s;
    static_assert(rising({offsetof(Index, bitMask), offsetof(Index, ccSetIdx), offsetof(Index, ccIdxInOneCcSet)}));
    static_assert(
        rising({offsetof(RrcPdcchServingCellCfg_t, bitMask), offsetof(RrcPdcchServingCellCfg_t, slotFormatInd)}));
    using Slot = RrcSlotFormatInd_t;
    static_assert(rising({offsetof(Slot, sfiRnti), offsetof(Slot, dciPayloadSize),
                          offsetof(Slot, numSlotFormatCombAddMod), offsetof(Slot, slotFormatCombAddMod),
                          offsetof(Slot, numSlotFormatCombRel), offsetof(Slot, servCellIdx)}));
    using Cell = RrcSlotFormatCombPerCell_t;
    static_assert(rising({offsetof(Cell, servingCellIdx), offsetof(Cell, subCarrierSpacing),
                          offsetof(Cell, numSlotFormatComb), offsetof(Cell, SlotFormatComb), offsetof(Cell, bitMask),
                          offsetof(Cell, subCarrierSpacing2), offsetof(Cell, positionInDci)}));
    using Comb = RrcSlotFormatComb_t;
    static_assert(
        rising({offsetof(Comb, slotFormatCombId), offsetof(Comb, numSlotFormat), offsetof(Comb, slotsFormats)}));
    using Pdsch = RrcPdschServingCellCfg_t;
    static_assert(rising({offsetof(Pdsch, bitMask), offsetof(Pdsch, codeBlockGroupTransmission),
                          offsetof(Pdsch, xOverHead), offsetof(Pdsch, nrofHarqProcessForPDSCH),
                          offsetof(Pdsch, cellIdx), offsetof(Pdsch, maxMIMO_Layer), offsetof(Pdsch, Type2Enabled)}));
    using Group = struct codeBlockGroupTransmission_s;
    static_assert(
        rising({offsetof(Group, maxCodeBlockGroupsPerTransportBlock), offsetof(Group, codeBlockGroupFlushInd)}));
}
