#include "searchSpaces.h"

#include <numeric>

namespace rules
{

Known<Monitoring> monitoringOf(const SearchSpace& space)
{
    static constexpr OSUINT16 periods[] = {1, 2, 4, 5, 8, 10, 16, 20, 40, 80, 160, 320, 640, 1280, 2560};
    const auto* const slots = MEMBER(space, monitoringSlotPeriodicityAndOffset);
    if (slots == nullptr)
    {
        return Known<Monitoring>::unless(RRC_RULE_INPUT_PREVIOUS);
    }
    if (slots->t - 1 >= std::size(periods))
    {
        return Known<Monitoring>::unless(0);
    }
    const bool isWide = slots->t >= T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl320;
    const bool isEvery = slots->t == T_SearchSpace_monitoringSlotPeriodicityAndOffset_sl1;
    const OSUINT32 offset = isEvery ? 0U : isWide ? OSUINT32{slots->u.sl320} : OSUINT32{slots->u.sl2};
    const OSUINT16* const duration = MEMBER(space, duration);
    return Monitoring{periods[slots->t - 1], offset, duration == nullptr ? 1U : *duration};
}

bool meet(const Monitoring& a, const Monitoring& b)
{
    const OSUINT32 common = std::gcd(a.period, b.period);
    const OSUINT32 apart = (b.offset + common - a.offset % common) % common;
    return apart < a.duration || common - apart < b.duration;
}

OSUINT32 firstSymbolsOf(const SearchSpace& space)
{
    const ASN1BitStr32* const bits = MEMBER(space, monitoringSymbolsWithinSlot);
    OSUINT32 symbols = 0;
    for (OSUINT32 i = 0; bits != nullptr && i < NR_SYMBOLS; ++i)
    {
        symbols |= hasBit(*bits, i) ? 1U << i : 0;
    }
    return symbols;
}

OSUINT32 candidatesOf(const SearchSpace& space, OSUINT32 level)
{
    static constexpr OSUINT32 counts[] = {0, 1, 2, 3, 4, 5, 6, 8};
    const SearchSpace_nrofCandidates* const given = MEMBER(space, nrofCandidates);
    if (given == nullptr || level >= levelCount)
    {
        return 0;
    }
    const OSUINT32 values[levelCount] = {given->aggregationLevel1, given->aggregationLevel2, given->aggregationLevel4,
                                         given->aggregationLevel8, given->aggregationLevel16};
    return values[level] < std::size(counts) ? counts[values[level]] : 0;
}

const SearchSpace_searchSpaceType_common* commonType(const Tree& tree, const SearchSpace& space)
{
    return CHOSEN(tree, MEMBER(space, searchSpaceType), SearchSpace_searchSpaceType, common);
}

const SearchSpace_searchSpaceType_ue_Specific* ueSpecificType(const Tree& tree, const SearchSpace& space)
{
    return CHOSEN(tree, MEMBER(space, searchSpaceType), SearchSpace_searchSpaceType, ue_Specific);
}

Region regionOf(const ControlResourceSet& coreset)
{
    // A group of 6 resource blocks has as many CCEs as the CORESET has symbols.
    return {bitsSet(coreset.frequencyDomainResources, coresetBits) * coreset.duration, coreset.duration};
}

Known<Region> regionOf(Model& model, Bwp& bwp, OSUINT32 id)
{
    if (id != 0)
    {
        const Coreset* const coreset = model.pdcch(bwp).coreset(id);
        return coreset == nullptr ? Known<Region>::unless(0) : Known<Region>(regionOf(*coreset->element));
    }
    const Known<NrCoreset0> coreset = coreset0Of(model, *bwp.cell);
    return coreset ? Known<Region>(Region{coreset->rbs / 6 * coreset->symbols, coreset->symbols})
                   : Known<Region>::unless(coreset.inputs());
}

Known<NrCoreset0> coreset0Of(const Model& model, const Cell& cell)
{
    using Found = Known<NrCoreset0>;
    const Bwp* const initial = cell.bwp(Direction::Downlink, 0);
    if (initial == nullptr)
    {
        return Found::unless(0); // the heap is exhausted
    }
    const PDCCH_ConfigCommon* const common =
        initial->downlinkCommon == nullptr ? nullptr
                                           : model.tree.setup(MEMBER(*initial->downlinkCommon, pdcch_ConfigCommon));
    const ControlResourceSetZero* index = common == nullptr ? nullptr : MEMBER(*common, controlResourceSetZero);
    index = index == nullptr && cell.isSpCell() ? model.known.coreset0 : index;
    if (index == nullptr)
    {
        return Found::unless(cell.isSpCell() ? RRC_RULE_INPUT_CORESET0 : RRC_RULE_INPUT_PREVIOUS);
    }
    const SubcarrierSpacing* const ssb = cell.common == nullptr ? nullptr : MEMBER(*cell.common, ssbSubcarrierSpacing);
    const Known<OSUINT32> mu = initial->mu();
    const NrBand* const band = cell.band ? nrBand(*cell.band) : nullptr;
    if (ssb == nullptr || !mu || band == nullptr)
    {
        return Found::unless((ssb == nullptr ? OSUINT32{RRC_RULE_INPUT_COMMON} : 0) | mu.inputs() | cell.band.inputs());
    }
    constexpr OSUINT32 wideMhz = 40;
    NrCoreset0 coreset{};
    return nrCoreset0(muOf(*ssb), *mu, band->leastMhz >= wideMhz ? 1 : 0, *index, &coreset) != 0 ? Found(coreset)
                                                                                                 : Found::unless(0);
}

Known<int64_t> coreset0Start(const Model& model, const Cell& cell)
{
    constexpr int64_t subcarriersToCentre = 120; // of a block of 20 resource blocks
    const FrequencyInfoDL* const frequency = cell.frequencyDl();
    const ARFCN_ValueNR* const ssb = frequency == nullptr ? nullptr : MEMBER(*frequency, absoluteFrequencySSB);
    const Known<NrCoreset0> coreset = coreset0Of(model, cell);
    if (ssb == nullptr || !coreset || coreset->offset < 0 || nrIsOnSyncRaster(nrArfcnKhz(*ssb)) == 0)
    {
        return Known<int64_t>::unless(RRC_RULE_INPUT_COMMON | coreset.inputs());
    }
    const int64_t blockKhz = int64_t{12} * khzOf(*cell.bwp(Direction::Downlink, 0)->mu());
    const int64_t first =
        int64_t{nrArfcnKhz(*ssb)} - subcarriersToCentre * khzOf(muOf(cell.common->ssbSubcarrierSpacing));
    const int64_t fromPointA = first - nrArfcnKhz(frequency->absoluteFrequencyPointA);
    return fromPointA < 0 || blockKhz <= 0 ? Known<int64_t>::unless(0)
                                           : Known<int64_t>(fromPointA / blockKhz - coreset->offset);
}

} // namespace rules
