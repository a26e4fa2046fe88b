// What is wrong with a record before it is composed.
#pragma once

#include "findings.h"
#include "message.h"

#include <vector>

namespace tool
{

// What a path in the record begins with.
inline constexpr const char* recordRoot = "RrcCellGroupCfg_t";

// Of a record that was read without mistakes.
std::vector<Finding> recordFindings(const Message& message);

} // namespace tool
