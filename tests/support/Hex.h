#ifndef HEX_H
#define HEX_H

#include <cstddef>
#include <string>

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

} // namespace test

#endif
