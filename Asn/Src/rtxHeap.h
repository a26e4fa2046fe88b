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
