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

/** RrcPtrsUlTransformPrecodeDisable_t.bitMask */
#define RRC_PTRS_UL_CFG_DISABLE_FREQ_DENSITY_PRESENCE (1 << 0)
#define RRC_PTRS_UL_CFG_DISABLE_TIME_DENSITY_PRESENCE (1 << 1)
#define RRC_PTRS_UL_CFG_DISABLE_RESOURCE_ELE_OFFSET_PRESENCE (1 << 2)

/** PTRS-UplinkConfig.transformPrecoderDisabled */
typedef struct rrcPtrsUlTransformPrecodeDisable_s
{
    UINT8 maxNrofPorts;          /**< maxNrofPorts, enumeration n1, n2 (0..1) */
    UINT8 ptrsPower;             /**< ptrs-Power, enumeration p00.. (0..3) */
    UINT8 bitMask;               /**< RRC_PTRS_UL_CFG_DISABLE_... */
    UINT16 freqDensity[2];       /**< frequencyDensity, each 1..276 */
    UINT8 timeDensity[3];        /**< timeDensity, each 0..29 */
    UINT8 resourceElementOffset; /**< resourceElementOffset, enumeration offset01.. (0..2) */
} RrcPtrsUlTransformPrecodeDisable_t;

/** RrcPtrsUlTransformPrecodeEnable_t.bitMask: timeDensityTransformPrecoding is sent, with its only value d2 */
#define RRC_PTRS_UL_CFG_ENABLE_TIME_DENSITY_PRESENCE (1 << 0)

/** PTRS-UplinkConfig.transformPrecoderEnabled */
typedef struct rrcPtrsUlTransformPrecodeEnable_s
{
    UINT16 sampleDensity[5];             /**< sampleDensity, each 1..276 */
    UINT8 bitMask;                       /**< RRC_PTRS_UL_CFG_ENABLE_TIME_DENSITY_PRESENCE */
    UINT8 timeDensityTransformPrecoding; /**< not sent: timeDensityTransformPrecoding is d2 whatever this holds */
} RrcPtrsUlTransformPrecodeEnable_t;

/** RrcPtrsUlCfg_t.bitMask: transformPrecodeDisable is given */
#define RRC_PTRS_UL_CFG_DISABLE_PRESENCE (1 << 0)
/** RrcPtrsUlCfg_t.bitMask: transformPrecodeEnable is given */
#define RRC_PTRS_UL_CFG_ENABLE_PRESENCE (1 << 1)

/** PTRS-UplinkConfig */
typedef struct rrcPtrsUlCfg_s
{
    UINT8 bitMask;                                              /**< RRC_PTRS_UL_CFG_..._PRESENCE */
    RrcPtrsUlTransformPrecodeDisable_t transformPrecodeDisable; /**< transformPrecoderDisabled */
    RrcPtrsUlTransformPrecodeEnable_t transformPrecodeEnable;   /**< transformPrecoderEnabled */
} RrcPtrsUlCfg_t;

/** RrcTransformPrecodDisable_t.bitMask */
#define RRC_TRANSFORM_PRECODE_DISABLE_ID0_PRESENCE (1 << 0)
#define RRC_TRANSFORM_PRECODE_DISABLE_ID1_PRESENCE (1 << 1)

/** DMRS-UplinkConfig.transformPrecodingDisabled */
typedef struct rrcTransformPrecodDisable_s
{
    UINT8 bitMask;        /**< RRC_TRANSFORM_PRECODE_DISABLE_... */
    UINT16 scramblingId0; /**< scramblingID0, 0..65535 */
    UINT16 scramblingId1; /**< scramblingID1, 0..65535 */
} RrcTransformPrecodDisable_t;

/** RrcTransformPrecodEnable_t.bitMask */
#define RRC_TRANSFORM_PRECODE_ENABLE_ID_PRESENCE (1 << 0)
#define RRC_TRANSFORM_PRECODE_ENABLE_GROUP_HOPPING_PRESENCE (1 << 1)
#define RRC_TRANSFORM_PRECODE_ENABLE_HOPPING_PRESENCE (1 << 2)

/** DMRS-UplinkConfig.transformPrecodingEnabled */
typedef struct rrcTransformPrecodEnable_s
{
    UINT8 bitMask;       /**< RRC_TRANSFORM_PRECODE_ENABLE_... */
    UINT16 nPuschId;     /**< nPUSCH-Identity, 0..1007 */
    UINT8 seqGrpHopping; /**< sequenceGroupHopping, enumeration disabled (0) */
    UINT8 seqHopping;    /**< sequenceHopping, enumeration enabled (0) */
} RrcTransformPrecodEnable_t;

/** RrcDmrsUlCfg_t.bitMask */
#define RRC_DMRS_UL_CFG_TYPE_PRESENCE (1 << 0)
#define RRC_DMRS_UL_CFG_ADDI_POS_PRESENCE (1 << 1)
#define RRC_DMRS_UL_CFG_PHASE_TRACK_RS_PRESENCE (1 << 2)
#define RRC_DMRS_UL_CFG_MAX_LENGTH_PRESENCE (1 << 3)
#define RRC_DMRS_UL_CFG_TRANSFORM_PRECODE_DISABLE_PRESENCE (1 << 4)
#define RRC_DMRS_UL_CFG_TRANSFORM_PRECODE_ENABLE_PRESENCE (1 << 5)

/** DMRS-UplinkConfig */
typedef struct rrcDmrsUlCfg_s
{
    UINT8 bitMask;                                      /**< RRC_DMRS_UL_CFG_... */
    UINT8 dmrsType;                                     /**< dmrs-Type, enumeration type2 (0) */
    UINT8 dmrsAddiPos;                                  /**< dmrs-AdditionalPosition, enumeration pos0.. (0..2) */
    RrcPtrsUlCfg_t phaseTrackRs;                        /**< phaseTrackingRS */
    UINT8 maxLength;                                    /**< maxLength, enumeration len2 (0) */
    RrcTransformPrecodDisable_t transformPrecodDisable; /**< transformPrecodingDisabled */
    RrcTransformPrecodEnable_t transformPrecodEnable;   /**< transformPrecodingEnabled */
} RrcDmrsUlCfg_t;

/** RrcP0PuschAlphaSet_t.bitMask */
#define RRC_P0PUSCH_ALPHA_SET_P0_PRESENCE (1 << 0)
#define RRC_P0PUSCH_ALPHA_SET_ALPHA_PRESENCE (1 << 1)

/** P0-PUSCH-AlphaSet */
typedef struct rrcP0PuschAlphaSet_s
{
    UINT8 p0PuschAlphaId; /**< p0-PUSCH-AlphaSetId, 0..29 */
    UINT8 bitMask;        /**< RRC_P0PUSCH_ALPHA_SET_... */
    UINT8 p0;             /**< p0, -16..15 as two's complement */
    UINT8 alpha;          /**< alpha, enumeration alpha0.. (0..7) */
} RrcP0PuschAlphaSet_t;

/** RrcPuschPathLossRefRs_t.presence: the alternative of regSig; the higher bit wins */
#define RRC_PUSCH_PATH_LOSS_REF_RS_SSB_PRESENCE (1 << 0)
#define RRC_PUSCH_PATH_LOSS_REF_RS_CSI_RS_PRESENCE (1 << 1)

/** PUSCH-PathlossReferenceRS */
typedef struct rrcPuschPathLossRefRs_s
{
    UINT8 puschPathLossRefRsId; /**< pusch-PathlossReferenceRS-Id, 0..3 */
    UINT8 presence;             /**< RRC_PUSCH_PATH_LOSS_REF_RS_... */
    union rrcPuschPathLossRefSig_u
    {
        UINT8 ssbIdx;   /**< ssb-Index, 0..63 */
        UINT8 csiRsIdx; /**< csi-RS-Index, 0..191 */
    } regSig;
} RrcPuschPathLossRefRs_t;

/** SRI-PUSCH-PowerControl */
typedef struct rrcSriPuschPowerControl_s
{
    UINT8 sriPuschPowerControlId;  /**< sri-PUSCH-PowerControlId, 0..15 */
    UINT8 sriPuschPathLossRefRsId; /**< sri-PUSCH-PathlossReferenceRS-Id, 0..3 */
    UINT8 sriP0PuschAlphaSetId;    /**< sri-P0-PUSCH-AlphaSetId, 0..29 */
    UINT8 sriPuschClosedLoopIdx;   /**< sri-PUSCH-ClosedLoopIndex, enumeration i0, i1 (0..1) */
} RrcSriPuschPowerControl_t;

/** RrcPuschPowerControl_t.bitMask */
#define RRC_PUSCH_POWER_CONTROL_TCP_ACCUMULATION_PRESENCE (1 << 0)
#define RRC_PUSCH_POWER_CONTROL_MSG3_ALPHA_PRESENCE (1 << 1)
#define RRC_PUSCH_POWER_CONTROL_P0_NOMINAL_WITHOUT_GRANT_PRESENCE (1 << 2)
#define RRC_PUSCH_POWER_CONTROL_TWO_PUSCH_PC_ADJ_STATES_PRESENCE (1 << 3)
#define RRC_PUSCH_POWER_CONTROL_DELTA_MCS_PRESENCE (1 << 4)

/** PUSCH-PowerControl. A list is sent when its count is not 0. */
typedef struct rrcPuschPowerControl_s
{
    UINT8 numP0AlphaSets;                                               /**< entries used of p0AlphaSets, 0..30 */
    RrcP0PuschAlphaSet_t p0AlphaSets[RRC_MAX_NROF_P0_PUSCH_ALPHA_SETS]; /**< p0-AlphaSets */
    UINT8 numPathLossRefRsAddMod;                                       /**< entries used of pathLossRefRs, 0..4 */
    RrcPuschPathLossRefRs_t pathLossRefRs[RRC_MAX_NROF_PUSCH_PATH_LOSS_REF_RS]; /**< pathlossReferenceRSToAddModList */
    UINT8 numPathLossRefRsRel;                                     /**< entries of pathLossRefRsRelId, 0..4 */
    UINT8 pathLossRefRsRelId[RRC_MAX_NROF_PUSCH_PATH_LOSS_REF_RS]; /**< pathlossReferenceRSToReleaseList, 0..3 */
    UINT8 numSriPuschMappingAddMod;                                /**< entries of sriPuschMapping, 0..16 */
    RrcSriPuschPowerControl_t sriPuschMapping[RRC_MAX_NROF_SRI_PUSCH_MAPPING]; /**< sri-PUSCH-MappingToAddModList */
    UINT8 numSriPuschMappingRel;                             /**< entries of sriPuschMappingId, 0..16 */
    UINT8 sriPuschMappingId[RRC_MAX_NROF_SRI_PUSCH_MAPPING]; /**< sri-PUSCH-MappingToReleaseList, 0..15 */
    UINT8 bitMask;                                           /**< RRC_PUSCH_POWER_CONTROL_... */
    UINT8 tpcAccumulation;                                   /**< tpc-Accumulation, enumeration disabled (0) */
    UINT8 msg3Alpha;                                         /**< msg3-Alpha, enumeration alpha0.. (0..7) */
    INT16 p0NominalWithOutGrant;                             /**< p0-NominalWithoutGrant, dBm, -202..24 */
    UINT8 twoPuschPcAdjStates; /**< twoPUSCH-PC-AdjustmentStates, enumeration twoStates (0) */
    UINT8 deltaMcs;            /**< deltaMCS, enumeration enabled (0) */
} RrcPuschPowerControl_t;

/** RrcPuschTimeDomainResourceAlloc_t.bitMask: k2 is given */
#define RRC_PUSCH_TIME_DOMAIN_K2_PRESENCE (1 << 0)

/** PUSCH-TimeDomainResourceAllocation */
typedef struct rrcPuschTimeDomainResourceAlloc_s
{
    UINT8 mappingType;       /**< mappingType, enumeration typeA, typeB (0..1) */
    UINT8 startSymbolAndLen; /**< startSymbolAndLength, 0..127 */
    UINT8 bitMask;           /**< RRC_PUSCH_TIME_DOMAIN_K2_PRESENCE */
    UINT8 k2;                /**< k2, slots, 0..32 */
} RrcPuschTimeDomainResourceAlloc_t;

/** PUSCH-TimeDomainResourceAllocationList */
typedef struct rrcPuschTimeDomainResourceAllocList_s
{
    UINT8 numPuschTimeDomainResourceAllocList;                          /**< entries used of item, 1..16 */
    RrcPuschTimeDomainResourceAlloc_t item[RRC_MAX_NROF_UL_ALLOCATION]; /**< the allocations */
} RrcPuschTimeDomainResourceAllocList_t;

/** RrcBetaOffsets_t.bitMask */
#define RRC_BETA_OFFSETS_ACK_IDX1_PRESENCE (1 << 0)
#define RRC_BETA_OFFSETS_ACK_IDX2_PRESENCE (1 << 1)
#define RRC_BETA_OFFSETS_ACK_IDX3_PRESENCE (1 << 2)
#define RRC_BETA_OFFSETS_CSI_PART1_IDX1_PRESENCE (1 << 3)
#define RRC_BETA_OFFSETS_CSI_PART1_IDX2_PRESENCE (1 << 4)
#define RRC_BETA_OFFSETS_CSI_PART2_IDX1_PRESENCE (1 << 5)
#define RRC_BETA_OFFSETS_CSI_PART2_IDX2_PRESENCE (1 << 6)

/** BetaOffsets */
typedef struct rrcBetaOffsets_s
{
    UINT8 bitMask;                /**< RRC_BETA_OFFSETS_... */
    UINT8 betaOffsetAckIdx1;      /**< betaOffsetACK-Index1, 0..31 */
    UINT8 betaOffsetAckIdx2;      /**< betaOffsetACK-Index2, 0..31 */
    UINT8 betaOffsetAckIdx3;      /**< betaOffsetACK-Index3, 0..31 */
    UINT8 betaOffsetCSIPart1Idx1; /**< betaOffsetCSI-Part1-Index1, 0..31 */
    UINT8 betaOffsetCSIPart1Idx2; /**< betaOffsetCSI-Part1-Index2, 0..31 */
    UINT8 betaOffsetCSIPart2Idx1; /**< betaOffsetCSI-Part2-Index1, 0..31 */
    UINT8 betaOffsetCSIPart2Idx2; /**< betaOffsetCSI-Part2-Index2, 0..31 */
} RrcBetaOffsets_t;

/** RrcUciOnPusch_t.bitMask: presence and betaOffset are given */
#define RRC_UCI_PUSCH_BETA_OFFSETS_PRESENCE (1 << 0)

/** RrcUciOnPusch_t.presence: the alternative of betaOffset; the higher bit wins, with none the encoder refuses */
#define RRC_UCI_PUSCH_BETA_OFFSETS_DYNAMIC_PRESENCE (1 << 0)
#define RRC_UCI_PUSCH_BETA_OFFSETS_SEMI_STATIC_PRESENCE (1 << 1)

/** UCI-OnPUSCH */
typedef struct rrcUciOnPusch_s
{
    UINT8 scaling;  /**< scaling, enumeration f0p5.. (0..3) */
    UINT8 bitMask;  /**< RRC_UCI_PUSCH_BETA_OFFSETS_PRESENCE */
    UINT8 presence; /**< RRC_UCI_PUSCH_BETA_OFFSETS_DYNAMIC_..., ..._SEMI_STATIC_... */
    union rrcUciOnPuschBetaOffset_u
    {
        RrcBetaOffsets_t dynamic[4]; /**< dynamic, always four */
        RrcBetaOffsets_t semiStatic; /**< semiStatic */
    } betaOffset;
} RrcUciOnPusch_t;

/** RrcPuschCfg_t.bitMask */
#define RRC_PUSCH_CFG_DATA_SCRAMBLING_ID_PUSCH_PRESENCE (1 << 0)
#define RRC_PUSCH_CFG_TX_CFG_PRESENCE (1 << 1)
#define RRC_PUSCH_CFG_DMRS_MAPPING_TYPEA_PRESENCE (1 << 2)
#define RRC_PUSCH_CFG_DMRS_MAPPING_TYPEB_PRESENCE (1 << 3)
#define RRC_PUSCH_CFG_PUSCH_POWER_CONTROLPRESENCE (1 << 4)
#define RRC_PUSCH_CFG_FREQ_HOPPING_PRESENCE (1 << 5)
#define RRC_PUSCH_CFG_PUSCH_TIMING_DOMAIN_ALLOCATION_LIST_PRESENCE (1 << 6)
#define RRC_PUSCH_CFG_PUSCH_AGGREGATION_FACTOR_PRESENCE (1 << 7)
#define RRC_PUSCH_CFG_MCS_TABLE_PRESENCE (1 << 8)
#define RRC_PUSCH_CFG_MCS_TABLE_TRANSFORM_PRECODER_PRESENCE (1 << 9)
#define RRC_PUSCH_CFG_TRANSFORM_PRECODER_PRESENCE (1 << 10)
#define RRC_PUSCH_CFG_CODE_BOOK_SUBSET_PRESENCE (1 << 11)
#define RRC_PUSCH_CFG_MAX_RANK_PRESENCE (1 << 12)
#define RRC_PUSCH_CFG_RBG_SIZE_PRESENCE (1 << 13)
#define RRC_PUSCH_CFG_UCI_ON_PUSCH_PRESENCE (1 << 14)
#define RRC_PUSCH_CFG_TP_PI2_BPSK_PRESENCE (1 << 15)

/** PUSCH-Config */
typedef struct rrcPuschCfg_s
{
    UINT8 resourceAlloc;                     /**< resourceAllocation, enumeration resourceAllocationType0.. (0..2) */
    UINT8 numFreqHoppingOffset;              /**< entries used of freqHoppingOffset, 0..4; 0: not sent */
    UINT16 freqHoppingOffset[4];             /**< frequencyHoppingOffsetLists, each 1..274 */
    UINT16 bitMask;                          /**< RRC_PUSCH_CFG_... */
    UINT16 dataScramblingIdPusch;            /**< dataScramblingIdentityPUSCH, 0..1023 */
    UINT8 txCfg;                             /**< txConfig, enumeration codebook, nonCodebook (0..1) */
    RrcDmrsUlCfg_t dmrsUlPuschTypeA;         /**< dmrs-UplinkForPUSCH-MappingTypeA */
    RrcDmrsUlCfg_t dmrsUlPuschTypeB;         /**< dmrs-UplinkForPUSCH-MappingTypeB */
    RrcPuschPowerControl_t puschPowerContol; /**< pusch-PowerControl */
    UINT8 freqHopping;                       /**< frequencyHopping, enumeration intraSlot, interSlot (0..1) */
    RrcPuschTimeDomainResourceAllocList_t puschTimeDomainAllocList; /**< pusch-TimeDomainAllocationList */
    UINT8 puschAggregationFactor;    /**< pusch-AggregationFactor, enumeration n2, n4, n8 (0..2) */
    UINT8 mcsTable;                  /**< mcs-Table, enumeration qam256, qam64LowSE (0..1) */
    UINT8 mcsTableTransformPrecoder; /**< mcs-TableTransformPrecoder, enumeration qam256, qam64LowSE (0..1) */
    UINT8 transformPrecoder;         /**< transformPrecoder, enumeration enabled, disabled (0..1) */
    UINT8 codebookSubSet;            /**< codebookSubset, enumeration fullyAndPartialAndNonCoherent.. (0..2) */
    UINT8 maxRank;                   /**< maxRank, 1..4 */
    UINT8 rbgSize;                   /**< rbg-Size, enumeration config2 (0) */
    RrcUciOnPusch_t uciOnPusch;      /**< uci-OnPUSCH */
    BOOL tpPi2Bpsk;                  /**< tp-pi2BPSK, enumeration enabled (0) */
} RrcPuschCfg_t;

#ifdef __cplusplus
}
#endif

#endif
