// Lines of "  label        text", as explain writes them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tool
{

inline constexpr std::size_t rowColumn = 13; // where the text begins, behind the indentation
inline constexpr std::size_t rowWidth = 100; // of text

inline std::string row(std::string_view label, std::string_view text)
{
    return "  " + std::string(label) + std::string(rowColumn - label.size(), ' ') + std::string(text) + "\n";
}

// The words in as many lines as they need, the label before the first one. A line ends at a separator.
inline std::string rows(std::string_view label, std::string_view words, std::string_view separator = " ")
{
    std::string text;
    while (words.size() > rowWidth)
    {
        const std::size_t found = words.rfind(separator, rowWidth);
        if (found == std::string_view::npos)
        {
            break;
        }
        const std::size_t blank = found + separator.size() - 1;
        text += row(label, words.substr(0, blank));
        words.remove_prefix(blank + 1);
        label = "";
    }
    return text + row(label, words);
}

} // namespace tool
