#include <cstdarg>
#include <cstdio>

#include "vos_lib.h"

INT32 VOS_Printf(const char* format, ...)
{
    std::va_list args;
    va_start(args, format);
    const INT32 written = std::vprintf(format, args);
    va_end(args);
    return written;
}
