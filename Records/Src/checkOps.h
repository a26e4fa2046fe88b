// The fields of a record as its check takes them: what it needs of each in 32 octets, where the description has 128.
// Made from that when it is compiled.
#ifndef CHECKOPS_H
#define CHECKOPS_H

#include "rrcRecordType.h"

#include <array>
#include <cstddef>

// Of the field with the same index.
struct RrcRecordCheckOp
{
    enum : UINT8
    {
        Skip,    // nothing of its own can be wrong with it
        Octet,   // a number of an octet without sign, or what is one as long as it is in range
        Two,     // the same of two octets
        Number,  // of any other size
        Mask,    // bits
        Count,   // entries of an array
        Record,  // a structure
        Records, // of an array
        Field,   // any other
        Doubtful // the same, and the guard's bit does not tell alone that it is read
    };

    INT64 lower; // of numbers and counts
    UINT64
    span; // of numbers and counts: how many follow the lower one; Mask: bits of which something may have to be said
    UINT32 offset;   // of the field
    UINT32 guard;    // of the octet that holds the guard
    UINT8 guardMask; // the bit in that octet; 0: none
    UINT8 code;
    UINT8 size; // of the field
    UINT8 isSigned;
    INT16 count; // of an array: the field that says how many entries are used; -1: none
};
static_assert(sizeof(RrcRecordCheckOp) <= 32);

namespace records
{

// The octet of a record that holds a bit, and the bit in it; none: no bit.
struct Guard
{
    UINT32 octet = 0;
    UINT8 mask = 0;
};

constexpr Guard guardOf(const RrcRecordField& field, const RrcRecordField* fields, const RrcRecordBit* bits)
{
    if (field.guard < 0)
    {
        return {};
    }
    const RrcRecordBit& bit = bits[field.guard];
    return {fields[bit.mask].offset + bit.number / 8U, static_cast<UINT8>(1U << bit.number % 8)};
}

// All that so many bits can hold.
constexpr UINT64 lowBits(unsigned count)
{
    return count >= 64 ? ~UINT64{0} : (UINT64{1} << count) - 1;
}

constexpr UINT64 spanOf(const RrcRecordField& field)
{
    return field.kind == RRC_FIELD_BITS      ? lowBits(field.bits)
           : field.kind == RRC_FIELD_BOOLEAN ? 1
                                             : static_cast<UINT64>(field.upper) - static_cast<UINT64>(field.lower);
}

// The bits of a mask that are not looked at without more.
constexpr UINT64 doubtfulBits(std::size_t mask, const RrcRecordField& field, const RrcRecordBit* bits, UINT16 bitCount)
{
    UINT64 doubtful = ~static_cast<UINT64>(field.upper) & lowBits(8U * field.size);
    for (UINT16 i = 0; i < bitCount; ++i)
    {
        if (bits[i].mask == mask && (bits[i].role == RRC_BIT_NOT_SENT || bits[i].with >= 0))
        {
            doubtful |= UINT64{1} << bits[i].number;
        }
    }
    return doubtful;
}

// Whether the guard's bit alone tells that a field is read.
constexpr bool isPlainlyGuarded(const RrcRecordField& field, const RrcRecordField* fields, const RrcRecordBit* bits)
{
    return field.guard < 0 || (bits[field.guard].with < 0 && fields[bits[field.guard].mask].guard < 0);
}

constexpr UINT8 checkCodeOf(const RrcRecordField& field, const RrcRecordField* fields, const RrcRecordBit* bits)
{
    if (field.kind == RRC_FIELD_UNREAD || field.kind == RRC_FIELD_ALTERNATIVE ||
        (field.flags & RRC_FIELD_ELSE_ABSENT) != 0)
    {
        return RrcRecordCheckOp::Skip;
    }
    if (!isPlainlyGuarded(field, fields, bits))
    {
        return RrcRecordCheckOp::Doubtful;
    }
    if (field.choice >= 0 || (field.flags & RRC_FIELD_NOT_SENT) != 0 || field.bitWidth != 0)
    {
        return RrcRecordCheckOp::Field;
    }
    if (field.kind <= RRC_FIELD_BITS && field.bound == 0)
    {
        const bool isSigned = field.isSigned != 0 || (field.flags & RRC_FIELD_TWOS_COMPLEMENT) != 0;
        return isSigned || field.size > 2 ? RrcRecordCheckOp::Number
               : field.size == 1          ? RrcRecordCheckOp::Octet
                                          : RrcRecordCheckOp::Two;
    }
    switch (field.kind)
    {
    case RRC_FIELD_MASK:
        return RrcRecordCheckOp::Mask;
    case RRC_FIELD_COUNT:
        return RrcRecordCheckOp::Count;
    case RRC_FIELD_RECORD:
        return field.bound == 0 ? RrcRecordCheckOp::Record : RrcRecordCheckOp::Records;
    default:
        return RrcRecordCheckOp::Field;
    }
}

template <std::size_t Fields>
constexpr std::array<RrcRecordCheckOp, Fields> checkOpsOf(const RrcRecordField (&fields)[Fields],
                                                          const RrcRecordBit* bits, UINT16 bitCount)
{
    std::array<RrcRecordCheckOp, Fields> ops = {};
    for (std::size_t i = 0; i < Fields; ++i)
    {
        const RrcRecordField& field = fields[i];
        const Guard guard = guardOf(field, fields, bits);
        RrcRecordCheckOp& op = ops[i];
        op.code = checkCodeOf(field, fields, bits);
        op.lower = field.lower;
        op.span = op.code == RrcRecordCheckOp::Mask ? doubtfulBits(i, field, bits, bitCount) : spanOf(field);
        op.offset = field.offset;
        op.guard = guard.octet;
        op.guardMask = guard.mask;
        op.count = field.count;
        op.size = static_cast<UINT8>(field.size);
        op.isSigned = field.isSigned != 0 || (field.flags & RRC_FIELD_TWOS_COMPLEMENT) != 0 ? 1 : 0;
    }
    return ops;
}

} // namespace records

#endif
