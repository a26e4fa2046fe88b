// The smallest records of CSI measurement that the encoder accepts, and how the decoder shows them.
#ifndef CSIRECORDS_H
#define CSIRECORDS_H

#include <string>

#include "rrcCodec/rrcCsiMeas.h"

namespace test
{

inline RrcCsiRsResourceMapping_t csiRsMapping()
{
    RrcCsiRsResourceMapping_t mapping{};
    mapping.presenceFreqDomain = RRC_CSI_RS_RESOURCE_MAPPING_ROW1_PRESENCE;
    mapping.freqDomainAlloc.row1 = 0xA;
    mapping.firstOFDMSymbolInTimeDomain = 13;
    mapping.presenceDensity = RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_THREE_PRESENCE;
    mapping.freqBand = {272, 24};
    return mapping;
}

inline RrcNzpCsiRsResource_t nzpResource(UINT8 id)
{
    RrcNzpCsiRsResource_t resource{};
    resource.nzpCsiRsResourceId = id;
    resource.resourceMapping = csiRsMapping();
    resource.scramblingId = 1023;
    return resource;
}

// `offset`: powerControlOffset and powerControlOffsetSS; `behind`: the optional members with their commas.
inline std::string nzpResourceJson(unsigned id, const std::string& offset = R"("powerControlOffset":0)",
                                   const std::string& behind = "")
{
    return R"({"nzp-CSI-RS-ResourceId":)" + std::to_string(id) +
           R"(,"resourceMapping":{"frequencyDomainAllocation":{"row1":"1010"},"nrofPorts":"p1",)"
           R"("firstOFDMSymbolInTimeDomain":13,"cdm-Type":"noCDM","density":{"three":null},)"
           R"("freqBand":{"startingRB":272,"nrofRBs":24}},)" +
           offset + R"(,"scramblingID":1023)" + behind + "}";
}

// An aperiodic report of the RSRP of the CSI-RS resources.
inline RrcCsiReportCfg_t& fillReport(RrcCsiReportCfg_t& report, UINT8 id)
{
    report.csiReportCfgId = id;
    report.bitMask = RRC_CSI_REPORT_CFG_GROUP_BASED_BEAM_REPORT_PRESENCE;
    report.resourceCfgIdForChMeas = 111;
    report.cfgTypeBitMask = RRC_CSI_REPORT_CFG_TYPE_APERIODIC_PRESENCE;
    report.ReportCfgType_n.aperiodic = {1, {32}};
    report.rptQuBitMask = RRC_CSI_REPORT_QUANTITY_CRI_RSRP_PRESENCE;
    report.subBandSize = 1;
    report.timeRestrictForChMeas = 1;
    report.groupBasedBeamReport.Presence = RRC_BASED_BEAM_REPORT_ENABLED;
    return report;
}

// Such a report; a test changes members. Optional ones stand with the comma before them.
struct ReportJson
{
    unsigned id = 0;
    std::string carrier = {};
    std::string interference = {};
    std::string type = R"({"aperiodic":{"reportSlotOffsetList":[32]}})";
    std::string quantity = R"({"cri-RSRP":null})";
    std::string frequency = {};
    std::string codebook = {}; // and dummy
    std::string group = R"({"enabled":null})";
    std::string table = {};
    std::string ports = {};

    std::string text() const
    {
        return R"({"reportConfigId":)" + std::to_string(id) + carrier + R"(,"resourcesForChannelMeasurement":111)" +
               interference + R"(,"reportConfigType":)" + type + R"(,"reportQuantity":)" + quantity + frequency +
               R"(,"timeRestrictionForChannelMeasurements":"notConfigured")"
               R"(,"timeRestrictionForInterferenceMeasurements":"configured")" +
               codebook + R"(,"groupBasedBeamReporting":)" + group + table + R"(,"subbandSize":"value2")" + ports + "}";
    }
};

// [text(0),text(1),...]
template <typename Text>
std::string jsonArray(unsigned size, Text text)
{
    std::string json = "[";
    for (unsigned i = 0; i < size; ++i)
    {
        json += (i == 0 ? "" : ",") + text(i);
    }
    return json + "]";
}

} // namespace test

#endif
