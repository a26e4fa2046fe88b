// Packers of bit strings: the low N bits of a number, most significant bit first. They check nothing and cannot fail;
// bits above the N-th are dropped.
#ifndef BITSTRING_H
#define BITSTRING_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcBitString.h"
#include "vos_types.h"

INT32 uint8To2ASN1BitStr32(ASN1BitStr32* pBitStr, UINT8 value);
INT32 uint8To4ASN1BitStr32(ASN1BitStr32* pBitStr, UINT8 value);
INT32 uint8To5ASN1BitStr32(ASN1BitStr32* pBitStr, UINT8 value);
INT32 uint8To8ASN1BitStr32(ASN1BitStr32* pBitStr, UINT8 value);
INT32 uint16To10ASN1BitStr32(ASN1BitStr32* pBitStr, UINT16 value);
INT32 uint16To14ASN1BitStr32(ASN1BitStr32* pBitStr, UINT16 value);
// Takes 16 bits only: the first 12 bits of the string are always zero.
INT32 uint32To28ASN1BitStr32(ASN1BitStr32* pBitStr, UINT16 value);
INT32 uint32To3ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To4ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To5ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To6ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To7ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To8ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To9ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To10ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To11ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To12ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To13ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To14ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To15ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To16ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To17ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To18ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To19ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To20ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To24ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);
INT32 uint32To32ASN1BitStr32(ASN1BitStr32* pBitStr, UINT32 value);

// Write ceil(N / 8) octets and nothing else.
INT32 uint64To40ASN1BitStr32(OSOCTET* pElem, UINT64 value);
INT32 uint64To45ASN1BitStr(OSOCTET* pElem, UINT64 value);

#endif
