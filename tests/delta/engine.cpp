#include "engine.h"

#include <algorithm>

namespace delta
{

namespace
{

void collect(void* arg, const RtxDeltaItem* item)
{
    std::string line(rtxDeltaFormat(item, nullptr, 0) + 1, '\0');
    (void)rtxDeltaFormat(item, line.data(), line.size());
    line.pop_back();
    std::string ancestor;
    const std::string end = " can be released and set up again";
    if (const size_t at = line.rfind("; "); line.ends_with(end))
    {
        ancestor = line.substr(at + 2, line.size() - end.size() - at - 2);
    }
    static_cast<std::vector<Item>*>(arg)->push_back(
        {item->kind, item->reason, item->cause, line.substr(0, line.find(": ")), ancestor, line});
}

void append(void* arg, const char* text)
{
    *static_cast<std::string*>(arg) += text;
}

bool tells(const std::vector<Problem>& problems, const Item& item)
{
    return std::any_of(problems.begin(), problems.end(),
                       [&](const Problem& problem)
                       { return problem.path == item.path && problem.reason == item.reason; });
}

std::string outcomeText(int outcome)
{
    switch (outcome)
    {
    case RTX_DELTA_TO_SEND:
        return "sent";
    case RTX_DELTA_NOTHING:
        return "nothing to send";
    case RTX_DELTA_MORE:
        return "two messages";
    case RTX_E_DELTA:
        return "refused";
    default:
        return "status " + std::to_string(outcome);
    }
}

// What is wrong with a delta that is sent, and the state that it leads to.
std::string sentFaults(Heap& heap, const CellGroupConfig* prev, const Result& result, Applied& applied)
{
    const Octets octets = heap.encode(result.delta);
    if (octets.empty())
    {
        return "the delta is not encoded\n";
    }
    const CellGroupConfig* const decoded = heap.decode(octets);
    if (decoded == nullptr || heap.encode(decoded) != octets)
    {
        return "the delta is not decoded as it was encoded\n";
    }
    applied = apply(heap, prev, decoded);
    if (applied.status != RTX_OK)
    {
        return "the delta is not applied: " + std::to_string(applied.status) + "\n";
    }
    return applied.items.empty()
               ? ""
               : "the delta releases what is not held: " + applied.items.front().text + "\n" + flat(heap, decoded);
}

} // namespace

std::string flat(Heap& heap, const CellGroupConfig* tree)
{
    std::string text;
    (void)asn1ToFlat_CellGroupConfig(&heap.ctxt, tree, append, &text);
    return text;
}

Result diff(Heap& heap, const CellGroupConfig* prev, const CellGroupConfig* next, unsigned flags)
{
    Result result{RTX_OK, heap.tree(), {}};
    const RtxDeltaOptions options = {flags, &result.items};
    rtxErrReset(&heap.ctxt);
    result.status = rtxDiff(&heap.ctxt, &root(), prev, next, &options, result.delta, collect);
    return result;
}

Applied apply(Heap& heap, const CellGroupConfig* prev, const CellGroupConfig* delta)
{
    Applied applied{RTX_OK, heap.tree(), {}};
    rtxErrReset(&heap.ctxt);
    applied.status = rtxApply(&heap.ctxt, &root(), prev, delta, applied.next, collect, &applied.items);
    return applied;
}

std::string faults(Heap& heap, const CellGroupConfig* prev, const CellGroupConfig* next, unsigned flags,
                   const Expected& expected, Result& result)
{
    const Octets before = prev != nullptr ? heap.encode(prev) : Octets();
    const Octets after = heap.encode(next);
    result = diff(heap, prev, next, flags);
    if (after.empty() || heap.encode(next) != after || (prev != nullptr && heap.encode(prev) != before))
    {
        return "a given tree is none, or was changed\n";
    }
    if (result.status != expected.outcome)
    {
        std::string text = outcomeText(result.status) + " instead of " + outcomeText(expected.outcome) + ", flags " +
                           std::to_string(flags) + "\n";
        for (const Item& item : result.items)
        {
            text += "  " + item.text + "\n";
        }
        for (const auto* problems : {&expected.refused, &expected.recreated, &expected.first})
        {
            for (const Problem& problem : *problems)
            {
                text += "  expected at " + problem.path + ": " + std::to_string(problem.reason) + "\n";
            }
        }
        return text;
    }
    if (expected.outcome == RTX_E_DELTA)
    {
        if (result.items.size() != 1 || result.items.front().kind != RTX_DELTA_REFUSED)
        {
            return "refused without an item, or with more\n";
        }
        if (!tells(expected.refused, result.items.front()))
        {
            return "another refusal: " + result.items.front().text + "\n  instead of " + expected.refused.front().path +
                   ": " + std::to_string(expected.refused.front().reason) + "\n";
        }
        return "";
    }
    // The law, by a state that the engine has not made.
    const Octets wanted = heap.encode(expected.wanted);
    CellGroupConfig* const state = heap.tree();
    if (rtxState(&heap.ctxt, &root(), next, state) != RTX_OK || heap.encode(state) != heap.encode(stateOf(heap, next)))
    {
        return "the state of next is another one\n";
    }
    const CellGroupConfig* held = expected.held;
    Result each = result;
    for (unsigned messages = 0; each.status != RTX_DELTA_NOTHING; ++messages)
    {
        if (each.status != RTX_DELTA_TO_SEND && each.status != RTX_DELTA_MORE)
        {
            return "the second message: " + outcomeText(each.status) +
                   (each.items.empty() ? "" : " " + each.items.front().text) + "\n";
        }
        if (messages == 3)
        {
            return "there is no end to the messages\n";
        }
        Applied applied{};
        if (const std::string text = sentFaults(heap, messages == 0 ? prev : held, each, applied); !text.empty())
        {
            return text;
        }
        held = applied.next;
        if (each.status == RTX_DELTA_TO_SEND)
        {
            break;
        }
        each = diff(heap, held, stateOf(heap, next), flags); // actions are done by the first
    }
    const Octets reached = held != nullptr ? heap.encode(held) : Octets();
    if (reached != wanted)
    {
        return "another state is reached:\n" + (held != nullptr ? flat(heap, held) : "") + "instead of\n" +
               flat(heap, expected.wanted) + "by\n" + flat(heap, result.delta);
    }
    return "";
}

} // namespace delta
