#ifndef AMENDEDTREE_H
#define AMENDEDTREE_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcBitString.h"

// ServingCellConfigCommon.ssb-PositionsInBurst: which of 64 SS/PBCH blocks are sent, the first one the most significant
// bit. It is for cells above 6 GHz, which that of the example is not; the record has room for 4 or 8 blocks.
inline void sendBlocks(ServingCellConfigCommon& cell, UINT64 blocks)
{
    cell.m.ssb_PositionsInBurstPresent = 1;
    cell.ssb_PositionsInBurst.t = T_ServingCellConfigCommon_ssb_PositionsInBurst_longBitmap;
    uint64ToBitString64bit(blocks, cell.ssb_PositionsInBurst.u.longBitmap);
}

// NZP-CSI-RS-Resource.periodicityAndOffset: every 40 slots, which the record sends as 32.
inline void everySlots40(NZP_CSI_RS_Resource& resource, OSUINT8 offset)
{
    resource.m.periodicityAndOffsetPresent = 1;
    resource.periodicityAndOffset.t = T_CSI_ResourcePeriodicityAndOffset_slots40;
    resource.periodicityAndOffset.u.slots40 = offset;
}

// MAC-CellGroupConfig.drx-Config: the UE is to do without from now on. The record only knows setup.
inline void releaseDrx(MAC_CellGroupConfig& mac)
{
    mac.m.drx_ConfigPresent = 1;
    mac.drx_Config.t = T_MAC_CellGroupConfig_drx_Config_release;
}

// DRX and the first CSI-RS in the tree of a handover with CSI measurement.
inline void amend(CellGroupConfig& tree)
{
    releaseDrx(tree.mac_CellGroupConfig);
    const CSI_MeasConfig& csi = *tree.spCellConfig.spCellConfigDedicated.csi_MeasConfig.u.setup;
    everySlots40(*static_cast<NZP_CSI_RS_Resource*>(csi.nzp_CSI_RS_ResourceToAddModList.head->data), 31);
}

#endif
