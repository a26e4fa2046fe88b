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

/** SCS-SpecificCarrier; without txDirectCurrentLocation */
typedef struct specificCarrier_s
{
    UINT16 offsetToCarrier; /**< offsetToCarrier, 0..2199, in PRBs; from point A */
    /** subcarrierSpacing, SubcarrierSpacing_...: 0 kHz15, 1 kHz30, 2 kHz60, 3 kHz120, 4 kHz240 */
    UINT8 subcarrierSpacing;
    UINT16 carrierBandwidth; /**< carrierBandwidth, 1..275, in PRBs */
} SpecificCarrier_t;

/** BWP. Whether the cyclic prefix is extended is told by the mask of the record around it. */
typedef struct nrBWP_s
{
    UINT16 locationAndBandwidth; /**< locationAndBandwidth, 0..37949; both in one number, the RIV of TS 38.214 */
    /** subcarrierSpacing, SubcarrierSpacing_...: 0 kHz15, 1 kHz30, 2 kHz60, 3 kHz120, 4 kHz240 */
    UINT8 subcarrierSpacing;
} NrBWP_t;

/** NrTimeDomainAlloc_t.bitmask: slotOffset is given */
#define NR_TIME_DOMAIN_ALLOC_SLOT_OFFSET_PRESENCE (1 << 0)

/** PDSCH-TimeDomainResourceAllocation or PUSCH-TimeDomainResourceAllocation */
typedef struct nrTimeDomainAlloc_s
{
    UINT8 bitmask;    /**< bits NR_TIME_DOMAIN_ALLOC_SLOT_OFFSET_PRESENCE */
    UINT8 slotOffset; /**< k0 or k2, 0..32, in slots */
    /**
     * mappingType, PDSCH_TimeDomainResourceAllocation_mappingType_... or
     * PUSCH_TimeDomainResourceAllocation_mappingType_...: 0 typeA, 1 typeB
     */
    UINT8 mappingType;
    UINT8 startSymbolAndLength; /**< startSymbolAndLength, 0..127; both in one number, the SLIV of TS 38.214 */
} NrTimeDomainAlloc_t;

/** NrControlResourceSet_t.bitmask: shiftIndex is given; interleaved mapping only */
#define NR_CORESET_SHIFT_INDEX_PRESENCE (1 << 0)
/** NrControlResourceSet_t.bitmask: tci-PresentInDCI is sent as enabled */
#define NR_CORESET_TCI_PRESENT_IN_DCI (1 << 1)
/** NrControlResourceSet_t.bitmask: pdcchDmrsScramblingId is given */
#define NR_CORESET_DMRS_SCRAMBLING_ID_PRESENCE (1 << 2)

/** ControlResourceSet */
typedef struct nrControlResourceSet_s
{
    UINT8 controlResourceSetId; /**< controlResourceSetId, 0..11 */
    UINT64 freqDomainResources; /**< frequencyDomainResources, 45 bits; the first one in bit 44 */
    UINT8 duration;             /**< duration, 1..3, in symbols */
    /**
     * alternative of cce-REG-MappingType, T_ControlResourceSet_cce_REG_MappingType_...: 1 interleaved, 2 nonInterleaved
     */
    UINT8 cceRegMappingType;
    /**
     * cce-REG-MappingType.interleaved.reg-BundleSize,
     * ControlResourceSet_cce_REG_MappingType_interleaved_reg_BundleSize_...: 0 n2, 1 n3, 2 n6
     */
    UINT8 regBundleSize;
    /**
     * cce-REG-MappingType.interleaved.interleaverSize,
     * ControlResourceSet_cce_REG_MappingType_interleaved_interleaverSize_...: 0 n2, 1 n3, 2 n6
     */
    UINT8 interleaverSize;
    UINT16 shiftIndex; /**< cce-REG-MappingType.interleaved.shiftIndex, 0..274 */
    /** precoderGranularity, ControlResourceSet_precoderGranularity_...: 0 sameAsREG-bundle, 1 allContiguousRBs */
    UINT8 precoderGranularity;
    UINT8 numTciStatesToAdd;                               /**< entries used of tciStatesToAdd, 0..64 */
    UINT8 tciStatesToAdd[NR_MAX_NUM_TCI_STATES_PDCCH];     /**< tci-StatesPDCCH-ToAddList, each 0..127 */
    UINT8 numTciStatesToRelease;                           /**< entries used of tciStatesToRelease, 0..64 */
    UINT8 tciStatesToRelease[NR_MAX_NUM_TCI_STATES_PDCCH]; /**< tci-StatesPDCCH-ToReleaseList, each 0..127 */
    UINT8 bitmask;                                         /**< bits NR_CORESET_... */
    UINT16 pdcchDmrsScramblingId;                          /**< pdcch-DMRS-ScramblingID, 0..65535 */
} NrControlResourceSet_t;

/** SearchSpace.nrofCandidates */
typedef struct nrNrofCandidates_s
{
    /**
     * aggregationLevel1, SearchSpace_nrofCandidates_aggregationLevel1_...: 0 n0, 1 n1, 2 n2, 3 n3, 4 n4, 5 n5, 6 n6,
     * 7 n8
     */
    UINT8 aggregationLevel1;
    /**
     * aggregationLevel2, SearchSpace_nrofCandidates_aggregationLevel2_...: 0 n0, 1 n1, 2 n2, 3 n3, 4 n4, 5 n5, 6 n6,
     * 7 n8
     */
    UINT8 aggregationLevel2;
    /**
     * aggregationLevel4, SearchSpace_nrofCandidates_aggregationLevel4_...: 0 n0, 1 n1, 2 n2, 3 n3, 4 n4, 5 n5, 6 n6,
     * 7 n8
     */
    UINT8 aggregationLevel4;
    /**
     * aggregationLevel8, SearchSpace_nrofCandidates_aggregationLevel8_...: 0 n0, 1 n1, 2 n2, 3 n3, 4 n4, 5 n5, 6 n6,
     * 7 n8
     */
    UINT8 aggregationLevel8;
    /**
     * aggregationLevel16, SearchSpace_nrofCandidates_aggregationLevel16_...: 0 n0, 1 n1, 2 n2, 3 n3, 4 n4, 5 n5, 6 n6,
     * 7 n8
     */
    UINT8 aggregationLevel16;
} NrNrofCandidates_t;

/** NrNrofCandidatesSfi_t.bitmask: aggregationLevel1 is given */
#define NR_SFI_AGGREGATION_LEVEL1_PRESENCE (1 << 0)
/** NrNrofCandidatesSfi_t.bitmask: aggregationLevel2 is given */
#define NR_SFI_AGGREGATION_LEVEL2_PRESENCE (1 << 1)
/** NrNrofCandidatesSfi_t.bitmask: aggregationLevel4 is given */
#define NR_SFI_AGGREGATION_LEVEL4_PRESENCE (1 << 2)
/** NrNrofCandidatesSfi_t.bitmask: aggregationLevel8 is given */
#define NR_SFI_AGGREGATION_LEVEL8_PRESENCE (1 << 3)
/** NrNrofCandidatesSfi_t.bitmask: aggregationLevel16 is given */
#define NR_SFI_AGGREGATION_LEVEL16_PRESENCE (1 << 4)

/** SearchSpace.searchSpaceType.common.dci-Format2-0.nrofCandidates-SFI */
typedef struct nrNrofCandidatesSfi_s
{
    UINT8 bitmask; /**< bits NR_SFI_AGGREGATION_..._PRESENCE */
    /**
     * aggregationLevel1, SearchSpace_searchSpaceType_common_dci_Format2_0_nrofCandidates_SFI_aggregationLevel1_...:
     * 0 n1, 1 n2
     */
    UINT8 aggregationLevel1;
    /**
     * aggregationLevel2, SearchSpace_searchSpaceType_common_dci_Format2_0_nrofCandidates_SFI_aggregationLevel2_...:
     * 0 n1, 1 n2
     */
    UINT8 aggregationLevel2;
    /**
     * aggregationLevel4, SearchSpace_searchSpaceType_common_dci_Format2_0_nrofCandidates_SFI_aggregationLevel4_...:
     * 0 n1, 1 n2
     */
    UINT8 aggregationLevel4;
    /**
     * aggregationLevel8, SearchSpace_searchSpaceType_common_dci_Format2_0_nrofCandidates_SFI_aggregationLevel8_...:
     * 0 n1, 1 n2
     */
    UINT8 aggregationLevel8;
    /**
     * aggregationLevel16, SearchSpace_searchSpaceType_common_dci_Format2_0_nrofCandidates_SFI_aggregationLevel16_...:
     * 0 n1, 1 n2
     */
    UINT8 aggregationLevel16;
} NrNrofCandidatesSfi_t;

/** NrSearchSpaceCommon_t.bitmask: dci-Format0-0-AndFormat1-0 is sent; it has no content */
#define NR_SEARCH_SPACE_DCI_FORMAT0_0_AND_1_0 (1 << 0)
/** NrSearchSpaceCommon_t.bitmask: nrofCandidatesSfi is given */
#define NR_SEARCH_SPACE_DCI_FORMAT2_0 (1 << 1)
/** NrSearchSpaceCommon_t.bitmask: dci-Format2-1 is sent; it has no content */
#define NR_SEARCH_SPACE_DCI_FORMAT2_1 (1 << 2)
/** NrSearchSpaceCommon_t.bitmask: dci-Format2-2 is sent; it has no content */
#define NR_SEARCH_SPACE_DCI_FORMAT2_2 (1 << 3)
/** NrSearchSpaceCommon_t.bitmask: dciFormat23Dummy2 is given */
#define NR_SEARCH_SPACE_DCI_FORMAT2_3 (1 << 4)
/** NrSearchSpaceCommon_t.bitmask: dciFormat23Dummy1 is given, with NR_SEARCH_SPACE_DCI_FORMAT2_3 */
#define NR_SEARCH_SPACE_DCI_FORMAT2_3_DUMMY1_PRESENCE (1 << 5)

/** SearchSpace.searchSpaceType.common */
typedef struct nrSearchSpaceCommon_s
{
    UINT8 bitmask;                           /**< bits NR_SEARCH_SPACE_DCI_... */
    NrNrofCandidatesSfi_t nrofCandidatesSfi; /**< dci-Format2-0.nrofCandidates-SFI */
    /**
     * dci-Format2-3.dummy1, SearchSpace_searchSpaceType_common_dci_Format2_3_dummy1_...: 0 sl1, 1 sl2, 2 sl4, 3 sl5,
     * 4 sl8, 5 sl10, 6 sl16, 7 sl20
     */
    UINT8 dciFormat23Dummy1;
    /** dci-Format2-3.dummy2, SearchSpace_searchSpaceType_common_dci_Format2_3_dummy2_...: 0 n1, 1 n2 */
    UINT8 dciFormat23Dummy2;
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
/** NrSearchSpace_t.bitmask: searchSpaceType, common and dciFormats are given */
#define NR_SEARCH_SPACE_TYPE_PRESENCE (1 << 5)

/** SearchSpace */
typedef struct nrSearchSpace_s
{
    UINT8 bitmask;              /**< bits NR_SEARCH_SPACE_..._PRESENCE */
    UINT8 searchSpaceId;        /**< searchSpaceId, 0..39 */
    UINT8 controlResourceSetId; /**< controlResourceSetId, 0..11 */
    /**
     * alternative of monitoringSlotPeriodicityAndOffset, T_SearchSpace_monitoringSlotPeriodicityAndOffset_...: 1 sl1,
     * 2 sl2, 3 sl4, 4 sl5, 5 sl8, 6 sl10, 7 sl16, 8 sl20, 9 sl40, 10 sl80, 11 sl160, 12 sl320, 13 sl640, 14 sl1280,
     * 15 sl2560
     */
    UINT8 monitoringSlotPeriodicity;
    UINT16 monitoringSlotOffset;        /**< value by monitoringSlotPeriodicity, in slots; below the period */
    UINT16 duration;                    /**< duration, 2..2559, in slots */
    UINT16 monitoringSymbolsWithinSlot; /**< monitoringSymbolsWithinSlot, 14 bits; symbol 0 in bit 13 */
    NrNrofCandidates_t nrofCandidates;  /**< nrofCandidates */
    /** alternative of searchSpaceType, T_SearchSpace_searchSpaceType_...: 1 common, 2 ue-Specific */
    UINT8 searchSpaceType;
    NrSearchSpaceCommon_t common; /**< searchSpaceType.common */
    /**
     * searchSpaceType.ue-Specific.dci-Formats, SearchSpace_searchSpaceType_ue_Specific_dci_Formats_...:
     * 0 formats0-0-And-1-0, 1 formats0-1-And-1-1
     */
    UINT8 dciFormats;
} NrSearchSpace_t;

/** PDCCH-ConfigCommon.firstPDCCH-MonitoringOccasionOfPO */
typedef struct nrFirstPdcchMonitoringOccasion_s
{
    /**
     * alternative of itself, T_PDCCH_ConfigCommon_firstPDCCH_MonitoringOccasionOfPO_...: 1 sCS15KHZoneT,
     * 2 sCS30KHZoneT-SCS15KHZhalfT, 3 sCS60KHZoneT-SCS30KHZhalfT-SCS15KHZquarterT,
     * 4 sCS120KHZoneT-SCS60KHZhalfT-SCS30KHZquarterT-SCS15KHZoneEighthT,
     * 5 sCS120KHZhalfT-SCS60KHZquarterT-SCS30KHZoneEighthT-SCS15KHZoneSixteenthT,
     * 6 sCS120KHZquarterT-SCS60KHZoneEighthT-SCS30KHZoneSixteenthT, 7 sCS120KHZoneEighthT-SCS60KHZoneSixteenthT,
     * 8 sCS120KHZoneSixteenthT
     */
    UINT8 zone;
    UINT8 numOccasions;                    /**< entries used of occasion, 1..4 */
    UINT16 occasion[NR_MAX_NUM_PO_PER_PF]; /**< value by zone, in symbols; each 0..139 with zone 1 .. 0..17919 with zone
                                              8 */
} NrFirstPdcchMonitoringOccasion_t;

/** PdcchCfgCommon_t.bitmask: controlResourceSetZero is given */
#define NR_PDCCH_COMMON_CORESET_ZERO_PRESENCE (1 << 0)
/** PdcchCfgCommon_t.bitmask: commonControlResourceSet is given */
#define NR_PDCCH_COMMON_CORESET_PRESENCE (1 << 1)
/** PdcchCfgCommon_t.bitmask: searchSpaceZero is given */
#define NR_PDCCH_COMMON_SEARCH_SPACE_ZERO_PRESENCE (1 << 2)
/** PdcchCfgCommon_t.bitmask: searchSpaceSib1 is given */
#define NR_PDCCH_COMMON_SEARCH_SPACE_SIB1_PRESENCE (1 << 3)
/** PdcchCfgCommon_t.bitmask: searchSpaceOtherSi is given */
#define NR_PDCCH_COMMON_SEARCH_SPACE_OTHER_SI_PRESENCE (1 << 4)
/** PdcchCfgCommon_t.bitmask: pagingSearchSpace is given */
#define NR_PDCCH_COMMON_PAGING_SEARCH_SPACE_PRESENCE (1 << 5)
/** PdcchCfgCommon_t.bitmask: raSearchSpace is given */
#define NR_PDCCH_COMMON_RA_SEARCH_SPACE_PRESENCE (1 << 6)
/** PdcchCfgCommon_t.bitmask: firstPdcchMonitoringOccasion is given */
#define NR_PDCCH_COMMON_FIRST_MONITORING_OCCASION_PRESENCE (1 << 7)

/** PDCCH-ConfigCommon */
typedef struct pdcchCfgCommon_s
{
    UINT8 bitmask;                                                     /**< bits NR_PDCCH_COMMON_..._PRESENCE */
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
/** NrBwpDownLinkCommon_t.bitmask: genericParameters.cyclicPrefix is sent as extended */
#define NR_BWP_DL_EXTENDED_CYCLIC_PREFIX (1 << 2)

/** BWP-DownlinkCommon */
typedef struct nrBwpDownLinkCommon_s
{
    UINT16 bitmask;                  /**< bits NR_BWP_DL_... */
    NrBWP_t bwp;                     /**< genericParameters */
    PdcchCfgCommon_t pdcchCfgCommon; /**< pdcch-ConfigCommon; sent as setup */
    PdschCfgCommon_t pdschCfgCommon; /**< pdsch-ConfigCommon; sent as setup */
} NrBwpDownLinkCommon_t;

/** RACH-ConfigGeneric */
typedef struct nrRachCfgGeneric_s
{
    UINT8 prachConfigurationIndex;     /**< prach-ConfigurationIndex, 0..255 */
    UINT8 msg1Fdm;                     /**< msg1-FDM, RACH_ConfigGeneric_msg1_FDM_...: 0 one, 1 two, 2 four, 3 eight */
    UINT16 msg1FrequencyStart;         /**< msg1-FrequencyStart, 0..274, in PRBs */
    UINT8 zeroCorrelationZoneConfig;   /**< zeroCorrelationZoneConfig, 0..15 */
    INT16 preambleReceivedTargetPower; /**< preambleReceivedTargetPower, -202..-60, in dBm */
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
    UINT8 raResponseWindow;
} NrRachCfgGeneric_t;

/** NrRachCfgCommon_t.bitmask: totalNumberOfRaPreambles is given */
#define NR_RACH_COMMON_TOTAL_PREAMBLES_PRESENCE (1 << 0)
/** NrRachCfgCommon_t.bitmask: ssbPerRachOccasion and cbPreamblesPerSsb are given */
#define NR_RACH_COMMON_SSB_PER_RACH_OCCASION_PRESENCE (1 << 1)
/** NrRachCfgCommon_t.bitmask: raMsg3SizeGroupA, messagePowerOffsetGroupB and numberOfRaPreamblesGroupA are given */
#define NR_RACH_COMMON_GROUP_B_PRESENCE (1 << 2)
/** NrRachCfgCommon_t.bitmask: rsrpThresholdSsb is given */
#define NR_RACH_COMMON_RSRP_THRESHOLD_SSB_PRESENCE (1 << 3)
/** NrRachCfgCommon_t.bitmask: rsrpThresholdSsbSul is given */
#define NR_RACH_COMMON_RSRP_THRESHOLD_SSB_SUL_PRESENCE (1 << 4)
/** NrRachCfgCommon_t.bitmask: msg1SubcarrierSpacing is given */
#define NR_RACH_COMMON_MSG1_SUBCARRIER_SPACING_PRESENCE (1 << 5)
/** NrRachCfgCommon_t.bitmask: msg3-transformPrecoder is sent as enabled */
#define NR_RACH_COMMON_MSG3_TRANSFORM_PRECODER (1 << 6)

/** RACH-ConfigCommon */
typedef struct nrRachCfgCommon_s
{
    UINT8 bitmask;                     /**< bits NR_RACH_COMMON_... */
    NrRachCfgGeneric_t rachCfgGeneric; /**< rach-ConfigGeneric */
    UINT8 totalNumberOfRaPreambles;    /**< totalNumberOfRA-Preambles, 1..63 */
    /**
     * alternative of ssb-perRACH-OccasionAndCB-PreamblesPerSSB,
     * T_RACH_ConfigCommon_ssb_perRACH_OccasionAndCB_PreamblesPerSSB_...: 1 oneEighth, 2 oneFourth, 3 oneHalf, 4 one,
     * 5 two, 6 four, 7 eight, 8 sixteen
     */
    UINT8 ssbPerRachOccasion;
    /** value by ssbPerRachOccasion; 1 to 4: 0 n4, 1 n8 .. 15 n64; 5: 0 n4, 1 n8 .. 7 n32; 6: 1..16; 7: 1..8; 8: 1..4 */
    UINT8 cbPreamblesPerSsb;
    /**
     * groupBconfigured.ra-Msg3SizeGroupA, RACH_ConfigCommon_groupBconfigured_ra_Msg3SizeGroupA_...: 0 b56, 1 b144,
     * 2 b208, 3 b256, 4 b282, 5 b480, 6 b640, 7 b800, 8 b1000, 9 b72
     */
    UINT8 raMsg3SizeGroupA;
    /**
     * groupBconfigured.messagePowerOffsetGroupB, RACH_ConfigCommon_groupBconfigured_messagePowerOffsetGroupB_...:
     * 0 minusinfinity, 1 dB0, 2 dB5, 3 dB8, 4 dB10, 5 dB12, 6 dB15, 7 dB18
     */
    UINT8 messagePowerOffsetGroupB;
    UINT8 numberOfRaPreamblesGroupA; /**< groupBconfigured.numberOfRA-PreamblesGroupA, 1..64 */
    /**
     * ra-ContentionResolutionTimer, RACH_ConfigCommon_ra_ContentionResolutionTimer_...: 0 sf8, 1 sf16, 2 sf24, 3 sf32,
     * 4 sf40, 5 sf48, 6 sf56, 7 sf64
     */
    UINT8 raContentionResolutionTimer;
    UINT8 rsrpThresholdSsb;    /**< rsrp-ThresholdSSB, 0..127, in dBm above -156; 127 is infinity */
    UINT8 rsrpThresholdSsbSul; /**< rsrp-ThresholdSSB-SUL, 0..127, in dBm above -156; 127 is infinity */
    /** alternative of prach-RootSequenceIndex, T_RACH_ConfigCommon_prach_RootSequenceIndex_...: 1 l839, 2 l139 */
    UINT8 prachRootSequence;
    UINT16 prachRootSequenceIndex; /**< value by prachRootSequence; l839 0..837, l139 0..137 */
    /** msg1-SubcarrierSpacing, SubcarrierSpacing_...: 0 kHz15, 1 kHz30, 2 kHz60, 3 kHz120, 4 kHz240 */
    UINT8 msg1SubcarrierSpacing;
    /**
     * restrictedSetConfig, RACH_ConfigCommon_restrictedSetConfig_...: 0 unrestrictedSet, 1 restrictedSetTypeA,
     * 2 restrictedSetTypeB
     */
    UINT8 restrictedSetConfig;
} NrRachCfgCommon_t;

/** NrPuschCfgCommon_t.bitmask: groupHoppingEnabledTransformPrecoding is sent as enabled */
#define NR_PUSCH_COMMON_GROUP_HOPPING (1 << 0)
/** NrPuschCfgCommon_t.bitmask: msg3DeltaPreamble is given */
#define NR_PUSCH_COMMON_MSG3_DELTA_PREAMBLE_PRESENCE (1 << 1)
/** NrPuschCfgCommon_t.bitmask: p0NominalWithGrant is given */
#define NR_PUSCH_COMMON_P0_NOMINAL_WITH_GRANT_PRESENCE (1 << 2)

/** PUSCH-ConfigCommon */
typedef struct nrPuschCfgCommon_s
{
    UINT8 bitmask;                                                     /**< bits NR_PUSCH_COMMON_... */
    UINT8 numTimeDomainAllocs;                                         /**< entries used of timeDomainAlloc, 0..16 */
    NrTimeDomainAlloc_t timeDomainAlloc[NR_MAX_NUM_TIME_DOMAIN_ALLOC]; /**< pusch-TimeDomainAllocationList */
    INT8 msg3DeltaPreamble;                                            /**< msg3-DeltaPreamble, -1..6, in 2 dB */
    INT16 p0NominalWithGrant; /**< p0-NominalWithGrant, -202..24, in dBm; an even number */
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
    UINT8 bitmask;             /**< bits NR_PUCCH_COMMON_..._PRESENCE */
    UINT8 pucchResourceCommon; /**< pucch-ResourceCommon, 0..15 */
    /** pucch-GroupHopping, PUCCH_ConfigCommon_pucch_GroupHopping_...: 0 neither, 1 enable, 2 disable */
    UINT8 pucchGroupHopping;
    UINT16 hoppingId; /**< hoppingId, 0..1023 */
    INT16 p0Nominal;  /**< p0-nominal, -202..24, in dBm; an even number */
} NrPucchCfgCommon_t;

/** InitialUlBwp_t.bitmask: rachCfgCommon is given */
#define NR_BWP_UL_RACH_CFG_COMMON_PRESENCE (1 << 0)
/** InitialUlBwp_t.bitmask: puschCfgCommon is given */
#define NR_BWP_UL_PUSCH_CFG_COMMON_PRESENCE (1 << 1)
/** InitialUlBwp_t.bitmask: pucchCfgCommon is given */
#define NR_BWP_UL_PUCCH_CFG_COMMON_PRESENCE (1 << 2)
/** InitialUlBwp_t.bitmask: genericParameters.cyclicPrefix is sent as extended */
#define NR_BWP_UL_EXTENDED_CYCLIC_PREFIX (1 << 3)

/** BWP-UplinkCommon */
typedef struct initialUlBwp_s
{
    UINT16 bitmask;                    /**< bits NR_BWP_UL_... */
    NrBWP_t bwp;                       /**< genericParameters */
    NrRachCfgCommon_t rachCfgCommon;   /**< rach-ConfigCommon; sent as setup */
    NrPuschCfgCommon_t puschCfgCommon; /**< pusch-ConfigCommon; sent as setup */
    NrPucchCfgCommon_t pucchCfgCommon; /**< pucch-ConfigCommon; sent as setup */
} InitialUlBwp_t;

/** TddUlDlPattern_t.bitmask: transmissionPeriodicityV1530 is given */
#define NR_TDD_PATTERN_PERIODICITY_V1530_PRESENCE (1 << 0)

/** TDD-UL-DL-Pattern */
typedef struct tddUlDlPattern_s
{
    UINT8 bitmask; /**< bits NR_TDD_PATTERN_PERIODICITY_V1530_PRESENCE */
    /**
     * dl-UL-TransmissionPeriodicity, TDD_UL_DL_Pattern_dl_UL_TransmissionPeriodicity_...: 0 ms0p5, 1 ms0p625, 2 ms1,
     * 3 ms1p25, 4 ms2, 5 ms2p5, 6 ms5, 7 ms10
     */
    UINT8 transmissionPeriodicity;
    UINT16 nrofDownlinkSlots;  /**< nrofDownlinkSlots, 0..320, in slots */
    UINT8 nrofDownlinkSymbols; /**< nrofDownlinkSymbols, 0..13 */
    UINT16 nrofUplinkSlots;    /**< nrofUplinkSlots, 0..320 */
    UINT8 nrofUplinkSymbols;   /**< nrofUplinkSymbols, 0..13 */
    /** dl-UL-TransmissionPeriodicity-v1530, TDD_UL_DL_Pattern_dl_UL_TransmissionPeriodicity_v1530_...: 0 ms3, 1 ms4 */
    UINT8 transmissionPeriodicityV1530;
} TddUlDlPattern_t;

/** TddUlDlCfgCom_t.bitmask: pattern2 is given */
#define NR_TDD_PATTERN2_PRESENCE (1 << 0)

/** TDD-UL-DL-ConfigCommon */
typedef struct tddUlDlCfgCom_s
{
    UINT8 bitmask; /**< bits NR_TDD_PATTERN2_PRESENCE */
    /** referenceSubcarrierSpacing, SubcarrierSpacing_...: 0 kHz15, 1 kHz30, 2 kHz60, 3 kHz120, 4 kHz240 */
    UINT8 referenceSubcarrierSpacing;
    TddUlDlPattern_t pattern1; /**< pattern1 */
    TddUlDlPattern_t pattern2; /**< pattern2 */
} TddUlDlCfgCom_t;

#ifdef __cplusplus
}
#endif

#endif
