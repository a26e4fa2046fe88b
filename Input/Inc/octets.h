// Octets as text and back: the digits of hex and base64, and the writers of both.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tool
{

using Octets = std::span<const std::uint8_t>;

enum class Case
{
    Lower,
    Upper,
};

// 0 to 15, -1 for what is no hex digit.
int hexValue(char c);

// 0 to 63 in the standard or the URL alphabet (RFC 4648 sections 4 and 5), -1 for what is no base64 digit.
int base64Value(char c);

// Two digits per octet, nothing between them.
std::string toHex(Octets octets, Case digits = Case::Lower);

// "const uint8_t <name>[] = {...};", twelve octets a line; `name` is a C identifier.
std::string toCArray(Octets octets, std::string_view name);

// The standard alphabet with padding, on one line.
std::string toBase64(Octets octets);

} // namespace tool
