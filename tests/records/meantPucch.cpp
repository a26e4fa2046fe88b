#include "records.h"

namespace records
{

namespace
{

std::string meant(const RrcPucchResourceSet_t& record)
{
    Members members;
    members.add("pucch-ResourceSetId", record.pucchResourceSetId);
    members.add("resourceList", numbers(record.numResourceList, record.pucchResourceId));
    members.addIf(record.bitMask & RRC_PUCCH_RESOURCE_SET_MAX_PAYLOAD_MINUS1_PRESENCE, "maxPayloadMinus1",
                  record.maxPayloadMinus1);
    return members.json();
}

// The highest bit counts, and what the union holds is read as its alternative.
std::string format(const RrcPucchResource_t& record)
{
    Members members;
    if (record.presence & RRC_PUCCH_RESOURCE_FORMAT4_PRESENCE)
    {
        const RrcPucchFormat4_t& format4 = record.format.format4;
        members.add("nrofSymbols", format4.nrofSymbols);
        members.add("occ-Length", format4.occLength);
        members.add("occ-Index", format4.occIdx);
        members.add("startingSymbolIndex", format4.startingSymbolIdx);
        return choice("format4", members.json());
    }
    if (record.presence & RRC_PUCCH_RESOURCE_FORMAT3_PRESENCE)
    {
        const RrcPucchFormat3_t& format3 = record.format.format3;
        members.add("nrofPRBs", format3.nrofPRBs);
        members.add("nrofSymbols", format3.nrofSymbols);
        members.add("startingSymbolIndex", format3.startingSymbolIdx);
        return choice("format3", members.json());
    }
    if (record.presence & RRC_PUCCH_RESOURCE_FORMAT2_PRESENCE)
    {
        const RrcPucchFormat2_t& format2 = record.format.format2;
        members.add("nrofPRBs", format2.nrofPRBs);
        members.add("nrofSymbols", format2.nrofSymbols);
        members.add("startingSymbolIndex", format2.startingSymbolIdx);
        return choice("format2", members.json());
    }
    if (record.presence & RRC_PUCCH_RESOURCE_FORMAT1_PRESENCE)
    {
        const RrcPucchFormat1_t& format1 = record.format.format1;
        members.add("initialCyclicShift", format1.initialCyclicShift);
        members.add("nrofSymbols", format1.nrofSymbols);
        members.add("startingSymbolIndex", format1.startingSymbolIdx);
        members.add("timeDomainOCC", format1.timeDomainOCC);
        return choice("format1", members.json());
    }
    const RrcPucchFormat0_t& format0 = record.format.format0;
    members.add("initialCyclicShift", format0.initialCyclicShift);
    members.add("nrofSymbols", format0.nrofSymbols);
    members.add("startingSymbolIndex", format0.startingSymbolIdx);
    return choice("format0", members.json());
}

std::string meant(const RrcPucchResource_t& record)
{
    Members members;
    members.add("pucch-ResourceId", record.pucchResourceId);
    members.add("startingPRB", record.startingPRB);
    members.addIf(record.bitMask & RRC_PUCCH_RESOURCE_INTRA_SLOT_FREQ_HOPPING_PRESENCE, "intraSlotFrequencyHopping",
                  record.intraSlotFreqHopping);
    members.addIf(record.bitMask & RRC_PUCCH_RESOURCE_SECOND_HOPPING_PRB_PRESENCE, "secondHopPRB", record.secondHopPRB);
    members.add("format", format(record));
    return members.json();
}

// The order of the last two is not that of their bits.
std::string meant(const RrcPucchFormatCfg_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_PUCCH_FORMAT_CFG_INTER_SLOT_FREQ_HOPPING_PRESENCE, "interslotFrequencyHopping",
                  record.interSlotFreqHopping);
    members.addIf(record.bitMask & RRC_PUCCH_FORMAT_CFG_ADDITIONAL_DMRS_PRESENCE, "additionalDMRS",
                  record.additionalDMRS);
    members.addIf(record.bitMask & RRC_PUCCH_FORMAT_CFG_MAX_CODE_RATE_PRESENCE, "maxCodeRate", record.maxCodeRate);
    members.addIf(record.bitMask & RRC_PUCCH_FORMAT_CFG_NR_OF_SLOTS_PRESENCE, "nrofSlots", record.nrofSlots);
    members.addIf(record.bitMask & RRC_PUCCH_FORMAT_CFG_PI2BPSK_PRESENCE, "pi2BPSK", record.pi2BPSK);
    members.addIf(record.bitMask & RRC_PUCCH_FORMAT_CFG_SIMULTANEOUS_HARQ_ACK_CSI_PRESENCE, "simultaneousHARQ-ACK-CSI",
                  record.sumultaneousHarqAckCsi);
    return members.json();
}

// The highest bit counts; of the offset the shorter ones take the low 8 bits.
std::string periodicityAndOffset(const RrcSchedReqResourceCfg_t& record)
{
    constexpr const char* names[] = {"sym2", "sym6or7", "sl1",  "sl2",  "sl4",   "sl5",   "sl8",  "sl10",
                                     "sl16", "sl20",    "sl40", "sl80", "sl160", "sl320", "sl640"};
    unsigned place = 14;
    while (place > 0 && (record.presence >> place & 1) == 0)
    {
        --place;
    }
    if (place < 3)
    {
        return choice(names[place], null());
    }
    const unsigned offset = record.periodAndOffset.offset;
    return choice(names[place], place < 13 ? offset & 0xFF : offset);
}

std::string meant(const RrcSchedReqResourceCfg_t& record)
{
    Members members;
    members.add("schedulingRequestResourceId", record.schedReqResourceId);
    members.add("schedulingRequestID", record.schedReqId);
    if (record.bitMask & RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_PRESENCE)
    {
        members.add("periodicityAndOffset", periodicityAndOffset(record));
    }
    members.addIf(record.bitMask & RRC_SCHED_REQ_RESOURCE_CFG_PUCCH_RESOURCE_ID_PRESENCE, "resource",
                  record.pucchResourceId);
    return members.json();
}

std::string referenceSignal(const RrcPucchSpatialRelationInfo_t& record)
{
    if (record.presence & RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_SRSIDX_PRESENCE)
    {
        Members members;
        members.add("resource", record.referSignal.srs.srsResourceId);
        members.add("uplinkBWP", record.referSignal.srs.ulBwpId);
        return choice("srs", members.json());
    }
    if (record.presence & RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_CSIRSIDX_PRESENCE)
    {
        return choice("csi-RS-Index", record.referSignal.csiRsIdx);
    }
    return choice("ssb-Index", record.referSignal.ssbIdx);
}

std::string meant(const RrcPucchSpatialRelationInfo_t& record)
{
    Members members;
    members.add("pucch-SpatialRelationInfoId", record.pucchSpatialRelationInfoId);
    members.addIf(record.bitMask & RRC_PUCCH_SPATIAL_RELEATION_INFO_SERVING_CELLID_PRESENCE, "servingCellId",
                  record.servingCellId);
    members.add("referenceSignal", referenceSignal(record));
    members.add("pucch-PathlossReferenceRS-Id", record.pucchPathLossRefRsId);
    members.add("p0-PUCCH-Id", record.p0PucchId);
    members.add("closedLoopIndex", record.closedLoodIdx);
    return members.json();
}

std::string meant(const RrcP0Pucch_t& record)
{
    Members members;
    members.add("p0-PUCCH-Id", record.p0PucchId);
    members.add("p0-PUCCH-Value", static_cast<INT8>(record.poPucchValue));
    return members.json();
}

std::string meant(const RrcPucchPathLossRefRs_t& record)
{
    const bool csiRs = (record.presence & RRC_PUCCH_PATH_LOSS_REF_RS_CSI_IDX_PRESENCE) != 0;
    Members members;
    members.add("pucch-PathlossReferenceRS-Id", record.pucchPathLossRefRsId);
    members.add("referenceSignal", csiRs ? choice("csi-RS-Index", record.refSignal.csiRsIdx)
                                         : choice("ssb-Index", record.refSignal.ssbIdx));
    return members.json();
}

// The octets are two's complements.
std::string meant(const RrcPucchPowerControl_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_PUCCH_POWER_CONTROL_F0_PRESENCE, "deltaF-PUCCH-f0",
                  static_cast<INT8>(record.deltaFPucchF0));
    members.addIf(record.bitMask & RRC_PUCCH_POWER_CONTROL_F1_PRESENCE, "deltaF-PUCCH-f1",
                  static_cast<INT8>(record.deltaFPucchF1));
    members.addIf(record.bitMask & RRC_PUCCH_POWER_CONTROL_F2_PRESENCE, "deltaF-PUCCH-f2",
                  static_cast<INT8>(record.deltaFPucchF2));
    members.addIf(record.bitMask & RRC_PUCCH_POWER_CONTROL_F3_PRESENCE, "deltaF-PUCCH-f3",
                  static_cast<INT8>(record.deltaFPucchF3));
    members.addIf(record.bitMask & RRC_PUCCH_POWER_CONTROL_F4_PRESENCE, "deltaF-PUCCH-f4",
                  static_cast<INT8>(record.deltaFPucchF4));
    if (record.bitMask & RRC_PUCCH_POWER_CONTROL_P0_SET_PRESENCE)
    {
        members.add("p0-Set", list(record.numP0Set, record.p0Set, [&](const auto& entry) { return meant(entry); }));
    }
    if (record.bitMask & RRC_PUCCH_POWER_CONTROL_PATH_REFERENCE_RSS)
    {
        members.add("pathlossReferenceRSs", list(record.numPathLossRefRs, record.pathLossRefRs,
                                                 [&](const auto& entry) { return meant(entry); }));
    }
    members.addIf(record.bitMask & RRC_PUCCH_POWER_CONTROL_TWO_PUCCH_PC_ADJ_STATES_PRESENCE,
                  "twoPUCCH-PC-AdjustmentStates", record.twoPucchPcAdjStates);
    return members.json();
}

} // namespace

std::string meant(const RrcPucchCfg_t& record)
{
    Members members;
    const unsigned addedSets = record.numResourceSetAddMod;
    if (addedSets != 0)
    {
        members.add("resourceSetToAddModList",
                    list(addedSets, record.resourceSet, [&](const auto& entry) { return meant(entry); }));
    }
    if (record.numResourceSetRel != 0)
    {
        // As many ids are taken as sets are added; the others stay 0.
        members.add("resourceSetToReleaseList", list(record.numResourceSetRel, [&](unsigned i)
                                                     { return i < addedSets && i < 4 ? record.resourceSetId[i] : 0; }));
    }
    if (record.numResourceAddMod != 0)
    {
        members.add("resourceToAddModList",
                    list(record.numResourceAddMod, record.resource, [&](const auto& entry) { return meant(entry); }));
    }
    if (record.numResourceRel != 0)
    {
        members.add("resourceToReleaseList", numbers(record.numResourceRel, record.pucchResouceId));
    }
    if (record.bitMask & RRC_PUCCH_CFG_FORMAT1_PRESENCE)
    {
        members.add("format1", setup(meant(record.format1)));
    }
    if (record.bitMask & RRC_PUCCH_CFG_FORMAT2_PRESENCE)
    {
        members.add("format2", setup(meant(record.format2)));
    }
    if (record.bitMask & RRC_PUCCH_CFG_FORMAT3_PRESENCE)
    {
        members.add("format3", setup(meant(record.format3)));
    }
    if (record.bitMask & RRC_PUCCH_CFG_FORMAT4_PRESENCE)
    {
        members.add("format4", setup(meant(record.format4)));
    }
    if (record.numSchedReqResourceCfgAddMod != 0)
    {
        members.add("schedulingRequestResourceToAddModList",
                    list(record.numSchedReqResourceCfgAddMod, record.schedReqResource,
                         [&](const auto& entry) { return meant(entry); }));
    }
    if (record.numSchedReqResourceCfgRel != 0)
    {
        members.add("schedulingRequestResourceToReleaseList",
                    numbers(record.numSchedReqResourceCfgRel, record.schedReqResourceId));
    }
    if (record.numMultiCsiPucchResourceId != 0)
    {
        members.add("multi-CSI-PUCCH-ResourceList",
                    numbers(record.numMultiCsiPucchResourceId, record.multiCsiPucchResourceId));
    }
    if (record.numDlData2UlACK != 0)
    {
        members.add("dl-DataToUL-ACK", numbers(record.numDlData2UlACK, record.dlData2UlACK));
    }
    if (record.numSpatialRelationInfoAddMod != 0)
    {
        members.add("spatialRelationInfoToAddModList",
                    list(record.numSpatialRelationInfoAddMod, record.spatialRelationInfo,
                         [&](const auto& entry) { return meant(entry); }));
    }
    if (record.numSpatialRelationInfoRel != 0)
    {
        members.add("spatialRelationInfoToReleaseList",
                    numbers(record.numSpatialRelationInfoRel, record.spatialRelationInfoId));
    }
    if (record.bitMask & RRC_PUCCH_CFG_POWER_CONTROL_PRESENCE)
    {
        members.add("pucch-PowerControl", meant(record.pucchPowerControl));
    }
    return members.json();
}

} // namespace records
