#ifndef RRCCOMPOSE_H
#define RRCCOMPOSE_H

#include <stddef.h>

#include "cellgroupcfg_export.h"
#include "rrcCodec/rrcCodec.h"
#include "vos_types.h"

/*
 * The calls for a careful caller, beside rrcComposeCellGroupCfg: they respect the buffer's capacity, say as status and
 * text what is wrong, print no element tree, and refuse what the heap has cut short, so that 0 means that the whole
 * record was composed. And rrcComposeCellGroupDelta, which sends the difference of two records only.
 *
 * Lines of failing composers (rrcComposeRlc_BearerToAddModList Error) go to the platform's console all the same.
 * Calls on different threads are independent as long as each has memory of its own.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** The element tree: asn1Runtime.h, NR-RRC-Definitions.h */
struct OSCTXT;
struct CellGroupConfig;

/** Status of the calls below */
typedef enum rrcComposeStatus_e
{
    RRC_COMPOSE_OK = 0,
    RRC_COMPOSE_E_ARGUMENT = -1, /**< an argument is null, or sCellAddModNum is above MAX_NROF_SCellS */
    RRC_COMPOSE_E_FAILED = -2,   /**< a composer failed, be it one whose result the entry does not look at */
    RRC_COMPOSE_E_VALUE = -3,    /**< the record holds what CellGroupConfig does not allow */
    RRC_COMPOSE_E_CAPACITY = -4, /**< the encoding is longer than the capacity */
    RRC_COMPOSE_E_MEMORY = -5    /**< the heap, or the memory given, is exhausted */
} RrcComposeStatus_e;

/** Octets of memory with which rrcEncodeCellGroupCfgInMemory composes any record whose message has up to 8192 octets */
#define RRC_COMPOSE_MEMORY_SIZE 1048576

/**
 * Composes the element tree, which the caller may amend (release alternatives, members that the record cannot say) and
 * encode with pu_setBuffer and asn1PE_CellGroupConfig. What he adds to it by pointer he takes from rtxMemHeapAlloc with
 * the same context, and asks rtxMemHeapFailed before he encodes. Needs cellgroupcfg::nrrrc.
 * @param pAsnCxt            initialised with rtxInitContext; its heap gets the tree, also parts of one after a failure;
 *                           the caller frees it with rtFreeContext
 * @param pRrcCellGroupCfg   the cell group, only read
 * @param ppCellGroupConfig  gets the tree, which lives as long as the context's heap; null after a failure
 * @return                   0, or RRC_COMPOSE_E_ARGUMENT, RRC_COMPOSE_E_FAILED, RRC_COMPOSE_E_MEMORY: the context's
 *                           heap has refused a request, be it before the call
 */
CELLGROUPCFG_API INT32 rrcComposeCellGroupTree(struct OSCTXT* pAsnCxt, const RrcCellGroupCfg_t* pRrcCellGroupCfg,
                                               struct CellGroupConfig** ppCellGroupConfig);

/**
 * Composes the CellGroupConfig and encodes it with unaligned PER. Asks malloc where the element tree takes more than
 * 16 KiB of the stack.
 * @param pRrcCellGroupCfg  the cell group, only read
 * @param buf               the caller's octets, which get the encoding; after a failure they may hold part of one
 * @param capacity          of buf, in octets: nothing is written behind them
 * @param pLength           gets the encoding's length in octets; 0 after a failure
 * @param error             gets one line without line end, which says what is wrong, with path, value and bound; empty
 *                          without an error. A line that is too long for it ends in "...": 512 octets hold nearly any.
 *                          May be null
 * @param errorSize         octets at error; 0: no text
 * @return                  RrcComposeStatus_e
 */
CELLGROUPCFG_API INT32 rrcEncodeCellGroupCfg(const RrcCellGroupCfg_t* pRrcCellGroupCfg, UINT8* buf, size_t capacity,
                                             size_t* pLength, char* error, size_t errorSize);

/**
 * The same with memory of the caller's for everything: malloc is not asked, and 8 KiB of the stack suffice.
 * @param memory      of any alignment; the caller's again after the call
 * @param memorySize  octets at memory; RRC_COMPOSE_MEMORY_SIZE are enough, less may do. Where they are not enough the
 *                    call is refused with RRC_COMPOSE_E_MEMORY
 */
CELLGROUPCFG_API INT32 rrcEncodeCellGroupCfgInMemory(const RrcCellGroupCfg_t* pRrcCellGroupCfg, void* memory,
                                                     size_t memorySize, UINT8* buf, size_t capacity, size_t* pLength,
                                                     char* error, size_t errorSize);

/** rrcComposeCellGroupDelta: the UE has what it shall have */
#define RRC_COMPOSE_NOTHING_TO_SEND 1

/**
 * Composes the smallest CellGroupConfig that takes a UE from one configuration to the next and encodes it with
 * unaligned PER (TS 38.331 6.1.2, 5.3.5.5). What next has no more is released, what the UE keeps is not sent, what it
 * would clear is sent again; what next carries to be done once (reestablishRLC) is sent unless the records are the
 * same. reconfigurationWithSync and the SpCell's first active bandwidth parts are sent where they are others than in
 * prev; where next carries none, nothing is said about them. Entries of configuration lists are released and added
 * again where nothing else brings a change, RLC bearers, SCells and bandwidth parts are not; docs/delta.md has the
 * rules, rtxDiff of asn1Runtime.h the options. A change of sps-Config, or of configuredGrantConfig without
 * rrc-ConfiguredUplinkGrant, is for a time in which none is active.
 * Needs 64 KiB of the stack, and asks malloc where the trees take more than 16 KiB.
 * @param prev  what the UE has confirmed, as a complete record; null: it has nothing, as after full configuration. Only
 *              read
 * @param next  what the UE shall have, as a complete record, never null; only read. Of the same cellGroupId as prev
 * @param pBuf  never null; buf points at at least 8192 octets of the caller's, which get the encoding; bufLen gets its
 *              length, 0 when there is nothing to send, and is left alone after a failure. After a failure the octets
 * at buf may hold part of an encoding
 * @return      0; RRC_COMPOSE_NOTHING_TO_SEND; or -1 after lines on the console that say what failed: the record where
 * a composer failed or a value is not allowed, and with its path and reason a change that no delta brings, with the
 * nearest element around it whose release would help. Exhausted memory is always a failure
 */
CELLGROUPCFG_API INT32 rrcComposeCellGroupDelta(RrcCellGroupCfg_t* prev, RrcCellGroupCfg_t* next, Mbuf_t* pBuf);

#ifdef __cplusplus
}
#endif

#endif
