#ifndef TYPICALCALL_H
#define TYPICALCALL_H

#include "csiMeasurement.h"
#include "dedicatedDownlink.h"
#include "dedicatedUplink.h"
#include "reconfigurationWithSync.h"

inline void dedicatedCell(RrcServingCellCfg_t& cell)
{
    rrcInit(&cell);
    cell.tagId = 0;
    dedicatedDownlink(cell);
    dedicatedUplink(cell);
    csiMeasurement(cell);
}

// What a UE usually gets when it comes into a cell: the handover of reconfigurationWithSync and the whole dedicated
// configuration of the special cell, downlink and uplink bandwidth parts, PUCCH, PUSCH, SRS and CSI measurement.
inline void typicalCall(RrcCellGroupCfg_t& record)
{
    reconfigurationWithSync(record);
    record.spCellCfg.bitMask |= RRC_SPCELLCFG_DEDICFG_PRESENCE;
    dedicatedCell(record.spCellCfg.spCellDedicated);
}

#endif
