#include "readers.h"

#include <algorithm>

namespace tool
{

namespace
{

struct Group
{
    std::size_t begin;
    std::size_t end;

    std::size_t digits() const
    {
        return end - begin;
    }
};

bool isSeparator(char c)
{
    return isBlank(c) || c == '\n' || c == ':' || c == '-' || c == ',' || c == ';';
}

// Past the "0x" or "\x" that may stand before digits.
std::size_t skipPrefix(const Piece& text, std::size_t i)
{
    const char mark = text.at(i);
    const bool prefixed = (mark == '0' || mark == '\\') && (text.at(i + 1) == 'x' || text.at(i + 1) == 'X') &&
                          hexValue(text.at(i + 2)) >= 0;
    return prefixed ? i + 2 : i;
}

// One pass over the text: what its groups, lines and separators are like.
struct Shape
{
    std::size_t groups = 0;
    std::size_t digits = 0;
    std::size_t lines = 0;
    std::size_t first = 0;   // digits of the first group
    std::size_t longest = 0; // of the longest
    std::size_t prefixes = 0;
    std::optional<std::size_t> single;    // the first group of one digit
    std::optional<std::size_t> odd;       // the first group of an odd number of digits
    std::optional<std::size_t> uneven;    // the first group of another size that is not a line's shorter last one
    std::optional<std::size_t> length;    // where a line begins that makes the lines unequal
    std::size_t lengths[2] = {};          // digits of that line and of the one before
    std::optional<std::size_t> strange;   // the first character of no hex text, or a second kind of separator
    std::optional<std::size_t> asciiLike; // what may be an ASCII column behind two blanks
    bool several = false;                 // a line has several groups
    bool lower = false;
    bool upper = false;
};

class Scan
{
public:
    explicit Scan(const Piece& text) : text_(text) {}

    Shape run()
    {
        std::size_t i = text_.begin;
        while (i < text_.end && !shape_.strange)
        {
            const char c = text_.all[i];
            if (c == '\n')
            {
                endLine();
                ++i;
            }
            else if (isSeparator(c))
            {
                i = separator(i);
            }
            else
            {
                i = group(i);
            }
        }
        endLine();
        return shape_;
    }

private:
    std::size_t separator(std::size_t i)
    {
        const std::size_t begin = i;
        char kind = ' ';
        while (i < text_.end && isSeparator(text_.all[i]) && text_.all[i] != '\n')
        {
            const char c = text_.all[i];
            if (!isBlank(c))
            {
                if (kind != ' ')
                {
                    shape_.strange = i; // two separators
                }
                kind = c;
            }
            ++i;
        }
        // Indentation and what ends a line separate nothing.
        if (text_.at(i) != '\n' && lineGroups_ != 0)
        {
            // "12:00:01 5c a0" is not one list; only commas go with blanks.
            const bool alone = i - begin == 1 || kind == ' ' || kind == ',' || kind == ';';
            if (!alone || (kind_ != '\0' && kind_ != kind))
            {
                shape_.strange = begin;
            }
            kind_ = kind;
            if (i - begin >= 2 && kind == ' ' && !shape_.asciiLike && lineOctets_.size() < longestShown)
            {
                const auto rest = text_.view().substr(i - text_.begin, 2 * longestShown);
                shape_.asciiLike =
                    isAsciiColumn(rest.substr(0, rest.find('\n')), lineOctets_) ? std::optional(i) : std::nullopt;
            }
        }
        return i;
    }

    std::size_t group(std::size_t i)
    {
        const std::size_t begin = skipPrefix(text_, i);
        const Group group = {begin, skipHexDigits(text_, begin)};
        if (group.digits() == 0 || !(isSeparator(text_.at(group.end)) || group.end == text_.end))
        {
            shape_.strange = group.end;
            return group.end;
        }
        if (shorter_ && !shape_.uneven)
        {
            shape_.uneven = shorter_; // it was not the last of its line
        }
        shape_.prefixes += begin != i ? 1 : 0;
        ++shape_.groups;
        ++lineGroups_;
        shape_.several = shape_.several || lineGroups_ > 1;
        if (shape_.groups == 1)
        {
            shape_.first = group.digits();
        }
        shape_.longest = std::max(shape_.longest, group.digits());
        if (group.digits() < shape_.first)
        {
            shorter_ = begin;
        }
        else if (group.digits() > shape_.first && !shape_.uneven)
        {
            shape_.uneven = begin;
        }
        if (group.digits() % 2 != 0 && !shape_.odd)
        {
            shape_.odd = begin;
        }
        if (group.digits() == 1 && !shape_.single)
        {
            shape_.single = begin;
        }
        for (const char c : text_.all.substr(begin, group.digits()))
        {
            shape_.lower = shape_.lower || c >= 'a';
            shape_.upper = shape_.upper || (c >= 'A' && c <= 'F');
        }
        lineDigits_ += group.digits();
        lineBegin_ = lineGroups_ == 1 ? begin : lineBegin_;
        if (group.digits() % 2 == 0 && lineOctets_.size() < longestShown)
        {
            addHex(lineOctets_, text_.all.substr(begin, group.digits()));
        }
        return group.end;
    }

    void endLine()
    {
        if (lineGroups_ != 0)
        {
            // All lines but the last are of one length, the last is not longer.
            if (!shape_.length && (lastShort_ || (shape_.lines != 0 && lineDigits_ > firstLine_)))
            {
                shape_.length = lineBegin_;
                shape_.lengths[0] = lastDigits_;
                shape_.lengths[1] = lineDigits_;
            }
            firstLine_ = shape_.lines == 0 ? lineDigits_ : firstLine_;
            lastShort_ = lineDigits_ < firstLine_;
            lastDigits_ = lineDigits_;
            shape_.digits += lineDigits_;
            ++shape_.lines;
        }
        lineGroups_ = 0;
        lineDigits_ = 0;
        shorter_.reset();
        lineOctets_.clear();
    }

    static constexpr std::size_t longestShown = 256; // octets of a line that an ASCII column may show

    const Piece text_;
    Shape shape_;
    char kind_ = '\0';
    std::size_t lineGroups_ = 0;
    std::size_t lineDigits_ = 0;
    std::size_t lineBegin_ = 0;
    std::size_t firstLine_ = 0;
    std::size_t lastDigits_ = 0;
    bool lastShort_ = false;
    std::optional<std::size_t> shorter_;
    std::vector<std::uint8_t> lineOctets_;
};

bool isGroupSize(std::size_t digits)
{
    return digits == 2 || digits == 4 || digits == 8 || digits == 16 || digits == 32;
}

std::string quoted(const Piece& text, std::size_t at)
{
    const std::size_t digits = skipHexDigits(text, at) - at;
    return "'" + std::string(text.all.substr(at, std::min<std::size_t>(digits, 16))) + (digits > 16 ? "..." : "") + "'";
}

// What is hex by its characters, but leaves a question.
Refused questionHex(const Piece& text, const Shape& shape)
{
    if (shape.several && shape.single && shape.longest == 2)
    {
        return refuse(text, *shape.single,
                      quoted(text, *shape.single) + " is a single digit among pairs: an octet, or a digit is missing",
                      {Form::Hex});
    }
    if (shape.several && shape.odd)
    {
        return refuse(text, *shape.odd,
                      quoted(text, *shape.odd) + " has " +
                          counted(skipHexDigits(text, *shape.odd) - *shape.odd, "hex digit") +
                          ", an odd number: one is missing, or it is no part of the message",
                      {Form::LogLine});
    }
    if (shape.several && (shape.uneven || !isGroupSize(shape.first)))
    {
        const std::size_t at = shape.uneven.value_or(skipPrefix(text, text.begin));
        return refuse(text, at,
                      quoted(text, at) +
                          " is not as long as the other groups: all groups are the message, or the longest run is",
                      {Form::Hex, Form::LogLine});
    }
    if (shape.asciiLike)
    {
        return refuse(text, *shape.asciiLike, "an ASCII column, to be cut off, or more octets", {Form::Hex});
    }
    if (shape.length)
    {
        return refuse(text, *shape.length,
                      "lines of different lengths (" + std::to_string(shape.lengths[0]) + " and " +
                          std::to_string(shape.lengths[1]) + " hex digits): several messages (--lines) or one",
                      {Form::Hex});
    }
    return std::nullopt;
}

} // namespace

void addHex(std::vector<std::uint8_t>& octets, std::string_view digits)
{
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
    {
        octets.push_back(static_cast<std::uint8_t>(hexValue(digits[i]) << 4 | hexValue(digits[i + 1])));
    }
}

Piece unwrapped(const Piece& text)
{
    Piece piece = text.trimmed();
    const auto last = [&piece]
    {
        return piece.end > piece.begin ? piece.all[piece.end - 1] : '\0';
    };
    if (last() == ',' || last() == ';')
    {
        --piece.end;
        piece = piece.trimmed();
    }
    const auto quotes = [&piece, last](char quote)
    {
        return piece.end - piece.begin >= 2 && piece.all[piece.begin] == quote && last() == quote;
    };
    if ((last() == 'H' || last() == 'O') && piece.end - piece.begin >= 3 && piece.all[piece.end - 2] == '\'' &&
        piece.all[piece.begin] == '\'')
    {
        --piece.end;
    }
    if (quotes('"') || quotes('\'') || quotes('`'))
    {
        ++piece.begin;
        --piece.end;
    }
    return piece.trimmed();
}

Reading readHex(const Piece& whole, bool said)
{
    const Piece text = unwrapped(whole);
    const Shape shape = Scan(text).run();
    if (shape.strange || shape.groups == 0)
    {
        if (!said)
        {
            return OtherForm{};
        }
        const std::size_t at = shape.strange.value_or(text.begin);
        return refuse(whole, at,
                      isSeparator(whole.at(at)) && at < text.end ? "another separator than before"
                                                                 : shown(whole, at) + " is not a hex digit");
    }

    // In a list each group stands for itself; else the digits of all lines follow each other.
    const bool list = shape.several || (shape.longest <= 2 && shape.groups > 1);
    if (!said)
    {
        if (auto refused = questionHex(text, shape))
        {
            return std::move(*refused);
        }
        constexpr std::size_t doubtful = 32;
        if (!shape.several && shape.prefixes == 0 && shape.lower && shape.upper && shape.digits <= doubtful &&
            isBase64(text.view()))
        {
            return refuse(text, text.begin,
                          counted(shape.digits, "hex digit") + " of both cases or " +
                              counted(shape.digits, "base64 character"),
                          {Form::Hex, Form::Base64});
        }
    }
    else if (list && shape.odd && shape.longest > 2)
    {
        return refuse(text, *shape.odd, quoted(text, *shape.odd) + " has an odd number of hex digits");
    }
    if (!list && shape.digits % 2 != 0)
    {
        return refuse(text, skipPrefix(text, text.begin),
                      counted(shape.digits, "hex digit") + ", an odd number: one is missing or too many",
                      !said && isBase64(text.view()) ? std::vector{Form::Base64} : std::vector<Form>{});
    }

    std::string digits;
    digits.reserve(shape.digits);
    for (std::size_t i = text.begin; i < text.end;)
    {
        if (isSeparator(text.all[i]))
        {
            ++i;
            continue;
        }
        const std::size_t begin = skipPrefix(text, i);
        i = skipHexDigits(text, begin);
        if (list && i - begin == 1)
        {
            digits += '0';
        }
        digits += text.all.substr(begin, i - begin);
    }
    Input input{Form::Hex, {}, {}, "hex, "};
    input.octets.reserve(digits.size() / 2);
    addHex(input.octets, digits);
    input.note += counted(input.octets.size(), "octet");
    return input;
}

} // namespace tool
