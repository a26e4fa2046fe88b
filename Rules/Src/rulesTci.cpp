// TCI states and quasi co-location.
#include "examplePaths.h"
#include "modelLists.h"
#include "rules.h"

namespace rules
{
namespace
{

// Each QCL-Info of each TCI state of each bandwidth part.
template <typename Each>
void forQclInfos(Check& check, const Each& each)
{
    for (Cell& cell : check.model.cells())
    {
        for (Bwp& bwp : cell.downlink)
        {
            for (const IdEntry<TCI_State>& state : check.model.pdsch(bwp).tciStates)
            {
                each(cell, state.element->qcl_Type1);
                if (const QCL_Info* const second = MEMBER(*state.element, qcl_Type2))
                {
                    each(cell, *second);
                }
            }
        }
    }
}

const NZP_CSI_RS_ResourceId* csiRsOf(const QCL_Info& info)
{
    return isChosen(&info.referenceSignal, T_QCL_Info_referenceSignal_csi_rs) ? &info.referenceSignal.u.csi_rs
                                                                              : nullptr;
}

bool isSsb(const QCL_Info& info)
{
    return isChosen(&info.referenceSignal, T_QCL_Info_referenceSignal_ssb);
}

// The TCI states that periodic CSI-RS name, once for each bandwidth part in which the CSI-ResourceConfigs have them.
template <typename Each>
void forPeriodicStates(Check& check, const Each& each)
{
    for (Cell& cell : check.model.cells())
    {
        const Csi& csi = check.model.csi(cell);
        bool seen[maxNrofBWPs + 1][maxNrofNZP_CSI_RS_Resources] = {};
        for (const IdEntry<CSI_ResourceConfig>& config : csi.resourceConfigs)
        {
            Bwp* const bwp = cell.bwp(Direction::Downlink, config.element->bwp_Id);
            const CsiSets sets = csiSets(check.model, csi, *config.element);
            for (const NZP_CSI_RS_ResourceSet* const set : sets.nzp)
            {
                for (const auto& resourceId : entries(&set->nzp_CSI_RS_Resources))
                {
                    const NZP_CSI_RS_Resource* const resource = csi.nzpResources.element(resourceId);
                    const TCI_StateId* const id =
                        resource == nullptr ? nullptr : MEMBER(*resource, qcl_InfoPeriodicCSI_RS);
                    const bool fits =
                        bwp != nullptr && bwp->id <= maxNrofBWPs && resourceId < maxNrofNZP_CSI_RS_Resources;
                    if (id != nullptr && fits && !seen[bwp->id][resourceId])
                    {
                        seen[bwp->id][resourceId] = true;
                        each(*bwp, *set, *id);
                    }
                }
            }
        }
    }
}

// What aperiodic CSI-RS take as their sources.
void tciOfTriggers(Check& check, Cell& cell)
{
    const Csi& csi = check.model.csi(cell);
    const auto* const states =
        csi.config == nullptr ? nullptr : check.tree.setup(MEMBER(*csi.config, aperiodicTriggerStateList));
    for (const auto& state : check.tree.list<CSI_AperiodicTriggerState>(states))
    {
        for (const auto& info : check.tree.list<CSI_AssociatedReportConfigInfo>(&state.associatedReportConfigInfoList))
        {
            const auto* const channel = CHOSEN(check.tree, &info.resourcesForChannel,
                                               CSI_AssociatedReportConfigInfo_resourcesForChannel, nzp_CSI_RS);
            const CSI_ReportConfig* const report = csi.reports.element(info.reportConfigId);
            Cell* const measured = report == nullptr               ? nullptr
                                   : report->m.carrierPresent == 0 ? &cell
                                                                   : check.model.cell(report->carrier);
            const CSI_ResourceConfig* const config =
                measured == nullptr
                    ? nullptr
                    : check.model.csi(*measured).resourceConfigs.element(report->resourcesForChannelMeasurement);
            Bwp* const bwp = config == nullptr ? nullptr : measured->bwp(Direction::Downlink, config->bwp_Id);
            if (channel == nullptr || bwp == nullptr)
            {
                continue;
            }
            for (const TCI_StateId& id : entries(MEMBER(*channel, qcl_info)))
            {
                check.resolve(check.model.pdsch(*bwp).tciStates, id, &id, "a TCI state");
            }
        }
    }
}

// The source of a periodic CSI-RS of the same cell; null where the chain ends.
const NZP_CSI_RS_Resource* sourceOf(Check& check, Cell& cell, const NZP_CSI_RS_Resource& resource)
{
    const TCI_StateId* const id = MEMBER(resource, qcl_InfoPeriodicCSI_RS);
    for (Bwp& bwp : cell.downlink)
    {
        const TCI_State* const state = id == nullptr ? nullptr : check.model.pdsch(bwp).tciStates.element(*id);
        const auto* const source = state == nullptr ? nullptr : csiRsOf(state->qcl_Type1);
        if (source != nullptr && state->qcl_Type1.m.cellPresent == 0)
        {
            return check.model.csi(cell).nzpResources.element(*source);
        }
    }
    return nullptr;
}

// Chains of sources that come back to where they were: each is told once.
void tciCycles(Check& check, Cell& cell)
{
    if (check.model.csi(cell).nzpResources.repeats)
    {
        return; // gen-dup-id tells
    }
    OSUINT8 walkOf[maxNrofNZP_CSI_RS_Resources] = {}; // the walk that has been there
    OSUINT8 walk = 0;
    for (const IdEntry<NZP_CSI_RS_Resource>& entry : check.model.csi(cell).nzpResources)
    {
        if (walk == 255)
        {
            return; // more than there are ids
        }
        ++walk;
        const NZP_CSI_RS_Resource* at = entry.element;
        while (at != nullptr && at->nzp_CSI_RS_ResourceId < std::size(walkOf) && walkOf[at->nzp_CSI_RS_ResourceId] == 0)
        {
            walkOf[at->nzp_CSI_RS_ResourceId] = walk;
            at = sourceOf(check, cell, *at);
        }
        if (at != nullptr && at->nzp_CSI_RS_ResourceId < std::size(walkOf) &&
            walkOf[at->nzp_CSI_RS_ResourceId] == walk && at->m.qcl_InfoPeriodicCSI_RSPresent != 0)
        {
            check.error(&at->qcl_InfoPeriodicCSI_RS)
                .allowed("through its sources NZP CSI-RS resource %u is its own source", at->nzp_CSI_RS_ResourceId);
        }
    }
}

// What is named as a source, and the states that are named, are there.
void tciRef(Check& check)
{
    forQclInfos(check,
                [&](Cell& own, const QCL_Info& info)
                {
                    const ServCellIndex* const named = MEMBER(info, cell);
                    Cell* const cell = named == nullptr ? &own : check.resolveCell(*named, named);
                    const BWP_Id* const bwp = MEMBER(info, bwp_Id);
                    const auto* const resource = csiRsOf(info);
                    if (cell == nullptr || isSsb(info)) // with an ssb a bandwidth part means nothing
                    {
                        return;
                    }
                    const bool isThere = bwp == nullptr || check.resolveBwp(*cell, Direction::Downlink, bwp) != nullptr;
                    if (isThere && resource != nullptr)
                    {
                        check.resolve(check.model.csi(*cell).nzpResources, *resource, resource,
                                      "an NZP CSI-RS resource");
                    }
                });
    forPeriodicStates(check, [&](Bwp& bwp, const NZP_CSI_RS_ResourceSet&, const TCI_StateId& id)
                      { check.resolve(check.model.pdsch(bwp).tciStates, id, &id, "a TCI state"); });
    for (Cell& cell : check.model.cells())
    {
        tciOfTriggers(check, cell);
        tciCycles(check, cell);
    }
}

// bwp-Id goes with csi-rs.
void tciBwpCond(Check& check)
{
    forQclInfos(check,
                [&](const Cell&, const QCL_Info& info)
                {
                    const BWP_Id* const bwp = MEMBER(info, bwp_Id);
                    if (bwp == nullptr && csiRsOf(info) != nullptr)
                    {
                        check.error(&info.bwp_Id).allowed("a csi-rs is of a bandwidth part");
                    }
                    else if (bwp != nullptr && isSsb(info))
                    {
                        check.warning(bwp).allowed("an ssb is of no bandwidth part");
                    }
                });
}

// Types that tell a receiver something, together and where the source is.
void tciTypePair(Check& check)
{
    forQclInfos(check,
                [&](const Cell& cell, const QCL_Info& info)
                {
                    const ServCellIndex* const named = MEMBER(info, cell);
                    const bool isNarrow =
                        info.qcl_Type == QCL_Info_qcl_Type_typeA || info.qcl_Type == QCL_Info_qcl_Type_typeB;
                    if (named != nullptr && isNarrow && check.decided(cell.index) && *cell.index != *named)
                    {
                        check.error(&info.qcl_Type).allowed("of another cell a source gives typeC and typeD alone");
                    }
                    if (info.qcl_Type == QCL_Info_qcl_Type_typeD && check.decided(cell.range) &&
                        *cell.range == RRC_RULE_RANGE_FR1)
                    {
                        check.warning(&info.qcl_Type).allowed("in FR1 there is no spatial filter to tell");
                    }
                });
    for (Cell& cell : check.model.cells())
    {
        for (Bwp& bwp : cell.downlink)
        {
            for (const IdEntry<TCI_State>& entry : check.model.pdsch(bwp).tciStates)
            {
                const QCL_Info* const second = MEMBER(*entry.element, qcl_Type2);
                const auto type = entry.element->qcl_Type1.qcl_Type;
                if (second != nullptr && second->qcl_Type == type)
                {
                    check.error(&second->qcl_Type).allowed("qcl-Type1 has the same");
                }
                else if (second != nullptr && second->qcl_Type != QCL_Info_qcl_Type_typeD &&
                         type != QCL_Info_qcl_Type_typeD)
                {
                    check.warning(&second->qcl_Type).allowed("beside another type there is only typeD");
                }
                else if (second == nullptr && type == QCL_Info_qcl_Type_typeD)
                {
                    check.warning(&entry.element->qcl_Type1.qcl_Type).allowed("typeD goes with typeA or typeC");
                }
            }
        }
    }
}

// Of the one or two sources the one that is not for the spatial filter.
const QCL_Info& mainOf(const TCI_State& state)
{
    const QCL_Info* const second = MEMBER(state, qcl_Type2);
    return second != nullptr && state.qcl_Type1.qcl_Type == QCL_Info_qcl_Type_typeD ? *second : state.qcl_Type1;
}

bool isTracking(const NZP_CSI_RS_ResourceSet& set)
{
    return set.m.trs_InfoPresent != 0;
}

// Sources are of the kind that the target takes.
void tciUsage(Check& check)
{
    forPeriodicStates(check,
                      [&](Bwp& bwp, const NZP_CSI_RS_ResourceSet& set, const TCI_StateId& id)
                      {
                          const TCI_State* const state = check.model.pdsch(bwp).tciStates.element(id);
                          if (state == nullptr)
                          {
                              return;
                          }
                          const QCL_Info& main = mainOf(*state);
                          const bool isOfSsb = isSsb(main) && main.qcl_Type == QCL_Info_qcl_Type_typeC;
                          const bool isOfTracking =
                              csiRsOf(main) != nullptr &&
                              (main.qcl_Type == QCL_Info_qcl_Type_typeA || main.qcl_Type == QCL_Info_qcl_Type_typeB);
                          if (isTracking(set) && !isOfSsb)
                          {
                              check.warning(&id).allowed("CSI-RS for tracking take typeC from an ssb");
                          }
                          else if (!isTracking(set) && !isOfTracking && !(set.m.repetitionPresent != 0 && isOfSsb))
                          {
                              check.warning(&id).allowed("CSI-RS for CSI take typeA or typeB from CSI-RS for tracking");
                          }
                      });
    for (Cell& cell : check.model.cells())
    {
        for (Bwp& bwp : cell.downlink)
        {
            for (const Coreset& coreset : check.model.pdcch(bwp).allCoresets)
            {
                for (const TCI_StateId& id : entries(MEMBER(*coreset.element, tci_StatesPDCCH_ToAddList)))
                {
                    const TCI_State* const state = check.model.pdsch(bwp).tciStates.element(id);
                    if (state == nullptr)
                    {
                        continue;
                    }
                    const QCL_Info& main = mainOf(*state);
                    if (isSsb(main))
                    {
                        check.notice(&id).allowed("PDCCH takes typeA from CSI-RS once there are some for tracking");
                    }
                    else if (main.qcl_Type != QCL_Info_qcl_Type_typeA)
                    {
                        check.warning(&id).allowed("PDCCH takes typeA");
                    }
                }
            }
        }
    }
}

constexpr Rule tciTable[] = {
    {.told =
         {.id = "tci-ref",
          .severity = RRC_RULE_ERROR,
          .statement =
              "The CSI-RS, cell and bandwidth part that a QCL-Info names are configured, TCI states that CSI-RS name "
              "are in PDSCH-Config of the bandwidth part where they are measured, and no CSI-RS is its own source.",
          .advice = "Add what is named, or name what there is.",
          .clause = "TS 38.331 TCI-State, NZP-CSI-RS-Resource",
          .given = "",
          .bad = AT_STATE("2") "qcl-Type1.referenceSignal.csi-rs = 6",
          .good = AT_STATE("2") "qcl-Type1.referenceSignal.csi-rs = 2",
          .since = "0.1.0"},
     .run = tciRef},
    {.told = {.id = "tci-bwp-cond",
              .severity = RRC_RULE_ERROR,
              .statement = "bwp-Id of a QCL-Info is present with csi-rs, and absent with ssb.",
              .advice = "Name the bandwidth part of the CSI-RS.",
              .clause = "TS 38.331 TCI-State, Cond CSI-RS-Indicated",
              .given = "",
              .bad = AT_STATE("2") "qcl-Type1.bwp-Id = absent",
              .good = AT_STATE("2") "qcl-Type1.bwp-Id = 1",
              .since = "0.1.0"},
     .run = tciBwpCond},
    {.told = {.id = "tci-type-pair",
              .severity = RRC_RULE_ERROR,
              .statement = "The two types of a TCI state differ, one of them is typeD and goes with typeA or typeC; a "
                           "source in another cell gives typeC or typeD; typeD is for FR2.",
              .advice = "Take typeA or typeC, with typeD in FR2.",
              .clause = "TS 38.214 5.1.5; TS 38.331 TCI-State",
              .given = "",
              .bad = AT_STATE("3") "qcl-Type2.bwp-Id = 1\n" AT_STATE(
                  "3") "qcl-Type2.referenceSignal.csi-rs = 2\n" AT_STATE("3") "qcl-Type2.qcl-Type = typeA",
              .good = AT_STATE("3") "qcl-Type1.qcl-Type = typeA",
              .since = "0.1.0"},
     .run = tciTypePair},
    {.told = {.id = "tci-usage",
              .severity = RRC_RULE_WARNING,
              .statement = "CSI-RS for tracking take typeC from an ssb, CSI-RS for CSI typeA or typeB from those for "
                           "tracking, PDCCH typeA from CSI-RS.",
              .advice = "Let the chain be: ssb, CSI-RS for tracking, the rest.",
              .clause = "TS 38.214 5.1.5",
              .given = "",
              .bad = AT_CSI "nzp-CSI-RS-ResourceToAddModList[0].qcl-InfoPeriodicCSI-RS = 0",
              .good = AT_CSI "nzp-CSI-RS-ResourceToAddModList[0].qcl-InfoPeriodicCSI-RS = 3",
              .since = "0.1.0"},
     .run = tciUsage},
};

} // namespace

constinit const RuleGroup tciRules = groupOf(tciTable);

} // namespace rules
