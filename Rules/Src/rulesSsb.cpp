// SS/PBCH blocks.
#include "examplePaths.h"
#include "modelLists.h"
#include "rules.h"
#include "ssbReferences.h"

namespace rules
{
namespace
{

// The cells whose cell-common configuration is in the element.
template <typename Each>
void forCommon(Check& check, const Each& each)
{
    for (const Cell& cell : check.model.cells())
    {
        if (cell.common != nullptr)
        {
            each(cell, *cell.common);
        }
    }
}

const ARFCN_ValueNR* ssbArfcn(const Cell& cell)
{
    return cell.frequencyDl() == nullptr ? nullptr : MEMBER(*cell.frequencyDl(), absoluteFrequencySSB);
}

const SubcarrierSpacing* ssbSpacing(const ServingCellConfigCommon& common)
{
    return MEMBER(common, ssbSubcarrierSpacing);
}

// How many blocks a half frame may have: L, or two values where releases differ.
struct BlockCounts
{
    OSUINT32 count;
    OSUINT32 other;
};

BlockCounts blockCounts(const NrBand& band, OSUINT32 mu, OSUINT32 khz)
{
    constexpr OSUINT32 boundary = 3000000;
    constexpr OSUINT32 caseCBoundary = 2400000; // of this release, and
    constexpr OSUINT32 laterBoundary = 1880000;
    constexpr OSUINT32 few = 4;
    constexpr OSUINT32 many = 8;
    if (band.fr2 != 0)
    {
        return {64, 64};
    }
    if (khz > boundary)
    {
        return {many, many};
    }
    const bool isUnpairedC = band.duplex == NR_TDD && mu == 1 && band.hasCaseC != 0;
    return {isUnpairedC && khz > caseCBoundary ? many : few, isUnpairedC && khz >= laterBoundary ? many : few};
}

// The bitmap has a block, and the length of the frequency.
void ssbBitmap(Check& check)
{
    static constexpr OSUINT32 lengths[] = {4, 8, 64}; // of the alternatives
    forCommon(check,
              [&](const Cell& cell, const ServingCellConfigCommon& common)
              {
                  const auto* const bitmap = MEMBER(common, ssb_PositionsInBurst);
                  const Known<SsbPositions> positions = ssbPositions(check.model, cell);
                  if (bitmap == nullptr || !positions || bitmap->t - 1 >= std::size(lengths))
                  {
                      return;
                  }
                  if (bitsSet(positions->bits, positions->count) == 0)
                  {
                      check.error(bitmap).found("no block").allowed("a cell sends at least one");
                      return;
                  }
                  const ARFCN_ValueNR* const arfcn = ssbArfcn(cell);
                  const SubcarrierSpacing* const scs = ssbSpacing(common);
                  const NrBand* const band = cell.band ? nrBand(*cell.band) : nullptr;
                  const OSUINT32 khz = arfcn == nullptr ? 0 : nrArfcnKhz(*arfcn);
                  if (khz == 0 || scs == nullptr || band == nullptr)
                  {
                      return;
                  }
                  const BlockCounts counts = blockCounts(*band, muOf(*scs), khz);
                  if (positions->count != counts.count && positions->count != counts.other)
                  {
                      check.error(bitmap).allowed("in band n%u at %u MHz a half frame has %u blocks", band->number,
                                                  khz / 1000, counts.count);
                  }
              });
}

// Blocks are told where they are, and nothing of them where they are not.
void ssbCond(Check& check)
{
    forCommon(check,
              [&](const Cell& cell, const ServingCellConfigCommon& common)
              {
                  const auto* const bitmap = MEMBER(common, ssb_PositionsInBurst);
                  if (cell.frequencyDl() == nullptr)
                  {
                      return;
                  }
                  if (ssbArfcn(cell) == nullptr)
                  {
                      // Of an SpCell without a frequency sync-common-content speaks.
                      if (bitmap != nullptr && !cell.isSpCell())
                      {
                          check.error(bitmap).allowed("absoluteFrequencySSB is absent");
                      }
                      return;
                  }
                  if (bitmap == nullptr)
                  {
                      check.error(&common.ssb_PositionsInBurst).allowed("absoluteFrequencySSB is present");
                  }
                  if (ssbSpacing(common) == nullptr && check.isNew(cell.novelty))
                  {
                      check.error(&common.ssbSubcarrierSpacing).allowed("the cell is added and has SS/PBCH blocks");
                  }
              });
}

// The spacing is one of the range and of the band.
void ssbScs(Check& check)
{
    forCommon(check,
              [&](const Cell& cell, const ServingCellConfigCommon& common)
              {
                  const SubcarrierSpacing* const scs = ssbSpacing(common);
                  if (scs == nullptr || !check.decided(cell.range))
                  {
                      return;
                  }
                  const OSUINT32 mu = muOf(*scs);
                  const bool isFr2 = *cell.range == RRC_RULE_RANGE_FR2;
                  const NrBand* const band = cell.band ? nrBand(*cell.band) : nullptr;
                  if (isFr2 ? mu != 3 && mu != 4 : mu > 1)
                  {
                      check.error(scs).allowed("in FR%u it is %s kHz", isFr2 ? 2U : 1U,
                                               isFr2 ? "120 or 240" : "15 or 30");
                  }
                  else if (band != nullptr && (band->ssbMus >> mu & 1) == 0)
                  {
                      check.warning(scs).allowed(
                          "band n%u has blocks of %s%s%s", band->number, (band->ssbMus & 1) != 0 ? "15 kHz" : "",
                          (band->ssbMus & 3) == 3 ? " and " : "", (band->ssbMus & 2) != 0 ? "30 kHz" : "");
                  }
              });
}

// A block that is named is sent.
void ssbIndexTransmitted(Check& check)
{
    SsbReferences(check).forAll(
        [&](const Cell& cell, const SSB_Index& index)
        {
            const Known<SsbPositions> positions = ssbPositions(check.model, cell);
            const bool hasNone = cell.frequencyDl() != nullptr && ssbArfcn(cell) == nullptr;
            if (hasNone || !check.decided(positions)) // scell-ssbless speaks of cells that have none
            {
                return;
            }
            if (index >= positions->count)
            {
                check.error(&index).allowed("ssb-PositionsInBurst has %u bits", positions->count);
            }
            else if (!positions->isSent(index))
            {
                check.warning(&index).allowed("ssb-PositionsInBurst says that the block is not sent");
            }
        });
}

// The block of a PCell can be found, and lies in a carrier.
void ssbRaster(Check& check)
{
    forCommon(check,
              [&](const Cell& cell, const ServingCellConfigCommon& common)
              {
                  const ARFCN_ValueNR* const arfcn = ssbArfcn(cell);
                  const uint64_t khz = arfcn == nullptr ? 0 : nrArfcnKhz(*arfcn);
                  if (khz == 0)
                  {
                      return;
                  }
                  if (cell.isSpCell() && !check.model.isScg() && nrIsOnSyncRaster(static_cast<OSUINT32>(khz)) == 0)
                  {
                      check.error(arfcn)
                          .found("%u, which is %" PRIu64 ".%03" PRIu64 " MHz", *arfcn, khz / 1000, khz % 1000)
                          .allowed("that is not on the synchronisation raster");
                      return;
                  }
                  const SubcarrierSpacing* const scs = ssbSpacing(common);
                  const uint64_t pointA = nrArfcnKhz(cell.frequencyDl()->absoluteFrequencyPointA);
                  const Known<Carriers> carriers = check.model.carriers(cell, Direction::Downlink);
                  if (scs == nullptr || muOf(*scs) > highestMu || pointA == 0 || !carriers || carriers->count == 0)
                  {
                      return;
                  }
                  const uint64_t half = uint64_t{NR_SSB_RBS} / 2 * 12 * khzOf(muOf(*scs));
                  bool isInside = false;
                  for (const SCS_SpecificCarrier* const carrier : *carriers)
                  {
                      const uint64_t rb = uint64_t{12} * khzOf(muOf(carrier->subcarrierSpacing));
                      const uint64_t low = pointA + carrier->offsetToCarrier * rb;
                      isInside = isInside || (khz >= low + half && khz + half <= low + carrier->carrierBandwidth * rb);
                  }
                  if (!isInside)
                  {
                      check.warning(arfcn)
                          .found("%u, which is %" PRIu64 ".%03" PRIu64 " MHz", *arfcn, khz / 1000, khz % 1000)
                          .allowed("the block of %" PRIu64 " kHz lies outside the carrier", 2 * half);
                  }
              });
}

constexpr Rule ssbTable[] = {
    {.told = {.id = "ssb-bitmap",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "ssb-PositionsInBurst has at least one bit, 4 bits up to 3 GHz, 8 above, 64 in FR2; unpaired bands "
                  "with case C have 8 above 2.4 GHz already, or above 1.88 GHz as later releases say.",
              .advice = "Take the bitmap of the frequency.",
              .clause = "TS 38.331 ServingCellConfigCommon; TS 38.213 4.1",
              .given = "",
              .bad = AT_COMMON "ssb-PositionsInBurst = absent\n" AT_COMMON "ssb-PositionsInBurst.shortBitmap = C0",
              .good = AT_COMMON "ssb-PositionsInBurst.mediumBitmap = FF",
              .since = "0.1.0"},
     .run = ssbBitmap},
    {.told = {.id = "ssb-cond",
              .severity = RRC_RULE_ERROR,
              .statement = "ssb-PositionsInBurst is present with absoluteFrequencySSB and absent without; a cell that "
                           "is added with SS/PBCH blocks has ssbSubcarrierSpacing.",
              .advice = "Send both, or none of them for an SCell without SS/PBCH blocks.",
              .clause = "TS 38.331 ServingCellConfigCommon, Cond AbsFreqSSB, HOAndServCellWithSSB",
              .given = "",
              .bad = AT_COMMON "ssbSubcarrierSpacing = absent",
              .good = AT_COMMON "ssbSubcarrierSpacing = kHz30",
              .since = "0.1.0"},
     .run = ssbCond},
    {.told = {.id = "ssb-scs",
              .severity = RRC_RULE_ERROR,
              .statement = "ssbSubcarrierSpacing is 15 or 30 kHz in FR1, 120 or 240 kHz in FR2, and one of the band.",
              .advice = "Take the spacing that the band has.",
              .clause = "TS 38.213 4.1; TS 38.101-1 5.4.3.3; TS 38.101-2 5.4.3.3",
              .given = "",
              .bad = AT_COMMON "ssbSubcarrierSpacing = kHz60",
              .good = AT_COMMON "ssbSubcarrierSpacing = kHz30",
              .since = "0.1.0"},
     .run = ssbScs},
    {.told = {.id = "ssb-index-transmitted",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "Each SSB-Index is less than the bits of ssb-PositionsInBurst of its cell, and its block is sent.",
              .advice = "Name a block that the cell sends.",
              .clause = "TS 38.331 SSB-Index; TS 38.213 4.1",
              .given = "",
              .bad = AT_STATE("1") "qcl-Type1.referenceSignal.ssb = 8",
              .good = AT_STATE("1") "qcl-Type1.referenceSignal.ssb = 7\n" AT_COMMON
                                    "ssb-PositionsInBurst.mediumBitmap = C1",
              .since = "0.1.0"},
     .run = ssbIndexTransmitted},
    {.told = {.id = "ssb-raster",
              .severity = RRC_RULE_ERROR,
              .statement = "absoluteFrequencySSB of a PCell is on the synchronisation raster, and the block lies in a "
                           "carrier of the cell.",
              .advice = "Take the frequency of a GSCN within the carrier.",
              .clause = "TS 38.331 FrequencyInfoDL; TS 38.101-1 5.4.3; TS 38.104 5.4.3.1",
              .given = "",
              .bad = AT_COMMON_DL "frequencyInfoDL.absoluteFrequencySSB = 633313",
              .good = AT_COMMON_DL "frequencyInfoDL.absoluteFrequencySSB = 633408",
              .since = "0.1.0"},
     .run = ssbRaster},
};

} // namespace

constinit const RuleGroup ssbRules = groupOf(ssbTable);

} // namespace rules
