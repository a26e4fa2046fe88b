// What a program may ask of the library that it has been given: tests/package asks the same of an installed one.
#include "cellgroupcfg/version.h"

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCodec.h"

#include <gtest/gtest.h>

TEST(Version, LibraryAndHeaderAreOfOneVersion)
{
    EXPECT_STREQ(CELLGROUPCFG_VERSION, cellgroupcfgVersion());
    EXPECT_EQ(CELLGROUPCFG_ABI, cellgroupcfgAbi());
}

TEST(Version, OnlyTheSameAbiAndRecordMatch)
{
    EXPECT_EQ(1, cellgroupcfgAbiMatches(CELLGROUPCFG_ABI, sizeof(RrcCellGroupCfg_t)));
    EXPECT_EQ(0, cellgroupcfgAbiMatches(CELLGROUPCFG_ABI + 1, sizeof(RrcCellGroupCfg_t)));
    EXPECT_EQ(0, cellgroupcfgAbiMatches(CELLGROUPCFG_ABI, sizeof(RrcCellGroupCfg_t) + 1));
    EXPECT_EQ(0, cellgroupcfgAbiMatches(CELLGROUPCFG_ABI, sizeof(RrcCellGroupCfg_t) - 1));
}

TEST(Version, SizesOfTheStructuresThatAreShared)
{
    EXPECT_EQ(sizeof(RrcCellGroupCfg_t), cellgroupcfgSizeOf("RrcCellGroupCfg_t"));
    EXPECT_EQ(sizeof(OSCTXT), cellgroupcfgSizeOf("OSCTXT"));
    EXPECT_EQ(sizeof(CellGroupConfig), cellgroupcfgSizeOf("CellGroupConfig"));
    EXPECT_EQ(0U, cellgroupcfgSizeOf("CellGroupConfi"));
    EXPECT_EQ(0U, cellgroupcfgSizeOf(nullptr));
}
