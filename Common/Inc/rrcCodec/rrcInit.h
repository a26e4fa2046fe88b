#ifndef RRCINIT_H
#define RRCINIT_H

#include "cellgroupcfg_export.h"
#include "rrcCodec/rrcCodec.h"
#include "rrcCodec/rrcRecords.h"

/*
 * rrcInit(pRecord) makes any record of the cell group empty, whatever its memory held: masks and counts 0, and 0 in
 * each field that is sent without being switched on. It composes to what a record cleared whole composes to.
 *
 * What lies behind a mask or a count is not initialised with it, so that a cell group takes some hundred octets and not
 * ten million. Whoever switches a record on initialises it, large or small:
 *
 *     rrcInit(record);
 *     record->bitMask |= RRC_CELLGROUPCFG_SPCELL_PRESENCE;
 *     rrcInit(&record->spCellCfg);
 *     record->rlcBearerAddModNum = 1;
 *     rrcInit(&record->rlcBearerCfg[0]);
 *
 * pRecord is a pointer to one record, never null: to a structure of rrcCodec or gnbCommon that has a name of its own.
 * Anything else, a pointer's address too, does not compile, in C as in C++.
 *
 * With RRC_INIT_PATTERN defined, in the program or in the files that fill records, rrcInit fills all that lies behind
 * masks and counts with octets 0xA5. A record that is switched on and not initialised is then refused, or shows them in
 * what is sent; without it, it holds whatever its memory held, or 0. docs/record.md says how tools name the place.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** What rrcInit calls with the number of the record's type (rrcRecords.h); which of the two is RRC_INIT_PATTERN's. */
CELLGROUPCFG_API void rrcInitRecord(void* pRecord, UINT32 number);
CELLGROUPCFG_API void rrcInitRecordWithPattern(void* pRecord, UINT32 number);

#ifdef __cplusplus
}
#endif

#ifdef RRC_INIT_PATTERN
#define RRC_INIT_RECORD rrcInitRecordWithPattern
#else
#define RRC_INIT_RECORD rrcInitRecord
#endif

#ifdef __cplusplus

/** The number of a record's type; other types have none. */
template <typename Type>
struct RrcRecordNumber
{
    static constexpr bool isRecord = false;
    static constexpr UINT32 number = 0;
};
#define RRC_RECORD_NUMBER(Type, theNumber)                                                                             \
    template <>                                                                                                        \
    struct RrcRecordNumber<Type>                                                                                       \
    {                                                                                                                  \
        static constexpr bool isRecord = true;                                                                         \
        static constexpr UINT32 number = theNumber;                                                                    \
    };
RRC_RECORDS(RRC_RECORD_NUMBER)
#undef RRC_RECORD_NUMBER

template <typename Type>
void rrcInit(Type* pRecord)
{
    static_assert(RrcRecordNumber<Type>::isRecord, "rrcInit takes the address of a record of the cell group");
    RRC_INIT_RECORD(pRecord, RrcRecordNumber<Type>::number);
}

#else

#define RRC_RECORD_NUMBER(Type, theNumber) , Type : theNumber
#define rrcInit(pRecord) RRC_INIT_RECORD((pRecord), _Generic(*(pRecord)RRC_RECORDS(RRC_RECORD_NUMBER)))

#endif

#endif
