// How a record's numbers are read, in place, by whoever walks over many.
#ifndef RECORDNUMBERS_H
#define RECORDNUMBERS_H

#include <cstring>

#include "byteOrder.h"
#include "rrcRecordType.h"

namespace records
{

// All that so many bits can hold.
constexpr UINT64 lowBits(unsigned count)
{
    return count >= 64 ? ~UINT64{0} : (UINT64{1} << count) - 1;
}

// The octets of a number: one, two, four or eight.
inline UINT64 bitsAt(unsigned size, const void* place)
{
    UINT64 bits = 0;
    switch (size)
    {
    case 1:
        return *static_cast<const unsigned char*>(place);
    case 2:
        std::memcpy(rtx::lowOctets(bits, 2), place, 2);
        return bits;
    case 4:
        std::memcpy(rtx::lowOctets(bits, 4), place, 4);
        return bits;
    default:
        std::memcpy(&bits, place, 8);
        return bits;
    }
}

constexpr UINT64 signExtended(UINT64 bits, unsigned size)
{
    const unsigned above = 64 - 8U * size;
    return static_cast<UINT64>(static_cast<INT64>(bits << above) >> above);
}

constexpr bool isSignedNumber(const RrcRecordField& field)
{
    return field.isSigned != 0 || (field.flags & RRC_FIELD_TWOS_COMPLEMENT) != 0;
}

// The option that a selector's bits take; null: none. Alternatives are mostly numbered in their order.
inline const RrcRecordOption* optionBy(const RrcRecordChoice& choice, UINT64 selected)
{
    const UINT64 likely = selected - static_cast<UINT64>(choice.options[0].number);
    if (choice.byNumber != 0 && likely < choice.optionCount &&
        choice.options[likely].number == static_cast<INT64>(selected))
    {
        return choice.options + likely;
    }
    for (const RrcRecordOption* option = choice.options + choice.optionCount; option-- != choice.options;)
    {
        if (choice.byNumber != 0 ? static_cast<UINT64>(option->number) == selected
                                 : option->number < 0 || (selected >> option->number & 1) != 0)
        {
            return option;
        }
    }
    return nullptr;
}

} // namespace records

#endif
