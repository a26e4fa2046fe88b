// Time domain allocations of PDSCH and PUSCH, configured grants and semi-persistent scheduling.
#include "gather.h"
#include "uplinkParts.h"

namespace rules::draw
{
namespace
{

template <typename T>
void addRow(Gather& gather, const Place& place, const T& row, const RtxType& type, OSUINT32 number, const char* name,
            Known<OSUINT32> k)
{
    const std::string path = gather.pathOf(type, row);
    const std::string of = words("row %u of %s", number, nameOf(*place.bwp).c_str());
    NrSpan symbols{};
    if (nrSlivDecode(row.startSymbolAndLength, &symbols) == 0 ||
        symbols.start + symbols.size > place.bwp->symbolsPerSlot())
    {
        gather.cannot(path, of, "startSymbolAndLength does not stay within a slot");
        return;
    }
    const char* const mapping = row.mappingType == 0 ? "A" : "B";
    const std::string slots = k ? words("%s %u", name, *k) : words("%s of the spacing", name);
    gather.panelOf(place).rows.push_back(
        {path, of + words(": %s, mapping type %s, %s", slots.c_str(), mapping, spanWords("symbol", symbols).c_str()),
         words("BWP %u row %u: %s, type %s, %s", unsigned{place.bwp->id}, number, slots.c_str(), mapping,
               spanWords("sym", symbols).c_str()),
         symbols});
}

void addPdschRows(Gather& gather, const Place& place)
{
    const Bwp& bwp = *place.bwp;
    const PDSCH_TimeDomainResourceAllocationList* list =
        bwp.pdsch == nullptr ? nullptr : gather.tree.setup(MEMBER(*bwp.pdsch, pdsch_TimeDomainAllocationList));
    if (list == nullptr)
    {
        const PDSCH_ConfigCommon* const common =
            bwp.downlinkCommon == nullptr ? nullptr
                                          : gather.tree.setup(MEMBER(*bwp.downlinkCommon, pdsch_ConfigCommon));
        list = common == nullptr ? nullptr : MEMBER(*common, pdsch_TimeDomainAllocationList);
    }
    OSUINT32 number = 0;
    for (const PDSCH_TimeDomainResourceAllocation& row : gather.tree.list<PDSCH_TimeDomainResourceAllocation>(list))
    {
        addRow(gather, place, row, nr_rrc::type_PDSCH_TimeDomainResourceAllocation, number++, "K0",
               row.m.k0Present != 0 ? OSUINT32{row.k0} : 0U);
    }
}

void addPuschRows(Gather& gather, const Place& place)
{
    static constexpr OSUINT32 defaults[] = {1, 1, 2, 3}; // k2 where it is absent, by the spacing (TS 38.331)
    const Known<PuschRows> rows = puschRows(gather.model, *place.bwp);
    const OSUINT32 mu = muOf(place.bwp->generic->subcarrierSpacing);
    OSUINT32 number = 0;
    if (!rows)
    {
        return;
    }
    for (const PUSCH_TimeDomainResourceAllocation& row : rows->rows)
    {
        addRow(gather, place, row, nr_rrc::type_PUSCH_TimeDomainResourceAllocation, number++, "K2",
               row.m.k2Present != 0 ? OSUINT32{row.k2} : meaning(defaults, mu));
    }
}

void addGrant(Gather& gather, const Place& place, const ConfiguredGrantConfig& grant)
{
    static constexpr OSUINT32 repetitions[] = {1, 2, 4, 8};
    Resource resource{};
    resource.kind = Kind::Grant;
    resource.path = gather.pathOf(nr_rrc::type_ConfiguredGrantConfig, grant);
    resource.name = "CG";
    resource.title = words("configured grant of %s", nameOf(*place.bwp).c_str());
    const auto* const one = MEMBER(grant, rrc_ConfiguredUplinkGrant);
    if (one == nullptr)
    {
        gather.cannot(resource.path, resource.title, "of type 2: DCI tells its slots and resource blocks");
        return;
    }
    const OSUINT32 slot = place.bwp->symbolsPerSlot();
    const OSUINT32 period = grantPeriod(grant);
    const Known<NrSpan> symbols = grantSymbols(gather.model, *place.bwp, one->timeDomainAllocation);
    if (!symbols || period == 0 || (period >= slot && period % slot != 0) || symbols->start + symbols->size > slot)
    {
        gather.cannot(resource.path, resource.title,
                      symbols ? std::string("its period or its symbols are none of the cyclic prefix")
                              : "its symbols: " + needWords(symbols.inputs()));
        return;
    }
    const bool isTypeOne = grant.resourceAllocation == ConfiguredGrantConfig_resourceAllocation_resourceAllocationType1;
    const bool hops = grant.m.frequencyHoppingPresent != 0;
    NrSpan span{};
    const bool isRiv = place.rbs && isTypeOne &&
                       nrRivDecode(bitsAsNumber(one->frequencyDomainAllocation), place.rbs->size, &span) != 0;
    NrSpan rbs{};
    if (isRiv && !hops)
    {
        rbs = {place.rbs->start + span.start, span.size};
    }
    else
    {
        gather.cannot(resource.path, resource.title,
                      hops         ? "its resource blocks, which hop"
                      : !isTypeOne ? "its resource blocks, which are groups of type 0"
                                   : "its resource blocks: frequencyDomainAllocation names none of the bandwidth part");
    }
    Shape shape;
    const OSUINT32 step = std::min(period, slot);
    for (OSUINT32 start = period < slot ? symbols->start % period : symbols->start; start + symbols->size <= slot;
         start += step)
    {
        shape.push_back({rbs, {start, symbols->size}});
    }
    resource.shapes.push_back(std::move(shape));
    resource.period = std::max<OSUINT32>(period / slot, 1);
    resource.offset = one->timeDomainOffset;
    resource.duration = meaning(repetitions, grant.repK);
    resource.duration = std::max<OSUINT32>(resource.duration, 1);
    append(resource.detail, " of type 1%s%s, %s, %s%s", rbs.size == 0 ? "" : ", ",
           rbs.size == 0 ? "" : spanWords(gather.panelOf(place).rbWord(), rbs).c_str(),
           spanWords("symbol", *symbols).c_str(),
           recurrenceWords(resource.period, resource.offset, resource.duration).c_str(),
           period < slot ? words(", every %u symbols", period).c_str() : "");
    gather.add(place, std::move(resource));
}

} // namespace

void addAllocations(Gather& gather, const Place& place)
{
    const Bwp& bwp = *place.bwp;
    if (bwp.direction == Direction::Downlink)
    {
        addPdschRows(gather, place);
        if (bwp.sps != nullptr)
        {
            gather.cannot(gather.pathOf(nr_rrc::type_SPS_Config, *bwp.sps),
                          "semi-persistent scheduling of " + nameOf(bwp), "DCI tells its slots and resource blocks");
        }
        return;
    }
    addPuschRows(gather, place);
    if (bwp.grant != nullptr)
    {
        addGrant(gather, place, *bwp.grant);
    }
}

} // namespace rules::draw
