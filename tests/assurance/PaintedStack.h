// How deep a call goes into its stack.
#ifndef PAINTEDSTACK_H
#define PAINTEDSTACK_H

#include <pthread.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <new>
#include <span>

namespace assurance
{

// A stack of its own, filled with a pattern, on which calls run one after the other.
class PaintedStack
{
public:
    PaintedStack() : octets_(static_cast<std::uint8_t*>(::operator new (size, std::align_val_t{4096})))
    {
        base_ = deepest([] {});
    }
    ~PaintedStack()
    {
        ::operator delete (octets_, std::align_val_t{4096});
    }
    PaintedStack(const PaintedStack&) = delete;
    PaintedStack& operator=(const PaintedStack&) = delete;

    // Octets of stack that the call takes beyond those that starting its thread takes.
    std::size_t use(const std::function<void()>& call)
    {
        const std::size_t all = deepest(call);
        return all - std::min(all, base_);
    }

private:
    static constexpr std::size_t size = std::size_t{1} << 20;
    static constexpr std::uint8_t paint = 0xB7;

    static void* work(void* call)
    {
        (*static_cast<const std::function<void()>*>(call))();
        return nullptr;
    }

    std::size_t deepest(const std::function<void()>& call)
    {
        const std::span octets(octets_, size);
        std::fill(octets.begin(), octets.end(), paint);
        pthread_attr_t attributes;
        pthread_t thread;
        if (pthread_attr_init(&attributes) != 0 || pthread_attr_setstack(&attributes, octets_, size) != 0 ||
            pthread_create(&thread, &attributes, work, const_cast<std::function<void()>*>(&call)) != 0 ||
            pthread_join(thread, nullptr) != 0)
        {
            std::abort();
        }
        pthread_attr_destroy(&attributes);
        const auto used = std::find_if(octets.begin(), octets.end(), [](std::uint8_t octet) { return octet != paint; });
        return static_cast<std::size_t>(octets.end() - used);
    }

    std::uint8_t* octets_;
    std::size_t base_ = 0;
};

} // namespace assurance

#endif
