// recordDigest COUNT 00|ff|junk [EXPECTED]: composes COUNT random cell groups of either kind through the entry and
// prints for each thousand a digest of their results, octets and lines. All memory that a composition could read by
// mistake, the record, the buffer and the stack, is filled with the octet or with junk before. With a file of digests
// those that were printed have to be its beginning.
//
// The digests are the same on every system, whatever compiler, standard library and processor made them:
// scripts/elsewhere.sh.
#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "byteOrder.h"
#include "records.h"
#include "vos_lib.h"

namespace
{

// FNV-1a of 64 bits.
class Digest
{
public:
    void add(const void* data, std::size_t size)
    {
        constexpr std::uint64_t prime = 0x100000001B3;
        const auto* const octets = static_cast<const unsigned char*>(data);
        for (std::size_t i = 0; i < size; ++i)
        {
            sum_ = (sum_ ^ octets[i]) * prime;
        }
    }

    void add(std::uint32_t number)
    {
        const std::array<unsigned char, 4> octets = {
            static_cast<unsigned char>(number), static_cast<unsigned char>(number >> 8),
            static_cast<unsigned char>(number >> 16), static_cast<unsigned char>(number >> 24)};
        add(octets.data(), octets.size());
    }

    std::uint64_t sum() const
    {
        return sum_;
    }

private:
    std::uint64_t sum_ = 0xCBF29CE484222325;
};

Digest* console = nullptr;

class Fill
{
public:
    // Null stands for junk.
    explicit Fill(const char* octet)
        : octet_(octet == nullptr ? -1 : static_cast<int>(std::strtoul(octet, nullptr, 16)))
    {
    }

    void operator()(void* memory, std::size_t size)
    {
        auto* const octets = static_cast<unsigned char*>(memory);
        if (octet_ >= 0)
        {
            std::memset(octets, octet_, size);
            return;
        }
        for (std::size_t i = 0; i < size; i += sizeof(std::uint64_t))
        {
            const std::uint64_t junk = junk_();
            std::memcpy(octets + i, &junk, std::min(sizeof junk, size - i));
        }
    }

    // What the calls behind this one will find there.
    [[gnu::noinline]] void stack()
    {
        constexpr std::size_t more = 48 * 1024; // than a composition takes
        unsigned char below[more];
        (*this)(below, sizeof below);
        keep(below);
    }

private:
    // The compiler cannot know that nobody reads it.
    static void keep(const unsigned char* memory)
    {
        asm volatile("" : : "r"(memory) : "memory");
    }

    int octet_;
    std::mt19937_64 junk_;
};

constexpr std::size_t bufferSize = 8192;

// Where 64 bits are aligned otherwise, or numbers begin with another octet, members of a record's unions lie elsewhere.
// A mask without its range then chooses a member that was filled as another one, and holds other octets: no call could
// make the same of it.
struct Aligned
{
    char before;
    std::uint64_t number;
};
constexpr bool hasSameUnions = rtx::littleEndian && offsetof(Aligned, number) == sizeof(std::uint64_t);

// One thousand of them after the other; `print(digest)` each.
template <typename Print>
void compose(records::Chance::Ranges ranges, std::uint32_t count, Fill& fill, const Print& print)
{
    constexpr std::uint32_t thousand = 1000;
    const std::unique_ptr<RrcCellGroupCfg_t> record(new RrcCellGroupCfg_t); // libc++ 14 lacks the call for it
    fill(record.get(), sizeof *record);
    std::vector<UINT8> octets(bufferSize);
    records::Chance chance(ranges);
    Digest digest;
    console = &digest;
    for (std::uint32_t seed = 1; seed <= count; ++seed)
    {
        chance.start(seed);
        records::draw(chance, *record);
        fill(octets.data(), octets.size());
        fill.stack();
        Mbuf_t message = {0, octets.data()};
        const INT32 result = rrcComposeCellGroupCfg(record.get(), &message);
        digest.add(static_cast<std::uint32_t>(result));
        digest.add(message.bufLen);
        digest.add(octets.data(), message.bufLen);
        if (seed % thousand == 0)
        {
            print(digest.sum());
            digest = Digest();
        }
    }
}

} // namespace

// Stands in place of the platform's.
INT32 VOS_Printf(const char* format, ...)
{
    std::array<char, 4096> line{};
    va_list args;
    va_start(args, format);
    const int length = std::vsnprintf(line.data(), line.size(), format, args);
    va_end(args);
    // A long bitmap of SSB positions that a mask also names lies over a pointer and is refused (docs/behaviour.md). How
    // much of it the pointer has, and whether that is null, depends on the pointer's width.
    std::string text = line.data();
    constexpr std::string_view null = "a null pointer";
    if (const std::size_t at = text.find(null); at != std::string::npos)
    {
        text.replace(at, null.size(), "a pointer out of the context's heap");
    }
    console->add(text.data(), text.size());
    return length;
}

int main(int argc, char** argv)
{
    using Ranges = records::Chance::Ranges;
    const std::uint32_t count = argc < 3 ? 0 : static_cast<std::uint32_t>(std::strtoul(argv[1], nullptr, 10));
    if (argc > 4 || count == 0 || count % 1000 != 0)
    {
        std::fprintf(stderr, "usage: %s COUNT 00|ff|junk [EXPECTED], with whole thousands\n", argv[0]);
        return 2;
    }
    Fill fill(std::strcmp(argv[2], "junk") == 0 ? nullptr : argv[2]);
    std::vector<std::string> expected;
    if (argc == 4)
    {
        std::ifstream file(argv[3]);
        for (std::string line; std::getline(file, line);)
        {
            expected.push_back(line);
        }
    }
    bool isSame = true;
    for (const auto& [name, ranges] : {std::pair("kept", Ranges::kept), std::pair("dropped", Ranges::dropped)})
    {
        unsigned number = 0;
        const auto print = [&, name = name, ranges = ranges](std::uint64_t sum)
        {
            std::array<char, 64> line{};
            (void)std::snprintf(line.data(), line.size(), "%s %u000 %016llx", name, ++number,
                                static_cast<unsigned long long>(sum));
            const bool isCompared = argc == 4 && (hasSameUnions || ranges == Ranges::kept);
            const bool isKnown =
                !isCompared || std::find(expected.begin(), expected.end(), line.data()) != expected.end();
            isSame = isSame && isKnown;
            const bool isPassedOver = argc == 4 && !isCompared;
            std::printf("%s%s\n", line.data(),
                        isPassedOver ? " is not compared here"
                        : isKnown    ? ""
                                     : " is another one");
        };
        compose(ranges, count, fill, print);
    }
    return isSame ? 0 : 1;
}
