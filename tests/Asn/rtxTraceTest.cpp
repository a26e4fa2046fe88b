#include "NR-RRC-Definitions.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "rtxTestTypes.h"

namespace
{

using namespace test;

const char* nameOf(unsigned kind)
{
    static const char* const names[] = {"extension", "presence", "additions", "choice",  "count", "length",
                                        "value",     "padding",  "unknown",   "surplus", "unread"};
    return names[kind];
}

std::string pathOf(const RtxField& field)
{
    std::string path;
    for (unsigned i = 0; i < field.depth; ++i)
    {
        const RtxPathStep& step = field.path[i];
        if (step.group != 0)
        {
            path += ".[[" + std::to_string(step.index) + "]]";
        }
        else
        {
            path += step.name == nullptr ? "[" + std::to_string(step.index) + "]" : "." + std::string(step.name);
        }
    }
    return path;
}

class Trace : public testing::Test
{
protected:
    Trace()
    {
        EXPECT_EQ(RTX_OK, rtxInitContext(&ctxt));
    }
    ~Trace() override
    {
        rtFreeContext(&ctxt);
    }

    // A line a field: offset, width, kind, bits, path; and every field begins where the one before ends.
    std::string traced(const Type& type, std::vector<OSOCTET> octets, unsigned flags = 0)
    {
        std::vector<uint64_t> value(type.size / 8 + 1);
        EXPECT_EQ(RTX_OK, pu_setBuffer(&ctxt, octets.data(), octets.size(), 0));
        next = 0;
        lines.clear();
        status = rtxTrace(
            &ctxt, &type, value.data(), flags,
            [](void* arg, const RtxField* field) { static_cast<Trace*>(arg)->add(*field); }, this);
        EXPECT_EQ(octets.size() * 8, next);
        return lines;
    }

    void add(const RtxField& field)
    {
        EXPECT_EQ(next, field.offset);
        next = field.offset + field.width;
        std::ostringstream line;
        line << field.offset << ' ' << field.width << ' ' << nameOf(field.kind) << ' ' << field.bits << ' '
             << pathOf(field);
        if (field.note != RTX_NOTE_NONE)
        {
            line << " note " << unsigned{field.note};
        }
        if (field.kind == RTX_FIELD_PRESENCE || field.kind == RTX_FIELD_ADDITIONS)
        {
            for (OSUINT32 bit = 0; bit < field.width; ++bit)
            {
                const char* const name = rtxFieldBitName(&field, bit);
                line << ' ' << (name != nullptr ? name : "-");
            }
        }
        lines += line.str() + "\n";
    }

    OSCTXT ctxt;
    int status = 0;
    uint64_t next = 0;
    std::string lines;
};

TEST_F(Trace, EveryKindOfField)
{
    // level -3+3, the pick is an Item with a shade; [[1]] with a and b, lone, nothing else
    EXPECT_EQ("0 1 extension 1 \n"
              "1 1 presence 1  pick\n"
              "2 3 value 6 .level\n"
              "5 1 extension 0 .pick\n"
              "6 2 choice 2 .pick\n"
              "8 1 presence 1 .pick.item shade\n"
              "9 3 value 2 .pick.item.id\n"
              "12 2 value 1 .pick.item.shade\n"
              "14 7 length 2 \n"
              "21 3 additions 6  - lone -\n"
              "24 8 length 1 .[[1]]\n"
              "32 2 presence 3 .[[1]] a b\n"
              "34 1 value 1 .[[1]].a\n"
              "35 3 value 4 .[[1]].b\n"
              "38 2 padding 0 .[[1]]\n"
              "40 8 length 2 .lone\n"
              "48 16 value 4660 .lone\n",
              traced(boxType, bits("1 1 110 0 10  1 010 01  0 000010  110" + octet(1) + "1 1 1 100 00" + octet(2) +
                                   octet(0x12) + octet(0x34))));
    EXPECT_EQ(RTX_OK, status);
}

TEST_F(Trace, ValuesWithoutBitsListsAndOctetsOfUnknownContent)
{
    EXPECT_EQ("0 0 value 0 \n0 8 padding 0 \n", traced(onlyType, {0}));
    EXPECT_EQ("0 2 choice 0 \n2 0 value 0 .none\n2 6 padding 0 \n", traced(threeType, {0}));
    EXPECT_EQ("0 2 count 2 \n2 1 presence 0 [0] shade\n3 3 value 0 [0].id\n6 1 presence 0 [1] shade\n"
              "7 3 value 4 [1].id\n10 6 padding 0 \n",
              traced(itemsType, bits("01 0 000 0 100")));
    EXPECT_EQ("0 0 count 2 \n0 3 value 1 [0]\n3 3 value 7 [1]\n6 2 padding 0 \n", traced(pairType, bits("001 111")));
    EXPECT_EQ("0 1 extension 1 \n1 1 presence 0  pick\n2 3 value 3 .level\n5 7 length 4 \n"
              "12 5 additions 1  - lone - - -\n17 8 length 2 .extElem1[1]\n25 16 unknown 0 .extElem1[1]\n"
              "41 7 padding 0 \n",
              traced(boxType, bits("1 0 011 0 000100 00001" + octet(2) + octet(7) + octet(9))));
}

TEST_F(Trace, AlternativesBehindTheExtensionMarker)
{
    EXPECT_EQ("0 1 extension 1 \n1 7 choice 0 \n8 8 length 1 .late\n16 1 presence 1 .late shade\n"
              "17 3 value 2 .late.id\n20 2 value 1 .late.shade\n22 2 padding 0 .late\n",
              traced(pickType, bits("1 0 000000" + octet(1) + "1 010 01")));
    EXPECT_EQ("0 1 extension 1 \n1 7 choice 1 \n8 8 length 2 .extElem1\n16 16 unknown 0 .extElem1\n",
              traced(pickType, bits("1 0 000001" + octet(2) + octet(0xAB) + octet(0xCD))));
}

TEST_F(Trace, WhatIsWrittenDifferentlyIsNotedAtItsPlace)
{
    EXPECT_EQ("0 1 extension 1 \n1 1 presence 0  pick\n2 3 value 3 .level\n5 7 length 2 \n"
              "12 3 additions 4  - lone -\n15 8 length 1 .[[1]]\n23 2 presence 0 .[[1]] a b\n"
              "25 6 padding 0 .[[1]] note 3\n31 1 padding 0 \n",
              traced(boxType, bits("1 0 011 0 000010 100" + octet(1) + "00 000000")));
}

TEST_F(Trace, WhatAnErrorLeavesIsUnread)
{
    EXPECT_EQ("0 1 presence 1  shade\n1 3 value 2 .id\n4 12 unread 0 \n", traced(itemType, {0xAC, 0xFF}));
    EXPECT_EQ(RTX_E_RANGE, status);
    EXPECT_EQ("0 1 presence 0  shade\n1 3 value 2 .id\n4 4 padding 0 \n8 8 surplus 0 \n",
              traced(itemType, {0x20, 0xFF}, RTX_DECODE_PREFIX));
    EXPECT_EQ(RTX_OK, status);
}

// The last fragment is empty, and its length ends the message.
TEST_F(Trace, ALengthBehindTheLastOctet)
{
    std::string text = "1 0 000001" + octet(0xC1);
    for (unsigned i = 0; i < 16384; ++i)
    {
        text += octet(i % 256);
    }
    const std::string all = traced(pickType, bits(text + octet(0)));
    EXPECT_EQ("0 1 extension 1 \n1 7 choice 1 \n8 8 length 193 .extElem1\n16 131072 unknown 0 .extElem1\n"
              "131088 8 length 0 .extElem1\n",
              all);
    EXPECT_EQ(RTX_OK, status);
}

// So it is behind a known alternative, CHOICE { ..., samples SEQUENCE (SIZE (8192)) OF Sample }.
TEST_F(Trace, ALengthBehindTheLastValue)
{
    struct Half
    {
        OSUINT16 elem[8192];
    };
    static constexpr Type halfType = {.name = "Half",
                                      .kind = Kind::Array,
                                      .align = alignof(Half),
                                      .size = sizeof(Half),
                                      .lower = 8192,
                                      .upper = 8192,
                                      .members = &samplesElement,
                                      .memberCount = 1,
                                      .rootCount = 1};
    static constexpr const char* names[] = {"samples"};
    static constexpr Member members[] = {member(halfType, offsetof(Pick, u), -1, true)};
    static constexpr Type laterType = {.name = "Later",
                                       .kind = Kind::Choice,
                                       .extensible = true,
                                       .align = alignof(Pick),
                                       .size = sizeof(Pick),
                                       .names = names,
                                       .members = members,
                                       .memberCount = 1,
                                       .extElem = offsetof(Pick, u)};
    std::string text = "1 0 000000" + octet(0xC1);
    for (unsigned i = 0; i < 8192; ++i)
    {
        text += octet(0) + octet(1);
    }
    const std::string all = traced(laterType, bits(text + octet(0)));
    EXPECT_EQ(RTX_OK, status);
    EXPECT_NE(std::string::npos, all.find("\n131072 16 value 1 .samples[8191]\n131088 8 length 0 "))
        << all.substr(0, 200);
}

// A bitmap of 64 additions, of which the 57th is there: as many bits as a field tells are told.
TEST_F(Trace, ALongBitmapIsToldToItsFiftySeventhBit)
{
    const std::string bitmap = std::string(56, '0') + "1" + std::string(7, '0');
    const std::string all = traced(boxType, bits("1 0 011 0 111111" + bitmap + octet(1) + octet(9)));
    EXPECT_NE(std::string::npos, all.find("\n12 64 additions 1 ")) << all;
    EXPECT_NE(std::string::npos, all.find("\n76 8 length 1 .extElem1[53] note 2\n84 8 unknown 0 .extElem1[53]\n"))
        << all;
}

TEST(TraceOf, NoContextAndNoInput)
{
    OSBOOL flag = 0;
    unsigned fields = 0;
    const auto count = [](void* arg, const RtxField*)
    {
        ++*static_cast<unsigned*>(arg);
    };
    EXPECT_EQ(RTX_E_NULL, rtxTrace(nullptr, &flagType, &flag, 0, count, &fields));
    OSCTXT ctxt;
    ASSERT_EQ(RTX_OK, rtxInitContext(&ctxt));
    EXPECT_EQ(RTX_E_NOBUFFER, rtxTrace(&ctxt, &flagType, &flag, 0, count, &fields));
    EXPECT_EQ(0U, fields);
    rtFreeContext(&ctxt);
}

TEST_F(Trace, TheLengthsOfFragments)
{
    std::string text = "1  0 000000 1" + octet(0xC2); // 32K of the 34,000 octets
    for (unsigned i = 0; i < 16384; ++i)
    {
        text += octet(0) + octet(1);
    }
    text += octet(0x84) + octet(0xD0);
    for (unsigned i = 16384; i < 17000; ++i)
    {
        text += octet(0) + octet(1);
    }
    const std::string all = traced(traceType, bits(text));
    EXPECT_EQ(RTX_OK, status);
    EXPECT_NE(std::string::npos, all.find("\n9 8 length 194 .samples\n17 0 count 17000 .samples\n"
                                          "17 16 value 1 .samples[0]\n"));
    EXPECT_NE(std::string::npos, all.find("\n262145 16 value 1 .samples[16383]\n262161 16 length 0 .samples[16384]\n"
                                          "262177 16 value 1 .samples[16384]\n"));
}

// Any octets at all: the fields are the message, bit for bit.
TEST_F(Trace, TheFieldsAreTheMessage)
{
    OSCTXT plain;
    ASSERT_EQ(RTX_OK, rtxInitContext(&plain));
    unsigned taken = 0;
    unsigned refused = 0;
    for (const auto& entry : std::filesystem::directory_iterator("fuzz/corpus/decode"))
    {
        std::ifstream file(entry.path(), std::ios::binary);
        std::vector<char> chars{std::istreambuf_iterator<char>(file), {}};
        if (chars.empty())
        {
            continue;
        }
        auto* const octets = reinterpret_cast<OSOCTET*>(chars.data());
        struct
        {
            uint64_t next = 0;
            bool contiguous = true;
        } sum;
        CellGroupConfig value;
        ASSERT_EQ(RTX_OK, pu_setBuffer(&ctxt, octets, chars.size(), 0));
        const int traced = asn1Trace_CellGroupConfig(
            &ctxt, &value,
            [](void* arg, const RtxField* field)
            {
                auto& s = *static_cast<decltype(sum)*>(arg);
                s.contiguous = s.contiguous && field->offset == s.next;
                s.next = field->offset + field->width;
            },
            &sum);
        EXPECT_EQ(chars.size() * 8, sum.next) << entry.path();
        EXPECT_TRUE(sum.contiguous) << entry.path();

        CellGroupConfig again;
        ASSERT_EQ(RTX_OK, pu_setBuffer(&plain, octets, chars.size(), 0));
        EXPECT_EQ(traced, asn1PD_CellGroupConfig(&plain, &again)) << entry.path();
        if (traced != RTX_OK)
        {
            EXPECT_EQ(ctxt.error.bitOffset, plain.error.bitOffset) << entry.path();
        }
        EXPECT_EQ(ctxt.decoded.unknown, plain.decoded.unknown) << entry.path();
        ++(traced == 0 ? taken : refused);
        rtFreeContext(&ctxt);
        rtFreeContext(&plain);
    }
    EXPECT_GT(taken, 20U);
    EXPECT_GT(refused, 20U);
}

TEST(FieldBitName, NamesWhatTheFieldHas)
{
    RtxField field{};
    field.kind = RTX_FIELD_PRESENCE;
    field.type = &boxType;
    EXPECT_STREQ("pick", rtxFieldBitName(&field, 0));
    EXPECT_EQ(nullptr, rtxFieldBitName(&field, 1));
    field.group = 1;
    EXPECT_STREQ("a", rtxFieldBitName(&field, 0));
    EXPECT_STREQ("b", rtxFieldBitName(&field, 1));
    EXPECT_EQ(nullptr, rtxFieldBitName(&field, 2));
    field.kind = RTX_FIELD_ADDITIONS;
    EXPECT_EQ(nullptr, rtxFieldBitName(&field, 0)) << "a group";
    EXPECT_STREQ("lone", rtxFieldBitName(&field, 1));
    EXPECT_EQ(nullptr, rtxFieldBitName(&field, 3)) << "of tomorrow";
}

} // namespace
