// The walk over an element tree, in the order of the wire, that all writers share. It takes nothing in the tree for
// granted and knows what was never read; a writer says how things look. The walk calls of it:
//
// stopped(ctxt, type)    first, when a decoder gave up in this tree
// begin(step) ... end()  around each value with its name or index; between them, where a writer has it, at(type, value)
// with its place, and one of
//   boolean(value), null(), integer(type, value, wrong), enumerated(type, value, wrong)
//   bits(data, count, wrong)
//   open(type) ... close(type)                       a sequence's members, a choice's only alternative
//   openList(type, number, wrong) ... closeList(type)  at most as many elements as the type allows
//   unknownAlternative(type, tag, wrong, open, refusal)  `refusal` says why `open` is not shown, null when it is
//   invalid(text)                                    there is no value
// and inside of a sequence, a choice or a list
//   notRead(name), notReadElements(text)             a member, an alternative, "..." for the extension additions;
//   elements
//                                                    "[2]", "[2..4]" or, where no end is known, "[2..]". Nothing but
//                                                    these follows. notRead() alone when it is the root.
//   unsent(step)                                     a member of a group that is not present: is it to be shown?
//   openUnknown(count) ... closeUnknown()            around the unknown additions: unknown(type, index, open),
//                                                    or a value that is invalid
//   broken(text), remark(text)                       a list that ends too early or goes on
//
// `wrong` is a Reason: RTX_OK when nothing is.
#ifndef RTXWALK_H
#define RTXWALK_H

#include "rtxTree.h"

namespace rtx
{

template <typename Writer>
class Walk
{
public:
    Walk(const OSCTXT* ctxt, Writer& writer) : ctxt_(ctxt), reading_(ctxt), writer_(writer) {}

    // Returns the status of the first thing that is not a value of its type, or the decoder's when it gave up in this
    // tree.
    int run(const Type& type, const char* title, const void* value)
    {
        const RtxPathStep root = named(type.name);
        if (reading_.isNext(root))
        {
            status_ = ctxt_->error.status;
            writer_.stopped(*ctxt_, type);
        }
        // The root is the caller's and need not lie in the heap.
        const auto content = [&]
        {
            if (value == nullptr)
            {
                invalid(Reason{RTX_E_NULL});
            }
            else
            {
                element(type, value);
            }
        };
        place(root, title, content);
        return status_;
    }

private:
    static constexpr uint32_t none = UINT32_MAX;

    void note(int status)
    {
        status_ = status_ == RTX_OK ? status : status_;
    }

    const Reason& noted(const Reason& reason)
    {
        note(reason.status);
        return reason;
    }

    void invalid(const Reason& reason)
    {
        note(reason.status);
        writer_.invalid(ReasonText(reason).text);
    }

    void invalidPointer(RtxStatus status)
    {
        note(status);
        writer_.invalid(refusal(status));
    }

    const char* refusal(RtxStatus status) const
    {
        return status == RTX_E_NULL ? "a null pointer"
               : ctxt_ == nullptr   ? "a pointer that is not followed, as no context is named"
                                    : "a pointer out of the context's heap";
    }

    // A value that the tree holds at a step; content() calls the writer for it.
    template <typename Content>
    void place(const RtxPathStep& step, const char* title, const Content& content)
    {
        reading_.enter(step);
        if (reading_.stopped())
        {
            writer_.notRead(title);
        }
        else
        {
            shown({title, step.index, 0}, content);
        }
        reading_.leave();
    }

    template <typename Content>
    void shown(const RtxPathStep& step, const Content& content)
    {
        writer_.begin(step);
        content();
        writer_.end();
    }

    void element(const Type& type, const void* value)
    {
        if (depth_ == RTX_MAX_DEPTH)
        {
            note(RTX_E_DEPTH);
            writer_.invalid("deeper elements are left out");
            return;
        }
        ++depth_;
        content(type, value);
        --depth_;
    }

    void pointed(const Type& type, const void* p)
    {
        if (const RtxStatus status = refuse(ctxt_, p, type))
        {
            invalidPointer(status);
        }
        else
        {
            element(type, p);
        }
    }

    void content(const Type& type, const void* value)
    {
        if constexpr (requires { writer_.at(type, value); })
        {
            writer_.at(type, value);
        }
        switch (type.kind)
        {
        case Kind::Boolean:
            writer_.boolean(load<OSBOOL>(value));
            break;
        case Kind::Null:
            writer_.null();
            break;
        case Kind::Integer:
        {
            const int64_t number = loadNumber(type, value);
            writer_.integer(type, number, noted(outside(type, number)));
            break;
        }
        case Kind::Enumerated:
        {
            const auto number = load<OSUINT32>(value);
            writer_.enumerated(type, number, noted(outside(type, number)));
            break;
        }
        case Kind::BitStr32:
        {
            const auto string = load<ASN1BitStr32>(value);
            writer_.bits(string.data, bitCount(string), noted(wrongLength(type, string.numbits)));
            break;
        }
        case Kind::BitOctets:
            writer_.bits(static_cast<const OSOCTET*>(value), static_cast<uint32_t>(type.upper), Reason{});
            break;
        case Kind::Sequence:
            writer_.open(type);
            sequence(type, value);
            writer_.close(type);
            break;
        case Kind::Choice:
            choice(type, value);
            break;
        case Kind::Array:
            array(type, value);
            break;
        case Kind::List:
            list(type, load<OSRTDList>(value));
            break;
        }
    }

    void sequence(const Type& type, const void* value)
    {
        for (unsigned i = 0; i < type.rootCount; ++i)
        {
            member(type, i, value);
        }
        for (unsigned a = 0; a < type.additionCount; ++a)
        {
            const Addition& addition = type.additions[a];
            // An error in a member may do without the step of its group.
            const bool inGroup = reading_.isNext(grouped(a + 1));
            // The decoder tells of a group only when it has read all of it.
            const bool sent = addition.flag < 0 || hasFlag(value, addition.flag) || inGroup || stopsIn(type, addition);
            if (inGroup)
            {
                reading_.enter(grouped(a + 1));
            }
            for (unsigned i = addition.first; i < addition.first + addition.count; ++i)
            {
                if (sent || (type.members[i].flag >= 0 && hasFlag(value, type.members[i].flag) &&
                             writer_.unsent(rtx::named(type.names[i]))))
                {
                    member(type, i, value);
                }
            }
            if (inGroup)
            {
                reading_.leave();
            }
        }
        if (type.extensible)
        {
            if (!reading_.stopped())
            {
                unknownAdditions(type, load<OSRTDList>(value, type.extElem));
            }
            if (reading_.stopsHere())
            {
                writer_.notRead("...");
            }
        }
    }

    bool stopsIn(const Type& type, const Addition& addition) const
    {
        bool stops = false;
        for (unsigned i = addition.first; i < addition.first + addition.count; ++i)
        {
            stops = stops || reading_.isNext(named(type.names[i]));
        }
        return stops;
    }

    void member(const Type& type, unsigned index, const void* structure)
    {
        const Member& member = type.members[index];
        if (isPresent(member, structure))
        {
            const auto content = [&]
            {
                element(*member.type, static_cast<const OSOCTET*>(structure) + member.offset);
            };
            place(named(type.names[index]), type.names[index], content);
        }
    }

    void choice(const Type& type, const void* value)
    {
        const auto tag = load<OSUINT32>(value);
        const char* const unread = tag == 0 ? reading_.nextName() : nullptr;
        if (unread != nullptr)
        {
            writer_.open(type);
            writer_.notRead(unread);
            writer_.close(type);
        }
        else if (const Reason wrong = wrongTag(type, tag); wrong.status == RTX_OK)
        {
            writer_.open(type);
            alternative(type, tag - 1, value);
            writer_.close(type);
        }
        else if (tag != 0 && type.extensible)
        {
            unknownAlternative(type, tag, wrong, load<const ASN1OpenType*>(value, type.extElem));
        }
        else
        {
            invalid(wrong);
        }
    }

    void alternative(const Type& type, unsigned index, const void* value)
    {
        const Member& member = type.members[index];
        const auto content = [&]
        {
            if (member.step != Step::Pointer)
            {
                element(*member.type, static_cast<const OSOCTET*>(value) + member.offset);
                return;
            }
            const auto* const p = load<const void*>(value, member.offset);
            if (p == nullptr && mayBeEmpty(*member.type))
            {
                writer_.open(*member.type);
                writer_.close(*member.type);
                return;
            }
            pointed(*member.type, p);
        };
        place(named(type.names[index]), type.names[index], content);
    }

    void unknownAlternative(const Type& type, uint32_t tag, const Reason& wrong, const ASN1OpenType* open)
    {
        const char* reason = nullptr;
        if (const RtxStatus status = refuse(ctxt_, open))
        {
            reason = refusal(status);
        }
        else if (const RtxStatus octets = refuse(ctxt_, *open))
        {
            reason = octets == RTX_E_NULL ? "absent" : refusal(octets);
        }
        if (reason != nullptr || open->numocts == 0)
        {
            note(wrong.status);
        }
        writer_.unknownAlternative(type, tag, wrong, open, reason);
    }

    // Begins a list and returns how many of its elements are shown.
    uint32_t openList(const Type& type, uint32_t number)
    {
        // A decoder that gave up has not come to all of them.
        const Reason wrong = reading_.stopsHere() ? Reason{} : wrongSize(type, number);
        writer_.openList(type, number, noted(wrong));
        const auto upper = static_cast<uint32_t>(type.upper);
        return number < upper ? number : upper;
    }

    void array(const Type& type, const void* value)
    {
        const uint32_t number = openList(type, countOf(type, value));
        const OSOCTET* const elements = static_cast<const OSOCTET*>(value) + type.members->offset;
        uint32_t i = 0;
        for (; i < number && !reading_.stopsAt(indexed(i)); ++i)
        {
            const auto content = [&]
            {
                element(type.element(), elements + size_t{i} * type.element().size);
            };
            place(indexed(i), nullptr, content);
        }
        if (i < number)
        {
            notReadElements(i, number - 1, number - 1);
        }
        writer_.closeList(type);
    }

    void list(const Type& type, const OSRTDList& value)
    {
        const uint32_t number = openList(type, value.count);
        uint32_t read = 0;
        const auto each = [&](uint32_t i, const void* data)
        {
            if (!reading_.stopsAt(indexed(i)))
            {
                const auto content = [&]
                {
                    pointed(type.element(), data);
                };
                place(indexed(i), nullptr, content);
                read = i + 1;
            }
        };
        nodes(value, number, each);
        if (reading_.stopsHere() && read < static_cast<uint32_t>(type.upper))
        {
            notReadElements(read, none, static_cast<uint32_t>(type.upper) - 1); // how many were announced is not known
        }
        writer_.closeList(type);
    }

    // The elements from one to another were not read, up to `most` where the last one is not known.
    void notReadElements(uint32_t first, uint32_t last, uint32_t most)
    {
        char text[32];
        if (first == most)
        {
            (void)std::snprintf(text, sizeof text, "[%" PRIu32 "]", first);
        }
        else if (last == none)
        {
            (void)std::snprintf(text, sizeof text, "[%" PRIu32 "..]", first);
        }
        else
        {
            (void)std::snprintf(text, sizeof text, "[%" PRIu32 "..%" PRIu32 "]", first, last);
        }
        writer_.notReadElements(text);
    }

    void unknownAdditions(const Type& type, const OSRTDList& value)
    {
        if (value.count == 0)
        {
            return;
        }
        uint64_t all = type.additionCount;
        const auto each = [&](uint32_t i, const void* data)
        {
            const auto* const open = static_cast<const ASN1OpenType*>(data);
            RtxStatus status = refuse(ctxt_, open);
            if (status == RTX_OK)
            {
                status = refuse(ctxt_, *open);
            }
            if (status != RTX_OK)
            {
                shown(indexed(i), [&] { invalidPointer(status); });
                return;
            }
            note(wrongPlace(type, *open, all).status);
            note(open->numocts == 0 ? RTX_E_EXTENSION : RTX_OK);
            writer_.unknown(type, open->index, *open);
        };
        writer_.openUnknown(value.count);
        nodes(value, value.count, each);
        writer_.closeUnknown();
    }

    // Calls each(index, data) for the first `number` nodes, as far as they can be followed.
    template <typename Each>
    void nodes(const OSRTDList& value, uint32_t number, const Each& each)
    {
        uint32_t reached = 0;
        switch (forNodes(ctxt_, value, number, reached, each))
        {
        case ListEnd::Asked:
            break;
        case ListEnd::Early:
            note(RTX_E_LIST);
            writer_.broken(ReasonText({RTX_E_LIST, value.count, reached, reached}).text);
            break;
        case ListEnd::Foreign:
            shown(indexed(reached), [&] { invalidPointer(RTX_E_FOREIGN); });
            break;
        case ListEnd::Loop:
            note(RTX_E_LIST);
            shown(indexed(reached), [&] { writer_.invalid("the list goes back to an earlier element"); });
            break;
        case ListEnd::GoesOn:
            writer_.remark("the list goes on behind its last element");
            break;
        }
    }

    const OSCTXT* ctxt_;
    Reading reading_;
    Writer& writer_;
    int status_ = RTX_OK;
    unsigned depth_ = 0;
};

// The index on the wire of an alternative that this release does not know, among the choice's extension additions.
inline uint32_t extensionIndex(const Type& type, uint32_t tag)
{
    return tag - 1 - type.rootCount;
}

// Writes a tree with Writer(options..., sink, arg).
template <typename Writer, typename... Options>
int write(const OSCTXT* ctxt, const Type* type, const void* value, RtxPrintSink sink, void* arg, Options... options)
{
    if (type == nullptr || sink == nullptr)
    {
        return RTX_E_NULL;
    }
    Writer writer(options..., sink, arg);
    const int status = Walk(ctxt, writer).run(*type, type->name, value);
    writer.finish();
    return status;
}

} // namespace rtx

#endif
