// The fields of a record as its check takes them: what it needs of each in 16 octets, where the description has 128.
// Made from that when it is compiled.
#ifndef CHECKOPS_H
#define CHECKOPS_H

#include "byteOrder.h"
#include "recordNumbers.h"

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

    static constexpr INT32 noCount = -1;

    INT32 lower; // of a number or a count; of all others the field that says how many entries are used, or noCount
    UINT32 span; // of a number or a count: how many follow the lower one; Mask: bits of which there may be something to
                 // say
    UINT32 offset : 24; // of the field
    UINT32 code : 4;
    UINT32 size : 4;   // of the field
    UINT32 guard : 24; // of the octet that holds the guard
    UINT32 guardBit : 3;
    UINT32 isGuarded : 1;
    UINT32 isSigned : 1;
};
static_assert(sizeof(RrcRecordCheckOp) == 16);

namespace records
{

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

constexpr bool isNarrow(const RrcRecordField& field)
{
    return field.lower >= INT32_MIN && field.lower <= INT32_MAX && spanOf(field) <= UINT32_MAX;
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
    if (field.kind <= RRC_FIELD_BITS && field.bound == 0 && isNarrow(field))
    {
        return isSignedNumber(field) || field.size > 2 ? RrcRecordCheckOp::Number
               : field.size == 1                       ? RrcRecordCheckOp::Octet
                                                       : RrcRecordCheckOp::Two;
    }
    switch (field.kind)
    {
    case RRC_FIELD_MASK:
        return field.size <= 4 ? RrcRecordCheckOp::Mask : RrcRecordCheckOp::Field;
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
        RrcRecordCheckOp& op = ops[i];
        op.code = checkCodeOf(field, fields, bits) & 0xFU;
        const bool hasRange = op.code == RrcRecordCheckOp::Octet || op.code == RrcRecordCheckOp::Two ||
                              op.code == RrcRecordCheckOp::Number || op.code == RrcRecordCheckOp::Count;
        op.lower = hasRange ? static_cast<INT32>(field.lower) : field.count;
        op.span = static_cast<UINT32>(op.code == RrcRecordCheckOp::Mask ? doubtfulBits(i, field, bits, bitCount)
                                      : hasRange                        ? spanOf(field)
                                                                        : 0);
        op.offset = field.offset & 0xFFFFFFU;
        op.size = field.size & 0xFU;
        op.isSigned = isSignedNumber(field) ? 1 : 0;
        if (field.guard >= 0)
        {
            const RrcRecordBit& bit = bits[field.guard];
            op.isGuarded = 1;
            op.guard = (fields[bit.mask].offset + rtx::octetOf(bit.number, fields[bit.mask].size)) & 0xFFFFFFU;
            op.guardBit = bit.number % 8U;
        }
    }
    return ops;
}

} // namespace records

#endif
