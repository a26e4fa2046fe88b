// Random access and beam failure recovery.
#include "examplePaths.h"
#include "rules.h"
#include "searchSpaces.h"
#include "uplink.h"

namespace rules
{
namespace
{

// Each RACH-ConfigCommon and BeamFailureRecoveryConfig that the element has.
template <typename Each>
void forRach(Check& check, const Each& each)
{
    forUplinks(check,
               [&](Cell& cell, Bwp& bwp)
               {
                   const auto* const choice =
                       bwp.uplinkCommon == nullptr ? nullptr : MEMBER(*bwp.uplinkCommon, rach_ConfigCommon);
                   if (const RACH_ConfigCommon* const rach = check.tree.setup(choice))
                   {
                       each(cell, bwp, *rach);
                   }
               });
}

template <typename Each>
void forRecovery(Check& check, const Each& each)
{
    forUplinks(check,
               [&](Cell& cell, Bwp& bwp)
               {
                   if (bwp.bfr != nullptr)
                   {
                       each(cell, bwp, *bwp.bfr);
                   }
               });
}

// rach-ConfigDedicated of the SpCell, and the bandwidth part that it is for.
struct Dedicated
{
    const ReconfigurationWithSync_rach_ConfigDedicated* choice; // null where there is none
    const CFRA* cfra;
    Cell* cell;
    Direction direction;
    Bwp* bwp;                               // first active; null where that is not known
    Known<const RACH_ConfigCommon*> common; // of that, or of the initial one where it has none
};

// The bandwidth part that is active behind the message; null where that is not known.
Bwp* firstActive(const Cell& cell, Direction direction)
{
    const UplinkConfig* const uplink = direction == Direction::Uplink ? cell.uplinkConfig : cell.supplementary;
    const BWP_Id* const id = uplink == nullptr ? nullptr : MEMBER(*uplink, firstActiveUplinkBWP_Id);
    return id == nullptr ? nullptr : cell.bwp(direction, *id);
}

const ReconfigurationWithSync* syncOf(const Cell* cell)
{
    return cell == nullptr || cell->spCell == nullptr ? nullptr : MEMBER(*cell->spCell, reconfigurationWithSync);
}

Dedicated dedicatedOf(Check& check)
{
    Cell* const cell = check.model.spCell();
    const ReconfigurationWithSync* const sync = syncOf(cell);
    Dedicated result{nullptr, nullptr, cell, Direction::Uplink, nullptr, Known<const RACH_ConfigCommon*>::unless(0)};
    result.choice = sync == nullptr ? nullptr : MEMBER(*sync, rach_ConfigDedicated);
    if (result.choice == nullptr)
    {
        return result;
    }
    const bool isSul = result.choice->t == T_ReconfigurationWithSync_rach_ConfigDedicated_supplementaryUplink;
    result.direction = isSul ? Direction::Supplementary : Direction::Uplink;
    const auto* const choice = result.choice;
    const RACH_ConfigDedicated* const config =
        isSul ? CHOSEN(check.tree, choice, ReconfigurationWithSync_rach_ConfigDedicated, supplementaryUplink)
              : CHOSEN(check.tree, choice, ReconfigurationWithSync_rach_ConfigDedicated, uplink);
    result.cfra = config == nullptr ? nullptr : MEMBER(*config, cfra);
    result.bwp = firstActive(*cell, result.direction);
    const Bwp* const initial = cell->bwp(result.direction, 0);
    if (result.bwp != nullptr)
    {
        result.common = rachCommon(check.model, *result.bwp);
    }
    if (result.common && *result.common == nullptr && initial != nullptr)
    {
        result.common = rachCommon(check.model, *initial);
    }
    return result;
}

// Whether a configuration index has a long preamble (839), or its format 3: where all that is not known would say the
// same, it is known.
template <typename Table>
Known<bool> indexIs(const Table& table, const Cell& cell, Direction direction, OSUINT32 index)
{
    if (direction == Direction::Supplementary)
    {
        return table(0, 0, index) != 0;
    }
    const bool isFdd = table(0, 0, index) != 0;
    const bool isTdd = table(0, 1, index) != 0;
    if (cell.range && *cell.range == RRC_RULE_RANGE_FR2)
    {
        return false;
    }
    if (!isFdd && !isTdd)
    {
        return false;
    }
    if (!cell.range)
    {
        return Known<bool>::unless(cell.range.inputs());
    }
    if (isFdd == isTdd)
    {
        return isFdd;
    }
    return cell.duplex ? Known<bool>(*cell.duplex == RRC_RULE_DUPLEX_TDD ? isTdd : isFdd)
                       : Known<bool>::unless(cell.duplex.inputs());
}

Known<bool> isLong(const Cell& cell, Direction direction, OSUINT32 index)
{
    return indexIs(nrPrachIsLong, cell, direction, index);
}

const char* lengthName(bool isLongOne)
{
    return isLongOne ? "long, l839" : "short, l139";
}

bool hasLongRoot(const RACH_ConfigCommon& rach)
{
    return rach.prach_RootSequenceIndex.t == T_RACH_ConfigCommon_prach_RootSequenceIndex_l839;
}

// The root sequence has the length of the preamble format.
void rachFormatLen(Check& check)
{
    forRach(check,
            [&](const Cell& cell, const Bwp& bwp, const RACH_ConfigCommon& rach)
            {
                const OSUINT32 index = rach.rach_ConfigGeneric.prach_ConfigurationIndex;
                const Known<bool> isLongOne = isLong(cell, bwp.direction, index);
                if (check.decided(isLongOne) && *isLongOne != hasLongRoot(rach))
                {
                    check.error(&rach.prach_RootSequenceIndex)
                        .allowed("the preambles of prach-ConfigurationIndex %u are %s", index, lengthName(*isLongOne));
                }
            });
    const Dedicated dedicated = dedicatedOf(check);
    const auto* const occasions = dedicated.cfra == nullptr ? nullptr : MEMBER(*dedicated.cfra, occasions);
    if (occasions != nullptr && dedicated.common && *dedicated.common != nullptr)
    {
        const OSUINT8& own = occasions->rach_ConfigGeneric.prach_ConfigurationIndex;
        const OSUINT8 other = (*dedicated.common)->rach_ConfigGeneric.prach_ConfigurationIndex;
        const Known<bool> isLongOne = isLong(*dedicated.cell, dedicated.direction, own);
        const Known<bool> isOtherLong = isLong(*dedicated.cell, dedicated.direction, other);
        if (check.decided(isLongOne) && isOtherLong && *isLongOne != *isOtherLong)
        {
            check.error(&own)
                .found("%u, whose preambles are %s", own, lengthName(*isLongOne))
                .allowed("those of rach-ConfigCommon, whose root sequence is used, are %s", lengthName(*isOtherLong));
        }
    }
    forRecovery(check,
                [&](const Cell& cell, const Bwp& bwp, const BeamFailureRecoveryConfig& recovery)
                {
                    const RACH_ConfigGeneric* const generic = MEMBER(recovery, rach_ConfigBFR);
                    if (generic == nullptr)
                    {
                        return;
                    }
                    const Known<bool> isLongOne = isLong(cell, bwp.direction, generic->prach_ConfigurationIndex);
                    if (check.decided(isLongOne) && *isLongOne)
                    {
                        check.error(&generic->prach_ConfigurationIndex)
                            .found("%u, whose preambles are long", generic->prach_ConfigurationIndex)
                            .allowed("those of beam failure recovery are short");
                    }
                });
}

// Short preambles have a spacing, one of the frequency range.
void checkSpacing(Check& check, const Cell& cell, Direction direction, const SubcarrierSpacing* scs)
{
    const Known<RrcRuleRange> range =
        direction == Direction::Supplementary ? Known<RrcRuleRange>(RRC_RULE_RANGE_FR1) : cell.range;
    const OSUINT32 mu = muOf(*scs);
    if (mu > 3)
    {
        check.error(scs).allowed("preambles have 15, 30, 60 or 120 kHz");
    }
    else if (check.decided(range) && (*range == RRC_RULE_RANGE_FR1) != (mu < 2))
    {
        check.error(scs).allowed(*range == RRC_RULE_RANGE_FR1 ? "FR1 has 15 or 30 kHz" : "FR2 has 60 or 120 kHz");
    }
}

void rachScs(Check& check)
{
    forRach(check,
            [&](const Cell& cell, const Bwp& bwp, const RACH_ConfigCommon& rach)
            {
                const SubcarrierSpacing* const scs = MEMBER(rach, msg1_SubcarrierSpacing);
                if (scs == nullptr && !hasLongRoot(rach))
                {
                    check.error(&rach.msg1_SubcarrierSpacing).allowed("the root sequence is l139");
                }
                else if (scs != nullptr && hasLongRoot(rach))
                {
                    check.error(scs)
                        .allowed("the root sequence is l839, whose format has its spacing")
                        .advice("Take it away.");
                }
                else if (scs != nullptr)
                {
                    checkSpacing(check, cell, bwp.direction, scs);
                }
            });
    forRecovery(check,
                [&](const Cell& cell, const Bwp& bwp, const BeamFailureRecoveryConfig& recovery)
                {
                    if (const SubcarrierSpacing* const scs = ADDITION(recovery, 2, msg1_SubcarrierSpacing_v1530))
                    {
                        checkSpacing(check, cell, bwp.direction, scs);
                    }
                });
}

// The occasions side by side lie in the bandwidth part.
void occasionsIn(Check& check, const Bwp& bwp, const RACH_ConfigGeneric& generic, bool hasLong,
                 const SubcarrierSpacing* scs)
{
    const Known<NrSpan> rbs = bwp.rbs();
    const Known<OSUINT32> mu = bwp.mu();
    if (!check.decided(rbs) || !check.decided(mu) || generic.msg1_FDM > 3)
    {
        return;
    }
    OSUINT32 width = 0;
    if (hasLong)
    {
        const Known<bool> isFormat3 =
            indexIs(nrPrachIsFormat3, *bwp.cell, bwp.direction, generic.prach_ConfigurationIndex);
        width = check.decided(isFormat3) ? nrPrachLongRbs(*isFormat3 ? 1 : 0, *mu) : 0;
    }
    else if (scs != nullptr)
    {
        width = nrPrachShortRbs(muOf(*scs), *mu);
    }
    const OSUINT32 end = generic.msg1_FrequencyStart + (width << generic.msg1_FDM);
    if (width != 0 && end > rbs->size)
    {
        check.error(&generic.msg1_FrequencyStart)
            .found("%u, with %u of %u resource blocks up to %u", generic.msg1_FrequencyStart, 1U << generic.msg1_FDM,
                   width, end - 1)
            .allowed("the bandwidth part ends with %u", rbs->size - 1);
    }
}

void rachFreq(Check& check)
{
    forRach(
        check, [&](const Cell&, const Bwp& bwp, const RACH_ConfigCommon& rach)
        { occasionsIn(check, bwp, rach.rach_ConfigGeneric, hasLongRoot(rach), MEMBER(rach, msg1_SubcarrierSpacing)); });
    const Dedicated dedicated = dedicatedOf(check);
    const auto* const occasions = dedicated.cfra == nullptr ? nullptr : MEMBER(*dedicated.cfra, occasions);
    if (occasions != nullptr && dedicated.bwp != nullptr && check.decided(dedicated.common) &&
        *dedicated.common != nullptr)
    {
        const RACH_ConfigCommon& common = **dedicated.common;
        occasionsIn(check, *dedicated.bwp, occasions->rach_ConfigGeneric, hasLongRoot(common),
                    MEMBER(common, msg1_SubcarrierSpacing));
    }
    forRecovery(check,
                [&](const Cell&, const Bwp& bwp, const BeamFailureRecoveryConfig& recovery)
                {
                    const RACH_ConfigGeneric* const generic = MEMBER(recovery, rach_ConfigBFR);
                    const SubcarrierSpacing* const scs = ADDITION(recovery, 2, msg1_SubcarrierSpacing_v1530);
                    if (generic != nullptr && scs != nullptr)
                    {
                        occasionsIn(check, bwp, *generic, false, scs);
                    }
                });
}

// ssb-perRACH-OccasionAndCB-PreamblesPerSSB.
struct Share
{
    OSUINT32 blocks;    // of an occasion, 1 for fractions; 0 where the tree is broken
    OSUINT32 preambles; // of each block, for contention
};

Share shareOf(const RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB& choice)
{
    const auto many = [](OSUINT32 blocks, OSUINT32 value)
    {
        return value < 16 ? Share{blocks, 4 * (value + 1)} : Share{};
    };
    switch (choice.t)
    {
    case T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_oneEighth:
        return many(1, choice.u.oneEighth);
    case T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_oneFourth:
        return many(1, choice.u.oneFourth);
    case T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_oneHalf:
        return many(1, choice.u.oneHalf);
    case T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_one:
        return many(1, choice.u.one);
    case T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_two:
        return many(2, choice.u.two);
    case T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_four:
        return {4, choice.u.four};
    case T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_eight:
        return {8, choice.u.eight};
    case T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_sixteen:
        return {16, choice.u.sixteen};
    default:
        return {};
    }
}

constexpr OSUINT32 allPreambles = 64;

OSUINT32 totalOf(const RACH_ConfigCommon& rach)
{
    return rach.m.totalNumberOfRA_PreamblesPresent != 0 ? rach.totalNumberOfRA_Preambles : allPreambles;
}

// The blocks of an occasion share its preambles.
void rachPreambles(Check& check)
{
    forRach(check,
            [&](const Cell&, const Bwp&, const RACH_ConfigCommon& rach)
            {
                const auto* const choice = MEMBER(rach, ssb_perRACH_OccasionAndCB_PreamblesPerSSB);
                const Share share = choice == nullptr ? Share{} : shareOf(*choice);
                const OSUINT32 total = totalOf(rach);
                if (share.blocks == 0)
                {
                    return;
                }
                if (total % share.blocks != 0)
                {
                    check.error(&rach.totalNumberOfRA_Preambles)
                        .allowed("%u blocks share an occasion: %u or %u", share.blocks, total - total % share.blocks,
                                 total - total % share.blocks + share.blocks);
                }
                else if (share.blocks * share.preambles > total)
                {
                    check.error(choice)
                        .found("%u blocks of %u preambles in an occasion", share.blocks, share.preambles)
                        .allowed("that has %u: %u for each", total, total / share.blocks);
                }
                const auto* const groups = MEMBER(rach, groupBconfigured);
                if (groups != nullptr && groups->numberOfRA_PreamblesGroupA >= share.preambles)
                {
                    check.error(&groups->numberOfRA_PreamblesGroupA)
                        .allowed("a block has %u preambles, which leaves none for group B", share.preambles)
                        .advice("Leave preambles for group B, or take groupBconfigured away.");
                }
            });
}

// A response comes within 10 ms.
void checkWindow(Check& check, const Cell& cell, const Bwp& bwp, const RACH_ConfigGeneric& generic)
{
    static constexpr OSUINT32 windows[] = {1, 2, 4, 8, 10, 20, 40, 80};
    const Bwp* const linked = cell.bwp(Direction::Downlink, bwp.id);
    const Known<OSUINT32> mu = linked != nullptr && linked->mu()           ? linked->mu()
                               : bwp.direction == Direction::Supplementary ? Known<OSUINT32>::unless(bwp.missing)
                                                                           : bwp.mu();
    if (generic.ra_ResponseWindow >= std::size(windows) || !check.decided(mu))
    {
        return;
    }
    const OSUINT32 most = 10U << *mu;
    if (windows[generic.ra_ResponseWindow] > most)
    {
        check.error(&generic.ra_ResponseWindow).allowed("10 ms at %u kHz are %u slots", khzOf(*mu), most);
    }
}

void rachResponseWindow(Check& check)
{
    forRach(check,
            [&](const Cell& cell, const Bwp& bwp, const RACH_ConfigCommon& rach)
            {
                if (cell.isSpCell()) // the responses of others come there
                {
                    checkWindow(check, cell, bwp, rach.rach_ConfigGeneric);
                }
            });
    forRecovery(check,
                [&](const Cell& cell, const Bwp& bwp, const BeamFailureRecoveryConfig& recovery)
                {
                    if (const RACH_ConfigGeneric* const generic = MEMBER(recovery, rach_ConfigBFR))
                    {
                        checkWindow(check, cell, bwp, *generic);
                    }
                });
}

// The power aimed at is even, and restricted sets are those of long preambles.
void checkTarget(Check& check, const RACH_ConfigGeneric& generic)
{
    const int dBm = generic.preambleReceivedTargetPower;
    if (dBm % 2 != 0)
    {
        check.error(&generic.preambleReceivedTargetPower)
            .allowed("only even values are used: %d or %d", dBm - 1, dBm + 1);
    }
}

void rachPower(Check& check)
{
    forRach(check,
            [&](const Cell&, const Bwp&, const RACH_ConfigCommon& rach)
            {
                checkTarget(check, rach.rach_ConfigGeneric);
                if (rach.restrictedSetConfig != RACH_ConfigCommon_restrictedSetConfig_unrestrictedSet &&
                    !hasLongRoot(rach))
                {
                    check.warning(&rach.restrictedSetConfig)
                        .allowed("short preambles have no restricted sets")
                        .advice("Set unrestrictedSet.");
                }
            });
    forRecovery(check,
                [&](const Cell&, const Bwp&, const BeamFailureRecoveryConfig& recovery)
                {
                    if (const RACH_ConfigGeneric* const generic = MEMBER(recovery, rach_ConfigBFR))
                    {
                        checkTarget(check, *generic);
                    }
                });
}

// A preamble of contention free random access is none of those for contention.
bool isSameOccasions(const RACH_ConfigGeneric& a, const RACH_ConfigGeneric& b)
{
    return a.prach_ConfigurationIndex == b.prach_ConfigurationIndex && a.msg1_FDM == b.msg1_FDM &&
           a.msg1_FrequencyStart == b.msg1_FrequencyStart;
}

void preambleOf(Check& check, const CFRA& cfra, const RACH_ConfigCommon& common, const OSUINT8* preamble)
{
    const auto* const occasions = MEMBER(cfra, occasions);
    const OSUINT8* const ownTotal = ADDITION(cfra, 2, totalNumberOfRA_Preambles_v1530);
    const OSUINT32 total = occasions == nullptr ? totalOf(common) : ownTotal != nullptr ? *ownTotal : allPreambles;
    if (*preamble >= total)
    {
        check.warning(preamble)
            .allowed("random access has the preambles 0..%u", total - 1)
            .advice("Take a preamble of random access.");
        return;
    }
    const auto* const choice = MEMBER(common, ssb_perRACH_OccasionAndCB_PreamblesPerSSB);
    const Share share = choice == nullptr ? Share{} : shareOf(*choice);
    const bool isShared =
        occasions == nullptr || isSameOccasions(occasions->rach_ConfigGeneric, common.rach_ConfigGeneric);
    const OSUINT32 width = share.blocks == 0 ? 0 : totalOf(common) / share.blocks;
    if (isShared && width != 0 && *preamble < width * share.blocks && *preamble % width < share.preambles)
    {
        check.warning(preamble)
            .allowed("the preambles for contention are the first %u of each %u", share.preambles, width)
            .advice("Take a preamble behind those for contention.");
    }
}

// The CSI-RS of mobility that the serving cell's measurement object has.
void csiRsOf(Check& check, const Cell& cell, const CSI_RS_Index* index)
{
    const auto* const id = cell.dedicated == nullptr ? nullptr : MEMBER(*cell.dedicated, servingCellMO);
    const RrcRuleContext& known = check.model.known;
    if (known.hasMeas == 0)
    {
        check.undecided(RRC_RULE_INPUT_MEAS);
        return;
    }
    for (const RrcRuleMeasObject& object : std::span(known.measObjects, known.numMeasObjects))
    {
        if (id != nullptr && object.id == *id && *index < 8 * sizeof object.csiRsResources &&
            (object.csiRsResources[*index / 8] >> *index % 8 & 1) == 0)
        {
            check.error(index).allowed("measurement object %u has no such CSI-RS", object.id);
        }
    }
}

void rachCfra(Check& check)
{
    const Dedicated dedicated = dedicatedOf(check);
    if (dedicated.cfra == nullptr)
    {
        return;
    }
    const CFRA& cfra = *dedicated.cfra;
    const auto* const resources = &cfra.resources;
    const auto* const ssb = CHOSEN(check.tree, resources, CFRA_resources, ssb);
    const auto* const csirs = CHOSEN(check.tree, resources, CFRA_resources, csirs);
    const auto* const occasions = MEMBER(cfra, occasions);
    const OSUINT8* const total = ADDITION(cfra, 2, totalNumberOfRA_Preambles_v1530);
    const auto* const perOccasion = occasions == nullptr ? nullptr : MEMBER(*occasions, ssb_perRACH_Occasion);
    if (occasions != nullptr && perOccasion == nullptr && ssb != nullptr)
    {
        check.error(&occasions->ssb_perRACH_Occasion).allowed("the resources are blocks, which share the occasions");
    }
    if (perOccasion != nullptr && csirs != nullptr)
    {
        check.notice(perOccasion)
            .allowed("the resources are CSI-RS: V15.6.0 has it with blocks alone, later versions with both")
            .advice("Take it away for UEs of V15.6.0.");
    }
    if (total != nullptr && occasions == nullptr)
    {
        check.error(total).allowed("there are no occasions of its own").advice("Add occasions, or take it away.");
    }
    const OSUINT32 blocks = perOccasion == nullptr || *perOccasion <= CFRA_occasions_ssb_perRACH_Occasion_one
                                ? 1
                                : 1U << (std::min(*perOccasion, 7U) - CFRA_occasions_ssb_perRACH_Occasion_one);
    if (total != nullptr && occasions != nullptr && *total % blocks != 0)
    {
        check.warning(total)
            .allowed("%u blocks share an occasion", blocks)
            .advice("Take a multiple of the blocks that share an occasion.");
    }
    const bool isKnown = check.decided(dedicated.common) && *dedicated.common != nullptr;
    const OSRTDList* const blockList = ssb == nullptr ? nullptr : &ssb->ssb_ResourceList;
    for (const CFRA_SSB_Resource& resource : check.tree.list<CFRA_SSB_Resource>(blockList))
    {
        if (isKnown)
        {
            preambleOf(check, cfra, **dedicated.common, &resource.ra_PreambleIndex);
        }
    }
    const OSRTDList* const csiRsList = csirs == nullptr ? nullptr : &csirs->csirs_ResourceList;
    for (const CFRA_CSIRS_Resource& resource : check.tree.list<CFRA_CSIRS_Resource>(csiRsList))
    {
        csiRsOf(check, *dedicated.cell, &resource.csi_RS);
        if (isKnown)
        {
            preambleOf(check, cfra, **dedicated.common, &resource.ra_PreambleIndex);
        }
    }
}

// Masks that the table has.
void checkMask(Check& check, const OSUINT8* mask)
{
    constexpr OSUINT8 last = 10;
    if (mask != nullptr && *mask > last)
    {
        check.error(mask).allowed("the table ends at %u", last);
    }
}

void rachMask(Check& check)
{
    const CFRA* const cfra = dedicatedOf(check).cfra;
    const auto* const resources = cfra == nullptr ? nullptr : &cfra->resources;
    const auto* const ssb = CHOSEN(check.tree, resources, CFRA_resources, ssb);
    checkMask(check, ssb == nullptr ? nullptr : &ssb->ra_ssb_OccasionMaskIndex);
    forRecovery(check, [&](const Cell&, const Bwp&, const BeamFailureRecoveryConfig& recovery)
                { checkMask(check, MEMBER(recovery, ra_ssb_OccasionMaskIndex)); });
}

// Random access where it is needed: for a handover, on the bandwidth part that it leads to or the initial one.
void rachOfSync(Check& check)
{
    const Cell* const cell = check.model.spCell();
    if (syncOf(cell) == nullptr)
    {
        return;
    }
    const Bwp* initial = nullptr;
    for (const Direction direction : {Direction::Supplementary, Direction::Uplink})
    {
        for (const Bwp* const bwp : {firstActive(*cell, direction), cell->bwp(direction, 0)})
        {
            const Known<const RACH_ConfigCommon*> rach =
                bwp == nullptr ? Known<const RACH_ConfigCommon*>(nullptr) : rachCommon(check.model, *bwp);
            if (!check.decided(rach) || *rach != nullptr)
            {
                return;
            }
            initial = bwp;
        }
    }
    if (initial != nullptr && initial->uplinkCommon != nullptr)
    {
        check.error(&initial->uplinkCommon->rach_ConfigCommon).allowed("reconfigurationWithSync begins random access");
    }
}

// Whether the block that the cell is found by lies in a bandwidth part.
Known<bool> holdsBlock(const Model& model, const Cell& cell, const Bwp& bwp)
{
    const FrequencyInfoDL* const frequency = cell.frequencyDl();
    const ARFCN_ValueNR* const block = frequency == nullptr ? nullptr : MEMBER(*frequency, absoluteFrequencySSB);
    const SubcarrierSpacing* const scs = cell.common == nullptr ? nullptr : MEMBER(*cell.common, ssbSubcarrierSpacing);
    const Known<NrSpan> rbs = commonRbs(model, bwp);
    const Known<OSUINT32> mu = bwp.mu();
    if (block == nullptr || scs == nullptr || !rbs || !mu || muOf(*scs) > highestMu)
    {
        return Known<bool>::unless(rbs.inputs() | RRC_RULE_INPUT_COMMON);
    }
    // Its 240 subcarriers, the 121st of which has its frequency, and the bandwidth part's, in kHz.
    const int64_t centre = nrArfcnKhz(*block);
    const int64_t pointA = nrArfcnKhz(frequency->absoluteFrequencyPointA);
    const int64_t spacing = khzOf(*mu);
    const int64_t first = pointA + int64_t{rbs->start} * 12 * spacing;
    const int64_t last = pointA + (int64_t{rbs->start} + rbs->size) * 12 * spacing - spacing;
    const int64_t blockSpacing = khzOf(muOf(*scs));
    return centre - 120 * blockSpacing >= first && centre + 119 * blockSpacing <= last;
}

void rachOfBwp(Check& check, Cell& cell, const Bwp& bwp, const RACH_ConfigCommon&)
{
    const auto* const at = &bwp.uplinkCommon->rach_ConfigCommon;
    Bwp* const linked = cell.bwp(Direction::Downlink, bwp.id);
    if (linked == nullptr || bwp.direction == Direction::Supplementary)
    {
        return;
    }
    if (!bwp.isInitial())
    {
        const Known<bool> holds = holdsBlock(check.model, cell, *linked);
        if (check.decided(holds) && !*holds)
        {
            check.error(at)
                .found("random access on bandwidth part %u", bwp.id)
                .allowed("its downlink does not hold the SS/PBCH block")
                .advice("Configure random access where the downlink holds the block.");
            return;
        }
    }
    const Pdcch& pdcch = check.model.pdcch(*linked);
    if (!cell.isSpCell() || !pdcch.isCommonKnown || (pdcch.common == nullptr && !check.model.isWhole(*linked)))
    {
        return;
    }
    const bool hasSpace =
        std::any_of(pdcch.allSearchSpaces.begin(), pdcch.allSearchSpaces.end(),
                    [&](const SearchSpaceEntry& entry) { return commonType(check.tree, *entry.element) != nullptr; });
    if (pdcch.common == nullptr && !hasSpace)
    {
        return; // bwp-spcell-css
    }
    if (pdcch.common == nullptr)
    {
        check.error(&linked->downlinkCommon->pdcch_ConfigCommon)
            .allowed("the uplink has random access, whose responses need ra-SearchSpace")
            .advice("Add ra-SearchSpace.");
    }
    else if (pdcch.common->m.ra_SearchSpacePresent == 0)
    {
        check.error(&pdcch.common->ra_SearchSpace)
            .allowed("the uplink has random access, whose responses need it")
            .advice("Add ra-SearchSpace.");
    }
}

void rachCommonNeeded(Check& check)
{
    rachOfSync(check);
    forRach(check,
            [&](Cell& cell, const Bwp& bwp, const RACH_ConfigCommon& rach) { rachOfBwp(check, cell, bwp, rach); });
    forRecovery(
        check,
        [&](const Cell& cell, const Bwp& bwp, const BeamFailureRecoveryConfig& recovery)
        {
            if (recovery.m.candidateBeamRSListPresent == 0 || !cell.isSpCell()) // no contention free access
            {
                return;
            }
            const Known<const RACH_ConfigCommon*> rach = rachCommon(check.model, bwp);
            if (check.decided(rach) && *rach == nullptr && bwp.uplinkCommon != nullptr)
            {
                check.error(&bwp.uplinkCommon->rach_ConfigCommon).allowed("the bandwidth part has candidateBeamRSList");
            }
        });
}

// The threshold that chooses the supplementary uplink is there with it.
Known<bool> hasSul(const Cell& cell)
{
    if (cell.common != nullptr)
    {
        return cell.supplementaryCommon() != nullptr;
    }
    if (cell.supplementary != nullptr)
    {
        return true;
    }
    return Known<bool>::unless(cell.isSpCell() ? RRC_RULE_INPUT_COMMON : RRC_RULE_INPUT_PREVIOUS);
}

void rachSul(Check& check)
{
    forRach(check,
            [&](const Cell& cell, const Bwp& bwp, const RACH_ConfigCommon& rach)
            {
                const Known<bool> sul = hasSul(cell);
                if (bwp.direction == Direction::Supplementary || !check.decided(sul))
                {
                    return;
                }
                const bool isPresent = rach.m.rsrp_ThresholdSSB_SULPresent != 0;
                if (*sul && bwp.isInitial() && !isPresent)
                {
                    check.error(&rach.rsrp_ThresholdSSB_SUL).allowed("the cell has a supplementary uplink");
                }
                if (!*sul && isPresent)
                {
                    check.error(&rach.rsrp_ThresholdSSB_SUL)
                        .allowed("the cell has no supplementary uplink")
                        .advice("Take it away.");
                }
            });
    const Dedicated dedicated = dedicatedOf(check);
    if (dedicated.choice != nullptr && dedicated.direction == Direction::Supplementary)
    {
        const Known<bool> sul = hasSul(*dedicated.cell);
        if (check.decided(sul) && !*sul)
        {
            check.error(dedicated.choice).allowed("the cell has no supplementary uplink").advice("Use uplink.");
        }
    }
}

// Beam failure is detected by at most two signals of one port each.
void detection(Check& check, Cell& cell, const RadioLinkMonitoringConfig& monitoring)
{
    constexpr OSUINT32 most = 2;
    const bool hasCount = monitoring.m.beamFailureInstanceMaxCountPresent != 0;
    const bool hasTimer = monitoring.m.beamFailureDetectionTimerPresent != 0;
    if (hasCount && !hasTimer)
    {
        check.error(&monitoring.beamFailureDetectionTimer).allowed("beamFailureInstanceMaxCount is there");
    }
    if (!hasCount && hasTimer)
    {
        check.warning(&monitoring.beamFailureInstanceMaxCount)
            .allowed("beamFailureDetectionTimer is there, and without a count no failure is declared");
    }
    OSUINT32 signals = 0;
    const OSRTDList* const list = MEMBER(monitoring, failureDetectionResourcesToAddModList);
    for (const RadioLinkMonitoringRS& signal : check.tree.list<RadioLinkMonitoringRS>(list))
    {
        const bool isForBeam = signal.purpose != RadioLinkMonitoringRS_purpose_rlf;
        signals += isForBeam ? 1 : 0;
        if (isForBeam && signals == most + 1)
        {
            check.error(&signal.purpose)
                .allowed("%u other signals detect beam failure already", most)
                .advice("Use rlf, or take the signal away.");
        }
        if (signal.detectionResource.t != T_RadioLinkMonitoringRS_detectionResource_csi_RS_Index)
        {
            continue;
        }
        const auto* const id = &signal.detectionResource.u.csi_RS_Index;
        const auto* const resource = check.resolve(check.model.csi(cell).nzpResources, *id, id, "a CSI-RS");
        if (isForBeam && resource != nullptr && portsOf(resource->resourceMapping) > 1)
        {
            check.error(id)
                .found("CSI-RS %u of %u ports", *id, portsOf(resource->resourceMapping))
                .allowed("beam failure is detected by one port")
                .advice("Name a CSI-RS of one port.");
        }
    }
}

// Candidates have one or two ports, a density of one or three, and lie in the bandwidth part.
void candidate(Check& check, Cell& cell, const Bwp& bwp, const NZP_CSI_RS_ResourceId* id)
{
    const Csi& csi = check.model.csi(cell);
    const auto* const resource = check.resolve(csi.nzpResources, *id, id, "a CSI-RS");
    if (resource == nullptr)
    {
        return;
    }
    const CSI_RS_ResourceMapping& mapping = resource->resourceMapping;
    const OSUINT32 bwps = *id < std::size(csi.nzpUse) ? csi.nzpUse[*id].bwps : 0;
    if (portsOf(mapping) > 2)
    {
        check.error(id)
            .found("CSI-RS %u of %u ports", *id, portsOf(mapping))
            .allowed("a candidate has one or two")
            .advice("Name a CSI-RS of one or two ports.");
    }
    else if (mapping.density.t == T_CSI_RS_ResourceMapping_density_dot5)
    {
        check.error(id)
            .found("CSI-RS %u of density dot5", *id)
            .allowed("a candidate has one or three")
            .advice("Name a CSI-RS of density one or three.");
    }
    else if (csi.resourceConfigs.complete && bwps != 0 && (bwps >> bwp.id & 1) == 0)
    {
        check.error(id)
            .found("CSI-RS %u of another bandwidth part", *id)
            .allowed("candidates are in downlink bandwidth part %u", bwp.id)
            .advice("Name a CSI-RS of the bandwidth part.");
    }
}

bool recovers(std::span<Bwp> bwps)
{
    return std::any_of(bwps.begin(), bwps.end(), [](const Bwp& bwp) { return bwp.bfr != nullptr; });
}

void rachBfr(Check& check)
{
    Cell* const spCell = check.model.spCell();
    if (spCell != nullptr)
    {
        for (const Bwp& bwp : spCell->downlink)
        {
            if (bwp.rlm != nullptr)
            {
                detection(check, *spCell, *bwp.rlm);
            }
        }
    }
    forRecovery(check,
                [&](Cell& cell, const Bwp& bwp, const BeamFailureRecoveryConfig& recovery)
                {
                    if (bwp.direction == Direction::Supplementary && recovers(cell.uplink))
                    {
                        check.error(&bwp.uplinkDedicated->beamFailureRecoveryConfig)
                            .allowed("the uplink has it, too")
                            .advice("Keep one of them.");
                    }
                    const OSRTDList* const list = MEMBER(recovery, candidateBeamRSList);
                    for (const PRACH_ResourceDedicatedBFR& one : check.tree.list<PRACH_ResourceDedicatedBFR>(list))
                    {
                        const auto* const choice = &one;
                        if (const auto* const signal = CHOSEN(check.tree, choice, PRACH_ResourceDedicatedBFR, csi_RS))
                        {
                            candidate(check, cell, bwp, &signal->csi_RS);
                        }
                    }
                });
}

#define AT_CFRA AT_SYNC "rach-ConfigDedicated.uplink.cfra."
#define AT_MONITORING AT_CELL "initialDownlinkBWP.radioLinkMonitoringConfig.setup."

// Long preambles.
#define EXAMPLE_LONG                                                                                                   \
    AT_RACH "prach-RootSequenceIndex = absent\n" AT_RACH "prach-RootSequenceIndex.l839 = 1\n" AT_RACH                  \
            "msg1-SubcarrierSpacing = absent\n"

constexpr Rule rachTable[] = {
    {.told = {.id = "rach-format-len",
              .severity = RRC_RULE_ERROR,
              .statement = "prach-RootSequenceIndex has the length of the preambles that prach-ConfigurationIndex has "
                           "in the cell's band, contention free occasions too; beam failure recovery has short ones.",
              .advice = "Take a root sequence, or a configuration index, of the other length.",
              .clause = "TS 38.211 tables 6.3.3.2-2 to 6.3.3.2-4; TS 38.331 RACH-ConfigCommon",
              .given = "",
              .bad = EXAMPLE_LONG,
              .good = EXAMPLE_LONG AT_RACH "rach-ConfigGeneric.prach-ConfigurationIndex = 66\n" AT_CFRA
                                           "occasions.rach-ConfigGeneric.prach-ConfigurationIndex = 66",
              .since = "0.1.0"},
     .run = rachFormatLen},
    {.told = {.id = "rach-scs",
              .severity = RRC_RULE_ERROR,
              .statement = "msg1-SubcarrierSpacing is present with short preambles and only with them: 15 or 30 kHz in "
                           "FR1, 60 or 120 kHz in FR2.",
              .advice = "Send the spacing of the short preambles.",
              .clause = "TS 38.331 RACH-ConfigCommon, Cond L139",
              .given = "",
              .bad = AT_RACH "msg1-SubcarrierSpacing = kHz60",
              .good = AT_RACH "msg1-SubcarrierSpacing = kHz15",
              .since = "0.1.0"},
     .run = rachScs},
    {.told = {.id = "rach-freq",
              .severity = RRC_RULE_ERROR,
              .statement = "The PRACH occasions from msg1-FrequencyStart on, msg1-FDM side by side, lie in the uplink "
                           "bandwidth part.",
              .advice = "Lower msg1-FrequencyStart or msg1-FDM.",
              .clause = "TS 38.331 RACH-ConfigGeneric; TS 38.211 6.3.3.2, table 6.3.3.2-1",
              .given = "",
              .bad = AT_RACH "rach-ConfigGeneric.msg1-FDM = eight\n" AT_RACH
                             "rach-ConfigGeneric.msg1-FrequencyStart = 178",
              .good = AT_RACH "rach-ConfigGeneric.msg1-FDM = eight\n" AT_RACH
                              "rach-ConfigGeneric.msg1-FrequencyStart = 177",
              .since = "0.1.0"},
     .run = rachFreq},
    {.told = {.id = "rach-preambles",
              .severity = RRC_RULE_ERROR,
              .statement = "The preambles of an occasion are a multiple of the blocks that share it, suffice for those "
                           "of each block, and leave some for group B where that is configured.",
              .advice = "Give each block fewer preambles, or the occasion more.",
              .clause = "TS 38.331 RACH-ConfigCommon; TS 38.321 5.1.1",
              .given = "",
              .bad = AT_RACH "ssb-perRACH-OccasionAndCB-PreamblesPerSSB = absent\n" AT_RACH
                             "ssb-perRACH-OccasionAndCB-PreamblesPerSSB.two = n32\n" AT_RACH
                             "totalNumberOfRA-Preambles = 60",
              .good = AT_RACH "ssb-perRACH-OccasionAndCB-PreamblesPerSSB = absent\n" AT_RACH
                              "ssb-perRACH-OccasionAndCB-PreamblesPerSSB.two = n28\n" AT_RACH
                              "totalNumberOfRA-Preambles = 60",
              .since = "0.1.0"},
     .run = rachPreambles},
    {.told = {.id = "rach-response-window",
              .severity = RRC_RULE_ERROR,
              .statement = "ra-ResponseWindow is at most 10 ms.",
              .advice = "Take a shorter window.",
              .clause = "TS 38.331 RACH-ConfigGeneric",
              .given = "",
              .bad = AT_RACH "rach-ConfigGeneric.ra-ResponseWindow = sl40",
              .good = AT_RACH "rach-ConfigGeneric.ra-ResponseWindow = sl20",
              .since = "0.1.0"},
     .run = rachResponseWindow},
    {.told = {.id = "rach-power",
              .severity = RRC_RULE_ERROR,
              .statement = "preambleReceivedTargetPower is even; a restricted set goes with long preambles.",
              .advice = "Take the even value beside it.",
              .clause = "TS 38.331 RACH-ConfigGeneric; TS 38.211 6.3.3.1",
              .given = "",
              .bad = AT_RACH "rach-ConfigGeneric.preambleReceivedTargetPower = -103",
              .good = AT_RACH "rach-ConfigGeneric.preambleReceivedTargetPower = -102",
              .since = "0.1.0"},
     .run = rachPower},
    {.told = {.id = "rach-cfra",
              .severity = RRC_RULE_ERROR,
              .statement = "The occasions of contention-free access by SS/PBCH blocks have ssb-perRACH-Occasion, "
                           "totalNumberOfRA-Preambles-v1530 comes only with occasions, the preambles are not those of "
                           "contention, and CSI-RS are of the serving cell's measurement object.",
              .advice = "Say how many blocks share an occasion.",
              .clause = "TS 38.331 RACH-ConfigDedicated, Cond SSB-CFRA, Cond Occasions; TS 38.213 8.1",
              .given = "",
              .bad = AT_CFRA "occasions.ssb-perRACH-Occasion = absent",
              .good = AT_CFRA "occasions = absent",
              .since = "0.1.0"},
     .run = rachCfra},
    {.told = {.id = "rach-mask",
              .severity = RRC_RULE_ERROR,
              .statement = "ra-ssb-OccasionMaskIndex is 0..10.",
              .advice = "Take an index that the table has.",
              .clause = "TS 38.321 table 7.4-1",
              .given = "",
              .bad = AT_CFRA "resources.ssb.ra-ssb-OccasionMaskIndex = 11",
              .good = AT_CFRA "resources.ssb.ra-ssb-OccasionMaskIndex = 10",
              .since = "0.1.0"},
     .run = rachMask},
    {.told = {.id = "rach-common-needed",
              .severity = RRC_RULE_ERROR,
              .statement = "rach-ConfigCommon is there for a handover and beside beamFailureRecoveryConfig; where it "
                           "is, the downlink bandwidth part of the same id is the initial one or holds the SS/PBCH "
                           "block, and on the SpCell it has ra-SearchSpace.",
              .advice = "Add rach-ConfigCommon.",
              .clause = "TS 38.331 BWP-UplinkCommon, PDCCH-ConfigCommon; TS 38.321 5.15",
              .given = "",
              .bad = AT_COMMON_DL "initialDownlinkBWP.pdcch-ConfigCommon.setup.ra-SearchSpace = absent",
              .good = AT_COMMON_DL "initialDownlinkBWP.pdcch-ConfigCommon.setup.ra-SearchSpace = 0",
              .since = "0.1.0"},
     .run = rachCommonNeeded},
    {.told = {.id = "rach-sul",
              .severity = RRC_RULE_ERROR,
              .statement = "rsrp-ThresholdSSB-SUL is in the initial bandwidth part's rach-ConfigCommon where the cell "
                           "has a supplementary uplink, and only there; rach-ConfigDedicated is for an uplink that "
                           "there is.",
              .advice = "Send the threshold.",
              .clause = "TS 38.331 RACH-ConfigCommon, Cond SUL",
              .given = "",
              .bad = EXAMPLE_SUL AT_RACH "rsrp-ThresholdSSB-SUL = absent",
              .good = EXAMPLE_SUL,
              .since = "0.1.0"},
     .run = rachSul},
    {.told = {.id = "rach-bfr",
              .severity = RRC_RULE_ERROR,
              .statement = "Beam failure is detected with a count and a timer, by at most two signals of one port; "
                           "candidates are CSI-RS of one or two ports and density one or three in the bandwidth part; "
                           "recovery is on the uplink or the supplementary uplink, not on both.",
              .advice = "Configure beamFailureInstanceMaxCount and beamFailureDetectionTimer together.",
              .clause = "TS 38.331 BeamFailureRecoveryConfig, RadioLinkMonitoringConfig; TS 38.213 6",
              .given = "",
              .bad = AT_MONITORING "beamFailureInstanceMaxCount = n4",
              .good =
                  AT_MONITORING "beamFailureInstanceMaxCount = n4\n" AT_MONITORING "beamFailureDetectionTimer = pbfd4",
              .since = "0.1.0"},
     .run = rachBfr},
};

} // namespace

constinit const RuleGroup rachRules = groupOf(rachTable);

} // namespace rules
