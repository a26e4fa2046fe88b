#include "configuredGrant.h"

#include "bitString.h"
#include "compose.h"
#include "pusch.h"

// BWP-UplinkDedicated.configuredGrantConfig
INT32 rrcComposeBWPConfiguredGrant_Config(OSCTXT* pAsnCxt,
                                          BWP_UplinkDedicated_configuredGrantConfig* pConfiguredGrantConfig,
                                          RrcCfgGrantCfg_t* pRrcCfgGrantCfg)
{
    (void)compose::setup(pAsnCxt, pConfiguredGrantConfig, pRrcCfgGrantCfg, rrcComposeConfiguredGrant_Configsetup);
    return VOS_OK;
}

// ConfiguredGrantConfig
INT32 rrcComposeConfiguredGrant_Configsetup(OSCTXT* pAsnCxt, ConfiguredGrantConfig* pConfiguredGrantConfig,
                                            RrcCfgGrantCfg_t* pRrcCfgGrantCfg)
{
    const UINT16 bitMask = pRrcCfgGrantCfg->bitMask;
    COPY_IF(bitMask & RRC_CFGD_GRANT_CFG_FREQ_HOPPING_PRESENCE, pConfiguredGrantConfig, frequencyHopping,
            pRrcCfgGrantCfg->freqHopping);
    RETURN_IF_FAILED(rrcComposeDMRS_UplinkConfigSetup(pAsnCxt, &pConfiguredGrantConfig->cg_DMRS_Configuration,
                                                      &pRrcCfgGrantCfg->cgDmrsCfg),
                     "rrcComposeDMRS_UplinkConfigSetup Error\r\n");
    COPY_IF(bitMask & RRC_CFGD_GRANT_CFG_MCS_TABLE_PRESENCE, pConfiguredGrantConfig, mcs_Table,
            pRrcCfgGrantCfg->mcsTable);
    COPY_IF(bitMask & RRC_CFGD_GRANT_CFG_MCS_TABLE_PRECODER_PRESENCE, pConfiguredGrantConfig,
            mcs_TableTransformPrecoder, pRrcCfgGrantCfg->mcaTableTransformPrecoder);
    if (bitMask & RRC_CFGD_GRANT_CFG_UCI_ON_PUSCH_PRESENCE)
    {
        pConfiguredGrantConfig->m.uci_OnPUSCHPresent = 1;
        RETURN_IF_FAILED(rrcComposeConfiguredGrantConfig_uci_OnPUSCH(pAsnCxt, &pConfiguredGrantConfig->uci_OnPUSCH,
                                                                     &pRrcCfgGrantCfg->uciOnPusch),
                         "rrcComposeConfiguredGrantConfig_uci_OnPUSCH Error\r\n");
    }
    assign(pConfiguredGrantConfig->resourceAllocation, pRrcCfgGrantCfg->resourceAlloction);
    COPY_IF(bitMask & RRC_CFGD_GRANT_CFG_RBG_SIZE_PRESENCE, pConfiguredGrantConfig, rbg_Size, pRrcCfgGrantCfg->rbgSize);
    assign(pConfiguredGrantConfig->powerControlLoopToUse, pRrcCfgGrantCfg->powerControlLoopToUse);
    assign(pConfiguredGrantConfig->p0_PUSCH_Alpha, pRrcCfgGrantCfg->p0PuschAlpha);
    COPY_IF(bitMask & RRC_CFGD_GRANT_CFG_TRANSFORM_PRECODER_PRESENCE, pConfiguredGrantConfig, transformPrecoder,
            pRrcCfgGrantCfg->transformPrecoder);
    assign(pConfiguredGrantConfig->nrofHARQ_Processes, pRrcCfgGrantCfg->nrofHarqProcess);
    assign(pConfiguredGrantConfig->repK, pRrcCfgGrantCfg->repK);
    COPY_IF(bitMask & RRC_CFGD_GRANT_CFG_REPK_RV_PRESENCE, pConfiguredGrantConfig, repK_RV, pRrcCfgGrantCfg->repKRv);
    assign(pConfiguredGrantConfig->periodicity, pRrcCfgGrantCfg->periodcity);
    COPY_IF(bitMask & RRC_CFGD_GRANT_CFG_CFGD_GRANT_TIMER_PRESENCE, pConfiguredGrantConfig, configuredGrantTimer,
            pRrcCfgGrantCfg->cfgdGrantTimer);
    if (bitMask & RRC_CFGD_GRANT_CFG_RRC_CFGD_UL_GRANT_PRESENCE)
    {
        pConfiguredGrantConfig->m.rrc_ConfiguredUplinkGrantPresent = 1;
        (void)rrcComposeConfiguredUplinkGrant(&pConfiguredGrantConfig->rrc_ConfiguredUplinkGrant,
                                              &pRrcCfgGrantCfg->rrcCfgdUlGrant);
    }
    return VOS_OK;
}

// ConfiguredGrantConfig.uci-OnPUSCH
INT32 rrcComposeConfiguredGrantConfig_uci_OnPUSCH(OSCTXT* pAsnCxt, ConfiguredGrantConfig_uci_OnPUSCH* pUci_OnPUSCH,
                                                  RrcCgUciOnPusch_t* pRrcCgUciOnPusch)
{
    (void)compose::setup(pAsnCxt, pUci_OnPUSCH, pRrcCgUciOnPusch, rrcComposeCG_UCI_OnPUSCHSetup);
    return VOS_OK;
}

// CG-UCI-OnPUSCH
INT32 rrcComposeCG_UCI_OnPUSCHSetup(OSCTXT* pAsnCxt, CG_UCI_OnPUSCH* pCG_UCI_OnPUSCH,
                                    RrcCgUciOnPusch_t* pRrcCgUciOnPusch)
{
    // A list cut short by the heap is sent as far as it was built.
    if (pRrcCgUciOnPusch->presence & RRC_CG_UCI_ON_PUSCH_DYNAMIC_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pCG_UCI_OnPUSCH, T_CG_UCI_OnPUSCH_dynamic, pCG_UCI_OnPUSCH->u.dynamic,
                                   &pRrcCgUciOnPusch->betaOffset.dynamic, rrcComposeCG_UCI_OnPUSCH_dynamic);
    }
    if (pRrcCgUciOnPusch->presence & RRC_CG_UCI_ON_PUSCH_SEMI_STATIC_PRESENCE)
    {
        (void)compose::alternative(pAsnCxt, pCG_UCI_OnPUSCH, T_CG_UCI_OnPUSCH_semiStatic, pCG_UCI_OnPUSCH->u.semiStatic,
                                   &pRrcCgUciOnPusch->betaOffset.semiStatic, rrcComposeBetaOffsets_semiStatic);
    }
    return VOS_OK;
}

// CG-UCI-OnPUSCH.dynamic
INT32 rrcComposeCG_UCI_OnPUSCH_dynamic(OSCTXT* PAsnCxt, CG_UCI_OnPUSCH_dynamic* pDynamic,
                                       RrcDynamicBetaOffsets_t* pRrcDynamicBetaOffsets)
{
    // A heap that is exhausted is reported under the context's name.
    return compose::list<BetaOffsets>(
        PAsnCxt, pDynamic, pRrcDynamicBetaOffsets->num, pRrcDynamicBetaOffsets->betaOffsets,
        rrcComposeBetaOffsets_semiStatic,
        {"pNode Or PAsnCxt is NULL\r\n", "rrcComposeBetaOffsets_semiStatic is Error\r\n"});
}

// ConfiguredGrantConfig.rrc-ConfiguredUplinkGrant
INT32 rrcComposeConfiguredUplinkGrant(ConfiguredGrantConfig_rrc_ConfiguredUplinkGrant* pRrc_ConfiguredUplinkGrant,
                                      struct rrcCfgdUlGrant_s* pRrcCfgdUlGrant)
{
    const UINT8 bitMask = pRrcCfgdUlGrant->bitMask;
    assign(pRrc_ConfiguredUplinkGrant->timeDomainOffset, pRrcCfgdUlGrant->timeDomainOffset);
    assign(pRrc_ConfiguredUplinkGrant->timeDomainAllocation, pRrcCfgdUlGrant->timeDomainAllocation);
    (void)uint32To18ASN1BitStr32(&pRrc_ConfiguredUplinkGrant->frequencyDomainAllocation,
                                 pRrcCfgdUlGrant->freqDomainAllocation);
    assign(pRrc_ConfiguredUplinkGrant->antennaPort, pRrcCfgdUlGrant->antennaPort);
    COPY_IF(bitMask & RRC_CFGD_GRANT_CFG_UL_GRANT_DMRS_SEQ_INIT_PRESENCE, pRrc_ConfiguredUplinkGrant,
            dmrs_SeqInitialization, pRrcCfgdUlGrant->dmrsSeqInit);
    assign(pRrc_ConfiguredUplinkGrant->precodingAndNumberOfLayers, pRrcCfgdUlGrant->precodingAndNumberOfLayers);
    COPY_IF(bitMask & RRC_CFGD_GRANT_CFG_UL_GRANT_SRS_RESOURCE_IND_PRESENCE, pRrc_ConfiguredUplinkGrant,
            srs_ResourceIndicator, pRrcCfgdUlGrant->srsResourceInd);
    assign(pRrc_ConfiguredUplinkGrant->mcsAndTBS, pRrcCfgdUlGrant->mcsAndTBS);
    COPY_IF(bitMask & RRC_CFGD_GRANT_CFG_UL_GRANT_FREQ_HOPPING_OFFSET_PRESENCE, pRrc_ConfiguredUplinkGrant,
            frequencyHoppingOffset, pRrcCfgdUlGrant->freqHoppingOffset);
    assign(pRrc_ConfiguredUplinkGrant->pathlossReferenceIndex, pRrcCfgdUlGrant->pathLossRefIdx);
    return VOS_OK;
}
