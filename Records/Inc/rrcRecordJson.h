#ifndef RRCRECORDJSON_H
#define RRCRECORDJSON_H

#include "asn1Runtime.h"
#include "rrcCodec/rrcCodec.h"

/*
 * A record as JSON, so that it can be logged where it fails, read, changed and composed again elsewhere. The form
 * stands in docs/record-json.md; rrcRecordFromJson.h of the host library cellgroupcfg::json reads it back.
 */

#ifdef __cplusplus
extern "C"
{
#endif

#pragma GCC visibility push(default)

/**
 * Writes what a composition of the record reads, and nothing else. The record may hold anything: values out of range
 * are written as numbers, a count beyond its array is, beside the entries that there are. Nothing is allocated or kept;
 * any thread may call it. The text is JSON of several lines.
 *
 * @param record  RrcCellGroupCfg_t, the caller's; null is written as null
 * @param sink    called with each piece of the text in order, terminated, of a line or less
 * @param arg     for the sink
 */
void rrcRecordToJson(const RrcCellGroupCfg_t* record, RtxPrintSink sink, void* arg);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
