#include "memory.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

thread_local assurance::Memory assurance::memory;

extern "C" void* __real_malloc(std::size_t size);
extern "C" void __real_free(void* p);
extern "C" void* __wrap_malloc(std::size_t size);
extern "C" void __wrap_free(void* p);

extern "C" void* __wrap_malloc(std::size_t size)
{
    assurance::Memory& memory = assurance::memory;
    ++memory.asked;
    if (memory.failing != 0 && (memory.asked == memory.failing || (memory.failingOn && memory.asked > memory.failing)))
    {
        memory.hasFailed = true;
        return nullptr;
    }
    void* const p = __real_malloc(size);
    ++memory.live;
    memory.used += malloc_usable_size(p);
    memory.peak = std::max(memory.peak, memory.used);
    return p;
}

extern "C" void __wrap_free(void* p)
{
    if (p != nullptr)
    {
        --assurance::memory.live;
        assurance::memory.used -= malloc_usable_size(p);
    }
    __real_free(p);
}

void* operator new(std::size_t size)
{
    void* const p = __wrap_malloc(size == 0 ? 1 : size);
    if (p == nullptr)
    {
        throw std::bad_alloc();
    }
    return p;
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    return __wrap_malloc(size == 0 ? 1 : size);
}

void operator delete(void* p) noexcept
{
    __wrap_free(p);
}

void operator delete(void* p, std::size_t) noexcept
{
    __wrap_free(p);
}
