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
    UINT8 bitMask;                                  /**< FREQ_INFO_DL_ABS_FREQ_SSB */
    UINT32 absFreqSsb;                              /**< absoluteFrequencySSB, ARFCN 0..3279165 */
    UINT8 multiBandNum;                             /**< entries used of freqBandIndNr, 1..8 */
    UINT16 freqBandIndNr[RRC_MAX_NROF_MULTI_BANDS]; /**< frequencyBandList, each 1..1024 */
    UINT32 absFreqPointA;                           /**< absoluteFrequencyPointA, ARFCN 0..3279165 */
    UINT8 scsNum;                                   /**< entries used of speCarrier, 1..5 */
    SpecificCarrier_t speCarrier[RRC_MAX_NROF_SCS]; /**< scs-SpecificCarrierList */
} RrcFreqInfoDl_t;

/** RrcFreqInfoUl_t.bitMask: absFreqPointA is copied */
#define FREQ_INFO_UL_ABS_FREQ_POINTEA_PRESENCE (1 << 0)
/** RrcFreqInfoUl_t.bitMask: additionSpectrumEmission is copied */
#define FREQ_INFO_UL_ADDIRIONAL_SPECTRUM_EMISSION_PRESENCE (1 << 1)
/** RrcFreqInfoUl_t.bitMask: pMax is copied */
#define FREQ_INFO_UL_PMAX_PRESENCE (1 << 2)
/** RrcFreqInfoUl_t.bitMask: freqShift7p5khz is copied */
#define FREQ_INFO_UL_FREQ_SHIFT_7P5KHZ (1 << 3)

/** FrequencyInfoUL. The four members that bitMask guards are copied into the element and never sent. */
typedef struct rrcFreqInfoUl_s
{
    UINT8 bitMask;                                  /**< FREQ_INFO_UL_... */
    UINT8 multiBandNum;                             /**< entries used of freqBandIndNr, 0..8; 0: no list */
    UINT16 freqBandIndNr[RRC_MAX_NROF_MULTI_BANDS]; /**< frequencyBandList, each 1..1024 */
    UINT32 absFreqPointA;                           /**< absoluteFrequencyPointA, ARFCN 0..3279165; not sent */
    UINT8 scsNum;                                   /**< entries used of speCarrier, 1..5 */
    SpecificCarrier_t speCarrier[RRC_MAX_NROF_SCS]; /**< scs-SpecificCarrierList */
    UINT8 additionSpectrumEmission;                 /**< additionalSpectrumEmission, 0..7; not sent */
    INT8 pMax;                                      /**< p-Max in dBm, -30..33; not sent */
    UINT8 freqShift7p5khz;                          /**< frequencyShift7p5khz, enumeration true (0); not sent */
} RrcFreqInfoUl_t;

/** RrcDlCfgComm_t.bitMask: freqInfoDl is given */
#define RRC_DLCFGCOMM_FREQ_DL_PRESENCE (1 << 0)
/** RrcDlCfgComm_t.bitMask: bwpDlCommon is given */
#define RRC_DLCFGCOMM_INIT_DL_BWP_PRESENCE (1 << 1)

/** DownlinkConfigCommon */
typedef struct rrcDlCfgComm_s
{
    UINT8 bitMask;                     /**< RRC_DLCFGCOMM_..._PRESENCE */
    RrcFreqInfoDl_t freqInfoDl;        /**< frequencyInfoDL */
    NrBwpDownLinkCommon_t bwpDlCommon; /**< initialDownlinkBWP, composed by the distributed unit */
} RrcDlCfgComm_t;

/** RrcUlCfgComm_t.bitMask: freqInfoUl is given */
#define RRC_FREQ_INFO_UL_PRESENCE (1 << 0)
/** RrcUlCfgComm_t.bitMask: bwpUplink is given */
#define RRC_BWP_UPLINK_PRESENCE (1 << 1)

/** UplinkConfigCommon */
typedef struct rrcUlCfgComm_s
{
    UINT8 bitMask;              /**< RRC_FREQ_INFO_UL_PRESENCE, RRC_BWP_UPLINK_PRESENCE */
    RrcFreqInfoUl_t freqInfoUl; /**< frequencyInfoUL */
    InitialUlBwp_t bwpUplink;   /**< initialUplinkBWP, composed by the distributed unit */
    UINT8 timeAlignmentTimer;   /**< dummy, enumeration ms500.. (0..7); always sent */
} RrcUlCfgComm_t;

/** RrcBitMaps_t.symbolsInResourceBlockPresence: oneSlot is given */
#define RRC_BITMAPS_SYMBOLS_ONE_SLOT_PRESENCE (1 << 0)
/** RrcBitMaps_t.symbolsInResourceBlockPresence: twoSLots is given; wins over oneSlot */
#define RRC_BITMAPS_SYMBOLS_TWO_SLOT_PRESENCE (1 << 1)

/** RrcBitMaps_t.bitMask: periodictyAndPattern is given */
#define RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE (1 << 0)

/** RrcBitMaps_t.periodictyAndPatternPresence: the member given; the highest bit set wins */
#define RRC_BITMAPS_PERIODICTY_PATTERN_N2_PRESENCE (1 << 0)
#define RRC_BITMAPS_PERIODICTY_PATTERN_N4_PRESENCE (1 << 1)
#define RRC_BITMAPS_PERIODICTY_PATTERN_N5_PRESENCE (1 << 2)
#define RRC_BITMAPS_PERIODICTY_PATTERN_N8_PRESENCE (1 << 3)
#define RRC_BITMAPS_PERIODICTY_PATTERN_N10_PRESENCE (1 << 4)
#define RRC_BITMAPS_PERIODICTY_PATTERN_N20_PRESENCE (1 << 5)
#define RRC_BITMAPS_PERIODICTY_PATTERN_N40_PRESENCE (1 << 6)

/** RateMatchPattern.patternType.bitmaps. Bit strings hold their first bit in the highest of their bits. */
typedef struct rrcBitMaps_s
{
    /** resourceBlocks: 40 octets in memory order, the first 275 bits of them, the first one in the most significant bit
        of the first octet. With no bit in symbolsInResourceBlockPresence the last four octets are the tag of
        symbolsInResourceBlock. */
    UINT64 resourceBlocks[5];
    UINT8 symbolsInResourceBlockPresence; /**< RRC_BITMAPS_SYMBOLS_..._SLOT_PRESENCE */
    union
    {
        UINT16 oneSlot;                 /**< oneSlot, 14 bits */
        UINT32 twoSLots;                /**< twoSlots, 28 bits, of which only the low 16 are sent */
    } symbolsInResourceBlock;           /**< symbolsInResourceBlock */
    UINT8 bitMask;                      /**< RRC_BITMAPS_PERIODICTY_PATTERN_PRESENCE */
    UINT8 periodictyAndPatternPresence; /**< RRC_BITMAPS_PERIODICTY_PATTERN_N..._PRESENCE */
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

/** RrcRateMatchPattern_t.Presence: patternType.bitmaps is given */
#define RRC_PATTERN_TYPE_BITMAPS (1 << 0)
/** RrcRateMatchPattern_t.Presence: patternType.controlResourceSetId is given; wins over bitmaps */
#define RRC_PATTERN_TYPE_SETID (1 << 1)

/** RrcRateMatchPattern_t.bitMask: subCarrierSapcing is given */
#define RRC_RATE_MATCH_PATTERN_SUB_CARRIER_SPACING_PRESENCE (1 << 0)

/** RateMatchPattern */
typedef struct rrcRateMatchPattern_s
{
    UINT8 rateMatchPatternId; /**< rateMatchPatternId, 0..3 */
    UINT8 dummy;              /**< dummy, enumeration dynamic, semiStatic; always sent */
    UINT8 Presence;           /**< RRC_PATTERN_TYPE_BITMAPS or RRC_PATTERN_TYPE_SETID */
    union
    {
        RrcBitMaps_t bitmaps;       /**< bitmaps */
        UINT8 controlResourceSetId; /**< controlResourceSet, 0..11 */
    } patternType;                  /**< patternType */
    UINT8 bitMask;                  /**< RRC_RATE_MATCH_PATTERN_SUB_CARRIER_SPACING_PRESENCE */
    UINT8 subCarrierSapcing;        /**< subcarrierSpacing, enumeration kHz15.. (0..7) */
} RrcRateMatchPattern_t;

/** RrcServingCellCfgCommon_t.ssbPosionBitMask: shortBitmap is given */
#define SSB_POSITION_SHORT_BITMAP (1 << 0)
/** RrcServingCellCfgCommon_t.ssbPosionBitMask: mediumBitmap is given; wins over shortBitmap */
#define SSB_POSITION_MEDIUM_BITMAP (1 << 1)
/** RrcServingCellCfgCommon_t.ssbPosionBitMask: longBitmap is given. Its octets are written, its tag is not: a message
    with this bit is refused by the encoder. */
#define SSB_POSITION_LONG_BITMAP (1 << 2)

/** RrcServingCellCfgCommon_t.bitMask: physCellId is sent, from pci */
#define RRC_PHY_SCELL_Id (1 << 0)
/** RrcServingCellCfgCommon_t.bitMask: dlCfgComm is given */
#define RRC_DOWNLINK_CFG_COMMON (1 << 1)
/** RrcServingCellCfgCommon_t.bitMask: ulCfgComm is given */
#define RRC_UPLINK_CFG_COMMON (1 << 2)
/** RrcServingCellCfgCommon_t.bitMask: suppUlCfg is given */
#define RRC_SUPP_UPLINK_CFG_COMMON (1 << 3)
/** RrcServingCellCfgCommon_t.bitMask: nTimingAdvanceOffset is given */
#define RRC_TIMING_ADVANCE_OFFSET (1 << 4)
/** RrcServingCellCfgCommon_t.bitMask: RrcSsbPositionInBurst is given */
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
    UINT8 dmrsTypeAPosition;    /**< dmrs-TypeA-Position, enumeration pos2, pos3; always sent */
    UINT8 ssPbchBlockPower;     /**< ss-PBCH-BlockPower in dBm, the octet of the signed value -60..50; always sent */
    UINT16 bitMask;             /**< RRC_PHY_SCELL_Id .. RRC_TDD_UL_DL_CFG_COMMON */
    UINT16 pci;                 /**< physCellId, 0..1007 */
    RrcDlCfgComm_t dlCfgComm;   /**< downlinkConfigCommon */
    RrcUlCfgComm_t ulCfgComm;   /**< uplinkConfigCommon */
    RrcUlCfgComm_t suppUlCfg;   /**< supplementaryUplinkConfig */
    UINT8 nTimingAdvanceOffset; /**< n-TimingAdvanceOffset, enumeration n0, n25600, n39936 */
    UINT8 ssbPosionBitMask;     /**< SSB_POSITION_..._BITMAP */
    union
    {
        UINT8 shortBitmap : 4;       /**< shortBitmap, SSB 0 in bit 3 */
        UINT8 mediumBitmap;          /**< mediumBitmap, SSB 0 in bit 7 */
        UINT64 longBitmap;           /**< longBitmap, SSB 0 in bit 63 */
    } RrcSsbPositionInBurst;         /**< ssb-PositionsInBurst */
    UINT8 ssbPeriodicityServingCell; /**< ssb-periodicityServingCell, enumeration ms5.. (0..7) */
    UINT8 numRateMatchPatternAddMod; /**< entries used of rateMatchPatternToAddMod, 0..4 */
    /** rateMatchPatternToAddModList */
    RrcRateMatchPattern_t rateMatchPatternToAddMod[RRC_MAX_NROF_RATE_MATCH_PATTERNS];
    UINT8 numRateMatchPatternRelease;                           /**< entries used of rateMatchPatternId, 0..4 */
    UINT8 rateMatchPatternId[RRC_MAX_NROF_RATE_MATCH_PATTERNS]; /**< rateMatchPatternToReleaseList, each 0..3 */
    UINT8 subCarrierSpacing;                                    /**< ssbSubcarrierSpacing, enumeration kHz15.. (0..7) */
    TddUlDlCfgCom_t tddUlDlCfgComm; /**< tdd-UL-DL-ConfigurationCommon, composed by the distributed unit */
} RrcServingCellCfgCommon_t;

/** SSB-MTC */
typedef struct rrcSSBMTC_s
{
    UINT8 period;   /**< periodicityAndOffset, its tag: 1 sf5, 2 sf10, 3 sf20, 4 sf40, 5 sf80, 6 sf160 */
    UINT8 offset;   /**< the offset in subframes, from 0 to below the period */
    UINT8 duration; /**< duration, enumeration sf1.. (0..4) */
} RrcSSBMTC_t;

/** explicit_s.bitMask: nrofDownlinkSymbols is given */
#define RRC_SLOTCFG_SYM_EXPLICIT_DL_PRESENCE (1 << 0)
/** explicit_s.bitMask: nrofUplinkSymbols is given */
#define RRC_SLOTCFG_SYM_EXPLICIT_UL_PRESENCE (1 << 1)

/** TDD-UL-DL-SlotConfig.symbols.explicit */
struct explicit_s
{
    UINT8 bitMask;             /**< RRC_SLOTCFG_SYM_EXPLICIT_..._PRESENCE */
    UINT8 nrofDownlinkSymbols; /**< nrofDownlinkSymbols, 1..13 */
    UINT8 nrofUplinkSymbols;   /**< nrofUplinkSymbols, 1..13 */
};

/** RrcTddUlDlSlotCfg_t.presence: all symbols downlink; defined, never composed */
#define RRC_SLOTCFG_SYM_ALLDL_PRESENCE (1 << 0)
/** RrcTddUlDlSlotCfg_t.presence: all symbols uplink; defined, never composed */
#define RRC_SLOTCFG_SYM_ALLUL_PRESENCE (1 << 1)
/** RrcTddUlDlSlotCfg_t.presence: explicit_t is given */
#define RRC_SLOTCFG_SYM_EXPLICIT_PRESENCE (1 << 2)

/** TDD-UL-DL-SlotConfig */
typedef struct rrcTddUlDlSlotCfg_s
{
    UINT16 slotIdx;               /**< slotIndex, 0..319 */
    UINT8 presence;               /**< RRC_SLOTCFG_SYM_..._PRESENCE */
    struct explicit_s explicit_t; /**< symbols.explicit */
} RrcTddUlDlSlotCfg_t;

#ifdef __cplusplus
}
#endif

#endif
