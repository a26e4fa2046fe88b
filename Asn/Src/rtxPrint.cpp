// The printer: a walker over the type descriptors that takes nothing in the tree for granted, as it also shows trees
// that the encoder has refused.
#include "rtxTree.h"
#include "vos_lib.h"

#include <cinttypes>

namespace rtx
{
namespace
{

constexpr const char* notFollowed = "a pointer that is not followed, as no context is named";
constexpr const char* foreign = "a pointer out of the context's heap";

const char* refusal(const OSCTXT* ctxt, RtxStatus status)
{
    return status == RTX_E_NULL ? "a null pointer" : ctxt == nullptr ? notFollowed : foreign;
}

class Printer
{
public:
    Printer(const OSCTXT* ctxt, RtxPrintSink sink, void* arg) : ctxt_(ctxt), out_(sink, arg) {}

    void element(const char* name, const Type& type, const void* value)
    {
        indent();
        out_.put(name);
        if (depth_ == RTX_MAX_DEPTH)
        {
            out_.put(": deeper elements are left out\n");
            return;
        }
        ++depth_;
        content(type, value);
        --depth_;
    }

    void pointed(const char* name, const Type& type, const void* p)
    {
        if (const char* const reason = refuse(p, type.size))
        {
            note(name, reason);
        }
        else
        {
            element(name, type, p);
        }
    }

private:
    // Why a pointer to `size` octets is not followed; null when it is.
    const char* refuse(const void* p, size_t size) const
    {
        const RtxStatus status = rtx::refuse(ctxt_, p, size);
        return status == RTX_OK ? nullptr : refusal(ctxt_, status);
    }

    void indent()
    {
        for (unsigned i = 0; i < depth_; ++i)
        {
            out_.put("  ");
        }
    }

    void note(const char* name, const char* text)
    {
        indent();
        out_.put(name);
        out_.put(": ");
        out_.put(text);
        out_.put('\n');
    }

    void content(const Type& type, const void* value)
    {
        switch (type.kind)
        {
        case Kind::Boolean:
            boolean(load<OSBOOL>(value));
            break;
        case Kind::Null:
            out_.put('\n');
            break;
        case Kind::Integer:
            integer(type, loadInteger(value, type.width, type.lower < 0));
            break;
        case Kind::Enumerated:
            enumerated(type, load<OSUINT32>(value));
            break;
        case Kind::BitStr32:
            bitString32(type, load<ASN1BitStr32>(value));
            break;
        case Kind::BitOctets:
            bits(static_cast<const OSOCTET*>(value), static_cast<uint32_t>(type.upper));
            out_.format(" (%" PRId32 " bits)\n", type.upper);
            break;
        case Kind::Sequence:
            out_.put('\n');
            sequence(type, value);
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

    void boolean(OSBOOL value)
    {
        out_.put(value != 0 ? " true" : " false");
        if (value > 1)
        {
            out_.format(" (%u)", unsigned{value});
        }
        out_.put('\n');
    }

    void integer(const Type& type, int64_t value)
    {
        out_.format(" %" PRId64, value);
        if (value < type.lower || value > type.upper)
        {
            out_.format(" (not in %" PRId32 "..%" PRId32 ")", type.lower, type.upper);
        }
        out_.put('\n');
    }

    void enumerated(const Type& type, uint32_t value)
    {
        if (value > static_cast<uint32_t>(type.upper))
        {
            out_.format(" %" PRIu32 " (not in 0..%" PRId32 ")\n", value, type.upper);
            return;
        }
        out_.put(' ');
        out_.put(type.names[value]);
        out_.format(" (%" PRIu32 ")\n", value);
    }

    void bits(const OSOCTET* data, uint32_t count)
    {
        out_.put(" '");
        for (uint32_t i = 0; i < count; ++i)
        {
            out_.put((data[i / 8] >> (7 - i % 8) & 1) != 0 ? '1' : '0');
        }
        out_.put("'B");
    }

    void bitString32(const Type& type, const ASN1BitStr32& value)
    {
        constexpr uint32_t most = 8 * sizeof value.data;
        bits(value.data, value.numbits < most ? value.numbits : most);
        out_.format(" (%" PRIu32 " bits", value.numbits);
        if (value.numbits != static_cast<uint32_t>(type.upper))
        {
            out_.format(", not %" PRId32, type.upper);
        }
        out_.put(")\n");
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
            const bool sent = addition.flag < 0 || hasFlag(value, addition.flag);
            for (unsigned i = addition.first; i < addition.first + addition.count; ++i)
            {
                if (sent)
                {
                    member(type, i, value);
                }
                else if (type.members[i].flag >= 0 && hasFlag(value, type.members[i].flag))
                {
                    note(type.names[i], "not sent, as its extension group is not");
                    member(type, i, value);
                }
            }
        }
        if (type.extensible)
        {
            const auto unknown = load<OSRTDList>(value, type.extElem);
            if (unknown.count != 0)
            {
                unknownAdditions(unknown);
            }
        }
    }

    void member(const Type& type, unsigned index, const void* structure)
    {
        const Member& member = type.members[index];
        if (member.flag < 0 || hasFlag(structure, member.flag))
        {
            element(type.names[index], *member.type, static_cast<const OSOCTET*>(structure) + member.offset);
        }
    }

    void choice(const Type& type, const void* value)
    {
        const auto tag = load<OSUINT32>(value);
        const OSOCTET* const storage = static_cast<const OSOCTET*>(value);
        if (tag >= 1 && tag <= type.memberCount)
        {
            out_.put('\n');
            const Member& alternative = type.members[tag - 1];
            if (alternative.step == Step::Pointer)
            {
                pointed(type.names[tag - 1], *alternative.type, load<const void*>(value, alternative.offset));
            }
            else
            {
                element(type.names[tag - 1], *alternative.type, storage + alternative.offset);
            }
            return;
        }
        out_.format(": tag %" PRIu32 " is not in 1..%u\n", tag, unsigned{type.memberCount});
        if (tag != 0 && type.extensible)
        {
            const auto* const open = load<const ASN1OpenType*>(value, type.extElem);
            if (const char* const reason = refuse(open, sizeof *open))
            {
                note("unknown alternative", reason);
            }
            else
            {
                openType("unknown alternative", *open);
            }
        }
    }

    void openType(const char* name, const ASN1OpenType& open)
    {
        if (const RtxStatus status = rtx::refuse(ctxt_, open))
        {
            note(name, status == RTX_E_NULL ? "absent" : refusal(ctxt_, status));
            return;
        }
        indent();
        out_.put(name);
        out_.format(": %" PRIu32 " octet%s ", open.numocts, open.numocts == 1 ? "" : "s");
        for (uint32_t i = 0; i < open.numocts; ++i)
        {
            out_.format("%02X", unsigned{open.data[i]});
        }
        out_.put('\n');
    }

    // Says how many elements there are and returns how many to print.
    uint32_t count(const Type& type, uint32_t number)
    {
        out_.format(": %" PRIu32 " element%s", number, number == 1 ? "" : "s");
        const auto lower = static_cast<uint32_t>(type.lower);
        const auto upper = static_cast<uint32_t>(type.upper);
        if (number < lower || number > upper)
        {
            out_.format(", not %" PRIu32 "..%" PRIu32, lower, upper);
        }
        if (number > upper)
        {
            out_.format("; the first %" PRIu32 ":", upper);
        }
        out_.put('\n');
        return number < upper ? number : upper;
    }

    void array(const Type& type, const void* value)
    {
        uint32_t number = static_cast<uint32_t>(type.upper);
        if (type.lower != type.upper)
        {
            number = static_cast<uint32_t>(loadInteger(value, type.width, false));
        }
        number = count(type, number);
        const OSOCTET* const elements = static_cast<const OSOCTET*>(value) + type.members->offset;
        for (uint32_t i = 0; i < number; ++i)
        {
            element(Index(i).text, type.element(), elements + size_t{i} * type.element().size);
        }
    }

    void list(const Type& type, const OSRTDList& value)
    {
        const auto print = [&](const char* name, const void* data)
        {
            pointed(name, type.element(), data);
        };
        const uint32_t number = count(type, value.count);
        nodes(value, number, print);
    }

    void unknownAdditions(const OSRTDList& value)
    {
        indent();
        out_.format("extElem1: %" PRIu32 " unknown addition%s\n", value.count, value.count == 1 ? "" : "s");
        const auto print = [&](const char* name, const void* data)
        {
            if (const char* const reason = refuse(data, sizeof(ASN1OpenType)))
            {
                note(name, reason);
            }
            else
            {
                openType(name, *static_cast<const ASN1OpenType*>(data));
            }
        };
        ++depth_;
        nodes(value, value.count, print);
        --depth_;
    }

    // Calls `print` for the first `number` nodes, as far as they can be followed.
    template <typename Print>
    void nodes(const OSRTDList& value, uint32_t number, const Print& print)
    {
        const auto each = [&](uint32_t index, const void* data)
        {
            print(Index(index).text, data);
        };
        uint32_t reached = 0;
        switch (forNodes(ctxt_, value, number, reached, each))
        {
        case ListEnd::Asked:
            break;
        case ListEnd::Early:
            listEnds(value.count, reached);
            break;
        case ListEnd::Foreign:
            note(Index(reached).text, refusal(ctxt_, RTX_E_FOREIGN));
            break;
        case ListEnd::Loop:
            note(Index(reached).text, "the list goes back to an earlier element");
            break;
        case ListEnd::GoesOn:
            indent();
            out_.put("the list goes on behind its last element\n");
            break;
        }
    }

    void listEnds(uint32_t count, uint32_t after)
    {
        indent();
        out_.format("the list counts %" PRIu32 " element%s and ends after %" PRIu32 "\n", count, count == 1 ? "" : "s",
                    after);
    }

    struct Index
    {
        explicit Index(uint32_t index)
        {
            (void)std::snprintf(text, sizeof text, "[%" PRIu32 "]", index);
        }
        char text[16];
    };

    const OSCTXT* ctxt_;
    Output out_;
    unsigned depth_ = 0;
};

void toConsole(void*, const char* text)
{
    VOS_Printf("%s", text);
}

} // namespace

void print(const OSCTXT* ctxt, const Type& type, const char* title, const void* value, RtxPrintSink sink, void* arg)
{
    Output out(sink, arg);
    if (title == nullptr)
    {
        title = type.name;
    }
    if (value == nullptr)
    {
        out.put(title);
        out.put(": a null pointer\n");
        return;
    }
    // The tree's root is the caller's and need not lie in the heap.
    Printer(ctxt, sink, arg).element(title, type, value);
}

void print(const Type& type, const char* title, const void* value)
{
    print(printContext(), type, title, value, toConsole, nullptr);
}

} // namespace rtx
