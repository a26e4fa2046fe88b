#include "rtxHeap.h"
#include "rtxType.h"

namespace
{

thread_local const OSCTXT* printed = nullptr;

} // namespace

const OSCTXT* rtx::printContext()
{
    return printed;
}

void rtxPrintSetContext(const OSCTXT* pctxt)
{
    printed = pctxt;
}

int rtxInitContext(OSCTXT* pctxt)
{
    if (pctxt == nullptr)
    {
        return RTX_E_NULL;
    }
    if (printed == pctxt)
    {
        printed = nullptr; // named an earlier context at the same address
    }
    rtx::initHeap(*pctxt, nullptr);
    pctxt->buffer = {nullptr, 0, 0};
    rtxErrReset(pctxt); // the error's path is written before it is read
    return RTX_OK;
}

void rtFreeContext(OSCTXT* pctxt)
{
    if (pctxt == nullptr)
    {
        return;
    }
    if (printed == pctxt)
    {
        printed = nullptr;
    }
    rtx::freeHeap(*pctxt);
}

void rtxDListAppendNode(OSRTDList* pList, OSRTDListNode* pNode)
{
    pNode->next = nullptr;
    pNode->prev = pList->tail;
    (pList->tail != nullptr ? pList->tail->next : pList->head) = pNode;
    pList->tail = pNode;
    ++pList->count;
}

int pu_setBuffer(OSCTXT* pctxt, OSOCTET* buf, size_t capacity, OSBOOL aligned)
{
    pctxt->buffer = {nullptr, 0, 0};
    rtxErrReset(pctxt);
    if (aligned != 0)
    {
        return rtx::setError(*pctxt, RTX_E_ALIGNED); // the encoder and the decoder find this error and keep it
    }
    if (buf == nullptr)
    {
        return RTX_E_NULL;
    }
    pctxt->buffer.data = buf;
    pctxt->buffer.capacity = capacity;
    return RTX_OK;
}

size_t pu_getMsgLen(const OSCTXT* pctxt)
{
    return pctxt->buffer.msgLen;
}
