// Every place of the tree of CellGroupConfig: each path from the root through members, alternatives and elements.
#ifndef PLACES_H
#define PLACES_H

#include "trees.h"

#include <functional>

namespace delta
{

// A member of a sequence, an alternative of a choice or the element of a list.
struct Step
{
    const Type* type;
    unsigned index;
};

class Place
{
public:
    std::vector<Step> steps;

    const Type& parent() const
    {
        return *steps.back().type;
    }
    unsigned index() const
    {
        return steps.back().index;
    }
    const Type& type() const
    {
        return *parent().members[index()].type;
    }
    const Need& code() const
    {
        return need(parent(), index());
    }
    // The path as the engine writes it.
    std::string text() const;
    // Within a list that is replaced as a whole.
    bool inPlainList() const;
    // Within an action.
    bool inAction() const;
    // Whether a step has this member of a type.
    bool passes(const char* type, const char* member) const;
    // Within an entry of a list whose entries are added and modified; the list's nearest step.
    int entryStep() const;
};

// The identities of the entry that a place lies in, and of the one beside it.
int64_t mainIdentity(const Type& list);
int64_t otherIdentity(const Type& list);

// Every member of every sequence, but the lists that release entries.
void forEachMember(const std::function<void(const Place&)>& visit);
// Every choice but those of SetupRelease; the last step leads to it.
void forEachChoice(const std::function<void(const Place&)>& visit);

// What a place's last step starts from, in a tree where all that leads there is made.
struct Spot
{
    void* parent;
    Where where;
};
Spot reach(Heap& heap, void* tree, const Place& place);

// What the tree has at the place; null where it has not.
const void* find(const void* tree, const Place& place);

} // namespace delta

#endif
