#ifndef CSIMEASUREMENT_H
#define CSIMEASUREMENT_H

#include "dedicatedUplink.h"

// The resources for tracking, two in each of two slots, and behind them that of the report on request.
constexpr UINT8 trackingResources = 4;
constexpr UINT8 requestedResource = firstTrackingResource + trackingResources;

inline void csiRsOfFourPorts(RrcNzpCsiRsResource_t& resource)
{
    RrcCsiRsResourceMapping_t& mapping = resource.resourceMapping;
    mapping.presenceFreqDomain = RRC_CSI_RS_RESOURCE_MAPPING_ROW4_PRESENCE;
    mapping.freqDomainAlloc.row4 = 1;
    mapping.nrofPorts = CSI_RS_ResourceMapping_nrofPorts_p4;
    mapping.firstOFDMSymbolInTimeDomain = 13;
    mapping.cdmType = CSI_RS_ResourceMapping_cdm_Type_fd_CDM2;
    mapping.presenceDensity = RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_ONE_PRESENCE;
}

inline void csiRsOfOnePort(RrcNzpCsiRsResource_t& resource)
{
    RrcCsiRsResourceMapping_t& mapping = resource.resourceMapping;
    mapping.presenceFreqDomain = RRC_CSI_RS_RESOURCE_MAPPING_ROW2_PRESENCE;
    mapping.freqDomainAlloc.row2 = 1;
    mapping.nrofPorts = CSI_RS_ResourceMapping_nrofPorts_p1;
    mapping.firstOFDMSymbolInTimeDomain = 13;
    mapping.cdmType = CSI_RS_ResourceMapping_cdm_Type_noCDM;
    mapping.presenceDensity = RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_ONE_PRESENCE;
}

inline void trackingCsiRs(RrcNzpCsiRsResource_t& resource, UINT8 symbol)
{
    RrcCsiRsResourceMapping_t& mapping = resource.resourceMapping;
    mapping.presenceFreqDomain = RRC_CSI_RS_RESOURCE_MAPPING_ROW1_PRESENCE;
    mapping.freqDomainAlloc.row1 = 1;
    mapping.nrofPorts = CSI_RS_ResourceMapping_nrofPorts_p1;
    mapping.firstOFDMSymbolInTimeDomain = symbol;
    mapping.cdmType = CSI_RS_ResourceMapping_cdm_Type_noCDM;
    mapping.presenceDensity = RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_THREE_PRESENCE;
}

inline void everySlots80(RrcNzpCsiRsResource_t& resource, UINT16 offset)
{
    resource.bitMask |= RRC_NZP_CSI_RS_RESOURCE_PERIODIC_OFFSET_PRESENT;
    rrcInit(&resource.periodicityAndOffset);
    resource.periodicityAndOffset.slotsPeriod = T_CSI_ResourcePeriodicityAndOffset_slots80;
    resource.periodicityAndOffset.offset = offset;
}

// Resource 0 for the periodic report, 1 to 4 for tracking, 5 for the aperiodic report; one set for each of them.
inline void csiRsResources(RrcCsiMeasCfg_t& csi)
{
    csi.numNzpCsiRsResourceAddMod = 2 + trackingResources;
    for (UINT8 i = 0; i < csi.numNzpCsiRsResourceAddMod; ++i)
    {
        RrcNzpCsiRsResource_t& resource = csi.NzpCsiRsResourceAddMod[i];
        rrcInit(&resource);
        resource.nzpCsiRsResourceId = i;
        resource.resourceMapping.freqBand.startingRb = 0;
        resource.resourceMapping.freqBand.nrofRBs = 276;
        resource.powerControlOffset = 0;
        resource.bitMask = RRC_NZP_CSI_RS_RESOURCE_POWER_CONTROL_OFFSET_SS_PRESENT;
        resource.powerControlOffsetSS = NZP_CSI_RS_Resource_powerControlOffsetSS_db0;
        resource.scramblingId = 42;
    }
    csiRsOfFourPorts(csi.NzpCsiRsResourceAddMod[0]);
    everySlots80(csi.NzpCsiRsResourceAddMod[0], 1);
    csi.NzpCsiRsResourceAddMod[0].bitMask |= RRC_NZP_CSI_RS_RESOURCE_QCI_INFO_PERIOD_CSI_RS_PRESENT;
    csi.NzpCsiRsResourceAddMod[0].qclInfoPeriodicCsiRs = 2;
    for (UINT8 i = 0; i < trackingResources; ++i)
    {
        RrcNzpCsiRsResource_t& tracking = csi.NzpCsiRsResourceAddMod[firstTrackingResource + i];
        trackingCsiRs(tracking, i % 2 == 0 ? 4 : 8);
        everySlots80(tracking, static_cast<UINT16>(1 + i / 2));
        tracking.bitMask |= RRC_NZP_CSI_RS_RESOURCE_QCI_INFO_PERIOD_CSI_RS_PRESENT;
        tracking.qclInfoPeriodicCsiRs = 0;
    }
    csiRsOfOnePort(csi.NzpCsiRsResourceAddMod[requestedResource]);

    csi.numNzpCsiRsResourceSetAddMod = 3;
    for (UINT8 i = 0; i < 3; ++i)
    {
        RrcNzpCsiRsResourceSet_t& set = csi.NzpCsiRsResourceSetAddMod[i];
        rrcInit(&set);
        set.nzpCsiResourceSetId = i;
        set.numNzpCsiRsRes = 1;
    }
    csi.NzpCsiRsResourceSetAddMod[0].numNzpCsiRsResources[0] = 0;
    csi.NzpCsiRsResourceSetAddMod[1].numNzpCsiRsRes = trackingResources;
    for (UINT8 i = 0; i < trackingResources; ++i)
    {
        csi.NzpCsiRsResourceSetAddMod[1].numNzpCsiRsResources[i] = static_cast<UINT8>(firstTrackingResource + i);
    }
    csi.NzpCsiRsResourceSetAddMod[1].bitMask = RRC_NZP_CSI_RS_RESOUECE_SET_TRS_INFO_PRESENCE;
    csi.NzpCsiRsResourceSetAddMod[1].trsInfo = NZP_CSI_RS_ResourceSet_trs_Info_true;
    csi.NzpCsiRsResourceSetAddMod[2].numNzpCsiRsResources[0] = requestedResource;
    csi.NzpCsiRsResourceSetAddMod[2].bitMask = RRC_NZP_CSI_RS_RESOUECE_SET_APERIODIC_OFFSET_PRESENCE;
    csi.NzpCsiRsResourceSetAddMod[2].aperidicTriggeringOffset = 0;
}

// Where the UE measures interference, in the slot of resource 0.
inline void interferenceResource(RrcCsiMeasCfg_t& csi)
{
    csi.numCsiImResourceAddMod = 1;
    RrcCsiImResource_t& resource = csi.csiImResourceAddMod[0];
    rrcInit(&resource);
    resource.csiImResourceId = 0;
    resource.bitMask = RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN_PRESENCE | RRC_CSI_IM_RESOURCE_FREQ_BAND_PRESENCE |
                       RRC_CSI_IM_RESOURCE_PERIODIC_OFFSET_PRESENCE;
    resource.presence = RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN1_PRESENCE;
    rrcInit(&resource.csiImResourceElementPattern.pattern1);
    resource.csiImResourceElementPattern.pattern1.subCarrierLocationP1 =
        CSI_IM_Resource_csi_IM_ResourceElementPattern_pattern1_subcarrierLocation_p1_s8;
    resource.csiImResourceElementPattern.pattern1.symbolLocationP1 = 13;
    rrcInit(&resource.freqBand);
    resource.freqBand.nrofRBs = 276;
    rrcInit(&resource.periodicityAndOffset);
    resource.periodicityAndOffset.slotsPeriod = T_CSI_ResourcePeriodicityAndOffset_slots80;
    resource.periodicityAndOffset.offset = 1;

    csi.numCsiImResourceSetAddMod = 1;
    RrcCsiImResourceSet_t& set = csi.csiImResourceSetAddMod[0];
    rrcInit(&set);
    set.csiImResourceSetId = 0;
    set.numCsiImResources = 1;
    set.CsiImResourceId[0] = 0;
}

constexpr UINT8 aperiodic = CSI_ResourceConfig_resourceType_aperiodic;
constexpr UINT8 periodic = CSI_ResourceConfig_resourceType_periodic;

inline RrcCsiResourceCfg_t& addResourceCfg(RrcCsiMeasCfg_t& csi, UINT8 type)
{
    RrcCsiResourceCfg_t& cfg = csi.csiResourceCfg[csi.numCsiResourceCfgAddMod];
    rrcInit(&cfg);
    cfg.csiResourceCfgId = csi.numCsiResourceCfgAddMod++;
    cfg.bwpId = workingBwp;
    cfg.resourceType = type;
    return cfg;
}

inline void addChannelCfg(RrcCsiMeasCfg_t& csi, UINT8 type, UINT8 set)
{
    RrcCsiResourceCfg_t& cfg = addResourceCfg(csi, type);
    cfg.presence = RRC_CSI_RESOURCE_CFG_NZP_CSI_RS_SSB_PRESENCE;
    rrcInit(&cfg.csiRsResourceSetList.nzpCsiRsResourceSetList);
    cfg.csiRsResourceSetList.nzpCsiRsResourceSetList.numNzpCsiRsResourceSet = 1;
    cfg.csiRsResourceSetList.nzpCsiRsResourceSetList.nzpCsiRsResourceSetId[0] = set;
}

inline void addInterferenceCfg(RrcCsiMeasCfg_t& csi, UINT8 type, UINT8 set)
{
    RrcCsiResourceCfg_t& cfg = addResourceCfg(csi, type);
    cfg.presence = RRC_CSI_RESOURCE_CFG_CSI_IM_RESOUECE_SET_LIST_PRESENCE;
    rrcInit(&cfg.csiRsResourceSetList.csiImResourceSetList);
    cfg.csiRsResourceSetList.csiImResourceSetList.numCsiImResourceSet = 1;
    cfg.csiRsResourceSetList.csiImResourceSetList.csiImResourceSetId[0] = set;
}

// Type I codebook for one panel of four ports, no beam restricted, up to two layers.
inline void singlePanelCodebook(RrcCodebookCfg_t& codebook)
{
    rrcInit(&codebook);
    codebook.Presence = RRC_CODE_BOOK_TYPE1_PRESENCE;
    CodeBookType1_t& type1 = codebook.CodeBookCfgType_u.codeBookType1;
    rrcInit(&type1);
    type1.codebookType1_Sub.Presence = RRC_CODE_BOOK_TYPE_SINGLE_PANEL;
    CodeBookTypeSinglePanel_t& panel = type1.codebookType1_Sub.CodeBookTypePanel_u.singlePanel;
    rrcInit(&panel);
    panel.SinglePanel_nrOfAntennaPorts.Presence = RRC_NROF_ANTENNA_PORTS_MORE_THANTWO_PRESENCE;
    struct nrOfAntennaPorts_moreThanTwo& ports = panel.SinglePanel_nrOfAntennaPorts.NrOfAntennaPorts_n.moreThanTwo;
    rrcInit(&ports);
    ports.bitMask = RRC_MORE_THAN_TWO_N1_N2_PRESENCE;
    ports.N1_N2_Presence = RRC_TWO_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE;
    ports.MoreThanTwo_n1_n2_u.two_one = 0xFF;
    panel.typeI_SinglePanel_ri_Restriction = 0x03;
    type1.CodebookMode = 1;
}

inline RrcCsiReportCfg_t& addReport(RrcCsiMeasCfg_t& csi, UINT8 channelCfg)
{
    RrcCsiReportCfg_t& report = csi.csiReportCfg[csi.numCsiReportCfgAddMod];
    rrcInit(&report);
    report.csiReportCfgId = csi.numCsiReportCfgAddMod++;
    report.resourceCfgIdForChMeas = channelCfg;
    report.bitMask = RRC_CSI_REPORT_CFG_GROUP_BASED_BEAM_REPORT_PRESENCE;
    rrcInit(&report.groupBasedBeamReport);
    report.groupBasedBeamReport.Presence = RRC_BASED_BEAM_REPORT_DISABLED;
    rrcInit(&report.groupBasedBeamReport.BeamReporting_n.Report_Disabled);
    report.subBandSize = CSI_ReportConfig_subbandSize_value2;
    report.timeRestrictForChMeas = CSI_ReportConfig_timeRestrictionForChannelMeasurements_notConfigured;
    report.timeRestrictForInterferenceMeas = CSI_ReportConfig_timeRestrictionForInterferenceMeasurements_notConfigured;
    return report;
}

// CQI, PMI and rank every 80 slots over the whole band.
inline void regularReport(RrcCsiReportCfg_t& report)
{
    report.bitMask |= RRC_CSI_REPORT_CFG_CSI_IM_RESOURCE_CFG_ID_FOR_INTERFERENCE_PRESENCE |
                      RRC_CSI_REPORT_CFG_REPORT_FREQ_CFG_PRESENCE | RRC_CSI_REPORT_CFG_CODE_BOOK_CFG_PRESENCE |
                      RRC_CSI_REPORT_CFG_CQI_TABLE_PRESENCE;
    report.CsiImresourceCfgIdForInterference = 1;
    report.rptQuBitMask = RRC_CSI_REPORT_QUANTITY_CRI_RI_PMI_CQI_PRESENCE;
    rrcInit(&report.reportFreqCfg);
    report.reportFreqCfg.bitMask =
        RRC_REPORT_FREQ_CFG_CQI_FORMAT_IND_PRESENCE | RRC_REPORT_FREQ_CFG_PMI_FORMAT_IND_PRESENCE;
    report.reportFreqCfg.CqiFormatInd = CSI_ReportConfig_reportFreqConfiguration_cqi_FormatIndicator_widebandCQI;
    report.reportFreqCfg.PmiFormatInd = CSI_ReportConfig_reportFreqConfiguration_pmi_FormatIndicator_widebandPMI;
    singlePanelCodebook(report.codeBookCfg);
    report.cqi_Table = CSI_ReportConfig_cqi_Table_table2; // for 256QAM
    report.cfgTypeBitMask = RRC_CSI_REPORT_CFG_TYPE_PERIODIC_PRESENCE;
    rrcInit(&report.ReportCfgType_n.periodic);
    report.ReportCfgType_n.periodic.reportSlotCfg.periodicity = T_CSI_ReportPeriodicityAndOffset_slots80;
    report.ReportCfgType_n.periodic.reportSlotCfg.offset = 9;
    report.ReportCfgType_n.periodic.pucchCsiResourceNum = 1;
    report.ReportCfgType_n.periodic.pucchCsiResource[0] = {workingBwp, csiPucchResource};
}

// RSRP on request, three or four slots after it. A trigger state of the record has no place for the CSI-IM that a CQI
// would need.
inline void requestedReport(RrcCsiReportCfg_t& report)
{
    report.rptQuBitMask = RRC_CSI_REPORT_QUANTITY_CRI_RSRP_PRESENCE;
    report.cfgTypeBitMask = RRC_CSI_REPORT_CFG_TYPE_APERIODIC_PRESENCE;
    rrcInit(&report.ReportCfgType_n.aperiodic);
    report.ReportCfgType_n.aperiodic.reportSlotOffsetNum = 2;
    report.ReportCfgType_n.aperiodic.reportSlotOffset[0] = 3;
    report.ReportCfgType_n.aperiodic.reportSlotOffset[1] = 4;
}

inline void csiMeasurement(RrcServingCellCfg_t& cell)
{
    cell.bitMask |= RRC_SERVING_CELL_CSI_MEAS_CFG_PRESENCE;
    RrcCsiMeasCfg_t& csi = cell.csiMeasCfg;
    rrcInit(&csi);
    csiRsResources(csi);
    interferenceResource(csi);
    addChannelCfg(csi, periodic, 0);      // 0
    addInterferenceCfg(csi, periodic, 0); // 1
    addChannelCfg(csi, periodic, 1);      // 2: tracking
    addChannelCfg(csi, aperiodic, 2);     // 3
    regularReport(addReport(csi, 0));
    requestedReport(addReport(csi, 3));

    // One trigger state, which asks for report 1.
    csi.bitMask =
        RRC_CSI_MEAS_CFG_REPORT_TRIGGER_SIZE_PRESENCE | RRC_CSI_MEAS_CFG_APERIODIC_TRIGGER_STATE_LIST_PRESENCE;
    csi.reportTriggerSize = 1;
    rrcInit(&csi.aperiodicTriggerStateList);
    csi.aperiodicTriggerStateList.numState = 1;
    RrcCsiAperiodicTriggerState_t& state = csi.aperiodicTriggerStateList.state[0];
    rrcInit(&state);
    state.numCfgInfo = 1;
    RrcCsiAssociatedReportCfgInfo_t& info = state.info[0];
    rrcInit(&info);
    info.reportCfgId = 1;
    info.prsence = RRC_CSI_ASSOCIATED_REPORT_CFG_INFO_NZP_CSI_RS_PRESENCE;
    rrcInit(&info.resourceForChannel.nzpCsiRs);
    info.resourceForChannel.nzpCsiRs.resourceSet = 1;
    info.resourceForChannel.nzpCsiRs.numQciInfo = 1;
    info.resourceForChannel.nzpCsiRs.qciInfo[0] = 2;
}

#endif
