#ifndef RRCCODEC_H
#define RRCCODEC_H

#include "cellgroupcfg_export.h"
#include "gnbCommon/gnbCommon.h"
#include "rrcCodec/rrcBitString.h"
#include "rrcCodec/rrcMac.h"
#include "rrcCodec/rrcPhy.h"
#include "rrcCodec/rrcRlc.h"
#include "rrcCodec/rrcScell.h"
#include "rrcCodec/rrcSpCell.h"
#include "vos_types.h"

/*
 * The cell group of one UE (TS 38.331 CellGroupConfig) as one flat record, and the call that encodes it.
 *
 * How the comments of all records read. A structure's begins with the element of the standard that it holds, a field's
 * with the member of that element that it feeds, "itself" being the element. Then come its range, its unit where the
 * standard's is not plain, and behind ";" whatever else there is to know.
 *
 *     drx-InactivityTimer, DRX_Config_drx_InactivityTimer_...: 0 ms0, 1 ms1    the values of an enumeration and their
 *         numbers; NR-RRC-Definitions.h has the constants DRX_Config_drx_InactivityTimer_ms0 and so on, with "_" for
 *         each "-" of a value
 *     alternative of periodicityAndOffset, T_SSB_MTC_periodicityAndOffset_...: 1 sf5, 2 sf10    the number of an
 *         alternative, with the same kind of constants
 *     value by period    the value of the alternative that the field period has chosen
 *     entries used of tag, 0..4    so many entries of the array tag count; where 0 is allowed, 0 leaves the list out
 *     bits RRC_TAG_..._PRESENCE    a mask; what each bit does stands at the bit. Of several that choose an alternative
 *         the highest wins, if they do not say otherwise; with none, and no "else", the encoder refuses the choice
 *
 * Without the bit that says "is given" a field is not read. Of a BOOL that feeds a BOOLEAN the low 8 bits count.
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** maxLC-ID */
#define RRC_MAX_LC_ID 32
/** Secondary cells of one record */
#define MAX_NROF_SCellS 3

/** Not the size of a buffer: rrcComposeCellGroupCfg writes up to 8192 octets and does not look at this. */
#define RRC_CELL_GROUP_CONFIG_SIZE 4096

/** RrcCellGroupCfg_t.bitMask: macCellGrpCfg is given */
#define RRC_CELLGROUPCFG_MAC_PRESENCE (1 << 0)
/** RrcCellGroupCfg_t.bitMask: phyCellGrpCfg is given */
#define RRC_CELLGROUPCFG_PHY_PRESENCE (1 << 1)
/** RrcCellGroupCfg_t.bitMask: spCellCfg is given */
#define RRC_CELLGROUPCFG_SPCELL_PRESENCE (1 << 2)
/** RrcCellGroupCfg_t.bitMask: reportUplinkTxDirect is given */
#define RRC_CELLGROUPCFG_REPORT_PRESENCE (1 << 3)

/**
 * CellGroupConfig. A list is sent when its count is not 0; a count beyond its array makes the call fail, except
 * sCellAddModNum, which is cut. The record takes some 10 MB: keep it off the stack, and initialise it with
 * rrcInit (rrcInit.h) before filling in what the UE gets.
 */
typedef struct rrcCellGroupCfg_s
{
    UINT8 cellGroupId;                             /**< cellGroupId, 0..3 */
    UINT8 rlcBearerAddModNum;                      /**< entries used of rlcBearerCfg, 0..32 */
    RrcRlcBearerCfg_t rlcBearerCfg[RRC_MAX_LC_ID]; /**< rlc-BearerToAddModList */
    UINT8 rlcBearerReleaseNum;                     /**< entries used of lchIdRelease, 0..32 */
    UINT8 lchIdRelease[RRC_MAX_LC_ID];             /**< rlc-BearerToReleaseList, each 1..32 */
    UINT8 bitMask;                                 /**< bits RRC_CELLGROUPCFG_..._PRESENCE */
    RrcMacCellGrpCfg_t macCellGrpCfg;              /**< mac-CellGroupConfig */
    RrcPhyCellGrpCfg_t phyCellGrpCfg;              /**< physicalCellGroupConfig */
    RrcSpCellCfg_t spCellCfg;                      /**< spCellConfig */
    /** entries used of sCellAddMod, 0..3, further ones are not sent; above 3 it becomes 3 */
    UINT8 sCellAddModNum;
    RrcScellCfg_t sCellAddMod[MAX_NROF_SCellS]; /**< sCellToAddModList */
    UINT8 sCellReleaseNum;                      /**< entries used of sCellIdx, 0..3 */
    UINT8 sCellIdx[MAX_NROF_SCellS];            /**< sCellToReleaseList, each 1..31 */
    /**
     * reportUplinkTxDirectCurrent-v1530, not sent, CellGroupConfig_reportUplinkTxDirectCurrent_v1530_...: 0 true; no
     * composer announces its extension group
     */
    BOOL reportUplinkTxDirect;
} RrcCellGroupCfg_t;

/**
 * Composes the CellGroupConfig and encodes it with unaligned PER. Calls on different threads are independent as long as
 * each has its own record and buffer.
 * @param rrcRrcCellGroupCfgInfo  the cell group, never null; only read, but for sCellAddModNum: above 3 it becomes 3
 * @param pBuf                    never null; buf points at at least 8192 octets of the caller's, which get the
 * encoding; bufLen gets its length on success and is left alone otherwise. After a failure the octets at buf may hold
 * part of an encoding.
 * @return                        0, or -1 after lines on the console that say what failed: a value that CellGroupConfig
 *                                does not allow is named with its path, and the whole element tree follows. Where the
 *                                heap was exhausted in a list whose composer's result nobody looks at, the console
 *                                says so and the result is 0 with what was built; rrcCompose.h has calls that refuse
 */
CELLGROUPCFG_API INT32 rrcComposeCellGroupCfg(RrcCellGroupCfg_t* rrcRrcCellGroupCfgInfo, Mbuf_t* pBuf);

#ifdef __cplusplus
}
#endif

#endif
