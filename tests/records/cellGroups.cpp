// cellGroups kept|dropped COUNT SEED: composes COUNT random cell groups through the entry and prints, for each that is
// composed, a line with its seed, its octets in hex and the value that it was meant to be.
//
// kept: every field in its range; each cell group has to be composed, and everything that a record can hold has to
// occur. dropped: fields hold anything, counts stay within their arrays; a cell group is composed, or it is refused
// with lines that say why.
#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "records.h"
#include "support/Hex.h"
#include "vos_lib.h"

namespace
{

constexpr std::size_t bufferSize = 8192;
constexpr UINT32 untouched = 0xA5A5A5A5;

// What has been printed for one cell group, up to the element tree's title: however many notices come first, the
// refusal is among it.
class Console
{
public:
    const std::string& lines() const
    {
        return lines_;
    }

    void clear()
    {
        lines_.clear();
        atTree_ = false;
    }

    INT32 print(const char* format, va_list args)
    {
        va_list again;
        va_copy(again, args);
        const int length = std::vsnprintf(nullptr, 0, format, again);
        va_end(again);
        if (atTree_ || length < 0)
        {
            return length;
        }
        const std::size_t before = lines_.size();
        lines_.resize(before + static_cast<std::size_t>(length) + 1);
        (void)std::vsnprintf(&lines_[before], static_cast<std::size_t>(length) + 1, format, args);
        lines_.pop_back();
        atTree_ = lines_.compare(before, title.size(), title) == 0;
        if (lines_.size() > endless)
        {
            std::fprintf(stderr, "a cell group prints without end, at last\n%s\n", &lines_[before]);
            std::exit(1);
        }
        return length;
    }

    static constexpr std::string_view title = "CELL GROUP";

private:
    // Some thousand elements have a notice each, of less than 100 characters.
    static constexpr std::size_t endless = std::size_t{4} << 20;

    std::string lines_;
    bool atTree_ = false;
};
Console console;

[[noreturn]] void fail(std::uint32_t seed, const char* what)
{
    std::fprintf(stderr, "cell group %u: %s\n%s\n", seed, what, console.lines().c_str());
    std::exit(1);
}

// A composer that failed is named, up to the entry. A refusal names path, value and bound before the element tree.
bool isClear(const std::string& lines)
{
    const std::string refused = "rrcComposeCellGroupCfg Error\r\n";
    const std::size_t entry = lines.find(refused);
    if (entry == std::string::npos)
    {
        const std::string end = " Error\r\n";
        return lines.size() > end.size() && lines.compare(lines.size() - end.size(), end.size(), end) == 0;
    }
    const std::size_t line = entry + refused.size();
    const std::size_t end = lines.find('\n', line);
    const std::size_t reason = lines.find(": ", line);
    return lines.compare(line, 16, "CellGroupConfig.") == 0 && reason < end &&
           lines.compare(end + 1, Console::title.size(), Console::title) == 0;
}

// Of several alternatives that a mask names, one that is not sent may have a period that no message knows.
bool isNoticesOnly(const std::string& lines)
{
    return lines.find("rror") == std::string::npos && lines.find("NULL") == std::string::npos &&
           lines.find("null") == std::string::npos;
}

void print(std::uint32_t seed, const UINT8* octets, UINT32 length, const std::string& meaning)
{
    std::printf("%u %s %s\n", seed, test::hexDigits(octets, length).c_str(), meaning.c_str());
}

} // namespace

// Stands in place of the platform's.
INT32 VOS_Printf(const char* format, ...)
{
    va_list args;
    va_start(args, format);
    const INT32 length = console.print(format, args);
    va_end(args);
    return length;
}

int main(int argc, char** argv)
{
    using Ranges = records::Chance::Ranges;
    if (argc != 4 || (std::strcmp(argv[1], "kept") != 0 && std::strcmp(argv[1], "dropped") != 0))
    {
        std::fprintf(stderr, "usage: %s kept|dropped COUNT SEED\n", argv[0]);
        return 2;
    }
    const bool kept = std::strcmp(argv[1], "kept") == 0;
    const auto count = static_cast<std::uint32_t>(std::strtoul(argv[2], nullptr, 10));
    const auto first = static_cast<std::uint32_t>(std::strtoul(argv[3], nullptr, 10));

    // What a record holds at first, and what earlier cell groups have left, must not matter.
    const auto record = std::make_unique<RrcCellGroupCfg_t>();
    std::mt19937 dirt(first);
    auto* const memory = reinterpret_cast<std::uint32_t*>(record.get());
    for (std::size_t i = 0; i < sizeof *record / sizeof *memory; ++i)
    {
        memory[i] = static_cast<std::uint32_t>(dirt());
    }
    std::vector<UINT8> octets(bufferSize + 1);
    records::Chance chance(kept ? Ranges::kept : Ranges::dropped);
    std::uint32_t composed = 0;
    std::uint64_t total = 0;
    UINT32 largest = 0;
    for (std::uint32_t seed = first; seed != first + count; ++seed)
    {
        chance.start(seed);
        records::draw(chance, *record);
        const std::string meaning = records::meant(*record);
        console.clear();
        octets.back() = 0xA5;
        Mbuf_t message = {untouched, octets.data()};
        const INT32 result = rrcComposeCellGroupCfg(record.get(), &message);
        if (octets.back() != 0xA5)
        {
            fail(seed, "wrote behind the buffer");
        }
        if (result == VOS_OK)
        {
            if (message.bufLen == 0 || message.bufLen > bufferSize || !isNoticesOnly(console.lines()))
            {
                fail(seed, "composed, but with an error line or a length that cannot be");
            }
            print(seed, octets.data(), message.bufLen, meaning);
            ++composed;
            total += message.bufLen;
            largest = std::max(largest, message.bufLen);
        }
        else if (kept)
        {
            fail(seed, "not composed");
        }
        else if (result != VOS_ERROR || message.bufLen != untouched || !isClear(console.lines()))
        {
            fail(seed, "not refused clearly");
        }
    }
    std::fprintf(stderr, "%u of %u cell groups composed, %llu octets, the largest %u\n", composed, count,
                 static_cast<unsigned long long>(total), largest);
    if (composed == 0 || (!kept && composed == count))
    {
        std::fprintf(stderr, "they prove nothing\n");
        return 1;
    }
    if (kept)
    {
        const std::vector<std::string> missing = chance.missing();
        std::fprintf(stderr, "%zu of %zu cases occurred\n", chance.cases() - missing.size(), chance.cases());
        for (const std::string& line : missing)
        {
            std::fprintf(stderr, "never occurred: %s\n", line.c_str());
        }
        // A few cell groups, drawn by hand, need not hold everything.
        return missing.empty() || count < 3000 ? 0 : 1;
    }
    return 0;
}
