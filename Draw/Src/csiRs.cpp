// CSI-RS, zero-power CSI-RS and CSI-IM.
#include "gather.h"

namespace rules::draw
{
namespace
{

// Common resource blocks of a bandwidth part's axis; size 0 where they are not known, which is said.
NrSpan bandOf(Gather& gather, const Place& place, const Resource& resource, const CSI_FrequencyOccupation& band)
{
    if (!place.commonStart || !place.rbs)
    {
        gather.cannot(resource.path, resource.title,
                      "its resource blocks: " + needWords(place.commonStart.inputs() | place.rbs.inputs()));
        return {};
    }
    return nrCsiRsBand({band.startingRB, band.nrofRBs}, *place.rbs);
}

// What is left to say of a resource, and where it goes.
void finish(Gather& gather, const Place& place, Resource&& resource, NrSpan rbs,
            const CSI_ResourcePeriodicityAndOffset* recurring)
{
    if (recurring != nullptr)
    {
        const Recurrence when = recurrenceOf(*recurring);
        resource.period = when.period;
        resource.offset = when.offset;
    }
    if (rbs.size != 0)
    {
        append(resource.detail, ", %s", spanWords("common resource block", rbs).c_str());
    }
    append(resource.detail, ", %s",
           resource.period == 0 ? "when triggered"
                                : recurrenceWords(resource.period, resource.offset, resource.duration).c_str());
    gather.add(place, std::move(resource));
}

void addMapping(Gather& gather, const Place& place, Resource&& resource, const CSI_RS_ResourceMapping& mapping,
                const CSI_ResourcePeriodicityAndOffset* recurring)
{
    const NrCsiRsRow* const row = csiRsRow(gather.tree, mapping);
    const bool hasSecond = mapping.m.firstOFDMSymbolInTimeDomain2Present != 0;
    if (row == nullptr || (row->secondSymbols != 0 && !hasSecond))
    {
        gather.cannot(resource.path, resource.title,
                      row == nullptr ? "no row of the table has its bits, ports, CDM type and density"
                                     : "its row of the table needs firstOFDMSymbolInTimeDomain2");
        return;
    }
    NrSpan rbs = bandOf(gather, place, resource, mapping.freqBand);
    const bool isHalf = mapping.density.t == NR_CSI_RS_HALF;
    if (place.commonStart && rbs.size == 0)
    {
        gather.cannot(resource.path, resource.title, "its freqBand does not meet the bandwidth part");
        return;
    }
    if (isHalf && rbs.size != 0)
    {
        // Even or odd common resource blocks.
        const OSUINT32 odd = mapping.density.u.dot5 == CSI_RS_ResourceMapping_density_dot5_evenPRBs ? 0 : 1;
        const OSUINT32 skipped = rbs.start % 2 == odd ? 0 : 1;
        rbs = {rbs.start + skipped, rbs.size - skipped};
    }
    const auto mask =
        static_cast<OSUINT16>(nrCsiRsSubcarriers(row->branch, bitsAsNumber(*csiRsAllocation(gather.tree, mapping))));
    const auto every = static_cast<OSUINT8>(isHalf ? 2 : 1);
    Shape shape = {{rbs, {mapping.firstOFDMSymbolInTimeDomain, row->symbols}, mask, every}};
    if (row->secondSymbols != 0)
    {
        shape.push_back({rbs, {mapping.firstOFDMSymbolInTimeDomain2, row->secondSymbols}, mask, every});
    }
    append(resource.detail, ", row %u, %u port%s, %s", row->row, row->ports, row->ports == 1 ? "" : "s",
           spanWords("symbol", shape[0].symbols).c_str());
    if (shape.size() > 1)
    {
        append(resource.detail, " and %s", spanWords("", shape[1].symbols).c_str());
    }
    resource.shapes.push_back(std::move(shape));
    finish(gather, place, std::move(resource), rbs, recurring);
}

void addIm(Gather& gather, const Place& place, const CSI_IM_Resource& im)
{
    Resource resource{};
    resource.kind = Kind::CsiIm;
    resource.path = gather.pathOf(nr_rrc::type_CSI_IM_Resource, im);
    resource.name = words("IM %u", unsigned{im.csi_IM_ResourceId});
    resource.title = words("CSI-IM %u", unsigned{im.csi_IM_ResourceId});
    const auto* const pattern = MEMBER(im, csi_IM_ResourceElementPattern);
    const auto* const two = CHOSEN(gather.tree, pattern, CSI_IM_Resource_csi_IM_ResourceElementPattern, pattern0);
    const auto* const four = CHOSEN(gather.tree, pattern, CSI_IM_Resource_csi_IM_ResourceElementPattern, pattern1);
    const auto* const band = MEMBER(im, freqBand);
    if ((two == nullptr && four == nullptr) || band == nullptr)
    {
        gather.cannot(resource.path, resource.title, "its pattern and freqBand; " + needWords(RRC_RULE_INPUT_PREVIOUS));
        return;
    }
    const OSUINT32 first = two != nullptr ? 2 * std::min<OSUINT32>(two->subcarrierLocation_p0, 5)
                                          : 4 * std::min<OSUINT32>(four->subcarrierLocation_p1, 2);
    const auto mask = static_cast<OSUINT16>((two != nullptr ? 0x3U : 0xFU) << first);
    const NrSpan symbols = two != nullptr ? NrSpan{two->symbolLocation_p0, 2} : NrSpan{four->symbolLocation_p1, 1};
    const NrSpan rbs = bandOf(gather, place, resource, *band);
    if (place.commonStart && rbs.size == 0)
    {
        gather.cannot(resource.path, resource.title, "its freqBand does not meet the bandwidth part");
        return;
    }
    append(resource.detail, ", subcarriers %u..%u, %s", first, first + (two != nullptr ? 1 : 3),
           spanWords("symbol", symbols).c_str());
    resource.shapes.push_back({{rbs, symbols, mask, 1}});
    finish(gather, place, std::move(resource), rbs, MEMBER(im, periodicityAndOffset));
}

// Calls `each(place)` for the bandwidth parts of a cell in which a resource is used; says so where that is none.
template <size_t N, typename Each>
void forUses(Gather& gather, const Cell& cell, const CsiUse (&uses)[N], OSUINT32 id, const std::string& path,
             const std::string& title, const Each& each)
{
    bool isUsed = false;
    for (const Bwp& bwp : cell.downlink)
    {
        if (id < N && bwp.id < 8 && (uses[id].bwps >> bwp.id & 1) != 0)
        {
            isUsed = true;
            if (const Place* const place = gather.placeOf(bwp))
            {
                each(*place);
            }
            else
            {
                gather.cannot(path, title, needWords(bwp.missing));
            }
        }
    }
    if (!isUsed)
    {
        gather.cannot(path, title, "no CSI-ResourceConfig that is there says in which bandwidth part it is used");
    }
}

} // namespace

void addCsi(Gather& gather, Cell& cell)
{
    const Csi& csi = gather.model.csi(cell);
    for (const IdEntry<NZP_CSI_RS_Resource>& entry : csi.nzpResources)
    {
        const NZP_CSI_RS_Resource& element = *entry.element;
        const std::string path = gather.pathOf(nr_rrc::type_NZP_CSI_RS_Resource, element);
        const std::string title = words("CSI-RS %u", entry.id);
        forUses(gather, cell, csi.nzpUse, entry.id, path, title,
                [&](const Place& place)
                {
                    Resource resource{};
                    resource.kind = Kind::CsiRs;
                    resource.path = path;
                    resource.title = title;
                    resource.name = words("RS %u", entry.id);
                    addMapping(gather, place, std::move(resource), element.resourceMapping,
                               MEMBER(element, periodicityAndOffset));
                });
    }
    for (const IdEntry<CSI_IM_Resource>& entry : csi.imResources)
    {
        forUses(gather, cell, csi.imUse, entry.id, gather.pathOf(nr_rrc::type_CSI_IM_Resource, *entry.element),
                words("CSI-IM %u", entry.id), [&](const Place& place) { addIm(gather, place, *entry.element); });
    }
}

void addZeroPower(Gather& gather, const Place& place)
{
    if (place.bwp->direction != Direction::Downlink)
    {
        return;
    }
    for (const IdEntry<ZP_CSI_RS_Resource>& entry : gather.model.pdsch(*place.bwp).zpResources)
    {
        Resource resource{};
        resource.kind = Kind::ZpCsiRs;
        resource.path = gather.pathOf(nr_rrc::type_ZP_CSI_RS_Resource, *entry.element);
        resource.name = words("ZP %u", entry.id);
        resource.title = words("zero-power CSI-RS %u", entry.id);
        addMapping(gather, place, std::move(resource), entry.element->resourceMapping,
                   MEMBER(*entry.element, periodicityAndOffset));
    }
}

} // namespace rules::draw
