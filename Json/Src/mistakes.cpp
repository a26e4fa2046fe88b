#include "mistakes.h"
#include "nearest.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace text
{
namespace
{

constexpr std::size_t mostNames = 8; // that are listed

bool isContinuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
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

std::string suggestion(std::string_view text, const char* const* names, std::size_t count)
{
    const std::vector<std::string_view> known(names, names + count);
    if (const auto name = nearest(text, known))
    {
        return "; did you mean \"" + std::string(*name) + "\"?";
    }
    return count != 0 && count <= mostNames ? "; there is " + oneOf(names, count) : "";
}

} // namespace text
