#include "bitString.h"

#include "packBits.h"

INT32 uint8To2ASN1BitStr32(ASN1BitStr32* pBitStr, UINT8 value)
{
    return packBitStr32<2>(pBitStr, value);
}

INT32 uint8To4ASN1BitStr32(ASN1BitStr32* pBitStr, UINT8 value)
{
    return packBitStr32<4>(pBitStr, value);
}

INT32 uint8To5ASN1BitStr32(ASN1BitStr32* pBitStr, UINT8 value)
{
    return packBitStr32<5>(pBitStr, value);
}

INT32 uint8To8ASN1BitStr32(ASN1BitStr32* pBitStr, UINT8 value)
{
    return packBitStr32<8>(pBitStr, value);
}

INT32 uint16To10ASN1BitStr32(ASN1BitStr32* pBitStr, UINT16 value)
{
    return packBitStr32<10>(pBitStr, value);
}

INT32 uint16To14ASN1BitStr32(ASN1BitStr32* pBitStr, UINT16 value)
{
    return packBitStr32<14>(pBitStr, value);
}

INT32 uint32To28ASN1BitStr32(ASN1BitStr32* pBitStr, UINT16 value)
{
    return packBitStr32<28>(pBitStr, value);
}

INT32 uint32To3ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<3>(pBitStr, value);
}

INT32 uint32To4ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<4>(pBitStr, value);
}

INT32 uint32To5ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<5>(pBitStr, value);
}

INT32 uint32To6ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<6>(pBitStr, value);
}

INT32 uint32To7ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<7>(pBitStr, value);
}

INT32 uint32To8ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<8>(pBitStr, value);
}

INT32 uint32To9ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<9>(pBitStr, value);
}

INT32 uint32To10ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<10>(pBitStr, value);
}

INT32 uint32To11ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<11>(pBitStr, value);
}

INT32 uint32To12ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<12>(pBitStr, value);
}

INT32 uint32To13ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<13>(pBitStr, value);
}

INT32 uint32To14ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<14>(pBitStr, value);
}

INT32 uint32To15ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<15>(pBitStr, value);
}

INT32 uint32To16ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<16>(pBitStr, value);
}

INT32 uint32To17ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<17>(pBitStr, value);
}

INT32 uint32To18ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<18>(pBitStr, value);
}

INT32 uint32To19ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<19>(pBitStr, value);
}

INT32 uint32To20ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<20>(pBitStr, value);
}

INT32 uint32To24ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<24>(pBitStr, value);
}

INT32 uint32To32ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value)
{
    return packBitStr32<32>(pBitStr, value);
}

INT32 uint64To40ASN1BitStr32(OSOCTET* pElem, UINT64 value)
{
    packBits<40>(pElem, value);
    return VOS_OK;
}

INT32 uint64To45ASN1BitStr(OSOCTET* pElem, UINT64 value)
{
    packBits<45>(pElem, value);
    return VOS_OK;
}

void uint64ToBitString43bit(UINT64 num, UINT8* elem)
{
    packBits<43>(elem, num);
}

void uint64ToBitString48bit(UINT64 num, UINT8* elem)
{
    packBits<48>(elem, num);
}

void uint64ToBitString59bit(UINT64 num, UINT8* elem)
{
    packBits<59>(elem, num);
}

void uint64ToBitString64bit(UINT64 num, UINT8* elem)
{
    packBits<64>(elem, num);
}
