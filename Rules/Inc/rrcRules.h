// What holds between the members of a CellGroupConfig (TS 38.331 V15.6.0) beyond its ASN.1: references that resolve,
// presence conditions, numbers that fit each other. Valid C11 and C++20.
//
// A rule judges by what is known. What a message alone does not say, such as the carriers of a PCell that SIB1 has
// told, comes from an RrcRuleContext; where it is unknown, a rule that needs it says nothing and is told as undecided.
#ifndef RRCRULES_H
#define RRCRULES_H

#include "NR-RRC-Definitions.h"
#include "asn1Runtime.h"

#ifdef __cplusplus
extern "C"
{
#endif

// How much a finding weighs.
typedef enum RrcRuleSeverity
{
    RRC_RULE_UNDECIDED = 0, // no finding: the rule could not be decided everywhere, `decidedBy` says what would do it
    RRC_RULE_NOTICE = 1,    // information, or what would be an error unless an earlier message has configured the rest
    RRC_RULE_WARNING = 2,   // legal, but surely not intended, or ignored by the UE
    RRC_RULE_ERROR = 3      // the UE will or may reject it, or its behaviour is not specified
} RrcRuleSeverity;

// Inputs of a check besides the element, each one bit: what a rule may need.
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

// What a rule says of a place. Everything in it lives until the sink returns.
typedef struct RrcRuleFinding
{
    const char* rule;    // its id: "bwp-in-carrier"
    OSUINT8 severity;    // RrcRuleSeverity
    OSUINT32 decidedBy;  // RrcRuleInput bits: what could change the verdict; for RRC_RULE_UNDECIDED what would give one
    const char* found;   // what is there: "locationAndBandwidth 211: RBs 211..211"
    const char* allowed; // what the standard computes or allows: reads on behind "found, but"; may be empty
    const char* advice;  // what to do
    const char* clause;  // "TS 38.213 12"
    const void* value;   // the member in the tree; null for RRC_RULE_UNDECIDED
    OSBOOL configuredBefore; // the message does not have the place: indices count in lists ordered by identity
    OSUINT32 depth;          // steps of the path; 0 for CellGroupConfig itself and for RRC_RULE_UNDECIDED
    const RrcRuleStep* path; // outermost step first; CellGroupConfig itself is not one of them
} RrcRuleFinding;

// Nonzero ends the check. Must not allocate from the context's heap.
typedef int (*RrcRuleSink)(void* arg, const RrcRuleFinding* finding);

// A rule as documents and tools tell it. Lives as long as the program; ids are never used again for something else.
typedef struct RrcRule
{
    const char* id;
    OSUINT8 severity;      // the highest that it reports
    const char* statement; // what holds, in one sentence
    const char* advice;    // what to do where it does not
    const char* clause;
    const char* given; // what the examples take for given, in words; empty: all that the UE has is in the element
    const char* bad;   // an example that breaks it: flat lines, what is taken away "= absent"
    const char* good;  // its nearest neighbour that does not
    const char* since; // version of this library
} RrcRule;

// Checks an element, whose tree lies in *pctxt's heap (the root may lie anywhere), against all rules. Findings come in
// the order of the places in the tree, of one place in the order of the rules; behind them what is undecided. The tree
// may be broken: pointers that do not lead into the heap are not followed, and nothing is said of what lies behind
// them. Takes from the heap what the number of cells, bandwidth parts, resources and findings asks for and gives it
// back. `known` may be null. Returns the number of findings without RRC_RULE_UNDECIDED;
// or, without a call of the sink, RTX_E_NULL without context or element, RTX_E_HEAP when the heap is exhausted, and
// with `previous` the status of rtxApply and the context's error where one of the two trees is broken, a list would
// become too long or they are of different cell groups. (That an entry lacks what its creation asks for is a finding.)
int64_t rrcCheckRules(OSCTXT* pctxt, const CellGroupConfig* pvalue, const RrcRuleContext* known, RrcRuleSink sink,
                      void* arg);

// The same with the rules for which `wanted` returns nonzero.
int64_t rrcCheckSomeRules(OSCTXT* pctxt, const CellGroupConfig* pvalue, const RrcRuleContext* known,
                          int (*wanted)(void* arg, const RrcRule* rule), RrcRuleSink sink, void* arg);

// Writes the finding as one line without line end to text[0..size-1], always terminated: severity, path, what is wrong,
// id. Returns the length of the whole line.
size_t rrcRuleFindingFormat(const RrcRuleFinding* finding, char* text, size_t size);

// The finding's path alone: "CellGroupConfig.rlc-BearerToAddModList[1: logicalChannelIdentity 4].rlc-Config". Returns
// the length of the whole path.
size_t rrcRulePathFormat(const RrcRuleFinding* finding, char* text, size_t size);

// The table of rules, in the order of the groups: 0 <= index < rrcRuleCount(), else null.
OSUINT32 rrcRuleCount(void);
const RrcRule* rrcRuleAt(OSUINT32 index);
// By its id; null where there is none.
const RrcRule* rrcRuleById(const char* id);
// The title of the group that an id belongs to by what stands before its first '-': "Bandwidth parts and carriers" of
// "bwp-in-carrier" and of "bwp"; null where there is no such group.
const char* rrcRuleGroupTitle(const char* id);

// "error", "warning", "notice", "undecided".
const char* rrcRuleSeverityName(OSUINT8 severity);
// In words, what an input is: "the carriers of the downlink and uplink"; null for what is none or more than one.
const char* rrcRuleInputName(OSUINT32 input);

#ifdef __cplusplus
}
#endif

#endif
