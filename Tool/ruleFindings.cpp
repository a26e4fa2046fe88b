#include "ruleFindings.h"

#include "encodingFindings.h"
#include "findingPath.h"
#include "meanings.h"
#include "rtxTree.h"

namespace tool
{
namespace
{

constexpr std::size_t longestContext = 120;

// The one value of a type without members and elements, as flat lines have it.
std::string flatText(const OSCTXT& context, const RtxType& type, const void* value)
{
    std::string text =
        written([&](RtxPrintSink sink, void* arg) { (void)rtxToFlat(&context, &type, value, sink, arg); });
    text.erase(0, text.find(" = ") + 3);
    text.pop_back(); // the line end
    return text;
}

std::string shownValue(const OSCTXT& context, const RtxType& type, const void* value)
{
    if (type.kind < rtx::Kind::Sequence)
    {
        return flatText(context, type, value);
    }
    constexpr std::string_view more = "...";
    std::string text = valueText(&context, type, value);
    if (text.size() > longestContext)
    {
        text.resize(longestContext - more.size());
        text += more;
    }
    return text;
}

// "path = value" of the place, whose type is given back; of an absent member that of the structure around it, which is
// always there.
std::string contextOf(const OSCTXT& context, const RrcRuleFinding& told, const RtxType*& shown)
{
    if (told.depth == 0)
    {
        return "";
    }
    const RtxType* type = asn1Type_CellGroupConfig();
    const RtxType* owner = type;
    const rtx::Member* member = nullptr;
    std::string path = type->name;
    std::string around;
    for (const RrcRuleStep& step : std::span(told.path, told.depth))
    {
        const auto number = step.name == nullptr ? std::optional(0U) : memberNumber(*type, step.name);
        if (!number)
        {
            return "";
        }
        owner = type;
        member = owner->members + *number;
        type = member->type;
        around = path;
        path += step.name == nullptr ? "[" + std::to_string(step.index) + "]" : "." + std::string(step.name);
    }
    if (member != nullptr && owner->kind == rtx::Kind::Sequence)
    {
        const void* const structure = static_cast<const OSOCTET*>(told.value) - member->offset;
        if (!rtx::isPresent(*member, structure))
        {
            return around + " = " + shownValue(context, *owner, structure);
        }
    }
    shown = type;
    return path + " = " + shownValue(context, *type, told.value);
}

// What the callbacks of a check need.
struct Asked
{
    const OSCTXT& context;
    const RuleChoice& choice;
    RuleVerdict verdict;
    std::vector<std::pair<const RtxType*, const void*>>
        values; // of the findings; no type: the context is not the value
};

int wanted(void* arg, const RrcRule* rule)
{
    return static_cast<const Asked*>(arg)->choice.has(rule->id) ? 1 : 0;
}

int take(void* arg, const RrcRuleFinding* told)
{
    Asked& asked = *static_cast<Asked*>(arg);
    if (told->severity == RRC_RULE_UNDECIDED)
    {
        asked.verdict.undecided.push_back({told->rule, optionsOf(told->decidedBy)});
    }
    else
    {
        Finding finding = asFinding(page::findingOf(*told));
        const RtxType* shown = nullptr;
        finding.context = contextOf(asked.context, *told, shown);
        asked.verdict.findings.push_back(std::move(finding));
        asked.values.emplace_back(shown, told->value);
    }
    return 0;
}

} // namespace

RuleVerdict ruleFindings(Message& message, const RrcRuleContext& known, const std::optional<Encoding>& held,
                         const RuleChoice& choice)
{
    OSCTXT& context = message.context();
    RrcRuleContext all = known;
    if (held)
    {
        all.previous = static_cast<const CellGroupConfig*>(decodedIn(context, message.pdu(), *held));
    }
    const auto* const element = static_cast<const CellGroupConfig*>(message.value());
    Asked asked{context, choice, {}, {}};
    std::vector<Finding> refused;
    const auto check = [&]
    {
        return rrcCheckSomeRules(&context, element, &all, wanted, take, &asked);
    };
    const auto refuse = [&](page::MessageFinding&& refusal)
    {
        if (choice.has(refusal.id))
        {
            refused.push_back(asFinding(std::move(refusal)));
        }
    };
    const std::int64_t status = page::checkOrAsDelta(context, all, check, refuse);
    if (status < 0)
    {
        throw Failure(Exit::Usage, "out of memory");
    }
    if (!asked.values.empty())
    {
        const Meanings meanings(context, *element, all);
        for (std::size_t i = 0; i < asked.values.size(); ++i)
        {
            asked.verdict.findings[i].meaning = meanings.of(asked.values[i].first, asked.values[i].second);
        }
    }
    asked.verdict.findings.insert(asked.verdict.findings.begin(), refused.begin(), refused.end());
    return std::move(asked.verdict);
}

} // namespace tool
