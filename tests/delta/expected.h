// What is expected of a delta between two trees, from the annotations of the schema alone: whether it is sent, in one
// message or in two, or refused, and then where and why. Nothing of the engine is used.
#ifndef EXPECTED_H
#define EXPECTED_H

#include "trees.h"

#include <optional>
#include <string>
#include <vector>

namespace delta
{

// A change that no message brings.
struct Problem
{
    std::string path;
    int reason; // RtxDeltaReason
};

struct Expected
{
    int outcome = RTX_DELTA_NOTHING;   // or RTX_DELTA_TO_SEND, RTX_DELTA_MORE, RTX_E_DELTA
    std::vector<Problem> refused;      // RTX_E_DELTA: any of them may be told
    std::vector<Problem> recreated;    // what the release and addition of an entry cures
    std::vector<Problem> first;        // what two messages cure
    std::vector<std::string> active;   // changes that want an inactive assignment or grant
    bool sync = false;                 // reconfigurationWithSync is sent
    CellGroupConfig* held = nullptr;   // state of prev, null where there is none
    CellGroupConfig* wanted = nullptr; // state of next with the one-shots that stay
};

// `prev` is null where nothing is held.
Expected expect(Heap& heap, const CellGroupConfig* prev, const CellGroupConfig* next, unsigned flags);

} // namespace delta

#endif
