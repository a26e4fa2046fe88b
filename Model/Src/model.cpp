#include "model.h"

#include "rtxDelta.h"

namespace rules
{
namespace
{

constexpr OSUINT32 firstFr2Arfcn = 2016667; // 24250.08 MHz

bool isFullElement(const RrcRuleContext& known)
{
    return known.fullConfig != 0 ||
           (known.previous == nullptr &&
            (known.extent == RRC_RULE_EXTENT_FULL ||
             (known.extent == RRC_RULE_EXTENT_UNKNOWN && known.message == RRC_RULE_MESSAGE_SETUP)));
}

// Of the bands that a frequency's list names the first is the cell's.
const FreqBandIndicatorNR* firstBand(const MultiFrequencyBandListNR* list)
{
    const auto bands = entries(list);
    return bands.empty() ? nullptr : bands.data();
}

} // namespace

const CellGroupConfig* stateAfter(OSCTXT& ctxt, const CellGroupConfig& message, const RrcRuleContext& known,
                                  int& status)
{
    if (known.previous == nullptr || known.fullConfig != 0)
    {
        return &message;
    }
    void* const state = rtx::allocateFor(ctxt, sizeof message);
    // What an entry lacks is for the rules to say.
    status = state == nullptr
                 ? int{RTX_E_HEAP}
                 : rtx::apply(ctxt, *asn1Type_CellGroupConfig(), known.previous, &message, state, {.incomplete = true});
    return status == RTX_OK ? static_cast<const CellGroupConfig*>(state) : nullptr;
}

Known<OSUINT32> Bwp::mu() const
{
    if (generic == nullptr)
    {
        return Known<OSUINT32>::unless(missing);
    }
    const OSUINT32 mu = muOf(generic->subcarrierSpacing);
    return mu <= highestMu && !hasNoCarrier ? Known<OSUINT32>(mu) : Known<OSUINT32>::unless(0);
}

Known<NrSpan> Bwp::located() const
{
    if (generic == nullptr)
    {
        return Known<NrSpan>::unless(missing);
    }
    NrSpan span{};
    return nrRivDecode(generic->locationAndBandwidth, NR_LARGEST_CARRIER, &span) != 0 ? Known<NrSpan>(span)
                                                                                      : Known<NrSpan>::unless(0);
}

Bwp* Cell::bwp(Direction direction, OSUINT32 id) const
{
    for (Bwp& bwp : bwps(direction))
    {
        if (bwp.id == id)
        {
            return &bwp;
        }
    }
    return nullptr;
}

Model::Model(Memory& memoryOf, const Tree& treeOf, const CellGroupConfig& element, const CellGroupConfig& after,
             const RrcRuleContext& context)
    : memory(memoryOf),
      tree(treeOf),
      known(context),
      message(element),
      config(after),
      previous(context.fullConfig == 0 ? context.previous : nullptr),
      isFull(isFullElement(context)),
      complete(isFull || previous != nullptr)
{
}

OSUINT8 Model::messageKind() const
{
    if (known.message != RRC_RULE_MESSAGE_UNKNOWN)
    {
        return known.message;
    }
    const SpCellConfig* const spCell = MEMBER(message, spCellConfig);
    const bool isSync = spCell != nullptr && spCell->m.reconfigurationWithSyncPresent != 0;
    return isSync ? RRC_RULE_MESSAGE_SYNC : RRC_RULE_MESSAGE_UNKNOWN;
}

bool Model::isScg() const
{
    return known.group != RRC_RULE_GROUP_UNKNOWN ? known.group == RRC_RULE_GROUP_SCG : config.cellGroupId == 1;
}

const Counterparts& Model::counterparts()
{
    if (!counterparts_.made)
    {
        counterparts_.made = true;
        counterparts_.value.build(memory, tree, *asn1Type_CellGroupConfig(), &config, previous, &message);
    }
    return counterparts_.value;
}

const void* Model::beforeSent(const void* at, size_t size)
{
    if (previous == nullptr)
    {
        return nullptr;
    }
    if (!sentCounterparts_.made)
    {
        sentCounterparts_.made = true;
        sentCounterparts_.value.build(memory, tree, *asn1Type_CellGroupConfig(), &message, previous, nullptr);
    }
    return sentCounterparts_.value.before(at, size);
}

const Ids<SCellConfig>& Model::sCells()
{
    if (!sCells_.made)
    {
        sCells_.made = true;
        sCells_.value = ids<SCellConfig>(
            &config, Novelty::Unknown, &SCellConfig::sCellIndex,
            [](const CellGroupConfig& group) { return MEMBER(group, sCellToAddModList); },
            [](const CellGroupConfig& group) { return MEMBER(group, sCellToReleaseList); });
        for (IdEntry<SCellConfig>& entry : sCells_.value.all)
        {
            // Cond SCellAdd: only what is added brings it.
            const bool isAdded = entry.element->m.sCellConfigCommonPresent != 0;
            entry.novelty = entry.novelty == Novelty::Unknown && isAdded ? Novelty::New : entry.novelty;
        }
    }
    return sCells_.value;
}

std::span<Cell> Model::cells()
{
    if (!cells_.made)
    {
        cells_.made = true;
        makeCells();
    }
    return {cells_.value.begin(), cells_.value.size()};
}

void Model::makeCells()
{
    if (const SpCellConfig* const spCell = MEMBER(config, spCellConfig))
    {
        cells_.value.add(memory, cellOf(spCell, nullptr, noveltyOf(*spCell, Novelty::Unknown)));
    }
    for (const IdEntry<SCellConfig>& entry : sCells())
    {
        cells_.value.add(memory, cellOf(nullptr, entry.element, entry.novelty));
    }
    for (const Cell& cell : cells_.value)
    {
        addBwps(cell);
    }
    for (Cell& cell : cells_.value)
    {
        spanBwps(cell);
        cell.band = bandOf(cell);
        cell.range = rangeOf(cell);
        cell.duplex = duplexOf(cell);
    }
    for (Bwp& bwp : bwps_)
    {
        const Known<NrSpan> rbs = bwp.located();
        const Known<const SCS_SpecificCarrier*> in = carrier(bwp);
        bwp.hasNoCarrier = in && *in == nullptr;
        bwp.isOutside = rbs && in && *in != nullptr && rbs->start + rbs->size > (*in)->carrierBandwidth;
    }
}

Cell Model::cellOf(const SpCellConfig* spCell, const SCellConfig* sCell, Novelty novelty)
{
    const ServingCellConfigCommon* common = nullptr;
    const ServingCellConfig* dedicated = nullptr;
    Known<OSUINT32> index = Known<OSUINT32>::unless(RRC_RULE_INPUT_PREVIOUS);
    if (sCell != nullptr)
    {
        common = MEMBER(*sCell, sCellConfigCommon);
        dedicated = MEMBER(*sCell, sCellConfigDedicated);
        index = OSUINT32{sCell->sCellIndex};
    }
    else if (spCell != nullptr)
    {
        const ReconfigurationWithSync* const sync = MEMBER(*spCell, reconfigurationWithSync);
        common = sync == nullptr ? nullptr : MEMBER(*sync, spCellConfigCommon);
        dedicated = MEMBER(*spCell, spCellConfigDedicated);
        if (spCell->m.servCellIndexPresent != 0)
        {
            index = OSUINT32{spCell->servCellIndex};
        }
        else if (!isScg())
        {
            index = OSUINT32{0};
        }
    }
    const bool isComplete = complete || (sCell != nullptr && novelty == Novelty::New);
    return {spCell,
            sCell,
            common,
            dedicated,
            dedicated == nullptr ? nullptr : MEMBER(*dedicated, uplinkConfig),
            dedicated == nullptr ? nullptr : MEMBER(*dedicated, supplementaryUplink),
            index,
            novelty,
            isComplete,
            Known<OSUINT32>::unless(0),
            Known<RrcRuleRange>::unless(0),
            Known<RrcRuleDuplex>::unless(0),
            {},
            {},
            {},
            nullptr};
}

Cell* Model::spCell()
{
    const std::span<Cell> all = cells();
    return !all.empty() && all[0].isSpCell() ? all.data() : nullptr;
}

Cell* Model::cell(OSUINT32 servCellIndex)
{
    for (Cell& cell : cells())
    {
        if (cell.index && *cell.index == servCellIndex)
        {
            return &cell;
        }
    }
    return nullptr;
}

void Model::addBwps(const Cell& cell)
{
    addBwps(cell, Direction::Downlink);
    if (cell.isSpCell() || cell.uplinkConfig != nullptr || cell.uplinkCommon() != nullptr)
    {
        addBwps(cell, Direction::Uplink);
    }
    if (cell.supplementary != nullptr || cell.supplementaryCommon() != nullptr)
    {
        addBwps(cell, Direction::Supplementary);
    }
}

void Model::addBwps(const Cell& cell, Direction direction)
{
    Bwp initial{};
    initial.direction = direction;
    initial.novelty = cell.novelty;
    if (direction == Direction::Downlink)
    {
        const DownlinkConfigCommon* const common = cell.downlinkCommon();
        initial.downlinkCommon = common == nullptr ? nullptr : MEMBER(*common, initialDownlinkBWP);
        initial.downlinkDedicated = cell.dedicated == nullptr ? nullptr : MEMBER(*cell.dedicated, initialDownlinkBWP);
        addBwp(cell, initial);
        const auto listed = ids<BWP_Downlink>(
            cell.dedicated, cell.novelty, &BWP_Downlink::bwp_Id,
            [](const ServingCellConfig& of) { return MEMBER(of, downlinkBWP_ToAddModList); },
            [](const ServingCellConfig& of) { return MEMBER(of, downlinkBWP_ToReleaseList); });
        for (const IdEntry<BWP_Downlink>& entry : listed)
        {
            Bwp bwp{};
            bwp.id = static_cast<OSUINT8>(entry.id);
            bwp.novelty = entry.novelty;
            bwp.downlink = entry.element;
            bwp.downlinkCommon = MEMBER(*entry.element, bwp_Common);
            bwp.downlinkDedicated = MEMBER(*entry.element, bwp_Dedicated);
            addBwp(cell, bwp);
        }
        return;
    }
    const bool isSul = direction == Direction::Supplementary;
    const UplinkConfigCommon* const common = isSul ? cell.supplementaryCommon() : cell.uplinkCommon();
    const UplinkConfig* const dedicated = isSul ? cell.supplementary : cell.uplinkConfig;
    initial.uplinkCommon = common == nullptr ? nullptr : MEMBER(*common, initialUplinkBWP);
    initial.uplinkDedicated = dedicated == nullptr ? nullptr : MEMBER(*dedicated, initialUplinkBWP);
    addBwp(cell, initial);
    const auto listed = ids<BWP_Uplink>(
        dedicated, cell.novelty, &BWP_Uplink::bwp_Id,
        [](const UplinkConfig& of) { return MEMBER(of, uplinkBWP_ToAddModList); },
        [](const UplinkConfig& of) { return MEMBER(of, uplinkBWP_ToReleaseList); });
    for (const IdEntry<BWP_Uplink>& entry : listed)
    {
        Bwp bwp{};
        bwp.direction = direction;
        bwp.id = static_cast<OSUINT8>(entry.id);
        bwp.novelty = entry.novelty;
        bwp.uplink = entry.element;
        bwp.uplinkCommon = MEMBER(*entry.element, bwp_Common);
        bwp.uplinkDedicated = MEMBER(*entry.element, bwp_Dedicated);
        addBwp(cell, bwp);
    }
}

// With what follows from the parts that are there.
void Model::addBwp(const Cell& cell, Bwp bwp)
{
    bwp.cell = &cell;
    const bool isDownlink = bwp.direction == Direction::Downlink;
    bwp.missing = RRC_RULE_INPUT_PREVIOUS;
    if (bwp.isInitial() && cell.isSpCell())
    {
        bwp.missing = isDownlink                           ? RRC_RULE_INPUT_BWP0_DL
                      : bwp.direction == Direction::Uplink ? RRC_RULE_INPUT_BWP0_UL
                                                           : RRC_RULE_INPUT_COMMON;
        bwp.generic = isDownlink                           ? known.initialDownlinkBwp
                      : bwp.direction == Direction::Uplink ? known.initialUplinkBwp
                                                           : nullptr;
    }
    if (bwp.downlinkCommon != nullptr)
    {
        bwp.generic = &bwp.downlinkCommon->genericParameters;
    }
    if (bwp.uplinkCommon != nullptr)
    {
        bwp.generic = &bwp.uplinkCommon->genericParameters;
    }
    if (const BWP_DownlinkDedicated* const dedicated = bwp.downlinkDedicated)
    {
        bwp.pdcch = tree.setup(MEMBER(*dedicated, pdcch_Config));
        bwp.pdsch = tree.setup(MEMBER(*dedicated, pdsch_Config));
        bwp.sps = tree.setup(MEMBER(*dedicated, sps_Config));
        bwp.rlm = tree.setup(MEMBER(*dedicated, radioLinkMonitoringConfig));
    }
    if (const BWP_UplinkDedicated* const dedicated = bwp.uplinkDedicated)
    {
        bwp.pucch = tree.setup(MEMBER(*dedicated, pucch_Config));
        bwp.pusch = tree.setup(MEMBER(*dedicated, pusch_Config));
        bwp.grant = tree.setup(MEMBER(*dedicated, configuredGrantConfig));
        bwp.srs = tree.setup(MEMBER(*dedicated, srs_Config));
        bwp.bfr = tree.setup(MEMBER(*dedicated, beamFailureRecoveryConfig));
    }
    bwps_.add(memory, bwp);
}

// They stand one behind the other.
void Model::spanBwps(Cell& cell)
{
    for (Bwp& bwp : bwps_)
    {
        if (bwp.cell == &cell)
        {
            std::span<Bwp>& span = bwp.direction == Direction::Downlink ? cell.downlink
                                   : bwp.direction == Direction::Uplink ? cell.uplink
                                                                        : cell.sul;
            span = {span.empty() ? &bwp : span.data(), span.size() + 1};
        }
    }
}

Known<OSUINT32> Model::bandOf(const Cell& cell) const
{
    if (cell.isSpCell() && known.band != 0)
    {
        return OSUINT32{known.band};
    }
    if (const FrequencyInfoDL* const frequency = cell.frequencyDl())
    {
        if (const FreqBandIndicatorNR* const band = firstBand(&frequency->frequencyBandList))
        {
            return OSUINT32{*band};
        }
    }
    return Known<OSUINT32>::unless(cell.isSpCell() ? RRC_RULE_INPUT_BAND : RRC_RULE_INPUT_PREVIOUS);
}

Known<RrcRuleRange> Model::rangeOf(const Cell& cell) const
{
    if (cell.isSpCell() && known.range != RRC_RULE_RANGE_UNKNOWN)
    {
        return static_cast<RrcRuleRange>(known.range);
    }
    if (const NrBand* const band = cell.band ? nrBand(*cell.band) : nullptr)
    {
        return band->fr2 != 0 ? RRC_RULE_RANGE_FR2 : RRC_RULE_RANGE_FR1;
    }
    if (const FrequencyInfoDL* const frequency = cell.frequencyDl())
    {
        return frequency->absoluteFrequencyPointA >= firstFr2Arfcn ? RRC_RULE_RANGE_FR2 : RRC_RULE_RANGE_FR1;
    }
    // Only FR1 has bandwidth parts of 15 and 30 kHz, only FR2 of 120 kHz.
    for (const Direction direction : {Direction::Downlink, Direction::Uplink, Direction::Supplementary})
    {
        for (const Bwp& bwp : cell.bwps(direction))
        {
            const Known<OSUINT32> mu = bwp.mu();
            if (mu && *mu != 2 && *mu != 4)
            {
                return *mu == 3 ? RRC_RULE_RANGE_FR2 : RRC_RULE_RANGE_FR1;
            }
        }
    }
    if (cell.common != nullptr && cell.common->m.ssb_PositionsInBurstPresent != 0 &&
        cell.common->ssb_PositionsInBurst.t == T_ServingCellConfigCommon_ssb_PositionsInBurst_longBitmap)
    {
        return RRC_RULE_RANGE_FR2;
    }
    return Known<RrcRuleRange>::unless(cell.isSpCell() ? RRC_RULE_INPUT_RANGE : RRC_RULE_INPUT_PREVIOUS);
}

Known<RrcRuleDuplex> Model::duplexOf(const Cell& cell) const
{
    if (cell.isSpCell() && known.duplex != RRC_RULE_DUPLEX_UNKNOWN)
    {
        return static_cast<RrcRuleDuplex>(known.duplex);
    }
    if (const NrBand* const band = cell.band ? nrBand(*cell.band) : nullptr)
    {
        return band->duplex == NR_TDD ? RRC_RULE_DUPLEX_TDD : RRC_RULE_DUPLEX_FDD;
    }
    const bool hasPattern = (cell.common != nullptr && cell.common->m.tdd_UL_DL_ConfigurationCommonPresent != 0) ||
                            (cell.isSpCell() && known.tdd != nullptr);
    if (hasPattern)
    {
        return RRC_RULE_DUPLEX_TDD;
    }
    return Known<RrcRuleDuplex>::unless(cell.isSpCell() ? RRC_RULE_INPUT_DUPLEX : RRC_RULE_INPUT_PREVIOUS);
}

bool Model::isReleased(const Cell& cell, Direction direction, OSUINT32 bwpId)
{
    const ServingCellConfig* const sent = cell.dedicated == nullptr ? nullptr : this->sent(*cell.dedicated);
    if (sent == nullptr || cell.bwp(direction, bwpId) != nullptr)
    {
        return false;
    }
    const auto isIn = [&](const auto& list)
    {
        return std::find(list.begin(), list.end(), bwpId) != list.end();
    };
    if (direction == Direction::Downlink)
    {
        return isIn(entries(MEMBER(*sent, downlinkBWP_ToReleaseList)));
    }
    const UplinkConfig* const uplink =
        direction == Direction::Uplink ? MEMBER(*sent, uplinkConfig) : MEMBER(*sent, supplementaryUplink);
    return uplink != nullptr && isIn(entries(MEMBER(*uplink, uplinkBWP_ToReleaseList)));
}

Known<Carriers> Model::carriers(const Cell& cell, Direction direction) const
{
    Carriers carriers{};
    const auto add = [&](const SCS_SpecificCarrier& carrier)
    {
        if (carriers.count < maxSCSs)
        {
            carriers.of[carriers.count++] = &carrier;
        }
    };
    const OSRTDList* list = nullptr;
    if (direction == Direction::Downlink)
    {
        list = cell.frequencyDl() == nullptr ? nullptr : &cell.frequencyDl()->scs_SpecificCarrierList;
    }
    else
    {
        const FrequencyInfoUL* const frequency =
            direction == Direction::Uplink ? cell.frequencyUl() : cell.frequencySul();
        list = frequency == nullptr ? nullptr : &frequency->scs_SpecificCarrierList;
    }
    if (list != nullptr)
    {
        for (const SCS_SpecificCarrier& carrier : tree.list<SCS_SpecificCarrier>(list))
        {
            add(carrier);
        }
        return carriers;
    }
    if (!cell.isSpCell())
    {
        return Known<Carriers>::unless(RRC_RULE_INPUT_PREVIOUS);
    }
    if (direction == Direction::Supplementary)
    {
        return Known<Carriers>::unless(RRC_RULE_INPUT_COMMON);
    }
    const bool isDownlink = direction == Direction::Downlink;
    const SCS_SpecificCarrier* const told = isDownlink ? known.carriersDl : known.carriersUl;
    if (told == nullptr)
    {
        return Known<Carriers>::unless(RRC_RULE_INPUT_CARRIERS);
    }
    for (const SCS_SpecificCarrier& carrier : std::span(told, isDownlink ? known.numCarriersDl : known.numCarriersUl))
    {
        add(carrier);
    }
    return carriers;
}

Known<const SCS_SpecificCarrier*> Model::carrier(const Bwp& bwp) const
{
    using Found = Known<const SCS_SpecificCarrier*>;
    const Known<Carriers> all = carriers(*bwp.cell, bwp.direction);
    if (!all || bwp.generic == nullptr)
    {
        return Found::unless(all.inputs() | (bwp.generic == nullptr ? bwp.missing : 0));
    }
    for (const SCS_SpecificCarrier* const carrier : *all)
    {
        if (carrier->subcarrierSpacing == bwp.generic->subcarrierSpacing)
        {
            return carrier;
        }
    }
    return static_cast<const SCS_SpecificCarrier*>(nullptr);
}

const Ids<RLC_BearerConfig>& Model::bearers()
{
    if (!bearers_.made)
    {
        bearers_.made = true;
        bearers_.value = ids<RLC_BearerConfig>(
            &config, Novelty::Unknown, &RLC_BearerConfig::logicalChannelIdentity,
            [](const CellGroupConfig& group) { return MEMBER(group, rlc_BearerToAddModList); },
            [](const CellGroupConfig& group) { return MEMBER(group, rlc_BearerToReleaseList); });
    }
    return bearers_.value;
}

std::span<Channel> Model::channels()
{
    if (!channels_.made)
    {
        channels_.made = true;
        for (const IdEntry<RLC_BearerConfig>& entry : bearers())
        {
            addChannel(entry);
        }
    }
    return {channels_.value.begin(), channels_.value.size()};
}

void Model::addChannel(const IdEntry<RLC_BearerConfig>& entry)
{
    const RLC_BearerConfig& bearer = *entry.element;
    Channel channel{&bearer, entry.id, entry.novelty, Known<bool>::unless(RRC_RULE_INPUT_PREVIOUS), 0, nullptr};
    if (const auto* const served = MEMBER(bearer, servedRadioBearer))
    {
        const bool isSrb = served->t == T_RLC_BearerConfig_servedRadioBearer_srb_Identity;
        if (isSrb || served->t == T_RLC_BearerConfig_servedRadioBearer_drb_Identity)
        {
            channel.isSrb = isSrb;
            channel.bearerId = isSrb ? served->u.srb_Identity : served->u.drb_Identity;
        }
    }
    if (const LogicalChannelConfig* const mac = MEMBER(bearer, mac_LogicalChannelConfig))
    {
        channel.uplink = MEMBER(*mac, ul_SpecificParameters);
    }
    channels_.value.add(memory, channel);
}

const Ids<SchedulingRequestToAddMod>& Model::schedulingRequests()
{
    if (!schedulingRequests_.made)
    {
        schedulingRequests_.made = true;
        schedulingRequests_.value = ids<SchedulingRequestToAddMod>(
            mac() == nullptr ? nullptr : MEMBER(*mac(), schedulingRequestConfig), Novelty::Unknown,
            &SchedulingRequestToAddMod::schedulingRequestId,
            [](const SchedulingRequestConfig& of) { return MEMBER(of, schedulingRequestToAddModList); },
            [](const SchedulingRequestConfig& of) { return MEMBER(of, schedulingRequestToReleaseList); });
    }
    return schedulingRequests_.value;
}

const Ids<TAG>& Model::tags()
{
    if (!tags_.made)
    {
        tags_.made = true;
        tags_.value = ids<TAG>(
            mac() == nullptr ? nullptr : MEMBER(*mac(), tag_Config), Novelty::Unknown, &TAG::tag_Id,
            [](const TAG_Config& of) { return MEMBER(of, tag_ToAddModList); },
            [](const TAG_Config& of) { return MEMBER(of, tag_ToReleaseList); });
    }
    return tags_.value;
}

} // namespace rules
