// Every field of a message on the wire, as a table.
#pragma once

#include "messageTypes.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tool
{

// A line a field: bit range, octet.bit of the first, width, the bits, path and what they say.
std::string traceText(const RtxPdu& pdu, std::vector<std::uint8_t> octets);

// "5.7" of bit 47.
std::string octetPlace(std::uint64_t bit);

// "bit 47 (octet 5.7)"
std::string bitPlace(std::uint64_t bit);

// Why encoding again would give other octets: "an extension group without members". Empty for RTX_NOTE_NONE.
std::string noteText(unsigned note);

} // namespace tool
