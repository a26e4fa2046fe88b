#ifndef RRCSERVINGCELLCOMMON_H
#define RRCSERVINGCELLCOMMON_H

#include "gnbCommon/gnbServingCell.h"
#include "vos_types.h"

/*
 * Common configuration of a serving cell (TS 38.331 ServingCellConfigCommon), SSB measurement timing (SSB-MTC) and TDD
 * slots (TDD-UL-DL-SlotConfig). Enumerated fields hold the integer of the ASN.1 enumeration.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** maxNrofRateMatchPatterns */
#define RRC_MAX_NROF_RATE_MATCH_PATTERNS 4
/** maxNrofMultiBands, as far as MultiFrequencyBandListNR goes */
#define RRC_MAX_NROF_MULTI_BANDS 8
/** maxSCSs */
#define RRC_MAX_NROF_SCS 5

/** RrcFreqInfoDl_t.bitMask: absFreqSsb is given */
#define FREQ_INFO_DL_ABS_FREQ_SSB (1 << 0)

/** FrequencyInfoDL */
typedef struct rrcFreqInfoDl_s
{
    UINT8 bitMask;                                  /**< bits FREQ_INFO_DL_ABS_FREQ_SSB */
    UINT32 absFreqSsb;                              /**< absoluteFrequencySSB, 0..3279165; an ARFCN */
    UINT8 multiBandNum;                             /**< entries used of freqBandIndNr, 1..8 */
    UINT16 freqBandIndNr[RRC_MAX_NROF_MULTI_BANDS]; /**< frequencyBandList, each 1..1024 */
    UINT32 absFreqPointA;                           /**< absoluteFrequencyPointA, 0..3279165; an ARFCN */
    UINT8 scsNum;                                   /**< entries used of speCarrier, 1..5 */
    SpecificCarrier_t speCarrier[RRC_MAX_NROF_SCS]; /**< scs-SpecificCarrierList */
} RrcFreqInfoDl_t;

/** RrcFreqInfoUl_t.bitMask: absFreqPointA is given; it is copied and not sent */
#define FREQ_INFO_UL_ABS_FREQ_POINTEA_PRESENCE (1 << 0)
/** RrcFreqInfoUl_t.bitMask: additionSpectrumEmission is given; it is copied and not sent */
#define FREQ_INFO_UL_ADDIRIONAL_SPECTRUM_EMISSION_PRESENCE (1 << 1)
/** RrcFreqInfoUl_t.bitMask: pMax is given; it is copied and not sent */
#define FREQ_INFO_UL_PMAX_PRESENCE (1 << 2)
/** RrcFreqInfoUl_t.bitMask: freqShift7p5khz is given; it is copied and not sent */
#define FREQ_INFO_UL_FREQ_SHIFT_7P5KHZ (1 << 3)

/** FrequencyInfoUL. The four members that bitMask guards are copied into the element and never sent. */
typedef struct rrcFreqInfoUl_s
{
    UINT8 bitMask;                                  /**< bits FREQ_INFO_UL_... */
    UINT8 multiBandNum;                             /**< entries used of freqBandIndNr, 0..8; 0: no list */
    UINT16 freqBandIndNr[RRC_MAX_NROF_MULTI_BANDS]; /**< frequencyBandList, each 1..1024 */
    UINT32 absFreqPointA;                           /**< absoluteFrequencyPointA, 0..3279165, not sent; an ARFCN */
    UINT8 scsNum;                                   /**< entries used of speCarrier, 1..5 */
    SpecificCarrier_t speCarrier[RRC_MAX_NROF_SCS]; /**< scs-SpecificCarrierList */
    UINT8 additionSpectrumEmission;                 /**< additionalSpectrumEmission, 0..7, not sent */
    INT8 pMax;                                      /**< p-Max, -30..33, in dBm, not sent */
    /** frequencyShift7p5khz, not sent, FrequencyInfoUL_frequencyShift7p5khz_...: 0 true */
    UINT8 freqShift7p5khz;
} RrcFreqInfoUl_t;

/** RrcDlCfgComm_t.bitMask: freqInfoDl is given */
#define RRC_DLCFGCOMM_FREQ_DL_PRESENCE (1 << 0)
/** RrcDlCfgComm_t.bitMask: bwpDlCommon is given */
#define RRC_DLCFGCOMM_INIT_DL_BWP_PRESENCE (1 << 1)

/** DownlinkConfigCommon */
typedef struct rrcDlCfgComm_s
{
    UINT8 bitMask;                     /**< bits RRC_DLCFGCOMM_..._PRESENCE */
    RrcFreqInfoDl_t freqInfoDl;        /**< frequencyInfoDL */
    NrBwpDownLinkCommon_t bwpDlCommon; /**< initialDownlinkBWP; composed by the distributed unit */
} RrcDlCfgComm_t;

/** RrcUlCfgComm_t.bitMask: freqInfoUl is given */
#define RRC_FREQ_INFO_UL_PRESENCE (1 << 0)
/** RrcUlCfgComm_t.bitMask: bwpUplink is given */
#define RRC_BWP_UPLINK_PRESENCE (1 << 1)

/** UplinkConfigCommon */
typedef struct rrcUlCfgComm_s
{
    UINT8 bitMask;              /**< bits RRC_FREQ_INFO_UL_PRESENCE and RRC_BWP_UPLINK_PRESENCE */
    RrcFreqInfoUl_t freqInfoUl; /**< frequencyInfoUL */
    InitialUlBwp_t bwpUplink;   /**< initialUplinkBWP; composed by the distributed unit */
    /**
     * dummy, always sent, TimeAlignmentTimer_...: 0 ms500, 1 ms750, 2 ms1280, 3 ms1920, 4 ms2560, 5 ms5120, 6 ms10240,
     * 7 infinity
     */
    UINT8 timeAlignmentTimer;
} RrcUlCfgComm_t;

/**
 * RrcBitMaps_t.symbolsInResourceBlockPresence: chooses symbolsInResourceBlock.oneSlot, in
 * symbolsInResourceBlock.oneSlot
 */
#define RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE (1 << 0)
/**
 * RrcBitMaps_t.symbolsInResourceBlockPresence: chooses symbolsInResourceBlock.twoSlots, in
 * symbolsInResourceBlock.twoSLots
 */
#define RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE (1 << 1)

/** RrcBitMaps_t.bitMask: periodictyAndPatternPresence and periodictyAndPattern are given */
#define RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE (1 << 0)

/** RrcBitMaps_t.periodictyAndPatternPresence: chooses periodicityAndPattern.n2, in periodictyAndPattern.n2 */
#define RRC_BITMAPS_PERIODICTY_PATTERN_N2_PRESENCE (1 << 0)
/** RrcBitMaps_t.periodictyAndPatternPresence: chooses periodicityAndPattern.n4, in periodictyAndPattern.n4 */
#define RRC_BITMAPS_PERIODICTY_PATTERN_N4_PRESENCE (1 << 1)
/** RrcBitMaps_t.periodictyAndPatternPresence: chooses periodicityAndPattern.n5, in periodictyAndPattern.n5 */
#define RRC_BITMAPS_PERIODICTY_PATTERN_N5_PRESENCE (1 << 2)
/** RrcBitMaps_t.periodictyAndPatternPresence: chooses periodicityAndPattern.n8, in periodictyAndPattern.n8 */
#define RRC_BITMAPS_PERIODICTY_PATTERN_N8_PRESENCE (1 << 3)
/** RrcBitMaps_t.periodictyAndPatternPresence: chooses periodicityAndPattern.n10, in periodictyAndPattern.n10 */
#define RRC_BITMAPS_PERIODICTY_PATTERN_N10_PRESENCE (1 << 4)
/** RrcBitMaps_t.periodictyAndPatternPresence: chooses periodicityAndPattern.n20, in periodictyAndPattern.n20 */
#define RRC_BITMAPS_PERIODICTY_PATTERN_N20_PRESENCE (1 << 5)
/** RrcBitMaps_t.periodictyAndPatternPresence: chooses periodicityAndPattern.n40, in periodictyAndPattern.n40 */
#define RRC_BITMAPS_PERIODICTY_PATTERN_N40_PRESENCE (1 << 6)

/** RateMatchPattern.patternType.bitmaps. Bit strings hold their first bit in the highest of their bits. */
typedef struct rrcBitMaps_s
{
    /**
     * resourceBlocks, 40 octets, of which 275 bits; as they lie in memory, the first bit the most significant of the
     * first octet. With no bit in symbolsInResourceBlockPresence the last four octets are the tag of
     * symbolsInResourceBlock.
     */
    UINT64 resourceBlocks[5];
    UINT8 symbolsInResourceBlockPresence; /**< bits RRC_BITMAPS_SYMBOLS_..._SLOT_PRESENCE */
    union
    {
        UINT16 oneSlot;                 /**< oneSlot, 14 bits */
        UINT32 twoSLots;                /**< twoSlots, 28 bits, of which the low 16 are sent */
    } symbolsInResourceBlock;           /**< symbolsInResourceBlock */
    UINT8 bitMask;                      /**< bits RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE */
    UINT8 periodictyAndPatternPresence; /**< bits RRC_BITMAPS_PERIODICTY_PATTERN_..._PRESENCE */
    union
    {
        UINT8 n2;           /**< n2, 2 bits */
        UINT8 n4;           /**< n4, 4 bits */
        UINT8 n5;           /**< n5, 5 bits */
        UINT8 n8;           /**< n8, 8 bits */
        UINT16 n10;         /**< n10, 10 bits */
        UINT32 n20;         /**< n20, 20 bits */
        UINT64 n40;         /**< n40, 40 bits */
    } periodictyAndPattern; /**< periodicityAndPattern */
} RrcBitMaps_t;

/** RrcRateMatchPattern_t.Presence: chooses patternType.bitmaps, in patternType.bitmaps */
#define RRC_PATTERN_TYPE_BITMAPS (1 << 0)
/** RrcRateMatchPattern_t.Presence: chooses patternType.controlResourceSet, in patternType.controlResourceSetId */
#define RRC_PATTERN_TYPE_SETID (1 << 1)

/** RrcRateMatchPattern_t.bitMask: subCarrierSapcing is given */
#define RRC_RATE_MATCH_PATTERN_SUB_CARRIER_SPACING_PRESENCE (1 << 0)

/** RateMatchPattern */
typedef struct rrcRateMatchPattern_s
{
    UINT8 rateMatchPatternId; /**< rateMatchPatternId, 0..3 */
    UINT8 dummy;              /**< dummy, always sent, RateMatchPattern_dummy_...: 0 dynamic, 1 semiStatic */
    UINT8 Presence;           /**< bits RRC_PATTERN_TYPE_... */
    union
    {
        RrcBitMaps_t bitmaps;       /**< bitmaps */
        UINT8 controlResourceSetId; /**< controlResourceSet, 0..11 */
    } patternType;                  /**< patternType */
    UINT8 bitMask;                  /**< bits RRC_RATE_MATCH_PATTERN_SUB_CARRIER_SPACING_PRESENCE */
    /** subcarrierSpacing, SubcarrierSpacing_...: 0 kHz15, 1 kHz30, 2 kHz60, 3 kHz120, 4 kHz240 */
    UINT8 subCarrierSapcing;
} RrcRateMatchPattern_t;

/**
 * RrcServingCellCfgCommon_t.ssbPosionBitMask: chooses ssb-PositionsInBurst.shortBitmap, in
 * RrcSsbPositionInBurst.shortBitmap
 */
#define SSB_POSITION_SHORT_BITMAP (1 << 0)
/**
 * RrcServingCellCfgCommon_t.ssbPosionBitMask: chooses ssb-PositionsInBurst.mediumBitmap, in
 * RrcSsbPositionInBurst.mediumBitmap
 */
#define SSB_POSITION_MEDIUM_BITMAP (1 << 1)
/**
 * RrcServingCellCfgCommon_t.ssbPosionBitMask: chooses ssb-PositionsInBurst.longBitmap, in
 * RrcSsbPositionInBurst.longBitmap; its octets are written, its tag is not: the encoder refuses a message with this bit
 */
#define SSB_POSITION_LONG_BITMAP (1 << 2)

/** RrcServingCellCfgCommon_t.bitMask: pci is given */
#define RRC_PHY_SCELL_Id (1 << 0)
/** RrcServingCellCfgCommon_t.bitMask: dlCfgComm is given */
#define RRC_DOWNLINK_CFG_COMMON (1 << 1)
/** RrcServingCellCfgCommon_t.bitMask: ulCfgComm is given */
#define RRC_UPLINK_CFG_COMMON (1 << 2)
/** RrcServingCellCfgCommon_t.bitMask: suppUlCfg is given */
#define RRC_SUPP_UPLINK_CFG_COMMON (1 << 3)
/** RrcServingCellCfgCommon_t.bitMask: nTimingAdvanceOffset is given */
#define RRC_TIMING_ADVANCE_OFFSET (1 << 4)
/** RrcServingCellCfgCommon_t.bitMask: ssbPosionBitMask and RrcSsbPositionInBurst are given */
#define RRC_SSB_POSITION_IN_BURST (1 << 5)
/** RrcServingCellCfgCommon_t.bitMask: ssbPeriodicityServingCell is given */
#define RRC_SSB_PERIOD_CITY_SERVING_CELL (1 << 6)
/** RrcServingCellCfgCommon_t.bitMask: subCarrierSpacing is given */
#define RRC_SUB_CARRIER_SPACING (1 << 7)
/** RrcServingCellCfgCommon_t.bitMask: tddUlDlCfgComm is given */
#define RRC_TDD_UL_DL_CFG_COMMON (1 << 8)

/** ServingCellConfigCommon. The rate-match lists are sent when their counts are not 0. */
typedef struct rrcServingCellCfgCommon_s
{
    /** dmrs-TypeA-Position, always sent, ServingCellConfigCommon_dmrs_TypeA_Position_...: 0 pos2, 1 pos3 */
    UINT8 dmrsTypeAPosition;
    /** ss-PBCH-BlockPower, -60..50, in dBm, as two's complement, always sent; -5 is 251 */
    UINT8 ssPbchBlockPower;
    /**
     * bits RRC_PHY_SCELL_Id and RRC_..._COMMON and RRC_TIMING_ADVANCE_OFFSET and RRC_SSB_... and
     * RRC_SUB_CARRIER_SPACING
     */
    UINT16 bitMask;
    UINT16 pci;               /**< physCellId, 0..1007 */
    RrcDlCfgComm_t dlCfgComm; /**< downlinkConfigCommon */
    RrcUlCfgComm_t ulCfgComm; /**< uplinkConfigCommon */
    RrcUlCfgComm_t suppUlCfg; /**< supplementaryUplinkConfig */
    /** n-TimingAdvanceOffset, ServingCellConfigCommon_n_TimingAdvanceOffset_...: 0 n0, 1 n25600, 2 n39936 */
    UINT8 nTimingAdvanceOffset;
    UINT8 ssbPosionBitMask; /**< bits SSB_POSITION_..._BITMAP */
    union
    {
        UINT8 shortBitmap : 4; /**< shortBitmap, 4 bits; SSB 0 in bit 3 */
        UINT8 mediumBitmap;    /**< mediumBitmap, 8 bits; SSB 0 in bit 7 */
        UINT64 longBitmap;     /**< longBitmap, 64 bits; SSB 0 in bit 63 */
    } RrcSsbPositionInBurst;   /**< ssb-PositionsInBurst */
    /**
     * ssb-periodicityServingCell, ServingCellConfigCommon_ssb_periodicityServingCell_...: 0 ms5, 1 ms10, 2 ms20,
     * 3 ms40, 4 ms80, 5 ms160
     */
    UINT8 ssbPeriodicityServingCell;
    UINT8 numRateMatchPatternAddMod; /**< entries used of rateMatchPatternToAddMod, 0..4 */
    RrcRateMatchPattern_t
        rateMatchPatternToAddMod[RRC_MAX_NROF_RATE_MATCH_PATTERNS]; /**< rateMatchPatternToAddModList */
    UINT8 numRateMatchPatternRelease;                               /**< entries used of rateMatchPatternId, 0..4 */
    UINT8 rateMatchPatternId[RRC_MAX_NROF_RATE_MATCH_PATTERNS];     /**< rateMatchPatternToReleaseList, each 0..3 */
    /** ssbSubcarrierSpacing, SubcarrierSpacing_...: 0 kHz15, 1 kHz30, 2 kHz60, 3 kHz120, 4 kHz240 */
    UINT8 subCarrierSpacing;
    TddUlDlCfgCom_t tddUlDlCfgComm; /**< tdd-UL-DL-ConfigurationCommon; composed by the distributed unit */
} RrcServingCellCfgCommon_t;

/** SSB-MTC */
typedef struct rrcSSBMTC_s
{
    /**
     * alternative of periodicityAndOffset, T_SSB_MTC_periodicityAndOffset_...: 1 sf5, 2 sf10, 3 sf20, 4 sf40, 5 sf80,
     * 6 sf160
     */
    UINT8 period;
    UINT8 offset;   /**< value by period, in subframes; below the period */
    UINT8 duration; /**< duration, SSB_MTC_duration_...: 0 sf1, 1 sf2, 2 sf3, 3 sf4, 4 sf5 */
} RrcSSBMTC_t;

/** explicit_s.bitMask: nrofDownlinkSymbols is given */
#define RRC_SLOTCFG_SYM_EXPLICIT_DL_PRESENCE (1 << 0)
/** explicit_s.bitMask: nrofUplinkSymbols is given */
#define RRC_SLOTCFG_SYM_EXPLICIT_UL_PRESENCE (1 << 1)

/** TDD-UL-DL-SlotConfig.symbols.explicit */
struct explicit_s
{
    UINT8 bitMask;             /**< bits RRC_SLOTCFG_SYM_EXPLICIT_..._PRESENCE */
    UINT8 nrofDownlinkSymbols; /**< nrofDownlinkSymbols, 1..13 */
    UINT8 nrofUplinkSymbols;   /**< nrofUplinkSymbols, 1..13 */
};

/** RrcTddUlDlSlotCfg_t.presence: not read; all symbols downlink is never composed */
#define RRC_SLOTCFG_SYM_ALLDL_PRESENCE (1 << 0)
/** RrcTddUlDlSlotCfg_t.presence: not read; all symbols uplink is never composed */
#define RRC_SLOTCFG_SYM_ALLUL_PRESENCE (1 << 1)
/** RrcTddUlDlSlotCfg_t.presence: chooses symbols.explicit, in explicit_t */
#define RRC_SLOTCFG_SYM_EXPLICIT_PRESENCE (1 << 2)

/** TDD-UL-DL-SlotConfig */
typedef struct rrcTddUlDlSlotCfg_s
{
    UINT16 slotIdx;               /**< slotIndex, 0..319 */
    UINT8 presence;               /**< bits RRC_SLOTCFG_SYM_..._PRESENCE */
    struct explicit_s explicit_t; /**< symbols.explicit */
} RrcTddUlDlSlotCfg_t;

#ifdef __cplusplus
}
#endif

#endif
