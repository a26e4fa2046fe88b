// Resource blocks and symbols: RIV, SLIV, resource block groups, subbands.
#include "nrFormulas.h"

namespace
{

// The form that RIV and SLIV share: `size` of `n` from `start`.
uint32_t indicate(NrSpan span, uint32_t n)
{
    const uint32_t more = span.size - 1;
    return more <= n / 2 ? n * more + span.start : n * (n - more) + (n - 1 - span.start);
}

bool decode(uint32_t value, uint32_t n, NrSpan& span)
{
    if (n == 0 || value / n > n / 2)
    {
        return false;
    }
    const uint32_t q = value / n;
    const uint32_t r = value % n;
    const NrSpan decoded = q + r < n ? NrSpan{r, q + 1} : NrSpan{n - 1 - r, n - q + 1};
    if (decoded.size > n || indicate(decoded, n) != value) // a second value for the same span is none
    {
        return false;
    }
    span = decoded;
    return true;
}

struct SizeRow
{
    uint32_t most; // resource blocks of the bandwidth part
    uint32_t sizes[2];
};

} // namespace

uint32_t nrRivOf(NrSpan span, uint32_t n)
{
    return indicate(span, n);
}

int nrRivDecode(uint32_t riv, uint32_t n, NrSpan* span)
{
    return decode(riv, n, *span) ? 1 : 0;
}

uint32_t nrSlivOf(NrSpan span)
{
    return indicate(span, NR_SYMBOLS);
}

int nrSlivDecode(uint32_t sliv, NrSpan* span)
{
    return decode(sliv, NR_SYMBOLS, *span) ? 1 : 0;
}

int nrPdschSymbolsAllowed(int typeB, int extendedPrefix, NrSpan symbols)
{
    const uint32_t slot = extendedPrefix != 0 ? NR_SYMBOLS_EXTENDED : NR_SYMBOLS;
    if (symbols.start >= slot || symbols.size > slot - symbols.start)
    {
        return 0;
    }
    if (typeB == 0)
    {
        return symbols.start <= 3 && symbols.size >= 3 ? 1 : 0;
    }
    return symbols.size == 2 || symbols.size == 4 || symbols.size == slot / 2 ? 1 : 0;
}

uint32_t nrSubbandSize(uint32_t n, int value2)
{
    static constexpr SizeRow rows[] = {{23, {0, 0}}, {72, {4, 8}}, {144, {8, 16}}, {275, {16, 32}}};
    for (const SizeRow& row : rows)
    {
        if (n <= row.most)
        {
            return row.sizes[value2 != 0 ? 1 : 0];
        }
    }
    return 0;
}

uint32_t nrSubbands(uint32_t start, uint32_t n, uint32_t size)
{
    return size == 0 ? 0 : (start % size + n + size - 1) / size;
}

uint32_t nrRbgSize(uint32_t n, int config2)
{
    static constexpr SizeRow rows[] = {{36, {2, 4}}, {72, {4, 8}}, {144, {8, 16}}, {275, {16, 16}}};
    for (const SizeRow& row : rows)
    {
        if (n <= row.most)
        {
            return row.sizes[config2 != 0 ? 1 : 0];
        }
    }
    return 0;
}

uint32_t nrRbgs(uint32_t start, uint32_t n, uint32_t size)
{
    return nrSubbands(start, n, size); // groups, too, are counted from point A
}
