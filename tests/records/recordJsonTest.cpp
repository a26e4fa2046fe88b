// Records as JSON and back: random records come back with all that a composition reads, whatever they hold.
#include "rrcRecordFromJson.h"
#include "rrcRecordJson.h"
#include "rrcRecordType.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "composed.h"
#include "records.h"
#include "walk.h"

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
    for (std::uint32_t seed = 1; seed <= records::shareOf(5000); ++seed)
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

bool isControl(const RrcRecordField& field)
{
    return field.kind == RRC_FIELD_MASK || field.kind == RRC_FIELD_COUNT || field.kind == RRC_FIELD_ALTERNATIVE;
}

// Masks, counts and alternatives that are anything: several alternatives or none, counts beyond their arrays.
TEST(recordJson, spoiltOnesComeBack)
{
    const auto record = std::make_unique<RrcCellGroupCfg_t>();
    const auto back = records::junk(2);
    records::Chance chance(Ranges::dropped);
    std::mt19937 engine(7);
    unsigned beyond = 0;
    for (std::uint32_t seed = 1; seed <= records::shareOf(2000); ++seed)
    {
        std::memset(record.get(), 0, sizeof *record);
        chance.start(seed);
        records::draw(chance, *record);
        const auto rarely = 3 + engine() % 100;
        auto spoil = [&](const RrcRecordType& type, UINT32 index, const void* place, UINT32 /*entries*/)
        {
            const RrcRecordField& field = type.fields[index];
            if (isControl(field) && engine() % rarely == 0)
            {
                const UINT64 bits = engine() % 2 == 0 ? engine() : engine() % 64;
                rrcRecordStore(&field, const_cast<void*>(place), 0, bits);
                beyond += field.kind == RRC_FIELD_COUNT && rrcRecordNumber(&field, place, 0) > field.upper ? 1U : 0U;
            }
            return true;
        };
        records::walk(*rrcRecordTypes[0], record.get(), spoil);
        const std::string text = written(*record);
        ASSERT_EQ(readInto(*back, text), "") << "cell group " << seed << "\n" << text;
        ASSERT_EQ(records::composed(back.get()), records::composed(record.get())) << "cell group " << seed;
        ASSERT_EQ(written(*back), text) << "cell group " << seed;
    }
    EXPECT_GT(beyond, records::shareOf(1000));
}

// Memory that never was a record: the text ends, and is one value.
TEST(recordJson, anyMemoryIsWritten)
{
    struct Text
    {
        std::size_t octets = 0;
        std::int64_t depth = 0;
        std::string last;
    };
    const auto sink = [](void* to, const char* piece)
    {
        auto& text = *static_cast<Text*>(to);
        text.last = piece;
        text.octets += text.last.size();
        text.depth += std::count(text.last.begin(), text.last.end(), '{');
        text.depth -= std::count(text.last.begin(), text.last.end(), '}');
    };
    for (const std::uint32_t seed : {0U, 1U, 2U})
    {
        const auto record = records::junk(seed);
        if (seed == 0)
        {
            std::memset(record.get(), 0xFF, sizeof *record);
        }
        Text text;
        rrcRecordToJson(record.get(), sink, &text);
        EXPECT_GT(text.octets, 100U);
        EXPECT_EQ(text.depth, 0);
        EXPECT_EQ(text.last, "}\n");
    }
    Text nothing;
    rrcRecordToJson(nullptr, sink, &nothing);
    EXPECT_EQ(nothing.last, "null\n");
}

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
