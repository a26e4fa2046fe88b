// All that is wrong with a message in its encoding.
#include "rrcMessageFindings.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

extern "C" int findingsInC(const OSOCTET* octets, size_t count);

namespace
{

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

using Octets = std::vector<OSOCTET>;

struct Told
{
    std::vector<std::string> ids;
    std::vector<std::string> lines;
    std::size_t undecided = 0;
    std::size_t most = 1000;
};

int take(void* arg, const RrcMessageFinding* finding)
{
    Told& told = *static_cast<Told*>(arg);
    if (finding->severity == RRC_RULE_UNDECIDED)
    {
        ++told.undecided;
        return 0;
    }
    told.ids.emplace_back(finding->id);
    told.lines.push_back(std::string(finding->path) + ": " + finding->message + " | " + finding->advice + " | " +
                         finding->clause);
    return told.ids.size() < told.most ? 0 : 1;
}

Told findings(const Octets& octets, const RrcRuleContext* known = nullptr, const Octets& held = {},
              std::size_t most = 1000)
{
    Told told;
    told.most = most;
    EXPECT_EQ(rrcMessageFindings(octets.data(), octets.size(), known, held.data(), held.size(), take, &told), RTX_OK);
    return told;
}

// X.691 19.1, 19.2: no extension, seven optional members absent, cellGroupId in two bits, padding.
const Octets empty = {0x00, 0x00};
const Octets ofOtherGroup = {0x00, 0x80};

TEST(MessageFindings, a_message_that_ends_early_has_one)
{
    const Told told = findings({0x5C});
    EXPECT_THAT(told.ids, ElementsAre("per-end"));
    EXPECT_THAT(told.lines[0], HasSubstr("The message is cut off"));
    EXPECT_EQ(told.undecided, 0U);
    const Octets octets = {0x5C};
    EXPECT_EQ(findingsInC(octets.data(), octets.size()), 1);
}

TEST(MessageFindings, octets_behind_the_message_are_one)
{
    const Told told = findings({0x00, 0x00, 0x01});
    EXPECT_THAT(told.ids, ElementsAre("per-surplus"));
    EXPECT_THAT(told.lines[0], HasSubstr(" | X.691 11.1"));
}

TEST(MessageFindings, what_the_ue_has_is_what_a_message_is_applied_to)
{
    EXPECT_THAT(findings(empty, nullptr, empty).ids, Not(Contains("delta-apply")));
    const Told told = findings(ofOtherGroup, nullptr, empty);
    EXPECT_THAT(told.ids, Contains("delta-apply"));
}

TEST(MessageFindings, what_is_known_decides_rules)
{
    const std::size_t undecided = findings(empty).undecided;
    RrcRuleContext known{};
    known.extent = RRC_RULE_EXTENT_FULL;
    EXPECT_LE(findings(empty, &known).undecided, undecided);
}

TEST(MessageFindings, the_sink_ends_the_search)
{
    const std::size_t all = findings(ofOtherGroup, nullptr, empty).ids.size();
    EXPECT_EQ(findings(ofOtherGroup, nullptr, empty, 1).ids.size(), 1U);
    EXPECT_GE(all, 1U);
}

TEST(MessageFindings, what_is_missing_or_broken_is_a_status)
{
    Told told;
    EXPECT_EQ(rrcMessageFindings(nullptr, 1, nullptr, nullptr, 0, take, &told), RTX_E_NULL);
    EXPECT_EQ(rrcMessageFindings(empty.data(), empty.size(), nullptr, nullptr, 0, nullptr, nullptr), RTX_E_NULL);
    const Octets broken = {0x5C};
    EXPECT_EQ(rrcMessageFindings(empty.data(), empty.size(), nullptr, broken.data(), broken.size(), take, &told),
              RTX_E_END);
    EXPECT_THAT(told.ids, IsEmpty());
}

TEST(MessageFindings, words_of_readers_are_found_by_id)
{
    EXPECT_STREQ(rrcFindingClause("jer"), "X.697");
    EXPECT_THAT(rrcFindingAdvice("record-unread"), HasSubstr("Leave the field out"));
    EXPECT_STREQ(rrcFindingAdvice("jer"), "");
    EXPECT_EQ(rrcFindingAdvice("bwp-in-carrier"), nullptr);
    EXPECT_EQ(rrcFindingClause(nullptr), nullptr);
}

} // namespace
