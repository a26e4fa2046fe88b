// What the documents show of a program, in functions around it, does what they say beside it.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include "NR-RRC-Definitions.h"
#include "cellgroupcfg/version.h"
#include "rrcCodec/rrcCompose.h"
#include "rrcCodec/rrcInit.h"
#include "rrcDecompose.h"
#include "rrcRecordCheck.h"
#include "rrcRecordJson.h"
#include "support/CapturedOutput.h"
#include "vos_lib.h"

namespace
{

#include "log.inc"

std::unique_ptr<RrcCellGroupCfg_t> emptyRecord()
{
    auto record = std::make_unique<RrcCellGroupCfg_t>();
    rrcInit(record.get());
    return record;
}

TEST(Record, IsFilledFromTheOutside)
{
#include "filling.inc"
    EXPECT_EQ(record->bitMask, RRC_CELLGROUPCFG_SPCELL_PRESENCE);
    std::array<UINT8, 64> octets;
    size_t length = 0;
    EXPECT_EQ(rrcEncodeCellGroupCfg(record.get(), octets.data(), octets.size(), &length, nullptr, 0), RRC_COMPOSE_OK);
}

TEST(Record, EnumerationsHaveNames)
{
    RrcDrxCfg_t drx;
    rrcInit(&drx);
#include "values.inc"
    EXPECT_EQ(drx.drxInactivityTimer, 15U);
    EXPECT_EQ(drx.drxLongCycleStartOffset.period, T_DRX_Config_drx_LongCycleStartOffset_ms320);
}

TEST(Record, AllThatIsWrongIsTold)
{
    const auto record = emptyRecord();
    record->bitMask = RRC_CELLGROUPCFG_MAC_PRESENCE;
    rrcInit(&record->macCellGrpCfg);
    record->macCellGrpCfg.bitMask = RRC_MAC_CELL_GRP_CFG_DRX_PRESENCE;
    RrcDrxCfg_t& drx = record->macCellGrpCfg.drxCfg;
    rrcInit(&drx);
    drx.bitMask = RRC_DRX_CFG_ONDURATION_MILLION_PRESENCE | 1U << 5;
    drx.drxInactivityTimer = 40;
    drx.drxLongCycleStartOffset.period = T_DRX_Config_drx_LongCycleStartOffset_ms320;
    std::string told;
    {
        test::CapturedOutput output;
#include "check.inc"
        told = output.take();
    }
    std::ifstream shown(CELLGROUPCFG_BLOCKS "/check.txt");
    EXPECT_EQ(told, std::string(std::istreambuf_iterator<char>(shown), {}));
}

TEST(Record, ComesBackFromOctets)
{
    std::array<UINT8, 4> message = {0x20, 0x02, 0x3f, 0x00};
    UINT8* const octets = message.data();
    const size_t length = message.size();
    test::CapturedOutput output;
#include "decompose.inc"
    EXPECT_EQ(output.take(), "");
    EXPECT_EQ(record->lchIdRelease[0], 4);
    EXPECT_EQ(record->lchIdRelease[1], 31);
}

TEST(Record, BecomesStatements)
{
    const auto filled = emptyRecord();
    RrcCellGroupCfg_t& record = *filled;
#include "filled.inc"
    EXPECT_EQ(record.rlcBearerAddModNum, 1U);
    EXPECT_EQ(record.rlcBearerCfg[0].lchId, 4U);
}

TEST(Record, IsLogged)
{
    const auto record = emptyRecord();
    testing::internal::CaptureStderr();
    logRecord(record.get());
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "{\n  \"cellGroupId\": 0\n}\n");
}

TEST(Context, LivesOnTheCallersMemory)
{
    OSCTXT context;
    OSOCTET memory[4096];
#include "memory.inc"
    EXPECT_NE(rtxMemHeapAlloc(&context, 1024), nullptr);
    EXPECT_EQ(rtxMemHeapAlloc(&context, 65536), nullptr);
    EXPECT_NE(rtxMemHeapFailed(&context), 0);
    rtFreeContext(&context);
}

int metLibrary()
{
#include "abi.inc"
    return 0;
}

TEST(Library, TakesTheRecordsOfItsOwnHeaders)
{
    EXPECT_EQ(metLibrary(), 0);
}

TEST(PrintFilter, LeavesAFunctionsLinesOutAndPrintsThemAgain)
{
#include "filter.inc"
    EXPECT_EQ(vos_info_print_filter_is_filtered(_vos_print_lv_err, "rrcComposeRlc_Config"), 0);
    vos_info_print_filter_set(_vos_print_lv_err, "rrcComposeRlc_Config", 1);
    EXPECT_NE(vos_info_print_filter_is_filtered(_vos_print_lv_err, "rrcComposeRlc_Config"), 0);
    vos_info_print_filter_clear();
}

} // namespace
