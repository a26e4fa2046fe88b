#include "HeapFault.h"

extern "C" void* __real_rtxMemHeapAlloc(OSCTXT* pctxt, size_t size);
extern "C" void* __wrap_rtxMemHeapAlloc(OSCTXT* pctxt, size_t size);

namespace
{

thread_local bool active = false;
thread_local bool refused = false;
thread_local unsigned left = 0;

} // namespace

extern "C" void* __wrap_rtxMemHeapAlloc(OSCTXT* pctxt, size_t size)
{
    if (active && left == 0)
    {
        refused = true;
        return nullptr;
    }
    left -= active ? 1U : 0U;
    return __real_rtxMemHeapAlloc(pctxt, size);
}

namespace test
{

HeapFault::HeapFault(unsigned successes)
{
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
