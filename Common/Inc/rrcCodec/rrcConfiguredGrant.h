#ifndef RRCCONFIGUREDGRANT_H
#define RRCCONFIGUREDGRANT_H

#include "rrcCodec/rrcPusch.h"
#include "vos_types.h"

/*
 * Configured uplink grant (TS 38.331 ConfiguredGrantConfig). Enumerated fields hold the integer of the ASN.1
 * enumeration.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** CG-UCI-OnPUSCH.dynamic */
typedef struct rrcDynamicBetaOffsets_s
{
    UINT8 num;                       /**< entries used of betaOffsets, 1..4 */
    RrcBetaOffsets_t betaOffsets[4]; /**< the offsets */
} RrcDynamicBetaOffsets_t;

/** RrcCgUciOnPusch_t.presence: the alternative of betaOffset; the higher bit wins, with none the encoder refuses */
#define RRC_CG_UCI_ON_PUSCH_DYNAMIC_PRESENCE (1 << 0)
#define RRC_CG_UCI_ON_PUSCH_SEMI_STATIC_PRESENCE (1 << 1)

/** CG-UCI-OnPUSCH */
typedef struct rrcCgUciOnPusch_s
{
    UINT8 presence; /**< RRC_CG_UCI_ON_PUSCH_... */
    union rrcCgUciOnPuschBetaOffset_u
    {
        RrcDynamicBetaOffsets_t dynamic; /**< dynamic */
        RrcBetaOffsets_t semiStatic;     /**< semiStatic */
    } betaOffset;
} RrcCgUciOnPusch_t;

/** rrcCfgdUlGrant_s.bitMask */
#define RRC_CFGD_GRANT_CFG_UL_GRANT_DMRS_SEQ_INIT_PRESENCE (1 << 0)
#define RRC_CFGD_GRANT_CFG_UL_GRANT_SRS_RESOURCE_IND_PRESENCE (1 << 1)
#define RRC_CFGD_GRANT_CFG_UL_GRANT_FREQ_HOPPING_OFFSET_PRESENCE (1 << 2)

/** ConfiguredGrantConfig.rrc-ConfiguredUplinkGrant */
struct rrcCfgdUlGrant_s
{
    UINT16 timeDomainOffset;          /**< timeDomainOffset, 0..5119 */
    UINT8 timeDomainAllocation;       /**< timeDomainAllocation, 0..15 */
    UINT32 freqDomainAllocation;      /**< frequencyDomainAllocation, the low 18 bits */
    UINT8 antennaPort;                /**< antennaPort, 0..31 */
    UINT8 precodingAndNumberOfLayers; /**< precodingAndNumberOfLayers, 0..63 */
    UINT8 mcsAndTBS;                  /**< mcsAndTBS, 0..31 */
    UINT8 pathLossRefIdx;             /**< pathlossReferenceIndex, 0..3 */
    UINT8 bitMask;                    /**< RRC_CFGD_GRANT_CFG_UL_GRANT_... */
    UINT8 dmrsSeqInit;                /**< dmrs-SeqInitialization, 0..1 */
    UINT8 srsResourceInd;             /**< srs-ResourceIndicator, 0..15 */
    UINT16 freqHoppingOffset;         /**< frequencyHoppingOffset, 1..274 */
};

/** RrcCfgGrantCfg_t.bitMask */
#define RRC_CFGD_GRANT_CFG_FREQ_HOPPING_PRESENCE (1 << 0)
#define RRC_CFGD_GRANT_CFG_MCS_TABLE_PRESENCE (1 << 1)
#define RRC_CFGD_GRANT_CFG_MCS_TABLE_PRECODER_PRESENCE (1 << 2)
#define RRC_CFGD_GRANT_CFG_UCI_ON_PUSCH_PRESENCE (1 << 3)
#define RRC_CFGD_GRANT_CFG_RBG_SIZE_PRESENCE (1 << 4)
#define RRC_CFGD_GRANT_CFG_TRANSFORM_PRECODER_PRESENCE (1 << 5)
#define RRC_CFGD_GRANT_CFG_REPK_RV_PRESENCE (1 << 6)
#define RRC_CFGD_GRANT_CFG_CFGD_GRANT_TIMER_PRESENCE (1 << 7)
#define RRC_CFGD_GRANT_CFG_RRC_CFGD_UL_GRANT_PRESENCE (1 << 8)

/** ConfiguredGrantConfig */
typedef struct rrcCfgGrantCfg_s
{
    RrcDmrsUlCfg_t cgDmrsCfg;               /**< cg-DMRS-Configuration, always sent */
    UINT8 resourceAlloction;                /**< resourceAllocation, enumeration resourceAllocationType0.. (0..2) */
    UINT8 powerControlLoopToUse;            /**< powerControlLoopToUse, enumeration n0, n1 (0..1) */
    UINT8 p0PuschAlpha;                     /**< p0-PUSCH-Alpha, 0..29 */
    UINT8 nrofHarqProcess;                  /**< nrofHARQ-Processes, 1..16 */
    UINT8 repK;                             /**< repK, enumeration n1, n2, n4, n8 (0..3) */
    UINT8 periodcity;                       /**< periodicity, enumeration sym2.. (0..44) */
    UINT16 bitMask;                         /**< RRC_CFGD_GRANT_CFG_..._PRESENCE */
    UINT8 freqHopping;                      /**< frequencyHopping, enumeration intraSlot, interSlot (0..1) */
    UINT8 mcsTable;                         /**< mcs-Table, enumeration qam256, qam64LowSE (0..1) */
    UINT8 mcaTableTransformPrecoder;        /**< mcs-TableTransformPrecoder, enumeration qam256, qam64LowSE (0..1) */
    RrcCgUciOnPusch_t uciOnPusch;           /**< uci-OnPUSCH */
    UINT8 rbgSize;                          /**< rbg-Size, enumeration config2 (0) */
    UINT8 transformPrecoder;                /**< transformPrecoder, enumeration enabled, disabled (0..1) */
    UINT8 repKRv;                           /**< repK-RV, enumeration s1-0231.. (0..2) */
    UINT8 cfgdGrantTimer;                   /**< configuredGrantTimer, 1..64 periodicities */
    struct rrcCfgdUlGrant_s rrcCfgdUlGrant; /**< rrc-ConfiguredUplinkGrant */
} RrcCfgGrantCfg_t;

#ifdef __cplusplus
}
#endif

#endif
