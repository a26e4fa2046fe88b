#ifndef SECONDARYCELLS_H
#define SECONDARYCELLS_H

#include "typicalCall.h"

// A secondary cell of the same band, as many carriers above the special cell as its index says. It has no uplink, and
// the downlink and the CSI measurement of the special cell; the reports go out on the special cell's PUCCH and PUSCH.
inline void secondaryCell(RrcScellCfg_t& sCell, UINT8 index)
{
    rrcInit(&sCell);
    sCell.scellIdx = index;
    sCell.bitMask = RRC_SCELLADDMOD_CELLCOMMON_PRESENCE | RRC_SCELLADDMOD_CELLDEDI_PRESENCE;

    handoverCell(sCell.sCellCfgCommn);
    sCell.sCellCfgCommn.bitMask &= ~(RRC_UPLINK_CFG_COMMON | RRC_TIMING_ADVANCE_OFFSET);
    sCell.sCellCfgCommn.pci = static_cast<UINT16>(42 + index);
    RrcFreqInfoDl_t& frequency = sCell.sCellCfgCommn.dlCfgComm.freqInfoDl;
    const UINT32 carriers = index * 6668U; // 100.02 MHz each, in steps of 15 kHz
    frequency.absFreqSsb += carriers;
    frequency.absFreqPointA += carriers;

    RrcServingCellCfg_t& cell = sCell.sCellCfgDedi;
    rrcInit(&cell);
    cell.tagId = 0;
    cell.bitMask = RRC_SERVING_CELL_SCELL_DEACTIVE_TIMER_PRESENCE;
    cell.sCellDeativationTimer = ServingCellConfig_sCellDeactivationTimer_ms320;
    dedicatedDownlink(cell);
    csiMeasurement(cell);
}

// A typical call with three secondary cells for more downlink.
inline void secondaryCells(RrcCellGroupCfg_t& record)
{
    typicalCall(record);
    record.sCellAddModNum = 3;
    for (UINT8 i = 0; i < 3; ++i)
    {
        secondaryCell(record.sCellAddMod[i], static_cast<UINT8>(i + 1));
    }
}

#endif
