#include "remarks.h"

#include "rrcExplain.h"
#include "whileMemory.h"

#include <algorithm>

namespace page
{
namespace
{

class Collector
{
public:
    Collector(Tree& tree, const RrcRuleContext& known) : tree_(tree), known_(known)
    {
        remarks_.meanings.resize(tree.nodes().size());
    }

    Remarks take()
    {
        if (tree_.error() != nullptr)
        {
            add(findingOf(*tree_.error()), stepsOf(*tree_.error()));
            return std::move(remarks_);
        }
        encoding();
        rules();
        explain();
        std::stable_sort(remarks_.findings.begin(), remarks_.findings.end(),
                         [](const Remarks::Finding& a, const Remarks::Finding& b) { return a.node < b.node; });
        return std::move(remarks_);
    }

private:
    // What a sink was told of.
    template <typename Keep>
    int keep(const Keep& one)
    {
        return sinks_.run(
            [&]
            {
                one(*this);
                return 0;
            });
    }

    void add(MessageFinding finding, std::span<const Step> steps)
    {
        const std::uint32_t node = tree_.find(steps);
        remarks_.findings.push_back({std::move(finding), node});
    }

    void encoding()
    {
        const auto sink = [](void* to, const RtxError* error)
        {
            return static_cast<Collector*>(to)->keep([=](Collector& all)
                                                     { all.add(findingOf(*error), stepsOf(*error)); });
        };
        (void)rtxCheck(&tree_.context(), asn1Type_CellGroupConfig(), &tree_.value(), sink, this);
        sinks_.finish();
        tellNotes(
            tree_.decoded(), tree_.nodes()[0].name, [&] { return tree_.note(); },
            [&](MessageFinding&& found) { add(std::move(found), {}); });
    }

    void take(const RrcRuleFinding& told)
    {
        if (told.severity == RRC_RULE_UNDECIDED)
        {
            remarks_.undecided.push_back({told.rule, told.decidedBy});
            return;
        }
        std::vector<Step> steps;
        // Of what an earlier message has brought this one has no place.
        for (const RrcRuleStep& step : std::span(told.path, told.configuredBefore != 0 ? 0 : told.depth))
        {
            steps.push_back({step.name == nullptr ? std::string_view() : step.name, step.index});
        }
        add(findingOf(told), steps);
    }

    std::int64_t check()
    {
        const auto sink = [](void* to, const RrcRuleFinding* told)
        {
            return static_cast<Collector*>(to)->keep([=](Collector& all) { all.take(*told); });
        };
        const std::int64_t status = rrcCheckRules(&tree_.context(), &tree_.value(), &known_, sink, this);
        sinks_.finish();
        return status;
    }

    void rules()
    {
        const std::int64_t status = checkOrAsDelta(
            tree_.context(), known_, [&] { return check(); },
            [&](MessageFinding&& refusal) { add(std::move(refusal), {}); });
        if (status < 0)
        {
            remarks_.refusal = "out of memory";
        }
    }

    void explain()
    {
        const auto sink = [](void* to, const RrcMeaning* meaning)
        {
            return static_cast<Collector*>(to)->keep([=](Collector& all) { all.take(*meaning); });
        };
        if (rrcExplain(&tree_.context(), &tree_.value(), &known_, sink, this) < 0)
        {
            remarks_.refusal = "out of memory";
        }
        sinks_.finish();
    }

    void take(const RrcMeaning& meaning)
    {
        const std::uint32_t node = tree_.find(meaning.type, meaning.value);
        if (node == 0)
        {
            return;
        }
        std::string line(rrcMeaningFormat(&meaning, nullptr, 0) + 1, '\0');
        (void)rrcMeaningFormat(&meaning, line.data(), line.size());
        line.pop_back(); // the terminator
        remarks_.meanings[node] = std::move(line);
    }

    Tree& tree_;
    RrcRuleContext known_;
    Remarks remarks_;
    text::Sinks sinks_;
};

} // namespace

Remarks remarksOn(Tree& tree, const RrcRuleContext& known)
{
    return Collector(tree, known).take();
}

std::string inputWords(OSUINT32 inputs)
{
    std::string words;
    for (unsigned i = 0; i < RRC_RULE_INPUTS; ++i)
    {
        if ((inputs >> i & 1U) != 0)
        {
            words += (words.empty() ? "" : ", ") + std::string(rrcRuleInputName(1U << i));
        }
    }
    return words;
}

} // namespace page
