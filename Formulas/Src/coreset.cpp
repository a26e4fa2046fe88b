#include "nrFormulas.h"

#include <iterator>

namespace
{

constexpr uint32_t groupRbs = 6;

struct Table
{
    uint32_t muSsb;
    uint32_t muPdcch;
    bool wide;
    uint32_t rows;
    NrCoreset0 row[16];
};

// TS 38.213 tables 13-1 to 13-10, in their order.
constexpr Table tables[] = {
    {0,
     0,
     false,
     15,
     {{1, 24, 2, 0},
      {1, 24, 2, 2},
      {1, 24, 2, 4},
      {1, 24, 3, 0},
      {1, 24, 3, 2},
      {1, 24, 3, 4},
      {1, 48, 1, 12},
      {1, 48, 1, 16},
      {1, 48, 2, 12},
      {1, 48, 2, 16},
      {1, 48, 3, 12},
      {1, 48, 3, 16},
      {1, 96, 1, 38},
      {1, 96, 2, 38},
      {1, 96, 3, 38}}},
    {0,
     1,
     false,
     14,
     {{1, 24, 2, 5},
      {1, 24, 2, 6},
      {1, 24, 2, 7},
      {1, 24, 2, 8},
      {1, 24, 3, 5},
      {1, 24, 3, 6},
      {1, 24, 3, 7},
      {1, 24, 3, 8},
      {1, 48, 1, 18},
      {1, 48, 1, 20},
      {1, 48, 2, 18},
      {1, 48, 2, 20},
      {1, 48, 3, 18},
      {1, 48, 3, 20}}},
    {1,
     0,
     false,
     9,
     {{1, 48, 1, 2},
      {1, 48, 1, 6},
      {1, 48, 2, 2},
      {1, 48, 2, 6},
      {1, 48, 3, 2},
      {1, 48, 3, 6},
      {1, 96, 1, 28},
      {1, 96, 2, 28},
      {1, 96, 3, 28}}},
    {1,
     1,
     false,
     16,
     {{1, 24, 2, 0},
      {1, 24, 2, 1},
      {1, 24, 2, 2},
      {1, 24, 2, 3},
      {1, 24, 2, 4},
      {1, 24, 3, 0},
      {1, 24, 3, 1},
      {1, 24, 3, 2},
      {1, 24, 3, 3},
      {1, 24, 3, 4},
      {1, 48, 1, 12},
      {1, 48, 1, 14},
      {1, 48, 1, 16},
      {1, 48, 2, 12},
      {1, 48, 2, 14},
      {1, 48, 2, 16}}},
    {1,
     0,
     true,
     9,
     {{1, 48, 1, 4},
      {1, 48, 2, 4},
      {1, 48, 3, 4},
      {1, 96, 1, 0},
      {1, 96, 1, 56},
      {1, 96, 2, 0},
      {1, 96, 2, 56},
      {1, 96, 3, 0},
      {1, 96, 3, 56}}},
    {1,
     1,
     true,
     10,
     {{1, 24, 2, 0},
      {1, 24, 2, 4},
      {1, 24, 3, 0},
      {1, 24, 3, 4},
      {1, 48, 1, 0},
      {1, 48, 1, 28},
      {1, 48, 2, 0},
      {1, 48, 2, 28},
      {1, 48, 3, 0},
      {1, 48, 3, 28}}},
    {3,
     2,
     false,
     12,
     {{1, 48, 1, 0},
      {1, 48, 1, 8},
      {1, 48, 2, 0},
      {1, 48, 2, 8},
      {1, 48, 3, 0},
      {1, 48, 3, 8},
      {1, 96, 1, 28},
      {1, 96, 2, 28},
      {2, 48, 1, -41},
      {2, 48, 1, 49},
      {2, 96, 1, -41},
      {2, 96, 1, 97}}},
    {3,
     3,
     false,
     8,
     {{1, 24, 2, 0},
      {1, 24, 2, 4},
      {1, 48, 1, 14},
      {1, 48, 2, 14},
      {3, 24, 2, -20},
      {3, 24, 2, 24},
      {3, 48, 2, -20},
      {3, 48, 2, 48}}},
    {4, 2, false, 4, {{1, 96, 1, 0}, {1, 96, 1, 16}, {1, 96, 2, 0}, {1, 96, 2, 16}}},
    {4,
     3,
     false,
     8,
     {{1, 48, 1, 0},
      {1, 48, 1, 8},
      {1, 48, 2, 0},
      {1, 48, 2, 8},
      {2, 24, 1, -41},
      {2, 24, 1, 25},
      {2, 48, 1, -41},
      {2, 48, 1, 49}}},
};

} // namespace

uint32_t nrCoresetGroupStart(uint32_t bwpStart, uint32_t group)
{
    const uint32_t first = (bwpStart + groupRbs - 1) / groupRbs * groupRbs;
    return first - bwpStart + groupRbs * group;
}

uint32_t nrCoresetGroups(uint32_t bwpStart, uint32_t bwpSize)
{
    const uint32_t lost = nrCoresetGroupStart(bwpStart, 0);
    return bwpSize < lost ? 0 : (bwpSize - lost) / groupRbs;
}

int nrCoresetBundleFits(uint32_t symbols, uint32_t bundle)
{
    switch (symbols)
    {
    case 1:
        return bundle == 2 || bundle == 6 ? 1 : 0;
    case 2:
    case 3:
        return bundle == symbols || bundle == 6 ? 1 : 0;
    default:
        return 0;
    }
}

int nrCoresetInterleaverFits(uint32_t rbs, uint32_t symbols, uint32_t bundle, uint32_t rows)
{
    return bundle != 0 && rows != 0 && rbs * symbols % (bundle * rows) == 0 ? 1 : 0;
}

uint32_t nrMostCandidates(uint32_t mu)
{
    static constexpr uint32_t most[] = {44, 36, 22, 20};
    return mu < 4 ? most[mu] : 0;
}

uint32_t nrMostCces(uint32_t mu)
{
    static constexpr uint32_t most[] = {56, 56, 48, 32};
    return mu < 4 ? most[mu] : 0;
}

uint32_t nrCandidateStart(uint32_t y, uint32_t m, uint32_t candidates, uint32_t level, uint32_t cces)
{
    if (level == 0 || candidates == 0 || cces < level)
    {
        return 0;
    }
    const uint32_t apart = m * cces / (level * candidates);
    return level * ((y + apart) % (cces / level));
}

int nrCoreset0(uint32_t muSsb, uint32_t muPdcch, int wide, uint32_t index, NrCoreset0* coreset)
{
    for (const Table& table : tables)
    {
        if (table.muSsb == muSsb && table.muPdcch == muPdcch && table.wide == (wide != 0))
        {
            if (index < table.rows)
            {
                *coreset = table.row[index];
            }
            return index < table.rows ? 1 : 0;
        }
    }
    return 0;
}
