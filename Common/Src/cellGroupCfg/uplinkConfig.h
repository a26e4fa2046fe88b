// Composers of UplinkConfig.
#ifndef UPLINKCONFIG_H
#define UPLINKCONFIG_H

#include "NR-RRC-Definitions.h"
#include "rrcCodec/rrcUplinkConfig.h"

INT32 rrcComposeUplinkConfig(OSCTXT* PAsnCxt, UplinkConfig* pUplinkConfig, RrcUlCfg_t* pRrcUlCfg);

#endif
