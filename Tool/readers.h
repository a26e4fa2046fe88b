// One reader per form of text. Each gives the content, or nothing when the text is of another form, or throws a
// Refusal when it is of this form and broken. When the form was said (`said`) a reader never gives nothing.
#pragma once

#include "text.h"

namespace tool
{

std::optional<Input> readHexDump(const Piece& text, bool said);
std::optional<Input> readCArray(const Piece& text, bool said);
std::optional<Input> readEscaped(const Piece& text, bool said);
std::optional<Input> readHex(const Piece& text, bool said);
std::optional<Input> readBase64(const Piece& text, bool said);
std::optional<Input> readLogLine(const Piece& text, bool said);

// Without the quotes around it and one ',' or ';' behind it; of '...'H and '...'O too (X.680 clause 12.12).
Piece unwrapped(const Piece& text);

// Of the digits of a piece alone: whether they are base64, valid to the last bit.
bool isBase64(std::string_view digits);

// The octets of the longest run of hex in a text, 0 for none.
std::size_t longestRun(const Piece& text);

// Adds the octets of an even number of digits that are all hex.
void addHex(std::vector<std::uint8_t>& octets, std::string_view digits);

// Whether a text, trimmed, shows these octets as an ASCII column does: printable ones as they are, others as a dot.
bool isAsciiColumn(std::string_view column, Octets octets);

} // namespace tool
