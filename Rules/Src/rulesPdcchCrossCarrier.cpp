// Cross-carrier scheduling.
#include "examplePaths.h"
#include "pdcch.h"
#include "rules.h"

namespace rules
{
namespace
{

// The scheduling cell says that its DCI has the carrier indicator.
void schedulesOthers(Check& check, const Cell& scheduling, const ServCellIndex* at)
{
    const CrossCarrierSchedulingConfig* const config = crossCarrierOf(scheduling);
    const auto* const own = config == nullptr ? nullptr
                                              : CHOSEN(check.tree, &config->schedulingCellInfo,
                                                       CrossCarrierSchedulingConfig_schedulingCellInfo, own);
    if (config == nullptr)
    {
        check.missing(scheduling.complete, at).allowed("cell %u has no crossCarrierSchedulingConfig with own", *at);
    }
    else if (own == nullptr || own->cif_Presence == 0)
    {
        check.error(at).allowed("cell %u is not configured with own and cif-Presence TRUE", *at);
    }
}

// A scheduled cell has nothing of PDCCH but how many candidates it is given.
void scheduledPdcch(Check& check, Cell& cell, Cell& scheduling)
{
    for (Bwp& bwp : cell.downlink)
    {
        if (bwp.pdcch == nullptr)
        {
            continue;
        }
        const auto only = [&](const auto* member)
        {
            if (member != nullptr)
            {
                check.error(member).allowed("another cell schedules this one: PDCCH-Config has search spaces alone");
            }
        };
        only(MEMBER(*bwp.pdcch, controlResourceSetToAddModList));
        only(MEMBER(*bwp.pdcch, downlinkPreemption));
        only(MEMBER(*bwp.pdcch, tpc_PUSCH));
        only(MEMBER(*bwp.pdcch, tpc_PUCCH));
        only(MEMBER(*bwp.pdcch, tpc_SRS));
        for (const IdEntry<SearchSpace>& entry : check.model.pdcch(bwp).searchSpaces)
        {
            const SearchSpace& space = *entry.element;
            const auto none = [&](const auto* member)
            {
                if (member != nullptr)
                {
                    check.error(member).allowed("another cell schedules this one: there are nrofCandidates alone");
                }
            };
            none(coresetIdOf(space));
            none(MEMBER(space, monitoringSlotPeriodicityAndOffset));
            none(MEMBER(space, duration));
            none(MEMBER(space, monitoringSymbolsWithinSlot));
            none(MEMBER(space, searchSpaceType));
            bool isThere = false;
            bool areKnown = scheduling.complete;
            for (Bwp& other : scheduling.downlink)
            {
                const Pdcch& pdcch = check.model.pdcch(other);
                isThere = isThere || pdcch.searchSpace(entry.id) != nullptr;
                areKnown = areKnown && pdcch.searchSpaces.complete;
            }
            if (!isThere)
            {
                check.missing(areKnown, &space.searchSpaceId).allowed("the scheduling cell has no such search space");
            }
        }
    }
}

// A cell that another one schedules.
void pdcchCrossCarrier(Check& check)
{
    const std::span<Cell> cells = check.model.cells();
    for (Cell& cell : cells)
    {
        const auto* const other = schedulerOf(check, cell);
        if (other == nullptr)
        {
            continue;
        }
        const ServCellIndex* const id = &other->schedulingCellId;
        if (cell.isSpCell())
        {
            check.error(id).allowed("the SpCell schedules itself");
            continue;
        }
        Cell* const scheduling = check.resolveCell(*id, id);
        if (scheduling == nullptr)
        {
            continue;
        }
        if (scheduling == &cell)
        {
            check.error(id).allowed("that is this cell: own says so");
            continue;
        }
        schedulesOthers(check, *scheduling, id);
        scheduledPdcch(check, cell, *scheduling);
        for (const Cell& earlier : cells.first(static_cast<size_t>(&cell - cells.data())))
        {
            const auto* const twin = schedulerOf(check, earlier);
            if (twin != nullptr && twin->schedulingCellId == *id &&
                twin->cif_InSchedulingCell == other->cif_InSchedulingCell)
            {
                check.error(&other->cif_InSchedulingCell)
                    .allowed("SCell %u has the same value in cell %u", *earlier.index, *id);
            }
        }
    }
}

constexpr Rule pdcchCrossCarrierTable[] = {
    {.told =
         {.id = "pdcch-cross-carrier",
          .severity = RRC_RULE_ERROR,
          .statement = "An SCell is scheduled by another configured cell that has own with cif-Presence, with a "
                       "cif-InSchedulingCell of its own; its PDCCH-Config has search spaces alone, with ids of the "
                       "scheduling cell and nrofCandidates.",
          .advice =
              "Configure the scheduling cell with own and cif-Presence TRUE, and search spaces of the same ids there.",
          .clause = "TS 38.331 CrossCarrierSchedulingConfig, SearchSpace, PDCCH-Config; TS 38.213 10.1",
          .given = "SCell 1 is configured.",
          .bad = CROSS_CARRIER AT_CELL "crossCarrierSchedulingConfig.schedulingCellInfo.own.cif-Presence = false",
          .good = CROSS_CARRIER,
          .since = "0.1.0"},
     .run = pdcchCrossCarrier},
};

} // namespace

constinit const RuleGroup pdcchCrossCarrierRules = groupOf(pdcchCrossCarrierTable);

} // namespace rules
