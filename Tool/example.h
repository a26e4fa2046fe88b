// The records to begin with, as messages.
#pragma once

#include "rrcPlayground.h"

#include <vector>

namespace tool
{

// Each in hex, and two to compare.
std::vector<playground::Example> pastedExamples();

} // namespace tool
