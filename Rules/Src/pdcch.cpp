#include "pdcch.h"

namespace rules
{

const ControlResourceSetId* coresetIdOf(const SearchSpace& space)
{
    return MEMBER(space, controlResourceSetId);
}

const CrossCarrierSchedulingConfig* crossCarrierOf(const Cell& cell)
{
    return cell.dedicated == nullptr ? nullptr : MEMBER(*cell.dedicated, crossCarrierSchedulingConfig);
}

const CrossCarrierSchedulingConfig_schedulingCellInfo_other* schedulerOf(const Check& check, const Cell& cell)
{
    const CrossCarrierSchedulingConfig* const config = crossCarrierOf(cell);
    return config == nullptr ? nullptr
                             : CHOSEN(check.tree, &config->schedulingCellInfo,
                                      CrossCarrierSchedulingConfig_schedulingCellInfo, other);
}

bool mayBeScheduledByOther(const Check& check, const Cell& cell)
{
    return schedulerOf(check, cell) != nullptr ||
           (!cell.isSpCell() && !cell.complete && crossCarrierOf(cell) == nullptr);
}

bool isComplete(const Bwp& bwp)
{
    return bwp.cell->complete || bwp.novelty == Novelty::New;
}

const SlotFormatIndicator* slotFormatIndicatorOf(const Check& check, const Cell& cell)
{
    const PDCCH_ServingCellConfig* const config =
        cell.dedicated == nullptr ? nullptr : check.tree.setup(MEMBER(*cell.dedicated, pdcch_ServingCellConfig));
    return config == nullptr ? nullptr : check.tree.setup(MEMBER(*config, slotFormatIndicator));
}

const DownlinkPreemption* preemptionOf(const Check& check, const Bwp& bwp)
{
    return bwp.pdcch == nullptr ? nullptr : check.tree.setup(MEMBER(*bwp.pdcch, downlinkPreemption));
}

MonitoredFormats monitoredFormats(const Check& check, const Pdcch& pdcch)
{
    MonitoredFormats formats{};
    for (const SearchSpaceEntry& entry : pdcch.allSearchSpaces)
    {
        if (const auto* const common = commonType(check.tree, *entry.element))
        {
            formats.fallback = formats.fallback || common->m.dci_Format0_0_AndFormat1_0Present != 0;
            formats.slots = formats.slots || common->m.dci_Format2_0Present != 0;
            formats.preemption = formats.preemption || common->m.dci_Format2_1Present != 0;
        }
        if (const auto* const specific = ueSpecificType(check.tree, *entry.element))
        {
            const bool isOther =
                specific->dci_Formats == SearchSpace_searchSpaceType_ue_Specific_dci_Formats_formats0_1_And_1_1;
            (isOther ? formats.other : formats.fallback) = true;
        }
    }
    return formats;
}

} // namespace rules
