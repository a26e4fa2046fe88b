// What DCI formats need: those for groups of UEs, and 0_1 and 1_1.
#include "examplePaths.h"
#include "pdcch.h"
#include "rules.h"

#include <bit>

namespace rules
{
namespace
{

// The period of a search space with a group format, in slots, is no more than this and one of the list.
template <size_t N>
void periodAmong(Check& check, const SearchSpace& space, const OSUINT32 (&periods)[N], const char* words)
{
    const Known<Monitoring> when = monitoringOf(space);
    if (check.decided(when) && std::find(std::begin(periods), std::end(periods), when->period) == std::end(periods))
    {
        check.error(&space.monitoringSlotPeriodicityAndOffset).allowed("%s", words);
    }
}

OSUINT32 sfiLevels(const SearchSpace_searchSpaceType_common_dci_Format2_0& format)
{
    const auto& given = format.nrofCandidates_SFI.m;
    return 0U + given.aggregationLevel1Present + given.aggregationLevel2Present + given.aggregationLevel4Present +
           given.aggregationLevel8Present + given.aggregationLevel16Present;
}

// Format 2_0: when it is monitored, how many levels, and what it means.
void pdcchDci20(Check& check)
{
    static constexpr OSUINT32 periods[] = {1, 2, 4, 5, 8, 10, 16, 20};
    for (Cell& cell : check.model.cells())
    {
        const SlotFormatIndicator* const indicator = slotFormatIndicatorOf(check, cell);
        bool isMonitored = false;
        bool areKnown = cell.complete;
        for (Bwp& bwp : cell.downlink)
        {
            const Pdcch& pdcch = check.model.pdcch(bwp);
            areKnown = areKnown && pdcch.isCommonKnown;
            for (const SearchSpaceEntry& entry : pdcch.allSearchSpaces)
            {
                const auto* const common = commonType(check.tree, *entry.element);
                const auto* const format = common == nullptr ? nullptr : MEMBER(*common, dci_Format2_0);
                if (format == nullptr)
                {
                    continue;
                }
                isMonitored = true;
                periodAmong(check, *entry.element, periods,
                            "DCI format 2_0 is monitored every 1, 2, 4, 5, 8, 10, 16 or 20 slots");
                if (sfiLevels(*format) != 1)
                {
                    check.error(&format->nrofCandidates_SFI)
                        .found("%u aggregation levels", sfiLevels(*format))
                        .allowed("exactly one is configured");
                }
                const auto* const id = coresetIdOf(*entry.element);
                const Known<Region> region =
                    id == nullptr ? Known<Region>::unless(RRC_RULE_INPUT_PREVIOUS) : regionOf(check.model, bwp, *id);
                if (check.decided(region) && region->symbols <= 3 &&
                    firstSymbolsOf(*entry.element) >> (4 - region->symbols) != 0)
                {
                    check.warning(&entry.element->monitoringSymbolsWithinSlot)
                        .allowed("with a CORESET of %u symbols format 2_0 begins in the first %u", region->symbols,
                                 4 - region->symbols);
                }
                if (indicator == nullptr)
                {
                    check.missing(cell.complete, format)
                        .allowed("slotFormatIndicator of PDCCH-ServingCellConfig is not set up");
                }
            }
        }
        if (indicator != nullptr && !isMonitored)
        {
            areKnown ? (void)check.error(&indicator->sfi_RNTI)
                           .found("slotFormatIndicator")
                           .allowed("no search space of the cell monitors DCI format 2_0")
                     : check.undecided(cell.complete ? RRC_RULE_INPUT_COMMON : RRC_RULE_INPUT_PREVIOUS);
        }
    }
}

// Format 2_1: when it is monitored, and what it means.
void pdcchDci21(Check& check)
{
    static constexpr OSUINT32 periods[] = {1, 2, 4};
    forPdcch(check,
             [&](const Bwp& bwp, const Pdcch& pdcch)
             {
                 const DownlinkPreemption* const preemption = preemptionOf(check, bwp);
                 for (const SearchSpaceEntry& entry : pdcch.allSearchSpaces)
                 {
                     const auto* const common = commonType(check.tree, *entry.element);
                     const auto* const format = common == nullptr ? nullptr : MEMBER(*common, dci_Format2_1);
                     if (format == nullptr)
                     {
                         continue;
                     }
                     periodAmong(check, *entry.element, periods, "DCI format 2_1 is monitored every 1, 2 or 4 slots");
                     const int occasions = std::popcount(firstSymbolsOf(*entry.element));
                     if (occasions > 1)
                     {
                         check.error(&entry.element->monitoringSymbolsWithinSlot)
                             .found("%d occasions in a slot", occasions)
                             .allowed("DCI format 2_1 has one");
                     }
                     if (preemption == nullptr)
                     {
                         check.missing(isComplete(bwp), format).allowed("downlinkPreemption is not set up");
                     }
                 }
                 if (preemption != nullptr && !monitoredFormats(check, pdcch).preemption)
                 {
                     const bool areKnown = pdcch.searchSpaces.complete && pdcch.isCommonKnown;
                     areKnown ? (void)check.error(&preemption->int_RNTI)
                                    .found("downlinkPreemption")
                                    .allowed("no search space of the bandwidth part monitors DCI format 2_1")
                              : check.undecided(pdcch.searchSpaces.complete ? RRC_RULE_INPUT_COMMON
                                                                            : RRC_RULE_INPUT_PREVIOUS);
                 }
             });
}

// The fields of format 2_1, 14 bits for each cell.
void pdcchIntPosition(Check& check)
{
    constexpr OSUINT32 field = 14;
    forPdcch(check,
             [&](const Bwp& bwp, const Pdcch&)
             {
                 const DownlinkPreemption* const preemption = preemptionOf(check, bwp);
                 if (preemption == nullptr)
                 {
                     return;
                 }
                 const auto cells =
                     check.tree.list<INT_ConfigurationPerServingCell>(&preemption->int_ConfigurationPerServingCell);
                 OSUINT32 used = 0; // bit i: the field at 14 i
                 for (const INT_ConfigurationPerServingCell& cell : cells)
                 {
                     const OSUINT32 position = cell.positionInDCI;
                     check.resolveCell(cell.servingCellId, &cell.servingCellId);
                     if (position % field != 0)
                     {
                         check.error(&cell.positionInDCI).allowed("fields begin at multiples of 14");
                         continue;
                     }
                     const OSUINT32 bit = 1U << (position / field);
                     if (position + field > preemption->dci_PayloadSize)
                     {
                         check.error(&cell.positionInDCI)
                             .allowed("14 bits from there on leave the dci-PayloadSize of %u",
                                      preemption->dci_PayloadSize);
                     }
                     else if ((used & bit) != 0)
                     {
                         check.error(&cell.positionInDCI).allowed("another cell has the same field");
                     }
                     used |= bit;
                 }
             });
}

bool hasUplinkOfItsOwnBand(const Known<RrcRuleDuplex>& duplex, const Cell& cell)
{
    return (duplex && *duplex == RRC_RULE_DUPLEX_FDD) || !cell.sul.empty();
}

// Each bandwidth part of a cell that a reference spacing has to suit; the first that it does not.
const Bwp* coarserBwp(const Cell& cell, OSUINT32 mu, bool downlinkAlone)
{
    for (const Direction direction : {Direction::Downlink, Direction::Uplink})
    {
        for (const Bwp& bwp : cell.bwps(direction))
        {
            const Known<OSUINT32> of = bwp.mu();
            if (of && *of < mu && !(downlinkAlone && direction != Direction::Downlink))
            {
                return &bwp;
            }
        }
    }
    return nullptr;
}

void sfiOfCell(Check& check, const Cell& monitoring, const SlotFormatIndicator& indicator,
               const SlotFormatCombinationsPerCell& given)
{
    Cell* const cell = check.resolveCell(given.servingCellId, &given.servingCellId);
    OSUINT32 total = 0;
    OSUINT32 highest = 0;
    for (const SlotFormatCombination& one :
         check.tree.list<SlotFormatCombination>(MEMBER(given, slotFormatCombinations)))
    {
        highest = std::max(highest, OSUINT32{one.slotFormatCombinationId});
        for (const auto& format : entries(&one.slotFormats))
        {
            ++total;
            if (format > 55 && format != 255)
            {
                check.error(&format).allowed("slot formats are 0..55 and 255");
            }
        }
    }
    if (total > maxNrofSlotFormatCombinationsPerSet)
    {
        check.error(&given.slotFormatCombinations)
            .found("%u slot formats", total)
            .allowed("all combinations of a cell have at most %u", unsigned{maxNrofSlotFormatCombinationsPerSet});
    }
    const OSUINT32 bits = std::max(static_cast<OSUINT32>(std::bit_width(highest)), 1U);
    const auto* const position = MEMBER(given, positionInDCI);
    if (position != nullptr && given.m.slotFormatCombinationsPresent != 0 &&
        *position + bits > indicator.dci_PayloadSize)
    {
        check.error(position).allowed("%u bits from there on leave the dci-PayloadSize of %u", bits,
                                      indicator.dci_PayloadSize);
    }
    const OSUINT32 mu = muOf(given.subcarrierSpacing);
    // In paired spectrum subcarrierSpacing2 is that of the uplink.
    const bool isOfDownlink = given.m.subcarrierSpacing2Present != 0;
    const Bwp* coarser = cell == nullptr ? nullptr : coarserBwp(*cell, mu, isOfDownlink);
    coarser = coarser == nullptr ? coarserBwp(monitoring, mu, true) : coarser;
    if (coarser != nullptr)
    {
        check.error(&given.subcarrierSpacing)
            .allowed("bandwidth part %u has %u kHz", coarser->id, khzOf(*coarser->mu()));
    }
    if (given.m.subcarrierSpacing2Present != 0 && cell != nullptr && cell->complete && check.decided(cell->duplex) &&
        !hasUplinkOfItsOwnBand(cell->duplex, *cell))
    {
        check.error(&given.subcarrierSpacing2).allowed("the cell has neither paired spectrum nor SUL");
    }
}

// Slot formats that format 2_0 names.
void pdcchSfi(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        if (const SlotFormatIndicator* const indicator = slotFormatIndicatorOf(check, cell))
        {
            for (const auto& given :
                 check.tree.list<SlotFormatCombinationsPerCell>(MEMBER(*indicator, slotFormatCombToAddModList)))
            {
                sfiOfCell(check, cell, *indicator, given);
            }
        }
    }
}

// Formats 0_1 and 1_1 have the sizes that PDSCH-Config and PUSCH-Config make.
void pdcchFmt01NeedsConfig(Check& check)
{
    forSearchSpaces(
        check,
        [&](const Bwp& bwp, const SearchSpaceEntry& entry)
        {
            const auto* const specific = ueSpecificType(check.tree, *entry.element);
            if (specific == nullptr ||
                specific->dci_Formats != SearchSpace_searchSpaceType_ue_Specific_dci_Formats_formats0_1_And_1_1)
            {
                return;
            }
            const Cell& cell = *bwp.cell;
            if (!isComplete(bwp))
            {
                check.undecided(bwp.pdsch == nullptr ? RRC_RULE_INPUT_PREVIOUS : 0);
                return;
            }
            if (bwp.pdsch == nullptr)
            {
                check.warning(&specific->dci_Formats).allowed("the bandwidth part has no pdsch-Config");
            }
            // In paired spectrum any uplink bandwidth part may be active with it.
            const bool isPaired = !cell.duplex || *cell.duplex != RRC_RULE_DUPLEX_TDD;
            bool hasPusch = cell.uplink.empty() || !cell.complete;
            for (const Bwp& uplink : cell.uplink)
            {
                hasPusch = hasPusch || (uplink.pusch != nullptr && (isPaired || uplink.id == bwp.id));
            }
            if (!hasPusch)
            {
                check.warning(&specific->dci_Formats).allowed("its uplink bandwidth part has no pusch-Config");
            }
        });
}

bool isPucchSCell(const Cell& cell)
{
    bool hasPucch = false;
    for (const Bwp& bwp : cell.uplink)
    {
        hasPucch = hasPucch || (bwp.pucch != nullptr && !cell.isSpCell());
    }
    return hasPucch;
}

bool hasPucchSCell(Check& check)
{
    bool has = false;
    for (const Cell& cell : check.model.cells())
    {
        has = has || isPucchSCell(cell);
    }
    return has;
}

// Where a member has to be, or must not be.
template <typename T>
void presence(Check& check, const T* at, bool isPresent, bool mayBe, bool mustBe, const char* why)
{
    if ((isPresent && !mayBe) || (!isPresent && mustBe))
    {
        check.error(at).allowed("%s", why);
    }
}

void tpcOfPusch(Check& check, Cell& cell, const PUSCH_TPC_CommandConfig& tpc)
{
    const ServCellIndex* const target = MEMBER(tpc, targetCell);
    const Cell* const of = target == nullptr ? &cell : check.resolveCell(*target, target);
    if (of == nullptr)
    {
        return;
    }
    const bool hasSul = !of->sul.empty();
    if (!hasSul && !of->complete)
    {
        check.undecided(RRC_RULE_INPUT_PREVIOUS);
        return;
    }
    presence(check, &tpc.tpc_Index, tpc.m.tpc_IndexPresent != 0, true, !hasSul,
             "without a supplementary uplink it is present");
    presence(check, &tpc.tpc_IndexSUL, tpc.m.tpc_IndexSULPresent != 0, hasSul, false,
             "the cell has no supplementary uplink");
}

void tpcOfPucch(Check& check, const Cell& cell, const PUCCH_TPC_CommandConfig& tpc)
{
    const bool isSpCell = cell.isSpCell();
    presence(check, &tpc.tpc_IndexPCell, tpc.m.tpc_IndexPCellPresent != 0, isSpCell, isSpCell,
             isSpCell ? "the SpCell's PDCCH-Config has it" : "only the SpCell's PDCCH-Config has it");
    const bool isOnSCell = isPucchSCell(cell);
    const bool hasOne = hasPucchSCell(check);
    if (!hasOne && !check.model.complete)
    {
        check.undecided(RRC_RULE_INPUT_PREVIOUS);
        return;
    }
    presence(check, &tpc.tpc_IndexPUCCH_SCell, tpc.m.tpc_IndexPUCCH_SCellPresent != 0,
             isOnSCell || (isSpCell && hasOne), isOnSCell,
             isOnSCell ? "the PUCCH SCell's PDCCH-Config has it" : "there is no PUCCH SCell that it is for");
}

// Which commands of group power control a UE takes.
void pdcchTpcIndex(Check& check)
{
    for (Cell& cell : check.model.cells())
    {
        for (const Bwp& bwp : cell.downlink)
        {
            if (bwp.pdcch == nullptr)
            {
                continue;
            }
            if (const auto* const pusch = check.tree.setup(MEMBER(*bwp.pdcch, tpc_PUSCH)))
            {
                tpcOfPusch(check, cell, *pusch);
            }
            if (const auto* const pucch = check.tree.setup(MEMBER(*bwp.pdcch, tpc_PUCCH)))
            {
                tpcOfPucch(check, cell, *pucch);
            }
        }
    }
}

constexpr Rule pdcchFormatsTable[] = {
    {.told =
         {.id = "pdcch-dci2-0",
          .severity = RRC_RULE_ERROR,
          .statement =
              "DCI format 2_0 is monitored every 1, 2, 4, 5, 8, 10, 16 or 20 slots with one aggregation level, from "
              "the first symbols of the slot, and in a cell with slotFormatIndicator, which is set up only there.",
          .advice = "Configure both slotFormatIndicator and a search space for format 2_0.",
          .clause = "TS 38.331 SearchSpace; TS 38.213 11.1.1",
          .given = "",
          .bad = AN_SFI AT_COMMON_SPACE "monitoringSlotPeriodicityAndOffset = absent\n" AT_COMMON_SPACE
                                        "monitoringSlotPeriodicityAndOffset.sl40 = 5",
          .good = AN_SFI,
          .since = "0.1.0"},
     .run = pdcchDci20},
    {.told = {.id = "pdcch-dci2-1",
              .severity = RRC_RULE_ERROR,
              .statement = "DCI format 2_1 is monitored every 1, 2 or 4 slots, once in a slot, and in a bandwidth part "
                           "with downlinkPreemption, which is set up only there.",
              .advice = "Configure both downlinkPreemption and a search space for format 2_1.",
              .clause = "TS 38.331 SearchSpace; TS 38.213 11.2",
              .given = "",
              .bad = A_PREEMPTION AT_COMMON_SPACE "monitoringSlotPeriodicityAndOffset = absent\n" AT_COMMON_SPACE
                                                  "monitoringSlotPeriodicityAndOffset.sl5 = 0",
              .good = A_PREEMPTION,
              .since = "0.1.0"},
     .run = pdcchDci21},
    {.told = {.id = "pdcch-int-position",
              .severity = RRC_RULE_ERROR,
              .statement = "positionInDCI of a cell is a multiple of 14, its 14 bits lie within dci-PayloadSize, no "
                           "two cells have the same, and each cell is configured.",
              .advice = "Number the cells and give each 14 times its number.",
              .clause = "TS 38.331 DownlinkPreemption; TS 38.213 11.2",
              .given = "",
              .bad = A_PREEMPTION AT_PREEMPTION "int-ConfigurationPerServingCell[0].positionInDCI = 14",
              .good = A_PREEMPTION AT_PREEMPTION "int-ConfigurationPerServingCell[0].positionInDCI = 14\n" AT_PREEMPTION
                                                 "dci-PayloadSize = 28",
              .since = "0.1.0"},
     .run = pdcchIntPosition},
    {.told = {.id = "pdcch-sfi",
              .severity = RRC_RULE_ERROR,
              .statement = "Slot formats are 0..55 or 255, at most 512 for a cell; the combination index fits into "
                           "dci-PayloadSize; the spacing is not above that of a bandwidth part of the cell or of the "
                           "monitoring one; subcarrierSpacing2 is for paired spectrum and SUL; the cell is configured.",
              .advice = "Mend the combinations of the cell.",
              .clause = "TS 38.331 SlotFormatCombinationsPerCell; TS 38.213 11.1.1",
              .given = "",
              .bad = AN_SFI AT_SFI_CELL "slotFormatCombinations[0].slotFormats[0] = 56",
              .good = AN_SFI AT_SFI_CELL "slotFormatCombinations[0].slotFormats[0] = 55",
              .since = "0.1.0"},
     .run = pdcchSfi},
    {.told = {.id = "pdcch-fmt01-needs-config",
              .severity = RRC_RULE_WARNING,
              .statement = "Where formats 0_1 and 1_1 are monitored, the bandwidth part has pdsch-Config and its "
                           "uplink pusch-Config, which tell their fields.",
              .advice = "Configure pdsch-Config and pusch-Config, or monitor formats 0_0 and 1_0.",
              .clause = "TS 38.212 7.3.1.1.2, 7.3.1.2.2",
              .given = "",
              .bad = A_CORESET(AT_CELL "initialDownlinkBWP.pdcch-Config.setup.controlResourceSetToAddModList[0].", "4")
                  A_SPACE(AT_CELL "initialDownlinkBWP.pdcch-Config.setup.searchSpacesToAddModList[0].", "5", "4",
                          "ue-Specific.dci-Formats = formats0-1-And-1-1"),
              .good = A_CORESET(AT_CELL "initialDownlinkBWP.pdcch-Config.setup.controlResourceSetToAddModList[0].", "4")
                  A_SPACE(AT_CELL "initialDownlinkBWP.pdcch-Config.setup.searchSpacesToAddModList[0].", "5", "4",
                          "ue-Specific.dci-Formats = formats0-0-And-1-0"),
              .since = "0.1.0"},
     .run = pdcchFmt01NeedsConfig},
    {.told =
         {.id = "pdcch-tpc-index",
          .severity = RRC_RULE_ERROR,
          .statement =
              "tpc-Index is present unless there is a supplementary uplink, tpc-IndexSUL only with one; tpc-IndexPCell "
              "is in the SpCell alone, tpc-IndexPUCCH-SCell where there is a PUCCH SCell; targetCell is configured.",
          .advice = "Send the indices that the cell has.",
          .clause = "TS 38.331 PUSCH-TPC-CommandConfig, PUCCH-TPC-CommandConfig, Cond SUL, SUL-Only, PDCCH-OfSpcell, "
                    "PDCCH-ofSpCellOrPUCCH-Scell",
          .given = "",
          .bad = AT_PHY "tpc-PUSCH-RNTI = 1002\n" AT_COMMON_SPACE "searchSpaceType.common.dci-Format2-2 = {}\n" AT_PDCCH
                        "tpc-PUSCH.setup.targetCell = 0",
          .good =
              AT_PHY "tpc-PUSCH-RNTI = 1002\n" AT_COMMON_SPACE "searchSpaceType.common.dci-Format2-2 = {}\n" AT_PDCCH
                     "tpc-PUSCH.setup.targetCell = 0\n" AT_PDCCH "tpc-PUSCH.setup.tpc-Index = 1",
          .since = "0.1.0"},
     .run = pdcchTpcIndex},
};

} // namespace

constinit const RuleGroup pdcchFormatRules = groupOf(pdcchFormatsTable);

} // namespace rules
