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
            VOS_Printf("%s", text);                                                                                    \
            return VOS_ERROR;                                                                                          \
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

namespace compose
{

// Copies a record's value into a member of another width: octet for octet into a signed member, the low octet of a BOOL
// into a BOOLEAN, unchanged into an enumeration. Ranges are the encoder's to check.
template <typename Member, typename Value>
void assign(Member& member, Value value)
{
    static_assert(std::is_integral_v<Member> && (std::is_integral_v<Value> || std::is_enum_v<Value>));
    member = static_cast<Member>(value);
}

// A cleared element from the context's heap; null when the heap is exhausted.
template <typename Element>
Element* allocate(OSCTXT* pAsnCxt)
{
    void* const p = rtxMemHeapAlloc(pAsnCxt, sizeof(Element));
    if (p != nullptr)
    {
        std::memset(p, 0, sizeof(Element));
    }
    return static_cast<Element*>(p);
}

// Chooses an alternative that is held by pointer: tag, and a cleared element from the heap, which is returned. With the
// heap exhausted the choice is left without an alternative, which the encoder refuses, and null is returned.
template <typename Choice, typename Alternative>
Alternative* choose(OSCTXT* pAsnCxt, Choice* pChoice, OSUINT32 tag, Alternative*& pAlternative)
{
    pAlternative = allocate<Alternative>(pAsnCxt);
    pChoice->t = pAlternative != nullptr ? tag : 0;
    return pAlternative;
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

// Chooses the setup alternative (tag 2 of every SetupRelease) and composes it from the record. Returns the composer's
// result.
template <typename Choice, typename Record, typename Composer>
INT32 setup(OSCTXT* pAsnCxt, Choice* pChoice, Record* pRecord, Composer composer)
{
    constexpr OSUINT32 setupTag = 2;
    auto* const pSetup = choose(pAsnCxt, pChoice, setupTag, pChoice->u.setup);
    return pSetup == nullptr ? VOS_OK : call(pAsnCxt, composer, pSetup, pRecord);
}

// An array list: the count as given, and as many entries as both arrays hold. A count beyond a bound is refused by the
// encoder.
template <typename List, typename Count, typename Id, std::size_t N>
void array(List* pList, Count count, const Id (&ids)[N])
{
    static_assert(std::numeric_limits<Count>::max() <= std::numeric_limits<decltype(pList->n)>::max());
    pList->n = count;
    const std::size_t entries = std::min({std::size_t{count}, N, std::size(pList->elem)});
    for (std::size_t i = 0; i < entries; ++i)
    {
        assign(pList->elem[i], ids[i]);
    }
}

struct ListTexts
{
    const char* noNode; // the heap is exhausted
    const char* failed; // the element's composer fails; null: its result is not looked at
};

// An element list: per entry one block from the heap with the node and, behind it, the cleared element. Entries that
// the record's array does not have stay cleared; a count beyond the list's bound is refused by the encoder.
template <typename Element, typename Record, std::size_t N, typename Composer>
INT32 list(OSCTXT* pAsnCxt, OSRTDList* pList, std::size_t count, Record (&records)[N], Composer composer, ListTexts texts)
{
    struct Block
    {
        OSRTDListNode node;
        Element element;
    };
    for (std::size_t i = 0; i < count; ++i)
    {
        auto* const pBlock = allocate<Block>(pAsnCxt);
        if (pBlock == nullptr)
        {
            VOS_Printf("%s", texts.noNode);
            return VOS_ERROR;
        }
        pBlock->node.data = &pBlock->element;
        if (i < N && call(pAsnCxt, composer, &pBlock->element, &records[i]) != VOS_OK && texts.failed != nullptr)
        {
            VOS_Printf("%s", texts.failed);
            return VOS_ERROR;
        }
        rtxDListAppendNode(pList, &pBlock->node);
    }
    return VOS_OK;
}

} // namespace compose

using compose::assign;

#endif
