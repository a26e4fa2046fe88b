// The console of the libraries: whatever they print is words, which go to standard error. Nothing goes to the system
// log.
#include "plat_syslog.h"
#include "vos_lib.h"

#include <cstdarg>
#include <cstdio>

INT32 VOS_Printf(const char* format, ...)
{
    va_list args;
    va_start(args, format);
    const INT32 length = std::vfprintf(stderr, format, args);
    va_end(args);
    return length;
}

void VOS_SysLog(UINT32, INT32, const char*, INT32, const char*, const char*) {}
