// What the values of a CellGroupConfig (TS 38.331 V15.6.0) mean: resource blocks, symbols, periods, frequencies, powers
// and timers in words and units, each with its formula and clause. Valid C11 and C++20.
//
// A meaning is made of what is known. What depends on more, such as the milliseconds of a period on the spacing of its
// bandwidth part, says what it needs; nothing is guessed.
#ifndef RRCEXPLAIN_H
#define RRCEXPLAIN_H

#include "rrcContext.h"

#ifdef __cplusplus
extern "C"
{
#endif

#pragma GCC visibility push(default)

// What a value means. Everything in it lives until the sink returns.
typedef struct RrcMeaning
{
    const void* value;       // in the tree: a number, an enumeration's value, a bit string, or a choice without content
    const RtxType* type;     // of the value
    OSUINT32 depth;          // steps of the path
    const RrcRuleStep* path; // outermost step first; CellGroupConfig itself is not one of them
    const char* text;        // what it means: "PRBs 0..272 (273)"; empty where nothing can be said without `needs`
    const char* formula;     // how that comes about, in words; may be empty
    const char* clause;      // "TS 38.214 5.1.2.2.2"
    const char* needs;       // what would have to be known to say more: "the bandwidth part's spacing"; may be empty
    OSUINT32 inputs;         // RrcRuleInput bits: what would tell it, each of them may do; 0: nothing would
} RrcMeaning;

// Nonzero ends the walk. Must not allocate from the context's heap.
typedef int (*RrcMeaningSink)(void* arg, const RrcMeaning* meaning);

// Tells each value of an element that has a meaning, in the order of the tree. The tree lies in *pctxt's heap (the root
// may lie anywhere) and may be anything: pointers that do not lead into the heap are not followed, values out of their
// range mean nothing. `known` may be null; with its `previous` a message's values are read in the configuration that
// it leads to. Takes from the heap what the number of cells, bandwidth parts and resources asks for and gives it back.
// `sink` may be null. Returns the number of meanings; or, without a call of the sink, RTX_E_NULL without context or
// element, RTX_E_HEAP when the heap is exhausted, and with `previous` what rtxApply returns.
int64_t rrcExplain(OSCTXT* pctxt, const CellGroupConfig* pvalue, const RrcRuleContext* known, RrcMeaningSink sink,
                   void* arg);

// The same for one place of the tree: the value at an address, of a type. Returns 1, or 0 where it has no meaning or is
// not in the tree.
int64_t rrcExplainValue(OSCTXT* pctxt, const CellGroupConfig* pvalue, const RrcRuleContext* known, const void* value,
                        const RtxType* type, RrcMeaningSink sink, void* arg);

// Writes a meaning as one line without line end to text[0..size-1], always terminated: "10 slots, offset 3; needs the
// bandwidth part's spacing". Returns the length of the whole line.
size_t rrcMeaningFormat(const RrcMeaning* meaning, char* text, size_t size);

// The meaning's path alone, as rrcRulePathFormat gives it. Returns the length of the whole path.
size_t rrcMeaningPathFormat(const RrcMeaning* meaning, char* text, size_t size);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
