// The rules that hold of all fields of a kind.
#ifndef GENERALRULES_H
#define GENERALRULES_H

#include "rrcRecordCheck.h"

// Each of them: X(variable), in the order in which rrcRecordRules lists them, before the rows of docs/behaviour.md.
#define RECORD_GENERAL_RULES(X)                                                                                        \
    X(range)                                                                                                           \
    X(spare)                                                                                                           \
    X(dropped)                                                                                                         \
    X(boolean)                                                                                                         \
    X(alternative)                                                                                                     \
    X(bit)                                                                                                             \
    X(notSent)                                                                                                         \
    X(count)                                                                                                           \
    X(empty)                                                                                                           \
    X(twice)                                                                                                           \
    X(released)

namespace generalRules
{

#define RECORD_GENERAL_RULE(variable) extern const RrcRecordRule variable;
RECORD_GENERAL_RULES(RECORD_GENERAL_RULE)
#undef RECORD_GENERAL_RULE

} // namespace generalRules

#endif
