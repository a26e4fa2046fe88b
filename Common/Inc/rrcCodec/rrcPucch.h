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
    UINT8 bitMask;             /**< bits RRC_PUCCH_RESOURCE_SET_MAX_PAYLOAD_MINUS1_PRESENCE */
    UINT16 maxPayloadMinus1;   /**< maxPayloadMinus1, 4..256, in bits */
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
    UINT8 occLength;         /**< occ-Length, PUCCH_format4_occ_Length_...: 0 n2, 1 n4 */
    UINT8 occIdx;            /**< occ-Index, PUCCH_format4_occ_Index_...: 0 n0, 1 n1, 2 n2, 3 n3 */
    UINT8 startingSymbolIdx; /**< startingSymbolIndex, 0..10 */
} RrcPucchFormat4_t;

/** RrcPucchResource_t.presence: chooses format.format0, in format.format0 */
#define RRC_PUCCH_RESOURCE_FORMAT0_PRESENCE (1 << 0)
/** RrcPucchResource_t.presence: chooses format.format1, in format.format1 */
#define RRC_PUCCH_RESOURCE_FORMAT1_PRESENCE (1 << 1)
/** RrcPucchResource_t.presence: chooses format.format2, in format.format2 */
#define RRC_PUCCH_RESOURCE_FORMAT2_PRESENCE (1 << 2)
/** RrcPucchResource_t.presence: chooses format.format3, in format.format3 */
#define RRC_PUCCH_RESOURCE_FORMAT3_PRESENCE (1 << 3)
/** RrcPucchResource_t.presence: chooses format.format4, in format.format4 */
#define RRC_PUCCH_RESOURCE_FORMAT4_PRESENCE (1 << 4)

/** RrcPucchResource_t.bitMask: intraSlotFreqHopping is given */
#define RRC_PUCCH_RESOURCE_INTRA_SLOT_FREQ_HOPPING_PRESENCE (1 << 0)
/** RrcPucchResource_t.bitMask: secondHopPRB is given */
#define RRC_PUCCH_RESOURCE_SECOND_HOPPING_PRB_PRESENCE (1 << 1)

/** PUCCH-Resource */
typedef struct rrcPucchResource_s
{
    UINT8 pucchResourceId; /**< pucch-ResourceId, 0..127 */
    UINT16 startingPRB;    /**< startingPRB, 0..274, in PRBs */
    UINT8 presence;        /**< bits RRC_PUCCH_RESOURCE_..._PRESENCE */
    union rrcPucchResourceFormat_u
    {
        RrcPucchFormat0_t format0; /**< format0 */
        RrcPucchFormat1_t format1; /**< format1 */
        RrcPucchFormat2_t format2; /**< format2 */
        RrcPucchFormat3_t format3; /**< format3 */
        RrcPucchFormat4_t format4; /**< format4 */
    } format;                      /**< format */
    UINT8 bitMask;                 /**< bits RRC_PUCCH_RESOURCE_..._PRESENCE */
    /** intraSlotFrequencyHopping, PUCCH_Resource_intraSlotFrequencyHopping_...: 0 enabled */
    UINT8 intraSlotFreqHopping;
    UINT16 secondHopPRB; /**< secondHopPRB, 0..274, in PRBs */
} RrcPucchResource_t;

/** RrcPucchFormatCfg_t.bitMask: interSlotFreqHopping is given */
#define RRC_PUCCH_FORMAT_CFG_INTER_SLOT_FREQ_HOPPING_PRESENCE (1 << 0)
/** RrcPucchFormatCfg_t.bitMask: additionalDMRS is given */
#define RRC_PUCCH_FORMAT_CFG_ADDITIONAL_DMRS_PRESENCE (1 << 1)
/** RrcPucchFormatCfg_t.bitMask: maxCodeRate is given */
#define RRC_PUCCH_FORMAT_CFG_MAX_CODE_RATE_PRESENCE (1 << 2)
/** RrcPucchFormatCfg_t.bitMask: nrofSlots is given */
#define RRC_PUCCH_FORMAT_CFG_NR_OF_SLOTS_PRESENCE (1 << 3)
/**
 * RrcPucchFormatCfg_t.bitMask: sumultaneousHarqAckCsi is given; this bit and the next stand in the reverse of the
 * standard's order
 */
#define RRC_PUCCH_FORMAT_CFG_SIMULTANEOUS_HARQ_ACK_CSI_PRESENCE (1 << 4)
/** RrcPucchFormatCfg_t.bitMask: pi2BPSK is given */
#define RRC_PUCCH_FORMAT_CFG_PI2BPSK_PRESENCE (1 << 5)

/** PUCCH-FormatConfig */
typedef struct rrcPucchFormatCfg_s
{
    UINT8 bitMask; /**< bits RRC_PUCCH_FORMAT_CFG_..._PRESENCE */
    /** interslotFrequencyHopping, PUCCH_FormatConfig_interslotFrequencyHopping_...: 0 enabled */
    BOOL interSlotFreqHopping;
    BOOL additionalDMRS; /**< additionalDMRS, PUCCH_FormatConfig_additionalDMRS_...: 0 true */
    /**
     * maxCodeRate, PUCCH_MaxCodeRate_...: 0 zeroDot08, 1 zeroDot15, 2 zeroDot25, 3 zeroDot35, 4 zeroDot45, 5 zeroDot60,
     * 6 zeroDot80
     */
    UINT8 maxCodeRate;
    UINT8 nrofSlots; /**< nrofSlots, PUCCH_FormatConfig_nrofSlots_...: 0 n2, 1 n4, 2 n8 */
    BOOL pi2BPSK;    /**< pi2BPSK, PUCCH_FormatConfig_pi2BPSK_...: 0 enabled */
    /** simultaneousHARQ-ACK-CSI, PUCCH_FormatConfig_simultaneousHARQ_ACK_CSI_...: 0 true */
    BOOL sumultaneousHarqAckCsi;
} RrcPucchFormatCfg_t;

/** RrcSchedReqResourceCfg_t.bitMask: presence and periodAndOffset are given */
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_PRESENCE (1 << 0)
/** RrcSchedReqResourceCfg_t.bitMask: pucchResourceId is given */
#define RRC_SCHED_REQ_RESOURCE_CFG_PUCCH_RESOURCE_ID_PRESENCE (1 << 1)

/** RrcSchedReqResourceCfg_t.presence: chooses periodicityAndOffset.sym2; it has no offset */
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SYM2 (1 << 0)
/** RrcSchedReqResourceCfg_t.presence: chooses periodicityAndOffset.sym6or7; it has no offset */
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SYM6OR7 (1 << 1)
/** RrcSchedReqResourceCfg_t.presence: chooses periodicityAndOffset.sl1; it has no offset */
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL1 (1 << 2)
/** RrcSchedReqResourceCfg_t.presence: chooses periodicityAndOffset.sl2, in periodAndOffset.offset */
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL2 (1 << 3)
/** RrcSchedReqResourceCfg_t.presence: chooses periodicityAndOffset.sl4, in periodAndOffset.offset */
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL4 (1 << 4)
/** RrcSchedReqResourceCfg_t.presence: chooses periodicityAndOffset.sl5, in periodAndOffset.offset */
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL5 (1 << 5)
/** RrcSchedReqResourceCfg_t.presence: chooses periodicityAndOffset.sl8, in periodAndOffset.offset */
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL8 (1 << 6)
/** RrcSchedReqResourceCfg_t.presence: chooses periodicityAndOffset.sl10, in periodAndOffset.offset */
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL10 (1 << 7)
/** RrcSchedReqResourceCfg_t.presence: chooses periodicityAndOffset.sl16, in periodAndOffset.offset */
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL16 (1 << 8)
/** RrcSchedReqResourceCfg_t.presence: chooses periodicityAndOffset.sl20, in periodAndOffset.offset */
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL20 (1 << 9)
/** RrcSchedReqResourceCfg_t.presence: chooses periodicityAndOffset.sl40, in periodAndOffset.offset */
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL40 (1 << 10)
/** RrcSchedReqResourceCfg_t.presence: chooses periodicityAndOffset.sl80, in periodAndOffset.offset */
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL80 (1 << 11)
/** RrcSchedReqResourceCfg_t.presence: chooses periodicityAndOffset.sl160, in periodAndOffset.offset */
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL160 (1 << 12)
/** RrcSchedReqResourceCfg_t.presence: chooses periodicityAndOffset.sl320, in periodAndOffset.offset */
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL320 (1 << 13)
/** RrcSchedReqResourceCfg_t.presence: chooses periodicityAndOffset.sl640, in periodAndOffset.offset */
#define RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_SL640 (1 << 14)

/** SchedulingRequestResourceConfig */
typedef struct rrcSchedReqResourceCfg_s
{
    UINT8 schedReqResourceId; /**< schedulingRequestResourceId, 1..8 */
    UINT8 schedReqId;         /**< schedulingRequestID, 0..7 */
    UINT8 bitMask;            /**< bits RRC_SCHED_REQ_RESOURCE_CFG_..._PRESENCE */
    UINT8 pucchResourceId;    /**< resource, 0..127 */
    UINT32 presence;          /**< bits RRC_SCHED_REQ_RESOURCE_CFG_PERIODICITY_... */
    struct rrcSchedReqPeriodAndOffset_s
    {
        UINT8 period;  /**< not read; presence tells the periodicity */
        UINT16 offset; /**< value by presence, in slots; below the periodicity */
    } periodAndOffset; /**< periodicityAndOffset */
} RrcSchedReqResourceCfg_t;

/** RrcPucchSpatialRelationInfo_t.presence: chooses referenceSignal.ssb-Index, in referSignal.ssbIdx */
#define RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_SSBIDX_PRESENCE (1 << 0)
/** RrcPucchSpatialRelationInfo_t.presence: chooses referenceSignal.csi-RS-Index, in referSignal.csiRsIdx */
#define RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_CSIRSIDX_PRESENCE (1 << 1)
/** RrcPucchSpatialRelationInfo_t.presence: chooses referenceSignal.srs, in referSignal.srs */
#define RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_SRSIDX_PRESENCE (1 << 2)

/** RrcPucchSpatialRelationInfo_t.bitMask: servingCellId is given */
#define RRC_PUCCH_SPATIAL_RELEATION_INFO_SERVING_CELLID_PRESENCE (1 << 0)

/** PUCCH-SpatialRelationInfo */
typedef struct rrcPucchSpatialRelationInfo_s
{
    UINT8 pucchSpatialRelationInfoId; /**< pucch-SpatialRelationInfoId, 1..8 */
    UINT8 presence;                   /**< bits RRC_PUCCH_SPATIAL_RELEATION_INFO_REFER_SIGNAL_..._PRESENCE */
    union rrcPucchReferSignal_u
    {
        UINT8 ssbIdx;   /**< ssb-Index, 0..63 */
        UINT8 csiRsIdx; /**< csi-RS-Index, 0..191 */
        struct rrcPucchReferSignalSrs_s
        {
            UINT8 srsResourceId; /**< resource, 0..63 */
            UINT8 ulBwpId;       /**< uplinkBWP, 0..4 */
        } srs;                   /**< srs */
    } referSignal;               /**< referenceSignal */
    UINT8 pucchPathLossRefRsId;  /**< pucch-PathlossReferenceRS-Id, 0..3 */
    UINT8 p0PucchId;             /**< p0-PUCCH-Id, 1..8 */
    UINT8 closedLoodIdx;         /**< closedLoopIndex, PUCCH_SpatialRelationInfo_closedLoopIndex_...: 0 i0, 1 i1 */
    UINT8 bitMask;               /**< bits RRC_PUCCH_SPATIAL_RELEATION_INFO_SERVING_CELLID_PRESENCE */
    UINT8 servingCellId;         /**< servingCellId, 0..31 */
} RrcPucchSpatialRelationInfo_t;

/** P0-PUCCH */
typedef struct rrcP0Pucch_s
{
    UINT8 p0PucchId;    /**< p0-PUCCH-Id, 1..8 */
    UINT8 poPucchValue; /**< p0-PUCCH-Value, -16..15, in dB, as two's complement */
} RrcP0Pucch_t;

/** RrcPucchPathLossRefRs_t.presence: chooses referenceSignal.ssb-Index, in refSignal.ssbIdx */
#define RRC_PUCCH_PATH_LOSS_REF_RS_SSB_IDX_PRESENCE (1 << 0)
/** RrcPucchPathLossRefRs_t.presence: chooses referenceSignal.csi-RS-Index, in refSignal.csiRsIdx */
#define RRC_PUCCH_PATH_LOSS_REF_RS_CSI_IDX_PRESENCE (1 << 1)

/** PUCCH-PathlossReferenceRS */
typedef struct rrcPucchPathLossRefRs_s
{
    UINT8 pucchPathLossRefRsId; /**< pucch-PathlossReferenceRS-Id, 0..3 */
    UINT8 presence;             /**< bits RRC_PUCCH_PATH_LOSS_REF_RS_..._IDX_PRESENCE */
    union rrcPucchPathLossRefSignal_u
    {
        UINT8 ssbIdx;   /**< ssb-Index, 0..63 */
        UINT8 csiRsIdx; /**< csi-RS-Index, 0..191 */
    } refSignal;        /**< referenceSignal */
} RrcPucchPathLossRefRs_t;

/** RrcPucchPowerControl_t.bitMask: deltaFPucchF0 is given */
#define RRC_PUCCH_POWER_CONTROL_F0_PRESENCE (1 << 0)
/** RrcPucchPowerControl_t.bitMask: deltaFPucchF1 is given */
#define RRC_PUCCH_POWER_CONTROL_F1_PRESENCE (1 << 1)
/** RrcPucchPowerControl_t.bitMask: deltaFPucchF2 is given */
#define RRC_PUCCH_POWER_CONTROL_F2_PRESENCE (1 << 2)
/** RrcPucchPowerControl_t.bitMask: deltaFPucchF3 is given */
#define RRC_PUCCH_POWER_CONTROL_F3_PRESENCE (1 << 3)
/** RrcPucchPowerControl_t.bitMask: deltaFPucchF4 is given */
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
    UINT8 numP0Set;                                    /**< entries used of p0Set, 1..8 */
    RrcP0Pucch_t p0Set[RRC_MAX_NROF_PUCCH_P0_PER_SET]; /**< p0-Set */
    UINT8 numPathLossRefRs;                            /**< entries used of pathLossRefRs, 1..4 */
    RrcPucchPathLossRefRs_t pathLossRefRs[RRC_MAX_NROF_PUCCH_PATH_LOSS_REF_RSs]; /**< pathlossReferenceRSs */
    UINT8 bitMask;       /**< bits RRC_PUCCH_POWER_CONTROL_... */
    UINT8 deltaFPucchF0; /**< deltaF-PUCCH-f0, -16..15, in dB, as two's complement */
    UINT8 deltaFPucchF1; /**< deltaF-PUCCH-f1, -16..15, in dB, as two's complement */
    UINT8 deltaFPucchF2; /**< deltaF-PUCCH-f2, -16..15, in dB, as two's complement */
    UINT8 deltaFPucchF3; /**< deltaF-PUCCH-f3, -16..15, in dB, as two's complement */
    UINT8 deltaFPucchF4; /**< deltaF-PUCCH-f4, -16..15, in dB, as two's complement */
    /** twoPUCCH-PC-AdjustmentStates, PUCCH_PowerControl_twoPUCCH_PC_AdjustmentStates_...: 0 twoStates */
    UINT8 twoPucchPcAdjStates;
} RrcPucchPowerControl_t;

/** RrcPucchCfg_t.bitMask: format1 is given */
#define RRC_PUCCH_CFG_FORMAT1_PRESENCE (1 << 0)
/** RrcPucchCfg_t.bitMask: format2 is given */
#define RRC_PUCCH_CFG_FORMAT2_PRESENCE (1 << 1)
/** RrcPucchCfg_t.bitMask: format3 is given */
#define RRC_PUCCH_CFG_FORMAT3_PRESENCE (1 << 2)
/** RrcPucchCfg_t.bitMask: format4 is given */
#define RRC_PUCCH_CFG_FORMAT4_PRESENCE (1 << 3)
/** RrcPucchCfg_t.bitMask: pucchPowerControl is given */
#define RRC_PUCCH_CFG_POWER_CONTROL_PRESENCE (1 << 4)

/** PUCCH-Config. A list is sent when its count is not 0. */
typedef struct rrcPucchCfg_s
{
    UINT8 numResourceSetAddMod;           /**< entries used of resourceSet, 0..4 */
    RrcPucchResourceSet_t resourceSet[4]; /**< resourceSetToAddModList */
    /**
     * entries used of resourceSetId, 0..4; of these only the first numResourceSetAddMod are sent as they are, the
     * others as 0
     */
    UINT8 numResourceSetRel;
    UINT8 resourceSetId[4];                                               /**< resourceSetToReleaseList, each 0..3 */
    UINT8 numResourceAddMod;                                              /**< entries used of resource, 0..128 */
    RrcPucchResource_t resource[128];                                     /**< resourceToAddModList */
    UINT8 numResourceRel;                                                 /**< entries used of pucchResouceId, 0..128 */
    UINT8 pucchResouceId[128];                                            /**< resourceToReleaseList, each 0..127 */
    UINT8 numSchedReqResourceCfgAddMod;                                   /**< entries used of schedReqResource, 0..8 */
    RrcSchedReqResourceCfg_t schedReqResource[RRC_MAX_NROF_SR_RESOURCES]; /**< schedulingRequestResourceToAddModList */
    UINT8 numSchedReqResourceCfgRel;                     /**< entries used of schedReqResourceId, 0..8 */
    UINT8 schedReqResourceId[RRC_MAX_NROF_SR_RESOURCES]; /**< schedulingRequestResourceToReleaseList, each 1..8 */
    UINT8 numMultiCsiPucchResourceId;                    /**< entries used of multiCsiPucchResourceId, 0..2 */
    UINT8 multiCsiPucchResourceId[RRC_MAX_MULTI_CSI_PUCCH_RESOURCEID]; /**< multi-CSI-PUCCH-ResourceList, each 0..127 */
    UINT8 numDlData2UlACK;                                             /**< entries used of dlData2UlACK, 0..8 */
    UINT8 dlData2UlACK[RRC_MAX_DL_DATA_TO_UL_ACK];                     /**< dl-DataToUL-ACK, each 0..15, in slots */
    UINT8 numSpatialRelationInfoAddMod;                                /**< entries used of spatialRelationInfo, 0..8 */
    /** spatialRelationInfoToAddModList */
    RrcPucchSpatialRelationInfo_t spatialRelationInfo[RRC_MAX_NROF_SPATIAL_RELEATION_INFOS];
    UINT8 numSpatialRelationInfoRel; /**< entries used of spatialRelationInfoId, 0..8 */
    UINT8
    spatialRelationInfoId[RRC_MAX_NROF_SPATIAL_RELEATION_INFOS]; /**< spatialRelationInfoToReleaseList, each 1..8 */
    UINT8 bitMask;                                               /**< bits RRC_PUCCH_CFG_..._PRESENCE */
    RrcPucchFormatCfg_t format1;                                 /**< format1 */
    RrcPucchFormatCfg_t format2;                                 /**< format2 */
    RrcPucchFormatCfg_t format3;                                 /**< format3 */
    RrcPucchFormatCfg_t format4;                                 /**< format4 */
    RrcPucchPowerControl_t pucchPowerControl;                    /**< pucch-PowerControl */
} RrcPucchCfg_t;

#ifdef __cplusplus
}
#endif

#endif
