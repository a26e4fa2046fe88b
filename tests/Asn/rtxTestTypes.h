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
using rtx::member;
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

inline constexpr Type flagType = {.name = "Flag", .kind = Kind::Boolean, .size = 1};
inline constexpr Type nothingType = {.name = "Nothing", .kind = Kind::Null};
// INTEGER (-3..4)
inline constexpr Type levelType = {
    .name = "Level", .kind = Kind::Integer, .width = 1, .size = 1, .lower = -3, .upper = 4};
// INTEGER (1..5)
inline constexpr Type oddType = {.name = "Odd", .kind = Kind::Integer, .width = 1, .size = 1, .lower = 1, .upper = 5};
// INTEGER (0..65535), (-400..400), the whole of 32 bits
inline constexpr Type wideType = {
    .name = "Wide", .kind = Kind::Integer, .width = 2, .align = 2, .size = 2, .lower = 0, .upper = 65535};
inline constexpr Type biasType = {
    .name = "Bias", .kind = Kind::Integer, .width = 2, .align = 2, .size = 2, .lower = -400, .upper = 400};
inline constexpr Type wholeType = {
    .name = "Whole", .kind = Kind::Integer, .width = 4, .align = 4, .size = 4, .lower = INT32_MIN, .upper = INT32_MAX};

inline const char* const colours[] = {"red", "green", "blue"};
inline constexpr Type colourType = {
    .name = "Colour", .kind = Kind::Enumerated, .align = 4, .size = 4, .upper = 2, .names = colours};
inline const char* const onlyNames[] = {"true"};
inline constexpr Type onlyType = {
    .name = "Only", .kind = Kind::Enumerated, .align = 4, .size = 4, .upper = 0, .names = onlyNames};

// BIT STRING (SIZE (5)), (SIZE (43))
inline constexpr Type mapType = {.name = "Map",
                                 .kind = Kind::BitStr32,
                                 .align = alignof(ASN1BitStr32),
                                 .size = sizeof(ASN1BitStr32),
                                 .lower = 5,
                                 .upper = 5};
inline constexpr Type longMapType = {.name = "LongMap", .kind = Kind::BitOctets, .size = 6, .lower = 43, .upper = 43};

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
inline const char* const itemNames[] = {"id", "shade"};
inline constexpr Member itemMembers[] = {
    member(oddType, offsetof(Item, id)),
    member(colourType, offsetof(Item, shade), 0),
};
inline constexpr Type itemType = {.name = "Item",
                                  .kind = Kind::Sequence,
                                  .align = alignof(Item),
                                  .size = sizeof(Item),
                                  .names = itemNames,
                                  .members = itemMembers,
                                  .memberCount = 2,
                                  .rootCount = 2,
                                  .bits = 1};

// Items ::= SEQUENCE (SIZE (1..3)) OF Item
inline constexpr Member itemsElement = member(itemType, 0);
inline constexpr Type itemsType = {.name = "Items",
                                   .kind = Kind::List,
                                   .align = alignof(OSRTDList),
                                   .size = sizeof(OSRTDList),
                                   .lower = 1,
                                   .upper = 3,
                                   .members = &itemsElement,
                                   .memberCount = 1,
                                   .rootCount = 1,
                                   .bits = 2};

// Numbers ::= SEQUENCE (SIZE (1..5)) OF Odd
struct Numbers
{
    OSUINT8 n;
    OSUINT8 elem[5];
};
inline constexpr Member numbersElement = member(oddType, offsetof(Numbers, elem));
inline constexpr Type numbersType = {.name = "Numbers",
                                     .kind = Kind::Array,
                                     .width = 1,
                                     .align = alignof(Numbers),
                                     .size = sizeof(Numbers),
                                     .lower = 1,
                                     .upper = 5,
                                     .members = &numbersElement,
                                     .memberCount = 1,
                                     .rootCount = 1,
                                     .bits = 3};

// Pair ::= SEQUENCE (SIZE (2)) OF Level
struct Pair
{
    OSINT8 elem[2];
};
inline constexpr Member pairElement = member(levelType, 0);
inline constexpr Type pairType = {.name = "Pair",
                                  .kind = Kind::Array,
                                  .align = alignof(Pair),
                                  .size = sizeof(Pair),
                                  .lower = 2,
                                  .upper = 2,
                                  .members = &pairElement,
                                  .memberCount = 1,
                                  .rootCount = 1};

// Many ::= SEQUENCE (SIZE (0..300)) OF Flag
struct Many
{
    OSUINT16 n;
    OSBOOL elem[300];
};
inline constexpr Member manyElement = member(flagType, offsetof(Many, elem));
inline constexpr Type manyType = {.name = "Many",
                                  .kind = Kind::Array,
                                  .width = 2,
                                  .align = alignof(Many),
                                  .size = sizeof(Many),
                                  .lower = 0,
                                  .upper = 300,
                                  .members = &manyElement,
                                  .memberCount = 1,
                                  .rootCount = 1,
                                  .bits = 9};

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
inline const char* const threeNames[] = {"none", "level", "wide"};
inline constexpr Member threeMembers[] = {
    member(nothingType, offsetof(Three, u)),
    member(levelType, offsetof(Three, u)),
    member(wideType, offsetof(Three, u)),
};
inline constexpr Type threeType = {.name = "Three",
                                   .kind = Kind::Choice,
                                   .align = alignof(Three),
                                   .size = sizeof(Three),
                                   .names = threeNames,
                                   .members = threeMembers,
                                   .memberCount = 3,
                                   .rootCount = 3,
                                   .bits = 2};

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
inline const char* const pickNames[] = {"none", "level", "item", "map", "late"};
inline constexpr Member pickMembers[] = {
    member(nothingType, offsetof(Pick, u)),        member(levelType, offsetof(Pick, u)),
    member(itemType, offsetof(Pick, u), -1, true), member(mapType, offsetof(Pick, u), -1, true),
    member(itemType, offsetof(Pick, u), -1, true),
};
inline constexpr Type pickType = {.name = "Pick",
                                  .kind = Kind::Choice,
                                  .extensible = true,
                                  .align = alignof(Pick),
                                  .size = sizeof(Pick),
                                  .names = pickNames,
                                  .members = pickMembers,
                                  .memberCount = 5,
                                  .rootCount = 4,
                                  .bits = 2,
                                  .extElem = offsetof(Pick, u)};

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
inline const char* const boxNames[] = {"level", "pick", "a", "b", "lone", "must"};
inline constexpr Member boxMembers[] = {
    member(levelType, offsetof(Box, level)),  member(pickType, offsetof(Box, pick), 0),
    member(flagType, offsetof(Box, a), 2),    member(oddType, offsetof(Box, b), 3),
    member(wideType, offsetof(Box, lone), 4), member(oddType, offsetof(Box, must)),
};
inline constexpr Addition boxAdditions[] = {{1, 2, 2}, {-1, 4, 1}, {5, 5, 1}};
inline constexpr Type boxType = {.name = "Box",
                                 .kind = Kind::Sequence,
                                 .extensible = true,
                                 .align = alignof(Box),
                                 .size = sizeof(Box),
                                 .names = boxNames,
                                 .members = boxMembers,
                                 .memberCount = 6,
                                 .rootCount = 2,
                                 .additions = boxAdditions,
                                 .additionCount = 3,
                                 .bits = 1,
                                 .extElem = offsetof(Box, extElem1)};

// Samples ::= SEQUENCE (SIZE (17000)) OF INTEGER (0..40000): 34000 octets
inline constexpr Type sampleType = {
    .name = "Sample", .kind = Kind::Integer, .width = 2, .align = 2, .size = 2, .lower = 0, .upper = 40000};
struct Samples
{
    OSUINT16 elem[17000];
};
inline constexpr Member samplesElement = member(sampleType, 0);
inline constexpr Type samplesType = {.name = "Samples",
                                     .kind = Kind::Array,
                                     .align = alignof(Samples),
                                     .size = sizeof(Samples),
                                     .lower = 17000,
                                     .upper = 17000,
                                     .members = &samplesElement,
                                     .memberCount = 1,
                                     .rootCount = 1};

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
inline const char* const traceNames[] = {"samples"};
inline constexpr Member traceMembers[] = {
    member(samplesType, offsetof(Trace, samples), 0),
};
inline constexpr Addition traceAdditions[] = {{-1, 0, 1}};
inline constexpr Type traceType = {.name = "Trace",
                                   .kind = Kind::Sequence,
                                   .extensible = true,
                                   .align = alignof(Trace),
                                   .size = sizeof(Trace),
                                   .names = traceNames,
                                   .members = traceMembers,
                                   .memberCount = 1,
                                   .rootCount = 0,
                                   .additions = traceAdditions,
                                   .additionCount = 1,
                                   .extElem = offsetof(Trace, extElem1)};

inline const char* const nestNames[] = {"in"};

// `depth` sequences, one inside the other, around a Flag; each is the next one's only member "in".
class Nested
{
public:
    explicit Nested(unsigned depth, const Type& inner = flagType) : members_(depth), types_(depth)
    {
        for (unsigned i = 0; i < depth; ++i)
        {
            types_[i] = {.name = "Nest",
                         .kind = Kind::Sequence,
                         .size = 1,
                         .names = nestNames,
                         .members = &members_[i],
                         .memberCount = 1,
                         .rootCount = 1};
        }
        for (unsigned i = 0; i < depth; ++i)
        {
            members_[i] = member(i + 1 < depth ? types_[i + 1] : inner, 0);
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
