// Reference signals: CSI-RS and sounding; SS/PBCH blocks.
#include "nrFormulas.h"

namespace
{

constexpr NrCsiRsRow rows[] = {
    {1, 1, NR_CSI_RS_ROW1, 1, NR_CDM_NONE, 0, 1, 0},   {2, 1, NR_CSI_RS_ROW2, 1, NR_CDM_NONE, 1, 1, 0},
    {3, 2, NR_CSI_RS_OTHER, 1, NR_FD_CDM2, 1, 1, 0},   {4, 4, NR_CSI_RS_ROW4, 1, NR_FD_CDM2, 0, 1, 0},
    {5, 4, NR_CSI_RS_OTHER, 1, NR_FD_CDM2, 0, 2, 0},   {6, 8, NR_CSI_RS_OTHER, 4, NR_FD_CDM2, 0, 1, 0},
    {7, 8, NR_CSI_RS_OTHER, 2, NR_FD_CDM2, 0, 2, 0},   {8, 8, NR_CSI_RS_OTHER, 2, NR_CDM4, 0, 2, 0},
    {9, 12, NR_CSI_RS_OTHER, 6, NR_FD_CDM2, 0, 1, 0},  {10, 12, NR_CSI_RS_OTHER, 3, NR_CDM4, 0, 2, 0},
    {11, 16, NR_CSI_RS_OTHER, 4, NR_FD_CDM2, 1, 2, 0}, {12, 16, NR_CSI_RS_OTHER, 4, NR_CDM4, 1, 2, 0},
    {13, 24, NR_CSI_RS_OTHER, 3, NR_FD_CDM2, 1, 2, 2}, {14, 24, NR_CSI_RS_OTHER, 3, NR_CDM4, 1, 2, 2},
    {15, 24, NR_CSI_RS_OTHER, 3, NR_CDM8, 1, 4, 0},    {16, 32, NR_CSI_RS_OTHER, 4, NR_FD_CDM2, 1, 2, 2},
    {17, 32, NR_CSI_RS_OTHER, 4, NR_CDM4, 1, 2, 2},    {18, 32, NR_CSI_RS_OTHER, 4, NR_CDM8, 1, 4, 0},
};
constexpr uint32_t rbSubcarriers = 12;
constexpr uint32_t rowCount = sizeof rows / sizeof rows[0];

bool allows(const NrCsiRsRow& row, uint32_t density)
{
    switch (density)
    {
    case NR_CSI_RS_HALF:
        return row.half != 0;
    case NR_CSI_RS_ONE:
        return row.row != 1;
    case NR_CSI_RS_THREE:
        return row.row == 1;
    default:
        return false;
    }
}

// m_SRS,b for b = 0..3 of each c-SRS.
// clang-format off
constexpr uint16_t soundings[64][4] = {
    {4, 4, 4, 4}, {8, 4, 4, 4}, {12, 4, 4, 4}, {16, 4, 4, 4}, {16, 8, 4, 4}, {20, 4, 4, 4}, {24, 4, 4, 4},
    {24, 12, 4, 4}, {28, 4, 4, 4}, {32, 16, 8, 4}, {36, 12, 4, 4}, {40, 20, 4, 4}, {48, 16, 8, 4}, {48, 24, 12, 4},
    {52, 4, 4, 4}, {56, 28, 4, 4}, {60, 20, 4, 4}, {64, 32, 16, 4}, {72, 24, 12, 4}, {72, 36, 12, 4}, {76, 4, 4, 4},
    {80, 40, 20, 4}, {88, 44, 4, 4}, {96, 32, 16, 4}, {96, 48, 24, 4}, {104, 52, 4, 4}, {112, 56, 28, 4},
    {120, 60, 20, 4}, {120, 40, 8, 4}, {120, 24, 12, 4}, {128, 64, 32, 4}, {128, 64, 16, 4}, {128, 16, 8, 4},
    {132, 44, 4, 4}, {136, 68, 4, 4}, {144, 72, 36, 4}, {144, 48, 24, 12}, {144, 48, 16, 4}, {144, 16, 8, 4},
    {152, 76, 4, 4}, {160, 80, 40, 4}, {160, 80, 20, 4}, {160, 32, 16, 4}, {168, 84, 28, 4}, {176, 88, 44, 4},
    {184, 92, 4, 4}, {192, 96, 48, 4}, {192, 96, 24, 4}, {192, 64, 16, 4}, {192, 24, 8, 4}, {208, 104, 52, 4},
    {216, 108, 36, 4}, {224, 112, 56, 4}, {240, 120, 60, 4}, {240, 80, 20, 4}, {240, 48, 16, 8}, {240, 24, 12, 4},
    {256, 128, 64, 4}, {256, 128, 32, 4}, {256, 16, 8, 4}, {264, 132, 44, 4}, {272, 136, 68, 4}, {272, 68, 4, 4},
    {272, 16, 8, 4},
};
// clang-format on

} // namespace

const NrCsiRsRow* nrCsiRsRow(uint32_t row)
{
    return row >= 1 && row <= rowCount ? &rows[row - 1] : nullptr;
}

const NrCsiRsRow* nrCsiRsRowOf(uint32_t branch, uint32_t bits, uint32_t ports, uint32_t cdm, uint32_t density)
{
    for (const NrCsiRsRow& row : rows)
    {
        if (row.branch == branch && row.bits == bits && row.ports == ports && row.cdm == cdm && allows(row, density))
        {
            return &row;
        }
    }
    return nullptr;
}

uint32_t nrCsiRsSubcarriers(uint32_t branch, uint32_t bits)
{
    if (branch < NR_CSI_RS_ROW1 || branch > NR_CSI_RS_OTHER)
    {
        return 0;
    }
    // What one bit stands for, and how far apart the subcarriers are that bits stand for.
    const uint32_t taken = branch == NR_CSI_RS_ROW1   ? 0x111
                           : branch == NR_CSI_RS_ROW2 ? 0x1
                           : branch == NR_CSI_RS_ROW4 ? 0xF
                                                      : 0x3;
    const uint32_t apart = branch == NR_CSI_RS_ROW4 ? 4 : branch == NR_CSI_RS_OTHER ? 2 : 1;
    uint32_t subcarriers = 0;
    for (uint32_t i = 0; i * apart < rbSubcarriers; ++i)
    {
        subcarriers |= (bits >> i & 1) != 0 ? taken << i * apart : 0;
    }
    return subcarriers & ((1U << rbSubcarriers) - 1);
}

NrSpan nrCsiRsBand(NrSpan configured, NrSpan bwp)
{
    const uint32_t first = configured.start < bwp.start ? bwp.start : configured.start;
    const uint32_t end = bwp.start + bwp.size;
    const uint32_t room = first < end ? end - first : 0;
    return {first, configured.size < room ? configured.size : room};
}

uint32_t nrSrsBandwidth(uint32_t cSrs, uint32_t bSrs)
{
    return cSrs < 64 && bSrs < 4 ? soundings[cSrs][bSrs] : 0;
}

NrSpan nrSrsSpan(uint32_t cSrs, uint32_t bSrs, uint32_t bHop, uint32_t position)
{
    // Below bHop the place is fixed, from there on the hops take each part in turn.
    const uint32_t fixed = bHop < bSrs ? bHop : bSrs;
    NrSpan span = {0, nrSrsBandwidth(cSrs, fixed)};
    for (uint32_t b = 1; b <= fixed && span.size != 0; ++b)
    {
        const uint32_t part = nrSrsBandwidth(cSrs, b);
        span.start += part * (4 * position / part % nrSrsParts(cSrs, b));
    }
    return span;
}

NrSpan nrSrsPlace(uint32_t cSrs, uint32_t bSrs, uint32_t bHop, uint32_t position, uint32_t n)
{
    NrSpan place = nrSrsSpan(cSrs, bSrs, bHop, position);
    uint32_t before = 1; // product of the parts from bHop on, without those of bHop and of b
    for (uint32_t b = bHop + 1; bHop < bSrs && b <= bSrs && place.size != 0; ++b)
    {
        const uint32_t part = nrSrsBandwidth(cSrs, b);
        const uint32_t parts = nrSrsParts(cSrs, b);
        if (parts == 0)
        {
            return {0, 0};
        }
        const uint32_t within = n % (before * parts);
        const uint32_t hop =
            parts % 2 == 0 ? parts / 2 * (within / before) + within / (2 * before) : parts / 2 * (n / before);
        place.start += part * ((hop + 4 * position / part) % parts);
        place.size = part;
        before *= parts;
    }
    return place;
}

uint32_t nrSrsHops(uint32_t cSrs, uint32_t bSrs, uint32_t bHop)
{
    uint32_t hops = nrSrsBandwidth(cSrs, bSrs) == 0 ? 0 : 1;
    for (uint32_t b = bHop + 1; bHop < bSrs && b <= bSrs; ++b)
    {
        hops *= nrSrsParts(cSrs, b);
    }
    return hops;
}

uint32_t nrSrsReference(uint32_t bwpStart, uint32_t shift)
{
    return bwpStart <= shift ? 0 : bwpStart;
}

uint32_t nrSrsSubcarriers(uint32_t comb, uint32_t offset, uint32_t cyclicShift, uint32_t ports)
{
    if (comb != 2 && comb != 4)
    {
        return 0;
    }
    const uint32_t half = comb == 2 ? 4 : 6; // of the cyclic shifts that there are
    const bool isOnTwo = ports == 4 && cyclicShift >= half;
    uint32_t subcarriers = 0;
    for (uint32_t k = 0; k < rbSubcarriers; ++k)
    {
        const bool isTaken = k % comb == offset % comb || (isOnTwo && k % comb == (offset + comb / 2) % comb);
        subcarriers |= isTaken ? 1U << k : 0;
    }
    return subcarriers;
}

uint32_t nrSrsGuardSymbols(uint32_t mu)
{
    return mu > 3 ? 0 : mu == 3 ? 2 : 1;
}

uint32_t nrSrsParts(uint32_t cSrs, uint32_t bSrs)
{
    const uint32_t part = nrSrsBandwidth(cSrs, bSrs);
    return part == 0 ? 0 : bSrs == 0 ? 1 : nrSrsBandwidth(cSrs, bSrs - 1) / part;
}

int nrSsbFirstSymbol(uint32_t mu, int caseB, uint32_t index, uint32_t* symbol)
{
    static constexpr uint32_t oneSlot[] = {2, 8};                            // cases A, C
    static constexpr uint32_t twoSlots[] = {4, 8, 16, 20};                   // cases B, D
    static constexpr uint32_t fourSlots[] = {8, 12, 16, 20, 32, 36, 40, 44}; // case E
    constexpr uint32_t blocksInFr1 = 8;
    constexpr uint32_t blocksInFr2 = 64;
    // In FR2 every fifth group stays free.
    const auto group = [](uint32_t number)
    {
        return number + number / 4;
    };
    if (mu == 0 || (mu == 1 && caseB == 0))
    {
        *symbol = oneSlot[index % 2] + NR_SYMBOLS * (index / 2);
        return index < blocksInFr1 ? 1 : 0;
    }
    if (mu == 1)
    {
        *symbol = twoSlots[index % 4] + 2 * NR_SYMBOLS * (index / 4);
        return index < blocksInFr1 ? 1 : 0;
    }
    if (mu == 3)
    {
        *symbol = twoSlots[index % 4] + 2 * NR_SYMBOLS * group(index / 4);
        return index < blocksInFr2 ? 1 : 0;
    }
    if (mu == 4)
    {
        *symbol = fourSlots[index % 8] + 4 * NR_SYMBOLS * group(index / 8);
        return index < blocksInFr2 ? 1 : 0;
    }
    return 0;
}
