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
#include <sys/mman.h>

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

// Reads so many octets line by line and calls 1 MB of functions of one line each, so that the caches hold nothing else:
// without the latter, code that is run often stays in the innermost one.
class Walk
{
public:
    explicit Walk(std::size_t octets) : data_(octets / sizeof(uint64_t), 1) {}

    void operator()() const
    {
        readData();
        code().call();
    }

    void readData() const
    {
        uint64_t sum = 0;
        for (std::size_t i = 0; i < data_.size(); i += lineSize / sizeof(uint64_t))
        {
            sum += data_[i];
        }
        benchmark::DoNotOptimize(sum);
    }

    std::size_t lines() const
    {
        return data_.size() * sizeof(uint64_t) / lineSize;
    }

private:
    class Code
    {
    public:
        Code() : begin_(mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))
        {
            if (begin_ == MAP_FAILED)
            {
                std::abort();
            }
            auto* const instructions = static_cast<Instruction*>(begin_);
            std::fill_n(instructions, size / sizeof(Instruction), returnInstruction);
            __builtin___clear_cache(static_cast<char*>(begin_), static_cast<char*>(begin_) + size);
            if (mprotect(begin_, size, PROT_READ | PROT_EXEC) != 0)
            {
                std::abort();
            }
        }

        void call() const
        {
            for (std::size_t i = 0; i < size; i += lineSize)
            {
                reinterpret_cast<void (*)()>(reinterpret_cast<uintptr_t>(begin_) + i)();
            }
        }

    private:
#if defined __x86_64__
        using Instruction = uint8_t;
        static constexpr Instruction returnInstruction = 0xC3;
#elif defined __aarch64__
        using Instruction = uint32_t;
        static constexpr Instruction returnInstruction = 0xD65F03C0;
#else
#error "which instruction returns?"
#endif
        static constexpr std::size_t size = std::size_t{1} << 20;

        void* begin_;
    };

    static const Code& code()
    {
        static const Code all; // lives as long as the program
        return all;
    }

    std::vector<uint64_t> data_;
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
