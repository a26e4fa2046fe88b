#ifndef RRCUPLINKBWP_H
#define RRCUPLINKBWP_H

#include "rrcCodec/rrcConfiguredGrant.h"
#include "rrcCodec/rrcDownlinkBwp.h"
#include "rrcCodec/rrcPucch.h"
#include "rrcCodec/rrcPusch.h"
#include "rrcCodec/rrcRach.h"
#include "rrcCodec/rrcSrs.h"
#include "vos_types.h"

/*
 * Uplink bandwidth parts (TS 38.331 BWP-Uplink, BWP-UplinkCommon, BWP-UplinkDedicated). Enumerated fields hold the
 * integer of the ASN.1 enumeration.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** RrcBeamFailRecoveryCfg_t.bitMask */
#define RRC_BEAM_FAIL_RECOVERY_ROOT_SEQ_IDX_BFR_PRESENCE (1 << 0)
#define RRC_BEAM_FAIL_RECOVERY_RACH_CFG_GENERIC_PRESENCE (1 << 1)
#define RRC_BEAM_FAIL_RECOVERY_RSRP_RANGE_PRESENCE (1 << 2)
#define RRC_BEAM_FAIL_RECOVERY_SSB_PER_RACH_OCCASION_PRESENCE (1 << 3)
#define RRC_BEAM_FAIL_RECOVERY_RA_SSB_OCCASION_MASK_IDX_PRESENCE (1 << 4)
#define RRC_BEAM_FAIL_RECOVERY_RECOVERY_SEARCH_SPACE_ID_PRESENCE (1 << 5)
#define RRC_BEAM_FAIL_RECOVERY_RA_PRIORITYZATION_PRESENCE (1 << 6)
#define RRC_BEAM_FAIL_RECOVERY_TIMER_PRESENCE (1 << 7)
/** Marks msg1-SubcarrierSpacing-v1530 without its extension group: the encoder does not send it */
#define RRC_BEAM_FAIL_RECOVERY_MSG1_SUB_CARRIER_SPACING_V1530_PRESENCE (1 << 8)

/** BeamFailureRecoveryConfig; candidateBeamRSList is never sent */
typedef struct rrcBeamFailRecoveryCfg_s
{
    UINT16 bitMask;                   /**< RRC_BEAM_FAIL_RECOVERY_... */
    UINT8 rootSeqIdxBFR;              /**< rootSequenceIndex-BFR, 0..137 */
    RrcRachCfgGeneric_t rachCfgBFR;   /**< rach-ConfigBFR */
    UINT8 rsrpThreshSSB;              /**< rsrp-ThresholdSSB, 0..127 */
    UINT8 ssbPerRachOccasion;         /**< ssb-perRACH-Occasion, enumeration oneEighth.. (0..7) */
    UINT8 raSsbOccasionMaskIdx;       /**< ra-ssb-OccasionMaskIndex, 0..15 */
    UINT8 recoverySearchSpaceId;      /**< recoverySearchSpaceId, 0..39 */
    RrcRaPrio_t raPrio;               /**< ra-Prioritization */
    UINT8 beamFailRecoveryTimer;      /**< beamFailureRecoveryTimer, enumeration ms10.. (0..7) */
    UINT8 msg1SubCarrierSpacingV1530; /**< msg1-SubcarrierSpacing-v1530, enumeration kHz15.. (0..4) */
} RrcBeamFailRecoveryCfg_t;

/** RrcBwpUlDedi_t.bitMask */
#define RRC_BWP_UL_DEDI_PUCCH_CFG_PRESENCE (1 << 0)
#define RRC_BWP_UL_DEDI_PUSCH_CFG_PRESENCE (1 << 1)
#define RRC_BWP_UL_DEDI_CFG_GRANT_CFG_PRESENCE (1 << 2)
#define RRC_BWP_UL_DEDI_SRS_CFG_PRESENCE (1 << 3)
#define RRC_BWP_UL_DEDI_BEAM_FAILURE_RECOVERY_CFG_PRESENCE (1 << 4)

/** BWP-UplinkDedicated */
typedef struct rrcBwpUlDedi_s
{
    UINT8 bitMask;                                /**< RRC_BWP_UL_DEDI_... */
    RrcPucchCfg_t pucchCfg;                       /**< pucch-Config */
    RrcPuschCfg_t puschCfg;                       /**< pusch-Config */
    RrcCfgGrantCfg_t cfgGrantCfg;                 /**< configuredGrantConfig */
    RrcSrsCfg_t srsCfg;                           /**< srs-Config */
    RrcBeamFailRecoveryCfg_t beamFailRecoveryCfg; /**< beamFailureRecoveryConfig */
} RrcBwpUlDedi_t;

/** RrcRachCfgComm_t.presence: the alternative of prachRootSeqIdx; the higher bit wins, with none the encoder refuses */
#define RRC_RACH_CFG_COMMON_PRACH_ROOT_SEQ_IDX_L839_PRESENCE (1 << 0)
#define RRC_RACH_CFG_COMMON_PRACH_ROOT_SEQ_IDX_L139_PRESENCE (1 << 1)

/** RrcRachCfgComm_t.bitMask */
#define RRC_RACH_CFG_COMMON_TOTAL_NUM_RAPREAMBLES (1 << 0)
#define RRC_RACH_CFG_COMMON_SSB_PER_RACH_OCCASION_PREAMBLE_PER_SSB_PRESENCE (1 << 1)
#define RRC_RACH_CFG_COMMON_GROUPB_CFGD_PRESENCE (1 << 2)
#define RRC_RACH_CFG_COMMON_RSRP_THRESH_SSB_PRESENCE (1 << 3)
#define RRC_RACH_CFG_COMMON_RSRP_THRESH_SSB_SUL_PRESENCE (1 << 4)
#define RRC_RACH_CFG_COMMON_MSG1_SUB_CARRIER_SPACINT_PRESENCE (1 << 5)
#define RRC_RACH_CFG_COMMON_MSG3_TRANSFORM_PRECODER_PRESENCE (1 << 6)

/**
 * RrcRachCfgComm_t.presence1: the alternative of ssbPerRachOccasionAndCbPreamblesPerSsb; the highest bit set wins.
 * ONEEIGHTH alone gives oneHalf, and ONEHALF is not read.
 */
#define RRC_RACH_CFG_COMMON_ONEEIGHTH_PRESENCE (1 << 0)
#define RRC_RACH_CFG_COMMON_ONEFOURTH_PRESENCE (1 << 1)
#define RRC_RACH_CFG_COMMON_ONEHALF_PRESENCE (1 << 2)
#define RRC_RACH_CFG_COMMON_ONE_PRESENCE (1 << 3)
#define RRC_RACH_CFG_COMMON_TWO_PRESENCE (1 << 4)
#define RRC_RACH_CFG_COMMON_FOUR_PRESENCE (1 << 5)
#define RRC_RACH_CFG_COMMON_EIGHT_PRESENCE (1 << 6)
#define RRC_RACH_CFG_COMMON_SIXTEEM_PRESENCE (1 << 7)

/** RACH-ConfigCommon.groupBconfigured */
struct groupBCfgd_s
{
    UINT8 raMsg3SizeGroupA;      /**< ra-Msg3SizeGroupA, enumeration b56.. (0..9, spare up to 15) */
    UINT8 msgPowerOffsetGroupB;  /**< messagePowerOffsetGroupB, enumeration minusinfinity.. (0..7) */
    UINT8 numOfRaPreambleGroupA; /**< numberOfRA-PreamblesGroupA, 1..64 */
};

/** RACH-ConfigCommon */
typedef struct rrcRachCfgComm_s
{
    RrcRachCfgGeneric_t rachCfgGeneric; /**< rach-ConfigGeneric */
    UINT8 raContentionResolutionTimer;  /**< ra-ContentionResolutionTimer, enumeration sf8.. (0..7) */
    UINT8 presence;                     /**< RRC_RACH_CFG_COMMON_PRACH_ROOT_SEQ_IDX_... */
    union rrcPrachRootSeqIdx_u
    {
        UINT16 l839;             /**< l839, 0..837 */
        UINT8 l139;              /**< l139, 0..137 */
    } prachRootSeqIdx;           /**< prach-RootSequenceIndex */
    UINT8 restritedSetCfg;       /**< restrictedSetConfig, enumeration unrestrictedSet.. (0..2) */
    UINT8 bitMask;               /**< RRC_RACH_CFG_COMMON_TOTAL_NUM_RAPREAMBLES ... */
    UINT8 totalNumOfRaPreambles; /**< totalNumberOfRA-Preambles, 1..63 */
    UINT8 presence1;             /**< RRC_RACH_CFG_COMMON_ONEEIGHTH_PRESENCE ... */
    union rrcSsbPerRachOccasion_u
    {
        UINT8 oneEighth;                      /**< oneEighth, enumeration n4.. (0..15) */
        UINT8 oneFourth;                      /**< oneFourth, enumeration n4.. (0..15) */
        UINT8 oneHalf;                        /**< oneHalf, enumeration n4.. (0..15) */
        UINT8 one;                            /**< one, enumeration n4.. (0..15) */
        UINT8 two;                            /**< two, enumeration n4.. (0..7) */
        UINT8 four;                           /**< four, 1..16 */
        UINT8 eight;                          /**< eight, 1..8 */
        UINT8 sixteen;                        /**< sixteen, 1..4 */
    } ssbPerRachOccasionAndCbPreamblesPerSsb; /**< ssb-perRACH-OccasionAndCB-PreamblesPerSSB */
    struct groupBCfgd_s groupBCfgd;           /**< groupBconfigured */
    UINT8 rsrpThreshSsb;                      /**< rsrp-ThresholdSSB, 0..127 */
    UINT8 rsrpThreshSsbSul;                   /**< rsrp-ThresholdSSB-SUL, 0..127 */
    UINT8 msg1SubCarrierSpacing;              /**< msg1-SubcarrierSpacing, enumeration kHz15.. (0..4) */
    UINT8 msg3TransformPreCoder;              /**< msg3-transformPrecoder, enumeration enabled (0) */
} RrcRachCfgComm_t;

/** RrcPuschCfgComm_t.bitMask */
#define RRC_PUSCH_CFG_COMMON_GROUP_HOPPING_ENABLED_TRANSFORM_PRECODEING_PRESENCE (1 << 0)
#define RRC_PUSCH_CFG_COMMON_PUSCH_TIMING_DOMAIN_ALLOCATION_LIST_PRESENCE (1 << 1)
#define RRC_PUSCH_CFG_COMMON_MSG3_DELTA_PREABLE_PRESENCE (1 << 2)
#define RRC_PUSCH_CFG_COMMON_P0_NOMINAL_WITH_GRANT_PRESENCE (1 << 3)

/** PUSCH-ConfigCommon */
typedef struct rrcPuschCfgComm_s
{
    UINT8 bitMask;                               /**< RRC_PUSCH_CFG_COMMON_... */
    UINT8 groupHoppingEnabledTransformPrecoding; /**< groupHoppingEnabledTransformPrecoding, enumeration enabled (0) */
    RrcPuschTimeDomainResourceAllocList_t puschTimieDomainAllocList; /**< pusch-TimeDomainAllocationList */
    UINT8 msg3DeltaPreable;   /**< msg3-DeltaPreamble, -1..6 as two's complement */
    UINT8 p0NominalWithGrant; /**< p0-NominalWithGrant, dBm, 0..24: unsigned, negative values cannot be given */
} RrcPuschCfgComm_t;

/** RrcPucchCfgComm_t.bitMask */
#define RRC_PUCCH_CFG_COMMON_PUCCH_RESOURCE_COMMON_PRESENCE (1 << 0)
#define RRC_PUCCH_CFG_COMMON_HOPPING_ID_PRESENCE (1 << 1)
#define RRC_PUCCH_CFG_COMMON_P0_NOMINAL_PRESENCE (1 << 2)

/** PUCCH-ConfigCommon */
typedef struct rrcPucchCfgComm_s
{
    UINT8 pucchGroupHopping; /**< pucch-GroupHopping, enumeration neither, enable, disable (0..2) */
    UINT8 bitMask;           /**< RRC_PUCCH_CFG_COMMON_... */
    UINT8 pucchResourceComm; /**< pucch-ResourceCommon, 0..15 */
    UINT16 hoppingId;        /**< hoppingId, 0..1023 */
    INT8 p0Nominal;          /**< p0-nominal, dBm, -128..24 */
} RrcPucchCfgComm_t;

/** RrcBwpUlComm_t.bitMask */
#define RRC_BWP_UL_COMM_RACH_PRESENCE (1 << 0)
#define RRC_BWP_UL_COMM_PUSCH_PRESENCE (1 << 1)
#define RRC_BWP_UL_COMM_PUCCH_PRESENCE (1 << 2)

/** BWP-UplinkCommon */
typedef struct rrcBwpUlComm_s
{
    RrcBwp_t genericParam;          /**< genericParameters */
    UINT8 bitMask;                  /**< RRC_BWP_UL_COMM_... */
    RrcRachCfgComm_t rachCfgComm;   /**< rach-ConfigCommon */
    RrcPuschCfgComm_t puschCfgComm; /**< pusch-ConfigCommon */
    RrcPucchCfgComm_t pucchCfgComm; /**< pucch-ConfigCommon */
} RrcBwpUlComm_t;

/** RrcBwpUl_t.bitMask: bwpCommon is given */
#define RRC_BWP_UL_COMMON_PRESENCE (1 << 0)
/** RrcBwpUl_t.bitMask: bwpDedicated is given */
#define RRC_BWP_UL_DEDICATED_PRESENCE (1 << 1)

/** BWP-Uplink */
typedef struct rrcBwpUl_s
{
    UINT8 bwpId;                 /**< bwp-Id, 0..4 */
    UINT8 bitMask;               /**< RRC_BWP_UL_... */
    RrcBwpUlComm_t bwpCommon;    /**< bwp-Common */
    RrcBwpUlDedi_t bwpDedicated; /**< bwp-Dedicated */
} RrcBwpUl_t;

#ifdef __cplusplus
}
#endif

#endif
