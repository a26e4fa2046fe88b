#include "HeapFault.h"

extern "C" void* __real_rtxMemHeapAlloc(OSCTXT* pctxt, size_t size);
extern "C" void* __wrap_rtxMemHeapAlloc(OSCTXT* pctxt, size_t size);

namespace
{

thread_local bool active = false;
thread_local bool refused = false;
thread_local bool once = false;
thread_local unsigned left = 0;

} // namespace

// Where the newest block has room, a request does not come here. So the room is kept out of its sight between two
// calls: the heap finds it again.
extern "C" void* __wrap_rtxMemHeapAlloc(OSCTXT* pctxt, size_t size)
{
    auto& heap = pctxt->heap;
    if (active && left == 0 && !(once && refused))
    {
        refused = true;
        heap.failed = 1;
        return nullptr;
    }
    left -= active && left != 0 ? 1U : 0U;
    void* const p = __real_rtxMemHeapAlloc(pctxt, size);
    heap.left += static_cast<size_t>(heap.end - heap.next);
    heap.end = heap.next;
    return p;
}

namespace test
{

HeapFault::HeapFault(unsigned successes, Refused which)
{
    once = which == Refused::One;
    active = true;
    refused = false;
    left = successes;
}

HeapFault::~HeapFault()
{
    active = false;
}

bool HeapFault::struck()
{
    return refused;
}

} // namespace test
