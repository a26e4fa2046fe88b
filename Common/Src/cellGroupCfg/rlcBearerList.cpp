#include "rlcBearerList.h"

#include "compose.h"
#include "rlcBearer.h"

// CellGroupConfig.rlc-BearerToAddModList
INT32 rrcComposeRlc_BearerToAddModList(OSCTXT* pAsnCxt,
                                       CellGroupConfig_rlc_BearerToAddModList* pRrcRlc_BearerToAddModList,
                                       RrcCellGroupCfg_t* rrcRrcCellGroupCfgInfo)
{
    return compose::list<RLC_BearerConfig>(
        pAsnCxt, pRrcRlc_BearerToAddModList, rrcRrcCellGroupCfgInfo->rlcBearerAddModNum,
        rrcRrcCellGroupCfgInfo->rlcBearerCfg, rrcComposeRlc_BearerCfg,
        {"pNode Or pRlc_BearCfg is NULL\r\n", "rrcComposeRlc_BearerCfg is Error\r\n"});
}

// CellGroupConfig.rlc-BearerToReleaseList
INT32 rrcComposeRlc_BearerToReleaseList(CellGroupConfig_rlc_BearerToReleaseList* pRlc_BearerToReleaseList,
                                        RrcCellGroupCfg_t* pRrcRrcCellGroupCfgInfo)
{
    NULL_CHECK(pRlc_BearerToReleaseList);

    compose::array(pRlc_BearerToReleaseList, pRrcRrcCellGroupCfgInfo->rlcBearerReleaseNum,
                   pRrcRrcCellGroupCfgInfo->lchIdRelease);
    return VOS_OK;
}
