// Which values have a meaning, and the words that many of them share.
#include "teller.h"

#include <string_view>

namespace rules::explain
{
namespace
{

constexpr const Meanings* groups[] = {&allocationMeanings, &cellMeanings, &csiMeanings,
                                      &periodMeanings,     &unitMeanings, &uplinkMeanings};

const Meaning* find(const RtxType& type, int64_t offset)
{
    for (const Meanings* const group : groups)
    {
        for (const Meaning& meaning : std::span(group->of, group->count))
        {
            if (meaning.type == &type && meaning.offset == offset)
            {
                return &meaning;
            }
        }
    }
    return nullptr;
}

constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

} // namespace

const Meaning* meaningOf(const RtxType& holder, int64_t offset, const RtxType& type)
{
    const Meaning* const held = find(holder, offset);
    return held != nullptr ? held : find(type, -1);
}

void appendSpan(rtx::Line& line, const char* what, NrSpan span)
{
    if (span.size == 1)
    {
        rtx::append(line, "%s %u", what, span.start);
        return;
    }
    rtx::append(line, "%ss %u..%u (%u)", what, span.start, span.start + span.size - 1, span.size);
}

void appendBits(Teller& t, OSUINT32 count)
{
    OSUINT32 numbers[NR_LARGEST_CARRIER];
    OSUINT32 set = 0;
    for (OSUINT32 i = 0; i < count && set < std::size(numbers); ++i)
    {
        if (t.isSet(i))
        {
            numbers[set++] = i;
        }
    }
    appendRuns(t.text(), {numbers, set});
}

void appendDecimal(rtx::Line& line, int64_t value, OSUINT32 digits)
{
    int64_t per = 1;
    for (; digits != 0; --digits)
    {
        per *= 10;
    }
    const int64_t size = value < 0 ? -value : value;
    rtx::append(line, "%s%" PRId64, value < 0 ? "-" : "", size / per);
    const char* before = ".";
    for (int64_t rest = size % per; rest != 0; rest %= per)
    {
        per /= 10;
        rtx::append(line, "%s%" PRId64, before, rest / per);
        before = "";
    }
}

void appendSlotsInMs(Teller& t, OSUINT32 slots)
{
    if (const Known<OSUINT32> mu = t.scope.mu(); t.has(mu, spacing))
    {
        constexpr OSUINT32 digits = 4; // a slot of 240 kHz takes 0.0625 ms
        rtx::append(t.text(), " (");
        appendDecimal(t.text(), (int64_t{slots} * 10000) >> *mu, digits);
        rtx::append(t.text(), " ms)");
        rtx::append(t.formula(), "%sa slot of %u kHz takes ", t.formula().length == 0 ? "" : "; ", khzOf(*mu));
        appendDecimal(t.formula(), int64_t{10000} >> *mu, digits);
        rtx::append(t.formula(), " ms");
    }
}

NamedNumber namedNumber(const char* name)
{
    NamedNumber found{};
    OSUINT32 i = 0;
    for (; *name != '\0' && *name != '-' && !isDigit(*name); ++name)
    {
        if (i + 1 == sizeof found.unit)
        {
            return found;
        }
        found.unit[i++] = *name;
    }
    found.isNegative = *name == '-'; // db-3
    name += found.isNegative ? 1 : 0;
    if (!isDigit(*name))
    {
        return found;
    }
    bool isFraction = false;
    constexpr OSUINT32 most = 100000000; // longer ones are none of the schema
    for (; *name != '\0' && found.number < most; ++name)
    {
        if (isDigit(*name))
        {
            found.number = found.number * 10 + static_cast<OSUINT32>(*name - '0');
            found.digits += isFraction ? 1 : 0;
        }
        else if (!isFraction && (*name == 'p' || std::string_view(name).starts_with("dot"))) // ms0p5, s0dot4
        {
            isFraction = true;
            name += *name == 'd' ? 2 : 0;
        }
        else
        {
            return found;
        }
    }
    found.is = *name == '\0';
    return found;
}

} // namespace rules::explain
