// The check of a record against what becomes of it: random records of both kinds, and such as no one ever filled.
#include "rrcRecordCheck.h"

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "composed.h"
#include "records.h"
#include "rrcCodec/rrcCompose.h"

namespace
{

using Ranges = records::Chance::Ranges;

struct Found
{
    std::vector<std::string> lines;
    std::vector<std::string> errorElements;
    unsigned errors = 0;
};

int collect(void* arg, const RrcRecordFinding* finding)
{
    auto& found = *static_cast<Found*>(arg);
    char line[2048];
    EXPECT_LT(rrcRecordFindingFormat(finding, line, sizeof line), sizeof line);
    found.lines.emplace_back(line);
    if (finding->severity == RRC_RECORD_ERROR)
    {
        ++found.errors;
        found.errorElements.emplace_back(finding->element);
    }
    return 0;
}

class laws : public testing::TestWithParam<Ranges>
{
};

// What has no error is encoded, what has one is refused.
TEST_P(laws, errorsAreRefusals)
{
    const auto record = records::junk(1);
    std::vector<UINT8> octets(1U << 20);
    records::Chance chance(GetParam());
    unsigned refused = 0;
    for (std::uint32_t seed = 1; seed <= 10000; ++seed)
    {
        chance.start(seed);
        records::draw(chance, *record);
        Found found;
        const OSUINT32 count = rrcCheckCellGroupCfg(record.get(), collect, &found);
        ASSERT_EQ(count, found.lines.size());
        ASSERT_EQ(rrcCheckCellGroupCfg(record.get(), nullptr, nullptr), count);
        size_t length = 0;
        char error[512] = "";
        const int status =
            rrcEncodeCellGroupCfg(record.get(), octets.data(), octets.size(), &length, error, sizeof error);
        refused += status == RRC_COMPOSE_OK ? 0 : 1;
        std::string all;
        for (const std::string& line : found.lines)
        {
            all += line.compare(0, 5, "error") == 0 ? line + "\n" : "";
        }
        EXPECT_EQ(status == RRC_COMPOSE_OK, found.errors == 0) << "cell group " << seed << ": " << error << "\n" << all;
    }
    std::printf("%u refused\n", refused);
}

INSTANTIATE_TEST_SUITE_P(ranges, laws, testing::Values(Ranges::kept, Ranges::dropped));

} // namespace
