#include "records.h"

namespace records
{

namespace
{

void draw(Chance& chance, RrcPucchResourceSet_t& record)
{
    rrcInit(&record);
    chance.number(record.pucchResourceSetId, 0, 3);
    const unsigned resources = chance.count(record.numResourceList, 1, 32, 7);
    chance.numbers(record.pucchResourceId, resources, 0, 127);
    chance.numberIf(record.bitMask, RRC_PUCCH_RESOURCE_SET_MAX_PAYLOAD_MINUS1_PRESENCE, record.maxPayloadMinus1, 4,
                    256);
}

void draw(Chance& chance, RrcPucchFormat0_t& record)
{
    chance.number(record.initialCyclicShift, 0, 11);
    chance.number(record.nrofSymbols, 1, 2);
    chance.number(record.startingSymbolIdx, 0, 13);
}

void draw(Chance& chance, RrcPucchFormat1_t& record)
{
    chance.number(record.initialCyclicShift, 0, 11);
    chance.number(record.nrofSymbols, 4, 14);
    chance.number(record.startingSymbolIdx, 0, 10);
    chance.number(record.timeDomainOCC, 0, 6);
}

void draw(Chance& chance, RrcPucchFormat2_t& record)
{
    chance.number(record.nrofPRBs, 1, 16);
    chance.number(record.nrofSymbols, 1, 2);
    chance.number(record.startingSymbolIdx, 0, 13);
}

void draw(Chance& chance, RrcPucchFormat3_t& record)
{
    chance.number(record.nrofPRBs, 1, 16);
    chance.number(record.nrofSymbols, 4, 14);
    chance.number(record.startingSymbolIdx, 0, 10);
}

void draw(Chance& chance, RrcPucchFormat4_t& record)
{
    chance.number(record.nrofSymbols, 4, 14);
    chance.enumeration(record.occLength, 1);
    chance.enumeration(record.occIdx, 3);
    chance.number(record.startingSymbolIdx, 0, 10);
}

void draw(Chance& chance, RrcPucchResource_t& record)
{
    rrcInit(&record);
    chance.number(record.pucchResourceId, 0, 127);
    chance.number(record.startingPRB, 0, 274);
    switch (
        chance.alternative(record.presence, {RRC_PUCCH_RESOURCE_FORMAT0_PRESENCE, RRC_PUCCH_RESOURCE_FORMAT1_PRESENCE,
                                             RRC_PUCCH_RESOURCE_FORMAT2_PRESENCE, RRC_PUCCH_RESOURCE_FORMAT3_PRESENCE,
                                             RRC_PUCCH_RESOURCE_FORMAT4_PRESENCE}))
    {
    case 0:
        draw(chance, record.format.format0);
        break;
    case 1:
        draw(chance, record.format.format1);
        break;
    case 2:
        draw(chance, record.format.format2);
        break;
    case 3:
        draw(chance, record.format.format3);
        break;
    default:
        draw(chance, record.format.format4);
        break;
    }
    chance.enumerationIf(record.bitMask, RRC_PUCCH_RESOURCE_INTRA_SLOT_FREQ_HOPPING_PRESENCE,
                         record.intraSlotFreqHopping, 0);
    chance.numberIf(record.bitMask, RRC_PUCCH_RESOURCE_SECOND_HOPPING_PRB_PRESENCE, record.secondHopPRB, 0, 274);
}

void draw(Chance& chance, RrcPucchFormatCfg_t& record)
{
    rrcInit(&record);
    chance.enumerationIf(record.bitMask, RRC_PUCCH_FORMAT_CFG_INTER_SLOT_FREQ_HOPPING_PRESENCE,
                         record.interSlotFreqHopping, 0);
    chance.enumerationIf(record.bitMask, RRC_PUCCH_FORMAT_CFG_ADDITIONAL_DMRS_PRESENCE, record.additionalDMRS, 0);
    chance.enumerationIf(record.bitMask, RRC_PUCCH_FORMAT_CFG_MAX_CODE_RATE_PRESENCE, record.maxCodeRate, 6);
    chance.enumerationIf(record.bitMask, RRC_PUCCH_FORMAT_CFG_NR_OF_SLOTS_PRESENCE, record.nrofSlots, 2);
    chance.enumerationIf(record.bitMask, RRC_PUCCH_FORMAT_CFG_SIMULTANEOUS_HARQ_ACK_CSI_PRESENCE,
                         record.sumultaneousHarqAckCsi, 0);
    chance.enumerationIf(record.bitMask, RRC_PUCCH_FORMAT_CFG_PI2BPSK_PRESENCE, record.pi2BPSK, 0);
}

// The periodicity by its place in the schema.
void drawOffset(Chance& chance, RrcSchedReqResourceCfg_t::rrcSchedReqPeriodAndOffset_s& record, unsigned place)
{
    constexpr unsigned slots[] = {1, 1, 1, 2, 4, 5, 8, 10, 16, 20, 40, 80, 160, 320, 640};
    constexpr unsigned sl2 = 3;
    constexpr unsigned sl320 = 13;
    // Not read.
    chance.bits(record.period, 8);
    if (place < sl2)
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

void draw(Chance& chance, RrcSchedReqResourceCfg_t& record)
{
    rrcInit(&record);
    chance.number(record.schedReqResourceId, 1, 8);
    chance.number(record.schedReqId, 0, 7);
    if (chance.flag(record.bitMask, RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_PRESENCE))
    {
        const unsigned place = chance.alternative(
            record.presence,
            {RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SYM2, RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SYM6OR7,
             RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL1, RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL2,
             RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL4, RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL5,
             RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL8, RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL10,
             RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL16, RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL20,
             RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL40, RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL80,
             RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL160, RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL320,
             RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL640});
        drawOffset(chance, record.periodAndOffset, place);
    }
    chance.numberIf(record.bitMask, RRC_SCHED_REQ_RESOURCE_CFG_PUCCH_RESOURCE_ID_PRESENCE, record.pucchResourceId, 0,
                    127);
}

void draw(Chance& chance, RrcPucchSpatialRelationInfo_t& record)
{
    rrcInit(&record);
    chance.number(record.pucchSpatialRelationInfoId, 1, 8);
    switch (chance.alternative(record.presence, {RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_SSBIDX_PRESENCE,
                                                 RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_CSIRSIDX_PRESENCE,
                                                 RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_SRSIDX_PRESENCE}))
    {
    case 0:
        chance.number(record.referSignal.ssbIdx, 0, 63);
        break;
    case 1:
        chance.number(record.referSignal.csiRsIdx, 0, 191);
        break;
    default:
        chance.number(record.referSignal.srs.srsResourceId, 0, 63);
        chance.number(record.referSignal.srs.ulBwpId, 0, 4);
        break;
    }
    chance.number(record.pucchPathLossRefRsId, 0, 3);
    chance.number(record.p0PucchId, 1, 8);
    chance.enumeration(record.closedLoodIdx, 1);
    chance.numberIf(record.bitMask, RRC_PUCCH_SPATIAL_RELEATION_INFO_SERVING_CELLID_PRESENCE, record.servingCellId, 0,
                    31);
}

void draw(Chance& chance, RrcP0Pucch_t& record)
{
    rrcInit(&record);
    chance.number(record.p0PucchId, 1, 8);
    chance.number(record.poPucchValue, -16, 15);
}

void draw(Chance& chance, RrcPucchPathLossRefRs_t& record)
{
    rrcInit(&record);
    chance.number(record.pucchPathLossRefRsId, 0, 3);
    if (chance.alternative(record.presence, {RRC_PUCCH_PATH_LOSS_REF_RS_SSB_IDX_PRESENCE,
                                             RRC_PUCCH_PATH_LOSS_REF_RS_CSI_IDX_PRESENCE}) == 0)
    {
        chance.number(record.refSignal.ssbIdx, 0, 63);
    }
    else
    {
        chance.number(record.refSignal.csiRsIdx, 0, 191);
    }
}

void draw(Chance& chance, RrcPucchPowerControl_t& record)
{
    rrcInit(&record);
    chance.numberIf(record.bitMask, RRC_PUCCH_POWER_CONTROL_F0_PRESENCE, record.deltaFPucchF0, -16, 15);
    chance.numberIf(record.bitMask, RRC_PUCCH_POWER_CONTROL_F1_PRESENCE, record.deltaFPucchF1, -16, 15);
    chance.numberIf(record.bitMask, RRC_PUCCH_POWER_CONTROL_F2_PRESENCE, record.deltaFPucchF2, -16, 15);
    chance.numberIf(record.bitMask, RRC_PUCCH_POWER_CONTROL_F3_PRESENCE, record.deltaFPucchF3, -16, 15);
    chance.numberIf(record.bitMask, RRC_PUCCH_POWER_CONTROL_F4_PRESENCE, record.deltaFPucchF4, -16, 15);
    if (chance.flag(record.bitMask, RRC_PUCCH_POWER_CONTROL_P0_SET_PRESENCE))
    {
        const unsigned powers = chance.count(record.numP0Set, 1, RRC_MAX_NROF_PUCCH_P0_PER_SET, 8);
        for (unsigned i = 0; i < powers; ++i)
        {
            draw(chance, record.p0Set[i]);
        }
    }
    else
    {
        // A count without its bit is not read.
        chance.bits(record.numP0Set, 8);
    }
    if (chance.flag(record.bitMask, RRC_PUCCH_POWER_CONTROL_PATH_REFERENCE_RSS))
    {
        const unsigned signals = chance.count(record.numPathLossRefRs, 1, RRC_MAX_NROF_PUCCH_PATH_LOSS_REF_RSs, 9);
        for (unsigned i = 0; i < signals; ++i)
        {
            draw(chance, record.pathLossRefRs[i]);
        }
    }
    else
    {
        chance.bits(record.numPathLossRefRs, 8);
    }
    chance.enumerationIf(record.bitMask, RRC_PUCCH_POWER_CONTROL_TWO_PUCCH_PC_ADJ_STATES_PRESENCE,
                         record.twoPucchPcAdjStates, 0);
}

} // namespace

void draw(Chance& chance, RrcPucchCfg_t& record)
{
    rrcInit(&record);
    const auto resourceSets = [&]
    {
        const unsigned added = chance.optionalCount(record.numResourceSetAddMod, 4, 15);
        for (unsigned i = 0; i < added; ++i)
        {
            draw(chance, record.resourceSet[i]);
        }
        const unsigned released = chance.optionalCount(record.numResourceSetRel, 4, 2);
        // Only as many ids as sets are added are read; the others are 0 in the message.
        const unsigned read = std::min(added, released);
        chance.numbers(record.resourceSetId, read, 0, 3);
        for (unsigned i = read; i < 4; ++i)
        {
            chance.bits(record.resourceSetId[i], 8);
        }
    };
    const auto resources = [&]
    {
        const unsigned added = chance.optionalCount(record.numResourceAddMod, 128, 30);
        for (unsigned i = 0; i < added; ++i)
        {
            draw(chance, record.resource[i]);
        }
    };
    const auto releasedResources = [&]
    {
        const unsigned released = chance.optionalCount(record.numResourceRel, 128, 7);
        chance.numbers(record.pucchResouceId, released, 0, 127);
    };
    const auto formats = [&]
    {
        if (chance.flag(record.bitMask, RRC_PUCCH_CFG_FORMAT1_PRESENCE))
        {
            draw(chance, record.format1);
        }
        if (chance.flag(record.bitMask, RRC_PUCCH_CFG_FORMAT2_PRESENCE))
        {
            draw(chance, record.format2);
        }
        if (chance.flag(record.bitMask, RRC_PUCCH_CFG_FORMAT3_PRESENCE))
        {
            draw(chance, record.format3);
        }
        if (chance.flag(record.bitMask, RRC_PUCCH_CFG_FORMAT4_PRESENCE))
        {
            draw(chance, record.format4);
        }
    };
    const auto schedulingRequests = [&]
    {
        const unsigned added = chance.optionalCount(record.numSchedReqResourceCfgAddMod, RRC_MAX_NROF_SR_RESOURCES, 8);
        for (unsigned i = 0; i < added; ++i)
        {
            draw(chance, record.schedReqResource[i]);
        }
        const unsigned released = chance.optionalCount(record.numSchedReqResourceCfgRel, RRC_MAX_NROF_SR_RESOURCES, 3);
        chance.numbers(record.schedReqResourceId, released, 1, 8);
    };
    const auto csi = [&]
    {
        const unsigned shared =
            chance.optionalCount(record.numMultiCsiPucchResourceId, RRC_MAX_MULTI_CSI_PUCCH_RESOURCEID, 7);
        chance.numbers(record.multiCsiPucchResourceId, shared, 0, 127);
        const unsigned delays = chance.optionalCount(record.numDlData2UlACK, RRC_MAX_DL_DATA_TO_UL_ACK, 4);
        chance.numbers(record.dlData2UlACK, delays, 0, 15);
    };
    const auto spatialRelations = [&]
    {
        const unsigned added =
            chance.optionalCount(record.numSpatialRelationInfoAddMod, RRC_MAX_NROF_SPATIAL_RELEATION_INFOS, 18);
        for (unsigned i = 0; i < added; ++i)
        {
            draw(chance, record.spatialRelationInfo[i]);
        }
        const unsigned released =
            chance.optionalCount(record.numSpatialRelationInfoRel, RRC_MAX_NROF_SPATIAL_RELEATION_INFOS, 3);
        chance.numbers(record.spatialRelationInfoId, released, 1, 8);
    };
    const auto powerControl = [&]
    {
        if (chance.flag(record.bitMask, RRC_PUCCH_CFG_POWER_CONTROL_PRESENCE))
        {
            draw(chance, record.pucchPowerControl);
        }
    };
    chance.inAnyOrder(resourceSets, resources, releasedResources, formats, schedulingRequests, csi, spatialRelations,
                      powerControl);
}

} // namespace records
