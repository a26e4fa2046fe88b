#include "rtxTestTypes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace
{

using namespace test;

class Decode : public testing::Test
{
protected:
    Decode()
    {
        EXPECT_EQ(RTX_OK, rtxInitContext(&ctxt));
    }

    ~Decode() override
    {
        rtFreeContext(&ctxt);
    }

    // Decodes from a buffer of the input's exact size, so that a sanitizer finds what reads past it.
    int decode(const Type& type, void* value, const std::vector<OSOCTET>& octets)
    {
        input = std::make_unique<OSOCTET[]>(octets.size());
        std::copy(octets.begin(), octets.end(), input.get());
        EXPECT_EQ(RTX_OK, pu_setBuffer(&ctxt, input.get(), octets.size(), 0));
        return rtxDecode(&ctxt, &type, value, flags);
    }

    template <typename T>
    T decoded(const Type& type, const std::string& text)
    {
        T value;
        std::memset(&value, 0xEE, sizeof value);
        EXPECT_EQ(RTX_OK, decode(type, &value, bits(text))) << error();
        return value;
    }

    // The error's line, after checking that the decoder says the same.
    std::string refused(const Type& type, const std::vector<OSOCTET>& octets)
    {
        std::vector<uint64_t> value(type.size / 8 + 1);
        const int status = decode(type, value.data(), octets);
        EXPECT_NE(RTX_OK, status);
        EXPECT_EQ(status, ctxt.error.status);
        return error();
    }

    std::string refused(const Type& type, const std::string& text)
    {
        return refused(type, bits(text));
    }

    std::string error() const
    {
        char text[1024];
        (void)rtxErrFormat(&ctxt, text, sizeof text);
        return text;
    }

    OSCTXT ctxt;
    unsigned flags = 0;
    std::unique_ptr<OSOCTET[]> input;
};

std::vector<OSOCTET> octetsOf(const ASN1OpenType& open)
{
    return {open.data, open.data + open.numocts};
}

const ASN1OpenType& openAt(const OSRTDListNode* node)
{
    return *static_cast<const ASN1OpenType*>(node->data);
}

TEST_F(Decode, Boolean)
{
    EXPECT_EQ(1, decoded<OSBOOL>(flagType, "1"));
    EXPECT_EQ(0, decoded<OSBOOL>(flagType, "0"));
}

TEST_F(Decode, AnEmptyEncodingIsOneZeroOctet)
{
    OSOCTET none = 0;
    EXPECT_EQ(RTX_OK, decode(nothingType, &none, {0}));
    EXPECT_EQ("Nothing: the input ends before 8 more bits (at bit 0: octet 0, bit 0)",
              refused(nothingType, std::vector<OSOCTET>{}));
    EXPECT_EQ("Nothing: a padding bit is set (at bit 7: octet 0, bit 7)",
              refused(nothingType, std::vector<OSOCTET>{1}));
    EXPECT_EQ("Nothing: 1 octet follows the encoding (at bit 8: octet 1, bit 0)",
              refused(nothingType, std::vector<OSOCTET>{0, 0}));
}

TEST_F(Decode, Integer)
{
    EXPECT_EQ(-3, decoded<OSINT8>(levelType, "000"));
    EXPECT_EQ(4, decoded<OSINT8>(levelType, "111"));
    EXPECT_EQ(1, decoded<OSUINT8>(oddType, "000"));
    EXPECT_EQ(5, decoded<OSUINT8>(oddType, "100"));
    EXPECT_EQ(0xBEEF, decoded<OSUINT16>(wideType, octet(0xBE) + octet(0xEF)));
    EXPECT_EQ(-400, decoded<OSINT16>(biasType, "0000000000"));
    EXPECT_EQ(400, decoded<OSINT16>(biasType, "1100100000"));
    EXPECT_EQ(INT32_MIN, decoded<OSINT32>(wholeType, std::string(32, '0')));
    EXPECT_EQ(INT32_MAX, decoded<OSINT32>(wholeType, std::string(32, '1')));
    EXPECT_EQ("Odd: 6 is not in 1..5 (at bit 0: octet 0, bit 0)", refused(oddType, "101"));
    EXPECT_EQ("Bias: 401 is not in -400..400 (at bit 0: octet 0, bit 0)", refused(biasType, "1100100001"));
}

TEST_F(Decode, Enumerated)
{
    EXPECT_EQ(2U, decoded<OSUINT32>(colourType, "10"));
    EXPECT_EQ(0U, decoded<OSUINT32>(onlyType, "00000000"));
    EXPECT_EQ("Colour: 3 is not in 0..2 (at bit 0: octet 0, bit 0)", refused(colourType, "11"));
}

TEST_F(Decode, BitString)
{
    const auto map = decoded<ASN1BitStr32>(mapType, "10110");
    EXPECT_EQ(5U, map.numbits);
    EXPECT_EQ(0xB0, map.data[0]);
    EXPECT_EQ(0, map.data[1] | map.data[2] | map.data[3]);

    using LongMap = std::array<OSOCTET, 6>;
    const auto longMap = decoded<LongMap>(longMapType, octet(0x81) + octet(2) + octet(3) + octet(4) + octet(5) + "101");
    EXPECT_EQ((LongMap{0x81, 2, 3, 4, 5, 0xA0}), longMap);
    EXPECT_EQ("LongMap: the input ends before 43 more bits (at bit 0: octet 0, bit 0)",
              refused(longMapType, std::string(40, '1')));
}

TEST_F(Decode, SequenceWithOptionalMember)
{
    const auto both = decoded<Item>(itemType, "1 010 01");
    EXPECT_EQ(1, both.m.shadePresent);
    EXPECT_EQ(3, both.id);
    EXPECT_EQ(1U, both.shade);
    const auto one = decoded<Item>(itemType, "0 100");
    EXPECT_EQ(0, one.m.shadePresent);
    EXPECT_EQ(5, one.id);
    EXPECT_EQ(0U, one.shade) << "the structure is cleared first";
    EXPECT_EQ("Item.id: 8 is not in 1..5 (at bit 1: octet 0, bit 1)", refused(itemType, "0 111"));
    EXPECT_EQ("Item.shade: 3 is not in 0..2 (at bit 4: octet 0, bit 4)", refused(itemType, "1 000 11"));
}

TEST_F(Decode, Array)
{
    const auto numbers = decoded<Numbers>(numbersType, "010 000 001 100");
    EXPECT_EQ(3, numbers.n);
    EXPECT_EQ(1, numbers.elem[0]);
    EXPECT_EQ(2, numbers.elem[1]);
    EXPECT_EQ(5, numbers.elem[2]);
    EXPECT_EQ(0, numbers.elem[3]);
    EXPECT_EQ("Numbers: 6 elements, not 1..5 (at bit 0: octet 0, bit 0)", refused(numbersType, "101 000"));
    EXPECT_EQ("Numbers[1]: 7 is not in 1..5 (at bit 6: octet 0, bit 6)", refused(numbersType, "001 000 110"));

    const auto pair = decoded<Pair>(pairType, "111 001");
    EXPECT_EQ(4, pair.elem[0]);
    EXPECT_EQ(-2, pair.elem[1]);

    const auto many = decoded<Many>(manyType, "100101100" + std::string(299, '0') + "1");
    EXPECT_EQ(300, many.n);
    EXPECT_EQ(0, many.elem[298]);
    EXPECT_EQ(1, many.elem[299]);
    EXPECT_EQ("Many: 301 elements, not 0..300 (at bit 0: octet 0, bit 0)", refused(manyType, "100101101"));
    EXPECT_EQ(0, decoded<Many>(manyType, "000000000").n);
}

TEST_F(Decode, List)
{
    const auto items = decoded<OSRTDList>(itemsType, "01  0 000  1 100 10");
    ASSERT_EQ(2U, items.count);
    ASSERT_NE(nullptr, items.head);
    EXPECT_EQ(items.head->next, items.tail);
    EXPECT_EQ(items.tail->prev, items.head);
    EXPECT_EQ(nullptr, items.tail->next);
    const auto& first = *static_cast<const Item*>(items.head->data);
    const auto& second = *static_cast<const Item*>(items.tail->data);
    EXPECT_EQ(1, first.id);
    EXPECT_EQ(0, first.m.shadePresent);
    EXPECT_EQ(5, second.id);
    EXPECT_EQ(1, second.m.shadePresent);
    EXPECT_EQ(2U, second.shade);
    EXPECT_NE(0, rtxMemHeapOwns(&ctxt, items.head, sizeof *items.head));
    EXPECT_NE(0, rtxMemHeapOwns(&ctxt, items.tail->data, sizeof(Item)));
    EXPECT_EQ("Items: 4 elements, not 1..3 (at bit 0: octet 0, bit 0)", refused(itemsType, "11"));
    EXPECT_EQ("Items[1].id: 8 is not in 1..5 (at bit 7: octet 0, bit 7)", refused(itemsType, "01  0 000  0 111"));
}

TEST_F(Decode, Choice)
{
    EXPECT_EQ(1U, decoded<Three>(threeType, "00").t);
    const auto level = decoded<Three>(threeType, "01 110");
    EXPECT_EQ(2U, level.t);
    EXPECT_EQ(3, level.u.level);
    const auto wide = decoded<Three>(threeType, "10 0000000100000010");
    EXPECT_EQ(3U, wide.t);
    EXPECT_EQ(0x102, wide.u.wide);
    EXPECT_EQ("Three: tag 4 is not in 1..3 (at bit 0: octet 0, bit 0)", refused(threeType, "11"));
    EXPECT_EQ("Three.wide: the input ends before 16 more bits (at bit 2: octet 0, bit 2)",
              refused(threeType, "10 000000"));
}

TEST_F(Decode, ChoiceByPointer)
{
    EXPECT_EQ(1U, decoded<Pick>(pickType, "0 00").t);
    EXPECT_EQ(-1, decoded<Pick>(pickType, "0 01 010").u.level);

    const auto item = decoded<Pick>(pickType, "0 10  1 011 00");
    EXPECT_EQ(3U, item.t);
    ASSERT_NE(0, rtxMemHeapOwns(&ctxt, item.u.item, sizeof(Item)));
    EXPECT_EQ(4, item.u.item->id);
    EXPECT_EQ(1, item.u.item->m.shadePresent);

    const auto map = decoded<Pick>(pickType, "0 11 01101");
    EXPECT_EQ(4U, map.t);
    ASSERT_NE(0, rtxMemHeapOwns(&ctxt, map.u.map, sizeof(ASN1BitStr32)));
    EXPECT_EQ(5U, map.u.map->numbits);
    EXPECT_EQ(0x68, map.u.map->data[0]);
    EXPECT_EQ("Pick.item.id: 7 is not in 1..5 (at bit 4: octet 0, bit 4)", refused(pickType, "0 10  0 110"));
}

TEST_F(Decode, ChoiceWithKnownExtension)
{
    const auto late = decoded<Pick>(pickType, "1 0 000000" + octet(1) + "1 010 01");
    EXPECT_EQ(5U, late.t);
    ASSERT_NE(0, rtxMemHeapOwns(&ctxt, late.u.late, sizeof(Item)));
    EXPECT_EQ(3, late.u.late->id);
    EXPECT_EQ(1U, late.u.late->shade);
    EXPECT_EQ("Pick.late.id: 6 is not in 1..5 (at bit 17: octet 2, bit 1)",
              refused(pickType, "1 0 000000" + octet(1) + "0 101"));
    EXPECT_EQ("Pick.late: 1 octet follows the encoding (at bit 24: octet 3, bit 0)",
              refused(pickType, "1 0 000000" + octet(2) + octet(0) + octet(1)));
}

TEST_F(Decode, ChoiceWithUnknownAlternative)
{
    const auto next = decoded<Pick>(pickType, "1 0 000001" + octet(2) + octet(0xAB) + octet(0xCD));
    EXPECT_EQ(6U, next.t);
    ASSERT_NE(0, rtxMemHeapOwns(&ctxt, next.u.extElem1, sizeof(ASN1OpenType)));
    EXPECT_EQ((std::vector<OSOCTET>{0xAB, 0xCD}), octetsOf(*next.u.extElem1));

    // The schema knows one extension: number 63 is its 63rd unknown one, 64 and 300 take the long form.
    EXPECT_EQ(5U + 63, decoded<Pick>(pickType, "1 0 111111" + octet(1) + octet(0)).t);
    EXPECT_EQ(5U + 64, decoded<Pick>(pickType, "1 1" + octet(1) + octet(64) + octet(1) + octet(0)).t);
    const auto far = decoded<Pick>(pickType, "1 1" + octet(2) + octet(1) + octet(44) + octet(1) + octet(9));
    EXPECT_EQ(5U + 300, far.t);
    EXPECT_EQ((std::vector<OSOCTET>{9}), octetsOf(*far.u.extElem1));
}

TEST_F(Decode, ANumberThatIsNotInItsShortestFormIsRefused)
{
    const std::string rest = octet(1) + octet(0);
    EXPECT_EQ("Pick: a length determinant 0x01 that PER does not allow (at bit 2: octet 0, bit 2)",
              refused(pickType, "1 1" + octet(1) + octet(63) + rest));
    EXPECT_EQ("Pick: a length determinant 0x02 that PER does not allow (at bit 2: octet 0, bit 2)",
              refused(pickType, "1 1" + octet(2) + octet(0) + octet(64) + rest));
    EXPECT_EQ("Pick: a length determinant 0x00 that PER does not allow (at bit 2: octet 0, bit 2)",
              refused(pickType, "1 1" + octet(0) + rest));
    EXPECT_EQ("Pick: a length determinant 0x04 that PER does not allow (at bit 2: octet 0, bit 2)",
              refused(pickType, "1 1" + octet(4) + octet(1) + octet(0) + octet(0) + octet(0) + rest));
    EXPECT_EQ("Pick: the input ends before 16 more bits (at bit 10: octet 1, bit 2)",
              refused(pickType, "1 1" + octet(2) + octet(0)));
}

// level 0, no pick; the additions follow.
const std::string boxRoot = "1 0 011";

TEST_F(Decode, KnownExtensionAdditions)
{
    const auto box = decoded<Box>(boxType, boxRoot + "0 000010  111" + octet(1) + "1 1 1 100 00" + octet(2) +
                                               octet(0x12) + octet(0x34) + octet(1) + "010 00000");
    EXPECT_EQ(0, box.level);
    EXPECT_EQ(1, box.m._v2ExtPresent);
    EXPECT_EQ(1, box.m.aPresent);
    EXPECT_EQ(1, box.a);
    EXPECT_EQ(1, box.m.bPresent);
    EXPECT_EQ(5, box.b);
    EXPECT_EQ(1, box.m.lonePresent);
    EXPECT_EQ(0x1234, box.lone);
    EXPECT_EQ(1, box.m._v4ExtPresent);
    EXPECT_EQ(3, box.must);
    EXPECT_EQ(0U, box.extElem1.count);
}

TEST_F(Decode, SomeExtensionAdditions)
{
    const auto box = decoded<Box>(boxType, boxRoot + "0 000010  100" + octet(1) + "0 1 001 000");
    EXPECT_EQ(1, box.m._v2ExtPresent);
    EXPECT_EQ(0, box.m.aPresent);
    EXPECT_EQ(1, box.m.bPresent);
    EXPECT_EQ(2, box.b);
    EXPECT_EQ(0, box.m.lonePresent);
    EXPECT_EQ(0, box.m._v4ExtPresent);

    const auto last = decoded<Box>(boxType, boxRoot + "0 000010  001" + octet(1) + "011 00000");
    EXPECT_EQ(0, last.m._v2ExtPresent);
    EXPECT_EQ(0, last.m.lonePresent);
    EXPECT_EQ(1, last.m._v4ExtPresent);
    EXPECT_EQ(4, last.must);
}

TEST_F(Decode, AnEarlierReleasesShorterBitmap)
{
    const auto box = decoded<Box>(boxType, boxRoot + "0 000000  1" + octet(1) + "1 0 1 00000");
    EXPECT_EQ(1, box.m._v2ExtPresent);
    EXPECT_EQ(1, box.m.aPresent);
    EXPECT_EQ(1, box.a);
    EXPECT_EQ(0, box.m.bPresent);
    EXPECT_EQ(0, box.m._v4ExtPresent);
}

TEST_F(Decode, ALaterReleasesUnknownAdditionsAreKept)
{
    // Seven additions: the second one known, then unknown: absent, present, absent, absent as the last.
    const auto box = decoded<Box>(boxType, boxRoot + "0 000110  010 0100" + octet(2) + octet(0) + octet(7) + octet(3) +
                                               octet(0xA1) + octet(0xB2) + octet(0xC3));
    EXPECT_EQ(0, box.m._v2ExtPresent);
    EXPECT_EQ(7, box.lone);
    ASSERT_EQ(1U, box.extElem1.count) << "those present";
    EXPECT_EQ(1U, openAt(box.extElem1.tail).index);
    EXPECT_EQ(1U, ctxt.decoded.unknown);
    EXPECT_EQ((std::vector<OSOCTET>{0xA1, 0xB2, 0xC3}), octetsOf(openAt(box.extElem1.tail)));
    EXPECT_NE(0, rtxMemHeapOwns(&ctxt, openAt(box.extElem1.tail).data, 3));
}

TEST_F(Decode, MoreThan64AdditionsInTheBitmap)
{
    const auto box =
        decoded<Box>(boxType, boxRoot + "1" + octet(65) + std::string(64, '0') + "1" + octet(1) + octet(0x5A));
    ASSERT_EQ(1U, box.extElem1.count);
    EXPECT_EQ(61U, openAt(box.extElem1.head).index);
    EXPECT_EQ((std::vector<OSOCTET>{0x5A}), octetsOf(openAt(box.extElem1.tail)));

    const auto more = decoded<Box>(boxType, boxRoot + "1" + octet(0x80) + octet(200) + std::string(199, '0') + "1" +
                                                octet(1) + octet(0x5A));
    ASSERT_EQ(1U, more.extElem1.count);
    EXPECT_EQ(196U, openAt(more.extElem1.head).index);
}

TEST_F(Decode, AnImpossibleBitmapLengthIsRefused)
{
    // 64 has a short form, a bitmap of 16K has no use.
    EXPECT_EQ("Box.[[...]]: a length determinant 0x40 that PER does not allow (at bit 6: octet 0, bit 6)",
              refused(boxType, boxRoot + "1" + octet(64) + std::string(64, '1')));
    EXPECT_EQ("Box.[[...]]: a length determinant 0xC1 that PER does not allow (at bit 6: octet 0, bit 6)",
              refused(boxType, boxRoot + "1" + octet(0xC1) + std::string(64, '1')));
    EXPECT_EQ("Box.[[...]]: a length determinant 0x80 that PER does not allow (at bit 6: octet 0, bit 6)",
              refused(boxType, boxRoot + "1" + octet(0x80) + octet(127) + std::string(127, '1')));
    EXPECT_EQ("Box.[[...]]: the input ends before 64 more bits (at bit 12: octet 1, bit 4)",
              refused(boxType, boxRoot + "0 111111 0000"));
}

TEST_F(Decode, AGroupWithoutMembersIsTakenAndNotSentAgain)
{
    const auto box = decoded<Box>(boxType, boxRoot + "0 000010  100" + octet(1) + "00 000000");
    EXPECT_EQ(0, box.m._v2ExtPresent);
    EXPECT_EQ(0, box.m.aPresent);
    EXPECT_EQ(0, box.m.bPresent);
}

// Nine ::= SEQUENCE { ..., [[ BOOLEAN OPTIONAL, nine times ]] }: its group's presence bits take more than an octet.
struct Nine
{
    struct
    {
        unsigned groupPresent : 1;
        unsigned flagsPresent : 9;
    } m;
    OSBOOL flags[9];
    OSRTDList extElem1;
};
constexpr const char* nineNames[] = {"a", "b", "c", "d", "e", "f", "g", "h", "i"};
constexpr auto nineMembers = []
{
    std::array<Member, 9> members{};
    for (unsigned i = 0; i < members.size(); ++i)
    {
        members[i] = member(flagType, offsetof(Nine, flags) + i, static_cast<int>(i) + 1);
    }
    return members;
}();
constexpr Addition nineAdditions[] = {{0, 0, 9}};
constexpr Type nineType = {.name = "Nine",
                           .kind = Kind::Sequence,
                           .extensible = true,
                           .align = alignof(Nine),
                           .size = sizeof(Nine),
                           .names = nineNames,
                           .members = nineMembers.data(),
                           .memberCount = 9,
                           .additions = nineAdditions,
                           .additionCount = 1,
                           .extElem = offsetof(Nine, extElem1)};

TEST_F(Decode, AGroupsPresenceBitsLieInItsOctets)
{
    const std::string head = "1 0 000000 1";
    const auto nine = decoded<Nine>(nineType, head + octet(2) + "100000001 1 1 00000");
    EXPECT_EQ(1, nine.flags[0] & nine.flags[8]);
    EXPECT_EQ("Nine.[[1]]: the input ends before 1 more bit (at bit 25: octet 3, bit 1)",
              refused(nineType, head + octet(1) + "100000001 1 1 00000"));
}

// INTEGER (5..5), (-300..-300), (70000..70000)
TEST_F(Decode, ANumberWithOneValueTakesNoBits)
{
    static constexpr Type narrow = {
        .name = "Narrow", .kind = Kind::Integer, .width = 1, .align = 1, .size = 1, .lower = 5, .upper = 5};
    static constexpr Type middle = {
        .name = "Middle", .kind = Kind::Integer, .width = 2, .align = 2, .size = 2, .lower = -300, .upper = -300};
    static constexpr Type large = {
        .name = "Large", .kind = Kind::Integer, .width = 4, .align = 4, .size = 4, .lower = 70000, .upper = 70000};
    struct Three
    {
        OSUINT32 large;
        OSINT16 middle;
        OSUINT8 narrow;
    };
    static constexpr const char* names[] = {"narrow", "middle", "large"};
    static constexpr Member members[] = {member(narrow, offsetof(Three, narrow)),
                                         member(middle, offsetof(Three, middle)),
                                         member(large, offsetof(Three, large))};
    static constexpr Type threeType = {.name = "Three",
                                       .kind = Kind::Sequence,
                                       .align = alignof(Three),
                                       .size = sizeof(Three),
                                       .names = names,
                                       .members = members,
                                       .memberCount = 3,
                                       .rootCount = 3};
    const auto three = decoded<Three>(threeType, octet(0));
    EXPECT_EQ(5, three.narrow);
    EXPECT_EQ(-300, three.middle);
    EXPECT_EQ(70000U, three.large);
}

TEST_F(Decode, AnExtensionWithoutAdditionIsRefusedWhereStrict)
{
    const auto box = decoded<Box>(boxType, boxRoot + "0 000010  000");
    EXPECT_EQ(0, box.m._v2ExtPresent | box.m.lonePresent | box.m._v4ExtPresent);
    EXPECT_EQ(RTX_NOTE_EMPTY_EXTENSION, ctxt.decoded.note);
    EXPECT_EQ(12U, ctxt.decoded.noteOffset);
    flags = RTX_DECODE_STRICT;
    EXPECT_EQ("Box.[[...]]: an extension is announced and has no addition (at bit 12: octet 1, bit 4)",
              refused(boxType, boxRoot + "0 000010  000"));
}

TEST_F(Decode, ZeroOctetsBehindAnOpenTypesContentAreTakenUnlessStrict)
{
    const std::string text = boxRoot + "0 000010  100" + octet(3) + "1 0 1 00000" + octet(0) + octet(0);
    const auto box = decoded<Box>(boxType, text);
    EXPECT_EQ(1, box.m.aPresent & box.a);
    EXPECT_EQ(RTX_NOTE_SURPLUS, ctxt.decoded.note);
    EXPECT_EQ(31U, ctxt.decoded.noteOffset);
    flags = RTX_DECODE_STRICT;
    EXPECT_EQ("Box.[[1]]: 2 octets follow the encoding (at bit 31: octet 3, bit 7)", refused(boxType, text));
}

TEST_F(Decode, WhatAnotherSenderWritesDifferentlyIsNoted)
{
    decoded<Box>(boxType, boxRoot + "0 000010  111" + octet(1) + "1 1 1 100 00" + octet(2) + octet(0x12) + octet(0x34) +
                              octet(1) + "010 00000");
    EXPECT_EQ(RTX_NOTE_NONE, ctxt.decoded.note);
    decoded<Box>(boxType, boxRoot + "0 000000  1" + octet(1) + "1 0 1 00000"); // an earlier release's bitmap
    EXPECT_EQ(RTX_NOTE_BITMAP, ctxt.decoded.note);
    EXPECT_EQ(12U, ctxt.decoded.noteOffset);
    decoded<Box>(boxType, boxRoot + "0 000011  1000" + octet(1) + "1 0 1 00000"); // a zero behind the last one present
    EXPECT_EQ(RTX_NOTE_BITMAP, ctxt.decoded.note);
    decoded<Box>(boxType, boxRoot + "0 000010  100" + octet(1) + "00 000000");
    EXPECT_EQ(RTX_NOTE_EMPTY_GROUP, ctxt.decoded.note);
    EXPECT_EQ(23U, ctxt.decoded.noteOffset);
}

TEST_F(Decode, OctetsBehindAMessageWithAPrefixOnly)
{
    flags = RTX_DECODE_PREFIX;
    const auto item = decoded<Item>(itemType, "1 010 01 00" + octet(0xAB) + octet(0xCD));
    EXPECT_EQ(3, item.id);
    EXPECT_EQ(1U, ctxt.decoded.octets);
    decoded<Item>(itemType, "1 010 01 00");
    EXPECT_EQ(1U, ctxt.decoded.octets);
    flags = 0;
    EXPECT_EQ("Item: 2 octets follow the encoding (at bit 8: octet 1, bit 0)",
              refused(itemType, "1 010 01 00" + octet(0xAB) + octet(0xCD)));
}

TEST_F(Decode, OpenTypesAreHeldToTheirLength)
{
    // The first length stands at bit 15, its content at bit 23.
    const std::string head = boxRoot + "0 000010  100";
    EXPECT_EQ("Box.[[1]]: 1 octet follows the encoding (at bit 31: octet 3, bit 7)",
              refused(boxType, head + octet(2) + octet(0) + octet(1)));
    EXPECT_EQ("Box.[[1]]: a padding bit is set (at bit 30: octet 3, bit 6)",
              refused(boxType, head + octet(1) + "00 000001"));
    EXPECT_EQ("Box.[[1]]: a length determinant 0x00 that PER does not allow (at bit 15: octet 1, bit 7)",
              refused(boxType, head + octet(0)));
    EXPECT_EQ("Box.[[1]]: a length determinant 0x80 that PER does not allow (at bit 15: octet 1, bit 7)",
              refused(boxType, head + octet(0x80) + octet(1) + octet(0)));
    EXPECT_EQ("Box.[[1]]: a length determinant 0xC0 that PER does not allow (at bit 15: octet 1, bit 7)",
              refused(boxType, head + octet(0xC0) + octet(0)));
    EXPECT_EQ("Box.[[1]]: a length determinant 0xC5 that PER does not allow (at bit 15: octet 1, bit 7)",
              refused(boxType, head + octet(0xC5) + octet(0)));
    EXPECT_EQ("Box.[[1]]: the input ends before 24 more bits (at bit 23: octet 2, bit 7)",
              refused(boxType, head + octet(3) + octet(0)));
    EXPECT_EQ("Box.[[1]]: the input ends before 8 more bits (at bit 23: octet 2, bit 7)",
              refused(boxType, head + octet(0x81)));
    EXPECT_EQ("Box.b: 8 is not in 1..5 (at bit 25: octet 3, bit 1)", refused(boxType, head + octet(1) + "0 1 111 000"));
}

TEST_F(Decode, ALoneAdditionReadsNotPastItsLength)
{
    const std::string head = boxRoot + "0 000010  010";
    EXPECT_EQ("Box.lone: the input ends before 16 more bits (at bit 23: octet 2, bit 7)",
              refused(boxType, head + octet(1) + octet(0x12) + octet(0x34)));
    EXPECT_EQ("Box.lone: a length determinant 0x00 that PER does not allow (at bit 15: octet 1, bit 7)",
              refused(boxType, head + octet(0) + octet(0x12) + octet(0x34)));
}

TEST_F(Decode, AnUnknownAdditionIsNamedByItsPlace)
{
    EXPECT_EQ("Box.extElem1[1]: the input ends before 16 more bits (at bit 25: octet 3, bit 1)",
              refused(boxType, boxRoot + "0 000100  00001" + octet(2) + octet(0)));
    EXPECT_EQ("Box.extElem1[0]: a length determinant 0x00 that PER does not allow (at bit 16: octet 2, bit 0)",
              refused(boxType, boxRoot + "0 000011  0001" + octet(0)));
}

TEST_F(Decode, TheWholeInputIsTheEncoding)
{
    EXPECT_EQ("Item: a padding bit is set (at bit 5: octet 0, bit 5)", refused(itemType, "0 100 0100"));
    EXPECT_EQ("Item: a padding bit is set (at bit 7: octet 0, bit 7)", refused(itemType, "0 100 0001"));
    EXPECT_EQ("Item: 2 octets follow the encoding (at bit 8: octet 1, bit 0)",
              refused(itemType, "0 100 0000" + octet(0) + octet(0)));
    Pair pair;
    EXPECT_EQ(RTX_OK, decode(pairType, &pair, {0}));
}

TEST_F(Decode, EveryShorterInputEndsTooSoon)
{
    const std::vector<OSOCTET> whole =
        bits("1 1 011 0 10 1 011 00" + std::string("0 000110  111 0100") + octet(1) + "1 1 1 100 00" + octet(2) +
             octet(0x12) + octet(0x34) + octet(1) + "010 00000" + octet(3) + octet(1) + octet(2) + octet(3));
    Box box;
    ASSERT_EQ(RTX_OK, decode(boxType, &box, whole)) << error();
    for (size_t size = 0; size < whole.size(); ++size)
    {
        const std::vector<OSOCTET> part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_EQ(RTX_E_END, decode(boxType, &box, part)) << size;
        EXPECT_NE(0, ctxt.error.hasOffset);
        EXPECT_LE(ctxt.error.bitOffset, size * 8);
    }
}

// `size` octets, their numbers' low ends.
std::vector<OSOCTET> counted(size_t size)
{
    std::vector<OSOCTET> octets(size);
    for (size_t i = 0; i < size; ++i)
    {
        octets[i] = static_cast<OSOCTET>(i * 7 + i / 256);
    }
    return octets;
}

std::string octetBits(const std::vector<OSOCTET>& octets, size_t from, size_t size)
{
    std::string text;
    for (size_t i = from; i < from + size; ++i)
    {
        text += octet(octets[i]);
    }
    return text;
}

TEST_F(Decode, FragmentsAreJoined)
{
    const std::string head = boxRoot + "0 000011  0001";
    const auto sixteen = counted(16384);
    auto box = decoded<Box>(boxType, head + octet(0xC1) + octetBits(sixteen, 0, 16384) + octet(0));
    EXPECT_EQ(sixteen, octetsOf(openAt(box.extElem1.head)));

    const auto twenty = counted(20000); // 16384 + 3616
    box = decoded<Box>(boxType, head + octet(0xC1) + octetBits(twenty, 0, 16384) + octet(0x8E) + octet(0x20) +
                                    octetBits(twenty, 16384, 3616));
    EXPECT_EQ(twenty, octetsOf(openAt(box.extElem1.head)));

    const auto large = counted(65536 + 49152 + 100);
    box = decoded<Box>(boxType, head + octet(0xC4) + octetBits(large, 0, 65536) + octet(0xC3) +
                                    octetBits(large, 65536, 49152) + octet(100) + octetBits(large, 114688, 100));
    EXPECT_EQ(large, octetsOf(openAt(box.extElem1.head)));
}

TEST_F(Decode, FragmentsThatAreSmallerThanNeedBeAreRefused)
{
    // Only behind 64K may another fragment follow. The first length stands at bit 16.
    const std::string head = boxRoot + "0 000011  0001";
    const auto octets = counted(32768);
    EXPECT_EQ("Box.extElem1[0]: a length determinant 0xC1 that PER does not allow (at bit 131096: octet 16387, bit 0)",
              refused(boxType, head + octet(0xC1) + octetBits(octets, 0, 16384) + octet(0xC1) +
                                   octetBits(octets, 16384, 16384) + octet(0)));
    EXPECT_EQ("Box.extElem1[0]: the input ends before 262144 more bits (at bit 24: octet 3, bit 0)",
              refused(boxType, head + octet(0xC2) + octetBits(octets, 0, 16384) + octet(0)));
    EXPECT_EQ("Box.extElem1[0]: the input ends before 8 more bits (at bit 262168: octet 32771, bit 0)",
              refused(boxType, head + octet(0xC2) + octetBits(octets, 0, 32768)));
}

// A Trace with 17000 samples of 1, 2, 3 and so on, of which `place` is 65535, and `surplus` zero octets behind them.
// The samples' 34000 octets are sent as 32768 from bit 17 on and as 1232 from bit 262177 on.
std::string traceBits(unsigned place, unsigned surplus)
{
    std::string text = "1 0 000000 1" + octet(0xC2);
    for (unsigned i = 0; i < 17000; ++i)
    {
        if (i == 16384)
        {
            text += octet(0x84) + octet(0xD0 + surplus);
        }
        text += i == place ? std::string(16, '1') : octet((i + 1) / 256) + octet((i + 1) % 256);
    }
    return text + std::string(size_t{surplus} * 8, '0');
}
constexpr unsigned noSample = 17000;

std::vector<OSOCTET> traceOctets(unsigned place)
{
    return bits(traceBits(place, 0));
}

TEST_F(Decode, AFragmentedKnownAddition)
{
    const auto trace = std::make_unique<Trace>();
    ASSERT_EQ(RTX_OK, decode(traceType, trace.get(), traceOctets(noSample))) << error();
    EXPECT_EQ(1, trace->m.samplesPresent);
    for (unsigned i = 0; i < 17000; ++i)
    {
        ASSERT_EQ(i + 1, trace->samples.elem[i]);
    }
}

TEST_F(Decode, WhatIsNotedInAFragmentIsFoundInTheInput)
{
    // A zero octet more than the samples take, of 1233 behind bit 262177.
    const auto trace = std::make_unique<Trace>();
    ASSERT_EQ(RTX_OK, decode(traceType, trace.get(), bits(traceBits(noSample, 1)))) << error();
    EXPECT_EQ(17000U, trace->samples.elem[16999]);
    EXPECT_EQ(RTX_NOTE_SURPLUS, ctxt.decoded.note);
    EXPECT_EQ(262177U + (34000U - 32768U) * 8, ctxt.decoded.noteOffset);
}

TEST_F(Decode, AnErrorInAFragmentIsFoundInTheInput)
{
    EXPECT_EQ("Trace.samples[0]: 65535 is not in 0..40000 (at bit 17: octet 2, bit 1)",
              refused(traceType, traceOctets(0)));
    EXPECT_EQ("Trace.samples[16383]: 65535 is not in 0..40000 (at bit 262145: octet 32768, bit 1)",
              refused(traceType, traceOctets(16383)));
    EXPECT_EQ("Trace.samples[16384]: 65535 is not in 0..40000 (at bit 262177: octet 32772, bit 1)",
              refused(traceType, traceOctets(16384)));
    EXPECT_EQ("Trace.samples[16990]: 65535 is not in 0..40000 (at bit 271873: octet 33984, bit 1)",
              refused(traceType, traceOctets(16990)));
}

TEST_F(Decode, AnExhaustedHeapIsSaid)
{
    // What holds pointers is smaller on systems of 32 bits.
    const std::string item = std::to_string(sizeof(OSRTDListNode) + 12);
    const std::string pick = std::to_string(sizeof(ASN1OpenType) + 2);
    rtxMemHeapSetLimit(&ctxt, 0);
    EXPECT_EQ("Items[0]: the heap is exhausted: " + item + " octets were asked for (at bit 2: octet 0, bit 2)",
              refused(itemsType, "01  0 000  0 000"));
    EXPECT_EQ("Pick.item: the heap is exhausted: 12 octets were asked for (at bit 3: octet 0, bit 3)",
              refused(pickType, "0 10 0 000"));
    EXPECT_EQ("Pick: the heap is exhausted: " + pick + " octets were asked for (at bit 32: octet 4, bit 0)",
              refused(pickType, "1 0 000001" + octet(2) + octet(0) + octet(0)));
    EXPECT_EQ("Trace.samples: the heap is exhausted: 34000 octets were asked for (at bit 272033: octet 34004, bit 1)",
              refused(traceType, traceOctets(noSample)));
    rtxMemHeapSetLimit(&ctxt, 48);
    EXPECT_EQ("Items[1]: the heap is exhausted: " + item + " octets were asked for (at bit 6: octet 0, bit 6)",
              refused(itemsType, "01  0 000  0 000"));
}

TEST_F(Decode, AListGrowsOnlyAsItsInputIsRead)
{
    // Three elements are announced and none is there: one node at most.
    rtxMemHeapSetLimit(&ctxt, 48);
    static constexpr Type longItems = {.name = "Items",
                                       .kind = Kind::List,
                                       .size = sizeof(OSRTDList),
                                       .lower = 1,
                                       .upper = 128,
                                       .members = &itemsElement,
                                       .memberCount = 1,
                                       .rootCount = 1,
                                       .bits = 7};
    EXPECT_EQ("Items[0].id: the input ends before 3 more bits (at bit 8: octet 1, bit 0)",
              refused(longItems, "1111111 0"));
}

TEST_F(Decode, DepthIsBounded)
{
    OSBOOL flag = 0;
    EXPECT_EQ(RTX_OK, decode(Nested(RTX_MAX_DEPTH - 1).type(), &flag, bits("1"))) << error();
    EXPECT_EQ(1, flag);
    EXPECT_EQ(RTX_E_DEPTH, decode(Nested(RTX_MAX_DEPTH).type(), &flag, bits("1")));
    EXPECT_NE(std::string::npos, error().find(".in: the element tree is deeper than 48 (at bit 0: octet 0, bit 0)"))
        << error();
    for (const Type* inner : {&pickType, &itemsType, &numbersType})
    {
        EXPECT_NE(std::string::npos,
                  refused(Nested(RTX_MAX_DEPTH - 1, *inner).type(), bits("0")).find("deeper than 48"))
            << inner->name;
    }
}

TEST_F(Decode, NeedsABuffer)
{
    OSBOOL flag = 0;
    EXPECT_EQ(RTX_E_NOBUFFER, rtxDecode(&ctxt, &flagType, &flag, 0));
    EXPECT_EQ("no buffer", error());
    rtxErrReset(&ctxt);
    OSOCTET octets[1] = {0};
    EXPECT_EQ(RTX_E_ALIGNED, pu_setBuffer(&ctxt, octets, 1, 1));
    EXPECT_EQ(RTX_E_ALIGNED, rtxDecode(&ctxt, &flagType, &flag, 0));
    EXPECT_EQ("aligned PER is not available", error());
}

TEST_F(Decode, NeedsSomewhereToDecodeTo)
{
    EXPECT_EQ(RTX_E_NULL, decode(flagType, nullptr, {0}));
    EXPECT_EQ("Flag: a null pointer", error());
    OSBOOL flag = 0;
    EXPECT_EQ(RTX_E_NULL, rtxDecode(nullptr, &flagType, &flag, 0));
}

TEST_F(Decode, AnInputOfHalfAGibioctetIsRefusedUnread)
{
    OSBOOL flag = 0;
    OSOCTET octets[1] = {0};
    ASSERT_EQ(RTX_OK, pu_setBuffer(&ctxt, octets, 0x20000000, 0));
    EXPECT_EQ(RTX_E_RANGE, rtxDecode(&ctxt, &flagType, &flag, 0));
    EXPECT_EQ("Flag: 536870912 is not in 0..536870911", error());
    ASSERT_EQ(RTX_OK, pu_setBuffer(&ctxt, octets, SIZE_MAX, 0));
    EXPECT_EQ(RTX_E_RANGE, rtxDecode(&ctxt, &flagType, &flag, 0));
}

TEST_F(Decode, TheErrorIsThatOfTheLastRun)
{
    EXPECT_EQ("Odd: 6 is not in 1..5 (at bit 0: octet 0, bit 0)", refused(oddType, "101"));
    EXPECT_EQ("Colour: 3 is not in 0..2 (at bit 0: octet 0, bit 0)", refused(colourType, "11"));
    EXPECT_EQ(1, decoded<OSBOOL>(flagType, "1"));
    EXPECT_EQ("", error());
}

} // namespace
