#include "rrcRules.h"

#include "rules.h"

#include <string_view>

namespace rules
{
namespace
{

// In the order in which they are told and documented.
constexpr const RuleGroup* ruleGroups[] = {&genRules,
                                           &rlcRules,
                                           &macRules,
                                           &phyRules,
                                           &bwpRules,
                                           &pdcchCoresetRules,
                                           &pdcchSearchSpaceRules,
                                           &pdcchCommonRules,
                                           &pdcchFormatRules,
                                           &pdcchCrossCarrierRules,
                                           &pdschRules,
                                           &pucchRules,
                                           &puschRules,
                                           &srsRules,
                                           &csiChainRules,
                                           &csiReportRules,
                                           &csiTriggerRules,
                                           &csiResourceRules,
                                           &csiPortRules,
                                           &tciRules,
                                           &tddRules,
                                           &syncRules,
                                           &rachRules,
                                           &scellRules,
                                           &ssbRules};

struct GroupTitle
{
    const char* prefix; // of the ids
    const char* title;
};

constexpr GroupTitle titles[] = {
    {"gen", "The element as a whole"},
    {"rlc", "RLC bearers"},
    {"mac", "MAC and logical channels"},
    {"phy", "Physical layer of the cell group"},
    {"bwp", "Bandwidth parts and carriers"},
    {"pdcch", "PDCCH: CORESETs, search spaces, group DCI, cross-carrier scheduling"},
    {"pdsch", "PDSCH"},
    {"pucch", "PUCCH"},
    {"pusch", "PUSCH and configured grants"},
    {"srs", "SRS"},
    {"csi", "CSI measurement and reporting"},
    {"tci", "TCI states"},
    {"tdd", "Uplink and downlink in time"},
    {"sync", "Reconfiguration with sync and the SpCell"},
    {"rach", "Random access and beam failure recovery"},
    {"scell", "SCells"},
    {"ssb", "SS/PBCH blocks"},
};

template <typename Each>
void forRules(const Each& each)
{
    OSUINT32 index = 0;
    for (const RuleGroup* const group : ruleGroups)
    {
        for (const Rule& rule : std::span(group->rules, group->count))
        {
            each(rule, index++);
        }
    }
}

// The rules that are called for values.
class Visitors
{
public:
    void add(Memory& memory, const Rule& rule, OSUINT32 index)
    {
        kinds_ |= rule.kinds;
        for (unsigned kind = 0; kind < std::size(ofKind_); ++kind)
        {
            if ((rule.kinds >> kind & 1) != 0)
            {
                ofKind_[kind].add(memory, {&rule, index});
            }
        }
    }

    void walk(Check& check, const Tree& tree, const CellGroupConfig& element) const
    {
        if (kinds_ == 0)
        {
            return;
        }
        forValues(tree.heap(), {*asn1Type_CellGroupConfig(), &element, nullptr, false}, kinds_,
                  [&](const Value& value)
                  {
                      for (const Entry& entry : ofKind_[static_cast<unsigned>(value.type.kind)])
                      {
                          check.begin(*entry.rule, entry.index);
                          entry.rule->visit(check, value);
                      }
                  });
    }

private:
    struct Entry
    {
        const Rule* rule;
        OSUINT32 index;
    };

    Vector<Entry> ofKind_[static_cast<unsigned>(rtx::Kind::List) + 1];
    OSUINT32 kinds_ = 0;
};

int64_t check(OSCTXT& ctxt, const CellGroupConfig& element, const RrcRuleContext& known,
              int (*wanted)(void* arg, const RrcRule* rule), RrcRuleSink sink, void* arg)
{
    const rtx::HeapScope scope(ctxt);
    int status = RTX_OK;
    const CellGroupConfig* const after = stateAfter(ctxt, element, known, status);
    if (after == nullptr)
    {
        return status;
    }
    const Tree tree(ctxt);
    Memory memory(ctxt);
    Model model(memory, tree, element, *after, known);
    Vector<Finding*> findings;
    auto* const undecided = memory.take<OSUINT32>(rrcRuleCount());
    if (undecided == nullptr)
    {
        return RTX_E_HEAP;
    }
    (void)model.cells(); // whole, or no rule is asked
    Check check(model, sink == nullptr ? nullptr : &findings, undecided);
    Visitors visitors;
    forRules(
        [&](const Rule& rule, OSUINT32 index)
        {
            if (memory.failed() || (wanted != nullptr && wanted(arg, &rule.told) == 0))
            {
                return;
            }
            if (rule.visit != nullptr)
            {
                visitors.add(memory, rule, index);
                return;
            }
            check.begin(rule, index);
            rule.run(check);
        });
    visitors.walk(check, tree, element);
    if (memory.failed())
    {
        return RTX_E_HEAP;
    }
    if (sink == nullptr)
    {
        return check.count();
    }
    Places places(tree, sink, arg);
    const int64_t told = places.tell(findings, model.config, element);
    forRules(
        [&](const Rule& rule, OSUINT32 index)
        {
            if (undecided[index] != 0)
            {
                places.tellUndecided(rule.told, undecided[index]);
            }
        });
    return told;
}

} // namespace
} // namespace rules

int64_t rrcCheckSomeRules(OSCTXT* pctxt, const CellGroupConfig* pvalue, const RrcRuleContext* known,
                          int (*wanted)(void* arg, const RrcRule* rule), RrcRuleSink sink, void* arg)
{
    static constexpr RrcRuleContext nothing{};
    const RrcRuleContext& context = known == nullptr ? nothing : *known;
    if (pctxt == nullptr || pvalue == nullptr)
    {
        return RTX_E_NULL;
    }
    return rules::check(*pctxt, *pvalue, context, wanted, sink, arg);
}

int64_t rrcCheckRules(OSCTXT* pctxt, const CellGroupConfig* pvalue, const RrcRuleContext* known, RrcRuleSink sink,
                      void* arg)
{
    return rrcCheckSomeRules(pctxt, pvalue, known, nullptr, sink, arg);
}

size_t rrcRulePathFormat(const RrcRuleFinding* finding, char* text, size_t size)
{
    rtx::Line line(text, size);
    rules::appendPath(line, {finding->path, finding->depth});
    return line.length;
}

size_t rrcRuleFindingFormat(const RrcRuleFinding* finding, char* text, size_t size)
{
    rtx::Line line(text, size);
    rtx::append(line, "%s: ", rrcRuleSeverityName(finding->severity));
    rules::appendPath(line, {finding->path, finding->depth});
    rtx::append(line, ": %s%s%s [%s]", finding->found, finding->allowed[0] == '\0' ? "" : ", but ", finding->allowed,
                finding->rule);
    return line.length;
}

OSUINT32 rrcRuleCount(void)
{
    OSUINT32 count = 0;
    for (const rules::RuleGroup* const group : rules::ruleGroups)
    {
        count += group->count;
    }
    return count;
}

const RrcRule* rrcRuleAt(OSUINT32 index)
{
    for (const rules::RuleGroup* const group : rules::ruleGroups)
    {
        if (index < group->count)
        {
            return &group->rules[index].told;
        }
        index -= group->count;
    }
    return nullptr;
}

const RrcRule* rrcRuleById(const char* id)
{
    const RrcRule* found = nullptr;
    rules::forRules(
        [&](const rules::Rule& rule, OSUINT32)
        {
            if (id != nullptr && std::strcmp(rule.told.id, id) == 0)
            {
                found = &rule.told;
            }
        });
    return found;
}

const char* rrcRuleGroupTitle(const char* id)
{
    const std::string_view prefix(id, id == nullptr ? 0 : std::strcspn(id, "-"));
    for (const rules::GroupTitle& group : rules::titles)
    {
        if (prefix == group.prefix)
        {
            return group.title;
        }
    }
    return nullptr;
}

const char* rrcRuleSeverityName(OSUINT8 severity)
{
    static constexpr const char* names[] = {"undecided", "notice", "warning", "error"};
    return severity < std::size(names) ? names[severity] : "unknown";
}
