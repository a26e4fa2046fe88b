#include <bit>
#include <cstring>

#include "byteOrder.h"
#include "records.h"

namespace records
{

namespace
{

// The place of the highest bit among the low ones of a mask, from 1, or 0.
unsigned highest(std::uint64_t mask, unsigned width)
{
    return static_cast<unsigned>(std::bit_width(mask & ((std::uint64_t{1} << width) - 1)));
}

// periodic and semiPersistentOnPUCCH
template <typename Record>
std::string onPucch(const Record& record)
{
    constexpr const char* alternatives[] = {"slots4",  "slots5",  "slots8",  "slots10",  "slots16",
                                            "slots20", "slots40", "slots80", "slots160", "slots320"};
    const unsigned tag = record.reportSlotCfg.periodicity;
    Members members;
    // Any other number is refused.
    members.add("reportSlotConfig", tag >= 1 && tag <= std::size(alternatives)
                                        ? choice(alternatives[tag - 1], record.reportSlotCfg.offset)
                                        : null());
    members.add("pucch-CSI-ResourceList", list(record.pucchCsiResourceNum, record.pucchCsiResource,
                                               [](const PucchCsiResource_t& resource)
                                               {
                                                   Members one;
                                                   one.add("uplinkBandwidthPartId", resource.UlBwpId);
                                                   one.add("pucch-Resource", resource.PucchResourceId);
                                                   return one.json();
                                               }));
    return members.json();
}

// The highest bit counts, and what the union holds is read as its alternative.
std::string reportType(const RrcCsiReportCfg_t& record)
{
    Members members;
    switch (highest(record.cfgTypeBitMask, 4))
    {
    case 4:
    {
        const Aperiodic_t& report = record.ReportCfgType_n.aperiodic;
        members.add("reportSlotOffsetList", numbers(report.reportSlotOffsetNum, report.reportSlotOffset));
        return choice("aperiodic", members.json());
    }
    case 3:
    {
        const SemiPersistentOnPuSch_t& report = record.ReportCfgType_n.semiPersistentOnPusch;
        members.add("reportSlotConfig", report.reportSlotCfg);
        members.add("reportSlotOffsetList", numbers(report.reportSlotOffsetNum, report.reportSlotOffset));
        members.add("p0alpha", report.p0PuschAlphaSetId);
        return choice("semiPersistentOnPUSCH", members.json());
    }
    case 2:
        return choice("semiPersistentOnPUCCH", onPucch(record.ReportCfgType_n.semiPersistentOnPucch));
    default:
        return choice("periodic", onPucch(record.ReportCfgType_n.periodic));
    }
}

std::string reportQuantity(const RrcCsiReportCfg_t& record)
{
    // The last for a mask that is refused.
    constexpr const char* withoutContent[] = {"none",       "cri-RI-PMI-CQI", "cri-RI-i1",      "",
                                              "cri-RI-CQI", "cri-RSRP",       "ssb-Index-RSRP", "cri-RI-LI-PMI-CQI"};
    const unsigned tag = highest(record.rptQuBitMask, 8);
    if (tag != 4)
    {
        return choice(tag == 0 ? "" : withoutContent[tag - 1], null());
    }
    const CriRiI1Cqi_t& content = record.ReportQuantity_n.criRiI1Cqi;
    Members members;
    members.addIf(content.bitMask & RRC_CSI_REPORT_PUSCH_BUNDLE_SIZE_FOR_CSI_PRESENCE, "pdsch-BundleSizeForCSI",
                  content.PdschBundleSizeForCsi);
    return choice("cri-RI-i1-CQI", members.json());
}

std::string frequency(const ReportFreqCfg_t& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_REPORT_FREQ_CFG_CQI_FORMAT_IND_PRESENCE, "cqi-FormatIndicator",
                  record.CqiFormatInd);
    members.addIf(record.bitMask & RRC_REPORT_FREQ_CFG_PMI_FORMAT_IND_PRESENCE, "pmi-FormatIndicator",
                  record.PmiFormatInd);
    if (record.bitMask & RRC_REPORT_FREQ_CFG_CSI_REPORTINT_BAND_PRESENCE)
    {
        // The bits 0..16 stand for 3..19 subbands; the string is the low bits of what the union holds.
        const unsigned subbands = highest(record.csiRptBandBitMask, 17) + 2;
        UINT32 band;
        std::memcpy(&band, &record.CsiReportingBand_n, sizeof band);
        band >>= rtx::bitFieldShift(sizeof band, subbands);
        members.add(
            "csi-ReportingBand",
            choice("subbands" + std::to_string(subbands) + (subbands == 19 ? "-v1530" : ""), bits(band, subbands)));
    }
    return members.json();
}

std::string beams(const RrcgroupBasedBeamReport_t& record)
{
    if (!(record.Presence & RRC_BASED_BEAM_REPORT_DISABLED))
    {
        return choice("enabled", null());
    }
    Members members;
    members.addIf(record.BeamReporting_n.Report_Disabled.bitMask &
                      RRC_BASED_BEAM_REPORT_DISABLED_NROF_REPORTED_RS_PRESENCE,
                  "nrofReportedRS", record.BeamReporting_n.Report_Disabled.NrofReportedRS);
    return choice("disabled", members.json());
}

// A rank above 1 is sent with all its entries: those that are not counted are 0.
template <std::size_t N>
void addRank(Members& members, std::string_view name, unsigned size, unsigned count, const UINT8 (&entries)[N])
{
    if (count != 0)
    {
        members.add(name, list(size, [&](unsigned i) { return i < count && i < N ? entries[i] : 0; }));
    }
}

std::string ranks(const portIndexFor8Ranks_portIndex8& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_RANK1_8, "rank1-8", record.rank1_8);
    addRank(members, "rank2-8", 2, record.numRank2_8, record.PortIndex2_8);
    addRank(members, "rank3-8", 3, record.numRank3_8, record.PortIndex3_8);
    addRank(members, "rank4-8", 4, record.numRank4_8, record.PortIndex4_8);
    addRank(members, "rank5-8", 5, record.numRank5_8, record.PortIndex5_8);
    addRank(members, "rank6-8", 6, record.numRank6_8, record.PortIndex6_8);
    addRank(members, "rank7-8", 7, record.numRank7_8, record.PortIndex7_8);
    addRank(members, "rank8-8", 8, record.numRank8_8, record.PortIndex8_8);
    return members.json();
}

std::string ranks(const portIndexFor8Ranks_portIndex4& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_RANK1_4, "rank1-4", record.rank1_4);
    addRank(members, "rank2-4", 2, record.numRank2_4, record.PortIndex2_4);
    addRank(members, "rank3-4", 3, record.numRank3_4, record.PortIndex3_4);
    addRank(members, "rank4-4", 4, record.numRank4_4, record.PortIndex4_4);
    return members.json();
}

std::string ranks(const portIndexFor8Ranks_portIndex2& record)
{
    Members members;
    members.addIf(record.bitMask & RRC_RANK1_2, "rank1-2", record.rank1_2);
    addRank(members, "rank2-2", 2, record.numRank2_2, record.PortIndex2_2);
    return members.json();
}

std::string ports(const RrcPortIndexFor8Ranks_t& record)
{
    switch (highest(record.Presence, 4))
    {
    case 4:
        return choice("portIndex1", null());
    case 3:
        return choice("portIndex2", ranks(record.PortIndexFor8Ranks_n.portIndex2));
    case 2:
        return choice("portIndex4", ranks(record.PortIndexFor8Ranks_n.portIndex4));
    default:
        return choice("portIndex8", ranks(record.PortIndexFor8Ranks_n.portIndex8));
    }
}

} // namespace

// semiPersistentOnPUSCH-v1530 is never sent.
std::string meant(const RrcCsiReportCfg_t& record)
{
    Members members;
    members.add("reportConfigId", record.csiReportCfgId);
    members.addIf(record.bitMask & RRC_CSI_REPORT_CFG_CERV_CELL_IDX_PRESENCE, "carrier", record.servCellIndex);
    members.add("resourcesForChannelMeasurement", record.resourceCfgIdForChMeas);
    members.addIf(record.bitMask & RRC_CSI_REPORT_CFG_CSI_IM_RESOURCE_CFG_ID_FOR_INTERFERENCE_PRESENCE,
                  "csi-IM-ResourcesForInterference", record.CsiImresourceCfgIdForInterference);
    members.addIf(record.bitMask & RRC_CSI_REPORT_CFG_NZP_CSI_RESOURCE_CFG_ID_FOR_INTERFERENCE_PRESENCE,
                  "nzp-CSI-RS-ResourcesForInterference", record.nzpCsiRsresourceCfgIdForInterference);
    members.add("reportConfigType", reportType(record));
    members.add("reportQuantity", reportQuantity(record));
    if (record.bitMask & RRC_CSI_REPORT_CFG_REPORT_FREQ_CFG_PRESENCE)
    {
        members.add("reportFreqConfiguration", frequency(record.reportFreqCfg));
    }
    members.add("timeRestrictionForChannelMeasurements", record.timeRestrictForChMeas);
    members.add("timeRestrictionForInterferenceMeasurements", record.timeRestrictForInterferenceMeas);
    if (record.bitMask & RRC_CSI_REPORT_CFG_CODE_BOOK_CFG_PRESENCE)
    {
        members.add("codebookConfig", meant(record.codeBookCfg));
    }
    members.addIf(record.bitMask & RRC_CSI_REPORT_CFG_NROF_CQIS_PER_REP_PRESENCE, "dummy", record.nrofCQIsPerRep);
    members.add("groupBasedBeamReporting", beams(record.groupBasedBeamReport));
    members.addIf(record.bitMask & RRC_CSI_REPORT_CFG_CQI_TABLE_PRESENCE, "cqi-Table", record.cqi_Table);
    members.add("subbandSize", record.subBandSize);
    if (record.bitMask & RRC_CSI_REPORT_CFG_PORT_INDEX_FOR_8RANKS_PRESENCE)
    {
        const RRCPortIndexFor8Ranks_t& indexes = record.RRCPortIndexFor8Ranks;
        members.add("non-PMI-PortIndication", list(indexes.numPortIndexFor8Ranks, indexes.portIndexFor8Ranks,
                                                   [&](const auto& entry) { return ports(entry); }));
    }
    return members.json();
}

} // namespace records
