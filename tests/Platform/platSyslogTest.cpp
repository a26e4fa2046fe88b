#include "plat_syslog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/CapturedOutput.h"
#include "support/CapturedSyslog.h"

using test::syslogEntries;
using test::SyslogEntry;
using testing::ElementsAre;

TEST(VosSysLog, HandsOneLineToSyslog)
{
    syslogEntries.clear();
    test::CapturedOutput output;
    VOS_SysLog(77, SYSLOG_ERR, "Common/Src/file.cpp", 12, "rrcComposeX", "pX is null\r\n");
    EXPECT_THAT(syslogEntries,
                ElementsAre(SyslogEntry{LOG_ERR, "[77] Common/Src/file.cpp:12 rrcComposeX: pX is null"}));
    EXPECT_EQ(output.take(), "");
}

TEST(VosSysLog, TranslatesTheLevels)
{
    syslogEntries.clear();
    for (const INT32 level : {SYSLOG_INFO, SYSLOG_WARNING, SYSLOG_ERR, 3, -1})
    {
        VOS_SysLog(0, level, "f", 1, "g", "t");
    }
    EXPECT_THAT(syslogEntries,
                ElementsAre(SyslogEntry{LOG_INFO, "[0] f:1 g: t"}, SyslogEntry{LOG_WARNING, "[0] f:1 g: t"},
                            SyslogEntry{LOG_ERR, "[0] f:1 g: t"}, SyslogEntry{LOG_ERR, "[0] f:1 g: t"},
                            SyslogEntry{LOG_ERR, "[0] f:1 g: t"}));
}

TEST(VosSysLog, TakesTheTextForNoFormat)
{
    syslogEntries.clear();
    VOS_SysLog(4294967295U, SYSLOG_ERR, "%s", 1, "%n", "%d%s%n\n");
    EXPECT_THAT(syslogEntries, ElementsAre(SyslogEntry{LOG_ERR, "[4294967295] %s:1 %n: %d%s%n"}));
}
