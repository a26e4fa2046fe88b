// What PER does with single bits.
#ifndef RTXBITS_H
#define RTXBITS_H

#include <array>
#include <cstdint>

#include "asn1Runtime.h"

namespace rtx
{

// Bits that hold a value of 0..range.
constexpr unsigned bitsFor(uint32_t range)
{
    unsigned bits = 0;
    for (; range != 0; range >>= 1)
    {
        ++bits;
    }
    return bits;
}

// Each octet with its bits in the opposite order.
inline constexpr auto reversedOctets = []
{
    std::array<uint8_t, 256> table{};
    for (unsigned i = 0; i < 256; ++i)
    {
        for (unsigned bit = 0; bit < 8; ++bit)
        {
            table[i] = static_cast<uint8_t>(table[i] | (i >> bit & 1U) << (7 - bit));
        }
    }
    return table;
}();

} // namespace rtx

#endif
