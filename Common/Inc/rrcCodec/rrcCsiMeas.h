#ifndef RRCCSIMEAS_H
#define RRCCSIMEAS_H

#include "rrcCodec/rrcCsiReport.h"
#include "rrcCodec/rrcCsiResource.h"
#include "vos_types.h"

/*
 * CSI measurement of a serving cell (TS 38.331 CSI-MeasConfig) and its trigger states. A list is sent when its count is
 * not 0.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** maxNrOfCSI-AperiodicTriggers */
#define RRC_MAX_NROF_CSI_APERIODIC_TRIGGERS 128
/** maxNrofReportConfigPerAperiodicTrigger */
#define RRC_MAX_NROF_REPORT_CFG_PER_APERIODIC_TRIGGERS 16
/** maxNrofAP-CSI-RS-ResourcesPerSet */
#define RRC_MAX_NROF_AP_CSI_RS_RESOURCES_PER_SET 16
/** maxNrOfSemiPersistentPUSCH-Triggers */
#define RRC_MAX_NROF_SEMI_PERSISTENT_PUSCH_TRIGGERS 64

/** RrcCsiAssociatedReportCfgInfo_t.prsence: chooses resourcesForChannel.nzp-CSI-RS, in resourceForChannel.nzpCsiRs */
#define RRC_CSI_ASSOCIATED_REPORT_CFG_INFO_NZP_CSI_RS_PRESENCE (1 << 0)
/**
 * RrcCsiAssociatedReportCfgInfo_t.prsence: chooses resourcesForChannel.csi-SSB-ResourceSet, in
 * resourceForChannel.csiSsbResourceSet
 */
#define RRC_CSI_ASSOCIATED_REPORT_CFG_INFO_CSI_SSB_SET_PRESENCE (1 << 1)

/** CSI-AssociatedReportConfigInfo.resourcesForChannel.nzp-CSI-RS */
struct nzpCsiRs_s
{
    UINT8 resourceSet;                                       /**< resourceSet, 1..16 */
    UINT8 numQciInfo;                                        /**< entries used of qciInfo, 0..16; 0: no qcl-info */
    UINT8 qciInfo[RRC_MAX_NROF_AP_CSI_RS_RESOURCES_PER_SET]; /**< qcl-info, each 0..127; TCI states */
};

/** CSI-AssociatedReportConfigInfo.resourcesForChannel.csi-SSB-ResourceSet */
struct csiSsbResourceSet_s
{
    UINT8 csiImResourceSet; /**< itself, 1; not CSI-IM, despite the name */
};

/** CSI-AssociatedReportConfigInfo.resourcesForChannel */
union resourceForChannel_u
{
    struct nzpCsiRs_s nzpCsiRs;                   /**< nzp-CSI-RS */
    struct csiSsbResourceSet_s csiSsbResourceSet; /**< csi-SSB-ResourceSet */
};

/** CSI-AssociatedReportConfigInfo */
typedef struct rrcCsiAssociatedReportCfgInfo_s
{
    UINT8 reportCfgId;                             /**< reportConfigId, 0..47 */
    UINT8 prsence;                                 /**< bits RRC_CSI_ASSOCIATED_REPORT_CFG_INFO_..._PRESENCE */
    union resourceForChannel_u resourceForChannel; /**< resourcesForChannel */
} RrcCsiAssociatedReportCfgInfo_t;

/** CSI-AperiodicTriggerState */
typedef struct rrcCsiAperiodicTriggerState_s
{
    UINT8 numCfgInfo; /**< entries used of info, 1..16 */
    /** associatedReportConfigInfoList */
    RrcCsiAssociatedReportCfgInfo_t info[RRC_MAX_NROF_REPORT_CFG_PER_APERIODIC_TRIGGERS];
} RrcCsiAperiodicTriggerState_t;

/** CSI-AperiodicTriggerStateList */
typedef struct rrcCsiAperiodicTriggerStateList_s
{
    UINT8 numState; /**< entries used of state, 1..128; with 0 the encoder refuses the list */
    RrcCsiAperiodicTriggerState_t state[RRC_MAX_NROF_CSI_APERIODIC_TRIGGERS]; /**< itself */
} RrcCsiAperiodicTriggerStateList_t;

/** CSI-SemiPersistentOnPUSCH-TriggerStateList */
typedef struct rrcCsiSemiPersistentOnPuschTriggerStateList_s
{
    UINT8 numTriggeState; /**< entries used of csiReportCfgId, 1..64; with 0 the encoder refuses the list */
    UINT8 csiReportCfgId[RRC_MAX_NROF_SEMI_PERSISTENT_PUSCH_TRIGGERS]; /**< [].associatedReportConfigInfo, each 0..47 */
} RrcCsiSemiPersistentOnPuschTriggerStateList_t;

/** RrcCsiMeasCfg_t.bitMask: reportTriggerSize is given */
#define RRC_CSI_MEAS_CFG_REPORT_TRIGGER_SIZE_PRESENCE (1 << 0)
/** RrcCsiMeasCfg_t.bitMask: aperiodicTriggerStateList is given */
#define RRC_CSI_MEAS_CFG_APERIODIC_TRIGGER_STATE_LIST_PRESENCE (1 << 1)
/** RrcCsiMeasCfg_t.bitMask: semiPersistentOnPuschTriggerStateList is given */
#define RRC_CSI_MEAS_CFG_SEMI_PEISISTENT_ON_PUSCH_PRESENCE (1 << 2)

/** CSI-MeasConfig */
typedef struct rrcCsiMeasCfg_s
{
    UINT8 numNzpCsiRsResourceAddMod; /**< entries used of NzpCsiRsResourceAddMod, 0..192 */
    /** nzp-CSI-RS-ResourceToAddModList */
    RrcNzpCsiRsResource_t NzpCsiRsResourceAddMod[RRC_MAX_NROF_NZP_CSI_RS_RESOURCES];
    UINT8 numNzpCsiRsResourceDel;                                /**< entries used of nzpCsiRsResourceId, 0..192 */
    UINT8 nzpCsiRsResourceId[RRC_MAX_NROF_NZP_CSI_RS_RESOURCES]; /**< nzp-CSI-RS-ResourceToReleaseList, each 0..191 */
    UINT8 numNzpCsiRsResourceSetAddMod; /**< entries used of NzpCsiRsResourceSetAddMod, 0..64 */
    /** nzp-CSI-RS-ResourceSetToAddModList */
    RrcNzpCsiRsResourceSet_t NzpCsiRsResourceSetAddMod[RRC_MAX_NROF_NZP_CSI_RS_RESOURCE_SETS];
    UINT8 numNzpCsiRsResourceSetRel; /**< entries used of nzpCsiRsResourceSetId, 0..64 */
    UINT8 nzpCsiRsResourceSetId[RRC_MAX_NROF_NZP_CSI_RS_RESOURCE_SETS]; /**< nzp-CSI-RS-ResourceSetToReleaseList, each
                                                                           0..63 */
    UINT8 numCsiImResourceAddMod; /**< entries used of csiImResourceAddMod, 0..32 */
    RrcCsiImResource_t csiImResourceAddMod[RRC_MAX_NROF_CSI_IM_RESOURCES]; /**< csi-IM-ResourceToAddModList */
    UINT8 numCsiImResourceRel;                            /**< entries used of csiImResourceId, 0..32 */
    UINT8 csiImResourceId[RRC_MAX_NROF_CSI_IM_RESOURCES]; /**< csi-IM-ResourceToReleaseList, each 0..31 */
    UINT8 numCsiImResourceSetAddMod;                      /**< entries used of csiImResourceSetAddMod, 0..64 */
    /** csi-IM-ResourceSetToAddModList */
    RrcCsiImResourceSet_t csiImResourceSetAddMod[RRC_MAX_NROF_CSI_IM_RESOURCE_SETS];
    UINT8 numCsiImResourceSetRel;                                /**< entries used of csiImResourceSetId, 0..64 */
    UINT8 csiImResourceSetId[RRC_MAX_NROF_CSI_IM_RESOURCE_SETS]; /**< csi-IM-ResourceSetToReleaseList, each 0..63 */
    UINT8 numCsiSsbResourceSetAddMod;                            /**< entries used of csiSsbResourceSet, 0..64 */
    /** csi-SSB-ResourceSetToAddModList */
    RrcCsiSsbResourceSet_t csiSsbResourceSet[RRC_MAX_NROF_CSI_SSB_RESOURCE_SETS];
    UINT8 numCsiSsbResourceSetRel;                                 /**< entries used of csiSsbResourceSetId, 0..64 */
    UINT8 csiSsbResourceSetId[RRC_MAX_NROF_CSI_SSB_RESOURCE_SETS]; /**< csi-SSB-ResourceSetToReleaseList, each 0..63 */
    UINT8 numCsiResourceCfgAddMod;                                 /**< entries used of csiResourceCfg, 0..112 */
    RrcCsiResourceCfg_t csiResourceCfg[RRC_MAX_NROF_CSI_RESOURCE_CFGS]; /**< csi-ResourceConfigToAddModList */
    UINT8 numCsiResourceCfgRel;                                         /**< entries used of csiResourceCfgId, 0..112 */
    UINT8 csiResourceCfgId[RRC_MAX_NROF_CSI_RESOURCE_CFGS];       /**< csi-ResourceConfigToReleaseList, each 0..111 */
    UINT8 numCsiReportCfgAddMod;                                  /**< entries used of csiReportCfg, 0..48 */
    RrcCsiReportCfg_t csiReportCfg[RRC_MAX_NROF_CSI_REPORT_CFGS]; /**< csi-ReportConfigToAddModList */
    UINT8 numCsiReportCfgRel;                                     /**< entries used of csiReportCfgId, 0..48 */
    UINT8 csiReportCfgId[RRC_MAX_NROF_CSI_REPORT_CFGS];           /**< csi-ReportConfigToReleaseList, each 0..47 */
    UINT8 bitMask;                                                /**< bits RRC_CSI_MEAS_CFG_..._PRESENCE */
    UINT8 reportTriggerSize;                                      /**< reportTriggerSize, 0..6, in bits */
    RrcCsiAperiodicTriggerStateList_t aperiodicTriggerStateList;  /**< aperiodicTriggerStateList */
    /** semiPersistentOnPUSCH-TriggerStateList */
    RrcCsiSemiPersistentOnPuschTriggerStateList_t semiPersistentOnPuschTriggerStateList;
} RrcCsiMeasCfg_t;

#ifdef __cplusplus
}
#endif

#endif
