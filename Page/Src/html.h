// Text for HTML and for the JSON within it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace page
{

// For text. What is not UTF-8 or a control character becomes U+FFFD.
std::string escaped(std::string_view text);

// For an attribute, with its quotes.
std::string quoted(std::string_view text);

// A JSON string that no element of HTML can be ended by.
std::string jsonString(std::string_view text);

// "1 octet", "2 octets"
std::string counted(std::uint64_t count, std::string_view thing);

} // namespace page
