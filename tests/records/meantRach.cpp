#include "records.h"

namespace records
{

namespace
{

std::string ssb(const RrcSsb_t& record)
{
    const auto one = [](const RrcCfraSsbResource_t& resource)
    {
        Members members;
        members.add("ssb", resource.ssbIdx);
        members.add("ra-PreambleIndex", resource.raPreableIdx);
        return members.json();
    };
    Members members;
    members.add("ssb-ResourceList", list(record.numSsbResources, record.ssbResource, one));
    members.add("ra-ssb-OccasionMaskIndex", record.raSsbOccasionMaskIdx);
    return members.json();
}

std::string csiRs(const RrcCsirsResource_t& record)
{
    Members members;
    members.add("csi-RS", record.csiRSIdx);
    members.add("ra-OccasionList", numbers(record.numRaOccasion, record.raOccasionIdx));
    members.add("ra-PreambleIndex", record.raPreambleIdx);
    return members.json();
}

std::string csiRs(const RrcSsirs_t& record)
{
    Members members;
    members.add("csirs-ResourceList",
                list(record.numCsirsRecouces, record.csirsResource, [&](const auto& entry) { return csiRs(entry); }));
    members.add("rsrp-ThresholdCSI-RS", record.rsrpThreshCsiRs);
    return members.json();
}

std::string occasions(const RrcOccasions_t& record)
{
    Members members;
    members.add("rach-ConfigGeneric", meant(record.rachCfgGen));
    members.addIf(record.bitMask & RRC_OCCASION_SSB_PER_RACH_PRESENCE, "ssb-perRACH-Occasion",
                  record.ssbPerRachOccasion);
    return members.json();
}

// Whatever RRC_SCIS_RESOURCE says: without RRC_SSB it is the CSI-RS.
std::string cfra(const RrcCfra_t& record)
{
    Members members;
    if (record.bitMask & RRC_CFRA_OCCASIONS_PRESENCE)
    {
        members.add("occasions", occasions(record.occasions));
    }
    members.add("resources", record.bitMask & RRC_SSB ? choice("ssb", ssb(record.resources.ssb))
                                                      : choice("csirs", csiRs(record.resources.scirs)));
    members.addIf(record.bitMask & RRC_CFRA_PREAMBLE_PRESENCE, "totalNumberOfRA-Preambles-v1530",
                  record.totalNumOfRaPreableV1530);
    return members.json();
}

} // namespace

std::string meant(const RrcRachCfgDedi_t& record)
{
    Members members;
    if (record.bitMask & RRC_RACH_CFG_DEDI_CFRA_PRESENCE)
    {
        members.add("cfra", cfra(record.cfra));
    }
    if (record.bitMask & RRC_RACH_CFG_DEDI_RA_PRIO_PRESENCE)
    {
        members.add("ra-Prioritization", meant(record.raPrio));
    }
    return members.json();
}

std::string meant(const RrcRachCfgGeneric_t& record)
{
    Members members;
    members.add("prach-ConfigurationIndex", record.prachCfgIdx);
    members.add("msg1-FDM", record.msg1Fdm);
    members.add("msg1-FrequencyStart", record.msg1FreqStart);
    members.add("zeroCorrelationZoneConfig", record.zeroCorrelationZoneCfg);
    members.add("preambleReceivedTargetPower", record.preambleRecTargetPower);
    members.add("preambleTransMax", record.preambleTransMax);
    members.add("powerRampingStep", record.powerRampingStep);
    members.add("ra-ResponseWindow", record.raRspWindow);
    return members.json();
}

std::string meant(const RrcRaPrio_t& record)
{
    Members members;
    members.add("powerRampingStepHighPriority", record.powerRampingStepHighPriority);
    members.addIf(record.bitMask & RRC_RA_PRIO_SCALINGFACTOR_PRESENCE, "scalingFactorBI", record.scalingFactorBI);
    return members.json();
}

} // namespace records
