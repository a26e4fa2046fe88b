#include "rrcRecordType.h"

#include <cstring>

#include "byteOrder.h"
#include "recordNumbers.h"
#include "rtxType.h"

namespace
{

bool isSet(const RrcRecordType* type, const void* record, INT16 bit)
{
    const RrcRecordBit& found = type->bits[bit];
    return (rrcRecordBits(&type->fields[found.mask], record, 0) >> found.number & 1) != 0 &&
           rrcRecordIsRead(type, record, found.mask) != 0 && (found.with < 0 || isSet(type, record, found.with));
}

class Follow
{
public:
    Follow(const RrcRecordType& type, const RrcRecordGiven& given, RrcRecordFollowing& to)
        : type_(type), given_(given), to_(to)
    {
    }

    void run()
    {
        to_ = {0, {-1, -1, -1, -1}};
        for (unsigned i = 0; i < type_.fieldCount; ++i)
        {
            if (isGiven(i))
            {
                read(i);
                if (type_.fields[i].count >= 0)
                {
                    read(static_cast<unsigned>(type_.fields[i].count));
                }
            }
        }
        for (unsigned i = 0; i < type_.choiceCount; ++i)
        {
            choose(i);
        }
    }

private:
    bool isGiven(unsigned field) const
    {
        return (given_.fields >> field & 1) != 0;
    }

    // A field is to be read.
    void read(unsigned field)
    {
        const RrcRecordField& found = type_.fields[field];
        set(found.guard);
        if (found.choice >= 0)
        {
            set(type_.fields[type_.choices[found.choice].selector].guard);
        }
    }

    void set(INT16 bit)
    {
        if (bit < 0 || (to_.bits >> bit & 1) != 0)
        {
            return;
        }
        to_.bits |= UINT64{1} << bit;
        set(type_.bits[bit].with);
        set(type_.fields[type_.bits[bit].mask].guard);
    }

    bool holds(const RrcRecordOption& option, unsigned field) const
    {
        const RrcRecordField& found = type_.fields[field];
        if (found.alternative >= 0)
        {
            return option.sentAs == found.alternative;
        }
        return option.field == static_cast<INT32>(field) &&
               (found.kind != RRC_FIELD_UNION || option.member == given_.members[field]);
    }

    void choose(unsigned choice)
    {
        const RrcRecordChoice& found = type_.choices[choice];
        INT16 only = -1;
        for (unsigned i = 0; i < found.optionCount; ++i)
        {
            bool any = false;
            bool all = true;
            for (unsigned field = 0; field < type_.fieldCount; ++field)
            {
                if (isGiven(field) && type_.fields[field].choice == static_cast<INT32>(choice))
                {
                    any = true;
                    all = all && holds(found.options[i], field);
                }
            }
            if (any && all)
            {
                if (only >= 0)
                {
                    return;
                }
                only = static_cast<INT16>(i);
            }
        }
        to_.options[choice] = only;
        if (only >= 0)
        {
            set(found.options[only].bit);
        }
    }

    const RrcRecordType& type_;
    const RrcRecordGiven& given_;
    RrcRecordFollowing& to_;
};

} // namespace

const void* rrcRecordPlace(const RrcRecordField* field, const void* record, UINT32 index)
{
    return static_cast<const unsigned char*>(record) + field->offset + static_cast<size_t>(index) * field->size;
}

UINT64 rrcRecordBits(const RrcRecordField* field, const void* record, UINT32 index)
{
    const UINT64 bits = records::bitsAt(field->size, rrcRecordPlace(field, record, index));
    return field->bitWidth == 0
               ? bits
               : bits >> rtx::bitFieldShift(field->size, field->bitWidth) & records::lowBits(field->bitWidth);
}

INT64 rrcRecordNumber(const RrcRecordField* field, const void* record, UINT32 index)
{
    const UINT64 bits = rrcRecordBits(field, record, index);
    return static_cast<INT64>(records::isSignedNumber(*field) ? records::signExtended(bits, field->size) : bits);
}

void rrcRecordStore(const RrcRecordField* field, void* record, UINT32 index, UINT64 bits)
{
    unsigned char* const place = static_cast<unsigned char*>(record) + field->offset + size_t{index} * field->size;
    if (field->bitWidth != 0)
    {
        UINT64 before = 0;
        std::memcpy(rtx::lowOctets(before, field->size), place, field->size);
        const unsigned shift = rtx::bitFieldShift(field->size, field->bitWidth);
        const UINT64 own = ((UINT64{1} << field->bitWidth) - 1) << shift;
        bits = (before & ~own) | (bits << shift & own);
    }
    std::memcpy(place, rtx::lowOctets(bits, field->size), field->size);
}

UINT32 rrcRecordEntries(const RrcRecordType* type, const void* record, UINT32 field)
{
    const RrcRecordField& found = type->fields[field];
    if (found.bound == 0)
    {
        return 1;
    }
    if (found.count < 0)
    {
        return found.bound;
    }
    const RrcRecordField& counter = type->fields[found.count];
    UINT64 count = rrcRecordBits(&counter, record, 0);
    if (counter.bits != 0)
    {
        count &= (UINT64{1} << counter.bits) - 1;
    }
    return count < found.bound ? static_cast<UINT32>(count) : found.bound;
}

const RrcRecordOption* rrcRecordChosen(const RrcRecordType* type, const void* record, UINT32 choice)
{
    const RrcRecordChoice& found = type->choices[choice];
    return rrcRecordIsRead(type, record, found.selector) == 0
               ? nullptr
               : records::optionBy(found, rrcRecordBits(&type->fields[found.selector], record, 0));
}

INT32 rrcRecordChoiceBy(const RrcRecordType* type, UINT32 selector)
{
    for (INT32 i = 0; i < INT32{type->choiceCount}; ++i)
    {
        if (type->choices[i].selector == selector)
        {
            return i;
        }
    }
    return -1;
}

const RtxType* rrcRecordValueType(const RrcRecordType* type, const void* record, UINT32 field)
{
    const INT16 choice = type->fields[field].choice;
    const RrcRecordOption* const option =
        choice < 0 ? nullptr : rrcRecordChosen(type, record, static_cast<UINT32>(choice));
    return option == nullptr ? nullptr : type->choices[choice].way.target->members[option->alternative].type;
}

INT32 rrcRecordIsRead(const RrcRecordType* type, const void* record, UINT32 field)
{
    const RrcRecordField& found = type->fields[field];
    if (found.kind == RRC_FIELD_UNREAD || (found.guard >= 0 && !isSet(type, record, found.guard)))
    {
        return 0;
    }
    if (found.choice < 0)
    {
        return 1;
    }
    const RrcRecordOption* const option = rrcRecordChosen(type, record, static_cast<UINT32>(found.choice));
    if (option == nullptr)
    {
        return 0;
    }
    return found.alternative < 0 ? option->field == static_cast<INT32>(field) : option->sentAs == found.alternative;
}

INT32 rrcRecordMember(const RrcRecordType* type, const void* record, UINT32 field)
{
    const RrcRecordField& found = type->fields[field];
    if (found.choice < 0)
    {
        return -1;
    }
    const RrcRecordOption* const option = rrcRecordChosen(type, record, static_cast<UINT32>(found.choice));
    return option != nullptr && option->field == static_cast<INT32>(field) ? option->member : -1;
}

void rrcRecordFollow(const RrcRecordType* type, const RrcRecordGiven* given, RrcRecordFollowing* following)
{
    Follow(*type, *given, *following).run();
}

UINT64 rrcRecordFollowingMask(const RrcRecordType* type, const RrcRecordFollowing* following, UINT32 mask)
{
    UINT64 bits = 0;
    for (unsigned i = 0; i < type->bitCount; ++i)
    {
        if (type->bits[i].mask == mask && (following->bits >> i & 1) != 0)
        {
            bits |= UINT64{1} << type->bits[i].number;
        }
    }
    return bits;
}
