#ifndef RRCPUCCH_H
#define RRCPUCCH_H

#include "vos_types.h"

/*
 * PUCCH of a dedicated uplink bandwidth part (TS 38.331 PUCCH-Config). Enumerated fields hold the integer of the ASN.1
 * enumeration; a BOOL that stands for ENUMERATED {enabled} or {true} holds 0. Octets that mirror a signed INTEGER hold
 * its two's complement.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** maxNrofSR-Resources */
#define RRC_MAX_NROF_SR_RESOURCES 8
/** Bound of multi-CSI-PUCCH-ResourceList */
#define RRC_MAX_MULTI_CSI_PUCCH_RESOURCEID 2
/** Bound of dl-DataToUL-ACK */
#define RRC_MAX_DL_DATA_TO_UL_ACK 8
/** maxNrofSpatialRelationInfos */
#define RRC_MAX_NROF_SPATIAL_RELEATION_INFOS 8
/** maxNrofPUCCH-P0-PerSet */
#define RRC_MAX_NROF_PUCCH_P0_PER_SET 8
/** maxNrofPUCCH-PathlossReferenceRSs */
#define RRC_MAX_NROF_PUCCH_PATH_LOSS_REF_RSs 4

/** RrcPucchResourceSet_t.bitMask: maxPayloadMinus1 is given */
#define RRC_PUCCH_RESOURCE_SET_MAX_PAYLOAD_MINUS1_PRESENCE (1 << 0)

/** PUCCH-ResourceSet */
typedef struct rrcPucchResourceSet_s
{
    UINT8 pucchResourceSetId;  /**< pucch-ResourceSetId, 0..3 */
    UINT8 numResourceList;     /**< entries used of pucchResourceId, 1..32 */
    UINT8 pucchResourceId[32]; /**< resourceList, each 0..127 */
    UINT8 bitMask;             /**< RRC_PUCCH_RESOURCE_SET_... */
    UINT16 maxPayloadMinus1;   /**< maxPayloadMinus1, 4..256 */
} RrcPucchResourceSet_t;

/** PUCCH-format0 */
typedef struct rrcPucchFormat0_s
{
    UINT8 initialCyclicShift; /**< initialCyclicShift, 0..11 */
    UINT8 nrofSymbols;        /**< nrofSymbols, 1..2 */
    UINT8 startingSymbolIdx;  /**< startingSymbolIndex, 0..13 */
} RrcPucchFormat0_t;

/** PUCCH-format1 */
typedef struct rrcPucchFormat1_s
{
    UINT8 initialCyclicShift; /**< initialCyclicShift, 0..11 */
    UINT8 nrofSymbols;        /**< nrofSymbols, 4..14 */
    UINT8 startingSymbolIdx;  /**< startingSymbolIndex, 0..10 */
    UINT8 timeDomainOCC;      /**< timeDomainOCC, 0..6 */
} RrcPucchFormat1_t;

/** PUCCH-format2 */
typedef struct rrcPucchFormat2_s
{
    UINT8 nrofPRBs;          /**< nrofPRBs, 1..16 */
    UINT8 nrofSymbols;       /**< nrofSymbols, 1..2 */
    UINT8 startingSymbolIdx; /**< startingSymbolIndex, 0..13 */
} RrcPucchFormat2_t;

/** PUCCH-format3 */
typedef struct rrcPucchFormat3_s
{
    UINT8 nrofPRBs;          /**< nrofPRBs, 1..16 */
    UINT8 nrofSymbols;       /**< nrofSymbols, 4..14 */
    UINT8 startingSymbolIdx; /**< startingSymbolIndex, 0..10 */
} RrcPucchFormat3_t;

/** PUCCH-format4 */
typedef struct rrcPucchFormat4_s
{
    UINT8 nrofSymbols;       /**< nrofSymbols, 4..14 */
    UINT8 occLength;         /**< occ-Length, enumeration n2, n4 (0..1) */
    UINT8 occIdx;            /**< occ-Index, enumeration n0.. (0..3) */
    UINT8 startingSymbolIdx; /**< startingSymbolIndex, 0..10 */
} RrcPucchFormat4_t;

/** RrcPucchResource_t.presence: the alternative of format; the highest bit set wins, with none the encoder refuses */
#define RRC_PUCCH_RESOURCE_FORMAT0_PRESENCE (1 << 0)
#define RRC_PUCCH_RESOURCE_FORMAT1_PRESENCE (1 << 1)
#define RRC_PUCCH_RESOURCE_FORMAT2_PRESENCE (1 << 2)
#define RRC_PUCCH_RESOURCE_FORMAT3_PRESENCE (1 << 3)
#define RRC_PUCCH_RESOURCE_FORMAT4_PRESENCE (1 << 4)

/** RrcPucchResource_t.bitMask: intraSlotFreqHopping is given */
#define RRC_PUCCH_RESOURCE_INTRA_SLOT_FREQ_HOPPING_PRESENCE (1 << 0)
/** RrcPucchResource_t.bitMask: secondHopPRB is given */
#define RRC_PUCCH_RESOURCE_SECOND_HOPPING_PRB_PRESENCE (1 << 1)

/** PUCCH-Resource */
typedef struct rrcPucchResource_s
{
    UINT8 pucchResourceId; /**< pucch-ResourceId, 0..127 */
    UINT16 startingPRB;    /**< startingPRB, 0..274 */
    UINT8 presence;        /**< RRC_PUCCH_RESOURCE_FORMAT0_PRESENCE ...: alternative of format */
    union rrcPucchResourceFormat_u
    {
        RrcPucchFormat0_t format0; /**< RRC_PUCCH_RESOURCE_FORMAT0_PRESENCE */
        RrcPucchFormat1_t format1; /**< RRC_PUCCH_RESOURCE_FORMAT1_PRESENCE */
        RrcPucchFormat2_t format2; /**< RRC_PUCCH_RESOURCE_FORMAT2_PRESENCE */
        RrcPucchFormat3_t format3; /**< RRC_PUCCH_RESOURCE_FORMAT3_PRESENCE */
        RrcPucchFormat4_t format4; /**< RRC_PUCCH_RESOURCE_FORMAT4_PRESENCE */
    } format;
    UINT8 bitMask;              /**< RRC_PUCCH_RESOURCE_INTRA_SLOT_..., ..._SECOND_HOPPING_... */
    UINT8 intraSlotFreqHopping; /**< intraSlotFrequencyHopping, enumeration enabled (0) */
    UINT16 secondHopPRB;        /**< secondHopPRB, 0..274 */
} RrcPucchResource_t;

/** RrcPucchFormatCfg_t.bitMask. The last two bits stand in the reverse of the standard's order. */
#define RRC_PUCCH_FORMAT_CFG_INTER_SLOT_FREQ_HOPPING_PRESENCE (1 << 0)
#define RRC_PUCCH_FORMAT_CFG_ADDITIONAL_DMRS_PRESENCE (1 << 1)
#define RRC_PUCCH_FORMAT_CFG_MAX_CODE_RATE_PRESENCE (1 << 2)
#define RRC_PUCCH_FORMAT_CFG_NR_OF_SLOTS_PRESENCE (1 << 3)
#define RRC_PUCCH_FORMAT_CFG_SIMULTANEOUS_HARQ_ACK_CSI_PRESENCE (1 << 4)
#define RRC_PUCCH_FORMAT_CFG_PI2BPSK_PRESENCE (1 << 5)

/** PUCCH-FormatConfig */
typedef struct rrcPucchFormatCfg_s
{
    UINT8 bitMask;               /**< RRC_PUCCH_FORMAT_CFG_... */
    BOOL interSlotFreqHopping;   /**< interslotFrequencyHopping, enumeration enabled (0) */
    BOOL additionalDMRS;         /**< additionalDMRS, enumeration true (0) */
    UINT8 maxCodeRate;           /**< maxCodeRate, enumeration zeroDot08.. (0..6) */
    UINT8 nrofSlots;             /**< nrofSlots, enumeration n2, n4, n8 (0..2) */
    BOOL pi2BPSK;                /**< pi2BPSK, enumeration enabled (0) */
    BOOL sumultaneousHarqAckCsi; /**< simultaneousHARQ-ACK-CSI, enumeration true (0) */
} RrcPucchFormatCfg_t;

/** RrcSchedReqResourceCfg_t.bitMask: presence and periodAndOffset are given */
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_PRESENCE (1 << 0)
/** RrcSchedReqResourceCfg_t.bitMask: pucchResourceId is given */
#define RRC_SCHED_REQ_RESOURCE_CFG_PUCCH_RESOURCE_ID_PRESENCE (1 << 1)

/** RrcSchedReqResourceCfg_t.presence: the alternative of periodicityAndOffset; the highest bit set wins */
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SYM2 (1 << 0)
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SYM6OR7 (1 << 1)
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL1 (1 << 2)
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL2 (1 << 3)
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL4 (1 << 4)
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL5 (1 << 5)
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL8 (1 << 6)
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL10 (1 << 7)
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL16 (1 << 8)
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL20 (1 << 9)
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL40 (1 << 10)
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL80 (1 << 11)
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL160 (1 << 12)
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL320 (1 << 13)
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL640 (1 << 14)

/** SchedulingRequestResourceConfig */
typedef struct rrcSchedReqResourceCfg_s
{
    UINT8 schedReqResourceId; /**< schedulingRequestResourceId, 1..8 */
    UINT8 schedReqId;         /**< schedulingRequestID, 0..7 */
    UINT8 bitMask;            /**< RRC_SCHED_REQ_RESOURCE_CFG_..._PRESENCE */
    UINT8 pucchResourceId;    /**< resource, 0..127 */
    UINT32 presence;          /**< RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SYM2 ...: periodicity */
    struct rrcSchedReqPeriodAndOffset_s
    {
        UINT8 period;  /**< not read: presence tells the periodicity */
        UINT16 offset; /**< offset in slots, below the periodicity; none for sym2, sym6or7, sl1 */
    } periodAndOffset;
} RrcSchedReqResourceCfg_t;

/** RrcPucchSpatialRelationInfo_t.presence: the alternative of referSignal; the highest bit set wins */
#define RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_SSBIDX_PRESENCE (1 << 0)
#define RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_CSIRSIDX_PRESENCE (1 << 1)
#define RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_SRSIDX_PRESENCE (1 << 2)

/** RrcPucchSpatialRelationInfo_t.bitMask: servingCellId is given */
#define RRC_PUCCH_SPATIAL_RELEATION_INFO_SERVING_CELLID_PRESENCE (1 << 0)

/** PUCCH-SpatialRelationInfo */
typedef struct rrcPucchSpatialRelationInfo_s
{
    UINT8 pucchSpatialRelationInfoId; /**< pucch-SpatialRelationInfoId, 1..8 */
    UINT8 presence;                   /**< RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_... */
    union rrcPucchReferSignal_u
    {
        UINT8 ssbIdx;   /**< ssb-Index, 0..63 */
        UINT8 csiRsIdx; /**< csi-RS-Index, 0..191 */
        struct rrcPucchReferSignalSrs_s
        {
            UINT8 srsResourceId; /**< resource, 0..63 */
            UINT8 ulBwpId;       /**< uplinkBWP, 0..4 */
        } srs;                   /**< srs */
    } referSignal;
    UINT8 pucchPathLossRefRsId; /**< pucch-PathlossReferenceRS-Id, 0..3 */
    UINT8 p0PucchId;            /**< p0-PUCCH-Id, 1..8 */
    UINT8 closedLoodIdx;        /**< closedLoopIndex, enumeration i0, i1 (0..1) */
    UINT8 bitMask;              /**< RRC_PUCCH_SPATIAL_RELEATION_INFO_SERVING_CELLID_PRESENCE */
    UINT8 servingCellId;        /**< servingCellId, 0..31 */
} RrcPucchSpatialRelationInfo_t;

/** P0-PUCCH */
typedef struct rrcP0Pucch_s
{
    UINT8 p0PucchId;    /**< p0-PUCCH-Id, 1..8 */
    UINT8 poPucchValue; /**< p0-PUCCH-Value, -16..15 as two's complement */
} RrcP0Pucch_t;

/** RrcPucchPathLossRefRs_t.presence: the alternative of refSignal; the higher bit wins */
#define RRC_PUCCH_PATH_LOSS_REF_RS_SSB_IDX_PRESENCE (1 << 0)
#define RRC_PUCCH_PATH_LOSS_REF_RS_CSI_IDX_PRESENCE (1 << 1)

/** PUCCH-PathlossReferenceRS */
typedef struct rrcPucchPathLossRefRs_s
{
    UINT8 pucchPathLossRefRsId; /**< pucch-PathlossReferenceRS-Id, 0..3 */
    UINT8 presence;             /**< RRC_PUCCH_PATH_LOSS_REF_RS_... */
    union rrcPucchPathLossRefSignal_u
    {
        UINT8 ssbIdx;   /**< ssb-Index, 0..63 */
        UINT8 csiRsIdx; /**< csi-RS-Index, 0..191 */
    } refSignal;
} RrcPucchPathLossRefRs_t;

/** RrcPucchPowerControl_t.bitMask: deltaFPucchF0 ... deltaFPucchF4 are given */
#define RRC_PUCCH_POWER_CONTROL_F0_PRESENCE (1 << 0)
#define RRC_PUCCH_POWER_CONTROL_F1_PRESENCE (1 << 1)
#define RRC_PUCCH_POWER_CONTROL_F2_PRESENCE (1 << 2)
#define RRC_PUCCH_POWER_CONTROL_F3_PRESENCE (1 << 3)
#define RRC_PUCCH_POWER_CONTROL_F4_PRESENCE (1 << 4)
/** RrcPucchPowerControl_t.bitMask: numP0Set and p0Set are given */
#define RRC_PUCCH_POWER_CONTROL_P0_SET_PRESENCE (1 << 5)
/** RrcPucchPowerControl_t.bitMask: numPathLossRefRs and pathLossRefRs are given */
#define RRC_PUCCH_POWER_CONTROL_PATH_REFERENCE_RSS (1 << 6)
/** RrcPucchPowerControl_t.bitMask: twoPucchPcAdjStates is given */
#define RRC_PUCCH_POWER_CONTROL_TWO_PUCCH_PC_ADJ_STATES_PRESENCE (1 << 7)

/** PUCCH-PowerControl. A list that is given needs at least one entry. */
typedef struct rrcPucchPowerControl_s
{
    UINT8 numP0Set;                                                              /**< entries used of p0Set, 1..8 */
    RrcP0Pucch_t p0Set[RRC_MAX_NROF_PUCCH_P0_PER_SET];                           /**< p0-Set */
    UINT8 numPathLossRefRs;                                                      /**< entries of pathLossRefRs, 1..4 */
    RrcPucchPathLossRefRs_t pathLossRefRs[RRC_MAX_NROF_PUCCH_PATH_LOSS_REF_RSs]; /**< pathlossReferenceRSs */
    UINT8 bitMask;                                                               /**< RRC_PUCCH_POWER_CONTROL_... */
    UINT8 deltaFPucchF0;       /**< deltaF-PUCCH-f0, -16..15 as two's complement */
    UINT8 deltaFPucchF1;       /**< deltaF-PUCCH-f1, -16..15 as two's complement */
    UINT8 deltaFPucchF2;       /**< deltaF-PUCCH-f2, -16..15 as two's complement */
    UINT8 deltaFPucchF3;       /**< deltaF-PUCCH-f3, -16..15 as two's complement */
    UINT8 deltaFPucchF4;       /**< deltaF-PUCCH-f4, -16..15 as two's complement */
    UINT8 twoPucchPcAdjStates; /**< twoPUCCH-PC-AdjustmentStates, enumeration twoStates (0) */
} RrcPucchPowerControl_t;

/** RrcPucchCfg_t.bitMask: format1 ... format4 are given */
#define RRC_PUCCH_CFG_FORMAT1_PRESENCE (1 << 0)
#define RRC_PUCCH_CFG_FORMAT2_PRESENCE (1 << 1)
#define RRC_PUCCH_CFG_FORMAT3_PRESENCE (1 << 2)
#define RRC_PUCCH_CFG_FORMAT4_PRESENCE (1 << 3)
/** RrcPucchCfg_t.bitMask: pucchPowerControl is given */
#define RRC_PUCCH_CFG_POWER_CONTROL_PRESENCE (1 << 4)

/** PUCCH-Config. A list is sent when its count is not 0. */
typedef struct rrcPucchCfg_s
{
    UINT8 numResourceSetAddMod;           /**< entries used of resourceSet, 0..4 */
    RrcPucchResourceSet_t resourceSet[4]; /**< resourceSetToAddModList */
    /** resourceSetToReleaseList has this many ids, 0..4; of resourceSetId only the first numResourceSetAddMod are sent
     */
    UINT8 numResourceSetRel;
    UINT8 resourceSetId[4];                                               /**< resourceSetToReleaseList, each 0..3 */
    UINT8 numResourceAddMod;                                              /**< entries used of resource, 0..128 */
    RrcPucchResource_t resource[128];                                     /**< resourceToAddModList */
    UINT8 numResourceRel;                                                 /**< entries of pucchResouceId, 0..128 */
    UINT8 pucchResouceId[128];                                            /**< resourceToReleaseList, each 0..127 */
    UINT8 numSchedReqResourceCfgAddMod;                                   /**< entries of schedReqResource, 0..8 */
    RrcSchedReqResourceCfg_t schedReqResource[RRC_MAX_NROF_SR_RESOURCES]; /**< schedulingRequestResourceToAddModList */
    UINT8 numSchedReqResourceCfgRel;                                      /**< entries of schedReqResourceId, 0..8 */
    UINT8 schedReqResourceId[RRC_MAX_NROF_SR_RESOURCES]; /**< schedulingRequestResourceToReleaseList, each 1..8 */
    UINT8 numMultiCsiPucchResourceId;                    /**< entries of multiCsiPucchResourceId, 0..2 */
    UINT8 multiCsiPucchResourceId[RRC_MAX_MULTI_CSI_PUCCH_RESOURCEID]; /**< multi-CSI-PUCCH-ResourceList, 0..127 */
    UINT8 numDlData2UlACK;                                             /**< entries used of dlData2UlACK, 0..8 */
    UINT8 dlData2UlACK[RRC_MAX_DL_DATA_TO_UL_ACK];                     /**< dl-DataToUL-ACK, each 0..15 */
    UINT8 numSpatialRelationInfoAddMod;                                /**< entries of spatialRelationInfo, 0..8 */
    /** spatialRelationInfoToAddModList */
    RrcPucchSpatialRelationInfo_t spatialRelationInfo[RRC_MAX_NROF_SPATIAL_RELEATION_INFOS];
    UINT8 numSpatialRelationInfoRel;                                   /**< entries of spatialRelationInfoId, 0..8 */
    UINT8 spatialRelationInfoId[RRC_MAX_NROF_SPATIAL_RELEATION_INFOS]; /**< spatialRelationInfoToReleaseList, 1..8 */
    UINT8 bitMask;                                                     /**< RRC_PUCCH_CFG_... */
    RrcPucchFormatCfg_t format1;                                       /**< format1 */
    RrcPucchFormatCfg_t format2;                                       /**< format2 */
    RrcPucchFormatCfg_t format3;                                       /**< format3 */
    RrcPucchFormatCfg_t format4;                                       /**< format4 */
    RrcPucchPowerControl_t pucchPowerControl;                          /**< pucch-PowerControl */
} RrcPucchCfg_t;

#ifdef __cplusplus
}
#endif

#endif
