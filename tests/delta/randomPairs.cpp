#include "randomPairs.h"

#include "randomTree.h"

#include <set>

namespace delta
{

namespace
{

// Of entries with one identity the first stays.
void removeTwins(Heap& heap, const Type& type, void* value)
{
    switch (type.kind)
    {
    case Kind::Sequence:
        for (unsigned i = 0; i < type.memberCount; ++i)
        {
            if (has(type, value, i))
            {
                removeTwins(heap, *type.members[i].type, at(type, value, i));
            }
        }
        break;
    case Kind::Choice:
        if (alternative(value) < type.memberCount)
        {
            removeTwins(heap, *type.members[alternative(value)].type, content(type, value));
        }
        break;
    case Kind::Array:
    case Kind::List:
    {
        std::set<int64_t> seen;
        std::vector<void*> left;
        for (void* const element : elements(type, value))
        {
            if (type.identity == rtx::noIdentity || seen.insert(identity(type, element)).second)
            {
                left.push_back(element);
            }
            if (type.kind == Kind::List)
            {
                removeTwins(heap, type.element(), element);
            }
        }
        if (type.identity != rtx::noIdentity)
        {
            setElements(heap, type, value, left);
        }
        break;
    }
    default:
        break;
    }
}

CellGroupConfig* randomTree(Heap& heap, test::RandomTree& random)
{
    CellGroupConfig* const tree = heap.tree();
    random.fill(root(), tree);
    return tree;
}

CellGroupConfig* finished(Heap& heap, CellGroupConfig* tree)
{
    removeTwins(heap, root(), tree);
    complete(heap, root(), tree, {});
    return tree;
}

} // namespace

Pair randomPair(Heap& heap, uint64_t seed, Distance distance, bool unknown)
{
    test::RandomTree::Options options;
    options.unknown = unknown;
    options.budget = static_cast<unsigned>(20 + seed * 37 % 400);
    test::RandomTree random(heap.ctxt, seed, options);
    Pair pair{finished(heap, randomTree(heap, random)), nullptr};
    if (distance == Distance::Near)
    {
        pair.next = copy(heap, pair.prev);
        (void)random.change(root(), pair.next, static_cast<unsigned>(1 + random.below(5)));
    }
    else
    {
        test::RandomTree other(heap.ctxt, ~seed, options);
        pair.next = randomTree(heap, other);
        pair.next->cellGroupId = random.below(20) == 0 ? pair.next->cellGroupId : pair.prev->cellGroupId;
    }
    pair.next = finished(heap, pair.next);
    return pair;
}

} // namespace delta
