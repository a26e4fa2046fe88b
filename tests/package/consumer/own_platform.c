/* A product's whole platform layer. */
#include "own_platform.h"

#include <string.h>

#include "plat_syslog.h"
#include "vos_lib.h"

int ownConsoleLines = 0;

VosModulePrintFilter_t module_print_filter = {12};

INT32 VOS_Printf(const char* format, ...)
{
    (void)format;
    return ++ownConsoleLines;
}

void VOS_SysLog(UINT32 moduleID, INT32 level, const char* file, INT32 line, const char* func, const char* text)
{
    (void)moduleID;
    (void)level;
    (void)file;
    (void)line;
    (void)func;
    (void)text;
}

void VOS_MemZero(void* pMem, size_t size)
{
    if (pMem != NULL)
    {
        memset(pMem, 0, size);
    }
}

void VOS_MemCpy(void* pDst, const void* pSrc, size_t size)
{
    if (size != 0)
    {
        memcpy(pDst, pSrc, size);
    }
}

BOOL vos_info_print_filter_is_filtered(INT32 level, const char* name)
{
    (void)level;
    (void)name;
    return 0;
}
