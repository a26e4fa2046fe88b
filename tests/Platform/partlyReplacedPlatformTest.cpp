// This program has a console of its own and takes everything else from cellgroupcfg::platform.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdarg>
#include <cstdio>
#include <string>
#include <vector>

#include "rrcCodec/rrcCodec.h"
#include "support/CapturedOutput.h"
#include "support/CapturedSyslog.h"
#include "vos_err_print.h"
#include "vos_lib.h"

namespace
{

std::vector<std::string> console;

} // namespace

INT32 VOS_Printf(const char* format, ...)
{
    char line[400];
    va_list args;
    va_start(args, format);
    const int length = std::vsnprintf(line, sizeof(line), format, args);
    va_end(args);
    console.emplace_back(line);
    return length;
}

TEST(PartlyReplacedPlatform, OwnConsoleDefaultFilterAndSystemLog)
{
    static RrcCellGroupCfg_t record;
    static UINT8 octets[8192];
    record.cellGroupId = 9;
    Mbuf_t mbuf{};
    mbuf.buf = octets;

    test::CapturedOutput output;
    EXPECT_EQ(rrcComposeCellGroupCfg(&record, &mbuf), VOS_ERROR);
    ASSERT_FALSE(console.empty());
    EXPECT_EQ(console.front(), "rrcComposeCellGroupCfg Error\r\n");
    EXPECT_THAT(output.take(), testing::Not(testing::HasSubstr("rrcComposeCellGroupCfg Error")));

    vosErrLine("f", 1, "rrcComposeX", "a\r\n");
    EXPECT_EQ(output.take(), "\033[1;31mrrcComposeX.1:a\r\n\033[m");
    EXPECT_EQ(test::syslogEntries.size(), 1U);

    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "rrcComposeX", 1), VOS_OK);
    vosErrLine("f", 1, "rrcComposeX", "a\r\n");
    vos_info_print_filter_clear();
    EXPECT_EQ(output.take(), "");
    EXPECT_EQ(test::syslogEntries.size(), 1U);
}
