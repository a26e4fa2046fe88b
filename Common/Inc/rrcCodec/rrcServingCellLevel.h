#ifndef RRCSERVINGCELLLEVEL_H
#define RRCSERVINGCELLLEVEL_H

#include "vos_types.h"

/*
 * What holds for all bandwidth parts of a serving cell (TS 38.331 PUSCH-ServingCellConfig, SRS-CarrierSwitching,
 * PDCCH-ServingCellConfig, PDSCH-ServingCellConfig). Enumerated fields hold the integer of the ASN.1 enumeration.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** Bound of SRS-CarrierSwitching.srs-TPC-PDCCH-Group.typeA */
#define RRC_MAX_SRS_TPC_PDCCH_GROUP_TYPEA 32
/** Bound of SRS-TPC-PDCCH-Config.srs-CC-SetIndexlist */
#define RRC_SRS_TPC_PDCCH_CFG_MAX_SRS_CC_SET_IDX 4
/** maxNrofSlotFormatCombinationsPerSet */
#define RRC_MAX_NROF_SLOT_FORMAT_COMBINATIONS_PER_SET 512
/** maxNrofSlotFormatsPerCombination */
#define RRC_MAX_NROF_SLOT_FORMATS_PER_COMBINATION 256

/** RrcPuschServingCellCfg_t.bitMask: codeBlockGroupTransmission is given */
#define RRC_PUSCH_SERVING_CELL_CFG_CODE_BLOCK_GROUP_TRANMISSION_PRESECE (1 << 0)
/** RrcPuschServingCellCfg_t.bitMask: rateMatching is given */
#define RRC_PUSCH_SERVING_CELL_CFG_RATE_MATCHING_PRESECE (1 << 1)
/** RrcPuschServingCellCfg_t.bitMask: xOverhead is given */
#define RRC_PUSCH_SERVING_CELL_CFG_X_OVER_HEAD_PRESECE (1 << 2)
/** RrcPuschServingCellCfg_t.bitMask: maxMIMO-Layers is not sent; it has no value here */
#define RRC_PUSCH_SERVING_CELL_CFG_MAX_MIMO_LAYERS (1 << 3)
/** RrcPuschServingCellCfg_t.bitMask: processingType2Enabled is not sent; it has no value here */
#define RRC_PUSCH_SERVING_CELL_CFG_PROCESS_TYPE_2ENABLE (1 << 4)

/** PUSCH-CodeBlockGroupTransmission */
struct rrcPuschCodeBlockGroupTransmission_s
{
    /**
     * maxCodeBlockGroupsPerTransportBlock, PUSCH_CodeBlockGroupTransmission_maxCodeBlockGroupsPerTransportBlock_...:
     * 0 n2, 1 n4, 2 n6, 3 n8
     */
    UINT8 maxCodeBlockGroupPerTansportBlock;
};

/** PUSCH-ServingCellConfig */
typedef struct rrcPuschServingCellCfg_s
{
    UINT8 bitMask;                                                          /**< bits RRC_PUSCH_SERVING_CELL_CFG_... */
    struct rrcPuschCodeBlockGroupTransmission_s codeBlockGroupTransmission; /**< codeBlockGroupTransmission */
    UINT8 rateMatching; /**< rateMatching, PUSCH_ServingCellConfig_rateMatching_...: 0 limitedBufferRM */
    UINT8 xOverhead;    /**< xOverhead, PUSCH_ServingCellConfig_xOverhead_...: 0 xoh6, 1 xoh12, 2 xoh18 */
} RrcPuschServingCellCfg_t;

/** srsCcSetIdx_s.bitMask: ccSetIdx is given */
#define RRC_SRS_CC_SET_IDX (1 << 0)
/** srsCcSetIdx_s.bitMask: ccIdxInOneCcSet is given */
#define RRC_SRS_CC_SET_IDX_ONE_CC_SET (1 << 1)

/** SRS-CC-SetIndex */
struct srsCcSetIdx_s
{
    UINT8 bitMask;         /**< bits RRC_SRS_CC_SET_... */
    UINT8 ccSetIdx;        /**< cc-SetIndex, 0..3 */
    UINT8 ccIdxInOneCcSet; /**< cc-IndexInOneCC-Set, 0..7 */
};

/** SRS-TPC-PDCCH-Config */
typedef struct rrcSrsTpcPdcchCfg_s
{
    UINT8 num; /**< entries used of srsCcSetIdx, 0..4; 0: no list */
    struct srsCcSetIdx_s srsCcSetIdx[RRC_SRS_TPC_PDCCH_CFG_MAX_SRS_CC_SET_IDX]; /**< srs-CC-SetIndexlist */
} RrcSrsTpcPdcchCfg_t;

/** RrcSrsCarrierSwitching_t.bitMask: srsSwitchFromServCellIdx is given */
#define RRC_SRS_CARRIER_SWITCH_SERV_CELL_IDX_PRESENCE (1 << 0)
/** RrcSrsCarrierSwitching_t.bitMask: presence and srsTpcPdcchGroup are given */
#define RRC_SRS_CARRIER_SWITCH_SRS_TPC_PDCCH_GROUP_PRESENCE (1 << 1)
/** RrcSrsCarrierSwitching_t.bitMask: RrcmonitoringCells is given */
#define RRC_SRS_CARRIER_SWITCH_MONITORING_CELLS (1 << 2)

/** RrcSrsCarrierSwitching_t.presence: chooses srs-TPC-PDCCH-Group.typeA, in srsTpcPdcchGroup.typeA */
#define RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEA_PRESENCE (1 << 0)
/** RrcSrsCarrierSwitching_t.presence: chooses srs-TPC-PDCCH-Group.typeB, in srsTpcPdcchGroup.typeB */
#define RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_TYPEB_PRESENCE (1 << 1)

/** SRS-CarrierSwitching.srs-TPC-PDCCH-Group.typeA */
struct typeA_s
{
    UINT8 num;                                                  /**< entries used of cfg, 1..32 */
    RrcSrsTpcPdcchCfg_t cfg[RRC_MAX_SRS_TPC_PDCCH_GROUP_TYPEA]; /**< itself; the configurations */
};

/** SRS-CarrierSwitching.srs-TPC-PDCCH-Group */
union srsTpcPdcchGroup_u
{
    struct typeA_s typeA;      /**< typeA */
    RrcSrsTpcPdcchCfg_t typeB; /**< typeB */
};

/** SRS-CarrierSwitching.monitoringCells */
struct RrcmonitoringCells_s
{
    UINT8 num;                 /**< entries used of monitoringCells, 1..32 */
    UINT8 monitoringCells[32]; /**< itself, each 0..31; serving cell indices */
};

/** SRS-CarrierSwitching */
typedef struct rrcSrsCarrierSwitching_s
{
    UINT8 bitMask;                  /**< bits RRC_SRS_CARRIER_SWITCH_... */
    UINT8 srsSwitchFromServCellIdx; /**< srs-SwitchFromServCellIndex, 0..31 */
    /** srs-SwitchFromCarrier, always sent, SRS_CarrierSwitching_srs_SwitchFromCarrier_...: 0 sUL, 1 nUL */
    BOOL SwitchFromCarrier;
    UINT8 presence;                                 /**< bits RRC_SRS_CARRIER_SWITCH_TPC_PDCCH_GROUP_..._PRESENCE */
    union srsTpcPdcchGroup_u srsTpcPdcchGroup;      /**< srs-TPC-PDCCH-Group */
    struct RrcmonitoringCells_s RrcmonitoringCells; /**< monitoringCells */
} RrcSrsCarrierSwitching_t;

/** SlotFormatCombination */
typedef struct rrcSlotFormatComb_s
{
    UINT16 slotFormatCombId;                                       /**< slotFormatCombinationId, 0..511 */
    UINT16 numSlotFormat;                                          /**< entries used of slotsFormats, 1..256 */
    UINT8 slotsFormats[RRC_MAX_NROF_SLOT_FORMATS_PER_COMBINATION]; /**< slotFormats, each 0..255 */
} RrcSlotFormatComb_t;

/** RrcSlotFormatCombPerCell_t.bitMask: subCarrierSpacing2 is given */
#define RRC_SLOT_FORMAT_COMB_PER_CELL_SUB_CARRIER_SPACING2_PRESENCE (1 << 0)
/** RrcSlotFormatCombPerCell_t.bitMask: positionInDci is given */
#define RRC_SLOT_FORMAT_COMB_PER_CELL_POSITION_IN_DCI_PRESENCE (1 << 1)

/** SlotFormatCombinationsPerCell */
typedef struct rrcSlotFormatCombPerCell_s
{
    UINT8 servingCellIdx; /**< servingCellId, 0..31 */
    /** subcarrierSpacing, SubcarrierSpacing_...: 0 kHz15, 1 kHz30, 2 kHz60, 3 kHz120, 4 kHz240 */
    UINT8 subCarrierSpacing;
    UINT16 numSlotFormatComb; /**< entries used of SlotFormatComb, 0..512; 0: not sent */
    RrcSlotFormatComb_t SlotFormatComb[RRC_MAX_NROF_SLOT_FORMAT_COMBINATIONS_PER_SET]; /**< slotFormatCombinations */
    UINT8 bitMask; /**< bits RRC_SLOT_FORMAT_COMB_PER_CELL_..._PRESENCE */
    /** subcarrierSpacing2, SubcarrierSpacing_...: 0 kHz15, 1 kHz30, 2 kHz60, 3 kHz120, 4 kHz240 */
    UINT8 subCarrierSpacing2;
    UINT8 positionInDci; /**< positionInDCI, 0..127, in bits */
} RrcSlotFormatCombPerCell_t;

/** SlotFormatIndicator. A list is sent when its count is not 0. */
typedef struct rrcSlotFormatInd_s
{
    UINT16 sfiRnti;                                      /**< sfi-RNTI, 0..65535 */
    UINT8 dciPayloadSize;                                /**< dci-PayloadSize, 1..128, in bits */
    UINT8 numSlotFormatCombAddMod;                       /**< entries used of slotFormatCombAddMod, 0..16 */
    RrcSlotFormatCombPerCell_t slotFormatCombAddMod[16]; /**< slotFormatCombToAddModList */
    UINT8 numSlotFormatCombRel;                          /**< entries used of servCellIdx, 0..16 */
    UINT8 servCellIdx[16];                               /**< slotFormatCombToReleaseList, each 0..31 */
} RrcSlotFormatInd_t;

/** RrcPdcchServingCellCfg_t.bitMask: slotFormatInd is given */
#define RRC_PDCCH_SERVING_CELL_CFG_SLOT_FORMATE_IND (1 << 0)

/** PDCCH-ServingCellConfig */
typedef struct rrcPdcchServingCellCfg_s
{
    UINT8 bitMask;                    /**< bits RRC_PDCCH_SERVING_CELL_CFG_SLOT_FORMATE_IND */
    RrcSlotFormatInd_t slotFormatInd; /**< slotFormatIndicator */
} RrcPdcchServingCellCfg_t;

/** RrcPdschServingCellCfg_t.bitMask: codeBlockGroupTransmission is given */
#define RRC_PDSCH_SERVING_CELL_CFG_CODE_BLOCK_GROUP_TRANMISSION_PRESENCE (1 << 0)
/** RrcPdschServingCellCfg_t.bitMask: xOverHead is given */
#define RRC_PDSCH_SERVING_CELL_CFG_X_OVERHEAD_PRESENCE (1 << 1)
/** RrcPdschServingCellCfg_t.bitMask: nrofHarqProcessForPDSCH is given */
#define RRC_PDSCH_SERVING_CELL_CFG_NROF_HARQ_PROCESS_FOR_PDSCH_PRESENCE (1 << 2)
/** RrcPdschServingCellCfg_t.bitMask: cellIdx is given */
#define RRC_PDSCH_SERVING_CELL_CFG_PUCCH_CELL_PRESENCE (1 << 3)
/** RrcPdschServingCellCfg_t.bitMask: maxMIMO_Layer is given */
#define RRC_PDSCH_SERVING_CELL_CFG_MAX_MIMO_LAYERS (1 << 4)
/** RrcPdschServingCellCfg_t.bitMask: Type2Enabled is given */
#define RRC_PDSCH_SERVING_CELL_CFG_PROCESSING_TYPE2_ENABLED (1 << 5)

/** PDSCH-CodeBlockGroupTransmission */
struct codeBlockGroupTransmission_s
{
    /**
     * maxCodeBlockGroupsPerTransportBlock, PDSCH_CodeBlockGroupTransmission_maxCodeBlockGroupsPerTransportBlock_...:
     * 0 n2, 1 n4, 2 n6, 3 n8
     */
    UINT8 maxCodeBlockGroupsPerTransportBlock;
    BOOL codeBlockGroupFlushInd; /**< codeBlockGroupFlushIndicator */
};

/** PDSCH-ServingCellConfig */
typedef struct rrcPdschServingCellCfg_s
{
    UINT8 bitMask;                                                  /**< bits RRC_PDSCH_SERVING_CELL_CFG_... */
    struct codeBlockGroupTransmission_s codeBlockGroupTransmission; /**< codeBlockGroupTransmission */
    UINT8 xOverHead; /**< xOverhead, PDSCH_ServingCellConfig_xOverhead_...: 0 xOh6, 1 xOh12, 2 xOh18 */
    /**
     * nrofHARQ-ProcessesForPDSCH, PDSCH_ServingCellConfig_nrofHARQ_ProcessesForPDSCH_...: 0 n2, 1 n4, 2 n6, 3 n10,
     * 4 n12, 5 n16
     */
    UINT8 nrofHarqProcessForPDSCH;
    UINT8 cellIdx;       /**< pucch-Cell, 0..31 */
    UINT8 maxMIMO_Layer; /**< maxMIMO-Layers, 1..8 */
    BOOL Type2Enabled;   /**< processingType2Enabled */
} RrcPdschServingCellCfg_t;

#ifdef __cplusplus
}
#endif

#endif
