// What every composer is made of: the null guard, presence and copy, array lists, element lists, choices and the setup
// alternative. Composers take the element to fill, cleared by its owner, and the record to read.
#ifndef COMPOSE_H
#define COMPOSE_H

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <limits>
#include <type_traits>

#include "NR-RRC-Definitions.h"
#include "byteOrder.h"
#include "failureLines.h"
#include "rtxHeap.h"
#include "vos_err_print.h"
#include "vos_lib.h"

// Returns VOS_ERROR with the pointer's own name when it is null.
#define NULL_CHECK(p)                                                                                                  \
    do                                                                                                                 \
    {                                                                                                                  \
        if ((p) == nullptr)                                                                                            \
        {                                                                                                              \
            vos_err_print(#p " is null\r\n");                                                                          \
            return VOS_ERROR;                                                                                          \
        }                                                                                                              \
    } while (0)

// Returns VOS_ERROR after printing `text` when the composer called fails.
#define RETURN_IF_FAILED(call, text)                                                                                   \
    do                                                                                                                 \
    {                                                                                                                  \
        if ((call) != VOS_OK)                                                                                          \
        {                                                                                                              \
            return compose::fail(text);                                                                                \
        }                                                                                                              \
    } while (0)

// Where `condition` holds: sets the presence bit of the element's member and copies the value.
#define COPY_IF(condition, pElement, member, value)                                                                    \
    do                                                                                                                 \
    {                                                                                                                  \
        if (condition)                                                                                                 \
        {                                                                                                              \
            (pElement)->m.member##Present = 1;                                                                         \
            assign((pElement)->member, value);                                                                         \
        }                                                                                                              \
    } while (0)

// Where `condition` holds: chooses an alternative that is held inline, and copies the value.
#define CHOOSE_IF(condition, pChoice, type, alternative, value)                                                        \
    do                                                                                                                 \
    {                                                                                                                  \
        if (condition)                                                                                                 \
        {                                                                                                              \
            (pChoice)->t = T_##type##_##alternative;                                                                   \
            assign((pChoice)->u.alternative, value);                                                                   \
        }                                                                                                              \
    } while (0)

// Where the count is not 0: sets the presence bit of the element's list of fixed size and copies its entries.
#define ENTRIES_IF(count, pElement, member, ids)                                                                       \
    do                                                                                                                 \
    {                                                                                                                  \
        if ((count) != 0)                                                                                              \
        {                                                                                                              \
            (pElement)->m.member##Present = 1;                                                                         \
            compose::entries((pElement)->member.elem, count, ids);                                                     \
        }                                                                                                              \
    } while (0)

namespace compose
{

// Prints a line about a failure. Cold, so that no code of a failure lies between that of the values.
[[gnu::cold]] inline INT32 fail(const char* text)
{
    VOS_Printf("%s", text);
    FailureLines::add(nullptr, text);
    return VOS_ERROR;
}

// Copies a record's value into a member of another width: octet for octet into a signed member, the low octet of a BOOL
// into a BOOLEAN, unchanged into an enumeration. Ranges are the encoder's to check.
template <typename Member, typename Value>
void assign(Member& member, Value value)
{
    static_assert(std::is_integral_v<Member> && (std::is_integral_v<Value> || std::is_enum_v<Value>));
    member = static_cast<Member>(+value);
}

// A cleared element from the context's heap; null when the heap is exhausted.
template <typename Element>
Element* allocate(OSCTXT* pAsnCxt)
{
    return static_cast<Element*>(rtx::allocate(*pAsnCxt, sizeof(Element)));
}

// Chooses an alternative that is held by pointer, with the element given. Without one the choice is left without an
// alternative, which the encoder refuses.
template <typename Choice, typename Alternative>
void attach(Choice* pChoice, OSUINT32 tag, Alternative*& pAlternative, Alternative* pElement)
{
    pAlternative = pElement;
    pChoice->t = pElement != nullptr ? tag : 0;
}

// Chooses an alternative that is held by pointer, with a cleared element from the heap, which is returned; null when
// the heap is exhausted.
template <typename Choice, typename Alternative>
Alternative* choose(OSCTXT* pAsnCxt, Choice* pChoice, OSUINT32 tag, Alternative*& pAlternative)
{
    attach(pChoice, tag, pAlternative, allocate<Alternative>(pAsnCxt));
    return pAlternative;
}

// Chooses a bit string of at most 32 bits, which is held by pointer, and packs it.
template <typename Choice, typename Value>
void chooseBits(OSCTXT* pAsnCxt, Choice* pChoice, OSUINT32 tag, ASN1BitStr32*& pAlternative,
                INT32 (*packer)(ASN1BitStr32*, Value), std::type_identity_t<Value> value)
{
    if (choose(pAsnCxt, pChoice, tag, pAlternative) != nullptr)
    {
        (void)packer(pAlternative, value);
    }
}

// Copies the 40 octets of a record's resource blocks, in memory order, over the element's 35. Of the five surplus ones
// the first falls on padding, the others, as a number with its low octet first, on the tag of the choice behind; a
// slot's presence bit overwrites that again.
inline void copyResourceBlocks(RateMatchPattern_patternType_bitmaps* pBitmaps, const UINT64 (&resourceBlocks)[5])
{
    using Bitmaps = RateMatchPattern_patternType_bitmaps;
    constexpr std::size_t tagOffset = offsetof(Bitmaps, symbolsInResourceBlock) - offsetof(Bitmaps, resourceBlocks);
    static_assert(tagOffset + sizeof pBitmaps->symbolsInResourceBlock.t == sizeof resourceBlocks);

    OSOCTET octets[sizeof resourceBlocks];
    std::memcpy(octets, resourceBlocks, sizeof octets);
    std::memcpy(pBitmaps->resourceBlocks, octets, sizeof pBitmaps->resourceBlocks);
    OSUINT32 tag;
    std::memcpy(&tag, octets + tagOffset, sizeof tag);
    pBitmaps->symbolsInResourceBlock.t = rtx::lowFirst(tag);
}

// Calls a composer that takes the context, or one that does not.
template <typename Element, typename Record, typename Composer>
INT32 call(OSCTXT* pAsnCxt, Composer composer, Element* pElement, Record* pRecord)
{
    if constexpr (std::is_invocable_v<Composer, OSCTXT*, Element*, Record*>)
    {
        return composer(pAsnCxt, pElement, pRecord);
    }
    else
    {
        return composer(pElement, pRecord);
    }
}

// Chooses an alternative that is held by pointer and composes it from the record. Returns the composer's result.
template <typename Choice, typename Alternative, typename Record, typename Composer>
INT32 alternative(OSCTXT* pAsnCxt, Choice* pChoice, OSUINT32 tag, Alternative*& pAlternative, Record* pRecord,
                  Composer composer)
{
    Alternative* const pChosen = choose(pAsnCxt, pChoice, tag, pAlternative);
    return pChosen == nullptr ? VOS_OK : call(pAsnCxt, composer, pChosen, pRecord);
}

// The setup alternative of every SetupRelease.
constexpr OSUINT32 setupTag = 2;

// Chooses the setup alternative and composes it from the record. Returns the composer's result.
template <typename Choice, typename Record, typename Composer>
INT32 setup(OSCTXT* pAsnCxt, Choice* pChoice, Record* pRecord, Composer composer)
{
    return alternative(pAsnCxt, pChoice, setupTag, pChoice->u.setup, pRecord, composer);
}

// Chooses the setup alternative where it is a number.
template <typename Choice, typename Value>
void setupValue(Choice* pChoice, Value value)
{
    pChoice->t = setupTag;
    assign(pChoice->u.setup, value);
}

// The entries of a list of fixed size: as many as are counted and both arrays hold.
template <typename Member, std::size_t M, typename Id, std::size_t N>
void entries(Member (&elem)[M], std::size_t count, const Id (&ids)[N])
{
    const std::size_t used = std::min({count, M, N});
    for (std::size_t i = 0; i < used; ++i)
    {
        assign(elem[i], ids[i]);
    }
}

// An array list: the count as given, and as many entries as both arrays hold. A count beyond a bound is refused by the
// encoder.
template <typename List, typename Count, typename Id, std::size_t N>
void array(List* pList, Count count, const Id (&ids)[N])
{
    static_assert(std::numeric_limits<Count>::max() <= std::numeric_limits<decltype(pList->n)>::max());
    pList->n = count;
    entries(pList->elem, count, ids);
}

struct ListTexts
{
    const char* noNode; // the heap is exhausted
    const char* failed; // the element's composer fails; null: its result is not looked at
};

// An element list: per entry one block from the heap with the node and, behind it, the cleared element. The count goes
// on as given: one beyond the record's array, for which there are no nodes, is refused by the encoder.
template <typename Element, typename Record, std::size_t N, typename Composer>
INT32 list(OSCTXT* pAsnCxt, OSRTDList* pList, std::size_t count, Record (&records)[N], Composer composer,
           ListTexts texts)
{
    struct Block
    {
        OSRTDListNode node;
        Element element;
    };
    const std::size_t used = std::min(count, N);
    for (std::size_t i = 0; i < used; ++i)
    {
        auto* const pBlock = allocate<Block>(pAsnCxt);
        if (pBlock == nullptr)
        {
            return fail(texts.noNode);
        }
        pBlock->node.data = &pBlock->element;
        if (call(pAsnCxt, composer, &pBlock->element, &records[i]) != VOS_OK && texts.failed != nullptr)
        {
            return fail(texts.failed);
        }
        rtxDListAppendNode(pList, &pBlock->node);
    }
    pList->count = static_cast<OSUINT32>(count);
    return VOS_OK;
}

} // namespace compose

using compose::assign;

#endif
