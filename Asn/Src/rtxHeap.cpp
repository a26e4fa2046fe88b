#include "rtxHeap.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>

namespace
{

using rtx::granule;

constexpr size_t firstBlock = 64 * 1024; // holds the composition of all but the largest messages

// What malloc's memory may lack of a granule's alignment: 8 octets on 32-bit ARM.
constexpr size_t slack = granule - std::min(granule, alignof(std::max_align_t));

constexpr size_t step = 1024; // what is cleared in one go: cheaper than request by request

// How far behind an address the next granule begins.
size_t surplus(const void* p)
{
    return (granule - reinterpret_cast<uintptr_t>(p) % granule) % granule;
}

RtxHeapBlock* blockIn(void* memory)
{
    return reinterpret_cast<RtxHeapBlock*>(static_cast<OSOCTET*>(memory) + surplus(memory));
}

OSOCTET* payload(RtxHeapBlock* block)
{
    return reinterpret_cast<OSOCTET*>(block + 1);
}

// Octets of the newest block that have not been handed out.
size_t rest(const OSCTXT& ctxt)
{
    RtxHeapBlock* const block = ctxt.heap.blocks;
    return block == nullptr ? 0 : static_cast<size_t>(payload(block) + block->size - ctxt.heap.next);
}

void makeNewest(OSCTXT& ctxt, RtxHeapBlock* block)
{
    auto& heap = ctxt.heap;
    if (heap.blocks != nullptr)
    {
        heap.blocks->used = static_cast<size_t>(heap.next - payload(heap.blocks));
    }
    block->link = heap.blocks;
    heap.blocks = block;
    heap.next = heap.end = payload(block);
}

// Each block is at least twice as large as the one before it, or takes all that the limit allows, so that there are few
// whatever is asked for: owns() looks at every one.
bool addBlock(OSCTXT& ctxt, size_t octets, size_t left)
{
    const RtxHeapBlock* const older = ctxt.heap.blocks;
    const size_t twice = older == nullptr ? 0 : std::min<size_t>(older->size, SIZE_MAX / 4) * 2;
    const size_t size = std::max({firstBlock, octets, std::min(twice, left)});
    if (size > SIZE_MAX - sizeof(RtxHeapBlock) - slack)
    {
        return false;
    }
    void* const memory = std::malloc(sizeof(RtxHeapBlock) + size + slack);
    if (memory == nullptr)
    {
        return false;
    }
    auto* const block = blockIn(memory);
    block->size = size;
    block->memory = memory;
    makeNewest(ctxt, block);
    return true;
}

// Sees to it that `octets` cleared octets can be handed out at once.
bool makeRoom(OSCTXT& ctxt, size_t octets)
{
    auto& heap = ctxt.heap;
    const size_t left = heap.left + rtx::room(ctxt);
    if (octets > left)
    {
        return false;
    }
    if (heap.blocks == nullptr && heap.memory != nullptr)
    {
        makeNewest(ctxt, heap.memory);
    }
    if (octets > rest(ctxt) && !addBlock(ctxt, octets, left))
    {
        return false;
    }
    const size_t room = std::min({std::max(octets, step), rest(ctxt), left});
    std::memset(heap.end, 0, room - rtx::room(ctxt));
    heap.end = heap.next + room;
    heap.left = left - room;
    return true;
}

// Out of line, as most requests need none of it.
[[gnu::noinline]] void* takeNewRoom(OSCTXT& ctxt, size_t size)
{
    // Each request gets octets of its own, also an empty one.
    const size_t wanted = size == 0 ? 1 : size;
    if (rtx::rounded(wanted) < wanted || (!rtx::fits(ctxt, wanted) && !makeRoom(ctxt, rtx::rounded(wanted))))
    {
        ctxt.heap.failed = 1;
        return nullptr;
    }
    return rtx::take(ctxt, wanted);
}

// Frees the blocks down to `last`, which the heap keeps, or down to the caller's memory, which is the oldest and need
// not be there any more.
void freeBlocks(OSCTXT& ctxt, const RtxHeapBlock* last)
{
    for (RtxHeapBlock* block = ctxt.heap.blocks; block != last && block != ctxt.heap.memory;)
    {
        RtxHeapBlock* const older = block->link;
        std::free(block->memory);
        block = older;
    }
}

} // namespace

void rtx::initHeap(OSCTXT& ctxt, RtxHeapBlock* memory)
{
    ctxt.heap = {nullptr, nullptr, nullptr, SIZE_MAX / granule * granule, memory, 0};
}

void rtx::freeHeap(OSCTXT& ctxt)
{
    freeBlocks(ctxt, nullptr);
    initHeap(ctxt, ctxt.heap.memory);
}

rtx::HeapScope::~HeapScope()
{
    auto& heap = ctxt_.heap;
    const OSOCTET* const used = heap.blocks == block_ ? std::min(heap.next, end_) : end_;
    freeBlocks(ctxt_, block_);
    if (used != next_)
    {
        std::memset(next_, 0, static_cast<size_t>(used - next_)); // is handed out cleared again
    }
    heap.blocks = block_;
    heap.next = next_;
    heap.end = end_;
    heap.left = left_;
}

rtx::Owned rtx::owner(const OSCTXT& ctxt, const void* p, size_t octets)
{
    for (const RtxHeapBlock* block = ctxt.heap.blocks; block != nullptr; block = block->link)
    {
        const Owned all = owned(ctxt, block);
        if (all.holds(p, octets))
        {
            return all;
        }
    }
    return {0, 0};
}

size_t rtxMemHeapSetMemory(OSCTXT* pctxt, void* memory, size_t octets)
{
    if (pctxt->heap.blocks != nullptr)
    {
        return 0;
    }
    pctxt->heap.memory = nullptr;
    const size_t lost = surplus(memory);
    constexpr size_t least = sizeof(RtxHeapBlock) + granule;
    if (memory == nullptr || octets < lost || octets - lost < least)
    {
        return 0;
    }
    pctxt->heap.memory = blockIn(memory);
    pctxt->heap.memory->size = (octets - lost - sizeof(RtxHeapBlock)) / granule * granule;
    return pctxt->heap.memory->size;
}

void rtxMemHeapSetLimit(OSCTXT* pctxt, size_t octets)
{
    octets = octets / granule * granule;
    const size_t room = std::min(octets, rtx::room(*pctxt));
    pctxt->heap.end = pctxt->heap.next + room;
    pctxt->heap.left = octets - room;
}

void* rtxMemHeapAlloc(OSCTXT* pctxt, size_t size)
{
    return rtx::fits(*pctxt, size) ? rtx::take(*pctxt, size) : takeNewRoom(*pctxt, size);
}

int rtxMemHeapFailed(const OSCTXT* pctxt)
{
    return pctxt->heap.failed;
}

int rtxMemHeapOwns(const OSCTXT* pctxt, const void* p, size_t size)
{
    return rtx::owns(*pctxt, p, size) ? 1 : 0;
}
