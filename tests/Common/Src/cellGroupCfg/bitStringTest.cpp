#include "cellGroupCfg/bitString.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::ElementsAreArray;

namespace
{

struct BitStr32Packer
{
    unsigned bits;
    unsigned inputBits;
    std::function<INT32(ASN1BitStr32*, UINT64)> pack;
};

struct OctetPacker
{
    unsigned bits;
    std::function<void(UINT64, UINT8*)> pack;
};

template <typename Value>
BitStr32Packer packer(unsigned bits, INT32 (*pack)(ASN1BitStr32*, Value))
{
    return {bits, 8 * sizeof(Value),
            [pack](ASN1BitStr32* p, UINT64 value)
            {
                return pack(p, static_cast<Value>(value));
            }};
}

const std::vector<BitStr32Packer> bitStr32Packers = {
    packer(2, uint8To2ASN1BitStr32),    packer(4, uint8To4ASN1BitStr32),    packer(5, uint8To5ASN1BitStr32),
    packer(8, uint8To8ASN1BitStr32),    packer(10, uint16To10ASN1BitStr32), packer(14, uint16To14ASN1BitStr32),
    packer(28, uint32To28ASN1BitStr32), packer(3, uint32To3ASN1BitStr32),   packer(4, uint32To4ASN1BitStr32),
    packer(5, uint32To5ASN1BitStr32),   packer(6, uint32To6ASN1BitStr32),   packer(7, uint32To7ASN1BitStr32),
    packer(8, uint32To8ASN1BitStr32),   packer(9, uint32To9ASN1BitStr32),   packer(10, uint32To10ASN1BitStr32),
    packer(11, uint32To11ASN1BitStr32), packer(12, uint32To12ASN1BitStr32), packer(13, uint32To13ASN1BitStr32),
    packer(14, uint32To14ASN1BitStr32), packer(15, uint32To15ASN1BitStr32), packer(16, uint32To16ASN1BitStr32),
    packer(17, uint32To17ASN1BitStr32), packer(18, uint32To18ASN1BitStr32), packer(19, uint32To19ASN1BitStr32),
    packer(20, uint32To20ASN1BitStr32), packer(24, uint32To24ASN1BitStr32), packer(32, uint32To32ASN1BitStr32),
};

const std::vector<OctetPacker> octetPackers = {
    {40,
     [](UINT64 num, UINT8* elem)
     {
         EXPECT_EQ(uint64To40ASN1BitStr32(elem, num), VOS_OK);
     }},
    {43, uint64ToBitString43bit},
    {45,
     [](UINT64 num, UINT8* elem)
     {
         EXPECT_EQ(uint64To45ASN1BitStr(elem, num), VOS_OK);
     }},
    {48, uint64ToBitString48bit},
    {59, uint64ToBitString59bit},
    {64, uint64ToBitString64bit},
};

const std::vector<UINT64> values = {0, 1, ~UINT64{0}, 0x8000000000000001, 0xA5C3F00F96691E2D, 0x5A3C0FF06996E1D2};

// The string bit by bit: its first bit is bit N-1 of the value and the most significant one of the first octet.
std::vector<UINT8> bitByBit(unsigned bits, UINT64 value, size_t octets)
{
    std::vector<UINT8> result(octets, 0);
    for (unsigned i = 0; i < bits; ++i)
    {
        if ((value >> (bits - 1 - i)) & 1)
        {
            result[i / 8] = static_cast<UINT8>(result[i / 8] | 0x80 >> i % 8);
        }
    }
    return result;
}

} // namespace

TEST(bitString, EveryShortPackerLeftAlignsTheLowBitsAndClearsTheRest)
{
    for (const BitStr32Packer& packer : bitStr32Packers)
    {
        for (const UINT64 value : values)
        {
            SCOPED_TRACE(testing::Message()
                         << packer.bits << " bits of " << packer.inputBits << ": " << std::hex << value);
            ASN1BitStr32 bitStr = {77, {0xEE, 0xEE, 0xEE, 0xEE}};
            EXPECT_EQ(packer.pack(&bitStr, value), VOS_OK);
            const UINT64 input = packer.inputBits == 64 ? value : value & ((UINT64{1} << packer.inputBits) - 1);
            EXPECT_EQ(bitStr.numbits, packer.bits);
            EXPECT_THAT(bitStr.data, ElementsAreArray(bitByBit(packer.bits, input, 4)));
        }
    }
}

TEST(bitString, EveryLongPackerWritesItsOctetsAndNothingBehindThem)
{
    for (const OctetPacker& packer : octetPackers)
    {
        for (const UINT64 value : values)
        {
            SCOPED_TRACE(testing::Message() << packer.bits << " bits: " << std::hex << value);
            const size_t octets = (packer.bits + 7) / 8;
            std::array<UINT8, 10> elem;
            elem.fill(0xEE);
            packer.pack(value, elem.data());
            std::vector<UINT8> expected = bitByBit(packer.bits, value, octets);
            expected.resize(elem.size(), 0xEE);
            EXPECT_THAT(elem, ElementsAreArray(expected));
        }
    }
}

TEST(bitString, TwentyBits)
{
    ASN1BitStr32 bitStr;
    uint32To20ASN1BitStr32(&bitStr, 0xABCDE);
    EXPECT_EQ(bitStr.numbits, 20U);
    EXPECT_THAT(bitStr.data, ElementsAre(0xAB, 0xCD, 0xE0, 0x00));
}

TEST(bitString, FortyFiveBitsAllSet)
{
    OSOCTET octets[6];
    uint64To45ASN1BitStr(octets, (UINT64{1} << 45) - 1);
    EXPECT_THAT(octets, ElementsAre(0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xF8));
}

TEST(bitString, LastOfFortyThreeBits)
{
    UINT8 octets[6];
    uint64ToBitString43bit(1, octets);
    EXPECT_THAT(octets, ElementsAre(0, 0, 0, 0, 0, 0x20));
}

TEST(bitString, TwoBitsOfSeven)
{
    ASN1BitStr32 bitStr;
    uint8To2ASN1BitStr32(&bitStr, 7);
    EXPECT_EQ(bitStr.numbits, 2U);
    EXPECT_THAT(bitStr.data, ElementsAre(0xC0, 0, 0, 0));
}

TEST(bitString, TwentyEightBitsTakeSixteen)
{
    ASN1BitStr32 bitStr;
    uint32To28ASN1BitStr32(&bitStr, static_cast<UINT16>(0x12345));
    EXPECT_EQ(bitStr.numbits, 28U);
    EXPECT_THAT(bitStr.data, ElementsAre(0x00, 0x02, 0x34, 0x50));
}
