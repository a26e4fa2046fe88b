// What a composition asks of the system's heap and of the stack.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pthread.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "NR-RRC-Definitions.h"
#include "cellGroupDeltas.h"
#include "oneBearer.h"
#include "reconfigurationWithSync.h"
#include "releases.h"
#include "rrcCodec/rrcCompose.h"
#include "secondaryCells.h"
#include "support/CapturedOutput.h"
#include "typicalCall.h"

namespace
{

unsigned calls = 0;

unsigned callsOf(void (*fill)(RrcCellGroupCfg_t&))
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    fill(*record);
    std::vector<UINT8> octets(8192);
    Mbuf_t message = {0, octets.data()};
    calls = 0;
    const INT32 result = rrcComposeCellGroupCfg(record.get(), &message);
    const unsigned counted = calls;
    EXPECT_EQ(result, 0);
    EXPECT_NE(message.bufLen, 0U);
    return counted;
}

// The sanitizers put room between the variables of a function.
#ifdef __has_feature
constexpr bool sanitized = __has_feature(address_sanitizer) || __has_feature(thread_sanitizer);
#elif defined(__SANITIZE_ADDRESS__)
constexpr bool sanitized = true;
#else
constexpr bool sanitized = false;
#endif

constexpr OSOCTET untouched = 0xA5;

// Octets of its stack that a thread has touched when it has run.
size_t touchedBy(void* (*run)(void*), void* arg)
{
    constexpr size_t page = 4096;
    constexpr size_t size = 64 * page;
    auto* const stack = static_cast<OSOCTET*>(std::aligned_alloc(page, size));
    std::fill_n(stack, size, untouched);
    pthread_attr_t attributes;
    pthread_t thread;
    EXPECT_EQ(pthread_attr_init(&attributes), 0);
    EXPECT_EQ(pthread_attr_setstack(&attributes, stack, size), 0);
    EXPECT_EQ(pthread_create(&thread, &attributes, run, arg), 0);
    EXPECT_EQ(pthread_join(thread, nullptr), 0);
    pthread_attr_destroy(&attributes);
    const auto rest = std::find_if(stack, stack + size, [](OSOCTET octet) { return octet != untouched; }) - stack;
    std::free(stack);
    return size - static_cast<size_t>(rest);
}

void* nothing(void* record)
{
    return record;
}

void* composed(void* record)
{
    static UINT8 octets[8192];
    Mbuf_t message = {0, octets};
    (void)rrcComposeCellGroupCfg(static_cast<RrcCellGroupCfg_t*>(record), &message);
    return record;
}

void* composedInMemory(void* record)
{
    static UINT8 octets[8192];
    static OSOCTET memory[RRC_COMPOSE_MEMORY_SIZE];
    size_t length;
    char error[512];
    (void)rrcEncodeCellGroupCfgInMemory(static_cast<RrcCellGroupCfg_t*>(record), memory, sizeof memory, octets,
                                        sizeof octets, &length, error, sizeof error);
    return record;
}

struct Records
{
    RrcCellGroupCfg_t prev;
    RrcCellGroupCfg_t next;
};

void* deltaComposed(void* records)
{
    static UINT8 octets[8192];
    Mbuf_t message = {0, octets};
    auto* const both = static_cast<Records*>(records);
    (void)rrcComposeCellGroupDelta(&both->prev, &both->next, &message);
    return records;
}

} // namespace

extern "C" void* __real_malloc(size_t size);
extern "C" void* __wrap_malloc(size_t size);

extern "C" void* __wrap_malloc(size_t size)
{
    ++calls;
    return __real_malloc(size);
}

// The tree of a typical call lies on the entry's stack, a larger one takes one block beside it.
TEST(Malloc, LargeMessagesOnlyTakeABlock)
{
    EXPECT_EQ(callsOf(oneBearer), 0U);
    EXPECT_EQ(callsOf(reconfigurationWithSync), 0U);
    EXPECT_EQ(callsOf(typicalCall), 0U);
    EXPECT_EQ(callsOf(secondaryCells), 1U);
    EXPECT_EQ(callsOf(releases), 0U);
}

// What the caller's memory holds is composed, encoded, decoded and printed without malloc.
TEST(Malloc, NoneWithTheCallersMemory)
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    secondaryCells(*record);
    std::vector<OSOCTET> octets(8192);
    std::vector<OSOCTET> memory(256 * 1024);
    Mbuf_t message = {0, octets.data()};
    ASSERT_EQ(rrcComposeCellGroupCfg(record.get(), &message), 0);

    OSCTXT context;
    rtxInitContext(&context);
    rtxMemHeapSetLimit(&context, rtxMemHeapSetMemory(&context, memory.data(), memory.size()));
    std::vector<OSOCTET> again(message.bufLen);
    CellGroupConfig tree;
    calls = 0;
    for (int i = 0; i < 2; ++i)
    {
        pu_setBuffer(&context, octets.data(), message.bufLen, 0);
        EXPECT_EQ(asn1PD_CellGroupConfig(&context, &tree), 0);
        pu_setBuffer(&context, again.data(), again.size(), 0);
        EXPECT_EQ(asn1PE_CellGroupConfig(&context, &tree), 0);
        rtFreeContext(&context);
        rtxMemHeapSetLimit(&context, rtxMemHeapSetMemory(&context, memory.data(), memory.size()));
    }
    EXPECT_EQ(calls, 0U);
    EXPECT_EQ(again, std::vector<OSOCTET>(octets.begin(), octets.begin() + message.bufLen));
    rtFreeContext(&context);
}

// A refusal, which prints the tree, is the deepest call.
TEST(Stack, TheEntryStaysWithin32Kibioctets)
{
    const auto record = std::make_unique_for_overwrite<RrcCellGroupCfg_t>();
    secondaryCells(*record);
    const size_t start = touchedBy(nothing, record.get());
    const size_t success = touchedBy(composed, record.get()) - start;
    const size_t inMemory = touchedBy(composedInMemory, record.get()) - start;
    record->cellGroupId = 9;
    const size_t refusalInMemory = touchedBy(composedInMemory, record.get()) - start;
    size_t refusal = 0;
    std::string printed;
    {
        test::CapturedOutput output;
        refusal = touchedBy(composed, record.get()) - start;
        printed = output.take();
    }
    EXPECT_THAT(printed, testing::HasSubstr("CellGroupConfig.cellGroupId: 9 is not in 0..3"));
    // A sanitizer's instrumentation moves what lies in the frame, also out of the stack.
    if (!sanitized)
    {
        EXPECT_GE(success, 16U * 1024);
        EXPECT_LE(success, 32U * 1024);
#ifdef __s390x__ // where each frame, of the C library, too, has 160 octets more to save registers in
        EXPECT_LE(refusal, 36U * 1024);
#else
        EXPECT_LE(refusal, 32U * 1024);
#endif
        // 32-bit x86 hands over all arguments on it.
        const size_t most = sizeof(void*) == 8 ? 8U * 1024 : 12U * 1024;
        EXPECT_LE(inMemory, most);
        EXPECT_LE(refusalInMemory, most);
    }
}

TEST(Stack, ADeltaStaysWithin64Kibioctets)
{
    const auto records = std::make_unique<Records>();
    secondaryCells(records->prev);
    records->next = records->prev;
    changeReport(records->next);
    const size_t start = touchedBy(nothing, records.get());
    const size_t success = touchedBy(deltaComposed, records.get()) - start;
    records->next.rlcBearerCfg[0].rbId = 2;
    size_t refusal = 0;
    std::string printed;
    {
        test::CapturedOutput output;
        refusal = touchedBy(deltaComposed, records.get()) - start;
        printed = output.take();
    }
    EXPECT_THAT(printed, testing::HasSubstr("servedRadioBearer: refused: "));
    EXPECT_GE(success, (sanitized ? 12U : 16U) * 1024);
    if (!sanitized)
    {
        EXPECT_LE(success, 64U * 1024);
        EXPECT_LE(refusal, 64U * 1024);
    }
}
