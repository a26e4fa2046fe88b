// The configuration as rules speak of it: cells, bandwidth parts, what is listed by ids. Made of the element, of what
// was configured before it, and of what is known besides; each part when the first rule asks for it, once.
#ifndef MODEL_MODEL_H
#define MODEL_MODEL_H

#include "counterparts.h"
#include "ids.h"
#include "memory.h"
#include "nrFormulas.h"
#include "rrcContext.h"
#include "tree.h"

namespace rules
{

// A value, or what would have to be known to have it.
template <typename T>
class Known
{
public:
    Known(const T& value) : value_(value), known_(true) {}

    // Not known; any of the inputs, RrcRuleInput bits, would tell it. 0: nothing would, the element is broken.
    static Known unless(OSUINT32 inputs)
    {
        return Known(inputs, 0);
    }

    explicit operator bool() const
    {
        return known_;
    }
    const T& operator*() const
    {
        return value_;
    }
    const T* operator->() const
    {
        return &value_;
    }
    OSUINT32 inputs() const
    {
        return inputs_;
    }

private:
    Known(OSUINT32 inputs, int) : inputs_(inputs) {}

    T value_{};
    OSUINT32 inputs_ = 0;
    bool known_ = false;
};

enum class Direction : OSUINT8
{
    Downlink,
    Uplink,
    Supplementary // uplink
};

// What a message calls kHz15 to kHz240, as log2; a value that is none of them is above 4.
inline OSUINT32 muOf(SubcarrierSpacing scs)
{
    return scs;
}
constexpr OSUINT32 highestMu = 4;

inline OSUINT32 khzOf(OSUINT32 mu)
{
    return mu <= highestMu ? 15U << mu : 0;
}

struct Cell;
struct Pdcch;
struct Pdsch;
struct Pucch;
struct Pusch;
struct Srs;
struct Csi;
struct TddGrid;
class TddSlots;

// A bandwidth part after the message. The initial ones are there, too, whatever is known of them.
struct Bwp
{
    const Cell* cell;
    Direction direction;
    OSUINT8 id; // 0: the initial one
    Novelty novelty;
    const BWP_Downlink* downlink; // its entry; null for the initial one and for an uplink
    const BWP_Uplink* uplink;
    const BWP_DownlinkCommon* downlinkCommon; // null where the element does not have it
    const BWP_UplinkCommon* uplinkCommon;
    const BWP_DownlinkDedicated* downlinkDedicated;
    const BWP_UplinkDedicated* uplinkDedicated;
    const BWP* generic;        // null where it is unknown; perhaps of the context
    OSUINT32 missing;          // RrcRuleInput bits: what would tell it
    bool isOutside;            // of its carrier, which bwp-in-carrier tells
    bool hasNoCarrier;         // of its spacing, which bwp-scs-carrier tells
    const PDCCH_Config* pdcch; // what the dedicated part sets up
    const PDSCH_Config* pdsch;
    const SPS_Config* sps;
    const RadioLinkMonitoringConfig* rlm;
    const PUCCH_Config* pucch;
    const PUSCH_Config* pusch;
    const ConfiguredGrantConfig* grant;
    const SRS_Config* srs;
    const BeamFailureRecoveryConfig* bfr;

    // What its members list, made when the model is first asked for it.
    struct
    {
        const Pdcch* pdcch;
        const Pdsch* pdsch;
        const Pucch* pucch;
        const Pusch* pusch;
        const Srs* srs;
    } lists;

    bool isInitial() const
    {
        return id == 0;
    }
    // Whether `generic` is of the element, so that something can be said of it.
    bool isTold() const
    {
        return downlinkCommon != nullptr || uplinkCommon != nullptr;
    }
    // log2(spacing / 15 kHz), where there is a carrier of it.
    Known<OSUINT32> mu() const;
    // Resource blocks from its carrier's first: as locationAndBandwidth says, and where they lie in the carrier.
    Known<NrSpan> located() const;
    Known<NrSpan> rbs() const
    {
        return isOutside ? Known<NrSpan>::unless(0) : located();
    }
    // The cyclic prefix, which only 60 kHz can have so; false where it is unknown.
    bool isExtended() const
    {
        return generic != nullptr && generic->m.cyclicPrefixPresent != 0 && muOf(generic->subcarrierSpacing) == 2;
    }
    OSUINT32 symbolsPerSlot() const
    {
        return isExtended() ? NR_SYMBOLS_EXTENDED : NR_SYMBOLS;
    }
};

struct Cell
{
    const SpCellConfig* spCell; // null for an SCell
    const SCellConfig* sCell;
    const ServingCellConfigCommon* common; // null where the element does not have it
    const ServingCellConfig* dedicated;
    const UplinkConfig* uplinkConfig; // dedicated
    const UplinkConfig* supplementary;
    Known<OSUINT32> index; // ServCellIndex
    Novelty novelty;
    bool complete; // nothing of it was configured before, or that is known
    Known<OSUINT32> band;
    Known<RrcRuleRange> range;
    Known<RrcRuleDuplex> duplex;
    std::span<Bwp> downlink; // bandwidth parts, the initial one first
    std::span<Bwp> uplink;   // empty where the element shows no uplink
    std::span<Bwp> sul;
    const Csi* csi; // made when the model is first asked for it

    bool isSpCell() const
    {
        return spCell != nullptr;
    }
    const DownlinkConfigCommon* downlinkCommon() const
    {
        return common == nullptr ? nullptr : MEMBER(*common, downlinkConfigCommon);
    }
    const UplinkConfigCommon* uplinkCommon() const
    {
        return common == nullptr ? nullptr : MEMBER(*common, uplinkConfigCommon);
    }
    const UplinkConfigCommon* supplementaryCommon() const
    {
        return common == nullptr ? nullptr : MEMBER(*common, supplementaryUplinkConfig);
    }
    const FrequencyInfoDL* frequencyDl() const
    {
        return downlinkCommon() == nullptr ? nullptr : MEMBER(*downlinkCommon(), frequencyInfoDL);
    }
    const FrequencyInfoUL* frequencyUl() const
    {
        return uplinkCommon() == nullptr ? nullptr : MEMBER(*uplinkCommon(), frequencyInfoUL);
    }
    const FrequencyInfoUL* frequencySul() const
    {
        return supplementaryCommon() == nullptr ? nullptr : MEMBER(*supplementaryCommon(), frequencyInfoUL);
    }
    std::span<Bwp> bwps(Direction direction) const
    {
        return direction == Direction::Downlink ? downlink : direction == Direction::Uplink ? uplink : sul;
    }
    Bwp* bwp(Direction direction, OSUINT32 id) const; // null where the element does not have it
};

constexpr Direction directions[] = {Direction::Downlink, Direction::Uplink, Direction::Supplementary};

inline const char* nameOf(Direction direction)
{
    return direction == Direction::Downlink ? "downlink"
           : direction == Direction::Uplink ? "uplink"
                                            : "supplementary uplink";
}

// The carriers of a direction, of different spacings.
struct Carriers
{
    const SCS_SpecificCarrier* of[maxSCSs];
    OSUINT32 count;

    const SCS_SpecificCarrier* const* begin() const
    {
        return of;
    }
    const SCS_SpecificCarrier* const* end() const
    {
        return of + count;
    }
};

// A logical channel with the bearer that it serves.
struct Channel
{
    const RLC_BearerConfig* bearer;
    OSUINT32 id;
    Novelty novelty;
    Known<bool> isSrb;
    OSUINT32 bearerId; // srb-Identity or drb-Identity; of meaning where isSrb is known
    const LogicalChannelConfig_ul_SpecificParameters* uplink; // null where absent
};

// What the message leads to, in the context's heap; null where it cannot be applied, with `status`.
const CellGroupConfig* stateAfter(OSCTXT& ctxt, const CellGroupConfig& message, const RrcRuleContext& known,
                                  int& status);

class Model
{
public:
    // `after` is what rules judge: the message's element, or the state that it leads to.
    Model(Memory& memory, const Tree& tree, const CellGroupConfig& message, const CellGroupConfig& after,
          const RrcRuleContext& known);

    Model(const Model&) = delete;
    Model& operator=(const Model&) = delete;

    Memory& memory;
    const Tree& tree;
    const RrcRuleContext& known;
    const CellGroupConfig& message;
    const CellGroupConfig& config;         // the state after the message
    const CellGroupConfig* const previous; // null where it is not known, or nothing was configured
    const bool isFull;                     // the element is all that the UE has
    const bool complete;                   // nothing is missing: that, or the previous configuration is known

    // The kind of the message, as told or, for a handover, as the element shows.
    OSUINT8 messageKind() const;
    // MCG or SCG, as told or as cellGroupId says.
    bool isScg() const;

    const MAC_CellGroupConfig* mac() const
    {
        return MEMBER(config, mac_CellGroupConfig);
    }
    const PhysicalCellGroupConfig* phy() const
    {
        return MEMBER(config, physicalCellGroupConfig);
    }

    // The SpCell, where the element has it, and the SCells.
    std::span<Cell> cells();
    Cell* spCell();
    Cell* cell(OSUINT32 servCellIndex); // null where the element does not have it
    const Ids<SCellConfig>& sCells();
    // Whether this message releases a bandwidth part, for good.
    bool isReleased(const Cell& cell, Direction direction, OSUINT32 bwpId);

    std::span<Channel> channels();
    const Ids<RLC_BearerConfig>& bearers();
    const Ids<SchedulingRequestToAddMod>& schedulingRequests();
    const Ids<TAG>& tags();

    // Whether what is absent of a bandwidth part is absent in truth: nothing of it was configured before, or that is
    // known.
    bool isWhole(const Bwp& bwp) const
    {
        return complete || bwp.novelty == Novelty::New;
    }

    // What members of a bandwidth part or a cell list: modelLists.h.
    const Pdcch& pdcch(Bwp& bwp);
    const Pdsch& pdsch(Bwp& bwp);
    const Pucch& pucch(Bwp& bwp);
    const Pusch& pusch(Bwp& bwp);
    const Srs& srs(Bwp& bwp);
    const Csi& csi(Cell& cell);
    TddSlots tddSlots(const Cell& cell, const TddGrid& grid, OSUINT32 mu);

    Known<Carriers> carriers(const Cell& cell, Direction direction) const;
    // The carrier that a bandwidth part lies in; null where the list has none of its spacing.
    Known<const SCS_SpecificCarrier*> carrier(const Bwp& bwp) const;

    // The same element before the message, and in it; null where there is none.
    template <typename T>
    const T* before(const T& element)
    {
        return previous == nullptr ? nullptr : counterparts().before(element);
    }
    template <typename T>
    const T* sent(const T& element)
    {
        return &config == &message ? &element : counterparts().sent(element);
    }

    // What a sequence of the message was before it.
    const void* beforeSent(const void* at, size_t size);

    // Whether an element of `owner` was there before the message.
    template <typename T>
    Novelty noveltyOf(const T& element, Novelty owner)
    {
        // What is released and added again takes nothing over.
        return owner == Novelty::New || isFull ? Novelty::New
               : previous == nullptr           ? Novelty::Unknown
               : before(element) == nullptr    ? Novelty::New
                                               : Novelty::Old;
    }

    // What *owner, null where it is absent, lists by ids. `added` and `removed` give its two lists, or null.
    template <typename T, typename Owner, typename Id, typename Added, typename Removed>
    Ids<T> ids(const Owner* owner, Novelty ownerNovelty, Id T::*id, const Added& added, const Removed& removed)
    {
        Ids<T> result;
        result.complete = complete || ownerNovelty == Novelty::New;
        if (owner == nullptr)
        {
            return result;
        }
        if (const Owner* const inMessage = sent(*owner))
        {
            for (const auto gone : entries(removed(*inMessage)))
            {
                result.released.add(memory, gone);
            }
        }
        for (const T& element : tree.list<T>(added(*owner)))
        {
            const auto number = static_cast<OSUINT32>(element.*id);
            const bool isAgain =
                std::find(result.released.begin(), result.released.end(), number) != result.released.end() &&
                sent(element) != nullptr;
            result.all.add(memory, {number, &element, isAgain ? Novelty::New : noveltyOf(element, ownerNovelty)});
        }
        result.index(memory);
        return result;
    }

private:
    struct TddEntry
    {
        const Cell* cell;
        OSUINT32 mu;
        const NrTddSlot* slots;
    };

    // Made when it is asked for.
    template <typename T>
    struct Lazy
    {
        bool made = false;
        T value{};
    };

    const Counterparts& counterparts();
    void makeCells();
    Cell cellOf(const SpCellConfig* spCell, const SCellConfig* sCell, Novelty novelty);
    void addBwps(const Cell& cell);
    void addBwps(const Cell& cell, Direction direction);
    void addBwp(const Cell& cell, Bwp bwp);
    void spanBwps(Cell& cell);
    void addChannel(const IdEntry<RLC_BearerConfig>& entry);
    Known<OSUINT32> bandOf(const Cell& cell) const;
    Known<RrcRuleRange> rangeOf(const Cell& cell) const;
    Known<RrcRuleDuplex> duplexOf(const Cell& cell) const;

    Lazy<Counterparts> counterparts_;
    Lazy<Counterparts> sentCounterparts_;
    Lazy<Vector<Cell>> cells_;
    Vector<Bwp> bwps_;
    Vector<TddEntry> tdd_;
    Lazy<Ids<SCellConfig>> sCells_;
    Lazy<Ids<RLC_BearerConfig>> bearers_;
    Lazy<Vector<Channel>> channels_;
    Lazy<Ids<SchedulingRequestToAddMod>> schedulingRequests_;
    Lazy<Ids<TAG>> tags_;
};

} // namespace rules

#endif
