// A walk over what a composition reads of a record.
#ifndef WALK_H
#define WALK_H

#include "rrcRecordType.h"

namespace records
{

// Every field that a composition reads, with its place: visit(type, field, place of its record, entries). It returns
// whether to go on to what is in it.
template <typename Visit>
void walk(const RrcRecordType& type, const void* record, Visit& visit);

template <typename Visit>
void walkField(const RrcRecordType& type, UINT32 index, const void* record, UINT32 entries, INT32 member, Visit& visit)
{
    const RrcRecordField& field = type.fields[index];
    const bool goOn = visit(type, index, record, entries);
    for (UINT32 entry = 0; entry < entries && goOn && field.record != nullptr; ++entry)
    {
        const void* const place = rrcRecordPlace(&field, record, entry);
        if (field.kind == RRC_FIELD_RECORD)
        {
            walk(*field.record, place, visit);
        }
        else if (member >= 0 && field.record->fields[member].kind != RRC_FIELD_UNREAD)
        {
            const auto which = static_cast<UINT32>(member);
            walkField(*field.record, which, place, rrcRecordEntries(field.record, place, which), -1, visit);
        }
    }
}

template <typename Visit>
void walk(const RrcRecordType& type, const void* record, Visit& visit)
{
    for (UINT32 i = 0; i < type.fieldCount; ++i)
    {
        if (rrcRecordIsRead(&type, record, i) != 0)
        {
            walkField(type, i, record, rrcRecordEntries(&type, record, i), rrcRecordMember(&type, record, i), visit);
        }
    }
}

} // namespace records

#endif
