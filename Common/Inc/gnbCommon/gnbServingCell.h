#ifndef GNBSERVINGCELL_H
#define GNBSERVINGCELL_H

#include "vos_types.h"

/*
 * What every UE of a serving cell sees, as the distributed unit holds it: carriers, the common part of the initial
 * bandwidth parts and the TDD pattern. The duCompose functions (duCompose.h) read these records.
 *
 * Enumerated fields hold the integer of the ASN.1 enumeration; "tag" fields the number of the alternative of the ASN.1
 * choice, the first one 1. A list is sent when its count is not 0. Values out of range are refused by the encoder.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** maxNrofDL-Allocations, maxNrofUL-Allocations */
#define NR_MAX_NUM_TIME_DOMAIN_ALLOC 16
/** Size of PDCCH-ConfigCommon.commonSearchSpaceList */
#define NR_MAX_NUM_COMMON_SEARCH_SPACE 4
/** maxNrofTCI-StatesPDCCH */
#define NR_MAX_NUM_TCI_STATES_PDCCH 64
/** maxPO-perPF */
#define NR_MAX_NUM_PO_PER_PF 4

/** SCS-SpecificCarrier, without txDirectCurrentLocation */
typedef struct specificCarrier_s
{
    UINT16 offsetToCarrier;  /**< offsetToCarrier in PRBs from point A, 0..2199 */
    UINT8 subcarrierSpacing; /**< subcarrierSpacing, enumeration kHz15.. (0..7) */
    UINT16 carrierBandwidth; /**< carrierBandwidth in PRBs, 1..275 */
} SpecificCarrier_t;

/** BWP. Whether the cyclic prefix is extended is told by the mask of the record around it. */
typedef struct nrBWP_s
{
    UINT16 locationAndBandwidth; /**< locationAndBandwidth, 0..37949 */
    UINT8 subcarrierSpacing;     /**< subcarrierSpacing, enumeration kHz15.. (0..7) */
} NrBWP_t;

/** NrTimeDomainAlloc_t.bitmask: slotOffset is given */
#define NR_TIME_DOMAIN_ALLOC_SLOT_OFFSET_PRESENCE (1 << 0)

/** PDSCH-TimeDomainResourceAllocation, PUSCH-TimeDomainResourceAllocation */
typedef struct nrTimeDomainAlloc_s
{
    UINT8 bitmask;              /**< NR_TIME_DOMAIN_ALLOC_SLOT_OFFSET_PRESENCE */
    UINT8 slotOffset;           /**< k0 of the PDSCH, k2 of the PUSCH, 0..32 */
    UINT8 mappingType;          /**< mappingType, enumeration typeA, typeB */
    UINT8 startSymbolAndLength; /**< startSymbolAndLength, 0..127 */
} NrTimeDomainAlloc_t;

/** NrControlResourceSet_t.bitmask: shiftIndex is given (interleaved mapping only) */
#define NR_CORESET_SHIFT_INDEX_PRESENCE (1 << 0)
/** NrControlResourceSet_t.bitmask: tci-PresentInDCI, enabled */
#define NR_CORESET_TCI_PRESENT_IN_DCI (1 << 1)
/** NrControlResourceSet_t.bitmask: pdcchDmrsScramblingId is given */
#define NR_CORESET_DMRS_SCRAMBLING_ID_PRESENCE (1 << 2)

/** ControlResourceSet */
typedef struct nrControlResourceSet_s
{
    UINT8 controlResourceSetId; /**< controlResourceSetId, 0..11 */
    UINT64 freqDomainResources; /**< frequencyDomainResources, the low 45 bits, the first one in bit 44 */
    UINT8 duration;             /**< duration in symbols, 1..3 */
    UINT8 cceRegMappingType;    /**< cce-REG-MappingType, tag: 1 interleaved, 2 nonInterleaved */
    UINT8 regBundleSize;        /**< interleaved.reg-BundleSize, enumeration n2, n3, n6 */
    UINT8 interleaverSize;      /**< interleaved.interleaverSize, enumeration n2, n3, n6 */
    UINT16 shiftIndex;          /**< interleaved.shiftIndex, 0..274, guarded by NR_CORESET_SHIFT_INDEX_PRESENCE */
    UINT8 precoderGranularity;  /**< precoderGranularity, enumeration sameAsREG-bundle, allContiguousRBs */
    UINT8 numTciStatesToAdd;    /**< entries used of tciStatesToAdd, 0..64 */
    UINT8 tciStatesToAdd[NR_MAX_NUM_TCI_STATES_PDCCH];     /**< tci-StatesPDCCH-ToAddList, each 0..127 */
    UINT8 numTciStatesToRelease;                           /**< entries used of tciStatesToRelease, 0..64 */
    UINT8 tciStatesToRelease[NR_MAX_NUM_TCI_STATES_PDCCH]; /**< tci-StatesPDCCH-ToReleaseList, each 0..127 */
    UINT8 bitmask;                                         /**< NR_CORESET_... */
    UINT16 pdcchDmrsScramblingId; /**< pdcch-DMRS-ScramblingID, guarded by NR_CORESET_DMRS_SCRAMBLING_ID_PRESENCE */
} NrControlResourceSet_t;

/** SearchSpace.nrofCandidates; enumerations n0, n1, n2, n3, n4, n5, n6, n8 */
typedef struct nrNrofCandidates_s
{
    UINT8 aggregationLevel1;  /**< aggregationLevel1 */
    UINT8 aggregationLevel2;  /**< aggregationLevel2 */
    UINT8 aggregationLevel4;  /**< aggregationLevel4 */
    UINT8 aggregationLevel8;  /**< aggregationLevel8 */
    UINT8 aggregationLevel16; /**< aggregationLevel16 */
} NrNrofCandidates_t;

/** NrNrofCandidatesSfi_t.bitmask: the level is given */
#define NR_SFI_AGGREGATION_LEVEL1_PRESENCE (1 << 0)
#define NR_SFI_AGGREGATION_LEVEL2_PRESENCE (1 << 1)
#define NR_SFI_AGGREGATION_LEVEL4_PRESENCE (1 << 2)
#define NR_SFI_AGGREGATION_LEVEL8_PRESENCE (1 << 3)
#define NR_SFI_AGGREGATION_LEVEL16_PRESENCE (1 << 4)

/** SearchSpace.searchSpaceType.common.dci-Format2-0.nrofCandidates-SFI; enumerations n1, n2 */
typedef struct nrNrofCandidatesSfi_s
{
    UINT8 bitmask;            /**< NR_SFI_AGGREGATION_LEVEL..._PRESENCE */
    UINT8 aggregationLevel1;  /**< aggregationLevel1 */
    UINT8 aggregationLevel2;  /**< aggregationLevel2 */
    UINT8 aggregationLevel4;  /**< aggregationLevel4 */
    UINT8 aggregationLevel8;  /**< aggregationLevel8 */
    UINT8 aggregationLevel16; /**< aggregationLevel16 */
} NrNrofCandidatesSfi_t;

/** NrSearchSpaceCommon_t.bitmask: dci-Format0-0-AndFormat1-0, which has no content */
#define NR_SEARCH_SPACE_DCI_FORMAT0_0_AND_1_0 (1 << 0)
/** NrSearchSpaceCommon_t.bitmask: dci-Format2-0 with nrofCandidatesSfi */
#define NR_SEARCH_SPACE_DCI_FORMAT2_0 (1 << 1)
/** NrSearchSpaceCommon_t.bitmask: dci-Format2-1, which has no content */
#define NR_SEARCH_SPACE_DCI_FORMAT2_1 (1 << 2)
/** NrSearchSpaceCommon_t.bitmask: dci-Format2-2, which has no content */
#define NR_SEARCH_SPACE_DCI_FORMAT2_2 (1 << 3)
/** NrSearchSpaceCommon_t.bitmask: dci-Format2-3 with dciFormat23Dummy2 */
#define NR_SEARCH_SPACE_DCI_FORMAT2_3 (1 << 4)
/** NrSearchSpaceCommon_t.bitmask: dciFormat23Dummy1 is given */
#define NR_SEARCH_SPACE_DCI_FORMAT2_3_DUMMY1_PRESENCE (1 << 5)

/** SearchSpace.searchSpaceType.common */
typedef struct nrSearchSpaceCommon_s
{
    UINT8 bitmask;                           /**< NR_SEARCH_SPACE_DCI_FORMAT... */
    NrNrofCandidatesSfi_t nrofCandidatesSfi; /**< dci-Format2-0.nrofCandidates-SFI */
    UINT8 dciFormat23Dummy1;                 /**< dci-Format2-3.dummy1, enumeration sl1.. (0..7) */
    UINT8 dciFormat23Dummy2;                 /**< dci-Format2-3.dummy2, enumeration n1, n2 */
} NrSearchSpaceCommon_t;

/** NrSearchSpace_t.bitmask: controlResourceSetId is given */
#define NR_SEARCH_SPACE_CORESET_ID_PRESENCE (1 << 0)
/** NrSearchSpace_t.bitmask: monitoringSlotPeriodicity and monitoringSlotOffset are given */
#define NR_SEARCH_SPACE_MONITORING_SLOT_PRESENCE (1 << 1)
/** NrSearchSpace_t.bitmask: duration is given */
#define NR_SEARCH_SPACE_DURATION_PRESENCE (1 << 2)
/** NrSearchSpace_t.bitmask: monitoringSymbolsWithinSlot is given */
#define NR_SEARCH_SPACE_MONITORING_SYMBOLS_PRESENCE (1 << 3)
/** NrSearchSpace_t.bitmask: nrofCandidates is given */
#define NR_SEARCH_SPACE_NROF_CANDIDATES_PRESENCE (1 << 4)
/** NrSearchSpace_t.bitmask: searchSpaceType is given */
#define NR_SEARCH_SPACE_TYPE_PRESENCE (1 << 5)

/** SearchSpace */
typedef struct nrSearchSpace_s
{
    UINT8 bitmask;                      /**< NR_SEARCH_SPACE_..._PRESENCE */
    UINT8 searchSpaceId;                /**< searchSpaceId, 0..39 */
    UINT8 controlResourceSetId;         /**< controlResourceSetId, 0..11 */
    UINT8 monitoringSlotPeriodicity;    /**< monitoringSlotPeriodicityAndOffset, tag: 1 sl1 .. 15 sl2560 */
    UINT16 monitoringSlotOffset;        /**< its value, from 0 to below the period */
    UINT16 duration;                    /**< duration in slots, 2..2559 */
    UINT16 monitoringSymbolsWithinSlot; /**< monitoringSymbolsWithinSlot, the low 14 bits, symbol 0 in bit 13 */
    NrNrofCandidates_t nrofCandidates;  /**< nrofCandidates */
    UINT8 searchSpaceType;              /**< searchSpaceType, tag: 1 common, 2 ue-Specific */
    NrSearchSpaceCommon_t common;       /**< common */
    UINT8 dciFormats;                   /**< ue-Specific.dci-Formats, enumeration */
} NrSearchSpace_t;

/** PDCCH-ConfigCommon.firstPDCCH-MonitoringOccasionOfPO */
typedef struct nrFirstPdcchMonitoringOccasion_s
{
    UINT8 zone;                            /**< tag: 1 sCS15KHZoneT .. 8 sCS120KHZoneSixteenthT */
    UINT8 numOccasions;                    /**< entries used of occasion, 1..4 */
    UINT16 occasion[NR_MAX_NUM_PO_PER_PF]; /**< symbols, 0..139 with zone 1 .. 0..17919 with zone 8 */
} NrFirstPdcchMonitoringOccasion_t;

/** PdcchCfgCommon_t.bitmask: the member is given */
#define NR_PDCCH_COMMON_CORESET_ZERO_PRESENCE (1 << 0)
#define NR_PDCCH_COMMON_CORESET_PRESENCE (1 << 1)
#define NR_PDCCH_COMMON_SEARCH_SPACE_ZERO_PRESENCE (1 << 2)
#define NR_PDCCH_COMMON_SEARCH_SPACE_SIB1_PRESENCE (1 << 3)
#define NR_PDCCH_COMMON_SEARCH_SPACE_OTHER_SI_PRESENCE (1 << 4)
#define NR_PDCCH_COMMON_PAGING_SEARCH_SPACE_PRESENCE (1 << 5)
#define NR_PDCCH_COMMON_RA_SEARCH_SPACE_PRESENCE (1 << 6)
#define NR_PDCCH_COMMON_FIRST_MONITORING_OCCASION_PRESENCE (1 << 7)

/** PDCCH-ConfigCommon */
typedef struct pdcchCfgCommon_s
{
    UINT8 bitmask;                                                     /**< NR_PDCCH_COMMON_..._PRESENCE */
    UINT8 controlResourceSetZero;                                      /**< controlResourceSetZero, 0..15 */
    NrControlResourceSet_t commonControlResourceSet;                   /**< commonControlResourceSet */
    UINT8 searchSpaceZero;                                             /**< searchSpaceZero, 0..15 */
    UINT8 numCommonSearchSpaces;                                       /**< entries used of commonSearchSpace, 0..4 */
    NrSearchSpace_t commonSearchSpace[NR_MAX_NUM_COMMON_SEARCH_SPACE]; /**< commonSearchSpaceList */
    UINT8 searchSpaceSib1;                                             /**< searchSpaceSIB1, 0..39 */
    UINT8 searchSpaceOtherSi;                                          /**< searchSpaceOtherSystemInformation, 0..39 */
    UINT8 pagingSearchSpace;                                           /**< pagingSearchSpace, 0..39 */
    UINT8 raSearchSpace;                                               /**< ra-SearchSpace, 0..39 */
    NrFirstPdcchMonitoringOccasion_t firstPdcchMonitoringOccasion;     /**< firstPDCCH-MonitoringOccasionOfPO */
} PdcchCfgCommon_t;

/** PDSCH-ConfigCommon */
typedef struct pdschCfgCommon_s
{
    UINT8 numTimeDomainAllocs;                                         /**< entries used of timeDomainAlloc, 0..16 */
    NrTimeDomainAlloc_t timeDomainAlloc[NR_MAX_NUM_TIME_DOMAIN_ALLOC]; /**< pdsch-TimeDomainAllocationList */
} PdschCfgCommon_t;

/** NrBwpDownLinkCommon_t.bitmask: pdcchCfgCommon is given */
#define NR_BWP_DL_PDCCH_CFG_COMMON_PRESENCE (1 << 0)
/** NrBwpDownLinkCommon_t.bitmask: pdschCfgCommon is given */
#define NR_BWP_DL_PDSCH_CFG_COMMON_PRESENCE (1 << 1)
/** NrBwpDownLinkCommon_t.bitmask: genericParameters.cyclicPrefix, extended */
#define NR_BWP_DL_EXTENDED_CYCLIC_PREFIX (1 << 2)

/** BWP-DownlinkCommon */
typedef struct nrBwpDownLinkCommon_s
{
    UINT16 bitmask;                  /**< NR_BWP_DL_... */
    NrBWP_t bwp;                     /**< genericParameters */
    PdcchCfgCommon_t pdcchCfgCommon; /**< pdcch-ConfigCommon, sent as setup */
    PdschCfgCommon_t pdschCfgCommon; /**< pdsch-ConfigCommon, sent as setup */
} NrBwpDownLinkCommon_t;

/** RACH-ConfigGeneric */
typedef struct nrRachCfgGeneric_s
{
    UINT8 prachConfigurationIndex;     /**< prach-ConfigurationIndex, 0..255 */
    UINT8 msg1Fdm;                     /**< msg1-FDM, enumeration one.. (0..3) */
    UINT16 msg1FrequencyStart;         /**< msg1-FrequencyStart in PRBs, 0..274 */
    UINT8 zeroCorrelationZoneConfig;   /**< zeroCorrelationZoneConfig, 0..15 */
    INT16 preambleReceivedTargetPower; /**< preambleReceivedTargetPower in dBm, -202..-60 */
    UINT8 preambleTransMax;            /**< preambleTransMax, enumeration n3.. (0..10) */
    UINT8 powerRampingStep;            /**< powerRampingStep, enumeration dB0.. (0..3) */
    UINT8 raResponseWindow;            /**< ra-ResponseWindow, enumeration sl1.. (0..7) */
} NrRachCfgGeneric_t;

/** NrRachCfgCommon_t.bitmask: totalNumberOfRaPreambles is given */
#define NR_RACH_COMMON_TOTAL_PREAMBLES_PRESENCE (1 << 0)
/** NrRachCfgCommon_t.bitmask: ssbPerRachOccasion and cbPreamblesPerSsb are given */
#define NR_RACH_COMMON_SSB_PER_RACH_OCCASION_PRESENCE (1 << 1)
/** NrRachCfgCommon_t.bitmask: the three fields of groupBconfigured are given */
#define NR_RACH_COMMON_GROUP_B_PRESENCE (1 << 2)
/** NrRachCfgCommon_t.bitmask: rsrpThresholdSsb is given */
#define NR_RACH_COMMON_RSRP_THRESHOLD_SSB_PRESENCE (1 << 3)
/** NrRachCfgCommon_t.bitmask: rsrpThresholdSsbSul is given */
#define NR_RACH_COMMON_RSRP_THRESHOLD_SSB_SUL_PRESENCE (1 << 4)
/** NrRachCfgCommon_t.bitmask: msg1SubcarrierSpacing is given */
#define NR_RACH_COMMON_MSG1_SUBCARRIER_SPACING_PRESENCE (1 << 5)
/** NrRachCfgCommon_t.bitmask: msg3-transformPrecoder, enabled */
#define NR_RACH_COMMON_MSG3_TRANSFORM_PRECODER (1 << 6)

/** RACH-ConfigCommon */
typedef struct nrRachCfgCommon_s
{
    UINT8 bitmask;                     /**< NR_RACH_COMMON_... */
    NrRachCfgGeneric_t rachCfgGeneric; /**< rach-ConfigGeneric */
    UINT8 totalNumberOfRaPreambles;    /**< totalNumberOfRA-Preambles, 1..63 */
    UINT8 ssbPerRachOccasion;          /**< ssb-perRACH-OccasionAndCB-PreamblesPerSSB, tag: 1 oneEighth .. 8 sixteen */
    UINT8 cbPreamblesPerSsb;           /**< its value: tags 1..4 enumeration n4.. (0..15), 5 enumeration n4.. (0..7),
                                            6 1..16, 7 1..8, 8 1..4 */
    UINT8 raMsg3SizeGroupA;         /**< groupBconfigured.ra-Msg3SizeGroupA, enumeration b56.. (0..9, spare up to 15) */
    UINT8 messagePowerOffsetGroupB; /**< groupBconfigured.messagePowerOffsetGroupB, enumeration (0..7) */
    UINT8 numberOfRaPreamblesGroupA;   /**< groupBconfigured.numberOfRA-PreamblesGroupA, 1..64 */
    UINT8 raContentionResolutionTimer; /**< ra-ContentionResolutionTimer, enumeration sf8.. (0..7) */
    UINT8 rsrpThresholdSsb;            /**< rsrp-ThresholdSSB, 0..127 */
    UINT8 rsrpThresholdSsbSul;         /**< rsrp-ThresholdSSB-SUL, 0..127 */
    UINT8 prachRootSequence;           /**< prach-RootSequenceIndex, tag: 1 l839, 2 l139 */
    UINT16 prachRootSequenceIndex;     /**< its value: 0..837 or 0..137 */
    UINT8 msg1SubcarrierSpacing;       /**< msg1-SubcarrierSpacing, enumeration kHz15.. (0..7) */
    UINT8 restrictedSetConfig;         /**< restrictedSetConfig, enumeration (0..2) */
} NrRachCfgCommon_t;

/** NrPuschCfgCommon_t.bitmask: groupHoppingEnabledTransformPrecoding, enabled */
#define NR_PUSCH_COMMON_GROUP_HOPPING (1 << 0)
/** NrPuschCfgCommon_t.bitmask: msg3DeltaPreamble is given */
#define NR_PUSCH_COMMON_MSG3_DELTA_PREAMBLE_PRESENCE (1 << 1)
/** NrPuschCfgCommon_t.bitmask: p0NominalWithGrant is given */
#define NR_PUSCH_COMMON_P0_NOMINAL_WITH_GRANT_PRESENCE (1 << 2)

/** PUSCH-ConfigCommon */
typedef struct nrPuschCfgCommon_s
{
    UINT8 bitmask;                                                     /**< NR_PUSCH_COMMON_... */
    UINT8 numTimeDomainAllocs;                                         /**< entries used of timeDomainAlloc, 0..16 */
    NrTimeDomainAlloc_t timeDomainAlloc[NR_MAX_NUM_TIME_DOMAIN_ALLOC]; /**< pusch-TimeDomainAllocationList */
    INT8 msg3DeltaPreamble;                                            /**< msg3-DeltaPreamble in 2 dB, -1..6 */
    INT16 p0NominalWithGrant; /**< p0-NominalWithGrant in dBm, -202..24, even */
} NrPuschCfgCommon_t;

/** NrPucchCfgCommon_t.bitmask: pucchResourceCommon is given */
#define NR_PUCCH_COMMON_RESOURCE_PRESENCE (1 << 0)
/** NrPucchCfgCommon_t.bitmask: hoppingId is given */
#define NR_PUCCH_COMMON_HOPPING_ID_PRESENCE (1 << 1)
/** NrPucchCfgCommon_t.bitmask: p0Nominal is given */
#define NR_PUCCH_COMMON_P0_NOMINAL_PRESENCE (1 << 2)

/** PUCCH-ConfigCommon */
typedef struct nrPucchCfgCommon_s
{
    UINT8 bitmask;             /**< NR_PUCCH_COMMON_..._PRESENCE */
    UINT8 pucchResourceCommon; /**< pucch-ResourceCommon, 0..15 */
    UINT8 pucchGroupHopping;   /**< pucch-GroupHopping, enumeration neither, enable, disable */
    UINT16 hoppingId;          /**< hoppingId, 0..1023 */
    INT16 p0Nominal;           /**< p0-nominal in dBm, -202..24, even */
} NrPucchCfgCommon_t;

/** InitialUlBwp_t.bitmask: rachCfgCommon is given */
#define NR_BWP_UL_RACH_CFG_COMMON_PRESENCE (1 << 0)
/** InitialUlBwp_t.bitmask: puschCfgCommon is given */
#define NR_BWP_UL_PUSCH_CFG_COMMON_PRESENCE (1 << 1)
/** InitialUlBwp_t.bitmask: pucchCfgCommon is given */
#define NR_BWP_UL_PUCCH_CFG_COMMON_PRESENCE (1 << 2)
/** InitialUlBwp_t.bitmask: genericParameters.cyclicPrefix, extended */
#define NR_BWP_UL_EXTENDED_CYCLIC_PREFIX (1 << 3)

/** BWP-UplinkCommon */
typedef struct initialUlBwp_s
{
    UINT16 bitmask;                    /**< NR_BWP_UL_... */
    NrBWP_t bwp;                       /**< genericParameters */
    NrRachCfgCommon_t rachCfgCommon;   /**< rach-ConfigCommon, sent as setup */
    NrPuschCfgCommon_t puschCfgCommon; /**< pusch-ConfigCommon, sent as setup */
    NrPucchCfgCommon_t pucchCfgCommon; /**< pucch-ConfigCommon, sent as setup */
} InitialUlBwp_t;

/** TddUlDlPattern_t.bitmask: transmissionPeriodicityV1530 is given */
#define NR_TDD_PATTERN_PERIODICITY_V1530_PRESENCE (1 << 0)

/** TDD-UL-DL-Pattern */
typedef struct tddUlDlPattern_s
{
    UINT8 bitmask;                      /**< NR_TDD_PATTERN_PERIODICITY_V1530_PRESENCE */
    UINT8 transmissionPeriodicity;      /**< dl-UL-TransmissionPeriodicity, enumeration ms0p5.. (0..7) */
    UINT16 nrofDownlinkSlots;           /**< nrofDownlinkSlots, 0..320 */
    UINT8 nrofDownlinkSymbols;          /**< nrofDownlinkSymbols, 0..13 */
    UINT16 nrofUplinkSlots;             /**< nrofUplinkSlots, 0..320 */
    UINT8 nrofUplinkSymbols;            /**< nrofUplinkSymbols, 0..13 */
    UINT8 transmissionPeriodicityV1530; /**< dl-UL-TransmissionPeriodicity-v1530, enumeration ms3, ms4 */
} TddUlDlPattern_t;

/** TddUlDlCfgCom_t.bitmask: pattern2 is given */
#define NR_TDD_PATTERN2_PRESENCE (1 << 0)

/** TDD-UL-DL-ConfigCommon */
typedef struct tddUlDlCfgCom_s
{
    UINT8 bitmask;                    /**< NR_TDD_PATTERN2_PRESENCE */
    UINT8 referenceSubcarrierSpacing; /**< referenceSubcarrierSpacing, enumeration kHz15.. (0..7) */
    TddUlDlPattern_t pattern1;        /**< pattern1 */
    TddUlDlPattern_t pattern2;        /**< pattern2, guarded by NR_TDD_PATTERN2_PRESENCE */
} TddUlDlCfgCom_t;

#ifdef __cplusplus
}
#endif

#endif
