// The floor of the benchmark, F*: a message's fields put through a 64-bit accumulator into a flat buffer, nothing
// checked.
#ifndef FLOOR_H
#define FLOOR_H

#include <cstddef>
#include <cstdint>
#include <vector>

#include "fields.h"

namespace bench
{

// Writes the fields and returns the octets written.
using Put = std::size_t (*)(const Field* fields, std::size_t count, uint8_t* buffer);

// The same loop takes twice as long at some addresses as at others. There are copies of it at all of them modulo 64, in
// steps of 4: the one that is the fastest for these fields.
Put fastestPut(const std::vector<Field>& fields);

} // namespace bench

#endif
