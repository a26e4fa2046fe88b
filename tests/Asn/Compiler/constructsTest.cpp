#include "../rtxTestTypes.h"
#include "NR-RRC-Definitions.h"
#include "byteOrder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

namespace
{

std::string bitsOf(const std::vector<OSOCTET>& octets)
{
    std::string bits;
    for (const OSOCTET octet : octets)
    {
        bits += test::octet(octet);
    }
    return bits;
}

// The bits without separators, filled up to whole octets.
std::string padded(const std::string& bits)
{
    return bitsOf(test::bits(bits));
}

void appendText(void* arg, const char* text)
{
    *static_cast<std::string*>(arg) += text;
}

template <typename T>
struct Functions
{
    int (*encode)(OSCTXT*, const T*);
    int (*decode)(OSCTXT*, T*);
    void (*print)(const OSCTXT*, const char*, const T*, RtxPrintSink, void*);
};

#define FUNCTIONS(type)                                                                                                \
    Functions<type>                                                                                                    \
    {                                                                                                                  \
        asn1PE_##type, asn1PD_##type, asn1PrintTo_##type                                                               \
    }

class Constructs : public testing::Test
{
protected:
    Constructs()
    {
        rtxInitContext(&context_);
    }
    ~Constructs() override
    {
        rtFreeContext(&context_);
    }

    template <typename T>
    T* make()
    {
        void* const p = rtxMemHeapAlloc(&context_, sizeof(T));
        EXPECT_NE(p, nullptr);
        std::memset(p, 0, sizeof(T));
        return static_cast<T*>(p);
    }

    template <typename T>
    T* append(OSRTDList& list)
    {
        auto* const node = make<OSRTDListNode>();
        node->data = make<T>();
        rtxDListAppendNode(&list, node);
        return static_cast<T*>(node->data);
    }

    // The bits of an encoding, or the error's line. What is encoded is decoded and encoded again; it prints the same
    // unless the tree says the same in two ways.
    template <typename T>
    std::string encoded(const Functions<T>& functions, const T& value, bool printsTheSame = true)
    {
        std::vector<OSOCTET> octets(100'000, OSOCTET{0xFF});
        EXPECT_EQ(pu_setBuffer(&context_, octets.data(), octets.size(), 0), RTX_OK);
        if (functions.encode(&context_, &value) != RTX_OK)
        {
            return errorLine(context_);
        }
        octets.resize(pu_getMsgLen(&context_));
        std::string printed;
        functions.print(&context_, "value", &value, appendText, &printed);

        OSCTXT other;
        EXPECT_EQ(rtxInitContext(&other), RTX_OK);
        EXPECT_EQ(pu_setBuffer(&other, octets.data(), octets.size(), 0), RTX_OK);
        const auto back = std::make_unique<T>();
        EXPECT_EQ(functions.decode(&other, back.get()), RTX_OK) << errorLine(other);
        std::string again;
        functions.print(&other, "value", back.get(), appendText, &again);
        EXPECT_EQ(again == printed, printsTheSame) << printed << again;
        std::vector<OSOCTET> twice(octets.size());
        EXPECT_EQ(pu_setBuffer(&other, twice.data(), twice.size(), 0), RTX_OK);
        EXPECT_EQ(functions.encode(&other, back.get()), RTX_OK) << errorLine(other);
        EXPECT_EQ(twice, octets);
        rtFreeContext(&other);
        return bitsOf(octets);
    }

private:
    static std::string errorLine(const OSCTXT& context)
    {
        char line[512];
        rtxErrFormat(&context, line, sizeof line);
        return line;
    }

    OSCTXT context_;
};

TEST_F(Constructs, AListOfFixedSizeHasNoCount)
{
    const Fixed fixed{{-3, 0, 4}};
    EXPECT_EQ(encoded(FUNCTIONS(Fixed), fixed), padded("000 011 111"));
    const Fixed wrong{{-3, 0, 5}};
    EXPECT_EQ(encoded(FUNCTIONS(Fixed), wrong), "Fixed[2]: 5 is not in -3..4");
}

TEST_F(Constructs, ACountMayTakeTwoOctets)
{
    Long list{};
    EXPECT_EQ(encoded(FUNCTIONS(Long), list), padded("000000000"));
    list.n = 300;
    list.elem[299] = 7;
    EXPECT_EQ(encoded(FUNCTIONS(Long), list), padded("100101100" + std::string(897, '0') + "111"));
    list.n = 301;
    EXPECT_EQ(encoded(FUNCTIONS(Long), list), "Long: 301 elements, not 0..300");
}

TEST_F(Constructs, ACountMayFillItsStorage)
{
    Full list{};
    list.n = 255;
    EXPECT_EQ(encoded(FUNCTIONS(Full), list), padded("11111110" + std::string(2040, '0')));
    list.n = 0;
    EXPECT_EQ(encoded(FUNCTIONS(Full), list), "Full: 0 elements, not 1..255");

    const auto widest = std::make_unique<Widest>();
    widest->n = 65535;
    std::fill(std::begin(widest->elem), std::end(widest->elem), OSUINT8{2});
    EXPECT_EQ(encoded(FUNCTIONS(Widest), *widest), padded(std::string(16 + 65535, '1')));
}

TEST_F(Constructs, AListOfEnumerations)
{
    Colours colours{3, {2, 0, 1}};
    EXPECT_EQ(encoded(FUNCTIONS(Colours), colours), padded("10 10 00 01"));
    colours.elem[1] = 3;
    EXPECT_EQ(encoded(FUNCTIONS(Colours), colours), "Colours[1]: 3 is not in 0..2");
}

TEST_F(Constructs, ListsOfListsAndOfArrays)
{
    Grid grid{};
    for (int i = 0; i < 2; ++i)
    {
        auto* const pair = append<Pair>(grid);
        append<Item>(*pair)->level = 4;
        auto* const item = append<Item>(*pair);
        item->m.colourPresent = 1;
        item->colour = 2;
    }
    EXPECT_EQ(encoded(FUNCTIONS(Grid), grid), padded("1  0 111 1 011 10  0 111 1 011 10"));
    auto& second = *static_cast<Pair*>(grid.tail->data);
    static_cast<Item*>(second.tail->data)->colour = 3;
    EXPECT_EQ(encoded(FUNCTIONS(Grid), grid), "Grid[1][1].colour: 3 is not in 0..2");
    second.count = 1;
    EXPECT_EQ(encoded(FUNCTIONS(Grid), grid), "Grid[1]: 1 element, not 2");

    Rows rows{};
    EXPECT_EQ(encoded(FUNCTIONS(Rows), rows), padded("00"));
    *append<Fixed>(rows) = {{1, 2, 3}};
    EXPECT_EQ(encoded(FUNCTIONS(Rows), rows), padded("01 100 101 110"));
}

TEST_F(Constructs, TheEndsOfAllRanges)
{
    Extremes value{};
    value.whole = INT32_MIN;
    value.below = -400;
    value.one = 7;
    value.bit = {1, {0x80}};
    value.word = {32, {0xFF, 0xFF, 0xFF, 0xFF}};
    std::fill(std::begin(value.more), std::end(value.more), OSOCTET{0xFF});
    std::fill(std::begin(value.twice), std::end(value.twice), OSOCTET{0xFF});
    const std::string strings = "1" + std::string(32, '1') + std::string(33, '1') + std::string(64, '1');
    EXPECT_EQ(encoded(FUNCTIONS(Extremes), value),
              padded(std::string(32, '0') + std::string(31, '0') + "000000000" + strings));
    value.whole = INT32_MAX;
    value.positive = INT32_MAX;
    value.below = -1;
    EXPECT_EQ(encoded(FUNCTIONS(Extremes), value),
              padded(std::string(32, '1') + std::string(31, '1') + "110001111" + strings));
    value.one = 8;
    EXPECT_EQ(encoded(FUNCTIONS(Extremes), value), "Extremes.one: 8 is not in 7..7");
    value.one = 7;
    value.below = 0;
    EXPECT_EQ(encoded(FUNCTIONS(Extremes), value), "Extremes.below: 0 is not in -400..-1");
    value.below = -1;
    value.positive = 0x80000000;
    EXPECT_EQ(encoded(FUNCTIONS(Extremes), value), "Extremes.positive: 2147483648 is not in 0..2147483647");
}

TEST_F(Constructs, AnEncodingWithoutBitsIsOneZeroOctet)
{
    const Nothing nothing{7, 0};
    EXPECT_EQ(encoded(FUNCTIONS(Nothing), nothing), "00000000");
}

TEST_F(Constructs, AnExtensibleSequenceWithoutMembers)
{
    const Bare bare{};
    EXPECT_EQ(encoded(FUNCTIONS(Bare), bare), padded("0"));
}

TEST_F(Constructs, AChoiceOfOneTakesNoBit)
{
    Single single{};
    single.t = T_Single_item;
    single.u.item = make<Item>();
    EXPECT_EQ(encoded(FUNCTIONS(Single), single), padded("0 011"));
}

TEST_F(Constructs, EveryKindOfAlternative)
{
    Pick pick{};
    pick.t = T_Pick_none;
    EXPECT_EQ(encoded(FUNCTIONS(Pick), pick), padded("0 0000"));
    pick.t = T_Pick_level;
    pick.u.level = -2;
    EXPECT_EQ(encoded(FUNCTIONS(Pick), pick), padded("0 0001 001"));
    pick.t = T_Pick_item;
    pick.u.item = make<Item>();
    EXPECT_EQ(encoded(FUNCTIONS(Pick), pick), padded("0 0010 0 011"));
    pick.t = T_Pick_short_;
    pick.u.short_ = make<ASN1BitStr32>();
    *pick.u.short_ = {12, {0xAB, 0xC0}};
    EXPECT_EQ(encoded(FUNCTIONS(Pick), pick), padded("0 0011 101010111100"));
    pick.t = T_Pick_long_;
    std::memcpy(pick.u.long_, "\x01\x02\x03\x04\x05", 5);
    EXPECT_EQ(encoded(FUNCTIONS(Pick), pick), padded("0 0100 00000001 00000010 00000011 00000100 00000101"));
    pick.t = T_Pick_flag;
    pick.u.flag = 4;
    EXPECT_EQ(encoded({asn1PE_Pick, asn1PD_Pick,
                       [](auto, auto, auto, auto, auto) {
                       }},
                      pick),
              padded("0 0101 1"));
    pick.t = T_Pick_fixed;
    pick.u.fixed = make<Fixed>();
    EXPECT_EQ(encoded(FUNCTIONS(Pick), pick), padded("0 0110 011011011"));
    pick.t = T_Pick_empty;
    pick.u.empty = nullptr;
    EXPECT_EQ(encoded({asn1PE_Pick, asn1PD_Pick,
                       [](auto, auto, auto, auto, auto) {
                       }},
                      pick),
              padded("0 0111 0 0"));
    pick.t = T_Pick_pair;
    pick.u.pair = make<Pair>();
    append<Item>(*pick.u.pair);
    EXPECT_EQ(encoded(FUNCTIONS(Pick), pick), "Pick.pair: 1 element, not 2");
    append<Item>(*pick.u.pair);
    EXPECT_EQ(encoded(FUNCTIONS(Pick), pick), padded("0 1000 0 011 0 011"));
}

TEST_F(Constructs, AnAlternativeBehindTheMarkerIsAnOpenType)
{
    Pick pick{};
    pick.t = T_Pick_late;
    pick.u.late = make<Item>();
    EXPECT_EQ(encoded(FUNCTIONS(Pick), pick), padded("1 0 000000 00000001 0 011 0000"));
    pick.u.late->level = 5;
    EXPECT_EQ(encoded(FUNCTIONS(Pick), pick), "Pick.late.level: 5 is not in -3..4");
    pick.t = T_Pick_later;
    EXPECT_EQ(encoded(FUNCTIONS(Pick), pick), padded("1 0 000001 00000001 00000000"));
    pick.t = T_Pick_latest;
    pick.u.latest = 4;
    EXPECT_EQ(encoded(FUNCTIONS(Pick), pick), padded("1 0 000010 00000001 111 00000"));
    pick.t = T_Pick_latest + 1;
    pick.u.extElem1 = make<ASN1OpenType>();
    pick.u.extElem1->numocts = 1;
    pick.u.extElem1->data = make<OSOCTET>();
    *pick.u.extElem1->data = 0x5A;
    EXPECT_EQ(encoded(FUNCTIONS(Pick), pick), padded("1 0 000011 00000001 01011010"));
}

TEST_F(Constructs, AGroupWithAMandatoryMemberIsSentByItsFlagAlone)
{
    Box box{};
    EXPECT_EQ(encoded(FUNCTIONS(Box), box), padded("0 011"));
    box.m._v2ExtPresent = 1;
    box.must = 4;
    EXPECT_EQ(encoded(FUNCTIONS(Box), box), padded("1 011  0 000100 10000  00000001 0 111 0000"));
    box.m.mayPresent = 1;
    box.may = -3;
    EXPECT_EQ(encoded(FUNCTIONS(Box), box), padded("1 011  0 000100 10000  00000001 1 111 000 0"));
    box.must = 5;
    EXPECT_EQ(encoded(FUNCTIONS(Box), box), "Box.must: 5 is not in -3..4");
}

TEST_F(Constructs, GroupsAndLoneAdditionsKeepTheirPlacesInTheBitmap)
{
    Box box{};
    box.m.lonePresent = 1;
    box.lone = 1;
    EXPECT_EQ(encoded(FUNCTIONS(Box), box), padded("1 011  0 000100 01000  00000001 01 000000"));
    box.m = {};
    box.m._v3ExtPresent = 1;
    box.m.pickPresent = 1;
    box.pick.t = T_Pick_latest; // an open type in an open type
    EXPECT_EQ(encoded(FUNCTIONS(Box), box),
              padded("1 011  0 000100 00100  00000100 01  1 0 000010 00000001 011 00000  000000"));
    box.m = {};
    box.m.void_Present = 1;
    EXPECT_EQ(encoded(FUNCTIONS(Box), box), padded("1 011  0 000100 00010  00000001 00000000"));
    box.m = {};
    box.m._v4ExtPresent = 1;
    box.m.gonePresent = 1;
    EXPECT_EQ(encoded(FUNCTIONS(Box), box), padded("1 011  0 000100 00001  00000001 10000000"));
}

TEST_F(Constructs, AParameterisedTypeInItself)
{
    Holder holder{};
    holder.m.twicePresent = 1;
    holder.twice.t = T_Holder_twice_setup;
    holder.twice.u.setup = make<Holder_twice_setup>();
    holder.twice.u.setup->t = T_Holder_twice_setup_release;
    EXPECT_EQ(encoded(FUNCTIONS(Holder), holder), padded("10 1 0"));
    holder.twice.u.setup->t = T_Holder_twice_setup_setup;
    holder.twice.u.setup->u.setup = make<Item>();
    holder.m.nestedPresent = 1;
    holder.nested.t = T_Holder_nested_setup;
    holder.nested.u.setup = make<Holder_nested_setup>();
    holder.nested.u.setup->x = 1;
    EXPECT_EQ(encoded(FUNCTIONS(Holder), holder), padded("11 1 1 0 011  1 100"));
    holder.nested.u.setup->x = 5;
    EXPECT_EQ(encoded(FUNCTIONS(Holder), holder), "Holder.nested.setup.x: 5 is not in -3..4");
}

// Sets one flag, by its number as by its name.
#define FLAG(type, name)                                                                                               \
    [](type& value)                                                                                                    \
    {                                                                                                                  \
        value.m.name##Present = 1;                                                                                     \
    }

TEST_F(Constructs, FlagsBeyondTheFirstWordLieAtTheirNumbers)
{
    struct
    {
        unsigned number;
        void (*set)(Flags&);
    } const flags[] = {{0, FLAG(Flags, f0)},   {1, FLAG(Flags, f1)},   {7, FLAG(Flags, f7)},   {8, FLAG(Flags, f8)},
                       {23, FLAG(Flags, f23)}, {24, FLAG(Flags, f24)}, {31, FLAG(Flags, f31)}, {32, FLAG(Flags, f32)},
                       {33, FLAG(Flags, f33)}, {39, FLAG(Flags, f39)}};
    for (const auto& flag : flags)
    {
        Flags value{};
        flag.set(value);
        OSOCTET octets[8] = {};
        static_assert(sizeof value.m == sizeof octets);
        std::memcpy(octets, &value.m, sizeof value.m);
        OSOCTET expected[8] = {};
        expected[flag.number / 8] = static_cast<OSOCTET>(1U << rtx::flagShift(static_cast<int>(flag.number)));
        EXPECT_EQ(std::memcmp(octets, expected, sizeof expected), 0) << flag.number;
        std::string presence(40, '0');
        presence[flag.number] = '1';
        EXPECT_EQ(encoded(FUNCTIONS(Flags), value), padded(presence + "0")) << flag.number;
    }
}

TEST_F(Constructs, AGroupsFlagsMayBeginTheSecondWord)
{
    Crossing crossing{};
    crossing.m.a30Present = 1;
    EXPECT_EQ(encoded(FUNCTIONS(Crossing), crossing), padded("0" + std::string(30, '0') + "1"));
    crossing.m.b0Present = 1;
    EXPECT_EQ(encoded(FUNCTIONS(Crossing), crossing, false), padded("0" + std::string(30, '0') + "1"))
        << "without its group's bit";
    crossing.m._v2ExtPresent = 1;
    crossing.m.b9Present = 1;
    crossing.b9 = 1;
    EXPECT_EQ(encoded(FUNCTIONS(Crossing), crossing),
              padded("1" + std::string(30, '0') + "1  0 000000 1  00000010 1000000001 01 0000"));
}

} // namespace
