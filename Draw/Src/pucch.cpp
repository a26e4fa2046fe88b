// PUCCH resources, and the occasions of scheduling requests and CSI reports that use them.
#include "gather.h"
#include "uplinkParts.h"

namespace rules::draw
{
namespace
{

// A resource, with its places in the slots that it is sent in.
struct Format
{
    PucchShape shape;
    NrSpan symbols;
    std::vector<Shape> shapes; // by the repetition
    OSUINT32 slots;
};

// False where it cannot be placed, which is said.
bool formatOf(Gather& gather, const Place& place, const PUCCH_Resource& pucch, const std::string& path,
              const std::string& title, Format& format)
{
    static constexpr OSUINT32 repetitions[] = {2, 4, 8};
    PucchShape shape{};
    const OSUINT32 slot = place.bwp->symbolsPerSlot();
    if (!pucchShapeOf(gather.tree, pucch, shape) || *shape.symbols == 0 ||
        OSUINT32{*shape.start} + *shape.symbols > slot || shape.rbs == 0)
    {
        gather.cannot(path, title, "its symbols do not stay within the slot");
        return false;
    }
    if (!place.rbs)
    {
        gather.cannot(path, title, "its resource blocks: " + needWords(place.rbs.inputs()));
        return false;
    }
    format.shape = shape;
    format.symbols = {*shape.start, *shape.symbols};
    const NrSpan first = {place.rbs->start + pucch.startingPRB, shape.rbs};
    const NrSpan second = {place.rbs->start + pucch.secondHopPRB, shape.rbs};
    const bool hasSecond = pucch.m.secondHopPRBPresent != 0;
    const bool hops = pucch.m.intraSlotFrequencyHoppingPresent != 0 && hasSecond && format.symbols.size > 1;
    const OSUINT32 half = format.symbols.size / 2;
    const PUCCH_FormatConfig* const config =
        shape.format == 0 ? nullptr : repeatingFormat(gather.tree, *place.bwp, shape.format);
    format.slots = config != nullptr && config->m.nrofSlotsPresent != 0 ? meaning(repetitions, config->nrofSlots) : 1;
    format.slots = std::max<OSUINT32>(format.slots, 1);
    if (hops)
    {
        format.shapes.push_back({{first, {format.symbols.start, half}},
                                 {second, {format.symbols.start + half, format.symbols.size - half}}});
        return true;
    }
    format.shapes.push_back({{first, format.symbols}});
    if (format.slots > 1 && hasSecond && hopsBetweenSlots(gather.tree, *place.bwp, shape.format))
    {
        format.shapes.push_back({{second, format.symbols}});
    }
    return true;
}

std::string formatWords(const Panel& panel, const Format& format)
{
    std::string text =
        words("format %u, %s", format.shape.format, spanWords(panel.rbWord(), format.shapes[0][0].rbs).c_str());
    if (format.shapes[0].size() > 1)
    {
        append(text, " then %s", spanWords("", format.shapes[0][1].rbs).c_str());
    }
    append(text, ", %s", spanWords("symbol", format.symbols).c_str());
    return text;
}

// An occasion that recurs on a resource of an id.
void addOccasions(Gather& gather, const Place& place, Resource&& resource, OSUINT32 id, const Recurrence& when)
{
    const PUCCH_Resource* const pucch = gather.model.pucch(*place.bwp).resources.element(id);
    if (pucch == nullptr || when.period == 0)
    {
        gather.cannot(resource.path, resource.title,
                      when.period == 0
                          ? std::string("its period is none")
                          : words("PUCCH resource %u is not there; ", id) + needWords(RRC_RULE_INPUT_PREVIOUS));
        return;
    }
    Format format{};
    if (!formatOf(gather, place, *pucch, resource.path, resource.title, format))
    {
        return;
    }
    resource.period = when.period;
    resource.offset = when.offset;
    resource.duration = format.slots;
    resource.waits = format.slots > 1;
    resource.turn = Turn::Repetition;
    append(resource.detail, " on PUCCH resource %u: %s, %s", id, formatWords(gather.panelOf(place), format).c_str(),
           recurrenceWords(when.period, when.offset, format.slots).c_str());
    if (resource.shapes.empty())
    {
        resource.shapes = std::move(format.shapes);
    }
    gather.add(place, std::move(resource));
}

// Requests that come several times a slot (TS 38.213 9.2.4).
std::vector<Shape> severalInSlot(const Format& format, OSUINT32 period, OSUINT32 slot)
{
    Shape shape;
    for (OSUINT32 start = format.symbols.start % period; start + format.symbols.size <= slot; start += period)
    {
        for (Rect rect : format.shapes[0])
        {
            rect.symbols.start = rect.symbols.start - format.symbols.start + start;
            shape.push_back(rect);
        }
    }
    return {shape};
}

void addRequest(Gather& gather, const Place& place, const SchedulingRequestResourceConfig& request)
{
    Resource resource{};
    resource.kind = Kind::SchedulingRequest;
    resource.path = gather.pathOf(nr_rrc::type_SchedulingRequestResourceConfig, request);
    resource.name = words("SR %u", unsigned{request.schedulingRequestResourceId});
    resource.title =
        words("scheduling request %u of %s", unsigned{request.schedulingRequestResourceId}, nameOf(*place.bwp).c_str());
    const auto* const id = MEMBER(request, resource);
    const auto* const choice = MEMBER(request, periodicityAndOffset);
    if (id == nullptr || choice == nullptr)
    {
        gather.cannot(resource.path, resource.title, "its period and resource; " + needWords(RRC_RULE_INPUT_PREVIOUS));
        return;
    }
    const SrPeriod period = srPeriodOf(*choice, *place.bwp);
    Recurrence when = recurrenceOf(*choice);
    if (period.symbols != 0)
    {
        const PUCCH_Resource* const pucch = gather.model.pucch(*place.bwp).resources.element(*id);
        Format format{};
        if (pucch != nullptr && formatOf(gather, place, *pucch, resource.path, resource.title, format))
        {
            resource.shapes = severalInSlot(format, period.symbols, place.bwp->symbolsPerSlot());
            append(resource.detail, " every %u symbols", period.symbols);
        }
        else if (pucch != nullptr)
        {
            return; // said
        }
        when = {1, 0};
    }
    addOccasions(gather, place, std::move(resource), *id, when);
}

} // namespace

void addPucch(Gather& gather, const Place& place)
{
    if (place.bwp->pucch == nullptr)
    {
        return;
    }
    const Pucch& pucch = gather.model.pucch(*place.bwp);
    for (const IdEntry<PUCCH_Resource>& entry : pucch.resources)
    {
        Resource resource{};
        resource.kind = Kind::Pucch;
        resource.path = gather.pathOf(nr_rrc::type_PUCCH_Resource, *entry.element);
        resource.name = words("PUCCH %u", entry.id);
        resource.title = words("PUCCH resource %u of %s", entry.id, nameOf(*place.bwp).c_str());
        Format format{};
        if (formatOf(gather, place, *entry.element, resource.path, resource.title, format))
        {
            append(resource.detail, ": %s", formatWords(gather.panelOf(place), format).c_str());
            resource.shapes = std::move(format.shapes);
            gather.add(place, std::move(resource));
        }
    }
    for (const IdEntry<SchedulingRequestResourceConfig>& entry : pucch.srResources)
    {
        addRequest(gather, place, *entry.element);
    }
}

void addReports(Gather& gather, Cell& cell, Cell& of)
{
    for (const IdEntry<CSI_ReportConfig>& entry : gather.model.csi(of).reports)
    {
        const CSI_ReportConfig& report = *entry.element;
        Resource resource{};
        resource.kind = Kind::CsiReport;
        resource.path = gather.pathOf(nr_rrc::type_CSI_ReportConfig, report);
        resource.name = words("CSI %u", entry.id);
        resource.title = words("CSI report %u", entry.id);
        if (&of != &cell)
        {
            append(resource.title, " of SCell %u", of.index ? *of.index : 0U);
        }
        const auto* const type = &report.reportConfigType;
        const auto* const periodic = CHOSEN(gather.tree, type, CSI_ReportConfig_reportConfigType, periodic);
        const auto* const persistent =
            CHOSEN(gather.tree, type, CSI_ReportConfig_reportConfigType, semiPersistentOnPUCCH);
        if (periodic == nullptr && persistent == nullptr)
        {
            gather.cannot(resource.path, resource.title, "on PUSCH, in slots that DCI tells");
            continue;
        }
        if (persistent != nullptr)
        {
            resource.detail += ", while activated,";
        }
        for (const PUCCH_CSI_Resource& used : csiResourcesOf(gather.tree, report))
        {
            const Bwp* const bwp = pucchBwp(cell, used.uplinkBandwidthPartId);
            const Place* const place = bwp == nullptr ? nullptr : gather.placeOf(*bwp);
            if (place == nullptr)
            {
                gather.cannot(resource.path, resource.title,
                              words("uplink bandwidth part %u with a PUCCH; ", unsigned{used.uplinkBandwidthPartId}) +
                                  needWords(bwp == nullptr ? OSUINT32{RRC_RULE_INPUT_PREVIOUS} : bwp->missing));
                continue;
            }
            Resource one = resource;
            one.title += " of " + nameOf(*bwp);
            addOccasions(gather, *place, std::move(one), used.pucch_Resource,
                         recurrenceOf(periodic != nullptr ? periodic->reportSlotConfig : persistent->reportSlotConfig));
        }
    }
}

} // namespace rules::draw
