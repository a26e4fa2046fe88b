// CORESETs and the occasions of search spaces.
#include "gather.h"
#include "searchSpaces.h"

#include "rtxLine.h"

namespace rules::draw
{
namespace
{

// Resource blocks in ascending order as spans.
void addRbs(std::vector<NrSpan>& spans, NrSpan rbs)
{
    if (!spans.empty() && spans.back().start + spans.back().size == rbs.start)
    {
        spans.back().size += rbs.size;
        return;
    }
    spans.push_back(rbs);
}

struct Control
{
    OSUINT32 id;
    OSUINT32 symbols;
    std::vector<NrSpan> rbs; // on the axis; none: not known
    OSUINT32 inputs;         // what would tell it
    std::string path;
    bool isBeyond; // its bandwidth part
};

Control controlOf(Gather& gather, const Place& place, const ControlResourceSet& coreset)
{
    constexpr OSUINT32 groupRbs = 6;
    Control control{coreset.controlResourceSetId, coreset.duration, {}, 0, {}, false};
    control.path = gather.pathOf(nr_rrc::type_ControlResourceSet, coreset);
    control.inputs = place.commonStart.inputs() | place.rbs.inputs();
    if (!place.commonStart || !place.rbs)
    {
        return control;
    }
    const OSUINT32 groups = nrCoresetGroups(*place.commonStart, place.rbs->size);
    for (OSUINT32 group = 0; group < coresetBits; ++group)
    {
        if (hasBit(coreset.frequencyDomainResources, group))
        {
            addRbs(control.rbs, {place.rbs->start + nrCoresetGroupStart(*place.commonStart, group), groupRbs});
            control.isBeyond = control.isBeyond || group >= groups;
        }
    }
    return control;
}

// CORESET#0 as MIB and SIB1 give it.
Control control0(Gather& gather, const Place& place)
{
    Control control{0, 0, {}, 0, gather.cellPath(), false};
    const Cell& cell = *place.bwp->cell;
    const Known<NrCoreset0> coreset = coreset0Of(gather.model, cell);
    const Known<int64_t> start = coreset0Start(gather.model, cell);
    control.inputs = coreset.inputs() | start.inputs();
    const Bwp* const initial = cell.bwp(Direction::Downlink, 0);
    const Known<OSUINT32> mu = initial == nullptr ? Known<OSUINT32>::unless(0) : initial->mu();
    const Known<OSUINT32> own = place.bwp->mu();
    if (coreset)
    {
        control.symbols = coreset->symbols;
    }
    if (coreset && start && *start >= 0 && mu && own && *mu == *own && gather.panelOf(place).isCommon)
    {
        control.rbs.push_back({static_cast<OSUINT32>(*start), coreset->rbs});
    }
    return control;
}

std::string spansWords(const char* what, const std::vector<NrSpan>& spans)
{
    std::string text;
    for (const NrSpan& span : spans)
    {
        text += (text.empty() ? "" : ", ") + spanWords(text.empty() ? what : "", span);
    }
    return text;
}

std::string symbolList(OSUINT32 first)
{
    std::string text;
    for (OSUINT32 i = 0; i < NR_SYMBOLS; ++i)
    {
        if ((first >> i & 1) != 0)
        {
            append(text, "%s%u", text.empty() ? "" : ", ", i);
        }
    }
    return text;
}

void addSearchSpace(Gather& gather, const Place& place, const SearchSpace& space, const std::vector<Control>& controls)
{
    const std::string path = gather.pathOf(nr_rrc::type_SearchSpace, space);
    Resource resource{};
    resource.kind = Kind::SearchSpace;
    resource.path = path;
    resource.bwp = place.bwp;
    resource.name = words("SS %u", unsigned{space.searchSpaceId});
    resource.title = words("search space %u of %s", unsigned{space.searchSpaceId}, nameOf(*place.bwp).c_str());
    const auto* const named = MEMBER(space, controlResourceSetId);
    if (named == nullptr)
    {
        gather.cannot(path, resource.title, "has no controlResourceSetId; " + needWords(RRC_RULE_INPUT_PREVIOUS));
        return;
    }
    Control found{*named, 0, {}, 0, {}, false};
    for (const Control& control : controls)
    {
        found = control.id == *named ? control : found;
    }
    if (*named == 0)
    {
        found = control0(gather, place);
    }
    if (found.symbols == 0)
    {
        gather.cannot(path, resource.title,
                      words("its CORESET %u is not there; ", unsigned{*named}) +
                          needWords(found.inputs != 0 ? found.inputs : OSUINT32{RRC_RULE_INPUT_PREVIOUS}));
        return;
    }
    const Known<Monitoring> monitoring = monitoringOf(space);
    const OSUINT32 first = firstSymbolsOf(space);
    if (!monitoring || first == 0)
    {
        gather.cannot(path, resource.title,
                      (monitoring ? "no symbol of monitoringSymbolsWithinSlot is given; " : "when it is monitored; ") +
                          needWords(RRC_RULE_INPUT_PREVIOUS));
        return;
    }
    resource.period = monitoring->period;
    resource.offset = monitoring->offset;
    resource.duration = std::max<OSUINT32>(monitoring->duration, 1);
    Shape shape;
    const std::vector<NrSpan> nowhere = {{0, 0}};
    for (OSUINT32 symbol = 0; symbol < place.bwp->symbolsPerSlot(); ++symbol)
    {
        for (const NrSpan& rbs : found.rbs.empty() ? nowhere : found.rbs)
        {
            if ((first >> symbol & 1) != 0)
            {
                shape.push_back({rbs, {symbol, found.symbols}});
            }
        }
    }
    resource.shapes.push_back(std::move(shape));
    append(resource.detail, ", CORESET %u%s%s, from symbol %s on for %u, %s", found.id, found.rbs.empty() ? "" : ", ",
           spansWords(gather.panelOf(place).rbWord(), found.rbs).c_str(), symbolList(first).c_str(), found.symbols,
           recurrenceWords(resource.period, resource.offset, resource.duration).c_str());
    if (found.rbs.empty())
    {
        gather.cannot(path, resource.title, "its resource blocks: " + needWords(found.inputs));
    }
    gather.add(place, std::move(resource));
}

} // namespace

void addPdcch(Gather& gather, const Place& place)
{
    if (place.bwp->direction != Direction::Downlink)
    {
        return;
    }
    const Pdcch& pdcch = gather.model.pdcch(*place.bwp);
    std::vector<Control> controls;
    for (const Coreset& coreset : pdcch.allCoresets)
    {
        Control control = controlOf(gather, place, *coreset.element);
        const std::string title = words("CORESET %u of %s", coreset.id, nameOf(*place.bwp).c_str());
        if (control.rbs.empty())
        {
            gather.cannot(control.path, title,
                          control.inputs != 0 || !place.commonStart
                              ? "its resource blocks: " + needWords(control.inputs)
                              : std::string("frequencyDomainResources has no bit set"));
        }
        else
        {
            gather.panelOf(place).parts.push_back(
                {coresetPart, control.path,
                 words("%s: %s, %u symbol%s", title.c_str(),
                       spansWords(gather.panelOf(place).rbWord(), control.rbs).c_str(), control.symbols,
                       rtx::plural(control.symbols)),
                 words("C %u", coreset.id), control.rbs, control.isBeyond});
        }
        if (control.isBeyond)
        {
            gather.clash(
                words("%s reaches beyond its bandwidth part of %u resource blocks", title.c_str(), place.rbs->size),
                control.path);
        }
        controls.push_back(std::move(control));
    }
    const bool hasZero = pdcch.common != nullptr && pdcch.common->m.searchSpaceZeroPresent != 0;
    if (hasZero)
    {
        gather.cannot(gather.cellPath(), "search space 0 of " + nameOf(*place.bwp),
                      "its occasions follow the SS/PBCH block that the UE has found (TS 38.213 13)");
    }
    const Control zero = place.bwp->isInitial() ? control0(gather, place) : Control{};
    if (!zero.rbs.empty())
    {
        gather.panelOf(place).parts.push_back(
            {coresetPart, zero.path,
             words("CORESET 0: %s, %u symbol%s", spansWords("common resource block", zero.rbs).c_str(), zero.symbols,
                   rtx::plural(zero.symbols)),
             "C 0", zero.rbs, false});
    }
    for (const SearchSpaceEntry& space : pdcch.allSearchSpaces)
    {
        addSearchSpace(gather, place, *space.element, controls);
    }
}

} // namespace rules::draw
