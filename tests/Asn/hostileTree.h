// Cell groups that cost whoever decodes them the most.
#ifndef HOSTILETREE_H
#define HOSTILETREE_H

#include "NR-RRC-Definitions.h"
#include "NR-RRC-Tables.h"
#include "rtxHeap.h"
#include "rtxTree.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <map>
#include <utility>
#include <vector>

namespace test
{

using Octets = std::vector<OSOCTET>;

// A cleared T, or so many octets, in a context's heap.
inline void* allocate(OSCTXT& ctxt, size_t size)
{
    void* const p = rtxMemHeapAlloc(&ctxt, size);
    if (p == nullptr)
    {
        std::abort(); // there is no limit
    }
    return p;
}
template <typename T>
T* make(OSCTXT& ctxt)
{
    return static_cast<T*>(allocate(ctxt, sizeof(T)));
}

inline void append(OSCTXT& ctxt, OSRTDList& list, void* data)
{
    auto* const node = make<OSRTDListNode>(ctxt);
    node->data = data;
    rtxDListAppendNode(&list, node);
}

inline Octets encoded(OSCTXT& ctxt, const CellGroupConfig& tree, size_t most)
{
    Octets octets(most);
    pu_setBuffer(&ctxt, octets.data(), octets.size(), 0);
    if (asn1PE_CellGroupConfig(&ctxt, &tree) != RTX_OK)
    {
        std::abort();
    }
    octets.resize(pu_getMsgLen(&ctxt));
    return octets;
}

// The octets that a context's heap has handed out.
inline size_t handedOut(const OSCTXT& ctxt)
{
    size_t octets = 0;
    for (const RtxHeapBlock* block = ctxt.heap.blocks; block != nullptr; block = block->link)
    {
        octets += rtx::owned(ctxt, block).size;
    }
    return octets;
}

// 32 bearers that hold unknown additions, each in three sequences: the parts that a message can have the most of.
class UnknownAdditions
{
public:
    static constexpr size_t places = 3 * 32; // sequences that hold them

    // About `total` octets of additions in the message, each with `size` octets.
    UnknownAdditions(OSCTXT& ctxt, size_t total, OSUINT32 size) : ctxt_(ctxt)
    {
        const size_t most = 16383; // bits of a bitmap, X.691 11.9.3.7
        const size_t each = std::min(total / size / places, most - 1);
        tree.m.rlc_BearerToAddModListPresent = 1;
        for (OSUINT8 i = 0; i < 32; ++i)
        {
            auto* const bearer = make<RLC_BearerConfig>(ctxt);
            bearer->logicalChannelIdentity = static_cast<OSUINT8>(i + 1);
            bearer->m.mac_LogicalChannelConfigPresent = 1;
            LogicalChannelConfig& channel = bearer->mac_LogicalChannelConfig;
            channel.m.ul_SpecificParametersPresent = 1;
            channel.ul_SpecificParameters.priority = 1;
            append(ctxt, tree.rlc_BearerToAddModList, bearer);
            add(bearer->extElem1, each, size);
            add(channel.extElem1, each, size);
            add(channel.ul_SpecificParameters.extElem1, each, size);
        }
    }

    CellGroupConfig tree{};
    size_t content = 0; // octets of unknown content

private:
    void add(OSRTDList& list, size_t number, OSUINT32 size)
    {
        for (OSUINT32 i = 0; i < number; ++i)
        {
            auto* const open = make<ASN1OpenType>(ctxt_);
            open->index = i;
            open->numocts = size;
            open->data = static_cast<OSOCTET*>(allocate(ctxt_, size));
            std::memset(open->data, 0xA5, size);
            append(ctxt_, list, open);
        }
        content += number * size;
    }

    OSCTXT& ctxt_;
};

// Such a message, and how many octets of it are unknown content.
inline std::pair<Octets, size_t> unknownAdditions(size_t total, OSUINT32 size)
{
    OSCTXT ctxt;
    rtxInitContext(&ctxt);
    const UnknownAdditions made(ctxt, total, size);
    Octets octets = encoded(ctxt, made.tree, 4 * total + 8192);
    rtFreeContext(&ctxt);
    return {std::move(octets), made.content};
}

// What an element takes: bits on the wire, and octets of the decoder's heap besides its own storage.
struct Cost
{
    double bits = 0;
    double heap = 0;

    Cost& operator+=(const Cost& other)
    {
        bits += other.bits;
        heap += other.heap;
        return *this;
    }
};

// The element of known members for which heap - price * bits is the greatest: at each optional member, alternative and
// count what is dearest. As the price falls, the messages grow, and for its length each is the dearest.
class DearestTree
{
public:
    DearestTree(OSCTXT& ctxt, double price) : ctxt_(ctxt), price_(price) {}

    const Cost& cost(const rtx::Type& type)
    {
        const auto [found, isNew] = costs_.try_emplace(&type);
        if (isNew)
        {
            const Cost cost = compute(type);
            return costs_[&type] = cost;
        }
        return found->second;
    }

    // Gives a cleared element its value.
    void fill(const rtx::Type& type, void* value)
    {
        switch (type.kind)
        {
        case rtx::Kind::Boolean:
        case rtx::Kind::Null:
        case rtx::Kind::Enumerated:
        case rtx::Kind::BitOctets:
            break;
        case rtx::Kind::Integer:
            storeNumber(value, type.width, type.lower);
            break;
        case rtx::Kind::BitStr32:
            store(value, static_cast<OSUINT32>(type.upper));
            break;
        case rtx::Kind::Sequence:
            for (unsigned i = 0; i < type.memberCount; ++i)
            {
                fillMember(type, i, value);
            }
            break;
        case rtx::Kind::Choice:
            fillAlternative(type, value);
            break;
        case rtx::Kind::Array:
            storeNumber(value, type.width, number(type));
            for (int i = 0; i < number(type); ++i)
            {
                fill(type.element(), at(value, type.members->offset + static_cast<size_t>(i) * type.element().size));
            }
            break;
        case rtx::Kind::List:
            for (int i = 0; i < number(type); ++i)
            {
                void* const element = allocate(ctxt_, type.element().size);
                fill(type.element(), element);
                append(ctxt_, *static_cast<OSRTDList*>(value), element);
            }
            break;
        }
    }

private:
    static OSOCTET* at(void* value, size_t offset)
    {
        return static_cast<OSOCTET*>(value) + offset;
    }

    template <typename T>
    static void store(void* to, T value)
    {
        std::memcpy(to, &value, sizeof value);
    }

    static void storeNumber(void* to, unsigned width, int value)
    {
        width == 1   ? store(to, static_cast<OSUINT8>(value))
        : width == 2 ? store(to, static_cast<OSUINT16>(value))
        : width == 4 ? store(to, static_cast<OSUINT32>(value))
                     : void();
    }

    double worth(const Cost& cost) const
    {
        return cost.heap - price_ * cost.bits;
    }

    Cost compute(const rtx::Type& type)
    {
        const double head = (type.extensible ? 1 : 0) + type.bits;
        switch (type.kind)
        {
        case rtx::Kind::BitStr32:
        case rtx::Kind::BitOctets:
            return {static_cast<double>(type.upper), 0};
        case rtx::Kind::Sequence:
            return sequence(type, {head, 0});
        case rtx::Kind::Choice:
        {
            Cost best = alternative(type, bestAlternative(type));
            return best += {head, 0};
        }
        case rtx::Kind::Array:
        case rtx::Kind::List:
        {
            const Cost each = element(type);
            const double count = number(type);
            return {head + count * each.bits, count * each.heap};
        }
        default:
            return {static_cast<double>(rtx::member(type, 0).bits), 0};
        }
    }

    Cost sequence(const rtx::Type& type, Cost sum)
    {
        for (unsigned i = 0; i < type.rootCount; ++i)
        {
            if (isSent(type, i))
            {
                sum += cost(*type.members[i].type);
            }
        }
        Cost added;
        for (unsigned i = 0; i < type.additionCount; ++i)
        {
            const rtx::Addition& addition = type.additions[i];
            Cost content;
            bool some = false;
            for (unsigned k = 0; k < addition.count; ++k)
            {
                const unsigned member = addition.first + k;
                content.bits += addition.flag >= 0 && type.members[member].flag >= 0 ? 1 : 0;
                if (isSent(type, member))
                {
                    content += cost(*type.members[member].type);
                    some = true;
                }
            }
            added += some ? open(content) : Cost();
        }
        return added.bits != 0 ? sum += {added.bits + 7 + type.additionCount, added.heap} : sum;
    }

    // Of a member of the root or of an extension.
    bool isSent(const rtx::Type& type, unsigned index)
    {
        const rtx::Member& member = type.members[index];
        return (index < type.rootCount && member.flag < 0) ||
               worth(index < type.rootCount ? cost(*member.type) : open(cost(*member.type))) > 0;
    }

    // As the content of an open type.
    static Cost open(const Cost& content)
    {
        const double octets = static_cast<double>((static_cast<size_t>(content.bits) + 7) / 8);
        return {8 * (octets + (octets < 128 ? 1 : 2)), content.heap};
    }

    unsigned bestAlternative(const rtx::Type& type)
    {
        unsigned best = 0;
        for (unsigned i = 1; i < type.rootCount; ++i)
        {
            best = worth(alternative(type, i)) > worth(alternative(type, best)) ? i : best;
        }
        return best;
    }

    Cost alternative(const rtx::Type& type, unsigned index)
    {
        const rtx::Member& member = type.members[index];
        Cost sum = cost(*member.type);
        sum.heap += member.step == rtx::Step::Pointer ? static_cast<double>(rtx::rounded(member.type->size)) : 0;
        return sum;
    }

    Cost element(const rtx::Type& type)
    {
        Cost sum = cost(type.element());
        const size_t node = sizeof(OSRTDListNode) + type.element().size;
        sum.heap += type.kind == rtx::Kind::List ? static_cast<double>(rtx::rounded(node)) : 0;
        return sum;
    }

    int number(const rtx::Type& type)
    {
        return worth(element(type)) > 0 ? type.upper : type.lower;
    }

    static void setFlag(void* structure, int flag)
    {
        if (flag >= 0)
        {
            *at(structure, static_cast<size_t>(flag) / 8) |= static_cast<OSOCTET>(1U << rtx::flagShift(flag));
        }
    }

    void fillMember(const rtx::Type& type, unsigned index, void* value)
    {
        if (!isSent(type, index))
        {
            return;
        }
        const rtx::Member& member = type.members[index];
        setFlag(value, member.flag);
        for (unsigned i = 0; index >= type.rootCount && i < type.additionCount; ++i)
        {
            const rtx::Addition& addition = type.additions[i];
            setFlag(value, index >= addition.first && index < addition.first + addition.count ? addition.flag : -1);
        }
        fill(*member.type, at(value, member.offset));
    }

    void fillAlternative(const rtx::Type& type, void* value)
    {
        const unsigned index = bestAlternative(type);
        const rtx::Member& member = type.members[index];
        store(value, static_cast<OSUINT32>(index + 1));
        void* to = at(value, member.offset);
        if (member.step == rtx::Step::Pointer)
        {
            void* const pointed = allocate(ctxt_, member.type->size);
            store(to, pointed);
            to = pointed;
        }
        fill(*member.type, to);
    }

    OSCTXT& ctxt_;
    double price_; // octets of heap for a bit
    std::map<const rtx::Type*, Cost> costs_;
};

} // namespace test

#endif
