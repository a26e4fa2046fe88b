// The calls for a careful caller: rrcComposeCellGroupTree, rrcEncodeCellGroupCfg and the one with the caller's memory.

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "amendedTree.h"
#include "csiRecords.h"
#include "encodeCellGroupInC.h"
#include "oneBearer.h"
#include "reconfigurationWithSync.h"
#include "releases.h"
#include "rrcCodec/rrcCompose.h"
#include "secondaryCells.h"
#include "support/ComposerTest.h"
#include "typicalCall.h"

using test::HeapFault;
using testing::HasSubstr;
using testing::StartsWith;

namespace
{

constexpr UINT8 guard = 0xA5;
constexpr size_t noLength = 0xDEADBEEF;

using Octets = std::vector<UINT8>;

bool untouchedFrom(const Octets& octets, size_t offset)
{
    return std::all_of(octets.begin() + static_cast<std::ptrdiff_t>(offset), octets.end(),
                       [](UINT8 octet) { return octet == guard; });
}

class encodeCellGroup : public test::ComposerTest
{
protected:
    encodeCellGroup() : record(cleared<RrcCellGroupCfg_t>()), octets(8192 + 64, guard) {}

    // The entry's message.
    Octets entry()
    {
        Octets all(8192);
        Mbuf_t message = {0, all.data()};
        EXPECT_EQ(rrcComposeCellGroupCfg(record.get(), &message), VOS_OK) << printed();
        all.resize(message.bufLen);
        return all;
    }

    INT32 encodeRecord(size_t capacity)
    {
        std::fill(octets.begin(), octets.end(), guard);
        length = noLength;
        std::memset(error, guard, sizeof error);
        return rrcEncodeCellGroupCfg(record.get(), octets.data(), capacity, &length, error, sizeof error);
    }

    INT32 encodeInMemory(void* memory, size_t size)
    {
        length = noLength;
        return rrcEncodeCellGroupCfgInMemory(record.get(), memory, size, octets.data(), 8192, &length, error,
                                             sizeof error);
    }

    Octets message() const
    {
        return {octets.begin(), octets.begin() + static_cast<std::ptrdiff_t>(length)};
    }

    // Refused with this text, without a line on the console or an octet behind the capacity.
    void expectRefused(size_t capacity, INT32 status, const std::string& text)
    {
        EXPECT_EQ(encodeRecord(capacity), status) << text;
        EXPECT_EQ(error, text);
        EXPECT_EQ(printed(), "");
        EXPECT_EQ(length, 0U) << text;
        EXPECT_TRUE(untouchedFrom(octets, capacity)) << text;
    }

    std::unique_ptr<RrcCellGroupCfg_t> record;
    Octets octets;
    size_t length = noLength;
    char error[512] = {};
};

constexpr void (*examples[])(RrcCellGroupCfg_t&) = {oneBearer, reconfigurationWithSync, typicalCall, secondaryCells,
                                                    releases};

// What the composers printed, as the text has it.
std::string joined(std::string lines)
{
    const std::string dropped[] = {"\033[1;31m", "\033[m", ".N"};
    for (const std::string& part : dropped)
    {
        for (size_t at = lines.find(part); at != std::string::npos; at = lines.find(part))
        {
            lines.erase(at, part.size());
        }
    }
    std::string text;
    for (size_t end = lines.find("\r\n"); end != std::string::npos; end = lines.find("\r\n"))
    {
        text += (text.empty() ? "" : ", ") + lines.substr(0, end);
        lines.erase(0, end + 2);
    }
    return text;
}

} // namespace

TEST_F(encodeCellGroup, GivesTheOctetsOfTheEntry)
{
    std::vector<OSOCTET> memory(RRC_COMPOSE_MEMORY_SIZE);
    for (const auto fill : examples)
    {
        fill(*record);
        const auto before = std::make_unique<RrcCellGroupCfg_t>(*record);
        const Octets expected = entry();
        EXPECT_EQ(encodeRecord(8192), RRC_COMPOSE_OK);
        EXPECT_STREQ(error, "");
        EXPECT_EQ(message(), expected);
        EXPECT_EQ(encodeInMemory(memory.data(), memory.size()), RRC_COMPOSE_OK);
        EXPECT_EQ(message(), expected);
        EXPECT_EQ(encodeInC(record.get(), octets.data(), octets.size(), &length), RRC_COMPOSE_OK);
        EXPECT_EQ(message(), expected);
        EXPECT_EQ(std::memcmp(before.get(), record.get(), sizeof *record), 0) << "only read";
        EXPECT_EQ(printed(), "");
    }
}

TEST_F(encodeCellGroup, KeepsToTheCapacity)
{
    typicalCall(*record);
    const Octets expected = entry();
    for (size_t capacity = 0; capacity < expected.size(); ++capacity)
    {
        EXPECT_EQ(encodeRecord(capacity), RRC_COMPOSE_E_CAPACITY);
        EXPECT_THAT(error, HasSubstr(": the encoding does not fit into " + std::to_string(capacity) + " octet"));
        EXPECT_EQ(length, 0U);
        ASSERT_TRUE(untouchedFrom(octets, capacity));
    }
    EXPECT_EQ(encodeRecord(expected.size()), RRC_COMPOSE_OK);
    EXPECT_EQ(message(), expected);
    EXPECT_EQ(octets[expected.size()], guard);
    EXPECT_EQ(printed(), "");
}

TEST_F(encodeCellGroup, AMessageMayBeLongerThanTheEntrys)
{
    reconfigurationWithSync(*record);
    record->rlcBearerAddModNum = 32;
    RrcUlSpecificParaCfg_t& uplink = record->rlcBearerCfg[0].macLchCfg.ulSpecificParaCfg;
    uplink.bitMask |= RRC_UL_SPECIFICPARA_SERVING_CELL_CFG_PRESENCE;
    uplink.allowedCellNum = 31;
    std::fill(std::begin(record->rlcBearerCfg), std::end(record->rlcBearerCfg), record->rlcBearerCfg[0]);
    RrcCfra_t& cfra = record->spCellCfg.recfgWithSync.choice.uplink.cfra;
    cfra.bitMask = RRC_SCIS_RESOURCE;
    cfra.resources.scirs = {};
    cfra.resources.scirs.numCsirsRecouces = RRC_MAX_RA_CSIRS_RESOURCES;
    for (RrcCsirsResource_t& resource : cfra.resources.scirs.csirsResource)
    {
        resource.numRaOccasion = 64;
    }
    octets.assign(16384, guard);
    EXPECT_EQ(encodeRecord(8192), RRC_COMPOSE_E_CAPACITY);
    EXPECT_TRUE(untouchedFrom(octets, 8192));
    ASSERT_EQ(encodeRecord(16384), RRC_COMPOSE_OK) << error;
    EXPECT_GT(length, 8192U);

    CellGroupConfig tree;
    ASSERT_EQ(pu_setBuffer(&context, octets.data(), length, 0), 0);
    ASSERT_EQ(asn1PD_CellGroupConfig(&context, &tree), 0);
    EXPECT_EQ(encode(asn1PE_CellGroupConfig, tree), test::hexDigits(octets.data(), length));
}

TEST_F(encodeCellGroup, AValueIsRefusedWithItsPathAndNothingIsPrinted)
{
    secondaryCells(*record);
    record->cellGroupId = 9;
    expectRefused(8192, RRC_COMPOSE_E_VALUE, "CellGroupConfig.cellGroupId: 9 is not in 0..3");
    record->cellGroupId = 0;
    record->sCellAddMod[2].scellIdx = 32;
    expectRefused(8192, RRC_COMPOSE_E_VALUE, "CellGroupConfig.sCellToAddModList[2].sCellIndex: 32 is not in 1..31");
    record->sCellAddMod[2].scellIdx = 3;
    EXPECT_EQ(encodeRecord(8192), RRC_COMPOSE_OK);
    EXPECT_STREQ(error, "") << "of the refusal before nothing is left";
}

TEST_F(encodeCellGroup, ArgumentsAreChecked)
{
    oneBearer(*record);
    OSOCTET memory[64];
    const auto call = [&](const RrcCellGroupCfg_t* cellGroup, UINT8* buf, size_t* pLength)
    {
        length = noLength;
        const INT32 status = rrcEncodeCellGroupCfg(cellGroup, buf, octets.size(), pLength, error, sizeof error);
        char again[sizeof error];
        EXPECT_EQ(rrcEncodeCellGroupCfgInMemory(cellGroup, memory, sizeof memory, buf, octets.size(), pLength, again,
                                                sizeof again),
                  status);
        EXPECT_STREQ(again, error);
        return status;
    };
    EXPECT_EQ(call(nullptr, octets.data(), &length), RRC_COMPOSE_E_ARGUMENT);
    EXPECT_STREQ(error, "pRrcCellGroupCfg is null");
    EXPECT_EQ(length, 0U);
    EXPECT_EQ(call(record.get(), nullptr, &length), RRC_COMPOSE_E_ARGUMENT);
    EXPECT_STREQ(error, "buf is null");
    EXPECT_EQ(call(record.get(), octets.data(), nullptr), RRC_COMPOSE_E_ARGUMENT);
    EXPECT_STREQ(error, "pLength is null");
    EXPECT_EQ(encodeInMemory(nullptr, 1000), RRC_COMPOSE_E_ARGUMENT);
    EXPECT_STREQ(error, "memory is null");

    record->sCellAddModNum = 4;
    expectRefused(8192, RRC_COMPOSE_E_ARGUMENT, "sCellAddModNum: 4 is not in 0..3");
    EXPECT_EQ(record->sCellAddModNum, 4) << "not cut, as the entry would";

    CellGroupConfig* tree = nullptr;
    EXPECT_EQ(rrcComposeCellGroupTree(&context, record.get(), &tree), RRC_COMPOSE_E_ARGUMENT);
    record->sCellAddModNum = 0;
    EXPECT_EQ(rrcComposeCellGroupTree(nullptr, record.get(), &tree), RRC_COMPOSE_E_ARGUMENT);
    EXPECT_EQ(rrcComposeCellGroupTree(&context, nullptr, &tree), RRC_COMPOSE_E_ARGUMENT);
    EXPECT_EQ(rrcComposeCellGroupTree(&context, record.get(), nullptr), RRC_COMPOSE_E_ARGUMENT);
    EXPECT_EQ(tree, nullptr);
    EXPECT_EQ(printed(), "");
}

TEST_F(encodeCellGroup, TheTextKeepsToItsSize)
{
    oneBearer(*record);
    const std::string whole[] = {"CellGroupConfig.cellGroupId: 9 is not in 0..3", "buf is null"};
    record->cellGroupId = 9;
    for (const std::string& text : whole)
    {
        UINT8* const buf = text == "buf is null" ? nullptr : octets.data();
        for (size_t size = 0; size <= text.size() + 2; ++size)
        {
            std::memset(error, guard, sizeof error);
            EXPECT_NE(rrcEncodeCellGroupCfg(record.get(), buf, 8192, &length, error, size), RRC_COMPOSE_OK);
            EXPECT_EQ(static_cast<UINT8>(error[size]), guard);
            if (size != 0)
            {
                const std::string cut = size > 3 ? text.substr(0, size - 4) + "..." : text.substr(0, size - 1);
                EXPECT_EQ(error, size > text.size() ? text : cut);
            }
        }
        EXPECT_NE(rrcEncodeCellGroupCfg(record.get(), buf, 8192, &length, nullptr, 100), RRC_COMPOSE_OK);
    }
    record->cellGroupId = 0;
    EXPECT_EQ(rrcEncodeCellGroupCfg(record.get(), octets.data(), 8192, &length, nullptr, 100), RRC_COMPOSE_OK);
}

TEST_F(encodeCellGroup, AnExhaustedHeapIsNeverSuccess)
{
    secondaryCells(*record);
    for (unsigned successes = 0;; ++successes)
    {
        const HeapFault fault(successes);
        const INT32 status = encodeRecord(8192);
        const std::string lines = printed();
        if (!HeapFault::struck())
        {
            EXPECT_EQ(status, RRC_COMPOSE_OK);
            EXPECT_GT(successes, 100U);
            break;
        }
        ASSERT_EQ(status, RRC_COMPOSE_E_MEMORY) << successes;
        ASSERT_EQ(length, 0U);
        const std::string text = lines.empty() ? "out of memory" : "out of memory: " + joined(lines);
        if (text.size() < 15 + 256)
        {
            ASSERT_EQ(error, text);
        }
        else
        {
            ASSERT_EQ(error, text.substr(0, 15 + 252) + "...");
        }
        ASSERT_TRUE(untouchedFrom(octets, 0)) << "nothing is encoded";

        const HeapFault again(successes);
        CellGroupConfig* tree = nullptr;
        ASSERT_EQ(rrcComposeCellGroupTree(&context, record.get(), &tree), RRC_COMPOSE_E_MEMORY);
        ASSERT_EQ(tree, nullptr);
        ASSERT_EQ(printed(), lines);
        rtFreeContext(&context);
    }
}

TEST_F(encodeCellGroup, WithoutAHeapFromTheStart)
{
    oneBearer(*record);
    CellGroupConfig* tree = nullptr;
    rtxMemHeapSetLimit(&context, 0);
    EXPECT_EQ(rtxMemHeapAlloc(&context, 1), nullptr);
    rtxMemHeapSetLimit(&context, SIZE_MAX);
    EXPECT_EQ(rrcComposeCellGroupTree(&context, record.get(), &tree), RRC_COMPOSE_E_MEMORY)
        << "what the caller has put into the heap may be incomplete";
    EXPECT_EQ(tree, nullptr);
}

TEST_F(encodeCellGroup, MemoryOfAnySizeAndAlignment)
{
    typicalCall(*record);
    const Octets expected = entry();
    std::vector<OSOCTET> memory(64 * 1024, guard);
    size_t least = 0;
    for (size_t size = 0; least == 0; size += 509)
    {
        const size_t shift = size % 17;
        std::fill(memory.begin(), memory.end(), guard);
        const INT32 status = encodeInMemory(memory.data() + shift, size);
        ASSERT_TRUE(untouchedFrom(memory, shift + size));
        if (status == RRC_COMPOSE_OK)
        {
            EXPECT_EQ(message(), expected);
            least = size;
        }
        else
        {
            ASSERT_EQ(status, RRC_COMPOSE_E_MEMORY) << size;
            ASSERT_THAT(error, StartsWith("out of memory")) << size;
            ASSERT_EQ(length, 0U);
        }
    }
    EXPECT_GE(least, sizeof(CellGroupConfig) + sizeof(ServingCellConfig)) << "the tree lies nowhere else";
    EXPECT_LE(least, 16U * 1024) << "what the stack holds in the call without memory of the caller's";
}

TEST_F(encodeCellGroup, AmendedTree)
{
    record->bitMask = RRC_CELLGROUPCFG_MAC_PRESENCE | RRC_CELLGROUPCFG_SPCELL_PRESENCE;
    RrcSpCellCfg_t& spCell = record->spCellCfg;
    spCell.bitMask = RRC_SPCELLCFG_RECFG_PRESENCE | RRC_SPCELLCFG_DEDICFG_PRESENCE;
    spCell.recfgWithSync.bitMask = RRC_SERVING_CELL_CFG_COMMON_PRESENCE;
    spCell.spCellDedicated.bitMask = RRC_SERVING_CELL_CSI_MEAS_CFG_PRESENCE;
    RrcCsiMeasCfg_t& csi = spCell.spCellDedicated.csiMeasCfg;
    csi.numNzpCsiRsResourceAddMod = 1;
    csi.NzpCsiRsResourceAddMod[0] = test::nzpResource(7);

    CellGroupConfig* tree = nullptr;
    ASSERT_EQ(rrcComposeCellGroupTree(&context, record.get(), &tree), RRC_COMPOSE_OK);
    amend(*tree);
    sendBlocks(tree->spCellConfig.reconfigurationWithSync.spCellConfigCommon, 0xFF000000000000FF);
    EXPECT_EQ(rtxMemHeapFailed(&context), 0);
    const std::string bits = "11111111" + std::string(48, '0') + "11111111";
    expectDecoded(
        "CellGroupConfig", asn1PE_CellGroupConfig, *tree,
        R"({"cellGroupId":0,"mac-CellGroupConfig":{"drx-Config":{"release":null},"skipUplinkTxDynamic":false},)"
        R"("spCellConfig":{"reconfigurationWithSync":{"spCellConfigCommon":{"ssb-PositionsInBurst":{"longBitmap":")" +
            bits +
            R"("},"dmrs-TypeA-Position":"pos2","ss-PBCH-BlockPower":0},"newUE-Identity":0,"t304":"ms50"},)"
            R"("spCellConfigDedicated":{"csi-MeasConfig":{"setup":{"nzp-CSI-RS-ResourceToAddModList":[)" +
            test::nzpResourceJson(7, R"("powerControlOffset":0)", R"(,"periodicityAndOffset":{"slots40":31})") +
            R"(]}},"tag-Id":0}}})");
    EXPECT_EQ(printed(), "");
}

TEST_F(encodeCellGroup, AmendedTreeInC)
{
    record->bitMask = RRC_CELLGROUPCFG_MAC_PRESENCE;
    record->macCellGrpCfg.bitMask = RRC_MAC_CELL_GRP_CFG_DRX_PRESENCE; // of its values none is in its range
    EXPECT_EQ(encodeInC(record.get(), octets.data(), octets.size(), &length), RRC_COMPOSE_E_VALUE);
    EXPECT_EQ(printed(), "No DRX_Config__drx_LongCycleStartOffset_PR\n") << "a notice, and no tree";
    ASSERT_EQ(amendInC(record.get(), octets.data(), octets.size(), &length), 0);
    expectDecoded(
        "CellGroupConfig", test::hexDigits(octets.data(), length),
        R"({"cellGroupId":0,"mac-CellGroupConfig":{"drx-Config":{"release":null},"skipUplinkTxDynamic":false}})");
    EXPECT_NE(amendInC(record.get(), octets.data(), 1, &length), 0);
}
