// Operating bands, channels and rasters.
#include "nrFormulas.h"

namespace
{

// SS/PBCH block patterns (TS 38.213 4.1).
constexpr uint32_t noPattern = 0;
constexpr uint32_t patternA = 1 << 0; // 15 kHz
constexpr uint32_t patternB = 1 << 1; // 30 kHz
constexpr uint32_t patternC = 1 << 2; // 30 kHz
constexpr uint32_t patternD = 1 << 3; // 120 kHz
constexpr uint32_t patternE = 1 << 4; // 240 kHz

constexpr uint32_t khz = 1000;
constexpr uint32_t firstFr2Band = 257;

// Edges in MHz.
constexpr NrBand row(uint32_t number, NrDuplex duplex, uint32_t ulLow, uint32_t ulHigh, uint32_t dlLow, uint32_t dlHigh,
                     uint32_t cases, uint32_t leastMhz)
{
    const uint32_t mus = ((cases & patternA) != 0 ? 1U << 0 : 0) |
                         ((cases & (patternB | patternC)) != 0 ? 1U << 1 : 0) |
                         ((cases & patternD) != 0 ? 1U << 3 : 0) | ((cases & patternE) != 0 ? 1U << 4 : 0);
    return {number,
            duplex,
            number >= firstFr2Band ? 1 : 0,
            ulLow * khz,
            ulHigh * khz,
            dlLow * khz,
            dlHigh * khz,
            mus,
            (cases & patternB) != 0 ? 1 : 0,
            (cases & patternC) != 0 ? 1 : 0,
            leastMhz};
}

// Of n34, n38 and n39 case C came later, for UEs of this release, too.
constexpr NrBand bands[] = {
    row(1, NR_FDD, 1920, 1980, 2110, 2170, patternA, 5),
    row(2, NR_FDD, 1850, 1910, 1930, 1990, patternA, 5),
    row(3, NR_FDD, 1710, 1785, 1805, 1880, patternA, 5),
    row(5, NR_FDD, 824, 849, 869, 894, patternA | patternB, 5),
    row(7, NR_FDD, 2500, 2570, 2620, 2690, patternA, 5),
    row(8, NR_FDD, 880, 915, 925, 960, patternA, 5),
    row(12, NR_FDD, 699, 716, 729, 746, patternA, 5),
    row(20, NR_FDD, 832, 862, 791, 821, patternA, 5),
    row(25, NR_FDD, 1850, 1915, 1930, 1995, patternA, 5),
    row(28, NR_FDD, 703, 748, 758, 803, patternA, 5),
    row(34, NR_TDD, 2010, 2025, 2010, 2025, patternA | patternC, 5),
    row(38, NR_TDD, 2570, 2620, 2570, 2620, patternA | patternC, 5),
    row(39, NR_TDD, 1880, 1920, 1880, 1920, patternA | patternC, 5),
    row(40, NR_TDD, 2300, 2400, 2300, 2400, patternC, 5),
    row(41, NR_TDD, 2496, 2690, 2496, 2690, patternA | patternC, 10),
    row(50, NR_TDD, 1432, 1517, 1432, 1517, patternC, 5),
    row(51, NR_TDD, 1427, 1432, 1427, 1432, patternA, 5),
    row(66, NR_FDD, 1710, 1780, 2110, 2200, patternA | patternB, 5),
    row(70, NR_FDD, 1695, 1710, 1995, 2020, patternA, 5),
    row(71, NR_FDD, 663, 698, 617, 652, patternA, 5),
    row(74, NR_FDD, 1427, 1470, 1475, 1518, patternA, 5),
    row(75, NR_SDL, 0, 0, 1432, 1517, patternA, 5),
    row(76, NR_SDL, 0, 0, 1427, 1432, patternA, 5),
    row(77, NR_TDD, 3300, 4200, 3300, 4200, patternC, 10),
    row(78, NR_TDD, 3300, 3800, 3300, 3800, patternC, 10),
    row(79, NR_TDD, 4400, 5000, 4400, 5000, patternC, 40),
    row(80, NR_SUL, 1710, 1785, 0, 0, noPattern, 5),
    row(81, NR_SUL, 880, 915, 0, 0, noPattern, 5),
    row(82, NR_SUL, 832, 862, 0, 0, noPattern, 5),
    row(83, NR_SUL, 703, 748, 0, 0, noPattern, 5),
    row(84, NR_SUL, 1920, 1980, 0, 0, noPattern, 5),
    row(86, NR_SUL, 1710, 1780, 0, 0, noPattern, 5),
    row(257, NR_TDD, 26500, 29500, 26500, 29500, patternD | patternE, 50),
    row(258, NR_TDD, 24250, 27500, 24250, 27500, patternD | patternE, 50),
    row(260, NR_TDD, 37000, 40000, 37000, 40000, patternD | patternE, 50),
    row(261, NR_TDD, 27500, 28350, 27500, 28350, patternD | patternE, 50),
};

struct Channel
{
    uint32_t mhz;
    uint32_t rbs[3]; // at the least spacing of the range and twice and four times that; 0: noPattern
};

constexpr Channel fr1Channels[] = {
    {5, {25, 11, 0}},    {10, {52, 24, 11}},   {15, {79, 38, 18}},   {20, {106, 51, 24}}, {25, {133, 65, 31}},
    {30, {160, 78, 38}}, {40, {216, 106, 51}}, {50, {270, 133, 65}}, {60, {0, 162, 79}},  {70, {0, 189, 93}},
    {80, {0, 217, 107}}, {90, {0, 245, 121}},  {100, {0, 273, 135}},
};
constexpr Channel fr2Channels[] = {{50, {66, 32, 0}}, {100, {132, 66, 0}}, {200, {264, 132, 0}}, {400, {0, 264, 0}}};

template <uint32_t N>
uint32_t channelOf(const Channel (&channels)[N], uint32_t column, uint32_t n)
{
    for (const Channel& channel : channels)
    {
        if (n != 0 && column < 3 && channel.rbs[column] == n)
        {
            return channel.mhz;
        }
    }
    return 0;
}

// TS 38.104 table 5.4.2.1-1.
struct RasterPart
{
    uint32_t first; // ARFCN
    uint32_t khz;   // its frequency
    uint32_t step;
};
constexpr RasterPart raster[] = {{2016667, 24250080, 60}, {600000, 3000000, 15}, {0, 0, 5}};

} // namespace

uint32_t nrChannelMhz(int fr2, uint32_t mu, uint32_t n)
{
    return fr2 == 0 ? channelOf(fr1Channels, mu, n) : mu >= 2 ? channelOf(fr2Channels, mu - 2, n) : 0;
}

const NrBand* nrBand(uint32_t number)
{
    for (const NrBand& band : bands)
    {
        if (band.number == number)
        {
            return &band;
        }
    }
    return nullptr;
}

const NrBand* nrBandAt(uint32_t index)
{
    return index < sizeof bands / sizeof bands[0] ? &bands[index] : nullptr;
}

uint32_t nrArfcnKhz(uint32_t arfcn)
{
    constexpr uint32_t last = 3279165;
    if (arfcn > last)
    {
        return 0;
    }
    for (const RasterPart& part : raster)
    {
        if (arfcn >= part.first)
        {
            return part.khz + (arfcn - part.first) * part.step;
        }
    }
    return 0;
}

int nrIsOnSyncRaster(uint32_t frequency)
{
    constexpr uint32_t middle = 3000000;
    constexpr uint32_t high = 24250080;
    constexpr uint32_t top = 100000000;
    if (frequency < middle)
    {
        const uint32_t rest = frequency % 1200;
        return frequency >= 1200 && (rest == 50 || rest == 150 || rest == 250) ? 1 : 0;
    }
    if (frequency < high)
    {
        return (frequency - middle) % 1440 == 0 ? 1 : 0;
    }
    return frequency <= top && (frequency - high) % 17280 == 0 ? 1 : 0;
}
