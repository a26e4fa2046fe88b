// Bandwidth parts and carriers.
#include "examplePaths.h"
#include "rules.h"

namespace rules
{
namespace
{

// Each bandwidth part of each cell, in every direction.
template <typename Each>
void forBwps(Check& check, const Each& each)
{
    for (Cell& cell : check.model.cells())
    {
        for (const Direction direction : {Direction::Downlink, Direction::Uplink, Direction::Supplementary})
        {
            for (Bwp& bwp : cell.bwps(direction))
            {
                each(cell, bwp);
            }
        }
    }
}

// A bandwidth part lies in the carrier of its spacing.
void bwpInCarrier(Check& check)
{
    forBwps(
        check,
        [&](const Cell&, const Bwp& bwp)
        {
            const Known<NrSpan> rbs = bwp.rbs();
            const Known<const SCS_SpecificCarrier*> carrier = check.model.carrier(bwp);
            if (!check.decided(rbs) || !check.decided(carrier) || *carrier == nullptr)
            {
                return;
            }
            const OSUINT32 last = rbs->start + rbs->size - 1;
            if (last >= (*carrier)->carrierBandwidth)
            {
                check.error(&bwp.generic->locationAndBandwidth)
                    .found("%u, which with N = 275 is RB %u..%u", bwp.generic->locationAndBandwidth, rbs->start, last)
                    .allowed("the carrier at %u kHz has RB 0..%u", khzOf(*bwp.mu()), (*carrier)->carrierBandwidth - 1U);
            }
        });
}

// What firstActive names is a bandwidth part that is there.
template <typename Id>
void activeRef(Check& check, const Cell& cell, Direction direction, const Id* id)
{
    if (id == nullptr || *id == 0 || cell.bwp(direction, *id) != nullptr)
    {
        return;
    }
    check.missing(cell.complete, id)
        .allowed("there is no %s bandwidth part %u", direction == Direction::Downlink ? "downlink" : "uplink", *id);
}

void bwpActiveRef(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        if (cell.dedicated != nullptr)
        {
            activeRef(check, cell, Direction::Downlink, MEMBER(*cell.dedicated, firstActiveDownlinkBWP_Id));
        }
        if (cell.uplinkConfig != nullptr)
        {
            activeRef(check, cell, Direction::Uplink, MEMBER(*cell.uplinkConfig, firstActiveUplinkBWP_Id));
        }
        if (cell.supplementary != nullptr)
        {
            activeRef(check, cell, Direction::Supplementary, MEMBER(*cell.supplementary, firstActiveUplinkBWP_Id));
        }
    }
}

constexpr Rule table[] = {
    {.told = {.id = "bwp-in-carrier",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "A bandwidth part, its locationAndBandwidth decoded with 275 resource blocks, lies within the "
                  "carrier of its subcarrier spacing.",
              .advice = "Compute locationAndBandwidth with N = 275, whatever the carrier's width.",
              .clause = "TS 38.331 BWP; TS 38.213 12",
              .given = "",
              .bad = AT_DL "bwp-Common.genericParameters.locationAndBandwidth = 824\n" // RB 0..273
              AT_UL "bwp-Common.genericParameters.locationAndBandwidth = 824",
              .good = AT_DL "bwp-Common.genericParameters.locationAndBandwidth = 1099\n" // RB 0..272
              AT_UL "bwp-Common.genericParameters.locationAndBandwidth = 1099",
              .since = "0.1.0"},
     .run = bwpInCarrier},
    {.told = {.id = "bwp-active-ref",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "firstActiveDownlinkBWP-Id and firstActiveUplinkBWP-Id are 0 or name a bandwidth part that is "
                  "configured.",
              .advice = "Add the bandwidth part, or activate one that there is.",
              .clause = "TS 38.331 ServingCellConfig",
              .given = "",
              .bad = AT_CELL "firstActiveDownlinkBWP-Id = 2",
              .good = AT_CELL "firstActiveDownlinkBWP-Id = 1",
              .since = "0.1.0"},
     .run = bwpActiveRef},
};

} // namespace

constinit const RuleGroup bwpRules = groupOf(table);

} // namespace rules
