#ifndef CSIMEASUREMENT_H
#define CSIMEASUREMENT_H

#include "dedicatedUplink.h"

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

// Resource 0 for the periodic report, 1 and 2 for tracking, 3 for the aperiodic report; one set for each of them.
inline void csiRsResources(RrcCsiMeasCfg_t& csi)
{
    csi.numNzpCsiRsResourceAddMod = 4;
    for (UINT8 i = 0; i < 4; ++i)
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
    for (UINT8 i = 0; i < 2; ++i)
    {
        RrcNzpCsiRsResource_t& tracking = csi.NzpCsiRsResourceAddMod[firstTrackingResource + i];
        trackingCsiRs(tracking, static_cast<UINT8>(4 + 4 * i));
        everySlots80(tracking, 2);
        tracking.bitMask |= RRC_NZP_CSI_RS_RESOURCE_QCI_INFO_PERIOD_CSI_RS_PRESENT;
        tracking.qclInfoPeriodicCsiRs = 0;
    }
    csiRsOfFourPorts(csi.NzpCsiRsResourceAddMod[3]);

    csi.numNzpCsiRsResourceSetAddMod = 3;
    for (UINT8 i = 0; i < 3; ++i)
    {
        RrcNzpCsiRsResourceSet_t& set = csi.NzpCsiRsResourceSetAddMod[i];
        rrcInit(&set);
        set.nzpCsiResourceSetId = i;
        set.numNzpCsiRsRes = 1;
    }
    csi.NzpCsiRsResourceSetAddMod[0].numNzpCsiRsResources[0] = 0;
    csi.NzpCsiRsResourceSetAddMod[1].numNzpCsiRsRes = 2;
    csi.NzpCsiRsResourceSetAddMod[1].numNzpCsiRsResources[0] = firstTrackingResource;
    csi.NzpCsiRsResourceSetAddMod[1].numNzpCsiRsResources[1] = firstTrackingResource + 1;
    csi.NzpCsiRsResourceSetAddMod[1].bitMask = RRC_NZP_CSI_RS_RESOUECE_SET_TRS_INFO_PRESENCE;
    csi.NzpCsiRsResourceSetAddMod[1].trsInfo = NZP_CSI_RS_ResourceSet_trs_Info_true;
    csi.NzpCsiRsResourceSetAddMod[2].numNzpCsiRsResources[0] = 3;
    csi.NzpCsiRsResourceSetAddMod[2].bitMask = RRC_NZP_CSI_RS_RESOUECE_SET_APERIODIC_OFFSET_PRESENCE;
    csi.NzpCsiRsResourceSetAddMod[2].aperidicTriggeringOffset = 0;
}

// Where the UE measures interference: resource and set 0 periodic, 1 aperiodic.
inline void interferenceResources(RrcCsiMeasCfg_t& csi)
{
    csi.numCsiImResourceAddMod = 2;
    csi.numCsiImResourceSetAddMod = 2;
    for (UINT8 i = 0; i < 2; ++i)
    {
        RrcCsiImResource_t& resource = csi.csiImResourceAddMod[i];
        rrcInit(&resource);
        resource.csiImResourceId = i;
        resource.bitMask = RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN_PRESENCE | RRC_CSI_IM_RESOURCE_FREQ_BAND_PRESENCE;
        resource.presence = RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN1_PRESENCE;
        rrcInit(&resource.csiImResourceElementPattern.pattern1);
        resource.csiImResourceElementPattern.pattern1.subCarrierLocationP1 =
            CSI_IM_Resource_csi_IM_ResourceElementPattern_pattern1_subcarrierLocation_p1_s8;
        resource.csiImResourceElementPattern.pattern1.symbolLocationP1 = 13;
        rrcInit(&resource.freqBand);
        resource.freqBand.nrofRBs = 276;
        RrcCsiImResourceSet_t& set = csi.csiImResourceSetAddMod[i];
        rrcInit(&set);
        set.csiImResourceSetId = i;
        set.numCsiImResources = 1;
        set.CsiImResourceId[0] = i;
    }
    csi.csiImResourceAddMod[0].bitMask |= RRC_CSI_IM_RESOURCE_PERIODIC_OFFSET_PRESENCE;
    rrcInit(&csi.csiImResourceAddMod[0].periodicityAndOffset);
    csi.csiImResourceAddMod[0].periodicityAndOffset.slotsPeriod = T_CSI_ResourcePeriodicityAndOffset_slots80;
    csi.csiImResourceAddMod[0].periodicityAndOffset.offset = 1;
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

// Report 0 every 80 slots over the whole band, report 1 on request by 9 subbands of 32 resource blocks.
inline void csiReports(RrcCsiMeasCfg_t& csi)
{
    csi.numCsiReportCfgAddMod = 2;
    for (UINT8 i = 0; i < 2; ++i)
    {
        RrcCsiReportCfg_t& report = csi.csiReportCfg[i];
        rrcInit(&report);
        report.csiReportCfgId = i;
        report.bitMask = RRC_CSI_REPORT_CFG_CSI_IM_RESOURCE_CFG_ID_FOR_INTERFERENCE_PRESENCE |
                         RRC_CSI_REPORT_CFG_REPORT_FREQ_CFG_PRESENCE | RRC_CSI_REPORT_CFG_CODE_BOOK_CFG_PRESENCE |
                         RRC_CSI_REPORT_CFG_GROUP_BASED_BEAM_REPORT_PRESENCE | RRC_CSI_REPORT_CFG_CQI_TABLE_PRESENCE;
        report.resourceCfgIdForChMeas = i == 0 ? 0 : 3;
        report.CsiImresourceCfgIdForInterference = i == 0 ? 1 : 4;
        report.rptQuBitMask = RRC_CSI_REPORT_QUANTITY_CRI_RI_PMI_CQI_PRESENCE;
        report.subBandSize = CSI_ReportConfig_subbandSize_value2;
        rrcInit(&report.reportFreqCfg);
        report.reportFreqCfg.bitMask =
            RRC_REPORT_FREQ_CFG_CQI_FORMAT_IND_PRESENCE | RRC_REPORT_FREQ_CFG_PMI_FORMAT_IND_PRESENCE;
        report.reportFreqCfg.CqiFormatInd =
            i == 0 ? CSI_ReportConfig_reportFreqConfiguration_cqi_FormatIndicator_widebandCQI
                   : CSI_ReportConfig_reportFreqConfiguration_cqi_FormatIndicator_subbandCQI;
        report.reportFreqCfg.PmiFormatInd = CSI_ReportConfig_reportFreqConfiguration_pmi_FormatIndicator_widebandPMI;
        report.timeRestrictForChMeas = CSI_ReportConfig_timeRestrictionForChannelMeasurements_notConfigured;
        report.timeRestrictForInterferenceMeas =
            CSI_ReportConfig_timeRestrictionForInterferenceMeasurements_notConfigured;
        singlePanelCodebook(report.codeBookCfg);
        rrcInit(&report.groupBasedBeamReport);
        report.groupBasedBeamReport.Presence = RRC_BASED_BEAM_REPORT_DISABLED;
        rrcInit(&report.groupBasedBeamReport.BeamReporting_n.Report_Disabled);
        report.cqi_Table = CSI_ReportConfig_cqi_Table_table2; // for 256QAM
    }
    RrcCsiReportCfg_t& regular = csi.csiReportCfg[0];
    regular.cfgTypeBitMask = RRC_CSI_REPORT_CFG_TYPE_PERIODIC_PRESENCE;
    rrcInit(&regular.ReportCfgType_n.periodic);
    regular.ReportCfgType_n.periodic.reportSlotCfg.periodicity = T_CSI_ReportPeriodicityAndOffset_slots80;
    regular.ReportCfgType_n.periodic.reportSlotCfg.offset = 9;
    regular.ReportCfgType_n.periodic.pucchCsiResourceNum = 1;
    regular.ReportCfgType_n.periodic.pucchCsiResource[0] = {workingBwp, csiPucchResource};

    RrcCsiReportCfg_t& requested = csi.csiReportCfg[1];
    requested.cfgTypeBitMask = RRC_CSI_REPORT_CFG_TYPE_APERIODIC_PRESENCE;
    rrcInit(&requested.ReportCfgType_n.aperiodic);
    requested.ReportCfgType_n.aperiodic.reportSlotOffsetNum = 2;
    requested.ReportCfgType_n.aperiodic.reportSlotOffset[0] = 3;
    requested.ReportCfgType_n.aperiodic.reportSlotOffset[1] = 4;
    requested.reportFreqCfg.bitMask |= RRC_REPORT_FREQ_CFG_CSI_REPORTINT_BAND_PRESENCE;
    requested.reportFreqCfg.csiRptBandBitMask = RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS9;
    requested.reportFreqCfg.CsiReportingBand_n.subbands9 = 0x1FF;
}

inline void csiMeasurement(RrcServingCellCfg_t& cell)
{
    cell.bitMask |= RRC_SERVING_CELL_CSI_MEAS_CFG_PRESENCE;
    RrcCsiMeasCfg_t& csi = cell.csiMeasCfg;
    rrcInit(&csi);
    csiRsResources(csi);
    interferenceResources(csi);
    addChannelCfg(csi, periodic, 0);       // 0
    addInterferenceCfg(csi, periodic, 0);  // 1
    addChannelCfg(csi, periodic, 1);       // 2: tracking
    addChannelCfg(csi, aperiodic, 2);      // 3
    addInterferenceCfg(csi, aperiodic, 1); // 4
    csiReports(csi);

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
