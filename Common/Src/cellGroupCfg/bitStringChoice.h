// Choices of bit strings of different lengths: a table with a row per alternative, read by one loop.
#ifndef BITSTRINGCHOICE_H
#define BITSTRINGCHOICE_H

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstring>
#include <new>

#include "bitString.h"
#include "byteOrder.h"
#include "compose.h"

namespace compose
{

// One alternative, filled from the octets of the record's union. With neither packer the octets are copied as they lie
// in memory.
struct BitStringRow
{
    OSUINT32 tag;
    unsigned bits;
    INT32 (*packBitStr)(ASN1BitStr32*, UINT32) = nullptr; // at most 32 bits: a bit string held by pointer
    void (*packOctets)(UINT64, OSOCTET*) = nullptr;       // up to 64 bits, in the choice itself
};

// Whether the union's numbers are bit-fields, each of as many bits as its string.
template <typename Union>
constexpr bool hasBitFields = false;

// The octets that hold the number of a string of so many bits.
template <typename Union>
constexpr std::size_t numberSize(unsigned bits)
{
    if constexpr (hasBitFields<Union>)
    {
        return sizeof(Union);
    }
    return std::bit_ceil((bits + 7) / 8);
}

// The low `bits` bits of the number that the union begins with.
template <typename Union>
UINT64 leadingBits(const Union& value, unsigned bits)
{
    UINT64 number = 0;
    if constexpr (rtx::littleEndian) // wherever the number ends
    {
        std::memcpy(&number, &value, std::min(std::size_t{bits + 7} / 8, sizeof number));
    }
    else
    {
        const std::size_t octets = numberSize<Union>(bits);
        std::memcpy(rtx::lowOctets(number, octets), &value, octets);
        if constexpr (hasBitFields<Union>)
        {
            number >>= rtx::bitFieldShift(octets, bits);
        }
    }
    return number & (~UINT64{0} >> (64 - bits));
}

template <typename Choice, typename Union>
void chooseBitString(OSCTXT* pAsnCxt, Choice* pChoice, const Union& value, const BitStringRow& row)
{
    if (row.packBitStr != nullptr)
    {
        ASN1BitStr32* pBitStr = nullptr;
        chooseBits(pAsnCxt, pChoice, row.tag, pBitStr, row.packBitStr,
                   static_cast<UINT32>(leadingBits(value, row.bits)));
        new (&pChoice->u) ASN1BitStr32*(pBitStr);
        return;
    }
    pChoice->t = row.tag;
    if (row.packOctets != nullptr)
    {
        OSOCTET octets[sizeof(UINT64)];
        row.packOctets(leadingBits(value, row.bits), octets);
        std::memcpy(&pChoice->u, octets, (row.bits + 7) / 8);
        return;
    }
    std::memcpy(&pChoice->u, &value, (row.bits + 7) / 8);
}

// Chooses the alternatives whose bits are set in `presence`, bit k being row k: the highest one stays. Bits above the
// table mean nothing.
template <typename Choice, typename Union, std::size_t N>
void chooseBitStrings(OSCTXT* pAsnCxt, Choice* pChoice, UINT32 presence, const Union& value,
                      const BitStringRow (&rows)[N])
{
    static_assert(N <= 32);
    for (std::size_t i = 0; i < N; ++i)
    {
        if ((presence & (1U << i)) != 0)
        {
            chooseBitString(pAsnCxt, pChoice, value, rows[i]);
        }
    }
}

} // namespace compose

#endif
