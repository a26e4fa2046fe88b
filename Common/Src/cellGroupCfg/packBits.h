// The rule of every bit string: the low N bits of a number, most significant bit first.
#ifndef PACKBITS_H
#define PACKBITS_H

#include "asn1Runtime.h"
#include "vos_types.h"

// Left-aligned in ceil(N / 8) octets, the bits behind the N-th zero.
template <unsigned N>
void packBits(OSOCTET* octets, UINT64 value)
{
    static_assert(N >= 1 && N <= 64);
    const UINT64 aligned = value << (64 - N);
    for (unsigned i = 0; i < (N + 7) / 8; ++i)
    {
        octets[i] = static_cast<OSOCTET>(aligned >> (56 - 8 * i));
    }
}

// The octets that the bits do not reach are zero.
template <unsigned N>
INT32 packBitStr32(ASN1BitStr32* pBitStr, UINT64 value)
{
    static_assert(N <= 32);
    *pBitStr = {N, {}};
    packBits<N>(pBitStr->data, value);
    return VOS_OK;
}

#endif
