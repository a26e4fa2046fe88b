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
    RrcRlcSnFeildLenAm_e snFeildLen; /**< sn-FieldLength, else absent, SN_FieldLengthAM_...: 0 size12, 1 size18 */
    /**
     * t-PollRetransmit, T_PollRetransmit_...: 0 ms5, 1 ms10, 2 ms15, 3 ms20, 4 ms25, 5 ms30, 6 ms35, 7 ms40, 8 ms45,
     * 9 ms50, 10 ms55, 11 ms60, 12 ms65, 13 ms70, 14 ms75, 15 ms80, 16 ms85, 17 ms90, 18 ms95, 19 ms100, 20 ms105,
     * 21 ms110, 22 ms115, 23 ms120, 24 ms125, 25 ms130, 26 ms135, 27 ms140, 28 ms145, 29 ms150, 30 ms155, 31 ms160,
     * 32 ms165, 33 ms170, 34 ms175, 35 ms180, 36 ms185, 37 ms190, 38 ms195, 39 ms200, 40 ms205, 41 ms210, 42 ms215,
     * 43 ms220, 44 ms225, 45 ms230, 46 ms235, 47 ms240, 48 ms245, 49 ms250, 50 ms300, 51 ms350, 52 ms400, 53 ms450,
     * 54 ms500, 55 ms800, 56 ms1000, 57 ms2000, 58 ms4000
     */
    UINT8 tPollRetransmit;
    /**
     * pollPDU, PollPDU_...: 0 p4, 1 p8, 2 p16, 3 p32, 4 p64, 5 p128, 6 p256, 7 p512, 8 p1024, 9 p2048, 10 p4096,
     * 11 p6144, 12 p8192, 13 p12288, 14 p16384, 15 p20480, 16 p24576, 17 p28672, 18 p32768, 19 p40960, 20 p49152,
     * 21 p57344, 22 p65536, 23 infinity
     */
    UINT8 pollPdu;
    /**
     * pollByte, PollByte_...: 0 kB1, 1 kB2, 2 kB5, 3 kB8, 4 kB10, 5 kB15, 6 kB25, 7 kB50, 8 kB75, 9 kB100, 10 kB125,
     * 11 kB250, 12 kB375, 13 kB500, 14 kB750, 15 kB1000, 16 kB1250, 17 kB1500, 18 kB2000, 19 kB3000, 20 kB4000,
     * 21 kB4500, 22 kB5000, 23 kB5500, 24 kB6000, 25 kB6500, 26 kB7000, 27 kB7500, 28 mB8, 29 mB9, 30 mB10, 31 mB11,
     * 32 mB12, 33 mB13, 34 mB14, 35 mB15, 36 mB16, 37 mB17, 38 mB18, 39 mB20, 40 mB25, 41 mB30, 42 mB40, 43 infinity
     */
    UINT8 pollByte;
    /** maxRetxThreshold, UL_AM_RLC_maxRetxThreshold_...: 0 t1, 1 t2, 2 t3, 3 t4, 4 t6, 5 t8, 6 t16, 7 t32 */
    UINT8 maxRetxThreash;
} RrcUlAmRlcCfg_t;

/** DL-AM-RLC */
typedef struct rrcDlAmRlcCfg_s
{
    RrcRlcSnFeildLenAm_e snFeildLen; /**< sn-FieldLength, else absent, SN_FieldLengthAM_...: 0 size12, 1 size18 */
    /**
     * t-Reassembly, T_Reassembly_...: 0 ms0, 1 ms5, 2 ms10, 3 ms15, 4 ms20, 5 ms25, 6 ms30, 7 ms35, 8 ms40, 9 ms45,
     * 10 ms50, 11 ms55, 12 ms60, 13 ms65, 14 ms70, 15 ms75, 16 ms80, 17 ms85, 18 ms90, 19 ms95, 20 ms100, 21 ms110,
     * 22 ms120, 23 ms130, 24 ms140, 25 ms150, 26 ms160, 27 ms170, 28 ms180, 29 ms190, 30 ms200
     */
    UINT8 tReassembly;
    /**
     * t-StatusProhibit, T_StatusProhibit_...: 0 ms0, 1 ms5, 2 ms10, 3 ms15, 4 ms20, 5 ms25, 6 ms30, 7 ms35, 8 ms40,
     * 9 ms45, 10 ms50, 11 ms55, 12 ms60, 13 ms65, 14 ms70, 15 ms75, 16 ms80, 17 ms85, 18 ms90, 19 ms95, 20 ms100,
     * 21 ms105, 22 ms110, 23 ms115, 24 ms120, 25 ms125, 26 ms130, 27 ms135, 28 ms140, 29 ms145, 30 ms150, 31 ms155,
     * 32 ms160, 33 ms165, 34 ms170, 35 ms175, 36 ms180, 37 ms185, 38 ms190, 39 ms195, 40 ms200, 41 ms205, 42 ms210,
     * 43 ms215, 44 ms220, 45 ms225, 46 ms230, 47 ms235, 48 ms240, 49 ms245, 50 ms250, 51 ms300, 52 ms350, 53 ms400,
     * 54 ms450, 55 ms500, 56 ms800, 57 ms1000, 58 ms1200, 59 ms1600, 60 ms2000, 61 ms2400
     */
    UINT8 tStatusProhibit;
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
    RrcRlcSnFeildLenUm_e snFeildLen; /**< sn-FieldLength, else absent, SN_FieldLengthUM_...: 0 size6, 1 size12 */
    /**
     * t-Reassembly, T_Reassembly_...: 0 ms0, 1 ms5, 2 ms10, 3 ms15, 4 ms20, 5 ms25, 6 ms30, 7 ms35, 8 ms40, 9 ms45,
     * 10 ms50, 11 ms55, 12 ms60, 13 ms65, 14 ms70, 15 ms75, 16 ms80, 17 ms85, 18 ms90, 19 ms95, 20 ms100, 21 ms110,
     * 22 ms120, 23 ms130, 24 ms140, 25 ms150, 26 ms160, 27 ms170, 28 ms180, 29 ms190, 30 ms200
     */
    UINT8 tDlReassembly;
} RrcDlUmRlcCfg_t;

/** UL-UM-RLC */
typedef struct rrcUlUmRlcCfg_s
{
    RrcRlcSnFeildLenUm_e snFeildLen; /**< sn-FieldLength, else absent, SN_FieldLengthUM_...: 0 size6, 1 size12 */
} RrcUlUmRlcCfg_t;

/** RLC-Config.um-Bi-Directional */
typedef struct rrcUmBiRlcCfg_s
{
    RrcDlUmRlcCfg_t dlUmCfg; /**< dl-UM-RLC */
    RrcUlUmRlcCfg_t ulUmCfg; /**< ul-UM-RLC */
} RrcUmBiRlcCfg_t;

/** RrcRlcCfg_t.bitMask: chooses am, in choice.amCfg */
#define RRC_RLCCFG_AM_PRESENCE (1 << 0)
/** RrcRlcCfg_t.bitMask: chooses um-Bi-Directional, in choice.umBiCfg */
#define RRC_RLCCFG_UM_BI_PRESENCE (1 << 1)
/** RrcRlcCfg_t.bitMask: chooses um-Uni-Directional-UL, in choice.umUniUlCfg */
#define RRC_RLCCFG_UM_UNI_UL_PRESENCE (1 << 2)
/** RrcRlcCfg_t.bitMask: chooses um-Uni-Directional-DL, in choice.umUniDlCfg */
#define RRC_RLCCFG_UM_UNI_DL_PRESENCE (1 << 3)

/** RLC-Config. One bit of bitMask says which member of choice counts; of several the highest does. */
typedef struct rrcRlcCfg_s
{
    UINT8 bitMask; /**< bits RRC_RLCCFG_..._PRESENCE; with none the encoder refuses the bearer */
    union cfg_u
    {
        RrcAmRlcCfg_t amCfg;        /**< am */
        RrcUmBiRlcCfg_t umBiCfg;    /**< um-Bi-Directional */
        RrcUlUmRlcCfg_t umUniUlCfg; /**< um-Uni-Directional-UL.ul-UM-RLC */
        RrcDlUmRlcCfg_t umUniDlCfg; /**< um-Uni-Directional-DL.dl-UM-RLC */
    } choice;                       /**< itself; the mode's parameters */
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
    UINT8 priority; /**< priority, 1..16 */
    /**
     * prioritisedBitRate, LogicalChannelConfig_ul_SpecificParameters_prioritisedBitRate_...: 0 kBps0, 1 kBps8,
     * 2 kBps16, 3 kBps32, 4 kBps64, 5 kBps128, 6 kBps256, 7 kBps512, 8 kBps1024, 9 kBps2048, 10 kBps4096, 11 kBps8192,
     * 12 kBps16384, 13 kBps32768, 14 kBps65536, 15 infinity
     */
    UINT8 priorityBitRate;
    /**
     * bucketSizeDuration, LogicalChannelConfig_ul_SpecificParameters_bucketSizeDuration_...: 0 ms5, 1 ms10, 2 ms20,
     * 3 ms50, 4 ms100, 5 ms150, 6 ms300, 7 ms500, 8 ms1000
     */
    UINT8 bucketSizeDuration;
    UINT8 allowedCellNum;                              /**< entries used of cellIdx, 1..31 */
    UINT8 cellIdx[RRC_MAX_NROF_ALLOWED_SERVING_CELLS]; /**< allowedServingCells, each 0..31 */
    UINT8 allowedSCSNum;                               /**< entries used of subCarrierSpacing, 1..5 */
    /** allowedSCS-List, each SubcarrierSpacing_...: 0 kHz15, 1 kHz30, 2 kHz60, 3 kHz120, 4 kHz240 */
    UINT8 subCarrierSpacing[RRC_MAX_NROF_ALLOWED_SCS];
    UINT8 bitMask; /**< bits RRC_UL_SPECIFICPARA_... */
    /**
     * maxPUSCH-Duration, LogicalChannelConfig_ul_SpecificParameters_maxPUSCH_Duration_...: 0 ms0p02, 1 ms0p04,
     * 2 ms0p0625, 3 ms0p125, 4 ms0p25, 5 ms0p5
     */
    UINT8 maxPuschDuration;
    /**
     * configuredGrantType1Allowed, LogicalChannelConfig_ul_SpecificParameters_configuredGrantType1Allowed_...: 0 true
     */
    BOOL configuredGrantType1Allowed;
    UINT8 logicalChannelGroupId;           /**< logicalChannelGroup, 0..7 */
    UINT8 schedReqId;                      /**< schedulingRequestID, 0..7 */
    BOOL logicalChannelSrMask;             /**< logicalChannelSR-Mask */
    BOOL logcalChannelSrDealyTimerApplied; /**< logicalChannelSR-DelayTimerApplied */
    /**
     * bitRateQueryProhibitTimer, LogicalChannelConfig_ul_SpecificParameters_bitRateQueryProhibitTimer_...: 0 s0,
     * 1 s0dot4, 2 s0dot8, 3 s1dot6, 4 s3, 5 s6, 6 s12, 7 s30
     */
    UINT8 bitRateQueryProhibitTimer;
} RrcUlSpecificParaCfg_t;

/** RrcLchCfg_t.bitMask: ulSpecificParaCfg is given */
#define RRC_LCH_EXPLICIT_PRESENCE (1 << 0)

/** LogicalChannelConfig */
typedef struct rrcLchCfg_s
{
    UINT8 bitMask;                            /**< bits RRC_LCH_EXPLICIT_PRESENCE */
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
    UINT8 lchId;   /**< logicalChannelIdentity, 1..32 */
    UINT8 bitMask; /**< bits RRC_RLCBEARERCFG_..._PRESENCE */
    /** alternative of servedRadioBearer: 0 srb-Identity, 1 drb-Identity; RRC_SRB or RRC_DRB */
    RrcRbType_e rbType;
    UINT8 rbId;            /**< value by rbType; srb-Identity 1..3, drb-Identity 1..32 */
    BOOL reestablRlc;      /**< reestablishRLC, RLC_BearerConfig_reestablishRLC_...: 0 true */
    RrcRlcCfg_t rlcCfg;    /**< rlc-Config */
    RrcLchCfg_t macLchCfg; /**< mac-LogicalChannelConfig */
} RrcRlcBearerCfg_t;

#ifdef __cplusplus
}
#endif

#endif
