// Whole records, and what comes of them.
#ifndef COMPOSED_H
#define COMPOSED_H

#include <cstdint>
#include <memory>
#include <string>

#include "rrcCodec/rrcCodec.h"

namespace records
{

// A record full of anything.
std::unique_ptr<RrcCellGroupCfg_t> junk(std::uint32_t seed);

// A record's octets, or the line that refuses it.
std::string composed(RrcCellGroupCfg_t* record);

} // namespace records

#endif
