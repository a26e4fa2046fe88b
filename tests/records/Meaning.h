// The value that a record means, as the JSON that the oracle's command `read` prints: members in the schema's order,
// those of extension groups behind the others, absent ones left out; CHOICE {"alternative":value}; ENUMERATED the
// number of its value; BIT STRING "0101"; NULL null; no blanks.
#ifndef MEANING_H
#define MEANING_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

namespace records
{

class Members
{
public:
    // A value that is JSON already.
    void add(std::string_view name, const std::string& json)
    {
        text_ += text_.empty() ? "" : ",";
        text_ += '"';
        text_ += name;
        text_ += "\":";
        text_ += json;
    }

    // An INTEGER or ENUMERATED.
    template <typename Number>
    std::enable_if_t<std::is_integral_v<Number> || std::is_enum_v<Number>> add(std::string_view name, Number number)
    {
        add(name, std::to_string(+number));
    }

    // An optional member.
    template <typename Value>
    void addIf(unsigned present, std::string_view name, const Value& value)
    {
        if (present != 0)
        {
            add(name, value);
        }
    }

    std::string json() const
    {
        return "{" + text_ + "}";
    }

private:
    std::string text_;
};

inline std::string choice(std::string_view alternative, const std::string& json)
{
    Members one;
    one.add(alternative, json);
    return one.json();
}

template <typename Number>
std::enable_if_t<std::is_integral_v<Number> || std::is_enum_v<Number>, std::string> choice(std::string_view alternative,
                                                                                           Number number)
{
    return choice(alternative, std::to_string(+number));
}

// The one alternative of SetupRelease that is ever sent.
template <typename Value>
std::string setup(const Value& value)
{
    return choice("setup", value);
}

inline std::string null()
{
    return "null";
}

// BOOLEAN from a BOOL, whose low 8 bits count.
inline std::string boolean(std::int64_t value)
{
    return (value & 0xFF) != 0 ? "true" : "false";
}

// BIT STRING of the low `width` bits of a number, the most significant of them first.
inline std::string bits(std::uint64_t value, unsigned width)
{
    std::string text = "\"";
    for (unsigned i = width; i != 0; --i)
    {
        text += (value >> (i - 1) & 1) != 0 ? '1' : '0';
    }
    return text + "\"";
}

// BIT STRING of octets as they lie in memory, the most significant bit of each first.
inline std::string octetBits(const void* octets, unsigned width)
{
    std::string text = "\"";
    for (unsigned i = 0; i < width; ++i)
    {
        text += (static_cast<const unsigned char*>(octets)[i / 8] >> (7 - i % 8) & 1) != 0 ? '1' : '0';
    }
    return text + "\"";
}

// SEQUENCE OF: item(0) ... item(count - 1), each a number or JSON.
template <typename Item>
std::string list(unsigned count, Item item)
{
    std::string text;
    for (unsigned i = 0; i < count; ++i)
    {
        text += i == 0 ? "" : ",";
        if constexpr (std::is_convertible_v<decltype(item(i)), std::string>)
        {
            text += item(i);
        }
        else
        {
            text += std::to_string(+item(i));
        }
    }
    return "[" + text + "]";
}

// SEQUENCE OF: the first of an array, as many as are counted and it holds.
template <typename Entry, std::size_t N, typename Item>
std::string list(unsigned count, const Entry (&entries)[N], Item item)
{
    return list(std::min<unsigned>(count, N), [&](unsigned i) { return item(entries[i]); });
}

// The same of numbers.
template <typename Number, std::size_t N>
std::string numbers(unsigned count, const Number (&entries)[N])
{
    return list(count, entries, [](Number number) { return number; });
}

} // namespace records

#endif
