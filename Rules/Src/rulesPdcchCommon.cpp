// PDCCH-ConfigCommon, and the search space for beam failure recovery.
#include "examplePaths.h"
#include "pdcch.h"
#include "rules.h"
#include "uplink.h"

namespace rules
{
namespace
{

// What is common has an id other than 0 and is of that type.
void pdcchCommonList(Check& check)
{
    forPdcch(check,
             [&](const Bwp&, const Pdcch& pdcch)
             {
                 if (pdcch.common == nullptr)
                 {
                     return;
                 }
                 const auto* const coreset = MEMBER(*pdcch.common, commonControlResourceSet);
                 if (coreset != nullptr && coreset->controlResourceSetId == 0)
                 {
                     check.error(&coreset->controlResourceSetId).allowed("0 is CORESET#0: controlResourceSetZero");
                 }
                 for (const SearchSpace& space :
                      check.tree.list<SearchSpace>(MEMBER(*pdcch.common, commonSearchSpaceList)))
                 {
                     const auto* const type = MEMBER(space, searchSpaceType);
                     if (space.searchSpaceId == 0)
                     {
                         check.error(&space.searchSpaceId).allowed("0 is searchSpaceZero");
                     }
                     if (type != nullptr && type->t != T_SearchSpace_searchSpaceType_common)
                     {
                         check.error(type).allowed("the list is of common search spaces");
                     }
                 }
             });
}

// Whether a bandwidth part certainly does not contain CORESET#0 with its spacing and prefix, and why.
const char* lacksCoreset0(Check& check, const Bwp& bwp)
{
    const Bwp* const initial = bwp.cell->bwp(Direction::Downlink, 0);
    if (initial == nullptr || initial->generic == nullptr || bwp.generic == nullptr)
    {
        return nullptr;
    }
    if (initial->generic->subcarrierSpacing != bwp.generic->subcarrierSpacing)
    {
        return "CORESET#0 has another subcarrier spacing";
    }
    if (initial->isExtended() != bwp.isExtended())
    {
        return "CORESET#0 has another cyclic prefix";
    }
    const Known<NrCoreset0> coreset = coreset0Of(check.model, *bwp.cell);
    const Known<NrSpan> rbs = bwp.rbs();
    if (coreset && rbs && rbs->size < coreset->rbs)
    {
        return "CORESET#0 is wider than the bandwidth part";
    }
    const Known<int64_t> start = coreset0Start(check.model, *bwp.cell);
    const Known<NrSpan> common = commonRbs(check.model, bwp);
    return start && common && !contains(*common, *start, coreset->rbs) ? "CORESET#0 is not within the bandwidth part"
                                                                       : nullptr;
}

// Search spaces for common purposes are there.
void pdcchCssRefs(Check& check)
{
    forPdcch(check,
             [&](const Bwp& bwp, const Pdcch& pdcch)
             {
                 if (pdcch.common == nullptr)
                 {
                     return;
                 }
                 const PDCCH_ConfigCommon& common = *pdcch.common;
                 if (pdcch.searchSpace(0) != nullptr)
                 {
                     return; // pdcch-common-list
                 }
                 const SearchSpaceId* const ids[] = {MEMBER(common, searchSpaceSIB1),
                                                     MEMBER(common, searchSpaceOtherSystemInformation),
                                                     MEMBER(common, pagingSearchSpace), MEMBER(common, ra_SearchSpace)};
                 for (const SearchSpaceId* const id : ids)
                 {
                     if (id == nullptr)
                     {
                         continue;
                     }
                     const SearchSpaceEntry* const entry = pdcch.searchSpace(*id);
                     const char* const lacks = *id == 0 && !bwp.isInitial() ? lacksCoreset0(check, bwp) : nullptr;
                     const bool isOfPCellSib1 =
                         id == ids[0] && bwp.isInitial() && bwp.cell->isSpCell() && !check.model.isScg();
                     if (isOfPCellSib1 && *id != 0)
                     {
                         check.error(id).allowed("in the initial bandwidth part of the PCell it is 0");
                     }
                     else if (lacks != nullptr)
                     {
                         check.error(id).allowed("%s", lacks);
                     }
                     else if (*id != 0 && entry == nullptr)
                     {
                         check.error(id).allowed("commonSearchSpaceList has none of that id");
                     }
                     else if (*id != 0 && !entry->isCommon)
                     {
                         check.warning(id).allowed(
                             "that search space is in PDCCH-Config, not in commonSearchSpaceList");
                     }
                 }
             });
}

// What only the initial bandwidth part has, and what only others have.
void pdcchInitialOnly(Check& check)
{
    forPdcch(check,
             [&](const Bwp& bwp, const Pdcch& pdcch)
             {
                 if (pdcch.common == nullptr)
                 {
                     return;
                 }
                 const auto* const coreset = MEMBER(*pdcch.common, controlResourceSetZero);
                 const auto* const space = MEMBER(*pdcch.common, searchSpaceZero);
                 const auto* const occasion = ADDITION(*pdcch.common, 2, firstPDCCH_MonitoringOccasionOfPO);
                 if (coreset != nullptr && !bwp.isInitial())
                 {
                     check.error(coreset).allowed("only the initial bandwidth part has it");
                 }
                 if (space != nullptr && !bwp.isInitial())
                 {
                     check.error(space).allowed("only the initial bandwidth part has it");
                 }
                 if (occasion != nullptr && bwp.isInitial())
                 {
                     check.error(occasion).allowed("the initial bandwidth part has it in SIB1 alone");
                 }
                 else if (occasion != nullptr && pdcch.common->m.pagingSearchSpacePresent == 0)
                 {
                     check.error(occasion).allowed("there is no pagingSearchSpace");
                 }
             });
}

// Of an uplink bandwidth part, in the downlink one of its id.
void recoverySpace(Check& check, const Bwp& uplink, Bwp& downlink)
{
    const BeamFailureRecoveryConfig& bfr = *uplink.bfr;
    const SearchSpaceId* const id = MEMBER(bfr, recoverySearchSpaceId);
    const Pdcch& pdcch = check.model.pdcch(downlink);
    if (id == nullptr)
    {
        if (bfr.m.candidateBeamRSListPresent != 0)
        {
            check.missing(isComplete(uplink), &bfr.recoverySearchSpaceId).allowed("candidateBeamRSList is present");
        }
        return;
    }
    const SearchSpaceEntry* const entry = pdcch.searchSpace(*id);
    if (entry == nullptr)
    {
        const bool areKnown =
            pdcch.searchSpaces.complete && (pdcch.isCommonKnown || pdcch.searchSpaces.isReleased(*id));
        check.missing(areKnown, id).allowed("downlink bandwidth part %u has no such search space", downlink.id);
        return;
    }
    const auto* const coreset = coresetIdOf(*entry->element);
    for (const SearchSpaceEntry& other : pdcch.allSearchSpaces)
    {
        const auto* const otherCoreset = coresetIdOf(*other.element);
        if (other.id != entry->id && coreset != nullptr && otherCoreset != nullptr && *otherCoreset == *coreset)
        {
            check.error(id).allowed("search space %u has the same CORESET %u", other.id, *coreset);
            return;
        }
    }
}

// The search space for beam failure recovery has a CORESET of its own.
void pdcchRecoverySs(Check& check)
{
    forUplinks(check,
               [&](Cell& cell, const Bwp& uplink)
               {
                   Bwp* const bwp = cell.bwp(Direction::Downlink, uplink.id);
                   if (uplink.bfr != nullptr && bwp != nullptr)
                   {
                       recoverySpace(check, uplink, *bwp);
                   }
               });
}

constexpr Rule pdcchCommonTable[] = {
    {.told =
         {.id = "pdcch-common-list",
          .severity = RRC_RULE_ERROR,
          .statement = "What commonSearchSpaceList and commonControlResourceSet hold has an id other than 0, and the "
                       "search spaces are of type common.",
          .advice =
              "Use searchSpaceZero and controlResourceSetZero for 0, and PDCCH-Config for UE-specific search spaces.",
          .clause = "TS 38.331 PDCCH-ConfigCommon",
          .given = "",
          .bad =
              AT_INITIAL_PDCCH "commonSearchSpaceList[0].searchSpaceType = absent\n" AT_INITIAL_PDCCH
                               "commonSearchSpaceList[0].searchSpaceType.ue-Specific.dci-Formats = formats0-0-And-1-0",
          .good = AT_INITIAL_PDCCH "commonSearchSpaceList[0].searchSpaceType.common.dci-Format0-0-AndFormat1-0 = {}",
          .since = "0.1.0"},
     .run = pdcchCommonList},
    {.told = {.id = "pdcch-css-refs",
              .severity = RRC_RULE_ERROR,
              .statement = "searchSpaceSIB1, searchSpaceOtherSystemInformation, pagingSearchSpace and ra-SearchSpace "
                           "are 0 or an id of commonSearchSpaceList; 0 outside the initial bandwidth part only where "
                           "that contains CORESET#0; searchSpaceSIB1 of the PCell is 0.",
              .advice = "Add the search space to commonSearchSpaceList.",
              .clause = "TS 38.331 PDCCH-ConfigCommon; TS 38.213 10.1",
              .given = "",
              .bad = AT_INITIAL_PDCCH "ra-SearchSpace = 2",
              .good = AT_INITIAL_PDCCH "ra-SearchSpace = 0",
              .since = "0.1.0"},
     .run = pdcchCssRefs},
    {.told = {.id = "pdcch-initial-only",
              .severity = RRC_RULE_ERROR,
              .statement = "controlResourceSetZero and searchSpaceZero are in the initial bandwidth part alone; "
                           "firstPDCCH-MonitoringOccasionOfPO only in others, beside pagingSearchSpace.",
              .advice = "Leave the member out: CORESET#0 and search space 0 have their ids in every bandwidth part.",
              .clause = "TS 38.331 PDCCH-ConfigCommon, Cond InitialBWP-Only, OtherBWP",
              .given = "",
              .bad = AT_PDCCH_COMMON "searchSpaceZero = 0",
              .good = AT_PDCCH_COMMON "ra-SearchSpace = 0",
              .since = "0.1.0"},
     .run = pdcchInitialOnly},
    {.told = {.id = "pdcch-recovery-ss",
              .severity = RRC_RULE_ERROR,
              .statement = "recoverySearchSpaceId is there with candidateBeamRSList, a search space of the downlink "
                           "bandwidth part with the same id, and alone in its CORESET.",
              .advice = "Give beam failure recovery a search space with a CORESET of its own.",
              .clause = "TS 38.331 BeamFailureRecoveryConfig; TS 38.213 6",
              .given = "",
              .bad = AT_UL "bwp-Dedicated.beamFailureRecoveryConfig.setup.recoverySearchSpaceId = 4",
              .good = AT_UL "bwp-Dedicated.beamFailureRecoveryConfig.setup.recoverySearchSpaceId = 2",
              .since = "0.1.0"},
     .run = pdcchRecoverySs},
};

} // namespace

constinit const RuleGroup pdcchCommonRules = groupOf(pdcchCommonTable);

} // namespace rules
