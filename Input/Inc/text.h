// The characters of an input.
#pragma once

#include "input.h"
#include "octets.h"

#include <string>
#include <string_view>

namespace tool
{

// Stands in Text::plain for a character outside ASCII.
inline constexpr char foreign = '\x7f';

struct Text
{
    std::string plain;        // one char per character: printable ASCII, '\t', '\n' or `foreign`
    std::string utf8;         // the same with the characters outside ASCII
    std::size_t bad = 0;      // control characters and octets that are not UTF-8; they are foreign
    std::size_t firstBad = 0; // index of the first in `plain`
};

// UTF-8, or UTF-16 with its mark. Line ends become '\n'; blanks, quotes and dashes that word processors and web pages
// put in place of the plain ones become these; invisible characters and colours of a terminal are dropped.
Text decodeText(std::string_view raw);

// A piece of a text, with the whole for the place of an error.
struct Piece
{
    std::string_view all;
    std::size_t begin;
    std::size_t end;

    char at(std::size_t i) const // '\n' behind the end
    {
        return i < end ? all[i] : '\n';
    }
    std::string_view view() const
    {
        return all.substr(begin, end - begin);
    }
    Piece trimmed() const;
};

inline bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}
inline bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}
inline bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
inline bool isWord(char c)
{
    return isDigit(c) || isLetter(c) || c == '_';
}

std::size_t skipBlanks(const Piece& text, std::size_t i);
std::size_t skipSpace(const Piece& text, std::size_t i); // line ends too
std::size_t skipHexDigits(const Piece& text, std::size_t i);
std::size_t lineEnd(const Piece& text, std::size_t i);

// Past blanks, line ends and comments as C and JER have them; a comment that nothing ends goes to the end.
std::size_t skipComments(const Piece& text, std::size_t i);

Place placeOf(std::string_view all, std::size_t i);

// The name of the next of several things, "message1", or that of the only one, "message".
std::string numbered(const std::string& name, bool isSeveral, unsigned& number);

// "1 octet", "2 octets"
std::string counted(std::size_t count, std::string_view thing);

// The character at i in quotes, as an error names it.
std::string shown(const Piece& text, std::size_t i);

[[nodiscard]] Refusal refuse(const Piece& text, std::size_t at, std::string reason, std::vector<Form> candidates = {});

// What a step of a reader gives that can fail: nothing when all is well.
using Refused = std::optional<Refusal>;

} // namespace tool
