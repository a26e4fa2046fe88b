// Formulas of the uplink against the tables and the formulas of the standard, over their whole domain.
#include "nrFormulas.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <vector>

namespace test
{
namespace
{

// TS 38.214 table 6.1.2.1-1.
struct TimeRow
{
    bool isTypeB;
    bool isExtended;
    uint32_t lastStart;
    uint32_t least;
    uint32_t most;
    uint32_t lastEnd;
};
constexpr TimeRow timeRows[] = {{false, false, 0, 4, 14, 14},
                                {false, true, 0, 4, 12, 12},
                                {true, false, 13, 1, 14, 14},
                                {true, true, 12, 1, 12, 12}};

TEST(Pusch, SymbolsAreThoseOfTheTable)
{
    for (const TimeRow& row : timeRows)
    {
        for (uint32_t start = 0; start < 20; ++start)
        {
            for (uint32_t size = 0; size < 20; ++size)
            {
                const bool allowed =
                    start <= row.lastStart && size >= row.least && size <= row.most && start + size <= row.lastEnd;
                EXPECT_EQ(allowed, nrPuschSymbolsAllowed(row.isTypeB, row.isExtended, {start, size}) != 0)
                    << row.isTypeB << row.isExtended << " " << start << " " << size;
            }
        }
    }
}

// TS 38.214 tables 6.1.2.1.1-2 to -4: rows 1, 5, 11, 14 and 16, at 30, 60 and 120 kHz.
TEST(Pusch, DefaultRowsAreThoseOfTheTable)
{
    struct Row
    {
        uint32_t mu;
        bool isExtended;
        uint32_t row;
        uint32_t k2;
        uint32_t start;
        uint32_t size;
    };
    static constexpr Row rows[] = {{1, false, 0, 1, 0, 14}, {0, false, 4, 1, 4, 10},  {2, false, 10, 4, 0, 14},
                                   {3, false, 13, 3, 8, 6}, {3, false, 15, 6, 0, 10}, {2, true, 0, 2, 0, 8},
                                   {2, true, 4, 2, 4, 4},   {2, true, 10, 4, 0, 6},   {2, true, 13, 2, 8, 4},
                                   {2, true, 15, 5, 0, 10}};
    for (const Row& row : rows)
    {
        uint32_t k2 = 0;
        NrSpan symbols{};
        ASSERT_EQ(1, nrPuschDefaultRow(row.mu, row.isExtended ? 1 : 0, row.row, &k2, &symbols));
        EXPECT_EQ(row.k2, k2) << row.row;
        EXPECT_EQ(row.start, symbols.start) << row.row;
        EXPECT_EQ(row.size, symbols.size) << row.row;
    }
    uint32_t k2 = 0;
    NrSpan symbols{};
    EXPECT_EQ(0, nrPuschDefaultRow(1, 0, 16, &k2, &symbols));
    EXPECT_EQ(0, nrPuschDefaultRow(4, 0, 0, &k2, &symbols));
    for (uint32_t row = 0; row < 16; ++row)
    {
        for (const bool isExtended : {false, true})
        {
            ASSERT_EQ(1, nrPuschDefaultRow(2, isExtended ? 1 : 0, row, &k2, &symbols));
            EXPECT_TRUE(nrPuschSymbolsAllowed(1, isExtended ? 1 : 0, symbols)) << row;
        }
    }
}

// TS 38.211 6.4.1.4.3: n_b of the n-th transmission.
uint32_t hoppingPlace(uint32_t cSrs, uint32_t b, uint32_t bHop, uint32_t position, uint32_t n)
{
    const uint32_t parts = nrSrsParts(cSrs, b);
    const uint32_t first = 4 * position / nrSrsBandwidth(cSrs, b);
    if (b <= bHop)
    {
        return first % parts;
    }
    uint32_t below = 1; // the product of N_b', with 1 for b' = bHop
    for (uint32_t i = bHop + 1; i < b; ++i)
    {
        below *= nrSrsParts(cSrs, i);
    }
    const uint32_t rest = n % (below * parts);
    const uint32_t hop = parts % 2 == 0 ? parts / 2 * (rest / below) + rest / (2 * below) : parts / 2 * (n / below);
    return (hop + first) % parts;
}

TEST(Sounding, SpanIsWhatAllHopsTake)
{
    for (uint32_t c = 0; c < 64; ++c)
    {
        for (uint32_t bSrs = 0; bSrs < 4; ++bSrs)
        {
            for (uint32_t bHop = 0; bHop < 4; ++bHop)
            {
                for (uint32_t position = 0; position < 68; ++position)
                {
                    uint32_t hops = 1;
                    for (uint32_t b = bHop + 1; b <= bSrs; ++b)
                    {
                        hops *= nrSrsParts(c, b);
                    }
                    uint32_t lowest = UINT32_MAX;
                    uint32_t end = 0;
                    for (uint32_t n = 0; n < hops; ++n)
                    {
                        uint32_t start = 0;
                        for (uint32_t b = 0; b <= bSrs; ++b)
                        {
                            start += nrSrsBandwidth(c, b) * hoppingPlace(c, b, bHop, position, n);
                        }
                        const NrSpan place = nrSrsPlace(c, bSrs, bHop, position, n);
                        ASSERT_EQ(start, place.start) << c << " " << bSrs << " " << bHop << " " << position << " " << n;
                        ASSERT_EQ(nrSrsBandwidth(c, bSrs), place.size);
                        ASSERT_EQ(start, nrSrsPlace(c, bSrs, bHop, position, n + hops).start);
                        lowest = std::min(lowest, start);
                        end = std::max(end, start + nrSrsBandwidth(c, bSrs));
                    }
                    ASSERT_EQ(hops, nrSrsHops(c, bSrs, bHop));
                    const NrSpan span = nrSrsSpan(c, bSrs, bHop, position);
                    ASSERT_EQ(lowest, span.start) << c << " " << bSrs << " " << bHop << " " << position;
                    ASSERT_EQ(end, span.start + span.size) << c << " " << bSrs << " " << bHop << " " << position;
                }
            }
        }
    }
    EXPECT_EQ(0U, nrSrsSpan(64, 0, 0, 0).size);
    EXPECT_EQ(0U, nrSrsSpan(0, 4, 4, 0).size);
    EXPECT_EQ(0U, nrSrsPlace(64, 0, 0, 0, 0).size);
    EXPECT_EQ(0U, nrSrsPlace(0, 4, 0, 0, 7).size);
    EXPECT_EQ(0U, nrSrsHops(64, 0, 0));
    EXPECT_EQ(0U, nrSrsHops(0, 4, 0));
}

// TS 38.211 6.4.1.4.3: k_TC of each port, and a subcarrier each comb's size.
TEST(Sounding, SubcarriersOfTheCombs)
{
    for (const uint32_t comb : {2U, 4U})
    {
        const uint32_t shifts = comb == 2 ? 8 : 12;
        for (uint32_t offset = 0; offset < comb; ++offset)
        {
            for (uint32_t shift = 0; shift < shifts; ++shift)
            {
                for (const uint32_t ports : {1U, 2U, 4U})
                {
                    uint32_t taken = 0;
                    for (uint32_t port = 0; port < ports; ++port)
                    {
                        const bool isOther = shift >= shifts / 2 && ports == 4 && (port == 1 || port == 3);
                        for (uint32_t k = isOther ? (offset + comb / 2) % comb : offset; k < 12; k += comb)
                        {
                            taken |= 1U << k;
                        }
                    }
                    EXPECT_EQ(taken, nrSrsSubcarriers(comb, offset, shift, ports)) << comb << " " << offset;
                }
            }
        }
    }
    EXPECT_EQ(0U, nrSrsSubcarriers(3, 0, 0, 1));
    EXPECT_EQ(0U, nrSrsSubcarriers(0, 0, 0, 1));
}

// Where freqDomainShift reaches the bandwidth part, it counts from common resource block 0.
TEST(Sounding, Reference)
{
    EXPECT_EQ(0U, nrSrsReference(0, 0));
    EXPECT_EQ(0U, nrSrsReference(24, 24));
    EXPECT_EQ(0U, nrSrsReference(24, 100));
    EXPECT_EQ(24U, nrSrsReference(24, 23));
}

// What stands of m_SRS,b in TS 38.211 table 6.4.1.4.3-1 fits into the level above, whole times.
TEST(Sounding, PartsFillTheLevelAbove)
{
    for (uint32_t c = 0; c < 64; ++c)
    {
        for (uint32_t b = 1; b < 4; ++b)
        {
            EXPECT_EQ(nrSrsBandwidth(c, b - 1), nrSrsBandwidth(c, b) * nrSrsParts(c, b)) << c << " " << b;
        }
        EXPECT_EQ(0U, nrSrsBandwidth(c, 3) % 4) << c;
        EXPECT_LE(nrSrsBandwidth(c, 0), 272U) << c;
    }
}

TEST(Sounding, GuardBetweenAntennas)
{
    EXPECT_THAT((std::vector{nrSrsGuardSymbols(0), nrSrsGuardSymbols(1), nrSrsGuardSymbols(2), nrSrsGuardSymbols(3),
                             nrSrsGuardSymbols(4)}),
                testing::ElementsAre(1, 1, 1, 2, 0));
}

// TS 38.331 ConfiguredGrantConfig: the periods in slots at each spacing, besides those of a few symbols.
TEST(Grant, PeriodsAreThoseOfTheField)
{
    const std::vector<uint32_t> atAll = {1, 2, 4, 5, 8, 10, 16, 20, 32, 40, 64, 80, 128, 160, 320, 640};
    const std::vector<std::vector<uint32_t>> more = {
        {}, {256, 1280}, {256, 512, 1280, 2560}, {256, 512, 1024, 1280, 2560, 5120}};
    for (uint32_t mu = 0; mu < 5; ++mu)
    {
        for (const int extended : {0, 1})
        {
            const uint32_t slot = extended != 0 ? 12 : 14;
            for (uint32_t symbols = 0; symbols < 14 * 6000; ++symbols)
            {
                const auto has = [&](const std::vector<uint32_t>& slots)
                {
                    return symbols % slot == 0 && std::find(slots.begin(), slots.end(), symbols / slot) != slots.end();
                };
                const bool spacing = extended != 0 ? mu == 2 : mu < 4;
                const bool allowed = spacing && (symbols == 2 || symbols == slot / 2 || has(atAll) ||
                                                 (mu < more.size() && has(more[mu])));
                ASSERT_EQ(allowed, nrGrantPeriodAllowed(mu, extended, symbols) != 0)
                    << mu << " " << extended << " " << symbols;
            }
        }
    }
}

// TS 38.211 table 6.3.3.2-1.
TEST(Prach, BlocksAreThoseOfTheTable)
{
    struct Row
    {
        uint32_t preamble; // its spacing in 10 Hz
        uint32_t khzPusch;
        uint32_t rbs;
    };
    constexpr Row rows[] = {{125, 15, 6},   {125, 30, 3},   {125, 60, 2},    {500, 15, 24},
                            {500, 30, 12},  {500, 60, 6},   {1500, 15, 12},  {1500, 30, 6},
                            {1500, 60, 3},  {3000, 15, 24}, {3000, 30, 12},  {3000, 60, 6},
                            {6000, 60, 12}, {6000, 120, 6}, {12000, 60, 24}, {12000, 120, 12}};
    for (uint32_t mu = 0; mu < 5; ++mu)
    {
        const auto of = [&](uint32_t preamble)
        {
            const auto* const row =
                std::find_if(std::begin(rows), std::end(rows),
                             [&](const Row& at) { return at.preamble == preamble && at.khzPusch == 15U << mu; });
            return row == std::end(rows) ? 0 : row->rbs;
        };
        EXPECT_EQ(of(125), nrPrachLongRbs(0, mu)) << mu;
        EXPECT_EQ(of(500), nrPrachLongRbs(1, mu)) << mu;
        for (uint32_t prach = 0; prach < 5; ++prach)
        {
            EXPECT_EQ(of(1500U << prach), nrPrachShortRbs(prach, mu)) << prach << " " << mu;
        }
    }
}

} // namespace
} // namespace test
