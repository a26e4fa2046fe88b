// This program is linked without cellgroupcfg::platform: the functions below are the whole platform layer.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "plat_syslog.h"
#include "rrcCodec/rrcCodec.h"
#include "support/CapturedOutput.h"
#include "vos_err_print.h"
#include "vos_lib.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

std::vector<std::string> console;
std::vector<std::string> systemLog;
std::vector<std::string> asked;
std::string filtered;

class ReplacedPlatform : public testing::Test
{
protected:
    void SetUp() override
    {
        console.clear();
        systemLog.clear();
        asked.clear();
        filtered.clear();
    }
};

} // namespace

VosModulePrintFilter_t module_print_filter = {4711};

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

void VOS_SysLog(UINT32 moduleID, INT32 level, const char* file, INT32 line, const char* func, const char* text)
{
    systemLog.push_back(std::to_string(moduleID) + "|" + std::to_string(level) + "|" + file + "|" +
                        std::to_string(line) + "|" + func + "|" + text);
}

void VOS_MemZero(void* pMem, size_t size)
{
    if (pMem != nullptr)
    {
        std::memset(pMem, 0, size);
    }
}

void VOS_MemCpy(void* pDst, const void* pSrc, size_t size)
{
    if (size != 0)
    {
        std::memcpy(pDst, pSrc, size);
    }
}

BOOL vos_info_print_filter_is_filtered(INT32 level, const char* name)
{
    asked.push_back(std::to_string(level) + " " + name);
    return filtered == name ? 1 : 0;
}

TEST_F(ReplacedPlatform, TheErrorLineGoesToTheProductsSystemLog)
{
    test::CapturedOutput output;
    vosErrLine("Common/Src/file.cpp", 42, "rrcComposeX", "pX is null\r\n");
    EXPECT_THAT(systemLog, ElementsAre("4711|2|Common/Src/file.cpp|42|rrcComposeX|pX is null\r\n"));
    EXPECT_EQ(output.take(), "\033[1;31mrrcComposeX.42:pX is null\r\n\033[m");
    EXPECT_THAT(console, IsEmpty());
}

TEST_F(ReplacedPlatform, TheProductsFilterIsAskedTwiceAndObeyed)
{
    test::CapturedOutput output;
    vosErrLine("f", 42, "rrcComposeX", "a\r\n");
    EXPECT_THAT(asked, ElementsAre("2 rrcComposeX.42", "2 rrcComposeX"));
    systemLog.clear();
    output.take();

    for (const char* name : {"rrcComposeX.42", "rrcComposeX"})
    {
        filtered = name;
        vosErrLine("f", 42, "rrcComposeX", "a\r\n");
        EXPECT_EQ(output.take(), "");
        EXPECT_THAT(systemLog, IsEmpty());
    }
}

TEST_F(ReplacedPlatform, TheEntryPrintsOnTheProductsConsole)
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
}
