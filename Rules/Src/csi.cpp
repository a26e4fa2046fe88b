#include "csi.h"

namespace rules
{
namespace
{

bool isKind(const Quantity& quantity, std::initializer_list<OSUINT32> kinds)
{
    return std::find(kinds.begin(), kinds.end(), quantity.t) != kinds.end();
}

const CSI_ResourceConfig* configOf(const Csi* csi, const CSI_ResourceConfigId* id)
{
    return csi == nullptr || id == nullptr || csi->resourceConfigs.repeats ? nullptr
                                                                           : csi->resourceConfigs.element(*id);
}

const CSI_ResourceConfig_csi_RS_ResourceSetList_nzp_CSI_RS_SSB* rsLists(Check& check, const CSI_ResourceConfig& config)
{
    return CHOSEN(check.tree, &config.csi_RS_ResourceSetList, CSI_ResourceConfig_csi_RS_ResourceSetList,
                  nzp_CSI_RS_SSB);
}

} // namespace

const char* nameOf(CSI_ResourceConfig_resourceType type)
{
    static constexpr const char* names[] = {"aperiodic", "semiPersistent", "periodic"};
    return type < std::size(names) ? names[type] : "no type";
}

bool hasCqi(const Quantity& quantity)
{
    return isKind(quantity,
                  {T_CSI_ReportConfig_reportQuantity_cri_RI_PMI_CQI, T_CSI_ReportConfig_reportQuantity_cri_RI_i1_CQI,
                   T_CSI_ReportConfig_reportQuantity_cri_RI_CQI, T_CSI_ReportConfig_reportQuantity_cri_RI_LI_PMI_CQI});
}

bool hasI1(const Quantity& quantity)
{
    return isKind(quantity,
                  {T_CSI_ReportConfig_reportQuantity_cri_RI_i1, T_CSI_ReportConfig_reportQuantity_cri_RI_i1_CQI});
}

bool hasPmi(const Quantity& quantity)
{
    return hasI1(quantity) || isKind(quantity, {T_CSI_ReportConfig_reportQuantity_cri_RI_PMI_CQI,
                                                T_CSI_ReportConfig_reportQuantity_cri_RI_LI_PMI_CQI});
}

bool isRsrp(const Quantity& quantity)
{
    return isKind(quantity,
                  {T_CSI_ReportConfig_reportQuantity_cri_RSRP, T_CSI_ReportConfig_reportQuantity_ssb_Index_RSRP});
}

bool isNothing(const Quantity& quantity)
{
    return quantity.t == T_CSI_ReportConfig_reportQuantity_none;
}

bool isAperiodic(const CSI_ReportConfig& report)
{
    return report.reportConfigType.t == T_CSI_ReportConfig_reportConfigType_aperiodic;
}

ReportView viewOf(Check& check, Cell& cell, const CSI_ReportConfig& report)
{
    Cell* const carrier = report.m.carrierPresent != 0 ? check.model.cell(report.carrier) : &cell;
    const Csi* const csi = carrier == nullptr ? nullptr : &check.model.csi(*carrier);
    return {cell,
            report,
            carrier,
            csi,
            configOf(csi, &report.resourcesForChannelMeasurement),
            configOf(csi, MEMBER(report, csi_IM_ResourcesForInterference)),
            configOf(csi, MEMBER(report, nzp_CSI_RS_ResourcesForInterference))};
}

std::span<const NZP_CSI_RS_ResourceSetId> nzpSetIds(Check& check, const CSI_ResourceConfig& config)
{
    const auto* const lists = rsLists(check, config);
    return entries(lists == nullptr ? nullptr : MEMBER(*lists, nzp_CSI_RS_ResourceSetList));
}

std::span<const CSI_SSB_ResourceSetId> ssbSetIds(Check& check, const CSI_ResourceConfig& config)
{
    const auto* const lists = rsLists(check, config);
    return entries(lists == nullptr ? nullptr : MEMBER(*lists, csi_SSB_ResourceSetList));
}

std::span<const CSI_IM_ResourceSetId> imSetIds(Check& check, const CSI_ResourceConfig& config)
{
    return entries(CHOSEN(check.tree, &config.csi_RS_ResourceSetList, CSI_ResourceConfig_csi_RS_ResourceSetList,
                          csi_IM_ResourceSetList));
}

size_t sizeOf(const NZP_CSI_RS_ResourceSet& set)
{
    return countOf(entries(&set.nzp_CSI_RS_Resources));
}

bool namesTracking(Check& check, const ReportView& view)
{
    bool isNamed = false;
    forNzpSets(check, view.csi, view.channel,
               [&](const NZP_CSI_RS_ResourceSet& set) { isNamed = isNamed || set.m.trs_InfoPresent != 0; });
    return isNamed;
}

bool misusesTracking(Check& check, const ReportView& view)
{
    return namesTracking(check, view) &&
           (view.channel->resourceType != aperiodic || !isNothing(view.report.reportQuantity));
}

OSUINT32 channelPorts(Check& check, const ReportView& view)
{
    if (misusesTracking(check, view))
    {
        return 0;
    }
    OSUINT32 ports = 0;
    bool isSame = true;
    forChannelResources(check, view,
                        [&](const NZP_CSI_RS_Resource& resource)
                        {
                            const OSUINT32 these = portsOf(resource.resourceMapping);
                            const bool isRow = csiRsRow(check.tree, resource.resourceMapping) != nullptr; // csi-rs-row
                            isSame = isSame && isRow && (ports == 0 || ports == these);
                            ports = these;
                        });
    return isSame ? ports : 0;
}

Bwp* bwpOf(const Cell* carrier, const CSI_ResourceConfig* config)
{
    return carrier == nullptr || config == nullptr ? nullptr : carrier->bwp(Direction::Downlink, config->bwp_Id);
}

} // namespace rules
