// Whatever is pasted, piped or read from a file: what it is, and the octets or the text that it stands for. A wrong
// guess is worse than a question: what can be read in two ways is refused with the names of both.
//
// The rules, in the order in which they are tried:
// - Binary: a control character, or what is not UTF-8 or UTF-16 with its mark. A binary message whose octets all
//   happen to be text is taken for text; saying the form (--as binary) settles it.
// - Jer: text that starts with '{', unless an array of numbers or hex follows; '[' when '{' follows.
// - Record: the same where a member of the outermost object is a field of the record, or "$include".
// - HexDump: the first line is an offset with octets behind it. Offsets have to agree with the octets of their lines,
//   in hex, octal or decimal; an ASCII column is never data, whatever it looks like. Words without a colon behind a
//   seven-digit offset have their low octet first. Also a dump that starts at 0 inside other text.
// - Flat: the first line is "Type.path = value". A line that starts with '#' is a comment, here and in all other texts.
// - CArray: a list of numbers in { } or [ ], or a bare list of 0x..; everything around it is passed over.
// - Escaped: \x.., in quotes as a C or Python literal (always two digits) or bare.
// - Hex: nothing but hex digits and separators. Groups are of one size, all lines but the last of one length. Of text
//   that is also base64, hex wins, but for up to 32 digits of both cases.
// - Base64: one word, or lines of one length, that are valid to the last bit, and that no plain word looks like.
// - LogLine: the longest run of hex in the text, at least four octets (two when the form is said) and more than twice
//   as long as the next one. Times, dates, UUIDs, fractions, 0x numbers and decimal numbers up to 16 digits, and parts
//   of a path are no runs. A run goes on in the next line when that is nothing but hex.
#pragma once

#include "form.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tool
{

// Longer input is refused; no more octets come out of a dump with repeated lines either.
inline constexpr std::size_t maxInputOctets = std::size_t{64} << 20;

struct Input
{
    Form form;
    std::vector<std::uint8_t> octets; // empty for the texts Jer, Record and Flat
    std::string text;                 // of these: UTF-8 without byte order mark, lines end with '\n'
    std::string note;                 // what was recognised: "hex dump, 440 octets in 28 lines"
};

// Both count from 1, columns in characters; 0 when the matter is the whole input.
struct Place
{
    std::size_t line = 0;
    std::size_t column = 0;
};

struct Refusal
{
    std::string reason;
    Place place;
    std::vector<Form> candidates;

    // "1:5: <reason>; say --as hex or --as base64"
    std::string message() const;
};

using Recognition = std::variant<Input, Refusal>;

Recognition recognise(std::string_view raw, std::optional<Form> as = std::nullopt);

// One message per line, for --lines. Blank lines and comments are passed over.
class MessageLines
{
public:
    struct Line
    {
        std::size_t number; // from 1, all lines counted
        std::string_view text;
    };

    // A refusal when the input is not text.
    static std::variant<MessageLines, Refusal> of(std::string_view raw);

    // The text lives as long as this object.
    std::optional<Line> next();

private:
    explicit MessageLines(std::string text) : text_(std::move(text)) {}

    std::string text_;
    std::size_t at_ = 0;
    std::size_t number_ = 0;
};

} // namespace tool
