// A picture of the radio resources that a CellGroupConfig (TS 38.331 V15.6.0) configures: bandwidth parts, CORESETs,
// search spaces, CSI-RS, sounding, PUCCH and time domain allocations over resource blocks, slots and symbols. Valid C11
// and C++20; the library is a host's, of the C++ standard library. Nothing is thrown, read from or written to files.
#ifndef RRCDRAW_H
#define RRCDRAW_H

#include "rrcContext.h"

#ifdef __cplusplus
extern "C"
{
#endif

#pragma GCC visibility push(default)

#define RRC_DRAW_MAX_SLOTS 160  // of a picture
#define RRC_DRAW_USUAL_SLOTS 80 // at most, where their number is not said

typedef struct RrcDrawOptions
{
    OSUINT32 firstSlot; // counted from the first slot of system frame 0, 0..10239
    OSUINT32 slots;     // at most RRC_DRAW_MAX_SLOTS; 0: the least common multiple of the periods
} RrcDrawOptions;

// One <svg> element, self-contained, of a tree that lies in the context's heap and may be anything. What cannot be
// placed is listed in it with what would have to be known; nothing is guessed. `known` may be null; with its `previous`
// the picture is of the configuration that the message leads to. Takes from the heap what the model of the cell group
// asks for and gives it back. `options` may be null: all zero. Returns 0 after one call of the sink with all of the
// text; or, without a call, RTX_E_NULL for a null argument that must not be null, RTX_E_HEAP when the heap is
// exhausted, and with `previous` what rtxApply returns.
//
// Each resource is a <g class="KIND" data-path="..."> with a <title>; data-path is the element's path as flat lines
// have it. Around them, <g class="grid"> of a cell and a spacing has data-cell (in the order of the picture),
// data-first-slot, data-slots, data-symbols (of a slot), data-x (of the first slot), data-slot-width and
// data-symbol-width, <g class="panel"> of a direction data-direction, data-first-rb, data-rbs, data-y (the upper edge)
// and data-rb-height. All lengths are in the picture's units.
int rrcDraw(OSCTXT* pctxt, const CellGroupConfig* pvalue, const RrcRuleContext* known, const RrcDrawOptions* options,
            RtxPrintSink sink, void* arg);

#pragma GCC visibility pop

#ifdef __cplusplus
}

#include <string>

namespace draw
{

// The same as a string; empty where rrcDraw returns an error, with the context's error.
std::string svg(OSCTXT& ctxt, const CellGroupConfig& value, const RrcRuleContext* known, const RrcDrawOptions& options);

} // namespace draw
#endif

#endif
