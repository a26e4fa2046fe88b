// What holds of the rules' findings in any tree: the same each time, each with a line and a place, the heap as it was.
#ifndef RULEFINDINGS_H
#define RULEFINDINGS_H

#include "context.h"

#include "rrcRules.h"

namespace fuzz
{

struct ToldFindings
{
    int64_t findings = 0;
    uint64_t sum = 0; // of the lines
};

inline int tellFinding(void* arg, const RrcRuleFinding* finding)
{
    char line[1500];
    const size_t length = rrcRuleFindingFormat(finding, line, sizeof line);
    require(length != 0 && length < sizeof line, "a finding without a line");
    require(rrcRuleById(finding->rule) != nullptr, "a finding of no rule");
    require(finding->severity <= RRC_RULE_ERROR, "a finding of no severity");
    require((finding->severity == RRC_RULE_UNDECIDED) == (finding->value == nullptr), "a finding without a place");
    auto& told = *static_cast<ToldFindings*>(arg);
    told.findings += finding->severity == RRC_RULE_UNDECIDED ? 0 : 1;
    addLine(told.sum, line, length);
    return 0;
}

inline void checkRules(OSCTXT& ctxt, const CellGroupConfig& tree, const RrcRuleContext& known)
{
    const HeapMark mark(ctxt);
    ToldFindings first;
    const int64_t findings = rrcCheckRules(&ctxt, &tree, &known, tellFinding, &first);
    require(findings == first.findings || (isRefused(ctxt, known, findings) && first.findings == 0),
            "another number of findings");
    mark.expectGivenBack();
    ToldFindings second;
    require(rrcCheckRules(&ctxt, &tree, &known, tellFinding, &second) == findings && second.sum == first.sum,
            "other findings the second time");
    require(rrcCheckRules(&ctxt, &tree, &known, nullptr, nullptr) == findings, "another number where nobody listens");
}

} // namespace fuzz

#endif
