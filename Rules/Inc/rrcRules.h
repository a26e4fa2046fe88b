// What holds between the members of a CellGroupConfig (TS 38.331 V15.6.0) beyond its ASN.1: references that resolve,
// presence conditions, numbers that fit each other. Valid C11 and C++20.
//
// A rule judges by what is known. What a message alone does not say, such as the carriers of a PCell that SIB1 has
// told, comes from an RrcRuleContext; where it is unknown, a rule that needs it says nothing and is told as undecided.
#ifndef RRCRULES_H
#define RRCRULES_H

#include "rrcContext.h"

#ifdef __cplusplus
extern "C"
{
#endif

#pragma GCC visibility push(default)

// How much a finding weighs.
typedef enum RrcRuleSeverity
{
    RRC_RULE_UNDECIDED = 0, // no finding: the rule could not be decided everywhere, `decidedBy` says what would do it
    RRC_RULE_NOTICE = 1,    // information, or what would be an error unless an earlier message has configured the rest
    RRC_RULE_WARNING = 2,   // legal, but surely not intended, or ignored by the UE
    RRC_RULE_ERROR = 3      // the UE will or may reject it, or its behaviour is not specified
} RrcRuleSeverity;

// What a rule says of a place. Everything in it lives until the sink returns.
typedef struct RrcRuleFinding
{
    const char* rule;    // its id: "bwp-in-carrier"
    OSUINT8 severity;    // RrcRuleSeverity
    OSUINT32 decidedBy;  // RrcRuleInput bits: what could change the verdict; for RRC_RULE_UNDECIDED what would give one
    const char* found;   // what is there: "locationAndBandwidth 211: RBs 211..211"
    const char* allowed; // what the standard computes or allows: reads on behind "found, but"; may be empty
    const char* advice;  // what to do
    const char* clause;  // "TS 38.213 12"
    const void* value;   // the member in the tree; null for RRC_RULE_UNDECIDED
    OSBOOL configuredBefore; // the message does not have the place: indices count in lists ordered by identity
    OSUINT32 depth;          // steps of the path; 0 for CellGroupConfig itself and for RRC_RULE_UNDECIDED
    const RrcRuleStep* path; // outermost step first; CellGroupConfig itself is not one of them
} RrcRuleFinding;

// Nonzero ends the check. Must not allocate from the context's heap.
typedef int (*RrcRuleSink)(void* arg, const RrcRuleFinding* finding);

// A rule as documents and tools tell it. Lives as long as the program; ids are never used again for something else.
typedef struct RrcRule
{
    const char* id;
    OSUINT8 severity;      // the highest that it reports
    const char* statement; // what holds, in one sentence
    const char* advice;    // what to do where it does not
    const char* clause;
    const char* given; // what the examples take for given, in words; empty: all that the UE has is in the element
    const char* bad;   // an example that breaks it: flat lines, what is taken away "= absent"
    const char* good;  // its nearest neighbour that does not
    const char* since; // version of this library
} RrcRule;

// Checks an element, whose tree lies in *pctxt's heap (the root may lie anywhere), against all rules. Findings come in
// the order of the places in the tree, of one place in the order of the rules; behind them what is undecided. The tree
// may be broken: pointers that do not lead into the heap are not followed, and nothing is said of what lies behind
// them. Takes from the heap what the number of cells, bandwidth parts, resources and findings asks for and gives it
// back. `known` may be null. Returns the number of findings without RRC_RULE_UNDECIDED;
// or, without a call of the sink, RTX_E_NULL without context or element, RTX_E_HEAP when the heap is exhausted, and
// with `previous` the status of rtxApply and the context's error where one of the two trees is broken, a list would
// become too long or they are of different cell groups. (That an entry lacks what its creation asks for is a finding.)
int64_t rrcCheckRules(OSCTXT* pctxt, const CellGroupConfig* pvalue, const RrcRuleContext* known, RrcRuleSink sink,
                      void* arg);

// The same with the rules for which `wanted` returns nonzero.
int64_t rrcCheckSomeRules(OSCTXT* pctxt, const CellGroupConfig* pvalue, const RrcRuleContext* known,
                          int (*wanted)(void* arg, const RrcRule* rule), RrcRuleSink sink, void* arg);

// Writes the finding as one line without line end to text[0..size-1], always terminated: severity, path, what is wrong,
// id. Returns the length of the whole line.
size_t rrcRuleFindingFormat(const RrcRuleFinding* finding, char* text, size_t size);

// The finding's path alone: "CellGroupConfig.rlc-BearerToAddModList[1: logicalChannelIdentity 4].rlc-Config". Returns
// the length of the whole path.
size_t rrcRulePathFormat(const RrcRuleFinding* finding, char* text, size_t size);

// The table of rules, in the order of the groups: 0 <= index < rrcRuleCount(), else null.
OSUINT32 rrcRuleCount(void);
const RrcRule* rrcRuleAt(OSUINT32 index);
// By its id; null where there is none.
const RrcRule* rrcRuleById(const char* id);
// The title of the group that an id belongs to by what stands before its first '-': "Bandwidth parts and carriers" of
// "bwp-in-carrier" and of "bwp"; null where there is no such group.
const char* rrcRuleGroupTitle(const char* id);

// "error", "warning", "notice", "undecided".
const char* rrcRuleSeverityName(OSUINT8 severity);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
