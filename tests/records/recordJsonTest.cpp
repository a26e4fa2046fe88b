// Records as JSON and back: random records come back with all that a composition reads, whatever they hold.
#include "rrcRecordFromJson.h"
#include "rrcRecordJson.h"
#include "rrcRecordType.h"

#include <algorithm>
#include <memory>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "composed.h"
#include "records.h"

namespace
{

using Ranges = records::Chance::Ranges;

std::string written(const RrcCellGroupCfg_t& record)
{
    std::string text;
    rrcRecordToJson(
        &record, [](void* to, const char* piece) { *static_cast<std::string*>(to) += piece; }, &text);
    return text;
}

// Empty when nothing is wrong.
std::string readInto(RrcCellGroupCfg_t& record, const std::string& text)
{
    std::string mistakes;
    const auto sink = [](void* to, const RrcRecordMistake* found)
    {
        const Asn1Mistake& mistake = found->mistake;
        *static_cast<std::string*>(to) += std::to_string(mistake.line) + ":" + std::to_string(mistake.column) + ": " +
                                          mistake.path + ": " + mistake.words + "\n";
    };
    (void)rrcRecordFromJson(&record, text.data(), text.size(), nullptr, sink, &mistakes);
    return mistakes;
}

class recordJson : public testing::TestWithParam<Ranges>
{
};

TEST_P(recordJson, comesBack)
{
    const auto record = records::junk(1);
    const auto back = records::junk(2);
    records::Chance chance(GetParam());
    for (std::uint32_t seed = 1; seed <= 5000; ++seed)
    {
        chance.start(seed);
        records::draw(chance, *record);
        const std::string text = written(*record);
        ASSERT_EQ(readInto(*back, text), "") << "cell group " << seed << "\n" << text;
        ASSERT_EQ(records::composed(back.get()), records::composed(record.get())) << "cell group " << seed;
        ASSERT_EQ(written(*back), text) << "cell group " << seed;
    }
}

INSTANTIATE_TEST_SUITE_P(ranges, recordJson, testing::Values(Ranges::kept, Ranges::dropped));

TEST(recordJson, describesNoLargerRecordThanItsUsersHaveRoomFor)
{
    for (UINT32 i = 0; i < rrcRecordTypeCount; ++i)
    {
        EXPECT_LE(rrcRecordTypes[i]->fieldCount, RRC_RECORD_MAX_FIELDS) << rrcRecordTypes[i]->name;
        EXPECT_LE(rrcRecordTypes[i]->bitCount, 64) << rrcRecordTypes[i]->name;
        EXPECT_LE(rrcRecordTypes[i]->choiceCount, RRC_RECORD_MAX_CHOICES) << rrcRecordTypes[i]->name;
    }
}

} // namespace
