#include "lexer.h"

#include <algorithm>
#include <array>

namespace asncomp
{
namespace
{

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Keeps the names that nested types get from their owners within reason.
constexpr std::size_t longestName = 255;

constexpr std::string_view hyphens = "--";
constexpr std::array annotations = std::to_array<std::string_view>({"Identity", "Need", "Cond", "Change"});

class Lexer
{
public:
    Lexer(std::string_view source, Diagnostics& diagnostics) : source_(source), diagnostics_(diagnostics) {}

    std::vector<Token> run()
    {
        for (skipBlank(); position_ < source_.size(); skipBlank())
        {
            next();
        }
        if (inAnnotation_)
        {
            annotationMark();
        }
        tokens_.push_back({TokenKind::End, "end of file", 0, at_});
        return std::move(tokens_);
    }

private:
    char peek(std::size_t ahead = 0) const
    {
        return position_ + ahead < source_.size() ? source_[position_ + ahead] : '\0';
    }

    void advance()
    {
        if (source_[position_++] == '\n')
        {
            ++at_.line;
            at_.column = 1;
        }
        else
        {
            ++at_.column;
        }
    }

    bool startsWith(std::string_view text) const
    {
        return source_.substr(position_, text.size()) == text;
    }

    void skip(std::size_t count)
    {
        while (count-- != 0)
        {
            advance();
        }
    }

    // A comment ends at the line's end or at the next pair of hyphens.
    bool atCommentEnd() const
    {
        return position_ == source_.size() || peek() == '\n' || startsWith(hyphens);
    }

    void skipComment()
    {
        skip(hyphens.size());
        while (!atCommentEnd())
        {
            advance();
        }
        if (startsWith(hyphens))
        {
            skip(hyphens.size());
        }
    }

    // A comment that begins with the word of an annotation is read, between two tokens of hyphens.
    bool startsAnnotation() const
    {
        std::size_t begin = position_ + hyphens.size();
        while (begin < source_.size() && source_[begin] == ' ')
        {
            ++begin;
        }
        std::size_t end = begin;
        while (end < source_.size() && (isLetter(source_[end]) || isDigit(source_[end])))
        {
            ++end;
        }
        const std::string_view word = source_.substr(begin, end - begin);
        return std::find(annotations.begin(), annotations.end(), word) != annotations.end();
    }

    void annotationMark()
    {
        tokens_.push_back({TokenKind::Punctuation, std::string(hyphens), 0, at_});
        inAnnotation_ = !inAnnotation_;
        if (startsWith(hyphens))
        {
            skip(hyphens.size());
        }
    }

    void skipBlank()
    {
        while (position_ < source_.size())
        {
            const char c = peek();
            if (inAnnotation_ ? atCommentEnd() : startsWith(hyphens) && startsAnnotation())
            {
                annotationMark();
            }
            else if (c == ' ' || c == '\t' || c == '\r' || c == '\n')
            {
                advance();
            }
            else if (startsWith(hyphens))
            {
                skipComment();
            }
            else
            {
                return;
            }
        }
    }

    void next()
    {
        if (isLetter(peek()))
        {
            word();
        }
        else if (isDigit(peek()) || (peek() == '-' && isDigit(peek(1))))
        {
            number();
        }
        else
        {
            punctuation();
        }
    }

    void word()
    {
        Token token{TokenKind::Word, "", 0, at_};
        while (isLetter(peek()) || isDigit(peek()) || (peek() == '-' && peek(1) != '-'))
        {
            token.text += peek();
            advance();
        }
        if (token.text.size() > longestName)
        {
            diagnostics_.error(token.at, "the name is longer than " + std::to_string(longestName) + " characters");
        }
        if (token.text.back() == '-')
        {
            diagnostics_.error(token.at, "the name '" + token.text + "' ends in a hyphen");
        }
        tokens_.push_back(std::move(token));
    }

    void number()
    {
        Token token{TokenKind::Number, "", 0, at_};
        const bool negative = peek() == '-';
        do
        {
            token.text += peek();
            advance();
        } while (isDigit(peek()));
        constexpr std::size_t longest = 12;
        if (token.text.size() > longest)
        {
            diagnostics_.error(token.at, "the number " + token.text + " is too large");
        }
        else
        {
            for (const char c : token.text)
            {
                token.value = isDigit(c) ? token.value * 10 + (c - '0') : 0;
            }
            token.value = negative ? -token.value : token.value;
        }
        tokens_.push_back(std::move(token));
    }

    void punctuation()
    {
        static constexpr std::array<std::string_view, 10> all = {"::=", "...", "..", "[[", "]]",
                                                                 "{",   "}",   "(",  ")",  ","};
        for (const std::string_view text : all)
        {
            if (startsWith(text))
            {
                tokens_.push_back({TokenKind::Punctuation, std::string(text), 0, at_});
                skip(text.size());
                return;
            }
        }
        const auto c = static_cast<unsigned char>(peek());
        diagnostics_.error(at_, c >= 0x20 && c < 0x7F
                                    ? std::string("the character '") + peek() + "' does not belong here"
                                    : "the octet " + std::to_string(c) + " does not belong here");
        advance();
    }

    std::string_view source_;
    Diagnostics& diagnostics_;
    std::size_t position_ = 0;
    Location at_;
    bool inAnnotation_ = false;
    std::vector<Token> tokens_;
};

} // namespace

std::vector<Token> tokenize(std::string_view source, Diagnostics& diagnostics)
{
    return Lexer(source, diagnostics).run();
}

} // namespace asncomp
