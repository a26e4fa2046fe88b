#ifndef RRCRLC_H
#define RRCRLC_H

#include "vos_types.h"

/*
 * RLC bearers (TS 38.331 RLC-BearerConfig) with their RLC and logical channel configuration. Fields that mirror an
 * ASN.1 enumeration hold its integer.
 */

/** In C++ as in C, an enumeration of the records is 32 bits wide and holds any number that is stored in it. */
#ifdef __cplusplus
#define RRC_ENUM_WIDTH : UINT32
#else
#define RRC_ENUM_WIDTH
#endif

#ifdef __cplusplus
extern "C"
{
#endif

/** SN-FieldLengthAM */
typedef enum rrcRlcSnFeildLenAm_e RRC_ENUM_WIDTH
{
    RRC_AM_SIZE12 = 0, /**< 12 bits */
    RRC_AM_SIZE18 = 1  /**< 18 bits */
} RrcRlcSnFeildLenAm_e;

/** SN-FieldLengthUM */
typedef enum rrcRlcSnFeildLenUm_e RRC_ENUM_WIDTH
{
    RRC_UM_SIZE6 = 0, /**< 6 bits */
    RRC_UM_SIZE12 = 1 /**< 12 bits */
} RrcRlcSnFeildLenUm_e;

/** Kind of the radio bearer that an RLC bearer serves */
typedef enum rrcRbType_e RRC_ENUM_WIDTH
{
    RRC_SRB = 0, /**< signalling radio bearer */
    RRC_DRB = 1  /**< data radio bearer */
} RrcRbType_e;

static_assert(sizeof(RrcRlcSnFeildLenAm_e) == 4, "enumerations of the records are 32 bits wide");
static_assert(sizeof(RrcRlcSnFeildLenUm_e) == 4, "enumerations of the records are 32 bits wide");
static_assert(sizeof(RrcRbType_e) == 4, "enumerations of the records are 32 bits wide");

/** UL-AM-RLC */
typedef struct rrcUlAmRlcCfg_s
{
    RrcRlcSnFeildLenAm_e snFeildLen; /**< sn-FieldLength; absent with any other value than the two */
    UINT8 tPollRetransmit;           /**< t-PollRetransmit, enumeration ms5.. (0..63) */
    UINT8 pollPdu;                   /**< pollPDU, enumeration p4.. (0..31) */
    UINT8 pollByte;                  /**< pollByte, enumeration kB1.. (0..63) */
    UINT8 maxRetxThreash;            /**< maxRetxThreshold, enumeration t1.. (0..7) */
} RrcUlAmRlcCfg_t;

/** DL-AM-RLC */
typedef struct rrcDlAmRlcCfg_s
{
    RrcRlcSnFeildLenAm_e snFeildLen; /**< sn-FieldLength; absent with any other value than the two */
    UINT8 tReassembly;               /**< t-Reassembly, enumeration ms0.. (0..31) */
    UINT8 tStatusProhibit;           /**< t-StatusProhibit, enumeration ms0.. (0..63) */
} RrcDlAmRlcCfg_t;

/** RLC-Config.am */
typedef struct rrcAmRlcCfg_s
{
    RrcUlAmRlcCfg_t ulAmCfg; /**< ul-AM-RLC */
    RrcDlAmRlcCfg_t dlAmCfg; /**< dl-AM-RLC */
} RrcAmRlcCfg_t;

/** DL-UM-RLC */
typedef struct rrcDlUmRlcCfg_s
{
    RrcRlcSnFeildLenUm_e snFeildLen; /**< sn-FieldLength; absent with any other value than the two */
    UINT8 tDlReassembly;             /**< t-Reassembly, enumeration ms0.. (0..31) */
} RrcDlUmRlcCfg_t;

/** UL-UM-RLC */
typedef struct rrcUlUmRlcCfg_s
{
    RrcRlcSnFeildLenUm_e snFeildLen; /**< sn-FieldLength; absent with any other value than the two */
} RrcUlUmRlcCfg_t;

/** RLC-Config.um-Bi-Directional */
typedef struct rrcUmBiRlcCfg_s
{
    RrcDlUmRlcCfg_t dlUmCfg; /**< dl-UM-RLC */
    RrcUlUmRlcCfg_t ulUmCfg; /**< ul-UM-RLC */
} RrcUmBiRlcCfg_t;

/** RrcRlcCfg_t.bitMask: choice.amCfg is given */
#define RRC_RLCCFG_AM_PRESENCE (1 << 0)
/** RrcRlcCfg_t.bitMask: choice.umBiCfg is given */
#define RRC_RLCCFG_UM_BI_PRESENCE (1 << 1)
/** RrcRlcCfg_t.bitMask: choice.umUniUlCfg is given */
#define RRC_RLCCFG_UM_UNI_UL_PRESENCE (1 << 2)
/** RrcRlcCfg_t.bitMask: choice.umUniDlCfg is given */
#define RRC_RLCCFG_UM_UNI_DL_PRESENCE (1 << 3)

/** RLC-Config. One bit of bitMask says which member of choice counts; of several the highest does. */
typedef struct rrcRlcCfg_s
{
    UINT8 bitMask; /**< one of RRC_RLCCFG_..._PRESENCE; with none the encoder refuses the bearer */
    union cfg_u
    {
        RrcAmRlcCfg_t amCfg;        /**< am */
        RrcUmBiRlcCfg_t umBiCfg;    /**< um-Bi-Directional */
        RrcUlUmRlcCfg_t umUniUlCfg; /**< um-Uni-Directional-UL */
        RrcDlUmRlcCfg_t umUniDlCfg; /**< um-Uni-Directional-DL */
    } choice;                       /**< the mode's parameters */
} RrcRlcCfg_t;

/** maxNrofServingCells - 1 */
#define RRC_MAX_NROF_ALLOWED_SERVING_CELLS 31
/** maxSCSs */
#define RRC_MAX_NROF_ALLOWED_SCS 5

/** RrcUlSpecificParaCfg_t.bitMask: allowedCellNum and cellIdx are given */
#define RRC_UL_SPECIFICPARA_SERVING_CELL_CFG_PRESENCE (1 << 0)
/** RrcUlSpecificParaCfg_t.bitMask: allowedSCSNum and subCarrierSpacing are given */
#define RRC_UL_SPECIFICPARA_SCS_CFG_PRESENCE (1 << 1)
/** RrcUlSpecificParaCfg_t.bitMask: maxPuschDuration is given */
#define RRC_UL_SPECIFICPARA_PUSCH_CFG_PRESENCE (1 << 2)
/** RrcUlSpecificParaCfg_t.bitMask: configuredGrantType1Allowed is given */
#define RRC_UL_SPECIFICPARA_GRANT_TYPE1_CFG_PRESENCE (1 << 3)
/** RrcUlSpecificParaCfg_t.bitMask: logicalChannelGroupId is given */
#define RRC_UL_SPECIFICPARA_LCG_CFG_PRESENCE (1 << 4)
/** RrcUlSpecificParaCfg_t.bitMask: schedReqId is given */
#define RRC_UL_SPECIFICPARA_SR_CFG_PRESENCE (1 << 5)
/** RrcUlSpecificParaCfg_t.bitMask: bitRateQueryProhibitTimer is given */
#define RRC_UL_SPECIFICPARA_BITRATE_QUERY_PROHIBIT_TIMER (1 << 6)

/** LogicalChannelConfig.ul-SpecificParameters */
typedef struct rrcUlSpecificParaCfg_s
{
    UINT8 priority;                                    /**< priority, 1..16 */
    UINT8 priorityBitRate;                             /**< prioritisedBitRate, enumeration kBps0.. (0..15) */
    UINT8 bucketSizeDuration;                          /**< bucketSizeDuration, enumeration ms5.. (0..15) */
    UINT8 allowedCellNum;                              /**< entries used of cellIdx, 1..31 */
    UINT8 cellIdx[RRC_MAX_NROF_ALLOWED_SERVING_CELLS]; /**< allowedServingCells, each 0..31 */
    UINT8 allowedSCSNum;                               /**< entries used of subCarrierSpacing, 1..5 */
    UINT8 subCarrierSpacing[RRC_MAX_NROF_ALLOWED_SCS]; /**< allowedSCS-List, enumeration kHz15.. (0..7) */
    UINT8 bitMask;                                     /**< RRC_UL_SPECIFICPARA_... */
    UINT8 maxPuschDuration;                            /**< maxPUSCH-Duration, enumeration ms0p02.. (0..7) */
    BOOL configuredGrantType1Allowed;      /**< configuredGrantType1Allowed: 0, the number of its one value true */
    UINT8 logicalChannelGroupId;           /**< logicalChannelGroup, 0..7 */
    UINT8 schedReqId;                      /**< schedulingRequestID, 0..7 */
    BOOL logicalChannelSrMask;             /**< logicalChannelSR-Mask; the low 8 bits count */
    BOOL logcalChannelSrDealyTimerApplied; /**< logicalChannelSR-DelayTimerApplied; the low 8 bits count */
    UINT8 bitRateQueryProhibitTimer;       /**< bitRateQueryProhibitTimer, enumeration s0.. (0..7) */
} RrcUlSpecificParaCfg_t;

/** RrcLchCfg_t.bitMask: ulSpecificParaCfg is given */
#define RRC_LCH_EXPLICIT_PRESENCE (1 << 0)

/** LogicalChannelConfig */
typedef struct rrcLchCfg_s
{
    UINT8 bitMask;                            /**< RRC_LCH_EXPLICIT_PRESENCE */
    RrcUlSpecificParaCfg_t ulSpecificParaCfg; /**< ul-SpecificParameters */
} RrcLchCfg_t;

/** RrcRlcBearerCfg_t.bitMask: rbType and rbId are given */
#define RRC_RLCBEARERCFG_RBTYPE_PRESENCE (1 << 0)
/** RrcRlcBearerCfg_t.bitMask: reestablRlc is given */
#define RRC_RLCBEARERCFG_REESTABRLC_PRESENCE (1 << 1)
/** RrcRlcBearerCfg_t.bitMask: rlcCfg is given */
#define RRC_RLCBEARERCFG_RLC_PRESENCE (1 << 2)
/** RrcRlcBearerCfg_t.bitMask: macLchCfg is given */
#define RRC_RLCBEARERCFG_LCH_PRESENCE (1 << 3)

/** RLC-BearerConfig */
typedef struct rrcRlcBearerCfg_s
{
    UINT8 lchId;           /**< logicalChannelIdentity, 1..32 */
    UINT8 bitMask;         /**< RRC_RLCBEARERCFG_..._PRESENCE */
    RrcRbType_e rbType;    /**< which alternative of servedRadioBearer */
    UINT8 rbId;            /**< srb-Identity, 1..3, or drb-Identity, 1..32 */
    BOOL reestablRlc;      /**< reestablishRLC: 0, the number of its one value true */
    RrcRlcCfg_t rlcCfg;    /**< rlc-Config */
    RrcLchCfg_t macLchCfg; /**< mac-LogicalChannelConfig */
} RrcRlcBearerCfg_t;

#ifdef __cplusplus
}
#endif

#endif
