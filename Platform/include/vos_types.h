#ifndef VOS_TYPES_H
#define VOS_TYPES_H

#include <assert.h>
#include <stdint.h>

typedef uint8_t UINT8;
typedef uint16_t UINT16;
typedef uint32_t UINT32;
typedef uint64_t UINT64;

typedef int8_t INT8;
typedef int16_t INT16;
typedef int32_t INT32;
typedef int64_t INT64;

/** Truth value, 32 bits wide in every record: 0 is false, 1 is true. docs/behaviour.md says what other numbers do. */
typedef int BOOL;

static_assert(sizeof(BOOL) == 4, "BOOL is a 32-bit int");

/** Result of a call that succeeded. */
#define VOS_OK 0
/** Result of a call that failed. */
#define VOS_ERROR (-1)

#endif
