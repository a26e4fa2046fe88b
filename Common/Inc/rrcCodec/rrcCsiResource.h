#ifndef RRCCSIRESOURCE_H
#define RRCCSIRESOURCE_H

#include "rrcCodec/rrcCsiRs.h"
#include "vos_types.h"

/*
 * CSI resources of a serving cell (TS 38.331 CSI-MeasConfig): NZP-CSI-RS, CSI-IM and CSI-SSB resources, their sets and
 * the CSI resource configurations. Enumerated fields hold the integer of the ASN.1 enumeration.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** maxNrofNZP-CSI-RS-Resources */
#define RRC_MAX_NROF_NZP_CSI_RS_RESOURCES 192
/** maxNrofNZP-CSI-RS-ResourceSets */
#define RRC_MAX_NROF_NZP_CSI_RS_RESOURCE_SETS 64
/** maxNrofNZP-CSI-RS-ResourcesPerSet */
#define RRC_MAX_NROF_NZP_CSI_RS_RESOURCES_PER_SET 64
/** maxNrofCSI-IM-Resources */
#define RRC_MAX_NROF_CSI_IM_RESOURCES 32
/** maxNrofCSI-IM-ResourceSets */
#define RRC_MAX_NROF_CSI_IM_RESOURCE_SETS 64
/** maxNrofCSI-IM-ResourcesPerSet */
#define RRC_MAX_NROF_CSI_IM_RESOURCES_PER_SET 8
/** maxNrofCSI-SSB-ResourceSets */
#define RRC_MAX_NROF_CSI_SSB_RESOURCE_SETS 64
/** maxNrofCSI-SSB-ResourcePerSet */
#define RRC_MAX_NROF_CSI_SSB_RESOURCE_PER_SET 64
/** maxNrofCSI-ResourceConfigurations */
#define RRC_MAX_NROF_CSI_RESOURCE_CFGS 112
/** maxNrofNZP-CSI-RS-ResourceSetsPerConfig */
#define RRC_MAX_NROF_NZP_CSI_RS_RESOURCE_SETS_PER_CFG 16
/** maxNrofCSI-SSB-ResourceSetsPerConfig */
#define RRC_MAX_NROF_CSI_SSB_RESOURCE_SETS_PER_CFG 1
/** maxNrofCSI-IM-ResourceSetsPerConfig */
#define RRC_MAX_NROF_CSI_IM_RESOURCE_SETS_PER_CFG 16

/** RrcNzpCsiRsResource_t.bitMask: powerControlOffsetSS is given */
#define RRC_NZP_CSI_RS_RESOURCE_POWER_CONTROL_OFFSET_SS_PRESENT (1 << 0)
/** RrcNzpCsiRsResource_t.bitMask: periodicityAndOffset is given */
#define RRC_NZP_CSI_RS_RESOURCE_PERIODIC_OFFSET_PRESENT (1 << 1)
/** RrcNzpCsiRsResource_t.bitMask: qclInfoPeriodicCsiRs is given */
#define RRC_NZP_CSI_RS_RESOURCE_QCI_INFO_PERIOD_CSI_RS_PRESENT (1 << 2)

/** NZP-CSI-RS-Resource */
typedef struct rrcNzpCsiRsResource_s
{
    UINT8 nzpCsiRsResourceId;                  /**< nzp-CSI-RS-ResourceId, 0..191 */
    RrcCsiRsResourceMapping_t resourceMapping; /**< resourceMapping */
    UINT8 powerControlOffset; /**< powerControlOffset, -8..15, in dB, as two's complement; 0xF8 is -8 */
    UINT16 scramblingId;      /**< scramblingID, 0..1023 */
    UINT8 bitMask;            /**< bits RRC_NZP_CSI_RS_RESOURCE_..._PRESENT */
    /** powerControlOffsetSS, NZP_CSI_RS_Resource_powerControlOffsetSS_...: 0 db-3, 1 db0, 2 db3, 3 db6 */
    UINT8 powerControlOffsetSS;
    RrcCsiResourcePeriodictyAndOffset_t periodicityAndOffset; /**< periodicityAndOffset */
    UINT8 qclInfoPeriodicCsiRs;                               /**< qcl-InfoPeriodicCSI-RS, 0..127; a TCI state */
} RrcNzpCsiRsResource_t;

/** RrcNzpCsiRsResourceSet_t.bitMask: repetition is given */
#define RRC_NZP_CSI_RS_RESOUECE_SET_REPETITION_PRESENCE (1 << 0)
/** RrcNzpCsiRsResourceSet_t.bitMask: aperidicTriggeringOffset is given */
#define RRC_NZP_CSI_RS_RESOUECE_SET_APERIODIC_OFFSET_PRESENCE (1 << 1)
/** RrcNzpCsiRsResourceSet_t.bitMask: trsInfo is given */
#define RRC_NZP_CSI_RS_RESOUECE_SET_TRS_INFO_PRESENCE (1 << 2)

/** NZP-CSI-RS-ResourceSet */
typedef struct rrcNzpCsiRsResourceSet_s
{
    UINT8 nzpCsiResourceSetId; /**< nzp-CSI-ResourceSetId, 0..63 */
    UINT16 numNzpCsiRsRes;     /**< entries used of numNzpCsiRsResources, 1..64, of which the low 8 bits are sent */
    UINT8 numNzpCsiRsResources[RRC_MAX_NROF_NZP_CSI_RS_RESOURCES_PER_SET]; /**< nzp-CSI-RS-Resources, each 0..191; the
                                                                              ids, despite the name */
    UINT8 bitMask;                  /**< bits RRC_NZP_CSI_RS_RESOUECE_SET_..._PRESENCE */
    UINT8 repetition;               /**< repetition, NZP_CSI_RS_ResourceSet_repetition_...: 0 on, 1 off */
    UINT8 aperidicTriggeringOffset; /**< aperiodicTriggeringOffset, 0..6, in slots */
    UINT8 trsInfo;                  /**< trs-Info, NZP_CSI_RS_ResourceSet_trs_Info_...: 0 true */
} RrcNzpCsiRsResourceSet_t;

/** RrcCsiImResource_t.bitMask: presence and csiImResourceElementPattern are given */
#define RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN_PRESENCE (1 << 0)
/** RrcCsiImResource_t.bitMask: freqBand is given */
#define RRC_CSI_IM_RESOURCE_FREQ_BAND_PRESENCE (1 << 1)
/** RrcCsiImResource_t.bitMask: periodicityAndOffset is given */
#define RRC_CSI_IM_RESOURCE_PERIODIC_OFFSET_PRESENCE (1 << 2)

/**
 * RrcCsiImResource_t.presence: chooses csi-IM-ResourceElementPattern.pattern0, in csiImResourceElementPattern.pattern0
 */
#define RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN0_PRESENCE (1 << 0)
/**
 * RrcCsiImResource_t.presence: chooses csi-IM-ResourceElementPattern.pattern1, in csiImResourceElementPattern.pattern1
 */
#define RRC_CSI_IM_RESOURCE_ELEMENT_PATTERN1_PRESENCE (1 << 1)

/** CSI-IM-Resource.csi-IM-ResourceElementPattern.pattern0 */
struct pattern0_s
{
    /**
     * subcarrierLocation-p0, CSI_IM_Resource_csi_IM_ResourceElementPattern_pattern0_subcarrierLocation_p0_...: 0 s0,
     * 1 s2, 2 s4, 3 s6, 4 s8, 5 s10
     */
    UINT8 subCarrierLocationP0;
    UINT8 symbolLocationP0; /**< symbolLocation-p0, 0..12 */
};

/** CSI-IM-Resource.csi-IM-ResourceElementPattern.pattern1 */
struct pattern1_s
{
    /**
     * subcarrierLocation-p1, CSI_IM_Resource_csi_IM_ResourceElementPattern_pattern1_subcarrierLocation_p1_...: 0 s0,
     * 1 s4, 2 s8
     */
    UINT8 subCarrierLocationP1;
    UINT8 symbolLocationP1; /**< symbolLocation-p1, 0..13 */
};

/** CSI-IM-Resource.csi-IM-ResourceElementPattern */
union elementPattern_u
{
    struct pattern0_s pattern0; /**< pattern0 */
    struct pattern1_s pattern1; /**< pattern1 */
};

/** CSI-IM-Resource */
typedef struct rrcCsiImResource_s
{
    UINT8 csiImResourceId;                                    /**< csi-IM-ResourceId, 0..31 */
    UINT8 bitMask;                                            /**< bits RRC_CSI_IM_RESOURCE_..._PRESENCE */
    UINT8 presence;                                           /**< bits RRC_CSI_IM_RESOURCE_ELEMENT_..._PRESENCE */
    union elementPattern_u csiImResourceElementPattern;       /**< csi-IM-ResourceElementPattern */
    RrcCsiFreqOccupation_t freqBand;                          /**< freqBand */
    RrcCsiResourcePeriodictyAndOffset_t periodicityAndOffset; /**< periodicityAndOffset */
} RrcCsiImResource_t;

/** CSI-IM-ResourceSet */
typedef struct rrcCsiImResourceSet_s
{
    UINT8 csiImResourceSetId;                                     /**< csi-IM-ResourceSetId, 0..63 */
    UINT8 numCsiImResources;                                      /**< entries used of CsiImResourceId, 1..8 */
    UINT8 CsiImResourceId[RRC_MAX_NROF_CSI_IM_RESOURCES_PER_SET]; /**< csi-IM-Resources, each 0..31 */
} RrcCsiImResourceSet_t;

/** CSI-SSB-ResourceSet */
typedef struct rrcCsiSsbResourceSet_s
{
    UINT8 csiSsbResourceSetId;                              /**< csi-SSB-ResourceSetId, 0..63 */
    UINT8 numSsbResourceSet;                                /**< entries used of csiSsbIdx, 1..64 */
    UINT8 csiSsbIdx[RRC_MAX_NROF_CSI_SSB_RESOURCE_PER_SET]; /**< csi-SSB-ResourceList, each 0..63 */
} RrcCsiSsbResourceSet_t;

/**
 * RrcCsiResourceCfg_t.presence: chooses csi-RS-ResourceSetList.nzp-CSI-RS-SSB, in
 * csiRsResourceSetList.nzpCsiRsResourceSetList
 */
#define RRC_CSI_RESOURCE_CFG_NZP_CSI_RS_SSB_PRESENCE (1 << 0)
/**
 * RrcCsiResourceCfg_t.presence: chooses csi-RS-ResourceSetList.csi-IM-ResourceSetList, in
 * csiRsResourceSetList.csiImResourceSetList
 */
#define RRC_CSI_RESOURCE_CFG_CSI_IM_RESOUECE_SET_LIST_PRESENCE (1 << 1)

/** CSI-ResourceConfig.csi-RS-ResourceSetList.nzp-CSI-RS-SSB. A list is sent when its count is not 0. */
struct nzpCsiRsResourceSetList_s
{
    UINT8 numNzpCsiRsResourceSet; /**< entries used of nzpCsiRsResourceSetId, 0..16 */
    UINT8 nzpCsiRsResourceSetId[RRC_MAX_NROF_NZP_CSI_RS_RESOURCE_SETS_PER_CFG]; /**< nzp-CSI-RS-ResourceSetList, each
                                                                                   0..63 */
    UINT8 numCsiSsbResourceSet; /**< entries used of csiSsbResourceSetId, 0..1, further ones are not sent */
    UINT8 csiSsbResourceSetId[RRC_MAX_NROF_CSI_SSB_RESOURCE_SETS_PER_CFG]; /**< csi-SSB-ResourceSetList, each 0..63 */
};

/** CSI-ResourceConfig.csi-RS-ResourceSetList.csi-IM-ResourceSetList */
struct csiImResourceSetList_s
{
    UINT8 numCsiImResourceSet; /**< entries used of csiImResourceSetId, 1..16 */
    UINT8 csiImResourceSetId[RRC_MAX_NROF_CSI_IM_RESOURCE_SETS_PER_CFG]; /**< itself, each 0..63 */
};

/** CSI-ResourceConfig.csi-RS-ResourceSetList */
union csiRsResourceSetList_u
{
    struct nzpCsiRsResourceSetList_s nzpCsiRsResourceSetList; /**< nzp-CSI-RS-SSB */
    struct csiImResourceSetList_s csiImResourceSetList;       /**< csi-IM-ResourceSetList */
};

/** CSI-ResourceConfig */
typedef struct rrcCsiResourceCfg_s
{
    UINT8 csiResourceCfgId; /**< csi-ResourceConfigId, 0..111 */
    UINT8 bwpId;            /**< bwp-Id, 0..4 */
    /** resourceType, CSI_ResourceConfig_resourceType_...: 0 aperiodic, 1 semiPersistent, 2 periodic */
    UINT8 resourceType;
    UINT8 presence;                                    /**< bits RRC_CSI_RESOURCE_CFG_..._PRESENCE */
    union csiRsResourceSetList_u csiRsResourceSetList; /**< csi-RS-ResourceSetList */
} RrcCsiResourceCfg_t;

#ifdef __cplusplus
}
#endif

#endif
