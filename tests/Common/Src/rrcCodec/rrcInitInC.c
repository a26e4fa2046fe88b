#include "rrcInitInC.h"

void initInC(RrcCellGroupCfg_t* record)
{
    rrcInit(record);
    record->bitMask = RRC_CELLGROUPCFG_PHY_PRESENCE | RRC_CELLGROUPCFG_SPCELL_PRESENCE;
    rrcInit(&record->phyCellGrpCfg);
    rrcInit(&record->spCellCfg);
    record->spCellCfg.bitMask = RRC_SPCELLCFG_RLFTIMER_PRESENCE;
    rrcInit(&record->spCellCfg.rlfTimerConstants);
}
