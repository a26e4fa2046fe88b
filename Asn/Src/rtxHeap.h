// The context's heap as the runtime itself sees it.
#ifndef RTXHEAP_H
#define RTXHEAP_H

#include "asn1Runtime.h"

// Head of a block; its payload follows it.
struct alignas(16) RtxHeapBlock
{
    RtxHeapBlock* link; // next older block
    size_t size;        // octets of payload
    size_t used;        // octets handed out; the newest block's are told by heap.next
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

inline void* take(OSCTXT& ctxt, size_t octets)
{
    OSOCTET* const p = ctxt.heap.next;
    ctxt.heap.next += octets;
    return p;
}

// rtxMemHeapAlloc, inline where there is room: that is nearly always.
inline void* allocate(OSCTXT& ctxt, size_t size)
{
    return size - 1 < room(ctxt) ? take(ctxt, rounded(size)) : rtxMemHeapAlloc(&ctxt, size);
}

// While it lives, what the heap hands out; when it goes, that is the heap's again, unless a block was added for it.
// Marks end in the reverse order of their beginning, and nothing that outlives one is asked for beside it.
class HeapMark
{
public:
    explicit HeapMark(OSCTXT& ctxt) : ctxt_(ctxt), block_(ctxt.heap.blocks), next_(ctxt.heap.next) {}
    ~HeapMark()
    {
        if (ctxt_.heap.blocks == block_)
        {
            ctxt_.heap.next = next_;
        }
    }
    HeapMark(const HeapMark&) = delete;
    HeapMark& operator=(const HeapMark&) = delete;

private:
    OSCTXT& ctxt_;
    const RtxHeapBlock* block_;
    OSOCTET* next_;
};

// Whether all `size` octets at `p` were handed out by the context's heap.
inline bool owns(const OSCTXT& ctxt, const void* p, size_t size)
{
    const auto at = reinterpret_cast<uintptr_t>(p);
    for (const RtxHeapBlock* block = ctxt.heap.blocks; block != nullptr; block = block->link)
    {
        const auto begin = reinterpret_cast<uintptr_t>(block + 1);
        const size_t used =
            block == ctxt.heap.blocks ? reinterpret_cast<uintptr_t>(ctxt.heap.next) - begin : block->used;
        const size_t offset = at - begin; // huge where `at` lies before the block
        if (offset < used && size <= used - offset)
        {
            return true;
        }
    }
    return false;
}

// The context that rtxPrintSetContext named on this thread, or null.
const OSCTXT* printContext();

} // namespace rtx

#endif
