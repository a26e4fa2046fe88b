#include "mistakes.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

namespace text
{
namespace
{

constexpr std::size_t mostNames = 8;    // that are listed
constexpr std::size_t mostLetters = 64; // of a name that is compared with others

bool isContinuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

char folded(char c)
{
    if (c == '_')
    {
        return '-';
    }
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Letters to insert, remove, replace or swap with their neighbour.
std::size_t distance(std::string_view a, std::string_view b)
{
    using Row = std::array<std::size_t, mostLetters + 1>;
    std::array<Row, 3> rows{};
    for (std::size_t j = 0; j <= b.size(); ++j)
    {
        rows[0][j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i)
    {
        Row& row = rows[i % 3];
        const Row& above = rows[(i + 2) % 3];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j)
        {
            const bool same = folded(a[i - 1]) == folded(b[j - 1]);
            row[j] = std::min({above[j] + 1, row[j - 1] + 1, above[j - 1] + (same ? 0 : 1)});
            if (i > 1 && j > 1 && folded(a[i - 1]) == folded(b[j - 2]) && folded(a[i - 2]) == folded(b[j - 1]))
            {
                row[j] = std::min(row[j], rows[(i + 1) % 3][j - 2] + 1);
            }
        }
    }
    return rows[a.size() % 3][b.size()];
}

} // namespace

void Mistakes::add(std::size_t offset, std::string path, std::string words)
{
    if (full_)
    {
        return;
    }
    mistakes_.push_back({offset, std::move(path), std::move(words)});
    full_ = mistakes_.size() == ASN1_MAX_MISTAKES;
}

int Mistakes::report(std::string_view text, Asn1MistakeSink sink, void* arg)
{
    std::stable_sort(mistakes_.begin(), mistakes_.end(),
                     [](const Mistake& a, const Mistake& b) { return a.offset < b.offset; });
    std::size_t at = 0;
    OSUINT32 line = 1;
    OSUINT32 column = 1;
    for (const Mistake& mistake : mistakes_)
    {
        for (; at < mistake.offset && at < text.size(); ++at)
        {
            if (text[at] == '\n')
            {
                ++line;
                column = 1;
            }
            else if (!isContinuation(text[at]))
            {
                ++column;
            }
        }
        if (sink != nullptr)
        {
            const Asn1Mistake report = {at, line, column, mistake.path.c_str(), mistake.words.c_str()};
            sink(arg, &report);
        }
    }
    return static_cast<int>(mistakes_.size());
}

std::string shown(std::string_view text, std::size_t most)
{
    std::string result;
    std::size_t used = 0;
    for (; used < text.size() && result.size() < most; ++used)
    {
        const auto octet = static_cast<unsigned char>(text[used]);
        if (octet >= ' ' && octet < 0x7F)
        {
            result += text[used];
        }
        else
        {
            char escape[8];
            (void)std::snprintf(escape, sizeof escape, "\\x%02X", unsigned{octet});
            result += escape;
        }
    }
    return used == text.size() ? result : result + "...";
}

std::string quoted(std::string_view text)
{
    return '"' + shown(text) + '"';
}

std::string oneOf(const char* const* names, std::size_t count)
{
    std::string result;
    for (std::size_t i = 0; i < count; ++i)
    {
        result += i == 0 ? "" : i + 1 == count ? " or " : ", ";
        result += '"' + std::string(names[i]) + '"';
    }
    return result;
}

const char* nearest(std::string_view text, const char* const* names, std::size_t count)
{
    if (text.size() > mostLetters)
    {
        return nullptr;
    }
    const char* result = nullptr;
    std::size_t least = text.size() / 3 + 1;
    for (std::size_t i = 0; i < count; ++i)
    {
        const std::string_view name = names[i];
        if (name.size() > mostLetters)
        {
            continue;
        }
        const std::size_t changes = distance(text, name);
        if (changes < least || (changes == least && result == nullptr))
        {
            least = changes;
            result = names[i];
        }
    }
    return result;
}

std::string suggestion(std::string_view text, const char* const* names, std::size_t count)
{
    if (const char* const name = nearest(text, names, count))
    {
        return "; did you mean " + oneOf(&name, 1) + "?";
    }
    return count != 0 && count <= mostNames ? "; there is " + oneOf(names, count) : "";
}

} // namespace text
