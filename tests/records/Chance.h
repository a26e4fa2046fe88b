#ifndef CHANCE_H
#define CHANCE_H

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <limits>
#include <map>
#include <random>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "byteOrder.h"
#include "rrcCodec/rrcInit.h"

namespace records
{

// So many random records, or three tenths of them where a sanitizer takes its time: of 10,000 enough for all cases.
constexpr std::uint32_t shareOf(std::uint32_t number)
{
#ifdef FEWER_RECORDS
    return number * 3 / 10;
#else
    return number;
#endif
}

// What records are filled with. Each call in the source is a place with cases that have to occur in a run: both ends of
// a range, a bit set and clear, each alternative, the shortest and the longest list. What has not occurred is
// preferred.
//
// A record takes part of an allowance, the octets of the message it may make: when it is used up, bits stay clear and
// lists as short as they may be.
class Chance
{
public:
    // Whether fields stay in their ranges and masks name one alternative. Counts stay within their arrays either way.
    enum class Ranges
    {
        kept,
        dropped
    };

    explicit Chance(Ranges ranges) : ranges_(ranges) {}

    // Starts one cell group; the same seed gives the same one, as far as the same cases have occurred before.
    void start(std::uint32_t seed);

    // A number from lower to upper.
    template <typename Field>
    void number(Field& field, std::int64_t lower, std::int64_t upper, const char* file = __builtin_FILE(),
                int line = __builtin_LINE())
    {
        field =
            wild() ? static_cast<Field>(any()) : static_cast<Field>(between(lower, upper, {file, line, Kind::number}));
    }

    // A bit string or number of a bit field, which no reference can name.
    std::uint32_t bitField(unsigned width)
    {
        spend(width);
        return static_cast<std::uint32_t>(any()) & ((1U << width) - 1);
    }

    // An enumeration of last + 1 values.
    template <typename Field>
    void enumeration(Field& field, unsigned last, const char* file = __builtin_FILE(), int line = __builtin_LINE())
    {
        number(field, 0, last, file, line);
    }

    // The numbers of an array, each from lower to upper.
    template <typename Field, std::size_t N>
    void numbers(Field (&fields)[N], unsigned count, std::int64_t lower, std::int64_t upper,
                 const char* file = __builtin_FILE(), int line = __builtin_LINE())
    {
        for (unsigned i = 0; i < count && i < N; ++i)
        {
            number(fields[i], lower, upper, file, line);
        }
    }

    // A BOOL that goes into a BOOLEAN.
    void boolean(BOOL& field, const char* file = __builtin_FILE(), int line = __builtin_LINE())
    {
        number(field, 0, 1, file, line);
    }

    // A bit string in the low `width` bits of a number.
    template <typename Field>
    void bits(Field& field, unsigned width)
    {
        spend(width);
        field = static_cast<Field>(any());
        if (!wild() && width < 8 * sizeof(Field))
        {
            field = static_cast<Field>(field & ((static_cast<Field>(1) << width) - 1));
        }
    }

    // A bit string that is held as octets: the same ones on every system, also where numbers hold them.
    template <typename Octet, std::size_t N>
    void octets(Octet (&field)[N])
    {
        for (Octet& octet : field)
        {
            bits(octet, 8 * sizeof octet);
            if constexpr (sizeof octet > 1)
            {
                octet = rtx::lowFirst(octet);
            }
        }
    }

    // Whether an optional member is switched on; its bit is set then.
    template <typename Mask>
    bool flag(Mask& mask, unsigned bit, const char* file = __builtin_FILE(), int line = __builtin_LINE())
    {
        const bool on = decide({file, line, Kind::present});
        if (on)
        {
            mask = static_cast<Mask>(mask | bit);
        }
        return on;
    }

    // An optional number, enumeration, BOOLEAN or bit string: the bit, and what the field holds when it is set.
    template <typename Mask, typename Field>
    void numberIf(Mask& mask, unsigned bit, Field& field, std::int64_t lower, std::int64_t upper,
                  const char* file = __builtin_FILE(), int line = __builtin_LINE())
    {
        if (flag(mask, bit, file, line))
        {
            number(field, lower, upper, file, line);
        }
    }
    template <typename Mask, typename Field>
    void enumerationIf(Mask& mask, unsigned bit, Field& field, unsigned last, const char* file = __builtin_FILE(),
                       int line = __builtin_LINE())
    {
        numberIf(mask, bit, field, 0, last, file, line);
    }
    template <typename Mask>
    void booleanIf(Mask& mask, unsigned bit, BOOL& field, const char* file = __builtin_FILE(),
                   int line = __builtin_LINE())
    {
        numberIf(mask, bit, field, 0, 1, file, line);
    }
    template <typename Mask, typename Field>
    void bitsIf(Mask& mask, unsigned bit, Field& field, unsigned width, const char* file = __builtin_FILE(),
                int line = __builtin_LINE())
    {
        if (flag(mask, bit, file, line))
        {
            bits(field, width);
        }
    }

    // The alternative, by its place among the bits, that the mask chooses as the highest of those set.
    template <typename Mask>
    unsigned alternative(Mask& mask, std::initializer_list<unsigned> bits, const char* file = __builtin_FILE(),
                         int line = __builtin_LINE())
    {
        const unsigned chosen = pick(static_cast<unsigned>(bits.size()), {file, line, Kind::one});
        for (unsigned i = 0; i < bits.size(); ++i)
        {
            const bool alsoSet = i < chosen && oneIn(8);
            if (wild() ? oneIn(2) : i == chosen || alsoSet)
            {
                mask = static_cast<Mask>(mask | bits.begin()[i]);
            }
        }
        return chosen;
    }

    // A choice's alternative, one of `count`, whose number from 1 is in a field. Returns its place, from 0.
    template <typename Field>
    unsigned tag(Field& field, unsigned count, const char* file = __builtin_FILE(), int line = __builtin_LINE())
    {
        const unsigned chosen = pick(count, {file, line, Kind::one});
        field = static_cast<Field>(wild() ? any() : chosen + 1);
        return chosen;
    }

    // Half of the time: anything in the bits of a field above the lower ones, where those alone are sent.
    template <typename Field>
    void above(Field& field, unsigned lower, const char* file = __builtin_FILE(), int line = __builtin_LINE())
    {
        if (pick(2, {file, line, Kind::one}) == 1)
        {
            const std::uint64_t low = static_cast<std::uint64_t>(field) & ((std::uint64_t{1} << lower) - 1);
            field = static_cast<Field>(any() << lower | low);
        }
    }

    // One of `count`, counted from 0.
    unsigned oneOf(unsigned count, const char* file = __builtin_FILE(), int line = __builtin_LINE())
    {
        return pick(count, {file, line, Kind::one});
    }

    // The entries used of an array of `upper`, each of which takes at least so many bits of the message.
    template <typename Count>
    unsigned count(Count& field, unsigned lower, unsigned upper, unsigned bitsEach, const char* file = __builtin_FILE(),
                   int line = __builtin_LINE())
    {
        const unsigned entries = wild() ? static_cast<unsigned>(any() % (upper + 1U))
                                        : length(lower, upper, bitsEach, {file, line, Kind::count});
        field = static_cast<Count>(entries);
        return entries;
    }

    // Entries of a list that has no bit of its own and is absent when there are none.
    template <typename Count>
    unsigned optionalCount(Count& field, unsigned upper, unsigned bitsEach, const char* file = __builtin_FILE(),
                           int line = __builtin_LINE())
    {
        field = 0;
        return decide({file, line, Kind::present}) ? count(field, 1, upper, bitsEach, file, line) : 0;
    }

    // Takes the steps in an order of chance, so that none is always the one for which nothing is left.
    template <typename... Steps>
    void inAnyOrder(Steps... steps)
    {
        std::array<std::function<void()>, sizeof...(Steps)> all{steps...};
        // Not std::shuffle, as standard libraries differ in it.
        for (std::size_t left = all.size(); left > 1; --left)
        {
            std::swap(all[left - 1], all[static_cast<std::size_t>(any() % left)]);
        }
        for (const auto& step : all)
        {
            step();
        }
    }

    // The cases that have not occurred, one per line.
    std::vector<std::string> missing() const;
    // How many there are.
    std::size_t cases() const;

private:
    enum class Kind
    {
        number,
        present,
        one,
        count
    };
    using Place = std::tuple<std::string, int, Kind>;
    using Cases = std::map<std::int64_t, bool>; // whether each has occurred

    Cases& casesOf(const Place& place, std::initializer_list<std::int64_t> all);
    std::int64_t between(std::int64_t lower, std::int64_t upper, const Place& place);
    unsigned length(unsigned lower, unsigned upper, unsigned bitsEach, const Place& place);
    unsigned pick(unsigned count, const Place& place);
    bool decide(const Place& place);
    void spend(std::int64_t bits)
    {
        left_ -= bits;
    }
    std::uint64_t any()
    {
        return engine_();
    }
    bool oneIn(unsigned times)
    {
        return engine_() % times == 0;
    }
    bool with(double probability)
    {
        // Not a distribution, as standard libraries differ in them: the product is exact, on every processor.
        constexpr double range = 4294967296;
        return any() >> 32 < static_cast<std::uint64_t>(probability * range);
    }
    bool wild()
    {
        return ranges_ == Ranges::dropped && with(wildness_);
    }

    Ranges ranges_;
    std::mt19937_64 engine_;
    std::map<Place, Cases> places_;
    std::int64_t left_ = 0; // bits
    double density_ = 0;
    double wildness_ = 0;
};

} // namespace records

#endif
