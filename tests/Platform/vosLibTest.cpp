#include "vos_lib.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "plat_syslog.h"
#include "support/CapturedOutput.h"

extern "C" INT32 printFromC(const char* name, INT32 number);

TEST(VosTypes, ResultsAndWidths)
{
    EXPECT_EQ(VOS_OK, 0);
    EXPECT_EQ(VOS_ERROR, -1);
    EXPECT_EQ(sizeof(BOOL), 4U);
    EXPECT_EQ(_vos_print_lv_info, 0);
    EXPECT_EQ(_vos_print_lv_warning, 1);
    EXPECT_EQ(_vos_print_lv_err, 2);
    EXPECT_EQ(SYSLOG_ERR, 2);
}

TEST(VosPrintf, WritesThePlainLineToStandardOutput)
{
    test::CapturedOutput output;
    const INT32 written = VOS_Printf("%s %d%% \r\n", "bearer", -7);
    EXPECT_EQ(output.take(), "bearer -7% \r\n");
    EXPECT_EQ(written, 13);
}

TEST(VosPrintf, IsNotFiltered)
{
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_info, nullptr, 1), VOS_OK);
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, nullptr, 1), VOS_OK);
    test::CapturedOutput output;
    VOS_Printf("line\r\n");
    EXPECT_EQ(output.take(), "line\r\n");
    vos_info_print_filter_clear();
}

TEST(VosPrintf, WorksFromC)
{
    test::CapturedOutput output;
    const INT32 written = printFromC("rrcComposeX", 12);
    EXPECT_EQ(output.take(), "rrcComposeX.12\r\n");
    EXPECT_EQ(written, 16);
}

TEST(VosPrintf, KeepsLinesLongerThanAnyBuffer)
{
    const std::string text(100000, 'x');
    test::CapturedOutput output;
    const INT32 written = VOS_Printf("%s", text.c_str());
    EXPECT_EQ(output.take(), text);
    EXPECT_EQ(written, 100000);
}

TEST(VosMemZero, ClearsExactlyTheGivenOctets)
{
    std::array<UINT8, 6> octets{1, 2, 3, 4, 5, 6};
    VOS_MemZero(&octets[1], 4);
    EXPECT_EQ(octets, (std::array<UINT8, 6>{1, 0, 0, 0, 0, 6}));
    VOS_MemZero(&octets[0], 0);
    EXPECT_EQ(octets[0], 1);
}

TEST(VosMemZero, OfANullPointerDoesNothing)
{
    VOS_MemZero(nullptr, 0);
    VOS_MemZero(nullptr, 16);
}

TEST(VosMemCpy, CopiesExactlyTheGivenOctets)
{
    const std::array<UINT8, 4> source{9, 8, 7, 6};
    std::array<UINT8, 4> target{1, 2, 3, 4};
    VOS_MemCpy(&target[1], source.data(), 2);
    EXPECT_EQ(target, (std::array<UINT8, 4>{1, 9, 8, 4}));
}

TEST(VosMemCpy, OfNothingNeedsNoPointers)
{
    VOS_MemCpy(nullptr, nullptr, 0);
}
