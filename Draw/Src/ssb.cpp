// SS/PBCH blocks.
#include "gather.h"

namespace rules::draw
{
namespace
{

// The place whose axis counts resource blocks of the blocks' spacing; null where there is none.
const Place* placeFor(Gather& gather, const Cell& cell, OSUINT32 mu)
{
    for (const Bwp& bwp : cell.downlink)
    {
        const Place* const place = gather.placeOf(bwp);
        if (place != nullptr && place->commonStart && muOf(bwp.generic->subcarrierSpacing) == mu)
        {
            return place;
        }
    }
    return nullptr;
}

// The common resource blocks that blocks have subcarriers in; size 0 where they begin below point A.
NrSpan blockRbs(const FrequencyInfoDL& frequency, ARFCN_ValueNR ssb, OSUINT32 mu)
{
    constexpr OSUINT32 subcarriers = 12;
    const int64_t apart = int64_t{nrArfcnKhz(ssb)} - nrArfcnKhz(frequency.absoluteFrequencyPointA);
    const int64_t first = apart - int64_t{NR_SSB_RBS / 2 * subcarriers} * khzOf(mu);
    const int64_t rb = int64_t{subcarriers} * khzOf(mu);
    if (first < 0)
    {
        return {};
    }
    const int64_t end = first + NR_SSB_RBS * rb;
    const auto start = static_cast<OSUINT32>(first / rb);
    return {start, static_cast<OSUINT32>((end + rb - 1) / rb) - start};
}

} // namespace

void addBlocks(Gather& gather, Cell& cell)
{
    constexpr OSUINT32 halfFrame = 5; // ms
    const FrequencyInfoDL* const frequency = cell.frequencyDl();
    if (cell.common == nullptr || frequency == nullptr)
    {
        return; // a cell whose common configuration is not there has its parts listed
    }
    const auto* const ssb = MEMBER(*frequency, absoluteFrequencySSB);
    const auto* const spacing = MEMBER(*cell.common, ssbSubcarrierSpacing);
    const std::string path = gather.pathOf(nr_rrc::type_ServingCellConfigCommon, *cell.common);
    const std::string title = "SS/PBCH blocks";
    if (ssb == nullptr || spacing == nullptr || muOf(*spacing) > highestMu)
    {
        gather.cannot(path, title, "absoluteFrequencySSB or ssbSubcarrierSpacing is absent");
        return;
    }
    const OSUINT32 mu = muOf(*spacing);
    const NrSpan rbs = blockRbs(*frequency, *ssb, mu);
    const Place* const place = placeFor(gather, cell, mu);
    if (place == nullptr || rbs.size == 0)
    {
        gather.cannot(path, title,
                      place == nullptr ? words("no bandwidth part has their spacing, %u kHz", khzOf(mu))
                                       : "they begin below point A");
        return;
    }
    gather.panelOf(*place).parts.push_back(
        {nameOf(Kind::Ssb).id, path, title + ": " + spanWords("common resource block", rbs), "SSB", {rbs}, false});
    const auto* const period = MEMBER(*cell.common, ssb_periodicityServingCell);
    const Known<SsbPositions> positions = ssbPositions(gather.model, cell);
    const NrBand* const band = cell.band ? nrBand(*cell.band) : nullptr;
    if (period == nullptr || *period != ServingCellConfigCommon_ssb_periodicityServingCell_ms5)
    {
        gather.cannot(path, title, "the MIB tells in which half frame they are");
        return;
    }
    if (!positions || (mu == 1 && band == nullptr))
    {
        gather.cannot(path, title, needWords(positions.inputs() | cell.band.inputs()));
        return;
    }
    const bool isCaseB = mu == 1 && band->hasCaseB != 0 && band->hasCaseC == 0;
    for (OSUINT32 slot = 0; slot < halfFrame << mu; ++slot)
    {
        Resource resource{};
        resource.kind = Kind::Ssb;
        resource.path = path;
        resource.name = "SSB";
        Shape shape;
        std::string sent;
        for (OSUINT32 i = 0; i < positions->count; ++i)
        {
            OSUINT32 symbol = 0;
            if (positions->isSent(i) && nrSsbFirstSymbol(mu, isCaseB ? 1 : 0, i, &symbol) != 0 &&
                symbol / NR_SYMBOLS == slot)
            {
                append(sent, "%s%u", sent.empty() ? "" : ", ", i);
                shape.push_back({rbs, {symbol % NR_SYMBOLS, NR_SSB_SYMBOLS}});
            }
        }
        if (shape.empty())
        {
            continue;
        }
        resource.title = "SS/PBCH block " + sent;
        resource.shapes.push_back(std::move(shape));
        resource.period = halfFrame << mu;
        resource.offset = slot;
        append(resource.detail, ", %s, %s", spanWords("common resource block", rbs).c_str(),
               recurrenceWords(resource.period, slot, 1).c_str());
        gather.add(*place, std::move(resource));
    }
}

} // namespace rules::draw
