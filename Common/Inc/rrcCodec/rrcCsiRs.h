#ifndef RRCCSIRS_H
#define RRCCSIRS_H

#include "vos_types.h"

/*
 * What CSI-RS resources of every kind share: resource element mapping and periodicity (TS 38.331
 * CSI-RS-ResourceMapping, CSI-ResourcePeriodicityAndOffset). Enumerated fields hold the integer of the ASN.1
 * enumeration.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** RrcCsiRsResourceMapping_t.presenceFreqDomain: chooses frequencyDomainAllocation.row1, in freqDomainAlloc.row1 */
#define RRC_CSI_RS_RESOURCE_MAPPING_ROW1_PRESENCE (1 << 0)
/** RrcCsiRsResourceMapping_t.presenceFreqDomain: chooses frequencyDomainAllocation.row2, in freqDomainAlloc.row2 */
#define RRC_CSI_RS_RESOURCE_MAPPING_ROW2_PRESENCE (1 << 1)
/** RrcCsiRsResourceMapping_t.presenceFreqDomain: chooses frequencyDomainAllocation.row4, in freqDomainAlloc.row4 */
#define RRC_CSI_RS_RESOURCE_MAPPING_ROW4_PRESENCE (1 << 2)
/** RrcCsiRsResourceMapping_t.presenceFreqDomain: chooses frequencyDomainAllocation.other, in freqDomainAlloc.other */
#define RRC_CSI_RS_RESOURCE_MAPPING_OTHER_PRESENCE (1 << 3)

/**
 * RrcCsiRsResourceMapping_t.presenceDensity: chooses density.dot5, in density.dots, wins over
 * RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_ONE_PRESENCE
 */
#define RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_DOT5_PRESENCE (1 << 0)
/**
 * RrcCsiRsResourceMapping_t.presenceDensity: chooses density.one, wins over
 * RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_THREE_PRESENCE
 */
#define RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_ONE_PRESENCE (1 << 1)
/**
 * RrcCsiRsResourceMapping_t.presenceDensity: chooses density.three, wins over
 * RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_SPARE_PRESENCE
 */
#define RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_THREE_PRESENCE (1 << 2)
/** RrcCsiRsResourceMapping_t.presenceDensity: chooses density.spare */
#define RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_SPARE_PRESENCE (1 << 3)

/** RrcCsiRsResourceMapping_t.bitMask: firstOFDMSymbolInTimeDomain2 is given */
#define RRC_CSI_RS_RESOURCE_MAPPING_DOMAIN2_PRESENCE (1 << 0)

/** CSI-FrequencyOccupation */
typedef struct rrcCsiFreqOccupation_s
{
    UINT16 startingRb; /**< startingRB, 0..274, in PRBs */
    UINT16 nrofRBs;    /**< nrofRBs, 24..276, in PRBs */
} RrcCsiFreqOccupation_t;

/** CSI-RS-ResourceMapping */
typedef struct rrcCsiRsResourceMapping_s
{
    UINT8 presenceFreqDomain; /**< bits RRC_CSI_RS_RESOURCE_MAPPING_..._PRESENCE */
    union
    {
        UINT32 row1;   /**< row1, 4 bits */
        UINT32 row2;   /**< row2, 12 bits */
        UINT32 row4;   /**< row4, 3 bits */
        UINT32 other;  /**< other, 6 bits */
    } freqDomainAlloc; /**< frequencyDomainAllocation; the first bit is the most significant one */
    /** nrofPorts, CSI_RS_ResourceMapping_nrofPorts_...: 0 p1, 1 p2, 2 p4, 3 p8, 4 p12, 5 p16, 6 p24, 7 p32 */
    UINT8 nrofPorts;
    UINT8 firstOFDMSymbolInTimeDomain; /**< firstOFDMSymbolInTimeDomain, 0..13 */
    /** cdm-Type, CSI_RS_ResourceMapping_cdm_Type_...: 0 noCDM, 1 fd-CDM2, 2 cdm4-FD2-TD2, 3 cdm8-FD2-TD4 */
    UINT8 cdmType;
    UINT8 presenceDensity; /**< bits RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_..._PRESENCE */
    union
    {
        /**
         * dot5, CSI_RS_ResourceMapping_density_dot5_...: 0 evenPRBs, 1 oddPRBs; the other alternatives have no value
         */
        UINT8 dots;
    } density;                          /**< density */
    RrcCsiFreqOccupation_t freqBand;    /**< freqBand */
    UINT8 bitMask;                      /**< bits RRC_CSI_RS_RESOURCE_MAPPING_DOMAIN2_PRESENCE */
    UINT8 firstOFDMSymbolInTimeDomain2; /**< firstOFDMSymbolInTimeDomain2, 2..12 */
} RrcCsiRsResourceMapping_t;

/** CSI-ResourcePeriodicityAndOffset */
typedef struct rrcCsiResourcePeriodictyAndOffset_s
{
    /**
     * alternative of itself, T_CSI_ResourcePeriodicityAndOffset_...: 1 slots4, 2 slots5, 3 slots8, 4 slots10,
     * 5 slots16, 6 slots20, 7 slots32, 8 slots40 as slots32, 9 slots64, 10 slots80, 11 slots160, 12 slots320,
     * 13 slots640
     */
    UINT8 slotsPeriod;
    UINT16 offset; /**< value by slotsPeriod, in slots; below the period */
} RrcCsiResourcePeriodictyAndOffset_t;

#ifdef __cplusplus
}
#endif

#endif
