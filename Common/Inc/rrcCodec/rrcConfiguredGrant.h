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
    RrcBetaOffsets_t betaOffsets[4]; /**< itself; the offsets */
} RrcDynamicBetaOffsets_t;

/** RrcCgUciOnPusch_t.presence: chooses dynamic, in betaOffset.dynamic */
#define RRC_CG_UCI_ON_PUSCH_DYNAMIC_PRESENCE (1 << 0)
/** RrcCgUciOnPusch_t.presence: chooses semiStatic, in betaOffset.semiStatic */
#define RRC_CG_UCI_ON_PUSCH_SEMI_STATIC_PRESENCE (1 << 1)

/** CG-UCI-OnPUSCH */
typedef struct rrcCgUciOnPusch_s
{
    UINT8 presence; /**< bits RRC_CG_UCI_ON_PUSCH_..._PRESENCE */
    union rrcCgUciOnPuschBetaOffset_u
    {
        RrcDynamicBetaOffsets_t dynamic; /**< dynamic */
        RrcBetaOffsets_t semiStatic;     /**< semiStatic */
    } betaOffset;                        /**< itself */
} RrcCgUciOnPusch_t;

/** rrcCfgdUlGrant_s.bitMask: dmrsSeqInit is given */
#define RRC_CFGD_GRANT_CFG_UL_GRANT_DMRS_SEQ_INIT_PRESENCE (1 << 0)
/** rrcCfgdUlGrant_s.bitMask: srsResourceInd is given */
#define RRC_CFGD_GRANT_CFG_UL_GRANT_SRS_RESOURCE_IND_PRESENCE (1 << 1)
/** rrcCfgdUlGrant_s.bitMask: freqHoppingOffset is given */
#define RRC_CFGD_GRANT_CFG_UL_GRANT_FREQ_HOPPING_OFFSET_PRESENCE (1 << 2)

/** ConfiguredGrantConfig.rrc-ConfiguredUplinkGrant */
struct rrcCfgdUlGrant_s
{
    UINT16 timeDomainOffset;          /**< timeDomainOffset, 0..5119, in slots */
    UINT8 timeDomainAllocation;       /**< timeDomainAllocation, 0..15 */
    UINT32 freqDomainAllocation;      /**< frequencyDomainAllocation, 18 bits */
    UINT8 antennaPort;                /**< antennaPort, 0..31 */
    UINT8 precodingAndNumberOfLayers; /**< precodingAndNumberOfLayers, 0..63 */
    UINT8 mcsAndTBS;                  /**< mcsAndTBS, 0..31 */
    UINT8 pathLossRefIdx;             /**< pathlossReferenceIndex, 0..3 */
    UINT8 bitMask;                    /**< bits RRC_CFGD_GRANT_CFG_UL_GRANT_..._PRESENCE */
    UINT8 dmrsSeqInit;                /**< dmrs-SeqInitialization, 0..1 */
    UINT8 srsResourceInd;             /**< srs-ResourceIndicator, 0..15 */
    UINT16 freqHoppingOffset;         /**< frequencyHoppingOffset, 1..274, in PRBs */
};

/** RrcCfgGrantCfg_t.bitMask: freqHopping is given */
#define RRC_CFGD_GRANT_CFG_FREQ_HOPPING_PRESENCE (1 << 0)
/** RrcCfgGrantCfg_t.bitMask: mcsTable is given */
#define RRC_CFGD_GRANT_CFG_MCS_TABLE_PRESENCE (1 << 1)
/** RrcCfgGrantCfg_t.bitMask: mcaTableTransformPrecoder is given */
#define RRC_CFGD_GRANT_CFG_MCS_TABLE_PRECODER_PRESENCE (1 << 2)
/** RrcCfgGrantCfg_t.bitMask: uciOnPusch is given */
#define RRC_CFGD_GRANT_CFG_UCI_ON_PUSCH_PRESENCE (1 << 3)
/** RrcCfgGrantCfg_t.bitMask: rbgSize is given */
#define RRC_CFGD_GRANT_CFG_RBG_SIZE_PRESENCE (1 << 4)
/** RrcCfgGrantCfg_t.bitMask: transformPrecoder is given */
#define RRC_CFGD_GRANT_CFG_TRANSFORM_PRECODER_PRESENCE (1 << 5)
/** RrcCfgGrantCfg_t.bitMask: repKRv is given */
#define RRC_CFGD_GRANT_CFG_REPK_RV_PRESENCE (1 << 6)
/** RrcCfgGrantCfg_t.bitMask: cfgdGrantTimer is given */
#define RRC_CFGD_GRANT_CFG_CFGD_GRANT_TIMER_PRESENCE (1 << 7)
/** RrcCfgGrantCfg_t.bitMask: rrcCfgdUlGrant is given */
#define RRC_CFGD_GRANT_CFG_RRC_CFGD_UL_GRANT_PRESENCE (1 << 8)

/** ConfiguredGrantConfig */
typedef struct rrcCfgGrantCfg_s
{
    RrcDmrsUlCfg_t cgDmrsCfg; /**< cg-DMRS-Configuration, always sent */
    /**
     * resourceAllocation, ConfiguredGrantConfig_resourceAllocation_...: 0 resourceAllocationType0,
     * 1 resourceAllocationType1, 2 dynamicSwitch
     */
    UINT8 resourceAlloction;
    /** powerControlLoopToUse, ConfiguredGrantConfig_powerControlLoopToUse_...: 0 n0, 1 n1 */
    UINT8 powerControlLoopToUse;
    UINT8 p0PuschAlpha;    /**< p0-PUSCH-Alpha, 0..29 */
    UINT8 nrofHarqProcess; /**< nrofHARQ-Processes, 1..16 */
    UINT8 repK;            /**< repK, ConfiguredGrantConfig_repK_...: 0 n1, 1 n2, 2 n4, 3 n8 */
    /**
     * periodicity, ConfiguredGrantConfig_periodicity_...: 0 sym2, 1 sym7, 2 sym1x14, 3 sym2x14, 4 sym4x14, 5 sym5x14,
     * 6 sym8x14, 7 sym10x14, 8 sym16x14, 9 sym20x14, 10 sym32x14, 11 sym40x14, 12 sym64x14, 13 sym80x14, 14 sym128x14,
     * 15 sym160x14, 16 sym256x14, 17 sym320x14, 18 sym512x14, 19 sym640x14, 20 sym1024x14, 21 sym1280x14,
     * 22 sym2560x14, 23 sym5120x14, 24 sym6, 25 sym1x12, 26 sym2x12, 27 sym4x12, 28 sym5x12, 29 sym8x12, 30 sym10x12,
     * 31 sym16x12, 32 sym20x12, 33 sym32x12, 34 sym40x12, 35 sym64x12, 36 sym80x12, 37 sym128x12, 38 sym160x12,
     * 39 sym256x12, 40 sym320x12, 41 sym512x12, 42 sym640x12, 43 sym1280x12, 44 sym2560x12
     */
    UINT8 periodcity;
    UINT16 bitMask; /**< bits RRC_CFGD_GRANT_CFG_..._PRESENCE */
    /** frequencyHopping, ConfiguredGrantConfig_frequencyHopping_...: 0 intraSlot, 1 interSlot */
    UINT8 freqHopping;
    UINT8 mcsTable; /**< mcs-Table, ConfiguredGrantConfig_mcs_Table_...: 0 qam256, 1 qam64LowSE */
    /** mcs-TableTransformPrecoder, ConfiguredGrantConfig_mcs_TableTransformPrecoder_...: 0 qam256, 1 qam64LowSE */
    UINT8 mcaTableTransformPrecoder;
    RrcCgUciOnPusch_t uciOnPusch; /**< uci-OnPUSCH */
    UINT8 rbgSize;                /**< rbg-Size, ConfiguredGrantConfig_rbg_Size_...: 0 config2 */
    /** transformPrecoder, ConfiguredGrantConfig_transformPrecoder_...: 0 enabled, 1 disabled */
    UINT8 transformPrecoder;
    UINT8 repKRv;         /**< repK-RV, ConfiguredGrantConfig_repK_RV_...: 0 s1-0231, 1 s2-0303, 2 s3-0000 */
    UINT8 cfgdGrantTimer; /**< configuredGrantTimer, 1..64, in periodicities */
    struct rrcCfgdUlGrant_s rrcCfgdUlGrant; /**< rrc-ConfiguredUplinkGrant */
} RrcCfgGrantCfg_t;

#ifdef __cplusplus
}
#endif

#endif
