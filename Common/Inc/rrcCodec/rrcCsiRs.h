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

/** RrcCsiRsResourceMapping_t.presenceFreqDomain: the alternative of frequencyDomainAllocation; the highest bit wins */
#define RRC_CSI_RS_RESOURCE_MAPPING_ROW1_PRESENCE (1 << 0)
#define RRC_CSI_RS_RESOURCE_MAPPING_ROW2_PRESENCE (1 << 1)
#define RRC_CSI_RS_RESOURCE_MAPPING_ROW4_PRESENCE (1 << 2)
#define RRC_CSI_RS_RESOURCE_MAPPING_OTHER_PRESENCE (1 << 3)

/** RrcCsiRsResourceMapping_t.presenceDensity: the alternative of density; the lowest bit wins */
#define RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_DOT5_PRESENCE (1 << 0)
#define RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_ONE_PRESENCE (1 << 1)
#define RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_THREE_PRESENCE (1 << 2)
#define RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_SPARE_PRESENCE (1 << 3)

/** RrcCsiRsResourceMapping_t.bitMask: firstOFDMSymbolInTimeDomain2 is given */
#define RRC_CSI_RS_RESOURCE_MAPPING_DOMAIN2_PRESENCE (1 << 0)

/** CSI-FrequencyOccupation */
typedef struct rrcCsiFreqOccupation_s
{
    UINT16 startingRb; /**< startingRB, 0..274 */
    UINT16 nrofRBs;    /**< nrofRBs, 24..276 */
} RrcCsiFreqOccupation_t;

/** CSI-RS-ResourceMapping */
typedef struct rrcCsiRsResourceMapping_s
{
    UINT8 presenceFreqDomain; /**< one of RRC_CSI_RS_RESOURCE_MAPPING_ROW1_PRESENCE.. */
    union
    {
        UINT32 row1;                   /**< row1, 4 bits */
        UINT32 row2;                   /**< row2, 12 bits */
        UINT32 row4;                   /**< row4, 3 bits */
        UINT32 other;                  /**< other, 6 bits */
    } freqDomainAlloc;                 /**< frequencyDomainAllocation: the low bits, the first bit most significant */
    UINT8 nrofPorts;                   /**< nrofPorts, enumeration p1.. (0..7) */
    UINT8 firstOFDMSymbolInTimeDomain; /**< firstOFDMSymbolInTimeDomain, 0..13 */
    UINT8 cdmType;                     /**< cdm-Type, enumeration noCDM.. (0..3) */
    UINT8 presenceDensity;             /**< one of RRC_CSI_RS_RESOURCE_MAPPING_DENSITY_DOT5_PRESENCE.. */
    union
    {
        UINT8 dots; /**< dot5, enumeration evenPRBs, oddPRBs (0..1); the other alternatives have no value */
    } density;      /**< density */
    RrcCsiFreqOccupation_t freqBand;    /**< freqBand */
    UINT8 bitMask;                      /**< RRC_CSI_RS_RESOURCE_MAPPING_DOMAIN2_PRESENCE */
    UINT8 firstOFDMSymbolInTimeDomain2; /**< firstOFDMSymbolInTimeDomain2, 2..12 */
} RrcCsiRsResourceMapping_t;

/** CSI-ResourcePeriodicityAndOffset */
typedef struct rrcCsiResourcePeriodictyAndOffset_s
{
    UINT8 slotsPeriod; /**< the alternative: 1 slots4, 2 slots5, 3 slots8, 4 slots10, 5 slots16, 6 slots20, 7 slots32,
                            8 slots40 (sent as slots32), 9 slots64, 10 slots80, 11 slots160, 12 slots320, 13 slots640 */
    UINT16 offset;     /**< offset in slots, below the period */
} RrcCsiResourcePeriodictyAndOffset_t;

#ifdef __cplusplus
}
#endif

#endif
