// The groups of rules, each in a file of its own, large ones in several: rulesBwp.cpp holds bwpRules.
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
extern const RuleGroup pdcchCoresetRules;
extern const RuleGroup pdcchSearchSpaceRules;
extern const RuleGroup pdcchCommonRules;
extern const RuleGroup pdcchFormatRules;
extern const RuleGroup pdcchCrossCarrierRules;
extern const RuleGroup pdschRules;
extern const RuleGroup pucchRules;
extern const RuleGroup puschRules;
extern const RuleGroup srsRules;
extern const RuleGroup csiChainRules;
extern const RuleGroup csiReportRules;
extern const RuleGroup csiTriggerRules;
extern const RuleGroup csiResourceRules;
extern const RuleGroup csiPortRules;
extern const RuleGroup tciRules;
extern const RuleGroup tddRules;
extern const RuleGroup syncRules;
extern const RuleGroup rachRules;
extern const RuleGroup scellRules;
extern const RuleGroup ssbRules;

} // namespace rules

#endif
