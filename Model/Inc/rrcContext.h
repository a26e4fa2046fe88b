// What is known of a UE's configuration besides a CellGroupConfig (TS 38.331 V15.6.0), for rules, meanings and
// pictures, and how they name a place. Valid C11 and C++20.
#ifndef RRCCONTEXT_H
#define RRCCONTEXT_H

#include "NR-RRC-Definitions.h"
#include "asn1Runtime.h"

#ifdef __cplusplus
extern "C"
{
#endif

#pragma GCC visibility push(default)

// Inputs besides the element, each one bit: what may have to be known.
typedef enum RrcRuleInput
{
    RRC_RULE_INPUT_PREVIOUS = 1 << 0,      // `previous`, or that the element is complete
    RRC_RULE_INPUT_MESSAGE = 1 << 1,       // `message`
    RRC_RULE_INPUT_GROUP = 1 << 2,         // `group`
    RRC_RULE_INPUT_BAND = 1 << 3,          // `band`
    RRC_RULE_INPUT_RANGE = 1 << 4,         // `range` or `band`
    RRC_RULE_INPUT_DUPLEX = 1 << 5,        // `duplex` or `band`
    RRC_RULE_INPUT_CARRIERS = 1 << 6,      // `carriersDl`, `carriersUl`
    RRC_RULE_INPUT_BWP0_DL = 1 << 7,       // `initialDownlinkBwp`
    RRC_RULE_INPUT_BWP0_UL = 1 << 8,       // `initialUplinkBwp`
    RRC_RULE_INPUT_SSB = 1 << 9,           // `ssbPositionsInBurst`
    RRC_RULE_INPUT_TYPEA = 1 << 10,        // `typeAPosition`
    RRC_RULE_INPUT_CORESET0 = 1 << 11,     // `coreset0`
    RRC_RULE_INPUT_TDD = 1 << 12,          // `tdd`
    RRC_RULE_INPUT_COMMON = 1 << 13,       // the rest of the cell-common configuration, which only a message brings
    RRC_RULE_INPUT_BEARERS = 1 << 14,      // `bearers`
    RRC_RULE_INPUT_MEAS = 1 << 15,         // `meas`
    RRC_RULE_INPUT_CONNECTIVITY = 1 << 16, // `connectivity`, `otherGroupCells`
    RRC_RULE_INPUT_CAPABILITIES = 1 << 17, // `capabilities`
    RRC_RULE_INPUT_RACH = 1 << 18          // `rachCommon`
} RrcRuleInput;

#define RRC_RULE_INPUTS 19

// Whether the element is all that the UE has.
typedef enum RrcRuleExtent
{
    RRC_RULE_EXTENT_UNKNOWN = 0, // as the message says: setup and fullConfig bring all of it, others a delta
    RRC_RULE_EXTENT_FULL = 1,    // nothing was configured before
    RRC_RULE_EXTENT_DELTA = 2    // what was configured before stays where the element does not change it
} RrcRuleExtent;

// The message that carries the element.
typedef enum RrcRuleMessage
{
    RRC_RULE_MESSAGE_UNKNOWN = 0,         // a handover where reconfigurationWithSync is present
    RRC_RULE_MESSAGE_SETUP = 1,           // RRCSetup
    RRC_RULE_MESSAGE_RECONFIGURATION = 2, // RRCReconfiguration that keeps the SpCell
    RRC_RULE_MESSAGE_SYNC = 3,            // RRCReconfiguration that changes or adds the SpCell, or its key
    RRC_RULE_MESSAGE_RESUME = 4,          // RRCResume
    RRC_RULE_MESSAGE_REESTABLISHMENT = 5  // the first RRCReconfiguration after a re-establishment
} RrcRuleMessage;

typedef enum RrcRuleGroup
{
    RRC_RULE_GROUP_UNKNOWN = 0, // as cellGroupId says
    RRC_RULE_GROUP_MCG = 1,     // masterCellGroup
    RRC_RULE_GROUP_SCG = 2      // secondaryCellGroup
} RrcRuleGroup;

typedef enum RrcRuleRange
{
    RRC_RULE_RANGE_UNKNOWN = 0,
    RRC_RULE_RANGE_FR1 = 1, // TS 38.101-1
    RRC_RULE_RANGE_FR2 = 2  // TS 38.101-2
} RrcRuleRange;

typedef enum RrcRuleDuplex
{
    RRC_RULE_DUPLEX_UNKNOWN = 0,
    RRC_RULE_DUPLEX_FDD = 1,
    RRC_RULE_DUPLEX_TDD = 2
} RrcRuleDuplex;

typedef enum RrcRuleConnectivity
{
    RRC_RULE_CONNECTIVITY_UNKNOWN = 0,
    RRC_RULE_CONNECTIVITY_SINGLE = 1, // one cell group
    RRC_RULE_CONNECTIVITY_ENDC = 2,   // with an E-UTRA cell group: EN-DC, NGEN-DC, NE-DC
    RRC_RULE_CONNECTIVITY_NRDC = 3    // with another NR cell group
} RrcRuleConnectivity;

// What radioBearerConfig has configured after the message.
typedef struct RrcRuleBearers
{
    OSUINT32 srbs;       // bit i: SRB i
    OSUINT32 drbs;       // bit i: DRB i + 1
    OSUINT32 duplicated; // bit i: DRB i + 1 has moreThanOneRLC with pdcp-Duplication
    OSUINT32 duplicatedSrbs;
} RrcRuleBearers;

// A measObjectNR of the UE's measConfig.
typedef struct RrcRuleMeasObject
{
    OSUINT8 id;            // measObjectId, 1..64
    OSBOOL hasSsb;         // ssbFrequency and ssbSubcarrierSpacing are present
    OSUINT32 ssbFrequency; // ARFCN-ValueNR
    SubcarrierSpacing ssbScs;
    OSUINT8 csiRsResources[12]; // bit i % 8 of octet i / 8: CSI-RS-Index i of csi-rs-ResourceConfigMobility
} RrcRuleMeasObject;

// What the UE has told of itself, as far as rules ask. Unknown means: the mandatory capabilities of TS 38.306, and no
// finding above a warning.
typedef struct RrcRuleCapabilities
{
    OSUINT32 features; // RrcRuleFeature, each one bit
} RrcRuleCapabilities;

typedef enum RrcRuleFeature
{
    RRC_RULE_FEATURE_MONITORING_ANY = 1 << 0,     // pdcch-MonitoringAnyOccasions
    RRC_RULE_FEATURE_MONITORING_ANY_GAP = 1 << 1, // pdcch-MonitoringAnyOccasionsWithSpanGap
    RRC_RULE_FEATURE_MONITORING_SINGLE = 1 << 2,  // pdcch-MonitoringSingleOccasion
    RRC_RULE_FEATURE_SR_PERIODS = 1 << 3,         // the short SR periods that a UE need not have
    RRC_RULE_FEATURE_LOW_SE = 1 << 4,             // dl-64QAM-MCS-TableAlt, ul-64QAM-MCS-TableAlt
    RRC_RULE_FEATURE_SRS_SWITCH_1T2R = 1 << 5,    // supportedSRS-TxPortSwitch, each of its values
    RRC_RULE_FEATURE_SRS_SWITCH_1T4R = 1 << 6,
    RRC_RULE_FEATURE_SRS_SWITCH_2T4R = 1 << 7,
    RRC_RULE_FEATURE_SRS_SWITCH_EQUAL = 1 << 8
} RrcRuleFeature;

// What is known besides the element. All zero: nothing. A null pointer, and 0 of an enumeration, stand for unknown.
// What it points to is the caller's and only read during a call; it need not lie in a context's heap.
typedef struct RrcRuleContext
{
    // The configuration that the UE has before the message: a tree in the heap of the context that is given to the
    // check. The message is applied to it (rtxApply), and the rules judge what it leads to; nothing is undecided for
    // want of earlier messages. Of no meaning with `fullConfig`.
    const CellGroupConfig* previous;
    OSUINT8 extent;       // RrcRuleExtent; of no meaning with `previous`
    OSUINT8 message;      // RrcRuleMessage
    OSBOOL fullConfig;    // the message's fullConfig
    OSUINT8 group;        // RrcRuleGroup
    OSUINT8 connectivity; // RrcRuleConnectivity

    // Of the SpCell. What a ServingCellConfigCommon within the element says of it comes before the members from
    // carriersDl on. SCells bring theirs.
    OSUINT16 band;                         // FreqBandIndicatorNR; 0: unknown
    OSUINT8 range;                         // RrcRuleRange
    OSUINT8 duplex;                        // RrcRuleDuplex
    const SCS_SpecificCarrier* carriersDl; // scs-SpecificCarrierList of its downlink; an array
    const SCS_SpecificCarrier* carriersUl; // and of its uplink
    OSUINT8 numCarriersDl;                 // 0..5
    OSUINT8 numCarriersUl;                 // 0..5
    const BWP* initialDownlinkBwp;         // genericParameters
    const BWP* initialUplinkBwp;
    const OSOCTET* ssbPositionsInBurst;     // the first bit in the most significant bit of the first octet
    OSUINT8 ssbPositionsBits;               // 4, 8 or 64 bits of them
    const OSUINT32* typeAPosition;          // ServingCellConfigCommon_dmrs_TypeA_Position
    const ControlResourceSetZero* coreset0; // 0..15
    const TDD_UL_DL_ConfigCommon* tdd;      // tdd-UL-DL-ConfigurationCommon

    const RACH_ConfigCommon* rachCommon; // of the initial uplink bandwidth part

    const RrcRuleBearers* bearers;
    const RrcRuleMeasObject* measObjects; // an array; known where hasMeas is set
    OSUINT8 numMeasObjects;
    OSBOOL hasMeas;                  // what is known of measConfig: measObjects are all that there are
    const OSUINT32* otherGroupCells; // bit i: ServCellIndex i belongs to the other cell group
    const RrcRuleCapabilities* capabilities;
} RrcRuleContext;

// One step of a path: a member's ASN.1 name, or (name null) an element of a list.
typedef struct RrcRuleStep
{
    const char* name;
    OSUINT32 index;       // of the element in its list
    const char* identity; // the ASN.1 name of what identifies it; null where the schema names nothing
    int64_t id;           // its value
} RrcRuleStep;

// In words, what an input is: "the carriers of the downlink and uplink"; null for what is none or more than one.
const char* rrcRuleInputName(OSUINT32 input);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
