#include "records.h"

namespace records
{

namespace
{

// The highest of the three bits counts, and what the union holds is read as its alternative.
std::string resourceType(const RrcSrsResourceSet_t& record)
{
    Members members;
    if (record.presence & RRC_SRS_RESOURCE_SET_TYPE_PERIODIC_PERSENCE)
    {
        const periodic_s& periodic = record.resourceType.periodic;
        members.addIf(periodic.bitMask & RRC_SRS_RESOURCE_SET_PERIODIC_CSI_RS_PRESENCE, "associatedCSI-RS",
                      periodic.associatedCsiRsId);
        return choice("periodic", members.json());
    }
    if (record.presence & RRC_SRS_RESOURCE_SET_TYPE_SEMI_PERSISTENT_PERSENCE)
    {
        const semiPersistent_s& semiPersistent = record.resourceType.semiPersistent;
        members.addIf(semiPersistent.bitMask & RRC_SRS_RESOURCE_SET_SEMI_PERSISTENT_CSI_RS_PRESENCE, "associatedCSI-RS",
                      semiPersistent.associatedCsiRsId);
        return choice("semi-persistent", members.json());
    }
    const aperiodic_s& aperiodic = record.resourceType.aperiodic;
    members.add("aperiodicSRS-ResourceTrigger", aperiodic.aperiodicSrsResourceTrigger);
    members.addIf(aperiodic.bitMask & RRC_SRS_RESOURCE_SET_APERIODIC_CSI_RS_PRESENCE, "csi-RS",
                  aperiodic.csiRsResourceId);
    members.addIf(aperiodic.bitMask & RRC_SRS_RESOURCE_SET_APERIODIC_SLOT_OFFSET_PRESENCE, "slotOffset",
                  aperiodic.slotOffset);
    return choice("aperiodic", members.json());
}

std::string pathLossReference(const RrcSRSPathLossRefRs_t& record)
{
    const bool csiRs = (record.presence & RRC_SRS_PATH_LOSS_REF_RS_CSI_IDX_PRESENCE) != 0;
    return csiRs ? choice("csi-RS-Index", record.u.csiRsIdx) : choice("ssb-Index", record.u.ssbIdx);
}

std::string resourceSet(const RrcSrsResourceSet_t& record)
{
    Members members;
    members.add("srs-ResourceSetId", record.srsResourceSetId);
    if (record.numSrsResourceId != 0)
    {
        members.add("srs-ResourceIdList", numbers(record.numSrsResourceId, record.srsResourceId));
    }
    members.add("resourceType", resourceType(record));
    members.add("usage", record.usage);
    members.addIf(record.presence & RRC_SRS_RESOURCE_SET_ALPHA_PERSENCE, "alpha", record.Alpha);
    if (record.presence & RRC_SRS_RESOURCE_SET_P0_PERSENCE)
    {
        // The member has 16 bits.
        members.add("p0", static_cast<INT16>(record.p0));
    }
    if (record.presence & RRC_SRS_PATH_LOSS_REFERENCE_RS_PRESENT)
    {
        members.add("pathlossReferenceRS", pathLossReference(record.pathLossRefRs));
    }
    members.addIf(record.presence & RRC_SRS_RESOURCE_SET_POWER_CTL_ADJ_PERSENCE, "srs-PowerControlAdjustmentStates",
                  record.srsPowerControlAdjustmentStates);
    return members.json();
}

std::string transmissionComb(const RrcSrsResource_t& record)
{
    Members members;
    if (record.presence & RRC_SRS_RESOURCE_TRANSMISSION_COMB_N4_PRESENCE)
    {
        members.add("combOffset-n4", record.transmissionComb.n4.combOffsetN4);
        members.add("cyclicShift-n4", record.transmissionComb.n4.cyclicShiftN4);
        return choice("n4", members.json());
    }
    members.add("combOffset-n2", record.transmissionComb.n2.combOffsetN2);
    members.add("cyclicShift-n2", record.transmissionComb.n2.cyclicShiftN2);
    return choice("n2", members.json());
}

std::string resourceMapping(const resourceMapping_s& record)
{
    Members members;
    members.add("startPosition", record.startPos);
    members.add("nrofSymbols", record.nfofSymbols);
    members.add("repetitionFactor", record.repetitionFactor);
    return members.json();
}

std::string frequencyHopping(const freqHopping_s& record)
{
    Members members;
    members.add("c-SRS", record.cSrs);
    members.add("b-SRS", record.bSrs);
    members.add("b-hop", record.bHop);
    return members.json();
}

// Tags count from 1, an unknown one is refused; of the offset the shorter periods take the low 8 bits.
std::string periodicityAndOffset(unsigned tag, unsigned offset)
{
    constexpr const char* names[] = {"sl1",  "sl2",  "sl4",  "sl5",   "sl8",   "sl10",  "sl16",   "sl20",  "sl32",
                                     "sl40", "sl64", "sl80", "sl160", "sl320", "sl640", "sl1280", "sl2560"};
    constexpr unsigned sl320 = 14;
    if (tag <= 1 || tag > std::size(names))
    {
        return choice(names[0], null());
    }
    return choice(names[tag - 1], tag < sl320 ? offset & 0xFF : offset);
}

std::string resourceType(const RrcSrsResource_t& record)
{
    Members members;
    if (record.presence1 & RRC_SRS_RESOURCE_TYPE_PERIODIC_PERSENCE)
    {
        const srsPeriodic_s& periodic = record.resourceType.periodic;
        members.add("periodicityAndOffset-p", periodicityAndOffset(periodic.period, periodic.offset));
        return choice("periodic", members.json());
    }
    if (record.presence1 & RRC_SRS_RESOURCE_TYPE_SEMI_PERSISTENT_PERSENCE)
    {
        const srsSemiPersistent_s& semiPersistent = record.resourceType.semiPersistent;
        members.add("periodicityAndOffset-sp", periodicityAndOffset(semiPersistent.period, semiPersistent.offset));
        return choice("semi-persistent", members.json());
    }
    return choice("aperiodic", members.json());
}

std::string referenceSignal(const RrcSrsSpatialRelationInfo_t& record)
{
    if (record.presence & RRC_SRS_SPATIAL_RELATION_INFO_SRS_PRESENCE)
    {
        Members members;
        members.add("resourceId", record.refSig.srs.resourceId);
        members.add("uplinkBWP", record.refSig.srs.ulBwpId);
        return choice("srs", members.json());
    }
    if (record.presence & RRC_SRS_SPATIAL_RELATION_INFO_CSI_RS_PRESENCE)
    {
        return choice("csi-RS-Index", record.refSig.csiRsIdx);
    }
    return choice("ssb-Index", record.refSig.ssbIdx);
}

std::string spatialRelation(const RrcSrsSpatialRelationInfo_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_SRS_SERVING_CELL_ID, "servingCellId", record.servingCellId);
    members.add("referenceSignal", referenceSignal(record));
    return members.json();
}

std::string resource(const RrcSrsResource_t& record)
{
    Members members;
    members.add("srs-ResourceId", record.srsResourceId);
    members.add("nrofSRS-Ports", record.nrofSrsPotrs);
    members.addIf(record.bitMask & RRC_SRS_RESOURCE_PTRS_PORT_IDX_PRESENCE, "ptrs-PortIndex", record.ptrsPortIdx);
    members.add("transmissionComb", transmissionComb(record));
    members.add("resourceMapping", resourceMapping(record.resourceMapping));
    members.add("freqDomainPosition", record.freqDomainPostion);
    members.add("freqDomainShift", record.freqDomainShift);
    members.add("freqHopping", frequencyHopping(record.freqHopping));
    members.add("groupOrSequenceHopping", record.groupOrSeqHopping);
    members.add("resourceType", resourceType(record));
    members.add("sequenceId", record.seqId);
    if (record.bitMask & RRC_SRS_RESOURCE_PTRS_SPATIAL_RELATION_INFO_PRESENCE)
    {
        members.add("spatialRelationInfo", spatialRelation(record.spatialRelationInfo));
    }
    return members.json();
}

} // namespace

std::string meant(const RrcSrsCfg_t& record)
{
    Members members;
    if (record.numSrsResourceSetRel != 0)
    {
        members.add("srs-ResourceSetToReleaseList", numbers(record.numSrsResourceSetRel, record.srsResourceSetId));
    }
    if (record.numSrsResourceSetAddMod != 0)
    {
        members.add("srs-ResourceSetToAddModList", list(record.numSrsResourceSetAddMod, record.srsResourceSet,
                                                        [&](const auto& entry) { return resourceSet(entry); }));
    }
    if (record.numSrsResourceRel != 0)
    {
        members.add("srs-ResourceToReleaseList", numbers(record.numSrsResourceRel, record.srsResourceId));
    }
    if (record.numSrsResourceAddMod != 0)
    {
        members.add("srs-ResourceToAddModList", list(record.numSrsResourceAddMod, record.srsResource,
                                                     [&](const auto& entry) { return resource(entry); }));
    }
    members.addIf(record.bitMask & RRC_SRS_CFG_TPC_ACCUMULATION_PRESENCE, "tpc-Accumulation", record.tpcAccumulation);
    return members.json();
}

} // namespace records
