#ifndef RRCCSIREPORT_H
#define RRCCSIREPORT_H

#include "vos_types.h"

/*
 * CSI report configurations of a serving cell (TS 38.331 CSI-ReportConfig) with their codebooks (CodebookConfig).
 * Enumerated fields hold the integer of the ASN.1 enumeration. Where a mask tells what a union holds, the highest bit
 * set wins.
 *
 * Bit strings: a string of at most 64 bits is an integer whose low bits are the string, its first bit the most
 * significant one; where a comment says "octets", the octets of the field are sent as they lie in memory.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** maxNrofCSI-ReportConfigurations */
#define RRC_MAX_NROF_CSI_REPORT_CFGS 48
/** maxNrofBWPs */
#define RRC_CSI_REPORT_CFG_MAX_NROF_BWPS 4
/** maxNrofUL-Allocations */
#define RRC_CSI_REPORT_CFG_MAX_NROF_ULALLOCATION 16

/** CSI-ReportPeriodicityAndOffset */
typedef struct csiReportPeriodAndOffset_s
{
    /**
     * alternative of itself, T_CSI_ReportPeriodicityAndOffset_...: 1 slots4, 2 slots5, 3 slots8, 4 slots10, 5 slots16,
     * 6 slots20, 7 slots40, 8 slots80, 9 slots160, 10 slots320
     */
    UINT8 periodicity;
    /** value by periodicity, in slots; below the period, 256..319 of slots320 cannot be given */
    UINT8 offset;
} csiReportPeriodAndOffset_t;

/** PUCCH-CSI-Resource */
typedef struct pucchCsiResource_s
{
    UINT8 UlBwpId;         /**< uplinkBandwidthPartId, 0..4 */
    UINT8 PucchResourceId; /**< pucch-Resource, 0..127 */
} PucchCsiResource_t;

/** CSI-ReportConfig.reportConfigType.periodic */
typedef struct Csiperiodic_s
{
    csiReportPeriodAndOffset_t reportSlotCfg; /**< reportSlotConfig */
    UINT8 pucchCsiResourceNum;                /**< entries used of pucchCsiResource, 1..4 */
    PucchCsiResource_t pucchCsiResource[RRC_CSI_REPORT_CFG_MAX_NROF_BWPS]; /**< pucch-CSI-ResourceList */
} Periodic_t;

/** CSI-ReportConfig.reportConfigType.semiPersistentOnPUCCH */
typedef struct semiPersistentOnPucch_s
{
    csiReportPeriodAndOffset_t reportSlotCfg; /**< reportSlotConfig */
    UINT8 pucchCsiResourceNum;                /**< entries used of pucchCsiResource, 1..4 */
    PucchCsiResource_t pucchCsiResource[RRC_CSI_REPORT_CFG_MAX_NROF_BWPS]; /**< pucch-CSI-ResourceList */
} SemiPersistentOnPucch_t;

/** CSI-ReportConfig.reportConfigType.semiPersistentOnPUSCH */
typedef struct semiPersistentOnPuSch_s
{
    /**
     * reportSlotConfig, CSI_ReportConfig_reportConfigType_semiPersistentOnPUSCH_reportSlotConfig_...: 0 sl5, 1 sl10,
     * 2 sl20, 3 sl40, 4 sl80, 5 sl160, 6 sl320
     */
    UINT8 reportSlotCfg;
    UINT8 reportSlotOffsetNum;                                        /**< entries used of reportSlotOffset, 1..16 */
    UINT8 reportSlotOffset[RRC_CSI_REPORT_CFG_MAX_NROF_ULALLOCATION]; /**< reportSlotOffsetList, each 0..32, in slots */
    UINT8 p0PuschAlphaSetId;                                          /**< p0alpha, 0..29 */
} SemiPersistentOnPuSch_t;

/** CSI-ReportConfig.reportConfigType.aperiodic */
typedef struct Csiaperiodic_s
{
    UINT8 reportSlotOffsetNum;                                        /**< entries used of reportSlotOffset, 1..16 */
    UINT8 reportSlotOffset[RRC_CSI_REPORT_CFG_MAX_NROF_ULALLOCATION]; /**< reportSlotOffsetList, each 0..32, in slots */
} Aperiodic_t;

/** CSI-ReportConfig.reportConfigType */
union reportCfgType_u
{
    Periodic_t periodic;                           /**< periodic */
    SemiPersistentOnPucch_t semiPersistentOnPucch; /**< semiPersistentOnPUCCH */
    SemiPersistentOnPuSch_t semiPersistentOnPusch; /**< semiPersistentOnPUSCH */
    Aperiodic_t aperiodic;                         /**< aperiodic */
};

/** CriRiI1Cqi_t.bitMask: PdschBundleSizeForCsi is given */
#define RRC_CSI_REPORT_PUSCH_BUNDLE_SIZE_FOR_CSI_PRESENCE (1 << 0)

/** CSI-ReportConfig.reportQuantity.cri-RI-i1-CQI */
typedef struct criRiI1Cqi_s
{
    UINT8 bitMask; /**< bits RRC_CSI_REPORT_PUSCH_BUNDLE_SIZE_FOR_CSI_PRESENCE */
    /** pdsch-BundleSizeForCSI, CSI_ReportConfig_reportQuantity_cri_RI_i1_CQI_pdsch_BundleSizeForCSI_...: 0 n2, 1 n4 */
    UINT8 PdschBundleSizeForCsi;
} CriRiI1Cqi_t;

/** CSI-ReportConfig.reportQuantity; the one alternative that has content */
union reportQuantity_u
{
    CriRiI1Cqi_t criRiI1Cqi; /**< cri-RI-i1-CQI */
};

/** ReportFreqCfg_t.bitMask: CqiFormatInd is given */
#define RRC_REPORT_FREQ_CFG_CQI_FORMAT_IND_PRESENCE (1 << 0)
/** ReportFreqCfg_t.bitMask: PmiFormatInd is given */
#define RRC_REPORT_FREQ_CFG_PMI_FORMAT_IND_PRESENCE (1 << 1)
/** ReportFreqCfg_t.bitMask: csiRptBandBitMask and CsiReportingBand_n are given */
#define RRC_REPORT_FREQ_CFG_CSI_REPORTINT_BAND_PRESENCE (1 << 2)

/** ReportFreqCfg_t.csiRptBandBitMask: chooses csi-ReportingBand.subbands3, in CsiReportingBand_n.subbands3 */
#define RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS3 (1 << 0)
/** ReportFreqCfg_t.csiRptBandBitMask: chooses csi-ReportingBand.subbands4, in CsiReportingBand_n.subbands4 */
#define RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS4 (1 << 1)
/** ReportFreqCfg_t.csiRptBandBitMask: chooses csi-ReportingBand.subbands5, in CsiReportingBand_n.subbands5 */
#define RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS5 (1 << 2)
/** ReportFreqCfg_t.csiRptBandBitMask: chooses csi-ReportingBand.subbands6, in CsiReportingBand_n.subbands6 */
#define RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS6 (1 << 3)
/** ReportFreqCfg_t.csiRptBandBitMask: chooses csi-ReportingBand.subbands7, in CsiReportingBand_n.subbands7 */
#define RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS7 (1 << 4)
/** ReportFreqCfg_t.csiRptBandBitMask: chooses csi-ReportingBand.subbands8, in CsiReportingBand_n.subbands8 */
#define RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS8 (1 << 5)
/** ReportFreqCfg_t.csiRptBandBitMask: chooses csi-ReportingBand.subbands9, in CsiReportingBand_n.subbands9 */
#define RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS9 (1 << 6)
/** ReportFreqCfg_t.csiRptBandBitMask: chooses csi-ReportingBand.subbands10, in CsiReportingBand_n.subbands10 */
#define RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS10 (1 << 7)
/** ReportFreqCfg_t.csiRptBandBitMask: chooses csi-ReportingBand.subbands11, in CsiReportingBand_n.subbands11 */
#define RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS11 (1 << 8)
/** ReportFreqCfg_t.csiRptBandBitMask: chooses csi-ReportingBand.subbands12, in CsiReportingBand_n.subbands12 */
#define RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS12 (1 << 9)
/** ReportFreqCfg_t.csiRptBandBitMask: chooses csi-ReportingBand.subbands13, in CsiReportingBand_n.subbands13 */
#define RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS13 (1 << 10)
/** ReportFreqCfg_t.csiRptBandBitMask: chooses csi-ReportingBand.subbands14, in CsiReportingBand_n.subbands14 */
#define RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS14 (1 << 11)
/** ReportFreqCfg_t.csiRptBandBitMask: chooses csi-ReportingBand.subbands15, in CsiReportingBand_n.subbands15 */
#define RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS15 (1 << 12)
/** ReportFreqCfg_t.csiRptBandBitMask: chooses csi-ReportingBand.subbands16, in CsiReportingBand_n.subbands16 */
#define RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS16 (1 << 13)
/** ReportFreqCfg_t.csiRptBandBitMask: chooses csi-ReportingBand.subbands17, in CsiReportingBand_n.subbands17 */
#define RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS17 (1 << 14)
/** ReportFreqCfg_t.csiRptBandBitMask: chooses csi-ReportingBand.subbands18, in CsiReportingBand_n.subbands18 */
#define RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS18 (1 << 15)
/**
 * ReportFreqCfg_t.csiRptBandBitMask: chooses csi-ReportingBand.subbands19-v1530, in CsiReportingBand_n.subbands19_v1530
 */
#define RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_SUBBANDS19_V1530 (1 << 16)

/** CSI-ReportConfig.reportFreqConfiguration.csi-ReportingBand */
union csiReportingBand_u
{
    UINT32 subbands3 : 3;         /**< subbands3, 3 bits */
    UINT32 subbands4 : 4;         /**< subbands4, 4 bits */
    UINT32 subbands5 : 5;         /**< subbands5, 5 bits */
    UINT32 subbands6 : 6;         /**< subbands6, 6 bits */
    UINT32 subbands7 : 7;         /**< subbands7, 7 bits */
    UINT32 subbands8 : 8;         /**< subbands8, 8 bits */
    UINT32 subbands9 : 9;         /**< subbands9, 9 bits */
    UINT32 subbands10 : 10;       /**< subbands10, 10 bits */
    UINT32 subbands11 : 11;       /**< subbands11, 11 bits */
    UINT32 subbands12 : 12;       /**< subbands12, 12 bits */
    UINT32 subbands13 : 13;       /**< subbands13, 13 bits */
    UINT32 subbands14 : 14;       /**< subbands14, 14 bits */
    UINT32 subbands15 : 15;       /**< subbands15, 15 bits */
    UINT32 subbands16 : 16;       /**< subbands16, 16 bits */
    UINT32 subbands17 : 17;       /**< subbands17, 17 bits */
    UINT32 subbands18 : 18;       /**< subbands18, 18 bits */
    UINT32 subbands19_v1530 : 19; /**< subbands19-v1530, 19 bits */
};

/** CSI-ReportConfig.reportFreqConfiguration */
typedef struct reportFreqCfg_s
{
    UINT8 bitMask; /**< bits RRC_REPORT_FREQ_CFG_..._PRESENCE */
    /**
     * cqi-FormatIndicator, CSI_ReportConfig_reportFreqConfiguration_cqi_FormatIndicator_...: 0 widebandCQI,
     * 1 subbandCQI
     */
    UINT8 CqiFormatInd;
    /**
     * pmi-FormatIndicator, CSI_ReportConfig_reportFreqConfiguration_pmi_FormatIndicator_...: 0 widebandPMI,
     * 1 subbandPMI
     */
    UINT8 PmiFormatInd;
    UINT32 csiRptBandBitMask;                    /**< bits RRC_REPORT_FREQ_CFG_CSI_REPORT_BAND_... */
    union csiReportingBand_u CsiReportingBand_n; /**< csi-ReportingBand */
} ReportFreqCfg_t;

/** CodebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts.two */
struct nrOfAntennaPorts_two
{
    UINT8 twoTX_CodebookSubsetRestrict : 6; /**< twoTX-CodebookSubsetRestriction, 6 bits */
};

/**
 * nrOfAntennaPorts_moreThanTwo.bitMask: N1_N2_Presence and MoreThanTwo_n1_n2_u are given; without it the encoder
 * refuses the codebook
 */
#define RRC_MORE_THAN_TWO_N1_N2_PRESENCE (1 << 0)
/** nrOfAntennaPorts_moreThanTwo.bitMask: typeI_SinglePanel_CodebookSubsetRestriction_i2 is given */
#define RRC_SINGLE_PANEL_CODEBOOK_SUBSET_RESTRICT_I2 (1 << 1)

/**
 * nrOfAntennaPorts_moreThanTwo.N1_N2_Presence: chooses n1-n2.two-one-TypeI-SinglePanel-Restriction, in
 * MoreThanTwo_n1_n2_u.two_one
 */
#define RRC_TWO_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE (1 << 0)
/**
 * nrOfAntennaPorts_moreThanTwo.N1_N2_Presence: chooses n1-n2.two-two-TypeI-SinglePanel-Restriction, in
 * MoreThanTwo_n1_n2_u.two_two
 */
#define RRC_TWO_TWO_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE (1 << 1)
/**
 * nrOfAntennaPorts_moreThanTwo.N1_N2_Presence: chooses n1-n2.four-one-TypeI-SinglePanel-Restriction, in
 * MoreThanTwo_n1_n2_u.four_one
 */
#define RRC_FOUR_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE (1 << 2)
/**
 * nrOfAntennaPorts_moreThanTwo.N1_N2_Presence: chooses n1-n2.three-two-TypeI-SinglePanel-Restriction, in
 * MoreThanTwo_n1_n2_u.three_two
 */
#define RRC_THREE_TWO_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE (1 << 3)
/**
 * nrOfAntennaPorts_moreThanTwo.N1_N2_Presence: chooses n1-n2.six-one-TypeI-SinglePanel-Restriction, in
 * MoreThanTwo_n1_n2_u.six_one
 */
#define RRC_SIX_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE (1 << 4)
/**
 * nrOfAntennaPorts_moreThanTwo.N1_N2_Presence: chooses n1-n2.four-two-TypeI-SinglePanel-Restriction, in
 * MoreThanTwo_n1_n2_u.four_two
 */
#define RRC_FOUR_TWO_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE (1 << 5)
/**
 * nrOfAntennaPorts_moreThanTwo.N1_N2_Presence: chooses n1-n2.eight-one-TypeI-SinglePanel-Restriction, in
 * MoreThanTwo_n1_n2_u.eight_one
 */
#define RRC_EIGHT_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE (1 << 6)
/**
 * nrOfAntennaPorts_moreThanTwo.N1_N2_Presence: chooses n1-n2.four-three-TypeI-SinglePanel-Restriction, in
 * MoreThanTwo_n1_n2_u.four_three
 */
#define RRC_FOUR_THREE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE (1 << 7)
/**
 * nrOfAntennaPorts_moreThanTwo.N1_N2_Presence: chooses n1-n2.six-two-TypeI-SinglePanel-Restriction, in
 * MoreThanTwo_n1_n2_u.six_two
 */
#define RRC_SIX_TWO_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE (1 << 8)
/**
 * nrOfAntennaPorts_moreThanTwo.N1_N2_Presence: chooses n1-n2.twelve-one-TypeI-SinglePanel-Restriction, in
 * MoreThanTwo_n1_n2_u.twelve_one
 */
#define RRC_TWELVE_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE (1 << 9)
/**
 * nrOfAntennaPorts_moreThanTwo.N1_N2_Presence: chooses n1-n2.four-four-TypeI-SinglePanel-Restriction, in
 * MoreThanTwo_n1_n2_u.four_four
 */
#define RRC_FOUR_FOUR_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE (1 << 10)
/**
 * nrOfAntennaPorts_moreThanTwo.N1_N2_Presence: chooses n1-n2.eight-two-TypeI-SinglePanel-Restriction, in
 * MoreThanTwo_n1_n2_u.eight_two
 */
#define RRC_EIGHT_TWO_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE (1 << 11)
/**
 * nrOfAntennaPorts_moreThanTwo.N1_N2_Presence: chooses n1-n2.sixteen-one-TypeI-SinglePanel-Restriction, in
 * MoreThanTwo_n1_n2_u.sixteen_one
 */
#define RRC_SIXTEEN_ONE_TYPEI_SINGLEPANEL_RESTRICT_PRESENCE (1 << 12)

/** CodebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts.moreThanTwo.n1-n2 */
union moreThanTwo_SinglePanel_n1_n2_u
{
    UINT8 two_one;        /**< two-one-TypeI-SinglePanel-Restriction, 8 bits */
    UINT64 two_two;       /**< two-two-TypeI-SinglePanel-Restriction, 8 octets */
    UINT16 four_one;      /**< four-one-TypeI-SinglePanel-Restriction, 16 bits */
    UINT8 three_two[12];  /**< three-two-TypeI-SinglePanel-Restriction, 12 octets */
    UINT32 six_one;       /**< six-one-TypeI-SinglePanel-Restriction, 24 bits */
    UINT8 four_two[16];   /**< four-two-TypeI-SinglePanel-Restriction, 16 octets */
    UINT32 eight_one;     /**< eight-one-TypeI-SinglePanel-Restriction, 32 bits */
    UINT8 four_three[24]; /**< four-three-TypeI-SinglePanel-Restriction, 24 octets */
    UINT8 six_two[24];    /**< six-two-TypeI-SinglePanel-Restriction, 24 octets */
    UINT64 twelve_one;    /**< twelve-one-TypeI-SinglePanel-Restriction, 48 bits */
    UINT8 four_four[32];  /**< four-four-TypeI-SinglePanel-Restriction, 32 octets */
    UINT8 eight_two[32];  /**< eight-two-TypeI-SinglePanel-Restriction, 32 octets */
    UINT64 sixteen_one;   /**< sixteen-one-TypeI-SinglePanel-Restriction, 8 octets */
};

/** CodebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts.moreThanTwo */
struct nrOfAntennaPorts_moreThanTwo
{
    /** bits RRC_MORE_THAN_TWO_N1_N2_PRESENCE and RRC_SINGLE_PANEL_CODEBOOK_SUBSET_RESTRICT_I2 */
    UINT8 bitMask;
    UINT16 N1_N2_Presence;                                      /**< bits RRC_..._TYPEI_SINGLEPANEL_RESTRICT_PRESENCE */
    union moreThanTwo_SinglePanel_n1_n2_u MoreThanTwo_n1_n2_u;  /**< n1-n2 */
    UINT16 typeI_SinglePanel_CodebookSubsetRestriction_i2 : 16; /**< typeI-SinglePanel-codebookSubsetRestriction-i2, 16
                                                                   bits */
};

/** SinglePanel_nrOfAntennaPorts_t.Presence: chooses two, in NrOfAntennaPorts_n.two */
#define RRC_NROF_ANTENNA_PORTS_TWO_PRESENCE (1 << 0)
/** SinglePanel_nrOfAntennaPorts_t.Presence: chooses moreThanTwo, in NrOfAntennaPorts_n.moreThanTwo */
#define RRC_NROF_ANTENNA_PORTS_MORE_THANTWO_PRESENCE (1 << 1)

/** CodebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts */
union nrOfAntennaPorts_u
{
    struct nrOfAntennaPorts_two two;                 /**< two */
    struct nrOfAntennaPorts_moreThanTwo moreThanTwo; /**< moreThanTwo */
};

/** CodebookConfig.codebookType.type1.subType.typeI-SinglePanel.nrOfAntennaPorts */
typedef struct SinglePanel_nrOfAntennaPorts_s
{
    UINT8 Presence;                              /**< bits RRC_NROF_ANTENNA_PORTS_..._PRESENCE */
    union nrOfAntennaPorts_u NrOfAntennaPorts_n; /**< itself */
} SinglePanel_nrOfAntennaPorts_t;

/** CodebookConfig.codebookType.type1.subType.typeI-SinglePanel */
typedef struct CodeBookTypeSinglePanel_s
{
    SinglePanel_nrOfAntennaPorts_t SinglePanel_nrOfAntennaPorts; /**< nrOfAntennaPorts */
    UINT8 typeI_SinglePanel_ri_Restriction : 8;                  /**< typeI-SinglePanel-ri-Restriction, 8 bits */
} CodeBookTypeSinglePanel_t;

/**
 * CodeBookTypeMultiPanel_t.bitMask: MultiPanel_Presence and MultiPanel_Restrict_u are given; without it the encoder
 * refuses the codebook
 */
#define RRC_MULTI_PANEL_RESTRICT (1 << 0)
/** CodeBookTypeMultiPanel_t.bitMask: ri_Restriction is given */
#define RRC_RI_RESTRICTION (1 << 1)

/**
 * CodeBookTypeMultiPanel_t.MultiPanel_Presence: chooses ng-n1-n2.two-two-one-TypeI-MultiPanel-Restriction, in
 * MultiPanel_Restrict_u.two_two_one
 */
#define RRC_TWO_TWO_ONE_TYPEI_MULTIPANEL_RESTRICT_PRESENCE (1 << 0)
/**
 * CodeBookTypeMultiPanel_t.MultiPanel_Presence: chooses ng-n1-n2.two-four-one-TypeI-MultiPanel-Restriction, in
 * MultiPanel_Restrict_u.two_four_one
 */
#define RRC_TWO_FOUR_ONE_TYPEI_MULTIPANEL_RESTRICT_PRESENCE (1 << 1)
/**
 * CodeBookTypeMultiPanel_t.MultiPanel_Presence: chooses ng-n1-n2.four-two-one-TypeI-MultiPanel-Restriction, in
 * MultiPanel_Restrict_u.four_two_one
 */
#define RRC_FOUR_TWO_ONE_TYPEI_MULTIPANEL_RESTRICT_PRESENCE (1 << 2)
/**
 * CodeBookTypeMultiPanel_t.MultiPanel_Presence: chooses ng-n1-n2.two-two-two-TypeI-MultiPanel-Restriction, in
 * MultiPanel_Restrict_u.two_two_two
 */
#define RRC_TWO_TWO_TWO_TYPEI_MULTIPANEL_RESTRICT_PRESENCE (1 << 3)
/**
 * CodeBookTypeMultiPanel_t.MultiPanel_Presence: chooses ng-n1-n2.two-eight-one-TypeI-MultiPanel-Restriction, in
 * MultiPanel_Restrict_u.two_eight_one
 */
#define RRC_TWO_EIGHT_ONE_TYPEI_MULTIPANEL_RESTRICT_PRESENCE (1 << 4)
/**
 * CodeBookTypeMultiPanel_t.MultiPanel_Presence: chooses ng-n1-n2.four-four-one-TypeI-MultiPanel-Restriction, in
 * MultiPanel_Restrict_u.four_four_one
 */
#define RRC_FOUR_FOUR_ONE_TYPEI_MULTIPANEL_RESTRICT_PRESENCE (1 << 5)
/**
 * CodeBookTypeMultiPanel_t.MultiPanel_Presence: chooses ng-n1-n2.two-four-two-TypeI-MultiPanel-Restriction, in
 * MultiPanel_Restrict_u.two_four_two
 */
#define RRC_TWO_FOUR_TWO_TYPEI_MULTIPANEL_RESTRICT_PRESENCE (1 << 6)
/**
 * CodeBookTypeMultiPanel_t.MultiPanel_Presence: chooses ng-n1-n2.four-two-two-TypeI-MultiPanel-Restriction, in
 * MultiPanel_Restrict_u.four_two_two
 */
#define RRC_FOUR_TWO_TWO_TYPEI_MULTIPANEL_RESTRICT_PRESENCE (1 << 7)

/** CodebookConfig.codebookType.type1.subType.typeI-MultiPanel.ng-n1-n2 */
union MultiPanel_ng_n1_n2_u
{
    UINT8 two_two_one;      /**< two-two-one-TypeI-MultiPanel-Restriction, 8 bits */
    UINT16 two_four_one;    /**< two-four-one-TypeI-MultiPanel-Restriction, 16 bits */
    UINT8 four_two_one;     /**< four-two-one-TypeI-MultiPanel-Restriction, 8 bits */
    UINT64 two_two_two;     /**< two-two-two-TypeI-MultiPanel-Restriction, 8 octets */
    UINT32 two_eight_one;   /**< two-eight-one-TypeI-MultiPanel-Restriction, 32 bits */
    UINT16 four_four_one;   /**< four-four-one-TypeI-MultiPanel-Restriction, 16 bits */
    UINT8 two_four_two[16]; /**< two-four-two-TypeI-MultiPanel-Restriction, 16 octets */
    UINT64 four_two_two;    /**< four-two-two-TypeI-MultiPanel-Restriction, 8 octets */
};

/** CodebookConfig.codebookType.type1.subType.typeI-MultiPanel. ri-Restriction leaves the composers 8 bits long, or
    empty, and has 4 bits on the air: the encoder refuses every message with this codebook. */
typedef struct CodeBookTypeMultiPanel_s
{
    UINT8 bitMask;                                     /**< bits RRC_MULTI_PANEL_RESTRICT and RRC_RI_RESTRICTION */
    UINT16 MultiPanel_Presence;                        /**< bits RRC_..._TYPEI_MULTIPANEL_RESTRICT_PRESENCE */
    union MultiPanel_ng_n1_n2_u MultiPanel_Restrict_u; /**< ng-n1-n2 */
    /** ri-Restriction, 4 bits; what the composers make of it has 8, which the encoder refuses */
    UINT8 ri_Restriction : 8;
} CodeBookTypeMultiPanel_t;

/** CodebookType1_Sub_t.Presence: chooses typeI-SinglePanel, in CodeBookTypePanel_u.singlePanel */
#define RRC_CODE_BOOK_TYPE_SINGLE_PANEL (1 << 0)
/** CodebookType1_Sub_t.Presence: chooses typeI-MultiPanel, in CodeBookTypePanel_u.multiPanel */
#define RRC_CODE_BOOK_TYPE_MULTI_PANEL (1 << 1)

/** CodebookConfig.codebookType.type1.subType */
union codeBookTypePanel_u
{
    CodeBookTypeSinglePanel_t singlePanel; /**< typeI-SinglePanel */
    CodeBookTypeMultiPanel_t multiPanel;   /**< typeI-MultiPanel */
};

/** CodebookConfig.codebookType.type1.subType */
typedef struct CodebookType1_Sub_s
{
    UINT8 Presence;                                /**< bits RRC_CODE_BOOK_TYPE_..._PANEL */
    union codeBookTypePanel_u CodeBookTypePanel_u; /**< itself */
} CodebookType1_Sub_t;

/** CodebookConfig.codebookType.type1 */
typedef struct codeBookType1_s
{
    CodebookType1_Sub_t codebookType1_Sub; /**< subType */
    UINT8 CodebookMode;                    /**< codebookMode, 1..2 */
} CodeBookType1_t;

/**
 * subType_typeII.Restriction_Presence: chooses n1-n2-codebookSubsetRestriction.two-one, in SubsetRestriction_u.two_one
 */
#define RRC_SUB_SET_RESTRICT_TWO_ONE_PRESENCE (1 << 0)
/**
 * subType_typeII.Restriction_Presence: chooses n1-n2-codebookSubsetRestriction.two-two, in SubsetRestriction_u.two_two
 */
#define RRC_SUB_SET_RESTRICT_TWO_TWO_PRESENCE (1 << 1)
/**
 * subType_typeII.Restriction_Presence: chooses n1-n2-codebookSubsetRestriction.four-one, in
 * SubsetRestriction_u.four_one
 */
#define RRC_SUB_SET_RESTRICT_FOUR_ONE_PRESENCE (1 << 2)
/**
 * subType_typeII.Restriction_Presence: chooses n1-n2-codebookSubsetRestriction.three-two, in
 * SubsetRestriction_u.three_two
 */
#define RRC_SUB_SET_RESTRICT_THREE_TWO_PRESENCE (1 << 3)
/**
 * subType_typeII.Restriction_Presence: chooses n1-n2-codebookSubsetRestriction.six-one, in SubsetRestriction_u.six_one
 */
#define RRC_SUB_SET_RESTRICT_SIX_ONE_PRESENCE (1 << 4)
/**
 * subType_typeII.Restriction_Presence: chooses n1-n2-codebookSubsetRestriction.four-two, in
 * SubsetRestriction_u.four_two
 */
#define RRC_SUB_SET_RESTRICT_FOUR_TWO_PRESENCE (1 << 5)
/**
 * subType_typeII.Restriction_Presence: chooses n1-n2-codebookSubsetRestriction.eight-one, in
 * SubsetRestriction_u.eight_one
 */
#define RRC_SUB_SET_RESTRICT_EIGHT_ONE_PRESENCE (1 << 6)
/**
 * subType_typeII.Restriction_Presence: chooses n1-n2-codebookSubsetRestriction.four-three, in
 * SubsetRestriction_u.four_three
 */
#define RRC_SUB_SET_RESTRICT_FOUR_THREE_PRESENCE (1 << 7)
/**
 * subType_typeII.Restriction_Presence: chooses n1-n2-codebookSubsetRestriction.six-two, in SubsetRestriction_u.six_two
 */
#define RRC_SUB_SET_RESTRICT_SIX_TWO_PRESENCE (1 << 8)
/**
 * subType_typeII.Restriction_Presence: chooses n1-n2-codebookSubsetRestriction.twelve-one, in
 * SubsetRestriction_u.twelve_one
 */
#define RRC_SUB_SET_RESTRICT_TWELVE_ONE_PRESENCE (1 << 9)
/**
 * subType_typeII.Restriction_Presence: chooses n1-n2-codebookSubsetRestriction.four-four, in
 * SubsetRestriction_u.four_four
 */
#define RRC_SUB_SET_RESTRICT_FOUR_FOUR_PRESENCE (1 << 10)
/**
 * subType_typeII.Restriction_Presence: chooses n1-n2-codebookSubsetRestriction.eight-two, in
 * SubsetRestriction_u.eight_two
 */
#define RRC_SUB_SET_RESTRICT_EIGHT_TWO_PRESENCE (1 << 11)
/**
 * subType_typeII.Restriction_Presence: chooses n1-n2-codebookSubsetRestriction.sixteen-one, in
 * SubsetRestriction_u.sixteen_one
 */
#define RRC_SUB_SET_RESTRICT_SIXTEEN_ONE_PRESENCE (1 << 12)
/** subType_typeII.Restriction_Presence: TypeII_RI_Restriction is given; without it the encoder refuses the codebook */
#define RRC_TYPEII_RI_RESTRICTION_PRESENCE (1 << 13)

/**
 * CodebookConfig.codebookType.type2.subType.typeII.n1-n2-codebookSubsetRestriction. Strings sent as octets whose length
 * is no multiple of 8 use the most significant bits of the last octet; the others are not sent.
 */
union subsetRestriction_u
{
    UINT16 two_one;        /**< two-one, 16 bits */
    UINT64 two_two;        /**< two-two, 43 bits */
    UINT32 four_one;       /**< four-one, 32 bits */
    UINT64 three_two;      /**< three-two, 59 bits */
    UINT64 six_one;        /**< six-one, 48 bits */
    UINT8 four_two[10];    /**< four-two, 10 octets, of which 75 bits */
    UINT64 eight_one;      /**< eight-one, 64 bits */
    UINT8 four_three[14];  /**< four-three, 14 octets, of which 107 bits */
    UINT8 six_two[14];     /**< six-two, 14 octets, of which 107 bits */
    UINT8 twelve_one[12];  /**< twelve-one, 12 octets */
    UINT8 four_four[18];   /**< four-four, 18 octets, of which 139 bits */
    UINT8 eight_two[18];   /**< eight-two, 18 octets, of which 139 bits */
    UINT8 sixteen_one[16]; /**< sixteen-one, 16 octets */
};

/** CodebookConfig.codebookType.type2.subType.typeII */
struct subType_typeII
{
    /** bits RRC_SUB_SET_RESTRICT_..._PRESENCE and RRC_TYPEII_RI_RESTRICTION_PRESENCE */
    UINT16 Restriction_Presence;
    union subsetRestriction_u SubsetRestriction_u; /**< n1-n2-codebookSubsetRestriction */
    UINT8 TypeII_RI_Restriction : 2;               /**< typeII-RI-Restriction, 2 bits */
};

/** typeII_PortSelection.bitMask: portSelectionSamplingSize is given */
#define RRC_PORT_SELEXTION_SAMPLING_SIZE (1 << 0)

/** CodebookConfig.codebookType.type2.subType.typeII-PortSelection */
struct typeII_PortSelection
{
    UINT8 bitMask; /**< bits RRC_PORT_SELEXTION_SAMPLING_SIZE */
    /**
     * portSelectionSamplingSize,
     * CodebookConfig_codebookType_type2_subType_typeII_PortSelection_portSelectionSamplingSize_...: 0 n1, 1 n2, 2 n3,
     * 3 n4
     */
    UINT8 portSelectionSamplingSize;
    UINT8 typeII_PortSelectionRI_Restriction : 2; /**< typeII-PortSelectionRI-Restriction, 2 bits */
};

/** Codebooktype2_Sub_t.Presence: chooses typeII, in Type2_subType_u.subType_typeII */
#define RRC_SUB_TYPE_TYPEII (1 << 0)
/** Codebooktype2_Sub_t.Presence: chooses typeII-PortSelection, in Type2_subType_u.typeII_PortSelection */
#define RRC_TYPEII_PORTSELECTION (1 << 1)

/** CodebookConfig.codebookType.type2.subType */
union type2_subType_u
{
    struct subType_typeII subType_typeII;             /**< typeII */
    struct typeII_PortSelection typeII_PortSelection; /**< typeII-PortSelection */
};

/** CodebookConfig.codebookType.type2.subType */
typedef struct Codebooktype2_Sub_s
{
    UINT8 Presence;                        /**< bits RRC_SUB_TYPE_TYPEII and RRC_TYPEII_PORTSELECTION */
    union type2_subType_u Type2_subType_u; /**< itself */
} Codebooktype2_Sub_t;

/** CodeBookType2_t.bitMask: codebookType2_Sub is given; without it the encoder refuses the codebook */
#define RRC_CODEBOOK_TYPE2_SUB (1 << 0)
/** CodeBookType2_t.bitMask: phaseAlphabetSize is given, else n4 */
#define RRC_PHASE_ALPHA_BET_SIZE (1 << 1)
/** CodeBookType2_t.bitMask: subBandAmplitude is given, else false */
#define RRC_SUB_BAND_AMPLITUDE (1 << 2)
/** CodeBookType2_t.bitMask: numberOfBeams is given, else two */
#define RRC_NUM_BER_OFBEAMS (1 << 3)

/** CodebookConfig.codebookType.type2 */
typedef struct codeBookType2_s
{
    /** bits RRC_CODEBOOK_TYPE2_SUB and RRC_PHASE_ALPHA_BET_SIZE and RRC_SUB_BAND_AMPLITUDE and RRC_NUM_BER_OFBEAMS */
    UINT8 bitMask;
    Codebooktype2_Sub_t codebookType2_Sub; /**< subType */
    /**
     * phaseAlphabetSize, CodebookConfig_codebookType_type2_phaseAlphabetSize_...: 0 n4, 1 n8; the low 32 bits are sent
     */
    UINT64 phaseAlphabetSize;
    UINT64 subBandAmplitude; /**< subbandAmplitude; the low 8 bits decide */
    /**
     * numberOfBeams, CodebookConfig_codebookType_type2_numberOfBeams_...: 0 two, 1 three, 2 four; the low 32 bits are
     * sent
     */
    UINT64 numberOfBeams;
} CodeBookType2_t;

/** RrcCodebookCfg_t.Presence: chooses codebookType.type1, in CodeBookCfgType_u.codeBookType1 */
#define RRC_CODE_BOOK_TYPE1_PRESENCE (1 << 0)
/** RrcCodebookCfg_t.Presence: chooses codebookType.type2, in CodeBookCfgType_u.codeBookType2 */
#define RRC_CODE_BOOK_TYPE2_PRESENCE (1 << 1)

/** CodebookConfig.codebookType */
union codeBookCfgType_u
{
    CodeBookType1_t codeBookType1; /**< type1 */
    CodeBookType2_t codeBookType2; /**< type2 */
};

/** CodebookConfig */
typedef struct CodebookCfg_s
{
    UINT8 Presence;                            /**< bits RRC_CODE_BOOK_..._PRESENCE */
    union codeBookCfgType_u CodeBookCfgType_u; /**< codebookType */
} RrcCodebookCfg_t;

/** RrcgroupBasedBeamReport_t.Presence: chooses enabled; it has no content */
#define RRC_BASED_BEAM_REPORT_ENABLED (1 << 0)
/** RrcgroupBasedBeamReport_t.Presence: chooses disabled, in BeamReporting_n.Report_Disabled */
#define RRC_BASED_BEAM_REPORT_DISABLED (1 << 1)

/** basedBeamReport_Disabled.bitMask: NrofReportedRS is given */
#define RRC_BASED_BEAM_REPORT_DISABLED_NROF_REPORTED_RS_PRESENCE (1 << 0)

/** CSI-ReportConfig.groupBasedBeamReporting.disabled */
struct basedBeamReport_Disabled
{
    UINT8 bitMask; /**< bits RRC_BASED_BEAM_REPORT_DISABLED_NROF_REPORTED_RS_PRESENCE */
    /** nrofReportedRS, CSI_ReportConfig_groupBasedBeamReporting_disabled_nrofReportedRS_...: 0 n1, 1 n2, 2 n3, 3 n4 */
    UINT8 NrofReportedRS;
};

/** CSI-ReportConfig.groupBasedBeamReporting */
union beamReporting_u
{
    UINT16 enabled;                                  /**< not read; enabled has no content */
    struct basedBeamReport_Disabled Report_Disabled; /**< disabled */
};

/** CSI-ReportConfig.groupBasedBeamReporting */
typedef struct rrcgroupBasedBeamReport_s
{
    UINT8 Presence;                        /**< bits RRC_BASED_BEAM_REPORT_... */
    union beamReporting_u BeamReporting_n; /**< itself */
} RrcgroupBasedBeamReport_t;

/** Entries of each rank of portIndex8 */
#define RRC_PORTINDEX8_RANK2_8_MAX 2
#define RRC_PORTINDEX8_RANK3_8_MAX 3
#define RRC_PORTINDEX8_RANK4_8_MAX 4
#define RRC_PORTINDEX8_RANK5_8_MAX 5
#define RRC_PORTINDEX8_RANK6_8_MAX 6
#define RRC_PORTINDEX8_RANK7_8_MAX 7
#define RRC_PORTINDEX8_RANK8_8_MAX 8
/** Entries of each rank of portIndex4; the third of rank 3, the third and fourth of rank 4 are sent as 0 */
#define RRC_PORTINDEX4_RANK2_4_MAX 2
#define RRC_PORTINDEX4_RANK3_4_MAX 2
#define RRC_PORTINDEX4_RANK4_4_MAX 2
/** Entries of rank 2 of portIndex2 */
#define RRC_PORTINDEX2_RANK2_2_MAX 2

/** portIndexFor8Ranks_portIndex8.bitMask: rank1_8 is given */
#define RRC_RANK1_8 (1 << 0)
/** portIndexFor8Ranks_portIndex4.bitMask: rank1_4 is given */
#define RRC_RANK1_4 (1 << 0)
/** portIndexFor8Ranks_portIndex2.bitMask: rank1_2 is given */
#define RRC_RANK1_2 (1 << 0)

/** PortIndexFor8Ranks.portIndex8. A rank above 1 is sent when its count is not 0; the count is to be the rank: entries
    that are not counted are sent as 0. */
struct portIndexFor8Ranks_portIndex8
{
    UINT8 bitMask;                                  /**< bits RRC_RANK1_8 */
    UINT8 rank1_8;                                  /**< rank1-8, 0..7 */
    UINT8 numRank2_8;                               /**< entries used of PortIndex2_8, 0..2 */
    UINT8 PortIndex2_8[RRC_PORTINDEX8_RANK2_8_MAX]; /**< rank2-8, each 0..7 */
    UINT8 numRank3_8;                               /**< entries used of PortIndex3_8, 0..3 */
    UINT8 PortIndex3_8[RRC_PORTINDEX8_RANK3_8_MAX]; /**< rank3-8, each 0..7 */
    UINT8 numRank4_8;                               /**< entries used of PortIndex4_8, 0..4 */
    UINT8 PortIndex4_8[RRC_PORTINDEX8_RANK4_8_MAX]; /**< rank4-8, each 0..7 */
    UINT8 numRank5_8;                               /**< entries used of PortIndex5_8, 0..5 */
    UINT8 PortIndex5_8[RRC_PORTINDEX8_RANK5_8_MAX]; /**< rank5-8, each 0..7 */
    UINT8 numRank6_8;                               /**< entries used of PortIndex6_8, 0..6 */
    UINT8 PortIndex6_8[RRC_PORTINDEX8_RANK6_8_MAX]; /**< rank6-8, each 0..7 */
    UINT8 numRank7_8;                               /**< entries used of PortIndex7_8, 0..7 */
    UINT8 PortIndex7_8[RRC_PORTINDEX8_RANK7_8_MAX]; /**< rank7-8, each 0..7 */
    UINT8 numRank8_8;                               /**< entries used of PortIndex8_8, 0..8 */
    UINT8 PortIndex8_8[RRC_PORTINDEX8_RANK8_8_MAX]; /**< rank8-8, each 0..7 */
};

/** PortIndexFor8Ranks.portIndex4. A rank above 1 is sent when its count is not 0. */
struct portIndexFor8Ranks_portIndex4
{
    UINT8 bitMask;                                  /**< bits RRC_RANK1_4 */
    UINT8 rank1_4;                                  /**< rank1-4, 0..3 */
    UINT8 numRank2_4;                               /**< entries used of PortIndex2_4, 0..2 */
    UINT8 PortIndex2_4[RRC_PORTINDEX4_RANK2_4_MAX]; /**< rank2-4, each 0..3 */
    UINT8 numRank3_4;                               /**< entries used of PortIndex3_4, 0..2 */
    UINT8 PortIndex3_4[RRC_PORTINDEX4_RANK3_4_MAX]; /**< rank3-4, each 0..3 */
    UINT8 numRank4_4;                               /**< entries used of PortIndex4_4, 0..2 */
    UINT8 PortIndex4_4[RRC_PORTINDEX4_RANK4_4_MAX]; /**< rank4-4, each 0..3 */
};

/** PortIndexFor8Ranks.portIndex2. Rank 2 is sent when its count is not 0. */
struct portIndexFor8Ranks_portIndex2
{
    UINT8 bitMask;                                  /**< bits RRC_RANK1_2 */
    UINT8 rank1_2;                                  /**< rank1-2, 0..1 */
    UINT8 numRank2_2;                               /**< entries used of PortIndex2_2, 0..2 */
    UINT8 PortIndex2_2[RRC_PORTINDEX2_RANK2_2_MAX]; /**< rank2-2, each 0..1 */
};

/** RrcPortIndexFor8Ranks_t.Presence: chooses portIndex8, in PortIndexFor8Ranks_n.portIndex8 */
#define RRC_PORT_INDEX8_PRESENCE (1 << 0)
/** RrcPortIndexFor8Ranks_t.Presence: chooses portIndex4, in PortIndexFor8Ranks_n.portIndex4 */
#define RRC_PORT_INDEX4_PRESENCE (1 << 1)
/** RrcPortIndexFor8Ranks_t.Presence: chooses portIndex2, in PortIndexFor8Ranks_n.portIndex2 */
#define RRC_PORT_INDEX2_PRESENCE (1 << 2)
/** RrcPortIndexFor8Ranks_t.Presence: chooses portIndex1; it has no content */
#define RRC_PORT_INDEX1_PRESENCE (1 << 3)

/** PortIndexFor8Ranks */
union portIndexFor8Ranks_u
{
    struct portIndexFor8Ranks_portIndex8 portIndex8; /**< portIndex8 */
    struct portIndexFor8Ranks_portIndex4 portIndex4; /**< portIndex4 */
    struct portIndexFor8Ranks_portIndex2 portIndex2; /**< portIndex2 */
    UINT16 portIndex1;                               /**< not read; portIndex1 has no content */
};

/** PortIndexFor8Ranks */
typedef struct rrcPortIndexFor8Ranks_s
{
    UINT8 Presence;                                  /**< bits RRC_PORT_..._PRESENCE */
    union portIndexFor8Ranks_u PortIndexFor8Ranks_n; /**< itself */
} RrcPortIndexFor8Ranks_t;

/** maxNrofNZP-CSI-RS-ResourcesPerConfig */
#define RRC_PORTINDEX8_RANKS_MAX 128

/** CSI-ReportConfig.non-PMI-PortIndication */
typedef struct RRCPortIndexFor8Ranks_s
{
    UINT8 numPortIndexFor8Ranks; /**< entries used of portIndexFor8Ranks, 1..128 */
    RrcPortIndexFor8Ranks_t portIndexFor8Ranks[RRC_PORTINDEX8_RANKS_MAX]; /**< itself */
} RRCPortIndexFor8Ranks_t;

/** CSI-ReportConfig.semiPersistentOnPUSCH-v1530 */
struct semimPersistentOnPuschv1530
{
    /**
     * reportSlotConfig-v1530, CSI_ReportConfig_semiPersistentOnPUSCH_v1530_reportSlotConfig_v1530_...: 0 sl4, 1 sl8,
     * 2 sl16
     */
    UINT8 ReportSlotConfig_v1530;
};

/** RrcCsiReportCfg_t.bitMask: servCellIndex is given */
#define RRC_CSI_REPORT_CFG_CERV_CELL_IDX_PRESENCE (1 << 0)
/** RrcCsiReportCfg_t.bitMask: CsiImresourceCfgIdForInterference is given */
#define RRC_CSI_REPORT_CFG_CSI_IM_RESOURCE_CFG_ID_FOR_INTERFERENCE_PRESENCE (1 << 1)
/** RrcCsiReportCfg_t.bitMask: nzpCsiRsresourceCfgIdForInterference is given */
#define RRC_CSI_REPORT_CFG_NZP_CSI_RESOURCE_CFG_ID_FOR_INTERFERENCE_PRESENCE (1 << 2)
/** RrcCsiReportCfg_t.bitMask: reportFreqCfg is given */
#define RRC_CSI_REPORT_CFG_REPORT_FREQ_CFG_PRESENCE (1 << 3)
/** RrcCsiReportCfg_t.bitMask: codeBookCfg is given */
#define RRC_CSI_REPORT_CFG_CODE_BOOK_CFG_PRESENCE (1 << 4)
/** RrcCsiReportCfg_t.bitMask: groupBasedBeamReport is given; without it the encoder refuses the report */
#define RRC_CSI_REPORT_CFG_GROUP_BASED_BEAM_REPORT_PRESENCE (1 << 5)
/** RrcCsiReportCfg_t.bitMask: nrofCQIsPerRep is given */
#define RRC_CSI_REPORT_CFG_NROF_CQIS_PER_REP_PRESENCE (1 << 6)
/** RrcCsiReportCfg_t.bitMask: cqi_Table is given */
#define RRC_CSI_REPORT_CFG_CQI_TABLE_PRESENCE (1 << 7)
/** RrcCsiReportCfg_t.bitMask: RRCPortIndexFor8Ranks is given */
#define RRC_CSI_REPORT_CFG_PORT_INDEX_FOR_8RANKS_PRESENCE (1 << 8)
/**
 * RrcCsiReportCfg_t.bitMask: semimPersistentOnPuschv1530_t is given; no composer announces its extension group: the
 * encoder does not send it
 */
#define RRC_CSI_REPORT_CFG_SEMI_PERSISTENT_ON_PUSCH_V1530_PRESENCE (1 << 9)

/** RrcCsiReportCfg_t.cfgTypeBitMask: chooses reportConfigType.periodic, in ReportCfgType_n.periodic */
#define RRC_CSI_REPORT_CFG_TYPE_PERIODIC_PRESENCE (1 << 0)
/**
 * RrcCsiReportCfg_t.cfgTypeBitMask: chooses reportConfigType.semiPersistentOnPUCCH, in
 * ReportCfgType_n.semiPersistentOnPucch
 */
#define RRC_CSI_REPORT_CFG_TYPE_SEMI_PERSISTENT_ON_PUCCH_PRESENCE (1 << 1)
/**
 * RrcCsiReportCfg_t.cfgTypeBitMask: chooses reportConfigType.semiPersistentOnPUSCH, in
 * ReportCfgType_n.semiPersistentOnPusch
 */
#define RRC_CSI_REPORT_CFG_TYPE_SEMI_PERSISTENT_ON_PUSCH_PRESENCE (1 << 2)
/** RrcCsiReportCfg_t.cfgTypeBitMask: chooses reportConfigType.aperiodic, in ReportCfgType_n.aperiodic */
#define RRC_CSI_REPORT_CFG_TYPE_APERIODIC_PRESENCE (1 << 3)

/** RrcCsiReportCfg_t.rptQuBitMask: chooses reportQuantity.none */
#define RRC_CSI_REPORT_QUANTITY_NONE_PRESENCE (1 << 0)
/** RrcCsiReportCfg_t.rptQuBitMask: chooses reportQuantity.cri-RI-PMI-CQI */
#define RRC_CSI_REPORT_QUANTITY_CRI_RI_PMI_CQI_PRESENCE (1 << 1)
/** RrcCsiReportCfg_t.rptQuBitMask: chooses reportQuantity.cri-RI-i1 */
#define RRC_CSI_REPORT_QUANTITY_CRI_RI_I1_PRESENCE (1 << 2)
/** RrcCsiReportCfg_t.rptQuBitMask: chooses reportQuantity.cri-RI-i1-CQI, in ReportQuantity_n.criRiI1Cqi */
#define RRC_CSI_REPORT_QUANTITY_CRI_RI_I1_CQI_PRESENCE (1 << 3)
/** RrcCsiReportCfg_t.rptQuBitMask: chooses reportQuantity.cri-RI-CQI */
#define RRC_CSI_REPORT_QUANTITY_CRI_RI_CQI_PRESENCE (1 << 4)
/** RrcCsiReportCfg_t.rptQuBitMask: chooses reportQuantity.cri-RSRP */
#define RRC_CSI_REPORT_QUANTITY_CRI_RSRP_PRESENCE (1 << 5)
/** RrcCsiReportCfg_t.rptQuBitMask: chooses reportQuantity.ssb-Index-RSRP */
#define RRC_CSI_REPORT_QUANTITY_SSB_INDEX_RSRP_PRESENCE (1 << 6)
/** RrcCsiReportCfg_t.rptQuBitMask: chooses reportQuantity.cri-RI-LI-PMI-CQI */
#define RRC_CSI_REPORT_QUANTITY_CRI_RI_LI_PMI_CQI_PRESENCE (1 << 7)

/** CSI-ReportConfig */
typedef struct rrcCsiReportCfg_s
{
    UINT8 csiReportCfgId;                       /**< reportConfigId, 0..47 */
    UINT16 bitMask;                             /**< bits RRC_CSI_REPORT_CFG_..._PRESENCE */
    UINT8 servCellIndex;                        /**< carrier, 0..31 */
    UINT8 resourceCfgIdForChMeas;               /**< resourcesForChannelMeasurement, 0..111 */
    UINT8 CsiImresourceCfgIdForInterference;    /**< csi-IM-ResourcesForInterference, 0..111 */
    UINT8 nzpCsiRsresourceCfgIdForInterference; /**< nzp-CSI-RS-ResourcesForInterference, 0..111 */
    UINT8 cfgTypeBitMask;                       /**< bits RRC_CSI_REPORT_CFG_TYPE_..._PRESENCE */
    union reportCfgType_u ReportCfgType_n;      /**< reportConfigType */
    UINT8 rptQuBitMask;                         /**< bits RRC_CSI_REPORT_QUANTITY_..._PRESENCE */
    union reportQuantity_u ReportQuantity_n;    /**< reportQuantity */
    /** subbandSize, always sent, CSI_ReportConfig_subbandSize_...: 0 value1, 1 value2 */
    BOOL subBandSize;
    ReportFreqCfg_t reportFreqCfg; /**< reportFreqConfiguration */
    /**
     * timeRestrictionForChannelMeasurements, CSI_ReportConfig_timeRestrictionForChannelMeasurements_...: 0 configured,
     * 1 notConfigured
     */
    UINT8 timeRestrictForChMeas;
    /**
     * timeRestrictionForInterferenceMeasurements, CSI_ReportConfig_timeRestrictionForInterferenceMeasurements_...:
     * 0 configured, 1 notConfigured
     */
    UINT8 timeRestrictForInterferenceMeas;
    UINT8 CqisPerReportNum;                         /**< not read */
    RrcCodebookCfg_t codeBookCfg;                   /**< codebookConfig */
    BOOL nrofCQIsPerRep;                            /**< dummy, CSI_ReportConfig_dummy_...: 0 n1, 1 n2 */
    RrcgroupBasedBeamReport_t groupBasedBeamReport; /**< groupBasedBeamReporting */
    UINT8 cqi_Table; /**< cqi-Table, CSI_ReportConfig_cqi_Table_...: 0 table1, 1 table2, 2 table3 */
    RRCPortIndexFor8Ranks_t RRCPortIndexFor8Ranks; /**< non-PMI-PortIndication */
    /** semiPersistentOnPUSCH-v1530, not sent; no composer announces its extension group */
    struct semimPersistentOnPuschv1530 semimPersistentOnPuschv1530_t;
} RrcCsiReportCfg_t;

#ifdef __cplusplus
}
#endif

#endif
