// The known name that a mistyped one was likely meant to be.
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace text
{

// The name with the fewest letters inserted, dropped, replaced or swapped with the next one, if these are at most a
// third of the word (one at least); the first of several. Upper and lower case count as the same letter, '-' and '_' as
// well.
std::optional<std::string_view> nearest(std::string_view word, std::span<const std::string_view> names);

} // namespace text
