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
    UINT16 locationAndBandwidth; /**< locationAndBandwidth, 0..37949; both in one number, the RIV of TS 38.214 */
    /** subcarrierSpacing, SubcarrierSpacing_...: 0 kHz15, 1 kHz30, 2 kHz60, 3 kHz120, 4 kHz240 */
    UINT8 subCarrierSpacing;
    UINT8 bitMask;      /**< bits RRC_BWP_CYCLEPREFIX_PRESENCE */
    UINT8 cyclicPrefix; /**< cyclicPrefix, BWP_cyclicPrefix_...: 0 extended */
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
/** RrcPdcchCfgCommon_t.bitMask: firstPDCCH-MonitoringOccasionOfPO is not sent; it has no field here */
#define RRC_PDCCH_CFG_COMMON_FIRST_PDCCH_MONITIOR_OCCASION_PRESENCE (1 << 7)

/** PDCCH-ConfigCommon */
typedef struct rrcPdcchCfgCommon_s
{
    UINT8 numCommonSearchSpace; /**< entries used of commonSearchSpace, 0..4; the list is sent when it is not 0 */
    RrcSearchSpace_t commonSearchSpace[RRC_MAX_NUM_COMMON_SEARCH_SPACING]; /**< commonSearchSpaceList */
    UINT8 bitMask;                                    /**< bits RRC_PDCCH_CFG_COMMON_..._PRESENCE */
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
    UINT8 bitMask;                                                  /**< bits RRC_PDSCH_COMMON_PRESENCE */
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
    UINT8 bitMask;                      /**< bits RRC_BWP_DL_COMMON_..._CFG_COMMON_PRESENCE */
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
    /**
     * periodicity, SPS_Config_periodicity_...: 0 ms10, 1 ms20, 2 ms32, 3 ms40, 4 ms64, 5 ms80, 6 ms128, 7 ms160,
     * 8 ms320, 9 ms640
     */
    UINT8 periodicity;
    UINT8 nrofHardProcess; /**< nrofHARQ-Processes, 1..8 */
    UINT8 bitMask;         /**< bits RRC_SPS_CFG_..._PRESENCE */
    UINT8 n1PucchAn;       /**< n1PUCCH-AN, 0..127 */
    UINT8 mcsTable;        /**< mcs-Table, SPS_Config_mcs_Table_...: 0 qam64LowSE */
} RrcSpsCfg_t;

/** RrcRadioLinkMonitorRs_t.presence: chooses detectionResource.ssb-Index, in detectionResource.ssbIdx */
#define RRC_RADIO_LINK_MONITOR_SSB_PRESENCE (1 << 0)
/** RrcRadioLinkMonitorRs_t.presence: chooses detectionResource.csi-RS-Index, in detectionResource.csiRsIdx */
#define RRC_RADIO_LINK_MONITOR_CSI_RS_PRESENCE (1 << 1)

/** RadioLinkMonitoringRS */
typedef struct rrcRadioLinkMonitorRs_s
{
    UINT8 radioLinkMonitorRsId; /**< radioLinkMonitoringRS-Id, 0..9 */
    UINT8 purpose;              /**< purpose, RadioLinkMonitoringRS_purpose_...: 0 beamFailure, 1 rlf, 2 both */
    UINT8 presence;             /**< bits RRC_RADIO_LINK_MONITOR_..._PRESENCE */
    union
    {
        UINT8 ssbIdx;    /**< ssb-Index, 0..63 */
        UINT8 csiRsIdx;  /**< csi-RS-Index, 0..191 */
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
    RrcRadioLinkMonitorRs_t
        failDetectResource[RRC_MAX_NROF_FAIL_DETECT_RESOURCE];     /**< failureDetectionResourcesToAddModList */
    UINT8 numFailDetectResourceRel;                                /**< entries used of failDetectResourceId, 0..10 */
    UINT8 failDetectResourceId[RRC_MAX_NROF_FAIL_DETECT_RESOURCE]; /**< failureDetectionResourcesToReleaseList, each
                                                                      0..9 */
    UINT8 bitMask;                                                 /**< bits RRC_RADIO_LINK_MONITOR_BEAM_FAIL_... */
    /**
     * beamFailureInstanceMaxCount, RadioLinkMonitoringConfig_beamFailureInstanceMaxCount_...: 0 n1, 1 n2, 2 n3, 3 n4,
     * 4 n5, 5 n6, 6 n8, 7 n10
     */
    UINT8 beamFailureInstanceMaxCount;
    /**
     * beamFailureDetectionTimer, RadioLinkMonitoringConfig_beamFailureDetectionTimer_...: 0 pbfd1, 1 pbfd2, 2 pbfd3,
     * 3 pbfd4, 4 pbfd5, 5 pbfd6, 6 pbfd8, 7 pbfd10
     */
    UINT8 beamFailureDetectionTimer;
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
    UINT8 bitMask;                   /**< bits RRC_BWP_DL_DEDI_..._CFG_PRESENCE */
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
    UINT8 bitMask;                    /**< bits RRC_BWP_DL_..._PRESENCE */
    RrcBwpDlCommon_t bwpCommon;       /**< bwp-Common */
    RrcBwpDlDedicated_t bwpDedicated; /**< bwp-Dedicated */
} RrcBwpDl_t;

#ifdef __cplusplus
}
#endif

#endif
