// Unaligned PER (X.691): what the generated encoder is made of. The generated code is straight-line: it checks a value,
// joins it with its neighbours and puts them with one constant width.
#ifndef PERENCODER_H
#define PERENCODER_H

#include "byteOrder.h"
#include "rtxBits.h"
#include "rtxHeap.h"
#include "rtxType.h"

#include <algorithm>
#include <cstring>

namespace rtx
{

// The encoder's position and the bits not written yet. Two registers: it travels by value.
struct Bits
{
    uint64_t word; // the last bits() % 64 bits in its low end; what lies above them is of no account
    // In the upper half the whole words put, in the lower half, with a sign, how many bits of the next one are left, as
    // a negative number: the sign tells, after n bits have been added, whether the word is full.
    uint64_t pos;

    static constexpr uint64_t full = uint64_t{1} << 32; // minus this many: a word of which nothing is used is at -64
    static constexpr uint64_t place(uint64_t bits)
    {
        return bits / 64 << 32 | (full - 64 + bits % 64);
    }
    static constexpr uint64_t bits(uint64_t place)
    {
        return (place >> 32) * 64 + static_cast<uint32_t>(place) - (full - 64);
    }
    uint64_t bits() const
    {
        return bits(pos);
    }
    // Whether the bits just added have filled the word.
    bool isFull() const
    {
        return static_cast<int32_t>(static_cast<uint32_t>(pos)) >= 0;
    }
};

class Encoder
{
public:
    explicit Encoder(OSCTXT& ctxt)
        : ctxt_(ctxt),
          data_(ctxt.buffer.data),
          capacity_(std::min<uint64_t>(ctxt.buffer.capacity, largest)),
          limit_(Bits::place(capacity_ * 8)),
          owned_(owned(ctxt, ctxt.heap.blocks))
    {
    }

    // False once an error has occurred or more has been put than the buffer holds. Callers ask after every element, so
    // that the error finds its path.
    bool ok(Bits b) const
    {
        return b.pos <= limit_;
    }

    // Appends the low N bits of v, whose other bits are 0.
    template <unsigned N>
    Bits put(Bits b, uint64_t v) const
    {
        static_assert(N >= 1 && N <= 63);
        return append(b, v, N);
    }

    // Appends n bits, 1..63.
    Bits put(Bits b, uint64_t v, unsigned n) const;

    // Appends the first N bits of a bare octet array.
    template <unsigned N>
    Bits octets(Bits b, const OSOCTET* p) const
    {
        static_assert(N > 32);
        for (unsigned i = 0; i < N / 32; ++i, p += 4)
        {
            b = put<32>(b, load32(p));
        }
        if constexpr (N % 32 != 0)
        {
            uint32_t last = 0;
            for (unsigned i = 0; i < (N % 32 + 7) / 8; ++i)
            {
                last |= uint32_t{p[i]} << (24 - 8 * i);
            }
            b = put<N % 32>(b, last >> (32 - N % 32));
        }
        return b;
    }

    // The value of a bit string of N bits, its first bit the most significant.
    template <unsigned N>
    static uint32_t bits(const ASN1BitStr32& s)
    {
        return load32(s.data) >> (32 - N);
    }

    // Presence flags First to First + Count - 1 of a sequence, the first one most significant: the order in which PER
    // sends them, and that of bit-fields on a big-endian system. Elsewhere the first flag is the least significant bit.
    template <unsigned First, unsigned Count, typename Flags>
    static uint64_t flags(const Flags& m)
    {
        static_assert(First / 32 == (First + Count - 1) / 32 && Count <= 24);
        uint32_t word;
        std::memcpy(&word, reinterpret_cast<const OSOCTET*>(&m) + First / 32 * 4, sizeof word);
        if constexpr (!littleEndian)
        {
            return word << First % 32 >> (32 - Count);
        }
        word >>= First % 32;
        uint64_t value = reversedOctets[word & 0xFF];
        if constexpr (Count > 8)
        {
            value = value << 8 | reversedOctets[word >> 8 & 0xFF];
        }
        if constexpr (Count > 16)
        {
            value = value << 8 | reversedOctets[word >> 16 & 0xFF];
        }
        return value >> ((Count + 7) / 8 * 8 - Count);
    }

    // X.691 19.8, 11.6: the number of additions and their presence, the unknown ones of extElem1 behind the `count`
    // that the schema knows.
    Bits extensionBitmap(Bits b, uint64_t known, unsigned count, const OSRTDList& unknown);
    Bits unknownAdditions(Bits b, const OSRTDList& unknown);
    // X.691 11.2: an open type. openType() leaves room for its length and closeOpenType() writes it.
    Bits openType(Bits b) const
    {
        return put<8>(b, 0);
    }
    Bits closeOpenType(Bits b, uint64_t place) const;
    // An alternative that this release does not know; an unknown tag without its octets is an error. Of the
    // `alternatives` that the schema knows, the last `extensions` are extension additions.
    Bits unknownAlternative(Bits b, uint32_t tag, uint32_t alternatives, uint32_t extensions,
                            const ASN1OpenType* unknown);
    // X.691 11.6: a normally small non-negative number.
    Bits smallNumber(Bits b, uint64_t value) const;

    // Whether the pointer may be followed.
    template <typename T>
    bool reachable(const T* p)
    {
        return reachable(p, sizeof(T)) && reinterpret_cast<uintptr_t>(p) % alignof(T) == 0;
    }

    // A list's element, or null when the node or its data may not be followed.
    template <typename T>
    const T* element(const OSRTDListNode* node)
    {
        if (!reachable(node) || !reachable(static_cast<const T*>(node->data)))
        {
            return nullptr;
        }
        return static_cast<const T*>(node->data);
    }

    // Errors. Each returns what the caller returns. Cold, so that no code of theirs lies between that of the values.
    [[gnu::cold]] Bits range(const char* member, int64_t value, int64_t lower, int64_t upper);
    [[gnu::cold]] Bits rangeAt(uint32_t index, int64_t value, int64_t lower, int64_t upper);
    [[gnu::cold]] Bits length(const char* member, uint32_t numbits, uint32_t wanted);
    [[gnu::cold]] Bits size(uint32_t count, uint32_t lower, uint32_t upper);
    [[gnu::cold]] Bits choice(uint32_t tag, uint32_t last);
    [[gnu::cold]] Bits pointer(const char* member, const void* p);
    [[gnu::cold]] Bits node(const OSRTDList& list, uint32_t index, const OSRTDListNode* node);
    // The element `member` or the list entry `index` failed, or did not fit.
    [[gnu::cold]] Bits in(Bits b, const char* member);
    [[gnu::cold]] Bits at(Bits b, uint32_t index);

    // Runs the encoder of a type on the context's buffer.
    template <typename T>
    static int run(OSCTXT* pctxt, const char* name, const T* value, Bits (*encodeType)(Encoder&, Bits, const T*))
    {
        if (pctxt == nullptr)
        {
            return RTX_E_NULL;
        }
        if (const int status = ready(*pctxt, name, value))
        {
            return status;
        }
        Encoder e(*pctxt);
        return e.finish(encodeType(e, Bits{0, Bits::place(0)}, value), name);
    }

private:
    static constexpr Bits failed{0, ~uint64_t{0}};
    static constexpr uint64_t largest = uint64_t{1} << 34; // octets that a place can count

    static uint32_t load32(const OSOCTET* p)
    {
        uint32_t v;
        std::memcpy(&v, p, sizeof v);
        return highFirst(v);
    }

    // Always inline, so that a constant width is folded, and as short as can be, because it stands at every value: the
    // code of a typical message should fit the processor's cache.
    [[gnu::always_inline]] Bits append(Bits b, uint64_t v, unsigned n) const
    {
        b.pos += n;
        if (b.isFull())
        {
            return startWord(b, v, n);
        }
        b.word = b.word << n | v;
        return b;
    }

    // The rest of that where the n bits fill a word: the place is behind them already, the word without them.
    Bits startWord(Bits b, uint64_t v, unsigned n) const;

    void store(uint64_t index, uint64_t word) const
    {
        if (index < capacity_ / 8)
        {
            const uint64_t octets = highFirst(word);
            std::memcpy(data_ + index * 8, &octets, sizeof octets);
        }
    }

    bool reachable(const void* p, size_t octets)
    {
        return owned_.holds(p, octets) || reachableElsewhere(p, octets);
    }
    bool reachableElsewhere(const void* p, size_t octets);

    static int ready(OSCTXT& ctxt, const char* name, const void* value);
    int finish(Bits b, const char* name);
    Bits error(RtxStatus status, int64_t value, int64_t lower, int64_t upper);
    void noteOverflow(Bits b);
    Bits length(Bits b, uint64_t octets) const;
    Bits content(Bits b, const OSOCTET* p, uint64_t octets) const;
    Bits unknownAddition(RtxStatus status, uint32_t index);
    void flush(Bits b) const;
    Bits resume(uint64_t end) const;

    OSCTXT& ctxt_;
    OSOCTET* data_;
    uint64_t capacity_; // octets that the buffer holds
    uint64_t limit_;    // the place behind them
    Owned owned_{0, 0}; // of the heap, where the pointer before lay: nearly always the next one lies there, too
};

} // namespace rtx

#endif
