// Small types, one for each thing that a descriptor can say, and octets written as bits.
#ifndef RTXTESTTYPES_H
#define RTXTESTTYPES_H

#include "rtxType.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace test
{

using rtx::Addition;
using rtx::Kind;
using rtx::Member;
using rtx::Type;

// The octets of '0' and '1', padded with zero bits; other characters only separate.
inline std::vector<OSOCTET> bits(const std::string& text)
{
    std::vector<OSOCTET> octets;
    size_t count = 0;
    for (const char c : text)
    {
        if (c != '0' && c != '1')
        {
            continue;
        }
        if (count % 8 == 0)
        {
            octets.push_back(0);
        }
        if (c == '1')
        {
            octets.back() = static_cast<OSOCTET>(octets.back() | 0x80U >> count % 8);
        }
        ++count;
    }
    return octets;
}

// An octet as eight bits.
inline std::string octet(unsigned value)
{
    std::string text;
    for (unsigned i = 8; i-- != 0;)
    {
        text += (value >> i & 1) != 0 ? '1' : '0';
    }
    return text;
}

inline const Type flagType = {.name = "Flag", .kind = Kind::Boolean, .size = 1};
inline const Type nothingType = {.name = "Nothing", .kind = Kind::Null};
// INTEGER (-3..4)
inline const Type levelType = {.name = "Level", .kind = Kind::Integer, .width = 1, .size = 1, .lower = -3, .upper = 4};
// INTEGER (1..5)
inline const Type oddType = {.name = "Odd", .kind = Kind::Integer, .width = 1, .size = 1, .lower = 1, .upper = 5};
// INTEGER (0..65535), (-400..400), the whole of 32 bits
inline const Type wideType = {.name = "Wide", .kind = Kind::Integer, .width = 2, .size = 2, .lower = 0, .upper = 65535};
inline const Type biasType = {
    .name = "Bias", .kind = Kind::Integer, .width = 2, .size = 2, .lower = -400, .upper = 400};
inline const Type wholeType = {
    .name = "Whole", .kind = Kind::Integer, .width = 4, .size = 4, .lower = INT32_MIN, .upper = INT32_MAX};

inline const char* const colours[] = {"red", "green", "blue"};
inline const Type colourType = {.name = "Colour", .kind = Kind::Enumerated, .size = 4, .upper = 2, .names = colours};
inline const char* const onlyNames[] = {"true"};
inline const Type onlyType = {.name = "Only", .kind = Kind::Enumerated, .size = 4, .upper = 0, .names = onlyNames};

// BIT STRING (SIZE (5)), (SIZE (43))
inline const Type mapType = {
    .name = "Map", .kind = Kind::BitStr32, .size = sizeof(ASN1BitStr32), .lower = 5, .upper = 5};
inline const Type longMapType = {.name = "LongMap", .kind = Kind::BitOctets, .size = 6, .lower = 43, .upper = 43};

// Item ::= SEQUENCE { id Odd, shade Colour OPTIONAL }
struct Item
{
    struct
    {
        unsigned shadePresent : 1;
    } m;
    OSUINT8 id;
    OSUINT32 shade;
};
inline const Member itemMembers[] = {
    {"id", &oddType, offsetof(Item, id), -1, false},
    {"shade", &colourType, offsetof(Item, shade), 0, false},
};
inline const Type itemType = {.name = "Item",
                              .kind = Kind::Sequence,
                              .size = sizeof(Item),
                              .members = itemMembers,
                              .memberCount = 2,
                              .rootCount = 2};

// Items ::= SEQUENCE (SIZE (1..3)) OF Item
inline const Type itemsType = {
    .name = "Items", .kind = Kind::List, .size = sizeof(OSRTDList), .lower = 1, .upper = 3, .element = &itemType};

// Numbers ::= SEQUENCE (SIZE (1..5)) OF Odd
struct Numbers
{
    OSUINT8 n;
    OSUINT8 elem[5];
};
inline const Type numbersType = {.name = "Numbers",
                                 .kind = Kind::Array,
                                 .width = 1,
                                 .size = sizeof(Numbers),
                                 .lower = 1,
                                 .upper = 5,
                                 .elements = offsetof(Numbers, elem),
                                 .element = &oddType};

// Pair ::= SEQUENCE (SIZE (2)) OF Level
struct Pair
{
    OSINT8 elem[2];
};
inline const Type pairType = {.name = "Pair",
                              .kind = Kind::Array,
                              .size = sizeof(Pair),
                              .lower = 2,
                              .upper = 2,
                              .elements = 0,
                              .element = &levelType};

// Many ::= SEQUENCE (SIZE (0..300)) OF Flag
struct Many
{
    OSUINT16 n;
    OSBOOL elem[300];
};
inline const Type manyType = {.name = "Many",
                              .kind = Kind::Array,
                              .width = 2,
                              .size = sizeof(Many),
                              .lower = 0,
                              .upper = 300,
                              .elements = offsetof(Many, elem),
                              .element = &flagType};

// Three ::= CHOICE { none NULL, level Level, wide Wide }
struct Three
{
    OSUINT32 t;
    union
    {
        OSINT8 level;
        OSUINT16 wide;
    } u;
};
inline const Member threeMembers[] = {
    {"none", &nothingType, 0, -1, false},
    {"level", &levelType, 0, -1, false},
    {"wide", &wideType, 0, -1, false},
};
inline const Type threeType = {.name = "Three",
                               .kind = Kind::Choice,
                               .size = sizeof(Three),
                               .elements = offsetof(Three, u),
                               .members = threeMembers,
                               .memberCount = 3,
                               .rootCount = 3};

// Pick ::= CHOICE { none NULL, level Level, item Item, map Map, ..., late Item }
struct Pick
{
    OSUINT32 t;
    union
    {
        OSINT8 level;
        Item* item;
        ASN1BitStr32* map;
        Item* late;
        ASN1OpenType* extElem1;
    } u;
};
inline const Member pickMembers[] = {
    {"none", &nothingType, 0, -1, false}, {"level", &levelType, 0, -1, false}, {"item", &itemType, 0, -1, true},
    {"map", &mapType, 0, -1, true},       {"late", &itemType, 0, -1, true},
};
inline const Type pickType = {.name = "Pick",
                              .kind = Kind::Choice,
                              .extensible = true,
                              .size = sizeof(Pick),
                              .elements = offsetof(Pick, u),
                              .members = pickMembers,
                              .memberCount = 5,
                              .rootCount = 4};

// Box ::= SEQUENCE { level Level, pick Pick OPTIONAL, ..., [[ a Flag OPTIONAL, b Odd OPTIONAL ]],
//                    lone Wide OPTIONAL, [[ must Odd ]] }
struct Box
{
    struct
    {
        unsigned pickPresent : 1;
        unsigned _v2ExtPresent : 1;
        unsigned aPresent : 1;
        unsigned bPresent : 1;
        unsigned lonePresent : 1;
        unsigned _v4ExtPresent : 1;
    } m;
    OSINT8 level;
    Pick pick;
    OSBOOL a;
    OSUINT8 b;
    OSUINT16 lone;
    OSUINT8 must;
    OSRTDList extElem1;
};
inline const Member boxMembers[] = {
    {"level", &levelType, offsetof(Box, level), -1, false}, {"pick", &pickType, offsetof(Box, pick), 0, false},
    {"a", &flagType, offsetof(Box, a), 2, false},           {"b", &oddType, offsetof(Box, b), 3, false},
    {"lone", &wideType, offsetof(Box, lone), 4, false},     {"must", &oddType, offsetof(Box, must), -1, false},
};
inline const Addition boxAdditions[] = {{1, 2, 2}, {-1, 4, 1}, {5, 5, 1}};
inline const Type boxType = {.name = "Box",
                             .kind = Kind::Sequence,
                             .extensible = true,
                             .size = sizeof(Box),
                             .members = boxMembers,
                             .memberCount = 6,
                             .rootCount = 2,
                             .additions = boxAdditions,
                             .additionCount = 3,
                             .extElem = offsetof(Box, extElem1)};

// Samples ::= SEQUENCE (SIZE (17000)) OF INTEGER (0..40000): 34000 octets
inline const Type sampleType = {
    .name = "Sample", .kind = Kind::Integer, .width = 2, .size = 2, .lower = 0, .upper = 40000};
struct Samples
{
    OSUINT16 elem[17000];
};
inline const Type samplesType = {.name = "Samples",
                                 .kind = Kind::Array,
                                 .size = sizeof(Samples),
                                 .lower = 17000,
                                 .upper = 17000,
                                 .elements = 0,
                                 .element = &sampleType};

// Trace ::= SEQUENCE { ..., samples Samples OPTIONAL }
struct Trace
{
    struct
    {
        unsigned samplesPresent : 1;
    } m;
    Samples samples;
    OSRTDList extElem1;
};
inline const Member traceMembers[] = {{"samples", &samplesType, offsetof(Trace, samples), 0, false}};
inline const Addition traceAdditions[] = {{-1, 0, 1}};
inline const Type traceType = {.name = "Trace",
                               .kind = Kind::Sequence,
                               .extensible = true,
                               .size = sizeof(Trace),
                               .members = traceMembers,
                               .memberCount = 1,
                               .rootCount = 0,
                               .additions = traceAdditions,
                               .additionCount = 1,
                               .extElem = offsetof(Trace, extElem1)};

// `depth` sequences, one inside the other, around a Flag; each is the next one's only member "in".
class Nested
{
public:
    explicit Nested(unsigned depth) : members_(depth), types_(depth)
    {
        for (unsigned i = 0; i < depth; ++i)
        {
            members_[i] = {"in", i + 1 < depth ? &types_[i + 1] : &flagType, 0, -1, false};
            types_[i] = {.name = "Nest",
                         .kind = Kind::Sequence,
                         .size = 1,
                         .members = &members_[i],
                         .memberCount = 1,
                         .rootCount = 1};
        }
    }

    const Type& type() const
    {
        return types_.front();
    }

private:
    std::vector<Member> members_;
    std::vector<Type> types_;
};

} // namespace test

#endif
