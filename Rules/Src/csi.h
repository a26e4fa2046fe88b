// What rules of CSI share.
#ifndef RULES_CSI_H
#define RULES_CSI_H

#include "check.h"
#include "modelLists.h"

namespace rules
{

constexpr auto aperiodic = CSI_ResourceConfig_resourceType_aperiodic;
constexpr auto semiPersistent = CSI_ResourceConfig_resourceType_semiPersistent;
constexpr auto periodic = CSI_ResourceConfig_resourceType_periodic;

using Quantity = CSI_ReportConfig_reportQuantity;
using ReportType = CSI_ReportConfig_reportConfigType;

const char* nameOf(CSI_ResourceConfig_resourceType type);

bool hasCqi(const Quantity& quantity);

// Of the PMI i1 alone.
bool hasI1(const Quantity& quantity);

bool hasPmi(const Quantity& quantity);

bool isRsrp(const Quantity& quantity);

bool isNothing(const Quantity& quantity);

bool isAperiodic(const CSI_ReportConfig& report);

// Each cell's CSI-MeasConfig.
template <typename Each>
void forCsi(Check& check, const Each& each)
{
    for (Cell& cell : check.model.cells())
    {
        const Csi& csi = check.model.csi(cell);
        if (csi.config != nullptr)
        {
            each(cell, csi);
        }
    }
}

// A report with the settings that it names, null where they do not resolve.
struct ReportView
{
    Cell& cell; // whose CSI-MeasConfig has it
    const CSI_ReportConfig& report;
    Cell* carrier;  // whose resources it is about
    const Csi* csi; // of that
    const CSI_ResourceConfig* channel;
    const CSI_ResourceConfig* im;
    const CSI_ResourceConfig* nzp;
};

ReportView viewOf(Check& check, Cell& cell, const CSI_ReportConfig& report);

template <typename Each>
void forReports(Check& check, const Each& each)
{
    forCsi(check,
           [&](Cell& cell, const Csi& csi)
           {
               for (const IdEntry<CSI_ReportConfig>& entry : csi.reports)
               {
                   each(viewOf(check, cell, *entry.element));
               }
           });
}

std::span<const NZP_CSI_RS_ResourceSetId> nzpSetIds(Check& check, const CSI_ResourceConfig& config);

std::span<const CSI_SSB_ResourceSetId> ssbSetIds(Check& check, const CSI_ResourceConfig& config);

std::span<const CSI_IM_ResourceSetId> imSetIds(Check& check, const CSI_ResourceConfig& config);

template <size_t N>
CsiUse useOf(const CsiUse (&uses)[N], OSUINT32 id)
{
    return id < N ? uses[id] : CsiUse{};
}

// Whether settings that share something differ in resourceType, which csi-one-set tells.
inline bool isMixed(const CsiUse& use)
{
    return (use.types & (use.types - 1)) != 0;
}

// The sets of a setting that are there.
template <typename Each>
void forNzpSets(Check& check, const Csi* csi, const CSI_ResourceConfig* config, const Each& each)
{
    if (csi == nullptr || config == nullptr)
    {
        return;
    }
    for (const auto id : nzpSetIds(check, *config))
    {
        const NZP_CSI_RS_ResourceSet* const set = csi->nzpSets.repeats ? nullptr : csi->nzpSets.element(id);
        if (set != nullptr && !isMixed(useOf(csi->nzpSetUse, id)))
        {
            each(*set);
        }
    }
}

// The resources of a set that are there, each with the place where the set names it.
template <typename Each>
void forResources(const Csi& csi, const NZP_CSI_RS_ResourceSet& set, const Each& each)
{
    for (const NZP_CSI_RS_ResourceId& id : entries(&set.nzp_CSI_RS_Resources))
    {
        const NZP_CSI_RS_Resource* const resource = csi.nzpResources.repeats ? nullptr : csi.nzpResources.element(id);
        if (resource != nullptr && !isMixed(useOf(csi.nzpUse, id)))
        {
            each(*resource, id);
        }
    }
}

// The resources of all sets of a report's channel setting.
template <typename Each>
void forChannelResources(Check& check, const ReportView& view, const Each& each)
{
    forNzpSets(check, view.csi, view.channel,
               [&](const NZP_CSI_RS_ResourceSet& set)
               { forResources(*view.csi, set, [&](const NZP_CSI_RS_Resource& one, const auto&) { each(one); }); });
}

// How many different ids a list names; of the same id twice gen-dup-id speaks.
template <typename Id>
size_t countOf(std::span<const Id> ids)
{
    size_t count = 0;
    for (size_t i = 0; i < ids.size(); ++i)
    {
        count += std::find(ids.begin(), ids.begin() + static_cast<std::ptrdiff_t>(i), ids[i]) ==
                         ids.begin() + static_cast<std::ptrdiff_t>(i)
                     ? 1U
                     : 0U;
    }
    return count;
}

size_t sizeOf(const NZP_CSI_RS_ResourceSet& set);

// How many ports the resources of a channel setting have: 0 where none is known, or they differ.
OSUINT32 channelPorts(Check& check, const ReportView& view);

// Whether a report measures its channel on a set for tracking; and whether it must not, which csi-trs tells.
bool namesTracking(Check& check, const ReportView& view);
bool misusesTracking(Check& check, const ReportView& view);

// A setting's bandwidth part; null where it is not there.
Bwp* bwpOf(const Cell* carrier, const CSI_ResourceConfig* config);

} // namespace rules

#endif
