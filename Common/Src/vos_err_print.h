#ifndef VOS_ERR_PRINT_H
#define VOS_ERR_PRINT_H

#include "vos_types.h"

/**
 * Reports an error of the calling function: a red console line "function.line:text" and the same in the system log,
 * unless the print filter leaves out "function.line" or "function" at the error level.
 * @param text  the message, never a format, with its own line end
 */
#define vos_err_print(text) vosErrLine(__FILE__, __LINE__, __func__, (text))

/* Cold, so that no code of an error lies between that of the values. */
__attribute__((cold)) void vosErrLine(const char* file, INT32 line, const char* func, const char* text);

#endif
