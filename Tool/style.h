// Colours of a terminal; never the only sign of anything.
#pragma once

#include <string>
#include <string_view>

namespace tool
{

enum class Style
{
    Bold,
    Red,
    Green,
    Yellow,
};

inline std::string styled(std::string_view text, Style style, bool color)
{
    if (!color)
    {
        return std::string(text);
    }
    const char* const code = style == Style::Bold    ? "1"
                             : style == Style::Red   ? "31"
                             : style == Style::Green ? "32"
                                                     : "33";
    return "\x1b[" + std::string(code) + "m" + std::string(text) + "\x1b[m";
}

} // namespace tool
