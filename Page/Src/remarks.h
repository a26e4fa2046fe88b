// A message with all that is said of it.
#pragma once

#include "messageFindings.h"
#include "nodes.h"

namespace page
{

// What a message says, node by node, and what is said of it.
struct Remarks
{
    struct Finding
    {
        MessageFinding finding;
        std::uint32_t node; // where it stands: the place, or what is around it when that is absent
    };
    struct Undecided
    {
        std::string rule;
        OSUINT32 decidedBy; // RrcRuleInput bits
    };
    std::vector<Finding> findings; // by their nodes
    std::vector<Undecided> undecided;
    std::vector<std::string> meanings; // of each node; empty of most
    std::string refusal;               // why there is no more; empty: there is all
};

Remarks remarksOn(Tree& tree, const RrcRuleContext& known);

// The inputs of an RrcRuleInput set, in words.
std::string inputWords(OSUINT32 inputs);

} // namespace page
