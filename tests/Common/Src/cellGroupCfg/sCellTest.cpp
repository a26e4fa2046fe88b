#include "cellGroupCfg/sCell.h"

#include <cstring>
#include <string>

#include "NR-RRC-Pdus.h"
#include "servingCellRecords.h"
#include "support/ComposerTest.h"
#include "support/Json.h"

using test::fillServingCell;
using test::HeapFault;
using test::masks;
using test::object;
using test::servingCellJson;

namespace
{

const std::string noNode = "pNode Or pItem is NULL\r\n";

class sCell : public test::ComposerTest
{
protected:
    // Three secondary cells, the index of each given, with everything that bitMask asks for.
    void fill(unsigned bitMask)
    {
        for (unsigned i = 0; i < MAX_NROF_SCellS; ++i)
        {
            RrcScellCfg_t& cell = record->sCellAddMod[i];
            cell.scellIdx = static_cast<UINT8>(indexes[i]);
            cell.bitMask = static_cast<UINT8>(bitMask);
            cell.sCellCfgCommn.bitMask = RRC_PHY_SCELL_Id;
            cell.sCellCfgCommn.pci = static_cast<UINT16>(1007 - i);
            fillServingCell(cell.sCellCfgDedi, RRC_SERVING_CELL_SERVING_CELL_MO_PRESENCE, i);
            cell.smtc.padding = 0xFF;
        }
    }

    static std::string cellJson(unsigned bitMask, unsigned i)
    {
        return object({"\"sCellIndex\":" + std::to_string(indexes[i]),
                       bitMask & RRC_SCELLADDMOD_CELLCOMMON_PRESENCE
                           ? "\"sCellConfigCommon\":{\"physCellId\":" + std::to_string(1007 - i) +
                                 R"(,"dmrs-TypeA-Position":"pos2","ss-PBCH-BlockPower":0})"
                           : "",
                       bitMask & RRC_SCELLADDMOD_CELLDEDI_PRESENCE
                           ? "\"sCellConfigDedicated\":" + servingCellJson(RRC_SERVING_CELL_SERVING_CELL_MO_PRESENCE, i)
                           : ""});
    }

    INT32 composeList(CellGroupConfig_sCellToAddModList& list)
    {
        list = {};
        return rrcComposeCellGroupCfg_sCellToAddMod(&context, &list, record.get());
    }

    // The list inside a cell group, as the independent decoder sees it.
    void expectList(CellGroupConfig_sCellToAddModList& list, const std::string& json)
    {
        const auto tree = cleared<CellGroupConfig>();
        tree->m.sCellToAddModListPresent = 1;
        tree->sCellToAddModList = list;
        expectDecoded("CellGroupConfig", asn1PE_CellGroupConfig, *tree,
                      "{\"cellGroupId\":0,\"sCellToAddModList\":" + json + "}");
    }

    CellGroupConfig_sCellToReleaseList released(unsigned count)
    {
        record->sCellReleaseNum = static_cast<UINT8>(count);
        CellGroupConfig_sCellToReleaseList list{};
        EXPECT_EQ(rrcComposeCellGroupCfg_sCellToRel(&list, record.get()), VOS_OK);
        EXPECT_EQ(printed(), "");
        return list;
    }

    static constexpr unsigned indexes[] = {31, 1, 17};
    std::unique_ptr<RrcCellGroupCfg_t> record = cleared<RrcCellGroupCfg_t>();
};

} // namespace

// One secondary cell

TEST_F(sCell, PartsNoneEachAloneAndBoth)
{
    for (const unsigned mask : masks(2))
    {
        fill(mask);
        const auto item = cleared<SCellConfig>();
        EXPECT_EQ(rrcCompose_sCellToAddModItem(&context, item.get(), &record->sCellAddMod[1]), VOS_OK);
        EXPECT_EQ(printed(), "");
        expectDecoded("SCellConfig", asn1PE_SCellConfig, *item, cellJson(mask, 1));
    }
}

TEST_F(sCell, MeasurementTimingIsNotLookedAt)
{
    for (const unsigned mask : {0U, 1U, 2U, 3U})
    {
        fill(mask);
        const auto without = cleared<SCellConfig>();
        EXPECT_EQ(rrcCompose_sCellToAddModItem(&context, without.get(), &record->sCellAddMod[0]), VOS_OK);
        record->sCellAddMod[0].bitMask |= RRC_SCELLADDMOD_SMTC_PRESENCE;
        const auto item = cleared<SCellConfig>();
        EXPECT_EQ(rrcCompose_sCellToAddModItem(&context, item.get(), &record->sCellAddMod[0]), VOS_OK);
        EXPECT_EQ(item->m.smtcPresent, 0U);
        EXPECT_EQ(item->m._v2ExtPresent, 0U);
        expectDecoded("SCellConfig", asn1PE_SCellConfig, *item, cellJson(mask, 0));
        EXPECT_EQ(std::memcmp(item.get(), without.get(), sizeof *item), 0);
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(sCell, WithoutAnyPartOnlyTheIndexIsThere)
{
    fill(RRC_SCELLADDMOD_SMTC_PRESENCE);
    const auto item = cleared<SCellConfig>();
    EXPECT_EQ(rrcCompose_sCellToAddModItem(&context, item.get(), &record->sCellAddMod[0]), VOS_OK);
    EXPECT_EQ(item->sCellIndex, 31);
    item->sCellIndex = 0;
    const auto none = cleared<SCellConfig>();
    EXPECT_EQ(std::memcmp(item.get(), none.get(), sizeof *none), 0);
}

TEST_F(sCell, IndexIsLeftToTheEncoder)
{
    for (const unsigned index : {0U, 1U, 31U, 32U, 255U})
    {
        record->sCellAddMod[0].scellIdx = static_cast<UINT8>(index);
        SCellConfig item{};
        EXPECT_EQ(rrcCompose_sCellToAddModItem(&context, &item, &record->sCellAddMod[0]), VOS_OK);
        const std::string encoded = encode(asn1PE_SCellConfig, item);
        if (index < 1 || index > 31)
        {
            EXPECT_EQ(encoded, "SCellConfig.sCellIndex: " + std::to_string(index) + " is not in 1..31");
        }
        else
        {
            EXPECT_EQ(encoded.find(' '), std::string::npos) << encoded;
        }
    }
}

TEST_F(sCell, FailingCommonPartIsNotSeen)
{
    fill(3);
    record->sCellAddMod[0].sCellCfgCommn.numRateMatchPatternAddMod = 1;
    const auto item = cleared<SCellConfig>();
    {
        const HeapFault fault(0);
        EXPECT_EQ(rrcCompose_sCellToAddModItem(&context, item.get(), &record->sCellAddMod[0]), VOS_OK);
    }
    EXPECT_EQ(printed(), "pNode Or pRateMatchPatItem is NULL\r\n");
    EXPECT_EQ(item->m.sCellConfigCommonPresent, 1U);
    EXPECT_EQ(item->sCellConfigCommon.physCellId, 1007);
    EXPECT_EQ(item->m.sCellConfigDedicatedPresent, 1U);
    EXPECT_EQ(encode(asn1PE_SCellConfig, *item),
              "SCellConfig.sCellConfigCommon.rateMatchPatternToAddModList: 0 elements, not 1..4");
}

TEST_F(sCell, FailingDedicatedPartFailsTheCell)
{
    fill(3);
    record->sCellAddMod[0].sCellCfgDedi.numDlBwpAddMod = 1;
    const auto item = cleared<SCellConfig>();
    const HeapFault fault(0);
    EXPECT_EQ(rrcCompose_sCellToAddModItem(&context, item.get(), &record->sCellAddMod[0]), VOS_ERROR);
    EXPECT_EQ(printed(), noNode + "rrcComposedownlinkBWP_ToADDMod Error\r\nrrcComposespCellConfigDedicated Error\r\n");
    EXPECT_EQ(item->sCellIndex, 31);
    EXPECT_EQ(item->m.sCellConfigCommonPresent, 1U);
    EXPECT_EQ(item->m.sCellConfigDedicatedPresent, 1U);
}

// Cells to add or modify

TEST_F(sCell, ListKeepsTheOrderOfTheRecord)
{
    fill(3);
    for (const unsigned count : {0U, 1U, 2U, 3U})
    {
        record->sCellAddModNum = static_cast<UINT8>(count);
        CellGroupConfig_sCellToAddModList list;
        EXPECT_EQ(composeList(list), VOS_OK);
        EXPECT_EQ(list.count, count);
        EXPECT_EQ(record->sCellAddModNum, count);
        if (count != 0)
        {
            expectList(list, test::array(count, [](unsigned i) { return cellJson(3, i); }));
        }
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(sCell, CountAboveThreeIsCutInTheRecordToo)
{
    for (const unsigned count : {4U, 5U, 255U})
    {
        fill(0);
        record->sCellAddModNum = static_cast<UINT8>(count);
        record->sCellReleaseNum = static_cast<UINT8>(count);
        const auto before = cleared<RrcCellGroupCfg_t>();
        std::memcpy(before.get(), record.get(), sizeof *record);
        CellGroupConfig_sCellToAddModList list;
        EXPECT_EQ(composeList(list), VOS_OK);
        EXPECT_EQ(list.count, 3U);
        expectList(list, test::array(3, [](unsigned i) { return cellJson(0, i); }));
        EXPECT_EQ(record->sCellAddModNum, 3);
        before->sCellAddModNum = 3;
        EXPECT_EQ(std::memcmp(before.get(), record.get(), sizeof *record), 0) << "nothing else is written";
    }
    EXPECT_EQ(printed(), "");
}

TEST_F(sCell, CountIsCutAlsoWhenTheListFails)
{
    record->sCellAddModNum = 5;
    CellGroupConfig_sCellToAddModList list;
    const HeapFault fault(0);
    EXPECT_EQ(composeList(list), VOS_ERROR);
    EXPECT_EQ(printed(), noNode);
    EXPECT_EQ(record->sCellAddModNum, 3);
}

TEST_F(sCell, ListWithoutHeapForEachRequest)
{
    // Each cell takes a node, a rate match pattern (its node and its bitmaps) and a bandwidth part's node.
    fill(3);
    record->sCellAddModNum = 3;
    for (RrcScellCfg_t& cell : record->sCellAddMod)
    {
        cell.sCellCfgCommn.numRateMatchPatternAddMod = 1;
        cell.sCellCfgCommn.rateMatchPatternToAddMod[0].Presence = RRC_PATTERN_TYPE_SETID;
        cell.sCellCfgDedi.numDlBwpAddMod = 1;
    }
    const std::string dedicatedError = noNode + "rrcComposedownlinkBWP_ToADDMod Error\r\n"
                                                "rrcComposespCellConfigDedicated Error\r\n"
                                                "rrcCompose_sCellToAddMod is Error\r\n";
    const std::string lines[] = {noNode, "pNode Or pRateMatchPatItem is NULL\r\n" + dedicatedError, dedicatedError,
                                 dedicatedError};
    for (unsigned successes = 0; successes <= 12; ++successes)
    {
        CellGroupConfig_sCellToAddModList list;
        INT32 result = VOS_OK;
        {
            const HeapFault fault(successes);
            result = composeList(list);
            EXPECT_EQ(HeapFault::struck(), successes < 12);
        }
        EXPECT_EQ(result, successes < 12 ? VOS_ERROR : VOS_OK);
        EXPECT_EQ(printed(), successes < 12 ? lines[successes % 4] : "") << successes;
        EXPECT_EQ(list.count, successes / 4) << "the cells before stay, the failed one is not appended";
    }
}

// Cells to release

TEST_F(sCell, ReleaseListKeepsTheOrderOfTheRecord)
{
    const std::string ids[] = {"[1]", "[1,4]", "[1,4,31]"};
    for (unsigned count = 1; count <= 3; ++count)
    {
        record->sCellIdx[0] = 1;
        record->sCellIdx[1] = 4;
        record->sCellIdx[2] = 31;
        const auto tree = cleared<CellGroupConfig>();
        tree->m.sCellToReleaseListPresent = 1;
        tree->sCellToReleaseList = released(count);
        expectDecoded("CellGroupConfig", asn1PE_CellGroupConfig, *tree,
                      "{\"cellGroupId\":0,\"sCellToReleaseList\":" + ids[count - 1] + "}");
        EXPECT_EQ(record->sCellReleaseNum, count);
    }
    EXPECT_EQ(released(0).n, 0);
}

TEST_F(sCell, ReleaseCountAboveThreeHasClearedEntriesWhichTheEncoderRefuses)
{
    for (const unsigned count : {4U, 5U, 31U, 32U, 255U})
    {
        record->sCellIdx[0] = 31;
        record->sCellIdx[1] = 4;
        record->sCellIdx[2] = 1;
        record->reportUplinkTxDirect = -1; // lies behind the record's entries
        const auto tree = cleared<CellGroupConfig>();
        tree->m.sCellToReleaseListPresent = 1;
        tree->sCellToReleaseList = released(count);
        EXPECT_EQ(tree->sCellToReleaseList.n, count);
        CellGroupConfig_sCellToReleaseList expected{};
        expected.n = static_cast<UINT8>(count);
        expected.elem[0] = 31;
        expected.elem[1] = 4;
        expected.elem[2] = 1;
        EXPECT_EQ(std::memcmp(&tree->sCellToReleaseList, &expected, sizeof expected), 0);
        EXPECT_EQ(record->sCellReleaseNum, count) << "this count is not cut";
        EXPECT_EQ(encode(asn1PE_CellGroupConfig, *tree),
                  count <= 31
                      ? "CellGroupConfig.sCellToReleaseList[3]: 0 is not in 1..31"
                      : "CellGroupConfig.sCellToReleaseList: " + std::to_string(count) + " elements, not 1..31");
    }
}

TEST_F(sCell, ReleasedIndexesAreLeftToTheEncoder)
{
    for (const unsigned index : {0U, 32U, 255U})
    {
        record->sCellIdx[0] = 1;
        record->sCellIdx[1] = static_cast<UINT8>(index);
        const auto tree = cleared<CellGroupConfig>();
        tree->m.sCellToReleaseListPresent = 1;
        tree->sCellToReleaseList = released(2);
        EXPECT_EQ(encode(asn1PE_CellGroupConfig, *tree),
                  "CellGroupConfig.sCellToReleaseList[1]: " + std::to_string(index) + " is not in 1..31");
    }
}
