#include "records.h"

namespace records
{

namespace
{

std::string interleaved(const RrcInterleaved_t& record)
{
    Members members;
    members.add("reg-BundleSize", record.regBundleSize);
    members.add("interleaverSize", record.interleaveSize);
    members.addIf(record.bitMask & RRC_INTERLEACED_SHIFT_INDEX_PRESENCE, "shiftIndex", record.shiftIdx);
    return members.json();
}

// Up to 160 slots the offset is cut to 8 bits.
std::string period(const slotPeriodOffset_s& record)
{
    switch (record.period)
    {
    case 1:
        return choice("sl1", null());
    case 2:
        return choice("sl2", record.offset & 0xFF);
    case 3:
        return choice("sl4", record.offset & 0xFF);
    case 4:
        return choice("sl5", record.offset & 0xFF);
    case 5:
        return choice("sl8", record.offset & 0xFF);
    case 6:
        return choice("sl10", record.offset & 0xFF);
    case 7:
        return choice("sl16", record.offset & 0xFF);
    case 8:
        return choice("sl20", record.offset & 0xFF);
    case 9:
        return choice("sl40", record.offset & 0xFF);
    case 10:
        return choice("sl80", record.offset & 0xFF);
    case 11:
        return choice("sl160", record.offset & 0xFF);
    case 12:
        return choice("sl320", record.offset);
    case 13:
        return choice("sl640", record.offset);
    case 14:
        return choice("sl1280", record.offset);
    default:
        return choice("sl2560", record.offset);
    }
}

std::string candidates(const nrofCadidate_s& record)
{
    Members members;
    members.add("aggregationLevel1", record.aggrLev1);
    members.add("aggregationLevel2", record.aggrLev2);
    members.add("aggregationLevel4", record.aggrLev4);
    members.add("aggregationLevel8", record.aggrLev8);
    members.add("aggregationLevel16", record.aggrLev16);
    return members.json();
}

std::string format20(const dciFormat2_0_s& record)
{
    Members levels;
    levels.addIf(record.presence & RRC_DCI2_0_AGGR_LEV1_PRESENCE, "aggregationLevel1", record.aggrLev1);
    levels.addIf(record.presence & RRC_DCI2_0_AGGR_LEV2_PRESENCE, "aggregationLevel2", record.aggrLev2);
    levels.addIf(record.presence & RRC_DCI2_0_AGGR_LEV4_PRESENCE, "aggregationLevel4", record.aggrLev4);
    levels.addIf(record.presence & RRC_DCI2_0_AGGR_LEV8_PRESENCE, "aggregationLevel8", record.aggrLev8);
    levels.addIf(record.presence & RRC_DCI2_0_AGGR_LEV16_PRESENCE, "aggregationLevel16", record.aggrLev16);
    Members members;
    members.add("nrofCandidates-SFI", levels.json());
    return members.json();
}

std::string format23(const dciFormat2_3_s& record)
{
    Members members;
    members.addIf(record.presence & RRC_DCI2_3_DUMMY1_PRESENCE, "dummy1", record.dummy1);
    members.add("dummy2", record.dummy2);
    return members.json();
}

std::string common(const common_s& record)
{
    const std::string empty = Members().json();
    Members members;
    members.addIf(record.presence & RRC_SEARCH_TYPE_COMMON_DCI0_1_PRESENCE, "dci-Format0-0-AndFormat1-0", empty);
    if (record.presence & RRC_SEARCH_TYPE_COMMON_DCI2_0_PRESENCE)
    {
        members.add("dci-Format2-0", format20(record.dci0AndDci2_0));
    }
    members.addIf(record.presence & RRC_SEARCH_TYPE_COMMON_DCI2_1_PRESENCE, "dci-Format2-1", empty);
    members.addIf(record.presence & RRC_SEARCH_TYPE_COMMON_DCI2_2_PRESENCE, "dci-Format2-2", empty);
    if (record.presence & RRC_SEARCH_TYPE_COMMON_DCI2_3_PRESENCE)
    {
        members.add("dci-Format2-3", format23(record.dci2_3));
    }
    return members.json();
}

// The second bit counts, and what the union holds is read as its alternative.
std::string type(const RrcSearchSpace_t& record)
{
    if (record.presence & RRC_SEARCH_TYPE_UE_SPECIFIC_PRESENCE)
    {
        Members members;
        members.add("dci-Formats", record.searchType.ueSpecific.dciFormats);
        return choice("ue-Specific", members.json());
    }
    return choice("common", common(record.searchType.common));
}

std::string perCell(const IntCfgPerServingCell_s& record)
{
    Members members;
    members.add("servingCellId", record.serverCellIdx);
    members.add("positionInDCI", record.positionInDci);
    return members.json();
}

std::string preemption(const RrcDlPreemption_t& record)
{
    Members members;
    members.add("int-RNTI", record.intRnti);
    members.add("timeFrequencySet", record.timeFreqSet);
    members.add("dci-PayloadSize", record.dciPayloadSize);
    members.add("int-ConfigurationPerServingCell", list(record.numServingCells, record.intCfgPerServingCells, perCell));
    return members.json();
}

std::string tpcPusch(const RrcPuschTpcCmdCfg_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_PUSCH_TPC_INDEX_PRESENCE, "tpc-Index", record.tpcIdx);
    members.addIf(record.bitMask & RRC_PUSCH_TPC_INDEX_SUL_PRESENCE, "tpc-IndexSUL", record.tpcIdxSul);
    members.addIf(record.bitMask & RRC_PUSCH_TPC_TARGET_CELL_PRESENCE, "targetCell", record.targetCellIdx);
    return members.json();
}

std::string tpcPucch(const RrcPucchTpcCmdCfg_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_PUCCH_TPC_PCELL_PRESENCE, "tpc-IndexPCell", record.tpcPcellIdx);
    members.addIf(record.bitMask & RRC_PUCCH_TPC_SCELL_PRESENCE, "tpc-IndexPUCCH-SCell", record.tpcScellIdx);
    return members.json();
}

// The extension with startingBitOfFormat2-3SUL-v1530 is never sent.
std::string tpcSrs(const RrcSrsTpcCmdCfg_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_SRS_TPC_STARTING_BIT_PRESENCE, "startingBitOfFormat2-3",
                  record.startBitFormat2_3);
    members.addIf(record.bitMask & RRC_SRS_TPC_FIELD_TYPE_PRESENCE, "fieldTypeFormat2-3", record.feildTypeFormat2_3);
    return members.json();
}

} // namespace

std::string meant(const RrcPdcchCfg_t& record)
{
    Members members;
    if (record.numControlResourceSetAddMod != 0)
    {
        members.add("controlResourceSetToAddModList",
                    list(record.numControlResourceSetAddMod, record.controlResourceSetAddMod,
                         [](const RrcControlResourceSet_t& set) { return meant(set); }));
    }
    if (record.numControlResourceSetRel != 0)
    {
        members.add("controlResourceSetToReleaseList",
                    numbers(record.numControlResourceSetRel, record.controlResourceSetIdx));
    }
    if (record.numSearchSpaceAddMod != 0)
    {
        members.add("searchSpacesToAddModList", list(record.numSearchSpaceAddMod, record.searchSpaceAddMod,
                                                     [](const RrcSearchSpace_t& space) { return meant(space); }));
    }
    if (record.numSearchSpaceRel != 0)
    {
        members.add("searchSpacesToReleaseList", numbers(record.numSearchSpaceRel, record.searchSpaceId));
    }
    if (record.bitMask & RRC_PDCCH_CFG_Dl_PREEMPTION_PRESENCE)
    {
        members.add("downlinkPreemption", setup(preemption(record.dlPreemption)));
    }
    if (record.bitMask & RRC_PDCCH_CFG_PUSCH_TPC_CMDCFG_PRESENCE)
    {
        members.add("tpc-PUSCH", setup(tpcPusch(record.tpcPusch)));
    }
    if (record.bitMask & RRC_PDCCH_CFG_PUCCH_TPC_CMDCFG_PRESENCE)
    {
        members.add("tpc-PUCCH", setup(tpcPucch(record.tpcPucch)));
    }
    if (record.bitMask & RRC_PDCCH_CFG_SPS_TPC_CMDCFG_PRESENCE)
    {
        members.add("tpc-SRS", setup(tpcSrs(record.tpcSrs)));
    }
    return members.json();
}

std::string meant(const RrcControlResourceSet_t& record)
{
    Members members;
    members.add("controlResourceSetId", record.setIdx);
    members.add("frequencyDomainResources", bits(record.freqDomainResource, 45));
    members.add("duration", record.duration);
    members.add("cce-REG-MappingType", record.presence & RRC_CCE_MAP_TYPE_INTERLEAVED
                                           ? choice("interleaved", interleaved(record.interLeaved))
                                           : choice("nonInterleaved", null()));
    members.add("precoderGranularity", record.precoderGranularity);
    if (record.numTciStatesPdcchAdd != 0)
    {
        members.add("tci-StatesPDCCH-ToAddList", numbers(record.numTciStatesPdcchAdd, record.tciStateAddId));
    }
    if (record.numTciStatesPdcchRel != 0)
    {
        members.add("tci-StatesPDCCH-ToReleaseList", numbers(record.numTciStatesPdcchRel, record.tciStateRelId));
    }
    members.addIf(record.bitMask & RRC_CONTROL_RESOURCE_SET_TCI_IN_DCI_PRESENCE, "tci-PresentInDCI",
                  record.enTciPresentInDci);
    members.addIf(record.bitMask & RRC_CONTROL_RESOURCE_SET_PDCCH_SCRAMBID_PRESENCE, "pdcch-DMRS-ScramblingID",
                  record.pdcchDmrsScramblindId);
    return members.json();
}

std::string meant(const RrcSearchSpace_t& record)
{
    Members members;
    members.add("searchSpaceId", record.searchSpaceId);
    members.addIf(record.bitMask & RRC_SEARCH_SPACE_CONTROL_RESOURCE_SETID_PRESENCE, "controlResourceSetId",
                  record.controlResourceSetId);
    if (record.bitMask & RRC_SEARCH_SPACE_MON_SLOT_PERIOD_AND_OFFSET_PRESENCE)
    {
        members.add("monitoringSlotPeriodicityAndOffset", period(record.monitoringSlotPeriodOffset));
    }
    members.addIf(record.bitMask & RRC_SEARCH_SPACE_DURATION_PRESENCE, "duration", record.duration);
    members.addIf(record.bitMask & RRC_SEARCH_SPACE_MON_SYMBOL_WITH_SLOT_PRESENCE, "monitoringSymbolsWithinSlot",
                  bits(record.monitoringSysmblosWithSlot, 14));
    if (record.bitMask & RRC_SEARCH_SPACE_NROF_CADIDATE_PRESENCE)
    {
        members.add("nrofCandidates", candidates(record.nrofCadidates));
    }
    if (record.bitMask & RRC_SEARCH_SPACE_TYPE_PRESENCE)
    {
        members.add("searchSpaceType", type(record));
    }
    return members.json();
}

} // namespace records
