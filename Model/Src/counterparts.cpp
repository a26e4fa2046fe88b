#include "counterparts.h"

#include <algorithm>

namespace rules
{
namespace
{

const void* memberOf(const rtx::Member& member, const void* structure)
{
    return structure != nullptr && rtx::isPresent(member, structure)
               ? static_cast<const OSOCTET*>(structure) + member.offset
               : nullptr;
}

} // namespace

void Counterparts::build(Memory& memory, const Tree& tree, const RtxType& type, const void* after, const void* before,
                         const void* sent)
{
    memory_ = &memory;
    heap_ = &tree.heap();
    match(type, after, before, sent);
    std::sort(entries_.begin(), entries_.end(),
              [](const Entry& a, const Entry& b) { return a.after != b.after ? a.after < b.after : a.size < b.size; });
}

const Counterparts::Entry* Counterparts::find(const void* element, size_t size) const
{
    const Entry* const entry = std::lower_bound(entries_.begin(), entries_.end(), element,
                                                [size](const Entry& a, const void* wanted)
                                                { return a.after != wanted ? a.after < wanted : a.size < size; });
    return entry != entries_.end() && entry->after == element && entry->size == size ? entry : nullptr;
}

void Counterparts::match(const RtxType& type, const void* after, const void* before, const void* sent)
{
    if (before == nullptr && sent == nullptr)
    {
        return;
    }
    switch (type.kind)
    {
    case rtx::Kind::Sequence:
        entries_.add(*memory_, {after, type.size, before, sent});
        for (unsigned i = 0; i < type.memberCount; ++i)
        {
            const rtx::Member& member = type.members[i];
            if (const void* const value = memberOf(member, after))
            {
                match(*member.type, value, memberOf(member, before), memberOf(member, sent));
            }
        }
        break;
    case rtx::Kind::Choice:
    {
        const auto tag = rtx::load<OSUINT32>(after);
        if (rtx::wrongTag(type, tag).status != RTX_OK || type.members[tag - 1].step != rtx::Step::Pointer)
        {
            break;
        }
        const rtx::Member& member = type.members[tag - 1];
        const auto alternative = [&](const void* choice) -> const void*
        {
            if (choice == nullptr || rtx::load<OSUINT32>(choice) != tag)
            {
                return nullptr;
            }
            const auto* const p = rtx::load<const void*>(choice, member.offset);
            return rtx::refuse(heap_, p, *member.type) == RTX_OK ? p : nullptr;
        };
        if (const void* const value = alternative(after))
        {
            match(*member.type, value, alternative(before), alternative(sent));
        }
        break;
    }
    case rtx::Kind::List:
        matchList(type, rtx::load<OSRTDList>(after), before, sent);
        break;
    default:
        break;
    }
}

void Counterparts::matchList(const RtxType& type, const OSRTDList& after, const void* before, const void* sent)
{
    // A list without identities is replaced as a whole.
    const void* const old = type.identity < 0 && sent != nullptr ? nullptr : before;
    Matching inBefore(type, old);
    Matching inMessage(type, sent);
    uint32_t reached = 0;
    const auto each = [&](uint32_t index, const void* data)
    {
        if (rtx::refuse(heap_, data, type.element()) == RTX_OK)
        {
            match(type.element(), data, inBefore.find(data, index), inMessage.find(data, index));
        }
    };
    (void)rtx::forNodes(heap_, after, std::min(after.count, mostElements), reached, each);
}

} // namespace rules
