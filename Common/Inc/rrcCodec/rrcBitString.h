#ifndef RRCBITSTRING_H
#define RRCBITSTRING_H

#include "cellgroupcfg_export.h"
#include "vos_types.h"

/*
 * Long bit strings of fixed size, as they stand in an ASN.1 BIT STRING: the low N bits of a number, most significant
 * bit first, left-aligned in ceil(N / 8) octets, the bits behind the last one zero. Bits of the number above the N-th
 * are dropped. Exactly these octets are written; neither pointer nor number is checked.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/**
 * Packs a 43-bit string.
 * @param num   the bits, in its low 43 bits
 * @param elem  gets 6 octets
 */
CELLGROUPCFG_API void uint64ToBitString43bit(UINT64 num, UINT8* elem);

/**
 * Packs a 48-bit string.
 * @param num   the bits, in its low 48 bits
 * @param elem  gets 6 octets
 */
CELLGROUPCFG_API void uint64ToBitString48bit(UINT64 num, UINT8* elem);

/**
 * Packs a 59-bit string.
 * @param num   the bits, in its low 59 bits
 * @param elem  gets 8 octets
 */
CELLGROUPCFG_API void uint64ToBitString59bit(UINT64 num, UINT8* elem);

/**
 * Packs a 64-bit string.
 * @param num   the bits
 * @param elem  gets 8 octets
 */
CELLGROUPCFG_API void uint64ToBitString64bit(UINT64 num, UINT8* elem);

#ifdef __cplusplus
}
#endif

#endif
