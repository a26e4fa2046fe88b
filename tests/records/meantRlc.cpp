#include "records.h"

namespace records
{

namespace
{

// Only the two lengths are sent, any other number leaves the member out.
void addFieldLength(Members& members, unsigned length)
{
    if (length <= 1)
    {
        members.add("sn-FieldLength", length);
    }
}

std::string uplink(const RrcUlAmRlcCfg_t& record)
{
    Members members;
    addFieldLength(members, record.snFeildLen);
    members.add("t-PollRetransmit", record.tPollRetransmit);
    members.add("pollPDU", record.pollPdu);
    members.add("pollByte", record.pollByte);
    members.add("maxRetxThreshold", record.maxRetxThreash);
    return members.json();
}

std::string downlink(const RrcDlAmRlcCfg_t& record)
{
    Members members;
    addFieldLength(members, record.snFeildLen);
    members.add("t-Reassembly", record.tReassembly);
    members.add("t-StatusProhibit", record.tStatusProhibit);
    return members.json();
}

std::string downlink(const RrcDlUmRlcCfg_t& record)
{
    Members members;
    addFieldLength(members, record.snFeildLen);
    members.add("t-Reassembly", record.tDlReassembly);
    return members.json();
}

std::string uplink(const RrcUlUmRlcCfg_t& record)
{
    Members members;
    addFieldLength(members, record.snFeildLen);
    return members.json();
}

// The highest bit counts, and what the union holds is read as its alternative.
std::string rlc(const RrcRlcCfg_t& record)
{
    Members members;
    if (record.bitMask & RRC_RLCCFG_UM_UNI_DL_PRESENCE)
    {
        members.add("dl-UM-RLC", downlink(record.choice.umUniDlCfg));
        return choice("um-Uni-Directional-DL", members.json());
    }
    if (record.bitMask & RRC_RLCCFG_UM_UNI_UL_PRESENCE)
    {
        members.add("ul-UM-RLC", uplink(record.choice.umUniUlCfg));
        return choice("um-Uni-Directional-UL", members.json());
    }
    if (record.bitMask & RRC_RLCCFG_UM_BI_PRESENCE)
    {
        members.add("ul-UM-RLC", uplink(record.choice.umBiCfg.ulUmCfg));
        members.add("dl-UM-RLC", downlink(record.choice.umBiCfg.dlUmCfg));
        return choice("um-Bi-Directional", members.json());
    }
    members.add("ul-AM-RLC", uplink(record.choice.amCfg.ulAmCfg));
    members.add("dl-AM-RLC", downlink(record.choice.amCfg.dlAmCfg));
    return choice("am", members.json());
}

std::string uplinkSpecific(const RrcUlSpecificParaCfg_t& record)
{
    Members members;
    members.add("priority", record.priority);
    members.add("prioritisedBitRate", record.priorityBitRate);
    members.add("bucketSizeDuration", record.bucketSizeDuration);
    if (record.bitMask & RRC_UL_SPECIFICPARA_SERVING_CELL_CFG_PRESENCE)
    {
        members.add("allowedServingCells", numbers(record.allowedCellNum, record.cellIdx));
    }
    if (record.bitMask & RRC_UL_SPECIFICPARA_SCS_CFG_PRESENCE)
    {
        members.add("allowedSCS-List", numbers(record.allowedSCSNum, record.subCarrierSpacing));
    }
    members.addIf(record.bitMask & RRC_UL_SPECIFICPARA_PUSCH_CFG_PRESENCE, "maxPUSCH-Duration",
                  record.maxPuschDuration);
    members.addIf(record.bitMask & RRC_UL_SPECIFICPARA_GRANT_TYPE1_CFG_PRESENCE, "configuredGrantType1Allowed",
                  record.configuredGrantType1Allowed);
    members.addIf(record.bitMask & RRC_UL_SPECIFICPARA_LCG_CFG_PRESENCE, "logicalChannelGroup",
                  record.logicalChannelGroupId);
    members.addIf(record.bitMask & RRC_UL_SPECIFICPARA_SR_CFG_PRESENCE, "schedulingRequestID", record.schedReqId);
    members.add("logicalChannelSR-Mask", boolean(record.logicalChannelSrMask));
    members.add("logicalChannelSR-DelayTimerApplied", boolean(record.logcalChannelSrDealyTimerApplied));
    members.addIf(record.bitMask & RRC_UL_SPECIFICPARA_BITRATE_QUERY_PROHIBIT_TIMER, "bitRateQueryProhibitTimer",
                  record.bitRateQueryProhibitTimer);
    return members.json();
}

} // namespace

std::string meant(const RrcRlcBearerCfg_t& record)
{
    Members members;
    members.add("logicalChannelIdentity", record.lchId);
    if (record.bitMask & RRC_RLCBEARERCFG_RBTYPE_PRESENCE)
    {
        members.add("servedRadioBearer",
                    choice(record.rbType == RRC_SRB ? "srb-Identity" : "drb-Identity", record.rbId));
    }
    members.addIf(record.bitMask & RRC_RLCBEARERCFG_REESTABRLC_PRESENCE, "reestablishRLC", record.reestablRlc);
    if (record.bitMask & RRC_RLCBEARERCFG_RLC_PRESENCE)
    {
        members.add("rlc-Config", rlc(record.rlcCfg));
    }
    if (record.bitMask & RRC_RLCBEARERCFG_LCH_PRESENCE)
    {
        Members channel;
        if (record.macLchCfg.bitMask & RRC_LCH_EXPLICIT_PRESENCE)
        {
            channel.add("ul-SpecificParameters", uplinkSpecific(record.macLchCfg.ulSpecificParaCfg));
        }
        members.add("mac-LogicalChannelConfig", channel.json());
    }
    return members.json();
}

} // namespace records
