#include "csiReportTypes.h"

#include "compose.h"

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

// PUCCH-CSI-Resource
INT32 rrcComposePUCCH_CSI_Resource(PUCCH_CSI_Resource* pItem, PucchCsiResource_t* pRrcItem)
{
    assign(pItem->uplinkBandwidthPartId, pRrcItem->UlBwpId);
    assign(pItem->pucch_Resource, pRrcItem->PucchResourceId);
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
