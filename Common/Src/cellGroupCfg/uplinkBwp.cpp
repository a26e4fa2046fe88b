#include "uplinkBwp.h"

#include "compose.h"
#include "configuredGrant.h"
#include "downlinkBwp.h"
#include "pucch.h"
#include "pusch.h"
#include "rachDedicated.h"
#include "srs.h"

// UplinkConfig.initialUplinkBWP and BWP-Uplink.bwp-Dedicated
INT32 rrcComposeInitialUplinkBWP(OSCTXT* pAsnCxt, BWP_UplinkDedicated* pBWP_UplinkDedicated,
                                 RrcBwpUlDedi_t* pRrcBwpUlDedi)
{
    if (pRrcBwpUlDedi->bitMask & RRC_BWP_UL_DEDI_PUCCH_CFG_PRESENCE)
    {
        // The line names the composer with a second "P".
        pBWP_UplinkDedicated->m.pucch_ConfigPresent = 1;
        RETURN_IF_FAILED(
            rrcComposeBWPucch_Config(pAsnCxt, &pBWP_UplinkDedicated->pucch_Config, &pRrcBwpUlDedi->pucchCfg),
            "rrcComposeBWPPucch_Config Error\r\n");
    }
    if (pRrcBwpUlDedi->bitMask & RRC_BWP_UL_DEDI_PUSCH_CFG_PRESENCE)
    {
        pBWP_UplinkDedicated->m.pusch_ConfigPresent = 1;
        RETURN_IF_FAILED(
            rrcComposeBWPPusch_Config(pAsnCxt, &pBWP_UplinkDedicated->pusch_Config, &pRrcBwpUlDedi->puschCfg),
            "rrcComposeBWPPusch_Config Error\r\n");
    }
    if (pRrcBwpUlDedi->bitMask & RRC_BWP_UL_DEDI_CFG_GRANT_CFG_PRESENCE)
    {
        pBWP_UplinkDedicated->m.configuredGrantConfigPresent = 1;
        RETURN_IF_FAILED(rrcComposeBWPConfiguredGrant_Config(pAsnCxt, &pBWP_UplinkDedicated->configuredGrantConfig,
                                                             &pRrcBwpUlDedi->cfgGrantCfg),
                         "rrcComposeBWPConfiguredGrant_Config Error\r\n");
    }
    if (pRrcBwpUlDedi->bitMask & RRC_BWP_UL_DEDI_SRS_CFG_PRESENCE)
    {
        pBWP_UplinkDedicated->m.srs_ConfigPresent = 1;
        RETURN_IF_FAILED(rrcComposeBWPsrs_Config(pAsnCxt, &pBWP_UplinkDedicated->srs_Config, &pRrcBwpUlDedi->srsCfg),
                         "rrcComposeBWPsrs_Config Error\r\n");
    }
    if (pRrcBwpUlDedi->bitMask & RRC_BWP_UL_DEDI_BEAM_FAILURE_RECOVERY_CFG_PRESENCE)
    {
        pBWP_UplinkDedicated->m.beamFailureRecoveryConfigPresent = 1;
        RETURN_IF_FAILED(rrcComposeBWPbeamFailureRecovery_Config(pAsnCxt,
                                                                 &pBWP_UplinkDedicated->beamFailureRecoveryConfig,
                                                                 &pRrcBwpUlDedi->beamFailRecoveryCfg),
                         "rrcComposeBWPbeamFailureRecovery_Config Error\r\n");
    }
    return VOS_OK;
}

// BWP-UplinkDedicated.pusch-Config
INT32 rrcComposeBWPPusch_Config(OSCTXT* pAsnCxt, BWP_UplinkDedicated_pusch_Config* pPusch_Config,
                                RrcPuschCfg_t* pRrcPuschCfg)
{
    (void)compose::setup(pAsnCxt, pPusch_Config, pRrcPuschCfg, rrcComposePusch_Configsetup);
    return VOS_OK;
}

// BWP-UplinkDedicated.beamFailureRecoveryConfig
INT32 rrcComposeBWPbeamFailureRecovery_Config(OSCTXT* pAsnCxt,
                                              BWP_UplinkDedicated_beamFailureRecoveryConfig* pBeamFailureRecoveryConfig,
                                              RrcBeamFailRecoveryCfg_t* pRrcBeamFailRecoveryCfg)
{
    // Without heap the setup composer is given the null pointer, which it reports.
    auto* const pSetup =
        compose::choose(pAsnCxt, pBeamFailureRecoveryConfig, compose::setupTag, pBeamFailureRecoveryConfig->u.setup);
    RETURN_IF_FAILED(rrcComposeBeamFailureRecovery_ConfigSetup(pAsnCxt, pSetup, pRrcBeamFailRecoveryCfg),
                     "rrcComposeBeamFailureRecovery_ConfigSetup Error\r\n");
    return VOS_OK;
}

// BeamFailureRecoveryConfig
INT32 rrcComposeBeamFailureRecovery_ConfigSetup(OSCTXT* pAsnCxt, BeamFailureRecoveryConfig* pSetup,
                                                RrcBeamFailRecoveryCfg_t* pRrcCfg)
{
    NULL_CHECK(pSetup);
    NULL_CHECK(pRrcCfg);

    const UINT16 bitMask = pRrcCfg->bitMask;
    COPY_IF(bitMask & RRC_BEAM_FAIL_RECOVERY_ROOT_SEQ_IDX_BFR_PRESENCE, pSetup, rootSequenceIndex_BFR,
            pRrcCfg->rootSeqIdxBFR);
    if (bitMask & RRC_BEAM_FAIL_RECOVERY_RACH_CFG_GENERIC_PRESENCE)
    {
        pSetup->m.rach_ConfigBFRPresent = 1;
        (void)rrcComposeRach_ConfigGeneric(&pSetup->rach_ConfigBFR, &pRrcCfg->rachCfgBFR);
    }
    COPY_IF(bitMask & RRC_BEAM_FAIL_RECOVERY_RSRP_RANGE_PRESENCE, pSetup, rsrp_ThresholdSSB, pRrcCfg->rsrpThreshSSB);
    COPY_IF(bitMask & RRC_BEAM_FAIL_RECOVERY_SSB_PER_RACH_OCCASION_PRESENCE, pSetup, ssb_perRACH_Occasion,
            pRrcCfg->ssbPerRachOccasion);
    COPY_IF(bitMask & RRC_BEAM_FAIL_RECOVERY_RA_SSB_OCCASION_MASK_IDX_PRESENCE, pSetup, ra_ssb_OccasionMaskIndex,
            pRrcCfg->raSsbOccasionMaskIdx);
    COPY_IF(bitMask & RRC_BEAM_FAIL_RECOVERY_RECOVERY_SEARCH_SPACE_ID_PRESENCE, pSetup, recoverySearchSpaceId,
            pRrcCfg->recoverySearchSpaceId);
    if (bitMask & RRC_BEAM_FAIL_RECOVERY_RA_PRIORITYZATION_PRESENCE)
    {
        pSetup->m.ra_PrioritizationPresent = 1;
        (void)rrcComposeRa_Prioritization(pAsnCxt, &pSetup->ra_Prioritization, &pRrcCfg->raPrio);
    }
    COPY_IF(bitMask & RRC_BEAM_FAIL_RECOVERY_TIMER_PRESENCE, pSetup, beamFailureRecoveryTimer,
            pRrcCfg->beamFailRecoveryTimer);
    // Its extension group is not marked: the encoder leaves it out.
    COPY_IF(bitMask & RRC_BEAM_FAIL_RECOVERY_MSG1_SUB_CARRIER_SPACING_V1530_PRESENCE, pSetup,
            msg1_SubcarrierSpacing_v1530, pRrcCfg->msg1SubCarrierSpacingV1530);
    return VOS_OK;
}

// UplinkConfig.uplinkBWP-ToReleaseList
INT32 rrcComposeuplinkBWP_ToReleaseList(UplinkConfig_uplinkBWP_ToReleaseList* pUplinkBWP_ToReleaseList,
                                        RrcUlCfg_t* pRrcUlCfg)
{
    compose::array(pUplinkBWP_ToReleaseList, pRrcUlCfg->numUlBwpRel, pRrcUlCfg->ulBwpId);
    return VOS_OK;
}

// UplinkConfig.uplinkBWP-ToAddModList
INT32 rrcComposeuplinkBWP_ToAddModList(OSCTXT* pAsnCxt, OSRTDList* pUplinkBWP_ToAddModList, RrcUlCfg_t* pRrcUlCfg)
{
    return compose::list<BWP_Uplink>(pAsnCxt, pUplinkBWP_ToAddModList, pRrcUlCfg->numUlBwpAddMod,
                                     pRrcUlCfg->ulBwpAddMod, rrcComposeBWP_Uplink,
                                     {"pNode Or pItem is NULL\r\n", "rrcComposeBWP_Uplink is Error\r\n"});
}

// UplinkConfig.uplinkBWP-ToAddModList[]
INT32 rrcComposeBWP_Uplink(OSCTXT* pAsnCxt, BWP_Uplink* pBWP_Uplink, RrcBwpUl_t* pRrcBwpUl)
{
    assign(pBWP_Uplink->bwp_Id, pRrcBwpUl->bwpId);
    if (pRrcBwpUl->bitMask & RRC_BWP_UL_COMMON_PRESENCE)
    {
        pBWP_Uplink->m.bwp_CommonPresent = 1;
        RETURN_IF_FAILED(rrcComposeBWP_UplinkCommon(pAsnCxt, &pBWP_Uplink->bwp_Common, &pRrcBwpUl->bwpCommon),
                         "rrcComposeBWP_UplinkCommon Error\r\n");
    }
    if (pRrcBwpUl->bitMask & RRC_BWP_UL_DEDICATED_PRESENCE)
    {
        pBWP_Uplink->m.bwp_DedicatedPresent = 1;
        RETURN_IF_FAILED(rrcComposeInitialUplinkBWP(pAsnCxt, &pBWP_Uplink->bwp_Dedicated, &pRrcBwpUl->bwpDedicated),
                         "rrcComposeInitialUplinkBWP Error\r\n");
    }
    return VOS_OK;
}

// BWP-UplinkCommon
INT32 rrcComposeBWP_UplinkCommon(OSCTXT* pAsnCxt, BWP_UplinkCommon* pBWP_UplinkCommon, RrcBwpUlComm_t* pRrcBwpUlComm)
{
    RETURN_IF_FAILED(rrcComposeGenericParameters(&pBWP_UplinkCommon->genericParameters, &pRrcBwpUlComm->genericParam),
                     "rrcComposeGenericParameters Error\r\n");
    if (pRrcBwpUlComm->bitMask & RRC_BWP_UL_COMM_RACH_PRESENCE)
    {
        pBWP_UplinkCommon->m.rach_ConfigCommonPresent = 1;
        RETURN_IF_FAILED(
            rrcComposeBWPrach_ConfigCommon(pAsnCxt, &pBWP_UplinkCommon->rach_ConfigCommon, &pRrcBwpUlComm->rachCfgComm),
            "rrcComposeBWPrach_ConfigCommon Error\r\n");
    }
    if (pRrcBwpUlComm->bitMask & RRC_BWP_UL_COMM_PUSCH_PRESENCE)
    {
        pBWP_UplinkCommon->m.pusch_ConfigCommonPresent = 1;
        RETURN_IF_FAILED(rrcComposeBWPpusch_ConfigCommon(pAsnCxt, &pBWP_UplinkCommon->pusch_ConfigCommon,
                                                         &pRrcBwpUlComm->puschCfgComm),
                         "rrcComposeBWPpusch_ConfigCommon Error\r\n");
    }
    if (pRrcBwpUlComm->bitMask & RRC_BWP_UL_COMM_PUCCH_PRESENCE)
    {
        pBWP_UplinkCommon->m.pucch_ConfigCommonPresent = 1;
        RETURN_IF_FAILED(rrcComposeBWPpucch_ConfigCommon(pAsnCxt, &pBWP_UplinkCommon->pucch_ConfigCommon,
                                                         &pRrcBwpUlComm->pucchCfgComm),
                         "rrcComposeBWPpucch_ConfigCommon Error\r\n");
    }
    return VOS_OK;
}

// BWP-UplinkCommon.rach-ConfigCommon
INT32 rrcComposeBWPrach_ConfigCommon(OSCTXT* pAsnCxt, BWP_UplinkCommon_rach_ConfigCommon* pRach_ConfigCommon,
                                     RrcRachCfgComm_t* pRrcRachCfgComm)
{
    auto* const pSetup = compose::choose(pAsnCxt, pRach_ConfigCommon, compose::setupTag, pRach_ConfigCommon->u.setup);
    if (pSetup == nullptr)
    {
        return compose::fail("pSetup malloc error\r\n");
    }
    (void)rrcComposeRACH_Configsetup(pSetup, pRrcRachCfgComm);
    return VOS_OK;
}

// RACH-ConfigCommon
INT32 rrcComposeRACH_Configsetup(RACH_ConfigCommon* pRACH_ConfigCommon, RrcRachCfgComm_t* pRrcRachCfgComm)
{
    const UINT8 bitMask = pRrcRachCfgComm->bitMask;
    RETURN_IF_FAILED(
        rrcComposeRach_ConfigGeneric(&pRACH_ConfigCommon->rach_ConfigGeneric, &pRrcRachCfgComm->rachCfgGeneric),
        "rrcComposeRach_ConfigGeneric Error\r\n");
    COPY_IF(bitMask & RRC_RACH_CFG_COMMON_TOTAL_NUM_RAPREAMBLES, pRACH_ConfigCommon, totalNumberOfRA_Preambles,
            pRrcRachCfgComm->totalNumOfRaPreambles);
    if (bitMask & RRC_RACH_CFG_COMMON_SSB_PER_RACH_OCCASION_PREAMBLE_PER_SSB_PRESENCE)
    {
        pRACH_ConfigCommon->m.ssb_perRACH_OccasionAndCB_PreamblesPerSSBPresent = 1;
        RETURN_IF_FAILED(rrcComposeRach_OccasionAndCB_PreamblesPerSSB(
                             &pRACH_ConfigCommon->ssb_perRACH_OccasionAndCB_PreamblesPerSSB, pRrcRachCfgComm),
                         "rrcComposeRach_OccasionAndCB_PreamblesPerSSB Error\r\n");
    }
    if (bitMask & RRC_RACH_CFG_COMMON_GROUPB_CFGD_PRESENCE)
    {
        pRACH_ConfigCommon->m.groupBconfiguredPresent = 1;
        RETURN_IF_FAILED(
            rrcComposeRach_groupBconfigured(&pRACH_ConfigCommon->groupBconfigured, &pRrcRachCfgComm->groupBCfgd),
            "rrcComposeRach_groupBconfigured Error\r\n");
    }
    assign(pRACH_ConfigCommon->ra_ContentionResolutionTimer, pRrcRachCfgComm->raContentionResolutionTimer);
    COPY_IF(bitMask & RRC_RACH_CFG_COMMON_RSRP_THRESH_SSB_PRESENCE, pRACH_ConfigCommon, rsrp_ThresholdSSB,
            pRrcRachCfgComm->rsrpThreshSsb);
    COPY_IF(bitMask & RRC_RACH_CFG_COMMON_RSRP_THRESH_SSB_SUL_PRESENCE, pRACH_ConfigCommon, rsrp_ThresholdSSB_SUL,
            pRrcRachCfgComm->rsrpThreshSsbSul);
    RETURN_IF_FAILED(rrcComposeRach_RootSequenceIndex(&pRACH_ConfigCommon->prach_RootSequenceIndex, pRrcRachCfgComm),
                     "rrcComposeRach_RootSequenceIndex Error\r\n");
    COPY_IF(bitMask & RRC_RACH_CFG_COMMON_MSG1_SUB_CARRIER_SPACINT_PRESENCE, pRACH_ConfigCommon, msg1_SubcarrierSpacing,
            pRrcRachCfgComm->msg1SubCarrierSpacing);
    assign(pRACH_ConfigCommon->restrictedSetConfig, pRrcRachCfgComm->restritedSetCfg);
    COPY_IF(bitMask & RRC_RACH_CFG_COMMON_MSG3_TRANSFORM_PRECODER_PRESENCE, pRACH_ConfigCommon, msg3_transformPrecoder,
            pRrcRachCfgComm->msg3TransformPreCoder);
    return VOS_OK;
}

// RACH-ConfigCommon.ssb-perRACH-OccasionAndCB-PreamblesPerSSB
INT32 rrcComposeRach_OccasionAndCB_PreamblesPerSSB(
    RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB* pSsb_perRACH_OccasionAndCB_PreamblesPerSSB,
    RrcRachCfgComm_t* pRrcRachCfgComm)
{
    auto* const pChoice = pSsb_perRACH_OccasionAndCB_PreamblesPerSSB;
    const auto& value = pRrcRachCfgComm->ssbPerRachOccasionAndCbPreamblesPerSsb;
    const UINT8 presence1 = pRrcRachCfgComm->presence1;
    CHOOSE_IF(presence1 & RRC_RACH_CFG_COMMON_ONEEIGHTH_PRESENCE, pChoice,
              RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB, oneEighth, value.oneEighth);
    CHOOSE_IF(presence1 & RRC_RACH_CFG_COMMON_ONEFOURTH_PRESENCE, pChoice,
              RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB, oneFourth, value.oneFourth);
    // The bit of oneEighth chooses oneHalf too, so oneEighth never goes out; the bit of oneHalf is not read.
    CHOOSE_IF(presence1 & RRC_RACH_CFG_COMMON_ONEEIGHTH_PRESENCE, pChoice,
              RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB, oneHalf, value.oneHalf);
    CHOOSE_IF(presence1 & RRC_RACH_CFG_COMMON_ONE_PRESENCE, pChoice,
              RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB, one, value.one);
    CHOOSE_IF(presence1 & RRC_RACH_CFG_COMMON_TWO_PRESENCE, pChoice,
              RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB, two, value.two);
    CHOOSE_IF(presence1 & RRC_RACH_CFG_COMMON_FOUR_PRESENCE, pChoice,
              RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB, four, value.four);
    CHOOSE_IF(presence1 & RRC_RACH_CFG_COMMON_EIGHT_PRESENCE, pChoice,
              RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB, eight, value.eight);
    CHOOSE_IF(presence1 & RRC_RACH_CFG_COMMON_SIXTEEM_PRESENCE, pChoice,
              RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB, sixteen, value.sixteen);
    return VOS_OK;
}

// RACH-ConfigCommon.groupBconfigured
INT32 rrcComposeRach_groupBconfigured(RACH_ConfigCommon_groupBconfigured* pGroupBconfigured,
                                      struct groupBCfgd_s* pRrcGroupBCfgd)
{
    assign(pGroupBconfigured->ra_Msg3SizeGroupA, pRrcGroupBCfgd->raMsg3SizeGroupA);
    assign(pGroupBconfigured->messagePowerOffsetGroupB, pRrcGroupBCfgd->msgPowerOffsetGroupB);
    assign(pGroupBconfigured->numberOfRA_PreamblesGroupA, pRrcGroupBCfgd->numOfRaPreambleGroupA);
    return VOS_OK;
}

// RACH-ConfigCommon.prach-RootSequenceIndex
INT32 rrcComposeRach_RootSequenceIndex(RACH_ConfigCommon_prach_RootSequenceIndex* pPrach_RootSequenceIndex,
                                       RrcRachCfgComm_t* pRrcRachCfgComm)
{
    CHOOSE_IF(pRrcRachCfgComm->presence & RRC_RACH_CFG_COMMON_PRACH_ROOT_SEQ_IDX_L839_PRESENCE,
              pPrach_RootSequenceIndex, RACH_ConfigCommon_prach_RootSequenceIndex, l839,
              pRrcRachCfgComm->prachRootSeqIdx.l839);
    CHOOSE_IF(pRrcRachCfgComm->presence & RRC_RACH_CFG_COMMON_PRACH_ROOT_SEQ_IDX_L139_PRESENCE,
              pPrach_RootSequenceIndex, RACH_ConfigCommon_prach_RootSequenceIndex, l139,
              pRrcRachCfgComm->prachRootSeqIdx.l139);
    return VOS_OK;
}

// BWP-UplinkCommon.pusch-ConfigCommon
INT32 rrcComposeBWPpusch_ConfigCommon(OSCTXT* pAsnCxt, BWP_UplinkCommon_pusch_ConfigCommon* pPusch_ConfigCommon,
                                      RrcPuschCfgComm_t* pRrcPuschCfgComm)
{
    (void)compose::setup(pAsnCxt, pPusch_ConfigCommon, pRrcPuschCfgComm, rrcComposePusch_ConfigCommonsetup);
    return VOS_OK;
}

// PUSCH-ConfigCommon
INT32 rrcComposePusch_ConfigCommonsetup(OSCTXT* pAsnCxt, PUSCH_ConfigCommon* pPUSCH_ConfigCommon,
                                        RrcPuschCfgComm_t* pRrcPuschCfgComm)
{
    const UINT8 bitMask = pRrcPuschCfgComm->bitMask;
    COPY_IF(bitMask & RRC_PUSCH_CFG_COMMON_GROUP_HOPPING_ENABLED_TRANSFORM_PRECODEING_PRESENCE, pPUSCH_ConfigCommon,
            groupHoppingEnabledTransformPrecoding, pRrcPuschCfgComm->groupHoppingEnabledTransformPrecoding);
    if (bitMask & RRC_PUSCH_CFG_COMMON_PUSCH_TIMING_DOMAIN_ALLOCATION_LIST_PRESENCE)
    {
        pPUSCH_ConfigCommon->m.pusch_TimeDomainAllocationListPresent = 1;
        RETURN_IF_FAILED(rrcComposePUSCH_TimeDomainResourceAllocationSetup(
                             pAsnCxt, &pPUSCH_ConfigCommon->pusch_TimeDomainAllocationList,
                             &pRrcPuschCfgComm->puschTimieDomainAllocList),
                         "rrcComposePUSCH_TimeDomainResourceAllocationSetup Error\r\n");
    }
    COPY_IF(bitMask & RRC_PUSCH_CFG_COMMON_MSG3_DELTA_PREABLE_PRESENCE, pPUSCH_ConfigCommon, msg3_DeltaPreamble,
            pRrcPuschCfgComm->msg3DeltaPreable);
    // Unsigned in the record: negative powers cannot be given.
    COPY_IF(bitMask & RRC_PUSCH_CFG_COMMON_P0_NOMINAL_WITH_GRANT_PRESENCE, pPUSCH_ConfigCommon, p0_NominalWithGrant,
            pRrcPuschCfgComm->p0NominalWithGrant);
    return VOS_OK;
}

// BWP-UplinkCommon.pucch-ConfigCommon
INT32 rrcComposeBWPpucch_ConfigCommon(OSCTXT* pAsnCxt, BWP_UplinkCommon_pucch_ConfigCommon* pPucch_ConfigCommon,
                                      RrcPucchCfgComm_t* pRrcPucchCfgComm)
{
    (void)compose::setup(pAsnCxt, pPucch_ConfigCommon, pRrcPucchCfgComm, rrcComposePucch_ConfigCommonsetup);
    return VOS_OK;
}

// PUCCH-ConfigCommon
INT32 rrcComposePucch_ConfigCommonsetup(PUCCH_ConfigCommon* pPUCCH_ConfigCommon, RrcPucchCfgComm_t* pRrcPucchCfgComm)
{
    const UINT8 bitMask = pRrcPucchCfgComm->bitMask;
    COPY_IF(bitMask & RRC_PUCCH_CFG_COMMON_PUCCH_RESOURCE_COMMON_PRESENCE, pPUCCH_ConfigCommon, pucch_ResourceCommon,
            pRrcPucchCfgComm->pucchResourceComm);
    COPY_IF(bitMask & RRC_PUCCH_CFG_COMMON_HOPPING_ID_PRESENCE, pPUCCH_ConfigCommon, hoppingId,
            pRrcPucchCfgComm->hoppingId);
    COPY_IF(bitMask & RRC_PUCCH_CFG_COMMON_P0_NOMINAL_PRESENCE, pPUCCH_ConfigCommon, p0_nominal,
            pRrcPucchCfgComm->p0Nominal);
    assign(pPUCCH_ConfigCommon->pucch_GroupHopping, pRrcPucchCfgComm->pucchGroupHopping);
    return VOS_OK;
}
