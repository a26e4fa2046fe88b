// Cases of rules: changes to a cell group that a UE takes, and what a rule has to say of the result.
//
// A change is a flat line, "path = value"; "path = absent" takes away all that begins with the path. Changes are made
// in their order to wholeCell.flat, which all rules are silent of.
#ifndef RULECASES_H
#define RULECASES_H

#include "examplePaths.h"
#include "rrcRules.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace test
{

// What is known besides the element. Where nothing is said, the element is all that the UE has.
using Known = std::function<void(RrcRuleContext&)>;

enum class Outcome
{
    Fires,    // the rule at the place, and nothing else of error severity
    Silent,   // the rule says nothing, and nothing else is an error
    Undecided // so, and it tells what would decide it
};

struct RuleCase
{
    const char* rule;
    Outcome outcome;
    std::string changes;
    Known known;
    std::string place;                             // Fires: the path, without CellGroupConfig and identities
    RrcRuleSeverity severity = RRC_RULE_UNDECIDED; // Fires: where it is not the rule's
    std::string words;                             // Fires: what the first finding's line has to contain
    std::size_t times = 1;                         // Fires: findings, the first of them at the place
    // With an earlier configuration: changes that make it of wholeCell.flat; `changes` then make the message of an
    // empty one.
    bool hasEarlier = false;
    std::string before;
    int line = 0; // of the source
};

// In the order of writing: fires("id", "place", "changes").with(...).
class Cases
{
public:
    Cases(std::vector<RuleCase>& all, const char* rule) : all_(all), rule_(rule) {}

    Cases& fires(std::string place, std::string changes, int line = __builtin_LINE())
    {
        return add(Outcome::Fires, std::move(changes), std::move(place), line);
    }
    Cases& silent(std::string changes, int line = __builtin_LINE())
    {
        return add(Outcome::Silent, std::move(changes), {}, line);
    }
    Cases& undecided(std::string changes, int line = __builtin_LINE())
    {
        return add(Outcome::Undecided, std::move(changes), {}, line);
    }

    // The examples of the rule's own table.
    Cases& bad(std::string place, int line = __builtin_LINE())
    {
        return fires(std::move(place), example(&RrcRule::bad), line);
    }
    Cases& good(int line = __builtin_LINE())
    {
        return silent(example(&RrcRule::good), line);
    }

    // Of the last case:
    Cases& as(RrcRuleSeverity severity)
    {
        all_.back().severity = severity;
        return *this;
    }
    Cases& saying(std::string words)
    {
        all_.back().words = std::move(words);
        return *this;
    }
    Cases& times(std::size_t count)
    {
        all_.back().times = count;
        return *this;
    }
    Cases& with(Known known)
    {
        all_.back().known = std::move(known);
        return *this;
    }
    Cases& after(std::string before)
    {
        all_.back().hasEarlier = true;
        all_.back().before = std::move(before);
        return *this;
    }

    std::string example(const char* RrcRule::*which) const
    {
        const RrcRule* const rule = rrcRuleById(rule_);
        return rule == nullptr ? "there is no such rule" : rule->*which;
    }

private:
    Cases& add(Outcome outcome, std::string changes, std::string place, int line)
    {
        RuleCase made;
        made.rule = rule_;
        made.outcome = outcome;
        made.changes = std::move(changes);
        made.place = std::move(place);
        made.line = line;
        all_.push_back(std::move(made));
        return *this;
    }

    std::vector<RuleCase>& all_;
    const char* rule_;
};

class CaseTable
{
public:
    Cases rule(const char* id)
    {
        return {all_, id};
    }
    const std::vector<RuleCase>& all() const
    {
        return all_;
    }

private:
    std::vector<RuleCase> all_;
};

// Changes that add an SCell, without an uplink and with one.
#define ADD_SCELL "+ sCell.flat\n"
#define ADD_SCELL_WITH_UPLINK ADD_SCELL "+ sCellUplink.flat\n"
// Changes that move the cell to FR2.
#define AS_FR2 "+ fr2.flat\n"
// Changes that give bandwidth part 1 random access.
#define WITH_RANDOM_ACCESS "+ randomAccess.flat\n"
// Changes that narrow the cell to 106 resource blocks.
#define AS_106_RB "+ rb106.flat\n"

// Contexts that many cases share.
void inDelta(RrcRuleContext& known);
void knowingNothing(RrcRuleContext& known);

// The cases of each group, in a file of its own: casesBwp.cpp.
void genCases(CaseTable& table);
void rlcCases(CaseTable& table);
void macCases(CaseTable& table);
void phyCases(CaseTable& table);
void bwpCases(CaseTable& table);
void pdcchCases(CaseTable& table);
void pdschCases(CaseTable& table);
void pucchCases(CaseTable& table);
void puschCases(CaseTable& table);
void srsCases(CaseTable& table);
void csiCases(CaseTable& table);
void tciCases(CaseTable& table);
void tddCases(CaseTable& table);
void syncCases(CaseTable& table);
void rachCases(CaseTable& table);
void scellCases(CaseTable& table);
void ssbCases(CaseTable& table);

} // namespace test

#endif
