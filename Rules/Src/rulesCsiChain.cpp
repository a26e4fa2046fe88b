// CSI: from reports over their settings to the resources.
#include "csi.h"
#include "examplePaths.h"
#include "rules.h"

namespace rules
{
namespace
{

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

// Whether resources of a setting have a period against its resourceType, or none: csi-periodicity-cond tells.
bool contradictsItself(Check& check, const Csi& csi, const CSI_ResourceConfig& config)
{
    bool contradicts = false;
    const auto judge = [&](const auto& resource)
    {
        contradicts =
            contradicts || (resource.m.periodicityAndOffsetPresent != 0) == (config.resourceType == aperiodic);
    };
    forNzpSets(check, &csi, &config,
               [&](const NZP_CSI_RS_ResourceSet& set)
               { forResources(csi, set, [&](const NZP_CSI_RS_Resource& one, const auto&) { judge(one); }); });
    for (const auto id : imSetIds(check, config))
    {
        const CSI_IM_ResourceSet* const set = csi.imSets.element(id);
        for (const auto resource : entries(set == nullptr ? nullptr : &set->csi_IM_Resources))
        {
            if (const CSI_IM_Resource* const one = csi.imResources.element(resource))
            {
                judge(*one);
            }
        }
    }
    return contradicts;
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
                       const bool isToldElsewhere = misusesTracking(check, view) ||
                                                    contradictsItself(check, *view.csi, *config) ||
                                                    contradictsItself(check, *view.csi, *view.channel);
                       if (config->resourceType != view.channel->resourceType && !isToldElsewhere)
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
                   if ((type == aperiodic || (isPeriodic && type == semiPersistent)) &&
                       !contradictsItself(check, *view.csi, *view.channel))
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
               if (csi.resourceConfigs.repeats || csi.nzpSets.repeats || csi.nzpResources.repeats ||
                   csi.imSets.repeats || csi.imResources.repeats)
               {
                   return; // gen-dup-id
               }
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

constexpr Rule csiChainTable[] = {
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
};

} // namespace

constinit const RuleGroup csiChainRules = groupOf(csiChainTable);

} // namespace rules
