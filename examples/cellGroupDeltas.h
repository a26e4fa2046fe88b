#ifndef CELLGROUPDELTAS_H
#define CELLGROUPDELTAS_H

#include "secondaryCells.h"

// What happens to a UE in a call with secondary cells: each changes the record of what it shall have.

// A second data radio bearer, as the first one.
inline void addBearer(RrcCellGroupCfg_t& record)
{
    record.rlcBearerAddModNum = 2;
    record.rlcBearerCfg[1] = record.rlcBearerCfg[0];
    record.rlcBearerCfg[1].lchId = 5;
    record.rlcBearerCfg[1].rbId = 2;
}

// The periodic CSI report of the special cell comes half as often.
inline void changeReport(RrcCellGroupCfg_t& record)
{
    RrcCsiReportCfg_t& report = record.spCellCfg.spCellDedicated.csiMeasCfg.csiReportCfg[0];
    report.ReportCfgType_n.periodic.reportSlotCfg.periodicity = T_CSI_ReportPeriodicityAndOffset_slots160;
}

// The last secondary cell goes.
inline void releaseSCell(RrcCellGroupCfg_t& record)
{
    --record.sCellAddModNum;
}

#endif
