// What the libraries ask of a system, where there is none: no console, no log, one thread, no files.
#include "files.h"
#include "plat_syslog.h"
#include "vos_lib.h"

INT32 VOS_Printf(const char* format, ...)
{
    (void)format;
    return 0;
}

void VOS_SysLog(UINT32 moduleID, INT32 level, const char* file, INT32 line, const char* func, const char* text)
{
    (void)moduleID, (void)level, (void)file, (void)line, (void)func, (void)text;
}

// Everything: what would be printed goes nowhere.
BOOL vos_info_print_filter_is_filtered(INT32 level, const char* name)
{
    (void)level, (void)name;
    return 1;
}

namespace text
{

std::string besideFile(std::string_view file, std::string_view name)
{
    (void)file;
    return std::string(name);
}

bool readFile(const std::string& name, std::string& content, std::string& why)
{
    (void)name, (void)content, (void)why;
    return false;
}

} // namespace text
