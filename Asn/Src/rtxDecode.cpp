#include "rtxDecoder.h"

int rtxDecode(OSCTXT* pctxt, const RtxType* type, void* value, unsigned flags)
{
    if (pctxt == nullptr)
    {
        return RTX_E_NULL;
    }
    rtx::NoObserver none;
    return rtx::run(*pctxt, *type, value, flags, none);
}
