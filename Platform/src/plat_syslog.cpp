#include "plat_syslog.h"

#include <syslog.h>

#include <cstring>

void VOS_SysLog(UINT32 moduleID, INT32 level, const char* file, INT32 line, const char* func, const char* text)
{
    const int priority = level == SYSLOG_INFO ? LOG_INFO : level == SYSLOG_WARNING ? LOG_WARNING : LOG_ERR;
    // One entry is one line there: the console's line end has no place in it.
    const std::size_t length = std::strcspn(text, "\r\n");
    syslog(priority, "[%u] %s:%d %s: %.*s", moduleID, file, line, func, static_cast<int>(length), text);
}
