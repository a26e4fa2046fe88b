/* The platform headers and functions as a C program sees them. */
#include "plat_syslog.h"
#include "vos_lib.h"
#include "vos_types.h"

static_assert(sizeof(UINT8) == 1 && sizeof(UINT16) == 2 && sizeof(UINT32) == 4 && sizeof(UINT64) == 8, "unsigned");
static_assert(sizeof(INT8) == 1 && sizeof(INT16) == 2 && sizeof(INT32) == 4 && sizeof(INT64) == 8, "signed");
static_assert((UINT8)-1 > 0 && (UINT16)-1 > 0 && (UINT32)-1 > 0 && (UINT64)-1 > 0, "unsigned");
static_assert((INT8)-1 < 0 && (INT16)-1 < 0 && (INT32)-1 < 0 && (INT64)-1 < 0 && (BOOL)-1 < 0, "signed");

INT32 printFromC(const char* name, INT32 number);

INT32 printFromC(const char* name, INT32 number)
{
    enum _vos_print_lv level = _vos_print_lv_err;
    if (vos_info_print_filter_is_filtered((INT32)level, name))
    {
        return VOS_ERROR;
    }
    return VOS_Printf("%s.%d\r\n", name, number);
}
