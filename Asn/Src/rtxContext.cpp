#include "rtxHeap.h"
#include "rtxType.h"

#include <cstdlib>

namespace
{

constexpr size_t granule = 16;
constexpr size_t firstBlock = 64 * 1024; // holds the composition of all but the largest messages
constexpr size_t largestGrowth = 1024 * 1024;

thread_local const OSCTXT* printed = nullptr;

// Makes a block of at least `size` octets the newest one. Out of line, as most requests need none.
[[gnu::noinline, gnu::cold]] bool addBlock(OSCTXT& ctxt, size_t size)
{
    RtxHeapBlock* const older = ctxt.heap.blocks;
    size_t payload = firstBlock;
    if (older != nullptr)
    {
        payload = older->size < largestGrowth / 2 ? older->size * 2 : largestGrowth;
    }
    if (payload < size)
    {
        payload = size;
    }
    if (payload > SIZE_MAX - sizeof(RtxHeapBlock))
    {
        return false;
    }

    auto* const block = static_cast<RtxHeapBlock*>(std::malloc(sizeof(RtxHeapBlock) + payload));
    if (block == nullptr)
    {
        return false;
    }
    if (older != nullptr)
    {
        older->used = static_cast<size_t>(ctxt.heap.next - reinterpret_cast<OSOCTET*>(older + 1));
    }
    *block = {older, payload, 0};
    ctxt.heap.blocks = block;
    ctxt.heap.next = reinterpret_cast<OSOCTET*>(block + 1);
    ctxt.heap.end = ctxt.heap.next + payload;
    return true;
}

} // namespace

const OSCTXT* rtx::printContext()
{
    return printed;
}

void rtxPrintSetContext(const OSCTXT* pctxt)
{
    printed = pctxt;
}

int rtxInitContext(OSCTXT* pctxt)
{
    if (pctxt == nullptr)
    {
        return RTX_E_NULL;
    }
    if (printed == pctxt)
    {
        printed = nullptr; // named an earlier context at the same address
    }
    pctxt->heap = {nullptr, nullptr, nullptr, SIZE_MAX};
    pctxt->buffer = {nullptr, 0, 0};
    rtxErrReset(pctxt); // the error's path is written before it is read
    return RTX_OK;
}

void rtFreeContext(OSCTXT* pctxt)
{
    if (pctxt == nullptr)
    {
        return;
    }
    if (printed == pctxt)
    {
        printed = nullptr;
    }
    for (RtxHeapBlock* block = pctxt->heap.blocks; block != nullptr;)
    {
        RtxHeapBlock* const older = block->link;
        std::free(block);
        block = older;
    }
    pctxt->heap = {nullptr, nullptr, nullptr, SIZE_MAX};
}

void rtxMemHeapSetLimit(OSCTXT* pctxt, size_t octets)
{
    pctxt->heap.left = octets;
}

void* rtxMemHeapAlloc(OSCTXT* pctxt, size_t size)
{
    if (size > SIZE_MAX - (granule - 1))
    {
        return nullptr;
    }
    // Each request gets octets of its own, also an empty one.
    const size_t octets = size == 0 ? granule : (size + granule - 1) & ~(granule - 1);
    if (octets > pctxt->heap.left)
    {
        return nullptr;
    }
    if (octets > static_cast<size_t>(pctxt->heap.end - pctxt->heap.next) && !addBlock(*pctxt, octets))
    {
        return nullptr;
    }
    OSOCTET* const p = pctxt->heap.next;
    pctxt->heap.next += octets;
    pctxt->heap.left -= octets;
    return p;
}

int rtxMemHeapOwns(const OSCTXT* pctxt, const void* p, size_t size)
{
    return rtx::owns(*pctxt, p, size) ? 1 : 0;
}

void rtxDListAppendNode(OSRTDList* pList, OSRTDListNode* pNode)
{
    pNode->next = nullptr;
    pNode->prev = pList->tail;
    (pList->tail != nullptr ? pList->tail->next : pList->head) = pNode;
    pList->tail = pNode;
    ++pList->count;
}

int pu_setBuffer(OSCTXT* pctxt, OSOCTET* buf, size_t capacity, OSBOOL aligned)
{
    pctxt->buffer = {nullptr, 0, 0};
    rtxErrReset(pctxt);
    if (aligned != 0)
    {
        return rtx::setError(*pctxt, RTX_E_ALIGNED); // the encoder and the decoder find this error and keep it
    }
    if (buf == nullptr)
    {
        return RTX_E_NULL;
    }
    pctxt->buffer.data = buf;
    pctxt->buffer.capacity = capacity;
    return RTX_OK;
}

size_t pu_getMsgLen(const OSCTXT* pctxt)
{
    return pctxt->buffer.msgLen;
}
