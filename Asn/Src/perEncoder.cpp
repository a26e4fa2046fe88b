#include "perEncoder.h"

namespace rtx
{
namespace
{

constexpr uint64_t shortLength = 0x80;
constexpr uint64_t fragment = 0x4000; // 16K
constexpr uint64_t longestRun = 4;    // fragments under one header

// Writes n bits, 1..24, over those at a position.
void setBits(OSOCTET* data, uint64_t pos, uint64_t value, unsigned n)
{
    const auto shift = static_cast<unsigned>(32 - pos % 8 - n);
    const uint64_t mask = ((uint64_t{1} << n) - 1) << shift;
    value <<= shift;
    OSOCTET* octet = data + pos / 8;
    for (unsigned i = 0; i < 4; ++i)
    {
        const auto under = static_cast<OSOCTET>(mask >> (24 - 8 * i));
        if (under != 0) // what lies beyond the bits may lie beyond the buffer
        {
            octet[i] = static_cast<OSOCTET>((octet[i] & ~under) | static_cast<OSOCTET>(value >> (24 - 8 * i)));
        }
    }
}

uint64_t getBits(const OSOCTET* data, uint64_t pos, unsigned n)
{
    uint64_t value = 0;
    for (; n-- != 0; ++pos)
    {
        value = value << 1 | (data[pos / 8] >> (7 - pos % 8) & 1U);
    }
    return value;
}

// Moves the octets that begin at bit `from` by `by` octets up.
void moveUp(OSOCTET* data, uint64_t from, uint64_t octets, uint64_t by)
{
    while (by != 0 && octets-- != 0)
    {
        setBits(data, from + (octets + by) * 8, getBits(data, from + octets * 8, 8), 8);
    }
}

} // namespace

Bits Encoder::put(Bits b, uint64_t v, unsigned n) const
{
    return append(b, v, n);
}

Bits Encoder::startWord(Bits b, uint64_t v, unsigned n) const
{
    const auto rest = static_cast<uint32_t>(b.pos);
    store((b.pos >> 32) - 1, b.word << (n - rest) | v >> rest);
    return {v, b.pos + (Bits::full - 64)};
}

bool Encoder::reachableElsewhere(const void* p, size_t octets)
{
    const Owned owned = owner(ctxt_, p, octets);
    if (owned.size != 0)
    {
        owned_ = owned;
    }
    return owned.size != 0;
}

// X.691 11.6
Bits Encoder::smallNumber(Bits b, uint64_t value) const
{
    constexpr uint64_t small = 64;
    if (value < small)
    {
        return put<7>(b, value);
    }
    const unsigned octets = (bitsFor(static_cast<uint32_t>(value)) + 7) / 8;
    b = put<9>(b, uint64_t{1} << 8 | octets);
    return put(b, value, octets * 8);
}

// X.691 11.9.3.6 to 11.9.3.7: a length below 16K
Bits Encoder::length(Bits b, uint64_t octets) const
{
    return octets < shortLength ? put<8>(b, octets) : put<16>(b, uint64_t{0x8000} | octets);
}

Bits Encoder::content(Bits b, const OSOCTET* p, uint64_t octets) const
{
    for (uint64_t i = 0; i < octets && ok(b); ++i)
    {
        b = put<8>(b, p[i]);
    }
    return b;
}

// The unknown additions of a list are sent at their places behind the `count` known ones; those between are absent.
Bits Encoder::extensionBitmap(Bits b, uint64_t known, unsigned count, const OSRTDList& unknown)
{
    constexpr uint64_t small = 64;
    constexpr uint64_t most = fragment - 1;
    uint64_t all = count;
    const OSRTDListNode* node = unknown.head;
    for (uint32_t i = 0; i < unknown.count; ++i, node = node->next)
    {
        const ASN1OpenType* const addition = element<ASN1OpenType>(node);
        if (addition == nullptr)
        {
            const Bits result = this->node(unknown, i, node);
            in(result, "extElem1");
            return result;
        }
        if (count + uint64_t{addition->index} < all) // not behind the one before
        {
            return unknownAddition(RTX_E_EXTENSION, i);
        }
        all = count + uint64_t{addition->index} + 1;
        if (all > most)
        {
            const Bits result = error(RTX_E_SIZE, static_cast<int64_t>(all), 0, static_cast<int64_t>(most));
            in(result, "extElem1");
            return result;
        }
    }
    // 11.9.3.4: the number of additions is a normally small length
    b = all <= small ? put<7>(b, all - 1) : length(put<1>(b, 1), all);
    b = put(b, known, count);
    uint64_t next = 0;
    node = unknown.head;
    for (uint32_t i = 0; i < unknown.count; ++i, node = node->next)
    {
        const uint64_t index = static_cast<const ASN1OpenType*>(node->data)->index;
        for (; next < index; ++next)
        {
            b = put<1>(b, 0);
        }
        b = put<1>(b, 1);
        ++next;
    }
    return b;
}

Bits Encoder::unknownAdditions(Bits b, const OSRTDList& unknown)
{
    const OSRTDListNode* node = unknown.head; // extensionBitmap has followed the list
    for (uint32_t i = 0; i < unknown.count; ++i, node = node->next)
    {
        const auto* const addition = static_cast<const ASN1OpenType*>(node->data);
        if (addition->numocts == 0 || !owns(ctxt_, addition->data, addition->numocts))
        {
            const RtxStatus status = addition->data == nullptr ? RTX_E_NULL : RTX_E_FOREIGN;
            return unknownAddition(addition->numocts == 0 ? RTX_E_EXTENSION : status, i);
        }
        const uint64_t start = b.pos;
        b = closeOpenType(content(openType(b), addition->data, addition->numocts), start);
    }
    return b;
}

Bits Encoder::unknownAddition(RtxStatus status, uint32_t index)
{
    const Bits result = error(status, 0, 0, 0);
    pushIndex(ctxt_, index);
    pushName(ctxt_, "extElem1");
    return result;
}

Bits Encoder::unknownAlternative(Bits b, uint32_t tag, uint32_t alternatives, uint32_t extensions,
                                 const ASN1OpenType* unknown)
{
    if (tag <= alternatives || !reachable(unknown) || unknown->numocts == 0 ||
        !reachable(unknown->data, unknown->numocts))
    {
        return choice(tag, alternatives);
    }
    b = smallNumber(put<1>(b, 1), uint64_t{tag} - alternatives - 1 + extensions);
    const uint64_t start = b.pos;
    return closeOpenType(content(openType(b), unknown->data, unknown->numocts), start);
}

// Writes the bits that are still in the register.
void Encoder::flush(Bits b) const
{
    const auto used = static_cast<unsigned>(b.bits() % 64);
    if (used == 0)
    {
        return;
    }
    const uint64_t octets = highFirst(b.word << (64 - used));
    std::memcpy(data_ + b.bits() / 64 * 8, &octets, (used + 7) / 8);
}

// Reads back the bits behind the last whole word.
Bits Encoder::resume(uint64_t end) const
{
    const auto used = static_cast<unsigned>(end % 64);
    if (used == 0)
    {
        return {0, Bits::place(end)};
    }
    uint64_t octets = 0;
    std::memcpy(&octets, data_ + end / 64 * 8, (used + 7) / 8);
    return {highFirst(octets) >> (64 - used), Bits::place(end)};
}

// X.691 11.2.1: the content is padded to whole octets, at least one; its length stands before it.
Bits Encoder::closeOpenType(Bits b, uint64_t place) const
{
    if (!ok(b))
    {
        return b;
    }
    const uint64_t start = Bits::bits(place);
    const uint64_t bits = b.bits() - start - 8;
    const auto padding = static_cast<unsigned>(bits == 0 ? 8 : (8 - bits % 8) % 8);
    if (padding != 0)
    {
        b = put(b, 0, padding);
    }
    const uint64_t octets = (b.bits() - start) / 8 - 1;

    // 11.9.3.8: fragments of 16K, as many as four under one header, then the rest with a length of its own
    const uint64_t whole = octets / fragment;
    const uint64_t last = octets % fragment;
    const uint64_t runs = (whole + longestRun - 1) / longestRun;
    const uint64_t headers = runs + (last < shortLength ? 1 : 2);
    const uint64_t end = b.bits() + (headers - 1) * 8;
    if (Bits::place(end) > limit_)
    {
        return {0, Bits::place(end)};
    }
    flush(b);
    uint64_t from = start + 8 + whole * fragment * 8; // the last part moves first
    uint64_t gap = headers - 1;
    moveUp(data_, from, last, gap);
    gap -= last < shortLength ? 0 : 1;
    setBits(data_, from + gap * 8 - 8, last < shortLength ? last : uint64_t{0x8000} | last,
            last < shortLength ? 8 : 16);
    for (uint64_t run = runs; run-- != 0;)
    {
        const uint64_t parts = run + 1 == runs ? whole - run * longestRun : longestRun;
        from -= parts * fragment * 8;
        --gap;
        moveUp(data_, from, parts * fragment, gap);
        setBits(data_, from + gap * 8 - 8, uint64_t{0xC0} | parts, 8);
    }
    return resume(end);
}

// A buffer that was refused keeps its error; everything older is forgotten.
int Encoder::ready(OSCTXT& ctxt, const char* name, const void* value)
{
    ctxt.buffer.msgLen = 0;
    if (ctxt.buffer.data != nullptr)
    {
        rtxErrReset(&ctxt);
        if (value != nullptr)
        {
            return RTX_OK;
        }
        setError(ctxt, RTX_E_NULL);
    }
    else
    {
        setError(ctxt, RTX_E_NOBUFFER);
    }
    if (ctxt.error.depth == 0)
    {
        pushName(ctxt, name);
    }
    return ctxt.error.status;
}

int Encoder::finish(Bits b, const char* name)
{
    if (ok(b) && b.bits() == 0)
    {
        b = put<8>(b, 0); // X.691 11.1.3: an empty encoding is one zero octet
    }
    if (!ok(b))
    {
        in(b, name);
        return ctxt_.error.status;
    }
    flush(b);
    ctxt_.buffer.msgLen = static_cast<size_t>((b.bits() + 7) / 8);
    return RTX_OK;
}

Bits Encoder::error(RtxStatus status, int64_t value, int64_t lower, int64_t upper)
{
    setError(ctxt_, status, value, lower, upper);
    return failed;
}

Bits Encoder::range(const char* member, int64_t value, int64_t lower, int64_t upper)
{
    const Bits result = error(RTX_E_RANGE, value, lower, upper);
    pushName(ctxt_, member);
    return result;
}

Bits Encoder::rangeAt(uint32_t index, int64_t value, int64_t lower, int64_t upper)
{
    const Bits result = error(RTX_E_RANGE, value, lower, upper);
    pushIndex(ctxt_, index);
    return result;
}

Bits Encoder::length(const char* member, uint32_t numbits, uint32_t wanted)
{
    const Bits result = error(RTX_E_BITS, numbits, wanted, wanted);
    pushName(ctxt_, member);
    return result;
}

Bits Encoder::size(uint32_t count, uint32_t lower, uint32_t upper)
{
    return error(RTX_E_SIZE, count, lower, upper);
}

Bits Encoder::choice(uint32_t tag, uint32_t last)
{
    return error(RTX_E_CHOICE, tag, 1, last);
}

Bits Encoder::pointer(const char* member, const void* p)
{
    const Bits result = error(p == nullptr ? RTX_E_NULL : RTX_E_FOREIGN, 0, 0, 0);
    pushName(ctxt_, member);
    return result;
}

Bits Encoder::node(const OSRTDList& list, uint32_t index, const OSRTDListNode* node)
{
    if (node == nullptr)
    {
        return error(RTX_E_LIST, list.count, index, index);
    }
    const bool dataless = reachable(node) && node->data == nullptr;
    const Bits result = error(dataless ? RTX_E_NULL : RTX_E_FOREIGN, 0, 0, 0);
    pushIndex(ctxt_, index);
    return result;
}

// What did not fit has no error of its own yet.
void Encoder::noteOverflow(Bits b)
{
    if (b.pos != failed.pos)
    {
        error(RTX_E_OVERFLOW, static_cast<int64_t>(capacity_), 0, 0);
    }
}

Bits Encoder::in(Bits b, const char* member)
{
    noteOverflow(b);
    pushName(ctxt_, member);
    return failed;
}

Bits Encoder::at(Bits b, uint32_t index)
{
    noteOverflow(b);
    pushIndex(ctxt_, index);
    return failed;
}

} // namespace rtx
