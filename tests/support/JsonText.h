// Whether a text is JSON (RFC 8259), for what has to be JSON whatever it holds.
#ifndef JSONTEXT_H
#define JSONTEXT_H

#include <algorithm>
#include <cctype>
#include <cstring>
#include <string_view>

namespace test
{

class JsonText
{
public:
    static bool isValid(std::string_view text)
    {
        JsonText json(text);
        return json.value(0) && (json.blanks(), json.text_.empty());
    }

private:
    static constexpr unsigned deepest = 200;

    explicit JsonText(std::string_view text) : text_(text) {}

    void blanks()
    {
        text_.remove_prefix(std::min(text_.find_first_not_of(" \n\r\t"), text_.size()));
    }

    bool take(std::string_view word)
    {
        const bool found = text_.substr(0, word.size()) == word;
        text_.remove_prefix(found ? word.size() : 0);
        return found;
    }

    bool digits()
    {
        const std::size_t count = std::min(text_.find_first_not_of("0123456789"), text_.size());
        text_.remove_prefix(count);
        return count != 0;
    }

    bool value(unsigned depth)
    {
        blanks();
        if (text_.empty() || depth == deepest)
        {
            return false;
        }
        switch (text_.front())
        {
        case '{':
            return items('}', depth, true);
        case '[':
            return items(']', depth, false);
        case '"':
            return string();
        case 't':
            return take("true");
        case 'f':
            return take("false");
        case 'n':
            return take("null");
        default:
            (void)take("-");
            return take("0") || digits(); // our numbers are whole
        }
    }

    bool items(char close, unsigned depth, bool named)
    {
        text_.remove_prefix(1);
        blanks();
        if (take({&close, 1}))
        {
            return true;
        }
        do
        {
            blanks();
            if ((named && !(string() && (blanks(), take(":")))) || !value(depth + 1))
            {
                return false;
            }
            blanks();
        } while (take(","));
        return take({&close, 1});
    }

    bool string()
    {
        if (!take("\""))
        {
            return false;
        }
        while (!text_.empty() && static_cast<unsigned char>(text_.front()) >= ' ')
        {
            if (take("\""))
            {
                return true;
            }
            if (take("\\") && !escape())
            {
                return false;
            }
            text_.remove_prefix(1);
        }
        return false;
    }

    // Leaves the last character of an escape to be taken.
    bool escape()
    {
        if (!take("u"))
        {
            return !text_.empty() && std::strchr("\"\\/bfnrt", text_.front()) != nullptr;
        }
        for (unsigned i = 0; i < 4; ++i)
        {
            if (text_.size() <= i || std::isxdigit(static_cast<unsigned char>(text_[i])) == 0)
            {
                return false;
            }
        }
        text_.remove_prefix(3);
        return true;
    }

    std::string_view text_;
};

} // namespace test

#endif
