#include "scalar.h"
#include "mistakes.h"

#include <charconv>

namespace text
{

unsigned numberForm(std::string_view text)
{
    const std::string_view digits = text.starts_with('-') ? text.substr(1) : text;
    if (digits.empty() || digits.front() < '0' || digits.front() > '9')
    {
        return 0;
    }
    const std::size_t end = digits.find_first_not_of("0123456789");
    if (end == std::string_view::npos)
    {
        return integerForm;
    }
    const bool isNumber = digits.find_first_not_of("0123456789+-.eE") == std::string_view::npos;
    return isNumber ? unsigned{fractionForm} : 0;
}

std::string describe(const Scalar& scalar)
{
    if ((scalar.forms & (nullForm | booleanForm)) != 0)
    {
        return std::string(scalar.text);
    }
    return (scalar.forms & (integerForm | fractionForm)) != 0 ? "the number " + shown(scalar.text)
                                                              : "the string " + quoted(scalar.text);
}

std::string range(std::int64_t lower, std::int64_t upper)
{
    return std::to_string(lower) + (lower == upper ? "" : ".." + std::to_string(upper));
}

std::string plural(std::int64_t count, const char* noun)
{
    return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

void putHexadecimal(unsigned char* to, std::string_view digits)
{
    for (std::size_t i = 0; i < digits.size(); i += 2)
    {
        (void)std::from_chars(digits.data() + i, digits.data() + i + 2, to[i / 2], 16);
    }
}

} // namespace text
