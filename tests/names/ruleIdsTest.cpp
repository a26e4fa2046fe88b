// The ids of rules, which users write into their projects: rules.txt has each with the version that it came with. An id
// never goes and never gets another meaning.
#include "rrcRules.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>

namespace
{

using Ids = std::map<std::string, std::string>; // id and version

Ids listedIds()
{
    Ids ids;
    std::ifstream file("tests/names/rules.txt");
    for (std::string id, since; file >> id >> since;)
    {
        EXPECT_TRUE(ids.emplace(id, since).second) << id << " is listed twice";
    }
    return ids;
}

TEST(RuleIds, AreAsListed)
{
    const Ids listed = listedIds();
    Ids found;
    for (OSUINT32 i = 0; i < rrcRuleCount(); ++i)
    {
        const RrcRule& rule = *rrcRuleAt(i);
        found.emplace(rule.id, rule.since);
        const auto at = listed.find(rule.id);
        if (at == listed.end())
        {
            ADD_FAILURE() << rule.id << " is not listed in tests/names/rules.txt";
            continue;
        }
        EXPECT_EQ(at->second, rule.since) << rule.id;
        EXPECT_NE(nullptr, rrcRuleGroupTitle(rule.id)) << rule.id;
    }
    for (const auto& [id, since] : listed)
    {
        EXPECT_TRUE(found.contains(id)) << id << " of " << since << " has gone";
    }
    EXPECT_FALSE(listed.empty());
    EXPECT_EQ(nullptr, rrcRuleGroupTitle("none-such"));
    EXPECT_EQ(nullptr, rrcRuleGroupTitle(nullptr));
}

} // namespace
