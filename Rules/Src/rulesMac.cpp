// MAC of the cell group, and the logical channels' parameters.
#include "examplePaths.h"
#include "modelLists.h"
#include "rules.h"

namespace rules
{
namespace
{

// Each bandwidth part of an uplink of each cell.
template <typename Each>
void forUplinkBwps(Check& check, const Each& each)
{
    for (Cell& cell : check.model.cells())
    {
        for (const Direction direction : {Direction::Uplink, Direction::Supplementary})
        {
            for (Bwp& bwp : cell.bwps(direction))
            {
                each(cell, bwp);
            }
        }
    }
}

// A scheduling request that a channel or a PUCCH resource names is configured.
void macSrRef(Check& check)
{
    const Ids<SchedulingRequestToAddMod>& requests = check.model.schedulingRequests();
    for (const Channel& channel : check.model.channels())
    {
        const SchedulingRequestId* const id =
            channel.uplink == nullptr ? nullptr : MEMBER(*channel.uplink, schedulingRequestID);
        if (id != nullptr)
        {
            (void)check.resolve(requests, *id, id, "a scheduling request");
        }
    }
    forUplinkBwps(check,
                  [&](const Cell&, Bwp& bwp)
                  {
                      for (const IdEntry<SchedulingRequestResourceConfig>& entry : check.model.pucch(bwp).srResources)
                      {
                          const SchedulingRequestId& id = entry.element->schedulingRequestID;
                          (void)check.resolve(requests, id, &id, "a scheduling request");
                      }
                  });
}

// A scheduling request has a PUCCH resource somewhere.
void macSrNoResource(Check& check)
{
    for (const IdEntry<SchedulingRequestToAddMod>& request : check.model.schedulingRequests())
    {
        bool hasResource = false;
        forUplinkBwps(check,
                      [&](const Cell&, Bwp& bwp)
                      {
                          for (const IdEntry<SchedulingRequestResourceConfig>& entry :
                               check.model.pucch(bwp).srResources)
                          {
                              hasResource = hasResource || entry.element->schedulingRequestID == request.id;
                          }
                      });
        if (hasResource)
        {
            continue;
        }
        if (!check.model.complete)
        {
            check.undecided(RRC_RULE_INPUT_PREVIOUS);
            continue;
        }
        check.warning(&request.element->schedulingRequestId)
            .allowed("no PUCCH resource is for it: each request starts random access");
    }
}

// In a bandwidth part a scheduling request has one resource.
void macSrOnePerBwp(Check& check)
{
    forUplinkBwps(check,
                  [&](const Cell&, Bwp& bwp)
                  {
                      OSUINT32 seen = 0;
                      for (const IdEntry<SchedulingRequestResourceConfig>& entry : check.model.pucch(bwp).srResources)
                      {
                          const SchedulingRequestId& id = entry.element->schedulingRequestID;
                          const OSUINT32 bit = id < 32 ? 1U << id : 0;
                          if ((seen & bit) != 0)
                          {
                              check.error(&id).allowed("another resource of the bandwidth part is for it");
                          }
                          seen |= bit;
                      }
                  });
}

// The delay of scheduling requests is applied where its timer is configured.
void macSrDelay(Check& check)
{
    const MAC_CellGroupConfig* const mac = check.model.mac();
    const BSR_Config* const bsr = mac == nullptr ? nullptr : MEMBER(*mac, bsr_Config);
    const bool hasTimer = bsr != nullptr && bsr->m.logicalChannelSR_DelayTimerPresent != 0;
    for (const Channel& channel : check.model.channels())
    {
        if (channel.uplink != nullptr && channel.uplink->logicalChannelSR_DelayTimerApplied != 0 && !hasTimer)
        {
            // bsr-Config comes whole: where it is present, its timer is known.
            check.missing(check.model.complete || bsr != nullptr, &channel.uplink->logicalChannelSR_DelayTimerApplied)
                .allowed("bsr-Config has no logicalChannelSR-DelayTimer");
        }
    }
}

// An SRB's bit rate is not limited.
void macSrbPbr(Check& check)
{
    using Rate = LogicalChannelConfig_ul_SpecificParameters;
    for (const Channel& channel : check.model.channels())
    {
        if (channel.uplink == nullptr || !check.decided(channel.isSrb) || !*channel.isSrb)
        {
            continue;
        }
        const Rate& parameters = *channel.uplink;
        if (parameters.prioritisedBitRate != LogicalChannelConfig_ul_SpecificParameters_prioritisedBitRate_infinity)
        {
            check.error(&parameters.prioritisedBitRate).allowed("that of SRB%u is infinity", channel.bearerId);
        }
    }
}

// A channel with an uplink belongs to a logical channel group.
void macNoLcg(Check& check)
{
    for (const Channel& channel : check.model.channels())
    {
        if (channel.uplink != nullptr && channel.uplink->m.logicalChannelGroupPresent == 0)
        {
            check.warning(&channel.uplink->logicalChannelGroup)
                .allowed("without a group no buffer status report tells of the channel's data");
        }
    }
}

// allowedServingCells names cells of the group that have an uplink.
void macAllowedCells(Check& check)
{
    for (const Channel& channel : check.model.channels())
    {
        const auto* const list = channel.uplink == nullptr ? nullptr : MEMBER(*channel.uplink, allowedServingCells);
        for (const ServCellIndex& index : entries(list))
        {
            const Cell* const cell = check.model.cell(index);
            if (cell == nullptr)
            {
                const Cell* const spCell = check.model.spCell();
                const bool mayBeSpCell = spCell == nullptr || !spCell->index;
                check.missing(check.model.complete && !mayBeSpCell, &index).allowed("the cell group has no such cell");
            }
            else if (cell->uplink.empty() && cell->sul.empty())
            {
                check.missing(cell->complete, &index).allowed("the cell has no uplink");
            }
        }
    }
}

// Symbols of the shortest PUSCH of TS 38.214 table 6.1.2.1.1-2.
constexpr OSUINT32 shortestDefault = 6;

// In microseconds, times 14: so that symbols are whole numbers.
OSUINT32 durationOf(OSUINT32 mu, OSUINT32 symbols)
{
    return symbols * (1000U >> mu);
}

// Symbols of the shortest PUSCH that a bandwidth part can have.
OSUINT32 shortestPusch(const PuschRows& rows)
{
    OSUINT32 shortest = rows.isDefault ? shortestDefault : NR_SYMBOLS;
    for (const PUSCH_TimeDomainResourceAllocation& row : rows.rows)
    {
        NrSpan span{};
        if (nrSlivDecode(row.startSymbolAndLength, &span) != 0)
        {
            shortest = std::min(shortest, span.size);
        }
    }
    return shortest;
}

// allowedSCS-List has spacings of the cells' frequency range.
void allowedScs(Check& check, const Channel& channel)
{
    bool allFr1 = check.model.complete;
    bool allFr2 = check.model.complete;
    for (const Cell& cell : check.model.cells())
    {
        allFr1 = allFr1 && cell.range && *cell.range == RRC_RULE_RANGE_FR1;
        allFr2 = allFr2 && cell.range && *cell.range == RRC_RULE_RANGE_FR2;
    }
    for (const SubcarrierSpacing& scs : entries(MEMBER(*channel.uplink, allowedSCS_List)))
    {
        const OSUINT32 mu = muOf(scs);
        if (mu == 4)
        {
            check.error(&scs).allowed("only SS/PBCH blocks have that spacing");
        }
        else if (mu == 3 && allFr1)
        {
            check.error(&scs).allowed("cells of FR1 have 15, 30 and 60 kHz");
        }
        else if (mu < 2 && allFr2)
        {
            check.error(&scs).allowed("cells of FR2 have 60 and 120 kHz");
        }
    }
}

// Some bandwidth part can serve the channel, by its spacing and by the length of its PUSCH.
void servedSomewhere(Check& check, const Channel& channel)
{
    static constexpr OSUINT32 durations[] = {20 * 14, 40 * 14, 625 * 14 / 10, 125 * 14, 250 * 14, 500 * 14};
    const auto* const list = MEMBER(*channel.uplink, allowedSCS_List);
    const auto* const longest = MEMBER(*channel.uplink, maxPUSCH_Duration);
    const auto allowed = entries(list);
    if (list == nullptr && longest == nullptr)
    {
        return;
    }
    OSUINT32 unknown = check.model.complete ? 0 : OSUINT32{RRC_RULE_INPUT_PREVIOUS};
    bool hasScs = list == nullptr;
    bool hasDuration = longest == nullptr || meaning(durations, *longest) == 0;
    forUplinkBwps(check,
                  [&](const Cell&, const Bwp& bwp)
                  {
                      const Known<OSUINT32> mu = bwp.mu();
                      unknown |= mu ? 0 : mu.inputs();
                      const bool isAllowed =
                          mu && (list == nullptr || std::find(allowed.begin(), allowed.end(), *mu) != allowed.end());
                      hasScs = hasScs || isAllowed;
                      if (hasDuration || !isAllowed)
                      {
                          return;
                      }
                      const Known<PuschRows> rows = puschRows(check.model, bwp);
                      unknown |= rows ? 0 : rows.inputs();
                      hasDuration = rows && durationOf(*mu, shortestPusch(*rows)) <= meaning(durations, *longest);
                  });
    if (hasScs && hasDuration)
    {
        return;
    }
    if (unknown != 0)
    {
        check.undecided(unknown);
    }
    else if (!hasScs)
    {
        check.warning(list).allowed("no uplink bandwidth part has one of these spacings: the channel is never served");
    }
    else
    {
        check.warning(longest).allowed("each PUSCH of these bandwidth parts is longer: the channel is never served");
    }
}

void macAllowedScs(Check& check)
{
    for (const Channel& channel : check.model.channels())
    {
        if (channel.uplink != nullptr)
        {
            allowedScs(check, channel);
            servedSomewhere(check, channel);
        }
    }
}

// A cell's timing advance group is configured; that of the SpCell is 0, which a PCell has without being told.
void macTagRef(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        if (cell.dedicated == nullptr)
        {
            continue;
        }
        const TAG_Id& id = cell.dedicated->tag_Id;
        if (cell.isSpCell() && id != 0)
        {
            check.error(&id).allowed("the SpCell is in timing advance group 0");
            continue;
        }
        const bool isOfPCell = cell.isSpCell() && !check.model.isScg();
        if (isOfPCell && !check.model.tags().isReleased(id) && check.model.tags().find(id) == nullptr)
        {
            check.missing(check.model.complete, &id, RRC_RULE_WARNING)
                .allowed("the group is not configured: the UE has timeAlignmentTimerCommon of SIB1 for it");
            continue;
        }
        (void)check.resolve(check.model.tags(), id, &id, "a timing advance group");
    }
}

const DRX_Config* drxOf(Check& check)
{
    const MAC_CellGroupConfig* const mac = check.model.mac();
    return mac == nullptr ? nullptr : check.tree.setup(MEMBER(*mac, drx_Config));
}

// The long cycle is a multiple of the short one, and the UE sleeps in both.
void macDrx(Check& check)
{
    static constexpr OSUINT32 longCycles[] = {10,  20,  32,  40,  60,   64,   70,   80,   128,  160,
                                              256, 320, 512, 640, 1024, 1280, 2048, 2560, 5120, 10240};
    static constexpr OSUINT32 shortCycles[] = {2,  3,  4,  5,  6,  7,   8,   10,  14,  16,  20, 30,
                                               32, 35, 40, 64, 80, 128, 160, 256, 320, 512, 640};
    static constexpr OSUINT32 onDurations[] = {1,  2,  3,   4,   5,   6,   8,   10,  20,  30,   40,   50,
                                               60, 80, 100, 200, 300, 400, 500, 600, 800, 1000, 1200, 1600};
    constexpr OSUINT32 perMs = 32;
    const DRX_Config* const drx = drxOf(check);
    const OSUINT32 longCycle = drx == nullptr ? 0 : meaning(longCycles, drx->drx_LongCycleStartOffset.t - 1);
    if (longCycle == 0)
    {
        return;
    }
    OSUINT32 shortest = longCycle;
    if (const DRX_Config_shortDRX* const shortDrx = MEMBER(*drx, shortDRX))
    {
        const OSUINT32 shortCycle = meaning(shortCycles, shortDrx->drx_ShortCycle);
        if (shortCycle == 0)
        {
            return;
        }
        if (longCycle % shortCycle != 0)
        {
            check.error(&shortDrx->drx_ShortCycle)
                .allowed("the long cycle of %u ms is no multiple of it: %u ms are left", longCycle,
                         longCycle % shortCycle);
            return;
        }
        if (shortCycle == longCycle)
        {
            check.warning(&shortDrx->drx_ShortCycle).allowed("the long cycle has %u ms, too", longCycle);
            return;
        }
        shortest = shortCycle;
    }
    const auto& timer = drx->drx_onDurationTimer;
    const OSUINT32 onDuration = timer.t == T_DRX_Config_drx_onDurationTimer_subMilliSeconds ? timer.u.subMilliSeconds
                                : timer.t == T_DRX_Config_drx_onDurationTimer_milliSeconds
                                    ? meaning(onDurations, timer.u.milliSeconds) * perMs
                                    : 0;
    if (onDuration > shortest * perMs)
    {
        check.warning(&drx->drx_onDurationTimer)
            .found("%u ms", onDuration / perMs)
            .allowed("the shortest cycle has %u ms: the UE never sleeps", shortest);
    }
}

// csi-Mask masks what DRX leaves.
void macCsiMask(Check& check)
{
    const MAC_CellGroupConfig* const mac = check.model.mac();
    const OSBOOL* const mask = mac == nullptr ? nullptr : ADDITION(*mac, 2, csi_Mask);
    if (mask == nullptr || *mask == 0 || drxOf(check) != nullptr)
    {
        return;
    }
    check.missing(check.model.complete || mac->m.drx_ConfigPresent != 0, mask, RRC_RULE_WARNING)
        .allowed("there is no DRX");
}

// Power headroom is told of several cells where there are several.
void macPhr(Check& check)
{
    const MAC_CellGroupConfig* const mac = check.model.mac();
    const PHR_Config* const phr = mac == nullptr ? nullptr : check.tree.setup(MEMBER(*mac, phr_Config));
    if (phr == nullptr)
    {
        return;
    }
    OSUINT32 uplinks = 0;
    for (const Cell& cell : check.model.cells())
    {
        // An SCell may have the common part of an uplink that the UE does not get.
        const bool isUsed =
            cell.isSpCell() || (cell.dedicated != nullptr && MEMBER(*cell.dedicated, uplinkConfig) != nullptr);
        uplinks += isUsed && !cell.uplink.empty() ? 1 : 0;
    }
    const OSUINT8 connectivity = check.model.known.connectivity;
    const bool isToldDual = connectivity > RRC_RULE_CONNECTIVITY_SINGLE;
    const bool isDual = isToldDual || check.model.isScg();
    if (phr->multiplePHR == 0 && uplinks > 1)
    {
        check.error(&phr->multiplePHR).allowed("the cell group has %u uplinks", uplinks);
    }
    else if (phr->multiplePHR == 0 && isDual)
    {
        check.missing(true, &phr->multiplePHR, isToldDual ? RRC_RULE_ERROR : RRC_RULE_WARNING)
            .allowed("the UE has another cell group");
    }
    else if (phr->multiplePHR != 0 && uplinks <= 1 && !isDual)
    {
        if (!check.model.complete)
        {
            check.undecided(RRC_RULE_INPUT_PREVIOUS);
        }
        else if (connectivity == RRC_RULE_CONNECTIVITY_SINGLE)
        {
            check.error(&phr->multiplePHR).allowed("there is one uplink");
        }
        else
        {
            check.warning(&phr->multiplePHR).allowed("there is one uplink, and no sign of another cell group");
        }
    }
    const bool noEutra = connectivity == RRC_RULE_CONNECTIVITY_SINGLE || connectivity == RRC_RULE_CONNECTIVITY_NRDC;
    if (phr->phr_Type2OtherCell != 0)
    {
        if (noEutra)
        {
            check.error(&phr->phr_Type2OtherCell).allowed("the UE has no E-UTRA cell group");
        }
        else if (connectivity == RRC_RULE_CONNECTIVITY_UNKNOWN)
        {
            check.undecided(RRC_RULE_INPUT_CONNECTIVITY);
        }
    }
}

// The UE watches its inactivity in the master cell group.
void macMcgOnly(Check& check)
{
    const MAC_CellGroupConfig* const mac = check.model.mac();
    const auto* const timer = mac == nullptr ? nullptr : ADDITION(*mac, 2, dataInactivityTimer);
    if (timer != nullptr && check.model.isScg())
    {
        check.error(timer).allowed("a secondary cell group has none");
    }
}

// A resource for the same scheduling request, or for a second one.
#define SECOND_SR_RESOURCE                                                                                             \
    AT_MAC "schedulingRequestConfig.schedulingRequestToAddModList[1].schedulingRequestId = 1\n" AT_MAC                 \
           "schedulingRequestConfig.schedulingRequestToAddModList[1].sr-TransMax = n64\n" AT_PUCCH                     \
           "schedulingRequestResourceToAddModList[1].schedulingRequestResourceId = 2\n" AT_PUCCH                       \
           "schedulingRequestResourceToAddModList[1].periodicityAndOffset.sl40 = 8\n" AT_PUCCH                         \
           "schedulingRequestResourceToAddModList[1].resource = 1\n"

constexpr Rule macTable[] = {
    {.told = {.id = "mac-sr-ref",
              .severity = RRC_RULE_ERROR,
              .statement = "A scheduling request that a logical channel or a PUCCH resource names is "
                           "configured.",
              .advice = "Add it to schedulingRequestToAddModList, or name one that there is.",
              .clause = "TS 38.331 LogicalChannelConfig, SchedulingRequestToAddMod",
              .given = "",
              .bad = AT_DRB_UL "schedulingRequestID = 1",
              .good = AT_DRB_UL "schedulingRequestID = 0",
              .since = "0.1.0"},
     .run = macSrRef},
    {.told = {.id = "mac-sr-no-resource",
              .severity = RRC_RULE_WARNING,
              .statement = "A scheduling request has a PUCCH resource in some uplink bandwidth part.",
              .advice = "Add a SchedulingRequestResourceConfig for it.",
              .clause = "TS 38.321 5.4.4",
              .given = "",
              .bad = AT_MAC "schedulingRequestConfig.schedulingRequestToAddModList[1].schedulingRequestId = 1\n" AT_MAC
                            "schedulingRequestConfig.schedulingRequestToAddModList[1].sr-TransMax = n64",
              .good = AT_MAC "schedulingRequestConfig.schedulingRequestToAddModList[0].sr-TransMax = n32",
              .since = "0.1.0"},
     .run = macSrNoResource},
    {.told = {.id = "mac-sr-one-per-bwp",
              .severity = RRC_RULE_ERROR,
              .statement = "In an uplink bandwidth part a scheduling request has at most one PUCCH resource.",
              .advice = "Drop one resource, or give it to another scheduling request.",
              .clause = "TS 38.321 5.4.4",
              .given = "",
              .bad = SECOND_SR_RESOURCE AT_PUCCH "schedulingRequestResourceToAddModList[1].schedulingRequestID = 0",
              .good = SECOND_SR_RESOURCE AT_PUCCH "schedulingRequestResourceToAddModList[1].schedulingRequestID = 1",
              .since = "0.1.0"},
     .run = macSrOnePerBwp},
    {.told = {.id = "mac-sr-delay",
              .severity = RRC_RULE_ERROR,
              .statement = "logicalChannelSR-DelayTimerApplied is true only where bsr-Config has "
                           "logicalChannelSR-DelayTimer.",
              .advice = "Configure the timer, or do not apply it.",
              .clause = "TS 38.331 LogicalChannelConfig",
              .given = "",
              .bad = AT_DRB_UL "logicalChannelSR-DelayTimerApplied = true",
              .good = AT_DRB_UL "logicalChannelSR-DelayTimerApplied = true\n" AT_MAC
                                "bsr-Config.logicalChannelSR-DelayTimer = sf20",
              .since = "0.1.0"},
     .run = macSrDelay},
    {.told = {.id = "mac-srb-pbr",
              .severity = RRC_RULE_ERROR,
              .statement = "The prioritisedBitRate of a signalling radio bearer is infinity.",
              .advice = "Use infinity.",
              .clause = "TS 38.331 LogicalChannelConfig",
              .given = "",
              .bad = AT_SRB_UL "prioritisedBitRate = kBps65536",
              .good = AT_SRB_UL "prioritisedBitRate = infinity",
              .since = "0.1.0"},
     .run = macSrbPbr},
    {.told = {.id = "mac-no-lcg",
              .severity = RRC_RULE_WARNING,
              .statement = "A logical channel with an uplink has a logicalChannelGroup.",
              .advice = "Give it a group.",
              .clause = "TS 38.321 5.4.5",
              .given = "",
              .bad = AT_DRB_UL "logicalChannelGroup = absent",
              .good = AT_DRB_UL "logicalChannelGroup = 7",
              .since = "0.1.0"},
     .run = macNoLcg},
    {.told = {.id = "mac-allowed-cells",
              .severity = RRC_RULE_ERROR,
              .statement = "allowedServingCells names cells of the cell group that have an uplink.",
              .advice = "Name cells that are configured with an uplink, or leave the list out.",
              .clause = "TS 38.331 LogicalChannelConfig; TS 38.321 5.4.3.1.2",
              .given = "",
              .bad = AT_DRB_UL "allowedServingCells[0] = 1",
              .good = AT_DRB_UL "allowedServingCells[0] = 0",
              .since = "0.1.0"},
     .run = macAllowedCells},
    {.told = {.id = "mac-allowed-scs",
              .severity = RRC_RULE_ERROR,
              .statement = "allowedSCS-List has spacings of the cells' frequency range, and some uplink "
                           "bandwidth part serves the channel within maxPUSCH-Duration.",
              .advice = "Name the spacing of an uplink bandwidth part, and a duration that one of its "
                        "PUSCH has.",
              .clause = "TS 38.331 LogicalChannelConfig; TS 38.321 5.4.3.1.2",
              .given = "",
              .bad = AT_DRB_UL "allowedSCS-List[0] = kHz30\n" AT_DRB_UL "allowedSCS-List[1] = kHz120",
              .good = AT_DRB_UL "allowedSCS-List[0] = kHz30\n" AT_DRB_UL "allowedSCS-List[1] = kHz60",
              .since = "0.1.0"},
     .run = macAllowedScs},
    {.told = {.id = "mac-tag-ref",
              .severity = RRC_RULE_ERROR,
              .statement = "The timing advance group of a cell is configured, and that of the SpCell is 0.",
              .advice = "Add the group to tag-ToAddModList, or use one that there is.",
              .clause = "TS 38.331 TAG-Config; TS 38.321 6.1.3.4",
              .given = "",
              .bad = AT_CELL "tag-Id = 1",
              .good = AT_CELL "tag-Id = 0",
              .since = "0.1.0"},
     .run = macTagRef},
    {.told = {.id = "mac-drx",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "The long DRX cycle is a multiple of the short one and longer, and drx-onDurationTimer is not "
                  "longer than the shortest cycle.",
              .advice = "Choose a short cycle that divides the long one.",
              .clause = "TS 38.331 DRX-Config; TS 38.321 5.7",
              .given = "",
              .bad = AT_MAC "drx-Config.setup.drx-LongCycleStartOffset = absent\n" AT_MAC
                            "drx-Config.setup.drx-LongCycleStartOffset.ms70 = 0\n" AT_MAC
                            "drx-Config.setup.shortDRX.drx-ShortCycle = ms20",
              .good = AT_MAC "drx-Config.setup.drx-LongCycleStartOffset = absent\n" AT_MAC
                             "drx-Config.setup.drx-LongCycleStartOffset.ms70 = 0\n" AT_MAC
                             "drx-Config.setup.shortDRX.drx-ShortCycle = ms35",
              .since = "0.1.0"},
     .run = macDrx},
    {.told = {.id = "mac-csi-mask",
              .severity = RRC_RULE_WARNING,
              .statement = "csi-Mask is true only where DRX is configured.",
              .advice = "Configure DRX, or leave csi-Mask out.",
              .clause = "TS 38.331 MAC-CellGroupConfig; TS 38.321 5.7",
              .given = "",
              .bad = AT_MAC "csi-Mask = true\n" AT_MAC "drx-Config = absent",
              .good = AT_MAC "csi-Mask = true",
              .since = "0.1.0"},
     .run = macCsiMask},
    {.told = {.id = "mac-phr",
              .severity = RRC_RULE_ERROR,
              .statement = "multiplePHR is true where the cell group has several uplinks or the UE has "
                           "another cell group, and only there; phr-Type2OtherCell is true only with an "
                           "E-UTRA cell group.",
              .advice = "Set multiplePHR by the number of uplinks.",
              .clause = "TS 38.331 PHR-Config",
              .given = "In dual connectivity.",
              .bad = AT_MAC "phr-Config.setup.multiplePHR = false",
              .good = AT_MAC "phr-Config.setup.multiplePHR = true",
              .since = "0.1.0"},
     .run = macPhr},
    {.told = {.id = "mac-mcg-only",
              .severity = RRC_RULE_ERROR,
              .statement = "dataInactivityTimer is absent in a secondary cell group.",
              .advice = "Configure it in the master cell group.",
              .clause = "TS 38.331 MAC-CellGroupConfig Cond MCG-Only",
              .given = "",
              .bad = AS_SCG AT_MAC "dataInactivityTimer.setup = s10",
              .good = AS_SCG AT_MAC "csi-Mask = false",
              .since = "0.1.0"},
     .run = macMcgOnly},
};

} // namespace

constinit const RuleGroup macRules = groupOf(macTable);

} // namespace rules
