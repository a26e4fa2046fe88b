// Bandwidth parts.
#include "gather.h"

namespace rules::draw
{

std::string nameOf(const Bwp& bwp)
{
    return bwp.isInitial() ? words("initial %s bandwidth part", rules::nameOf(bwp.direction))
                           : words("%s bandwidth part %u", rules::nameOf(bwp.direction), unsigned{bwp.id});
}

void addPart(Gather& gather, const Place& place)
{
    const Bwp& bwp = *place.bwp;
    const std::string path = bwp.downlink != nullptr ? gather.pathOf(nr_rrc::type_BWP_Downlink, *bwp.downlink)
                             : bwp.uplink != nullptr ? gather.pathOf(nr_rrc::type_BWP_Uplink, *bwp.uplink)
                             : bwp.isTold()          ? gather.pathOf(nr_rrc::type_BWP, *bwp.generic)
                                                     : gather.cellPath();
    if (!place.rbs)
    {
        gather.cannot(path, nameOf(bwp), "locationAndBandwidth is none of 275 resource blocks");
        return;
    }
    Panel& panel = gather.panelOf(place);
    const NrSpan own = *place.rbs;
    Part part{bwpPart, path, "", words("BWP %u", unsigned{bwp.id}), {own}, bwp.isOutside};
    part.title = words("%s: %s, %u kHz%s", nameOf(bwp).c_str(), spanWords(panel.rbWord(), own).c_str(),
                       khzOf(*bwp.mu()), bwp.isExtended() ? ", extended cyclic prefix" : "");
    if (bwp.isOutside)
    {
        const Known<const SCS_SpecificCarrier*> carrier = gather.model.carrier(bwp);
        gather.clash(words("%s reaches beyond its carrier of %u resource blocks", nameOf(bwp).c_str(),
                           carrier && *carrier != nullptr ? unsigned{(*carrier)->carrierBandwidth} : 0U),
                     path);
    }
    panel.parts.push_back(std::move(part));
}

} // namespace rules::draw
