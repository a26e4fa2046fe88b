// Values without members or elements, as a text has them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace text
{

// What a scalar may stand for; the same letters can be several of these in a text without quotes.
enum Form : unsigned
{
    nullForm = 1,
    booleanForm = 2,
    integerForm = 4,
    fractionForm = 8, // a number with a point or an exponent
    stringForm = 16,
    nameForm = 32 // a value of an enumeration
};

struct Scalar
{
    unsigned forms;
    std::string_view text; // of a string without quotes and escapes
};

// The form of letters that are a number, 0 for others.
unsigned numberForm(std::string_view text);

// "the number 7", "the string \"x\""
std::string describe(const Scalar& scalar);

// "1..8", "3"
std::string range(std::int64_t lower, std::int64_t upper);

// "1 bit", "2 bits"
std::string plural(std::int64_t count, const char* noun);

// Of an even number of digits, all of them hexadecimal.
void putHexadecimal(unsigned char* to, std::string_view digits);

} // namespace text
