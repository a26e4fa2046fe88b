// What a check needs besides the stack: taken from the context's heap, never given back one by one.
#ifndef MODEL_MEMORY_H
#define MODEL_MEMORY_H

#include "rtxHeap.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <span>
#include <type_traits>

namespace rules
{

class Memory
{
public:
    explicit Memory(OSCTXT& ctxt) : ctxt_(ctxt) {}

    // `count` cleared objects; null, and failed() from then on, when the heap is exhausted.
    template <typename T>
    T* take(size_t count = 1)
    {
        static_assert(std::is_trivially_destructible_v<T> && alignof(T) <= rtx::granule);
        void* const p = count == 0 ? nullptr : rtx::allocate(ctxt_, count * sizeof(T));
        failed_ = failed_ || (count != 0 && p == nullptr);
        return static_cast<T*>(p);
    }

    bool failed() const
    {
        return failed_;
    }

    // A text of at most 511 characters, what is longer ends in "..."; empty when the heap is exhausted.
    const char* format(const char* format, va_list args)
    {
        char text[512];
        const int length = std::vsnprintf(text, sizeof text, format, args);
        if (length >= static_cast<int>(sizeof text))
        {
            std::memcpy(text + sizeof text - 4, "...", 4);
        }
        const size_t size = std::strlen(text) + 1;
        char* const kept = take<char>(size);
        return kept == nullptr ? "" : static_cast<const char*>(std::memcpy(kept, text, size));
    }

private:
    OSCTXT& ctxt_;
    bool failed_ = false;
};

// A sequence that grows. Its elements move when it does.
template <typename T>
class Vector
{
public:
    void add(Memory& memory, const T& value)
    {
        static_assert(std::is_trivially_copyable_v<T>);
        if (size_ == capacity_ && !grow(memory))
        {
            return;
        }
        data_[size_++] = value;
    }

    T* begin()
    {
        return data_;
    }
    T* end()
    {
        return data_ + size_;
    }
    const T* begin() const
    {
        return data_;
    }
    const T* end() const
    {
        return data_ + size_;
    }
    T& operator[](size_t index)
    {
        return data_[index];
    }
    const T& operator[](size_t index) const
    {
        return data_[index];
    }
    size_t size() const
    {
        return size_;
    }
    bool empty() const
    {
        return size_ == 0;
    }

private:
    bool grow(Memory& memory)
    {
        const size_t capacity = capacity_ == 0 ? 4 : 2 * capacity_;
        T* const data = memory.take<T>(capacity);
        if (data == nullptr)
        {
            return false;
        }
        for (size_t i = 0; i < size_; ++i)
        {
            data[i] = data_[i];
        }
        data_ = data;
        capacity_ = capacity;
        return true;
    }

    T* data_ = nullptr;
    size_t size_ = 0;
    size_t capacity_ = 0;
};

} // namespace rules

#endif
