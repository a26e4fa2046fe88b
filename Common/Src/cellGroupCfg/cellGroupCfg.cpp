#include "cellGroupCfg.h"

#include "compose.h"
#include "macCellGroup.h"
#include "physicalCellGroup.h"
#include "rlcBearer.h"
#include "sCell.h"
#include "spCell.h"

namespace
{

// What every caller provides; RRC_CELL_GROUP_CONFIG_SIZE, half of it, is not the bound.
constexpr size_t bufferSize = 8192;

// CellGroupConfig
INT32 composeCellGroup(OSCTXT* pAsnCxt, CellGroupConfig* pCellGroupConfig, RrcCellGroupCfg_t* pRrcCellGroupCfg)
{
    assign(pCellGroupConfig->cellGroupId, pRrcCellGroupCfg->cellGroupId);
    if (pRrcCellGroupCfg->rlcBearerAddModNum != 0)
    {
        pCellGroupConfig->m.rlc_BearerToAddModListPresent = 1;
        RETURN_IF_FAILED(
            rrcComposeRlc_BearerToAddModList(pAsnCxt, &pCellGroupConfig->rlc_BearerToAddModList, pRrcCellGroupCfg),
            "rrcComposeRlc_BearerToAddModList Error\r\n");
    }
    if (pRrcCellGroupCfg->rlcBearerReleaseNum != 0)
    {
        pCellGroupConfig->m.rlc_BearerToReleaseListPresent = 1;
        RETURN_IF_FAILED(
            rrcComposeRlc_BearerToReleaseList(&pCellGroupConfig->rlc_BearerToReleaseList, pRrcCellGroupCfg),
            "rrcComposeRlc_BearerToReleaseList Error\r\n");
    }
    if (pRrcCellGroupCfg->bitMask & RRC_CELLGROUPCFG_MAC_PRESENCE)
    {
        RETURN_IF_FAILED(rrcComposeMac_CellGroupCfg(pAsnCxt, &pCellGroupConfig->mac_CellGroupConfig,
                                                    &pRrcCellGroupCfg->macCellGrpCfg),
                         "rrcComposeMac_CellGroupCfg Error\r\n");
        // Announced only now, unlike the others: it makes no difference, as any failure abandons the tree.
        pCellGroupConfig->m.mac_CellGroupConfigPresent = 1;
    }
    if (pRrcCellGroupCfg->bitMask & RRC_CELLGROUPCFG_PHY_PRESENCE)
    {
        pCellGroupConfig->m.physicalCellGroupConfigPresent = 1;
        RETURN_IF_FAILED(rrcComposePhysical_CellGroupCfg(pAsnCxt, &pCellGroupConfig->physicalCellGroupConfig,
                                                         &pRrcCellGroupCfg->phyCellGrpCfg),
                         "rrcComposePhysical_CellGroupCfg Error\r\n");
    }
    if (pRrcCellGroupCfg->bitMask & RRC_CELLGROUPCFG_SPCELL_PRESENCE)
    {
        pCellGroupConfig->m.spCellConfigPresent = 1;
        RETURN_IF_FAILED(
            rrcComposeSP_CellGroupCfg(pAsnCxt, &pCellGroupConfig->spCellConfig, &pRrcCellGroupCfg->spCellCfg),
            "rrcComposeSP_CellGroupCfg Error\r\n");
    }
    if (pRrcCellGroupCfg->sCellAddModNum != 0)
    {
        pCellGroupConfig->m.sCellToAddModListPresent = 1;
        RETURN_IF_FAILED(
            rrcComposeCellGroupCfg_sCellToAddMod(pAsnCxt, &pCellGroupConfig->sCellToAddModList, pRrcCellGroupCfg),
            "rrcComposeCellGroupCfg_sCellToAddMod Error\r\n");
    }
    if (pRrcCellGroupCfg->sCellReleaseNum != 0)
    {
        pCellGroupConfig->m.sCellToReleaseListPresent = 1;
        RETURN_IF_FAILED(rrcComposeCellGroupCfg_sCellToRel(&pCellGroupConfig->sCellToReleaseList, pRrcCellGroupCfg),
                         "rrcComposeCellGroupCfg_sCellToRel Error\r\n");
    }
    // In the tree only: its extension group is never announced.
    COPY_IF(pRrcCellGroupCfg->bitMask & RRC_CELLGROUPCFG_REPORT_PRESENCE, pCellGroupConfig,
            reportUplinkTxDirectCurrent_v1530, pRrcCellGroupCfg->reportUplinkTxDirect);
    return VOS_OK;
}

INT32 encode(OSCTXT* pAsnCxt, const CellGroupConfig* pCellGroupConfig, Mbuf_t* pBuf)
{
    const INT32 result = encodeTree(pAsnCxt, pCellGroupConfig, pBuf);
    if (result != VOS_OK)
    {
        VOS_Printf("rrcComposeCellGroupCfg Error\r\n");
        rtxErrPrint(pAsnCxt);
        rtxPrintSetContext(pAsnCxt);
        asn1Print_CellGroupConfig("CELL GROUP", pCellGroupConfig);
    }
    return result;
}

} // namespace

INT32 composeTree(OSCTXT* pAsnCxt, RrcCellGroupCfg_t* pRrcCellGroupCfg, CellGroupConfig** ppCellGroupConfig)
{
    *ppCellGroupConfig = compose::allocate<CellGroupConfig>(pAsnCxt);
    if (*ppCellGroupConfig == nullptr)
    {
        return compose::fail("pRrcCellGroupCfg Error\r\n");
    }
    return composeCellGroup(pAsnCxt, *ppCellGroupConfig, pRrcCellGroupCfg);
}

INT32 encodeTree(OSCTXT* pAsnCxt, const CellGroupConfig* pCellGroupConfig, Mbuf_t* pBuf)
{
    // The encoder refuses to run on a buffer that was refused here.
    (void)pu_setBuffer(pAsnCxt, pBuf->buf, bufferSize, 0);
    if (asn1PE_CellGroupConfig(pAsnCxt, pCellGroupConfig) != 0)
    {
        return VOS_ERROR;
    }
    pBuf->bufLen = static_cast<UINT32>(pu_getMsgLen(pAsnCxt));
    return VOS_OK;
}

INT32 rrcComposeCellGroupCfg(RrcCellGroupCfg_t* rrcRrcCellGroupCfgInfo, Mbuf_t* pBuf)
{
    OSCTXT asnCxt;
    if (rtxInitContext(&asnCxt) != 0)
    {
        VOS_Printf("rrcComposeCellGroupCfg Init AsnCxt Error\r\n");
        return VOS_ERROR;
    }
    alignas(16) OSOCTET memory[stackMemory];
    (void)rtxMemHeapSetMemory(&asnCxt, memory, sizeof memory);

    CellGroupConfig* pCellGroupConfig;
    INT32 result = composeTree(&asnCxt, rrcRrcCellGroupCfgInfo, &pCellGroupConfig);
    if (pCellGroupConfig == nullptr)
    {
        // The context holds nothing yet and is left as it is.
        return result;
    }
    // A list cut short by the heap, whose composer's result nobody looks at, is sent as far as it was built.
    if (result == VOS_OK)
    {
        result = encode(&asnCxt, pCellGroupConfig, pBuf);
    }
    rtFreeContext(&asnCxt);
    return result;
}
