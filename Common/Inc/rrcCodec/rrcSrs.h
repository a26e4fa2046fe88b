#ifndef RRCSRS_H
#define RRCSRS_H

#include "vos_types.h"

/*
 * Sounding reference signals of an uplink bandwidth part (TS 38.331 SRS-Config). Enumerated fields hold the integer of
 * the ASN.1 enumeration.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** maxNrofSRS-ResourceSets */
#define RRC_MAX_NROF_SRS_RESOURCESET 16
/** maxNrofSRS-Resources */
#define RRC_MAX_NROF_SRS_RESOURCE 64
/** maxNrofSRS-ResourcesPerSet */
#define RRC_MAX_NROF_SRS_RESOURCE_PER_SET 16

/** aperiodic_s.bitMask: csiRsResourceId is given */
#define RRC_SRS_RESOURCE_SET_APERIODIC_CSI_RS_PRESENCE (1 << 0)
/** aperiodic_s.bitMask: slotOffset is given */
#define RRC_SRS_RESOURCE_SET_APERIODIC_SLOT_OFFSET_PRESENCE (1 << 1)
/** semiPersistent_s.bitMask: associatedCsiRsId is given */
#define RRC_SRS_RESOURCE_SET_SEMI_PERSISTENT_CSI_RS_PRESENCE (1 << 0)
/** periodic_s.bitMask: associatedCsiRsId is given */
#define RRC_SRS_RESOURCE_SET_PERIODIC_CSI_RS_PRESENCE (1 << 0)

/** SRS-ResourceSet.resourceType.aperiodic */
struct aperiodic_s
{
    UINT8 aperiodicSrsResourceTrigger; /**< aperiodicSRS-ResourceTrigger, 1..3 */
    UINT8 bitMask;                     /**< bits RRC_SRS_RESOURCE_SET_APERIODIC_..._PRESENCE */
    UINT8 csiRsResourceId;             /**< csi-RS, 0..191 */
    UINT8 slotOffset;                  /**< slotOffset, 1..32, in slots */
};

/** SRS-ResourceSet.resourceType.semi-persistent */
struct semiPersistent_s
{
    UINT8 bitMask;           /**< bits RRC_SRS_RESOURCE_SET_SEMI_PERSISTENT_CSI_RS_PRESENCE */
    UINT8 associatedCsiRsId; /**< associatedCSI-RS, 0..191 */
};

/** SRS-ResourceSet.resourceType.periodic */
struct periodic_s
{
    UINT8 bitMask;           /**< bits RRC_SRS_RESOURCE_SET_PERIODIC_CSI_RS_PRESENCE */
    UINT8 associatedCsiRsId; /**< associatedCSI-RS, 0..191 */
};

/** SRS-ResourceSet.resourceType */
union resourceType_u
{
    struct aperiodic_s aperiodic;           /**< aperiodic */
    struct semiPersistent_s semiPersistent; /**< semi-persistent */
    struct periodic_s periodic;             /**< periodic */
};

/** RrcSRSPathLossRefRs_t.presence: chooses ssb-Index, in u.ssbIdx */
#define RRC_SRS_PATH_LOSS_REF_RS_SSB_IDX_PRESENCE (1 << 0)
/** RrcSRSPathLossRefRs_t.presence: chooses csi-RS-Index, in u.csiRsIdx */
#define RRC_SRS_PATH_LOSS_REF_RS_CSI_IDX_PRESENCE (1 << 1)

/** SRS-ResourceSet.pathlossReferenceRS */
typedef struct rrcSRSPathLossRefRs_s
{
    UINT8 presence; /**< bits RRC_SRS_PATH_LOSS_REF_RS_..._IDX_PRESENCE */
    union rrcSRSPathLossRefRs_u
    {
        UINT8 ssbIdx;   /**< ssb-Index, 0..63 */
        UINT8 csiRsIdx; /**< csi-RS-Index, 0..191 */
    } u;                /**< itself */
} RrcSRSPathLossRefRs_t;

/** RrcSrsResourceSet_t.presence: chooses resourceType.aperiodic, in resourceType.aperiodic */
#define RRC_SRS_RESOURCE_SET_TYPE_APERIODIC_PERSENCE (1 << 0)
/** RrcSrsResourceSet_t.presence: chooses resourceType.semi-persistent, in resourceType.semiPersistent */
#define RRC_SRS_RESOURCE_SET_TYPE_SEMI_PERSISTENT_PERSENCE (1 << 1)
/** RrcSrsResourceSet_t.presence: chooses resourceType.periodic, in resourceType.periodic */
#define RRC_SRS_RESOURCE_SET_TYPE_PERIODIC_PERSENCE (1 << 2)
/** RrcSrsResourceSet_t.presence: Alpha is given */
#define RRC_SRS_RESOURCE_SET_ALPHA_PERSENCE (1 << 3)
/** RrcSrsResourceSet_t.presence: p0 is given */
#define RRC_SRS_RESOURCE_SET_P0_PERSENCE (1 << 4)
/** RrcSrsResourceSet_t.presence: pathLossRefRs is given */
#define RRC_SRS_PATH_LOSS_REFERENCE_RS_PRESENT (1 << 5)
/** RrcSrsResourceSet_t.presence: srsPowerControlAdjustmentStates is given */
#define RRC_SRS_RESOURCE_SET_POWER_CTL_ADJ_PERSENCE (1 << 6)

/** SRS-ResourceSet */
typedef struct rrcSrsResourceSet_s
{
    UINT8 srsResourceSetId;                                 /**< srs-ResourceSetId, 0..15 */
    UINT8 numSrsResourceId;                                 /**< entries used of srsResourceId, 0..16; 0: not sent */
    UINT8 srsResourceId[RRC_MAX_NROF_SRS_RESOURCE_PER_SET]; /**< srs-ResourceIdList, each 0..63 */
    /**
     * bits RRC_SRS_RESOURCE_SET_... and RRC_SRS_PATH_LOSS_REFERENCE_RS_PRESENT; the first three choose resourceType,
     * the others guard members
     */
    UINT8 presence;
    union resourceType_u resourceType; /**< resourceType */
    /** usage, SRS_ResourceSet_usage_...: 0 beamManagement, 1 codebook, 2 nonCodebook, 3 antennaSwitching */
    UINT8 usage;
    /** alpha, Alpha_...: 0 alpha0, 1 alpha04, 2 alpha05, 3 alpha06, 4 alpha07, 5 alpha08, 6 alpha09, 7 alpha1 */
    UINT8 Alpha;
    int p0;                              /**< p0, -202..24, in dBm; an even number */
    RrcSRSPathLossRefRs_t pathLossRefRs; /**< pathlossReferenceRS */
    /**
     * srs-PowerControlAdjustmentStates, SRS_ResourceSet_srs_PowerControlAdjustmentStates_...: 0 sameAsFci2,
     * 1 separateClosedLoop
     */
    UINT8 srsPowerControlAdjustmentStates;
} RrcSrsResourceSet_t;

/** RrcSrsResource_t.presence: chooses transmissionComb.n2, in transmissionComb.n2 */
#define RRC_SRS_RESOURCE_TRANSMISSION_COMB_N2_PRESENCE (1 << 0)
/** RrcSrsResource_t.presence: chooses transmissionComb.n4, in transmissionComb.n4 */
#define RRC_SRS_RESOURCE_TRANSMISSION_COMB_N4_PRESENCE (1 << 1)

/** SRS-Resource.transmissionComb */
union transmissionComb_u
{
    struct rrcSrsCombN2_s
    {
        UINT8 combOffsetN2;  /**< combOffset-n2, 0..1 */
        UINT8 cyclicShiftN2; /**< cyclicShift-n2, 0..7 */
    } n2;                    /**< n2 */
    struct rrcSrsCombN4_s
    {
        UINT8 combOffsetN4;  /**< combOffset-n4, 0..3 */
        UINT8 cyclicShiftN4; /**< cyclicShift-n4, 0..11 */
    } n4;                    /**< n4 */
};

/** SRS-Resource.resourceMapping */
struct resourceMapping_s
{
    UINT8 startPos;    /**< startPosition, 0..5, in symbols; 0 is the last one of the slot */
    UINT8 nfofSymbols; /**< nrofSymbols, SRS_Resource_resourceMapping_nrofSymbols_...: 0 n1, 1 n2, 2 n4 */
    /** repetitionFactor, SRS_Resource_resourceMapping_repetitionFactor_...: 0 n1, 1 n2, 2 n4 */
    UINT8 repetitionFactor;
};

/** SRS-Resource.freqHopping */
struct freqHopping_s
{
    UINT8 cSrs; /**< c-SRS, 0..63 */
    UINT8 bSrs; /**< b-SRS, 0..3 */
    UINT8 bHop; /**< b-hop, 0..3 */
};

/** RrcSrsResource_t.presence1: chooses resourceType.aperiodic, in resourceType.aperiodic */
#define RRC_SRS_RESOURCE_TYPE_APERIODIC_PERSENCE (1 << 0)
/** RrcSrsResource_t.presence1: chooses resourceType.semi-persistent, in resourceType.semiPersistent */
#define RRC_SRS_RESOURCE_TYPE_SEMI_PERSISTENT_PERSENCE (1 << 1)
/** RrcSrsResource_t.presence1: chooses resourceType.periodic, in resourceType.periodic */
#define RRC_SRS_RESOURCE_TYPE_PERIODIC_PERSENCE (1 << 2)

/** SRS-Resource.resourceType.aperiodic; it has no members */
struct srsAperiodic_s
{
    UINT8 padding; /**< not read; gives the structure the same size in C and C++ */
};

/** SRS-Resource.resourceType.semi-persistent */
struct srsSemiPersistent_s
{
    /**
     * alternative of periodicityAndOffset-sp, T_SRS_PeriodicityAndOffset_...: 1 sl1, 2 sl2, 3 sl4, 4 sl5, 5 sl8,
     * 6 sl10, 7 sl16, 8 sl20, 9 sl32, 10 sl40, 11 sl64, 12 sl80, 13 sl160, 14 sl320, 15 sl640, 16 sl1280, 17 sl2560
     */
    UINT8 period;
    UINT16 offset; /**< value by period, in slots; below the period, sl1 has none */
};

/** SRS-Resource.resourceType.periodic */
struct srsPeriodic_s
{
    /**
     * alternative of periodicityAndOffset-p, T_SRS_PeriodicityAndOffset_...: 1 sl1, 2 sl2, 3 sl4, 4 sl5, 5 sl8, 6 sl10,
     * 7 sl16, 8 sl20, 9 sl32, 10 sl40, 11 sl64, 12 sl80, 13 sl160, 14 sl320, 15 sl640, 16 sl1280, 17 sl2560
     */
    UINT8 period;
    UINT16 offset; /**< value by period, in slots; below the period, sl1 has none */
};

/** SRS-Resource.resourceType */
union srsResourceType_u
{
    struct srsAperiodic_s aperiodic;           /**< aperiodic */
    struct srsSemiPersistent_s semiPersistent; /**< semi-persistent */
    struct srsPeriodic_s periodic;             /**< periodic */
};

/** RrcSrsSpatialRelationInfo_t.bitMask: servingCellId is given */
#define RRC_SRS_SERVING_CELL_ID (1 << 0)

/** RrcSrsSpatialRelationInfo_t.presence: chooses referenceSignal.ssb-Index, in refSig.ssbIdx */
#define RRC_SRS_SPATIAL_RELATION_INFO_SSB_PRESENCE (1 << 0)
/** RrcSrsSpatialRelationInfo_t.presence: chooses referenceSignal.csi-RS-Index, in refSig.csiRsIdx */
#define RRC_SRS_SPATIAL_RELATION_INFO_CSI_RS_PRESENCE (1 << 1)
/** RrcSrsSpatialRelationInfo_t.presence: chooses referenceSignal.srs, in refSig.srs */
#define RRC_SRS_SPATIAL_RELATION_INFO_SRS_PRESENCE (1 << 2)

/** SRS-SpatialRelationInfo.referenceSignal.srs */
struct srsSpatial_s
{
    UINT8 resourceId; /**< resourceId, 0..63 */
    UINT8 ulBwpId;    /**< uplinkBWP, 0..4 */
};

/** SRS-SpatialRelationInfo.referenceSignal */
union srsRefSig_u
{
    UINT8 ssbIdx;            /**< ssb-Index, 0..63 */
    UINT8 csiRsIdx;          /**< csi-RS-Index, 0..191 */
    struct srsSpatial_s srs; /**< srs */
};

/** SRS-SpatialRelationInfo */
typedef struct rrcSrsSpatialRelationInfo_s
{
    UINT8 bitMask;            /**< bits RRC_SRS_SERVING_CELL_ID */
    UINT8 servingCellId;      /**< servingCellId, 0..31 */
    UINT8 presence;           /**< bits RRC_SRS_SPATIAL_RELATION_INFO_..._PRESENCE */
    union srsRefSig_u refSig; /**< referenceSignal */
} RrcSrsSpatialRelationInfo_t;

/** RrcSrsResource_t.bitMask: ptrsPortIdx is given */
#define RRC_SRS_RESOURCE_PTRS_PORT_IDX_PRESENCE (1 << 0)
/** RrcSrsResource_t.bitMask: spatialRelationInfo is given */
#define RRC_SRS_RESOURCE_PTRS_SPATIAL_RELATION_INFO_PRESENCE (1 << 1)

/** SRS-Resource */
typedef struct rrcSrsResource_s
{
    UINT8 srsResourceId; /**< srs-ResourceId, 0..63 */
    UINT8 nrofSrsPotrs;  /**< nrofSRS-Ports, SRS_Resource_nrofSRS_Ports_...: 0 port1, 1 ports2, 2 ports4 */
    UINT8 presence;      /**< bits RRC_SRS_RESOURCE_TRANSMISSION_COMB_..._PRESENCE */
    union transmissionComb_u transmissionComb; /**< transmissionComb */
    struct resourceMapping_s resourceMapping;  /**< resourceMapping */
    UINT8 freqDomainPostion;                   /**< freqDomainPosition, 0..67 */
    UINT16 freqDomainShift;                    /**< freqDomainShift, 0..268, in PRBs */
    struct freqHopping_s freqHopping;          /**< freqHopping */
    /** groupOrSequenceHopping, SRS_Resource_groupOrSequenceHopping_...: 0 neither, 1 groupHopping, 2 sequenceHopping */
    UINT8 groupOrSeqHopping;
    UINT8 presence1;                                 /**< bits RRC_SRS_RESOURCE_TYPE_..._PERSENCE */
    union srsResourceType_u resourceType;            /**< resourceType */
    UINT16 seqId;                                    /**< sequenceId, 0..1023 */
    UINT8 bitMask;                                   /**< bits RRC_SRS_RESOURCE_PTRS_..._PRESENCE */
    UINT8 ptrsPortIdx;                               /**< ptrs-PortIndex, SRS_Resource_ptrs_PortIndex_...: 0 n0, 1 n1 */
    RrcSrsSpatialRelationInfo_t spatialRelationInfo; /**< spatialRelationInfo */
} RrcSrsResource_t;

/** RrcSrsCfg_t.bitMask: tpcAccumulation is given */
#define RRC_SRS_CFG_TPC_ACCUMULATION_PRESENCE (1 << 0)

/** SRS-Config. A list is sent when its count is not 0. */
typedef struct rrcSrsCfg_s
{
    UINT8 numSrsResourceSetAddMod;                                    /**< entries used of srsResourceSet, 0..16 */
    RrcSrsResourceSet_t srsResourceSet[RRC_MAX_NROF_SRS_RESOURCESET]; /**< srs-ResourceSetToAddModList */
    UINT8 numSrsResourceSetRel;                                       /**< entries used of srsResourceSetId, 0..16 */
    UINT8 srsResourceSetId[RRC_MAX_NROF_SRS_RESOURCESET];             /**< srs-ResourceSetToReleaseList, each 0..15 */
    UINT8 numSrsResourceAddMod;                                       /**< entries used of srsResource, 0..64 */
    RrcSrsResource_t srsResource[RRC_MAX_NROF_SRS_RESOURCE];          /**< srs-ResourceToAddModList */
    UINT8 numSrsResourceRel;                                          /**< entries used of srsResourceId, 0..64 */
    UINT8 srsResourceId[RRC_MAX_NROF_SRS_RESOURCE];                   /**< srs-ResourceToReleaseList, each 0..63 */
    UINT8 bitMask;                                                    /**< bits RRC_SRS_CFG_TPC_ACCUMULATION_PRESENCE */
    UINT8 tpcAccumulation; /**< tpc-Accumulation, SRS_Config_tpc_Accumulation_...: 0 disabled */
} RrcSrsCfg_t;

#ifdef __cplusplus
}
#endif

#endif
