// What a rule is written with.
#ifndef RULES_CHECK_H
#define RULES_CHECK_H

#include "finding.h"
#include "model.h"
#include "walk.h"

namespace rules
{

class Check;

// A rule: what documents tell of it, and the function of its name. One that holds wherever a type occurs is called for
// each value of the message instead, of the kinds that it asks for: all of them share one walk.
struct Rule
{
    RrcRule told;
    void (*run)(Check& check) = nullptr;
    void (*visit)(Check& check, const Value& value) = nullptr;
    OSUINT32 kinds = 0; // of `visit`: kindBits()
};

// The rules of one file, in the order of the documents.
struct RuleGroup
{
    const Rule* rules;
    OSUINT32 count;
};

template <size_t N>
constexpr RuleGroup groupOf(const Rule (&rules)[N])
{
    return {rules, N};
}

// A finding that is being said. What is not said stands for itself: what was found, the advice.
class Report
{
public:
    Report(Memory& memory, Finding* finding) : memory_(memory), finding_(finding) {}

    // What is there, where that is more than the value at the place: "symbols 12 and 13".
    __attribute__((format(printf, 2, 3))) Report& found(const char* format, ...);
    // What the standard computes or allows, so that "<found>, but <allowed>" is a sentence.
    __attribute__((format(printf, 2, 3))) Report& allowed(const char* format, ...);
    // What to do, where that is not the rule's advice.
    __attribute__((format(printf, 2, 3))) Report& advice(const char* format, ...);

private:
    Memory& memory_;
    Finding* finding_; // null where nobody is told, and when the heap is exhausted
};

class Check
{
public:
    // Without `findings` they are only counted.
    Check(Model& modelOf, Vector<Finding*>* findings, OSUINT32* undecided)
        : model(modelOf), tree(modelOf.tree), findings_(findings), undecided_(undecided)
    {
    }

    Model& model;
    const Tree& tree;

    // What is wrong at a member of the tree, be it absent: error(&bearer.rlc_Config). A choice stands for alternatives
    // that it does not hold.
    template <typename T>
    Report error(const T* at)
    {
        return report(RRC_RULE_ERROR, at, sizeof(T), 0);
    }
    template <typename T>
    Report warning(const T* at)
    {
        return report(RRC_RULE_WARNING, at, sizeof(T), 0);
    }
    template <typename T>
    Report notice(const T* at)
    {
        return report(RRC_RULE_NOTICE, at, sizeof(T), 0);
    }

    // Of any severity, at a place of any type.
    Report tell(RrcRuleSeverity severity, const RtxType& type, const void* at)
    {
        return report(severity, at, type.size, 0);
    }

    // An error where the configuration is known as a whole; else a notice, as an earlier message may have brought what
    // is missing.
    template <typename T>
    Report missing(bool complete, const T* at, RrcRuleSeverity severity = RRC_RULE_ERROR)
    {
        return complete ? report(severity, at, sizeof(T), 0)
                        : report(RRC_RULE_NOTICE, at, sizeof(T), RRC_RULE_INPUT_PREVIOUS);
    }

    // The element that an id names; null, and said at the place of the id, where there is none. `what` is its kind:
    // "a PUCCH resource".
    template <typename T, typename Id>
    const T* resolve(const Ids<T>& ids, OSUINT32 id, const Id* at, const char* what)
    {
        if (const T* const element = ids.element(id))
        {
            return element;
        }
        if (ids.repeats)
        {
            return nullptr;
        }
        const bool isReleased = ids.isReleased(id);
        Report told = missing(ids.complete || isReleased, at);
        told.found("%u", id);
        if (isReleased)
        {
            told.allowed("%s %u is released by this message", what, id);
        }
        else
        {
            listIds(told, ids, what);
        }
        return nullptr;
    }

    // The cell that an index names; null, and said at its place, where there is none. What is released by the message
    // scell-release-used tells.
    template <typename Id>
    Cell* resolveCell(OSUINT32 index, const Id* at)
    {
        Cell* const cell = model.cell(index);
        if (cell == nullptr && !model.sCells().isReleased(index))
        {
            const Cell* const spCell = model.spCell();
            const bool areKnown = spCell != nullptr && spCell->index && model.sCells().complete;
            missing(areKnown, at).found("%u", index).allowed("no cell of that ServCellIndex is configured");
        }
        return cell;
    }

    // The bandwidth part that an id names; null, and said at the place of the id, where there is none. Of one that this
    // message releases bwp-release-in-use speaks.
    template <typename Id>
    Bwp* resolveBwp(const Cell& cell, Direction direction, const Id* at)
    {
        Bwp* const bwp = cell.bwp(direction, *at);
        if (bwp == nullptr && !model.isReleased(cell, direction, *at))
        {
            missing(cell.complete, at).allowed("there is no %s bandwidth part %u", nameOf(direction), OSUINT32{*at});
        }
        return bwp;
    }

    // Whether a value is known; where it is not, the rule is told as undecided.
    template <typename T>
    bool decided(const Known<T>& known)
    {
        if (!known)
        {
            undecided(known.inputs());
        }
        return static_cast<bool>(known);
    }

    // Whether an element was configured before the message; Unknown is told as undecided and counts as not new.
    bool isNew(Novelty novelty)
    {
        if (novelty == Novelty::Unknown)
        {
            undecided(RRC_RULE_INPUT_PREVIOUS);
        }
        return novelty == Novelty::New;
    }

    // The rule cannot be decided everywhere; any of the inputs, RrcRuleInput bits, would help.
    void undecided(OSUINT32 inputs);

    // For rrcCheckRules.
    void begin(const Rule& rule, OSUINT32 index)
    {
        rule_ = &rule;
        index_ = index;
    }

    // How often a rule has said something.
    OSUINT32 count() const
    {
        return count_;
    }

private:
    Report report(OSUINT8 severity, const void* at, size_t size, OSUINT32 decidedBy);

    template <typename T>
    void listIds(Report& told, const Ids<T>& ids, const char* what)
    {
        if (ids.empty())
        {
            told.allowed("%s of that id is not configured, nor any other", what);
            return;
        }
        if (findings_ != nullptr && listed_ != &ids) // many references may fail in the same list
        {
            listed_ = &ids;
            OSUINT32 numbers[64];
            OSUINT32 count = 0;
            for (const auto& entry : ids)
            {
                if (count < std::size(numbers))
                {
                    numbers[count++] = entry.id;
                }
            }
            writeIds(listedIds_, sizeof listedIds_, numbers, count);
        }
        told.allowed("%s of that id is not configured: there is %s", what, listedIds_);
    }

    // "0..3, 7".
    static void writeIds(char* text, size_t size, OSUINT32* numbers, OSUINT32 count);

    Vector<Finding*>* findings_;
    OSUINT32* undecided_; // by the rules' index
    const Rule* rule_ = nullptr;
    OSUINT32 index_ = 0;
    OSUINT32 count_ = 0;
    const void* listed_ = nullptr; // the Ids of the model that listedIds_ tells
    char listedIds_[256] = "";
};

} // namespace rules

#endif
