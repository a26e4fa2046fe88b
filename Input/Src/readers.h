// One reader per form of text. When the form was said (`said`) a reader never finds another one.
#pragma once

#include "text.h"

namespace tool
{

struct OtherForm
{
};

// The content; that the text is of another form; or why it is broken, of this form.
using Reading = std::variant<OtherForm, Input, Refusal>;

Reading readHexDump(const Piece& text, bool said);
Reading readCArray(const Piece& text, bool said);
Reading readEscaped(const Piece& text, bool said);
Reading readHex(const Piece& text, bool said);
Reading readBase64(const Piece& text, bool said);
Reading readLogLine(const Piece& text, bool said);

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
