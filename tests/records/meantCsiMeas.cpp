#include "records.h"

namespace records
{

namespace
{

using records::meant; // beside those here

std::string meant(const RrcNzpCsiRsResource_t& record)
{
    Members members;
    members.add("nzp-CSI-RS-ResourceId", record.nzpCsiRsResourceId);
    members.add("resourceMapping", meant(record.resourceMapping));
    members.add("powerControlOffset", static_cast<INT8>(record.powerControlOffset));
    members.addIf(record.bitMask & RRC_NZP_CSI_RS_RESOURCE_POWER_CONTROL_OFFSET_SS_PRESENT, "powerControlOffsetSS",
                  record.powerControlOffsetSS);
    members.add("scramblingID", record.scramblingId);
    if (record.bitMask & RRC_NZP_CSI_RS_RESOURCE_PERIODIC_OFFSET_PRESENT)
    {
        members.add("periodicityAndOffset", meant(record.periodicityAndOffset));
    }
    members.addIf(record.bitMask & RRC_NZP_CSI_RS_RESOURCE_QCI_INFO_PERIOD_CSI_RS_PRESENT, "qcl-InfoPeriodicCSI-RS",
                  record.qclInfoPeriodicCsiRs);
    return members.json();
}

std::string meant(const RrcNzpCsiRsResourceSet_t& record)
{
    Members members;
    members.add("nzp-CSI-ResourceSetId", record.nzpCsiResourceSetId);
    // Of the count, the low 8 bits are sent.
    members.add("nzp-CSI-RS-Resources", numbers(record.numNzpCsiRsRes & 0xFF, record.numNzpCsiRsResources));
    members.addIf(record.bitMask & RRC_NZP_CSI_RS_RESOUECE_SET_REPETITION_PRESENCE, "repetition", record.repetition);
    members.addIf(record.bitMask & RRC_NZP_CSI_RS_RESOUECE_SET_APERIODIC_OFFSET_PRESENCE, "aperiodicTriggeringOffset",
                  record.aperidicTriggeringOffset);
    members.addIf(record.bitMask & RRC_NZP_CSI_RS_RESOUECE_SET_TRS_INFO_PRESENCE, "trs-Info", record.trsInfo);
    return members.json();
}

// pattern1 wins over pattern0, whose octets it shares.
std::string pattern(const RrcCsiImResource_t& record)
{
    Members members;
    if (record.presence & RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN1_PRESENCE)
    {
        members.add("subcarrierLocation-p1", record.csiImResourceElementPattern.pattern1.subCarrierLocationP1);
        members.add("symbolLocation-p1", record.csiImResourceElementPattern.pattern1.symbolLocationP1);
        return choice("pattern1", members.json());
    }
    members.add("subcarrierLocation-p0", record.csiImResourceElementPattern.pattern0.subCarrierLocationP0);
    members.add("symbolLocation-p0", record.csiImResourceElementPattern.pattern0.symbolLocationP0);
    return choice("pattern0", members.json());
}

std::string meant(const RrcCsiImResource_t& record)
{
    Members members;
    members.add("csi-IM-ResourceId", record.csiImResourceId);
    if (record.bitMask & RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN_PRESENCE)
    {
        members.add("csi-IM-ResourceElementPattern", pattern(record));
    }
    if (record.bitMask & RRC_CSI_IM_RESOURCE_FREQ_BAND_PRESENCE)
    {
        members.add("freqBand", meant(record.freqBand));
    }
    if (record.bitMask & RRC_CSI_IM_RESOURCE_PERIODIC_OFFSET_PRESENCE)
    {
        members.add("periodicityAndOffset", meant(record.periodicityAndOffset));
    }
    return members.json();
}

std::string meant(const RrcCsiImResourceSet_t& record)
{
    Members members;
    members.add("csi-IM-ResourceSetId", record.csiImResourceSetId);
    members.add("csi-IM-Resources", numbers(record.numCsiImResources, record.CsiImResourceId));
    return members.json();
}

std::string meant(const RrcCsiSsbResourceSet_t& record)
{
    Members members;
    members.add("csi-SSB-ResourceSetId", record.csiSsbResourceSetId);
    members.add("csi-SSB-ResourceList", numbers(record.numSsbResourceSet, record.csiSsbIdx));
    return members.json();
}

// csi-IM-ResourceSetList wins over nzp-CSI-RS-SSB, whose octets it shares.
std::string resourceSets(const RrcCsiResourceCfg_t& record)
{
    if (record.presence & RRC_CSI_RESOURCE_CFG_CSI_IM_RESOUECE_SET_LIST_PRESENCE)
    {
        const csiImResourceSetList_s& sets = record.csiRsResourceSetList.csiImResourceSetList;
        return choice("csi-IM-ResourceSetList", numbers(sets.numCsiImResourceSet, sets.csiImResourceSetId));
    }
    const nzpCsiRsResourceSetList_s& sets = record.csiRsResourceSetList.nzpCsiRsResourceSetList;
    Members members;
    if (sets.numNzpCsiRsResourceSet != 0)
    {
        members.add("nzp-CSI-RS-ResourceSetList", numbers(sets.numNzpCsiRsResourceSet, sets.nzpCsiRsResourceSetId));
    }
    if (sets.numCsiSsbResourceSet != 0)
    {
        members.add("csi-SSB-ResourceSetList", numbers(sets.numCsiSsbResourceSet, sets.csiSsbResourceSetId));
    }
    return choice("nzp-CSI-RS-SSB", members.json());
}

std::string meant(const RrcCsiResourceCfg_t& record)
{
    Members members;
    members.add("csi-ResourceConfigId", record.csiResourceCfgId);
    members.add("csi-RS-ResourceSetList", resourceSets(record));
    members.add("bwp-Id", record.bwpId);
    members.add("resourceType", record.resourceType);
    return members.json();
}

// csi-SSB-ResourceSet wins over nzp-CSI-RS, whose octets it shares.
std::string channel(const RrcCsiAssociatedReportCfgInfo_t& record)
{
    if (record.prsence & RRC_CSI_ASSOCIATED_REPORT_CFG_INFO_CSI_SSB_SET_PRESENCE)
    {
        return choice("csi-SSB-ResourceSet", record.resourceForChannel.csiSsbResourceSet.csiImResourceSet);
    }
    const nzpCsiRs_s& resources = record.resourceForChannel.nzpCsiRs;
    Members members;
    members.add("resourceSet", resources.resourceSet);
    if (resources.numQciInfo != 0)
    {
        members.add("qcl-info", numbers(resources.numQciInfo, resources.qciInfo));
    }
    return choice("nzp-CSI-RS", members.json());
}

std::string meant(const RrcCsiAssociatedReportCfgInfo_t& record)
{
    Members members;
    members.add("reportConfigId", record.reportCfgId);
    members.add("resourcesForChannel", channel(record));
    return members.json();
}

std::string meant(const RrcCsiAperiodicTriggerState_t& record);

template <typename Entry, std::size_t N>
std::string each(unsigned count, const Entry (&entries)[N])
{
    return list(count, entries, [&](const auto& entry) { return meant(entry); });
}

std::string meant(const RrcCsiAperiodicTriggerState_t& record)
{
    Members members;
    members.add("associatedReportConfigInfoList", each(record.numCfgInfo, record.info));
    return members.json();
}

std::string states(const RrcCsiSemiPersistentOnPuschTriggerStateList_t& record)
{
    return list(record.numTriggeState, record.csiReportCfgId,
                [](UINT8 report)
                {
                    Members members;
                    members.add("associatedReportConfigInfo", report);
                    return members.json();
                });
}

template <typename Entry, std::size_t N>
void addEach(Members& members, std::string_view name, unsigned count, const Entry (&entries)[N])
{
    if (count != 0)
    {
        members.add(name, each(count, entries));
    }
}

template <std::size_t N>
void addNumbers(Members& members, std::string_view name, unsigned count, const UINT8 (&fields)[N])
{
    if (count != 0)
    {
        members.add(name, numbers(count, fields));
    }
}

} // namespace

std::string meant(const RrcCsiMeasCfg_t& record)
{
    Members members;
    addEach(members, "nzp-CSI-RS-ResourceToAddModList", record.numNzpCsiRsResourceAddMod,
            record.NzpCsiRsResourceAddMod);
    addNumbers(members, "nzp-CSI-RS-ResourceToReleaseList", record.numNzpCsiRsResourceDel, record.nzpCsiRsResourceId);
    addEach(members, "nzp-CSI-RS-ResourceSetToAddModList", record.numNzpCsiRsResourceSetAddMod,
            record.NzpCsiRsResourceSetAddMod);
    addNumbers(members, "nzp-CSI-RS-ResourceSetToReleaseList", record.numNzpCsiRsResourceSetRel,
               record.nzpCsiRsResourceSetId);
    addEach(members, "csi-IM-ResourceToAddModList", record.numCsiImResourceAddMod, record.csiImResourceAddMod);
    addNumbers(members, "csi-IM-ResourceToReleaseList", record.numCsiImResourceRel, record.csiImResourceId);
    addEach(members, "csi-IM-ResourceSetToAddModList", record.numCsiImResourceSetAddMod, record.csiImResourceSetAddMod);
    addNumbers(members, "csi-IM-ResourceSetToReleaseList", record.numCsiImResourceSetRel, record.csiImResourceSetId);
    addEach(members, "csi-SSB-ResourceSetToAddModList", record.numCsiSsbResourceSetAddMod, record.csiSsbResourceSet);
    addNumbers(members, "csi-SSB-ResourceSetToReleaseList", record.numCsiSsbResourceSetRel, record.csiSsbResourceSetId);
    addEach(members, "csi-ResourceConfigToAddModList", record.numCsiResourceCfgAddMod, record.csiResourceCfg);
    addNumbers(members, "csi-ResourceConfigToReleaseList", record.numCsiResourceCfgRel, record.csiResourceCfgId);
    addEach(members, "csi-ReportConfigToAddModList", record.numCsiReportCfgAddMod, record.csiReportCfg);
    addNumbers(members, "csi-ReportConfigToReleaseList", record.numCsiReportCfgRel, record.csiReportCfgId);
    members.addIf(record.bitMask & RRC_CSI_MEAS_CFG_REPORT_TRIGGER_SIZE_PRESENCE, "reportTriggerSize",
                  record.reportTriggerSize);
    if (record.bitMask & RRC_CSI_MEAS_CFG_APERIODIC_TRIGGER_STATE_LIST_PRESENCE)
    {
        members.add("aperiodicTriggerStateList",
                    setup(each(record.aperiodicTriggerStateList.numState, record.aperiodicTriggerStateList.state)));
    }
    if (record.bitMask & RRC_CSI_MEAS_CFG_SEMI_PEISISTENT_ON_PUSCH_PRESENCE)
    {
        members.add("semiPersistentOnPUSCH-TriggerStateList",
                    setup(states(record.semiPersistentOnPuschTriggerStateList)));
    }
    return setup(members.json());
}

} // namespace records
