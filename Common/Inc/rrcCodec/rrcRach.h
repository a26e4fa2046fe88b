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
    UINT8 msg1Fdm;                /**< msg1-FDM, enumeration one.. (0..3) */
    UINT16 msg1FreqStart;         /**< msg1-FrequencyStart in PRBs, 0..274 */
    UINT8 zeroCorrelationZoneCfg; /**< zeroCorrelationZoneConfig, 0..15 */
    INT16 preambleRecTargetPower; /**< preambleReceivedTargetPower in dBm, -202..-60 */
    UINT8 preambleTransMax;       /**< preambleTransMax, enumeration n3.. (0..10) */
    UINT8 powerRampingStep;       /**< powerRampingStep, enumeration dB0.. (0..3) */
    UINT8 raRspWindow;            /**< ra-ResponseWindow, enumeration sl1.. (0..7) */
} RrcRachCfgGeneric_t;

/** RrcOccasions_t.bitMask: ssbPerRachOccasion is given */
#define RRC_OCCASION_SSB_PER_RACH_PRESENCE (1 << 0)

/** CFRA.occasions */
typedef struct rrcOccasions_s
{
    RrcRachCfgGeneric_t rachCfgGen; /**< rach-ConfigGeneric */
    UINT8 bitMask;                  /**< RRC_OCCASION_SSB_PER_RACH_PRESENCE */
    UINT8 ssbPerRachOccasion;       /**< ssb-perRACH-Occasion, enumeration oneEighth.. (0..7) */
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
    UINT8 rsrpThreshCsiRs;                                        /**< rsrp-ThresholdCSI-RS, 0..127 */
} RrcSsirs_t;

/** RrcCfra_t.bitMask: resources.ssb is given */
#define RRC_SSB (1 << 0)
/** RrcCfra_t.bitMask: resources.scirs is given. It is taken whenever RRC_SSB is not set, with this bit or without. */
#define RRC_SCIS_RESOURCE (1 << 1)
/** RrcCfra_t.bitMask: occasions is given */
#define RRC_CFRA_OCCASIONS_PRESENCE (1 << 2)
/** RrcCfra_t.bitMask: totalNumOfRaPreableV1530 is given */
#define RRC_CFRA_PREAMBLE_PRESENCE (1 << 3)

/** CFRA */
typedef struct rrcCfra_s
{
    UINT8 bitMask; /**< RRC_SSB .. RRC_CFRA_PREAMBLE_PRESENCE */
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
    UINT8 powerRampingStepHighPriority; /**< powerRampingStepHighPriority, enumeration dB0.. (0..3) */
    UINT8 bitMask;                      /**< RRC_RA_PRIO_SCALINGFACTOR_PRESENCE */
    UINT8 scalingFactorBI;              /**< scalingFactorBI, enumeration zero.. (0..3) */
} RrcRaPrio_t;

/** RrcRachCfgDedi_t.bitMask: cfra is given */
#define RRC_RACH_CFG_DEDI_CFRA_PRESENCE (1 << 0)
/** RrcRachCfgDedi_t.bitMask: raPrio is given */
#define RRC_RACH_CFG_DEDI_RA_PRIO_PRESENCE (1 << 1)

/** RACH-ConfigDedicated */
typedef struct rrcRachCfgDedi_s
{
    UINT8 bitMask;      /**< RRC_RACH_CFG_DEDI_CFRA_PRESENCE, RRC_RACH_CFG_DEDI_RA_PRIO_PRESENCE */
    RrcCfra_t cfra;     /**< cfra */
    RrcRaPrio_t raPrio; /**< ra-Prioritization */
} RrcRachCfgDedi_t;

#ifdef __cplusplus
}
#endif

#endif
