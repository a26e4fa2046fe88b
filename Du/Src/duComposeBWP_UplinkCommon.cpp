#include "duSetup.h"
#include "gnbCommon/duCompose.h"

namespace
{

// RACH-ConfigCommon.rach-ConfigGeneric
void composeRachGeneric(RACH_ConfigGeneric* pGeneric, const NrRachCfgGeneric_t* pNrGeneric)
{
    assign(pGeneric->prach_ConfigurationIndex, pNrGeneric->prachConfigurationIndex);
    assign(pGeneric->msg1_FDM, pNrGeneric->msg1Fdm);
    assign(pGeneric->msg1_FrequencyStart, pNrGeneric->msg1FrequencyStart);
    assign(pGeneric->zeroCorrelationZoneConfig, pNrGeneric->zeroCorrelationZoneConfig);
    assign(pGeneric->preambleReceivedTargetPower, pNrGeneric->preambleReceivedTargetPower);
    assign(pGeneric->preambleTransMax, pNrGeneric->preambleTransMax);
    assign(pGeneric->powerRampingStep, pNrGeneric->powerRampingStep);
    assign(pGeneric->ra_ResponseWindow, pNrGeneric->raResponseWindow);
}

// RACH-ConfigCommon.ssb-perRACH-OccasionAndCB-PreamblesPerSSB
void composePreamblesPerSsb(RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB* pPreambles, UINT8 tag,
                            UINT8 value)
{
    pPreambles->t = tag;
    switch (tag)
    {
    case T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_oneEighth:
        assign(pPreambles->u.oneEighth, value);
        break;
    case T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_oneFourth:
        assign(pPreambles->u.oneFourth, value);
        break;
    case T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_oneHalf:
        assign(pPreambles->u.oneHalf, value);
        break;
    case T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_one:
        assign(pPreambles->u.one, value);
        break;
    case T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_two:
        assign(pPreambles->u.two, value);
        break;
    case T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_four:
        assign(pPreambles->u.four, value);
        break;
    case T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_eight:
        assign(pPreambles->u.eight, value);
        break;
    case T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_sixteen:
        assign(pPreambles->u.sixteen, value);
        break;
    default:
        break; // refused by the encoder
    }
}

// RACH-ConfigCommon.prach-RootSequenceIndex
void composeRootSequence(RACH_ConfigCommon_prach_RootSequenceIndex* pIndex, UINT8 tag, UINT16 value)
{
    pIndex->t = tag;
    if (tag == T_RACH_ConfigCommon_prach_RootSequenceIndex_l839)
    {
        assign(pIndex->u.l839, value);
    }
    else if (tag == T_RACH_ConfigCommon_prach_RootSequenceIndex_l139)
    {
        du::assignNarrow(pIndex->u.l139, value);
    }
}

// BWP-UplinkCommon.rach-ConfigCommon.setup
INT32 composeRach(OSCTXT* /*pAsnCxt*/, RACH_ConfigCommon* pRach, NrRachCfgCommon_t* pNrRach)
{
    composeRachGeneric(&pRach->rach_ConfigGeneric, &pNrRach->rachCfgGeneric);
    COPY_IF(pNrRach->bitmask & NR_RACH_COMMON_TOTAL_PREAMBLES_PRESENCE, pRach, totalNumberOfRA_Preambles,
            pNrRach->totalNumberOfRaPreambles);
    if (pNrRach->bitmask & NR_RACH_COMMON_SSB_PER_RACH_OCCASION_PRESENCE)
    {
        pRach->m.ssb_perRACH_OccasionAndCB_PreamblesPerSSBPresent = 1;
        composePreamblesPerSsb(&pRach->ssb_perRACH_OccasionAndCB_PreamblesPerSSB, pNrRach->ssbPerRachOccasion,
                               pNrRach->cbPreamblesPerSsb);
    }
    if (pNrRach->bitmask & NR_RACH_COMMON_GROUP_B_PRESENCE)
    {
        pRach->m.groupBconfiguredPresent = 1;
        assign(pRach->groupBconfigured.ra_Msg3SizeGroupA, pNrRach->raMsg3SizeGroupA);
        assign(pRach->groupBconfigured.messagePowerOffsetGroupB, pNrRach->messagePowerOffsetGroupB);
        assign(pRach->groupBconfigured.numberOfRA_PreamblesGroupA, pNrRach->numberOfRaPreamblesGroupA);
    }
    assign(pRach->ra_ContentionResolutionTimer, pNrRach->raContentionResolutionTimer);
    COPY_IF(pNrRach->bitmask & NR_RACH_COMMON_RSRP_THRESHOLD_SSB_PRESENCE, pRach, rsrp_ThresholdSSB,
            pNrRach->rsrpThresholdSsb);
    COPY_IF(pNrRach->bitmask & NR_RACH_COMMON_RSRP_THRESHOLD_SSB_SUL_PRESENCE, pRach, rsrp_ThresholdSSB_SUL,
            pNrRach->rsrpThresholdSsbSul);
    composeRootSequence(&pRach->prach_RootSequenceIndex, pNrRach->prachRootSequence, pNrRach->prachRootSequenceIndex);
    COPY_IF(pNrRach->bitmask & NR_RACH_COMMON_MSG1_SUBCARRIER_SPACING_PRESENCE, pRach, msg1_SubcarrierSpacing,
            pNrRach->msg1SubcarrierSpacing);
    assign(pRach->restrictedSetConfig, pNrRach->restrictedSetConfig);
    COPY_IF(pNrRach->bitmask & NR_RACH_COMMON_MSG3_TRANSFORM_PRECODER, pRach, msg3_transformPrecoder, 0);
    return VOS_OK;
}

// PUSCH-ConfigCommon.pusch-TimeDomainAllocationList[]
INT32 composePuschAlloc(PUSCH_TimeDomainResourceAllocation* pAlloc, NrTimeDomainAlloc_t* pNrAlloc)
{
    COPY_IF(pNrAlloc->bitmask & NR_TIME_DOMAIN_ALLOC_SLOT_OFFSET_PRESENCE, pAlloc, k2, pNrAlloc->slotOffset);
    assign(pAlloc->mappingType, pNrAlloc->mappingType);
    assign(pAlloc->startSymbolAndLength, pNrAlloc->startSymbolAndLength);
    return VOS_OK;
}

// BWP-UplinkCommon.pusch-ConfigCommon.setup
INT32 composePusch(OSCTXT* pAsnCxt, PUSCH_ConfigCommon* pPusch, NrPuschCfgCommon_t* pNrPusch)
{
    COPY_IF(pNrPusch->bitmask & NR_PUSCH_COMMON_GROUP_HOPPING, pPusch, groupHoppingEnabledTransformPrecoding, 0);
    if (pNrPusch->numTimeDomainAllocs != 0)
    {
        pPusch->m.pusch_TimeDomainAllocationListPresent = 1;
        if (compose::list<PUSCH_TimeDomainResourceAllocation>(
                pAsnCxt, &pPusch->pusch_TimeDomainAllocationList, pNrPusch->numTimeDomainAllocs,
                pNrPusch->timeDomainAlloc, composePuschAlloc,
                {"pNode Or pPuschTimeDomainAlloc is NULL\r\n", nullptr}) != VOS_OK)
        {
            return VOS_ERROR;
        }
    }
    COPY_IF(pNrPusch->bitmask & NR_PUSCH_COMMON_MSG3_DELTA_PREAMBLE_PRESENCE, pPusch, msg3_DeltaPreamble,
            pNrPusch->msg3DeltaPreamble);
    COPY_IF(pNrPusch->bitmask & NR_PUSCH_COMMON_P0_NOMINAL_WITH_GRANT_PRESENCE, pPusch, p0_NominalWithGrant,
            pNrPusch->p0NominalWithGrant);
    return VOS_OK;
}

// BWP-UplinkCommon.pucch-ConfigCommon.setup
INT32 composePucch(OSCTXT* /*pAsnCxt*/, PUCCH_ConfigCommon* pPucch, NrPucchCfgCommon_t* pNrPucch)
{
    COPY_IF(pNrPucch->bitmask & NR_PUCCH_COMMON_RESOURCE_PRESENCE, pPucch, pucch_ResourceCommon,
            pNrPucch->pucchResourceCommon);
    assign(pPucch->pucch_GroupHopping, pNrPucch->pucchGroupHopping);
    COPY_IF(pNrPucch->bitmask & NR_PUCCH_COMMON_HOPPING_ID_PRESENCE, pPucch, hoppingId, pNrPucch->hoppingId);
    COPY_IF(pNrPucch->bitmask & NR_PUCCH_COMMON_P0_NOMINAL_PRESENCE, pPucch, p0_nominal, pNrPucch->p0Nominal);
    return VOS_OK;
}

} // namespace

// BWP-UplinkCommon
INT32 duComposeBWP_UplinkCommon(OSCTXT* pAsnCxt, BWP_UplinkCommon* pBwpUplinkCommon, InitialUlBwp_t* pInitialUlBwp)
{
    INT32 result = VOS_OK;
    assign(pBwpUplinkCommon->genericParameters.locationAndBandwidth, pInitialUlBwp->bwp.locationAndBandwidth);
    assign(pBwpUplinkCommon->genericParameters.subcarrierSpacing, pInitialUlBwp->bwp.subcarrierSpacing);
    COPY_IF(pInitialUlBwp->bitmask & NR_BWP_UL_EXTENDED_CYCLIC_PREFIX, &pBwpUplinkCommon->genericParameters,
            cyclicPrefix, 0);
    if (pInitialUlBwp->bitmask & NR_BWP_UL_RACH_CFG_COMMON_PRESENCE)
    {
        pBwpUplinkCommon->m.rach_ConfigCommonPresent = 1;
        result |= du::setup(pAsnCxt, &pBwpUplinkCommon->rach_ConfigCommon, &pInitialUlBwp->rachCfgCommon, composeRach);
    }
    if (pInitialUlBwp->bitmask & NR_BWP_UL_PUSCH_CFG_COMMON_PRESENCE)
    {
        pBwpUplinkCommon->m.pusch_ConfigCommonPresent = 1;
        result |=
            du::setup(pAsnCxt, &pBwpUplinkCommon->pusch_ConfigCommon, &pInitialUlBwp->puschCfgCommon, composePusch);
    }
    if (pInitialUlBwp->bitmask & NR_BWP_UL_PUCCH_CFG_COMMON_PRESENCE)
    {
        pBwpUplinkCommon->m.pucch_ConfigCommonPresent = 1;
        result |=
            du::setup(pAsnCxt, &pBwpUplinkCommon->pucch_ConfigCommon, &pInitialUlBwp->pucchCfgCommon, composePucch);
    }
    return result;
}
