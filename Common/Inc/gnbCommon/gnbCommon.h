#ifndef GNBCOMMON_H
#define GNBCOMMON_H

#include "vos_types.h"

#ifdef __cplusplus
extern "C"
{
#endif

/** Radio network temporary identifier (TS 38.331 RNTI-Value), 0..65535 */
typedef UINT16 CmNrRnti;

/**
 * An encoded message in a buffer of the caller's. It carries no capacity: rrcComposeCellGroupCfg writes up to 8192
 * octets wherever buf points. rrcEncodeCellGroupCfg (rrcCodec/rrcCompose.h) keeps to a capacity given.
 */
typedef struct mbuf_s
{
    UINT32 bufLen; /**< length in octets; written on success only */
    UINT8* buf;    /**< the caller's octets, at least 8192; the pointer is only read */
} Mbuf_t;

#ifdef __cplusplus
}
#endif

#endif
