// CSI measurement and reporting.
#include "examplePaths.h"
#include "rules.h"

#include "modelLists.h"
#include "searchSpaces.h"

#include <numeric>

namespace rules
{
namespace
{

constexpr auto aperiodic = CSI_ResourceConfig_resourceType_aperiodic;
constexpr auto semiPersistent = CSI_ResourceConfig_resourceType_semiPersistent;
constexpr auto periodic = CSI_ResourceConfig_resourceType_periodic;

using Quantity = CSI_ReportConfig_reportQuantity;
using ReportType = CSI_ReportConfig_reportConfigType;
using SetList = CSI_ResourceConfig_csi_RS_ResourceSetList;

const char* nameOf(CSI_ResourceConfig_resourceType type)
{
    static constexpr const char* names[] = {"aperiodic", "semiPersistent", "periodic"};
    return type < std::size(names) ? names[type] : "no type";
}

bool isKind(const Quantity& quantity, std::initializer_list<OSUINT32> kinds)
{
    return std::find(kinds.begin(), kinds.end(), quantity.t) != kinds.end();
}

bool hasCqi(const Quantity& quantity)
{
    return isKind(quantity,
                  {T_CSI_ReportConfig_reportQuantity_cri_RI_PMI_CQI, T_CSI_ReportConfig_reportQuantity_cri_RI_i1_CQI,
                   T_CSI_ReportConfig_reportQuantity_cri_RI_CQI, T_CSI_ReportConfig_reportQuantity_cri_RI_LI_PMI_CQI});
}

// Of the PMI i1 alone.
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

const CSI_ResourceConfig* configOf(const Csi* csi, const CSI_ResourceConfigId* id)
{
    return csi == nullptr || id == nullptr ? nullptr : csi->resourceConfigs.element(*id);
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

const CSI_ResourceConfig_csi_RS_ResourceSetList_nzp_CSI_RS_SSB* rsLists(Check& check, const CSI_ResourceConfig& config)
{
    return CHOSEN(check.tree, &config.csi_RS_ResourceSetList, CSI_ResourceConfig_csi_RS_ResourceSetList,
                  nzp_CSI_RS_SSB);
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

template <size_t N>
CsiUse useOf(const CsiUse (&uses)[N], OSUINT32 id)
{
    return id < N ? uses[id] : CsiUse{};
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
        if (const NZP_CSI_RS_ResourceSet* const set = csi->nzpSets.element(id))
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
        if (const NZP_CSI_RS_Resource* const resource = csi.nzpResources.element(id))
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

size_t sizeOf(const NZP_CSI_RS_ResourceSet& set)
{
    return entries(&set.nzp_CSI_RS_Resources).size();
}

// How many ports the resources of a channel setting have: 0 where none is known, or they differ.
OSUINT32 channelPorts(Check& check, const ReportView& view)
{
    OSUINT32 ports = 0;
    bool isSame = true;
    forChannelResources(check, view,
                        [&](const NZP_CSI_RS_Resource& resource)
                        {
                            const OSUINT32 these = portsOf(resource.resourceMapping);
                            isSame = isSame && (ports == 0 || ports == these);
                            ports = these;
                        });
    return isSame ? ports : 0;
}

// A setting's bandwidth part; null where it is not there.
Bwp* bwpOf(const Cell* carrier, const CSI_ResourceConfig* config)
{
    return carrier == nullptr || config == nullptr ? nullptr : carrier->bwp(Direction::Downlink, config->bwp_Id);
}

// Every id along the chain from a report to the resources names something that is there.
void csiRefChain(Check& check)
{
    forCsi(check,
           [&](Cell& cell, const Csi& csi)
           {
               for (const IdEntry<CSI_ReportConfig>& entry : csi.reports)
               {
                   const CSI_ReportConfig& report = *entry.element;
                   const ReportView view = viewOf(check, cell, report);
                   if (view.csi == nullptr)
                   {
                       check.resolveCell(report.carrier, &report.carrier);
                       continue;
                   }
                   static constexpr const char* what = "a CSI-ResourceConfig";
                   const auto& configs = view.csi->resourceConfigs;
                   check.resolve(configs, report.resourcesForChannelMeasurement, &report.resourcesForChannelMeasurement,
                                 what);
                   for (const CSI_ResourceConfigId* const id : {MEMBER(report, csi_IM_ResourcesForInterference),
                                                                MEMBER(report, nzp_CSI_RS_ResourcesForInterference)})
                   {
                       if (id != nullptr)
                       {
                           check.resolve(configs, *id, id, what);
                       }
                   }
               }
               const auto resolveAll = [&](const auto& pool, const auto& ids, const char* what)
               {
                   for (const auto& id : ids)
                   {
                       check.resolve(pool, id, &id, what);
                   }
               };
               for (const IdEntry<CSI_ResourceConfig>& entry : csi.resourceConfigs)
               {
                   resolveAll(csi.nzpSets, nzpSetIds(check, *entry.element), "an NZP-CSI-RS-ResourceSet");
                   resolveAll(csi.ssbSets, ssbSetIds(check, *entry.element), "a CSI-SSB-ResourceSet");
                   resolveAll(csi.imSets, imSetIds(check, *entry.element), "a CSI-IM-ResourceSet");
               }
               for (const IdEntry<NZP_CSI_RS_ResourceSet>& entry : csi.nzpSets)
               {
                   resolveAll(csi.nzpResources, entries(&entry.element->nzp_CSI_RS_Resources),
                              "an NZP-CSI-RS-Resource");
               }
               for (const IdEntry<CSI_IM_ResourceSet>& entry : csi.imSets)
               {
                   resolveAll(csi.imResources, entries(&entry.element->csi_IM_Resources), "a CSI-IM-Resource");
               }
           });
}

// The settings of a report are of the kind that its field is for.
void csiConfigKind(Check& check)
{
    forReports(check,
               [&](const ReportView& view)
               {
                   const CSI_ReportConfig& report = view.report;
                   if (view.channel != nullptr && !imSetIds(check, *view.channel).empty())
                   {
                       check.error(&report.resourcesForChannelMeasurement)
                           .allowed("CSI-ResourceConfig %u lists CSI-IM, and the channel is measured on CSI-RS or "
                                    "SS/PBCH blocks",
                                    report.resourcesForChannelMeasurement);
                   }
                   if (view.im != nullptr && imSetIds(check, *view.im).empty())
                   {
                       check.error(&report.csi_IM_ResourcesForInterference)
                           .allowed("CSI-ResourceConfig %u lists no CSI-IM", report.csi_IM_ResourcesForInterference);
                   }
                   if (view.nzp != nullptr &&
                       (nzpSetIds(check, *view.nzp).empty() || !ssbSetIds(check, *view.nzp).empty()))
                   {
                       check.error(&report.nzp_CSI_RS_ResourcesForInterference)
                           .allowed("CSI-ResourceConfig %u lists something else than NZP CSI-RS",
                                    report.nzp_CSI_RS_ResourcesForInterference);
                   }
                   if (report.m.nzp_CSI_RS_ResourcesForInterferencePresent != 0 && !isAperiodic(report))
                   {
                       check.error(&report.nzp_CSI_RS_ResourcesForInterference)
                           .allowed("only aperiodic reports measure interference on NZP CSI-RS");
                   }
               });
}

// The settings of a report share a bandwidth part, which is there, and the time behaviour.
void csiSameBwp(Check& check)
{
    forCsi(check,
           [&](Cell& cell, const Csi& csi)
           {
               for (const IdEntry<CSI_ResourceConfig>& entry : csi.resourceConfigs)
               {
                   check.resolveBwp(cell, Direction::Downlink, &entry.element->bwp_Id);
               }
           });
    forReports(check,
               [&](const ReportView& view)
               {
                   const auto compare = [&](const CSI_ResourceConfig* config, const CSI_ResourceConfigId* at)
                   {
                       if (view.channel == nullptr || config == nullptr)
                       {
                           return;
                       }
                       const bool areThere =
                           bwpOf(view.carrier, config) != nullptr && bwpOf(view.carrier, view.channel) != nullptr;
                       if (areThere && config->bwp_Id != view.channel->bwp_Id)
                       {
                           check.error(at)
                               .found("%u, on bandwidth part %u", *at, config->bwp_Id)
                               .allowed("the channel is measured on bandwidth part %u", view.channel->bwp_Id);
                       }
                       if (config->resourceType != view.channel->resourceType)
                       {
                           check.error(at)
                               .found("%u, which is %s", *at, nameOf(config->resourceType))
                               .allowed("the channel's resources are %s", nameOf(view.channel->resourceType));
                       }
                   };
                   compare(view.im, &view.report.csi_IM_ResourcesForInterference);
                   compare(view.nzp, &view.report.nzp_CSI_RS_ResourcesForInterference);
               });
}

bool isMixed(const CsiUse& use)
{
    return (use.types & (use.types - 1)) != 0;
}

// A setting that is not aperiodic has one set, and what settings share has the same time behaviour in all of them.
void csiOneSet(Check& check)
{
    forCsi(check,
           [&](const Cell&, const Csi& csi)
           {
               for (const IdEntry<CSI_ResourceConfig>& entry : csi.resourceConfigs)
               {
                   const CSI_ResourceConfig& config = *entry.element;
                   const size_t most = std::max(nzpSetIds(check, config).size(), imSetIds(check, config).size());
                   if (config.resourceType != aperiodic && most > 1)
                   {
                       check.error(&config.csi_RS_ResourceSetList)
                           .found("%zu sets", most)
                           .allowed("resources that are %s are in one set", nameOf(config.resourceType));
                   }
               }
               bool isSetMixed = false;
               const auto judge = [&](const auto& id, const CsiUse& use, const char* what)
               {
                   if (isMixed(use))
                   {
                       isSetMixed = true;
                       check.error(&id)
                           .found("%u, in settings of different resourceType", OSUINT32{id})
                           .allowed("%s has one time behaviour", what);
                   }
               };
               for (const IdEntry<NZP_CSI_RS_ResourceSet>& entry : csi.nzpSets)
               {
                   judge(entry.element->nzp_CSI_ResourceSetId, useOf(csi.nzpSetUse, entry.id), "a set");
               }
               for (const IdEntry<CSI_IM_ResourceSet>& entry : csi.imSets)
               {
                   judge(entry.element->csi_IM_ResourceSetId, useOf(csi.imSetUse, entry.id), "a set");
               }
               if (isSetMixed)
               {
                   return;
               }
               for (const IdEntry<NZP_CSI_RS_Resource>& entry : csi.nzpResources)
               {
                   judge(entry.element->nzp_CSI_RS_ResourceId, useOf(csi.nzpUse, entry.id), "a resource");
               }
               for (const IdEntry<CSI_IM_Resource>& entry : csi.imResources)
               {
                   judge(entry.element->csi_IM_ResourceId, useOf(csi.imUse, entry.id), "a resource");
               }
           });
}

// A periodic report is measured on periodic resources, a semi-persistent one not on aperiodic ones.
void csiReportVsResource(Check& check)
{
    forReports(check,
               [&](const ReportView& view)
               {
                   // resourceType does not apply to SS/PBCH blocks.
                   if (view.channel == nullptr || nzpSetIds(check, *view.channel).empty() || isAperiodic(view.report))
                   {
                       return;
                   }
                   const auto type = view.channel->resourceType;
                   const bool isPeriodic =
                       view.report.reportConfigType.t == T_CSI_ReportConfig_reportConfigType_periodic;
                   if (type == aperiodic || (isPeriodic && type == semiPersistent))
                   {
                       check.error(&view.report.reportConfigType)
                           .allowed("its resources, of CSI-ResourceConfig %u, are %s",
                                    view.report.resourcesForChannelMeasurement, nameOf(type));
                   }
               });
}

// periodicityAndOffset of what is periodic or semi-persistent, and of nothing else.
template <typename Resource>
void judgePeriod(Check& check, const IdEntry<Resource>& entry, const CsiUse& use)
{
    if (use.types == 0 || isMixed(use))
    {
        return;
    }
    const Resource& resource = *entry.element;
    const bool hasPeriod = resource.m.periodicityAndOffsetPresent != 0;
    if (use.is(aperiodic) && hasPeriod)
    {
        check.error(&resource.periodicityAndOffset).allowed("the resource is used as aperiodic");
    }
    if (!use.is(aperiodic) && !hasPeriod && check.isNew(entry.novelty))
    {
        check.error(&resource.periodicityAndOffset)
            .allowed("the resource is used as %s", use.is(periodic) ? "periodic" : "semiPersistent");
    }
}

// What is there of a resource is what its time behaviour needs.
void csiPeriodicityCond(Check& check)
{
    forCsi(check,
           [&](const Cell&, const Csi& csi)
           {
               for (const IdEntry<NZP_CSI_RS_Resource>& entry : csi.nzpResources)
               {
                   const CsiUse use = useOf(csi.nzpUse, entry.id);
                   judgePeriod(check, entry, use);
                   const auto* const qcl = MEMBER(*entry.element, qcl_InfoPeriodicCSI_RS);
                   if (qcl != nullptr && (use.is(aperiodic) || use.is(semiPersistent)))
                   {
                       check.error(qcl).allowed("only periodic resources have it");
                   }
               }
               for (const IdEntry<CSI_IM_Resource>& entry : csi.imResources)
               {
                   judgePeriod(check, entry, useOf(csi.imUse, entry.id));
               }
               for (const IdEntry<NZP_CSI_RS_ResourceSet>& entry : csi.nzpSets)
               {
                   const CsiUse use = useOf(csi.nzpSetUse, entry.id);
                   const auto* const offset = MEMBER(*entry.element, aperiodicTriggeringOffset);
                   if (offset != nullptr && (use.is(periodic) || use.is(semiPersistent)))
                   {
                       check.warning(offset).allowed("nothing triggers a set that is not aperiodic");
                   }
               }
           });
}

// The codebook of a report; each null where it is another one.
struct Codebook
{
    const CodebookConfig_codebookType_type1* type1 = nullptr;
    const CodebookConfig_codebookType_type1_subType_typeI_SinglePanel* singlePanel = nullptr;
    const CodebookConfig_codebookType_type1_subType_typeI_MultiPanel* multiPanel = nullptr;
    const CodebookConfig_codebookType_type2* type2 = nullptr;
    const CodebookConfig_codebookType_type2_subType_typeII* typeII = nullptr;
    const CodebookConfig_codebookType_type2_subType_typeII_PortSelection* portSelection = nullptr;
};

Codebook codebookOf(const Tree& tree, const CSI_ReportConfig& report)
{
    Codebook book;
    const CodebookConfig* const config = MEMBER(report, codebookConfig);
    const auto* const type = config == nullptr ? nullptr : &config->codebookType;
    book.type1 = CHOSEN(tree, type, CodebookConfig_codebookType, type1);
    book.type2 = CHOSEN(tree, type, CodebookConfig_codebookType, type2);
    const auto* const sub1 = book.type1 == nullptr ? nullptr : &book.type1->subType;
    const auto* const sub2 = book.type2 == nullptr ? nullptr : &book.type2->subType;
    book.singlePanel = CHOSEN(tree, sub1, CodebookConfig_codebookType_type1_subType, typeI_SinglePanel);
    book.multiPanel = CHOSEN(tree, sub1, CodebookConfig_codebookType_type1_subType, typeI_MultiPanel);
    book.typeII = CHOSEN(tree, sub2, CodebookConfig_codebookType_type2_subType, typeII);
    book.portSelection = CHOSEN(tree, sub2, CodebookConfig_codebookType_type2_subType, typeII_PortSelection);
    return book;
}

using CqiFormat = CSI_ReportConfig_reportFreqConfiguration_cqi_FormatIndicator;
using PmiFormat = CSI_ReportConfig_reportFreqConfiguration_pmi_FormatIndicator;
constexpr CqiFormat subbandCqi = CSI_ReportConfig_reportFreqConfiguration_cqi_FormatIndicator_subbandCQI;
constexpr PmiFormat subbandPmi = CSI_ReportConfig_reportFreqConfiguration_pmi_FormatIndicator_subbandPMI;

const CSI_ReportConfig_reportFreqConfiguration* frequencyOf(const CSI_ReportConfig& report)
{
    return MEMBER(report, reportFreqConfiguration);
}

const CqiFormat* cqiFormat(const CSI_ReportConfig& report)
{
    return frequencyOf(report) == nullptr ? nullptr : MEMBER(*frequencyOf(report), cqi_FormatIndicator);
}

const PmiFormat* pmiFormat(const CSI_ReportConfig& report)
{
    return frequencyOf(report) == nullptr ? nullptr : MEMBER(*frequencyOf(report), pmi_FormatIndicator);
}

bool isSubbandCqi(const CSI_ReportConfig& report)
{
    return hasCqi(report.reportQuantity) && cqiFormat(report) != nullptr && *cqiFormat(report) == subbandCqi;
}

bool isSubbandPmi(const CSI_ReportConfig& report)
{
    return hasPmi(report.reportQuantity) && pmiFormat(report) != nullptr && *pmiFormat(report) == subbandPmi;
}

// What a report on PUCCH may hold: of a periodic one, and in format 2, Type I for the whole band.
void judgeWideband(Check& check, const CSI_ReportConfig& report, const char* why)
{
    if (codebookOf(check.tree, report).type2 != nullptr && hasPmi(report.reportQuantity))
    {
        check.error(&report.codebookConfig.codebookType).allowed("%s has Type I alone", why);
    }
    if (isSubbandCqi(report))
    {
        check.error(cqiFormat(report)).allowed("%s is for the whole band", why);
    }
    if (isSubbandPmi(report) && !hasI1(report.reportQuantity))
    {
        check.error(pmiFormat(report)).allowed("%s is for the whole band", why);
    }
}

void csiPucchReport(Check& check)
{
    forReports(check,
               [&](const ReportView& view)
               {
                   const ReportType& type = view.report.reportConfigType;
                   if (CHOSEN(check.tree, &type, CSI_ReportConfig_reportConfigType, periodic) != nullptr)
                   {
                       judgeWideband(check, view.report, "a periodic report");
                   }
                   const auto* const persistent =
                       CHOSEN(check.tree, &type, CSI_ReportConfig_reportConfigType, semiPersistentOnPUCCH);
                   if (persistent == nullptr)
                   {
                       return;
                   }
                   for (const PUCCH_CSI_Resource& named :
                        check.tree.list<PUCCH_CSI_Resource>(&persistent->pucch_CSI_ResourceList))
                   {
                       Bwp* const bwp = view.cell.bwp(Direction::Uplink, named.uplinkBandwidthPartId);
                       const PUCCH_Resource* const resource =
                           bwp == nullptr ? nullptr : check.model.pucch(*bwp).resources.element(named.pucch_Resource);
                       if (resource != nullptr && resource->format.t == T_PUCCH_Resource_format_format2)
                       {
                           judgeWideband(check, view.report, "a report in PUCCH format 2");
                           return;
                       }
                   }
               });
}

// A report with PMI has a codebook, where there is more than one port; of i1 alone only the one of one panel.
void csiCodebookNeeded(Check& check)
{
    forReports(
        check,
        [&](const ReportView& view)
        {
            const CSI_ReportConfig& report = view.report;
            if (!hasPmi(report.reportQuantity))
            {
                return;
            }
            if (report.m.codebookConfigPresent == 0)
            {
                OSUINT32 ports = 0;
                forChannelResources(check, view,
                                    [&](const NZP_CSI_RS_Resource& resource)
                                    { ports = std::max(ports, portsOf(resource.resourceMapping)); });
                if (ports > 1)
                {
                    check.error(&report.codebookConfig).allowed("the report has a PMI for %u antenna ports", ports);
                }
                else if (ports == 0)
                {
                    check.undecided(RRC_RULE_INPUT_PREVIOUS);
                }
                return;
            }
            if (!hasI1(report.reportQuantity))
            {
                return;
            }
            if (codebookOf(check.tree, report).singlePanel == nullptr)
            {
                check.error(&report.codebookConfig.codebookType)
                    .found("another codebook than typeI-SinglePanel")
                    .allowed("i1 is of typeI-SinglePanel");
            }
            if (isSubbandPmi(report))
            {
                check.error(pmiFormat(report)).allowed("i1 is reported with widebandPMI");
            }
        });
}

struct Panels
{
    OSUINT32 ng;
    OSUINT32 n1;
    OSUINT32 n2;

    OSUINT32 ports() const
    {
        return 2 * ng * n1 * n2;
    }
};

// Of the alternatives of n1-n2, which Type I and Type II share, and of ng-n1-n2.
constexpr Panels onePanel[] = {{1, 2, 1}, {1, 2, 2}, {1, 4, 1},  {1, 3, 2}, {1, 6, 1}, {1, 4, 2}, {1, 8, 1},
                               {1, 4, 3}, {1, 6, 2}, {1, 12, 1}, {1, 4, 4}, {1, 8, 2}, {1, 16, 1}};
constexpr Panels morePanels[] = {{2, 2, 1}, {2, 4, 1}, {4, 2, 1}, {2, 2, 2},
                                 {2, 8, 1}, {4, 4, 1}, {2, 4, 2}, {4, 2, 2}};

template <size_t N>
Panels panelsOf(const Panels (&panels)[N], OSUINT32 tag)
{
    return tag >= 1 && tag <= N ? panels[tag - 1] : Panels{};
}

// The antennas of the codebook are the ports of each resource.
void csiCodebookPorts(Check& check)
{
    forReports(
        check,
        [&](const ReportView& view)
        {
            const OSUINT32 ports = channelPorts(check, view);
            if (!hasPmi(view.report.reportQuantity) || ports == 0)
            {
                return;
            }
            const auto compare = [&](const auto* at, const Panels& panels)
            {
                if (panels.ports() != 0 && panels.ports() != ports)
                {
                    check.error(at)
                        .found("%u ports of Ng = %u, N1 = %u, N2 = %u", panels.ports(), panels.ng, panels.n1, panels.n2)
                        .allowed("the resources have %u", ports);
                }
            };
            const Codebook book = codebookOf(check.tree, view.report);
            if (book.singlePanel != nullptr)
            {
                const auto* const antennas = &book.singlePanel->nrOfAntennaPorts;
                const auto* const more =
                    CHOSEN(check.tree, antennas,
                           CodebookConfig_codebookType_type1_subType_typeI_SinglePanel_nrOfAntennaPorts, moreThanTwo);
                const auto* const two =
                    CHOSEN(check.tree, antennas,
                           CodebookConfig_codebookType_type1_subType_typeI_SinglePanel_nrOfAntennaPorts, two);
                if (more != nullptr)
                {
                    compare(&more->n1_n2, panelsOf(onePanel, more->n1_n2.t));
                }
                else if (two != nullptr && ports != 2)
                {
                    check.error(antennas).found("two ports").allowed("the resources have %u", ports);
                }
            }
            if (book.multiPanel != nullptr)
            {
                const Panels panels = panelsOf(morePanels, book.multiPanel->ng_n1_n2.t);
                compare(&book.multiPanel->ng_n1_n2, panels);
                if (panels.ng == 4 && book.type1->codebookMode != 1)
                {
                    check.error(&book.type1->codebookMode).allowed("with four panels it is 1");
                }
            }
            if (book.typeII != nullptr)
            {
                compare(&book.typeII->n1_n2_codebookSubsetRestriction,
                        panelsOf(onePanel, book.typeII->n1_n2_codebookSubsetRestriction.t));
            }
            if (book.portSelection != nullptr && ports < 4)
            {
                check.error(&book.type2->subType)
                    .allowed("ports are selected of 4 to 32, and the resources have %u", ports);
            }
        });
}

void judgeRanks(Check& check, const ASN1BitStr32& restriction)
{
    if (bitsSet(restriction, rtx::bitCount(restriction)) == 0)
    {
        check.error(&restriction).allowed("no rank is left to report");
    }
}

// What Type II needs, and a rank that is left of every codebook.
void csiCodebookType2(Check& check)
{
    forReports(
        check,
        [&](const ReportView& view)
        {
            const Codebook book = codebookOf(check.tree, view.report);
            for (const ASN1BitStr32* const ranks :
                 {book.singlePanel == nullptr ? nullptr : &book.singlePanel->typeI_SinglePanel_ri_Restriction,
                  book.multiPanel == nullptr ? nullptr : &book.multiPanel->ri_Restriction,
                  book.typeII == nullptr ? nullptr : &book.typeII->typeII_RI_Restriction,
                  book.portSelection == nullptr ? nullptr : &book.portSelection->typeII_PortSelectionRI_Restriction})
            {
                if (ranks != nullptr)
                {
                    judgeRanks(check, *ranks);
                }
            }
            if (book.type2 == nullptr)
            {
                return;
            }
            forNzpSets(check, view.csi, view.channel,
                       [&](const NZP_CSI_RS_ResourceSet& set)
                       {
                           if (sizeOf(set) > 1)
                           {
                               check.error(&view.report.codebookConfig.codebookType)
                                   .allowed("Type II is of one resource, and NZP-CSI-RS-ResourceSet %u has %zu",
                                            set.nzp_CSI_ResourceSetId, sizeOf(set));
                           }
                       });
            const OSUINT32 ports = channelPorts(check, view);
            const OSUINT32 beams = book.type2->numberOfBeams + 2;
            if (ports == 4 && beams != 2)
            {
                check.error(&book.type2->numberOfBeams).allowed("with 4 ports it is two");
            }
            const auto* const step =
                book.portSelection == nullptr ? nullptr : MEMBER(*book.portSelection, portSelectionSamplingSize);
            if (step != nullptr && ports >= 4 && *step + 1 > std::min(ports / 2, beams))
            {
                check.error(step).allowed("with %u ports and %u beams it is at most n%u", ports, beams,
                                          std::min(ports / 2, beams));
            }
        });
}

// Not more resources than the quantity allows.
void csiResourceCount(Check& check)
{
    forReports(check,
               [&](const ReportView& view)
               {
                   if (view.channel == nullptr)
                   {
                       return;
                   }
                   const CSI_ReportConfig& report = view.report;
                   const Quantity& quantity = report.reportQuantity;
                   const bool isFew = hasPmi(quantity);
                   size_t all = 0;
                   forNzpSets(check, view.csi, view.channel,
                              [&](const NZP_CSI_RS_ResourceSet& set)
                              {
                                  const size_t size = sizeOf(set);
                                  all += size;
                                  const bool isSixteen =
                                      view.channel->resourceType == aperiodic &&
                                      (isNothing(quantity) || quantity.t == T_CSI_ReportConfig_reportQuantity_cri_RSRP);
                                  const size_t most = isFew ? 8 : isSixteen ? 16 : 64;
                                  if (size > most)
                                  {
                                      check.error(&report.resourcesForChannelMeasurement)
                                          .found("%zu resources in NZP-CSI-RS-ResourceSet %u", size,
                                                 set.nzp_CSI_ResourceSetId)
                                          .allowed("a set of this quantity has at most %zu", most);
                                  }
                              });
                   for (const auto id : ssbSetIds(check, *view.channel))
                   {
                       const CSI_SSB_ResourceSet* const set = view.csi->ssbSets.element(id);
                       all += set == nullptr ? 0 : entries(&set->csi_SSB_ResourceList).size();
                   }
                   if (!isFew && all > 64)
                   {
                       check.error(&report.resourcesForChannelMeasurement)
                           .found("%zu resources", all)
                           .allowed("a setting of this quantity has at most 64");
                   }
               });
}

// The sets that a report measures together: of a setting that is not aperiodic the only one, else what a trigger names.
template <typename Each>
void forMeasuredSets(Check& check, const ReportView& view, const Each& each)
{
    const auto pick = [&](const auto& ids, OSUINT32 number) -> const auto*
    {
        return number >= 1 && number <= ids.size() ? &ids[number - 1] : nullptr;
    };
    const auto nzpSet = [&](const CSI_ResourceConfig* config, OSUINT32 number) -> const NZP_CSI_RS_ResourceSet*
    {
        const auto* const id = config == nullptr ? nullptr : pick(nzpSetIds(check, *config), number);
        return id == nullptr ? nullptr : view.csi->nzpSets.element(*id);
    };
    const auto imSet = [&](OSUINT32 number) -> const CSI_IM_ResourceSet*
    {
        const auto* const id = view.im == nullptr ? nullptr : pick(imSetIds(check, *view.im), number);
        return id == nullptr ? nullptr : view.csi->imSets.element(*id);
    };
    if (view.channel == nullptr)
    {
        return;
    }
    if (!isAperiodic(view.report))
    {
        each(nzpSet(view.channel, 1), imSet(1), nzpSet(view.nzp, 1));
        return;
    }
    const Csi& csi = check.model.csi(view.cell);
    for (const CSI_AperiodicTriggerState& state :
         check.tree.list<CSI_AperiodicTriggerState>(check.tree.setup(MEMBER(*csi.config, aperiodicTriggerStateList))))
    {
        for (const CSI_AssociatedReportConfigInfo& info :
             check.tree.list<CSI_AssociatedReportConfigInfo>(&state.associatedReportConfigInfoList))
        {
            const auto* const nzp = CHOSEN(check.tree, &info.resourcesForChannel,
                                           CSI_AssociatedReportConfigInfo_resourcesForChannel, nzp_CSI_RS);
            if (info.reportConfigId != view.report.reportConfigId || nzp == nullptr)
            {
                continue;
            }
            const auto* const im = MEMBER(info, csi_IM_ResourcesForInterference);
            const auto* const interference = MEMBER(info, nzp_CSI_RS_ResourcesForInterference);
            each(nzpSet(view.channel, nzp->resourceSet), imSet(im == nullptr ? 0 : *im),
                 nzpSet(view.nzp, interference == nullptr ? 0 : *interference));
        }
    }
}

// Each resource of the channel has one for interference.
void csiInterferenceCount(Check& check)
{
    forReports(check,
               [&](const ReportView& view)
               {
                   const CSI_ReportConfig& report = view.report;
                   const CSI_ResourceConfigId* const im = MEMBER(report, csi_IM_ResourcesForInterference);
                   const CSI_ResourceConfigId* const nzp = MEMBER(report, nzp_CSI_RS_ResourcesForInterference);
                   if (isRsrp(report.reportQuantity))
                   {
                       for (const CSI_ResourceConfigId* const id : {im, nzp})
                       {
                           if (id != nullptr)
                           {
                               check.error(id).allowed("a report of RSRP has no interference");
                           }
                       }
                       return;
                   }
                   bool isTold = false;
                   forMeasuredSets(
                       check, view,
                       [&](const NZP_CSI_RS_ResourceSet* channel, const CSI_IM_ResourceSet* imSet,
                           const NZP_CSI_RS_ResourceSet* nzpSet)
                       {
                           if (channel == nullptr || isTold)
                           {
                               return;
                           }
                           const size_t resources = sizeOf(*channel);
                           if (imSet != nullptr && entries(&imSet->csi_IM_Resources).size() != resources)
                           {
                               isTold = true;
                               check.error(im)
                                   .found("%zu CSI-IM resources in set %u", entries(&imSet->csi_IM_Resources).size(),
                                          imSet->csi_IM_ResourceSetId)
                                   .allowed("NZP-CSI-RS-ResourceSet %u for the channel has %zu",
                                            channel->nzp_CSI_ResourceSetId, resources);
                           }
                           if (nzpSet == nullptr)
                           {
                               return;
                           }
                           OSUINT32 ports = 0;
                           forResources(*view.csi, *nzpSet,
                                        [&](const NZP_CSI_RS_Resource& resource, const auto&)
                                        { ports += portsOf(resource.resourceMapping); });
                           if (resources > 1)
                           {
                               isTold = true;
                               check.error(nzp).allowed("the set for the channel then has one resource, not %zu",
                                                        resources);
                           }
                           if (ports > 18)
                           {
                               isTold = true;
                               check.error(nzp)
                                   .found("%u ports in NZP-CSI-RS-ResourceSet %u", ports, nzpSet->nzp_CSI_ResourceSetId)
                                   .allowed("there are at most 18");
                           }
                       });
               });
}

// A CQI is a ratio to an interference.
void csiCqiNeedsIm(Check& check)
{
    forReports(check,
               [&](const ReportView& view)
               {
                   const CSI_ReportConfig& report = view.report;
                   if (hasCqi(report.reportQuantity) && report.m.csi_IM_ResourcesForInterferencePresent == 0 &&
                       report.m.nzp_CSI_RS_ResourcesForInterferencePresent == 0)
                   {
                       check.warning(&report.csi_IM_ResourcesForInterference)
                           .allowed("the report has a CQI, and nothing to measure interference on");
                   }
               });
}

// RSRP is measured on what its quantity names.
void csiRsrpKind(Check& check)
{
    forReports(check,
               [&](const ReportView& view)
               {
                   const CSI_ReportConfig& report = view.report;
                   const auto& grouping = report.groupBasedBeamReporting;
                   if (!isRsrp(report.reportQuantity))
                   {
                       if (grouping.t == T_CSI_ReportConfig_groupBasedBeamReporting_enabled)
                       {
                           check.warning(&grouping).allowed("beams are grouped in reports of RSRP alone");
                       }
                       return;
                   }
                   if (view.channel == nullptr || !imSetIds(check, *view.channel).empty())
                   {
                       return;
                   }
                   const bool isSsb = report.reportQuantity.t == T_CSI_ReportConfig_reportQuantity_ssb_Index_RSRP;
                   const bool hasKind =
                       isSsb ? !ssbSetIds(check, *view.channel).empty() : !nzpSetIds(check, *view.channel).empty();
                   if (!hasKind)
                   {
                       check.error(&report.reportQuantity)
                           .allowed("CSI-ResourceConfig %u has no %s", report.resourcesForChannelMeasurement,
                                    isSsb ? "SS/PBCH blocks" : "NZP CSI-RS");
                       return;
                   }
                   size_t resources = 0;
                   bool isKnown = true;
                   for (const auto id : ssbSetIds(check, *view.channel))
                   {
                       const CSI_SSB_ResourceSet* const set = view.csi->ssbSets.element(id);
                       isKnown = isKnown && set != nullptr;
                       resources += set == nullptr ? 0 : entries(&set->csi_SSB_ResourceList).size();
                   }
                   for (const auto id : nzpSetIds(check, *view.channel))
                   {
                       const NZP_CSI_RS_ResourceSet* const set = view.csi->nzpSets.element(id);
                       isKnown = isKnown && set != nullptr;
                       resources += set == nullptr ? 0 : sizeOf(*set);
                   }
                   if (!isSsb)
                   {
                       const NZP_CSI_RS_Resource* wide = nullptr;
                       forChannelResources(check, view,
                                           [&](const NZP_CSI_RS_Resource& resource)
                                           { wide = portsOf(resource.resourceMapping) > 2 ? &resource : wide; });
                       if (wide != nullptr)
                       {
                           check.error(&report.reportQuantity)
                               .allowed("NZP-CSI-RS-Resource %u has %u ports, and RSRP is measured on 1 or 2",
                                        wide->nzp_CSI_RS_ResourceId, portsOf(wide->resourceMapping));
                       }
                   }
                   const auto* const disabled =
                       CHOSEN(check.tree, &grouping, CSI_ReportConfig_groupBasedBeamReporting, disabled);
                   const auto* const reported = disabled == nullptr ? nullptr : MEMBER(*disabled, nrofReportedRS);
                   if (isKnown && reported != nullptr && *reported + size_t{1} > resources)
                   {
                       check.warning(reported).allowed("the setting has %zu resource%s", resources,
                                                       resources == 1 ? "" : "s");
                   }
               });
}

// The formats of what is reported are given, and of nothing else.
void csiFreqConfig(Check& check)
{
    forReports(
        check,
        [&](const ReportView& view)
        {
            const CSI_ReportConfig& report = view.report;
            const Quantity& quantity = report.reportQuantity;
            const auto* const frequency = frequencyOf(report);
            if (!hasCqi(quantity) && !hasPmi(quantity))
            {
                if (frequency != nullptr && (isRsrp(quantity) || isNothing(quantity)))
                {
                    check.notice(frequency).allowed("the report has neither CQI nor PMI");
                }
                return;
            }
            if (frequency == nullptr)
            {
                check.error(&report.reportFreqConfiguration).allowed("the report has CQI or PMI");
                return;
            }
            if (hasCqi(quantity) != (frequency->m.cqi_FormatIndicatorPresent != 0))
            {
                hasCqi(quantity) ? check.error(&frequency->cqi_FormatIndicator).allowed("the report has a CQI")
                                 : check.notice(&frequency->cqi_FormatIndicator).allowed("the report has no CQI");
            }
            if (!hasPmi(quantity) && frequency->m.pmi_FormatIndicatorPresent != 0)
            {
                check.notice(&frequency->pmi_FormatIndicator).allowed("the report has no PMI");
            }
            // There is no PMI of a single port.
            if (hasPmi(quantity) && frequency->m.pmi_FormatIndicatorPresent == 0 && channelPorts(check, view) > 1)
            {
                check.error(&frequency->pmi_FormatIndicator).allowed("the report has a PMI");
            }
        });
}

// csi-ReportingBand has a bit for each subband of the bandwidth part.
void csiSubbandCount(Check& check)
{
    forReports(
        check,
        [&](const ReportView& view)
        {
            const CSI_ReportConfig& report = view.report;
            const auto* const frequency = frequencyOf(report);
            const auto* const band = frequency == nullptr ? nullptr : MEMBER(*frequency, csi_ReportingBand);
            const bool isSubband = isSubbandCqi(report) || isSubbandPmi(report);
            const Bwp* const bwp = bwpOf(view.carrier, view.channel);
            if ((band == nullptr && !isSubband) || bwp == nullptr)
            {
                return;
            }
            const Known<NrSpan> own = bwp->rbs();
            if (!check.decided(own))
            {
                return;
            }
            if (own->size < 24)
            {
                if (band != nullptr)
                {
                    check.error(band).allowed("a bandwidth part of %u PRB has no subbands", own->size);
                }
                else
                {
                    check
                        .error(isSubbandCqi(report) ? &frequency->cqi_FormatIndicator : &frequency->pmi_FormatIndicator)
                        .allowed("a bandwidth part of %u PRB has no subbands", own->size);
                }
                return;
            }
            if (band == nullptr)
            {
                check.error(&frequency->csi_ReportingBand).allowed("the report is for subbands");
                return;
            }
            static constexpr OSUINT32 fewest = 3;
            const bool isBits =
                band->t >= 1 &&
                band->t <= T_CSI_ReportConfig_reportFreqConfiguration_csi_ReportingBand_subbands19_v1530;
            const ASN1BitStr32* const bits = isBits ? check.tree.follow(band->u.subbands3) : nullptr;
            const Known<NrSpan> rbs = commonRbs(check.model, *bwp);
            if (bits == nullptr || !check.decided(rbs))
            {
                return;
            }
            const OSUINT32 size = nrSubbandSize(rbs->size, report.subbandSize == CSI_ReportConfig_subbandSize_value2);
            const OSUINT32 count = nrSubbands(rbs->start, rbs->size, size);
            const OSUINT32 given = band->t - 1 + fewest;
            if (given != count)
            {
                check.error(band)
                    .found("subbands%u", given)
                    .allowed("a bandwidth part of %u PRB from common RB %u with subband size %u has %u", rbs->size,
                             rbs->start, size, count);
            }
            else if (bitsSet(*bits, given) == 0)
            {
                check.error(band).found("no subband").allowed("the report is for one at least");
            }
        });
}

// The uplink bandwidth parts of a cell, the supplementary ones, too.
template <typename Each>
void forUplinkBwps(const Cell& cell, const Each& each)
{
    for (const Direction direction : {Direction::Uplink, Direction::Supplementary})
    {
        for (Bwp& bwp : cell.bwps(direction))
        {
            each(bwp);
        }
    }
}

template <typename Each>
void withSlotOffsets(const Tree& tree, const CSI_ReportConfig& report, const Each& each)
{
    const ReportType* const type = &report.reportConfigType;
    if (const auto* const triggered = CHOSEN(tree, type, CSI_ReportConfig_reportConfigType, aperiodic))
    {
        each(triggered->reportSlotOffsetList);
    }
    if (const auto* const persistent = CHOSEN(tree, type, CSI_ReportConfig_reportConfigType, semiPersistentOnPUSCH))
    {
        each(persistent->reportSlotOffsetList);
    }
}

// Symbols that no UE can be asked to be faster than in (TS 38.214 table 5.4-1), from the DCI to the report.
constexpr OSUINT32 computation[] = {10, 13, 25, 43};

// reportSlotOffsetList has an entry for each row of the PUSCH's table, one of them late enough.
template <typename OffsetList>
void judgeSlotOffsets(Check& check, const Cell& cell, const OffsetList& list)
{
    const auto offsets = entries(&list);
    OSUINT32 longest = 0;
    for (const OSUINT32 offset : offsets)
    {
        longest = std::max(longest, offset);
    }
    OSUINT32 tables = 0;
    OSUINT32 rows = 0;
    OSUINT32 needed = 0;
    bool fits = false;
    bool isTimely = false;
    const auto judge = [&](const Bwp& bwp)
    {
        const auto* const table =
            bwp.pusch == nullptr ? nullptr : check.tree.setup(MEMBER(*bwp.pusch, pusch_TimeDomainAllocationList));
        if (table == nullptr)
        {
            return;
        }
        ++tables;
        rows = check.tree.list<PUSCH_TimeDomainResourceAllocation>(table).size();
        fits = fits || rows == offsets.size();
        const Known<OSUINT32> mu = bwp.mu();
        needed = mu && *mu < std::size(computation) ? computation[*mu] : 0;
        isTimely = isTimely || longest * NR_SYMBOLS + NR_SYMBOLS - 1 >= needed;
    };
    forUplinkBwps(cell, judge);
    if (tables != 0 && !fits)
    {
        check.error(&list)
            .found("%zu entr%s", offsets.size(), offsets.size() == 1 ? "y" : "ies")
            .allowed("pusch-TimeDomainAllocationList has %u", rows);
    }
    else if (tables != 0 && !isTimely)
    {
        check.warning(&list)
            .found("an offset of at most %u slot%s", longest, longest == 1 ? "" : "s")
            .allowed("the UE needs %u symbols to compute a report", needed);
    }
}

void csiSlotOffsetList(Check& check)
{
    forReports(check,
               [&](const ReportView& view) {
                   withSlotOffsets(check.tree, view.report,
                                   [&](const auto& list) { judgeSlotOffsets(check, view.cell, list); });
               });
}

// What semiPersistentOnPUSCH needs besides the report.
void csiSpPusch(Check& check)
{
    forCsi(check,
           [&](Cell& cell, const Csi& csi)
           {
               using State = CSI_SemiPersistentOnPUSCH_TriggerState;
               const auto states = check.tree.list<State>(
                   check.tree.setup(MEMBER(*csi.config, semiPersistentOnPUSCH_TriggerStateList)));
               for (const State& state : states)
               {
                   const CSI_ReportConfigId& id = state.associatedReportConfigInfo;
                   const CSI_ReportConfig* const report = check.resolve(csi.reports, id, &id, "a CSI-ReportConfig");
                   if (report != nullptr &&
                       report->reportConfigType.t != T_CSI_ReportConfig_reportConfigType_semiPersistentOnPUSCH)
                   {
                       check.error(&id).allowed("the report of that id is not semiPersistentOnPUSCH");
                   }
               }
               for (const IdEntry<CSI_ReportConfig>& entry : csi.reports)
               {
                   const CSI_ReportConfig& report = *entry.element;
                   const auto* const persistent = CHOSEN(check.tree, &report.reportConfigType,
                                                         CSI_ReportConfig_reportConfigType, semiPersistentOnPUSCH);
                   if (persistent == nullptr)
                   {
                       if (const auto* const later = ADDITION(report, 2, semiPersistentOnPUSCH_v1530))
                       {
                           check.warning(later).allowed("the report is not semiPersistentOnPUSCH");
                       }
                       continue;
                   }
                   bool isNamed = false;
                   for (const State& state : states)
                   {
                       isNamed = isNamed || state.associatedReportConfigInfo == report.reportConfigId;
                   }
                   if (!isNamed && csi.reports.complete)
                   {
                       check.warning(&report.reportConfigType)
                           .allowed("no state of semiPersistentOnPUSCH-TriggerStateList names the report");
                   }
                   OSUINT32 configs = 0;
                   bool isThere = false;
                   forUplinkBwps(cell,
                                 [&](Bwp& bwp)
                                 {
                                     if (bwp.pusch == nullptr)
                                     {
                                         return;
                                     }
                                     ++configs;
                                     for (const P0_PUSCH_AlphaSet& set : check.model.pusch(bwp).alphaSets)
                                     {
                                         isThere = isThere || set.p0_PUSCH_AlphaSetId == persistent->p0alpha;
                                     }
                                 });
                   if (!isThere && (configs != 0 || cell.complete))
                   {
                       check.missing(cell.complete, &persistent->p0alpha)
                           .allowed("p0-AlphaSets of the PUSCH has no set of that id");
                   }
               }
           });
}

// A trigger names what the report has, and no more.
void judgeTrigger(Check& check, Cell& cell, const Csi& csi, const CSI_AssociatedReportConfigInfo& info)
{
    const CSI_ReportConfig* const report =
        check.resolve(csi.reports, info.reportConfigId, &info.reportConfigId, "a CSI-ReportConfig");
    if (report == nullptr)
    {
        return;
    }
    if (!isAperiodic(*report))
    {
        check.error(&info.reportConfigId).allowed("the report of that id is not aperiodic");
        return;
    }
    const ReportView view = viewOf(check, cell, *report);
    const auto judgeNumber =
        [&](const OSUINT8* number, bool isNeeded, const OSUINT8* at, const CSI_ResourceConfig* of, size_t sets)
    {
        if ((number != nullptr) != isNeeded)
        {
            check.error(at).allowed("CSI-ReportConfig %u has %s", info.reportConfigId,
                                    isNeeded ? "such a setting" : "no such setting");
        }
        else if (number != nullptr && of != nullptr && sets != 0 && *number > sets)
        {
            check.error(at).allowed("CSI-ResourceConfig %u lists %zu set%s", of->csi_ResourceConfigId, sets,
                                    sets == 1 ? "" : "s");
        }
    };
    const size_t ims = view.im == nullptr ? 0 : imSetIds(check, *view.im).size();
    const size_t nzps = view.nzp == nullptr ? 0 : nzpSetIds(check, *view.nzp).size();
    judgeNumber(MEMBER(info, csi_IM_ResourcesForInterference), report->m.csi_IM_ResourcesForInterferencePresent != 0,
                &info.csi_IM_ResourcesForInterference, view.im, ims);
    judgeNumber(MEMBER(info, nzp_CSI_RS_ResourcesForInterference),
                report->m.nzp_CSI_RS_ResourcesForInterferencePresent != 0, &info.nzp_CSI_RS_ResourcesForInterference,
                view.nzp, nzps);
    if (view.channel == nullptr)
    {
        return;
    }
    const auto* const channel = &info.resourcesForChannel;
    if (channel->t == T_CSI_AssociatedReportConfigInfo_resourcesForChannel_csi_SSB_ResourceSet)
    {
        const size_t sets = ssbSetIds(check, *view.channel).size();
        if (channel->u.csi_SSB_ResourceSet > sets)
        {
            check.error(&channel->u.csi_SSB_ResourceSet)
                .allowed("CSI-ResourceConfig %u lists %zu sets of SS/PBCH blocks", view.channel->csi_ResourceConfigId,
                         sets);
        }
        return;
    }
    const auto* const nzp = CHOSEN(check.tree, channel, CSI_AssociatedReportConfigInfo_resourcesForChannel, nzp_CSI_RS);
    if (nzp == nullptr)
    {
        return;
    }
    const auto ids = nzpSetIds(check, *view.channel);
    if (nzp->resourceSet == 0 || nzp->resourceSet > ids.size())
    {
        check.error(&nzp->resourceSet)
            .allowed("CSI-ResourceConfig %u lists %zu set%s", view.channel->csi_ResourceConfigId, ids.size(),
                     ids.size() == 1 ? "" : "s");
        return;
    }
    const auto* const qcl = MEMBER(*nzp, qcl_info);
    const bool isNeeded = view.channel->resourceType == aperiodic;
    const NZP_CSI_RS_ResourceSet* const set = view.csi->nzpSets.element(ids[nzp->resourceSet - 1U]);
    if ((qcl != nullptr) != isNeeded)
    {
        check.error(&nzp->qcl_info).allowed("the resources are %s", nameOf(view.channel->resourceType));
    }
    else if (qcl != nullptr && set != nullptr && entries(qcl).size() != sizeOf(*set))
    {
        check.error(qcl)
            .found("%zu TCI states", entries(qcl).size())
            .allowed("NZP-CSI-RS-ResourceSet %u has %zu resources", set->nzp_CSI_ResourceSetId, sizeOf(*set));
    }
}

void csiTriggerState(Check& check)
{
    forCsi(check,
           [&](Cell& cell, const Csi& csi)
           {
               for (const CSI_AperiodicTriggerState& state : check.tree.list<CSI_AperiodicTriggerState>(
                        check.tree.setup(MEMBER(*csi.config, aperiodicTriggerStateList))))
               {
                   for (const CSI_AssociatedReportConfigInfo& info :
                        check.tree.list<CSI_AssociatedReportConfigInfo>(&state.associatedReportConfigInfoList))
                   {
                       judgeTrigger(check, cell, csi, info);
                   }
               }
           });
}

// The CSI request of the DCI can name the states.
void csiTriggerSize(Check& check)
{
    forCsi(check,
           [&](const Cell& cell, const Csi& csi)
           {
               const auto* const list = check.tree.setup(MEMBER(*csi.config, aperiodicTriggerStateList));
               const auto states = check.tree.list<CSI_AperiodicTriggerState>(list);
               const OSUINT8* const size = MEMBER(*csi.config, reportTriggerSize);
               bool named[maxNrofCSI_ReportConfigurations] = {};
               for (const CSI_AperiodicTriggerState& state : states)
               {
                   for (const CSI_AssociatedReportConfigInfo& info :
                        check.tree.list<CSI_AssociatedReportConfigInfo>(&state.associatedReportConfigInfoList))
                   {
                       named[std::min<size_t>(info.reportConfigId, std::size(named) - 1)] = true;
                   }
               }
               if (!cell.complete && (size == nullptr || list == nullptr))
               {
                   check.undecided(RRC_RULE_INPUT_PREVIOUS);
                   return;
               }
               const OSUINT32 bits = size == nullptr ? 0 : std::min<OSUINT32>(*size, 6);
               if (bits == 0 && !states.empty())
               {
                   check.warning(&csi.config->reportTriggerSize)
                       .allowed("there %s %u trigger state%s", states.size() == 1 ? "is" : "are", states.size(),
                                states.size() == 1 ? "" : "s");
               }
               else if (states.size() > (1U << bits) - 1)
               {
                   check.notice(size).allowed("%u states then need a MAC CE that selects among them", states.size());
               }
               if (bits != 0 && states.empty())
               {
                   check.warning(size).allowed("there is no trigger state");
               }
               for (const IdEntry<CSI_ReportConfig>& entry : csi.reports)
               {
                   if (isAperiodic(*entry.element) && entry.id < std::size(named) && !named[entry.id])
                   {
                       check.warning(&entry.element->reportConfigType).allowed("no trigger state names the report");
                   }
               }
           });
}

// Each CSI-RS-ResourceMapping: of NZP resources, and of the ZP ones of each downlink bandwidth part.
template <typename Each>
void forMappings(Check& check, const Each& each)
{
    for (Cell& cell : check.model.cells())
    {
        const Csi& csi = check.model.csi(cell);
        for (const IdEntry<NZP_CSI_RS_Resource>& entry : csi.nzpResources)
        {
            each(entry.element->resourceMapping);
        }
        for (Bwp& bwp : cell.downlink)
        {
            for (const IdEntry<ZP_CSI_RS_Resource>& entry : check.model.pdsch(bwp).zpResources)
            {
                each(entry.element->resourceMapping);
            }
        }
    }
}

// What a mapping says is a row of the table, and its symbols lie in the slot.
void judgeMapping(Check& check, const CSI_RS_ResourceMapping& mapping)
{
    if (mapping.density.t == T_CSI_RS_ResourceMapping_density_spare)
    {
        return;
    }
    const NrCsiRsRow* const row = csiRsRow(check.tree, mapping);
    if (row == nullptr)
    {
        check.error(&mapping)
            .found("%u port%s with these cdm-Type, density and frequencyDomainAllocation", portsOf(mapping),
                   portsOf(mapping) == 1 ? "" : "s")
            .allowed("no row of the table is so");
        return;
    }
    const OSUINT8* const second = MEMBER(mapping, firstOFDMSymbolInTimeDomain2);
    if ((second != nullptr) != (row->secondSymbols != 0))
    {
        check.error(&mapping.firstOFDMSymbolInTimeDomain2)
            .allowed("row %u %s it", row->row, row->secondSymbols != 0 ? "needs" : "does not have");
        return;
    }
    const auto judgeSymbols = [&](const OSUINT8* first, OSUINT32 symbols)
    {
        if (*first + symbols > NR_SYMBOLS)
        {
            check.error(first).allowed("row %u takes %u symbols from there on, and the last one is 13", row->row,
                                       symbols);
        }
    };
    judgeSymbols(&mapping.firstOFDMSymbolInTimeDomain, row->symbols);
    if (second != nullptr)
    {
        judgeSymbols(second, row->secondSymbols);
        if (*second < mapping.firstOFDMSymbolInTimeDomain + row->symbols)
        {
            check.warning(second).allowed("row %u takes symbols %u and %u before", row->row,
                                          mapping.firstOFDMSymbolInTimeDomain,
                                          mapping.firstOFDMSymbolInTimeDomain + 1U);
        }
    }
}

void csiRsRowOfTable(Check& check)
{
    forMappings(check, [&](const CSI_RS_ResourceMapping& mapping) { judgeMapping(check, mapping); });
}

// A band is on the grid of four resource blocks, and enough of it lies in the bandwidth part.
void judgeBand(Check& check, const CSI_FrequencyOccupation& band, const Bwp* bwp)
{
    for (const OSUINT16* const value : {&band.startingRB, &band.nrofRBs})
    {
        if (*value % 4 != 0)
        {
            check.error(value).allowed("it is a multiple of 4");
            return;
        }
    }
    if (bwp == nullptr)
    {
        return;
    }
    const Known<NrSpan> rbs = commonRbs(check.model, *bwp);
    const Known<NrSpan> left = csiBand(check.model, *bwp, band);
    if (check.decided(rbs) && left->size < std::min(rbs->size, 24U))
    {
        check.error(&band)
            .found("RB %u..%u", band.startingRB, band.startingRB + band.nrofRBs - 1U)
            .allowed("%u of them lie in bandwidth part %u, common RB %u..%u, and at least %u have to", left->size,
                     bwp->id, rbs->start, rbs->start + rbs->size - 1, std::min(rbs->size, 24U));
    }
}

// The first bandwidth part that something is used in.
const Bwp* usedIn(const Cell& cell, const CsiUse& use)
{
    for (const Bwp& bwp : cell.downlink)
    {
        if ((use.bwps >> bwp.id & 1) != 0)
        {
            return &bwp;
        }
    }
    return nullptr;
}

void csiRsBand(Check& check)
{
    for (Cell& cell : check.model.cells())
    {
        const Csi& csi = check.model.csi(cell);
        for (const IdEntry<NZP_CSI_RS_Resource>& entry : csi.nzpResources)
        {
            judgeBand(check, entry.element->resourceMapping.freqBand, usedIn(cell, useOf(csi.nzpUse, entry.id)));
        }
        for (const IdEntry<CSI_IM_Resource>& entry : csi.imResources)
        {
            if (const CSI_FrequencyOccupation* const band = MEMBER(*entry.element, freqBand))
            {
                judgeBand(check, *band, usedIn(cell, useOf(csi.imUse, entry.id)));
            }
        }
        for (Bwp& bwp : cell.downlink)
        {
            for (const IdEntry<ZP_CSI_RS_Resource>& entry : check.model.pdsch(bwp).zpResources)
            {
                judgeBand(check, entry.element->resourceMapping.freqBand, &bwp);
            }
        }
    }
}

// What the reports of a cell group measure on the sets of one CSI-MeasConfig.
struct SetReports
{
    bool hasCqi;
    bool isChannel;
    bool hasOther; // than RSRP and none
};

struct AllSetReports
{
    SetReports of[maxNrofNZP_CSI_RS_ResourceSets];
};

AllSetReports setReports(Check& check, const Csi& csi)
{
    AllSetReports all{};
    forReports(check,
               [&](const ReportView& view)
               {
                   if (view.csi != &csi || view.channel == nullptr)
                   {
                       return;
                   }
                   const Quantity& quantity = view.report.reportQuantity;
                   for (const auto id : nzpSetIds(check, *view.channel))
                   {
                       if (id < std::size(all.of))
                       {
                           SetReports& set = all.of[id];
                           set.isChannel = true;
                           set.hasCqi = set.hasCqi || hasCqi(quantity) || hasPmi(quantity);
                           set.hasOther = set.hasOther || !(isRsrp(quantity) || isNothing(quantity));
                       }
                   }
               });
    return all;
}

// The resources of a set are alike.
void judgeUniform(Check& check, const Csi& csi, const NZP_CSI_RS_ResourceSet& set, const SetReports& reports)
{
    const NZP_CSI_RS_Resource* first = nullptr;
    forResources(csi, set,
                 [&](const NZP_CSI_RS_Resource& resource, const NZP_CSI_RS_ResourceId& at)
                 {
                     if (first == nullptr)
                     {
                         first = &resource;
                         return;
                     }
                     const CSI_RS_ResourceMapping& a = first->resourceMapping;
                     const CSI_RS_ResourceMapping& b = resource.resourceMapping;
                     const auto* const hadPeriod = MEMBER(*first, periodicityAndOffset);
                     const auto* const hasPeriod = MEMBER(resource, periodicityAndOffset);
                     const bool isPeriodSame =
                         hadPeriod == nullptr || hasPeriod == nullptr || hadPeriod->t == hasPeriod->t;
                     const char* const differs = reports.isChannel && a.density.t != b.density.t  ? "density"
                                                 : reports.hasCqi && a.nrofPorts != b.nrofPorts   ? "nrofPorts"
                                                 : reports.isChannel && a.cdm_Type != b.cdm_Type  ? "cdm-Type"
                                                 : a.freqBand.startingRB != b.freqBand.startingRB ? "startingRB"
                                                 : a.freqBand.nrofRBs != b.freqBand.nrofRBs       ? "nrofRBs"
                                                 : !isPeriodSame ? "periodicityAndOffset"
                                                                 : nullptr;
                     if (differs != nullptr)
                     {
                         check.error(&at)
                             .found("resource %u with another %s", at, differs)
                             .allowed("it is the same as of resource %u in the set", first->nzp_CSI_RS_ResourceId);
                     }
                 });
}

void csiRsSetUniform(Check& check)
{
    forCsi(check,
           [&](const Cell&, const Csi& csi)
           {
               const AllSetReports reports = setReports(check, csi);
               for (const IdEntry<NZP_CSI_RS_ResourceSet>& entry : csi.nzpSets)
               {
                   const NZP_CSI_RS_ResourceSet& set = *entry.element;
                   if (entry.id >= std::size(reports.of) || set.m.trs_InfoPresent != 0)
                   {
                       continue;
                   }
                   judgeUniform(check, csi, set, reports.of[entry.id]);
                   if (set.m.repetitionPresent != 0 && reports.of[entry.id].hasOther)
                   {
                       check.error(&set.repetition).allowed("a report on the set has neither RSRP nor none");
                   }
               }
           });
}

// A set for tracking: trs-Info.
struct Tracking
{
    const Cell& cell;
    const Csi& csi;
    const NZP_CSI_RS_ResourceSet& set;
    CsiUse use;
    const Bwp* bwp; // null where it is in none
};

// Whether two slots in a row are for the downlink.
Known<bool> hasTwoSlots(Check& check, const Tracking& tracking)
{
    const Known<OSUINT32> mu =
        tracking.bwp == nullptr ? Known<OSUINT32>::unless(RRC_RULE_INPUT_PREVIOUS) : tracking.bwp->mu();
    if (tracking.cell.duplex && *tracking.cell.duplex == RRC_RULE_DUPLEX_FDD)
    {
        return true;
    }
    const Known<TddGrid> grid = tddGrid(check.model, tracking.cell);
    if (!mu || !grid || *mu < grid->muRef)
    {
        return Known<bool>::unless(mu.inputs() | grid.inputs());
    }
    const TddSlots slots = check.model.tddSlots(tracking.cell, *grid, *mu);
    for (OSUINT32 slot = 0; slot < slots.count(); ++slot)
    {
        if (slots.isAll(slot, NR_SYMBOL_DOWNLINK) && slots.isAll(slot + 1, NR_SYMBOL_DOWNLINK))
        {
            return true;
        }
    }
    return false;
}

// Of each pair in one slot the symbols are four apart; which ones also depends on the frequency range.
bool isTrackingPair(OSUINT32 first, OSUINT32 second, bool isFr1)
{
    static constexpr OSUINT32 inBoth = 1U << 4 | 1U << 5 | 1U << 6;
    static constexpr OSUINT32 inFr2 = inBoth | 1U << 0 | 1U << 1 | 1U << 2 | 1U << 3 | 1U << 7 | 1U << 8 | 1U << 9;
    return second == first + 4 && (((isFr1 ? inBoth : inFr2) >> first) & 1) != 0;
}

// What each resource has for itself.
void judgeTrackingResource(Check& check, const Tracking& tracking, const NZP_CSI_RS_Resource& resource)
{
    const NrCsiRsRow* const row = csiRsRow(check.tree, resource.resourceMapping);
    if (row != nullptr && row->row != 1)
    {
        check.error(&resource.resourceMapping)
            .found("row %u, in a set for tracking", row->row)
            .allowed("there a resource has one port and density three");
    }
    const auto* const choice = MEMBER(resource, periodicityAndOffset);
    if (tracking.bwp == nullptr || !check.decided(tracking.bwp->mu()))
    {
        return;
    }
    const OSUINT32 mu = *tracking.bwp->mu();
    const OSUINT32 period = choice == nullptr ? 0 : recurrenceOf(*choice).period;
    const OSUINT32 ms = period >> mu;
    const bool isPeriod = ms << mu == period && (ms == 10 || ms == 20 || ms == 40 || ms == 80);
    if (period != 0 && !isPeriod)
    {
        check.error(choice)
            .found("%u slots, in a set for tracking", period)
            .allowed("at %u kHz that is %u, %u, %u or %u", khzOf(mu), 10U << mu, 20U << mu, 40U << mu, 80U << mu);
    }
    const CSI_FrequencyOccupation& band = resource.resourceMapping.freqBand;
    if (isPeriod && ms == 10 && band.nrofRBs > 52)
    {
        check.error(choice)
            .found("%u slots, in a set for tracking", period)
            .allowed("10 ms are for at most 52 RB, and the resource has %u", band.nrofRBs);
    }
    const Known<NrSpan> rbs = commonRbs(check.model, *tracking.bwp);
    const Known<NrSpan> left = csiBand(check.model, *tracking.bwp, band);
    // The grid of four leaves up to three blocks on either side.
    if (check.decided(rbs) && left->size >= std::min(rbs->size, 24U) && left->size != 52 && left->size + 7 <= rbs->size)
    {
        check.error(&band.nrofRBs)
            .found("%u RB in the bandwidth part, in a set for tracking", left->size)
            .allowed("there it is %u or all of %u", std::min(rbs->size, 52U), rbs->size);
    }
}

// Where the resources of a set lie to each other.
void judgeTrackingPlaces(Check& check, const Tracking& tracking)
{
    const NZP_CSI_RS_ResourceSet& set = tracking.set;
    const size_t count = sizeOf(set);
    if (count != 2 && count != 4)
    {
        check.error(&set.nzp_CSI_RS_Resources)
            .found("%zu resource%s", count, count == 1 ? "" : "s")
            .allowed("a set for tracking has 2 in one slot or 4 in two");
        return;
    }
    const Known<RrcRuleRange>& range = tracking.cell.range;
    const bool isFr1 = range && *range == RRC_RULE_RANGE_FR1;
    if (count == 2 && isFr1)
    {
        const Known<bool> hasTwo = hasTwoSlots(check, tracking);
        if (check.decided(hasTwo) && *hasTwo)
        {
            check.warning(&set.nzp_CSI_RS_Resources)
                .found("2 resources")
                .allowed("in FR1 a set for tracking has 4, where two downlink slots follow each other");
        }
    }
    const NZP_CSI_RS_Resource* all[4] = {};
    size_t found = 0;
    forResources(tracking.csi, set,
                 [&](const NZP_CSI_RS_Resource& resource, const auto&)
                 { all[found < std::size(all) ? found++ : 0] = &resource; });
    if (found != count)
    {
        return;
    }
    const auto slotOf = [](const NZP_CSI_RS_Resource* of)
    {
        return of->m.periodicityAndOffsetPresent != 0 ? recurrenceOf(of->periodicityAndOffset) : Recurrence{};
    };
    const auto symbolOf = [](const NZP_CSI_RS_Resource* of)
    {
        return OSUINT32{of->resourceMapping.firstOFDMSymbolInTimeDomain};
    };
    const bool arePeriodic = std::all_of(all, all + count, [&](const auto* of) { return slotOf(of).period != 0; });
    if (arePeriodic)
    {
        std::sort(all, all + count,
                  [&](const auto* a, const auto* b) {
                      return slotOf(a).offset != slotOf(b).offset ? slotOf(a).offset < slotOf(b).offset
                                                                  : symbolOf(a) < symbolOf(b);
                  });
        const OSUINT32 period = slotOf(all[0]).period;
        const OSUINT32 first = slotOf(all[0]).offset;
        const OSUINT32 last = slotOf(all[count - 1]).offset;
        const bool arePaired = slotOf(all[1]).offset == first && slotOf(all[count - 2]).offset == last;
        const bool areClose = count == 2 || last == first + 1 || (first == 0 && last == period - 1);
        if (!arePaired || !areClose)
        {
            check.error(&set.nzp_CSI_RS_Resources)
                .found("resources in slots %u to %u of %u", first, last, period)
                .allowed("a set for tracking has 2 in one slot or 4 in two that follow each other");
            return;
        }
    }
    else if (count == 2)
    {
        std::sort(all, all + count, [&](const auto* a, const auto* b) { return symbolOf(a) < symbolOf(b); });
    }
    else
    {
        return; // which two of an aperiodic set are in a slot is not said
    }
    for (size_t i = 0; i < count; i += 2)
    {
        const OSUINT32 first = symbolOf(all[i]);
        const OSUINT32 second = symbolOf(all[i + 1]);
        if (!isTrackingPair(first, second, isFr1))
        {
            check.error(&set.nzp_CSI_RS_Resources)
                .found("symbols %u and %u of a slot", first, second)
                .allowed("in a set for tracking that is 4 and 8, 5 and 9, 6 and 10%s",
                         isFr1 ? "" : ", in FR2 also others four apart");
        }
    }
    for (size_t i = 1; i < count; ++i)
    {
        if (all[i]->powerControlOffset != all[0]->powerControlOffset ||
            all[i]->m.powerControlOffsetSSPresent != all[0]->m.powerControlOffsetSSPresent ||
            (all[i]->m.powerControlOffsetSSPresent != 0 &&
             all[i]->powerControlOffsetSS != all[0]->powerControlOffsetSS))
        {
            check.error(&set.nzp_CSI_RS_Resources)
                .found("resources %u and %u of different power", all[0]->nzp_CSI_RS_ResourceId,
                       all[i]->nzp_CSI_RS_ResourceId)
                .allowed("in a set for tracking powerControlOffset and powerControlOffsetSS are the same");
            return;
        }
    }
}

bool namesTracking(Check& check, const ReportView& view)
{
    bool isNamed = false;
    forNzpSets(check, view.csi, view.channel,
               [&](const NZP_CSI_RS_ResourceSet& set) { isNamed = isNamed || set.m.trs_InfoPresent != 0; });
    return isNamed;
}

// A set for tracking is what a UE tracks.
void csiTrs(Check& check)
{
    forCsi(check,
           [&](const Cell& cell, const Csi& csi)
           {
               for (const IdEntry<NZP_CSI_RS_ResourceSet>& entry : csi.nzpSets)
               {
                   const NZP_CSI_RS_ResourceSet& set = *entry.element;
                   if (set.m.trs_InfoPresent == 0)
                   {
                       continue;
                   }
                   const CsiUse use = useOf(csi.nzpSetUse, entry.id);
                   const Tracking tracking = {cell, csi, set, use, usedIn(cell, use)};
                   forResources(csi, set,
                                [&](const NZP_CSI_RS_Resource& resource, const auto&)
                                { judgeTrackingResource(check, tracking, resource); });
                   judgeTrackingPlaces(check, tracking);
                   if (set.m.repetitionPresent != 0)
                   {
                       check.error(&set.repetition).allowed("the set is for tracking");
                   }
               }
           });
    forReports(check,
               [&](const ReportView& view)
               {
                   if (!namesTracking(check, view))
                   {
                       return;
                   }
                   const CSI_ReportConfig& report = view.report;
                   if (view.channel->resourceType != aperiodic || !isNothing(report.reportQuantity))
                   {
                       check.error(&report.resourcesForChannelMeasurement)
                           .allowed(
                               "CSI-ResourceConfig %u is for tracking; only reports of nothing name that, where it "
                               "is aperiodic",
                               report.resourcesForChannelMeasurement);
                   }
                   else if (report.timeRestrictionForChannelMeasurements ==
                            CSI_ReportConfig_timeRestrictionForChannelMeasurements_configured)
                   {
                       check.error(&report.timeRestrictionForChannelMeasurements)
                           .allowed("the report is on a set for tracking");
                   }
               });
}

// A new CSI-IM resource has all that there is of it.
void csiImIncomplete(Check& check)
{
    forCsi(check,
           [&](const Cell&, const Csi& csi)
           {
               for (const IdEntry<CSI_IM_Resource>& entry : csi.imResources)
               {
                   const CSI_IM_Resource& resource = *entry.element;
                   const bool isWhole =
                       resource.m.csi_IM_ResourceElementPatternPresent != 0 && resource.m.freqBandPresent != 0;
                   if (isWhole || !check.isNew(entry.novelty))
                   {
                       continue;
                   }
                   if (resource.m.csi_IM_ResourceElementPatternPresent == 0)
                   {
                       check.warning(&resource.csi_IM_ResourceElementPattern).allowed("the resource is new");
                   }
                   if (resource.m.freqBandPresent == 0)
                   {
                       check.warning(&resource.freqBand).allowed("the resource is new");
                   }
               }
           });
}

// What a periodic resource takes of its bandwidth part.
struct Grid
{
    const NZP_CSI_RS_Resource* resource;
    Recurrence slots;
    OSUINT32 symbols;     // bit i: symbol i
    OSUINT32 subcarriers; // bit i: subcarrier i of a resource block
    NrSpan rbs;           // common ones
};

// The subcarriers of a resource block (TS 38.211 7.4.1.5.3): the last bit of a bitmap is that of the lowest.
OSUINT32 subcarriersOf(const Tree& tree, const CSI_RS_ResourceMapping& mapping, const NrCsiRsRow& row)
{
    static constexpr OSUINT32 bitCounts[] = {4, 12, 3, 6}; // by the branch
    static constexpr OSUINT32 patterns[] = {0x111, 0x1, 0xF, 0x3};
    static constexpr OSUINT32 steps[] = {1, 1, 4, 2};
    const ASN1BitStr32* const bits = tree.follow(mapping.frequencyDomainAllocation.u.row1);
    const OSUINT32 branch = row.branch - 1U;
    OSUINT32 subcarriers = 0;
    for (OSUINT32 i = 0; bits != nullptr && i < bitCounts[branch]; ++i)
    {
        const OSUINT32 number = bitCounts[branch] - 1 - i;
        subcarriers |= hasBit(*bits, i) ? patterns[branch] << steps[branch] * number : 0;
    }
    return subcarriers;
}

// Null resource where it is not known.
Grid gridOf(Check& check, const Bwp& bwp, const NZP_CSI_RS_Resource& resource)
{
    const CSI_RS_ResourceMapping& mapping = resource.resourceMapping;
    const NrCsiRsRow* const row = csiRsRow(check.tree, mapping);
    const auto* const slots = MEMBER(resource, periodicityAndOffset);
    const Known<NrSpan> rbs = csiBand(check.model, bwp, mapping.freqBand);
    if (row == nullptr || slots == nullptr || recurrenceOf(*slots).period == 0 || !check.decided(rbs))
    {
        return {};
    }
    const OSUINT32 second =
        row->secondSymbols == 0 ? 0 : ((1U << row->secondSymbols) - 1) << (mapping.firstOFDMSymbolInTimeDomain2 & 15);
    return {&resource, recurrenceOf(*slots),
            ((1U << row->symbols) - 1) << (mapping.firstOFDMSymbolInTimeDomain & 15) | second,
            subcarriersOf(check.tree, mapping, *row), *rbs};
}

bool overlap(const NrSpan& a, const NrSpan& b)
{
    return a.start < b.start + b.size && b.start < a.start + a.size;
}

// Whether two recurrences ever have a slot in common.
bool meet(const Recurrence& a, const Recurrence& b)
{
    const OSUINT32 common = std::gcd(a.period, b.period);
    return a.offset % common == b.offset % common;
}

void judgeCoresets(Check& check, Bwp& bwp, const NrSpan& rbs, const Grid& grid)
{
    const Pdcch& pdcch = check.model.pdcch(bwp);
    for (const SearchSpaceEntry& space : pdcch.allSearchSpaces)
    {
        const ControlResourceSetId* const id = MEMBER(*space.element, controlResourceSetId);
        const Coreset* const coreset = id == nullptr ? nullptr : pdcch.coreset(*id);
        const Known<Monitoring> monitoring = monitoringOf(*space.element);
        if (coreset == nullptr || coreset->element->duration > maxCoReSetDuration || !monitoring ||
            !meet(*monitoring, Monitoring{grid.slots.period, grid.slots.offset, 1}))
        {
            continue;
        }
        OSUINT32 symbols = 0;
        for (OSUINT32 i = 0; i < coreset->element->duration; ++i)
        {
            symbols |= firstSymbolsOf(*space.element) << i;
        }
        bool isThere = false;
        for (OSUINT32 group = 0; group < coresetBits; ++group)
        {
            const NrSpan six = {rbs.start + nrCoresetGroupStart(rbs.start, group), 6};
            isThere = isThere || (hasBit(coreset->element->frequencyDomainResources, group) && overlap(six, grid.rbs));
        }
        if (isThere && (symbols & grid.symbols) != 0)
        {
            check.warning(&grid.resource->resourceMapping)
                .found("NZP-CSI-RS-Resource %u", grid.resource->nzp_CSI_RS_ResourceId)
                .allowed("search space %u is monitored in the same symbols and resource blocks", space.id);
            return;
        }
    }
}

// The half frame of the SS/PBCH blocks is told by the cell itself: a collision is one wherever it is.
void judgeSsb(Check& check, const Bwp& bwp, const Grid& grid)
{
    static constexpr OSUINT32 periods[] = {5, 10, 20, 40, 80, 160};
    const Cell& cell = *bwp.cell;
    const FrequencyInfoDL* const frequency = cell.frequencyDl();
    const auto* const spacing = cell.common == nullptr ? nullptr : MEMBER(*cell.common, ssbSubcarrierSpacing);
    const auto* const arfcn = frequency == nullptr ? nullptr : MEMBER(*frequency, absoluteFrequencySSB);
    const Known<SsbPositions> positions = ssbPositions(check.model, cell);
    const Known<OSUINT32> mu = bwp.mu();
    const NrBand* const band = cell.band ? nrBand(*cell.band) : nullptr;
    if (spacing == nullptr || arfcn == nullptr || !positions || !mu || muOf(*spacing) != *mu || band == nullptr)
    {
        return;
    }
    const auto* const told = MEMBER(*cell.common, ssb_periodicityServingCell);
    const OSUINT32 ms = told == nullptr ? 5 : *told < std::size(periods) ? periods[*told] : 0;
    const int64_t rbKhz = 12 * int64_t{khzOf(*mu)};
    const int64_t low =
        int64_t{nrArfcnKhz(*arfcn)} - NR_SSB_RBS / 2 * rbKhz - int64_t{nrArfcnKhz(frequency->absoluteFrequencyPointA)};
    const bool isThere = low < (int64_t{grid.rbs.start} + grid.rbs.size) * rbKhz &&
                         int64_t{grid.rbs.start} * rbKhz < low + NR_SSB_RBS * rbKhz;
    if (ms == 0 || !isThere)
    {
        return;
    }
    const OSUINT32 halfFrame = 5U << *mu;
    const auto collides = [&](OSUINT32 half)
    {
        for (OSUINT32 i = 0; i < positions->count; ++i)
        {
            OSUINT32 first = 0;
            const bool caseB = band->hasCaseB != 0 && band->hasCaseC == 0;
            if (!positions->isSent(i) || nrSsbFirstSymbol(*mu, caseB ? 1 : 0, i, &first) == 0)
            {
                continue;
            }
            const OSUINT32 symbols = ((1U << NR_SSB_SYMBOLS) - 1) << first % NR_SYMBOLS;
            const Recurrence slots = {ms << *mu, half * halfFrame + first / NR_SYMBOLS};
            if ((symbols & grid.symbols) != 0 && meet(slots, grid.slots))
            {
                return true;
            }
        }
        return false;
    };
    for (OSUINT32 half = 0; half < ms / 5; ++half)
    {
        if (!collides(half))
        {
            return;
        }
    }
    check.warning(&grid.resource->resourceMapping)
        .found("NZP-CSI-RS-Resource %u", grid.resource->nzp_CSI_RS_ResourceId)
        .allowed("SS/PBCH blocks are sent in the same symbols and resource blocks");
}

bool isTracked(const Csi& csi, OSUINT32 resource)
{
    for (const IdEntry<NZP_CSI_RS_ResourceSet>& set : csi.nzpSets)
    {
        const auto ids = entries(&set.element->nzp_CSI_RS_Resources);
        if (set.element->m.trs_InfoPresent != 0 && std::find(ids.begin(), ids.end(), resource) != ids.end())
        {
            return true;
        }
    }
    return false;
}

// Periodic CSI-RS keep clear of CORESETs and SS/PBCH blocks, what is for tracking also of what is not.
void judgeCollisions(Check& check, const Csi& csi, Bwp& bwp)
{
    const Known<NrSpan> rbs = commonRbs(check.model, bwp);
    if (!rbs)
    {
        check.undecided(rbs.inputs());
        return;
    }
    Vector<Grid> tracking;
    Vector<Grid> others;
    for (const IdEntry<NZP_CSI_RS_Resource>& entry : csi.nzpResources)
    {
        const CsiUse use = useOf(csi.nzpUse, entry.id);
        if (!use.is(periodic) || (use.bwps >> bwp.id & 1) == 0)
        {
            continue;
        }
        const Grid grid = gridOf(check, bwp, *entry.element);
        if (grid.resource != nullptr)
        {
            (isTracked(csi, entry.id) ? tracking : others).add(check.model.memory, grid);
            judgeCoresets(check, bwp, *rbs, grid);
            judgeSsb(check, bwp, grid);
        }
    }
    for (const Grid& one : tracking)
    {
        for (const Grid& other : others)
        {
            if (meet(one.slots, other.slots) && (one.symbols & other.symbols) != 0 &&
                (one.subcarriers & other.subcarriers) != 0 && overlap(one.rbs, other.rbs))
            {
                check.warning(&other.resource->resourceMapping)
                    .found("NZP-CSI-RS-Resource %u", other.resource->nzp_CSI_RS_ResourceId)
                    .allowed("resource %u, which is for tracking, has the same resource elements",
                             one.resource->nzp_CSI_RS_ResourceId);
                break;
            }
        }
    }
}

void csiCollision(Check& check)
{
    forCsi(check,
           [&](Cell& cell, const Csi& csi)
           {
               for (Bwp& bwp : cell.downlink)
               {
                   const bool isUsed = std::any_of(std::begin(csi.nzpUse), std::end(csi.nzpUse),
                                                   [&](const CsiUse& use) { return (use.bwps >> bwp.id & 1) != 0; });
                   if (isUsed)
                   {
                       judgeCollisions(check, csi, bwp);
                   }
               }
           });
}

// The ports of one rank: given, and none of them twice.
struct Ranks
{
    OSUINT32 given;
    bool repeats;

    void add(const OSUINT8* ports, OSUINT32 count)
    {
        if (ports == nullptr)
        {
            return;
        }
        ++given;
        OSUINT32 seen = 0;
        for (OSUINT32 i = 0; i < count; ++i)
        {
            const OSUINT32 bit = 1U << (ports[i] & 7);
            repeats = repeats || (seen & bit) != 0;
            seen |= bit;
        }
    }
    template <typename Array>
    void addAll(const Array* array)
    {
        add(array == nullptr ? nullptr : array->elem, static_cast<OSUINT32>(entries(array).size()));
    }
};

// For how many ports an indication is, and its ranks; no ports where it is broken.
OSUINT32 ranksOf(const Tree& tree, const PortIndexFor8Ranks& ports, Ranks& ranks)
{
    const auto* const of = &ports;
    if (const auto* const eight = CHOSEN(tree, of, PortIndexFor8Ranks, portIndex8))
    {
        ranks.add(MEMBER(*eight, rank1_8), 1);
        ranks.addAll(MEMBER(*eight, rank2_8));
        ranks.addAll(MEMBER(*eight, rank3_8));
        ranks.addAll(MEMBER(*eight, rank4_8));
        ranks.addAll(MEMBER(*eight, rank5_8));
        ranks.addAll(MEMBER(*eight, rank6_8));
        ranks.addAll(MEMBER(*eight, rank7_8));
        ranks.addAll(MEMBER(*eight, rank8_8));
        return 8;
    }
    if (const auto* const four = CHOSEN(tree, of, PortIndexFor8Ranks, portIndex4))
    {
        ranks.add(MEMBER(*four, rank1_4), 1);
        ranks.addAll(MEMBER(*four, rank2_4));
        ranks.addAll(MEMBER(*four, rank3_4));
        ranks.addAll(MEMBER(*four, rank4_4));
        return 4;
    }
    if (const auto* const two = CHOSEN(tree, of, PortIndexFor8Ranks, portIndex2))
    {
        ranks.add(MEMBER(*two, rank1_2), 1);
        ranks.addAll(MEMBER(*two, rank2_2));
        return 2;
    }
    ranks.given = 1;
    return ports.t == T_PortIndexFor8Ranks_portIndex1 ? 1 : 0;
}

// An indication is of the ports of its resource.
void judgePortIndex(Check& check, const PortIndexFor8Ranks& indication, const NZP_CSI_RS_Resource& resource)
{
    Ranks ranks{};
    const OSUINT32 ports = ranksOf(check.tree, indication, ranks);
    const OSUINT32 has = portsOf(resource.resourceMapping);
    if (ports == 0)
    {
        return;
    }
    if (ports != has)
    {
        check.error(&indication)
            .found("portIndex%u", ports)
            .allowed("NZP-CSI-RS-Resource %u has %u port%s", resource.nzp_CSI_RS_ResourceId, has, has == 1 ? "" : "s");
    }
    else if (ranks.given == 0)
    {
        check.error(&indication).found("no rank").allowed("one at least is reported");
    }
    else if (ranks.repeats)
    {
        check.error(&indication).found("a port twice in a rank").allowed("each layer has a port of its own");
    }
}

// The ports are indicated of what is reported without a PMI, for each resource.
void csiPortIndication(Check& check)
{
    forReports(check,
               [&](const ReportView& view)
               {
                   const CSI_ReportConfig& report = view.report;
                   const auto* const table = MEMBER(report, cqi_Table);
                   const Bwp* const bwp = bwpOf(view.carrier, view.channel);
                   if (table != nullptr && *table == CSI_ReportConfig_cqi_Table_table2 && bwp != nullptr &&
                       bwp->pdsch != nullptr && hasCqi(report.reportQuantity) &&
                       !(bwp->pdsch->m.mcs_TablePresent != 0 && bwp->pdsch->mcs_Table == PDSCH_Config_mcs_Table_qam256))
                   {
                       check.warning(table).allowed("the PDSCH has no qam256");
                   }
                   const auto* const list = MEMBER(report, non_PMI_PortIndication);
                   if (list == nullptr)
                   {
                       return;
                   }
                   if (report.reportQuantity.t != T_CSI_ReportConfig_reportQuantity_cri_RI_CQI)
                   {
                       check.warning(list).allowed("it is for cri-RI-CQI alone");
                       return;
                   }
                   size_t named = 0;
                   Vector<const NZP_CSI_RS_Resource*> resources;
                   forNzpSets(check, view.csi, view.channel,
                              [&](const NZP_CSI_RS_ResourceSet& set)
                              {
                                  named += sizeOf(set);
                                  forResources(*view.csi, set,
                                               [&](const NZP_CSI_RS_Resource& resource, const auto&)
                                               { resources.add(check.model.memory, &resource); });
                              });
                   const auto indications = check.tree.list<PortIndexFor8Ranks>(list);
                   if (named == 0 || resources.size() != named)
                   {
                       return;
                   }
                   if (indications.size() != named)
                   {
                       check.error(list).allowed("the channel has %zu resource%s", named, named == 1 ? "" : "s");
                       return;
                   }
                   size_t i = 0;
                   for (const PortIndexFor8Ranks& indication : indications)
                   {
                       judgePortIndex(check, indication, *resources[std::min(i++, named - 1)]);
                   }
               });
}

constexpr Rule table[] = {
    {.told = {.id = "csi-ref-chain",
              .severity = RRC_RULE_ERROR,
              .statement = "Every id on the way from a CSI report over its settings and their sets to the resources "
                           "names something that is configured, in the cell that the report is about.",
              .advice = "Add what is named, or name what there is.",
              .clause = "TS 38.331 CSI-ReportConfig, CSI-ResourceConfig",
              .given = "",
              .bad = AT_REPORT "resourcesForChannelMeasurement = 9",
              .good = AT_REPORT "resourcesForChannelMeasurement = 0",
              .since = "0.1.0"},
     .run = csiRefChain},
    {.told = {.id = "csi-config-kind",
              .severity = RRC_RULE_ERROR,
              .statement = "A report measures the channel on CSI-RS or SS/PBCH blocks, interference on CSI-IM where "
                           "csi-IM-ResourcesForInterference names it, and on NZP CSI-RS where "
                           "nzp-CSI-RS-ResourcesForInterference does, which only an aperiodic report has.",
              .advice = "Name a CSI-ResourceConfig of the kind that the field is for.",
              .clause = "TS 38.331 CSI-ReportConfig; TS 38.214 5.2.1.2",
              .given = "",
              .bad = AT_REPORT "csi-IM-ResourcesForInterference = 0",
              .good = AT_REPORT "csi-IM-ResourcesForInterference = 1",
              .since = "0.1.0"},
     .run = csiConfigKind},
    {.told = {.id = "csi-same-bwp",
              .severity = RRC_RULE_ERROR,
              .statement = "The settings of a report are of one downlink bandwidth part, which is configured, and of "
                           "the same time behaviour.",
              .advice = "Give them the same bwp-Id and resourceType.",
              .clause = "TS 38.331 CSI-ReportConfig; TS 38.214 5.2.1.2",
              .given = "",
              .bad = AT_CSI_RESOURCES "[1].bwp-Id = 0",
              .good = AT_CSI_RESOURCES "[1].bwp-Id = 1",
              .since = "0.1.0"},
     .run = csiSameBwp},
    {.told = {.id = "csi-one-set",
              .severity = RRC_RULE_ERROR,
              .statement = "A periodic or semi-persistent setting has one set of resources, and sets and resources "
                           "that settings share have the same time behaviour in all of them.",
              .advice = "Use an aperiodic setting, or a setting for each set.",
              .clause = "TS 38.331 CSI-ResourceConfig; TS 38.214 5.2.1.2",
              .given = "",
              .bad = AT_NZP_SET "[3].nzp-CSI-ResourceSetId = 3\n" AT_NZP_SET
                                "[3].nzp-CSI-RS-Resources[0] = 0\n" AT_CSI_RESOURCES
                                "[0].csi-RS-ResourceSetList.nzp-CSI-RS-SSB.nzp-CSI-RS-ResourceSetList[1] = 3",
              .good = AT_NZP_SET "[3].nzp-CSI-ResourceSetId = 3\n" AT_NZP_SET
                                 "[3].nzp-CSI-RS-Resources[0] = 3\n" AT_CSI_RESOURCES
                                 "[3].csi-RS-ResourceSetList.nzp-CSI-RS-SSB.nzp-CSI-RS-ResourceSetList[1] = 3",
              .since = "0.1.0"},
     .run = csiOneSet},
    {.told = {.id = "csi-report-vs-resource",
              .severity = RRC_RULE_ERROR,
              .statement = "A periodic report is measured on periodic resources, a semi-persistent one on periodic or "
                           "semi-persistent ones.",
              .advice = "Change the type of the report, or of the setting.",
              .clause = "TS 38.214 table 5.2.1.4-1",
              .given = "",
              .bad =
                  AT_CSI_RESOURCES "[0].resourceType = semiPersistent\n" AT_CSI_RESOURCES
                                   "[1].resourceType = semiPersistent\n" AT_NZP "[0].qcl-InfoPeriodicCSI-RS = absent",
              .good = AT_CSI_RESOURCES
              "[0].resourceType = semiPersistent\n" AT_CSI_RESOURCES "[1].resourceType = semiPersistent\n" AT_NZP
              "[0].qcl-InfoPeriodicCSI-RS = absent\n" AT_REPORT "reportConfigType = absent\n" AT_REPORT
              "reportConfigType.semiPersistentOnPUCCH.reportSlotConfig.slots80 = 9\n" AT_REPORT
              "reportConfigType.semiPersistentOnPUCCH.pucch-CSI-ResourceList[0].uplinkBandwidthPartId = 1\n" AT_REPORT
              "reportConfigType.semiPersistentOnPUCCH.pucch-CSI-ResourceList[0].pucch-Resource = 7",
              .since = "0.1.0"},
     .run = csiReportVsResource},
    {.told = {.id = "csi-periodicity-cond",
              .severity = RRC_RULE_ERROR,
              .statement = "Periodic and semi-persistent resources have periodicityAndOffset, aperiodic ones have not; "
                           "only periodic ones have qcl-InfoPeriodicCSI-RS.",
              .advice = "Add or remove the field as the resourceType of the setting asks for.",
              .clause = "TS 38.331 NZP-CSI-RS-Resource, CSI-IM-Resource",
              .given = "",
              .bad = AT_NZP "[3].periodicityAndOffset.slots80 = 1",
              .good = AT_NZP "[0].periodicityAndOffset.slots80 = 2",
              .since = "0.1.0"},
     .run = csiPeriodicityCond},
    {.told = {.id = "csi-pucch-report",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "A periodic report, and one in PUCCH format 2, is for the whole band and has a Type I codebook.",
              .advice = "Report on PUSCH, or for the whole band.",
              .clause = "TS 38.214 5.2.3, 5.2.4",
              .given = "",
              .bad = AT_REPORT "reportFreqConfiguration.cqi-FormatIndicator = subbandCQI\n" AT_REPORT
                               "reportFreqConfiguration.csi-ReportingBand.subbands9 = FF80",
              .good = AT_REPORT "reportFreqConfiguration.csi-ReportingBand.subbands9 = FF80",
              .since = "0.1.0"},
     .run = csiPucchReport},
    {.told = {.id = "csi-codebook-needed",
              .severity = RRC_RULE_ERROR,
              .statement = "A report with a PMI for more than one port has a codebookConfig; one with i1 alone has "
                           "typeI-SinglePanel and widebandPMI.",
              .advice = "Add the codebook.",
              .clause = "TS 38.214 5.2.1.4.2",
              .given = "",
              .bad = AT_REPORT "codebookConfig = absent",
              .good = AT_REPORT "codebookConfig = absent\n" AT_REPORT "reportQuantity = absent\n" AT_REPORT
                                "reportQuantity.cri-RI-CQI = null\n" AT_REPORT
                                "reportFreqConfiguration.pmi-FormatIndicator = absent",
              .since = "0.1.0"},
     .run = csiCodebookNeeded},
    {.told =
         {.id = "csi-codebook-ports",
          .severity = RRC_RULE_ERROR,
          .statement =
              "The antennas of the codebook are as many as the ports of each resource that the channel is measured on.",
          .advice = "Choose n1-n2, or ng-n1-n2, for nrofPorts of the resources.",
          .clause = "TS 38.214 5.2.2.2.1 to 5.2.2.2.4",
          .given = "",
          .bad = AT_REPORT
          "codebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts = absent\n" AT_REPORT
          "codebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts.moreThanTwo.n1-n2.two-two-"
          "TypeI-SinglePanel-Restriction = FFFFFFFFFFFFFFFF",
          .good = AT_REPORT
          "codebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts = absent\n" AT_REPORT
          "codebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts.moreThanTwo.n1-n2.two-two-"
          "TypeI-SinglePanel-Restriction = FFFFFFFFFFFFFFFF\n" AT_NZP
          "[0].resourceMapping.frequencyDomainAllocation = absent\n" AT_NZP
          "[0].resourceMapping.frequencyDomainAllocation.other = C0\n" AT_NZP
          "[0].resourceMapping.nrofPorts = p8\n" AT_NZP "[0].resourceMapping.firstOFDMSymbolInTimeDomain = 12",
          .since = "0.1.0"},
     .run = csiCodebookPorts},
    {.told = {.id = "csi-codebook-type2",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "A restriction of ranks leaves one of them; a Type II codebook is of one resource, of 4 ports with "
                  "two beams, and its sampling size is at most half the ports and the number of beams.",
              .advice = "Allow a rank, or change the codebook.",
              .clause = "TS 38.214 5.2.2.2.3, 5.2.2.2.4, 5.2.1.4.2",
              .given = "",
              .bad = AT_REPORT
              "codebookConfig.codebookType.type1.subType.typeI-SinglePanel.typeI-SinglePanel-ri-Restriction = 00",
              .good = AT_REPORT
              "codebookConfig.codebookType.type1.subType.typeI-SinglePanel.typeI-SinglePanel-ri-Restriction = 01",
              .since = "0.1.0"},
     .run = csiCodebookType2},
    {.told = {.id = "csi-resource-count",
              .severity = RRC_RULE_ERROR,
              .statement = "A set for a report with a PMI has at most 8 resources, an aperiodic one for RSRP or none "
                           "at most 16; a setting for other quantities has at most 64.",
              .advice = "Split the set.",
              .clause = "TS 38.214 5.2.1.4.2",
              .given = "",
              .bad = ONE_MORE_NZP("6", "10") ONE_MORE_NZP("7", "11") ONE_MORE_NZP("8", "12") ONE_MORE_NZP("9", "13")
                  ONE_MORE_NZP("10", "14") ONE_MORE_NZP("11", "15") ONE_MORE_NZP("12", "16") ONE_MORE_NZP("13", "17")
                      AT_NZP_SET
              "[0].nzp-CSI-RS-Resources[1] = 10\n" AT_NZP_SET "[0].nzp-CSI-RS-Resources[2] = 11\n" AT_NZP_SET
              "[0].nzp-CSI-RS-Resources[3] = 12\n" AT_NZP_SET "[0].nzp-CSI-RS-Resources[4] = 13\n" AT_NZP_SET
              "[0].nzp-CSI-RS-Resources[5] = 14\n" AT_NZP_SET "[0].nzp-CSI-RS-Resources[6] = 15\n" AT_NZP_SET
              "[0].nzp-CSI-RS-Resources[7] = 16\n" AT_NZP_SET "[0].nzp-CSI-RS-Resources[8] = 17\n" AT_REPORT
              "csi-IM-ResourcesForInterference = absent",
              .good = ONE_MORE_NZP("6", "10") ONE_MORE_NZP("7", "11") ONE_MORE_NZP("8", "12") ONE_MORE_NZP("9", "13")
                  ONE_MORE_NZP("10", "14") ONE_MORE_NZP("11", "15") ONE_MORE_NZP("12", "16") AT_NZP_SET
              "[0].nzp-CSI-RS-Resources[1] = 10\n" AT_NZP_SET "[0].nzp-CSI-RS-Resources[2] = 11\n" AT_NZP_SET
              "[0].nzp-CSI-RS-Resources[3] = 12\n" AT_NZP_SET "[0].nzp-CSI-RS-Resources[4] = 13\n" AT_NZP_SET
              "[0].nzp-CSI-RS-Resources[5] = 14\n" AT_NZP_SET "[0].nzp-CSI-RS-Resources[6] = 15\n" AT_NZP_SET
              "[0].nzp-CSI-RS-Resources[7] = 16\n" AT_REPORT "csi-IM-ResourcesForInterference = absent",
              .since = "0.1.0"},
     .run = csiResourceCount},
    {.told = {.id = "csi-interference-count",
              .severity = RRC_RULE_ERROR,
              .statement = "The set of CSI-IM has as many resources as the set for the channel; with NZP CSI-RS for "
                           "interference that is one, and their set has at most 18 ports; RSRP has no interference.",
              .advice = "Give each resource of the channel one CSI-IM.",
              .clause = "TS 38.214 5.2.1.4.1, 5.2.1.4.2",
              .given = "",
              .bad = AT_IM "[2].csi-IM-ResourceId = 2\n" AT_IM
                           "[2].csi-IM-ResourceElementPattern.pattern1.subcarrierLocation-p1 = s4\n" AT_IM
                           "[2].csi-IM-ResourceElementPattern.pattern1.symbolLocation-p1 = 13\n" AT_IM
                           "[2].freqBand.startingRB = 0\n" AT_IM "[2].freqBand.nrofRBs = 276\n" AT_IM
                           "[2].periodicityAndOffset.slots80 = 1\n" AT_IM_SET "[0].csi-IM-Resources[1] = 2",
              .good = AT_IM "[2].csi-IM-ResourceId = 2\n" AT_IM
                            "[2].csi-IM-ResourceElementPattern.pattern1.subcarrierLocation-p1 = s4\n" AT_IM
                            "[2].csi-IM-ResourceElementPattern.pattern1.symbolLocation-p1 = 13\n" AT_IM
                            "[2].freqBand.startingRB = 0\n" AT_IM "[2].freqBand.nrofRBs = 276\n" AT_IM
                            "[2].periodicityAndOffset.slots80 = 1\n" AT_IM_SET "[0].csi-IM-Resources[0] = 2",
              .since = "0.1.0"},
     .run = csiInterferenceCount},
    {.told = {.id = "csi-cqi-needs-im",
              .severity = RRC_RULE_WARNING,
              .statement = "A report with a CQI names resources to measure interference on.",
              .advice = "Add csi-IM-ResourcesForInterference.",
              .clause = "TS 38.214 5.2.1.4.1",
              .given = "",
              .bad = AT_REPORT "csi-IM-ResourcesForInterference = absent",
              .good = AT_REPORT "csi-IM-ResourcesForInterference = absent\n" AT_REPORT
                                "reportQuantity = absent\n" AT_REPORT "reportQuantity.cri-RI-i1 = null\n" AT_REPORT
                                "reportFreqConfiguration.cqi-FormatIndicator = absent",
              .since = "0.1.0"},
     .run = csiCqiNeedsIm},
    {.told = {.id = "csi-rsrp-kind",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "cri-RSRP is measured on NZP CSI-RS of 1 or 2 ports, ssb-Index-RSRP on SS/PBCH blocks; not more of "
                  "them are reported than there are, and beams are grouped for these quantities alone.",
              .advice = "Name resources of the quantity.",
              .clause = "TS 38.214 5.2.1.4.2, 5.2.1.4.3",
              .given = "",
              .bad = AT_REPORT "reportQuantity = absent\n" AT_REPORT "reportFreqConfiguration = absent\n" AT_REPORT
                               "codebookConfig = absent\n" AT_REPORT
                               "csi-IM-ResourcesForInterference = absent\n" AT_REPORT "reportQuantity.cri-RSRP = null",
              .good = AT_REPORT
              "reportQuantity = absent\n" AT_REPORT "reportFreqConfiguration = absent\n" AT_REPORT
              "codebookConfig = absent\n" AT_REPORT "csi-IM-ResourcesForInterference = absent\n" AT_REPORT
              "reportQuantity.cri-RSRP = null\n" AT_NZP
              "[0].resourceMapping.frequencyDomainAllocation = absent\n" AT_NZP
              "[0].resourceMapping.frequencyDomainAllocation.other = 80\n" AT_NZP "[0].resourceMapping.nrofPorts = p2",
              .since = "0.1.0"},
     .run = csiRsrpKind},
    {.told = {.id = "csi-freq-config",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "A report with a CQI has cqi-FormatIndicator, one with a PMI pmi-FormatIndicator, others need none.",
              .advice = "Add the format.",
              .clause = "TS 38.214 5.2.1.4",
              .given = "",
              .bad = AT_REPORT "reportFreqConfiguration.cqi-FormatIndicator = absent",
              .good = AT_REPORT "reportFreqConfiguration.cqi-FormatIndicator = widebandCQI",
              .since = "0.1.0"},
     .run = csiFreqConfig},
    {.told = {.id = "csi-subband-count",
              .severity = RRC_RULE_ERROR,
              .statement = "csi-ReportingBand has a bit for each subband of the bandwidth part, one at least of them "
                           "set; a bandwidth part of less than 24 resource blocks has no subbands.",
              .advice = "Choose subbandsN for the number of subbands.",
              .clause = "TS 38.214 table 5.2.1.4-2; TS 38.331 CSI-ReportConfig",
              .given = "",
              .bad = AT_TRIGGERED "reportFreqConfiguration.csi-ReportingBand = absent\n" AT_TRIGGERED
                                  "reportFreqConfiguration.csi-ReportingBand.subbands10 = FFC0",
              .good = AT_TRIGGERED "reportFreqConfiguration.csi-ReportingBand = absent\n" AT_TRIGGERED
                                   "reportFreqConfiguration.csi-ReportingBand.subbands9 = 8000",
              .since = "0.1.0"},
     .run = csiSubbandCount},
    {.told = {.id = "csi-slot-offset-list",
              .severity = RRC_RULE_ERROR,
              .statement = "reportSlotOffsetList has an entry for each row of pusch-TimeDomainAllocationList, and one "
                           "of them leaves the UE time to compute the report.",
              .advice = "Add an offset for each row.",
              .clause = "TS 38.331 CSI-ReportConfig; TS 38.214 5.4",
              .given = "",
              .bad = AT_TRIGGERED "reportConfigType.aperiodic.reportSlotOffsetList[1] = absent",
              .good = AT_TRIGGERED "reportConfigType.aperiodic.reportSlotOffsetList[1] = 5",
              .since = "0.1.0"},
     .run = csiSlotOffsetList},
    {.told =
         {.id = "csi-sp-pusch",
          .severity = RRC_RULE_ERROR,
          .statement = "The states of semiPersistentOnPUSCH-TriggerStateList name reports that are "
                       "semiPersistentOnPUSCH, each such report is named, and p0alpha is a set of the PUSCH.",
          .advice = "Name the report in the list.",
          .clause = "TS 38.331 CSI-ReportConfig, CSI-SemiPersistentOnPUSCH-TriggerStateList",
          .given = "",
          .bad = AT_CSI "semiPersistentOnPUSCH-TriggerStateList.setup[0].associatedReportConfigInfo = 1",
          .good =
              AT_PHY
          "sp-CSI-RNTI = 100\n" AT_CSI "csi-ReportConfigToAddModList[2].reportConfigId = 2\n" AT_CSI
          "csi-ReportConfigToAddModList[2].resourcesForChannelMeasurement = 0\n" AT_CSI
          "csi-ReportConfigToAddModList[2].csi-IM-ResourcesForInterference = 1\n" AT_CSI
          "csi-ReportConfigToAddModList[2].reportConfigType.semiPersistentOnPUSCH.reportSlotConfig = sl80\n" AT_CSI
          "csi-ReportConfigToAddModList[2].reportConfigType.semiPersistentOnPUSCH.reportSlotOffsetList[0] = 3\n" AT_CSI
          "csi-ReportConfigToAddModList[2].reportConfigType.semiPersistentOnPUSCH.reportSlotOffsetList[1] = 4\n" AT_CSI
          "csi-ReportConfigToAddModList[2].reportConfigType.semiPersistentOnPUSCH.p0alpha = 0\n" AT_CSI
          "csi-ReportConfigToAddModList[2].reportQuantity.cri-RI-CQI = null\n" AT_CSI
          "csi-ReportConfigToAddModList[2].reportFreqConfiguration.cqi-FormatIndicator = widebandCQI\n" AT_CSI
          "csi-ReportConfigToAddModList[2].timeRestrictionForChannelMeasurements = notConfigured\n" AT_CSI
          "csi-ReportConfigToAddModList[2].timeRestrictionForInterferenceMeasurements = notConfigured\n" AT_CSI
          "csi-ReportConfigToAddModList[2].groupBasedBeamReporting.disabled = {}\n" AT_CSI
          "csi-ReportConfigToAddModList[2].cqi-Table = table2\n" AT_CSI
          "csi-ReportConfigToAddModList[2].subbandSize = value2\n" AT_CSI
          "semiPersistentOnPUSCH-TriggerStateList.setup[0].associatedReportConfigInfo = 2",
          .since = "0.1.0"},
     .run = csiSpPusch},
    {.told = {.id = "csi-trigger-state",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "A trigger state names an aperiodic report and sets that the settings of the report list, one for "
                  "each setting that it has; qcl-info has a TCI state for each resource, and only of aperiodic ones.",
              .advice = "Count the sets from 1 in the order of the CSI-ResourceConfig.",
              .clause = "TS 38.331 CSI-AperiodicTriggerStateList",
              .given = "",
              .bad = AT_TRIGGER "resourcesForChannel.nzp-CSI-RS.resourceSet = 2",
              .good = AT_TRIGGER "resourcesForChannel.nzp-CSI-RS.resourceSet = 1",
              .since = "0.1.0"},
     .run = csiTriggerState},
    {.told = {.id = "csi-trigger-size",
              .severity = RRC_RULE_WARNING,
              .statement = "reportTriggerSize is above 0 if there are trigger states, and only then; every aperiodic "
                           "report is in a state.",
              .advice = "Set reportTriggerSize for the number of states.",
              .clause = "TS 38.214 5.2.1.5.1; TS 38.321 6.1.3.13",
              .given = "",
              .bad = AT_CSI "reportTriggerSize = 0",
              .good = AT_CSI "reportTriggerSize = 1",
              .since = "0.1.0"},
     .run = csiTriggerSize},
    {.told = {.id = "csi-rs-row",
              .severity = RRC_RULE_ERROR,
              .statement = "The mapping of a CSI-RS is a row of the standard: number of ports, CDM, density and bits "
                           "of frequencyDomainAllocation fit; its symbols lie in the slot.",
              .advice = "Take the values of one row.",
              .clause = "TS 38.211 table 7.4.1.5.3-1; TS 38.331 CSI-RS-ResourceMapping",
              .given = "",
              .bad = AT_NZP "[0].resourceMapping.cdm-Type = noCDM",
              .good = AT_NZP "[0].resourceMapping.frequencyDomainAllocation.row4 = 80",
              .since = "0.1.0"},
     .run = csiRsRowOfTable},
    {.told = {.id = "csi-rs-band",
              .severity = RRC_RULE_ERROR,
              .statement = "startingRB and nrofRBs are multiples of 4, and of the band 24 resource blocks, or all of a "
                           "smaller bandwidth part, lie in the bandwidth part.",
              .advice = "Count startingRB from point A.",
              .clause = "TS 38.331 CSI-FrequencyOccupation; TS 38.214 5.2.2.3.1",
              .given = "",
              .bad = AT_NZP "[0].resourceMapping.freqBand.startingRB = 252",
              .good = AT_NZP "[0].resourceMapping.freqBand.startingRB = 248",
              .since = "0.1.0"},
     .run = csiRsBand},
    {.told = {.id = "csi-rs-set-uniform",
              .severity = RRC_RULE_ERROR,
              .statement = "The resources of a set have the same band, density, CDM, number of ports and period; "
                           "repetition is for reports of RSRP or none.",
              .advice = "Split the set.",
              .clause = "TS 38.214 5.2.2.3.1; TS 38.331 NZP-CSI-RS-ResourceSet",
              .given = "",
              .bad = ONE_MORE_NZP("6", "6") AT_NZP_SET "[0].nzp-CSI-RS-Resources[1] = 6\n" AT_REPORT
                                                       "csi-IM-ResourcesForInterference = absent\n" AT_NZP
                                                       "[6].resourceMapping.freqBand.nrofRBs = 272",
              .good = ONE_MORE_NZP("6", "6") AT_NZP_SET "[0].nzp-CSI-RS-Resources[1] = 6\n" AT_REPORT
                                                        "csi-IM-ResourcesForInterference = absent",
              .since = "0.1.0"},
     .run = csiRsSetUniform},
    {.told = {.id = "csi-trs",
              .severity = RRC_RULE_ERROR,
              .statement = "A set with trs-Info has two resources in one slot or four in two that follow each other, "
                           "of one port and density three, four symbols apart, of 10, 20, 40 or 80 ms, over 52 "
                           "resource blocks or the bandwidth part; it is not reported on, nor repeated.",
              .advice = "Take the symbols, periods and bands that are allowed for tracking.",
              .clause = "TS 38.214 5.1.6.1.1",
              .given = "",
              .bad = AT_NZP "[1].resourceMapping.firstOFDMSymbolInTimeDomain = 5",
              .good = AT_NZP "[1].resourceMapping.firstOFDMSymbolInTimeDomain = 5\n" AT_NZP
                             "[2].resourceMapping.firstOFDMSymbolInTimeDomain = 9",
              .since = "0.1.0"},
     .run = csiTrs},
    {.told = {.id = "csi-im-incomplete",
              .severity = RRC_RULE_WARNING,
              .statement = "A new CSI-IM resource has csi-IM-ResourceElementPattern and freqBand.",
              .advice = "Add the field: there is no value to fall back on.",
              .clause = "TS 38.331 CSI-IM-Resource",
              .given = "",
              .bad = AT_IM "[0].freqBand = absent",
              .good = AT_IM "[0].freqBand.nrofRBs = 24",
              .since = "0.1.0"},
     .run = csiImIncomplete},
    {.told = {.id = "csi-collision",
              .severity = RRC_RULE_WARNING,
              .statement = "A periodic CSI-RS does not share symbols and resource blocks with a search space or "
                           "SS/PBCH blocks, nor resource elements with one for tracking.",
              .advice = "Move it to other symbols or slots.",
              .clause = "TS 38.214 5.2.2.3.1, 5.1.6.1",
              .given = "",
              .bad = AT_NZP "[0].resourceMapping.firstOFDMSymbolInTimeDomain = 1",
              .good = AT_NZP "[0].resourceMapping.firstOFDMSymbolInTimeDomain = 2",
              .since = "0.1.0"},
     .run = csiCollision},
    {.told = {.id = "csi-port-indication",
              .severity = RRC_RULE_ERROR,
              .statement = "non-PMI-PortIndication is for cri-RI-CQI, with an entry for each resource that has its "
                           "number of ports and each port once in a rank; table2 is for a PDSCH with qam256.",
              .advice = "Choose portIndexN for nrofPorts of the resource.",
              .clause = "TS 38.331 CSI-ReportConfig, PortIndexFor8Ranks",
              .given = "",
              .bad = AT_REPORT "reportQuantity = absent\n" AT_REPORT "reportQuantity.cri-RI-CQI = null\n" AT_REPORT
                               "reportFreqConfiguration.pmi-FormatIndicator = absent\n" AT_REPORT
                               "codebookConfig = absent\n" AT_REPORT "non-PMI-PortIndication[0].portIndex2.rank1-2 = 0",
              .good =
                  AT_REPORT "reportQuantity = absent\n" AT_REPORT "reportQuantity.cri-RI-CQI = null\n" AT_REPORT
                            "reportFreqConfiguration.pmi-FormatIndicator = absent\n" AT_REPORT
                            "codebookConfig = absent\n" AT_REPORT "non-PMI-PortIndication[0].portIndex4.rank1-4 = 0",
              .since = "0.1.0"},
     .run = csiPortIndication},
};

} // namespace

constinit const RuleGroup csiRules = groupOf(table);

} // namespace rules
