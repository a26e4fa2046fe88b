#include "cases.h"

namespace delta
{

namespace
{

CellGroupConfig* treeWith(Heap& heap, const Place& place)
{
    CellGroupConfig* const tree = heap.tree();
    Place beyond = place; // what a step leads to is made when it is entered
    beyond.steps.push_back({&place.type(), 0});
    (void)reach(heap, tree, beyond);
    return tree;
}

bool isIdentity(const Place& place, size_t step, unsigned index)
{
    return step != 0 && place.steps[step - 1].type->kind == Kind::List &&
           place.steps[step - 1].type->identity == static_cast<int>(index);
}

} // namespace

const char* nameOf(Happening happening)
{
    static const char* const names[] = {"appears", "vanishes", "changes", "stays", "stays farther"};
    return names[static_cast<size_t>(happening)];
}

const CellGroupConfig* laterMessage(Heap& heap, const Place& place, const CellGroupConfig* message)
{
    if (!place.passes("SCellConfig", "sCellConfigDedicated"))
    {
        return message;
    }
    CellGroupConfig* const later = copy(heap, message);
    for (const OSRTDListNode* node = later->sCellToAddModList.head; node != nullptr; node = node->next)
    {
        static_cast<SCellConfig*>(node->data)->m.sCellConfigCommonPresent = 0;
    }
    return later;
}

std::optional<size_t> fartherStep(const Place& place)
{
    for (size_t i = place.steps.size() - 1; i-- != 0;)
    {
        if (place.steps[i].type->kind == Kind::Sequence)
        {
            return i;
        }
    }
    return std::nullopt;
}

void setEntries(Heap& heap, const Place& place, CellGroupConfig* tree, const std::vector<int64_t>& ids,
                unsigned variant)
{
    const Spot spot = reach(heap, tree, place);
    std::vector<void*> entries;
    for (const int64_t id : ids)
    {
        entries.push_back(makeEntry(heap, place.type(), id, variant));
    }
    setElements(heap, place.type(), put(place.parent(), spot.parent, place.index()), entries);
}

bool changeSibling(Heap& heap, const Place& place, size_t step, CellGroupConfig* tree)
{
    const Type& type = *place.steps[step].type;
    Place head;
    head.steps.assign(place.steps.begin(), place.steps.begin() + static_cast<std::ptrdiff_t>(step) + 1);
    const Spot spot = reach(heap, tree, head);
    for (unsigned i = 0; i < type.memberCount; ++i)
    {
        if (i != head.index() && !isOptional(type, i) && need(type, i).change == Change::Free &&
            !isIdentity(place, step, i) && vary(heap, *type.members[i].type, at(type, spot.parent, i), spot.where))
        {
            return true;
        }
    }
    for (unsigned i = 0; i < type.memberCount; ++i)
    {
        const Need& code = need(type, i);
        if (i != head.index() && isOptional(type, i) && !has(type, spot.parent, i) && code.change == Change::Free &&
            code.list == ListRole::None && !isAction(code))
        {
            fill(heap, *type.members[i].type, put(type, spot.parent, i), 0, spot.where);
            return true;
        }
    }
    if (type.extensible)
    {
        addAddition(heap, type, spot.parent, 0, 1);
        return true;
    }
    return false;
}

std::optional<Pair> makePair(Heap& heap, const Place& place, Happening happening)
{
    const Type& type = place.type();
    const bool entries = place.code().list != ListRole::None;
    Pair pair{treeWith(heap, place), nullptr};
    pair.next = copy(heap, pair.prev);
    const Spot spot = reach(heap, pair.next, place);
    switch (happening)
    {
    case Happening::Appears:
    case Happening::Vanishes:
        if (!isOptional(place.parent(), place.index()))
        {
            return std::nullopt;
        }
        drop(place.parent(), spot.parent, place.index());
        return happening == Happening::Vanishes ? pair : Pair{pair.next, pair.prev};
    case Happening::Changes:
        // What becomes of a list's entries is another matter.
        if (entries || isIdentity(place, place.steps.size() - 1, place.index()) ||
            !vary(heap, type, at(place.parent(), spot.parent, place.index()), spot.where))
        {
            return std::nullopt;
        }
        return pair;
    case Happening::Stays:
        return changeSibling(heap, place, place.steps.size() - 1, pair.next) ? std::optional(pair) : std::nullopt;
    case Happening::StaysFarther:
    {
        const std::optional<size_t> step = fartherStep(place);
        return step && changeSibling(heap, place, *step, pair.next) ? std::optional(pair) : std::nullopt;
    }
    }
    return std::nullopt;
}

} // namespace delta
