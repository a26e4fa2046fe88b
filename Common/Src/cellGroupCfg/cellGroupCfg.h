#ifndef CELLGROUPCFG_H
#define CELLGROUPCFG_H

#include <cstdio>

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcCodec.h"

// On the stack of a call: the tree of a typical call, so that malloc is asked by larger ones only. All that the call
// needs of the stack stays within 32 KiB.
constexpr size_t stackMemory = 16 * 1024;

// What the entry and the calls of rrcCompose.h do first: a CellGroupConfig from the context's heap, composed from the
// record. Returns VOS_OK, or VOS_ERROR after the lines that say what failed; *ppCellGroupConfig is null when not even
// the CellGroupConfig could be allocated.
INT32 composeTree(OSCTXT* pAsnCxt, RrcCellGroupCfg_t* pRrcCellGroupCfg, CellGroupConfig** ppCellGroupConfig);

// More SCells than the record holds would be cut by the composer, which writes their count back: the calls of
// rrcCompose.h, which only read the record, refuse it.
inline bool sCellsFit(const RrcCellGroupCfg_t& record)
{
    return record.sCellAddModNum <= MAX_NROF_SCellS;
}

constexpr size_t sCellLineSize = 40;

// The line that refuses it.
inline void writeSCellLine(char (&line)[sCellLineSize], const RrcCellGroupCfg_t& record)
{
    (void)std::snprintf(line, sizeof line, "sCellAddModNum: %d is not in 0..%d", record.sCellAddModNum,
                        MAX_NROF_SCellS);
}

// Encodes into the 8192 octets at pBuf->buf and writes pBuf->bufLen. Returns VOS_OK, or VOS_ERROR with the reason as
// the context's error.
INT32 encodeTree(OSCTXT* pAsnCxt, const CellGroupConfig* pCellGroupConfig, Mbuf_t* pBuf);

#endif
