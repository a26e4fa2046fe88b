#include "vos_err_print.h"

#include <cstdio>

#include "failureLines.h"
#include "plat_syslog.h"
#include "vos_lib.h"

void vosErrLine(const char* file, INT32 line, const char* func, const char* text)
{
    FailureLines::add(func, text);

    char place[200];
    // A function name too long for the filter's string is cut there, never in the line itself.
    (void)std::snprintf(place, sizeof(place), "%s.%d", func, line);

    if (vos_info_print_filter_is_filtered(_vos_print_lv_err, place) != 0 ||
        vos_info_print_filter_is_filtered(_vos_print_lv_err, func) != 0)
    {
        return;
    }

    (void)std::printf("\033[1;31m%s.%d:%s\033[m", func, line, text);
    VOS_SysLog(module_print_filter.moduleID, SYSLOG_ERR, file, line, func, text);
}
