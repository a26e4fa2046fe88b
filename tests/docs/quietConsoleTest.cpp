// A refusal through the console of docs/platform.md: its lines without the element tree, again and again.

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "rrcCodec/rrcCodec.h"
#include "support/CapturedOutput.h"

extern "C" INT32 composeQuietly(RrcCellGroupCfg_t* record, Mbuf_t* message);

TEST(QuietConsole, LeavesTheTreeOut)
{
    const auto record = std::make_unique<RrcCellGroupCfg_t>();
    std::vector<UINT8> octets(8192);
    Mbuf_t message = {0, octets.data()};
    test::CapturedOutput output;
    record->cellGroupId = 9;
    for (int i = 0; i < 2; ++i)
    {
        EXPECT_EQ(composeQuietly(record.get(), &message), VOS_ERROR);
        EXPECT_EQ(output.take(), "rrcComposeCellGroupCfg Error\r\nCellGroupConfig.cellGroupId: 9 is not in 0..3\n");
    }
    record->cellGroupId = 3;
    EXPECT_EQ(composeQuietly(record.get(), &message), VOS_OK);
    EXPECT_EQ(output.take(), "");
}
