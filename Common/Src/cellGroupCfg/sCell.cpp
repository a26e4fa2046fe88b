#include "sCell.h"

#include "compose.h"
#include "servingCell.h"
#include "servingCellCommon.h"

// CellGroupConfig.sCellToAddModList
INT32 rrcComposeCellGroupCfg_sCellToAddMod(OSCTXT* pAsnCxt, CellGroupConfig_sCellToAddModList* pSCellToAddModList,
                                           RrcCellGroupCfg_t* pRrcCellGroupCfg)
{
    // The one count that is not left to the encoder: what is above the array is cut, in the caller's record, too.
    if (pRrcCellGroupCfg->sCellAddModNum > MAX_NROF_SCellS)
    {
        pRrcCellGroupCfg->sCellAddModNum = MAX_NROF_SCellS;
    }
    return compose::list<SCellConfig>(pAsnCxt, pSCellToAddModList, pRrcCellGroupCfg->sCellAddModNum,
                                      pRrcCellGroupCfg->sCellAddMod, rrcCompose_sCellToAddModItem,
                                      {"pNode Or pItem is NULL\r\n", "rrcCompose_sCellToAddMod is Error\r\n"});
}

// CellGroupConfig.sCellToAddModList, one element. The record's bit for smtc is not looked at: smtc is never sent.
INT32 rrcCompose_sCellToAddModItem(OSCTXT* pAsnCxt, SCellConfig* pItem, RrcScellCfg_t* pRrcScellCfg)
{
    assign(pItem->sCellIndex, pRrcScellCfg->scellIdx);
    if (pRrcScellCfg->bitMask & RRC_SCELLADDMOD_CELLCOMMON_PRESENCE)
    {
        pItem->m.sCellConfigCommonPresent = 1;
        // The line names the special cell's composer.
        RETURN_IF_FAILED(
            rrcComposeServCellConfigCommon(pAsnCxt, &pItem->sCellConfigCommon, &pRrcScellCfg->sCellCfgCommn),
            "rrcComposeSpCellConfigCommon Error\r\n");
    }
    if (pRrcScellCfg->bitMask & RRC_SCELLADDMOD_CELLDEDI_PRESENCE)
    {
        pItem->m.sCellConfigDedicatedPresent = 1;
        RETURN_IF_FAILED(
            rrcComposespCellConfigDedicated(pAsnCxt, &pItem->sCellConfigDedicated, &pRrcScellCfg->sCellCfgDedi),
            "rrcComposespCellConfigDedicated Error\r\n");
    }
    return VOS_OK;
}

// CellGroupConfig.sCellToReleaseList
INT32 rrcComposeCellGroupCfg_sCellToRel(CellGroupConfig_sCellToReleaseList* pSCellToReleaseList,
                                        RrcCellGroupCfg_t* pRrcCellGroupCfg)
{
    // Beyond the record's three entries the list has cleared ones, and 0 is no SCellIndex: the encoder refuses them.
    compose::array(pSCellToReleaseList, pRrcCellGroupCfg->sCellReleaseNum, pRrcCellGroupCfg->sCellIdx);
    return VOS_OK;
}
