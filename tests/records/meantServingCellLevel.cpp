#include "records.h"

namespace records
{

namespace
{

std::string meant(const srsCcSetIdx_s& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_SRS_CC_SET_IDX, "cc-SetIndex", record.ccSetIdx);
    members.addIf(record.bitMask & RRC_SRS_CC_SET_IDX_ONE_CC_SET, "cc-IndexInOneCC-Set", record.ccIdxInOneCcSet);
    return members.json();
}

std::string meant(const RrcSrsTpcPdcchCfg_t& record)
{
    Members members;
    if (record.num != 0)
    {
        members.add("srs-CC-SetIndexlist",
                    list(record.num, record.srsCcSetIdx, [&](const auto& entry) { return meant(entry); }));
    }
    return members.json();
}

std::string tpcPdcchGroup(const RrcSrsCarrierSwitching_t& record)
{
    if (record.presence & RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEB_PRESENCE)
    {
        return choice("typeB", meant(record.srsTpcPdcchGroup.typeB));
    }
    const typeA_s& typeA = record.srsTpcPdcchGroup.typeA;
    return choice("typeA", list(typeA.num, typeA.cfg, [&](const auto& entry) { return meant(entry); }));
}

std::string meant(const RrcSlotFormatComb_t& record)
{
    Members members;
    members.add("slotFormatCombinationId", record.slotFormatCombId);
    members.add("slotFormats", numbers(record.numSlotFormat, record.slotsFormats));
    return members.json();
}

std::string meant(const RrcSlotFormatCombPerCell_t& record)
{
    Members members;
    members.add("servingCellId", record.servingCellIdx);
    members.add("subcarrierSpacing", record.subCarrierSpacing);
    members.addIf(record.bitMask & RRC_SLOT_FORMAT_COMB_PER_CELL_SUB_CARRIER_SPACING2_PRESENCE, "subcarrierSpacing2",
                  record.subCarrierSpacing2);
    if (record.numSlotFormatComb != 0)
    {
        members.add("slotFormatCombinations", list(record.numSlotFormatComb, record.SlotFormatComb,
                                                   [&](const auto& entry) { return meant(entry); }));
    }
    members.addIf(record.bitMask & RRC_SLOT_FORMAT_COMB_PER_CELL_POSITION_IN_DCI_PRESENCE, "positionInDCI",
                  record.positionInDci);
    return members.json();
}

std::string meant(const RrcSlotFormatInd_t& record)
{
    Members members;
    members.add("sfi-RNTI", record.sfiRnti);
    members.add("dci-PayloadSize", record.dciPayloadSize);
    if (record.numSlotFormatCombAddMod != 0)
    {
        members.add("slotFormatCombToAddModList", list(record.numSlotFormatCombAddMod, record.slotFormatCombAddMod,
                                                       [&](const auto& entry) { return meant(entry); }));
    }
    if (record.numSlotFormatCombRel != 0)
    {
        members.add("slotFormatCombToReleaseList", numbers(record.numSlotFormatCombRel, record.servCellIdx));
    }
    return members.json();
}

} // namespace

// These four are only ever members that are set up; the meaning has that in it.

// maxMIMO-Layers and processingType2Enabled are marked without their extension group and so never sent.
std::string meant(const RrcPuschServingCellCfg_t& record)
{
    Members members;
    if (record.bitMask & RRC_PUSCH_SERVING_CELL_CFG_CODE_BLOCK_GROUP_TRANMISSION_PRESECE)
    {
        Members transmission;
        transmission.add("maxCodeBlockGroupsPerTransportBlock",
                         record.codeBlockGroupTransmission.maxCodeBlockGroupPerTansportBlock);
        members.add("codeBlockGroupTransmission", setup(transmission.json()));
    }
    members.addIf(record.bitMask & RRC_PUSCH_SERVING_CELL_CFG_RATE_MATCHING_PRESECE, "rateMatching",
                  record.rateMatching);
    members.addIf(record.bitMask & RRC_PUSCH_SERVING_CELL_CFG_X_OVER_HEAD_PRESECE, "xOverhead", record.xOverhead);
    return setup(members.json());
}

std::string meant(const RrcSrsCarrierSwitching_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_SRS_CARRIER_SWITCH_SERV_CELL_IDX_PRESENCE, "srs-SwitchFromServCellIndex",
                  record.srsSwitchFromServCellIdx);
    members.add("srs-SwitchFromCarrier", record.SwitchFromCarrier);
    if (record.bitMask & RRC_SRS_CARRIER_SWITCH_SRS_TPC_PDCCH_GROUP_PRESENCE)
    {
        members.add("srs-TPC-PDCCH-Group", tpcPdcchGroup(record));
    }
    if (record.bitMask & RRC_SRS_CARRIER_SWITCH_MONITORING_CELLS)
    {
        members.add("monitoringCells",
                    numbers(record.RrcmonitoringCells.num, record.RrcmonitoringCells.monitoringCells));
    }
    return setup(members.json());
}

std::string meant(const RrcPdcchServingCellCfg_t& record)
{
    Members members;
    if (record.bitMask & RRC_PDCCH_SERVING_CELL_CFG_SLOT_FORMATE_IND)
    {
        members.add("slotFormatIndicator", setup(meant(record.slotFormatInd)));
    }
    return setup(members.json());
}

std::string meant(const RrcPdschServingCellCfg_t& record)
{
    Members members;
    if (record.bitMask & RRC_PDSCH_SERVING_CELL_CFG_CODE_BLOCK_GROUP_TRANMISSION_PRESENCE)
    {
        const codeBlockGroupTransmission_s& groups = record.codeBlockGroupTransmission;
        Members transmission;
        transmission.add("maxCodeBlockGroupsPerTransportBlock", groups.maxCodeBlockGroupsPerTransportBlock);
        transmission.add("codeBlockGroupFlushIndicator", boolean(groups.codeBlockGroupFlushInd));
        members.add("codeBlockGroupTransmission", setup(transmission.json()));
    }
    members.addIf(record.bitMask & RRC_PDSCH_SERVING_CELL_CFG_X_OVERHEAD_PRESENCE, "xOverhead", record.xOverHead);
    members.addIf(record.bitMask & RRC_PDSCH_SERVING_CELL_CFG_NROF_HARQ_PROCESS_FOR_PDSCH_PRESENCE,
                  "nrofHARQ-ProcessesForPDSCH", record.nrofHarqProcessForPDSCH);
    members.addIf(record.bitMask & RRC_PDSCH_SERVING_CELL_CFG_PUCCH_CELL_PRESENCE, "pucch-Cell", record.cellIdx);
    members.addIf(record.bitMask & RRC_PDSCH_SERVING_CELL_CFG_MAX_MIMO_LAYERS, "maxMIMO-Layers", record.maxMIMO_Layer);
    members.addIf(record.bitMask & RRC_PDSCH_SERVING_CELL_CFG_PROCESSING_TYPE2_ENABLED, "processingType2Enabled",
                  boolean(record.Type2Enabled));
    return setup(members.json());
}

} // namespace records
