#include "html.h"

namespace page
{
namespace
{

constexpr std::string_view replacement = "\xEF\xBF\xBD"; // U+FFFD

// How many octets the character at the front takes in UTF-8 (RFC 3629 4); 0 where there is none.
std::size_t characterLength(std::string_view text)
{
    const auto at = [&](std::size_t i) -> unsigned
    {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
    };
    const auto isTail = [&](std::size_t i, unsigned from = 0x80, unsigned to = 0xBF)
    {
        return at(i) >= from && at(i) <= to;
    };
    const unsigned first = at(0);
    if (first < 0x80)
    {
        return 1;
    }
    if (first >= 0xC2 && first <= 0xDF)
    {
        return isTail(1) ? 2 : 0;
    }
    if (first >= 0xE0 && first <= 0xEF)
    {
        const bool isSecond = isTail(1, first == 0xE0 ? 0xA0 : 0x80, first == 0xED ? 0x9F : 0xBF);
        return isSecond && isTail(2) ? 3 : 0;
    }
    if (first >= 0xF0 && first <= 0xF4)
    {
        const bool isSecond = isTail(1, first == 0xF0 ? 0x90 : 0x80, first == 0xF4 ? 0x8F : 0xBF);
        return isSecond && isTail(2) && isTail(3) ? 4 : 0;
    }
    return 0;
}

// The text character by character, what is none replaced; `put` gets those that are left.
template <typename Put>
void forCharacters(std::string_view text, const Put& put)
{
    while (!text.empty())
    {
        const std::size_t length = characterLength(text);
        put(length == 0 ? replacement : text.substr(0, length));
        text.remove_prefix(length == 0 ? 1 : length);
    }
}

bool isControl(std::string_view character)
{
    const auto first = static_cast<unsigned char>(character.front());
    return first < 0x20 || first == 0x7F;
}

} // namespace

std::string escaped(std::string_view text)
{
    std::string all;
    const auto put = [&](std::string_view character)
    {
        const char c = character.front();
        const bool isSpace = c == '\t' || c == '\n';
        all += c == '&'                           ? "&amp;"
               : c == '<'                         ? "&lt;"
               : c == '>'                         ? "&gt;"
               : isControl(character) && !isSpace ? replacement
                                                  : character;
    };
    forCharacters(text, put);
    return all;
}

std::string quoted(std::string_view text)
{
    std::string all = "\"";
    for (const char c : escaped(text))
    {
        all += c == '"' ? std::string_view("&quot;") : std::string_view(&c, 1);
    }
    return all + '"';
}

std::string jsonString(std::string_view text)
{
    constexpr const char* digits = "0123456789abcdef";
    std::string all = "\"";
    const auto put = [&](std::string_view character)
    {
        const char c = character.front();
        if (isControl(character) || c == '<' || c == '>' || c == '&')
        {
            all += "\\u00";
            all += digits[static_cast<unsigned char>(c) >> 4];
            all += digits[static_cast<unsigned char>(c) & 15];
            return;
        }
        if (c == '"' || c == '\\')
        {
            all += '\\';
        }
        all += character;
    };
    forCharacters(text, put);
    return all + '"';
}

std::string counted(std::uint64_t count, std::string_view thing)
{
    return std::to_string(count) + " " + std::string(thing) + (count == 1 ? "" : "s");
}

} // namespace page
