// What rules report, and where in the tree that is.
#ifndef RULES_FINDING_H
#define RULES_FINDING_H

#include "memory.h"
#include "path.h"
#include "rrcRules.h"
#include "tree.h"

namespace rules
{

// A finding before its path is known: the place is told by its address. `size` tells a structure from its first member.
struct Finding
{
    const RrcRule* rule;
    const void* at;
    size_t size;
    OSUINT32 decidedBy;
    OSUINT32 number; // in the order of their reports
    OSUINT8 severity;
    bool told;
    const char* found; // null: what lies at the place, as it stands
    const char* allowed;
    const char* advice; // null: the rule's
};

// Tells the findings in the order of their places: one walk over the state `after` and, where that is another tree, one
// over the message for what is only there. An element that several pointers lead to is told of at the first.
class Places
{
public:
    Places(const Tree& tree, RrcRuleSink sink, void* arg) : tree_(tree), sink_(sink), arg_(arg) {}

    // Returns how many the sink was given.
    int64_t tell(Vector<Finding*>& findings, const CellGroupConfig& after, const CellGroupConfig& message);

    // After the others: what has no place.
    void tellUndecided(const RrcRule& rule, OSUINT32 inputs);

private:
    void look(const RtxType& type, const void* value, bool present, bool inMessage, const Place* place);
    void walk(const RtxType& type, const void* value, const void* sent, const Place* place);
    void member(const RtxType& type, unsigned number, const void* structure, const void* sent, const Place* place);
    void alternative(const RtxType& type, const void* choice, const void* sent, const Place* place);
    void list(const RtxType& type, const void* list, const void* sent, const Place* place);
    void array(const RtxType& type, const void* array, bool inMessage, const Place* place);
    void tellOne(const Finding& finding, const RtxType& type, bool present, bool inMessage, const Place* place);

    const Tree& tree_;
    RrcRuleSink sink_;
    void* arg_;
    std::span<Finding*> open_; // by their places
    size_t left_ = 0;
    int64_t told_ = 0;
    bool ended_ = false;
};

} // namespace rules

#endif
