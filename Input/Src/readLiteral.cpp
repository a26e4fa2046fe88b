// Numbers and strings as programs hold them.
#include "readers.h"

#include <algorithm>

namespace tool
{

namespace
{

// An array or a string among other hex that is about as long may not be the message.
Refused questionRest(const Piece& text, std::size_t begin, std::size_t end, const Input& input)
{
    const std::size_t rest =
        std::max(longestRun({text.all, text.begin, begin}), longestRun({text.all, std::min(end, text.end), text.end}));
    constexpr std::size_t least = 4; // numbers are shorter
    if (rest >= least && 2 * rest >= input.octets.size())
    {
        return refuse(text, begin,
                      counted(input.octets.size(), "octet") + " here, but also a run of hex of " +
                          counted(rest, "octet"),
                      {input.form, Form::LogLine});
    }
    return std::nullopt;
}

bool hasHexPrefix(const Piece& text, std::size_t i)
{
    return text.at(i) == '0' && (text.at(i + 1) == 'x' || text.at(i + 1) == 'X') && hexValue(text.at(i + 2)) >= 0;
}

std::size_t skipDigits(const Piece& text, std::size_t i)
{
    while (isDigit(text.at(i)))
    {
        ++i;
    }
    return i;
}

// Adds the number at i, at most an octet; i goes behind it and its 'u'.
Refused addElement(const Piece& text, std::size_t& i, std::vector<std::uint8_t>& octets)
{
    const std::size_t begin = i;
    const bool hex = hasHexPrefix(text, i);
    i = hex ? skipHexDigits(text, i + 2) : skipDigits(text, i);
    const auto number = text.all.substr(begin, i - begin);
    const auto name = "'" + std::string(number.substr(0, 20)) + "'";
    if (i == begin)
    {
        return refuse(text, i, shown(text, i) + " in an array: a number up to 255 was expected");
    }
    if (!hex && number.size() > 1 && number[0] == '0')
    {
        return refuse(text, begin, name + " has a leading zero: octal in C, decimal elsewhere");
    }
    unsigned value = 0;
    for (const char c : number.substr(hex ? 2 : 0))
    {
        value = value * (hex ? 16 : 10) + static_cast<unsigned>(hexValue(c));
        if (value > 255)
        {
            return refuse(text, begin, name + " is more than one octet");
        }
    }
    if (text.at(i) == 'u' || text.at(i) == 'U')
    {
        ++i;
    }
    if (isWord(text.at(i)) || text.at(i) == '.')
    {
        return refuse(text, i, shown(text, i) + " behind the number " + name);
    }
    octets.push_back(static_cast<std::uint8_t>(value));
    return std::nullopt;
}

// A type in parentheses: Java and C# need one.
std::size_t skipCast(const Piece& text, std::size_t i)
{
    if (text.at(i) != '(')
    {
        return i;
    }
    std::size_t k = skipBlanks(text, i + 1);
    while (isWord(text.at(k)) || isBlank(text.at(k)))
    {
        ++k;
    }
    return text.at(k) == ')' ? skipComments(text, k + 1) : i;
}

bool startsElement(const Piece& text, std::size_t i, bool decimal)
{
    i = skipCast(text, i);
    return hasHexPrefix(text, i) || (decimal && isDigit(text.at(i)));
}

struct List
{
    std::size_t open; // where the bracket stands, npos for a bare list
    char close;       // '\0' for a bare list
};

// Back over blanks and line ends.
std::size_t skipBack(const Piece& text, std::size_t i)
{
    while (i > text.begin && (isBlank(text.all[i - 1]) || text.all[i - 1] == '\n'))
    {
        --i;
    }
    return i;
}

// The first { } or [ ] with numbers from i on. Decimals only count in braces: "[12]" is how logs write anything, and
// "{ 12 5c" is no array either.
std::optional<List> findList(const Piece& text, std::size_t i)
{
    bool quotes = false;
    for (; i < text.end; ++i)
    {
        const char c = text.all[i];
        quotes = c == '\n' ? false : c == '"' ? !quotes : quotes;
        if (quotes)
        {
            continue;
        }
        if (c == '/' && (text.at(i + 1) == '/' || text.at(i + 1) == '*'))
        {
            i = skipComments(text, i) - 1;
        }
        else if (c == '{' || c == '[')
        {
            const std::size_t first = skipComments(text, i + 1);
            const std::size_t behind = skipBlanks(text, skipDigits(text, first));
            const std::size_t before = skipBack(text, i);
            const bool declared = before == text.begin || text.all[before - 1] == '=' || text.all[before - 1] == ']';
            const bool decimal = c == '{' && declared && (text.at(behind) == ',' || text.at(behind) == '}');
            if (startsElement(text, first, decimal))
            {
                return List{i, c == '{' ? '}' : ']'};
            }
        }
    }
    return std::nullopt;
}

// "m_bin_len = 440" behind an array, as xxd -i writes it.
Refused checkLength(const Piece& text, std::size_t i, std::size_t count)
{
    const std::size_t found = text.all.substr(0, text.end).find("_len", i);
    if (found == std::string_view::npos)
    {
        return std::nullopt;
    }
    const std::size_t sign = skipBlanks(text, found + 4);
    const std::size_t begin = skipBlanks(text, sign + 1);
    const std::size_t end = skipDigits(text, begin);
    constexpr std::size_t most = 9;
    if (text.at(sign) == '=' && end != begin && end - begin <= most &&
        std::stoul(std::string(text.all.substr(begin, end - begin))) != count)
    {
        return refuse(text, begin,
                      "the array has " + counted(count, "octet") + ", but its length is said to be " +
                          std::string(text.all.substr(begin, end - begin)));
    }
    return std::nullopt;
}

// "[74]" before an array: C allows fewer elements, but not more.
Refused checkDeclared(const Piece& text, std::size_t open, std::size_t count)
{
    std::size_t i = open;
    const auto back = [&text, &i](auto wanted)
    {
        while (i > text.begin && wanted(text.all[i - 1]))
        {
            --i;
        }
    };
    back([](char c) { return isBlank(c) || c == '\n' || c == '='; });
    if (i == text.begin || text.all[i - 1] != ']')
    {
        return std::nullopt;
    }
    const std::size_t end = --i;
    back(isDigit);
    constexpr std::size_t most = 9;
    if (i != end && end - i <= most && i > text.begin && text.all[i - 1] == '[' &&
        std::stoul(std::string(text.all.substr(i, end - i))) < count)
    {
        return refuse(text, i,
                      "an array of " + std::string(text.all.substr(i, end - i)) + " with " + counted(count, "element"));
    }
    return std::nullopt;
}

} // namespace

Reading readCArray(const Piece& whole, bool said)
{
    const Piece text = whole.trimmed();
    auto list = findList(text, text.begin);
    if (!list)
    {
        // Bare: all of it, with a comma behind the first number. Without commas it is hex.
        std::size_t i = skipComments(text, text.begin);
        const std::size_t behind = skipComments(text, skipHexDigits(text, i + 2));
        if (!hasHexPrefix(text, i) || (text.at(behind) != ',' && !said))
        {
            if (said)
            {
                return refuse(whole, text.begin, "no list of numbers such as { 0x5c, 0xa0 }");
            }
            return OtherForm{};
        }
        list = List{i, '\0'};
    }

    Input input{Form::CArray, {}, {}, "C array, "};
    std::size_t i = skipComments(text, list->open + (list->close != '\0' ? 1 : 0));
    const auto atEnd = [&]
    {
        return list->close != '\0' ? text.at(i) == list->close : i >= text.end;
    };
    while (!atEnd())
    {
        if (i >= text.end)
        {
            return refuse(whole, list->open,
                          std::string("nothing closes the '") + text.all[list->open] + "': the end is missing");
        }
        i = skipCast(text, i);
        if (auto refused = addElement(text, i, input.octets))
        {
            return std::move(*refused);
        }
        i = skipComments(text, i);
        if (text.at(i) == ',' || (list->close == '\0' && text.at(i) == ';'))
        {
            i = skipComments(text, i + 1);
        }
        else if (!atEnd() && i < text.end)
        {
            return refuse(whole, i, shown(text, i) + " in an array: ',' was expected");
        }
    }
    if (list->close != '\0')
    {
        if (const auto second = findList(text, i + 1))
        {
            return refuse(whole, second->open, "a second array: give one at a time");
        }
        if (auto refused = checkDeclared(text, list->open, input.octets.size()))
        {
            return std::move(*refused);
        }
        if (auto refused = checkLength(text, i, input.octets.size()))
        {
            return std::move(*refused);
        }
        if (!said)
        {
            if (auto refused = questionRest(text, list->open, i, input))
            {
                return std::move(*refused);
            }
        }
    }
    input.note += counted(input.octets.size(), "octet");
    return input;
}

namespace
{

bool isHexEscape(const Piece& text, std::size_t i)
{
    return text.at(i) == '\\' && text.at(i + 1) == 'x' && hexValue(text.at(i + 2)) >= 0 &&
           hexValue(text.at(i + 3)) >= 0;
}

std::uint8_t hexEscape(const Piece& text, std::size_t i)
{
    return static_cast<std::uint8_t>(hexValue(text.at(i + 2)) << 4 | hexValue(text.at(i + 3)));
}

// The first \x.. from i on.
std::size_t findHexEscape(const Piece& text, std::size_t i)
{
    const std::string_view view = text.all.substr(0, text.end);
    for (i = view.find("\\x", i); i != std::string_view::npos; i = view.find("\\x", i + 2))
    {
        if (isHexEscape(text, i))
        {
            return i;
        }
    }
    return std::string_view::npos;
}

// Adds what a backslash and the character at i stand for; i goes behind it.
Refused addEscape(const Piece& text, std::size_t& i, std::vector<std::uint8_t>& octets)
{
    const std::size_t begin = i;
    const char c = text.at(++i);
    if (isHexEscape(text, begin))
    {
        i = begin + 4;
        octets.push_back(hexEscape(text, begin));
        return std::nullopt;
    }
    if (c >= '0' && c <= '7')
    {
        unsigned value = 0;
        for (const std::size_t end = i + 3; i < end && text.at(i) >= '0' && text.at(i) <= '7'; ++i)
        {
            value = value * 8 + static_cast<unsigned>(text.at(i) - '0');
        }
        if (value > 255)
        {
            return refuse(text, begin, "the octal escape is more than one octet");
        }
        octets.push_back(static_cast<std::uint8_t>(value));
        return std::nullopt;
    }
    if (c == '\\' && text.at(i + 1) == 'x')
    {
        return refuse(text, begin, "the string is escaped twice: write \\x for \\\\x");
    }
    constexpr std::string_view letters = "abtnvfr\"'\\?";
    constexpr std::string_view meant = "\a\b\t\n\v\f\r\"'\\?";
    const auto known = letters.find(c);
    if (known == std::string_view::npos)
    {
        return refuse(text, begin, "a backslash and " + shown(text, i) + " is no escape of one octet");
    }
    ++i;
    octets.push_back(static_cast<std::uint8_t>(meant[known]));
    return std::nullopt;
}

// Adds the string in quotes at i, which goes behind it.
Refused addString(const Piece& text, std::size_t& i, std::vector<std::uint8_t>& octets)
{
    const std::size_t open = i;
    const char quote = text.all[i++];
    while (text.at(i) != quote)
    {
        if (text.at(i) == '\n')
        {
            return refuse(text, open, "nothing closes the quotes: the end is missing");
        }
        if (text.at(i) == '\\')
        {
            if (auto refused = addEscape(text, i, octets))
            {
                return refused;
            }
        }
        else if (text.at(i) == foreign || text.at(i) == '\t')
        {
            return refuse(text, i, shown(text, i) + " in a string of octets");
        }
        else
        {
            octets.push_back(static_cast<std::uint8_t>(text.at(i++)));
        }
    }
    ++i;
    return std::nullopt;
}

// Past what may stand between two parts of a string: blanks, line ends, a line's continuation, '+' and a second b.
std::size_t skipJoint(const Piece& text, std::size_t i)
{
    for (;;)
    {
        i = skipComments(text, i);
        if ((text.at(i) == '\\' && text.at(skipBlanks(text, i + 1)) == '\n' && i < text.end) || text.at(i) == '+' ||
            (text.at(i) == 'b' && (text.at(i + 1) == '"' || text.at(i + 1) == '\'')))
        {
            ++i;
        }
        else
        {
            return i;
        }
    }
}

// The quote that opens the string in which the escape at i stands; strings before it on its line are passed over.
std::optional<std::size_t> openingQuote(const Piece& text, std::size_t i)
{
    std::size_t begin = i;
    while (begin > text.begin && text.all[begin - 1] != '\n')
    {
        --begin;
    }
    std::optional<std::size_t> open;
    for (std::size_t k = begin; k < i; ++k)
    {
        const char c = text.all[k];
        if (open && c == '\\')
        {
            ++k;
        }
        else if (open && c == text.all[*open])
        {
            open.reset();
        }
        // An apostrophe within a word opens nothing.
        else if (!open && (c == '"' ||
                           (c == '\'' && (k == begin || !isWord(text.all[k - 1]) ||
                                          (text.all[k - 1] == 'b' && (k - 1 == begin || !isWord(text.all[k - 2])))))))
        {
            open = k;
        }
    }
    return open;
}

// The end of a string that only blanks, line ends and '+' part from i.
std::optional<std::size_t> stringBefore(const Piece& text, std::size_t i)
{
    constexpr std::string_view joints = " \t\n+\\";
    while (i > text.begin && joints.find(text.all[i - 1]) != std::string_view::npos)
    {
        --i;
    }
    const bool quote = i > text.begin && (text.all[i - 1] == '"' || text.all[i - 1] == '\'');
    return quote ? std::optional(i - 1) : std::nullopt;
}

} // namespace

Reading readEscaped(const Piece& whole, bool said)
{
    const Piece text = whole.trimmed();
    const std::size_t first = findHexEscape(text, text.begin);
    if (first == std::string_view::npos)
    {
        if (said)
        {
            return refuse(whole, text.begin, "no \\x.. is in the text");
        }
        return OtherForm{};
    }

    Input input{Form::Escaped, {}, {}, "escaped string, "};
    std::size_t i = first;
    std::size_t begin = first;
    if (const auto open = openingQuote(text, first))
    {
        const bool python = *open > text.begin && text.all[*open - 1] == 'b';
        const std::size_t digits = skipHexDigits(text, first + 2);
        if (!said && !python && first == *open + 1 && digits - first > 4 && text.at(digits) == text.all[*open])
        {
            return OtherForm{}; // "\x5ca0...", one mark before all digits, as databases write octets
        }
        if (const auto before = stringBefore(text, python ? *open - 1 : *open))
        {
            return refuse(whole, *before, "a string without \\x stands before the string: join them if it is a part");
        }
        i = *open;
        begin = i;
        while (i < text.end && (text.at(i) == '"' || text.at(i) == '\''))
        {
            if (auto refused = addString(text, i, input.octets))
            {
                return std::move(*refused);
            }
            i = skipJoint(text, i);
        }
    }
    else
    {
        if (!said && skipHexDigits(text, first + 2) - first > 4)
        {
            return OtherForm{};
        }
        std::size_t last = i;
        while (isHexEscape(text, i))
        {
            input.octets.push_back(hexEscape(text, i));
            last = i + 4;
            i = skipJoint(text, last);
        }
        const bool joined = (first > text.begin && isWord(text.all[first - 1])) || isWord(text.at(last));
        if (joined || text.at(last) == '\\')
        {
            return refuse(whole, last,
                          "other characters among the \\x..: put the string in quotes if they belong to it");
        }
    }
    const std::size_t second = findHexEscape(text, i);
    if (second != std::string_view::npos)
    {
        return refuse(whole, second, "a second string: give one at a time, in quotes if other characters belong to it");
    }
    if (!said)
    {
        if (auto refused = questionRest(text, begin, i, input))
        {
            return std::move(*refused);
        }
    }
    input.note += counted(input.octets.size(), "octet");
    return input;
}

} // namespace tool
