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
    UINT8 bitMask;                     /**< RRC_SRS_RESOURCE_SET_APERIODIC_... */
    UINT8 csiRsResourceId;             /**< csi-RS, 0..191 */
    UINT8 slotOffset;                  /**< slotOffset, 1..32 */
};

/** SRS-ResourceSet.resourceType.semi-persistent */
struct semiPersistent_s
{
    UINT8 bitMask;           /**< RRC_SRS_RESOURCE_SET_SEMI_PERSISTENT_CSI_RS_PRESENCE */
    UINT8 associatedCsiRsId; /**< associatedCSI-RS, 0..191 */
};

/** SRS-ResourceSet.resourceType.periodic */
struct periodic_s
{
    UINT8 bitMask;           /**< RRC_SRS_RESOURCE_SET_PERIODIC_CSI_RS_PRESENCE */
    UINT8 associatedCsiRsId; /**< associatedCSI-RS, 0..191 */
};

/** SRS-ResourceSet.resourceType, by RrcSrsResourceSet_t.presence */
union resourceType_u
{
    struct aperiodic_s aperiodic;           /**< RRC_SRS_RESOURCE_SET_TYPE_APERIODIC_PERSENCE */
    struct semiPersistent_s semiPersistent; /**< RRC_SRS_RESOURCE_SET_TYPE_SEMI_PERSISTENT_PERSENCE */
    struct periodic_s periodic;             /**< RRC_SRS_RESOURCE_SET_TYPE_PERIODIC_PERSENCE */
};

/** RrcSRSPathLossRefRs_t.presence: the alternative of u; the higher bit wins, with none the encoder refuses */
#define RRC_SRS_PATH_LOSS_REF_RS_SSB_IDX_PRESENCE (1 << 0)
#define RRC_SRS_PATH_LOSS_REF_RS_CSI_IDX_PRESENCE (1 << 1)

/** SRS-ResourceSet.pathlossReferenceRS */
typedef struct rrcSRSPathLossRefRs_s
{
    UINT8 presence; /**< RRC_SRS_PATH_LOSS_REF_RS_... */
    union rrcSRSPathLossRefRs_u
    {
        UINT8 ssbIdx;   /**< ssb-Index, 0..63 */
        UINT8 csiRsIdx; /**< csi-RS-Index, 0..191 */
    } u;
} RrcSRSPathLossRefRs_t;

/** RrcSrsResourceSet_t.presence: the alternative of resourceType; the highest bit set wins, with none the encoder
 * refuses */
#define RRC_SRS_RESOURCE_SET_TYPE_APERIODIC_PERSENCE (1 << 0)
#define RRC_SRS_RESOURCE_SET_TYPE_SEMI_PERSISTENT_PERSENCE (1 << 1)
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
    UINT8 presence;                                         /**< RRC_SRS_RESOURCE_SET_..., RRC_SRS_PATH_LOSS_... */
    union resourceType_u resourceType;                      /**< resourceType */
    UINT8 usage;                                            /**< usage, enumeration beamManagement.. (0..3) */
    UINT8 Alpha;                                            /**< alpha, enumeration alpha0.. (0..7) */
    int p0;                                                 /**< p0, dBm, -202..24 */
    RrcSRSPathLossRefRs_t pathLossRefRs;                    /**< pathlossReferenceRS */
    UINT8 srsPowerControlAdjustmentStates; /**< srs-PowerControlAdjustmentStates, enumeration sameAsFci2.. (0..1) */
} RrcSrsResourceSet_t;

/** RrcSrsResource_t.presence: the alternative of transmissionComb; the higher bit wins, with none the encoder refuses
 */
#define RRC_SRS_RESOURCE_TRANSMISSION_COMB_N2_PRESENCE (1 << 0)
#define RRC_SRS_RESOURCE_TRANSMISSION_COMB_N4_PRESENCE (1 << 1)

/** SRS-Resource.transmissionComb, by RrcSrsResource_t.presence */
union transmissionComb_u
{
    struct rrcSrsCombN2_s
    {
        UINT8 combOffsetN2;  /**< combOffset-n2, 0..1 */
        UINT8 cyclicShiftN2; /**< cyclicShift-n2, 0..7 */
    } n2;                    /**< RRC_SRS_RESOURCE_TRANSMISSION_COMB_N2_PRESENCE */
    struct rrcSrsCombN4_s
    {
        UINT8 combOffsetN4;  /**< combOffset-n4, 0..3 */
        UINT8 cyclicShiftN4; /**< cyclicShift-n4, 0..11 */
    } n4;                    /**< RRC_SRS_RESOURCE_TRANSMISSION_COMB_N4_PRESENCE */
};

/** SRS-Resource.resourceMapping */
struct resourceMapping_s
{
    UINT8 startPos;         /**< startPosition, 0..5 */
    UINT8 nfofSymbols;      /**< nrofSymbols, enumeration n1, n2, n4 (0..2) */
    UINT8 repetitionFactor; /**< repetitionFactor, enumeration n1, n2, n4 (0..2) */
};

/** SRS-Resource.freqHopping */
struct freqHopping_s
{
    UINT8 cSrs; /**< c-SRS, 0..63 */
    UINT8 bSrs; /**< b-SRS, 0..3 */
    UINT8 bHop; /**< b-hop, 0..3 */
};

/** RrcSrsResource_t.presence1: the alternative of resourceType; the highest bit set wins, with none the encoder refuses
 */
#define RRC_SRS_RESOURCE_TYPE_APERIODIC_PERSENCE (1 << 0)
#define RRC_SRS_RESOURCE_TYPE_SEMI_PERSISTENT_PERSENCE (1 << 1)
#define RRC_SRS_RESOURCE_TYPE_PERIODIC_PERSENCE (1 << 2)

/** SRS-Resource.resourceType.aperiodic, which has no members */
struct srsAperiodic_s
{
    UINT8 padding; /**< not read: gives the structure the same size in C and C++ */
};

/** SRS-Resource.resourceType.semi-persistent */
struct srsSemiPersistent_s
{
    UINT8 period;  /**< tag of SRS-PeriodicityAndOffset: sl1 is 1, sl2 2 ... sl2560 17 */
    UINT16 offset; /**< offset in slots, below the periodicity; none for sl1 */
};

/** SRS-Resource.resourceType.periodic */
struct srsPeriodic_s
{
    UINT8 period;  /**< tag of SRS-PeriodicityAndOffset: sl1 is 1, sl2 2 ... sl2560 17 */
    UINT16 offset; /**< offset in slots, below the periodicity; none for sl1 */
};

/** SRS-Resource.resourceType, by RrcSrsResource_t.presence1 */
union srsResourceType_u
{
    struct srsAperiodic_s aperiodic;           /**< RRC_SRS_RESOURCE_TYPE_APERIODIC_PERSENCE */
    struct srsSemiPersistent_s semiPersistent; /**< RRC_SRS_RESOURCE_TYPE_SEMI_PERSISTENT_PERSENCE */
    struct srsPeriodic_s periodic;             /**< RRC_SRS_RESOURCE_TYPE_PERIODIC_PERSENCE */
};

/** RrcSrsSpatialRelationInfo_t.bitMask: servingCellId is given */
#define RRC_SRS_SERVING_CELL_ID (1 << 0)

/** RrcSrsSpatialRelationInfo_t.presence: the alternative of refSig; the highest bit set wins, with none the encoder
 * refuses */
#define RRC_SRS_SPATIAL_RELATION_INFO_SSB_PRESENCE (1 << 0)
#define RRC_SRS_SPATIAL_RELATION_INFO_CSI_RS_PRESENCE (1 << 1)
#define RRC_SRS_SPATIAL_RELATION_INFO_SRS_PRESENCE (1 << 2)

/** SRS-SpatialRelationInfo.referenceSignal.srs */
struct srsSpatial_s
{
    UINT8 resourceId; /**< resourceId, 0..63 */
    UINT8 ulBwpId;    /**< uplinkBWP, 0..4 */
};

/** SRS-SpatialRelationInfo.referenceSignal, by RrcSrsSpatialRelationInfo_t.presence */
union srsRefSig_u
{
    UINT8 ssbIdx;            /**< ssb-Index, 0..63 */
    UINT8 csiRsIdx;          /**< csi-RS-Index, 0..191 */
    struct srsSpatial_s srs; /**< srs */
};

/** SRS-SpatialRelationInfo */
typedef struct rrcSrsSpatialRelationInfo_s
{
    UINT8 bitMask;            /**< RRC_SRS_SERVING_CELL_ID */
    UINT8 servingCellId;      /**< servingCellId, 0..31 */
    UINT8 presence;           /**< RRC_SRS_SPATIAL_RELATION_INFO_... */
    union srsRefSig_u refSig; /**< referenceSignal */
} RrcSrsSpatialRelationInfo_t;

/** RrcSrsResource_t.bitMask: ptrsPortIdx is given */
#define RRC_SRS_RESOURCE_PTRS_PORT_IDX_PRESENCE (1 << 0)
/** RrcSrsResource_t.bitMask: spatialRelationInfo is given */
#define RRC_SRS_RESOURCE_PTRS_SPATIAL_RELATION_INFO_PRESENCE (1 << 1)

/** SRS-Resource */
typedef struct rrcSrsResource_s
{
    UINT8 srsResourceId;                             /**< srs-ResourceId, 0..63 */
    UINT8 nrofSrsPotrs;                              /**< nrofSRS-Ports, enumeration port1, ports2, ports4 (0..2) */
    UINT8 presence;                                  /**< RRC_SRS_RESOURCE_TRANSMISSION_COMB_... */
    union transmissionComb_u transmissionComb;       /**< transmissionComb */
    struct resourceMapping_s resourceMapping;        /**< resourceMapping */
    UINT8 freqDomainPostion;                         /**< freqDomainPosition, 0..67 */
    UINT16 freqDomainShift;                          /**< freqDomainShift, 0..268 */
    struct freqHopping_s freqHopping;                /**< freqHopping */
    UINT8 groupOrSeqHopping;                         /**< groupOrSequenceHopping, enumeration neither.. (0..2) */
    UINT8 presence1;                                 /**< RRC_SRS_RESOURCE_TYPE_... */
    union srsResourceType_u resourceType;            /**< resourceType */
    UINT16 seqId;                                    /**< sequenceId, 0..1023 */
    UINT8 bitMask;                                   /**< RRC_SRS_RESOURCE_PTRS_... */
    UINT8 ptrsPortIdx;                               /**< ptrs-PortIndex, enumeration n0, n1 (0..1) */
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
    UINT8 bitMask;                                                    /**< RRC_SRS_CFG_TPC_ACCUMULATION_PRESENCE */
    UINT8 tpcAccumulation;                                            /**< tpc-Accumulation, enumeration disabled (0) */
} RrcSrsCfg_t;

#ifdef __cplusplus
}
#endif

#endif
