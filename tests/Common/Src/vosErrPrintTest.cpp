#include "vos_err_print.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/CapturedOutput.h"
#include "support/CapturedSyslog.h"
#include "vos_lib.h"

using test::syslogEntries;
using test::SyslogEntry;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class ErrPrint : public testing::Test
{
protected:
    void SetUp() override
    {
        syslogEntries.clear();
        module_print_filter.moduleID = 5;
    }

    void TearDown() override
    {
        vos_info_print_filter_clear();
        module_print_filter.moduleID = 0;
    }

    test::CapturedOutput output_;
};

INT32 lineOfError;

void rrcComposeSomething()
{
    lineOfError = __LINE__ + 1;
    vos_err_print("pSomething is null\r\n");
}

} // namespace

TEST_F(ErrPrint, PrintsTheRedLineAndLogsIt)
{
    vosErrLine("Common/Src/file.cpp", 42, "rrcComposeX", "pX is null\r\n");
    EXPECT_EQ(output_.take(), "\033[1;31mrrcComposeX.42:pX is null\r\n\033[m");
    EXPECT_THAT(syslogEntries, ElementsAre(SyslogEntry{LOG_ERR, "[5] Common/Src/file.cpp:42 rrcComposeX: pX is null"}));
}

TEST_F(ErrPrint, NamesTheCallingFunctionAndItsLine)
{
    rrcComposeSomething();
    const std::string line = std::to_string(lineOfError);
    EXPECT_EQ(output_.take(), "\033[1;31mrrcComposeSomething." + line + ":pSomething is null\r\n\033[m");
    EXPECT_THAT(syslogEntries, ElementsAre(SyslogEntry{LOG_ERR, "[5] tests/Common/Src/vosErrPrintTest.cpp:" + line +
                                                                    " rrcComposeSomething: pSomething is null"}));
}

TEST_F(ErrPrint, IsSilentWhenTheFunctionIsFiltered)
{
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "rrcComposeX", 1), VOS_OK);
    vosErrLine("f", 42, "rrcComposeX", "a\r\n");
    vosErrLine("f", 43, "rrcComposeX", "b\r\n");
    EXPECT_EQ(output_.take(), "");
    EXPECT_THAT(syslogEntries, IsEmpty());

    vosErrLine("f", 42, "rrcComposeXY", "c\r\n");
    EXPECT_EQ(output_.take(), "\033[1;31mrrcComposeXY.42:c\r\n\033[m");
}

TEST_F(ErrPrint, IsSilentWhenTheFunctionsLineIsFiltered)
{
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "rrcComposeX.42", 1), VOS_OK);
    vosErrLine("f", 42, "rrcComposeX", "a\r\n");
    EXPECT_EQ(output_.take(), "");
    EXPECT_THAT(syslogEntries, IsEmpty());

    vosErrLine("f", 43, "rrcComposeX", "b\r\n");
    EXPECT_EQ(output_.take(), "\033[1;31mrrcComposeX.43:b\r\n\033[m");
    EXPECT_EQ(syslogEntries.size(), 1U);
}

TEST_F(ErrPrint, HeedsTheErrorLevelOnly)
{
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_info, nullptr, 1), VOS_OK);
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_warning, "rrcComposeX", 1), VOS_OK);
    vosErrLine("f", 1, "rrcComposeX", "a\r\n");
    EXPECT_EQ(output_.take(), "\033[1;31mrrcComposeX.1:a\r\n\033[m");

    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, nullptr, 1), VOS_OK);
    vosErrLine("f", 1, "rrcComposeX", "a\r\n");
    EXPECT_EQ(output_.take(), "");
}

TEST_F(ErrPrint, AsksTheFilterAtEveryCall)
{
    for (const BOOL filtered : {1, 0, 1, 0})
    {
        ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "rrcComposeX", filtered), VOS_OK);
        vosErrLine("f", 1, "rrcComposeX", "a\r\n");
        EXPECT_EQ(output_.take(), filtered != 0 ? "" : "\033[1;31mrrcComposeX.1:a\r\n\033[m");
    }
}

TEST_F(ErrPrint, TakesTheTextForNoFormat)
{
    vosErrLine("f", 1, "g", "100%s %n %d\r\n");
    EXPECT_EQ(output_.take(), "\033[1;31mg.1:100%s %n %d\r\n\033[m");
}

TEST_F(ErrPrint, CutsOnlyTheFiltersString)
{
    const std::string func(250, 'f');
    vosErrLine("f", 1, func.c_str(), "a\r\n");
    EXPECT_EQ(output_.take(), "\033[1;31m" + func + ".1:a\r\n\033[m");

    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, func.substr(0, 199).c_str(), 1), VOS_OK);
    vosErrLine("f", 1, func.c_str(), "a\r\n");
    EXPECT_EQ(output_.take(), "");
}
