// The types that a message can have: every named type of the schema.
#pragma once

#include "NR-RRC-Pdus.h"

#include <string_view>

namespace tool
{

// Null when there is none of this name.
const RtxPdu* findType(std::string_view name);

// The same. Throws Failure with the nearest name.
const RtxPdu& typeNamed(std::string_view name);

} // namespace tool
