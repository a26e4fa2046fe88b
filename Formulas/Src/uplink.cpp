// PUCCH, scheduling requests, configured grants, PRACH.
#include "nrFormulas.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace
{

template <size_t N>
bool has(const uint16_t (&values)[N], uint32_t value)
{
    return std::find(values, values + N, value) != values + N;
}

} // namespace

int nrPuschSymbolsAllowed(int typeB, int extendedPrefix, NrSpan symbols)
{
    const uint32_t slot = extendedPrefix != 0 ? NR_SYMBOLS_EXTENDED : NR_SYMBOLS;
    const uint32_t least = typeB != 0 ? 1 : 4;
    const bool begins = typeB != 0 || symbols.start == 0;
    return begins && symbols.size >= least && symbols.size <= slot && symbols.start <= slot - symbols.size ? 1 : 0;
}

int nrPuschDefaultRow(uint32_t mu, int extendedPrefix, uint32_t row, uint32_t* k2, NrSpan* symbols)
{
    struct Row
    {
        uint32_t later; // slots more than those of the spacing
        NrSpan normal;
        NrSpan extended;
    };
    static constexpr Row rows[] = {
        {0, {0, 14}, {0, 8}},  {0, {0, 12}, {0, 12}}, {0, {0, 10}, {0, 10}}, {0, {2, 10}, {2, 10}},
        {0, {4, 10}, {4, 4}},  {0, {4, 8}, {4, 8}},   {0, {4, 6}, {4, 6}},   {1, {0, 14}, {0, 8}},
        {1, {0, 12}, {0, 12}}, {1, {0, 10}, {0, 10}}, {2, {0, 14}, {0, 6}},  {2, {0, 12}, {0, 12}},
        {2, {0, 10}, {0, 10}}, {0, {8, 6}, {8, 4}},   {3, {0, 14}, {0, 8}},  {3, {0, 10}, {0, 10}}};
    static constexpr uint32_t ofSpacing[] = {1, 1, 2, 3};
    if (mu >= std::size(ofSpacing) || row >= std::size(rows))
    {
        return 0;
    }
    *k2 = ofSpacing[mu] + rows[row].later;
    *symbols = extendedPrefix != 0 ? rows[row].extended : rows[row].normal;
    return 1;
}

uint32_t nrPucchF1Sequences(uint32_t symbols, int hopping)
{
    if (symbols < 4 || symbols > NR_SYMBOLS)
    {
        return 0;
    }
    // Every other symbol is DM-RS, from the first on; with hopping the first half is the shorter one.
    return hopping != 0 ? symbols / 2 / 2 : symbols / 2;
}

uint32_t nrPucchDmrsSymbols(uint32_t symbols, int hopping, int additional)
{
    if (symbols < 4 || symbols > NR_SYMBOLS)
    {
        return 0;
    }
    return symbols == 4 && hopping == 0 ? 1 : symbols >= 10 && additional != 0 ? 4 : 2;
}

uint32_t nrPucchElements(uint32_t format, uint32_t rbs, uint32_t symbols, uint32_t dmrs, uint32_t occ)
{
    constexpr uint32_t subcarriers = 12;
    constexpr uint32_t ofDmrs = 4; // each third one in format 2
    const uint32_t left = symbols > dmrs ? symbols - dmrs : 0;
    return format == 2                                         ? rbs * (subcarriers - ofDmrs) * symbols
           : format == 3                                       ? rbs * subcarriers * left
           : format == 4 && occ != 0 && subcarriers % occ == 0 ? subcarriers / occ * left
                                                               : 0;
}

uint32_t nrPucchBits(uint32_t elements, uint32_t qm, uint32_t rate)
{
    return elements * qm * rate / 100;
}

int nrIsDftSize(uint32_t rbs)
{
    if (rbs == 0)
    {
        return 0;
    }
    for (const uint32_t factor : {2U, 3U, 5U})
    {
        while (rbs % factor == 0)
        {
            rbs /= factor;
        }
    }
    return rbs == 1 ? 1 : 0;
}

int nrSrPeriodAllowed(uint32_t mu, uint32_t slots)
{
    static constexpr uint16_t at15[] = {1, 2, 4, 5, 8, 10, 16, 20, 40, 80};
    static constexpr uint16_t at30[] = {1, 2, 4, 5, 8, 10, 16, 20, 40, 80, 160};
    static constexpr uint16_t at60[] = {1, 2, 4, 8, 16, 20, 40, 80, 160, 320};
    static constexpr uint16_t at120[] = {1, 2, 4, 5, 8, 10, 16, 40, 80, 160, 320, 640};
    const bool allowed = mu == 0   ? has(at15, slots)
                         : mu == 1 ? has(at30, slots)
                         : mu == 2 ? has(at60, slots)
                                   : mu == 3 && has(at120, slots);
    return allowed ? 1 : 0;
}

int nrSrPeriodNeedsCapability(uint32_t mu, uint32_t slots)
{
    return (mu == 1 && slots == 5) || (mu == 3 && (slots == 5 || slots == 10)) ? 1 : 0;
}

int nrGrantPeriodAllowed(uint32_t mu, int extendedPrefix, uint32_t symbols)
{
    static constexpr uint16_t atAll[] = {1, 2, 4, 5, 8, 10, 16, 20, 32, 40, 64, 80, 128, 160, 320, 640};
    static constexpr uint16_t at30[] = {256, 1280};
    static constexpr uint16_t at60[] = {256, 512, 1280, 2560};
    static constexpr uint16_t at120[] = {256, 512, 1024, 1280, 2560, 5120};
    if (mu > 3 || (extendedPrefix != 0 && mu != 2))
    {
        return 0;
    }
    const uint32_t slot = extendedPrefix != 0 ? NR_SYMBOLS_EXTENDED : NR_SYMBOLS;
    if (symbols == 2 || symbols == slot / 2)
    {
        return 1;
    }
    const uint32_t slots = symbols % slot == 0 ? symbols / slot : 0;
    const bool allowed = has(atAll, slots) || (mu == 1 && has(at30, slots)) || (mu == 2 && has(at60, slots)) ||
                         (mu == 3 && has(at120, slots));
    return allowed ? 1 : 0;
}

uint32_t nrPrachLongRbs(int format3, uint32_t muPusch)
{
    static constexpr uint32_t rbs[2][3] = {{6, 3, 2}, {24, 12, 6}};
    return muPusch < 3 ? rbs[format3 != 0 ? 1 : 0][muPusch] : 0;
}

uint32_t nrPrachShortRbs(uint32_t muPrach, uint32_t muPusch)
{
    static constexpr uint32_t rbs[4][4] = {{12, 6, 3, 0}, {24, 12, 6, 0}, {0, 0, 12, 6}, {0, 0, 24, 12}};
    return muPrach < 4 && muPusch < 4 ? rbs[muPrach][muPusch] : 0;
}

int nrPrachIsLong(int fr2, int tdd, uint32_t index)
{
    return fr2 == 0 && index <= (tdd != 0 ? 66U : 86U) ? 1 : 0;
}

int nrPrachIsFormat3(int fr2, int tdd, uint32_t index)
{
    return nrPrachIsLong(fr2, tdd, index) != 0 && index >= (tdd != 0 ? 40U : 60U) ? 1 : 0;
}
