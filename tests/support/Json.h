#ifndef JSON_H
#define JSON_H

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace test
{

// {"a":1,"b":2} of the members that are not empty.
inline std::string object(std::initializer_list<std::string> members)
{
    std::string json;
    for (const std::string& member : members)
    {
        json += (json.empty() || member.empty() ? "" : ",") + member;
    }
    return "{" + json + "}";
}

// [item(0),item(1),...]
template <typename Item>
std::string array(unsigned count, Item item)
{
    std::string json;
    for (unsigned i = 0; i < count; ++i)
    {
        json += (i == 0 ? "" : ",") + std::string(item(i));
    }
    return "[" + json + "]";
}

// [first,first+1,...]
inline std::string numbers(unsigned count, unsigned first)
{
    return array(count, [first](unsigned i) { return std::to_string(first + i); });
}

// The low `width` bits of a number as a JSON string of 0 and 1.
inline std::string bits(std::uint64_t value, unsigned width)
{
    std::string json = "\"";
    for (unsigned i = width; i != 0; --i)
    {
        json += (value >> (i - 1) & 1) != 0 ? '1' : '0';
    }
    return json + "\"";
}

// Masks over `width` optional members: none, all, each alone, all but each, and none beside the bits that mean nothing
// in a mask of 16 bits.
inline std::vector<unsigned> masks(unsigned width)
{
    const unsigned all = (1U << width) - 1;
    std::vector<unsigned> result{0, all, 0xFFFFU & ~all};
    for (unsigned i = 0; i < width; ++i)
    {
        result.push_back(1U << i);
        result.push_back(all & ~(1U << i));
    }
    return result;
}

} // namespace test

#endif
