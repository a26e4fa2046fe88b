// What the members of a bandwidth part and of a cell list by ids.
#ifndef MODEL_MODELLISTS_H
#define MODEL_MODELLISTS_H

#include "model.h"

namespace rules
{

// A CORESET of a bandwidth part other than CORESET#0.
struct Coreset
{
    OSUINT32 id;
    const ControlResourceSet* element;
    bool isCommon; // commonControlResourceSet
    Novelty novelty;
};

struct SearchSpaceEntry
{
    OSUINT32 id;
    const SearchSpace* element;
    bool isCommon; // of commonSearchSpaceList: always new
    Novelty novelty;
};

struct Pdcch
{
    const PDCCH_ConfigCommon* common; // null where absent or unknown
    bool isCommonKnown;               // the element says whether there is one
    Ids<ControlResourceSet> coresets; // of PDCCH-Config
    Ids<SearchSpace> searchSpaces;
    Vector<Coreset> allCoresets; // the common one first, unless PDCCH-Config has one of its id
    Vector<SearchSpaceEntry> allSearchSpaces;

    const Coreset* coreset(OSUINT32 id) const;
    const SearchSpaceEntry* searchSpace(OSUINT32 id) const;
};

struct Pdsch
{
    Ids<TCI_State> tciStates;
    Ids<RateMatchPattern> rateMatchPatterns;
    Ids<ZP_CSI_RS_Resource> zpResources;
    Ids<ZP_CSI_RS_ResourceSet> aperiodicZpSets;
    Ids<ZP_CSI_RS_ResourceSet> semiPersistentZpSets;
    const ZP_CSI_RS_ResourceSet* periodicZpSet;
};

struct Pucch
{
    Ids<PUCCH_Resource> resources;
    Ids<PUCCH_ResourceSet> sets;
    Ids<SchedulingRequestResourceConfig> srResources;
    Ids<PUCCH_SpatialRelationInfo> spatialRelations;
};

struct Pusch
{
    const PUSCH_PowerControl* power;
    Ids<PUSCH_PathlossReferenceRS> pathlossRs;
    Ids<SRI_PUSCH_PowerControl> sriMappings;
    List<P0_PUSCH_AlphaSet> alphaSets;
};

// pusch-TimeDomainAllocationList in force: that of PUSCH-Config, else that of PUSCH-ConfigCommon, else the 16 rows of
// TS 38.214 table 6.1.2.1.1-2, which are not listed here.
struct PuschRows
{
    bool isDefault;
    List<PUSCH_TimeDomainResourceAllocation> rows;

    OSUINT32 count() const
    {
        return isDefault ? 16 : rows.size();
    }
};
Known<PuschRows> puschRows(const Model& model, const Bwp& bwp);

struct Srs
{
    Ids<SRS_ResourceSet> sets;
    Ids<SRS_Resource> resources;
};

// What the CSI-ResourceConfigs that a resource or a set belongs to say of it.
struct CsiUse
{
    OSUINT8 types; // bit resourceType
    OSUINT8 bwps;  // bit bwp-Id

    bool is(CSI_ResourceConfig_resourceType type) const
    {
        return types == 1U << type;
    }
};

struct Csi
{
    const CSI_MeasConfig* config;
    Ids<NZP_CSI_RS_Resource> nzpResources;
    Ids<NZP_CSI_RS_ResourceSet> nzpSets;
    Ids<CSI_IM_Resource> imResources;
    Ids<CSI_IM_ResourceSet> imSets;
    Ids<CSI_SSB_ResourceSet> ssbSets;
    Ids<CSI_ResourceConfig> resourceConfigs;
    Ids<CSI_ReportConfig> reports;
    CsiUse nzpUse[maxNrofNZP_CSI_RS_Resources]; // by the id; nothing set: in no CSI-ResourceConfig that is there
    CsiUse nzpSetUse[maxNrofNZP_CSI_RS_ResourceSets];
    CsiUse imUse[maxNrofCSI_IM_Resources];
    CsiUse imSetUse[maxNrofCSI_IM_ResourceSets];
};

// The sets that a CSI-ResourceConfig names, those that do not resolve left out.
struct CsiSets
{
    const CSI_ResourceConfig* config;
    Vector<const NZP_CSI_RS_ResourceSet*> nzp;
    Vector<const CSI_SSB_ResourceSet*> ssb;
    Vector<const CSI_IM_ResourceSet*> im;
    bool isWhole; // each of them resolved
};
CsiSets csiSets(Model& model, const Csi& csi, const CSI_ResourceConfig& config);

// The resources that a set names, those that do not resolve left out.
Vector<const NZP_CSI_RS_Resource*> nzpResources(Model& model, const Csi& csi, const NZP_CSI_RS_ResourceSet& set);
Vector<const CSI_IM_Resource*> imResources(Model& model, const Csi& csi, const CSI_IM_ResourceSet& set);

// CSI-RS-ResourceMapping: the row of the standard's table, null where it is none of them; nrofPorts as a number, 0
// where it has no value.
const NrCsiRsRow* csiRsRow(const Tree& tree, const CSI_RS_ResourceMapping& mapping);
// frequencyDomainAllocation, null where it is none.
const ASN1BitStr32* csiRsAllocation(const Tree& tree, const CSI_RS_ResourceMapping& mapping);
OSUINT32 portsOf(const CSI_RS_ResourceMapping& mapping);

// CSI-ResourcePeriodicityAndOffset, in slots.
struct Recurrence
{
    OSUINT32 period; // 0: no value
    OSUINT32 offset;
};
Recurrence recurrenceOf(const CSI_ResourcePeriodicityAndOffset& choice);

// CSI-FrequencyOccupation: the common resource blocks that are left of it within a bandwidth part; none where they do
// not meet.
Known<NrSpan> csiBand(const Model& model, const Bwp& bwp, const CSI_FrequencyOccupation& band);
// The common resource blocks of a bandwidth part.
Known<NrSpan> commonRbs(const Model& model, const Bwp& bwp);

// ServingCellConfigCommon.ssb-PositionsInBurst: L bits.
struct SsbPositions
{
    const OSOCTET* bits;
    OSUINT32 count;

    bool isSent(OSUINT32 index) const
    {
        return index < count && hasBit(bits, index);
    }
};
Known<SsbPositions> ssbPositions(const Model& model, const Cell& cell);

// dmrs-TypeA-Position: the symbol, 2 or 3.
Known<OSUINT32> typeAPosition(const Model& model, const Cell& cell);

// What a bandwidth part of the uplink has in common with other UEs; null where it has none.
Known<const RACH_ConfigCommon*> rachCommon(const Model& model, const Bwp& bwp);
Known<const PUSCH_ConfigCommon*> puschCommon(const Model& model, const Bwp& bwp);
// Whether Msg3 is sent with transform precoding; as the initial bandwidth part says where this one has no random
// access.
Known<bool> msg3Precoding(const Model& model, const Bwp& bwp);

// tdd-UL-DL-ConfigurationCommon.
struct TddGrid
{
    NrTddPattern first;
    NrTddPattern second;
    bool hasSecond;
    OSUINT32 muRef;

    const NrTddPattern* secondOrNull() const
    {
        return hasSecond ? &second : nullptr;
    }
    NrSymbolKind kindOf(OSUINT32 mu, OSUINT32 slot, OSUINT32 symbol) const
    {
        return nrTddSymbol(&first, secondOrNull(), muRef, mu, slot, symbol);
    }
};
// Null where the cell has none.
Known<const TDD_UL_DL_ConfigCommon*> tddPattern(const Model& model, const Cell& cell);
NrTddPattern patternOf(const TDD_UL_DL_Pattern& pattern);
// Of a configuration whose numbers fit; unknown also where they do not.
Known<TddGrid> tddGrid(const Model& model, const Cell& cell);
OSUINT32 gridSlots(const TddGrid& grid, OSUINT32 mu);

// The directions of a cell's symbols at a spacing that is not below the reference's.
class TddSlots
{
public:
    TddSlots() = default;
    // `count` slots, at least one, from the start of the patterns on.
    TddSlots(const NrTddSlot* slots, OSUINT32 count) : slots_(slots), count_(count) {}

    // After them it begins again.
    OSUINT32 count() const
    {
        return count_;
    }
    NrTddSlot at(OSUINT32 slot) const
    {
        return slots_[slot % count_];
    }
    bool isAll(OSUINT32 slot, NrSymbolKind kind) const
    {
        return maskOf(slot, kind) == (1U << NR_SYMBOLS) - 1;
    }
    // Whether any of the symbols, consecutive ones of a slot, is of a direction.
    bool has(OSUINT32 slot, NrSpan symbols, NrSymbolKind kind) const
    {
        const OSUINT32 start = std::min<OSUINT32>(symbols.start, NR_SYMBOLS);
        const OSUINT32 size = std::min<OSUINT32>(symbols.size, NR_SYMBOLS);
        const OSUINT32 bits = ((1U << size) - 1) << start;
        return (maskOf(slot, kind) & bits) != 0;
    }

private:
    OSUINT32 maskOf(OSUINT32 slot, NrSymbolKind kind) const
    {
        return kind == NR_SYMBOL_DOWNLINK ? at(slot).downlink : at(slot).uplink;
    }

    const NrTddSlot* slots_ = nullptr;
    OSUINT32 count_ = 0;
};

} // namespace rules

#endif
