#ifndef CAPTUREDSYSLOG_H
#define CAPTUREDSYSLOG_H

#include <syslog.h>

#include <cstdarg>
#include <cstdio>
#include <string>
#include <vector>

namespace test
{

struct SyslogEntry
{
    int priority;
    std::string text;

    bool operator==(const SyslogEntry&) const = default;
};

inline std::vector<SyslogEntry> syslogEntries;

} // namespace test

// Stands before the C library's in the one program that includes this file.
extern "C" void syslog(int priority, const char* format, ...)
{
    char text[1024];
    va_list args;
    va_start(args, format);
    (void)std::vsnprintf(text, sizeof(text), format, args);
    va_end(args);
    test::syslogEntries.push_back({priority, text});
}

#endif
