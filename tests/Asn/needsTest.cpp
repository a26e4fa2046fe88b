// What the descriptors say of the absence of members and of lists against the schema's own text, read here line by
// line.
#include "NR-RRC-Definitions.h"
#include "rtxType.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using rtx::Absence;
using rtx::Change;
using rtx::Kind;
using rtx::ListRole;
using rtx::Need;
using rtx::Type;
using testing::IsEmpty;
using testing::Not;

// "TAG_Config.tag_ToAddModList: Need N", "TAG_Config.tag_ToAddModList: Identity tag-Id, released by tag-ToReleaseList".
using Lines = std::set<std::string>;

std::string cName(std::string name)
{
    std::replace(name.begin(), name.end(), '-', '_');
    return name == "explicit" ? name + "_" : name; // the schema's one C++ keyword
}

// The schema, of which every member begins a line.
class Schema
{
public:
    Schema()
    {
        std::ifstream file("Asn/Schema/NR-RRC-Definitions.asn1");
        for (std::string text; std::getline(file, text);)
        {
            line(text);
        }
    }

    Lines annotations;
    Lines optional;
    Lines setupRelease;

private:
    void line(const std::string& text)
    {
        const std::size_t comment = std::min(text.find("--"), text.size());
        std::istringstream in(text.substr(0, comment));
        const std::vector<std::string> words{std::istream_iterator<std::string>(in), {}};
        if (!words.empty())
        {
            code(words, text.substr(0, comment));
        }
        for (const std::string first : {"-- Need ", "-- Cond ", "-- Change ", "-- Identity "})
        {
            if (text.compare(comment, first.size(), first) == 0)
            {
                annotations.insert(member_ + ": " + text.substr(comment + 3));
            }
        }
    }

    void code(const std::vector<std::string>& words, const std::string& text)
    {
        const std::string& first = words.front();
        const bool ends = first[0] == '}';
        if (words.size() > 1 && text.find("::=") != std::string::npos)
        {
            path_ = {cName(first)};
            enumerations_ = 0;
        }
        else if (ends && enumerations_ != 0)
        {
            --enumerations_;
        }
        else if (ends && !path_.empty())
        {
            member_ = joined();
            path_.pop_back();
        }
        else if (enumerations_ == 0 && !path_.empty() && first[0] >= 'a' && first[0] <= 'z')
        {
            path_.push_back(cName(first));
            member_ = joined();
            if (words.back() != "{" || text.find("ENUMERATED") != std::string::npos)
            {
                path_.pop_back();
            }
        }
        if (words.back() == "{" && text.find("ENUMERATED") != std::string::npos)
        {
            ++enumerations_;
        }
        if (text.find("OPTIONAL") != std::string::npos)
        {
            optional.insert(member_);
        }
        if (text.find(" SetupRelease { ") != std::string::npos)
        {
            setupRelease.insert(member_);
        }
    }

    // The type of C, a dot, the member.
    std::string joined() const
    {
        std::string result = path_.front();
        for (std::size_t i = 1; i < path_.size(); ++i)
        {
            result += (i + 1 < path_.size() ? "_" : ".") + path_[i];
        }
        return result;
    }

    std::vector<std::string> path_; // of the members that a brace is open for
    unsigned enumerations_ = 0;     // open ones
    std::string member_;            // the last one
};

constexpr std::array codes = {"", "M", "R", "S", "N", "fixed"};
constexpr std::array words = {"",        "setup", "drb-setup",   "mode",           "creation",   "creation-optional",
                              "switch",  "sync",  "reestablish", "kind",           "fixed-kind", "usage",
                              "pucch",   "scell", "inactive",    "inactive-type2", "sul",        "mcg-release",
                              "identity"};

// The same of the descriptors.
class Descriptors
{
public:
    Descriptors()
    {
        visit(*asn1Type_CellGroupConfig());
    }

    Lines annotations;
    Lines optional;
    Lines setupRelease;
    std::map<std::string, int> codeCount;
    std::set<std::string> conditions;
    int lists = 0;
    int listsOfIds = 0;

private:
    void visit(const Type& type)
    {
        if (!visited_.insert(&type).second)
        {
            return;
        }
        EXPECT_TRUE(type.needs == nullptr || type.kind == Kind::Sequence) << type.name;
        for (uint16_t i = 0; i < type.memberCount; ++i)
        {
            const Type& of = *type.members[i].type;
            if (type.kind == Kind::Sequence)
            {
                member(type, i, type.needs != nullptr ? type.needs[i] : Need{});
            }
            EXPECT_TRUE(!of.setupRelease || of.kind == Kind::Choice) << of.name;
            visit(of);
        }
    }

    void member(const Type& type, uint16_t index, const Need& need)
    {
        const std::string name = cName(type.name) + "." + cName(type.names[index]);
        const bool isOptional = type.members[index].flag >= 0;
        EXPECT_EQ(isOptional, need.absence != Absence::Mandatory) << name;
        EXPECT_TRUE(isOptional || need.condition == nullptr) << name;
        if (isOptional)
        {
            optional.insert(name);
        }
        if (type.members[index].type->setupRelease)
        {
            setupRelease.insert(name);
        }
        const std::string text = of(need);
        if (!text.empty())
        {
            annotations.insert(name + ": " + text);
        }
        EXPECT_EQ(need.list == ListRole::None, need.partner < 0) << name;
        if (need.list != ListRole::None)
        {
            const Need& partner = type.needs[need.partner];
            EXPECT_EQ(partner.partner, index) << name;
            EXPECT_EQ(partner.list, need.list == ListRole::AddMod ? ListRole::Release : ListRole::AddMod) << name;
        }
        if (need.list == ListRole::AddMod)
        {
            annotations.insert(name + ": " + identity(*type.members[index].type) + ", released by " +
                               type.names[need.partner]);
        }
    }

    std::string of(const Need& need)
    {
        const std::string code = codes.at(static_cast<std::size_t>(need.absence));
        const std::string word = words.at(static_cast<std::size_t>(need.change));
        if (code.empty())
        {
            return word.empty() ? "" : "Change " + word;
        }
        const std::string both = code + (word.empty() ? "" : ", " + word);
        if (need.condition == nullptr)
        {
            ++codeCount[code];
            return "Need " + both;
        }
        ++codeCount["Cond"];
        conditions.insert(need.condition);
        return std::string("Cond ") + need.condition + " (" + both + ")";
    }

    std::string identity(const Type& list)
    {
        const Type& element = list.element();
        const bool own = list.identity == rtx::ownIdentity;
        ++(own ? listsOfIds : lists);
        return std::string("Identity ") + (own ? element.name : element.names[list.identity]);
    }

    std::set<const Type*> visited_;
};

Lines without(const Lines& all, const Lines& others)
{
    Lines result;
    std::set_difference(all.begin(), all.end(), others.begin(), others.end(), std::inserter(result, result.end()));
    return result;
}

void expectSame(const Lines& descriptors, const Lines& schema)
{
    EXPECT_THAT(without(descriptors, schema), IsEmpty());
    EXPECT_THAT(without(schema, descriptors), IsEmpty());
}

TEST(Needs, AreThoseOfTheSchemasText)
{
    const Schema schema;
    const Descriptors descriptors;
    expectSame(descriptors.annotations, schema.annotations);
    expectSame(descriptors.optional, schema.optional);
    expectSame(descriptors.setupRelease, schema.setupRelease);
    EXPECT_THAT(schema.setupRelease, Not(IsEmpty()));
}

// As many as TS 38.331 V15.6.0 has.
TEST(Needs, AreAllThatTheStandardHas)
{
    const Descriptors descriptors;
    EXPECT_EQ(descriptors.optional.size(), 472U);
    const std::map<std::string, int> codeCount = {{"M", 105}, {"R", 115}, {"S", 105}, {"N", 69}, {"Cond", 78}};
    EXPECT_EQ(descriptors.codeCount, codeCount);
    EXPECT_EQ(descriptors.conditions.size(), 49U);
    EXPECT_EQ(descriptors.lists, 33);
    EXPECT_EQ(descriptors.listsOfIds, 1);
}

} // namespace
