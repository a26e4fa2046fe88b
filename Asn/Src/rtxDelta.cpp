#include "rtxDelta.h"

#include <algorithm>
#include <cinttypes>

namespace rtx
{
namespace
{

// Whether two trees are sent alike. With `lone` set, actions that only one of them carries do not count.
class Equality
{
public:
    explicit Equality(bool lone) : lone_(lone) {}

    bool same(const Type& type, const void* a, const void* b) const
    {
        if (a == b)
        {
            return true;
        }
        switch (type.kind)
        {
        case Kind::Sequence:
            return sequence(type, a, b);
        case Kind::Choice:
            return choice(type, a, b);
        case Kind::Array:
        case Kind::List:
            return list(type, a, b);
        default:
            return sameValue(type, a, b);
        }
    }

private:
    bool sequence(const Type& type, const void* a, const void* b) const
    {
        bool alike = true;
        forMembers(type,
                   [&](unsigned i, const Addition* addition)
                   {
                       if (!alike)
                       {
                           return;
                       }
                       const void* const inA = sent(type, i, addition, a);
                       const void* const inB = sent(type, i, addition, b);
                       const bool ignored = lone_ && needOf(type, i).absence == Absence::Action &&
                                            needOf(type, i).list == ListRole::None;
                       alike = inA != nullptr && inB != nullptr ? same(*type.members[i].type, inA, inB)
                                                                : inA == inB || ignored;
                   });
        return alike && sameUnknown(unknownOf(type, a), unknownOf(type, b));
    }

    static bool sameUnknown(const OSRTDList& a, const OSRTDList& b)
    {
        const OSRTDListNode* nodeA = a.head;
        const OSRTDListNode* nodeB = b.head;
        bool alike = a.count == b.count;
        for (uint32_t i = 0; i < a.count && alike; ++i, nodeA = nodeA->next, nodeB = nodeB->next)
        {
            alike = openOf(nodeA)->index == openOf(nodeB)->index && sameOctets(*openOf(nodeA), *openOf(nodeB));
        }
        return alike;
    }

    bool choice(const Type& type, const void* a, const void* b) const
    {
        if (load<OSUINT32>(a) != load<OSUINT32>(b))
        {
            return false;
        }
        const Member* const alternative = alternativeOf(type, a);
        if (alternative == nullptr)
        {
            return sameOctets(*load<const ASN1OpenType*>(a, type.extElem), *load<const ASN1OpenType*>(b, type.extElem));
        }
        return same(*alternative->type, contentOf(*alternative, a), contentOf(*alternative, b));
    }

    bool list(const Type& type, const void* a, const void* b) const
    {
        bool alike = elementCount(type, a) == elementCount(type, b);
        for (ElementCursor inA(type, a), inB(type, b); alike && !inA.atEnd(); inA.next(), inB.next())
        {
            alike = same(type.element(), inA.data(), inB.data());
        }
        return alike;
    }

    bool lone_;
};

} // namespace

bool equal(const Type& type, const void* a, const void* b, bool lone)
{
    return Equality(lone).same(type, a, b);
}

void* allocateFor(OSCTXT& ctxt, size_t octets)
{
    void* const p = allocate(ctxt, octets);
    if (p == nullptr)
    {
        (void)setError(ctxt, RTX_E_HEAP, static_cast<int64_t>(octets));
    }
    return p;
}

int checkTree(OSCTXT& ctxt, const Type& type, const void* value)
{
    const auto first = [](void* arg, const RtxError* finding)
    {
        auto& error = static_cast<OSCTXT*>(arg)->error;
        if (error.status == RTX_OK)
        {
            error = *finding;
        }
        return 1;
    };
    return rtxCheck(&ctxt, &type, value, first, &ctxt) == 0 ? int{RTX_OK} : ctxt.error.status;
}

ListElements sortedElements(OSCTXT& ctxt, const Type& type, const void* list)
{
    const uint32_t count = list == nullptr ? 0 : elementCount(type, list);
    if (count == 0)
    {
        return {nullptr, 0};
    }
    auto* const elements = static_cast<ListElement*>(allocateFor(ctxt, count * sizeof(ListElement)));
    if (elements != nullptr)
    {
        uint32_t i = 0;
        bool inOrder = true;
        for (ElementCursor at(type, list); !at.atEnd(); at.next(), ++i)
        {
            // What a list without identities holds are identities themselves.
            const bool bare = type.identity == noIdentity;
            elements[i] = {bare ? loadNumber(type.element(), at.data()) : identityOf(type, at.data(), i), at.data(), i};
            inOrder = inOrder && (i == 0 || elements[i - 1].id <= elements[i].id);
        }
        if (!inOrder)
        {
            std::sort(elements, elements + count,
                      [](const ListElement& x, const ListElement& y)
                      { return x.id != y.id ? x.id < y.id : x.index < y.index; });
        }
    }
    return {elements, count};
}

bool writeList(OSCTXT& ctxt, const Type& type, const ListElement* elements, uint32_t count, void* list)
{
    if (type.kind == Kind::Array)
    {
        const size_t size = type.element().size;
        OSOCTET* const to = static_cast<OSOCTET*>(list) + type.members->offset;
        for (uint32_t i = 0; i < count; ++i)
        {
            std::memcpy(to + i * size, elements[i].data, size);
        }
        storeCount(type, list, count);
        return true;
    }
    auto* const nodes = static_cast<OSRTDListNode*>(allocateFor(ctxt, count * sizeof(OSRTDListNode)));
    if (nodes == nullptr)
    {
        return false;
    }
    OSRTDList made{};
    for (uint32_t i = 0; i < count; ++i)
    {
        nodes[i].data = const_cast<void*>(elements[i].data);
        rtxDListAppendNode(&made, &nodes[i]);
    }
    std::memcpy(list, &made, sizeof made);
    return true;
}

RtxDeltaItem deltaItem(RtxDeltaKind kind, RtxDeltaReason reason, const Need& need, const DeltaPlace& place)
{
    static constexpr char letters[] = {'\0', 'M', 'R', 'S', 'N', '-'};
    RtxDeltaItem item;
    item.kind = kind;
    item.reason = reason;
    item.cause = 0;
    item.need = letters[static_cast<unsigned>(need.absence)];
    item.condition = need.condition;
    item.ancestor = 0;
    item.depth = 0;
    for (const DeltaPlace* p = &place; p != nullptr; p = p->outer)
    {
        push(item, p->step);
    }
    return item;
}

int setError(OSCTXT& ctxt, const Reason& reason, const DeltaPlace& place)
{
    if (ctxt.error.status == RTX_OK)
    {
        (void)setError(ctxt, reason.status, reason.value, reason.lower, reason.upper);
        for (const DeltaPlace* p = &place; p != nullptr; p = p->outer)
        {
            if (p->step.name != nullptr)
            {
                pushName(ctxt, p->step.name);
            }
            else
            {
                pushIndex(ctxt, p->step.indexB != RTX_NO_INDEX ? p->step.indexB : p->step.indexA);
            }
        }
    }
    return ctxt.error.status;
}

int refuse(OSCTXT& ctxt, const RtxDeltaItem& item, const DeltaPlace& place, RtxDeltaSink sink, void* arg)
{
    if (sink != nullptr)
    {
        sink(arg, &item);
    }
    return setError(ctxt, {RTX_E_DELTA, item.reason, 0, 0}, place);
}

bool servesDrb(const Type& bearer, const void* entry)
{
    const unsigned served = memberNamed(bearer, "servedRadioBearer");
    const void* const value = rootMember(bearer, served, entry);
    return value != nullptr &&
           std::strcmp(bearer.members[served].type->names[load<OSUINT32>(value) - 1], "drb-Identity") == 0;
}

namespace
{

// Looks for what the creation of an entry asks for and the entry lacks.
class Completeness
{
public:
    Completeness(OSCTXT& ctxt, RtxDeltaSink sink, void* arg) : ctxt_(ctxt), sink_(sink), arg_(arg) {}

    bool holds(const Type& type, const void* value, const DeltaPlace& place)
    {
        bool whole = true;
        if (type.kind == Kind::Choice)
        {
            const Member* const alternative = alternativeOf(type, value);
            whole = alternative == nullptr || holds(*alternative->type, contentOf(*alternative, value),
                                                    memberAt(place, type.names[alternative - type.members]));
        }
        else if (type.kind == Kind::Sequence)
        {
            forMembers(type, [&](unsigned i, const Addition* addition)
                       { whole = whole && member(type, i, addition, value, memberAt(place, type.names[i])); });
        }
        else if (type.kind == Kind::List && type.identity == noIdentity)
        {
            uint32_t i = 0;
            for (ElementCursor at(type, value); whole && !at.atEnd(); at.next(), ++i)
            {
                whole = holds(type.element(), at.data(), {&place, {nullptr, RTX_NO_INDEX, i, nullptr, 0}});
            }
        }
        return whole;
    }

private:
    bool member(const Type& type, unsigned i, const Addition* addition, const void* structure, const DeltaPlace& place)
    {
        const Need& need = needOf(type, i);
        const void* const value = sent(type, i, addition, structure);
        if (value != nullptr)
        {
            return holds(*type.members[i].type, value, place);
        }
        const bool forDrb = need.change == Change::DrbSetup || need.change == Change::Mode;
        if (!isSetup(need) || (forDrb && !servesDrb(type, structure)))
        {
            return true;
        }
        refuseWithout(need, place);
        return false;
    }

    // Out of the walk's frames, which would be as large as an item each.
    [[gnu::noinline]] void refuseWithout(const Need& need, const DeltaPlace& place)
    {
        (void)refuse(ctxt_, deltaItem(RTX_DELTA_REFUSED, RTX_DELTA_INCOMPLETE, need, place), place, sink_, arg_);
    }

    OSCTXT& ctxt_;
    RtxDeltaSink sink_;
    void* arg_;
};

} // namespace

bool isComplete(OSCTXT& ctxt, const Type& type, const void* entry, const DeltaPlace& place, RtxDeltaSink sink,
                void* arg)
{
    return Completeness(ctxt, sink, arg).holds(type, entry, place);
}

SyncMember syncOf(const Type& type, const void* value)
{
    SyncMember found{nullptr, nullptr};
    for (unsigned i = 0; i < type.rootCount && found.type == nullptr && value != nullptr; ++i)
    {
        const Type& inner = *type.members[i].type;
        const void* const in = sent(type, i, nullptr, value);
        if (needOf(type, i).change == Change::Sync)
        {
            found = {&inner, in};
        }
        else if (inner.kind == Kind::Sequence && memberWith(inner, Change::Sync) != noMember)
        {
            found = syncOf(inner, in);
        }
    }
    return found;
}

bool releasesSul(const Type& type, const void* value)
{
    const unsigned sul = memberWith(type, Change::Sul);
    if (sul != noMember)
    {
        return rootMember(type, sul, value) == nullptr;
    }
    const unsigned common = memberNamed(type, "spCellConfigCommon");
    const void* const cell = rootMember(type, common, value);
    return cell != nullptr && releasesSul(*type.members[common].type, cell);
}

int checkIdentity(OSCTXT& ctxt, const Type& type, const void* held, const void* value, RtxDeltaSink sink, void* arg)
{
    const unsigned i = memberWith(type, Change::Identity);
    if (held == nullptr || i == noMember ||
        sameValue(*type.members[i].type, at(held, type.members[i]), at(value, type.members[i])))
    {
        return RTX_OK;
    }
    const DeltaPlace root{nullptr, {type.name, 0, 0, nullptr, 0}};
    const DeltaPlace place = memberAt(root, type.names[i]);
    return refuse(ctxt, deltaItem(RTX_DELTA_REFUSED, RTX_DELTA_OTHER_IDENTITY, {}, place), place, sink, arg);
}

namespace
{

void appendPlace(Line& line, const RtxDeltaItem& item, OSUINT32 steps)
{
    RtxDeltaItem part = item;
    if (steps < part.depth && part.depth <= RTX_MAX_DEPTH) // the outermost ones stand last
    {
        std::memmove(part.path, part.path + (part.depth - steps), steps * sizeof part.path[0]);
        part.depth = steps;
    }
    appendPath(line, part,
               [&](const RtxDifferenceStep& step)
               {
                   if (step.identity != nullptr)
                   {
                       append(line, "[%s %" PRId64 "]", step.identity, step.id);
                   }
                   else
                   {
                       append(line, "[%" PRIu32 "]", step.indexB != RTX_NO_INDEX ? step.indexB : step.indexA);
                   }
               });
}

// What the schema says of the member: "Need R", "Cond SCellAdd".
void appendNeed(Line& line, const RtxDeltaItem& item)
{
    if (item.condition != nullptr)
    {
        append(line, "Cond %s", item.condition);
    }
    else if (item.need != '\0')
    {
        append(line, "Need %c", item.need);
    }
}

const char* kindText(const RtxDeltaItem& item)
{
    const bool unchanged = item.reason == RTX_DELTA_STAYS || item.reason == RTX_DELTA_MANDATORY ||
                           item.reason == RTX_DELTA_WITH_SYNC || item.reason == RTX_DELTA_FORCED;
    switch (item.kind)
    {
    case RTX_DELTA_SENT:
        return unchanged ? "sent unchanged" : "sent";
    case RTX_DELTA_RELEASED:
        return "released";
    case RTX_DELTA_LEFT_OUT:
        return "left out";
    case RTX_DELTA_NOTICE:
        return "notice";
    default:
        return "refused";
    }
}

} // namespace
} // namespace rtx

size_t rtxDeltaFormat(const RtxDeltaItem* item, char* text, size_t size)
{
    using rtx::append;
    rtx::Line line(text, size);
    rtx::appendPlace(line, *item, item->depth);
    append(line, ": %s: ", rtx::kindText(*item));
    if (item->need != '\0' && item->reason != RTX_DELTA_CHANGED && item->reason != RTX_DELTA_ADDED)
    {
        rtx::appendNeed(line, *item);
        append(line, "%s", item->reason == RTX_DELTA_STAYS ? " " : ": ");
    }
    append(line, "%s", rtx::deltaReasonText(item->reason));
    if (item->cause != 0)
    {
        append(line, "; %s", rtx::deltaReasonText(item->cause));
    }
    if (item->kind == RTX_DELTA_REFUSED)
    {
        char where[4096];
        rtx::Line ancestor(where, sizeof where);
        rtx::appendPlace(ancestor, *item, item->ancestor);
        append(line,
               item->ancestor != 0 ? "; %s can be released and set up again" : "; nothing around it can be released%s",
               where);
    }
    return line.length;
}

int rtxEqual(const OSCTXT* pctxt, const RtxType* type, const void* a, const void* b)
{
    if (pctxt == nullptr || type == nullptr || a == nullptr || b == nullptr)
    {
        return RTX_E_NULL;
    }
    for (const void* const tree : {a, b})
    {
        OSCTXT errors{};
        errors.heap = pctxt->heap;
        if (const int status = rtx::checkTree(errors, *type, tree))
        {
            return status;
        }
    }
    return rtx::equal(*type, a, b) ? 1 : 0;
}
