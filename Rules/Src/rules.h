// The groups of rules, each in a file of its own: rulesBwp.cpp holds bwpRules.
#ifndef RULES_RULES_H
#define RULES_RULES_H

#include "check.h"

namespace rules
{

extern const RuleGroup genRules;
extern const RuleGroup rlcRules;
extern const RuleGroup macRules;
extern const RuleGroup phyRules;
extern const RuleGroup bwpRules;
extern const RuleGroup pdcchRules;
extern const RuleGroup pdschRules;
extern const RuleGroup pucchRules;
extern const RuleGroup puschRules;
extern const RuleGroup srsRules;
extern const RuleGroup csiRules;
extern const RuleGroup tciRules;
extern const RuleGroup tddRules;
extern const RuleGroup syncRules;
extern const RuleGroup rachRules;
extern const RuleGroup scellRules;
extern const RuleGroup ssbRules;

} // namespace rules

#endif
