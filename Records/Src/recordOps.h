// The fields of a record as the way back from a tree takes them: what it needs of each in 16 octets, where the
// description has 128. Made from that when it is compiled.
#ifndef RECORDOPS_H
#define RECORDOPS_H

#include "rrcRecordType.h"

#include <array>
#include <cstddef>

// Where a field's way begins: a member in the root of its record's element.
struct RrcRecordSource
{
    UINT32 offset;
    INT16 flag; // bit number of its presence flag, -1 for a mandatory member
    UINT8 size; // of a number, in octets
    bool isSigned;
    bool isThere; // false: the way begins elsewhere
};

// A field that no choice guards, or a bit that sends a member without a field.
struct RrcRecordOp
{
    enum : UINT8
    {
        Number, // a member of the element, stored as `size` octets
        Record, // a structure of a member
        List,   // structures of the entries of a member, with their count
        Field,  // any other field
        Send,   // a bit
        Clear   // `guard` octets from `offset` on
    };

    UINT32 offset;   // of the field
    UINT32 guard;    // of the octet that holds the guard
    UINT16 from;     // of the member
    UINT8 index;     // of the field or the bit
    INT8 flag;       // of the member, -1: it is mandatory, or looked for by `Field` or `Send`
    UINT8 guardMask; // the bit in that octet; 0: none
    UINT8 code;
    UINT8 size : 6;         // Number: of the field
    UINT8 isSigned : 1;     // Number: as the field is read
    UINT8 isReadAnyway : 1; // something has to be stored although the member is absent
    UINT8 fromSize : 7;     // Number: of the member
    UINT8 fromSigned : 1;   // Number: as the member is read
};
static_assert(sizeof(RrcRecordOp) <= 16);

namespace records
{

// A record of so many octets is cleared whole.
constexpr UINT32 smallRecord = 512;

constexpr bool isScalar(const RrcRecordField& field)
{
    return field.bound == 0 && field.record == nullptr;
}

constexpr bool isTaken(const RrcRecordField& field)
{
    const bool holds =
        field.kind <= RRC_FIELD_OCTETS || field.kind == RRC_FIELD_RECORD || field.kind == RRC_FIELD_UNION;
    return holds && field.choice < 0 && field.way.path != nullptr && (field.flags & RRC_FIELD_NOT_SENT) == 0;
}

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

constexpr RrcRecordOp opOf(const RrcRecordField* fields, const RrcRecordSource& source, UINT16 index,
                           const RrcRecordBit* bits)
{
    const RrcRecordField& field = fields[index];
    RrcRecordOp op = {};
    op.offset = field.offset;
    op.index = static_cast<UINT8>(index);
    op.from = static_cast<UINT16>(source.offset);
    op.flag = static_cast<INT8>(source.isThere ? source.flag : -1);
    op.fromSize = source.size & 0x7FU;
    op.fromSigned = source.isSigned ? 1 : 0;
    const Guard guard = guardOf(field, fields, bits);
    op.guard = guard.octet;
    op.guardMask = guard.mask;
    const bool isNumber = field.kind <= RRC_FIELD_BOOLEAN && source.size != 0;
    const bool isPlain = isNumber && field.way.stepCount == 1 && field.bound == 0 && field.bitWidth == 0;
    const bool isRecord = field.kind == RRC_FIELD_RECORD && field.way.stepCount != 0;
    const bool isMember = field.way.stepCount == 1;
    const bool isList = field.way.stepCount == 2 && field.way.steps[1] == RRC_STEP_ENTRY && field.count >= 0;
    op.code = !source.isThere || source.offset > UINT16_MAX || source.flag > INT8_MAX ? RrcRecordOp::Field
              : isPlain                                                               ? RrcRecordOp::Number
              : isRecord && field.bound == 0 && isMember                              ? RrcRecordOp::Record
              : isRecord && field.bound != 0 && isList                                ? RrcRecordOp::List
                                                                                      : RrcRecordOp::Field;
    op.size = static_cast<UINT8>(isPlain ? field.size & 0x3FU : 0U);
    const bool isSigned = field.isSigned != 0 || (field.flags & RRC_FIELD_TWOS_COMPLEMENT) != 0;
    op.isSigned = isSigned ? 1 : 0;
    const bool isReadAnyway = (field.flags & RRC_FIELD_ELSE_ABSENT) != 0 ||
                              (field.kind == RRC_FIELD_RECORD && field.bound == 0 && field.guard < 0);
    op.isReadAnyway = isReadAnyway ? 1 : 0;
    return op;
}

// Gives all of a record's to a sink.
template <std::size_t Fields, typename Sink>
constexpr void forOps(UINT32 size, const RrcRecordField (&fields)[Fields], const RrcRecordSource (&sources)[Fields],
                      const RrcRecordBit* bits, UINT16 bitCount, const Sink& sink)
{
    for (UINT16 i = 0; i < Fields && size > smallRecord; ++i)
    {
        if (isScalar(fields[i]))
        {
            RrcRecordOp clear = {};
            clear.code = RrcRecordOp::Clear;
            clear.offset = fields[i].offset;
            for (; i + 1 < static_cast<int>(Fields) && isScalar(fields[i + 1]); ++i)
            {
            }
            clear.guard = fields[i].offset + fields[i].size - clear.offset;
            sink(clear);
        }
    }
    for (UINT16 i = 0; i < UINT16{Fields}; ++i)
    {
        if (isTaken(fields[i]))
        {
            sink(opOf(fields, sources[i], i, bits));
        }
    }
    for (UINT16 i = 0; i < bitCount; ++i)
    {
        if (bits[i].role == RRC_BIT_SENDS)
        {
            RrcRecordOp send = {};
            send.code = RrcRecordOp::Send;
            send.flag = -1;
            send.index = static_cast<UINT8>(i);
            sink(send);
        }
    }
}

template <std::size_t Fields>
constexpr UINT16 opCount(UINT32 size, const RrcRecordField (&fields)[Fields], const RrcRecordSource (&sources)[Fields],
                         const RrcRecordBit* bits, UINT16 bitCount)
{
    UINT16 count = 0;
    forOps(size, fields, sources, bits, bitCount, [&](const RrcRecordOp&) { ++count; });
    return count;
}

template <std::size_t Count, std::size_t Fields>
constexpr std::array<RrcRecordOp, Count> opsOf(UINT32 size, const RrcRecordField (&fields)[Fields],
                                               const RrcRecordSource (&sources)[Fields], const RrcRecordBit* bits,
                                               UINT16 bitCount)
{
    std::array<RrcRecordOp, Count> ops = {};
    std::size_t used = 0;
    forOps(size, fields, sources, bits, bitCount, [&](const RrcRecordOp& op) { ops[used++] = op; });
    return ops;
}

} // namespace records

#endif
