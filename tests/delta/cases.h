// Pairs of configurations, one for each thing that may happen to each place of the tree.
#ifndef CASES_H
#define CASES_H

#include "places.h"

#include <optional>

namespace delta
{

enum class Happening
{
    Appears,
    Vanishes,
    Changes,
    Stays,       // beside a sibling that changes
    StaysFarther // beside a sibling of the sequence around it that changes
};
constexpr Happening allHappenings[] = {Happening::Appears, Happening::Vanishes, Happening::Changes, Happening::Stays,
                                       Happening::StaysFarther};
const char* nameOf(Happening happening);

struct Pair
{
    CellGroupConfig* prev;
    CellGroupConfig* next;
};

// Null where it cannot happen: a member that is always there, a type of one value, a sequence with nothing else in it.
std::optional<Pair> makePair(Heap& heap, const Place& place, Happening happening);

// Gives the list at a place these entries, in this order.
void setEntries(Heap& heap, const Place& place, CellGroupConfig* tree, const std::vector<int64_t>& ids,
                unsigned variant = 0);

// A message to what lies around a place: an SCell that is there gets no common part, which would end its supplementary
// uplink.
const CellGroupConfig* laterMessage(Heap& heap, const Place& place, const CellGroupConfig* message);

// A member of the sequence at that step of a place that can change beside the step's own; changes it in a tree where
// it is as makePair leaves it. Returns whether there is one.
bool changeSibling(Heap& heap, const Place& place, size_t step, CellGroupConfig* tree);

// The step of the sequence around the one that holds the place's member, or nothing.
std::optional<size_t> fartherStep(const Place& place);

} // namespace delta

#endif
