// The context's heap as the runtime itself sees it.
#ifndef RTXHEAP_H
#define RTXHEAP_H

#include "asn1Runtime.h"

#include <cstring>

// Head of a block; its payload follows it.
struct alignas(16) RtxHeapBlock
{
    RtxHeapBlock* link; // next older block
    size_t size;        // octets of payload
    size_t used;        // octets handed out; the newest block's are told by heap.next
    void* memory;       // malloc's, in which the block lies; none of the caller's memory
};

namespace rtx
{

constexpr size_t granule = 16; // requests are aligned to it and rounded up to it

void initHeap(OSCTXT& ctxt, RtxHeapBlock* memory);
void freeHeap(OSCTXT& ctxt);

// Octets that requests can have at once: a multiple of the granule.
inline size_t room(const OSCTXT& ctxt)
{
    return static_cast<size_t>(ctxt.heap.end - ctxt.heap.next);
}

inline size_t rounded(size_t size)
{
    return (size + granule - 1) / granule * granule;
}

// Whether a request finds room; an empty one is told that it does not.
inline bool fits(const OSCTXT& ctxt, size_t size)
{
    return size - 1 < room(ctxt);
}

inline void* take(OSCTXT& ctxt, size_t size)
{
    OSOCTET* const p = ctxt.heap.next;
    ctxt.heap.next += rounded(size);
    return p;
}

// rtxMemHeapAlloc, inline where there is room: that is nearly always.
inline void* allocate(OSCTXT& ctxt, size_t size)
{
    if (fits(ctxt, size)) [[likely]]
    {
        return take(ctxt, size);
    }
    return rtxMemHeapAlloc(&ctxt, size);
}

// The octets of one block that were handed out.
struct Owned
{
    uintptr_t begin;
    uintptr_t size;

    bool holds(const void* p, size_t octets) const
    {
        const uintptr_t offset = reinterpret_cast<uintptr_t>(p) - begin; // huge where `p` lies before the block
        return offset < size && octets <= size - offset;
    }
};

inline Owned owned(const OSCTXT& ctxt, const RtxHeapBlock* block)
{
    if (block == nullptr)
    {
        return {0, 0};
    }
    const auto begin = reinterpret_cast<uintptr_t>(block + 1);
    return {begin, block == ctxt.heap.blocks ? reinterpret_cast<uintptr_t>(ctxt.heap.next) - begin : block->used};
}

// Those of the block in which all `octets` octets at `p` lie; none of a foreign pointer.
Owned owner(const OSCTXT& ctxt, const void* p, size_t octets);

// While it lives, what the heap hands out; when it goes, that is the heap's again, unless a block was added for it.
// Marks end in the reverse order of their beginning, and nothing that outlives one is asked for beside it.
class HeapMark
{
public:
    explicit HeapMark(OSCTXT& ctxt) : ctxt_(ctxt), block_(ctxt.heap.blocks), next_(ctxt.heap.next) {}
    ~HeapMark()
    {
        if (!kept_ && ctxt_.heap.blocks == block_ && ctxt_.heap.next != next_) // nothing may have been handed out
        {
            std::memset(next_, 0, static_cast<size_t>(ctxt_.heap.next - next_)); // is handed out cleared again
            ctxt_.heap.next = next_;
        }
    }
    HeapMark(const HeapMark&) = delete;
    HeapMark& operator=(const HeapMark&) = delete;

    // Nothing is given back after all.
    void keep()
    {
        kept_ = true;
    }

private:
    OSCTXT& ctxt_;
    const RtxHeapBlock* block_;
    OSOCTET* next_;
    bool kept_ = false;
};

// The same for work of its own: when it goes, the heap is as it was, without the blocks that were added meanwhile.
class HeapScope
{
public:
    explicit HeapScope(OSCTXT& ctxt)
        : ctxt_(ctxt), block_(ctxt.heap.blocks), next_(ctxt.heap.next), end_(ctxt.heap.end), left_(ctxt.heap.left)
    {
    }
    ~HeapScope();
    HeapScope(const HeapScope&) = delete;
    HeapScope& operator=(const HeapScope&) = delete;

private:
    OSCTXT& ctxt_;
    RtxHeapBlock* block_;
    OSOCTET* next_;
    OSOCTET* end_;
    size_t left_;
};

// Whether all `size` octets at `p` were handed out by the context's heap.
inline bool owns(const OSCTXT& ctxt, const void* p, size_t size)
{
    return owner(ctxt, p, size).size != 0;
}

// The context that rtxPrintSetContext named on this thread, or null.
const OSCTXT* printContext();

} // namespace rtx

#endif
