#ifndef TYPICALCALL_H
#define TYPICALCALL_H

#include "csiMeasurement.h"
#include "dedicatedDownlink.h"
#include "dedicatedUplink.h"
#include "reconfigurationWithSync.h"

// The radio link fails by the first SS/PBCH block, where the UE is in the initial bandwidth part.
inline void radioLinkMonitoring(RrcServingCellCfg_t& cell)
{
    cell.bitMask |= RRC_SERVING_CELL_INIT_DL_BWP_PRESENCE;
    rrcInit(&cell.initDlBwp);
    cell.initDlBwp.bitMask = RRC_BWP_DL_DEDI_RLM_CFG_PRESENCE;
    RrcRlmCfg_t& monitoring = cell.initDlBwp.radioLinkMonitorCfg;
    rrcInit(&monitoring);
    monitoring.numFailDetectResourceAddMod = 1;
    rrcInit(&monitoring.failDetectResource[0]);
    monitoring.failDetectResource[0].radioLinkMonitorRsId = 0;
    monitoring.failDetectResource[0].purpose = RadioLinkMonitoringRS_purpose_rlf;
    monitoring.failDetectResource[0].presence = RRC_RADIO_LINK_MONITOR_SSB_PRESENCE;
    monitoring.failDetectResource[0].detectionResource.ssbIdx = 0;
}

inline void dedicatedCell(RrcServingCellCfg_t& cell)
{
    rrcInit(&cell);
    cell.tagId = 0;
    radioLinkMonitoring(cell);
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
