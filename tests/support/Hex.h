#ifndef HEX_H
#define HEX_H

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace test
{

// Two lower-case digits per octet.
inline std::string hexDigits(const unsigned char* octets, std::size_t count)
{
    constexpr const char* digits = "0123456789abcdef";
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
    {
        text += digits[octets[i] >> 4];
        text += digits[octets[i] & 15];
    }
    return text;
}

// The other way; blanks may stand anywhere.
inline std::vector<unsigned char> octetsOf(std::string_view hex)
{
    std::vector<unsigned char> octets;
    bool high = true;
    for (const char c : hex)
    {
        if (c == ' ')
        {
            continue;
        }
        const std::size_t digit = std::string_view("0123456789abcdef").find(c);
        if (digit == std::string_view::npos)
        {
            throw std::invalid_argument(std::string(hex));
        }
        if (high)
        {
            octets.push_back(static_cast<unsigned char>(digit << 4));
        }
        else
        {
            octets.back() = static_cast<unsigned char>(octets.back() | digit);
        }
        high = !high;
    }
    if (!high)
    {
        throw std::invalid_argument(std::string(hex));
    }
    return octets;
}

} // namespace test

#endif
