#include "NR-RRC-Definitions.h"
#include "NR-RRC-Tables.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <vector>

#include "rtxTestTypes.h"

namespace
{

using namespace test;

class Find : public testing::Test
{
protected:
    Find()
    {
        EXPECT_EQ(RTX_OK, rtxInitContext(&ctxt));
    }
    ~Find() override
    {
        rtFreeContext(&ctxt);
    }

    // Searches octets that lie in memory of their exact size.
    std::vector<RtxFound> find(const Type& type, const std::vector<OSOCTET>& octets, OSUINT32 least = 1)
    {
        std::vector<RtxFound> all;
        const auto take = [](void* arg, const RtxFound* found)
        {
            static_cast<std::vector<RtxFound>*>(arg)->push_back(*found);
        };
        EXPECT_EQ(static_cast<int64_t>(0),
                  rtxFind(&ctxt, &type, octets.data(), octets.size(), least, take, nullptr, &all) -
                      static_cast<int64_t>(all.size()));
        return all;
    }

    OSCTXT ctxt;
};

// 300 numbers of 16 bits each, so that nothing shorter or longer is one.
struct Block
{
    OSUINT16 elem[300];
};
constexpr Member blockElement = member(sampleType, 0);
constexpr Type blockType = {.name = "Block",
                            .kind = Kind::Array,
                            .size = sizeof(Block),
                            .lower = 300,
                            .upper = 300,
                            .members = &blockElement,
                            .memberCount = 1,
                            .rootCount = 1};

TEST_F(Find, AMessageAtAnyBit)
{
    // 0x8258 is 600 octets; each number is 1, which is below the upper bound of 40000.
    std::string message = octet(0x82) + octet(0x58);
    for (unsigned i = 0; i < 300; ++i)
    {
        message += octet(0) + octet(1);
    }
    for (unsigned before = 0; before < 17; ++before)
    {
        const auto all = find(blockType, bits(std::string(before, '1') + message + "111"), 200);
        ASSERT_EQ(1U, all.size()) << before;
        EXPECT_EQ(before, all[0].bit);
        EXPECT_EQ(before + 16, all[0].contentBit);
        EXPECT_EQ(600U, all[0].octets);
    }
}

// X.691 11.9.3.6, 11.9.3.7: lengths to 127 take one octet, those from 128 on two, and never a longer form.
TEST_F(Find, TheShortestAndTheLongestOfEachLengthForm)
{
    static constexpr Type smallType = {
        .name = "Small", .kind = Kind::Integer, .width = 1, .align = 1, .size = 1, .lower = 0, .upper = 200};
    static constexpr Member element = member(smallType, 0);
    const auto arrayOf = [](uint32_t octets)
    {
        return Type{.name = "Smalls",
                    .kind = Kind::Array,
                    .size = octets,
                    .lower = static_cast<int32_t>(octets),
                    .upper = static_cast<int32_t>(octets),
                    .members = &element,
                    .memberCount = 1,
                    .rootCount = 1};
    };
    const auto content = [](unsigned octets)
    {
        std::string text;
        for (unsigned i = 0; i < octets; ++i)
        {
            text += octet(1);
        }
        return text;
    };
    const Type longestShort = arrayOf(127);
    const auto found = find(longestShort, bits(octet(0x7F) + content(127)));
    ASSERT_EQ(1U, found.size());
    EXPECT_EQ(127U, found[0].octets);
    EXPECT_EQ(8U, found[0].contentBit);
    const auto behind = find(longestShort, bits(octet(0x80) + octet(0x7F) + content(127)));
    ASSERT_EQ(1U, behind.size());
    EXPECT_EQ(8U, behind[0].bit) << "two octets for 127";

    const Type shortestLong = arrayOf(128);
    const auto longer = find(shortestLong, bits(octet(0x80) + octet(0x80) + content(128)));
    ASSERT_EQ(1U, longer.size());
    EXPECT_EQ(128U, longer[0].octets);
    EXPECT_EQ(0U, longer[0].bit);
    EXPECT_EQ(16U, longer[0].contentBit);
}

TEST_F(Find, OnlyWhatDecodesCompletely)
{
    const std::string item = "1 010 01 00"; // an Item and its padding
    EXPECT_EQ(1U, find(itemType, bits(octet(1) + item)).size());
    EXPECT_TRUE(find(itemType, bits(octet(1) + "1 010 01 01")).empty()) << "a padding bit is set";
    EXPECT_TRUE(find(itemType, bits(octet(1) + "1 111 01 00")).empty()) << "a value out of its range";
    EXPECT_TRUE(find(itemType, bits(octet(2) + item + octet(0xFF))).empty()) << "more octets than the message has";
    EXPECT_TRUE(find(itemType, bits(octet(1)), 1).empty()) << "the input ends before";
    EXPECT_TRUE(find(itemType, bits(octet(1) + item), 2).empty()) << "shorter than asked for";
    EXPECT_TRUE(find(itemType, {}).empty());
}

TEST_F(Find, TheLongestOfThoseThatOverlap)
{
    // A list of Items in an octet string whose second octet could be the length of another message.
    const std::string inner = octet(1) + "0 100 0000";
    const auto flags = find(flagType, bits(octet(1) + octet(0x80) + "00000000"));
    ASSERT_EQ(1U, flags.size());
    EXPECT_EQ(0U, flags[0].bit);
    const auto items = find(itemType, bits(octet(0xFF) + inner + octet(0xFF) + inner));
    ASSERT_EQ(2U, items.size());
    EXPECT_EQ(8U, items[0].bit);
    EXPECT_EQ(32U, items[1].bit);
}

TEST_F(Find, NeedsNoMoreHeapThanItSays)
{
    const std::vector<OSOCTET> octets(100000, 0xFF);
    rtxMemHeapSetLimit(&ctxt, 100000);
    EXPECT_TRUE(find(nr_rrc::type_CellGroupConfig, octets).empty());
    rtFreeContext(&ctxt);
    rtxMemHeapSetLimit(&ctxt, 99999);
    EXPECT_EQ(RTX_E_HEAP, rtxFind(&ctxt, &nr_rrc::type_CellGroupConfig, octets.data(), octets.size(), 1, nullptr,
                                  nullptr, nullptr));
}

TEST_F(Find, NamesWhatTheHeapLacksForAFind)
{
    const std::vector<OSOCTET> octets = bits(octet(1) + "1 010 01 00");
    rtxMemHeapSetLimit(&ctxt, 16); // for the two octets searched, and nothing for what is found
    EXPECT_EQ(RTX_E_HEAP, rtxFind(&ctxt, &itemType, octets.data(), octets.size(), 1, nullptr, nullptr, nullptr));
    char text[128];
    (void)rtxErrFormat(&ctxt, text, sizeof text);
    EXPECT_EQ("the heap is exhausted: " + std::to_string(sizeof(RtxFound)) + " octets were asked for", text);
}

TEST_F(Find, RefusesWhatIsNoInput)
{
    OSOCTET octets[1] = {0};
    EXPECT_EQ(RTX_E_NULL, rtxFind(nullptr, &flagType, octets, 1, 1, nullptr, nullptr, nullptr));
    EXPECT_EQ(RTX_E_NULL, rtxFind(&ctxt, &flagType, nullptr, 1, 1, nullptr, nullptr, nullptr));
    EXPECT_EQ(0, rtxFind(&ctxt, &flagType, nullptr, 0, 1, nullptr, nullptr, nullptr));
    EXPECT_EQ(RTX_E_RANGE, rtxFind(&ctxt, &flagType, octets, 0x20000000, 1, nullptr, nullptr, nullptr))
        << "half a gibioctet is refused unread";
    EXPECT_EQ(0x20000000, ctxt.error.value);
}

TEST_F(Find, TellsItsProgressOfEach64Kibioctets)
{
    const std::vector<OSOCTET> octets(2 * 65536 + 1, 0xFF);
    std::vector<size_t> told;
    const auto tell = [](void* arg, size_t done)
    {
        static_cast<std::vector<size_t>*>(arg)->push_back(done);
    };
    EXPECT_EQ(0, rtxFind(&ctxt, &nr_rrc::type_CellGroupConfig, octets.data(), octets.size(), 1, nullptr, tell, &told));
    EXPECT_EQ((std::vector<size_t>{65536, 131072}), told);
}

TEST_F(Find, OctetsFromAnyBit)
{
    const OSOCTET data[] = {0x12, 0x34, 0x56, 0x78};
    OSOCTET to[3];
    rtxCopyBits(to, data, 4, 3);
    EXPECT_EQ(0, std::memcmp(to, "\x23\x45\x67", 3));
    rtxCopyBits(to, data, 8, 3);
    EXPECT_EQ(0, std::memcmp(to, "\x34\x56\x78", 3));
}

} // namespace
