// What lies behind the masks and counts of each record. rrcInitTable.cpp is made by scripts/records.py.
#ifndef RRCINITTABLE_H
#define RRCINITTABLE_H

#include "vos_types.h"

// A record, an array or a field that is not read as long as the masks and counts are 0; no mask and no count itself.
struct RrcInitSpan
{
    UINT32 offset;
    UINT32 size;
};

struct RrcInitRecord
{
    UINT32 size;
    UINT32 spanCount;
    const RrcInitSpan* spans; // in their order
};

// By the numbers of rrcRecords.h.
extern const RrcInitRecord rrcInitRecords[];

#endif
