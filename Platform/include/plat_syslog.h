#ifndef PLAT_SYSLOG_H
#define PLAT_SYSLOG_H

#include "vos_types.h"

#ifdef __cplusplus
extern "C"
{
#endif

/* Levels of the node's system log; they are not the numbers of syslog(3). */
#define SYSLOG_INFO 0
#define SYSLOG_WARNING 1
#define SYSLOG_ERR 2

/**
 * Writes one line to the system log. May be called from several threads at once. The library calls it and does not
 * define it: the definition comes from cellgroupcfg::platform, which hands the line to syslog(3), or from the
 * product.
 * @param moduleID  identity of the module that logs
 * @param level     SYSLOG_INFO, SYSLOG_WARNING or SYSLOG_ERR; the default takes any other level for SYSLOG_ERR
 * @param file      source file, only read, not null
 * @param line      line in that file
 * @param func      function that logs, only read, not null
 * @param text      the message, only read, not null, no format; may end in "\r\n"
 */
void VOS_SysLog(UINT32 moduleID, INT32 level, const char* file, INT32 line, const char* func, const char* text);

#ifdef __cplusplus
}
#endif

#endif
