#ifndef RRCRECORDCHECK_H
#define RRCRECORDCHECK_H

#include <stddef.h>

#include "asn1Runtime.h"
#include "rrcCodec/rrcCodec.h"

/*
 * What is wrong with a record, all at once and in its own terms, before it is composed: what the encoder will refuse,
 * what will go out as something else or not at all, what was surely meant otherwise. A composition looks at none of it.
 */

#ifdef __cplusplus
extern "C"
{
#endif

#pragma GCC visibility push(default)

/** How much a finding weighs; the numbers are those of RrcRuleSeverity. */
typedef enum rrcRecordSeverity_e
{
    RRC_RECORD_NOTICE = 1,  /**< sent as it stands, and surely not intended or of no use */
    RRC_RECORD_WARNING = 2, /**< sent as something else than the record says, or not at all */
    RRC_RECORD_ERROR = 3    /**< the message is refused */
} RrcRecordSeverity_e;

/**
 * A rule of the record. Those of one field or a few are the rows of docs/behaviour.md, which is made of this table; the
 * others hold of all fields of a kind and have no region. Texts are Markdown: code between backquotes.
 */
typedef struct RrcRecordRule
{
    const char* id;     /**< "record-rlc-sn-length"; names the same rule for ever */
    const char* region; /**< heading that it stands under, null: it holds everywhere */
    const char* field;  /**< what it is of: fields and bits of the headers, in words; of a general rule the statement */
    const char* goesOut; /**< what becomes of it */
    const char* instead; /**< what to do instead */
    /** what it is of, one by one, up to a null: "RrcRlcCfg_t.bitMask", "RRC_SPCELLCFG_RLFTIMER_PRESENCE"; null: nothing
        that has a name */
    const char* const* places;
    OSUINT8
    severity; /**< RrcRecordSeverity_e, the highest that it reports; 0: a fact of which no record can be accused */
} RrcRecordRule;

/** All rules, in the order of the regions */
extern const RrcRecordRule* const rrcRecordRules[];
/** How many there are */
extern const OSUINT32 rrcRecordRuleCount;

/** Something wrong with a record; gone after the call */
typedef struct RrcRecordFinding
{
    const RrcRecordRule* rule;
    OSUINT8 severity;    /**< RrcRecordSeverity_e */
    const char* path;    /**< from the cell group to the field: "spCellCfg.spCellDedicated.dlBwp[0].bwpId" */
    const char* element; /**< what the field feeds, from CellGroupConfig on; "" where it feeds nothing */
    const char* found;   /**< what is there: "999", "bits 5 and 9"; with the name of an enumeration's value */
    const char* allowed; /**< the bound: "0..63", "0 ms1 .. 8 ms20"; "" where there is none */
    const char* words;   /**< what becomes of it, reads on behind found: "is refused: not in 0..63"; of a row, behind a
                              dash, all that the row says */
    const char* advice;  /**< what to do instead */
} RrcRecordFinding;

/**
 * One call for each finding; nonzero ends them. They come in the order of the record's fields, where a structure's rows
 * of docs/behaviour.md and its choices come before its fields.
 */
typedef int (*RrcRecordSink)(void* arg, const RrcRecordFinding* finding);

/**
 * Finds all that is wrong with a record. The record may hold anything. Nothing is allocated, kept or printed; any
 * thread may call it. Where no error is found rrcComposeCellGroupCfg composes and encodes the record, unless the
 * message is longer than its buffer; where one is found it is refused. A count of SCells beyond three is a warning, as
 * that entry sends three; the calls of rrcCompose.h refuse it. A distributed unit's own composers are not known to it.
 *
 * @param pRrcCellGroupCfg  the record; null has no findings
 * @param sink              is told each finding; null: they are counted, and no text is made
 * @param arg               is handed to the sink
 * @return                  the number of findings, of those that the sink was told of when it ended them
 */
OSUINT32 rrcCheckCellGroupCfg(const RrcCellGroupCfg_t* pRrcCellGroupCfg, RrcRecordSink sink, void* arg);

/** By its id; null where there is none. */
const RrcRecordRule* rrcRecordRuleById(const char* id);

/**
 * Writes one line without line end: "error: macCellGrpCfg.drxCfg.drxInactivityTimer: 40 is refused: not in 0 ms0 .. 22
 * ms2560 (record-range)".
 * @param text  gets the line, always terminated; may be null where size is 0
 * @param size  octets at text
 * @return      length of the whole line
 */
size_t rrcRecordFindingFormat(const RrcRecordFinding* finding, char* text, size_t size);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
