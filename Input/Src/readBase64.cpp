#include "readers.h"

#include <algorithm>

namespace tool
{

namespace
{

struct Digits
{
    std::string text;                   // without line ends
    std::optional<std::size_t> strange; // the first character of no base64 text
    std::optional<std::size_t> length;  // the first line that makes the lines unequal
};

Digits digitsOf(const Piece& text)
{
    Digits digits;
    std::size_t lineDigits = 0;
    std::size_t firstLine = 0;
    bool lastShort = false;
    std::size_t begin = text.begin;
    for (std::size_t i = text.begin; i <= text.end; ++i)
    {
        const char c = text.at(i);
        if (c == '\n')
        {
            if (lineDigits != 0)
            {
                const bool unequal = lastShort || (firstLine != 0 && lineDigits > firstLine);
                if (unequal && !digits.length)
                {
                    digits.length = begin;
                }
                firstLine = firstLine == 0 ? lineDigits : firstLine;
                lastShort = lineDigits < firstLine;
            }
            lineDigits = 0;
        }
        else if (base64Value(c) >= 0 || c == '=')
        {
            begin = lineDigits == 0 ? i : begin;
            ++lineDigits;
            digits.text += c;
        }
        else if (!isBlank(c) || (lineDigits != 0 && text.at(skipBlanks(text, i)) != '\n'))
        {
            digits.strange = i;
            return digits;
        }
    }
    return digits;
}

// Why digits are not base64, "" when they are.
std::string fault(std::string_view digits)
{
    const std::size_t size = std::min(digits.find('='), digits.size());
    const std::size_t padding = digits.size() - size;
    if (digits.substr(size).find_first_not_of('=') != std::string_view::npos)
    {
        return "'=' is padding, but digits follow it";
    }
    if (size == 0 || size % 4 == 1)
    {
        return counted(size, "base64 character") + " are no whole number of octets";
    }
    if (padding != 0 && (padding > 2 || digits.size() % 4 != 0))
    {
        return "the padding does not fill up to a multiple of four";
    }
    if (digits.find_first_of("+/") != std::string_view::npos && digits.find_first_of("-_") != std::string_view::npos)
    {
        return "characters of the standard ('+', '/') and of the URL alphabet ('-', '_')";
    }
    const auto last = static_cast<unsigned>(base64Value(digits[size - 1]));
    const unsigned unused = size % 4 == 2 ? 15U : size % 4 == 3 ? 3U : 0U;
    if ((last & unused) != 0)
    {
        return "the last character has bits that belong to no octet: characters are missing or were changed";
    }
    return "";
}

// Whether nothing but base64 looks like this: words and identifiers do not have all kinds of characters, or are short.
bool isPlain(std::string_view digits)
{
    if (digits.ends_with("=="))
    {
        return true;
    }
    constexpr std::size_t least = 20;
    const bool lower = std::any_of(digits.begin(), digits.end(), [](char c) { return c >= 'a' && c <= 'z'; });
    const bool upper = std::any_of(digits.begin(), digits.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
    const bool other = std::any_of(digits.begin(), digits.end(), [](char c) { return !isLetter(c) && c != '-'; });
    return lower && upper && other && (digits.size() >= least || digits.ends_with('='));
}

} // namespace

bool isBase64(std::string_view digits)
{
    return std::all_of(digits.begin(), digits.end(), [](char c) { return c == '=' || base64Value(c) >= 0; }) &&
           fault(digits).empty();
}

Reading readBase64(const Piece& whole, bool said)
{
    const Piece text = unwrapped(whole);
    const Digits digits = digitsOf(text);
    const std::string why =
        digits.strange ? shown(whole, *digits.strange) + " is no base64 character" : fault(digits.text);
    if (!why.empty())
    {
        if (!said)
        {
            return OtherForm{};
        }
        return refuse(whole, digits.strange.value_or(text.begin), why);
    }
    if (!said && digits.length)
    {
        return refuse(text, *digits.length, "lines of different lengths: several messages (--lines) or one in base64",
                      {Form::Base64});
    }
    if (!said && !isPlain(digits.text))
    {
        return refuse(text, text.begin, "a word, or " + counted(digits.text.size(), "base64 character"),
                      {Form::Base64});
    }

    Input input{Form::Base64, {}, {}, "base64, "};
    input.octets.reserve(digits.text.size() / 4 * 3 + 3);
    unsigned bits = 0;
    unsigned count = 0;
    for (const char c : std::string_view(digits.text).substr(0, digits.text.find('=')))
    {
        bits = (bits << 6 | static_cast<unsigned>(base64Value(c))) & 0xFFFF;
        count += 6;
        if (count >= 8)
        {
            count -= 8;
            input.octets.push_back(static_cast<std::uint8_t>(bits >> count & 0xFF));
        }
    }
    input.note += counted(input.octets.size(), "octet");
    return input;
}

} // namespace tool
