// A picture of the radio resources that a CellGroupConfig (TS 38.331 V15.6.0) configures: bandwidth parts, CORESETs,
// search spaces, CSI-RS, sounding, PUCCH and time domain allocations over resource blocks, slots and symbols. C++20, of
// a host's standard library; nothing is thrown, read from or written to files.
#ifndef RRCDRAW_H
#define RRCDRAW_H

#include "rrcContext.h"

#include <string>

namespace draw
{

constexpr unsigned mostSlots = 160;     // of a picture
constexpr unsigned usualMostSlots = 80; // where their number is not said

struct Options
{
    unsigned firstSlot = 0; // counted from the first slot of system frame 0, 0..10239
    unsigned slots = 0;     // at most mostSlots; 0: the least common multiple of the periods, at most usualMostSlots
};

// One <svg> element, self-contained, of a tree that lies in the context's heap and may be anything. What cannot be
// placed is listed in it with what would have to be known; nothing is guessed. `known` may be null; with its `previous`
// the picture is of the configuration that the message leads to. Takes from the heap what the model of the cell group
// asks for and gives it back. Empty where the heap is exhausted or the message cannot be applied to `previous`, with
// the context's error.
//
// Each resource is a <g class="KIND" data-path="..."> with a <title>; data-path is the element's path as flat lines
// have it. Around them, <g class="grid"> of a cell and a spacing has data-cell (in the order of the picture),
// data-first-slot, data-slots, data-symbols (of a slot), data-x (of the first slot), data-slot-width and
// data-symbol-width, <g class="panel"> of a direction data-direction, data-first-rb, data-rbs, data-y (the upper edge)
// and data-rb-height. All lengths are in the picture's units.
std::string svg(OSCTXT& ctxt, const CellGroupConfig& value, const RrcRuleContext* known, const Options& options);

} // namespace draw

#endif
