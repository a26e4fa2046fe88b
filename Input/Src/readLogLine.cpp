// The longest run of hex in any text.
#include "readers.h"

#include <algorithm>
#include <array>

namespace tool
{

namespace
{

constexpr std::size_t leastSure = 4; // octets of a run that no word or number looks like
constexpr std::size_t leastSaid = 2;

struct Run
{
    std::size_t begin = 0;
    std::size_t end = 0;
    std::size_t digits = 0;
    bool prefixed = false; // 0x before each group

    std::size_t octets() const
    {
        return digits / 2;
    }
};

// How groups are parted: one or two blanks, a comma with or without blank, or one ':' or '-'.
struct Joint
{
    char kind;
    std::size_t next; // where the next group begins
};

// Whether text at i is like the pattern: 'd' a digit, 'x' a hex digit, others themselves; no word goes on behind.
bool isLike(const Piece& text, std::size_t i, std::string_view pattern)
{
    for (const char wanted : pattern)
    {
        const char c = text.at(i++);
        if (wanted == 'd' ? !isDigit(c) : wanted == 'x' ? hexValue(c) < 0 : c != wanted)
        {
            return false;
        }
    }
    return !isWord(text.at(i));
}

// The length of a date, a time or a UUID at i, 0 for none. A time has no further pair: six pairs are an address or
// data.
std::size_t stampAt(const Piece& text, std::size_t i)
{
    static constexpr std::array<std::string_view, 4> patterns = {"xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx", "dddd-dd-dd",
                                                                 "dddd-dd-ddTdd:dd:dd", "dddd-dd-ddTdd:dd:ddZ"};
    static constexpr std::array<std::string_view, 2> times = {"dd:dd:dd", "dd:dd"};
    if (hexValue(text.at(i)) < 0)
    {
        return 0;
    }
    for (const auto pattern : patterns)
    {
        if (isLike(text, i, pattern))
        {
            return pattern.size();
        }
    }
    const auto value = [&text, i](std::size_t at)
    {
        return (text.at(i + at) - '0') * 10 + (text.at(i + at + 1) - '0');
    };
    for (const auto time : times)
    {
        if (isLike(text, i, time) && value(0) < 24 && value(3) < 60 && text.at(i + time.size()) != ':' &&
            (i == text.begin || text.all[i - 1] != ':'))
        {
            return time.size();
        }
    }
    return 0;
}

// Past the fraction of a second at i: ".123456" or ",123". More digits behind a comma are a field of their own.
std::size_t skipFraction(const Piece& text, std::size_t i)
{
    std::size_t end = i + 1;
    while (isDigit(text.at(end)))
    {
        ++end;
    }
    const std::size_t digits = end - (i + 1);
    const bool fraction = text.at(i) == '.' ? digits != 0 : text.at(i) == ',' && digits == 3;
    return fraction && (!isWord(text.at(end)) || text.at(end) == 'Z') ? end : i;
}

class RunFinder
{
public:
    explicit RunFinder(const Piece& text) : text_(text) {}

    void find()
    {
        for (std::size_t i = text_.begin; i < text_.end;)
        {
            if (!isWord(text_.all[i]))
            {
                ++i;
            }
            else if (const std::size_t length = stampAt(text_, i))
            {
                i = skipFraction(text_, i + length);
            }
            else
            {
                i = startRun(i);
            }
        }
    }

    Run longest;
    Run second; // the second longest

private:
    struct Group
    {
        std::size_t begin; // behind 0x
        std::size_t end;
        bool prefixed;

        std::size_t digits() const
        {
            return end - begin;
        }
    };

    // The group at i; nothing when it is a word, a fraction or a stamp.
    std::optional<Group> groupAt(std::size_t i) const
    {
        const bool prefixed = text_.at(i) == '0' && (text_.at(i + 1) == 'x' || text_.at(i + 1) == 'X');
        const std::size_t begin = prefixed ? i + 2 : i;
        const std::size_t end = skipHexDigits(text_, begin);
        const bool fraction = (text_.at(end) == '.' && isDigit(text_.at(end + 1))) ||
                              (i >= text_.begin + 2 && text_.all[i - 1] == '.' && isDigit(text_.all[i - 2]));
        // Paths and base64 have words of hex digits, too.
        const auto isOf = [](std::string_view chars, char c)
        {
            return chars.find(c) != std::string_view::npos;
        };
        const bool part = isOf("/+=", text_.at(end)) || (i > text_.begin && isOf("/+", text_.all[i - 1]));
        if (end == begin || isWord(text_.at(end)) || fraction || part)
        {
            return std::nullopt;
        }
        return Group{begin, end, prefixed};
    }

    std::optional<Joint> jointAt(std::size_t i) const
    {
        const char c = text_.at(i);
        if (isBlank(c))
        {
            const std::size_t next = isBlank(text_.at(i + 1)) ? i + 2 : i + 1;
            return Joint{' ', next};
        }
        if (c == ',' || c == ';')
        {
            return Joint{',', text_.at(i + 1) == ' ' ? i + 2 : i + 1};
        }
        return c == ':' || c == '-' ? std::optional(Joint{c, i + 1}) : std::nullopt;
    }

    static bool isGroupSize(std::size_t digits)
    {
        return digits == 2 || digits == 4 || digits == 8 || digits == 16 || digits == 32;
    }

    // Where to go on behind the word at i, which may start a run.
    std::size_t startRun(std::size_t i)
    {
        const auto first = groupAt(i);
        if (!first)
        {
            while (isWord(text_.at(i)))
            {
                ++i;
            }
            return i;
        }
        Run run = {first->begin, first->end, first->digits(), first->prefixed};
        std::size_t back = run.end; // where to go on
        std::size_t groups = 1;
        char kind = '\0';
        while (isGroupSize(first->digits()))
        {
            const auto joint = jointBehind(run.end, kind, *first);
            const auto group = joint ? groupAt(joint->next) : std::nullopt;
            if (!group || group->prefixed != first->prefixed || stampAt(text_, joint->next) != 0)
            {
                break;
            }
            if (kind != '\0' && joint->kind != kind)
            {
                back = lastGroup_; // the last group may begin a run of the other kind
                break;
            }
            const bool shorter = group->digits() < first->digits();
            if (group->digits() > first->digits() || group->digits() % 2 != 0 ||
                (shorter && goesOn(*group, joint->kind)))
            {
                back = joint->next;
                break;
            }
            kind = joint->kind;
            lastGroup_ = joint->next;
            run.end = group->end;
            run.digits += group->digits();
            ++groups;
            back = run.end;
            if (shorter)
            {
                break;
            }
        }
        if (groups == 1)
        {
            back = joinLines(run);
        }
        constexpr std::size_t longestNumber = 16;
        const auto digits = text_.all.substr(run.begin, run.end - run.begin);
        const bool number = groups == 1 && run.digits <= longestNumber &&
                            (run.prefixed || std::all_of(digits.begin(), digits.end(), isDigit));
        if (!number && run.digits % 2 == 0)
        {
            note(run);
        }
        return back;
    }

    // The next group may stand on the next line when that is nothing but hex of this kind.
    std::optional<Joint> jointBehind(std::size_t end, char kind, const Group& first) const
    {
        const auto joint = jointAt(end);
        const std::size_t rest = skipBlanks(text_, joint ? joint->next : end);
        if (text_.at(rest) != '\n' || rest >= text_.end)
        {
            return joint;
        }
        const std::size_t begin = skipBlanks(text_, rest + 1);
        const bool list = kind != '\0' || first.digits() == 2;
        return list && isHexLine(begin, first, kind) ? std::optional(Joint{kind == '\0' ? ' ' : kind, begin})
                                                     : std::nullopt;
    }

    // Nothing but groups of this size on the line, and what closes a list or a string.
    bool isHexLine(std::size_t i, const Group& first, char kind) const
    {
        const std::size_t end = lineEnd(text_, i);
        while (i < end)
        {
            const auto group = groupAt(i);
            if (!group || group->prefixed != first.prefixed || group->digits() > first.digits() ||
                group->digits() % 2 != 0 || stampAt(text_, i) != 0)
            {
                return false;
            }
            const auto joint = jointAt(group->end);
            const std::size_t next = skipBlanks(text_, joint ? joint->next : group->end);
            if (next >= end)
            {
                return true;
            }
            if (!joint || (kind != '\0' && joint->kind != kind))
            {
                return closes(group->end, end);
            }
            i = joint->next;
        }
        return false;
    }

    bool closes(std::size_t i, std::size_t end) const
    {
        constexpr std::string_view closers = " \t\"')]}>,;.";
        return std::all_of(text_.all.begin() + static_cast<std::ptrdiff_t>(i),
                           text_.all.begin() + static_cast<std::ptrdiff_t>(end),
                           [closers](char c) { return closers.find(c) != std::string_view::npos; });
    }

    // Contiguous digits up to the end of a line go on in lines that are nothing but digits and not longer. Gives where
    // to go on.
    std::size_t joinLines(Run& run) const
    {
        constexpr std::size_t leastWrapped = 32;
        if (run.digits < leastWrapped || text_.at(run.end) != '\n')
        {
            return run.end;
        }
        std::size_t begin = text_.all.substr(0, run.begin).rfind('\n');
        begin = begin == std::string_view::npos ? 0 : begin + 1;
        std::size_t length = run.end - begin;
        while (text_.at(run.end) == '\n' && run.end < text_.end)
        {
            const std::size_t next = skipBlanks(text_, run.end + 1);
            const std::size_t end = skipHexDigits(text_, next);
            if (end == next || end - (run.end + 1) > length || !closes(end, lineEnd(text_, end)))
            {
                break;
            }
            length = end - (run.end + 1);
            run.digits += end - next;
            run.end = end;
        }
        return run.end;
    }

    bool goesOn(const Group& group, char kind) const
    {
        const auto joint = jointAt(group.end);
        const auto next = joint && joint->kind == kind ? groupAt(joint->next) : std::nullopt;
        return next && next->digits() % 2 == 0;
    }

    void note(const Run& run)
    {
        if (run.digits > longest.digits)
        {
            second = longest;
            longest = run;
        }
        else if (run.digits > second.digits)
        {
            second = run;
        }
    }

    const Piece text_;
    std::size_t lastGroup_ = 0;
};

// Dots behind a run, a word that says as much or a dump's '*': the rest was left out.
bool isCut(const Piece& text, std::size_t i)
{
    i = skipBlanks(text, i);
    const std::size_t star = skipSpace(text, i);
    if (text.at(i) == '\n' && text.at(star) == '*' && text.at(skipBlanks(text, star + 1)) == '\n')
    {
        return true; // a dump without offsets does not say how many lines repeat
    }
    while (text.at(i) == '"' || text.at(i) == '\'')
    {
        i = skipBlanks(text, i + 1);
    }
    const std::string_view rest = text.all.substr(i, text.end - std::min(i, text.end));
    for (const std::string_view mark : {"..", "[..", "(..", "[truncated", "(truncated", "<truncated"})
    {
        if (rest.starts_with(mark))
        {
            return true;
        }
    }
    return false;
}

std::string nameOf(const Piece& text, const Run& run)
{
    const Place place = placeOf(text.all, run.begin);
    return counted(run.octets(), "octet") + " at " + std::to_string(place.line) + ":" + std::to_string(place.column);
}

} // namespace

std::size_t longestRun(const Piece& text)
{
    RunFinder runs(text);
    runs.find();
    return runs.longest.octets();
}

Reading readLogLine(const Piece& text, bool said)
{
    RunFinder runs(text);
    runs.find();
    const Run& run = runs.longest;
    if (run.octets() < (said ? leastSaid : leastSure))
    {
        if (said || run.octets() >= leastSaid)
        {
            return refuse(text, run.octets() != 0 ? run.begin : text.begin,
                          run.octets() == 0 ? "no run of hex is in the text"
                                            : "the longest run of hex has only " + counted(run.octets(), "octet"),
                          said ? std::vector<Form>{} : std::vector{Form::LogLine});
        }
        return OtherForm{};
    }
    if (2 * runs.second.octets() >= run.octets())
    {
        return refuse(text, run.begin,
                      "two runs of hex may be the message: " + nameOf(text, run) + " and " + nameOf(text, runs.second) +
                          "; cut off the other, or give one message per line with --lines");
    }
    if (isCut(text, run.end))
    {
        return refuse(text, run.end, "the hex is cut short here");
    }
    Input input{Form::LogLine, {}, {}, {}};
    std::string digits;
    digits.reserve(run.digits);
    for (std::size_t i = run.begin; i < run.end; ++i)
    {
        const bool mark = run.prefixed && (text.at(i + 1) == 'x' || text.at(i + 1) == 'X');
        if (!mark && hexValue(text.at(i)) >= 0)
        {
            digits += text.at(i);
        }
    }
    addHex(input.octets, digits);
    const Place place = placeOf(text.all, run.begin);
    input.note = "hex run of " + counted(input.octets.size(), "octet") + " at column " + std::to_string(place.column) +
                 " of line " + std::to_string(place.line);
    return input;
}

} // namespace tool
