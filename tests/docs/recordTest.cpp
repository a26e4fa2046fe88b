// docs/record.md tells the sizes of the records.

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <regex>
#include <string>

#include "rrcCodec/rrcCodec.h"

#define SIZE(Record)                                                                                                   \
    {                                                                                                                  \
#Record, sizeof(Record)                                                                                        \
    }

TEST(docsRecord, TellsEachSize)
{
    std::map<std::string, std::size_t> sizes = {
        SIZE(RrcCellGroupCfg_t),
        SIZE(RrcRlcBearerCfg_t),
        SIZE(RrcMacCellGrpCfg_t),
        SIZE(RrcPhyCellGrpCfg_t),
        SIZE(RrcSpCellCfg_t),
        SIZE(RrcReconfWithSync_t),
        SIZE(RrcScellCfg_t),
        SIZE(RrcServingCellCfgCommon_t),
        SIZE(RrcServingCellCfg_t),
        SIZE(RrcCsiMeasCfg_t),
        SIZE(RrcPdcchServingCellCfg_t),
        SIZE(RrcCsiReportCfg_t),
        SIZE(RrcUlCfg_t),
        SIZE(RrcBwpUl_t),
        SIZE(RrcBwpDlDedicated_t),
        SIZE(RrcBwpDl_t),
        SIZE(RrcTddUlDlCfgDedi_t),
    };
    std::ifstream file("docs/record.md");
    const std::regex row(R"(\| .* \| `(\w+)` \| (\d+) \|)");
    std::string line;
    while (std::getline(file, line))
    {
        std::smatch match;
        if (std::regex_match(line, match, row))
        {
            const auto found = sizes.find(match[1]);
            ASSERT_NE(found, sizes.end()) << line;
            EXPECT_EQ(std::to_string(found->second), match[2].str()) << line;
            sizes.erase(found);
        }
    }
    for (const auto& [name, size] : sizes)
    {
        ADD_FAILURE() << "docs/record.md lacks " << name;
    }
}
