#include "records.h"

namespace records
{

namespace
{

void draw(Chance& chance, srsCcSetIdx_s& record)
{
    rrcInit(&record);
    chance.numberIf(record.bitMask, RRC_SRS_CC_SET_IDX, record.ccSetIdx, 0, 3);
    chance.numberIf(record.bitMask, RRC_SRS_CC_SET_IDX_ONE_CC_SET, record.ccIdxInOneCcSet, 0, 7);
}

void draw(Chance& chance, RrcSrsTpcPdcchCfg_t& record)
{
    rrcInit(&record);
    const unsigned indices = chance.optionalCount(record.num, RRC_SRS_TPC_PDCCH_CFG_MAX_SRS_CC_SET_IDX, 2);
    for (unsigned i = 0; i < indices; ++i)
    {
        draw(chance, record.srsCcSetIdx[i]);
    }
}

void drawTpcPdcchGroup(Chance& chance, RrcSrsCarrierSwitching_t& record)
{
    if (!chance.flag(record.bitMask, RRC_SRS_CARRIER_SWITCH_SRS_TPC_PDCCH_GROUP_PRESENCE))
    {
        // Not read without the bit.
        chance.bits(record.presence, 2);
        return;
    }
    if (chance.alternative(record.presence, {RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEA_PRESENCE,
                                             RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEB_PRESENCE}) == 0)
    {
        typeA_s& typeA = record.srsTpcPdcchGroup.typeA;
        const unsigned configurations = chance.count(typeA.num, 1, RRC_MAX_SRS_TPC_PDCCH_GROUP_TYPEA, 1);
        for (unsigned i = 0; i < configurations; ++i)
        {
            draw(chance, typeA.cfg[i]);
        }
    }
    else
    {
        draw(chance, record.srsTpcPdcchGroup.typeB);
    }
}

void draw(Chance& chance, RrcSlotFormatComb_t& record)
{
    rrcInit(&record);
    chance.number(record.slotFormatCombId, 0, 511);
    const unsigned formats = chance.count(record.numSlotFormat, 1, RRC_MAX_NROF_SLOT_FORMATS_PER_COMBINATION, 8);
    chance.numbers(record.slotsFormats, formats, 0, 255);
}

void draw(Chance& chance, RrcSlotFormatCombPerCell_t& record)
{
    rrcInit(&record);
    chance.number(record.servingCellIdx, 0, 31);
    chance.enumeration(record.subCarrierSpacing, 7);
    const unsigned combinations =
        chance.optionalCount(record.numSlotFormatComb, RRC_MAX_NROF_SLOT_FORMAT_COMBINATIONS_PER_SET, 25);
    for (unsigned i = 0; i < combinations; ++i)
    {
        draw(chance, record.SlotFormatComb[i]);
    }
    chance.enumerationIf(record.bitMask, RRC_SLOT_FORMAT_COMB_PER_CELL_SUB_CARRIER_SPACING2_PRESENCE,
                         record.subCarrierSpacing2, 7);
    chance.numberIf(record.bitMask, RRC_SLOT_FORMAT_COMB_PER_CELL_POSITION_IN_DCI_PRESENCE, record.positionInDci, 0,
                    127);
}

void draw(Chance& chance, RrcSlotFormatInd_t& record)
{
    rrcInit(&record);
    chance.number(record.sfiRnti, 0, 65535);
    chance.number(record.dciPayloadSize, 1, 128);
    const auto combinations = [&]
    {
        const unsigned added = chance.optionalCount(record.numSlotFormatCombAddMod, 16, 12);
        for (unsigned i = 0; i < added; ++i)
        {
            draw(chance, record.slotFormatCombAddMod[i]);
        }
    };
    const auto releases = [&]
    {
        const unsigned released = chance.optionalCount(record.numSlotFormatCombRel, 16, 5);
        chance.numbers(record.servCellIdx, released, 0, 31);
    };
    chance.inAnyOrder(combinations, releases);
}

} // namespace

void draw(Chance& chance, RrcPuschServingCellCfg_t& record)
{
    rrcInit(&record);
    chance.enumerationIf(record.bitMask, RRC_PUSCH_SERVING_CELL_CFG_CODE_BLOCK_GROUP_TRANMISSION_PRESECE,
                         record.codeBlockGroupTransmission.maxCodeBlockGroupPerTansportBlock, 3);
    chance.enumerationIf(record.bitMask, RRC_PUSCH_SERVING_CELL_CFG_RATE_MATCHING_PRESECE, record.rateMatching, 0);
    chance.enumerationIf(record.bitMask, RRC_PUSCH_SERVING_CELL_CFG_X_OVER_HEAD_PRESECE, record.xOverhead, 2);
    // Never sent.
    chance.flag(record.bitMask, RRC_PUSCH_SERVING_CELL_CFG_MAX_MIMO_LAYERS);
    chance.flag(record.bitMask, RRC_PUSCH_SERVING_CELL_CFG_PROCESS_TYPE_2ENABLE);
}

void draw(Chance& chance, RrcSrsCarrierSwitching_t& record)
{
    rrcInit(&record);
    chance.numberIf(record.bitMask, RRC_SRS_CARRIER_SWITCH_SERV_CELL_IDX_PRESENCE, record.srsSwitchFromServCellIdx, 0,
                    31);
    chance.enumeration(record.SwitchFromCarrier, 1);
    const auto group = [&]
    {
        drawTpcPdcchGroup(chance, record);
    };
    const auto monitored = [&]
    {
        if (chance.flag(record.bitMask, RRC_SRS_CARRIER_SWITCH_MONITORING_CELLS))
        {
            const unsigned cells = chance.count(record.RrcmonitoringCells.num, 1, 32, 5);
            chance.numbers(record.RrcmonitoringCells.monitoringCells, cells, 0, 31);
        }
        else
        {
            // A count without its bit is not read.
            chance.bits(record.RrcmonitoringCells.num, 8);
        }
    };
    chance.inAnyOrder(group, monitored);
}

void draw(Chance& chance, RrcPdcchServingCellCfg_t& record)
{
    rrcInit(&record);
    if (chance.flag(record.bitMask, RRC_PDCCH_SERVING_CELL_CFG_SLOT_FORMATE_IND))
    {
        draw(chance, record.slotFormatInd);
    }
}

void draw(Chance& chance, RrcPdschServingCellCfg_t& record)
{
    rrcInit(&record);
    if (chance.flag(record.bitMask, RRC_PDSCH_SERVING_CELL_CFG_CODE_BLOCK_GROUP_TRANMISSION_PRESENCE))
    {
        chance.enumeration(record.codeBlockGroupTransmission.maxCodeBlockGroupsPerTransportBlock, 3);
        chance.boolean(record.codeBlockGroupTransmission.codeBlockGroupFlushInd);
    }
    chance.enumerationIf(record.bitMask, RRC_PDSCH_SERVING_CELL_CFG_X_OVERHEAD_PRESENCE, record.xOverHead, 2);
    chance.enumerationIf(record.bitMask, RRC_PDSCH_SERVING_CELL_CFG_NROF_HARQ_PROCESS_FOR_PDSCH_PRESENCE,
                         record.nrofHarqProcessForPDSCH, 5);
    chance.numberIf(record.bitMask, RRC_PDSCH_SERVING_CELL_CFG_PUCCH_CELL_PRESENCE, record.cellIdx, 0, 31);
    chance.numberIf(record.bitMask, RRC_PDSCH_SERVING_CELL_CFG_MAX_MIMO_LAYERS, record.maxMIMO_Layer, 1, 8);
    chance.booleanIf(record.bitMask, RRC_PDSCH_SERVING_CELL_CFG_PROCESSING_TYPE2_ENABLED, record.Type2Enabled);
}

} // namespace records
