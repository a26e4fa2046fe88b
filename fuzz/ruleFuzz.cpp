// Decodes an input and checks it against all rules, with what is known besides taken from its first octets: no crash,
// the same findings each time, paths that lead somewhere, and the heap as it was.
#include "context.h"

#include "rrcRules.h"

using fuzz::require;

namespace
{

struct Told
{
    int64_t findings = 0;
    uint64_t sum = 0; // of the lines
};

int tell(void* arg, const RrcRuleFinding* finding)
{
    char line[1500];
    const size_t length = rrcRuleFindingFormat(finding, line, sizeof line);
    require(length != 0 && length < sizeof line, "a finding without a line");
    require(rrcRuleById(finding->rule) != nullptr, "a finding of no rule");
    require(finding->severity <= RRC_RULE_ERROR, "a finding of no severity");
    require((finding->severity == RRC_RULE_UNDECIDED) == (finding->value == nullptr), "a finding without a place");
    auto& told = *static_cast<Told*>(arg);
    told.findings += finding->severity == RRC_RULE_UNDECIDED ? 0 : 1;
    fuzz::addLine(told.sum, line, length);
    return 0;
}

void check(OSCTXT& ctxt, const CellGroupConfig& tree, const RrcRuleContext& known)
{
    const fuzz::HeapMark mark(ctxt);
    Told first;
    const int64_t findings = rrcCheckRules(&ctxt, &tree, &known, tell, &first);
    require(findings == first.findings || (fuzz::isRefused(ctxt, known, findings) && first.findings == 0),
            "another number of findings");
    mark.expectGivenBack();
    Told second;
    require(rrcCheckRules(&ctxt, &tree, &known, tell, &second) == findings && second.sum == first.sum,
            "other findings the second time");
    require(rrcCheckRules(&ctxt, &tree, &known, nullptr, nullptr) == findings, "another number where nobody listens");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzz::withContext(data, size, check);
    return 0;
}
