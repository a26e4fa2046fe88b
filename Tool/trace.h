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

// Of a message that another sender has encoded differently than this encoder would, where and how it first did:
// "<path>: an extension group without members (at bit 47: octet 5, bit 7)".
std::string noteText(const RtxPdu& pdu, std::vector<std::uint8_t> octets);

} // namespace tool
