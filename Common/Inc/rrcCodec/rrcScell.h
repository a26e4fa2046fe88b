#ifndef RRCSCELL_H
#define RRCSCELL_H

#include "rrcCodec/rrcServingCell.h"
#include "rrcCodec/rrcServingCellCommon.h"
#include "vos_types.h"

/*
 * Secondary cells (TS 38.331 SCellConfig).
 */

#ifdef __cplusplus
extern "C"
{
#endif

/** RrcScellCfg_t.bitMask: sCellCfgCommn is given */
#define RRC_SCELLADDMOD_CELLCOMMON_PRESENCE (1 << 0)
/** RrcScellCfg_t.bitMask: sCellCfgDedi is given */
#define RRC_SCELLADDMOD_CELLDEDI_PRESENCE (1 << 1)
/** RrcScellCfg_t.bitMask: not read */
#define RRC_SCELLADDMOD_SMTC_PRESENCE (1 << 2)

/** SCellConfig.smtc; never sent */
typedef struct rrcSsbMtc_s
{
    UINT8 padding; /**< not read */
} RrcSsbMtc_t;

/** SCellConfig */
typedef struct rrcScellCfg_s
{
    UINT8 scellIdx;                          /**< sCellIndex, 1..31 */
    UINT8 bitMask;                           /**< bits RRC_SCELLADDMOD_..._PRESENCE */
    RrcServingCellCfgCommon_t sCellCfgCommn; /**< sCellConfigCommon */
    RrcServingCellCfg_t sCellCfgDedi;        /**< sCellConfigDedicated */
    RrcSsbMtc_t smtc;                        /**< smtc, not sent */
} RrcScellCfg_t;

#ifdef __cplusplus
}
#endif

#endif
