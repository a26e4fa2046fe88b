// A JSON text as events with their places, through a JSON parser.
#pragma once

#include "mistakes.h"
#include "scalar.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

namespace text
{

// Reads a text and tells how far it has been read.
class CountingIterator
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountingIterator(const char* at, const char** reached) : at_(at), reached_(reached) {}

    reference operator*() const
    {
        return *at_;
    }

    CountingIterator& operator++()
    {
        *reached_ = ++at_;
        return *this;
    }

    bool operator==(const CountingIterator& other) const
    {
        return at_ == other.at_;
    }

    bool operator!=(const CountingIterator& other) const
    {
        return at_ != other.at_;
    }

private:
    const char* at_;
    const char** reached_;
};

// Where the next token begins: behind blanks, separators and comments.
inline std::size_t behindGap(std::string_view text, std::size_t at)
{
    for (;;)
    {
        at = std::min(text.find_first_not_of(" \t\r\n,:", at), text.size());
        const std::string_view rest = text.substr(at);
        if (rest.starts_with("//"))
        {
            at += std::min(rest.find_first_of("\r\n"), rest.size());
        }
        else if (rest.starts_with("/*"))
        {
            at = std::min(text.find("*/", at + 2), text.size() - 2) + 2;
        }
        else
        {
            return at;
        }
    }
}

// The text may have comments. `Builder` has the events of TreeBuilder.
template <typename Builder>
class JsonEvents : public nlohmann::json_sax<nlohmann::json>
{
public:
    JsonEvents(std::string_view text, Builder& builder, Mistakes& mistakes)
        : text_(text), builder_(builder), mistakes_(mistakes), reached_(text.data())
    {
    }

    void read()
    {
        const char* const end = text_.data() + text_.size();
        (void)nlohmann::json::sax_parse(CountingIterator(text_.data(), &reached_), CountingIterator(end, &reached_),
                                        this, nlohmann::json::input_format_t::json, true, true);
    }

    bool null() override
    {
        builder_.scalar(token(), {nullForm, "null"});
        return goOn();
    }

    bool boolean(bool value) override
    {
        builder_.scalar(token(), {booleanForm | nameForm, value ? "true" : "false"});
        return goOn();
    }

    bool number_integer(number_integer_t /*value*/) override
    {
        return number();
    }

    bool number_unsigned(number_unsigned_t /*value*/) override
    {
        return number();
    }

    bool number_float(number_float_t /*value*/, const string_t& /*text*/) override
    {
        return number();
    }

    bool string(string_t& value) override
    {
        builder_.scalar(token(), {stringForm | nameForm, value});
        return goOn();
    }

    bool binary(binary_t& /*value*/) override // not in JSON
    {
        return false;
    }

    bool start_object(std::size_t /*elements*/) override
    {
        builder_.beginObject(token());
        return goOn();
    }

    bool key(string_t& name) override
    {
        builder_.member(token(), name);
        return goOn();
    }

    bool end_object() override
    {
        (void)token();
        builder_.endObject();
        return goOn();
    }

    bool start_array(std::size_t /*elements*/) override
    {
        builder_.beginArray(token());
        return goOn();
    }

    bool end_array() override
    {
        (void)token();
        builder_.endArray();
        return goOn();
    }

    // Without the parser's own place, which it counts otherwise, and on one line.
    bool parse_error(std::size_t position, const std::string& /*token*/,
                     const nlohmann::detail::exception& error) override
    {
        std::string_view words = error.what();
        words.remove_prefix(std::min(words.find("] ") + 2, words.size()));
        if (words.starts_with("parse error at line "))
        {
            words.remove_prefix(std::min(words.find(": ") + 2, words.size()));
        }
        mistakes_.add(std::min(position - std::min<std::size_t>(position, 1), text_.size()), builder_.path(),
                      shown(words, mostWords));
        return false;
    }

private:
    static constexpr std::size_t mostWords = 200;

    bool goOn() const
    {
        return !mistakes_.full();
    }

    // Offset of the token that has been read: the first behind the one before it.
    std::size_t token()
    {
        const std::size_t begin = behindGap(text_, end_);
        end_ = static_cast<std::size_t>(reached_ - text_.data());
        return begin;
    }

    bool number()
    {
        const std::size_t begin = token();
        const std::string_view rest = text_.substr(begin);
        const std::string_view digits = rest.substr(0, rest.find_first_not_of("0123456789+-.eE"));
        end_ = begin + digits.size(); // the parser has read one character more
        builder_.scalar(begin, {numberForm(digits), digits});
        return goOn();
    }

    std::string_view text_;
    Builder& builder_;
    Mistakes& mistakes_;
    const char* reached_;
    std::size_t end_ = text_.starts_with("\xEF\xBB\xBF") ? 3 : 0; // a byte order mark is passed over
};

} // namespace text
