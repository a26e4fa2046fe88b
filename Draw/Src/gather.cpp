#include "gather.h"

#include "uplinkParts.h"

#include <cstdarg>
#include <numeric>

namespace rules::draw
{
namespace
{

constexpr OSUINT32 mostOccasions = 20000; // of a cell, so that a picture stays one that can be shown
constexpr OSUINT32 mostWait = 320;        // slots that repetitions are looked for in: of a period at the widest spacing
constexpr OSUINT32 mostRbs = 550;         // of an axis: a carrier, and as much beyond it

void extend(NrSpan& axis, NrSpan rbs)
{
    if (rbs.size == 0)
    {
        return;
    }
    const OSUINT32 start = axis.size == 0 ? rbs.start : std::min(axis.start, rbs.start);
    const OSUINT32 end = axis.size == 0 ? rbs.start + rbs.size : std::max(axis.start + axis.size, rbs.start + rbs.size);
    if (end > start && end - start <= mostRbs)
    {
        axis = {start, end - start};
    }
}

std::string titleOf(const Cell& cell)
{
    std::string title = cell.isSpCell() ? std::string("SpCell") : words("SCell %u", unsigned{cell.sCell->sCellIndex});
    if (cell.band)
    {
        append(title, ", band n%u", *cell.band);
    }
    return title;
}

void appendAll(std::string& text, const char* format, va_list args)
{
    va_list again;
    va_copy(again, args);
    const int length = std::vsnprintf(nullptr, 0, format, args);
    const size_t before = text.size();
    if (length > 0)
    {
        text.resize(before + static_cast<size_t>(length) + 1); // with the terminator
        (void)std::vsnprintf(text.data() + before, static_cast<size_t>(length) + 1, format, again);
        text.pop_back();
    }
    va_end(again);
}

} // namespace

void append(std::string& text, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    appendAll(text, format, args);
    va_end(args);
}

std::string words(const char* format, ...)
{
    std::string text;
    va_list args;
    va_start(args, format);
    appendAll(text, format, args);
    va_end(args);
    return text;
}

std::string spanWords(const char* what, NrSpan span)
{
    const char* const gap = *what == '\0' ? "" : " ";
    return span.size == 1
               ? words("%s%s%u", what, gap, span.start)
               : words("%s%s%s%u..%u", what, *what == '\0' ? "" : "s", gap, span.start, span.start + span.size - 1);
}

std::string recurrenceWords(OSUINT32 period, OSUINT32 offset, OSUINT32 duration)
{
    if (period == 1)
    {
        return "in every slot";
    }
    return words("every %u slots from slot %u on", period, offset % period) +
           (duration > 1 ? words(", %u slots each", duration) : std::string());
}

std::string needWords(OSUINT32 inputs)
{
    std::string text;
    for (OSUINT32 i = 0; i < RRC_RULE_INPUTS; ++i)
    {
        if ((inputs >> i & 1) != 0)
        {
            text += (text.empty() ? "needs " : " or ") + std::string(rrcRuleInputName(OSUINT32{1} << i));
        }
    }
    return text.empty() ? "the configuration contradicts itself" : text;
}

void Gather::cannot(const std::string& path, const std::string& title, const std::string& reason)
{
    made_.unplaced.push_back({path, title, reason});
}

const Place* Gather::placeOf(const Bwp& bwp) const
{
    for (const Place& place : places_)
    {
        if (place.bwp == &bwp)
        {
            return &place;
        }
    }
    return nullptr;
}

void Gather::placeBwp(Bwp& bwp)
{
    if (bwp.generic == nullptr || muOf(bwp.generic->subcarrierSpacing) > highestMu)
    {
        // An initial one of which nothing is configured is no news.
        const bool isUsed = !bwp.isInitial() || bwp.downlinkDedicated != nullptr || bwp.uplinkDedicated != nullptr;
        if (isUsed)
        {
            cannot(made_.path, nameOf(bwp), needWords(bwp.generic == nullptr ? bwp.missing : 0));
        }
        return;
    }
    const OSUINT32 mu = muOf(bwp.generic->subcarrierSpacing);
    size_t grid = 0;
    while (grid < made_.grids.size() &&
           (made_.grids[grid].mu != mu || made_.grids[grid].isExtended != bwp.isExtended()))
    {
        ++grid;
    }
    if (grid == made_.grids.size())
    {
        made_.grids.push_back({mu, bwp.isExtended(), {}, false, {}, {}});
    }
    std::vector<Panel>& panels = made_.grids[grid].panels;
    size_t panel = 0;
    while (panel < panels.size() && panels[panel].direction != bwp.direction)
    {
        ++panel;
    }
    const Known<const SCS_SpecificCarrier*> carrier = model.carrier(bwp);
    const bool isCommon = carrier && *carrier != nullptr;
    if (panel == panels.size())
    {
        const OSUINT32 offset = isCommon ? (*carrier)->offsetToCarrier : 0U;
        Panel made{bwp.direction, isCommon, offset, {}, {}, {}, {}};
        if (isCommon)
        {
            extend(made.axis, {offset, (*carrier)->carrierBandwidth});
        }
        panels.push_back(std::move(made));
    }
    const Known<NrSpan> located = bwp.located();
    const OSUINT32 offset = panels[panel].offset;
    const Known<NrSpan> rbs =
        located ? Known<NrSpan>(NrSpan{offset + located->start, located->size}) : Known<NrSpan>::unless(0);
    const Known<OSUINT32> commonStart = !located   ? Known<OSUINT32>::unless(0)
                                        : isCommon ? Known<OSUINT32>(rbs->start)
                                                   : Known<OSUINT32>::unless(carrier.inputs());
    places_.push_back({&bwp, grid, panel, rbs, commonStart});
}

void Gather::add(const Place& place, Resource&& resource)
{
    resource.bwp = place.bwp;
    resource.own = place.rbs ? *place.rbs : NrSpan{};
    const OSUINT32 slot = place.bwp->symbolsPerSlot();
    bool isWithin = true;
    bool isAny = false;
    for (Shape& shape : resource.shapes)
    {
        const size_t left =
            std::erase_if(shape, [&](const Rect& rect) { return rect.symbols.start + rect.symbols.size > slot; });
        isWithin = isWithin && left == 0;
        isAny = isAny || !shape.empty();
    }
    if (!isWithin)
    {
        cannot(resource.path, resource.title,
               words("%s, which do not stay within a slot of %u", isAny ? "some of its symbols" : "its symbols", slot));
    }
    if (!isAny)
    {
        return;
    }
    panelOf(place).resources.push_back(std::move(resource));
}

// The least common multiple of what recurs, as far as a picture can show.
void Gather::chooseSlots(Grid& grid)
{
    OSUINT32 count = options_.slots;
    if (count == 0)
    {
        count = 1;
        const auto join = [&](OSUINT32 period)
        {
            count = period == 0 ? count : std::min(std::lcm(count, period), OSUINT32{RRC_DRAW_USUAL_SLOTS});
        };
        for (const Panel& panel : grid.panels)
        {
            for (const Resource& resource : panel.resources)
            {
                join(resource.period);
            }
        }
        if (const Known<TddGrid> tdd = tddGrid(model, *cell_); tdd && grid.hasTdd)
        {
            join(gridSlots(*tdd, grid.mu));
        }
    }
    grid.slots = {options_.firstSlot, std::min(count, OSUINT32{RRC_DRAW_MAX_SLOTS})};
}

bool Gather::isFree(const Grid& grid, const Resource& resource, OSUINT32 slot)
{
    return !grid.hasTdd || (tddSlotAt(*this, *cell_, grid, slot).downlink & symbolBits(resource.shapes[0])) == 0;
}

// Repetitions in the slots that have its symbols, from each occasion's first slot on (TS 38.213 9.2.6).
void Gather::fillWaiting(const Grid& grid, Resource& resource)
{
    const OSUINT32 end = grid.slots.start + grid.slots.size;
    const OSUINT32 offset = resource.offset % resource.period;
    const OSUINT32 before = std::max(mostWait, resource.period);
    OSUINT32 slot = grid.slots.start > before ? grid.slots.start - before : 0;
    slot += (offset + resource.period - slot % resource.period) % resource.period;
    for (; slot < end; slot += resource.period)
    {
        OSUINT32 sent = 0;
        for (OSUINT32 at = slot; at < end && at < slot + mostWait && sent < resource.duration; ++at)
        {
            if (isFree(grid, resource, at))
            {
                if (at >= grid.slots.start)
                {
                    resource.occasions.push_back({at, sent % static_cast<OSUINT32>(resource.shapes.size())});
                }
                ++sent;
            }
        }
    }
    std::stable_sort(resource.occasions.begin(), resource.occasions.end(),
                     [](const Occasion& a, const Occasion& b) { return a.slot < b.slot; });
    occasions_ += static_cast<OSUINT32>(resource.occasions.size());
}

void Gather::fillSlots(Grid& grid, Resource& resource)
{
    if (resource.waits)
    {
        fillWaiting(grid, resource);
        return;
    }
    const OSUINT32 first = grid.slots.start;
    const OSUINT32 end = first + grid.slots.size;
    const OSUINT32 offset = resource.offset % resource.period;
    for (OSUINT32 slot = first; slot < end; ++slot)
    {
        const OSUINT32 within = (slot + resource.period - offset) % resource.period;
        if (within >= resource.duration)
        {
            continue;
        }
        if (++occasions_ > mostOccasions)
        {
            cannot(
                resource.path, resource.title,
                words("from slot %u on: the picture has no room for more than %u occasions of a cell; draw fewer slots",
                      slot, mostOccasions));
            return;
        }
        const OSUINT32 number = slot >= offset ? (slot - offset) / resource.period : 0;
        const OSUINT32 turn = resource.turn == Turn::Occasion     ? number
                              : resource.turn == Turn::Repetition ? within
                                                                  : slot;
        resource.occasions.push_back({slot, turn % static_cast<OSUINT32>(resource.shapes.size())});
    }
    if (resource.occasions.empty())
    {
        const OSUINT32 next = first + (offset + resource.period - first % resource.period) % resource.period;
        cannot(resource.path, resource.title,
               words("not in %s, the next time in slot %u", spanWords("slot", grid.slots).c_str(), next));
    }
}

void Gather::fitAxis(Panel& panel)
{
    for (const Part& part : panel.parts)
    {
        for (const NrSpan& rbs : part.rbs)
        {
            extend(panel.axis, rbs);
        }
    }
    for (const Resource& resource : panel.resources)
    {
        for (const Shape& shape : resource.shapes)
        {
            for (const Rect& rect : shape)
            {
                extend(panel.axis, rect.rbs);
            }
        }
    }
}

CellPicture Gather::picture(Cell& cell)
{
    made_ = {};
    places_.clear();
    occasions_ = 0;
    cell_ = &cell;
    made_.title = titleOf(cell);
    made_.path = cell.isSpCell() ? pathOf(nr_rrc::type_SpCellConfig, *cell.spCell)
                                 : pathOf(nr_rrc::type_SCellConfig, *cell.sCell);
    for (const Direction direction : directions)
    {
        for (Bwp& bwp : cell.bwps(direction))
        {
            placeBwp(bwp);
        }
    }
    for (const Place& place : places_)
    {
        addPart(*this, place);
    }
    for (const Place& place : places_)
    {
        addPdcch(*this, place);
        addZeroPower(*this, place);
        addSrs(*this, place);
        addPucch(*this, place);
        addAllocations(*this, place);
    }
    addBlocks(*this, cell);
    addCsi(*this, cell);
    if (pucchCellOf(model, cell) == nullptr)
    {
        for (const IdEntry<CSI_ReportConfig>& entry : model.csi(cell).reports)
        {
            cannot(pathOf(nr_rrc::type_CSI_ReportConfig, *entry.element), words("CSI report %u", entry.id),
                   "the cell of its PUCCH; " + needWords(RRC_RULE_INPUT_PREVIOUS));
        }
    }
    for (Cell& other : model.cells())
    {
        if (pucchCellOf(model, other) == &cell)
        {
            addReports(*this, cell, other);
        }
    }
    for (Grid& grid : made_.grids)
    {
        grid.hasTdd = hasPattern(*this, cell, grid);
        chooseSlots(grid);
        for (OSUINT32 slot = 0; grid.hasTdd && slot < grid.slots.size; ++slot)
        {
            grid.tdd.push_back(tddSlotAt(*this, cell, grid, grid.slots.start + slot));
        }
        for (Panel& panel : grid.panels)
        {
            fitAxis(panel);
            std::stable_sort(panel.resources.begin(), panel.resources.end(),
                             [](const Resource& a, const Resource& b) { return a.kind < b.kind; });
            for (Resource& resource : panel.resources)
            {
                if (resource.period != 0)
                {
                    fillSlots(grid, resource);
                }
            }
        }
        findClashes(*this, grid);
    }
    return std::move(made_);
}

} // namespace rules::draw
