#include "heap.h"

#include <malloc.h>

#include <algorithm>

thread_local bench::Heap bench::heap;

extern "C" void* __real_malloc(size_t size);
extern "C" void __real_free(void* p);
extern "C" void* __wrap_malloc(size_t size);
extern "C" void __wrap_free(void* p);

extern "C" void* __wrap_malloc(size_t size)
{
    void* const p = __real_malloc(size);
    ++bench::heap.calls;
    bench::heap.used += malloc_usable_size(p);
    bench::heap.peak = std::max(bench::heap.peak, bench::heap.used);
    return p;
}

extern "C" void __wrap_free(void* p)
{
    bench::heap.used -= malloc_usable_size(p);
    __real_free(p);
}
