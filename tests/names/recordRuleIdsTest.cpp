// The ids of the record's rules, which users filter findings by: recordRules.txt has them all. An id never goes and
// never gets another meaning.
#include "rrcRecordCheck.h"

#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <set>
#include <string>

namespace
{

TEST(RecordRuleIds, AreAsListed)
{
    std::set<std::string> listed;
    std::ifstream file("tests/names/recordRules.txt");
    for (std::string id; file >> id;)
    {
        EXPECT_TRUE(listed.insert(id).second) << id << " is listed twice";
    }
    std::set<std::string> found;
    const std::regex form("record(-[a-z0-9]+)+");
    for (OSUINT32 i = 0; i < rrcRecordRuleCount; ++i)
    {
        const RrcRecordRule& rule = *rrcRecordRules[i];
        EXPECT_TRUE(found.insert(rule.id).second) << rule.id << " is the id of two rules";
        EXPECT_TRUE(std::regex_match(rule.id, form)) << rule.id;
        EXPECT_EQ(&rule, rrcRecordRuleById(rule.id));
        EXPECT_TRUE(listed.contains(rule.id)) << rule.id << " is not listed in tests/names/recordRules.txt";
    }
    for (const std::string& id : listed)
    {
        EXPECT_TRUE(found.contains(id)) << id << " has gone";
    }
    EXPECT_EQ(nullptr, rrcRecordRuleById("record-none-such"));
    EXPECT_EQ(nullptr, rrcRecordRuleById(nullptr));
}

} // namespace
