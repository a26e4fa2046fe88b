#ifndef RRCPDCCH_H
#define RRCPDCCH_H

#include "gnbCommon/gnbCommon.h"
#include "vos_types.h"

/*
 * Control channel of a downlink bandwidth part (TS 38.331 PDCCH-Config): control resource sets, search spaces,
 * pre-emption indication and group TPC commands. Enumerated fields hold the integer of the ASN.1 enumeration. A list is
 * sent when its count is not 0.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** maxNrofTCI-StatesPDCCH */
#define RRC_MAX_NROF_TCI_STATES_PDCCH 64

/** Bound of the PDCCH-Config control resource set lists */
#define RRC_MAX_NROF_CONTROL_RESOURCESETS 3

/** Bound of the PDCCH-Config search space lists */
#define RRC_MAX_NROF_SEARCH_SPACES 10

/** maxNrofServingCells */
#define RRC_INT_CFG_PERSERVING_CELLS 32

/** RrcInterleaved_t.bitMask: shiftIdx is given */
#define RRC_INTERLEACED_SHIFT_INDEX_PRESENCE (1 << 0)

/** ControlResourceSet.cce-REG-MappingType.interleaved */
typedef struct rrcInterleaved_s
{
    UINT8 regBundleSize;  /**< reg-BundleSize, enumeration n2, n3, n6 (0..2) */
    UINT8 interleaveSize; /**< interleaverSize, enumeration n2, n3, n6 (0..2) */
    UINT8 bitMask;        /**< RRC_INTERLEACED_SHIFT_INDEX_PRESENCE */
    UINT16 shiftIdx;      /**< shiftIndex, 0..274 */
} RrcInterleaved_t;

/** RrcControlResourceSet_t.presence: cce-REG-MappingType; without the first bit it is nonInterleaved */
#define RRC_CCE_MAP_TYPE_INTERLEAVED (1 << 0)
#define RRC_CCE_MAP_TYPE_NON_INTERLEAVED (1 << 1)

/** RrcControlResourceSet_t.bitMask: enTciPresentInDci is given */
#define RRC_CONTROL_RESOURCE_SET_TCI_IN_DCI_PRESENCE (1 << 0)
/** RrcControlResourceSet_t.bitMask: pdcchDmrsScramblindId is given */
#define RRC_CONTROL_RESOURCE_SET_PDCCH_SCRAMBID_PRESENCE (1 << 1)

/** ControlResourceSet */
typedef struct rrcControlResourceSet_s
{
    UINT8 setIdx;                 /**< controlResourceSetId, 0..11 */
    UINT64 freqDomainResource;    /**< frequencyDomainResources, the low 45 bits, first bit most significant */
    UINT8 duration;               /**< duration in symbols, 1..3 */
    UINT8 presence;               /**< RRC_CCE_MAP_TYPE_INTERLEAVED or RRC_CCE_MAP_TYPE_NON_INTERLEAVED */
    RrcInterleaved_t interLeaved; /**< cce-REG-MappingType.interleaved; RRC_CCE_MAP_TYPE_INTERLEAVED */
    UINT8 precoderGranularity;    /**< precoderGranularity, enumeration sameAsREG-bundle, allContiguousRBs (0..1) */
    UINT8 numTciStatesPdcchAdd;   /**< entries used of tciStateAddId, 0..64 */
    UINT8 tciStateAddId[RRC_MAX_NROF_TCI_STATES_PDCCH]; /**< tci-StatesPDCCH-ToAddList, each 0..127 */
    UINT8 numTciStatesPdcchRel;                         /**< entries used of tciStateRelId, 0..64 */
    UINT8 tciStateRelId[RRC_MAX_NROF_TCI_STATES_PDCCH]; /**< tci-StatesPDCCH-ToReleaseList, each 0..127 */
    UINT8 bitMask;                                      /**< RRC_CONTROL_RESOURCE_SET_TCI_IN_DCI_PRESENCE.. */
    BOOL enTciPresentInDci;                             /**< tci-PresentInDCI, enumeration enabled (0 only) */
    UINT16 pdcchDmrsScramblindId;                       /**< pdcch-DMRS-ScramblingID, 0..65535 */
} RrcControlResourceSet_t;

/** SearchSpace.monitoringSlotPeriodicityAndOffset */
struct slotPeriodOffset_s
{
    UINT8 period;  /**< the alternative: 1 sl1, 2 sl2, 3 sl4, 4 sl5, 5 sl8, 6 sl10, 7 sl16, 8 sl20, 9 sl40, 10 sl80,
                        11 sl160, 12 sl320, 13 sl640, 14 sl1280, 15 sl2560 */
    UINT16 offset; /**< offset in slots, below the period; sl1 has none */
};

/** SearchSpace.nrofCandidates, each the enumeration n0, n1, n2, n3, n4, n5, n6, n8 (0..7) */
struct nrofCadidate_s
{
    UINT8 aggrLev1;  /**< aggregationLevel1 */
    UINT8 aggrLev2;  /**< aggregationLevel2 */
    UINT8 aggrLev4;  /**< aggregationLevel4 */
    UINT8 aggrLev8;  /**< aggregationLevel8 */
    UINT8 aggrLev16; /**< aggregationLevel16 */
};

/** dci-Format0-0-AndFormat1-0 has no content */
struct dciFormat0AndFormat1_s
{
    UINT8 padding; /**< not read */
};

/** dciFormat2_0_s.presence: the level is given */
#define RRC_DCI2_0_AGGR_LEV1_PRESENCE (1 << 0)
#define RRC_DCI2_0_AGGR_LEV2_PRESENCE (1 << 1)
#define RRC_DCI2_0_AGGR_LEV4_PRESENCE (1 << 2)
#define RRC_DCI2_0_AGGR_LEV8_PRESENCE (1 << 3)
#define RRC_DCI2_0_AGGR_LEV16_PRESENCE (1 << 4)

/** dci-Format2-0.nrofCandidates-SFI, each level the enumeration n1, n2 (0..1) */
struct dciFormat2_0_s
{
    UINT8 presence;  /**< RRC_DCI2_0_AGGR_LEV1_PRESENCE.. */
    UINT8 aggrLev1;  /**< aggregationLevel1 */
    UINT8 aggrLev2;  /**< aggregationLevel2 */
    UINT8 aggrLev4;  /**< aggregationLevel4 */
    UINT8 aggrLev8;  /**< aggregationLevel8 */
    UINT8 aggrLev16; /**< aggregationLevel16 */
};

/** dci-Format2-1 has no content */
struct dciFormat2_1_s
{
    UINT8 padding; /**< not read */
};

/** dci-Format2-2 has no content */
struct dciFormat2_2_s
{
    UINT8 padding; /**< not read */
};

/** dciFormat2_3_s.presence: dummy1 is given */
#define RRC_DCI2_3_DUMMY1_PRESENCE (1 << 0)

/** dci-Format2-3 */
struct dciFormat2_3_s
{
    UINT8 presence; /**< RRC_DCI2_3_DUMMY1_PRESENCE */
    UINT8 dummy1;   /**< dummy1, enumeration sl1.. (0..7) */
    UINT8 dummy2;   /**< dummy2, enumeration n1, n2 (0..1), always sent */
};

/** common_s.presence: the DCI formats that are monitored */
#define RRC_SEARCH_TYPE_COMMON_DCI0_1_PRESENCE (1 << 0)
#define RRC_SEARCH_TYPE_COMMON_DCI2_0_PRESENCE (1 << 1)
#define RRC_SEARCH_TYPE_COMMON_DCI2_1_PRESENCE (1 << 2)
#define RRC_SEARCH_TYPE_COMMON_DCI2_2_PRESENCE (1 << 3)
#define RRC_SEARCH_TYPE_COMMON_DCI2_3_PRESENCE (1 << 4)

/** SearchSpace.searchSpaceType.common */
struct common_s
{
    UINT8 presence;                            /**< RRC_SEARCH_TYPE_COMMON_DCI0_1_PRESENCE.. */
    struct dciFormat0AndFormat1_s dci0AndDci1; /**< dci-Format0-0-AndFormat1-0 */
    struct dciFormat2_0_s dci0AndDci2_0;       /**< dci-Format2-0 */
    struct dciFormat2_1_s dci2_1;              /**< dci-Format2-1 */
    struct dciFormat2_2_s dci2_2;              /**< dci-Format2-2 */
    struct dciFormat2_3_s dci2_3;              /**< dci-Format2-3 */
};

/** SearchSpace.searchSpaceType.ue-Specific */
struct ueSpecific_s
{
    UINT8 dciFormats; /**< dci-Formats, enumeration formats0-0-And-1-0, formats0-1-And-1-1 (0..1) */
};

/** SearchSpace.searchSpaceType */
union searchType_u
{
    struct common_s common;         /**< RRC_SEARCH_TYPE_COMMON_PRESENCE */
    struct ueSpecific_s ueSpecific; /**< RRC_SEARCH_TYPE_UE_SPECIFIC_PRESENCE */
};

/** RrcSearchSpace_t.bitMask: controlResourceSetId is given */
#define RRC_SEARCH_SPACE_CONTROL_RESOURCE_SETID_PRESENCE (1 << 0)
/** RrcSearchSpace_t.bitMask: monitoringSlotPeriodOffset is given */
#define RRC_SEARCH_SPACE_MON_SLOT_PERIOD_AND_OFFSET_PRESENCE (1 << 1)
/** RrcSearchSpace_t.bitMask: duration is given */
#define RRC_SEARCH_SPACE_DURATION_PRESENCE (1 << 2)
/** RrcSearchSpace_t.bitMask: monitoringSysmblosWithSlot is given */
#define RRC_SEARCH_SPACE_MON_SYMBOL_WITH_SLOT_PRESENCE (1 << 3)
/** RrcSearchSpace_t.bitMask: nrofCadidates is given */
#define RRC_SEARCH_SPACE_NROF_CADIDATE_PRESENCE (1 << 4)
/** RrcSearchSpace_t.bitMask: presence and searchType are given */
#define RRC_SEARCH_SPACE_TYPE_PRESENCE (1 << 5)

/** RrcSearchSpace_t.presence: the alternative of searchType; the second wins */
#define RRC_SEARCH_TYPE_COMMON_PRESENCE (1 << 0)
#define RRC_SEARCH_TYPE_UE_SPECIFIC_PRESENCE (1 << 1)

/** SearchSpace */
typedef struct rrcSearchSpace_s
{
    UINT8 searchSpaceId;                                  /**< searchSpaceId, 0..39 */
    UINT8 bitMask;                                        /**< RRC_SEARCH_SPACE_CONTROL_RESOURCE_SETID_PRESENCE.. */
    UINT8 controlResourceSetId;                           /**< controlResourceSetId, 0..11 */
    struct slotPeriodOffset_s monitoringSlotPeriodOffset; /**< monitoringSlotPeriodicityAndOffset */
    UINT16 duration;                                      /**< duration in slots, 2..2559 */
    UINT16 monitoringSysmblosWithSlot : 14; /**< monitoringSymbolsWithinSlot, first symbol most significant */
    struct nrofCadidate_s nrofCadidates;    /**< nrofCandidates */
    UINT8 presence;                /**< RRC_SEARCH_TYPE_COMMON_PRESENCE or RRC_SEARCH_TYPE_UE_SPECIFIC_PRESENCE */
    union searchType_u searchType; /**< searchSpaceType */
} RrcSearchSpace_t;

/** INT-ConfigurationPerServingCell */
struct IntCfgPerServingCell_s
{
    UINT8 serverCellIdx; /**< servingCellId, 0..31 */
    UINT8 positionInDci; /**< positionInDCI, 0..125 */
};

/** DownlinkPreemption */
typedef struct rrcDlPreemption_s
{
    CmNrRnti intRnti;      /**< int-RNTI, 0..65535 */
    UINT8 timeFreqSet;     /**< timeFrequencySet, enumeration set0, set1 (0..1) */
    UINT8 dciPayloadSize;  /**< dci-PayloadSize, 0..126 */
    UINT8 numServingCells; /**< entries used of intCfgPerServingCells, 1..32 */
    struct IntCfgPerServingCell_s
        intCfgPerServingCells[RRC_INT_CFG_PERSERVING_CELLS]; /**< int-ConfigurationPerServingCell */
} RrcDlPreemption_t;

/** RrcPuschTpcCmdCfg_t.bitMask: tpcIdx is given */
#define RRC_PUSCH_TPC_INDEX_PRESENCE (1 << 0)
/** RrcPuschTpcCmdCfg_t.bitMask: tpcIdxSul is given */
#define RRC_PUSCH_TPC_INDEX_SUL_PRESENCE (1 << 1)
/** RrcPuschTpcCmdCfg_t.bitMask: targetCellIdx is given */
#define RRC_PUSCH_TPC_TARGET_CELL_PRESENCE (1 << 2)

/** PUSCH-TPC-CommandConfig */
typedef struct rrcPuschTpcCmdCfg_s
{
    UINT8 bitMask;       /**< RRC_PUSCH_TPC_INDEX_PRESENCE.. */
    UINT8 tpcIdx;        /**< tpc-Index, 1..15 */
    UINT8 tpcIdxSul;     /**< tpc-IndexSUL, 1..15 */
    UINT8 targetCellIdx; /**< targetCell, 0..31 */
} RrcPuschTpcCmdCfg_t;

/** RrcPucchTpcCmdCfg_t.bitMask: tpcPcellIdx is given */
#define RRC_PUCCH_TPC_PCELL_PRESENCE (1 << 0)
/** RrcPucchTpcCmdCfg_t.bitMask: tpcScellIdx is given */
#define RRC_PUCCH_TPC_SCELL_PRESENCE (1 << 1)

/** PUCCH-TPC-CommandConfig */
typedef struct rrcPucchTpcCmdCfg_s
{
    UINT8 bitMask;     /**< RRC_PUCCH_TPC_PCELL_PRESENCE.. */
    UINT8 tpcPcellIdx; /**< tpc-IndexPCell, 1..15 */
    UINT8 tpcScellIdx; /**< tpc-IndexPUCCH-SCell, 1..15 */
} RrcPucchTpcCmdCfg_t;

/** RrcSrsTpcCmdCfg_t.bitMask: startBitFormat2_3 and startBitSulFormat2_3 are given */
#define RRC_SRS_TPC_STARTING_BIT_PRESENCE (1 << 0)
/** RrcSrsTpcCmdCfg_t.bitMask: feildTypeFormat2_3 is given */
#define RRC_SRS_TPC_FIELD_TYPE_PRESENCE (1 << 1)
/** RrcSrsTpcCmdCfg_t.bitMask: not read; RRC_SRS_TPC_STARTING_BIT_PRESENCE speaks for startBitSulFormat2_3 too */
#define RRC_SRS_TPC_STARTING_BIT_SUL_PRESENCE (1 << 2)

/** SRS-TPC-CommandConfig */
typedef struct rrcSrsTpcCmdCfg_s
{
    UINT8 bitMask;              /**< RRC_SRS_TPC_STARTING_BIT_PRESENCE.. */
    UINT8 startBitFormat2_3;    /**< startingBitOfFormat2-3, 1..31 */
    UINT8 startBitSulFormat2_3; /**< startingBitOfFormat2-3SUL-v1530, 1..31; composed, but not sent */
    UINT8 feildTypeFormat2_3;   /**< fieldTypeFormat2-3, 0..1 */
} RrcSrsTpcCmdCfg_t;

/** RrcPdcchCfg_t.bitMask: dlPreemption is given */
#define RRC_PDCCH_CFG_Dl_PREEMPTION_PRESENCE (1 << 0)
/** RrcPdcchCfg_t.bitMask: tpcPusch is given */
#define RRC_PDCCH_CFG_PUSCH_TPC_CMDCFG_PRESENCE (1 << 1)
/** RrcPdcchCfg_t.bitMask: tpcPucch is given */
#define RRC_PDCCH_CFG_PUCCH_TPC_CMDCFG_PRESENCE (1 << 2)
/** RrcPdcchCfg_t.bitMask: tpcSrs is given */
#define RRC_PDCCH_CFG_SPS_TPC_CMDCFG_PRESENCE (1 << 3)

/** PDCCH-Config */
typedef struct rrcPdcchCfg_s
{
    UINT8 numControlResourceSetAddMod; /**< entries used of controlResourceSetAddMod, 0..3 */
    RrcControlResourceSet_t
        controlResourceSetAddMod[RRC_MAX_NROF_CONTROL_RESOURCESETS]; /**< controlResourceSetToAddModList */
    UINT8 numControlResourceSetRel;                                  /**< entries used of controlResourceSetIdx, 0..3 */
    UINT8 controlResourceSetIdx[RRC_MAX_NROF_CONTROL_RESOURCESETS];  /**< controlResourceSetToReleaseList, each 0..11 */
    UINT8 numSearchSpaceAddMod;                                      /**< entries used of searchSpaceAddMod, 0..10 */
    RrcSearchSpace_t searchSpaceAddMod[RRC_MAX_NROF_SEARCH_SPACES];  /**< searchSpacesToAddModList */
    UINT8 numSearchSpaceRel;                                         /**< entries used of searchSpaceId, 0..10 */
    UINT8 searchSpaceId[RRC_MAX_NROF_SEARCH_SPACES];                 /**< searchSpacesToReleaseList, each 0..39 */
    UINT8 bitMask;                                                   /**< RRC_PDCCH_CFG_Dl_PREEMPTION_PRESENCE.. */
    RrcDlPreemption_t dlPreemption;                                  /**< downlinkPreemption */
    RrcPuschTpcCmdCfg_t tpcPusch;                                    /**< tpc-PUSCH */
    RrcPucchTpcCmdCfg_t tpcPucch;                                    /**< tpc-PUCCH */
    RrcSrsTpcCmdCfg_t tpcSrs;                                        /**< tpc-SRS */
} RrcPdcchCfg_t;

#ifdef __cplusplus
}
#endif

#endif
