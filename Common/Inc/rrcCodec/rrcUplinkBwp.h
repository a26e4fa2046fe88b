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

/** RrcBeamFailRecoveryCfg_t.bitMask: rootSeqIdxBFR is given */
#define RRC_BEAM_FAIL_RECOVERY_ROOT_SEQ_IDX_BFR_PRESENCE (1 << 0)
/** RrcBeamFailRecoveryCfg_t.bitMask: rachCfgBFR is given */
#define RRC_BEAM_FAIL_RECOVERY_RACH_CFG_GENERIC_PRESENCE (1 << 1)
/** RrcBeamFailRecoveryCfg_t.bitMask: rsrpThreshSSB is given */
#define RRC_BEAM_FAIL_RECOVERY_RSRP_RANGE_PRESENCE (1 << 2)
/** RrcBeamFailRecoveryCfg_t.bitMask: ssbPerRachOccasion is given */
#define RRC_BEAM_FAIL_RECOVERY_SSB_PER_RACH_OCCASION_PRESENCE (1 << 3)
/** RrcBeamFailRecoveryCfg_t.bitMask: raSsbOccasionMaskIdx is given */
#define RRC_BEAM_FAIL_RECOVERY_RA_SSB_OCCASION_MASK_IDX_PRESENCE (1 << 4)
/** RrcBeamFailRecoveryCfg_t.bitMask: recoverySearchSpaceId is given */
#define RRC_BEAM_FAIL_RECOVERY_RECOVERY_SEARCH_SPACE_ID_PRESENCE (1 << 5)
/** RrcBeamFailRecoveryCfg_t.bitMask: raPrio is given */
#define RRC_BEAM_FAIL_RECOVERY_RA_PRIORITYZATION_PRESENCE (1 << 6)
/** RrcBeamFailRecoveryCfg_t.bitMask: beamFailRecoveryTimer is given */
#define RRC_BEAM_FAIL_RECOVERY_TIMER_PRESENCE (1 << 7)
/**
 * RrcBeamFailRecoveryCfg_t.bitMask: msg1SubCarrierSpacingV1530 is given; no composer announces its extension group: the
 * encoder does not send it
 */
#define RRC_BEAM_FAIL_RECOVERY_MSG1_SUB_CARRIER_SPACING_V1530_PRESENCE (1 << 8)

/** BeamFailureRecoveryConfig; candidateBeamRSList is never sent */
typedef struct rrcBeamFailRecoveryCfg_s
{
    UINT16 bitMask;                 /**< bits RRC_BEAM_FAIL_RECOVERY_..._PRESENCE */
    UINT8 rootSeqIdxBFR;            /**< rootSequenceIndex-BFR, 0..137 */
    RrcRachCfgGeneric_t rachCfgBFR; /**< rach-ConfigBFR */
    UINT8 rsrpThreshSSB;            /**< rsrp-ThresholdSSB, 0..127, in dBm above -156; 127 is infinity */
    /**
     * ssb-perRACH-Occasion, BeamFailureRecoveryConfig_ssb_perRACH_Occasion_...: 0 oneEighth, 1 oneFourth, 2 oneHalf,
     * 3 one, 4 two, 5 four, 6 eight, 7 sixteen
     */
    UINT8 ssbPerRachOccasion;
    UINT8 raSsbOccasionMaskIdx;  /**< ra-ssb-OccasionMaskIndex, 0..15 */
    UINT8 recoverySearchSpaceId; /**< recoverySearchSpaceId, 0..39 */
    RrcRaPrio_t raPrio;          /**< ra-Prioritization */
    /**
     * beamFailureRecoveryTimer, BeamFailureRecoveryConfig_beamFailureRecoveryTimer_...: 0 ms10, 1 ms20, 2 ms40, 3 ms60,
     * 4 ms80, 5 ms100, 6 ms150, 7 ms200
     */
    UINT8 beamFailRecoveryTimer;
    /**
     * msg1-SubcarrierSpacing-v1530, not sent, SubcarrierSpacing_...: 0 kHz15, 1 kHz30, 2 kHz60, 3 kHz120, 4 kHz240; no
     * composer announces its extension group
     */
    UINT8 msg1SubCarrierSpacingV1530;
} RrcBeamFailRecoveryCfg_t;

/** RrcBwpUlDedi_t.bitMask: pucchCfg is given */
#define RRC_BWP_UL_DEDI_PUCCH_CFG_PRESENCE (1 << 0)
/** RrcBwpUlDedi_t.bitMask: puschCfg is given */
#define RRC_BWP_UL_DEDI_PUSCH_CFG_PRESENCE (1 << 1)
/** RrcBwpUlDedi_t.bitMask: cfgGrantCfg is given */
#define RRC_BWP_UL_DEDI_CFG_GRANT_CFG_PRESENCE (1 << 2)
/** RrcBwpUlDedi_t.bitMask: srsCfg is given */
#define RRC_BWP_UL_DEDI_SRS_CFG_PRESENCE (1 << 3)
/** RrcBwpUlDedi_t.bitMask: beamFailRecoveryCfg is given */
#define RRC_BWP_UL_DEDI_BEAM_FAILURE_RECOVERY_CFG_PRESENCE (1 << 4)

/** BWP-UplinkDedicated */
typedef struct rrcBwpUlDedi_s
{
    UINT8 bitMask;                                /**< bits RRC_BWP_UL_DEDI_..._CFG_PRESENCE */
    RrcPucchCfg_t pucchCfg;                       /**< pucch-Config */
    RrcPuschCfg_t puschCfg;                       /**< pusch-Config */
    RrcCfgGrantCfg_t cfgGrantCfg;                 /**< configuredGrantConfig */
    RrcSrsCfg_t srsCfg;                           /**< srs-Config */
    RrcBeamFailRecoveryCfg_t beamFailRecoveryCfg; /**< beamFailureRecoveryConfig */
} RrcBwpUlDedi_t;

/** RrcRachCfgComm_t.presence: chooses prach-RootSequenceIndex.l839, in prachRootSeqIdx.l839 */
#define RRC_RACH_CFG_COMMON_PRACH_ROOT_SEQ_IDX_L839_PRESENCE (1 << 0)
/** RrcRachCfgComm_t.presence: chooses prach-RootSequenceIndex.l139, in prachRootSeqIdx.l139 */
#define RRC_RACH_CFG_COMMON_PRACH_ROOT_SEQ_IDX_L139_PRESENCE (1 << 1)

/** RrcRachCfgComm_t.bitMask: totalNumOfRaPreambles is given */
#define RRC_RACH_CFG_COMMON_TOTAL_NUM_RAPREAMBLES (1 << 0)
/** RrcRachCfgComm_t.bitMask: ssbPerRachOccasionAndCbPreamblesPerSsb is given */
#define RRC_RACH_CFG_COMMON_SSB_PER_RACH_OCCASION_PREAMBLE_PER_SSB_PRESENCE (1 << 1)
/** RrcRachCfgComm_t.bitMask: groupBCfgd is given */
#define RRC_RACH_CFG_COMMON_GROUPB_CFGD_PRESENCE (1 << 2)
/** RrcRachCfgComm_t.bitMask: rsrpThreshSsb is given */
#define RRC_RACH_CFG_COMMON_RSRP_THRESH_SSB_PRESENCE (1 << 3)
/** RrcRachCfgComm_t.bitMask: rsrpThreshSsbSul is given */
#define RRC_RACH_CFG_COMMON_RSRP_THRESH_SSB_SUL_PRESENCE (1 << 4)
/** RrcRachCfgComm_t.bitMask: msg1SubCarrierSpacing is given */
#define RRC_RACH_CFG_COMMON_MSG1_SUB_CARRIER_SPACINT_PRESENCE (1 << 5)
/** RrcRachCfgComm_t.bitMask: msg3TransformPreCoder is given */
#define RRC_RACH_CFG_COMMON_MSG3_TRANSFORM_PRECODER_PRESENCE (1 << 6)

/**
 * RrcRachCfgComm_t.presence1: chooses ssb-perRACH-OccasionAndCB-PreamblesPerSSB.oneHalf, in
 * ssbPerRachOccasionAndCbPreamblesPerSsb.oneHalf, wins over RRC_RACH_CFG_COMMON_ONEFOURTH_PRESENCE; oneEighth cannot be
 * sent
 */
#define RRC_RACH_CFG_COMMON_ONEEIGHTH_PRESENCE (1 << 0)
/**
 * RrcRachCfgComm_t.presence1: chooses ssb-perRACH-OccasionAndCB-PreamblesPerSSB.oneFourth, in
 * ssbPerRachOccasionAndCbPreamblesPerSsb.oneFourth
 */
#define RRC_RACH_CFG_COMMON_ONEFOURTH_PRESENCE (1 << 1)
/** RrcRachCfgComm_t.presence1: not read; RRC_RACH_CFG_COMMON_ONEEIGHTH_PRESENCE gives oneHalf */
#define RRC_RACH_CFG_COMMON_ONEHALF_PRESENCE (1 << 2)
/**
 * RrcRachCfgComm_t.presence1: chooses ssb-perRACH-OccasionAndCB-PreamblesPerSSB.one, in
 * ssbPerRachOccasionAndCbPreamblesPerSsb.one
 */
#define RRC_RACH_CFG_COMMON_ONE_PRESENCE (1 << 3)
/**
 * RrcRachCfgComm_t.presence1: chooses ssb-perRACH-OccasionAndCB-PreamblesPerSSB.two, in
 * ssbPerRachOccasionAndCbPreamblesPerSsb.two
 */
#define RRC_RACH_CFG_COMMON_TWO_PRESENCE (1 << 4)
/**
 * RrcRachCfgComm_t.presence1: chooses ssb-perRACH-OccasionAndCB-PreamblesPerSSB.four, in
 * ssbPerRachOccasionAndCbPreamblesPerSsb.four
 */
#define RRC_RACH_CFG_COMMON_FOUR_PRESENCE (1 << 5)
/**
 * RrcRachCfgComm_t.presence1: chooses ssb-perRACH-OccasionAndCB-PreamblesPerSSB.eight, in
 * ssbPerRachOccasionAndCbPreamblesPerSsb.eight
 */
#define RRC_RACH_CFG_COMMON_EIGHT_PRESENCE (1 << 6)
/**
 * RrcRachCfgComm_t.presence1: chooses ssb-perRACH-OccasionAndCB-PreamblesPerSSB.sixteen, in
 * ssbPerRachOccasionAndCbPreamblesPerSsb.sixteen
 */
#define RRC_RACH_CFG_COMMON_SIXTEEM_PRESENCE (1 << 7)

/** RACH-ConfigCommon.groupBconfigured */
struct groupBCfgd_s
{
    /**
     * ra-Msg3SizeGroupA, RACH_ConfigCommon_groupBconfigured_ra_Msg3SizeGroupA_...: 0 b56, 1 b144, 2 b208, 3 b256,
     * 4 b282, 5 b480, 6 b640, 7 b800, 8 b1000, 9 b72
     */
    UINT8 raMsg3SizeGroupA;
    /**
     * messagePowerOffsetGroupB, RACH_ConfigCommon_groupBconfigured_messagePowerOffsetGroupB_...: 0 minusinfinity,
     * 1 dB0, 2 dB5, 3 dB8, 4 dB10, 5 dB12, 6 dB15, 7 dB18
     */
    UINT8 msgPowerOffsetGroupB;
    UINT8 numOfRaPreambleGroupA; /**< numberOfRA-PreamblesGroupA, 1..64 */
};

/** RACH-ConfigCommon */
typedef struct rrcRachCfgComm_s
{
    RrcRachCfgGeneric_t rachCfgGeneric; /**< rach-ConfigGeneric */
    /**
     * ra-ContentionResolutionTimer, RACH_ConfigCommon_ra_ContentionResolutionTimer_...: 0 sf8, 1 sf16, 2 sf24, 3 sf32,
     * 4 sf40, 5 sf48, 6 sf56, 7 sf64
     */
    UINT8 raContentionResolutionTimer;
    UINT8 presence; /**< bits RRC_RACH_CFG_COMMON_PRACH_ROOT_SEQ_IDX_..._PRESENCE */
    union rrcPrachRootSeqIdx_u
    {
        UINT16 l839;   /**< l839, 0..837 */
        UINT8 l139;    /**< l139, 0..137 */
    } prachRootSeqIdx; /**< prach-RootSequenceIndex */
    /**
     * restrictedSetConfig, RACH_ConfigCommon_restrictedSetConfig_...: 0 unrestrictedSet, 1 restrictedSetTypeA,
     * 2 restrictedSetTypeB
     */
    UINT8 restritedSetCfg;
    UINT8 bitMask;               /**< bits RRC_RACH_CFG_COMMON_... */
    UINT8 totalNumOfRaPreambles; /**< totalNumberOfRA-Preambles, 1..63 */
    UINT8 presence1;             /**< bits RRC_RACH_CFG_COMMON_..._PRESENCE */
    union rrcSsbPerRachOccasion_u
    {
        UINT8 oneEighth; /**< not read; oneEighth cannot be sent */
        /**
         * oneFourth, RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_oneFourth_...: 0 n4, 1 n8, 2 n12,
         * 3 n16, 4 n20, 5 n24, 6 n28, 7 n32, 8 n36, 9 n40, 10 n44, 11 n48, 12 n52, 13 n56, 14 n60, 15 n64
         */
        UINT8 oneFourth;
        /**
         * oneHalf, RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_oneHalf_...: 0 n4, 1 n8, 2 n12, 3 n16,
         * 4 n20, 5 n24, 6 n28, 7 n32, 8 n36, 9 n40, 10 n44, 11 n48, 12 n52, 13 n56, 14 n60, 15 n64
         */
        UINT8 oneHalf;
        /**
         * one, RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_one_...: 0 n4, 1 n8, 2 n12, 3 n16, 4 n20,
         * 5 n24, 6 n28, 7 n32, 8 n36, 9 n40, 10 n44, 11 n48, 12 n52, 13 n56, 14 n60, 15 n64
         */
        UINT8 one;
        /**
         * two, RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_two_...: 0 n4, 1 n8, 2 n12, 3 n16, 4 n20,
         * 5 n24, 6 n28, 7 n32
         */
        UINT8 two;
        UINT8 four;                           /**< four, 1..16 */
        UINT8 eight;                          /**< eight, 1..8 */
        UINT8 sixteen;                        /**< sixteen, 1..4 */
    } ssbPerRachOccasionAndCbPreamblesPerSsb; /**< ssb-perRACH-OccasionAndCB-PreamblesPerSSB */
    struct groupBCfgd_s groupBCfgd;           /**< groupBconfigured */
    UINT8 rsrpThreshSsb;                      /**< rsrp-ThresholdSSB, 0..127, in dBm above -156; 127 is infinity */
    UINT8 rsrpThreshSsbSul;                   /**< rsrp-ThresholdSSB-SUL, 0..127, in dBm above -156; 127 is infinity */
    /** msg1-SubcarrierSpacing, SubcarrierSpacing_...: 0 kHz15, 1 kHz30, 2 kHz60, 3 kHz120, 4 kHz240 */
    UINT8 msg1SubCarrierSpacing;
    /** msg3-transformPrecoder, RACH_ConfigCommon_msg3_transformPrecoder_...: 0 enabled */
    UINT8 msg3TransformPreCoder;
} RrcRachCfgComm_t;

/** RrcPuschCfgComm_t.bitMask: groupHoppingEnabledTransformPrecoding is given */
#define RRC_PUSCH_CFG_COMMON_GROUP_HOPPING_ENABLED_TRANSFORM_PRECODEING_PRESENCE (1 << 0)
/** RrcPuschCfgComm_t.bitMask: puschTimieDomainAllocList is given */
#define RRC_PUSCH_CFG_COMMON_PUSCH_TIMING_DOMAIN_ALLOCATION_LIST_PRESENCE (1 << 1)
/** RrcPuschCfgComm_t.bitMask: msg3DeltaPreable is given */
#define RRC_PUSCH_CFG_COMMON_MSG3_DELTA_PREABLE_PRESENCE (1 << 2)
/** RrcPuschCfgComm_t.bitMask: p0NominalWithGrant is given */
#define RRC_PUSCH_CFG_COMMON_P0_NOMINAL_WITH_GRANT_PRESENCE (1 << 3)

/** PUSCH-ConfigCommon */
typedef struct rrcPuschCfgComm_s
{
    UINT8 bitMask; /**< bits RRC_PUSCH_CFG_COMMON_..._PRESENCE */
    /**
     * groupHoppingEnabledTransformPrecoding, PUSCH_ConfigCommon_groupHoppingEnabledTransformPrecoding_...: 0 enabled
     */
    UINT8 groupHoppingEnabledTransformPrecoding;
    RrcPuschTimeDomainResourceAllocList_t puschTimieDomainAllocList; /**< pusch-TimeDomainAllocationList */
    UINT8 msg3DeltaPreable; /**< msg3-DeltaPreamble, -1..6, in 2 dB, as two's complement */
    /**
     * p0-NominalWithGrant, 0..24, in dBm; an even number. Negative ones cannot be given: the field is taken as
     * unsigned.
     */
    UINT8 p0NominalWithGrant;
} RrcPuschCfgComm_t;

/** RrcPucchCfgComm_t.bitMask: pucchResourceComm is given */
#define RRC_PUCCH_CFG_COMMON_PUCCH_RESOURCE_COMMON_PRESENCE (1 << 0)
/** RrcPucchCfgComm_t.bitMask: hoppingId is given */
#define RRC_PUCCH_CFG_COMMON_HOPPING_ID_PRESENCE (1 << 1)
/** RrcPucchCfgComm_t.bitMask: p0Nominal is given */
#define RRC_PUCCH_CFG_COMMON_P0_NOMINAL_PRESENCE (1 << 2)

/** PUCCH-ConfigCommon */
typedef struct rrcPucchCfgComm_s
{
    /** pucch-GroupHopping, PUCCH_ConfigCommon_pucch_GroupHopping_...: 0 neither, 1 enable, 2 disable */
    UINT8 pucchGroupHopping;
    UINT8 bitMask;           /**< bits RRC_PUCCH_CFG_COMMON_..._PRESENCE */
    UINT8 pucchResourceComm; /**< pucch-ResourceCommon, 0..15 */
    UINT16 hoppingId;        /**< hoppingId, 0..1023 */
    INT8 p0Nominal;          /**< p0-nominal, -128..24, in dBm; an even number. Less cannot be given. */
} RrcPucchCfgComm_t;

/** RrcBwpUlComm_t.bitMask: rachCfgComm is given */
#define RRC_BWP_UL_COMM_RACH_PRESENCE (1 << 0)
/** RrcBwpUlComm_t.bitMask: puschCfgComm is given */
#define RRC_BWP_UL_COMM_PUSCH_PRESENCE (1 << 1)
/** RrcBwpUlComm_t.bitMask: pucchCfgComm is given */
#define RRC_BWP_UL_COMM_PUCCH_PRESENCE (1 << 2)

/** BWP-UplinkCommon */
typedef struct rrcBwpUlComm_s
{
    RrcBwp_t genericParam;          /**< genericParameters */
    UINT8 bitMask;                  /**< bits RRC_BWP_UL_COMM_..._PRESENCE */
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
    UINT8 bitMask;               /**< bits RRC_BWP_UL_..._PRESENCE */
    RrcBwpUlComm_t bwpCommon;    /**< bwp-Common */
    RrcBwpUlDedi_t bwpDedicated; /**< bwp-Dedicated */
} RrcBwpUl_t;

#ifdef __cplusplus
}
#endif

#endif
