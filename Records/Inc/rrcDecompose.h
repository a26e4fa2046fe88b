#ifndef RRCDECOMPOSE_H
#define RRCDECOMPOSE_H

#include <stddef.h>

#include "asn1Runtime.h"
#include "rrcCodec/rrcCompose.h"
#include "vos_types.h"

/*
 * From a CellGroupConfig back to the record that composes to it. A record cannot say everything that the standard can:
 * what it leaves out or says otherwise is told path by path, and where nothing is told the record composes to the
 * octets of the tree. The record is composed for that, by the distributed unit's composers that the program links, too:
 * what a product's own make of a record differently is told as well.
 *
 * Lines of failing composers go to the platform's console. Calls on different threads are independent as long as each
 * has a context and a record of its own.
 */

#ifdef __cplusplus
extern "C"
{
#endif

#pragma GCC visibility push(default)

struct CellGroupConfig;

/** Why a record does not say what the tree says */
typedef enum rrcUnsaidReason_e
{
    RRC_UNSAID_RELEASE = 1, /**< the release alternative of a SetupRelease: a record has setup only */
    RRC_UNSAID_MEMBER, /**< a member or an alternative that is not sent, or one whose content a record cannot say */
    RRC_UNSAID_ENTRY,  /**< an entry of a list: there is no room for it, or a record cannot say its content */
    RRC_UNSAID_VALUE,  /**< a value for which the field has no room: another one is sent */
    RRC_UNSAID_ADDED,  /**< the tree lacks it, and it is always sent */
    RRC_UNSAID_LATER,  /**< an addition or an alternative of a later release */
    RRC_UNSAID_BROKEN  /**< what cannot be read, or is no valid tree: a pointer out of the context's heap, an order */
} RrcUnsaidReason_e;

/** Something that a record cannot say; gone after the call */
typedef struct RrcUnsaid
{
    OSINT32 reason; /**< RrcUnsaidReason_e */
    /** path and values: a is the tree that was given, b what the record composes to */
    const RtxDifference* difference;
} RrcUnsaid;

/** One call for each, in the order of the tree; nonzero ends them */
typedef int (*RrcUnsaidSink)(void* arg, const RrcUnsaid* unsaid);

/**
 * Fills a record, whatever its memory held, so that it composes to the tree as far as a record can. Where it cannot say
 * a mandatory member, the optional member or the entry of a list around it is left out. As after rrcInit, memory that
 * no mask and no count switches on is left as it was.
 * @param pAsnCxt            of the tree; its heap holds, for the time of the call, what the record composes to, and
 *                           keeps a block that it had to add for that. Nothing else is asked of malloc
 * @param pCellGroupConfig   any tree, valid or not: the root lies anywhere, pointers are followed into the context's
 *                           heap only
 * @param pRrcCellGroupCfg   gets the record, also after a failure; only what is switched on is written
 * @param sink               is told what the record cannot say; may be null
 * @param arg                is handed to the sink
 * @return                   how much the sink is told of, 0: the record composes to the octets of the tree, and is
 *                           refused where the encoder refuses the tree; RRC_COMPOSE_E_ARGUMENT for a null argument;
 *                           RRC_COMPOSE_E_MEMORY when the context's heap is exhausted or was before, or
 *                           RRC_COMPOSE_E_FAILED when a composer of a product's failed: not everything was told then
 */
INT32 rrcDecomposeCellGroupCfg(OSCTXT* pAsnCxt, const struct CellGroupConfig* pCellGroupConfig,
                               RrcCellGroupCfg_t* pRrcCellGroupCfg, RrcUnsaidSink sink, void* arg);

/**
 * Writes one line without line end, path and reason: "CellGroupConfig.mac-CellGroupConfig.drx-Config: release, which no
 * record says".
 * @param text  gets the line, always terminated; may be null where size is 0
 * @param size  octets at text
 * @return      length of the whole line
 */
size_t rrcUnsaidFormat(const RrcUnsaid* unsaid, char* text, size_t size);

#pragma GCC visibility pop

#ifdef __cplusplus
}
#endif

#endif
