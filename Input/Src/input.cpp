#include "input.h"

#include "readers.h"
#include "rrcRecordType.h"
#include "textPlaces.h"

#include <algorithm>

namespace tool
{

namespace
{

Input binary(std::string_view raw)
{
    return {Form::Binary, {raw.begin(), raw.end()}, {}, "binary, " + counted(raw.size(), "octet")};
}

// Comments become blanks, so that lines and columns stay.
void blankComments(std::string& text)
{
    const Piece all = {text, 0, text.size()};
    for (std::size_t i = 0; i < text.size();)
    {
        const std::size_t end = lineEnd(all, i);
        if (all.at(skipBlanks(all, i)) == '#')
        {
            std::fill(text.begin() + static_cast<std::ptrdiff_t>(i), text.begin() + static_cast<std::ptrdiff_t>(end),
                      ' ');
        }
        i = end + 1;
    }
}

// '{' opens JER, unless numbers or nothing but hex follow; '[' only when JER's braces follow.
bool isJer(const Piece& text)
{
    const std::size_t begin = skipComments(text, text.begin);
    const char open = text.at(begin);
    const std::size_t next = skipComments(text, begin + 1);
    if (open == '[')
    {
        return text.at(next) == '{' || (text.at(next) == '[' && text.at(skipComments(text, next + 1)) == '{');
    }
    const std::size_t behind = skipHexDigits(text, next);
    const bool hex = behind != next && !isWord(text.at(behind));
    const bool number = text.at(next) == '0' && text.at(next + 1) == 'x';
    const bool cast = text.at(next) == '(' || text.at(next) == '/';
    return open == '{' && !hex && !number && !cast;
}

// A member of the outermost object that a cell group in JER does not have.
bool isRecord(const std::string& jer)
{
    const std::string root = "record";
    std::set<std::string> paths = {root + ".$include"};
    const RrcRecordType& record = *rrcRecordTypes[0];
    for (unsigned i = 0; i < record.fieldCount; ++i)
    {
        const std::string_view name = record.fields[i].name;
        if (name != "cellGroupId")
        {
            paths.insert(root + "." + std::string(name));
        }
    }
    const TextPlaces places(root, {Form::Jer, {}, jer, {}}, paths);
    return std::any_of(paths.begin(), paths.end(), [&](const std::string& path) { return places.has(path); });
}

// "Type.path = value": an ASN.1 path, a type's name first, a blank on both sides of the '='.
bool isFlat(const Piece& text)
{
    std::size_t i = text.begin;
    if (text.at(i) < 'A' || text.at(i) > 'Z')
    {
        return false;
    }
    const auto isPath = [](char c)
    {
        return isLetter(c) || isDigit(c) || c == '-' || c == '.' || c == '[' || c == ']';
    };
    bool deep = false;
    for (; isPath(text.at(i)); ++i)
    {
        deep = deep || text.at(i) == '.' || text.at(i) == '[';
    }
    const std::size_t sign = skipBlanks(text, i);
    return deep && sign != i && text.at(sign) == '=' && isBlank(text.at(sign + 1));
}

Input textOf(Form form, Text&& text, std::string_view what)
{
    const auto lines = static_cast<std::size_t>(std::count(text.utf8.begin(), text.utf8.end(), '\n')) +
                       (text.utf8.ends_with('\n') ? 0U : 1U);
    return {form, {}, std::move(text.utf8), std::string(what) + ", " + counted(lines, "line")};
}

using Reader = Reading (*)(const Piece& text, bool said);

Reader readerOf(Form form)
{
    switch (form)
    {
    case Form::Hex:
        return readHex;
    case Form::HexDump:
        return readHexDump;
    case Form::CArray:
        return readCArray;
    case Form::Escaped:
        return readEscaped;
    case Form::Base64:
        return readBase64;
    case Form::LogLine:
        return readLogLine;
    case Form::Binary:
    case Form::Jer:
    case Form::Record:
    case Form::Flat:
        break;
    }
    return nullptr;
}

// Every second octet is 0 and the others are text: UTF-16 without a mark, or a message that looks so.
bool isUnmarkedUtf16(std::string_view raw)
{
    constexpr std::size_t least = 8;
    if (raw.size() < least || raw.size() % 2 != 0)
    {
        return false;
    }
    const std::size_t zero = raw[0] == '\0' ? 0 : 1;
    for (std::size_t i = 0; i < raw.size(); i += 2)
    {
        const char c = raw[i + 1 - zero];
        if (raw[i + zero] != '\0' || !((c >= ' ' && c <= '~') || c == '\n' || c == '\r' || c == '\t'))
        {
            return false;
        }
    }
    return true;
}

// What is not all text: binary, unless there is a doubt.
Recognition binaryOrRefused(std::string_view raw, const Text& text)
{
    constexpr std::size_t leastText = 32;
    if (isUnmarkedUtf16(raw))
    {
        return Refusal{"UTF-16 text without byte order mark, to be converted to UTF-8, or binary", {}, {Form::Binary}};
    }
    if (raw.size() >= leastText && text.bad <= raw.size() / 16)
    {
        return refuse({text.plain, 0, text.plain.size()}, text.firstBad,
                      "a control character or an octet that is not UTF-8 in what is text otherwise",
                      {Form::LogLine, Form::Binary});
    }
    return binary(raw);
}

Recognition resultOf(Reading&& reading)
{
    if (auto* refusal = std::get_if<Refusal>(&reading))
    {
        return std::move(*refusal);
    }
    return std::get<Input>(std::move(reading));
}

} // namespace

Recognition recognise(std::string_view raw, std::optional<Form> as)
{
    if (raw.empty())
    {
        return Refusal{"the input is empty", {}, {}};
    }
    if (raw.size() > maxInputOctets)
    {
        return Refusal{"the input has more than " + counted(maxInputOctets, "octet"), {}, {}};
    }
    if (as == Form::Binary)
    {
        return binary(raw);
    }
    Text text = decodeText(raw);
    if (!as && text.bad != 0)
    {
        return binaryOrRefused(raw, text);
    }

    if (as == Form::Record)
    {
        return textOf(Form::Record, std::move(text), "record");
    }
    if (as == Form::Jer || (!as && isJer(Piece{text.plain, 0, text.plain.size()}.trimmed())))
    {
        if (!as && isRecord(text.utf8))
        {
            return textOf(Form::Record, std::move(text), "record");
        }
        return textOf(Form::Jer, std::move(text), "JER");
    }
    blankComments(text.plain);
    const Piece whole = {text.plain, 0, text.plain.size()};
    const Piece content = whole.trimmed();
    if (content.begin == content.end)
    {
        return Refusal{"the input has only blanks and comments", {}, {}};
    }
    if (as == Form::Flat || (!as && isFlat(content)))
    {
        return textOf(Form::Flat, std::move(text), "flat lines");
    }
    if (as)
    {
        return resultOf(readerOf(*as)(whole, true));
    }
    for (const Form form : {Form::HexDump, Form::CArray, Form::Escaped, Form::Hex, Form::Base64, Form::LogLine})
    {
        Reading reading = readerOf(form)(whole, false);
        if (!std::holds_alternative<OtherForm>(reading))
        {
            return resultOf(std::move(reading));
        }
    }
    return refuse(
        whole, content.begin,
        "neither hex, a dump, an array, base64, JER, a record, flat lines nor text with hex, unless it is a binary "
        "message "
        "that looks like text",
        {Form::Binary});
}

std::string Refusal::message() const
{
    std::string text;
    if (place.line != 0)
    {
        text = std::to_string(place.line) + ":" + std::to_string(place.column) + ": ";
    }
    text += reason;
    for (std::size_t i = 0; i < candidates.size(); ++i)
    {
        text += (i == 0 ? "; say --as " : " or --as ") + std::string(formName(candidates[i]));
    }
    return text;
}

std::variant<MessageLines, Refusal> MessageLines::of(std::string_view raw)
{
    if (raw.size() > maxInputOctets)
    {
        return Refusal{"the input has more than " + counted(maxInputOctets, "octet"), {}, {}};
    }
    Text text = decodeText(raw);
    if (text.bad != 0)
    {
        return Refusal{"a control character or an octet that is not UTF-8: lines are text",
                       placeOf(text.plain, text.firstBad),
                       {}};
    }
    return MessageLines(std::move(text.utf8));
}

std::optional<MessageLines::Line> MessageLines::next()
{
    const Piece all = {text_, 0, text_.size()};
    while (at_ < text_.size())
    {
        const Piece line = {text_, at_, lineEnd(all, at_)};
        at_ = line.end + 1;
        ++number_;
        const Piece content = line.trimmed();
        if (content.begin != content.end && content.at(content.begin) != '#')
        {
            return Line{number_, line.view()};
        }
    }
    return std::nullopt;
}

} // namespace tool
