#include "records.h"

namespace records
{

namespace
{

void drawPeriod(Chance& chance, slotPeriodOffset_s& record)
{
    constexpr unsigned slots[] = {1, 2, 4, 5, 8, 10, 16, 20, 40, 80, 160, 320, 640, 1280, 2560};
    const unsigned period = chance.tag(record.period, 15);
    if (period == 0)
    {
        // Not looked at.
        chance.bits(record.offset, 16);
        return;
    }
    chance.number(record.offset, 0, slots[period] - 1);
    // Up to 160 slots only the low 8 bits are sent.
    if (period <= 10)
    {
        chance.above(record.offset, 8);
    }
}

void drawCandidates(Chance& chance, nrofCadidate_s& record)
{
    chance.enumeration(record.aggrLev1, 7);
    chance.enumeration(record.aggrLev2, 7);
    chance.enumeration(record.aggrLev4, 7);
    chance.enumeration(record.aggrLev8, 7);
    chance.enumeration(record.aggrLev16, 7);
}

void drawFormat20(Chance& chance, dciFormat2_0_s& record)
{
    chance.enumerationIf(record.presence, RRC_DCI2_0_AGGR_LEV1_PRESENCE, record.aggrLev1, 1);
    chance.enumerationIf(record.presence, RRC_DCI2_0_AGGR_LEV2_PRESENCE, record.aggrLev2, 1);
    chance.enumerationIf(record.presence, RRC_DCI2_0_AGGR_LEV4_PRESENCE, record.aggrLev4, 1);
    chance.enumerationIf(record.presence, RRC_DCI2_0_AGGR_LEV8_PRESENCE, record.aggrLev8, 1);
    chance.enumerationIf(record.presence, RRC_DCI2_0_AGGR_LEV16_PRESENCE, record.aggrLev16, 1);
}

// The padding is not looked at.
void drawCommon(Chance& chance, common_s& record)
{
    chance.bitsIf(record.presence, RRC_SEARCH_TYPE_COMMON_DCI0_1_PRESENCE, record.dci0AndDci1.padding, 8);
    if (chance.flag(record.presence, RRC_SEARCH_TYPE_COMMON_DCI2_0_PRESENCE))
    {
        drawFormat20(chance, record.dci0AndDci2_0);
    }
    chance.bitsIf(record.presence, RRC_SEARCH_TYPE_COMMON_DCI2_1_PRESENCE, record.dci2_1.padding, 8);
    chance.bitsIf(record.presence, RRC_SEARCH_TYPE_COMMON_DCI2_2_PRESENCE, record.dci2_2.padding, 8);
    if (chance.flag(record.presence, RRC_SEARCH_TYPE_COMMON_DCI2_3_PRESENCE))
    {
        chance.enumerationIf(record.dci2_3.presence, RRC_DCI2_3_DUMMY1_PRESENCE, record.dci2_3.dummy1, 7);
        chance.enumeration(record.dci2_3.dummy2, 1);
    }
}

void drawPreemption(Chance& chance, RrcDlPreemption_t& record)
{
    rrcInit(&record);
    chance.number(record.intRnti, 0, 65535);
    chance.enumeration(record.timeFreqSet, 1);
    chance.number(record.dciPayloadSize, 0, 126);
    const unsigned cells = chance.count(record.numServingCells, 1, RRC_INT_CFG_PERSERVING_CELLS, 12);
    for (unsigned i = 0; i < cells; ++i)
    {
        chance.number(record.intCfgPerServingCells[i].serverCellIdx, 0, 31);
        chance.number(record.intCfgPerServingCells[i].positionInDci, 0, 125);
    }
}

void drawTpcPusch(Chance& chance, RrcPuschTpcCmdCfg_t& record)
{
    rrcInit(&record);
    chance.numberIf(record.bitMask, RRC_PUSCH_TPC_INDEX_PRESENCE, record.tpcIdx, 1, 15);
    chance.numberIf(record.bitMask, RRC_PUSCH_TPC_INDEX_SUL_PRESENCE, record.tpcIdxSul, 1, 15);
    chance.numberIf(record.bitMask, RRC_PUSCH_TPC_TARGET_CELL_PRESENCE, record.targetCellIdx, 0, 31);
}

void drawTpcPucch(Chance& chance, RrcPucchTpcCmdCfg_t& record)
{
    rrcInit(&record);
    chance.numberIf(record.bitMask, RRC_PUCCH_TPC_PCELL_PRESENCE, record.tpcPcellIdx, 1, 15);
    chance.numberIf(record.bitMask, RRC_PUCCH_TPC_SCELL_PRESENCE, record.tpcScellIdx, 1, 15);
}

void drawTpcSrs(Chance& chance, RrcSrsTpcCmdCfg_t& record)
{
    rrcInit(&record);
    chance.numberIf(record.bitMask, RRC_SRS_TPC_STARTING_BIT_PRESENCE, record.startBitFormat2_3, 1, 31);
    chance.numberIf(record.bitMask, RRC_SRS_TPC_FIELD_TYPE_PRESENCE, record.feildTypeFormat2_3, 0, 1);
    // The bit is not looked at, and the field is never sent.
    chance.flag(record.bitMask, RRC_SRS_TPC_STARTING_BIT_SUL_PRESENCE);
    chance.bits(record.startBitSulFormat2_3, 8);
}

} // namespace

void draw(Chance& chance, RrcPdcchCfg_t& record)
{
    rrcInit(&record);
    const auto resourceSets = [&]
    {
        const unsigned added =
            chance.optionalCount(record.numControlResourceSetAddMod, RRC_MAX_NROF_CONTROL_RESOURCESETS, 58);
        for (unsigned i = 0; i < added; ++i)
        {
            draw(chance, record.controlResourceSetAddMod[i]);
        }
        chance.numbers(record.controlResourceSetIdx,
                       chance.optionalCount(record.numControlResourceSetRel, RRC_MAX_NROF_CONTROL_RESOURCESETS, 4), 0,
                       11);
    };
    const auto searchSpaces = [&]
    {
        const unsigned added = chance.optionalCount(record.numSearchSpaceAddMod, RRC_MAX_NROF_SEARCH_SPACES, 12);
        for (unsigned i = 0; i < added; ++i)
        {
            draw(chance, record.searchSpaceAddMod[i]);
        }
        chance.numbers(record.searchSpaceId,
                       chance.optionalCount(record.numSearchSpaceRel, RRC_MAX_NROF_SEARCH_SPACES, 6), 0, 39);
    };
    const auto preemption = [&]
    {
        if (chance.flag(record.bitMask, RRC_PDCCH_CFG_Dl_PREEMPTION_PRESENCE))
        {
            drawPreemption(chance, record.dlPreemption);
        }
    };
    const auto tpc = [&]
    {
        if (chance.flag(record.bitMask, RRC_PDCCH_CFG_PUSCH_TPC_CMDCFG_PRESENCE))
        {
            drawTpcPusch(chance, record.tpcPusch);
        }
        if (chance.flag(record.bitMask, RRC_PDCCH_CFG_PUCCH_TPC_CMDCFG_PRESENCE))
        {
            drawTpcPucch(chance, record.tpcPucch);
        }
        if (chance.flag(record.bitMask, RRC_PDCCH_CFG_SPS_TPC_CMDCFG_PRESENCE))
        {
            drawTpcSrs(chance, record.tpcSrs);
        }
    };
    chance.inAnyOrder(resourceSets, searchSpaces, preemption, tpc);
}

void draw(Chance& chance, RrcControlResourceSet_t& record)
{
    rrcInit(&record);
    chance.number(record.setIdx, 0, 11);
    // The bits above the 45th do not matter.
    chance.bits(record.freqDomainResource, 64);
    chance.number(record.duration, 1, 3);
    if (chance.flag(record.presence, RRC_CCE_MAP_TYPE_INTERLEAVED))
    {
        chance.enumeration(record.interLeaved.regBundleSize, 2);
        chance.enumeration(record.interLeaved.interleaveSize, 2);
        chance.numberIf(record.interLeaved.bitMask, RRC_INTERLEACED_SHIFT_INDEX_PRESENCE, record.interLeaved.shiftIdx,
                        0, 274);
    }
    // Makes no difference.
    chance.flag(record.presence, RRC_CCE_MAP_TYPE_NON_INTERLEAVED);
    chance.enumeration(record.precoderGranularity, 1);
    chance.numbers(record.tciStateAddId,
                   chance.optionalCount(record.numTciStatesPdcchAdd, RRC_MAX_NROF_TCI_STATES_PDCCH, 7), 0, 127);
    chance.numbers(record.tciStateRelId,
                   chance.optionalCount(record.numTciStatesPdcchRel, RRC_MAX_NROF_TCI_STATES_PDCCH, 7), 0, 127);
    chance.enumerationIf(record.bitMask, RRC_CONTROL_RESOURCE_SET_TCI_IN_DCI_PRESENCE, record.enTciPresentInDci, 0);
    chance.numberIf(record.bitMask, RRC_CONTROL_RESOURCE_SET_PDCCH_SCRAMBID_PRESENCE, record.pdcchDmrsScramblindId, 0,
                    65535);
}

void draw(Chance& chance, RrcSearchSpace_t& record)
{
    rrcInit(&record);
    chance.number(record.searchSpaceId, 0, 39);
    chance.numberIf(record.bitMask, RRC_SEARCH_SPACE_CONTROL_RESOURCE_SETID_PRESENCE, record.controlResourceSetId, 0,
                    11);
    if (chance.flag(record.bitMask, RRC_SEARCH_SPACE_MON_SLOT_PERIOD_AND_OFFSET_PRESENCE))
    {
        drawPeriod(chance, record.monitoringSlotPeriodOffset);
    }
    chance.numberIf(record.bitMask, RRC_SEARCH_SPACE_DURATION_PRESENCE, record.duration, 2, 2559);
    if (chance.flag(record.bitMask, RRC_SEARCH_SPACE_MON_SYMBOL_WITH_SLOT_PRESENCE))
    {
        record.monitoringSysmblosWithSlot = chance.bitField(14) & 0x3FFF;
    }
    if (chance.flag(record.bitMask, RRC_SEARCH_SPACE_NROF_CADIDATE_PRESENCE))
    {
        drawCandidates(chance, record.nrofCadidates);
    }
    if (chance.flag(record.bitMask, RRC_SEARCH_SPACE_TYPE_PRESENCE))
    {
        if (chance.alternative(record.presence,
                               {RRC_SEARCH_TYPE_COMMON_PRESENCE, RRC_SEARCH_TYPE_UE_SPECIFIC_PRESENCE}) == 0)
        {
            drawCommon(chance, record.searchType.common);
        }
        else
        {
            chance.enumeration(record.searchType.ueSpecific.dciFormats, 1);
        }
    }
}

} // namespace records
