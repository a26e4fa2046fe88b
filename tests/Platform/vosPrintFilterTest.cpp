#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "vos_lib.h"

namespace
{

class PrintFilter : public testing::Test
{
protected:
    void TearDown() override
    {
        vos_info_print_filter_clear();
    }
};

bool isFiltered(INT32 level, const std::string& name)
{
    return vos_info_print_filter_is_filtered(level, name.c_str()) != 0;
}

} // namespace

TEST_F(PrintFilter, FiltersNothingAtFirst)
{
    for (INT32 level = -1; level <= 3; level++)
    {
        EXPECT_EQ(vos_info_print_filter_is_filtered(level, "rrcComposeX"), 0);
        EXPECT_EQ(vos_info_print_filter_is_filtered(level, ""), 0);
        EXPECT_EQ(vos_info_print_filter_is_filtered(level, nullptr), 0);
    }
    EXPECT_EQ(module_print_filter.moduleID, 0U);
}

TEST_F(PrintFilter, ANameIsFilteredWholeAndAtItsLevelOnly)
{
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "rrcComposeX.12", 1), VOS_OK);
    EXPECT_TRUE(isFiltered(_vos_print_lv_err, "rrcComposeX.12"));
    EXPECT_FALSE(isFiltered(_vos_print_lv_err, "rrcComposeX.1"));
    EXPECT_FALSE(isFiltered(_vos_print_lv_err, "rrcComposeX.123"));
    EXPECT_FALSE(isFiltered(_vos_print_lv_err, "rrcComposeX"));
    EXPECT_FALSE(isFiltered(_vos_print_lv_warning, "rrcComposeX.12"));
    EXPECT_FALSE(isFiltered(_vos_print_lv_info, "rrcComposeX.12"));
    EXPECT_EQ(vos_info_print_filter_is_filtered(_vos_print_lv_err, nullptr), 0);
}

TEST_F(PrintFilter, ALevelIsFilteredAsAWhole)
{
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_warning, nullptr, 1), VOS_OK);
    EXPECT_TRUE(isFiltered(_vos_print_lv_warning, "anything"));
    EXPECT_NE(vos_info_print_filter_is_filtered(_vos_print_lv_warning, nullptr), 0);
    EXPECT_FALSE(isFiltered(_vos_print_lv_info, "anything"));
    EXPECT_FALSE(isFiltered(_vos_print_lv_err, "anything"));
}

TEST_F(PrintFilter, ANameStaysFilteredWhenItsLevelIsPrintedAgain)
{
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "name", 1), VOS_OK);
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, nullptr, 1), VOS_OK);
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, nullptr, 0), VOS_OK);
    EXPECT_TRUE(isFiltered(_vos_print_lv_err, "name"));
    EXPECT_FALSE(isFiltered(_vos_print_lv_err, "other"));
}

TEST_F(PrintFilter, RemovingOneNameKeepsTheOthers)
{
    for (const char* name : {"a", "b", "c"})
    {
        ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, name, 1), VOS_OK);
    }
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "a", 0), VOS_OK);
    EXPECT_FALSE(isFiltered(_vos_print_lv_err, "a"));
    EXPECT_TRUE(isFiltered(_vos_print_lv_err, "b"));
    EXPECT_TRUE(isFiltered(_vos_print_lv_err, "c"));
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "c", 0), VOS_OK);
    EXPECT_TRUE(isFiltered(_vos_print_lv_err, "b"));
    EXPECT_FALSE(isFiltered(_vos_print_lv_err, "c"));
}

TEST_F(PrintFilter, SettingTwiceIsSettingOnce)
{
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "a", 1), VOS_OK);
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "a", 2), VOS_OK);
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "a", 0), VOS_OK);
    EXPECT_FALSE(isFiltered(_vos_print_lv_err, "a"));
    EXPECT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "a", 0), VOS_OK);
}

TEST_F(PrintFilter, ClearPrintsEverythingAgain)
{
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_info, nullptr, 1), VOS_OK);
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "a", 1), VOS_OK);
    vos_info_print_filter_clear();
    EXPECT_FALSE(isFiltered(_vos_print_lv_info, "a"));
    EXPECT_FALSE(isFiltered(_vos_print_lv_err, "a"));
}

TEST_F(PrintFilter, RefusesUnknownLevels)
{
    for (const INT32 level : {-1, 3, INT32_MIN, INT32_MAX})
    {
        EXPECT_EQ(vos_info_print_filter_set(level, "name", 1), VOS_ERROR);
        EXPECT_EQ(vos_info_print_filter_set(level, nullptr, 1), VOS_ERROR);
        EXPECT_FALSE(isFiltered(level, "name"));
    }
}

TEST_F(PrintFilter, NamesHoldUpTo199Characters)
{
    const std::string longest(VOS_PRINT_FILTER_NAME_MAX, 'n');
    ASSERT_EQ(longest.size(), 199U);
    EXPECT_EQ(vos_info_print_filter_set(_vos_print_lv_err, longest.c_str(), 1), VOS_OK);
    EXPECT_TRUE(isFiltered(_vos_print_lv_err, longest));
    EXPECT_FALSE(isFiltered(_vos_print_lv_err, longest + "n"));
    EXPECT_EQ(vos_info_print_filter_set(_vos_print_lv_err, (longest + "n").c_str(), 1), VOS_ERROR);
    EXPECT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "", 1), VOS_ERROR);
    EXPECT_FALSE(isFiltered(_vos_print_lv_err, "other"));
}

TEST_F(PrintFilter, RefusesMoreThanItCanHold)
{
    for (int i = 0; i < VOS_PRINT_FILTER_ENTRIES; i++)
    {
        ASSERT_EQ(vos_info_print_filter_set(i % 3, ("name" + std::to_string(i)).c_str(), 1), VOS_OK);
    }
    EXPECT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "one more", 1), VOS_ERROR);
    EXPECT_EQ(vos_info_print_filter_set(_vos_print_lv_err, nullptr, 1), VOS_ERROR);
    EXPECT_FALSE(isFiltered(_vos_print_lv_err, "one more"));
    for (int i = 0; i < VOS_PRINT_FILTER_ENTRIES; i++)
    {
        EXPECT_TRUE(isFiltered(i % 3, "name" + std::to_string(i)));
    }
    ASSERT_EQ(vos_info_print_filter_set(0, "name0", 0), VOS_OK);
    EXPECT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "one more", 1), VOS_OK);
    EXPECT_TRUE(isFiltered(_vos_print_lv_err, "one more"));
}

// While other names come and go, a name that stays set is always filtered and one never set never is.
TEST_F(PrintFilter, AnswersRightWhileOtherThreadsSetIt)
{
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "before", 1), VOS_OK);
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "stays", 1), VOS_OK);
    ASSERT_EQ(vos_info_print_filter_set(_vos_print_lv_err, "before", 0), VOS_OK);

    std::atomic<bool> done{false};
    std::atomic<int> wrong{0};
    std::atomic<int> asked{0};
    std::vector<std::thread> readers;
    for (int i = 0; i < 2; i++)
    {
        readers.emplace_back(
            [&]
            {
                while (!done)
                {
                    wrong += isFiltered(_vos_print_lv_err, "stays") ? 0 : 1;
                    wrong += isFiltered(_vos_print_lv_err, "never") ? 1 : 0;
                    asked++;
                }
            });
    }

    std::vector<std::thread> writers;
    for (int i = 0; i < 2; i++)
    {
        writers.emplace_back(
            [&wrong, i]
            {
                const std::string first = "first" + std::to_string(i);
                const std::string second = "second" + std::to_string(i);
                for (int round = 0; round < 2000; round++)
                {
                    for (const BOOL filtered : {1, 0})
                    {
                        for (const std::string& name : {first, second})
                        {
                            (void)vos_info_print_filter_set(_vos_print_lv_err, name.c_str(), filtered);
                            wrong += isFiltered(_vos_print_lv_err, name) == (filtered != 0) ? 0 : 1;
                        }
                    }
                }
            });
    }
    for (std::thread& writer : writers)
    {
        writer.join();
    }
    while (asked == 0)
    {
        std::this_thread::yield();
    }
    done = true;
    for (std::thread& reader : readers)
    {
        reader.join();
    }
    EXPECT_EQ(wrong, 0);
}
