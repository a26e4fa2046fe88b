// What rules of PDCCH share.
#ifndef RULES_PDCCH_H
#define RULES_PDCCH_H

#include "check.h"
#include "searchSpaces.h"

namespace rules
{

// Each downlink bandwidth part with what its PDCCH members list.
template <typename Each>
void forPdcch(Check& check, const Each& each)
{
    for (Cell& cell : check.model.cells())
    {
        for (Bwp& bwp : cell.downlink)
        {
            each(bwp, check.model.pdcch(bwp));
        }
    }
}

template <typename Each>
void forCoresets(Check& check, const Each& each)
{
    forPdcch(check,
             [&](Bwp& bwp, const Pdcch& pdcch)
             {
                 for (const Coreset& coreset : pdcch.allCoresets)
                 {
                     each(bwp, *coreset.element);
                 }
             });
}

template <typename Each>
void forSearchSpaces(Check& check, const Each& each)
{
    forPdcch(check,
             [&](Bwp& bwp, const Pdcch& pdcch)
             {
                 for (const SearchSpaceEntry& entry : pdcch.allSearchSpaces)
                 {
                     each(bwp, entry);
                 }
             });
}

const ControlResourceSetId* coresetIdOf(const SearchSpace& space);

const CrossCarrierSchedulingConfig* crossCarrierOf(const Cell& cell);

// What says that another cell schedules this one; null where it schedules itself.
const CrossCarrierSchedulingConfig_schedulingCellInfo_other* schedulerOf(const Check& check, const Cell& cell);

// Whether an SCell may be scheduled by another one as an earlier message has said.
bool mayBeScheduledByOther(const Check& check, const Cell& cell);

bool isComplete(const Bwp& bwp);

const SlotFormatIndicator* slotFormatIndicatorOf(const Check& check, const Cell& cell);

const DownlinkPreemption* preemptionOf(const Check& check, const Bwp& bwp);

// What the search spaces of a bandwidth part monitor.
struct MonitoredFormats
{
    bool fallback;   // 0_0 and 1_0
    bool other;      // 0_1 and 1_1
    bool slots;      // 2_0
    bool preemption; // 2_1
};

MonitoredFormats monitoredFormats(const Check& check, const Pdcch& pdcch);

} // namespace rules

#endif
