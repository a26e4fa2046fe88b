#include "records.h"

namespace records
{

namespace
{

void drawResourceType(Chance& chance, RrcSrsResourceSet_t& record)
{
    switch (chance.alternative(record.presence, {RRC_SRS_RESOURCE_SET_TYPE_APERIODIC_PERSENCE,
                                                 RRC_SRS_RESOURCE_SET_TYPE_SEMI_PERSISTENT_PERSENCE,
                                                 RRC_SRS_RESOURCE_SET_TYPE_PERIODIC_PERSENCE}))
    {
    case 0:
    {
        aperiodic_s& aperiodic = record.resourceType.aperiodic;
        chance.number(aperiodic.aperiodicSrsResourceTrigger, 1, 3);
        chance.numberIf(aperiodic.bitMask, RRC_SRS_RESOURCE_SET_APERIODIC_CSI_RS_PRESENCE, aperiodic.csiRsResourceId, 0,
                        191);
        chance.numberIf(aperiodic.bitMask, RRC_SRS_RESOURCE_SET_APERIODIC_SLOT_OFFSET_PRESENCE, aperiodic.slotOffset, 1,
                        32);
        break;
    }
    case 1:
    {
        semiPersistent_s& semiPersistent = record.resourceType.semiPersistent;
        chance.numberIf(semiPersistent.bitMask, RRC_SRS_RESOURCE_SET_SEMI_PERSISTENT_CSI_RS_PRESENCE,
                        semiPersistent.associatedCsiRsId, 0, 191);
        break;
    }
    default:
    {
        periodic_s& periodic = record.resourceType.periodic;
        chance.numberIf(periodic.bitMask, RRC_SRS_RESOURCE_SET_PERIODIC_CSI_RS_PRESENCE, periodic.associatedCsiRsId, 0,
                        191);
        break;
    }
    }
}

void drawP0(Chance& chance, int& p0)
{
    chance.number(p0, -202, 24);
    // Only the low 16 bits are sent.
    chance.above(p0, 16);
}

void draw(Chance& chance, RrcSRSPathLossRefRs_t& record)
{
    rrcInit(&record);
    if (chance.alternative(record.presence,
                           {RRC_SRS_PATH_LOSS_REF_RS_SSB_IDX_PRESENCE, RRC_SRS_PATH_LOSS_REF_RS_CSI_IDX_PRESENCE}) == 0)
    {
        chance.number(record.u.ssbIdx, 0, 63);
    }
    else
    {
        chance.number(record.u.csiRsIdx, 0, 191);
    }
}

void draw(Chance& chance, RrcSrsResourceSet_t& record)
{
    rrcInit(&record);
    chance.number(record.srsResourceSetId, 0, 15);
    const unsigned resources = chance.optionalCount(record.numSrsResourceId, RRC_MAX_NROF_SRS_RESOURCE_PER_SET, 6);
    chance.numbers(record.srsResourceId, resources, 0, 63);
    drawResourceType(chance, record);
    chance.enumeration(record.usage, 3);
    chance.enumerationIf(record.presence, RRC_SRS_RESOURCE_SET_ALPHA_PERSENCE, record.Alpha, 7);
    if (chance.flag(record.presence, RRC_SRS_RESOURCE_SET_P0_PERSENCE))
    {
        drawP0(chance, record.p0);
    }
    if (chance.flag(record.presence, RRC_SRS_PATH_LOSS_REFERENCE_RS_PRESENT))
    {
        draw(chance, record.pathLossRefRs);
    }
    chance.enumerationIf(record.presence, RRC_SRS_RESOURCE_SET_POWER_CTL_ADJ_PERSENCE,
                         record.srsPowerControlAdjustmentStates, 1);
}

// Semi-persistent or periodic.
template <typename Type>
void drawPeriodicity(Chance& chance, Type& record)
{
    constexpr unsigned slots[] = {1, 2, 4, 5, 8, 10, 16, 20, 32, 40, 64, 80, 160, 320, 640, 1280, 2560};
    constexpr unsigned sl1 = 0;
    constexpr unsigned sl320 = 13;
    const unsigned place = chance.tag(record.period, std::size(slots));
    if (place == sl1)
    {
        chance.bits(record.offset, 16);
        return;
    }
    chance.number(record.offset, 0, slots[place] - 1);
    // Only the low 8 bits of the shorter ones are sent.
    if (place < sl320)
    {
        chance.above(record.offset, 8);
    }
}

void draw(Chance& chance, RrcSrsSpatialRelationInfo_t& record)
{
    rrcInit(&record);
    chance.numberIf(record.bitMask, RRC_SRS_SERVING_CELL_ID, record.servingCellId, 0, 31);
    switch (chance.alternative(record.presence, {RRC_SRS_SPATIAL_RELATION_INFO_SSB_PRESENCE,
                                                 RRC_SRS_SPATIAL_RELATION_INFO_CSI_RS_PRESENCE,
                                                 RRC_SRS_SPATIAL_RELATION_INFO_SRS_PRESENCE}))
    {
    case 0:
        chance.number(record.refSig.ssbIdx, 0, 63);
        break;
    case 1:
        chance.number(record.refSig.csiRsIdx, 0, 191);
        break;
    default:
        chance.number(record.refSig.srs.resourceId, 0, 63);
        chance.number(record.refSig.srs.ulBwpId, 0, 4);
        break;
    }
}

void draw(Chance& chance, RrcSrsResource_t& record)
{
    rrcInit(&record);
    chance.number(record.srsResourceId, 0, 63);
    chance.enumeration(record.nrofSrsPotrs, 2);
    if (chance.alternative(record.presence, {RRC_SRS_RESOURCE_TRANSMISSION_COMB_N2_PRESENCE,
                                             RRC_SRS_RESOURCE_TRANSMISSION_COMB_N4_PRESENCE}) == 0)
    {
        chance.number(record.transmissionComb.n2.combOffsetN2, 0, 1);
        chance.number(record.transmissionComb.n2.cyclicShiftN2, 0, 7);
    }
    else
    {
        chance.number(record.transmissionComb.n4.combOffsetN4, 0, 3);
        chance.number(record.transmissionComb.n4.cyclicShiftN4, 0, 11);
    }
    chance.number(record.resourceMapping.startPos, 0, 5);
    chance.enumeration(record.resourceMapping.nfofSymbols, 2);
    chance.enumeration(record.resourceMapping.repetitionFactor, 2);
    chance.number(record.freqDomainPostion, 0, 67);
    chance.number(record.freqDomainShift, 0, 268);
    chance.number(record.freqHopping.cSrs, 0, 63);
    chance.number(record.freqHopping.bSrs, 0, 3);
    chance.number(record.freqHopping.bHop, 0, 3);
    chance.enumeration(record.groupOrSeqHopping, 2);
    switch (chance.alternative(record.presence1, {RRC_SRS_RESOURCE_TYPE_APERIODIC_PERSENCE,
                                                  RRC_SRS_RESOURCE_TYPE_SEMI_PERSISTENT_PERSENCE,
                                                  RRC_SRS_RESOURCE_TYPE_PERIODIC_PERSENCE}))
    {
    case 0:
        // Not read.
        chance.bits(record.resourceType.aperiodic.padding, 8);
        break;
    case 1:
        drawPeriodicity(chance, record.resourceType.semiPersistent);
        break;
    default:
        drawPeriodicity(chance, record.resourceType.periodic);
        break;
    }
    chance.number(record.seqId, 0, 1023);
    chance.enumerationIf(record.bitMask, RRC_SRS_RESOURCE_PTRS_PORT_IDX_PRESENCE, record.ptrsPortIdx, 1);
    if (chance.flag(record.bitMask, RRC_SRS_RESOURCE_PTRS_SPATIAL_RELATION_INFO_PRESENCE))
    {
        draw(chance, record.spatialRelationInfo);
    }
}

} // namespace

void draw(Chance& chance, RrcSrsCfg_t& record)
{
    rrcInit(&record);
    const auto sets = [&]
    {
        const unsigned added = chance.optionalCount(record.numSrsResourceSetAddMod, RRC_MAX_NROF_SRS_RESOURCESET, 16);
        for (unsigned i = 0; i < added; ++i)
        {
            draw(chance, record.srsResourceSet[i]);
        }
    };
    const auto resources = [&]
    {
        const unsigned added = chance.optionalCount(record.numSrsResourceAddMod, RRC_MAX_NROF_SRS_RESOURCE, 63);
        for (unsigned i = 0; i < added; ++i)
        {
            draw(chance, record.srsResource[i]);
        }
    };
    const auto releases = [&]
    {
        const unsigned releasedSets =
            chance.optionalCount(record.numSrsResourceSetRel, RRC_MAX_NROF_SRS_RESOURCESET, 4);
        chance.numbers(record.srsResourceSetId, releasedSets, 0, 15);
        const unsigned releasedResources = chance.optionalCount(record.numSrsResourceRel, RRC_MAX_NROF_SRS_RESOURCE, 6);
        chance.numbers(record.srsResourceId, releasedResources, 0, 63);
    };
    chance.inAnyOrder(sets, resources, releases);
    chance.enumerationIf(record.bitMask, RRC_SRS_CFG_TPC_ACCUMULATION_PRESENCE, record.tpcAccumulation, 0);
}

} // namespace records
