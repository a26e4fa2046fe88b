// The check: a walker over the type descriptors in the order of the encoder, which goes on where the encoder stops.
#include "rtxLine.h"
#include "rtxTree.h"

#include <algorithm>

namespace rtx
{
namespace
{

// Where the walk stands: a step and the one around it.
struct Place
{
    const Place* outer;
    RtxPathStep step;
};

class Checker
{
public:
    Checker(const OSCTXT& ctxt, RtxFindingSink sink, void* arg) : ctxt_(&ctxt), sink_(sink), arg_(arg) {}

    int64_t run(const Type& type, const void* value)
    {
        const Place root{nullptr, named(type.name)};
        if (value == nullptr)
        {
            report(root, RTX_E_NULL);
        }
        else
        {
            content(type, value, root);
        }
        return findings_;
    }

private:
    void report(const Place& place, RtxStatus status)
    {
        report(place, Reason{status});
    }

    void report(const Place& place, const Reason& reason)
    {
        if (ended_ || reason.status == RTX_OK)
        {
            return;
        }
        ++findings_;
        if (sink_ != nullptr)
        {
            tell(place, reason);
        }
    }

    // Out of line: a finding takes more of the stack than all else on the way down.
    [[gnu::noinline]] void tell(const Place& place, const Reason& reason)
    {
        RtxError finding;
        finding.status = reason.status;
        finding.depth = 0;
        finding.value = reason.value;
        finding.lower = reason.lower;
        finding.upper = reason.upper;
        finding.bitOffset = 0;
        finding.hasOffset = 0;
        for (const Place* p = &place; p != nullptr; p = p->outer)
        {
            push(finding, p->step);
        }
        ended_ = sink_(arg_, &finding) != 0;
    }

    void content(const Type& type, const void* value, const Place& place)
    {
        if (ended_)
        {
            return;
        }
        switch (type.kind)
        {
        case Kind::Boolean:
        case Kind::Null:
        case Kind::BitOctets:
            break; // all that they can hold is sent
        case Kind::Integer:
        case Kind::Enumerated:
            report(place, outside(type, loadNumber(type, value)));
            break;
        case Kind::BitStr32:
            report(place, wrongLength(type, load<ASN1BitStr32>(value).numbits));
            break;
        case Kind::Sequence:
            sequence(type, value, place);
            break;
        case Kind::Choice:
            choice(type, value, place);
            break;
        case Kind::Array:
            array(type, value, place);
            break;
        case Kind::List:
            list(type, load<OSRTDList>(value), place);
            break;
        }
    }

    void sequence(const Type& type, const void* value, const Place& place)
    {
        members(type, 0, type.rootCount, value, place);
        if (!type.extensible)
        {
            return;
        }
        // The encoder sends which additions there are before the additions themselves.
        const auto unknown = load<OSRTDList>(value, type.extElem);
        const Place unknownPlace{&place, named("extElem1")};
        const uint32_t reached = unknownList(type, unknown, unknownPlace);
        for (unsigned i = 0; i < type.additionCount; ++i)
        {
            const Addition& addition = type.additions[i];
            if (isSent(type, addition, value))
            {
                members(type, addition.first, addition.count, value, place);
            }
        }
        unknownOctets(unknown, reached, unknownPlace);
    }

    void members(const Type& type, unsigned first, unsigned count, const void* structure, const Place& place)
    {
        for (unsigned i = first; i < first + count; ++i)
        {
            const Member& member = type.members[i];
            if (isPresent(member, structure))
            {
                content(*member.type, static_cast<const OSOCTET*>(structure) + member.offset,
                        {&place, named(type.names[i])});
            }
        }
    }

    // Returns how many of the unknown additions can be followed.
    uint32_t unknownList(const Type& type, const OSRTDList& list, const Place& place)
    {
        uint64_t all = type.additionCount;
        const OSRTDListNode* node = list.head;
        for (uint32_t i = 0; i < list.count; ++i, node = node->next)
        {
            if (refuse(ctxt_, node) != RTX_OK)
            {
                noNode(list, i, node, place);
                return i;
            }
            const Place at{&place, indexed(i)};
            if (const RtxStatus status = refuse(ctxt_, static_cast<const ASN1OpenType*>(node->data)))
            {
                report(at, status);
                return i;
            }
            const Reason wrong = wrongPlace(type, *static_cast<const ASN1OpenType*>(node->data), all);
            if (wrong.status != RTX_OK)
            {
                report(wrong.status == RTX_E_SIZE ? place : at, wrong);
                return i;
            }
        }
        return list.count;
    }

    void unknownOctets(const OSRTDList& list, uint32_t number, const Place& place)
    {
        const OSRTDListNode* node = list.head;
        for (uint32_t i = 0; i < number; ++i, node = node->next)
        {
            const auto& open = *static_cast<const ASN1OpenType*>(node->data);
            if (const RtxStatus status = open.numocts == 0 ? RTX_E_EXTENSION : refuse(ctxt_, open))
            {
                report({&place, indexed(i)}, status);
            }
        }
    }

    void choice(const Type& type, const void* value, const Place& place)
    {
        const auto tag = load<OSUINT32>(value);
        if (const Reason wrong = wrongTag(type, tag); wrong.status != RTX_OK)
        {
            if (tag == 0 || !type.extensible || !isUnknownAlternative(load<const ASN1OpenType*>(value, type.extElem)))
            {
                report(place, wrong);
            }
            return;
        }
        const Member& alternative = type.members[tag - 1];
        const Place at{&place, named(type.names[tag - 1])};
        if (alternative.step == Step::Pointer)
        {
            const auto* const p = load<const void*>(value, alternative.offset);
            if (p != nullptr || !mayBeEmpty(*alternative.type))
            {
                pointed(*alternative.type, p, at);
            }
        }
        else
        {
            content(*alternative.type, static_cast<const OSOCTET*>(value) + alternative.offset, at);
        }
    }

    bool isUnknownAlternative(const ASN1OpenType* open) const
    {
        return refuse(ctxt_, open) == RTX_OK && open->numocts != 0 && refuse(ctxt_, *open) == RTX_OK;
    }

    void pointed(const Type& type, const void* p, const Place& place)
    {
        if (const RtxStatus status = refuse(ctxt_, p, type))
        {
            report(place, status);
        }
        else
        {
            content(type, p, place);
        }
    }

    // Reports a count out of its bounds and returns how many elements to visit.
    uint32_t count(const Type& type, uint32_t number, const Place& place)
    {
        report(place, wrongSize(type, number));
        return std::min(number, static_cast<uint32_t>(type.upper));
    }

    void array(const Type& type, const void* value, const Place& place)
    {
        const uint32_t number = count(type, countOf(type, value), place);
        const OSOCTET* const elements = static_cast<const OSOCTET*>(value) + type.members->offset;
        for (uint32_t i = 0; i < number; ++i)
        {
            content(type.element(), elements + size_t{i} * type.element().size, {&place, indexed(i)});
        }
    }

    void list(const Type& type, const OSRTDList& list, const Place& place)
    {
        const uint32_t number = count(type, list.count, place);
        const OSRTDListNode* node = list.head;
        // The encoder goes round in a list that is a loop, too.
        for (uint32_t i = 0; i < number && !ended_; ++i, node = node->next)
        {
            if (refuse(ctxt_, node) != RTX_OK)
            {
                noNode(list, i, node, place);
                return;
            }
            pointed(type.element(), node->data, {&place, indexed(i)});
        }
    }

    void noNode(const OSRTDList& list, uint32_t index, const OSRTDListNode* node, const Place& place)
    {
        if (node == nullptr)
        {
            report(place, {RTX_E_LIST, list.count, index, index});
        }
        else
        {
            report({&place, indexed(index)}, RTX_E_FOREIGN);
        }
    }

    const OSCTXT* ctxt_;
    RtxFindingSink sink_;
    void* arg_;
    int64_t findings_ = 0;
    bool ended_ = false;
};

} // namespace
} // namespace rtx

int64_t rtxCheck(const OSCTXT* pctxt, const RtxType* type, const void* value, RtxFindingSink sink, void* arg)
{
    if (pctxt == nullptr || type == nullptr)
    {
        return RTX_E_NULL;
    }
    return rtx::Checker(*pctxt, sink, arg).run(*type, value);
}
