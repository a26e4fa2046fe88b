#ifndef RRCPDSCH_H
#define RRCPDSCH_H

#include "rrcCodec/rrcCsiRs.h"
#include "rrcCodec/rrcServingCellCommon.h"
#include "vos_types.h"

/*
 * Data channel of a downlink bandwidth part (TS 38.331 PDSCH-Config): DMRS and PTRS, TCI states, time-domain
 * allocations, rate matching, PRB bundling, zero-power CSI-RS. Enumerated fields hold the integer of the ASN.1
 * enumeration. A list is sent when its count is not 0.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** maxNrofTCI-States */
#define RRC_MAX_NROF_TCI_STATES 128

/** maxNrofDL-Allocations */
#define RRC_MAX_NROF_DL_ALLOC 16

/** maxNrofRateMatchPatternsPerGroup */
#define RRC_RATE_MATCH_PATTERN_GROUP_MAX 8

/** maxNrofZP-CSI-RS-Resources */
#define RRC_MAX_NROF_ZP_CSI_RS_RESOURCE 32

/** maxNrofZP-CSI-RS-ResourceSets */
#define RRC_MAX_NROF_ZP_CSI_RS_RESOURCE_SETS 16

/** maxNrofZP-CSI-RS-ResourcesPerSet */
#define RRC_MAX_NROF_ZP_CSI_RS_RESOURCE_PER_SET 16

/** staticBundingType.bitMask: bundleSize is given */
#define RRC_PRB_BUNDLINGTYPE_STATIC_BUNDLE_SIZE_PRESENCE (1 << 0)

/** PDSCH-Config.prb-BundlingType.staticBundling */
typedef struct staticBundingType
{
    UINT8 bitMask; /**< bits RRC_PRB_BUNDLINGTYPE_STATIC_BUNDLE_SIZE_PRESENCE */
    /** bundleSize, PDSCH_Config_prb_BundlingType_staticBundling_bundleSize_...: 0 n4, 1 wideband */
    UINT8 bundleSize;
} staticBundingType;

/** dynamicBundingType.bitMask: bundleSizeSet1 is given */
#define RRC_PRB_BUNDLINGTYPE_DYNMIC_BUNDLE_SET1_PRESENCE (1 << 0)
/** dynamicBundingType.bitMask: bundleSIzeSet2 is given */
#define RRC_PRB_BUNDLINGTYPE_DYNMIC_BUNDLE_SET2_PRESENCE (1 << 1)

/** PDSCH-Config.prb-BundlingType.dynamicBundling */
typedef struct dynamicBundingType
{
    UINT8 bitMask; /**< bits RRC_PRB_BUNDLINGTYPE_DYNMIC_BUNDLE_..._PRESENCE */
    /**
     * bundleSizeSet1, PDSCH_Config_prb_BundlingType_dynamicBundling_bundleSizeSet1_...: 0 n4, 1 wideband,
     * 2 n2-wideband, 3 n4-wideband
     */
    UINT8 bundleSizeSet1;
    /** bundleSizeSet2, PDSCH_Config_prb_BundlingType_dynamicBundling_bundleSizeSet2_...: 0 n4, 1 wideband */
    UINT8 bundleSIzeSet2;
} dynamicBundingType;

/** RrcPtrsDlCfg_t.bitMask: freqDensity is given */
#define RRC_PTRS_DL_CFG_FREQ_DENSITY_PRESENCE (1 << 0)
/** RrcPtrsDlCfg_t.bitMask: timeDensity is given */
#define RRC_PTRS_DL_CFG_TIME_DENSITY_PRESENCE (1 << 1)
/** RrcPtrsDlCfg_t.bitMask: epreRatio is given */
#define RRC_PTRS_DL_CFG_EPRE_RATIO_PRESENCE (1 << 2)
/** RrcPtrsDlCfg_t.bitMask: resourceElementOffset is given */
#define RRC_PTRS_DL_CFG_RESOURCE_ELE_OFFSET_PRESENCE (1 << 3)

/** PTRS-DownlinkConfig */
typedef struct rrcPtrsDlCfg_s
{
    UINT8 bitMask;         /**< bits RRC_PTRS_DL_CFG_..._PRESENCE */
    UINT16 freqDensity[2]; /**< frequencyDensity, each 1..276, in PRBs */
    UINT8 timeDensity[3];  /**< timeDensity, each 0..29; MCS indices */
    UINT8 epreRatio;       /**< epre-Ratio, 0..3; an index of TS 38.214 4.1 */
    /** resourceElementOffset, PTRS_DownlinkConfig_resourceElementOffset_...: 0 offset01, 1 offset10, 2 offset11 */
    UINT8 resourceElementOffset;
} RrcPtrsDlCfg_t;

/** RrcDmrsDlCfg_t.bitMask: dmrsType is given */
#define RRC_DMRS_DL_CFG_TYPE_PRESENCE (1 << 0)
/** RrcDmrsDlCfg_t.bitMask: dmrsAdditionalPos is given */
#define RRC_DMRS_DL_CFG_ADDI_POSITION_PRESENCE (1 << 1)
/** RrcDmrsDlCfg_t.bitMask: maxLength is given */
#define RRC_DMRS_DL_CFG_MAX_LEN_PRESENCE (1 << 2)
/** RrcDmrsDlCfg_t.bitMask: scramblingID0 is given */
#define RRC_DMRS_DL_CFG_SCRAM_ID0_PRESENCE (1 << 3)
/** RrcDmrsDlCfg_t.bitMask: scramblingID1 is given */
#define RRC_DMRS_DL_CFG_SCRAM_ID1_PRESENCE (1 << 4)
/** RrcDmrsDlCfg_t.bitMask: phaseTrackingRS is given */
#define RRC_DMRS_DL_CFG_TRACKRS_PRESENCE (1 << 5)

/** DMRS-DownlinkConfig */
typedef struct rrcDmrsDlCfg_s
{
    UINT8 bitMask;  /**< bits RRC_DMRS_DL_CFG_..._PRESENCE */
    UINT8 dmrsType; /**< dmrs-Type, DMRS_DownlinkConfig_dmrs_Type_...: 0 type2 */
    /** dmrs-AdditionalPosition, DMRS_DownlinkConfig_dmrs_AdditionalPosition_...: 0 pos0, 1 pos1, 2 pos3 */
    UINT8 dmrsAdditionalPos;
    UINT8 maxLength;                /**< maxLength, DMRS_DownlinkConfig_maxLength_...: 0 len2 */
    UINT16 scramblingID0;           /**< scramblingID0, 0..65535 */
    UINT16 scramblingID1;           /**< scramblingID1, 0..65535 */
    RrcPtrsDlCfg_t phaseTrackingRS; /**< phaseTrackingRS */
} RrcDmrsDlCfg_t;

/**
 * RrcQclInfo_t.Presence: chooses referenceSignal.ssb, in refSignal.ssbIdx, else referenceSignal.csi-rs, in
 * refSignal.csiRsIdx
 */
#define RRC_QCI_INFO_SSB_IDX_PRESENCE (1 << 0)

/** RrcQclInfo_t.bitMask: cellIdx is given */
#define RRC_QCI_INFO_CELL_PRESENCE (1 << 0)
/** RrcQclInfo_t.bitMask: bwpId is given */
#define RRC_QCI_INFO_BWP_ID_PRESENCE (1 << 1)

/** QCL-Info */
typedef struct rrcQclInfo_s
{
    UINT8 qclType;  /**< qcl-Type, QCL_Info_qcl_Type_...: 0 typeA, 1 typeB, 2 typeC, 3 typeD */
    UINT8 Presence; /**< bits RRC_QCI_INFO_SSB_IDX_PRESENCE */
    union
    {
        UINT8 ssbIdx;   /**< ssb, 0..63 */
        UINT8 csiRsIdx; /**< csi-rs, 0..191 */
    } refSignal;        /**< referenceSignal */
    UINT8 bitMask;      /**< bits RRC_QCI_INFO_..._PRESENCE */
    UINT8 cellIdx;      /**< cell, 0..31 */
    UINT8 bwpId;        /**< bwp-Id, 0..4 */
} RrcQclInfo_t;

/** RrcTciState_t.bitMask: qclType2 is given */
#define RRC_TCI_STATE_QCL_TYPE2_PRESENCE (1 << 0)

/** TCI-State */
typedef struct rrcTciState_s
{
    UINT8 tciStateId;      /**< tci-StateId, 0..127 */
    RrcQclInfo_t qclType1; /**< qcl-Type1 */
    UINT8 bitMask;         /**< bits RRC_TCI_STATE_QCL_TYPE2_PRESENCE */
    RrcQclInfo_t qclType2; /**< qcl-Type2 */
} RrcTciState_t;

/** RrcPdschTimeDomainResourceAlloc_t.bitMask: k0 is given */
#define RRC_PDSCH_TIMING_KO_PRESENCE (1 << 0)

/** PDSCH-TimeDomainResourceAllocation */
typedef struct rrcPdschTimeDomainResourceAlloc_s
{
    /** mappingType, PDSCH_TimeDomainResourceAllocation_mappingType_...: 0 typeA, 1 typeB */
    UINT8 mappingType;
    UINT8 startSymAdnLen; /**< startSymbolAndLength, 0..127; both in one number, the SLIV of TS 38.214 */
    UINT8 bitMask;        /**< bits RRC_PDSCH_TIMING_KO_PRESENCE */
    UINT8 k0;             /**< k0, 0..32, in slots */
} RrcPdschTimeDomainResourceAlloc_t;

/** PDSCH-TimeDomainResourceAllocationList */
typedef struct rrcPdschTimeDomainResourceAllocList_s
{
    UINT8 num;                                                      /**< entries used of alloc, 1..16 */
    RrcPdschTimeDomainResourceAlloc_t alloc[RRC_MAX_NROF_DL_ALLOC]; /**< itself; the allocations */
} RrcPdschTimeDomainResourceAllocList_t;

/** RrcRateMatchPatternGroup_t.presense: chooses [].cellLevel, in rateMatchPatternGroup.cellLevel; of every pattern */
#define RRC_RATE_MATCH_PATTERN_GROUP_CELL_LEVEL_PRESENCE (1 << 0)
/** RrcRateMatchPatternGroup_t.presense: chooses [].bwpLevel, in rateMatchPatternGroup.bwpLevel; of every pattern */
#define RRC_RATE_MATCH_PATTERN_GROUP_BWP_LEVEL_PRESENCE (1 << 1)

/** RateMatchPatternGroup[]; one pattern of a group */
union rateMatchPatternGroup_u
{
    UINT8 cellLevel; /**< cellLevel, 0..3 */
    UINT8 bwpLevel;  /**< bwpLevel, 0..3 */
};

/** RateMatchPatternGroup */
typedef struct rrcRateMatchPatternGroup_s
{
    UINT8 numRateMatchPattern; /**< entries used of rateMatchPatternGroup, 1..8 */
    UINT8 presense;            /**< bits RRC_RATE_MATCH_PATTERN_GROUP_..._LEVEL_PRESENCE */
    /** itself; the patterns, all of one level */
    union rateMatchPatternGroup_u rateMatchPatternGroup[RRC_RATE_MATCH_PATTERN_GROUP_MAX];
} RrcRateMatchPatternGroup_t;

/** RrcZpCsiRsResource_t.bitMask: periodictityAndOffset is given */
#define RRC_ZP_CSI_RS_RESOURCE_PERIODICITY_OFFSET_PRESENCE (1 << 0)

/** ZP-CSI-RS-Resource */
typedef struct rrcZpCsiRsResource_s
{
    UINT8 zpCsiRsResourId;                     /**< zp-CSI-RS-ResourceId, 0..31 */
    RrcCsiRsResourceMapping_t resourceMapping; /**< resourceMapping */
    UINT8 bitMask;                             /**< bits RRC_ZP_CSI_RS_RESOURCE_PERIODICITY_OFFSET_PRESENCE */
    RrcCsiResourcePeriodictyAndOffset_t periodictityAndOffset; /**< periodicityAndOffset */
} RrcZpCsiRsResource_t;

/** ZP-CSI-RS-ResourceSet */
typedef struct rrcZpCsiRsResourceSet_s
{
    UINT8 zpCsiRsResourceSetId;                                     /**< zp-CSI-RS-ResourceSetId, 0..15 */
    UINT8 numzpCsiRsResourId;                                       /**< entries used of zpCsiRsResourId, 1..16 */
    UINT8 zpCsiRsResourId[RRC_MAX_NROF_ZP_CSI_RS_RESOURCE_PER_SET]; /**< zp-CSI-RS-ResourceIdList, each 0..31 */
} RrcZpCsiRsResourceSet_t;

/** RrcPdschCfg_t.prbBitmask: chooses prb-BundlingType.staticBundling, in staticbundingtype */
#define RRC_PDSCH_CFG_PRB_BUNDLING_STATIC (1 << 0)
/** RrcPdschCfg_t.prbBitmask: chooses prb-BundlingType.dynamicBundling, in dynamicbundingtype */
#define RRC_PDSCH_CFG_PRB_BUNDLING_DYNAMIC (1 << 1)

/** RrcPdschCfg_t.bitMask: dataScramblingIDPdsch is given */
#define RRC_PDSCH_CFG_DATA_SCRAMBLING_ID_PRESENCE (1 << 0)
/** RrcPdschCfg_t.bitMask: dmrsDlPdschMappingTypeA is given */
#define RRC_PDSCH_CFG_MAPPING_TYPEA_PRESENCE (1 << 1)
/** RrcPdschCfg_t.bitMask: dmrsDlPdschMappingTypeB is given */
#define RRC_PDSCH_CFG_MAPPING_TYPEB_PRESENCE (1 << 2)
/** RrcPdschCfg_t.bitMask: vrbToPrbInterleaver is given */
#define RRC_PDSCH_CFG_INTERLEAVE_PRESENCE (1 << 3)
/** RrcPdschCfg_t.bitMask: pdschTimeDomainAllocList is given */
#define RRC_PDSCH_CFG_TIMING_ALLOC_PRESENCE (1 << 4)
/** RrcPdschCfg_t.bitMask: pdschAggregationFactor is given */
#define RRC_PDSCH_CFG_AGGR_FACTOR_PRESENCE (1 << 5)
/** RrcPdschCfg_t.bitMask: rateMatchPatternGroup1 is given */
#define RRC_PDSCH_CFG_RATE_PATTERN_GROUP1_PRESENCE (1 << 6)
/** RrcPdschCfg_t.bitMask: rateMatchPatternGroup2 is given */
#define RRC_PDSCH_CFG_RATE_PATTERN_GROUP2_PRESENCE (1 << 7)
/** RrcPdschCfg_t.bitMask: mcsTable is given */
#define RRC_PDSCH_CFG_MCS_TABLE_PRESENCE (1 << 8)
/** RrcPdschCfg_t.bitMask: maxNrofCodeWordsScheduleByDCI is given */
#define RRC_PDSCH_CFG_CODEWORDS_BY_DCI_PRESENCE (1 << 9)
/** RrcPdschCfg_t.bitMask: pZpCsiRsResourceSet is given */
#define RRC_PDSCH_CFG_ZP_CSI_RS_RESOURCE_SET_PRESENCE (1 << 10)

/** PDSCH-Config */
typedef struct rrcPdschCfg_s
{
    /**
     * resourceAllocation, always sent, PDSCH_Config_resourceAllocation_...: 0 resourceAllocationType0,
     * 1 resourceAllocationType1, 2 dynamicSwitch
     */
    UINT8 resourceAllocation;
    UINT8 rbgSize;                       /**< rbg-Size, always sent, PDSCH_Config_rbg_Size_...: 0 config1, 1 config2 */
    UINT8 prbBitmask;                    /**< bits RRC_PDSCH_CFG_PRB_BUNDLING_... */
    staticBundingType staticbundingtype; /**< prb-BundlingType.staticBundling */
    dynamicBundingType dynamicbundingtype;                  /**< prb-BundlingType.dynamicBundling */
    UINT16 bitMask;                                         /**< bits RRC_PDSCH_CFG_..._PRESENCE */
    UINT16 dataScramblingIDPdsch;                           /**< dataScramblingIdentityPDSCH, 0..1023 */
    RrcDmrsDlCfg_t dmrsDlPdschMappingTypeA;                 /**< dmrs-DownlinkForPDSCH-MappingTypeA */
    RrcDmrsDlCfg_t dmrsDlPdschMappingTypeB;                 /**< dmrs-DownlinkForPDSCH-MappingTypeB */
    UINT8 numTciStatesAddMod;                               /**< entries used of tciStatesAddMod, 0..128 */
    RrcTciState_t tciStatesAddMod[RRC_MAX_NROF_TCI_STATES]; /**< tci-StatesToAddModList */
    UINT8 numTciStatesRel;                                  /**< entries used of tciStateId, 0..128 */
    UINT8 tciStateId[RRC_MAX_NROF_TCI_STATES];              /**< tci-StatesToReleaseList, each 0..127 */
    UINT8 vrbToPrbInterleaver; /**< vrb-ToPRB-Interleaver, PDSCH_Config_vrb_ToPRB_Interleaver_...: 0 n2, 1 n4 */
    RrcPdschTimeDomainResourceAllocList_t pdschTimeDomainAllocList; /**< pdsch-TimeDomainAllocationList */
    /** pdsch-AggregationFactor, PDSCH_Config_pdsch_AggregationFactor_...: 0 n2, 1 n4, 2 n8 */
    UINT8 pdschAggregationFactor;
    UINT8 numRateMatchPatternAddMod; /**< entries used of rateMatchPattern, 0..4 */
    RrcRateMatchPattern_t rateMatchPattern[RRC_MAX_NROF_RATE_MATCH_PATTERNS]; /**< rateMatchPatternToAddModList */
    UINT8 numRateMatchPatternRel;                               /**< entries used of rateMatchPatternId, 0..4 */
    UINT8 rateMatchPatternId[RRC_MAX_NROF_RATE_MATCH_PATTERNS]; /**< rateMatchPatternToReleaseList, each 0..3 */
    RrcRateMatchPatternGroup_t rateMatchPatternGroup1;          /**< rateMatchPatternGroup1 */
    RrcRateMatchPatternGroup_t rateMatchPatternGroup2;          /**< rateMatchPatternGroup2 */
    UINT8 mcsTable; /**< mcs-Table, PDSCH_Config_mcs_Table_...: 0 qam256, 1 qam64LowSE */
    /** maxNrofCodeWordsScheduledByDCI, PDSCH_Config_maxNrofCodeWordsScheduledByDCI_...: 0 n1, 1 n2 */
    UINT8 maxNrofCodeWordsScheduleByDCI;
    UINT8 numZpCsiRsResouceAddMod; /**< entries used of zpCsiRsResource, 0..32 */
    RrcZpCsiRsResource_t zpCsiRsResource[RRC_MAX_NROF_ZP_CSI_RS_RESOURCE]; /**< zp-CSI-RS-ResourceToAddModList */
    UINT8 numZpCsiRsResouceRel;                               /**< entries used of zpCsiRsResourceId, 0..32 */
    UINT8 zpCsiRsResourceId[RRC_MAX_NROF_ZP_CSI_RS_RESOURCE]; /**< zp-CSI-RS-ResourceToReleaseList, each 0..31 */
    UINT8 numZpCsiRsResourceSetAddMod;                        /**< entries used of aperiodicZpCsiRsResourceSet, 0..16 */
    /** aperiodic-ZP-CSI-RS-ResourceSetsToAddModList */
    RrcZpCsiRsResourceSet_t aperiodicZpCsiRsResourceSet[RRC_MAX_NROF_ZP_CSI_RS_RESOURCE_SETS];
    UINT8 numZpCsiRsResourceSetRel; /**< entries used of zpCsiRsResourceSetId, 0..16 */
    UINT8
    zpCsiRsResourceSetId[RRC_MAX_NROF_ZP_CSI_RS_RESOURCE_SETS]; /**< aperiodic-ZP-CSI-RS-ResourceSetsToReleaseList,
                                                                   each 0..15 */
    RrcZpCsiRsResourceSet_t pZpCsiRsResourceSet;                /**< p-ZP-CSI-RS-ResourceSet */
} RrcPdschCfg_t;

#ifdef __cplusplus
}
#endif

#endif
