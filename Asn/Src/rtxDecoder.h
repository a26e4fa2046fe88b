// The decoder of unaligned PER (X.691): one walker over the type descriptors, with or without an observer.
#ifndef RTXDECODER_H
#define RTXDECODER_H

#include "byteOrder.h"
#include "rtxBits.h"
#include "rtxHeap.h"
#include "rtxType.h"

#include <cstring>

namespace rtx
{

// Octets to read up to bit `end`; positions in it are bits from the first octet on.
struct Input
{
    const OSOCTET* data;
    uint32_t end;
    int64_t last; // the last position from which 64 bits can be loaded, negative where there is none

    Input(const OSOCTET* octets, uint32_t endBit) : data(octets), end(endBit), last(int64_t{endBit} - 64) {}
};

[[gnu::always_inline]] inline uint64_t load(const OSOCTET* data, uint64_t at)
{
    uint64_t word;
    std::memcpy(&word, data + at / 8, sizeof word);
    return highFirst(word) << at % 8;
}

[[gnu::noinline]] inline uint64_t lastWindow(const Input& in, uint64_t at)
{
    uint64_t word = 0;
    unsigned shift = 64;
    for (uint64_t i = at / 8; i * 8 < in.end && shift != 0; ++i)
    {
        shift -= 8;
        word |= uint64_t{in.data[i]} << shift;
    }
    return word << at % 8;
}

// The bits from a position on, the first 57 of them as they are in the input; what lies behind its end is not to be
// used.
inline uint64_t window(const Input& in, uint64_t at)
{
    return static_cast<int64_t>(at) <= in.last ? load(in.data, at) : lastWindow(in, at);
}

// The first `count` bits of a window, 0..57.
inline uint64_t top(uint64_t window, unsigned count)
{
    return window >> 1 >> (63 - count);
}

// An open type field as it lies in the input.
struct OpenField
{
    uint32_t start;   // of its first length determinant
    uint32_t content; // of its first octet
    uint32_t octets;
    bool fragmented;
};

// An unknown extension addition in a list; its octets follow in the same block.
struct UnknownAddition
{
    OSRTDListNode node;
    ASN1OpenType open;
};

// Sees nothing and costs nothing. An active observer is told of every field in the order of the wire and of the way
// down to it: see Tracer in rtxTrace.cpp.
struct NoObserver
{
    static constexpr bool active = false;
    static constexpr bool skims = false;
};

// Only whether there is a message: nothing is stored, nothing is said of an error, and no memory is used.
struct Skimmer
{
    static constexpr bool active = false;
    static constexpr bool skims = true;
};

template <typename Observer>
class Decoder
{
public:
    // A position behind what was read, or `failed`.
    using Position = uint64_t;
    static constexpr Position failed = UINT64_MAX;

    Decoder(OSCTXT& ctxt, unsigned flags, Observer& observer)
        : ctxt_(ctxt), strict_((flags & RTX_DECODE_STRICT) != 0), observer_(observer)
    {
    }

    // 11.1: the encoding of a value, padded with zero bits to whole octets, at least one. Other octets may follow.
    Position complete(const Input& in, const Type& type, OSOCTET* to, Position at)
    {
        const Member whole = member(type, 0);
        const Position behind = value(in, whole, to, at);
        return behind == failed ? failed : pad(in, at, behind);
    }

    Position surplus(const Input& in, Position at)
    {
        return fail(at, RTX_E_SURPLUS, static_cast<int64_t>((in.end - at) / 8));
    }

private:
    static constexpr bool skims = Observer::skims;

    [[gnu::cold, gnu::noinline]] Position fail(Position at, RtxStatus status, int64_t value = 0, int64_t lower = 0,
                                               int64_t upper = 0)
    {
        if constexpr (!skims)
        {
            setError(ctxt_, status, value, lower, upper);
            ctxt_.error.hasOffset = 1;
            ctxt_.error.bitOffset = at;
        }
        return failed;
    }

    [[gnu::cold, gnu::noinline]] Position inMember(const Type& type, const Member& member)
    {
        if constexpr (!skims)
        {
            pushName(ctxt_, type.names[&member - type.members]);
        }
        return failed;
    }

    [[gnu::cold, gnu::noinline]] Position inElement(uint32_t index)
    {
        if constexpr (!skims)
        {
            pushIndex(ctxt_, index);
        }
        return failed;
    }

    [[gnu::cold, gnu::noinline]] Position heapExhausted(Position at, size_t size)
    {
        return fail(at, RTX_E_HEAP, static_cast<int64_t>(size));
    }

    // Cleared octets of the context's heap; null when it is exhausted.
    OSOCTET* allocate(size_t size)
    {
        if constexpr (skims)
        {
            static constexpr OSOCTET unused = 0; // is never written
            return const_cast<OSOCTET*>(&unused);
        }
        return static_cast<OSOCTET*>(rtx::allocate(ctxt_, size));
    }

    [[gnu::cold, gnu::noinline]] Position ends(Position at, uint64_t count)
    {
        return fail(at, RTX_E_END, static_cast<int64_t>(count));
    }

    // The window at a position from which `count` bits, at most 57, are to be read; false when the input ends before.
    [[gnu::always_inline]] static bool look(const Input& in, Position at, unsigned count, uint64_t& window)
    {
        if (static_cast<int64_t>(at) <= in.last) [[likely]]
        {
            window = load(in.data, at);
            return true;
        }
        window = lastWindow(in, at);
        return at + count <= in.end;
    }

    // Moves `at` behind `count` bits, 0..57, and gives them in `bits`. False when the input ends before.
    static bool take(const Input& in, Position& at, unsigned count, uint64_t& bits)
    {
        if (!look(in, at, count, bits))
        {
            return false;
        }
        bits = top(bits, count);
        at += count;
        return true;
    }

    Position read(const Input& in, Position at, unsigned count, uint64_t& bits)
    {
        return take(in, at, count, bits) ? at : ends(at, count);
    }

    // Copies octets that are known to be there.
    static void copyOctets(const Input& in, Position at, OSOCTET* to, uint32_t count)
    {
        for (count = skims ? 0 : count; count != 0; --count, at += 8)
        {
            *to++ = static_cast<OSOCTET>(top(window(in, at), 8));
        }
    }

    // The zero bits up to a whole octet.
    Position pad(const Input& in, Position first, Position at)
    {
        const uint64_t used = at - first;
        const auto padding = static_cast<unsigned>(used == 0 ? 8 : (8 - used % 8) % 8);
        uint64_t bits = 0;
        const Position behind = read(in, at, padding, bits);
        if (behind == failed)
        {
            return failed;
        }
        if (bits != 0)
        {
            return fail(behind - bitsFor(static_cast<uint32_t>(bits)), RTX_E_PADDING);
        }
        if (padding != 0)
        {
            saw(RTX_FIELD_PADDING, at, padding, bits);
        }
        return behind;
    }

    // The end of an open type's content. Some senders leave zero octets behind it.
    Position finish(const Input& in, Position first, Position at)
    {
        at = pad(in, first, at);
        if (at == failed || at == in.end)
        {
            return at;
        }
        for (Position octet = at; octet < in.end; octet += 8)
        {
            if (strict_ || top(window(in, octet), 8) != 0)
            {
                return surplus(in, at);
            }
        }
        note(RTX_NOTE_SURPLUS, at);
        saw(RTX_FIELD_PADDING, at, in.end - at);
        return in.end;
    }

    // The message is taken, but this encoder would have written other octets from here on.
    [[gnu::cold, gnu::noinline]] void note(RtxNote note, Position at)
    {
        if (!skims && ctxt_.decoded.note == RTX_NOTE_NONE)
        {
            ctxt_.decoded.note = static_cast<OSUINT8>(note);
            ctxt_.decoded.noteOffset = at;
        }
        if constexpr (Observer::active)
        {
            observer_.note(note);
        }
    }

    // Tells the observer of a field.
    void saw(RtxFieldKind kind, Position at, uint64_t width, uint64_t bits = 0, const Type* type = nullptr,
             const void* value = nullptr, uint32_t group = 0)
    {
        if constexpr (Observer::active)
        {
            observer_.field(kind, at, width, bits, type, value, group);
        }
    }

    // Tell the observer of a step down, and up again once it is done.
    void enter(const RtxPathStep& step)
    {
        if constexpr (Observer::active)
        {
            observer_.enter(step);
        }
    }
    void leave()
    {
        if constexpr (Observer::active)
        {
            observer_.leave();
        }
    }

    static constexpr uint32_t fragmentUnit = 16 * 1024; // octets

    // 11.9.3.5 to 11.9.3.8: a length without upper bound, or that of a fragment with more to follow.
    Position length(const Input& in, Position start, uint32_t& count, bool& more)
    {
        uint64_t first = 0;
        Position at = read(in, start, 8, first);
        if (at == failed)
        {
            return failed;
        }
        more = false;
        count = static_cast<uint32_t>(first);
        if (first < 0x80)
        {
            return at;
        }
        if (first < 0xC0)
        {
            uint64_t second = 0;
            at = read(in, at, 8, second);
            if (at == failed)
            {
                return failed;
            }
            count = static_cast<uint32_t>((first & 0x3F) << 8 | second);
            return count > 127 ? at : fail(start, RTX_E_LENGTH, static_cast<int64_t>(first));
        }
        more = true;
        count = (first & 0x3F) * fragmentUnit;
        return first >= 0xC1 && first <= 0xC4 ? at : fail(start, RTX_E_LENGTH, static_cast<int64_t>(first));
    }

    // 11.9.3.4: a normally small length.
    Position smallLength(const Input& in, Position at, uint32_t& count)
    {
        uint64_t large = 0;
        at = read(in, at, 1, large);
        if (at == failed)
        {
            return failed;
        }
        if (large == 0)
        {
            uint64_t small = 0;
            at = read(in, at, 6, small);
            count = static_cast<uint32_t>(small) + 1;
            return at;
        }
        bool more = false;
        const Position behind = length(in, at, count, more);
        // A bitmap of 16K bits and more would be fragmented; no type has as many additions.
        if (behind == failed || (count > 64 && !more))
        {
            return behind;
        }
        return fail(at, RTX_E_LENGTH, static_cast<int64_t>(top(window(in, at), 8)));
    }

    // 11.6: a normally small non-negative whole number.
    Position smallNumber(const Input& in, Position at, uint64_t& number)
    {
        uint64_t large = 0;
        at = read(in, at, 1, large);
        if (at == failed || large == 0)
        {
            return at == failed ? failed : read(in, at, 6, number);
        }
        const Position start = at; // 11.7, in the fewest octets
        uint64_t octets = 0;
        at = read(in, at, 8, octets);
        if (at == failed)
        {
            return failed;
        }
        if (octets == 0 || octets > 3)
        {
            return fail(start, RTX_E_LENGTH, static_cast<int64_t>(octets));
        }
        const auto count = static_cast<unsigned>(octets);
        at = read(in, at, 8 * count, number);
        if (at == failed)
        {
            return failed;
        }
        const bool fewest = number >> (8 * (count - 1)) != 0 && number > 63;
        return fewest ? at : fail(start, RTX_E_LENGTH, static_cast<int64_t>(octets));
    }

    // 11.2: passes over an open type field.
    Position passOpenField(const Input& in, Position at, OpenField& field)
    {
        field = {static_cast<uint32_t>(at), 0, 0, false};
        uint32_t count = 4 * fragmentUnit;
        bool more = false;
        do
        {
            const Position start = at;
            const uint32_t before = count;
            at = length(in, at, count, more);
            if (at == failed)
            {
                return failed;
            }
            // A fragment is as large as it can be: only one of 64K has another one behind it.
            if (more && before < 4 * fragmentUnit)
            {
                return fail(start, RTX_E_LENGTH, 0xC0 + count / fragmentUnit);
            }
            if (count > (in.end - at) / 8)
            {
                return ends(at, uint64_t{count} * 8);
            }
            if (start == field.start)
            {
                field.content = static_cast<uint32_t>(at);
                saw(RTX_FIELD_LENGTH, start, at - start, top(window(in, start), static_cast<unsigned>(at - start)));
            }
            at += uint64_t{count} * 8;
            field.octets += count;
            field.fragmented = field.fragmented || more;
        } while (more);
        return field.octets != 0 ? at : fail(field.start, RTX_E_LENGTH, 0);
    }

    // The octets of a field that was passed over.
    void copyOpenField(const Input& in, const OpenField& field, OSOCTET* to)
    {
        Position at = field.start;
        uint32_t count = 0;
        bool more = true;
        while (more)
        {
            at = length(in, at, count, more);
            copyOctets(in, at, to, count);
            at += uint64_t{count} * 8;
            to += count;
        }
    }

    // Where bit `offset` of a field's assembled octets lies in the input.
    Position offsetInInput(const Input& in, const OpenField& field, uint64_t offset)
    {
        uint32_t count = 0;
        bool more = false;
        Position at = length(in, field.start, count, more);
        while (more && offset >= uint64_t{count} * 8)
        {
            offset -= uint64_t{count} * 8;
            at = length(in, at + uint64_t{count} * 8, count, more);
        }
        return at + offset;
    }

    // 11.2: decodes an open type field whose content `decodeContent(input, position)` reads.
    template <typename Content>
    Position openType(const Input& in, Position at, const Content& decodeContent)
    {
        OpenField field;
        const Position behind = passOpenField(in, at, field);
        if (behind == failed)
        {
            return failed;
        }
        if (!field.fragmented)
        {
            const Input content(in.data, field.content + field.octets * 8);
            const Position read = decodeContent(content, field.content);
            return read == failed || finish(content, field.content, read) == failed ? failed : behind;
        }
        if constexpr (skims)
        {
            return failed; // it would have to be put together
        }
        // Where a position in the assembled octets lies in the input.
        const auto inInput = [&](uint64_t offset)
        {
            return offsetInInput(in, field, offset);
        };
        OSOCTET* const octets = allocate(field.octets);
        if (octets == nullptr)
        {
            return heapExhausted(behind, field.octets);
        }
        copyOpenField(in, field, octets);
        const Input content(octets, field.octets * 8);
        const bool noted = ctxt_.decoded.note != RTX_NOTE_NONE;
        if constexpr (Observer::active)
        {
            observer_.enterFragments(inInput);
        }
        const Position read = decodeContent(content, 0);
        const bool done = read != failed && finish(content, 0, read) != failed;
        if constexpr (Observer::active)
        {
            observer_.leaveFragments();
        }
        if (!noted && ctxt_.decoded.note != RTX_NOTE_NONE)
        {
            ctxt_.decoded.noteOffset = inInput(ctxt_.decoded.noteOffset);
        }
        if (!done)
        {
            ctxt_.error.bitOffset = inInput(ctxt_.error.bitOffset);
        }
        return done ? behind : failed;
    }

    static void storePointer(OSOCTET* to, void* p)
    {
        if constexpr (!skims)
        {
            std::memcpy(to, &p, sizeof p);
        }
    }

    template <typename T>
    static void store(OSOCTET* to, uint64_t value)
    {
        if constexpr (!skims)
        {
            const auto stored = static_cast<T>(value);
            std::memcpy(to, &stored, sizeof stored);
        }
    }

    // 11.5: a whole number of a range, in as few bits as hold it.
    template <typename T>
    [[gnu::always_inline]] Position number(const Input& in, const Member& m, OSOCTET* to, Position at)
    {
        uint64_t window;
        if (!look(in, at, m.bits, window)) [[unlikely]]
        {
            return ends(at, m.bits);
        }
        const uint64_t offset = window >> (64U - m.bits);
        if (offset > m.range) [[unlikely]]
        {
            return fail(at, RTX_E_RANGE, int64_t{m.lower} + static_cast<int64_t>(offset), m.lower,
                        int64_t{m.lower} + m.range);
        }
        store<T>(to, static_cast<uint32_t>(m.lower) + static_cast<uint32_t>(offset));
        saw(RTX_FIELD_VALUE, at, m.bits, offset, m.type, to);
        return at + m.bits;
    }

    [[gnu::always_inline]] Position value(const Input& in, const Member& m, OSOCTET* to, Position at)
    {
        switch (m.step)
        {
        case Step::Value1:
            return number<OSUINT8>(in, m, to, at);
        case Step::Value4:
            return number<OSUINT32>(in, m, to, at);
        case Step::Value2:
            return number<OSUINT16>(in, m, to, at);
        case Step::Sequence:
            return sequence(in, *m.type, to, at);
        case Step::Choice:
            return choice(in, *m.type, to, at);
        default:
            return other(in, m, to, at);
        }
    }

    [[gnu::noinline]] Position other(const Input& in, const Member& m, OSOCTET* to, Position at)
    {
        switch (m.step)
        {
        case Step::Choice: // of an alternative
            return choice(in, *m.type, to, at);
        case Step::Array:
            return array(in, *m.type, to, at);
        case Step::List:
            return list(in, *m.type, to, at);
        case Step::BitStr32:
            store<OSUINT32>(to, static_cast<uint32_t>(m.type->upper));
            return bitString(in, *m.type, to + offsetof(ASN1BitStr32, data), to, at);
        case Step::BitOctets:
            return bitString(in, *m.type, to, to, at);
        case Step::Pointer:
            return pointed(in, m, to, at);
        case Step::Only:
            storeOnly(*m.type, to);
            [[fallthrough]];
        default: // 18: no bits
            saw(RTX_FIELD_VALUE, at, 0, 0, m.type, to);
            return at;
        }
    }

    static void storeOnly(const Type& type, OSOCTET* to)
    {
        storeCount(type.width, to, static_cast<uint32_t>(type.lower));
        if (type.width == 4)
        {
            store<OSUINT32>(to, static_cast<uint32_t>(type.lower));
        }
    }

    // Nothing for a width of 0.
    static void storeCount(unsigned width, OSOCTET* to, uint32_t value)
    {
        if (width == 1)
        {
            store<OSUINT8>(to, value);
        }
        else if (width == 2)
        {
            store<OSUINT16>(to, value);
        }
    }

    // 16.9, 16.10: of fixed length
    [[gnu::noinline]] Position bitString(const Input& in, const Type& type, OSOCTET* to, const OSOCTET* value,
                                         Position at)
    {
        const auto count = static_cast<uint32_t>(type.upper);
        if (count > in.end - at)
        {
            return ends(at, count);
        }
        copyOctets(in, at, to, count / 8);
        if (!skims && count % 8 != 0)
        {
            to[count / 8] = static_cast<OSOCTET>(top(window(in, at + count / 8 * 8), count % 8) << (8 - count % 8));
        }
        saw(RTX_FIELD_VALUE, at, count, top(window(in, at), count < 57 ? count : 57), &type, value);
        return at + count;
    }

    // Each constructed value is one level of the tree, and what it holds one more.
    bool isTooDeep() const
    {
        return depth_ + 1 >= RTX_MAX_DEPTH;
    }

    // 19
    [[gnu::noinline]] Position sequence(const Input& in, const Type& type, OSOCTET* to, Position at)
    {
        if (isTooDeep()) [[unlikely]]
        {
            return fail(at, RTX_E_DEPTH);
        }
        const unsigned extension = type.extensible ? 1 : 0;
        uint64_t bits;
        if (!look(in, at, extension + type.bits, bits)) [[unlikely]]
        {
            return ends(in.end, 1);
        }
        if (extension != 0)
        {
            saw(RTX_FIELD_EXTENSION, at, 1, bits >> 63, &type, to);
        }
        if (type.bits != 0)
        {
            saw(RTX_FIELD_PRESENCE, at + extension, type.bits, top(bits << extension, type.bits), &type, to);
        }
        at += extension + type.bits;
        const uint64_t present = setFlags(to, 0, bits << extension, type.bits);
        ++depth_;
        at = members(in, type, 0, type.rootCount, present, to, at);
        if (extension != 0 && bits >> 63 != 0 && at != failed) [[unlikely]]
        {
            at = additions(in, type, to, at);
            if (!skims && at == failed && ctxt_.error.depth == 0)
            {
                pushGroup(ctxt_, 0); // the bitmap itself: all root members were read
            }
        }
        --depth_;
        return at;
    }

    // 19.2: sets `count` flags of a structure from flag `first` on as the first bits of a window tell, and returns them
    // at their places.
    [[gnu::always_inline]] static uint64_t setFlags(OSOCTET* structure, unsigned first, uint64_t window, unsigned count)
    {
        if constexpr (skims)
        {
            return skimmedFlags(first, window);
        }
        uint64_t flags = 0;
        for (unsigned i = 0; i < count; i += 8, window <<= 8)
        {
            flags |= uint64_t{reversedOctets[static_cast<size_t>(window >> 56)]} << i;
        }
        flags = (flags & ((uint64_t{1} << count) - 1)) << first;
        for (uint64_t left = flags; left != 0; left >>= 32, structure += 4)
        {
            store<OSUINT32>(structure, load32(structure) | flagWord(static_cast<uint32_t>(left)));
        }
        return flags;
    }

    // 32 flags as they lie in memory.
    [[gnu::always_inline]] static uint32_t flagWord(uint32_t flags)
    {
        if constexpr (littleEndian)
        {
            return flags;
        }
        uint32_t word = 0;
        for (unsigned i = 0; i < 32; i += 8)
        {
            word = word << 8 | reversedOctets[flags >> i & 0xFF];
        }
        return word;
    }

    static uint32_t load32(const OSOCTET* from)
    {
        uint32_t word;
        std::memcpy(&word, from, sizeof word);
        return word;
    }

    static void setFlag(OSOCTET* structure, int flag)
    {
        if constexpr (!skims)
        {
            structure[flag / 8] = static_cast<OSOCTET>(structure[flag / 8] | 1U << flagShift(flag));
        }
    }

    // A skimmer keeps presence bits as they come: that of flag 0 behind the mandatory members' one, the first.
    static uint64_t skimmedFlags(unsigned first, uint64_t window)
    {
        return mandatory | window >> 1 >> first;
    }

    // 19.4. Which members are present cannot be foretold of octets that hold no message: no branch depends on it where
    // a number follows.
    Position skimMembers(const Input& in, const Type& type, unsigned first, unsigned count, uint64_t flags, OSOCTET* to,
                         Position at)
    {
        const Member* const end = type.members + first + count;
        for (const Member* m = type.members + first; m != end && at != failed; ++m)
        {
            const bool isPresent = flags << (m->flag + 1) >> 63 != 0;
            if (isNumber(*m))
            {
                const bool isOutside = top(window(in, at), m->bits) > m->range;
                at += isPresent ? m->bits : 0;
                at = (isPresent && isOutside) || at > in.end ? failed : at;
            }
            else if (isPresent)
            {
                at = value(in, *m, to, at);
            }
        }
        return at;
    }

    static bool isNumber(const Member& m)
    {
        return m.step <= Step::Only;
    }

    // 19.4: those present among `count` members; `present` has the flags of the structure at their places.
    [[gnu::always_inline]] Position members(const Input& in, const Type& type, unsigned first, unsigned count,
                                            uint64_t present, OSOCTET* to, Position at)
    {
        if constexpr (skims)
        {
            return skimMembers(in, type, first, count, present, to, at);
        }
        present |= mandatory;
        const Member* const end = type.members + first + count;
        for (const Member* m = type.members + first; m != end; ++m)
        {
            if ((present >> (m->flag & 63) & 1) == 0)
            {
                continue;
            }
            enter(named(type.names[m - type.members]));
            at = value(in, *m, to + m->offset, at);
            leave();
            if (at == failed) [[unlikely]]
            {
                return inMember(type, *m);
            }
        }
        return at;
    }

    // 19.7 to 19.9
    [[gnu::noinline]] Position additions(const Input& in, const Type& type, OSOCTET* to, Position at)
    {
        const Position start = at;
        uint32_t count = 0;
        at = smallLength(in, at, count);
        if (at == failed)
        {
            return failed;
        }
        saw(RTX_FIELD_LENGTH, start, at - start, top(window(in, start), static_cast<unsigned>(at - start)), &type, to);
        if (count > in.end - at)
        {
            return ends(at, count);
        }
        const Position bitmap = at;
        at += count;
        saw(RTX_FIELD_ADDITIONS, bitmap, count, top(window(in, bitmap), count < 57 ? count : 57), &type, to);
        uint32_t announced = count; // bits up to the last one set
        while (announced != 0 && top(window(in, bitmap + announced - 1), 1) == 0)
        {
            --announced;
        }
        if (announced == 0)
        {
            if (strict_)
            {
                return fail(bitmap, RTX_E_EXTENSION);
            }
            note(RTX_NOTE_EMPTY_EXTENSION, bitmap);
        }
        else if (count != (announced > type.additionCount ? announced : type.additionCount))
        {
            note(RTX_NOTE_BITMAP, bitmap);
        }

        for (uint32_t i = 0; i < announced; ++i)
        {
            if (top(window(in, bitmap + i), 1) == 0)
            {
                continue;
            }
            at = i < type.additionCount ? addition(in, type, i, to, at)
                                        : unknownAddition(in, i - type.additionCount, to + type.extElem, at);
            if (at == failed)
            {
                return failed;
            }
        }
        return at;
    }

    Position addition(const Input& in, const Type& type, uint32_t index, OSOCTET* to, Position at)
    {
        const Addition& addition = type.additions[index];
        if (addition.flag < 0)
        {
            const Member& m = type.members[addition.first];
            setFlag(to, m.flag);
            const auto content = [&](const Input& field, Position start)
            {
                return value(field, m, to + m.offset, start);
            };
            enter(named(type.names[addition.first]));
            at = openType(in, at, content);
            leave();
            return at == failed ? inMember(type, m) : at;
        }
        const auto content = [&](const Input& field, Position start)
        {
            return group(field, type, index, to, start);
        };
        enter(grouped(index + 1));
        at = openType(in, at, content);
        leave();
        // A member's path does without its group, except where the group ends before it: that is not the message's end.
        if (!skims && at == failed && (ctxt_.error.depth == 0 || ctxt_.error.status == RTX_E_END))
        {
            pushGroup(ctxt_, index + 1);
        }
        return at;
    }

    Position group(const Input& in, const Type& type, uint32_t index, OSOCTET* to, Position at)
    {
        const Addition& addition = type.additions[index];
        unsigned optional = 0;
        for (unsigned i = 0; i < addition.count; ++i)
        {
            optional += type.members[addition.first + i].flag >= 0 ? 1 : 0;
        }
        uint64_t bits;
        if (!look(in, at, optional, bits))
        {
            return ends(in.end, 1);
        }
        if (optional != 0)
        {
            saw(RTX_FIELD_PRESENCE, at, optional, top(bits, optional), &type, to, index + 1);
        }
        const auto first = static_cast<unsigned>(addition.flag) + 1; // its members' flags follow its own
        const uint64_t present = setFlags(to, first, bits, optional);
        if (present != 0 || optional < addition.count)
        {
            setFlag(to, addition.flag);
        }
        else
        {
            note(RTX_NOTE_EMPTY_GROUP, at); // taken and not sent again
        }
        return members(in, type, addition.first, addition.count, present, to, at + optional);
    }

    Position unknownAddition(const Input& in, uint32_t index, OSOCTET* list, Position at)
    {
        OSOCTET* block = nullptr;
        enter(named("extElem1"));
        enter(indexed(index));
        at = openOctets(in, sizeof(UnknownAddition), block, at);
        leave();
        leave();
        if (at == failed)
        {
            inElement(index);
            if constexpr (!skims)
            {
                pushName(ctxt_, "extElem1");
            }
            return failed;
        }
        if constexpr (skims)
        {
            return at;
        }
        auto* const unknown = reinterpret_cast<UnknownAddition*>(block);
        unknown->open.index = index;
        unknown->node.data = &unknown->open;
        rtxDListAppendNode(reinterpret_cast<OSRTDList*>(list), &unknown->node);
        return at;
    }

    // Keeps the octets of an open type field of unknown content behind a head that ends with their ASN1OpenType.
    Position openOctets(const Input& in, size_t head, OSOCTET*& block, Position at)
    {
        OpenField field;
        at = passOpenField(in, at, field);
        if (at == failed || skims)
        {
            return at;
        }
        block = allocate(head + field.octets);
        if (block == nullptr)
        {
            return heapExhausted(at, head + field.octets);
        }
        auto* const open = reinterpret_cast<ASN1OpenType*>(block + head) - 1;
        open->data = block + head;
        open->numocts = field.octets;
        copyOpenField(in, field, open->data);
        ++ctxt_.decoded.unknown;
        sawOctets(in, field, open);
        return at;
    }

    // The parts of an open type field of unknown content; passOpenField has told of the first length.
    void sawOctets(const Input& in, const OpenField& field, const ASN1OpenType* open)
    {
        if constexpr (Observer::active)
        {
            uint32_t count = 0;
            bool more = true;
            for (Position start = field.start; more;)
            {
                const Position at = length(in, start, count, more);
                if (start != field.start)
                {
                    saw(RTX_FIELD_LENGTH, start, at - start, top(window(in, start), static_cast<unsigned>(at - start)));
                }
                if (count != 0)
                {
                    saw(RTX_FIELD_UNKNOWN, at, uint64_t{count} * 8, 0, nullptr, open);
                }
                start = at + uint64_t{count} * 8;
            }
        }
    }

    // 23
    [[gnu::noinline]] Position choice(const Input& in, const Type& type, OSOCTET* to, Position at)
    {
        if (isTooDeep()) [[unlikely]]
        {
            return fail(at, RTX_E_DEPTH);
        }
        if (type.extensible)
        {
            uint64_t extended = 0;
            at = read(in, at, 1, extended);
            if (at == failed)
            {
                return failed;
            }
            saw(RTX_FIELD_EXTENSION, at - 1, 1, extended, &type, to);
            if (extended != 0)
            {
                return extensionAlternative(in, type, to, at);
            }
        }
        uint64_t index; // 23.7
        if (!look(in, at, type.bits, index)) [[unlikely]]
        {
            return ends(at, type.bits);
        }
        index = top(index, type.bits);
        if (index >= type.rootCount) [[unlikely]]
        {
            return fail(at, RTX_E_CHOICE, static_cast<int64_t>(index) + 1, 1, type.rootCount);
        }
        saw(RTX_FIELD_CHOICE, at, type.bits, index, &type, to);
        enter(named(type.names[index]));
        at = alternative(in, type, index, to, at + type.bits);
        leave();
        return at == failed ? inMember(type, type.members[index]) : at;
    }

    // 23.8
    [[gnu::noinline]] Position extensionAlternative(const Input& in, const Type& type, OSOCTET* to, Position at)
    {
        const Position start = at;
        uint64_t index = 0;
        at = smallNumber(in, at, index);
        if (at == failed)
        {
            return failed;
        }
        saw(RTX_FIELD_CHOICE, start, at - start, top(window(in, start), static_cast<unsigned>(at - start)), &type, to);
        index += type.rootCount;
        if (index < type.memberCount)
        {
            const auto content = [&](const Input& field, Position first)
            {
                return alternative(field, type, index, to, first);
            };
            enter(named(type.names[index]));
            at = openType(in, at, content);
            leave();
            return at == failed ? inMember(type, type.members[index]) : at;
        }
        OSOCTET* open = nullptr;
        enter(named("extElem1"));
        at = openOctets(in, sizeof(ASN1OpenType), open, at);
        leave();
        if (at == failed)
        {
            return failed;
        }
        storePointer(to + type.extElem, open);
        store<OSUINT32>(to, index + 1);
        return at;
    }

    [[gnu::always_inline]] Position alternative(const Input& in, const Type& type, uint64_t index, OSOCTET* to,
                                                Position at)
    {
        const Member& m = type.members[index];
        store<OSUINT32>(to, index + 1);
        ++depth_;
        at = m.step == Step::Pointer ? pointed(in, m, to + m.offset, at) : value(in, m, to + m.offset, at);
        --depth_;
        return at;
    }

    [[gnu::always_inline]] Position pointed(const Input& in, const Member& m, OSOCTET* to, Position at)
    {
        const Type& type = *m.type;
        OSOCTET* const storage = allocate(type.size);
        storePointer(to, storage);
        if (storage == nullptr) [[unlikely]]
        {
            return heapExhausted(at, type.size);
        }
        if (type.kind == Kind::Sequence)
        {
            return sequence(in, type, storage, at);
        }
        Member target = m;
        target.step = stepOf(type);
        return other(in, target, storage, at);
    }

    // 20.5, 20.6: the number of elements
    Position count(const Input& in, const Type& type, Position at, uint32_t& number)
    {
        if (isTooDeep()) [[unlikely]]
        {
            return fail(at, RTX_E_DEPTH);
        }
        uint64_t window;
        if (!look(in, at, type.bits, window)) [[unlikely]]
        {
            return ends(at, type.bits);
        }
        number = static_cast<uint32_t>(type.lower) + static_cast<uint32_t>(top(window, type.bits));
        if (number > static_cast<uint32_t>(type.upper)) [[unlikely]]
        {
            return fail(at, RTX_E_SIZE, number, type.lower, type.upper);
        }
        saw(RTX_FIELD_COUNT, at, type.bits, number, &type);
        return at + type.bits;
    }

    Position array(const Input& in, const Type& type, OSOCTET* to, Position at)
    {
        uint32_t number = 0;
        at = count(in, type, at, number);
        if (at == failed)
        {
            return failed;
        }
        storeCount(type.width, to, number);
        const Member element = *type.members;
        if (skims && isNumber(element) && (uint64_t{element.range} + 1) >> element.bits != 0)
        {
            at += number * element.bits; // whatever they are, they are in range
            return at <= in.end ? at : failed;
        }
        OSOCTET* p = to + element.offset;
        for (uint32_t i = 0; i < number; ++i, p += element.type->size)
        {
            enter(indexed(i));
            at = value(in, element, p, at);
            leave();
            if (at == failed) [[unlikely]]
            {
                return inElement(i);
            }
        }
        return at;
    }

    Position list(const Input& in, const Type& type, OSOCTET* to, Position at)
    {
        uint32_t number = 0;
        at = count(in, type, at, number);
        if (at == failed)
        {
            return failed;
        }
        auto* const list = reinterpret_cast<OSRTDList*>(to);
        const Type& element = type.element();
        const size_t size = sizeof(OSRTDListNode) + element.size;
        ++depth_;
        for (uint32_t i = 0; i < number; ++i)
        {
            OSOCTET* const data = appendNode(list, size);
            if (data == nullptr) [[unlikely]]
            {
                heapExhausted(at, size);
                return inElement(i);
            }
            enter(indexed(i));
            at = value(in, *type.members, data, at);
            leave();
            if (at == failed) [[unlikely]]
            {
                return inElement(i);
            }
        }
        --depth_;
        return at;
    }

    // A node of `size` octets with its element at the end of a list; the element is returned, null without memory.
    OSOCTET* appendNode(OSRTDList* list, size_t size)
    {
        OSOCTET* const block = allocate(size);
        if (skims || block == nullptr)
        {
            return block;
        }
        auto* const node = reinterpret_cast<OSRTDListNode*>(block);
        node->data = node + 1;
        rtxDListAppendNode(list, node);
        return block + sizeof(OSRTDListNode);
    }

    static constexpr uint64_t mandatory = uint64_t{1} << 63; // of flag -1

    OSCTXT& ctxt_;
    unsigned depth_ = 0;
    bool strict_;
    Observer& observer_;
};

constexpr uint32_t largestInput = UINT32_MAX / 8; // octets, so that every bit offset has 32 bits

// Decodes the bound buffer. An error that the buffer has is kept.
template <typename Observer>
int run(OSCTXT& ctxt, const Type& type, void* value, unsigned flags, Observer& observer)
{
    if (ctxt.buffer.data == nullptr)
    {
        return setError(ctxt, RTX_E_NOBUFFER);
    }
    rtxErrReset(&ctxt);
    ctxt.decoded = {0, 0, RTX_NOTE_NONE, 0};
    if (value == nullptr)
    {
        setError(ctxt, RTX_E_NULL);
    }
    else if (ctxt.buffer.capacity > largestInput)
    {
        setError(ctxt, RTX_E_RANGE, static_cast<int64_t>(ctxt.buffer.capacity), 0, largestInput);
    }
    else
    {
        std::memset(value, 0, type.size);
        const Input whole(ctxt.buffer.data, static_cast<uint32_t>(ctxt.buffer.capacity * 8));
        Decoder<Observer> decoder(ctxt, flags, observer);
        uint64_t at = decoder.complete(whole, type, static_cast<OSOCTET*>(value), 0);
        if (at != decoder.failed)
        {
            ctxt.decoded.octets = static_cast<size_t>(at / 8);
            if (at != whole.end && (flags & RTX_DECODE_PREFIX) == 0)
            {
                decoder.surplus(whole, at);
            }
        }
    }
    if (ctxt.error.status != 0)
    {
        pushName(ctxt, type.name);
    }
    return ctxt.error.status;
}

} // namespace rtx

#endif
