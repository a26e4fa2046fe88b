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
    /** reg-BundleSize, ControlResourceSet_cce_REG_MappingType_interleaved_reg_BundleSize_...: 0 n2, 1 n3, 2 n6 */
    UINT8 regBundleSize;
    /** interleaverSize, ControlResourceSet_cce_REG_MappingType_interleaved_interleaverSize_...: 0 n2, 1 n3, 2 n6 */
    UINT8 interleaveSize;
    UINT8 bitMask;   /**< bits RRC_INTERLEACED_SHIFT_INDEX_PRESENCE */
    UINT16 shiftIdx; /**< shiftIndex, 0..274 */
} RrcInterleaved_t;

/**
 * RrcControlResourceSet_t.presence: chooses cce-REG-MappingType.interleaved, in interLeaved, else
 * cce-REG-MappingType.nonInterleaved
 */
#define RRC_CCE_MAP_TYPE_INTERLEAVED (1 << 0)
/**
 * RrcControlResourceSet_t.presence: not read; nonInterleaved is taken whenever RRC_CCE_MAP_TYPE_INTERLEAVED is not set
 */
#define RRC_CCE_MAP_TYPE_NON_INTERLEAVED (1 << 1)

/** RrcControlResourceSet_t.bitMask: enTciPresentInDci is given */
#define RRC_CONTROL_RESOURCE_SET_TCI_IN_DCI_PRESENCE (1 << 0)
/** RrcControlResourceSet_t.bitMask: pdcchDmrsScramblindId is given */
#define RRC_CONTROL_RESOURCE_SET_PDCCH_SCRAMBID_PRESENCE (1 << 1)

/** ControlResourceSet */
typedef struct rrcControlResourceSet_s
{
    UINT8 setIdx;                 /**< controlResourceSetId, 0..11 */
    UINT64 freqDomainResource;    /**< frequencyDomainResources, 45 bits; the first one in bit 44 */
    UINT8 duration;               /**< duration, 1..3, in symbols */
    UINT8 presence;               /**< bits RRC_CCE_MAP_TYPE_... */
    RrcInterleaved_t interLeaved; /**< cce-REG-MappingType.interleaved */
    /** precoderGranularity, ControlResourceSet_precoderGranularity_...: 0 sameAsREG-bundle, 1 allContiguousRBs */
    UINT8 precoderGranularity;
    UINT8 numTciStatesPdcchAdd;                         /**< entries used of tciStateAddId, 0..64 */
    UINT8 tciStateAddId[RRC_MAX_NROF_TCI_STATES_PDCCH]; /**< tci-StatesPDCCH-ToAddList, each 0..127 */
    UINT8 numTciStatesPdcchRel;                         /**< entries used of tciStateRelId, 0..64 */
    UINT8 tciStateRelId[RRC_MAX_NROF_TCI_STATES_PDCCH]; /**< tci-StatesPDCCH-ToReleaseList, each 0..127 */
    UINT8 bitMask;                                      /**< bits RRC_CONTROL_RESOURCE_SET_..._PRESENCE */
    BOOL enTciPresentInDci;       /**< tci-PresentInDCI, ControlResourceSet_tci_PresentInDCI_...: 0 enabled */
    UINT16 pdcchDmrsScramblindId; /**< pdcch-DMRS-ScramblingID, 0..65535 */
} RrcControlResourceSet_t;

/** SearchSpace.monitoringSlotPeriodicityAndOffset */
struct slotPeriodOffset_s
{
    /**
     * alternative of itself, T_SearchSpace_monitoringSlotPeriodicityAndOffset_...: 1 sl1, 2 sl2, 3 sl4, 4 sl5, 5 sl8,
     * 6 sl10, 7 sl16, 8 sl20, 9 sl40, 10 sl80, 11 sl160, 12 sl320, 13 sl640, 14 sl1280, 15 sl2560
     */
    UINT8 period;
    UINT16 offset; /**< value by period, in slots; below the period, sl1 has none */
};

/** SearchSpace.nrofCandidates */
struct nrofCadidate_s
{
    /**
     * aggregationLevel1, SearchSpace_nrofCandidates_aggregationLevel1_...: 0 n0, 1 n1, 2 n2, 3 n3, 4 n4, 5 n5, 6 n6,
     * 7 n8
     */
    UINT8 aggrLev1;
    /**
     * aggregationLevel2, SearchSpace_nrofCandidates_aggregationLevel2_...: 0 n0, 1 n1, 2 n2, 3 n3, 4 n4, 5 n5, 6 n6,
     * 7 n8
     */
    UINT8 aggrLev2;
    /**
     * aggregationLevel4, SearchSpace_nrofCandidates_aggregationLevel4_...: 0 n0, 1 n1, 2 n2, 3 n3, 4 n4, 5 n5, 6 n6,
     * 7 n8
     */
    UINT8 aggrLev4;
    /**
     * aggregationLevel8, SearchSpace_nrofCandidates_aggregationLevel8_...: 0 n0, 1 n1, 2 n2, 3 n3, 4 n4, 5 n5, 6 n6,
     * 7 n8
     */
    UINT8 aggrLev8;
    /**
     * aggregationLevel16, SearchSpace_nrofCandidates_aggregationLevel16_...: 0 n0, 1 n1, 2 n2, 3 n3, 4 n4, 5 n5, 6 n6,
     * 7 n8
     */
    UINT8 aggrLev16;
};

/** SearchSpace.searchSpaceType.common.dci-Format0-0-AndFormat1-0; it has no content */
struct dciFormat0AndFormat1_s
{
    UINT8 padding; /**< not read */
};

/** dciFormat2_0_s.presence: aggrLev1 is given */
#define RRC_DCI2_0_AGGR_LEV1_PRESENCE (1 << 0)
/** dciFormat2_0_s.presence: aggrLev2 is given */
#define RRC_DCI2_0_AGGR_LEV2_PRESENCE (1 << 1)
/** dciFormat2_0_s.presence: aggrLev4 is given */
#define RRC_DCI2_0_AGGR_LEV4_PRESENCE (1 << 2)
/** dciFormat2_0_s.presence: aggrLev8 is given */
#define RRC_DCI2_0_AGGR_LEV8_PRESENCE (1 << 3)
/** dciFormat2_0_s.presence: aggrLev16 is given */
#define RRC_DCI2_0_AGGR_LEV16_PRESENCE (1 << 4)

/** SearchSpace.searchSpaceType.common.dci-Format2-0 */
struct dciFormat2_0_s
{
    UINT8 presence; /**< bits RRC_DCI2_0_AGGR_..._PRESENCE */
    /**
     * nrofCandidates-SFI.aggregationLevel1,
     * SearchSpace_searchSpaceType_common_dci_Format2_0_nrofCandidates_SFI_aggregationLevel1_...: 0 n1, 1 n2
     */
    UINT8 aggrLev1;
    /**
     * nrofCandidates-SFI.aggregationLevel2,
     * SearchSpace_searchSpaceType_common_dci_Format2_0_nrofCandidates_SFI_aggregationLevel2_...: 0 n1, 1 n2
     */
    UINT8 aggrLev2;
    /**
     * nrofCandidates-SFI.aggregationLevel4,
     * SearchSpace_searchSpaceType_common_dci_Format2_0_nrofCandidates_SFI_aggregationLevel4_...: 0 n1, 1 n2
     */
    UINT8 aggrLev4;
    /**
     * nrofCandidates-SFI.aggregationLevel8,
     * SearchSpace_searchSpaceType_common_dci_Format2_0_nrofCandidates_SFI_aggregationLevel8_...: 0 n1, 1 n2
     */
    UINT8 aggrLev8;
    /**
     * nrofCandidates-SFI.aggregationLevel16,
     * SearchSpace_searchSpaceType_common_dci_Format2_0_nrofCandidates_SFI_aggregationLevel16_...: 0 n1, 1 n2
     */
    UINT8 aggrLev16;
};

/** SearchSpace.searchSpaceType.common.dci-Format2-1; it has no content */
struct dciFormat2_1_s
{
    UINT8 padding; /**< not read */
};

/** SearchSpace.searchSpaceType.common.dci-Format2-2; it has no content */
struct dciFormat2_2_s
{
    UINT8 padding; /**< not read */
};

/** dciFormat2_3_s.presence: dummy1 is given */
#define RRC_DCI2_3_DUMMY1_PRESENCE (1 << 0)

/** SearchSpace.searchSpaceType.common.dci-Format2-3 */
struct dciFormat2_3_s
{
    UINT8 presence; /**< bits RRC_DCI2_3_DUMMY1_PRESENCE */
    /**
     * dummy1, SearchSpace_searchSpaceType_common_dci_Format2_3_dummy1_...: 0 sl1, 1 sl2, 2 sl4, 3 sl5, 4 sl8, 5 sl10,
     * 6 sl16, 7 sl20
     */
    UINT8 dummy1;
    /** dummy2, always sent, SearchSpace_searchSpaceType_common_dci_Format2_3_dummy2_...: 0 n1, 1 n2 */
    UINT8 dummy2;
};

/** common_s.presence: dci0AndDci1 is given */
#define RRC_SEARCH_TYPE_COMMON_DCI0_1_PRESENCE (1 << 0)
/** common_s.presence: dci0AndDci2_0 is given */
#define RRC_SEARCH_TYPE_COMMON_DCI2_0_PRESENCE (1 << 1)
/** common_s.presence: dci2_1 is given */
#define RRC_SEARCH_TYPE_COMMON_DCI2_1_PRESENCE (1 << 2)
/** common_s.presence: dci2_2 is given */
#define RRC_SEARCH_TYPE_COMMON_DCI2_2_PRESENCE (1 << 3)
/** common_s.presence: dci2_3 is given */
#define RRC_SEARCH_TYPE_COMMON_DCI2_3_PRESENCE (1 << 4)

/** SearchSpace.searchSpaceType.common */
struct common_s
{
    UINT8 presence;                            /**< bits RRC_SEARCH_TYPE_COMMON_..._PRESENCE */
    struct dciFormat0AndFormat1_s dci0AndDci1; /**< dci-Format0-0-AndFormat1-0 */
    struct dciFormat2_0_s dci0AndDci2_0;       /**< dci-Format2-0 */
    struct dciFormat2_1_s dci2_1;              /**< dci-Format2-1 */
    struct dciFormat2_2_s dci2_2;              /**< dci-Format2-2 */
    struct dciFormat2_3_s dci2_3;              /**< dci-Format2-3 */
};

/** SearchSpace.searchSpaceType.ue-Specific */
struct ueSpecific_s
{
    /**
     * dci-Formats, SearchSpace_searchSpaceType_ue_Specific_dci_Formats_...: 0 formats0-0-And-1-0, 1 formats0-1-And-1-1
     */
    UINT8 dciFormats;
};

/** SearchSpace.searchSpaceType */
union searchType_u
{
    struct common_s common;         /**< common */
    struct ueSpecific_s ueSpecific; /**< ue-Specific */
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

/** RrcSearchSpace_t.presence: chooses searchSpaceType.common, in searchType.common */
#define RRC_SEARCH_TYPE_COMMON_PRESENCE (1 << 0)
/** RrcSearchSpace_t.presence: chooses searchSpaceType.ue-Specific, in searchType.ueSpecific */
#define RRC_SEARCH_TYPE_UE_SPECIFIC_PRESENCE (1 << 1)

/** SearchSpace */
typedef struct rrcSearchSpace_s
{
    UINT8 searchSpaceId;                                  /**< searchSpaceId, 0..39 */
    UINT8 bitMask;                                        /**< bits RRC_SEARCH_SPACE_..._PRESENCE */
    UINT8 controlResourceSetId;                           /**< controlResourceSetId, 0..11 */
    struct slotPeriodOffset_s monitoringSlotPeriodOffset; /**< monitoringSlotPeriodicityAndOffset */
    UINT16 duration;                                      /**< duration, 2..2559, in slots */
    UINT16 monitoringSysmblosWithSlot : 14; /**< monitoringSymbolsWithinSlot, 14 bits; symbol 0 in bit 13 */
    struct nrofCadidate_s nrofCadidates;    /**< nrofCandidates */
    UINT8 presence;                         /**< bits RRC_SEARCH_TYPE_..._PRESENCE */
    union searchType_u searchType;          /**< searchSpaceType */
} RrcSearchSpace_t;

/** INT-ConfigurationPerServingCell */
struct IntCfgPerServingCell_s
{
    UINT8 serverCellIdx; /**< servingCellId, 0..31 */
    UINT8 positionInDci; /**< positionInDCI, 0..125, in bits */
};

/** DownlinkPreemption */
typedef struct rrcDlPreemption_s
{
    CmNrRnti intRnti;      /**< int-RNTI, 0..65535 */
    UINT8 timeFreqSet;     /**< timeFrequencySet, DownlinkPreemption_timeFrequencySet_...: 0 set0, 1 set1 */
    UINT8 dciPayloadSize;  /**< dci-PayloadSize, 0..126, in bits */
    UINT8 numServingCells; /**< entries used of intCfgPerServingCells, 1..32 */
    /** int-ConfigurationPerServingCell */
    struct IntCfgPerServingCell_s intCfgPerServingCells[RRC_INT_CFG_PERSERVING_CELLS];
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
    UINT8 bitMask;       /**< bits RRC_PUSCH_TPC_..._PRESENCE */
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
    UINT8 bitMask;     /**< bits RRC_PUCCH_TPC_..._PRESENCE */
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
    UINT8 bitMask;           /**< bits RRC_SRS_TPC_..._PRESENCE */
    UINT8 startBitFormat2_3; /**< startingBitOfFormat2-3, 1..31 */
    /** startingBitOfFormat2-3SUL-v1530, 1..31, not sent; no composer announces its extension group */
    UINT8 startBitSulFormat2_3;
    UINT8 feildTypeFormat2_3; /**< fieldTypeFormat2-3, 0..1 */
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
    /** controlResourceSetToAddModList */
    RrcControlResourceSet_t controlResourceSetAddMod[RRC_MAX_NROF_CONTROL_RESOURCESETS];
    UINT8 numControlResourceSetRel;                                 /**< entries used of controlResourceSetIdx, 0..3 */
    UINT8 controlResourceSetIdx[RRC_MAX_NROF_CONTROL_RESOURCESETS]; /**< controlResourceSetToReleaseList, each 0..11 */
    UINT8 numSearchSpaceAddMod;                                     /**< entries used of searchSpaceAddMod, 0..10 */
    RrcSearchSpace_t searchSpaceAddMod[RRC_MAX_NROF_SEARCH_SPACES]; /**< searchSpacesToAddModList */
    UINT8 numSearchSpaceRel;                                        /**< entries used of searchSpaceId, 0..10 */
    UINT8 searchSpaceId[RRC_MAX_NROF_SEARCH_SPACES];                /**< searchSpacesToReleaseList, each 0..39 */
    UINT8 bitMask;                                                  /**< bits RRC_PDCCH_CFG_..._PRESENCE */
    RrcDlPreemption_t dlPreemption;                                 /**< downlinkPreemption */
    RrcPuschTpcCmdCfg_t tpcPusch;                                   /**< tpc-PUSCH */
    RrcPucchTpcCmdCfg_t tpcPucch;                                   /**< tpc-PUCCH */
    RrcSrsTpcCmdCfg_t tpcSrs;                                       /**< tpc-SRS */
} RrcPdcchCfg_t;

#ifdef __cplusplus
}
#endif

#endif
