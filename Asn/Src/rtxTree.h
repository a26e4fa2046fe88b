// What every walker over an element tree needs: loads, pointers that are followed only into the context's heap, lists
// that may be anything, text for a sink. Nothing in a tree is taken for granted.
#ifndef RTXTREE_H
#define RTXTREE_H

#include "byteOrder.h"
#include "rtxHeap.h"
#include "rtxType.h"

#include <algorithm>
#include <cinttypes>
#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace rtx
{

inline bool hasFlag(const void* structure, int flag)
{
    return (static_cast<const OSOCTET*>(structure)[flag / 8] >> flagShift(flag) & 1) != 0;
}

inline bool isPresent(const Member& member, const void* structure)
{
    return member.flag < 0 || hasFlag(structure, member.flag);
}

// Whether an extension addition is sent: a group when its flag and a member's are set, a lone member when its own is.
inline bool isSent(const Type& type, const Addition& addition, const void* structure)
{
    if (addition.flag >= 0 && !hasFlag(structure, addition.flag))
    {
        return false;
    }
    const Member* const members = type.members + addition.first;
    return std::any_of(members, members + addition.count,
                       [=](const Member& member) { return isPresent(member, structure); });
}

template <typename T>
T load(const void* from, size_t offset = 0)
{
    T value;
    std::memcpy(&value, static_cast<const OSOCTET*>(from) + offset, sizeof value);
    return value;
}

inline int64_t loadInteger(const void* from, unsigned width, bool isSigned)
{
    switch (width)
    {
    case 1:
        return isSigned ? int64_t{load<OSINT8>(from)} : load<OSUINT8>(from);
    case 2:
        return isSigned ? int64_t{load<OSINT16>(from)} : load<OSUINT16>(from);
    default:
        return isSigned ? int64_t{load<OSINT32>(from)} : load<OSUINT32>(from);
    }
}

// An integer or an enumeration.
inline int64_t loadNumber(const Type& type, const void* from)
{
    return type.kind == Kind::Enumerated ? load<OSUINT32>(from) : loadInteger(from, type.width, type.lower < 0);
}

// How many bits of it there are, whatever it says.
inline uint32_t bitCount(const ASN1BitStr32& value)
{
    constexpr uint32_t most = 8 * sizeof value.data;
    return std::min(value.numbits, most);
}

// What is wrong with the value of an integer or an enumeration.
inline Reason outside(const Type& type, int64_t value)
{
    const bool in = value >= type.lower && value <= type.upper;
    return in ? Reason{} : Reason{RTX_E_RANGE, value, type.lower, type.upper};
}

// What is wrong with the number of a list's or an array's elements.
inline Reason wrongSize(const Type& type, uint32_t number)
{
    const bool right = number >= static_cast<uint32_t>(type.lower) && number <= static_cast<uint32_t>(type.upper);
    return right ? Reason{} : Reason{RTX_E_SIZE, number, type.lower, type.upper};
}

inline Reason wrongLength(const Type& type, uint32_t bits)
{
    const bool right = bits == static_cast<uint32_t>(type.upper);
    return right ? Reason{} : Reason{RTX_E_BITS, bits, type.upper, type.upper};
}

// What is wrong with a choice's tag, where it is not that of an alternative that this release knows.
inline Reason wrongTag(const Type& type, uint32_t tag)
{
    const bool known = tag >= 1 && tag <= type.memberCount;
    return known ? Reason{} : Reason{RTX_E_CHOICE, tag, 1, type.memberCount};
}

// Whether a null pointer to such an element stands for the empty one: a sequence all of whose members may be absent.
inline bool mayBeEmpty(const Type& type)
{
    return type.kind == Kind::Sequence &&
           std::all_of(type.members, type.members + type.rootCount, [](const Member& m) { return m.flag >= 0; });
}

// The number of an array's elements.
inline uint32_t countOf(const Type& type, const void* array)
{
    return static_cast<uint32_t>(type.lower == type.upper ? type.upper : loadInteger(array, type.width, false));
}

inline uint32_t elementCount(const Type& type, const void* list)
{
    return type.kind == Kind::Array ? countOf(type, list) : load<OSRTDList>(list).count;
}

inline const void* at(const void* structure, const Member& member)
{
    return static_cast<const OSOCTET*>(structure) + member.offset;
}

// What an element of a list or an array is matched by.
inline int64_t identityOf(const Type& type, const void* element, uint32_t index)
{
    if (type.identity == noIdentity)
    {
        return index;
    }
    if (type.identity == ownIdentity)
    {
        return loadNumber(type.element(), element);
    }
    const Member& member = type.element().members[type.identity];
    return loadNumber(*member.type, at(element, member));
}

// The ASN.1 name of that, null where it is the index.
inline const char* identityName(const Type& type)
{
    return type.identity == noIdentity    ? nullptr
           : type.identity == ownIdentity ? type.element().name
                                          : type.element().names[type.identity];
}

inline bool sameBits(const void* a, const void* b, uint32_t count)
{
    const auto* const x = static_cast<const OSOCTET*>(a);
    const auto* const y = static_cast<const OSOCTET*>(b);
    const uint32_t whole = count / 8;
    return std::memcmp(x, y, whole) == 0 &&
           (count % 8 == 0 || ((x[whole] ^ y[whole]) & 0xFF00U >> count % 8 & 0xFF) == 0);
}

inline bool sameBits(const ASN1BitStr32& a, const ASN1BitStr32& b)
{
    return a.numbits == b.numbits && sameBits(a.data, b.data, bitCount(a));
}

// Whether two values of a type without members or elements are sent alike.
inline bool sameValue(const Type& type, const void* a, const void* b)
{
    switch (type.kind)
    {
    case Kind::Boolean:
        return (load<OSBOOL>(a) != 0) == (load<OSBOOL>(b) != 0);
    case Kind::Integer:
    case Kind::Enumerated:
        return loadNumber(type, a) == loadNumber(type, b);
    case Kind::BitStr32:
        return sameBits(load<ASN1BitStr32>(a), load<ASN1BitStr32>(b));
    case Kind::BitOctets:
        return sameBits(a, b, static_cast<uint32_t>(type.upper));
    default:
        return true; // NULL
    }
}

// Why a pointer to `size` octets is not followed: RTX_E_NULL, RTX_E_FOREIGN; RTX_OK when it is. Without a context none
// is.
inline RtxStatus refuse(const OSCTXT* ctxt, const void* p, size_t size, size_t alignment)
{
    if (p == nullptr)
    {
        return RTX_E_NULL;
    }
    const bool aligned = reinterpret_cast<uintptr_t>(p) % alignment == 0;
    return ctxt != nullptr && aligned && owns(*ctxt, p, size) ? RTX_OK : RTX_E_FOREIGN;
}

template <typename T>
RtxStatus refuse(const OSCTXT* ctxt, const T* p)
{
    return refuse(ctxt, p, sizeof(T), alignof(T));
}

inline RtxStatus refuse(const OSCTXT* ctxt, const void* p, const Type& type)
{
    return refuse(ctxt, p, type.size, type.align);
}

// The same for the octets of an open type, which need no alignment. RTX_E_NULL where it is absent.
inline RtxStatus refuse(const OSCTXT* ctxt, const ASN1OpenType& open)
{
    if (open.data == nullptr)
    {
        return RTX_E_NULL;
    }
    return ctxt != nullptr && owns(*ctxt, open.data, open.numocts) ? RTX_OK : RTX_E_FOREIGN;
}

// What is wrong with the place of an unknown addition behind `all` additions, known ones and those of the list before
// it; `all` then counts it, too.
inline Reason wrongPlace(const Type& type, const ASN1OpenType& open, uint64_t& all)
{
    constexpr uint64_t most = 0x3FFF; // X.691 11.9.3.4: a length below 16K for all additions
    const uint64_t before = all;
    all = uint64_t{type.additionCount} + open.index + 1;
    return all <= before ? Reason{RTX_E_EXTENSION}
           : all > most  ? Reason{RTX_E_SIZE, static_cast<int64_t>(all), 0, static_cast<int64_t>(most)}
                         : Reason{};
}

// How the walk over a list ended.
enum class ListEnd : uint8_t
{
    Asked,   // after as many nodes as were asked for
    Early,   // the nodes end before
    Foreign, // the next node is not followed
    Loop,    // the next node was seen before
    GoesOn   // after all that the list counts, and there are more
};

// Calls `each(index, data)` for the first `number` nodes, as far as they can be followed. `reached` is the number of
// calls.
template <typename Each>
ListEnd forNodes(const OSCTXT* ctxt, const OSRTDList& list, uint32_t number, uint32_t& reached, const Each& each)
{
    const OSRTDListNode* node = list.head;
    const OSRTDListNode* mark = nullptr; // an earlier node: the list is a loop when it comes again
    for (reached = 0; reached < number; ++reached)
    {
        if (node == nullptr)
        {
            return ListEnd::Early;
        }
        if (node == mark)
        {
            return ListEnd::Loop;
        }
        if (refuse(ctxt, node) != RTX_OK)
        {
            return ListEnd::Foreign;
        }
        if ((reached & (reached - 1)) == 0) // moves on at each power of 2, so that it gets into any loop
        {
            mark = node;
        }
        each(reached, node->data);
        node = node->next;
    }
    return node != nullptr && number == list.count ? ListEnd::GoesOn : ListEnd::Asked;
}

// A reason as text.
struct ReasonText
{
    explicit ReasonText(const Reason& reason)
    {
        (void)formatReason(reason, text, sizeof text);
    }

    char text[160];
};

// A context's error as text.
struct ErrorText
{
    explicit ErrorText(const OSCTXT& ctxt)
    {
        if (rtxErrFormat(&ctxt, text, sizeof text) >= sizeof text)
        {
            std::memcpy(text + sizeof text - 4, "...", 4);
        }
    }

    char text[4096];
};

// Follows a walk in the order of the wire and tells what a decoder that gave up had read before: it stopped at the path
// of its context's error. Nothing is left out without such an error, and none of another type's tree.
class Reading
{
public:
    explicit Reading(const OSCTXT* ctxt)
    {
        if (ctxt != nullptr && ctxt->error.status != RTX_OK && ctxt->error.hasOffset != 0 &&
            ctxt->error.depth <= RTX_MAX_DEPTH)
        {
            path_ = ctxt->error.path;
            length_ = ctxt->error.depth;
            // What is wrong behind a value, not with it.
            behind_ = ctxt->error.status == RTX_E_PADDING || ctxt->error.status == RTX_E_SURPLUS;
        }
    }

    void enter(const RtxPathStep& step)
    {
        if (isNext(step))
        {
            ++matched_;
            stopped_ = matched_ == length_ && !behind_;
        }
        ++depth_;
    }

    void leave()
    {
        stopped_ = stopped_ || matched_ == depth_;
        --depth_;
    }

    // Whether nothing from here on was read.
    bool stopped() const
    {
        return stopped_;
    }

    // Whether it stops in this place, perhaps behind all that is known of it.
    bool stopsHere() const
    {
        return stopped_ || (matched_ == depth_ && matched_ < length_);
    }

    // Whether nothing from this step on was read.
    bool stopsAt(const RtxPathStep& step) const
    {
        return stopped_ || (!behind_ && matched_ + 1 == length_ && isNext(step));
    }

    // Whether it stops at this step or below it.
    bool isNext(const RtxPathStep& step) const
    {
        return !stopped_ && matched_ == depth_ && matched_ < length_ && same(next(), step);
    }

    // The name of the alternative at or below which it stops in this choice, else null.
    const char* nextName() const
    {
        return !stopped_ && stopsHere() ? next().name : nullptr;
    }

private:
    static bool same(const RtxPathStep& a, const RtxPathStep& b)
    {
        return a.name != nullptr && b.name != nullptr ? std::strcmp(a.name, b.name) == 0
                                                      : a.name == b.name && a.index == b.index && a.group == b.group;
    }

    const RtxPathStep& next() const
    {
        return path_[length_ - 1 - matched_];
    }

    const RtxPathStep* path_ = nullptr; // innermost step first
    uint32_t length_ = 0;
    uint32_t matched_ = 0; // steps of the path that the walk has taken
    uint32_t depth_ = 0;   // steps that lead to where the walk is
    bool behind_ = false;
    bool stopped_ = false;
};

// Collects pieces of text for a sink: a line, or what fits.
class Output
{
public:
    Output(RtxPrintSink sink, void* arg) : sink_(sink), arg_(arg) {}

    void put(const char* text)
    {
        for (; *text != '\0'; ++text)
        {
            put(*text);
        }
    }

    void put(char c)
    {
        text_[length_++] = c;
        if (c == '\n' || length_ == sizeof text_ - 1)
        {
            text_[length_] = '\0';
            length_ = 0;
            sink_(arg_, text_);
        }
    }

    // For numbers and fixed words only: what is longer than `piece` would be cut.
    __attribute__((format(printf, 2, 3))) void format(const char* format, ...)
    {
        char piece[160];
        va_list args;
        va_start(args, format);
        (void)std::vsnprintf(piece, sizeof piece, format, args);
        va_end(args);
        put(piece);
    }

    // A member's name, or the index of an element in brackets.
    void put(const RtxPathStep& step)
    {
        if (step.name != nullptr)
        {
            put(step.name);
        }
        else
        {
            format("[%" PRIu32 "]", step.index);
        }
    }

    void binary(const OSOCTET* data, uint32_t count)
    {
        for (uint32_t i = 0; i < count; ++i)
        {
            put((data[i / 8] >> (7 - i % 8) & 1) != 0 ? '1' : '0');
        }
    }

    // The first `count` bits as hexadecimal digits; what lies behind them counts as zero bits.
    void hex(const OSOCTET* data, uint64_t count, uint64_t digits)
    {
        for (uint64_t i = 0; i < digits; ++i)
        {
            unsigned digit = data[i / 2] >> (i % 2 == 0 ? 4 : 0) & 0xFU;
            if (4 * i + 4 > count)
            {
                digit &= 4 * i < count ? 0xFU << (4 * i + 4 - count) : 0;
            }
            put("0123456789ABCDEF"[digit]);
        }
    }

    // Whole octets, two digits each.
    void octets(const OSOCTET* data, uint64_t bits)
    {
        hex(data, bits, (bits + 7) / 8 * 2);
    }

    void octets(const ASN1OpenType& open)
    {
        octets(open.data, uint64_t{8} * open.numocts);
    }

private:
    RtxPrintSink sink_;
    void* arg_;
    char text_[512];
    size_t length_ = 0;
};

// What a writer of lines puts behind a value.
class Remarks
{
public:
    Remarks(RtxRemark remark, void* arg) : remark_(remark), arg_(arg) {}

    // The value whose line comes.
    void at(const Type& type, const void* value)
    {
        type_ = &type;
        value_ = value;
    }

    void endLine(Output& out)
    {
        const char* const text = remark_ == nullptr || type_ == nullptr ? nullptr : remark_(arg_, type_, value_);
        if (text != nullptr && *text != '\0')
        {
            out.put("  # ");
            out.put(text);
        }
        out.put('\n');
        type_ = nullptr;
    }

private:
    RtxRemark remark_;
    void* arg_;
    const Type* type_ = nullptr;
    const void* value_ = nullptr;
};

} // namespace rtx

#endif
