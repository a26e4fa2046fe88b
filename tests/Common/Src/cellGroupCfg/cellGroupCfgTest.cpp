#include "rrcCodec/rrcCodec.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <type_traits>
#include <vector>

#include "oneBearer.h"
#include "support/ComposerTest.h"
#include "support/RecordOrder.h"

extern "C" int __real_rtxInitContext(OSCTXT* pctxt);
extern "C" int __wrap_rtxInitContext(OSCTXT* pctxt);
extern "C" void __real_rtFreeContext(OSCTXT* pctxt);
extern "C" void __wrap_rtFreeContext(OSCTXT* pctxt);
extern "C" int __real_asn1PE_CellGroupConfig(OSCTXT* pctxt, const CellGroupConfig* pvalue);
extern "C" int __wrap_asn1PE_CellGroupConfig(OSCTXT* pctxt, const CellGroupConfig* pvalue);

using test::HeapFault;
using test::rising;
using testing::Each;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace
{

thread_local bool refuseContexts = false;
thread_local unsigned freedContexts = 0;
thread_local std::function<void(const CellGroupConfig&)> seeTree;

constexpr UINT32 noLength = 0xDEADBEEF;
constexpr UINT8 guard = 0xA5;
constexpr size_t bufferSize = 8192;

class cellGroupCfg : public test::ComposerTest
{
protected:
    cellGroupCfg() : record(cleared<RrcCellGroupCfg_t>()), octets(bufferSize + 64, guard) {}
    ~cellGroupCfg() override
    {
        seeTree = nullptr;
    }

    INT32 compose()
    {
        std::fill(octets.begin(), octets.end(), guard);
        message = {noLength, octets.data()};
        freedContexts = 0;
        return rrcComposeCellGroupCfg(record.get(), &message);
    }

    // The octets that the entry writes are the ones of the tree that the independent decoder gets.
    void expectMessage(const std::string& json)
    {
        ASSERT_EQ(compose(), VOS_OK) << printed();
        EXPECT_EQ(printed(), "");
        EXPECT_EQ(freedContexts, 1U);
        ASSERT_LE(message.bufLen, bufferSize);
        EXPECT_THAT(std::vector<UINT8>(octets.begin() + message.bufLen, octets.end()), Each(guard));
        CellGroupConfig tree;
        decode(tree);
        expectDecoded("CellGroupConfig", asn1PE_CellGroupConfig, tree, json);
        std::string hex;
        for (UINT32 i = 0; i < message.bufLen; ++i)
        {
            hex += "0123456789abcdef"[octets[i] >> 4];
            hex += "0123456789abcdef"[octets[i] & 15];
        }
        EXPECT_EQ(hex, encode(asn1PE_CellGroupConfig, tree));
    }

    void decode(CellGroupConfig& tree)
    {
        ASSERT_EQ(pu_setBuffer(&context, octets.data(), message.bufLen, 0), 0);
        ASSERT_EQ(asn1PD_CellGroupConfig(&context, &tree), 0);
    }

    // Fails before anything is encoded.
    void expectNoMessage(const std::string& lines, unsigned freed = 1)
    {
        EXPECT_EQ(compose(), VOS_ERROR);
        EXPECT_EQ(printed(), lines);
        EXPECT_EQ(freedContexts, freed);
        EXPECT_EQ(message.bufLen, noLength);
        EXPECT_EQ(message.buf, octets.data());
        EXPECT_THAT(octets, Each(guard));
    }

    // Is refused by the encoder.
    void expectRefused(const std::string& line)
    {
        EXPECT_EQ(compose(), VOS_ERROR) << line;
        const std::string lines = printed();
        EXPECT_THAT(lines, StartsWith("rrcComposeCellGroupCfg Error\r\n" + line + "\n"));
        EXPECT_THAT(lines, HasSubstr("\nCELL GROUP"));
        EXPECT_EQ(freedContexts, 1U) << line;
        EXPECT_EQ(message.bufLen, noLength) << line;
        EXPECT_THAT(std::vector<UINT8>(octets.begin() + bufferSize, octets.end()), Each(guard)) << line;
    }

    std::unique_ptr<RrcCellGroupCfg_t> record;
    std::vector<UINT8> octets;
    Mbuf_t message{};
};

const std::string oneBearerJson =
    R"({"cellGroupId":0,"rlc-BearerToAddModList":[{"logicalChannelIdentity":4,"servedRadioBearer":{"drb-Identity":1},)"
    R"("rlc-Config":{"am":{"ul-AM-RLC":{"sn-FieldLength":"size18","t-PollRetransmit":"ms45","pollPDU":"p32","pollByte":"infinity",)"
    R"("maxRetxThreshold":"t32"},"dl-AM-RLC":{"sn-FieldLength":"size18","t-Reassembly":"ms40","t-StatusProhibit":"ms15"}}},)"
    R"("mac-LogicalChannelConfig":{"ul-SpecificParameters":{"priority":8,"prioritisedBitRate":"infinity","bucketSizeDuration":"ms100",)"
    R"("logicalChannelGroup":1,"schedulingRequestID":0,"logicalChannelSR-Mask":false,"logicalChannelSR-DelayTimerApplied":false}}}],)"
    R"("mac-CellGroupConfig":{"drx-Config":{"setup":{"drx-onDurationTimer":{"milliSeconds":"ms10"},"drx-InactivityTimer":"ms100",)"
    R"("drx-HARQ-RTT-TimerDL":56,"drx-HARQ-RTT-TimerUL":56,"drx-RetransmissionTimerDL":"sl8","drx-RetransmissionTimerUL":"sl8",)"
    R"("drx-LongCycleStartOffset":{"ms320":9},"shortDRX":{"drx-ShortCycle":"ms80","drx-ShortCycleTimer":2},"drx-SlotOffset":0}},)"
    R"("schedulingRequestConfig":{"schedulingRequestToAddModList":[{"schedulingRequestId":0,"sr-ProhibitTimer":"ms4","sr-TransMax":"n64"}]},)"
    R"("bsr-Config":{"periodicBSR-Timer":"sf10","retxBSR-Timer":"sf80"},"tag-Config":{"tag-ToAddModList":[{"tag-Id":0,)"
    R"("timeAlignmentTimer":"infinity"}]},"phr-Config":{"setup":{"phr-PeriodicTimer":"sf100","phr-ProhibitTimer":"sf100",)"
    R"("phr-Tx-PowerFactorChange":"dB3","multiplePHR":false,"dummy":false,"phr-Type2OtherCell":false,"phr-ModeOtherCG":"real"}},)"
    R"("skipUplinkTxDynamic":false},"physicalCellGroupConfig":{"p-NR-FR1":23,"pdsch-HARQ-ACK-Codebook":"dynamic"}})";

// Everything that a bearer, MAC and physical cell group can have.
void fullRecord(RrcCellGroupCfg_t& record)
{
    oneBearer(record);
    RrcRlcBearerCfg_t& bearer = record.rlcBearerCfg[0];
    bearer.bitMask = 0x0F;
    RrcUlSpecificParaCfg_t& ul = bearer.macLchCfg.ulSpecificParaCfg;
    ul.bitMask = 0x7F;
    ul.allowedCellNum = 31;
    ul.allowedSCSNum = 5;
    record.rlcBearerReleaseNum = 2;
    record.lchIdRelease[0] = 1;
    record.lchIdRelease[1] = 32;
    record.macCellGrpCfg.bitMask = 0x1F;
    record.macCellGrpCfg.srCfg.numSrRel = 1;
    record.macCellGrpCfg.bsrCfg.bitMask = RRC_BSR_SRDELAY_PRESENCE;
    record.macCellGrpCfg.tagCfg.numTagRel = 1;
    record.phyCellGrpCfg.bitMask = 0xFF;
}

} // namespace

int __wrap_rtxInitContext(OSCTXT* pctxt)
{
    return refuseContexts ? RTX_E_HEAP : __real_rtxInitContext(pctxt);
}

void __wrap_rtFreeContext(OSCTXT* pctxt)
{
    ++freedContexts;
    __real_rtFreeContext(pctxt);
}

int __wrap_asn1PE_CellGroupConfig(OSCTXT* pctxt, const CellGroupConfig* pvalue)
{
    if (seeTree)
    {
        seeTree(*pvalue);
    }
    return __real_asn1PE_CellGroupConfig(pctxt, pvalue);
}

TEST_F(cellGroupCfg, EmptyRecordHasTheCellGroupIdOnly)
{
    for (UINT8 id = 0; id < 4; ++id)
    {
        record->cellGroupId = id;
        expectMessage(R"({"cellGroupId":)" + std::to_string(id) + "}");
        EXPECT_EQ(message.bufLen, 2U);
    }
}

TEST_F(cellGroupCfg, OneBearerWithMacAndPhysicalCellGroup)
{
    oneBearer(*record);
    expectMessage(oneBearerJson);
}

TEST_F(cellGroupCfg, EachMemberAlone)
{
    fullRecord(*record);
    record->rlcBearerCfg[0].bitMask = 0;
    record->macCellGrpCfg.bitMask = 0;
    record->phyCellGrpCfg.bitMask = 0;
    const auto all = std::make_unique<RrcCellGroupCfg_t>(*record);

    record->rlcBearerReleaseNum = 0;
    record->bitMask = 0;
    expectMessage(R"({"cellGroupId":0,"rlc-BearerToAddModList":[{"logicalChannelIdentity":4}]})");
    *record = *all;
    record->rlcBearerAddModNum = 0;
    record->bitMask = 0xF0;
    expectMessage(R"({"cellGroupId":0,"rlc-BearerToReleaseList":[1,32]})");
    record->rlcBearerReleaseNum = 0;
    record->bitMask = RRC_CELLGROUPCFG_MAC_PRESENCE;
    expectMessage(R"({"cellGroupId":0,"mac-CellGroupConfig":{"skipUplinkTxDynamic":false}})");
    record->bitMask = RRC_CELLGROUPCFG_PHY_PRESENCE;
    expectMessage(R"({"cellGroupId":0,"physicalCellGroupConfig":{"pdsch-HARQ-ACK-Codebook":"dynamic"}})");
    record->bitMask = RRC_CELLGROUPCFG_SPCELL_PRESENCE;
    expectMessage(R"({"cellGroupId":0,"spCellConfig":{}})");
    *record = *all;
    record->bitMask |= RRC_CELLGROUPCFG_SPCELL_PRESENCE;
    record->sCellAddModNum = 1;
    record->sCellAddMod[0].scellIdx = 31;
    record->sCellReleaseNum = 1;
    record->sCellIdx[0] = 1;
    expectMessage(
        R"({"cellGroupId":0,"rlc-BearerToAddModList":[{"logicalChannelIdentity":4}],"rlc-BearerToReleaseList":[1,32],)"
        R"("mac-CellGroupConfig":{"skipUplinkTxDynamic":false},"physicalCellGroupConfig":{"pdsch-HARQ-ACK-Codebook":"dynamic"},)"
        R"("spCellConfig":{},"sCellToAddModList":[{"sCellIndex":31}],"sCellToReleaseList":[1]})");
}

TEST_F(cellGroupCfg, ReportUplinkTxDirectIsInTheTreeUnchangedAndNotSent)
{
    for (const BOOL value : {0, 1, 256, -1})
    {
        record->bitMask = RRC_CELLGROUPCFG_REPORT_PRESENCE;
        record->reportUplinkTxDirect = value;
        unsigned seen = 0;
        seeTree = [&](const CellGroupConfig& tree)
        {
            ++seen;
            EXPECT_EQ(tree.m.reportUplinkTxDirectCurrent_v1530Present, 1U);
            EXPECT_EQ(tree.reportUplinkTxDirectCurrent_v1530, static_cast<OSUINT32>(value));
            EXPECT_EQ(tree.m._v2ExtPresent, 0U);
        };
        EXPECT_EQ(compose(), VOS_OK);
        EXPECT_EQ(seen, 1U);
        seeTree = nullptr;
        expectMessage(R"({"cellGroupId":0})");
    }
}

TEST_F(cellGroupCfg, RecordIsOnlyRead)
{
    fullRecord(*record);
    const auto before = cleared<RrcCellGroupCfg_t>();
    std::memcpy(before.get(), record.get(), sizeof *record);
    ASSERT_EQ(compose(), VOS_OK);
    EXPECT_EQ(std::memcmp(before.get(), record.get(), sizeof *record), 0);
}

TEST_F(cellGroupCfg, FullBearerListsAndOnePastThem)
{
    for (const unsigned count : {32U, 33U, 255U})
    {
        for (UINT8 i = 0; i < 32; ++i)
        {
            record->rlcBearerCfg[i].lchId = static_cast<UINT8>(i + 1);
            record->lchIdRelease[i] = static_cast<UINT8>(i + 1);
        }
        const std::string size = std::to_string(count) + " elements, not 1..32";
        record->rlcBearerAddModNum = static_cast<UINT8>(count);
        record->rlcBearerReleaseNum = 0;
        if (count == 32)
        {
            EXPECT_EQ(compose(), VOS_OK) << printed();
        }
        else
        {
            expectRefused("CellGroupConfig.rlc-BearerToAddModList: " + size);
        }
        record->rlcBearerAddModNum = 0;
        record->rlcBearerReleaseNum = static_cast<UINT8>(count);
        if (count == 32)
        {
            EXPECT_EQ(compose(), VOS_OK) << printed();
        }
        else
        {
            expectRefused("CellGroupConfig.rlc-BearerToReleaseList: " + size);
        }
    }
}

TEST_F(cellGroupCfg, SecondaryCellsAreSentAtMostThree)
{
    const std::string cells[] = {R"({"sCellIndex":31})", R"({"sCellIndex":1,"sCellConfigDedicated":{"tag-Id":2}})",
                                 R"({"sCellIndex":2})"};
    record->sCellAddMod[0].scellIdx = 31;
    record->sCellAddMod[1].scellIdx = 1;
    record->sCellAddMod[1].bitMask = RRC_SCELLADDMOD_CELLDEDI_PRESENCE;
    record->sCellAddMod[1].sCellCfgDedi.tagId = 2;
    record->sCellAddMod[2].scellIdx = 2;
    record->sCellAddMod[2].bitMask = RRC_SCELLADDMOD_SMTC_PRESENCE;
    std::string list;
    for (unsigned count = 1; count <= 3; ++count)
    {
        list += (count == 1 ? "" : ",") + cells[count - 1];
        record->sCellAddModNum = static_cast<UINT8>(count);
        expectMessage(R"({"cellGroupId":0,"sCellToAddModList":[)" + list + "]}");
        EXPECT_EQ(record->sCellAddModNum, count);
    }
    for (const unsigned count : {4U, 5U, 255U})
    {
        record->sCellAddModNum = static_cast<UINT8>(count);
        expectMessage(R"({"cellGroupId":0,"sCellToAddModList":[)" + list + "]}");
        EXPECT_EQ(record->sCellAddModNum, 3) << "cut in the caller's record, too";
    }
}

TEST_F(cellGroupCfg, SecondaryCellsToRelease)
{
    record->sCellIdx[0] = 1;
    record->sCellIdx[1] = 4;
    record->sCellIdx[2] = 31;
    record->sCellReleaseNum = 2;
    expectMessage(R"({"cellGroupId":0,"sCellToReleaseList":[1,4]})");
    record->sCellReleaseNum = 3;
    record->sCellAddModNum = 1;
    record->sCellAddMod[0].scellIdx = 7;
    expectMessage(R"({"cellGroupId":0,"sCellToAddModList":[{"sCellIndex":7}],"sCellToReleaseList":[1,4,31]})");
    for (const unsigned count : {4U, 31U})
    {
        record->sCellReleaseNum = static_cast<UINT8>(count);
        expectRefused("CellGroupConfig.sCellToReleaseList[3]: 0 is not in 1..31");
    }
    for (const unsigned count : {32U, 255U})
    {
        record->sCellReleaseNum = static_cast<UINT8>(count);
        expectRefused("CellGroupConfig.sCellToReleaseList: " + std::to_string(count) + " elements, not 1..31");
    }
}

// Failures on the way

TEST_F(cellGroupCfg, ContextThatCannotBeInitialised)
{
    refuseContexts = true;
    expectNoMessage("rrcComposeCellGroupCfg Init AsnCxt Error\r\n", 0);
    refuseContexts = false;
}

TEST_F(cellGroupCfg, NoHeapForTheCellGroupLeavesTheContextAsItIs)
{
    const HeapFault fault(0);
    expectNoMessage("pRrcCellGroupCfg Error\r\n", 0);
}

TEST_F(cellGroupCfg, FailureInTheBearerListStopsBeforeTheMac)
{
    oneBearer(*record);
    record->macCellGrpCfg.drxCfg.drxLongCycleStartOffset.period = 0; // would print a line
    const HeapFault fault(1);
    expectNoMessage("pNode Or pRlc_BearCfg is NULL\r\nrrcComposeRlc_BearerToAddModList Error\r\n");
}

TEST_F(cellGroupCfg, FailureInTheSecondaryCellsEndsTheCall)
{
    record->sCellAddModNum = 2;
    record->sCellReleaseNum = 1;
    const HeapFault fault(2); // the cell group and the first secondary cell
    expectNoMessage("pNode Or pItem is NULL\r\nrrcComposeCellGroupCfg_sCellToAddMod Error\r\n");
}

TEST_F(cellGroupCfg, FailureInTheSpecialCellStopsBeforeTheSecondaryCells)
{
    record->bitMask = RRC_CELLGROUPCFG_SPCELL_PRESENCE;
    record->spCellCfg.bitMask = RRC_SPCELLCFG_DEDICFG_PRESENCE;
    record->spCellCfg.spCellDedicated.numDlBwpAddMod = 1;
    record->sCellAddModNum = 5;
    const HeapFault fault(1);
    expectNoMessage("pNode Or pItem is NULL\r\nrrcComposedownlinkBWP_ToADDMod Error\r\n"
                    "rrcComposespCellConfigDedicated Error\r\nrrcComposeSP_CellGroupCfg Error\r\n");
    EXPECT_EQ(record->sCellAddModNum, 5) << "not reached";
}

TEST_F(cellGroupCfg, HeapExhaustionAtEveryRequest)
{
    fullRecord(*record);
    for (unsigned successes = 0;; ++successes)
    {
        const HeapFault fault(successes);
        const INT32 result = compose();
        if (!HeapFault::struck())
        {
            EXPECT_EQ(result, VOS_OK);
            EXPECT_EQ(successes, 7U) << "cell group, bearer, AM, DRX, SR, TAG, PHR";
            break;
        }
        EXPECT_EQ(result, VOS_ERROR) << successes;
        EXPECT_NE(printed(), "") << successes;
        EXPECT_EQ(message.bufLen, noLength) << successes;
    }
}

// Bad input

TEST_F(cellGroupCfg, NullBuffer)
{
    oneBearer(*record);
    Mbuf_t none = {noLength, nullptr};
    EXPECT_EQ(rrcComposeCellGroupCfg(record.get(), &none), VOS_ERROR);
    EXPECT_THAT(printed(), StartsWith("rrcComposeCellGroupCfg Error\r\nCellGroupConfig: no buffer\nCELL GROUP"));
    EXPECT_EQ(none.bufLen, noLength);
    EXPECT_EQ(none.buf, nullptr);
}

TEST_F(cellGroupCfg, EncodingFailurePrintsTheWholeTree)
{
    oneBearer(*record);
    record->cellGroupId = 4;
    expectRefused("CellGroupConfig.cellGroupId: 4 is not in 0..3");
    ASSERT_EQ(compose(), VOS_ERROR);
    const std::string lines = printed();
    for (const char* name :
         {"cellGroupId", "rlc-BearerToAddModList", "drb-Identity", "t-PollRetransmit", "drx-LongCycleStartOffset",
          "schedulingRequestToAddModList", "periodicBSR-Timer", "timeAlignmentTimer", "phr-PeriodicTimer", "p-NR-FR1"})
    {
        EXPECT_THAT(lines, HasSubstr(name));
    }
    EXPECT_THAT(lines, Not(HasSubstr("not followed"))) << "the printer knows the context";
}

TEST_F(cellGroupCfg, TooLongForTheBuffer)
{
    fullRecord(*record);
    std::fill(std::begin(record->rlcBearerCfg), std::end(record->rlcBearerCfg), record->rlcBearerCfg[0]);
    record->bitMask |= RRC_CELLGROUPCFG_SPCELL_PRESENCE;
    record->spCellCfg.bitMask = RRC_SPCELLCFG_RECFG_PRESENCE;
    RrcReconfWithSync_t& sync = record->spCellCfg.recfgWithSync;
    sync.bitMask = RRC_RACH_CFG_DEDI_PRESENCE;
    sync.rachCfgBitMask = RRC_RACH_CFG_UPLINK_PRESENCE;
    sync.choice.uplink.bitMask = RRC_RACH_CFG_DEDI_CFRA_PRESENCE;
    sync.choice.uplink.cfra.bitMask = RRC_SCIS_RESOURCE;
    RrcSsirs_t& csirs = sync.choice.uplink.cfra.resources.scirs;
    csirs.numCsirsRecouces = RRC_MAX_RA_CSIRS_RESOURCES;
    for (RrcCsirsResource_t& resource : csirs.csirsResource)
    {
        resource.numRaOccasion = 64;
    }

    // More and more bearers, to the last octet and beyond.
    INT32 result = VOS_OK;
    UINT32 longest = 0;
    record->rlcBearerAddModNum = 0;
    while (result == VOS_OK && record->rlcBearerAddModNum < 32)
    {
        ++record->rlcBearerAddModNum;
        result = compose();
        longest = result == VOS_OK ? message.bufLen : longest;
    }
    EXPECT_EQ(result, VOS_ERROR);
    EXPECT_GT(longest, bufferSize - 64);
    EXPECT_LE(longest, bufferSize);
    const std::string lines = printed();
    EXPECT_THAT(lines, StartsWith("rrcComposeCellGroupCfg Error\r\nCellGroupConfig."));
    EXPECT_THAT(lines, HasSubstr(": the encoding does not fit into 8192 octets\nCELL GROUP"));
    EXPECT_EQ(message.bufLen, noLength);
    EXPECT_THAT(std::vector<UINT8>(octets.begin() + bufferSize, octets.end()), Each(guard));
}

TEST_F(cellGroupCfg, ShortBuffersAreNeverOverrun)
{
    fullRecord(*record);
    ASSERT_EQ(compose(), VOS_OK) << printed();
    CellGroupConfig tree;
    decode(tree);
    const std::vector<UINT8> whole(octets.begin(), octets.begin() + message.bufLen);
    for (size_t capacity = 0; capacity <= whole.size(); ++capacity)
    {
        std::vector<UINT8> buffer(whole.size() + 16, guard);
        rtxErrReset(&context);
        ASSERT_EQ(pu_setBuffer(&context, buffer.data(), capacity, 0), 0);
        const int status = asn1PE_CellGroupConfig(&context, &tree);
        EXPECT_THAT(std::vector<UINT8>(buffer.begin() + static_cast<std::ptrdiff_t>(capacity), buffer.end()),
                    Each(guard))
            << capacity;
        if (capacity < whole.size())
        {
            EXPECT_EQ(status, RTX_E_OVERFLOW) << capacity;
        }
        else
        {
            EXPECT_EQ(status, 0);
            EXPECT_EQ(pu_getMsgLen(&context), whole.size());
            EXPECT_TRUE(std::equal(whole.begin(), whole.end(), buffer.begin()));
        }
    }
}

TEST_F(cellGroupCfg, ValuesOutOfRangeAreRefusedWithTheirPath)
{
    using Record = RrcCellGroupCfg_t;
    const std::string bearer = "CellGroupConfig.rlc-BearerToAddModList[0].";
    const std::string ulAm = bearer + "rlc-Config.am.ul-AM-RLC.";
    const std::string dlAm = bearer + "rlc-Config.am.dl-AM-RLC.";
    const std::string lch = bearer + "mac-LogicalChannelConfig.ul-SpecificParameters.";
    const std::string mac = "CellGroupConfig.mac-CellGroupConfig.";
    const std::string drx = mac + "drx-Config.setup.";
    const std::string sr = mac + "schedulingRequestConfig.";
    const std::string phr = mac + "phr-Config.setup.";
    const std::string phy = "CellGroupConfig.physicalCellGroupConfig.";
    const auto am = [](Record& r) -> RrcAmRlcCfg_t&
    {
        return r.rlcBearerCfg[0].rlcCfg.choice.amCfg;
    };
    const auto ul = [](Record& r) -> RrcUlSpecificParaCfg_t&
    {
        return r.rlcBearerCfg[0].macLchCfg.ulSpecificParaCfg;
    };
    const auto drxCfg = [](Record& r) -> RrcDrxCfg_t&
    {
        return r.macCellGrpCfg.drxCfg;
    };
    const auto longCycle = [](UINT8 period)
    {
        return [period](Record& r, int value)
        {
            r.macCellGrpCfg.drxCfg.drxLongCycleStartOffset = {period, static_cast<UINT16>(value)};
        };
    };
    const auto u8 = [](int value)
    {
        return static_cast<UINT8>(value);
    };

    struct Case
    {
        std::string path;
        int lower; // of what the record's field can hold, the values outside lower..upper next to the bounds are tried
        int upper;
        std::function<void(Record&, int)> set;
    };
    const std::vector<Case> cases = {
        {"CellGroupConfig.cellGroupId", 0, 3,
         [&](Record& r, int v)
         {
             r.cellGroupId = u8(v);
         }},
        {bearer + "logicalChannelIdentity", 1, 32,
         [&](Record& r, int v)
         {
             r.rlcBearerCfg[0].lchId = u8(v);
         }},
        {bearer + "servedRadioBearer.drb-Identity", 1, 32,
         [&](Record& r, int v)
         {
             r.rlcBearerCfg[0].rbId = u8(v);
         }},
        {bearer + "servedRadioBearer.srb-Identity", 1, 3,
         [&](Record& r, int v)
         {
             r.rlcBearerCfg[0].rbType = RRC_SRB;
             r.rlcBearerCfg[0].rbId = u8(v);
         }},
        {bearer + "reestablishRLC", 0, 0,
         [&](Record& r, int v)
         {
             r.rlcBearerCfg[0].reestablRlc = v;
         }},
        {ulAm + "t-PollRetransmit", 0, 63,
         [&](Record& r, int v)
         {
             am(r).ulAmCfg.tPollRetransmit = u8(v);
         }},
        {ulAm + "pollPDU", 0, 31,
         [&](Record& r, int v)
         {
             am(r).ulAmCfg.pollPdu = u8(v);
         }},
        {ulAm + "pollByte", 0, 63,
         [&](Record& r, int v)
         {
             am(r).ulAmCfg.pollByte = u8(v);
         }},
        {ulAm + "maxRetxThreshold", 0, 7,
         [&](Record& r, int v)
         {
             am(r).ulAmCfg.maxRetxThreash = u8(v);
         }},
        {dlAm + "t-Reassembly", 0, 31,
         [&](Record& r, int v)
         {
             am(r).dlAmCfg.tReassembly = u8(v);
         }},
        {dlAm + "t-StatusProhibit", 0, 63,
         [&](Record& r, int v)
         {
             am(r).dlAmCfg.tStatusProhibit = u8(v);
         }},
        {bearer + "rlc-Config.um-Bi-Directional.dl-UM-RLC.t-Reassembly", 0, 31,
         [&](Record& r, int v)
         {
             r.rlcBearerCfg[0].rlcCfg.bitMask = RRC_RLCCFG_UM_BI_PRESENCE;
             r.rlcBearerCfg[0].rlcCfg.choice.umBiCfg = {{RRC_UM_SIZE6, u8(v)}, {RRC_UM_SIZE6}};
         }},
        {bearer + "rlc-Config.um-Uni-Directional-DL.dl-UM-RLC.t-Reassembly", 0, 31,
         [&](Record& r, int v)
         {
             r.rlcBearerCfg[0].rlcCfg.bitMask = RRC_RLCCFG_UM_UNI_DL_PRESENCE;
             r.rlcBearerCfg[0].rlcCfg.choice.umUniDlCfg = {RRC_UM_SIZE6, u8(v)};
         }},
        {lch + "priority", 1, 16,
         [&](Record& r, int v)
         {
             ul(r).priority = u8(v);
         }},
        {lch + "prioritisedBitRate", 0, 15,
         [&](Record& r, int v)
         {
             ul(r).priorityBitRate = u8(v);
         }},
        {lch + "bucketSizeDuration", 0, 15,
         [&](Record& r, int v)
         {
             ul(r).bucketSizeDuration = u8(v);
         }},
        {lch + "allowedServingCells[30]", 0, 31,
         [&](Record& r, int v)
         {
             ul(r).cellIdx[30] = u8(v);
         }},
        {lch + "allowedSCS-List[4]", 0, 7,
         [&](Record& r, int v)
         {
             ul(r).subCarrierSpacing[4] = u8(v);
         }},
        {lch + "maxPUSCH-Duration", 0, 7,
         [&](Record& r, int v)
         {
             ul(r).maxPuschDuration = u8(v);
         }},
        {lch + "configuredGrantType1Allowed", 0, 0,
         [&](Record& r, int v)
         {
             ul(r).configuredGrantType1Allowed = v;
         }},
        {lch + "logicalChannelGroup", 0, 7,
         [&](Record& r, int v)
         {
             ul(r).logicalChannelGroupId = u8(v);
         }},
        {lch + "schedulingRequestID", 0, 7,
         [&](Record& r, int v)
         {
             ul(r).schedReqId = u8(v);
         }},
        {lch + "bitRateQueryProhibitTimer", 0, 7,
         [&](Record& r, int v)
         {
             ul(r).bitRateQueryProhibitTimer = u8(v);
         }},
        {"CellGroupConfig.rlc-BearerToReleaseList[1]", 1, 32,
         [&](Record& r, int v)
         {
             r.lchIdRelease[1] = u8(v);
         }},
        {drx + "drx-onDurationTimer.milliSeconds", 0, 31,
         [&](Record& r, int v)
         {
             drxCfg(r).drxOnDurationTimer.milliSeconds = u8(v);
         }},
        {drx + "drx-onDurationTimer.subMilliSeconds", 1, 31,
         [&](Record& r, int v)
         {
             drxCfg(r).bitMask = 0;
             drxCfg(r).drxOnDurationTimer.subMilliSeconds = u8(v);
         }},
        {drx + "drx-InactivityTimer", 0, 31,
         [&](Record& r, int v)
         {
             drxCfg(r).drxInactivityTimer = u8(v);
         }},
        {drx + "drx-HARQ-RTT-TimerDL", 0, 56,
         [&](Record& r, int v)
         {
             drxCfg(r).drxHarqRttTimerDl = u8(v);
         }},
        {drx + "drx-HARQ-RTT-TimerUL", 0, 56,
         [&](Record& r, int v)
         {
             drxCfg(r).drxHarqRttTimerUl = u8(v);
         }},
        {drx + "drx-RetransmissionTimerDL", 0, 31,
         [&](Record& r, int v)
         {
             drxCfg(r).drxRetransTimerDl = u8(v);
         }},
        {drx + "drx-RetransmissionTimerUL", 0, 31,
         [&](Record& r, int v)
         {
             drxCfg(r).drxRetransTimerUl = u8(v);
         }},
        {drx + "drx-LongCycleStartOffset.ms10", 0, 9, longCycle(1)},
        {drx + "drx-LongCycleStartOffset.ms20", 0, 19, longCycle(2)},
        {drx + "drx-LongCycleStartOffset.ms32", 0, 31, longCycle(3)},
        {drx + "drx-LongCycleStartOffset.ms40", 0, 39, longCycle(4)},
        {drx + "drx-LongCycleStartOffset.ms60", 0, 59, longCycle(5)},
        {drx + "drx-LongCycleStartOffset.ms64", 0, 63, longCycle(6)},
        {drx + "drx-LongCycleStartOffset.ms70", 0, 69, longCycle(7)},
        {drx + "drx-LongCycleStartOffset.ms80", 0, 79, longCycle(8)},
        {drx + "drx-LongCycleStartOffset.ms128", 0, 127, longCycle(9)},
        {drx + "drx-LongCycleStartOffset.ms160", 0, 159, longCycle(10)},
        {drx + "drx-LongCycleStartOffset.ms320", 0, 319, longCycle(12)},
        {drx + "drx-LongCycleStartOffset.ms512", 0, 511, longCycle(13)},
        {drx + "drx-LongCycleStartOffset.ms640", 0, 639, longCycle(14)},
        {drx + "drx-LongCycleStartOffset.ms1024", 0, 1023, longCycle(15)},
        {drx + "drx-LongCycleStartOffset.ms1280", 0, 1279, longCycle(16)},
        {drx + "drx-LongCycleStartOffset.ms2048", 0, 2047, longCycle(17)},
        {drx + "drx-LongCycleStartOffset.ms2560", 0, 2559, longCycle(18)},
        {drx + "drx-LongCycleStartOffset.ms5120", 0, 5119, longCycle(19)},
        {drx + "drx-LongCycleStartOffset.ms10240", 0, 10239, longCycle(20)},
        {drx + "shortDRX.drx-ShortCycle", 0, 31,
         [&](Record& r, int v)
         {
             drxCfg(r).shortDrx.period = u8(v);
         }},
        {drx + "shortDRX.drx-ShortCycleTimer", 1, 16,
         [&](Record& r, int v)
         {
             drxCfg(r).shortDrx.offset = u8(v);
         }},
        {drx + "drx-SlotOffset", 0, 31,
         [&](Record& r, int v)
         {
             drxCfg(r).drxSlotOffset = u8(v);
         }},
        {sr + "schedulingRequestToAddModList[0].schedulingRequestId", 0, 7,
         [&](Record& r, int v)
         {
             r.macCellGrpCfg.srCfg.srASddMod[0].srId = u8(v);
         }},
        {sr + "schedulingRequestToAddModList[0].sr-ProhibitTimer", 0, 7,
         [&](Record& r, int v)
         {
             r.macCellGrpCfg.srCfg.srASddMod[0].srProhibitTimer = u8(v);
         }},
        {sr + "schedulingRequestToAddModList[0].sr-TransMax", 0, 7,
         [&](Record& r, int v)
         {
             r.macCellGrpCfg.srCfg.srASddMod[0].srTransMax = u8(v);
         }},
        {sr + "schedulingRequestToReleaseList[0]", 0, 7,
         [&](Record& r, int v)
         {
             r.macCellGrpCfg.srCfg.srId[0] = u8(v);
         }},
        {mac + "bsr-Config.periodicBSR-Timer", 0, 15,
         [&](Record& r, int v)
         {
             r.macCellGrpCfg.bsrCfg.periodicBsrTimer = u8(v);
         }},
        {mac + "bsr-Config.retxBSR-Timer", 0, 15,
         [&](Record& r, int v)
         {
             r.macCellGrpCfg.bsrCfg.retxBsrTimer = u8(v);
         }},
        {mac + "bsr-Config.logicalChannelSR-DelayTimer", 0, 7,
         [&](Record& r, int v)
         {
             r.macCellGrpCfg.bsrCfg.lcSRDelayTimer = u8(v);
         }},
        {mac + "tag-Config.tag-ToReleaseList[0]", 0, 3,
         [&](Record& r, int v)
         {
             r.macCellGrpCfg.tagCfg.tagId[0] = u8(v);
         }},
        {mac + "tag-Config.tag-ToAddModList[0].tag-Id", 0, 3,
         [&](Record& r, int v)
         {
             r.macCellGrpCfg.tagCfg.tag[0].tagId = u8(v);
         }},
        {mac + "tag-Config.tag-ToAddModList[0].timeAlignmentTimer", 0, 7,
         [&](Record& r, int v)
         {
             r.macCellGrpCfg.tagCfg.tag[0].taTimer = u8(v);
         }},
        {phr + "phr-PeriodicTimer", 0, 7,
         [&](Record& r, int v)
         {
             r.macCellGrpCfg.phrCfg.phrPeriodTimer = u8(v);
         }},
        {phr + "phr-ProhibitTimer", 0, 7,
         [&](Record& r, int v)
         {
             r.macCellGrpCfg.phrCfg.phrProhibitTimer = u8(v);
         }},
        {phr + "phr-Tx-PowerFactorChange", 0, 3,
         [&](Record& r, int v)
         {
             r.macCellGrpCfg.phrCfg.phrTxPowerFactorChange = u8(v);
         }},
        {phr + "phr-ModeOtherCG", 0, 1,
         [&](Record& r, int v)
         {
             r.macCellGrpCfg.phrCfg.phrModeOtherCG = u8(v);
         }},
        {phy + "pdsch-HARQ-ACK-Codebook", 0, 1,
         [&](Record& r, int v)
         {
             r.phyCellGrpCfg.pdschHarqAckCodeBook = u8(v);
         }},
        {phy + "harq-ACK-SpatialBundlingPUCCH", 0, 0,
         [&](Record& r, int v)
         {
             r.phyCellGrpCfg.harqAckBundlingPucch = v;
         }},
        {phy + "harq-ACK-SpatialBundlingPUSCH", 0, 0,
         [&](Record& r, int v)
         {
             r.phyCellGrpCfg.harqAckBundlingPusch = v;
         }},
        {phy + "p-NR-FR1", -30, 33,
         [&](Record& r, int v)
         {
             r.phyCellGrpCfg.pNrFR1Pmax = u8(v);
         }},
    };
    fullRecord(*record);
    const auto good = std::make_unique<RrcCellGroupCfg_t>(*record);
    ASSERT_EQ(compose(), VOS_OK) << printed();
    for (const Case& c : cases)
    {
        SCOPED_TRACE(c.path);
        for (const int value : {c.lower, c.upper})
        {
            *record = *good;
            c.set(*record, value);
            EXPECT_EQ(compose(), VOS_OK) << printed();
        }
        for (const int value : {c.lower - 1, c.upper + 1})
        {
            if (value == -1)
            {
                continue; // the record's field is unsigned
            }
            *record = *good;
            c.set(*record, value);
            expectRefused(c.path + ": " + std::to_string(value) + " is not in " + std::to_string(c.lower) + ".." +
                          std::to_string(c.upper));
        }
    }
}

TEST_F(cellGroupCfg, ChoicesWithoutAlternativeAreRefusedWithTheirPath)
{
    fullRecord(*record);
    record->rlcBearerCfg[0].rbType = static_cast<RrcRbType_e>(2);
    expectRefused("CellGroupConfig.rlc-BearerToAddModList[0].servedRadioBearer: tag 0 is not in 1..2");
    fullRecord(*record);
    record->rlcBearerCfg[0].rlcCfg.bitMask = 0;
    expectRefused("CellGroupConfig.rlc-BearerToAddModList[0].rlc-Config: tag 0 is not in 1..4");
    fullRecord(*record);
    record->macCellGrpCfg.drxCfg.drxLongCycleStartOffset.period = 21;
    EXPECT_EQ(compose(), VOS_ERROR);
    EXPECT_THAT(printed(), StartsWith("No DRX_Config__drx_LongCycleStartOffset_PR\nrrcComposeCellGroupCfg Error\r\n"
                                      "CellGroupConfig.mac-CellGroupConfig.drx-Config.setup.drx-LongCycleStartOffset: "
                                      "tag 21 is not in 1..20\nCELL GROUP"));
}

TEST_F(cellGroupCfg, CallsOnDifferentThreadsAreIndependent)
{
    std::vector<std::vector<UINT8>> results(4);
    std::vector<std::thread> threads;
    for (size_t i = 0; i < results.size(); ++i)
    {
        threads.emplace_back(
            [&result = results[i], i]
            {
                const auto own = std::make_unique<RrcCellGroupCfg_t>();
                oneBearer(*own);
                own->rlcBearerCfg[0].lchId = static_cast<UINT8>(i + 1);
                for (unsigned call = 0; call < 100; ++call)
                {
                    std::vector<UINT8> buffer(bufferSize);
                    Mbuf_t mbuf = {0, buffer.data()};
                    if (rrcComposeCellGroupCfg(own.get(), &mbuf) != VOS_OK)
                    {
                        return;
                    }
                    buffer.resize(mbuf.bufLen);
                    result = buffer;
                }
            });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
    for (size_t i = 0; i < results.size(); ++i)
    {
        oneBearer(*record);
        record->rlcBearerCfg[0].lchId = static_cast<UINT8>(i + 1);
        ASSERT_EQ(compose(), VOS_OK);
        EXPECT_EQ(results[i], std::vector<UINT8>(octets.begin(), octets.begin() + message.bufLen));
    }
}

// The record

static_assert(RRC_CELL_GROUP_CONFIG_SIZE == 4096);
static_assert(MAX_NROF_SCellS == 3);
static_assert(std::is_same_v<decltype(RrcCellGroupCfg_t::rlcBearerCfg), RrcRlcBearerCfg_t[32]>);
static_assert(std::is_same_v<decltype(RrcCellGroupCfg_t::lchIdRelease), UINT8[32]>);
static_assert(std::is_same_v<decltype(RrcCellGroupCfg_t::sCellAddMod), RrcScellCfg_t[3]>);
static_assert(std::is_same_v<decltype(RrcCellGroupCfg_t::sCellIdx), UINT8[3]>);
static_assert(std::is_same_v<decltype(RrcCellGroupCfg_t::reportUplinkTxDirect), BOOL>);
static_assert(rising({offsetof(RrcCellGroupCfg_t, cellGroupId), offsetof(RrcCellGroupCfg_t, rlcBearerAddModNum),
                      offsetof(RrcCellGroupCfg_t, rlcBearerCfg), offsetof(RrcCellGroupCfg_t, rlcBearerReleaseNum),
                      offsetof(RrcCellGroupCfg_t, lchIdRelease), offsetof(RrcCellGroupCfg_t, bitMask),
                      offsetof(RrcCellGroupCfg_t, macCellGrpCfg), offsetof(RrcCellGroupCfg_t, phyCellGrpCfg),
                      offsetof(RrcCellGroupCfg_t, spCellCfg), offsetof(RrcCellGroupCfg_t, sCellAddModNum),
                      offsetof(RrcCellGroupCfg_t, sCellAddMod), offsetof(RrcCellGroupCfg_t, sCellReleaseNum),
                      offsetof(RrcCellGroupCfg_t, sCellIdx), offsetof(RrcCellGroupCfg_t, reportUplinkTxDirect)}));
static_assert(rising({offsetof(RrcScellCfg_t, scellIdx), offsetof(RrcScellCfg_t, bitMask),
                      offsetof(RrcScellCfg_t, sCellCfgCommn), offsetof(RrcScellCfg_t, sCellCfgDedi),
                      offsetof(RrcScellCfg_t, smtc)}));
static_assert(std::is_same_v<decltype(RrcSsbMtc_t::padding), UINT8> && sizeof(RrcSsbMtc_t) == 1);
static_assert(rising({offsetof(Mbuf_t, bufLen), offsetof(Mbuf_t, buf)}));
