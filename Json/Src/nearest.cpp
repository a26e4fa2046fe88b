#include "nearest.h"

#include <algorithm>
#include <numeric>
#include <utility>
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

bool same(char a, char b)
{
    return folded(a) == folded(b);
}

std::size_t distance(std::string_view a, std::string_view b)
{
    std::vector<std::size_t> above(b.size() + 1);
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i)
    {
        std::vector<std::size_t> next(b.size() + 1, i);
        for (std::size_t j = 1; j <= b.size(); ++j)
        {
            next[j] = std::min({row[j] + 1, next[j - 1] + 1, row[j - 1] + (same(a[i - 1], b[j - 1]) ? 0 : 1)});
            if (i > 1 && j > 1 && same(a[i - 1], b[j - 2]) && same(a[i - 2], b[j - 1]))
            {
                next[j] = std::min(next[j], above[j - 2] + 1);
            }
        }
        above = std::exchange(row, std::move(next));
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
