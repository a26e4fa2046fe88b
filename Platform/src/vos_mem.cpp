#include <cstring>

#include "vos_lib.h"

void VOS_MemZero(void* pMem, size_t size)
{
    if (pMem != nullptr)
    {
        std::memset(pMem, 0, size);
    }
}

void VOS_MemCpy(void* pDst, const void* pSrc, size_t size)
{
    if (size != 0)
    {
        std::memcpy(pDst, pSrc, size);
    }
}
