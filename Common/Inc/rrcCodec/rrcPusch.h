#ifndef RRCPUSCH_H
#define RRCPUSCH_H

#include "vos_types.h"

/*
 * PUSCH of a dedicated uplink bandwidth part (TS 38.331 PUSCH-Config), and what it shares with the configured grant and
 * with PUSCH-ConfigCommon. Enumerated fields hold the integer of the ASN.1 enumeration.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** maxNrofP0-PUSCH-AlphaSets */
#define RRC_MAX_NROF_P0_PUSCH_ALPHA_SETS 30
/** maxNrofPUSCH-PathlossReferenceRSs */
#define RRC_MAX_NROF_PUSCH_PATH_LOSS_REF_RS 4
/** maxNrofSRI-PUSCH-Mappings */
#define RRC_MAX_NROF_SRI_PUSCH_MAPPING 16
/** maxNrofUL-Allocations */
#define RRC_MAX_NROF_UL_ALLOCATION 16

/** RrcPtrsUlTransformPrecodeDisable_t.bitMask: freqDensity is given */
#define RRC_PTRS_UL_CFG_DISABLE_FREQ_DENSITY_PRESENCE (1 << 0)
/** RrcPtrsUlTransformPrecodeDisable_t.bitMask: timeDensity is given */
#define RRC_PTRS_UL_CFG_DISABLE_TIME_DENSITY_PRESENCE (1 << 1)
/** RrcPtrsUlTransformPrecodeDisable_t.bitMask: resourceElementOffset is given */
#define RRC_PTRS_UL_CFG_DISABLE_RESOURCE_ELE_OFFSET_PRESENCE (1 << 2)

/** PTRS-UplinkConfig.transformPrecoderDisabled */
typedef struct rrcPtrsUlTransformPrecodeDisable_s
{
    /** maxNrofPorts, PTRS_UplinkConfig_transformPrecoderDisabled_maxNrofPorts_...: 0 n1, 1 n2 */
    UINT8 maxNrofPorts;
    /** ptrs-Power, PTRS_UplinkConfig_transformPrecoderDisabled_ptrs_Power_...: 0 p00, 1 p01, 2 p10, 3 p11 */
    UINT8 ptrsPower;
    UINT8 bitMask;         /**< bits RRC_PTRS_UL_CFG_DISABLE_..._PRESENCE */
    UINT16 freqDensity[2]; /**< frequencyDensity, each 1..276, in PRBs */
    UINT8 timeDensity[3];  /**< timeDensity, each 0..29; MCS indices */
    /**
     * resourceElementOffset, PTRS_UplinkConfig_transformPrecoderDisabled_resourceElementOffset_...: 0 offset01,
     * 1 offset10, 2 offset11
     */
    UINT8 resourceElementOffset;
} RrcPtrsUlTransformPrecodeDisable_t;

/** RrcPtrsUlTransformPrecodeEnable_t.bitMask: timeDensityTransformPrecoding is sent as d2 */
#define RRC_PTRS_UL_CFG_ENABLE_TIME_DENSITY_PRESENCE (1 << 0)

/** PTRS-UplinkConfig.transformPrecoderEnabled */
typedef struct rrcPtrsUlTransformPrecodeEnable_s
{
    UINT16 sampleDensity[5];             /**< sampleDensity, each 1..276, in PRBs */
    UINT8 bitMask;                       /**< bits RRC_PTRS_UL_CFG_ENABLE_TIME_DENSITY_PRESENCE */
    UINT8 timeDensityTransformPrecoding; /**< not read; timeDensityTransformPrecoding is d2 whatever this holds */
} RrcPtrsUlTransformPrecodeEnable_t;

/** RrcPtrsUlCfg_t.bitMask: transformPrecodeDisable is given */
#define RRC_PTRS_UL_CFG_DISABLE_PRESENCE (1 << 0)
/** RrcPtrsUlCfg_t.bitMask: transformPrecodeEnable is given */
#define RRC_PTRS_UL_CFG_ENABLE_PRESENCE (1 << 1)

/** PTRS-UplinkConfig */
typedef struct rrcPtrsUlCfg_s
{
    UINT8 bitMask;                                              /**< bits RRC_PTRS_UL_CFG_..._PRESENCE */
    RrcPtrsUlTransformPrecodeDisable_t transformPrecodeDisable; /**< transformPrecoderDisabled */
    RrcPtrsUlTransformPrecodeEnable_t transformPrecodeEnable;   /**< transformPrecoderEnabled */
} RrcPtrsUlCfg_t;

/** RrcTransformPrecodDisable_t.bitMask: scramblingId0 is given */
#define RRC_TRANSFORM_PRECODE_DISABLE_ID0_PRESENCE (1 << 0)
/** RrcTransformPrecodDisable_t.bitMask: scramblingId1 is given */
#define RRC_TRANSFORM_PRECODE_DISABLE_ID1_PRESENCE (1 << 1)

/** DMRS-UplinkConfig.transformPrecodingDisabled */
typedef struct rrcTransformPrecodDisable_s
{
    UINT8 bitMask;        /**< bits RRC_TRANSFORM_PRECODE_DISABLE_..._PRESENCE */
    UINT16 scramblingId0; /**< scramblingID0, 0..65535 */
    UINT16 scramblingId1; /**< scramblingID1, 0..65535 */
} RrcTransformPrecodDisable_t;

/** RrcTransformPrecodEnable_t.bitMask: nPuschId is given */
#define RRC_TRANSFORM_PRECODE_ENABLE_ID_PRESENCE (1 << 0)
/** RrcTransformPrecodEnable_t.bitMask: seqGrpHopping is given */
#define RRC_TRANSFORM_PRECODE_ENABLE_GROUP_HOPPING_PRESENCE (1 << 1)
/** RrcTransformPrecodEnable_t.bitMask: seqHopping is given */
#define RRC_TRANSFORM_PRECODE_ENABLE_HOPPING_PRESENCE (1 << 2)

/** DMRS-UplinkConfig.transformPrecodingEnabled */
typedef struct rrcTransformPrecodEnable_s
{
    UINT8 bitMask;   /**< bits RRC_TRANSFORM_PRECODE_ENABLE_..._PRESENCE */
    UINT16 nPuschId; /**< nPUSCH-Identity, 0..1007 */
    /** sequenceGroupHopping, DMRS_UplinkConfig_transformPrecodingEnabled_sequenceGroupHopping_...: 0 disabled */
    UINT8 seqGrpHopping;
    /** sequenceHopping, DMRS_UplinkConfig_transformPrecodingEnabled_sequenceHopping_...: 0 enabled */
    UINT8 seqHopping;
} RrcTransformPrecodEnable_t;

/** RrcDmrsUlCfg_t.bitMask: dmrsType is given */
#define RRC_DMRS_UL_CFG_TYPE_PRESENCE (1 << 0)
/** RrcDmrsUlCfg_t.bitMask: dmrsAddiPos is given */
#define RRC_DMRS_UL_CFG_ADDI_POS_PRESENCE (1 << 1)
/** RrcDmrsUlCfg_t.bitMask: phaseTrackRs is given */
#define RRC_DMRS_UL_CFG_PHASE_TRACK_RS_PRESENCE (1 << 2)
/** RrcDmrsUlCfg_t.bitMask: maxLength is given */
#define RRC_DMRS_UL_CFG_MAX_LENGTH_PRESENCE (1 << 3)
/** RrcDmrsUlCfg_t.bitMask: transformPrecodDisable is given */
#define RRC_DMRS_UL_CFG_TRANSFORM_PRECODE_DISABLE_PRESENCE (1 << 4)
/** RrcDmrsUlCfg_t.bitMask: transformPrecodEnable is given */
#define RRC_DMRS_UL_CFG_TRANSFORM_PRECODE_ENABLE_PRESENCE (1 << 5)

/** DMRS-UplinkConfig */
typedef struct rrcDmrsUlCfg_s
{
    UINT8 bitMask;  /**< bits RRC_DMRS_UL_CFG_..._PRESENCE */
    UINT8 dmrsType; /**< dmrs-Type, DMRS_UplinkConfig_dmrs_Type_...: 0 type2 */
    /** dmrs-AdditionalPosition, DMRS_UplinkConfig_dmrs_AdditionalPosition_...: 0 pos0, 1 pos1, 2 pos3 */
    UINT8 dmrsAddiPos;
    RrcPtrsUlCfg_t phaseTrackRs;                        /**< phaseTrackingRS */
    UINT8 maxLength;                                    /**< maxLength, DMRS_UplinkConfig_maxLength_...: 0 len2 */
    RrcTransformPrecodDisable_t transformPrecodDisable; /**< transformPrecodingDisabled */
    RrcTransformPrecodEnable_t transformPrecodEnable;   /**< transformPrecodingEnabled */
} RrcDmrsUlCfg_t;

/** RrcP0PuschAlphaSet_t.bitMask: p0 is given */
#define RRC_P0PUSCH_ALPHA_SET_P0_PRESENCE (1 << 0)
/** RrcP0PuschAlphaSet_t.bitMask: alpha is given */
#define RRC_P0PUSCH_ALPHA_SET_ALPHA_PRESENCE (1 << 1)

/** P0-PUSCH-AlphaSet */
typedef struct rrcP0PuschAlphaSet_s
{
    UINT8 p0PuschAlphaId; /**< p0-PUSCH-AlphaSetId, 0..29 */
    UINT8 bitMask;        /**< bits RRC_P0PUSCH_ALPHA_SET_..._PRESENCE */
    UINT8 p0;             /**< p0, -16..15, in dB, as two's complement */
    /** alpha, Alpha_...: 0 alpha0, 1 alpha04, 2 alpha05, 3 alpha06, 4 alpha07, 5 alpha08, 6 alpha09, 7 alpha1 */
    UINT8 alpha;
} RrcP0PuschAlphaSet_t;

/** RrcPuschPathLossRefRs_t.presence: chooses referenceSignal.ssb-Index, in regSig.ssbIdx */
#define RRC_PUSCH_PATH_LOSS_REF_RS_SSB_PRESENCE (1 << 0)
/** RrcPuschPathLossRefRs_t.presence: chooses referenceSignal.csi-RS-Index, in regSig.csiRsIdx */
#define RRC_PUSCH_PATH_LOSS_REF_RS_CSI_RS_PRESENCE (1 << 1)

/** PUSCH-PathlossReferenceRS */
typedef struct rrcPuschPathLossRefRs_s
{
    UINT8 puschPathLossRefRsId; /**< pusch-PathlossReferenceRS-Id, 0..3 */
    UINT8 presence;             /**< bits RRC_PUSCH_PATH_LOSS_REF_RS_..._PRESENCE */
    union rrcPuschPathLossRefSig_u
    {
        UINT8 ssbIdx;   /**< ssb-Index, 0..63 */
        UINT8 csiRsIdx; /**< csi-RS-Index, 0..191 */
    } regSig;           /**< referenceSignal */
} RrcPuschPathLossRefRs_t;

/** SRI-PUSCH-PowerControl */
typedef struct rrcSriPuschPowerControl_s
{
    UINT8 sriPuschPowerControlId;  /**< sri-PUSCH-PowerControlId, 0..15 */
    UINT8 sriPuschPathLossRefRsId; /**< sri-PUSCH-PathlossReferenceRS-Id, 0..3 */
    UINT8 sriP0PuschAlphaSetId;    /**< sri-P0-PUSCH-AlphaSetId, 0..29 */
    /** sri-PUSCH-ClosedLoopIndex, SRI_PUSCH_PowerControl_sri_PUSCH_ClosedLoopIndex_...: 0 i0, 1 i1 */
    UINT8 sriPuschClosedLoopIdx;
} RrcSriPuschPowerControl_t;

/** RrcPuschPowerControl_t.bitMask: tpcAccumulation is given */
#define RRC_PUSCH_POWER_CONTROL_TCP_ACCUMULATION_PRESENCE (1 << 0)
/** RrcPuschPowerControl_t.bitMask: msg3Alpha is given */
#define RRC_PUSCH_POWER_CONTROL_MSG3_ALPHA_PRESENCE (1 << 1)
/** RrcPuschPowerControl_t.bitMask: p0NominalWithOutGrant is given */
#define RRC_PUSCH_POWER_CONTROL_P0_NOMINAL_WITHOUT_GRANT_PRESENCE (1 << 2)
/** RrcPuschPowerControl_t.bitMask: twoPuschPcAdjStates is given */
#define RRC_PUSCH_POWER_CONTROL_TWO_PUSCH_PC_ADJ_STATES_PRESENCE (1 << 3)
/** RrcPuschPowerControl_t.bitMask: deltaMcs is given */
#define RRC_PUSCH_POWER_CONTROL_DELTA_MCS_PRESENCE (1 << 4)

/** PUSCH-PowerControl. A list is sent when its count is not 0. */
typedef struct rrcPuschPowerControl_s
{
    UINT8 numP0AlphaSets;                                               /**< entries used of p0AlphaSets, 0..30 */
    RrcP0PuschAlphaSet_t p0AlphaSets[RRC_MAX_NROF_P0_PUSCH_ALPHA_SETS]; /**< p0-AlphaSets */
    UINT8 numPathLossRefRsAddMod;                                       /**< entries used of pathLossRefRs, 0..4 */
    RrcPuschPathLossRefRs_t pathLossRefRs[RRC_MAX_NROF_PUSCH_PATH_LOSS_REF_RS]; /**< pathlossReferenceRSToAddModList */
    UINT8 numPathLossRefRsRel;                                     /**< entries used of pathLossRefRsRelId, 0..4 */
    UINT8 pathLossRefRsRelId[RRC_MAX_NROF_PUSCH_PATH_LOSS_REF_RS]; /**< pathlossReferenceRSToReleaseList, each 0..3 */
    UINT8 numSriPuschMappingAddMod;                                /**< entries used of sriPuschMapping, 0..16 */
    RrcSriPuschPowerControl_t sriPuschMapping[RRC_MAX_NROF_SRI_PUSCH_MAPPING]; /**< sri-PUSCH-MappingToAddModList */
    UINT8 numSriPuschMappingRel;                             /**< entries used of sriPuschMappingId, 0..16 */
    UINT8 sriPuschMappingId[RRC_MAX_NROF_SRI_PUSCH_MAPPING]; /**< sri-PUSCH-MappingToReleaseList, each 0..15 */
    UINT8 bitMask;                                           /**< bits RRC_PUSCH_POWER_CONTROL_..._PRESENCE */
    UINT8 tpcAccumulation; /**< tpc-Accumulation, PUSCH_PowerControl_tpc_Accumulation_...: 0 disabled */
    /** msg3-Alpha, Alpha_...: 0 alpha0, 1 alpha04, 2 alpha05, 3 alpha06, 4 alpha07, 5 alpha08, 6 alpha09, 7 alpha1 */
    UINT8 msg3Alpha;
    INT16 p0NominalWithOutGrant; /**< p0-NominalWithoutGrant, -202..24, in dBm; an even number */
    /** twoPUSCH-PC-AdjustmentStates, PUSCH_PowerControl_twoPUSCH_PC_AdjustmentStates_...: 0 twoStates */
    UINT8 twoPuschPcAdjStates;
    UINT8 deltaMcs; /**< deltaMCS, PUSCH_PowerControl_deltaMCS_...: 0 enabled */
} RrcPuschPowerControl_t;

/** RrcPuschTimeDomainResourceAlloc_t.bitMask: k2 is given */
#define RRC_PUSCH_TIME_DOMAIN_K2_PRESENCE (1 << 0)

/** PUSCH-TimeDomainResourceAllocation */
typedef struct rrcPuschTimeDomainResourceAlloc_s
{
    /** mappingType, PUSCH_TimeDomainResourceAllocation_mappingType_...: 0 typeA, 1 typeB */
    UINT8 mappingType;
    UINT8 startSymbolAndLen; /**< startSymbolAndLength, 0..127; both in one number, the SLIV of TS 38.214 */
    UINT8 bitMask;           /**< bits RRC_PUSCH_TIME_DOMAIN_K2_PRESENCE */
    UINT8 k2;                /**< k2, 0..32, in slots */
} RrcPuschTimeDomainResourceAlloc_t;

/** PUSCH-TimeDomainResourceAllocationList */
typedef struct rrcPuschTimeDomainResourceAllocList_s
{
    UINT8 numPuschTimeDomainResourceAllocList;                          /**< entries used of item, 1..16 */
    RrcPuschTimeDomainResourceAlloc_t item[RRC_MAX_NROF_UL_ALLOCATION]; /**< itself; the allocations */
} RrcPuschTimeDomainResourceAllocList_t;

/** RrcBetaOffsets_t.bitMask: betaOffsetAckIdx1 is given */
#define RRC_BETA_OFFSETS_ACK_IDX1_PRESENCE (1 << 0)
/** RrcBetaOffsets_t.bitMask: betaOffsetAckIdx2 is given */
#define RRC_BETA_OFFSETS_ACK_IDX2_PRESENCE (1 << 1)
/** RrcBetaOffsets_t.bitMask: betaOffsetAckIdx3 is given */
#define RRC_BETA_OFFSETS_ACK_IDX3_PRESENCE (1 << 2)
/** RrcBetaOffsets_t.bitMask: betaOffsetCSIPart1Idx1 is given */
#define RRC_BETA_OFFSETS_CSI_PART1_IDX1_PRESENCE (1 << 3)
/** RrcBetaOffsets_t.bitMask: betaOffsetCSIPart1Idx2 is given */
#define RRC_BETA_OFFSETS_CSI_PART1_IDX2_PRESENCE (1 << 4)
/** RrcBetaOffsets_t.bitMask: betaOffsetCSIPart2Idx1 is given */
#define RRC_BETA_OFFSETS_CSI_PART2_IDX1_PRESENCE (1 << 5)
/** RrcBetaOffsets_t.bitMask: betaOffsetCSIPart2Idx2 is given */
#define RRC_BETA_OFFSETS_CSI_PART2_IDX2_PRESENCE (1 << 6)

/** BetaOffsets */
typedef struct rrcBetaOffsets_s
{
    UINT8 bitMask;                /**< bits RRC_BETA_OFFSETS_..._PRESENCE */
    UINT8 betaOffsetAckIdx1;      /**< betaOffsetACK-Index1, 0..31; an index of TS 38.213 9.3 */
    UINT8 betaOffsetAckIdx2;      /**< betaOffsetACK-Index2, 0..31; an index of TS 38.213 9.3 */
    UINT8 betaOffsetAckIdx3;      /**< betaOffsetACK-Index3, 0..31; an index of TS 38.213 9.3 */
    UINT8 betaOffsetCSIPart1Idx1; /**< betaOffsetCSI-Part1-Index1, 0..31; an index of TS 38.213 9.3 */
    UINT8 betaOffsetCSIPart1Idx2; /**< betaOffsetCSI-Part1-Index2, 0..31; an index of TS 38.213 9.3 */
    UINT8 betaOffsetCSIPart2Idx1; /**< betaOffsetCSI-Part2-Index1, 0..31; an index of TS 38.213 9.3 */
    UINT8 betaOffsetCSIPart2Idx2; /**< betaOffsetCSI-Part2-Index2, 0..31; an index of TS 38.213 9.3 */
} RrcBetaOffsets_t;

/** RrcUciOnPusch_t.bitMask: presence and betaOffset are given */
#define RRC_UCI_PUSCH_BETA_OFFSETS_PRESENCE (1 << 0)

/** RrcUciOnPusch_t.presence: chooses betaOffsets.dynamic, in betaOffset.dynamic */
#define RRC_UCI_PUSCH_BETA_OFFSETS_DYNAMIC_PRESENCE (1 << 0)
/** RrcUciOnPusch_t.presence: chooses betaOffsets.semiStatic, in betaOffset.semiStatic */
#define RRC_UCI_PUSCH_BETA_OFFSETS_SEMI_STATIC_PRESENCE (1 << 1)

/** UCI-OnPUSCH */
typedef struct rrcUciOnPusch_s
{
    UINT8 scaling;  /**< scaling, UCI_OnPUSCH_scaling_...: 0 f0p5, 1 f0p65, 2 f0p8, 3 f1 */
    UINT8 bitMask;  /**< bits RRC_UCI_PUSCH_BETA_OFFSETS_PRESENCE */
    UINT8 presence; /**< bits RRC_UCI_PUSCH_BETA_OFFSETS_..._PRESENCE */
    union rrcUciOnPuschBetaOffset_u
    {
        RrcBetaOffsets_t dynamic[4]; /**< dynamic; always four */
        RrcBetaOffsets_t semiStatic; /**< semiStatic */
    } betaOffset;                    /**< betaOffsets */
} RrcUciOnPusch_t;

/** RrcPuschCfg_t.bitMask: dataScramblingIdPusch is given */
#define RRC_PUSCH_CFG_DATA_SCRAMBLING_ID_PUSCH_PRESENCE (1 << 0)
/** RrcPuschCfg_t.bitMask: txCfg is given */
#define RRC_PUSCH_CFG_TX_CFG_PRESENCE (1 << 1)
/** RrcPuschCfg_t.bitMask: dmrsUlPuschTypeA is given */
#define RRC_PUSCH_CFG_DMRS_MAPPING_TYPEA_PRESENCE (1 << 2)
/** RrcPuschCfg_t.bitMask: dmrsUlPuschTypeB is given */
#define RRC_PUSCH_CFG_DMRS_MAPPING_TYPEB_PRESENCE (1 << 3)
/** RrcPuschCfg_t.bitMask: puschPowerContol is given */
#define RRC_PUSCH_CFG_PUSCH_POWER_CONTROLPRESENCE (1 << 4)
/** RrcPuschCfg_t.bitMask: freqHopping is given */
#define RRC_PUSCH_CFG_FREQ_HOPPING_PRESENCE (1 << 5)
/** RrcPuschCfg_t.bitMask: puschTimeDomainAllocList is given */
#define RRC_PUSCH_CFG_PUSCH_TIMING_DOMAIN_ALLOCATION_LIST_PRESENCE (1 << 6)
/** RrcPuschCfg_t.bitMask: puschAggregationFactor is given */
#define RRC_PUSCH_CFG_PUSCH_AGGREGATION_FACTOR_PRESENCE (1 << 7)
/** RrcPuschCfg_t.bitMask: mcsTable is given */
#define RRC_PUSCH_CFG_MCS_TABLE_PRESENCE (1 << 8)
/** RrcPuschCfg_t.bitMask: mcsTableTransformPrecoder is given */
#define RRC_PUSCH_CFG_MCS_TABLE_TRANSFORM_PRECODER_PRESENCE (1 << 9)
/** RrcPuschCfg_t.bitMask: transformPrecoder is given */
#define RRC_PUSCH_CFG_TRANSFORM_PRECODER_PRESENCE (1 << 10)
/** RrcPuschCfg_t.bitMask: codebookSubSet is given */
#define RRC_PUSCH_CFG_CODE_BOOK_SUBSET_PRESENCE (1 << 11)
/** RrcPuschCfg_t.bitMask: maxRank is given */
#define RRC_PUSCH_CFG_MAX_RANK_PRESENCE (1 << 12)
/** RrcPuschCfg_t.bitMask: rbgSize is given */
#define RRC_PUSCH_CFG_RBG_SIZE_PRESENCE (1 << 13)
/** RrcPuschCfg_t.bitMask: uciOnPusch is given */
#define RRC_PUSCH_CFG_UCI_ON_PUSCH_PRESENCE (1 << 14)
/** RrcPuschCfg_t.bitMask: tpPi2Bpsk is given */
#define RRC_PUSCH_CFG_TP_PI2_BPSK_PRESENCE (1 << 15)

/** PUSCH-Config */
typedef struct rrcPuschCfg_s
{
    /**
     * resourceAllocation, PUSCH_Config_resourceAllocation_...: 0 resourceAllocationType0, 1 resourceAllocationType1,
     * 2 dynamicSwitch
     */
    UINT8 resourceAlloc;
    UINT8 numFreqHoppingOffset;              /**< entries used of freqHoppingOffset, 0..4; 0: not sent */
    UINT16 freqHoppingOffset[4];             /**< frequencyHoppingOffsetLists, each 1..274, in PRBs */
    UINT16 bitMask;                          /**< bits RRC_PUSCH_CFG_... */
    UINT16 dataScramblingIdPusch;            /**< dataScramblingIdentityPUSCH, 0..1023 */
    UINT8 txCfg;                             /**< txConfig, PUSCH_Config_txConfig_...: 0 codebook, 1 nonCodebook */
    RrcDmrsUlCfg_t dmrsUlPuschTypeA;         /**< dmrs-UplinkForPUSCH-MappingTypeA */
    RrcDmrsUlCfg_t dmrsUlPuschTypeB;         /**< dmrs-UplinkForPUSCH-MappingTypeB */
    RrcPuschPowerControl_t puschPowerContol; /**< pusch-PowerControl */
    /** frequencyHopping, PUSCH_Config_frequencyHopping_...: 0 intraSlot, 1 interSlot */
    UINT8 freqHopping;
    RrcPuschTimeDomainResourceAllocList_t puschTimeDomainAllocList; /**< pusch-TimeDomainAllocationList */
    /** pusch-AggregationFactor, PUSCH_Config_pusch_AggregationFactor_...: 0 n2, 1 n4, 2 n8 */
    UINT8 puschAggregationFactor;
    UINT8 mcsTable; /**< mcs-Table, PUSCH_Config_mcs_Table_...: 0 qam256, 1 qam64LowSE */
    /** mcs-TableTransformPrecoder, PUSCH_Config_mcs_TableTransformPrecoder_...: 0 qam256, 1 qam64LowSE */
    UINT8 mcsTableTransformPrecoder;
    /** transformPrecoder, PUSCH_Config_transformPrecoder_...: 0 enabled, 1 disabled */
    UINT8 transformPrecoder;
    /**
     * codebookSubset, PUSCH_Config_codebookSubset_...: 0 fullyAndPartialAndNonCoherent, 1 partialAndNonCoherent,
     * 2 nonCoherent
     */
    UINT8 codebookSubSet;
    UINT8 maxRank;              /**< maxRank, 1..4 */
    UINT8 rbgSize;              /**< rbg-Size, PUSCH_Config_rbg_Size_...: 0 config2 */
    RrcUciOnPusch_t uciOnPusch; /**< uci-OnPUSCH */
    BOOL tpPi2Bpsk;             /**< tp-pi2BPSK, PUSCH_Config_tp_pi2BPSK_...: 0 enabled */
} RrcPuschCfg_t;

#ifdef __cplusplus
}
#endif

#endif
