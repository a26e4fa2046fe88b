#ifndef RRCDOWNLINKBWP_H
#define RRCDOWNLINKBWP_H

#include "rrcCodec/rrcPdcch.h"
#include "rrcCodec/rrcPdsch.h"
#include "vos_types.h"

/*
 * Downlink bandwidth parts (TS 38.331 BWP-Downlink) with their common and dedicated configuration. Enumerated fields
 * hold the integer of the ASN.1 enumeration.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** Bound of PDCCH-ConfigCommon.commonSearchSpaceList */
#define RRC_MAX_NUM_COMMON_SEARCH_SPACING 4

/** maxNrofFailureDetectionResources */
#define RRC_MAX_NROF_FAIL_DETECT_RESOURCE 10

/** RrcBwp_t.bitMask: cyclicPrefix is given */
#define RRC_BWP_CYCLEPREFIX_PRESENCE (1 << 0)

/** BWP */
typedef struct rrcBwp_s
{
    UINT16 locationAndBandwidth; /**< locationAndBandwidth, 0..37949 */
    UINT8 subCarrierSpacing;     /**< subcarrierSpacing, enumeration kHz15.. (0..7) */
    UINT8 bitMask;               /**< RRC_BWP_CYCLEPREFIX_PRESENCE */
    UINT8 cyclicPrefix;          /**< cyclicPrefix, enumeration extended (0) */
} RrcBwp_t;

/** RrcPdcchCfgCommon_t.bitMask: controlResourceSetZero is given */
#define RRC_PDCCH_CFG_COMMON_CONTROL_RESOURCE_SET_ZERO_PRESENCE (1 << 0)
/** RrcPdcchCfgCommon_t.bitMask: commonControlResourceSet is given */
#define RRC_PDCCH_CFG_COMMON_CONTROL_RESOURCE_SET_PRESENCE (1 << 1)
/** RrcPdcchCfgCommon_t.bitMask: searchSpaceZero is given */
#define RRC_PDCCH_CFG_COMMON_SEARCH_SAPCE_ZERO_PRESENCE (1 << 2)
/** RrcPdcchCfgCommon_t.bitMask: searchSpaceSIB1 is given */
#define RRC_PDCCH_CFG_COMMON_SEARCH_SPACE_SIB1_PRESENCE (1 << 3)
/** RrcPdcchCfgCommon_t.bitMask: searchSpaceOtherSi is given */
#define RRC_PDCCH_CFG_COMMON_SEARCH_SAPCE_OTHER_SI_PRESENCE (1 << 4)
/** RrcPdcchCfgCommon_t.bitMask: searchSpacePaing is given */
#define RRC_PDCCH_CFG_COMMON_SEARCH_SPACE_PAGING_PRESENCE (1 << 5)
/** RrcPdcchCfgCommon_t.bitMask: searchSpaceRa is given */
#define RRC_PDCCH_CFG_COMMON_SEARCH_SPACE_RA_PRESENCE (1 << 6)
/** RrcPdcchCfgCommon_t.bitMask: flags firstPDCCH-MonitoringOccasionOfPO, which has no field; nothing is sent for it */
#define RRC_PDCCH_CFG_COMMON_FIRST_PDCCH_MONITIOR_OCCASION_PRESENCE (1 << 7)

/** PDCCH-ConfigCommon */
typedef struct rrcPdcchCfgCommon_s
{
    UINT8 numCommonSearchSpace; /**< entries used of commonSearchSpace, 0..4; the list is sent when it is not 0 */
    RrcSearchSpace_t commonSearchSpace[RRC_MAX_NUM_COMMON_SEARCH_SPACING]; /**< commonSearchSpaceList */
    UINT8 bitMask;                                    /**< RRC_PDCCH_CFG_COMMON_CONTROL_RESOURCE_SET_ZERO_PRESENCE.. */
    UINT8 controlResourceSetZero;                     /**< controlResourceSetZero, 0..15 */
    RrcControlResourceSet_t commonControlResourceSet; /**< commonControlResourceSet */
    UINT8 searchSpaceZero;                            /**< searchSpaceZero, 0..15 */
    UINT8 searchSpaceSIB1;                            /**< searchSpaceSIB1, 0..39 */
    UINT8 searchSpaceOtherSi;                         /**< searchSpaceOtherSystemInformation, 0..39 */
    UINT8 searchSpacePaing;                           /**< pagingSearchSpace, 0..39 */
    UINT8 searchSpaceRa;                              /**< ra-SearchSpace, 0..39 */
} RrcPdcchCfgCommon_t;

/** RrcPdschCfgCommon_t.bitMask: pdschTimeDomainAllocList is given */
#define RRC_PDSCH_COMMON_PRESENCE (1 << 0)

/** PDSCH-ConfigCommon */
typedef struct rrcPdschCfgCommon_s
{
    UINT8 bitMask;                                                  /**< RRC_PDSCH_COMMON_PRESENCE */
    RrcPdschTimeDomainResourceAllocList_t pdschTimeDomainAllocList; /**< pdsch-TimeDomainAllocationList */
} RrcPdschCfgCommon_t;

/** RrcBwpDlCommon_t.bitMask: pdcchCfgCommon is given */
#define RRC_BWP_DL_COMMON_PDCCH_CFG_COMMON_PRESENCE (1 << 0)
/** RrcBwpDlCommon_t.bitMask: pdschCfgCommon is given */
#define RRC_BWP_DL_COMMON_PDSCH_CFG_COMMON_PRESENCE (1 << 1)

/** BWP-DownlinkCommon */
typedef struct rrcBwpDlCommon_s
{
    RrcBwp_t genericParam;              /**< genericParameters */
    UINT8 bitMask;                      /**< RRC_BWP_DL_COMMON_PDCCH_CFG_COMMON_PRESENCE.. */
    RrcPdcchCfgCommon_t pdcchCfgCommon; /**< pdcch-ConfigCommon */
    RrcPdschCfgCommon_t pdschCfgCommon; /**< pdsch-ConfigCommon */
} RrcBwpDlCommon_t;

/** RrcSpsCfg_t.bitMask: n1PucchAn is given */
#define RRC_SPS_CFG_N1_PUCCH_AN_PRESENCE (1 << 0)
/** RrcSpsCfg_t.bitMask: mcsTable is given */
#define RRC_SPS_CFG_MCS_TABLE_PRESENCE (1 << 1)

/** SPS-Config */
typedef struct rrcSpsCfg_s
{
    UINT8 periodicity;     /**< periodicity, enumeration ms10.. (0..15) */
    UINT8 nrofHardProcess; /**< nrofHARQ-Processes, 1..8 */
    UINT8 bitMask;         /**< RRC_SPS_CFG_N1_PUCCH_AN_PRESENCE.. */
    UINT8 n1PucchAn;       /**< n1PUCCH-AN, 0..127 */
    UINT8 mcsTable;        /**< mcs-Table, enumeration qam64LowSE (0) */
} RrcSpsCfg_t;

/** RrcRadioLinkMonitorRs_t.presence: the alternative of detectionResource; the second wins */
#define RRC_RADIO_LINK_MONITOR_SSB_PRESENCE (1 << 0)
#define RRC_RADIO_LINK_MONITOR_CSI_RS_PRESENCE (1 << 1)

/** RadioLinkMonitoringRS */
typedef struct rrcRadioLinkMonitorRs_s
{
    UINT8 radioLinkMonitorRsId; /**< radioLinkMonitoringRS-Id, 0..9 */
    UINT8 purpose;              /**< purpose, enumeration beamFailure, rlf, both (0..2) */
    UINT8 presence;             /**< RRC_RADIO_LINK_MONITOR_SSB_PRESENCE.. */
    union
    {
        UINT8 ssbIdx;    /**< ssb-Index, 0..63; RRC_RADIO_LINK_MONITOR_SSB_PRESENCE */
        UINT8 csiRsIdx;  /**< csi-RS-Index, 0..191; RRC_RADIO_LINK_MONITOR_CSI_RS_PRESENCE */
    } detectionResource; /**< detectionResource */
} RrcRadioLinkMonitorRs_t;

/** RrcRlmCfg_t.bitMask: beamFailureInstanceMaxCount is given */
#define RRC_RADIO_LINK_MONITOR_BEAM_FAIL_MAX_COUNT_PRESENCE (1 << 0)
/** RrcRlmCfg_t.bitMask: beamFailureDetectionTimer is given */
#define RRC_RADIO_LINK_MONITOR_BEAM_FAIL_DETECT_TIMER_PRESENCE (1 << 1)

/** RadioLinkMonitoringConfig. A list is sent when its count is not 0. */
typedef struct rrcRlmCfg_s
{
    UINT8 numFailDetectResourceAddMod; /**< entries used of failDetectResource, 0..10 */
    /** failureDetectionResourcesToAddModList */
    RrcRadioLinkMonitorRs_t failDetectResource[RRC_MAX_NROF_FAIL_DETECT_RESOURCE];
    UINT8 numFailDetectResourceRel; /**< entries used of failDetectResourceId, 0..10 */
    /** failureDetectionResourcesToReleaseList, each 0..9 */
    UINT8 failDetectResourceId[RRC_MAX_NROF_FAIL_DETECT_RESOURCE];
    UINT8 bitMask;                     /**< RRC_RADIO_LINK_MONITOR_BEAM_FAIL_MAX_COUNT_PRESENCE.. */
    UINT8 beamFailureInstanceMaxCount; /**< beamFailureInstanceMaxCount, enumeration n1.. (0..7) */
    UINT8 beamFailureDetectionTimer;   /**< beamFailureDetectionTimer, enumeration pbfd1.. (0..7) */
} RrcRlmCfg_t;

/** RrcBwpDlDedicated_t.bitMask: pdcchCfg is given */
#define RRC_BWP_DL_DEDI_PDCCH_CFG_PRESENCE (1 << 0)
/** RrcBwpDlDedicated_t.bitMask: pdschCfg is given */
#define RRC_BWP_DL_DEDI_PDSCH_CFG_PRESENCE (1 << 1)
/** RrcBwpDlDedicated_t.bitMask: spsCfg is given */
#define RRC_BWP_DL_DEDI_SPS_CFG_PRESENCE (1 << 2)
/** RrcBwpDlDedicated_t.bitMask: radioLinkMonitorCfg is given */
#define RRC_BWP_DL_DEDI_RLM_CFG_PRESENCE (1 << 3)

/** BWP-DownlinkDedicated */
typedef struct rrcBwpDlDedicated_s
{
    UINT8 bitMask;                   /**< RRC_BWP_DL_DEDI_PDCCH_CFG_PRESENCE.. */
    RrcPdcchCfg_t pdcchCfg;          /**< pdcch-Config */
    RrcPdschCfg_t pdschCfg;          /**< pdsch-Config */
    RrcSpsCfg_t spsCfg;              /**< sps-Config */
    RrcRlmCfg_t radioLinkMonitorCfg; /**< radioLinkMonitoringConfig */
} RrcBwpDlDedicated_t;

/** RrcBwpDl_t.bitMask: bwpCommon is given */
#define RRC_BWP_DL_COMMON_PRESENCE (1 << 0)
/** RrcBwpDl_t.bitMask: bwpDedicated is given */
#define RRC_BWP_DL_DEDICATED_PRESENCE (1 << 1)

/** BWP-Downlink */
typedef struct rrcBwpDl_s
{
    UINT8 bwpId;                      /**< bwp-Id, 0..4 */
    UINT8 bitMask;                    /**< RRC_BWP_DL_COMMON_PRESENCE.. */
    RrcBwpDlCommon_t bwpCommon;       /**< bwp-Common */
    RrcBwpDlDedicated_t bwpDedicated; /**< bwp-Dedicated */
} RrcBwpDl_t;

#ifdef __cplusplus
}
#endif

#endif
