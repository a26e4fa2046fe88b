// What breaks the rules between the members of a cell group.
#pragma once

#include "findingIds.h"
#include "findings.h"
#include "message.h"
#include "ruleInputs.h"

namespace tool
{

// Which rules are asked.
struct RuleChoice
{
    Ids only; // none: all
    Ids disabled;

    bool has(std::string_view id) const
    {
        return (only.none() || only.have(id)) && !disabled.have(id);
    }
};

struct RuleVerdict
{
    std::vector<Finding> findings;
    std::vector<Undecided> undecided;
};

// Of a CellGroupConfig that was read without an error, in a UE that holds `held`; `known` is what is known besides.
// Where the message cannot be applied that is a finding, and the rules judge it as a delta to what nobody knows.
RuleVerdict ruleFindings(Message& message, const RrcRuleContext& known, const std::optional<Encoding>& held,
                         const RuleChoice& choice);

} // namespace tool
