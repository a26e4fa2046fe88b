// The comparison: a walker over the type descriptors and two trees at once.
#include "rtxLine.h"
#include "rtxTree.h"

#include <algorithm>
#include <cinttypes>
#include <cstring>

namespace rtx
{
namespace
{

// Where the walk stands: a step and the one around it.
struct Level
{
    const Level* outer;
    RtxDifferenceStep step;
};

Level memberAt(const Level& place, const char* name)
{
    return {&place, {name, 0, 0, nullptr, 0}};
}

struct Element
{
    const void* data;
    int64_t id; // what it is matched by
    uint32_t index;
    uint32_t match; // index of the other tree's element, RTX_NO_INDEX for none
};

// Matches equal identities, those that occur again in their order.
void match(Element* a, uint32_t numberA, Element* b, uint32_t numberB)
{
    const auto byId = [](const Element& x, const Element& y)
    {
        return x.id != y.id ? x.id < y.id : x.index < y.index;
    };
    const auto byIndex = [](const Element& x, const Element& y)
    {
        return x.index < y.index;
    };
    std::sort(a, a + numberA, byId);
    std::sort(b, b + numberB, byId);
    for (uint32_t i = 0, j = 0; i < numberA && j < numberB;)
    {
        if (a[i].id == b[j].id)
        {
            a[i].match = b[j].index;
            b[j].match = a[i].index;
        }
        const bool step = a[i].id <= b[j].id;
        j += b[j].id <= a[i].id ? 1 : 0;
        i += step ? 1 : 0;
    }
    std::sort(a, a + numberA, byIndex);
    std::sort(b, b + numberB, byIndex);
}

class Comparer
{
public:
    // `b` is null where both trees lie in one heap.
    Comparer(OSCTXT& a, const OSCTXT* b, RtxDifferenceSink sink, void* arg)
        : memory_(a), b_(b != nullptr && b != &a ? *b : a_), sink_(sink), arg_(arg)
    {
        a_.heap = a.heap;
    }

    int64_t run(const Type& type, const void* a, const void* b)
    {
        content(type, a, b, {nullptr, {type.name, 0, 0, nullptr, 0}});
        return status_ != RTX_OK ? status_ : differences_;
    }

private:
    void report(const Level& place, RtxDifferenceKind kind, const Type* type = nullptr, const void* a = nullptr,
                const void* b = nullptr)
    {
        if (ended_)
        {
            return;
        }
        ++differences_;
        if (sink_ != nullptr)
        {
            RtxDifference difference;
            difference.kind = kind;
            difference.type = type;
            difference.a = a;
            difference.b = b;
            difference.depth = 0;
            for (const Level* p = &place; p != nullptr; p = p->outer)
            {
                push(difference, p->step);
            }
            ended_ = sink_(arg_, &difference) != 0;
        }
    }

    // One structure is the same as itself. Of a sequence either may be null, which stands for the empty one.
    void content(const Type& type, const void* a, const void* b, const Level& place)
    {
        if (ended_ || a == b)
        {
            return;
        }
        switch (type.kind)
        {
        case Kind::Sequence:
            sequence(type, a, b, place);
            break;
        case Kind::Choice:
            choice(type, a, b, place);
            break;
        case Kind::Array:
        case Kind::List:
            list(type, a, b, place);
            break;
        default:
            if (!sameValue(type, a, b))
            {
                report(place, RTX_D_VALUE, &type, a, b);
            }
            break;
        }
    }

    void sequence(const Type& type, const void* a, const void* b, const Level& place)
    {
        members(type, 0, type.rootCount, a, b, place);
        for (unsigned i = 0; i < type.additionCount; ++i)
        {
            const Addition& addition = type.additions[i];
            const void* const sentA = a != nullptr && isSent(type, addition, a) ? a : nullptr;
            const void* const sentB = b != nullptr && isSent(type, addition, b) ? b : nullptr;
            members(type, addition.first, addition.count, sentA, sentB, place);
        }
        if (type.extensible)
        {
            const OSRTDList none{};
            unknownAdditions(a == nullptr ? none : load<OSRTDList>(a, type.extElem),
                             b == nullptr ? none : load<OSRTDList>(b, type.extElem), memberAt(place, "extElem1"));
        }
    }

    void members(const Type& type, unsigned first, unsigned count, const void* a, const void* b, const Level& place)
    {
        for (unsigned i = first; i < first + count; ++i)
        {
            const Member& member = type.members[i];
            const void* const inA = a != nullptr && isPresent(member, a) ? at(a, member) : nullptr;
            const void* const inB = b != nullptr && isPresent(member, b) ? at(b, member) : nullptr;
            both(*member.type, inA, inB, memberAt(place, type.names[i]));
        }
    }

    // What may be absent, null then, in either.
    void both(const Type& type, const void* a, const void* b, const Level& place)
    {
        if (a != nullptr && b != nullptr)
        {
            content(type, a, b, place);
        }
        else if (a != nullptr || b != nullptr)
        {
            report(place, a != nullptr ? RTX_D_ONLY_A : RTX_D_ONLY_B, &type, a, b);
        }
    }

    void choice(const Type& type, const void* a, const void* b, const Level& place)
    {
        const auto tag = load<OSUINT32>(a);
        if (tag != load<OSUINT32>(b))
        {
            report(place, RTX_D_ALTERNATIVE, &type, a, b);
        }
        else if (tag >= 1 && tag <= type.memberCount)
        {
            const Member& alternative = type.members[tag - 1];
            const Level inside = memberAt(place, type.names[tag - 1]);
            if (alternative.step == Step::Pointer)
            {
                pointed(*alternative.type, load<const void*>(a, alternative.offset),
                        load<const void*>(b, alternative.offset), inside);
            }
            else
            {
                content(*alternative.type, at(a, alternative), at(b, alternative), inside);
            }
        }
        else if (tag != 0 && type.extensible)
        {
            unknown(load<const ASN1OpenType*>(a, type.extElem), load<const ASN1OpenType*>(b, type.extElem), place);
        }
    }

    void pointed(const Type& type, const void* a, const void* b, const Level& place)
    {
        if (a == b)
        {
            return;
        }
        if (follows(a_, a, type) && follows(b_, b, type))
        {
            content(type, a, b, place);
        }
        else
        {
            report(place, RTX_D_UNREADABLE);
        }
    }

    static bool follows(const OSCTXT& ctxt, const void* p, const Type& type)
    {
        return p == nullptr ? mayBeEmpty(type) : refuse(&ctxt, p, type) == RTX_OK;
    }

    // Additions and alternatives that the schema does not know.
    void unknown(const ASN1OpenType* a, const ASN1OpenType* b, const Level& place)
    {
        if (a == b)
        {
            return;
        }
        if (!isOpen(a_, a) || !isOpen(b_, b))
        {
            report(place, RTX_D_UNREADABLE);
            return;
        }
        if (a == nullptr || b == nullptr || a->numocts != b->numocts || std::memcmp(a->data, b->data, a->numocts) != 0)
        {
            report(place, RTX_D_UNKNOWN, nullptr, a, b);
        }
    }

    // Whether it may be looked at; null stands for one that is absent.
    static bool isOpen(const OSCTXT& ctxt, const ASN1OpenType* open)
    {
        return open == nullptr || (refuse(&ctxt, open) == RTX_OK && refuse(&ctxt, *open) == RTX_OK);
    }

    void unknownAdditions(const OSRTDList& a, const OSRTDList& b, const Level& place)
    {
        const OSRTDListNode* nodeA = a.head;
        const OSRTDListNode* nodeB = b.head;
        const ASN1OpenType* openA = nullptr;
        const ASN1OpenType* openB = nullptr;
        uint32_t leftA = a.count;
        uint32_t leftB = b.count;
        for (int64_t last = -1;;)
        {
            if ((leftA != 0 && openA == nullptr && !next(a_, nodeA, last, openA)) ||
                (leftB != 0 && openB == nullptr && !next(b_, nodeB, last, openB)))
            {
                report(place, RTX_D_UNREADABLE);
                return;
            }
            // The lower index goes first; where only one has it, the other lacks it.
            const bool lowA = openB == nullptr || (openA != nullptr && openA->index <= openB->index);
            const ASN1OpenType* const low = lowA ? openA : openB;
            if (low == nullptr)
            {
                return;
            }
            const uint32_t index = low->index;
            const bool takeA = openA != nullptr && openA->index == index;
            const bool takeB = openB != nullptr && openB->index == index;
            unknown(takeA ? openA : nullptr, takeB ? openB : nullptr,
                    {&place, {nullptr, takeA ? index : RTX_NO_INDEX, takeB ? index : RTX_NO_INDEX, nullptr, 0}});
            last = index;
            leftA -= takeA ? 1 : 0;
            leftB -= takeB ? 1 : 0;
            openA = takeA ? nullptr : openA;
            openB = takeB ? nullptr : openB;
        }
    }

    // Takes an unknown addition of a list that is behind the one before, and goes to the next node; false where it
    // cannot be followed.
    static bool next(const OSCTXT& ctxt, const OSRTDListNode*& node, int64_t last, const ASN1OpenType*& open)
    {
        const void* data = nullptr;
        if (!next(ctxt, node, data) || refuse(&ctxt, static_cast<const ASN1OpenType*>(data)) != RTX_OK)
        {
            return false;
        }
        open = static_cast<const ASN1OpenType*>(data);
        return open->index > last;
    }

    // Takes the data of a list's node and goes to the next one; false where the node cannot be followed.
    static bool next(const OSCTXT& ctxt, const OSRTDListNode*& node, const void*& data)
    {
        const bool result = refuse(&ctxt, node) == RTX_OK;
        if (result)
        {
            data = node->data;
            node = node->next;
        }
        return result;
    }

    // The elements of a list or an array, with what identifies them.
    void list(const Type& type, const void* a, const void* b, const Level& place)
    {
        const uint32_t numberA = elementCount(type, a);
        const uint32_t numberB = elementCount(type, b);
        const auto upper = static_cast<uint32_t>(type.upper);
        if (numberA > upper || numberB > upper)
        {
            report(place, RTX_D_UNREADABLE);
            return;
        }
        if (numberA + numberB == 0)
        {
            return;
        }
        const HeapMark mark(memory_);
        auto* const elementsA =
            static_cast<Element*>(rtxMemHeapAlloc(&memory_, (size_t{numberA} + numberB) * sizeof(Element)));
        if (elementsA == nullptr)
        {
            status_ = RTX_E_HEAP;
            ended_ = true;
            return;
        }
        Element* const elementsB = elementsA + numberA;
        if (collect(a_, type, a, elementsA, numberA) && collect(b_, type, b, elementsB, numberB))
        {
            match(elementsA, numberA, elementsB, numberB);
            elements(type, elementsA, numberA, elementsB, numberB, place);
            if (!inOrder(elementsA, numberA))
            {
                report(place, RTX_D_ORDER, &type, a, b);
            }
        }
        else
        {
            report(place, RTX_D_UNREADABLE);
        }
    }

    static bool collect(const OSCTXT& ctxt, const Type& type, const void* list, Element* elements, uint32_t number)
    {
        const OSRTDListNode* node = type.kind == Kind::Array ? nullptr : load<OSRTDList>(list).head;
        for (uint32_t i = 0; i < number; ++i)
        {
            const void* data =
                static_cast<const OSOCTET*>(list) + type.members->offset + size_t{i} * type.element().size;
            if (type.kind == Kind::List && (!next(ctxt, node, data) || refuse(&ctxt, data, type.element()) != RTX_OK))
            {
                return false;
            }
            elements[i] = {data, identityOf(type, data, i), i, RTX_NO_INDEX};
        }
        return true;
    }

    void elements(const Type& type, const Element* a, uint32_t numberA, const Element* b, uint32_t numberB,
                  const Level& place)
    {
        const char* const identity = identityName(type);
        for (uint32_t i = 0; i < numberA && !ended_; ++i)
        {
            const void* const other = a[i].match == RTX_NO_INDEX ? nullptr : b[a[i].match].data;
            both(type.element(), a[i].data, other, {&place, {nullptr, i, a[i].match, identity, a[i].id}});
        }
        for (uint32_t i = 0; i < numberB && !ended_; ++i)
        {
            if (b[i].match == RTX_NO_INDEX)
            {
                both(type.element(), nullptr, b[i].data, {&place, {nullptr, RTX_NO_INDEX, i, identity, b[i].id}});
            }
        }
    }

    static bool inOrder(const Element* elements, uint32_t number)
    {
        uint32_t last = 0;
        for (uint32_t i = 0; i < number; ++i)
        {
            if (elements[i].match == RTX_NO_INDEX)
            {
                continue;
            }
            if (elements[i].match < last)
            {
                return false;
            }
            last = elements[i].match;
        }
        return true;
    }

    OSCTXT& memory_;
    OSCTXT a_{}; // the heap as it was: what the comparison takes of it belongs to no tree
    const OSCTXT& b_;
    RtxDifferenceSink sink_;
    void* arg_;
    int64_t differences_ = 0;
    int status_ = RTX_OK;
    bool ended_ = false;
};

void appendPlace(Line& line, const RtxDifference& difference)
{
    appendPath(line, difference,
               [&](const RtxDifferenceStep& step)
               {
                   if (step.identity != nullptr)
                   {
                       append(line, "[%s %" PRId64 "]", step.identity, step.id);
                   }
                   else
                   {
                       append(line, "[%" PRIu32 "]", step.indexA != RTX_NO_INDEX ? step.indexA : step.indexB);
                   }
               });
    append(line, ": ");
}

void appendBits(Line& line, const OSOCTET* data, uint32_t count)
{
    append(line, "'");
    for (uint32_t i = 0; i < count; ++i)
    {
        append(line, "%c", (data[i / 8] >> (7 - i % 8) & 1) != 0 ? '1' : '0');
    }
    append(line, "'B");
}

void appendValue(Line& line, const Type& type, const void* value)
{
    switch (type.kind)
    {
    case Kind::Boolean:
        append(line, "%s", load<OSBOOL>(value) != 0 ? "true" : "false");
        break;
    case Kind::BitStr32:
    {
        const auto bits = load<ASN1BitStr32>(value);
        appendBits(line, bits.data, bitCount(bits));
        break;
    }
    case Kind::BitOctets:
        appendBits(line, static_cast<const OSOCTET*>(value), static_cast<uint32_t>(type.upper));
        break;
    default:
        const int64_t number = loadNumber(type, value);
        if (type.kind == Kind::Enumerated && number <= type.upper)
        {
            append(line, "%s", type.names[number]);
        }
        else
        {
            append(line, "%" PRId64, number);
        }
        break;
    }
}

void appendAlternative(Line& line, const Type& type, const void* choice)
{
    const auto tag = load<OSUINT32>(choice);
    if (tag >= 1 && tag <= type.memberCount)
    {
        append(line, "%s", type.names[tag - 1]);
    }
    else
    {
        append(line, "tag %" PRIu32, tag);
    }
}

void appendOctets(Line& line, const void* value)
{
    if (value == nullptr)
    {
        append(line, "none");
        return;
    }
    const auto& open = *static_cast<const ASN1OpenType*>(value);
    for (uint32_t i = 0; i < open.numocts; ++i)
    {
        append(line, "%02X", unsigned{open.data[i]});
    }
}

template <typename Append>
void appendBoth(Line& line, const RtxDifference& difference, const Append& appendOne)
{
    appendOne(difference.a);
    append(line, " in a, ");
    appendOne(difference.b);
    append(line, " in b");
}

void appendDifferenceReason(Line& line, const RtxDifference& difference)
{
    switch (difference.kind)
    {
    case RTX_D_VALUE:
        appendBoth(line, difference, [&](const void* value) { appendValue(line, *difference.type, value); });
        break;
    case RTX_D_ONLY_A:
        append(line, "only in a");
        break;
    case RTX_D_ONLY_B:
        append(line, "only in b");
        break;
    case RTX_D_ALTERNATIVE:
        appendBoth(line, difference, [&](const void* value) { appendAlternative(line, *difference.type, value); });
        break;
    case RTX_D_ORDER:
        append(line, "the elements stand in another order");
        break;
    case RTX_D_UNKNOWN:
        appendBoth(line, difference, [&](const void* value) { appendOctets(line, value); });
        break;
    default:
        append(line, "not compared, as it cannot be read");
        break;
    }
}

} // namespace
} // namespace rtx

int64_t rtxCompare(OSCTXT* pctxtA, const OSCTXT* pctxtB, const RtxType* type, const void* a, const void* b,
                   RtxDifferenceSink sink, void* arg)
{
    if (pctxtA == nullptr || type == nullptr || a == nullptr || b == nullptr)
    {
        return RTX_E_NULL;
    }
    return rtx::Comparer(*pctxtA, pctxtB, sink, arg).run(*type, a, b);
}

size_t rtxDifferenceFormat(const RtxDifference* difference, char* text, size_t size)
{
    rtx::Line line(text, size);
    rtx::appendPlace(line, *difference);
    rtx::appendDifferenceReason(line, *difference);
    return line.length;
}
