#include "nearest.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace text
{

namespace
{

constexpr std::size_t longest = 100; // no name is longer

char folded(char c)
{
    if (c == '_')
    {
        return '-';
    }
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::size_t distance(std::string_view a, std::string_view b)
{
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i)
    {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j)
        {
            const std::size_t replaced = diagonal + (folded(a[i]) == folded(b[j]) ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row[b.size()];
}

} // namespace

std::optional<std::string_view> nearest(std::string_view word, std::span<const std::string_view> names)
{
    if (word.empty() || word.size() > longest)
    {
        return std::nullopt;
    }
    std::optional<std::string_view> best;
    std::size_t least = std::max<std::size_t>(1, word.size() / 3) + 1;
    for (const auto name : names)
    {
        const std::size_t changes = distance(word, name);
        if (changes < least)
        {
            least = changes;
            best = name;
        }
    }
    return best;
}

} // namespace text
