// JSON to records: docs/record-json.md has the form. Valid C11 and C++20.
#ifndef RRCRECORDFROMJSON_H
#define RRCRECORDFROMJSON_H

#include "asn1FromText.h"
#include "rrcCodec/rrcCodec.h"

#ifdef __cplusplus
extern "C"
{
#endif

#pragma GCC visibility push(default)

// More values than a record's texts may have, those of the files that they include among them.
#define RRC_RECORD_MAX_VALUES 4000000

// A mistake in a text, or in a file that it includes.
typedef struct RrcRecordMistake
{
    const char* file;    // whose text it is in: the caller's `file`, empty where that is null, or an included one
    Asn1Mistake mistake; // its path is that of the field: spCellCfg.spCellDedicated.dlBwp[0].bwpId
    OSBOOL isUnread;     // no mistake: a field is given that no composition reads, by what the text says elsewhere
} RrcRecordMistake;

// Called once for each mistake, file by file in the order of the text; where there is none, in the same order for what
// is not read. Must not throw. May be null.
typedef void (*RrcRecordMistakeSink)(void* arg, const RrcRecordMistake* mistake);

// Reads a record. It is cleared first, all of it: what the text does not give is 0 or absent, masks, counts and
// alternatives that it does not give follow from what it gives. With mistakes the record is of no use.
//
// `file` is the name of the text's file: "$include" finds the files that it names beside it, and opens whatever the
// text names. With null nothing is opened, and "$include" is a mistake. Throws nothing and keeps nothing. Returns the
// number of mistakes, without fields that are not read.
int rrcRecordFromJson(RrcCellGroupCfg_t* record, const char* text, size_t length, const char* file,
                      RrcRecordMistakeSink sink, void* arg);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
