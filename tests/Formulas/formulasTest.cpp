// Each formula over its whole domain against a second computation that is written another way: by going through what
// the standard describes, one resource block, symbol or slot after the other.
#include "nrFormulas.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <numeric>
#include <set>
#include <vector>

namespace
{

// TS 38.214 5.1.2.2.2: each start and size has a number of its own, and there are no others.
TEST(Allocation, RivIsOneToOne)
{
    for (const uint32_t n : {1U, 2U, 11U, 24U, 51U, 106U, 273U, NR_LARGEST_CARRIER + 0U})
    {
        std::map<uint32_t, NrSpan> spans;
        for (uint32_t start = 0; start < n; ++start)
        {
            for (uint32_t size = 1; start + size <= n; ++size)
            {
                EXPECT_TRUE(spans.emplace(nrRivOf({start, size}, n), NrSpan{start, size}).second);
            }
        }
        ASSERT_EQ(n * (n + 1) / 2, spans.size());
        EXPECT_EQ(n * (n + 1) / 2 - 1, spans.rbegin()->first);
        for (const auto& [riv, wanted] : spans)
        {
            NrSpan span{};
            ASSERT_EQ(1, nrRivDecode(riv, n, &span)) << riv << " of " << n;
            EXPECT_EQ(wanted.start, span.start);
            EXPECT_EQ(wanted.size, span.size);
        }
        for (uint32_t riv = n * (n + 1) / 2; riv < n * (n + 1) / 2 + 2 * n; ++riv)
        {
            NrSpan span{7, 7};
            EXPECT_EQ(0, nrRivDecode(riv, n, &span)) << riv << " of " << n;
            EXPECT_EQ(7U, span.start);
        }
    }
    NrSpan span{};
    EXPECT_EQ(0, nrRivDecode(0, 0, &span));
    EXPECT_EQ(0, nrRivDecode(UINT32_MAX, NR_LARGEST_CARRIER, &span));
}

// The standard's own words: L - 1 <= N / 2 gives N (L - 1) + S, else N (N - L + 1) + (N - 1 - S).
TEST(Allocation, RivOfKnownBandwidthParts)
{
    EXPECT_EQ(28875U, nrRivOf({0, 106}, 275));
    EXPECT_EQ(1099U, nrRivOf({0, 273}, 275));
    EXPECT_EQ(211U, nrRivOf({0, 106}, 106)); // the usual slip: not computed with 275
    NrSpan span{};
    ASSERT_EQ(1, nrRivDecode(211, 275, &span));
    EXPECT_EQ(211U, span.start);
    EXPECT_EQ(1U, span.size);
}

TEST(Allocation, SlivHas105Values)
{
    std::set<uint32_t> values;
    for (uint32_t start = 0; start < 14; ++start)
    {
        for (uint32_t size = 1; start + size <= 14; ++size)
        {
            const uint32_t sliv = nrSlivOf({start, size});
            values.insert(sliv);
            NrSpan span{};
            ASSERT_EQ(1, nrSlivDecode(sliv, &span));
            EXPECT_EQ(start, span.start);
            EXPECT_EQ(size, span.size);
        }
    }
    EXPECT_EQ(105U, values.size());
    EXPECT_EQ(104U, *values.rbegin());
    for (uint32_t sliv = 105; sliv < 128; ++sliv)
    {
        NrSpan span{};
        EXPECT_EQ(0, nrSlivDecode(sliv, &span)) << sliv;
    }
    EXPECT_EQ(53U, nrSlivOf({2, 12}));
    EXPECT_EQ(27U, nrSlivOf({0, 14}));
}

// Common resource blocks are counted off: a subband or a group ends where its size divides the number.
uint32_t pieces(uint32_t start, uint32_t n, uint32_t size)
{
    uint32_t count = 0;
    for (uint32_t rb = start; rb < start + n; ++rb)
    {
        count += rb == start || rb % size == 0 ? 1 : 0;
    }
    return count;
}

TEST(Allocation, Subbands)
{
    for (uint32_t n = 1; n <= 275; ++n)
    {
        for (const int value2 : {0, 1})
        {
            const uint32_t size = nrSubbandSize(n, value2);
            const uint32_t wanted = n < 24 ? 0 : n <= 72 ? 4 : n <= 144 ? 8 : 16;
            ASSERT_EQ(wanted << value2, size) << n;
            for (uint32_t start = 0; size != 0 && start < 2 * size; ++start)
            {
                const uint32_t count = nrSubbands(start, n, size);
                EXPECT_EQ(pieces(start, n, size), count) << n << " from " << start;
                EXPECT_GE(count, 3U);
                EXPECT_LE(count, 19U);
            }
        }
    }
    EXPECT_EQ(0U, nrSubbandSize(276, 0));
    EXPECT_EQ(0U, nrSubbands(0, 20, 0));
}

TEST(Allocation, ResourceBlockGroups)
{
    for (uint32_t n = 1; n <= 275; ++n)
    {
        const uint32_t wanted = n <= 36 ? 2 : n <= 72 ? 4 : n <= 144 ? 8 : 16;
        EXPECT_EQ(wanted, nrRbgSize(n, 0));
        EXPECT_EQ(n <= 144 ? 2 * wanted : wanted, nrRbgSize(n, 1));
        EXPECT_EQ(pieces(5, n, wanted), nrRbgs(5, n, wanted));
    }
}

// TS 38.214 table 5.1.2.1-1, row by row.
TEST(Allocation, PdschSymbols)
{
    for (const uint32_t slot : {NR_SYMBOLS + 0U, NR_SYMBOLS_EXTENDED + 0U})
    {
        const int extended = slot == NR_SYMBOLS ? 0 : 1;
        std::set<std::pair<uint32_t, uint32_t>> ofA;
        std::set<std::pair<uint32_t, uint32_t>> ofB;
        for (uint32_t end = 1; end <= slot; ++end)
        {
            for (uint32_t start = 0; start < end; ++start)
            {
                const uint32_t length = end - start;
                if (start <= 3 && length >= 3)
                {
                    ofA.emplace(start, length);
                }
                if (length == 2 || length == 4 || length == (extended == 0 ? 7U : 6U))
                {
                    ofB.emplace(start, length);
                }
            }
        }
        for (uint32_t start = 0; start < 20; ++start)
        {
            for (uint32_t length = 0; length < 20; ++length)
            {
                EXPECT_EQ(ofA.count({start, length}), nrPdschSymbolsAllowed(0, extended, {start, length}));
                EXPECT_EQ(ofB.count({start, length}), nrPdschSymbolsAllowed(1, extended, {start, length}));
            }
        }
    }
    EXPECT_EQ(0, nrPdschSymbolsAllowed(0, 0, {1, UINT32_MAX}));
}

// TS 38.213 10.1: groups of six common resource blocks, of which all six are in the bandwidth part.
TEST(Coreset, Groups)
{
    for (uint32_t start = 0; start < 30; ++start)
    {
        for (uint32_t n = 1; n <= 275; ++n)
        {
            uint32_t count = 0;
            for (uint32_t group = 0; group < 60; ++group)
            {
                const bool isWithin = 6 * group >= start && 6 * group + 5 < start + n;
                if (isWithin)
                {
                    EXPECT_EQ(6 * group - start, nrCoresetGroupStart(start, count));
                }
                count += isWithin ? 1 : 0;
            }
            ASSERT_EQ(count, nrCoresetGroups(start, n)) << n << " from " << start;
        }
    }
}

// TS 38.211 7.3.2.2: the bundles, L REGs each, fill a table of R rows.
TEST(Coreset, Interleaver)
{
    for (uint32_t symbols = 0; symbols <= 4; ++symbols)
    {
        for (const uint32_t bundle : {2U, 3U, 6U})
        {
            const bool allowed =
                (symbols == 1 && bundle != 3) || (symbols == 2 && bundle != 3) || (symbols == 3 && bundle != 2);
            EXPECT_EQ(allowed ? 1 : 0, nrCoresetBundleFits(symbols, bundle));
            for (uint32_t groups = 1; groups <= 45; ++groups)
            {
                for (const uint32_t rows : {2U, 3U, 6U})
                {
                    uint32_t regs = 6 * groups * symbols;
                    while (regs >= bundle * rows)
                    {
                        regs -= bundle * rows;
                    }
                    EXPECT_EQ(regs == 0 ? 1 : 0, nrCoresetInterleaverFits(6 * groups, symbols, bundle, rows));
                }
            }
        }
    }
    EXPECT_EQ(0, nrCoresetInterleaverFits(42, 3, 6, 2));
    EXPECT_EQ(1, nrCoresetInterleaverFits(48, 3, 6, 2));
    EXPECT_EQ(0, nrCoresetInterleaverFits(48, 3, 0, 2));
}

TEST(Coreset, Zero)
{
    // Rows of the tables that are not reserved: TS 38.213 13-1 to 13-4, 13-7 to 13-10, then those of wide bands.
    const std::map<std::pair<uint32_t, uint32_t>, uint32_t> narrow = {
        {{0, 0}, 15}, {{0, 1}, 14}, {{1, 0}, 9}, {{1, 1}, 16}, {{3, 2}, 12}, {{3, 3}, 8}, {{4, 2}, 4}, {{4, 3}, 8}};
    for (uint32_t ssb = 0; ssb < 6; ++ssb)
    {
        for (uint32_t pdcch = 0; pdcch < 6; ++pdcch)
        {
            const auto rows = narrow.find({ssb, pdcch});
            for (uint32_t index = 0; index < 17; ++index)
            {
                NrCoreset0 coreset{};
                const bool is = nrCoreset0(ssb, pdcch, 0, index, &coreset) != 0;
                EXPECT_EQ(is, rows != narrow.end() && index < rows->second);
                if (is)
                {
                    EXPECT_TRUE(coreset.rbs == 24 || coreset.rbs == 48 || coreset.rbs == 96);
                    EXPECT_TRUE(coreset.symbols >= 1 && coreset.symbols <= 3);
                    EXPECT_TRUE(coreset.pattern >= 1 && coreset.pattern <= 3);
                    // Only a block beside the CORESET in frequency lies outside of it.
                    const uint32_t ssbRbs = 20U << ssb >> pdcch;
                    const bool isWithin =
                        coreset.offset >= 0 && static_cast<uint32_t>(coreset.offset) + ssbRbs <= coreset.rbs;
                    EXPECT_EQ(coreset.pattern == 1, isWithin) << ssb << " " << pdcch << " " << index;
                }
            }
        }
    }
    NrCoreset0 coreset{};
    ASSERT_EQ(1, nrCoreset0(1, 1, 0, 10, &coreset));
    EXPECT_EQ(48U, coreset.rbs);
    EXPECT_EQ(1U, coreset.symbols);
    EXPECT_EQ(12, coreset.offset);
    ASSERT_EQ(1, nrCoreset0(1, 1, 1, 9, &coreset));
    EXPECT_EQ(28, coreset.offset);
    EXPECT_EQ(0, nrCoreset0(1, 1, 1, 10, &coreset));
}

// The period as a fraction of milliseconds; TS 38.213 11.1 names the spacings of the short ones.
// TS 38.213 tables 10.1-2, 10.1-3.
TEST(Pdcch, LimitsOfASlot)
{
    const uint32_t candidates[] = {44, 36, 22, 20};
    const uint32_t cces[] = {56, 56, 48, 32};
    for (uint32_t mu = 0; mu < 4; ++mu)
    {
        EXPECT_EQ(candidates[mu], nrMostCandidates(mu));
        EXPECT_EQ(cces[mu], nrMostCces(mu));
    }
    EXPECT_EQ(0U, nrMostCandidates(4));
    EXPECT_EQ(0U, nrMostCces(4));
}

// A candidate begins at a multiple of its level and lies within the CORESET; in a common search space candidates that
// fit side by side do not overlap.
TEST(Pdcch, CandidatesLieWithinTheCoreset)
{
    for (uint32_t cces = 1; cces <= 135; ++cces)
    {
        for (const uint32_t level : {1U, 2U, 4U, 8U, 16U})
        {
            for (const uint32_t count : {1U, 2U, 3U, 4U, 5U, 6U, 8U})
            {
                std::set<uint32_t> starts;
                for (uint32_t m = 0; m < count; ++m)
                {
                    for (const uint32_t y : {0U, 1U, 65536U})
                    {
                        const uint32_t start = nrCandidateStart(y, m, count, level, cces);
                        EXPECT_EQ(0U, start % level);
                        EXPECT_TRUE(level > cces ? start == 0 : start + level <= cces);
                    }
                    starts.insert(nrCandidateStart(0, m, count, level, cces));
                }
                EXPECT_EQ(level > cces ? 1 : std::min(count, cces / level), starts.size())
                    << count << " of level " << level << " on " << cces;
            }
        }
    }
    // Two of level 4 on 16 CCEs stand half of it apart.
    EXPECT_EQ(8U, nrCandidateStart(0, 1, 2, 4, 16));
    EXPECT_EQ(0U, nrCandidateStart(2, 1, 2, 4, 16));
}

// TS 38.213 4.1: the first symbols of each case in the words of the standard.
TEST(Ssb, FirstSymbols)
{
    const auto symbolsOf = [](const std::vector<uint32_t>& first, uint32_t apart, const std::vector<uint32_t>& n)
    {
        std::vector<uint32_t> all;
        for (const uint32_t group : n)
        {
            for (const uint32_t symbol : first)
            {
                all.push_back(symbol + apart * group);
            }
        }
        return all;
    };
    struct Case
    {
        uint32_t mu;
        int caseB;
        std::vector<uint32_t> symbols;
    };
    const Case cases[] = {
        {0, 0, symbolsOf({2, 8}, 14, {0, 1, 2, 3})},
        {1, 1, symbolsOf({4, 8, 16, 20}, 28, {0, 1})},
        {1, 0, symbolsOf({2, 8}, 14, {0, 1, 2, 3})},
        {3, 0, symbolsOf({4, 8, 16, 20}, 28, {0, 1, 2, 3, 5, 6, 7, 8, 10, 11, 12, 13, 15, 16, 17, 18})},
        {4, 0, symbolsOf({8, 12, 16, 20, 32, 36, 40, 44}, 56, {0, 1, 2, 3, 5, 6, 7, 8})},
    };
    for (const Case& one : cases)
    {
        for (uint32_t index = 0; index < 80; ++index)
        {
            uint32_t symbol = 0;
            ASSERT_EQ(index < one.symbols.size() ? 1 : 0, nrSsbFirstSymbol(one.mu, one.caseB, index, &symbol));
            if (index < one.symbols.size())
            {
                EXPECT_EQ(one.symbols[index], symbol) << one.mu << " " << index;
            }
        }
    }
    uint32_t symbol = 0;
    EXPECT_EQ(0, nrSsbFirstSymbol(2, 0, 0, &symbol));
    EXPECT_EQ(0, nrSsbFirstSymbol(5, 0, 0, &symbol));
}

TEST(Tdd, Periods)
{
    const std::map<uint32_t, std::set<uint32_t>> allowed = {
        {4, {1, 2, 3}},  {5, {3}},           {8, {0, 1, 2, 3}},  {10, {2, 3}},       {16, {0, 1, 2, 3}},
        {20, {1, 2, 3}}, {24, {0, 1, 2, 3}}, {32, {0, 1, 2, 3}}, {40, {0, 1, 2, 3}}, {80, {0, 1, 2, 3}}};
    for (uint32_t period = 0; period < 200; ++period)
    {
        for (uint32_t mu = 0; mu < 6; ++mu)
        {
            const auto found = allowed.find(period);
            const bool is = found != allowed.end() && found->second.contains(mu);
            EXPECT_EQ(is ? 1 : 0, nrTddPeriodAllowed(period, mu)) << period << "/8 ms at mu " << mu;
            if (is)
            {
                EXPECT_EQ(period * 125 / (1000 >> mu), nrTddSlots(period, mu));
                EXPECT_EQ(0U, period * 125 % (1000 >> mu));
            }
        }
    }
    for (const auto& [first, firstMus] : allowed)
    {
        const NrTddPattern one{first, 0, 0, 0, 0};
        EXPECT_EQ(20000 % (first * 125) == 0 ? 1 : 0, nrTddFillsFrames(&one, nullptr));
        for (const auto& [second, secondMus] : allowed)
        {
            const NrTddPattern two{second, 0, 0, 0, 0};
            EXPECT_EQ(20000 % ((first + second) * 125) == 0 ? 1 : 0, nrTddFillsFrames(&one, &two));
        }
    }
}

// Paints the symbols of a pattern one by one; false where one would be painted twice or none is left for it.
bool paint(const NrTddPattern& pattern, uint32_t mu, std::vector<int>& symbols)
{
    const uint32_t slots = nrTddSlots(pattern.period, mu);
    std::vector<int> mine(std::size_t{slots} * 14, NR_SYMBOL_FLEXIBLE);
    const uint32_t down = pattern.dlSlots * 14 + pattern.dlSymbols;
    const uint32_t up = pattern.ulSlots * 14 + pattern.ulSymbols;
    if (down + up > mine.size())
    {
        return false;
    }
    std::fill_n(mine.begin(), down, NR_SYMBOL_DOWNLINK);
    std::fill_n(mine.rbegin(), up, NR_SYMBOL_UPLINK);
    symbols.insert(symbols.end(), mine.begin(), mine.end());
    return true;
}

TEST(Tdd, Sums)
{
    for (const uint32_t mu : {0U, 1U, 3U})
    {
        const uint32_t period = 16; // 2 ms
        const uint32_t slots = nrTddSlots(period, mu);
        for (uint32_t dl = 0; dl <= slots + 1; ++dl)
        {
            for (uint32_t ul = 0; ul <= slots + 1; ++ul)
            {
                for (uint32_t dlSymbols = 0; dlSymbols < 14; ++dlSymbols)
                {
                    for (uint32_t ulSymbols = 0; ulSymbols < 14; ++ulSymbols)
                    {
                        const NrTddPattern pattern{period, dl, dlSymbols, ul, ulSymbols};
                        std::vector<int> symbols;
                        const bool fits = paint(pattern, mu, symbols);
                        ASSERT_EQ(fits ? 1 : 0, nrTddFits(&pattern, mu))
                            << dl << " " << dlSymbols << " " << ul << " " << ulSymbols;
                        for (uint32_t i = 0; i < symbols.size(); ++i)
                        {
                            ASSERT_EQ(symbols[i], nrTddSymbol(&pattern, nullptr, mu, mu, i / 14, i % 14));
                        }
                    }
                }
            }
        }
    }
    const NrTddPattern none{7, 0, 0, 0, 0};
    EXPECT_EQ(0, nrTddFits(&none, 0));
    const NrTddPattern huge{80, UINT32_MAX, 0, UINT32_MAX, 0};
    EXPECT_EQ(0, nrTddFits(&huge, 3));
}

// What a slot's masks say of a symbol.
int kindIn(const NrTddSlot& slot, uint32_t symbol)
{
    EXPECT_EQ(0, slot.downlink & slot.uplink);
    EXPECT_EQ(0, (slot.downlink | slot.uplink) >> NR_SYMBOLS);
    return (slot.downlink >> symbol & 1) != 0 ? NR_SYMBOL_DOWNLINK
           : (slot.uplink >> symbol & 1) != 0 ? NR_SYMBOL_UPLINK
                                              : NR_SYMBOL_FLEXIBLE;
}

TEST(Tdd, TwoPatternsAtAFinerSpacing)
{
    const NrTddPattern first{24, 3, 6, 2, 4}; // 3 ms at 30 kHz: 6 slots
    const NrTddPattern second{16, 1, 0, 1, 13};
    std::vector<int> symbols;
    ASSERT_TRUE(paint(first, 1, symbols));
    ASSERT_TRUE(paint(second, 1, symbols));
    for (uint32_t i = 0; i < 3 * symbols.size(); ++i)
    {
        EXPECT_EQ(symbols[i % symbols.size()], nrTddSymbol(&first, &second, 1, 1, i / 14, i % 14));
        EXPECT_EQ(symbols[i % symbols.size()], kindIn(nrTddSlot(&first, &second, 1, 1, i / 14), i % 14));
        for (uint32_t half = 0; half < 2; ++half) // 60 kHz: two symbols in one
        {
            const uint32_t fine = 2 * i + half;
            EXPECT_EQ(symbols[i % symbols.size()], nrTddSymbol(&first, &second, 1, 2, fine / 14, fine % 14));
            EXPECT_EQ(symbols[i % symbols.size()], kindIn(nrTddSlot(&first, &second, 1, 2, fine / 14), fine % 14));
        }
    }
}

// TS 38.214 5.2.2.3.1, one resource block after the other: from startingRB, or the bandwidth part's first where that is
// later, nrofRBs of them unless the bandwidth part ends before.
TEST(CsiRs, BandWithinABandwidthPart)
{
    for (const NrSpan bwp : {NrSpan{0, 24}, NrSpan{2, 51}, NrSpan{50, 106}, NrSpan{3, 273}})
    {
        for (uint32_t start = 0; start < 276; start += 4)
        {
            for (uint32_t size = 24; size <= 276; size += 4)
            {
                uint32_t first = start;
                while (first < bwp.start)
                {
                    ++first;
                }
                uint32_t count = 0;
                for (uint32_t rb = first; rb < bwp.start + bwp.size && count < size; ++rb)
                {
                    ++count;
                }
                const NrSpan band = nrCsiRsBand({start, size}, bwp);
                EXPECT_EQ(count, band.size);
                EXPECT_EQ(first, band.start);
            }
        }
    }
}

// A row has ports = groups of subcarriers x groups of symbols x the size of a CDM group: TS 38.211 table 7.4.1.5.3-1.
TEST(CsiRs, RowsHaveTheirPorts)
{
    for (uint32_t number = 1; number <= 18; ++number)
    {
        const NrCsiRsRow* const row = nrCsiRsRow(number);
        ASSERT_NE(nullptr, row);
        EXPECT_EQ(number, row->row);
        const uint32_t inFrequency = row->cdm == NR_CDM_NONE ? 1 : 2;
        const uint32_t inTime = row->cdm == NR_CDM4 ? 2 : row->cdm == NR_CDM8 ? 4 : 1;
        const uint32_t symbolGroups = (row->symbols + row->secondSymbols) / inTime;
        // Row 4 repeats its bit 2 subcarriers on.
        const uint32_t frequencyGroups = row->bits * (number == 4 ? 2 : 1);
        EXPECT_EQ(row->ports, frequencyGroups * symbolGroups * inFrequency * inTime) << number;
    }
    EXPECT_EQ(nullptr, nrCsiRsRow(0));
    EXPECT_EQ(nullptr, nrCsiRsRow(19));
}

// TS 38.211 7.4.1.5.3 and the columns of its table: k_i by the bits, and what a row adds to them.
TEST(CsiRs, SubcarriersOfTheBits)
{
    for (uint32_t bits = 0; bits < 1U << 12; ++bits)
    {
        uint32_t row1 = 0;
        uint32_t row2 = 0;
        uint32_t row4 = 0;
        uint32_t other = 0;
        for (uint32_t i = 0; i < 12; ++i)
        {
            if ((bits >> i & 1) == 0)
            {
                continue;
            }
            row2 |= 1U << i;
            row1 |= i < 4 ? 1U << i | 1U << (i + 4) | 1U << (i + 8) : 0;
            for (const uint32_t k : {0U, 1U, 2U, 3U}) // groups at k_0 and k_0 + 2, of two subcarriers
            {
                row4 |= i < 3 ? 1U << (4 * i + k) : 0;
            }
            other |= i < 6 ? 3U << 2 * i : 0;
        }
        EXPECT_EQ(row2, nrCsiRsSubcarriers(NR_CSI_RS_ROW2, bits));
        if (bits < 1U << 4)
        {
            EXPECT_EQ(row1, nrCsiRsSubcarriers(NR_CSI_RS_ROW1, bits));
        }
        if (bits < 1U << 3)
        {
            EXPECT_EQ(row4, nrCsiRsSubcarriers(NR_CSI_RS_ROW4, bits));
        }
        if (bits < 1U << 6)
        {
            EXPECT_EQ(other, nrCsiRsSubcarriers(NR_CSI_RS_OTHER, bits));
        }
        EXPECT_EQ(0U, nrCsiRsSubcarriers(0, bits));
        EXPECT_EQ(0U, nrCsiRsSubcarriers(5, bits));
    }
}

TEST(CsiRs, RowsAreToldApart)
{
    std::map<uint32_t, uint32_t> found;
    for (uint32_t branch = 0; branch <= 5; ++branch)
    {
        for (uint32_t bits = 0; bits <= 12; ++bits)
        {
            for (const uint32_t ports : {1U, 2U, 4U, 8U, 12U, 16U, 24U, 32U})
            {
                for (uint32_t cdm = 0; cdm <= 4; ++cdm)
                {
                    for (uint32_t density = 0; density <= 4; ++density)
                    {
                        const NrCsiRsRow* const row = nrCsiRsRowOf(branch, bits, ports, cdm, density);
                        if (row != nullptr)
                        {
                            ++found[row->row];
                            EXPECT_EQ(row->row == 1, density == NR_CSI_RS_THREE);
                            EXPECT_EQ(ports, row->ports);
                        }
                    }
                }
            }
        }
    }
    // Two densities: 2, 3 and from 11 on.
    for (uint32_t number = 1; number <= 18; ++number)
    {
        EXPECT_EQ(number == 2 || number == 3 || number >= 11 ? 2U : 1U, found[number]) << number;
    }
}

// TS 38.211 table 6.4.1.4.3-1: each level divides the one above, all are multiples of four.
TEST(Srs, BandwidthsDivide)
{
    uint32_t widest = 0;
    for (uint32_t c = 0; c < 64; ++c)
    {
        EXPECT_EQ(1U, nrSrsParts(c, 0));
        EXPECT_EQ(c == 36 ? 12U : c == 55 ? 8U : 4U, nrSrsBandwidth(c, 3)) << c;
        EXPECT_GE(nrSrsBandwidth(c, 0), widest); // wider and wider
        widest = nrSrsBandwidth(c, 0);
        for (uint32_t b = 0; b < 4; ++b)
        {
            EXPECT_EQ(0U, nrSrsBandwidth(c, b) % 4);
            if (b > 0)
            {
                EXPECT_EQ(nrSrsBandwidth(c, b - 1), nrSrsBandwidth(c, b) * nrSrsParts(c, b)) << c << " " << b;
            }
        }
    }
    EXPECT_EQ(272U, widest);
    EXPECT_EQ(4U, nrSrsBandwidth(0, 0));
    EXPECT_EQ(0U, nrSrsBandwidth(64, 0));
    EXPECT_EQ(0U, nrSrsBandwidth(0, 4));
    EXPECT_EQ(0U, nrSrsParts(64, 1));
}

// Symbols of a PUCCH of format 1 that are no DM-RS: every second one, of each hop that of TS 38.211 6.3.2.4.1.
TEST(Pucch, Format1Sequences)
{
    for (uint32_t symbols = 0; symbols <= 16; ++symbols)
    {
        uint32_t all = 0;
        uint32_t hops[2] = {0, 0};
        for (uint32_t i = 0; i < symbols; ++i)
        {
            all += i % 2;
            hops[i < symbols / 2 ? 0 : 1] += i % 2;
        }
        const bool is = symbols >= 4 && symbols <= 14;
        EXPECT_EQ(is ? all : 0, nrPucchF1Sequences(symbols, 0)) << symbols;
        EXPECT_EQ(is ? std::min(hops[0], hops[1]) : 0, nrPucchF1Sequences(symbols, 1)) << symbols;
    }
}

TEST(Pucch, DftSizes)
{
    std::set<uint32_t> sizes;
    for (uint32_t a = 1; a <= 300; a *= 2)
    {
        for (uint32_t b = a; b <= 300; b *= 3)
        {
            for (uint32_t c = b; c <= 300; c *= 5)
            {
                sizes.insert(c);
            }
        }
    }
    for (uint32_t n = 0; n <= 300; ++n)
    {
        EXPECT_EQ(sizes.contains(n) ? 1 : 0, nrIsDftSize(n)) << n;
    }
}

// TS 38.331 SchedulingRequestResourceConfig: the periods of all spacings are powers of two and their multiples of five
// slots, from 1 slot to 80 ms, with the exceptions that it names.
TEST(Periods, SchedulingRequest)
{
    const std::set<uint32_t> missing[] = {{}, {}, {5, 10}, {20}};
    for (uint32_t mu = 0; mu < 4; ++mu)
    {
        std::set<uint32_t> allowed;
        for (const uint32_t slots : {1U, 2U, 4U, 5U, 8U, 10U, 16U, 20U, 40U, 80U, 160U, 320U, 640U})
        {
            if (slots <= 80U << mu && !missing[mu].contains(slots))
            {
                allowed.insert(slots);
            }
        }
        for (uint32_t slots = 0; slots < 1300; ++slots)
        {
            EXPECT_EQ(allowed.contains(slots) ? 1 : 0, nrSrPeriodAllowed(mu, slots)) << slots << " at mu " << mu;
            if (nrSrPeriodNeedsCapability(mu, slots) != 0)
            {
                EXPECT_TRUE(allowed.contains(slots));
            }
        }
    }
    EXPECT_EQ(0, nrSrPeriodAllowed(4, 1));
}

TEST(Periods, ConfiguredGrant)
{
    const uint32_t slots[] = {1,  2,   4,   5,   8,   10,  16,  20,   32,   40,   64,
                              80, 128, 160, 256, 320, 512, 640, 1024, 1280, 2560, 5120};
    // The longest of each spacing, and those below it that it does not have.
    const uint32_t longest[] = {640, 1280, 2560, 5120};
    const std::set<uint32_t> missing[] = {{256, 512}, {512, 1024}, {1024}, {}};
    for (uint32_t mu = 0; mu < 4; ++mu)
    {
        for (const int extended : {0, 1})
        {
            std::set<uint32_t> allowed = {2, extended != 0 ? 6U : 7U};
            for (const uint32_t n : slots)
            {
                if (n <= longest[mu] && !missing[mu].contains(n))
                {
                    allowed.insert(n * (extended != 0 ? 12 : 14));
                }
            }
            for (uint32_t symbols = 1; symbols < 5200 * 14; ++symbols)
            {
                const bool is = allowed.contains(symbols) && (extended == 0 || mu == 2);
                ASSERT_EQ(is ? 1 : 0, nrGrantPeriodAllowed(mu, extended, symbols)) << symbols << " at mu " << mu;
            }
        }
    }
}

// A preamble takes subcarriers x spacing, rounded up to blocks of the PUSCH: TS 38.211 table 6.3.3.2-1.
TEST(Prach, Widths)
{
    const auto blocks = [](double khz, uint32_t mu)
    {
        return static_cast<uint32_t>(std::ceil(khz / (12.0 * (15U << mu))));
    };
    for (uint32_t mu = 0; mu < 3; ++mu)
    {
        EXPECT_EQ(blocks(839 * 1.25, mu), nrPrachLongRbs(0, mu));
        EXPECT_EQ(blocks(839 * 5.0, mu), nrPrachLongRbs(1, mu));
        for (uint32_t prach = 0; prach < 2; ++prach)
        {
            EXPECT_EQ(blocks(139.0 * (15U << prach), mu), nrPrachShortRbs(prach, mu));
        }
    }
    for (uint32_t mu = 2; mu < 4; ++mu)
    {
        for (uint32_t prach = 2; prach < 4; ++prach)
        {
            EXPECT_EQ(blocks(139.0 * (15U << prach), mu), nrPrachShortRbs(prach, mu));
        }
    }
    EXPECT_EQ(0U, nrPrachShortRbs(0, 3));
    EXPECT_EQ(0U, nrPrachShortRbs(4, 0));
    EXPECT_EQ(0U, nrPrachLongRbs(0, 3));
}

TEST(Prach, Formats)
{
    for (uint32_t index = 0; index < 256; ++index)
    {
        EXPECT_EQ(index < 87 ? 1 : 0, nrPrachIsLong(0, 0, index));
        EXPECT_EQ(index < 67 ? 1 : 0, nrPrachIsLong(0, 1, index));
        EXPECT_EQ(0, nrPrachIsLong(1, 1, index));
        EXPECT_EQ(index >= 60 && index <= 86 ? 1 : 0, nrPrachIsFormat3(0, 0, index));
        EXPECT_EQ(index >= 40 && index <= 66 ? 1 : 0, nrPrachIsFormat3(0, 1, index));
    }
}

// A carrier leaves room for its guard bands: TS 38.101-1 and -2, table 5.3.2-1.
TEST(Bands, ChannelsHoldTheirCarriers)
{
    for (const int fr2 : {0, 1})
    {
        for (uint32_t mu = 0; mu < 5; ++mu)
        {
            uint32_t last = 0;
            uint32_t count = 0;
            for (uint32_t n = 0; n <= 275; ++n)
            {
                const uint32_t mhz = nrChannelMhz(fr2, mu, n);
                if (mhz == 0)
                {
                    continue;
                }
                ++count;
                const uint32_t khz = n * 12 * (15U << mu);
                EXPECT_LT(khz, mhz * 1000);
                EXPECT_GT(khz, mhz * 1000 * 3 / 4);
                EXPECT_GT(mhz, last);
                last = mhz;
            }
            const uint32_t wanted[2][5] = {{8, 13, 12, 0, 0}, {0, 0, 3, 4, 0}};
            EXPECT_EQ(wanted[fr2][mu], count) << "FR" << fr2 + 1 << " mu " << mu;
        }
    }
    EXPECT_EQ(40U, nrChannelMhz(0, 1, 106));
    EXPECT_EQ(100U, nrChannelMhz(0, 1, 273));
    EXPECT_EQ(100U, nrChannelMhz(1, 3, 66));
}

TEST(Bands, AreAsTheStandardSays)
{
    uint32_t count = 0;
    for (uint32_t number = 0; number <= 1024; ++number)
    {
        const NrBand* const band = nrBand(number);
        if (band == nullptr)
        {
            continue;
        }
        ++count;
        EXPECT_EQ(number, band->number);
        EXPECT_EQ(number > 256 ? 1 : 0, band->fr2);
        EXPECT_EQ(band->duplex == NR_SDL, band->ulHighKhz == 0);
        EXPECT_EQ(band->duplex == NR_SUL, band->dlHighKhz == 0);
        EXPECT_LE(band->ulLowKhz, band->ulHighKhz);
        EXPECT_LE(band->dlLowKhz, band->dlHighKhz);
        if (band->duplex == NR_TDD)
        {
            EXPECT_EQ(band->ulLowKhz, band->dlLowKhz);
            EXPECT_EQ(band->ulHighKhz, band->dlHighKhz);
        }
        if (band->duplex == NR_FDD)
        {
            // What is paired is of the same width, but for n66 and n70.
            const uint32_t up = band->ulHighKhz - band->ulLowKhz;
            const uint32_t down = band->dlHighKhz - band->dlLowKhz;
            EXPECT_EQ(number != 66 && number != 70, up == down) << number;
        }
        EXPECT_EQ(band->duplex == NR_SUL, band->ssbMus == 0);
        EXPECT_EQ(band->fr2 != 0, (band->ssbMus & 0x18U) != 0);
        EXPECT_EQ((band->ssbMus >> 1 & 1) != 0, band->hasCaseB != 0 || band->hasCaseC != 0);
    }
    EXPECT_EQ(36U, count);
    EXPECT_EQ(NR_TDD, nrBand(78)->duplex);
    EXPECT_EQ(40U, nrBand(79)->leastMhz);
}

// TS 38.104 5.4.2.1: from the first to the last number the frequency grows by the step of its part.
TEST(Bands, GlobalRaster)
{
    EXPECT_EQ(0U, nrArfcnKhz(0));
    EXPECT_EQ(2999995U, nrArfcnKhz(599999));
    EXPECT_EQ(3000000U, nrArfcnKhz(600000));
    EXPECT_EQ(24249990U, nrArfcnKhz(2016666));
    EXPECT_EQ(24250080U, nrArfcnKhz(2016667));
    EXPECT_EQ(99999960U, nrArfcnKhz(3279165));
    EXPECT_EQ(0U, nrArfcnKhz(3279166));
    for (uint32_t arfcn = 1; arfcn <= 3279165; ++arfcn)
    {
        const uint32_t step = nrArfcnKhz(arfcn) - nrArfcnKhz(arfcn - 1);
        const uint32_t wanted = arfcn <= 600000 ? 5 : arfcn <= 2016666 ? 15 : arfcn == 2016667 ? 90 : 60;
        ASSERT_EQ(wanted, step) << arfcn;
    }
}

TEST(Bands, SynchronisationRaster)
{
    std::set<uint32_t> raster;
    for (uint32_t n = 1; n <= 2499; ++n)
    {
        for (const uint32_t m : {1U, 3U, 5U})
        {
            raster.insert(n * 1200 + m * 50);
        }
    }
    for (uint32_t n = 0; n <= 14756; ++n)
    {
        raster.insert(3000000 + n * 1440);
    }
    for (uint32_t n = 0; n <= 4383; ++n)
    {
        raster.insert(24250080 + n * 17280);
    }
    for (uint32_t khz = 0; khz <= 100100000; khz += 10)
    {
        if ((nrIsOnSyncRaster(khz) != 0) != raster.contains(khz))
        {
            FAIL() << khz;
        }
    }
}

} // namespace
