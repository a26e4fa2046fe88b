// page.css and page.js, which the build puts into the library.
#pragma once

#include <string_view>

namespace page
{

extern const std::string_view style;
extern const std::string_view script;

} // namespace page
