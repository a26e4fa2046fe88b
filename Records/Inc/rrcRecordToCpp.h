#ifndef RRCRECORDTOCPP_H
#define RRCRECORDTOCPP_H

#include "asn1Runtime.h"
#include "rrcCodec/rrcCodec.h"
#include "vos_types.h"

/*
 * A record as the C++ statements that fill it: what was captured becomes the beginning of a test.
 */

#ifdef __cplusplus
extern "C"
{
#endif

#pragma GCC visibility push(default)

/**
 * Writes a statement for each mask, count and value that a composition reads, in the order of the headers; bits and
 * values of enumerations by their names where they have one. They compile where rrcCodec/rrcInit.h and
 * NR-RRC-Definitions.h are included, and fill a record that composes to the same, whatever its memory held: on machines
 * of this byte order, as they fill with numbers what holds octets as they lie in memory. Any record can be written,
 * whatever it holds; no memory is taken.
 * @param pRrcCellGroupCfg  never null
 * @param name              of a RrcCellGroupCfg_t or a reference to one in these statements: "record", "(*record)" by a
 *                          pointer to one; never null
 * @param sink              is given pieces of text in order, never null
 * @param arg               is handed to the sink
 */
void rrcRecordToCpp(const RrcCellGroupCfg_t* pRrcCellGroupCfg, const char* name, RtxPrintSink sink, void* arg);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
