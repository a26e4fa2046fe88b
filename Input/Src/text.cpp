#include "text.h"

#include <array>

namespace tool
{

namespace
{

constexpr char32_t invalid = 0xFFFFFFFF;

bool isContinuation(std::string_view raw, std::size_t i)
{
    return i < raw.size() && (static_cast<unsigned char>(raw[i]) & 0xC0U) == 0x80U;
}

// The code point at i, which moves behind it; behind one octet when it is invalid.
char32_t nextUtf8(std::string_view raw, std::size_t& i)
{
    const auto first = static_cast<unsigned char>(raw[i++]);
    if (first < 0x80)
    {
        return first;
    }
    const unsigned more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
    constexpr std::array<char32_t, 4> least = {0, 0x80, 0x800, 0x10000};
    if (first < 0xC0 || first > 0xF4)
    {
        return invalid;
    }
    char32_t code = first & (0x3FU >> more);
    for (unsigned k = 0; k < more; ++k)
    {
        if (!isContinuation(raw, i + k))
        {
            return invalid;
        }
        code = code << 6 | (static_cast<unsigned char>(raw[i + k]) & 0x3FU);
    }
    if (code < least[more] || code > 0x10FFFF || (code >= 0xD800 && code < 0xE000))
    {
        return invalid;
    }
    i += more;
    return code;
}

void addUtf8(std::string& text, char32_t code)
{
    const auto add = [&text](char32_t octet)
    {
        text += static_cast<char>(static_cast<unsigned char>(octet));
    };
    if (code < 0x80)
    {
        add(code);
    }
    else if (code < 0x800)
    {
        add(0xC0 | code >> 6);
        add(0x80 | (code & 0x3F));
    }
    else if (code < 0x10000)
    {
        add(0xE0 | code >> 12);
        add(0x80 | (code >> 6 & 0x3F));
        add(0x80 | (code & 0x3F));
    }
    else
    {
        add(0xF0 | code >> 18);
        add(0x80 | (code >> 12 & 0x3F));
        add(0x80 | (code >> 6 & 0x3F));
        add(0x80 | (code & 0x3F));
    }
}

// UTF-8 of UTF-16 whose mark was dropped; nothing when it is none.
std::optional<std::string> fromUtf16(std::string_view raw, bool lowFirst)
{
    if (raw.size() % 2 != 0)
    {
        return std::nullopt;
    }
    const auto unit = [raw, lowFirst](std::size_t i)
    {
        const auto first = static_cast<unsigned char>(raw[i]);
        const auto second = static_cast<unsigned char>(raw[i + 1]);
        return static_cast<char32_t>(lowFirst ? second << 8 | first : first << 8 | second);
    };
    std::string text;
    text.reserve(raw.size());
    for (std::size_t i = 0; i < raw.size(); i += 2)
    {
        char32_t code = unit(i);
        if (code >= 0xD800 && code < 0xE000)
        {
            i += 2;
            const char32_t low = i < raw.size() ? unit(i) : 0;
            if (code >= 0xDC00 || low < 0xDC00 || low >= 0xE000)
            {
                return std::nullopt;
            }
            code = 0x10000 + ((code - 0xD800) << 10 | (low - 0xDC00));
        }
        addUtf8(text, code);
    }
    return text;
}

// What stands for a character in both texts: "" when it is dropped, nothing when it is itself.
std::optional<std::string_view> plainFor(char32_t code)
{
    switch (code)
    {
    case 0x00A0: // no-break space
    case 0x202F:
    case 0x205F:
    case 0x3000:
        return " ";
    case 0x00AD: // soft hyphen
    case 0x200B: // zero width
    case 0x200C:
    case 0x200D:
    case 0x200E:
    case 0x200F:
    case 0x2060:
    case 0xFEFF:
        return "";
    case 0x2018: // quotes
    case 0x2019:
    case 0x201A:
        return "'";
    case 0x201C:
    case 0x201D:
    case 0x201E:
        return "\"";
    case 0x2026:
        return "...";
    case 0x2212: // minus
        return "-";
    case 0x0085:
    case 0x2028:
    case 0x2029:
        return "\n";
    case '\f':
    case '\v':
        return " ";
    default:
        break;
    }
    if (code >= 0x2000 && code <= 0x200A)
    {
        return " ";
    }
    if (code >= 0x2010 && code <= 0x2015)
    {
        return "-";
    }
    return std::nullopt;
}

// The length of a terminal's control sequence (ECMA-48: ESC [ parameters, one final character) at i, 0 for none.
std::size_t controlSequence(std::string_view raw, std::size_t i)
{
    constexpr std::size_t longest = 32;
    if (raw[i] != '\x1b' || i + 1 >= raw.size() || raw[i + 1] != '[')
    {
        return 0;
    }
    for (std::size_t k = i + 2; k < raw.size() && k < i + longest; ++k)
    {
        if (raw[k] >= '@' && raw[k] <= '~')
        {
            return k + 1 - i;
        }
        if (raw[k] < ' ' || raw[k] > '?')
        {
            return 0;
        }
    }
    return 0;
}

Text charactersOf(std::string_view raw)
{
    Text text;
    text.plain.reserve(raw.size());
    text.utf8.reserve(raw.size());
    for (std::size_t i = 0; i < raw.size();)
    {
        const char c = raw[i];
        if (c == '\r')
        {
            i += i + 1 < raw.size() && raw[i + 1] == '\n' ? 2 : 1;
            text.plain += '\n';
            text.utf8 += '\n';
            continue;
        }
        if ((c >= ' ' && c <= '~') || c == '\n' || c == '\t')
        {
            text.plain += c;
            text.utf8 += c;
            ++i;
            continue;
        }
        if (const std::size_t length = controlSequence(raw, i))
        {
            i += length;
            continue;
        }
        const char32_t code = nextUtf8(raw, i);
        if (const auto other = plainFor(code))
        {
            text.plain += *other;
            text.utf8 += *other;
            continue;
        }
        const bool bad = code == invalid || code < ' ' || (code >= 0x7F && code < 0xA0);
        if (bad && text.bad++ == 0)
        {
            text.firstBad = text.plain.size();
        }
        text.plain += foreign;
        addUtf8(text.utf8, bad ? U'?' : code);
    }
    return text;
}

} // namespace

Text decodeText(std::string_view raw)
{
    const bool lowFirst = raw.starts_with("\xFF\xFE");
    if (lowFirst || raw.starts_with("\xFE\xFF"))
    {
        if (const auto utf8 = fromUtf16(raw.substr(2), lowFirst))
        {
            Text text = charactersOf(*utf8);
            if (text.bad == 0)
            {
                return text;
            }
        }
    }
    return charactersOf(raw); // a mark of UTF-8 is dropped as an invisible character
}

Piece Piece::trimmed() const
{
    Piece piece = *this;
    piece.begin = skipSpace(*this, begin);
    while (piece.end > piece.begin && (isBlank(all[piece.end - 1]) || all[piece.end - 1] == '\n'))
    {
        --piece.end;
    }
    return piece;
}

std::size_t skipBlanks(const Piece& text, std::size_t i)
{
    while (i < text.end && isBlank(text.all[i]))
    {
        ++i;
    }
    return i;
}

std::size_t skipSpace(const Piece& text, std::size_t i)
{
    while (i < text.end && (isBlank(text.all[i]) || text.all[i] == '\n'))
    {
        ++i;
    }
    return i;
}

std::size_t skipComments(const Piece& text, std::size_t i)
{
    for (;;)
    {
        i = skipSpace(text, i);
        if (text.at(i) == '/' && text.at(i + 1) == '/')
        {
            i = lineEnd(text, i);
        }
        else if (text.at(i) == '/' && text.at(i + 1) == '*')
        {
            const std::size_t end = text.all.substr(0, text.end).find("*/", i + 2);
            i = end == std::string_view::npos ? text.end : end + 2;
        }
        else
        {
            return i;
        }
    }
}

std::size_t skipHexDigits(const Piece& text, std::size_t i)
{
    while (i < text.end && hexValue(text.all[i]) >= 0)
    {
        ++i;
    }
    return i;
}

std::size_t lineEnd(const Piece& text, std::size_t i)
{
    const std::size_t found = text.all.substr(0, text.end).find('\n', i);
    return found == std::string_view::npos ? text.end : found;
}

Place placeOf(std::string_view all, std::size_t i)
{
    Place place = {1, 1};
    for (const char c : all.substr(0, i))
    {
        place.column = c == '\n' ? 1 : place.column + 1;
        place.line += c == '\n' ? 1 : 0;
    }
    return place;
}

std::string numbered(const std::string& name, bool isSeveral, unsigned& number)
{
    return isSeveral ? name + std::to_string(++number) : name;
}

std::string counted(std::size_t count, std::string_view thing)
{
    return std::to_string(count) + " " + std::string(thing) + (count == 1 ? "" : "s");
}

std::string shown(const Piece& text, std::size_t i)
{
    const char c = text.at(i);
    if (c == foreign)
    {
        return "a character outside ASCII";
    }
    return c == '\n' ? "the end" : c == '\t' ? "a tab" : std::string("'") + c + "'";
}

Refusal refuse(const Piece& text, std::size_t at, std::string reason, std::vector<Form> candidates)
{
    return {std::move(reason), placeOf(text.all, at), std::move(candidates)};
}

} // namespace tool
