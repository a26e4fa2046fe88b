#include "octets.h"

#include <array>

namespace tool
{

namespace
{

constexpr std::string_view lowerDigits = "0123456789abcdef";
constexpr std::string_view upperDigits = "0123456789ABCDEF";
constexpr std::string_view base64Digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

using Values = std::array<signed char, 256>;

constexpr void give(Values& values, std::string_view digits)
{
    for (std::size_t i = 0; i < digits.size(); ++i)
    {
        values[static_cast<unsigned char>(digits[i])] = static_cast<signed char>(i);
    }
}

constexpr Values hexValues = []
{
    Values values{};
    values.fill(-1);
    give(values, lowerDigits);
    give(values, upperDigits);
    return values;
}();

constexpr Values base64Values = []
{
    Values values{};
    values.fill(-1);
    give(values, base64Digits);
    values['-'] = values['+'];
    values['_'] = values['/'];
    return values;
}();

void appendDigits(std::string& text, std::uint8_t octet, std::string_view digits)
{
    text += digits[octet >> 4];
    text += digits[octet & 15];
}

} // namespace

int hexValue(char c)
{
    return hexValues[static_cast<unsigned char>(c)];
}

int base64Value(char c)
{
    return base64Values[static_cast<unsigned char>(c)];
}

std::string toHex(Octets octets, Case digits)
{
    std::string text;
    text.reserve(2 * octets.size());
    for (const auto octet : octets)
    {
        appendDigits(text, octet, digits == Case::Lower ? lowerDigits : upperDigits);
    }
    return text;
}

std::string toCArray(Octets octets, std::string_view name)
{
    constexpr std::size_t perLine = 12;
    std::string text = "const uint8_t ";
    text += name;
    text += "[] = {";
    for (std::size_t i = 0; i < octets.size(); ++i)
    {
        text += i % perLine == 0 ? "\n    0x" : " 0x";
        appendDigits(text, octets[i], lowerDigits);
        text += ',';
    }
    text += "\n};\n";
    return text;
}

std::string toBase64(Octets octets)
{
    std::string text;
    text.reserve((octets.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < octets.size(); i += 3)
    {
        const std::size_t count = octets.size() - i < 3 ? octets.size() - i : 3;
        std::uint32_t bits = 0;
        for (std::size_t k = 0; k < 3; ++k)
        {
            bits = bits << 8 | (k < count ? octets[i + k] : 0U);
        }
        for (std::size_t k = 0; k < 4; ++k)
        {
            text += k <= count ? base64Digits[bits >> (18 - 6 * k) & 63] : '=';
        }
    }
    return text;
}

} // namespace tool
