// CSI: when reports on PUSCH are sent.
#include "csi.h"
#include "examplePaths.h"
#include "rules.h"

namespace rules
{
namespace
{

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
        check.missing(cell.complete, &list)
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

bool hasPeriods(const Csi& csi, const NZP_CSI_RS_ResourceSet& set)
{
    bool has = false;
    forResources(csi, set,
                 [&](const NZP_CSI_RS_Resource& one, const auto&)
                 { has = has || one.m.periodicityAndOffsetPresent != 0; });
    return has;
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
    if (!imSetIds(check, *view.channel).empty() || misusesTracking(check, view))
    {
        return; // csi-config-kind and csi-trs
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
    const OSUINT32 setId = ids[nzp->resourceSet - 1U];
    const NZP_CSI_RS_ResourceSet* const set =
        isMixed(useOf(view.csi->nzpSetUse, setId)) ? nullptr : view.csi->nzpSets.element(setId);
    const bool arePeriodic = set != nullptr && hasPeriods(*view.csi, *set);
    if (isNeeded == arePeriodic && set != nullptr)
    {
        return; // csi-periodicity-cond
    }
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

constexpr Rule csiTriggersTable[] = {
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
    {.told = {.id = "csi-sp-pusch",
              .severity = RRC_RULE_ERROR,
              .statement = "The states of semiPersistentOnPUSCH-TriggerStateList name reports that are "
                           "semiPersistentOnPUSCH, each such report is named, and p0alpha is a set of the PUSCH.",
              .advice = "Name the report in the list.",
              .clause = "TS 38.331 CSI-ReportConfig, CSI-SemiPersistentOnPUSCH-TriggerStateList",
              .given = "",
              .bad = AT_CSI "semiPersistentOnPUSCH-TriggerStateList.setup[0].associatedReportConfigInfo = 1",
              .good = ADDED_SP_REPORT AT_CSI
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
};

} // namespace

constinit const RuleGroup csiTriggerRules = groupOf(csiTriggersTable);

} // namespace rules
