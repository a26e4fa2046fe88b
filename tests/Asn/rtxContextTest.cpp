#include "rtxHeap.h"
#include "rtxType.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <thread>
#include <vector>

// A request that the machine cannot serve ends in a null pointer, also under the sanitizers.
extern "C" const char* __asan_default_options()
{
    return "allocator_may_return_null=1";
}

extern "C" const char* __tsan_default_options()
{
    return "allocator_may_return_null=1";
}

namespace
{

class Context : public testing::Test
{
protected:
    Context()
    {
        EXPECT_EQ(RTX_OK, rtxInitContext(&ctxt));
    }

    ~Context() override
    {
        rtFreeContext(&ctxt);
    }

    OSOCTET* alloc(size_t size)
    {
        return static_cast<OSOCTET*>(rtxMemHeapAlloc(&ctxt, size));
    }

    OSCTXT ctxt;
};

size_t blockCount(const OSCTXT& ctxt)
{
    size_t count = 0;
    for (const RtxHeapBlock* block = ctxt.heap.blocks; block != nullptr; block = block->link)
    {
        ++count;
    }
    return count;
}

TEST_F(Context, InitRefusesNull)
{
    EXPECT_EQ(RTX_E_NULL, rtxInitContext(nullptr));
}

TEST_F(Context, InitAllocatesNothing)
{
    EXPECT_EQ(nullptr, ctxt.heap.blocks);
    EXPECT_EQ(0U, pu_getMsgLen(&ctxt));
}

TEST_F(Context, FreeOfAnUnusedOrFreedContextDoesNothing)
{
    rtFreeContext(&ctxt);
    EXPECT_NE(nullptr, alloc(10));
    rtFreeContext(&ctxt);
    rtFreeContext(&ctxt);
    rtFreeContext(nullptr);
    EXPECT_EQ(nullptr, ctxt.heap.blocks);
}

TEST_F(Context, AFreedContextIsUsedAgain)
{
    ASSERT_NE(nullptr, alloc(100));
    rtFreeContext(&ctxt);
    OSOCTET* const p = alloc(100);
    ASSERT_NE(nullptr, p);
    std::memset(p, 0xAA, 100);
    EXPECT_EQ(1U, blockCount(ctxt));
}

TEST_F(Context, RequestsAreAlignedTo16AndApart)
{
    std::vector<OSOCTET*> all;
    for (const size_t size : {1U, 15U, 16U, 17U, 0U, 40U, 1U})
    {
        OSOCTET* const p = alloc(size);
        ASSERT_NE(nullptr, p);
        EXPECT_EQ(0U, reinterpret_cast<uintptr_t>(p) % 16);
        std::memset(p, static_cast<int>(all.size()), size);
        all.push_back(p);
    }
    EXPECT_EQ(16, all[1] - all[0]);
    EXPECT_EQ(16, all[2] - all[1]);
    EXPECT_EQ(16, all[3] - all[2]);
    EXPECT_EQ(32, all[4] - all[3]);
    EXPECT_EQ(16, all[5] - all[4]) << "an empty request has octets of its own";
    EXPECT_EQ(48, all[6] - all[5]);
}

TEST_F(Context, SixtyFourKibioctetsTakeOneBlock)
{
    for (int i = 0; i < 4096; ++i)
    {
        ASSERT_NE(nullptr, alloc(16));
    }
    EXPECT_EQ(1U, blockCount(ctxt));
    ASSERT_NE(nullptr, alloc(16));
    EXPECT_EQ(2U, blockCount(ctxt));
}

TEST_F(Context, LaterBlocksGrow)
{
    size_t last = 0;
    for (size_t blocks = 1; blocks <= 5; ++blocks)
    {
        while (blockCount(ctxt) < blocks)
        {
            ASSERT_NE(nullptr, alloc(1000));
        }
        EXPECT_GT(ctxt.heap.blocks->size, last);
        last = ctxt.heap.blocks->size;
    }
}

// The check of a pointer's owner looks at every block.
TEST_F(Context, ManyRequestsMakeFewBlocks)
{
    constexpr size_t size = 1024;
    for (size_t taken = 0; taken < 100'000'000; taken += size)
    {
        ASSERT_NE(nullptr, alloc(size));
    }
    EXPECT_LE(blockCount(ctxt), 11U) << "64 KiB doubled ten times hold them";
}

TEST_F(Context, ABlockIsNotLargerThanTheLimit)
{
    constexpr size_t limit = 3 * 64 * 1024;
    rtxMemHeapSetLimit(&ctxt, limit);
    size_t taken = 0;
    while (alloc(16) != nullptr)
    {
        taken += 16;
    }
    EXPECT_EQ(limit, taken);
    EXPECT_EQ(2U, blockCount(ctxt));
    EXPECT_EQ(limit - 64 * 1024, ctxt.heap.blocks->size);
}

TEST_F(Context, OctetsLeftInAnOlderBlockStayWithinTheLimit)
{
    rtxMemHeapSetLimit(&ctxt, 160 * 1024);
    ASSERT_NE(nullptr, alloc(16));
    ASSERT_NE(nullptr, alloc(100 * 1024)); // leaves most of the first block unused
    EXPECT_NE(nullptr, alloc(60 * 1024 - 16));
    EXPECT_EQ(nullptr, alloc(1));
}

TEST_F(Context, ALargeRequestGetsABlockOfItsSize)
{
    ASSERT_NE(nullptr, alloc(1));
    constexpr size_t size = 3'000'000;
    OSOCTET* const p = alloc(size);
    ASSERT_NE(nullptr, p);
    std::memset(p, 0x55, size);
    EXPECT_EQ(2U, blockCount(ctxt));
    EXPECT_NE(0, rtxMemHeapOwns(&ctxt, p, size));
}

TEST_F(Context, RequestsThatNoMachineServesAreNull)
{
    EXPECT_EQ(nullptr, alloc(SIZE_MAX));
    EXPECT_EQ(nullptr, alloc(SIZE_MAX - 14));
    EXPECT_EQ(nullptr, alloc(SIZE_MAX - 15));
    EXPECT_EQ(nullptr, alloc(SIZE_MAX - 40));
    EXPECT_EQ(nullptr, alloc(SIZE_MAX / 2));
    EXPECT_EQ(RTX_OK, ctxt.error.status);
    EXPECT_NE(nullptr, alloc(16)) << "a refused request changes nothing";
}

// What a request is rounded up to, and what its block's head takes besides, must not begin again at 0: behind octets
// that are handed out a small remainder would look like enough.
TEST_F(Context, HugeRequestsBesideOthersAreNull)
{
    OSOCTET* const p = alloc(1000);
    ASSERT_NE(nullptr, p);
    std::memset(p, 0x77, 1000);
    for (size_t less = 0; less <= 256; ++less)
    {
        ASSERT_EQ(nullptr, alloc(SIZE_MAX - less)) << less;
        if (sizeof(size_t) > 4) // a system of 32 bits may well have 2 GiB
        {
            ASSERT_EQ(nullptr, alloc(SIZE_MAX / 2 - less)) << less;
        }
        ASSERT_EQ(nullptr, alloc(SIZE_MAX / 2 + 1 + less)) << less;
    }
    EXPECT_EQ(1U, blockCount(ctxt));
    EXPECT_EQ(p + 1008, alloc(16)) << "a refused request changes nothing";
    EXPECT_EQ(1000, std::count(p, p + 1000, 0x77));
}

TEST_F(Context, AScopeGivesBackWhatWasTakenWithinIt)
{
    ASSERT_NE(nullptr, alloc(100));
    rtxMemHeapSetLimit(&ctxt, 300'000);
    OSOCTET* within = nullptr;
    {
        const rtx::HeapScope scope(ctxt);
        within = alloc(2000);
        ASSERT_NE(nullptr, within);
        std::memset(within, 0xEE, 2000);
        OSOCTET* const large = alloc(200'000);
        ASSERT_NE(nullptr, large);
        std::memset(large, 0xEE, 200'000);
        EXPECT_EQ(2U, blockCount(ctxt));
    }
    EXPECT_EQ(1U, blockCount(ctxt)) << "without the block that was added";
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, within, 1));
    OSOCTET* const again = alloc(2000);
    EXPECT_EQ(within, again);
    EXPECT_EQ(2000, std::count(again, again + 2000, 0)) << "cleared once more";
    EXPECT_NE(nullptr, alloc(298'000)) << "the limit counts what the scope took no more";
    EXPECT_EQ(nullptr, alloc(1));
}

TEST_F(Context, AScopeWithinOneBlockAndOneInWhichNothingIsTaken)
{
    OSOCTET* const before = alloc(16);
    {
        const rtx::HeapScope scope(ctxt);
    }
    {
        const rtx::HeapScope scope(ctxt);
        OSOCTET* const p = alloc(32);
        ASSERT_EQ(before + 16, p);
        std::memset(p, 0xEE, 32);
    }
    OSOCTET* const p = alloc(64);
    ASSERT_EQ(before + 16, p);
    EXPECT_EQ(64, std::count(p, p + 64, 0));
    OSCTXT empty;
    ASSERT_EQ(RTX_OK, rtxInitContext(&empty));
    {
        const rtx::HeapScope scope(empty);
        ASSERT_NE(nullptr, rtxMemHeapAlloc(&empty, 10));
    }
    EXPECT_EQ(nullptr, empty.heap.blocks) << "nothing is left to free";
}

TEST_F(Context, TheLimitCountsRoundedRequests)
{
    rtxMemHeapSetLimit(&ctxt, 64);
    EXPECT_NE(nullptr, alloc(17)); // 32
    EXPECT_EQ(nullptr, alloc(33)); // 48
    EXPECT_NE(nullptr, alloc(16));
    EXPECT_NE(nullptr, alloc(0)); // 16
    EXPECT_EQ(nullptr, alloc(0));
    EXPECT_EQ(nullptr, alloc(1));
    EXPECT_EQ(RTX_OK, ctxt.error.status) << "exhaustion is the caller's to report";
}

TEST_F(Context, ALimitOf15IsTooLittleForAnything)
{
    rtxMemHeapSetLimit(&ctxt, 15);
    EXPECT_EQ(nullptr, alloc(1));
    EXPECT_EQ(nullptr, ctxt.heap.blocks);
}

TEST_F(Context, TheLimitCountsFromItsCall)
{
    ASSERT_NE(nullptr, alloc(1000));
    rtxMemHeapSetLimit(&ctxt, 16);
    EXPECT_NE(nullptr, alloc(16));
    EXPECT_EQ(nullptr, alloc(16));
    rtxMemHeapSetLimit(&ctxt, 16);
    EXPECT_NE(nullptr, alloc(16));
}

TEST_F(Context, ALimitWithinWhatIsClearedCountsRoundedRequests)
{
    ASSERT_NE(nullptr, alloc(500));
    rtxMemHeapSetLimit(&ctxt, 31);
    EXPECT_NE(nullptr, alloc(16));
    EXPECT_EQ(nullptr, alloc(1)); // 16
}

TEST_F(Context, FreeEndsTheLimit)
{
    rtxMemHeapSetLimit(&ctxt, 0);
    EXPECT_EQ(nullptr, alloc(16));
    rtFreeContext(&ctxt);
    EXPECT_NE(nullptr, alloc(100'000));
}

TEST_F(Context, OwnsWhatItHandedOut)
{
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, &ctxt, 1)) << "without a block";
    OSOCTET* const p = alloc(32);
    ASSERT_NE(nullptr, p);
    EXPECT_NE(0, rtxMemHeapOwns(&ctxt, p, 32));
    EXPECT_NE(0, rtxMemHeapOwns(&ctxt, p + 31, 1));
    EXPECT_NE(0, rtxMemHeapOwns(&ctxt, p + 5, 0));
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, p, 33)) << "the octets behind are not handed out";
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, p + 31, 2));
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, p + 32, 1));
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, p - 1, 1)) << "the block's head";
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, p - 1, 5));
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, p + 1, SIZE_MAX));
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, nullptr, 1));
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, &ctxt, sizeof ctxt));
}

TEST_F(Context, OwnsWhatLiesInOlderBlocks)
{
    OSOCTET* const first = alloc(64);
    OSOCTET* const second = alloc(100'000);
    OSOCTET* const third = alloc(1'000'000);
    ASSERT_NE(nullptr, third);
    EXPECT_EQ(3U, blockCount(ctxt));
    EXPECT_NE(0, rtxMemHeapOwns(&ctxt, first, 64));
    EXPECT_NE(0, rtxMemHeapOwns(&ctxt, second, 100'000));
    EXPECT_NE(0, rtxMemHeapOwns(&ctxt, third, 1'000'000));
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, first + 64, 1)) << "was never handed out";
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, first, 65));
}

TEST_F(Context, OwnsNothingOfAnotherContext)
{
    OSCTXT other;
    ASSERT_EQ(RTX_OK, rtxInitContext(&other));
    void* const p = rtxMemHeapAlloc(&other, 16);
    ASSERT_NE(nullptr, p);
    ASSERT_NE(nullptr, alloc(16));
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, p, 16));
    EXPECT_NE(0, rtxMemHeapOwns(&other, p, 16));
    rtFreeContext(&other);
}

TEST_F(Context, HandsOutClearedOctets)
{
    std::vector<OSOCTET> memory(100'000);
    for (int i = 0; i < 3; ++i)
    {
        rtxMemHeapSetMemory(&ctxt, memory.data(), memory.size());
        for (const size_t size : {0U, 1U, 16U, 33U, 1000U, 2000U, 5U, 1024U, 1008U, 20'000U, 7U, 100'000U, 1U, 5000U})
        {
            rtxMemHeapSetLimit(&ctxt, SIZE_MAX);
            OSOCTET* const p = alloc(size);
            ASSERT_NE(nullptr, p);
            EXPECT_EQ(static_cast<ptrdiff_t>(size), std::count(p, p + size, 0));
            std::memset(p, 0xEE, size);
            rtxMemHeapSetLimit(&ctxt, 16);
        }
        rtFreeContext(&ctxt);
    }
}

TEST_F(Context, RemembersThatARequestWasRefused)
{
    EXPECT_EQ(0, rtxMemHeapFailed(&ctxt));
    ASSERT_NE(nullptr, alloc(100));
    EXPECT_EQ(0, rtxMemHeapFailed(&ctxt));
    rtxMemHeapSetLimit(&ctxt, 16);
    EXPECT_EQ(nullptr, alloc(17));
    EXPECT_NE(0, rtxMemHeapFailed(&ctxt));
    EXPECT_NE(nullptr, alloc(16));
    EXPECT_NE(0, rtxMemHeapFailed(&ctxt)) << "a later request that is served changes nothing";
    rtFreeContext(&ctxt);
    EXPECT_EQ(0, rtxMemHeapFailed(&ctxt));
    EXPECT_EQ(nullptr, alloc(SIZE_MAX));
    EXPECT_NE(0, rtxMemHeapFailed(&ctxt));
    ASSERT_EQ(RTX_OK, rtxInitContext(&ctxt));
    EXPECT_EQ(0, rtxMemHeapFailed(&ctxt));
}

// Memory of the caller's, with octets around it that nobody may touch.
class CallersMemory : public Context
{
protected:
    static constexpr size_t size = 4096;

    bool within(const OSOCTET* p, size_t count) const
    {
        return p >= memory && p + count <= memory + size;
    }

    size_t octetsTaken(size_t request)
    {
        size_t taken = 0;
        for (OSOCTET* p = alloc(request); p != nullptr; p = alloc(request))
        {
            EXPECT_TRUE(within(p, request));
            EXPECT_EQ(0U, reinterpret_cast<uintptr_t>(p) % 16);
            std::memset(p, 0x55, request);
            taken += request;
        }
        return taken;
    }

    alignas(16) OSOCTET memory[size];
};

TEST_F(CallersMemory, IsTakenFirst)
{
    EXPECT_GE(rtxMemHeapSetMemory(&ctxt, memory, size), size - 64);
    EXPECT_TRUE(within(alloc(1000), 1000));
    EXPECT_TRUE(within(alloc(1000), 1000));
    OSOCTET* const beyond = alloc(3000);
    ASSERT_NE(nullptr, beyond);
    EXPECT_FALSE(within(beyond, 3000));
    std::memset(beyond, 0x55, 3000);
    EXPECT_NE(nullptr, alloc(60 * 1024));
    EXPECT_EQ(2U, blockCount(ctxt)) << "the next block is one as without memory of the caller's";
}

TEST_F(CallersMemory, HoldsEverythingUnderALimit)
{
    for (size_t shift = 0; shift < 16; ++shift)
    {
        for (size_t cut = 0; cut < 16; ++cut)
        {
            std::memset(memory, 0xA5, size);
            const size_t given = rtxMemHeapSetMemory(&ctxt, memory + shift, size - 16 - cut - shift);
            EXPECT_GE(given, size - 16 - 16 - 64);
            rtxMemHeapSetLimit(&ctxt, given);
            EXPECT_EQ(given, octetsTaken(16));
            EXPECT_EQ(1U, blockCount(ctxt));
            for (size_t i = 0; i < shift; ++i)
            {
                EXPECT_EQ(0xA5, memory[i]);
            }
            for (size_t i = size - 16 - cut; i < size; ++i)
            {
                EXPECT_EQ(0xA5, memory[i]);
            }
            rtFreeContext(&ctxt);
        }
    }
}

TEST_F(CallersMemory, IsUsedAgainAfterFree)
{
    const size_t given = rtxMemHeapSetMemory(&ctxt, memory, size);
    for (int i = 0; i < 3; ++i)
    {
        rtxMemHeapSetLimit(&ctxt, given);
        EXPECT_EQ(given, octetsTaken(16));
        rtFreeContext(&ctxt);
        EXPECT_TRUE(within(alloc(16), 16));
        EXPECT_NE(nullptr, alloc(100'000)) << "the limit has ended";
        rtFreeContext(&ctxt);
    }
}

TEST_F(CallersMemory, EndsWithTheContext)
{
    ASSERT_NE(0U, rtxMemHeapSetMemory(&ctxt, memory, size));
    ASSERT_EQ(RTX_OK, rtxInitContext(&ctxt));
    OSOCTET* const p = alloc(16);
    ASSERT_NE(nullptr, p);
    EXPECT_FALSE(within(p, 16));
}

TEST_F(CallersMemory, IsRefusedTooSmallOrTooLate)
{
    EXPECT_EQ(0U, rtxMemHeapSetMemory(&ctxt, nullptr, size));
    EXPECT_EQ(0U, rtxMemHeapSetMemory(&ctxt, memory, 0));
    EXPECT_EQ(0U, rtxMemHeapSetMemory(&ctxt, memory + 1, 1));
    EXPECT_EQ(0U, rtxMemHeapSetMemory(&ctxt, memory, sizeof(RtxHeapBlock) + 15));
    EXPECT_EQ(16U, rtxMemHeapSetMemory(&ctxt, memory, sizeof(RtxHeapBlock) + 16));
    EXPECT_EQ(0U, rtxMemHeapSetMemory(&ctxt, memory, 8)) << "and ends the memory before";
    OSOCTET* const p = alloc(16);
    ASSERT_NE(nullptr, p);
    EXPECT_FALSE(within(p, 16));
    EXPECT_EQ(0U, rtxMemHeapSetMemory(&ctxt, memory, size)) << "the heap is in use";
    EXPECT_FALSE(within(alloc(16), 16));
}

TEST_F(CallersMemory, IsOwnedAsFarAsItIsHandedOut)
{
    ASSERT_NE(0U, rtxMemHeapSetMemory(&ctxt, memory, size));
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, memory, 1));
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, memory + sizeof(RtxHeapBlock), 1));
    OSOCTET* const first = alloc(100);
    ASSERT_NE(nullptr, first);
    EXPECT_NE(0, rtxMemHeapOwns(&ctxt, first, 112));
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, first, 113));
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, memory, 1)) << "the block's head";
    OSOCTET* const beyond = alloc(100'000);
    ASSERT_NE(nullptr, beyond);
    EXPECT_NE(0, rtxMemHeapOwns(&ctxt, first, 112));
    EXPECT_NE(0, rtxMemHeapOwns(&ctxt, beyond, 100'000));
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, first + 112, 1));
    rtFreeContext(&ctxt);
    EXPECT_EQ(0, rtxMemHeapOwns(&ctxt, first, 1));
}

TEST_F(CallersMemory, ALimitBelowItHolds)
{
    ASSERT_NE(0U, rtxMemHeapSetMemory(&ctxt, memory, size));
    rtxMemHeapSetLimit(&ctxt, 40);
    EXPECT_EQ(32U, octetsTaken(16));
    rtxMemHeapSetLimit(&ctxt, 48);
    EXPECT_EQ(48U, octetsTaken(16));
    rtxMemHeapSetLimit(&ctxt, SIZE_MAX);
    EXPECT_NE(nullptr, alloc(100'000)) << "no limit any more";
}

TEST(List, AppendsAtTheTail)
{
    OSRTDList list = {};
    OSRTDListNode nodes[3];
    int data[3] = {};
    for (size_t i = 0; i < 3; ++i)
    {
        std::memset(&nodes[i], 0xEE, sizeof nodes[i]);
        nodes[i].data = &data[i];
        rtxDListAppendNode(&list, &nodes[i]);
        EXPECT_EQ(i + 1, list.count);
        EXPECT_EQ(&nodes[i], list.tail);
        EXPECT_EQ(nullptr, nodes[i].next);
        EXPECT_EQ(&data[i], nodes[i].data);
    }
    EXPECT_EQ(&nodes[0], list.head);
    EXPECT_EQ(nullptr, nodes[0].prev);
    EXPECT_EQ(&nodes[1], nodes[0].next);
    EXPECT_EQ(&nodes[0], nodes[1].prev);
    EXPECT_EQ(&nodes[2], nodes[1].next);
    EXPECT_EQ(&nodes[1], nodes[2].prev);
}

TEST_F(Context, BindsABuffer)
{
    OSOCTET octets[4];
    EXPECT_EQ(RTX_OK, pu_setBuffer(&ctxt, octets, sizeof octets, 0));
    EXPECT_EQ(octets, ctxt.buffer.data);
    EXPECT_EQ(4U, ctxt.buffer.capacity);
    EXPECT_EQ(0U, pu_getMsgLen(&ctxt));
    EXPECT_EQ(RTX_OK, pu_setBuffer(&ctxt, octets, 0, 0)) << "a buffer without octets is one";
}

TEST_F(Context, RefusesNoBuffer)
{
    OSOCTET octets[4];
    ASSERT_EQ(RTX_OK, pu_setBuffer(&ctxt, octets, sizeof octets, 0));
    EXPECT_EQ(RTX_E_NULL, pu_setBuffer(&ctxt, nullptr, 8192, 0));
    EXPECT_EQ(nullptr, ctxt.buffer.data) << "the buffer before is unbound";
}

TEST_F(Context, RefusesAlignedPer)
{
    OSOCTET octets[4];
    EXPECT_EQ(RTX_E_ALIGNED, pu_setBuffer(&ctxt, octets, sizeof octets, 1));
    EXPECT_EQ(nullptr, ctxt.buffer.data);
    EXPECT_EQ(RTX_E_ALIGNED, ctxt.error.status);
    EXPECT_EQ(RTX_E_ALIGNED, pu_setBuffer(&ctxt, octets, sizeof octets, 0x80)) << "any non-zero octet is true";
}

TEST_F(Context, ThePrintedContextIsPerThreadAndEndsWithIt)
{
    rtxPrintSetContext(&ctxt);
    EXPECT_EQ(&ctxt, rtx::printContext());
    const OSCTXT* elsewhere = &ctxt;
    std::thread([&] { elsewhere = rtx::printContext(); }).join();
    EXPECT_EQ(nullptr, elsewhere);

    OSCTXT other;
    ASSERT_EQ(RTX_OK, rtxInitContext(&other));
    rtFreeContext(&other);
    EXPECT_EQ(&ctxt, rtx::printContext()) << "another context's end";

    rtFreeContext(&ctxt);
    EXPECT_EQ(nullptr, rtx::printContext());
    rtxPrintSetContext(&ctxt);
    EXPECT_EQ(RTX_OK, rtxInitContext(&ctxt));
    EXPECT_EQ(nullptr, rtx::printContext()) << "a new context at an old address";
    rtxPrintSetContext(&ctxt);
    rtxPrintSetContext(nullptr);
    EXPECT_EQ(nullptr, rtx::printContext());
}

} // namespace
