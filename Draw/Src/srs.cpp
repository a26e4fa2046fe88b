// Sounding.
#include "gather.h"
#include "uplinkParts.h"

#include <numeric>

namespace rules::draw
{
namespace
{

struct Comb
{
    OSUINT32 size; // 0: none
    OSUINT32 offset;
    OSUINT32 shift;
};

Comb combOf(const Tree& tree, const SRS_Resource& srs)
{
    const auto* const choice = &srs.transmissionComb;
    if (const auto* const two = CHOSEN(tree, choice, SRS_Resource_transmissionComb, n2))
    {
        return {2, two->combOffset_n2, two->cyclicShift_n2};
    }
    const auto* const four = CHOSEN(tree, choice, SRS_Resource_transmissionComb, n4);
    return four == nullptr ? Comb{} : Comb{4, four->combOffset_n4, four->cyclicShift_n4};
}

} // namespace

void addSrs(Gather& gather, const Place& place)
{
    static constexpr OSUINT32 counts[] = {1, 2, 4};
    if (place.bwp->direction == Direction::Downlink)
    {
        return;
    }
    for (const IdEntry<SRS_Resource>& entry : gather.model.srs(*place.bwp).resources)
    {
        const SRS_Resource& srs = *entry.element;
        Resource resource{};
        resource.kind = Kind::Srs;
        resource.path = gather.pathOf(nr_rrc::type_SRS_Resource, srs);
        resource.name = words("SRS %u", entry.id);
        resource.title = words("SRS %u of %s", entry.id, nameOf(*place.bwp).c_str());
        const SRS_Resource_resourceMapping& mapping = srs.resourceMapping;
        const OSUINT32 count = meaning(counts, mapping.nrofSymbols);
        const OSUINT32 repeated = meaning(counts, mapping.repetitionFactor);
        const OSUINT32 slot = place.bwp->symbolsPerSlot();
        const Comb comb = combOf(gather.tree, srs);
        const OSUINT32 c = srs.freqHopping.c_SRS;
        const OSUINT32 b = srs.freqHopping.b_SRS;
        const OSUINT32 bHop = srs.freqHopping.b_hop;
        const OSUINT32 hops = nrSrsHops(c, b, bHop);
        const bool isSlot = count != 0 && mapping.startPosition < slot && count <= mapping.startPosition + 1U;
        if (!isSlot || repeated == 0 || repeated > count || comb.size == 0 || hops == 0)
        {
            gather.cannot(resource.path, resource.title,
                          !isSlot ? "its symbols do not stay within the slot"
                                  : "its comb, hopping or repetition is none");
            continue;
        }
        const NrSpan symbols = {slot - 1 - mapping.startPosition, count};
        const auto mask = static_cast<OSUINT16>(nrSrsSubcarriers(comb.size, comb.offset, comb.shift, portsOf(srs)));
        const bool isPlaced = place.commonStart && place.rbs;
        const OSUINT32 reference = isPlaced ? nrSrsReference(*place.commonStart, srs.freqDomainShift) : 0;
        const Recurrence when = recurrenceOf(gather.tree, srs);
        resource.period = when.period;
        resource.offset = when.offset;
        // An occasion goes on where the one before has ended; after all hops they begin again.
        const OSUINT32 each = count / repeated;
        const OSUINT32 shapes = when.period == 0 ? 1 : hops / std::gcd(hops, each);
        for (OSUINT32 i = 0; i < shapes; ++i)
        {
            Shape shape;
            for (OSUINT32 j = 0; j < each; ++j)
            {
                const NrSpan at = nrSrsPlace(c, b, bHop, srs.freqDomainPosition, i * each + j);
                const NrSpan rbs = isPlaced ? NrSpan{reference + srs.freqDomainShift + at.start, at.size} : NrSpan{};
                shape.push_back({rbs, {symbols.start + j * repeated, repeated}, mask, 1});
            }
            resource.shapes.push_back(std::move(shape));
        }
        append(resource.detail, ", %u resource blocks%s, comb %u offset %u, %s, %s", nrSrsBandwidth(c, b),
               bHop < b ? words(" hopping over %u", nrSrsBandwidth(c, bHop)).c_str() : "", comb.size, comb.offset,
               spanWords("symbol", symbols).c_str(),
               when.period == 0 ? "when triggered" : recurrenceWords(when.period, when.offset, 1).c_str());
        if (srs.resourceType.t == T_SRS_Resource_resourceType_semi_persistent)
        {
            resource.detail += ", while activated";
        }
        if (!isPlaced)
        {
            gather.cannot(resource.path, resource.title,
                          "its resource blocks: " + needWords(place.commonStart.inputs() | place.rbs.inputs()));
        }
        gather.add(place, std::move(resource));
    }
}

} // namespace rules::draw
