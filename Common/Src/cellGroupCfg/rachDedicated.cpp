#include "rachDedicated.h"

#include "compose.h"

// ReconfigurationWithSync.rach-ConfigDedicated
INT32 rrcComposeRach_ConfigDedicated(OSCTXT* pAsnCxt,
                                     ReconfigurationWithSync_rach_ConfigDedicated* pRach_ConfigDedicated,
                                     RrcReconfWithSync_t* pRrcRecfgWithSync)
{
    NULL_CHECK(pRach_ConfigDedicated);

    // Allocated whether it is used or not. Both bits compose this one element twice, and the later tag stays.
    auto* const pRachCfgDedicated = compose::allocate<RACH_ConfigDedicated>(pAsnCxt);
    if (pRrcRecfgWithSync->rachCfgBitMask & RRC_RACH_CFG_UPLINK_PRESENCE)
    {
        compose::attach(pRach_ConfigDedicated, T_ReconfigurationWithSync_rach_ConfigDedicated_uplink,
                        pRach_ConfigDedicated->u.uplink, pRachCfgDedicated);
        RETURN_IF_FAILED(
            rrcComposeRach_ConfigDedicated_uplink(pAsnCxt, pRachCfgDedicated, &pRrcRecfgWithSync->choice.uplink),
            "rrcComposeRach_ConfigDedicated_uplink Error\r\n");
    }
    if (pRrcRecfgWithSync->rachCfgBitMask & RRC_RACH_CFG_SUPPUPLINK_PRESENCE)
    {
        compose::attach(pRach_ConfigDedicated, T_ReconfigurationWithSync_rach_ConfigDedicated_supplementaryUplink,
                        pRach_ConfigDedicated->u.supplementaryUplink, pRachCfgDedicated);
        RETURN_IF_FAILED(
            rrcComposeRach_ConfigDedicated_uplink(pAsnCxt, pRachCfgDedicated, &pRrcRecfgWithSync->choice.suppUplink),
            "rrcComposeRach_ConfigDedicated_uplink Error\r\n");
    }
    return VOS_OK;
}

// RACH-ConfigDedicated
INT32 rrcComposeRach_ConfigDedicated_uplink(OSCTXT* pAsnCxt, RACH_ConfigDedicated* pRachCfgDedicated,
                                            RrcRachCfgDedi_t* pRrcLink)
{
    NULL_CHECK(pRachCfgDedicated);
    NULL_CHECK(pRrcLink);

    // Neither can fail without a null pointer, which these are not.
    if (pRrcLink->bitMask & RRC_RACH_CFG_DEDI_CFRA_PRESENCE)
    {
        pRachCfgDedicated->m.cfraPresent = 1;
        (void)rrcComposeCfra(pAsnCxt, &pRachCfgDedicated->cfra, &pRrcLink->cfra);
    }
    if (pRrcLink->bitMask & RRC_RACH_CFG_DEDI_RA_PRIO_PRESENCE)
    {
        pRachCfgDedicated->m.ra_PrioritizationPresent = 1;
        (void)rrcComposeRa_Prioritization(pAsnCxt, &pRachCfgDedicated->ra_Prioritization, &pRrcLink->raPrio);
    }
    return VOS_OK;
}

// RACH-ConfigDedicated.cfra
INT32 rrcComposeCfra(OSCTXT* pAsnCxt, CFRA* pCfra, RrcCfra_t* pRrcCfra)
{
    NULL_CHECK(pCfra);
    NULL_CHECK(pRrcCfra);

    if (pRrcCfra->bitMask & RRC_CFRA_OCCASIONS_PRESENCE)
    {
        pCfra->m.occasionsPresent = 1;
        asn1Init_CFRA_occasions(&pCfra->occasions);
        (void)rrcComposeCfra_occasions(&pCfra->occasions, &pRrcCfra->occasions);
    }
    // Resources that were not composed are refused by the encoder.
    (void)rrcComposeCfra_resources(pAsnCxt, &pCfra->resources, pRrcCfra);
    if (pRrcCfra->bitMask & RRC_CFRA_PREAMBLE_PRESENCE)
    {
        pCfra->m._v2ExtPresent = 1;
        pCfra->m.totalNumberOfRA_Preambles_v1530Present = 1;
        assign(pCfra->totalNumberOfRA_Preambles_v1530, pRrcCfra->totalNumOfRaPreableV1530);
    }
    return VOS_OK;
}

// CFRA.occasions
INT32 rrcComposeCfra_occasions(CFRA_occasions* pOccasions, RrcOccasions_t* pRrcOccasions)
{
    NULL_CHECK(pOccasions);
    NULL_CHECK(pRrcOccasions);

    (void)rrcComposeRach_ConfigGeneric(&pOccasions->rach_ConfigGeneric, &pRrcOccasions->rachCfgGen);
    COPY_IF(pRrcOccasions->bitMask & RRC_OCCASION_SSB_PER_RACH_PRESENCE, pOccasions, ssb_perRACH_Occasion,
            pRrcOccasions->ssbPerRachOccasion);
    return VOS_OK;
}

// CFRA.occasions.rach-ConfigGeneric, BeamFailureRecoveryConfig.rach-ConfigBFR, RACH-ConfigCommon.rach-ConfigGeneric
INT32 rrcComposeRach_ConfigGeneric(RACH_ConfigGeneric* pRach_ConfigGeneric, RrcRachCfgGeneric_t* pRrcRachCfgGen)
{
    NULL_CHECK(pRach_ConfigGeneric);
    NULL_CHECK(pRrcRachCfgGen);

    assign(pRach_ConfigGeneric->prach_ConfigurationIndex, pRrcRachCfgGen->prachCfgIdx);
    assign(pRach_ConfigGeneric->msg1_FDM, pRrcRachCfgGen->msg1Fdm);
    assign(pRach_ConfigGeneric->msg1_FrequencyStart, pRrcRachCfgGen->msg1FreqStart);
    assign(pRach_ConfigGeneric->zeroCorrelationZoneConfig, pRrcRachCfgGen->zeroCorrelationZoneCfg);
    assign(pRach_ConfigGeneric->preambleReceivedTargetPower, pRrcRachCfgGen->preambleRecTargetPower);
    assign(pRach_ConfigGeneric->preambleTransMax, pRrcRachCfgGen->preambleTransMax);
    assign(pRach_ConfigGeneric->powerRampingStep, pRrcRachCfgGen->powerRampingStep);
    assign(pRach_ConfigGeneric->ra_ResponseWindow, pRrcRachCfgGen->raRspWindow);
    return VOS_OK;
}

// CFRA.resources
INT32 rrcComposeCfra_resources(OSCTXT* pAsnCxt, CFRA_resources* pResources, RrcCfra_t* pRrcCfra)
{
    NULL_CHECK(pResources);

    if (pRrcCfra->bitMask & RRC_SSB)
    {
        auto* const pSsb = compose::allocate<CFRA_resources_ssb>(pAsnCxt);
        if (pSsb == nullptr)
        {
            return compose::fail("pSsb Malloc Error\r\n");
        }
        compose::attach(pResources, T_CFRA_resources_ssb, pResources->u.ssb, pSsb);
        (void)rrcComposeCFRA_resources_ssb(pAsnCxt, pSsb, &pRrcCfra->resources.ssb);
    }
    else
    {
        // Whether RRC_SCIS_RESOURCE is set or not.
        auto* const pCsirs = compose::choose(pAsnCxt, pResources, T_CFRA_resources_csirs, pResources->u.csirs);
        (void)rrcComposeCFRA_resources_csirs(pAsnCxt, pCsirs, &pRrcCfra->resources.scirs);
    }
    return VOS_OK;
}

// CFRA.resources.ssb
INT32 rrcComposeCFRA_resources_ssb(OSCTXT* pAsnCxt, CFRA_resources_ssb* pSsb, RrcSsb_t* pRrcSsb)
{
    RETURN_IF_FAILED(rrcComposessb_ResourceList(pAsnCxt, &pSsb->ssb_ResourceList, pRrcSsb),
                     "rrcComposessb_ResourceList is Error\r\n");
    assign(pSsb->ra_ssb_OccasionMaskIndex, pRrcSsb->raSsbOccasionMaskIdx);
    return VOS_OK;
}

// CFRA.resources.ssb.ssb-ResourceList
INT32 rrcComposessb_ResourceList(OSCTXT* pAsnCxt, CFRA_resources_ssb_ssb_ResourceList* pSsb_ResourceList,
                                 RrcSsb_t* pRrcSsb)
{
    return compose::list<CFRA_SSB_Resource>(
        pAsnCxt, pSsb_ResourceList, pRrcSsb->numSsbResources, pRrcSsb->ssbResource, rrcComposeCFRA_SSB_Resource,
        {"pNode Or pCFRA_SSB_Res is NULL\r\n", "rrcComposeCFRA_SSB_Resource is Error\r\n"});
}

// CFRA.resources.ssb.ssb-ResourceList[]
INT32 rrcComposeCFRA_SSB_Resource(CFRA_SSB_Resource* pCFRA_SSB_Res, RrcCfraSsbResource_t* pRrcCFRA_SSB_Res)
{
    NULL_CHECK(pCFRA_SSB_Res);
    NULL_CHECK(pRrcCFRA_SSB_Res);

    assign(pCFRA_SSB_Res->ssb, pRrcCFRA_SSB_Res->ssbIdx);
    assign(pCFRA_SSB_Res->ra_PreambleIndex, pRrcCFRA_SSB_Res->raPreableIdx);
    return VOS_OK;
}

// CFRA.resources.csirs
INT32 rrcComposeCFRA_resources_csirs(OSCTXT* pAsnCxt, CFRA_resources_csirs* pCsirs, RrcSsirs_t* pRrcScirs)
{
    NULL_CHECK(pCsirs);
    NULL_CHECK(pRrcScirs);

    RETURN_IF_FAILED(rrcComposecsirs_ResourceList(pAsnCxt, &pCsirs->csirs_ResourceList, pRrcScirs),
                     "rrcComposecsirs_ResourceList is Error\r\n");
    assign(pCsirs->rsrp_ThresholdCSI_RS, pRrcScirs->rsrpThreshCsiRs);
    return VOS_OK;
}

// CFRA.resources.csirs.csirs-ResourceList
INT32 rrcComposecsirs_ResourceList(OSCTXT* pAsnCxt, CFRA_resources_csirs_csirs_ResourceList* pCsirs_ResourceList,
                                   RrcSsirs_t* pRrcScirs)
{
    return compose::list<CFRA_CSIRS_Resource>(
        pAsnCxt, pCsirs_ResourceList, pRrcScirs->numCsirsRecouces, pRrcScirs->csirsResource, rrcComposeCFRA_CSIRS_Res,
        {"pNode Or pCFRA_CSIRS_Res is NULL\r\n", "rrcComposeCFRA_CSIRS_Res is Error\r\n"});
}

// CFRA.resources.csirs.csirs-ResourceList[]
INT32 rrcComposeCFRA_CSIRS_Res(CFRA_CSIRS_Resource* pCFRA_CSIRS_Res, RrcCsirsResource_t* pRrcCsirsRes)
{
    NULL_CHECK(pCFRA_CSIRS_Res);
    NULL_CHECK(pRrcCsirsRes);

    assign(pCFRA_CSIRS_Res->csi_RS, pRrcCsirsRes->csiRSIdx);
    (void)rrcComposera_OccasionList(&pCFRA_CSIRS_Res->ra_OccasionList, pRrcCsirsRes);
    assign(pCFRA_CSIRS_Res->ra_PreambleIndex, pRrcCsirsRes->raPreambleIdx);
    return VOS_OK;
}

// CFRA-CSIRS-Resource.ra-OccasionList
INT32 rrcComposera_OccasionList(CFRA_CSIRS_Resource_ra_OccasionList* pRa_OccasionList, RrcCsirsResource_t* pRrcCsirsRes)
{
    compose::array(pRa_OccasionList, pRrcCsirsRes->numRaOccasion, pRrcCsirsRes->raOccasionIdx);
    return VOS_OK;
}

// RACH-ConfigDedicated.ra-Prioritization, BeamFailureRecoveryConfig.ra-Prioritization
INT32 rrcComposeRa_Prioritization(OSCTXT* /*pAsnCxt*/, RA_Prioritization* pRa_Prioritization, RrcRaPrio_t* pRaPrio)
{
    NULL_CHECK(pRa_Prioritization);
    NULL_CHECK(pRaPrio);

    assign(pRa_Prioritization->powerRampingStepHighPriority, pRaPrio->powerRampingStepHighPriority);
    COPY_IF(pRaPrio->bitMask & RRC_RA_PRIO_SCALINGFACTOR_PRESENCE, pRa_Prioritization, scalingFactorBI,
            pRaPrio->scalingFactorBI);
    return VOS_OK;
}
