#ifndef VOS_LIB_H
#define VOS_LIB_H

#include <stddef.h>

#include "vos_types.h"

/*
 * Console, memory helpers and the print filter. The library calls what is declared here and defines none of it: the
 * definitions come from cellgroupcfg::platform or from the product, chosen when the program is linked. Every function
 * may be called from several threads at once.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/**
 * Writes one plain console line: no colour, no prefix, not filtered.
 * @param format  printf format, never null, with the arguments that it asks for; only read
 * @return        characters written, or a negative number when the console could not be written
 */
INT32 VOS_Printf(const char* format, ...) __attribute__((format(printf, 1, 2)));

/**
 * Sets memory to zero.
 * @param pMem  start of at least size octets of the caller; null: nothing is done
 * @param size  number of octets, may be 0
 */
void VOS_MemZero(void* pMem, size_t size);

/**
 * Copies memory.
 * @param pDst  start of at least size octets of the caller, not overlapping the source
 * @param pSrc  start of at least size octets, only read
 * @param size  number of octets; 0: nothing is done and the pointers may be null
 */
void VOS_MemCpy(void* pDst, const void* pSrc, size_t size);

/** Levels of a print, as the print filter is asked with them. */
enum _vos_print_lv
{
    _vos_print_lv_info = 0,
    _vos_print_lv_warning = 1,
    _vos_print_lv_err = 2
};

/** What the print filter knows of the module whose prints it filters. */
typedef struct vosModulePrintFilter_s
{
    UINT32
    moduleID; /**< identity that the module's system log lines carry; any value, 0 unless the program sets it */
} VosModulePrintFilter_t;

/** The module's own entry. The program may write it before the first call into the library, not during one. */
extern VosModulePrintFilter_t module_print_filter;

/**
 * Says whether a print is to be left out.
 * @param level  one of _vos_print_lv; any other level is never filtered
 * @param name   what prints: "function" or "function.line", compared whole; only read; null asks for the level
 * alone
 * @return       non-zero when the level as a whole or this name at this level is filtered, else 0
 */
BOOL vos_info_print_filter_is_filtered(INT32 level, const char* name);

/** Most characters of a name that can be filtered, without the terminating zero. */
#define VOS_PRINT_FILTER_NAME_MAX 199

/** Most names that can be filtered at one time, all levels together. */
#define VOS_PRINT_FILTER_ENTRIES 64

/**
 * Starts or stops filtering one name, or a level as a whole. The two are independent: a name stays filtered when
 * its level is switched on again. Belongs to the default implementation; the library itself never calls it.
 * @param level     one of _vos_print_lv
 * @param name      "function" or "function.line", 1 to VOS_PRINT_FILTER_NAME_MAX characters, copied;
 *                  null stands for everything at this level
 * @param filtered  non-zero: leave these prints out from now on; 0: print them again
 * @return          VOS_OK, also when nothing had to change; VOS_ERROR, with the filter as it was, when the level is
 *                  unknown, the name is empty or too long, or all VOS_PRINT_FILTER_ENTRIES are taken
 */
INT32 vos_info_print_filter_set(INT32 level, const char* name, BOOL filtered);

/** Prints everything again: drops all filtered names and levels. Belongs to the default implementation. */
void vos_info_print_filter_clear(void);

#ifdef __cplusplus
}
#endif

#endif
