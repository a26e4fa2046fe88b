// Formulas and tables of the 38.2xx and 38.101 standards (Release 15) that configuration values are judged, explained
// and drawn by. Pure functions: no state, no memory, any argument is safe. Valid C11 and C++20.
//
// mu is log2(subcarrier spacing / 15 kHz): 0..3 for 15..120 kHz, 4 for 240 kHz. N is a number of resource blocks. A
// function that answers yes or no returns 1 or 0.
#ifndef NRFORMULAS_H
#define NRFORMULAS_H

#include <stdint.h>

#ifdef __cplusplus
extern "C"
{
#endif

#pragma GCC visibility push(default)

#define NR_LARGEST_CARRIER 275 // resource blocks; what locationAndBandwidth of a bandwidth part is computed with
#define NR_SYMBOLS 14          // of a slot with normal cyclic prefix
#define NR_SYMBOLS_EXTENDED 12 // and with extended

// Consecutive resource blocks, symbols or slots.
typedef struct NrSpan
{
    uint32_t start;
    uint32_t size;
} NrSpan;

// Resource indication value (TS 38.214 5.1.2.2.2, 6.1.2.2.2): `size` blocks from `start` among `n`. nrRivOf needs
// 1 <= size, start + size <= n. nrRivDecode returns 0, and leaves *span alone, where the value is none of n.
uint32_t nrRivOf(NrSpan span, uint32_t n);
int nrRivDecode(uint32_t riv, uint32_t n, NrSpan* span);

// Start and length indicator (TS 38.214 5.1.2.1, 6.1.2.1): 0..104. nrSlivDecode returns 0 for what no pair of symbols
// of a slot encodes to.
uint32_t nrSlivOf(NrSpan span);
int nrSlivDecode(uint32_t sliv, NrSpan* span);

// frequencyDomainResources (TS 38.213 10.1): each bit is a group of 6 resource blocks; the first group begins at the
// first common resource block that is a multiple of 6 within the bandwidth part, whose first one is `bwpStart`, counted
// from point A. Groups that fit into a bandwidth part, and the first resource block of one, counted from the bandwidth
// part's first.
uint32_t nrCoresetGroups(uint32_t bwpStart, uint32_t bwpSize);
uint32_t nrCoresetGroupStart(uint32_t bwpStart, uint32_t group);

// Interleaved CCE-to-REG mapping (TS 38.211 7.3.2.2) of a CORESET of `rbs` resource blocks and `symbols` symbols: is
// the REG bundle size one of its duration, and do the bundles fill the interleaver's rows?
int nrCoresetBundleFits(uint32_t symbols, uint32_t bundle);
int nrCoresetInterleaverFits(uint32_t rbs, uint32_t symbols, uint32_t bundle, uint32_t rows);

// PDSCH symbols (TS 38.214 table 5.1.2.1-1): whether mapping type A, or B, may start and last so. A start at symbol 3
// with type A also needs dmrs-TypeA-Position pos3.
int nrPdschSymbolsAllowed(int typeB, int extendedPrefix, NrSpan symbols);

// CORESET#0 (TS 38.213 tables 13-1 to 13-10).
typedef struct NrCoreset0
{
    uint32_t pattern; // multiplexing with the SS/PBCH block, 1..3
    uint32_t rbs;     // 24, 48, 96
    uint32_t symbols; // 1..3
    int32_t offset;   // resource blocks from its first one up to the one in which the SS/PBCH block begins
} NrCoreset0;
// controlResourceSetZero for spacings of the SS/PBCH block and of PDCCH; `wide` for bands whose least channel bandwidth
// is 40 MHz. With patterns 2 and 3 a negative offset holds for k_SSB = 0 and is one less for others. 0 where the index
// is reserved or the pair of spacings has no table.
int nrCoreset0(uint32_t muSsb, uint32_t muPdcch, int wide, uint32_t index, NrCoreset0* coreset);

// Limits of a slot (TS 38.213 tables 10.1-2, 10.1-3): PDCCH candidates and non-overlapping CCEs of a serving cell that
// a UE monitors; 0 where mu is above 3. The first CCE of a candidate (10.1, equation of the search space): candidate m
// of `candidates` with aggregation level `level` in a CORESET of `cces`, hashed by y, 0 in a common search space.
uint32_t nrMostCandidates(uint32_t mu);
uint32_t nrMostCces(uint32_t mu);
uint32_t nrCandidateStart(uint32_t y, uint32_t m, uint32_t candidates, uint32_t level, uint32_t cces);

// SS/PBCH blocks (TS 38.213 4.1): the first symbol of candidate `index`, counted from the half frame's first at the
// spacing of the block; 4 symbols each. At 30 kHz there are case B and case C. 0 where there is no such block.
int nrSsbFirstSymbol(uint32_t mu, int caseB, uint32_t index, uint32_t* symbol);
#define NR_SSB_SYMBOLS 4
#define NR_SSB_RBS 20 // absoluteFrequencySSB is the first subcarrier of the eleventh

// dl-UL-TransmissionPeriodicity (TS 38.213 11.1), in units of 1/8 ms: 4 for 0.5 ms, 5 for 0.625, 24 for 3 ms.
typedef struct NrTddPattern
{
    uint32_t period;
    uint32_t dlSlots;
    uint32_t dlSymbols;
    uint32_t ulSlots;
    uint32_t ulSymbols;
} NrTddPattern;

typedef enum NrSymbolKind
{
    NR_SYMBOL_DOWNLINK = 0,
    NR_SYMBOL_FLEXIBLE = 1,
    NR_SYMBOL_UPLINK = 2
} NrSymbolKind;

// Whether a period is allowed with a reference spacing, slots of one, whether the slots and symbols fit into it,
// whether one or two of them (second null) fill 20 ms a whole number of times.
int nrTddPeriodAllowed(uint32_t period, uint32_t mu);
uint32_t nrTddSlots(uint32_t period, uint32_t mu); // 0 where that is no whole number
int nrTddFits(const NrTddPattern* pattern, uint32_t mu);
int nrTddFillsFrames(const NrTddPattern* first, const NrTddPattern* second);
// What a symbol (0..13) of a slot is, slots counted from the first pattern's start at any spacing `mu` that is not
// below the reference `muRef`; `second` may be null.
NrSymbolKind nrTddSymbol(const NrTddPattern* first, const NrTddPattern* second, uint32_t muRef, uint32_t mu,
                         uint32_t slot, uint32_t symbol);
// The same of all symbols of a slot, bit i for symbol i; those in neither are flexible.
typedef struct NrTddSlot
{
    uint16_t downlink;
    uint16_t uplink;
} NrTddSlot;
NrTddSlot nrTddSlot(const NrTddPattern* first, const NrTddPattern* second, uint32_t muRef, uint32_t mu, uint32_t slot);

// CSI-RS (TS 38.211 table 7.4.1.5.3-1).
typedef enum NrCsiRsBranch
{
    NR_CSI_RS_ROW1 = 1, // alternatives of frequencyDomainAllocation
    NR_CSI_RS_ROW2 = 2,
    NR_CSI_RS_ROW4 = 3,
    NR_CSI_RS_OTHER = 4
} NrCsiRsBranch;

typedef enum NrCsiRsDensity
{
    NR_CSI_RS_HALF = 1, // alternatives of density
    NR_CSI_RS_ONE = 2,
    NR_CSI_RS_THREE = 3
} NrCsiRsDensity;

typedef enum NrCdm
{
    NR_CDM_NONE = 0, // values of cdm-Type
    NR_FD_CDM2 = 1,
    NR_CDM4 = 2, // cdm4-FD2-TD2
    NR_CDM8 = 3  // cdm8-FD2-TD4
} NrCdm;

typedef struct NrCsiRsRow
{
    uint32_t row; // 1..18
    uint32_t ports;
    NrCsiRsBranch branch;
    uint32_t bits; // set in frequencyDomainAllocation
    NrCdm cdm;
    int half;               // density one half is allowed, too; row 1 has density three, all others one
    uint32_t symbols;       // from firstOFDMSymbolInTimeDomain on
    uint32_t secondSymbols; // from firstOFDMSymbolInTimeDomain2 on; 0: there is none
} NrCsiRsRow;

// Row 1..18; null for others.
const NrCsiRsRow* nrCsiRsRow(uint32_t row);
// The row of a mapping: NrCsiRsBranch, NrCdm and NrCsiRsDensity, or any other number; null where there is none.
const NrCsiRsRow* nrCsiRsRowOf(uint32_t branch, uint32_t bits, uint32_t ports, uint32_t cdm, uint32_t density);

// Subcarriers of a resource block that a CSI-RS takes, bit k for subcarrier k, in each of its symbols (TS 38.211
// 7.4.1.5.3): `bits` is frequencyDomainAllocation as a number, its last bit the least significant. 0 for a branch that
// is none.
uint32_t nrCsiRsSubcarriers(uint32_t branch, uint32_t bits);

// The common resource blocks that a CSI-RS takes in a bandwidth part (TS 38.214 5.2.2.3.1): of startingRB and nrofRBs
// what lies within the bandwidth part; size 0 where nothing does.
NrSpan nrCsiRsBand(NrSpan configured, NrSpan bwp);

// Sounding (TS 38.211 table 6.4.1.4.3-1): m_SRS,b resource blocks and N_b for c-SRS 0..63 and b-SRS 0..3; 0 for others.
uint32_t nrSrsBandwidth(uint32_t cSrs, uint32_t bSrs);
uint32_t nrSrsParts(uint32_t cSrs, uint32_t bSrs);

// Resource blocks from freqDomainShift on that a sounding resource comes to use (6.4.1.4.3), `position` its
// freqDomainPosition: without hopping (bHop >= bSrs) those of its one place. Size 0 for indices that the table has not.
NrSpan nrSrsSpan(uint32_t cSrs, uint32_t bSrs, uint32_t bHop, uint32_t position);
// The place that it takes the n-th time, counted from that block, too (6.4.1.4.3: n is n_SRS); how many times it takes
// until it begins again. Size, and times, 0 for indices that the table has not.
NrSpan nrSrsPlace(uint32_t cSrs, uint32_t bSrs, uint32_t bHop, uint32_t position, uint32_t n);
uint32_t nrSrsHops(uint32_t cSrs, uint32_t bSrs, uint32_t bHop);
// The common resource block from which freqDomainShift is counted, for a bandwidth part that begins at `bwpStart`.
uint32_t nrSrsReference(uint32_t bwpStart, uint32_t shift);
// Subcarriers of a resource block that all ports of a sounding resource take, bit k for subcarrier k: comb 2 or 4, its
// offset, the cyclic shift, 1, 2 or 4 ports. 0 for other combs.
uint32_t nrSrsSubcarriers(uint32_t comb, uint32_t offset, uint32_t cyclicShift, uint32_t ports);
// Symbols without transmission between the resources of a set for antenna switching (TS 38.214 table 6.2.1.2-1); 0 for
// spacings that have no sounding.
uint32_t nrSrsGuardSymbols(uint32_t mu);

// Subbands of CSI reports (TS 38.214 table 5.2.1.4-2): resource blocks of one, 0 where a bandwidth part of n has none;
// how many there are in a bandwidth part that begins at common resource block `start`.
uint32_t nrSubbandSize(uint32_t n, int value2);
uint32_t nrSubbands(uint32_t start, uint32_t n, uint32_t size);

// Nominal resource block group (TS 38.214 tables 5.1.2.2.1-1, 6.1.2.2.1-1); how many groups there are.
uint32_t nrRbgSize(uint32_t n, int config2);
uint32_t nrRbgs(uint32_t start, uint32_t n, uint32_t size);

// Whether PUSCH can have these symbols of a slot (TS 38.214 table 6.1.2.1-1), by its mapping type and cyclic prefix.
int nrPuschSymbolsAllowed(int typeB, int extendedPrefix, NrSpan symbols);
// Row 0..15 of the default time domain allocations of PUSCH (TS 38.214 tables 6.1.2.1.1-2 to -4): the slots behind the
// grant's (k2) and the symbols. 0 where there is none.
int nrPuschDefaultRow(uint32_t mu, int extendedPrefix, uint32_t row, uint32_t* k2, NrSpan* symbols);

// Orthogonal sequences of PUCCH format 1 (TS 38.211 table 6.3.2.4.1-1): timeDomainOCC is below this; 0 for other
// numbers of symbols than 4..14.
uint32_t nrPucchF1Sequences(uint32_t symbols, int hopping);

// PUCCH formats 3 and 4: symbols of DM-RS (TS 38.211 table 6.4.1.3.3.2-1); 0 for other numbers of symbols than 4..14.
uint32_t nrPucchDmrsSymbols(uint32_t symbols, int hopping, int additional);
// Resource elements that UCI takes in PUCCH formats 2, 3 and 4 (TS 38.213 9.2.5.2), `dmrs` symbols of DM-RS apart;
// `occ` is the length of the orthogonal sequence of format 4. 0 for other formats.
uint32_t nrPucchElements(uint32_t format, uint32_t rbs, uint32_t symbols, uint32_t dmrs, uint32_t occ);
// Bits of UCI with their CRC that so many resource elements carry: `qm` bits each, code rate in hundredths.
uint32_t nrPucchBits(uint32_t elements, uint32_t qm, uint32_t rate);

// Whether PUCCH formats 3 and 4 can have so many resource blocks (TS 38.213 9.2.3): 2^a 3^b 5^c.
int nrIsDftSize(uint32_t rbs);

// SchedulingRequestResourceConfig.periodicityAndOffset (TS 38.331), in slots; some only with a capability.
int nrSrPeriodAllowed(uint32_t mu, uint32_t slots);
int nrSrPeriodNeedsCapability(uint32_t mu, uint32_t slots);
// ConfiguredGrantConfig.periodicity (TS 38.331), in symbols.
int nrGrantPeriodAllowed(uint32_t mu, int extendedPrefix, uint32_t symbols);

// PRACH (TS 38.211 table 6.3.3.2-1): PUSCH resource blocks that one occasion takes; 0 where the table has none. A long
// preamble (839) has its own spacings, 5 kHz for format 3 and 1.25 kHz for formats 0 to 2.
uint32_t nrPrachLongRbs(int format3, uint32_t muPusch);
uint32_t nrPrachShortRbs(uint32_t muPrach, uint32_t muPusch);
// Whether prach-ConfigurationIndex names a long format (tables 6.3.3.2-2 to -4), and whether that is format 3.
int nrPrachIsLong(int fr2, int tdd, uint32_t index);
int nrPrachIsFormat3(int fr2, int tdd, uint32_t index);

// Transmission bandwidth (TS 38.101-1, 38.101-2 table 5.3.2-1): MHz of the channel that has n resource blocks at a
// spacing; 0 where no channel has.
uint32_t nrChannelMhz(int fr2, uint32_t mu, uint32_t n);

// Operating bands (TS 38.101-1 tables 5.2-1, 5.4.3.3-1; 38.101-2 tables 5.2-1, 5.4.3.3-1).
typedef enum NrDuplex
{
    NR_FDD = 1,
    NR_TDD = 2,
    NR_SDL = 3, // downlink alone
    NR_SUL = 4  // uplink alone
} NrDuplex;

typedef struct NrBand
{
    uint32_t number;
    NrDuplex duplex;
    int fr2;
    uint32_t ulLowKhz; // 0: the band has no uplink
    uint32_t ulHighKhz;
    uint32_t dlLowKhz; // 0: the band has no downlink
    uint32_t dlHighKhz;
    uint32_t ssbMus;   // bit mu: a spacing of its SS/PBCH blocks
    int hasCaseB;      // at 30 kHz the blocks of case B are used
    int hasCaseC;      // at 30 kHz those of case C
    uint32_t leastMhz; // channel bandwidth
} NrBand;

// Null where Release 15 has no band of the number.
const NrBand* nrBand(uint32_t number);
// All of them in the order of their numbers: null behind the last.
const NrBand* nrBandAt(uint32_t index);

// ARFCN-ValueNR (TS 38.104 5.4.2.1): kHz; 0 above 3279165. The global raster counts steps of 5, 15 and 60 kHz.
uint32_t nrArfcnKhz(uint32_t arfcn);
// Whether a frequency is on the synchronisation raster (TS 38.104 5.4.3.1).
int nrIsOnSyncRaster(uint32_t khz);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
