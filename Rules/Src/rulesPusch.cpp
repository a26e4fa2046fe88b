// PUSCH and configured grants.
#include "examplePaths.h"
#include "rules.h"
#include "uplink.h"

namespace rules
{
namespace
{

using TypeOne = ConfiguredGrantConfig_rrc_ConfiguredUplinkGrant;

// What a configuration of PUSCH sets up for its two mapping types; null where it does not.
struct Dmrs
{
    const DMRS_UplinkConfig* a;
    const DMRS_UplinkConfig* b;
};

Dmrs dmrsOf(const Tree& tree, const PUSCH_Config& pusch)
{
    return {tree.setup(MEMBER(pusch, dmrs_UplinkForPUSCH_MappingTypeA)),
            tree.setup(MEMBER(pusch, dmrs_UplinkForPUSCH_MappingTypeB))};
}

// Each configuration of PUSCH and of a configured grant.
template <typename Each>
void forPusch(Check& check, const Each& each)
{
    forUplinks(check,
               [&](Cell&, Bwp& bwp)
               {
                   if (bwp.pusch != nullptr)
                   {
                       each(bwp, *bwp.pusch);
                   }
               });
}

template <typename Each>
void forGrants(Check& check, const Each& each)
{
    forUplinks(check,
               [&](Cell&, Bwp& bwp)
               {
                   if (bwp.grant != nullptr)
                   {
                       each(bwp, *bwp.grant);
                   }
               });
}

// Those of type 1, which RRC alone configures.
template <typename Each>
void forTypeOne(Check& check, const Each& each)
{
    forGrants(check,
              [&](Bwp& bwp, const ConfiguredGrantConfig& grant)
              {
                  if (const TypeOne* const typeOne = MEMBER(grant, rrc_ConfiguredUplinkGrant))
                  {
                      each(bwp, grant, *typeOne);
                  }
              });
}

// Whether transform precoding is on, of a PUSCH-Config or a ConfiguredGrantConfig: as Msg3 has it where it is absent.
template <typename Config>
Known<bool> precoding(const Model& model, const Bwp& bwp, const Config& config)
{
    static_assert(PUSCH_Config_transformPrecoder_enabled == 0 && ConfiguredGrantConfig_transformPrecoder_enabled == 0);
    if (config.m.transformPrecoderPresent != 0)
    {
        return config.transformPrecoder == 0;
    }
    return msg3Precoding(model, bwp);
}

// The symbols of a row lie in the slot, as its mapping type has them.
void checkTimes(Check& check, const Bwp& bwp, const OSRTDList* list)
{
    for (const auto& row : check.tree.list<PUSCH_TimeDomainResourceAllocation>(list))
    {
        const bool isTypeB = row.mappingType == PUSCH_TimeDomainResourceAllocation_mappingType_typeB;
        NrSpan symbols{};
        if (nrSlivDecode(row.startSymbolAndLength, &symbols) == 0)
        {
            check.error(&row.startSymbolAndLength).allowed("0..104 stand for a start and a length");
        }
        else if (nrPuschSymbolsAllowed(isTypeB ? 1 : 0, bwp.isExtended() ? 1 : 0, symbols) == 0)
        {
            check.error(&row.startSymbolAndLength)
                .found("%u: %u symbols from symbol %u on", row.startSymbolAndLength, symbols.size, symbols.start)
                .allowed("mapping type %s in a slot of %u symbols",
                         isTypeB ? "B ends"
                                 : "A begins at symbol 0, has at "
                                   "least 4, and ends",
                         bwp.symbolsPerSlot());
        }
    }
}

void puschTdra(Check& check)
{
    forUplinks(
        check,
        [&](Cell&, const Bwp& bwp)
        {
            const PUSCH_ConfigCommon* const common =
                bwp.uplinkCommon == nullptr ? nullptr : check.tree.setup(MEMBER(*bwp.uplinkCommon, pusch_ConfigCommon));
            checkTimes(check, bwp, common == nullptr ? nullptr : MEMBER(*common, pusch_TimeDomainAllocationList));
            if (bwp.pusch != nullptr)
            {
                checkTimes(check, bwp, check.tree.setup(MEMBER(*bwp.pusch, pusch_TimeDomainAllocationList)));
            }
        });
}

// codebookSubset and maxRank are there with txConfig codebook, and with nothing else.
template <typename T>
void codebookCond(Check& check, bool isCodebook, bool isPresent, const T* at)
{
    if (isCodebook && !isPresent)
    {
        check.error(at).allowed("txConfig is codebook");
    }
    if (!isCodebook && isPresent)
    {
        check.error(at).allowed("txConfig is not codebook").advice("Take it away.");
    }
}

bool isCodebook(const PUSCH_Config& pusch)
{
    return pusch.m.txConfigPresent != 0 && pusch.txConfig == PUSCH_Config_txConfig_codebook;
}

bool isNonCodebook(const PUSCH_Config& pusch)
{
    return pusch.m.txConfigPresent != 0 && pusch.txConfig == PUSCH_Config_txConfig_nonCodebook;
}

void puschCodebookCond(Check& check)
{
    forPusch(check,
             [&](Bwp& bwp, const PUSCH_Config& pusch)
             {
                 const bool hasSubset = pusch.m.codebookSubsetPresent != 0;
                 const bool hasRank = pusch.m.maxRankPresent != 0;
                 const Srs& srs = check.model.srs(bwp);
                 const bool isSoundedFor = srsSetFor(srs, SRS_ResourceSet_usage_codebook) != nullptr;
                 if (hasSubset && hasRank && isNonCodebook(pusch) && isSoundedFor)
                 {
                     return; // pusch-txconfig-srs
                 }
                 if (hasSubset == hasRank && hasSubset != isCodebook(pusch))
                 {
                     check.error(&pusch.txConfig)
                         .allowed(hasSubset ? "codebookSubset and maxRank go with codebook"
                                            : "there is neither codebookSubset nor maxRank");
                     return;
                 }
                 codebookCond(check, isCodebook(pusch), hasSubset, &pusch.codebookSubset);
                 codebookCond(check, isCodebook(pusch), hasRank, &pusch.maxRank);
             });
}

const OSUINT8* mostLayers(const Check& check, const Bwp& bwp)
{
    const UplinkConfig* const uplink = bwp.cell->uplinkConfig;
    const PUSCH_ServingCellConfig* const config =
        uplink == nullptr ? nullptr : check.tree.setup(MEMBER(*uplink, pusch_ServingCellConfig));
    return config == nullptr ? nullptr : ADDITION(*config, 2, maxMIMO_Layers);
}

// maxRank is maxMIMO-Layers, and there are as many antenna ports.
void puschMaxrank(Check& check)
{
    forPusch(check,
             [&](Bwp& bwp, const PUSCH_Config& pusch)
             {
                 const OSUINT8* const maxRank = MEMBER(pusch, maxRank);
                 if (maxRank == nullptr)
                 {
                     return;
                 }
                 // It is the layers of the uplink that is not supplementary.
                 const OSUINT8* const layers = bwp.direction == Direction::Uplink ? mostLayers(check, bwp) : nullptr;
                 const Known<OSUINT32> ports = codebookPorts(check.model, bwp);
                 if (layers != nullptr && *layers != *maxRank)
                 {
                     check.error(maxRank).allowed("maxMIMO-Layers is %u", *layers);
                 }
                 else if (isCodebook(pusch) && ports && *maxRank > *ports)
                 {
                     check.warning(maxRank)
                         .allowed("the sounding resources for codebook have %u port%s", *ports, *ports == 1 ? "" : "s")
                         .advice("Lower it, or give the sounding resources as many ports.");
                 }
             });
}

// With two ports nothing is partially coherent.
void puschSubsetPorts(Check& check)
{
    forPusch(check,
             [&](Bwp& bwp, const PUSCH_Config& pusch)
             {
                 const auto* const subset = MEMBER(pusch, codebookSubset);
                 const bool isPartial =
                     subset != nullptr && *subset == PUSCH_Config_codebookSubset_partialAndNonCoherent;
                 if (!isPartial || !isCodebook(pusch))
                 {
                     return;
                 }
                 const Known<OSUINT32> ports = codebookPorts(check.model, bwp);
                 if (check.decided(ports) && *ports == 2)
                 {
                     check.error(subset).allowed("the sounding resources for codebook have 2 ports");
                 }
             });
}

// A transmission with sounding has its set.
void puschTxconfigSrs(Check& check)
{
    forPusch(check,
             [&](Bwp& bwp, const PUSCH_Config& pusch)
             {
                 if (!isCodebook(pusch) && !isNonCodebook(pusch))
                 {
                     return;
                 }
                 const Srs& srs = check.model.srs(bwp);
                 const auto usage =
                     isCodebook(pusch) ? SRS_ResourceSet_usage_codebook : SRS_ResourceSet_usage_nonCodebook;
                 if (srsSetFor(srs, usage) == nullptr)
                 {
                     check.missing(srs.sets.complete, &pusch.txConfig)
                         .allowed("no sounding resource set of the bandwidth part has that usage");
                 }
             });
}

// With transform precoding: allocation type 1, DM-RS type 1, one layer.
void checkDmrsType(Check& check, const DMRS_UplinkConfig* dmrs)
{
    if (dmrs != nullptr && dmrs->m.dmrs_TypePresent != 0)
    {
        check.error(&dmrs->dmrs_Type).allowed("transform precoding is enabled, which has DM-RS of type 1");
    }
}

bool isTypeTwo(const DMRS_UplinkConfig* dmrs)
{
    return dmrs != nullptr && dmrs->m.dmrs_TypePresent != 0;
}

void dftsOfPusch(Check& check, const Bwp& bwp, const PUSCH_Config& pusch)
{
    const Dmrs dmrs = dmrsOf(check.tree, pusch);
    const bool isTypeOneOnly = pusch.resourceAllocation == PUSCH_Config_resourceAllocation_resourceAllocationType1;
    const bool hasLayers = pusch.m.maxRankPresent != 0 && pusch.maxRank > 1;
    const bool asks = !isTypeOneOnly || hasLayers || isTypeTwo(dmrs.a) || isTypeTwo(dmrs.b);
    if (asks)
    {
        const Known<bool> enabled = precoding(check.model, bwp, pusch);
        if (!check.decided(enabled) || !*enabled)
        {
            return;
        }
        if (pusch.resourceAllocation == PUSCH_Config_resourceAllocation_resourceAllocationType0)
        {
            check.error(&pusch.resourceAllocation).allowed("transform precoding is enabled, which has type 1 alone");
        }
        else if (pusch.resourceAllocation == PUSCH_Config_resourceAllocation_dynamicSwitch)
        {
            check.warning(&pusch.resourceAllocation)
                .allowed("transform precoding is enabled, which has type 1 alone")
                .advice("Set resourceAllocationType1, which saves a bit of each grant.");
        }
        checkDmrsType(check, dmrs.a);
        checkDmrsType(check, dmrs.b);
        if (hasLayers)
        {
            check.warning(&pusch.maxRank)
                .allowed("transform precoding is enabled, which has one layer")
                .advice("Set maxRank to 1.");
        }
    }
}

void puschDfts(Check& check)
{
    forPusch(check,
             [&](const Bwp& bwp, const PUSCH_Config& pusch)
             {
                 dftsOfPusch(check, bwp, pusch);
                 // A grant of the fallback format is precoded as Msg3 is.
                 const Known<bool> own = precoding(check.model, bwp, pusch);
                 const Known<bool> msg3 = msg3Precoding(check.model, bwp);
                 if (pusch.m.tp_pi2BPSKPresent != 0 && own && !*own && msg3 && !*msg3)
                 {
                     check.warning(&pusch.tp_pi2BPSK)
                         .allowed("transform precoding is disabled")
                         .advice("Enable transform precoding, or take the field away.");
                 }
             });
    forGrants(check,
              [&](const Bwp& bwp, const ConfiguredGrantConfig& grant)
              {
                  const bool isTypeZero =
                      grant.resourceAllocation == ConfiguredGrantConfig_resourceAllocation_resourceAllocationType0;
                  if (!isTypeZero && !isTypeTwo(&grant.cg_DMRS_Configuration))
                  {
                      return;
                  }
                  const Known<bool> enabled = precoding(check.model, bwp, grant);
                  if (!check.decided(enabled) || !*enabled)
                  {
                      return;
                  }
                  if (isTypeZero)
                  {
                      check.error(&grant.resourceAllocation)
                          .allowed("transform precoding is enabled, which has type 1 alone");
                  }
                  checkDmrsType(check, &grant.cg_DMRS_Configuration);
              });
}

// A set of p0-AlphaSets, which is replaced as a whole.
template <typename Id>
void alphaRef(Check& check, Bwp& bwp, const Id* id)
{
    const Pusch& pusch = check.model.pusch(bwp);
    for (const P0_PUSCH_AlphaSet& set : pusch.alphaSets)
    {
        if (set.p0_PUSCH_AlphaSetId == *id)
        {
            return;
        }
    }
    const bool isKnown =
        check.model.isWhole(bwp) || (pusch.power != nullptr && pusch.power->m.p0_AlphaSetsPresent != 0);
    check.missing(isKnown, id).allowed("p0-AlphaSets has no set %u", *id);
}

// A pathloss reference, where there are any: without, the block of the MIB is measured.
template <typename Id>
void pathlossRef(Check& check, Bwp& bwp, const Id* id)
{
    const Pusch& pusch = check.model.pusch(bwp);
    if (!pusch.pathlossRs.empty() || !pusch.pathlossRs.complete)
    {
        check.resolve(pusch.pathlossRs, *id, id, "a PUSCH pathloss reference");
    }
}

// Values that the SRI field of a DCI can have; 0 where that is not known, or where it has no bits.
OSUINT32 sriValues(Check& check, Bwp& bwp, const PUSCH_Config& pusch)
{
    const Srs& srs = check.model.srs(bwp);
    const SRS_ResourceSet* const set =
        srsSetFor(srs, isCodebook(pusch) ? SRS_ResourceSet_usage_codebook : SRS_ResourceSet_usage_nonCodebook);
    const SrsSet used = set == nullptr ? SrsSet{} : srsSet(check.model, srs, *set);
    const auto resources = static_cast<OSUINT32>(used.resources.size());
    // Without codebook each resource alone is a value, whatever else is.
    return pusch.m.txConfigPresent != 0 && used.isWhole && resources > 1 ? resources : 0;
}

void sriCoverage(Check& check, Bwp& bwp, const PUSCH_Config& pusch)
{
    const Pusch& lists = check.model.pusch(bwp);
    const OSUINT32 values = sriValues(check, bwp, pusch);
    if (lists.sriMappings.empty() || !lists.sriMappings.complete)
    {
        return;
    }
    for (OSUINT32 value = 0; value < values; ++value)
    {
        if (lists.sriMappings.find(value) == nullptr)
        {
            check.warning(&lists.power->sri_PUSCH_MappingToAddModList)
                .found("no mapping %u", value)
                .allowed("the SRI field of a grant has the values 0..%u", values - 1)
                .advice("Add a mapping for each value, or none at all.");
            return;
        }
    }
}

// What power control names is there.
void puschPowerRefs(Check& check)
{
    forUplinks(check,
               [&](Cell& cell, Bwp& bwp)
               {
                   const Pusch& lists = check.model.pusch(bwp);
                   for (const IdEntry<SRI_PUSCH_PowerControl>& entry : lists.sriMappings)
                   {
                       pathlossRef(check, bwp, &entry.element->sri_PUSCH_PathlossReferenceRS_Id);
                       alphaRef(check, bwp, &entry.element->sri_P0_PUSCH_AlphaSetId);
                   }
                   Cell* const measured = pathlossCell(check.model, cell);
                   for (const IdEntry<PUSCH_PathlossReferenceRS>& entry : lists.pathlossRs)
                   {
                       const auto& signal = entry.element->referenceSignal;
                       if (signal.t == T_PUSCH_PathlossReferenceRS_referenceSignal_csi_RS_Index && measured != nullptr)
                       {
                           check.resolve(check.model.csi(*measured).nzpResources, signal.u.csi_RS_Index,
                                         &signal.u.csi_RS_Index, "a CSI-RS");
                       }
                   }
                   if (bwp.pusch != nullptr)
                   {
                       sriCoverage(check, bwp, *bwp.pusch);
                   }
               });
    forGrants(check,
              [&](Bwp& bwp, const ConfiguredGrantConfig& grant) { alphaRef(check, bwp, &grant.p0_PUSCH_Alpha); });
    forTypeOne(check, [&](Bwp& bwp, const ConfiguredGrantConfig&, const TypeOne& grant)
               { pathlossRef(check, bwp, &grant.pathlossReferenceIndex); });
}

// A second power control loop is used where there are two.
template <typename T>
void needsTwoLoops(Check& check, Bwp& bwp, const T* at)
{
    const Known<bool> two = hasTwoLoops(check.model, bwp);
    if (check.decided(two) && !*two)
    {
        check.error(at).allowed("twoPUSCH-PC-AdjustmentStates is absent: there is one loop");
    }
}

void puschTwoLoops(Check& check)
{
    forUplinks(check,
               [&](Cell&, Bwp& bwp)
               {
                   for (const IdEntry<SRI_PUSCH_PowerControl>& entry : check.model.pusch(bwp).sriMappings)
                   {
                       const auto& loop = entry.element->sri_PUSCH_ClosedLoopIndex;
                       if (loop == SRI_PUSCH_PowerControl_sri_PUSCH_ClosedLoopIndex_i1)
                       {
                           needsTwoLoops(check, bwp, &loop);
                       }
                   }
                   for (const IdEntry<SRS_ResourceSet>& entry : check.model.srs(bwp).sets)
                   {
                       const auto* const states = MEMBER(*entry.element, srs_PowerControlAdjustmentStates);
                       if (states != nullptr && *states == SRS_ResourceSet_srs_PowerControlAdjustmentStates_sameAsFci2)
                       {
                           needsTwoLoops(check, bwp, states);
                       }
                   }
               });
    forGrants(check,
              [&](Bwp& bwp, const ConfiguredGrantConfig& grant)
              {
                  if (grant.powerControlLoopToUse == ConfiguredGrantConfig_powerControlLoopToUse_n1)
                  {
                      needsTwoLoops(check, bwp, &grant.powerControlLoopToUse);
                  }
              });
}

// Nominal powers are even.
void checkEven(Check& check, const OSINT16* dBm)
{
    if (dBm != nullptr && *dBm % 2 != 0)
    {
        check.error(dBm).allowed("only even values are used: %d or %d", *dBm - 1, *dBm + 1);
    }
}

void puschP0Even(Check& check)
{
    forUplinks(check,
               [&](Cell&, Bwp& bwp)
               {
                   const PUSCH_ConfigCommon* const common =
                       bwp.uplinkCommon == nullptr ? nullptr
                                                   : check.tree.setup(MEMBER(*bwp.uplinkCommon, pusch_ConfigCommon));
                   const PUSCH_PowerControl* const power = check.model.pusch(bwp).power;
                   checkEven(check, common == nullptr ? nullptr : MEMBER(*common, p0_NominalWithGrant));
                   checkEven(check, power == nullptr ? nullptr : MEMBER(*power, p0_NominalWithoutGrant));
               });
}

// As many hopping offsets as the bits of a grant tell apart, each within the bandwidth part.
void puschHopOffsets(Check& check)
{
    constexpr OSUINT32 wide = 50; // resource blocks
    forPusch(check,
             [&](const Bwp& bwp, const PUSCH_Config& pusch)
             {
                 const auto* const offsets = MEMBER(pusch, frequencyHoppingOffsetLists);
                 const bool hops = pusch.m.frequencyHoppingPresent != 0 &&
                                   pusch.resourceAllocation != PUSCH_Config_resourceAllocation_resourceAllocationType0;
                 if (offsets == nullptr)
                 {
                     if (hops && check.model.isWhole(bwp))
                     {
                         check.warning(&pusch.frequencyHoppingOffsetLists)
                             .allowed("frequencyHopping is configured")
                             .advice("Add the offsets, or take frequencyHopping away.");
                     }
                     return;
                 }
                 const Known<NrSpan> rbs = bwp.rbs();
                 const auto count = static_cast<OSUINT32>(entries(offsets).size());
                 if (count != 2 && count != 4)
                 {
                     check.error(offsets).allowed("a grant chooses among 2 or 4");
                 }
                 else if (check.decided(rbs) && count != (rbs->size < wide ? 2 : 4))
                 {
                     check.error(offsets).allowed("a bandwidth part of %u resource blocks has %u", rbs->size,
                                                  rbs->size < wide ? 2 : 4);
                 }
                 for (const OSUINT16& offset : entries(offsets))
                 {
                     if (rbs && offset >= rbs->size)
                     {
                         check.warning(&offset)
                             .allowed("the bandwidth part has %u resource blocks", rbs->size)
                             .advice("Take an offset below the bandwidth part's size.");
                     }
                 }
             });
}

using rules::isSame;
#define SAME(a, b, name) isSame(MEMBER(a, name), MEMBER(b, name))

bool isSame(const PTRS_UplinkConfig_transformPrecoderDisabled* a, const PTRS_UplinkConfig_transformPrecoderDisabled* b)
{
    if (a == nullptr || b == nullptr)
    {
        return a == b;
    }
    return isSameArray(MEMBER(*a, frequencyDensity), MEMBER(*b, frequencyDensity)) &&
           isSameArray(MEMBER(*a, timeDensity), MEMBER(*b, timeDensity)) && a->maxNrofPorts == b->maxNrofPorts &&
           SAME(*a, *b, resourceElementOffset) && a->ptrs_Power == b->ptrs_Power;
}

bool isSame(const PTRS_UplinkConfig_transformPrecoderEnabled* a, const PTRS_UplinkConfig_transformPrecoderEnabled* b)
{
    if (a == nullptr || b == nullptr)
    {
        return a == b;
    }
    return isSameArray(&a->sampleDensity, &b->sampleDensity) && SAME(*a, *b, timeDensityTransformPrecoding);
}

bool isSame(const PTRS_UplinkConfig* a, const PTRS_UplinkConfig* b)
{
    if (a == nullptr || b == nullptr)
    {
        return a == b;
    }
    return SAME(*a, *b, transformPrecoderDisabled) && SAME(*a, *b, transformPrecoderEnabled);
}

bool isSame(const DMRS_UplinkConfig_transformPrecodingDisabled* a,
            const DMRS_UplinkConfig_transformPrecodingDisabled* b)
{
    if (a == nullptr || b == nullptr)
    {
        return a == b;
    }
    return SAME(*a, *b, scramblingID0) && SAME(*a, *b, scramblingID1);
}

bool isSame(const DMRS_UplinkConfig_transformPrecodingEnabled* a, const DMRS_UplinkConfig_transformPrecodingEnabled* b)
{
    if (a == nullptr || b == nullptr)
    {
        return a == b;
    }
    return SAME(*a, *b, nPUSCH_Identity) && SAME(*a, *b, sequenceGroupHopping) && SAME(*a, *b, sequenceHopping);
}

// The DM-RS of the two mapping types differ in three members at most.
void puschDmrsAb(Check& check)
{
    forPusch(check,
             [&](const Bwp& bwp, const PUSCH_Config& pusch)
             {
                 const Dmrs dmrs = dmrsOf(check.tree, pusch);
                 if (dmrs.a == nullptr || dmrs.b == nullptr)
                 {
                     return;
                 }
                 const auto differs = [&](const auto& at)
                 {
                     check.error(&at)
                         .found("not the same as for mapping type A")
                         .allowed("only dmrs-Type, dmrs-AdditionalPosition and maxLength may differ");
                 };
                 const bool isSignalKnown = check.model.isWhole(bwp) || (dmrs.a->m.phaseTrackingRSPresent != 0 &&
                                                                         dmrs.b->m.phaseTrackingRSPresent != 0);
                 if (isSignalKnown && !isSame(check.tree.setup(MEMBER(*dmrs.a, phaseTrackingRS)),
                                              check.tree.setup(MEMBER(*dmrs.b, phaseTrackingRS))))
                 {
                     differs(dmrs.b->phaseTrackingRS);
                 }
                 if (!SAME(*dmrs.a, *dmrs.b, transformPrecodingDisabled))
                 {
                     differs(dmrs.b->transformPrecodingDisabled);
                 }
                 if (!SAME(*dmrs.a, *dmrs.b, transformPrecodingEnabled))
                 {
                     differs(dmrs.b->transformPrecodingEnabled);
                 }
             });
}

// The sequences hop by group, or within one, not both.
void hoppingOf(Check& check, const Bwp& bwp, const DMRS_UplinkConfig* dmrs)
{
    const auto* const enabled = dmrs == nullptr ? nullptr : MEMBER(*dmrs, transformPrecodingEnabled);
    if (enabled == nullptr || enabled->m.sequenceHoppingPresent == 0 || enabled->m.sequenceGroupHoppingPresent != 0)
    {
        return;
    }
    const Known<const PUSCH_ConfigCommon*> common = puschCommon(check.model, bwp);
    if (check.decided(common) && *common != nullptr && (*common)->m.groupHoppingEnabledTransformPrecodingPresent != 0)
    {
        check.error(&enabled->sequenceHopping)
            .allowed("the cell has groupHoppingEnabledTransformPrecoding, which sequenceGroupHopping does not disable");
    }
}

void puschGroupSeqHop(Check& check)
{
    forPusch(check,
             [&](const Bwp& bwp, const PUSCH_Config& pusch)
             {
                 const Dmrs dmrs = dmrsOf(check.tree, pusch);
                 hoppingOf(check, bwp, dmrs.a);
                 hoppingOf(check, bwp, dmrs.b);
             });
    forGrants(check, [&](const Bwp& bwp, const ConfiguredGrantConfig& grant)
              { hoppingOf(check, bwp, &grant.cg_DMRS_Configuration); });
}

// Offsets that the tables have.
void checkBeta(Check& check, const OSUINT8* index, OSUINT32 last)
{
    if (index != nullptr && *index > last)
    {
        check.error(index).allowed("the table ends at %u", last);
    }
}

void checkBetas(Check& check, const BetaOffsets& betas)
{
    constexpr OSUINT32 lastAck = 15;
    constexpr OSUINT32 lastCsi = 18;
    checkBeta(check, MEMBER(betas, betaOffsetACK_Index1), lastAck);
    checkBeta(check, MEMBER(betas, betaOffsetACK_Index2), lastAck);
    checkBeta(check, MEMBER(betas, betaOffsetACK_Index3), lastAck);
    checkBeta(check, MEMBER(betas, betaOffsetCSI_Part1_Index1), lastCsi);
    checkBeta(check, MEMBER(betas, betaOffsetCSI_Part1_Index2), lastCsi);
    checkBeta(check, MEMBER(betas, betaOffsetCSI_Part2_Index1), lastCsi);
    checkBeta(check, MEMBER(betas, betaOffsetCSI_Part2_Index2), lastCsi);
}

void puschUci(Check& check)
{
    forPusch(check,
             [&](const Bwp&, const PUSCH_Config& pusch)
             {
                 const UCI_OnPUSCH* const uci = check.tree.setup(MEMBER(pusch, uci_OnPUSCH));
                 const auto* const betas = uci == nullptr ? nullptr : MEMBER(*uci, betaOffsets);
                 if (const BetaOffsets* const one = CHOSEN(check.tree, betas, UCI_OnPUSCH_betaOffsets, semiStatic))
                 {
                     checkBetas(check, *one);
                 }
                 for (const BetaOffsets& one :
                      check.tree.list<BetaOffsets>(CHOSEN(check.tree, betas, UCI_OnPUSCH_betaOffsets, dynamic)))
                 {
                     checkBetas(check, one);
                 }
             });
    forGrants(check,
              [&](const Bwp&, const ConfiguredGrantConfig& grant)
              {
                  const CG_UCI_OnPUSCH* const uci = check.tree.setup(MEMBER(grant, uci_OnPUSCH));
                  if (const BetaOffsets* const one = CHOSEN(check.tree, uci, CG_UCI_OnPUSCH, semiStatic))
                  {
                      checkBetas(check, *one);
                  }
                  for (const BetaOffsets& one :
                       check.tree.list<BetaOffsets>(CHOSEN(check.tree, uci, CG_UCI_OnPUSCH, dynamic)))
                  {
                      checkBetas(check, one);
                  }
                  const bool isDynamic = uci != nullptr && uci->t == T_CG_UCI_OnPUSCH_dynamic;
                  if (isDynamic && grant.m.rrc_ConfiguredUplinkGrantPresent != 0)
                  {
                      check.error(uci).allowed("a grant of type 1 has no DCI that chooses").advice("Use semiStatic.");
                  }
              });
}

// A period that the spacing has, and that the repetitions fit into.
void puschCgPeriod(Check& check)
{
    forGrants(check,
              [&](const Bwp& bwp, const ConfiguredGrantConfig& grant)
              {
                  const Known<OSUINT32> mu = bwp.mu();
                  const OSUINT32 period = grantPeriod(grant);
                  if (!check.decided(mu) || period == 0)
                  {
                      return;
                  }
                  if (nrGrantPeriodAllowed(*mu, bwp.isExtended() ? 1 : 0, period) == 0)
                  {
                      check.error(&grant.periodicity)
                          .allowed("%u kHz with %s cyclic prefix does not have it", khzOf(*mu),
                                   bwp.isExtended() ? "extended" : "normal");
                      return;
                  }
                  // They are sent in consecutive slots.
                  const OSUINT32 repetitions = grant.repK <= ConfiguredGrantConfig_repK_n8 ? 1U << grant.repK : 1;
                  if ((repetitions - 1) * bwp.symbolsPerSlot() >= period)
                  {
                      check.error(&grant.repK)
                          .found("%u repetitions, one in each slot", repetitions)
                          .allowed("the period is %u symbols", period)
                          .advice("Take a longer period, or fewer repetitions.");
                  }
              });
}

// Redundancy versions for repetitions, and only for them.
void puschCgRepkRv(Check& check)
{
    forGrants(check,
              [&](const Bwp&, const ConfiguredGrantConfig& grant)
              {
                  const bool repeats = grant.repK != ConfiguredGrantConfig_repK_n1;
                  if (repeats && grant.m.repK_RVPresent == 0)
                  {
                      check.error(&grant.repK_RV).allowed("the grant is repeated");
                  }
                  if (!repeats && grant.m.repK_RVPresent != 0)
                  {
                      check.error(&grant.repK_RV).allowed("repK is n1").advice("Take it away.");
                  }
              });
}

// Rows of the time domain allocations in force.
Known<OSUINT32> timeRows(const Model& model, const Bwp& bwp)
{
    constexpr OSUINT32 defaultRows = 16;
    const auto* const own = bwp.pusch == nullptr ? nullptr : MEMBER(*bwp.pusch, pusch_TimeDomainAllocationList);
    if (own == nullptr && !model.isWhole(bwp))
    {
        return Known<OSUINT32>::unless(RRC_RULE_INPUT_PREVIOUS);
    }
    using Row = PUSCH_TimeDomainResourceAllocation;
    if (const OSRTDList* const list = model.tree.setup(own))
    {
        return model.tree.list<Row>(list).size();
    }
    const Known<const PUSCH_ConfigCommon*> common = puschCommon(model, bwp);
    if (!common)
    {
        return Known<OSUINT32>::unless(common.inputs());
    }
    const OSRTDList* const list = *common == nullptr ? nullptr : MEMBER(**common, pusch_TimeDomainAllocationList);
    return list == nullptr ? defaultRows : model.tree.list<Row>(list).size();
}

// The bits of frequencyDomainAllocation from its least significant one on name resource blocks.
void checkFrequency(Check& check, const Bwp& bwp, const ConfiguredGrantConfig& grant, const TypeOne& typeOne)
{
    const auto& bits = typeOne.frequencyDomainAllocation;
    const OSUINT32 count = rtx::bitCount(bits);
    const OSUINT32 value = bitsAsNumber(bits);
    const Known<NrSpan> rbs = bwp.rbs();
    const bool isTypeOne = grant.resourceAllocation == ConfiguredGrantConfig_resourceAllocation_resourceAllocationType1;
    const bool isTypeZero =
        grant.resourceAllocation == ConfiguredGrantConfig_resourceAllocation_resourceAllocationType0;
    if (isTypeOne && grant.m.frequencyHoppingPresent == 0 && check.decided(rbs))
    {
        NrSpan span{};
        if (nrRivDecode(value, rbs->size, &span) == 0)
        {
            check.error(&bits)
                .found("%u", value)
                .allowed("that names no resource blocks of a bandwidth part of %u", rbs->size);
        }
    }
    const Known<const SCS_SpecificCarrier*> carrier = check.model.carrier(bwp);
    if (isTypeZero && check.decided(rbs) && check.decided(carrier) && *carrier != nullptr)
    {
        const OSUINT32 size = nrRbgSize(rbs->size, grant.m.rbg_SizePresent != 0 ? 1 : 0);
        const OSUINT32 groups = nrRbgs((*carrier)->offsetToCarrier + rbs->start, rbs->size, size);
        if (groups < count && value >> groups != 0)
        {
            check.warning(&bits)
                .allowed("the bandwidth part has %u resource block groups, the last %u bits", groups, groups)
                .advice("Clear the bits in front of them.");
        }
        else if (value == 0)
        {
            check.error(&bits).allowed("no resource block group is chosen");
        }
    }
}

// A grant of type 1 has what a DCI would say, and within its bounds.
void puschCgType1(Check& check)
{
    constexpr OSUINT8 lastMcs = 27;
    forTypeOne(check,
               [&](const Bwp& bwp, const ConfiguredGrantConfig& grant, const TypeOne& typeOne)
               {
                   if (grant.resourceAllocation == ConfiguredGrantConfig_resourceAllocation_dynamicSwitch)
                   {
                       check.error(&grant.resourceAllocation).allowed("a grant of type 1 has no DCI that switches");
                   }
                   if (typeOne.mcsAndTBS > lastMcs)
                   {
                       check.error(&typeOne.mcsAndTBS).allowed("28..31 are not configured");
                   }
                   const Known<OSUINT32> rows = timeRows(check.model, bwp);
                   if (check.decided(rows) && typeOne.timeDomainAllocation >= *rows)
                   {
                       check.error(&typeOne.timeDomainAllocation)
                           .allowed("the table in force has the rows 0..%u", *rows == 0 ? 0 : *rows - 1);
                   }
                   const Known<bool> precoded = precoding(check.model, bwp, grant);
                   if (check.decided(precoded) && *precoded == (typeOne.m.dmrs_SeqInitializationPresent != 0))
                   {
                       check.error(&typeOne.dmrs_SeqInitialization)
                           .allowed("transform precoding is %s", *precoded ? "enabled" : "disabled");
                   }
                   const bool hops = grant.m.frequencyHoppingPresent != 0;
                   if (hops && typeOne.m.frequencyHoppingOffsetPresent == 0)
                   {
                       check.error(&typeOne.frequencyHoppingOffset).allowed("frequencyHopping is configured");
                   }
                   if (!hops && typeOne.m.frequencyHoppingOffsetPresent != 0)
                   {
                       check.warning(&typeOne.frequencyHoppingOffset)
                           .allowed("frequencyHopping is not configured")
                           .advice("Configure frequencyHopping, or take the offset away.");
                   }
                   const OSUINT32 slots = (grantPeriod(grant) + bwp.symbolsPerSlot() - 1) / bwp.symbolsPerSlot();
                   if (bwp.generic != nullptr && slots != 0 && typeOne.timeDomainOffset >= slots)
                   {
                       check.notice(&typeOne.timeDomainOffset)
                           .allowed("the period is %u slot%s", slots, slots == 1 ? "" : "s")
                           .advice("Take the rest of the division by the period.");
                   }
                   checkFrequency(check, bwp, grant, typeOne);
               });
}

bool hasTypeOne(std::span<Bwp> bwps)
{
    return std::any_of(bwps.begin(), bwps.end(),
                       [](const Bwp& bwp)
                       { return bwp.grant != nullptr && bwp.grant->m.rrc_ConfiguredUplinkGrantPresent != 0; });
}

// A grant of type 1 is on one of the two uplinks, and says which sounding resource it follows.
void puschCgSingle(Check& check)
{
    forTypeOne(check,
               [&](Bwp& bwp, const ConfiguredGrantConfig& grant, const TypeOne& typeOne)
               {
                   if (bwp.direction == Direction::Supplementary && hasTypeOne(bwp.cell->uplink))
                   {
                       check.error(&grant.rrc_ConfiguredUplinkGrant).allowed("the uplink has a grant of type 1, too");
                   }
                   if (bwp.pusch == nullptr)
                   {
                       return;
                   }
                   const bool hasIndicator = typeOne.m.srs_ResourceIndicatorPresent != 0;
                   const OSUINT32 values = sriValues(check, bwp, *bwp.pusch);
                   if (!hasIndicator && values != 0)
                   {
                       check.warning(&typeOne.srs_ResourceIndicator)
                           .allowed("the set for the grant's transmissions has %u sounding resources", values)
                           .advice("Say which of the sounding resources the grant follows.");
                   }
                   if (hasIndicator && bwp.pusch->m.txConfigPresent == 0)
                   {
                       check.notice(&typeOne.srs_ResourceIndicator)
                           .allowed("PUSCH without txConfig follows no sounding resource")
                           .advice("Take the field away.");
                   }
               });
}

// A grant of type 2 and one of type 1, where the cell group has none.
#define EXAMPLE_GRANT                                                                                                  \
    AT_PHY "cs-RNTI.setup = 1000\n" AT_GRANT "cg-DMRS-Configuration = {}\n" AT_GRANT                                   \
           "resourceAllocation = resourceAllocationType1\n" AT_GRANT "powerControlLoopToUse = n0\n" AT_GRANT           \
           "p0-PUSCH-Alpha = 0\n" AT_GRANT "nrofHARQ-Processes = 1\n" AT_GRANT "repK = n1\n" AT_GRANT                  \
           "periodicity = sym10x14\n"
#define AT_TYPE1 AT_GRANT "rrc-ConfiguredUplinkGrant."
#define EXAMPLE_TYPE1                                                                                                  \
    EXAMPLE_GRANT AT_TYPE1 "timeDomainOffset = 9\n" AT_TYPE1 "timeDomainAllocation = 0\n" AT_TYPE1                     \
                           "frequencyDomainAllocation = 000000\n" AT_TYPE1 "antennaPort = 0\n" AT_TYPE1                \
                           "dmrs-SeqInitialization = 0\n" AT_TYPE1 "precodingAndNumberOfLayers = 0\n" AT_TYPE1         \
                           "mcsAndTBS = 10\n" AT_TYPE1 "pathlossReferenceIndex = 0\n"

// The like on the supplementary uplink.
#define AT_SUL_GRANT AT_SUL_BWP "configuredGrantConfig.setup."
#define AT_SUL_TYPE1 AT_SUL_GRANT "rrc-ConfiguredUplinkGrant."
#define EXAMPLE_SUL_TYPE1                                                                                              \
    AT_PHY "cs-RNTI.setup = 1000\n" AT_SUL_GRANT "cg-DMRS-Configuration = {}\n" AT_SUL_GRANT                           \
           "resourceAllocation = resourceAllocationType1\n" AT_SUL_GRANT "powerControlLoopToUse = n0\n" AT_SUL_GRANT   \
           "p0-PUSCH-Alpha = 0\n" AT_SUL_GRANT "nrofHARQ-Processes = 1\n" AT_SUL_GRANT "repK = n1\n" AT_SUL_GRANT      \
           "periodicity = sym10x14\n" AT_SUL_TYPE1 "timeDomainOffset = 9\n" AT_SUL_TYPE1                               \
           "timeDomainAllocation = 0\n" AT_SUL_TYPE1 "frequencyDomainAllocation = 000000\n" AT_SUL_TYPE1               \
           "antennaPort = 0\n" AT_SUL_TYPE1 "dmrs-SeqInitialization = 0\n" AT_SUL_TYPE1                                \
           "precodingAndNumberOfLayers = 0\n" AT_SUL_TYPE1 "mcsAndTBS = 10\n" AT_SUL_TYPE1                             \
           "pathlossReferenceIndex = 0\n"

constexpr Rule puschTable[] = {
    {.told = {.id = "pusch-tdra",
              .severity = RRC_RULE_ERROR,
              .statement = "startSymbolAndLength of PUSCH stands for symbols of the slot: with mapping type A at least "
                           "4 from symbol 0 on, with type B any.",
              .advice = "Compute it from S and L as 14 (L - 1) + S for L up to 8, else as 14 (15 - L) + 13 - S.",
              .clause = "TS 38.214 6.1.2.1, table 6.1.2.1-1",
              .given = "",
              .bad = AT_PUSCH "pusch-TimeDomainAllocationList.setup[0].startSymbolAndLength = 53",
              .good = AT_PUSCH "pusch-TimeDomainAllocationList.setup[0].startSymbolAndLength = 27",
              .since = "0.1.0"},
     .run = puschTdra},
    {.told = {.id = "pusch-codebook-cond",
              .severity = RRC_RULE_ERROR,
              .statement = "codebookSubset and maxRank are present with txConfig codebook, and only then.",
              .advice = "Send both with txConfig codebook.",
              .clause = "TS 38.331 PUSCH-Config, Cond codebookBased",
              .given = "",
              .bad = AT_PUSCH "codebookSubset = absent",
              .good = AT_PUSCH "txConfig = absent\n" AT_PUSCH "codebookSubset = absent\n" AT_PUSCH "maxRank = absent",
              .since = "0.1.0"},
     .run = puschCodebookCond},
    {.told = {.id = "pusch-maxrank",
              .severity = RRC_RULE_ERROR,
              .statement = "maxRank is maxMIMO-Layers of the cell's PUSCH, and not above the antenna ports of the SRS "
                           "resources for codebook.",
              .advice = "Set maxRank to maxMIMO-Layers.",
              .clause = "TS 38.331 PUSCH-ServingCellConfig; TS 38.214 6.1.1.1",
              .given = "",
              .bad = AT_UPLINK "pusch-ServingCellConfig.setup.maxMIMO-Layers = 2",
              .good = AT_UPLINK "pusch-ServingCellConfig.setup.maxMIMO-Layers = 1",
              .since = "0.1.0"},
     .run = puschMaxrank},
    {.told = {.id = "pusch-subset-ports",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "codebookSubset is not partialAndNonCoherent where the SRS resources for codebook have 2 antenna "
                  "ports.",
              .advice = "Use nonCoherent, or fullyAndPartialAndNonCoherent.",
              .clause = "TS 38.214 6.1.1.1",
              .given = "",
              .bad = AT_PUSCH "codebookSubset = partialAndNonCoherent",
              .good = AT_PUSCH "codebookSubset = fullyAndPartialAndNonCoherent",
              .since = "0.1.0"},
     .run = puschSubsetPorts},
    {.told = {.id = "pusch-txconfig-srs",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "With txConfig codebook or nonCodebook the bandwidth part has an SRS resource set of that usage.",
              .advice = "Add an SRS-ResourceSet of the usage, or take txConfig away.",
              .clause = "TS 38.214 6.1.1",
              .given = "",
              .bad = AT_SRS "srs-ResourceSetToAddModList[0].usage = beamManagement",
              .good = AT_SRS "srs-ResourceSetToAddModList[0].usage = codebook",
              .since = "0.1.0"},
     .run = puschTxconfigSrs},
    {.told = {.id = "pusch-dfts",
              .severity = RRC_RULE_ERROR,
              .statement = "Transform precoding goes with resource allocation type 1, DM-RS type 1 and one layer; "
                           "tp-pi2BPSK goes with transform precoding.",
              .advice = "Disable transform precoding, or take what goes with it.",
              .clause = "TS 38.214 6.1.2.2, 6.2.2; TS 38.212 7.3.1.1.2",
              .given = "",
              .bad = AT_PUSCH "transformPrecoder = enabled\n" AT_PUSCH "resourceAllocation = resourceAllocationType0",
              .good = AT_PUSCH "transformPrecoder = enabled\n" AT_PUSCH "resourceAllocation = resourceAllocationType1",
              .since = "0.1.0"},
     .run = puschDfts},
    {.told = {.id = "pusch-power-refs",
              .severity = RRC_RULE_ERROR,
              .statement = "The sets and pathloss references that power control of PUSCH and of configured grants "
                           "names are configured, and mappings of the SRI field cover its values.",
              .advice = "Add what is named, or name what there is.",
              .clause = "TS 38.331 PUSCH-PowerControl, ConfiguredGrantConfig",
              .given = "",
              .bad = AT_PUSCH "pusch-PowerControl.sri-PUSCH-MappingToAddModList[0].sri-P0-PUSCH-AlphaSetId = 1",
              .good =
                  AT_PUSCH "pusch-PowerControl.sri-PUSCH-MappingToAddModList[0].sri-P0-PUSCH-AlphaSetId = 1\n" AT_PUSCH
                           "pusch-PowerControl.p0-AlphaSets[1].p0-PUSCH-AlphaSetId = 1",
              .since = "0.1.0"},
     .run = puschPowerRefs},
    {.told = {.id = "pusch-two-loops",
              .severity = RRC_RULE_ERROR,
              .statement = "A second power control loop of PUSCH is used only where twoPUSCH-PC-AdjustmentStates is "
                           "configured.",
              .advice = "Configure twoPUSCH-PC-AdjustmentStates, or use the first loop.",
              .clause = "TS 38.213 7.1.1, 7.3.1",
              .given = "",
              .bad = AT_PUSCH "pusch-PowerControl.sri-PUSCH-MappingToAddModList[0].sri-PUSCH-ClosedLoopIndex = i1",
              .good = AT_PUSCH
              "pusch-PowerControl.sri-PUSCH-MappingToAddModList[0].sri-PUSCH-ClosedLoopIndex = i1\n" AT_PUSCH
              "pusch-PowerControl.twoPUSCH-PC-AdjustmentStates = twoStates",
              .since = "0.1.0"},
     .run = puschTwoLoops},
    {.told = {.id = "pusch-p0-even",
              .severity = RRC_RULE_ERROR,
              .statement = "p0-NominalWithGrant and p0-NominalWithoutGrant are even.",
              .advice = "Take the even value beside it.",
              .clause = "TS 38.331 PUSCH-ConfigCommon, PUSCH-PowerControl",
              .given = "",
              .bad = AT_PUSCH "pusch-PowerControl.p0-NominalWithoutGrant = -91",
              .good = AT_PUSCH "pusch-PowerControl.p0-NominalWithoutGrant = -90",
              .since = "0.1.0"},
     .run = puschP0Even},
    {.told = {.id = "pusch-hop-offsets",
              .severity = RRC_RULE_ERROR,
              .statement = "frequencyHoppingOffsetLists has 2 offsets in a bandwidth part of less than 50 resource "
                           "blocks, else 4, each below its size; with hopping it is present.",
              .advice = "Give as many offsets as a grant tells apart.",
              .clause = "TS 38.214 6.3; TS 38.212 7.3.1.1.2",
              .given = "",
              .bad = AT_PUSCH "frequencyHopping = intraSlot\n" AT_PUSCH "frequencyHoppingOffsetLists[0] = 68\n" AT_PUSCH
                              "frequencyHoppingOffsetLists[1] = 136",
              .good =
                  AT_PUSCH "frequencyHopping = intraSlot\n" AT_PUSCH "frequencyHoppingOffsetLists[0] = 68\n" AT_PUSCH
                           "frequencyHoppingOffsetLists[1] = 136\n" AT_PUSCH
                           "frequencyHoppingOffsetLists[2] = 204\n" AT_PUSCH "frequencyHoppingOffsetLists[3] = 272",
              .since = "0.1.0"},
     .run = puschHopOffsets},
    {.told = {.id = "pusch-dmrs-ab",
              .severity = RRC_RULE_ERROR,
              .statement = "The DM-RS of PUSCH mapping types A and B differ in dmrs-Type, dmrs-AdditionalPosition and "
                           "maxLength at most.",
              .advice = "Give both the same values.",
              .clause = "TS 38.331 PUSCH-Config",
              .given = "",
              .bad = AT_PUSCH "dmrs-UplinkForPUSCH-MappingTypeB.setup.transformPrecodingDisabled.scramblingID0 = 43",
              .good = AT_PUSCH
              "dmrs-UplinkForPUSCH-MappingTypeB.setup.transformPrecodingDisabled.scramblingID0 = 42\n" AT_PUSCH
              "dmrs-UplinkForPUSCH-MappingTypeB.setup.dmrs-AdditionalPosition = pos0",
              .since = "0.1.0"},
     .run = puschDmrsAb},
    {.told = {.id = "pusch-group-seq-hop",
              .severity = RRC_RULE_ERROR,
              .statement = "Group hopping and sequence hopping of the DM-RS with transform precoding are not both on.",
              .advice = "Disable sequenceGroupHopping, or take sequenceHopping away.",
              .clause = "TS 38.331 DMRS-UplinkConfig; TS 38.211 6.4.1.1.1.2",
              .given = "",
              .bad =
                  AT_UL "bwp-Common.pusch-ConfigCommon.setup.groupHoppingEnabledTransformPrecoding = enabled\n" AT_PUSCH
                        "dmrs-UplinkForPUSCH-MappingTypeA.setup.transformPrecodingEnabled.sequenceHopping = enabled",
              .good = AT_UL
              "bwp-Common.pusch-ConfigCommon.setup.groupHoppingEnabledTransformPrecoding = enabled\n" AT_PUSCH
              "dmrs-UplinkForPUSCH-MappingTypeA.setup.transformPrecodingEnabled.sequenceHopping = enabled\n" AT_PUSCH
              "dmrs-UplinkForPUSCH-MappingTypeA.setup.transformPrecodingEnabled.sequenceGroupHopping = disabled",
              .since = "0.1.0"},
     .run = puschGroupSeqHop},
    {.told = {.id = "pusch-uci",
              .severity = RRC_RULE_ERROR,
              .statement = "Indices of beta offsets are 0..15 for acknowledgements and 0..18 for CSI; a grant of type "
                           "1 has semiStatic ones.",
              .advice = "Take an index that the table has.",
              .clause = "TS 38.213 tables 9.3-1, 9.3-2; TS 38.331 ConfiguredGrantConfig",
              .given = "",
              .bad = AT_PUSCH "uci-OnPUSCH.setup.betaOffsets.semiStatic.betaOffsetACK-Index1 = 16",
              .good = AT_PUSCH "uci-OnPUSCH.setup.betaOffsets.semiStatic.betaOffsetACK-Index1 = 15",
              .since = "0.1.0"},
     .run = puschUci},
    {.told = {.id = "pusch-cg-period",
              .severity = RRC_RULE_ERROR,
              .statement = "The period of a configured grant is one of those of its subcarrier spacing and cyclic "
                           "prefix, and not shorter than its repetitions.",
              .advice = "Take a period that the spacing has.",
              .clause = "TS 38.331 ConfiguredGrantConfig; TS 38.214 6.1.2.3",
              .given = "",
              .bad = EXAMPLE_GRANT AT_GRANT "periodicity = sym512x14",
              .good = EXAMPLE_GRANT AT_GRANT "periodicity = sym256x14",
              .since = "0.1.0"},
     .run = puschCgPeriod},
    {.told = {.id = "pusch-cg-repk-rv",
              .severity = RRC_RULE_ERROR,
              .statement = "repK-RV is present where repK is above n1, and only there.",
              .advice = "Send repK-RV.",
              .clause = "TS 38.331 ConfiguredGrantConfig",
              .given = "",
              .bad = EXAMPLE_GRANT AT_GRANT "repK = n2",
              .good = EXAMPLE_GRANT AT_GRANT "repK = n2\n" AT_GRANT "repK-RV = s1-0231",
              .since = "0.1.0"},
     .run = puschCgRepkRv},
    {.told = {.id = "pusch-cg-type1",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "A configured grant of type 1 says all that a DCI would: a fixed allocation type, mcsAndTBS up "
                  "to 27, a row of the table, resource blocks of the bandwidth part, dmrs-SeqInitialization "
                  "without transform precoding, frequencyHoppingOffset with hopping.",
              .advice = "Give the grant a value that a DCI could have.",
              .clause = "TS 38.331 ConfiguredGrantConfig; TS 38.214 6.1.2.3",
              .given = "",
              .bad = EXAMPLE_TYPE1 AT_TYPE1 "mcsAndTBS = 28",
              .good = EXAMPLE_TYPE1 AT_TYPE1 "mcsAndTBS = 27",
              .since = "0.1.0"},
     .run = puschCgType1},
    {.told = {.id = "pusch-cg-single",
              .severity = RRC_RULE_ERROR,
              .statement =
                  "A configured grant of type 1 is on the uplink or on the supplementary uplink of a cell, not on "
                  "both, and names the SRS resource that it follows among several.",
              .advice = "Configure it on one of them.",
              .clause = "TS 38.331 BWP-UplinkDedicated",
              .given = "",
              .bad = EXAMPLE_SUL EXAMPLE_TYPE1 EXAMPLE_SUL_TYPE1,
              .good = EXAMPLE_SUL EXAMPLE_SUL_TYPE1,
              .since = "0.1.0"},
     .run = puschCgSingle},
};

} // namespace

constinit const RuleGroup puschRules = groupOf(puschTable);

} // namespace rules
