// CSI: what reports hold.
#include "csi.h"
#include "examplePaths.h"
#include "rules.h"

namespace rules
{
namespace
{

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
        const auto* const set =
            id == nullptr || isMixed(useOf(view.csi->nzpSetUse, *id)) ? nullptr : view.csi->nzpSets.element(*id);
        return set == nullptr || set->m.trs_InfoPresent != 0 ? nullptr : set; // of those for tracking csi-trs speaks
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
                           const size_t ims = imSet == nullptr ? resources : countOf(entries(&imSet->csi_IM_Resources));
                           if (ims != resources)
                           {
                               isTold = true;
                               check.error(im)
                                   .found("%zu CSI-IM resources in set %u", ims, imSet->csi_IM_ResourceSetId)
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
                // Of one that is for the whole band csi-pucch-report speaks.
                if (report.reportConfigType.t != T_CSI_ReportConfig_reportConfigType_periodic)
                {
                    check.error(&frequency->csi_ReportingBand).allowed("the report is for subbands");
                }
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

constexpr Rule csiReportsTable[] = {
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
                  "A restriction of ranks leaves at least one; a Type II codebook is of one resource, of 4 ports "
                  "with two beams, and its sampling size is at most half the ports and the number of beams.",
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
};

} // namespace

constinit const RuleGroup csiReportRules = groupOf(csiReportsTable);

} // namespace rules
