// The engine as the tests call it, and what holds of each of its deltas.
#ifndef ENGINE_H
#define ENGINE_H

#include "expected.h"

namespace delta
{

struct Item
{
    int kind;
    int reason;
    int cause;
    std::string path;
    std::string ancestor; // REFUSED: what can be released first, empty where nothing can
    std::string text;
};

struct Result
{
    int status;
    CellGroupConfig* delta;
    std::vector<Item> items;
};

Result diff(Heap& heap, const CellGroupConfig* prev, const CellGroupConfig* next, unsigned flags);

struct Applied
{
    int status;
    CellGroupConfig* next;
    std::vector<Item> items;
};

Applied apply(Heap& heap, const CellGroupConfig* prev, const CellGroupConfig* delta);

// What is wrong with the engine's delta, in the light of what is expected: nothing, or lines that say it. `result` is
// the first delta. Where it takes more messages all of them are tried.
std::string faults(Heap& heap, const CellGroupConfig* prev, const CellGroupConfig* next, unsigned flags,
                   const Expected& expected, Result& result);

// A tree as flat lines, for messages.
std::string flat(Heap& heap, const CellGroupConfig* tree);

} // namespace delta

#endif
