// What a finding says: places of the record, elements, values and ranges in words.
#ifndef CHECKTEXT_H
#define CHECKTEXT_H

#include "rrcRecordType.h"
#include "rtxLine.h"
#include "rtxType.h"

namespace recordCheck
{

// A record on the way from the cell group to what is looked at.
struct Frame
{
    Frame(const RrcRecordType& itsType, const void* itsRecord, const Frame* around,
          const rtx::Type* itsContent = nullptr)
        : type(itsType), record(itsRecord), outer(around), content(itsContent)
    {
    }

    const RrcRecordType& type;
    const void* record;
    const Frame* outer;
    const rtx::Type* content; // of the alternative that it holds, where the record around it chooses
    UINT32 field = 0;         // that is looked at, and which entry
    UINT32 entry = 0;
    const RrcRecordOption* chosen[RRC_RECORD_MAX_CHOICES] = {};

    const RrcRecordField& at() const
    {
        return type.fields[field];
    }

    const void* place() const
    {
        return rrcRecordPlace(&at(), record, entry);
    }
};

// The type that an option of a choice is sent as; null: without option.
const rtx::Type* alternativeOf(const RrcRecordChoice& choice, const RrcRecordOption* option);

// The type of a value whose alternative is chosen elsewhere; null: it has none.
const rtx::Type* contentOf(const Frame& frame);

// What holds a list: the type with it as a member, and which.
struct Listed
{
    const rtx::Type* container;
    UINT16 member;
    const rtx::Type* list;
};

// The first list on a way.
Listed listOf(const rtx::Type* element, const RrcRecordWay& way);

// The greatest value of an enumeration that is no spare one.
INT64 lastValue(const rtx::Type& type);

bool isNamed(const rtx::Type* type);

INT64 nearest(INT64 value, INT64 lower, INT64 upper);

// A number and its value's name.
void appendValue(rtx::Line& line, const rtx::Type* type, INT64 value);

// Both ends of a range; one where they are the same.
void appendRange(rtx::Line& line, const rtx::Type* type, INT64 lower, INT64 upper);

// The value of an enumeration whose name has a number in it, as "ms40" has 40; -1: none.
INT64 valueNamed(const rtx::Type& type, INT64 number);

// Bits of a mask by their numbers: "bit 5", "bits 0..3, 9".
void appendBits(rtx::Line& line, UINT64 bits);

// The names of the bits that choose.
void appendBitNames(rtx::Line& line, const RrcRecordType& type, const RrcRecordChoice& choice);

// The path in the record of what is looked at.
void appendPath(rtx::Line& line, const Frame& frame);

void appendStep(rtx::Line& line, const rtx::Type& type, UINT16 step);

// The steps from an element; without the entry they end at the list.
void appendWay(rtx::Line& line, const rtx::Type* element, const RrcRecordWay& way, UINT32 entry, bool withEntry);

// The element that a record holds.
void appendElement(rtx::Line& line, const Frame& frame);

// The element that the field feeds; false: none.
bool appendFieldElement(rtx::Line& line, const Frame& frame);

} // namespace recordCheck

#endif
