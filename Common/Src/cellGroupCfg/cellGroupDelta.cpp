#include "cellGroupCfg.h"
#include "compose.h"
#include "rrcCodec/rrcCompose.h"

namespace
{

constexpr size_t lineSize = 2048; // two paths and a reason

void printRefusal(void*, const RtxDeltaItem* item)
{
    char line[lineSize];
    (void)rtxDeltaFormat(item, line, sizeof line);
    VOS_Printf("%s\n", line);
}

// The change is walked again for what keeps it from being sent, so that success collects nothing.
INT32 failRefused(OSCTXT* pAsnCxt, const CellGroupConfig* pPrev, const CellGroupConfig* pNext)
{
    CellGroupConfig delta;
    VOS_Printf("rrcComposeCellGroupDelta Error\r\n");
    if (rtxDiff(pAsnCxt, asn1Type_CellGroupConfig(), pPrev, pNext, nullptr, &delta, printRefusal) != RTX_E_DELTA)
    {
        rtxErrPrint(pAsnCxt);
    }
    return VOS_ERROR;
}

// The context's error is about a value of one of the trees, or about neither.
INT32 failWithError(const OSCTXT* pAsnCxt, const CellGroupConfig* pPrev, const CellGroupConfig* pNext)
{
    const auto isWrong = [=](const CellGroupConfig* tree)
    {
        return asn1Check_CellGroupConfig(pAsnCxt, tree, nullptr, nullptr) != 0;
    };
    VOS_Printf("%s", pPrev != nullptr && isWrong(pPrev) ? "rrcComposeCellGroupDelta prev Error\r\n"
                     : isWrong(pNext)                   ? "rrcComposeCellGroupDelta next Error\r\n"
                                                        : "rrcComposeCellGroupDelta Error\r\n");
    rtxErrPrint(pAsnCxt);
    return VOS_ERROR;
}

INT32 composeRecord(OSCTXT* pAsnCxt, const RrcCellGroupCfg_t& record, CellGroupConfig** ppTree)
{
    if (!sCellsFit(record))
    {
        char line[sCellLineSize];
        writeSCellLine(line, record);
        VOS_Printf("%s\r\n", line);
        return VOS_ERROR;
    }
    return rrcComposeCellGroupTree(pAsnCxt, &record, ppTree);
}

INT32 composeDelta(OSCTXT* pAsnCxt, const RrcCellGroupCfg_t* prev, const RrcCellGroupCfg_t& next, Mbuf_t* pBuf)
{
    CellGroupConfig* pPrev = nullptr;
    if (prev != nullptr)
    {
        RETURN_IF_FAILED(composeRecord(pAsnCxt, *prev, &pPrev), "rrcComposeCellGroupDelta prev Error\r\n");
    }
    CellGroupConfig* pNext;
    RETURN_IF_FAILED(composeRecord(pAsnCxt, next, &pNext), "rrcComposeCellGroupDelta next Error\r\n");

    CellGroupConfig delta;
    const int status = rtxDiff(pAsnCxt, asn1Type_CellGroupConfig(), pPrev, pNext, nullptr, &delta, nullptr);
    if (status == RTX_DELTA_NOTHING)
    {
        pBuf->bufLen = 0;
        return RRC_COMPOSE_NOTHING_TO_SEND;
    }
    if (status == RTX_E_DELTA)
    {
        return failRefused(pAsnCxt, pPrev, pNext);
    }
    return status == RTX_DELTA_TO_SEND && encodeTree(pAsnCxt, &delta, pBuf) == VOS_OK
               ? VOS_OK
               : failWithError(pAsnCxt, pPrev, pNext);
}

} // namespace

INT32 rrcComposeCellGroupDelta(RrcCellGroupCfg_t* prev, RrcCellGroupCfg_t* next, Mbuf_t* pBuf)
{
    NULL_CHECK(next);
    NULL_CHECK(pBuf);

    OSCTXT asnCxt;
    (void)rtxInitContext(&asnCxt); // refuses nothing but a null pointer
    alignas(16) OSOCTET memory[stackMemory];
    (void)rtxMemHeapSetMemory(&asnCxt, memory, sizeof memory);
    const INT32 result = composeDelta(&asnCxt, prev, *next, pBuf);
    rtFreeContext(&asnCxt);
    return result;
}
