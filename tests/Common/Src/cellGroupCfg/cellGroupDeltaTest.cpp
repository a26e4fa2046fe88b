// The message that takes a UE from one record to the next: rrcComposeCellGroupDelta.

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "cellGroupDeltas.h"
#include "encodeCellGroupInC.h"
#include "rrcCodec/rrcCompose.h"
#include "support/ComposerTest.h"

using test::HeapFault;
using testing::HasSubstr;
using testing::StartsWith;

namespace
{

constexpr UINT8 guard = 0xA5;
constexpr UINT32 noLength = 0xDEADBEEF;

class cellGroupDelta : public test::ComposerTest
{
protected:
    cellGroupDelta() : prev(cleared<RrcCellGroupCfg_t>()), next(cleared<RrcCellGroupCfg_t>()), octets(8192 + 64, guard)
    {
        secondaryCells(*prev);
        *next = *prev;
    }

    INT32 composeFrom(RrcCellGroupCfg_t* from)
    {
        std::fill(octets.begin(), octets.end(), guard);
        message = {noLength, octets.data()};
        return rrcComposeCellGroupDelta(from, next.get(), &message);
    }

    std::string delta()
    {
        const INT32 result = composeFrom(prev.get());
        EXPECT_EQ(printed(), "");
        return result == VOS_OK ? test::hexDigits(octets.data(), message.bufLen) : "result " + std::to_string(result);
    }

    // The entry's message of a record.
    static std::string whole(RrcCellGroupCfg_t& record)
    {
        std::vector<UINT8> all(8192);
        Mbuf_t buffer = {0, all.data()};
        EXPECT_EQ(rrcComposeCellGroupCfg(&record, &buffer), VOS_OK);
        return test::hexDigits(all.data(), buffer.bufLen);
    }

    // -1 with these lines; nothing is said to have been written.
    void expectRefused(RrcCellGroupCfg_t* from, const std::string& lines)
    {
        EXPECT_EQ(composeFrom(from), VOS_ERROR);
        EXPECT_EQ(printed(), lines);
        EXPECT_EQ(message.bufLen, noLength);
    }

    std::unique_ptr<RrcCellGroupCfg_t> prev;
    std::unique_ptr<RrcCellGroupCfg_t> next;
    std::vector<UINT8> octets;
    Mbuf_t message = {};
};

} // namespace

TEST_F(cellGroupDelta, ABearerAddedIsSentAlone)
{
    addBearer(*next);
    const auto alone = cleared<RrcCellGroupCfg_t>();
    rrcInit(alone.get());
    alone->rlcBearerAddModNum = 1;
    alone->rlcBearerCfg[0] = next->rlcBearerCfg[1];
    EXPECT_EQ(delta(), whole(*alone));
}

TEST_F(cellGroupDelta, AReportIsSentWithWhatItsAbsenceWouldClear)
{
    changeReport(*next);
    // Need M: reportConfigId's siblings that stay are not repeated; all members of a CSI-ReportConfig that are Need R
    // or S, or mandatory, are; around it tag-Id is mandatory.
    expectDecoded("CellGroupConfig", delta(),
                  R"({"cellGroupId":0,"spCellConfig":{"spCellConfigDedicated":{"csi-MeasConfig":{"setup":{)"
                  R"("csi-ReportConfigToAddModList":[{"reportConfigId":0,"resourcesForChannelMeasurement":0,)"
                  R"("csi-IM-ResourcesForInterference":1,"reportConfigType":{"periodic":{"reportSlotConfig":)"
                  R"({"slots160":9},"pucch-CSI-ResourceList":[{"uplinkBandwidthPartId":1,"pucch-Resource":7}]}},)"
                  R"("reportQuantity":{"cri-RI-PMI-CQI":null},"reportFreqConfiguration":{"cqi-FormatIndicator":)"
                  R"("widebandCQI","pmi-FormatIndicator":"widebandPMI"},"timeRestrictionForChannelMeasurements":)"
                  R"("notConfigured","timeRestrictionForInterferenceMeasurements":"notConfigured","codebookConfig":)"
                  R"({"codebookType":{"type1":{"subType":{"typeI-SinglePanel":{"nrOfAntennaPorts":{"moreThanTwo":)"
                  R"({"n1-n2":{"two-one-TypeI-SinglePanel-Restriction":"11111111"}}},)"
                  R"("typeI-SinglePanel-ri-Restriction":"00000011"}},"codebookMode":1}}},)"
                  R"("groupBasedBeamReporting":{"disabled":{}},"cqi-Table":"table2","subbandSize":"value2"}]}},)"
                  R"("tag-Id":0}}})");
}

TEST_F(cellGroupDelta, AnSCellThatIsGoneIsReleased)
{
    releaseSCell(*next);
    // Not extended, sCellToReleaseList alone of seven, cellGroupId 0; one element, counted from 1 in 5 bits: 3
    // of 1..31.
    expectDecoded("CellGroupConfig", delta(), R"({"cellGroupId":0,"sCellToReleaseList":[3]})");
    EXPECT_EQ(delta(), "010020");
}

TEST_F(cellGroupDelta, WithoutAChangeThereIsNothingToSend)
{
    const auto before = std::make_unique<RrcCellGroupCfg_t>(*prev);
    EXPECT_EQ(composeFrom(prev.get()), RRC_COMPOSE_NOTHING_TO_SEND);
    EXPECT_EQ(message.bufLen, 0U);
    EXPECT_EQ(printed(), "");
    EXPECT_TRUE(std::all_of(octets.begin(), octets.end(), [](UINT8 octet) { return octet == guard; }));
    EXPECT_EQ(std::memcmp(before.get(), prev.get(), sizeof *prev), 0) << "only read";
    EXPECT_EQ(std::memcmp(before.get(), next.get(), sizeof *next), 0) << "only read";

    // A handover that is over is not said again, and not taken back.
    typicalCall(*prev);
    *next = *prev;
    next->spCellCfg.bitMask ^= RRC_SPCELLCFG_RECFG_PRESENCE;
    EXPECT_EQ(composeFrom(prev.get()), RRC_COMPOSE_NOTHING_TO_SEND) << printed();
}

TEST_F(cellGroupDelta, AUeWithNothingGetsAll)
{
    EXPECT_EQ(composeFrom(nullptr), VOS_OK);
    EXPECT_EQ(test::hexDigits(octets.data(), message.bufLen), whole(*next));
    EXPECT_EQ(printed(), "");
}

TEST_F(cellGroupDelta, WhatNoDeltaBringsIsSaidWithItsPathAndWhatCouldBeReleased)
{
    RrcRlcCfg_t& rlc = next->rlcBearerCfg[0].rlcCfg;
    rlc = {};
    rlc.bitMask = RRC_RLCCFG_UM_BI_PRESENCE;
    expectRefused(
        prev.get(),
        "rrcComposeCellGroupDelta Error\r\n"
        "CellGroupConfig.rlc-BearerToAddModList[logicalChannelIdentity 4].rlc-Config: refused: "
        "Cond LCH-Setup: its alternative is settled when its entry is created; "
        "CellGroupConfig.rlc-BearerToAddModList[logicalChannelIdentity 4] can be released and set up again\n");
    *next = *prev;
    next->cellGroupId = 1;
    expectRefused(prev.get(), "rrcComposeCellGroupDelta Error\r\n"
                              "CellGroupConfig.cellGroupId: refused: another cell group; "
                              "nothing around it can be released\n");
    *next = *prev;
    next->rlcBearerAddModNum = 2;
    rrcInit(&next->rlcBearerCfg[1]);
    next->rlcBearerCfg[1].lchId = 5;
    expectRefused(prev.get(), "rrcComposeCellGroupDelta Error\r\n"
                              "CellGroupConfig.rlc-BearerToAddModList[logicalChannelIdentity 5].servedRadioBearer: "
                              "refused: Cond LCH-SetupOnly: the creation of its entry asks for it, and it is absent; "
                              "nothing around it can be released\n");
}

TEST_F(cellGroupDelta, ARecordThatCannotBeSentIsNamed)
{
    prev->cellGroupId = 9;
    const std::string line = "CellGroupConfig.cellGroupId: 9 is not in 0..3\n";
    expectRefused(prev.get(), "rrcComposeCellGroupDelta prev Error\r\n" + line);
    next->cellGroupId = 9;
    expectRefused(nullptr, "rrcComposeCellGroupDelta next Error\r\n" + line);
    prev->cellGroupId = 0;
    expectRefused(prev.get(), "rrcComposeCellGroupDelta next Error\r\n" + line);

    next->cellGroupId = 0;
    next->sCellAddModNum = 4;
    expectRefused(prev.get(), "sCellAddModNum: 4 is not in 0..3\r\nrrcComposeCellGroupDelta next Error\r\n");
    expectRefused(next.get(), "sCellAddModNum: 4 is not in 0..3\r\nrrcComposeCellGroupDelta prev Error\r\n");
    EXPECT_EQ(next->sCellAddModNum, 4) << "only read";
}

TEST_F(cellGroupDelta, ArgumentsAreChecked)
{
    EXPECT_EQ(rrcComposeCellGroupDelta(prev.get(), nullptr, &message), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeCellGroupDelta", "next"));
    EXPECT_EQ(rrcComposeCellGroupDelta(prev.get(), next.get(), nullptr), VOS_ERROR);
    EXPECT_EQ(printed(), nullLine("rrcComposeCellGroupDelta", "pBuf"));
    message = {noLength, nullptr};
    releaseSCell(*next);
    EXPECT_EQ(rrcComposeCellGroupDelta(prev.get(), next.get(), &message), VOS_ERROR);
    EXPECT_THAT(printed(), StartsWith("rrcComposeCellGroupDelta Error\r\n"));
    EXPECT_EQ(message.bufLen, noLength);
}

TEST_F(cellGroupDelta, KeepsToTheBuffer)
{
    reconfigurationWithSync(*next);
    next->rlcBearerAddModNum = 32;
    RrcUlSpecificParaCfg_t& uplink = next->rlcBearerCfg[0].macLchCfg.ulSpecificParaCfg;
    uplink.bitMask |= RRC_UL_SPECIFICPARA_SERVING_CELL_CFG_PRESENCE;
    uplink.allowedCellNum = 31;
    std::fill(std::begin(next->rlcBearerCfg), std::end(next->rlcBearerCfg), next->rlcBearerCfg[0]);
    for (UINT8 i = 0; i < 32; ++i)
    {
        next->rlcBearerCfg[i].lchId = static_cast<UINT8>(i + 1);
    }
    RrcCfra_t& cfra = next->spCellCfg.recfgWithSync.choice.uplink.cfra;
    cfra.bitMask = RRC_SCIS_RESOURCE;
    cfra.resources.scirs = {};
    cfra.resources.scirs.numCsirsRecouces = RRC_MAX_RA_CSIRS_RESOURCES;
    for (RrcCsirsResource_t& resource : cfra.resources.scirs.csirsResource)
    {
        resource.numRaOccasion = 64;
    }
    EXPECT_EQ(composeFrom(nullptr), VOS_ERROR);
    const std::string lines = printed();
    EXPECT_THAT(lines, StartsWith("rrcComposeCellGroupDelta Error\r\n"));
    EXPECT_THAT(lines, HasSubstr("the encoding does not fit into 8192 octets"));
    EXPECT_EQ(message.bufLen, noLength);
    EXPECT_TRUE(std::all_of(octets.begin() + 8192, octets.end(), [](UINT8 octet) { return octet == guard; }));
}

TEST_F(cellGroupDelta, AnExhaustedHeapIsNeverSuccess)
{
    releaseSCell(*next);
    for (unsigned successes = 0;; ++successes)
    {
        const HeapFault fault(successes);
        const INT32 result = composeFrom(prev.get());
        const std::string lines = printed();
        if (!HeapFault::struck())
        {
            EXPECT_EQ(result, VOS_OK);
            EXPECT_GT(successes, 200U);
            break;
        }
        ASSERT_EQ(result, VOS_ERROR) << successes;
        ASSERT_THAT(lines, HasSubstr(" Error\r\n"));
        ASSERT_EQ(message.bufLen, noLength);
    }
}

TEST_F(cellGroupDelta, ARefusalWithoutAHeapIsARefusalAllTheSame)
{
    next->rlcBearerCfg[0].rbId = 2;
    for (unsigned successes = 0;; ++successes)
    {
        const HeapFault fault(successes);
        ASSERT_EQ(composeFrom(prev.get()), VOS_ERROR) << successes;
        const std::string lines = printed();
        ASSERT_THAT(lines, HasSubstr(" Error\r\n"));
        if (!HeapFault::struck())
        {
            EXPECT_THAT(lines, HasSubstr("servedRadioBearer: refused: "));
            break;
        }
    }
}

TEST_F(cellGroupDelta, InC)
{
    releaseSCell(*next);
    size_t length = 0;
    EXPECT_EQ(deltaInC(prev.get(), next.get(), octets.data(), &length), 0);
    EXPECT_EQ(test::hexDigits(octets.data(), length), "010020");
    EXPECT_EQ(deltaInC(next.get(), next.get(), octets.data(), &length), RRC_COMPOSE_NOTHING_TO_SEND);
    EXPECT_EQ(length, 0U);
}
