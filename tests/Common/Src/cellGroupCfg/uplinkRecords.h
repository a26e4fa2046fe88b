// Records of uplink bandwidth parts that the encoder takes, and what the independent decoder reads of them.
#ifndef UPLINKRECORDS_H
#define UPLINKRECORDS_H

#include <string>

#include "rrcCodec/rrcUplinkConfig.h"

namespace test
{

inline RrcRachCfgGeneric_t rachGeneric()
{
    return {255, 3, 274, 15, -202, 10, 3, 7};
}

inline std::string rachGenericJson()
{
    return R"({"prach-ConfigurationIndex":255,"msg1-FDM":"eight","msg1-FrequencyStart":274,)"
           R"("zeroCorrelationZoneConfig":15,"preambleReceivedTargetPower":-202,"preambleTransMax":"n200",)"
           R"("powerRampingStep":"dB6","ra-ResponseWindow":"sl80"})";
}

// A RACH configuration that asks for no option.
inline RrcRachCfgComm_t rachCommon()
{
    RrcRachCfgComm_t record{};
    record.rachCfgGeneric = rachGeneric();
    record.raContentionResolutionTimer = 7;
    record.presence = RRC_RACH_CFG_COMMON_PRACH_ROOT_SEQ_IDX_L839_PRESENCE;
    record.prachRootSeqIdx.l839 = 837;
    record.restritedSetCfg = 2;
    return record;
}

inline std::string rachCommonJson()
{
    return "{\"rach-ConfigGeneric\":" + rachGenericJson() +
           R"(,"ra-ContentionResolutionTimer":"sf64","prach-RootSequenceIndex":{"l839":837},)"
           R"("restrictedSetConfig":"restrictedSetTypeB"})";
}

// All five configurations of a dedicated part, each as short as can be; bitMask says which are asked for.
inline void fillDedicated(RrcBwpUlDedi_t& record, unsigned bitMask)
{
    record.bitMask = static_cast<UINT8>(bitMask);
    record.cfgGrantCfg.nrofHarqProcess = 1;
    record.pucchCfg.numDlData2UlACK = 1;
    record.pucchCfg.dlData2UlACK[0] = 15;
    record.srsCfg.bitMask = RRC_SRS_CFG_TPC_ACCUMULATION_PRESENCE;
    record.beamFailRecoveryCfg.bitMask = RRC_BEAM_FAIL_RECOVERY_TIMER_PRESENCE;
    record.beamFailRecoveryCfg.beamFailRecoveryTimer = 7;
}

inline std::string dedicatedJson(unsigned bitMask)
{
    const char* const members[] = {
        R"("pucch-Config":{"setup":{"dl-DataToUL-ACK":[15]}})",
        R"("pusch-Config":{"setup":{"resourceAllocation":"resourceAllocationType0"}})",
        R"("configuredGrantConfig":{"setup":{"cg-DMRS-Configuration":{},)"
        R"("resourceAllocation":"resourceAllocationType0","powerControlLoopToUse":"n0","p0-PUSCH-Alpha":0,)"
        R"("nrofHARQ-Processes":1,"repK":"n1","periodicity":"sym2"}})",
        R"("srs-Config":{"setup":{"tpc-Accumulation":"disabled"}})",
        R"("beamFailureRecoveryConfig":{"setup":{"beamFailureRecoveryTimer":"ms200"}})",
    };
    std::string json;
    for (unsigned i = 0; i < 5; ++i)
    {
        if ((bitMask >> i & 1) != 0)
        {
            json += (json.empty() ? "" : ",") + std::string(members[i]);
        }
    }
    return "{" + json + "}";
}

} // namespace test

#endif
