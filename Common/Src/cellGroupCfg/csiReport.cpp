#include "csiReport.h"

#include "bitStringChoice.h"
#include "codebook.h"

// CSI-MeasConfig.csi-ReportConfigToAddModList[]
INT32 rrcComposeCsi_ReportConfigToAdd(OSCTXT* pAsnCxt, CSI_ReportConfig* pItem, RrcCsiReportCfg_t* pRrcItem)
{
    assign(pItem->reportConfigId, pRrcItem->csiReportCfgId);
    COPY_IF(pRrcItem->bitMask & RRC_CSI_REPORT_CFG_CERV_CELL_IDX_PRESENCE, pItem, carrier, pRrcItem->servCellIndex);
    assign(pItem->resourcesForChannelMeasurement, pRrcItem->resourceCfgIdForChMeas);
    COPY_IF(pRrcItem->bitMask & RRC_CSI_REPORT_CFG_CSI_IM_RESOURCE_CFG_ID_FOR_INTERFERENCE_PRESENCE, pItem,
            csi_IM_ResourcesForInterference, pRrcItem->CsiImresourceCfgIdForInterference);
    COPY_IF(pRrcItem->bitMask & RRC_CSI_REPORT_CFG_NZP_CSI_RESOURCE_CFG_ID_FOR_INTERFERENCE_PRESENCE, pItem,
            nzp_CSI_RS_ResourcesForInterference, pRrcItem->nzpCsiRsresourceCfgIdForInterference);
    (void)rrcComposeCSI_ReportConfigType(pAsnCxt, &pItem->reportConfigType, pRrcItem);
    (void)rrcComposeCSIreportQuantity(pAsnCxt, &pItem->reportQuantity, pRrcItem);
    if (pRrcItem->bitMask & RRC_CSI_REPORT_CFG_REPORT_FREQ_CFG_PRESENCE)
    {
        pItem->m.reportFreqConfigurationPresent = 1;
        (void)rrcComposeReportFreqConfiguration(pAsnCxt, &pItem->reportFreqConfiguration, &pRrcItem->reportFreqCfg);
    }
    assign(pItem->timeRestrictionForChannelMeasurements, pRrcItem->timeRestrictForChMeas);
    assign(pItem->timeRestrictionForInterferenceMeasurements, pRrcItem->timeRestrictForInterferenceMeas);
    if (pRrcItem->bitMask & RRC_CSI_REPORT_CFG_CODE_BOOK_CFG_PRESENCE)
    {
        pItem->m.codebookConfigPresent = 1;
        (void)rrcComposeCodebookConfig(pAsnCxt, &pItem->codebookConfig, &pRrcItem->codeBookCfg);
    }
    COPY_IF(pRrcItem->bitMask & RRC_CSI_REPORT_CFG_NROF_CQIS_PER_REP_PRESENCE, pItem, dummy, pRrcItem->nrofCQIsPerRep);
    // A mandatory member: without its bit the choice stays open, which the encoder refuses.
    if (pRrcItem->bitMask & RRC_CSI_REPORT_CFG_GROUP_BASED_BEAM_REPORT_PRESENCE)
    {
        (void)rrcComposeGroupBasedBeamReport(pAsnCxt, &pItem->groupBasedBeamReporting, &pRrcItem->groupBasedBeamReport);
    }
    COPY_IF(pRrcItem->bitMask & RRC_CSI_REPORT_CFG_CQI_TABLE_PRESENCE, pItem, cqi_Table, pRrcItem->cqi_Table);
    assign(pItem->subbandSize, pRrcItem->subBandSize);
    if (pRrcItem->bitMask & RRC_CSI_REPORT_CFG_PORT_INDEX_FOR_8RANKS_PRESENCE)
    {
        pItem->m.non_PMI_PortIndicationPresent = 1;
        (void)rrcComposeNon_PMI_PortIndicat(pAsnCxt, &pItem->non_PMI_PortIndication, &pRrcItem->RRCPortIndexFor8Ranks);
    }
    // The extension group is not marked, so the encoder does not send this member.
    if (pRrcItem->bitMask & RRC_CSI_REPORT_CFG_SEMI_PERSISTENT_ON_PUSCH_V1530_PRESENCE)
    {
        pItem->m.semiPersistentOnPUSCH_v1530Present = 1;
        (void)rrcComposeSemiPersistentOnPUSCH_v1530(&pItem->semiPersistentOnPUSCH_v1530,
                                                    &pRrcItem->semimPersistentOnPuschv1530_t);
    }
    return VOS_OK;
}

// CSI-ReportConfig.reportConfigType: the highest bit wins.
INT32 rrcComposeCSI_ReportConfigType(OSCTXT* pAsnCxt, CSI_ReportConfig_reportConfigType* pReportConfigType,
                                     RrcCsiReportCfg_t* pRrcCsiReportCfg)
{
    if (pRrcCsiReportCfg->cfgTypeBitMask & RRC_CSI_REPORT_CFG_TYPE_PERIODIC_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pReportConfigType, T_CSI_ReportConfig_reportConfigType_periodic,
                                   pReportConfigType->u.periodic, &pRrcCsiReportCfg->ReportCfgType_n.periodic,
                                   rrcComposeReportConfigType_periodic);
    }
    if (pRrcCsiReportCfg->cfgTypeBitMask & RRC_CSI_REPORT_CFG_TYPE_SEMI_PERSISTENT_ON_PUCCH_PRESENCE)
    {
        (void)compose::alternative(
            pAsnCxt, pReportConfigType, T_CSI_ReportConfig_reportConfigType_semiPersistentOnPUCCH,
            pReportConfigType->u.semiPersistentOnPUCCH, &pRrcCsiReportCfg->ReportCfgType_n.semiPersistentOnPucch,
            rrcComposeSemiPersistentOnPUCCH);
    }
    if (pRrcCsiReportCfg->cfgTypeBitMask & RRC_CSI_REPORT_CFG_TYPE_SEMI_PERSISTENT_ON_PUSCH_PRESENCE)
    {
        (void)compose::alternative(
            pAsnCxt, pReportConfigType, T_CSI_ReportConfig_reportConfigType_semiPersistentOnPUSCH,
            pReportConfigType->u.semiPersistentOnPUSCH, &pRrcCsiReportCfg->ReportCfgType_n.semiPersistentOnPusch,
            rrcComposeSemiPersistentOnPUSCH);
    }
    if (pRrcCsiReportCfg->cfgTypeBitMask & RRC_CSI_REPORT_CFG_TYPE_APERIODIC_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pReportConfigType, T_CSI_ReportConfig_reportConfigType_aperiodic,
                                   pReportConfigType->u.aperiodic, &pRrcCsiReportCfg->ReportCfgType_n.aperiodic,
                                   rrcComposeReportConfigType_aperiodic);
    }
    return VOS_OK;
}

// CSI-ReportConfig.reportConfigType.periodic
INT32 rrcComposeReportConfigType_periodic(OSCTXT* pAsnCxt, CSI_ReportConfig_reportConfigType_periodic* pPeriodic,
                                          Periodic_t* pRrcPeriodic)
{
    (void)rrcComposeReportPeriodicityAndOffset(&pPeriodic->reportSlotConfig, &pRrcPeriodic->reportSlotCfg);
    (void)rrcComposepucch_CSI_ResourceList(pAsnCxt, &pPeriodic->pucch_CSI_ResourceList, pRrcPeriodic);
    return VOS_OK;
}

// CSI-ReportPeriodicityAndOffset
INT32 rrcComposeReportPeriodicityAndOffset(CSI_ReportPeriodicityAndOffset* pReportSlotConfig,
                                           csiReportPeriodAndOffset_t* pRrcReportSlotCfg)
{
    const UINT8 offset = pRrcReportSlotCfg->offset;
    pReportSlotConfig->t = pRrcReportSlotCfg->periodicity;
    switch (pReportSlotConfig->t)
    {
    case T_CSI_ReportPeriodicityAndOffset_slots4:
        assign(pReportSlotConfig->u.slots4, offset);
        break;
    case T_CSI_ReportPeriodicityAndOffset_slots5:
        assign(pReportSlotConfig->u.slots5, offset);
        break;
    case T_CSI_ReportPeriodicityAndOffset_slots8:
        assign(pReportSlotConfig->u.slots8, offset);
        break;
    case T_CSI_ReportPeriodicityAndOffset_slots10:
        assign(pReportSlotConfig->u.slots10, offset);
        break;
    case T_CSI_ReportPeriodicityAndOffset_slots16:
        assign(pReportSlotConfig->u.slots16, offset);
        break;
    case T_CSI_ReportPeriodicityAndOffset_slots20:
        assign(pReportSlotConfig->u.slots20, offset);
        break;
    case T_CSI_ReportPeriodicityAndOffset_slots40:
        assign(pReportSlotConfig->u.slots40, offset);
        break;
    case T_CSI_ReportPeriodicityAndOffset_slots80:
        assign(pReportSlotConfig->u.slots80, offset);
        break;
    case T_CSI_ReportPeriodicityAndOffset_slots160:
        assign(pReportSlotConfig->u.slots160, offset);
        break;
    case T_CSI_ReportPeriodicityAndOffset_slots320:
        assign(pReportSlotConfig->u.slots320, offset);
        break;
    default:
        // The unknown tag stays, and the encoder refuses it.
        VOS_Printf("No T_CSI_ReportPeriodicityAndOffset\n");
        break;
    }
    return VOS_OK;
}

// CSI-ReportConfig.reportConfigType.periodic.pucch-CSI-ResourceList
INT32 rrcComposepucch_CSI_ResourceList(OSCTXT* pAsnCxt, OSRTDList* pPucch_CSI_ResourceList, Periodic_t* pRrcPeriodic)
{
    return compose::list<PUCCH_CSI_Resource>(
        pAsnCxt, pPucch_CSI_ResourceList, pRrcPeriodic->pucchCsiResourceNum, pRrcPeriodic->pucchCsiResource,
        rrcComposePUCCH_CSI_Resource, {"pNode Or pItem is NULL\r\n", "rrcComposePUCCH_CSI_Resource is Error\r\n"});
}

// PUCCH-CSI-Resource
INT32 rrcComposePUCCH_CSI_Resource(PUCCH_CSI_Resource* pItem, PucchCsiResource_t* pRrcItem)
{
    assign(pItem->uplinkBandwidthPartId, pRrcItem->UlBwpId);
    assign(pItem->pucch_Resource, pRrcItem->PucchResourceId);
    return VOS_OK;
}

// CSI-ReportConfig.reportConfigType.semiPersistentOnPUCCH
INT32 rrcComposeSemiPersistentOnPUCCH(OSCTXT* pAsnCxt,
                                      CSI_ReportConfig_reportConfigType_semiPersistentOnPUCCH* pSemiPersistentOnPUCCH,
                                      SemiPersistentOnPucch_t* pRrcSemiPersistentOnPucch)
{
    (void)rrcComposeReportPeriodicityAndOffset(&pSemiPersistentOnPUCCH->reportSlotConfig,
                                               &pRrcSemiPersistentOnPucch->reportSlotCfg);
    (void)rrcComposeSemiPerpucch_CSI_ResourceList(pAsnCxt, &pSemiPersistentOnPUCCH->pucch_CSI_ResourceList,
                                                  pRrcSemiPersistentOnPucch);
    return VOS_OK;
}

// CSI-ReportConfig.reportConfigType.semiPersistentOnPUCCH.pucch-CSI-ResourceList
INT32 rrcComposeSemiPerpucch_CSI_ResourceList(OSCTXT* pAsnCxt, OSRTDList* pPucch_CSI_ResourceList,
                                              SemiPersistentOnPucch_t* pRrcSemiPersistentOnPucch)
{
    return compose::list<PUCCH_CSI_Resource>(
        pAsnCxt, pPucch_CSI_ResourceList, pRrcSemiPersistentOnPucch->pucchCsiResourceNum,
        pRrcSemiPersistentOnPucch->pucchCsiResource, rrcComposePUCCH_CSI_Resource,
        {"pNode Or pItem is NULL\r\n", "rrcComposePUCCH_CSI_Resource is Error\r\n"});
}

// CSI-ReportConfig.reportConfigType.semiPersistentOnPUSCH
INT32 rrcComposeSemiPersistentOnPUSCH(CSI_ReportConfig_reportConfigType_semiPersistentOnPUSCH* pSemiPersistentOnPUSCH,
                                      SemiPersistentOnPuSch_t* pRrcSemiPersistentOnPusch)
{
    assign(pSemiPersistentOnPUSCH->reportSlotConfig, pRrcSemiPersistentOnPusch->reportSlotCfg);
    compose::array(&pSemiPersistentOnPUSCH->reportSlotOffsetList, pRrcSemiPersistentOnPusch->reportSlotOffsetNum,
                   pRrcSemiPersistentOnPusch->reportSlotOffset);
    assign(pSemiPersistentOnPUSCH->p0alpha, pRrcSemiPersistentOnPusch->p0PuschAlphaSetId);
    return VOS_OK;
}

// CSI-ReportConfig.reportConfigType.aperiodic
INT32 rrcComposeReportConfigType_aperiodic(CSI_ReportConfig_reportConfigType_aperiodic* pAperiodic,
                                           Aperiodic_t* pRrcAperiodic)
{
    (void)rrcComposeReportSlotOffsetList(&pAperiodic->reportSlotOffsetList, pRrcAperiodic);
    return VOS_OK;
}

// CSI-ReportConfig.reportConfigType.aperiodic.reportSlotOffsetList
INT32 rrcComposeReportSlotOffsetList(
    CSI_ReportConfig_reportConfigType_aperiodic_reportSlotOffsetList* pReportSlotOffsetList, Aperiodic_t* pRrcAperiodic)
{
    compose::array(pReportSlotOffsetList, pRrcAperiodic->reportSlotOffsetNum, pRrcAperiodic->reportSlotOffset);
    return VOS_OK;
}

// CSI-ReportConfig.reportQuantity: bit k is alternative k + 1, the highest bit wins.
INT32 rrcComposeCSIreportQuantity(OSCTXT* pAsnCxt, CSI_ReportConfig_reportQuantity* pReportQuantity,
                                  RrcCsiReportCfg_t* pRrcCsiReportCfg)
{
    for (OSUINT32 tag = T_CSI_ReportConfig_reportQuantity_none;
         tag <= T_CSI_ReportConfig_reportQuantity_cri_RI_LI_PMI_CQI; ++tag)
    {
        if ((pRrcCsiReportCfg->rptQuBitMask & (1U << (tag - 1))) == 0)
        {
            continue;
        }
        if (tag == T_CSI_ReportConfig_reportQuantity_cri_RI_i1_CQI)
        {
            (void)compose::alternative(pAsnCxt, pReportQuantity, tag, pReportQuantity->u.cri_RI_i1_CQI,
                                       &pRrcCsiReportCfg->ReportQuantity_n.criRiI1Cqi, rrcComposeCri_RI_i1_CQI);
        }
        else
        {
            pReportQuantity->t = tag;
        }
    }
    return VOS_OK;
}

// CSI-ReportConfig.reportQuantity.cri-RI-i1-CQI
INT32 rrcComposeCri_RI_i1_CQI(CSI_ReportConfig_reportQuantity_cri_RI_i1_CQI* pCri_RI_i1_CQI,
                              CriRiI1Cqi_t* pRrcCriRiI1Cqi)
{
    COPY_IF(pRrcCriRiI1Cqi->bitMask & RRC_CSI_REPORT_PUSCH_BUNDLE_SIZE_FOR_CSI_PRESENCE, pCri_RI_i1_CQI,
            pdsch_BundleSizeForCSI, pRrcCriRiI1Cqi->PdschBundleSizeForCsi);
    return VOS_OK;
}

// CSI-ReportConfig.reportFreqConfiguration
INT32 rrcComposeReportFreqConfiguration(OSCTXT* pAsnCxt,
                                        CSI_ReportConfig_reportFreqConfiguration* pReportFreqConfiguration,
                                        ReportFreqCfg_t* pRrcReportFreqCfg)
{
    COPY_IF(pRrcReportFreqCfg->bitMask & RRC_REPORT_FREQ_CFG_CQI_FORMAT_IND_PRESENCE, pReportFreqConfiguration,
            cqi_FormatIndicator, pRrcReportFreqCfg->CqiFormatInd);
    COPY_IF(pRrcReportFreqCfg->bitMask & RRC_REPORT_FREQ_CFG_PMI_FORMAT_IND_PRESENCE, pReportFreqConfiguration,
            pmi_FormatIndicator, pRrcReportFreqCfg->PmiFormatInd);
    if (pRrcReportFreqCfg->bitMask & RRC_REPORT_FREQ_CFG_CSI_REPORTINT_BAND_PRESENCE)
    {
        pReportFreqConfiguration->m.csi_ReportingBandPresent = 1;
        (void)rrcComposeCsi_ReportingBand(pAsnCxt, &pReportFreqConfiguration->csi_ReportingBand, pRrcReportFreqCfg);
    }
    return VOS_OK;
}

template <>
constexpr bool compose::hasBitFields<csiReportingBand_u> = true;

namespace
{

#define BAND_TAG(alternative) T_CSI_ReportConfig_reportFreqConfiguration_csi_ReportingBand_##alternative

constexpr compose::BitStringRow reportingBands[] = {
    {BAND_TAG(subbands3), 3, uint32To3ASN1BitStr32},          {BAND_TAG(subbands4), 4, uint32To4ASN1BitStr32},
    {BAND_TAG(subbands5), 5, uint32To5ASN1BitStr32},          {BAND_TAG(subbands6), 6, uint32To6ASN1BitStr32},
    {BAND_TAG(subbands7), 7, uint32To7ASN1BitStr32},          {BAND_TAG(subbands8), 8, uint32To8ASN1BitStr32},
    {BAND_TAG(subbands9), 9, uint32To9ASN1BitStr32},          {BAND_TAG(subbands10), 10, uint32To10ASN1BitStr32},
    {BAND_TAG(subbands11), 11, uint32To11ASN1BitStr32},       {BAND_TAG(subbands12), 12, uint32To12ASN1BitStr32},
    {BAND_TAG(subbands13), 13, uint32To13ASN1BitStr32},       {BAND_TAG(subbands14), 14, uint32To14ASN1BitStr32},
    {BAND_TAG(subbands15), 15, uint32To15ASN1BitStr32},       {BAND_TAG(subbands16), 16, uint32To16ASN1BitStr32},
    {BAND_TAG(subbands17), 17, uint32To17ASN1BitStr32},       {BAND_TAG(subbands18), 18, uint32To18ASN1BitStr32},
    {BAND_TAG(subbands19_v1530), 19, uint32To19ASN1BitStr32},
};

#undef BAND_TAG

} // namespace

// CSI-ReportConfig.reportFreqConfiguration.csi-ReportingBand
INT32 rrcComposeCsi_ReportingBand(OSCTXT* pAsnCxt,
                                  CSI_ReportConfig_reportFreqConfiguration_csi_ReportingBand* pCsi_ReportingBand,
                                  ReportFreqCfg_t* pRrcReportFreqCfg)
{
    compose::chooseBitStrings(pAsnCxt, pCsi_ReportingBand, pRrcReportFreqCfg->csiRptBandBitMask,
                              pRrcReportFreqCfg->CsiReportingBand_n, reportingBands);
    return VOS_OK;
}

// CSI-ReportConfig.groupBasedBeamReporting: the highest bit wins.
INT32 rrcComposeGroupBasedBeamReport(OSCTXT* pAsnCxt,
                                     CSI_ReportConfig_groupBasedBeamReporting* pGroupBasedBeamReporting,
                                     RrcgroupBasedBeamReport_t* pRrcGroupBasedBeamReport)
{
    if (pRrcGroupBasedBeamReport->Presence & RRC_BASED_BEAM_REPORT_ENABLED)
    {
        pGroupBasedBeamReporting->t = T_CSI_ReportConfig_groupBasedBeamReporting_enabled;
    }
    if (pRrcGroupBasedBeamReport->Presence & RRC_BASED_BEAM_REPORT_DISABLED)
    {
        auto* const pDisabled =
            compose::choose(pAsnCxt, pGroupBasedBeamReporting, T_CSI_ReportConfig_groupBasedBeamReporting_disabled,
                            pGroupBasedBeamReporting->u.disabled);
        if (pDisabled != nullptr)
        {
            const struct basedBeamReport_Disabled* const pRrcDisabled =
                &pRrcGroupBasedBeamReport->BeamReporting_n.Report_Disabled;
            COPY_IF(pRrcDisabled->bitMask & RRC_BASED_BEAM_REPORT_DISABLED_NROF_REPORTED_RS_PRESENCE, pDisabled,
                    nrofReportedRS, pRrcDisabled->NrofReportedRS);
        }
    }
    return VOS_OK;
}

// CSI-ReportConfig.non-PMI-PortIndication
INT32 rrcComposeNon_PMI_PortIndicat(OSCTXT* pAsnCxt, OSRTDList* pNon_PMI_PortIndication,
                                    RRCPortIndexFor8Ranks_t* pRrcPortIndexFor8Ranks)
{
    return compose::list<PortIndexFor8Ranks>(
        pAsnCxt, pNon_PMI_PortIndication, pRrcPortIndexFor8Ranks->numPortIndexFor8Ranks,
        pRrcPortIndexFor8Ranks->portIndexFor8Ranks, rrcComposePortIndexFor8Ranks,
        {"pNode Or pItem is NULL\r\n", "rrcComposePortIndexFor8Ranks is Error\r\n"});
}

// PortIndexFor8Ranks: the highest bit wins.
INT32 rrcComposePortIndexFor8Ranks(OSCTXT* pAsnCxt, PortIndexFor8Ranks* pItem, RrcPortIndexFor8Ranks_t* pRrcItem)
{
    if (pRrcItem->Presence & RRC_PORT_INDEX8_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pItem, T_PortIndexFor8Ranks_portIndex8, pItem->u.portIndex8,
                                   &pRrcItem->PortIndexFor8Ranks_n.portIndex8, rrcComposePortIndex8);
    }
    if (pRrcItem->Presence & RRC_PORT_INDEX4_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pItem, T_PortIndexFor8Ranks_portIndex4, pItem->u.portIndex4,
                                   &pRrcItem->PortIndexFor8Ranks_n.portIndex4, rrcComposePortIndex4);
    }
    if (pRrcItem->Presence & RRC_PORT_INDEX2_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pItem, T_PortIndexFor8Ranks_portIndex2, pItem->u.portIndex2,
                                   &pRrcItem->PortIndexFor8Ranks_n.portIndex2, rrcComposePortIndex2);
    }
    if (pRrcItem->Presence & RRC_PORT_INDEX1_PRESENCE)
    {
        pItem->t = T_PortIndexFor8Ranks_portIndex1;
    }
    return VOS_OK;
}

// PortIndexFor8Ranks.portIndex8
INT32 rrcComposePortIndex8(PortIndexFor8Ranks_portIndex8* pPortIndex8,
                           struct portIndexFor8Ranks_portIndex8* pRrcPortIndex8)
{
    COPY_IF(pRrcPortIndex8->bitMask & RRC_RANK1_8, pPortIndex8, rank1_8, pRrcPortIndex8->rank1_8);
    ENTRIES_IF(pRrcPortIndex8->numRank2_8, pPortIndex8, rank2_8, pRrcPortIndex8->PortIndex2_8);
    ENTRIES_IF(pRrcPortIndex8->numRank3_8, pPortIndex8, rank3_8, pRrcPortIndex8->PortIndex3_8);
    ENTRIES_IF(pRrcPortIndex8->numRank4_8, pPortIndex8, rank4_8, pRrcPortIndex8->PortIndex4_8);
    ENTRIES_IF(pRrcPortIndex8->numRank5_8, pPortIndex8, rank5_8, pRrcPortIndex8->PortIndex5_8);
    ENTRIES_IF(pRrcPortIndex8->numRank6_8, pPortIndex8, rank6_8, pRrcPortIndex8->PortIndex6_8);
    ENTRIES_IF(pRrcPortIndex8->numRank7_8, pPortIndex8, rank7_8, pRrcPortIndex8->PortIndex7_8);
    ENTRIES_IF(pRrcPortIndex8->numRank8_8, pPortIndex8, rank8_8, pRrcPortIndex8->PortIndex8_8);
    return VOS_OK;
}

// PortIndexFor8Ranks.portIndex4
INT32 rrcComposePortIndex4(PortIndexFor8Ranks_portIndex4* pPortIndex4,
                           struct portIndexFor8Ranks_portIndex4* pRrcPortIndex4)
{
    COPY_IF(pRrcPortIndex4->bitMask & RRC_RANK1_4, pPortIndex4, rank1_4, pRrcPortIndex4->rank1_4);
    ENTRIES_IF(pRrcPortIndex4->numRank2_4, pPortIndex4, rank2_4, pRrcPortIndex4->PortIndex2_4);
    // The record holds two entries of every rank: the further ones of ranks 3 and 4 stay 0.
    ENTRIES_IF(pRrcPortIndex4->numRank3_4, pPortIndex4, rank3_4, pRrcPortIndex4->PortIndex3_4);
    ENTRIES_IF(pRrcPortIndex4->numRank4_4, pPortIndex4, rank4_4, pRrcPortIndex4->PortIndex4_4);
    return VOS_OK;
}

// PortIndexFor8Ranks.portIndex2
INT32 rrcComposePortIndex2(PortIndexFor8Ranks_portIndex2* pPortIndex2,
                           struct portIndexFor8Ranks_portIndex2* pRrcPortIndex2)
{
    COPY_IF(pRrcPortIndex2->bitMask & RRC_RANK1_2, pPortIndex2, rank1_2, pRrcPortIndex2->rank1_2);
    ENTRIES_IF(pRrcPortIndex2->numRank2_2, pPortIndex2, rank2_2, pRrcPortIndex2->PortIndex2_2);
    return VOS_OK;
}

// CSI-ReportConfig.semiPersistentOnPUSCH-v1530
INT32 rrcComposeSemiPersistentOnPUSCH_v1530(CSI_ReportConfig_semiPersistentOnPUSCH_v1530* pSemiPersistentOnPUSCH_v1530,
                                            struct semimPersistentOnPuschv1530* pRrcSemiPersistentOnPuschv1530)
{
    assign(pSemiPersistentOnPUSCH_v1530->reportSlotConfig_v1530,
           pRrcSemiPersistentOnPuschv1530->ReportSlotConfig_v1530);
    return VOS_OK;
}
