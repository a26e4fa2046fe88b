// Bandwidth parts and carriers.
#include "NR-RRC-Tables.h"
#include "examplePaths.h"
#include "modelLists.h"
#include "rules.h"
#include "searchSpaces.h"

#include <string_view>

namespace rules
{
namespace
{

// Each bandwidth part of each cell, in every direction.
template <typename Each>
void forBwps(Check& check, const Each& each)
{
    for (Cell& cell : check.model.cells())
    {
        for (const Direction direction : directions)
        {
            for (Bwp& bwp : cell.bwps(direction))
            {
                each(cell, bwp);
            }
        }
    }
}

// Each downlink bandwidth part with the uplink one of its id; those of a supplementary uplink have none.
template <typename Each>
void forPairs(Check& check, const Each& each)
{
    for (Cell& cell : check.model.cells())
    {
        for (Bwp& downlink : cell.downlink)
        {
            if (Bwp* const uplink = cell.bwp(Direction::Uplink, downlink.id))
            {
                each(cell, downlink, *uplink);
            }
        }
    }
}

// Whether the cells of a range use a spacing for more than SS/PBCH blocks.
bool isOfRange(OSUINT32 mu, RrcRuleRange range)
{
    return range == RRC_RULE_RANGE_FR1 ? mu <= 2 : mu == 2 || mu == 3;
}

// Whether a spacing is one that no carrier can have, which bwp-scs-range tells.
bool isOutOfRange(const Cell& cell, const SubcarrierSpacing& scs)
{
    const OSUINT32 mu = muOf(scs);
    return mu >= highestMu || (cell.range && !isOfRange(mu, *cell.range));
}

// Resource blocks of the channels that came to FR1 later: 3, 35 and 45 MHz.
bool isLaterWidth(OSUINT32 mu, OSUINT32 rbs)
{
    static constexpr OSUINT32 widths[][3] = {{15, 0, 0}, {188, 92, 44}, {242, 119, 58}};
    return std::any_of(std::begin(widths), std::end(widths),
                       [&](const auto& width) { return mu < std::size(width) && rbs != 0 && width[mu] == rbs; });
}

// Whether a carrier has the width of a channel; if not, bwp-carrier-width tells.
bool isChannel(const Cell& cell, const SCS_SpecificCarrier& carrier)
{
    const OSUINT32 mu = muOf(carrier.subcarrierSpacing);
    const bool isFr2 = cell.range && *cell.range == RRC_RULE_RANGE_FR2;
    return !cell.range || nrChannelMhz(isFr2 ? 1 : 0, mu, carrier.carrierBandwidth) != 0 ||
           (!isFr2 && isLaterWidth(mu, carrier.carrierBandwidth));
}

// A bandwidth part lies in the carrier of its spacing.
void bwpInCarrier(Check& check)
{
    forBwps(check,
            [&](const Cell&, const Bwp& bwp)
            {
                const Known<NrSpan> rbs = bwp.located();
                const Known<const SCS_SpecificCarrier*> carrier = check.model.carrier(bwp);
                if (!check.decided(rbs) || !check.decided(carrier) || *carrier == nullptr || !bwp.isTold())
                {
                    return;
                }
                const OSUINT32 last = rbs->start + rbs->size - 1;
                if (bwp.isOutside && isChannel(*bwp.cell, **carrier))
                {
                    check.error(&bwp.generic->locationAndBandwidth)
                        .found("%u, which with N = 275 is RB %u..%u", bwp.generic->locationAndBandwidth, rbs->start,
                               last)
                        .allowed("the carrier at %u kHz has RB 0..%u", khzOf(muOf((*carrier)->subcarrierSpacing)),
                                 (*carrier)->carrierBandwidth - 1U);
                }
            });
}

// There is a carrier for each spacing of a bandwidth part.
void bwpScsCarrier(Check& check)
{
    forBwps(check,
            [&](const Cell& cell, const Bwp& bwp)
            {
                const Known<Carriers> carriers = check.model.carriers(cell, bwp.direction);
                const Known<const SCS_SpecificCarrier*> carrier = check.model.carrier(bwp);
                if (!check.decided(carrier) || !bwp.hasNoCarrier || !bwp.isTold() ||
                    isOutOfRange(cell, bwp.generic->subcarrierSpacing) ||
                    std::any_of(carriers->begin(), carriers->end(),
                                [&](const SCS_SpecificCarrier* one)
                                { return isOutOfRange(cell, one->subcarrierSpacing); }))
                {
                    return;
                }
                check.error(&bwp.generic->subcarrierSpacing)
                    .allowed("scs-SpecificCarrierList of the %s has no carrier of that spacing", nameOf(bwp.direction));
            });
}

bool lacksCarrier(const Cell& cell)
{
    const auto lacks = [&](Direction direction)
    {
        const std::span<Bwp> bwps = cell.bwps(direction);
        return std::any_of(bwps.begin(), bwps.end(), [](const Bwp& bwp) { return bwp.hasNoCarrier; });
    };
    return std::any_of(std::begin(directions), std::end(directions), lacks);
}

// The carriers of one list have widths of the standard, and all those of one channel.
void carrierWidths(Check& check, const Cell& cell, const OSRTDList* list)
{
    OSUINT32 channel = 0;
    for (const SCS_SpecificCarrier& carrier : check.tree.list<SCS_SpecificCarrier>(list))
    {
        const OSUINT32 mu = muOf(carrier.subcarrierSpacing);
        if (!check.decided(cell.range) || !isOfRange(mu, *cell.range))
        {
            continue; // bwp-scs-range
        }
        const bool isFr2 = *cell.range == RRC_RULE_RANGE_FR2;
        const OSUINT32 mhz = nrChannelMhz(isFr2 ? 1 : 0, mu, carrier.carrierBandwidth);
        const NrBand* const band = cell.band ? nrBand(*cell.band) : nullptr;
        if (mhz == 0 && !isFr2 && isLaterWidth(mu, carrier.carrierBandwidth))
        {
            check.warning(&carrier.carrierBandwidth).allowed("only later releases have a channel of that width");
            continue;
        }
        if (mhz == 0)
        {
            if (!lacksCarrier(cell)) // else the spacing may be what is wrong
            {
                check.error(&carrier.carrierBandwidth)
                    .allowed("no channel of FR%u has so many resource blocks at %u kHz", isFr2 ? 2U : 1U, khzOf(mu));
            }
            continue;
        }
        if (band != nullptr && mhz < band->leastMhz)
        {
            check.warning(&carrier.carrierBandwidth)
                .found("%u, a channel of %u MHz", carrier.carrierBandwidth, mhz)
                .allowed("band n%u has channels from %u MHz on", band->number, band->leastMhz);
        }
        else if (channel != 0 && channel != mhz)
        {
            check.warning(&carrier.carrierBandwidth)
                .found("%u, a channel of %u MHz", carrier.carrierBandwidth, mhz)
                .allowed("the other spacing has a channel of %u MHz", channel);
        }
        channel = channel == 0 ? mhz : channel;
    }
}

// Calls `each(list)` for the lists of carriers of a cell, null for those that it does not have.
template <typename Each>
void forCarrierLists(const Cell& cell, const Each& each)
{
    const FrequencyInfoDL* const downlink = cell.frequencyDl();
    each(downlink == nullptr ? nullptr : &downlink->scs_SpecificCarrierList);
    for (const FrequencyInfoUL* const frequency : {cell.frequencyUl(), cell.frequencySul()})
    {
        each(frequency == nullptr ? nullptr : &frequency->scs_SpecificCarrierList);
    }
    each(cell.dedicated == nullptr ? nullptr : ADDITION(*cell.dedicated, 2, downlinkChannelBW_PerSCS_List));
    for (const UplinkConfig* const uplink : {cell.uplinkConfig, cell.supplementary})
    {
        each(uplink == nullptr ? nullptr : ADDITION(*uplink, 2, uplinkChannelBW_PerSCS_List));
    }
}

void bwpCarrierWidth(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        forCarrierLists(cell, [&](const OSRTDList* list) { carrierWidths(check, cell, list); });
    }
}

// A spacing is one of the cell's frequency range.
void spacing(Check& check, const Cell& cell, const SubcarrierSpacing& scs)
{
    const OSUINT32 mu = muOf(scs);
    if (mu == highestMu)
    {
        check.error(&scs).allowed("only SS/PBCH blocks have that spacing");
    }
    else if (mu < highestMu && check.decided(cell.range) && !isOfRange(mu, *cell.range))
    {
        const bool isFr1 = *cell.range == RRC_RULE_RANGE_FR1;
        check.error(&scs).allowed("cells of %s", isFr1 ? "FR1 have 15, 30 and 60 kHz" : "FR2 have 60 and 120 kHz");
    }
}

void spacingsOf(Check& check, const Cell& cell, const OSRTDList* carriers)
{
    for (const SCS_SpecificCarrier& carrier : check.tree.list<SCS_SpecificCarrier>(carriers))
    {
        spacing(check, cell, carrier.subcarrierSpacing);
    }
}

void patternSpacings(Check& check, const Cell& cell, const OSRTDList* patterns)
{
    for (const RateMatchPattern& pattern : check.tree.list<RateMatchPattern>(patterns))
    {
        if (const SubcarrierSpacing* const scs = MEMBER(pattern, subcarrierSpacing))
        {
            spacing(check, cell, *scs);
        }
    }
}

// Of bandwidth parts, carriers, rate match patterns and slot formats; other spacings have rules of their own.
void bwpScsRange(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        forCarrierLists(cell, [&](const OSRTDList* list) { spacingsOf(check, cell, list); });
        if (cell.common != nullptr)
        {
            patternSpacings(check, cell, MEMBER(*cell.common, rateMatchPatternToAddModList));
        }
        if (cell.dedicated == nullptr)
        {
            continue;
        }
        patternSpacings(check, cell, ADDITION(*cell.dedicated, 2, rateMatchPatternToAddModList));
        const PDCCH_ServingCellConfig* const pdcch = check.tree.setup(MEMBER(*cell.dedicated, pdcch_ServingCellConfig));
        const SlotFormatIndicator* const indicator =
            pdcch == nullptr ? nullptr : check.tree.setup(MEMBER(*pdcch, slotFormatIndicator));
        for (const SlotFormatCombinationsPerCell& combinations : check.tree.list<SlotFormatCombinationsPerCell>(
                 indicator == nullptr ? nullptr : MEMBER(*indicator, slotFormatCombToAddModList)))
        {
            const Cell* const formatted = check.model.cell(combinations.servingCellId);
            if (formatted != nullptr)
            {
                spacing(check, *formatted, combinations.subcarrierSpacing);
            }
        }
    }
    forBwps(check,
            [&](const Cell& cell, const Bwp& bwp)
            {
                if (bwp.isTold())
                {
                    spacing(check, cell, bwp.generic->subcarrierSpacing);
                }
                patternSpacings(check, cell,
                                bwp.pdsch == nullptr ? nullptr : MEMBER(*bwp.pdsch, rateMatchPatternToAddModList));
            });
}

// Only 60 kHz has an extended prefix, and both directions have the same.
void bwpEcp(Check& check)
{
    forBwps(check,
            [&](const Cell&, const Bwp& bwp)
            {
                if (bwp.isTold() && bwp.generic->m.cyclicPrefixPresent != 0 && bwp.mu() && *bwp.mu() != 2)
                {
                    check.error(&bwp.generic->cyclicPrefix)
                        .allowed("a bandwidth part of %u kHz has the normal prefix", khzOf(*bwp.mu()));
                }
            });
    forPairs(check,
             [&](const Cell&, const Bwp& downlink, const Bwp& uplink)
             {
                 const Known<OSUINT32> mu = downlink.mu();
                 const Known<OSUINT32> other = uplink.mu();
                 if (check.decided(mu) && check.decided(other) && *mu == 2 && *other == 2 && uplink.isTold() &&
                     downlink.isExtended() != uplink.isExtended())
                 {
                     check.error(&uplink.generic->cyclicPrefix)
                         .allowed("downlink bandwidth part %u has the %s prefix", downlink.id,
                                  downlink.isExtended() ? "extended" : "normal");
                 }
             });
}

// Downlink and uplink bandwidth parts of one id have the same spacing.
void bwpPairScs(Check& check)
{
    forPairs(check,
             [&](const Cell&, const Bwp& downlink, const Bwp& uplink)
             {
                 const Known<OSUINT32> mu = downlink.mu();
                 const Known<OSUINT32> other = uplink.mu();
                 if (check.decided(mu) && check.decided(other) && *mu != *other && uplink.isTold())
                 {
                     check.error(&uplink.generic->subcarrierSpacing)
                         .allowed("downlink bandwidth part %u has %u kHz", downlink.id, khzOf(*mu));
                 }
             });
}

// In TDD they have the same centre.
void bwpTddCentre(Check& check)
{
    forPairs(check,
             [&](const Cell& cell, const Bwp& downlink, const Bwp& uplink)
             {
                 if (!check.decided(cell.duplex) || *cell.duplex != RRC_RULE_DUPLEX_TDD || !uplink.isTold())
                 {
                     return;
                 }
                 const Known<NrSpan> down = downlink.rbs();
                 const Known<NrSpan> up = uplink.rbs();
                 const Known<const SCS_SpecificCarrier*> downCarrier = check.model.carrier(downlink);
                 const Known<const SCS_SpecificCarrier*> upCarrier = check.model.carrier(uplink);
                 if (!check.decided(down) || !check.decided(up) || !check.decided(downCarrier) ||
                     !check.decided(upCarrier) || *downCarrier == nullptr || *upCarrier == nullptr ||
                     (*downCarrier)->subcarrierSpacing != (*upCarrier)->subcarrierSpacing)
                 {
                     return;
                 }
                 const OSUINT32 downCentre = 2 * ((*downCarrier)->offsetToCarrier + down->start) + down->size;
                 const OSUINT32 upCentre = 2 * ((*upCarrier)->offsetToCarrier + up->start) + up->size;
                 if (downCentre != upCentre)
                 {
                     check.error(&uplink.generic->locationAndBandwidth)
                         .found("%u, RB %u..%u", uplink.generic->locationAndBandwidth, up->start,
                                up->start + up->size - 1)
                         .allowed("downlink bandwidth part %u, RB %u..%u, has another centre, by %u.%u RB", downlink.id,
                                  down->start, down->start + down->size - 1,
                                  (downCentre > upCentre ? downCentre - upCentre : upCentre - downCentre) / 2,
                                  (downCentre + upCentre) % 2 * 5);
                 }
             });
}

template <typename Dedicated>
bool configures(const Dedicated* dedicated)
{
    if (dedicated == nullptr)
    {
        return false;
    }
    const auto& m = dedicated->m;
    if constexpr (std::is_same_v<Dedicated, BWP_DownlinkDedicated>)
    {
        return m.pdcch_ConfigPresent != 0 || m.pdsch_ConfigPresent != 0 || m.sps_ConfigPresent != 0 ||
               m.radioLinkMonitoringConfigPresent != 0;
    }
    else
    {
        return m.pucch_ConfigPresent != 0 || m.pusch_ConfigPresent != 0 || m.configuredGrantConfigPresent != 0 ||
               m.srs_ConfigPresent != 0 || m.beamFailureRecoveryConfigPresent != 0;
    }
}

const BWP_Id* idOf(const Bwp& bwp)
{
    return bwp.downlink != nullptr ? &bwp.downlink->bwp_Id : bwp.uplink != nullptr ? &bwp.uplink->bwp_Id : nullptr;
}

// Bandwidth parts that are added have ids from 1 on, and there are at most four.
void bwpIdsOf(Check& check, const Cell& cell, Direction direction)
{
    constexpr OSUINT32 most = 4;
    OSUINT32 count = 0;
    OSUINT32 ids = 0;
    const BWP_Id* highest = nullptr;
    const BWP_Id* last = nullptr;
    for (const Bwp& bwp : cell.bwps(direction))
    {
        const BWP_Id* const id = idOf(bwp);
        if (id == nullptr)
        {
            count += configures(bwp.downlinkDedicated) || configures(bwp.uplinkDedicated) ? 1 : 0;
            continue;
        }
        if (*id == 0)
        {
            check.error(id).allowed("0 is the initial bandwidth part, which is not in this list");
            continue;
        }
        ++count;
        ids |= *id <= most ? 1U << *id : 0;
        last = id;
        highest = highest == nullptr || *id > *highest ? id : highest;
    }
    if (highest == nullptr)
    {
        return;
    }
    if (!cell.complete)
    {
        check.undecided(RRC_RULE_INPUT_PREVIOUS);
    }
    else if (count > most)
    {
        check.error(last).allowed("the cell has %u %s bandwidth parts with it, and a UE has four", count,
                                  nameOf(direction));
    }
    else if (*highest <= most && ids != (2U << *highest) - 2)
    {
        check.warning(highest).allowed("lower ids are not used: they run from 1 on");
    }
}

void bwpId(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        for (const Direction direction : directions)
        {
            bwpIdsOf(check, cell, direction);
        }
        const ServingCellConfig* const sent = cell.dedicated == nullptr ? nullptr : check.model.sent(*cell.dedicated);
        const auto released = [&](const auto& list)
        {
            for (const BWP_Id& id : list)
            {
                if (id == 0)
                {
                    check.error(&id).allowed("the initial bandwidth part is not released");
                }
            }
        };
        if (sent == nullptr)
        {
            continue;
        }
        released(entries(MEMBER(*sent, downlinkBWP_ToReleaseList)));
        for (const UplinkConfig* const uplink : {MEMBER(*sent, uplinkConfig), MEMBER(*sent, supplementaryUplink)})
        {
            released(entries(uplink == nullptr ? nullptr : MEMBER(*uplink, uplinkBWP_ToReleaseList)));
        }
    }
}

// A new bandwidth part has its common and its dedicated part.
void bwpNewIncomplete(Check& check)
{
    forBwps(check,
            [&](const Cell&, const Bwp& bwp)
            {
                const auto look = [&](const auto* entry)
                {
                    const bool isWhole =
                        entry == nullptr || (entry->m.bwp_CommonPresent != 0 && entry->m.bwp_DedicatedPresent != 0);
                    if (isWhole || !check.isNew(bwp.novelty))
                    {
                        return;
                    }
                    if (entry->m.bwp_CommonPresent == 0)
                    {
                        check.error(&entry->bwp_Common).allowed("a new bandwidth part has it");
                    }
                    if (entry->m.bwp_DedicatedPresent == 0)
                    {
                        check.error(&entry->bwp_Dedicated).allowed("a new bandwidth part has it");
                    }
                };
                look(bwp.downlink);
                look(bwp.uplink);
            });
}

// Without another bandwidth part the initial one is configured.
void bwpInitialDedicated(Check& check)
{
    const auto look = [&](const Cell& cell, Direction direction, const auto* initial, bool isPresent)
    {
        if (isPresent || cell.bwps(direction).size() > 1)
        {
            return;
        }
        if (!cell.complete)
        {
            check.undecided(RRC_RULE_INPUT_PREVIOUS);
            return;
        }
        check.error(initial).allowed("the cell has no other %s bandwidth part", nameOf(direction));
    };
    for (const Cell& cell : check.model.cells())
    {
        if (cell.dedicated != nullptr)
        {
            look(cell, Direction::Downlink, &cell.dedicated->initialDownlinkBWP,
                 cell.dedicated->m.initialDownlinkBWPPresent != 0);
        }
        if (cell.uplinkConfig != nullptr)
        {
            look(cell, Direction::Uplink, &cell.uplinkConfig->initialUplinkBWP,
                 cell.uplinkConfig->m.initialUplinkBWPPresent != 0);
        }
        if (cell.supplementary != nullptr)
        {
            look(cell, Direction::Supplementary, &cell.supplementary->initialUplinkBWP,
                 cell.supplementary->m.initialUplinkBWPPresent != 0);
        }
    }
}

// What a cell activates first in a direction; null where the element does not say.
const BWP_Id* firstActiveId(const Cell& cell, Direction direction)
{
    if (direction == Direction::Downlink)
    {
        return cell.dedicated == nullptr ? nullptr : MEMBER(*cell.dedicated, firstActiveDownlinkBWP_Id);
    }
    const UplinkConfig* const uplink = direction == Direction::Uplink ? cell.uplinkConfig : cell.supplementary;
    return uplink == nullptr ? nullptr : MEMBER(*uplink, firstActiveUplinkBWP_Id);
}

// The bandwidth part that becomes active by being named; null, and said, where there is none or it is released.
const Bwp* namedBwp(Check& check, const Cell& cell, Direction direction, const BWP_Id* id)
{
    const Bwp* const bwp = check.resolveBwp(cell, direction, id);
    if (bwp == nullptr && check.model.isReleased(cell, direction, *id))
    {
        check.error(id).allowed("%s bandwidth part %u is released by this message", nameOf(direction), OSUINT32{*id});
    }
    return bwp;
}

// What firstActive names is a bandwidth part that is there.
void bwpActiveRef(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        for (const Direction direction : directions)
        {
            if (const BWP_Id* const id = firstActiveId(cell, direction))
            {
                (void)namedBwp(check, cell, direction, id);
            }
        }
    }
}

// A cell that the UE comes into says which bandwidth parts are active, a modification of an SCell does not.
void activeOfCell(Check& check, const Cell& cell, const ServingCellConfig& sent, bool isNeeded, bool isMissed)
{
    const BWP_Id* const downlink = MEMBER(sent, firstActiveDownlinkBWP_Id);
    const UplinkConfig* const uplinkConfig = MEMBER(sent, uplinkConfig);
    const BWP_Id* const uplink = uplinkConfig == nullptr ? nullptr : MEMBER(*uplinkConfig, firstActiveUplinkBWP_Id);
    if (!isNeeded && !isMissed)
    {
        for (const BWP_Id* const id : {downlink, uplink})
        {
            if (id != nullptr && !cell.isSpCell())
            {
                check.error(id).allowed("a modification of an SCell activates nothing");
            }
        }
        return;
    }
    const RrcRuleSeverity severity = isNeeded ? RRC_RULE_ERROR : RRC_RULE_WARNING;
    const auto miss = [&](const BWP_Id* at)
    {
        check.missing(true, at, severity).found("absent").allowed("the UE is to know what is active when it comes");
    };
    if (downlink == nullptr)
    {
        miss(&sent.firstActiveDownlinkBWP_Id);
    }
    if (uplinkConfig != nullptr && uplink == nullptr)
    {
        miss(&uplinkConfig->firstActiveUplinkBWP_Id);
    }
    if (cell.isSpCell() && isNeeded && downlink != nullptr && uplink != nullptr && *downlink != *uplink &&
        cell.bwp(Direction::Downlink, *downlink) != nullptr && cell.bwp(Direction::Uplink, *uplink) != nullptr)
    {
        check.error(uplink).allowed("with reconfigurationWithSync it is that of the downlink, %u", *downlink);
    }
}

void bwpActivePresent(Check& check)
{
    const OSUINT8 kind = check.model.messageKind();
    for (const Cell& cell : check.model.cells())
    {
        const ServingCellConfig* const sent = cell.dedicated == nullptr ? nullptr : check.model.sent(*cell.dedicated);
        if (sent == nullptr)
        {
            continue;
        }
        if (cell.isSpCell())
        {
            const bool isMissed = kind == RRC_RULE_MESSAGE_SETUP || kind == RRC_RULE_MESSAGE_RESUME;
            activeOfCell(check, cell, *sent, kind == RRC_RULE_MESSAGE_SYNC, isMissed);
        }
        else if (check.isNew(cell.novelty) || cell.novelty == Novelty::Old)
        {
            activeOfCell(check, cell, *sent, cell.novelty == Novelty::New, false);
        }
    }
}

// What the UE falls back to is there; it falls back by a timer.
void bwpDefaultRef(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        if (cell.dedicated == nullptr)
        {
            continue;
        }
        const ServingCellConfig& dedicated = *cell.dedicated;
        const BWP_Id* const id = MEMBER(dedicated, defaultDownlinkBWP_Id);
        const auto* const timer = MEMBER(dedicated, bwp_InactivityTimer);
        if (id != nullptr && namedBwp(check, cell, Direction::Downlink, id) == nullptr)
        {
            continue;
        }
        if (id != nullptr && timer == nullptr)
        {
            check.notice(id).allowed("without bwp-InactivityTimer the UE never falls back to it");
        }
        if (timer != nullptr && cell.complete && cell.downlink.size() == 1)
        {
            check.notice(timer).allowed("the cell has one downlink bandwidth part");
        }
    }
}

// Who names a bandwidth part of a cell, besides what activates it; null where nobody does.
const char* userOf(Check& check, const Cell& cell, Direction direction, OSUINT32 id)
{
    const bool isDownlink = direction == Direction::Downlink;
    const char* user = nullptr;
    const auto isHere = [&](const ServCellIndex* index)
    {
        return index == nullptr || (cell.index && *cell.index == *index);
    };
    forValues(check.tree.heap(), {nr_rrc::type_ServingCellConfig, cell.dedicated, nullptr, false},
              kindBits(rtx::Kind::Sequence, rtx::Kind::Integer),
              [&](const Value& value)
              {
                  const RtxType* const type = &value.type;
                  if (isDownlink && type == &nr_rrc::type_CSI_ResourceConfig)
                  {
                      user = static_cast<const CSI_ResourceConfig*>(value.at)->bwp_Id == id ? value.type.name : user;
                  }
                  else if (isDownlink && type == &nr_rrc::type_QCL_Info)
                  {
                      const auto& info = *static_cast<const QCL_Info*>(value.at);
                      const BWP_Id* const named = MEMBER(info, bwp_Id);
                      const bool isIt = named != nullptr && *named == id && isHere(MEMBER(info, cell));
                      user = isIt ? value.type.name : user;
                  }
                  else if (!isDownlink && type == &nr_rrc::type_PUCCH_CSI_Resource && cell.isSpCell())
                  {
                      const auto& resource = *static_cast<const PUCCH_CSI_Resource*>(value.at);
                      user = resource.uplinkBandwidthPartId == id ? value.type.name : user;
                  }
                  else if (!isDownlink && value.name != nullptr && std::string_view(value.name) == "uplinkBWP")
                  {
                      user = rtx::load<BWP_Id>(value.at) == id ? "a spatial relation" : user;
                  }
              });
    return user;
}

// What is released is not named any more.
void bwpReleaseInUse(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        const ServingCellConfig* const sent = cell.dedicated == nullptr ? nullptr : check.model.sent(*cell.dedicated);
        if (sent == nullptr)
        {
            continue;
        }
        const auto look = [&](Direction direction, const auto& list)
        {
            for (const BWP_Id& id : list)
            {
                const bool isGone = id != 0 && cell.bwp(direction, id) == nullptr;
                if (const char* const user = isGone ? userOf(check, cell, direction, id) : nullptr)
                {
                    check.warning(&id).allowed("%s still names it", user);
                }
            }
        };
        look(Direction::Downlink, entries(MEMBER(*sent, downlinkBWP_ToReleaseList)));
        const UplinkConfig* const uplink = MEMBER(*sent, uplinkConfig);
        look(Direction::Uplink, entries(uplink == nullptr ? nullptr : MEMBER(*uplink, uplinkBWP_ToReleaseList)));
        const UplinkConfig* const sul = MEMBER(*sent, supplementaryUplink);
        look(Direction::Supplementary, entries(sul == nullptr ? nullptr : MEMBER(*sul, uplinkBWP_ToReleaseList)));
    }
}

// An uplink is configured where the cell has one.
void bwpUlNeedsCommon(Check& check)
{
    for (const Cell& cell : check.model.cells())
    {
        if (cell.common != nullptr)
        {
            if (cell.common->m.supplementaryUplinkConfigPresent != 0 && cell.common->m.uplinkConfigCommonPresent == 0)
            {
                check.error(&cell.common->supplementaryUplinkConfig)
                    .allowed("there is no uplinkConfigCommon beside it");
            }
            // In a handover within the cell the earlier ones stay.
            if (cell.uplinkConfig != nullptr && cell.uplinkCommon() == nullptr)
            {
                check.missing(cell.complete, cell.uplinkConfig).allowed("the cell has no uplinkConfigCommon");
            }
            if (cell.supplementary != nullptr && cell.supplementaryCommon() == nullptr)
            {
                check.missing(cell.complete, cell.supplementary).allowed("the cell has no supplementaryUplinkConfig");
            }
        }
        if (cell.uplinkConfig == nullptr && cell.supplementary == nullptr)
        {
            continue;
        }
        const ServingCellConfig* const before = check.model.before(*cell.dedicated);
        const bool hasUplink = cell.common == nullptr || cell.uplinkCommon() != nullptr;
        if (cell.common == nullptr && (before == nullptr || cell.isSpCell()))
        {
            check.undecided(cell.isSpCell() ? RRC_RULE_INPUT_COMMON : RRC_RULE_INPUT_PREVIOUS);
        }
        else if (cell.novelty == Novelty::Old && !cell.isSpCell() && hasUplink && cell.uplinkConfig != nullptr &&
                 before != nullptr && before->m.uplinkConfigPresent == 0)
        {
            check.error(cell.uplinkConfig)
                .allowed("the SCell was added without an uplink: release it and add it again");
        }
    }
}

// The initial bandwidth part contains CORESET#0.
void bwpInitialCoreset0(Check& check)
{
    const Cell* const cell = check.model.spCell();
    const Bwp* const initial = cell == nullptr ? nullptr : cell->bwp(Direction::Downlink, 0);
    if (initial == nullptr)
    {
        return;
    }
    const Known<NrCoreset0> coreset = coreset0Of(check.model, *cell);
    const Known<NrSpan> rbs = initial->rbs();
    if (!check.decided(coreset) || !check.decided(rbs) || !initial->isTold())
    {
        return;
    }
    if (rbs->size < coreset->rbs)
    {
        check.error(&initial->generic->locationAndBandwidth)
            .found("%u, %u RB", initial->generic->locationAndBandwidth, rbs->size)
            .allowed("CORESET#0 has %u", coreset->rbs);
        return;
    }
    const Known<int64_t> start = coreset0Start(check.model, *cell);
    const Known<NrSpan> common = commonRbs(check.model, *initial);
    if (start && check.decided(common) && !contains(*common, *start, coreset->rbs))
    {
        check.error(&initial->generic->locationAndBandwidth)
            .found("%u, common RB %u..%u", initial->generic->locationAndBandwidth, common->start,
                   common->start + common->size - 1)
            .allowed("CORESET#0 is at %" PRId64 "..%" PRId64, *start, *start + coreset->rbs - 1);
    }
}

// Whether a search space of the bandwidth part is common, be it search space 0.
bool hasCommonSearchSpace(Check& check, const Pdcch& pdcch)
{
    for (const SearchSpaceEntry& entry : pdcch.allSearchSpaces)
    {
        const SearchSpace_searchSpaceType* const type = MEMBER(*entry.element, searchSpaceType);
        // One without a type pdcch-ss-new-incomplete tells.
        if (entry.isCommon || type == nullptr ||
            CHOSEN(check.tree, type, SearchSpace_searchSpaceType, common) != nullptr)
        {
            return true;
        }
    }
    const PDCCH_ConfigCommon* const common = pdcch.common;
    return common != nullptr && (common->m.searchSpaceZeroPresent != 0 || common->m.searchSpaceSIB1Present != 0 ||
                                 common->m.searchSpaceOtherSystemInformationPresent != 0 ||
                                 common->m.pagingSearchSpacePresent != 0 || common->m.ra_SearchSpacePresent != 0);
}

// Each downlink bandwidth part of the SpCell has a common search space.
void bwpSpcellCss(Check& check)
{
    const Cell* const cell = check.model.spCell();
    if (cell == nullptr)
    {
        return;
    }
    for (Bwp& bwp : cell->downlink)
    {
        const Pdcch& pdcch = check.model.pdcch(bwp);
        if (hasCommonSearchSpace(check, pdcch))
        {
            continue;
        }
        if (!pdcch.isCommonKnown || !cell->complete)
        {
            check.undecided(bwp.isInitial() ? RRC_RULE_INPUT_COMMON : RRC_RULE_INPUT_PREVIOUS);
            continue;
        }
        const RrcRuleSeverity severity = check.model.isScg() ? RRC_RULE_WARNING : RRC_RULE_ERROR;
        check.missing(true, &bwp.downlinkCommon->pdcch_ConfigCommon, severity)
            .allowed("downlink bandwidth part %u has no common search space", bwp.id);
    }
}

#define SECOND_CARRIER                                                                                                 \
    AT_COMMON_DL "frequencyInfoDL.scs-SpecificCarrierList[1].offsetToCarrier = 0\n" AT_COMMON_DL                       \
                 "frequencyInfoDL.scs-SpecificCarrierList[1].subcarrierSpacing = "
#define SECOND_CARRIER_WIDTH AT_COMMON_DL "frequencyInfoDL.scs-SpecificCarrierList[1].carrierBandwidth = "
// An uplink carrier of 60 kHz beside that of 30 kHz.
#define UPLINK_CARRIER                                                                                                 \
    AT_COMMON_UL "frequencyInfoUL.scs-SpecificCarrierList[1].offsetToCarrier = 0\n" AT_COMMON_UL                       \
                 "frequencyInfoUL.scs-SpecificCarrierList[1].subcarrierSpacing = kHz60\n" AT_COMMON_UL                 \
                 "frequencyInfoUL.scs-SpecificCarrierList[1].carrierBandwidth = 135\n"
#define SECOND_BWP AT_CELL "downlinkBWP-ToAddModList[1]."
#define ONLY_INITIAL                                                                                                   \
    AT_CELL "downlinkBWP-ToAddModList = absent\n" AT_CELL "initialDownlinkBWP = absent\n" AT_CELL                      \
            "csi-MeasConfig = absent\n" AT_CELL "firstActiveDownlinkBWP-Id = 0\n" AT_UPLINK                            \
            "uplinkBWP-ToAddModList = absent\n" AT_UPLINK "initialUplinkBWP.srs-Config.release = null\n" AT_UPLINK     \
            "firstActiveUplinkBWP-Id = 0"
#define SUPPLEMENTARY AT_CELL "supplementaryUplink.initialUplinkBWP.srs-Config.release = null"
#define SUPPLEMENTARY_COMMON                                                                                           \
    AT_COMMON                                                                                                          \
    "supplementaryUplinkConfig.frequencyInfoUL.frequencyBandList[0] = 80\n" AT_COMMON                                  \
    "supplementaryUplinkConfig.frequencyInfoUL.absoluteFrequencyPointA = 342000\n" AT_COMMON                           \
    "supplementaryUplinkConfig.frequencyInfoUL.scs-SpecificCarrierList[0].offsetToCarrier = 0\n" AT_COMMON             \
    "supplementaryUplinkConfig.frequencyInfoUL.scs-SpecificCarrierList[0].subcarrierSpacing = kHz15\n" AT_COMMON       \
    "supplementaryUplinkConfig.frequencyInfoUL.scs-SpecificCarrierList[0].carrierBandwidth = 106\n" AT_COMMON          \
    "supplementaryUplinkConfig.initialUplinkBWP.genericParameters.locationAndBandwidth = 28875\n" AT_COMMON            \
    "supplementaryUplinkConfig.initialUplinkBWP.genericParameters.subcarrierSpacing = kHz15\n" AT_COMMON               \
    "supplementaryUplinkConfig.dummy = infinity"
// The initial bandwidth parts of both directions, with a CORESET that fits; CORESET#0 is at the common RB 113..160.
#define INITIAL(locationAndBandwidth)                                                                                  \
    AT_COMMON_DL "initialDownlinkBWP.genericParameters.locationAndBandwidth = " locationAndBandwidth "\n" AT_COMMON_DL \
                 "initialDownlinkBWP.pdcch-ConfigCommon.setup.commonControlResourceSet.frequencyDomainResources = "    \
                 "FE0000000000\n" AT_COMMON_DL                                                                         \
                 "initialDownlinkBWP.pdcch-ConfigCommon.setup.commonSearchSpaceList[0].nrofCandidates."                \
                 "aggregationLevel8 = n0\n" AT_COMMON_UL                                                               \
                 "initialUplinkBWP.genericParameters.locationAndBandwidth = " locationAndBandwidth
#define WITHOUT_COMMON AT_PDCCH "searchSpacesToAddModList[2] = absent"

constexpr Rule bwpTable[] = {
    {.told = {.id = "bwp-in-carrier",
              .severity = RRC_RULE_ERROR,
              .statement = "A bandwidth part, its locationAndBandwidth decoded with 275 resource blocks, "
                           "lies within the carrier of its subcarrier spacing.",
              .advice = "Compute locationAndBandwidth with N = 275, whatever the carrier's width.",
              .clause = "TS 38.331 BWP; TS 38.213 12",
              .given = "",
              .bad = AT_DL "bwp-Common.genericParameters.locationAndBandwidth = 824\n" // RB 0..273
              AT_UL "bwp-Common.genericParameters.locationAndBandwidth = 824",
              .good = AT_DL "bwp-Common.genericParameters.locationAndBandwidth = 1099\n" // RB 0..272
              AT_UL "bwp-Common.genericParameters.locationAndBandwidth = 1099",
              .since = "0.1.0"},
     .run = bwpInCarrier},
    {.told = {.id = "bwp-scs-carrier",
              .severity = RRC_RULE_ERROR,
              .statement = "scs-SpecificCarrierList has a carrier for each subcarrier spacing of a bandwidth "
                           "part of its direction.",
              .advice = "Add the carrier, or use a spacing that there is.",
              .clause = "TS 38.331 FrequencyInfoDL, FrequencyInfoUL",
              .given = "",
              .bad = AT_COMMON_UL "frequencyInfoUL.scs-SpecificCarrierList[0].subcarrierSpacing = kHz15\n" AT_COMMON_UL
                                  "frequencyInfoUL.scs-SpecificCarrierList[0].carrierBandwidth = 270",
              .good = AT_COMMON_UL "frequencyInfoUL.scs-SpecificCarrierList[0].subcarrierSpacing = kHz30",
              .since = "0.1.0"},
     .run = bwpScsCarrier},
    {.told = {.id = "bwp-carrier-width",
              .severity = RRC_RULE_ERROR,
              .statement = "carrierBandwidth is a transmission bandwidth of TS 38.101 for its subcarrier spacing, of a "
                           "channel that the band has, and of the same channel in all spacings.",
              .advice = "Take the number of resource blocks from TS 38.101.",
              .clause = "TS 38.101-1, TS 38.101-2 tables 5.3.2-1, 5.3.5-1; TS 38.331 ServingCellConfig",
              .given = "",
              .bad = AT_COMMON_DL "frequencyInfoDL.scs-SpecificCarrierList[0].carrierBandwidth = 274",
              .good = AT_COMMON_DL "frequencyInfoDL.scs-SpecificCarrierList[0].carrierBandwidth = 273",
              .since = "0.1.0"},
     .run = bwpCarrierWidth},
    {.told = {.id = "bwp-scs-range",
              .severity = RRC_RULE_ERROR,
              .statement = "Subcarrier spacings are 15, 30 and 60 kHz in FR1, 60 and 120 kHz in FR2; 240 kHz "
                           "is for SS/PBCH blocks alone.",
              .advice = "Use a spacing of the frequency range.",
              .clause = "TS 38.331 BWP, SCS-SpecificCarrier, RateMatchPattern, SlotFormatCombinationsPerCell",
              .given = "",
              .bad = SECOND_CARRIER "kHz120\n" SECOND_CARRIER_WIDTH "66",
              .good = SECOND_CARRIER "kHz60\n" SECOND_CARRIER_WIDTH "135",
              .since = "0.1.0"},
     .run = bwpScsRange},
    {.told = {.id = "bwp-ecp",
              .severity = RRC_RULE_ERROR,
              .statement = "The extended cyclic prefix is for 60 kHz, and downlink and uplink bandwidth "
                           "parts of one id have the same prefix.",
              .advice = "Leave cyclicPrefix out.",
              .clause = "TS 38.331 BWP; TS 38.211 4.2",
              .given = "",
              .bad = AT_DL "bwp-Common.genericParameters.cyclicPrefix = extended",
              .good = AT_DL "bwp-Common.genericParameters.subcarrierSpacing = kHz30",
              .since = "0.1.0"},
     .run = bwpEcp},
    {.told = {.id = "bwp-pair-scs",
              .severity = RRC_RULE_ERROR,
              .statement = "Downlink and uplink bandwidth parts of one id have the same subcarrier spacing.",
              .advice = "Give both the same spacing.",
              .clause = "TS 38.331 BWP",
              .given = "",
              .bad = WITHIN_135_RB UPLINK_CARRIER AT_UL "bwp-Common.genericParameters.subcarrierSpacing = kHz60\n" AT_UL
                                                        "bwp-Common.genericParameters.locationAndBandwidth = 36850",
              .good = UPLINK_CARRIER AT_UL "bwp-Common.genericParameters.subcarrierSpacing = kHz30",
              .since = "0.1.0"},
     .run = bwpPairScs},
    {.told = {.id = "bwp-tdd-centre",
              .severity = RRC_RULE_ERROR,
              .statement = "In TDD the downlink and uplink bandwidth parts of one id have the same centre "
                           "frequency.",
              .advice = "Move one of them.",
              .clause = "TS 38.331 BWP, UplinkConfig; TS 38.213 12",
              .given = "",
              .bad = AT_UL "bwp-Common.genericParameters.locationAndBandwidth = 1374",
              .good = AT_UL "bwp-Common.genericParameters.locationAndBandwidth = 1648",
              .since = "0.1.0"},
     .run = bwpTddCentre},
    {.told = {.id = "bwp-id",
              .severity = RRC_RULE_ERROR,
              .statement = "Bandwidth parts that are added have ids from 1 on without a gap, and there are "
                           "at most four in a direction; the initial one counts where it is configured.",
              .advice = "Number them from 1 on.",
              .clause = "TS 38.331 BWP-Downlink, BWP-Uplink, ServingCellConfig; TS 38.213 12",
              .given = "",
              .bad = AT_CELL "downlinkBWP-ToReleaseList[0] = 0",
              .good = AT_CELL "downlinkBWP-ToReleaseList[0] = 2",
              .since = "0.1.0"},
     .run = bwpId},
    {.told = {.id = "bwp-new-incomplete",
              .severity = RRC_RULE_ERROR,
              .statement = "A bandwidth part that does not exist yet has bwp-Common and bwp-Dedicated.",
              .advice = "Add both.",
              .clause = "TS 38.331 BWP-Downlink, BWP-Uplink Cond SetupOtherBWP",
              .given = "",
              .bad = SECOND_BWP "bwp-Id = 2",
              .good = SECOND_BWP
              "bwp-Id = 2\n" SECOND_BWP "bwp-Common.genericParameters.locationAndBandwidth = 1099\n" SECOND_BWP
              "bwp-Common.genericParameters.subcarrierSpacing = kHz30\n" SECOND_BWP
              "bwp-Common.pdcch-ConfigCommon.setup.searchSpaceSIB1 = 0\n" SECOND_BWP "bwp-Dedicated = {}",
              .since = "0.1.0"},
     .run = bwpNewIncomplete},
    {.told = {.id = "bwp-initial-dedicated",
              .severity = RRC_RULE_ERROR,
              .statement = "initialDownlinkBWP and initialUplinkBWP are present where the cell has no other "
                           "bandwidth part of the direction.",
              .advice = "Configure the initial bandwidth part, or add another.",
              .clause = "TS 38.331 ServingCellConfig",
              .given = "",
              .bad = ONLY_INITIAL,
              .good = ONLY_INITIAL "\n" AT_CELL "initialDownlinkBWP.sps-Config.release = null",
              .since = "0.1.0"},
     .run = bwpInitialDedicated},
    {.told = {.id = "bwp-active-ref",
              .severity = RRC_RULE_ERROR,
              .statement = "firstActiveDownlinkBWP-Id and firstActiveUplinkBWP-Id are 0 or name a bandwidth "
                           "part that is configured.",
              .advice = "Add the bandwidth part, or activate one that there is.",
              .clause = "TS 38.331 ServingCellConfig",
              .given = "",
              .bad = AT_CELL "firstActiveDownlinkBWP-Id = 2",
              .good = AT_CELL "firstActiveDownlinkBWP-Id = 1",
              .since = "0.1.0"},
     .run = bwpActiveRef},
    {.told = {.id = "bwp-active-present",
              .severity = RRC_RULE_ERROR,
              .statement = "firstActiveDownlinkBWP-Id and firstActiveUplinkBWP-Id are present with "
                           "reconfigurationWithSync, where they are the same, and when an SCell is added, "
                           "and absent when one is modified.",
              .advice = "Name the bandwidth parts that are active when the UE comes into the cell.",
              .clause = "TS 38.331 ServingCellConfig Cond SyncAndCellAdd",
              .given = "",
              .bad = AT_CELL "firstActiveDownlinkBWP-Id = 0",
              .good = AT_CELL "firstActiveDownlinkBWP-Id = 0\n" AT_UPLINK "firstActiveUplinkBWP-Id = 0",
              .since = "0.1.0"},
     .run = bwpActivePresent},
    {.told = {.id = "bwp-default-ref",
              .severity = RRC_RULE_ERROR,
              .statement = "defaultDownlinkBWP-Id is 0 or names a bandwidth part that is configured; it is "
                           "of use with bwp-InactivityTimer.",
              .advice = "Name a bandwidth part that there is.",
              .clause = "TS 38.331 ServingCellConfig; TS 38.321 5.15",
              .given = "",
              .bad = AT_CELL "defaultDownlinkBWP-Id = 2\n" AT_CELL "bwp-InactivityTimer = ms100",
              .good = AT_CELL "defaultDownlinkBWP-Id = 1\n" AT_CELL "bwp-InactivityTimer = ms100",
              .since = "0.1.0"},
     .run = bwpDefaultRef},
    {.told = {.id = "bwp-release-in-use",
              .severity = RRC_RULE_WARNING,
              .statement =
                  "A bandwidth part that is released is not named by CSI resources, TCI states, PUCCH resources "
                  "of reports or spatial relations any more, unless it is added again.",
              .advice = "Change what names it, too.",
              .clause = "TS 38.331 ServingCellConfig",
              .given = "A delta.",
              .bad = AT_CELL "downlinkBWP-ToReleaseList[0] = 2\n" AT_STATE("2") "qcl-Type1.bwp-Id = 2",
              .good = AT_CELL "downlinkBWP-ToReleaseList[0] = 2\n" AT_STATE("2") "qcl-Type1.bwp-Id = 1",
              .since = "0.1.0"},
     .run = bwpReleaseInUse},
    {.told = {.id = "bwp-ul-needs-common",
              .severity = RRC_RULE_ERROR,
              .statement = "uplinkConfig needs uplinkConfigCommon, supplementaryUplink needs "
                           "supplementaryUplinkConfig, and that needs uplinkConfigCommon; an SCell gets its "
                           "uplink when it is added.",
              .advice = "Add the common part, or drop the dedicated one.",
              .clause = "TS 38.331 ServingCellConfig, ServingCellConfigCommon",
              .given = "",
              .bad = SUPPLEMENTARY,
              .good = SUPPLEMENTARY "\n" SUPPLEMENTARY_COMMON "\n" AT_RACH "rsrp-ThresholdSSB-SUL = 30",
              .since = "0.1.0"},
     .run = bwpUlNeedsCommon},
    {.told = {.id = "bwp-initial-coreset0",
              .severity = RRC_RULE_ERROR,
              .statement = "The initial downlink bandwidth part contains CORESET#0.",
              .advice = "Widen or move it; its first resource block counts from point A with "
                        "offsetToCarrier.",
              .clause = "TS 38.331 DownlinkConfigCommon, BWP; TS 38.213 tables 13-1..13-10",
              .given = "",
              .bad = INITIAL("12925"),
              .good = INITIAL("13038"),
              .since = "0.1.0"},
     .run = bwpInitialCoreset0},
    {.told = {.id = "bwp-spcell-css",
              .severity = RRC_RULE_ERROR,
              .statement = "Each downlink bandwidth part of the SpCell has a common search space.",
              .advice = "Add one to pdcch-ConfigCommon or to PDCCH-Config.",
              .clause = "TS 38.213 12",
              .given = "",
              .bad = WITHOUT_COMMON,
              .good = AT_PDCCH "searchSpacesToAddModList[2].searchSpaceType.common.dci-Format0-0-AndFormat1-0 = {}",
              .since = "0.1.0"},
     .run = bwpSpcellCss},
};

} // namespace

constinit const RuleGroup bwpRules = groupOf(bwpTable);

} // namespace rules
