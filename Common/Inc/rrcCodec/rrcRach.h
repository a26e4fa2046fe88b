#ifndef RRCRACH_H
#define RRCRACH_H

#include "vos_types.h"

/*
 * Dedicated random access (TS 38.331 RACH-ConfigDedicated). Enumerated fields hold the integer of the ASN.1
 * enumeration.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** maxRA-SSB-Resources */
#define RRC_MAX_RA_SSB_RESOURCES 64
/** maxRA-CSIRS-Resources */
#define RRC_MAX_RA_CSIRS_RESOURCES 96
/** Room for occasions in RrcCsirsResource_t; a message holds at most 64 */
#define RRC_MAX_RA_OCCASION_INDEX 511

/** RACH-ConfigGeneric */
typedef struct rrcRachCfgGeneric_s
{
    UINT8 prachCfgIdx;            /**< prach-ConfigurationIndex, 0..255 */
    UINT8 msg1Fdm;                /**< msg1-FDM, RACH_ConfigGeneric_msg1_FDM_...: 0 one, 1 two, 2 four, 3 eight */
    UINT16 msg1FreqStart;         /**< msg1-FrequencyStart, 0..274, in PRBs */
    UINT8 zeroCorrelationZoneCfg; /**< zeroCorrelationZoneConfig, 0..15 */
    INT16 preambleRecTargetPower; /**< preambleReceivedTargetPower, -202..-60, in dBm */
    /**
     * preambleTransMax, RACH_ConfigGeneric_preambleTransMax_...: 0 n3, 1 n4, 2 n5, 3 n6, 4 n7, 5 n8, 6 n10, 7 n20,
     * 8 n50, 9 n100, 10 n200
     */
    UINT8 preambleTransMax;
    /** powerRampingStep, RACH_ConfigGeneric_powerRampingStep_...: 0 dB0, 1 dB2, 2 dB4, 3 dB6 */
    UINT8 powerRampingStep;
    /**
     * ra-ResponseWindow, RACH_ConfigGeneric_ra_ResponseWindow_...: 0 sl1, 1 sl2, 2 sl4, 3 sl8, 4 sl10, 5 sl20, 6 sl40,
     * 7 sl80
     */
    UINT8 raRspWindow;
} RrcRachCfgGeneric_t;

/** RrcOccasions_t.bitMask: ssbPerRachOccasion is given */
#define RRC_OCCASION_SSB_PER_RACH_PRESENCE (1 << 0)

/** CFRA.occasions */
typedef struct rrcOccasions_s
{
    RrcRachCfgGeneric_t rachCfgGen; /**< rach-ConfigGeneric */
    UINT8 bitMask;                  /**< bits RRC_OCCASION_SSB_PER_RACH_PRESENCE */
    /**
     * ssb-perRACH-Occasion, CFRA_occasions_ssb_perRACH_Occasion_...: 0 oneEighth, 1 oneFourth, 2 oneHalf, 3 one, 4 two,
     * 5 four, 6 eight, 7 sixteen
     */
    UINT8 ssbPerRachOccasion;
} RrcOccasions_t;

/** CFRA-SSB-Resource */
typedef struct rrcCfraSsbResource_s
{
    UINT8 ssbIdx;       /**< ssb, 0..63 */
    UINT8 raPreableIdx; /**< ra-PreambleIndex, 0..63 */
} RrcCfraSsbResource_t;

/** CFRA.resources.ssb */
typedef struct rrcSsb_s
{
    UINT8 numSsbResources;                                      /**< entries used of ssbResource, 1..64 */
    RrcCfraSsbResource_t ssbResource[RRC_MAX_RA_SSB_RESOURCES]; /**< ssb-ResourceList */
    UINT8 raSsbOccasionMaskIdx;                                 /**< ra-ssb-OccasionMaskIndex, 0..15 */
} RrcSsb_t;

/** CFRA-CSIRS-Resource */
typedef struct rrcCsirsResource_s
{
    UINT8 csiRSIdx;                                  /**< csi-RS, 0..95 */
    UINT8 numRaOccasion;                             /**< entries used of raOccasionIdx, 1..64 */
    UINT16 raOccasionIdx[RRC_MAX_RA_OCCASION_INDEX]; /**< ra-OccasionList, each 0..511 */
    UINT8 raPreambleIdx;                             /**< ra-PreambleIndex, 0..63 */
} RrcCsirsResource_t;

/** CFRA.resources.csirs */
typedef struct rrcSsirs_s
{
    UINT8 numCsirsRecouces;                                       /**< entries used of csirsResource, 1..96 */
    RrcCsirsResource_t csirsResource[RRC_MAX_RA_CSIRS_RESOURCES]; /**< csirs-ResourceList */
    UINT8 rsrpThreshCsiRs; /**< rsrp-ThresholdCSI-RS, 0..127, in dBm above -156; 127 is infinity */
} RrcSsirs_t;

/** RrcCfra_t.bitMask: chooses resources.ssb, in resources.ssb, else resources.csirs, in resources.scirs */
#define RRC_SSB (1 << 0)
/** RrcCfra_t.bitMask: not read; csirs is taken whenever RRC_SSB is not set */
#define RRC_SCIS_RESOURCE (1 << 1)
/** RrcCfra_t.bitMask: occasions is given */
#define RRC_CFRA_OCCASIONS_PRESENCE (1 << 2)
/** RrcCfra_t.bitMask: totalNumOfRaPreableV1530 is given */
#define RRC_CFRA_PREAMBLE_PRESENCE (1 << 3)

/** CFRA */
typedef struct rrcCfra_s
{
    UINT8 bitMask; /**< bits RRC_SSB and RRC_SCIS_RESOURCE and RRC_CFRA_..._PRESENCE */
    union
    {
        RrcSsb_t ssb;               /**< ssb */
        RrcSsirs_t scirs;           /**< csirs */
    } resources;                    /**< resources */
    RrcOccasions_t occasions;       /**< occasions */
    UINT8 totalNumOfRaPreableV1530; /**< totalNumberOfRA-Preambles-v1530, 1..63 */
} RrcCfra_t;

/** RrcRaPrio_t.bitMask: scalingFactorBI is given */
#define RRC_RA_PRIO_SCALINGFACTOR_PRESENCE (1 << 0)

/** RA-Prioritization */
typedef struct rrcRaPrio_s
{
    /** powerRampingStepHighPriority, RA_Prioritization_powerRampingStepHighPriority_...: 0 dB0, 1 dB2, 2 dB4, 3 dB6 */
    UINT8 powerRampingStepHighPriority;
    UINT8 bitMask; /**< bits RRC_RA_PRIO_SCALINGFACTOR_PRESENCE */
    /** scalingFactorBI, RA_Prioritization_scalingFactorBI_...: 0 zero, 1 dot25, 2 dot5, 3 dot75 */
    UINT8 scalingFactorBI;
} RrcRaPrio_t;

/** RrcRachCfgDedi_t.bitMask: cfra is given */
#define RRC_RACH_CFG_DEDI_CFRA_PRESENCE (1 << 0)
/** RrcRachCfgDedi_t.bitMask: raPrio is given */
#define RRC_RACH_CFG_DEDI_RA_PRIO_PRESENCE (1 << 1)

/** RACH-ConfigDedicated */
typedef struct rrcRachCfgDedi_s
{
    UINT8 bitMask;      /**< bits RRC_RACH_CFG_DEDI_..._PRESENCE */
    RrcCfra_t cfra;     /**< cfra */
    RrcRaPrio_t raPrio; /**< ra-Prioritization */
} RrcRachCfgDedi_t;

#ifdef __cplusplus
}
#endif

#endif
