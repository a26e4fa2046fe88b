// Dumps: an offset, the octets in hex, often an ASCII column. The offsets say how many octets a line has, so what an
// ASCII column looks like does not matter.
#include "readers.h"

#include <algorithm>
#include <limits>

namespace tool
{

namespace
{

struct HexGroup
{
    std::size_t begin;
    std::size_t end;

    std::size_t octets() const
    {
        return (end - begin) / 2;
    }
};

struct DumpLine
{
    std::size_t offset = 0; // where it begins in the text
    std::size_t digits = 0; // behind its 0x
    std::size_t digitsEnd = 0;
    std::size_t end = 0; // of the line
    bool prefixed = false;
    bool colon = false;
    std::vector<HexGroup> groups;

    std::size_t offsetDigits() const
    {
        return digitsEnd - digits;
    }
    // Only the offset: that of the end.
    bool last() const
    {
        return groups.empty();
    }
};

constexpr std::size_t mostGroups = 256; // more than any tool writes

bool endsGroup(const Piece& text, std::size_t i)
{
    return isBlank(text.at(i)) || text.at(i) == '\n';
}

// The groups of one size from i on; a shorter one is the last.
void cutGroups(const Piece& text, std::size_t i, DumpLine& line)
{
    while (line.groups.size() < mostGroups)
    {
        i = skipBlanks(text, i);
        if (text.at(i) == '-' && !line.groups.empty()) // between the halves of a line
        {
            i = skipBlanks(text, i + 1);
        }
        const bool prefixed = text.at(i) == '0' && text.at(i + 1) == 'x';
        const std::size_t begin = prefixed ? i + 2 : i;
        const std::size_t end = skipHexDigits(text, begin);
        const std::size_t size = end - begin;
        const bool half = text.at(end) == '-' && hexValue(text.at(end + 1)) >= 0;
        const std::size_t first = line.groups.empty() ? size : line.groups[0].end - line.groups[0].begin;
        if (size == 0 || size % 2 != 0 || size > 32 || size > first || (!endsGroup(text, end) && !half))
        {
            return;
        }
        line.groups.push_back({begin, end});
        if (size < first)
        {
            return;
        }
        i = end;
    }
}

// The line of a dump whose offset stands at i.
std::optional<DumpLine> cutLine(const Piece& text, std::size_t i)
{
    DumpLine line;
    line.offset = i;
    line.prefixed = text.at(i) == '0' && text.at(i + 1) == 'x';
    line.digits = line.prefixed ? i + 2 : i;
    line.digitsEnd = skipHexDigits(text, line.digits);
    if (line.offsetDigits() < 4 || line.offsetDigits() > 16)
    {
        return std::nullopt;
    }
    i = line.digitsEnd;
    if (text.at(i) == 'h')
    {
        ++i;
    }
    if (line.prefixed && text.at(i) == ' ' && text.at(i + 1) == '<') // a debugger's "0x7ffd5c20 <buffer+16>:"
    {
        const std::size_t end = lineEnd(text, i);
        const std::size_t close = text.all.substr(0, end).find(">:", i);
        i = close == std::string_view::npos ? i : close + 1;
    }
    line.colon = text.at(i) == ':';
    i += line.colon ? 1 : 0;
    if (!endsGroup(text, i))
    {
        return std::nullopt;
    }
    line.end = lineEnd(text, i);
    cutGroups({text.all, text.begin, line.end}, i, line);
    const bool bare = skipBlanks(text, i) == line.end;
    if (bare)
    {
        return line;
    }
    // What sets an offset apart from hex in groups.
    const bool apart = line.colon || line.offsetDigits() % 2 != 0 ||
                       (!line.last() && line.offsetDigits() > line.groups[0].end - line.groups[0].begin);
    if (line.last() || !apart || (line.prefixed && !line.colon))
    {
        return std::nullopt;
    }
    return line;
}

// A place behind a group where the octets of a line may end.
struct Split
{
    std::size_t octets;
    std::size_t rest; // what follows, blanks skipped
};

std::vector<Split> splitsOf(const Piece& text, const DumpLine& line)
{
    std::vector<Split> splits;
    std::size_t octets = 0;
    for (std::size_t k = 0; k < line.groups.size(); ++k)
    {
        octets += line.groups[k].octets();
        const std::size_t end = line.groups[k].end;
        const std::size_t rest = skipBlanks({text.all, text.begin, line.end}, end);
        if (k + 1 == line.groups.size() || rest - end >= 2 || text.at(end) == '\t')
        {
            splits.push_back({octets, rest});
        }
    }
    return splits;
}

// One reading of the text: with this base of the offsets and this order of the octets in a group.
class DumpReader
{
public:
    DumpReader(const Piece& text, unsigned base, bool lowFirst, bool inside)
        : text_(text), base_(base), lowFirst_(lowFirst), inside_(inside)
    {
    }

    void run(std::size_t first)
    {
        std::size_t i = first;
        while (i < text_.end && !refused)
        {
            const std::size_t end = lineEnd(text_, i);
            const Piece line = Piece{text_.all, i, end}.trimmed();
            if (line.begin != line.end)
            {
                readLine(line);
            }
            i = end + 1;
        }
        if (!refused && previous_ && !previous_->last())
        {
            addLastLine();
        }
        if (star_)
        {
            fail(starAt_, "'*' repeats a line up to the next offset, but none follows");
        }
    }

    std::vector<std::uint8_t> octets;
    std::size_t lines = 0;
    std::size_t unlike = 0; // lines whose ASCII column shows other octets
    Refused refused;        // then the rest is of no use

private:
    // The first reason stays.
    void fail(std::size_t at, std::string reason)
    {
        if (!refused)
        {
            refused = refuse(text_, at, std::move(reason));
        }
    }

    // 0 of what is no number.
    std::uint64_t valueOf(const DumpLine& line)
    {
        std::uint64_t value = 0;
        for (const char c : text_.all.substr(line.digits, line.offsetDigits()))
        {
            const auto digit = static_cast<unsigned>(hexValue(c));
            if (digit >= base_ || value > (std::numeric_limits<std::uint64_t>::max() - digit) / base_)
            {
                fail(line.offset, "the offset is no number of base " + std::to_string(base_));
                return 0;
            }
            value = value * base_ + digit;
        }
        return value;
    }

    std::string nameOf(const DumpLine& line) const
    {
        return std::string(text_.all.substr(line.digits, line.offsetDigits()));
    }

    std::string nameOf(std::uint64_t offset, std::size_t width) const
    {
        std::string digits;
        for (; offset != 0 || digits.size() < width; offset /= base_)
        {
            digits += "0123456789abcdef"[offset % base_];
        }
        return {digits.rbegin(), digits.rend()};
    }

    void readLine(const Piece& line)
    {
        if (previous_ && line.view() == "*")
        {
            star_ = true;
            starAt_ = line.begin;
            return;
        }
        auto cut = inside_ ? findLine(line) : cutLine({text_.all, text_.begin, line.end}, line.begin);
        if (refused)
        {
            return;
        }
        if (!cut)
        {
            if (!inside_ || (previous_ && holdsHex(line)))
            {
                fail(line.begin, "no line of the dump: an offset and octets in hex were expected");
            }
            return;
        }
        if (previous_)
        {
            addLine(*cut);
        }
        offset_ = valueOf(*cut);
        previous_ = std::move(cut);
        lines += previous_->last() ? 0 : 1;
    }

    // Inside other text the offset is one of the first words: that which goes on, or 0 at the start.
    std::optional<DumpLine> findLine(const Piece& line)
    {
        constexpr int mostWords = 16;
        std::size_t i = line.begin;
        for (int word = 0; word < mostWords && i < line.end; ++word)
        {
            auto cut = cutLine(line, i);
            if (cut && (previous_ ? goesOn(*cut) : !cut->last() && valueOf(*cut) == 0))
            {
                return cut;
            }
            while (i < line.end && !isBlank(line.all[i]))
            {
                ++i;
            }
            i = skipBlanks(line, i);
        }
        return std::nullopt;
    }

    bool goesOn(const DumpLine& line)
    {
        if (previous_->last() || line.offsetDigits() != previous_->offsetDigits())
        {
            return false;
        }
        const std::uint64_t offset = valueOf(line);
        const auto splits = splitsOf(text_, *previous_);
        return offset > offset_ &&
               (star_ || std::any_of(splits.begin(), splits.end(),
                                     [&](const Split& split) { return split.octets == offset - offset_; }));
    }

    // Two groups of hex side by side: this line might belong to the message.
    static bool holdsHex(const Piece& line)
    {
        bool before = false;
        for (std::size_t i = line.begin; i < line.end;)
        {
            const std::size_t end = skipHexDigits(line, i);
            const bool group = end != i && (end - i) % 2 == 0 && endsGroup(line, end);
            if (group && before)
            {
                return true;
            }
            before = group;
            i = end;
            while (i < line.end && !isBlank(line.all[i]))
            {
                ++i;
            }
            i = skipBlanks(line, i);
        }
        return false;
    }

    std::vector<std::uint8_t> octetsOf(const DumpLine& line) const
    {
        std::vector<std::uint8_t> all;
        for (const auto& group : line.groups)
        {
            const auto before = static_cast<std::ptrdiff_t>(all.size());
            addHex(all, text_.all.substr(group.begin, group.end - group.begin));
            if (lowFirst_)
            {
                std::reverse(all.begin() + before, all.end());
            }
        }
        return all;
    }

    std::string_view columnOf(const DumpLine& line, const Split& split) const
    {
        return text_.all.substr(split.rest, line.end - split.rest);
    }

    void add(const std::vector<std::uint8_t>& line, std::size_t count)
    {
        if (count > maxInputOctets - octets.size())
        {
            fail(previous_->offset, "the dump has more than " + counted(maxInputOctets, "octet"));
            return;
        }
        const std::size_t begin = octets.size();
        octets.resize(begin + count);
        std::uint8_t* const to = octets.data() + begin;
        std::size_t done = std::min(line.size(), count);
        std::copy_n(line.data(), done, to);
        while (done < count) // twice as many each time: a short line may be repeated millions of times
        {
            const std::size_t part = std::min(done, count - done);
            std::copy_n(to, part, to + done);
            done += part;
        }
    }

    // The octets of a line up to `split`, repeated until there are `count`.
    void take(std::vector<std::uint8_t>& all, const Split& split, std::size_t count)
    {
        all.resize(split.octets);
        const auto column = columnOf(*previous_, split);
        if (!column.empty())
        {
            column_ = true;
            columnAt_ = std::min(columnAt_, split.rest - previous_->offset);
            unlike += isAsciiColumn(column, all) ? 0 : 1;
        }
        width_ = width_ == 0 ? split.octets : width_;
        add(all, count);
    }

    // The line before `next`: the offsets say how many octets it has.
    void addLine(const DumpLine& next)
    {
        const std::uint64_t offset = valueOf(next);
        if (previous_->last() || offset <= offset_)
        {
            fail(next.offset, "offset " + nameOf(next) + " behind " + nameOf(*previous_) +
                                  (offset == 0 ? ": a second dump; give one at a time" : ": a step back"));
            return;
        }
        const std::uint64_t step = offset - offset_;
        auto all = octetsOf(*previous_);
        const auto splits = splitsOf(text_, *previous_);
        if (star_)
        {
            const auto split = std::find_if(splits.begin(), splits.end(),
                                            [this](const Split& candidate) { return candidate.octets == width_; });
            const Split line = split != splits.end() ? *split : likelySplit(all);
            if (step % line.octets != 0 || step > maxInputOctets)
            {
                fail(next.offset,
                     "offset " + nameOf(next) + " is no whole number of repeated lines behind " + nameOf(*previous_));
                return;
            }
            take(all, line, static_cast<std::size_t>(step));
            star_ = false;
            return;
        }
        for (const auto& split : splits)
        {
            // More hex behind the octets is data that the offsets do not count, unless it shows them.
            if (split.octets == step && (split.octets == splits.back().octets ||
                                         isAsciiColumn(columnOf(*previous_, split), Octets(all).first(split.octets))))
            {
                take(all, split, split.octets);
                return;
            }
        }
        // The last word of an odd number of octets is filled up with zero.
        if (lowFirst_ && next.last() && step < all.size() && all.size() - step < previous_->groups.back().octets() &&
            std::all_of(all.begin() + static_cast<std::ptrdiff_t>(step), all.end(),
                        [](auto octet) { return octet == 0; }))
        {
            add(all, static_cast<std::size_t>(step));
            return;
        }
        const std::size_t likely = width_ != 0 ? width_ : splits.back().octets;
        const bool longer = step > splits.back().octets;
        fail(next.offset, "offset " + nameOf(next) + " behind " + counted(splits.back().octets, "octet") + " at " +
                              nameOf(*previous_) + ": " + nameOf(offset_ + likely, next.offsetDigits()) +
                              " was expected" + (longer ? ", lines are missing or cut short" : ""));
    }

    // Nothing says how long the last line is but its layout.
    void addLastLine()
    {
        auto all = octetsOf(*previous_);
        const bool column = column_ || !columnOf(*previous_, splitsOf(text_, *previous_).back()).empty();
        if (lowFirst_ && !column && previous_->groups.back().octets() > 1 && all.back() == 0)
        {
            fail(previous_->offset,
                 "the offset behind the last line is missing: its last word may be one octet or more");
            return;
        }
        const Split split = likelySplit(all);
        take(all, split, split.octets);
    }

    Split likelySplit(const std::vector<std::uint8_t>& all)
    {
        const auto splits = splitsOf(text_, *previous_);
        std::vector<Split> shown;
        for (const auto& split : splits)
        {
            const auto column = columnOf(*previous_, split);
            if ((width_ == 0 || split.octets <= width_) && !column.empty() &&
                isAsciiColumn(column, Octets(all).first(split.octets)))
            {
                shown.push_back(split);
            }
        }
        const Split& whole = splits.back();
        const bool free = columnOf(*previous_, whole).empty() && (width_ == 0 || whole.octets <= width_);
        if (column_)
        {
            for (const auto& split : splits)
            {
                // Behind the last octet only blanks lead to the column.
                if (split.rest - previous_->offset >= columnAt_ && split.rest < previous_->end &&
                    (width_ == 0 || split.octets <= width_))
                {
                    return split;
                }
            }
        }
        if (shown.size() + (free && !column_ ? 1U : 0U) == 1)
        {
            return shown.empty() ? whole : shown.front();
        }
        if (free && column_ && shown.empty())
        {
            return whole; // an ASCII column of blanks that were cut off
        }
        fail(previous_->offset, shown.empty() ? "the line's end is neither octets nor the ASCII column of its octets"
                                              : "the line's end may be octets or an ASCII column: cut it off");
        return whole;
    }

    const Piece text_;
    const unsigned base_;
    const bool lowFirst_;
    const bool inside_;
    std::optional<DumpLine> previous_;
    std::uint64_t offset_ = 0; // of the previous line
    bool star_ = false;
    std::size_t starAt_ = 0;
    std::uint64_t width_ = 0;                                        // octets of a full line, once known
    bool column_ = false;                                            // lines have an ASCII column
    std::size_t columnAt_ = std::numeric_limits<std::size_t>::max(); // where it begins behind the offset
};

bool isZero(const Piece& text, const DumpLine& line)
{
    return text.all.substr(line.digits, line.offsetDigits()).find_first_not_of('0') == std::string_view::npos;
}

struct Start
{
    std::size_t at; // of the line
    DumpLine line;
    bool inside; // other text stands before it
};

std::optional<Start> findStart(const Piece& text)
{
    bool first = true;
    for (std::size_t i = text.begin; i < text.end; i = lineEnd(text, i) + 1)
    {
        const Piece line = Piece{text.all, i, lineEnd(text, i)}.trimmed();
        if (line.begin == line.end)
        {
            continue;
        }
        constexpr int mostWords = 16;
        std::size_t at = line.begin;
        for (int word = 0; word < mostWords && at < line.end; ++word)
        {
            auto cut = cutLine({text.all, text.begin, line.end}, at);
            const bool zero = cut && isZero(text, *cut);
            if (cut && !cut->last() && (zero || (first && word == 0)))
            {
                return Start{i, std::move(*cut), !first || word != 0};
            }
            while (at < line.end && !isBlank(text.all[at]))
            {
                ++at;
            }
            at = skipBlanks(line, at);
        }
        first = false;
    }
    return std::nullopt;
}

// Hex in groups may look like a line of a dump that starts at 0.
bool mayBeGroups(const Piece& text, const Start& start)
{
    const DumpLine& line = start.line;
    const std::size_t rest = skipSpace(text, line.groups.back().end);
    return !start.inside && isZero(text, line) && line.groups.size() == 1 && rest >= text.end &&
           line.offsetDigits() % 2 == 0 && line.groups[0].begin - line.digitsEnd == 1;
}

// Character by character; blanks at the end may have been cut off.
bool showsOctets(std::string_view column, Octets octets)
{
    if (column.empty() || column.size() > octets.size() ||
        std::any_of(octets.begin() + static_cast<std::ptrdiff_t>(column.size()), octets.end(),
                    [](auto octet) { return octet != ' '; }))
    {
        return false;
    }
    for (std::size_t i = 0; i < column.size(); ++i)
    {
        const bool printable = octets[i] > ' ' && octets[i] <= '~';
        const char c = column[i];
        if (printable ? c != static_cast<char>(octets[i]) : c != '.' && c != ' ' && c != foreign)
        {
            return false;
        }
    }
    return true;
}

// od writes seven digits, octal or decimal, and no colon; xxd decimal with a colon when told so.
bool isBase(unsigned base, const Start& start)
{
    const bool od = start.line.offsetDigits() == 7 && !start.line.colon;
    const bool xxd = start.line.offsetDigits() == 8 && start.line.colon;
    return base == 16 || (!start.inside && (od || (base == 10 && xxd)));
}

std::string noteOf(const DumpReader& dump, unsigned base, bool lowFirst, std::string_view start)
{
    std::string note = "hex dump, " + counted(dump.octets.size(), "octet") + " in " + counted(dump.lines, "line");
    note += base == 16 ? "" : base == 8 ? ", octal offsets" : ", decimal offsets";
    note += lowFirst ? ", words with the low octet first" : "";
    if (start.find_first_not_of('0') != std::string_view::npos)
    {
        note += ", from offset " + std::string(start) + " on";
    }
    return note;
}

} // namespace

bool isAsciiColumn(std::string_view column, Octets octets)
{
    while (!column.empty() && isBlank(column.back()))
    {
        column.remove_suffix(1);
    }
    if (column.starts_with("; "))
    {
        column.remove_prefix(2);
    }
    else if (column.size() >= 2 && (column.front() == '|' || column.front() == '>') &&
             column.back() == (column.front() == '|' ? '|' : '<'))
    {
        column.remove_prefix(1);
        column.remove_suffix(1);
    }
    // Blanks at its start cannot be told from those before it.
    while (!column.empty() && isBlank(column.front()))
    {
        column.remove_prefix(1);
    }
    std::size_t half = 8; // a blank may part the halves
    while (!octets.empty() && octets.front() == ' ')
    {
        octets = octets.subspan(1);
        half -= half != 0 ? 1 : 0;
    }
    if (half != 0 && column.size() == octets.size() + 1 && column.size() > half && column[half] == ' ')
    {
        const std::string joined = std::string(column.substr(0, half)) + std::string(column.substr(half + 1));
        return showsOctets(joined, octets);
    }
    return showsOctets(column, octets);
}

Reading readHexDump(const Piece& text, bool said)
{
    const auto start = findStart(text);
    if (!start)
    {
        if (said)
        {
            return refuse(text, text.begin, "no line begins with an offset and octets in hex");
        }
        return OtherForm{};
    }
    const DumpLine& first = start->line;
    const auto digits = text.all.substr(first.digits, first.offsetDigits());
    const std::size_t size = first.groups[0].end - first.groups[0].begin;
    if (size == 6 && first.offsetDigits() == 7 && !first.colon)
    {
        return refuse(text, first.groups[0].begin, "words in octal: dump the octets with 'od -tx1'");
    }
    if (size > 2 && first.groups[0].begin > text.begin && text.all[first.groups[0].begin - 1] == 'x')
    {
        return refuse(text, first.groups[0].begin,
                      "words of a debugger, whose octets may be in any order: print octets (x/xb)");
    }
    const bool words = size > 2 && !first.prefixed;
    const bool lowFirst = words && !first.colon && first.offsetDigits() == 7;

    Refused refusal; // of the reading that got furthest
    for (const unsigned base : {16U, 8U, 10U})
    {
        std::optional<DumpReader> best;
        bool other = false; // the other order gives other octets, and nothing tells which is right
        bool bestLow = false;
        for (const bool low : {lowFirst, !lowFirst})
        {
            // Only an ASCII column can tell that words with the high octet first are not.
            if ((low != lowFirst && (!words || lowFirst)) || !isBase(base, *start))
            {
                continue;
            }
            DumpReader dump(text, base, low, start->inside);
            dump.run(start->at);
            if (dump.refused)
            {
                if (!refusal || refusal->place.line < dump.refused->place.line)
                {
                    refusal = std::move(dump.refused);
                }
                continue;
            }
            other = best && best->unlike == dump.unlike && best->octets != dump.octets;
            if (!best || dump.unlike < best->unlike)
            {
                best.emplace(std::move(dump));
                bestLow = low;
            }
        }
        if (!best)
        {
            continue;
        }
        // Two lines or a colon tell that it is a dump, else that it starts at 0.
        if (!said && !first.colon && best->lines <= 1)
        {
            if (mayBeGroups(text, *start))
            {
                return refuse(text, first.offset, "an offset and octets, or hex in groups", {Form::HexDump, Form::Hex});
            }
            if (start->inside || !isZero(text, first))
            {
                return OtherForm{};
            }
        }
        constexpr std::size_t mostSure = 4; // digits: words of two octets without a sign of the order are xxd's
        if (!said && other && size > mostSure)
        {
            return refuse(
                text, first.groups[0].begin,
                "the octets of a word may be in either order (xxd -g 4 or xxd -e): dump single octets (xxd -g 1), or "
                "if the first comes first",
                {Form::HexDump});
        }
        auto note = noteOf(*best, base, bestLow, digits);
        return Input{Form::HexDump, std::move(best->octets), {}, std::move(note)};
    }
    if (!said && !isZero(text, first))
    {
        return OtherForm{};
    }
    return std::move(*refusal);
}

} // namespace tool
