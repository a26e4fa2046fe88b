// What a composition asks of the system's heap.

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <vector>

#include "oneBearer.h"
#include "reconfigurationWithSync.h"
#include "releases.h"
#include "secondaryCells.h"
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

} // namespace

extern "C" void* __real_malloc(size_t size);
extern "C" void* __wrap_malloc(size_t size);

extern "C" void* __wrap_malloc(size_t size)
{
    ++calls;
    return __real_malloc(size);
}

TEST(Malloc, EachExampleTakesOneBlock)
{
    EXPECT_EQ(callsOf(oneBearer), 1U);
    EXPECT_EQ(callsOf(reconfigurationWithSync), 1U);
    EXPECT_EQ(callsOf(typicalCall), 1U);
    EXPECT_EQ(callsOf(secondaryCells), 1U);
    EXPECT_EQ(callsOf(releases), 1U);
}
