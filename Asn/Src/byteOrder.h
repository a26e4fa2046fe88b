// The order in which numbers lie in memory: their octets, and the bits of their bit-fields. What depends on it asks
// here.
#ifndef BYTEORDER_H
#define BYTEORDER_H

#include <bit>
#include <cstddef>
#include <cstdint>

namespace rtx
{

constexpr bool littleEndian = std::endian::native == std::endian::little;
static_assert(littleEndian || std::endian::native == std::endian::big, "octets in any other order are not foreseen");

// The number whose octets in memory are those of `number` with the most significant first, or that has been made of
// such octets. Always inline: whether g++ inlines the callers must not depend on it.
[[gnu::always_inline]] constexpr uint32_t highFirst(uint32_t number)
{
    return littleEndian ? __builtin_bswap32(number) : number;
}
[[gnu::always_inline]] constexpr uint64_t highFirst(uint64_t number)
{
    return littleEndian ? __builtin_bswap64(number) : number;
}

// The same with the least significant octet first.
constexpr uint32_t lowFirst(uint32_t number)
{
    return littleEndian ? number : __builtin_bswap32(number);
}
constexpr uint64_t lowFirst(uint64_t number)
{
    return littleEndian ? number : __builtin_bswap64(number);
}

// Where the low octets of a number lie: to be copied from or to a number of fewer octets.
inline unsigned char* lowOctets(uint64_t& number, size_t count)
{
    return reinterpret_cast<unsigned char*>(&number) + (littleEndian ? 0 : sizeof number - count);
}

// Which octet of a number of `size` octets has its bit `bit`, of which 0 is the least significant.
constexpr unsigned octetOf(unsigned bit, unsigned size)
{
    return littleEndian ? bit / 8 : size - 1 - bit / 8;
}

// Bit-fields begin with the least significant bit of their octets on little-endian systems, on others with the most
// significant one. How far one of `width` bits that begins a unit of `octets` octets is from the unit's low end.
constexpr unsigned bitFieldShift(size_t octets, unsigned width)
{
    return littleEndian ? 0 : static_cast<unsigned>(8 * octets) - width;
}

// The same of presence flag `flag` in its octet.
constexpr int flagShift(int flag)
{
    return littleEndian ? flag % 8 : 7 - flag % 8;
}

} // namespace rtx

#endif
