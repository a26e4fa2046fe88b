// What a program does between two calls: it walks memory of its own, or it uses the heap.
#ifndef DISTURB_H
#define DISTURB_H

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <random>
#include <vector>

#include <benchmark/benchmark.h>

namespace bench
{

constexpr std::size_t lineSize = 64;

// Seconds that a call takes.
template <typename Call>
double timeOf(Call call)
{
    const auto begin = std::chrono::steady_clock::now();
    call();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

// Reads so many octets line by line, so that the caches hold nothing else.
class Walk
{
public:
    explicit Walk(std::size_t octets) : memory_(octets / sizeof(uint64_t), 1) {}

    void operator()() const
    {
        uint64_t sum = 0;
        for (std::size_t i = 0; i < memory_.size(); i += lineSize / sizeof(uint64_t))
        {
            sum += memory_[i];
        }
        benchmark::DoNotOptimize(sum);
    }

    std::size_t lines() const
    {
        return memory_.size() * sizeof(uint64_t) / lineSize;
    }

private:
    std::vector<uint64_t> memory_;
};

// Lines that are read one after the other, in an order that no prefetcher knows: what one costs after a walk is the
// unit of what a call costs then.
class Chain
{
public:
    static constexpr std::size_t lines = 1024;

    Chain() : memory_(lines)
    {
        std::vector<uint32_t> order(lines);
        std::iota(order.begin(), order.end(), 0);
        std::shuffle(order.begin(), order.end(), std::mt19937(1));
        for (std::size_t i = 0; i < lines; ++i)
        {
            memory_[order[i]].next = order[(i + 1) % lines];
        }
    }

    void operator()() const
    {
        uint32_t at = 0;
        for (std::size_t i = 0; i < lines; ++i)
        {
            at = memory_[at].next;
        }
        benchmark::DoNotOptimize(at);
    }

private:
    struct alignas(lineSize) Line
    {
        uint32_t next;
    };
    std::vector<Line> memory_;
};

// 1,000 malloc and free of 16 to 271 octets, at most 300 at once and none left.
class ForeignHeap
{
public:
    void operator()()
    {
        std::array<void*, 300> blocks{};
        for (unsigned i = 0; i < 1000; ++i)
        {
            const auto chance = random_();
            void*& block = blocks[(chance >> 8) % blocks.size()];
            std::free(block);
            block = std::malloc(16 + chance % 256);
            benchmark::DoNotOptimize(block);
        }
        for (void* block : blocks)
        {
            std::free(block);
        }
    }

private:
    std::mt19937 random_{1};
};

} // namespace bench

#endif
