// SCells.
#include "NR-RRC-Tables.h"
#include "examplePaths.h"
#include "modelLists.h"
#include "rules.h"
#include "ssbReferences.h"
#include "uplink.h"

namespace rules
{
namespace
{

template <typename Each>
void forSCells(Check& check, const Each& each)
{
    for (Cell& cell : check.model.cells())
    {
        if (cell.sCell != nullptr)
        {
            each(cell, *cell.sCell);
        }
    }
}

// An SCell that is added is whole; one that is there keeps its cell-common configuration.
void scellAddContent(Check& check)
{
    forSCells(check,
              [&](const Cell& cell, const SCellConfig& config)
              {
                  const SCellConfig* const sent = check.model.sent(config);
                  const auto* const common = sent == nullptr ? nullptr : MEMBER(*sent, sCellConfigCommon);
                  if (cell.novelty == Novelty::Old)
                  {
                      if (common != nullptr)
                      {
                          check.error(common).allowed("SCell %u is there: release and add it to change that",
                                                      config.sCellIndex);
                      }
                      return;
                  }
                  if (!check.isNew(cell.novelty))
                  {
                      return;
                  }
                  if (config.m.sCellConfigCommonPresent == 0)
                  {
                      check.error(&config.sCellConfigCommon).allowed("SCell %u is added", config.sCellIndex);
                  }
                  if (config.m.sCellConfigDedicatedPresent == 0)
                  {
                      check.error(&config.sCellConfigDedicated).allowed("SCell %u is added", config.sCellIndex);
                  }
              });
}

// An index is that of one cell, in all cell groups.
void scellIndex(Check& check)
{
    const Cell* const spCell = check.model.spCell();
    forSCells(check,
              [&](const Cell&, const SCellConfig& config)
              {
                  const OSUINT32 index = config.sCellIndex;
                  const OSUINT32* const others = check.model.known.otherGroupCells;
                  if (spCell != nullptr && spCell->index && *spCell->index == index)
                  {
                      check.error(&config.sCellIndex).allowed("that is the servCellIndex of the PSCell");
                  }
                  else if (others != nullptr && index < 32 && (*others >> index & 1) != 0)
                  {
                      check.error(&config.sCellIndex).allowed("a cell of the other cell group has that index");
                  }
              });
}

// Nothing names an SCell that is released.
void scellReleaseUsed(Check& check)
{
    bool releases = false;
    for (const auto gone : check.model.sCells().released)
    {
        releases = releases || check.model.sCells().isReleased(gone);
    }
    if (!releases)
    {
        return;
    }
    const OSCTXT& heap = check.tree.heap();
    const auto look = [&](const RtxType& type, const void* at)
    {
        if (&type == &nr_rrc::type_ServCellIndex &&
            check.model.sCells().isReleased(*static_cast<const ServCellIndex*>(at)))
        {
            check.tell(RRC_RULE_WARNING, type, at).allowed("the message releases that SCell");
        }
    };
    const auto visit = [&](const Value& value)
    {
        if (value.type.kind == rtx::Kind::Integer)
        {
            look(value.type, value.at);
        }
        else if (value.type.element().kind == rtx::Kind::Integer)
        {
            forElements(heap, value.type, value.at, [&](const void* at) { look(value.type.element(), at); });
        }
    };
    forValues(heap, {*asn1Type_CellGroupConfig(), &check.model.config, nullptr, false},
              kindBits(rtx::Kind::Integer, rtx::Kind::Array), visit);
}

// Members of ServingCellConfig that only some kinds of cells have.
void scellKindFields(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        if (cell.dedicated == nullptr)
        {
            continue;
        }
        const auto* const timer = MEMBER(*cell.dedicated, sCellDeactivationTimer);
        const auto* const linking = MEMBER(*cell.dedicated, pathlossReferenceLinking);
        if (timer != nullptr && (cell.isSpCell() || hasPucch(cell)))
        {
            check.warning(timer).allowed("%s", cell.isSpCell() ? "the SpCell is never deactivated"
                                                               : "an SCell with PUCCH has no such timer");
        }
        if (linking != nullptr && cell.isSpCell())
        {
            check.warning(linking).allowed("only an SCell can follow another cell");
        }
        for (const Direction direction : {Direction::Uplink, Direction::Supplementary})
        {
            for (const Bwp& bwp : cell.bwps(direction))
            {
                if (bwp.bfr != nullptr && !cell.isSpCell())
                {
                    check.error(&bwp.uplinkDedicated->beamFailureRecoveryConfig)
                        .allowed("beam failure recovery is for the SpCell");
                }
            }
        }
    }
}

// What an SCell is watched by.
void scellRlm(Check& check)
{
    forSCells(check,
              [&](Cell& cell, const SCellConfig&)
              {
                  for (const Bwp& bwp : cell.downlink)
                  {
                      if (bwp.rlm == nullptr)
                      {
                          continue;
                      }
                      for (const auto& rs : check.tree.list<RadioLinkMonitoringRS>(
                               MEMBER(*bwp.rlm, failureDetectionResourcesToAddModList)))
                      {
                          if (rs.purpose != RadioLinkMonitoringRS_purpose_beamFailure)
                          {
                              check.error(&rs.purpose).allowed("on an SCell there is beamFailure alone");
                          }
                          if (!isChosen(&rs.detectionResource, T_RadioLinkMonitoringRS_detectionResource_csi_RS_Index))
                          {
                              check.error(&rs.detectionResource).allowed("an SCell is watched by CSI-RS");
                              continue;
                          }
                          const auto* const id = &rs.detectionResource.u.csi_RS_Index;
                          const NZP_CSI_RS_Resource* const resource = check.model.csi(cell).nzpResources.element(*id);
                          const bool isOnePort = resource == nullptr || resource->resourceMapping.nrofPorts ==
                                                                            CSI_RS_ResourceMapping_nrofPorts_p1;
                          if (resource != nullptr && (resource->m.periodicityAndOffsetPresent == 0 || !isOnePort))
                          {
                              check.error(id).allowed("that CSI-RS resource is not a periodic one of one port");
                          }
                      }
                  }
              });
}

// Whether a cell is known to have SS/PBCH blocks in a band, or may have.
bool mayTime(const Cell& cell, OSUINT32 band)
{
    const bool hasBlocks =
        cell.isSpCell() || cell.frequencyDl() == nullptr || cell.frequencyDl()->m.absoluteFrequencySSBPresent != 0;
    return hasBlocks && (!cell.band || *cell.band == band);
}

// The timing of an SCell without SS/PBCH blocks is that of another cell in its band.
void lacksTiming(Check& check, const Cell& cell)
{
    const Cell* const spCell = check.model.spCell();
    if (!cell.band || spCell == nullptr || !check.decided(spCell->band))
    {
        return;
    }
    for (const Cell& other : check.model.cells())
    {
        if (&other != &cell && mayTime(other, *cell.band))
        {
            return;
        }
    }
    if (!check.model.complete)
    {
        check.undecided(RRC_RULE_INPUT_PREVIOUS);
        return;
    }
    check.error(&cell.frequencyDl()->absoluteFrequencySSB)
        .allowed("no cell of the group that would give the timing is in band n%u", *cell.band);
}

// It is measured on no block either.
void lacksObject(Check& check, const Cell& cell)
{
    const MeasObjectId* const id = cell.dedicated == nullptr ? nullptr : MEMBER(*cell.dedicated, servingCellMO);
    const RrcRuleContext& known = check.model.known;
    if (id == nullptr)
    {
        return;
    }
    if (known.hasMeas == 0)
    {
        check.undecided(RRC_RULE_INPUT_MEAS);
        return;
    }
    for (const RrcRuleMeasObject& object : std::span(known.measObjects, known.numMeasObjects))
    {
        if (object.id == *id && object.hasSsb != 0)
        {
            check.warning(id).allowed("that object has ssbFrequency %u, and the cell no block there",
                                      object.ssbFrequency);
        }
    }
}

// An SCell without SS/PBCH blocks takes its timing from another cell, and names none of its own.
void scellSsbless(Check& check)
{
    const auto isWithout = [](const Cell& cell)
    {
        return cell.sCell != nullptr && cell.frequencyDl() != nullptr &&
               cell.frequencyDl()->m.absoluteFrequencySSBPresent == 0;
    };
    bool isAny = false;
    forSCells(check,
              [&](const Cell& cell, const SCellConfig& config)
              {
                  if (!isWithout(cell))
                  {
                      return;
                  }
                  isAny = true;
                  if (const auto* const smtc = ADDITION(config, 2, smtc))
                  {
                      check.error(smtc).allowed("absoluteFrequencySSB is absent: there is nothing to measure");
                  }
                  if (const auto* const period = MEMBER(*cell.common, ssb_periodicityServingCell))
                  {
                      check.warning(period).allowed("absoluteFrequencySSB is absent");
                  }
                  if (const auto* const scs = MEMBER(*cell.common, ssbSubcarrierSpacing))
                  {
                      check.warning(scs).allowed("absoluteFrequencySSB is absent");
                  }
                  lacksTiming(check, cell);
                  lacksObject(check, cell);
              });
    if (isAny)
    {
        SsbReferences(check).forAll(
            [&](const Cell& cell, const SSB_Index& index)
            {
                if (isWithout(cell))
                {
                    check.error(&index).allowed("the SCell has no SS/PBCH blocks: absoluteFrequencySSB is absent");
                }
            });
    }
}

constexpr Rule scellTable[] = {
    {.told = {.id = "scell-add-content",
              .severity = RRC_RULE_ERROR,
              .statement = "An SCell that is added has sCellConfigCommon and sCellConfigDedicated; one that is "
                           "modified has no sCellConfigCommon.",
              .advice = "Send both when the SCell is added.",
              .clause = "TS 38.331 SCellConfig, Cond SCellAdd, SCellAddMod",
              .given = "SCell 1 is added.",
              .bad = AT_SCELL "sCellConfigDedicated = absent",
              .good = AT_SCELL_CELL "tag-Id = 0",
              .since = "0.1.0"},
     .run = scellAddContent},
    {.told = {.id = "scell-index",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "sCellIndex is neither the servCellIndex of the PSCell nor an index of the other cell group.",
              .advice = "Take an index that is free in both cell groups.",
              .clause = "TS 38.331 SCellConfig; 5.3.5.5.9",
              .given = "The other cell group has cell 1.",
              .bad = AT_SCELL "sCellIndex = 1",
              .good = AT_SCELL "sCellIndex = 2",
              .since = "0.1.0"},
     .run = scellIndex},
    {.told = {.id = "scell-release-used",
              .severity = RRC_RULE_WARNING,
              .statement = "Nothing that stays configured names an SCell that the message releases.",
              .advice = "Take the reference away in the same message.",
              .clause = "TS 38.331 SCellConfig, 5.3.5.5.8",
              .given = "",
              .bad = "sCellToReleaseList[0] = 1\n" AT_STATE("0") "qcl-Type1.cell = 1",
              .good = "sCellToReleaseList[0] = 1\n" AT_STATE("0") "qcl-Type1.cell = 0",
              .since = "0.1.0"},
     .run = scellReleaseUsed},
    {.told =
         {.id = "scell-kind-fields",
          .severity = RRC_RULE_ERROR,
          .statement = "beamFailureRecoveryConfig is on the SpCell alone, sCellDeactivationTimer on SCells without "
                       "PUCCH, pathlossReferenceLinking on SCells.",
          .advice = "Leave the member out.",
          .clause =
              "TS 38.331 ServingCellConfig, BWP-UplinkDedicated, Cond SpCellOnly, ServingCellWithoutPUCCH, SCellOnly",
          .given = "SCell 1 has an uplink.",
          .bad = AT_SCELL_BFR,
          .good = AT_UL "bwp-Dedicated.beamFailureRecoveryConfig.setup.recoverySearchSpaceId = 2",
          .since = "0.1.0"},
     .run = scellKindFields},
    {.told = {.id = "scell-rlm",
              .severity = RRC_RULE_ERROR,
              .statement = "An SCell is watched for beam failure alone, by periodic CSI-RS of one port.",
              .advice = "Take purpose beamFailure and a CSI-RS resource of one port.",
              .clause = "TS 38.331 RadioLinkMonitoringConfig; TS 38.213 5, 6",
              .given = "SCell 1 has NZP CSI-RS resource 0, periodic and of one port.",
              .bad = AT_SCELL_RLM "radioLinkMonitoringRS-Id = 0\n" AT_SCELL_RLM "purpose = rlf\n" AT_SCELL_RLM
                                  "detectionResource.csi-RS-Index = 0",
              .good = AT_SCELL_RLM "radioLinkMonitoringRS-Id = 0\n" AT_SCELL_RLM "purpose = beamFailure\n" AT_SCELL_RLM
                                   "detectionResource.csi-RS-Index = 0",
              .since = "0.1.0"},
     .run = scellRlm},
    {.told = {.id = "scell-ssbless",
              .severity = RRC_RULE_ERROR,
              .statement = "An SCell without absoluteFrequencySSB has no smtc, no spacing or period of SS/PBCH blocks, "
                           "names none of its own, and is in the band of a cell that has them.",
              .advice = "Send absoluteFrequencySSB, or leave out what speaks of the blocks.",
              .clause = "TS 38.331 FrequencyInfoDL, ServingCellConfigCommon",
              .given = "SCell 1 is added.",
              .bad = SSBLESS_SCELL AT_SCELL "smtc.periodicityAndOffset.sf20 = 0\n" AT_SCELL "smtc.duration = sf2",
              .good = SSBLESS_SCELL,
              .since = "0.1.0"},
     .run = scellSsbless},
};

} // namespace

constinit const RuleGroup scellRules = groupOf(scellTable);

} // namespace rules
