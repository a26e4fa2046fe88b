// All that is wrong with a CellGroupConfig (TS 38.331 V15.6.0) in its encoding: what breaks a constraint of the ASN.1,
// a rule of PER or a rule between members, in words. Valid C11 and C++20; the library is a host's, of the C++ standard
// library. Nothing is thrown, read from or written to files. Calls share nothing.
#ifndef RRCMESSAGEFINDINGS_H
#define RRCMESSAGEFINDINGS_H

#include "rrcRules.h"

#ifdef __cplusplus
extern "C"
{
#endif

#pragma GCC visibility push(default)

// Something wrong. Everything in it lives until the sink returns; no text is null, and those that say nothing are
// empty.
typedef struct RrcMessageFinding
{
    const char* id;      // "asn1-range", "per-padding", that of a rule: "bwp-in-carrier"
    OSUINT8 severity;    // RrcRuleSeverity
    const char* path;    // from CellGroupConfig on; empty where a rule is undecided
    const char* message; // what is wrong, one sentence without the path
    const char* value;   // what is there
    const char* allowed; // what could be there
    const char* advice;  // what to do
    const char* clause;  // of the standard: "X.680 51.4"
    OSUINT32 decidedBy;  // RrcRuleInput bits: what could change the verdict, or would give one
} RrcMessageFinding;

// Nonzero ends the search.
typedef int (*RrcMessageSink)(void* arg, const RrcMessageFinding* finding);

// Looks for all of it in `numocts` octets of unaligned PER. What cannot be decoded has one finding. `known` is what is
// known besides, null: nothing; its `previous` is not read. Instead `held` is what the UE has before the message, a
// state in unaligned PER; of no octets: as `known` says otherwise. A message that cannot be applied to it has a
// finding, and is then judged as a delta to what nobody knows. Behind the findings come the rules that are undecided,
// with the severity RRC_RULE_UNDECIDED. Returns 0; or RTX_E_NULL without octets or sink, RTX_E_HEAP without memory, and
// the status of what cannot be decoded in `held`.
int rrcMessageFindings(const OSOCTET* octets, size_t numocts, const RrcRuleContext* known, const OSOCTET* held,
                       size_t heldOctets, RrcMessageSink sink, void* arg);

// What to do about a finding that is not of a rule, and the clause that it breaks, by its id; also of those that
// readers of texts and records find: "jer", "record", "record-unread", "record-refused". Null where there is no such
// id.
const char* rrcFindingAdvice(const char* id);
const char* rrcFindingClause(const char* id);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
