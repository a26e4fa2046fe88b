// Every value of a tree, for rules that hold wherever a type occurs.
#ifndef MODEL_WALK_H
#define MODEL_WALK_H

#include "rtxTree.h"
#include "rtxType.h"

namespace rules
{

struct Value
{
    const RtxType& type;
    const void* at;
    const char* name; // of the member or the alternative; null for an element of a list
    bool isOptional;
    const Value* sequence = nullptr; // whose member it is; null for others
    unsigned number = 0;             // of that member
};

inline const void* memberAt(const rtx::Member& member, const void* structure)
{
    return static_cast<const OSOCTET*>(structure) + member.offset;
}

// The number of the extension group or addition that a member belongs to, -1 for one of the root.
inline int additionOf(const RtxType& type, unsigned number)
{
    if (number < type.rootCount)
    {
        return -1;
    }
    for (unsigned i = 0; i < type.additionCount; ++i)
    {
        const rtx::Addition& addition = type.additions[i];
        if (number >= addition.first && number < unsigned{addition.first} + addition.count)
        {
            return static_cast<int>(i);
        }
    }
    return -1;
}

inline bool isSentMember(const RtxType& type, unsigned number, const void* structure)
{
    const int addition = additionOf(type, number);
    return rtx::isPresent(type.members[number], structure) &&
           (addition < 0 || rtx::isSent(type, type.additions[addition], structure));
}

// What the union of a choice holds; null where it cannot be followed.
inline const void* alternativeAt(const OSCTXT& heap, const RtxType& type, const void* choice)
{
    const auto tag = rtx::load<OSUINT32>(choice);
    if (rtx::wrongTag(type, tag).status != RTX_OK)
    {
        return nullptr;
    }
    const rtx::Member& member = type.members[tag - 1];
    if (member.step != rtx::Step::Pointer)
    {
        return memberAt(member, choice);
    }
    const auto* const p = rtx::load<const void*>(choice, member.offset);
    return rtx::refuse(&heap, p, *member.type) == RTX_OK ? p : nullptr;
}

// Calls `each(data)` for the elements of a list that can be followed, `data` an element's place.
template <typename Each>
void forElements(const OSCTXT& heap, const RtxType& type, const void* list, const Each& each)
{
    if (type.kind == rtx::Kind::Array)
    {
        const OSUINT32 number = std::min(rtx::countOf(type, list), static_cast<OSUINT32>(type.upper));
        const auto* const elements = static_cast<const OSOCTET*>(list) + type.members->offset;
        for (OSUINT32 i = 0; i < number; ++i)
        {
            each(static_cast<const void*>(elements + size_t{i} * type.element().size));
        }
        return;
    }
    const auto nodes = rtx::load<OSRTDList>(list);
    uint32_t reached = 0;
    const auto follow = [&](uint32_t, const void* data)
    {
        if (rtx::refuse(&heap, data, type.element()) == RTX_OK)
        {
            each(data);
        }
    };
    (void)rtx::forNodes(&heap, nodes, std::min(nodes.count, static_cast<uint32_t>(type.upper)), reached, follow);
}

// Kinds of types, each one bit.
constexpr OSUINT32 kindBit(rtx::Kind kind)
{
    return 1U << static_cast<unsigned>(kind);
}
template <typename... Kinds>
constexpr OSUINT32 kindBits(Kinds... kinds)
{
    return (kindBit(kinds) | ...);
}
constexpr OSUINT32 outerKinds =
    kindBits(rtx::Kind::Sequence, rtx::Kind::Choice, rtx::Kind::Array, rtx::Kind::List); // which hold others

// Calls `each(const Value&)` for the value and all that it holds which is of the kinds, outer ones first. The numbers
// of an array are not called for: their rules are those of the array.
template <typename Each>
void forValues(const OSCTXT& heap, const Value& value, OSUINT32 kinds, const Each& each)
{
    const RtxType& type = value.type;
    if ((kinds & kindBit(type.kind)) != 0)
    {
        each(value);
    }
    const auto members = [&](unsigned first, unsigned count)
    {
        for (unsigned i = first; i < first + count; ++i)
        {
            const rtx::Member& member = type.members[i];
            if (!rtx::isPresent(member, value.at))
            {
                continue;
            }
            const OSUINT32 kind = kindBit(member.type->kind);
            if (((kinds | outerKinds) & kind) == 0)
            {
                continue;
            }
            const Value inner = {*member.type, memberAt(member, value.at), type.names[i], member.flag >= 0, &value, i};
            if ((outerKinds & kind) != 0)
            {
                forValues(heap, inner, kinds, each);
            }
            else
            {
                each(inner);
            }
        }
    };
    switch (type.kind)
    {
    case rtx::Kind::Sequence:
        members(0, type.rootCount);
        for (unsigned i = 0; i < type.additionCount; ++i)
        {
            if (rtx::isSent(type, type.additions[i], value.at))
            {
                members(type.additions[i].first, type.additions[i].count);
            }
        }
        break;
    case rtx::Kind::Choice:
        if (const void* const alternative = alternativeAt(heap, type, value.at))
        {
            const auto tag = rtx::load<OSUINT32>(value.at);
            forValues(heap, {*type.members[tag - 1].type, alternative, type.names[tag - 1], false}, kinds, each);
        }
        break;
    case rtx::Kind::Array:
        if (type.element().kind == rtx::Kind::Integer || (kinds & kindBit(type.element().kind)) == 0)
        {
            break;
        }
        [[fallthrough]];
    case rtx::Kind::List:
        forElements(heap, type, value.at,
                    [&](const void* element) {
                        forValues(heap, {type.element(), element, nullptr, false}, kinds, each);
                    });
        break;
    default:
        break;
    }
}

} // namespace rules

#endif
